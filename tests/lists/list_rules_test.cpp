// The list's geometry and rules with numbers: header slices and arrow, cell rectangles, where
// the skinned bars go, the row ensure-visible scrolls to, the messages that move the bars.
#include <afxcmn.h>

#include <gtest/gtest.h>

#include "lists/ZoListGeometry.h"

using namespace ZoControls;

namespace {

bool Same(const RECT& a, const RECT& b)
{
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

TEST(HeaderGeometry, PressedWinsOverHot)
{
    EXPECT_EQ(ZoHeaderItemState(2, 2, 2), ZoHeaderState_Pressed);
    EXPECT_EQ(ZoHeaderItemState(2, -1, 2), ZoHeaderState_Hot);
    EXPECT_EQ(ZoHeaderItemState(1, 2, 3), ZoHeaderState_Normal);
}

TEST(HeaderGeometry, NineSlicesCoverTheItemWithTheStatesColumns)
{
    const RECT item = {10, 0, 110, 20};
    ZoHeaderPiece pieces[ZoHeaderPieceCount];
    ZoHeaderNineSlice(item, ZoHeaderState_Pressed, 3, 6, pieces);
    const struct
    {
        RECT dest;
        int column;
        int row;
    } expected[] = {
        {{10, 0, 13, 6}, 9, 0},    {{107, 0, 110, 6}, 11, 0},  {{10, 14, 13, 20}, 9, 2},
        {{107, 14, 110, 20}, 11, 2}, {{13, 0, 107, 6}, 10, 0}, {{13, 14, 107, 20}, 10, 2},
        {{10, 6, 13, 14}, 9, 1},   {{107, 6, 110, 14}, 11, 1}, {{13, 6, 107, 14}, 10, 1},
    };
    for (int i = 0; i < ZoHeaderPieceCount; ++i)
    {
        EXPECT_TRUE(Same(pieces[i].dest, expected[i].dest)) << "piece " << i;
        EXPECT_EQ(pieces[i].column, expected[i].column) << "piece " << i;
        EXPECT_EQ(pieces[i].row, expected[i].row) << "piece " << i;
    }
}

TEST(HeaderGeometry, ArrowOnlyWhenFourArrowsFit)
{
    const struct
    {
        int width;
        bool ascending;
        bool shown;
        RECT dest;
        int row;
        int textRight;
    } cases[] = {
        {100, false, true, {90, 7, 97, 13}, 0, 83}, // right - 10, vertically centred; text loses 17
        {100, true, true, {90, 7, 97, 13}, 1, 83},
        {29, false, true, {19, 7, 26, 13}, 0, 12},
        {28, false, false, {0, 0, 0, 0}, 0, 28}, // 4 x 7 is not less than 28
        {0, true, false, {0, 0, 0, 0}, 1, 0},
    };
    for (const auto& c : cases)
    {
        const RECT item = {0, 0, c.width, 20};
        const ZoHeaderArrow arrow = ZoHeaderArrowPlacement(item, ZoHeaderState_Hot, c.ascending, 7, 6);
        EXPECT_EQ(arrow.shown, c.shown) << c.width;
        EXPECT_EQ(arrow.textRight, c.textRight) << c.width;
        EXPECT_EQ(arrow.piece.row, c.row) << c.width;
        EXPECT_EQ(arrow.piece.column, ZoHeaderState_Hot);
        if (c.shown)
        {
            EXPECT_TRUE(Same(arrow.piece.dest, c.dest)) << c.width;
        }
    }
}

TEST(CellGeometry, CellStartsAtTheIconAndTextLeavesRoomForTheImage)
{
    const RECT label = {40, 20, 100, 36};
    const RECT icon = {22, 20, 38, 36};
    const RECT cell = ZoCellRect(label, icon);
    EXPECT_TRUE(Same(cell, RECT{22, 20, 100, 36}));
    EXPECT_TRUE(Same(ZoCellTextRect(cell, 16), RECT{38, 20, 98, 36}));
    EXPECT_TRUE(Same(ZoCellTextRect(cell, -1), RECT{24, 20, 98, 36}));
    // An icon right of the label (sub-items report an empty one) changes nothing.
    EXPECT_TRUE(Same(ZoCellRect(label, RECT{100, 20, 100, 36}), label));
}

TEST(ListGeometry, EnsureVisibleMakesTheItemTheLastVisibleRow)
{
    const int cases[][3] = {{0, 10, 0}, {5, 10, 0}, {9, 10, 0}, {10, 10, 1}, {25, 10, 16}, {3, 0, 4}, {-4, 10, 0}};
    for (const auto& c : cases)
        EXPECT_EQ(ZoEnsureVisibleTop(c[0], c[1]), c[2]) << c[0] << " page " << c[1];
}

TEST(ListGeometry, RowsTouchingTheBandsEdgeDoNotShow)
{
    // {row top, row bottom, place} against the band 20..60
    const int cases[][3] = {{0, 20, ZoRow_Above}, {0, 21, ZoRow_Shows}, {59, 77, ZoRow_Shows},
                            {60, 77, ZoRow_Below}, {10, 90, ZoRow_Shows}};
    for (const auto& c : cases)
        EXPECT_EQ(ZoRowPlace(c[0], c[1], 20, 60), c[2]) << c[0] << ".." << c[1];
}

TEST(ListGeometry, BarsRunAlongTheEdgesAndLeaveTheCorner)
{
    const RECT list = {10, 20, 210, 120};
    ZoListBarPlacement both = ZoPlaceListBars(list, true, true, 16, 17);
    EXPECT_TRUE(Same(both.horz, RECT{10, 104, 193, 120}));
    EXPECT_TRUE(Same(both.vert, RECT{193, 20, 210, 104}));
    EXPECT_TRUE(Same(both.corner, RECT{193, 104, 210, 120}));
    ZoListBarPlacement vertOnly = ZoPlaceListBars(list, false, true, 16, 17);
    EXPECT_TRUE(Same(vertOnly.vert, RECT{193, 20, 210, 120}));
    ZoListBarPlacement horzOnly = ZoPlaceListBars(list, true, false, 16, 17);
    EXPECT_TRUE(Same(horzOnly.horz, RECT{10, 104, 210, 120}));
}

TEST(ListGeometry, MessagesThatMoveTheScrollState)
{
    const struct
    {
        UINT message;
        WPARAM wParam;
        UINT code;
        bool moves;
    } cases[] = {
        {WM_KEYDOWN, VK_UP, 0, true},          {WM_KEYDOWN, VK_NEXT, 0, true},
        {WM_KEYDOWN, VK_END, 0, true},         {WM_KEYDOWN, VK_LEFT, 0, false},
        {WM_NOTIFY, 0, HDN_ITEMCHANGEDW, true}, {WM_NOTIFY, 0, HDN_ITEMCHANGINGA, true},
        {WM_NOTIFY, 0, HDN_ITEMCLICKW, false}, {LVM_INSERTITEMW, 0, 0, true},
        {LVM_DELETEITEM, 0, 0, true},          {LVM_DELETEALLITEMS, 0, 0, true},
        {LVM_INSERTCOLUMNA, 0, 0, true},       {LVM_DELETECOLUMN, 0, 0, true},
        {LVM_SETCOLUMNWIDTH, 0, 0, true},      {LVM_SETITEMTEXTW, 0, 0, false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ZoListMessageChangesScrollState(c.message, c.wParam, c.code), c.moves) << std::hex << c.message;
}

TEST(ListGeometry, ThumbStepsScrollRowsOrPixels)
{
    EXPECT_EQ(ZoListScrollPixels(10, 14, true, 17), 68);
    EXPECT_EQ(ZoListScrollPixels(14, 10, true, 17), -68);
    EXPECT_EQ(ZoListScrollPixels(100, 40, false, 17), -60);
    EXPECT_EQ(ZoListScrollPixels(5, 5, true, 0), 0);
}

} // namespace
