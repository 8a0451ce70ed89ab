// CFrameWnd, CMDIFrameWnd and CMDIChildWnd: creation from resources, layout, dynamic creation.
#include <afxext.h>
#include <gtest/gtest.h>
#include <zotest/resource_counter.h>

#include "frame_test_ids.h"

namespace {

CString ClassOf(HWND hwnd)
{
    wchar_t name[64] = L"";
    ::GetClassNameW(hwnd, name, 64);
    return name;
}

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

TEST(FrameCreation, CreateWithoutMenuUsesTheDefaultClass)
{
    CFrameWnd* frame = new CFrameWnd;
    ASSERT_TRUE(frame->Create(NULL, L"Plain", WS_OVERLAPPEDWINDOW, CRect(0, 0, 300, 200)));
    HWND hwnd = frame->m_hWnd;
    EXPECT_EQ(nullptr, ::GetMenu(hwnd));
    EXPECT_EQ(CString(L"Plain"), TextOf(hwnd));
    CRect window;
    ::GetWindowRect(hwnd, &window);
    EXPECT_EQ(300, window.Width());
    EXPECT_TRUE(frame->LoadAccelTable(MAKEINTRESOURCE(IDR_TEST_FRAME)));
    EXPECT_FALSE(frame->LoadAccelTable(MAKEINTRESOURCE(IDR_TEST_FRAME))); // one table per frame
    frame->DestroyWindow();
    EXPECT_FALSE(::IsWindow(hwnd));
}

TEST(FrameCreation, PreCreateWindowMayDropTheMenu)
{
    MenuLessFrame* frame = new MenuLessFrame;
    ASSERT_TRUE(frame->LoadFrame(IDR_TEST_FRAME, WS_OVERLAPPEDWINDOW));
    EXPECT_EQ(nullptr, ::GetMenu(frame->m_hWnd));
    EXPECT_EQ(nullptr, frame->m_hMenuDefault);
    frame->DestroyWindow();
}

TEST(FrameCreation, DynamicCreation)
{
    CObject* object = RUNTIME_CLASS(CFrameWnd)->CreateObject();
    ASSERT_NE(nullptr, object);
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CFrameWnd)));
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CWnd)));
    EXPECT_FALSE(object->IsKindOf(RUNTIME_CLASS(CMDIFrameWnd)));
    delete object;
    object = RUNTIME_CLASS(CMDIChildWnd)->CreateObject();
    ASSERT_NE(nullptr, object);
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CFrameWnd)));
    delete object;
}

TEST(FrameCreation, ActivateFrameShowsTheWindow)
{
    CFrameWnd* frame = new CFrameWnd;
    ASSERT_TRUE(frame->Create(NULL, L"Shown", WS_OVERLAPPEDWINDOW, CRect(0, 0, 200, 150)));
    EXPECT_FALSE(::IsWindowVisible(frame->m_hWnd));
    frame->ActivateFrame();
    EXPECT_TRUE(::IsWindowVisible(frame->m_hWnd));
    frame->ActivateFrame(SW_HIDE);
    EXPECT_FALSE(::IsWindowVisible(frame->m_hWnd));
    frame->DestroyWindow();
}

TEST(FrameLayout, PaneFillsTheClientAreaWithoutBars)
{
    CFrameWnd* frame = new CFrameWnd;
    ASSERT_TRUE(frame->Create(NULL, L"Pane", WS_OVERLAPPEDWINDOW, CRect(0, 0, 320, 240)));
    HWND pane = ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 5, 5, 10, 10, frame->m_hWnd,
                                  (HMENU)(UINT_PTR)AFX_IDW_PANE_FIRST, NULL, NULL);
    ASSERT_NE(nullptr, pane);
    frame->RecalcLayout();
    CRect client, placed;
    frame->GetClientRect(&client);
    ::GetWindowRect(pane, &placed);
    frame->ScreenToClient(&placed);
    EXPECT_EQ(client, placed);
    frame->DestroyWindow();
}

