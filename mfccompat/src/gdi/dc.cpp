// CDC: drawing goes to m_hDC, queries read m_hAttribDC, attribute changes go to both.
#include <afxwin.h>
#include "gdimaps.h"

IMPLEMENT_DYNCREATE(CDC, CObject)

namespace {
// The DC that attribute queries read: the attribute DC, or the output DC when there is none.
HDC QueryDC(const CDC* pDC)
{
    return pDC->m_hAttribDC != NULL ? pDC->m_hAttribDC : pDC->m_hDC;
}

// Applies an attribute change to the output DC (when it is a different DC) and to the
// attribute DC, returning the attribute DC's previous value as MFC does.
template <typename Result, typename Setter>
Result SetOnBoth(CDC* pDC, Result failed, Setter set)
{
    Result previous = failed;
    if (pDC->m_hDC != NULL && pDC->m_hDC != pDC->m_hAttribDC)
        previous = set(pDC->m_hDC);
    if (pDC->m_hAttribDC != NULL)
        previous = set(pDC->m_hAttribDC);
    return previous;
}

HGDIOBJ SelectIntoBoth(CDC* pDC, HGDIOBJ hObject)
{
    if (hObject == NULL)
        return NULL;
    return SetOnBoth<HGDIOBJ>(pDC, NULL, [hObject](HDC hDC) { return ::SelectObject(hDC, hObject); });
}

HBRUSH BrushHandle(CBrush* pBrush)
{
    return (HBRUSH)pBrush->GetSafeHandle();
}
}

/////////////////////////////////////////////////////////////////////////////
// Handles and temporary objects

CDC::CDC() : m_hDC(NULL), m_hAttribDC(NULL), m_bPrinting(FALSE)
{
}

CDC::~CDC()
{
    if (m_hDC != NULL)
        ::DeleteDC(Detach());
}

CDC* PASCAL CDC::FromHandle(HDC hDC)
{
    return zoafx::DCFromHandle(hDC);
}

void PASCAL CDC::DeleteTempMap()
{
    zoafx::DeleteTempDCs();
}

BOOL CDC::Attach(HDC hDC)
{
    if (hDC == NULL || m_hDC != NULL)
        return FALSE;
    m_hDC = hDC;
    zoafx::MapPermanentDC(hDC, this);
    SetAttribDC(m_hDC);
    return TRUE;
}

HDC CDC::Detach()
{
    HDC hDC = m_hDC;
    if (hDC != NULL)
        zoafx::UnmapPermanentDC(hDC, this);
    ReleaseAttribDC();
    ReleaseOutputDC();
    return hDC;
}

void CDC::SetAttribDC(HDC hDC)
{
    m_hAttribDC = hDC;
}

void CDC::SetOutputDC(HDC hDC)
{
    m_hDC = hDC;
}

void CDC::ReleaseAttribDC()
{
    m_hAttribDC = NULL;
}

void CDC::ReleaseOutputDC()
{
    m_hDC = NULL;
}

BOOL CDC::CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput,
                   const void* lpInitData)
{
    if (m_hDC != NULL)
        return FALSE;
    return Attach(::CreateDCW(lpszDriverName, lpszDeviceName, lpszOutput, (const DEVMODEW*)lpInitData));
}

BOOL CDC::CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput,
                   const void* lpInitData)
{
    if (m_hDC != NULL)
        return FALSE;
    return Attach(::CreateICW(lpszDriverName, lpszDeviceName, lpszOutput, (const DEVMODEW*)lpInitData));
}

BOOL CDC::CreateCompatibleDC(CDC* pDC)
{
    if (m_hDC != NULL)
        return FALSE;
    HDC hDC = ::CreateCompatibleDC(pDC != NULL ? pDC->m_hDC : NULL);
    if (hDC == NULL)
        return FALSE;
    return Attach(hDC);
}

BOOL CDC::DeleteDC()
{
    if (m_hDC == NULL)
        return FALSE;
    return ::DeleteDC(Detach());
}

/////////////////////////////////////////////////////////////////////////////
// State

int CDC::SaveDC()
{
    int saved = 0;
    if (m_hAttribDC != NULL && m_hAttribDC != m_hDC)
        saved = ::SaveDC(m_hAttribDC);
    if (m_hDC != NULL)
        saved = ::SaveDC(m_hDC);
    return saved;
}

BOOL CDC::RestoreDC(int nSavedDC)
{
    BOOL restored = TRUE;
    if (m_hDC == NULL && m_hAttribDC == NULL)
        return FALSE;
    if (m_hDC != NULL && m_hDC != m_hAttribDC)
        restored = ::RestoreDC(m_hDC, nSavedDC);
    if (m_hAttribDC != NULL)
        restored = ::RestoreDC(m_hAttribDC, nSavedDC) && restored;
    return restored;
}

