#include <afxcmn.h>
#include "cmnctrls_internal.h"

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)
IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)
IMPLEMENT_DYNAMIC(CListCtrl, CWnd)
IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)
IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)
IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)
IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)
IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)
IMPLEMENT_DYNAMIC(CToolBarCtrl, CWnd)

namespace zoafx {

void EnsureCommonControls()
{
    static bool registered = false;
    if (registered)
        return;
    INITCOMMONCONTROLSEX init = { sizeof(init), ICC_WIN95_CLASSES | ICC_BAR_CLASSES | ICC_TAB_CLASSES };
    registered = ::InitCommonControlsEx(&init) != FALSE;
}

BOOL CreateControl(CWnd* control, DWORD dwExStyle, LPCTSTR lpszClassName, DWORD dwStyle, const RECT& rect,
                   CWnd* pParentWnd, UINT nID)
{
    EnsureCommonControls();
    // The eleven-argument form, so that a derived class's own CreateEx is not re-entered.
    return control->CWnd::CreateEx(dwExStyle, lpszClassName, NULL, dwStyle, rect.left, rect.top,
                                   rect.right - rect.left, rect.bottom - rect.top,
                                   pParentWnd->GetSafeHwnd(), (HMENU)(UINT_PTR)nID, NULL);
}

bool ClaimDrawItem(UINT message, LRESULT* pResult)
{
    if (message != WM_DRAWITEM)
        return false;
    if (pResult != NULL)
        *pResult = TRUE;
    return true;
}

CImageList* ImageListFromResult(LRESULT result)
{
    return CImageList::FromHandle((HIMAGELIST)result);
}

CWnd* WndFromResult(LRESULT result)
{
    return CWnd::FromHandle((HWND)result);
}

} // namespace zoafx

using zoafx::CreateControl;
using zoafx::ImageListFromResult;
using zoafx::WndFromResult;

// Construction, destruction and creation are the same for every wrapper but the window class.
#define ZOAFX_IMPLEMENT_COMMON_CONTROL(theClass, windowClass)                                        \
    theClass::theClass() {}                                                                        \
    theClass::~theClass() { DestroyWindow(); }                                                     \
    BOOL theClass::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)             \
    {                                                                                              \
        return CreateControl(this, 0, windowClass, dwStyle, rect, pParentWnd, nID);                \
    }                                                                                              \
    BOOL theClass::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) \
    {                                                                                              \
        return CreateControl(this, dwExStyle, windowClass, dwStyle, rect, pParentWnd, nID);        \
    }


// ---------------------------------------------------------------------------------------
// CToolTipCtrl

CToolTipCtrl::CToolTipCtrl()
{
}

CToolTipCtrl::~CToolTipCtrl()
{
    DestroyWindow();
}

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle)
{
    return CreateEx(pParentWnd, dwStyle, 0);
}

BOOL CToolTipCtrl::CreateEx(CWnd* pParentWnd, DWORD dwStyle, DWORD dwStyleEx)
{
    zoafx::EnsureCommonControls();
    return CWnd::CreateEx(dwStyleEx, TOOLTIPS_CLASS, NULL, WS_POPUP | dwStyle, CW_USEDEFAULT, CW_USEDEFAULT,
                          CW_USEDEFAULT, CW_USEDEFAULT, pParentWnd->GetSafeHwnd(), NULL, NULL);
}

void CToolTipCtrl::FillInToolInfo(TOOLINFO& ti, CWnd* pWnd, UINT_PTR nIDTool) const
{
    memset(&ti, 0, sizeof(ti));
    ti.cbSize = sizeof(ti);
    HWND hwnd = pWnd->GetSafeHwnd();
    if (nIDTool == 0) {
        ti.hwnd = ::GetParent(hwnd);
        ti.uFlags = TTF_IDISHWND;
        ti.uId = (UINT_PTR)hwnd;
    } else {
        ti.hwnd = hwnd;
        ti.uId = nIDTool;
    }
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool, UINT_PTR nIDTool)
{
    CString text;
    if (!text.LoadString(nIDText))
        return FALSE;
    return AddTool(pWnd, text, lpRectTool, nIDTool);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool)
{
    if (pWnd == NULL || (lpRectTool != NULL && nIDTool == 0))
        return FALSE;
    TOOLINFO ti;
    FillInToolInfo(ti, pWnd, nIDTool);
    if (lpRectTool != NULL)
        ti.rect = *lpRectTool;
    ti.lpszText = (LPTSTR)lpszText;
    return (BOOL)::SendMessageW(m_hWnd, TTM_ADDTOOLW, 0, (LPARAM)&ti);
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool)
{
    if (pWnd == NULL)
        return;
    TOOLINFO ti;
    FillInToolInfo(ti, pWnd, nIDTool);
    ::SendMessageW(m_hWnd, TTM_DELTOOLW, 0, (LPARAM)&ti);
}

