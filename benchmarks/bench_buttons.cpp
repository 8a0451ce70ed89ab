// Button and static timings, each as a ratio against the native control of the same size,
// style, caption and font, measured in the same run:
//   CZoButton push button   vs  "BUTTON" BS_PUSHBUTTON
//   CZoButton check box     vs  "BUTTON" BS_AUTOCHECKBOX, both checked
//   CZoStatic text          vs  "STATIC" SS_LEFT
// Two figures for each: paint is WM_PRINTCLIENT into a memory DC of the control's size (the
// drawing alone); repaint is RedrawWindow with invalidate + erase + update-now on the visible
// window (all the work of one exposure). For the push button a third, the BM_GETSTATE round
// trip, shows what one message costs on its way through the framework's window procedure; a
// paint sends several (state, margins, text, images).
// Creation: creating and destroying each control (push button, check box, static, progress bar)
// against the native control of the same class and style.
#include <afxwin.h>
#include <gdiplus.h>

#include <stdio.h>

#include "BenchHost.h"
#include "BenchTiming.h"
#include "ZoCtrl.h"

using namespace ZoControls;
using namespace zobench;

namespace {

const int kRuns = 5;
const int kPaintsPerRun = 200;
const int kCreationsPerRun = 20;

// The native control, in the font the library's control of the same kind draws with.
HWND CreateNative(HWND host, const wchar_t* className, const wchar_t* text, DWORD style, const CRect& rect,
                  E_ZoThemeFont font)
{
    const HWND hWnd = ::CreateWindowExW(0, className, text, WS_CHILD | WS_VISIBLE | style, rect.left, rect.top,
                                        rect.Width(), rect.Height(), host, NULL, ::GetModuleHandleW(NULL), NULL);
    const CZoThemeManager* pTheme = CZoThemeManager::GetInstance();
    const CFont* pFont = pTheme ? pTheme->GetCacheGDIFont(font, ZoMonitorSize_Normal) : NULL;
    if (hWnd && pFont)
        ::SendMessageW(hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(pFont->GetSafeHandle()), FALSE);
    return hWnd;
}

// A memory DC holding a bitmap of the control's size, for WM_PRINTCLIENT.
class CPrintTarget
{
public:
    explicit CPrintTarget(const CSize& size) : m_hDC(NULL), m_hBitmap(NULL), m_hOld(NULL)
    {
        const HDC hScreen = ::GetDC(NULL);
        m_hDC = ::CreateCompatibleDC(hScreen);
        m_hBitmap = ::CreateCompatibleBitmap(hScreen, size.cx, size.cy);
        ::ReleaseDC(NULL, hScreen);
        if (m_hDC && m_hBitmap)
            m_hOld = ::SelectObject(m_hDC, m_hBitmap);
    }
    ~CPrintTarget()
    {
        if (m_hOld)
            ::SelectObject(m_hDC, m_hOld);
        if (m_hBitmap)
            ::DeleteObject(m_hBitmap);
        if (m_hDC)
            ::DeleteDC(m_hDC);
    }
    HDC GetDC() const { return m_hOld ? m_hDC : NULL; }

private:
    CPrintTarget(const CPrintTarget&);
    CPrintTarget& operator=(const CPrintTarget&);

