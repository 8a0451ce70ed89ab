#include "controls/ZoSpinButtonCtrl.h"

#include "controls/ZoControlColors.h"
#include "controls/ZoControlTheme.h"
#include "controls/ZoWindowHelpers.h"

namespace ZoControls {

namespace {

const COLORREF kPressedBack = RGB(255, 255, 255);

COLORREF themeColor(int slot) { return ZoSlotColor(slot, ZoTheme_Default); }

} // namespace

void ZoSpinHalves(const RECT& client, bool horizontal, RECT& first, RECT& second)
{
    first = client;
    second = client;
    if (horizontal)
    {
        const int middle = (client.left + client.right) / 2;
        first.right = middle + 1;
        second.left = middle;
    }
    else
    {
        const int middle = (client.top + client.bottom) / 2;
        first.bottom = middle + 1;
        second.top = middle;
    }
}

int ZoSpinHitTest(const RECT& client, bool horizontal, POINT pt)
{
    if (!::PtInRect(&client, pt))
        return 0;
    if (horizontal)
        return pt.x < (client.left + client.right) / 2 ? 1 : 2;
    return pt.y < (client.top + client.bottom) / 2 ? 1 : 2;
}

void ZoSpinArrowPoints(const RECT& half, bool horizontal, bool first, POINT points[3])
{
    const int cx = (half.left + half.right) / 2;
    const int cy = (half.top + half.bottom) / 2;
    // Up and down are not mirror images: the up arrow's base is wider and sits lower.
    static const int kOffsets[4][6] = {
        {0, -2, -4, 2, 3, 2},  // up
        {3, -1, 0, 2, -3, -1}, // down
        {-2, 0, 1, -3, 1, 3},  // left
        {2, 0, -1, 3, -1, -3}, // right
    };
    const int* offsets = kOffsets[(horizontal ? 2 : 0) + (first ? 0 : 1)];
    for (int i = 0; i < 3; ++i)
    {
        points[i].x = cx + offsets[2 * i];
        points[i].y = cy + offsets[2 * i + 1];
    }
}

RECT ZoSpinOutline(const RECT& drawnFirst, const RECT& drawnSecond)
{
    RECT outline = {drawnSecond.left, drawnSecond.top, drawnSecond.right, drawnFirst.bottom};
    return outline;
}

IMPLEMENT_DYNAMIC(CZoSpinButtonCtrl, CSpinButtonCtrl)

BEGIN_MESSAGE_MAP(CZoSpinButtonCtrl, CSpinButtonCtrl)
    ON_WM_CAPTURECHANGED()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
END_MESSAGE_MAP()

CZoSpinButtonCtrl::CZoSpinButtonCtrl() : m_eFirstState(BtnState_Normal), m_eSecondState(BtnState_Normal) {}

CZoSpinButtonCtrl::~CZoSpinButtonCtrl() {}

bool CZoSpinButtonCtrl::_isHorizontal() const { return (GetStyle() & UDS_HORZ) != 0; }

CZoSpinButtonCtrl::BtnIndex CZoSpinButtonCtrl::HitTest(CPoint point)
{
    CRect client;
    GetClientRect(&client);
    return (BtnIndex)ZoSpinHitTest(client, _isHorizontal(), point);
}

void CZoSpinButtonCtrl::CheckRange(BtnState& first, BtnState& second)
{
    int lo = 0;
    int hi = 0;
    GetRange(lo, hi);
    const int pos = (short)LOWORD(GetPos());
    first = pos > lo ? m_eFirstState : BtnState_Disabled;
    second = pos < hi ? m_eSecondState : BtnState_Disabled;
}

void CZoSpinButtonCtrl::DrawButtonBack(CDC* pDC, const CRect& rect, BtnState state)
{
    pDC->FillSolidRect(&rect, state == BtnState_Pressed ? kPressedBack : themeColor(ZoColor_SpinFace));
}

void CZoSpinButtonCtrl::DrawButtonArrow(CDC* pDC, const CRect& rect, BtnState, bool first)
{
    POINT points[3];
    ZoSpinArrowPoints(rect, _isHorizontal(), first, points);
    CRgn region;
    if (!region.CreatePolygonRgn(points, 3, ALTERNATE))
        return;
    CBrush brush(themeColor(ZoColor_SpinArrow));
    pDC->FillRgn(&region, &brush);
}

void CZoSpinButtonCtrl::DrawButtonBorder(CDC* pDC, const CRect& rect)
{
    const COLORREF color = themeColor(ZoColor_SpinOutline);
    pDC->Draw3dRect(&rect, color, color);
}

void CZoSpinButtonCtrl::DrawClient(CDC& dc)
{
    CDC* pDC = &dc;
    CRect client;
    GetClientRect(&client);
    BtnState first = BtnState_Normal;
    BtnState second = BtnState_Normal;
    CheckRange(first, second);
    RECT firstHalf;
    RECT secondHalf;
    ZoSpinHalves(client, _isHorizontal(), firstHalf, secondHalf);

    // A hot or pressed second half is drawn last, so its edge shows over the first half's.
    const bool secondOnTop = second == BtnState_Hot || second == BtnState_Pressed;
    const CRect drawnFirst = secondOnTop ? firstHalf : secondHalf;
    const CRect drawnSecond = secondOnTop ? secondHalf : firstHalf;
    const BtnState drawnFirstState = secondOnTop ? first : second;
    const BtnState drawnSecondState = secondOnTop ? second : first;
    DrawButtonBack(pDC, drawnFirst, drawnFirstState);
    DrawButtonArrow(pDC, drawnFirst, drawnFirstState, secondOnTop);
    DrawButtonBack(pDC, drawnSecond, drawnSecondState);
    DrawButtonArrow(pDC, drawnSecond, drawnSecondState, !secondOnTop);
    DrawButtonBorder(pDC, CRect(ZoSpinOutline(drawnFirst, drawnSecond)));
}

void CZoSpinButtonCtrl::_setStates(BtnIndex active, BtnState state)
{
    m_eFirstState = active == BtnIndex_First ? state : BtnState_Normal;
    m_eSecondState = active == BtnIndex_Second ? state : BtnState_Normal;
}

void CZoSpinButtonCtrl::OnLButtonDown(UINT nFlags, CPoint point)
{
    _setStates(HitTest(point), BtnState_Pressed);
    RepaintNow();
    CSpinButtonCtrl::OnLButtonDown(nFlags, point);
}

void CZoSpinButtonCtrl::OnLButtonUp(UINT nFlags, CPoint point)
{
    _setStates(HitTest(point), BtnState_Hot);
    RepaintNow();
    CSpinButtonCtrl::OnLButtonUp(nFlags, point);
}

void CZoSpinButtonCtrl::OnMouseMove(UINT nFlags, CPoint point)
{
    const bool pressed = m_eFirstState == BtnState_Pressed || m_eSecondState == BtnState_Pressed;
    _setStates(HitTest(point), pressed ? BtnState_Pressed : BtnState_Hot);
    ZoTrackMouseLeave(m_hWnd);
    RepaintNow();
    CSpinButtonCtrl::OnMouseMove(nFlags, point);
}

void CZoSpinButtonCtrl::OnMouseLeave()
{
    _setStates(BtnIndex_None, BtnState_Normal);
    RepaintNow();
}

void CZoSpinButtonCtrl::OnCaptureChanged(CWnd* pWnd)
{
    // A release after the button-up has already turned the pressed half hot.
    if (m_eFirstState == BtnState_Pressed || m_eSecondState == BtnState_Pressed)
    {
        _setStates(BtnIndex_None, BtnState_Normal);
        RepaintNow();
    }
    CSpinButtonCtrl::OnCaptureChanged(pWnd);
}

} // namespace ZoControls
