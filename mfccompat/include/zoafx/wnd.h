// Windows and message routing of <afxwin.h>.
//
// Classes in this file:
//   CCmdTarget        message-map owner; routes commands and notifications (OnCmdMsg)
//   CWnd              wrapper of one HWND: creation, subclassing, message dispatch, reflection
//   CCmdUI            one user-interface item (menu item or control) during command-UI updates
//   CWinThread        a user-interface thread: message pump, idle processing, routing
//   CWinApp           the application object: start-up data, AfxWinMain's InitInstance/Run
//   CWaitCursor       the wait cursor for a scope
//   CDialog           modal and modeless dialogs from templates found in the resource chain
//   CDataExchange     the state of one UpdateData pass; DDX_ and DDV_ functions
//   CDynLinkLibrary   an extension DLL in the resource chain (AFX_EXTENSION_MODULE)
//
// A CWnd is "permanent" when it owns its HWND (Attach, Create, SubclassWindow); FromHandle
// returns such an object, or else a temporary one that lives until the thread's next idle
// time. Windows created through CWnd are subclassed with AfxWndProc while they are being
// created (a CBT hook), so that WM_NCCREATE and WM_CREATE already reach the object.
#pragma once
#include <afx.h>
#include <zoafx/gdi.h>
#include <zoafx/msgmap.h>
#include <shellapi.h>

class CWnd;
class CMenu;
class CScrollBar;
class CFont;
class CRgn;
class CFrameWnd;
class CDataExchange;
struct CCreateContext;
namespace zoafx { struct WndAccess; }

// <windows.h> maps GetNextWindow to GetWindow; CWnd::GetNextWindow keeps its own name and
// ::GetNextWindow stays callable.
#ifdef GetNextWindow
#undef GetNextWindow
inline HWND WINAPI GetNextWindow(HWND hWnd, UINT wCmd)
{
    return ::GetWindow(hWnd, wCmd);
}
#endif

// Internal flags kept in CWnd::m_nFlags.
#define WF_TOOLTIPS 0x0001
#define WF_TEMPHIDE 0x0002
#define WF_STAYDISABLED 0x0004
#define WF_MODALLOOP 0x0008
#define WF_CONTINUEMODAL 0x0010
#define WF_OLECTLCONTAINER 0x0100
#define WF_TRACKINGTOOLTIPS 0x0400
#define WF_STAYACTIVE 0x0020
#define WF_NOPOPMSG 0x0040
#define WF_MODALDISABLE 0x0200
#define WF_KEEPMINIACTIVE 0x0800

// Tool-info flags of the framework's tool tips (beyond commctrl's).
#ifndef TTF_NOTBUTTON
#define TTF_NOTBUTTON 0x80000000L   // the tool is no button: no status help on button-down
#endif
#ifndef TTF_ALWAYSTIP
#define TTF_ALWAYSTIP 0x40000000L
#endif

// RunModalLoop flags.
#define MLF_NOIDLEMSG 0x0001
#define MLF_NOKICKIDLE 0x0002
#define MLF_SHOWONIDLE 0x0004

/////////////////////////////////////////////////////////////////////////////
// Exceptions of <afxwin.h>

// Thrown to stop an operation after the user has been told why (DDX/DDV failures).
class ZOAFX_API CUserException : public CSimpleException
{
    DECLARE_DYNAMIC(CUserException)
public:
    CUserException();
    explicit CUserException(BOOL bAutoDelete);
    virtual ~CUserException();
protected:
    virtual LPCTSTR GetDefaultMessage() const;
};

ZOAFX_API void AFXAPI AfxThrowUserException();

// The window procedure of every window a CWnd owns.
ZOAFX_API LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
ZOAFX_API WNDPROC AFXAPI AfxGetAfxWndProc();
ZOAFX_API LRESULT AFXAPI AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
// Subclasses the next window the calling thread creates with pWnd (CreateEx, dialogs).
ZOAFX_API void AFXAPI AfxHookWindowCreate(CWnd* pWnd);
// Ends the hook; FALSE when no window was created for the hooked object.
ZOAFX_API BOOL AFXAPI AfxUnhookWindowCreate();
ZOAFX_API LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = 0,
                                             HBRUSH hbrBackground = 0, HICON hIcon = 0);
