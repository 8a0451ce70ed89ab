// Message boxes driven from a timer while they run: buttons, captions and titles per type and
// language, results per button, key and time-out, the do-not-show flag, the resource forms, the
// layout, bad input, and nothing left behind.
#include "dialogs_test_support.h"

#include <string>
#include <vector>

#include "dialogs/ZoMessageBox.h"
#include "dialogs_test_resource.h"
#include "resources/resource.h"

using namespace ZoControls;
using dialogtest::ChildRect;
using dialogtest::ChildText;
using dialogtest::DriveModal;

namespace {

using MessageBoxTest = controltest::ControlTest;

const int kButtonIds[3] = {IDC_ZO_MSGBOX_BUTTON_RIGHT, IDC_ZO_MSGBOX_BUTTON_MIDDLE, IDC_ZO_MSGBOX_BUTTON_LEFT};

CString LibraryString(UINT id)
{
    CString text;
    text.LoadString(id);
    return text;
}

void Click(HWND box, int id)
{
    ::SendMessageW(::GetDlgItem(box, id), BM_CLICK, 0, 0);
}

// Timer procedures that click a button of the box a moment later.
template <int id>
void CALLBACK ClickLater(HWND box, UINT, UINT_PTR timer, DWORD)
{
    ::KillTimer(box, timer);
    ::SendMessageW(::GetDlgItem(box, id), BM_CLICK, 0, 0);
}

// A key as the modal loop receives it, posted to the focused window.
void PostKey(UINT key)
{
    const HWND focus = ::GetFocus();
    ::PostMessageW(focus, WM_KEYDOWN, key, 0);
}

struct TypeCase
{
    UINT type;
    const char* name;
};

// One, two and three buttons; the rules of every type are checked with numbers.
const TypeCase kTypes[] = {{MB_OK, "OK"}, {MB_YESNO, "YesNo"}, {MB_YESNOCANCEL, "YesNoCancel"}};

class MessageBoxTypes : public MessageBoxTest, public testing::WithParamInterface<TypeCase>
{
};

// Each button shown has its caption and gives its result, the removed ones are gone; Escape and
// the time-out (the right button's result) end the box too.
TEST_P(MessageBoxTypes, CaptionsAndResultsPerButtonEscapeAndTimeOut)
{
    const UINT type = GetParam().type;
    const ZoMsgBoxTypeRule rule = ZoMessageBoxTypeRule(type);
    for (int button = 0; button < 3; ++button) {
        if (!rule.captions[button])
            continue;
        std::vector<CString> captions(3);
        std::vector<bool> present(3);
        DriveModal([&](HWND box) {
            for (int i = 0; i < 3; ++i) {
                present[i] = ::GetDlgItem(box, kButtonIds[i]) != NULL;
                captions[i] = ChildText(box, kButtonIds[i]);
            }
            Click(box, kButtonIds[button]);
        });
        EXPECT_EQ(rule.results[button], ZoMessageBox(parentWnd(), type, L"Message"));
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(rule.captions[i] != 0, present[i]) << i;
            if (rule.captions[i]) {
                EXPECT_EQ(LibraryString(rule.captions[i]), captions[i]) << i;
            }
        }
    }
    DriveModal([](HWND) { PostKey(VK_ESCAPE); });
    EXPECT_EQ(ZoMessageBoxTypeRule(type).escape, ZoMessageBox(parentWnd(), type, L"Escape"));
    DriveModal([](HWND) {});
    EXPECT_EQ(ZoMessageBoxTypeRule(type).results[0], TimedMessageBox(parentWnd(), 1, type, L"Waiting"));
}

INSTANTIATE_TEST_SUITE_P(Types, MessageBoxTypes, testing::ValuesIn(kTypes),
                         [](const testing::TestParamInfo<TypeCase>& info) { return std::string(info.param.name); });

TEST_F(MessageBoxTest, EscapeIsSwallowedByTypesSixAndSeven)
{
    for (UINT type : {6u, 7u}) {
        bool stillOpen = false;
        DriveModal([&](HWND box) {
            ::SendMessageW(box, WM_KEYDOWN, VK_ESCAPE, 0);
            PostKey(VK_ESCAPE);
            // Let the loop take the key, then look and close with a button.
            ::SetTimer(box, 77, 100, ClickLater<IDC_ZO_MSGBOX_BUTTON_RIGHT>);
            stillOpen = true;
        });
        EXPECT_EQ(IDOK, ZoMessageBox(parentWnd(), type, L"No escape"));
        EXPECT_TRUE(stillOpen);
    }
}

