#include <afxwin.h>

#include "ScrollingPage.h"

using namespace ZoControls;

namespace {

const UINT kProgressTimer = 1;
const UINT kSeparatorId = 900;
const int kLineHeight = 16;
const int kLineCount = 60;
const int kSeparatorWidth = 2;

void SetStandardRange(CZoScrollBar& bar, int pos)
{
    SCROLLINFO info = {sizeof(SCROLLINFO), SIF_ALL, 0, 109, 10, pos, 0};
    bar.SetScrollInfo(&info, TRUE);
}

// The position a notification asks for: the bar wrote lines and pages itself, the thumb is ours.
void ApplyScroll(CScrollBar* pBar, UINT nSBCode, UINT nPos)
{
    if (nSBCode == SB_THUMBTRACK || nSBCode == SB_THUMBPOSITION)
        pBar->SetScrollPos((int)nPos);
}

} // namespace

BEGIN_MESSAGE_MAP(CScrolledLinesView, CWnd)
    ON_WM_PAINT()
    ON_WM_VSCROLL()
END_MESSAGE_MAP()

CScrolledLinesView::CScrolledLinesView() : m_nTopLine(0) {}

void CScrolledLinesView::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, RGB(255, 255, 255));
    dc.SetBkMode(TRANSPARENT);
    for (int i = 0; i * kLineHeight < client.Height(); ++i)
    {
        CString text;
        text.Format(L"Line %d", m_nTopLine + i + 1);
        dc.TextOut(4, i * kLineHeight, text);
    }
}

void CScrolledLinesView::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    if (!pScrollBar)
        return;
    ApplyScroll(pScrollBar, nSBCode, nPos);
    m_nTopLine = pScrollBar->GetScrollPos();
    Invalidate(FALSE);
}

BEGIN_MESSAGE_MAP(CScrollingPage, CGalleryPage)
    ON_WM_VSCROLL()
    ON_WM_HSCROLL()
    ON_WM_TIMER()
    ON_WM_DESTROY()
    ON_MESSAGE(ZoMsg_SeparatorMoved, &CScrollingPage::OnSeparatorMoved)
END_MESSAGE_MAP()

CScrollingPage::CScrollingPage() : m_pSeparator(NULL)
{
    // The second of each orientation uses the second skin variant.
    for (int i = 0; i < BarCount; ++i)
        m_apBars[i] = new CZoScrollBar(i % 2 ? CZoScrollBar::ScrollBarTheme_1 : CZoScrollBar::ScrollBarTheme_0);
}

CScrollingPage::~CScrollingPage()
{
    for (int i = 0; i < BarCount; ++i)
        delete m_apBars[i];
    delete m_pSeparator;
}

