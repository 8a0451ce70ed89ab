// CImageList: thin wrappers of the ImageList_* functions with MFC's handle map.
#include <zoafx/imagelist.h>
#include "gdimaps.h"

IMPLEMENT_DYNCREATE(CImageList, CObject)

CImageList::CImageList() : m_hImageList(NULL)
{
}

CImageList::~CImageList()
{
    DeleteImageList();
}

BOOL CImageList::Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow)
{
    if (m_hImageList != NULL)
        return FALSE;
    return Attach(::ImageList_Create(cx, cy, nFlags, nInitial, nGrow));
}

BOOL CImageList::Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask)
{
    return Create(MAKEINTRESOURCE(nBitmapID), cx, nGrow, crMask);
}

BOOL CImageList::Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask)
{
    if (m_hImageList != NULL)
        return FALSE;
    HINSTANCE hInstance = AfxFindResourceHandle(lpszBitmapID, RT_BITMAP);
    return Attach(::ImageList_LoadImageW(hInstance, lpszBitmapID, cx, nGrow, crMask, IMAGE_BITMAP,
                                         LR_CREATEDIBSECTION));
}

BOOL CImageList::Create(CImageList& imagelist1, int nImage1, CImageList& imagelist2, int nImage2,
                        int dx, int dy)
{
    if (m_hImageList != NULL)
        return FALSE;
    return Attach(::ImageList_Merge(imagelist1.m_hImageList, nImage1, imagelist2.m_hImageList,
                                    nImage2, dx, dy));
}

BOOL CImageList::Create(CImageList* pImageList)
{
    HIMAGELIST hSource = pImageList->GetSafeHandle();
    if (m_hImageList != NULL || hSource == NULL)
        return FALSE;
    return Attach(::ImageList_Duplicate(hSource));
}

CImageList* PASCAL CImageList::FromHandle(HIMAGELIST hImageList)
{
    return zoafx::ImageListFromHandle(hImageList);
}

CImageList* PASCAL CImageList::FromHandlePermanent(HIMAGELIST hImageList)
{
    return zoafx::ImageListFromHandlePermanent(hImageList);
}

void PASCAL CImageList::DeleteTempMap()
{
    zoafx::DeleteTempImageLists();
}

BOOL CImageList::Attach(HIMAGELIST hImageList)
{
    if (hImageList == NULL || m_hImageList != NULL)
        return FALSE;
    m_hImageList = hImageList;
    zoafx::MapPermanentImageList(hImageList, this);
    return TRUE;
}

HIMAGELIST CImageList::Detach()
{
    HIMAGELIST hImageList = m_hImageList;
    if (hImageList != NULL)
        zoafx::UnmapPermanentImageList(hImageList, this);
    m_hImageList = NULL;
    return hImageList;
}

BOOL CImageList::DeleteImageList()
{
    if (m_hImageList == NULL)
        return FALSE;
    return ::ImageList_Destroy(Detach());
}

int CImageList::GetImageCount() const
{
    return m_hImageList == NULL ? 0 : ::ImageList_GetImageCount(m_hImageList);
}

BOOL CImageList::SetImageCount(UINT uNewCount)
{
    return m_hImageList != NULL && ::ImageList_SetImageCount(m_hImageList, uNewCount);
}

COLORREF CImageList::SetBkColor(COLORREF cr)
{
    return m_hImageList == NULL ? CLR_NONE : ::ImageList_SetBkColor(m_hImageList, cr);
}

COLORREF CImageList::GetBkColor() const
{
    return m_hImageList == NULL ? CLR_NONE : ::ImageList_GetBkColor(m_hImageList);
}

BOOL CImageList::GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const
{
    if (m_hImageList == NULL || pImageInfo == NULL)
        return FALSE;
    return ::ImageList_GetImageInfo(m_hImageList, nImage, pImageInfo);
}

int CImageList::Add(CBitmap* pbmImage, CBitmap* pbmMask)
{
    HBITMAP hImage = (HBITMAP)pbmImage->GetSafeHandle();
    if (m_hImageList == NULL || hImage == NULL)
        return -1;
    return ::ImageList_Add(m_hImageList, hImage, (HBITMAP)pbmMask->GetSafeHandle());
}

