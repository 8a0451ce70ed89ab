#include <afxext.h>

// Commands of the "Window" menu, by which an MDI frame finds the popup that lists its children.
#define ZOAFX_IDM_WINDOW_FIRST 0xE130
#define ZOAFX_IDM_WINDOW_LAST 0xE13F
#define ZOAFX_IDM_FIRST_MDICHILD 0xFF00

namespace {

HWND SafeHwnd(const CWnd* wnd)
{
    return wnd == NULL ? NULL : wnd->m_hWnd;
}

// CW_USEDEFAULT in the left edge stands for "let the system choose" in both directions.
void CreationGeometry(const RECT& rect, int& x, int& y, int& cx, int& cy)
{
    if (rect.left == CW_USEDEFAULT) {
        x = y = cx = cy = CW_USEDEFAULT;
        return;
    }
    x = rect.left;
    y = rect.top;
    cx = rect.right - rect.left;
    cy = rect.bottom - rect.top;
}

LPCTSTR FrameClass(HICON icon)
{
    return AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(NULL, IDC_ARROW), (HBRUSH)(COLOR_WINDOW + 1), icon);
}

HICON LoadFrameIcon(UINT nIDResource)
{
    HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCE(nIDResource), RT_GROUP_ICON);
    return module == NULL ? NULL : ::LoadIconW(module, MAKEINTRESOURCE(nIDResource));
}

} // namespace

namespace zoafx {

CRect DockBar(CRect& remaining, DWORD dwAlign, CSize size)
{
    CRect bar(remaining);
    int width = size.cx < 0 ? 0 : size.cx;
    int height = size.cy < 0 ? 0 : size.cy;
    int availableWidth = remaining.Width() > 0 ? remaining.Width() : 0;
    int availableHeight = remaining.Height() > 0 ? remaining.Height() : 0;
    if (width > availableWidth)
        width = availableWidth;
    if (height > availableHeight)
        height = availableHeight;

    if (dwAlign & CBRS_ALIGN_BOTTOM) {
        bar.top = remaining.bottom - height;
        remaining.bottom = bar.top;
    } else if (dwAlign & CBRS_ALIGN_LEFT) {
        bar.right = remaining.left + width;
        remaining.left = bar.right;
    } else if (dwAlign & CBRS_ALIGN_RIGHT) {
        bar.left = remaining.right - width;
        remaining.right = bar.left;
    } else {
        bar.bottom = remaining.top + height;
        remaining.top = bar.bottom;
    }
    return bar;
}

} // namespace zoafx

// ---------------------------------------------------------------------------------------
// CFrameWnd

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_WM_INITMENUPOPUP()
END_MESSAGE_MAP()

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

CFrameWnd::CFrameWnd()
    : m_bAutoMenuEnable(TRUE), m_hMenuDefault(NULL), m_hAccelTable(NULL), m_bInRecalcLayout(FALSE)
{
}

CFrameWnd::~CFrameWnd()
{
}

BOOL CFrameWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                       CWnd* pParentWnd, LPCTSTR lpszMenuName, DWORD dwExStyle, CCreateContext* pContext)
{
    HMENU menu = NULL;
    if (lpszMenuName != NULL) {
        menu = ::LoadMenuW(AfxFindResourceHandle(lpszMenuName, RT_MENU), lpszMenuName);
        if (menu == NULL)
            return FALSE;
    }
    m_strTitle = lpszWindowName;
    int x, y, cx, cy;
    CreationGeometry(rect, x, y, cx, cy);
    if (!CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, x, y, cx, cy, SafeHwnd(pParentWnd), menu,
                  (LPVOID)pContext)) {
        // A menu that never reached a window is ours to free.
        if (menu != NULL && ::IsMenu(menu))
            ::DestroyMenu(menu);
        return FALSE;
    }
    return TRUE;
}

