#include "controls/ZoScrollBar.h"

#include "controls/ZoControlColors.h"
#include "controls/ZoWindowHelpers.h"
#include "core/ZoThemeManager.h"
#include "core/ZoThemeMath.h"
#include "images/ZoResourceImage.h"

namespace ZoControls {

namespace {

const COLORREF kTransparent = RGB(255, 0, 255);
const UINT kFirstDelayMs = 300;
const UINT kRepeatMs = 50;

// Theme 0's colour slot 0, for a library that was never initialised.
const COLORREF kFallbackBackground = RGB(0x47, 0x47, 0x47);

CZoResourceBMPImage* loadStrip(const wchar_t* name, E_ZoMonitorSize size, int columns, int rows)
{
    CZoResourceBMPImage* pImage = new CZoResourceBMPImage();
    pImage->LoadResourceImage(name, size, columns, rows);
    return pImage;
}

bool isLoaded(const CZoResourceBMPImage* pImage) { return pImage && pImage->IsLoaded(); }

} // namespace

IMPLEMENT_DYNAMIC(CZoScrollBar, CScrollBar)

BEGIN_MESSAGE_MAP(CZoScrollBar, CScrollBar)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONUP()
    ON_WM_TIMER()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_CAPTURECHANGED()
    ON_WM_CANCELMODE()
    ZO_ON_MENUXP_MESSAGES()
END_MESSAGE_MAP()

ZO_IMPLEMENT_MENUXP_FORWARDING(CZoScrollBar, CScrollBar)

CZoScrollBar::CZoScrollBar(E_ScrollBarTheme theme)
    : m_eScrollBarTheme(theme), m_eTheme(ZoTheme_Default), m_eMonitorSize(ZoMonitorSize_Unknown),
      m_crBackground(0), m_bBackgroundSet(false), m_pBuddy(NULL), m_ePressed(SBHit_None), m_eHover(SBHit_None),
      m_nThumbPos(0), m_nThumbLength(0), m_pButtons(NULL), m_pThumb(NULL), m_pBack(NULL), m_bInitialized(false),
      m_nDragOffset(0)
{
}

CZoScrollBar::~CZoScrollBar()
{
    delete m_pButtons;
    delete m_pThumb;
    delete m_pBack;
}

void CZoScrollBar::SetBuddy(CWnd* pBuddy) { m_pBuddy = pBuddy; }

void CZoScrollBar::SetBackgroundColor(COLORREF color)
{
    m_crBackground = color;
    m_bBackgroundSet = true;
}

CZoScrollBar::E_SBHitCode CZoScrollBar::HitTest(CPoint point) const
{
    return (E_SBHitCode)ZoScrollHitTest(_layout(), point);
}

CRect CZoScrollBar::GetPartRect(E_SBHitCode part) const
{
    if (part < SBHit_None || part >= (int)ZoScrollPart_Count)
        return CRect(0, 0, 0, 0);
    return m_aRects[part];
}

int CZoScrollBar::GetThumbTrackPosition()
{
    if (!::IsWindow(m_hWnd))
        return 0;
    return _calcScrollPosFromThumbPos(m_nThumbPos);
}

int CZoScrollBar::GetButtonGapSize()
{
    return ZoScrollGapSize(isLoaded(m_pButtons), ZoZoomFactorOf(m_eMonitorSize));
}

void CZoScrollBar::PreSubclassWindow()
{
    _init();
    CScrollBar::PreSubclassWindow();
}

LRESULT CZoScrollBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    // The platform must never show its own drawing of a scroll-state change. Only a visible bar
    // is switched: WM_SETREDRAW TRUE would make a hidden one visible.
    const bool redrawingMessage = (message == SBM_SETSCROLLINFO && wParam != 0) || message == SBM_SETPOS ||
                                  message == SBM_SETRANGEREDRAW || message == SBM_ENABLE_ARROWS;
    const bool hideNativeDrawing = redrawingMessage && (GetStyle() & WS_VISIBLE) != 0;
    if (hideNativeDrawing)
        SendMessage(WM_SETREDRAW, FALSE);
    const LRESULT result = CZoPaintedWnd<CScrollBar>::WindowProc(message, wParam, lParam);
    if (hideNativeDrawing && ::IsWindow(m_hWnd))
    {
        SendMessage(WM_SETREDRAW, TRUE);
        RedrawWindow(NULL, NULL, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    }
    if (!m_bInitialized || !::IsWindow(m_hWnd))
        return result;
    if (message == SBM_SETSCROLLINFO)
        _updateThumbSize();
    if (message == SBM_SETSCROLLINFO || message == SBM_SETPOS || message == SBM_SETRANGE)
    {
        m_nThumbPos = _calcThumbPosFromScrollPos(::GetScrollPos(m_hWnd, SB_CTL));
        _updateRects();
        RepaintNow();
    }
    else if (message == WM_ENABLE)
    {
        // The platform redraws its own look on enabling; paint over it at once.
        RepaintNow();
    }
    return result;
}

void CZoScrollBar::_init()
{
    if (m_bInitialized || !::IsWindow(m_hWnd))
        return;
    m_eTheme = ZoGetCurrentThemeIndex(this);
    m_eMonitorSize = ZoGetCurrentMonitorSize(this, false);
    ZoMenuOptIn(this);

    const bool vertical = _isVertical();
    delete m_pButtons;
    delete m_pThumb;
    delete m_pBack;
    m_pButtons = loadStrip(vertical ? L"BMP_ZO_SCROLLVER_BTNS" : L"BMP_ZO_SCROLLHOR_BTNS", m_eMonitorSize, 4, 4);
    m_pThumb = vertical ? loadStrip(L"BMP_ZO_SCROLLVER_THUMB", m_eMonitorSize, 4, 6)
                        : loadStrip(L"BMP_ZO_SCROLLHOR_THUMB", m_eMonitorSize, 12, 2);
    m_pBack = loadStrip(vertical ? L"BMP_ZO_SCROLLVER_BACK" : L"BMP_ZO_SCROLLHOR_BACK", m_eMonitorSize, 4, 2);

    if (!m_bBackgroundSet)
    {
        // Theme 0's slot 0 whatever the control's theme.
        const CZoThemeManager* pManager = CZoThemeManager::GetInstance();
        m_crBackground = pManager ? pManager->GetGDIColor(ZoThemeSlot(ZoColor_ControlBack), ZoTheme_Default) : kFallbackBackground;
    }
    m_bInitialized = true;
    _initDimensions();
    _updateRects();
    RepaintNow();
}

bool CZoScrollBar::_isVertical() const { return (GetStyle() & SBS_VERT) != 0; }

int CZoScrollBar::_thumbUnitLength() const
{
    if (!isLoaded(m_pThumb))
        return 0;
    return _isVertical() ? m_pThumb->GetUnitHeight() : m_pThumb->GetUnitWidth();
}

ZoScrollLayout CZoScrollBar::_layout() const
{
    ZoScrollLayout layout;
    for (int part = 0; part < ZoScrollPart_Count; ++part)
        layout.part[part] = m_aRects[part];
    layout.thumbLength = m_nThumbLength;
    return layout;
}

void CZoScrollBar::_setLayout(const ZoScrollLayout& layout)
{
    // The spare rectangle keeps whatever it holds.
    for (int part = ZoScrollPart_Prev; part < ZoScrollPart_Count; ++part)
        m_aRects[part] = layout.part[part];
    m_nThumbLength = layout.thumbLength;
}

void CZoScrollBar::_initDimensions()
{
    const bool vertical = _isVertical();
    int buttonUnit = 0;
    if (isLoaded(m_pButtons))
        buttonUnit = vertical ? m_pButtons->GetUnitHeight() : m_pButtons->GetUnitWidth();
    CRect client;
    GetClientRect(&client);
    _setLayout(ZoScrollInitialLayout(client, vertical, GetButtonGapSize(), buttonUnit, _thumbUnitLength()));
}

void CZoScrollBar::_updateRects()
{
    ZoScrollLayout layout = _layout();
    ZoScrollUpdateRects(layout, _isVertical(), m_nThumbPos, _thumbUnitLength());
    _setLayout(layout);
}

SCROLLINFO CZoScrollBar::_readScrollInfo()
{
    SCROLLINFO info;
    ::ZeroMemory(&info, sizeof(info));
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    // Asked of the bar's own procedure: a drag step reads the range several times, and a sent
    // message would pass the thread's message hooks each time.
    ZoCallWindow(m_hWnd, SBM_GETSCROLLINFO, 0, (LPARAM)&info);
    return info;
}

void CZoScrollBar::_updateThumbSize()
{
    const bool vertical = _isVertical();
    const ZoScrollLayout layout = _layout();
    const int total =
        ZoScrollChannelEnd(layout, vertical) - ZoScrollChannelStart(layout, vertical) + 2 * GetButtonGapSize();
    m_nThumbLength = ZoScrollThumbLength(_readScrollInfo(), total, _thumbUnitLength());
}

int CZoScrollBar::_track() { return ZoScrollTrack(_layout(), _isVertical(), GetButtonGapSize()); }

int CZoScrollBar::_calcThumbPosFromScrollPos(int pos)
{
    return ZoScrollThumbPosFromScrollPos(_readScrollInfo(), pos, _track());
}

int CZoScrollBar::_calcScrollPosFromThumbPos(int thumbPos)
{
    return ZoScrollScrollPosFromThumbPos(_readScrollInfo(), thumbPos, _track());
}

int CZoScrollBar::_axisCoordinate(CPoint point) const { return _isVertical() ? point.y : point.x; }

int CZoScrollBar::_calcThumbPosFromScreenPos(CPoint point, int offset, bool noClamp)
{
    const bool vertical = _isVertical();
    const ZoScrollLayout layout = _layout();
    return ZoScrollThumbPosFromPoint(_axisCoordinate(point), ZoScrollChannelStart(layout, vertical),
                                     ZoScrollChannelEnd(layout, vertical), m_nThumbLength, GetButtonGapSize(),
                                     offset, noClamp);
}

CZoScrollBar::E_CurState CZoScrollBar::_stateOf(E_SBHitCode part) const
{
    if (!IsWindowEnabled())
        return CurState_Disabled;
    if (part == m_ePressed)
        return CurState_Pressed;
    if (part == m_eHover)
        return CurState_Hover;
    return CurState_Normal;
}

void CZoScrollBar::_notify(WPARAM wParam)
{
    const UINT message = _isVertical() ? WM_VSCROLL : WM_HSCROLL;
    const HWND hTarget = m_pBuddy ? m_pBuddy->GetSafeHwnd() : ::GetParent(m_hWnd);
    ::SendMessageW(hTarget, message, wParam, (LPARAM)m_hWnd);
}

void CZoScrollBar::_sendPressedMessage(bool end)
{
    SCROLLINFO info = _readScrollInfo();
    const int thumbScrollPos = _calcScrollPosFromThumbPos(m_nThumbPos);
    UINT code = SB_ENDSCROLL;
    int highWord = 0;
    if (end)
    {
        info.nPos = thumbScrollPos;
    }
    else
    {
        const ZoScrollStep step = ZoScrollStepForPart(info, m_ePressed, thumbScrollPos);
        info.nPos = step.pos;
        code = step.code;
        if (m_ePressed == SBHit_Thumb)
        {
            info.nTrackPos = step.pos;
            highWord = step.pos;
        }
    }
    info.fMask = SIF_ALL;
    SetScrollInfo(&info, FALSE);
    _notify(MAKEWPARAM(code, (WORD)highWord));
}

void CZoScrollBar::_sendTrackingMessage(bool final)
{
    if (m_ePressed != SBHit_Thumb)
        return;
    const int pos = _calcScrollPosFromThumbPos(m_nThumbPos);
    _notify(MAKEWPARAM(final ? SB_THUMBPOSITION : SB_THUMBTRACK, (WORD)pos));
}

int CZoScrollBar::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CScrollBar::OnCreate(lpCreateStruct) == -1)
        return -1;
    _init();
    return 0;
}