int CDC::GetDeviceCaps(int nIndex) const
{
    return ::GetDeviceCaps(QueryDC(this), nIndex);
}

UINT CDC::SetBoundsRect(LPCRECT lpRectBounds, UINT flags)
{
    return ::SetBoundsRect(m_hDC, lpRectBounds, flags);
}

UINT CDC::GetBoundsRect(LPRECT lpRectBounds, UINT flags)
{
    return ::GetBoundsRect(QueryDC(this), lpRectBounds, flags);
}

CPoint CDC::GetBrushOrg() const
{
    POINT point = { 0, 0 };
    ::GetBrushOrgEx(m_hDC, &point);
    return point;
}

CPoint CDC::SetBrushOrg(int x, int y)
{
    POINT point = { 0, 0 };
    ::SetBrushOrgEx(m_hDC, x, y, &point);
    return point;
}

CPoint CDC::SetBrushOrg(POINT point)
{
    return SetBrushOrg(point.x, point.y);
}

/////////////////////////////////////////////////////////////////////////////
// Selected objects

CPen* CDC::GetCurrentPen() const
{
    return CPen::FromHandle((HPEN)::GetCurrentObject(m_hDC, OBJ_PEN));
}

CBrush* CDC::GetCurrentBrush() const
{
    return CBrush::FromHandle((HBRUSH)::GetCurrentObject(m_hDC, OBJ_BRUSH));
}

CPalette* CDC::GetCurrentPalette() const
{
    return CPalette::FromHandle((HPALETTE)::GetCurrentObject(m_hDC, OBJ_PAL));
}

CFont* CDC::GetCurrentFont() const
{
    return CFont::FromHandle((HFONT)::GetCurrentObject(m_hDC, OBJ_FONT));
}

CBitmap* CDC::GetCurrentBitmap() const
{
    return CBitmap::FromHandle((HBITMAP)::GetCurrentObject(m_hDC, OBJ_BITMAP));
}

CPen* CDC::SelectObject(CPen* pPen)
{
    return CPen::FromHandle((HPEN)SelectIntoBoth(this, pPen->GetSafeHandle()));
}

CBrush* CDC::SelectObject(CBrush* pBrush)
{
    return CBrush::FromHandle((HBRUSH)SelectIntoBoth(this, pBrush->GetSafeHandle()));
}

CFont* CDC::SelectObject(CFont* pFont)
{
    return CFont::FromHandle((HFONT)SelectIntoBoth(this, pFont->GetSafeHandle()));
}

CBitmap* CDC::SelectObject(CBitmap* pBitmap)
{
    return CBitmap::FromHandle((HBITMAP)SelectIntoBoth(this, pBitmap->GetSafeHandle()));
}

int CDC::SelectObject(CRgn* pRgn)
{
    return SelectClipRgn(pRgn);
}

CGdiObject* CDC::SelectObject(CGdiObject* pObject)
{
    // A region selected through the generic overload clips, as ::SelectObject does.
    HGDIOBJ hObject = pObject->GetSafeHandle();
    if (hObject != NULL && ::GetObjectType(hObject) == OBJ_REGION) {
        SelectClipRgn((CRgn*)pObject);
        return NULL;
    }
    return CGdiObject::FromHandle(SelectIntoBoth(this, hObject));
}

CGdiObject* CDC::SelectStockObject(int nIndex)
{
    return CGdiObject::FromHandle(SelectIntoBoth(this, ::GetStockObject(nIndex)));
}

CPalette* CDC::SelectPalette(CPalette* pPalette, BOOL bForceBackground)
{
    HPALETTE hPalette = (HPALETTE)pPalette->GetSafeHandle();
    if (hPalette == NULL || m_hDC == NULL)
        return NULL;
    return CPalette::FromHandle(::SelectPalette(m_hDC, hPalette, bForceBackground));
}

UINT CDC::RealizePalette()
{
    return m_hDC == NULL ? GDI_ERROR : ::RealizePalette(m_hDC);
}

/////////////////////////////////////////////////////////////////////////////
// Colours and modes

COLORREF CDC::GetNearestColor(COLORREF crColor) const
{
    return ::GetNearestColor(QueryDC(this), crColor);
}

COLORREF CDC::GetBkColor() const
{
    return ::GetBkColor(QueryDC(this));
}

int CDC::GetBkMode() const
{
    return ::GetBkMode(QueryDC(this));
}

int CDC::GetPolyFillMode() const
{
    return ::GetPolyFillMode(QueryDC(this));
}

int CDC::GetROP2() const
{
    return ::GetROP2(QueryDC(this));
}

int CDC::GetStretchBltMode() const
{
    return ::GetStretchBltMode(QueryDC(this));
}