void CToolTipCtrl::UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool)
{
    if (pWnd == NULL)
        return;
    TOOLINFO ti;
    FillInToolInfo(ti, pWnd, nIDTool);
    ti.lpszText = (LPTSTR)lpszText;
    ::SendMessageW(m_hWnd, TTM_UPDATETIPTEXTW, 0, (LPARAM)&ti);
}

void CToolTipCtrl::UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool)
{
    CString text;
    if (text.LoadString(nIDText))
        UpdateTipText(text, pWnd, nIDTool);
}

void CToolTipCtrl::GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool) const
{
    str.Empty();
    if (pWnd == NULL)
        return;
    TOOLINFO ti;
    FillInToolInfo(ti, pWnd, nIDTool);
    // TTM_GETTEXT has no size argument: the documented limit is 80 characters; leave room.
    wchar_t buffer[1024] = L"";
    ti.lpszText = buffer;
    ::SendMessageW(m_hWnd, TTM_GETTEXTW, 1024, (LPARAM)&ti);
    str = buffer;
}

BOOL CToolTipCtrl::GetToolInfo(CToolInfo& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool) const
{
    if (pWnd == NULL)
        return FALSE;
    FillInToolInfo(ToolInfo, pWnd, nIDTool);
    ToolInfo.szText[0] = 0;
    ToolInfo.lpszText = ToolInfo.szText;
    return (BOOL)::SendMessageW(m_hWnd, TTM_GETTOOLINFOW, 0, (LPARAM)(TOOLINFO*)&ToolInfo);
}

void CToolTipCtrl::SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect)
{
    if (pWnd == NULL || lpRect == NULL)
        return;
    TOOLINFO ti;
    FillInToolInfo(ti, pWnd, nIDTool);
    ti.rect = *lpRect;
    ::SendMessageW(m_hWnd, TTM_NEWTOOLRECTW, 0, (LPARAM)&ti);
}

