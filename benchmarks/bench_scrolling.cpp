// Scrolling timings, each as a ratio against the native control of the same size measured in
// the same run:
//   repaint of CZoScrollBar (vertical, horizontal)   vs  "SCROLLBAR"
//   repaint of CZoProgressCtrl (horizontal, vertical) vs  "msctls_progress32"
//   one thumb-drag step (mouse move -> repaint -> WM_VSCROLL at the parent) vs the native bar
// A repaint is RedrawWindow with invalidate + erase + update-now: all the work the window does
// for one exposure, both windows visible on the same host.
#include <afxwin.h>
#include <afxcmn.h>
#include <commctrl.h>
#include <gdiplus.h>

#include <stdio.h>

#include <vector>

#include "core/ZoCtrl.h"

using namespace ZoControls;

namespace {

const int kBarThickness = 19;
const int kBarLength = 200;
const int kProgressLength = 240;
const int kProgressThickness = 18;
// Each figure is the best of several alternating runs of the two windows, so that load from
// elsewhere on the machine falls on both alike.
const int kRuns = 5;
const int kPaintsPerRun = 60;
const int kDragSteps = 100;
// Two rows of the vertical bar far enough apart that every step changes the position.
const int kDragRows[2] = {60, 140};

double Now()
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
    return (Now() - start) / rounds;
}

void Report(const char* what, double seconds, double native)
{
    if (native > 0)
        printf("%-46s %10.3f us   ratio %8.2f x native (%.3f us)\n", what, seconds * 1e6, seconds / native,
               native * 1e6);
    else
        printf("%-46s %10.3f us   (native not measured)\n", what, seconds * 1e6);
}

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
        g_trackLog.times.push_back(Now());
        return 0;
    }
    return ::DefWindowProcW(hWnd, message, wParam, lParam);
}

HWND CreateHost()
{
    WNDCLASSW wc = {};
    wc.lpfnWndProc = HostProc;
    wc.hInstance = ::GetModuleHandleW(NULL);
    wc.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    wc.lpszClassName = L"ZoBenchScrollingHost";
    ::RegisterClassW(&wc);
    return ::CreateWindowExW(0, wc.lpszClassName, L"bench_scrolling", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0,
                             800, 600, NULL, NULL, wc.hInstance, NULL);
}

HWND CreateNative(HWND host, const wchar_t* className, DWORD style, const CRect& rect)
{
    return ::CreateWindowExW(0, className, L"", WS_CHILD | WS_VISIBLE | style, rect.left, rect.top, rect.Width(),
                             rect.Height(), host, NULL, ::GetModuleHandleW(NULL), NULL);
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

double RepaintTime(HWND hWnd)
{
    return TimePerCall(kPaintsPerRun,
                       [hWnd] { ::RedrawWindow(hWnd, NULL, NULL, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW); });
}

// The smaller of `best` and `sample`, where 0 means "none yet" in `best` and "failed" in `sample`.
double Best(double best, double sample)
{
    return sample > 0 && (best <= 0 || sample < best) ? sample : best;
}

struct Pair
{
    double zo;
    double native;
};

// Best repaint times of `zo` and `native`, measured in turns.
Pair CompareRepaints(HWND zo, HWND native)
{
    Pair best = {0, 0};
    for (int run = 0; run < kRuns; ++run)
    {
        best.native = Best(best.native, RepaintTime(native));
        best.zo = Best(best.zo, RepaintTime(zo));
    }
    return best;
}

void PumpPending()
{
    MSG msg;
    while (::PeekMessageW(&msg, NULL, 0, 0, PM_REMOVE))
    {
        ::TranslateMessage(&msg);
        ::DispatchMessageW(&msg);
    }
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
    PumpPending();
    const int x = kBarThickness / 2;
    for (int i = 0; i < kDragSteps; ++i)
        ::PostMessageW(bar, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(x, kDragRows[i % 2]));
    ::PostMessageW(bar, WM_LBUTTONUP, 0, MAKELPARAM(x, kDragRows[(kDragSteps - 1) % 2]));
    g_trackLog.bar = bar;
    g_trackLog.times.clear();
    ::SendMessageW(bar, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, kBarLength / 2));
    PumpPending();
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
    CWnd* pHost = CWnd::FromHandle(host);
    CZoScrollBar zoVertical;
    CZoScrollBar zoHorizontal;
    const CRect verticalRect(10, 10, 10 + kBarThickness, 10 + kBarLength);
    const CRect horizontalRect(40, 10, 40 + kBarLength, 10 + kBarThickness);
    zoVertical.Create(WS_CHILD | WS_VISIBLE | SBS_VERT, verticalRect, pHost, 1);
    zoHorizontal.Create(WS_CHILD | WS_VISIBLE | SBS_HORZ, horizontalRect, pHost, 2);
    const HWND nativeVertical = CreateNative(host, L"SCROLLBAR", SBS_VERT, verticalRect + CPoint(300, 0));
    const HWND nativeHorizontal = CreateNative(host, L"SCROLLBAR", SBS_HORZ, horizontalRect + CPoint(300, 0));
    const HWND bars[4] = {zoVertical.GetSafeHwnd(), zoHorizontal.GetSafeHwnd(), nativeVertical, nativeHorizontal};
    for (int i = 0; i < 4; ++i)
        SetScrollState(bars[i]);
    PumpPending();

    const Pair vertical = CompareRepaints(zoVertical.GetSafeHwnd(), nativeVertical);
    const Pair horizontal = CompareRepaints(zoHorizontal.GetSafeHwnd(), nativeHorizontal);
    Pair step = {0, 0};
    size_t nativeSteps = 0;
    size_t zoSteps = 0;
    for (int run = 0; run < kRuns; ++run)
    {
        step.native = Best(step.native, DragStepTime(nativeVertical, nativeSteps));
        step.zo = Best(step.zo, DragStepTime(zoVertical.GetSafeHwnd(), zoSteps));
    }

    printf("Scroll bars, %dx%d and %dx%d:\n", kBarThickness, kBarLength, kBarLength, kBarThickness);
    Report("CZoScrollBar vertical repaint", vertical.zo, vertical.native);
    Report("CZoScrollBar horizontal repaint", horizontal.zo, horizontal.native);
    Report("CZoScrollBar thumb-drag step", step.zo, step.native);
    printf("  (last run, %d moves: %u SB_THUMBTRACK from CZoScrollBar, %u from the native bar)\n", kDragSteps,
           static_cast<unsigned>(zoSteps), static_cast<unsigned>(nativeSteps));

    zoVertical.DestroyWindow();
    zoHorizontal.DestroyWindow();
    ::DestroyWindow(nativeVertical);
    ::DestroyWindow(nativeHorizontal);
}

