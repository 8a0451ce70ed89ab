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

TEST(DialogModal, MissingTemplateMakesDoModalFail)
{
    CTestDialog dialog(NULL, 9999);
    EXPECT_EQ(-1, dialog.DoModal());
    EXPECT_EQ(NULL, dialog.m_hWnd);
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

} // namespace

namespace {

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

} // namespace