TEST_F(MessageBoxTest, EnterActsOnTheFocusedButton)
{
    // The default button has the focus.
    DriveModal([](HWND) { PostKey(VK_RETURN); });
    EXPECT_EQ(IDYES, ZoMessageBox(parentWnd(), MB_YESNOCANCEL | MB_DEFBUTTON1, L"Enter"));
    DriveModal([](HWND) { PostKey(VK_RETURN); });
    EXPECT_EQ(IDCANCEL, ZoMessageBox(parentWnd(), MB_YESNOCANCEL | MB_DEFBUTTON3, L"Enter"));
    // Moved by the user.
    DriveModal([](HWND box) {
        ::SetFocus(::GetDlgItem(box, IDC_ZO_MSGBOX_BUTTON_MIDDLE));
        PostKey(VK_RETURN);
    });
    EXPECT_EQ(IDNO, ZoMessageBox(parentWnd(), MB_YESNOCANCEL | MB_DEFBUTTON1, L"Enter"));
}

TEST_F(MessageBoxTest, ZeroSecondsNeverTimesOut)
{
    DriveModal([](HWND box) {
        ::SetTimer(box, 77, 300, ClickLater<IDC_ZO_MSGBOX_BUTTON_MIDDLE>);
    });
    EXPECT_EQ(IDYES, TimedMessageBox(parentWnd(), 0, MB_YESNO, L"Never"));
}

TEST_F(MessageBoxTest, TitleIsTheApplicationAndTheIconWord)
{
    const struct {
        UINT icon;
        UINT word;
    } cases[] = {{MB_ICONHAND, IDS_ZO_ERROR}, {0, IDS_ZO_INFO}};
    for (const auto& c : cases) {
        CString title;
        DriveModal([&](HWND box) {
            wchar_t text[256] = {};
            ::GetWindowTextW(box, text, 256);
            title = text;
            Click(box, IDC_ZO_MSGBOX_BUTTON_RIGHT);
        });
        ZoMessageBox(parentWnd(), MB_OK | c.icon, L"Title");
        EXPECT_EQ(CString(AfxGetAppName()) + L" " + LibraryString(c.word), title);
    }
}

TEST_F(MessageBoxTest, DoNotShowWrittenOnlyOnAClick)
{
    bool flag = true;
    bool visible = false;
    DriveModal([&](HWND box) {
        visible = ::IsWindowVisible(::GetDlgItem(box, IDC_ZO_MSGBOX_DONTSHOW)) != FALSE;
        Click(box, IDC_ZO_MSGBOX_BUTTON_RIGHT);
    });
    ZoMessageBoxDispensable(parentWnd(), MB_OK, &flag, L"Untouched");
    EXPECT_TRUE(visible);
    EXPECT_TRUE(flag);

    flag = false;
    DriveModal([](HWND box) {
        Click(box, IDC_ZO_MSGBOX_DONTSHOW);
        Click(box, IDC_ZO_MSGBOX_BUTTON_RIGHT);
    });
    ZoMessageBoxDispensable(parentWnd(), MB_OK, &flag, L"Once");
    EXPECT_TRUE(flag);

    DriveModal([](HWND box) {
        Click(box, IDC_ZO_MSGBOX_DONTSHOW);
        Click(box, IDC_ZO_MSGBOX_DONTSHOW);
        Click(box, IDC_ZO_MSGBOX_BUTTON_RIGHT);
    });
    ZoMessageBoxDispensable(parentWnd(), MB_OK, &flag, L"Twice");
    EXPECT_FALSE(flag);

    // Without a flag there is no check box to see.
    DriveModal([&](HWND box) {
        visible = ::IsWindowVisible(::GetDlgItem(box, IDC_ZO_MSGBOX_DONTSHOW)) != FALSE;
        Click(box, IDC_ZO_MSGBOX_BUTTON_RIGHT);
    });
    ZoMessageBoxDispensable(parentWnd(), MB_OK, nullptr, L"No flag");
    EXPECT_FALSE(visible);
}

