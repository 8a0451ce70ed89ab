// How a control learns its theme and size class: asking its parent, measuring its monitor,
// or obeying a fixed-mode marker file beside the executable.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include <zotest/fresh_process.h>
#include <zotest/test_window.h>

#include "core_test_support.h"
#include "ZoThemeMath.h"
#include "ZoUIBase.h"

using namespace ZoControls;

namespace {

// A container whose theme and size class the test sets.
class AnsweringContainer : public CZoWnd
{
public:
    using IZoUIBase::SetZoMonitorSize;
    using IZoUIBase::GetZoMonitorSize;
};

const DWORD kPopup = WS_POPUP | WS_VISIBLE;

bool CreateContainer(CZoWnd& wnd, CWnd* parent = nullptr)
{
    const DWORD style = parent ? (WS_CHILD | WS_VISIBLE) : kPopup;
    return wnd.CreateEx(0, AfxRegisterWndClass(0), L"container", style, 0, 0, 300, 200,
                        parent ? parent->GetSafeHwnd() : nullptr, nullptr) != FALSE;
}

bool CreateChildStatic(CWnd& child, CWnd* parent)
{
    return child.Create(L"STATIC", L"x", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), parent, 1) != FALSE;
}

// The primary monitor's size in pixels.
SIZE PrimaryMonitorSize()
{
    MONITORINFO info = {};
    info.cbSize = sizeof(info);
    const POINT origin = {0, 0};
    ::GetMonitorInfoW(::MonitorFromPoint(origin, MONITOR_DEFAULTTOPRIMARY), &info);
    return SIZE{info.rcMonitor.right - info.rcMonitor.left, info.rcMonitor.bottom - info.rcMonitor.top};
}

E_ZoMonitorSize PrimaryMonitorClass()
{
    const SIZE size = PrimaryMonitorSize();
    return ZoMonitorSizeForArea(static_cast<long long>(size.cx) * size.cy);
}

} // namespace

// A container and a static child in it; `plainParent` holds the child under a window that
// answers nothing instead.
class QueryTest : public testing::Test
{
protected:
    void TearDown() override
    {
        if (::IsWindow(container.GetSafeHwnd()))
            container.DestroyWindow();
    }
    void CreateChildOfContainer()
    {
        ASSERT_TRUE(CreateContainer(container));
        ASSERT_TRUE(CreateChildStatic(child, &container));
    }
    void CreateChildOfPlainParent()
    {
        ASSERT_TRUE(CreateChildStatic(child, CWnd::FromHandle(plainParent)));
    }
    zotest::ScopedWindow plainParent{zotest::CreateSolidWindow(RECT{0, 0, 200, 100}, RGB(1, 2, 3))};
    AnsweringContainer container;
    CWnd child;
};

TEST_F(QueryTest, PlainParentLeavesThemeZeroAndMeasuresTheMonitor)
{
    ASSERT_NO_FATAL_FAILURE(CreateChildOfPlainParent());
    EXPECT_EQ(ZoGetCurrentThemeIndex(&child), ZoTheme_Default);
    EXPECT_EQ(ZoGetCurrentMonitorSize(&child, false), PrimaryMonitorClass());
    EXPECT_EQ(ZoGetCurrentMonitorSize(&child, true), PrimaryMonitorClass());
    EXPECT_EQ(ZoGetCurrentMonitorSize(nullptr, false), PrimaryMonitorClass());
    child.DestroyWindow();
    EXPECT_EQ(ZoGetCurrentMonitorSize(&child, false), PrimaryMonitorClass());
}

TEST_F(QueryTest, ContainerAnswersItsThemeAndSizeClass)
{
    container.SetZoTheme(ZoTheme_2);
    ASSERT_NO_FATAL_FAILURE(CreateChildOfContainer());
    EXPECT_EQ(ZoGetCurrentThemeIndex(&child), ZoTheme_2);
    container.SetZoMonitorSize(ZoMonitorSize_5M);
    EXPECT_EQ(ZoGetCurrentMonitorSize(&child, false), ZoMonitorSize_5M);
    container.SetZoMonitorSize(ZoMonitorSize_3M);
    EXPECT_EQ(ZoGetCurrentMonitorSize(&child, false), ZoMonitorSize_3M);
    // Still undecided counts as no answer.
    container.SetZoMonitorSize(ZoMonitorSize_Unknown);
    EXPECT_EQ(ZoGetCurrentMonitorSize(&child, false), PrimaryMonitorClass());
}

