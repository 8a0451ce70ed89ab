// CMenu against real menus: lifetime, the handle map, dead or missing menus, and a frame's
// automatic enabling of its pop-ups.
#include <afxwin.h>
#include <gtest/gtest.h>

TEST(MenuLifetime, AttachDetachAndDestroyRules)
{
    CMenu menu;
    EXPECT_FALSE(menu.Attach(NULL));
    EXPECT_FALSE(menu.DestroyMenu());
    HMENU handle = ::CreatePopupMenu();
    ASSERT_TRUE(menu.Attach(handle));
    HMENU second = ::CreatePopupMenu();
    EXPECT_FALSE(menu.Attach(second)); // already attached
    ::DestroyMenu(second);
    EXPECT_EQ(handle, menu.Detach());
    EXPECT_EQ(nullptr, menu.m_hMenu);
    EXPECT_TRUE(::IsMenu(handle));
    ::DestroyMenu(handle);
    CMenu* none = nullptr;
    EXPECT_EQ(nullptr, none->GetSafeHmenu());
}

TEST(MenuHandleMap, TemporaryObjectsAreSharedAndNeverOwnTheMenu)
{
    HMENU handle = ::CreatePopupMenu();
    ::AppendMenuW(handle, MF_STRING, 40, L"x");
    CMenu* first = CMenu::FromHandle(handle);
    ASSERT_NE(nullptr, first);
    EXPECT_EQ(first, CMenu::FromHandle(handle));
    EXPECT_EQ(nullptr, CMenu::FromHandlePermanent(handle));
    EXPECT_EQ(1u, first->GetMenuItemCount());
    CMenu::DeleteTempMap();
    EXPECT_TRUE(::IsMenu(handle));
    EXPECT_EQ(nullptr, CMenu::FromHandle(NULL));
    ::DestroyMenu(handle);
}

TEST(MenuBadInput, DeadOrMissingMenusGiveDefinedResults)
{
    CMenu menu;
    EXPECT_EQ((UINT)-1, menu.GetMenuItemCount());
    CString text(L"stale");
    EXPECT_EQ(0, menu.GetMenuString(0, text, MF_BYPOSITION));
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(0, menu.GetMenuString(0, NULL, 10, MF_BYPOSITION));
    EXPECT_EQ(nullptr, menu.GetSubMenu(0));
    EXPECT_FALSE(menu.TrackPopupMenu(TPM_RETURNCMD, 0, 0, NULL));
    EXPECT_FALSE(menu.InsertMenuItem(0, NULL, TRUE));
    EXPECT_FALSE(menu.LoadMenuIndirect(NULL));
}


namespace {

const UINT kOpen = 104;
const UINT kExit = 105;

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
    ON_COMMAND(kOpen, &CommandFrame::OnOpen)
END_MESSAGE_MAP()

bool ItemEnabled(HMENU menu, UINT id)
{
    return (::GetMenuState(menu, id, MF_BYCOMMAND) & (MF_GRAYED | MF_DISABLED)) == 0;
}

} // namespace

// The skinned frame derives from CFrameWnd: its pop-ups are updated this way.
TEST(FrameMenus, AutoMenuEnableDisablesItemsWithoutHandlers)
{
    CommandFrame* frame = new CommandFrame; // deletes itself with its window
    ASSERT_TRUE(frame->Create(NULL, L"Frame", WS_OVERLAPPEDWINDOW));
    HMENU file = ::CreatePopupMenu();
    ::AppendMenuW(file, MF_STRING, kOpen, L"&Open");
    ::AppendMenuW(file, MF_STRING, kExit, L"E&xit");
    frame->SendMessage(WM_INITMENUPOPUP, (WPARAM)file, MAKELPARAM(0, FALSE));
    EXPECT_TRUE(ItemEnabled(file, kOpen));
    EXPECT_FALSE(ItemEnabled(file, kExit));

    frame->m_bAutoMenuEnable = FALSE;
    ::EnableMenuItem(file, kExit, MF_BYCOMMAND | MF_ENABLED);
    frame->SendMessage(WM_INITMENUPOPUP, (WPARAM)file, MAKELPARAM(0, FALSE));
    EXPECT_TRUE(ItemEnabled(file, kExit));
    frame->SendMessage(WM_COMMAND, kOpen);
    EXPECT_EQ(1, frame->opened);
    frame->DestroyWindow();
    ::DestroyMenu(file);
}