BOOL CScrollingPage::OnCreatePage()
{
    const DWORD child = WS_CHILD | WS_VISIBLE;
    for (int i = 0; i < BarCount; ++i)
    {
        const bool vertical = i < 2;
        const CRect rect = vertical ? CRect(10 + i * 30, 10, 29 + i * 30, 210)
                                    : CRect(80, 10 + (i - 2) * 30, 380, 29 + (i - 2) * 30);
        m_apBars[i]->Create(child | (vertical ? SBS_VERT : 0), rect, this, 100 + i);
        SetStandardRange(*m_apBars[i], 20 * i);
        m_aReadouts[i].Create(L"", child, CRect(390, 10 + i * 20, 520, 28 + i * 20), this);
        _showPosition(i);
    }
    m_shortVertical.Create(child | SBS_VERT, CRect(80, 80, 99, 130), this, 110);
    m_shortHorizontal.Create(child, CRect(110, 80, 160, 99), this, 111);

    m_view.Create(NULL, L"", child | WS_BORDER, CRect(180, 80, 330, 210), this, 120);
    m_viewBar.Create(child | SBS_VERT, CRect(330, 80, 349, 210), this, 121);
    m_viewBar.SetBuddy(&m_view);
    SCROLLINFO info = {sizeof(SCROLLINFO), SIF_ALL, 0, kLineCount - 1, 130 / kLineHeight, 0, 0};
    m_viewBar.SetScrollInfo(&info, TRUE);

    m_aProgress[0].Create(child, CRect(10, 230, 250, 248), this, 130);
    m_aProgress[1].Create(child | PBS_VERTICAL, CRect(260, 230, 278, 350), this, 131);
    m_aProgress[2].Create(child | WS_DISABLED, CRect(10, 258, 250, 276), this, 132);
    for (int i = 0; i < ProgressCount; ++i)
        m_aProgress[i].SetRange32(0, 100);
    SetTimer(kProgressTimer, 100, NULL);

    // Buddy edits at the range ends: the lower one shows the first half disabled, the upper the second.
    m_editVertical.Create(child | WS_BORDER | ES_NUMBER, CRect(300, 230, 360, 252), this, 140);
    m_spinVertical.Create(child | UDS_SETBUDDYINT | UDS_ALIGNRIGHT | UDS_ARROWKEYS, CRect(0, 0, 0, 0), this, 141);
    m_spinVertical.SetBuddy(&m_editVertical);
    m_spinVertical.SetRange32(0, 10);
    m_spinVertical.SetPos32(0);
    m_editHorizontal.Create(child | WS_BORDER | ES_NUMBER, CRect(300, 262, 360, 284), this, 142);
    m_spinHorizontal.Create(child | UDS_HORZ | UDS_SETBUDDYINT | UDS_ALIGNRIGHT | UDS_ARROWKEYS, CRect(0, 0, 0, 0),
                            this, 143);
    m_spinHorizontal.SetBuddy(&m_editHorizontal);
    m_spinHorizontal.SetRange32(0, 10);
    m_spinHorizontal.SetPos32(10);

    m_rcPanes = CRect(10, 360, 520, 460);
    m_leftPane.Create(L"Left pane", child | WS_BORDER | SS_CENTER, CRect(0, 0, 0, 0), this);
    m_rightPane.Create(L"Right pane", child | WS_BORDER | SS_CENTER, CRect(0, 0, 0, 0), this);
    m_pSeparator = new CSeparatorWnd(kSeparatorId, CSeparatorWnd::SeparatorDirection_Vertical, this, true);
    m_pSeparator->Create(AfxRegisterWndClass(0), L"", child, CRect(0, 0, 0, 0), this, kSeparatorId);
    _layoutPanes(m_rcPanes.CenterPoint().x);
    return TRUE;
}

void CScrollingPage::_layoutPanes(int splitX)
{
    const int x = ZoSeparatorClamp(splitX, m_rcPanes.left + 40, m_rcPanes.right - 40);
    m_leftPane.MoveWindow(m_rcPanes.left, m_rcPanes.top, x - m_rcPanes.left, m_rcPanes.Height());
    m_pSeparator->MoveWindow(x, m_rcPanes.top, kSeparatorWidth, m_rcPanes.Height());
    m_rightPane.MoveWindow(x + kSeparatorWidth, m_rcPanes.top, m_rcPanes.right - x - kSeparatorWidth,
                           m_rcPanes.Height());
    CRect limit(m_rcPanes.left + 40, m_rcPanes.top, m_rcPanes.right - 40, m_rcPanes.bottom);
    ClientToScreen(&limit);
    m_pSeparator->SetBoundaryOnScreen(&limit);
    // The rubber band was drawn on the page: repaint under it.
    InvalidateRect(&m_rcPanes, FALSE);
}

LRESULT CScrollingPage::OnSeparatorMoved(WPARAM, LPARAM lParam)
{
    CPoint point((short)LOWORD(lParam), (short)HIWORD(lParam));
    ScreenToClient(&point);
    _layoutPanes(point.x);
    return 0;
}

void CScrollingPage::_showPosition(int index)
{
    CString text;
    text.Format(L"%s %d: %d", index < 2 ? L"Vertical" : L"Horizontal", index % 2, m_apBars[index]->GetScrollPos());
    m_aReadouts[index].SetWindowText(text);
}

void CScrollingPage::_onScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    for (int i = 0; i < BarCount; ++i)
    {
        if (pScrollBar && pScrollBar->GetSafeHwnd() == m_apBars[i]->GetSafeHwnd())
        {
            ApplyScroll(m_apBars[i], nSBCode, nPos);
            _showPosition(i);
        }
    }
}

void CScrollingPage::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    _onScroll(nSBCode, nPos, pScrollBar);
}

void CScrollingPage::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    _onScroll(nSBCode, nPos, pScrollBar);
}

void CScrollingPage::OnTimer(UINT_PTR nIDEvent)
{
    if (nIDEvent != kProgressTimer)
    {
        CGalleryPage::OnTimer(nIDEvent);
        return;
    }
    for (int i = 0; i < ProgressCount; ++i)
        m_aProgress[i].SetPos((m_aProgress[i].GetPos() + 2 + i) % 101);
}

void CScrollingPage::OnDestroy()
{
    KillTimer(kProgressTimer);
    CGalleryPage::OnDestroy();
}
