// CWinThread and CWinApp: the message pump with MFC's routing through PreTranslateMessage,
// idle processing, modal loops, and the application's start and end (AfxWinMain).
#include <afxwin.h>
#include <afxpriv.h>
#include <zoafx/modulechain.h>
#include "wndstate.h"

namespace {

CWinApp* g_pApp = NULL;
thread_local CWinThread* t_pThread = NULL;

// WM_SYSTIMER: the caret's blink timer, which must not restart idle processing.
const UINT kSysTimer = 0x0118;

LPTSTR Duplicate(LPCTSTR text)
{
    return text != NULL ? _wcsdup(text) : NULL;
}

void FreeString(LPCTSTR& text)
{
    free(const_cast<LPTSTR>(text));
    text = NULL;
}

// Routes a message before dispatch as the thread object does: from the target window up
// to the main window, then the main window for windows outside its tree.
BOOL PreTranslateForThread(MSG* pMsg)
{
    if (pMsg->hwnd == NULL)
        return FALSE;
    CWnd* pMainWnd = AfxGetMainWnd();
    if (CWnd::WalkPreTranslateTree(pMainWnd->GetSafeHwnd(), pMsg))
        return TRUE;
    if (pMainWnd != NULL && pMainWnd->m_hWnd != NULL)
    {
        CWnd* pWnd = CWnd::FromHandle(pMsg->hwnd);
        if (pWnd != NULL && pWnd->GetTopLevelParent() != pMainWnd)
            return pMainWnd->PreTranslateMessage(pMsg);
    }
    return FALSE;
}

// Gets and dispatches one message into pMsg; FALSE on WM_QUIT.
BOOL PumpInto(MSG* pMsg)
{
    CWinThread* pThread = AfxGetThread();
    if (pThread != NULL)
    {
        BOOL bResult = pThread->PumpMessage();
        *pMsg = pThread->m_msgCur;
        return bResult;
    }
    BOOL bGot = ::GetMessageW(pMsg, NULL, 0, 0);
    if (bGot == 0 || bGot == -1)
        return FALSE;
    if (pMsg->message != WM_KICKIDLE && !PreTranslateForThread(pMsg))
    {
        ::TranslateMessage(pMsg);
        ::DispatchMessageW(pMsg);
    }
    return TRUE;
}

BOOL IsIdleForThread(MSG* pMsg)
{
    CWinThread* pThread = AfxGetThread();
    if (pThread != NULL)
        return pThread->IsIdleMessage(pMsg);
    return pMsg->message != WM_PAINT && pMsg->message != kSysTimer;
}

} // namespace

/////////////////////////////////////////////////////////////////////////////
// CWinThread

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

CWinThread::CWinThread()
    : m_pMainWnd(NULL), m_pActiveWnd(NULL), m_bAutoDelete(TRUE), m_hThread(NULL), m_nThreadID(0),
      m_msgCur(), m_ptCursorLast(-1, -1), m_nMsgLast(0)
{
}

CWinThread::~CWinThread()
{
    if (t_pThread == this)
        t_pThread = NULL;
}

CWnd* CWinThread::GetMainWnd()
{
    if (m_pActiveWnd != NULL)
        return m_pActiveWnd;
    return m_pMainWnd;
}

BOOL CWinThread::InitInstance()
{
    return FALSE;
}

int CWinThread::ExitInstance()
{
    return static_cast<int>(m_msgCur.wParam);
}

void CWinThread::Delete()
{
    if (m_bAutoDelete)
        delete this;
}

int CWinThread::Run()
{
    BOOL bIdle = TRUE;
    LONG lIdleCount = 0;
    for (;;)
    {
        while (bIdle && !::PeekMessageW(&m_msgCur, NULL, 0, 0, PM_NOREMOVE))
        {
            if (!OnIdle(lIdleCount++))
                bIdle = FALSE;
        }
        do
        {
            if (!PumpMessage())
                return ExitInstance();
            if (IsIdleMessage(&m_msgCur))
            {
                bIdle = TRUE;
                lIdleCount = 0;
            }
        } while (::PeekMessageW(&m_msgCur, NULL, 0, 0, PM_NOREMOVE));
    }
}

