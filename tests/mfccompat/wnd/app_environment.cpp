// The application object every test of this executable runs under, started the way
// AfxWinMain starts it (the entry point belongs to the shared test support).
#include "wnd_test_support.h"

namespace {

class CTestApp : public CWinApp
{
public:
    CTestApp() : CWinApp(L"AfxWndTests") { }
};

CTestApp theApp;

class AfxEnvironment : public testing::Environment
{
public:
    void SetUp() override
    {
        AfxWinInit(::GetModuleHandleW(NULL), NULL, ::GetCommandLineW(), SW_SHOWNORMAL);
    }
};

testing::Environment* const g_environment = testing::AddGlobalTestEnvironment(new AfxEnvironment);

} // namespace

namespace wndtest {

HWND CreatePlainWindow(LPCWSTR className, DWORD style, HWND parent, int id)
{
    return ::CreateWindowExW(0, className, L"plain", style, 0, 0, 120, 40, parent,
                             reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), ::GetModuleHandleW(NULL), NULL);
}

std::string Narrow(LPCWSTR text)
{
    std::string result;
    for (; text != NULL && *text != 0; ++text)
        result += static_cast<char>(*text);
    return result;
}

void RunIdle()
{
    CWinThread* thread = AfxGetThread();
    for (LONG count = 0; thread->OnIdle(count); ++count)
    {
    }
}

} // namespace wndtest
