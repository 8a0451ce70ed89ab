#include "controls/ZoSliderCtrl.h"

#include "controls/ZoControlTheme.h"
#include "controls/ZoWindowHelpers.h"
#include "core/ZoThemeManager.h"
#include "images/ZoResourceImage.h"

namespace ZoControls {

namespace {

const COLORREF kTransparent = RGB(255, 0, 255);
const int kStripColumns = 4;
const int kStripRows = 1;
// Colour slots of theme 0.
const int kBackgroundSlot = 0;
const int kChannelSlot = 45;
const int kTickSlot = 46;
const int kSelectionSlot = 47;
// The selection bar leaves this much of the channel above and below it.
const int kSelectionInset = 3;

COLORREF sliderColor(int slot) { return ZoSlotColor(slot, ZoTheme_Default); }

} // namespace

CRect ZoSliderChannelInScreenOrientation(const CRect& platform, bool vertical)
{
    if (!vertical || platform.Width() <= platform.Height())
        return platform;
    return CRect(platform.top, platform.left, platform.bottom, platform.right);
}

IMPLEMENT_DYNAMIC(CZoSliderCtrl, CSliderCtrl)

BEGIN_MESSAGE_MAP(CZoSliderCtrl, CSliderCtrl)
    ON_WM_CREATE()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSELEAVE()
    ON_WM_CAPTURECHANGED()
    ON_WM_CANCELMODE()
    ON_MESSAGE(TBM_GETCHANNELRECT, &CZoSliderCtrl::OnGetChannelRect)
    ON_MESSAGE(TBM_CLEARTICS, &CZoSliderCtrl::OnClearTics)
    ON_MESSAGE(TBM_SETTIC, &CZoSliderCtrl::OnSetTic)
    ON_MESSAGE(TBM_SETTICFREQ, &CZoSliderCtrl::OnSetTicFreq)
    ON_MESSAGE(TBM_SETRANGE, &CZoSliderCtrl::OnSetRangeMessage)
    ON_MESSAGE(TBM_SETRANGEMIN, &CZoSliderCtrl::OnSetRangeMessage)
    ON_MESSAGE(TBM_SETRANGEMAX, &CZoSliderCtrl::OnSetRangeMessage)
    ON_MESSAGE(TBM_GETPTICS, &CZoSliderCtrl::OnGetPTics)
    ON_MESSAGE(TBM_GETTIC, &CZoSliderCtrl::OnGetTic)
    ON_MESSAGE(TBM_GETTICPOS, &CZoSliderCtrl::OnGetTicPos)
    ON_MESSAGE(TBM_GETNUMTICS, &CZoSliderCtrl::OnGetNumTics)
    ZO_ON_MENUXP_MESSAGES()
END_MESSAGE_MAP()

ZO_IMPLEMENT_MENUXP_FORWARDING(CZoSliderCtrl, CSliderCtrl)

CZoSliderCtrl::CZoSliderCtrl()
    : m_eTheme(ZoTheme_Default), m_eMonitorSize(ZoMonitorSize_Unknown), m_pThumb(NULL), m_bNoSelection(true),
      m_bHorizontal(true), m_bBoth(true), m_bTopOrLeft(false), m_bDownIsLeft(false), m_bHover(false),
      m_bPressed(false), m_nSelStart(0), m_nSelEnd(0)
{
    ZoTickListInit(m_ticks);
}

CZoSliderCtrl::~CZoSliderCtrl()
{
    delete m_pThumb;
    ZoTickListClear(m_ticks);
}

void CZoSliderCtrl::SetSelection(int nMin, int nMax)
{
    GetSelectionRect(nMin, nMax);
    CSliderCtrl::SetSelection(nMin, nMax);
}

void CZoSliderCtrl::PreSubclassWindow()
{
    _init();
    CSliderCtrl::PreSubclassWindow();
}

int CZoSliderCtrl::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CSliderCtrl::OnCreate(lpCreateStruct) == -1)
        return -1;
    _init();
    return 0;
}

