// CZoScrollBar: a stand-alone scroll bar control drawn from three skin strips. The platform
// control keeps range, page and position; this class draws, hit-tests, repeats, drags and sends
// WM_HSCROLL / WM_VSCROLL to its parent or to a buddy window.
#pragma once
#include <afxwin.h>

#include "controls/ZoScrollBarMath.h"
#include "core/ZoCtrlExport.h"
#include "core/ZoPaintedWnd.h"
#include "core/ZoThemeTypes.h"
#include "core/ZoMenuRouting.h"

namespace ZoControls {

class CZoResourceBMPImage;

class ZOCTRL_API CZoScrollBar : public CZoPaintedWnd<CScrollBar>
{
    DECLARE_DYNAMIC(CZoScrollBar)

public:
    // Skin variant: a row group in every strip; the shipped strips hold two.
    enum E_ScrollBarTheme
    {
        ScrollBarTheme_0 = 0,
        ScrollBarTheme_1 = 1
    };

    enum E_SBHitCode
    {
        SBHit_None = ZoScrollPart_None,
        SBHit_PrevButton = ZoScrollPart_Prev,
        SBHit_NextButton = ZoScrollPart_Next,
        SBHit_Thumb = ZoScrollPart_Thumb,
        SBHit_PageBefore = ZoScrollPart_Before,
        SBHit_PageAfter = ZoScrollPart_After
    };

    // Drawing state of a part; also its cell column in the strips.
    enum E_CurState
    {
        CurState_Normal = 0,
        CurState_Hover = 1,
        CurState_Pressed = 2,
        CurState_Disabled = 3
    };

    // Timer ids: the first auto-repeat delay and the repetition.
    enum
    {
        TimerFirstDelay = 1,
        TimerRepeat = 2
    };

    explicit CZoScrollBar(E_ScrollBarTheme theme = ScrollBarTheme_0);
    ~CZoScrollBar() override;

    // Notifications go to `pBuddy` instead of the parent (null: back to the parent).
    void SetBuddy(CWnd* pBuddy);
    // Kept through initialisation; no redraw.
    void SetBackgroundColor(COLORREF color);

    E_SBHitCode HitTest(CPoint point) const;
    CRect GetPartRect(E_SBHitCode part) const;
    int GetThumbPos() const { return m_nThumbPos; }
    int GetThumbLength() const { return m_nThumbLength; }
    // The scroll position the thumb stands for where it is drawn now: during a drag, where the
    // drag has taken it, in 32 bits (a notification's high word holds only 16).
    int GetThumbTrackPosition();

    virtual int GetButtonGapSize();

protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void DrawClient(CDC& dc) override;

    void _init();
    void _initDimensions();
    void _updateRects();
    void _updateThumbSize();
    bool _isVertical() const;
    int _thumbUnitLength() const;
    ZoScrollLayout _layout() const;
    void _setLayout(const ZoScrollLayout& layout);
    SCROLLINFO _readScrollInfo();
    int _track();
    int _calcThumbPosFromScrollPos(int pos);
    int _calcScrollPosFromThumbPos(int thumbPos);
    int _calcThumbPosFromScreenPos(CPoint point, int offset, bool noClamp);
    int _axisCoordinate(CPoint point) const;
    E_CurState _stateOf(E_SBHitCode part) const;
    void _sendPressedMessage(bool end);
    void _sendTrackingMessage(bool final);
    void _notify(WPARAM wParam);
    // Ends a press or drag: timers killed, capture released; returns what was pressed.
    E_SBHitCode _endPress();
    // A press that lost the mouse ends without notifications, the thumb back at the position.
    void _abandonPress();

    void _drawThumbButton(CDC& dc, const CRect& rect, E_CurState state, bool vertical);
    void _drawDisabledThumbButton(CDC& dc, CPoint centre, bool vertical);

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnCancelMode();
    ZO_DECLARE_MENUXP_FORWARDING()
    DECLARE_MESSAGE_MAP()

    E_ScrollBarTheme m_eScrollBarTheme;
    E_ZoTheme m_eTheme;
    E_ZoMonitorSize m_eMonitorSize;
    COLORREF m_crBackground;
    bool m_bBackgroundSet;
    CWnd* m_pBuddy;
    E_SBHitCode m_ePressed;
    E_SBHitCode m_eHover;
    int m_nThumbPos;
    int m_nThumbLength;
    CRect m_aRects[ZoScrollPart_Count]; // [0] spare, then indexed by hit code
    CZoResourceBMPImage* m_pButtons;
    CZoResourceBMPImage* m_pThumb;
    CZoResourceBMPImage* m_pBack;
    bool m_bInitialized;
    int m_nDragOffset;

private:
    CZoScrollBar(const CZoScrollBar&);
    CZoScrollBar& operator=(const CZoScrollBar&);
};

} // namespace ZoControls
