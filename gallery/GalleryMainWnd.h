// The gallery's main window, a skinned frame: the page list on the left, the selected page on
// the right.
#pragma once
#include <afxwin.h>

#include <vector>

#include "GalleryPage.h"

class CGalleryMainWnd : public ZoControls::CZoFrameWnd
{
public:
    CGalleryMainWnd();
    virtual ~CGalleryMainWnd();

    BOOL CreateMain(int clientWidth, int clientHeight);
    int GetPageCount() const;
    CString GetPageTitle(int index) const;
    void ShowPage(int index);
    // Writes one BMP per page into `folder`, named after the page; false if any failed.
    bool SaveScreenshots(const CString& folder);

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM wParam, LPARAM lParam);
    afx_msg void OnPageListSelChange();
    DECLARE_MESSAGE_MAP()

private:
    CRect _pageRect() const;
    void _fillBackground(CDC& dc);

    CWnd m_pageList; // a system list box
    std::vector<CGalleryPage*> m_pages;
    std::vector<CString> m_titles;
    int m_nCurrentPage;
};
