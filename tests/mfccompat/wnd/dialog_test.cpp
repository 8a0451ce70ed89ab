// Dialogs: DoModal's result and modal loop, data exchange in both directions, DDX_Control
// subclassing, PreTranslateMessage inside a modal loop, modeless dialogs, and the
// resources of an extension DLL found from the executable.
#include "wnd_test_support.h"
#include "wnd_test_resources.h"

#include <zotest/resource_counter.h>

#include <functional>

namespace {

const UINT WM_TEST_END = WM_APP + 20;

// A CWnd-derived control that notices one key before it is dispatched.
class CKeySpy : public CWnd
{
public:
    UINT watchedKey = 0;
    bool sawKey = false;
    std::function<void()> onKey;

    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        if (pMsg->message == WM_KEYDOWN && pMsg->wParam == watchedKey && pMsg->hwnd == m_hWnd)
        {
            sawKey = true;
            if (onKey)
                onKey();
            return TRUE;
        }
        return CWnd::PreTranslateMessage(pMsg);
    }
};

class CTestDialog : public CDialog
{
public:
    explicit CTestDialog(CWnd* pParent = NULL, UINT nIDTemplate = IDD_DDX) : CDialog(nIDTemplate, pParent) { }

    // Runs inside OnInitDialog, after the base class filled the controls.
    std::function<void(CTestDialog&)> onInit;
    bool bindEdit = false;
    bool parentEnabledDuringInit = true;
    int timerEnds = 0;

    CString m_name;
    int m_number = 0;
    int m_check = 0;
    int m_radio = -1;
    double m_ratio = 0;
    CKeySpy m_edit;

    using CDialog::OnCancel;

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CDialog::DoDataExchange(pDX);
        if (bindEdit)
            DDX_Control(pDX, IDC_NAME, m_edit);
        DDX_Text(pDX, IDC_NAME, m_name);
        DDX_Text(pDX, IDC_NUMBER, m_number);
        DDX_Text(pDX, IDC_RATIO, m_ratio);
        DDX_Check(pDX, IDC_CHECK, m_check);
        DDX_Radio(pDX, IDC_RADIO1, m_radio);
    }
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        if (m_pParentWnd != NULL)
            parentEnabledDuringInit = m_pParentWnd->IsWindowEnabled() != FALSE;
        if (onInit)
            onInit(*this);
        return TRUE;
    }
    afx_msg LRESULT OnTestEnd(WPARAM wParam, LPARAM)
    {
        EndDialog(static_cast<int>(wParam));
        return 0;
    }
    afx_msg void OnTimer(UINT_PTR nIDEvent)
    {
        KillTimer(nIDEvent);
        ++timerEnds;
        EndDialog(static_cast<int>(nIDEvent));
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CTestDialog, CDialog)
    ON_MESSAGE(WM_TEST_END, &CTestDialog::OnTestEnd)
    ON_WM_TIMER()
END_MESSAGE_MAP()

std::wstring ItemText(CWnd& dialog, int id)
{
    CString text;
    dialog.GetDlgItemText(id, text);
    return std::wstring(text);
}

// ---- modal loop ----

TEST(DialogModal, DoModalReturnsTheCodeEndDialogWasGiven)
{
    const struct {
        const char* from;
        void (*start)(CTestDialog&);
        int code;
    } cases[] = {
        { "a posted message", [](CTestDialog& dlg) { dlg.PostMessage(WM_TEST_END, 1234); }, 1234 },
        { "a timer", [](CTestDialog& dlg) { dlg.SetTimer(321, 10, NULL); }, 321 },
        { "OnInitDialog, skipping the loop", [](CTestDialog& dlg) { dlg.EndDialog(55); }, 55 },
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.from);
        CTestDialog dialog;
        dialog.onInit = c.start;
        EXPECT_EQ(c.code, dialog.DoModal());
        EXPECT_EQ(NULL, dialog.m_hWnd);
        EXPECT_EQ(c.code == 321 ? 1 : 0, dialog.timerEnds);
    }
}