TEST(FrameLayout, DockBarTakesEachEdge)
{
    CRect remaining(0, 0, 300, 200);
    EXPECT_EQ(CRect(0, 0, 300, 26), zoafx::DockBar(remaining, CBRS_ALIGN_TOP, CSize(32767, 26)));
    EXPECT_EQ(CRect(0, 26, 300, 200), remaining);
    EXPECT_EQ(CRect(0, 180, 300, 200), zoafx::DockBar(remaining, CBRS_ALIGN_BOTTOM, CSize(32767, 20)));
    EXPECT_EQ(CRect(0, 26, 40, 180), zoafx::DockBar(remaining, CBRS_ALIGN_LEFT, CSize(40, 32767)));
    EXPECT_EQ(CRect(270, 26, 300, 180), zoafx::DockBar(remaining, CBRS_ALIGN_RIGHT, CSize(30, 32767)));
    EXPECT_EQ(CRect(40, 26, 270, 180), remaining);
    // No alignment bit: the top.
    EXPECT_EQ(CRect(40, 26, 270, 36), zoafx::DockBar(remaining, 0, CSize(5, 10)));
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

TEST(MdiFrame, ClientWindowAndActiveChild)
{
    CMDIFrameWnd* frame = new CMDIFrameWnd;
    ASSERT_TRUE(frame->LoadFrame(IDR_TEST_MDI, WS_OVERLAPPEDWINDOW));
    EXPECT_TRUE(frame->IsKindOf(RUNTIME_CLASS(CMDIFrameWnd)));
    EXPECT_TRUE(frame->IsKindOf(RUNTIME_CLASS(CFrameWnd)));
    EXPECT_FALSE(frame->IsKindOf(RUNTIME_CLASS(CMDIChildWnd)));
    ASSERT_NE(nullptr, frame->m_hWndMDIClient);
    EXPECT_EQ(0, ClassOf(frame->m_hWndMDIClient).CompareNoCase(L"MDIClient"));
    CRect client, mdiClient;
    frame->GetClientRect(&client);
    ::GetWindowRect(frame->m_hWndMDIClient, &mdiClient);
    frame->ScreenToClient(&mdiClient);
    EXPECT_EQ(client, mdiClient);

    BOOL maximised = TRUE;
    EXPECT_EQ(nullptr, frame->MDIGetActive(&maximised));
    EXPECT_FALSE(maximised);
    EXPECT_EQ(frame, frame->GetActiveFrame());
    HMENU windowMenu = frame->GetWindowMenuPopup(::GetMenu(frame->m_hWnd));
    EXPECT_EQ(::GetSubMenu(::GetMenu(frame->m_hWnd), 1), windowMenu);

    CMDIChildWnd* child = new CMDIChildWnd;
    ASSERT_TRUE(child->Create(NULL, L"Document", WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW,
                              CFrameWnd::rectDefault, frame));
    EXPECT_EQ(frame->m_hWndMDIClient, ::GetParent(child->m_hWnd));
    EXPECT_EQ(child, frame->MDIGetActive(&maximised));
    EXPECT_FALSE(maximised);
    EXPECT_EQ(child, frame->GetActiveFrame());
    EXPECT_EQ(frame, child->GetMDIFrame());
    EXPECT_TRUE(child->IsKindOf(RUNTIME_CLASS(CMDIChildWnd)));

    child->MDIMaximize();
    EXPECT_EQ(child, frame->MDIGetActive(&maximised));
    EXPECT_TRUE(maximised);
    HWND childWindow = child->m_hWnd;
    child->MDIDestroy(); // deletes the object too
    EXPECT_FALSE(::IsWindow(childWindow));
    EXPECT_EQ(nullptr, frame->MDIGetActive());
    frame->DestroyWindow();
}

TEST(MdiFrame, ChildNeedsAnMdiParent)
{
    CMDIChildWnd* child = new CMDIChildWnd;
    EXPECT_FALSE(child->Create(NULL, L"Orphan"));
    EXPECT_EQ(nullptr, child->m_hWnd);
    delete child;
}

TEST(FrameLifetime, CreateDestroyCyclesLeakNothing)
{
    ZOTEST_EXPECT_NO_LEAKS(4, [] {
        CFrameWnd* frame = new CFrameWnd;
        if (frame->LoadFrame(IDR_TEST_FRAME, WS_OVERLAPPEDWINDOW)) {
            CToolBar* bar = new CToolBar;
            bar->CreateEx(frame);
            bar->LoadToolBar(IDR_TEST_FRAME);
            frame->RecalcLayout();
            frame->DestroyWindow();
            delete bar;
        } else {
            delete frame;
        }
    });
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
