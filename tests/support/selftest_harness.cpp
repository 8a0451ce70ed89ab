#include <gtest/gtest.h>
#include <windows.h>

TEST(Harness, CreatesAWindowUnderWine)
{
    HWND wnd = CreateWindowExW(0, L"BUTTON", L"OK", WS_POPUP, 0, 0, 80, 24, nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(wnd, nullptr);
    EXPECT_TRUE(DestroyWindow(wnd));
}