TEST(DialogModal, MissingTemplateMakesDoModalFail)
{
    CTestDialog dialog(NULL, 9999);
    EXPECT_EQ(-1, dialog.DoModal());
    EXPECT_EQ(NULL, dialog.m_hWnd);
}

TEST(DialogModal, OwnerIsDisabledWhileTheDialogRunsAndEnabledAfterwards)
{
    CWnd owner;
    ASSERT_TRUE(owner.CreateEx(0, AfxRegisterWndClass(0), L"owner", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, NULL, NULL));
    CTestDialog dialog(&owner);
    dialog.onInit = [](CTestDialog& dlg) { dlg.PostMessage(WM_TEST_END, 1); };
    EXPECT_EQ(1, dialog.DoModal());
    EXPECT_FALSE(dialog.parentEnabledDuringInit);
    EXPECT_TRUE(owner.IsWindowEnabled());
    owner.DestroyWindow();
}

TEST(DialogModal, EscapeKeyCancelsThroughTheDialogManager)
{
    CTestDialog dialog;
    dialog.onInit = [](CTestDialog& dlg) {
        dlg.GetDlgItem(IDC_NAME)->PostMessage(WM_KEYDOWN, VK_ESCAPE, 1);
    };
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
}

TEST(DialogModal, PreTranslateMessageReachesAControlInsideTheModalLoop)
{
    CTestDialog dialog;
    dialog.bindEdit = true;
    dialog.m_edit.watchedKey = VK_F5;
    dialog.m_edit.onKey = [&dialog] { dialog.EndDialog(77); };
    dialog.onInit = [](CTestDialog& dlg) { dlg.m_edit.PostMessage(WM_KEYDOWN, VK_F5, 1); };
    EXPECT_EQ(77, dialog.DoModal());
    EXPECT_TRUE(dialog.m_edit.sawKey);
}

// ---- data exchange ----

