// CGdiObject and the typed GDI object wrappers.
#include <afxwin.h>
#include "gdimaps.h"

IMPLEMENT_DYNCREATE(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CPalette, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

namespace {
// A wrapper already holding a handle refuses a second one; the new handle must not leak.
BOOL AttachCreated(CGdiObject& object, HGDIOBJ hCreated)
{
    if (object.Attach(hCreated))
        return TRUE;
    if (hCreated != NULL)
        ::DeleteObject(hCreated);
    return FALSE;
}

// The typed constructors that create their handle report failure as MFC does.
void ThrowIfNotCreated(BOOL created)
{
    if (!created)
        AfxThrowResourceException();
}
}

/////////////////////////////////////////////////////////////////////////////
// CGdiObject

CGdiObject::CGdiObject() : m_hObject(NULL)
{
}

CGdiObject::~CGdiObject()
{
    DeleteObject();
}

CGdiObject* PASCAL CGdiObject::FromHandle(HGDIOBJ hObject)
{
    return zoafx::GdiObjectFromHandle(hObject);
}

void PASCAL CGdiObject::DeleteTempMap()
{
    zoafx::DeleteTempGdiObjects();
}

BOOL CGdiObject::Attach(HGDIOBJ hObject)
{
    // An object wraps one handle at a time; a null handle is nothing to wrap.
    if (hObject == NULL || m_hObject != NULL)
        return FALSE;
    m_hObject = hObject;
    zoafx::MapPermanentGdiObject(hObject, this);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach()
{
    HGDIOBJ hObject = m_hObject;
    if (hObject != NULL)
        zoafx::UnmapPermanentGdiObject(hObject, this);
    m_hObject = NULL;
    return hObject;
}

BOOL CGdiObject::DeleteObject()
{
    if (m_hObject == NULL)
        return FALSE;
    return ::DeleteObject(Detach());
}

int CGdiObject::GetObject(int nCount, LPVOID lpObject) const
{
    if (m_hObject == NULL)
        return 0;
    return ::GetObjectW(m_hObject, nCount, lpObject);
}

UINT CGdiObject::GetObjectType() const
{
    return m_hObject == NULL ? 0 : (UINT)::GetObjectType(m_hObject);
}

BOOL CGdiObject::CreateStockObject(int nIndex)
{
    // Stock objects are shared: wrapping one never deletes it (DeleteObject ignores them).
    return AttachCreated(*this, ::GetStockObject(nIndex));
}

BOOL CGdiObject::UnrealizeObject()
{
    return m_hObject != NULL && ::UnrealizeObject(m_hObject);
}


/////////////////////////////////////////////////////////////////////////////
// CPen

CPen* PASCAL CPen::FromHandle(HPEN hPen)
{
    return (CPen*)CGdiObject::FromHandle(hPen);
}

CPen::CPen()
{
}

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor)
{
    ThrowIfNotCreated(CreatePen(nPenStyle, nWidth, crColor));
}

CPen::CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount,
           const DWORD* lpStyle)
{
    ThrowIfNotCreated(CreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle));
}

CPen::~CPen()
{
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, COLORREF crColor)
{
    return AttachCreated(*this, ::CreatePen(nPenStyle, nWidth, crColor));
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount,
                     const DWORD* lpStyle)
{
    if (pLogBrush == NULL)
        return FALSE;
    return AttachCreated(*this, ::ExtCreatePen((DWORD)nPenStyle, (DWORD)nWidth, pLogBrush, (DWORD)nStyleCount,
                                 lpStyle));
}

BOOL CPen::CreatePenIndirect(LPLOGPEN lpLogPen)
{
    return lpLogPen != NULL && AttachCreated(*this, ::CreatePenIndirect(lpLogPen));
}

int CPen::GetLogPen(LOGPEN* pLogPen)
{
    return GetObject(sizeof(LOGPEN), pLogPen);
}

