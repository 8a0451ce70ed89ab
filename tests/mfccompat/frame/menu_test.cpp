// CMenu against real menus: building, queries, modifying, the handle map and resources.
#include <afxwin.h>
#include <gtest/gtest.h>

#include "frame_test_ids.h"

namespace {

// A popup "File" menu: Open (10), separator, Save (11), submenu "Recent" with one item (20).
void BuildFileMenu(CMenu& menu, CMenu& recent)
{
    ASSERT_TRUE(menu.CreatePopupMenu());
    ASSERT_TRUE(recent.CreatePopupMenu());
    ASSERT_TRUE(recent.AppendMenu(MF_STRING, 20, L"first.txt"));
    ASSERT_TRUE(menu.AppendMenu(MF_STRING, 10, L"&Open"));
    ASSERT_TRUE(menu.AppendMenu(MF_SEPARATOR));
    ASSERT_TRUE(menu.AppendMenu(MF_STRING, 11, L"&Save\tCtrl+S"));
    ASSERT_TRUE(menu.AppendMenu(MF_POPUP, (UINT_PTR)recent.Detach(), L"&Recent"));
}

MENUITEMINFO ItemInfo(UINT mask)
{
    MENUITEMINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = mask;
    return info;
}

} // namespace

TEST(MenuBuild, ItemsReadBackInOrder)
{
    CMenu menu, recent;
    BuildFileMenu(menu, recent);
    EXPECT_EQ(4u, menu.GetMenuItemCount());
    EXPECT_EQ(10u, menu.GetMenuItemID(0));
    EXPECT_EQ(0u, menu.GetMenuItemID(1)); // separator
    EXPECT_EQ(11u, menu.GetMenuItemID(2));
    EXPECT_EQ((UINT)-1, menu.GetMenuItemID(3)); // popup
    CString text;
    EXPECT_EQ(12, menu.GetMenuString(11, text, MF_BYCOMMAND));
    EXPECT_EQ(CString(L"&Save\tCtrl+S"), text);
    wchar_t buffer[4];
    EXPECT_EQ(3, menu.GetMenuString(0, buffer, 4, MF_BYPOSITION));
    EXPECT_STREQ(L"&Op", buffer);
}

TEST(MenuBuild, SubMenuIsWrappedAndQueried)
{
    CMenu menu, recent;
    BuildFileMenu(menu, recent);
    CMenu* sub = menu.GetSubMenu(3);
    ASSERT_NE(nullptr, sub);
    EXPECT_EQ(1u, sub->GetMenuItemCount());
    EXPECT_EQ(20u, sub->GetMenuItemID(0));
    EXPECT_EQ(nullptr, menu.GetSubMenu(0));
    EXPECT_EQ(nullptr, menu.GetSubMenu(99));
}

TEST(MenuModify, CheckEnableAndRadioStates)
{
    CMenu menu, recent;
    BuildFileMenu(menu, recent);
    EXPECT_EQ((UINT)MF_UNCHECKED, menu.CheckMenuItem(10, MF_BYCOMMAND | MF_CHECKED));
    EXPECT_TRUE(menu.GetMenuState(10, MF_BYCOMMAND) & MF_CHECKED);
    EXPECT_EQ((UINT)MF_ENABLED, menu.EnableMenuItem(11, MF_BYCOMMAND | MF_GRAYED));
    EXPECT_TRUE(menu.GetMenuState(11, MF_BYCOMMAND) & MF_GRAYED);
    EXPECT_EQ((UINT)-1, menu.CheckMenuItem(999, MF_BYCOMMAND | MF_CHECKED));

}

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

TEST(MenuModify, ModifyInsertDeleteAndRemove)
{
    CMenu menu, recent;
    BuildFileMenu(menu, recent);
    ASSERT_TRUE(menu.ModifyMenu(10, MF_BYCOMMAND | MF_STRING, 12, L"&Load"));
    EXPECT_EQ(12u, menu.GetMenuItemID(0));
    ASSERT_TRUE(menu.InsertMenu(0, MF_BYPOSITION | MF_STRING, 13, L"&New"));
    EXPECT_EQ(13u, menu.GetMenuItemID(0));
    EXPECT_EQ(5u, menu.GetMenuItemCount());

    HMENU sub = ::GetSubMenu(menu.m_hMenu, 4);
    ASSERT_TRUE(menu.RemoveMenu(4, MF_BYPOSITION));
    EXPECT_TRUE(::IsMenu(sub)); // removed, not destroyed
    ::DestroyMenu(sub);
    ASSERT_TRUE(menu.DeleteMenu(13, MF_BYCOMMAND));
    EXPECT_EQ(3u, menu.GetMenuItemCount());
    EXPECT_FALSE(menu.DeleteMenu(999, MF_BYCOMMAND));
}

