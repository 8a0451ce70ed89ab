// Menus seen from windows: command-UI updates of menu items, and disabled commands.
#include "wnd_test_support.h"

namespace {

enum
{
    ID_ITEM_OPEN = 500,
    ID_ITEM_SAVE = 501,
    ID_ITEM_QUIT = 502,
};

class CMenuWnd : public CWnd
{
public:
    bool saveEnabled = false;
    bool openChecked = true;

protected:
    afx_msg void OnUpdateOpen(CCmdUI* pCmdUI) { pCmdUI->SetCheck(openChecked); }
    afx_msg void OnUpdateSave(CCmdUI* pCmdUI) { pCmdUI->Enable(saveEnabled); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CMenuWnd, CWnd)
    ON_UPDATE_COMMAND_UI(ID_ITEM_OPEN, &CMenuWnd::OnUpdateOpen)
    ON_UPDATE_COMMAND_UI(ID_ITEM_SAVE, &CMenuWnd::OnUpdateSave)
END_MESSAGE_MAP()

class MenuTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(wnd.CreateEx(0, AfxRegisterWndClass(0), L"menus", WS_OVERLAPPEDWINDOW, 0, 0, 300, 200, NULL, NULL));
        ASSERT_TRUE(bar.CreateMenu());
        ASSERT_TRUE(popup.CreatePopupMenu());
        popup.AppendMenu(MF_STRING, ID_ITEM_OPEN, L"Open");
        popup.AppendMenu(MF_STRING, ID_ITEM_SAVE, L"Save");
        popup.AppendMenu(MF_STRING, ID_ITEM_QUIT, L"Quit");
        bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(popup.m_hMenu), L"File");
        ASSERT_TRUE(wnd.SetMenu(&bar));
    }
    void TearDown() override
    {
        wnd.SetMenu(NULL);
        wnd.DestroyWindow();
        popup.Detach();   // owned by the bar
        bar.DestroyMenu();
    }
    CCmdUI ItemUI(UINT index)
    {
        CCmdUI ui;
        ui.m_pMenu = &popup;
        ui.m_nIndex = index;
        ui.m_nID = popup.GetMenuItemID(static_cast<int>(index));
        ui.m_nIndexMax = popup.GetMenuItemCount();
        return ui;
    }

    CMenuWnd wnd;
    CMenu bar;
    CMenu popup;
};

TEST_F(MenuTest, UpdateHandlersEnableAndCheckMenuItems)
{
    CCmdUI open = ItemUI(0);
    EXPECT_TRUE(open.DoUpdate(&wnd, TRUE));
    EXPECT_TRUE(popup.GetMenuState(ID_ITEM_OPEN, MF_BYCOMMAND) & MF_CHECKED);

    CCmdUI save = ItemUI(1);
    EXPECT_TRUE(save.DoUpdate(&wnd, TRUE));
    EXPECT_TRUE(popup.GetMenuState(ID_ITEM_SAVE, MF_BYCOMMAND) & MF_GRAYED);
    wnd.saveEnabled = true;
    save.DoUpdate(&wnd, TRUE);
    EXPECT_FALSE(popup.GetMenuState(ID_ITEM_SAVE, MF_BYCOMMAND) & MF_GRAYED);
}

class CCommandWnd : public CWnd
{
public:
    bool saveAllowed = false;
    int saves = 0;
protected:
    afx_msg void OnSave() { ++saves; }
    afx_msg void OnUpdateSave(CCmdUI* pCmdUI) { pCmdUI->Enable(saveAllowed); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CCommandWnd, CWnd)
    ON_COMMAND(ID_ITEM_SAVE, &CCommandWnd::OnSave)
    ON_UPDATE_COMMAND_UI(ID_ITEM_SAVE, &CCommandWnd::OnUpdateSave)
END_MESSAGE_MAP()

TEST(DisabledCommands, MenuAndAcceleratorCommandsThatAreDisabledAreNotCarriedOut)
{
    CCommandWnd wnd;
    ASSERT_TRUE(wnd.CreateEx(0, AfxRegisterWndClass(0), L"commands", WS_POPUP, 0, 0, 10, 10, NULL, NULL));
    EXPECT_EQ(1, wnd.SendMessage(WM_COMMAND, MAKEWPARAM(ID_ITEM_SAVE, 1), 0));
    EXPECT_EQ(0, wnd.saves);
    wnd.saveAllowed = true;
    wnd.SendMessage(WM_COMMAND, MAKEWPARAM(ID_ITEM_SAVE, 0), 0);
    EXPECT_EQ(1, wnd.saves);
    wnd.DestroyWindow();
}

} // namespace