ZOAFX_API BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass);

/////////////////////////////////////////////////////////////////////////////
// CCmdUI

class ZOAFX_API CCmdUI
{
public:
    CCmdUI();
    virtual ~CCmdUI() { }

    UINT m_nID;
    UINT m_nIndex;         // position of the menu item
    CMenu* m_pMenu;        // the menu of the item, or NULL for a control
    CMenu* m_pSubMenu;     // the popup the item opens, if any
    CWnd* m_pOther;        // the control, or NULL for a menu item
    CMenu* m_pParentMenu;

    virtual void Enable(BOOL bOn = TRUE);
    virtual void SetCheck(int nCheck = 1);
    virtual void SetRadio(BOOL bOn = TRUE);
    virtual void SetText(LPCTSTR lpszText);
    void ContinueRouting();

    // Asks pTarget's handlers about the item; without one, optionally disables it.
    BOOL DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);

    BOOL m_bEnableChanged;
    BOOL m_bContinueRouting;
    UINT m_nIndexMax;
};

/////////////////////////////////////////////////////////////////////////////
// CCmdTarget

class ZOAFX_API CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)
public:
    CCmdTarget();
    virtual ~CCmdTarget();

    // Looks the command or notification up in this object's message map and calls the
    // handler. nCode carries the message in its high word for WM_NOTIFY (and reflected)
    // entries; pExtra is the AFX_NOTIFY or CCmdUI the handler needs. With pExtra NULL and
    // pHandlerInfo set, only reports the handler without calling it.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

    void BeginWaitCursor();
    void EndWaitCursor();
    void RestoreWaitCursor();

protected:
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;

    friend class CWnd;
};

/////////////////////////////////////////////////////////////////////////////
// CWnd

class ZOAFX_API CWnd : public CCmdTarget
{
    DECLARE_DYNCREATE(CWnd)
public:
    CWnd();
    virtual ~CWnd();

    HWND m_hWnd;
    operator HWND() const { return zoafx::IsNullObject(this) ? NULL : m_hWnd; }
    HWND GetSafeHwnd() const { return zoafx::IsNullObject(this) ? NULL : m_hWnd; }
    BOOL operator==(const CWnd& wnd) const { return wnd.m_hWnd == m_hWnd; }
    BOOL operator!=(const CWnd& wnd) const { return wnd.m_hWnd != m_hWnd; }

    // Insert-after values for SetWindowPos.
    static const CWnd wndTop;
    static const CWnd wndBottom;
    static const CWnd wndTopMost;
    static const CWnd wndNoTopMost;

