#include "hostile.h"

#include <algorithm>
#include <climits>
#include <cstdio>

#include <zotest/resource_counter.h>

#include "core/ZoThemeManager.h"

namespace hostile {

bool g_trace = false;
bool g_native = false;
long g_platformHeapBlocks = 0;

namespace {

const int kExtremes[] = {0, 1, -1, 2, 3, 7, 100, -100, 255, 0x7FFF, 0x8000, 0xFFFF, -32768, 0x10000,
                         1000000, -1000000, INT_MAX, INT_MIN, INT_MAX - 1, INT_MIN + 1};

// Keys a user or a stuck keyboard could send any control.
const UINT kKeys[] = {VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN, VK_HOME, VK_END, VK_PRIOR, VK_NEXT, VK_RETURN,
                      VK_ESCAPE, VK_TAB, VK_SPACE, VK_F2, VK_F4, VK_DELETE, VK_BACK, VK_ADD, VK_SUBTRACT,
                      VK_MULTIPLY, 'A', 'Z', '7'};
const WPARAM kChars[] = {'a', '&', '(', '\r', '\n', 27, '\t', 8, 0, 0xFFFF, 0x263A};
const UINT kMouseMessages[] = {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN,
                               WM_RBUTTONUP, WM_MBUTTONDOWN, WM_MBUTTONUP, WM_MOUSELEAVE, WM_MOUSEHOVER,
                               WM_NCMOUSEMOVE, WM_NCLBUTTONDOWN, WM_NCLBUTTONUP, WM_NCLBUTTONDBLCLK};
const int kSizes[] = {0, 1, 2, 5, 17, 60, 200, 900, 4000, -1, -300};
const UINT_PTR kTimerIds[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 100, 0x1000, (UINT_PTR)-1};

template <typename T, size_t N>
T Pick(Random& random, const T (&values)[N])
{
    return values[random.Below(N)];
}

// Renders the control into a small memory surface the way a parent or a screenshot would.
void PaintInto(HWND control, Random& random)
{
    HDC screen = GetDC(NULL);
    HDC memory = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, 160, 90);
    HGDIOBJ old = SelectObject(memory, bitmap);
    switch (random.Below(4)) {
    case 0: SendMessageW(control, WM_PRINTCLIENT, (WPARAM)memory, PRF_CLIENT | PRF_ERASEBKGND); break;
    case 1: SendMessageW(control, WM_PRINT, (WPARAM)memory, PRF_CLIENT | PRF_NONCLIENT | PRF_CHILDREN); break;
    case 2: SendMessageW(control, WM_PAINT, (WPARAM)memory, 0); break;
    default: SendMessageW(control, WM_ERASEBKGND, (WPARAM)memory, 0); break;
    }
    SelectObject(memory, old);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(NULL, screen);
}

void SendMouse(HWND control, Random& random)
{
    const POINT at = SomePoint(random, control);
    const UINT message = Pick(random, kMouseMessages);
    const WPARAM keys = random.OneIn(3) ? MK_LBUTTON : (random.OneIn(5) ? MK_RBUTTON | MK_SHIFT : 0);
    if (g_trace)
        fprintf(stderr, "  mouse 0x%X at %ld,%ld keys %u\n", message, at.x, at.y, (unsigned)keys);
    // A real press is followed by its release in the queue; list views wait for it in a loop of
    // their own (drag detection) that would otherwise never end.
    const UINT release = message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK ? WM_LBUTTONUP
                         : message == WM_RBUTTONDOWN                             ? WM_RBUTTONUP
                         : message == WM_MBUTTONDOWN                             ? WM_MBUTTONUP
                                                                                 : 0;
    if (release)
        PostMessageW(control, release, 0, MAKELPARAM(at.x, at.y));
    SendMessageW(control, message, message >= WM_NCMOUSEMOVE && message <= WM_NCMBUTTONDBLCLK ? HTCLIENT : keys,
                 MAKELPARAM(at.x, at.y));
}

void SendKey(HWND control, Random& random)
{
    if (g_trace)
        fprintf(stderr, "  key\n");
    switch (random.Below(4)) {
    case 0: SendMessageW(control, WM_KEYDOWN, Pick(random, kKeys), 1); break;
    case 1: SendMessageW(control, WM_KEYUP, Pick(random, kKeys), 0xC0000001); break;
    case 2: SendMessageW(control, WM_CHAR, Pick(random, kChars), 1); break;
    default: SendMessageW(control, WM_SYSKEYDOWN, Pick(random, kKeys), 0x20000001); break;
    }
}

void Resize(const Kind& kind, HWND control, Random& random)
{
    // Now and then a width the off-screen surface cannot hold.
    const SIZE size = UsableSize(kind, random.OneIn(25) ? 30000 : Pick(random, kSizes), Pick(random, kSizes));
    const int width = size.cx, height = size.cy;
    if (g_trace)
        fprintf(stderr, "  resize %d x %d\n", width, height);
    SetWindowPos(control, NULL, Extreme(random) % 500, Extreme(random) % 300, width, height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

// Messages every window class receives from the platform or from its parent.
void SendPlatformMessage(const Kind& kind, HWND control, Random& random)
{
    static const wchar_t kLong[] = L"A text far longer than any control shows, with & and ( and tabs\t"
                                   L"and line breaks\r\nrepeated so that it wraps, scrolls and clips.";
    const size_t which = random.Below(20);
    if (g_trace)
        fprintf(stderr, "  platform message %u\n", (unsigned)which);
    switch (which) {
    case 0: SendMessageW(control, WM_SETTEXT, 0, (LPARAM)(random.OneIn(2) ? L"" : kLong)); break;
    case 1: SendMessageW(control, WM_SETFONT, random.OneIn(3) ? 0 : (WPARAM)GetStockObject(ANSI_VAR_FONT), TRUE); break;
    case 2: EnableWindow(control, random.OneIn(2)); break;
    case 3: ShowWindow(control, random.OneIn(4) ? SW_HIDE : SW_SHOWNA); break;
    case 4: SetFocus(random.OneIn(2) ? control : GetParent(control)); break;
    case 5: SendMessageW(control, random.OneIn(2) ? WM_THEMECHANGED : WM_SYSCOLORCHANGE, 0, 0); break;
    case 6: {
        wchar_t small[4];
        SendMessageW(control, WM_GETTEXT, 4, (LPARAM)small);
        SendMessageW(control, WM_GETTEXTLENGTH, 0, 0);
        break;
    }
    case 7: SendMessageW(control, WM_NCHITTEST, 0, ExtremePair(random)); break;
    case 8: SendMessageW(control, WM_CONTEXTMENU, (WPARAM)control, ExtremePair(random)); break;
    case 9: SendMessageW(control, WM_MOUSEWHEEL, MAKEWPARAM(0, Extreme(random)), ExtremePair(random)); break;
    case 10: {
        // Wine's EDIT takes a thumb position it never reported as its scroll offset, and a negative
        // one then sends its caret scrolling forever (its native control hangs the same way).
        const int position = kind.platformEdit ? (int)random.Below(100) : Extreme(random);
        SendMessageW(control, random.OneIn(2) ? WM_HSCROLL : WM_VSCROLL, MAKEWPARAM(random.Below(10), position), 0);
        break;
    }
    case 11: SendMessageW(control, random.OneIn(2) ? WM_CAPTURECHANGED : WM_CANCELMODE, 0, 0); break;
    case 12: SendMessageW(control, WM_TIMER, Pick(random, kTimerIds), 0); break;
    case 13: {
        const SIZE usable = UsableSize(kind, Extreme(random), Extreme(random));
        const LPARAM size = MAKELPARAM(usable.cx, usable.cy);
        if (g_trace)
            fprintf(stderr, "  WM_SIZE %d x %d\n", (short)LOWORD(size), (short)HIWORD(size));
        SendMessageW(control, WM_SIZE, random.Below(5), size);
        break;
    }
    case 14: {
        RECT rect = {Extreme(random), Extreme(random), Extreme(random), Extreme(random)};
        SendMessageW(control, WM_NCCALCSIZE, FALSE, (LPARAM)&rect);
        break;
    }
    case 15: SendMessageW(control, WM_NCPAINT, 1, 0); break;
    case 16: SendMessageW(control, WM_SETCURSOR, (WPARAM)control, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)); break;
    case 17: {
        const LONG style = GetWindowLongW(control, GWL_STYLE);
        // Window styles only: the platform documents most class styles (an edit's, a static's
        // ellipsis) as fixed once the control exists.
        const LONG toggled = (LONG)(random.Next() & (WS_BORDER | WS_DLGFRAME | WS_TABSTOP | WS_GROUP));
        SetWindowLongW(control, GWL_STYLE, style ^ toggled);
        SetWindowPos(control, NULL, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_FRAMECHANGED);
        break;
    }
    case 18: SendMessageW(control, WM_GETDLGCODE, Pick(random, kKeys), 0); break;
    default: SendMessageW(control, WM_SETREDRAW, random.OneIn(4) ? FALSE : TRUE, 0); break;
    }
}

} // namespace

SIZE UsableSize(const Kind& kind, int width, int height)
{
    // An edit needs room to format its text in.
    const SIZE minimum = kind.platformEdit ? SIZE{120, 24} : SIZE{SHRT_MIN, SHRT_MIN};
    return SIZE{(short)width < minimum.cx ? minimum.cx : width, (short)height < minimum.cy ? minimum.cy : height};
}

int Extreme(Random& random)
{
    return Pick(random, kExtremes);
}

LPARAM ExtremePair(Random& random)
{
    return MAKELPARAM(Extreme(random), Extreme(random));
}

POINT SomePoint(Random& random, HWND window)
{
    RECT client = {0, 0, 0, 0};
    GetClientRect(window, &client);
    if (random.OneIn(2) && client.right > 0 && client.bottom > 0)
        return POINT{(LONG)random.Below(client.right), (LONG)random.Below(client.bottom)};
    return POINT{(short)Extreme(random), (short)Extreme(random)};
}

void Pump(DWORD milliseconds, Tally& tally)
{
    const DWORD start = GetTickCount();
    MSG msg;
    int dispatched = 0;
    do {
        while (dispatched < 20000 && PeekMessageW(&msg, NULL, 0, 0, PM_REMOVE)) {
            ++dispatched;
            if (msg.message == WM_QUIT)
                continue;
            // A window timer whose window is gone arrives without a window and without a callback.
            if (msg.message == WM_TIMER && msg.hwnd == NULL && msg.lParam == 0)
                ++tally.orphanTimers;
            TranslateMessage(&msg);
            DispatchMessageW(&msg);
        }
        if (GetTickCount() - start < milliseconds)
            Sleep(1);
    } while (GetTickCount() - start < milliseconds && dispatched < 20000);
}

LRESULT SendInsertion(HWND control, const LVITEMW& item)
{
    // Hidden, without a parent, kept for the whole process.
    static const HWND plain = CreateWindowExW(0, WC_LISTVIEWW, L"", LVS_REPORT, 0, 0, 100, 100, NULL, NULL, NULL, NULL);
    LVITEMW sent = item;
    const long before = zotest::CountHeapBlocks();
    const LRESULT result = SendMessageW(control, LVM_INSERTITEMW, 0, (LPARAM)&sent);
    if (result != -1 || !plain)
        return result;
    const long controlLoss = zotest::CountHeapBlocks() - before;
    sent = item;
    const long plainBefore = zotest::CountHeapBlocks();
    if (SendMessageW(plain, LVM_INSERTITEMW, 0, (LPARAM)&sent) != -1) {
        // Refused by the library alone: nothing of it is the platform's.
        SendMessageW(plain, LVM_DELETEALLITEMS, 0, 0);
        return result;
    }
    const long plainLoss = zotest::CountHeapBlocks() - plainBefore;
    g_platformHeapBlocks += plainLoss + std::max(0L, std::min(controlLoss, plainLoss));
    if (g_trace)
        fprintf(stderr, "  refused insertion at %d: the control kept %ld heap blocks, a plain list %ld\n", item.iItem,
                controlLoss, plainLoss);
    return result;
}

void Storm(const Kind& kind, HWND control, Random& random, int steps, Tally& tally)
{
    for (int step = 0; step < steps && IsWindow(control); ++step) {
        const size_t roll = random.Below(100);
        if (g_trace)
            fprintf(stderr, "%s step %d roll %u\n", kind.name, step, (unsigned)roll);
        if (roll < 45 && !kind.messages.empty()) {
            const Message& message = kind.messages[random.Below(kind.messages.size())];
            if (g_trace)
                fprintf(stderr, "  %s\n", message.name);
            message.send(control, random);
        }
        else if (roll < 60)
            SendPlatformMessage(kind, control, random);
        else if (roll < 78)
            SendMouse(control, random);
        else if (roll < 88)
            SendKey(control, random);
        else if (roll < 92)
            Resize(kind, control, random);
        else if (roll < 97)
            PaintInto(control, random);
        else
            Pump(5, tally);
        ++tally.messages;
    }
}

bool CHost::CreateHost()
{
    const LPCTSTR windowClass = AfxRegisterWndClass(0, ::LoadCursor(NULL, IDC_ARROW), (HBRUSH)(COLOR_BTNFACE + 1));
    return CreateEx(0, windowClass, L"Hostile host", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, CRect(30, 30, 450, 350),
                    NULL, 0) != FALSE;
}

// A notification from a control, as opposed to paint-time questions (custom draw, display info).
static bool IsNotification(UINT message, LPARAM lParam)
{
    switch (message) {
    case WM_COMMAND:
        return lParam != 0;
    case WM_HSCROLL:
    case WM_VSCROLL:
        return lParam != 0;
    case WM_NOTIFY: {
        const NMHDR* header = reinterpret_cast<const NMHDR*>(lParam);
        return header && header->code != (UINT)NM_CUSTOMDRAW && header->code != LVN_GETDISPINFOW &&
               header->code != LVN_GETDISPINFOA && header->code != LVN_ODCACHEHINT &&
               header->code != HDN_GETDISPINFOW && header->code != (UINT)NM_OUTOFMEMORY;
    }
    default:
        return message >= WM_APP && message <= WM_APP + 0x40 && message != ZoControls::ZoMsg_GetCurrentTheme &&
               message != ZoControls::ZoMsg_GetCurrentMonitorSize;
    }
}

LRESULT CHost::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (answerQueries && lParam &&
        (message == ZoControls::ZoMsg_GetCurrentTheme || message == ZoControls::ZoMsg_GetCurrentMonitorSize)) {
        *reinterpret_cast<int*>(lParam) = message == ZoControls::ZoMsg_GetCurrentTheme ? themeAnswer : sizeAnswer;
        return 1;
    }
    m_notifyEaten = false;
    const LRESULT result = CWnd::WindowProc(message, wParam, lParam);
    // A host reacts where its message map would: a notification the control's own reflection
    // answers never reaches an MFC parent's handlers.
    const bool eaten = message == WM_NOTIFY && m_notifyEaten;
    if (reaction != Reaction::None && IsNotification(message, lParam) && !eaten && m_depth < 2) {
        if (g_trace)
            fprintf(stderr, "  host reacts to 0x%X code %d\n", message,
                    message == WM_NOTIFY ? (int)reinterpret_cast<const NMHDR*>(lParam)->code : (int)wParam);
        ++m_depth;
        _react();
        --m_depth;
    }
    return result;
}

BOOL CHost::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    // The host's map has no entries: TRUE means the control's reflection took it.
    m_notifyEaten = CWnd::OnNotify(wParam, lParam, pResult) != FALSE;
    return m_notifyEaten;
}

void CHost::_react()
{
    ++reactions;
    switch (reaction) {
    case Reaction::DestroyControl:
        if (IsWindow(control))
            ::DestroyWindow(control);
        break;
    case Reaction::DestroyHost:
        if (m_hWnd)
            DestroyWindow();
        break;
    case Reaction::Reenter:
        if (kind && random && tally && IsWindow(control)) {
            for (int i = 0; i < 3 && !kind->messages.empty(); ++i) {
                const Message& sent = kind->messages[random->Below(kind->messages.size())];
                if (g_trace)
                    fprintf(stderr, "    re-entering with %s\n", sent.name);
                sent.send(control, *random);
            }
            const SIZE size = UsableSize(*kind, (int)random->Below(400), (int)random->Below(120));
            ::SetWindowPos(control, NULL, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
            tally->messages += 4;
        }
        break;
    case Reaction::None:
        break;
    }
}

} // namespace hostile
