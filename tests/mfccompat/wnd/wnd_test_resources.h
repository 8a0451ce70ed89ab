// Resource ids of the window-layer tests (host executable and test extension DLL).
#pragma once

#define IDD_DDX 100
#define IDC_NAME 1001
#define IDC_NUMBER 1002
#define IDC_CHECK 1003
#define IDC_RADIO1 1004
#define IDC_RADIO2 1005
#define IDC_RADIO3 1006
#define IDC_RATIO 1007

// Only in the extension DLL.
#define IDD_EXTENSION 200
#define IDS_EXTENSION 201
#define IDC_EXTENSION_TEXT 2001
