// Process resource counts and leak checks.
//   CountGdiObjects / CountUserObjects / CountHeapBlocks / CountResources
//   GdiCountSource / UserCountSource   where the numbers come from on this system
//   CheckForLeaks                      warm-up cycle, baseline, N cycles, compare (non-asserting)
//   ZOTEST_EXPECT_NO_LEAKS(cycles, callable [, counters])   gtest failure naming what grew
//
// GDI objects: GetGuiResources(GR_GDIOBJECTS); under Wine that returns 0, so the count falls back
// to Wine's GDI handle table (PEB field GdiSharedHandleTable: offset 0x94 in 32-bit processes,
// 0xF8 in 64-bit ones; entries of 24 bytes whose byte 14, the object type, is non-zero while the
// object lives). Wine creates a few objects of its own on first use: hence the warm-up cycle.
// USER objects: GetGuiResources(GR_USEROBJECTS); under Wine (0 again) the windows of this process
// (top-level, message-only and all descendants) plus its menus (a scan of Wine's USER handle
// range with IsMenu, about 10 ms) are counted instead; cursors and icons are then not counted.
// Heap: busy blocks of every heap of the process (GetProcessHeaps + HeapWalk), which includes the
// C runtime's heap and so malloc/new in any DLL of the process. A gtest failure inside a cycle
// allocates too, so a failing cycle also shows as heap growth.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace zotest {

enum class CountSource { GetGuiResources, WineHandleTable, ProcessWindows, Unavailable };

struct ResourceCounts {
    long gdiObjects = 0;
    long userObjects = 0;
    long heapBlocks = 0;
    long long heapBytes = 0;
};

enum Counters : unsigned {
    count_gdi = 0x1,
    count_user = 0x2,
    count_heap = 0x4,
    count_all = count_gdi | count_user | count_heap,
};

long CountGdiObjects();
long CountUserObjects();
long CountHeapBlocks();
// Live GDI objects by the type byte of Wine's handle table (all zero elsewhere): which kind grew.
// Counting allocates nothing, so it does not disturb the heap counts taken beside it.
struct GdiTypeCounts {
    long live[256] = {};
};
GdiTypeCounts CountWineGdiObjectsByType();
ResourceCounts CountResources();

CountSource GdiCountSource();
CountSource UserCountSource();
const char* CountSourceName(CountSource source);

struct LeakCheck {
    bool leaked = false;
    std::string report; // what grew and by how much; empty when nothing did
    ResourceCounts baseline;
    ResourceCounts final;
};

// Runs `cycle` once to warm up, takes the baseline, runs it `cycles` more times and compares the
// counters selected by `counters`. Heap bytes are reported, only blocks are judged.
LeakCheck CheckForLeaks(int cycles, const std::function<void()>& cycle, unsigned counters = count_all);

} // namespace zotest

#define ZOTEST_EXPECT_NO_LEAKS(cycles, ...)                                                 \
    do {                                                                                    \
        const ::zotest::LeakCheck zotest_leak_check_ = ::zotest::CheckForLeaks((cycles), __VA_ARGS__); \
        if (zotest_leak_check_.leaked)                                                      \
            ADD_FAILURE() << zotest_leak_check_.report;                                     \
    } while (0)
