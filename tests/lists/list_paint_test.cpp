// What the list and its header paint: cell fills, grid lines, the focus frame, images and check
// boxes in the theme's colours; header cells and sort arrows from the skin's own pixels; the
// header's hot and pressed looks and how a press ends when the header loses the mouse.
#include "list_test_support.h"

#include <zotest/zotest.h>

#include <cstdlib>

using namespace ZoControls;
using controltest::Slot;
using listtest::ListTest;
using listtest::Row;

namespace {

const std::vector<Row> kRows = {
    {{L"a", L"1", L"x"}}, {{L"b", L"2", L"y"}}, {{L"c", L"3", L"z"}}, {{L"d", L"4", L"w"}},
};

enum
{
    kBackground = 38,
    kGrid = 39,
    kSelectedRow = 40,
    kCellText = 42,
    kSelectedFocusRow = 43,
    kFocusFrame = 44
};

class ListPaintTest : public ListTest
{
protected:
    CRect Label(int item, int subItem)
    {
        CRect rect;
        list_->GetSubItemRect(item, subItem, LVIR_LABEL, rect);
        return rect;
    }
};

TEST_F(ListPaintTest, RowsFillGridAndFocusFrameInThemeColours)
{
    CZoListCtrl& list = MakeList(0, kRows);
    list.SetItemState(0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED);
    const zotest::Dib dib = zotest::RenderClient(list.GetSafeHwnd());
    const CRect focusRow = Label(0, 1), selectedRow = Label(1, 1), plainRow = Label(2, 1);
    const int x = focusRow.right - 6; // clear of the left-aligned text

    ZOTEST_EXPECT_PIXEL(dib, x, focusRow.CenterPoint().y, Slot(kSelectedFocusRow));
    ZOTEST_EXPECT_PIXEL(dib, x, selectedRow.CenterPoint().y, Slot(kSelectedRow));
    ZOTEST_EXPECT_PIXEL(dib, x, plainRow.CenterPoint().y, Slot(kBackground));
    // Unselected rows close with a grid line; every cell has grid lines left and right.
    ZOTEST_EXPECT_PIXEL(dib, x, plainRow.bottom - 1, Slot(kGrid));
    ZOTEST_EXPECT_PIXEL(dib, x, selectedRow.bottom - 1, Slot(kSelectedRow));
    ZOTEST_EXPECT_PIXEL(dib, plainRow.right - 1, plainRow.CenterPoint().y, Slot(kGrid));
    ZOTEST_EXPECT_PIXEL(dib, plainRow.left - 1, plainRow.CenterPoint().y, Slot(kGrid));

    // The focus frame surrounds the whole row: top and bottom - 2 in every cell, the sides in
    // the first and the last column.
    const CRect first = Label(0, 0), last = Label(0, 2);
    ZOTEST_EXPECT_PIXEL(dib, x, focusRow.top, Slot(kFocusFrame));
    ZOTEST_EXPECT_PIXEL(dib, x, focusRow.bottom - 2, Slot(kFocusFrame));
    ZOTEST_EXPECT_PIXEL(dib, first.left, first.CenterPoint().y, Slot(kFocusFrame));
    ZOTEST_EXPECT_PIXEL(dib, last.right - 1, last.CenterPoint().y, Slot(kFocusFrame));
    ZOTEST_EXPECT_PIXEL(dib, focusRow.right - 1, focusRow.CenterPoint().y, Slot(kGrid));
    // No frame on other rows.
    ZOTEST_EXPECT_PIXEL(dib, x, selectedRow.top, Slot(kSelectedRow));
}

// A column's alignment is read afresh by every paint: changed between two, the text moves.
TEST_F(ListPaintTest, CellTextFollowsItsColumnsAlignment)
{
    CZoListCtrl& list = MakeList(0, kRows);
    const CRect cell = Label(2, 1);
    // The leftmost pixel in the cell's text colour.
    const auto inkLeft = [&] {
        const zotest::Dib dib = zotest::RenderClient(list.GetSafeHwnd());
        for (int x = cell.left; x < cell.right; ++x)
            for (int y = cell.top; y < cell.bottom; ++y)
                if (dib.Pixel(x, y) == Slot(kCellText))
                    return static_cast<int>(x - cell.left);
        return -1;
    };
    const int left = inkLeft();
    ASSERT_GE(left, 0);
    LVCOLUMNW column = {};
    column.mask = LVCF_FMT;
    column.fmt = LVCFMT_RIGHT;
    list.SetColumn(1, &column);
    const int right = inkLeft();
    EXPECT_GT(right, left + cell.Width() / 2);
    column.fmt = LVCFMT_LEFT;
    list.SetColumn(1, &column);
    EXPECT_EQ(inkLeft(), left);
}

// Cell places are read afresh by every paint: a column width changed through the list or on the
// header itself, or a sideways scroll, between two paints, and the grid line is drawn anew.
TEST_F(ListPaintTest, CellsFollowWidthsAndScrollingChangedBetweenPaints)
{
    const struct
    {
        const char* change;
        void (*apply)(CZoListCtrl& list, HWND header);
    } cases[] = {
        {"list width", [](CZoListCtrl& list, HWND) { list.SetColumnWidth(1, 160); }},
        {"header width",
         [](CZoListCtrl&, HWND header) {
             HDITEMW item = {};
             item.mask = HDI_WIDTH;
             item.cxy = 40;
             ::SendMessageW(header, HDM_SETITEMW, 1, reinterpret_cast<LPARAM>(&item));
         }},
        {"scroll", [](CZoListCtrl& list, HWND) { list.Scroll(CSize(50, 0)); }},
    };
    for (const auto& c : cases) {
        CZoListCtrl& list = MakeList(0, kRows);
        list.SetColumnWidth(2, 900); // room to scroll sideways
        const CRect before = Label(2, 1);
        zotest::RenderClient(list.GetSafeHwnd());
        c.apply(list, header());
        const CRect after = Label(2, 1);
        ASSERT_GT(std::abs(after.right - before.right), 20) << c.change;
        const zotest::Dib dib = zotest::RenderClient(list.GetSafeHwnd());
        ZOTEST_EXPECT_PIXEL(dib, after.right - 1, after.CenterPoint().y, Slot(kGrid)) << c.change;
        ZOTEST_EXPECT_PIXEL(dib, before.right - 1, before.CenterPoint().y, Slot(kBackground)) << c.change;
        list.DestroyWindow();
    }
}

TEST_F(ListPaintTest, ColumnZeroDrawsTheSmallImageAndCheckBoxes)
{
    CZoListCtrl& list = MakeList(0, kRows);
    list.SetExtendedStyle(list.GetExtendedStyle() | LVS_EX_CHECKBOXES);
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR24, 1, 0));
    HBITMAP red = controltest::MakeBitmap(16, 16, RGB(220, 0, 0), RGB(220, 0, 0));
    CBitmap bitmap;
    bitmap.Attach(red);
    images.Add(&bitmap, static_cast<CBitmap*>(nullptr));
    list.SetImageList(&images, LVSIL_SMALL);
    for (int i = 0; i < 4; ++i)
        list.SetItem(i, 0, LVIF_IMAGE, nullptr, i == 3 ? 0 : -1, 0, 0, 0);
    list.SetCheck(1, TRUE);

    const zotest::Dib dib = zotest::RenderClient(list.GetSafeHwnd());
    CRect icon;
    list.GetSubItemRect(3, 0, LVIR_ICON, icon);
    const CRect label3 = Label(3, 0);
    const int imageLeft = std::min(icon.left, label3.left) - 1;
    ZOTEST_EXPECT_PIXEL(dib, imageLeft + 8, label3.CenterPoint().y, RGB(220, 0, 0));
    // A row without an image shows the background there.
    ZOTEST_EXPECT_PIXEL(dib, imageLeft + 8, Label(2, 0).CenterPoint().y, Slot(kBackground));

    // The checked box differs from the unchecked one of the next row.
    const CRect checked(2, Label(1, 0).top, 2 + Label(1, 0).Height(), Label(1, 0).bottom);
    const CRect unchecked(2, Label(2, 0).top, 2 + Label(2, 0).Height(), Label(2, 0).bottom);
    EXPECT_GT(controltest::Differences(dib.Crop(checked), dib.Crop(unchecked)), 0);
    list.SetImageList(nullptr, LVSIL_SMALL);
}

