// Drawing owner-drawn items through WM_DRAWITEM into a memory DC: the theme colours of plain,
// checked, highlighted, disabled and default items, separators, images, and menu-bar items.
#include "menu_test_support.h"

#include <commctrl.h>

#include <zotest/renderer.h>
#include <zotest/resource_counter.h>

using namespace ZoControls;
using namespace ZoControls::ZoMenu_Internals;
using namespace menutest;

namespace {

const int kWidth = 200;
const COLORREF kRed = RGB(255, 0, 0);

class MenuDrawTest : public MenuHostTest
{
protected:
    void SetUp() override
    {
        MenuHostTest::SetUp();
        const ItemSpec items[] = {
            {L"Open\tCtrl+O", 101, MF_STRING},
            {L"Word wrap", 102, MF_STRING | MF_CHECKED},
            {nullptr, 0, MF_SEPARATOR},
            {L"Large icons", 103, MF_STRING},
            {L"Locked", 104, MF_STRING | MF_GRAYED},
            {L"Properties", 105, MF_STRING},
        };
        menu = BuildPopup(items);
        ::CheckMenuRadioItem(menu, 103, 103, 103, MF_BYCOMMAND);
        ::SetMenuDefaultItem(menu, 105, FALSE);
        CMenuXP::SetXPLookNFeel(&host, menu, true, false);
        height = ItemDataHeight(ItemData(menu, 0));
    }

    // Draws the item at `position` into a fresh bitmap of its size, through the host.
    zotest::Dib Draw(int position, UINT state = 0, int itemHeight = 0)
    {
        const int h = itemHeight ? itemHeight : ItemDataHeight(ItemData(menu, position));
        zotest::Dib dib(kWidth, h);
        const MENUITEMINFOW info = ItemInfo(menu, position);
        DRAWITEMSTRUCT dis = {};
        dis.CtlType = ODT_MENU;
        dis.itemID = info.wID;
        dis.itemAction = ODA_DRAWENTIRE;
        dis.itemState = state;
        dis.hwndItem = reinterpret_cast<HWND>(menu);
        dis.hDC = dib.dc();
        dis.rcItem = {0, 0, kWidth, h};
        dis.itemData = info.dwItemData;
        host.SendMessage(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&dis));
        return dib;
    }

    // Draws the one item of a fresh menu bar ("File") or popup (`text`) instead of the fixture's menu.
    zotest::Dib DrawOnlyItem(bool menuBar, const wchar_t* text, UINT state, int itemHeight)
    {
        HMENU other = menuBar ? ::CreateMenu() : ::CreatePopupMenu();
        ::AppendMenuW(other, MF_STRING, 1, text);
        CMenuXP::SetXPLookNFeel(&host, other, true, menuBar);
        std::swap(other, menu);
        zotest::Dib dib = Draw(0, state, itemHeight);
        std::swap(other, menu);
        ::DestroyMenu(other);
        return dib;
    }

    int height = 0;
};

// A 16 x 16 image list holding one image filled with `color`.
HIMAGELIST SolidImageList(COLORREF color)
{
    HIMAGELIST list = ImageList_Create(16, 16, ILC_COLOR24, 1, 1);
    HDC screen = ::GetDC(nullptr);
    HBITMAP bitmap = ::CreateCompatibleBitmap(screen, 16, 16);
    HDC dc = ::CreateCompatibleDC(screen);
    HGDIOBJ old = ::SelectObject(dc, bitmap);
    const RECT all = {0, 0, 16, 16};
    HBRUSH brush = ::CreateSolidBrush(color);
    ::FillRect(dc, &all, brush);
    ::DeleteObject(brush);
    ::SelectObject(dc, old);
    ::DeleteDC(dc);
    ::ReleaseDC(nullptr, screen);
    ImageList_Add(list, bitmap, nullptr);
    ::DeleteObject(bitmap);
    return list;
}

// A red image shown beside command `id` for the life of the object.
class ScopedRedItemImage
{
public:
    explicit ScopedRedItemImage(UINT id) : id_(id), images_(SolidImageList(kRed))
    {
        CMenuXP::SetMenuItemImage(id_, images_, 0);
    }
    ~ScopedRedItemImage()
    {
        CMenuXP::SetMenuItemImage(id_, nullptr, -1);
        ImageList_Destroy(images_);
    }

private:
    UINT id_;
    HIMAGELIST images_;
};

} // namespace

TEST_F(MenuDrawTest, PlainItemHasBackgroundDividerAndTextRightOfTheColumn)
{
    const zotest::Dib dib = Draw(0);
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 0, 21, height}), Slot(68));
    ZOTEST_EXPECT_FILL(dib, (RECT{21, 0, 22, height}), Slot(70));
    ZOTEST_EXPECT_FILL(dib, (RECT{22, 0, kWidth, 1}), Slot(68));
    const RECT text = zotest::BoundsOfDifferences(dib.Crop(RECT{22, 0, kWidth, height}), Slot(68));
    EXPECT_GE(text.left + 22, 30);
    // The accelerator ends 12 px before the right edge.
    EXPECT_LE(text.right + 22, kWidth - 12);
    EXPECT_GT(text.right + 22, kWidth - 12 - MenuTextWidth(L"Ctrl+O"));
}

