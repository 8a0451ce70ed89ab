// CWnd's everyday operations: thin wrappers of the USER functions, returning temporary
// CWnd/CDC objects where MFC does.
#include <afxwin.h>
#include "wndstate.h"

namespace {

CWnd* WndOrNull(HWND hWnd)
{
    return CWnd::FromHandle(hWnd);
}

BOOL ModifyLong(HWND hWnd, int nIndex, DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    if (hWnd == NULL)
        return FALSE;
    DWORD dwStyle = static_cast<DWORD>(::GetWindowLongPtrW(hWnd, nIndex));
    DWORD dwNewStyle = (dwStyle & ~dwRemove) | dwAdd;
    if (dwStyle == dwNewStyle)
        return FALSE;
    ::SetWindowLongPtrW(hWnd, nIndex, static_cast<LONG_PTR>(dwNewStyle));
    if (nFlags != 0)
        ::SetWindowPos(hWnd, NULL, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | nFlags);
    return TRUE;
}

} // namespace

/////////////////////////////////////////////////////////////////////////////
// Messages

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendMessageW(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::PostMessageW(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendNotifyMessageW(m_hWnd, message, wParam, lParam);
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep, BOOL bOnlyPerm)
{
    for (HWND hWndChild = ::GetTopWindow(m_hWnd); hWndChild != NULL;
         hWndChild = ::GetNextWindow(hWndChild, GW_HWNDNEXT))
    {
        if (!bOnlyPerm)
        {
            ::SendMessageW(hWndChild, message, wParam, lParam);
        }
        else if (CWnd* pWnd = CWnd::FromHandlePermanent(hWndChild))
        {
            // Straight to the object, as if the message had arrived through its window.
            AfxCallWndProc(pWnd, hWndChild, message, wParam, lParam);
        }
        if (bDeep && ::GetTopWindow(hWndChild) != NULL)
        {
            CWnd* pChild = CWnd::FromHandle(hWndChild);
            pChild->SendMessageToDescendants(message, wParam, lParam, bDeep, bOnlyPerm);
        }
    }
}

BOOL CWnd::PreTranslateMessage(MSG* pMsg)
{
    // A window with tool tips watches the mouse over itself and its children.
    if ((m_nFlags & WF_TOOLTIPS) && m_hWnd != NULL && pMsg != NULL &&
        (pMsg->hwnd == m_hWnd || ::IsChild(m_hWnd, pMsg->hwnd)))
        FilterToolTipMessage(pMsg);
    return FALSE;
}

BOOL CWnd::PreTranslateInput(LPMSG lpMsg)
{
    const bool bKey = lpMsg->message >= WM_KEYFIRST && lpMsg->message <= WM_KEYLAST;
    const bool bMouse = lpMsg->message >= WM_MOUSEFIRST && lpMsg->message <= WM_MOUSELAST;
    if (!bKey && !bMouse)
        return FALSE;
    return ::IsDialogMessageW(m_hWnd, lpMsg);
}

BOOL PASCAL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg)
{
    for (HWND hWnd = pMsg->hwnd; hWnd != NULL; hWnd = ::GetParent(hWnd))
    {
        CWnd* pWnd = CWnd::FromHandlePermanent(hWnd);
        if (pWnd != NULL && pWnd->PreTranslateMessage(pMsg))
            return TRUE;
        if (hWnd == hWndStop)
            break;
    }
    return FALSE;
}

/////////////////////////////////////////////////////////////////////////////
// Styles, text, identity

DWORD CWnd::GetStyle() const
{
    return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_STYLE));
}

DWORD CWnd::GetExStyle() const
{
    return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_EXSTYLE));
}

