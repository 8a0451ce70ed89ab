// CMenu against real menus: building, queries, modifying, the handle map and resources.
#include <afxwin.h>
#include <gtest/gtest.h>

#include "frame_test_ids.h"

namespace {

MENUITEMINFO ItemInfo(UINT mask)
{
    MENUITEMINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = mask;
    return info;
}

} // namespace

TEST(MenuModify, RadioItemMovesTheCheck)
{
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    for (UINT id = 50; id < 53; id++)
        ASSERT_TRUE(menu.AppendMenu(MF_STRING, id, L"choice"));
    ASSERT_TRUE(menu.CheckMenuRadioItem(0, 2, 0, MF_BYPOSITION));
    ASSERT_TRUE(menu.CheckMenuRadioItem(50, 52, 52, MF_BYCOMMAND));
    MENUITEMINFO info = ItemInfo(MIIM_FTYPE | MIIM_STATE);
    ASSERT_TRUE(menu.GetMenuItemInfo(2, &info, TRUE));
    EXPECT_TRUE(info.fType & MFT_RADIOCHECK);
    EXPECT_TRUE(info.fState & MFS_CHECKED);
    ASSERT_TRUE(menu.GetMenuItemInfo(50, &info));
    EXPECT_FALSE(info.fState & MFS_CHECKED);
}

TEST(MenuModify, BitmapItem)
{
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(8, 8, 1, 1, NULL));
    ASSERT_TRUE(menu.AppendMenu(MF_STRING, 30, &bitmap));
    MENUITEMINFO info = ItemInfo(MIIM_FTYPE | MIIM_BITMAP);
    ASSERT_TRUE(menu.GetMenuItemInfo(30, &info));
    EXPECT_TRUE(info.fType & MFT_BITMAP);
    EXPECT_TRUE(menu.SetMenuItemBitmaps(30, MF_BYCOMMAND, &bitmap, &bitmap));
    EXPECT_TRUE(menu.DestroyMenu());
}

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

