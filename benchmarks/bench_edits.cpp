// Edit and combo timings, each as a ratio against the native control of the same size, style and
// text measured in the same run:
//   paint and repaint of CZoEdit's client area             vs  "EDIT" with a border
//   repaint of CZoEdit with its frame (non-client border)  vs  the same "EDIT"
//   paint and repaint of a drop-list CZoComboBox           vs  "COMBOBOX" with the same items
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

const CRect kEditRect(10, 10, 250, 34);
const CRect kComboRect(10, 60, 250, 260);
const wchar_t kText[] = L"Some text 1234";
const wchar_t* const kItems[] = {L"First", L"Second", L"Third"};

LRESULT CALLBACK HostProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::DefWindowProcW(hWnd, message, wParam, lParam);
}

// Seconds per repaint of the whole window, frame included.
double FrameRepaintTime(HWND hWnd)
{
    return zobench::TimePerCall(zobench::kPaintsPerRun, [hWnd] {
        ::RedrawWindow(hWnd, NULL, NULL, RDW_FRAME | RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    });
}

void RunEdits(HWND host)
{
    const Twins<CZoEdit> edit(host, L"EDIT", WS_BORDER | ES_AUTOHSCROLL, kEditRect, 1);
    ::SetWindowTextW(edit.Zo(), kText);
    ::SetWindowTextW(edit.Native(), kText);
    ::SendMessageW(edit.Native(), WM_SETFONT, ::SendMessageW(edit.Zo(), WM_GETFONT, 0, 0), TRUE);
    zobench::PumpPending();

    printf("Edits, %dx%d:\n", kEditRect.Width(), kEditRect.Height());
    ReportPair("CZoEdit client paint", "CZoEdit client repaint", edit.BestPaints(), edit.BestRepaints());
    const HWND zo = edit.Zo();
    const HWND native = edit.Native();
    const Pair frames = zobench::CompareInTurns(zobench::kRuns, [zo] { return FrameRepaintTime(zo); },
                                                [native] { return FrameRepaintTime(native); });
    Report("CZoEdit repaint with frame", frames.zo, frames.native, zobench::kNoNativeTime);
}

void RunCombos(HWND host)
{
    const Twins<CZoComboBox> combo(host, L"COMBOBOX", CBS_DROPDOWNLIST | WS_VSCROLL, kComboRect, 2);
    const HWND controls[2] = {combo.Zo(), combo.Native()};
    for (HWND control : controls) {
        for (const wchar_t* item : kItems)
            ::SendMessageW(control, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
        ::SendMessageW(control, CB_SETCURSEL, 1, 0);
    }
    ::SendMessageW(combo.Native(), WM_SETFONT, ::SendMessageW(combo.Zo(), WM_GETFONT, 0, 0), TRUE);
    zobench::PumpPending();

    CRect closed;
    ::GetClientRect(combo.Zo(), &closed);
    printf("Drop-list combos, %dx%d closed:\n", closed.Width(), closed.Height());
    ReportPair("CZoComboBox paint", "CZoComboBox repaint", combo.BestPaints(), combo.BestRepaints());
}

} // namespace

int wmain()
{
    return zobench::RunWithHost(L"bench_edits", HostProc, [](HWND host) {
        printf("bench_edits\n");
        RunEdits(host);
        RunCombos(host);
    });
}
