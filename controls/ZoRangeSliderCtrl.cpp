#include "controls/ZoRangeSliderCtrl.h"

#include <gdiplus.h>

#include "images/ZoResourceImage.h"
#include "resources/resource.h"

namespace ZoControls {

namespace {

const COLORREF kTransparent = RGB(255, 0, 255);
const Gdiplus::ARGB kBoundColor = 0xFF14AFD7;
const Gdiplus::ARGB kBoundHoverColor = 0xFF7FF4FF;
const int kPressCodes = 3; // left bound, right bound, thumb

// A filled, anti-aliased triangle through the flat GDI+ interface.
void fillTriangle(Gdiplus::GpGraphics* pGraphics, const Gdiplus::Point (&points)[3], Gdiplus::ARGB color)
{
    Gdiplus::GpSolidFill* pBrush = NULL;
    if (Gdiplus::DllExports::GdipCreateSolidFill(color, &pBrush) != Gdiplus::Ok)
        return;
    Gdiplus::DllExports::GdipFillPolygonI(pGraphics, pBrush, points, 3, Gdiplus::FillModeAlternate);
    Gdiplus::DllExports::GdipDeleteBrush(pBrush);
}

} // namespace

IMPLEMENT_DYNAMIC(CZoRangeSliderCtrl, CZoSliderCtrl)

BEGIN_MESSAGE_MAP(CZoRangeSliderCtrl, CZoSliderCtrl)
    ON_WM_CREATE()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
    ON_WM_CANCELMODE()
END_MESSAGE_MAP()

CZoRangeSliderCtrl::CZoRangeSliderCtrl()
    : m_bBoundsShown(false), m_ptLeftBound(0, 0), m_ptRightBound(0, 0), m_rcLeftBound(0, 0, 0, 0),
      m_rcRightBound(0, 0, 0, 0), m_rcThumb(0, 0, 0, 0), m_pOwnThumb(NULL), m_bOwnPress(false)
{
    for (int i = 0; i < kPressCodes; ++i)
    {
        m_abPressed[i] = false;
        m_abHover[i] = false;
    }
}

CZoRangeSliderCtrl::~CZoRangeSliderCtrl() { delete m_pOwnThumb; }

void CZoRangeSliderCtrl::PreSubclassWindow()
{
    CZoSliderCtrl::PreSubclassWindow();
    _loadOwnStrip();
}

int CZoRangeSliderCtrl::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CZoSliderCtrl::OnCreate(lpCreateStruct) == -1)
        return -1;
    _loadOwnStrip();
    return 0;
}

void CZoRangeSliderCtrl::_loadOwnStrip()
{
    delete m_pOwnThumb;
    m_pOwnThumb = NULL;
    const DWORD style = GetStyle();
    if ((style & TBS_ENABLESELRANGE) == 0 || (style & TBS_NOTHUMB) != 0)
        return;
    m_pOwnThumb = new CZoResourceBMPImage();
    m_pOwnThumb->LoadResourceImage(L"BMP_ZO_SLIDERNORMAL_HOR_BOTH", m_eMonitorSize, 4, 1);
}

float CZoRangeSliderCtrl::_ratio() const
{
    CRect channel;
    GetChannelRect(&channel);
    return ZoRangeRatio(GetRangeMin(), GetRangeMax(), channel.Width());
}

int CZoRangeSliderCtrl::_thumbWidth() const { return _platformThumbRect().Width(); }

int CZoRangeSliderCtrl::ConvertWindowX2SliderPos(int x) const { return ZoRangeOffsetToValue(x, _ratio()); }

int CZoRangeSliderCtrl::ConvertSliderPos2WindowX(int pos) const { return ZoRangeValueToOffset(pos, _ratio()); }

void CZoRangeSliderCtrl::SetSelection(int nMin, int nMax)
{
    CZoSliderCtrl::SetSelection(nMin, nMax);
    CRect channel;
    GetChannelRect(&channel);
    const float ratio = _ratio();
    m_ptLeftBound = CPoint(ZoRangeValueToOffset(nMin, ratio) + channel.left, channel.bottom);
    m_ptRightBound = CPoint(ZoRangeValueToOffset(nMax, ratio) + channel.left, channel.bottom);
    const int w = _thumbWidth();
    CreateSensitiveBoundRect(m_ptLeftBound, w, m_rcLeftBound, true);
    CreateSensitiveBoundRect(m_ptRightBound, w, m_rcRightBound, false);
    m_bBoundsShown = true;
    Invalidate(FALSE);
}

void CZoRangeSliderCtrl::SetPos(int nPos)
{
    SendMessage(TBM_SETPOS, TRUE, nPos);
    CreateSensitiveThumbRect(2 * _thumbWidth(), m_rcThumb);
}

