#include <afxwin.h>
#include <commctrl.h>

#include "ZoStatic.h"
#include "ZoControlColors.h"
#include "ZoControlTheme.h"
#include "ZoWindowHelpers.h"
#include "core/ZoThemeManager.h"
#include "images/ZoResourceImage.h"

namespace ZoControls {

namespace {

const DWORD kEndEllipsisBit = 0x4000;
const DWORD kPathEllipsisBit = 0x8000;
const DWORD kEllipsisBits = kEndEllipsisBit | kPathEllipsisBit;
const UINT kWrappingText = DT_WORDBREAK | DT_EXPANDTABS | DT_MODIFYSTRING;
const COLORREF kMagenta = RGB(255, 0, 255);

CRect ClientRectOf(const CWnd& wnd)
{
    CRect rc;
    wnd.GetClientRect(&rc);
    return rc;
}

} // namespace

E_ZoStaticPaintKind ZoStaticPaintKindOf(DWORD style)
{
    switch (style & SS_TYPEMASK) {
    case SS_LEFT:
    case SS_CENTER:
    case SS_RIGHT:
    case SS_SIMPLE:
    case SS_LEFTNOWORDWRAP:
        return ZoStaticPaint_Text;
    case SS_BITMAP:
        return ZoStaticPaint_Picture;
    case SS_ICON:
        return ZoStaticPaint_Icon;
    case SS_BLACKFRAME:
    case SS_GRAYFRAME:
    case SS_WHITEFRAME:
        return ZoStaticPaint_Frame;
    default:
        return ZoStaticPaint_System;
    }
}

UINT ZoStaticTextFormat(DWORD style)
{
    UINT format = 0;
    switch (style & SS_TYPEMASK) {
    case SS_LEFT:
        format = kWrappingText;
        break;
    case SS_CENTER:
        format = kWrappingText | DT_CENTER;
        break;
    case SS_RIGHT:
        format = kWrappingText | DT_RIGHT;
        break;
    case SS_SIMPLE:
        format = DT_SINGLELINE;
        break;
    case SS_LEFTNOWORDWRAP:
        format = DT_EXPANDTABS;
        break;
    default:
        return 0;
    }
    if (style & SS_CENTERIMAGE)
        format |= DT_VCENTER;
    if (style & SS_NOPREFIX)
        format |= DT_NOPREFIX;
    // Each ellipsis bit is tested alone, so SS_WORDELLIPSIS (both bits) asks for all three.
    if (style & kEllipsisBits)
        format |= DT_WORD_ELLIPSIS;
    if (style & kEndEllipsisBit)
        format |= DT_END_ELLIPSIS;
    if (style & kPathEllipsisBit)
        format |= DT_PATH_ELLIPSIS;
    return format;
}

CRect ZoStaticCenteredTextRect(const CRect& client, int textHeight)
{
    return CRect(client.left, client.top + (client.Height() - textHeight) / 2, client.right, client.bottom);
}

CRect ZoStaticPictureTarget(const CRect& client, const CSize& picture, DWORD style)
{
    if (!(style & SS_REALSIZEIMAGE))
        return client;
    CRect target(client.TopLeft(), picture);
    if (style & SS_CENTERIMAGE) {
        const CPoint clientCentre((client.left + client.right) / 2, (client.top + client.bottom) / 2);
        const CPoint targetCentre((target.left + target.right) / 2, (target.top + target.bottom) / 2);
        target.OffsetRect(clientCentre - targetCentre);
    }
    return target;
}

int ZoStaticFrameTopShift(LONG lfHeight)
{
    return -static_cast<int>(lfHeight / 2);
}

int ZoStaticBorderSlot(DWORD style, DWORD exStyle)
{
    if (exStyle & (WS_EX_STATICEDGE | WS_EX_CLIENTEDGE))
        return ZoColor_EditBack;
    if (style & WS_BORDER)
        return ZoColor_GroupFrame;
    return -1;
}

// ---------------------------------------------------------------------------------------------
// CZoStatic

IMPLEMENT_DYNAMIC(CZoStatic, CStatic)

BEGIN_MESSAGE_MAP(CZoStatic, CStatic)
    ON_WM_MOUSEMOVE()
    ON_MESSAGE(WM_MOUSELEAVE, &CZoStatic::OnMouseLeave)
    ON_WM_CREATE()
    ON_WM_NCPAINT()
    ZO_ON_MENUXP_MESSAGES()
END_MESSAGE_MAP()

ZO_IMPLEMENT_MENUXP_FORWARDING(CZoStatic, CStatic)

CZoStatic::CZoStatic(E_ZoThemeFont font)
    : m_eTheme(ZoTheme_Default), m_eMonitorSize(ZoMonitorSize_Unknown), m_eFont(font),
      m_eTextColor(ZoThemeSlot(ZoColor_GroupText)),
      m_clrBackground(ZoSlotColor(ZoColor_GroupBack, ZoTheme_Default))
{
}

CZoStatic::~CZoStatic()
{
}

void CZoStatic::SetBackGroundColor(COLORREF color)
{
    m_clrBackground = color;
}

void CZoStatic::SetTextTheme(E_ZoThemeColors slot)
{
    m_eTextColor = slot;
}

E_ZoTheme CZoStatic::GetTheme() const
{
    return m_eTheme;
}

E_ZoMonitorSize CZoStatic::GetMonitorSize() const
{
    return m_eMonitorSize;
}

void CZoStatic::_readTheme()
{
    ZoMenuOptIn(this);
    m_eTheme = ZoGetCurrentThemeIndex(this);
    m_eMonitorSize = ZoGetCurrentMonitorSize(this, false);
}

void CZoStatic::PreSubclassWindow()
{
    _readTheme();
    CStatic::PreSubclassWindow();
}

int CZoStatic::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CStatic::OnCreate(lpCreateStruct) == -1)
        return -1;
    _readTheme();
    return 0;
}

