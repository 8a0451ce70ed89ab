// MFC-compatible <afxtoolbarimages.h>: CPngImage.
//
// CPngImage decodes a PNG (or any picture GDI+ reads) into a 32-bit top-down DIB section
// whose pixels are B, G, R, A with straight (not premultiplied) alpha, as GDI+ delivers
// PixelFormat32bppARGB; MFC premultiplies in a separate step of its toolbar images
// (CMFCToolBarImages::PreMultiplyAlpha), so a loaded CPngImage is straight there too.
// Blending such a bitmap with AlphaBlend and AC_SRC_ALPHA needs the colours premultiplied.
//
// MFC's own afxtoolbarimages.h does not compile on its own: it needs the control-bar support
// that <afxcontrolbars.h> gathers first. This one refuses the same way, so that a source which
// would break the first Visual Studio build breaks ours too.
#pragma once
#ifndef ZOAFX_CONTROLBARS_H
#error Include <afxcontrolbars.h>, which brings <afxtoolbarimages.h> with what it needs.
#endif
#include <afxwin.h>

class ZOAFX_API CPngImage : public CBitmap
{
public:
    CPngImage();
    virtual ~CPngImage();

    // A resource of type "PNG"; with hinstRes NULL it is looked up through the resource chain.
    BOOL Load(UINT uiResID, HINSTANCE hinstRes = NULL);
    BOOL Load(LPCTSTR lpszResourceName, HINSTANCE hinstRes = NULL);
    BOOL LoadFromFile(LPCTSTR lpszPath);
    BOOL LoadFromBuffer(LPBYTE lpBuffer, UINT uiSize);
};
