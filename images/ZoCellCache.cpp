// Skin cells drawn once into bitmaps of their own.
#include <afxwin.h>

#include "ZoCellCache.h"
#include "ZoImageDC.h"

namespace ZoControls {

namespace {

// Larger cells are drawn straight from the strip: their copies would cost more memory than
// the keyed copy costs time.
const int kMaxCachedPixels = 512 * 512;

bool SameKey(const ZoCellKey& a, const ZoCellKey& b)
{
    return a.srcX == b.srcX && a.srcY == b.srcY && a.srcW == b.srcW && a.srcH == b.srcH && a.w == b.w &&
           a.h == b.h && a.transparent == b.transparent;
}

bool Cacheable(const ZoCellKey& key)
{
    return key.srcW > 0 && key.srcH > 0 && key.w > 0 && key.h > 0 && key.w <= kMaxCachedPixels / key.h;
}

// A top-down 32-bit section of w x h; `bits` receives its pixels.
HBITMAP CreateSection(int w, int h, DWORD*& bits)
{
    BITMAPINFO info;
    ::ZeroMemory(&info, sizeof(info));
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = w;
    info.bmiHeader.biHeight = -h;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* pBits = NULL;
    const HBITMAP hBitmap = ::CreateDIBSection(NULL, &info, DIB_RGB_COLORS, &pBits, NULL, 0);
    bits = static_cast<DWORD*>(pBits);
    return bits ? hBitmap : NULL;
}

} // namespace

bool ZoPixelsHoldColor(const DWORD* pixels, int count, COLORREF color)
{
    const DWORD wanted = (static_cast<DWORD>(GetRValue(color)) << 16) | (static_cast<DWORD>(GetGValue(color)) << 8) |
                         GetBValue(color);
    for (int i = 0; i < count; ++i)
        if ((pixels[i] & 0x00FFFFFF) == wanted)
            return true;
    return false;
}

void ZoSplitKeyedPixels(DWORD* pixels, DWORD* mask, int count, COLORREF color)
{
    const DWORD wanted = (static_cast<DWORD>(GetRValue(color)) << 16) | (static_cast<DWORD>(GetGValue(color)) << 8) |
                         GetBValue(color);
    for (int i = 0; i < count; ++i) {
        const bool keyed = (pixels[i] & 0x00FFFFFF) == wanted;
        mask[i] = keyed ? 0xFFFFFFFF : 0;
        if (keyed)
            pixels[i] = 0;
    }
}

CZoCellCache::CZoCellCache() : m_nNext(0), m_hDC(NULL), m_hOldBitmap(NULL)
{
    ::ZeroMemory(m_entries, sizeof(m_entries));
}

CZoCellCache::~CZoCellCache()
{
    Clear();
    if (m_hDC)
        ::DeleteDC(m_hDC);
}

void CZoCellCache::Clear()
{
    if (m_hDC && m_hOldBitmap) {
        ::SelectObject(m_hDC, m_hOldBitmap);
        m_hOldBitmap = NULL;
    }
    for (int i = 0; i < kEntries; ++i)
        _freeEntry(m_entries[i]);
    m_nNext = 0;
}

void CZoCellCache::_freeEntry(Entry& entry)
{
    if (entry.hBitmap)
        ::DeleteObject(entry.hBitmap);
    if (entry.hMask)
        ::DeleteObject(entry.hMask);
    entry.hBitmap = NULL;
    entry.hMask = NULL;
}

bool CZoCellCache::Draw(CDC& dc, int x, int y, const ZoCellKey& key, HBITMAP hSource)
{
    if (!Cacheable(key))
        return false;
    const Entry* pEntry = _find(key);
    if (!pEntry)
        pEntry = _make(dc, key, hSource);
    if (!pEntry)
        return false;
    _drawEntry(dc, x, y, *pEntry);
    return true;
}

CZoCellCache::Entry* CZoCellCache::_find(const ZoCellKey& key)
{
    for (int i = 0; i < kEntries; ++i)
        if (m_entries[i].hBitmap && SameKey(m_entries[i].key, key))
            return &m_entries[i];
    return NULL;
}

CZoCellCache::Entry* CZoCellCache::_make(CDC& dc, const ZoCellKey& key, HBITMAP hSource)
{
    DWORD* bits = NULL;
    const HBITMAP hBitmap = CreateSection(key.w, key.h, bits);
    if (!hBitmap)
        return NULL;
    bool made = false;
    {
        // The keyed copy itself stretches the cell, over the key colour: what it leaves out
        // stays the key colour, everything else is exactly what it would have drawn.
        CZoImageSourceDC source(dc, hSource);
        CZoImageSourceDC cell(dc, hBitmap);
        if (source.IsReady() && cell.IsReady()) {
            cell.GetDC()->FillSolidRect(0, 0, key.w, key.h, key.transparent);
            made = cell.GetDC()->TransparentBlt(0, 0, key.w, key.h, source.GetDC(), key.srcX, key.srcY, key.srcW,
                                                key.srcH, key.transparent) != FALSE;
        }
    }
    ::GdiFlush();
    // A keyed copy costs the platform temporary bitmaps on every call; a cell that shows the
    // key colour is drawn through a mask instead, made here once.
    HBITMAP hMask = NULL;
    if (made && ZoPixelsHoldColor(bits, key.w * key.h, key.transparent)) {
        DWORD* maskBits = NULL;
        hMask = CreateSection(key.w, key.h, maskBits);
        if (hMask)
            ZoSplitKeyedPixels(bits, maskBits, key.w * key.h, key.transparent);
        else
            made = false;
    }
    if (!made) {
        ::DeleteObject(hBitmap);
        return NULL;
    }
    Entry& entry = m_entries[m_nNext];
    m_nNext = (m_nNext + 1) % kEntries;
    if (entry.hBitmap) {
        if (m_hDC && m_hOldBitmap)
            ::SelectObject(m_hDC, m_hOldBitmap);
        m_hOldBitmap = NULL;
        _freeEntry(entry);
    }
    entry.key = key;
    entry.hBitmap = hBitmap;
    entry.hMask = hMask;
    return &entry;
}

void CZoCellCache::_drawEntry(CDC& dc, int x, int y, const Entry& entry)
{
    if (!m_hDC)
        m_hDC = ::CreateCompatibleDC(NULL);
    if (!m_hDC)
        return;
    const ZoCellKey& key = entry.key;
    const HDC hTarget = dc.GetSafeHdc();
    if (entry.hMask) {
        const HGDIOBJ hPrevious = ::SelectObject(m_hDC, entry.hMask);
        if (!hPrevious)
            return;
        if (!m_hOldBitmap)
            m_hOldBitmap = hPrevious;
        ::BitBlt(hTarget, x, y, key.w, key.h, m_hDC, 0, 0, SRCAND);
    }
    const HGDIOBJ hPrevious = ::SelectObject(m_hDC, entry.hBitmap);
    if (!hPrevious)
        return;
    if (!m_hOldBitmap)
        m_hOldBitmap = hPrevious;
    ::BitBlt(hTarget, x, y, key.w, key.h, m_hDC, 0, 0, entry.hMask ? SRCPAINT : SRCCOPY);
}

} // namespace ZoControls
