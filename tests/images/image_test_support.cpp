#include "image_test_support.h"

#include "images/ZoResourceImage.h"

namespace imagetest {

namespace {

// A top-down DIB section of `bitCount` bits per pixel; `bits` receives its pixels.
HBITMAP CreateTopDownDib(int width, int height, WORD bitCount, void** bits)
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = bitCount;
    info.bmiHeader.biCompression = BI_RGB;
    *bits = nullptr;
    HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, bits, nullptr, 0);
    return bitmap;
}

} // namespace

HBITMAP LoadDllBitmap(const wchar_t* name)
{
    // The module that holds the library's code, whatever its file is called.
    HMODULE module = nullptr;
    if (!GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                            reinterpret_cast<LPCWSTR>(&ZoControls::ZoUnitExtent), &module))
        return nullptr;
    return static_cast<HBITMAP>(LoadImageW(module, name, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
}

HBITMAP MakePicture(int width, int height, const std::vector<DWORD>& pixels)
{
    void* bits = nullptr;
    HBITMAP bitmap = CreateTopDownDib(width, height, 32, &bits);
    if (bitmap != nullptr && bits != nullptr && pixels.size() == static_cast<size_t>(width * height))
        memcpy(bits, pixels.data(), pixels.size() * sizeof(DWORD));
    return bitmap;
}

HBITMAP MakeStripedBitmap(int width, const std::vector<COLORREF>& rowColors)
{
    const int height = static_cast<int>(rowColors.size());
    void* bits = nullptr;
    HBITMAP bitmap = CreateTopDownDib(width, height, 24, &bits);
    if (bitmap == nullptr || bits == nullptr)
        return bitmap;
    const int stride = (width * 3 + 3) & ~3;
    for (int r = 0; r < height; ++r) {
        BYTE* row = static_cast<BYTE*>(bits) + r * stride;
        for (int c = 0; c < width; ++c) {
            row[c * 3 + 0] = GetBValue(rowColors[r]);
            row[c * 3 + 1] = GetGValue(rowColors[r]);
            row[c * 3 + 2] = GetRValue(rowColors[r]);
        }
    }
    return bitmap;
}

DWORD BufferPixel(const BYTE* buffer, int index)
{
    const BYTE* p = buffer + index * 4;
    return static_cast<DWORD>(p[0]) | static_cast<DWORD>(p[1]) << 8 | static_cast<DWORD>(p[2]) << 16 |
           static_cast<DWORD>(p[3]) << 24;
}

DibCanvas::DibCanvas(int width, int height, COLORREF fill) : dib_(width, height, fill)
{
    dc_.Attach(dib_.dc());
}

DibCanvas::~DibCanvas()
{
    dc_.Detach();
}

} // namespace imagetest
