// The host's start and end calls.
#include <afxwin.h>

#include "ZoLibrary.h"
#include "ZoThemeManager.h"
#include "images/ZoResourcePNG.h"

// The menu hook joins this sequence, before the PNG store, when it exists. The result is the
// PNG store's; the theme manager's is ignored.
bool InitializeZoCtrl()
{
    ZoControls::CZoThemeManager::InitInstance();
    return ZoControls::CZoResourcePNGData::InitInstance();
}

void UninitializeZoCtrl()
{
    ZoControls::CZoThemeManager::FreeInstance();
    ZoControls::CZoResourcePNGData::FreeInstance();
}
