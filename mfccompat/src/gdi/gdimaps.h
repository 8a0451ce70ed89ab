// Internal: the handle maps of device contexts, GDI objects and image lists.
#pragma once
#include <afxwin.h>
#include <commctrl.h>

class CImageList;

namespace zoafx {

// FromHandle: the permanent wrapper, or a temporary one of the class matching the handle's
// object type (CPen for a pen, ...), so that the typed FromHandle casts are sound.
CGdiObject* GdiObjectFromHandle(HGDIOBJ hObject);
void DeleteTempGdiObjects();
void MapPermanentGdiObject(HGDIOBJ hObject, CGdiObject* pObject);
// Forgets the handle only while pObject is its registered wrapper.
void UnmapPermanentGdiObject(HGDIOBJ hObject, CGdiObject* pObject);

CDC* DCFromHandle(HDC hDC);
void DeleteTempDCs();
void MapPermanentDC(HDC hDC, CDC* pDC);
void UnmapPermanentDC(HDC hDC, CDC* pDC);

CImageList* ImageListFromHandle(HIMAGELIST hImageList);
CImageList* ImageListFromHandlePermanent(HIMAGELIST hImageList);
void DeleteTempImageLists();
void MapPermanentImageList(HIMAGELIST hImageList, CImageList* pImageList);
void UnmapPermanentImageList(HIMAGELIST hImageList, CImageList* pImageList);

} // namespace zoafx
