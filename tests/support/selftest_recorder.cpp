#include <zotest/zotest.h>

#include <gtest/gtest-spi.h>

#include <commctrl.h>

#include <iterator>

using namespace zotest;

namespace {

constexpr int kButtonId = 100;
constexpr LPARAM kInside = MAKELPARAM(5, 5);

struct ButtonOnParent {
    ButtonOnParent()
        : parentWindow(CreateSolidWindow({10, 10, 210, 110}, RGB(0, 0, 255))),
          button(CreateWindowExW(0, L"BUTTON", L"OK", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, 10, 10, 80, 24,
                                 parentWindow, reinterpret_cast<HMENU>(kButtonId), nullptr, nullptr))
    {
        PumpUntilIdle();
    }
    ScopedWindow parentWindow;
    HWND button;
};

// Only the listed messages are compared: focus and colour traffic differs between systems.
const ExpectedMessage kSentClick[] = {
    {WM_LBUTTONDOWN, sent | wparam | lparam, MK_LBUTTON, kInside},
    {BM_SETSTATE, sent | wparam, TRUE},
    {WM_LBUTTONUP, sent | wparam | lparam, 0, kInside},
    {BM_SETSTATE, sent | wparam, FALSE},
    {WM_CAPTURECHANGED, sent},
    {WM_COMMAND, sent | parent | wparam | code, MAKEWPARAM(kButtonId, BN_CLICKED), 0, BN_CLICKED},
};

const ExpectedMessage kPostedClick[] = {
    {WM_LBUTTONDOWN, posted | wparam, MK_LBUTTON},
    {BM_SETSTATE, sent | wparam, TRUE},
    {WM_LBUTTONUP, posted},
    {BM_SETSTATE, sent | wparam, FALSE},
    {WM_CAPTURECHANGED, sent},
    {WM_COMMAND, sent | parent | code, 0, 0, BN_CLICKED},
};

const ExpectedMessage kClickWithoutCommand[] = {
    {WM_LBUTTONDOWN, sent},
    {WM_LBUTTONUP, sent},
    {WM_COMMAND, sent | parent | code, 0, 0, BN_DOUBLECLICKED},
};

void Click(HWND button)
{
    SendMessageW(button, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
    SendMessageW(button, WM_LBUTTONUP, 0, kInside);
}

} // namespace

// The button and its parent watched, with only the listed messages compared.
class RecorderButton : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(recorder.WatchWithParent(window.button));
        recorder.MatchOnlyListed(true);
    }
    ButtonOnParent window;
    MessageRecorder recorder;
};

TEST_F(RecorderButton, SentClickReachesParentAsBnClicked)
{
    Click(window.button);
    ZOTEST_EXPECT_SEQUENCE(recorder, kSentClick);
    EXPECT_TRUE(recorder.Messages().empty()) << "the comparison flushes the recorder";
}

