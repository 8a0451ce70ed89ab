// CWnd's bond with its HWND: the handle map, the creation hook, AfxWndProc, subclassing
// and destruction.
#include <afxwin.h>
#include <afxpriv.h>
#include <zoafx/handlemap.h>
#include "wndstate.h"

#include <mutex>
#include <set>
#include <string>

namespace zoafx {

WndThreadState& WndState()
{
    static thread_local WndThreadState state;
    return state;
}

static CWnd* NewTempWnd(HWND hWnd)
{
    CWnd* pWnd = new CWnd;
    pWnd->m_hWnd = hWnd;
    return pWnd;
}

static void DetachTempWnd(CWnd* pWnd)
{
    pWnd->m_hWnd = NULL;
}

CHandleMap<CWnd, HWND>& WndMap()
{
    static CHandleMap<CWnd, HWND> map(&NewTempWnd, &DetachTempWnd);
    return map;
}

// Puts AfxWndProc in front of the window's procedure and remembers the old one.
void WndAccess::HookProcedure(CWnd* pWnd, HWND hWnd)
{
    WNDPROC* ppfnSuper = pWnd->GetSuperWndProcAddr();
    WNDPROC pfnOld = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc)));
    if (pfnOld != &AfxWndProc)
        *ppfnSuper = pfnOld;
}

// The last steps of WM_NCDESTROY: give the window its own procedure back, forget the
// handle, then let the object clean up (it may delete itself).
void WndAccess::FinishNcDestroy(CWnd* pWnd)
{
    HWND hWnd = pWnd->m_hWnd;
    WNDPROC* ppfnSuper = pWnd->GetSuperWndProcAddr();
    if (hWnd != NULL && *ppfnSuper != NULL &&
        reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(hWnd, GWLP_WNDPROC)) == &AfxWndProc)
    {
        ::SetWindowLongPtrW(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*ppfnSuper));
    }
    pWnd->Detach();
    pWnd->PostNcDestroy();
}

// The system may create a thread's input-method window in the middle of the first
// CreateWindowEx; it must not take the place of the window being made.
static bool IsImeWindow(HWND hWnd)
{
    wchar_t className[8] = L"";
    return ::GetClassNameW(hWnd, className, 8) > 0 && _wcsicmp(className, L"ime") == 0;
}

static LRESULT CALLBACK CbtFilterHook(int nCode, WPARAM wParam, LPARAM lParam)
{
    WndThreadState& state = WndState();
    if (nCode == HCBT_CREATEWND && state.pWndInit != NULL && !IsImeWindow(reinterpret_cast<HWND>(wParam)))
    {
        CWnd* pWnd = state.pWndInit;
        state.pWndInit = NULL;
        HWND hWnd = reinterpret_cast<HWND>(wParam);
        if (pWnd->Attach(hWnd))
        {
            WndAccess::PreSubclass(pWnd);
            WndAccess::HookProcedure(pWnd, hWnd);
        }
    }
    return ::CallNextHookEx(state.hHookCbt, nCode, wParam, lParam);
}

} // namespace zoafx

using zoafx::WndAccess;
using zoafx::WndMap;
using zoafx::WndState;

/////////////////////////////////////////////////////////////////////////////
// Window procedure

LRESULT AFXAPI AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    zoafx::WndThreadState& state = WndState();
    const MSG previous = state.msgLast;
    state.msgLast.hwnd = hWnd;
    state.msgLast.message = nMsg;
    state.msgLast.wParam = wParam;
    state.msgLast.lParam = lParam;

    LRESULT lResult = 0;
    try
    {
        lResult = WndAccess::CallWindowProc(pWnd, nMsg, wParam, lParam);
    }
    catch (CException* e)
    {
        // An exception must not unwind through the system's frames; the message fails.
        e->Delete();
        lResult = (nMsg == WM_CREATE) ? -1 : 0;
    }

    // A handler that did not call CWnd::OnNcDestroy still leaves the object detached.
    if (nMsg == WM_NCDESTROY && WndMap().LookupPermanent(hWnd) == pWnd)
        WndAccess::FinishNcDestroy(pWnd);

    state.msgLast = previous;
    return lResult;
}

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    if (nMsg == WM_QUERYAFXWNDPROC)
        return 1;
    CWnd* pWnd = WndMap().LookupPermanent(hWnd);
    if (pWnd == NULL || pWnd->m_hWnd != hWnd)
        return ::DefWindowProcW(hWnd, nMsg, wParam, lParam);
    return AfxCallWndProc(pWnd, hWnd, nMsg, wParam, lParam);
}

WNDPROC AFXAPI AfxGetAfxWndProc()
{
    return &AfxWndProc;
}