BOOL CFrameWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd, CCreateContext* pContext)
{
    // A document-template string holds several fields separated by newlines; the title is the first.
    CString fullString;
    if (fullString.LoadString(nIDResource))
        AfxExtractSubString(m_strTitle, fullString, 0, L'\n');
    HICON icon = LoadFrameIcon(nIDResource);
    LPCTSTR className = icon != NULL ? FrameClass(icon) : NULL;
    CString title = m_strTitle;
    if (!Create(className, title, dwDefaultStyle, rectDefault, pParentWnd, MAKEINTRESOURCE(nIDResource), 0,
                pContext))
        return FALSE;
    m_hAccelTable = ::LoadAcceleratorsW(AfxFindResourceHandle(MAKEINTRESOURCE(nIDResource), RT_ACCELERATOR),
                                        MAKEINTRESOURCE(nIDResource));
    return TRUE;
}

BOOL CFrameWnd::LoadAccelTable(LPCTSTR lpszResourceName)
{
    if (m_hAccelTable != NULL || lpszResourceName == NULL)
        return FALSE;
    m_hAccelTable = ::LoadAcceleratorsW(AfxFindResourceHandle(lpszResourceName, RT_ACCELERATOR), lpszResourceName);
    return m_hAccelTable != NULL;
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (cs.lpszClass == NULL)
        cs.lpszClass = FrameClass(NULL);
    if (cs.style & FWS_ADDTOTITLE)
        cs.style |= FWS_PREFIXTITLE;
    cs.dwExStyle |= WS_EX_CLIENTEDGE;
    return TRUE;
}

BOOL CFrameWnd::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST && m_hAccelTable != NULL &&
        ::TranslateAcceleratorW(m_hWnd, m_hAccelTable, pMsg))
        return TRUE;
    return CWnd::PreTranslateMessage(pMsg);
}

// Without document/view support there is no view to create.
BOOL CFrameWnd::OnCreateClient(LPCREATESTRUCT, CCreateContext*)
{
    return TRUE;
}

int CFrameWnd::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    m_hMenuDefault = ::GetMenu(m_hWnd);
    CCreateContext* context = NULL;
    if ((GetExStyle() & WS_EX_MDICHILD) == 0)
        context = (CCreateContext*)lpCreateStruct->lpCreateParams;
    if (!OnCreateClient(lpCreateStruct, context))
        return -1;
    RecalcLayout();
    return 0;
}

void CFrameWnd::OnDestroy()
{
    // The window destroys the menu it shows; a default menu that was swapped out is ours.
    if (m_hMenuDefault != NULL && ::GetMenu(m_hWnd) != m_hMenuDefault && ::IsMenu(m_hMenuDefault))
        ::DestroyMenu(m_hMenuDefault);
    m_hMenuDefault = NULL;
    if (m_hAccelTable != NULL) {
        ::DestroyAcceleratorTable(m_hAccelTable);
        m_hAccelTable = NULL;
    }
    CWnd::OnDestroy();
}

void CFrameWnd::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    if (nType != SIZE_MINIMIZED)
        RecalcLayout();
}

void CFrameWnd::OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu)
{
    CWnd::OnInitMenuPopup(pPopupMenu, nIndex, bSysMenu);
    if (bSysMenu || pPopupMenu == NULL || pPopupMenu->m_hMenu == NULL)
        return;
    CCmdUI state;
    state.m_pMenu = pPopupMenu;
    state.m_nIndexMax = pPopupMenu->GetMenuItemCount();
    if (state.m_nIndexMax == (UINT)-1)
        return;
    for (state.m_nIndex = 0; state.m_nIndex < state.m_nIndexMax; state.m_nIndex++) {
        state.m_nID = pPopupMenu->GetMenuItemID(state.m_nIndex);
        state.m_pSubMenu = pPopupMenu->GetSubMenu(state.m_nIndex);
        // Popups and separators have no command; system commands belong to the system.
        if (state.m_pSubMenu != NULL || state.m_nID == 0 || state.m_nID == (UINT)-1)
            continue;
        state.DoUpdate(this, m_bAutoMenuEnable && state.m_nID < 0xF000);
        // An update handler may have removed items.
        UINT count = pPopupMenu->GetMenuItemCount();
        if (count < state.m_nIndexMax) {
            state.m_nIndexMax = count;
            if (state.m_nIndex >= count)
                break;
        }
    }
}

// Frames live on the heap and go away with their window.
void CFrameWnd::PostNcDestroy()
{
    delete this;
}

