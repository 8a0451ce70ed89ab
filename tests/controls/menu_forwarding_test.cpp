// Controls that show pop-up menus hand the four menu messages to the owner-drawn menu, so a menu
// opened from any of them looks like the rest of the application.
#include "button_test_support.h"

#include <afxcmn.h>

#include <functional>
#include <memory>

#include "controls/SeparatorWnd.h"
#include "controls/ZoButton.h"
#include "controls/ZoProgressCtrl.h"
#include "controls/ZoScrollBar.h"
#include "controls/ZoStatic.h"

using namespace ZoControls;
using buttontest::Slot;

namespace {

struct ForwardingCase
{
    const char* name;
    std::function<std::unique_ptr<CWnd>(CWnd* parent, const RECT& rect)> create;
};

template <class T>
std::unique_ptr<CWnd> Created(std::unique_ptr<T> wnd, BOOL ok)
{
    return ok ? std::unique_ptr<CWnd>(std::move(wnd)) : nullptr;
}

const ForwardingCase kForwardingCases[] = {
    {"Button",
     [](CWnd* parent, const RECT& rect) {
         auto button = std::make_unique<CZoButton>();
         const BOOL ok = button->Create(L"Menu", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, rect, parent, 600);
         return Created(std::move(button), ok);
     }},
    {"Static",
     [](CWnd* parent, const RECT& rect) {
         auto stat = std::make_unique<CZoStatic>();
         const BOOL ok = stat->Create(L"Menu", WS_CHILD | WS_VISIBLE | SS_LEFT, rect, parent, 601);
         return Created(std::move(stat), ok);
     }},
    {"ScrollBar",
     [](CWnd* parent, const RECT& rect) {
         auto bar = std::make_unique<CZoScrollBar>();
         const BOOL ok = bar->Create(WS_CHILD | WS_VISIBLE | SBS_HORZ, rect, parent, 602);
         return Created(std::move(bar), ok);
     }},
    {"Progress",
     [](CWnd* parent, const RECT& rect) {
         auto bar = std::make_unique<CZoProgressCtrl>();
         const BOOL ok = bar->Create(WS_CHILD | WS_VISIBLE, rect, parent, 603);
         return Created(std::move(bar), ok);
     }},
    {"Separator",
     [](CWnd* parent, const RECT& rect) {
         auto sep = std::make_unique<CSeparatorWnd>(604, CSeparatorWnd::SeparatorDirection_Vertical, parent, true);
         const BOOL ok = sep->Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, rect, parent, 604);
         return Created(std::move(sep), ok);
     }},
};

class MenuForwardingTest : public buttontest::ControlTest, public testing::WithParamInterface<ForwardingCase>
{
protected:
    void SetUp() override
    {
        buttontest::ControlTest::SetUp();
        control_ = GetParam().create(parentWnd(), RECT{10, 10, 130, 30});
        ASSERT_TRUE(control_ && control_->GetSafeHwnd());
        menu_ = ::CreatePopupMenu();
        ::AppendMenuW(menu_, MF_STRING, 1, L"&Open\tCtrl+O");
        ::AppendMenuW(menu_, MF_STRING, 2, L"E&xit");
    }
    void TearDown() override
    {
        ::DestroyMenu(menu_);
        if (control_)
            control_->DestroyWindow();
        control_.reset();
        buttontest::ControlTest::TearDown();
    }

    LRESULT Send(UINT message, WPARAM wParam, LPARAM lParam) { return control_->SendMessage(message, wParam, lParam); }
    // WM_INITMENUPOPUP for a pop-up that is not the system menu.
    void InitPopup() { Send(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu_), MAKELPARAM(0, FALSE)); }

    ULONG_PTR ItemData(UINT position) const
    {
        MENUITEMINFOW info = {};
        info.cbSize = sizeof(info);
        info.fMask = MIIM_DATA | MIIM_FTYPE;
        ::GetMenuItemInfoW(menu_, position, TRUE, &info);
        return info.dwItemData;
    }
    bool OwnerDrawn(UINT position) const
    {
        MENUITEMINFOW info = {};
        info.cbSize = sizeof(info);
        info.fMask = MIIM_FTYPE;
        return ::GetMenuItemInfoW(menu_, position, TRUE, &info) && (info.fType & MFT_OWNERDRAW);
    }

    std::unique_ptr<CWnd> control_;
    HMENU menu_ = nullptr;
};

TEST_P(MenuForwardingTest, OptsInAtCreation)
{
    EXPECT_TRUE(CMenuXP::GetXPLookNFeel(control_.get()));
}

TEST_P(MenuForwardingTest, InitMenuPopupMakesTheItemsOwnerDrawn)
{
    ASSERT_FALSE(OwnerDrawn(0));
    InitPopup();
    EXPECT_TRUE(OwnerDrawn(0));
    EXPECT_TRUE(OwnerDrawn(1));
    EXPECT_NE(ItemData(1), 0u);
}

TEST_P(MenuForwardingTest, SystemMenuIsLeftAsItIs)
{
    Send(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu_), MAKELPARAM(0, TRUE));
    EXPECT_FALSE(OwnerDrawn(0));
}

TEST_P(MenuForwardingTest, MeasureItemFillsInTheItemSize)
{
    InitPopup();
    const ULONG_PTR data = ItemData(1);
    MEASUREITEMSTRUCT measure = {};
    measure.CtlType = ODT_MENU;
    measure.itemID = 2;
    measure.itemData = data;
    Send(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&measure));
    // Height in bits 0-7; width = widest text + 42 + widest accelerator.
    EXPECT_EQ(measure.itemHeight, static_cast<UINT>(data & 0xFF));
    EXPECT_EQ(measure.itemWidth, static_cast<UINT>(((data >> 16) & 0xFFFF) + 42 + ((data >> 8) & 0xFF)));
    EXPECT_GT(measure.itemHeight, 0u);
}

TEST_P(MenuForwardingTest, DrawItemPaintsTheMenuItem)
{
    InitPopup();
    zotest::Dib dib(120, 24, RGB(9, 9, 9));
    DRAWITEMSTRUCT draw = {};
    draw.CtlType = ODT_MENU;
    draw.itemID = 2;
    draw.itemAction = ODA_DRAWENTIRE;
    draw.hwndItem = reinterpret_cast<HWND>(menu_);
    draw.hDC = dib.dc();
    draw.rcItem = RECT{0, 0, 120, 24};
    draw.itemData = ItemData(1);
    const int drawnBefore = CMenuXP::GetDrawCount();
    Send(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&draw));
    EXPECT_EQ(CMenuXP::GetDrawCount(), drawnBefore + 1);
    // Menu background in the icon column, the column's divider at x = 21.
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 0, 21, 24}), Slot(68));
    ZOTEST_EXPECT_FILL(dib, (RECT{21, 0, 22, 24}), Slot(70));
}

TEST_P(MenuForwardingTest, MenuCharPicksTheMnemonicOfAnOwnerDrawnMenu)
{
    InitPopup();
    EXPECT_EQ(Send(WM_MENUCHAR, MAKEWPARAM(L'x', MF_POPUP), reinterpret_cast<LPARAM>(menu_)),
              MAKELRESULT(1, MNC_EXECUTE));
}

INSTANTIATE_TEST_SUITE_P(Controls, MenuForwardingTest, testing::ValuesIn(kForwardingCases),
                         [](const testing::TestParamInfo<ForwardingCase>& info) { return std::string(info.param.name); });

} // namespace
