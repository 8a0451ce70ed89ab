// PNG skin pictures with per-pixel alpha:
//   CZoResourcePNGData    process-wide store of each picture composed over one background colour
//                         per drawing state, keyed by the picture's bitmap handle
//   CZoResourcePNGImage   a PNG resource cut into cells whose rows are drawing states
// and the arithmetic behind them (one pixel's composition, the row drawn for a state, the
// theme colour groups) as plain functions.
#pragma once
#include <afxwin.h>
#include <afxtempl.h>

#include "core/ZoCtrlExport.h"
#include "core/ZoThemeTypes.h"
#include "images/ZoResourceImage.h"

namespace ZoControls {

// Drawing states of tool-button pictures: the button states, with row 3 kept for another use
// and the disabled picture in row 4.
enum E_ToolButtonStates
{
    ToolButton_Normal = 0,
    ToolButton_Hot = 1,
    ToolButton_Pressed = 2,
    ToolButton_Extra = 3,    // drawn only where a button allows row 3
    ToolButton_Disabled = 4,
    ToolButton_Count = 5
};

// One channel of a picture laid over a background: trunc(value x a + back x (1 - a)), a = alpha / 255.
ZOCTRL_API BYTE ZoComposeChannel(BYTE value, BYTE alpha, BYTE background);

// Pixel `src` (B, G, R, A) laid over `background`, written to `dst` as B, G, R, `alphaOut`.
ZOCTRL_API void ZoComposePixel(const BYTE* src, COLORREF background, BYTE alphaOut, BYTE* dst);

// Picture row drawn for `state`: the state itself, except that a two-row picture carries state 4
// in row 1 and every other state in row 0.
ZOCTRL_API int ZoPngSourceRow(int vertUnits, int state);

// Number of states of the theme colour group starting at colour slot `slot` (colours slot, slot+1,
// ...); 0 for a slot that starts no group.
ZOCTRL_API int ZoThemeGroupStateCount(int slot);

#ifdef _MSC_VER
#pragma warning(push)
#pragma warning(disable : 4251) // the collections are private members, never used by the host
#endif

class ZOCTRL_API CZoResourcePNGData
{
public:
    // The composed pictures of one bitmap: one opaque width x height x 4 buffer per state.
    struct stImgData
    {
        BYTE** ppBuffers;
        int nCount;
    };

    static bool InitInstance();
    static void FreeInstance();
    static CZoResourcePNGData* GetInstance();

    // Background colours for the next composition, in state order (nothing when n < 1).
    void SetBackGroundColor(COLORREF clr, int n);
    void SetBackGroundColor(const COLORREF* pClr, int n);
    // Composes `hbm` over the queued colours for nStates states (black for states without one).
    void SetImageData(HBITMAP hbm, int nStates);
    // The composed pixels of `state`; null when `hbm` has no entry or the state has no buffer.
    const BYTE* GetImageData(HBITMAP hbm, E_ToolButtonStates state) const;
    void ReleaseImageData(HBITMAP hbm);

    // A picture of its own for the caller (who deletes it) with the pixels of PNG resource
    // `nID`, decoded only the first time it is asked for; null when the resource is missing.
    HBITMAP CopyDecodedPicture(UINT nID);
    // Counts every composition and release of any picture in the process, so that a copy made
    // from composed buffers can tell that it is out of date.
    static unsigned GetCompositionCount();

private:
    CZoResourcePNGData();
    ~CZoResourcePNGData();
    CZoResourcePNGData(const CZoResourcePNGData&);
    CZoResourcePNGData& operator=(const CZoResourcePNGData&);

    void _doDyeBackgroundColor(HBITMAP hbm, int nStates);
    void _freeAll();

    CMap<HBITMAP, HBITMAP, stImgData, stImgData&> m_mapImageData;
    CArray<COLORREF, COLORREF> m_aPendingColors;
    // The decoded pictures by resource id, owned; handed out only as copies.
    CMap<UINT, UINT, HBITMAP, HBITMAP> m_mapDecoded;

    static CZoResourcePNGData* _pSelf;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif

class ZOCTRL_API CZoResourcePNGImage : public CZoResourceImage
{
public:
    CZoResourcePNGImage();
    // Adopts a 32-bit picture with alpha as one cell (compose it with SetBackgroundColor).
    CZoResourcePNGImage(HBITMAP hBitmap, bool bDeleteOnDestroy);
    ~CZoResourcePNGImage() override;

    using CZoResourceImage::LoadResourceImage;
    // PNG resource `nID`, its rows composed as states over the queued colours.
    bool LoadResourceImage(UINT nID, int nHorzUnits, int nVertUnits) override;
    // The colour is ignored: the picture carries its own alpha.
    void DrawUnitImage(CDC& dc, int x, int y, int ux, int uy, COLORREF transparent) const override;
    // Column ux of state uy's composition stretched into (x, y, w, h).
    void DrawUnitImage(CDC& dc, int x, int y, int w, int h, int ux, int uy, COLORREF transparent) const override;

    // One colour for every row.
    void SetBackgroundColor(COLORREF clr);
    // One colour per state; the picture is composed for n states.
    void SetBackgroundColor(const COLORREF* pClr, int n);
    // The per-state theme colours of the group starting at `slot` (5, 9, 13, 18, 23, 28, 31, 34);
    // any other slot composes no state at all and so releases the picture's compositions.
    void SetControlDefaultThema(E_ZoThemeColors slot);
    // Lays the picture over what `dc` already shows at (x, y) and draws it there. The bitmap keeps
    // the composed pixels: reload the picture to get its alpha back.
    void DrawImageOnImage(CDC& dc, int x, int y);
    void GetIOISize(DWORD& width, DWORD& height);

private:
    static HBITMAP _loadPNG(UINT nID, int nStates);
    void _drawImageAlpha(CDC& dc, int x, int y, int w, int h, int srcX, int srcY, int srcW, int srcH,
                         int state) const;
    void _setImageData(int nStates);
    // The composed picture of `state` as a bitmap of its own, made once per composition; null
    // for a state beyond the kept ones.
    HBITMAP _stateBitmap(int state, const BYTE* buffer) const;
    void _clearStateBitmaps() const;

    enum { kKeptStates = 8 };
    // Bitmaps of the composed states, so that a draw copies a cell instead of writing the
    // whole picture into the bitmap twice; made from the compositions counted up to
    // m_nStatesComposition.
    mutable HBITMAP m_ahStates[kKeptStates];
    mutable unsigned m_nStatesComposition;
    mutable bool m_bStatesValid;
};

} // namespace ZoControls