TEST(DialogData, InitialValuesReachTheControlsAndOkSavesTheEditedOnes)
{
    CTestDialog dialog;
    dialog.m_name = L"Alice";
    dialog.m_number = 42;
    dialog.m_ratio = 0.25;
    dialog.m_check = BST_CHECKED;
    dialog.m_radio = 2;
    std::wstring shownName, shownNumber, shownRatio;
    UINT shownCheck = 0, shownRadio3 = 0;
    dialog.onInit = [&](CTestDialog& dlg) {
        shownName = ItemText(dlg, IDC_NAME);
        shownNumber = ItemText(dlg, IDC_NUMBER);
        shownRatio = ItemText(dlg, IDC_RATIO);
        shownCheck = dlg.IsDlgButtonChecked(IDC_CHECK);
        shownRadio3 = dlg.IsDlgButtonChecked(IDC_RADIO3);

        dlg.SetDlgItemText(IDC_NAME, L"Bob");
        dlg.SetDlgItemText(IDC_NUMBER, L"  -7 ");
        dlg.SetDlgItemText(IDC_RATIO, L"1.5");
        dlg.CheckDlgButton(IDC_CHECK, BST_UNCHECKED);
        dlg.CheckRadioButton(IDC_RADIO1, IDC_RADIO3, IDC_RADIO1);
        dlg.PostMessage(WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
    };
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ(L"Alice", shownName);
    EXPECT_EQ(L"42", shownNumber);
    EXPECT_EQ(L"0.25", shownRatio);
    EXPECT_EQ(static_cast<UINT>(BST_CHECKED), shownCheck);
    EXPECT_EQ(static_cast<UINT>(BST_CHECKED), shownRadio3);

    EXPECT_STREQ(L"Bob", dialog.m_name);
    EXPECT_EQ(-7, dialog.m_number);
    EXPECT_DOUBLE_EQ(1.5, dialog.m_ratio);
    EXPECT_EQ(BST_UNCHECKED, dialog.m_check);
    EXPECT_EQ(0, dialog.m_radio);
}

TEST(DialogData, CancelLeavesTheVariablesAlone)
{
    CTestDialog dialog;
    dialog.m_name = L"kept";
    dialog.onInit = [](CTestDialog& dlg) {
        dlg.SetDlgItemText(IDC_NAME, L"changed");
        dlg.PostMessage(WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
    };
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_STREQ(L"kept", dialog.m_name);
}

TEST(DialogData, RadioGroupWithNothingCheckedSavesMinusOne)
{
    CTestDialog dialog;
    dialog.m_radio = 7;   // no such button: the group starts with none checked
    int radioAfterSave = 99;
    dialog.onInit = [&](CTestDialog& dlg) {
        dlg.UpdateData(TRUE);
        radioAfterSave = dlg.m_radio;
        dlg.EndDialog(IDOK);
    };
    dialog.DoModal();
    EXPECT_EQ(-1, radioAfterSave);
}

TEST(DialogData, DdxControlSubclassesTheControlForTheDialogsLifetime)
{
    CTestDialog dialog;
    dialog.bindEdit = true;
    HWND boundWindow = NULL;
    CWnd* permanent = NULL;
    dialog.onInit = [&](CTestDialog& dlg) {
        boundWindow = dlg.m_edit.m_hWnd;
        permanent = CWnd::FromHandlePermanent(::GetDlgItem(dlg.m_hWnd, IDC_NAME));
        dlg.UpdateData(TRUE);   // a second exchange keeps the same binding
        dlg.EndDialog(IDOK);
    };
    dialog.DoModal();
    EXPECT_NE(nullptr, boundWindow);
    EXPECT_EQ(&dialog.m_edit, permanent);
    EXPECT_EQ(NULL, dialog.m_edit.m_hWnd) << "destroying the dialog detached the control";
}

// ---- modeless ----

TEST(DialogModeless, CreateRunsOnInitDialogAndLeavesTheDialogOpen)
{
    CTestDialog dialog;
    dialog.m_name = L"modeless";
    ASSERT_TRUE(dialog.Create(IDD_DDX));
    EXPECT_NE(nullptr, dialog.m_hWnd);
    EXPECT_EQ(&dialog, CWnd::FromHandlePermanent(dialog.m_hWnd));
    EXPECT_EQ(L"modeless", ItemText(dialog, IDC_NAME));
    dialog.SetDlgItemText(IDC_NUMBER, L"12");
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(12, dialog.m_number);
    EXPECT_TRUE(dialog.DestroyWindow());
    EXPECT_EQ(NULL, dialog.m_hWnd);
}

TEST(DialogModeless, MissingTemplateFailsToCreate)
{
    CTestDialog dialog;
    EXPECT_FALSE(dialog.Create(9999));
    EXPECT_EQ(NULL, dialog.m_hWnd);
}

// ---- extension DLL ----

class ExtensionDll : public testing::Test
{
protected:
    void SetUp() override
    {
        module = ::LoadLibraryW(L"test_afx_extdll.dll");
        ASSERT_NE(nullptr, module);
    }
    void TearDown() override
    {
        if (module != NULL)
            ::FreeLibrary(module);
    }
    HMODULE module = NULL;
};

TEST_F(ExtensionDll, ItsStringIsFoundFromTheExecutable)
{
    EXPECT_EQ(module, AfxFindResourceHandle(MAKEINTRESOURCEW(IDS_EXTENSION / 16 + 1), RT_STRING));
    CString text;
    EXPECT_TRUE(text.LoadString(IDS_EXTENSION));
    EXPECT_STREQ(L"string of the extension", text);
}

TEST_F(ExtensionDll, ItsDialogTemplateIsFoundByDoModal)
{
    class CEnding : public CDialog
    {
    public:
        CEnding() : CDialog(IDD_EXTENSION) { }
        std::wstring text;
        BOOL OnInitDialog() override
        {
            CDialog::OnInitDialog();
            text = ItemText(*this, IDC_EXTENSION_TEXT);
            EndDialog(5);
            return TRUE;
        }
    } ending;
    EXPECT_EQ(5, ending.DoModal());
    EXPECT_EQ(L"extension text", ending.text);
}

TEST_F(ExtensionDll, UnloadingTheDllTakesItsResourcesOutOfTheChain)
{
    ASSERT_TRUE(::FreeLibrary(module));
    module = NULL;
    CString text;
    EXPECT_FALSE(text.LoadString(IDS_EXTENSION));
    CDialog dialog(IDD_EXTENSION);
    EXPECT_EQ(-1, dialog.DoModal());
}

} // namespace

namespace {

TEST(DialogLeaks, ModalDialogCyclesLeaveNothingBehind)
{
    ZOTEST_EXPECT_NO_LEAKS(10, [] {
        CTestDialog dialog;
        dialog.bindEdit = true;
        dialog.m_name = L"cycle";
        dialog.onInit = [](CTestDialog& dlg) { dlg.PostMessage(WM_TEST_END, 3); };
        dialog.DoModal();
        wndtest::RunIdle();
    });
}

} // namespace

namespace {

TEST(DialogControls, FocusAndDefaultButtonHelpers)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_DDX));
    dialog.ShowWindow(SW_SHOW);
    dialog.GotoDlgCtrl(dialog.GetDlgItem(IDC_NUMBER));
    ASSERT_NE(nullptr, CWnd::GetFocus());
    EXPECT_EQ(IDC_NUMBER, CWnd::GetFocus()->GetDlgCtrlID());
    dialog.NextDlgCtrl();
    EXPECT_NE(IDC_NUMBER, CWnd::GetFocus()->GetDlgCtrlID());
    dialog.PrevDlgCtrl();
    EXPECT_EQ(IDC_NUMBER, CWnd::GetFocus()->GetDlgCtrlID());
    dialog.GotoDlgCtrl(NULL);   // nothing to go to: the focus stays
    EXPECT_EQ(IDC_NUMBER, CWnd::GetFocus()->GetDlgCtrlID());

    dialog.SetDefID(IDCANCEL);
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(IDCANCEL, DC_HASDEFID)), dialog.GetDefID());
    dialog.DestroyWindow();
}

