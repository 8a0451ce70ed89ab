// The skinned frame window: border thickness per size class, the client area inside it, the top
// border as drag area, the menu it refuses, its painted border, the windows it resizes, and no
// resources left behind.
#include <afxwin.h>

#include <commctrl.h>

#include <gtest/gtest.h>
#include <zotest/zotest.h>

#include "ZoLibrary.h"
#include "core/ZoThemeManager.h"
#include "frames/ZoFrameWnd.h"

using namespace ZoControls;

namespace {

const int kUnit = 9; // the border skin is 3 x 4 cells of 9 x 9
const CRect kPlace(60, 50, 60 + 320, 50 + 220);

class TestFrame : public CZoFrameWnd
{
public:
    explicit TestFrame(bool borderless = false) : CZoFrameWnd(borderless) {}
    using IZoUIBase::RegisterChildWindow;
    bool HasSkin() const { return m_pBorderSkin != nullptr; }

protected:
    // A pane, as a view would be, laid out by the frame in its client area.
    BOOL OnCreateClient(LPCREATESTRUCT, CCreateContext*) override
    {
        return ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 0, 0, 10, 10, m_hWnd,
                                 reinterpret_cast<HMENU>(static_cast<UINT_PTR>(AFX_IDW_PANE_FIRST)),
                                 ::GetModuleHandleW(nullptr), nullptr) != nullptr;
    }
};

// A window answering the size-class query with its reference data.
LRESULT CALLBACK AnswerSizeClass(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR size)
{
    if (message != ZoMsg_GetCurrentMonitorSize)
        return ::DefSubclassProc(window, message, wParam, lParam);
    *reinterpret_cast<int*>(lParam) = static_cast<int>(size);
    return 0;
}

class FrameTest : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(InitializeZoCtrl()); }
    void TearDown() override
    {
        owner_.Reset();
        UninitializeZoCtrl();
    }

    // A frame owned by a window of size class `size` (-1: no owner); frames delete themselves
    // when their window goes.
    CZoFrameWnd* Make(CZoFrameWnd* frame, DWORD style, int size = -1, HMENU menu = nullptr)
    {
        HWND owner = nullptr;
        if (size >= 0) {
            owner_.Reset(zotest::CreateSolidWindow(RECT{0, 0, 50, 50}, RGB(0, 0, 0)));
            ::SetWindowSubclass(owner_, AnswerSizeClass, 1, size);
            owner = owner_;
        }
        if (!frame->CreateEx(0, nullptr, L"Frame", style, kPlace.left, kPlace.top, kPlace.Width(), kPlace.Height(),
                             owner, menu, nullptr)) {
            ADD_FAILURE() << "frame not created";
            return nullptr;
        }
        windows_.Reset(frame->m_hWnd);
        return frame;
    }

    zotest::ScopedWindow owner_;
    zotest::ScopedWindow windows_;
};

// The non-client thickness of each side: left, top, right, bottom.
CRect NonClient(HWND window)
{
    CRect outer, inner;
    ::GetWindowRect(window, &outer);
    ::GetClientRect(window, &inner);
    ::MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&inner), 2);
    return CRect(inner.left - outer.left, inner.top - outer.top, outer.right - inner.right,
                 outer.bottom - inner.bottom);
}

} // namespace

