// The <afxwin.h> control wrappers against the real controls.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <zotest/resource_counter.h>
#include <zotest/test_window.h>

#include "control_host.h"

namespace {

class ControlsTest : public ControlHostTest
{
};

} // namespace

TEST_F(ControlsTest, EditSelectionLimitAndLines)
{
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | ES_MULTILINE | ES_AUTOVSCROLL, CRect(0, 0, 200, 80), parent, 4745));
    EXPECT_EQ(CString(L"Edit"), WindowClassOf(edit.m_hWnd));
    edit.SetWindowText(L"first line\r\nsecond");
    EXPECT_EQ(2, edit.GetLineCount());
    EXPECT_EQ(12, edit.LineIndex(1));
    EXPECT_EQ(6, edit.LineLength(12));
    wchar_t line[4];
    EXPECT_EQ(4, edit.GetLine(1, line, 4));
    EXPECT_EQ(0, wcsncmp(line, L"seco", 4));
    EXPECT_EQ(0, edit.GetLine(1, line, 0));

    edit.SetSel(2, 5);
    int start = -1, end = -1;
    edit.GetSel(start, end);
    EXPECT_EQ(2, start);
    EXPECT_EQ(5, end);
    EXPECT_EQ(MAKELONG(2, 5), (LONG)edit.GetSel());
    edit.ReplaceSel(L"X", TRUE);
    CString text;
    edit.GetWindowText(text);
    EXPECT_EQ(CString(L"fiX line\r\nsecond"), text);
    edit.SetModify(TRUE);
    EXPECT_TRUE(edit.GetModify());
    edit.SetModify(FALSE);
    EXPECT_FALSE(edit.GetModify());
    EXPECT_TRUE(edit.CanUndo());
    edit.EmptyUndoBuffer();
    EXPECT_FALSE(edit.CanUndo());

    edit.SetLimitText(40);
    EXPECT_EQ(40u, edit.GetLimitText());
    edit.LimitText(7);
    EXPECT_EQ(7u, edit.GetLimitText());
    EXPECT_TRUE(edit.SetReadOnly(TRUE));
    EXPECT_TRUE(edit.GetStyle() & ES_READONLY);
}

TEST_F(ControlsTest, DestroyedControlsAnswerQuietly)
{
    CComboBox combo;
    ASSERT_TRUE(combo.Create(WS_CHILD | CBS_DROPDOWNLIST, CRect(0, 0, 100, 100), parent, 9));
    combo.DestroyWindow();
    EXPECT_EQ(nullptr, combo.m_hWnd);
    EXPECT_EQ(0, combo.GetCount());
    CString text(L"stale");
    combo.GetLBText(0, text);
    EXPECT_TRUE(text.IsEmpty());
    CScrollBar bar;
    EXPECT_EQ(0, bar.GetScrollLimit());
    CEdit edit;
    int start = 7, end = 7;
    edit.GetSel(start, end);
    EXPECT_EQ(0, start);
    EXPECT_EQ(0, end);
}

namespace {

class CountingButton : public CButton
{
public:
    int draws = 0;
    void DrawItem(LPDRAWITEMSTRUCT item) override
    {
        if (item->CtlType == ODT_BUTTON)
            ++draws;
    }
};

class CountingListBox : public CListBox
{
public:
    int draws = 0;
    int measures = 0;
    void DrawItem(LPDRAWITEMSTRUCT) override { ++draws; }
    void MeasureItem(LPMEASUREITEMSTRUCT item) override
    {
        ++measures;
        item->itemHeight = 21;
    }
};

} // namespace

// The parent reflects WM_DRAWITEM and WM_MEASUREITEM to the wrappers' virtuals.
TEST(ControlsOwnerDraw, ParentReflectsItemMessagesToTheControl)
{
    CWnd owner;
    ASSERT_TRUE(owner.CreateEx(0, AfxRegisterWndClass(0), L"owner", WS_POPUP | WS_VISIBLE, CRect(0, 0, 200, 200),
                               NULL, 0));
    CountingButton button;
    ASSERT_TRUE(button.Create(L"", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, CRect(0, 0, 60, 24), &owner, 1));
    button.Invalidate();
    button.UpdateWindow();
    EXPECT_GT(button.draws, 0);

    CountingListBox list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS, CRect(0, 30, 150, 150),
                            &owner, 2));
    list.AddString(L"one");
    list.Invalidate();
    list.UpdateWindow();
    EXPECT_GT(list.draws, 0);
    EXPECT_EQ(21, list.GetItemHeight(0));
    owner.DestroyWindow();
}