void AFXAPI AfxHookWindowCreate(CWnd* pWnd)
{
    zoafx::WndThreadState& state = WndState();
    state.pWndInit = pWnd;
    if (state.hHookCbt == NULL)
        state.hHookCbt = ::SetWindowsHookExW(WH_CBT, &zoafx::CbtFilterHook, NULL, ::GetCurrentThreadId());
}

BOOL AFXAPI AfxUnhookWindowCreate()
{
    zoafx::WndThreadState& state = WndState();
    if (state.hHookCbt != NULL)
    {
        ::UnhookWindowsHookEx(state.hHookCbt);
        state.hHookCbt = NULL;
    }
    if (state.pWndInit != NULL)
    {
        state.pWndInit = NULL;
        return FALSE;
    }
    return TRUE;
}

/////////////////////////////////////////////////////////////////////////////
// Window classes

namespace {

std::mutex g_classNamesLock;
std::set<std::wstring> g_classNames;

// The returned pointer stays valid for the life of the process.
LPCTSTR KeepClassName(const std::wstring& name)
{
    std::lock_guard<std::mutex> guard(g_classNamesLock);
    return g_classNames.insert(name).first->c_str();
}

} // namespace

BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass)
{
    if (lpWndClass == NULL || lpWndClass->lpszClassName == NULL)
        return FALSE;
    WNDCLASS existing;
    if (::GetClassInfoW(lpWndClass->hInstance, lpWndClass->lpszClassName, &existing))
        return TRUE;
    return ::RegisterClassW(lpWndClass) != 0 ||
           ::GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon)
{
    HINSTANCE hInst = AfxGetInstanceHandle();
    wchar_t name[128];
    if (hCursor == NULL && hbrBackground == NULL && hIcon == NULL)
        swprintf(name, 128, L"Afx:%p:%x", (void*)hInst, nClassStyle);
    else
        swprintf(name, 128, L"Afx:%p:%x:%p:%p:%p", (void*)hInst, nClassStyle, (void*)hCursor,
                 (void*)hbrBackground, (void*)hIcon);
    LPCTSTR lpszName = KeepClassName(name);

    WNDCLASS wc = {};
    wc.style = nClassStyle;
    wc.lpfnWndProc = &::DefWindowProcW;
    wc.hInstance = hInst;
    wc.hIcon = hIcon;
    wc.hCursor = hCursor;
    wc.hbrBackground = hbrBackground;
    wc.lpszClassName = lpszName;
    if (!AfxRegisterClass(&wc))
        AfxThrowResourceException();
    return lpszName;
}

/////////////////////////////////////////////////////////////////////////////
// CWnd: handle map, creation, subclassing, destruction

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

CWnd::CWnd()
    : m_hWnd(NULL), m_pfnSuper(NULL), m_nFlags(0), m_nModalResult(0)
{
}

CWnd::CWnd(HWND hWnd)
    : m_hWnd(hWnd), m_pfnSuper(NULL), m_nFlags(0), m_nModalResult(0)
{
}

CWnd::~CWnd()
{
    // An object that still owns its window takes the window with it.
    if (m_hWnd != NULL && WndMap().LookupPermanent(m_hWnd) == this)
        DestroyWindow();
}

CWnd* PASCAL CWnd::FromHandle(HWND hWnd)
{
    return WndMap().FromHandle(hWnd);
}

CWnd* PASCAL CWnd::FromHandlePermanent(HWND hWnd)
{
    return WndMap().LookupPermanent(hWnd);
}

void PASCAL CWnd::DeleteTempMap()
{
    WndMap().DeleteTemp();
}

BOOL CWnd::Attach(HWND hWndNew)
{
    if (hWndNew == NULL || m_hWnd != NULL || WndMap().LookupPermanent(hWndNew) != NULL)
        return FALSE;
    WndMap().SetPermanent(hWndNew, this);
    m_hWnd = hWndNew;
    return TRUE;
}