int CPen::GetExtLogPen(EXTLOGPEN* pLogPen)
{
    return GetObject(sizeof(EXTLOGPEN), pLogPen);
}

/////////////////////////////////////////////////////////////////////////////
// CBrush

CBrush* PASCAL CBrush::FromHandle(HBRUSH hBrush)
{
    return (CBrush*)CGdiObject::FromHandle(hBrush);
}

CBrush::CBrush()
{
}

CBrush::CBrush(COLORREF crColor)
{
    ThrowIfNotCreated(CreateSolidBrush(crColor));
}

CBrush::CBrush(int nIndex, COLORREF crColor)
{
    ThrowIfNotCreated(CreateHatchBrush(nIndex, crColor));
}

CBrush::CBrush(CBitmap* pBitmap)
{
    ThrowIfNotCreated(CreatePatternBrush(pBitmap));
}

CBrush::~CBrush()
{
}

BOOL CBrush::CreateSolidBrush(COLORREF crColor)
{
    return AttachCreated(*this, ::CreateSolidBrush(crColor));
}

BOOL CBrush::CreateHatchBrush(int nIndex, COLORREF crColor)
{
    return AttachCreated(*this, ::CreateHatchBrush(nIndex, crColor));
}

BOOL CBrush::CreateBrushIndirect(const LOGBRUSH* lpLogBrush)
{
    return lpLogBrush != NULL && AttachCreated(*this, ::CreateBrushIndirect(lpLogBrush));
}

BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap)
{
    return pBitmap != NULL && AttachCreated(*this, ::CreatePatternBrush((HBITMAP)pBitmap->GetSafeHandle()));
}

BOOL CBrush::CreateDIBPatternBrush(HGLOBAL hPackedDIB, UINT nUsage)
{
    if (hPackedDIB == NULL)
        return FALSE;
    const void* packed = ::GlobalLock(hPackedDIB);
    BOOL created = packed != NULL && AttachCreated(*this, ::CreateDIBPatternBrushPt(packed, nUsage));
    ::GlobalUnlock(hPackedDIB);
    return created;
}

BOOL CBrush::CreateDIBPatternBrush(const void* lpPackedDIB, UINT nUsage)
{
    return lpPackedDIB != NULL && AttachCreated(*this, ::CreateDIBPatternBrushPt(lpPackedDIB, nUsage));
}

BOOL CBrush::CreateSysColorBrush(int nIndex)
{
    return AttachCreated(*this, ::GetSysColorBrush(nIndex));
}

int CBrush::GetLogBrush(LOGBRUSH* pLogBrush)
{
    return GetObject(sizeof(LOGBRUSH), pLogBrush);
}

/////////////////////////////////////////////////////////////////////////////
// CFont

CFont* PASCAL CFont::FromHandle(HFONT hFont)
{
    return (CFont*)CGdiObject::FromHandle(hFont);
}

CFont::CFont()
{
}

CFont::~CFont()
{
}

