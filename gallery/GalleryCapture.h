// Screenshots of the gallery: a window's border through WM_PRINT, its client area and children
// through WM_PRINTCLIENT (Wine's PrintWindow on a top-level window misses the children), written
// as a BMP.
#pragma once
#include <afxwin.h>

bool SaveWindowBitmap(HWND hWnd, const CString& path);