BOOL CToolTipCtrl::HitTest(CWnd* pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const
{
    if (pWnd == NULL || lpToolInfo == NULL)
        return FALSE;
    TTHITTESTINFO hit;
    memset(&hit, 0, sizeof(hit));
    hit.hwnd = pWnd->GetSafeHwnd();
    hit.pt = pt;
    hit.ti.cbSize = sizeof(TOOLINFO);
    if (!::SendMessageW(m_hWnd, TTM_HITTESTW, 0, (LPARAM)&hit))
        return FALSE;
    *lpToolInfo = hit.ti;
    return TRUE;
}

// ---------------------------------------------------------------------------------------
// CHeaderCtrl

ZOAFX_IMPLEMENT_COMMON_CONTROL(CHeaderCtrl, WC_HEADERW)

CImageList* CHeaderCtrl::GetImageList() const
{
    return ImageListFromResult(::SendMessageW(m_hWnd, HDM_GETIMAGELIST, 0, 0));
}

CImageList* CHeaderCtrl::SetImageList(CImageList* pImageList)
{
    return ImageListFromResult(::SendMessageW(m_hWnd, HDM_SETIMAGELIST, 0, (LPARAM)pImageList->GetSafeHandle()));
}

ZOAFX_IMPLEMENT_OWNER_DRAW(CHeaderCtrl)

// ---------------------------------------------------------------------------------------
// CListCtrl

ZOAFX_IMPLEMENT_COMMON_CONTROL(CListCtrl, WC_LISTVIEWW)

CImageList* CListCtrl::GetImageList(int nImageList) const
{
    return ImageListFromResult(::SendMessageW(m_hWnd, LVM_GETIMAGELIST, nImageList, 0));
}

CImageList* CListCtrl::SetImageList(CImageList* pImageList, int nImageListType)
{
    return ImageListFromResult(
        ::SendMessageW(m_hWnd, LVM_SETIMAGELIST, nImageListType, (LPARAM)pImageList->GetSafeHandle()));
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl() const
{
    return (CHeaderCtrl*)WndFromResult(::SendMessageW(m_hWnd, LVM_GETHEADER, 0, 0));
}

CEdit* CListCtrl::GetEditControl() const
{
    return (CEdit*)WndFromResult(::SendMessageW(m_hWnd, LVM_GETEDITCONTROL, 0, 0));
}

CEdit* CListCtrl::EditLabel(int nItem)
{
    return (CEdit*)WndFromResult(::SendMessageW(m_hWnd, LVM_EDITLABELW, nItem, 0));
}

int CListCtrl::InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat, int nWidth, int nSubItem)
{
    LVCOLUMN column;
    memset(&column, 0, sizeof(column));
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.fmt = nFormat;
    column.pszText = (LPTSTR)lpszColumnHeading;
    if (nWidth != -1) {
        column.mask |= LVCF_WIDTH;
        column.cx = nWidth;
    }
    if (nSubItem != -1) {
        column.mask |= LVCF_SUBITEM;
        column.iSubItem = nSubItem;
    }
    return InsertColumn(nCol, &column);
}

BOOL CListCtrl::GetColumnOrderArray(LPINT piArray, int iCount)
{
    if (iCount == -1) {
        CHeaderCtrl* header = GetHeaderCtrl();
        iCount = header == NULL ? 0 : header->GetItemCount();
    }
    if (piArray == NULL || iCount <= 0)
        return FALSE;
    return (BOOL)::SendMessageW(m_hWnd, LVM_GETCOLUMNORDERARRAY, iCount, (LPARAM)piArray);
}

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem)
{
    return InsertItem(LVIF_TEXT, nItem, lpszItem, 0, 0, 0, 0);
}

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem, int nImage)
{
    return InsertItem(LVIF_TEXT | LVIF_IMAGE, nItem, lpszItem, 0, 0, nImage, 0);
}

int CListCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask, int nImage,
                          LPARAM lParam)
{
    LVITEM item;
    memset(&item, 0, sizeof(item));
    item.mask = nMask;
    item.iItem = nItem;
    item.pszText = (LPTSTR)lpszItem;
    item.state = nState;
    item.stateMask = nStateMask;
    item.iImage = nImage;
    item.lParam = lParam;
    return InsertItem(&item);
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                        UINT nStateMask, LPARAM lParam)
{
    LVITEM item;
    memset(&item, 0, sizeof(item));
    item.mask = nMask;
    item.iItem = nItem;
    item.iSubItem = nSubItem;
    item.pszText = (LPTSTR)lpszItem;
    item.iImage = nImage;
    item.state = nState;
    item.stateMask = nStateMask;
    item.lParam = lParam;
    return SetItem(&item);
}

CString CListCtrl::GetItemText(int nItem, int nSubItem) const
{
    CString text;
    // LVM_GETITEMTEXT reports only how much it copied, so grow until the text fits.
    for (int size = 256; size <= (1 << 20); size *= 4) {
        int copied = GetItemText(nItem, nSubItem, text.GetBuffer(size), size);
        text.ReleaseBuffer(copied);
        if (copied < size - 1)
            break;
    }
    return text;
}

int CListCtrl::GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const
{
    if (lpszText == NULL || nLen < 1)
        return 0;
    lpszText[0] = 0;
    LVITEM item;
    memset(&item, 0, sizeof(item));
    item.iSubItem = nSubItem;
    item.pszText = lpszText;
    item.cchTextMax = nLen;
    return (int)::SendMessageW(m_hWnd, LVM_GETITEMTEXTW, nItem, (LPARAM)&item);
}

BOOL CListCtrl::SetItemText(int nItem, int nSubItem, LPCTSTR lpszText)
{
    LVITEM item;
    memset(&item, 0, sizeof(item));
    item.iSubItem = nSubItem;
    item.pszText = (LPTSTR)lpszText;
    return (BOOL)::SendMessageW(m_hWnd, LVM_SETITEMTEXTW, nItem, (LPARAM)&item);
}

