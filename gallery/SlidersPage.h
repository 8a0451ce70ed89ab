// "Sliders": horizontal and vertical sliders with each tick placement, automatic and single
// ticks, a selection, a disabled one, the vertical styles that have no thumb strip, and a range
// slider with live read-outs of its position and bounds and its reset menu on a right click.
#pragma once
#include "GalleryPage.h"
#include "PageParts.h"

#include <afxcmn.h>

class CSlidersPage : public CGalleryPage
{
public:
    CSlidersPage();
    virtual ~CSlidersPage();

protected:
    virtual BOOL OnCreatePage();
    virtual void DrawPage(CDC& dc, const CRect& client);

    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg LRESULT OnRangeChanged(WPARAM wParam, LPARAM lParam);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    enum { HorizontalCount = 7, VerticalCount = 4 };

    BOOL _createHorizontal();
    BOOL _createVertical();
    BOOL _createRangeSlider();
    void _showRange();

    ZoControls::CZoSliderCtrl m_aHorizontal[HorizontalCount];
    ZoControls::CZoSliderCtrl m_aVertical[VerticalCount];
    ZoControls::CZoRangeSliderCtrl m_range;
    ZoControls::CZoStatic m_rangeReadout;
    CPageLabels m_labels;
};
