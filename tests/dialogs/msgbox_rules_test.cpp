// The message box's rules called with numbers: buttons, captions and results per type, default
// buttons, icons and title words, and the layout.
#include <gtest/gtest.h>

#include "dialogs/ZoMessageBoxRules.h"
#include "resources/resource.h"

using namespace ZoControls;

namespace {

TEST(MessageBoxTypes, CaptionsResultsAndEscape)
{
    struct Case
    {
        UINT type;
        UINT captions[3];
        int results[3];
        int escape;
    };
    const Case cases[] = {
        {MB_OK, {IDS_ZO_OK, 0, 0}, {IDOK, 0, 0}, IDCANCEL}, // Escape and OK differ, deliberately
        {MB_OKCANCEL, {IDS_ZO_CANCEL, IDS_ZO_OK, 0}, {IDCANCEL, IDOK, 0}, IDCANCEL},
        {MB_ABORTRETRYIGNORE, {IDS_ZO_IGNORE, IDS_ZO_RETRY, IDS_ZO_ABORT}, {IDIGNORE, IDRETRY, IDABORT}, IDIGNORE},
        {MB_YESNOCANCEL, {IDS_ZO_CANCEL, IDS_ZO_NO, IDS_ZO_YES}, {IDCANCEL, IDNO, IDYES}, IDCANCEL},
        {MB_YESNO, {IDS_ZO_NO, IDS_ZO_YES, 0}, {IDNO, IDYES, 0}, IDNO},
        {MB_RETRYCANCEL, {IDS_ZO_CANCEL, IDS_ZO_RETRY, 0}, {IDCANCEL, IDRETRY, 0}, IDCANCEL},
    };
    for (const Case& c : cases) {
        const ZoMsgBoxTypeRule rule = ZoMessageBoxTypeRule(c.type | MB_ICONQUESTION | MB_DEFBUTTON2);
        EXPECT_TRUE(rule.known);
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(c.captions[i], rule.captions[i]) << c.type << " button " << i;
            if (c.captions[i]) {
                EXPECT_EQ(c.results[i], rule.results[i]) << c.type << " button " << i;
            }
        }
        EXPECT_EQ(c.escape, rule.escape) << c.type;
    }
    // Types 6 and 7 swallow Escape; other unknown types keep the template's buttons.
    EXPECT_EQ(ZO_MSGBOX_NO_RESULT, ZoMessageBoxTypeRule(6).escape);
    EXPECT_EQ(ZO_MSGBOX_NO_RESULT, ZoMessageBoxTypeRule(7).escape);
    EXPECT_FALSE(ZoMessageBoxTypeRule(8).known);
    EXPECT_EQ(IDCANCEL, ZoMessageBoxTypeRule(8).escape);
}

TEST(MessageBoxTypes, DefaultButtons)
{
    struct Case
    {
        UINT type;
        E_ZoMsgBoxButton expected;
    };
    const Case cases[] = {
        {MB_OK | MB_DEFBUTTON1, ZoMsgBoxButton_None},
        {MB_OKCANCEL | MB_DEFBUTTON1, ZoMsgBoxButton_Middle},
        {MB_YESNO | MB_DEFBUTTON2, ZoMsgBoxButton_Right},
        {MB_RETRYCANCEL | MB_DEFBUTTON3, ZoMsgBoxButton_None},
        {MB_YESNOCANCEL | MB_DEFBUTTON1, ZoMsgBoxButton_Left},
        {MB_ABORTRETRYIGNORE | MB_DEFBUTTON2, ZoMsgBoxButton_Middle},
        {MB_YESNOCANCEL | MB_DEFBUTTON3, ZoMsgBoxButton_Right},
        {MB_YESNOCANCEL | MB_DEFBUTTON4, ZoMsgBoxButton_None},
        {7 | MB_DEFBUTTON1, ZoMsgBoxButton_None},
    };
    for (const Case& c : cases)
        EXPECT_EQ(c.expected, ZoMessageBoxDefaultButton(c.type)) << std::hex << c.type;
}

