// Window chores shared by the controls.
#pragma once
#include <afxwin.h>

namespace ZoControls {

// Asks for one WM_MOUSELEAVE when the mouse leaves `hWnd`.
void ZoTrackMouseLeave(HWND hWnd);

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