void CZoScrollBar::OnDestroy()
{
    CScrollBar::OnDestroy();
    KillTimer(TimerRepeat);
    KillTimer(TimerFirstDelay);
}

void CZoScrollBar::DrawClient(CDC& dc)
{
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, m_crBackground);

    const bool vertical = _isVertical();
    const int variant = m_eScrollBarTheme;
    const CRect& prev = m_aRects[SBHit_PrevButton];
    const CRect& next = m_aRects[SBHit_NextButton];
    if (isLoaded(m_pBack))
    {
        const CRect channel = vertical ? CRect(prev.left, prev.bottom, next.right, next.top)
                                       : CRect(prev.right, prev.top, next.left, next.bottom);
        if (channel.Width() > 0 && channel.Height() > 0)
            m_pBack->DrawUnitImage(dc, channel.left, channel.top, channel.Width(), channel.Height(), 0, variant,
                                   kTransparent);
    }
    if (isLoaded(m_pButtons))
    {
        m_pButtons->DrawUnitImage(dc, prev.left, prev.top, prev.Width(), prev.Height(), _stateOf(SBHit_PrevButton),
                                  variant * 2, kTransparent);
        m_pButtons->DrawUnitImage(dc, next.left, next.top, next.Width(), next.Height(), _stateOf(SBHit_NextButton),
                                  variant * 2 + 1, kTransparent);
    }
    if (isLoaded(m_pBack))
    {
        const E_SBHitCode pages[] = {SBHit_PageBefore, SBHit_PageAfter};
        for (int i = 0; i < 2; ++i)
        {
            const CRect& page = m_aRects[pages[i]];
            if (!page.IsRectEmpty())
                m_pBack->DrawUnitImage(dc, page.left, page.top, page.Width(), page.Height(), _stateOf(pages[i]),
                                       variant, kTransparent);
        }
    }
    const CRect& thumb = m_aRects[SBHit_Thumb];
    if (thumb.IsRectEmpty())
        _drawDisabledThumbButton(dc, CPoint((prev.right + next.left) / 2, (prev.bottom + next.top) / 2), vertical);
    else
        _drawThumbButton(dc, thumb, _stateOf(SBHit_Thumb), vertical);
}