TEST(MessageBoxIcons, BitmapAndTitleWord)
{
    EXPECT_EQ(UINT(IDB_ZO_MSGBOX_ERROR), ZoMessageBoxIconRule(MB_ICONHAND).bitmap);
    EXPECT_EQ(UINT(IDS_ZO_ERROR), ZoMessageBoxIconRule(MB_ICONHAND | MB_YESNO).titleWord);
    EXPECT_EQ(UINT(IDB_ZO_MSGBOX_WARNING), ZoMessageBoxIconRule(MB_ICONEXCLAMATION).bitmap);
    EXPECT_EQ(UINT(IDS_ZO_WARNING), ZoMessageBoxIconRule(MB_ICONEXCLAMATION).titleWord);
    EXPECT_EQ(UINT(IDB_ZO_MSGBOX_QUESTION), ZoMessageBoxIconRule(MB_ICONQUESTION).bitmap);
    EXPECT_EQ(UINT(IDS_ZO_QUESTION), ZoMessageBoxIconRule(MB_ICONQUESTION).titleWord);
    // Asterisk, no icon and the undefined 0x50..0x70 all show information.
    for (UINT icon : {UINT(MB_ICONASTERISK), 0u, 0x50u, 0x70u}) {
        EXPECT_EQ(UINT(IDB_ZO_MSGBOX_INFORMATION), ZoMessageBoxIconRule(icon).bitmap) << icon;
        EXPECT_EQ(UINT(IDS_ZO_INFO), ZoMessageBoxIconRule(icon).titleWord) << icon;
    }
}

// Template figures at the standard font: icon (18, 17, 50, 50), first button (242, 137, 310, 160),
// check box (62, 110, 255, 126), client 320 x 163.
const CRect kIcon(18, 17, 50, 50);
const CRect kButton(242, 137, 310, 160);
const CRect kCheck(62, 110, 255, 126);
const CRect kClient(0, 0, 320, 163);

TEST(MessageBoxLayout, ShortLowTextWidensAndCentresOnTheIcon)
{
    const ZoMsgBoxLayout layout = ZoLayoutMessageBox(kIcon, kButton, kCheck, kClient, CSize(100, 13));
    // Width 68 + 100 + 18 = 186 falls 114 short of 300: the text moves right by 38.
    EXPECT_EQ(300, layout.width);
    EXPECT_EQ(68 + 38, layout.text.left);
    EXPECT_EQ(68 + 38 + 100, layout.text.right);
    // 13 of the icon's 33 pixels: 10 lower.
    EXPECT_EQ(17 + 10, layout.text.top);
    EXPECT_EQ(17 + 10 + 13, layout.text.bottom);
    // 163 - 137 + 40 + 17 = 83 is raised to the minimum.
    EXPECT_EQ(120, layout.height);
}

TEST(MessageBoxLayout, WideTallTextSetsTheSize)
{
    const ZoMsgBoxLayout layout = ZoLayoutMessageBox(kIcon, kButton, kCheck, kClient, CSize(5000, 200));
    EXPECT_EQ(68 + 5000 + 18, layout.width);
    EXPECT_EQ(CRect(68, 17, 5068, 217), layout.text);
    EXPECT_EQ(163 - 137 + 217 + 17, layout.height);
}

TEST(MessageBoxLayout, ButtonsRightToLeftAndTheCheckBoxBetween)
{
    const ZoMsgBoxLayout layout = ZoLayoutMessageBox(kIcon, kButton, kCheck, kClient, CSize(100, 13));
    // 68 wide: the first ends 68 / 8 = 8 pixels from the right, 8 above the bottom.
    EXPECT_EQ(CRect(300 - 8 - 68, 120 - 8 - 23, 300 - 8, 120 - 8), layout.buttons[0]);
    EXPECT_EQ(layout.buttons[0].left - 3, layout.buttons[1].right);
    EXPECT_EQ(layout.buttons[1].left - 3, layout.buttons[2].right);
    EXPECT_EQ(layout.buttons[0].top, layout.buttons[2].top);
    // Centred between the text's left edge and the template's right edge, level with the buttons.
    EXPECT_EQ(68 + (320 - 193 - 68) / 2, layout.check.left);
    EXPECT_EQ(layout.buttons[0].top + (23 - 16) / 2, layout.check.top);
    EXPECT_EQ(CSize(193, 16), layout.check.Size());
}

TEST(MessageBoxLayout, EmptyIconAndTextStillGiveTheMinimum)
{
    const CRect none(0, 0, 0, 0);
    const ZoMsgBoxLayout layout = ZoLayoutMessageBox(none, none, none, none, CSize(0, 0));
    EXPECT_EQ(300, layout.width);
    EXPECT_EQ(120, layout.height);
}

} // namespace
