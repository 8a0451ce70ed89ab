// The host's start and end calls.
#include <afxwin.h>

#include "ZoLibrary.h"
#include "ZoThemeManager.h"

// The menu hook (before the PNG store) and the PNG store join this sequence when they exist;
// the result is then the PNG store's, and the theme manager's is ignored.
bool InitializeZoCtrl()
{
    return ZoControls::CZoThemeManager::InitInstance();
}

void UninitializeZoCtrl()
{
    ZoControls::CZoThemeManager::FreeInstance();
}