    HDC m_hDC;
    HBITMAP m_hBitmap;
    HGDIOBJ m_hOld;
};

// Seconds per WM_PRINTCLIENT of `hWnd` into `hdc`; 0 without a DC.
double PaintTime(HWND hWnd, HDC hdc)
{
    if (!hdc)
        return 0;
    return TimePerCall(kPaintsPerRun, [hWnd, hdc] {
        ::SendMessageW(hWnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(hdc), PRF_CLIENT | PRF_ERASEBKGND);
    });
}

double MessageTime(HWND hWnd)
{
    return TimePerCall(kPaintsPerRun, [hWnd] { ::SendMessageW(hWnd, BM_GETSTATE, 0, 0); });
}

double RepaintTime(HWND hWnd)
{
    return TimePerCall(kPaintsPerRun,
                       [hWnd] { ::RedrawWindow(hWnd, NULL, NULL, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW); });
}

// "ZoButton push paint: 1.80x native BUTTON (12.00 us vs 6.67 us)".
void Report(const char* what, const char* how, const char* nativeName, const Pair& times)
{
    if (times.native > 0 && times.zo > 0)
        printf("%s %s: %.2fx native %s (%.2f us vs %.2f us)\n", what, how, times.zo / times.native, nativeName,
               times.zo * 1e6, times.native * 1e6);
    else
        printf("%s %s: not measured (%.2f us vs %.2f us)\n", what, how, times.zo * 1e6, times.native * 1e6);
}

void Compare(CWnd& zo, HWND native, const char* what, const char* nativeName)
{
    PumpPending();
    CRect client;
    zo.GetClientRect(&client);
    const CPrintTarget target(client.Size());
    const HWND zoWnd = zo.GetSafeHwnd();
    const HDC hdc = target.GetDC();
    Report(what, "paint", nativeName,
           CompareInTurns(kRuns, [zoWnd, hdc] { return PaintTime(zoWnd, hdc); },
                          [native, hdc] { return PaintTime(native, hdc); }));
    Report(what, "repaint", nativeName,
           CompareInTurns(kRuns, [zoWnd] { return RepaintTime(zoWnd); }, [native] { return RepaintTime(native); }));
}

void RunButtons(HWND host)
{
    CWnd* pHost = CWnd::FromHandle(host);
    const CRect pushRect(10, 10, 130, 38);
    const CRect checkRect(10, 50, 150, 70);
    const CPoint nativeOffset(300, 0);

    CZoButton push;
    push.Create(L"Push", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, pushRect, pHost, 1);
    // A push button's caption is drawn in font role 9, a check box's in role 1.
    const HWND nativePush = CreateNative(host, L"BUTTON", L"Push", BS_PUSHBUTTON, pushRect + nativeOffset, ZoThemeFont_9);
    printf("Buttons, push %dx%d, check box %dx%d:\n", pushRect.Width(), pushRect.Height(), checkRect.Width(),
           checkRect.Height());
    Compare(push, nativePush, "ZoButton push", "BUTTON");
    const HWND zoPush = push.GetSafeHwnd();
    Report("ZoButton push", "BM_GETSTATE", "BUTTON",
           CompareInTurns(kRuns, [zoPush] { return MessageTime(zoPush); },
                          [nativePush] { return MessageTime(nativePush); }));

    CZoButton check;
    check.Create(L"Check box", WS_CHILD | WS_VISIBLE | BS_AUTOCHECKBOX, checkRect, pHost, 2);
    check.SetCheck(BST_CHECKED);
    const HWND nativeCheck =
        CreateNative(host, L"BUTTON", L"Check box", BS_AUTOCHECKBOX, checkRect + nativeOffset, ZoThemeFont_1);
    ::SendMessageW(nativeCheck, BM_SETCHECK, BST_CHECKED, 0);
    Compare(check, nativeCheck, "ZoButton check box", "BUTTON");

    push.DestroyWindow();
    check.DestroyWindow();
    ::DestroyWindow(nativePush);
    ::DestroyWindow(nativeCheck);
}

void RunStatic(HWND host)
{
    CWnd* pHost = CWnd::FromHandle(host);
    const CRect textRect(10, 100, 210, 140);
    const wchar_t text[] = L"A static text that wraps onto a second line";

    CZoStatic label;
    label.Create(text, WS_CHILD | WS_VISIBLE | SS_LEFT, textRect, pHost, 3);
    const HWND nativeLabel = CreateNative(host, L"STATIC", text, SS_LEFT, textRect + CPoint(300, 0), ZoThemeFont_1);
    printf("Static text, %dx%d:\n", textRect.Width(), textRect.Height());
    Compare(label, nativeLabel, "ZoStatic text", "STATIC");

    label.DestroyWindow();
    ::DestroyWindow(nativeLabel);
}

// Seconds per creation and destruction of a control of class T.
template <class T>
double ZoCreateTime(HWND host, const wchar_t* text, DWORD style, const CRect& rect)
{
    CWnd* pHost = CWnd::FromHandle(host);
    return TimePerCall(kCreationsPerRun, [pHost, text, style, &rect] {
        T control;
        control.Create(text, WS_CHILD | WS_VISIBLE | style, rect, pHost, 10);
        control.DestroyWindow();
    });
}

double ZoProgressCreateTime(HWND host, const CRect& rect)
{
    CWnd* pHost = CWnd::FromHandle(host);
    return TimePerCall(kCreationsPerRun, [pHost, &rect] {
        CZoProgressCtrl control;
        control.Create(WS_CHILD | WS_VISIBLE, rect, pHost, 10);
        control.DestroyWindow();
    });
}

double NativeCreateTime(HWND host, const wchar_t* className, const wchar_t* text, DWORD style, const CRect& rect,
                        E_ZoThemeFont font)
{
    return TimePerCall(kCreationsPerRun, [host, className, text, style, &rect, font] {
        ::DestroyWindow(CreateNative(host, className, text, style, rect, font));
    });
}

void RunCreation(HWND host)
{
    const CRect rect(10, 200, 150, 228);
    printf("Creation and destruction:\n");
    Report("ZoButton push", "create", "BUTTON",
           CompareInTurns(kRuns, [host, &rect] { return ZoCreateTime<CZoButton>(host, L"Push", BS_PUSHBUTTON, rect); },
                          [host, &rect] {
                              return NativeCreateTime(host, L"BUTTON", L"Push", BS_PUSHBUTTON, rect, ZoThemeFont_9);
                          }));
    Report("ZoButton check box", "create", "BUTTON",
           CompareInTurns(
               kRuns, [host, &rect] { return ZoCreateTime<CZoButton>(host, L"Check box", BS_AUTOCHECKBOX, rect); },
               [host, &rect] {
                   return NativeCreateTime(host, L"BUTTON", L"Check box", BS_AUTOCHECKBOX, rect, ZoThemeFont_1);
               }));
    Report("ZoStatic text", "create", "STATIC",
           CompareInTurns(kRuns, [host, &rect] { return ZoCreateTime<CZoStatic>(host, L"Static", SS_LEFT, rect); },
                          [host, &rect] {
                              return NativeCreateTime(host, L"STATIC", L"Static", SS_LEFT, rect, ZoThemeFont_1);
                          }));
    Report("ZoProgressCtrl", "create", PROGRESS_CLASSA,
           CompareInTurns(kRuns, [host, &rect] { return ZoProgressCreateTime(host, rect); },
                          [host, &rect] {
                              return NativeCreateTime(host, PROGRESS_CLASSW, L"", 0, rect, ZoThemeFont_1);
                          }));
}

} // namespace

int wmain()
{
    return RunWithHost(L"bench_buttons", ::DefWindowProcW, [](HWND host) {
        printf("bench_buttons (best of %d runs of %d paints each)\n", kRuns, kPaintsPerRun);
        RunButtons(host);
        RunStatic(host);
        RunCreation(host);
    });
}
