#include "controls/SeparatorWnd.h"

#include "controls/ZoControlColors.h"
#include "controls/ZoControlTheme.h"
#include "controls/ZoWindowHelpers.h"
#include "core/ZoThemeMath.h"

namespace ZoControls {

namespace {

const int kRubberBandWidth = 3;
const int kRubberBandInset = 3;

const RECT kNoLine = {-1, -1, -1, -1};

bool sameRect(const RECT& a, const RECT& b)
{
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

COLORREF swapRedBlue(COLORREF color) { return RGB(GetBValue(color), GetGValue(color), GetRValue(color)); }

// The parent's DC with the rubber band's XOR pen selected, for one scope.
class CRubberBandDC
{
public:
    explicit CRubberBandDC(CWnd* pParent)
        : m_pParent(pParent), m_pDC(pParent ? pParent->GetDC() : NULL),
          m_pen(PS_SOLID, kRubberBandWidth, ::GetSysColor(COLOR_WINDOW)), m_pOldPen(NULL), m_oldRop(0)
    {
        if (!m_pDC)
            return;
        m_pOldPen = m_pDC->SelectObject(&m_pen);
        m_oldRop = m_pDC->SetROP2(R2_XORPEN);
    }
    ~CRubberBandDC()
    {
        if (!m_pDC)
            return;
        m_pDC->SetROP2(m_oldRop);
        m_pDC->SelectObject(m_pOldPen);
        m_pParent->ReleaseDC(m_pDC);
    }
    bool IsValid() const { return m_pDC != NULL; }
    void Line(const RECT& line)
    {
        m_pDC->MoveTo(line.left, line.top);
        m_pDC->LineTo(line.right, line.bottom);
    }

private:
    CRubberBandDC(const CRubberBandDC&);
    CRubberBandDC& operator=(const CRubberBandDC&);

    CWnd* m_pParent;
    CDC* m_pDC;
    CPen m_pen;
    CPen* m_pOldPen;
    int m_oldRop;
};

} // namespace // namespace

int ZoSeparatorClamp(int value, int low, int high)
{
    const int limited = value < high ? value : high;
    return limited > low ? limited : low;
}

IMPLEMENT_DYNAMIC(CSeparatorWnd, CZoWnd)

BEGIN_MESSAGE_MAP(CSeparatorWnd, CZoWnd)
    ON_WM_CAPTURECHANGED()
    ON_WM_CANCELMODE()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSELEAVE()
END_MESSAGE_MAP()

CSeparatorWnd::CSeparatorWnd(UINT id, E_SeparatorDirection direction, CWnd* pNotify, bool movable)
    : m_nID(id), m_eDirection(direction), m_pNotify(pNotify), m_bDragging(false), m_rcPrevLine(kNoLine),
      m_bBoundarySet(false), m_bMovable(movable), m_color(0xFF000000), m_bCustomColor(false)
{
    ::SetRectEmpty(&m_rcBoundary);
}

CSeparatorWnd::~CSeparatorWnd() {}

int CSeparatorWnd::GetWindowDirection(E_SeparatorDirection& direction) const
{
    direction = m_eDirection;
    return 2;
}

bool CSeparatorWnd::SetBoundaryOnScreen(const RECT* screenRect)
{
    m_bBoundarySet = false;
    if (!screenRect || ::IsRectEmpty(screenRect) || !m_pNotify || !::IsWindow(m_pNotify->GetSafeHwnd()))
        return false;
    m_rcBoundary = *screenRect;
    m_pNotify->ScreenToClient(&m_rcBoundary);
    m_bBoundarySet = true;
    return true;
}

void CSeparatorWnd::SetColor(const Gdiplus::Color& color)
{
    m_color = color.GetValue();
    m_bCustomColor = true;
}

COLORREF CSeparatorWnd::_lineColor() const
{
    if (m_bCustomColor)
        return (COLORREF)ZoArgbToColorRef(m_color);
    // Converted once more than anywhere else: red and blue come out exchanged, as intended.
    return swapRedBlue(ZoSlotColor(ZoColor_Separator, ZoTheme_Default));
}

void CSeparatorWnd::DrawClient(CDC& dc)
{
    CRect r;
    GetClientRect(&r);
    if (r.IsRectEmpty())
        return;
    CPen pen(PS_SOLID, 1, _lineColor());
    CPen* pOldPen = dc.SelectObject(&pen);
    for (int i = 0; i < 2; ++i)
    {
        if (_isHorizontal())
        {
            dc.MoveTo(r.left, r.top + i);
            dc.LineTo(r.right, r.top + i);
        }
        else
        {
            dc.MoveTo(r.left + i, r.top);
            dc.LineTo(r.left + i, r.bottom);
        }
    }
    dc.SelectObject(pOldPen);
}

bool CSeparatorWnd::_hasPrevLine() const { return !sameRect(m_rcPrevLine, kNoLine); }

void CSeparatorWnd::_clearPrevLine() { m_rcPrevLine = kNoLine; }

void CSeparatorWnd::_setSizingCursor() const
{
    ::SetCursor(::LoadCursor(NULL, _isHorizontal() ? IDC_SIZENS : IDC_SIZEWE));
}

void CSeparatorWnd::DrawXORLineToParentDC(CPoint point)
{
    CWnd* pParent = GetParent();
    if (!pParent)
        return;
    CRect bar;
    GetClientRect(&bar);
    MapWindowPoints(pParent, &point, 1);
    MapWindowPoints(pParent, &bar);

    CRubberBandDC band(pParent);
    if (!band.IsValid())
        return;

    RECT line;
    bool erasePrevious = _hasPrevLine();
    if (_isHorizontal())
    {
        bar.left += kRubberBandInset;
        bar.right -= kRubberBandInset;
        const RECT n = {bar.left, point.y, bar.right, point.y};
        line = n;
        // Only a line that moved is erased: an unmoved one toggles off.
        erasePrevious = erasePrevious && !sameRect(m_rcPrevLine, line);
    }
    else
    {
        bar.top += kRubberBandInset;
        bar.bottom -= kRubberBandInset;
        const RECT n = {point.x, bar.top, point.x, bar.bottom};
        line = n;
    }
    if (erasePrevious)
        band.Line(m_rcPrevLine);
    if (m_bBoundarySet)
    {
        if (_isHorizontal())
            line.top = line.bottom = ZoSeparatorClamp(line.top, m_rcBoundary.top, m_rcBoundary.bottom);
        else
            line.left = line.right = ZoSeparatorClamp(line.left, m_rcBoundary.left, m_rcBoundary.right);
    }
    if (!sameRect(line, kNoLine))
        band.Line(line);
    m_rcPrevLine = line;
}

void CSeparatorWnd::_abandonDrag()
{
    if (!m_bDragging)
        return;
    m_bDragging = false;
    if (_hasPrevLine())
    {
        CRubberBandDC band(GetParent());
        if (band.IsValid())
            band.Line(m_rcPrevLine);
        _clearPrevLine();
    }
}

void CSeparatorWnd::OnCaptureChanged(CWnd* pWnd)
{
    _abandonDrag();
    CZoWnd::OnCaptureChanged(pWnd);
}

void CSeparatorWnd::OnCancelMode()
{
    _abandonDrag();
    if (::GetCapture() == m_hWnd)
        ::ReleaseCapture();
    CZoWnd::OnCancelMode();
}

void CSeparatorWnd::OnMouseMove(UINT nFlags, CPoint point)
{
    if (m_bMovable)
    {
        if (m_bDragging)
            DrawXORLineToParentDC(point);
        else
            _setSizingCursor();
        ZoTrackMouseLeave(m_hWnd);
    }
    CZoWnd::OnMouseMove(nFlags, point);
}

void CSeparatorWnd::OnLButtonDown(UINT nFlags, CPoint point)
{
    CRect client;
    GetClientRect(&client);
    if (m_bMovable && client.PtInRect(point))
    {
        m_bDragging = true;
        SetCapture();
        _setSizingCursor();
    }
    CZoWnd::OnLButtonDown(nFlags, point);
}

void CSeparatorWnd::OnLButtonUp(UINT nFlags, CPoint point)
{
    if (m_bMovable && m_bDragging)
    {
        // Not dragging any more before the capture goes, so losing it is no abandoned drag.
        m_bDragging = false;
        ReleaseCapture();
        if (_hasPrevLine())
        {
            DrawXORLineToParentDC(point);
            _clearPrevLine();
        }
        CPoint screen = point;
        ClientToScreen(&screen);
        if (m_bBoundarySet && m_pNotify && ::IsWindow(m_pNotify->GetSafeHwnd()))
        {
            CRect limit = m_rcBoundary;
            m_pNotify->ClientToScreen(&limit);
            screen.x = ZoSeparatorClamp(screen.x, limit.left, limit.right);
            screen.y = ZoSeparatorClamp(screen.y, limit.top, limit.bottom);
        }
        ::SendMessageW(m_pNotify ? m_pNotify->GetSafeHwnd() : NULL, ZoMsg_SeparatorMoved, MAKEWPARAM(m_nID, 1),
                       MAKELPARAM(screen.x, screen.y));
    }
    CZoWnd::OnLButtonUp(nFlags, point);
}

void CSeparatorWnd::OnMouseLeave()
{
    if (m_bMovable)
        ::SetCursor(::LoadCursor(NULL, IDC_ARROW));
}

} // namespace ZoControls