BOOL CWinThread::PumpMessage()
{
    BOOL bGot = ::GetMessageW(&m_msgCur, NULL, 0, 0);
    if (bGot == 0 || bGot == -1)
        return FALSE;
    if (m_msgCur.message != WM_KICKIDLE && !PreTranslateMessage(&m_msgCur))
    {
        ::TranslateMessage(&m_msgCur);
        ::DispatchMessageW(&m_msgCur);
    }
    return TRUE;
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg)
{
    return PreTranslateForThread(pMsg);
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg)
{
    if (pMsg->message == WM_MOUSEMOVE || pMsg->message == WM_NCMOUSEMOVE)
    {
        // A mouse that did not move is no reason for another round of idle work.
        if (m_ptCursorLast == CPoint(pMsg->pt) && pMsg->message == m_nMsgLast)
            return FALSE;
        m_ptCursorLast = pMsg->pt;
        m_nMsgLast = pMsg->message;
        return TRUE;
    }
    return pMsg->message != WM_PAINT && pMsg->message != kSysTimer;
}

BOOL CWinThread::OnIdle(LONG lCount)
{
    if (lCount <= 0)
    {
        // Let the main window and its permanent descendants update their command UI.
        CWnd* pMainWnd = m_pMainWnd;
        if (pMainWnd != NULL && pMainWnd->m_hWnd != NULL && pMainWnd->IsWindowVisible())
        {
            AfxCallWndProc(pMainWnd, pMainWnd->m_hWnd, WM_IDLEUPDATECMDUI, TRUE, 0);
            pMainWnd->SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
        }
        return TRUE;
    }
    // Free the temporary objects handed out since the last idle time.
    AfxLockTempMaps();
    AfxUnlockTempMaps(TRUE);
    return FALSE;
}

/////////////////////////////////////////////////////////////////////////////
// CWinApp

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

CWinApp::CWinApp(LPCTSTR lpszAppName)
    : m_pszAppName(Duplicate(lpszAppName)), m_hInstance(NULL), m_lpCmdLine(NULL), m_nCmdShow(SW_SHOWNORMAL),
      m_pszExeName(NULL), m_pszHelpFilePath(NULL), m_pszProfileName(NULL), m_pszRegistryKey(NULL),
      m_nWaitCursorCount(0), m_hcurWaitCursorRestore(NULL)
{
    // The application object is the thread object of the thread that constructs it.
    m_nThreadID = ::GetCurrentThreadId();
    m_hThread = ::GetCurrentThread();
    m_bAutoDelete = FALSE;
    g_pApp = this;
    t_pThread = this;
}

CWinApp::~CWinApp()
{
    if (g_pApp == this)
        g_pApp = NULL;
    FreeString(m_pszAppName);
    FreeString(m_pszExeName);
    FreeString(m_pszHelpFilePath);
    FreeString(m_pszProfileName);
    FreeString(m_pszRegistryKey);
}

void CWinApp::SetCurrentHandles()
{
    wchar_t path[MAX_PATH] = L"";
    ::GetModuleFileNameW(m_hInstance, path, MAX_PATH);
    if (m_pszHelpFilePath == NULL)
    {
        // The executable's path with ".HLP" in place of its extension.
        wchar_t help[MAX_PATH + 4];
        wcscpy(help, path);
        if (wchar_t* dot = wcsrchr(help, L'.'))
            *dot = 0;
        wcscat(help, L".HLP");
        m_pszHelpFilePath = Duplicate(help);
    }
    if (m_pszExeName == NULL)
    {
        const wchar_t* name = wcsrchr(path, L'\\');
        name = name != NULL ? name + 1 : path;
        wchar_t exe[MAX_PATH];
        wcscpy(exe, name);
        if (wchar_t* dot = wcsrchr(exe, L'.'))
            *dot = 0;
        m_pszExeName = Duplicate(exe);
    }
    if (m_pszAppName == NULL)
    {
        // The string AFX_IDS_APP_TITLE names the application; else the executable does.
        CString title;
        if (title.LoadString(0xE000) && !title.IsEmpty())
            m_pszAppName = Duplicate(title);
        else
            m_pszAppName = Duplicate(m_pszExeName);
    }
    if (m_pszProfileName == NULL)
    {
        CString profile(m_pszExeName);
        profile += L".INI";
        m_pszProfileName = Duplicate(profile);
    }
}

BOOL CWinApp::InitApplication()
{
    return TRUE;
}

BOOL CWinApp::InitInstance()
{
    return TRUE;
}

