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

TEST_F(ControlsTest, ButtonCheckStateAndStyle)
{
    CButton check;
    ASSERT_TRUE(check.Create(L"Check", WS_CHILD | WS_VISIBLE | BS_AUTO3STATE, CRect(0, 0, 80, 20), parent, 805));
    EXPECT_EQ(CString(L"Button"), WindowClassOf(check.m_hWnd));
    EXPECT_EQ(805, check.GetDlgCtrlID());
    EXPECT_EQ(BST_UNCHECKED, check.GetCheck());
    check.SetCheck(BST_INDETERMINATE);
    EXPECT_EQ(BST_INDETERMINATE, check.GetCheck());
    EXPECT_EQ((UINT)BST_INDETERMINATE, check.GetState() & 3);
    check.SetState(TRUE);
    EXPECT_TRUE(check.GetState() & BST_PUSHED);
    check.SetState(FALSE);
    EXPECT_FALSE(check.GetState() & BST_PUSHED);
    EXPECT_EQ((UINT)BS_AUTO3STATE, check.GetButtonStyle() & BS_TYPEMASK);
    check.SetButtonStyle(BS_AUTOCHECKBOX, FALSE);
    EXPECT_EQ((UINT)BS_AUTOCHECKBOX, check.GetButtonStyle() & BS_TYPEMASK);
    EXPECT_TRUE(check.IsKindOf(RUNTIME_CLASS(CButton)));
}

TEST_F(ControlsTest, ButtonImagesAndMargins)
{
    CButton button;
    ASSERT_TRUE(button.Create(L"", WS_CHILD | BS_PUSHBUTTON | BS_BITMAP, CRect(0, 0, 40, 40), parent, 1));
    HBITMAP bitmap = ::CreateBitmap(8, 8, 1, 32, NULL);
    EXPECT_EQ(nullptr, button.SetBitmap(bitmap));
    EXPECT_EQ(bitmap, button.GetBitmap());
    EXPECT_EQ(bitmap, button.SetBitmap(NULL));
    ::DeleteObject(bitmap);
    RECT margin = { 3, 3, 3, 3 };
    // BCM_ messages belong to comctl32 version 6, which a process without its manifest lacks.
    if (!button.SetTextMargin(&margin))
        GTEST_SKIP() << "no comctl32 version 6 buttons in this process";
    RECT back = {};
    EXPECT_TRUE(button.GetTextMargin(&back));
    EXPECT_EQ(3, back.left);
    EXPECT_EQ(3, back.bottom);
}

TEST_F(ControlsTest, StaticPicture)
{
    CStatic picture;
    ASSERT_TRUE(picture.Create(L"", WS_CHILD | SS_BITMAP, CRect(0, 0, 32, 32), parent));
    EXPECT_EQ(CString(L"Static"), WindowClassOf(picture.m_hWnd));
    EXPECT_EQ(0xffff, picture.GetDlgCtrlID());
    HBITMAP bitmap = ::CreateBitmap(8, 8, 1, 32, NULL);
    picture.SetBitmap(bitmap);
    EXPECT_EQ(bitmap, picture.GetBitmap());
    picture.DestroyWindow();
    ::DeleteObject(bitmap);

    CStatic icon;
    ASSERT_TRUE(icon.Create(L"", WS_CHILD | SS_ICON, CRect(0, 0, 32, 32), parent, 801));
    HICON information = ::LoadIcon(NULL, IDI_INFORMATION);
    icon.SetIcon(information);
    EXPECT_EQ(information, icon.GetIcon());
}

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

TEST_F(ControlsTest, EditMarginsPasswordAndRect)
{
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, CRect(0, 0, 120, 24), parent, 1));
    edit.SetMargins(4, 6);
    EXPECT_EQ(MAKELONG(4, 6), (LONG)edit.GetMargins());
    edit.SetPasswordChar(L'*');
    EXPECT_EQ(L'*', edit.GetPasswordChar());
    CRect format;
    edit.GetRect(&format);
    EXPECT_GT(format.Width(), 0);
    EXPECT_LE(format.Width(), 120 - 4 - 6);
}

TEST_F(ControlsTest, ComboStringsSelectionAndData)
{
    CComboBox combo;
    ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, CRect(0, 0, 150, 200), parent, 5));
    EXPECT_EQ(CString(L"ComboBox"), WindowClassOf(combo.m_hWnd));
    EXPECT_EQ(0, combo.AddString(L"alpha"));
    EXPECT_EQ(1, combo.AddString(L"beta"));
    EXPECT_EQ(0, combo.InsertString(0, L"zero"));
    EXPECT_EQ(3, combo.GetCount());
    EXPECT_EQ(CB_ERR, combo.GetCurSel());
    EXPECT_EQ(2, combo.SetCurSel(2));
    EXPECT_EQ(2, combo.GetCurSel());
    CString text;
    combo.GetLBText(1, text);
    EXPECT_EQ(CString(L"alpha"), text);
    EXPECT_EQ(5, combo.GetLBTextLen(1));
    combo.GetLBText(9, text);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(2, combo.FindString(-1, L"be"));
    EXPECT_EQ(CB_ERR, combo.FindStringExact(-1, L"be"));
    EXPECT_EQ(1, combo.SelectString(-1, L"al"));
    EXPECT_EQ(1, combo.GetCurSel());
    EXPECT_NE(CB_ERR, combo.SetItemData(1, 0xBEEF));
    EXPECT_EQ((DWORD_PTR)0xBEEF, combo.GetItemData(1));
    EXPECT_EQ(2, combo.DeleteString(0));
    combo.ResetContent();
    EXPECT_EQ(0, combo.GetCount());
}

