// The theme-aware container: query answers, child registration and rescaling, CZoWnd's
// creation and sizing.
#include <gtest/gtest.h>

#include "core_test_support.h"
#include "ZoThemeMath.h"
#include "ZoUIBase.h"

using namespace ZoControls;

namespace {

class Container : public CZoWnd
{
public:
    using IZoUIBase::ChangeRegisteredWindowRect;
    using IZoUIBase::GetRegisteredWindowRect;
    using IZoUIBase::GetZoMonitorSize;
    using IZoUIBase::GetZoTheme;
    using IZoUIBase::RegisterChildWindow;
    using IZoUIBase::RemoveAllRegistered;
    using IZoUIBase::RemoveRegisterdWindow;
    using IZoUIBase::SetZoMonitorSize;
};

class UiBaseTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(container.CreateEx(0, AfxRegisterWndClass(0), L"container", WS_POPUP | WS_VISIBLE, 0, 0, 400,
                                       300, nullptr, nullptr));
        ASSERT_TRUE(first.Create(L"STATIC", L"1", WS_CHILD | WS_VISIBLE, CRect(300, 200, 310, 210), &container, 1));
        ASSERT_TRUE(second.Create(L"STATIC", L"2", WS_CHILD | WS_VISIBLE, CRect(300, 200, 310, 210), &container, 2));
    }
    void TearDown() override
    {
        if (::IsWindow(container.GetSafeHwnd()))
            container.DestroyWindow();
    }

    // The child's rectangle in the container's client coordinates.
    CRect PlaceOf(CWnd& child)
    {
        CRect rect;
        child.GetWindowRect(&rect);
        container.ScreenToClient(&rect);
        return rect;
    }

    Container container;
    CWnd first;
    CWnd second;
};

} // namespace

TEST_F(UiBaseTest, QueriesAnswerThroughLParamAndAlwaysReturnMinusOne)
{
    container.SetZoTheme(ZoTheme_2);
    container.SetZoMonitorSize(ZoMonitorSize_3M);
    int theme = 0, size = -1;
    EXPECT_EQ(container.SendMessage(WM_APP + 2, 0, reinterpret_cast<LPARAM>(&theme)), -1);
    EXPECT_EQ(container.SendMessage(WM_APP + 3, 0, reinterpret_cast<LPARAM>(&size)), -1);
    EXPECT_EQ(theme, 2);
    EXPECT_EQ(size, 1);
    // Without a place to write the answer: the same return, nothing written.
    EXPECT_EQ(container.SendMessage(WM_APP + 2, 0, 0), -1);
    EXPECT_EQ(container.SendMessage(WM_APP + 3, 0, 0), -1);
    IZoUIBase& base = container;
    EXPECT_EQ(base.OnMsgGetCurrentZoTheme(0, 0), -1);
    EXPECT_EQ(base.OnMsgGetCurrentMonitorSize(0, 0), -1);
}

TEST_F(UiBaseTest, RegistrationIsOnceAndAChangeReplacesOrRegisters)
{
    EXPECT_TRUE(container.RegisterChildWindow(&first, CRect(1, 2, 3, 4), true));
    EXPECT_FALSE(container.RegisterChildWindow(&first, CRect(5, 6, 7, 8), false));
    CRect stored;
    ASSERT_TRUE(container.GetRegisteredWindowRect(&first, stored));
    EXPECT_EQ(stored, CRect(1, 2, 3, 4));
    // A change replaces a registered rectangle, and registers a window not yet registered.
    container.ChangeRegisteredWindowRect(&first, CRect(9, 9, 19, 19), false);
    ASSERT_TRUE(container.GetRegisteredWindowRect(&first, stored));
    EXPECT_EQ(stored, CRect(9, 9, 19, 19));
    EXPECT_FALSE(container.GetRegisteredWindowRect(&second, stored));
    container.ChangeRegisteredWindowRect(&second, CRect(1, 2, 3, 4), true);
    EXPECT_TRUE(container.GetRegisteredWindowRect(&second, stored));
}

TEST_F(UiBaseTest, AtZoomOnePointTwoRectanglesScaleAsDesigned)
{
    container.SetZoMonitorSize(ZoMonitorSize_3M);
    container.RegisterChildWindow(&first, CRect(10, 10, 110, 30), false);
    container.RegisterChildWindow(&second, CRect(10, 10, 110, 30), true);
    container.ResizeRegisteredWindows();
    EXPECT_EQ(PlaceOf(first), CRect(0, 8, 120, 32));
    EXPECT_EQ(PlaceOf(second), CRect(12, 12, 132, 36));
    // Design rectangles stay as registered, so repeated resizes don't drift.
    container.ResizeRegisteredWindows();
    EXPECT_EQ(PlaceOf(second), CRect(12, 12, 132, 36));
    CRect stored;
    ASSERT_TRUE(container.GetRegisteredWindowRect(&second, stored));
    EXPECT_EQ(stored, CRect(10, 10, 110, 30));
}

TEST_F(UiBaseTest, DestroyedEmptyAndNullEntriesAreSkippedAndStayRegistered)
{
    container.SetZoMonitorSize(ZoMonitorSize_Normal);
    container.RegisterChildWindow(&first, CRect(10, 10, 110, 30), true);
    container.RegisterChildWindow(&second, CRect(50, 50, 50, 80), true); // empty: zero width
    container.RegisterChildWindow(nullptr, CRect(1, 1, 5, 5), true);
    first.DestroyWindow();
    container.ResizeRegisteredWindows();
    EXPECT_EQ(PlaceOf(second), CRect(300, 200, 310, 210));
    CRect stored;
    EXPECT_TRUE(container.GetRegisteredWindowRect(&first, stored));
}

TEST_F(UiBaseTest, SizeMessageRescalesOnlyForAPositiveClientSize)
{
    container.SetZoMonitorSize(ZoMonitorSize_Normal);
    container.RegisterChildWindow(&first, CRect(10, 10, 110, 30), true);
    container.SendMessage(WM_SIZE, SIZE_MINIMIZED, MAKELPARAM(0, 0));
    EXPECT_EQ(PlaceOf(first), CRect(300, 200, 310, 210));
    container.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(400, 0));
    EXPECT_EQ(PlaceOf(first), CRect(300, 200, 310, 210));
    container.SetWindowPos(nullptr, 0, 0, 500, 350, SWP_NOZORDER | SWP_NOMOVE);
    EXPECT_EQ(PlaceOf(first), CRect(10, 10, 110, 30));
}

TEST_F(UiBaseTest, CreationTakesTheParentsSizeClass)
{
    container.SetZoMonitorSize(ZoMonitorSize_5M);
    Container child;
    ASSERT_TRUE(child.CreateEx(0, AfxRegisterWndClass(0), L"child", WS_CHILD | WS_VISIBLE, 0, 0, 50, 50,
                               container.GetSafeHwnd(), nullptr));
    EXPECT_EQ(child.GetZoMonitorSize(), ZoMonitorSize_5M);
    EXPECT_FLOAT_EQ(child.GetZoZoomFactor(), 1.6f);
    EXPECT_EQ(child.GetZoParent(), &container);
}
