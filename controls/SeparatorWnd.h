// CSeparatorWnd: a thin splitter bar between two panes. A movable one is dragged with the left
// button while a rubber-band line is drawn in XOR mode on the parent; on release the notify
// window gets one WM_APP + 1 with the final position and moves the panes itself.
#pragma once
#include <afxwin.h>

#include "core/ZoCtrlExport.h"
#include "core/ZoPaintedWnd.h"
#include "core/ZoThemeManager.h"
#include "core/ZoUIBase.h"

namespace ZoControls {

// Sent to the notify window on release: wParam MAKEWPARAM(id, 1), lParam the screen position.
const UINT ZoMsg_SeparatorMoved = WM_APP + 1;

// `value` limited to [low, high], the upper bound applied first.
ZOCTRL_API int ZoSeparatorClamp(int value, int low, int high);

class ZOCTRL_API CSeparatorWnd : public CZoPaintedWnd<CZoWnd>
{
    DECLARE_DYNAMIC(CSeparatorWnd)

public:
    enum E_SeparatorDirection
    {
        SeparatorDirection_Vertical = 0,  // left and right panes, dragged sideways
        SeparatorDirection_Horizontal = 1 // top and bottom panes, dragged up and down
    };

    CSeparatorWnd(UINT id, E_SeparatorDirection direction, CWnd* pNotify, bool movable);
    ~CSeparatorWnd() override;

    // Writes the direction; the return value is always 2 and carries no information.
    int GetWindowDirection(E_SeparatorDirection& direction) const;
    // Limits the line and the notified position to `screenRect`; an empty or missing rectangle
    // removes the limit and returns false.
    bool SetBoundaryOnScreen(const RECT* screenRect);
    void SetColor(const Gdiplus::Color& color);

    // The parent's background shows between the two lines.
    E_ZoPaintMode GetPaintMode() override { return ZoPaint_DirectAfterErase; }

protected:
    // One rubber-band step at `point` (this window's client coordinates) on the parent.
    virtual void DrawXORLineToParentDC(CPoint point);

    bool _isHorizontal() const { return m_eDirection == SeparatorDirection_Horizontal; }
    bool _hasPrevLine() const;
    void _clearPrevLine();
    void _setSizingCursor() const;
    COLORREF _lineColor() const;
    // Ends a drag that lost the mouse: the rubber band goes, nobody is notified.
    void _abandonDrag();
    void DrawClient(CDC& dc) override;

    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnCancelMode();
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    DECLARE_MESSAGE_MAP()

    UINT m_nID;
    E_SeparatorDirection m_eDirection;
    CWnd* m_pNotify;
    bool m_bDragging;
    RECT m_rcPrevLine; // parent client coordinates; all -1 when none is drawn
    RECT m_rcBoundary; // notify window client coordinates
    bool m_bBoundarySet;
    bool m_bMovable;
    Gdiplus::ARGB m_color;
    bool m_bCustomColor;

private:
    CSeparatorWnd(const CSeparatorWnd&);
    CSeparatorWnd& operator=(const CSeparatorWnd&);
};

} // namespace ZoControls
