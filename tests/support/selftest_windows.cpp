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

// Every test executable carries the common-controls 6 manifest: the stock classes are comctl32's
// version 6 ones (BCM_GETIDEALSIZE answers), as in a Visual Studio host.
TEST(TestWindows, StockControlsAreCommonControls6)
{
    ScopedWindow button(CreateButton());
    ASSERT_TRUE(button.get());
    SIZE ideal{};
    EXPECT_TRUE(SendMessageW(button, BCM_GETIDEALSIZE, 0, reinterpret_cast<LPARAM>(&ideal)));
    EXPECT_EQ(ModuleOfWindowProcedure(button), L"comctl32.dll");
}