// The message the box shows, after running `show`.
template <class Show>
CString ShownMessage(Show show)
{
    CString message;
    DriveModal([&](HWND box) {
        message = ChildText(box, IDC_ZO_MSGBOX_TEXT);
        Click(box, IDC_ZO_MSGBOX_BUTTON_RIGHT);
    });
    show();
    return message;
}

TEST_F(MessageBoxTest, FormatsAndResources)
{
    CWnd* parent = parentWnd();
    EXPECT_EQ(CString(L"Value 5 of ten\n"),
              ShownMessage([&] { ZoMessageBox(parent, MB_OK, L"Value %d of %s", 5, L"ten"); }));
    EXPECT_EQ(CString(L"Value 5 of ten\n"),
              ShownMessage([&] { ZoMessageBox(parent, MB_OK, UINT(IDS_TEST_FORMAT), 5, L"ten"); }));
    EXPECT_EQ(CString(L"Value 6 of six\n"),
              ShownMessage([&] { TimedMessageBox(parent, 0, MB_OK, UINT(IDS_TEST_FORMAT), 6, L"six"); }));
    bool flag = false;
    EXPECT_EQ(CString(L"Value 7 of seven\n"),
              ShownMessage([&] { ZoMessageBoxDispensable(parent, MB_OK, &flag, L"Value %d of %s", 7, L"seven"); }));
    // The resource form of the dispensable box shows its string as it stands.
    EXPECT_EQ(CString(L"Value %d of %s\n"),
              ShownMessage([&] { ZoMessageBoxDispensable(parent, MB_OK, &flag, UINT(IDS_TEST_FORMAT), 7, L"x"); }));
    // No such string, no message, a null format: an empty message, the box still works.
    EXPECT_EQ(CString(), ShownMessage([&] { ZoMessageBox(parent, MB_OK, UINT(IDS_TEST_MISSING)); }));
    EXPECT_EQ(CString(), ShownMessage([&] { ZoMessageBox(parent, MB_OK, L""); }));
    EXPECT_EQ(CString(), ShownMessage([&] { ZoMessageBox(parent, MB_OK, static_cast<const wchar_t*>(nullptr)); }));
}

TEST_F(MessageBoxTest, NullParentStillShows)
{
    DriveModal([](HWND box) { Click(box, IDC_ZO_MSGBOX_BUTTON_MIDDLE); });
    EXPECT_EQ(IDYES, ZoMessageBox(nullptr, MB_YESNO, L"Nobody's"));
}

struct Measured
{
    CRect client, icon, text, right, middle, left, check;
};

Measured MeasureBox(std::function<void()> show)
{
    Measured m;
    DriveModal([&](HWND box) {
        ::GetClientRect(box, &m.client);
        m.icon = ChildRect(box, IDC_ZO_MSGBOX_ICON);
        m.text = ChildRect(box, IDC_ZO_MSGBOX_TEXT);
        m.right = ChildRect(box, IDC_ZO_MSGBOX_BUTTON_RIGHT);
        m.middle = ChildRect(box, IDC_ZO_MSGBOX_BUTTON_MIDDLE);
        m.left = ChildRect(box, IDC_ZO_MSGBOX_BUTTON_LEFT);
        m.check = ChildRect(box, IDC_ZO_MSGBOX_DONTSHOW);
        ::SendMessageW(box, WM_TIMER, ZO_MSGBOX_TIMER_ID, 0);
    });
    show();
    return m;
}

TEST_F(MessageBoxTest, ShortMessageLayout)
{
    bool flag = false;
    const Measured m = MeasureBox([&] { ZoMessageBoxDispensable(parentWnd(), MB_YESNOCANCEL, &flag, L"Hi"); });
    EXPECT_EQ(300, m.client.Width());
    EXPECT_EQ(120, m.client.Height());
    // The laid-out places reach the children: one line centred on the icon (within a pixel of
    // rounding), buttons right to left 3 pixels apart, the check box level with them.
    EXPECT_NEAR((m.icon.top + m.icon.bottom) / 2.0, (m.text.top + m.text.bottom) / 2.0, 1.0);
    EXPECT_EQ(120 - 8, m.right.bottom);
    EXPECT_EQ(m.right.left - 3, m.middle.right);
    EXPECT_EQ(m.middle.left - 3, m.left.right);
    EXPECT_EQ(m.right.top + (m.right.Height() - m.check.Height()) / 2, m.check.top);
}

