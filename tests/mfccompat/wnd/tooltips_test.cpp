// Tool tips of EnableToolTips: the hit test names the child control under a point, and the
// thread's tool-tip control follows the mouse from control to control.
#include "wnd_test_support.h"

namespace {

enum { IDC_TIPPED = 90, IDC_LABEL = 91 };

class CTipParent : public CWnd
{
public:
    using CWnd::OnToolHitTest;
};

class ToolTipTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(parent.CreateEx(0, AfxRegisterWndClass(0), L"tips", WS_POPUP | WS_VISIBLE, 600, 400, 200, 100, NULL, NULL));
        button = wndtest::CreatePlainWindow(L"BUTTON", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, parent.m_hWnd, IDC_TIPPED);
        ::MoveWindow(button, 10, 10, 50, 30, FALSE);
        label = wndtest::CreatePlainWindow(L"STATIC", WS_CHILD | WS_VISIBLE, parent.m_hWnd, IDC_LABEL);
        ::MoveWindow(label, 100, 10, 50, 30, FALSE);
    }
    void TearDown() override { parent.DestroyWindow(); }

    MSG MouseMoveAt(HWND target, POINT client)
    {
        MSG msg = {};
        msg.hwnd = target;
        msg.message = WM_MOUSEMOVE;
        msg.lParam = MAKELPARAM(client.x, client.y);
        msg.pt = client;
        ::ClientToScreen(target, &msg.pt);
        return msg;
    }
    // The tool-tip control owned by the parent, if any.
    HWND ToolTip()
    {
        HWND found = NULL;
        for (HWND hWnd = ::GetTopWindow(NULL); hWnd != NULL; hWnd = ::GetWindow(hWnd, GW_HWNDNEXT))
        {
            wchar_t name[64] = L"";
            ::GetClassNameW(hWnd, name, 64);
            if (_wcsicmp(name, TOOLTIPS_CLASSW) == 0 && ::GetWindow(hWnd, GW_OWNER) == parent.m_hWnd)
                found = hWnd;
        }
        return found;
    }

    CTipParent parent;
    HWND button = NULL;
    HWND label = NULL;
};

TEST_F(ToolTipTest, HitTestNamesTheChildControlUnderThePoint)
{
    TOOLINFO info = {};
    info.cbSize = TTTOOLINFOW_V2_SIZE;
    EXPECT_EQ(IDC_TIPPED, parent.OnToolHitTest(CPoint(20, 20), &info));
    EXPECT_EQ(parent.m_hWnd, info.hwnd);
    EXPECT_EQ(reinterpret_cast<UINT_PTR>(button), info.uId);
    EXPECT_TRUE(info.uFlags & TTF_IDISHWND);
    EXPECT_FALSE(info.uFlags & TTF_NOTBUTTON);
    EXPECT_EQ(LPSTR_TEXTCALLBACKW, info.lpszText);

    TOOLINFO labelInfo = {};
    EXPECT_EQ(IDC_LABEL, parent.OnToolHitTest(CPoint(110, 20), &labelInfo));
    EXPECT_TRUE(labelInfo.uFlags & TTF_NOTBUTTON) << "a static is no button";

    EXPECT_EQ(-1, parent.OnToolHitTest(CPoint(80, 80), NULL));
}

TEST_F(ToolTipTest, EnabledWindowGetsOneToolForTheControlUnderTheMouse)
{
    EXPECT_TRUE(parent.EnableToolTips(TRUE));
    MSG overButton = MouseMoveAt(button, POINT{ 5, 5 });
    EXPECT_FALSE(parent.PreTranslateMessage(&overButton));
    HWND tip = ToolTip();
    ASSERT_NE(nullptr, tip);
    EXPECT_EQ(1, ::SendMessageW(tip, TTM_GETTOOLCOUNT, 0, 0));
    TTTOOLINFOW tool = {};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    ASSERT_TRUE(::SendMessageW(tip, TTM_ENUMTOOLSW, 0, reinterpret_cast<LPARAM>(&tool)));
    EXPECT_EQ(reinterpret_cast<UINT_PTR>(button), tool.uId);

    MSG overNothing = MouseMoveAt(parent.m_hWnd, POINT{ 80, 80 });
    parent.PreTranslateMessage(&overNothing);
    EXPECT_EQ(0, ::SendMessageW(tip, TTM_GETTOOLCOUNT, 0, 0));

    EXPECT_FALSE(parent.EnableToolTips(FALSE));
    EXPECT_EQ(nullptr, ToolTip());
}

TEST_F(ToolTipTest, WindowWithoutToolTipsCreatesNoToolTipControl)
{
    MSG overButton = MouseMoveAt(button, POINT{ 5, 5 });
    parent.PreTranslateMessage(&overButton);
    EXPECT_EQ(nullptr, ToolTip());
}

} // namespace
