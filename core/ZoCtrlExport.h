// Export macro of ZoCtrl.dll: classes and functions marked ZOCTRL_API are exported
// while the library itself is built and imported by every host.
#pragma once

#ifdef ZOCTRL_BUILDING
#define ZOCTRL_API __declspec(dllexport)
#else
#define ZOCTRL_API __declspec(dllimport)
#endif