// --- Header ------------------------------------------------------------------------------------

class HeaderPaintTest : public ListPaintTest
{
protected:
    CRect Item(int index)
    {
        CRect rect;
        ::SendMessageW(header(), HDM_GETITEMRECT, index, reinterpret_cast<LPARAM>(&rect));
        return rect;
    }
    // The top-left corner of item `index` shows the header cell of `state`.
    testing::AssertionResult ItemIn(int index, int state)
    {
        const zotest::Dib dib = zotest::RenderClient(header());
        const CRect item = Item(index);
        return zotest::MatchesCell(dib, item.TopLeft(), strip_, zotest::CellRect(strip_, 12, 3, 3 * state, 0),
                                   controltest::kMagenta);
    }
    POINT Centre(int index) { return Item(index).CenterPoint(); }

    HBITMAP strip_ = Strip(L"BMP_ZO_HEADER");
    HBITMAP arrows_ = Strip(L"BMP_ZO_HEADERSORT");
};

TEST_F(HeaderPaintTest, ItemsAndTheEmptyAreaFromTheSkin)
{
    MakeList();
    const zotest::Dib dib = zotest::RenderClient(header());
    const CRect item = Item(1);
    const struct
    {
        POINT at;
        int column;
        int row;
    } cells[] = {
        {{item.left, item.top}, 0, 0},
        {{item.right - 3, item.top}, 2, 0},
        {{item.left, item.bottom - 6}, 0, 2},
        {{item.right - 3, item.bottom - 6}, 2, 2},
    };
    for (const auto& c : cells)
        EXPECT_TRUE(zotest::MatchesCell(dib, c.at, strip_, zotest::CellRect(strip_, 12, 3, c.column, c.row),
                                        controltest::kMagenta))
            << c.column << "," << c.row;
    // Right of the last item: the centre of an item in state 2 spread over the client widened by
    // 2 px on either side.
    const CRect last = Item(2);
    const int w = dib.width() + 4 - 6, h = dib.height() - 12;
    const zotest::Dib centre = controltest::StretchedCell(strip_, 12, 3, 7, 1, w, h, controltest::kMagenta);
    const RECT visible = {last.right, 6, dib.width() - 1, dib.height() - 6};
    EXPECT_TRUE(controltest::AreaMatches(dib, visible, centre.Crop(RECT{last.right - 1, 0, w, h})));
}