void CZoSliderCtrl::_init()
{
    m_eTheme = ZoGetCurrentThemeIndex(this);
    m_eMonitorSize = ZoGetCurrentMonitorSize(this, false);
    _loadResource();
    ZoMenuOptIn(this);
}

void CZoSliderCtrl::_loadResource()
{
    const DWORD style = GetStyle();
    m_bNoSelection = (style & TBS_ENABLESELRANGE) == 0;
    m_bHorizontal = (style & TBS_VERT) == 0;
    m_bBoth = (style & TBS_BOTH) != 0;
    m_bTopOrLeft = (style & TBS_TOP) != 0;
    m_bDownIsLeft = (style & TBS_DOWNISLEFT) != 0;
    // Creation through MFC initialises twice (PreSubclassWindow, then WM_CREATE).
    delete m_pThumb;
    m_pThumb = NULL;
    const CString name = ZoSliderThumbStripName(style);
    if (name.IsEmpty())
        return;
    m_pThumb = new CZoResourceBMPImage();
    m_pThumb->LoadResourceImage(name, m_eMonitorSize, kStripColumns, kStripRows);
}

void CZoSliderCtrl::DrawClient(CDC& dc)
{
    CRect client;
    GetClientRect(&client);
    DrawSlider(dc, client);
    if (ShowsFocusCue())
        ZoDrawFocusCue(dc, ZoSliderFocusRect(client, _channelRect(), _thumbRect(client)));
}

LRESULT CZoSliderCtrl::_askPlatform(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return const_cast<CZoSliderCtrl*>(this)->DefWindowProc(message, wParam, lParam);
}

CRect CZoSliderCtrl::_platformThumbRect() const
{
    CRect thumb(0, 0, 0, 0);
    _askPlatform(TBM_GETTHUMBRECT, 0, reinterpret_cast<LPARAM>(static_cast<RECT*>(&thumb)));
    return thumb;
}

CRect CZoSliderCtrl::_channelRect() const
{
    CRect channel(0, 0, 0, 0);
    _askPlatform(TBM_GETCHANNELRECT, 0, reinterpret_cast<LPARAM>(static_cast<RECT*>(&channel)));
    return ZoSliderChannelInScreenOrientation(channel, !m_bHorizontal);
}

int CZoSliderCtrl::_tickCount() const
{
    if (GetStyle() & TBS_NOTICKS)
        return 0;
    return (int)m_ticks.count + 2;
}

CRect CZoSliderCtrl::_thumbRect(const CRect& client) const
{
    const CRect thumb = _platformThumbRect();
    CRect visible;
    visible.IntersectRect(&thumb, &client);
    return visible;
}

void CZoSliderCtrl::DrawSlider(CDC& dc, const CRect& rect) const
{
    const CRect thumb = _thumbRect(rect);
    const CRect channel = _channelRect();
    ClearSlider(dc, rect);
    DrawChannel(dc, channel);
    if ((GetStyle() & TBS_NOTICKS) == 0)
        DrawTicks(dc, rect, channel, thumb);
    if (!m_bNoSelection)
        DrawSelection(dc);
    DrawThumb(dc, thumb);
}

void CZoSliderCtrl::ClearSlider(CDC& dc, const CRect& rect) const
{
    dc.FillSolidRect(&rect, sliderColor(kBackgroundSlot));
}

void CZoSliderCtrl::DrawChannel(CDC& dc, const CRect& rect) const
{
    const COLORREF color = sliderColor(kChannelSlot);
    dc.Draw3dRect(&rect, color, color);
    dc.FillSolidRect(&rect, color);
}

CZoSliderCtrl::E_ThumbState CZoSliderCtrl::_thumbState() const
{
    if (!IsWindowEnabled())
        return ThumbState_Disabled;
    if (m_bPressed)
        return ThumbState_Pressed;
    return m_bHover ? ThumbState_Hover : ThumbState_Normal;
}

