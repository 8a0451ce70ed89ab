#include "button_test_support.h"

#include <gdiplus.h>

#include "core/ZoLibrary.h"
#include "core/ZoThemeManager.h"

namespace buttontest {

void ControlTest::SetUp()
{
    Gdiplus::GdiplusStartupInput input;
    ASSERT_EQ(Gdiplus::GdiplusStartup(&gdiplusToken_, &input, nullptr), Gdiplus::Ok);
    initialized_ = InitializeZoCtrl();
    ASSERT_TRUE(initialized_);
    const RECT area = {40, 40, 440, 340};
    parent_ = zotest::CreateSolidWindow(area, kParentColor);
    ASSERT_NE(parent_, nullptr);
}

void ControlTest::TearDown()
{
    if (parent_)
        DestroyWindow(parent_);
    zotest::PumpUntilIdle(200);
    if (initialized_)
        UninitializeZoCtrl();
    if (gdiplusToken_)
        Gdiplus::GdiplusShutdown(gdiplusToken_);
}

COLORREF Slot(int slot)
{
    const ZoControls::CZoThemeManager* manager = ZoControls::CZoThemeManager::GetInstance();
    return manager ? manager->GetGDIColor(static_cast<ZoControls::E_ZoThemeColors>(slot), ZoControls::ZoTheme_Default)
                   : CLR_INVALID;
}

int CountPixels(const zotest::Dib& dib, const RECT& area, COLORREF color)
{
    int count = 0;
    for (int y = area.top; y < area.bottom; ++y)
        for (int x = area.left; x < area.right; ++x)
            if (x >= 0 && y >= 0 && x < dib.width() && y < dib.height() && dib.Pixel(x, y) == color)
                ++count;
    return count;
}

int CountPixels(const zotest::Dib& dib, COLORREF color)
{
    const RECT all = {0, 0, dib.width(), dib.height()};
    return CountPixels(dib, all, color);
}

HBITMAP MakeBitmap(int width, int height, COLORREF fill, COLORREF corner)
{
    zotest::Dib dib(width, height, fill);
    dib.SetPixel(0, 0, corner);
    // A copy the caller owns: the Dib's own bitmap ends with it.
    HDC screen = GetDC(nullptr);
    HBITMAP copy = CreateCompatibleBitmap(screen, width, height);
    HDC dc = CreateCompatibleDC(screen);
    HGDIOBJ old = SelectObject(dc, copy);
    BitBlt(dc, 0, 0, width, height, dib.dc(), 0, 0, SRCCOPY);
    SelectObject(dc, old);
    DeleteDC(dc);
    ReleaseDC(nullptr, screen);
    return copy;
}

} // namespace buttontest