TEST(FrameGeometry, BorderSizeClientRectAndHitCodes)
{
    EXPECT_EQ(ZoFrameBorderSize(1.0f, false), 5);
    EXPECT_EQ(ZoFrameBorderSize(1.2f, false), 6);
    EXPECT_EQ(ZoFrameBorderSize(1.6f, false), 8);
    EXPECT_EQ(ZoFrameBorderSize(1.6f, true), 0);

    EXPECT_EQ(CRect(ZoFrameClientRect(RECT{10, 20, 110, 220}, 5, 6)), CRect(15, 26, 105, 214));
    // Smaller than its border: empty at the border's inner edge, not inverted.
    EXPECT_EQ(CRect(ZoFrameClientRect(RECT{0, 0, 6, 4}, 5, 5)), CRect(5, 5, 5, 5));

    struct Row { LRESULT platform; bool skin; int y; LRESULT expected; };
    const Row rows[] = {
        {HTNOWHERE, true, 104, HTCAPTION},  // inside the 5-pixel top band of a window at y = 100
        {HTNOWHERE, true, 105, HTNOWHERE},  // just below it
        {HTNOWHERE, false, 101, HTNOWHERE}, // no skin: the platform's answer
        {HTCLIENT, true, 101, HTCLIENT},    // the platform's answer stands when it has one
        {HTLEFT, true, 150, HTLEFT},
    };
    for (const Row& row : rows)
        EXPECT_EQ(ZoFrameHitTest(row.platform, row.skin, row.y, 100, 5), row.expected) << row.y;
}

TEST(FrameGeometry, TenCellsWithLongSidesReachingIntoTheBottomRow)
{
    ZoFrameCell cells[kZoFrameCellCount];
    ZoFrameBorderCells(100, 60, 9, cells);
    const ZoFrameCell expected[kZoFrameCellCount] = {
        {0, 0, 0, 0, 9, 9},     {1, 0, 9, 0, 82, 9},   {2, 0, 91, 0, 9, 9},  {0, 1, 0, 9, 9, 9},
        {2, 1, 91, 9, 9, 9},    {0, 2, 0, 18, 9, 34},  {2, 2, 91, 18, 9, 34}, {0, 3, 0, 51, 9, 9},
        {1, 3, 9, 51, 82, 9},   {2, 3, 91, 51, 9, 9},
    };
    for (int i = 0; i < kZoFrameCellCount; ++i) {
        const ZoFrameCell& c = cells[i];
        const ZoFrameCell& e = expected[i];
        EXPECT_TRUE(c.column == e.column && c.row == e.row && c.x == e.x && c.y == e.y && c.w == e.w && c.h == e.h)
            << "cell " << i << ": (" << c.column << "," << c.row << ") at " << c.x << "," << c.y << " size " << c.w
            << "x" << c.h;
    }
    // A window smaller than the cells gives no negative sizes.
    ZoFrameBorderCells(10, 10, 9, cells);
    for (const ZoFrameCell& c : cells)
        EXPECT_TRUE(c.w >= 0 && c.h >= 0);
}

TEST_F(FrameTest, NonClientAreaIsTheBorderOfTheSizeClass)
{
    const int borders[] = {5, 6, 8};
    for (int size = 0; size < 3; ++size) {
        CZoFrameWnd* frame = Make(new TestFrame, WS_POPUP | WS_CAPTION | WS_THICKFRAME, size);
        ASSERT_TRUE(frame);
        EXPECT_EQ(frame->GetBorderWidth(), borders[size]);
        EXPECT_EQ(NonClient(frame->m_hWnd), CRect(borders[size], borders[size], borders[size], borders[size]))
            << "size class " << size;
        EXPECT_EQ(frame->GetStyle() & WS_BORDER, 0u);
        windows_.Reset();
    }
}

TEST_F(FrameTest, FactoryMadeFrameHasNoNonClientArea)
{
    CObject* object = RUNTIME_CLASS(CZoFrameWnd)->CreateObject();
    CZoFrameWnd* frame = Make(static_cast<CZoFrameWnd*>(object), WS_OVERLAPPEDWINDOW);
    ASSERT_TRUE(frame);
    EXPECT_TRUE(frame->IsBorderless());
    EXPECT_EQ(NonClient(frame->m_hWnd), CRect(0, 0, 0, 0));
}