    // Handle map
    static CWnd* PASCAL FromHandle(HWND hWnd);
    static CWnd* PASCAL FromHandlePermanent(HWND hWnd);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HWND hWndNew);
    HWND Detach();

    // Creation and subclassing
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                        const RECT& rect, CWnd* pParentWnd, UINT nID,
                        CCreateContext* pContext = NULL);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                          DWORD dwStyle, int x, int y, int nWidth, int nHeight,
                          HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam = NULL);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                          DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID,
                          LPVOID lpParam = NULL);
    virtual BOOL DestroyWindow();
    BOOL SubclassWindow(HWND hWnd);
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    HWND UnsubclassWindow();
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual void PreSubclassWindow();
    virtual void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = adjustBorder);
    enum AdjustType { adjustBorder = 0, adjustOutside = 1 };

    // Message processing
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    BOOL PreTranslateInput(LPMSG lpMsg);
    static BOOL PASCAL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);
    static BOOL PASCAL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = NULL);
    BOOL SendChildNotifyLastMsg(LRESULT* pResult = NULL);
    virtual BOOL ContinueModal();
    virtual void EndModalLoop(int nResult);
    int RunModalLoop(DWORD dwFlags = 0);

    // Messages
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0,
                                  BOOL bDeep = TRUE, BOOL bOnlyPerm = FALSE);

    // Styles, text, font, identity
    DWORD GetStyle() const;
    DWORD GetExStyle() const;
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    static BOOL PASCAL ModifyStyle(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags);
    static BOOL PASCAL ModifyStyleEx(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags);
    void SetWindowText(LPCTSTR lpszString);
    int GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const;
    void GetWindowText(CString& rString) const;
    int GetWindowTextLength() const;
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);
    CFont* GetFont() const;
    int GetDlgCtrlID() const;
    int SetDlgCtrlID(int nID);

    // Size and position
    void GetWindowRect(LPRECT lpRect) const;
    void GetClientRect(LPRECT lpRect) const;
    void ClientToScreen(LPPOINT lpPoint) const;
    void ClientToScreen(LPRECT lpRect) const;
    void ScreenToClient(LPPOINT lpPoint) const;
    void ScreenToClient(LPRECT lpRect) const;
    void MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const;
    void MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const;
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE);
    void MoveWindow(LPCRECT lpRect, BOOL bRepaint = TRUE);
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    void CenterWindow(CWnd* pAlternateOwner = NULL);
    int GetWindowRgn(HRGN hRgn) const;
    int SetWindowRgn(HRGN hRgn, BOOL bRedraw);
    BOOL GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const;
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl);

    // State
    BOOL ShowWindow(int nCmdShow);
    BOOL IsWindowVisible() const;
    BOOL EnableWindow(BOOL bEnable = TRUE);
    BOOL IsWindowEnabled() const;
    BOOL IsIconic() const;
    BOOL IsZoomed() const;
    BOOL IsChild(const CWnd* pWnd) const;
    void BringWindowToTop();
    BOOL SetForegroundWindow();
    static CWnd* PASCAL GetForegroundWindow();
    CWnd* SetActiveWindow();
    static CWnd* PASCAL GetActiveWindow();
    CWnd* SetFocus();
    static CWnd* PASCAL GetFocus();
    CWnd* SetCapture();
    static CWnd* PASCAL GetCapture();
    BOOL FlashWindow(BOOL bInvert);
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse,
                      void (CALLBACK* lpfnTimer)(HWND, UINT, UINT_PTR, DWORD));
    BOOL KillTimer(UINT_PTR nIDEvent);

    // Painting
    CDC* GetDC();
    CDC* GetWindowDC();
    CDC* GetDCEx(CRgn* prgnClip, DWORD flags);
    int ReleaseDC(CDC* pDC);
    CDC* BeginPaint(LPPAINTSTRUCT lpPaint);
    void EndPaint(LPPAINTSTRUCT lpPaint);
    void Invalidate(BOOL bErase = TRUE);
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE);
    void InvalidateRgn(CRgn* pRgn, BOOL bErase = TRUE);
    void ValidateRect(LPCRECT lpRect);
    void ValidateRgn(CRgn* pRgn);
    void UpdateWindow();
    BOOL RedrawWindow(LPCRECT lpRectUpdate = NULL, CRgn* prgnUpdate = NULL,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    BOOL LockWindowUpdate();
    void UnlockWindowUpdate();
    void SetRedraw(BOOL bRedraw = TRUE);
    void Print(CDC* pDC, DWORD dwFlags) const;
    void PrintClient(CDC* pDC, DWORD dwFlags) const;

    // Related windows
    CWnd* GetParent() const;
    CWnd* SetParent(CWnd* pWndNewParent);
    CWnd* GetOwner() const;
    void SetOwner(CWnd* pOwnerWnd);
    CWnd* GetParentOwner() const;
    CWnd* GetTopLevelParent() const;
    CWnd* GetTopLevelOwner() const;
    CWnd* GetWindow(UINT nCmd) const;
    CWnd* GetNextWindow(UINT nFlag = GW_HWNDNEXT) const;
    CWnd* GetTopWindow() const;
    CWnd* GetLastActivePopup() const;
    CWnd* GetDescendantWindow(int nID, BOOL bOnlyPerm = FALSE) const;
    CWnd* ChildWindowFromPoint(POINT point) const;
    CWnd* ChildWindowFromPoint(POINT point, UINT nFlags) const;
    static CWnd* PASCAL WindowFromPoint(POINT point);
    static CWnd* PASCAL GetDesktopWindow();
    static CWnd* PASCAL FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName);

    // Dialog items
    CWnd* GetDlgItem(int nID) const;
    void GetDlgItem(int nID, HWND* phWnd) const;
    LRESULT SendDlgItemMessage(int nID, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    void SetDlgItemText(int nID, LPCTSTR lpszString);
    int GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const;
    int GetDlgItemText(int nID, CString& rString) const;
    void SetDlgItemInt(int nID, UINT nValue, BOOL bSigned = TRUE);
    UINT GetDlgItemInt(int nID, BOOL* lpTrans = NULL, BOOL bSigned = TRUE) const;
    void CheckDlgButton(int nIDButton, UINT nCheck);
    UINT IsDlgButtonChecked(int nIDButton) const;
    void CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton);
    int GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton);
    CWnd* GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    CWnd* GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;

    // Scrolling
    virtual CScrollBar* GetScrollBarCtrl(int nBar) const;
    int SetScrollPos(int nBar, int nPos, BOOL bRedraw = TRUE);
    int GetScrollPos(int nBar) const;
    void SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
    void GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const;
    BOOL SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    int GetScrollLimit(int nBar);
    void ShowScrollBar(UINT nBar, BOOL bShow = TRUE);
    BOOL EnableScrollBar(int nSBFlags, UINT nArrowFlags = ESB_ENABLE_BOTH);
    void ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect = NULL, LPCRECT lpClipRect = NULL);
    int ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip,
                       CRgn* prgnUpdate, LPRECT lpRectUpdate, UINT flags);

    // Dialog data
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);
    void UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);

    // Menus and frames
    CMenu* GetMenu() const;
    BOOL SetMenu(CMenu* pMenu);
    CMenu* GetSystemMenu(BOOL bRevert) const;
    void DrawMenuBar();
    CFrameWnd* GetParentFrame() const;
    CFrameWnd* GetTopLevelFrame() const;

    // Tool tips for child controls (text comes from TTN_NEEDTEXT handlers)
    BOOL EnableToolTips(BOOL bEnable = TRUE);
    virtual INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const;
    void FilterToolTipMessage(MSG* pMsg);
    static void PASCAL CancelToolTips(BOOL bKeys = FALSE);

    // Misc
    void DragAcceptFiles(BOOL bAccept = TRUE);
    HICON SetIcon(HICON hIcon, BOOL bBigIcon);
    HICON GetIcon(BOOL bBigIcon) const;