void CFrameWnd::RecalcLayout(BOOL)
{
    if (m_hWnd == NULL || m_bInRecalcLayout)
        return;
    m_bInRecalcLayout = TRUE;
    CRect remaining;
    GetClientRect(&remaining);
    POSITION pos = m_listControlBars.GetHeadPosition();
    while (pos != NULL) {
        CControlBar* bar = (CControlBar*)m_listControlBars.GetNext(pos);
        if (bar == NULL || !::IsWindow(bar->m_hWnd) || !bar->IsVisible())
            continue;
        DWORD align = bar->m_dwStyle & CBRS_ALIGN_ANY;
        BOOL horizontal = (align & CBRS_ORIENT_VERT) == 0;
        CRect place = zoafx::DockBar(remaining, align, bar->CalcFixedLayout(TRUE, horizontal));
        ::SetWindowPos(bar->m_hWnd, NULL, place.left, place.top, place.Width(), place.Height(),
                       SWP_NOZORDER | SWP_NOACTIVATE);
    }
    HWND pane = IsKindOf(RUNTIME_CLASS(CMDIFrameWnd)) ? ((CMDIFrameWnd*)this)->m_hWndMDIClient
                                                      : ::GetDlgItem(m_hWnd, AFX_IDW_PANE_FIRST);
    if (pane != NULL)
        ::SetWindowPos(pane, NULL, remaining.left, remaining.top, remaining.Width(), remaining.Height(),
                       SWP_NOZORDER | SWP_NOACTIVATE);
    m_bInRecalcLayout = FALSE;
}

void CFrameWnd::ActivateFrame(int nCmdShow)
{
    if (nCmdShow == -1) {
        if (!IsWindowVisible())
            nCmdShow = SW_SHOWNORMAL;
        else if (IsIconic())
            nCmdShow = SW_RESTORE;
    }
    if (nCmdShow != -1) {
        ShowWindow(nCmdShow);
        if (nCmdShow != SW_HIDE && nCmdShow != SW_MINIMIZE && nCmdShow != SW_SHOWMINNOACTIVE)
            ::BringWindowToTop(m_hWnd);
    }
}

CFrameWnd* CFrameWnd::GetActiveFrame()
{
    return this;
}

BOOL CFrameWnd::IsFrameWnd() const
{
    return TRUE;
}

void CFrameWnd::AddControlBar(CControlBar* pBar)
{
    if (pBar != NULL && m_listControlBars.Find(pBar) == NULL)
        m_listControlBars.AddTail(pBar);
}

void CFrameWnd::RemoveControlBar(CControlBar* pBar)
{
    POSITION pos = m_listControlBars.Find(pBar);
    if (pos != NULL)
        m_listControlBars.RemoveAt(pos);
}

CControlBar* CFrameWnd::GetControlBar(UINT nID)
{
    POSITION pos = m_listControlBars.GetHeadPosition();
    while (pos != NULL) {
        CControlBar* bar = (CControlBar*)m_listControlBars.GetNext(pos);
        if (bar != NULL && ::IsWindow(bar->m_hWnd) && (UINT)::GetDlgCtrlID(bar->m_hWnd) == nID)
            return bar;
    }
    return NULL;
}

void CFrameWnd::ShowControlBar(CControlBar* pBar, BOOL bShow, BOOL bDelay)
{
    if (pBar == NULL || !::IsWindow(pBar->m_hWnd))
        return;
    pBar->ShowWindow(bShow ? SW_SHOWNOACTIVATE : SW_HIDE);
    if (!bDelay)
        RecalcLayout();
}

// ---------------------------------------------------------------------------------------
// CMDIFrameWnd

IMPLEMENT_DYNCREATE(CMDIFrameWnd, CFrameWnd)

CMDIFrameWnd::CMDIFrameWnd() : m_hWndMDIClient(NULL)
{
}

CMDIFrameWnd::~CMDIFrameWnd()
{
}

BOOL CMDIFrameWnd::OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext*)
{
    return CreateClient(lpcs, CMenu::FromHandle(GetWindowMenuPopup(::GetMenu(m_hWnd))));
}

