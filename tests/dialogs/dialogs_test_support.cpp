#include "dialogs_test_support.h"

#include <zotest/pump.h>
#include <zotest/renderer.h>
#include <zotest/resource_counter.h>

namespace dialogtest {

BEGIN_MESSAGE_MAP(TestDialog, ZoControls::CZoDialog)
    ON_WM_CREATE()
END_MESSAGE_MAP()

TestDialog::TestDialog(UINT templateId, CWnd* parent, ZoControls::E_ZoMonitorSize size)
    : CZoDialog(templateId, parent), m_size(size)
{
}

int TestDialog::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (m_size != ZoControls::ZoMonitorSize_Unknown)
        SetZoMonitorSize(m_size);
    return CZoDialog::OnCreate(lpCreateStruct);
}

namespace {

struct Driver
{
    std::function<void(HWND)> action;
    UINT_PTR timer = 0;
    UINT_PTR rescue = 0;
    HWND box = NULL;
};
Driver g_driver;

const UINT kPollMilliseconds = 10;
const UINT kRescueMilliseconds = 5000;

BOOL CALLBACK findShown(HWND hWnd, LPARAM param)
{
    wchar_t name[16] = {};
    ::GetClassNameW(hWnd, name, 16);
    if (::IsWindowVisible(hWnd) && wcscmp(name, L"#32770") == 0) {
        *reinterpret_cast<HWND*>(param) = hWnd;
        return FALSE;
    }
    return TRUE;
}

void CALLBACK rescue(HWND, UINT, UINT_PTR id, DWORD)
{
    ::KillTimer(NULL, id);
    g_driver.rescue = 0;
    if (::IsWindow(g_driver.box)) {
        ::SendMessageW(g_driver.box, WM_TIMER, ZoControls::ZO_MSGBOX_TIMER_ID, 0);
        if (::IsWindow(g_driver.box))
            ::SendMessageW(g_driver.box, WM_COMMAND, IDCANCEL, 0);
    }
}

// The visible top-level dialog of this thread, or null.
HWND FindShownDialog()
{
    HWND found = NULL;
    ::EnumThreadWindows(::GetCurrentThreadId(), findShown, reinterpret_cast<LPARAM>(&found));
    return found;
}

void CALLBACK poll(HWND, UINT, UINT_PTR id, DWORD)
{
    const HWND box = FindShownDialog();
    if (!box)
        return;
    ::KillTimer(NULL, id);
    g_driver.timer = 0;
    g_driver.box = box;
    g_driver.rescue = ::SetTimer(NULL, 0, kRescueMilliseconds, rescue);
    std::function<void(HWND)> action;
    action.swap(g_driver.action);
    if (action)
        action(box);
}

} // namespace

void DriveModal(std::function<void(HWND box)> action)
{
    if (g_driver.rescue)
        ::KillTimer(NULL, g_driver.rescue);
    g_driver.rescue = 0;
    g_driver.action = std::move(action);
    g_driver.box = NULL;
    g_driver.timer = ::SetTimer(NULL, 0, kPollMilliseconds, poll);
}

namespace {

std::function<void(HWND)> g_atInit;
HHOOK g_initHook = NULL;

LRESULT CALLBACK afterInit(int code, WPARAM wParam, LPARAM lParam)
{
    const CWPRETSTRUCT* call = reinterpret_cast<const CWPRETSTRUCT*>(lParam);
    if (code == HC_ACTION && call->message == WM_INITDIALOG && g_atInit) {
        std::function<void(HWND)> action;
        action.swap(g_atInit);
        action(call->hwnd);
    }
    return ::CallNextHookEx(NULL, code, wParam, lParam);
}

} // namespace

void DriveModalBeforeShown(std::function<void(HWND box)> action)
{
    g_atInit = std::move(action);
    if (!g_initHook)
        g_initHook = ::SetWindowsHookExW(WH_CALLWNDPROCRET, afterInit, NULL, ::GetCurrentThreadId());
}

void StopDrivingBeforeShown()
{
    g_atInit = nullptr;
    if (g_initHook)
        ::UnhookWindowsHookEx(g_initHook);
    g_initHook = NULL;
}

void PaintHidden(HWND box)
{
    zotest::Dib canvas(640, 480);
    ::SendMessageW(box, WM_PRINT, reinterpret_cast<WPARAM>(canvas.dc()),
                   PRF_NONCLIENT | PRF_CLIENT | PRF_CHILDREN | PRF_ERASEBKGND);
}

void HostIdleTime()
{
    AfxLockTempMaps();
    AfxUnlockTempMaps(TRUE);
}

void ExpectNoMoreGrowthThanPlatform(int cycles, const std::function<void()>& platformCycle,
                                    const std::function<void()>& cycle)
{
    const zotest::LeakCheck platform = zotest::CheckForLeaks(cycles, platformCycle);
    const zotest::LeakCheck ours = zotest::CheckForLeaks(cycles, cycle);
    const auto growth = [](const zotest::LeakCheck& check, long zotest::ResourceCounts::*counter) {
        return check.final.*counter - check.baseline.*counter;
    };
    EXPECT_LE(growth(ours, &zotest::ResourceCounts::gdiObjects), growth(platform, &zotest::ResourceCounts::gdiObjects))
        << ours.report;
    EXPECT_LE(growth(ours, &zotest::ResourceCounts::userObjects),
              growth(platform, &zotest::ResourceCounts::userObjects))
        << ours.report;
    EXPECT_LE(growth(ours, &zotest::ResourceCounts::heapBlocks), growth(platform, &zotest::ResourceCounts::heapBlocks))
        << ours.report << " / platform: " << platform.report;
}


LPARAM ScreenPointOf(HWND window, const RECT& inWindow)
{
    RECT rect;
    ::GetWindowRect(window, &rect);
    const int x = rect.left + (inWindow.left + inWindow.right) / 2;
    const int y = rect.top + (inWindow.top + inWindow.bottom) / 2;
    return MAKELPARAM(x, y);
}

CString ChildText(HWND box, int id)
{
    wchar_t text[512] = {};
    ::GetDlgItemTextW(box, id, text, 512);
    return CString(text);
}

CRect ChildRect(HWND box, int id)
{
    CRect rect(0, 0, 0, 0);
    const HWND child = ::GetDlgItem(box, id);
    if (!child)
        return rect;
    ::GetWindowRect(child, &rect);
    ::MapWindowPoints(NULL, box, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

} // namespace dialogtest
