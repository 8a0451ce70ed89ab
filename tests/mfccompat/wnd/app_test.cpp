// The application object: start-up data, AfxWinMain's run, the main window's end, message
// boxes with the application's name, and validation failures that tell the user.
#include "wnd_test_support.h"
#include "wnd_test_resources.h"

namespace {

// Closes the next message box of this thread with `answer` and remembers its caption.
class MessageBoxCloser
{
public:
    explicit MessageBoxCloser(int answer)
    {
        s_answer = answer;
        s_caption.clear();
        s_closed = 0;
        m_timer = ::SetTimer(NULL, 0, 20, &MessageBoxCloser::OnTimer);
    }
    ~MessageBoxCloser() { ::KillTimer(NULL, m_timer); }

    static std::wstring s_caption;
    static int s_closed;

private:
    static BOOL CALLBACK CloseIfMessageBox(HWND hWnd, LPARAM)
    {
        wchar_t className[16] = L"";
        ::GetClassNameW(hWnd, className, 16);
        if (wcscmp(className, L"#32770") != 0 || !::IsWindowVisible(hWnd) || ::GetDlgItem(hWnd, 0xFFFF) == NULL)
            return TRUE;
        wchar_t caption[128] = L"";
        ::GetWindowTextW(hWnd, caption, 128);
        s_caption = caption;
        ++s_closed;
        ::EndDialog(hWnd, s_answer);
        return FALSE;
    }
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD)
    {
        ::EnumThreadWindows(::GetCurrentThreadId(), &CloseIfMessageBox, 0);
    }

    static int s_answer;
    UINT_PTR m_timer;
};

std::wstring MessageBoxCloser::s_caption;
int MessageBoxCloser::s_closed = 0;
int MessageBoxCloser::s_answer = IDOK;

TEST(Application, AfxWinMainWithoutMainWindowEndsAtOnce)
{
    EXPECT_EQ(0, AfxWinMain(::GetModuleHandleW(NULL), NULL, ::GetCommandLineW(), SW_SHOWNORMAL));
}

TEST(Application, MessageBoxForAMissingStringShowsNothing)
{
    MessageBoxCloser closer(IDOK);
    EXPECT_EQ(0, AfxMessageBox(54321));
    EXPECT_EQ(0, MessageBoxCloser::s_closed);
}

// A dialog whose number field accepts integers only.
class CNumberDialog : public CDialog
{
public:
    CNumberDialog() : CDialog(IDD_DDX) { }
    int m_number = 5;
    bool focusOnNumber = false;
    BOOL okResult = TRUE;

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        DDX_Text(pDX, IDC_NUMBER, m_number);
        DDV_MinMaxInt(pDX, m_number, 0, 100);
    }
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        SetDlgItemText(IDC_NUMBER, L"12x");
        PostMessage(WM_APP + 30);
        return TRUE;
    }
    afx_msg LRESULT OnTry(WPARAM, LPARAM)
    {
        okResult = UpdateData(TRUE);
        CWnd* focus = GetFocus();
        focusOnNumber = focus != NULL && focus->GetDlgCtrlID() == IDC_NUMBER;
        EndDialog(IDABORT);
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CNumberDialog, CDialog)
    ON_MESSAGE(WM_APP + 30, &CNumberDialog::OnTry)
END_MESSAGE_MAP()

TEST(DialogValidation, TextThatIsNoNumberIsRefusedAndTheFieldGetsTheFocus)
{
    MessageBoxCloser closer(IDOK);
    CNumberDialog dialog;
    EXPECT_EQ(IDABORT, dialog.DoModal());
    EXPECT_FALSE(dialog.okResult);
    EXPECT_EQ(5, dialog.m_number);
    EXPECT_TRUE(dialog.focusOnNumber);
    EXPECT_EQ(1, MessageBoxCloser::s_closed);
}

} // namespace

namespace {

} // namespace