HWND CWnd::Detach()
{
    HWND hWnd = m_hWnd;
    if (hWnd != NULL)
    {
        if (WndMap().LookupPermanent(hWnd) == this)
            WndMap().RemoveHandle(hWnd);
        m_hWnd = NULL;
    }
    return hWnd;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (cs.lpszClass == NULL)
    {
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW,
                                           ::LoadCursorW(NULL, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    }
    return TRUE;
}

void CWnd::PreSubclassWindow()
{
}

void CWnd::PostNcDestroy()
{
}

WNDPROC* CWnd::GetSuperWndProcAddr()
{
    return &m_pfnSuper;
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    int x, int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu,
                    LPVOID lpParam)
{
    if (m_hWnd != NULL)
        return FALSE;

    CREATESTRUCT cs = {};
    cs.dwExStyle = dwExStyle;
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = dwStyle;
    cs.x = x;
    cs.y = y;
    cs.cx = nWidth;
    cs.cy = nHeight;
    cs.hwndParent = hWndParent;
    cs.hMenu = nIDorHMenu;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = lpParam;

    if (!PreCreateWindow(cs))
    {
        PostNcDestroy();
        return FALSE;
    }

    AfxHookWindowCreate(this);
    HWND hWnd = ::CreateWindowExW(cs.dwExStyle, cs.lpszClass, cs.lpszName, cs.style, cs.x, cs.y,
                                  cs.cx, cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance,
                                  cs.lpCreateParams);
    if (!AfxUnhookWindowCreate())
        PostNcDestroy();   // no window was ever attached: the object is done with
    return hWnd != NULL;
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam)
{
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                    rect.right - rect.left, rect.bottom - rect.top, pParentWnd->GetSafeHwnd(),
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, CCreateContext* pContext)
{
    // Create makes child windows only; pop-ups go through CreateEx.
    if (dwStyle & WS_POPUP)
        return FALSE;
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID,
                    static_cast<LPVOID>(pContext));
}

BOOL CWnd::DestroyWindow()
{
    HWND hWnd = m_hWnd;
    if (hWnd == NULL)
        return FALSE;
    const bool bPermanent = WndMap().LookupPermanent(hWnd) == this;
    const bool bTemporary = WndMap().LookupTemporary(hWnd) == this;
    BOOL bResult = ::DestroyWindow(hWnd);
    // A permanent object was detached by WM_NCDESTROY (and may be gone); a temporary
    // one keeps its handle until the map deletes it.
    if (!bPermanent && !bTemporary && bResult)
        m_hWnd = NULL;
    return bResult;
}

BOOL CWnd::SubclassWindow(HWND hWnd)
{
    if (!::IsWindow(hWnd) || !Attach(hWnd))
        return FALSE;
    PreSubclassWindow();
    WndAccess::HookProcedure(this, hWnd);
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent)
{
    HWND hWndParent = pParent->GetSafeHwnd();
    if (hWndParent == NULL)
        return FALSE;
    HWND hWndControl = ::GetDlgItem(hWndParent, static_cast<int>(nID));
    if (hWndControl == NULL)
        return FALSE;
    return SubclassWindow(hWndControl);
}

HWND CWnd::UnsubclassWindow()
{
    if (m_hWnd == NULL)
        return NULL;
    WNDPROC* ppfnSuper = GetSuperWndProcAddr();
    if (*ppfnSuper != NULL)
    {
        ::SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*ppfnSuper));
        *ppfnSuper = NULL;
    }
    return Detach();
}

void CWnd::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType)
{
    if (lpClientRect == NULL)
        return;
    DWORD dwExStyle = GetExStyle();
    if (nAdjustType == adjustBorder)
        dwExStyle &= ~WS_EX_CLIENTEDGE;
    ::AdjustWindowRectEx(lpClientRect, GetStyle(), FALSE, dwExStyle);
}

/////////////////////////////////////////////////////////////////////////////
// Default processing

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    WNDPROC pfnSuper = *GetSuperWndProcAddr();
    if (pfnSuper != NULL)
        return ::CallWindowProcW(pfnSuper, m_hWnd, message, wParam, lParam);
    return ::DefWindowProcW(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default()
{
    const MSG& msg = WndState().msgLast;
    return DefWindowProc(msg.message, msg.wParam, msg.lParam);
}

const MSG* PASCAL CWnd::GetCurrentMessage()
{
    zoafx::WndThreadState& state = WndState();
    state.msgCurrent = state.msgLast;
    state.msgCurrent.time = ::GetMessageTime();
    DWORD dwPos = ::GetMessagePos();
    state.msgCurrent.pt.x = static_cast<short>(LOWORD(dwPos));
    state.msgCurrent.pt.y = static_cast<short>(HIWORD(dwPos));
    return &state.msgCurrent;
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT lResult = 0;
    if (!OnWndMsg(message, wParam, lParam, &lResult))
        lResult = DefWindowProc(message, wParam, lParam);
    return lResult;
}

void CWnd::OnNcDestroy()
{
    // The main window's end is the application's end.
    if (CWinThread* pThread = AfxGetThread())
    {
        if (pThread->m_pMainWnd == this)
        {
            if (pThread == AfxGetApp())
                AfxPostQuitMessage(0);
            pThread->m_pMainWnd = NULL;
        }
        if (pThread->m_pActiveWnd == this)
            pThread->m_pActiveWnd = NULL;
    }
    Default();
    WndAccess::FinishNcDestroy(this);
}
