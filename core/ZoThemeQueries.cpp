// How a control learns its theme and monitor size class, and the process-wide fixed mode.
#include <afxwin.h>

#include "ZoHostPath.h"
#include "ZoThemeManager.h"
#include "ZoThemeMath.h"

namespace ZoControls {

namespace {

const int kFixedModeUnread = 4;
const int kFixedModeNone = 0;
const int kFixedModeHighest = 3;

// Read once per process: markers created or removed later have no effect.
int g_nFixedMode = kFixedModeUnread;

// Lowest existing marker "<exe>.ZoCtrl.FixedMode.N" (N = 1..3), else 0.
int ZoGetFixedMode()
{
    if (g_nFixedMode != kFixedModeUnread)
        return g_nFixedMode;
    const CString exePath = ZoGetHostExecutablePath();
    for (int mode = 1; mode <= kFixedModeHighest && g_nFixedMode == kFixedModeUnread; ++mode) {
        CString marker;
        marker.Format(L"%s.ZoCtrl.FixedMode.%d", (LPCWSTR)exePath, mode);
        CFileFind finder;
        if (finder.FindFile(marker))
            g_nFixedMode = mode;
    }
    if (g_nFixedMode == kFixedModeUnread)
        g_nFixedMode = kFixedModeNone;
    return g_nFixedMode;
}

CWnd* ZoParentOf(CWnd* pWnd)
{
    if (!pWnd)
        return NULL;
    return CWnd::FromHandle(::GetParent(pWnd->GetSafeHwnd()));
}

// Sends a query to `pWnd`; the answer stays `unanswered` when nobody fills it in.
int ZoAskWindow(CWnd* pWnd, UINT message, int unanswered)
{
    int answer = unanswered;
    if (pWnd && ::IsWindow(pWnd->GetSafeHwnd()))
        ::SendMessageW(pWnd->GetSafeHwnd(), message, 0, reinterpret_cast<LPARAM>(&answer));
    return answer;
}

} // namespace

CString ZoGetHostExecutablePath()
{
    wchar_t path[MAX_PATH] = {0};
    ::GetModuleFileNameW(NULL, path, MAX_PATH);
    path[MAX_PATH - 1] = L'\0';
    CString result(path);
    result.Replace(L'/', L'\\');
    return result;
}

E_ZoTheme ZoGetCurrentThemeIndex(CWnd* pWnd)
{
    return static_cast<E_ZoTheme>(ZoAskWindow(ZoParentOf(pWnd), ZoMsg_GetCurrentTheme, ZoTheme_Default));
}

E_ZoMonitorSize ZoGetCurrentMonitorSize(CWnd* pWnd, bool bAskSelf)
{
    const int fixedMode = ZoGetFixedMode();
    if (fixedMode != kFixedModeNone)
        return ZoMonitorSizeForFixedMode(fixedMode);

    CWnd* pAsked = bAskSelf ? pWnd : ZoParentOf(pWnd);
    const int answer = ZoAskWindow(pAsked, ZoMsg_GetCurrentMonitorSize, ZoMonitorSize_Unknown);
    if (answer != ZoMonitorSize_Unknown)
        return static_cast<E_ZoMonitorSize>(answer);

    HMONITOR hMonitor = ::MonitorFromWindow(pWnd ? pWnd->GetSafeHwnd() : NULL, MONITOR_DEFAULTTONEAREST);
    MONITORINFO info;
    info.cbSize = sizeof(info);
    if (!hMonitor || !::GetMonitorInfoW(hMonitor, &info))
        return ZoMonitorSize_Unknown;
    const long long area = static_cast<long long>(info.rcMonitor.bottom - info.rcMonitor.top) *
                           (info.rcMonitor.right - info.rcMonitor.left);
    return ZoMonitorSizeForArea(area);
}

} // namespace ZoControls