void CZoSliderCtrl::DrawThumb(CDC& dc, const CRect& rect) const
{
    if (!m_pThumb || !m_pThumb->IsLoaded() || rect.IsRectEmpty())
        return;
    m_pThumb->DrawUnitImage(dc, rect.left, rect.top, rect.Width(), rect.Height(), _thumbState(), 0, kTransparent);
}

void CZoSliderCtrl::DrawTicks(CDC& dc, const CRect&, const CRect& channel, const CRect& thumb) const
{
    const int count = _tickCount();
    if (count < 1)
        return;
    const float zoom = ZoCurrentZoom(m_eMonitorSize);
    const int gap = ZoSliderTickGap(zoom);
    const int length = ZoSliderTickLength(zoom);
    CPen pen(PS_SOLID, 1, sliderColor(kTickSlot));
    CPen* pOldPen = dc.SelectObject(&pen);
    const int thumbLength = m_bHorizontal ? thumb.Width() : thumb.Height();
    const int start = m_bHorizontal ? channel.left : channel.top;
    const int end = m_bHorizontal ? channel.right : channel.bottom;
    // Ticks before the thumb (above or left of it) and after it.
    const bool before = m_bTopOrLeft || m_bBoth;
    const bool after = !m_bTopOrLeft || m_bBoth;
    const TickAxis axis = _readTickAxis();
    const int beforeFrom = (m_bHorizontal ? thumb.top : thumb.left) - length - gap;
    const int afterFrom = (m_bHorizontal ? thumb.bottom : thumb.right) + gap;
    for (int i = 0; i < count; ++i)
    {
        int at = 0;
        if (i == 0)
            at = ZoSliderFirstTickPixel(start, thumbLength);
        else if (i == count - 1)
            at = ZoSliderLastTickPixel(end, thumbLength);
        else
            at = _tickPixel(i - 1, axis);
        const int froms[2] = {beforeFrom, afterFrom};
        const bool drawn[2] = {before, after};
        for (int side = 0; side < 2; ++side)
        {
            if (!drawn[side])
                continue;
            if (m_bHorizontal)
            {
                dc.MoveTo(at, froms[side]);
                dc.LineTo(at, froms[side] + length);
            }
            else
            {
                dc.MoveTo(froms[side], at);
                dc.LineTo(froms[side] + length, at);
            }
        }
    }
    dc.SelectObject(pOldPen);
}

void CZoSliderCtrl::DrawSelection(CDC& dc) const
{
    if (m_bNoSelection || !m_bHorizontal)
        return;
    const CRect channel = _channelRect();
    const CRect bar(channel.left + m_nSelStart, channel.top + kSelectionInset, channel.left + m_nSelEnd,
                    channel.bottom - kSelectionInset);
    if (bar.Width() > 0 && bar.Height() > 0)
        dc.FillSolidRect(&bar, sliderColor(kSelectionSlot));
}

void CZoSliderCtrl::GetSelectionRect(const int& nStart, const int& nEnd)
{
    if (!m_bHorizontal)
        return;
    CRect channel;
    GetChannelRect(&channel);
    const int lo = GetRangeMin();
    const int hi = GetRangeMax();
    m_nSelStart = ZoSliderSelectionOffset(nStart, lo, hi, channel.Width());
    m_nSelEnd = ZoSliderSelectionOffset(nEnd, lo, hi, channel.Width());
}

void CZoSliderCtrl::OnMouseMove(UINT nFlags, CPoint point)
{
    if (!m_bHover)
    {
        m_bHover = true;
        RepaintNow();
    }
    ZoTrackMouseLeave(m_hWnd);
    CSliderCtrl::OnMouseMove(nFlags, point);
}

void CZoSliderCtrl::OnLButtonDown(UINT nFlags, CPoint point)
{
    // A press anywhere shows the pressed thumb, also while the platform pages.
    m_bPressed = true;
    RepaintNow();
    CSliderCtrl::OnLButtonDown(nFlags, point);
}

void CZoSliderCtrl::OnLButtonUp(UINT nFlags, CPoint point)
{
    m_bPressed = false;
    RepaintNow();
    CSliderCtrl::OnLButtonUp(nFlags, point);
}

