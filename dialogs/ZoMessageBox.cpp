#include "dialogs/ZoMessageBox.h"

#include <stdarg.h>

#include "dialogs/ZoMessageBoxDialog.h"

namespace ZoControls {

namespace {

const UINT kNoTimeout = static_cast<UINT>(-1);

CString formatMessage(const wchar_t* format, va_list args)
{
    CString message;
    if (format)
        message.FormatV(format, args);
    return message;
}

CString loadFormat(UINT id)
{
    CString format;
    format.LoadString(id);
    return format;
}

int showBox(CWnd* parent, UINT type, UINT seconds, bool* doNotShow, const CString& message)
{
    if (!parent)
        parent = AfxGetMainWnd();
    _internal::CDq3MMessageBox box(type, seconds, doNotShow, parent);
    box.SetMessage(message);
    return static_cast<int>(box.DoModal());
}

// The message box for a format (or a string resource's format) applied to `args`.
int showFormatted(CWnd* parent, UINT type, UINT seconds, bool* doNotShow, const wchar_t* format, va_list args)
{
    return showBox(parent, type, seconds, doNotShow, formatMessage(format, args));
}

} // namespace

int ZoMessageBox(CWnd* parent, UINT type, const wchar_t* format, ...)
{
    va_list args;
    va_start(args, format);
    const int result = showFormatted(parent, type, kNoTimeout, NULL, format, args);
    va_end(args);
    return result;
}

int ZoMessageBox(CWnd* parent, UINT type, UINT formatId, ...)
{
    const CString format = loadFormat(formatId);
    va_list args;
    va_start(args, formatId);
    const int result = showFormatted(parent, type, kNoTimeout, NULL, format, args);
    va_end(args);
    return result;
}

int TimedMessageBox(CWnd* parent, UINT seconds, UINT type, const wchar_t* format, ...)
{
    va_list args;
    va_start(args, format);
    const int result = showFormatted(parent, type, seconds, NULL, format, args);
    va_end(args);
    return result;
}

int TimedMessageBox(CWnd* parent, UINT seconds, UINT type, UINT formatId, ...)
{
    const CString format = loadFormat(formatId);
    va_list args;
    va_start(args, formatId);
    const int result = showFormatted(parent, type, seconds, NULL, format, args);
    va_end(args);
    return result;
}

int ZoMessageBoxDispensable(CWnd* parent, UINT type, bool* doNotShow, const wchar_t* format, ...)
{
    va_list args;
    va_start(args, format);
    const int result = showFormatted(parent, type, kNoTimeout, doNotShow, format, args);
    va_end(args);
    return result;
}

int ZoMessageBoxDispensable(CWnd* parent, UINT type, bool* doNotShow, UINT textId, ...)
{
    // Shown as it stands, format specifiers and all.
    return showBox(parent, type, kNoTimeout, doNotShow, loadFormat(textId));
}

} // namespace ZoControls