int CImageList::Add(CBitmap* pbmImage, COLORREF crMask)
{
    HBITMAP hImage = (HBITMAP)pbmImage->GetSafeHandle();
    if (m_hImageList == NULL || hImage == NULL)
        return -1;
    return ::ImageList_AddMasked(m_hImageList, hImage, crMask);
}

int CImageList::Add(HICON hIcon)
{
    if (m_hImageList == NULL || hIcon == NULL)
        return -1;
    return ::ImageList_ReplaceIcon(m_hImageList, -1, hIcon);
}

BOOL CImageList::Remove(int nImage)
{
    return m_hImageList != NULL && ::ImageList_Remove(m_hImageList, nImage);
}

BOOL CImageList::Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask)
{
    HBITMAP hImage = (HBITMAP)pbmImage->GetSafeHandle();
    if (m_hImageList == NULL || hImage == NULL)
        return FALSE;
    return ::ImageList_Replace(m_hImageList, nImage, hImage, (HBITMAP)pbmMask->GetSafeHandle());
}

int CImageList::Replace(int nImage, HICON hIcon)
{
    if (m_hImageList == NULL || hIcon == NULL)
        return -1;
    return ::ImageList_ReplaceIcon(m_hImageList, nImage, hIcon);
}

HICON CImageList::ExtractIcon(int nImage)
{
    return m_hImageList == NULL ? NULL : ::ImageList_GetIcon(m_hImageList, nImage, ILD_NORMAL);
}

BOOL CImageList::Copy(int iDst, int iSrc, UINT uFlags)
{
    return m_hImageList != NULL && ::ImageList_Copy(m_hImageList, iDst, m_hImageList, iSrc, uFlags);
}

BOOL CImageList::Copy(int iDst, CImageList* pSrc, int iSrc, UINT uFlags)
{
    HIMAGELIST hSource = pSrc->GetSafeHandle();
    if (m_hImageList == NULL || hSource == NULL)
        return FALSE;
    return ::ImageList_Copy(m_hImageList, iDst, hSource, iSrc, uFlags);
}

BOOL CImageList::SetOverlayImage(int nImage, int nOverlay)
{
    return m_hImageList != NULL && ::ImageList_SetOverlayImage(m_hImageList, nImage, nOverlay);
}

BOOL CImageList::Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle)
{
    HDC hDC = pDC->GetSafeHdc();
    if (m_hImageList == NULL || hDC == NULL)
        return FALSE;
    return ::ImageList_Draw(m_hImageList, nImage, hDC, pt.x, pt.y, nStyle);
}

BOOL CImageList::DrawEx(CDC* pDC, int nImage, POINT pt, SIZE sz, COLORREF clrBk, COLORREF clrFg,
                        UINT nStyle)
{
    HDC hDC = pDC->GetSafeHdc();
    if (m_hImageList == NULL || hDC == NULL)
        return FALSE;
    return ::ImageList_DrawEx(m_hImageList, nImage, hDC, pt.x, pt.y, sz.cx, sz.cy, clrBk, clrFg,
                              nStyle);
}

BOOL CImageList::DrawIndirect(IMAGELISTDRAWPARAMS* pimldp)
{
    if (m_hImageList == NULL || pimldp == NULL)
        return FALSE;
    // The parameters always draw from this list, whatever handle the caller left in them.
    pimldp->himl = m_hImageList;
    return ::ImageList_DrawIndirect(pimldp);
}

BOOL CImageList::DrawIndirect(CDC* pDC, int nImage, POINT pt, SIZE sz, POINT ptOrigin, UINT fStyle,
                              DWORD dwRop, COLORREF rgbBack, COLORREF rgbFore, DWORD fState,
                              DWORD Frame, COLORREF crEffect)
{
    HDC hDC = pDC->GetSafeHdc();
    if (hDC == NULL)
        return FALSE;
    IMAGELISTDRAWPARAMS params;
    memset(&params, 0, sizeof(params));
    params.cbSize = sizeof(params);
    params.i = nImage;
    params.hdcDst = hDC;
    params.x = pt.x;
    params.y = pt.y;
    params.cx = sz.cx;
    params.cy = sz.cy;
    params.xBitmap = ptOrigin.x;
    params.yBitmap = ptOrigin.y;
    params.rgbBk = rgbBack;
    params.rgbFg = rgbFore;
    params.fStyle = fStyle;
    params.dwRop = dwRop;
    params.fState = fState;
    params.Frame = Frame;
    params.crEffect = crEffect;
    return DrawIndirect(&params);
}