void CZoSliderCtrl::OnMouseLeave()
{
    if (m_bHover)
    {
        m_bHover = false;
        RepaintNow();
    }
    Default();
}

void CZoSliderCtrl::OnCaptureChanged(CWnd* pWnd)
{
    if (m_bPressed)
    {
        m_bPressed = false;
        RepaintNow();
    }
    CSliderCtrl::OnCaptureChanged(pWnd);
}

void CZoSliderCtrl::OnCancelMode()
{
    if (m_bPressed)
    {
        m_bPressed = false;
        RepaintNow();
    }
    CSliderCtrl::OnCancelMode();
}

LRESULT CZoSliderCtrl::OnGetChannelRect(WPARAM, LPARAM lParam)
{
    const LRESULT result = Default();
    RECT* pRect = reinterpret_cast<RECT*>(lParam);
    if (pRect)
        *pRect = ZoSliderChannelInScreenOrientation(CRect(*pRect), !m_bHorizontal);
    return result;
}

LRESULT CZoSliderCtrl::OnClearTics(WPARAM wParam, LPARAM)
{
    ZoTickListClear(m_ticks);
    if (wParam)
        Invalidate(TRUE);
    return 0;
}

LRESULT CZoSliderCtrl::OnSetTic(WPARAM, LPARAM lParam)
{
    if (GetStyle() & TBS_NOTICKS)
        return FALSE;
    return ZoTickListInsert(m_ticks, (int)lParam, GetRangeMin(), GetRangeMax()) ? TRUE : FALSE;
}

LRESULT CZoSliderCtrl::OnSetTicFreq(WPARAM wParam, LPARAM)
{
    const DWORD style = GetStyle();
    if ((style & TBS_AUTOTICKS) == 0 || (style & TBS_NOTICKS) != 0)
        return 0;
    ZoTickListFill(m_ticks, GetRangeMin(), GetRangeMax(), (int)wParam);
    Invalidate(FALSE);
    return 0;
}

LRESULT CZoSliderCtrl::OnSetRangeMessage(WPARAM, LPARAM)
{
    // Automatic ticks are not rebuilt: the host sends TBM_SETTICFREQ again.
    ZoTickListClear(m_ticks);
    return Default();
}

LRESULT CZoSliderCtrl::OnGetPTics(WPARAM, LPARAM) { return reinterpret_cast<LRESULT>(m_ticks.pTicks); }

LRESULT CZoSliderCtrl::OnGetTic(WPARAM wParam, LPARAM)
{
    return wParam < m_ticks.count ? m_ticks.pTicks[wParam] : -1;
}

LRESULT CZoSliderCtrl::OnGetTicPos(WPARAM wParam, LPARAM)
{
    return _tickPixel(wParam, _readTickAxis());
}

int CZoSliderCtrl::_tickPixel(WPARAM index, const TickAxis& axis) const
{
    if (index >= m_ticks.count)
        return -1;
    return ZoSliderTickPixel(m_ticks.pTicks[index], axis.rangeMin, axis.rangeMax, axis.start, axis.end,
                             axis.thumbLength);
}

CZoSliderCtrl::TickAxis CZoSliderCtrl::_readTickAxis() const
{
    const CRect thumb = _platformThumbRect();
    const CRect channel = _channelRect();
    TickAxis axis;
    axis.rangeMin = (int)_askPlatform(TBM_GETRANGEMIN, 0, 0);
    axis.rangeMax = (int)_askPlatform(TBM_GETRANGEMAX, 0, 0);
    axis.start = m_bHorizontal ? channel.left : channel.top;
    axis.end = m_bHorizontal ? channel.right : channel.bottom;
    axis.thumbLength = m_bHorizontal ? thumb.Width() : thumb.Height();
    return axis;
}

LRESULT CZoSliderCtrl::OnGetNumTics(WPARAM, LPARAM) { return _tickCount(); }

} // namespace ZoControls
