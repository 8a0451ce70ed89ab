#include <afxwin.h>

#include "ScrollingPage.h"
#include "core/ZoMemDC.h"

using namespace ZoControls;

namespace {

const UINT kProgressTimer = 1;
const UINT kProgressInterval = 100;
const UINT kFirstBarId = 100;
const UINT kFirstShortBarId = 110;
const UINT kViewId = 120;
const UINT kViewBarId = 121;
const UINT kFirstProgressId = 130;
const UINT kFirstSpinId = 140;
const UINT kSeparatorId = 150;
const int kSeparatorWidth = 2;
const int kMinPaneWidth = 120;

// Where everything sits, in page client coordinates.
const CPoint kScrollBarsHeading(12, 8);
const CRect kVerticalBars[2] = {CRect(12, 32, 31, 232), CRect(40, 32, 59, 232)};
const CRect kHorizontalBars[2] = {CRect(72, 32, 392, 51), CRect(72, 60, 392, 79)};
const CRect kFirstReadout(408, 32, 640, 52);
const int kReadoutPitch = 22;
const CPoint kShortBarsHeading(72, 96);
// Two bars too short for a thumb (half-height buttons) and two whose channel is too short
// for one (full buttons): all four draw the placeholder.
const CRect kShortBars[4] = {CRect(72, 120, 91, 170), CRect(104, 120, 123, 184), CRect(140, 120, 190, 139),
                             CRect(140, 152, 204, 171)};
const CPoint kViewHeading(240, 96);
const CRect kView(240, 120, 400, 234);
const int kViewBarWidth = 19;
const CPoint kProgressHeading(12, 252);
const CRect kProgressBars[3] = {CRect(12, 280, 252, 298), CRect(264, 280, 292, 400), CRect(12, 308, 252, 326)};
const int kProgressStart[3] = {35, 70, 50};
const CPoint kSpinHeading(320, 252);
const CRect kSpinEdits[2] = {CRect(320, 280, 380, 302), CRect(320, 312, 380, 334)};
const CRect kSpinLabels[2] = {CRect(392, 280, 560, 302), CRect(392, 312, 560, 334)};
const CPoint kPanesHeading(12, 424);
const CRect kPanesArea(12, 448, 1010, 840);

const CZoThemeManager* Theme()
{
    return CZoThemeManager::GetInstance();
}

CFont* SlotFont(E_ZoThemeFont role)
{
    return Theme() ? const_cast<CFont*>(Theme()->GetCacheGDIFont(role, ZoMonitorSize_Normal)) : NULL;
}

void SetRange(CZoScrollBar& bar, int minimum, int maximum, int page, int pos)
{
    SCROLLINFO info = {sizeof(SCROLLINFO), SIF_ALL, minimum, maximum, static_cast<UINT>(page), pos, 0};
    bar.SetScrollInfo(&info, TRUE);
}

// The position a notification asks for: the bar wrote lines and pages itself, the thumb is ours.
void ApplyScroll(CScrollBar* pBar, UINT nSBCode, UINT nPos)
{
    if (nSBCode == SB_THUMBTRACK || nSBCode == SB_THUMBPOSITION)
        pBar->SetScrollPos(static_cast<int>(nPos));
}

} // namespace

CRect SplitBarRange(const CRect& area, int minPane, int barWidth)
{
    return CRect(area.left + minPane, area.top, area.right - minPane - barWidth, area.bottom);
}

SplitPanesLayout LayoutSplitPanes(const CRect& area, int splitX, int minPane, int barWidth)
{
    SplitPanesLayout layout;
    const CRect range = SplitBarRange(area, minPane, barWidth);
    // An area too narrow for both minimums splits in the middle rather than inverting.
    const int x = range.left <= range.right ? ZoSeparatorClamp(splitX, range.left, range.right)
                                            : area.left + (area.Width() - barWidth) / 2;
    layout.left = CRect(area.left, area.top, x, area.bottom);
    layout.bar = CRect(x, area.top, x + barWidth, area.bottom);
    layout.right = CRect(x + barWidth, area.top, area.right, area.bottom);
    return layout;
}

