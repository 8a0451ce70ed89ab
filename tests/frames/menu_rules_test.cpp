// The plain rules behind the menus: packed item data, heights, measured sizes, mnemonics,
// operating-system classes, the open menu-bar item's shadow and colour mixing.
#include <gtest/gtest.h>

#include "frames/ZoMenuXP.h"

using namespace ZoControls;
using namespace ZoControls::ZoMenu_Internals;

TEST(MenuItemData, PacksHeightAcceleratorAndTextIntoTheirBits)
{
    EXPECT_EQ(PackItemData(22, 40, 300), 22u | (40u << 8) | (300u << 16));
    const DWORD data = PackItemData(22, 40, 300);
    EXPECT_EQ(ItemDataHeight(data), 22);
    EXPECT_EQ(ItemDataAccelWidth(data), 40);
    EXPECT_EQ(ItemDataTextWidth(data), 300);
}

TEST(MenuItemData, EachFieldKeepsOnlyTheBitsOfItsWidth)
{
    // An accelerator text 260 px wide keeps its low 8 bits: 4.
    EXPECT_EQ(ItemDataAccelWidth(PackItemData(20, 260, 10)), 4);
    EXPECT_EQ(ItemDataHeight(PackItemData(256 + 7, 0, 0)), 7);
    EXPECT_EQ(ItemDataTextWidth(PackItemData(0, 0, 0x12345)), 0x2345);
    EXPECT_EQ(ItemDataTextWidth(PackItemData(20, 300, 5)), 5);
}

TEST(MenuItemData, MenuBarItemsCarryNoHeight)
{
    EXPECT_TRUE(IsMenuBarItemData(PackItemData(0, 0, 35)));
    EXPECT_FALSE(IsMenuBarItemData(PackItemData(8, 0, 0)));
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

TEST(MenuMeasure, PopupItemsAddIconColumnAndAccelerator)
{
    const SIZE size = MeasuredItemSize(PackItemData(22, 40, 100));
    EXPECT_EQ(size.cx, 100 + 42 + 40);
    EXPECT_EQ(size.cy, 22);
}

TEST(MenuMeasure, SeparatorsAre42PixelsWide)
{
    const SIZE size = MeasuredItemSize(PackItemData(SeparatorHeight(16), 0, 0));
    EXPECT_EQ(size.cx, 42);
    EXPECT_EQ(size.cy, 10);
}

TEST(MenuMeasure, MenuBarItemsAreTheirTextPlusFour)
{
    const SIZE size = MeasuredItemSize(PackItemData(0, 0, 31));
    EXPECT_EQ(size.cx, 35);
    EXPECT_EQ(size.cy, 0);
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
}

TEST(MenuMnemonic, DoubledAmpersandIsLiteral)
{
    EXPECT_FALSE(TextHasMnemonic(L"R&&D", L'D'));
    EXPECT_TRUE(TextHasMnemonic(L"R&&D &X", L'X'));
}

TEST(MenuOsClass, FromPlatformAndVersion)
{
    EXPECT_EQ(OsClassFromVersion(VER_PLATFORM_WIN32s, 3, 1), 1);
    EXPECT_EQ(OsClassFromVersion(VER_PLATFORM_WIN32_WINDOWS, 4, 0), 2);
    EXPECT_EQ(OsClassFromVersion(VER_PLATFORM_WIN32_WINDOWS, 4, 10), 3);
    EXPECT_EQ(OsClassFromVersion(VER_PLATFORM_WIN32_WINDOWS, 4, 90), 4);
    EXPECT_EQ(OsClassFromVersion(VER_PLATFORM_WIN32_NT, 4, 0), 6);
    EXPECT_EQ(OsClassFromVersion(VER_PLATFORM_WIN32_NT, 5, 0), 7);
    EXPECT_EQ(OsClassFromVersion(VER_PLATFORM_WIN32_NT, 5, 1), 8);
    EXPECT_EQ(OsClassFromVersion(VER_PLATFORM_WIN32_NT, 5, 2), 5);
    EXPECT_EQ(OsClassFromVersion(VER_PLATFORM_WIN32_NT, 6, 0), 9);
    EXPECT_EQ(OsClassFromVersion(VER_PLATFORM_WIN32_NT, 6, 1), 9);
    EXPECT_EQ(OsClassFromVersion(VER_PLATFORM_WIN32_NT, 6, 2), 11);
    EXPECT_EQ(OsClassFromVersion(VER_PLATFORM_WIN32_NT, 6, 3), 11);
    EXPECT_EQ(OsClassFromVersion(VER_PLATFORM_WIN32_NT, 6, 4), 5);
    EXPECT_EQ(OsClassFromVersion(VER_PLATFORM_WIN32_NT, 10, 0), 12);
    EXPECT_EQ(OsClassFromVersion(VER_PLATFORM_WIN32_NT, 3, 51), 5);
    EXPECT_EQ(OsClassFromVersion(77, 6, 1), 0);
    EXPECT_GE(CMenuXP::GetOsClass(), 1);
}

TEST(MenuBarShadow, DarkensFourColumnsWithSoftCorners)
{
    // Outermost column (k = 0): rows 2 .. height - 3, all at 93 %.
    EXPECT_EQ(MenuBarShadowPercent(0, 1, 20), 100);
    EXPECT_EQ(MenuBarShadowPercent(0, 2, 20), 93);
    EXPECT_EQ(MenuBarShadowPercent(0, 17, 20), 93);
    EXPECT_EQ(MenuBarShadowPercent(0, 18, 20), 100);
    // k = 1 starts at row 1; k = 3 at row 0 and ends earlier.
    EXPECT_EQ(MenuBarShadowPercent(1, 0, 20), 100);
    EXPECT_EQ(MenuBarShadowPercent(1, 1, 20), 93);
    EXPECT_EQ(MenuBarShadowPercent(1, 2, 20), 88);
    EXPECT_EQ(MenuBarShadowPercent(1, 5, 20), 88);
    EXPECT_EQ(MenuBarShadowPercent(3, 0, 20), 93);
    EXPECT_EQ(MenuBarShadowPercent(3, 1, 20), 88);
    EXPECT_EQ(MenuBarShadowPercent(3, 2, 20), 83);
    EXPECT_EQ(MenuBarShadowPercent(3, 3, 20), 78);
    EXPECT_EQ(MenuBarShadowPercent(3, 15, 20), 78);
    EXPECT_EQ(MenuBarShadowPercent(3, 16, 20), 100);
    EXPECT_EQ(MenuBarShadowPercent(4, 5, 20), 100);
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

TEST(MenuColors, MixingTowardsWhiteAndBlack)
{
    EXPECT_EQ(LightenColor(RGB(100, 0, 255), 50), RGB(177, 127, 255));
    EXPECT_EQ(LightenColor(RGB(10, 20, 30), 0), RGB(10, 20, 30));
    EXPECT_EQ(LightenColor(RGB(10, 20, 30), 150), RGB(255, 255, 255));
    EXPECT_EQ(DarkenColor(RGB(100, 200, 50), 30), RGB(70, 140, 35));
    EXPECT_EQ(DarkenColor(RGB(100, 200, 50), -5), RGB(100, 200, 50));
    EXPECT_EQ(ScaleColor(RGB(0x47, 0x47, 0x47), 93), RGB(66, 66, 66));
}

TEST(MenuColors, SystemColoursStandInWithoutTheThemeManager)
{
    EXPECT_EQ(MenuColor(MenuColor_Background), ::GetSysColor(COLOR_MENU));
    EXPECT_EQ(MenuColor(MenuColor_Text), ::GetSysColor(COLOR_MENUTEXT));
}
