// CZoMemDC: the off-screen surface of the controls' paint handlers. Everything is drawn
// into it and copied to the screen once, so painting never flickers. Internal to the library.
#pragma once
#include <afxwin.h>

namespace ZoControls {

class CZoMemDC : public CDC
{
public:
    CZoMemDC(CDC* pTarget, int width, int height);
    ~CZoMemDC() override;

    // Copies the whole surface to the target at (0, 0). Call once, after drawing everything.
    void CopyToTarget();
    // False when no bitmap could be made (zero or enormous sizes): drawing would go nowhere.
    bool HasSurface() const { return m_hOldBitmap != NULL; }

    // Text and visibility go straight to the memory DC's own handle.
    using CDC::PtVisible;
    using CDC::TextOut;
    using CDC::ExtTextOut;
    using CDC::TabbedTextOut;
    using CDC::DrawText;
    using CDC::DrawTextEx;
    using CDC::Escape;
    BOOL PtVisible(int x, int y) const override;
    BOOL RectVisible(LPCRECT lpRect) const override;
    BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount) override;
    BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                            LPINT lpDxWidths) override;
    CSize TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                                LPINT lpnTabStopPositions, int nTabOrigin) override;
    int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat) override;
    int DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat,
                           LPDRAWTEXTPARAMS lpDTParams) override;
    BOOL GrayString(CBrush* pBrush, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int), LPARAM lpData,
                            int nCount, int x, int y, int nWidth, int nHeight) override;
    int Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData) override;

private:
    CZoMemDC(const CZoMemDC&);
    CZoMemDC& operator=(const CZoMemDC&);

    int m_nWidth;
    int m_nHeight;
    CDC* m_pTargetDC;
    HBITMAP m_hBitmap;
    HBITMAP m_hOldBitmap; // null when no bitmap could be made
};

} // namespace ZoControls