void RunProgressBars(HWND host)
{
    CWnd* pHost = CWnd::FromHandle(host);
    CZoProgressCtrl zoHorizontal;
    CZoProgressCtrl zoVertical;
    const CRect horizontalRect(10, 250, 10 + kProgressLength, 250 + kProgressThickness);
    const CRect verticalRect(10, 280, 10 + kProgressThickness, 280 + kProgressLength);
    zoHorizontal.Create(WS_CHILD | WS_VISIBLE, horizontalRect, pHost, 3);
    zoVertical.Create(WS_CHILD | WS_VISIBLE | PBS_VERTICAL, verticalRect, pHost, 4);
    const HWND nativeHorizontal = CreateNative(host, PROGRESS_CLASSW, 0, horizontalRect + CPoint(300, 0));
    const HWND nativeVertical = CreateNative(host, PROGRESS_CLASSW, PBS_VERTICAL, verticalRect + CPoint(300, 0));
    const HWND bars[4] = {zoHorizontal.GetSafeHwnd(), zoVertical.GetSafeHwnd(), nativeHorizontal, nativeVertical};
    for (int i = 0; i < 4; ++i)
        SetProgressState(bars[i]);
    PumpPending();

    const Pair horizontal = CompareRepaints(zoHorizontal.GetSafeHwnd(), nativeHorizontal);
    const Pair vertical = CompareRepaints(zoVertical.GetSafeHwnd(), nativeVertical);

    printf("Progress bars at 50%%, %dx%d and %dx%d:\n", kProgressLength, kProgressThickness, kProgressThickness,
           kProgressLength);
    Report("CZoProgressCtrl horizontal repaint", horizontal.zo, horizontal.native);
    Report("CZoProgressCtrl vertical repaint", vertical.zo, vertical.native);

    zoHorizontal.DestroyWindow();
    zoVertical.DestroyWindow();
    ::DestroyWindow(nativeHorizontal);
    ::DestroyWindow(nativeVertical);
}

} // namespace

int wmain()
{
    Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    if (Gdiplus::GdiplusStartup(&token, &input, NULL) != Gdiplus::Ok)
    {
        printf("bench_scrolling: GDI+ did not start\n");
        return 1;
    }
    INITCOMMONCONTROLSEX controls = {sizeof(INITCOMMONCONTROLSEX), ICC_PROGRESS_CLASS | ICC_STANDARD_CLASSES};
    ::InitCommonControlsEx(&controls);
    InitializeZoCtrl();

    const HWND host = CreateHost();
    if (!host)
    {
        printf("bench_scrolling: no host window\n");
        UninitializeZoCtrl();
        Gdiplus::GdiplusShutdown(token);
        return 1;
    }
    printf("bench_scrolling\n");
    RunScrollBars(host);
    RunProgressBars(host);

    ::DestroyWindow(host);
    UninitializeZoCtrl();
    Gdiplus::GdiplusShutdown(token);
    return 0;
}