TEST_F(RecorderButton, PostedClickIsRecordedAsPosted)
{
    PostMessageW(window.button, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
    PostMessageW(window.button, WM_LBUTTONUP, 0, kInside);
    PumpUntilIdle();
    ZOTEST_EXPECT_SEQUENCE(recorder, kPostedClick);
}

TEST_F(RecorderButton, SentClickDoesNotMatchPostedTable)
{
    Click(window.button);
    EXPECT_FALSE(CompareSequence(recorder, kPostedClick, std::size(kPostedClick)).matches);
}

TEST_F(RecorderButton, WrongTableFailsAtTheCallersFileAndLine)
{
    Click(window.button);
    ::testing::TestPartResultArray failures;
    int expectedLine = 0;
    {
        ::testing::ScopedFakeTestPartResultReporter intercept(
            ::testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &failures);
        expectedLine = __LINE__ + 1;
        ZOTEST_EXPECT_SEQUENCE(recorder, kClickWithoutCommand);
    }
    ASSERT_EQ(failures.size(), 1);
    const ::testing::TestPartResult& failure = failures.GetTestPartResult(0);
    EXPECT_TRUE(failure.nonfatally_failed());
    EXPECT_STREQ(failure.file_name(), __FILE__);
    EXPECT_EQ(failure.line_number(), expectedLine);
    const std::string message = failure.message();
    EXPECT_NE(message.find("kClickWithoutCommand"), std::string::npos) << message;
    EXPECT_NE(message.find("expected"), std::string::npos) << message;
    EXPECT_NE(message.find("actual"), std::string::npos) << message;
    EXPECT_NE(message.find("parent  sent   WM_COMMAND wParam=0x64"), std::string::npos)
        << "actual messages are listed by name";
    EXPECT_NE(message.find("left out"), std::string::npos) << "unlisted messages are counted";
    EXPECT_NE(message.find("code=5"), std::string::npos) << "the expected notification code is shown";
}

TEST_F(RecorderButton, EXPECT_NONFATAL_FAILUREseesTheMismatch)
{
    Click(window.button);
    EXPECT_NONFATAL_FAILURE(ZOTEST_EXPECT_SEQUENCE(recorder, kClickWithoutCommand), "does not match");
}

namespace {

// A plain window receiving hand-sent messages: the tables below exercise the matching rules.
struct Target {
    Target() : window(CreateSolidWindow({0, 0, 50, 50}, RGB(1, 2, 3))) { recorder.Watch(window); }
    void Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) { SendMessageW(window, message, wParam, lParam); }
    bool Matches(const std::vector<ExpectedMessage>& table)
    {
        return CompareSequence(recorder, table.data(), table.size()).matches;
    }
    ScopedWindow window;
    MessageRecorder recorder;
};

} // namespace

TEST(RecorderRules, OptionalRowsMayBeMissingOrPresent)
{
    Target target;
    target.Send(WM_APP + 1);
    target.Send(WM_APP + 3);
    EXPECT_TRUE(target.Matches({{WM_APP + 1, sent}, {WM_APP + 2, sent | optional}, {WM_APP + 3, sent}}));
    EXPECT_FALSE(target.Matches({{WM_APP + 1, sent}, {WM_APP + 2, sent}, {WM_APP + 3, sent}}));
    // An optional row that could take a later required message must leave it to that row.
    EXPECT_TRUE(target.Matches({{WM_APP + 1, sent}, {WM_APP + 3, optional}, {WM_APP + 3, sent}}));
}

TEST(RecorderRules, ExtraOrMissingMessagesFail)
{
    Target target;
    target.Send(WM_APP + 1);
    target.Send(WM_APP + 2);
    EXPECT_FALSE(target.Matches({{WM_APP + 1, sent}}));
    EXPECT_FALSE(target.Matches({{WM_APP + 1, sent}, {WM_APP + 2, sent}, {WM_APP + 3, sent}}));
    EXPECT_FALSE(target.Matches({{WM_APP + 2, sent}, {WM_APP + 1, sent}}));
    EXPECT_TRUE(target.Matches({{WM_APP + 1, sent}, {WM_APP + 2, sent}}));
}

TEST(RecorderRules, WParamLParamAndRoleAreComparedWhenFlagged)
{
    Target target;
    target.Send(WM_APP, 7, 9);
    EXPECT_TRUE(target.Matches({{WM_APP, sent | wparam | lparam, 7, 9}}));
    EXPECT_TRUE(target.Matches({{WM_APP, sent, 1, 1}}));
    EXPECT_FALSE(target.Matches({{WM_APP, sent | wparam, 8}}));
    EXPECT_FALSE(target.Matches({{WM_APP, sent | lparam, 7, 8}}));
    EXPECT_FALSE(target.Matches({{WM_APP, sent | parent}}));
    EXPECT_FALSE(target.Matches({{WM_APP, posted}}));
    EXPECT_TRUE(target.Matches({{WM_APP, 0}}));
}