TEST(MenuModify, OwnerDrawItemDataThroughItemInfo)
{
    CMenu menu, recent;
    BuildFileMenu(menu, recent);
    MENUITEMINFO info = ItemInfo(MIIM_FTYPE | MIIM_DATA);
    ASSERT_TRUE(menu.GetMenuItemInfo(0, &info, TRUE));
    info.fType |= MFT_OWNERDRAW;
    info.dwItemData = 0x12340056;
    ASSERT_TRUE(menu.SetMenuItemInfo(0, &info, TRUE));
    MENUITEMINFO back = ItemInfo(MIIM_FTYPE | MIIM_DATA);
    ASSERT_TRUE(menu.GetMenuItemInfo(10, &back, FALSE));
    EXPECT_TRUE(back.fType & MFT_OWNERDRAW);
    EXPECT_EQ((ULONG_PTR)0x12340056, back.dwItemData);
    EXPECT_FALSE(menu.GetMenuItemInfo(0, NULL, TRUE));
}

TEST(MenuModify, DefaultItem)
{
    CMenu menu, recent;
    BuildFileMenu(menu, recent);
    EXPECT_EQ((UINT)-1, menu.GetDefaultItem(0, TRUE));
    ASSERT_TRUE(menu.SetDefaultItem(11));
    EXPECT_EQ(11u, menu.GetDefaultItem(0));
    EXPECT_EQ(2u, menu.GetDefaultItem(0, TRUE));
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

TEST(MenuLifetime, DestructorDestroysTheMenu)
{
    HMENU handle;
    {
        CMenu menu;
        ASSERT_TRUE(menu.CreateMenu());
        handle = menu.GetSafeHmenu();
        EXPECT_EQ(handle, (HMENU)menu);
        EXPECT_TRUE(::IsMenu(handle));
    }
    EXPECT_FALSE(::IsMenu(handle));
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

TEST(MenuHandleMap, PermanentObjectIsFound)
{
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    EXPECT_EQ(&menu, CMenu::FromHandle(menu.m_hMenu));
    EXPECT_EQ(&menu, CMenu::FromHandlePermanent(menu.m_hMenu));
    HMENU handle = menu.Detach();
    EXPECT_EQ(nullptr, CMenu::FromHandlePermanent(handle));
    ::DestroyMenu(handle);
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

TEST(MenuResources, LoadMenuFromTheResourceChain)
{
    CMenu bar;
    ASSERT_TRUE(bar.LoadMenu(IDR_TEST_FRAME));
    EXPECT_EQ(2u, bar.GetMenuItemCount());
    CString text;
    bar.GetMenuString(1, text, MF_BYPOSITION);
    EXPECT_EQ(CString(L"&Colour"), text);
    CMenu* colours = bar.GetSubMenu(1);
    ASSERT_NE(nullptr, colours);
    EXPECT_EQ((UINT)ID_TEST_BLUE, colours->GetMenuItemID(2));

    CMenu missing;
    EXPECT_FALSE(missing.LoadMenu(IDR_MISSING));
    EXPECT_EQ(nullptr, missing.m_hMenu);
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

class DrawingMenu : public CMenu
{
public:
    int draws = 0;
    int measures = 0;
    void DrawItem(LPDRAWITEMSTRUCT) override { ++draws; }
    void MeasureItem(LPMEASUREITEMSTRUCT) override { ++measures; }
};

TEST(MenuOwnerDraw, VirtualsAreOverridable)
{
    DrawingMenu menu;
    CMenu& base = menu;
    DRAWITEMSTRUCT draw = {};
    MEASUREITEMSTRUCT measure = {};
    base.DrawItem(&draw);
    base.MeasureItem(&measure);
    EXPECT_EQ(1, menu.draws);
    EXPECT_EQ(1, menu.measures);
    EXPECT_TRUE(menu.IsKindOf(RUNTIME_CLASS(CMenu)));
}
