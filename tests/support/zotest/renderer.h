// Painting windows into 32-bit DIBs and asserting on pixels.
//   Dib                  32-bit top-down DIB section with its own memory DC (draw into dc(), read
//                        Pixel); FromBitmap / FromDC copy any bitmap or DC area; Crop; SaveBmp
//   RenderPath           how a window is asked to paint (see below)
//   RenderClient         client area of a window into a new Dib
//   RenderWindow         whole window (non-client too) into a new Dib
//   PixelIs, RectFilled, MatchesCell, BoundsAre   gtest AssertionResults with coordinates/colours
//   BoundsOfDifferences  bounding box of pixels that differ from a background colour
//   CellRect             rectangle of cell (column, row) in a strip cut into equal cells
//   ZOTEST_EXPECT_PIXEL / ZOTEST_EXPECT_FILL / ZOTEST_EXPECT_CELL / ZOTEST_EXPECT_BOUNDS
//
// Render paths, as measured under Wine 8:
//   PrintClient  WM_ERASEBKGND + WM_PRINTCLIENT(PRF_CLIENT|PRF_ERASEBKGND) to the window; each
//                visible child, bottom of the z-order first, is painted the same way into a DIB of
//                its own (over a copy of what lies beneath) and copied to its place. Works for
//                hidden windows too. Frames: WM_PRINT(PRF_NONCLIENT) is asked for, but Wine draws
//                none (WS_BORDER, WS_EX_CLIENTEDGE, captions stay as the background). Default.
//   Print        one WM_PRINT(PRF_NONCLIENT|PRF_CLIENT|PRF_ERASEBKGND|PRF_CHILDREN). Wine draws
//                the client area only, at the target's origin (not moved by the frame), without
//                frame and without children.
//   Screen       RedrawWindow(... RDW_UPDATENOW), then BitBlt from the window DC: the real WM_PAINT
//                path with frame and children, exactly as on screen; the window must be visible and
//                uncovered (a hidden window gives kUnpainted).
// Pixels the window did not paint keep kUnpainted.
// With the environment variable ZOTEST_DUMP_DIR set (a Windows path), every failing pixel check
// saves the image it examined there as <Suite.Test>-<n>.bmp.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <gtest/gtest.h>

#include <string>

namespace zotest {

// Background of fresh render targets: a colour no skin or system colour uses.
constexpr COLORREF kUnpainted = RGB(0x12, 0x34, 0x56);

class Dib {
public:
    Dib() = default;
    // A width x height DIB filled with `fill`; absurd sizes (<= 0 or > 16384) give an empty Dib.
    Dib(int width, int height, COLORREF fill = kUnpainted);
    ~Dib();
    Dib(const Dib&) = delete;
    Dib& operator=(const Dib&) = delete;
    Dib(Dib&& other) noexcept;
    Dib& operator=(Dib&& other) noexcept;

    // Copies of existing pixels; an invalid source gives an empty Dib.
    static Dib FromBitmap(HBITMAP bitmap);
    static Dib FromDC(HDC dc, const RECT& area);

    bool empty() const { return bits_ == nullptr; }
    int width() const { return width_; }
    int height() const { return height_; }
    HDC dc() const { return dc_; }
    HBITMAP bitmap() const { return bitmap_; }

    // CLR_INVALID outside the DIB.
    COLORREF Pixel(int x, int y) const;
    void SetPixel(int x, int y, COLORREF color);
    // Rows of width() pixels, top row first; null for an empty Dib.
    DWORD* bits() const { return bits_; }
    // The part of this DIB inside `area` (clipped); empty when nothing is left.
    Dib Crop(const RECT& area) const;
    // Writes a .bmp file, handy when a pixel test fails.
    bool SaveBmp(const wchar_t* path) const;

private:
    void Release();
    int width_ = 0;
    int height_ = 0;
    DWORD* bits_ = nullptr;
    HBITMAP bitmap_ = nullptr;
    HBITMAP previous_ = nullptr;
    HDC dc_ = nullptr;
};

enum class RenderPath { PrintClient, Print, Screen };

Dib RenderClient(HWND window, RenderPath path = RenderPath::PrintClient);
Dib RenderWindow(HWND window, RenderPath path = RenderPath::PrintClient);

std::string ColorText(COLORREF color);

::testing::AssertionResult PixelIs(const Dib& dib, int x, int y, COLORREF expected);
// Every pixel of `area` (right/bottom exclusive) has `expected`; the report gives the first
// wrong pixel and how many are wrong.
::testing::AssertionResult RectFilled(const Dib& dib, const RECT& area, COLORREF expected);
// The pixels of `dib` from `at` on equal cell `cell` of `source`, skipping source pixels equal
// to `transparent` (CLR_NONE: compare all).
::testing::AssertionResult MatchesCell(const Dib& dib, POINT at, HBITMAP source, const RECT& cell,
                                       COLORREF transparent = CLR_NONE);
::testing::AssertionResult MatchesCell(const Dib& dib, POINT at, const Dib& source, const RECT& cell,
                                       COLORREF transparent = CLR_NONE);

// Smallest rectangle holding every pixel that differs from `background`; empty {0,0,0,0} if none.
RECT BoundsOfDifferences(const Dib& dib, COLORREF background);
::testing::AssertionResult BoundsAre(const Dib& dib, COLORREF background, const RECT& expected);

// Cell (column, row) of a strip width x height cut into columns x rows equal cells; empty for
// counts < 1 or a cell outside the strip.
RECT CellRect(int width, int height, int columns, int rows, int column, int row);
RECT CellRect(HBITMAP strip, int columns, int rows, int column, int row);

} // namespace zotest

#define ZOTEST_EXPECT_PIXEL(dib, x, y, color) EXPECT_TRUE(::zotest::PixelIs((dib), (x), (y), (color)))
#define ZOTEST_EXPECT_FILL(dib, rect, color) EXPECT_TRUE(::zotest::RectFilled((dib), (rect), (color)))
#define ZOTEST_EXPECT_CELL(dib, at, source, cell, transparent) \
    EXPECT_TRUE(::zotest::MatchesCell((dib), (at), (source), (cell), (transparent)))
#define ZOTEST_EXPECT_BOUNDS(dib, background, rect) \
    EXPECT_TRUE(::zotest::BoundsAre((dib), (background), (rect)))
