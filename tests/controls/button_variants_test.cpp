// CZoFlatButton, CZoToggleButton, CZoButton4MsgBox: margins, focus cues, the toggle's face
// behind its box, and the message-box button's kind.
#include "controls_test_support.h"

#include "controls/ZoButtonVariants.h"

using namespace ZoControls;
using controltest::Slot;

namespace {

class VariantTest : public controltest::ControlTest
{
protected:
    static RECT Margins(CButton& button)
    {
        RECT margin = {-1, -1, -1, -1};
        button.SendMessage(BCM_GETTEXTMARGIN, 0, reinterpret_cast<LPARAM>(&margin));
        return margin;
    }
};

TEST_F(VariantTest, FlatLinesBeforeInit)
{
    CZoFlatButton flat;
    EXPECT_EQ(flat.GetLineColor(LINE_LEFT, BS_ZO_NORMAL), Slot(18));
    EXPECT_EQ(flat.GetLineColor(LINE_BOTTOM, BS_ZO_DISABLED), Slot(18));
    EXPECT_EQ(flat.GetLineColor(LINE_TOP, BS_ZO_HOT), Slot(19));
    EXPECT_EQ(flat.GetLineColor(LINE_RIGHT, BS_ZO_PRESSED), Slot(20));
    // The font-role constructor sets nothing up.
    CZoFlatButton withFont(ZoThemeFont_3);
    EXPECT_EQ(withFont.GetLineColor(LINE_LEFT, BS_ZO_NORMAL), ZO_LINE_NOT_DRAWN);
}

TEST_F(VariantTest, FlatPushTextInsetByThreePixels)
{
    CZoFlatButton flat;
    MakeButton(flat, L"MM", BS_PUSHBUTTON | BS_LEFT | BS_TOP);
    const RECT m = Margins(flat);
    EXPECT_EQ(m.left, 3);
    EXPECT_EQ(m.top, 3);
    EXPECT_EQ(m.right, 3);
    EXPECT_EQ(m.bottom, 3);
}

TEST_F(VariantTest, FlatAndToggleNeverShowFocus)
{
    CZoFlatButton flat;
    CZoToggleButton toggle;
    MakeButton(flat, L"Flat", BS_PUSHBUTTON);
    MakeButton(toggle, L"Toggle", BS_AUTOCHECKBOX, RECT{10, 50, 110, 75});
    const zotest::Dib flatBefore = zotest::RenderClient(flat.m_hWnd);
    const zotest::Dib toggleBefore = zotest::RenderClient(toggle.m_hWnd);
    SetForegroundWindow(parent());
    flat.SetFocus();
    ASSERT_TRUE(flat.GetState() & BST_FOCUS);
    EXPECT_EQ(controltest::Differences(flatBefore, zotest::RenderClient(flat.m_hWnd)), 0);
    toggle.SetFocus();
    ASSERT_TRUE(toggle.GetState() & BST_FOCUS);
    EXPECT_EQ(controltest::Differences(toggleBefore, zotest::RenderClient(toggle.m_hWnd)), 0);
}

TEST_F(VariantTest, ToggleFaceFollowsCheckHoverAndEnable)
{
    CZoToggleButton toggle;
    MakeButton(toggle, L"", BS_AUTOCHECKBOX);
    // Corner pixels inside the face, away from the box on the left.
    EXPECT_EQ(zotest::RenderClient(toggle.m_hWnd).Pixel(70, 3), Slot(13));
    EXPECT_EQ(zotest::RenderClient(toggle.m_hWnd).Pixel(0, 0), Slot(18));
    toggle.SetCheck(BST_CHECKED);
    EXPECT_EQ(zotest::RenderClient(toggle.m_hWnd).Pixel(70, 3), Slot(15));
    EXPECT_EQ(zotest::RenderClient(toggle.m_hWnd).Pixel(79, 23), Slot(20));
    toggle.SetCheck(BST_UNCHECKED);
    SendMessage(toggle.m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
    EXPECT_EQ(zotest::RenderClient(toggle.m_hWnd).Pixel(70, 3), Slot(14));
    toggle.SetCheck(BST_CHECKED);
    toggle.EnableWindow(FALSE);
    EXPECT_EQ(zotest::RenderClient(toggle.m_hWnd).Pixel(70, 3), Slot(17));
}

TEST_F(VariantTest, MsgBoxButtonKindSetBeforeCreation)
{
    CZoButton4MsgBox def, plain;
    EXPECT_TRUE(def.SetAsDefault(true));
    EXPECT_TRUE(plain.SetAsDefault(false));
    MakeButton(def, L"OK", BS_AUTOCHECKBOX | BS_LEFTTEXT);
    MakeButton(plain, L"Cancel", BS_DEFPUSHBUTTON, RECT{120, 10, 200, 35});
    EXPECT_EQ(def.GetStyle() & BS_TYPEMASK, static_cast<DWORD>(BS_DEFPUSHBUTTON));
    EXPECT_EQ(plain.GetStyle() & BS_TYPEMASK, static_cast<DWORD>(BS_PUSHBUTTON));
    // Painted as push buttons.
    EXPECT_EQ(zotest::RenderClient(def.m_hWnd).Pixel(0, 0), Slot(18));
}

TEST_F(VariantTest, MsgBoxButtonKindAfterCreationIsRefused)
{
    CZoButton4MsgBox button;
    MakeButton(button, L"Yes", BS_PUSHBUTTON);
    EXPECT_FALSE(button.SetAsDefault(true));
    button.DestroyWindow();
    MakeButton(button, L"Yes", BS_PUSHBUTTON);
    EXPECT_EQ(button.GetStyle() & BS_TYPEMASK, static_cast<DWORD>(BS_PUSHBUTTON));
}

} // namespace