DWORD_PTR CListCtrl::GetItemData(int nItem) const
{
    LVITEM item;
    memset(&item, 0, sizeof(item));
    item.mask = LVIF_PARAM;
    item.iItem = nItem;
    return GetItem(&item) ? (DWORD_PTR)item.lParam : 0;
}

BOOL CListCtrl::SetItemData(int nItem, DWORD_PTR dwData)
{
    return SetItem(nItem, 0, LVIF_PARAM, NULL, 0, 0, 0, (LPARAM)dwData);
}

BOOL CListCtrl::SetItemState(int nItem, UINT nState, UINT nMask)
{
    LVITEM item;
    memset(&item, 0, sizeof(item));
    item.state = nState;
    item.stateMask = nMask;
    return SetItemState(nItem, &item);
}

// State image 1 is the unchecked box and 2 the checked one; no state image reads as unchecked.
BOOL CListCtrl::GetCheck(int nItem) const
{
    UINT image = GetItemState(nItem, LVIS_STATEIMAGEMASK) >> 12;
    return image == 2;
}

BOOL CListCtrl::SetCheck(int nItem, BOOL fCheck)
{
    return SetItemState(nItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1), LVIS_STATEIMAGEMASK);
}

// A position is the selected item's index plus one, so that NULL ends the walk.
POSITION CListCtrl::GetFirstSelectedItemPosition() const
{
    return (POSITION)(DWORD_PTR)(1 + GetNextItem(-1, LVNI_SELECTED));
}

int CListCtrl::GetNextSelectedItem(POSITION& pos) const
{
    int item = (int)(DWORD_PTR)pos - 1;
    pos = (POSITION)(DWORD_PTR)(1 + GetNextItem(item, LVNI_SELECTED));
    return item;
}

BOOL CListCtrl::GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const
{
    if (lpRect == NULL)
        return FALSE;
    lpRect->left = (LONG)nCode;
    return (BOOL)::SendMessageW(m_hWnd, LVM_GETITEMRECT, nItem, (LPARAM)lpRect);
}

BOOL CListCtrl::GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref)
{
    ref.top = iSubItem;
    ref.left = nArea;
    return (BOOL)::SendMessageW(m_hWnd, LVM_GETSUBITEMRECT, iItem, (LPARAM)(RECT*)&ref);
}

int CListCtrl::HitTest(CPoint pt, UINT* pFlags) const
{
    LVHITTESTINFO hit;
    memset(&hit, 0, sizeof(hit));
    hit.pt = pt;
    int item = HitTest(&hit);
    if (pFlags != NULL)
        *pFlags = hit.flags;
    return item;
}

ZOAFX_IMPLEMENT_OWNER_DRAW(CListCtrl)

// ---------------------------------------------------------------------------------------
// CSliderCtrl

ZOAFX_IMPLEMENT_COMMON_CONTROL(CSliderCtrl, TRACKBAR_CLASSW)

void CSliderCtrl::GetSelection(int& nMin, int& nMax) const
{
    nMin = (int)::SendMessageW(m_hWnd, TBM_GETSELSTART, 0, 0);
    nMax = (int)::SendMessageW(m_hWnd, TBM_GETSELEND, 0, 0);
}

void CSliderCtrl::SetSelection(int nMin, int nMax)
{
    ::SendMessageW(m_hWnd, TBM_SETSELSTART, FALSE, nMin);
    ::SendMessageW(m_hWnd, TBM_SETSELEND, TRUE, nMax);
}

// Setting the position again makes the trackbar clamp it into the range.
void CSliderCtrl::VerifyPos()
{
    ::SendMessageW(m_hWnd, TBM_SETPOS, FALSE, GetPos());
}

CWnd* CSliderCtrl::GetBuddy(BOOL fLocation) const
{
    return WndFromResult(::SendMessageW(m_hWnd, TBM_GETBUDDY, fLocation, 0));
}

CWnd* CSliderCtrl::SetBuddy(CWnd* pWndBuddy, BOOL fLocation)
{
    return WndFromResult(::SendMessageW(m_hWnd, TBM_SETBUDDY, fLocation, (LPARAM)pWndBuddy->GetSafeHwnd()));
}

