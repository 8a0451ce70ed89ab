// Pieces the control pages share:
//   CPageLabels         captions drawn around the controls (headings above sections, labels
//                       beside rows and columns) and outlines that show a control's bounds,
//                       recorded where the controls are placed
//   GridCell            a cell of a regular grid of controls
//   LoadLibraryBitmap   a bitmap from the library's resources
//   ShowNextCount       a click counter shown as a control's text
//   GallerySlot         the theme colour slots the gallery's own drawing takes, by name
#pragma once
#include <afxwin.h>

#include <vector>

#include "core/ZoThemeTypes.h"

enum GallerySlot
{
    GallerySlot_ControlBack = 0,
    GallerySlot_CaptionText = 2, // light text on the dark page
    GallerySlot_ButtonFace = 13,
    GallerySlot_ListBack = 38,
    GallerySlot_ListText = 42,
    GallerySlot_GroupFrame = 49,
    GallerySlot_MenuBack = 68,
    GallerySlot_MenuBorder = 69,
    GallerySlot_Unassigned = 129 // a slot no control paints with: the skin grids' lines
};

inline ZoControls::E_ZoThemeColors ThemeSlot(GallerySlot slot)
{
    return static_cast<ZoControls::E_ZoThemeColors>(slot);
}

// The slot's colour in the default theme; `fallback` while there is no theme manager.
COLORREF SlotColor(GallerySlot slot, COLORREF fallback = RGB(0, 0, 0));

class CPageLabels
{
public:
    void AddHeading(int x, int y, const wchar_t* text);
    void AddLabel(const CRect& rect, const wchar_t* text);
    // The labels of a grid's columns, one `columnWidth` apart, in the row above `y`.
    void AddColumnLabels(int x, int y, int columnWidth, const wchar_t* const* texts, int count);
    // A one-pixel outline just outside `control`, for controls that paint the page's colour.
    void AddOutline(const CRect& control);

    void Draw(CDC& dc) const;

private:
    struct Label
    {
        CRect rect;
        CString text;
        bool heading;
    };
    std::vector<Label> m_labels;
    std::vector<CRect> m_outlines;
};

// Cell (column, row) of a grid whose first cell is `first`, one `step` apart.
CRect GridCell(const CRect& first, const CSize& step, int column, int row);

// Bitmap `name` from the module that holds it (the library's DLL for its own resources); the
// caller deletes it. NULL when there is none.
HBITMAP LoadLibraryBitmap(LPCWSTR name);

// Adds one to `count` and shows it as `pWnd`'s text: "<what> 1 time", "<what> 2 times".
void ShowNextCount(CWnd* pWnd, const wchar_t* what, int& count);
