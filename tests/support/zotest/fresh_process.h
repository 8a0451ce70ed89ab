// Running a test case in a fresh process (for behaviour a process caches once, such as a marker
// file read at first use).
//   ZOTEST_RUN_IN_FRESH_PROCESS()   first statement of a TEST: in the test process it re-launches
//                                   this executable for just this test and returns; in that child
//                                   it does nothing and the test body runs
//   RunTestInFreshProcess           non-asserting: run any test (DISABLED_ ones too) in a child
//   IsFreshProcessChild             true inside such a child
//   RunProcess / OwnExecutable      any program run with its output collected and a time-out
// The child is told by the environment variable ZOTEST_FRESH_CHILD (the test's full name).
#pragma once

#include <windows.h>

#include <string>

namespace zotest {

struct ChildRun {
    bool started = false;   // the child process could be created
    bool timedOut = false;  // killed after the time-out
    bool testRan = false;   // the child's output shows the test finished
    bool passed = false;    // exit code 0 and the test reported OK
    DWORD exitCode = 0;
    std::string output;     // the child's stdout and stderr
};

// Any program run to its end or killed after the time-out, its stdout and stderr collected.
struct ProcessRun {
    bool started = false;
    bool timedOut = false;
    DWORD exitCode = 0;
    std::string output;
};
// `commandLine` starts with the program's own (quoted) name, as CreateProcess expects.
ProcessRun RunProcess(const std::wstring& executable, std::wstring commandLine, DWORD timeoutMilliseconds);
// The full path of the running executable.
std::wstring OwnExecutable();

// `testName` is "Suite.Name" as gtest prints it.
ChildRun RunTestInFreshProcess(const std::string& testName, DWORD timeoutMilliseconds = 120000);
bool IsFreshProcessChild();
std::string CurrentTestName();

namespace detail {
// True when the caller should return: the test ran (and was judged) in a child process.
bool HandOverToFreshProcess(const char* file, int line);
} // namespace detail

} // namespace zotest

// The if/else shape keeps the macro safe inside an unbraced if.
#define ZOTEST_RUN_IN_FRESH_PROCESS()                                      \
    if (!::zotest::detail::HandOverToFreshProcess(__FILE__, __LINE__)) { \
    } else                                                                 \
        return
