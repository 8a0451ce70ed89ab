// "Lists": a report list with text, number, date and image columns, sortable by each comparison
// method, an editable name column (Enter, Escape, up and down move the edit between rows), check
// boxes and a button that fills 100,000 rows; and a virtual list of 1,000,000 rows whose cells
// the page supplies.
#pragma once
#include "GalleryPage.h"
#include "PageParts.h"

#include <afxcmn.h>

class CListsPage : public CGalleryPage
{
public:
    CListsPage();
    virtual ~CListsPage();

protected:
    virtual BOOL OnCreatePage();
    virtual void DrawPage(CDC& dc, const CRect& client);

    afx_msg void OnFillClicked();
    afx_msg void OnEndLabelEdit(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnGetDispInfo(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    BOOL _createReportList();
    BOOL _createVirtualList();
    void _fillRows(int count);

    ZoControls::CZoListCtrl m_report;
    ZoControls::CZoListCtrl m_virtual;
    ZoControls::CZoButton m_fill;
    CImageList m_images;
    CPageLabels m_labels;
};