BOOL CFont::CreateFontIndirect(const LOGFONT* lpLogFont)
{
    return lpLogFont != NULL && AttachCreated(*this, ::CreateFontIndirectW(lpLogFont));
}

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight,
                       BYTE bItalic, BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet,
                       BYTE nOutPrecision, BYTE nClipPrecision, BYTE nQuality,
                       BYTE nPitchAndFamily, LPCTSTR lpszFacename)
{
    return AttachCreated(*this, ::CreateFontW(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic,
                                bUnderline, cStrikeOut, nCharSet, nOutPrecision, nClipPrecision,
                                nQuality, nPitchAndFamily, lpszFacename));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC)
{
    LOGFONT logFont;
    memset(&logFont, 0, sizeof(logFont));
    logFont.lfCharSet = DEFAULT_CHARSET;
    logFont.lfHeight = nPointSize;
    if (lpszFaceName != NULL)
        lstrcpynW(logFont.lfFaceName, lpszFaceName, LF_FACESIZE);
    return CreatePointFontIndirect(&logFont, pDC);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC)
{
    if (lpLogFont == NULL)
        return FALSE;
    // lfHeight holds tenths of a point: convert through the device's resolution to logical units.
    HDC hDC = pDC != NULL && pDC->m_hAttribDC != NULL ? pDC->m_hAttribDC : ::GetDC(NULL);
    LOGFONT logFont = *lpLogFont;
    POINT height = { 0, ::MulDiv(::GetDeviceCaps(hDC, LOGPIXELSY), logFont.lfHeight, 720) };
    POINT origin = { 0, 0 };
    ::DPtoLP(hDC, &height, 1);
    ::DPtoLP(hDC, &origin, 1);
    logFont.lfHeight = -abs(height.y - origin.y);
    if (pDC == NULL || pDC->m_hAttribDC == NULL)
        ::ReleaseDC(NULL, hDC);
    return CreateFontIndirect(&logFont);
}

int CFont::GetLogFont(LOGFONT* pLogFont)
{
    return GetObject(sizeof(LOGFONT), pLogFont);
}

/////////////////////////////////////////////////////////////////////////////
// CBitmap

CBitmap* PASCAL CBitmap::FromHandle(HBITMAP hBitmap)
{
    return (CBitmap*)CGdiObject::FromHandle(hBitmap);
}

CBitmap::CBitmap()
{
}

CBitmap::~CBitmap()
{
}

BOOL CBitmap::LoadBitmap(LPCTSTR lpszResourceName)
{
    HINSTANCE hInstance = AfxFindResourceHandle(lpszResourceName, RT_BITMAP);
    return AttachCreated(*this, ::LoadBitmapW(hInstance, lpszResourceName));
}

BOOL CBitmap::LoadBitmap(UINT nIDResource)
{
    return LoadBitmap(MAKEINTRESOURCE(nIDResource));
}

BOOL CBitmap::LoadOEMBitmap(UINT nIDBitmap)
{
    return AttachCreated(*this, ::LoadBitmapW(NULL, MAKEINTRESOURCE(nIDBitmap)));
}

BOOL CBitmap::LoadMappedBitmap(UINT nIDBitmap, UINT nFlags, LPCOLORMAP lpColorMap, int nMapSize)
{
    HINSTANCE hInstance = AfxFindResourceHandle(MAKEINTRESOURCE(nIDBitmap), RT_BITMAP);
    return AttachCreated(*this, ::CreateMappedBitmap(hInstance, (INT_PTR)nIDBitmap, nFlags, lpColorMap, nMapSize));
}

