// Shared pieces of the button and static tests: GDI+ and the library around each test, a
// visible top-level parent, theme colours by slot and pixel counting.
#pragma once
#include <afxwin.h>

#include <gtest/gtest.h>
#include <zotest/zotest.h>

namespace buttontest {

// GDI+ and InitializeZoCtrl for the life of a test, and a visible parent window that paints
// itself in kParentColor.
class ControlTest : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    HWND parent() const { return parent_; }
    CWnd* parentWnd() const { return CWnd::FromHandle(parent_); }

private:
    ULONG_PTR gdiplusToken_ = 0;
    bool initialized_ = false;
    HWND parent_ = nullptr;
};

const COLORREF kParentColor = RGB(1, 2, 3);
const COLORREF kMagenta = RGB(255, 0, 255);

// Colour of theme slot `slot`, as the controls read it.
COLORREF Slot(int slot);

// How many pixels of `dib` inside `area` have exactly `color`.
int CountPixels(const zotest::Dib& dib, const RECT& area, COLORREF color);
int CountPixels(const zotest::Dib& dib, COLORREF color);

// A 24-bit bitmap of width x height filled with `fill`, pixel (0, 0) set to `corner`.
HBITMAP MakeBitmap(int width, int height, COLORREF fill, COLORREF corner);

} // namespace buttontest