int CWinApp::ExitInstance()
{
    return CWinThread::ExitInstance();
}

int CWinApp::Run()
{
    // Without a main window there is nothing to wait for.
    if (m_pMainWnd == NULL)
        AfxPostQuitMessage(0);
    return CWinThread::Run();
}

BOOL CWinApp::OnIdle(LONG lCount)
{
    return CWinThread::OnIdle(lCount);
}

int CWinApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT)
{
    HWND hWndOwner = ::GetActiveWindow();
    if (hWndOwner == NULL)
    {
        CWnd* pMainWnd = AfxGetMainWnd();
        if (pMainWnd != NULL && pMainWnd->m_hWnd != NULL)
            hWndOwner = ::GetLastActivePopup(pMainWnd->m_hWnd);
    }
    return ::MessageBoxW(hWndOwner, lpszPrompt != NULL ? lpszPrompt : L"", m_pszAppName, nType);
}

void CWinApp::DoWaitCursor(int nCode)
{
    if (nCode > 0)
    {
        HCURSOR hPrevious = ::SetCursor(::LoadCursorW(NULL, IDC_WAIT));
        if (m_nWaitCursorCount++ == 0)
            m_hcurWaitCursorRestore = hPrevious;
    }
    else if (nCode < 0)
    {
        if (m_nWaitCursorCount > 0 && --m_nWaitCursorCount == 0)
            ::SetCursor(m_hcurWaitCursorRestore);
    }
    else if (m_nWaitCursorCount > 0)
    {
        ::SetCursor(::LoadCursorW(NULL, IDC_WAIT));
    }
}

CWaitCursor::CWaitCursor()
{
    AfxGetApp()->BeginWaitCursor();
}

CWaitCursor::~CWaitCursor()
{
    AfxGetApp()->EndWaitCursor();
}

void CWaitCursor::Restore()
{
    AfxGetApp()->RestoreWaitCursor();
}

HICON CWinApp::LoadIcon(LPCTSTR lpszResourceName) const
{
    return ::LoadIconW(AfxFindResourceHandle(lpszResourceName, RT_GROUP_ICON), lpszResourceName);
}

HICON CWinApp::LoadIcon(UINT nIDResource) const
{
    return LoadIcon(MAKEINTRESOURCEW(nIDResource));
}

HICON CWinApp::LoadStandardIcon(LPCTSTR lpszIconName) const
{
    return ::LoadIconW(NULL, lpszIconName);
}

HCURSOR CWinApp::LoadCursor(LPCTSTR lpszResourceName) const
{
    return ::LoadCursorW(AfxFindResourceHandle(lpszResourceName, RT_GROUP_CURSOR), lpszResourceName);
}

HCURSOR CWinApp::LoadCursor(UINT nIDResource) const
{
    return LoadCursor(MAKEINTRESOURCEW(nIDResource));
}

HCURSOR CWinApp::LoadStandardCursor(LPCTSTR lpszCursorName) const
{
    return ::LoadCursorW(NULL, lpszCursorName);
}

/////////////////////////////////////////////////////////////////////////////
// Global functions

CWinApp* AFXAPI AfxGetApp()
{
    return g_pApp;
}

CWinThread* AFXAPI AfxGetThread()
{
    if (t_pThread != NULL)
        return t_pThread;
    // The application object serves the thread it was made on.
    if (g_pApp != NULL && g_pApp->m_nThreadID == ::GetCurrentThreadId())
        return g_pApp;
    return NULL;
}

CWnd* AFXAPI AfxGetMainWnd()
{
    CWinThread* pThread = AfxGetThread();
    return pThread != NULL ? pThread->GetMainWnd() : NULL;
}

LPCTSTR AFXAPI AfxGetAppName()
{
    return g_pApp != NULL ? g_pApp->m_pszAppName : NULL;
}

BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPTSTR lpCmdLine, int nCmdShow)
{
    if (hInstance == NULL)
        hInstance = ::GetModuleHandleW(NULL);
    zoafx::SetInstanceHandle(hInstance);
    if (CWinApp* pApp = AfxGetApp())
    {
        pApp->m_hInstance = hInstance;
        pApp->m_lpCmdLine = lpCmdLine;
        pApp->m_nCmdShow = nCmdShow;
        pApp->SetCurrentHandles();
    }
    INITCOMMONCONTROLSEX icc = { sizeof(icc), ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES };
    ::InitCommonControlsEx(&icc);
    return TRUE;
}