protected:
    explicit CWnd(HWND hWnd);
    LRESULT Default();
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    static const MSG* PASCAL GetCurrentMessage();
    virtual WNDPROC* GetSuperWndProcAddr();
    virtual void PostNcDestroy();
    virtual void DoDataExchange(CDataExchange* pDX);
    BOOL CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst);

    // Default message handlers: derived handlers call these to get the platform behaviour.
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnNcDestroy();
    afx_msg void OnClose();
    afx_msg void OnPaint();
    afx_msg void OnNcPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnSysColorChange();
    afx_msg void OnSettingChange(UINT uFlags, LPCTSTR lpszSection);
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    afx_msg void OnParentNotify(UINT message, LPARAM lParam);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnMove(int x, int y);
    afx_msg void OnSizing(UINT fwSide, LPRECT pRect);
    afx_msg void OnMoving(UINT fwSide, LPRECT pRect);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI);
    afx_msg void OnWindowPosChanging(WINDOWPOS* lpwndpos);
    afx_msg void OnWindowPosChanged(WINDOWPOS* lpwndpos);
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnStyleChanging(int nStyleType, LPSTYLESTRUCT lpStyleStruct);
    afx_msg void OnStyleChanged(int nStyleType, LPSTYLESTRUCT lpStyleStruct);
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg void OnActivateApp(BOOL bActive, DWORD dwThreadID);
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg void OnCancelMode();
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnDropFiles(HDROP hDropInfo);
    afx_msg void OnUpdateUIState(UINT nAction, UINT nUIElement);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnMButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnMButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnMButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnMouseHover(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnMouseHWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp);
    afx_msg BOOL OnNcActivate(BOOL bActive);
    afx_msg void OnNcMouseMove(UINT nHitTest, CPoint point);
    afx_msg void OnNcMouseHover(UINT nHitTest, CPoint point);
    afx_msg void OnNcMouseLeave();
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonUp(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonDblClk(UINT nHitTest, CPoint point);
    afx_msg void OnNcRButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcRButtonUp(UINT nHitTest, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu);
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg LRESULT OnMenuChar(UINT nChar, UINT nFlags, CMenu* pMenu);

    WNDPROC m_pfnSuper;   // the window procedure AfxWndProc passes unhandled messages to
    UINT m_nFlags;        // WF_ flags
    int m_nModalResult;   // result of the running modal loop

    friend struct zoafx::WndAccess;

    DECLARE_MESSAGE_MAP()

private:
    CWnd(const CWnd&);
    void operator=(const CWnd&);
};