BOOL PASCAL CWnd::ModifyStyle(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ModifyLong(hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL PASCAL CWnd::ModifyStyleEx(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ModifyLong(hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ModifyLong(m_hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ModifyLong(m_hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

void CWnd::SetWindowText(LPCTSTR lpszString)
{
    ::SetWindowTextW(m_hWnd, lpszString);
}

int CWnd::GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const
{
    if (lpszStringBuf == NULL || nMaxCount <= 0)
        return 0;
    return ::GetWindowTextW(m_hWnd, lpszStringBuf, nMaxCount);
}

void CWnd::GetWindowText(CString& rString) const
{
    int nLength = ::GetWindowTextLengthW(m_hWnd);
    if (nLength <= 0)
    {
        rString.Empty();
        return;
    }
    LPTSTR buffer = rString.GetBuffer(nLength + 1);
    int nCopied = ::GetWindowTextW(m_hWnd, buffer, nLength + 1);
    rString.ReleaseBuffer(nCopied > 0 ? nCopied : 0);
}

int CWnd::GetWindowTextLength() const
{
    return ::GetWindowTextLengthW(m_hWnd);
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw)
{
    ::SendMessageW(m_hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(pFont->GetSafeHandle()), bRedraw);
}

CFont* CWnd::GetFont() const
{
    HFONT hFont = reinterpret_cast<HFONT>(::SendMessageW(m_hWnd, WM_GETFONT, 0, 0));
    return hFont != NULL ? CFont::FromHandle(hFont) : NULL;
}

int CWnd::GetDlgCtrlID() const
{
    return ::GetDlgCtrlID(m_hWnd);
}

int CWnd::SetDlgCtrlID(int nID)
{
    return static_cast<int>(::SetWindowLongPtrW(m_hWnd, GWLP_ID, nID));
}

/////////////////////////////////////////////////////////////////////////////
// Size and position

void CWnd::GetWindowRect(LPRECT lpRect) const
{
    if (!::GetWindowRect(m_hWnd, lpRect) && lpRect != NULL)
        ::SetRectEmpty(lpRect);
}

void CWnd::GetClientRect(LPRECT lpRect) const
{
    if (!::GetClientRect(m_hWnd, lpRect) && lpRect != NULL)
        ::SetRectEmpty(lpRect);
}

void CWnd::ClientToScreen(LPPOINT lpPoint) const
{
    ::ClientToScreen(m_hWnd, lpPoint);
}

void CWnd::ClientToScreen(LPRECT lpRect) const
{
    ::MapWindowPoints(m_hWnd, NULL, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::ScreenToClient(LPPOINT lpPoint) const
{
    ::ScreenToClient(m_hWnd, lpPoint);
}

void CWnd::ScreenToClient(LPRECT lpRect) const
{
    ::MapWindowPoints(NULL, m_hWnd, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const
{
    ::MapWindowPoints(m_hWnd, pwndTo->GetSafeHwnd(), lpPoint, nCount);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const
{
    ::MapWindowPoints(m_hWnd, pwndTo->GetSafeHwnd(), reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint)
{
    ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
}

void CWnd::MoveWindow(LPCRECT lpRect, BOOL bRepaint)
{
    if (lpRect != NULL)
        MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top, bRepaint);
}

BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags)
{
    return ::SetWindowPos(m_hWnd, pWndInsertAfter->GetSafeHwnd(), x, y, cx, cy, nFlags);
}

void CWnd::CenterWindow(CWnd* pAlternateOwner)
{
    if (m_hWnd == NULL)
        return;
    const DWORD dwStyle = GetStyle();
    HWND hWndCenter = pAlternateOwner->GetSafeHwnd();
    if (hWndCenter == NULL)
        hWndCenter = (dwStyle & WS_CHILD) ? ::GetParent(m_hWnd) : ::GetWindow(m_hWnd, GW_OWNER);

    // The area to center in: the parent's client area for children, else the owner's
    // window rectangle within the monitor's work area (the work area alone without owner).
    RECT rcArea;
    RECT rcCenter;
    if (dwStyle & WS_CHILD)
    {
        HWND hWndParent = ::GetParent(m_hWnd);
        ::GetClientRect(hWndParent, &rcArea);
        if (hWndCenter != NULL && hWndCenter != hWndParent)
        {
            ::GetWindowRect(hWndCenter, &rcCenter);
            ::MapWindowPoints(NULL, hWndParent, reinterpret_cast<LPPOINT>(&rcCenter), 2);
        }
        else
        {
            rcCenter = rcArea;
        }
    }
    else
    {
        MONITORINFO mi = { sizeof(mi), {}, {}, 0 };
        HMONITOR hMonitor = ::MonitorFromWindow(hWndCenter != NULL ? hWndCenter : m_hWnd, MONITOR_DEFAULTTONEAREST);
        ::GetMonitorInfoW(hMonitor, &mi);
        rcArea = mi.rcWork;
        if (hWndCenter != NULL && ::IsWindowVisible(hWndCenter) && !::IsIconic(hWndCenter))
            ::GetWindowRect(hWndCenter, &rcCenter);
        else
            rcCenter = rcArea;
    }

    RECT rcWindow;
    ::GetWindowRect(m_hWnd, &rcWindow);
    const int width = rcWindow.right - rcWindow.left;
    const int height = rcWindow.bottom - rcWindow.top;
    int left = (rcCenter.left + rcCenter.right) / 2 - width / 2;
    int top = (rcCenter.top + rcCenter.bottom) / 2 - height / 2;
    // Keep the window inside the area where it fits.
    if (left + width > rcArea.right)
        left = rcArea.right - width;
    if (left < rcArea.left)
        left = rcArea.left;
    if (top + height > rcArea.bottom)
        top = rcArea.bottom - height;
    if (top < rcArea.top)
        top = rcArea.top;
    ::SetWindowPos(m_hWnd, NULL, left, top, -1, -1, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

int CWnd::GetWindowRgn(HRGN hRgn) const
{
    return ::GetWindowRgn(m_hWnd, hRgn);
}

int CWnd::SetWindowRgn(HRGN hRgn, BOOL bRedraw)
{
    return ::SetWindowRgn(m_hWnd, hRgn, bRedraw);
}

BOOL CWnd::GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const
{
    return ::GetWindowPlacement(m_hWnd, lpwndpl);
}

BOOL CWnd::SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl)
{
    return ::SetWindowPlacement(m_hWnd, lpwndpl);
}

/////////////////////////////////////////////////////////////////////////////
// State

BOOL CWnd::ShowWindow(int nCmdShow)
{
    return ::ShowWindow(m_hWnd, nCmdShow);
}

BOOL CWnd::IsWindowVisible() const
{
    return ::IsWindowVisible(m_hWnd);
}

BOOL CWnd::EnableWindow(BOOL bEnable)
{
    return ::EnableWindow(m_hWnd, bEnable);
}

BOOL CWnd::IsWindowEnabled() const
{
    return ::IsWindowEnabled(m_hWnd);
}

BOOL CWnd::IsIconic() const
{
    return ::IsIconic(m_hWnd);
}

BOOL CWnd::IsZoomed() const
{
    return ::IsZoomed(m_hWnd);
}

BOOL CWnd::IsChild(const CWnd* pWnd) const
{
    return ::IsChild(m_hWnd, pWnd->GetSafeHwnd());
}

void CWnd::BringWindowToTop()
{
    ::BringWindowToTop(m_hWnd);
}

BOOL CWnd::SetForegroundWindow()
{
    return ::SetForegroundWindow(m_hWnd);
}

CWnd* PASCAL CWnd::GetForegroundWindow()
{
    return WndOrNull(::GetForegroundWindow());
}

CWnd* CWnd::SetActiveWindow()
{
    return WndOrNull(::SetActiveWindow(m_hWnd));
}

CWnd* PASCAL CWnd::GetActiveWindow()
{
    return WndOrNull(::GetActiveWindow());
}

CWnd* CWnd::SetFocus()
{
    return WndOrNull(::SetFocus(m_hWnd));
}

CWnd* PASCAL CWnd::GetFocus()
{
    return WndOrNull(::GetFocus());
}

CWnd* CWnd::SetCapture()
{
    return WndOrNull(::SetCapture(m_hWnd));
}

CWnd* PASCAL CWnd::GetCapture()
{
    return WndOrNull(::GetCapture());
}

BOOL CWnd::FlashWindow(BOOL bInvert)
{
    return ::FlashWindow(m_hWnd, bInvert);
}

UINT_PTR CWnd::SetTimer(UINT_PTR nIDEvent, UINT nElapse, void (CALLBACK* lpfnTimer)(HWND, UINT, UINT_PTR, DWORD))
{
    return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
}

BOOL CWnd::KillTimer(UINT_PTR nIDEvent)
{
    return ::KillTimer(m_hWnd, nIDEvent);
}

/////////////////////////////////////////////////////////////////////////////
// Painting

CDC* CWnd::GetDC()
{
    HDC hDC = ::GetDC(m_hWnd);
    return hDC != NULL ? CDC::FromHandle(hDC) : NULL;
}

CDC* CWnd::GetWindowDC()
{
    HDC hDC = ::GetWindowDC(m_hWnd);
    return hDC != NULL ? CDC::FromHandle(hDC) : NULL;
}

CDC* CWnd::GetDCEx(CRgn* prgnClip, DWORD flags)
{
    HDC hDC = ::GetDCEx(m_hWnd, static_cast<HRGN>(prgnClip->GetSafeHandle()), flags);
    return hDC != NULL ? CDC::FromHandle(hDC) : NULL;
}

int CWnd::ReleaseDC(CDC* pDC)
{
    HDC hDC = pDC->GetSafeHdc();
    if (hDC == NULL)
        return 0;
    return ::ReleaseDC(m_hWnd, hDC);
}

CDC* CWnd::BeginPaint(LPPAINTSTRUCT lpPaint)
{
    HDC hDC = ::BeginPaint(m_hWnd, lpPaint);
    return hDC != NULL ? CDC::FromHandle(hDC) : NULL;
}

void CWnd::EndPaint(LPPAINTSTRUCT lpPaint)
{
    ::EndPaint(m_hWnd, lpPaint);
}

void CWnd::Invalidate(BOOL bErase)
{
    ::InvalidateRect(m_hWnd, NULL, bErase);
}

void CWnd::InvalidateRect(LPCRECT lpRect, BOOL bErase)
{
    ::InvalidateRect(m_hWnd, lpRect, bErase);
}

void CWnd::InvalidateRgn(CRgn* pRgn, BOOL bErase)
{
    ::InvalidateRgn(m_hWnd, static_cast<HRGN>(pRgn->GetSafeHandle()), bErase);
}

void CWnd::ValidateRect(LPCRECT lpRect)
{
    ::ValidateRect(m_hWnd, lpRect);
}

void CWnd::ValidateRgn(CRgn* pRgn)
{
    ::ValidateRgn(m_hWnd, static_cast<HRGN>(pRgn->GetSafeHandle()));
}

void CWnd::UpdateWindow()
{
    ::UpdateWindow(m_hWnd);
}

BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, CRgn* prgnUpdate, UINT flags)
{
    return ::RedrawWindow(m_hWnd, lpRectUpdate, static_cast<HRGN>(prgnUpdate->GetSafeHandle()), flags);
}

BOOL CWnd::LockWindowUpdate()
{
    return ::LockWindowUpdate(m_hWnd);
}

void CWnd::UnlockWindowUpdate()
{
    ::LockWindowUpdate(NULL);
}

void CWnd::SetRedraw(BOOL bRedraw)
{
    ::SendMessageW(m_hWnd, WM_SETREDRAW, bRedraw, 0);
}

void CWnd::Print(CDC* pDC, DWORD dwFlags) const
{
    ::SendMessageW(m_hWnd, WM_PRINT, reinterpret_cast<WPARAM>(pDC->GetSafeHdc()), static_cast<LPARAM>(dwFlags));
}

void CWnd::PrintClient(CDC* pDC, DWORD dwFlags) const
{
    ::SendMessageW(m_hWnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(pDC->GetSafeHdc()), static_cast<LPARAM>(dwFlags));
}

/////////////////////////////////////////////////////////////////////////////
// Related windows

CWnd* CWnd::GetParent() const
{
    return WndOrNull(::GetParent(m_hWnd));
}

CWnd* CWnd::SetParent(CWnd* pWndNewParent)
{
    return WndOrNull(::SetParent(m_hWnd, pWndNewParent->GetSafeHwnd()));
}

CWnd* CWnd::GetOwner() const
{
    return WndOrNull(::GetWindow(m_hWnd, GW_OWNER));
}

void CWnd::SetOwner(CWnd* pOwnerWnd)
{
    ::SetWindowLongPtrW(m_hWnd, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(pOwnerWnd->GetSafeHwnd()));
}

CWnd* CWnd::GetParentOwner() const
{
    // The nearest window up the parent chain that is not a child (this one if it is none).
    if (m_hWnd == NULL)
        return NULL;
    HWND hWnd = m_hWnd;
    HWND hWndParent;
    while ((::GetWindowLongPtrW(hWnd, GWL_STYLE) & WS_CHILD) && (hWndParent = ::GetParent(hWnd)) != NULL)
        hWnd = hWndParent;
    return WndOrNull(hWnd);
}

CWnd* CWnd::GetTopLevelParent() const
{
    if (m_hWnd == NULL)
        return NULL;
    HWND hWnd = m_hWnd;
    for (HWND hWndParent = hWnd; hWndParent != NULL; hWndParent = ::GetParent(hWnd))
        hWnd = hWndParent;
    return WndOrNull(hWnd);
}

CWnd* CWnd::GetTopLevelOwner() const
{
    if (m_hWnd == NULL)
        return NULL;
    HWND hWnd = m_hWnd;
    for (HWND hWndOwner = hWnd; hWndOwner != NULL; hWndOwner = ::GetWindow(hWnd, GW_OWNER))
        hWnd = hWndOwner;
    return WndOrNull(hWnd);
}

CWnd* CWnd::GetWindow(UINT nCmd) const
{
    return WndOrNull(::GetWindow(m_hWnd, nCmd));
}

CWnd* CWnd::GetNextWindow(UINT nFlag) const
{
    return WndOrNull(::GetWindow(m_hWnd, nFlag));
}

CWnd* CWnd::GetTopWindow() const
{
    return WndOrNull(::GetTopWindow(m_hWnd));
}

CWnd* CWnd::GetLastActivePopup() const
{
    return WndOrNull(::GetLastActivePopup(m_hWnd));
}

CWnd* CWnd::GetDescendantWindow(int nID, BOOL bOnlyPerm) const
{
    // Direct children first, then depth first.
    if (HWND hWndChild = ::GetDlgItem(m_hWnd, nID))
    {
        if (::GetTopWindow(hWndChild) == NULL || !bOnlyPerm || CWnd::FromHandlePermanent(hWndChild) != NULL)
        {
            CWnd* pWnd = bOnlyPerm ? CWnd::FromHandlePermanent(hWndChild) : CWnd::FromHandle(hWndChild);
            if (pWnd != NULL)
                return pWnd;
        }
    }
    for (HWND hWndChild = ::GetTopWindow(m_hWnd); hWndChild != NULL; hWndChild = ::GetNextWindow(hWndChild, GW_HWNDNEXT))
    {
        CWnd* pChild = CWnd::FromHandle(hWndChild);
        if (CWnd* pWnd = pChild->GetDescendantWindow(nID, bOnlyPerm))
            return pWnd;
    }
    return NULL;
}

CWnd* CWnd::ChildWindowFromPoint(POINT point) const
{
    return WndOrNull(::ChildWindowFromPoint(m_hWnd, point));
}

CWnd* CWnd::ChildWindowFromPoint(POINT point, UINT nFlags) const
{
    return WndOrNull(::ChildWindowFromPointEx(m_hWnd, point, nFlags));
}

CWnd* PASCAL CWnd::WindowFromPoint(POINT point)
{
    return WndOrNull(::WindowFromPoint(point));
}

CWnd* PASCAL CWnd::GetDesktopWindow()
{
    return WndOrNull(::GetDesktopWindow());
}

CWnd* PASCAL CWnd::FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName)
{
    return WndOrNull(::FindWindowW(lpszClassName, lpszWindowName));
}

/////////////////////////////////////////////////////////////////////////////
// Dialog items

CWnd* CWnd::GetDlgItem(int nID) const
{
    return WndOrNull(::GetDlgItem(m_hWnd, nID));
}

void CWnd::GetDlgItem(int nID, HWND* phWnd) const
{
    if (phWnd != NULL)
        *phWnd = ::GetDlgItem(m_hWnd, nID);
}

LRESULT CWnd::SendDlgItemMessage(int nID, UINT message, WPARAM wParam, LPARAM lParam) const
{
    return ::SendDlgItemMessageW(m_hWnd, nID, message, wParam, lParam);
}

void CWnd::SetDlgItemText(int nID, LPCTSTR lpszString)
{
    ::SetDlgItemTextW(m_hWnd, nID, lpszString);
}

int CWnd::GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const
{
    if (lpStr == NULL || nMaxCount <= 0)
        return 0;
    return static_cast<int>(::GetDlgItemTextW(m_hWnd, nID, lpStr, nMaxCount));
}

int CWnd::GetDlgItemText(int nID, CString& rString) const
{
    rString.Empty();
    HWND hWndItem = ::GetDlgItem(m_hWnd, nID);
    if (hWndItem == NULL)
        return 0;
    CWnd::FromHandle(hWndItem)->GetWindowText(rString);
    return rString.GetLength();
}

void CWnd::SetDlgItemInt(int nID, UINT nValue, BOOL bSigned)
{
    ::SetDlgItemInt(m_hWnd, nID, nValue, bSigned);
}

UINT CWnd::GetDlgItemInt(int nID, BOOL* lpTrans, BOOL bSigned) const
{
    return ::GetDlgItemInt(m_hWnd, nID, lpTrans, bSigned);
}

void CWnd::CheckDlgButton(int nIDButton, UINT nCheck)
{
    ::CheckDlgButton(m_hWnd, nIDButton, nCheck);
}

UINT CWnd::IsDlgButtonChecked(int nIDButton) const
{
    return ::IsDlgButtonChecked(m_hWnd, nIDButton);
}

void CWnd::CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton)
{
    ::CheckRadioButton(m_hWnd, nIDFirstButton, nIDLastButton, nIDCheckButton);
}

int CWnd::GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton)
{
    for (int nID = nIDFirstButton; nID <= nIDLastButton; ++nID)
    {
        if (::IsDlgButtonChecked(m_hWnd, nID))
            return nID;
    }
    return 0;
}

CWnd* CWnd::GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious) const
{
    return WndOrNull(::GetNextDlgGroupItem(m_hWnd, pWndCtl->GetSafeHwnd(), bPrevious));
}

CWnd* CWnd::GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious) const
{
    return WndOrNull(::GetNextDlgTabItem(m_hWnd, pWndCtl->GetSafeHwnd(), bPrevious));
}

/////////////////////////////////////////////////////////////////////////////
// Scrolling: a sibling scroll bar control named by GetScrollBarCtrl takes the place of
// the window's own bar.

namespace {

// The window and bar code a scroll call goes to.
HWND ScrollTarget(const CWnd* pWnd, int& nBar)
{
    if (nBar == SB_HORZ || nBar == SB_VERT)
    {
        if (CScrollBar* pBar = pWnd->GetScrollBarCtrl(nBar))
        {
            nBar = SB_CTL;
            return reinterpret_cast<CWnd*>(pBar)->GetSafeHwnd();
        }
    }
    return pWnd->m_hWnd;
}

} // namespace

CScrollBar* CWnd::GetScrollBarCtrl(int) const
{
    return NULL;
}

int CWnd::SetScrollPos(int nBar, int nPos, BOOL bRedraw)
{
    HWND hWnd = ScrollTarget(this, nBar);
    return ::SetScrollPos(hWnd, nBar, nPos, bRedraw);
}

int CWnd::GetScrollPos(int nBar) const
{
    HWND hWnd = ScrollTarget(this, nBar);
    return ::GetScrollPos(hWnd, nBar);
}

void CWnd::SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw)
{
    HWND hWnd = ScrollTarget(this, nBar);
    ::SetScrollRange(hWnd, nBar, nMinPos, nMaxPos, bRedraw);
}

void CWnd::GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const
{
    HWND hWnd = ScrollTarget(this, nBar);
    int nMin = 0;
    int nMax = 0;
    ::GetScrollRange(hWnd, nBar, &nMin, &nMax);
    if (lpMinPos != NULL)
        *lpMinPos = nMin;
    if (lpMaxPos != NULL)
        *lpMaxPos = nMax;
}

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw)
{
    if (lpScrollInfo == NULL)
        return FALSE;
    HWND hWnd = ScrollTarget(this, nBar);
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    ::SetScrollInfo(hWnd, nBar, lpScrollInfo, bRedraw);
    return TRUE;
}

BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask)
{
    if (lpScrollInfo == NULL)
        return FALSE;
    HWND hWnd = ScrollTarget(this, nBar);
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(hWnd, nBar, lpScrollInfo);
}

int CWnd::GetScrollLimit(int nBar)
{
    SCROLLINFO info = {};
    if (!GetScrollInfo(nBar, &info, SIF_RANGE | SIF_PAGE))
        return 0;
    int nPage = info.nPage > 0 ? static_cast<int>(info.nPage) - 1 : 0;
    int nLimit = info.nMax - nPage;
    return nLimit > info.nMin ? nLimit : info.nMin;
}

void CWnd::ShowScrollBar(UINT nBar, BOOL bShow)
{
    ::ShowScrollBar(m_hWnd, static_cast<int>(nBar), bShow);
}

BOOL CWnd::EnableScrollBar(int nSBFlags, UINT nArrowFlags)
{
    return ::EnableScrollBar(m_hWnd, static_cast<UINT>(nSBFlags), nArrowFlags);
}

void CWnd::ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect, LPCRECT lpClipRect)
{
    ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
}

int CWnd::ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                         LPRECT lpRectUpdate, UINT flags)
{
    return ::ScrollWindowEx(m_hWnd, dx, dy, lpRectScroll, lpRectClip,
                            static_cast<HRGN>(prgnUpdate->GetSafeHandle()), lpRectUpdate, flags);
}

/////////////////////////////////////////////////////////////////////////////
// Misc

void CWnd::DragAcceptFiles(BOOL bAccept)
{
    ::DragAcceptFiles(m_hWnd, bAccept);
}

HICON CWnd::SetIcon(HICON hIcon, BOOL bBigIcon)
{
    return reinterpret_cast<HICON>(::SendMessageW(m_hWnd, WM_SETICON, bBigIcon ? ICON_BIG : ICON_SMALL,
                                                  reinterpret_cast<LPARAM>(hIcon)));
}

HICON CWnd::GetIcon(BOOL bBigIcon) const
{
    return reinterpret_cast<HICON>(::SendMessageW(m_hWnd, WM_GETICON, bBigIcon ? ICON_BIG : ICON_SMALL, 0));
}