BOOL CMDIFrameWnd::CreateClient(LPCREATESTRUCT, CMenu* pWindowMenu)
{
    if (m_hWndMDIClient != NULL)
        return FALSE;
    CLIENTCREATESTRUCT client;
    client.hWindowMenu = pWindowMenu->GetSafeHmenu();
    client.idFirstChild = ZOAFX_IDM_FIRST_MDICHILD;
    DWORD style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | MDIS_ALLCHILDSTYLES;
    m_hWndMDIClient = ::CreateWindowExW(WS_EX_CLIENTEDGE, L"MDICLIENT", NULL, style, 0, 0, 0, 0, m_hWnd,
                                        (HMENU)(UINT_PTR)AFX_IDW_PANE_FIRST, AfxGetInstanceHandle(), &client);
    return m_hWndMDIClient != NULL;
}

HMENU CMDIFrameWnd::GetWindowMenuPopup(HMENU hMenuBar)
{
    if (hMenuBar == NULL || !::IsMenu(hMenuBar))
        return NULL;
    // The rightmost popup that holds one of the standard window commands.
    for (int index = ::GetMenuItemCount(hMenuBar) - 1; index >= 0; index--) {
        HMENU popup = ::GetSubMenu(hMenuBar, index);
        if (popup == NULL)
            continue;
        int count = ::GetMenuItemCount(popup);
        for (int item = 0; item < count; item++) {
            UINT id = ::GetMenuItemID(popup, item);
            if (id >= ZOAFX_IDM_WINDOW_FIRST && id <= ZOAFX_IDM_WINDOW_LAST)
                return popup;
        }
    }
    return NULL;
}

CMDIChildWnd* CMDIFrameWnd::MDIGetActive(BOOL* pbMaximized) const
{
    if (pbMaximized != NULL)
        *pbMaximized = FALSE;
    if (m_hWndMDIClient == NULL)
        return NULL;
    HWND active = (HWND)::SendMessageW(m_hWndMDIClient, WM_MDIGETACTIVE, 0, (LPARAM)pbMaximized);
    return (CMDIChildWnd*)CWnd::FromHandle(active);
}

CFrameWnd* CMDIFrameWnd::GetActiveFrame()
{
    CMDIChildWnd* child = MDIGetActive();
    return child != NULL ? (CFrameWnd*)child : this;
}

void CMDIFrameWnd::MDIActivate(CWnd* pWndActivate)
{
    if (pWndActivate != NULL)
        ::SendMessageW(m_hWndMDIClient, WM_MDIACTIVATE, (WPARAM)pWndActivate->m_hWnd, 0);
}

void CMDIFrameWnd::MDICascade()
{
    ::SendMessageW(m_hWndMDIClient, WM_MDICASCADE, 0, 0);
}

void CMDIFrameWnd::MDICascade(int nType)
{
    ::SendMessageW(m_hWndMDIClient, WM_MDICASCADE, nType, 0);
}

void CMDIFrameWnd::MDITile()
{
    ::SendMessageW(m_hWndMDIClient, WM_MDITILE, 0, 0);
}

void CMDIFrameWnd::MDITile(int nType)
{
    ::SendMessageW(m_hWndMDIClient, WM_MDITILE, nType, 0);
}

void CMDIFrameWnd::MDIIconArrange()
{
    ::SendMessageW(m_hWndMDIClient, WM_MDIICONARRANGE, 0, 0);
}

void CMDIFrameWnd::MDIMaximize(CWnd* pWnd)
{
    if (pWnd != NULL)
        ::SendMessageW(m_hWndMDIClient, WM_MDIMAXIMIZE, (WPARAM)pWnd->m_hWnd, 0);
}

void CMDIFrameWnd::MDIRestore(CWnd* pWnd)
{
    if (pWnd != NULL)
        ::SendMessageW(m_hWndMDIClient, WM_MDIRESTORE, (WPARAM)pWnd->m_hWnd, 0);
}

void CMDIFrameWnd::MDINext()
{
    ::SendMessageW(m_hWndMDIClient, WM_MDINEXT, 0, 0);
}

void CMDIFrameWnd::MDIPrev()
{
    ::SendMessageW(m_hWndMDIClient, WM_MDINEXT, 0, 1);
}