LRESULT CZoStatic::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = CZoPaintedWnd<CStatic>::WindowProc(message, wParam, lParam);
    // The standard static repaints these itself; the skin must replace that at once.
    if (message == WM_SETTEXT || message == WM_ENABLE || message == STM_SETIMAGE || message == STM_SETICON)
        RepaintNow();
    return result;
}

E_ZoPaintMode CZoStatic::GetPaintMode()
{
    switch (ZoStaticPaintKindOf(GetStyle())) {
    case ZoStaticPaint_System:
        return ZoPaint_Platform;
    case ZoStaticPaint_Frame:
        return ZoPaint_Direct;
    default:
        return ZoPaint_Offscreen;
    }
}

void CZoStatic::DrawClient(CDC& dc)
{
    switch (ZoStaticPaintKindOf(GetStyle())) {
    case ZoStaticPaint_Frame:
        _drawFrame(dc);
        break;
    case ZoStaticPaint_Text:
        _drawStaticText(dc);
        break;
    case ZoStaticPaint_Picture:
        _drawBitmap(dc);
        break;
    default:
        _drawIcon(dc);
        break;
    }
}

void CZoStatic::OnMouseMove(UINT /*nFlags*/, CPoint /*point*/)
{
    const DWORD style = GetStyle();
    const DWORD type = style & SS_TYPEMASK;
    if ((style & SS_NOTIFY) && type != SS_BITMAP && type != SS_ICON)
        ZoTrackMouseLeave(m_hWnd);
    Default();
}

LRESULT CZoStatic::OnMouseLeave(WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    return 0;
}

void CZoStatic::OnNcPaint()
{
    const int slot = ZoStaticBorderSlot(GetStyle(), GetExStyle());
    if (slot < 0)
        return;
    CWindowDC dc(this);
    CRect rc;
    GetWindowRect(&rc);
    rc.OffsetRect(-rc.left, -rc.top);
    const COLORREF color = ZoSlotColor(slot, m_eTheme);
    dc.Draw3dRect(&rc, color, color);
}

void CZoStatic::_fillClient(CDC& dc, COLORREF color)
{
    dc.FillSolidRect(ClientRectOf(*this), color);
}

