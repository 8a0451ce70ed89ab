// CZoDialog's frame: the band around the client area, the caption bar with its text and the
// system buttons, each drawn off-screen and copied to the window at once.
#include "dialogs/ZoDialog.h"

#include "controls/ZoControlTheme.h"
#include "core/ZoMemDC.h"
#include "images/ZoResourceImage.h"

namespace ZoControls {

namespace {
const COLORREF kTransparent = RGB(255, 0, 255);
} // namespace

CRect CZoDialog::_windowAtOrigin() const
{
    CRect window;
    ::GetWindowRect(m_hWnd, &window);
    window.OffsetRect(-window.left, -window.top);
    return window;
}

CRect CZoDialog::_clientInWindow() const
{
    CRect window;
    ::GetWindowRect(m_hWnd, &window);
    CRect client;
    ::GetClientRect(m_hWnd, &client);
    ::MapWindowPoints(m_hWnd, NULL, reinterpret_cast<POINT*>(&client), 2);
    client.OffsetRect(-window.left, -window.top);
    return client;
}

void CZoDialog::_fillBackground(CDC& dc, const CRect& rect)
{
    // Before the resources are loaded the theme's colour is read afresh.
    const COLORREF color = m_bResourcesLoaded ? m_clrBackground : ZoSlotColor(ZoDialogColor_Back, GetZoTheme());
    dc.FillSolidRect(&rect, color);
}

void CZoDialog::_drawCaptionBar(CDC& dc)
{
    if (m_border.caption <= 0)
        return;
    CRect window;
    GetWindowRect(&window);
    const E_ZoTheme theme = GetZoTheme();
    dc.FillSolidRect(m_border.left, m_border.top, window.Width() - m_border.left - m_border.right, m_border.caption,
                     ZoSlotColor(ZoDialogColor_Caption, theme));

    if ((m_dwFrameStyle & WS_SYSMENU) && m_pSysBtnSkin && m_pSysBtnSkin->IsLoaded())
    {
        const int cellWidth = m_pSysBtnSkin->GetWidth() / ZO_DIALOG_SYSBTN_COLUMNS;
        const int cellHeight = m_pSysBtnSkin->GetHeight() / ZO_DIALOG_SYSBTN_ROWS;
        for (int row = 0; row < ZoSysButton_Count; ++row)
        {
            const CRect& rect = m_aButtonRects[row];
            if (rect.IsRectEmpty())
                continue;
            m_pSysBtnSkin->DrawImage(dc, rect.left, rect.top, m_aButtonStates[row] * cellWidth, row * cellHeight,
                                     cellWidth, cellHeight, kTransparent);
        }
    }

    CString text;
    GetWindowText(text);
    if (!(GetStyle() & WS_CAPTION) || text.IsEmpty())
        return;
    CZoTextScope scope(dc, ZoCachedFont(ZO_DIALOG_CAPTION_FONT, GetZoMonitorSize()),
                       ZoSlotColor(ZoDialogColor_CaptionText, theme), TRANSPARENT);
    const UINT oldAlign = dc.SetTextAlign(TA_LEFT | TA_TOP);
    const CSize extent = dc.GetTextExtent(text);
    const int y = (m_border.caption - extent.cy + m_border.top) / 2;
    dc.TextOut(m_border.left + ZO_DIALOG_CAPTION_TEXT_INDENT, y, text);
    dc.SetTextAlign(oldAlign);
}

void CZoDialog::_redrawCaptionBar()
{
    if (m_border.caption <= 0 || !::IsWindow(m_hWnd) || !IsWindowVisible())
        return;
    CRect window;
    GetWindowRect(&window);
    const int width = window.Width();
    const int inner = width - m_border.left - m_border.right;
    if (inner <= 0)
        return;
    CWindowDC windowDC(this);
    // Only the bar itself reaches the window; the border around it stays as painted.
    windowDC.IntersectClipRect(m_border.left, m_border.top, m_border.left + inner, m_border.top + m_border.caption);
    CZoMemDC memDC(&windowDC, width, m_border.top + m_border.caption);
    if (!memDC.HasSurface())
        return;
    _drawCaptionBar(memDC);
    memDC.CopyToTarget();
}

void CZoDialog::OnNcPaint()
{
    const CRect window = _windowAtOrigin();
    if (window.IsRectEmpty())
        return;
    {
        CWindowDC windowDC(this);
        const CRect client = _clientInWindow();
        windowDC.ExcludeClipRect(&client);
        _fillBackground(windowDC, window);
    }
    PaintFrame();
}

void CZoDialog::PaintFrame()
{
    if (!::IsWindow(m_hWnd) || (GetStyle() & WS_CAPTION) != WS_CAPTION)
        return;
    const CRect window = _windowAtOrigin();
    if (window.IsRectEmpty())
        return;
    CWindowDC windowDC(this);
    windowDC.ExcludeClipRect(m_border.left, m_border.top + m_border.caption, window.right - m_border.right,
                             window.bottom - m_border.bottom);
    CZoMemDC memDC(&windowDC, window.Width(), window.Height());
    if (!memDC.HasSurface())
        return;
    const E_ZoTheme theme = GetZoTheme();
    memDC.FillSolidRect(&window, ZoSlotColor(ZoDialogColor_Frame, theme));
    const COLORREF line = ZoSlotColor(ZoDialogColor_FrameLine, theme);
    memDC.Draw3dRect(&window, line, line);
    _drawCaptionBar(memDC);
    memDC.CopyToTarget();
}

} // namespace ZoControls
