// Making menus owner-drawn: packed item data for the theme's menu font, the accelerator column,
// separators, menu bars, menus that are already owner-drawn, and the window property.
#include "menu_test_support.h"

#include <algorithm>

#include "core/ZoUIBase.h"

using namespace ZoControls;
using namespace ZoControls::ZoMenu_Internals;
using namespace menutest;

namespace {

const ItemSpec kFileMenu[] = {
    {L"Open\tCtrl+O", 101, MF_STRING},
    {L"Save everything", 102, MF_STRING},
    {nullptr, 0, MF_SEPARATOR},
    {L"Exit\tAlt+Shift+F4", 103, MF_STRING},
};

class MenuMeasureTest : public MenuHostTest
{
protected:
    void MakeThemedFileMenu()
    {
        menu = BuildPopup(kFileMenu);
        CMenuXP::SetXPLookNFeel(&host, menu, true, false);
    }
};

} // namespace

TEST_F(MenuMeasureTest, PopupItemsShareHeightWidestTextAndWidestAccelerator)
{
    MakeThemedFileMenu();
    const int tmHeight = MenuFontHeight();
    ASSERT_GT(tmHeight, 0);
    const ULONG_PTR expected =
        PackItemData((std::max)(tmHeight + 2, 16) + 4, MenuTextWidth(L"Alt+Shift+F4"), MenuTextWidth(L"Save everything"));
    for (int position : {0, 1, 3}) {
        EXPECT_TRUE(ItemInfo(menu, position).fType & MFT_OWNERDRAW) << position;
        EXPECT_EQ(ItemData(menu, position), expected) << position;
    }
}

TEST_F(MenuMeasureTest, SeparatorsAreHalfTheFontHigh)
{
    MakeThemedFileMenu();
    const MENUITEMINFOW separator = ItemInfo(menu, 2);
    EXPECT_TRUE(separator.fType & MFT_OWNERDRAW);
    EXPECT_TRUE(separator.fType & MFT_SEPARATOR);
    EXPECT_EQ(separator.dwItemData, static_cast<ULONG_PTR>(MenuFontHeight() / 2 + 2));
}

TEST_F(MenuMeasureTest, MnemonicMarkersTakeNoWidth)
{
    const ItemSpec items[] = {{L"&Print", 1, MF_STRING}};
    menu = BuildPopup(items);
    CMenuXP::SetXPLookNFeel(&host, menu, true, false);
    EXPECT_EQ(ItemDataTextWidth(ItemData(menu, 0)), MenuTextWidth(L"Print"));
    EXPECT_EQ(ItemDataAccelWidth(ItemData(menu, 0)), 0);
}

TEST_F(MenuMeasureTest, MenuBarItemsCarryTheirOwnTextWidth)
{
    menu = ::CreateMenu();
    ::AppendMenuW(menu, MF_STRING, 1, L"File");
    ::AppendMenuW(menu, MF_STRING, 2, L"Window layout");
    CMenuXP::SetXPLookNFeel(&host, menu, true, true);
    EXPECT_EQ(ItemData(menu, 0), static_cast<ULONG_PTR>(MenuTextWidth(L"File")) << 16);
    EXPECT_EQ(ItemData(menu, 1), static_cast<ULONG_PTR>(MenuTextWidth(L"Window layout")) << 16);
}

TEST_F(MenuMeasureTest, BitmapItemsOfAMenuBarStayAsTheyAre)
{
    menu = ::CreateMenu();
    HBITMAP bitmap = ::CreateBitmap(8, 8, 1, 1, nullptr);
    ::AppendMenuW(menu, MF_BITMAP, 1, reinterpret_cast<LPCWSTR>(bitmap));
    ::AppendMenuW(menu, MF_STRING, 2, L"Edit");
    CMenuXP::SetXPLookNFeel(&host, menu, true, true);
    EXPECT_FALSE(ItemInfo(menu, 0).fType & MFT_OWNERDRAW);
    EXPECT_TRUE(ItemInfo(menu, 1).fType & MFT_OWNERDRAW);
    ::DestroyMenu(menu);
    menu = nullptr;
    ::DeleteObject(bitmap);
}

TEST_F(MenuMeasureTest, MenusAlreadyOwnerDrawnAreLeftAlone)
{
    menu = ::CreatePopupMenu();
    ::AppendMenuW(menu, MF_OWNERDRAW, 7, reinterpret_cast<LPCWSTR>(static_cast<ULONG_PTR>(0x1234)));
    ASSERT_TRUE(CMenuXP::IsOwnerDrawn(menu));
    CMenuXP::SetXPLookNFeel(&host, menu, true, false);
    EXPECT_EQ(ItemData(menu, 0), 0x1234u);
    EXPECT_EQ(::GetMenuItemCount(menu), 1);
}

TEST_F(MenuMeasureTest, InitMenuPopupMakesThePopupOwnerDrawnButNotTheSystemMenu)
{
    menu = BuildPopup(kFileMenu);
    host.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu), MAKELPARAM(0, TRUE));
    EXPECT_FALSE(CMenuXP::IsOwnerDrawn(menu));
    host.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu), MAKELPARAM(0, FALSE));
    EXPECT_TRUE(CMenuXP::IsOwnerDrawn(menu));
}

TEST_F(MenuMeasureTest, BadMenusAreIgnored)
{
    CMenuXP::SetXPLookNFeel(&host, nullptr, true, false);
    CMenuXP::SetXPLookNFeel(nullptr, reinterpret_cast<HMENU>(static_cast<UINT_PTR>(0xBAD0)), true, true);
    menu = ::CreatePopupMenu();
    CMenuXP::SetXPLookNFeel(nullptr, menu, true, false);
    EXPECT_FALSE(CMenuXP::IsOwnerDrawn(menu));
    EXPECT_FALSE(CMenuXP::IsOwnerDrawn(nullptr));
}

TEST_F(MenuMeasureTest, ThemedWindowsOptInAndForwardTheirMenus)
{
    CZoWnd themed;
    ASSERT_TRUE(themed.CreateEx(0, AfxRegisterWndClass(0), L"themed", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr));
    EXPECT_TRUE(CMenuXP::GetXPLookNFeel(&themed));
    const ItemSpec items[] = {{L"&Open", 1, MF_STRING}, {L"E&xit", 2, MF_STRING}};
    menu = BuildPopup(items);
    themed.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu), MAKELPARAM(0, FALSE));
    EXPECT_TRUE(CMenuXP::IsOwnerDrawn(menu));
    EXPECT_EQ(themed.SendMessage(WM_MENUCHAR, MAKEWPARAM(L'x', MF_POPUP), reinterpret_cast<LPARAM>(menu)),
              MAKELRESULT(1, MNC_EXECUTE));
    MEASUREITEMSTRUCT measure = {};
    measure.CtlType = ODT_MENU;
    measure.itemData = ItemData(menu, 1);
    themed.SendMessage(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&measure));
    EXPECT_EQ(measure.itemHeight, static_cast<UINT>(ItemDataHeight(ItemData(menu, 1))));
    EXPECT_GT(measure.itemHeight, 0u);
    themed.DestroyWindow();
}
