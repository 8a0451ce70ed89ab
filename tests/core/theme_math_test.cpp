// Theme arithmetic checked with plain numbers: no window, no device context.
#include <gtest/gtest.h>

#include <climits>

#include "ZoThemeMath.h"
#include "ZoThemeTables.h"

using namespace ZoControls;

TEST(ThemeMath, ArgbToColorRefSwapsRedAndBlueAndDropsAlpha)
{
    EXPECT_EQ(ZoArgbToColorRef(0xFFFF0000ul), 0x000000FFul);
    EXPECT_EQ(ZoArgbToColorRef(0xFFD1D3E7ul), 0x00E7D3D1ul);
    EXPECT_EQ(ZoArgbToColorRef(0x12345678ul), 0x00785634ul);
    EXPECT_EQ(ZoArgbToColorRef(0x00000000ul), 0x00000000ul);
}

TEST(ThemeMath, ScalingRoundsByTruncatingAfterAddingAHalf)
{
    EXPECT_EQ(ZoScaleByZoom(100, 1.2f), 120);
    EXPECT_EQ(ZoScaleByZoom(7, 1.2f), 8);   // 8.4
    EXPECT_EQ(ZoScaleByZoom(9, 1.6f), 14);  // 14.4
    EXPECT_EQ(ZoScaleByZoom(10, 1.25f), 13); // 12.5 rounds up
    EXPECT_EQ(ZoScaleByZoom(0, 1.6f), 0);
    EXPECT_EQ(ZoScaleByZoom(-10, 1.2f), -11); // -11.5 truncates toward zero
}

TEST(ThemeMath, AbsurdScalingSaturates)
{
    EXPECT_EQ(ZoScaleByZoom(2000000000, 1.6f), INT_MAX);
    EXPECT_EQ(ZoScaleByZoom(-2000000000, 1.6f), INT_MIN);
    EXPECT_EQ(ZoScaleByZoom(5, 0.0f), 0);
}

TEST(ThemeMath, MonitorClassThresholdsAreExactAreas)
{
    EXPECT_EQ(ZoMonitorSizeForArea(0), ZoMonitorSize_Normal);
    EXPECT_EQ(ZoMonitorSizeForArea(-5), ZoMonitorSize_Normal);
    EXPECT_EQ(ZoMonitorSizeForArea(3145727), ZoMonitorSize_Normal);
    EXPECT_EQ(ZoMonitorSizeForArea(3145728), ZoMonitorSize_3M);
    EXPECT_EQ(ZoMonitorSizeForArea(5242879), ZoMonitorSize_3M);
    EXPECT_EQ(ZoMonitorSizeForArea(5242880), ZoMonitorSize_5M);
    EXPECT_EQ(ZoMonitorSizeForArea(3840LL * 2160), ZoMonitorSize_5M);
}

TEST(ThemeMath, FixedModeNumbersMapToSizeClasses)
{
    EXPECT_EQ(ZoMonitorSizeForFixedMode(1), ZoMonitorSize_Normal);
    EXPECT_EQ(ZoMonitorSizeForFixedMode(2), ZoMonitorSize_3M);
    EXPECT_EQ(ZoMonitorSizeForFixedMode(3), ZoMonitorSize_5M);
    for (int mode : {0, 4, -1})
        EXPECT_EQ(ZoMonitorSizeForFixedMode(mode), ZoMonitorSize_Unknown) << mode;
}

TEST(ThemeMath, ProfileFlagIsTrueOnlyForTheWordTrue)
{
    for (const wchar_t* word : {L"true", L"TRUE", L"True"})
        EXPECT_TRUE(ZoParseProfileFlag(word)) << word;
    for (const wchar_t* word : {L"yes", L"1", L"", L"tru", L"truest", L" true"})
        EXPECT_FALSE(ZoParseProfileFlag(word)) << word;
    EXPECT_FALSE(ZoParseProfileFlag(nullptr));
}

TEST(ThemeTables, EverySlotHasANameAndOutOfRangeHasNone)
{
    for (int slot = 0; slot < kZoColorSlotCount; ++slot)
        EXPECT_STRNE(ZoThemeColorName(slot), L"") << slot;
    EXPECT_STREQ(ZoThemeColorName(-1), L"");
    EXPECT_STREQ(ZoThemeColorName(130), L"");
}
