// Screenshots of the gallery: a window and its children rendered through WM_PRINTCLIENT
// (Wine's PrintWindow on a top-level window misses the children) and written as a BMP.
#pragma once
#include <afxwin.h>

bool SaveWindowClientBitmap(HWND hWnd, const CString& path);
