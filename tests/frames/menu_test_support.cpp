#include "menu_test_support.h"

using namespace ZoControls;

namespace menutest {

namespace {

HFONT MenuFont()
{
    const CZoThemeManager* manager = CZoThemeManager::GetInstance();
    const CFont* font = manager ? manager->GetCacheGDIFont(ZoThemeFont_3, ZoMonitorSize_Normal) : nullptr;
    return font ? static_cast<HFONT>(font->GetSafeHandle()) : nullptr;
}

} // namespace

BEGIN_MESSAGE_MAP(MenuHost, CWnd)
    ZO_ON_MENUXP_MESSAGES()
END_MESSAGE_MAP()

ZO_IMPLEMENT_MENUXP_FORWARDING(MenuHost, CWnd)

bool MenuHost::CreateHost()
{
    return CreateEx(0, AfxRegisterWndClass(0), L"menu host", WS_POPUP | WS_VISIBLE, 100, 100, 300, 200, nullptr,
                    nullptr) != FALSE;
}

HMENU BuildPopup(const ItemSpec* items, int count)
{
    HMENU menu = ::CreatePopupMenu();
    for (int i = 0; i < count; ++i)
        ::AppendMenuW(menu, items[i].flags, items[i].id, items[i].text);
    return menu;
}

MENUITEMINFOW ItemInfo(HMENU menu, int position)
{
    MENUITEMINFOW info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_SUBMENU | MIIM_DATA;
    ::GetMenuItemInfoW(menu, position, TRUE, &info);
    return info;
}

ULONG_PTR ItemData(HMENU menu, int position)
{
    return ItemInfo(menu, position).dwItemData;
}

int MenuFontHeight()
{
    HDC dc = ::GetDC(nullptr);
    HGDIOBJ old = ::SelectObject(dc, MenuFont());
    TEXTMETRICW tm = {};
    ::GetTextMetricsW(dc, &tm);
    ::SelectObject(dc, old);
    ::ReleaseDC(nullptr, dc);
    return tm.tmHeight;
}

int MenuTextWidth(const wchar_t* text)
{
    HDC dc = ::GetDC(nullptr);
    HGDIOBJ old = ::SelectObject(dc, MenuFont());
    SIZE size = {};
    ::GetTextExtentPoint32W(dc, text, lstrlenW(text), &size);
    ::SelectObject(dc, old);
    ::ReleaseDC(nullptr, dc);
    return size.cx;
}

COLORREF Slot(int slot)
{
    return CZoThemeManager::GetInstance()->GetGDIColor(static_cast<E_ZoThemeColors>(slot), ZoTheme_Default);
}

} // namespace menutest
