// ZoCtrl: what a host includes. Include it after the MFC headers (<afxwin.h> ...).
// It gathers every subsystem's public headers, lowest first: core/, images/, controls/,
// dialogs/, lists/, frames/.
#pragma once

#include "ZoLibrary.h"
#include "core/ZoCtrlExport.h"
#include "core/ZoThemeTypes.h"
#include "core/ZoThemeMath.h"
#include "core/ZoThemeManager.h"
#include "core/ZoUIBase.h"
#include "images/ZoResourceImage.h"
#include "images/ZoResourcePNG.h"
#include "controls/ZoScrollBar.h"
#include "controls/ZoProgressCtrl.h"
#include "controls/ZoSpinButtonCtrl.h"
#include "controls/SeparatorWnd.h"
#include "controls/ZoButton.h"
#include "controls/ZoButtonVariants.h"
#include "controls/ZoStatic.h"
#include "lists/ZoTreeFile.h"
#include "lists/ZoTreeListCtrlItem.h"
#include "frames/ZoMenuXP.h"
