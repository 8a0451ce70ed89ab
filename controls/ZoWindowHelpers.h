// Window chores shared by the controls.
#pragma once
#include <afxwin.h>

namespace ZoControls {

// Asks for one WM_MOUSELEAVE when the mouse leaves `hWnd`.
void ZoTrackMouseLeave(HWND hWnd);

// Hands `message` to the present window procedure of `hWnd` as SendMessage does for a window
// of this thread, subclasses included, but without passing the thread's message hooks: under
// Wine every hooked message costs a round trip to the Wine server, more than drawing a list
// cell. A window of another thread (or none) gets a plain SendMessage.
LRESULT ZoCallWindow(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

// The window text as the platform's own window procedure keeps it, asked through `query` (a
// control's DefWindowProc): what GetWindowText gives, without two sent messages on every paint.
template <class Query>
CString ZoQueryWindowText(Query query)
{
    CString text;
    const int length = static_cast<int>(query(WM_GETTEXTLENGTH, 0, 0));
    if (length <= 0)
        return text;
    LPWSTR buffer = text.GetBuffer(length + 1);
    const int got = static_cast<int>(query(WM_GETTEXT, static_cast<WPARAM>(length + 1), reinterpret_cast<LPARAM>(buffer)));
    text.ReleaseBuffer(got > 0 && got <= length ? got : 0);
    return text;
}

} // namespace ZoControls
