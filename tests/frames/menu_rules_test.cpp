// The plain rules behind the menus: packed item data, heights, measured sizes, mnemonics,
// operating-system classes, the open menu-bar item's shadow and colour mixing.
#include <gtest/gtest.h>

#include "frames/ZoMenuXP.h"

using namespace ZoControls;
using namespace ZoControls::ZoMenu_Internals;

TEST(MenuItemData, PacksHeightAcceleratorAndTextIntoBitsOfTheirWidth)
{
    EXPECT_EQ(PackItemData(22, 40, 300), 22u | (40u << 8) | (300u << 16));
    const DWORD data = PackItemData(22, 40, 300);
    EXPECT_EQ(ItemDataHeight(data), 22);
    EXPECT_EQ(ItemDataAccelWidth(data), 40);
    EXPECT_EQ(ItemDataTextWidth(data), 300);
    // Each field keeps only the bits of its width: an accelerator text 260 px wide keeps its low 8 bits: 4.
    EXPECT_EQ(ItemDataAccelWidth(PackItemData(20, 260, 10)), 4);
    EXPECT_EQ(ItemDataHeight(PackItemData(256 + 7, 0, 0)), 7);
    EXPECT_EQ(ItemDataTextWidth(PackItemData(0, 0, 0x12345)), 0x2345);
    EXPECT_EQ(ItemDataTextWidth(PackItemData(20, 300, 5)), 5);
}

TEST(MenuItemHeights, FollowTheFontHeight)
{
    EXPECT_EQ(PopupItemHeight(13), 20);  // 16 is the least before the 4 px padding
    EXPECT_EQ(PopupItemHeight(14), 20);
    EXPECT_EQ(PopupItemHeight(17), 23);
    EXPECT_EQ(PopupItemHeight(0), 20);
    EXPECT_EQ(SeparatorHeight(13), 8);
    EXPECT_EQ(SeparatorHeight(16), 10);
}

TEST(MenuMeasure, PopupItemsAddIconColumnAndAcceleratorSeparatorsAre42MenuBarItemsTextPlusFour)
{
    const struct {
        DWORD data;
        LONG cx, cy;
    } cases[] = {
        {PackItemData(22, 40, 100), 100 + 42 + 40, 22},
        {PackItemData(SeparatorHeight(16), 0, 0), 42, 10},
        {PackItemData(0, 0, 31), 35, 0},
    };
    for (const auto& c : cases) {
        const SIZE size = MeasuredItemSize(c.data);
        EXPECT_EQ(size.cx, c.cx) << std::hex << c.data;
        EXPECT_EQ(size.cy, c.cy) << std::hex << c.data;
    }
}

TEST(MenuMeasure, OnlyMenuItemsAreMeasured)
{
    MEASUREITEMSTRUCT measure = {};
    measure.CtlType = ODT_LISTBOX;
    measure.itemData = PackItemData(22, 0, 50);
    measure.itemWidth = 7;
    measure.itemHeight = 9;
    CMenuXP::OnMeasureItem(&measure);
    EXPECT_EQ(measure.itemWidth, 7u);
    EXPECT_EQ(measure.itemHeight, 9u);
    measure.CtlType = ODT_MENU;
    CMenuXP::OnMeasureItem(&measure);
    EXPECT_EQ(measure.itemWidth, 92u);
    EXPECT_EQ(measure.itemHeight, 22u);
    CMenuXP::OnMeasureItem(nullptr);
}

TEST(MenuMnemonic, AmpersandBeforeTheLetter)
{
    EXPECT_TRUE(TextHasMnemonic(L"&OPEN", L'O'));
    EXPECT_TRUE(TextHasMnemonic(L"SAVE &AS", L'A'));
    EXPECT_FALSE(TextHasMnemonic(L"SAVE &AS", L'S'));
    EXPECT_FALSE(TextHasMnemonic(L"OPEN&", L'O'));
    EXPECT_FALSE(TextHasMnemonic(L"", L'O'));
    EXPECT_FALSE(TextHasMnemonic(nullptr, L'O'));
    // A doubled ampersand is literal.
    EXPECT_FALSE(TextHasMnemonic(L"R&&D", L'D'));
    EXPECT_TRUE(TextHasMnemonic(L"R&&D &X", L'X'));
}

TEST(MenuBarShadow, DarkensFourColumnsWithSoftCorners)
{
    // Per column k (0 outermost) and row of a 20-row item: the percentage kept. Column 0 covers
    // rows 2 .. 17; column 1 starts at row 1; column 3 at row 0 and ends earlier.
    const struct {
        int column, row, percent;
    } cases[] = {
        {0, 1, 100}, {0, 2, 93}, {0, 17, 93}, {0, 18, 100}, {1, 0, 100}, {1, 1, 93}, {1, 2, 88}, {1, 5, 88},
        {3, 0, 93},  {3, 1, 88}, {3, 2, 83},  {3, 3, 78},   {3, 15, 78}, {3, 16, 100}, {4, 5, 100},
    };
    for (const auto& c : cases)
        EXPECT_EQ(MenuBarShadowPercent(c.column, c.row, 20), c.percent) << c.column << ", " << c.row;
}

TEST(MenuPopupFrame, JoinLineOnlyUnderTheOpenBarItem)
{
    const RECT bar = {100, 30, 150, 50};
    const RECT hanging = {98, 49, 300, 200};
    int from = 0;
    int to = 0;
    ASSERT_TRUE(PopupJoinLine(bar, hanging, from, to));
    EXPECT_EQ(from, 100 - 98 - 3);
    EXPECT_EQ(to, 150 - 98 - 5);
    const RECT elsewhere = {98, 60, 300, 200};
    EXPECT_FALSE(PopupJoinLine(bar, elsewhere, from, to));
    const RECT none = {0, 0, 0, 0};
    EXPECT_FALSE(PopupJoinLine(none, hanging, from, to));
}

TEST(MenuColors, SystemColoursStandInWithoutTheThemeManager)
{
    EXPECT_EQ(MenuColor(MenuColor_Background), ::GetSysColor(COLOR_MENU));
    EXPECT_EQ(MenuColor(MenuColor_Text), ::GetSysColor(COLOR_MENUTEXT));
}

TEST(MenuItemRect, OnlyRectanglesGdiCanAddressAreDrawn)
{
    const struct
    {
        RECT rect;
        bool drawable;
    } cases[] = {
        {{0, 0, 100, 20}, true},
        {{0, 0, 0, 20}, false},
        {{10, 0, 5, 20}, false},
        {{INT_MIN, 0, INT_MAX, 20}, false},
        {{0, INT_MIN, 100, INT_MAX}, false},
        {{0, 0, 0x7FFFFFF, 1}, true},
        {{-1, 0, 0x7FFFFFF, 1}, false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(IsDrawableItemRect(c.rect), c.drawable) << c.rect.left << "," << c.rect.top << "," << c.rect.right;
}
