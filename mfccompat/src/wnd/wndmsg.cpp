// Message maps: lookup, cracking and calling of handlers, command and notification
// routing, and reflection of notifications back to the child that sent them.
#include <afxwin.h>
#include "wndstate.h"

using zoafx::MsgFnCast;
using zoafx::WndMap;
using zoafx::WndState;

/////////////////////////////////////////////////////////////////////////////
// Exceptions declared with the window classes

IMPLEMENT_DYNAMIC(CUserException, CSimpleException)
CUserException::CUserException() { }
CUserException::CUserException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) { }
CUserException::~CUserException() { }
LPCTSTR CUserException::GetDefaultMessage() const
{
    return _T("The operation was stopped.");
}

void AFXAPI AfxThrowUserException()
{
    throw new CUserException;
}

/////////////////////////////////////////////////////////////////////////////
// Map lookup

namespace {

const AFX_MSGMAP* BaseMap(const AFX_MSGMAP* pMap)
{
    return pMap->pfnGetBaseMap != NULL ? pMap->pfnGetBaseMap() : NULL;
}

bool IsCtlColorMessage(UINT message)
{
    return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
}

bool IsRegisteredMessage(UINT message)
{
    return message >= 0xC000 && message <= 0xFFFF;
}

// The first entry for a window message, searching derived maps before base maps.
const AFX_MSGMAP_ENTRY* FindMessageEntry(const AFX_MSGMAP* pMap, UINT message)
{
    for (; pMap != NULL; pMap = BaseMap(pMap))
    {
        for (const AFX_MSGMAP_ENTRY* pEntry = pMap->lpEntries; pEntry->nSig != AfxSig_end; ++pEntry)
        {
            if (IsRegisteredMessage(message))
            {
                if (pEntry->nMessage == 0xC000 && *reinterpret_cast<const UINT*>(pEntry->nSig) == message)
                    return pEntry;
            }
            else if (pEntry->nMessage == message && pEntry->nCode == 0 && pEntry->nID == 0)
            {
                return pEntry;
            }
        }
    }
    return NULL;
}

CPoint PointFromLParam(LPARAM lParam)
{
    return CPoint(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
}

template <class TFn>
TFn Handler(const AFX_MSGMAP_ENTRY* pEntry)
{
    return MsgFnCast<TFn>(pEntry->pfn);
}

UINT CtlColorType(UINT message)
{
    return IsCtlColorMessage(message) ? message - WM_CTLCOLORMSGBOX : 0;
}

// Cracks the message as the entry's signature says and calls the handler. FALSE when the
// handler declined (a reflected CtlColor that returned no brush) or the code is unknown.
BOOL CallWndHandler(CWnd* pWnd, const AFX_MSGMAP_ENTRY* pEntry, UINT message, WPARAM wParam,
                    LPARAM lParam, LRESULT& lResult)
{
    const UINT_PTR nSig = IsRegisteredMessage(message) ? static_cast<UINT_PTR>(AfxSig_lwl) : pEntry->nSig;
    switch (nSig)
    {
    case AfxSig_vv:
        (pWnd->*Handler<void (CWnd::*)()>(pEntry))();
        break;
    case AfxSig_wv:
        lResult = (pWnd->*Handler<UINT (CWnd::*)()>(pEntry))();
        break;
    case AfxSig_lwl:
        lResult = (pWnd->*Handler<LRESULT (CWnd::*)(WPARAM, LPARAM)>(pEntry))(wParam, lParam);
        break;
    case AfxSig_bD:
        lResult = (pWnd->*Handler<BOOL (CWnd::*)(CDC*)>(pEntry))(CDC::FromHandle(reinterpret_cast<HDC>(wParam)));
        break;
    case AfxSig_is:
        lResult = (pWnd->*Handler<int (CWnd::*)(LPCREATESTRUCT)>(pEntry))(reinterpret_cast<LPCREATESTRUCT>(lParam));
        break;
    case AfxSig_bs:
        lResult = (pWnd->*Handler<BOOL (CWnd::*)(LPCREATESTRUCT)>(pEntry))(reinterpret_cast<LPCREATESTRUCT>(lParam));
        break;
    case AfxSig_vwii:
        (pWnd->*Handler<void (CWnd::*)(UINT, int, int)>(pEntry))(static_cast<UINT>(wParam), LOWORD(lParam), HIWORD(lParam));
        break;
    case AfxSig_vii:
        (pWnd->*Handler<void (CWnd::*)(int, int)>(pEntry))(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
        break;
    case AfxSig_vwp:
        (pWnd->*Handler<void (CWnd::*)(UINT, CPoint)>(pEntry))(static_cast<UINT>(wParam), PointFromLParam(lParam));
        break;
    case AfxSig_bwsp:
        lResult = (pWnd->*Handler<BOOL (CWnd::*)(UINT, short, CPoint)>(pEntry))(
            LOWORD(wParam), static_cast<short>(HIWORD(wParam)), PointFromLParam(lParam));
        break;
    case AfxSig_vwsp:
        (pWnd->*Handler<void (CWnd::*)(UINT, short, CPoint)>(pEntry))(
            LOWORD(wParam), static_cast<short>(HIWORD(wParam)), PointFromLParam(lParam));
        break;
    case AfxSig_bWww:
        lResult = (pWnd->*Handler<BOOL (CWnd::*)(CWnd*, UINT, UINT)>(pEntry))(
            CWnd::FromHandle(reinterpret_cast<HWND>(wParam)), LOWORD(lParam), HIWORD(lParam));
        break;
    case AfxSig_iWww:
        lResult = (pWnd->*Handler<int (CWnd::*)(CWnd*, UINT, UINT)>(pEntry))(
            CWnd::FromHandle(reinterpret_cast<HWND>(wParam)), LOWORD(lParam), HIWORD(lParam));
        break;
    case AfxSig_lp:
        lResult = (pWnd->*Handler<LRESULT (CWnd::*)(CPoint)>(pEntry))(PointFromLParam(lParam));
        break;
    case AfxSig_vbNC:
        (pWnd->*Handler<void (CWnd::*)(BOOL, NCCALCSIZE_PARAMS*)>(pEntry))(
            static_cast<BOOL>(wParam), reinterpret_cast<NCCALCSIZE_PARAMS*>(lParam));
        break;
    case AfxSig_bb:
        lResult = (pWnd->*Handler<BOOL (CWnd::*)(BOOL)>(pEntry))(static_cast<BOOL>(wParam));
        break;
    case AfxSig_vwWb:
        (pWnd->*Handler<void (CWnd::*)(UINT, CWnd*, BOOL)>(pEntry))(
            LOWORD(wParam), CWnd::FromHandle(reinterpret_cast<HWND>(lParam)), HIWORD(wParam));
        break;
    case AfxSig_vbh:
        (pWnd->*Handler<void (CWnd::*)(BOOL, DWORD)>(pEntry))(static_cast<BOOL>(wParam), static_cast<DWORD>(lParam));
        break;
    case AfxSig_vwww:
        (pWnd->*Handler<void (CWnd::*)(UINT, UINT, UINT)>(pEntry))(static_cast<UINT>(wParam), LOWORD(lParam), HIWORD(lParam));
        break;
    case AfxSig_vwl:
        (pWnd->*Handler<void (CWnd::*)(UINT, LPARAM)>(pEntry))(static_cast<UINT>(wParam), lParam);
        break;
    case AfxSig_vW:
        (pWnd->*Handler<void (CWnd::*)(CWnd*)>(pEntry))(CWnd::FromHandle(reinterpret_cast<HWND>(wParam)));
        break;
    case AfxSig_vW2:
        (pWnd->*Handler<void (CWnd::*)(CWnd*)>(pEntry))(CWnd::FromHandle(reinterpret_cast<HWND>(lParam)));
        break;
    case AfxSig_vt:
        (pWnd->*Handler<void (CWnd::*)(UINT_PTR)>(pEntry))(static_cast<UINT_PTR>(wParam));
        break;
    case AfxSig_vwwX:
        // The scroll bar control arrives as the CWnd-derived object the map holds for it.
        (pWnd->*Handler<void (CWnd::*)(UINT, UINT, CScrollBar*)>(pEntry))(
            LOWORD(wParam), HIWORD(wParam),
            reinterpret_cast<CScrollBar*>(CWnd::FromHandle(reinterpret_cast<HWND>(lParam))));
        break;
    case AfxSig_hDWw:
        lResult = reinterpret_cast<LRESULT>((pWnd->*Handler<HBRUSH (CWnd::*)(CDC*, CWnd*, UINT)>(pEntry))(
            CDC::FromHandle(reinterpret_cast<HDC>(wParam)), CWnd::FromHandle(reinterpret_cast<HWND>(lParam)),
            CtlColorType(message)));
        break;
    case AfxSig_vb:
        (pWnd->*Handler<void (CWnd::*)(BOOL)>(pEntry))(static_cast<BOOL>(wParam));
        break;
    case AfxSig_vbw:
        (pWnd->*Handler<void (CWnd::*)(BOOL, UINT)>(pEntry))(static_cast<BOOL>(wParam), static_cast<UINT>(lParam));
        break;
    case AfxSig_vPOS:
        (pWnd->*Handler<void (CWnd::*)(WINDOWPOS*)>(pEntry))(reinterpret_cast<WINDOWPOS*>(lParam));
        break;
    case AfxSig_vPMM:
        (pWnd->*Handler<void (CWnd::*)(MINMAXINFO*)>(pEntry))(reinterpret_cast<MINMAXINFO*>(lParam));
        break;
    case AfxSig_vwR:
        (pWnd->*Handler<void (CWnd::*)(UINT, LPRECT)>(pEntry))(static_cast<UINT>(wParam), reinterpret_cast<LPRECT>(lParam));
        break;
    case AfxSig_vWp:
        (pWnd->*Handler<void (CWnd::*)(CWnd*, CPoint)>(pEntry))(
            CWnd::FromHandle(reinterpret_cast<HWND>(wParam)), PointFromLParam(lParam));
        break;
    case AfxSig_viMIS:
        (pWnd->*Handler<void (CWnd::*)(int, LPMEASUREITEMSTRUCT)>(pEntry))(
            static_cast<int>(wParam), reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        lResult = TRUE;
        break;
    case AfxSig_viDIS:
        (pWnd->*Handler<void (CWnd::*)(int, LPDRAWITEMSTRUCT)>(pEntry))(
            static_cast<int>(wParam), reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        lResult = TRUE;
        break;
    case AfxSig_vMwb:
        (pWnd->*Handler<void (CWnd::*)(CMenu*, UINT, BOOL)>(pEntry))(
            CMenu::FromHandle(reinterpret_cast<HMENU>(wParam)), LOWORD(lParam), HIWORD(lParam));
        break;
    case AfxSig_lwwM:
        lResult = (pWnd->*Handler<LRESULT (CWnd::*)(UINT, UINT, CMenu*)>(pEntry))(
            LOWORD(wParam), HIWORD(wParam), CMenu::FromHandle(reinterpret_cast<HMENU>(lParam)));
        break;
    case AfxSig_vwwh:
        (pWnd->*Handler<void (CWnd::*)(UINT, UINT, HMENU)>(pEntry))(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HMENU>(lParam));
        break;
    case AfxSig_vws:
        (pWnd->*Handler<void (CWnd::*)(UINT, LPCTSTR)>(pEntry))(static_cast<UINT>(wParam), reinterpret_cast<LPCTSTR>(lParam));
        break;
    case AfxSig_vh:
        (pWnd->*Handler<void (CWnd::*)(HDROP)>(pEntry))(reinterpret_cast<HDROP>(wParam));
        break;
    case AfxSig_vww:
        (pWnd->*Handler<void (CWnd::*)(UINT, UINT)>(pEntry))(LOWORD(wParam), HIWORD(wParam));
        break;
    case AfxSig_viSS:
        (pWnd->*Handler<void (CWnd::*)(int, LPSTYLESTRUCT)>(pEntry))(static_cast<int>(wParam), reinterpret_cast<LPSTYLESTRUCT>(lParam));
        break;
    case AfxSig_hDw:
    {
        const AFX_CTLCOLOR* pCtl = reinterpret_cast<const AFX_CTLCOLOR*>(lParam);
        if (pCtl == NULL)
            return FALSE;
        HBRUSH hbr = (pWnd->*Handler<HBRUSH (CWnd::*)(CDC*, UINT)>(pEntry))(CDC::FromHandle(pCtl->hDC), pCtl->nCtlType);
        if (hbr == NULL)
            return FALSE;   // the parent colours the control after all
        lResult = reinterpret_cast<LRESULT>(hbr);
        break;
    }
    case AfxSig_vDIS:
        (pWnd->*Handler<void (CWnd::*)(LPDRAWITEMSTRUCT)>(pEntry))(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        lResult = TRUE;
        break;
    case AfxSig_vMIS:
        (pWnd->*Handler<void (CWnd::*)(LPMEASUREITEMSTRUCT)>(pEntry))(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        lResult = TRUE;
        break;
    case AfxSig_vDELIS:
        (pWnd->*Handler<void (CWnd::*)(LPDELETEITEMSTRUCT)>(pEntry))(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        lResult = TRUE;
        break;
    case AfxSig_iCIS:
        lResult = (pWnd->*Handler<int (CWnd::*)(LPCOMPAREITEMSTRUCT)>(pEntry))(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        break;
    case AfxSig_iww:
        lResult = (pWnd->*Handler<int (CWnd::*)(UINT, UINT)>(pEntry))(LOWORD(wParam), HIWORD(wParam));
        break;
    default:
        return FALSE;
    }
    return TRUE;
}

// Calls a command or notification handler; FALSE when an _EX handler declined.
BOOL CallCmdHandler(CCmdTarget* pTarget, const AFX_MSGMAP_ENTRY* pEntry, UINT nID, void* pExtra)
{
    AFX_NOTIFY* pNotify = static_cast<AFX_NOTIFY*>(pExtra);
    switch (pEntry->nSig)
    {
    case AfxSig_vv:
        (pTarget->*pEntry->pfn)();
        return TRUE;
    case AfxSig_bv:
        return (pTarget->*Handler<BOOL (CCmdTarget::*)()>(pEntry))();
    case AfxSig_bw:
        return (pTarget->*Handler<BOOL (CCmdTarget::*)(UINT)>(pEntry))(nID);
    case AfxSig_vw:
        (pTarget->*Handler<void (CCmdTarget::*)(UINT)>(pEntry))(nID);
        return TRUE;
    case AfxSig_vCmdUI:
    {
        CCmdUI* pCmdUI = static_cast<CCmdUI*>(pExtra);
        if (pCmdUI == NULL)
            return FALSE;
        pCmdUI->m_bContinueRouting = FALSE;
        (pTarget->*Handler<void (CCmdTarget::*)(CCmdUI*)>(pEntry))(pCmdUI);
        return !pCmdUI->m_bContinueRouting;
    }
    }
    if (pNotify == NULL || pNotify->pResult == NULL)
        return FALSE;
    switch (pEntry->nSig)
    {
    case AfxSig_vNMHDRpl:
        (pTarget->*Handler<void (CCmdTarget::*)(NMHDR*, LRESULT*)>(pEntry))(pNotify->pNMHDR, pNotify->pResult);
        return TRUE;
    case AfxSig_vwNMHDRpl:
        (pTarget->*Handler<void (CCmdTarget::*)(UINT, NMHDR*, LRESULT*)>(pEntry))(nID, pNotify->pNMHDR, pNotify->pResult);
        return TRUE;
    case AfxSig_bNMHDRpl:
        return (pTarget->*Handler<BOOL (CCmdTarget::*)(NMHDR*, LRESULT*)>(pEntry))(pNotify->pNMHDR, pNotify->pResult);
    case AfxSig_bwNMHDRpl:
        return (pTarget->*Handler<BOOL (CCmdTarget::*)(UINT, NMHDR*, LRESULT*)>(pEntry))(nID, pNotify->pNMHDR, pNotify->pResult);
    }
    return FALSE;
}

// Messages whose default handling lets the control that sent them answer first.
HWND ItemMessageSender(UINT message, WPARAM wParam, LPARAM lParam)
{
    (void)wParam;
    switch (message)
    {
    case WM_DELETEITEM:
        return lParam ? reinterpret_cast<LPDELETEITEMSTRUCT>(lParam)->hwndItem : NULL;
    case WM_COMPAREITEM:
        return lParam ? reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam)->hwndItem : NULL;
    case WM_CHARTOITEM:
    case WM_VKEYTOITEM:
        return reinterpret_cast<HWND>(lParam);
    }
    return NULL;
}

// A CCmdUI that only notes whether the update handler enabled the command.
class EnableProbe : public CCmdUI
{
public:
    bool bEnabled = true;
    void Enable(BOOL bOn) override
    {
        bEnabled = bOn != FALSE;
        m_bEnableChanged = TRUE;
    }
    void SetCheck(int) override { }
    void SetRadio(BOOL) override { }
    void SetText(LPCTSTR) override { }
};

} // namespace

/////////////////////////////////////////////////////////////////////////////
// CCmdTarget

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

CCmdTarget::CCmdTarget()
{
}

CCmdTarget::~CCmdTarget()
{
}

const AFX_MSGMAP* PASCAL CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY entries[] = { { 0, 0, 0, 0, AfxSig_end, (AFX_PMSG)0 } };
    static const AFX_MSGMAP map = { NULL, &entries[0] };
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    UINT nMsg;
    UINT nEntryCode;
    if (static_cast<UINT>(nCode) == CN_UPDATE_COMMAND_UI)
    {
        nMsg = WM_COMMAND;
        nEntryCode = CN_UPDATE_COMMAND_UI;
    }
    else
    {
        nMsg = HIWORD(nCode) != 0 ? HIWORD(nCode) : WM_COMMAND;
        nEntryCode = LOWORD(nCode);
    }

    for (const AFX_MSGMAP* pMap = GetMessageMap(); pMap != NULL; pMap = BaseMap(pMap))
    {
        for (const AFX_MSGMAP_ENTRY* pEntry = pMap->lpEntries; pEntry->nSig != AfxSig_end; ++pEntry)
        {
            if (pEntry->nMessage != nMsg || pEntry->nCode != nEntryCode || nID < pEntry->nID ||
                nID > pEntry->nLastID)
                continue;
            if (pHandlerInfo != NULL)
            {
                pHandlerInfo->pTarget = this;
                pHandlerInfo->pmf = pEntry->pfn;
                return TRUE;
            }
            if (CallCmdHandler(this, pEntry, nID, pExtra))
                return TRUE;
            // An _EX handler passed: later entries (and base maps) may still take it.
        }
    }
    return FALSE;
}

// The application keeps the count of nested waits; without one each call acts alone.
void CCmdTarget::BeginWaitCursor()
{
    if (CWinApp* pApp = AfxGetApp())
        pApp->DoWaitCursor(1);
    else
        ::SetCursor(::LoadCursorW(NULL, IDC_WAIT));
}

void CCmdTarget::EndWaitCursor()
{
    if (CWinApp* pApp = AfxGetApp())
        pApp->DoWaitCursor(-1);
    else
        ::SetCursor(::LoadCursorW(NULL, IDC_ARROW));
}

void CCmdTarget::RestoreWaitCursor()
{
    if (CWinApp* pApp = AfxGetApp())
        pApp->DoWaitCursor(0);
    else
        ::SetCursor(::LoadCursorW(NULL, IDC_WAIT));
}

/////////////////////////////////////////////////////////////////////////////
// CWnd: dispatch

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_INITMENUPOPUP()
    ON_WM_CTLCOLOR()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_PARENTNOTIFY()
    ON_WM_NCDESTROY()
END_MESSAGE_MAP()

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    LRESULT lResult = 0;
    BOOL bHandled = FALSE;

    if (message == WM_COMMAND)
    {
        if (OnCommand(wParam, lParam))
        {
            lResult = 1;
            bHandled = TRUE;
        }
    }
    else if (message == WM_NOTIFY)
    {
        const NMHDR* pNMHDR = reinterpret_cast<const NMHDR*>(lParam);
        if (pNMHDR != NULL && pNMHDR->hwndFrom != NULL && OnNotify(wParam, lParam, &lResult))
            bHandled = TRUE;
    }
    else
    {
        // All WM_CTLCOLORxxx messages share the WM_CTLCOLOR entry.
        const UINT nLookup = IsCtlColorMessage(message) ? static_cast<UINT>(WM_CTLCOLOR) : message;
        const AFX_MSGMAP_ENTRY* pEntry = FindMessageEntry(GetMessageMap(), nLookup);
        if (pEntry != NULL)
            bHandled = CallWndHandler(this, pEntry, message, wParam, lParam, lResult);
        else if (HWND hWndSender = ItemMessageSender(message, wParam, lParam))
            bHandled = ReflectLastMsg(hWndSender, &lResult);
    }

    if (pResult != NULL)
        *pResult = lResult;
    return bHandled;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const UINT nID = LOWORD(wParam);
    HWND hWndCtrl = reinterpret_cast<HWND>(lParam);
    int nCode = HIWORD(wParam);
    if (hWndCtrl == NULL)
    {
        // Menu or accelerator: a command its update handler disables is not carried out.
        nCode = CN_COMMAND;
        EnableProbe probe;
        probe.m_nID = nID;
        OnCmdMsg(nID, static_cast<int>(CN_UPDATE_COMMAND_UI), &probe, NULL);
        if (!probe.bEnabled)
            return TRUE;
    }
    else if (ReflectLastMsg(hWndCtrl))
        return TRUE;          // the control handled its own notification
    return OnCmdMsg(nID, nCode, NULL, NULL);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult)
{
    NMHDR* pNMHDR = reinterpret_cast<NMHDR*>(lParam);
    if (pNMHDR == NULL)
        return FALSE;
    LRESULT lResultLocal = 0;
    if (pResult == NULL)
        pResult = &lResultLocal;
    HWND hWndCtrl = pNMHDR->hwndFrom;
    if (ReflectLastMsg(hWndCtrl, pResult))
        return TRUE;
    // Entries name the sender's control id (0 for windows without one, such as tooltips).
    const UINT nID = static_cast<UINT>(::GetDlgCtrlID(hWndCtrl));
    AFX_NOTIFY notify = { pResult, pNMHDR };
    return OnCmdMsg(nID, MAKELONG(pNMHDR->code, WM_NOTIFY), &notify, NULL);
}

/////////////////////////////////////////////////////////////////////////////
// CWnd: reflection

BOOL PASCAL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult)
{
    CWnd* pWnd = WndMap().LookupPermanent(hWndChild);
    if (pWnd == NULL)
        return FALSE;
    return pWnd->SendChildNotifyLastMsg(pResult);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult)
{
    const MSG msg = WndState().msgLast;
    return OnChildNotify(msg.message, msg.wParam, msg.lParam, pResult);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return ReflectChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    switch (message)
    {
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_PARENTNOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
    case WM_COMPAREITEM:
        return CWnd::OnWndMsg(WM_REFLECT_BASE + message, wParam, lParam, pResult);

    case WM_COMMAND:
        if (CCmdTarget::OnCmdMsg(0, MAKELONG(HIWORD(wParam), WM_REFLECT_BASE + WM_COMMAND), NULL, NULL))
        {
            if (pResult != NULL)
                *pResult = 1;
            return TRUE;
        }
        return FALSE;

    case WM_NOTIFY:
    {
        NMHDR* pNMHDR = reinterpret_cast<NMHDR*>(lParam);
        if (pNMHDR == NULL)
            return FALSE;
        LRESULT lResultLocal = 0;
        AFX_NOTIFY notify = { pResult != NULL ? pResult : &lResultLocal, pNMHDR };
        return CCmdTarget::OnCmdMsg(0, MAKELONG(pNMHDR->code, WM_REFLECT_BASE + WM_NOTIFY), &notify, NULL);
    }

    case WM_CTLCOLORMSGBOX:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSCROLLBAR:
    case WM_CTLCOLORSTATIC:
    {
        AFX_CTLCOLOR ctl = { reinterpret_cast<HWND>(lParam), reinterpret_cast<HDC>(wParam), CtlColorType(message) };
        return CWnd::OnWndMsg(WM_REFLECT_BASE + WM_CTLCOLOR, 0, reinterpret_cast<LPARAM>(&ctl), pResult);
    }
    }
    return FALSE;
}

/////////////////////////////////////////////////////////////////////////////
// CWnd: default handlers that give the sending control the first answer

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* pWnd, UINT)
{
    LRESULT lResult = 0;
    if (pWnd != NULL && pWnd->m_hWnd != NULL && ReflectLastMsg(pWnd->m_hWnd, &lResult))
        return reinterpret_cast<HBRUSH>(lResult);
    return reinterpret_cast<HBRUSH>(Default());
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    if (lpDrawItemStruct != NULL)
    {
        if (lpDrawItemStruct->CtlType == ODT_MENU)
        {
            // Owner-drawn menu items are drawn by the menu's permanent object.
            CMenu* pMenu = CMenu::FromHandlePermanent(reinterpret_cast<HMENU>(lpDrawItemStruct->hwndItem));
            if (pMenu != NULL)
            {
                pMenu->DrawItem(lpDrawItemStruct);
                return;
            }
        }
        else if (ReflectLastMsg(lpDrawItemStruct->hwndItem))
        {
            return;
        }
    }
    Default();
}

void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    if (lpMeasureItemStruct != NULL)
    {
        if (lpMeasureItemStruct->CtlType == ODT_MENU)
        {
            CMenu* pMenu = zoafx::FindPermanentMenuOfItem(this, lpMeasureItemStruct->itemID);
            if (pMenu != NULL)
            {
                pMenu->MeasureItem(lpMeasureItemStruct);
                return;
            }
        }
        else if (ReflectLastMsg(::GetDlgItem(m_hWnd, static_cast<int>(lpMeasureItemStruct->CtlID))))
        {
            return;
        }
    }
    Default();
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar*)
{
    if (ReflectLastMsg(reinterpret_cast<HWND>(WndState().msgLast.lParam)))
        return;
    Default();
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar*)
{
    if (ReflectLastMsg(reinterpret_cast<HWND>(WndState().msgLast.lParam)))
        return;
    Default();
}

void CWnd::OnParentNotify(UINT message, LPARAM lParam)
{
    const UINT nEvent = LOWORD(message);
    if ((nEvent == WM_CREATE || nEvent == WM_DESTROY) && ReflectLastMsg(reinterpret_cast<HWND>(lParam)))
        return;
    Default();
}

/////////////////////////////////////////////////////////////////////////////
// CWnd: default handlers that pass the message on

int CWnd::OnCreate(LPCREATESTRUCT) { return static_cast<int>(Default()); }
BOOL CWnd::OnNcCreate(LPCREATESTRUCT) { return static_cast<BOOL>(Default()); }
void CWnd::OnDestroy() { Default(); }
void CWnd::OnClose() { Default(); }
void CWnd::OnPaint() { Default(); }
void CWnd::OnNcPaint() { Default(); }
BOOL CWnd::OnEraseBkgnd(CDC*) { return static_cast<BOOL>(Default()); }
void CWnd::OnSysColorChange() { Default(); }
void CWnd::OnSettingChange(UINT, LPCTSTR) { Default(); }
void CWnd::OnSize(UINT, int, int) { Default(); }
void CWnd::OnMove(int, int) { Default(); }
void CWnd::OnSizing(UINT, LPRECT) { Default(); }
void CWnd::OnMoving(UINT, LPRECT) { Default(); }
void CWnd::OnGetMinMaxInfo(MINMAXINFO*) { Default(); }
void CWnd::OnWindowPosChanging(WINDOWPOS*) { Default(); }
void CWnd::OnWindowPosChanged(WINDOWPOS*) { Default(); }
void CWnd::OnShowWindow(BOOL, UINT) { Default(); }
void CWnd::OnEnable(BOOL) { Default(); }
void CWnd::OnStyleChanging(int, LPSTYLESTRUCT) { Default(); }
void CWnd::OnStyleChanged(int, LPSTYLESTRUCT) { Default(); }
void CWnd::OnActivate(UINT, CWnd*, BOOL) { Default(); }
void CWnd::OnActivateApp(BOOL, DWORD) { Default(); }
int CWnd::OnMouseActivate(CWnd*, UINT, UINT) { return static_cast<int>(Default()); }
void CWnd::OnCancelMode() { Default(); }
void CWnd::OnCaptureChanged(CWnd*) { Default(); }
void CWnd::OnSetFocus(CWnd*) { Default(); }
void CWnd::OnKillFocus(CWnd*) { Default(); }
void CWnd::OnTimer(UINT_PTR) { Default(); }
void CWnd::OnDropFiles(HDROP) { Default(); }
void CWnd::OnUpdateUIState(UINT, UINT) { Default(); }
void CWnd::OnContextMenu(CWnd*, CPoint) { Default(); }
void CWnd::OnMouseMove(UINT, CPoint) { Default(); }
void CWnd::OnLButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnLButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnLButtonDblClk(UINT, CPoint) { Default(); }
void CWnd::OnRButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnRButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnRButtonDblClk(UINT, CPoint) { Default(); }
void CWnd::OnMButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnMButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnMButtonDblClk(UINT, CPoint) { Default(); }
void CWnd::OnMouseHover(UINT, CPoint) { Default(); }
void CWnd::OnMouseLeave() { Default(); }
BOOL CWnd::OnMouseWheel(UINT, short, CPoint) { return static_cast<BOOL>(Default()); }
void CWnd::OnMouseHWheel(UINT, short, CPoint) { Default(); }
BOOL CWnd::OnSetCursor(CWnd*, UINT, UINT) { return static_cast<BOOL>(Default()); }
LRESULT CWnd::OnNcHitTest(CPoint) { return Default(); }
void CWnd::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*) { Default(); }
BOOL CWnd::OnNcActivate(BOOL) { return static_cast<BOOL>(Default()); }
void CWnd::OnNcMouseMove(UINT, CPoint) { Default(); }
void CWnd::OnNcMouseHover(UINT, CPoint) { Default(); }
void CWnd::OnNcMouseLeave() { Default(); }
void CWnd::OnNcLButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnNcLButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnNcLButtonDblClk(UINT, CPoint) { Default(); }
void CWnd::OnNcRButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnNcRButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnKeyDown(UINT, UINT, UINT) { Default(); }
void CWnd::OnKeyUp(UINT, UINT, UINT) { Default(); }
void CWnd::OnChar(UINT, UINT, UINT) { Default(); }
void CWnd::OnSysKeyDown(UINT, UINT, UINT) { Default(); }
void CWnd::OnSysKeyUp(UINT, UINT, UINT) { Default(); }
void CWnd::OnSysChar(UINT, UINT, UINT) { Default(); }
void CWnd::OnSysCommand(UINT, LPARAM) { Default(); }
UINT CWnd::OnGetDlgCode() { return static_cast<UINT>(Default()); }
void CWnd::OnMenuSelect(UINT, UINT, HMENU) { Default(); }
LRESULT CWnd::OnMenuChar(UINT, UINT, CMenu*) { return Default(); }

void CWnd::OnInitMenuPopup(CMenu* pPopupMenu, UINT, BOOL)
{
    // Remembered so that WM_MEASUREITEM, which names no menu, can find the item's menu.
    WndState().hMenuLastPopup = pPopupMenu->GetSafeHmenu();
    Default();
}
