#include <zotest/input.h>

#include <zotest/pump.h>

namespace zotest {

namespace {

LPARAM PointParam(POINT client)
{
    return MAKELPARAM(static_cast<WORD>(client.x), static_cast<WORD>(client.y));
}

// Repeat count 1 and the scan code; key-up adds the previous-state and transition bits.
LPARAM KeyParam(UINT virtualKey, bool up)
{
    const UINT scanCode = MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC);
    LPARAM bits = 1 | (static_cast<LPARAM>(scanCode & 0xFF) << 16);
    if (up)
        bits |= static_cast<LPARAM>(0xC0000000u);
    return bits;
}

void SendButton(HWND window, UINT down, UINT up, WPARAM key, POINT client, WPARAM extraKeys)
{
    SendMessageW(window, down, key | extraKeys, PointParam(client));
    SendMessageW(window, up, extraKeys, PointParam(client));
}

} // namespace

void SendClick(HWND window, POINT client, WPARAM extraKeys)
{
    SendButton(window, WM_LBUTTONDOWN, WM_LBUTTONUP, MK_LBUTTON, client, extraKeys);
}

void SendRightClick(HWND window, POINT client, WPARAM extraKeys)
{
    SendButton(window, WM_RBUTTONDOWN, WM_RBUTTONUP, MK_RBUTTON, client, extraKeys);
}

void SendKey(HWND window, UINT virtualKey, wchar_t character)
{
    SendMessageW(window, WM_KEYDOWN, virtualKey, KeyParam(virtualKey, false));
    if (character != 0)
        SendMessageW(window, WM_CHAR, character, KeyParam(virtualKey, false));
    SendMessageW(window, WM_KEYUP, virtualKey, KeyParam(virtualKey, true));
}

bool MoveCursorTo(HWND window, POINT client)
{
    if (!IsWindow(window))
        return false;
    POINT screen = client;
    ClientToScreen(window, &screen);
    if (!SetCursorPos(screen.x, screen.y))
        return false;
    POINT now{};
    return GetCursorPos(&now) && now.x == screen.x && now.y == screen.y;
}

bool PumpUntilReceived(const MessageRecorder& recorder, UINT message, WindowRole role, DWORD timeoutMilliseconds)
{
    return PumpUntil([&] { return recorder.Count(message, role) > 0; }, timeoutMilliseconds);
}

} // namespace zotest
