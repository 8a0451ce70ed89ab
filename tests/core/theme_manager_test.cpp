// The theme manager seen from outside: colours by slot, fonts by role and size class,
// zoom factors, and the library's start and end.
#include <gtest/gtest.h>

#include <zotest/resource_counter.h>

#include "core_test_support.h"

using namespace ZoControls;
using coretest::ScopedZoCtrl;

namespace {

// Theme 0's slots as COLORREF, in slot order.
const COLORREF kExpectedSlots[130] = {
    0x474747, 0x7E7E7E, 0xFFFFFF, 0x000000, 0x2B2B2B, 0xE7D3D1, 0xF3E9E8, 0xE7D3D1, 0xC5B0AE, 0xE7E7E7,
    0xE7E7E7, 0xE7E7E7, 0x7E7E7E, 0x656565, 0x7E7E7E, 0x836146, 0x585858, 0x585858, 0x393939, 0x393939,
    0x393939, 0x393939, 0x404040, 0x474747, 0x836146, 0xA05626, 0xA05626, 0x474747, 0x2F2F2F, 0x2F2F2F,
    0x393939, 0xFFFFFF, 0x7E7E7E, 0xACACAC, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0x919191, 0x1E1E1E, 0x393939,
    0x5F4529, 0xE7E7E7, 0xE7E7E7, 0x5F4529, 0xACACAC, 0x1E1E1E, 0x1E1E1E, 0xA77A4A, 0x474747, 0x2F2F2F,
    0xE7E7E7, 0x474747, 0x2B2B2B, 0x474747, 0xFFFFFF, 0x474747, 0xFFFFFF, 0x656565, 0xC8C8C8, 0x2B2B2B,
    0x1E1E1E, 0x2F2F2F, 0xA77A4A, 0x474747, 0x000000, 0x585858, 0x2B2B2B, 0xFFFFFF, 0x474747, 0x000000,
    0x2F2F2F, 0x656565, 0x836146, 0xC8C8C8, 0x474747, 0xE7E7E7, 0x474747, 0x474747, 0x1E1E1E, 0x474747,
    0x1E1E1E, 0x474747, 0x000000, 0x000000, 0xACACAC, 0xC8C8C8, 0xA77A4A, 0xE7E7E7, 0x7E7E7E, 0xACACAC,
    0x2F2F2F, 0x2F2F2F, 0x2F2F2F, 0xC8C8C8, 0x656565, 0x656565, 0x7E7E7E, 0x836146, 0xC8C8C8, 0x656565,
    0x656565, 0xFFD97E, 0x474747, 0x393939, 0x2F2F2F, 0x474747, 0x474747, 0x585858, 0xA77A4A, 0x393939,
    0x656565, 0x656565, 0xA77A4A, 0x474747, 0x2B2B2B, 0x836146, 0x5F4529, 0x2B2B2B, 0x7E7E7E, 0xFFFFFF,
    0xA77A4A, 0x393939, 0x585858, 0xA77A4A, 0xA77A4A, 0x656565, 0xACACAC, 0x000000, 0x585858, 0x0000FF,
};

struct FontRow
{
    const wchar_t* face;
    bool bold;
    int escapement;
    int heights[3];
};

const FontRow kExpectedFonts[14] = {
    {L"Segoe UI", false, 0, {9, 11, 15}},  {L"Segoe UI", false, 0, {11, 13, 17}},
    {L"Segoe UI", false, 0, {12, 15, 19}}, {L"Segoe UI", false, 0, {13, 16, 21}},
    {L"Segoe UI", false, 0, {15, 17, 24}}, {L"Segoe UI", false, 0, {16, 19, 25}},
    {L"Segoe UI", false, 0, {17, 21, 28}}, {L"Segoe UI", false, 0, {19, 23, 29}},
    {L"Segoe UI", true, 0, {9, 11, 15}},   {L"Segoe UI", true, 0, {11, 13, 17}},
    {L"Segoe UI", true, 0, {12, 15, 19}},  {L"Segoe UI", true, 0, {13, 16, 21}},
    {L"Segoe UI", true, 0, {15, 17, 24}},  {L"Segoe UI", false, 900, {9, 11, 15}},
};

E_ZoThemeColors Slot(int slot)
{
    return static_cast<E_ZoThemeColors>(slot);
}

} // namespace

TEST(ThemeManagerLifetime, InstanceExistsOnlyBetweenInitializeAndUninitialize)
{
    EXPECT_EQ(CZoThemeManager::GetInstance(), nullptr);
    {
        ScopedZoCtrl library;
        EXPECT_TRUE(library.initialized());
        EXPECT_NE(CZoThemeManager::GetInstance(), nullptr);
    }
    EXPECT_EQ(CZoThemeManager::GetInstance(), nullptr);
}