void CZoScrollBar::_drawThumbButton(CDC& dc, const CRect& rect, E_CurState state, bool vertical)
{
    if (!isLoaded(m_pThumb))
        return;
    const int gap = GetButtonGapSize();
    CRect r = rect;
    const int variant = m_eScrollBarTheme;
    if (vertical)
    {
        r.OffsetRect(0, -gap);
        const int u = m_pThumb->GetUnitHeight();
        m_pThumb->DrawUnitImage(dc, r.left, r.top, r.Width(), u, state, variant * 3, kTransparent);
        m_pThumb->DrawUnitImage(dc, r.left, r.top + u, r.Width(), r.Height() - 2 * u, state, variant * 3 + 1,
                                kTransparent);
        m_pThumb->DrawUnitImage(dc, r.left, r.bottom - u, r.Width(), u, state, variant * 3 + 2, kTransparent);
    }
    else
    {
        r.OffsetRect(-gap, 0);
        const int u = m_pThumb->GetUnitWidth();
        m_pThumb->DrawUnitImage(dc, r.left, r.top, u, r.Height(), state * 3, variant, kTransparent);
        m_pThumb->DrawUnitImage(dc, r.left + u, r.top, r.Width() - 2 * u, r.Height(), state * 3 + 1, variant,
                                kTransparent);
        m_pThumb->DrawUnitImage(dc, r.right - u, r.top, u, r.Height(), state * 3 + 2, variant, kTransparent);
    }
}

