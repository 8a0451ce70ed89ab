// What the controls share, run over tables of the controls: no erasing, repainting at once on
// text and enable changes, the menu messages handed to the owner-drawn menu, and no resources
// left behind by create/paint/destroy cycles.
#include "controls_test_support.h"

#include <afxcmn.h>

#include <memory>
#include <string>

#include "controls/SeparatorWnd.h"
#include "controls/ZoComboBox.h"
#include "controls/ZoEdit.h"
#include "controls/ZoEditInPlace.h"
#include "controls/ZoButtonVariants.h"
#include "frames/ZoMenuXP.h"
#include "controls/ZoProgressCtrl.h"
#include "controls/ZoRangeSliderCtrl.h"
#include "controls/ZoScrollBar.h"
#include "controls/ZoSpinButtonCtrl.h"
#include "controls/ZoSliderCtrl.h"
#include "controls/ZoStatic.h"
#include "controls/ZoTabCtrl.h"

using namespace ZoControls;
using controltest::Slot;

namespace {

const UINT kId = 600;
const RECT kRect = {5, 5, 125, 45};

// The controls are made hidden: nothing paints to the screen behind a test's back, and painting
// is asked for through WM_PRINTCLIENT.
using Factory = std::unique_ptr<CWnd> (*)(CWnd* parent);

template <class T>
std::unique_ptr<CWnd> Keep(std::unique_ptr<T> wnd, BOOL created)
{
    return created ? std::unique_ptr<CWnd>(std::move(wnd)) : nullptr;
}

template <class TButton, DWORD kind>
std::unique_ptr<CWnd> MakeButton(CWnd* parent)
{
    auto button = std::make_unique<TButton>();
    const BOOL created = button->Create(L"Cycle", WS_CHILD | kind, kRect, parent, kId);
    return Keep(std::move(button), created);
}

// The tooltip is the same for every kind of button; one kind carries it.
std::unique_ptr<CWnd> MakeButtonWithToolTip(CWnd* parent)
{
    auto button = std::make_unique<CZoButton>();
    const BOOL created = button->Create(L"Cycle", WS_CHILD | BS_PUSHBUTTON, kRect, parent, kId);
    button->SetToolTipText(L"Tip");
    return Keep(std::move(button), created);
}

std::unique_ptr<CWnd> MakeMsgBoxButton(CWnd* parent)
{
    auto button = std::make_unique<CZoButton4MsgBox>();
    button->SetAsDefault(true);
    const BOOL created = button->Create(L"OK", WS_CHILD | BS_PUSHBUTTON, kRect, parent, kId);
    return Keep(std::move(button), created);
}

template <class TStatic, DWORD style>
std::unique_ptr<CWnd> MakeStatic(CWnd* parent)
{
    auto stat = std::make_unique<TStatic>();
    const BOOL created = stat->Create(L"Label", WS_CHILD | style, kRect, parent, kId);
    return Keep(std::move(stat), created);
}

std::unique_ptr<CWnd> MakeStaticLine(CWnd* parent)
{
    auto line = std::make_unique<CStaticLine>();
    line->SetLineStyle(CStaticLine::StaticLine_Single);
    const BOOL created = line->Create(L"", WS_CHILD, kRect, parent, kId);
    return Keep(std::move(line), created);
}

std::unique_ptr<CWnd> MakeScrollBar(CWnd* parent)
{
    auto bar = std::make_unique<CZoScrollBar>();
    const BOOL created = bar->Create(WS_CHILD | SBS_VERT, CRect(5, 5, 24, 205), parent, kId);
    SCROLLINFO info = {sizeof(SCROLLINFO), SIF_ALL, 0, 100, 10, 30, 0};
    if (created)
        bar->SetScrollInfo(&info, TRUE);
    return Keep(std::move(bar), created);
}

std::unique_ptr<CWnd> MakeProgress(CWnd* parent)
{
    auto bar = std::make_unique<CZoProgressCtrl>();
    const BOOL created = bar->Create(WS_CHILD, kRect, parent, kId);
    if (created)
        bar->SetPos(50);
    return Keep(std::move(bar), created);
}

std::unique_ptr<CWnd> MakeSpin(CWnd* parent)
{
    auto spin = std::make_unique<CZoSpinButtonCtrl>();
    const BOOL created = spin->Create(WS_CHILD, CRect(5, 5, 25, 35), parent, kId);
    if (created)
        spin->SetRange32(0, 10);
    return Keep(std::move(spin), created);
}

// Ticks, a selection and (for the range slider) its bound markers.
template <class TSlider>
std::unique_ptr<CWnd> MakeSlider(CWnd* parent)
{
    auto slider = std::make_unique<TSlider>();
    const BOOL created = slider->Create(WS_CHILD | TBS_AUTOTICKS | TBS_BOTH | TBS_ENABLESELRANGE, kRect, parent, kId);
    if (created) {
        slider->SetRange(0, 100, FALSE);
        slider->SetTicFreq(20);
        slider->SetTic(55);
        slider->SetSelection(20, 60);
    }
    return Keep(std::move(slider), created);
}

// Side tabs own rotated fonts.
template <DWORD style>
std::unique_ptr<CWnd> MakeTabs(CWnd* parent)
{
    auto tabs = std::make_unique<CZoTabCtrl>();
    const BOOL created = tabs->Create(WS_CHILD | style, CRect(5, 5, 205, 125), parent, kId);
    if (created) {
        tabs->InsertItem(0, L"One");
        tabs->InsertItem(1, L"Two");
    }
    return Keep(std::move(tabs), created);
}

// A movable separator, dragged once: the rubber band draws on the parent.
std::unique_ptr<CWnd> MakeSeparator(CWnd* parent)
{
    auto sep = std::make_unique<CSeparatorWnd>(kId, CSeparatorWnd::SeparatorDirection_Vertical, parent, true);
    const BOOL created = sep->Create(AfxRegisterWndClass(0), L"", WS_CHILD, CRect(10, 10, 12, 200),
                                     parent, kId);
    if (created) {
        sep->SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(1, 5));
        sep->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(20, 5));
        sep->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(20, 5));
    }
    return Keep(std::move(sep), created);
}

