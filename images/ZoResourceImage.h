// Skin pictures cut into equal cells (units):
//   CZoResourceImage      the grid model every skin image shares; drawing is left to subclasses
//   CZoResourceBMPImage   a named bitmap resource for a monitor size class, drawn with a key colour
// and the arithmetic behind them (resource names per size class, cell rectangles, the
// rectangles of lower stretching) as plain functions.
#pragma once
#include <afxwin.h>

#include "core/ZoCtrlExport.h"
#include "core/ZoThemeTypes.h"

namespace ZoControls {

class CZoCellCache;

// A rectangle given by origin and size, the way the blitting functions take it.
struct ZoBlitRect
{
    int x;
    int y;
    int w;
    int h;
};

// Resource name of `name` for a size class: "_3M" for class 1, "_5M" for class 2, else unchanged.
ZOCTRL_API CString ZoResourceNameForSize(const wchar_t* name, E_ZoMonitorSize size);

// Size of one cell of a width x height picture cut into horzUnits x vertUnits cells; 0 when a
// unit count is below 1 (the picture was never cut).
ZOCTRL_API int ZoUnitExtent(int extent, int units);

// Source rectangle of cell (ux, uy): left ux x unit width, top uy x unit height, one unit large.
ZOCTRL_API ZoBlitRect ZoUnitCellRect(int width, int height, int horzUnits, int vertUnits, int ux, int uy);

// The two copies of lower stretching: the full source at its own height, stretched in width
// only, then the last source row stretched down to 8 rows beyond the destination's height.
struct ZoLowerStretchPlan
{
    ZoBlitRect upperSource;
    ZoBlitRect upperDest;
    ZoBlitRect lowerSource;
    ZoBlitRect lowerDest;
};
ZOCTRL_API ZoLowerStretchPlan ZoPlanLowerStretching(int x, int y, int w, int h, int srcX, int srcY, int srcW,
                                                    int srcH);

class ZOCTRL_API CZoResourceImage
{
public:
    CZoResourceImage();
    // Adopts `hBitmap` as one cell; the destructor deletes it when `bDeleteOnDestroy`.
    CZoResourceImage(HBITMAP hBitmap, bool bDeleteOnDestroy);
    virtual ~CZoResourceImage();

    virtual bool LoadResourceImage(UINT nID, int nHorzUnits, int nVertUnits);
    virtual bool LoadResourceImage(const wchar_t* name, E_ZoMonitorSize size, int nHorzUnits, int nVertUnits);
    // Cell (ux, uy) at its natural size.
    virtual void DrawUnitImage(CDC& dc, int x, int y, int ux, int uy, COLORREF transparent) const = 0;
    // Cell (ux, uy) stretched into (x, y, w, h).
    virtual void DrawUnitImage(CDC& dc, int x, int y, int w, int h, int ux, int uy,
                               COLORREF transparent) const = 0;

    int GetWidth() const;
    int GetHeight() const;
    int GetUnitWidth() const;
    int GetUnitHeight() const;
    bool IsLoaded() const;

protected:
    // Deletes the held bitmap whatever the delete flag says; a reload always replaces it.
    void _releaseBitmap();
    // Takes `hBitmap` (non-null) as the picture, cut into nHorzUnits x nVertUnits, owned.
    void _takeBitmap(HBITMAP hBitmap, int nHorzUnits, int nVertUnits);

    HBITMAP m_hBitmap;
    bool m_bDeleteOnDestroy;
    int m_nWidth;
    int m_nHeight;
    int m_nVertUnits;
    int m_nHorzUnits;

private:
    CZoResourceImage(const CZoResourceImage&);
    CZoResourceImage& operator=(const CZoResourceImage&);
};

class ZOCTRL_API CZoResourceBMPImage : public CZoResourceImage
{
public:
    CZoResourceBMPImage();
    CZoResourceBMPImage(HBITMAP hBitmap, bool bDeleteOnDestroy);
    ~CZoResourceBMPImage() override;

    using CZoResourceImage::LoadResourceImage;
    // Bitmap `name` for `size`, falling back to the plain name and then to `name` as given.
    bool LoadResourceImage(const wchar_t* name, E_ZoMonitorSize size, int nHorzUnits, int nVertUnits) override;
    void DrawUnitImage(CDC& dc, int x, int y, int ux, int uy, COLORREF transparent) const override;
    void DrawUnitImage(CDC& dc, int x, int y, int w, int h, int ux, int uy, COLORREF transparent) const override;

    // Source (srcX, srcY, srcW, srcH) into (x, y, w, h), leaving out `transparent`.
    void DrawImage(CDC& dc, int x, int y, int w, int h, int srcX, int srcY, int srcW, int srcH,
                   COLORREF transparent) const;
    // Source (srcX, srcY, w, h) to (x, y, w, h): position, then source origin, then size.
    void DrawImage(CDC& dc, int x, int y, int srcX, int srcY, int w, int h, COLORREF transparent) const;
    // The cell's full height at the top, its last row stretched over the rest (plus 8 rows).
    void DrawImageLowerStretching(CDC& dc, int x, int y, int w, int h, int srcX, int srcY, int srcW, int srcH,
                                  COLORREF transparent) const;

private:
    static CString _makeResourceId(const wchar_t* name, E_ZoMonitorSize size);
    static HBITMAP _loadBitmap(const wchar_t* name);

    // The cells already drawn, kept for a picture loaded from the resources (a skin drawn at
    // every paint), not for an adopted one; null without.
    CZoCellCache* m_pCellCache;
};

} // namespace ZoControls
