#include "controls/ZoSliderMath.h"

#include <commctrl.h>

#include <cmath>

namespace ZoControls {

namespace {

const UINT kTickBlock = 32;

// Capacity for `count` entries: the next multiple of the block above count.
UINT capacityAbove(UINT count) { return (count + kTickBlock) / kTickBlock * kTickBlock; }

bool usableRatio(float ratio) { return ratio > 0.0f && std::isfinite(ratio); }

} // namespace

CString ZoSliderThumbStripName(DWORD style)
{
    if (style & TBS_NOTHUMB)
        return CString();
    const bool vertical = (style & TBS_VERT) != 0;
    const bool topOrLeft = (style & TBS_TOP) != 0; // TBS_LEFT is the same bit
    const bool both = (style & TBS_BOTH) != 0;
    CString name(L"BMP_ZO_SLIDERNORMAL_");
    if (!vertical)
        return name + (topOrLeft ? L"HOR_LEFT" : both ? L"HOR_BOTH" : L"HOR_RIGHT");
    const bool downIsLeft = (style & TBS_DOWNISLEFT) != 0;
    if (topOrLeft)
        return name + (downIsLeft ? L"VER_DOWN" : L"VER_UP");
    if (both)
        return name + L"VER_BOTH";
    return name + (downIsLeft ? L"VER_UP" : L"VER_DOWN");
}

void ZoTickListInit(ZoTickList& list)
{
    list.pTicks = NULL;
    list.count = 0;
    list.capacity = 0;
}

void ZoTickListClear(ZoTickList& list)
{
    delete[] list.pTicks;
    ZoTickListInit(list);
}

bool ZoTickListInsert(ZoTickList& list, int pos, int rangeMin, int rangeMax)
{
    if (pos <= rangeMin || pos >= rangeMax)
        return false;
    UINT at = 0;
    while (at < list.count && list.pTicks[at] < pos)
        ++at;
    if (at < list.count && list.pTicks[at] == pos)
        return true;
    if (list.count >= list.capacity)
    {
        const UINT capacity = capacityAbove(list.count);
        int* pGrown = new int[capacity];
        for (UINT i = 0; i < list.count; ++i)
            pGrown[i] = list.pTicks[i];
        delete[] list.pTicks;
        list.pTicks = pGrown;
        list.capacity = capacity;
    }
    for (UINT i = list.count; i > at; --i)
        list.pTicks[i] = list.pTicks[i - 1];
    list.pTicks[at] = pos;
    ++list.count;
    return true;
}

void ZoTickListFill(ZoTickList& list, int rangeMin, int rangeMax, int frequency)
{
    ZoTickListClear(list);
    if (frequency < 1)
        return;
    // 64-bit: a range spanning most of int must not overflow.
    const long long span = (long long)rangeMax - rangeMin - 1;
    long long count = span > 0 ? span / frequency : 0;
    if (count > (long long)ZoMaxAutoTicks)
        count = ZoMaxAutoTicks;
    list.capacity = capacityAbove((UINT)count);
    list.pTicks = new int[list.capacity];
    for (long long k = 1; k <= count; ++k)
        list.pTicks[list.count++] = (int)(rangeMin + k * frequency);
}

int ZoSliderTickGap(float zoom) { return (int)(zoom + 0.5); }

int ZoSliderTickLength(float zoom) { return (int)(zoom * 4 + 0.5); }

int ZoSliderTickPixel(int tick, int rangeMin, int rangeMax, int channelStart, int channelEnd, int thumbLength)
{
    const float f = rangeMax != rangeMin ? (float)(tick - rangeMin) / (float)(rangeMax - rangeMin) : 0.0f;
    const int travel = channelEnd - channelStart - thumbLength;
    return channelStart + thumbLength / 2 + (int)(f * travel + 0.5);
}

int ZoSliderFirstTickPixel(int channelStart, int thumbLength) { return channelStart + thumbLength / 2; }

int ZoSliderLastTickPixel(int channelEnd, int thumbLength) { return channelEnd - thumbLength / 2; }

int ZoSliderSelectionOffset(int value, int rangeMin, int rangeMax, int channelWidth)
{
    const float ratio = ZoRangeRatio(rangeMin, rangeMax, channelWidth);
    if (!usableRatio(ratio))
        return 0;
    return (int)(value / ratio);
}

float ZoRangeRatio(int rangeMin, int rangeMax, int channelWidth)
{
    if (channelWidth == 0)
        return 0.0f;
    return (float)(rangeMax - rangeMin) / (float)channelWidth;
}

int ZoRangeOffsetToValue(int offset, float ratio)
{
    if (!usableRatio(ratio))
        return 0;
    return (int)(double(ratio * offset) + 0.05 + 0.5);
}

int ZoRangeValueToOffset(int value, float ratio)
{
    if (!usableRatio(ratio))
        return 0;
    return (int)(value / ratio + 0.05f + 0.5f);
}

CRect ZoRangeBoundRect(CPoint pt, int size, bool left)
{
    const int outer = (int)(1.5 * size);
    const int inner = (int)(0.8 * size);
    return left ? CRect(pt.x - outer, pt.y - 2 * size, pt.x + inner, pt.y + size)
                : CRect(pt.x - inner, pt.y - 2 * size, pt.x + outer, pt.y + size);
}

CRect ZoRangeThumbAreaRect(const CRect& thumb, int size)
{
    return CRect(thumb.left - size, thumb.top - size / 2, thumb.right + size, thumb.bottom + size / 2);
}

int ZoRangeHitTest(CPoint pt, const CRect& thumb, const CRect& leftBound, const CRect& rightBound,
                   const CRect& channel, const CRect& thumbArea)
{
    const int quarter = channel.Height() / 4;
    const CRect extended(channel.left, channel.top - quarter, channel.right, channel.bottom + quarter);
    if (thumb.PtInRect(pt))
        return ZoRangeHit_Thumb;
    if (leftBound.PtInRect(pt))
        return ZoRangeHit_LeftBound;
    if (rightBound.PtInRect(pt))
        return ZoRangeHit_RightBound;
    if (extended.PtInRect(pt))
        return ZoRangeHit_Channel;
    if (thumbArea.PtInRect(pt))
        return ZoRangeHit_ThumbArea;
    return ZoRangeHit_None;
}

int ZoRangeDragLeft(int value, int end, int rangeMin)
{
    const int start = value < end ? value : end;
    return start < rangeMin ? rangeMin : start;
}

int ZoRangeDragRight(int value, int start, int rangeMax)
{
    const int end = value > start ? value : start;
    return end > rangeMax ? rangeMax : end;
}

CRect ZoSliderFocusRect(const CRect& client, const CRect& channel, const CRect& thumb)
{
    const int kRoom = 2;
    CRect around;
    around.UnionRect(&channel, &thumb);
    around.InflateRect(kRoom, kRoom);
    CRect inside;
    if (!inside.IntersectRect(&around, &client))
        return CRect(0, 0, 0, 0);
    return inside;
}

} // namespace ZoControls