int CZoRangeSliderCtrl::HitTest(CPoint point) const
{
    CRect thumb;
    GetThumbRect(&thumb);
    CRect channel;
    GetChannelRect(&channel);
    return ZoRangeHitTest(point, thumb, m_rcLeftBound, m_rcRightBound, channel, m_rcThumb);
}

void CZoRangeSliderCtrl::NotifyChangedSelectionToParent(int code) const
{
    ::SendMessageW(::GetParent(m_hWnd), ZoMsg_RangeChanged, (WPARAM)code, 0);
}

void CZoRangeSliderCtrl::_notifyScroll(UINT code, int pos) const
{
    ::SendMessageW(::GetParent(m_hWnd), WM_HSCROLL, MAKEWPARAM(code, (WORD)pos), (LPARAM)m_hWnd);
}

void CZoRangeSliderCtrl::SetPressedState(int code)
{
    if (code >= 0 && code < kPressCodes)
        m_abPressed[code] = true;
}

void CZoRangeSliderCtrl::SetBoundHover(int code)
{
    if (code >= 0 && code < kPressCodes)
        m_abHover[code] = true;
}

void CZoRangeSliderCtrl::CreateSensitiveBoundRect(CPoint pt, int size, CRect& rc, bool left)
{
    rc = ZoRangeBoundRect(pt, size, left);
}

void CZoRangeSliderCtrl::CreateSensitiveThumbRect(int size, CRect& rc)
{
    CRect thumb;
    GetThumbRect(&thumb);
    rc = ZoRangeThumbAreaRect(thumb, size);
}

void CZoRangeSliderCtrl::PopUpMenuToReset(const CPoint& pt)
{
    CString text;
    if (!text.LoadString(IDS_ZO_RESET_RANGE))
        return;
    CMenu menu;
    if (!menu.CreatePopupMenu())
        return;
    menu.AppendMenu(MF_STRING, ResetCommand, text);
    CPoint screen = pt;
    ClientToScreen(&screen);
    const UINT chosen = (UINT)menu.TrackPopupMenu(TPM_RETURNCMD | TPM_BOTTOMALIGN | TPM_CENTERALIGN, screen.x,
                                                  screen.y, this);
    menu.DestroyMenu();
    if (chosen != ResetCommand || !::IsWindow(m_hWnd))
        return;
    SetSelection(GetRangeMin(), GetRangeMax());
    NotifyChangedSelectionToParent(ZoRangeChange_Reset);
}

void CZoRangeSliderCtrl::DrawClient(CDC& dc)
{
    CRect client;
    GetClientRect(&client);
    DrawSlider(dc, client);
    if (ShowsFocusCue())
        ZoDrawFocusCue(dc, client);
}

void CZoRangeSliderCtrl::DrawSlider(CDC& dc, const CRect& rect) const
{
    CZoSliderCtrl::DrawSlider(dc, rect);
    DrawBound(dc);
}

void CZoRangeSliderCtrl::DrawThumb(CDC& dc, const CRect& rect) const
{
    if (!m_pOwnThumb || !m_pOwnThumb->IsLoaded() || rect.IsRectEmpty())
        return;
    // No pressed look: the thumb is either disabled, hovered or normal.
    int column = ThumbState_Normal;
    if (!IsWindowEnabled())
        column = ThumbState_Disabled;
    else if (m_abHover[ZoRangeHit_ThumbArea])
        column = ThumbState_Hover;
    m_pOwnThumb->DrawUnitImage(dc, rect.left, rect.top, rect.Width(), rect.Height(), column, 0, kTransparent);
}

void CZoRangeSliderCtrl::DrawBound(CDC& dc) const
{
    if (!m_bBoundsShown)
        return;
    Gdiplus::GpGraphics* pGraphics = NULL;
    if (Gdiplus::DllExports::GdipCreateFromHDC(dc.GetSafeHdc(), &pGraphics) != Gdiplus::Ok)
        return;
    Gdiplus::DllExports::GdipSetCompositingQuality(pGraphics, Gdiplus::CompositingQualityGammaCorrected);
    Gdiplus::DllExports::GdipSetSmoothingMode(pGraphics, Gdiplus::SmoothingModeAntiAlias);
    const int w = _thumbWidth();
    const int d = (int)(w * 0.75);
    const CPoint l = m_ptLeftBound;
    const CPoint r = m_ptRightBound;
    const Gdiplus::Point left[3] = {Gdiplus::Point(l.x, l.y), Gdiplus::Point(l.x, l.y + w),
                                    Gdiplus::Point(l.x - d, l.y + w)};
    const Gdiplus::Point right[3] = {Gdiplus::Point(r.x, r.y), Gdiplus::Point(r.x, r.y + w),
                                     Gdiplus::Point(r.x + d, r.y + w)};
    fillTriangle(pGraphics, left, m_abHover[ZoRangeHit_LeftBound] ? kBoundHoverColor : kBoundColor);
    fillTriangle(pGraphics, right, m_abHover[ZoRangeHit_RightBound] ? kBoundHoverColor : kBoundColor);
    Gdiplus::DllExports::GdipDeleteGraphics(pGraphics);
}

