#include <afxwin.h>

#include "ListsPage.h"

using namespace ZoControls;

namespace {

const DWORD kChild = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
const int kMargin = 10;
const CRect kReportRect(kMargin, 30, kMargin + 470, 780);
const CRect kFillRect(kMargin, 790, kMargin + 160, 816);
const CRect kVirtualRect(kMargin + 490, 30, kMargin + 490 + 300, 780);
const UINT kReportId = 1400;
const UINT kVirtualId = 1401;
const UINT kFillId = 1402;
const int kSampleRows = 60;
const int kManyRows = 100000;
const int kVirtualRows = 1000000;
const COLORREF kImageColours[] = {RGB(220, 80, 60), RGB(70, 160, 220), RGB(120, 200, 90)};
const wchar_t* const kKinds[] = {L"Document", L"picture", L"Archive"};

// A 16 x 16 square of one colour for the small image list.
void addSquare(CImageList& images, COLORREF colour)
{
    CWindowDC screen(NULL);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, 16, 16);
    CBitmap* pOld = dc.SelectObject(&bitmap);
    dc.FillSolidRect(0, 0, 16, 16, RGB(40, 40, 40));
    dc.FillSolidRect(2, 2, 12, 12, colour);
    dc.SelectObject(pOld);
    images.Add(&bitmap, static_cast<CBitmap*>(NULL));
}

} // namespace

BEGIN_MESSAGE_MAP(CListsPage, CGalleryPage)
    ON_BN_CLICKED(kFillId, &CListsPage::OnFillClicked)
    ON_NOTIFY(LVN_ENDLABELEDITW, kReportId, &CListsPage::OnEndLabelEdit)
    ON_NOTIFY(LVN_GETDISPINFOW, kVirtualId, &CListsPage::OnGetDispInfo)
END_MESSAGE_MAP()

CListsPage::CListsPage() {}

CListsPage::~CListsPage() {}

BOOL CListsPage::OnCreatePage() { return _createReportList() && _createVirtualList(); }

BOOL CListsPage::_createReportList()
{
    m_labels.AddHeading(kMargin, 8, L"Report list: click a header to sort, F2 or a click on a selected name edits");
    if (!m_report.Create(kChild | WS_BORDER | LVS_REPORT | LVS_SHOWSELALWAYS | LVS_EDITLABELS, kReportRect, this,
                         kReportId))
        return FALSE;
    m_report.SetExtendedStyle(m_report.GetExtendedStyle() | LVS_EX_CHECKBOXES | LVS_EX_HEADERDRAGDROP);
    m_report.InsertColumn(0, L"Name", LVCFMT_LEFT, Scaled(150));
    m_report.InsertColumn(1, L"Size", LVCFMT_RIGHT, Scaled(80));
    m_report.InsertColumn(2, L"Modified", LVCFMT_LEFT, Scaled(140));
    m_report.InsertColumn(3, L"Kind", LVCFMT_CENTER, Scaled(90));
    m_report.SetColumnSortMethod(0, CZoListCtrl::SCM_TextInsensitive);
    m_report.SetColumnSortMethod(1, CZoListCtrl::SCM_Numeric);
    m_report.SetColumnSortMethod(2, CZoListCtrl::SCM_DateTime);
    m_report.SetColumnSortMethod(3, CZoListCtrl::SCM_TextSensitive);
    m_images.Create(16, 16, ILC_COLOR24, 3, 0);
    for (int i = 0; i < 3; ++i)
        addSquare(m_images, kImageColours[i]);
    m_report.SetImageList(&m_images, LVSIL_SMALL);
    _fillRows(kSampleRows);
    m_report.SetItemState(0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);

    if (!m_fill.Create(L"Fill 100,000 rows", kChild | BS_PUSHBUTTON, kFillRect, this, kFillId))
        return FALSE;
    return TRUE;
}

void CListsPage::_fillRows(int count)
{
    CWaitCursor wait;
    m_report.SetRedraw(FALSE);
    m_report.DeleteAllItems();
    CString text;
    for (int i = 0; i < count; ++i)
    {
        text.Format(L"File %05d", (i * 7919) % count);
        const int item = m_report.InsertItem(i, text, i % 3);
        text.Format(L"%d", (i * 104729) % 100000 - 500);
        m_report.SetItemText(item, 1, i % 17 == 5 ? CString(L"n/a") : text);
        text.Format(L"%04d-%02d-%02d %02d:%02d:%02d", 2020 + i % 5, 1 + i % 12, 1 + i % 28, i % 24, i % 60, (i * 7) % 60);
        m_report.SetItemText(item, 2, i % 23 == 3 ? CString(L"unknown") : text);
        m_report.SetItemText(item, 3, kKinds[i % 3]);
        m_report.SetCheck(item, i % 4 == 0);
    }
    m_report.SetRedraw(TRUE);
    m_report.Invalidate();
}

BOOL CListsPage::_createVirtualList()
{
    m_labels.AddHeading(kVirtualRect.left, 8, L"Virtual list: 1,000,000 rows");
    if (!m_virtual.Create(kChild | WS_BORDER | LVS_REPORT | LVS_OWNERDATA | LVS_SHOWSELALWAYS, kVirtualRect, this,
                          kVirtualId))
        return FALSE;
    m_virtual.InsertColumn(0, L"Row", LVCFMT_RIGHT, Scaled(90));
    m_virtual.InsertColumn(1, L"Square", LVCFMT_RIGHT, Scaled(100));
    m_virtual.InsertColumn(2, L"Parity", LVCFMT_CENTER, Scaled(80));
    m_virtual.SetItemCountEx(kVirtualRows);
    return TRUE;
}

void CListsPage::OnFillClicked() { _fillRows(kManyRows); }

void CListsPage::OnEndLabelEdit(NMHDR* pNMHDR, LRESULT* pResult)
{
    const NMLVDISPINFOW* pInfo = reinterpret_cast<const NMLVDISPINFOW*>(pNMHDR);
    if (pInfo->item.pszText)
        m_report.SetItemText(pInfo->item.iItem, pInfo->item.iSubItem, pInfo->item.pszText);
    *pResult = 0;
}

void CListsPage::OnGetDispInfo(NMHDR* pNMHDR, LRESULT* pResult)
{
    NMLVDISPINFOW* pInfo = reinterpret_cast<NMLVDISPINFOW*>(pNMHDR);
    *pResult = 0;
    if (!(pInfo->item.mask & LVIF_TEXT) || !pInfo->item.pszText || pInfo->item.cchTextMax <= 0)
        return;
    // The host keeps the order: a header click only shows the arrow it chose.
    int column = -1;
    bool ascending = true;
    const bool descending = m_virtual.GetSortOption(column, ascending) && column == 0 && !ascending;
    const long long row = descending ? kVirtualRows - 1 - pInfo->item.iItem : pInfo->item.iItem;
    CString text;
    switch (pInfo->item.iSubItem)
    {
    case 0:
        text.Format(L"%lld", row);
        break;
    case 1:
        text.Format(L"%lld", row * row);
        break;
    default:
        text = row % 2 ? L"odd" : L"even";
        break;
    }
    lstrcpynW(pInfo->item.pszText, text, pInfo->item.cchTextMax);
}

void CListsPage::DrawPage(CDC& dc, const CRect& client)
{
    CGalleryPage::DrawPage(dc, client);
    m_labels.Draw(dc);
}
