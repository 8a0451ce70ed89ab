// "Scrolling": scroll bars in both skin variants with live read-outs, a scroll bar driving a
// scrolled view as its buddy, short bars with the placeholder thumb, timer-driven progress bars,
// spin buttons with buddy edits at their range ends and two panes split by a movable separator.
#pragma once
#include "GalleryPage.h"

#include <afxcmn.h>

// A list of numbered lines drawn from the scroll position its buddy scroll bar sends.
class CScrolledLinesView : public CWnd
{
public:
    CScrolledLinesView();
    int GetTopLine() const { return m_nTopLine; }

protected:
    afx_msg void OnPaint();
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    DECLARE_MESSAGE_MAP()

private:
    int m_nTopLine;
};

class CScrollingPage : public CGalleryPage
{
public:
    CScrollingPage();
    virtual ~CScrollingPage();

protected:
    virtual BOOL OnCreatePage();

    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnDestroy();
    afx_msg LRESULT OnSeparatorMoved(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    enum { BarCount = 4, ProgressCount = 3 };
    void _onScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    void _showPosition(int index);
    void _layoutPanes(int splitX);

    ZoControls::CZoScrollBar* m_apBars[BarCount]; // vertical 0, vertical 1, horizontal 0, horizontal 1
    CStatic m_aReadouts[BarCount];
    ZoControls::CZoScrollBar m_shortVertical;
    ZoControls::CZoScrollBar m_shortHorizontal;
    ZoControls::CZoScrollBar m_viewBar;
    CScrolledLinesView m_view;
    ZoControls::CZoProgressCtrl m_aProgress[ProgressCount];
    ZoControls::CZoSpinButtonCtrl m_spinVertical;
    ZoControls::CZoSpinButtonCtrl m_spinHorizontal;
    CEdit m_editVertical;
    CEdit m_editHorizontal;
    CStatic m_leftPane;
    CStatic m_rightPane;
    ZoControls::CSeparatorWnd* m_pSeparator;
    CRect m_rcPanes;
};