COLORREF CDC::GetTextColor() const
{
    return ::GetTextColor(QueryDC(this));
}

COLORREF CDC::SetBkColor(COLORREF crColor)
{
    return SetOnBoth<COLORREF>(this, CLR_INVALID, [crColor](HDC hDC) { return ::SetBkColor(hDC, crColor); });
}

int CDC::SetBkMode(int nBkMode)
{
    return SetOnBoth<int>(this, 0, [nBkMode](HDC hDC) { return ::SetBkMode(hDC, nBkMode); });
}

int CDC::SetPolyFillMode(int nPolyFillMode)
{
    return SetOnBoth<int>(this, 0, [nPolyFillMode](HDC hDC) { return ::SetPolyFillMode(hDC, nPolyFillMode); });
}

int CDC::SetROP2(int nDrawMode)
{
    return SetOnBoth<int>(this, 0, [nDrawMode](HDC hDC) { return ::SetROP2(hDC, nDrawMode); });
}

int CDC::SetStretchBltMode(int nStretchMode)
{
    return SetOnBoth<int>(this, 0, [nStretchMode](HDC hDC) { return ::SetStretchBltMode(hDC, nStretchMode); });
}

COLORREF CDC::SetTextColor(COLORREF crColor)
{
    return SetOnBoth<COLORREF>(this, CLR_INVALID, [crColor](HDC hDC) { return ::SetTextColor(hDC, crColor); });
}

int CDC::GetGraphicsMode() const
{
    return ::GetGraphicsMode(QueryDC(this));
}

int CDC::SetGraphicsMode(int iMode)
{
    return SetOnBoth<int>(this, 0, [iMode](HDC hDC) { return ::SetGraphicsMode(hDC, iMode); });
}

/////////////////////////////////////////////////////////////////////////////
// Mapping

int CDC::GetMapMode() const
{
    return ::GetMapMode(QueryDC(this));
}

CPoint CDC::GetViewportOrg() const
{
    POINT point = { 0, 0 };
    ::GetViewportOrgEx(QueryDC(this), &point);
    return point;
}

int CDC::SetMapMode(int nMapMode)
{
    return SetOnBoth<int>(this, 0, [nMapMode](HDC hDC) { return ::SetMapMode(hDC, nMapMode); });
}

CPoint CDC::SetViewportOrg(int x, int y)
{
    return SetOnBoth<CPoint>(this, CPoint(0, 0), [x, y](HDC hDC) {
        POINT point = { 0, 0 };
        ::SetViewportOrgEx(hDC, x, y, &point);
        return CPoint(point);
    });
}

CPoint CDC::SetViewportOrg(POINT point)
{
    return SetViewportOrg(point.x, point.y);
}

CPoint CDC::OffsetViewportOrg(int nWidth, int nHeight)
{
    return SetOnBoth<CPoint>(this, CPoint(0, 0), [nWidth, nHeight](HDC hDC) {
        POINT point = { 0, 0 };
        ::OffsetViewportOrgEx(hDC, nWidth, nHeight, &point);
        return CPoint(point);
    });
}

CSize CDC::GetViewportExt() const
{
    SIZE size = { 0, 0 };
    ::GetViewportExtEx(QueryDC(this), &size);
    return size;
}

CSize CDC::SetViewportExt(int cx, int cy)
{
    return SetOnBoth<CSize>(this, CSize(0, 0), [cx, cy](HDC hDC) {
        SIZE size = { 0, 0 };
        ::SetViewportExtEx(hDC, cx, cy, &size);
        return CSize(size);
    });
}

CSize CDC::SetViewportExt(SIZE size)
{
    return SetViewportExt(size.cx, size.cy);
}

CSize CDC::ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom)
{
    return SetOnBoth<CSize>(this, CSize(0, 0), [=](HDC hDC) {
        SIZE size = { 0, 0 };
        ::ScaleViewportExtEx(hDC, xNum, xDenom, yNum, yDenom, &size);
        return CSize(size);
    });
}

CPoint CDC::GetWindowOrg() const
{
    POINT point = { 0, 0 };
    ::GetWindowOrgEx(QueryDC(this), &point);
    return point;
}

CPoint CDC::SetWindowOrg(int x, int y)
{
    return SetOnBoth<CPoint>(this, CPoint(0, 0), [x, y](HDC hDC) {
        POINT point = { 0, 0 };
        ::SetWindowOrgEx(hDC, x, y, &point);
        return CPoint(point);
    });
}

CPoint CDC::SetWindowOrg(POINT point)
{
    return SetWindowOrg(point.x, point.y);
}

