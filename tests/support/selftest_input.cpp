#include <zotest/zotest.h>

using namespace zotest;

namespace {

constexpr POINT kPoint = {7, 9};
constexpr LPARAM kPointParam = MAKELPARAM(7, 9);

const ExpectedMessage kClick[] = {
    {WM_LBUTTONDOWN, sent | wparam | lparam, MK_LBUTTON | MK_SHIFT, kPointParam},
    {WM_LBUTTONUP, sent | wparam | lparam, MK_SHIFT, kPointParam},
};

const ExpectedMessage kDoubleClick[] = {
    {WM_LBUTTONDOWN, sent | wparam, MK_LBUTTON},
    {WM_LBUTTONUP, sent},
    {WM_LBUTTONDBLCLK, sent | wparam | lparam, MK_LBUTTON, kPointParam},
    {WM_LBUTTONUP, sent},
};

const ExpectedMessage kRightClick[] = {
    {WM_RBUTTONDOWN, sent | wparam, MK_RBUTTON},
    {WM_RBUTTONUP, sent | wparam, 0},
    {WM_CONTEXTMENU, sent}, // the default handling of the button release
};

} // namespace

TEST(InputSent, ClicksCarryPointAndKeys)
{
    ScopedWindow window(CreateSolidWindow({0, 0, 40, 40}, RGB(0, 0, 0)));
    MessageRecorder recorder;
    recorder.Watch(window);
    SendClick(window, kPoint, MK_SHIFT);
    ZOTEST_EXPECT_SEQUENCE(recorder, kClick);
    SendDoubleClick(window, kPoint);
    ZOTEST_EXPECT_SEQUENCE(recorder, kDoubleClick);
    SendRightClick(window, kPoint);
    ZOTEST_EXPECT_SEQUENCE(recorder, kRightClick);
}

TEST(InputSent, KeyCarriesRepeatCountAndTransitionBits)
{
    ScopedWindow window(CreateSolidWindow({0, 0, 40, 40}, RGB(0, 0, 0)));
    MessageRecorder recorder;
    recorder.Watch(window);
    SendKey(window, 'A', L'a');
    const std::vector<RecordedMessage>& got = recorder.Messages();
    ASSERT_EQ(got.size(), 3u);
    EXPECT_EQ(got[0].message, static_cast<UINT>(WM_KEYDOWN));
    EXPECT_EQ(got[1].message, static_cast<UINT>(WM_CHAR));
    EXPECT_EQ(got[1].wParam, static_cast<WPARAM>(L'a'));
    EXPECT_EQ(got[2].message, static_cast<UINT>(WM_KEYUP));
    EXPECT_EQ(got[0].lParam & 0xFFFF, 1);
    EXPECT_EQ(static_cast<DWORD>(got[0].lParam) & 0xC0000000u, 0u);
    EXPECT_EQ(static_cast<DWORD>(got[2].lParam) & 0xC0000000u, 0xC0000000u);
}

TEST(InputSent, TypedCharactersReachAnEdit)
{
    ScopedWindow edit(CreateWindowExW(0, L"EDIT", L"", WS_POPUP | WS_VISIBLE, 0, 0, 80, 20, nullptr, nullptr,
                                      nullptr, nullptr));
    SendKey(edit, 'Z', L'z');
    SendKey(edit, VK_LEFT);
    SendKey(edit, 'Y', L'y');
    wchar_t text[8] = L"";
    GetWindowTextW(edit, text, 8);
    EXPECT_STREQ(text, L"yz");
}

TEST(InputReal, ClickOnAButtonNotifiesItsParent)
{
    ScopedWindow parentWindow(CreateSolidWindow({200, 200, 360, 280}, RGB(0, 0, 255)));
    HWND button = CreateWindowExW(0, L"BUTTON", L"OK", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, 10, 10, 80, 24,
                                  parentWindow, reinterpret_cast<HMENU>(5), nullptr, nullptr);
    PumpUntilIdle();
    MessageRecorder recorder;
    recorder.WatchWithParent(button);
    ASSERT_TRUE(RealClick(button, POINT{20, 12}));
    ASSERT_TRUE(PumpUntilReceived(recorder, WM_COMMAND, WindowRole::Parent));
    const ExpectedMessage click[] = {
        {WM_LBUTTONDOWN, posted | wparam | lparam, MK_LBUTTON, MAKELPARAM(20, 12)},
        {WM_LBUTTONUP, posted},
        {WM_COMMAND, sent | parent | wparam, MAKEWPARAM(5, BN_CLICKED)},
    };
    recorder.MatchOnlyListed(true);
    ZOTEST_EXPECT_SEQUENCE(recorder, click);
}

TEST(InputReal, LeavingATrackedWindowPostsMouseLeave)
{
    ScopedWindow tracked(CreateSolidWindow({200, 300, 260, 360}, RGB(0, 0, 255)));
    ScopedWindow elsewhere(CreateSolidWindow({400, 300, 460, 360}, RGB(0, 255, 0)));
    PumpUntilIdle();
    MessageRecorder recorder;
    recorder.Watch(tracked);
    ASSERT_TRUE(MoveCursorTo(tracked, POINT{10, 10}));
    ASSERT_TRUE(PumpUntilReceived(recorder, WM_MOUSEMOVE));
    TRACKMOUSEEVENT track{sizeof(TRACKMOUSEEVENT), TME_LEAVE, tracked, 0};
    ASSERT_TRUE(TrackMouseEvent(&track));
    ASSERT_TRUE(MoveCursorTo(elsewhere, POINT{10, 10}));
    EXPECT_TRUE(PumpUntilReceived(recorder, WM_MOUSELEAVE));
}

TEST(InputReal, MissingWindowIsRefused)
{
    HWND gone = CreateSolidWindow({0, 0, 5, 5}, 0);
    DestroyWindow(gone);
    EXPECT_FALSE(MoveCursorTo(gone, POINT{1, 1}));
    EXPECT_FALSE(RealClick(nullptr, POINT{1, 1}));
}
