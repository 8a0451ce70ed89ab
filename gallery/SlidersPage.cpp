#include <afxwin.h>

#include "SlidersPage.h"

using namespace ZoControls;

namespace {

const UINT kFirstHorizontalId = 100;
const UINT kFirstVerticalId = 120;
const UINT kRangeId = 140;
const DWORD kChild = WS_CHILD | WS_VISIBLE | WS_TABSTOP;

const CPoint kHorizontalHeading(12, 8);
const CRect kFirstHorizontal(12, 32, 292, 72);
const int kHorizontalPitch = 60;
const int kLabelWidth = 260;

struct SliderSpec
{
    DWORD style;
    const wchar_t* label;
};

const SliderSpec kHorizontal[] = {
    {TBS_AUTOTICKS, L"automatic ticks every 10, below"},
    {TBS_AUTOTICKS | TBS_TOP, L"automatic ticks, above"},
    {TBS_AUTOTICKS | TBS_BOTH, L"automatic ticks, both sides"},
    {TBS_NOTICKS, L"no ticks"},
    {TBS_BOTH, L"single ticks at 25 and 70"},
    {TBS_AUTOTICKS | TBS_BOTH | TBS_ENABLESELRANGE, L"selection 20 .. 60"},
    {TBS_AUTOTICKS | TBS_BOTH | WS_DISABLED, L"disabled"},
};

const CPoint kVerticalHeading(600, 8);
const CRect kFirstVertical(600, 32, 650, 472);
const int kVerticalPitch = 70;
const SliderSpec kVertical[] = {
    {TBS_VERT | TBS_BOTH | TBS_AUTOTICKS, L"both"},
    {TBS_VERT | TBS_LEFT | TBS_AUTOTICKS, L"left"},
    {TBS_VERT | TBS_AUTOTICKS, L"right"},
    {TBS_VERT | TBS_BOTH | TBS_AUTOTICKS | WS_DISABLED, L"disabled"},
};

const CPoint kRangeHeading(12, 512);
const CRect kRangeRect(12, 536, 712, 596);
const CRect kRangeReadout(724, 550, 1004, 570);

} // namespace

BEGIN_MESSAGE_MAP(CSlidersPage, CGalleryPage)
    ON_WM_HSCROLL()
    ON_WM_CONTEXTMENU()
    ON_MESSAGE(ZoMsg_RangeChanged, &CSlidersPage::OnRangeChanged)
END_MESSAGE_MAP()

CSlidersPage::CSlidersPage() {}

CSlidersPage::~CSlidersPage() {}

BOOL CSlidersPage::OnCreatePage()
{
    m_labels.AddHeading(kHorizontalHeading.x, kHorizontalHeading.y, L"Horizontal sliders, 0 .. 100");
    m_labels.AddHeading(kVerticalHeading.x, kVerticalHeading.y,
                        L"Vertical: only both-sided ones have a thumb strip");
    m_labels.AddHeading(kRangeHeading.x, kRangeHeading.y,
                        L"Range slider: drag the bounds or the thumb, right-click to reset");
    return _createHorizontal() && _createVertical() && _createRangeSlider();
}

BOOL CSlidersPage::_createHorizontal()
{
    for (int i = 0; i < HorizontalCount; ++i)
    {
        CRect rect = kFirstHorizontal;
        rect.OffsetRect(0, i * kHorizontalPitch);
        CZoSliderCtrl& slider = m_aHorizontal[i];
        if (!slider.Create(kChild | kHorizontal[i].style, rect, this, kFirstHorizontalId + i))
            return FALSE;
        slider.SetRange(0, 100, TRUE);
        slider.SetTicFreq(10);
        slider.SetPos(15 * i);
        m_labels.AddLabel(CRect(rect.right + 12, rect.top, rect.right + 12 + kLabelWidth, rect.bottom),
                          kHorizontal[i].label);
    }
    m_aHorizontal[4].SetTic(25);
    m_aHorizontal[4].SetTic(70);
    m_aHorizontal[5].SetSelection(20, 60);
    return TRUE;
}

BOOL CSlidersPage::_createVertical()
{
    for (int i = 0; i < VerticalCount; ++i)
    {
        CRect rect = kFirstVertical;
        rect.OffsetRect(i * kVerticalPitch, 0);
        CZoSliderCtrl& slider = m_aVertical[i];
        if (!slider.Create(kChild | kVertical[i].style, rect, this, kFirstVerticalId + i))
            return FALSE;
        slider.SetRange(0, 100, TRUE);
        slider.SetTicFreq(20);
        slider.SetPos(30 + 10 * i);
        m_labels.AddLabel(CRect(rect.left, rect.bottom + 4, rect.left + kVerticalPitch, rect.bottom + 24),
                          kVertical[i].label);
    }
    return TRUE;
}

BOOL CSlidersPage::_createRangeSlider()
{
    if (!m_range.Create(kChild | TBS_ENABLESELRANGE | TBS_BOTH | TBS_AUTOTICKS, kRangeRect, this, kRangeId) ||
        !m_rangeReadout.Create(L"", WS_CHILD | WS_VISIBLE | SS_LEFT | SS_CENTERIMAGE, kRangeReadout, this))
        return FALSE;
    m_range.SetRange(0, 100, TRUE);
    m_range.SetTicFreq(10);
    m_range.SetPos(50);
    m_range.SetSelection(20, 70);
    _showRange();
    return TRUE;
}

void CSlidersPage::_showRange()
{
    int start = 0;
    int end = 0;
    m_range.GetSelection(start, end);
    CString text;
    text.Format(L"Position %d, bounds %d .. %d", m_range.GetPos(), start, end);
    m_rangeReadout.SetWindowText(text);
}

void CSlidersPage::OnHScroll(UINT, UINT, CScrollBar* pScrollBar)
{
    if (pScrollBar && pScrollBar->GetSafeHwnd() == m_range.GetSafeHwnd())
        _showRange();
}

LRESULT CSlidersPage::OnRangeChanged(WPARAM, LPARAM)
{
    _showRange();
    return 0;
}

void CSlidersPage::OnContextMenu(CWnd* pWnd, CPoint point)
{
    if (!pWnd || pWnd->GetSafeHwnd() != m_range.GetSafeHwnd())
        return;
    // From the keyboard the point is (-1, -1): the menu then opens over the slider's middle.
    CRect client;
    m_range.GetClientRect(&client);
    if (point.x == -1 && point.y == -1)
        point = client.CenterPoint();
    else
        m_range.ScreenToClient(&point);
    m_range.PopUpMenuToReset(point);
}

void CSlidersPage::DrawPage(CDC& dc, const CRect& client)
{
    CGalleryPage::DrawPage(dc, client);
    m_labels.Draw(dc);
}