void CZoRangeSliderCtrl::OnLButtonDown(UINT nFlags, CPoint point)
{
    const int hit = HitTest(point);
    if (hit == ZoRangeHit_None)
    {
        // The platform pages and tracks as usual.
        CZoSliderCtrl::OnLButtonDown(nFlags, point);
        return;
    }
    SetCapture();
    m_bOwnPress = true;
    if (hit == ZoRangeHit_Thumb || hit == ZoRangeHit_ThumbArea)
    {
        SetPressedState(ZoRangeHit_ThumbArea);
    }
    else if (hit == ZoRangeHit_Channel)
    {
        CRect channel;
        GetChannelRect(&channel);
        SetPos(ConvertWindowX2SliderPos(point.x - channel.left));
        // The position the thumb took, kept inside the range by the platform.
        _notifyScroll(TB_THUMBPOSITION, GetPos());
    }
    else
    {
        SetPressedState(hit);
    }
}

void CZoRangeSliderCtrl::OnMouseMove(UINT nFlags, CPoint point)
{
    for (int i = 0; i < kPressCodes; ++i)
        m_abHover[i] = false;
    InvalidateRect(&m_rcLeftBound, FALSE);
    InvalidateRect(&m_rcRightBound, FALSE);
    InvalidateRect(&m_rcThumb, FALSE);
    const int hit = HitTest(point);
    if (hit == ZoRangeHit_LeftBound || hit == ZoRangeHit_RightBound)
    {
        SetBoundHover(hit);
        InvalidateRect(hit == ZoRangeHit_LeftBound ? &m_rcLeftBound : &m_rcRightBound, FALSE);
    }
    else if (hit == ZoRangeHit_ThumbArea || hit == ZoRangeHit_Thumb)
    {
        SetBoundHover(ZoRangeHit_ThumbArea);
    }
    CRect channel;
    GetChannelRect(&channel);
    const int value = ConvertWindowX2SliderPos(point.x - channel.left);
    int start = 0;
    int end = 0;
    GetSelection(start, end);
    if (m_abPressed[ZoRangeHit_LeftBound])
    {
        SetSelection(ZoRangeDragLeft(value, end, GetRangeMin()), end);
        NotifyChangedSelectionToParent(ZoRangeChange_Dragged);
    }
    else if (m_abPressed[ZoRangeHit_RightBound])
    {
        SetSelection(start, ZoRangeDragRight(value, start, GetRangeMax()));
        NotifyChangedSelectionToParent(ZoRangeChange_Dragged);
    }
    else if (m_abPressed[ZoRangeHit_ThumbArea])
    {
        SetPos(value);
        _notifyScroll(TB_THUMBTRACK, GetPos());
    }
    else
    {
        CZoSliderCtrl::OnMouseMove(nFlags, point);
    }
}

bool CZoRangeSliderCtrl::_endOwnPress()
{
    if (!m_bOwnPress)
        return false;
    m_bOwnPress = false;
    for (int i = 0; i < kPressCodes; ++i)
        m_abPressed[i] = false;
    return true;
}

void CZoRangeSliderCtrl::OnLButtonUp(UINT nFlags, CPoint point)
{
    if (!m_bOwnPress)
    {
        CZoSliderCtrl::OnLButtonUp(nFlags, point);
        return;
    }
    // The capture change this release causes ends the press (see OnCaptureChanged).
    ReleaseCapture();
    _endOwnPress();
    _notifyScroll(TB_ENDTRACK, GetPos());
    // The platform never saw this press: its button-up would report a second end of tracking.
    RepaintNow();
}

void CZoRangeSliderCtrl::OnCaptureChanged(CWnd* pWnd)
{
    // A press of ours ends without a word to the parent. The platform is not told: it never saw
    // the press, and Wine's trackbar reports an end of tracking on any capture change.
    if (_endOwnPress())
    {
        RepaintNow();
        return;
    }
    CZoSliderCtrl::OnCaptureChanged(pWnd);
}

void CZoRangeSliderCtrl::OnCancelMode()
{
    if (!m_bOwnPress)
    {
        CZoSliderCtrl::OnCancelMode();
        return;
    }
    // Released while the press still counts as ours, so the capture change stays silent.
    if (GetCapture() == this)
        ReleaseCapture();
    _endOwnPress();
    RepaintNow();
}

} // namespace ZoControls