TEST_F(QueryTest, WindowWithoutParentOrWindowAtAllGivesThemeZero)
{
    container.SetZoTheme(ZoTheme_1);
    ASSERT_TRUE(CreateContainer(container));
    EXPECT_EQ(ZoGetCurrentThemeIndex(&container), ZoTheme_Default); // asks the parent, and there is none
    EXPECT_EQ(ZoGetCurrentThemeIndex(nullptr), ZoTheme_Default);
    container.DestroyWindow();
    EXPECT_EQ(ZoGetCurrentThemeIndex(&container), ZoTheme_Default);
}

// Registered once per screen size in CMakeLists.txt with ZO_SCREEN=WxH; without it the
// default 1280x1024 screen of the test run.
TEST(MonitorOnScreen, ClassMatchesTheScreenSize)
{
    const char* screen = std::getenv("ZO_SCREEN");
    const std::string registered = screen && *screen ? screen : "1280x1024";
    int width = 0, height = 0;
    ASSERT_EQ(sscanf(registered.c_str(), "%dx%d", &width, &height), 2) << registered;
    const SIZE actual = PrimaryMonitorSize();
    ASSERT_EQ(actual.cx, width) << "monitor is not the registered " << registered;
    ASSERT_EQ(actual.cy, height) << "monitor is not the registered " << registered;

    E_ZoMonitorSize expected = ZoMonitorSize_Unknown;
    if (registered == "1280x1024" || registered == "1920x1080")
        expected = ZoMonitorSize_Normal;
    else if (registered == "2560x1440")
        expected = ZoMonitorSize_3M;
    else if (registered == "3840x2160")
        expected = ZoMonitorSize_5M;
    ASSERT_NE(expected, ZoMonitorSize_Unknown) << "no expectation for " << registered;

    zotest::ScopedWindow parent(zotest::CreateSolidWindow(RECT{0, 0, 200, 100}, RGB(1, 2, 3)));
    EXPECT_EQ(ZoGetCurrentMonitorSize(CWnd::FromHandle(parent), true), expected);
    AnsweringContainer container;
    ASSERT_TRUE(CreateContainer(container));
    EXPECT_EQ(container.GetZoMonitorSize(), expected);
    EXPECT_FLOAT_EQ(container.GetZoZoomFactor(), ZoZoomFactorOf(expected));
    container.DestroyWindow();
}

// The fixed mode is read once per process, so each of these runs in a fresh process.
namespace {

std::wstring MarkerPath(int mode)
{
    return coretest::ExePath() + L".ZoCtrl.FixedMode." + std::to_wstring(mode);
}

} // namespace

TEST(FixedMode, LowestMarkerWinsForEveryWindowAndIsReadOnce)
{
    ZOTEST_RUN_IN_FRESH_PROCESS();
    ASSERT_TRUE(coretest::WriteTextFile(MarkerPath(3), ""));
    ASSERT_TRUE(coretest::WriteTextFile(MarkerPath(2), "contents are never read"));

    AnsweringContainer container;
    ASSERT_TRUE(CreateContainer(container));
    container.SetZoMonitorSize(ZoMonitorSize_5M);
    CWnd child;
    ASSERT_TRUE(CreateChildStatic(child, &container));
    const E_ZoMonitorSize withMarkers = ZoGetCurrentMonitorSize(&child, false);
    const E_ZoMonitorSize forNull = ZoGetCurrentMonitorSize(nullptr, true);

    // Markers appearing or vanishing later change nothing.
    coretest::WriteTextFile(MarkerPath(1), "");
    coretest::RemoveTestFile(MarkerPath(2));
    const E_ZoMonitorSize afterChange = ZoGetCurrentMonitorSize(&child, true);
    coretest::RemoveTestFile(MarkerPath(1));
    coretest::RemoveTestFile(MarkerPath(3));
    container.DestroyWindow();

    EXPECT_EQ(withMarkers, ZoMonitorSize_3M);
    EXPECT_EQ(forNull, ZoMonitorSize_3M);
    EXPECT_EQ(afterChange, ZoMonitorSize_3M);
}
