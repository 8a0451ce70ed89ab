// Skin pictures cut into equal cells; bitmap strips drawn with a key colour.
#include <afxwin.h>

#include "ZoCellCache.h"
#include "ZoImageDC.h"
#include "ZoResourceImage.h"

namespace ZoControls {

// ---- arithmetic -----------------------------------------------------------------------------

CString ZoResourceNameForSize(const wchar_t* name, E_ZoMonitorSize size)
{
    if (name == NULL || IS_INTRESOURCE(name))
        return CString();
    CString id(name);
    if (size == ZoMonitorSize_3M)
        id += L"_3M";
    else if (size == ZoMonitorSize_5M)
        id += L"_5M";
    return id;
}

int ZoUnitExtent(int extent, int units)
{
    return units < 1 ? 0 : extent / units;
}

ZoBlitRect ZoUnitCellRect(int width, int height, int horzUnits, int vertUnits, int ux, int uy)
{
    const int uw = ZoUnitExtent(width, horzUnits);
    const int uh = ZoUnitExtent(height, vertUnits);
    const ZoBlitRect cell = {uw * ux, uh * uy, uw, uh};
    return cell;
}

ZoLowerStretchPlan ZoPlanLowerStretching(int x, int y, int w, int h, int srcX, int srcY, int srcW, int srcH)
{
    // The lower copy deliberately runs 8 rows further than the stretched height asks for.
    const ZoLowerStretchPlan plan = {
        {srcX, srcY, srcW, srcH},
        {x, y, w, srcH},
        {srcX, srcY + srcH - 1, srcW, 1},
        {x, y + srcH - 1, w, h - srcH + 8},
    };
    return plan;
}

// ---- CZoResourceImage -----------------------------------------------------------------------

CZoResourceImage::CZoResourceImage()
    : m_hBitmap(NULL), m_bDeleteOnDestroy(false), m_nWidth(0), m_nHeight(0), m_nVertUnits(0), m_nHorzUnits(0)
{
}

CZoResourceImage::CZoResourceImage(HBITMAP hBitmap, bool bDeleteOnDestroy)
    : m_hBitmap(hBitmap), m_bDeleteOnDestroy(bDeleteOnDestroy), m_nWidth(0), m_nHeight(0), m_nVertUnits(1),
      m_nHorzUnits(1)
{
    BITMAP bm;
    if (m_hBitmap != NULL && ::GetObjectW(m_hBitmap, sizeof(bm), &bm) != 0) {
        m_nWidth = bm.bmWidth;
        m_nHeight = bm.bmHeight;
    }
}

CZoResourceImage::~CZoResourceImage()
{
    if (m_hBitmap != NULL && m_bDeleteOnDestroy)
        ::DeleteObject(m_hBitmap);
}

bool CZoResourceImage::LoadResourceImage(UINT /*nID*/, int /*nHorzUnits*/, int /*nVertUnits*/)
{
    return false;
}

bool CZoResourceImage::LoadResourceImage(const wchar_t* /*name*/, E_ZoMonitorSize /*size*/, int /*nHorzUnits*/,
                                         int /*nVertUnits*/)
{
    return false;
}

int CZoResourceImage::GetWidth() const
{
    return m_nWidth;
}

int CZoResourceImage::GetHeight() const
{
    return m_nHeight;
}

int CZoResourceImage::GetUnitWidth() const
{
    return ZoUnitExtent(m_nWidth, m_nHorzUnits);
}

int CZoResourceImage::GetUnitHeight() const
{
    return ZoUnitExtent(m_nHeight, m_nVertUnits);
}

bool CZoResourceImage::IsLoaded() const
{
    return m_hBitmap != NULL;
}

void CZoResourceImage::_releaseBitmap()
{
    if (m_hBitmap != NULL) {
        ::DeleteObject(m_hBitmap);
        m_hBitmap = NULL;
    }
    m_nWidth = 0;
    m_nHeight = 0;
}

void CZoResourceImage::_takeBitmap(HBITMAP hBitmap, int nHorzUnits, int nVertUnits)
{
    BITMAP bm;
    if (::GetObjectW(hBitmap, sizeof(bm), &bm) != 0) {
        m_nWidth = bm.bmWidth;
        m_nHeight = bm.bmHeight;
    }
    m_hBitmap = hBitmap;
    m_nHorzUnits = nHorzUnits;
    m_nVertUnits = nVertUnits;
    m_bDeleteOnDestroy = true;
}

// ---- CZoImageSourceDC -----------------------------------------------------------------------

CZoImageSourceDC::CZoImageSourceDC(CDC& target, HBITMAP hBitmap) : m_hPrevious(NULL)
{
    HDC hMemDC = ::CreateCompatibleDC(target.m_hDC);
    if (hMemDC == NULL)
        return;
    m_dc.Attach(hMemDC);
    m_hPrevious = ::SelectObject(hMemDC, hBitmap);
}

CZoImageSourceDC::~CZoImageSourceDC()
{
    HDC hMemDC = m_dc.Detach();
    if (hMemDC == NULL)
        return;
    if (m_hPrevious != NULL)
        ::SelectObject(hMemDC, m_hPrevious);
    ::DeleteDC(hMemDC);
}

// ---- CZoResourceBMPImage --------------------------------------------------------------------

CZoResourceBMPImage::CZoResourceBMPImage() : m_pCellCache(NULL)
{
}

CZoResourceBMPImage::CZoResourceBMPImage(HBITMAP hBitmap, bool bDeleteOnDestroy)
    : CZoResourceImage(hBitmap, bDeleteOnDestroy), m_pCellCache(NULL)
{
}

CZoResourceBMPImage::~CZoResourceBMPImage()
{
    delete m_pCellCache;
}

CString CZoResourceBMPImage::_makeResourceId(const wchar_t* name, E_ZoMonitorSize size)
{
    return ZoResourceNameForSize(name, size);
}

HBITMAP CZoResourceBMPImage::_loadBitmap(const wchar_t* name)
{
    HINSTANCE hModule = AfxFindResourceHandle(name, RT_BITMAP);
    if (hModule == NULL)
        return NULL;
    return static_cast<HBITMAP>(
        ::LoadImageW(hModule, name, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION | LR_SHARED));
}

bool CZoResourceBMPImage::LoadResourceImage(const wchar_t* name, E_ZoMonitorSize size, int nHorzUnits,
                                            int nVertUnits)
{
    delete m_pCellCache;
    m_pCellCache = NULL;
    _releaseBitmap();
    if (name == NULL)
        return false;

    HBITMAP hBitmap = NULL;
    // A numeric id has no size-class variants: only the id itself is tried.
    if (!IS_INTRESOURCE(name)) {
        hBitmap = _loadBitmap(_makeResourceId(name, size));
        if (hBitmap == NULL && size != ZoMonitorSize_Normal)
            hBitmap = _loadBitmap(_makeResourceId(name, ZoMonitorSize_Normal));
    }
    if (hBitmap == NULL)
        hBitmap = _loadBitmap(name);
    if (hBitmap == NULL)
        return false;

    _takeBitmap(hBitmap, nHorzUnits, nVertUnits);
    m_pCellCache = new CZoCellCache();
    return true;
}

void CZoResourceBMPImage::DrawUnitImage(CDC& dc, int x, int y, int ux, int uy, COLORREF transparent) const
{
    DrawUnitImage(dc, x, y, GetUnitWidth(), GetUnitHeight(), ux, uy, transparent);
}

void CZoResourceBMPImage::DrawUnitImage(CDC& dc, int x, int y, int w, int h, int ux, int uy,
                                        COLORREF transparent) const
{
    const ZoBlitRect cell = ZoUnitCellRect(m_nWidth, m_nHeight, m_nHorzUnits, m_nVertUnits, ux, uy);
    DrawImage(dc, x, y, w, h, cell.x, cell.y, cell.w, cell.h, transparent);
}

void CZoResourceBMPImage::DrawImage(CDC& dc, int x, int y, int w, int h, int srcX, int srcY, int srcW, int srcH,
                                    COLORREF transparent) const
{
    if (!IsLoaded())
        return;
    if (m_pCellCache) {
        const ZoCellKey key = {srcX, srcY, srcW, srcH, w, h, transparent};
        if (m_pCellCache->Draw(dc, x, y, key, m_hBitmap))
            return;
    }
    CZoImageSourceDC source(dc, m_hBitmap);
    if (!source.IsReady())
        return;
    dc.TransparentBlt(x, y, w, h, source.GetDC(), srcX, srcY, srcW, srcH, transparent);
}

void CZoResourceBMPImage::DrawImage(CDC& dc, int x, int y, int srcX, int srcY, int w, int h,
                                    COLORREF transparent) const
{
    DrawImage(dc, x, y, w, h, srcX, srcY, w, h, transparent);
}

void CZoResourceBMPImage::DrawImageLowerStretching(CDC& dc, int x, int y, int w, int h, int srcX, int srcY,
                                                   int srcW, int srcH, COLORREF transparent) const
{
    if (!IsLoaded())
        return;
    CZoImageSourceDC source(dc, m_hBitmap);
    if (!source.IsReady())
        return;
    const ZoLowerStretchPlan plan = ZoPlanLowerStretching(x, y, w, h, srcX, srcY, srcW, srcH);
    const int oldMode = dc.SetStretchBltMode(COLORONCOLOR);
    const ZoBlitRect* pieces[2][2] = {{&plan.upperDest, &plan.upperSource}, {&plan.lowerDest, &plan.lowerSource}};
    for (int i = 0; i < 2; ++i) {
        const ZoBlitRect& to = *pieces[i][0];
        const ZoBlitRect& from = *pieces[i][1];
        dc.TransparentBlt(to.x, to.y, to.w, to.h, source.GetDC(), from.x, from.y, from.w, from.h, transparent);
    }
    dc.SetStretchBltMode(oldMode);
}

} // namespace ZoControls
