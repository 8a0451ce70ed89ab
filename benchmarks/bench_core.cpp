// Core timings, each as a ratio against a plain GDI equivalent measured in the same run:
//   library start + end           vs  CreateCompatibleDC + CreateCompatibleBitmap pair
//   client-sized CZoMemDC cycle   vs  the same DC + bitmap pair, filled and copied
#include <afxwin.h>
#include <gdiplus.h>

#include <stdio.h>

#include "ZoCtrl.h"
#include "core/ZoMemDC.h"
#include "BenchTiming.h"

namespace {

using zobench::TimePerCall;

const int kClientWidth = 800;
const int kClientHeight = 600;

// The plain pair every double-buffered paint needs: DC, bitmap, fill, copy, clean up.
void PlainPair(HDC target)
{
    HDC mem = ::CreateCompatibleDC(target);
    HBITMAP bitmap = ::CreateCompatibleBitmap(target, kClientWidth, kClientHeight);
    HGDIOBJ old = ::SelectObject(mem, bitmap);
    RECT area = {0, 0, kClientWidth, kClientHeight};
    ::FillRect(mem, &area, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
    ::BitBlt(target, 0, 0, kClientWidth, kClientHeight, mem, 0, 0, SRCCOPY);
    ::SelectObject(mem, old);
    ::DeleteObject(bitmap);
    ::DeleteDC(mem);
}

void ZoMemDCCycle(CDC& target)
{
    ZoControls::CZoMemDC mem(&target, kClientWidth, kClientHeight);
    mem.FillSolidRect(0, 0, kClientWidth, kClientHeight, RGB(255, 255, 255));
    mem.CopyToTarget();
}

void Report(const char* what, double seconds, double baseline)
{
    printf("%-44s %10.3f us   ratio %8.2f x plain pair (%.3f us)\n", what, seconds * 1e6,
           baseline > 0 ? seconds / baseline : 0.0, baseline * 1e6);
}

} // namespace

int wmain()
{
    Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    if (Gdiplus::GdiplusStartup(&token, &input, NULL) != Gdiplus::Ok) {
        printf("bench_core: GDI+ did not start\n");
        return 1;
    }

    HDC screen = ::GetDC(NULL);
    HDC target = ::CreateCompatibleDC(screen);
    HBITMAP targetBitmap = ::CreateCompatibleBitmap(screen, kClientWidth, kClientHeight);
    HGDIOBJ oldTarget = ::SelectObject(target, targetBitmap);
    CDC targetDC;
    targetDC.Attach(target);

    const double plain = TimePerCall(200, [&] { PlainPair(target); });
    const double lifetime = TimePerCall(20, [] {
        InitializeZoCtrl();
        UninitializeZoCtrl();
    });
    const double memDC = TimePerCall(200, [&] { ZoMemDCCycle(targetDC); });

    printf("bench_core (%dx%d client)\n", kClientWidth, kClientHeight);
    Report("InitializeZoCtrl + UninitializeZoCtrl", lifetime, plain);
    Report("CZoMemDC create + paint + copy + destroy", memDC, plain);

    targetDC.Detach();
    ::SelectObject(target, oldTarget);
    ::DeleteObject(targetBitmap);
    ::DeleteDC(target);
    ::ReleaseDC(NULL, screen);
    Gdiplus::GdiplusShutdown(token);
    return 0;
}
