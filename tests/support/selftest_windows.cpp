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

TEST(TestWindows, SolidWindowKeepsAndChangesItsColour)
{
    ScopedWindow window(CreateSolidWindow({0, 0, 30, 20}, RGB(10, 20, 30)));
    EXPECT_EQ(SolidWindowColor(window), RGB(10, 20, 30));
    SetSolidWindowColor(window, RGB(40, 50, 60));
    ZOTEST_EXPECT_FILL(RenderClient(window), (RECT{0, 0, 30, 20}), RGB(40, 50, 60));
    EXPECT_TRUE(GetWindowLongW(window, GWL_STYLE) & WS_VISIBLE);
    SetSolidWindowColor(nullptr, 0); // no window, no effect
}

TEST(TestWindows, ScopedWindowDestroysOnceAndToleratesEarlyDestruction)
{
    HWND window = CreateSolidWindow({0, 0, 10, 10}, 0);
    {
        ScopedWindow owner(window);
        ScopedWindow moved(std::move(owner));
        EXPECT_EQ(owner.get(), nullptr);
        EXPECT_EQ(moved.get(), window);
    }
    EXPECT_FALSE(IsWindow(window));
    ScopedWindow early(CreateSolidWindow({0, 0, 10, 10}, 0));
    DestroyWindow(early);
    early.Reset(); // already gone: nothing happens
    EXPECT_EQ(early.get(), nullptr);
}

TEST(TestWindows, WineIsDetectedThroughNtdll)
{
    const bool exported = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
    EXPECT_EQ(RunningUnderWine(), exported);
    if (RunningUnderWine()) {
        EXPECT_EQ(GdiCountSource(), CountSource::WineHandleTable) << "GetGuiResources reports 0 under Wine";
    }
}

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
