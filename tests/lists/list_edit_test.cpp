// Initialisation and in-place editing: what the list sets up once, and the conversation between
// the editor, the list and the list's parent when an edit opens, ends, moves to the next row or
// is cancelled.
#include "list_test_support.h"

#include <zotest/zotest.h>

#include <functional>
#include <string>

#include "controls/ZoEditInPlace.h"

using namespace ZoControls;
using controltest::Slot;
using listtest::ListTest;
using listtest::Row;

namespace {

const std::vector<Row> kRows = {
    {{L"alpha", L"1", L"x"}}, {{L"beta", L"2", L"y"}}, {{L"gamma", L"3", L"z"}},
};

using ListInitTest = ListTest;

TEST_F(ListInitTest, SetsUpStylesHeaderColoursAndEditableColumn)
{
    CZoListCtrl& list = MakeList(LVS_EDITLABELS, kRows);
    const DWORD wanted = LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP | LVS_EX_BORDERSELECT | LVS_EX_DOUBLEBUFFER;
    EXPECT_EQ(list.GetExtendedStyle() & wanted, wanted);
    EXPECT_EQ(CWnd::FromHandlePermanent(list.GetHeaderCtrl()->GetSafeHwnd()), &list.GetZoHeaderCtrl());
    EXPECT_EQ(list.GetBkColor(), Slot(38));
    EXPECT_EQ(list.GetTextBkColor(), Slot(38));
    EXPECT_EQ(list.GetTextColor(), Slot(41));
    EXPECT_EQ(list.GetEditableColumn(), 0);
    EXPECT_EQ(list.GetStyle() & LVS_EDITLABELS, 0u);
    EXPECT_NE(list.GetStyle() & WS_CLIPSIBLINGS, 0u);
}

TEST_F(ListInitTest, SubclassingAnExistingListInitialisesIt)
{
    const HWND native = MakeNative(WC_LISTVIEWW, LVS_REPORT, RECT{10, 10, 200, 200});
    CZoListCtrl list;
    ASSERT_TRUE(list.SubclassWindow(native));
    EXPECT_EQ(list.GetBkColor(), Slot(38));
    EXPECT_TRUE(::IsWindow(list.GetVertScrollBar()->GetSafeHwnd()));
    list.DestroyWindow();
}

// --- In-place editing --------------------------------------------------------------------------

class ListEditTest : public ListTest
{
protected:
    CZoListCtrl& MakeEditableList()
    {
        CZoListCtrl& list = MakeList(0, kRows);
        list.SetEditableColumn(1);
        list.SetFocus();
        return list;
    }
    BOOL PreTranslate(CWnd& wnd, UINT key)
    {
        MSG msg = {};
        msg.hwnd = wnd.GetSafeHwnd();
        msg.message = WM_KEYDOWN;
        msg.wParam = key;
        msg.lParam = 1;
        return wnd.PreTranslateMessage(&msg);
    }
    HWND EditControl() { return reinterpret_cast<HWND>(list_->SendMessage(LVM_GETEDITCONTROL)); }
    CZoEditInPlace* PressF2()
    {
        list_->SetItemState(0, LVIS_FOCUSED | LVIS_SELECTED, LVIS_FOCUSED | LVIS_SELECTED);
        EXPECT_TRUE(PreTranslate(*list_, VK_F2));
        return list_->GetInPlaceEditor();
    }
    // What editor, list and parent said to each other, in order.
    std::vector<std::string> Conversation(const zotest::MessageRecorder& recorder)
    {
        std::vector<std::string> said;
        for (const zotest::RecordedMessage& m : recorder.Messages())
        {
            if (m.role == zotest::WindowRole::Parent && m.message == WM_NOTIFY && m.code == LVN_ENDLABELEDITW)
                said.push_back("parent: end of edit");
            else if (m.role == zotest::WindowRole::Other && m.message == LVM_EDITLABELW)
                said.push_back("list: edit row " + std::to_string(m.wParam));
            else if (m.role == zotest::WindowRole::Other && m.message == LVM_CANCELEDITLABEL)
                said.push_back("list: cancel");
            else if (m.role == zotest::WindowRole::Control && m.message == WM_DESTROY)
                said.push_back("editor: destroyed");
        }
        return said;
    }
};

TEST_F(ListEditTest, F2OpensTheEditorOverTheFocusRowsEditableCell)
{
    CZoListCtrl& list = MakeEditableList();
    CZoEditInPlace* editor = PressF2();
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(EditControl(), editor->GetSafeHwnd());
    EXPECT_EQ(editor->GetDlgCtrlID(), CZoListCtrl::EditorId);
    EXPECT_EQ(::GetParent(editor->GetSafeHwnd()), list.GetSafeHwnd());
    CString text;
    editor->GetWindowText(text);
    EXPECT_EQ(text, CString(L"1"));
    CRect cell, placed;
    list.GetSubItemRect(0, 1, LVIR_LABEL, cell);
    editor->GetWindowRect(&placed);
    list.ScreenToClient(&placed);
    EXPECT_EQ(placed.left, cell.left);
    EXPECT_EQ(placed.Width(), list.GetColumnWidth(1));
    EXPECT_EQ(list.SendMessage(LVM_EDITLABELW, 7), 0); // no such row
}

TEST_F(ListEditTest, EnterReportsToTheParentAndTheListCancels)
{
    MakeEditableList();
    CZoEditInPlace* editor = PressF2();
    ASSERT_NE(editor, nullptr);
    zotest::MessageRecorder recorder;
    recorder.Watch(editor->GetSafeHwnd());
    recorder.Watch(list_->GetSafeHwnd(), zotest::WindowRole::Other);
    recorder.Watch(parent(), zotest::WindowRole::Parent);
    zotest::SendKey(editor->GetSafeHwnd(), VK_RETURN, L'\r');
    EXPECT_EQ(Conversation(recorder),
              (std::vector<std::string>{"parent: end of edit", "list: cancel", "editor: destroyed"}));
    EXPECT_EQ(EditControl(), nullptr);
}

// The editor moves to the next row from inside its own focus-loss handler: the list opens the
// next editor and retires the current one while that handler still runs.
TEST_F(ListEditTest, DownMovesTheEditToTheNextRow)
{
    MakeEditableList();
    CZoEditInPlace* editor = PressF2();
    ASSERT_NE(editor, nullptr);
    const HWND first = editor->GetSafeHwnd();
    zotest::MessageRecorder recorder;
    recorder.Watch(first);
    recorder.Watch(list_->GetSafeHwnd(), zotest::WindowRole::Other);
    recorder.Watch(parent(), zotest::WindowRole::Parent);
    EXPECT_TRUE(PreTranslate(*editor, VK_DOWN));
    EXPECT_EQ(Conversation(recorder),
              (std::vector<std::string>{"parent: end of edit", "list: edit row 1", "editor: destroyed"}));
    CZoEditInPlace* next = list_->GetInPlaceEditor();
    ASSERT_NE(next, nullptr);
    EXPECT_NE(next->GetSafeHwnd(), first);
    EXPECT_FALSE(::IsWindow(first));
    EXPECT_EQ(list_->GetFocusedItemIndex(), 1);
    CString text;
    next->GetWindowText(text);
    EXPECT_EQ(text, CString(L"2"));
    zotest::PumpUntilIdle(200);
}

// A parent that starts another edit when the list loses the focus to the editor being created:
// that editor is retired before its creation ends and deleted once (run under
// WINEDEBUG=warn+heap, which fills freed blocks), and one editor is left.
TEST_F(ListEditTest, AnEditStartedWhileTheEditorIsCreatedLeavesOneEditor)
{
    MakeEditableList();
    int reactions = 0;
    spy_.onNotify = [&](const NMHDR& header) {
        if (header.code == (UINT)NM_KILLFOCUS && reactions++ == 0)
            list_->SendMessage(LVM_EDITLABELW, 1, 0);
    };
    PressF2();
    spy_.onNotify = nullptr;
    zotest::PumpUntilIdle(200);
    EXPECT_EQ(reactions, 1);
    int editors = 0;
    for (HWND child = ::GetWindow(list_->GetSafeHwnd(), GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        editors += ::GetDlgCtrlID(child) == CZoListCtrl::EditorId;
    EXPECT_EQ(editors, 1);
    EXPECT_TRUE(::IsWindow(EditControl()));
}

TEST_F(ListEditTest, MovingAndCancellingLeaveNothingBehind)
{
    MakeEditableList();
    const auto cycle = [this]() {
        CZoEditInPlace* editor = PressF2();
        if (!editor)
            return;
        PreTranslate(*editor, VK_DOWN);
        if (CZoEditInPlace* next = list_->GetInPlaceEditor())
            zotest::SendKey(next->GetSafeHwnd(), VK_ESCAPE, 27);
        // The retired editors go once the queue is served.
        zotest::PumpUntilIdle();
    };
    // Wine creates a few objects of its own over the first edits of a process.
    for (int i = 0; i < 3; ++i)
        cycle();
    ZOTEST_EXPECT_NO_LEAKS(10, cycle, zotest::count_heap | zotest::count_user | zotest::count_gdi);
}

TEST_F(ListEditTest, ScrollWheelHeaderClickAndCancelEndTheEdit)
{
    const struct
    {
        const char* name;
        std::function<void()> act;
    } cancellers[] = {
        {"scroll", [this] { list_->SendMessage(WM_VSCROLL, SB_LINEDOWN, 0); }},
        {"wheel", [this] { list_->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0); }},
        {"header click", [this] { ClickHeader(0); }},
        {"cancel", [this] { list_->SendMessage(LVM_CANCELEDITLABEL); }},
        {"destroy", [this] { list_->DestroyWindow(); }},
    };
    for (const auto& c : cancellers)
    {
        MakeEditableList();
        CZoEditInPlace* editor = PressF2();
        ASSERT_NE(editor, nullptr) << c.name;
        const HWND hEditor = editor->GetSafeHwnd();
        c.act();
        EXPECT_FALSE(::IsWindow(hEditor)) << c.name;
        if (list_->GetSafeHwnd())
        {
            EXPECT_EQ(EditControl(), nullptr) << c.name;
        }
        zotest::PumpUntilIdle(100);
    }
}

TEST_F(ListEditTest, ClickOnTheSelectedRowsEditableCellEdits)
{
    CZoListCtrl& list = MakeEditableList();
    CRect cell;
    list.GetSubItemRect(2, 1, LVIR_LABEL, cell);
    zotest::SendClick(list.GetSafeHwnd(), cell.CenterPoint()); // selects the row
    EXPECT_EQ(EditControl(), nullptr);
    ASSERT_EQ(list.GetSelectedCount(), 1u);
    ASSERT_TRUE(list.GetItemState(2, LVIS_SELECTED));
    zotest::SendClick(list.GetSafeHwnd(), cell.CenterPoint());
    ASSERT_NE(list.GetInPlaceEditor(), nullptr);
    CString text;
    list.GetInPlaceEditor()->GetWindowText(text);
    EXPECT_EQ(text, CString(L"3"));
}

TEST_F(ListEditTest, EscapeAndEnterGoToTheParent)
{
    CZoListCtrl& list = MakeEditableList();
    zotest::MessageRecorder recorder;
    recorder.Watch(parent(), zotest::WindowRole::Parent);
    EXPECT_TRUE(PreTranslate(list, VK_ESCAPE));
    EXPECT_TRUE(PreTranslate(list, VK_RETURN));
    zotest::PumpUntilIdle(200);
    const std::vector<zotest::RecordedMessage> keys = recorder.MessagesOf(WM_KEYDOWN);
    ASSERT_EQ(keys.size(), 2u);
    EXPECT_EQ(keys[0].wParam, static_cast<WPARAM>(VK_ESCAPE));
    EXPECT_EQ(keys[1].wParam, static_cast<WPARAM>(VK_RETURN));
    EXPECT_TRUE(keys[0].posted);
    EXPECT_FALSE(PreTranslate(list, 'A'));
}

} // namespace
