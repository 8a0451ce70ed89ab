#include "controls_test_support.h"

#include <gdiplus.h>

#include <sstream>

#include "ZoLibrary.h"
#include "core/ZoThemeManager.h"

namespace controltest {

namespace {

void StartGdiplusOnce()
{
    static ULONG_PTR token = 0;
    if (token)
        return;
    Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&token, &input, nullptr);
}

HMODULE LibraryModule()
{
    HMODULE module = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         reinterpret_cast<LPCWSTR>(&InitializeZoCtrl), &module);
    return module;
}

} // namespace

void ControlTest::SetUp()
{
    StartGdiplusOnce();
    initialized_ = InitializeZoCtrl();
    ASSERT_TRUE(initialized_);
    const RECT area = {40, 40, 440, 340};
    parent_.Reset(zotest::CreateSolidWindow(area, kParentColor));
    ASSERT_NE(parent_.get(), nullptr);
}

void ControlTest::TearDown()
{
    parent_.Reset();
    zotest::PumpUntilIdle(200);
    for (HBITMAP strip : strips_)
        ::DeleteObject(strip);
    strips_.clear();
    if (initialized_)
        UninitializeZoCtrl();
}

HBITMAP ControlTest::Strip(const wchar_t* name)
{
    strips_.push_back(LoadLibraryBitmap(name));
    EXPECT_NE(strips_.back(), nullptr) << "no bitmap resource";
    return strips_.back();
}

void ControlTest::MakeButton(CButton& button, const wchar_t* text, DWORD style, const RECT& rect)
{
    ASSERT_TRUE(button.Create(text, WS_CHILD | WS_VISIBLE | style, rect, parentWnd(), 300));
}

HWND ControlTest::MakeNative(const wchar_t* windowClass, DWORD style, const RECT& rect)
{
    return ::CreateWindowExW(0, windowClass, L"", WS_CHILD | WS_VISIBLE | style, rect.left, rect.top,
                             rect.right - rect.left, rect.bottom - rect.top, parent(),
                             reinterpret_cast<HMENU>(static_cast<INT_PTR>(kNativeId)), nullptr, nullptr);
}

void ReflectingParentTest::SetUp()
{
    ControlTest::SetUp();
    ASSERT_TRUE(host_.SubclassWindow(parent()));
}

void ReflectingParentTest::TearDown()
{
    if (host_.GetSafeHwnd())
        host_.UnsubclassWindow();
    ControlTest::TearDown();
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

int Differences(const zotest::Dib& a, const zotest::Dib& b)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            count += a.Pixel(x, y) != b.Pixel(x, y);
    return count;
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

HBITMAP LoadLibraryBitmap(const wchar_t* name)
{
    return static_cast<HBITMAP>(::LoadImageW(LibraryModule(), name, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
}

zotest::Dib StretchedCell(HBITMAP strip, int columns, int rows, int column, int row, int w, int h, COLORREF fill)
{
    zotest::Dib dib(w, h, fill);
    const RECT cell = zotest::CellRect(strip, columns, rows, column, row);
    HDC source = ::CreateCompatibleDC(dib.dc());
    HGDIOBJ old = ::SelectObject(source, strip);
    ::TransparentBlt(dib.dc(), 0, 0, w, h, source, cell.left, cell.top, cell.right - cell.left,
                     cell.bottom - cell.top, kMagenta);
    ::SelectObject(source, old);
    ::DeleteDC(source);
    return dib;
}

testing::AssertionResult AreaMatches(const zotest::Dib& dib, const RECT& area, const zotest::Dib& expected)
{
    int wrong = 0;
    std::ostringstream first;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            const COLORREF want = expected.Pixel(x - area.left, y - area.top);
            const COLORREF got = dib.Pixel(x, y);
            if (want != got && wrong++ == 0)
                first << "(" << x << ", " << y << ") is " << zotest::ColorText(got) << ", expected "
                      << zotest::ColorText(want);
        }
    }
    if (wrong == 0)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << wrong << " pixels differ, first " << first.str();
}

void LoseCapture(HWND control, CaptureLoss how, HWND thief)
{
    if (how == CaptureLoss::OtherWindow)
        ::SetCapture(thief);
    else
        ::SendMessageW(control, WM_CANCELMODE, 0, 0);
}

} // namespace controltest