// Edits paint their border in the non-client area: the cycle paints it too.
template <class TEdit, DWORD style>
std::unique_ptr<CWnd> MakeEdit(CWnd* parent)
{
    auto edit = std::make_unique<TEdit>();
    const BOOL created = edit->Create(WS_CHILD | style, kRect, parent, kId);
    if (created) {
        edit->SetWindowText(L"Cycle");
        edit->SendMessage(WM_NCPAINT, 1);
    }
    return Keep(std::move(edit), created);
}

// The editor reports to the parent and asks it to cancel; a plain parent ignores both.
std::unique_ptr<CWnd> MakeEditInPlace(CWnd* parent)
{
    auto editor = std::make_unique<CZoEditInPlace>(parent->GetSafeHwnd(), 0, 0, L"Cycle");
    const BOOL created = editor->Create(WS_CHILD | ES_AUTOHSCROLL, kRect, parent, kId);
    if (created) {
        editor->SendMessage(WM_CHAR, L'x', 1);
        editor->SendMessage(WM_CHAR, L'\r', 1);
    }
    return Keep(std::move(editor), created);
}

template <class TCombo, DWORD style>
std::unique_ptr<CWnd> MakeCombo(CWnd* parent)
{
    auto combo = std::make_unique<TCombo>();
    const BOOL created = combo->Create(WS_CHILD | style, CRect(5, 5, 125, 200), parent, kId);
    if (created) {
        combo->AddString(L"Cycle");
        combo->SetCurSel(0);
    }
    return Keep(std::move(combo), created);
}

struct ControlCase
{
    const char* name;
    Factory make;
};

std::string CaseName(const testing::TestParamInfo<ControlCase>& info) { return info.param.name; }

class ControlCaseTest : public controltest::ControlTest, public testing::WithParamInterface<ControlCase>
{
};

// --- Background --------------------------------------------------------------------------------

const ControlCase kPaintingControls[] = {
    {"Button", MakeButton<CZoButton, BS_PUSHBUTTON>},
    {"CheckBox", MakeButton<CZoButton, BS_AUTOCHECKBOX>},
    {"Static", MakeStatic<CZoStatic, SS_LEFT>},
    {"ScrollBar", MakeScrollBar},
    {"Progress", MakeProgress},
    {"Spin", MakeSpin},
    {"Slider", MakeSlider<CZoSliderCtrl>},
    {"Tabs", MakeTabs<0>},
    {"Combo", MakeCombo<CZoComboBox, CBS_DROPDOWNLIST>},
};

using EraseTest = ControlCaseTest;

