#include <zotest/zotest.h>

#include <gtest/gtest-spi.h>

#include <commctrl.h>

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
