#include <afxwin.h>
#include <zoafx/handlemap.h>

namespace {

CMenu* NewTempMenu(HMENU hMenu)
{
    CMenu* menu = new CMenu;
    menu->m_hMenu = hMenu;
    return menu;
}

// Temporary wrappers never own their menu, so the destructor must not destroy it.
void DetachTempMenu(CMenu* menu)
{
    menu->m_hMenu = NULL;
}

zoafx::CHandleMap<CMenu, HMENU>& MenuMap()
{
    static zoafx::CHandleMap<CMenu, HMENU> map(&NewTempMenu, &DetachTempMenu);
    return map;
}

HWND SafeHwnd(const CWnd* wnd)
{
    return wnd == NULL ? NULL : wnd->m_hWnd;
}

LPCTSTR BitmapAsItem(const CBitmap* bitmap)
{
    return reinterpret_cast<LPCTSTR>(bitmap->GetSafeHandle());
}

} // namespace

IMPLEMENT_DYNCREATE(CMenu, CObject)

CMenu::CMenu() : m_hMenu(NULL)
{
}

CMenu::~CMenu()
{
    DestroyMenu();
}

BOOL CMenu::Attach(HMENU hMenu)
{
    if (hMenu == NULL || m_hMenu != NULL)
        return FALSE;
    m_hMenu = hMenu;
    MenuMap().SetPermanent(hMenu, this);
    return TRUE;
}

HMENU CMenu::Detach()
{
    HMENU hMenu = m_hMenu;
    if (hMenu != NULL && MenuMap().LookupPermanent(hMenu) == this)
        MenuMap().RemoveHandle(hMenu);
    m_hMenu = NULL;
    return hMenu;
}

CMenu* PASCAL CMenu::FromHandle(HMENU hMenu)
{
    return MenuMap().FromHandle(hMenu);
}

CMenu* PASCAL CMenu::FromHandlePermanent(HMENU hMenu)
{
    return MenuMap().LookupPermanent(hMenu);
}

void PASCAL CMenu::DeleteTempMap()
{
    MenuMap().DeleteTemp();
}

BOOL CMenu::CreateMenu()
{
    return Attach(::CreateMenu());
}

BOOL CMenu::CreatePopupMenu()
{
    return Attach(::CreatePopupMenu());
}

BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName)
{
    HINSTANCE module = AfxFindResourceHandle(lpszResourceName, RT_MENU);
    return Attach(::LoadMenuW(module, lpszResourceName));
}

BOOL CMenu::LoadMenu(UINT nIDResource)
{
    return LoadMenu(MAKEINTRESOURCE(nIDResource));
}

BOOL CMenu::LoadMenuIndirect(const void* lpMenuTemplate)
{
    return lpMenuTemplate != NULL && Attach(::LoadMenuIndirectW(lpMenuTemplate));
}

BOOL CMenu::DestroyMenu()
{
    if (m_hMenu == NULL)
        return FALSE;
    return ::DestroyMenu(Detach());
}

BOOL CMenu::DeleteMenu(UINT nPosition, UINT nFlags)
{
    return ::DeleteMenu(m_hMenu, nPosition, nFlags);
}

BOOL CMenu::RemoveMenu(UINT nPosition, UINT nFlags)
{
    return ::RemoveMenu(m_hMenu, nPosition, nFlags);
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
{
    return ::AppendMenuW(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp)
{
    return ::AppendMenuW(m_hMenu, nFlags | MF_BITMAP, nIDNewItem, BitmapAsItem(pBmp));
}

BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
{
    return ::InsertMenuW(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp)
{
    return ::InsertMenuW(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem, BitmapAsItem(pBmp));
}

BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
{
    return ::ModifyMenuW(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp)
{
    return ::ModifyMenuW(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem, BitmapAsItem(pBmp));
}

BOOL CMenu::InsertMenuItem(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos)
{
    return lpMenuItemInfo != NULL && ::InsertMenuItemW(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

UINT CMenu::CheckMenuItem(UINT nIDCheckItem, UINT nCheck)
{
    return (UINT)::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck);
}

BOOL CMenu::CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags)
{
    return ::CheckMenuRadioItem(m_hMenu, nIDFirst, nIDLast, nIDItem, nFlags);
}

UINT CMenu::EnableMenuItem(UINT nIDEnableItem, UINT nEnable)
{
    return (UINT)::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable);
}

BOOL CMenu::SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked,
                               const CBitmap* pBmpChecked)
{
    return ::SetMenuItemBitmaps(m_hMenu, nPosition, nFlags,
                                (HBITMAP)pBmpUnchecked->GetSafeHandle(),
                                (HBITMAP)pBmpChecked->GetSafeHandle());
}

BOOL CMenu::SetDefaultItem(UINT uItem, BOOL fByPos)
{
    return ::SetMenuDefaultItem(m_hMenu, uItem, fByPos);
}

UINT CMenu::GetDefaultItem(UINT gmdiFlags, BOOL fByPos)
{
    return ::GetMenuDefaultItem(m_hMenu, fByPos, gmdiFlags);
}

UINT CMenu::GetMenuItemCount() const
{
    return (UINT)::GetMenuItemCount(m_hMenu);
}

UINT CMenu::GetMenuItemID(int nPos) const
{
    return ::GetMenuItemID(m_hMenu, nPos);
}

UINT CMenu::GetMenuState(UINT nID, UINT nFlags) const
{
    return ::GetMenuState(m_hMenu, nID, nFlags);
}

int CMenu::GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const
{
    if (lpString == NULL || nMaxCount < 1)
        return 0;
    return ::GetMenuStringW(m_hMenu, nIDItem, lpString, nMaxCount, nFlags);
}

int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const
{
    rString.Empty();
    int length = ::GetMenuStringW(m_hMenu, nIDItem, NULL, 0, nFlags);
    if (length <= 0)
        return 0;
    int copied = ::GetMenuStringW(m_hMenu, nIDItem, rString.GetBuffer(length + 1), length + 1, nFlags);
    rString.ReleaseBuffer(copied);
    return copied;
}

BOOL CMenu::GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos)
{
    return lpMenuItemInfo != NULL && ::GetMenuItemInfoW(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

BOOL CMenu::SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos)
{
    return lpMenuItemInfo != NULL && ::SetMenuItemInfoW(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

CMenu* CMenu::GetSubMenu(int nPos) const
{
    return FromHandle(::GetSubMenu(m_hMenu, nPos));
}

BOOL CMenu::GetMenuInfo(LPMENUINFO lpcmi) const
{
    return lpcmi != NULL && ::GetMenuInfo(m_hMenu, lpcmi);
}

BOOL CMenu::SetMenuInfo(LPCMENUINFO lpcmi)
{
    return lpcmi != NULL && ::SetMenuInfo(m_hMenu, lpcmi);
}

DWORD CMenu::GetMenuContextHelpId() const
{
    return ::GetMenuContextHelpId(m_hMenu);
}

BOOL CMenu::SetMenuContextHelpId(DWORD dwContextHelpId)
{
    return ::SetMenuContextHelpId(m_hMenu, dwContextHelpId);
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect)
{
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, SafeHwnd(pWnd), lpRect);
}

BOOL CMenu::TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm)
{
    return ::TrackPopupMenuEx(m_hMenu, fuFlags, x, y, SafeHwnd(pWnd), lptpm);
}

void CMenu::DrawItem(LPDRAWITEMSTRUCT)
{
}

void CMenu::MeasureItem(LPMEASUREITEMSTRUCT)
{
}
