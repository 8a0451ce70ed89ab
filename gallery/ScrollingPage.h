// "Scrolling": scroll bars in both skin variants with live read-outs, a scroll bar driving a
// scrolled view as its buddy, short bars with the placeholder thumb, timer-driven progress bars,
// spin buttons with buddy edits at their range ends and two panes split by a movable separator.
#pragma once
#include "GalleryPage.h"
#include "PageParts.h"

#include <afxcmn.h>

// A list of numbered lines drawn from the scroll position its buddy scroll bar sends.
class CScrolledLinesView : public CWnd
{
public:
    // Lines, and their height at the normal size class.
    enum { LineCount = 60, LineHeight = 16 };

    CScrolledLinesView();
    int GetTopLine() const { return m_nTopLine; }
    // How many whole lines the client area shows: the scroll bar's page.
    int GetVisibleLines() const;
    // The font and line height of the page's size class, and the bar whose page follows the
    // view's height.
    void SetLook(CFont* pFont, int lineHeight, CScrollBar* pBar);

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg LRESULT OnPrintClient(WPARAM wParam, LPARAM lParam);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    void _paintInto(CDC& dc);
    void _updateBarPage();

    int m_nTopLine;
    CFont* m_pFont;
    int m_nLineHeight;
    CScrollBar* m_pBar;
};

// Where the bar between two side-by-side panes in `area` may sit (its left edge, from left to
// right) when each pane keeps `minPane` pixels.
CRect SplitBarRange(const CRect& area, int minPane, int barWidth);

// Where two side-by-side panes and the bar between them go in `area` when the bar is asked
// to sit at `splitX`: the bar keeps `minPane` pixels from either side.
struct SplitPanesLayout
{
    CRect left;
    CRect bar;
    CRect right;
};
SplitPanesLayout LayoutSplitPanes(const CRect& area, int splitX, int minPane, int barWidth);

class CScrollingPage : public CGalleryPage
{
public:
    CScrollingPage();
    virtual ~CScrollingPage();

protected:
    virtual BOOL OnCreatePage();
    virtual void DrawPage(CDC& dc, const CRect& client);

    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnDestroy();
    afx_msg LRESULT OnSeparatorMoved(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    enum { BarCount = 4, ShortBarCount = 4, ProgressCount = 3 };

    void _addLabels();
    BOOL _createScrollBars();
    BOOL _createShortBars();
    BOOL _createBuddyView();
    BOOL _createProgressBars();
    BOOL _createSpinButtons();
    BOOL _createSeparator();
    void _onScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    void _showPosition(int index);
    void _layoutPanes(int splitX);
    void _drawPanes(CDC& dc);

    ZoControls::CZoScrollBar* m_apBars[BarCount]; // vertical 0, vertical 1, horizontal 0, horizontal 1
    ZoControls::CZoStatic m_aReadouts[BarCount];
    ZoControls::CZoScrollBar m_aShortBars[ShortBarCount];
    ZoControls::CZoScrollBar m_viewBar;
    CScrolledLinesView m_view;
    ZoControls::CZoProgressCtrl m_aProgress[ProgressCount];
    ZoControls::CZoSpinButtonCtrl m_spinVertical;
    ZoControls::CZoSpinButtonCtrl m_spinHorizontal;
    ZoControls::CZoEdit m_editVertical;
    ZoControls::CZoEdit m_editHorizontal;
    ZoControls::CSeparatorWnd* m_pSeparator;
    SplitPanesLayout m_panes;
    CPageLabels m_labels;
};