// ---------------------------------------------------------------------------------------
// CProgressCtrl

ZOAFX_IMPLEMENT_COMMON_CONTROL(CProgressCtrl, PROGRESS_CLASSW)

void CProgressCtrl::GetRange(int& nLower, int& nUpper)
{
    PBRANGE range = { 0, 0 };
    ::SendMessageW(m_hWnd, PBM_GETRANGE, TRUE, (LPARAM)&range);
    nLower = range.iLow;
    nUpper = range.iHigh;
}

// ---------------------------------------------------------------------------------------
// CSpinButtonCtrl

ZOAFX_IMPLEMENT_COMMON_CONTROL(CSpinButtonCtrl, UPDOWN_CLASSW)

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* pWndBuddy)
{
    return WndFromResult(::SendMessageW(m_hWnd, UDM_SETBUDDY, (WPARAM)pWndBuddy->GetSafeHwnd(), 0));
}

CWnd* CSpinButtonCtrl::GetBuddy() const
{
    return WndFromResult(::SendMessageW(m_hWnd, UDM_GETBUDDY, 0, 0));
}

void CSpinButtonCtrl::GetRange(int& lower, int& upper) const
{
    DWORD range = GetRange();
    lower = (short)HIWORD(range);
    upper = (short)LOWORD(range);
}

// ---------------------------------------------------------------------------------------
// CTabCtrl

ZOAFX_IMPLEMENT_COMMON_CONTROL(CTabCtrl, WC_TABCONTROLW)

CImageList* CTabCtrl::GetImageList() const
{
    return ImageListFromResult(::SendMessageW(m_hWnd, TCM_GETIMAGELIST, 0, 0));
}

CImageList* CTabCtrl::SetImageList(CImageList* pImageList)
{
    return ImageListFromResult(::SendMessageW(m_hWnd, TCM_SETIMAGELIST, 0, (LPARAM)pImageList->GetSafeHandle()));
}

CSize CTabCtrl::SetItemSize(CSize size)
{
    DWORD previous = (DWORD)::SendMessageW(m_hWnd, TCM_SETITEMSIZE, 0, MAKELPARAM(size.cx, size.cy));
    return CSize(LOWORD(previous), HIWORD(previous));
}

DWORD CTabCtrl::GetItemState(int nItem, DWORD dwMask) const
{
    TCITEM item;
    memset(&item, 0, sizeof(item));
    item.mask = TCIF_STATE;
    item.dwStateMask = dwMask;
    return GetItem(nItem, &item) ? item.dwState & dwMask : 0;
}

BOOL CTabCtrl::SetItemState(int nItem, DWORD dwMask, DWORD dwState)
{
    TCITEM item;
    memset(&item, 0, sizeof(item));
    item.mask = TCIF_STATE;
    item.dwState = dwState;
    item.dwStateMask = dwMask;
    return SetItem(nItem, &item);
}

LONG CTabCtrl::InsertItem(int nItem, LPCTSTR lpszItem)
{
    return InsertItem(TCIF_TEXT, nItem, lpszItem, 0, 0);
}

LONG CTabCtrl::InsertItem(int nItem, LPCTSTR lpszItem, int nImage)
{
    return InsertItem(TCIF_TEXT | TCIF_IMAGE, nItem, lpszItem, nImage, 0);
}

LONG CTabCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam)
{
    return InsertItem(nMask, nItem, lpszItem, nImage, lParam, 0, 0);
}

LONG CTabCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam, DWORD dwState,
                          DWORD dwStateMask)
{
    TCITEM item;
    memset(&item, 0, sizeof(item));
    item.mask = nMask;
    item.pszText = (LPTSTR)lpszItem;
    item.iImage = nImage;
    item.lParam = lParam;
    item.dwState = dwState;
    item.dwStateMask = dwStateMask;
    return InsertItem(nItem, &item);
}

ZOAFX_IMPLEMENT_OWNER_DRAW(CTabCtrl)

// ---------------------------------------------------------------------------------------
// CTreeCtrl

ZOAFX_IMPLEMENT_COMMON_CONTROL(CTreeCtrl, WC_TREEVIEWW)

CImageList* CTreeCtrl::GetImageList(int nImageList) const
{
    return ImageListFromResult(::SendMessageW(m_hWnd, TVM_GETIMAGELIST, nImageList, 0));
}

