#include <zotest/pump.h>

namespace zotest {

namespace {

enum class Taken { None, Message, Quit };

Taken DispatchOne()
{
    MSG message;
    if (!PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        return Taken::None;
    if (message.message == WM_QUIT) {
        // Leave the quit request for the loop that owns it.
        PostQuitMessage(static_cast<int>(message.wParam));
        return Taken::Quit;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
    return Taken::Message;
}

bool Elapsed(DWORD start, DWORD limit)
{
    return GetTickCount() - start >= limit;
}

} // namespace

int PumpUntilIdle(DWORD maxMilliseconds, int maxMessages)
{
    const DWORD start = GetTickCount();
    int dispatched = 0;
    while (dispatched < maxMessages && !Elapsed(start, maxMilliseconds)) {
        if (DispatchOne() != Taken::Message)
            break;
        ++dispatched;
    }
    return dispatched;
}

bool PumpUntil(const std::function<bool()>& done, DWORD timeoutMilliseconds)
{
    if (!done)
        return false;
    const DWORD start = GetTickCount();
    for (;;) {
        if (done())
            return true;
        const DWORD passed = GetTickCount() - start;
        if (passed >= timeoutMilliseconds)
            return false;
        Taken taken;
        while ((taken = DispatchOne()) == Taken::Message)
            if (done())
                return true;
        if (taken == Taken::Quit)
            return done();
        // Timers only fire while someone waits; wake at least every 10 ms to test the condition again.
        const DWORD left = timeoutMilliseconds - passed;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, left < 10 ? left : 10, QS_ALLINPUT);
    }
}

} // namespace zotest
