// What the gallery's tests share: GDI+ and the library started for one test's lifetime.
#pragma once
#include <afxwin.h>
#include <gdiplus.h>

#include "ZoCtrl.h"

class ScopedGalleryLibrary
{
public:
    ScopedGalleryLibrary()
    {
        Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&m_token, &input, nullptr);
        m_bStarted = InitializeZoCtrl();
    }
    ~ScopedGalleryLibrary()
    {
        UninitializeZoCtrl();
        Gdiplus::GdiplusShutdown(m_token);
    }
    bool Started() const { return m_bStarted; }

private:
    ULONG_PTR m_token = 0;
    bool m_bStarted = false;
};