CImageList* CTreeCtrl::SetImageList(CImageList* pImageList, int nImageListType)
{
    return ImageListFromResult(
        ::SendMessageW(m_hWnd, TVM_SETIMAGELIST, nImageListType, (LPARAM)pImageList->GetSafeHandle()));
}

CEdit* CTreeCtrl::GetEditControl() const
{
    return (CEdit*)WndFromResult(::SendMessageW(m_hWnd, TVM_GETEDITCONTROL, 0, 0));
}

CEdit* CTreeCtrl::EditLabel(HTREEITEM hItem)
{
    return (CEdit*)WndFromResult(::SendMessageW(m_hWnd, TVM_EDITLABELW, 0, (LPARAM)hItem));
}

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM hItem) const
{
    TVITEM item;
    memset(&item, 0, sizeof(item));
    item.mask = TVIF_CHILDREN | TVIF_HANDLE;
    item.hItem = hItem;
    return GetItem(&item) && item.cChildren != 0;
}

CString CTreeCtrl::GetItemText(HTREEITEM hItem) const
{
    CString text;
    TVITEM item;
    memset(&item, 0, sizeof(item));
    item.mask = TVIF_TEXT | TVIF_HANDLE;
    item.hItem = hItem;
    // TVM_GETITEM does not report truncation, so grow while the buffer comes back full.
    for (int size = 256; size <= (1 << 20); size *= 4) {
        LPTSTR buffer = text.GetBuffer(size);
        buffer[0] = 0;
        item.pszText = buffer;
        item.cchTextMax = size;
        BOOL ok = GetItem(&item);
        text.ReleaseBuffer();
        // The control may answer with a pointer to its own copy of the text.
        if (ok && item.pszText != buffer && item.pszText != NULL) {
            text = item.pszText;
            break;
        }
        if (!ok || text.GetLength() < size - 1)
            break;
    }
    return text;
}

BOOL CTreeCtrl::SetItemText(HTREEITEM hItem, LPCTSTR lpszItem)
{
    TVITEM item;
    memset(&item, 0, sizeof(item));
    item.mask = TVIF_TEXT | TVIF_HANDLE;
    item.hItem = hItem;
    item.pszText = (LPTSTR)lpszItem;
    return SetItem(&item);
}

BOOL CTreeCtrl::GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const
{
    TVITEM item;
    memset(&item, 0, sizeof(item));
    item.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_HANDLE;
    item.hItem = hItem;
    if (!GetItem(&item))
        return FALSE;
    nImage = item.iImage;
    nSelectedImage = item.iSelectedImage;
    return TRUE;
}

BOOL CTreeCtrl::SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage)
{
    TVITEM item;
    memset(&item, 0, sizeof(item));
    item.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_HANDLE;
    item.hItem = hItem;
    item.iImage = nImage;
    item.iSelectedImage = nSelectedImage;
    return SetItem(&item);
}

BOOL CTreeCtrl::SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask)
{
    TVITEM item;
    memset(&item, 0, sizeof(item));
    item.mask = TVIF_STATE | TVIF_HANDLE;
    item.hItem = hItem;
    item.state = nState;
    item.stateMask = nStateMask;
    return SetItem(&item);
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM hItem) const
{
    TVITEM item;
    memset(&item, 0, sizeof(item));
    item.mask = TVIF_PARAM | TVIF_HANDLE;
    item.hItem = hItem;
    return GetItem(&item) ? (DWORD_PTR)item.lParam : 0;
}

BOOL CTreeCtrl::SetItemData(HTREEITEM hItem, DWORD_PTR dwData)
{
    TVITEM item;
    memset(&item, 0, sizeof(item));
    item.mask = TVIF_PARAM | TVIF_HANDLE;
    item.hItem = hItem;
    item.lParam = (LPARAM)dwData;
    return SetItem(&item);
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const
{
    if (lpRect == NULL)
        return FALSE;
    // TVM_GETITEMRECT takes the item handle in the rectangle's first bytes.
    *(HTREEITEM*)lpRect = hItem;
    return (BOOL)::SendMessageW(m_hWnd, TVM_GETITEMRECT, bTextOnly, (LPARAM)lpRect);
}

BOOL CTreeCtrl::GetCheck(HTREEITEM hItem) const
{
    return (GetItemState(hItem, TVIS_STATEIMAGEMASK) >> 12) == 2;
}

BOOL CTreeCtrl::SetCheck(HTREEITEM hItem, BOOL fCheck)
{
    return SetItemState(hItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1), TVIS_STATEIMAGEMASK);
}

