// CMenu against real menus: lifetime, the handle map and dead or missing menus.
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

