// Shared pieces of the menu tests: the theme manager around a test, a window that routes its
// menu messages to CMenuXP, menus built from item lists, and reading items back.
#pragma once
#include <afxwin.h>

#include <gtest/gtest.h>

#include "core/ZoThemeManager.h"
#include "core/ZoMenuRouting.h"
#include "frames/ZoMenuXP.h"

namespace menutest {

// The theme manager (colours and fonts) for the life of a test.
class ThemeTest : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(ZoControls::CZoThemeManager::InitInstance()); }
    void TearDown() override { ZoControls::CZoThemeManager::FreeInstance(); }
};

// A top-level window whose four menu messages go to CMenuXP, as every themed window's do.
class MenuHost : public CWnd
{
public:
    bool CreateHost();

protected:
    ZO_DECLARE_MENUXP_FORWARDING()
    DECLARE_MESSAGE_MAP()
};

// The theme manager and a host window for a test; `menu`, when set, is destroyed at the end.
class MenuHostTest : public ThemeTest
{
protected:
    void SetUp() override
    {
        ThemeTest::SetUp();
        ASSERT_TRUE(host.CreateHost());
    }
    void TearDown() override
    {
        if (menu)
            ::DestroyMenu(menu);
        host.DestroyWindow();
        ThemeTest::TearDown();
    }

    MenuHost host;
    HMENU menu = nullptr;
};

// One item of a test menu: text (with "\t" before an accelerator), command, flags of AppendMenu.
struct ItemSpec
{
    const wchar_t* text;
    UINT id;
    UINT flags;
};

HMENU BuildPopup(const ItemSpec* items, int count);
template <int N>
HMENU BuildPopup(const ItemSpec (&items)[N])
{
    return BuildPopup(items, N);
}

MENUITEMINFOW ItemInfo(HMENU menu, int position);
ULONG_PTR ItemData(HMENU menu, int position);

// tmHeight and one-line text widths with the theme's menu font of size class 0.
int MenuFontHeight();
int MenuTextWidth(const wchar_t* text);

// The theme colour of a menu slot.
COLORREF Slot(int slot);

} // namespace menutest
