// Library start and end. The host starts GDI+ before InitializeZoCtrl and shuts it down
// after UninitializeZoCtrl; the library uses GDI+ but never starts it.
#pragma once
#include "core/ZoCtrlExport.h"

extern "C" {
ZOCTRL_API bool InitializeZoCtrl();
ZOCTRL_API void UninitializeZoCtrl();
}
