#include <zotest/resource_counter.h>

#include <zotest/test_window.h>

#include <intrin.h>

#include <vector>

namespace zotest {

namespace {

constexpr size_t kWineHandleEntrySize = 24;
constexpr size_t kWineHandleTypeOffset = 14;
constexpr size_t kWineMaxHandles = 0x10000;

const BYTE* WineGdiHandleTable()
{
#if defined(_WIN64)
    const BYTE* peb = reinterpret_cast<const BYTE*>(__readgsqword(0x60));
    constexpr size_t tableField = 0xF8;
#else
    const BYTE* peb = reinterpret_cast<const BYTE*>(__readfsdword(0x30));
    constexpr size_t tableField = 0x94;
#endif
    if (!peb)
        return nullptr;
    return *reinterpret_cast<const BYTE* const*>(peb + tableField);
}

// Entries of the table that can be read without faulting (the table may be only partly committed).
size_t ReadableEntries(const BYTE* table)
{
    MEMORY_BASIC_INFORMATION info{};
    if (!table || VirtualQuery(table, &info, sizeof info) != sizeof info || info.State != MEM_COMMIT ||
        (info.Protect & (PAGE_NOACCESS | PAGE_GUARD)))
        return 0;
    const size_t bytes = static_cast<size_t>(static_cast<const BYTE*>(info.BaseAddress) + info.RegionSize - table);
    const size_t entries = bytes / kWineHandleEntrySize;
    return entries < kWineMaxHandles ? entries : kWineMaxHandles;
}

// Calls `each` with the type byte of every live entry.
template <typename Each> void ForEachWineGdiHandle(Each each)
{
    const BYTE* table = WineGdiHandleTable();
    const size_t entries = ReadableEntries(table);
    for (size_t i = 0; i < entries; ++i)
        if (const BYTE type = table[i * kWineHandleEntrySize + kWineHandleTypeOffset])
            each(type);
}

long CountWineGdiHandles()
{
    long live = 0;
    ForEachWineGdiHandle([&live](BYTE) { ++live; });
    return live;
}

bool WineHandleTableUsable()
{
    return RunningUnderWine() && ReadableEntries(WineGdiHandleTable()) > 0;
}

struct WindowTally {
    DWORD process;
    long count;
};

BOOL CALLBACK CountChild(HWND window, LPARAM data)
{
    auto* tally = reinterpret_cast<WindowTally*>(data);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == tally->process)
        ++tally->count;
    return TRUE;
}

BOOL CALLBACK CountTopLevel(HWND window, LPARAM data)
{
    auto* tally = reinterpret_cast<WindowTally*>(data);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process != tally->process)
        return TRUE;
    ++tally->count;
    // EnumChildWindows walks all descendants, not only direct children.
    EnumChildWindows(window, CountChild, data);
    return TRUE;
}

long CountProcessWindows()
{
    WindowTally tally{GetCurrentProcessId(), 0};
    EnumWindows(CountTopLevel, reinterpret_cast<LPARAM>(&tally));
    for (HWND messageOnly = FindWindowExW(HWND_MESSAGE, nullptr, nullptr, nullptr); messageOnly;
         messageOnly = FindWindowExW(HWND_MESSAGE, messageOnly, nullptr, nullptr))
        CountTopLevel(messageOnly, reinterpret_cast<LPARAM>(&tally));
    return tally.count;
}

// Wine's USER handles are 0x0020..0xFFEE in steps of 2 (a generation in the high word, which
// lookups accept as 0); IsMenu answers only for menus of this process.
long CountWineMenus()
{
    long menus = 0;
    for (UINT_PTR handle = 0x0020; handle <= 0xFFEE; handle += 2)
        if (IsMenu(reinterpret_cast<HMENU>(handle)))
            ++menus;
    return menus;
}