TEST(RecorderRules, PlatformDifferencesResolveForTheRunningSystem)
{
    Target target;
    target.Send(WM_APP + 1);
    target.Send(WM_APP + 3);
    // Row 2 stands for a message only Windows sends: required there, optional under Wine.
    EXPECT_EQ(target.Matches({{WM_APP + 1, sent}, {WM_APP + 2, sent | wine_differs}, {WM_APP + 3, sent}}),
              RunningUnderWine());
    // A Wine-only row is optional under Wine and ignored on Windows.
    EXPECT_TRUE(target.Matches({{WM_APP + 1, sent}, {WM_APP + 2, sent | wine_only}, {WM_APP + 3, sent}}));
    target.recorder.Clear();
    target.Send(WM_APP + 1);
    target.Send(WM_APP + 2);
    EXPECT_EQ(target.Matches({{WM_APP + 1, sent}, {WM_APP + 2, sent | wine_only}}), RunningUnderWine());
}

TEST(RecorderRules, NoiseIsIgnoredUnlessListed)
{
    Target target;
    target.Send(WM_GETICON);
    target.Send(WM_APP);
    target.Send(WM_NCHITTEST);
    target.Send(0xC123); // registered message range
    EXPECT_TRUE(target.Matches({{WM_APP, sent}}));
    EXPECT_TRUE(target.Matches({{WM_GETICON, sent}, {WM_APP, sent}}));
    EXPECT_FALSE(target.Matches({{WM_APP, sent}, {WM_GETICON, sent}}));
    target.recorder.Ignore(WM_APP);
    EXPECT_TRUE(target.Matches({}));
    target.recorder.StopIgnoring(WM_APP);
    EXPECT_FALSE(target.Matches({}));
}

TEST(RecorderRules, MatchOnlyListedDropsEverythingElse)
{
    Target target;
    target.Send(WM_APP + 1);
    target.Send(WM_APP + 2);
    target.Send(WM_APP + 3);
    EXPECT_FALSE(target.Matches({{WM_APP + 2, sent}}));
    target.recorder.MatchOnlyListed(true);
    EXPECT_TRUE(target.Matches({{WM_APP + 2, sent}}));
    EXPECT_TRUE(target.Matches({{WM_APP + 1, sent}, {WM_APP + 3, sent}}));
}

TEST(RecorderRules, NotifyCodeIsTakenFromTheHeader)
{
    Target target;
    NMHDR header{target.window, 5, static_cast<UINT>(NM_CLICK)};
    target.Send(WM_NOTIFY, 5, reinterpret_cast<LPARAM>(&header));
    ASSERT_EQ(target.recorder.Messages().size(), 1u);
    EXPECT_EQ(target.recorder.Messages()[0].code, static_cast<UINT>(NM_CLICK));
    EXPECT_TRUE(target.Matches({{WM_NOTIFY, sent | code, 0, 0, static_cast<UINT>(NM_CLICK)}}));
    EXPECT_FALSE(target.Matches({{WM_NOTIFY, sent | code, 0, 0, static_cast<UINT>(NM_DBLCLK)}}));
}

TEST(RecorderRules, ParentRoleAndOtherRole)
{
    ScopedWindow parentWindow(CreateSolidWindow({0, 0, 100, 100}, RGB(1, 1, 1)));
    HWND child = CreateSolidWindow({0, 0, 10, 10}, RGB(2, 2, 2), parentWindow);
    HWND sibling = CreateSolidWindow({20, 0, 30, 10}, RGB(3, 3, 3), parentWindow);
    MessageRecorder recorder;
    ASSERT_TRUE(recorder.WatchWithParent(child));
    ASSERT_TRUE(recorder.Watch(sibling, WindowRole::Other));
    SendMessageW(parentWindow, WM_APP, 0, 0);
    SendMessageW(sibling, WM_APP, 0, 0);
    SendMessageW(child, WM_APP, 0, 0);
    const ExpectedMessage table[] = {{WM_APP, sent | parent}, {WM_APP, sent | other}, {WM_APP, sent}};
    ZOTEST_EXPECT_SEQUENCE(recorder, table);
}

