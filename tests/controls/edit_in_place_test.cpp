// CZoEditInPlace over a native list view: which keys end the edit, what the notify window and
// the list receive and in which order, widening up to the list's edge, and lists or notify
// windows that go away or are not lists at all.
#include "controls_test_support.h"

#include <commctrl.h>

#include <memory>
#include <string>
#include <vector>

#include "controls/ZoEditInPlace.h"

using namespace ZoControls;

TEST(EditInPlaceRules, EndingCharacters)
{
    struct Row
    {
        UINT ch;
        bool ctrl, shift;
        E_ZoEditEndReason reason;
    };
    const Row rows[] = {
        {13, false, false, ZoEditEnd_Enter},  {13, true, false, ZoEditEnd_None},
        {27, false, false, ZoEditEnd_Escape}, {27, true, false, ZoEditEnd_None},
        {38, false, false, ZoEditEnd_MoveUp}, {40, false, false, ZoEditEnd_MoveDown}, // "&" and "(" move
        {38, false, true, ZoEditEnd_None},    {40, false, true, ZoEditEnd_None},
        {'a', false, false, ZoEditEnd_None},
    };
    for (const Row& row : rows)
        EXPECT_EQ(ZoInPlaceEndReasonForChar(row.ch, row.ctrl, row.shift), row.reason) << row.ch;
}

TEST(EditInPlaceRules, KeyDownRouting)
{
    const struct
    {
        UINT key;
        E_ZoInPlaceKeyRoute route;
    } rows[] = {
        {VK_RETURN, ZoInPlaceKey_DispatchNow}, {VK_ESCAPE, ZoInPlaceKey_DispatchNow},
        {VK_DELETE, ZoInPlaceKey_DispatchNow}, {VK_LEFT, ZoInPlaceKey_DispatchNow},
        {VK_RIGHT, ZoInPlaceKey_DispatchNow},  {VK_UP, ZoInPlaceKey_MoveUp},
        {VK_DOWN, ZoInPlaceKey_MoveDown},      {VK_HOME, ZoInPlaceKey_Base},
        {VK_END, ZoInPlaceKey_Base},           {'A', ZoInPlaceKey_TranslateOnly},
        {VK_TAB, ZoInPlaceKey_TranslateOnly},
    };
    for (const auto& row : rows)
        EXPECT_EQ(ZoInPlaceKeyRouteOf(row.key), row.route) << row.key;
}

TEST(EditInPlaceRules, WideningAndNextRow)
{
    EXPECT_EQ(ZoInPlaceWidenedRight(10, 60, 46, 30, 200), 60);   // fits: unchanged
    EXPECT_EQ(ZoInPlaceWidenedRight(10, 60, 46, 80, 200), 95);   // text + 5
    EXPECT_EQ(ZoInPlaceWidenedRight(10, 60, 46, 500, 200), 200); // the parent's edge
    EXPECT_EQ(ZoInPlaceWidenedRight(10, 60, 46, 500, 40), 60);   // never narrower
    EXPECT_EQ(ZoInPlaceNextRow(ZoEditEnd_MoveUp, 0, 3), -1);
    EXPECT_EQ(ZoInPlaceNextRow(ZoEditEnd_MoveUp, 2, 3), 1);
    EXPECT_EQ(ZoInPlaceNextRow(ZoEditEnd_MoveDown, 2, 3), -1);
    EXPECT_EQ(ZoInPlaceNextRow(ZoEditEnd_MoveDown, 0, 0), -1); // not a list: no rows
    EXPECT_EQ(ZoInPlaceNextRow(ZoEditEnd_Enter, 1, 3), -1);
}

namespace {

const UINT kListId = 44;
const UINT kEditorId = 45;

// What the notify window was told, copied while the message is handled.
struct EndReport
{
    WPARAM wParam;
    HWND from;
    UINT_PTR id;
    UINT code;
    int item, subItem, cchTextMax;
    UINT mask;
    std::wstring text;
};

std::vector<EndReport>& Reports()
{
    static std::vector<EndReport> reports;
    return reports;
}

LRESULT CALLBACK SinkProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NOTIFY) {
        const NMLVDISPINFOW* info = reinterpret_cast<const NMLVDISPINFOW*>(lParam);
        Reports().push_back({wParam, info->hdr.hwndFrom, info->hdr.idFrom, info->hdr.code, info->item.iItem,
                             info->item.iSubItem, info->item.cchTextMax, info->item.mask,
                             info->item.pszText ? info->item.pszText : L"(null)"});
        return 0;
    }
    return ::DefWindowProcW(window, message, wParam, lParam);
}

HWND MakeSink()
{
    static ATOM atom = 0;
    if (!atom) {
        WNDCLASSW wc = {};
        wc.lpfnWndProc = SinkProc;
        wc.hInstance = ::GetModuleHandleW(nullptr);
        wc.lpszClassName = L"ZoTestNotifySink";
        atom = ::RegisterClassW(&wc);
    }
    return ::CreateWindowExW(0, L"ZoTestNotifySink", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                             ::GetModuleHandleW(nullptr), nullptr);
}

