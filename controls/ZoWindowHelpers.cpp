#include "controls/ZoWindowHelpers.h"

#include <commctrl.h>

namespace ZoControls {

void ZoTrackMouseLeave(HWND hWnd)
{
    TRACKMOUSEEVENT tme = {sizeof(TRACKMOUSEEVENT), TME_LEAVE, hWnd, HOVER_DEFAULT};
    ::_TrackMouseEvent(&tme);
}

LRESULT ZoCallWindow(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    const WNDPROC proc = reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(hWnd, GWLP_WNDPROC));
    if (!proc || ::GetWindowThreadProcessId(hWnd, NULL) != ::GetCurrentThreadId())
        return ::SendMessageW(hWnd, message, wParam, lParam);
    return ::CallWindowProcW(proc, hWnd, message, wParam, lParam);
}

} // namespace ZoControls
