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

} // namespace

CZoMemDC::CZoMemDC(CDC* pTarget, int width, int height)
    : m_nWidth(width), m_nHeight(height), m_pTargetDC(pTarget), m_hBitmap(NULL), m_hOldBitmap(NULL)
{
    const HDC hTarget = pTarget ? pTarget->GetSafeHdc() : NULL;
    Attach(::CreateCompatibleDC(hTarget));
    m_hBitmap = ::CreateCompatibleBitmap(hTarget, width, height);
    if (!m_hBitmap)
        m_hBitmap = ZoCreateFallbackSection(m_hDC, width, height);
    if (m_hBitmap && m_hDC)
        m_hOldBitmap = static_cast<HBITMAP>(::SelectObject(m_hDC, m_hBitmap));
}

CZoMemDC::~CZoMemDC()
{
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