void CZoScrollBar::_drawDisabledThumbButton(CDC& dc, CPoint centre, bool vertical)
{
    if (!isLoaded(m_pThumb))
        return;
    const int w = m_pThumb->GetUnitWidth();
    const int h = m_pThumb->GetUnitHeight();
    const int variant = m_eScrollBarTheme;
    if (vertical)
    {
        m_pThumb->DrawUnitImage(dc, centre.x - w / 2, centre.y - h, w, h, CurState_Disabled, variant * 3,
                                kTransparent);
        m_pThumb->DrawUnitImage(dc, centre.x - w / 2, centre.y, w, h, CurState_Disabled, variant * 3 + 2,
                                kTransparent);
    }
    else
    {
        // The middle piece, not the right cap, completes the horizontal placeholder.
        m_pThumb->DrawUnitImage(dc, centre.x - w, centre.y - h / 2, w, h, CurState_Disabled * 3, variant,
                                kTransparent);
        m_pThumb->DrawUnitImage(dc, centre.x, centre.y - h / 2, w, h, CurState_Disabled * 3 + 1, variant,
                                kTransparent);
    }
}

void CZoScrollBar::OnSize(UINT nType, int cx, int cy)
{
    CScrollBar::OnSize(nType, cx, cy);
    if (!m_bInitialized || cx < 1 || cy < 1)
        return;
    _initDimensions();
    _updateRects();
    RepaintNow();
}