class CLimitedDialog : public CDialog
{
public:
    CLimitedDialog() : CDialog(IDD_DDX) { }
    CString m_name = L"abc";
protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        DDX_Text(pDX, IDC_NAME, m_name);
        DDV_MaxChars(pDX, m_name, 6);
    }
};

TEST(DialogControls, MaxCharsLimitsTheEditWhenValuesAreShown)
{
    CLimitedDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_DDX));
    EXPECT_EQ(6, dialog.SendDlgItemMessage(IDC_NAME, EM_GETLIMITTEXT));
    dialog.SetDlgItemText(IDC_NAME, L"abcdef");
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_STREQ(L"abcdef", dialog.m_name);
    dialog.DestroyWindow();
}

template <class T>
class CTemplateWnd : public CWnd
{
public:
    T lastTimer = 0;
protected:
    afx_msg void OnTimer(UINT_PTR nIDEvent) { lastTimer = static_cast<T>(nIDEvent); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_TEMPLATE_MESSAGE_MAP(CTemplateWnd, T, CWnd)
    ON_WM_TIMER()
END_MESSAGE_MAP()

TEST(TemplateMessageMap, TemplateClassesHaveTheirOwnMap)
{
    CTemplateWnd<int> wnd;
    ASSERT_TRUE(wnd.CreateEx(0, AfxRegisterWndClass(0), L"template", WS_POPUP, 0, 0, 10, 10, NULL, NULL));
    wnd.SendMessage(WM_TIMER, 42);
    EXPECT_EQ(42, wnd.lastTimer);
    wnd.DestroyWindow();
}

} // namespace
