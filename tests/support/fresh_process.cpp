#include <zotest/fresh_process.h>

#include <gtest/gtest.h>

#include <vector>

namespace zotest {

namespace {

const wchar_t kChildVariable[] = L"ZOTEST_FRESH_CHILD";

std::wstring Widen(const std::string& text)
{
    if (text.empty())
        return std::wstring();
    const int length = MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), nullptr, 0);
    std::wstring wide(static_cast<size_t>(length), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), &wide[0], length);
    return wide;
}

// Sets (or, for null, removes) an environment variable for the lifetime of the object.
class ScopedEnvironment {
public:
    ScopedEnvironment(const wchar_t* name, const wchar_t* value) : name_(name)
    {
        wchar_t previous[1024];
        const DWORD length = GetEnvironmentVariableW(name, previous, 1024);
        hadValue_ = length > 0 && length < 1024;
        if (hadValue_)
            previous_.assign(previous, length);
        SetEnvironmentVariableW(name, value);
    }
    ~ScopedEnvironment() { SetEnvironmentVariableW(name_, hadValue_ ? previous_.c_str() : nullptr); }

private:
    const wchar_t* name_;
    bool hadValue_ = false;
    std::wstring previous_;
};

void ReadAvailable(HANDLE pipe, std::string& output)
{
    DWORD available = 0;
    while (PeekNamedPipe(pipe, nullptr, 0, nullptr, &available, nullptr) && available > 0) {
        char buffer[4096];
        DWORD got = 0;
        const DWORD wanted = available < sizeof buffer ? available : static_cast<DWORD>(sizeof buffer);
        if (!ReadFile(pipe, buffer, wanted, &got, nullptr) || got == 0)
            return;
        output.append(buffer, got);
    }
}

} // namespace

bool IsFreshProcessChild()
{
    return GetEnvironmentVariableW(kChildVariable, nullptr, 0) > 0;
}

std::string CurrentTestName()
{
    const ::testing::TestInfo* info = ::testing::UnitTest::GetInstance()->current_test_info();
    if (!info)
        return std::string();
    return std::string(info->test_suite_name()) + "." + info->name();
}

std::wstring OwnExecutable()
{
    std::vector<wchar_t> path(MAX_PATH);
    for (;;) {
        const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length == 0)
            return std::wstring();
        if (length < path.size())
            return std::wstring(path.data(), length);
        path.resize(path.size() * 2);
    }
}

ProcessRun RunProcess(const std::wstring& executable, std::wstring commandLine, DWORD timeoutMilliseconds)
{
    ProcessRun run;
    SECURITY_ATTRIBUTES inheritable{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    HANDLE readEnd = nullptr, writeEnd = nullptr;
    if (!CreatePipe(&readEnd, &writeEnd, &inheritable, 0))
        return run;
    SetHandleInformation(readEnd, HANDLE_FLAG_INHERIT, 0);

    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
    startup.hStdOutput = writeEnd;
    startup.hStdError = writeEnd;
    PROCESS_INFORMATION process{};
    const BOOL created = CreateProcessW(executable.c_str(), &commandLine[0], nullptr, nullptr, TRUE, 0, nullptr,
                                        nullptr, &startup, &process);
    CloseHandle(writeEnd);
    if (!created) {
        CloseHandle(readEnd);
        return run;
    }
    run.started = true;

    const DWORD start = GetTickCount();
    for (;;) {
        ReadAvailable(readEnd, run.output);
        if (WaitForSingleObject(process.hProcess, 20) == WAIT_OBJECT_0)
            break;
        if (GetTickCount() - start >= timeoutMilliseconds) {
            TerminateProcess(process.hProcess, 3);
            WaitForSingleObject(process.hProcess, 5000);
            run.timedOut = true;
            break;
        }
    }
    ReadAvailable(readEnd, run.output);
    GetExitCodeProcess(process.hProcess, &run.exitCode);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    CloseHandle(readEnd);
    return run;
}

ChildRun RunTestInFreshProcess(const std::string& testName, DWORD timeoutMilliseconds)
{
    ChildRun run;
    const std::wstring executable = OwnExecutable();
    if (executable.empty() || testName.empty())
        return run;

    const std::wstring commandLine = L"\"" + executable + L"\" --gtest_filter=" + Widen(testName) +
                                     L" --gtest_also_run_disabled_tests --gtest_color=no";
    ProcessRun process;
    {
        ScopedEnvironment marker(kChildVariable, Widen(testName).c_str());
        process = RunProcess(executable, commandLine, timeoutMilliseconds);
    }
    run.started = process.started;
    run.timedOut = process.timedOut;
    run.exitCode = process.exitCode;
    run.output = process.output;
    if (!run.started)
        return run;

    const bool reportedOk = run.output.find("[       OK ] " + testName) != std::string::npos;
    run.testRan = reportedOk || run.output.find("[  FAILED  ] " + testName) != std::string::npos;
    run.passed = !run.timedOut && run.exitCode == 0 && reportedOk;
    return run;
}

namespace detail {

bool HandOverToFreshProcess(const char* file, int line)
{
    if (IsFreshProcessChild())
        return false;
    const std::string name = CurrentTestName();
    const ChildRun run = RunTestInFreshProcess(name);
    if (!run.started)
        ADD_FAILURE_AT(file, line) << "could not start a fresh process for " << name;
    else if (!run.passed)
        ADD_FAILURE_AT(file, line) << name << " failed in a fresh process (exit code " << run.exitCode
                                   << (run.timedOut ? ", timed out" : "") << (run.testRan ? "" : ", test did not run")
                                   << "); its output:\n"
                                   << run.output;
    return true;
}

} // namespace detail

} // namespace zotest