BOOL CBitmap::CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits)
{
    return AttachCreated(*this, ::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
}

BOOL CBitmap::CreateBitmapIndirect(LPBITMAP lpBitmap)
{
    return lpBitmap != NULL && AttachCreated(*this, ::CreateBitmapIndirect(lpBitmap));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight)
{
    return pDC != NULL && AttachCreated(*this, ::CreateCompatibleBitmap(pDC->m_hDC, nWidth, nHeight));
}

BOOL CBitmap::CreateDiscardableBitmap(CDC* pDC, int nWidth, int nHeight)
{
    return pDC != NULL && AttachCreated(*this, ::CreateDiscardableBitmap(pDC->m_hDC, nWidth, nHeight));
}

int CBitmap::GetBitmap(BITMAP* pBitMap)
{
    return GetObject(sizeof(BITMAP), pBitMap);
}

DWORD CBitmap::SetBitmapBits(DWORD dwCount, const void* lpBits)
{
    if (m_hObject == NULL || lpBits == NULL)
        return 0;
    return (DWORD)::SetBitmapBits((HBITMAP)m_hObject, dwCount, lpBits);
}

DWORD CBitmap::GetBitmapBits(DWORD dwCount, LPVOID lpBits) const
{
    if (m_hObject == NULL || lpBits == NULL)
        return 0;
    return (DWORD)::GetBitmapBits((HBITMAP)m_hObject, (LONG)dwCount, lpBits);
}

CSize CBitmap::SetBitmapDimension(int nWidth, int nHeight)
{
    SIZE previous = { 0, 0 };
    if (m_hObject != NULL)
        ::SetBitmapDimensionEx((HBITMAP)m_hObject, nWidth, nHeight, &previous);
    return previous;
}

CSize CBitmap::GetBitmapDimension() const
{
    SIZE size = { 0, 0 };
    if (m_hObject != NULL)
        ::GetBitmapDimensionEx((HBITMAP)m_hObject, &size);
    return size;
}

/////////////////////////////////////////////////////////////////////////////
// CPalette

CPalette* PASCAL CPalette::FromHandle(HPALETTE hPalette)
{
    return (CPalette*)CGdiObject::FromHandle(hPalette);
}

CPalette::CPalette()
{
}

CPalette::~CPalette()
{
}

BOOL CPalette::CreatePalette(LPLOGPALETTE lpLogPalette)
{
    return lpLogPalette != NULL && AttachCreated(*this, ::CreatePalette(lpLogPalette));
}

BOOL CPalette::CreateHalftonePalette(CDC* pDC)
{
    return pDC != NULL && AttachCreated(*this, ::CreateHalftonePalette(pDC->m_hDC));
}

int CPalette::GetEntryCount()
{
    WORD count = 0;
    GetObject(sizeof(count), &count);
    return count;
}

UINT CPalette::GetPaletteEntries(UINT nStartIndex, UINT nNumEntries,
                                 LPPALETTEENTRY lpPaletteColors) const
{
    if (m_hObject == NULL)
        return 0;
    return ::GetPaletteEntries((HPALETTE)m_hObject, nStartIndex, nNumEntries, lpPaletteColors);
}

UINT CPalette::SetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors)
{
    if (m_hObject == NULL || lpPaletteColors == NULL)
        return 0;
    return ::SetPaletteEntries((HPALETTE)m_hObject, nStartIndex, nNumEntries, lpPaletteColors);
}

void CPalette::AnimatePalette(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors)
{
    if (m_hObject != NULL && lpPaletteColors != NULL)
        ::AnimatePalette((HPALETTE)m_hObject, nStartIndex, nNumEntries, lpPaletteColors);
}

UINT CPalette::GetNearestPaletteIndex(COLORREF crColor) const
{
    if (m_hObject == NULL)
        return CLR_INVALID;
    return ::GetNearestPaletteIndex((HPALETTE)m_hObject, crColor);
}

BOOL CPalette::ResizePalette(UINT nNumEntries)
{
    return m_hObject != NULL && ::ResizePalette((HPALETTE)m_hObject, nNumEntries);
}

/////////////////////////////////////////////////////////////////////////////
// CRgn

CRgn* PASCAL CRgn::FromHandle(HRGN hRgn)
{
    return (CRgn*)CGdiObject::FromHandle(hRgn);
}

CRgn::CRgn()
{
}

CRgn::~CRgn()
{
}

BOOL CRgn::CreateRectRgn(int x1, int y1, int x2, int y2)
{
    return AttachCreated(*this, ::CreateRectRgn(x1, y1, x2, y2));
}

BOOL CRgn::CreateRectRgnIndirect(LPCRECT lpRect)
{
    return lpRect != NULL && AttachCreated(*this, ::CreateRectRgnIndirect(lpRect));
}

BOOL CRgn::CreateEllipticRgn(int x1, int y1, int x2, int y2)
{
    return AttachCreated(*this, ::CreateEllipticRgn(x1, y1, x2, y2));
}

BOOL CRgn::CreateEllipticRgnIndirect(LPCRECT lpRect)
{
    return lpRect != NULL && AttachCreated(*this, ::CreateEllipticRgnIndirect(lpRect));
}

