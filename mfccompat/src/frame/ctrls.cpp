#include <afxwin.h>
#include "cmnctrls_internal.h"

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CListBox, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)
IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

// The wrappers whose Create takes no caption differ only in their window class.
#define ZOAFX_IMPLEMENT_CONTROL(theClass, windowClass)                                   \
    theClass::theClass() {}                                                            \
    theClass::~theClass() { DestroyWindow(); }                                         \
    BOOL theClass::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) \
    {                                                                                  \
        return CWnd::Create(windowClass, NULL, dwStyle, rect, pParentWnd, nID);        \
    }

// ---------------------------------------------------------------------------------------
// CStatic

CStatic::CStatic()
{
}

CStatic::~CStatic()
{
    DestroyWindow();
}

BOOL CStatic::Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create(L"STATIC", lpszText, dwStyle, rect, pParentWnd, nID);
}

ZOAFX_IMPLEMENT_OWNER_DRAW(CStatic)

// ---------------------------------------------------------------------------------------
// CButton

CButton::CButton()
{
}

CButton::~CButton()
{
    DestroyWindow();
}

BOOL CButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create(L"BUTTON", lpszCaption, dwStyle, rect, pParentWnd, nID);
}

ZOAFX_IMPLEMENT_OWNER_DRAW(CButton)

// ---------------------------------------------------------------------------------------
// CEdit

ZOAFX_IMPLEMENT_CONTROL(CEdit, L"EDIT")

void CEdit::GetSel(int& nStartChar, int& nEndChar) const
{
    DWORD start = 0, end = 0;
    ::SendMessageW(m_hWnd, EM_GETSEL, (WPARAM)&start, (LPARAM)&end);
    nStartChar = (int)start;
    nEndChar = (int)end;
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const
{
    // EM_GETLINE reads the size from the buffer's first character, so it needs one at least.
    if (lpszBuffer == NULL || nMaxLength < 1)
        return 0;
    lpszBuffer[0] = (TCHAR)(nMaxLength > 0xFFFF ? 0xFFFF : nMaxLength);
    return (int)::SendMessageW(m_hWnd, EM_GETLINE, nIndex, (LPARAM)lpszBuffer);
}

void CEdit::SetSel(DWORD dwSelection, BOOL bNoScroll)
{
    ::SendMessageW(m_hWnd, EM_SETSEL, LOWORD(dwSelection), HIWORD(dwSelection));
    if (!bNoScroll)
        ::SendMessageW(m_hWnd, EM_SCROLLCARET, 0, 0);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll)
{
    ::SendMessageW(m_hWnd, EM_SETSEL, nStartChar, nEndChar);
    if (!bNoScroll)
        ::SendMessageW(m_hWnd, EM_SCROLLCARET, 0, 0);
}

// ---------------------------------------------------------------------------------------
// CListBox

ZOAFX_IMPLEMENT_CONTROL(CListBox, L"LISTBOX")

UINT CListBox::ItemFromPoint(CPoint pt, BOOL& bOutside) const
{
    DWORD result = (DWORD)::SendMessageW(m_hWnd, LB_ITEMFROMPOINT, 0, MAKELPARAM(pt.x, pt.y));
    bOutside = HIWORD(result) != 0;
    return LOWORD(result);
}

void CListBox::GetText(int nIndex, CString& rString) const
{
    rString.Empty();
    int length = GetTextLen(nIndex);
    if (length == LB_ERR)
        return;
    int copied = GetText(nIndex, rString.GetBuffer(length + 1));
    rString.ReleaseBuffer(copied == LB_ERR ? 0 : copied);
}

int CListBox::SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem)
{
    if (bSelect)
        return (int)::SendMessageW(m_hWnd, LB_SELITEMRANGEEX, nFirstItem, nLastItem);
    // LB_SELITEMRANGEEX deselects when the range is given backwards.
    return (int)::SendMessageW(m_hWnd, LB_SELITEMRANGEEX, nLastItem, nFirstItem);
}

void CListBox::DrawItem(LPDRAWITEMSTRUCT)
{
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (zoafx::ReflectItemMessage(this, message, lParam, pResult))
        return TRUE;
    if (message != WM_VKEYTOITEM && message != WM_CHARTOITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    int result = message == WM_VKEYTOITEM ? VKeyToItem(LOWORD(wParam), HIWORD(wParam))
                                          : CharToItem(LOWORD(wParam), HIWORD(wParam));
    if (pResult != NULL)
        *pResult = result;
    return TRUE;
}

void CListBox::MeasureItem(LPMEASUREITEMSTRUCT)
{
}

int CListBox::CompareItem(LPCOMPAREITEMSTRUCT)
{
    return 0;
}

void CListBox::DeleteItem(LPDELETEITEMSTRUCT)
{
}

// -1 asks the list box to apply its default keyboard handling.
int CListBox::VKeyToItem(UINT, UINT)
{
    return -1;
}

int CListBox::CharToItem(UINT, UINT)
{
    return -1;
}

// ---------------------------------------------------------------------------------------
// CComboBox

ZOAFX_IMPLEMENT_CONTROL(CComboBox, L"COMBOBOX")

void CComboBox::GetLBText(int nIndex, CString& rString) const
{
    rString.Empty();
    int length = GetLBTextLen(nIndex);
    if (length == CB_ERR)
        return;
    int copied = GetLBText(nIndex, rString.GetBuffer(length + 1));
    rString.ReleaseBuffer(copied == CB_ERR ? 0 : copied);
}

void CComboBox::DrawItem(LPDRAWITEMSTRUCT)
{
}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (zoafx::ReflectItemMessage(this, message, lParam, pResult))
        return TRUE;
    return CWnd::OnChildNotify(message, wParam, lParam, pResult);
}

void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT)
{
}

int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT)
{
    return 0;
}

void CComboBox::DeleteItem(LPDELETEITEMSTRUCT)
{
}

// ---------------------------------------------------------------------------------------
// CScrollBar

ZOAFX_IMPLEMENT_CONTROL(CScrollBar, L"SCROLLBAR")

void CScrollBar::GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const
{
    int minPos = 0, maxPos = 0;
    ::GetScrollRange(m_hWnd, SB_CTL, &minPos, &maxPos);
    if (lpMinPos != NULL)
        *lpMinPos = minPos;
    if (lpMaxPos != NULL)
        *lpMaxPos = maxPos;
}

BOOL CScrollBar::SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw)
{
    if (lpScrollInfo == NULL)
        return FALSE;
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    ::SetScrollInfo(m_hWnd, SB_CTL, lpScrollInfo, bRedraw);
    return TRUE;
}

BOOL CScrollBar::GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask)
{
    if (lpScrollInfo == NULL)
        return FALSE;
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(m_hWnd, SB_CTL, lpScrollInfo);
}

int CScrollBar::GetScrollLimit()
{
    SCROLLINFO info = { sizeof(info), SIF_RANGE | SIF_PAGE, 0, 0, 0, 0, 0 };
    if (!::GetScrollInfo(m_hWnd, SB_CTL, &info))
        return 0;
    int page = info.nPage > 0 ? (int)info.nPage - 1 : 0;
    int limit = info.nMax - page;
    return limit < info.nMin ? info.nMin : limit;
}
