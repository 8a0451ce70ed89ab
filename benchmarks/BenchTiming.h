// Timing pieces the benchmarks share: a seconds clock, the average of repeated calls, the best
// of alternating runs, and draining the thread's message queue.
#pragma once
#include <windows.h>

namespace zobench {

inline double Now()
{
    static LARGE_INTEGER frequency = {};
    if (!frequency.QuadPart)
        ::QueryPerformanceFrequency(&frequency);
    LARGE_INTEGER counter;
    ::QueryPerformanceCounter(&counter);
    return static_cast<double>(counter.QuadPart) / static_cast<double>(frequency.QuadPart);
}

// Average seconds per call of `work`, over `rounds` calls after one warm-up call.
template <class Work>
double TimePerCall(int rounds, Work work)
{
    work();
    const double start = Now();
    for (int i = 0; i < rounds; ++i)
        work();
    return rounds > 0 ? (Now() - start) / rounds : 0.0;
}

// The smaller of `best` and `sample`, where 0 means "none yet" in `best` and "failed" in `sample`.
inline double Best(double best, double sample)
{
    return sample > 0 && (best <= 0 || sample < best) ? sample : best;
}

// Seconds per call of ours and of the native counterpart.
struct Pair
{
    double zo;
    double native;
};

// Best of `runs` turns of `zo` and `native` alternately (each returns seconds per call), so
// that load from elsewhere on the machine falls on both alike.
template <class TimeZo, class TimeNative>
Pair CompareInTurns(int runs, TimeZo timeZo, TimeNative timeNative)
{
    Pair best = {0, 0};
    for (int run = 0; run < runs; ++run) {
        best.native = Best(best.native, timeNative());
        best.zo = Best(best.zo, timeZo());
    }
    return best;
}

inline void PumpPending()
{
    MSG msg;
    while (::PeekMessageW(&msg, NULL, 0, 0, PM_REMOVE)) {
        ::TranslateMessage(&msg);
        ::DispatchMessageW(&msg);
    }
}

} // namespace zobench