/////////////////////////////////////////////////////////////////////////////
// CWinThread, CWinApp

class ZOAFX_API CWinThread : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinThread)
public:
    CWinThread();
    virtual ~CWinThread();

    CWnd* m_pMainWnd;
    CWnd* m_pActiveWnd;
    BOOL m_bAutoDelete;
    HANDLE m_hThread;
    DWORD m_nThreadID;
    MSG m_msgCur;   // the message the pump is working on

    operator HANDLE() const { return zoafx::IsNullObject(this) ? NULL : m_hThread; }
    virtual CWnd* GetMainWnd();

    virtual BOOL InitInstance();
    virtual int Run();
    virtual int ExitInstance();
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    virtual BOOL PumpMessage();
    virtual BOOL OnIdle(LONG lCount);
    virtual BOOL IsIdleMessage(MSG* pMsg);
    virtual void Delete();

protected:
    CPoint m_ptCursorLast;   // filters repeated mouse moves out of idle restarts
    UINT m_nMsgLast;
};

class ZOAFX_API CWinApp : public CWinThread
{
    DECLARE_DYNAMIC(CWinApp)
public:
    explicit CWinApp(LPCTSTR lpszAppName = NULL);
    virtual ~CWinApp();

    LPCTSTR m_pszAppName;
    HINSTANCE m_hInstance;
    LPTSTR m_lpCmdLine;
    int m_nCmdShow;
    LPCTSTR m_pszExeName;
    LPCTSTR m_pszHelpFilePath;
    LPCTSTR m_pszProfileName;
    LPCTSTR m_pszRegistryKey;

    virtual BOOL InitApplication();
    virtual BOOL InitInstance();
    virtual int ExitInstance();
    virtual int Run();
    virtual BOOL OnIdle(LONG lCount);
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
    // 1 shows the wait cursor (nesting), -1 ends one level, 0 shows it again if still waiting.
    virtual void DoWaitCursor(int nCode);

    HICON LoadIcon(LPCTSTR lpszResourceName) const;
    HICON LoadIcon(UINT nIDResource) const;
    HICON LoadStandardIcon(LPCTSTR lpszIconName) const;
    HCURSOR LoadCursor(LPCTSTR lpszResourceName) const;
    HCURSOR LoadCursor(UINT nIDResource) const;
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const;

    // Called by AfxWinInit: fills the names derived from the executable.
    void SetCurrentHandles();

    int m_nWaitCursorCount;
    HCURSOR m_hcurWaitCursorRestore;
};

// Shows the wait cursor for the lifetime of the object.
class ZOAFX_API CWaitCursor
{
public:
    CWaitCursor();
    ~CWaitCursor();
    void Restore();
};

