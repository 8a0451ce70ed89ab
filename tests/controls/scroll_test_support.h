// Shared pieces of the scroll bar, progress, spin and separator tests: the library for the life
// of a fixture, a parent window, and skin cells of ZoCtrl.dll drawn the way a control draws them.
#pragma once
#include <afxwin.h>

#include <gtest/gtest.h>
#include <zotest/zotest.h>

namespace scrolltest {

const COLORREF kMagenta = RGB(255, 0, 255);
const COLORREF kParentColor = RGB(10, 200, 30);

// GDI+ (started once for the program) and InitializeZoCtrl for each test.
class LibraryTest : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    // A visible top-level window at (x, y) of the screen, `w` x `h`, destroyed after the test.
    HWND MakeParent(int w = 400, int h = 300, int x = 40, int y = 40);

private:
    bool initialized_ = false;
    zotest::ScopedWindow parent_;
};

// Bitmap resource `name` of ZoCtrl.dll, or null; the caller deletes it.
HBITMAP LoadLibraryBitmap(const wchar_t* name);

// `w` x `h` of `fill` with cell (column, row) of a columns x rows strip stretched over it,
// magenta left out: what a control draws for that cell at that size.
zotest::Dib StretchedCell(HBITMAP strip, int columns, int rows, int column, int row, int w, int h, COLORREF fill);

// The pixels of `area` of `dib` equal those of `expected` from (0, 0).
testing::AssertionResult AreaMatches(const zotest::Dib& dib, const RECT& area, const zotest::Dib& expected);

// Theme 0's colour of `slot`.
COLORREF SlotColor(int slot);

} // namespace scrolltest
