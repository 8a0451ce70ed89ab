// Frame windows of <afxwin.h>: CFrameWnd, CMDIFrameWnd and CMDIChildWnd.
#pragma once
#include <afx.h>
#include <afxcoll.h>
#include <zoafx/wnd.h>

class CControlBar;
class CMDIChildWnd;

// Window and control-bar ids and styles that MFC keeps in <afxres.h>.
#ifndef AFX_IDW_PANE_FIRST
#define AFX_IDW_PANE_FIRST 0xE900
#define AFX_IDW_PANE_LAST 0xE9FF
#define AFX_IDW_TOOLBAR 0xE800
#define AFX_IDW_STATUS_BAR 0xE801
#define AFX_IDW_CONTROLBAR_FIRST 0xE800
#define AFX_IDW_CONTROLBAR_LAST 0xE8FF
#endif
#ifndef ID_SEPARATOR
#define ID_SEPARATOR 0
#endif
#ifndef FWS_ADDTOTITLE
#define FWS_ADDTOTITLE 0x00008000L
#define FWS_PREFIXTITLE 0x00004000L
#define FWS_SNAPTOBARS 0x00002000L
#endif
#ifndef CBRS_ALIGN_LEFT
#define CBRS_ALIGN_LEFT 0x1000L
#define CBRS_ALIGN_TOP 0x2000L
#define CBRS_ALIGN_RIGHT 0x4000L
#define CBRS_ALIGN_BOTTOM 0x8000L
#define CBRS_ALIGN_ANY 0xF000L
#define CBRS_BORDER_LEFT 0x0100L
#define CBRS_BORDER_TOP 0x0200L
#define CBRS_BORDER_RIGHT 0x0400L
#define CBRS_BORDER_BOTTOM 0x0800L
#define CBRS_BORDER_ANY 0x0F00L
#define CBRS_TOOLTIPS 0x0010L
#define CBRS_FLYBY 0x0020L
#define CBRS_FLOAT_MULTI 0x0040L
#define CBRS_BORDER_3D 0x0080L
#define CBRS_HIDE_INPLACE 0x0008L
#define CBRS_SIZE_DYNAMIC 0x0004L
#define CBRS_SIZE_FIXED 0x0002L
#define CBRS_FLOATING 0x0001L
#define CBRS_GRIPPER 0x00400000L
#define CBRS_ORIENT_HORZ (CBRS_ALIGN_TOP | CBRS_ALIGN_BOTTOM)
#define CBRS_ORIENT_VERT (CBRS_ALIGN_LEFT | CBRS_ALIGN_RIGHT)
#define CBRS_ORIENT_ANY (CBRS_ORIENT_HORZ | CBRS_ORIENT_VERT)
#define CBRS_ALL 0x0040FFFFL
#define CBRS_NOALIGN 0x00000000L
#define CBRS_LEFT (CBRS_ALIGN_LEFT | CBRS_BORDER_RIGHT)
#define CBRS_TOP (CBRS_ALIGN_TOP | CBRS_BORDER_BOTTOM)
#define CBRS_RIGHT (CBRS_ALIGN_RIGHT | CBRS_BORDER_LEFT)
#define CBRS_BOTTOM (CBRS_ALIGN_BOTTOM | CBRS_BORDER_TOP)
#endif

namespace zoafx {
// Takes a bar of the wanted size from the edge of `remaining` that dwAlign names (the top
// when no CBRS_ALIGN_ bit is set), shrinks `remaining` by it and returns the bar's place.
// The bar never exceeds what is left, so `remaining` never turns inside out.
ZOAFX_API CRect DockBar(CRect& remaining, DWORD dwAlign, CSize size);
}

class ZOAFX_API CFrameWnd : public CWnd
{
    DECLARE_DYNCREATE(CFrameWnd)
public:
    static const CRect rectDefault;

    CFrameWnd();
    virtual ~CFrameWnd();

    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle = WS_OVERLAPPEDWINDOW,
                        const RECT& rect = rectDefault, CWnd* pParentWnd = NULL, LPCTSTR lpszMenuName = NULL,
                        DWORD dwExStyle = 0, CCreateContext* pContext = NULL);
    // Menu, icon, accelerators and title (the first line of the string) all share nIDResource.
    virtual BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                           CWnd* pParentWnd = NULL, CCreateContext* pContext = NULL);
    BOOL LoadAccelTable(LPCTSTR lpszResourceName);

    // Places the visible control bars along the top and bottom edges, the pane in the rest.
    virtual void RecalcLayout(BOOL bNotify = TRUE);
    virtual void ActivateFrame(int nCmdShow = -1);
    virtual CFrameWnd* GetActiveFrame();
    virtual BOOL IsFrameWnd() const;

    CControlBar* GetControlBar(UINT nID);
    void AddControlBar(CControlBar* pBar);
    void RemoveControlBar(CControlBar* pBar);
    void ShowControlBar(CControlBar* pBar, BOOL bShow, BOOL bDelay);

    BOOL m_bAutoMenuEnable;
    HMENU m_hMenuDefault;
    HACCEL m_hAccelTable;
    CString m_strTitle;
    // Every control bar whose parent is this frame, in creation order.
    CPtrList m_listControlBars;

protected:
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext);
    virtual void PostNcDestroy();

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    // With m_bAutoMenuEnable, items without an update or command handler are disabled.
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);
    DECLARE_MESSAGE_MAP()

    BOOL m_bInRecalcLayout;
};

class ZOAFX_API CMDIFrameWnd : public CFrameWnd
{
    DECLARE_DYNCREATE(CMDIFrameWnd)
public:
    CMDIFrameWnd();
    virtual ~CMDIFrameWnd();

    HWND m_hWndMDIClient;

    BOOL CreateClient(LPCREATESTRUCT lpCreateStruct, CMenu* pWindowMenu);
    CMDIChildWnd* MDIGetActive(BOOL* pbMaximized = NULL) const;
    void MDIActivate(CWnd* pWndActivate);
    void MDICascade();
    void MDICascade(int nType);
    void MDITile();
    void MDITile(int nType);
    void MDIIconArrange();
    void MDIMaximize(CWnd* pWnd);
    void MDIRestore(CWnd* pWnd);
    void MDINext();
    void MDIPrev();
    CMenu* MDISetMenu(CMenu* pFrameMenu, CMenu* pWindowMenu);
    virtual HMENU GetWindowMenuPopup(HMENU hMenuBar);
    virtual CFrameWnd* GetActiveFrame();

protected:
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext);
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
};

class ZOAFX_API CMDIChildWnd : public CFrameWnd
{
    DECLARE_DYNCREATE(CMDIChildWnd)
public:
    CMDIChildWnd();
    virtual ~CMDIChildWnd();

    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                        DWORD dwStyle = WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW,
                        const RECT& rect = rectDefault, CMDIFrameWnd* pParentWnd = NULL,
                        CCreateContext* pContext = NULL);
    CMDIFrameWnd* GetMDIFrame();
    void MDIDestroy();
    void MDIActivate();
    void MDIMaximize();
    void MDIRestore();

protected:
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
};
