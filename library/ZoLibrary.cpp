// The host's start and end calls.
#include <afxwin.h>

#include "ZoLibrary.h"
#include "core/ZoMemDC.h"
#include "core/ZoThemeManager.h"
#include "frames/ZoMenuXP.h"
#include "images/ZoResourcePNG.h"

// The result is the PNG store's; the theme manager's is ignored.
bool InitializeZoCtrl()
{
    ZoControls::CZoThemeManager::InitInstance();
    ZoControls::CMenuXP::InitializeHook();
    return ZoControls::CZoResourcePNGData::InitInstance();
}

void UninitializeZoCtrl()
{
    ZoControls::CMenuXP::UninitializeHook();
    ZoControls::CZoThemeManager::FreeInstance();
    ZoControls::CZoResourcePNGData::FreeInstance();
    ZoControls::CZoMemDC::FreeKeptSurface();
}