CMenu* CMDIFrameWnd::MDISetMenu(CMenu* pFrameMenu, CMenu* pWindowMenu)
{
    return CMenu::FromHandle((HMENU)::SendMessageW(m_hWndMDIClient, WM_MDISETMENU,
                                                   (WPARAM)pFrameMenu->GetSafeHmenu(),
                                                   (LPARAM)pWindowMenu->GetSafeHmenu()));
}

BOOL CMDIFrameWnd::PreTranslateMessage(MSG* pMsg)
{
    if (m_hWndMDIClient != NULL && pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST &&
        ::TranslateMDISysAccel(m_hWndMDIClient, pMsg))
        return TRUE;
    return CFrameWnd::PreTranslateMessage(pMsg);
}

LRESULT CMDIFrameWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::DefFrameProcW(m_hWnd, m_hWndMDIClient, message, wParam, lParam);
}

// ---------------------------------------------------------------------------------------
// CMDIChildWnd

IMPLEMENT_DYNCREATE(CMDIChildWnd, CFrameWnd)

CMDIChildWnd::CMDIChildWnd()
{
}

CMDIChildWnd::~CMDIChildWnd()
{
}

BOOL CMDIChildWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                          CMDIFrameWnd* pParentWnd, CCreateContext* pContext)
{
    if (pParentWnd == NULL || pParentWnd->m_hWndMDIClient == NULL || m_hWnd != NULL)
        return FALSE;
    int x, y, cx, cy;
    CreationGeometry(rect, x, y, cx, cy);
    CREATESTRUCT cs;
    memset(&cs, 0, sizeof(cs));
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = dwStyle | WS_CHILD;
    cs.x = x;
    cs.y = y;
    cs.cx = cx;
    cs.cy = cy;
    cs.hwndParent = pParentWnd->m_hWndMDIClient;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = (LPVOID)pContext;
    if (!PreCreateWindow(cs))
        return FALSE;

    MDICREATESTRUCT mcs;
    mcs.szClass = cs.lpszClass;
    mcs.szTitle = cs.lpszName;
    mcs.hOwner = cs.hInstance;
    mcs.x = cs.x;
    mcs.y = cs.y;
    mcs.cx = cs.cx;
    mcs.cy = cs.cy;
    // Visibility and maximising are applied once the object owns the window.
    mcs.style = cs.style & ~(WS_MAXIMIZE | WS_VISIBLE);
    mcs.lParam = (LPARAM)cs.lpCreateParams;

    AfxHookWindowCreate(this);
    HWND child = (HWND)::SendMessageW(pParentWnd->m_hWndMDIClient, WM_MDICREATE, 0, (LPARAM)&mcs);
    if (!AfxUnhookWindowCreate() || child == NULL)
        return FALSE;
    if (cs.style & WS_MAXIMIZE)
        pParentWnd->MDIMaximize(this);
    if (cs.style & WS_VISIBLE) {
        ::ShowWindow(child, SW_SHOW);
        pParentWnd->MDIActivate(this);
    }
    return TRUE;
}

CMDIFrameWnd* CMDIChildWnd::GetMDIFrame()
{
    HWND client = ::GetParent(m_hWnd);
    return (CMDIFrameWnd*)CWnd::FromHandle(::GetParent(client));
}

void CMDIChildWnd::MDIDestroy()
{
    ::SendMessageW(::GetParent(m_hWnd), WM_MDIDESTROY, (WPARAM)m_hWnd, 0);
}

void CMDIChildWnd::MDIActivate()
{
    ::SendMessageW(::GetParent(m_hWnd), WM_MDIACTIVATE, (WPARAM)m_hWnd, 0);
}

void CMDIChildWnd::MDIMaximize()
{
    ::SendMessageW(::GetParent(m_hWnd), WM_MDIMAXIMIZE, (WPARAM)m_hWnd, 0);
}

void CMDIChildWnd::MDIRestore()
{
    ::SendMessageW(::GetParent(m_hWnd), WM_MDIRESTORE, (WPARAM)m_hWnd, 0);
}

LRESULT CMDIChildWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::DefMDIChildProcW(m_hWnd, message, wParam, lParam);
}
