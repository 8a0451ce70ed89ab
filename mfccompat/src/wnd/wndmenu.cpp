// CWnd's menus and frames, and command-UI updates (CCmdUI) of menu items and controls.
#include <afxwin.h>
#include "wndstate.h"

/////////////////////////////////////////////////////////////////////////////
// Menus and frames

CMenu* CWnd::GetMenu() const
{
    HMENU hMenu = ::GetMenu(m_hWnd);
    return hMenu != NULL ? CMenu::FromHandle(hMenu) : NULL;
}

BOOL CWnd::SetMenu(CMenu* pMenu)
{
    return ::SetMenu(m_hWnd, pMenu->GetSafeHmenu());
}

CMenu* CWnd::GetSystemMenu(BOOL bRevert) const
{
    HMENU hMenu = ::GetSystemMenu(m_hWnd, bRevert);
    return hMenu != NULL ? CMenu::FromHandle(hMenu) : NULL;
}

void CWnd::DrawMenuBar()
{
    ::DrawMenuBar(m_hWnd);
}

CFrameWnd* CWnd::GetParentFrame() const
{
    if (m_hWnd == NULL)
        return NULL;
    for (HWND hWnd = ::GetParent(m_hWnd); hWnd != NULL; hWnd = ::GetParent(hWnd))
    {
        CWnd* pWnd = CWnd::FromHandlePermanent(hWnd);
        if (pWnd != NULL && pWnd->IsKindOf(RUNTIME_CLASS(CFrameWnd)))
            return static_cast<CFrameWnd*>(pWnd);
    }
    return NULL;
}

CFrameWnd* CWnd::GetTopLevelFrame() const
{
    if (m_hWnd == NULL)
        return NULL;
    // This window if it is a frame, else its parent frame; then outward while frames nest.
    CFrameWnd* pFrame = NULL;
    CWnd* pSelf = CWnd::FromHandlePermanent(m_hWnd);
    if (pSelf != NULL && pSelf->IsKindOf(RUNTIME_CLASS(CFrameWnd)))
        pFrame = static_cast<CFrameWnd*>(pSelf);
    else
        pFrame = GetParentFrame();
    while (pFrame != NULL)
    {
        CFrameWnd* pOuter = pFrame->GetParentFrame();
        if (pOuter == NULL)
            break;
        pFrame = pOuter;
    }
    return pFrame;
}

namespace zoafx {

namespace {

// The menu (hMenu itself or one of its popups, depth first) that holds item nID.
HMENU FindMenuHolding(HMENU hMenu, UINT nID, int nDepth)
{
    if (hMenu == NULL || !::IsMenu(hMenu) || nDepth > 16)
        return NULL;
    const int nCount = ::GetMenuItemCount(hMenu);
    for (int i = 0; i < nCount; ++i)
    {
        if (::GetMenuItemID(hMenu, i) == nID)
            return hMenu;
        if (HMENU hFound = FindMenuHolding(::GetSubMenu(hMenu, i), nID, nDepth + 1))
            return hFound;
    }
    return NULL;
}

} // namespace

CMenu* FindPermanentMenuOfItem(CWnd* pWnd, UINT nID)
{
    const HMENU candidates[] = { WndState().hMenuLastPopup, ::GetMenu(pWnd->m_hWnd),
                                 ::GetSystemMenu(pWnd->m_hWnd, FALSE) };
    for (HMENU hCandidate : candidates)
    {
        if (HMENU hHolder = FindMenuHolding(hCandidate, nID, 0))
        {
            if (CMenu* pMenu = CMenu::FromHandlePermanent(hHolder))
                return pMenu;
        }
    }
    return NULL;
}

} // namespace zoafx

/////////////////////////////////////////////////////////////////////////////
// CCmdUI

CCmdUI::CCmdUI()
    : m_nID(0), m_nIndex(0), m_pMenu(NULL), m_pSubMenu(NULL), m_pOther(NULL), m_pParentMenu(NULL),
      m_bEnableChanged(FALSE), m_bContinueRouting(FALSE), m_nIndexMax(0)
{
}

