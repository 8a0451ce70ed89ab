// Window chores shared by the controls.
#pragma once
#include <afxwin.h>

namespace ZoControls {

// Asks for one WM_MOUSELEAVE when the mouse leaves `hWnd`.
void ZoTrackMouseLeave(HWND hWnd);

// Dispatches the pending WM_PAINT of `hWnd` at once, so that a state change shows also inside a
// capture loop. Bounded: a paint handler that never validates must not hang the caller.
void ZoPaintPendingNow(HWND hWnd);

} // namespace ZoControls
