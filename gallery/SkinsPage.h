// "Skins", "Skins 3M", "Skins 5M": skin strips magnified, drawn cell by cell with their cell
// grid and their column and row numbers. The normal class shows every strip and the check-box
// PNG composed over the button face colours; the large classes show the strips that have their
// own pictures there (all others fall back to the normal ones).
#pragma once
#include "GalleryPage.h"

#include <vector>

class CSkinsPage : public CGalleryPage
{
public:
    CSkinsPage();

    // One picture on the page: a strip at the page's size class, cut into its grid.
    struct Tile
    {
        const wchar_t* name; // bitmap name, or null for the check-box PNG
        int columns;
        int rows;
        int width;           // picture size in pixels
        int height;
        CRect place;         // the whole tile: label, numbers and magnified picture
        int labelWidth = 0;  // the label's width in pixels: the tile is never narrower
    };

    // Places the tiles, tallest first, left to right in rows inside `area` at magnification
    // `scale`; returns the bottom of the last row.
    static int LayoutTiles(std::vector<Tile>& tiles, const CRect& area, int scale);

protected:
    explicit CSkinsPage(ZoControls::E_ZoMonitorSize sizeClass);
    virtual void DrawPage(CDC& dc, const CRect& client);

private:
    std::vector<Tile> _makeTiles() const;
    CString _label(const Tile& tile) const;
    void _drawTile(CDC& dc, const Tile& tile, int scale) const;
    void _drawPicture(CDC& dc, const Tile& tile, const CRect& picture, int scale) const;
    void _drawGrid(CDC& dc, const Tile& tile, const CRect& picture, int scale) const;

    ZoControls::E_ZoMonitorSize m_sizeClass;
};

class CSkins3MPage : public CSkinsPage
{
public:
    CSkins3MPage() : CSkinsPage(ZoControls::ZoMonitorSize_3M) {}
};

class CSkins5MPage : public CSkinsPage
{
public:
    CSkins5MPage() : CSkinsPage(ZoControls::ZoMonitorSize_5M) {}
};