TEST(ThemeManagerLifetime, FreeInstanceWithoutInstanceIsHarmless)
{
    CZoThemeManager::FreeInstance();
    UninitializeZoCtrl();
    EXPECT_EQ(CZoThemeManager::GetInstance(), nullptr);
}

TEST(ThemeManagerLifetime, RepeatedStartAndEndLeaksNoGdiObjects)
{
    ZOTEST_EXPECT_NO_LEAKS(2, [] {
        ASSERT_TRUE(InitializeZoCtrl());
        UninitializeZoCtrl();
    }, zotest::count_gdi);
}

class ThemeManagerTest : public testing::Test
{
protected:
    void SetUp() override { ASSERT_NE(manager, nullptr); }
    ScopedZoCtrl library;
    const CZoThemeManager* manager = CZoThemeManager::GetInstance();
};

TEST_F(ThemeManagerTest, EverySlotHasItsTableColourWhateverTheTheme)
{
    for (E_ZoTheme theme : {ZoTheme_Default, ZoTheme_1, ZoTheme_2, static_cast<E_ZoTheme>(77)})
        for (int slot = 0; slot < 130; ++slot) {
            SCOPED_TRACE(testing::Message() << "theme " << theme << " slot " << slot);
            EXPECT_EQ(manager->GetGDIColor(Slot(slot), theme), kExpectedSlots[slot]);
            const Gdiplus::Color color = manager->GetGDIPlusColor(Slot(slot), theme);
            EXPECT_EQ(color.GetA(), 0xFF);
            EXPECT_EQ(color.ToCOLORREF(), kExpectedSlots[slot]);
        }
}

TEST_F(ThemeManagerTest, SlotsOutsideTheTableGiveBlack)
{
    EXPECT_EQ(manager->GetGDIColor(Slot(-1), ZoTheme_Default), 0u);
    EXPECT_EQ(manager->GetGDIColor(Slot(130), ZoTheme_Default), 0u);
    EXPECT_EQ(manager->GetGDIPlusColor(Slot(5000), ZoTheme_Default).GetValue(), 0xFF000000u);
}

TEST_F(ThemeManagerTest, ZoomFactorPerSizeClassIncludingUnknown)
{
    const float expected[] = {1.0f, 1.2f, 1.6f};
    for (int size = -1; size < 10; ++size)
        EXPECT_FLOAT_EQ(manager->GetZoomFactor(static_cast<E_ZoMonitorSize>(size)),
                        size >= 0 && size < 3 ? expected[size] : 1.0f) << size;
}

TEST_F(ThemeManagerTest, EveryRoleAndSizeClassHasTheTableHeightAndStyle)
{
    for (int role = 0; role < 14; ++role) {
        const FontRow& row = kExpectedFonts[role];
        for (int size = 0; size < 3; ++size) {
            SCOPED_TRACE(testing::Message() << "role " << role << " size class " << size);
            const LOGFONTW font = coretest::CachedLogFont(role, size);
            EXPECT_EQ(font.lfHeight, -row.heights[size]);
            EXPECT_EQ(font.lfWeight, row.bold ? FW_BOLD : FW_NORMAL);
            EXPECT_EQ(font.lfItalic, 0);
            EXPECT_EQ(font.lfEscapement, row.escapement);
            EXPECT_EQ(font.lfCharSet, DEFAULT_CHARSET);
            EXPECT_EQ(font.lfQuality, PROOF_QUALITY);
            EXPECT_EQ(std::wstring(font.lfFaceName), coretest::ExpectedFace(row.face));
        }
    }
}

TEST_F(ThemeManagerTest, EachCacheSlotIsItsOwnFontAndOutsideTheCacheThereIsNone)
{
    const CFont* first = manager->GetCacheGDIFont(ZoThemeFont_0, ZoMonitorSize_Normal);
    ASSERT_NE(first, nullptr);
    EXPECT_NE(first, manager->GetCacheGDIFont(ZoThemeFont_0, ZoMonitorSize_3M));
    EXPECT_NE(first->GetSafeHandle(), manager->GetCacheGDIFont(ZoThemeFont_8, ZoMonitorSize_Normal)->GetSafeHandle());
    EXPECT_EQ(manager->GetCacheGDIFont(static_cast<E_ZoThemeFont>(14), ZoMonitorSize_Normal), nullptr);
    EXPECT_EQ(manager->GetCacheGDIFont(ZoThemeFont_0, ZoMonitorSize_Unknown), nullptr);
    EXPECT_EQ(manager->GetCacheGDIFont(ZoThemeFont_0, static_cast<E_ZoMonitorSize>(3)), nullptr);
}