void AFXAPI AfxWinTerm()
{
    AfxUnhookWindowCreate();
    CWnd::DeleteTempMap();
}

int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow)
{
    int nReturnCode = -1;
    CWinThread* pThread = AfxGetThread();
    CWinApp* pApp = AfxGetApp();
    if (AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow) &&
        (pApp == NULL || pApp->InitApplication()) && pThread != NULL)
    {
        if (!pThread->InitInstance())
        {
            if (pThread->m_pMainWnd != NULL)
                pThread->m_pMainWnd->DestroyWindow();
            nReturnCode = pThread->ExitInstance();
        }
        else
        {
            nReturnCode = pThread->Run();
        }
    }
    AfxWinTerm();
    return nReturnCode;
}

BOOL AFXAPI AfxPumpMessage()
{
    MSG msg;
    return PumpInto(&msg);
}

void AFXAPI AfxPostQuitMessage(int nExitCode)
{
    ::PostQuitMessage(nExitCode);
}

int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp)
{
    if (CWinApp* pApp = AfxGetApp())
        return pApp->DoMessageBox(lpszText, nType, nIDHelp);
    return ::MessageBoxW(::GetActiveWindow(), lpszText != NULL ? lpszText : L"", NULL, nType);
}

int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp)
{
    CString prompt;
    if (!prompt.LoadString(nIDPrompt))
        return 0;   // no such string: nothing to ask
    return AfxMessageBox(prompt, nType, nIDHelp == static_cast<UINT>(-1) ? nIDPrompt : nIDHelp);
}

/////////////////////////////////////////////////////////////////////////////
// Modal loops

BOOL CWnd::ContinueModal()
{
    return (m_nFlags & WF_CONTINUEMODAL) != 0;
}

void CWnd::EndModalLoop(int nResult)
{
    m_nModalResult = nResult;
    if (m_nFlags & WF_CONTINUEMODAL)
    {
        m_nFlags &= ~WF_CONTINUEMODAL;
        PostMessage(WM_NULL);   // wakes the loop so that it sees the end
    }
}

int CWnd::RunModalLoop(DWORD dwFlags)
{
    BOOL bIdle = TRUE;
    LONG lIdleCount = 0;
    BOOL bShowIdle = (dwFlags & MLF_SHOWONIDLE) && !(GetStyle() & WS_VISIBLE);
    HWND hWnd = m_hWnd;
    HWND hWndParent = ::GetParent(hWnd);
    m_nFlags |= WF_MODALLOOP | WF_CONTINUEMODAL;
    MSG msg = {};

    for (;;)
    {
        while (bIdle && !::PeekMessageW(&msg, NULL, 0, 0, PM_NOREMOVE))
        {
            if (bShowIdle)
            {
                ShowWindow(SW_SHOWNORMAL);
                UpdateWindow();
                bShowIdle = FALSE;
            }
            if (!(dwFlags & MLF_NOIDLEMSG) && hWndParent != NULL && lIdleCount == 0)
                ::SendMessageW(hWndParent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(hWnd));
            if ((dwFlags & MLF_NOKICKIDLE) || !::SendMessageW(hWnd, WM_KICKIDLE, MSGF_DIALOGBOX, lIdleCount++))
                bIdle = FALSE;
        }
        do
        {
            if (!PumpInto(&msg))
            {
                // WM_QUIT ends the modal loop; the application's loop must still see it.
                ::PostQuitMessage(static_cast<int>(msg.wParam));
                m_nFlags &= ~(WF_MODALLOOP | WF_CONTINUEMODAL);
                return -1;
            }
            if (bShowIdle && (msg.message == kSysTimer || msg.message == WM_SYSKEYDOWN))
            {
                ShowWindow(SW_SHOWNORMAL);
                UpdateWindow();
                bShowIdle = FALSE;
            }
            // A window destroyed under the loop ends it as well.
            if (!::IsWindow(hWnd) || !ContinueModal())
            {
                m_nFlags &= ~(WF_MODALLOOP | WF_CONTINUEMODAL);
                return m_nModalResult;
            }
            if (IsIdleForThread(&msg))
            {
                bIdle = TRUE;
                lIdleCount = 0;
            }
        } while (::PeekMessageW(&msg, NULL, 0, 0, PM_NOREMOVE));
    }
}
