// Theme look-ups shared by the controls. They tolerate a theme manager
// that is not running (before InitializeZoCtrl or after UninitializeZoCtrl), so a control
// painted then draws in black with the DC's font instead of crashing.
#pragma once
#include <afxwin.h>

#include "core/ZoThemeTypes.h"

namespace ZoControls {

// Colour of slot `slot` for `theme`; black when the theme manager is not running.
COLORREF ZoSlotColor(int slot, E_ZoTheme theme);

// The cached font of role `font` for size class `size` (unknown sizes use the normal class);
// null when the theme manager is not running.
CFont* ZoCachedFont(E_ZoThemeFont font, E_ZoMonitorSize size);

// The zoom factor of `size` as the theme manager reports it.
float ZoCurrentZoom(E_ZoMonitorSize size);

// Selects a font, a text colour and a background mode for its scope and restores them.
class CZoTextScope
{
public:
    CZoTextScope(CDC& dc, CFont* pFont, COLORREF text, int bkMode);
    ~CZoTextScope();

private:
    CZoTextScope(const CZoTextScope&);
    CZoTextScope& operator=(const CZoTextScope&);

    CDC& m_dc;
    CFont* m_pOldFont;
    COLORREF m_oldText;
    int m_oldBkMode;
};

} // namespace ZoControls
