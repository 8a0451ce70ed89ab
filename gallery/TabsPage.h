// "Tabs": tab controls with tabs on top, bottom, left and right, a hovered tab, a disabled
// control, captions longer than their tabs, and a TCS_BUTTONS control left to the platform.
// Each page area holds a window of the page's own, which the tab control never paints over.
#pragma once
#include "GalleryPage.h"
#include "PageParts.h"

#include <afxcmn.h>

class CTabsPage : public CGalleryPage
{
public:
    CTabsPage();
    virtual ~CTabsPage();

protected:
    virtual BOOL OnCreatePage();
    virtual void DrawPage(CDC& dc, const CRect& client);

private:
    enum { TabCount = 7 };

    ZoControls::CZoTabCtrl m_aTabs[TabCount];
    ZoControls::CZoStatic m_aPages[TabCount];
    CPageLabels m_labels;
};
