// Slider and tab timings, each as a ratio against the native control of the same size, state
// and items measured in the same run:
//   paint and repaint of CZoSliderCtrl (ticks on both sides)       vs  "msctls_trackbar32"
//   paint and repaint of CZoRangeSliderCtrl (selection and bounds) vs  "msctls_trackbar32" with
//                                                                      the same selection
//   paint and repaint of CZoTabCtrl (tabs on top, tabs on the left) vs  "SysTabControl32" with the
//                                                                      same items and font
#include <afxwin.h>
#include <afxcmn.h>
#include <commctrl.h>

#include <stdio.h>

#include "BenchHost.h"
#include "BenchPaint.h"
#include "BenchTiming.h"
#include "ZoCtrl.h"

using namespace ZoControls;
using zobench::Pair;
using zobench::Report;
using zobench::ReportPair;
using zobench::Twins;

namespace {

const CRect kSliderRect(10, 10, 250, 50);
const CRect kRangeRect(10, 70, 250, 110);
const CRect kTopTabsRect(10, 130, 250, 290);
const CRect kSideTabsRect(10, 310, 250, 470);
const wchar_t* const kCaptions[] = {L"General", L"Details", L"Notes"};

LRESULT CALLBACK HostProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::DefWindowProcW(hWnd, message, wParam, lParam);
}

// Range 0..100 at 40, automatic ticks every 10; a selection 20..70 when `selection`.
void SetSliderState(HWND slider, bool selection)
{
    ::SendMessageW(slider, TBM_SETRANGE, TRUE, MAKELPARAM(0, 100));
    ::SendMessageW(slider, TBM_SETTICFREQ, 10, 0);
    ::SendMessageW(slider, TBM_SETPOS, TRUE, 40);
    if (selection)
        ::SendMessageW(slider, TBM_SETSEL, TRUE, MAKELPARAM(20, 70));
}

void AddTabs(HWND tabs)
{
    for (int i = 0; i < 3; ++i) {
        TCITEMW item = {};
        item.mask = TCIF_TEXT;
        item.pszText = const_cast<wchar_t*>(kCaptions[i]);
        ::SendMessageW(tabs, TCM_INSERTITEMW, i, reinterpret_cast<LPARAM>(&item));
    }
}

void RunSliders(HWND host)
{
    const DWORD style = TBS_AUTOTICKS | TBS_BOTH | TBS_ENABLESELRANGE;
    const Twins<CZoSliderCtrl> slider(host, TRACKBAR_CLASSW, TBS_AUTOTICKS | TBS_BOTH, kSliderRect, 1);
    Twins<CZoRangeSliderCtrl> range(host, TRACKBAR_CLASSW, style, kRangeRect, 2);
    SetSliderState(slider.Zo(), false);
    SetSliderState(slider.Native(), false);
    SetSliderState(range.Zo(), false);
    SetSliderState(range.Native(), true);
    // The range slider places its bound markers through its own SetSelection.
    range.ZoControl().SetSelection(20, 70);
    zobench::PumpPending();

    printf("Sliders, %dx%d:\n", kSliderRect.Width(), kSliderRect.Height());
    ReportPair("CZoSliderCtrl paint", "CZoSliderCtrl repaint", slider.BestPaints(), slider.BestRepaints());
    ReportPair("CZoRangeSliderCtrl paint", "CZoRangeSliderCtrl repaint", range.BestPaints(), range.BestRepaints());
}

void RunTabs(HWND host)
{
    const Twins<CZoTabCtrl> top(host, WC_TABCONTROLW, 0, kTopTabsRect, 3);
    const Twins<CZoTabCtrl> side(host, WC_TABCONTROLW, TCS_VERTICAL | TCS_MULTILINE, kSideTabsRect, 4);
    const HWND controls[4] = {top.Zo(), top.Native(), side.Zo(), side.Native()};
    for (int i = 0; i < 4; ++i)
        AddTabs(controls[i]);
    // The native twins get the skinned ones' font and tab size.
    for (int i = 0; i < 2; ++i) {
        const HWND zo = controls[2 * i];
        const HWND native = controls[2 * i + 1];
        ::SendMessageW(native, WM_SETFONT, ::SendMessageW(zo, WM_GETFONT, 0, 0), TRUE);
        ::SendMessageW(native, TCM_SETITEMSIZE, 0, MAKELPARAM(25, 25));
    }
    zobench::PumpPending();

    printf("Tab controls with three tabs, %dx%d:\n", kTopTabsRect.Width(), kTopTabsRect.Height());
    ReportPair("CZoTabCtrl top paint", "CZoTabCtrl top repaint", top.BestPaints(), top.BestRepaints());
    ReportPair("CZoTabCtrl left paint", "CZoTabCtrl left repaint", side.BestPaints(), side.BestRepaints());
}

} // namespace

int wmain()
{
    return zobench::RunWithHost(L"bench_values", HostProc, [](HWND host) {
        printf("bench_values\n");
        RunSliders(host);
        RunTabs(host);
    });
}
