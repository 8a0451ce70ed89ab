// A memory DC holding a skin bitmap for the length of one draw call. Internal to the library.
#pragma once
#include <afxwin.h>

namespace ZoControls {

class CZoImageSourceDC
{
public:
    // Creates a memory DC compatible with `target` and selects `hBitmap` into it.
    CZoImageSourceDC(CDC& target, HBITMAP hBitmap);
    // Selects the previous bitmap back and deletes the memory DC.
    ~CZoImageSourceDC();

    // False when the memory DC could not be made or the bitmap not selected.
    bool IsReady() const { return m_hPrevious != NULL; }
    CDC* GetDC() { return &m_dc; }

private:
    CZoImageSourceDC(const CZoImageSourceDC&);
    CZoImageSourceDC& operator=(const CZoImageSourceDC&);

    CDC m_dc;
    HGDIOBJ m_hPrevious;
};

} // namespace ZoControls