HTREEITEM CTreeCtrl::InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                                UINT nStateMask, LPARAM lParam, HTREEITEM hParent, HTREEITEM hInsertAfter)
{
    TVINSERTSTRUCT insert;
    memset(&insert, 0, sizeof(insert));
    insert.hParent = hParent;
    insert.hInsertAfter = hInsertAfter;
    insert.item.mask = nMask;
    insert.item.pszText = (LPTSTR)lpszItem;
    insert.item.iImage = nImage;
    insert.item.iSelectedImage = nSelectedImage;
    insert.item.state = nState;
    insert.item.stateMask = nStateMask;
    insert.item.lParam = lParam;
    return InsertItem(&insert);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR lpszItem, HTREEITEM hParent, HTREEITEM hInsertAfter)
{
    return InsertItem(TVIF_TEXT, lpszItem, 0, 0, 0, 0, 0, hParent, hInsertAfter);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent,
                                HTREEITEM hInsertAfter)
{
    return InsertItem(TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE, lpszItem, nImage, nSelectedImage, 0, 0, 0,
                      hParent, hInsertAfter);
}

HTREEITEM CTreeCtrl::HitTest(CPoint pt, UINT* pFlags) const
{
    TVHITTESTINFO hit;
    memset(&hit, 0, sizeof(hit));
    hit.pt = pt;
    HTREEITEM item = HitTest(&hit);
    if (pFlags != NULL)
        *pFlags = hit.flags;
    return item;
}

// ---------------------------------------------------------------------------------------
// CToolBarCtrl

CToolBarCtrl::CToolBarCtrl()
{
}

CToolBarCtrl::~CToolBarCtrl()
{
    DestroyWindow();
}

BOOL CToolBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CToolBarCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    if (!CreateControl(this, dwExStyle, TOOLBARCLASSNAMEW, dwStyle, rect, pParentWnd, nID))
        return FALSE;
    SetButtonStructSize(sizeof(TBBUTTON));
    return TRUE;
}

int CToolBarCtrl::GetButtonInfo(int nID, TBBUTTONINFO* ptbbi) const
{
    if (ptbbi == NULL)
        return -1;
    return (int)::SendMessageW(m_hWnd, TB_GETBUTTONINFOW, nID, (LPARAM)ptbbi);
}

BOOL CToolBarCtrl::SetButtonInfo(int nID, TBBUTTONINFO* ptbbi)
{
    return ptbbi != NULL && ::SendMessageW(m_hWnd, TB_SETBUTTONINFOW, nID, (LPARAM)ptbbi);
}

CImageList* CToolBarCtrl::GetImageList() const
{
    return ImageListFromResult(::SendMessageW(m_hWnd, TB_GETIMAGELIST, 0, 0));
}

CImageList* CToolBarCtrl::SetImageList(CImageList* pImageList)
{
    return ImageListFromResult(::SendMessageW(m_hWnd, TB_SETIMAGELIST, 0, (LPARAM)pImageList->GetSafeHandle()));
}

int CToolBarCtrl::AddBitmap(int nNumButtons, UINT nBitmapID)
{
    TBADDBITMAP bitmap;
    bitmap.hInst = AfxFindResourceHandle(MAKEINTRESOURCE(nBitmapID), RT_BITMAP);
    bitmap.nID = nBitmapID;
    return (int)::SendMessageW(m_hWnd, TB_ADDBITMAP, nNumButtons, (LPARAM)&bitmap);
}

int CToolBarCtrl::AddBitmap(int nNumButtons, CBitmap* pBitmap)
{
    TBADDBITMAP bitmap;
    bitmap.hInst = NULL;
    bitmap.nID = (UINT_PTR)pBitmap->GetSafeHandle();
    return (int)::SendMessageW(m_hWnd, TB_ADDBITMAP, nNumButtons, (LPARAM)&bitmap);
}