void CZoScrollBar::OnLButtonDown(UINT, CPoint point)
{
    KillTimer(TimerFirstDelay);
    KillTimer(TimerRepeat);
    m_ePressed = HitTest(point);
    if (m_ePressed == SBHit_None)
        return;
    const ZoScrollLayout layout = _layout();
    m_nDragOffset = m_nThumbPos - (_axisCoordinate(point) - ZoScrollChannelStart(layout, _isVertical()));
    RepaintNow();
    _sendPressedMessage(false);
    // The owner may have destroyed the bar in its handler: a timer of a window that is gone would
    // fire for ever as a thread timer.
    if (!::IsWindow(m_hWnd))
        return;
    SetCapture();
    if (m_ePressed != SBHit_Thumb)
        SetTimer(TimerFirstDelay, kFirstDelayMs, NULL);
}

void CZoScrollBar::OnLButtonUp(UINT, CPoint)
{
    const E_SBHitCode pressed = _endPress();
    if (pressed == SBHit_None)
        return;
    if (pressed == SBHit_Thumb)
        _notify(MAKEWPARAM(SB_THUMBPOSITION, (WORD)_calcScrollPosFromThumbPos(m_nThumbPos)));
    RepaintNow();
}

CZoScrollBar::E_SBHitCode CZoScrollBar::_endPress()
{
    const E_SBHitCode pressed = m_ePressed;
    // Cleared before the capture goes, so that its loss is not taken for an abandoned press.
    m_ePressed = SBHit_None;
    KillTimer(TimerFirstDelay);
    KillTimer(TimerRepeat);
    if (::GetCapture() == m_hWnd)
        ::ReleaseCapture();
    return pressed;
}

void CZoScrollBar::_abandonPress()
{
    if (_endPress() == SBHit_None)
        return;
    // The thumb goes back to where the owner left the position; nobody is told.
    m_nThumbPos = _calcThumbPosFromScrollPos(::GetScrollPos(m_hWnd, SB_CTL));
    _updateRects();
    RepaintNow();
}

void CZoScrollBar::OnCaptureChanged(CWnd* pWnd)
{
    _abandonPress();
    CScrollBar::OnCaptureChanged(pWnd);
}

void CZoScrollBar::OnCancelMode()
{
    _abandonPress();
    CScrollBar::OnCancelMode();
}

// A double click is not a second press.
void CZoScrollBar::OnLButtonDblClk(UINT, CPoint) {}

// No context menu.
void CZoScrollBar::OnRButtonUp(UINT, CPoint) {}

void CZoScrollBar::OnTimer(UINT_PTR nIDEvent)
{
    if (nIDEvent != TimerFirstDelay && nIDEvent != TimerRepeat)
    {
        CScrollBar::OnTimer(nIDEvent);
        return;
    }
    CPoint cursor;
    ::GetCursorPos(&cursor);
    ScreenToClient(&cursor);
    // Sideways drift off the bar does not stop the repetition.
    CRect client;
    GetClientRect(&client);
    if (_isVertical())
        cursor.x = (client.left + client.right) / 2;
    else
        cursor.y = (client.top + client.bottom) / 2;
    const bool overPressedPart = m_ePressed != SBHit_None && HitTest(cursor) == m_ePressed;
    if (overPressedPart)
    {
        RepaintNow();
        _sendPressedMessage(false);
        if (!::IsWindow(m_hWnd))
            return;
    }
    if (nIDEvent == TimerFirstDelay)
    {
        KillTimer(TimerFirstDelay);
        SetTimer(TimerRepeat, kRepeatMs, NULL);
    }
}

void CZoScrollBar::OnMouseMove(UINT, CPoint point)
{
    if (m_ePressed == SBHit_Thumb)
    {
        const int oldPos = _calcScrollPosFromThumbPos(m_nThumbPos);
        m_nThumbPos = _calcThumbPosFromScreenPos(point, m_nDragOffset, false);
        _updateRects();
        RepaintNow();
        if (_calcScrollPosFromThumbPos(m_nThumbPos) != oldPos)
            _sendTrackingMessage(false);
        return;
    }
    const E_SBHitCode hover = HitTest(point);
    if (hover != m_eHover)
    {
        m_eHover = hover;
        RepaintNow();
    }
    ZoTrackMouseLeave(m_hWnd);
}

void CZoScrollBar::OnMouseLeave()
{
    m_eHover = SBHit_None;
    RepaintNow();
}

} // namespace ZoControls