// Erasing paints nothing; as the native controls do, a DC in WM_PAINT's wParam is painted into
// as WM_PRINTCLIENT would, the screen left alone.
TEST_P(EraseTest, EraseBackgroundPaintsNothingAndPaintWithADcPaintsIntoIt)
{
    const std::unique_ptr<CWnd> wnd = GetParam().make(parentWnd());
    ASSERT_TRUE(wnd);
    zotest::Dib dib(120, 40, RGB(9, 9, 9));
    EXPECT_EQ(wnd->SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dib.dc())), TRUE);
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 0, 120, 40}), RGB(9, 9, 9));
    zotest::Dib painted(120, 40, RGB(9, 9, 9));
    zotest::Dib printed(120, 40, RGB(9, 9, 9));
    wnd->SendMessage(WM_PAINT, reinterpret_cast<WPARAM>(painted.dc()));
    wnd->SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(printed.dc()), PRF_CLIENT);
    EXPECT_EQ(controltest::Differences(painted, printed), 0);
    const RECT drawn = zotest::BoundsOfDifferences(painted, RGB(9, 9, 9));
    EXPECT_FALSE(::IsRectEmpty(&drawn));
    wnd->DestroyWindow();
}

INSTANTIATE_TEST_SUITE_P(Controls, EraseTest, testing::ValuesIn(kPaintingControls), CaseName);

// --- Repainting --------------------------------------------------------------------------------

const ControlCase kTextControls[] = {
    {"Button", MakeButton<CZoButton, BS_PUSHBUTTON>},
    {"Static", MakeStatic<CZoStatic, SS_LEFT>},
};

using RepaintTest = ControlCaseTest;

TEST_P(RepaintTest, SettingTextOrEnablingRepaintsAtOnce)
{
    const std::unique_ptr<CWnd> wnd = GetParam().make(parentWnd());
    ASSERT_TRUE(wnd);
    wnd->ShowWindow(SW_SHOWNA);
    zotest::PumpUntilIdle(500);
    zotest::MessageRecorder recorder;
    ASSERT_TRUE(recorder.Watch(wnd->m_hWnd));
    wnd->SetWindowText(L"Two");
    EXPECT_GE(recorder.Count(WM_PAINT), 1u);
    recorder.Clear();
    wnd->EnableWindow(FALSE);
    EXPECT_GE(recorder.Count(WM_PAINT), 1u);
    recorder.UnwatchAll();
    wnd->DestroyWindow();
}

INSTANTIATE_TEST_SUITE_P(Controls, RepaintTest, testing::ValuesIn(kTextControls), CaseName);

// The platform paints its own look at once on a new picture; the skin must follow at once too.
TEST_F(ControlCaseTest, PictureStaticRepaintsAtOnceOnANewBitmapOrIcon)
{
    HBITMAP bitmap = controltest::MakeBitmap(16, 16, RGB(200, 0, 0), RGB(200, 0, 0));
    HICON icon = ::LoadIcon(NULL, IDI_APPLICATION);
    struct PictureCase
    {
        DWORD style;
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
    };
    const PictureCase cases[] = {
        {SS_BITMAP, STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap)},
        {SS_ICON, STM_SETICON, reinterpret_cast<WPARAM>(icon), 0},
    };
    for (const PictureCase& c : cases) {
        SCOPED_TRACE(c.message);
        CZoStatic picture;
        ASSERT_TRUE(picture.Create(L"", WS_CHILD | WS_VISIBLE | c.style, kRect, parentWnd(), kId));
        zotest::PumpUntilIdle(500);
        zotest::MessageRecorder recorder;
        ASSERT_TRUE(recorder.Watch(picture.m_hWnd));
        picture.SendMessage(c.message, c.wParam, c.lParam);
        EXPECT_GE(recorder.Count(WM_PAINT), 1u);
        recorder.UnwatchAll();
        picture.DestroyWindow();
    }
    ::DeleteObject(bitmap);
}

// --- Menus -------------------------------------------------------------------------------------

const ControlCase kMenuForwarders[] = {
    {"Button", MakeButton<CZoButton, BS_PUSHBUTTON>},
    {"Static", MakeStatic<CZoStatic, SS_LEFT>},
    {"ScrollBar", MakeScrollBar},
    {"Progress", MakeProgress},
    {"Separator", MakeSeparator},
    {"Slider", MakeSlider<CZoSliderCtrl>},
    {"Tabs", MakeTabs<0>},
    {"Edit", MakeEdit<CZoEdit, ES_AUTOHSCROLL>},
    {"Combo", MakeCombo<CZoComboBox, CBS_DROPDOWNLIST>},
};

class MenuForwardingTest : public ControlCaseTest
{
protected:
    void SetUp() override
    {
        ControlCaseTest::SetUp();
        control_ = GetParam().make(parentWnd());
        ASSERT_TRUE(control_);
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
        ControlCaseTest::TearDown();
    }