class EditInPlaceTest : public controltest::ControlTest
{
protected:
    void SetUp() override
    {
        ControlTest::SetUp();
        Reports().clear();
        sink_.Reset(MakeSink());
        list_ = ::CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_LIST, 10, 10, 200, 120, parent(),
                                  reinterpret_cast<HMENU>(static_cast<INT_PTR>(kListId)), nullptr, nullptr);
        ASSERT_TRUE(list_);
        for (int i = 0; i < 3; ++i) {
            LVITEMW item = {};
            item.mask = LVIF_TEXT;
            item.iItem = i;
            item.pszText = const_cast<wchar_t*>(L"row");
            ::SendMessageW(list_, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        }
    }
    void TearDown() override
    {
        recorder_.UnwatchAll();
        if (editor_ && editor_->GetSafeHwnd())
            editor_->DestroyWindow();
        editor_.reset();
        sink_.Reset();
        ControlTest::TearDown();
    }

    // An editor for (item, 1) over (20, 4)-(80, 22) of `list`, then recording.
    void Open(int item, const wchar_t* text = L"old", HWND list = nullptr)
    {
        editor_ = std::make_unique<CZoEditInPlace>(sink_.get(), item, 1, text);
        ASSERT_TRUE(editor_->Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, CRect(20, 4, 80, 22),
                                    CWnd::FromHandle(list ? list : list_), kEditorId));
        recorder_.MatchOnlyListed(true);
        recorder_.Watch(list ? list : list_, zotest::WindowRole::Parent);
        recorder_.Watch(sink_.get(), zotest::WindowRole::Other);
    }
    void Char(wchar_t ch) { editor_->SendMessage(WM_CHAR, ch, 1); }
    BOOL KeyDown(UINT key)
    {
        MSG msg = {};
        msg.hwnd = editor_->GetSafeHwnd();
        msg.message = WM_KEYDOWN;
        msg.wParam = key;
        msg.lParam = 1;
        return editor_->PreTranslateMessage(&msg);
    }

    zotest::ScopedWindow sink_;
    HWND list_ = nullptr;
    std::unique_ptr<CZoEditInPlace> editor_;
    zotest::MessageRecorder recorder_;
};

const zotest::ExpectedMessage kEndThenCancel[] = {
    {WM_NOTIFY, zotest::sent | zotest::other | zotest::code, 0, 0, LVN_ENDLABELEDITW},
    {LVM_GETITEMCOUNT, zotest::sent | zotest::parent},
    {LVM_CANCELEDITLABEL, zotest::sent | zotest::parent},
};

} // namespace

TEST_F(EditInPlaceTest, OpensWithTheTextAllSelectedAndTheFocus)
{
    Open(1, L"cell");
    CString text;
    editor_->GetWindowText(text);
    EXPECT_EQ(text, L"cell");
    int start = -1, end = -1;
    editor_->GetSel(start, end);
    EXPECT_EQ(start, 0);
    EXPECT_EQ(end, 4);
    EXPECT_EQ(::GetFocus(), editor_->GetSafeHwnd());
}

TEST_F(EditInPlaceTest, EnterCommitsTheNewTextThenCancelsTheListsEdit)
{
    Open(1);
    editor_->SetWindowText(L"new text");
    Char(L'\r');
    ZOTEST_EXPECT_SEQUENCE(recorder_, kEndThenCancel);
    ASSERT_EQ(Reports().size(), 1u);
    const EndReport& r = Reports()[0];
    EXPECT_EQ(r.text, L"new text");
    EXPECT_EQ(r.wParam, WPARAM(kListId));
    EXPECT_EQ(r.from, list_);
    EXPECT_EQ(r.id, kEditorId);
    EXPECT_EQ(r.item, 1);
    EXPECT_EQ(r.subItem, 1);
    EXPECT_EQ(r.mask, UINT(LVIF_TEXT));
    EXPECT_EQ(r.cchTextMax, 8);
    EXPECT_EQ(::GetFocus(), list_);
}

// Escape reports the text the edit started with, losing the focus what was typed.
TEST_F(EditInPlaceTest, EscapeReportsTheInitialTextAndFocusLossTheTypedOne)
{
    for (const bool escape : {true, false}) {
        Open(1, L"old");
        editor_->SetWindowText(L"typed");
        if (escape)
            Char(27);
        else
            ::SetFocus(parent());
        ASSERT_EQ(Reports().size(), 1u);
        EXPECT_EQ(Reports()[0].text, escape ? L"old" : L"typed");
        EXPECT_EQ(Reports()[0].cchTextMax, 5); // the length of what is in the editor
        ZOTEST_EXPECT_SEQUENCE(recorder_, kEndThenCancel);
        recorder_.UnwatchAll();
        editor_->DestroyWindow();
        Reports().clear();
    }
}

