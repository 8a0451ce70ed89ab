// The handle maps behind CGdiObject::FromHandle, CDC::FromHandle and CImageList::FromHandle.
#include "gdimaps.h"
#include <zoafx/handlemap.h>
#include <zoafx/imagelist.h>

namespace zoafx {

namespace {

CGdiObject* NewTempGdiObject(HGDIOBJ hObject)
{
    CGdiObject* pObject;
    switch (::GetObjectType(hObject)) {
    case OBJ_PEN:
    case OBJ_EXTPEN: pObject = new CPen; break;
    case OBJ_BRUSH: pObject = new CBrush; break;
    case OBJ_FONT: pObject = new CFont; break;
    case OBJ_BITMAP: pObject = new CBitmap; break;
    case OBJ_PAL: pObject = new CPalette; break;
    case OBJ_REGION: pObject = new CRgn; break;
    default: pObject = new CGdiObject; break;
    }
    pObject->m_hObject = hObject;
    return pObject;
}

void DetachTempGdiObject(CGdiObject* pObject)
{
    pObject->m_hObject = NULL;
}

CHandleMap<CGdiObject, HGDIOBJ>& GdiObjectMap()
{
    static CHandleMap<CGdiObject, HGDIOBJ> map(&NewTempGdiObject, &DetachTempGdiObject);
    return map;
}

CDC* NewTempDC(HDC hDC)
{
    CDC* pDC = new CDC;
    pDC->m_hDC = hDC;
    pDC->m_hAttribDC = hDC;
    return pDC;
}

void DetachTempDC(CDC* pDC)
{
    pDC->m_hDC = NULL;
    pDC->m_hAttribDC = NULL;
}

CHandleMap<CDC, HDC>& DCMap()
{
    static CHandleMap<CDC, HDC> map(&NewTempDC, &DetachTempDC);
    return map;
}

CImageList* NewTempImageList(HIMAGELIST hImageList)
{
    CImageList* pImageList = new CImageList;
    pImageList->m_hImageList = hImageList;
    return pImageList;
}

void DetachTempImageList(CImageList* pImageList)
{
    pImageList->m_hImageList = NULL;
}

CHandleMap<CImageList, HIMAGELIST>& ImageListMap()
{
    static CHandleMap<CImageList, HIMAGELIST> map(&NewTempImageList, &DetachTempImageList);
    return map;
}

template <class TObject, class THandle>
void RemoveIfRegistered(CHandleMap<TObject, THandle>& map, THandle h, TObject* pObject)
{
    if (map.LookupPermanent(h) == pObject)
        map.RemoveHandle(h);
}

} // namespace

CGdiObject* GdiObjectFromHandle(HGDIOBJ hObject)
{
    return GdiObjectMap().FromHandle(hObject);
}

void DeleteTempGdiObjects()
{
    GdiObjectMap().DeleteTemp();
}

void MapPermanentGdiObject(HGDIOBJ hObject, CGdiObject* pObject)
{
    GdiObjectMap().SetPermanent(hObject, pObject);
}

void UnmapPermanentGdiObject(HGDIOBJ hObject, CGdiObject* pObject)
{
    RemoveIfRegistered(GdiObjectMap(), hObject, pObject);
}

CDC* DCFromHandle(HDC hDC)
{
    return DCMap().FromHandle(hDC);
}

void DeleteTempDCs()
{
    DCMap().DeleteTemp();
}

void MapPermanentDC(HDC hDC, CDC* pDC)
{
    DCMap().SetPermanent(hDC, pDC);
}

void UnmapPermanentDC(HDC hDC, CDC* pDC)
{
    RemoveIfRegistered(DCMap(), hDC, pDC);
}

CImageList* ImageListFromHandle(HIMAGELIST hImageList)
{
    return ImageListMap().FromHandle(hImageList);
}

CImageList* ImageListFromHandlePermanent(HIMAGELIST hImageList)
{
    return ImageListMap().LookupPermanent(hImageList);
}

void DeleteTempImageLists()
{
    ImageListMap().DeleteTemp();
}

void MapPermanentImageList(HIMAGELIST hImageList, CImageList* pImageList)
{
    ImageListMap().SetPermanent(hImageList, pImageList);
}

void UnmapPermanentImageList(HIMAGELIST hImageList, CImageList* pImageList)
{
    RemoveIfRegistered(ImageListMap(), hImageList, pImageList);
}

} // namespace zoafx