void WalkHeaps(long& blocks, long long& bytes)
{
    blocks = 0;
    bytes = 0;
    // A fixed array so that counting does not itself allocate from the heaps it walks.
    HANDLE heaps[256];
    DWORD count = GetProcessHeaps(256, heaps);
    if (count > 256)
        count = 256;
    for (DWORD i = 0; i < count; ++i) {
        if (!HeapLock(heaps[i]))
            continue;
        PROCESS_HEAP_ENTRY entry{};
        while (HeapWalk(heaps[i], &entry)) {
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) {
                ++blocks;
                bytes += entry.cbData;
            }
        }
        HeapUnlock(heaps[i]);
    }
}

void AppendGrowth(std::string& report, const char* what, long long before, long long after, int cycles)
{
    report += std::string(what) + " grew by " + std::to_string(after - before) + " over " + std::to_string(cycles) +
              " cycles (baseline " + std::to_string(before) + ", now " + std::to_string(after) + ")\n";
}

} // namespace

long CountGdiObjects()
{
    const DWORD reported = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    if (reported != 0)
        return static_cast<long>(reported);
    return WineHandleTableUsable() ? CountWineGdiHandles() : 0;
}

GdiTypeCounts CountWineGdiObjectsByType()
{
    GdiTypeCounts counts;
    if (WineHandleTableUsable())
        ForEachWineGdiHandle([&counts](BYTE type) { ++counts.live[type]; });
    return counts;
}

long CountUserObjects()
{
    const DWORD reported = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
    if (reported != 0)
        return static_cast<long>(reported);
    return CountProcessWindows() + (RunningUnderWine() ? CountWineMenus() : 0);
}

long CountHeapBlocks()
{
    long blocks;
    long long bytes;
    WalkHeaps(blocks, bytes);
    return blocks;
}

ResourceCounts CountResources()
{
    ResourceCounts counts;
    counts.gdiObjects = CountGdiObjects();
    counts.userObjects = CountUserObjects();
    WalkHeaps(counts.heapBlocks, counts.heapBytes);
    return counts;
}

CountSource GdiCountSource()
{
    if (GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS) != 0)
        return CountSource::GetGuiResources;
    return WineHandleTableUsable() ? CountSource::WineHandleTable : CountSource::Unavailable;
}

CountSource UserCountSource()
{
    if (GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS) != 0)
        return CountSource::GetGuiResources;
    return CountSource::ProcessWindows;
}

const char* CountSourceName(CountSource source)
{
    switch (source) {
    case CountSource::GetGuiResources:
        return "GetGuiResources";
    case CountSource::WineHandleTable:
        return "Wine GDI handle table";
    case CountSource::ProcessWindows:
        return "windows and menus of the process";
    default:
        return "unavailable";
    }
}

LeakCheck CheckForLeaks(int cycles, const std::function<void()>& cycle, unsigned counters)
{
    LeakCheck check;
    if (!cycle) {
        check.report = "no cycle to run\n";
        check.leaked = true;
        return check;
    }
    if (cycles < 1)
        cycles = 1;
    cycle();
    check.baseline = CountResources();
    for (int i = 0; i < cycles; ++i)
        cycle();
    check.final = CountResources();

    if ((counters & count_gdi) && check.final.gdiObjects > check.baseline.gdiObjects)
        AppendGrowth(check.report, "GDI objects", check.baseline.gdiObjects, check.final.gdiObjects, cycles);
    if ((counters & count_user) && check.final.userObjects > check.baseline.userObjects)
        AppendGrowth(check.report, "USER objects", check.baseline.userObjects, check.final.userObjects, cycles);
    if ((counters & count_heap) && check.final.heapBlocks > check.baseline.heapBlocks) {
        AppendGrowth(check.report, "heap blocks", check.baseline.heapBlocks, check.final.heapBlocks, cycles);
        AppendGrowth(check.report, "heap bytes", check.baseline.heapBytes, check.final.heapBytes, cycles);
    }
    check.leaked = !check.report.empty();
    if (check.leaked)
        check.report = "resources leaked:\n" + check.report + "(GDI counted by " +
                       CountSourceName(GdiCountSource()) + ", USER by " + CountSourceName(UserCountSource()) + ")";
    return check;
}

} // namespace zotest
