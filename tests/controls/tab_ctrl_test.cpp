// CZoTabCtrl: tab cells and frame against the skin's own pixels, captions by where they land,
// the untouched page, hover repainting, the disabled look, TCS_BUTTONS, the tab thickness on
// every size class.
#include "controls_test_support.h"

#include <afxcmn.h>
#include <commctrl.h>

#include "controls/ZoTabCtrl.h"
#include "core/ZoThemeManager.h"
#include "images/ZoResourceImage.h"

using namespace ZoControls;
using controltest::ControlTest;
using controltest::Slot;

namespace {

const int kBackground = 0;
const int kTextDisabled = 8;

class TabTest : public ControlTest
{
protected:
    void Create(DWORD style, std::initializer_list<const wchar_t*> captions = {L"One", L"Two", L"Three"},
                CWnd* parent = nullptr)
    {
        ASSERT_TRUE(tabs_.Create(WS_CHILD | WS_VISIBLE | style, CRect(0, 0, 300, 200),
                                 parent ? parent : parentWnd(), 9));
        int i = 0;
        for (const wchar_t* caption : captions)
            tabs_.InsertItem(i++, caption);
    }
    CRect Item(int index) const
    {
        CRect item;
        tabs_.GetItemRect(index, &item);
        return item;
    }
    CRect Page() const
    {
        CRect page;
        tabs_.GetClientRect(&page);
        ::SendMessageW(tabs_.GetSafeHwnd(), TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&page));
        return page;
    }
    // The outer columns of cap `piece` (0 left, 2 right) of tab `index` (top tabs) show the cell
    // for `state` and selection; the caption stays clear of them, and the row next to the page,
    // which the frame may share, is left out.
    testing::AssertionResult TopCapShows(const zotest::Dib& dib, HBITMAP strip, int index, int piece, int state,
                                         bool selected)
    {
        const int kCap = 7;
        const int kOuter = 4;
        CRect pieces[3];
        ZoTabPieces(ZoTabItemRect(Item(index), 0), kCap, false, pieces);
        const CRect area = pieces[piece];
        const CPoint cell = ZoTabCell(false, state, 0, selected, piece);
        const zotest::Dib expected =
            controltest::StretchedCell(strip, 12, 6, cell.x, cell.y, kCap, area.Height(), Slot(kBackground));
        const int from = piece == 0 ? 0 : kCap - kOuter;
        return controltest::AreaMatches(dib, CRect(area.left + from, area.top, area.left + from + kOuter, area.bottom - 2),
                                        expected.Crop(CRect(from, 0, from + kOuter, area.Height() - 2)));
    }

    CZoTabCtrl tabs_;
};

// Bounding box of the pixels that differ between two renderings of the same size.
CRect DifferenceBounds(const zotest::Dib& a, const zotest::Dib& b)
{
    CRect bounds(0, 0, 0, 0);
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            if (a.Pixel(x, y) != b.Pixel(x, y)) {
                const CRect pixel(x, y, x + 1, y + 1);
                if (bounds.IsRectEmpty())
                    bounds = pixel;
                else
                    bounds.UnionRect(&bounds, &pixel);
            }
    return bounds;
}

// A parent that answers the size-class query with its reference data.
LRESULT CALLBACK AnswerSizeClass(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR size)
{
    if (message != ZoMsg_GetCurrentMonitorSize)
        return ::DefSubclassProc(window, message, wParam, lParam);
    *reinterpret_cast<int*>(lParam) = static_cast<int>(size);
    return 0;
}

} // namespace

