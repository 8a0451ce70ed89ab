// MFC-compatible <afxext.h>: control bars. Classes in this file: CControlBar, CToolBar.
#pragma once
#include <afxwin.h>
#include <afxcmn.h>

#ifndef RT_TOOLBAR
#define RT_TOOLBAR MAKEINTRESOURCE(241)
#endif

// Layout modes of CControlBar::CalcDynamicLayout.
#define LM_STRETCH 0x01
#define LM_HORZ 0x02
#define LM_MRUWIDTH 0x04
#define LM_HORZDOCK 0x08
#define LM_VERTDOCK 0x10
#define LM_LENGTHY 0x20
#define LM_COMMIT 0x40

class ZOAFX_API CControlBar : public CWnd
{
    DECLARE_DYNAMIC(CControlBar)
protected:
    CControlBar();

public:
    virtual ~CControlBar();

    int GetCount() const { return m_nCount; }
    DWORD GetBarStyle() { return m_dwStyle; }
    void SetBarStyle(DWORD dwStyle) { m_dwStyle = dwStyle; }
    void SetBorders(int cxLeft = 0, int cyTop = 0, int cxRight = 0, int cyBottom = 0);
    void SetBorders(LPCRECT lpRect);
    CRect GetBorders() const;
    CFrameWnd* GetDockingFrame() const { return m_pDockSite; }
    BOOL IsFloating() const { return FALSE; }
    virtual BOOL IsVisible() const;

    // The size the bar wants: bStretch asks for the full length of the frame, bHorz for a
    // bar docked along the top or bottom edge.
    virtual CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz);
    virtual CSize CalcDynamicLayout(int nLength, DWORD nMode);

    // Brings the bar's items up to date with the target's command handlers; called at idle.
    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) = 0;

    BOOL m_bAutoDelete;
    DWORD m_dwStyle;
    CFrameWnd* m_pDockSite;

protected:
    virtual void PostNcDestroy();
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    int m_nCount;
    int m_cxLeftBorder;
    int m_cxRightBorder;
    int m_cyTopBorder;
    int m_cyBottomBorder;
};

class ZOAFX_API CToolBar : public CControlBar
{
    DECLARE_DYNAMIC(CToolBar)
public:
    CToolBar();
    virtual ~CToolBar();

    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_TOP,
                        UINT nID = AFX_IDW_TOOLBAR);
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle = TBSTYLE_FLAT,
                          DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_ALIGN_TOP,
                          CRect rcBorders = CRect(0, 0, 0, 0), UINT nID = AFX_IDW_TOOLBAR);

    // A TOOLBAR resource (version 1, image width, image height, count, command ids with 0 for
    // separators) and the bitmap of the same name.
    BOOL LoadToolBar(LPCTSTR lpszResourceName);
    BOOL LoadToolBar(UINT nIDResource);
    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource);
    BOOL SetBitmap(HBITMAP hbmImageWell);
    BOOL SetButtons(const UINT* lpIDArray, int nIDCount);
    void SetSizes(SIZE sizeButton, SIZE sizeImage);
    void SetHeight(int cyHeight);

    int CommandToIndex(UINT nIDFind) const;
    UINT GetItemID(int nIndex) const;
    virtual void GetItemRect(int nIndex, LPRECT lpRect) const;
    UINT GetButtonStyle(int nIndex) const;
    void SetButtonStyle(int nIndex, UINT nStyle);
    void GetButtonInfo(int nIndex, UINT& nID, UINT& nStyle, int& iImage) const;
    void SetButtonInfo(int nIndex, UINT nID, UINT nStyle, int iImage);
    BOOL SetButtonText(int nIndex, LPCTSTR lpszText);
    CString GetButtonText(int nIndex) const;
    void GetButtonText(int nIndex, CString& rString) const;
    CToolBarCtrl& GetToolBarCtrl() const { return *(CToolBarCtrl*)this; }

    virtual CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz);
    virtual CSize CalcDynamicLayout(int nLength, DWORD nMode);
    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler);

protected:
    BOOL GetButtonByIndex(int nIndex, TBBUTTON& button) const;
    void ReleaseImageWell();

    CSize m_sizeButton;
    CSize m_sizeImage;
    HBITMAP m_hbmImageWell;
    HIMAGELIST m_hImageWell;
    int m_cyHeight;
};
