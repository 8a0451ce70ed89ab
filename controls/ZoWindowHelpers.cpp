#include "controls/ZoWindowHelpers.h"

#include <commctrl.h>

namespace ZoControls {

void ZoTrackMouseLeave(HWND hWnd)
{
    TRACKMOUSEEVENT tme = {sizeof(TRACKMOUSEEVENT), TME_LEAVE, hWnd, HOVER_DEFAULT};
    ::_TrackMouseEvent(&tme);
}

} // namespace ZoControls