TEST(TabMath, StripsCellsAndPieces)
{
    EXPECT_STREQ(ZoTabStripFor(0).name, L"BMP_ZO_TABBTN_TOP");
    EXPECT_STREQ(ZoTabStripFor(TCS_BOTTOM).name, L"BMP_ZO_TABBTN_BOTTOM");
    EXPECT_STREQ(ZoTabStripFor(TCS_VERTICAL).name, L"BMP_ZO_TABBTN_LEFT");
    EXPECT_STREQ(ZoTabStripFor(TCS_VERTICAL | TCS_RIGHT).name, L"BMP_ZO_TABBTN_RIGHT");
    EXPECT_EQ(ZoTabCell(false, ZoTabState_Hover, 1, false, 2), CPoint(5, 3));
    EXPECT_EQ(ZoTabCell(true, ZoTabState_Hover, 1, false, 2), CPoint(1, 11));
    EXPECT_EQ(ZoTabStateOf(false, 0, 0, 0), ZoTabState_Disabled);
    EXPECT_EQ(ZoTabStateOf(true, 2, 2, 2), ZoTabState_Pressed);
    // Caption colour slots: disabled beats selected beats hovered.
    EXPECT_EQ(ZoTabTextSlot(false, true, true), 8);
    EXPECT_EQ(ZoTabTextSlot(true, true, true), 7);
    EXPECT_EQ(ZoTabTextSlot(true, false, true), 6);
    EXPECT_EQ(ZoTabTextSlot(true, false, false), 5);
    EXPECT_EQ(ZoTabItemRect(CRect(0, 0, 10, 10), TCS_VERTICAL | TCS_RIGHT), CRect(-1, 0, 10, 10));
    EXPECT_EQ(ZoTabItemRect(CRect(0, 0, 10, 10), TCS_BOTTOM), CRect(0, -1, 10, 10));
    EXPECT_EQ(ZoTabRotatedTextOrigin(CRect(3, 10, 22, 90), 13, false), CPoint(6, 50));
    EXPECT_EQ(ZoTabRotatedTextOrigin(CRect(3, 10, 22, 90), 13, true), CPoint(19, 50));
}

TEST_F(TabTest, TabCellsSelectionHoverAndFrameComeFromTheSkins)
{
    Create(0);
    HBITMAP strip = Strip(L"BMP_ZO_TABBTN_TOP");
    HBITMAP frame = Strip(L"BMP_ZO_TABFRAME");
    zotest::Dib dib = zotest::RenderClient(tabs_.m_hWnd);
    for (int piece : {0, 2}) {
        EXPECT_TRUE(TopCapShows(dib, strip, 0, piece, ZoTabState_Normal, true)) << piece;
        EXPECT_TRUE(TopCapShows(dib, strip, 1, piece, ZoTabState_Normal, false)) << piece;
    }
    const CRect page = Page();
    ZOTEST_EXPECT_CELL(dib, CPoint(page.left - 3, page.bottom), frame, zotest::CellRect(frame, 3, 9, 0, 2),
                       controltest::kMagenta);
    ZOTEST_EXPECT_CELL(dib, CPoint(page.right, page.bottom), frame, zotest::CellRect(frame, 3, 9, 2, 2),
                       controltest::kMagenta);
    // Hovering a tab; a press changes nothing, no tab is ever drawn pressed.
    const CPoint centre = Item(1).CenterPoint();
    tabs_.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(centre.x, centre.y));
    tabs_.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(centre.x, centre.y));
    tabs_.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(centre.x, centre.y));
    // The click gave the control the focus; its focus rectangle has a test of its own.
    ::SetFocus(parent());
    dib = zotest::RenderClient(tabs_.m_hWnd);
    EXPECT_EQ(tabs_.GetCurSel(), 1);
    EXPECT_TRUE(TopCapShows(dib, strip, 1, 0, ZoTabState_Hover, true));
    EXPECT_TRUE(TopCapShows(dib, strip, 0, 2, ZoTabState_Normal, false));
}

TEST_F(TabTest, PageAreaIsNeverPaintedOver)
{
    Create(0);
    const zotest::Dib dib = zotest::RenderClient(tabs_.m_hWnd);
    CRect page = Page();
    ZOTEST_EXPECT_FILL(dib, page, zotest::kUnpainted);
    ZOTEST_EXPECT_PIXEL(dib, 299, 199, Slot(kBackground));
}

TEST_F(TabTest, DisabledControlDrawsCaptionsButNoTabCells)
{
    Create(0);
    tabs_.EnableWindow(FALSE);
    const zotest::Dib dib = zotest::RenderClient(tabs_.m_hWnd);
    for (int i = 0; i < 3; ++i) {
        const CRect tab = ZoTabItemRect(Item(i), 0);
        const CRect cap(tab.left, tab.top, tab.left + 7, tab.bottom - 2);
        ZOTEST_EXPECT_FILL(dib, cap, Slot(kBackground));
        EXPECT_GT(controltest::CountPixels(dib, tab, Slot(kTextDisabled)), 0) << i;
    }
}

