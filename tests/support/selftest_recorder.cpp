#include <zotest/zotest.h>

#include <gtest/gtest-spi.h>

using namespace zotest;

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

// A sequence check that does not match fails the test where the table is checked, naming the
// table and listing what arrived.
TEST(RecorderRules, MismatchFailsAtTheCallersLine)
{
    Target target;
    target.Send(WM_APP + 1, 7);
    static const ExpectedMessage kWrongParameter[] = {{WM_APP + 1, sent | wparam, 8}};
    ::testing::TestPartResultArray failures;
    int expectedLine = 0;
    {
        ::testing::ScopedFakeTestPartResultReporter intercept(
            ::testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &failures);
        expectedLine = __LINE__ + 1;
        ZOTEST_EXPECT_SEQUENCE(target.recorder, kWrongParameter);
    }
    ASSERT_EQ(failures.size(), 1);
    const ::testing::TestPartResult& failure = failures.GetTestPartResult(0);
    EXPECT_TRUE(failure.nonfatally_failed());
    EXPECT_EQ(failure.line_number(), expectedLine);
    const std::string message = failure.message();
    EXPECT_NE(message.find("kWrongParameter"), std::string::npos) << message;
    EXPECT_NE(message.find("wParam=0x7"), std::string::npos) << message;
}
