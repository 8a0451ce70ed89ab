// The set-up every control benchmark shares: GDI+, the common controls and the library started,
// and one visible host window for the controls under test.
#pragma once
#include <windows.h>
#include <commctrl.h>
#include <gdiplus.h>

#include <stdio.h>

#include "ZoCtrl.h"

namespace zobench {

const int kHostWidth = 800;
const int kHostHeight = 600;

// Runs `body(host)` inside that set-up and tears it down again; returns the process exit code.
// `hostProc` receives the notifications the controls send to their parent.
template <class Body>
int RunWithHost(const wchar_t* name, WNDPROC hostProc, Body body)
{
    Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    if (Gdiplus::GdiplusStartup(&token, &input, NULL) != Gdiplus::Ok) {
        printf("%ls: GDI+ did not start\n", name);
        return 1;
    }
    INITCOMMONCONTROLSEX controls = {sizeof(INITCOMMONCONTROLSEX),
                                     ICC_PROGRESS_CLASS | ICC_STANDARD_CLASSES | ICC_BAR_CLASSES | ICC_TAB_CLASSES |
                                         ICC_LISTVIEW_CLASSES};
    ::InitCommonControlsEx(&controls);
    ::InitializeZoCtrl();

    WNDCLASSW wc = {};
    wc.lpfnWndProc = hostProc;
    wc.hInstance = ::GetModuleHandleW(NULL);
    wc.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    wc.lpszClassName = name;
    ::RegisterClassW(&wc);
    const HWND host = ::CreateWindowExW(0, name, name, WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0, kHostWidth,
                                        kHostHeight, NULL, NULL, wc.hInstance, NULL);
    int result = 1;
    if (host) {
        body(host);
        ::DestroyWindow(host);
        result = 0;
    } else {
        printf("%ls: no host window\n", name);
    }
    ::UninitializeZoCtrl();
    Gdiplus::GdiplusShutdown(token);
    return result;
}

} // namespace zobench