TEST_F(TabTest, CaptionsLandInsideTheirTabsAlongTheTab)
{
    const struct { DWORD style; int escapement; } cases[] = {
        {0, 0}, {TCS_BOTTOM, 0}, {TCS_VERTICAL | TCS_MULTILINE, 900}, {TCS_VERTICAL | TCS_RIGHT | TCS_MULTILINE, 2700}};
    for (const auto& c : cases) {
        Create(c.style, {L"Wide caption", L""});
        const bool vertical = (c.style & TCS_VERTICAL) != 0;
        const zotest::Dib blank = zotest::RenderClient(tabs_.m_hWnd);
        // The same tab with the caption moved onto the second, blank one.
        TCITEMW item = {};
        item.mask = TCIF_TEXT;
        item.pszText = const_cast<wchar_t*>(L"");
        tabs_.SetItem(0, &item);
        item.pszText = const_cast<wchar_t*>(L"Wide caption");
        tabs_.SetItem(1, &item);
        const zotest::Dib captioned = zotest::RenderClient(tabs_.m_hWnd);
        CRect text = ZoTabItemRect(Item(1), c.style);
        text.DeflateRect(3, 3);
        const CRect landed = DifferenceBounds(blank, captioned);
        CRect inside;
        inside.IntersectRect(&landed, ZoTabItemRect(Item(1), c.style));
        ASSERT_FALSE(inside.IsRectEmpty()) << c.style;
        // Runs along the tab, centred across it.
        EXPECT_EQ(vertical, inside.Height() > inside.Width()) << c.style;
        const CPoint mid = inside.CenterPoint();
        const CPoint tabMid = text.CenterPoint();
        EXPECT_NEAR(vertical ? mid.x : mid.y, vertical ? tabMid.x : tabMid.y, 2) << c.style;
        LOGFONTW font = {};
        ::GetObjectW(reinterpret_cast<HFONT>(tabs_.SendMessage(WM_GETFONT)), sizeof(font), &font);
        EXPECT_EQ(font.lfEscapement, c.escapement) << c.style;
        tabs_.DestroyWindow();
    }
}

TEST_F(TabTest, HoverRepaintsOnlyOutsideThePage)
{
    Create(0);
    tabs_.ValidateRect(nullptr);
    const CPoint centre = Item(1).CenterPoint();
    tabs_.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(centre.x, centre.y));
    CRgn update;
    update.CreateRectRgn(0, 0, 0, 0);
    ASSERT_NE(::GetUpdateRgn(tabs_.m_hWnd, update, FALSE), NULLREGION);
    CRect client;
    tabs_.GetClientRect(&client);
    const CRect page = Page();
    EXPECT_FALSE(update.PtInRegion(page.CenterPoint()));
    EXPECT_FALSE(update.PtInRegion(page.TopLeft()));
    EXPECT_TRUE(update.PtInRegion(CPoint(page.left - 1, page.top)));
    EXPECT_TRUE(update.PtInRegion(CPoint(client.right - 1, client.bottom - 1)));
    tabs_.ValidateRect(nullptr);
    tabs_.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(centre.x + 1, centre.y));
    EXPECT_FALSE(::GetUpdateRect(tabs_.m_hWnd, nullptr, FALSE));
}

TEST_F(TabTest, ButtonsStyleKeepsThePlatformPaintingButTakesTheFont)
{
    Create(TCS_BUTTONS);
    const CFont* bold =
        CZoThemeManager::GetInstance()->GetCacheGDIFont(ZoThemeFont_9, ZoGetCurrentMonitorSize(&tabs_, false));
    EXPECT_EQ(reinterpret_cast<HFONT>(tabs_.SendMessage(WM_GETFONT)), static_cast<HFONT>(bold->GetSafeHandle()));
    EXPECT_EQ(controltest::CountPixels(zotest::RenderClient(tabs_.m_hWnd), Slot(kBackground)), 0);
}

TEST_F(TabTest, TabsAre25PixelsThickOnEverySizeClass)
{
    for (int size = ZoMonitorSize_Normal; size < ZoMonitorSize_Count; ++size) {
        zotest::ScopedWindow host(zotest::CreateSolidWindow(RECT{0, 0, 320, 220}, RGB(1, 2, 3), parent()));
        ::SetWindowSubclass(host, AnswerSizeClass, 1, size);
        for (DWORD style : {DWORD(0), DWORD(TCS_VERTICAL | TCS_MULTILINE)}) {
            Create(style, {L"One"}, CWnd::FromHandle(host));
            EXPECT_EQ(style ? Item(0).Width() : Item(0).Height(), 25) << size << " " << style;
            tabs_.DestroyWindow();
        }
    }
}