ZOAFX_API CWinApp* AFXAPI AfxGetApp();
ZOAFX_API CWinThread* AFXAPI AfxGetThread();
ZOAFX_API CWnd* AFXAPI AfxGetMainWnd();
ZOAFX_API LPCTSTR AFXAPI AfxGetAppName();
ZOAFX_API BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
ZOAFX_API int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
ZOAFX_API void AFXAPI AfxWinTerm();
ZOAFX_API BOOL AFXAPI AfxPumpMessage();
ZOAFX_API void AFXAPI AfxPostQuitMessage(int nExitCode);
ZOAFX_API int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
ZOAFX_API int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = (UINT)-1);

/////////////////////////////////////////////////////////////////////////////
// CDialog

class ZOAFX_API CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)
public:
    CDialog();
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = NULL);
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = NULL);
    virtual ~CDialog();

    // Modeless
    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = NULL);
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = NULL);
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = NULL,
                                void* lpDialogInit = NULL);
    virtual BOOL CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = NULL);

    // Modal
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = NULL, void* lpDialogInit = NULL);
    BOOL InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = NULL);
    virtual INT_PTR DoModal();
    void EndDialog(int nResult);

    // Controls
    void MapDialogRect(LPRECT lpRect) const;
    void SetHelpID(UINT nIDR);
    void NextDlgCtrl() const;
    void PrevDlgCtrl() const;
    void GotoDlgCtrl(CWnd* pWndCtrl);
    void SetDefID(UINT nID);
    DWORD GetDefID() const;

    virtual BOOL OnInitDialog();
    virtual void OnSetFont(CFont* pFont);
    virtual BOOL PreTranslateMessage(MSG* pMsg);

    UINT m_nIDHelp;
    LPCTSTR m_lpszTemplateName;
    HGLOBAL m_hDialogTemplate;
    LPCDLGTEMPLATE m_lpDialogTemplate;
    void* m_lpDialogInit;
    CWnd* m_pParentWnd;
    HWND m_hWndTop;

protected:
    virtual void OnOK();
    virtual void OnCancel();
    virtual void PreInitDialog();
    // The window the modal dialog belongs to (disabled while it runs).
    HWND PreModal();
    void PostModal();

    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT HandleSetFont(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()
};

// The dialog procedure of dialogs a CDialog owns: WM_INITDIALOG calls OnInitDialog.
ZOAFX_API INT_PTR CALLBACK AfxDlgProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

/////////////////////////////////////////////////////////////////////////////
// Dialog data exchange

class ZOAFX_API CDataExchange
{
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate);

    BOOL m_bSaveAndValidate;   // TRUE: controls to variables (with validation)
    CWnd* m_pDlgWnd;

    // The control's window; a missing control is a programming error (not supported).
    HWND PrepareCtrl(int nIDC);
    HWND PrepareEditCtrl(int nIDC);
    // Puts the focus back on the last control and ends the exchange (CUserException).
    void Fail();

    UINT m_idLastControl;
    BOOL m_bEditLastControl;
};

ZOAFX_API void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);
ZOAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
ZOAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value);
ZOAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value);
ZOAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value);
ZOAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value);
ZOAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value);
ZOAFX_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value);
ZOAFX_API void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value);
ZOAFX_API void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value);
ZOAFX_API void AFXAPI DDV_MaxChars(CDataExchange* pDX, CString const& value, int nChars);
ZOAFX_API void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);

/////////////////////////////////////////////////////////////////////////////
// Extension DLLs

class COleObjectFactory;

struct AFX_EXTENSION_MODULE
{
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource;
    CRuntimeClass* pFirstSharedClass;
    COleObjectFactory* pFirstSharedFactory;
};

// Puts an extension DLL's resources (and classes) at the application's disposal while it
// lives: resources are then found through AfxFindResourceHandle.
class ZOAFX_API CDynLinkLibrary : public CCmdTarget
{
    DECLARE_DYNAMIC(CDynLinkLibrary)
public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource);
    virtual ~CDynLinkLibrary();

    HMODULE m_hModule;
    HMODULE m_hResource;
    BOOL m_bSystem;
    CDynLinkLibrary* m_pNextDLL;   // every library object of the process, newest first
};

ZOAFX_API BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);
ZOAFX_API void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);