BEGIN_MESSAGE_MAP(CScrolledLinesView, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_MESSAGE(WM_PRINTCLIENT, &CScrolledLinesView::OnPrintClient)
    ON_WM_VSCROLL()
    ON_WM_SIZE()
END_MESSAGE_MAP()

CScrolledLinesView::CScrolledLinesView() : m_nTopLine(0), m_pFont(NULL), m_nLineHeight(LineHeight), m_pBar(NULL) {}

int CScrolledLinesView::GetVisibleLines() const
{
    CRect client;
    GetClientRect(&client);
    return m_nLineHeight > 0 ? client.Height() / m_nLineHeight : 0;
}

void CScrolledLinesView::SetLook(CFont* pFont, int lineHeight, CScrollBar* pBar)
{
    m_pFont = pFont;
    m_nLineHeight = lineHeight > 0 ? lineHeight : LineHeight;
    m_pBar = pBar;
    _updateBarPage();
    Invalidate(FALSE);
}

// The page grows with the view when a larger size class magnifies the layout.
void CScrolledLinesView::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    _updateBarPage();
}

void CScrolledLinesView::_updateBarPage()
{
    if (!m_pBar || !::IsWindow(m_pBar->GetSafeHwnd()))
        return;
    SCROLLINFO info = {sizeof(SCROLLINFO), SIF_PAGE, 0, 0, static_cast<UINT>(GetVisibleLines()), 0, 0};
    m_pBar->SetScrollInfo(&info, TRUE);
    // The bar keeps its position inside the new page; the view follows it.
    m_nTopLine = m_pBar->GetScrollPos();
}

void CScrolledLinesView::_paintInto(CDC& dc)
{
    CRect client;
    GetClientRect(&client);
    CZoMemDC mem(&dc, client.Width(), client.Height());
    mem.FillSolidRect(&client, SlotColor(GallerySlot_ListBack, RGB(255, 255, 255)));
    CFont* pFont = m_pFont ? m_pFont : SlotFont(ZoThemeFont_1);
    CFont* pOld = pFont ? mem.SelectObject(pFont) : NULL;
    mem.SetBkMode(TRANSPARENT);
    mem.SetTextColor(SlotColor(GallerySlot_ListText));
    for (int i = 0; i * m_nLineHeight < client.Height() && m_nTopLine + i < LineCount; ++i)
    {
        CString text;
        text.Format(L"Line %d of %d", m_nTopLine + i + 1, static_cast<int>(LineCount));
        mem.TextOut(4, i * m_nLineHeight, text);
    }
    if (pOld)
        mem.SelectObject(pOld);
    mem.CopyToTarget();
}

void CScrolledLinesView::OnPaint()
{
    CPaintDC dc(this);
    _paintInto(dc);
}

BOOL CScrolledLinesView::OnEraseBkgnd(CDC*) { return TRUE; }

LRESULT CScrolledLinesView::OnPrintClient(WPARAM wParam, LPARAM)
{
    return PaintForPrintClient(wParam, [this](CDC& dc) { _paintInto(dc); });
}

void CScrolledLinesView::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    if (!pScrollBar)
        return;
    ApplyScroll(pScrollBar, nSBCode, nPos);
    if (m_nTopLine == pScrollBar->GetScrollPos())
        return;
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
    _addLabels();
    return _createScrollBars() && _createShortBars() && _createBuddyView() && _createProgressBars() &&
           _createSpinButtons() && _createSeparator();
}