TEST_F(TabTest, AttachedPlatformTabControlIsSkinned)
{
    HWND native = MakeNative(WC_TABCONTROLW, 0, RECT{0, 0, 300, 200});
    ASSERT_TRUE(tabs_.SubclassWindow(native));
    tabs_.InsertItem(0, L"One");
    EXPECT_EQ(Item(0).Height(), 25);
    HBITMAP frame = Strip(L"BMP_ZO_TABFRAME");
    const CRect page = Page();
    ZOTEST_EXPECT_CELL(zotest::RenderClient(native), CPoint(page.right, page.bottom), frame,
                       zotest::CellRect(frame, 3, 9, 2, 2), controltest::kMagenta);
}

namespace {

// Tab and frame strips that did not load.
class UnskinnedTabs : public CZoTabCtrl
{
public:
    void DropSkins()
    {
        delete m_pTabSkin;
        m_pTabSkin = new CZoResourceBMPImage();
        delete m_pFrameSkin;
        m_pFrameSkin = new CZoResourceBMPImage();
    }
};

} // namespace

TEST_F(TabTest, StripsThatDidNotLoadLeaveBackgroundAndCaptions)
{
    UnskinnedTabs tabs;
    ASSERT_TRUE(tabs.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), parentWnd(), 9));
    tabs.InsertItem(0, L"One");
    tabs.DropSkins();
    const zotest::Dib dib = zotest::RenderClient(tabs.m_hWnd);
    CRect page;
    tabs.GetClientRect(&page);
    tabs.AdjustRect(FALSE, &page);
    ZOTEST_EXPECT_FILL(dib, CRect(page.left - 3, page.bottom, page.right + 3, page.bottom + 3), Slot(kBackground));
    CRect item;
    tabs.GetItemRect(0, &item);
    EXPECT_GT(controltest::CountPixels(dib, item, Slot(7)), 0);
    tabs.DestroyWindow();
}

// A parent that notes the tabs' notifications and vetoes one kind of them.
class TabParent : public CWnd
{
public:
    std::vector<UINT> heard;
    UINT vetoCode = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const UINT code = message == WM_NOTIFY ? reinterpret_cast<const NMHDR*>(lParam)->code : 0;
        if (code != TCN_KEYDOWN && code != TCN_SELCHANGING && code != TCN_SELCHANGE)
            return CWnd::WindowProc(message, wParam, lParam);
        heard.push_back(code);
        return code == vetoCode ? TRUE : CWnd::WindowProc(message, wParam, lParam);
    }
};

// The selection changes through the parent. A parent that destroys the tabs in these
// notifications is driven by the hostile-input run, where Wine's own handling read freed data.
TEST_F(TabTest, ClicksAndArrowKeysSelectThroughTheParent)
{
    const UINT kKey = TCN_KEYDOWN, kChanging = TCN_SELCHANGING, kChange = TCN_SELCHANGE;
    struct Row
    {
        const char* input; // "click" on tab 1, or an arrow key pressed `presses` times
        UINT key;
        int presses;
        UINT veto;
        std::vector<UINT> heard;
        int selected;
    };
    const Row rows[] = {
        {"click", 0, 1, 0, {kChanging, kChange}, 1},
        {"click vetoed", 0, 1, kChanging, {kChanging}, 0},
        {"right twice", VK_RIGHT, 2, 0, {kKey, kChanging, kChange, kKey, kChanging, kChange}, 2},
        {"left on the first tab", VK_LEFT, 1, 0, {kKey}, 0},
    };
    for (const Row& row : rows) {
        TabParent tabParent;
        ASSERT_TRUE(tabParent.CreateEx(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 320, 220), parentWnd(), 7));
        Create(0, {L"One", L"Two", L"Three"}, &tabParent);
        tabParent.vetoCode = row.veto;
        const CPoint centre = Item(1).CenterPoint();
        for (int i = 0; i < row.presses; ++i) {
            if (row.key)
                tabs_.SendMessage(WM_KEYDOWN, row.key, 1);
            else
                tabs_.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(centre.x, centre.y));
        }
        EXPECT_EQ(tabParent.heard, row.heard) << row.input;
        EXPECT_EQ(tabs_.GetCurSel(), row.selected) << row.input;
        tabs_.DestroyWindow();
        tabParent.DestroyWindow();
    }
}
