// ZoCtrl: what a host includes. Include it after the MFC headers (<afxwin.h> ...).
// Each subsystem adds its public headers below when it lands, in this order: images/,
// controls/, dialogs/, lists/, frames/.
#pragma once

#include "ZoCtrlExport.h"
#include "ZoLibrary.h"
#include "ZoThemeTypes.h"
#include "ZoThemeMath.h"
#include "ZoThemeManager.h"
#include "ZoUIBase.h"
#include "images/ZoResourceImage.h"
#include "images/ZoResourcePNG.h"
#include "controls/ZoScrollBar.h"
#include "controls/ZoProgressCtrl.h"
#include "controls/ZoSpinButtonCtrl.h"
#include "controls/SeparatorWnd.h"
#include "controls/ZoButton.h"
#include "controls/ZoButtonVariants.h"
#include "controls/ZoStatic.h"
#include "frames/ZoMenuXP.h"