BOOL CScrollingPage::_createScrollBars()
{
    const DWORD child = WS_CHILD | WS_VISIBLE;
    for (int i = 0; i < BarCount; ++i)
    {
        const bool vertical = i < 2;
        const CRect& rect = vertical ? kVerticalBars[i] : kHorizontalBars[i - 2];
        if (!m_apBars[i]->Create(child | (vertical ? SBS_VERT : SBS_HORZ), rect, this, kFirstBarId + i))
            return FALSE;
        SetRange(*m_apBars[i], 0, 100, 10, 15 * (i + 1));
        CRect readout(kFirstReadout);
        readout.OffsetRect(0, i * kReadoutPitch);
        if (!m_aReadouts[i].Create(L"", child | SS_LEFT | SS_CENTERIMAGE, readout, this))
            return FALSE;
        _showPosition(i);
    }
    return TRUE;
}

BOOL CScrollingPage::_createShortBars()
{
    for (int i = 0; i < ShortBarCount; ++i)
    {
        const DWORD orientation = i < 2 ? SBS_VERT : SBS_HORZ;
        if (!m_aShortBars[i].Create(WS_CHILD | WS_VISIBLE | orientation, kShortBars[i], this, kFirstShortBarId + i))
            return FALSE;
        SetRange(m_aShortBars[i], 0, 100, 10, 50);
    }
    return TRUE;
}

BOOL CScrollingPage::_createBuddyView()
{
    const CRect bar(kView.right, kView.top, kView.right + kViewBarWidth, kView.bottom);
    if (!m_view.Create(NULL, L"", WS_CHILD | WS_VISIBLE | WS_BORDER, kView, this, kViewId) ||
        !m_viewBar.Create(WS_CHILD | WS_VISIBLE | SBS_VERT, bar, this, kViewBarId))
        return FALSE;
    m_viewBar.SetBuddy(&m_view);
    SetRange(m_viewBar, 0, CScrolledLinesView::LineCount - 1, m_view.GetVisibleLines(), 0);
    m_view.SetLook(PageFont(ZoThemeFont_1), Scaled(CScrolledLinesView::LineHeight), &m_viewBar);
    return TRUE;
}

BOOL CScrollingPage::_createProgressBars()
{
    const DWORD styles[ProgressCount] = {0, PBS_VERTICAL, WS_DISABLED};
    for (int i = 0; i < ProgressCount; ++i)
    {
        if (!m_aProgress[i].Create(WS_CHILD | WS_VISIBLE | styles[i], kProgressBars[i], this, kFirstProgressId + i))
            return FALSE;
        m_aProgress[i].SetRange32(0, 100);
        m_aProgress[i].SetPos(kProgressStart[i]);
        m_aProgress[i].SetFont(PageFont(ZoThemeFont_9), FALSE);
    }
    return SetTimer(kProgressTimer, kProgressInterval, NULL) != 0;
}

BOOL CScrollingPage::_createSpinButtons()
{
    // Each starts at one end of its range, so that half shows its disabled look.
    const DWORD child = WS_CHILD | WS_VISIBLE;
    const DWORD spin = child | UDS_SETBUDDYINT | UDS_ALIGNRIGHT | UDS_ARROWKEYS;
    const DWORD edit = child | WS_TABSTOP | WS_BORDER | ES_NUMBER;
    if (!m_editVertical.Create(edit, kSpinEdits[0], this, kFirstSpinId) ||
        !m_spinVertical.Create(spin, CRect(0, 0, 0, 0), this, kFirstSpinId + 1) ||
        !m_editHorizontal.Create(edit, kSpinEdits[1], this, kFirstSpinId + 2) ||
        !m_spinHorizontal.Create(spin | UDS_HORZ, CRect(0, 0, 0, 0), this, kFirstSpinId + 3))
        return FALSE;
    m_spinVertical.SetBuddy(&m_editVertical);
    m_spinVertical.SetRange32(0, 10);
    m_spinVertical.SetPos32(0);
    m_spinHorizontal.SetBuddy(&m_editHorizontal);
    m_spinHorizontal.SetRange32(0, 10);
    m_spinHorizontal.SetPos32(10);
    return TRUE;
}

BOOL CScrollingPage::_createSeparator()
{
    m_pSeparator = new CSeparatorWnd(kSeparatorId, CSeparatorWnd::SeparatorDirection_Vertical, this, true);
    const LPCTSTR className = AfxRegisterWndClass(0, ::LoadCursor(NULL, IDC_ARROW));
    if (!m_pSeparator->Create(className, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this, kSeparatorId))
        return FALSE;
    _layoutPanes(kPanesArea.CenterPoint().x);
    return TRUE;
}

