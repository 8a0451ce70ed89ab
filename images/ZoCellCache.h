// Skin cells drawn once into bitmaps of their own. Internal to the library.
// Classes in this file:
//   CZoCellCache   the last few cells of one picture that were drawn with a key colour, each
//                  already stretched to the size it was drawn at, so that drawing it again is
//                  one plain copy (or, where the cell shows the key colour, two plain copies
//                  through a mask) instead of a stretching keyed copy from the whole strip
#pragma once
#include <afxwin.h>

namespace ZoControls {

// One cell of a picture at one drawn size with one key colour.
struct ZoCellKey
{
    int srcX;
    int srcY;
    int srcW;
    int srcH;
    int w;
    int h;
    COLORREF transparent;
};

// Whether the 32-bit pixels (B, G, R, X each) hold `color` anywhere; X is not compared.
bool ZoPixelsHoldColor(const DWORD* pixels, int count, COLORREF color);

// Splits 32-bit pixels for a keyed copy made of two plain ones: `mask` gets all bits set where
// a pixel is `color` (X not compared) and none elsewhere, and those pixels become 0 in `pixels`.
// ANDing the mask into a target and then ORing the pixels leaves the target as it was under
// the key colour and the picture everywhere else.
void ZoSplitKeyedPixels(DWORD* pixels, DWORD* mask, int count, COLORREF color);

class CZoCellCache
{
public:
    CZoCellCache();
    ~CZoCellCache();

    // Draws cell `key` at (x, y) as a keyed copy from the picture `hSource` would: from the
    // cache, after making the cell from the picture when it is not there yet. False when the cell cannot be
    // cached (sizes out of range, no GDI objects): the caller draws it itself then.
    bool Draw(CDC& dc, int x, int y, const ZoCellKey& key, HBITMAP hSource);
    // Forgets every cell; the picture changed.
    void Clear();

private:
    CZoCellCache(const CZoCellCache&);
    CZoCellCache& operator=(const CZoCellCache&);

    struct Entry
    {
        ZoCellKey key;
        HBITMAP hBitmap;  // w x h, 32 bits per pixel; null for an unused entry
        HBITMAP hMask;    // where some pixel is the key colour: the mask of ZoSplitKeyedPixels
                          // (hBitmap then holds 0 there); null when the cell is copied whole
    };
    // Two whole nine-piece frames (a control's look in two states): fewer, and a frame's
    // own pieces would push each other out on every paint.
    enum { kEntries = 18 };

    Entry* _find(const ZoCellKey& key);
    Entry* _make(CDC& dc, const ZoCellKey& key, HBITMAP hSource);
    void _drawEntry(CDC& dc, int x, int y, const Entry& entry);
    static void _freeEntry(Entry& entry);

    Entry m_entries[kEntries];
    int m_nNext; // entry replaced next when all are used
    // A memory DC kept for copying the cells, made at the first draw: one per cell drawn would
    // cost more than the copy.
    HDC m_hDC;
    HGDIOBJ m_hOldBitmap;
};

} // namespace ZoControls
