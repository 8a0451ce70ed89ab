// Shared pieces of the skin image tests: ZoCtrl.dll's own copy of a strip, synthetic pictures
// and a DIB wrapped in a CDC. GDI+ and the library's lifetime come from the core tests' helpers.
#pragma once
#include <afxwin.h>

#include <zotest/renderer.h>

#include "../core/core_test_support.h"

#include <vector>

namespace imagetest {

const COLORREF kMagenta = RGB(255, 0, 255);

// InitializeZoCtrl for the life of the object; GDI+ runs for the whole test program.
using coretest::ScopedZoCtrl;

// A fresh copy of bitmap resource `name` of ZoCtrl.dll, loaded without the library's classes;
// null when it is missing. The caller deletes it.
HBITMAP LoadDllBitmap(const wchar_t* name);

// A top-down 32-bit picture; `pixels` holds width x height values 0xAARRGGBB (memory order
// B, G, R, A), row by row.
HBITMAP MakePicture(int width, int height, const std::vector<DWORD>& pixels);
// A 24-bit picture whose row r is filled with rowColors[r] (COLORREF), `width` pixels wide.
HBITMAP MakeStripedBitmap(int width, const std::vector<COLORREF>& rowColors);

// The B, G, R, A pixel `index` of a composed buffer as 0xAARRGGBB.
DWORD BufferPixel(const BYTE* buffer, int index);

// A DIB filled with a background colour, with a CDC attached for the library's drawing calls.
class DibCanvas
{
public:
    DibCanvas(int width, int height, COLORREF fill = zotest::kUnpainted);
    ~DibCanvas();
    DibCanvas(const DibCanvas&) = delete;
    DibCanvas& operator=(const DibCanvas&) = delete;

    CDC& dc() { return dc_; }
    const zotest::Dib& dib() const { return dib_; }

private:
    zotest::Dib dib_;
    CDC dc_;
};

} // namespace imagetest
