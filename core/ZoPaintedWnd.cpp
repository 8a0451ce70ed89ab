#include "ZoPaintedWnd.h"

#include "ZoBorrowedDC.h"
#include "ZoMemDC.h"

namespace ZoControls {

namespace {

void drawInto(CWnd& wnd, IZoPaintedWnd& painted, E_ZoPaintMode mode, CDC& dc)
{
    if (mode != ZoPaint_Offscreen)
    {
        painted.DrawClient(dc);
        return;
    }
    CRect client;
    ::GetClientRect(wnd.GetSafeHwnd(), &client);
    CZoMemDC memDC(&dc, client.Width(), client.Height(), true);
    // Without a surface the drawing would land nowhere, at any cost (a huge control tiles
    // thousands of cells): paint nothing.
    if (!memDC.HasSurface())
        return;
    painted.DrawClient(memDC);
    memDC.CopyToTarget();
}

void paintInto(CWnd& wnd, IZoPaintedWnd& painted, E_ZoPaintMode mode, CDC& dc)
{
    CRect kept;
    if (!painted.GetKeptRect(kept) || kept.IsRectEmpty())
    {
        drawInto(wnd, painted, mode, dc);
        return;
    }
    // The caller's DC (WM_PRINTCLIENT, WM_PAINT with a DC) gets its clipping back.
    const int saved = dc.SaveDC();
    dc.ExcludeClipRect(&kept);
    drawInto(wnd, painted, mode, dc);
    dc.RestoreDC(saved);
}

} // namespace

bool ZoRoutePaintMessage(CWnd& wnd, IZoPaintedWnd& painted, UINT message, WPARAM wParam, LRESULT& result)
{
    if (message != WM_PAINT && message != WM_PRINTCLIENT && message != WM_ERASEBKGND)
        return false;
    const E_ZoPaintMode mode = painted.GetPaintMode();
    result = 0;
    switch (message)
    {
    case WM_ERASEBKGND:
        if (mode == ZoPaint_DirectAfterErase)
            return false;
        result = TRUE;
        return true;
    case WM_PRINTCLIENT:
        if (!wParam || mode == ZoPaint_Platform)
            return false;
        {
            CZoBorrowedDC dc(wParam);
            paintInto(wnd, painted, mode, dc);
        }
        return true;
    default: // WM_PAINT
        if (mode == ZoPaint_Platform)
            return false;
        if (wParam)
        {
            CZoBorrowedDC dc(wParam);
            paintInto(wnd, painted, mode, dc);
        }
        else
        {
            CPaintDC dc(&wnd);
            paintInto(wnd, painted, mode, dc);
        }
        return true;
    }
}

void ZoRepaintNow(HWND hWnd)
{
    if (!hWnd || !::IsWindow(hWnd))
        return;
    ::InvalidateRect(hWnd, NULL, FALSE);
    ::UpdateWindow(hWnd);
}

bool ZoFocusCueShown(HWND hWnd)
{
    if (!hWnd || ::GetFocus() != hWnd)
        return false;
    return (::DefWindowProcW(hWnd, WM_QUERYUISTATE, 0, 0) & UISF_HIDEFOCUS) == 0;
}

bool ZoChangesFocusCue(UINT message)
{
    return message == WM_SETFOCUS || message == WM_KILLFOCUS || message == WM_UPDATEUISTATE;
}

void ZoDrawFocusCue(CDC& dc, const CRect& rect)
{
    if (rect.IsRectEmpty())
        return;
    const COLORREF oldText = dc.SetTextColor(RGB(0, 0, 0));
    const COLORREF oldBack = dc.SetBkColor(RGB(255, 255, 255));
    dc.DrawFocusRect(&rect);
    dc.SetTextColor(oldText);
    dc.SetBkColor(oldBack);
}

} // namespace ZoControls