CPoint CDC::OffsetWindowOrg(int nWidth, int nHeight)
{
    return SetOnBoth<CPoint>(this, CPoint(0, 0), [nWidth, nHeight](HDC hDC) {
        POINT point = { 0, 0 };
        ::OffsetWindowOrgEx(hDC, nWidth, nHeight, &point);
        return CPoint(point);
    });
}

CSize CDC::GetWindowExt() const
{
    SIZE size = { 0, 0 };
    ::GetWindowExtEx(QueryDC(this), &size);
    return size;
}

CSize CDC::SetWindowExt(int cx, int cy)
{
    return SetOnBoth<CSize>(this, CSize(0, 0), [cx, cy](HDC hDC) {
        SIZE size = { 0, 0 };
        ::SetWindowExtEx(hDC, cx, cy, &size);
        return CSize(size);
    });
}

CSize CDC::SetWindowExt(SIZE size)
{
    return SetWindowExt(size.cx, size.cy);
}

CSize CDC::ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom)
{
    return SetOnBoth<CSize>(this, CSize(0, 0), [=](HDC hDC) {
        SIZE size = { 0, 0 };
        ::ScaleWindowExtEx(hDC, xNum, xDenom, yNum, yDenom, &size);
        return CSize(size);
    });
}

void CDC::DPtoLP(LPPOINT lpPoints, int nCount) const
{
    if (lpPoints != NULL && nCount > 0)
        ::DPtoLP(QueryDC(this), lpPoints, nCount);
}

void CDC::DPtoLP(LPRECT lpRect) const
{
    DPtoLP((LPPOINT)lpRect, 2);
}

void CDC::DPtoLP(LPSIZE lpSize) const
{
    if (lpSize == NULL)
        return;
    // Sizes convert as distances: the difference of two converted points.
    POINT points[2] = { { 0, 0 }, { lpSize->cx, lpSize->cy } };
    DPtoLP(points, 2);
    lpSize->cx = points[1].x - points[0].x;
    lpSize->cy = points[1].y - points[0].y;
}

void CDC::LPtoDP(LPPOINT lpPoints, int nCount) const
{
    if (lpPoints != NULL && nCount > 0)
        ::LPtoDP(QueryDC(this), lpPoints, nCount);
}

void CDC::LPtoDP(LPRECT lpRect) const
{
    LPtoDP((LPPOINT)lpRect, 2);
}

void CDC::LPtoDP(LPSIZE lpSize) const
{
    if (lpSize == NULL)
        return;
    POINT points[2] = { { 0, 0 }, { lpSize->cx, lpSize->cy } };
    LPtoDP(points, 2);
    lpSize->cx = points[1].x - points[0].x;
    lpSize->cy = points[1].y - points[0].y;
}

/////////////////////////////////////////////////////////////////////////////
// Regions and clipping

BOOL CDC::FillRgn(CRgn* pRgn, CBrush* pBrush)
{
    HRGN hRgn = (HRGN)pRgn->GetSafeHandle();
    return hRgn != NULL && ::FillRgn(m_hDC, hRgn, BrushHandle(pBrush));
}

BOOL CDC::FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight)
{
    HRGN hRgn = (HRGN)pRgn->GetSafeHandle();
    return hRgn != NULL && ::FrameRgn(m_hDC, hRgn, BrushHandle(pBrush), nWidth, nHeight);
}

BOOL CDC::InvertRgn(CRgn* pRgn)
{
    HRGN hRgn = (HRGN)pRgn->GetSafeHandle();
    return hRgn != NULL && ::InvertRgn(m_hDC, hRgn);
}

BOOL CDC::PaintRgn(CRgn* pRgn)
{
    HRGN hRgn = (HRGN)pRgn->GetSafeHandle();
    return hRgn != NULL && ::PaintRgn(m_hDC, hRgn);
}

int CDC::GetClipBox(LPRECT lpRect) const
{
    if (lpRect == NULL)
        return ERROR;
    return ::GetClipBox(m_hDC, lpRect);
}

BOOL CDC::PtVisible(int x, int y) const
{
    return ::PtVisible(m_hDC, x, y) > 0;
}

BOOL CDC::PtVisible(POINT point) const
{
    return PtVisible(point.x, point.y);
}

BOOL CDC::RectVisible(LPCRECT lpRect) const
{
    return lpRect != NULL && ::RectVisible(m_hDC, lpRect) > 0;
}

int CDC::SelectClipRgn(CRgn* pRgn)
{
    HRGN hRgn = (HRGN)pRgn->GetSafeHandle();
    return SetOnBoth<int>(this, ERROR, [hRgn](HDC hDC) { return ::SelectClipRgn(hDC, hRgn); });
}

int CDC::SelectClipRgn(CRgn* pRgn, int nMode)
{
    HRGN hRgn = (HRGN)pRgn->GetSafeHandle();
    return SetOnBoth<int>(this, ERROR, [hRgn, nMode](HDC hDC) { return ::ExtSelectClipRgn(hDC, hRgn, nMode); });
}

