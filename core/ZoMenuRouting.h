// How themed windows reach the owner-drawn menus without depending on them.
// Classes in this file:
//   IZoMenuSupport   what the owner-drawn menus do for a window that forwards to them
//   CZoMenuHookPause keeps the menu hook off the thread for a while
// plus the opt-in and forwarding calls every themed window makes, and
// ZO_DECLARE_MENUXP_FORWARDING / ZO_ON_MENUXP_MESSAGES / ZO_IMPLEMENT_MENUXP_FORWARDING, the one
// way every themed window routes its four menu messages.
// The core owns this interface; the menus (frames/) install themselves when the library loads.
// Until then (or without them) forwarding does what the platform does.
#pragma once
#include <afxwin.h>

#include "ZoCtrlExport.h"

namespace ZoControls {

class ZOCTRL_API IZoMenuSupport
{
public:
    virtual void SetLookNFeel(CWnd* pWnd, bool bEnable) = 0;
    virtual void InitMenuPopup(CWnd* pWnd, CMenu* pPopupMenu, BOOL bSysMenu) = 0;
    virtual void MeasureItem(MEASUREITEMSTRUCT* pMeasureItemStruct) = 0;
    // False when the item is not a menu item of ours.
    virtual bool DrawItem(DRAWITEMSTRUCT* pDrawItemStruct, HWND hWnd) = 0;
    // False when the menu is not owner-drawn by us.
    virtual bool MenuChar(CMenu* pMenu, UINT nChar, UINT nFlags, LRESULT& lResult) = 0;
    // Takes the menu hook off the calling thread (true) and puts it back (false), nested.
    virtual void PauseHook(bool bPause) = 0;

protected:
    ~IZoMenuSupport() {}
};

// The installed menu support; null for none.
ZOCTRL_API void ZoSetMenuSupport(IZoMenuSupport* pSupport);
ZOCTRL_API IZoMenuSupport* ZoGetMenuSupport();

// A themed window opts into the owner-drawn look of the menus it shows.
ZOCTRL_API void ZoMenuOptIn(CWnd* pWnd);

ZOCTRL_API void ZoForwardInitMenuPopup(CWnd* pWnd, CMenu* pPopupMenu, BOOL bSysMenu);
ZOCTRL_API void ZoForwardMeasureItem(MEASUREITEMSTRUCT* pMeasureItemStruct);
ZOCTRL_API bool ZoForwardDrawItem(DRAWITEMSTRUCT* pDrawItemStruct, HWND hWnd);
ZOCTRL_API bool ZoForwardMenuChar(CMenu* pMenu, UINT nChar, UINT nFlags, LRESULT& lResult);

// For its lifetime the menu hook leaves the calling thread's messages alone: bulk work that sends
// a window many messages while no menu can open (each hooked message is a round trip to the
// server under Wine).
class ZOCTRL_API CZoMenuHookPause
{
public:
    CZoMenuHookPause();
    ~CZoMenuHookPause();

private:
    IZoMenuSupport* m_pSupport;
    CZoMenuHookPause(const CZoMenuHookPause&);
    CZoMenuHookPause& operator=(const CZoMenuHookPause&);
};

} // namespace ZoControls

// The four menu messages of a themed window. In the class declaration:
//   ZO_DECLARE_MENUXP_FORWARDING()
// in the message map:
//   ZO_ON_MENUXP_MESSAGES()
// and once in the source file:
//   ZO_IMPLEMENT_MENUXP_FORWARDING(CMyWnd, CBaseWnd)
#define ZO_DECLARE_MENUXP_FORWARDING()                                                       \
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);             \
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);         \
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);                  \
    afx_msg LRESULT OnMenuChar(UINT nChar, UINT nFlags, CMenu* pMenu);

#define ZO_ON_MENUXP_MESSAGES() ON_WM_INITMENUPOPUP() ON_WM_MEASUREITEM() ON_WM_DRAWITEM() ON_WM_MENUCHAR()

#define ZO_IMPLEMENT_MENUXP_FORWARDING(theClass, baseClass)                                  \
    void theClass::OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu)            \
    {                                                                                        \
        baseClass::OnInitMenuPopup(pPopupMenu, nIndex, bSysMenu);                            \
        ZoControls::ZoForwardInitMenuPopup(this, pPopupMenu, bSysMenu);                      \
    }                                                                                        \
    void theClass::OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct)        \
    {                                                                                        \
        if (ZoControls::ZoGetMenuSupport())                                                  \
            ZoControls::ZoForwardMeasureItem(lpMeasureItemStruct);                           \
        else                                                                                 \
            baseClass::OnMeasureItem(nIDCtl, lpMeasureItemStruct);                           \
    }                                                                                        \
    void theClass::OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct)                 \
    {                                                                                        \
        if (!ZoControls::ZoForwardDrawItem(lpDrawItemStruct, m_hWnd))                        \
            baseClass::OnDrawItem(nIDCtl, lpDrawItemStruct);                                 \
    }                                                                                        \
    LRESULT theClass::OnMenuChar(UINT nChar, UINT nFlags, CMenu* pMenu)                      \
    {                                                                                        \
        LRESULT lResult = 0;                                                                 \
        if (ZoControls::ZoForwardMenuChar(pMenu, nChar, nFlags, lResult))                    \
            return lResult;                                                                  \
        return baseClass::OnMenuChar(nChar, nFlags, pMenu);                                  \
    }