TEST(RecorderLifetime, DestroyedWindowIsForgottenAfterItsLastMessages)
{
    MessageRecorder recorder;
    HWND window = CreateSolidWindow({0, 0, 10, 10}, RGB(0, 0, 0));
    ASSERT_TRUE(recorder.Watch(window));
    DestroyWindow(window);
    EXPECT_FALSE(recorder.IsWatched(window));
    EXPECT_EQ(recorder.Count(WM_DESTROY), 1u);
    EXPECT_EQ(recorder.Count(WM_NCDESTROY), 1u);
    EXPECT_FALSE(recorder.Watch(window));
    EXPECT_FALSE(recorder.Watch(nullptr));
    recorder.Unwatch(window); // no effect, no crash
}

TEST(RecorderLifetime, UnwatchStopsRecordingAndPauseSuspendsIt)
{
    Target target;
    target.recorder.Pause();
    target.Send(WM_APP);
    EXPECT_TRUE(target.recorder.Messages().empty());
    target.recorder.Resume();
    target.Send(WM_APP);
    EXPECT_EQ(target.recorder.Count(WM_APP), 1u);
    target.recorder.Unwatch(target.window);
    target.Send(WM_APP);
    EXPECT_EQ(target.recorder.Count(WM_APP), 1u);
    EXPECT_TRUE(IsWindow(target.window)) << "the window lives on without the recorder";
}

TEST(RecorderLifetime, RecorderEndingBeforeTheWindowLeavesItWorking)
{
    ScopedWindow window(CreateSolidWindow({0, 0, 10, 10}, RGB(0, 0, 0)));
    {
        MessageRecorder recorder;
        recorder.Watch(window);
    }
    EXPECT_EQ(SendMessageW(window, WM_ERASEBKGND, 0, 0), 1);
}

TEST(MessageNames, CommonMessagesHaveNames)
{
    EXPECT_EQ(MessageName(WM_COMMAND), "WM_COMMAND");
    EXPECT_EQ(MessageName(BM_SETSTATE), "BM_SETSTATE");
    EXPECT_EQ(MessageName(WM_APP + 2), "WM_APP+2");
    EXPECT_EQ(MessageName(0x0311), "0x0311") << "unnamed messages print as numbers";
    const std::string shared = MessageName(WM_USER + 2);
    EXPECT_NE(shared.find("PBM_SETPOS"), std::string::npos) << shared;
    EXPECT_NE(shared.find("TBM_GETRANGEMAX"), std::string::npos) << shared;
}

TEST(RecorderCreation, CreationMessagesOfNewWindowsAreRecorded)
{
    MessageRecorder recorder;
    recorder.WatchCreatedWindows(L"button");
    ScopedWindow parentWindow(CreateSolidWindow({0, 0, 100, 100}, RGB(1, 1, 1)));
    HWND button = CreateWindowExW(0, L"BUTTON", L"OK", WS_CHILD | BS_PUSHBUTTON, 0, 0, 50, 20, parentWindow,
                                  nullptr, nullptr, nullptr);
    recorder.StopWatchingCreatedWindows();
    EXPECT_TRUE(recorder.IsWatched(button));
    EXPECT_FALSE(recorder.IsWatched(parentWindow)) << "only the requested class is watched";
    const ExpectedMessage creation[] = {
        {WM_NCCREATE, sent},
        {WM_NCCALCSIZE, sent | optional},
        {WM_CREATE, sent},
    };
    recorder.MatchOnlyListed(true);
    ZOTEST_EXPECT_SEQUENCE(recorder, creation);
    ScopedWindow later(CreateWindowExW(0, L"BUTTON", L"", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr, nullptr, nullptr));
    EXPECT_FALSE(recorder.IsWatched(later)) << "watching creations stops on request";
}
