#include <zotest/zotest.h>

#include <gtest/gtest-spi.h>

#include <cstdlib>
#include <cstring>
#include <vector>

using namespace zotest;

TEST(ResourceCounts, GdiCountFollowsCreationAndDeletion)
{
    HBRUSH warmUp = CreateSolidBrush(RGB(1, 2, 3));
    DeleteObject(warmUp);
    const long before = CountGdiObjects();
    HBRUSH brushes[10];
    for (HBRUSH& brush : brushes)
        brush = CreateSolidBrush(RGB(1, 2, 3));
    EXPECT_EQ(CountGdiObjects(), before + 10) << "counted by " << CountSourceName(GdiCountSource());
    for (HBRUSH brush : brushes)
        DeleteObject(brush);
    EXPECT_EQ(CountGdiObjects(), before);
}

TEST(ResourceCounts, UserCountFollowsWindows)
{
    const long before = CountUserObjects();
    HWND window = CreateSolidWindow({0, 0, 10, 10}, RGB(0, 0, 0));
    HWND child = CreateSolidWindow({0, 0, 5, 5}, RGB(0, 0, 0), window);
    ASSERT_TRUE(child);
    EXPECT_GE(CountUserObjects(), before + 2) << "counted by " << CountSourceName(UserCountSource());
    DestroyWindow(window);
    EXPECT_EQ(CountUserObjects(), before);
}

TEST(ResourceCounts, UserCountFollowsMenus)
{
    const long before = CountUserObjects();
    HMENU menus[3];
    for (HMENU& menu : menus)
        menu = CreatePopupMenu();
    EXPECT_EQ(CountUserObjects(), before + 3) << "counted by " << CountSourceName(UserCountSource());
    for (HMENU menu : menus)
        DestroyMenu(menu);
    EXPECT_EQ(CountUserObjects(), before);
}

TEST(ResourceCounts, HeapBlocksFollowMallocAndNew)
{
    std::vector<void*> blocks;
    blocks.reserve(100);
    const long before = CountHeapBlocks();
    for (int i = 0; i < 100; ++i)
        blocks.push_back(std::malloc(32));
    EXPECT_EQ(CountHeapBlocks(), before + 100);
    for (void* block : blocks)
        std::free(block);
    EXPECT_EQ(CountHeapBlocks(), before);
    // operator new lives in libstdc++'s DLL (the C++ runtime is linked dynamically).
    int* numbers = new int[50];
    EXPECT_EQ(CountHeapBlocks(), before + 1);
    delete[] numbers;
    EXPECT_EQ(CountHeapBlocks(), before);
}

TEST(ResourceCounts, HeapBlocksAllocatedInsideSystemDllsAreSeen)
{
    const long before = CountHeapBlocks();
    char* copy = _strdup("allocated by the C runtime DLL");
    EXPECT_EQ(CountHeapBlocks(), before + 1);
    std::free(copy);
    HLOCAL local = LocalAlloc(LMEM_FIXED, 64);
    EXPECT_EQ(CountHeapBlocks(), before + 1);
    LocalFree(local);
    EXPECT_EQ(CountHeapBlocks(), before);
}

TEST(LeakCheck, ReportsABrushLeakedEveryCycle)
{
    std::vector<HBRUSH> leaked;
    leaked.reserve(16);
    const LeakCheck check = CheckForLeaks(3, [&] { leaked.push_back(CreateSolidBrush(RGB(9, 9, 9))); }, count_gdi);
    EXPECT_TRUE(check.leaked);
    EXPECT_NE(check.report.find("GDI objects grew by 3 over 3 cycles"), std::string::npos) << check.report;
    EXPECT_EQ(check.final.gdiObjects - check.baseline.gdiObjects, 3);
    for (HBRUSH brush : leaked)
        DeleteObject(brush);
}

TEST(LeakCheck, PassesWhenTheBrushIsDeleted)
{
    const LeakCheck check = CheckForLeaks(5, [] { DeleteObject(CreateSolidBrush(RGB(9, 9, 9))); });
    EXPECT_FALSE(check.leaked) << check.report;
    EXPECT_TRUE(check.report.empty());
}

TEST(LeakCheck, MacroFailsOnALeakAndNamesTheCounter)
{
    std::vector<HBRUSH> leaked;
    leaked.reserve(16);
    auto leakOne = [&] { leaked.push_back(CreateSolidBrush(RGB(9, 9, 9))); };
    EXPECT_NONFATAL_FAILURE(ZOTEST_EXPECT_NO_LEAKS(2, leakOne, count_gdi), "GDI objects grew by 2");
    for (HBRUSH brush : leaked)
        DeleteObject(brush);
    ZOTEST_EXPECT_NO_LEAKS(4, [] { DeleteObject(CreatePen(PS_SOLID, 1, 0)); });
}

TEST(LeakCheck, ReportsHeapBlocksLeakedEveryCycle)
{
    std::vector<void*> leaked;
    leaked.reserve(16);
    const LeakCheck check = CheckForLeaks(4, [&] { leaked.push_back(std::malloc(24)); }, count_heap);
    EXPECT_TRUE(check.leaked);
    EXPECT_NE(check.report.find("heap blocks grew by 4 over 4 cycles"), std::string::npos) << check.report;
    for (void* block : leaked)
        std::free(block);
    const LeakCheck clean = CheckForLeaks(4, [] { std::free(std::malloc(24)); }, count_heap);
    EXPECT_FALSE(clean.leaked) << clean.report;
}

TEST(LeakCheck, ReportsWindowsLeftBehind)
{
    std::vector<HWND> leaked;
    leaked.reserve(16);
    const LeakCheck check =
        CheckForLeaks(2, [&] { leaked.push_back(CreateSolidWindow({0, 0, 5, 5}, RGB(0, 0, 0))); }, count_user);
    EXPECT_TRUE(check.leaked);
    EXPECT_NE(check.report.find("USER objects grew by"), std::string::npos) << check.report;
    for (HWND window : leaked)
        DestroyWindow(window);
}

TEST(LeakCheck, SelectedCountersOnly)
{
    std::vector<HBRUSH> leaked;
    leaked.reserve(16);
    const LeakCheck check = CheckForLeaks(2, [&] { leaked.push_back(CreateSolidBrush(0)); }, count_heap);
    EXPECT_FALSE(check.leaked) << "GDI growth is not judged when only the heap is checked";
    for (HBRUSH brush : leaked)
        DeleteObject(brush);
}

TEST(LeakCheck, MissingCycleIsReported)
{
    const LeakCheck check = CheckForLeaks(3, std::function<void()>());
    EXPECT_TRUE(check.leaked);
    EXPECT_FALSE(check.report.empty());
}
