#include "scroll_test_support.h"

#include <gdiplus.h>

#include "core/ZoLibrary.h"
#include "core/ZoThemeManager.h"

#include <sstream>

namespace scrolltest {

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

void LibraryTest::SetUp()
{
    StartGdiplusOnce();
    initialized_ = InitializeZoCtrl();
    ASSERT_TRUE(initialized_);
}

void LibraryTest::TearDown()
{
    parent_.Reset();
    if (initialized_)
        UninitializeZoCtrl();
}

HWND LibraryTest::MakeParent(int w, int h, int x, int y)
{
    const RECT rect = {x, y, x + w, y + h};
    parent_.Reset(zotest::CreateSolidWindow(rect, kParentColor));
    return parent_.get();
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
    for (int y = area.top; y < area.bottom; ++y)
    {
        for (int x = area.left; x < area.right; ++x)
        {
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

COLORREF SlotColor(int slot)
{
    return ZoControls::CZoThemeManager::GetInstance()->GetGDIColor((ZoControls::E_ZoThemeColors)slot,
                                                                   ZoControls::ZoTheme_Default);
}

} // namespace scrolltest
