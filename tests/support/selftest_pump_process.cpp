#include <zotest/zotest.h>

using namespace zotest;

TEST(FreshProcess, DISABLED_FailsOnPurpose)
{
    ADD_FAILURE() << "deliberate failure in the child";
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
