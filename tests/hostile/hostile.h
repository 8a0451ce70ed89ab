// The hostile-input harness: every window class of the library driven with absurd values,
// destroyed from inside its own notifications, re-entered, and run with missing or odd
// resources. Each group runs in a child process, so a crash or a hang is counted, not fatal.
#pragma once
#include <afxwin.h>
#include <commctrl.h>

#include <functional>
#include <vector>

#include <zotest/random.h>

namespace hostile {

using zotest::Random;

// What the host window does when a control notifies it.
enum class Reaction { None, DestroyControl, DestroyHost, Reenter };

struct Tally
{
    long controls = 0;
    long messages = 0;
    long scenarios = 0;
    long orphanTimers = 0; // timers still firing for windows that are gone
};

// A boundary or absurd value: 0, +-1, INT_MIN, INT_MAX, 16-bit edges, huge sizes.
int Extreme(Random& random);
// Two such values packed as MAKELPARAM.
LPARAM ExtremePair(Random& random);
// A point inside `window` (half the time) or anywhere at all.
POINT SomePoint(Random& random, HWND window);

// One message of a control's repertoire, sent with values drawn from the random source.
struct Message
{
    const char* name;
    std::function<void(HWND, Random&)> send;
};

// A window class of the library as the harness drives it.
struct Kind
{
    const char* name;
    std::vector<DWORD> styles;
    // The control created in `host`; null when creation fails. The caller deletes it.
    std::function<CWnd*(CWnd& host, DWORD style, const RECT& rect, UINT id)> create;
    std::vector<Message> messages;
    // Input after which the control normally notifies its parent (a click on a part, a key).
    std::function<void(HWND)> provoke;
    // The platform's own control of the same window class, to tell the platform's limits from
    // the library's faults (--native); null where there is none.
    std::function<CWnd*(CWnd& host, DWORD style, const RECT& rect, UINT id)> native = nullptr;
    // Built on the platform's EDIT, whose Wine version scrolls its caret forever after some input
    // (the native control hangs the same way): the storm spares it that input.
    bool platformEdit = false;
};

// Every window class of the library, and the variants asking for skins that do not exist.
const std::vector<Kind>& Kinds();
const std::vector<Kind>& KindsWithMissingSkins();

// The parent window of every scenario: an MFC window (it reflects notifications as a dialog
// does) that can react to notifications and answer theme and size-class queries oddly.
class CHost : public CWnd
{
public:
    bool CreateHost();

    Reaction reaction = Reaction::None;
    const Kind* kind = nullptr; // whose messages a re-entering host sends
    Random* random = nullptr;
    Tally* tally = nullptr;
    HWND control = NULL;
    bool answerQueries = false; // answer the theme and size-class queries with the values below
    int themeAnswer = 0;
    int sizeAnswer = 0;
    long reactions = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    void _react();
    int m_depth = 0;
    bool m_notifyEaten = false; // the last WM_NOTIFY was answered by the control's reflection
};

// Drives one control with a storm of `steps` random actions: its own messages, the platform's
// messages, mouse and keys, timers, resizing and paints.
// The size `kind` is resized to: `size`, or its minimum where smaller.
SIZE UsableSize(const Kind& kind, int width, int height);
void Storm(const Kind& kind, HWND control, Random& random, int steps, Tally& tally);
// Prints every step to stderr (to find the step that crashes or hangs).
extern bool g_trace;
// Creates the platform's control instead of the library's where a kind has one.
extern bool g_native;
// Dispatches what is queued for a while; counts timer messages that reach no window.
void Pump(DWORD milliseconds, Tally& tally);

// Sends a list an insertion. Wine's list view allocates an item before it checks the index and
// keeps it when it refuses a negative one; the host's reactions to the library's own notifications
// have no counterpart in the platform's run, so such a loss cannot cancel there. Instead, an
// insertion the control refuses goes to a plain platform list too, and what that list keeps of it
// (as much of the control's loss as matches, and the plain list's own) counts in
// g_platformHeapBlocks, which the measured growth leaves out.
LRESULT SendInsertion(HWND control, const LVITEMW& item);
extern long g_platformHeapBlocks;

} // namespace hostile
