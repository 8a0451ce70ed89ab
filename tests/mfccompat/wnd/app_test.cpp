// The application object: AfxWinMain's run and message boxes for missing strings.
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

} // namespace
