// The gallery's main window, a skinned frame: the page list (a tree-list of families with their
// pages) on the left, the selected page on the right. Tab and Shift+Tab move between the list and
// the controls of the shown page.
#pragma once
#include <afxwin.h>

#include <vector>

#include "GalleryPage.h"

// The page list: families with their expanders, pages below them without one.
class CGalleryPageList : public ZoControls::CZoTreeListCtrl
{
public:
    using ZoControls::CZoTreeListCtrl::GetItemImageIndex;
    int GetItemImageIndex(const LVITEMW& item) const override;
};

class CGalleryMainWnd : public ZoControls::CZoFrameWnd
{
public:
    CGalleryMainWnd();
    virtual ~CGalleryMainWnd();

    // The client size is that of the normal size class; larger classes magnify it by their zoom.
    BOOL CreateMain(int clientWidth, int clientHeight);
    int GetPageCount() const;
    CString GetPageTitle(int index) const;
    void ShowPage(int index);
    // Writes one BMP per page into `folder`, named after the page; false if any failed.
    bool SaveScreenshots(const CString& folder);

protected:
    BOOL PreTranslateMessage(MSG* pMsg) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM wParam, LPARAM lParam);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnPageListItemChanged(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    CRect _pageRect() const;
    int _listWidth() const;
    void _fillPageList(const GalleryPageEntry* entries, const std::vector<int>& created);
    void _fillBackground(CDC& dc);

    CGalleryPageList m_pageList;
    std::vector<CGalleryPage*> m_pages;
    std::vector<CString> m_titles;
    int m_nCurrentPage;
};