TEST_F(HeaderPaintTest, SortArrowFromTheSkinForEachDirection)
{
    CZoListCtrl& list = MakeList();
    const CRect item = Item(0);
    const POINT at = {item.right - 10, item.top + (item.Height() - 6) / 2};
    for (const bool ascending : {false, true})
    {
        list.SetSortOption(0, ascending);
        const zotest::Dib dib = zotest::RenderClient(header());
        EXPECT_TRUE(zotest::MatchesCell(dib, at, arrows_, zotest::CellRect(arrows_, 4, 2, 0, ascending ? 1 : 0),
                                        controltest::kMagenta))
            << ascending;
    }
    // A column too narrow for four arrows shows none.
    list.SetColumnWidth(0, 28);
    const zotest::Dib narrow = zotest::RenderClient(header());
    EXPECT_FALSE(zotest::MatchesCell(narrow, POINT{18, at.y}, arrows_, zotest::CellRect(arrows_, 4, 2, 0, 0),
                                     controltest::kMagenta));
}

// Hot and pressed items, but none on a header that does not sort.
TEST_F(HeaderPaintTest, HotAndPressedItemsOnlyWhereClicksSort)
{
    for (const DWORD style : {DWORD(0), DWORD(LVS_NOSORTHEADER)}) {
        const bool sorts = style == 0;
        MakeList(style);
        ::SendMessageW(header(), WM_MOUSEMOVE, 0, MAKELPARAM(Centre(1).x, Centre(1).y));
        EXPECT_TRUE(ItemIn(1, sorts ? 1 : 0)) << style;
        EXPECT_TRUE(ItemIn(0, 0));
        ::SendMessageW(header(), WM_MOUSELEAVE, 0, 0);
        EXPECT_TRUE(ItemIn(1, 0));
        ::SendMessageW(header(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(Centre(2).x, Centre(2).y));
        EXPECT_TRUE(ItemIn(2, sorts ? 3 : 0)) << style;
        ::SendMessageW(header(), WM_LBUTTONUP, 0, MAKELPARAM(Centre(2).x, Centre(2).y));
        EXPECT_TRUE(ItemIn(2, 0));
        ::ReleaseCapture();
        list_->DestroyWindow();
    }
}

TEST_F(HeaderPaintTest, LosingTheMouseEndsThePressWithoutSorting)
{
    for (const controltest::CaptureLoss how : controltest::kCaptureLosses)
    {
        CZoListCtrl& list = MakeList();
        zotest::ScopedWindow thief(zotest::CreateSolidWindow(RECT{0, 0, 10, 10}, RGB(0, 0, 0), parent()));
        ::SendMessageW(header(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(Centre(1).x, Centre(1).y));
        ASSERT_EQ(list.GetZoHeaderCtrl().GetPressedItem(), 1);
        controltest::LoseCapture(header(), how, thief.get());
        EXPECT_EQ(list.GetZoHeaderCtrl().GetPressedItem(), -1);
        EXPECT_TRUE(ItemIn(1, 0));
        ::SendMessageW(header(), WM_LBUTTONUP, 0, MAKELPARAM(Centre(1).x, Centre(1).y));
        int column = -1;
        bool ascending = false;
        EXPECT_FALSE(list.GetSortOption(column, ascending));
        ::ReleaseCapture();
    }
}

// Header drag rules: drag-and-drop follows the list's extended style; a locked first column is
// neither dragged nor has another column dropped before it.
TEST_F(HeaderPaintTest, DragRules)
{
    CZoListCtrl& list = MakeList();
    auto beginDrag = [&](int item) {
        ::SendMessageW(header(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(Centre(item).x, Centre(item).y));
        NMHEADERW notify = {};
        notify.hdr.hwndFrom = header();
        notify.hdr.code = HDN_BEGINDRAG;
        notify.iItem = item;
        const LRESULT result = list.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notify));
        return result;
    };
    auto endDrag = [&]() {
        NMHEADERW notify = {};
        notify.hdr.hwndFrom = header();
        notify.hdr.code = HDN_ENDDRAG;
        return list.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notify));
    };

    EXPECT_EQ(beginDrag(1), 1); // no LVS_EX_HEADERDRAGDROP
    ::ReleaseCapture();

    list.SetExtendedStyle(list.GetExtendedStyle() | LVS_EX_HEADERDRAGDROP);
    list.GetZoHeaderCtrl().SetFirstColumnLocked(true);
    EXPECT_EQ(beginDrag(0), 1);
    ::ReleaseCapture();
    EXPECT_EQ(beginDrag(1), 0);
    EXPECT_TRUE(list.GetZoHeaderCtrl().IsDragging());
    ASSERT_TRUE(zotest::MoveCursorTo(header(), Centre(0)));
    EXPECT_EQ(endDrag(), 1); // dropped onto the locked column
    EXPECT_FALSE(list.GetZoHeaderCtrl().IsDragging());
    EXPECT_EQ(list.GetZoHeaderCtrl().GetPressedItem(), -1);
    ::ReleaseCapture();
    EXPECT_EQ(beginDrag(2), 0);
    ASSERT_TRUE(zotest::MoveCursorTo(header(), Centre(1)));
    EXPECT_EQ(endDrag(), 0);
    ::ReleaseCapture();
}

} // namespace

namespace {

// Create, fill, sort, paint (cells through custom draw, the header) and destroy: nothing stays
// behind. The controls' shared leak table has no MFC parent to reflect custom draw, so the list
// runs its cycles here, under the reflecting test parent.
TEST_F(ListPaintTest, NoGrowthOverCreateFillPaintDestroyCycles)
{
    zotest::Dib canvas(330, 250);
    ZOTEST_EXPECT_NO_LEAKS(30, [this, &canvas]() {
        CZoListCtrl& list = MakeList(LVS_EDITLABELS, kRows);
        list.SetItemState(0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        list.SortOnColumn(1, false);
        list.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.dc()), PRF_CLIENT);
        ::SendMessageW(header(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.dc()), PRF_CLIENT);
        list.SendMessage(LVM_EDITLABELW, 1);
        list.DestroyWindow();
        list_.reset();
    });
    // The cycles did paint the cells.
    EXPECT_GT(controltest::CountPixels(canvas, Slot(kSelectedFocusRow)), 0);
}

} // namespace