int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2)
{
    return SetOnBoth<int>(this, ERROR, [=](HDC hDC) { return ::ExcludeClipRect(hDC, x1, y1, x2, y2); });
}

int CDC::ExcludeClipRect(LPCRECT lpRect)
{
    if (lpRect == NULL)
        return ERROR;
    return ExcludeClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2)
{
    return SetOnBoth<int>(this, ERROR, [=](HDC hDC) { return ::IntersectClipRect(hDC, x1, y1, x2, y2); });
}

int CDC::IntersectClipRect(LPCRECT lpRect)
{
    if (lpRect == NULL)
        return ERROR;
    return IntersectClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CDC::OffsetClipRgn(int x, int y)
{
    return SetOnBoth<int>(this, ERROR, [x, y](HDC hDC) { return ::OffsetClipRgn(hDC, x, y); });
}

int CDC::OffsetClipRgn(SIZE size)
{
    return OffsetClipRgn(size.cx, size.cy);
}

/////////////////////////////////////////////////////////////////////////////
// Lines

CPoint CDC::GetCurrentPosition() const
{
    POINT point = { 0, 0 };
    ::GetCurrentPositionEx(QueryDC(this), &point);
    return point;
}

CPoint CDC::MoveTo(int x, int y)
{
    return SetOnBoth<CPoint>(this, CPoint(0, 0), [x, y](HDC hDC) {
        POINT point = { 0, 0 };
        ::MoveToEx(hDC, x, y, &point);
        return CPoint(point);
    });
}

CPoint CDC::MoveTo(POINT point)
{
    return MoveTo(point.x, point.y);
}

BOOL CDC::LineTo(int x, int y)
{
    // The attribute DC's current position follows the line's end.
    if (m_hAttribDC != NULL && m_hAttribDC != m_hDC)
        ::MoveToEx(m_hAttribDC, x, y, NULL);
    return ::LineTo(m_hDC, x, y);
}

BOOL CDC::LineTo(POINT point)
{
    return LineTo(point.x, point.y);
}

BOOL CDC::Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Arc(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    if (lpRect == NULL)
        return FALSE;
    return Arc(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y,
               ptEnd.x, ptEnd.y);
}

BOOL CDC::Polyline(const POINT* lpPoints, int nCount)
{
    return lpPoints != NULL && nCount > 0 && ::Polyline(m_hDC, lpPoints, nCount);
}

BOOL CDC::PolyPolyline(const POINT* lpPoints, const DWORD* lpPolyPoints, int nCount)
{
    if (lpPoints == NULL || lpPolyPoints == NULL || nCount <= 0)
        return FALSE;
    return ::PolyPolyline(m_hDC, lpPoints, lpPolyPoints, (DWORD)nCount);
}

/////////////////////////////////////////////////////////////////////////////
// Simple drawing

void CDC::FillRect(LPCRECT lpRect, CBrush* pBrush)
{
    if (lpRect != NULL && BrushHandle(pBrush) != NULL)
        ::FillRect(m_hDC, lpRect, BrushHandle(pBrush));
}

void CDC::FrameRect(LPCRECT lpRect, CBrush* pBrush)
{
    if (lpRect != NULL && BrushHandle(pBrush) != NULL)
        ::FrameRect(m_hDC, lpRect, BrushHandle(pBrush));
}

void CDC::InvertRect(LPCRECT lpRect)
{
    if (lpRect != NULL)
        ::InvertRect(m_hDC, lpRect);
}

BOOL CDC::DrawIcon(int x, int y, HICON hIcon)
{
    return hIcon != NULL && ::DrawIcon(m_hDC, x, y, hIcon);
}

BOOL CDC::DrawIcon(POINT point, HICON hIcon)
{
    return DrawIcon(point.x, point.y, hIcon);
}

BOOL CDC::DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush)
{
    return ::DrawStateW(m_hDC, hBrush, NULL, (LPARAM)hBitmap, 0, pt.x, pt.y, size.cx, size.cy,
                        nFlags | DST_BITMAP);
}