void CScrollingPage::_layoutPanes(int splitX)
{
    m_panes = LayoutSplitPanes(kPanesArea, splitX, kMinPaneWidth, kSeparatorWidth);
    m_pSeparator->MoveWindow(&m_panes.bar);
    CRect limit = SplitBarRange(kPanesArea, kMinPaneWidth, kSeparatorWidth);
    ClientToScreen(&limit);
    m_pSeparator->SetBoundaryOnScreen(&limit);
    // Also clears what is left of the rubber band.
    InvalidateRect(&kPanesArea, FALSE);
}

LRESULT CScrollingPage::OnSeparatorMoved(WPARAM wParam, LPARAM lParam)
{
    if (LOWORD(wParam) != kSeparatorId)
        return 0;
    CPoint point(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
    ScreenToClient(&point);
    _layoutPanes(point.x);
    return 0;
}

void CScrollingPage::_addLabels()
{
    m_labels.AddHeading(kScrollBarsHeading.x, kScrollBarsHeading.y,
                        L"Scroll bars in skin variants 0 and 1, vertical and horizontal");
    m_labels.AddHeading(kShortBarsHeading.x, kShortBarsHeading.y, L"Too short for a thumb");
    m_labels.AddHeading(kViewHeading.x, kViewHeading.y, L"Buddy of a scrolled view");
    m_labels.AddHeading(kProgressHeading.x, kProgressHeading.y, L"Progress bars on a timer, the lower one disabled");
    m_labels.AddHeading(kSpinHeading.x, kSpinHeading.y, L"Spin buttons with buddy edits");
    m_labels.AddLabel(kSpinLabels[0], L"starts at its minimum");
    m_labels.AddLabel(kSpinLabels[1], L"starts at its maximum");
    m_labels.AddHeading(kPanesHeading.x, kPanesHeading.y, L"Two panes split by a movable separator: drag it");
}

void CScrollingPage::DrawPage(CDC& dc, const CRect& client)
{
    CGalleryPage::DrawPage(dc, client);
    m_labels.Draw(dc);
    _drawPanes(dc);
}

void CScrollingPage::_drawPanes(CDC& dc)
{
    const COLORREF back = SlotColor(GallerySlot_ListBack, RGB(255, 255, 255));
    const COLORREF frame = SlotColor(GallerySlot_GroupFrame);
    const CRect* panes[2] = {&m_panes.left, &m_panes.right};
    const wchar_t* names[2] = {L"Left pane", L"Right pane"};
    CPageLabels widths;
    for (int i = 0; i < 2; ++i)
    {
        if (panes[i]->IsRectEmpty())
            continue;
        dc.FillSolidRect(panes[i], back);
        dc.Draw3dRect(panes[i], frame, frame);
        CString text;
        text.Format(L"%s: %d px", names[i], panes[i]->Width());
        CRect inside(*panes[i]);
        inside.DeflateRect(8, 8);
        widths.AddLabel(inside, text);
    }
    widths.Draw(dc);
}

void CScrollingPage::_showPosition(int index)
{
    CString text;
    text.Format(L"%s, skin %d: position %d", index < 2 ? L"Vertical" : L"Horizontal", index % 2,
                m_apBars[index]->GetScrollPos());
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
            return;
        }
    }
    // The short bars move too, without a read-out.
    if (pScrollBar)
        ApplyScroll(pScrollBar, nSBCode, nPos);
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
    // Different steps keep the bars out of step with each other.
    for (int i = 0; i < ProgressCount; ++i)
        m_aProgress[i].SetPos((m_aProgress[i].GetPos() + 1 + i) % 101);
}

void CScrollingPage::OnDestroy()
{
    KillTimer(kProgressTimer);
    CGalleryPage::OnDestroy();
}
