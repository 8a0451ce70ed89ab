#include <zotest/zotest.h>

using namespace zotest;

TEST(InputReal, MissingWindowIsRefused)
{
    HWND gone = CreateSolidWindow({0, 0, 5, 5}, 0);
    DestroyWindow(gone);
    EXPECT_FALSE(MoveCursorTo(gone, POINT{1, 1}));
    EXPECT_FALSE(RealClick(nullptr, POINT{1, 1}));
}
