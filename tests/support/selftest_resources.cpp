#include <zotest/zotest.h>

#include <gtest/gtest-spi.h>

#include <cstdlib>
#include <cstring>
#include <vector>

using namespace zotest;

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