void CZoStatic::_drawStaticText(CDC& dc)
{
    const CRect client = ClientRectOf(*this);
    dc.FillSolidRect(client, m_clrBackground);
    CString text = ZoQueryWindowText(
        [this](UINT message, WPARAM wParam, LPARAM lParam) { return DefWindowProc(message, wParam, lParam); });
    if (text.IsEmpty())
        return;
    const DWORD style = GetStyle();
    const UINT format = ZoStaticTextFormat(style);
    const E_ZoThemeColors slot = IsWindowEnabled() ? m_eTextColor : ZoThemeSlot(ZoColor_EditDisabledText);
    const COLORREF color = ZoSlotColor(slot, m_eTheme);
    CZoTextScope scope(dc, ZoCachedFont(m_eFont, m_eMonitorSize), color, dc.GetBkMode());
    // DT_MODIFYSTRING may write into the buffer: give it room for an added ellipsis.
    const int capacity = text.GetLength() + 5;
    CRect target = client;
    if (style & SS_CENTERIMAGE) {
        CRect measured = client;
        CString probe = text;
        dc.DrawText(probe.GetBuffer(capacity), -1, &measured, format | DT_CALCRECT);
        probe.ReleaseBuffer();
        target = ZoStaticCenteredTextRect(client, measured.Height());
    }
    dc.DrawText(text.GetBuffer(capacity), -1, &target, format);
    text.ReleaseBuffer();
}

void CZoStatic::_drawBitmap(CDC& dc)
{
    const CRect client = ClientRectOf(*this);
    _fillClient(dc, ZoSlotColor(ZoColor_ControlBack, m_eTheme));
    const HBITMAP hBitmap = reinterpret_cast<HBITMAP>(SendMessage(STM_GETIMAGE, IMAGE_BITMAP, 0));
    if (!hBitmap)
        return;
    CZoResourceBMPImage picture(hBitmap, false);
    const CSize size(picture.GetWidth(), picture.GetHeight());
    const CRect target = ZoStaticPictureTarget(client, size, GetStyle());
    picture.DrawImage(dc, target.left, target.top, target.Width(), target.Height(), 0, 0, size.cx, size.cy,
                      kMagenta);
}

void CZoStatic::_drawIcon(CDC& dc)
{
    const CRect client = ClientRectOf(*this);
    _fillClient(dc, ZoSlotColor(ZoColor_ControlBack, m_eTheme));
    const HICON hIcon = reinterpret_cast<HICON>(SendMessage(STM_GETICON, 0, 0));
    if (hIcon)
        dc.DrawIcon(client.left, client.top, hIcon);
}

void CZoStatic::_drawFrame(CDC& dc)
{
    int shift = 0;
    CFont* pFont = GetFont();
    LOGFONT lf;
    if (pFont && pFont->GetSafeHandle() && pFont->GetLogFont(&lf))
        shift = ZoStaticFrameTopShift(lf.lfHeight);
    CRect client = ClientRectOf(*this);
    CRect frame = client;
    frame.top += shift;
    const COLORREF frameColor = ZoSlotColor(ZoColor_GroupFrame, m_eTheme);
    dc.Draw3dRect(&frame, frameColor, frameColor);

    CString text;
    GetWindowText(text);
    // The caption is drawn opaque in the DC's current font so that it cuts the top line.
    const int oldMode = dc.SetBkMode(OPAQUE);
    const COLORREF oldBack = dc.SetBkColor(ZoSlotColor(ZoColor_GroupBack, m_eTheme));
    const COLORREF oldText = dc.SetTextColor(ZoSlotColor(ZoColor_GroupText, m_eTheme));
    dc.DrawText(text.GetBuffer(text.GetLength() + 5), -1, &client, kWrappingText);
    text.ReleaseBuffer();
    dc.SetTextColor(oldText);
    dc.SetBkColor(oldBack);
    dc.SetBkMode(oldMode);
}

// ---------------------------------------------------------------------------------------------
// CZoStaticBig, CZoStaticHuge

IMPLEMENT_DYNAMIC(CZoStaticBig, CZoStatic)

CZoStaticBig::CZoStaticBig() : CZoStatic(ZoThemeFont_2)
{
}

CZoStaticBig::~CZoStaticBig()
{
}

IMPLEMENT_DYNAMIC(CZoStaticHuge, CZoStatic)

CZoStaticHuge::CZoStaticHuge() : CZoStatic(ZoThemeFont_4)
{
}

CZoStaticHuge::~CZoStaticHuge()
{
}

// ---------------------------------------------------------------------------------------------
// CStaticLine