TEST_F(MenuDrawTest, CheckedItemFillsTheTextAreaAndShowsAMark)
{
    const zotest::Dib dib = Draw(1);
    ZOTEST_EXPECT_FILL(dib, (RECT{22, 0, kWidth, 1}), Slot(72));
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 0, 5, height}), Slot(68));
    ZOTEST_EXPECT_FILL(dib, (RECT{21, 0, 22, height}), Slot(70));
    const RECT mark = zotest::BoundsOfDifferences(dib.Crop(RECT{0, 0, 21, height}), Slot(68));
    EXPECT_FALSE(::IsRectEmpty(&mark));
    EXPECT_GE(mark.left, 5);
    EXPECT_LE(mark.right, 20);
    EXPECT_GE(mark.top, 3);
}

TEST_F(MenuDrawTest, HighlightedItemFillsRightOfTheColumnWithoutDivider)
{
    const zotest::Dib dib = Draw(0, ODS_SELECTED);
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 0, 22, height}), Slot(68));
    ZOTEST_EXPECT_FILL(dib, (RECT{22, 0, kWidth, 1}), Slot(71));
    ZOTEST_EXPECT_FILL(dib, (RECT{22, height - 1, kWidth, height}), Slot(71));
}

TEST_F(MenuDrawTest, SeparatorIsALineAtTheMiddle)
{
    const int h = ItemDataHeight(ItemData(menu, 2));
    const zotest::Dib dib = Draw(2);
    ZOTEST_EXPECT_FILL(dib, (RECT{22, h / 2, kWidth, h / 2 + 1}), Slot(70));
    ZOTEST_EXPECT_FILL(dib, (RECT{22, 0, kWidth, h / 2}), Slot(68));
    ZOTEST_EXPECT_FILL(dib, (RECT{22, h / 2 + 1, kWidth, h}), Slot(68));
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 0, 21, h}), Slot(68));
    ZOTEST_EXPECT_FILL(dib, (RECT{21, 0, 22, h}), Slot(70));
}

TEST_F(MenuDrawTest, ItemImageSitsAtThreePixels)
{
    ScopedRedItemImage image(101);
    const zotest::Dib dib = Draw(0);
    ZOTEST_EXPECT_FILL(dib, (RECT{3, 3, 19, 19}), kRed);
    ZOTEST_EXPECT_PIXEL(dib, 2, 2, Slot(68));
    ZOTEST_EXPECT_PIXEL(dib, 19, 19, Slot(68));
}

TEST_F(MenuDrawTest, DisabledImageIsAFlatSilhouette)
{
    ScopedRedItemImage image(104);
    const zotest::Dib dib = Draw(4);
    ZOTEST_EXPECT_PIXEL(dib, 10, 10, DisabledGlyphColor());
    ZOTEST_EXPECT_PIXEL(dib, 3, 3, DisabledGlyphColor());
    ZOTEST_EXPECT_PIXEL(dib, 2, 2, Slot(68));
}

TEST_F(MenuDrawTest, OpenMenuBarItemHasFrameFillAndShadow)
{
    const int h = 20;
    const zotest::Dib dib = DrawOnlyItem(true, L"File", ODS_SELECTED, h);
    const COLORREF edge = ::GetSysColor(COLOR_3DDKSHADOW);
    ZOTEST_EXPECT_PIXEL(dib, 0, 0, edge);
    ZOTEST_EXPECT_PIXEL(dib, kWidth - 5, h - 1, edge);
    ZOTEST_EXPECT_PIXEL(dib, 1, 1, OpenBarFillColor());
    // The shadow strip: back colour above the shadow, darkened from row 4 + i on.
    ZOTEST_EXPECT_FILL(dib, (RECT{kWidth - 4, 0, kWidth, 4}), Slot(68));
    ZOTEST_EXPECT_PIXEL(dib, kWidth - 1, 5, Slot(68));
    ZOTEST_EXPECT_PIXEL(dib, kWidth - 1, 6, ScaleColor(Slot(68), 93));
    ZOTEST_EXPECT_PIXEL(dib, kWidth - 4, 4, ScaleColor(Slot(68), 93));
    ZOTEST_EXPECT_PIXEL(dib, kWidth - 4, 10, ScaleColor(Slot(68), 78));

    CRect window;
    host.GetWindowRect(&window);
    const RECT recorded = CMenuXP::GetMRUMenuBarItem();
    EXPECT_EQ(CRect(recorded), CRect(window.left, window.top, window.left + kWidth, window.top + h));
}

TEST_F(MenuDrawTest, DrawingLeavesNoGdiObjectsBehind)
{
    ScopedRedItemImage image(101);
    ZOTEST_EXPECT_NO_LEAKS(5, [&] {
        for (int position = 0; position < 6; ++position) {
            Draw(position);
            Draw(position, ODS_SELECTED);
        }
    }, zotest::count_gdi);
}
