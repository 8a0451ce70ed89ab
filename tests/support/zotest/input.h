// Mouse and keyboard input for tests.
//   SendClick / SendRightClick                    mouse messages sent straight to a window
//   SendKey                                       WM_KEYDOWN + WM_KEYUP with real lParam bits
//   MoveCursorTo                                  moves the real cursor onto a client point
//   PumpUntilReceived                             pumps until a recorder saw a message
//
// Sent messages reach only the window procedure: no capture or cursor position goes with them.
// Behaviour that reads the cursor (TrackMouseEvent, WM_SETCURSOR, hit testing) needs the real
// input of MoveCursorTo; it arrives through the queue, so pump afterwards. Under Wine on Xvfb
// SetCursorPos moves the pointer and the queue delivers WM_MOUSEMOVE; Wine notices that the
// cursor left a tracked window only when its hover-time timer next polls (about 400 ms): wait
// for WM_MOUSELEAVE with PumpUntilReceived rather than a fixed delay.
#pragma once

#include <windows.h>

#include <zotest/recorder.h>

namespace zotest {

void SendClick(HWND window, POINT client, WPARAM extraKeys = 0);
void SendRightClick(HWND window, POINT client, WPARAM extraKeys = 0);
// `character` non-zero also sends WM_CHAR between down and up, as TranslateMessage would.
void SendKey(HWND window, UINT virtualKey, wchar_t character = 0);

// False when the window does not exist or the cursor did not arrive there.
bool MoveCursorTo(HWND window, POINT client);

bool PumpUntilReceived(const MessageRecorder& recorder, UINT message, WindowRole role = WindowRole::Control,
                       DWORD timeoutMilliseconds = 2000);

} // namespace zotest
