// PNG skin pictures composed once per state over background colours, and their shared store.
#include <afxwin.h>
#include <afxext.h>
#include <afxcmn.h>
#include <afxtempl.h>
// CPngImage lives in <afxtoolbarimages.h>, which expects the rest of MFC's control-bar support
// before it; the umbrella header brings it in that order, as a wizard-made MFC project does.
#include <afxcontrolbars.h>

#include "core/ZoThemeManager.h"
#include "ZoImageDC.h"
#include "ZoResourcePNG.h"

namespace ZoControls {

namespace {

// Width and height of a 32-bit picture; false for anything else (only those carry alpha).
bool ReadPictureSize(HBITMAP hbm, int& width, int& height)
{
    BITMAP bm;
    if (hbm == NULL || ::GetObjectW(hbm, sizeof(bm), &bm) == 0 || bm.bmBitsPixel != 32 || bm.bmWidth <= 0 ||
        bm.bmHeight <= 0)
        return false;
    width = bm.bmWidth;
    height = bm.bmHeight;
    return true;
}

// The picture's current pixels (B, G, R, A each), or null; the caller deletes them.
BYTE* ReadPicturePixels(HBITMAP hbm, int width, int height)
{
    const LONG byteCount = width * height * 4;
    BYTE* pixels = new BYTE[byteCount];
    if (::GetBitmapBits(hbm, byteCount, pixels) != byteCount) {
        delete[] pixels;
        return NULL;
    }
    return pixels;
}

// Every composition and release in the process, counted.
unsigned g_compositionCount = 0;

// A bitmap like `hbm` (a section with the same header, else a bitmap of the same format)
// holding `pixels` as GetBitmapBits gives them; null when it cannot be made.
HBITMAP CreatePictureLike(HBITMAP hbm, const BYTE* pixels)
{
    DIBSECTION section;
    ::ZeroMemory(&section, sizeof(section));
    const int got = ::GetObjectW(hbm, sizeof(section), &section);
    if (got < static_cast<int>(sizeof(BITMAP)))
        return NULL;
    const BITMAP& bm = section.dsBm;
    HBITMAP copy = NULL;
    if (got == static_cast<int>(sizeof(DIBSECTION))) {
        BITMAPINFO info;
        ::ZeroMemory(&info, sizeof(info));
        info.bmiHeader = section.dsBmih;
        void* bits = NULL;
        copy = ::CreateDIBSection(NULL, &info, DIB_RGB_COLORS, &bits, NULL, 0);
    } else {
        copy = ::CreateBitmap(bm.bmWidth, bm.bmHeight, bm.bmPlanes, bm.bmBitsPixel, NULL);
    }
    const LONG byteCount = bm.bmWidthBytes * bm.bmHeight;
    if (copy && pixels && ::SetBitmapBits(copy, byteCount, pixels) != byteCount) {
        ::DeleteObject(copy);
        copy = NULL;
    }
    return copy;
}

// A picture of its own with the pixels of `hbm`.
HBITMAP CopyPicture(HBITMAP hbm)
{
    BITMAP bm;
    if (::GetObjectW(hbm, sizeof(bm), &bm) == 0 || bm.bmWidthBytes <= 0 || bm.bmHeight <= 0)
        return NULL;
    const LONG byteCount = bm.bmWidthBytes * bm.bmHeight;
    BYTE* pixels = new BYTE[byteCount];
    HBITMAP copy = NULL;
    if (::GetBitmapBits(hbm, byteCount, pixels) == byteCount)
        copy = CreatePictureLike(hbm, pixels);
    delete[] pixels;
    return copy;
}

BLENDFUNCTION SourceAlphaBlend()
{
    BLENDFUNCTION blend = {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    return blend;
}

} // namespace

// ---- arithmetic -----------------------------------------------------------------------------

BYTE ZoComposeChannel(BYTE value, BYTE alpha, BYTE background)
{
    const float a = alpha / 255.0f;
    return static_cast<BYTE>(static_cast<int>(value * a + background * (1.0f - a)));
}

void ZoComposePixel(const BYTE* src, COLORREF background, BYTE alphaOut, BYTE* dst)
{
    const BYTE alpha = src[3];
    // The common pixels short-cut the arithmetic, which gives exactly these for them.
    if (alpha == 0 || alpha == 255) {
        const BYTE blue = alpha ? src[0] : GetBValue(background);
        const BYTE green = alpha ? src[1] : GetGValue(background);
        const BYTE red = alpha ? src[2] : GetRValue(background);
        dst[0] = blue;
        dst[1] = green;
        dst[2] = red;
        dst[3] = alphaOut;
        return;
    }
    dst[0] = ZoComposeChannel(src[0], alpha, GetBValue(background));
    dst[1] = ZoComposeChannel(src[1], alpha, GetGValue(background));
    dst[2] = ZoComposeChannel(src[2], alpha, GetRValue(background));
    dst[3] = alphaOut;
}

int ZoPngSourceRow(int vertUnits, int state)
{
    if (vertUnits == 2)
        return state == ToolButton_Disabled ? 1 : 0;
    return state;
}

int ZoThemeGroupStateCount(int slot)
{
    switch (slot) {
    case 5:
    case 9:
    case 34:
        return 4;
    case 13:
    case 18:
    case 23:
        return 5;
    case 28:
    case 31:
        return 3;
    default:
        return 0;
    }
}

// ---- CZoResourcePNGData ---------------------------------------------------------------------

CZoResourcePNGData* CZoResourcePNGData::_pSelf = NULL;

CZoResourcePNGData::CZoResourcePNGData() : m_mapImageData(10)
{
    m_mapImageData.InitHashTable(17);
}

unsigned CZoResourcePNGData::GetCompositionCount()
{
    return g_compositionCount;
}

HBITMAP CZoResourcePNGData::CopyDecodedPicture(UINT nID)
{
    HBITMAP decoded = NULL;
    if (!m_mapDecoded.Lookup(nID, decoded)) {
        CPngImage png;
        if (!png.Load(nID))
            return NULL;
        decoded = static_cast<HBITMAP>(png.Detach());
        if (decoded == NULL)
            return NULL;
        m_mapDecoded.SetAt(nID, decoded);
    }
    return CopyPicture(decoded);
}

CZoResourcePNGData::~CZoResourcePNGData()
{
    _freeAll();
}

bool CZoResourcePNGData::InitInstance()
{
    if (_pSelf == NULL)
        _pSelf = new CZoResourcePNGData;
    return _pSelf != NULL;
}

void CZoResourcePNGData::FreeInstance()
{
    delete _pSelf;
    _pSelf = NULL;
}

CZoResourcePNGData* CZoResourcePNGData::GetInstance()
{
    return _pSelf;
}

void CZoResourcePNGData::SetBackGroundColor(COLORREF clr, int n)
{
    for (int i = 0; i < n; ++i)
        m_aPendingColors.Add(clr);
}

void CZoResourcePNGData::SetBackGroundColor(const COLORREF* pClr, int n)
{
    if (pClr == NULL)
        return;
    for (int i = 0; i < n; ++i)
        m_aPendingColors.Add(pClr[i]);
}

void CZoResourcePNGData::SetImageData(HBITMAP hbm, int nStates)
{
    _doDyeBackgroundColor(hbm, nStates);
}

const BYTE* CZoResourcePNGData::GetImageData(HBITMAP hbm, E_ToolButtonStates state) const
{
    stImgData data;
    if (!m_mapImageData.Lookup(hbm, data) || state < 0 || state >= data.nCount)
        return NULL;
    return data.ppBuffers[state];
}

void CZoResourcePNGData::ReleaseImageData(HBITMAP hbm)
{
    stImgData data;
    if (!m_mapImageData.Lookup(hbm, data))
        return;
    for (int i = 0; i < data.nCount; ++i)
        delete[] data.ppBuffers[i];
    delete[] data.ppBuffers;
    m_mapImageData.RemoveKey(hbm);
    ++g_compositionCount;
}

void CZoResourcePNGData::_freeAll()
{
    POSITION pos = m_mapImageData.GetStartPosition();
    while (pos != NULL) {
        HBITMAP hbm = NULL;
        stImgData data;
        m_mapImageData.GetNextAssoc(pos, hbm, data);
        for (int i = 0; i < data.nCount; ++i)
            delete[] data.ppBuffers[i];
        delete[] data.ppBuffers;
    }
    m_mapImageData.RemoveAll();
    pos = m_mapDecoded.GetStartPosition();
    while (pos != NULL) {
        UINT id = 0;
        HBITMAP decoded = NULL;
        m_mapDecoded.GetNextAssoc(pos, id, decoded);
        ::DeleteObject(decoded);
    }
    m_mapDecoded.RemoveAll();
    ++g_compositionCount;
}

void CZoResourcePNGData::_doDyeBackgroundColor(HBITMAP hbm, int nStates)
{
    ReleaseImageData(hbm);
    // Without states the queued colours wait for the next composition.
    if (nStates < 1)
        return;

    int width = 0;
    int height = 0;
    BYTE* raw = ReadPictureSize(hbm, width, height) ? ReadPicturePixels(hbm, width, height) : NULL;
    if (raw != NULL) {
        const int pixelCount = width * height;
        stImgData data;
        data.nCount = nStates;
        data.ppBuffers = new BYTE*[nStates];
        for (int state = 0; state < nStates; ++state) {
            const COLORREF background = state < m_aPendingColors.GetSize() ? m_aPendingColors[state] : 0;
            BYTE* composed = new BYTE[pixelCount * 4];
            for (int i = 0; i < pixelCount; ++i)
                ZoComposePixel(raw + i * 4, background, 0xFF, composed + i * 4);
            data.ppBuffers[state] = composed;
        }
        m_mapImageData.SetAt(hbm, data);
        delete[] raw;
        ++g_compositionCount;
    }
    m_aPendingColors.RemoveAll();
}

// ---- CZoResourcePNGImage --------------------------------------------------------------------

CZoResourcePNGImage::CZoResourcePNGImage() : m_nStatesComposition(0), m_bStatesValid(false)
{
    ::ZeroMemory(m_ahStates, sizeof(m_ahStates));
}

CZoResourcePNGImage::CZoResourcePNGImage(HBITMAP hBitmap, bool bDeleteOnDestroy)
    : CZoResourceImage(hBitmap, bDeleteOnDestroy), m_nStatesComposition(0), m_bStatesValid(false)
{
    ::ZeroMemory(m_ahStates, sizeof(m_ahStates));
}

CZoResourcePNGImage::~CZoResourcePNGImage()
{
    _clearStateBitmaps();
    CZoResourcePNGData* store = CZoResourcePNGData::GetInstance();
    if (store != NULL && m_hBitmap != NULL)
        store->ReleaseImageData(m_hBitmap);
}

HBITMAP CZoResourcePNGImage::_loadPNG(UINT nID, int nStates)
{
    // Each picture is decoded once per store; every image gets a bitmap of its own, so that
    // each composes over its own colours.
    if (!CZoResourcePNGData::InitInstance())
        return NULL;
    HBITMAP hbm = CZoResourcePNGData::GetInstance()->CopyDecodedPicture(nID);
    if (hbm == NULL)
        return NULL;
    CZoResourcePNGData::GetInstance()->SetImageData(hbm, nStates);
    return hbm;
}

bool CZoResourcePNGImage::LoadResourceImage(UINT nID, int nHorzUnits, int nVertUnits)
{
    if (m_hBitmap != NULL) {
        // The old handle's compositions would otherwise outlive it in the store.
        CZoResourcePNGData* store = CZoResourcePNGData::GetInstance();
        if (store != NULL)
            store->ReleaseImageData(m_hBitmap);
    }
    _clearStateBitmaps();
    _releaseBitmap();
    HBITMAP hbm = _loadPNG(nID, nVertUnits);
    if (hbm == NULL)
        return false;
    _takeBitmap(hbm, nHorzUnits, nVertUnits);
    return true;
}

void CZoResourcePNGImage::DrawUnitImage(CDC& dc, int x, int y, int ux, int uy, COLORREF /*transparent*/) const
{
    DrawUnitImage(dc, x, y, GetUnitWidth(), GetUnitHeight(), ux, uy, RGB(255, 0, 255));
}

void CZoResourcePNGImage::DrawUnitImage(CDC& dc, int x, int y, int w, int h, int ux, int uy,
                                        COLORREF /*transparent*/) const
{
    const int row = ZoPngSourceRow(m_nVertUnits, uy);
    const ZoBlitRect cell = ZoUnitCellRect(m_nWidth, m_nHeight, m_nHorzUnits, m_nVertUnits, ux, row);
    _drawImageAlpha(dc, x, y, w, h, cell.x, cell.y, cell.w, cell.h, uy);
}

void CZoResourcePNGImage::_drawImageAlpha(CDC& dc, int x, int y, int w, int h, int srcX, int srcY, int srcW,
                                          int srcH, int state) const
{
    CZoResourcePNGData* store = CZoResourcePNGData::GetInstance();
    if (!IsLoaded() || store == NULL)
        return;
    const BYTE* stateBuffer = store->GetImageData(m_hBitmap, static_cast<E_ToolButtonStates>(state));
    if (stateBuffer == NULL)
        return;
    const HBITMAP hState = _stateBitmap(state, stateBuffer);
    if (hState != NULL) {
        // The composed pixels are opaque: at the cell's own size, blending them is a copy.
        CZoImageSourceDC source(dc, hState);
        if (!source.IsReady())
            return;
        if (w == srcW && h == srcH)
            dc.BitBlt(x, y, w, h, source.GetDC(), srcX, srcY, SRCCOPY);
        else
            dc.AlphaBlend(x, y, w, h, source.GetDC(), srcX, srcY, srcW, srcH, SourceAlphaBlend());
        return;
    }
    const LONG byteCount = m_nWidth * m_nHeight * 4;
    ::SetBitmapBits(m_hBitmap, byteCount, stateBuffer);
    {
        CZoImageSourceDC source(dc, m_hBitmap);
        if (source.IsReady())
            dc.AlphaBlend(x, y, w, h, source.GetDC(), srcX, srcY, srcW, srcH, SourceAlphaBlend());
    }
    // The resting state stays in the bitmap between draws.
    const BYTE* restingBuffer = store->GetImageData(m_hBitmap, ToolButton_Normal);
    if (restingBuffer != NULL)
        ::SetBitmapBits(m_hBitmap, byteCount, restingBuffer);
}

HBITMAP CZoResourcePNGImage::_stateBitmap(int state, const BYTE* buffer) const
{
    if (state < 0 || state >= kKeptStates)
        return NULL;
    const unsigned composition = CZoResourcePNGData::GetCompositionCount();
    if (!m_bStatesValid || m_nStatesComposition != composition) {
        _clearStateBitmaps();
        m_nStatesComposition = composition;
        m_bStatesValid = true;
        // As after every draw, the bitmap itself holds the resting state from now on.
        const BYTE* resting = CZoResourcePNGData::GetInstance()->GetImageData(m_hBitmap, ToolButton_Normal);
        if (resting != NULL)
            ::SetBitmapBits(m_hBitmap, m_nWidth * m_nHeight * 4, resting);
    }
    if (m_ahStates[state] == NULL)
        m_ahStates[state] = CreatePictureLike(m_hBitmap, buffer);
    return m_ahStates[state];
}

void CZoResourcePNGImage::_clearStateBitmaps() const
{
    for (int i = 0; i < kKeptStates; ++i) {
        if (m_ahStates[i] != NULL)
            ::DeleteObject(m_ahStates[i]);
        m_ahStates[i] = NULL;
    }
    m_bStatesValid = false;
}

void CZoResourcePNGImage::_setImageData(int nStates)
{
    CZoResourcePNGData* store = CZoResourcePNGData::GetInstance();
    if (IsLoaded() && store != NULL)
        store->SetImageData(m_hBitmap, nStates);
}

void CZoResourcePNGImage::SetBackgroundColor(COLORREF clr)
{
    CZoResourcePNGData* store = CZoResourcePNGData::GetInstance();
    if (store != NULL)
        store->SetBackGroundColor(clr, m_nVertUnits);
    _setImageData(m_nVertUnits);
}

void CZoResourcePNGImage::SetBackgroundColor(const COLORREF* pClr, int n)
{
    CZoResourcePNGData* store = CZoResourcePNGData::GetInstance();
    if (store != NULL)
        store->SetBackGroundColor(pClr, n);
    _setImageData(n);
}

void CZoResourcePNGImage::SetControlDefaultThema(E_ZoThemeColors slot)
{
    const int states = ZoThemeGroupStateCount(slot);
    CZoResourcePNGData* store = CZoResourcePNGData::GetInstance();
    const CZoThemeManager* theme = CZoThemeManager::GetInstance();
    // Without a theme manager the group composes over black.
    if (store != NULL && theme != NULL) {
        for (int i = 0; i < states; ++i)
            store->SetBackGroundColor(theme->GetGDIColor(static_cast<E_ZoThemeColors>(slot + i), ZoTheme_Default),
                                      1);
    }
    _setImageData(states);
}

void CZoResourcePNGImage::DrawImageOnImage(CDC& dc, int x, int y)
{
    int width = 0;
    int height = 0;
    if (!IsLoaded() || !ReadPictureSize(m_hBitmap, width, height))
        return;
    BYTE* pixels = ReadPicturePixels(m_hBitmap, width, height);
    if (pixels == NULL)
        return;
    for (int r = 0; r < height; ++r) {
        for (int c = 0; c < width; ++c) {
            BYTE* pixel = pixels + (r * width + c) * 4;
            const BYTE alphaOut = pixel[3] > 0 ? 0xFF : 0;
            ZoComposePixel(pixel, dc.GetPixel(x + c, y + r), alphaOut, pixel);
        }
    }
    ::SetBitmapBits(m_hBitmap, width * height * 4, pixels);
    delete[] pixels;
    // The next draw writes the resting state back into the bitmap, as it always did.
    _clearStateBitmaps();
    CZoImageSourceDC source(dc, m_hBitmap);
    if (source.IsReady())
        dc.AlphaBlend(x, y, width, height, source.GetDC(), 0, 0, width, height, SourceAlphaBlend());
}

void CZoResourcePNGImage::GetIOISize(DWORD& width, DWORD& height)
{
    width = IsLoaded() ? static_cast<DWORD>(m_nWidth) : 0;
    height = IsLoaded() ? static_cast<DWORD>(m_nHeight) : 0;
}

} // namespace ZoControls
