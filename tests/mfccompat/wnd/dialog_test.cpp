// Dialogs: DoModal's result, DDX_Control subclassing, modeless dialogs, and the resources of
// an extension DLL found from the executable.
#include "wnd_test_support.h"
#include "wnd_test_resources.h"

#include <functional>

namespace {

class CTestDialog : public CDialog
{
public:
    explicit CTestDialog(CWnd* pParent = NULL, UINT nIDTemplate = IDD_DDX) : CDialog(nIDTemplate, pParent) { }

    // Runs inside OnInitDialog, after the base class filled the controls.
    std::function<void(CTestDialog&)> onInit;
    bool bindEdit = false;
    CWnd m_edit;

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CDialog::DoDataExchange(pDX);
        if (bindEdit)
            DDX_Control(pDX, IDC_NAME, m_edit);
    }
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        if (onInit)
            onInit(*this);
        return TRUE;
    }
};

// ---- modal loop ----

TEST(DialogModal, MissingTemplateMakesDoModalFail)
{
    CTestDialog dialog(NULL, 9999);
    EXPECT_EQ(-1, dialog.DoModal());
    EXPECT_EQ(NULL, dialog.m_hWnd);
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
