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
