// CZoSpinButtonCtrl: an up-down control painted flat, two halves with a small arrow each, with
// hover and pressed looks and a disabled look for the half whose end of the range is reached.
// Value, buddy and notifications stay those of the platform control.
#pragma once
#include <afxcmn.h>
#include <afxwin.h>

#include "core/ZoCtrlExport.h"
#include "core/ZoPaintedWnd.h"

namespace ZoControls {

// The two halves of `client`; they share one row (or column, `horizontal`) of pixels.
ZOCTRL_API void ZoSpinHalves(const RECT& client, bool horizontal, RECT& first, RECT& second);
// 0 outside `client`, 1 for the first half (up or left), 2 for the second.
ZOCTRL_API int ZoSpinHitTest(const RECT& client, bool horizontal, POINT pt);
// The arrow triangle of a half.
ZOCTRL_API void ZoSpinArrowPoints(const RECT& half, bool horizontal, bool first, POINT points[3]);
// The outline: left, top, right of the half drawn second and bottom of the half drawn first.
ZOCTRL_API RECT ZoSpinOutline(const RECT& drawnFirst, const RECT& drawnSecond);

class ZOCTRL_API CZoSpinButtonCtrl : public CZoPaintedWnd<CSpinButtonCtrl>
{
    DECLARE_DYNAMIC(CZoSpinButtonCtrl)

public:
    enum BtnIndex
    {
        BtnIndex_None = 0,
        BtnIndex_First = 1,
        BtnIndex_Second = 2
    };

    enum BtnState
    {
        BtnState_Normal = 0,
        BtnState_Hot = 1,
        BtnState_Pressed = 2,
        BtnState_Disabled = 3
    };

    CZoSpinButtonCtrl();
    ~CZoSpinButtonCtrl() override;

    // The two halves cover the whole control.
    E_ZoPaintMode GetPaintMode() override { return ZoPaint_Direct; }

protected:
    BtnIndex HitTest(CPoint point);
    // The drawn states: a half whose direction reached its end of the range is disabled.
    void CheckRange(BtnState& first, BtnState& second);
    virtual void DrawButtonBack(CDC* pDC, const CRect& rect, BtnState state);
    virtual void DrawButtonArrow(CDC* pDC, const CRect& rect, BtnState state, bool first);
    virtual void DrawButtonBorder(CDC* pDC, const CRect& rect);

    bool _isHorizontal() const;
    void _setStates(BtnIndex active, BtnState state);
    void DrawClient(CDC& dc) override;

    // The platform control holds the capture while a half is pressed; losing it drops the look.
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    DECLARE_MESSAGE_MAP()

    BtnState m_eFirstState;
    BtnState m_eSecondState;

private:
    CZoSpinButtonCtrl(const CZoSpinButtonCtrl&);
    CZoSpinButtonCtrl& operator=(const CZoSpinButtonCtrl&);
};

} // namespace ZoControls
