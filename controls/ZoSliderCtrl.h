// CZoSliderCtrl: a trackbar drawn from a thumb strip and theme colours. Position, dragging,
// keyboard and notifications stay with the platform control; the class keeps its own tick list
// and answers the trackbar's tick messages from it, so that it can draw the ticks itself.
#pragma once
#include <afxcmn.h>
#include <afxwin.h>

#include "controls/ZoSliderMath.h"
#include "core/ZoCtrlExport.h"
#include "core/ZoMenuRouting.h"
#include "core/ZoPaintedWnd.h"
#include "core/ZoThemeTypes.h"

namespace ZoControls {

class CZoResourceBMPImage;

// Channel rectangle of a trackbar in screen orientation. Windows answers TBM_GETCHANNELRECT of
// a vertical trackbar as if it were horizontal, Wine already turned; the channel always runs
// along the slider, so a vertical slider's channel wider than tall is turned here.
ZOCTRL_API CRect ZoSliderChannelInScreenOrientation(const CRect& platform, bool vertical);

class ZOCTRL_API CZoSliderCtrl : public CZoPaintedWnd<CSliderCtrl>
{
    DECLARE_DYNAMIC(CZoSliderCtrl)

public:
    // Drawing state of the thumb; also its column in the strip.
    enum E_ThumbState
    {
        ThumbState_Normal = 0,
        ThumbState_Hover = 1,
        ThumbState_Pressed = 2,
        ThumbState_Disabled = 3
    };

    CZoSliderCtrl();
    ~CZoSliderCtrl() override;

    // Remembers the selection's pixel span, then sets it in the platform control.
    virtual void SetSelection(int nMin, int nMax);

protected:
    void PreSubclassWindow() override;
    void DrawClient(CDC& dc) override;
    bool DrawsFocusCue() override { return true; }

    // Drawing steps, in the order DrawSlider runs them; subclasses restyle by overriding.
    virtual void DrawSlider(CDC& dc, const CRect& rect) const;
    virtual void ClearSlider(CDC& dc, const CRect& rect) const;
    virtual void DrawChannel(CDC& dc, const CRect& rect) const;
    virtual void DrawThumb(CDC& dc, const CRect& rect) const;
    virtual void DrawTicks(CDC& dc, const CRect& client, const CRect& channel, const CRect& thumb) const;
    virtual void DrawSelection(CDC& dc) const;
    // Selection span in pixels from the channel's left edge (horizontal sliders only).
    virtual void GetSelectionRect(const int& nStart, const int& nEnd);

    bool IsHorizontal() const { return m_bHorizontal; }
    E_ThumbState _thumbState() const;
    CRect _thumbRect(const CRect& client) const;
    // The platform's answers, asked of its procedure directly: painting asks them several times,
    // and a sent message passes every message hook of the thread, costing more than the drawing.
    LRESULT _askPlatform(UINT message, WPARAM wParam, LPARAM lParam) const;
    CRect _platformThumbRect() const;
    // The channel in screen orientation, as TBM_GETCHANNELRECT answers here.
    CRect _channelRect() const;
    // Ticks as TBM_GETNUMTICS answers: the list's plus the two ends, none with TBS_NOTICKS.
    int _tickCount() const;
    void _init();
    void _loadResource();

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnCancelMode();
    afx_msg LRESULT OnGetChannelRect(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnClearTics(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetTic(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetTicFreq(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetRangeMessage(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetPTics(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetTic(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetTicPos(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetNumTics(WPARAM wParam, LPARAM lParam);
    ZO_DECLARE_MENUXP_FORWARDING()
    DECLARE_MESSAGE_MAP()

    E_ZoTheme m_eTheme;
    E_ZoMonitorSize m_eMonitorSize;
    CZoResourceBMPImage* m_pThumb;
    bool m_bNoSelection;
    bool m_bHorizontal;
    bool m_bBoth;
    bool m_bTopOrLeft;
    bool m_bDownIsLeft;
    bool m_bHover;
    bool m_bPressed;
    ZoTickList m_ticks;
    int m_nSelStart;
    int m_nSelEnd;

private:
    // What a tick's pixel depends on, read from the platform control.
    struct TickAxis
    {
        int rangeMin;
        int rangeMax;
        int start;
        int end;
        int thumbLength;
    };
    TickAxis _readTickAxis() const;
    // Pixel of list tick `index` on `axis`, as TBM_GETTICPOS answers; -1 beyond the list.
    int _tickPixel(WPARAM index, const TickAxis& axis) const;

    CZoSliderCtrl(const CZoSliderCtrl&);
    CZoSliderCtrl& operator=(const CZoSliderCtrl&);
};

} // namespace ZoControls
