// Message pumping for tests.
//   PumpUntilIdle   dispatch until the queue is empty (bounded by time and message count)
//   PumpUntil       dispatch until a condition holds or a time-out passes
// A WM_QUIT taken from the queue is posted again and ends the pumping.
#pragma once

#include <windows.h>

#include <functional>

namespace zotest {

// Returns the number of messages dispatched.
int PumpUntilIdle(DWORD maxMilliseconds = 2000, int maxMessages = 100000);
// True when `done` returned true before `timeoutMilliseconds` passed.
bool PumpUntil(const std::function<bool()>& done, DWORD timeoutMilliseconds = 2000);

} // namespace zotest