BOOL CDC::DrawState(CPoint pt, CSize size, CBitmap* pBitmap, UINT nFlags, CBrush* pBrush)
{
    return DrawState(pt, size, (HBITMAP)pBitmap->GetSafeHandle(), nFlags, BrushHandle(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush)
{
    return ::DrawStateW(m_hDC, hBrush, NULL, (LPARAM)hIcon, 0, pt.x, pt.y, size.cx, size.cy,
                        nFlags | DST_ICON);
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, CBrush* pBrush)
{
    return DrawState(pt, size, hIcon, nFlags, BrushHandle(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText,
                    int nTextLen, HBRUSH hBrush)
{
    if (lpszText == NULL)
        return FALSE;
    return ::DrawStateW(m_hDC, hBrush, NULL, (LPARAM)lpszText, (WPARAM)nTextLen, pt.x, pt.y,
                        size.cx, size.cy, nFlags | (bPrefixText ? DST_PREFIXTEXT : DST_TEXT));
}

BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText,
                    int nTextLen, CBrush* pBrush)
{
    return DrawState(pt, size, lpszText, nFlags, bPrefixText, nTextLen, BrushHandle(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags,
                    HBRUSH hBrush)
{
    if (lpDrawProc == NULL)
        return FALSE;
    return ::DrawStateW(m_hDC, hBrush, lpDrawProc, lData, 0, pt.x, pt.y, size.cx, size.cy,
                        nFlags | DST_COMPLEX);
}

BOOL CDC::DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags,
                    CBrush* pBrush)
{
    return DrawState(pt, size, lpDrawProc, lData, nFlags, BrushHandle(pBrush));
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr)
{
    if (lpRect == NULL)
        return;
    // An opaque empty text output paints exactly the rectangle in the background colour,
    // which stays set to clr afterwards.
    ::SetBkColor(m_hDC, clr);
    ::ExtTextOutW(m_hDC, 0, 0, ETO_OPAQUE, lpRect, NULL, 0, NULL);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr)
{
    RECT rect = { x, y, x + cx, y + cy };
    FillSolidRect(&rect, clr);
}

void CDC::Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    if (lpRect != NULL)
        Draw3dRect(lpRect->left, lpRect->top, lpRect->right - lpRect->left,
                   lpRect->bottom - lpRect->top, clrTopLeft, clrBottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    // Top and left edges own the top-left corner; right and bottom the other three corners.
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x + cx - 1, y, 1, cy, clrBottomRight);
    FillSolidRect(x, y + cy - 1, cx, 1, clrBottomRight);
}

BOOL CDC::DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags)
{
    return lpRect != NULL && ::DrawEdge(m_hDC, lpRect, nEdge, nFlags);
}

BOOL CDC::DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState)
{
    return lpRect != NULL && ::DrawFrameControl(m_hDC, lpRect, nType, nState);
}

void CDC::DrawFocusRect(LPCRECT lpRect)
{
    if (lpRect != NULL)
        ::DrawFocusRect(m_hDC, lpRect);
}

/////////////////////////////////////////////////////////////////////////////
// Ellipses and polygons

BOOL CDC::Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Chord(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Chord(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    if (lpRect == NULL)
        return FALSE;
    return Chord(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y,
                 ptEnd.x, ptEnd.y);
}

BOOL CDC::Ellipse(int x1, int y1, int x2, int y2)
{
    return ::Ellipse(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Ellipse(LPCRECT lpRect)
{
    return lpRect != NULL && Ellipse(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Pie(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Pie(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    if (lpRect == NULL)
        return FALSE;
    return Pie(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y,
               ptEnd.x, ptEnd.y);
}

BOOL CDC::Polygon(const POINT* lpPoints, int nCount)
{
    return lpPoints != NULL && nCount > 0 && ::Polygon(m_hDC, lpPoints, nCount);
}

BOOL CDC::PolyPolygon(const POINT* lpPoints, const INT* lpPolyCounts, int nCount)
{
    if (lpPoints == NULL || lpPolyCounts == NULL || nCount <= 0)
        return FALSE;
    return ::PolyPolygon(m_hDC, lpPoints, lpPolyCounts, nCount);
}

BOOL CDC::Rectangle(int x1, int y1, int x2, int y2)
{
    return ::Rectangle(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Rectangle(LPCRECT lpRect)
{
    return lpRect != NULL && Rectangle(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::RoundRect(int x1, int y1, int x2, int y2, int x3, int y3)
{
    return ::RoundRect(m_hDC, x1, y1, x2, y2, x3, y3);
}

BOOL CDC::RoundRect(LPCRECT lpRect, POINT point)
{
    if (lpRect == NULL)
        return FALSE;
    return RoundRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, point.x, point.y);
}

/////////////////////////////////////////////////////////////////////////////
// Bitmaps

BOOL CDC::PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop)
{
    return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
}

BOOL CDC::BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop)
{
    return ::BitBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, dwRop);
}

BOOL CDC::StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                     int nSrcWidth, int nSrcHeight, DWORD dwRop)
{
    return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, nSrcWidth,
                        nSrcHeight, dwRop);
}

COLORREF CDC::GetPixel(int x, int y) const
{
    return ::GetPixel(m_hDC, x, y);
}

COLORREF CDC::GetPixel(POINT point) const
{
    return GetPixel(point.x, point.y);
}

COLORREF CDC::SetPixel(int x, int y, COLORREF crColor)
{
    return ::SetPixel(m_hDC, x, y, crColor);
}

COLORREF CDC::SetPixel(POINT point, COLORREF crColor)
{
    return SetPixel(point.x, point.y, crColor);
}

BOOL CDC::SetPixelV(int x, int y, COLORREF crColor)
{
    return ::SetPixelV(m_hDC, x, y, crColor);
}

BOOL CDC::SetPixelV(POINT point, COLORREF crColor)
{
    return SetPixelV(point.x, point.y, crColor);
}

BOOL CDC::FloodFill(int x, int y, COLORREF crColor)
{
    return ::FloodFill(m_hDC, x, y, crColor);
}

BOOL CDC::ExtFloodFill(int x, int y, COLORREF crColor, UINT nFillType)
{
    return ::ExtFloodFill(m_hDC, x, y, crColor, nFillType);
}

BOOL CDC::MaskBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                  CBitmap& maskBitmap, int xMask, int yMask, DWORD dwRop)
{
    return ::MaskBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc,
                     (HBITMAP)maskBitmap.m_hObject, xMask, yMask, dwRop);
}

BOOL CDC::TransparentBlt(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC,
                         int xSrc, int ySrc, int nSrcWidth, int nSrcHeight, UINT clrTransparent)
{
    HDC hSrcDC = pSrcDC->GetSafeHdc();
    if (hSrcDC == NULL)
        return FALSE;
    return ::TransparentBlt(m_hDC, xDest, yDest, nDestWidth, nDestHeight, hSrcDC, xSrc, ySrc,
                            nSrcWidth, nSrcHeight, clrTransparent);
}

BOOL CDC::AlphaBlend(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC,
                     int xSrc, int ySrc, int nSrcWidth, int nSrcHeight, BLENDFUNCTION blend)
{
    HDC hSrcDC = pSrcDC->GetSafeHdc();
    if (hSrcDC == NULL)
        return FALSE;
    return ::AlphaBlend(m_hDC, xDest, yDest, nDestWidth, nDestHeight, hSrcDC, xSrc, ySrc,
                        nSrcWidth, nSrcHeight, blend);
}

BOOL CDC::GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements,
                       DWORD dwMode)
{
    if (pVertices == NULL || pMesh == NULL)
        return FALSE;
    return ::GradientFill(m_hDC, pVertices, nVertices, pMesh, nMeshElements, dwMode);
}

/////////////////////////////////////////////////////////////////////////////
// Text

BOOL CDC::TextOut(int x, int y, LPCTSTR lpszString, int nCount)
{
    if (lpszString == NULL || nCount < 0)
        return FALSE;
    return ::TextOutW(m_hDC, x, y, lpszString, nCount);
}

BOOL CDC::TextOut(int x, int y, const CString& str)
{
    return TextOut(x, y, (LPCTSTR)str, str.GetLength());
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString,
                     UINT nCount, LPINT lpDxWidths)
{
    return ::ExtTextOutW(m_hDC, x, y, nOptions, lpRect, lpszString, lpszString != NULL ? nCount : 0,
                         lpDxWidths);
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str,
                     LPINT lpDxWidths)
{
    return ExtTextOut(x, y, nOptions, lpRect, (LPCTSTR)str, (UINT)str.GetLength(), lpDxWidths);
}

CSize CDC::TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                         LPINT lpnTabStopPositions, int nTabOrigin)
{
    if (lpszString == NULL)
        return CSize(0, 0);
    LONG extent = ::TabbedTextOutW(m_hDC, x, y, lpszString, nCount, nTabPositions,
                                   lpnTabStopPositions, nTabOrigin);
    return CSize(LOWORD(extent), HIWORD(extent));
}

CSize CDC::TabbedTextOut(int x, int y, const CString& str, int nTabPositions,
                         LPINT lpnTabStopPositions, int nTabOrigin)
{
    return TabbedTextOut(x, y, (LPCTSTR)str, str.GetLength(), nTabPositions, lpnTabStopPositions,
                         nTabOrigin);
}

int CDC::DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat)
{
    if (lpszString == NULL || lpRect == NULL)
        return 0;
    return ::DrawTextW(m_hDC, lpszString, nCount, lpRect, nFormat);
}

