#include <afxwin.h>

#include "ZoControlTheme.h"
#include "core/ZoThemeManager.h"
#include "core/ZoThemeMath.h"

namespace ZoControls {

COLORREF ZoSlotColor(int slot, E_ZoTheme theme)
{
    const CZoThemeManager* pManager = CZoThemeManager::GetInstance();
    if (!pManager || slot < ZoThemeColor_First || slot > ZoThemeColor_Last)
        return RGB(0, 0, 0);
    return pManager->GetGDIColor(static_cast<E_ZoThemeColors>(slot), theme);
}

CFont* ZoCachedFont(E_ZoThemeFont font, E_ZoMonitorSize size)
{
    const CZoThemeManager* pManager = CZoThemeManager::GetInstance();
    if (!pManager || font < ZoThemeFont_0 || font >= ZoThemeFont_Count)
        return NULL;
    if (size < ZoMonitorSize_Normal || size >= ZoMonitorSize_Count)
        size = ZoMonitorSize_Normal;
    // The cache hands out const fonts; selecting one into a DC does not change it.
    return const_cast<CFont*>(pManager->GetCacheGDIFont(font, size));
}

float ZoCurrentZoom(E_ZoMonitorSize size)
{
    const CZoThemeManager* pManager = CZoThemeManager::GetInstance();
    return pManager ? pManager->GetZoomFactor(size) : ZoZoomFactorOf(size);
}

CZoTextScope::CZoTextScope(CDC& dc, CFont* pFont, COLORREF text, int bkMode)
    : m_dc(dc), m_pOldFont(NULL), m_oldText(dc.SetTextColor(text)), m_oldBkMode(dc.SetBkMode(bkMode))
{
    if (pFont && pFont->GetSafeHandle())
        m_pOldFont = dc.SelectObject(pFont);
}

CZoTextScope::~CZoTextScope()
{
    if (m_pOldFont)
        m_dc.SelectObject(m_pOldFont);
    m_dc.SetBkMode(m_oldBkMode);
    m_dc.SetTextColor(m_oldText);
}

} // namespace ZoControls
