// CFrameWnd, CMDIFrameWnd and CMDIChildWnd: creation from resources, layout, dynamic creation.
#include <afxext.h>
#include <gtest/gtest.h>
#include <zotest/resource_counter.h>

#include "frame_test_ids.h"

namespace {

CString TextOf(HWND hwnd)
{
    wchar_t text[128] = L"";
    ::GetWindowTextW(hwnd, text, 128);
    return text;
}

// Like a skinned frame: it never shows a menu bar, whatever it was created with.
class MenuLessFrame : public CFrameWnd
{
protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override
    {
        if (!CFrameWnd::PreCreateWindow(cs))
            return FALSE;
        if (cs.hMenu != NULL) {
            ::DestroyMenu(cs.hMenu);
            cs.hMenu = NULL;
        }
        return TRUE;
    }
};

} // namespace

TEST(FrameCreation, LoadFrameTakesMenuTitleAndAccelerators)
{
    CFrameWnd* frame = new CFrameWnd;
    ASSERT_TRUE(frame->LoadFrame(IDR_TEST_FRAME, WS_OVERLAPPEDWINDOW));
    HWND hwnd = frame->m_hWnd;
    HMENU menu = ::GetMenu(hwnd);
    ASSERT_NE(nullptr, menu);
    EXPECT_EQ(2, ::GetMenuItemCount(menu));
    EXPECT_EQ(menu, frame->m_hMenuDefault);
    EXPECT_EQ(CString(L"Test Frame"), frame->m_strTitle);
    EXPECT_EQ(CString(L"Test Frame"), TextOf(hwnd));
    EXPECT_NE(nullptr, frame->m_hAccelTable);
    EXPECT_TRUE(frame->IsFrameWnd());
    EXPECT_EQ(frame, frame->GetActiveFrame());
    EXPECT_TRUE(frame->GetExStyle() & WS_EX_CLIENTEDGE);
    EXPECT_EQ(frame, CWnd::FromHandlePermanent(hwnd));
    frame->DestroyWindow(); // the frame deletes itself
    EXPECT_FALSE(::IsWindow(hwnd));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(hwnd));
}

TEST(FrameCreation, MissingResourcesFailCleanly)
{
    CFrameWnd* frame = new CFrameWnd;
    EXPECT_FALSE(frame->LoadFrame(IDR_MISSING));
    EXPECT_EQ(nullptr, frame->m_hWnd);
    EXPECT_FALSE(frame->LoadAccelTable(MAKEINTRESOURCE(IDR_MISSING)));
    delete frame;
}

TEST(FrameCreation, PreCreateWindowMayDropTheMenu)
{
    MenuLessFrame* frame = new MenuLessFrame;
    ASSERT_TRUE(frame->LoadFrame(IDR_TEST_FRAME, WS_OVERLAPPEDWINDOW));
    EXPECT_EQ(nullptr, ::GetMenu(frame->m_hWnd));
    EXPECT_EQ(nullptr, frame->m_hMenuDefault);
    frame->DestroyWindow();
}

TEST(FrameLayout, DockBarNeverInvertsWhatIsLeft)
{
    CRect remaining(0, 0, 100, 30);
    EXPECT_EQ(CRect(0, 0, 100, 30), zoafx::DockBar(remaining, CBRS_ALIGN_TOP, CSize(32767, 50)));
    EXPECT_EQ(0, remaining.Height());
    EXPECT_EQ(CRect(0, 30, 100, 30), zoafx::DockBar(remaining, CBRS_ALIGN_TOP, CSize(32767, 10)));
    CRect inverted(10, 10, 0, 0);
    CRect bar = zoafx::DockBar(inverted, CBRS_ALIGN_LEFT, CSize(-5, -5));
    EXPECT_EQ(bar.left, bar.right);
    CRect empty(0, 0, 50, 50);
    EXPECT_EQ(CRect(0, 50, 50, 50), zoafx::DockBar(empty, CBRS_ALIGN_BOTTOM, CSize(10, -3)));
}

TEST(MdiFrame, ChildNeedsAnMdiParent)
{
    CMDIChildWnd* child = new CMDIChildWnd;
    EXPECT_FALSE(child->Create(NULL, L"Orphan"));
    EXPECT_EQ(nullptr, child->m_hWnd);
    delete child;
}

namespace {

// Handles "Open" only; "Exit" has neither a command nor an update handler.
class CommandFrame : public CFrameWnd
{
public:
    int opened = 0;

protected:
    afx_msg void OnOpen() { ++opened; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CommandFrame, CFrameWnd)
    ON_COMMAND(ID_TEST_OPEN, &CommandFrame::OnOpen)
END_MESSAGE_MAP()

bool ItemEnabled(HMENU menu, UINT id)
{
    return (::GetMenuState(menu, id, MF_BYCOMMAND) & (MF_GRAYED | MF_DISABLED)) == 0;
}

} // namespace

TEST(FrameMenus, AutoMenuEnableDisablesItemsWithoutHandlers)
{
    CommandFrame* frame = new CommandFrame;
    ASSERT_TRUE(frame->LoadFrame(IDR_TEST_FRAME, WS_OVERLAPPEDWINDOW));
    HMENU file = ::GetSubMenu(::GetMenu(frame->m_hWnd), 0);
    ASSERT_NE(nullptr, file);
    frame->SendMessage(WM_INITMENUPOPUP, (WPARAM)file, MAKELPARAM(0, FALSE));
    EXPECT_TRUE(ItemEnabled(file, ID_TEST_OPEN));
    EXPECT_FALSE(ItemEnabled(file, ID_TEST_EXIT));

    frame->m_bAutoMenuEnable = FALSE;
    ::EnableMenuItem(file, ID_TEST_EXIT, MF_BYCOMMAND | MF_ENABLED);
    frame->SendMessage(WM_INITMENUPOPUP, (WPARAM)file, MAKELPARAM(0, FALSE));
    EXPECT_TRUE(ItemEnabled(file, ID_TEST_EXIT));
    frame->SendMessage(WM_COMMAND, ID_TEST_OPEN);
    EXPECT_EQ(1, frame->opened);
    frame->DestroyWindow();
}
