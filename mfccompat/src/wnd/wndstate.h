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
    HMENU hMenuLastPopup;   // the popup of the last WM_INITMENUPOPUP
    // The thread's tool-tip control for EnableToolTips and the tool it shows.
    HWND hWndToolTip;
    HWND hWndToolTipOwner;
    bool bHasTool;
    INT_PTR nLastHit;
    TTTOOLINFOW lastTool;
};

WndThreadState& WndState();
CHandleMap<CWnd, HWND>& WndMap();

// The permanent CMenu of the menu that holds item nID: searched in pWnd's menu bar, its
// system menu and the last popup opened on this thread. NULL when none has one.
CMenu* FindPermanentMenuOfItem(CWnd* pWnd, UINT nID);

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
