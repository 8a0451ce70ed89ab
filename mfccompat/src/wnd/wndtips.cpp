// Tool tips of EnableToolTips: one tool-tip control per thread follows the mouse over the
// child controls of the window that enabled them; its text comes from TTN_NEEDTEXT.
#include <afxwin.h>
#include "wndstate.h"

namespace {

// Version-2 layout: accepted by every common-controls version.
const UINT kToolInfoSize = TTTOOLINFOW_V2_SIZE;

bool IsMouseMessage(UINT message)
{
    return message == WM_MOUSEMOVE || message == WM_NCMOUSEMOVE || message == WM_LBUTTONUP ||
           message == WM_RBUTTONUP || message == WM_MBUTTONUP;
}

// Key presses and clicks hide a shown tip.
bool IsCancelMessage(UINT message)
{
    return (message >= WM_KEYFIRST && message <= WM_KEYLAST) || message == WM_LBUTTONDOWN ||
           message == WM_RBUTTONDOWN || message == WM_MBUTTONDOWN || message == WM_NCLBUTTONDOWN ||
           message == WM_NCRBUTTONDOWN || message == WM_NCMBUTTONDOWN;
}

void ForgetTool(zoafx::WndThreadState& state)
{
    if (state.bHasTool && ::IsWindow(state.hWndToolTip))
        ::SendMessageW(state.hWndToolTip, TTM_DELTOOL, 0, reinterpret_cast<LPARAM>(&state.lastTool));
    state.bHasTool = false;
    state.nLastHit = -1;
}

// The thread's tool-tip control, owned by hWndOwner.
HWND ToolTipFor(HWND hWndOwner)
{
    zoafx::WndThreadState& state = zoafx::WndState();
    if (state.hWndToolTip != NULL && ::IsWindow(state.hWndToolTip) && state.hWndToolTipOwner == hWndOwner)
        return state.hWndToolTip;
    if (state.hWndToolTip != NULL && ::IsWindow(state.hWndToolTip))
        ::DestroyWindow(state.hWndToolTip);
    state.bHasTool = false;
    state.nLastHit = -1;
    state.hWndToolTip = ::CreateWindowExW(0, TOOLTIPS_CLASSW, NULL, WS_POPUP | TTS_ALWAYSTIP, CW_USEDEFAULT,
                                          CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, hWndOwner, NULL,
                                          AfxGetInstanceHandle(), NULL);
    state.hWndToolTipOwner = state.hWndToolTip != NULL ? hWndOwner : NULL;
    if (state.hWndToolTip != NULL)
        ::SendMessageW(state.hWndToolTip, TTM_ACTIVATE, TRUE, 0);
    return state.hWndToolTip;
}

} // namespace

BOOL CWnd::EnableToolTips(BOOL bEnable)
{
    if (bEnable)
    {
        m_nFlags |= WF_TOOLTIPS;
        return TRUE;
    }
    m_nFlags &= ~WF_TOOLTIPS;
    zoafx::WndThreadState& state = zoafx::WndState();
    if (state.hWndToolTipOwner == m_hWnd && state.hWndToolTip != NULL)
    {
        if (::IsWindow(state.hWndToolTip))
            ::DestroyWindow(state.hWndToolTip);
        state.hWndToolTip = NULL;
        state.hWndToolTipOwner = NULL;
        state.bHasTool = false;
        state.nLastHit = -1;
    }
    return FALSE;
}

INT_PTR CWnd::OnToolHitTest(CPoint point, TOOLINFO* pTI) const
{
    if (m_hWnd == NULL)
        return -1;
    // The visible child control under the point, disabled ones included.
    POINT screen = point;
    ::ClientToScreen(m_hWnd, &screen);
    HWND hWndHit = NULL;
    for (HWND hWndChild = ::GetTopWindow(m_hWnd); hWndChild != NULL; hWndChild = ::GetNextWindow(hWndChild, GW_HWNDNEXT))
    {
        RECT rect;
        if (::IsWindowVisible(hWndChild) && ::GetWindowRect(hWndChild, &rect) && ::PtInRect(&rect, screen))
        {
            hWndHit = hWndChild;
            break;
        }
    }
    if (hWndHit == NULL)
        return -1;
    if (pTI != NULL)
    {
        pTI->hwnd = m_hWnd;
        pTI->uId = reinterpret_cast<UINT_PTR>(hWndHit);
        pTI->uFlags |= TTF_IDISHWND;
        pTI->lpszText = LPSTR_TEXTCALLBACKW;
        if (!(::SendMessageW(hWndHit, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON))
            pTI->uFlags |= TTF_NOTBUTTON | TTF_CENTERTIP;
    }
    return ::GetDlgCtrlID(hWndHit);
}

void CWnd::FilterToolTipMessage(MSG* pMsg)
{
    if (pMsg == NULL || m_hWnd == NULL)
        return;
    if (IsCancelMessage(pMsg->message))
    {
        CancelToolTips(TRUE);
        return;
    }
    if (!IsMouseMessage(pMsg->message))
        return;

    HWND hWndTip = ToolTipFor(m_hWnd);
    if (hWndTip == NULL)
        return;
    zoafx::WndThreadState& state = zoafx::WndState();

    TTTOOLINFOW info = {};
    info.cbSize = kToolInfoSize;
    INT_PTR nHit = -1;
    HWND hWndUnder = ::WindowFromPoint(pMsg->pt);
    if (hWndUnder == m_hWnd || ::IsChild(m_hWnd, hWndUnder))
    {
        CPoint point(pMsg->pt);
        ::ScreenToClient(m_hWnd, &point);
        nHit = OnToolHitTest(point, &info);
    }

    const bool bSameTool = state.bHasTool && nHit == state.nLastHit && info.hwnd == state.lastTool.hwnd &&
                           info.uId == state.lastTool.uId;
    if (!bSameTool)
    {
        ForgetTool(state);
        if (nHit != -1)
        {
            info.cbSize = kToolInfoSize;
            info.uFlags &= ~(TTF_NOTBUTTON | TTF_ALWAYSTIP);   // the framework's own flags
            if (::SendMessageW(hWndTip, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&info)))
            {
                state.bHasTool = true;
                state.nLastHit = nHit;
                state.lastTool = info;
            }
        }
    }
    if (state.bHasTool)
        ::SendMessageW(hWndTip, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(pMsg));
}

void PASCAL CWnd::CancelToolTips(BOOL)
{
    zoafx::WndThreadState& state = zoafx::WndState();
    if (state.hWndToolTip != NULL && ::IsWindow(state.hWndToolTip))
        ::SendMessageW(state.hWndToolTip, TTM_POP, 0, 0);
}
