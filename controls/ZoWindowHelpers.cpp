#include "controls/ZoWindowHelpers.h"

#include <commctrl.h>

namespace ZoControls {

namespace {

const int kMaxPumpedPaints = 64;

} // namespace

void ZoTrackMouseLeave(HWND hWnd)
{
    TRACKMOUSEEVENT tme = {sizeof(TRACKMOUSEEVENT), TME_LEAVE, hWnd, HOVER_DEFAULT};
    ::_TrackMouseEvent(&tme);
}

void ZoPaintPendingNow(HWND hWnd)
{
    MSG msg;
    for (int i = 0; i < kMaxPumpedPaints && ::PeekMessageW(&msg, hWnd, WM_PAINT, WM_PAINT, PM_REMOVE); ++i)
        ::DispatchMessageW(&msg);
}

} // namespace ZoControls
