// Mnemonics of owner-drawn menus: WM_MENUCHAR finds the item whose text marks the typed letter.
#include "menu_test_support.h"

using namespace ZoControls;
using namespace menutest;

namespace {

class MenuCharTest : public MenuHostTest
{
protected:
    void SetUp() override
    {
        MenuHostTest::SetUp();
        const ItemSpec items[] = {
            {L"&Open\tCtrl+O", 1, MF_STRING},
            {nullptr, 0, MF_SEPARATOR},
            {L"R&&D notes", 2, MF_STRING},
            {L"Save &as", 3, MF_STRING},
            {L"&Delete", 4, MF_STRING},
            {L"d&elete all", 5, MF_STRING},
        };
        menu = BuildPopup(items);
        submenu = ::CreatePopupMenu();
        ::AppendMenuW(submenu, MF_STRING, 10, L"Inner");
        ::AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(submenu), L"&Recent");
        CMenuXP::SetXPLookNFeel(&host, menu, true, false);
    }

    HMENU submenu = nullptr;
};

} // namespace

TEST_F(MenuCharTest, LetterExecutesTheMarkedItem)
{
    const struct {
        wchar_t ch;
        UINT flags;
        LRESULT expected;
    } cases[] = {
        {L'o', MF_POPUP, MAKELRESULT(0, MNC_EXECUTE)},
        {L'A', MF_POPUP, MAKELRESULT(3, MNC_EXECUTE)},
        {L'e', 0, MAKELRESULT(5, MNC_EXECUTE)},
        {L'r', MF_POPUP, MAKELRESULT(6, MNC_EXECUTE)}, // a submenu item keeps its text
        {L'd', MF_POPUP, MAKELRESULT(4, MNC_EXECUTE)}, // "R&&D notes" shows "R&D": no mnemonic there
        {L'z', MF_POPUP, 0},
        {L'o', MF_POPUP | MF_SYSMENU, 0}, // system menus are not answered
        {L'o', MF_SYSMENU, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << static_cast<char>(c.ch) << " flags " << c.flags);
        EXPECT_EQ(CMenuXP::OnMenuChar(menu, c.ch, c.flags), c.expected);
    }
    EXPECT_EQ(CMenuXP::OnMenuChar(nullptr, L'o', MF_POPUP), 0);
    ::DeleteMenu(menu, 4, MF_BYPOSITION);
    EXPECT_EQ(CMenuXP::OnMenuChar(menu, L'd', MF_POPUP), 0);
}

TEST_F(MenuCharTest, MenusNotOwnerDrawnGetTheDefaultAnswer)
{
    HMENU plain = ::CreatePopupMenu();
    ::AppendMenuW(plain, MF_STRING, 1, L"&Open");
    const LRESULT byDefault = ::DefWindowProcW(host.m_hWnd, WM_MENUCHAR, MAKEWPARAM(L'o', MF_POPUP),
                                               reinterpret_cast<LPARAM>(plain));
    EXPECT_EQ(host.SendMessage(WM_MENUCHAR, MAKEWPARAM(L'o', MF_POPUP), reinterpret_cast<LPARAM>(plain)), byDefault);
    ::DestroyMenu(plain);
}
