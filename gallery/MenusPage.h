// "Menus": the owner-drawn menus. The page shows drawn previews of the File, Edit and View popups, a button that opens
// a frame window with a menu bar and a toolbar whose buttons share their commands with menu
// items (so those items show the buttons' icons), and a context menu on right click.
#pragma once
#include <afxext.h>

#include "GalleryPage.h"

// A frame with a themed menu bar and a toolbar; it deletes itself when closed.
class CMenusDemoFrame : public CFrameWnd
{
public:
    BOOL CreateDemo(CWnd* pOwner);

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDemoCommand(UINT nID);
    ZO_DECLARE_MENUXP_FORWARDING()
    DECLARE_MESSAGE_MAP()

private:
    CToolBar m_toolBar;
    CImageList m_images;
};

class CMenusPage : public CGalleryPage
{
public:
    CMenusPage();
    virtual ~CMenusPage();

protected:
    virtual BOOL OnCreatePage();
    virtual void DrawPage(CDC& dc, const CRect& client);

    afx_msg void OnDestroy();
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);
    afx_msg void OnOpenFrame();
    DECLARE_MESSAGE_MAP()

private:
    void _drawPopupPreview(CDC& dc, const CMenu& menu, const CPoint& origin, int highlighted);

    enum { PreviewCount = 3 };
    CMenu m_previews[PreviewCount]; // File, Edit, View
    ZoControls::CZoButton m_openButton;
};
