// CZoProgressCtrl: a progress bar whose filled part is tiled with a skin cell, the rest a flat
// theme colour, with the percentage written in the middle. Range and position stay those of the
// platform control. The percentage is written in the font the host gives with WM_SETFONT (the
// host's to keep alive), else in the drawing surface's default font.
#pragma once
#include <afxcmn.h>
#include <afxwin.h>

#include "core/ZoCtrlExport.h"
#include "core/ZoMenuRouting.h"
#include "core/ZoPaintedWnd.h"
#include "core/ZoThemeTypes.h"

namespace ZoControls {

class CZoResourceBMPImage;

// Filled share of the range; only meaningful when lo < hi.
ZOCTRL_API float ZoProgressFraction(int lo, int hi, int pos);
// Right edge of the filled part of a horizontal bar spanning [left, right).
ZOCTRL_API int ZoProgressHorizontalEdge(int left, int right, float fraction);
// Top edge of the filled part of a vertical bar spanning [top, bottom).
ZOCTRL_API int ZoProgressVerticalEdge(int top, int bottom, float fraction);
// The printed percentage. The lower bound is not subtracted: 60 of 10..110 prints 60.
ZOCTRL_API int ZoProgressPercent(int lo, int hi, int pos);
// Number of cells `unit` long that tile towards `edge`: horizontally from `start` while the next
// cell starts before the edge; vertically up from the bottom until a cell reaches the edge.
ZOCTRL_API int ZoProgressHorizontalCells(int start, int edge, int unit);
ZOCTRL_API int ZoProgressVerticalCells(int bottom, int edge, int unit);

class ZOCTRL_API CZoProgressCtrl : public CZoPaintedWnd<CProgressCtrl>
{
    DECLARE_DYNAMIC(CZoProgressCtrl)

public:
    CZoProgressCtrl();
    ~CZoProgressCtrl() override;

protected:
    void PreSubclassWindow() override;
    void DrawClient(CDC& dc) override;

    void _init();
    // Drawing steps: the tiled and flat parts, then the percentage.
    virtual void DrawBar(CDC& dc, const CRect& rect);
    virtual void DrawPercentage(CDC& dc, const CRect& rect);

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg LRESULT OnSetFont(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetFont(WPARAM wParam, LPARAM lParam);
    ZO_DECLARE_MENUXP_FORWARDING()
    DECLARE_MESSAGE_MAP()

    CZoResourceBMPImage* m_pSkin;
    E_ZoTheme m_eTheme;
    E_ZoMonitorSize m_eMonitorSize;
    // The percentage's font from WM_SETFONT; not owned.
    HFONT m_hTextFont;

private:
    // Range and position asked of the platform control's own window procedure: a paint needs
    // them twice, and each sent message costs a trip through hooks and message maps.
    void _readRange(int& lo, int& hi, int& pos);

    CZoProgressCtrl(const CZoProgressCtrl&);
    CZoProgressCtrl& operator=(const CZoProgressCtrl&);
};

} // namespace ZoControls
