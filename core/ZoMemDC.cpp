#include <afxwin.h>

#include "ZoMemDC.h"

namespace ZoControls {

namespace {

// Fallback surface when no compatible bitmap can be made: 24-bit, bottom-up rows.
HBITMAP ZoCreateFallbackSection(HDC hdc, int width, int height)
{
    BITMAPINFO info;
    ::ZeroMemory(&info, sizeof(info));
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    info.bmiHeader.biCompression = BI_RGB;
    void* pBits = NULL;
    return ::CreateDIBSection(hdc, &info, DIB_RGB_COLORS, &pBits, NULL, 0);
}

// Larger surfaces are made for the one paint: keeping them would hold too much memory.
const long kMaxKeptPixels = 1024L * 768L;

// The surface kept between paints: one memory DC with a bitmap at least as large as every
// surface it served, in the pixel format of the targets it served.
struct KeptSurface
{
    HDC hDC;
    HBITMAP hBitmap;
    HGDIOBJ hOldBitmap;
    int width;
    int height;
    int bitsPerPixel;
    volatile LONG busy; // a CZoMemDC draws on it
};
KeptSurface g_kept = {NULL, NULL, NULL, 0, 0, 0, 0};

void FreeKept()
{
    if (g_kept.hDC) {
        ::SelectObject(g_kept.hDC, g_kept.hOldBitmap);
        ::DeleteDC(g_kept.hDC);
    }
    if (g_kept.hBitmap)
        ::DeleteObject(g_kept.hBitmap);
    g_kept.hDC = NULL;
    g_kept.hBitmap = NULL;
    g_kept.hOldBitmap = NULL;
    g_kept.width = g_kept.height = g_kept.bitsPerPixel = 0;
}

// Bits per pixel of what `hTarget` draws on: its selected bitmap for a memory DC, else its device.
int TargetBitsPerPixel(HDC hTarget)
{
    if (::GetObjectType(hTarget) == OBJ_MEMDC) {
        BITMAP bm;
        if (::GetObjectW(::GetCurrentObject(hTarget, OBJ_BITMAP), sizeof(bm), &bm) == 0)
            return 0;
        return bm.bmBitsPixel * bm.bmPlanes;
    }
    return ::GetDeviceCaps(hTarget, BITSPIXEL) * ::GetDeviceCaps(hTarget, PLANES);
}

// Makes the kept surface fit `width` x `height` for `hTarget`; false when it cannot.
bool FitKept(HDC hTarget, int width, int height)
{
    const int bits = TargetBitsPerPixel(hTarget);
    if (bits <= 0)
        return false;
    if (g_kept.hDC && g_kept.bitsPerPixel == bits && g_kept.width >= width && g_kept.height >= height)
        return true;
    // Grown to cover both the old and the new size, so that controls of different shapes
    // painted in turn do not remake it every time.
    int w = width;
    int h = height;
    if (g_kept.hDC && g_kept.bitsPerPixel == bits) {
        w = w > g_kept.width ? w : g_kept.width;
        h = h > g_kept.height ? h : g_kept.height;
        if ((long)w * h > kMaxKeptPixels) {
            w = width;
            h = height;
        }
    }
    FreeKept();
    g_kept.hDC = ::CreateCompatibleDC(hTarget);
    g_kept.hBitmap = ::CreateCompatibleBitmap(hTarget, w, h);
    if (g_kept.hDC && g_kept.hBitmap)
        g_kept.hOldBitmap = ::SelectObject(g_kept.hDC, g_kept.hBitmap);
    if (!g_kept.hOldBitmap) {
        FreeKept();
        return false;
    }
    g_kept.width = w;
    g_kept.height = h;
    g_kept.bitsPerPixel = bits;
    return true;
}

} // namespace

CZoMemDC::CZoMemDC(CDC* pTarget, int width, int height)
    : m_nWidth(width), m_nHeight(height), m_pTargetDC(pTarget), m_hBitmap(NULL), m_hOldBitmap(NULL),
      m_nKeptState(0)
{
    _makeOwnSurface();
}

CZoMemDC::CZoMemDC(CDC* pTarget, int width, int height, bool useKeptSurface)
    : m_nWidth(width), m_nHeight(height), m_pTargetDC(pTarget), m_hBitmap(NULL), m_hOldBitmap(NULL),
      m_nKeptState(0)
{
    if (!useKeptSurface || !_borrowKeptSurface())
        _makeOwnSurface();
}

void CZoMemDC::_makeOwnSurface()
{
    const HDC hTarget = m_pTargetDC ? m_pTargetDC->GetSafeHdc() : NULL;
    Attach(::CreateCompatibleDC(hTarget));
    m_hBitmap = ::CreateCompatibleBitmap(hTarget, m_nWidth, m_nHeight);
    if (!m_hBitmap)
        m_hBitmap = ZoCreateFallbackSection(m_hDC, m_nWidth, m_nHeight);
    if (m_hBitmap && m_hDC)
        m_hOldBitmap = static_cast<HBITMAP>(::SelectObject(m_hDC, m_hBitmap));
}

bool CZoMemDC::_borrowKeptSurface()
{
    const HDC hTarget = m_pTargetDC ? m_pTargetDC->GetSafeHdc() : NULL;
    // A mirrored target would want a mirrored surface; sizes beyond the limit are not kept.
    if (!hTarget || m_nWidth <= 0 || m_nHeight <= 0 || (long)m_nWidth * m_nHeight > kMaxKeptPixels ||
        ::GetLayout(hTarget) != 0)
        return false;
    // A paint inside a paint (or on another thread) makes its own surface.
    if (::InterlockedCompareExchange(&g_kept.busy, 1, 0) != 0)
        return false;
    const int saved = FitKept(hTarget, m_nWidth, m_nHeight) ? ::SaveDC(g_kept.hDC) : 0;
    if (saved == 0) {
        ::InterlockedExchange(&g_kept.busy, 0);
        return false;
    }
    Attach(g_kept.hDC);
    m_nKeptState = saved;
    // A new bitmap starts black: so does the borrowed part.
    ::PatBlt(m_hDC, 0, 0, m_nWidth, m_nHeight, BLACKNESS);
    return true;
}

void CZoMemDC::FreeKeptSurface()
{
    if (::InterlockedCompareExchange(&g_kept.busy, 1, 0) != 0)
        return;
    FreeKept();
    ::InterlockedExchange(&g_kept.busy, 0);
}

CZoMemDC::~CZoMemDC()
{
    if (m_nKeptState != 0) {
        // Whatever the drawing selected or changed goes back to the state it was lent in.
        ::RestoreDC(m_hDC, m_nKeptState);
        Detach();
        ::InterlockedExchange(&g_kept.busy, 0);
        return;
    }
    if (m_hOldBitmap)
        ::SelectObject(m_hDC, m_hOldBitmap);
    if (m_hDC)
        DeleteDC();
    if (m_hBitmap)
        ::DeleteObject(m_hBitmap);
}

void CZoMemDC::CopyToTarget()
{
    // Negative extents would make BitBlt copy a mirrored area: nothing to copy then.
    if (m_nWidth <= 0 || m_nHeight <= 0)
        return;
    if (m_pTargetDC && m_pTargetDC->GetSafeHdc() && m_hDC)
        ::BitBlt(m_pTargetDC->GetSafeHdc(), 0, 0, m_nWidth, m_nHeight, m_hDC, 0, 0, SRCCOPY);
}

BOOL CZoMemDC::PtVisible(int x, int y) const
{
    return ::PtVisible(m_hDC, x, y);
}

BOOL CZoMemDC::RectVisible(LPCRECT lpRect) const
{
    return ::RectVisible(m_hDC, lpRect);
}

BOOL CZoMemDC::TextOut(int x, int y, LPCTSTR lpszString, int nCount)
{
    return ::TextOutW(m_hDC, x, y, lpszString, nCount);
}

BOOL CZoMemDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                          LPINT lpDxWidths)
{
    return ::ExtTextOutW(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
}

CSize CZoMemDC::TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                              LPINT lpnTabStopPositions, int nTabOrigin)
{
    const LONG extent =
        ::TabbedTextOutW(m_hDC, x, y, lpszString, nCount, nTabPositions, lpnTabStopPositions, nTabOrigin);
    return CSize(LOWORD(extent), HIWORD(extent));
}

int CZoMemDC::DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat)
{
    return ::DrawTextW(m_hDC, lpszString, nCount, lpRect, nFormat);
}

int CZoMemDC::DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat,
                         LPDRAWTEXTPARAMS lpDTParams)
{
    return ::DrawTextExW(m_hDC, lpszString, nCount, lpRect, nFormat, lpDTParams);
}

BOOL CZoMemDC::GrayString(CBrush* pBrush, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int), LPARAM lpData,
                          int nCount, int x, int y, int nWidth, int nHeight)
{
    const HBRUSH hBrush = pBrush ? static_cast<HBRUSH>(pBrush->GetSafeHandle()) : NULL;
    return ::GrayStringW(m_hDC, hBrush, lpfnOutput, lpData, nCount, x, y,
                         nWidth, nHeight);
}

int CZoMemDC::Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData)
{
    return ::Escape(m_hDC, nEscape, nCount, lpszInData, lpOutData);
}

} // namespace ZoControls