BOOL CRgn::CreatePolygonRgn(LPPOINT lpPoints, int nCount, int nMode)
{
    return lpPoints != NULL && nCount > 0 && AttachCreated(*this, ::CreatePolygonRgn(lpPoints, nCount, nMode));
}

BOOL CRgn::CreatePolyPolygonRgn(LPPOINT lpPoints, LPINT lpPolyCounts, int nCount, int nPolyFillMode)
{
    if (lpPoints == NULL || lpPolyCounts == NULL || nCount <= 0)
        return FALSE;
    return AttachCreated(*this, ::CreatePolyPolygonRgn(lpPoints, lpPolyCounts, nCount, nPolyFillMode));
}

BOOL CRgn::CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3)
{
    return AttachCreated(*this, ::CreateRoundRectRgn(x1, y1, x2, y2, x3, y3));
}

BOOL CRgn::CreateFromPath(CDC* pDC)
{
    return pDC != NULL && AttachCreated(*this, ::PathToRegion(pDC->m_hDC));
}

BOOL CRgn::CreateFromData(const XFORM* lpXForm, int nCount, const RGNDATA* pRgnData)
{
    return pRgnData != NULL && AttachCreated(*this, ::ExtCreateRegion(lpXForm, (DWORD)nCount, pRgnData));
}

void CRgn::SetRectRgn(int x1, int y1, int x2, int y2)
{
    if (m_hObject != NULL)
        ::SetRectRgn((HRGN)m_hObject, x1, y1, x2, y2);
}

void CRgn::SetRectRgn(LPCRECT lpRect)
{
    if (lpRect != NULL)
        SetRectRgn(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CRgn::CombineRgn(CRgn* pRgn1, CRgn* pRgn2, int nCombineMode)
{
    if (m_hObject == NULL || pRgn1 == NULL)
        return ERROR;
    return ::CombineRgn((HRGN)m_hObject, (HRGN)pRgn1->GetSafeHandle(),
                        (HRGN)pRgn2->GetSafeHandle(), nCombineMode);
}

int CRgn::CopyRgn(CRgn* pRgnSrc)
{
    if (m_hObject == NULL || pRgnSrc == NULL)
        return ERROR;
    return ::CombineRgn((HRGN)m_hObject, (HRGN)pRgnSrc->m_hObject, NULL, RGN_COPY);
}

BOOL CRgn::EqualRgn(CRgn* pRgn) const
{
    if (m_hObject == NULL || pRgn == NULL)
        return FALSE;
    return ::EqualRgn((HRGN)m_hObject, (HRGN)pRgn->m_hObject);
}

int CRgn::OffsetRgn(int x, int y)
{
    return m_hObject == NULL ? ERROR : ::OffsetRgn((HRGN)m_hObject, x, y);
}

int CRgn::OffsetRgn(POINT point)
{
    return OffsetRgn(point.x, point.y);
}

int CRgn::GetRgnBox(LPRECT lpRect) const
{
    if (m_hObject == NULL || lpRect == NULL)
        return ERROR;
    return ::GetRgnBox((HRGN)m_hObject, lpRect);
}

BOOL CRgn::PtInRegion(int x, int y) const
{
    return m_hObject != NULL && ::PtInRegion((HRGN)m_hObject, x, y);
}

BOOL CRgn::PtInRegion(POINT point) const
{
    return PtInRegion(point.x, point.y);
}

BOOL CRgn::RectInRegion(LPCRECT lpRect) const
{
    return m_hObject != NULL && lpRect != NULL && ::RectInRegion((HRGN)m_hObject, lpRect);
}

int CRgn::GetRegionData(LPRGNDATA lpRgnData, int nCount) const
{
    if (m_hObject == NULL)
        return 0;
    return (int)::GetRegionData((HRGN)m_hObject, (DWORD)nCount, lpRgnData);
}