TEST_F(EditInPlaceTest, CtrlEnterAndCtrlEscapeDoNotEnd)
{
    Open(1);
    BYTE keys[256] = {};
    ::GetKeyboardState(keys);
    keys[VK_CONTROL] = 0x80;
    ::SetKeyboardState(keys);
    Char(L'\r');
    Char(27);
    keys[VK_CONTROL] = 0;
    ::SetKeyboardState(keys);
    EXPECT_TRUE(Reports().empty());
    EXPECT_EQ(::GetFocus(), editor_->GetSafeHwnd());
}

TEST_F(EditInPlaceTest, UpOnTheFirstRowAndDownOnTheLastEndWithCancel)
{
    for (const auto& row : {std::make_pair(0, UINT(VK_UP)), std::make_pair(2, UINT(VK_DOWN))}) {
        Open(row.first);
        EXPECT_TRUE(KeyDown(row.second));
        ASSERT_EQ(Reports().size(), 1u);
        ZOTEST_EXPECT_SEQUENCE(recorder_, kEndThenCancel);
        recorder_.UnwatchAll();
        editor_->DestroyWindow();
        Reports().clear();
    }
}

TEST_F(EditInPlaceTest, DownMovesTheSelectionAndEditsTheNextRow)
{
    Open(1);
    EXPECT_TRUE(KeyDown(VK_DOWN));
    static const zotest::ExpectedMessage moveDown[] = {
        {WM_NOTIFY, zotest::sent | zotest::other | zotest::code, 0, 0, LVN_ENDLABELEDITW},
        {LVM_GETITEMCOUNT, zotest::sent | zotest::parent},
        {LVM_SETITEMSTATE, zotest::sent | zotest::parent | zotest::wparam, 1},
        {LVM_SETITEMSTATE, zotest::sent | zotest::parent | zotest::wparam, 2},
        {LVM_EDITLABELW, zotest::sent | zotest::parent | zotest::wparam, 2},
    };
    ZOTEST_EXPECT_SEQUENCE(recorder_, moveDown);
    EXPECT_EQ(::SendMessageW(list_, LVM_GETITEMSTATE, 2, LVIS_SELECTED | LVIS_FOCUSED),
              LRESULT(LVIS_SELECTED | LVIS_FOCUSED));
    EXPECT_EQ(::SendMessageW(list_, LVM_GETITEMSTATE, 1, LVIS_SELECTED), 0);
}

TEST_F(EditInPlaceTest, TypingWidensUpToTheListsEdgeAndNeverShrinks)
{
    Open(1, L"");
    CRect listClient;
    ::GetClientRect(list_, &listClient);
    CRect before;
    editor_->GetWindowRect(&before);
    for (int i = 0; i < 4; ++i)
        Char(L'W');
    CRect grown;
    editor_->GetWindowRect(&grown);
    EXPECT_EQ(grown.Width(), before.Width()); // still fits
    for (int i = 0; i < 60; ++i)
        Char(L'W');
    editor_->GetWindowRect(&grown);
    ::MapWindowPoints(nullptr, list_, reinterpret_cast<POINT*>(&grown), 2);
    EXPECT_EQ(grown.left, 20);
    EXPECT_EQ(grown.right, listClient.right);
    editor_->SetWindowText(L"");
    Char(L'i');
    CRect after;
    editor_->GetWindowRect(&after);
    EXPECT_EQ(after.Width(), grown.Width());
}

// Destroyed from outside, or ending after its notify window went: no report, the list's edit
// cancelled all the same.
TEST_F(EditInPlaceTest, DestroyedEditorOrGoneNotifyWindowReportsNothing)
{
    for (const bool destroy : {true, false}) {
        Open(1);
        if (destroy) {
            editor_->DestroyWindow();
        } else {
            sink_.Reset();
            Char(L'\r');
        }
        EXPECT_TRUE(Reports().empty());
        EXPECT_EQ(recorder_.Count(LVM_CANCELEDITLABEL, zotest::WindowRole::Parent), 1u);
        recorder_.UnwatchAll();
        recorder_.Clear();
    }
}

TEST_F(EditInPlaceTest, ListDestroyedMidEdit)
{
    Open(1);
    recorder_.UnwatchAll();
    ::DestroyWindow(list_);
    list_ = nullptr;
    EXPECT_EQ(editor_->GetSafeHwnd(), nullptr);
    EXPECT_LE(Reports().size(), 1u);
}

TEST_F(EditInPlaceTest, ParentThatIsNotAListGetsACancel)
{
    zotest::ScopedWindow plain(zotest::CreateSolidWindow(RECT{10, 140, 210, 200}, RGB(1, 2, 3), parent()));
    Open(1, L"old", plain.get());
    EXPECT_TRUE(KeyDown(VK_DOWN)); // no rows: nothing to move to
    ASSERT_EQ(Reports().size(), 1u);
    ZOTEST_EXPECT_SEQUENCE(recorder_, kEndThenCancel);
    recorder_.UnwatchAll();
    editor_->DestroyWindow();
}
