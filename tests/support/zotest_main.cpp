// Entry point of every test executable. Test executables may register gtest environments from
// static initialisers (::testing::AddGlobalTestEnvironment); they are set up after the common
// controls are initialised here.
#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>

int wmain(int argc, wchar_t** argv)
{
    INITCOMMONCONTROLSEX controls{sizeof(INITCOMMONCONTROLSEX),
                                  ICC_WIN95_CLASSES | ICC_DATE_CLASSES | ICC_USEREX_CLASSES | ICC_COOL_CLASSES |
                                      ICC_INTERNET_CLASSES | ICC_PAGESCROLLER_CLASS | ICC_NATIVEFNTCTL_CLASS |
                                      ICC_STANDARD_CLASSES | ICC_LINK_CLASS};
    InitCommonControlsEx(&controls);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