TEST_F(MessageBoxTest, MessageWiderThanTheScreen)
{
    const std::wstring wide(2000, L'W');
    const Measured m = MeasureBox([&] { ZoMessageBox(parentWnd(), MB_OK, L"%s", wide.c_str()); });
    EXPECT_GT(m.client.Width(), ::GetSystemMetrics(SM_CXSCREEN));
    EXPECT_EQ(m.text.right + m.icon.left, m.client.Width());
}

// The captions of every language the library carries, as the platform picks them by the thread's
// user-interface language (under Wine only the user's own language can be picked).
TEST_F(MessageBoxTest, CaptionsFollowTheLanguage)
{
    const LANGID languages[] = {1028, 1033, 1036, 1040, 1041, 1045, 1046, 1049, 2052, 3082};
    const LANGID before = ::GetThreadUILanguage();
    const HMODULE library = ::GetModuleHandleW(L"ZoCtrl.dll");
    int checked = 0;
    for (LANGID language : languages) {
        ::SetThreadUILanguage(language);
        if (::GetThreadUILanguage() != language)
            continue; // Wine keeps the user's language whatever the thread asks for
        ++checked;
        wchar_t expected[64] = {};
        // The block of ids 800..815 in that language, string 805 ("&No").
        const HRSRC block = ::FindResourceExW(library, RT_STRING, MAKEINTRESOURCEW(800 / 16 + 1), language);
        ASSERT_NE(nullptr, block) << language;
        const WORD* data = static_cast<const WORD*>(::LockResource(::LoadResource(library, block)));
        for (int i = 0; i < 805 % 16; ++i)
            data += 1 + *data;
        wcsncpy(expected, reinterpret_cast<const wchar_t*>(data + 1), *data);
        CString shown;
        DriveModal([&](HWND box) {
            shown = ChildText(box, IDC_ZO_MSGBOX_BUTTON_RIGHT);
            Click(box, IDC_ZO_MSGBOX_BUTTON_RIGHT);
        });
        EXPECT_EQ(IDNO, ZoMessageBox(parentWnd(), MB_YESNO, L"Language"));
        EXPECT_EQ(std::wstring(expected), std::wstring(shown.GetString())) << language;
    }
    ::SetThreadUILanguage(before);
    EXPECT_GE(checked, 1);
}

TEST_F(MessageBoxTest, NoGrowthOverOpenCloseCycles)
{
    // The parent's MFC object is a temporary one, freed at each idle time: asked afresh. Each box
    // is painted off screen and closed before its modal loop would show it.
    const HWND owner = parent();
    const auto plain = [owner]() {
        dialogtest::DriveModalBeforeShown([](HWND box) {
            dialogtest::PaintHidden(box);
            ::PostMessageW(box, WM_COMMAND, IDCANCEL, 0);
        });
        CDialog dialog(IDD_ZO_MESSAGEBOX, CWnd::FromHandle(owner));
        EXPECT_EQ(IDCANCEL, dialog.DoModal());
        dialogtest::HostIdleTime();
    };
    const auto box = [owner]() {
        bool flag = false;
        dialogtest::DriveModalBeforeShown([](HWND box) {
            dialogtest::PaintHidden(box);
            ::SendMessageW(::GetDlgItem(box, IDC_ZO_MSGBOX_DONTSHOW), BM_CLICK, 0, 0);
            ::SendMessageW(::GetDlgItem(box, IDC_ZO_MSGBOX_BUTTON_MIDDLE), BM_CLICK, 0, 0);
        });
        EXPECT_EQ(IDNO, ZoMessageBoxDispensable(CWnd::FromHandle(owner), MB_YESNOCANCEL | MB_ICONQUESTION, &flag,
                                                L"Cycle %d", 1));
        EXPECT_TRUE(flag);
        dialogtest::HostIdleTime();
    };
    dialogtest::ExpectNoMoreGrowthThanPlatform(100, plain, box);
    dialogtest::StopDrivingBeforeShown();
}

} // namespace
