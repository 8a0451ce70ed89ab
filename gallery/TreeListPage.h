// "Tree-list": a CZoTreeListCtrl of three levels (projects, folders, files) whose children the
// page supplies on demand, with bold rows, name/size/date/kind columns sortable by the tree's
// rules, keyboard navigation, saving to and loading from a file in the temp folder, and a button
// that builds a tree of 100,000 nodes and shows how long that took.
#pragma once
#include "GalleryPage.h"
#include "PageParts.h"

#include <afxcmn.h>

// The page's tree, which also writes its model to a file and reads it back, rows included.
class CGalleryTreeList : public ZoControls::CZoTreeListCtrl
{
public:
    bool SaveTree(const wchar_t* path);
    bool LoadTree(const wchar_t* path);
};

class CTreeListPage : public CGalleryPage
{
public:
    CTreeListPage();
    virtual ~CTreeListPage();

protected:
    virtual BOOL OnCreatePage();
    virtual void DrawPage(CDC& dc, const CRect& client);

    afx_msg LRESULT OnTreeNotify(WPARAM wParam, LPARAM lParam);
    afx_msg void OnSaveClicked();
    afx_msg void OnLoadClicked();
    afx_msg void OnBuildClicked();
    DECLARE_MESSAGE_MAP()

private:
    void _fillSample();
    void _addChildren(DWORD_PTR node);
    void _show(const wchar_t* text);
    CString _filePath() const;

    CGalleryTreeList m_tree;
    ZoControls::CZoButton m_save;
    ZoControls::CZoButton m_load;
    ZoControls::CZoButton m_build;
    ZoControls::CZoStatic m_status;
    CPageLabels m_labels;
};