    LRESULT Send(UINT message, WPARAM wParam, LPARAM lParam) { return control_->SendMessage(message, wParam, lParam); }
    // WM_INITMENUPOPUP for a pop-up that is not the system menu.
    void InitPopup() { Send(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu_), MAKELPARAM(0, FALSE)); }

    MENUITEMINFOW Item(UINT position) const
    {
        MENUITEMINFOW info = {};
        info.cbSize = sizeof(info);
        info.fMask = MIIM_DATA | MIIM_FTYPE;
        ::GetMenuItemInfoW(menu_, position, TRUE, &info);
        return info;
    }
    bool OwnerDrawn(UINT position) const { return (Item(position).fType & MFT_OWNERDRAW) != 0; }

    std::unique_ptr<CWnd> control_;
    HMENU menu_ = nullptr;
};

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
    draw.itemData = Item(1).dwItemData;
    const int drawnBefore = CMenuXP::GetDrawCount();
    Send(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&draw));
    EXPECT_EQ(CMenuXP::GetDrawCount(), drawnBefore + 1);
    // Menu background in the icon column, the column's divider at x = 21.
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 0, 21, 24}), Slot(68));
    ZOTEST_EXPECT_FILL(dib, (RECT{21, 0, 22, 24}), Slot(70));
}

INSTANTIATE_TEST_SUITE_P(Controls, MenuForwardingTest, testing::ValuesIn(kMenuForwarders), CaseName);

// --- Resources ---------------------------------------------------------------------------------

// One row per class, each in its fullest form: the button with a tooltip, side tabs with their
// rotated fonts, the drop-down combo with its inner edit. Every create costs a platform window
// (a combo two, its list a top-level one), so a second row of a class buys little.
const ControlCase kEveryControl[] = {
    {"PushButtonWithToolTip", MakeButtonWithToolTip},
    {"FlatButton", MakeButton<CZoFlatButton, BS_PUSHBUTTON>},
    {"ToggleButton", MakeButton<CZoToggleButton, BS_AUTOCHECKBOX>},
    {"MsgBoxButton", MakeMsgBoxButton},
    {"TextStatic", MakeStatic<CZoStatic, SS_LEFT | SS_CENTERIMAGE>},
    {"BigStatic", MakeStatic<CZoStaticBig, SS_CENTER>},
    {"HugeFrameStatic", MakeStatic<CZoStaticHuge, SS_BLACKFRAME>},
    {"StaticLine", MakeStaticLine},
    {"ScrollBar", MakeScrollBar},
    {"Progress", MakeProgress},
    {"Spin", MakeSpin},
    {"Separator", MakeSeparator},
    {"Slider", MakeSlider<CZoSliderCtrl>},
    {"RangeSlider", MakeSlider<CZoRangeSliderCtrl>},
    {"SideTabs", MakeTabs<TCS_VERTICAL | TCS_MULTILINE | TCS_RIGHT>},
    {"Edit", MakeEdit<CZoEdit, ES_AUTOHSCROLL>},
    {"EditInPlace", MakeEditInPlace},
    {"DropDownCombo", MakeCombo<CZoComboBox, CBS_DROPDOWN>},
    {"BtnFeelCombo", MakeCombo<CZoComboBoxBtnFeel, CBS_DROPDOWNLIST>},
};

using LeakTest = ControlCaseTest;

// Painted through WM_PRINTCLIENT into one memory DC; resources are counted only before and after.
TEST_P(LeakTest, NoGrowthOverCreatePaintDestroyCycles)
{
    parentWnd()->ShowWindow(SW_HIDE);
    CWnd* parent = parentWnd();
    const Factory make = GetParam().make;
    zotest::Dib canvas(240, 240);
    ZOTEST_EXPECT_NO_LEAKS(1000, [parent, make, &canvas]() {
        const std::unique_ptr<CWnd> wnd = make(parent);
        if (!wnd) {
            ADD_FAILURE() << "not created";
            return;
        }
        wnd->SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.dc()), PRF_CLIENT);
        wnd->DestroyWindow();
    });
    // The cycles did paint.
    const RECT painted = zotest::BoundsOfDifferences(canvas, zotest::kUnpainted);
    EXPECT_FALSE(::IsRectEmpty(&painted));
}

INSTANTIATE_TEST_SUITE_P(Controls, LeakTest, testing::ValuesIn(kEveryControl), CaseName);

} // namespace
