#include <zotest/zotest.h>

using namespace zotest;

namespace {

struct Target {
    Target() : window(CreateSolidWindow({0, 0, 20, 20}, RGB(0, 0, 0))) { recorder.Watch(window); }
    ScopedWindow window;
    MessageRecorder recorder;
};

bool g_environmentSetUp = false;

// Test executables register their environments from static initialisers, as this one does.
class FlagEnvironment : public ::testing::Environment {
public:
    void SetUp() override { g_environmentSetUp = true; }
};
::testing::Environment* const g_environment = ::testing::AddGlobalTestEnvironment(new FlagEnvironment);

} // namespace

TEST(EntryPoint, EnvironmentsFromStaticInitialisersAreSetUp)
{
    EXPECT_NE(g_environment, nullptr);
    EXPECT_TRUE(g_environmentSetUp);
}

TEST(EntryPoint, CommonControlClassesAreRegistered)
{
    for (const wchar_t* name : {WC_LISTVIEWW, WC_HEADERW, TRACKBAR_CLASSW, PROGRESS_CLASSW, UPDOWN_CLASSW,
                                WC_TABCONTROLW, TOOLTIPS_CLASSW, WC_TREEVIEWW}) {
        ScopedWindow control(CreateWindowExW(0, name, L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr));
        EXPECT_TRUE(control.get() != nullptr) << "cannot create a window of class " << static_cast<const void*>(name);
    }
}

TEST(Pump, PumpUntilIdleDispatchesWhatIsQueued)
{
    Target target;
    PumpUntilIdle();
    target.recorder.Clear();
    for (int i = 0; i < 3; ++i)
        PostMessageW(target.window, WM_APP, i, 0);
    EXPECT_GE(PumpUntilIdle(), 3);
    EXPECT_EQ(target.recorder.Count(WM_APP), 3u);
    EXPECT_EQ(PumpUntilIdle(), 0) << "nothing is left";
}

TEST(Pump, PumpUntilIdleStopsAtItsMessageBound)
{
    Target target;
    PumpUntilIdle();
    for (int i = 0; i < 5; ++i)
        PostMessageW(target.window, WM_APP, i, 0);
    EXPECT_EQ(PumpUntilIdle(1000, 2), 2);
    EXPECT_EQ(PumpUntilIdle(), 3);
}

TEST(Pump, PumpForLetsATimerFire)
{
    Target target;
    SetTimer(target.window, 1, 10, nullptr);
    PumpFor(200);
    KillTimer(target.window, 1);
    EXPECT_GE(target.recorder.Count(WM_TIMER), 1u);
}

TEST(Pump, PumpUntilReportsTheCondition)
{
    Target target;
    PostMessageW(target.window, WM_APP, 0, 0);
    EXPECT_TRUE(PumpUntil([&] { return target.recorder.Count(WM_APP) == 1; }, 1000));
    EXPECT_FALSE(PumpUntil([] { return false; }, 30));
    EXPECT_FALSE(PumpUntil(std::function<bool()>(), 30));
}

TEST(Pump, QuitRequestIsLeftInTheQueue)
{
    PostQuitMessage(7);
    PumpUntilIdle();
    PumpFor(10);
    MSG message;
    ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 7u);
}

namespace {
int g_runsInThisProcess = 0;
}

TEST(FreshProcess, DISABLED_PassesOnPurpose)
{
    EXPECT_TRUE(IsFreshProcessChild());
}

TEST(FreshProcess, DISABLED_FailsOnPurpose)
{
    ADD_FAILURE() << "deliberate failure in the child";
}

TEST(FreshProcess, BodyRunsInAChildProcess)
{
    ZOTEST_RUN_IN_FRESH_PROCESS();
    // Only the child gets here, so this process-wide counter starts from zero.
    EXPECT_TRUE(IsFreshProcessChild());
    EXPECT_EQ(++g_runsInThisProcess, 1);
}

TEST(FreshProcess, PassingChildIsReportedAsPassed)
{
    const ChildRun run = RunTestInFreshProcess("FreshProcess.DISABLED_PassesOnPurpose");
    EXPECT_TRUE(run.started);
    EXPECT_TRUE(run.testRan);
    EXPECT_TRUE(run.passed) << run.output;
    EXPECT_EQ(run.exitCode, 0u);
}

TEST(FreshProcess, FailingChildIsReportedWithItsOutput)
{
    const ChildRun run = RunTestInFreshProcess("FreshProcess.DISABLED_FailsOnPurpose");
    EXPECT_TRUE(run.started);
    EXPECT_TRUE(run.testRan);
    EXPECT_FALSE(run.passed);
    EXPECT_NE(run.exitCode, 0u);
    EXPECT_NE(run.output.find("deliberate failure in the child"), std::string::npos) << run.output;
}

TEST(FreshProcess, UnknownTestDoesNotCountAsPassed)
{
    const ChildRun run = RunTestInFreshProcess("FreshProcess.NoSuchTest");
    EXPECT_TRUE(run.started);
    EXPECT_FALSE(run.testRan);
    EXPECT_FALSE(run.passed);
    EXPECT_FALSE(RunTestInFreshProcess("").started);
}