void ZoStaticLineSegment(const CRect& client, int offset, CPoint& from, CPoint& to)
{
    const int w = client.Width();
    const int h = client.Height();
    if (w < h) {
        const int x = client.left + w / 2 + offset;
        from = CPoint(x, client.top + offset);
        to = CPoint(x, client.bottom + offset);
    } else {
        const int y = client.top + h / 2 + offset;
        from = CPoint(client.left + offset, y);
        to = CPoint(client.right + offset, y);
    }
}

ZoDotRun ZoStaticLineDots(const CRect& client, int offset)
{
    const int pitch = CStaticLine::kDotPitch;
    ZoDotRun run;
    const int w = client.Width();
    const int h = client.Height();
    if (w < h) {
        run.x = client.left + w / 2 + offset;
        run.y = client.top + offset;
        run.dx = 0;
        run.dy = pitch;
        run.count = h > 0 ? (h + pitch - 1) / pitch : 0;
    } else {
        run.x = client.left + offset;
        // The row of the left edge, not the middle: kept as the control has always drawn it.
        run.y = client.left + offset;
        run.dx = pitch;
        run.dy = 0;
        run.count = w > 0 ? (w + pitch - 1) / pitch : 0;
    }
    return run;
}

BEGIN_MESSAGE_MAP(CStaticLine, CStatic)
    ON_WM_NCPAINT()
END_MESSAGE_MAP()

CStaticLine::CStaticLine()
    : m_eStyle(StaticLine_Dot), m_clrLine(RGB(66, 68, 81)), m_clrShadow(RGB(161, 165, 185)),
      m_clrBackground(RGB(132, 137, 163))
{
}

CStaticLine::~CStaticLine()
{
}

void CStaticLine::SetLineStyle(E_StaticLine_Style style)
{
    m_eStyle = style;
}

void CStaticLine::SetStaticColors(COLORREF line, COLORREF shadow, COLORREF background)
{
    m_clrLine = line;
    m_clrShadow = shadow;
    m_clrBackground = background;
}

void CStaticLine::DrawBackground(CDC* pDC, E_StaticLine_Style /*style*/, COLORREF color)
{
    if (pDC)
        pDC->FillSolidRect(ClientRectOf(*this), color);
}

void CStaticLine::DrawLine(CDC* pDC, E_StaticLine_Style style, COLORREF color)
{
    _drawStyledLine(pDC, style, color, 0);
}

void CStaticLine::DrawLineShadow(CDC* pDC, E_StaticLine_Style style, COLORREF color)
{
    _drawStyledLine(pDC, style, color, 1);
}

void CStaticLine::_drawStyledLine(CDC* pDC, E_StaticLine_Style style, COLORREF color, int offset)
{
    if (!pDC)
        return;
    switch (style) {
    case StaticLine_Dot:
        drawDotLine(pDC, color, offset);
        break;
    case StaticLine_Double:
        drawDoubleLine(pDC, color, offset);
        break;
    case StaticLine_DualDot:
        drawDualDotLine(pDC, color, offset);
        break;
    default:
        drawSingleLine(pDC, color, offset);
        break;
    }
}

void CStaticLine::drawSingleLine(CDC* pDC, COLORREF color, int offset)
{
    CPoint from;
    CPoint to;
    ZoStaticLineSegment(ClientRectOf(*this), offset, from, to);
    CPen pen(PS_SOLID, 1, color);
    CPen* pOld = pDC->SelectObject(&pen);
    pDC->MoveTo(from);
    pDC->LineTo(to);
    pDC->SelectObject(pOld);
}

void CStaticLine::drawDotLine(CDC* pDC, COLORREF color, int offset)
{
    const ZoDotRun run = ZoStaticLineDots(ClientRectOf(*this), offset);
    for (int i = 0; i < run.count; ++i)
        pDC->FillSolidRect(run.x + i * run.dx, run.y + i * run.dy, kDotSize, kDotSize, color);
}

void CStaticLine::drawDoubleLine(CDC* /*pDC*/, COLORREF /*color*/, int /*offset*/)
{
}

void CStaticLine::drawDualDotLine(CDC* /*pDC*/, COLORREF /*color*/, int /*offset*/)
{
}

void CStaticLine::DrawClient(CDC& dc)
{
    DrawBackground(&dc, m_eStyle, m_clrBackground);
    DrawLineShadow(&dc, m_eStyle, m_clrShadow);
    DrawLine(&dc, m_eStyle, m_clrLine);
}

void CStaticLine::OnNcPaint()
{
}

} // namespace ZoControls
