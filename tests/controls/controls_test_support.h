// Shared pieces of the control tests: GDI+ and the library around each test with a visible
// parent window, theme colours by slot, pixel counting and comparison, and skin cells of
// ZoCtrl.dll drawn the way a control draws them.
#pragma once
#include <afxwin.h>

#include <vector>

#include <gtest/gtest.h>
#include <zotest/zotest.h>

namespace controltest {

const COLORREF kParentColor = RGB(10, 200, 30);
const COLORREF kMagenta = RGB(255, 0, 255);

// GDI+ (started once for the program) and InitializeZoCtrl for the life of a test, and a
// visible top-level parent 400 x 300 at (40, 40) of the screen that paints itself in kParentColor;
// destroying it at the end takes every control made in it along.
class ControlTest : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    HWND parent() const { return parent_.get(); }
    CWnd* parentWnd() const { return CWnd::FromHandle(parent_.get()); }
    // A visible button of any CButton class in the parent, 80 x 24 at (10, 10) unless told.
    void MakeButton(CButton& button, const wchar_t* text, DWORD style, const RECT& rect = RECT{10, 10, 90, 34});
    // A visible platform control of window class `windowClass` in the parent with id kNativeId,
    // for attaching a skinned class to it.
    HWND MakeNative(const wchar_t* windowClass, DWORD style, const RECT& rect);
    static const int kNativeId = 101;
    // Bitmap resource `name` of ZoCtrl.dll, deleted after the test.
    HBITMAP Strip(const wchar_t* name);

private:
    bool initialized_ = false;
    std::vector<HBITMAP> strips_;
    zotest::ScopedWindow parent_;
};

// ControlTest whose parent is also an MFC window, so that it reflects WM_CTLCOLOR and control
// notifications to the MFC controls in it, as an MFC dialog does.
class ReflectingParentTest : public ControlTest
{
protected:
    void SetUp() override;
    void TearDown() override;

    CWnd* host() { return &host_; }

private:
    CWnd host_;
};

// Theme 0's colour of `slot`, as the controls read it.
COLORREF Slot(int slot);

// How many pixels of `dib` (inside `area`) have exactly `color`.
int CountPixels(const zotest::Dib& dib, const RECT& area, COLORREF color);
int CountPixels(const zotest::Dib& dib, COLORREF color);
// How many pixels differ between two images of the same size.
int Differences(const zotest::Dib& a, const zotest::Dib& b);

// A 24-bit bitmap of width x height filled with `fill`, pixel (0, 0) set to `corner`; the caller
// deletes it.
HBITMAP MakeBitmap(int width, int height, COLORREF fill, COLORREF corner);

// Bitmap resource `name` of ZoCtrl.dll, or null; the caller deletes it.
HBITMAP LoadLibraryBitmap(const wchar_t* name);

// `w` x `h` of `fill` with cell (column, row) of a columns x rows strip stretched over it,
// magenta left out: what a control draws for that cell at that size.
zotest::Dib StretchedCell(HBITMAP strip, int columns, int rows, int column, int row, int w, int h, COLORREF fill);

// The pixels of `area` of `dib` equal those of `expected` from (0, 0).
testing::AssertionResult AreaMatches(const zotest::Dib& dib, const RECT& area, const zotest::Dib& expected);

// The two ways a control loses the mouse in the middle of a press or drag: another window takes
// it, or the system cancels modes (a dialog popping up, Alt+Tab).
enum class CaptureLoss { OtherWindow, CancelMode };
const CaptureLoss kCaptureLosses[] = {CaptureLoss::OtherWindow, CaptureLoss::CancelMode};
// `thief` takes the capture, or `control` gets WM_CANCELMODE.
void LoseCapture(HWND control, CaptureLoss how, HWND thief);

} // namespace controltest
