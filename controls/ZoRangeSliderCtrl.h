// CZoRangeSliderCtrl: a horizontal slider whose selection is shown and edited through two bound
// markers below the channel, besides the thumb. It handles presses on the bounds, the thumb and
// the channel itself, captures the mouse while dragging, and tells its parent: WM_HSCROLL with
// TB_THUMBTRACK, TB_THUMBPOSITION or TB_ENDTRACK, and WM_APP + 4 when the selection changed
// (wParam 1 while a bound is dragged, 0 after a reset).
#pragma once
#include <afxcmn.h>
#include <afxwin.h>

#include "controls/ZoSliderCtrl.h"

namespace ZoControls {

// Sent to the parent when the selection changed; wParam says how.
const UINT ZoMsg_RangeChanged = WM_APP + 4;
enum E_ZoRangeChange
{
    ZoRangeChange_Reset = 0,
    ZoRangeChange_Dragged = 1
};

class ZOCTRL_API CZoRangeSliderCtrl : public CZoSliderCtrl
{
    DECLARE_DYNAMIC(CZoRangeSliderCtrl)

public:
    // Command id of the reset menu's one item.
    enum
    {
        ResetCommand = 1
    };

    CZoRangeSliderCtrl();
    ~CZoRangeSliderCtrl() override;

    // Sets the selection and places the bound markers on it.
    void SetSelection(int nMin, int nMax) override;
    // Moves the thumb and its sensitive area.
    virtual void SetPos(int nPos);
    // Offers "Reset range" at `pt` (client coordinates); chosen, it selects the whole range and
    // tells the parent. The library never opens it by itself.
    virtual void PopUpMenuToReset(const CPoint& pt);

    CPoint GetLeftBoundPt() const { return m_ptLeftBound; }
    CPoint GetRightBoundPt() const { return m_ptRightBound; }
    // Offset from the channel's left edge to a value and back, measured from value 0.
    int ConvertWindowX2SliderPos(int x) const;
    int ConvertSliderPos2WindowX(int pos) const;
    // One of E_ZoRangeHit.
    int HitTest(CPoint point) const;
    void NotifyChangedSelectionToParent(int code) const;
    void SetPressedState(int code);
    void SetBoundHover(int code);
    void CreateSensitiveBoundRect(CPoint pt, int size, CRect& rc, bool left);
    void CreateSensitiveThumbRect(int size, CRect& rc);

protected:
    void PreSubclassWindow() override;
    // The focus rectangle surrounds the whole control: the keys move the thumb, and a frame
    // around the thumb alone would cut through the bound markers beside it.
    void DrawClient(CDC& dc) override;
    void DrawSlider(CDC& dc, const CRect& rect) const override;
    void DrawThumb(CDC& dc, const CRect& rect) const override;
    virtual void DrawBound(CDC& dc) const;

    void _loadOwnStrip();
    float _ratio() const;
    int _thumbWidth() const;
    void _notifyScroll(UINT code, int pos) const;
    // Ends a press of the bounds, the thumb or the channel; false when there was none.
    bool _endOwnPress();

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnCancelMode();
    DECLARE_MESSAGE_MAP()

    bool m_bBoundsShown;
    CPoint m_ptLeftBound;
    CPoint m_ptRightBound;
    CRect m_rcLeftBound;
    CRect m_rcRightBound;
    CRect m_rcThumb;
    bool m_abPressed[3]; // indexed by hit code: left bound, right bound, thumb
    bool m_abHover[3];
    CZoResourceBMPImage* m_pOwnThumb;
    // A press of ours (bound, thumb or channel) holds the capture.
    bool m_bOwnPress;

private:
    CZoRangeSliderCtrl(const CZoRangeSliderCtrl&);
    CZoRangeSliderCtrl& operator=(const CZoRangeSliderCtrl&);
};

} // namespace ZoControls
