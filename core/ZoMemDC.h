// CZoMemDC: the off-screen surface of the controls' paint handlers. Everything is drawn
// into it and copied to the screen once, so painting never flickers. Internal to the library.
// The painting path asks for the surface kept between paints: making a bitmap costs the
// platform far more than drawing a small control does.
#pragma once
#include <afxwin.h>

namespace ZoControls {

class CZoMemDC : public CDC
{
public:
    CZoMemDC(CDC* pTarget, int width, int height);
    // With `useKeptSurface`, draws on the surface kept between paints when it is free and the
    // target's pixel format matches (growing it as needed up to a limit), else on its own. The
    // kept surface starts black and with a fresh DC's state, as a new one would.
    CZoMemDC(CDC* pTarget, int width, int height, bool useKeptSurface);
    ~CZoMemDC() override;

    // Frees the kept surface (the library is ending); nothing while a paint uses it.
    static void FreeKeptSurface();

    // Copies the whole surface to the target at (0, 0). Call once, after drawing everything.
    void CopyToTarget();
    // False when no bitmap could be made (zero or enormous sizes): drawing would go nowhere.
    bool HasSurface() const { return m_hOldBitmap != NULL || m_nKeptState != 0; }

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

    void _makeOwnSurface();
    bool _borrowKeptSurface();

    int m_nWidth;
    int m_nHeight;
    CDC* m_pTargetDC;
    HBITMAP m_hBitmap;
    HBITMAP m_hOldBitmap; // null when no bitmap could be made (or the kept surface is used)
    int m_nKeptState;     // SaveDC's answer on the kept surface; 0 when it is not used
};

} // namespace ZoControls
