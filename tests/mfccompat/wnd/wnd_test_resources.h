// Resource ids of the window-layer tests (host executable and test extension DLL).
#pragma once

#define IDD_DDX 100
#define IDC_NAME 1001

// Only in the extension DLL.
#define IDD_EXTENSION 200
#define IDS_EXTENSION 201
#define IDC_EXTENSION_TEXT 2001
