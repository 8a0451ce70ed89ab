// Paint timings the control benchmarks share: drawing alone through WM_PRINTCLIENT into a
// memory DC of the control's size (left out for a native control that draws nothing on it) and a
// full repaint through RedrawWindow, each the best of alternating runs of a skinned control and
// the native one it stands in for, created side by side as Twins; Report prints the ratio.
#pragma once
#include "core/ZoMemDC.h"
#include <afxwin.h>

#include <stdio.h>

#include "BenchTiming.h"

namespace zobench {

// Each figure is the best of several alternating runs of the two windows, so that load from
// elsewhere on the machine falls on both alike.
const int kRuns = 5;
const int kPaintsPerRun = 60;
const char* const kNoNativePaint = "the native control draws nothing on WM_PRINTCLIENT";
const char* const kNoNativeTime = "the native control was not measured";

// `missing` says why there is no native figure when `native` is 0.
inline void Report(const char* what, double seconds, double native, const char* missing)
{
    if (native > 0)
        printf("%-46s %10.3f us   ratio %8.2f x native (%.3f us)\n", what, seconds * 1e6, seconds / native,
               native * 1e6);
    else
        printf("%-46s %10.3f us   (%s)\n", what, seconds * 1e6, missing);
}

// A paint figure and a repaint figure of one control, each against its native twin.
inline void ReportPair(const char* paint, const char* repaint, const Pair& paints, const Pair& repaints)
{
    Report(paint, paints.zo, paints.native, kNoNativePaint);
    Report(repaint, repaints.zo, repaints.native, kNoNativeTime);
}

inline double RepaintTime(HWND hWnd)
{
    return TimePerCall(
        kPaintsPerRun, [hWnd] { ::RedrawWindow(hWnd, NULL, NULL, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW); });
}

inline double PaintTime(HWND hWnd, CDC& dc, int paints = kPaintsPerRun)
{
    return TimePerCall(paints, [hWnd, &dc] {
        ::SendMessageW(hWnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.GetSafeHdc()), PRF_CLIENT | PRF_ERASEBKGND);
    });
}

// Whether `hWnd` draws anything on WM_PRINTCLIENT into `dc` of `size`.
inline bool DrawsOnPrintClient(HWND hWnd, CDC& dc, const CSize& size)
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

// Best paint times of `zo` and `native`, measured in turns of `paints` each; the native time
// stays 0 when that control draws nothing on WM_PRINTCLIENT.
inline Pair ComparePaints(HWND zo, HWND native, int paints = kPaintsPerRun)
{
    CRect client;
    ::GetClientRect(zo, &client);
    CClientDC screen(NULL);
    ZoControls::CZoMemDC target(&screen, client.Width(), client.Height());
    if (!target.GetSafeHdc())
        return Pair();
    if (!DrawsOnPrintClient(native, target, client.Size()))
        return CompareInTurns(kRuns, [zo, &target, paints] { return PaintTime(zo, target, paints); },
                              [] { return 0.0; });
    return CompareInTurns(kRuns, [zo, &target, paints] { return PaintTime(zo, target, paints); },
                          [native, &target, paints] { return PaintTime(native, target, paints); });
}

// Best repaint times of `zo` and `native`, measured in turns.
inline Pair CompareRepaints(HWND zo, HWND native)
{
    return CompareInTurns(kRuns, [zo] { return RepaintTime(zo); }, [native] { return RepaintTime(native); });
}

// A skinned control and the native one it stands in for, side by side on the host (the native
// one `offset` further).
template <class TControl>
class Twins
{
public:
    Twins(HWND host, const wchar_t* nativeClass, DWORD style, const CRect& rect, UINT id,
          const CPoint& offset = CPoint(300, 0))
    {
        const DWORD child = WS_CHILD | WS_VISIBLE | style;
        m_zo.Create(child, rect, CWnd::FromHandle(host), id);
        const CRect beside = rect + offset;
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
    TControl& ZoControl() { return m_zo; }
    HWND Native() const { return m_hNative; }
    Pair BestPaints() const { return ComparePaints(Zo(), m_hNative); }
    Pair BestRepaints() const { return CompareRepaints(Zo(), m_hNative); }

private:
    Twins(const Twins&);
    Twins& operator=(const Twins&);

    TControl m_zo;
    HWND m_hNative;
};

} // namespace zobench
