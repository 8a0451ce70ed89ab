// Scrolling timings, each as a ratio against the native control of the same size measured in
// the same run:
//   paint and repaint of CZoScrollBar (vertical, horizontal)   vs  "SCROLLBAR"
//   paint and repaint of CZoProgressCtrl (horizontal, vertical) vs  "msctls_progress32"
//   one thumb-drag step (mouse move -> repaint -> WM_VSCROLL at the parent) vs the native bar
// Paint is WM_PRINTCLIENT into a memory DC of the control's size (the drawing alone; left out
// for a native control that draws nothing on it); repaint is RedrawWindow with invalidate +
// erase + update-now on the visible window (all the work of one exposure).
#include "core/ZoMemDC.h"
#include <afxwin.h>
#include <afxcmn.h>
#include <commctrl.h>
#include <gdiplus.h>

#include <stdio.h>

#include <vector>

#include "BenchHost.h"
#include "BenchTiming.h"
#include "ZoCtrl.h"

using namespace ZoControls;
using zobench::Pair;

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
const char* const kNoNativePaint = "the native control draws nothing on WM_PRINTCLIENT";
const char* const kNoNativeTime = "the native control was not measured";

// `missing` says why there is no native figure when `native` is 0.
void Report(const char* what, double seconds, double native, const char* missing)
{
    if (native > 0)
        printf("%-46s %10.3f us   ratio %8.2f x native (%.3f us)\n", what, seconds * 1e6, seconds / native,
               native * 1e6);
    else
        printf("%-46s %10.3f us   (%s)\n", what, seconds * 1e6, missing);
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

double RepaintTime(HWND hWnd)
{
    return zobench::TimePerCall(
        kPaintsPerRun, [hWnd] { ::RedrawWindow(hWnd, NULL, NULL, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW); });
}

double PaintTime(HWND hWnd, CDC& dc)
{
    return zobench::TimePerCall(kPaintsPerRun, [hWnd, &dc] {
        ::SendMessageW(hWnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.GetSafeHdc()), PRF_CLIENT | PRF_ERASEBKGND);
    });
}

// Whether `hWnd` draws anything on WM_PRINTCLIENT into `dc` of `size`.
bool DrawsOnPrintClient(HWND hWnd, CDC& dc, const CSize& size)
{
    const COLORREF unpainted = RGB(255, 0, 255);
    dc.FillSolidRect(0, 0, size.cx, size.cy, unpainted);
    ::SendMessageW(hWnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.GetSafeHdc()), PRF_CLIENT | PRF_ERASEBKGND);
    for (int y = 0; y < size.cy; ++y)
        for (int x = 0; x < size.cx; ++x)
            if (dc.GetPixel(x, y) != unpainted)
                return true;
    return false;
}

// Best paint times of `zo` and `native`, measured in turns; the native time stays 0 when that
// control draws nothing on WM_PRINTCLIENT.
Pair ComparePaints(HWND zo, HWND native)
{
    CRect client;
    ::GetClientRect(zo, &client);
    CClientDC screen(NULL);
    CZoMemDC target(&screen, client.Width(), client.Height());
    if (!target.GetSafeHdc())
        return Pair();
    if (!DrawsOnPrintClient(native, target, client.Size()))
        return zobench::CompareInTurns(kRuns, [zo, &target] { return PaintTime(zo, target); }, [] { return 0.0; });
    return zobench::CompareInTurns(kRuns, [zo, &target] { return PaintTime(zo, target); },
                                   [native, &target] { return PaintTime(native, target); });
}

// Best repaint times of `zo` and `native`, measured in turns.
Pair CompareRepaints(HWND zo, HWND native)
{
    return zobench::CompareInTurns(kRuns, [zo] { return RepaintTime(zo); }, [native] { return RepaintTime(native); });
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

// A skinned control and the native one it stands in for, side by side on the host.
template <class TControl>
class Twins
{
public:
    Twins(HWND host, const wchar_t* nativeClass, DWORD style, const CRect& rect, UINT id)
    {
        const DWORD child = WS_CHILD | WS_VISIBLE | style;
        m_zo.Create(child, rect, CWnd::FromHandle(host), id);
        const CRect beside = rect + CPoint(300, 0);
        m_hNative = ::CreateWindowExW(0, nativeClass, L"", child, beside.left, beside.top, beside.Width(),
                                      beside.Height(), host, NULL, ::GetModuleHandleW(NULL), NULL);
    }
    ~Twins()
    {
        m_zo.DestroyWindow();
        if (m_hNative)
            ::DestroyWindow(m_hNative);
    }
    HWND Zo() const { return m_zo.GetSafeHwnd(); }
    HWND Native() const { return m_hNative; }
    Pair BestPaints() const { return ComparePaints(Zo(), m_hNative); }
    Pair BestRepaints() const { return CompareRepaints(Zo(), m_hNative); }

private:
    Twins(const Twins&);
    Twins& operator=(const Twins&);

    TControl m_zo;
    HWND m_hNative;
};

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