void CCmdUI::Enable(BOOL bOn)
{
    if (m_pMenu != NULL)
    {
        // Items that open popups keep their state.
        if (m_pSubMenu != NULL)
            return;
        ::EnableMenuItem(m_pMenu->m_hMenu, m_nIndex, MF_BYPOSITION | (bOn ? MF_ENABLED : (MF_DISABLED | MF_GRAYED)));
    }
    else if (m_pOther != NULL && m_pOther->m_hWnd != NULL)
    {
        // A control that loses its enabled state hands the focus on first.
        if (!bOn && ::GetFocus() == m_pOther->m_hWnd)
        {
            HWND hWndParent = ::GetParent(m_pOther->m_hWnd);
            if (hWndParent != NULL)
                ::SendMessageW(hWndParent, WM_NEXTDLGCTL, 0, FALSE);
        }
        m_pOther->EnableWindow(bOn);
    }
    m_bEnableChanged = TRUE;
}

void CCmdUI::SetCheck(int nCheck)
{
    if (m_pMenu != NULL)
    {
        if (m_pSubMenu != NULL)
            return;
        ::CheckMenuItem(m_pMenu->m_hMenu, m_nIndex, MF_BYPOSITION | (nCheck ? MF_CHECKED : MF_UNCHECKED));
    }
    else if (m_pOther != NULL && m_pOther->m_hWnd != NULL)
    {
        if (m_pOther->SendMessage(WM_GETDLGCODE) & DLGC_BUTTON)
            m_pOther->SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck));
    }
}

void CCmdUI::SetRadio(BOOL bOn)
{
    SetCheck(bOn ? 1 : 0);
}

void CCmdUI::SetText(LPCTSTR lpszText)
{
    if (lpszText == NULL)
        lpszText = L"";
    if (m_pMenu != NULL)
    {
        if (m_pSubMenu != NULL)
            return;
        // Keep the item's state; only its text changes.
        UINT nState = ::GetMenuState(m_pMenu->m_hMenu, m_nIndex, MF_BYPOSITION);
        nState &= ~(MF_BITMAP | MF_OWNERDRAW | MF_SEPARATOR | MF_POPUP | 0xFF00);
        ::ModifyMenuW(m_pMenu->m_hMenu, m_nIndex, MF_BYPOSITION | MF_STRING | nState, m_nID, lpszText);
    }
    else if (m_pOther != NULL && m_pOther->m_hWnd != NULL)
    {
        CString current;
        m_pOther->GetWindowText(current);
        if (current != lpszText)
            m_pOther->SetWindowText(lpszText);
    }
}

void CCmdUI::ContinueRouting()
{
    m_bContinueRouting = TRUE;
}

BOOL CCmdUI::DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler)
{
    // Separators and invalid ids have nothing to update.
    if (pTarget == NULL || m_nID == 0 || LOWORD(m_nID) == 0xFFFF)
        return TRUE;
    m_bEnableChanged = FALSE;
    BOOL bResult = pTarget->OnCmdMsg(m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), this, NULL);
    if (bDisableIfNoHndler && !m_bEnableChanged)
    {
        AFX_CMDHANDLERINFO info = { NULL, NULL };
        Enable(pTarget->OnCmdMsg(m_nID, CN_COMMAND, this, &info));
    }
    return bResult;
}

void CWnd::UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler)
{
    CCmdUI state;
    CWnd wndTemp;
    for (HWND hWndChild = ::GetTopWindow(m_hWnd); hWndChild != NULL; hWndChild = ::GetNextWindow(hWndChild, GW_HWNDNEXT))
    {
        state.m_nID = static_cast<UINT>(::GetDlgCtrlID(hWndChild));
        wndTemp.m_hWnd = hWndChild;
        state.m_pOther = &wndTemp;
        // Automatic check boxes and radio buttons work without a handler.
        BOOL bDisable = bDisableIfNoHndler;
        if (::SendMessageW(hWndChild, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON)
        {
            const UINT nStyle = static_cast<UINT>(::GetWindowLongPtrW(hWndChild, GWL_STYLE)) & BS_TYPEMASK;
            if (nStyle == BS_AUTOCHECKBOX || nStyle == BS_AUTO3STATE || nStyle == BS_AUTORADIOBUTTON || nStyle == BS_GROUPBOX)
                bDisable = FALSE;
        }
        state.DoUpdate(pTarget, bDisable);
    }
    wndTemp.m_hWnd = NULL;
}
