// Scrolling timings, each as a ratio against the native control of the same size measured in
// the same run:
//   paint and repaint of CZoScrollBar (vertical, horizontal)   vs  "SCROLLBAR"
//   paint and repaint of CZoProgressCtrl (horizontal, vertical) vs  "msctls_progress32"
//   one thumb-drag step (mouse move -> repaint -> WM_VSCROLL at the parent) vs the native bar
// Paint is WM_PRINTCLIENT into a memory DC of the control's size (the drawing alone; left out
// for a native control that draws nothing on it); repaint is RedrawWindow with invalidate +
// erase + update-now on the visible window (all the work of one exposure).
#include <afxwin.h>
#include <afxcmn.h>
#include <commctrl.h>
#include <gdiplus.h>

#include <stdio.h>

#include <vector>

#include "BenchHost.h"
#include "BenchPaint.h"
#include "BenchTiming.h"
#include "ZoCtrl.h"

using namespace ZoControls;
using zobench::Pair;
using zobench::Report;
using zobench::Twins;
using zobench::kNoNativePaint;
using zobench::kNoNativeTime;
using zobench::kRuns;

namespace {

const int kBarThickness = 19;
const int kBarLength = 200;
const int kProgressLength = 240;
const int kProgressThickness = 18;
const int kDragSteps = 100;
// Two rows of the vertical bar far enough apart that every step changes the position.
const int kDragRows[2] = {60, 140};

// The host: a plain window that timestamps the thumb-tracking notifications of one bar.
struct TrackLog
{
    HWND bar;
    std::vector<double> times;
};
TrackLog g_trackLog = {NULL, std::vector<double>()};

LRESULT CALLBACK HostProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_VSCROLL && LOWORD(wParam) == SB_THUMBTRACK && reinterpret_cast<HWND>(lParam) == g_trackLog.bar)
    {
        g_trackLog.times.push_back(zobench::Now());
        return 0;
    }
    return ::DefWindowProcW(hWnd, message, wParam, lParam);
}

// Range 0..109, a page of 10, at 50: the thumb sits across the bar's middle.
void SetScrollState(HWND bar)
{
    SCROLLINFO info = {sizeof(SCROLLINFO), SIF_ALL, 0, 109, 10, 50, 0};
    ::SendMessageW(bar, SBM_SETSCROLLINFO, TRUE, reinterpret_cast<LPARAM>(&info));
}

void SetProgressState(HWND progress)
{
    ::SendMessageW(progress, PBM_SETRANGE32, 0, 100);
    ::SendMessageW(progress, PBM_SETPOS, 50, 0);
}

// Seconds per drag step of a vertical bar: the moves and the release are queued before the press
// on the thumb, so a bar that tracks in a modal loop of its own (Windows' native one) and a bar
// that tracks through ordinary messages (ours) see the same input. The step time is the spacing
// of the SB_THUMBTRACK notifications, each one a move, a repaint and a notification. 0 when the
// bar sent fewer than two; `notifications` says how many came.
double DragStepTime(HWND bar, size_t& notifications)
{
    // The host does not write the dragged position back: start each drag from the same state.
    SetScrollState(bar);
    zobench::PumpPending();
    const int x = kBarThickness / 2;
    for (int i = 0; i < kDragSteps; ++i)
        ::PostMessageW(bar, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(x, kDragRows[i % 2]));
    ::PostMessageW(bar, WM_LBUTTONUP, 0, MAKELPARAM(x, kDragRows[(kDragSteps - 1) % 2]));
    g_trackLog.bar = bar;
    g_trackLog.times.clear();
    ::SendMessageW(bar, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, kBarLength / 2));
    zobench::PumpPending();
    g_trackLog.bar = NULL;
    // The first notification may come from the press itself: count the spacing after it.
    const std::vector<double>& times = g_trackLog.times;
    notifications = times.size();
    if (times.size() < 2)
        return 0;
    return (times.back() - times.front()) / static_cast<double>(times.size() - 1);
}