TEST_F(FrameTest, ClientRectangleAfterNcCalcSizeAndPaneLaidOutInIt)
{
    TestFrame* frame = static_cast<TestFrame*>(Make(new TestFrame, WS_OVERLAPPEDWINDOW));
    ASSERT_TRUE(frame && frame->HasSkin());
    RECT proposed = {100, 200, 400, 300};
    frame->SendMessage(WM_NCCALCSIZE, FALSE, reinterpret_cast<LPARAM>(&proposed));
    EXPECT_EQ(CRect(proposed), CRect(105, 205, 395, 295));

    // The pane was laid out again once the skin's border replaced the platform's frame.
    CRect client, pane;
    frame->GetClientRect(&client);
    EXPECT_EQ(client.Size(), CSize(kPlace.Width() - 10, kPlace.Height() - 10));
    ::GetWindowRect(::GetDlgItem(frame->m_hWnd, AFX_IDW_PANE_FIRST), &pane);
    frame->ScreenToClient(&pane);
    EXPECT_EQ(pane, client);
}

TEST_F(FrameTest, MenuGivenAtCreationIsDestroyedAndNeverShown)
{
    HMENU menu = ::CreateMenu();
    ::AppendMenuW(menu, MF_STRING, 1, L"File");
    CZoFrameWnd* frame = Make(new TestFrame, WS_OVERLAPPEDWINDOW, -1, menu);
    ASSERT_TRUE(frame);
    EXPECT_FALSE(::IsMenu(menu));
    EXPECT_EQ(::GetMenu(frame->m_hWnd), nullptr);
}

TEST_F(FrameTest, TopBorderDragsAndItsDoubleClickDoesNotMaximize)
{
    CZoFrameWnd* frame = Make(new TestFrame, WS_POPUP | WS_SYSMENU | WS_MAXIMIZEBOX | WS_VISIBLE);
    ASSERT_TRUE(frame);
    const int middle = kPlace.CenterPoint().x;
    auto hit = [frame](int x, int y) { return frame->SendMessage(WM_NCHITTEST, 0, MAKELPARAM(x, y)); };
    EXPECT_EQ(hit(middle, kPlace.top), HTCAPTION);
    EXPECT_EQ(hit(middle, kPlace.top + 4), HTCAPTION);
    EXPECT_EQ(hit(middle, kPlace.top + 5), HTCLIENT);
    EXPECT_EQ(hit(middle, kPlace.bottom - 1), HTNOWHERE);
    EXPECT_EQ(hit(kPlace.left, kPlace.CenterPoint().y), HTNOWHERE);

    frame->SendMessage(WM_NCLBUTTONDBLCLK, HTCAPTION, MAKELPARAM(middle, kPlace.top + 1));
    zotest::PumpUntilIdle();
    EXPECT_FALSE(frame->IsZoomed());
    CRect window;
    frame->GetWindowRect(&window);
    EXPECT_EQ(window, kPlace);
}

