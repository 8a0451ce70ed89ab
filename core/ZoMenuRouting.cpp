#include "ZoMenuRouting.h"

namespace ZoControls {

namespace {

IZoMenuSupport* g_pMenuSupport = NULL;

} // namespace

void ZoSetMenuSupport(IZoMenuSupport* pSupport) { g_pMenuSupport = pSupport; }

IZoMenuSupport* ZoGetMenuSupport() { return g_pMenuSupport; }

void ZoMenuOptIn(CWnd* pWnd)
{
    if (g_pMenuSupport)
        g_pMenuSupport->SetLookNFeel(pWnd, true);
}

void ZoForwardInitMenuPopup(CWnd* pWnd, CMenu* pPopupMenu, BOOL bSysMenu)
{
    if (g_pMenuSupport)
        g_pMenuSupport->InitMenuPopup(pWnd, pPopupMenu, bSysMenu);
}

void ZoForwardMeasureItem(MEASUREITEMSTRUCT* pMeasureItemStruct)
{
    if (g_pMenuSupport)
        g_pMenuSupport->MeasureItem(pMeasureItemStruct);
}

bool ZoForwardDrawItem(DRAWITEMSTRUCT* pDrawItemStruct, HWND hWnd)
{
    return g_pMenuSupport && g_pMenuSupport->DrawItem(pDrawItemStruct, hWnd);
}

bool ZoForwardMenuChar(CMenu* pMenu, UINT nChar, UINT nFlags, LRESULT& lResult)
{
    return g_pMenuSupport && g_pMenuSupport->MenuChar(pMenu, nChar, nFlags, lResult);
}

CZoMenuHookPause::CZoMenuHookPause() : m_pSupport(g_pMenuSupport)
{
    if (m_pSupport)
        m_pSupport->PauseHook(true);
}

CZoMenuHookPause::~CZoMenuHookPause()
{
    if (m_pSupport)
        m_pSupport->PauseHook(false);
}

} // namespace ZoControls
