// A gallery page: one control family shown in a themed window. Pages derive from
// CGalleryPage, draw their background in DrawPage and create their controls in OnCreatePage.
// To add a page: write the class and add one line to the table in GalleryPages.cpp.
#pragma once
#include <afxwin.h>

#include "core/ZoBorrowedDC.h"
#include "ZoCtrl.h"

class CGalleryPage : public ZoControls::CZoWnd
{
public:
    CGalleryPage();
    virtual ~CGalleryPage();

    BOOL CreatePage(CWnd* pParent, const CRect& rect, UINT nID);

protected:
    // Child controls of the page; called once the page window exists.
    virtual BOOL OnCreatePage();
    // Paints everything that isn't a child control, into an off-screen DC.
    virtual void DrawPage(CDC& dc, const CRect& client);

    // A length laid out for the normal size class, in this page's pixels (rounded as the
    // library rounds its zoomed values).
    int Scaled(int designPixels) const;
    // The cached font of `role` for this page's size class: what the library's controls use.
    CFont* PageFont(ZoControls::E_ZoThemeFont role) const;

    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg LRESULT OnPrintClient(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    void _registerChildren();
    void _paintInto(CDC& dc);
};

// WM_PRINTCLIENT: runs `paint` on a CDC around the DC the message brings.
template <class Paint>
LRESULT PaintForPrintClient(WPARAM wParam, Paint paint)
{
    ZoControls::ZoPaintPrintClient(wParam, [&](CDC& dc) {
        paint(dc);
        return true;
    });
    return 0;
}

// Within DrawPage, which draws in the normal size class's units magnified, draws in the
// device's own pixels for its lifetime: for pictures the library already sizes for the size
// class (menu items), which magnifying would make too large.
class CPageUnscaledScope
{
public:
    explicit CPageUnscaledScope(CDC& dc);
    ~CPageUnscaledScope();
    // Where a point of the magnified drawing lands in device pixels.
    CPoint ToDevice(const CPoint& point) const;

private:
    CDC& m_dc;
    XFORM m_saved;
    bool m_bTransformed;
};

// The gallery's background: the theme's window colour (the system's face colour before the
// library starts).
COLORREF GalleryBackColor(ZoControls::E_ZoTheme theme);

// One registered page: the family it is listed under, its title (also the screenshot's file
// name) and how to make it.
struct GalleryPageEntry
{
    const wchar_t* family;
    const wchar_t* title;
    CGalleryPage* (*create)();
};

template <class TPage>
CGalleryPage* CreateGalleryPage()
{
    return new TPage;
}

// The registered pages, in the order the gallery lists them; pages of one family are adjacent.
const GalleryPageEntry* GetGalleryPages(int& count);