TEST_F(ControlsTest, ComboEditSelectionDropAndInfo)
{
    CComboBox combo;
    ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, CRect(0, 0, 150, 200), parent, 5));
    combo.SetWindowText(L"hello");
    EXPECT_TRUE(combo.SetEditSel(1, 3));
    EXPECT_EQ(MAKELONG(1, 3), (LONG)combo.GetEditSel());
    combo.LimitText(10); // Windows answers TRUE; Wine passes on the inner edit's answer
    EXPECT_NE(CB_ERR, combo.SetDroppedWidth(220));
    EXPECT_EQ(220, combo.GetDroppedWidth());
    EXPECT_FALSE(combo.GetDroppedState());
    COMBOBOXINFO info = {};
    info.cbSize = sizeof(info);
    ASSERT_TRUE(combo.GetComboBoxInfo(&info));
    EXPECT_EQ(combo.m_hWnd, info.hwndCombo);
    ASSERT_NE(nullptr, info.hwndItem); // the inner edit of CBS_DROPDOWN
    EXPECT_EQ(10, (int)::SendMessageW(info.hwndItem, EM_GETLIMITTEXT, 0, 0));
    CRect dropped;
    combo.GetDroppedControlRect(&dropped);
    EXPECT_GT(dropped.Height(), 0);
    EXPECT_GT(combo.GetItemHeight(-1), 0);
}

TEST_F(ControlsTest, ListBoxStringsAndSelection)
{
    CListBox list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LBS_NOTIFY, CRect(0, 0, 100, 100), parent, 6));
    EXPECT_EQ(CString(L"ListBox"), WindowClassOf(list.m_hWnd));
    list.AddString(L"one");
    list.AddString(L"two");
    EXPECT_EQ(2, list.GetCount());
    CString text;
    list.GetText(1, text);
    EXPECT_EQ(CString(L"two"), text);
    list.GetText(5, text);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(1, list.SetCurSel(1));
    EXPECT_EQ(1, list.GetCurSel());
    list.SetItemDataPtr(0, &list);
    EXPECT_EQ((void*)&list, list.GetItemDataPtr(0));
    BOOL outside = FALSE;
    CRect first;
    list.GetItemRect(0, &first);
    EXPECT_EQ(0u, list.ItemFromPoint(first.CenterPoint(), outside));
    EXPECT_FALSE(outside);
}

TEST_F(ControlsTest, ScrollBarRangePositionAndInfo)
{
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(WS_CHILD | WS_VISIBLE | SBS_VERT, CRect(0, 0, 17, 150), parent, 3));
    EXPECT_EQ(CString(L"ScrollBar"), WindowClassOf(bar.m_hWnd));
    bar.SetScrollRange(10, 110, FALSE);
    int low = 0, high = 0;
    bar.GetScrollRange(&low, &high);
    EXPECT_EQ(10, low);
    EXPECT_EQ(110, high);
    bar.GetScrollRange(NULL, NULL);
    EXPECT_EQ(10, bar.SetScrollPos(60));
    EXPECT_EQ(60, bar.GetScrollPos());

    SCROLLINFO info = {};
    info.fMask = SIF_PAGE;
    info.nPage = 20;
    ASSERT_TRUE(bar.SetScrollInfo(&info, FALSE));
    SCROLLINFO back = {};
    ASSERT_TRUE(bar.GetScrollInfo(&back));
    EXPECT_EQ(10, back.nMin);
    EXPECT_EQ(110, back.nMax);
    EXPECT_EQ(20u, back.nPage);
    EXPECT_EQ(60, back.nPos);
    EXPECT_EQ(91, bar.GetScrollLimit());
    EXPECT_FALSE(bar.GetScrollInfo(NULL));
    EXPECT_FALSE(bar.SetScrollInfo(NULL));
    EXPECT_TRUE(bar.EnableScrollBar(ESB_DISABLE_BOTH));
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

TEST_F(ControlsTest, CreateDestroyCyclesLeakNothing)
{
    ZOTEST_EXPECT_NO_LEAKS(5, [this] {
        CButton button;
        button.Create(L"OK", WS_CHILD | WS_VISIBLE, CRect(0, 0, 40, 20), parent, 1);
        CEdit edit;
        edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 30, 40, 50), parent, 2);
        CComboBox combo;
        combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, CRect(0, 60, 80, 160), parent, 3);
        combo.AddString(L"x");
        CScrollBar bar;
        bar.Create(WS_CHILD | WS_VISIBLE, CRect(0, 170, 80, 187), parent, 4);
    });
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