int CDC::DrawText(const CString& str, LPRECT lpRect, UINT nFormat)
{
    return DrawText((LPCTSTR)str, str.GetLength(), lpRect, nFormat);
}

int CDC::DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat,
                    LPDRAWTEXTPARAMS lpDTParams)
{
    if (lpszString == NULL || lpRect == NULL)
        return 0;
    return ::DrawTextExW(m_hDC, lpszString, nCount, lpRect, nFormat, lpDTParams);
}

int CDC::DrawTextEx(const CString& str, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams)
{
    // DrawTextEx may write an ellipsis into the string, so it draws from a private copy.
    CString copy(str);
    int length = copy.GetLength();
    int drawn = DrawTextEx(copy.GetBuffer(length + 4), length, lpRect, nFormat, lpDTParams);
    copy.ReleaseBuffer();
    return drawn;
}

BOOL CDC::GrayString(CBrush* pBrush, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int), LPARAM lpData,
                     int nCount, int x, int y, int nWidth, int nHeight)
{
    return ::GrayStringW(m_hDC, BrushHandle(pBrush), (GRAYSTRINGPROC)lpfnOutput, lpData, nCount,
                         x, y, nWidth, nHeight);
}

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const
{
    SIZE size = { 0, 0 };
    if (lpszString != NULL && nCount > 0)
        ::GetTextExtentPoint32W(QueryDC(this), lpszString, nCount, &size);
    return size;
}

