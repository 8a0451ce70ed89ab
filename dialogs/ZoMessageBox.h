// Skinned stand-ins for the platform's MessageBox: the same MB_... types and ID... results, with
// translated button captions, an optional time-out and an optional "Do not show this message
// again" check box. Each is modal and returns the ID... code that closed the box; a null parent
// means the application's main window.
#pragma once
#include <afxwin.h>

#include "core/ZoCtrlExport.h"

namespace ZoControls {

// The message is `format` applied to the arguments.
ZOCTRL_API int ZoMessageBox(CWnd* parent, UINT type, const wchar_t* format, ...);
// The format is string resource `formatId`.
ZOCTRL_API int ZoMessageBox(CWnd* parent, UINT type, UINT formatId, ...);

// As ZoMessageBox, closing itself after `seconds` with the rightmost button's result; 0 never
// closes.
ZOCTRL_API int TimedMessageBox(CWnd* parent, UINT seconds, UINT type, const wchar_t* format, ...);
ZOCTRL_API int TimedMessageBox(CWnd* parent, UINT seconds, UINT type, UINT formatId, ...);

// With the check box bound to `doNotShow`, written each time the box is clicked (never
// otherwise); a null pointer shows no check box.
ZOCTRL_API int ZoMessageBoxDispensable(CWnd* parent, UINT type, bool* doNotShow, const wchar_t* format, ...);
// The string resource is shown as it stands: the arguments are accepted and not applied.
ZOCTRL_API int ZoMessageBoxDispensable(CWnd* parent, UINT type, bool* doNotShow, UINT textId, ...);

} // namespace ZoControls
