// Private state shared by the window sources of the layer.
#pragma once
#include <afxwin.h>
#include <zoafx/handlemap.h>

namespace zoafx {

// Per-thread window state: the object waiting for its window, the creation hook and the
// message being processed (what Default and the reflection functions work on).
struct WndThreadState
{
    CWnd* pWndInit;
    HHOOK hHookCbt;
    MSG msgLast;
    MSG msgCurrent;
};

WndThreadState& WndState();
CHandleMap<CWnd, HWND>& WndMap();

// The layer's own access to CWnd internals.
struct WndAccess
{
    static void PreSubclass(CWnd* pWnd) { pWnd->PreSubclassWindow(); }
    static void HookProcedure(CWnd* pWnd, HWND hWnd);
    static void FinishNcDestroy(CWnd* pWnd);
    static LRESULT CallWindowProc(CWnd* pWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
    {
        return pWnd->WindowProc(nMsg, wParam, lParam);
    }
};

} // namespace zoafx