void RunScrollBars(HWND host)
{
    const Twins<CZoScrollBar> vertical(host, L"SCROLLBAR", SBS_VERT,
                                       CRect(10, 10, 10 + kBarThickness, 10 + kBarLength), 1);
    const Twins<CZoScrollBar> horizontal(host, L"SCROLLBAR", SBS_HORZ,
                                         CRect(40, 10, 40 + kBarLength, 10 + kBarThickness), 2);
    const HWND bars[4] = {vertical.Zo(), vertical.Native(), horizontal.Zo(), horizontal.Native()};
    for (int i = 0; i < 4; ++i)
        SetScrollState(bars[i]);
    zobench::PumpPending();

    const Pair verticalPaint = vertical.BestPaints();
    const Pair horizontalPaint = horizontal.BestPaints();
    const Pair verticalRepaint = vertical.BestRepaints();
    const Pair horizontalRepaint = horizontal.BestRepaints();
    size_t nativeSteps = 0;
    size_t zoSteps = 0;
    const Pair step = zobench::CompareInTurns(
        kRuns, [&] { return DragStepTime(vertical.Zo(), zoSteps); },
        [&] { return DragStepTime(vertical.Native(), nativeSteps); });

    printf("Scroll bars, %dx%d and %dx%d:\n", kBarThickness, kBarLength, kBarLength, kBarThickness);
    Report("CZoScrollBar vertical paint", verticalPaint.zo, verticalPaint.native, kNoNativePaint);
    Report("CZoScrollBar vertical repaint", verticalRepaint.zo, verticalRepaint.native, kNoNativeTime);
    Report("CZoScrollBar horizontal paint", horizontalPaint.zo, horizontalPaint.native, kNoNativePaint);
    Report("CZoScrollBar horizontal repaint", horizontalRepaint.zo, horizontalRepaint.native, kNoNativeTime);
    Report("CZoScrollBar thumb-drag step", step.zo, step.native, "the native bar sent no tracking notifications");
    printf("  (last run, %d moves: %u SB_THUMBTRACK from CZoScrollBar, %u from the native bar)\n", kDragSteps,
           static_cast<unsigned>(zoSteps), static_cast<unsigned>(nativeSteps));
}

void RunProgressBars(HWND host)
{
    const Twins<CZoProgressCtrl> horizontal(host, PROGRESS_CLASSW, 0,
                                            CRect(10, 250, 10 + kProgressLength, 250 + kProgressThickness), 3);
    const Twins<CZoProgressCtrl> vertical(host, PROGRESS_CLASSW, PBS_VERTICAL,
                                          CRect(10, 280, 10 + kProgressThickness, 280 + kProgressLength), 4);
    const HWND bars[4] = {horizontal.Zo(), horizontal.Native(), vertical.Zo(), vertical.Native()};
    for (int i = 0; i < 4; ++i)
        SetProgressState(bars[i]);
    zobench::PumpPending();

    const Pair horizontalPaint = horizontal.BestPaints();
    const Pair verticalPaint = vertical.BestPaints();
    const Pair horizontalRepaint = horizontal.BestRepaints();
    const Pair verticalRepaint = vertical.BestRepaints();

    printf("Progress bars at 50%%, %dx%d and %dx%d:\n", kProgressLength, kProgressThickness, kProgressThickness,
           kProgressLength);
    Report("CZoProgressCtrl horizontal paint", horizontalPaint.zo, horizontalPaint.native, kNoNativePaint);
    Report("CZoProgressCtrl horizontal repaint", horizontalRepaint.zo, horizontalRepaint.native, kNoNativeTime);
    Report("CZoProgressCtrl vertical paint", verticalPaint.zo, verticalPaint.native, kNoNativePaint);
    Report("CZoProgressCtrl vertical repaint", verticalRepaint.zo, verticalRepaint.native, kNoNativeTime);
}

} // namespace

int wmain()
{
    return zobench::RunWithHost(L"bench_scrolling", HostProc, [](HWND host) {
        printf("bench_scrolling\n");
        RunScrollBars(host);
        RunProgressBars(host);
    });
}