TEST_F(FrameTest, BorderShowsTheSkinsCells)
{
    CZoFrameWnd* frame = Make(new TestFrame, WS_POPUP | WS_VISIBLE);
    ASSERT_TRUE(frame);
    HBITMAP hSkin = static_cast<HBITMAP>(::LoadImageW(::GetModuleHandleW(L"ZoCtrl.dll"), L"BMP_ZO_SKIN_FRAMEWNDBORDER",
                                                      IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
    ASSERT_TRUE(hSkin);
    const zotest::Dib skin = zotest::Dib::FromBitmap(hSkin);
    ::DeleteObject(hSkin);
    ASSERT_EQ(skin.width(), 3 * kUnit);

    const zotest::Dib dib = zotest::RenderWindow(frame->m_hWnd, zotest::RenderPath::Screen);
    const int w = kPlace.Width();
    const int h = kPlace.Height();
    const int b = frame->GetBorderWidth();
    ASSERT_EQ(b, 5);
    // Only the outer b pixels of each 9-pixel cell show. Corners cell for cell; the stretched
    // pieces against the middle of their cell (the skin's pieces repeat along their length).
    for (int d = 0; d < b; ++d) {
        for (int e = 0; e < b; ++e) {
            ZOTEST_EXPECT_PIXEL(dib, d, e, skin.Pixel(d, e));
            ZOTEST_EXPECT_PIXEL(dib, w - 1 - d, e, skin.Pixel(3 * kUnit - 1 - d, e));
            ZOTEST_EXPECT_PIXEL(dib, d, h - 1 - e, skin.Pixel(d, 4 * kUnit - 1 - e));
            ZOTEST_EXPECT_PIXEL(dib, w - 1 - d, h - 1 - e, skin.Pixel(3 * kUnit - 1 - d, 4 * kUnit - 1 - e));
        }
        ZOTEST_EXPECT_PIXEL(dib, w / 2, d, skin.Pixel(kUnit + kUnit / 2, d));
        ZOTEST_EXPECT_PIXEL(dib, w / 2, h - 1 - d, skin.Pixel(kUnit + kUnit / 2, 4 * kUnit - 1 - d));
        ZOTEST_EXPECT_PIXEL(dib, d, h / 2, skin.Pixel(d, 2 * kUnit + kUnit / 2));
        ZOTEST_EXPECT_PIXEL(dib, w - 1 - d, h / 2, skin.Pixel(3 * kUnit - 1 - d, 2 * kUnit + kUnit / 2));
        // The upper side pieces, row 1 of the skin.
        ZOTEST_EXPECT_PIXEL(dib, d, kUnit + kUnit / 2, skin.Pixel(d, kUnit + kUnit / 2));
    }

    // WM_PRINT with PRF_NONCLIENT draws the same border.
    const zotest::Dib printed = zotest::RenderWindow(frame->m_hWnd, zotest::RenderPath::Print);
    int different = 0;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            if ((x < b || y < b || x >= w - b || y >= h - b) && printed.Pixel(x, y) != dib.Pixel(x, y))
                ++different;
    EXPECT_EQ(different, 0);
}

TEST_F(FrameTest, RegisteredWindowsFollowTheFramesSize)
{
    TestFrame* frame = static_cast<TestFrame*>(Make(new TestFrame, WS_POPUP | WS_THICKFRAME, 1));
    ASSERT_TRUE(frame);
    CWnd* child = CWnd::FromHandle(zotest::CreateSolidWindow(RECT{0, 0, 5, 5}, RGB(1, 2, 3), frame->m_hWnd));
    ASSERT_TRUE(frame->RegisterChildWindow(child, CRect(10, 10, 110, 60), true));
    frame->SetWindowPos(nullptr, 0, 0, 400, 300, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    CRect placed;
    child->GetWindowRect(&placed);
    frame->ScreenToClient(&placed);
    EXPECT_EQ(placed, CRect(12, 12, 132, 72)); // size class 1: zoom 1.2
}

TEST_F(FrameTest, PopupMenusShownFromTheFrameAreOwnerDrawn)
{
    CZoFrameWnd* frame = Make(new TestFrame, WS_OVERLAPPEDWINDOW);
    ASSERT_TRUE(frame);
    EXPECT_NE(::GetPropW(frame->m_hWnd, L"XPWndProp_MenuXP"), nullptr);
    HMENU popup = ::CreatePopupMenu();
    ::AppendMenuW(popup, MF_STRING, 1, L"&Open");
    frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup), 0);
    MENUITEMINFOW info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE;
    ::GetMenuItemInfoW(popup, 0, TRUE, &info);
    EXPECT_TRUE(info.fType & MFT_OWNERDRAW);
    ::DestroyMenu(popup);
}

TEST_F(FrameTest, NoGrowthOverCreatePaintDestroyCycles)
{
    ZOTEST_EXPECT_NO_LEAKS(
        1000,
        [this]() {
            CZoFrameWnd* frame = Make(new TestFrame, WS_POPUP);
            if (!frame)
                return;
            frame->SendMessage(WM_NCPAINT, 1, 0);
            windows_.Reset();
        },
        zotest::count_gdi | zotest::count_user);
}
