#include <zotest/zotest.h>

#include <cwctype>

using namespace zotest;

namespace {

std::wstring ModuleOfWindowProcedure(HWND window)
{
    HMODULE module = nullptr;
    const auto procedure = reinterpret_cast<LPCWSTR>(GetWindowLongPtrW(window, GWLP_WNDPROC));
    if (!GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                            procedure, &module))
        return std::wstring();
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(module, path, MAX_PATH);
    std::wstring name(path);
    for (wchar_t& c : name)
        c = static_cast<wchar_t>(std::towlower(c));
    return name.substr(name.find_last_of(L'\\') + 1);
}

HWND CreateButton()
{
    return CreateWindowExW(0, L"BUTTON", L"OK", WS_POPUP | BS_PUSHBUTTON, 0, 0, 80, 24, nullptr, nullptr, nullptr,
                           nullptr);
}

} // namespace

TEST(TestWindows, CommonControls6ContextGivesVersion6Buttons)
{
    ScopedWindow classic(CreateButton());
    SIZE ideal{};
    EXPECT_FALSE(SendMessageW(classic, BCM_GETIDEALSIZE, 0, reinterpret_cast<LPARAM>(&ideal)))
        << "without a manifest the classic button has no ideal size";
    ScopedWindow themed;
    {
        ScopedCommonControls6 context;
        ASSERT_TRUE(context.active());
        themed.Reset(CreateButton());
    }
    ASSERT_TRUE(themed.get());
    EXPECT_TRUE(SendMessageW(themed, BCM_GETIDEALSIZE, 0, reinterpret_cast<LPARAM>(&ideal)));
    EXPECT_EQ(ModuleOfWindowProcedure(themed), L"comctl32.dll");
    EXPECT_NE(ModuleOfWindowProcedure(classic), L"comctl32.dll");
}
