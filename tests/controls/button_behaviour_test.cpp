// CZoButton behaviour: repainting on hover, text and enable changes, the system's check state
// and notifications, colour setters, tooltips, attaching, and resources over many cycles.
#include "controls_test_support.h"

#include <afxcmn.h>

#include "controls/ZoButton.h"

using namespace ZoControls;
using controltest::Slot;

namespace {

class ButtonTest : public controltest::ControlTest
{
protected:
    void Make(CZoButton& button, const wchar_t* text, DWORD style, const RECT& rect = RECT{10, 10, 90, 34})
    {
        MakeButton(button, text, style, rect);
        zotest::PumpUntilIdle(300);
    }
};

TEST_F(ButtonTest, HoverEnteringAndLeavingRepaintOnce)
{
    CZoButton button;
    Make(button, L"Hover", BS_PUSHBUTTON);
    zotest::MessageRecorder recorder;
    ASSERT_TRUE(recorder.Watch(button.m_hWnd));
    SendMessage(button.m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(4, 4));
    SendMessage(button.m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(6, 4));
    EXPECT_TRUE(button.IsHoveringNow());
    EXPECT_EQ(recorder.Count(WM_PAINT), 1u);
    recorder.Clear();
    SendMessage(button.m_hWnd, WM_MOUSELEAVE, 0, 0);
    SendMessage(button.m_hWnd, WM_MOUSELEAVE, 0, 0);
    EXPECT_FALSE(button.IsHoveringNow());
    EXPECT_EQ(recorder.Count(WM_PAINT), 1u);
    recorder.UnwatchAll();
}

TEST_F(ButtonTest, DisabledButtonsAndGroupBoxesNeverHover)
{
    CZoButton group, disabled;
    Make(group, L"Group", BS_GROUPBOX, RECT{10, 10, 150, 80});
    Make(disabled, L"Off", BS_PUSHBUTTON | WS_DISABLED, RECT{160, 10, 240, 34});
    SendMessage(group.m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(4, 4));
    SendMessage(disabled.m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(4, 4));
    EXPECT_FALSE(group.IsHoveringNow());
    EXPECT_FALSE(disabled.IsHoveringNow());
}


TEST_F(ButtonTest, SystemKeepsCheckStateAndParentGetsBnClicked)
{
    CZoButton box;
    Make(box, L"Check", BS_AUTOCHECKBOX);
    zotest::MessageRecorder recorder;
    ASSERT_TRUE(recorder.WatchWithParent(box.m_hWnd));
    recorder.MatchOnlyListed(true);
    zotest::SendClick(box.m_hWnd, POINT{5, 5});
    EXPECT_EQ(box.GetCheck(), BST_CHECKED);
    const zotest::ExpectedMessage clicked[] = {
        {WM_LBUTTONDOWN, zotest::sent},
        {WM_LBUTTONUP, zotest::sent},
        {WM_COMMAND, zotest::sent | zotest::parent | zotest::code | zotest::wparam | zotest::lparam,
         MAKEWPARAM(box.GetDlgCtrlID(), BN_CLICKED), reinterpret_cast<LPARAM>(box.m_hWnd), BN_CLICKED},
    };
    ZOTEST_EXPECT_SEQUENCE(recorder, clicked);
    zotest::SendClick(box.m_hWnd, POINT{5, 5});
    EXPECT_EQ(box.GetCheck(), BST_UNCHECKED);
    recorder.UnwatchAll();
}


// Faces, lines and push-button captions show in the pixel tests; the kinds' caption tables here.
TEST_F(ButtonTest, InitSetsCaptionColoursByKind)
{
    CZoButton box, group;
    Make(box, L"", BS_RADIOBUTTON, RECT{10, 40, 90, 60});
    Make(group, L"", BS_GROUPBOX, RECT{100, 10, 200, 90});
    for (int s = 0; s < BS_ZO_COUNT; ++s) {
        EXPECT_EQ(box.GetTextColor(static_cast<E_ZoButtonStates>(s)), Slot(9 + s));
        EXPECT_EQ(group.GetTextColor(static_cast<E_ZoButtonStates>(s)), Slot(50));
    }
    EXPECT_TRUE(group.GetStyle() & WS_CLIPSIBLINGS);
}

TEST_F(ButtonTest, ColourSetterForms)
{
    CZoButton button;
    Make(button, L"", BS_PUSHBUTTON);
    // One colour for every state, then one state.
    button.SetFaceColor(RGB(1, 1, 1), false);
    button.SetFaceColor(BS_ZO_HOT, RGB(2, 2, 2), false);
    EXPECT_EQ(button.GetFaceColor(BS_ZO_HOT), RGB(2, 2, 2));
    EXPECT_EQ(button.GetFaceColor(BS_ZO_DISABLED), RGB(1, 1, 1));
    // Left and top take the first colour, right and bottom the second.
    button.SetLTRBLineColors(BS_ZO_PRESSED, RGB(5, 0, 0), RGB(6, 0, 0), false);
    const COLORREF ltrb[LINE_COUNT] = {RGB(5, 0, 0), RGB(5, 0, 0), RGB(6, 0, 0), RGB(6, 0, 0)};
    for (int l = 0; l < LINE_COUNT; ++l)
        EXPECT_EQ(button.GetLineColor(static_cast<E_ZoFlatButtonLines>(l), BS_ZO_PRESSED), ltrb[l]) << l;
    // Per-state arrays give every line of a state its colour; one line of one state after that.
    const COLORREF four[4] = {RGB(10, 0, 0), RGB(11, 0, 0), RGB(12, 0, 0), RGB(13, 0, 0)};
    button.Set4LineColors(four, false);
    button.SetLineColor(LINE_TOP, BS_ZO_NORMAL, RGB(7, 0, 0), false);
    EXPECT_EQ(button.GetLineColor(LINE_BOTTOM, BS_ZO_DISABLED), RGB(13, 0, 0));
    EXPECT_EQ(button.GetLineColor(LINE_TOP, BS_ZO_NORMAL), RGB(7, 0, 0));
    EXPECT_EQ(button.GetLineColor(LINE_LEFT, BS_ZO_NORMAL), RGB(10, 0, 0));
    // Out-of-range states and lines change nothing.
    button.SetFaceColor(static_cast<E_ZoButtonStates>(9), RGB(9, 9, 9), false);
    button.SetLineColor(static_cast<E_ZoFlatButtonLines>(-1), RGB(9, 9, 9), false);
    EXPECT_EQ(button.GetFaceColor(static_cast<E_ZoButtonStates>(9)), CLR_INVALID);
    EXPECT_EQ(button.GetLineColor(LINE_LEFT, BS_ZO_NORMAL), RGB(10, 0, 0));
    // The face fill follows the setter.
    EXPECT_EQ(zotest::RenderClient(button.m_hWnd).Pixel(40, 10), RGB(1, 1, 1));
}

TEST_F(ButtonTest, DarkDefaultsChangeFacesButNotLines)
{
    CZoButton bright, dark;
    Make(bright, L"", BS_PUSHBUTTON);
    Make(dark, L"", BS_PUSHBUTTON, RECT{100, 10, 180, 34});
    bright.SetLineColor(LINE_LEFT, RGB(1, 2, 3), false);
    dark.SetLineColor(LINE_LEFT, RGB(1, 2, 3), false);
    bright.SetDefaultBrightColor(false, true);
    dark.SetDefaultDarkColor(false, true);
    for (int s = 0; s < BS_ZO_COUNT; ++s)
        for (int l = 0; l < LINE_COUNT; ++l)
            EXPECT_EQ(dark.GetLineColor(static_cast<E_ZoFlatButtonLines>(l), static_cast<E_ZoButtonStates>(s)),
                      bright.GetLineColor(static_cast<E_ZoFlatButtonLines>(l), static_cast<E_ZoButtonStates>(s)));
    dark.SetDefaultDarkColor(true, false);
    EXPECT_EQ(dark.GetFaceColor(BS_ZO_NORMAL), Slot(23));
    EXPECT_EQ(dark.GetFaceColor(BS_ZO_DISABLED), Slot(27));
}

TEST_F(ButtonTest, ToolTipCreatedUpdatedAndDestroyed)
{
    CZoButton button;
    button.SetToolTipText(L"Before");
    EXPECT_EQ(button.GetToolTipCtrl(), nullptr);
    Make(button, L"Tip", BS_PUSHBUTTON);
    button.SetToolTipText(L"Hello");
    CToolTipCtrl* tip = button.GetToolTipCtrl();
    ASSERT_NE(tip, nullptr);
    EXPECT_TRUE(::IsWindow(tip->GetSafeHwnd()));
    EXPECT_EQ(tip->GetToolCount(), 1);
    button.SetToolTipText(L"Again");
    EXPECT_EQ(button.GetToolTipCtrl(), tip);
    CString text;
    tip->GetText(text, &button);
    EXPECT_EQ(text, CString(L"Again"));
    button.SetToolTipText(L"");
    EXPECT_EQ(button.GetToolTipCtrl(), nullptr);
}

TEST_F(ButtonTest, RecreatedWindowReloadsItsStrip)
{
    CZoButton box;
    Make(box, L"", BS_AUTOCHECKBOX, RECT{10, 10, 110, 35});
    const zotest::Dib first = zotest::RenderClient(box.m_hWnd);
    box.DestroyWindow();
    Make(box, L"", BS_AUTOCHECKBOX, RECT{10, 10, 110, 35});
    const zotest::Dib second = zotest::RenderClient(box.m_hWnd);
    const RECT all = {0, 0, 100, 25};
    EXPECT_TRUE(zotest::MatchesCell(second, POINT{0, 0}, first, all));
    EXPECT_GT(controltest::CountPixels(second, Slot(0)), 0);
    EXPECT_LT(controltest::CountPixels(second, Slot(0)), 100 * 25);
}

} // namespace