CSize CDC::GetTextExtent(const CString& str) const
{
    return GetTextExtent((LPCTSTR)str, str.GetLength());
}

CSize CDC::GetOutputTextExtent(LPCTSTR lpszString, int nCount) const
{
    SIZE size = { 0, 0 };
    if (lpszString != NULL && nCount > 0)
        ::GetTextExtentPoint32W(m_hDC, lpszString, nCount, &size);
    return size;
}

CSize CDC::GetOutputTextExtent(const CString& str) const
{
    return GetOutputTextExtent((LPCTSTR)str, str.GetLength());
}

CSize CDC::GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions,
                               LPINT lpnTabStopPositions) const
{
    if (lpszString == NULL || nCount <= 0)
        return CSize(0, 0);
    DWORD extent = ::GetTabbedTextExtentW(QueryDC(this), lpszString, nCount, nTabPositions,
                                          lpnTabStopPositions);
    return CSize(LOWORD(extent), HIWORD(extent));
}

CSize CDC::GetTabbedTextExtent(const CString& str, int nTabPositions, LPINT lpnTabStopPositions) const
{
    return GetTabbedTextExtent((LPCTSTR)str, str.GetLength(), nTabPositions, lpnTabStopPositions);
}

UINT CDC::GetTextAlign() const
{
    return ::GetTextAlign(QueryDC(this));
}

UINT CDC::SetTextAlign(UINT nFlags)
{
    return SetOnBoth<UINT>(this, GDI_ERROR, [nFlags](HDC hDC) { return ::SetTextAlign(hDC, nFlags); });
}

int CDC::GetTextFace(int nCount, LPTSTR lpszFacename) const
{
    return ::GetTextFaceW(QueryDC(this), nCount, lpszFacename);
}

int CDC::GetTextFace(CString& rString) const
{
    int length = ::GetTextFaceW(QueryDC(this), 0, NULL);
    if (length <= 0) {
        rString.Empty();
        return 0;
    }
    int copied = ::GetTextFaceW(QueryDC(this), length, rString.GetBuffer(length));
    rString.ReleaseBuffer();
    return copied;
}

BOOL CDC::GetTextMetrics(LPTEXTMETRIC lpMetrics) const
{
    return lpMetrics != NULL && ::GetTextMetricsW(QueryDC(this), lpMetrics);
}

BOOL CDC::GetOutputTextMetrics(LPTEXTMETRIC lpMetrics) const
{
    return lpMetrics != NULL && ::GetTextMetricsW(m_hDC, lpMetrics);
}

int CDC::GetTextCharacterExtra() const
{
    return ::GetTextCharacterExtra(QueryDC(this));
}

int CDC::SetTextCharacterExtra(int nCharExtra)
{
    return SetOnBoth<int>(this, 0x80000000, [nCharExtra](HDC hDC) { return ::SetTextCharacterExtra(hDC, nCharExtra); });
}

int CDC::SetTextJustification(int nBreakExtra, int nBreakCount)
{
    return SetOnBoth<int>(this, 0, [=](HDC hDC) { return ::SetTextJustification(hDC, nBreakExtra, nBreakCount); });
}

BOOL CDC::GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const
{
    return lpBuffer != NULL && ::GetCharWidth32W(QueryDC(this), nFirstChar, nLastChar, lpBuffer);
}

/////////////////////////////////////////////////////////////////////////////
// Escapes

int CDC::Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData)
{
    return ::Escape(m_hDC, nEscape, nCount, lpszInData, lpOutData);
}

int CDC::Escape(int nEscape, int nInputSize, LPCSTR lpszInputData, int nOutputSize,
                LPSTR lpszOutputData)
{
    return ::ExtEscape(m_hDC, nEscape, nInputSize, lpszInputData, nOutputSize, lpszOutputData);
}
