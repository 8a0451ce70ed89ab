// The arithmetic of the slider and the range slider as plain functions: the thumb strip for a
// style, the slider's own tick list, tick positions and tick lengths, the selection span, the
// range slider's value <-> pixel conversions, its sensitive rectangles, hit test and bound
// dragging. Every division is guarded: an empty range or a channel without width gives 0.
#pragma once
#include <afxwin.h>

#include "core/ZoCtrlExport.h"

namespace ZoControls {

// Resource name of the thumb strip for trackbar style `style`; empty with TBS_NOTHUMB. Vertical
// sliders without TBS_BOTH get names ending in "UP" or "DOWN", which the library does not ship:
// such a slider draws no thumb unless the host supplies the bitmap.
ZOCTRL_API CString ZoSliderThumbStripName(DWORD style);

// The slider's own list of interior ticks, ascending, without the two end ticks.
struct ZoTickList
{
    int* pTicks;
    UINT count;
    UINT capacity;
};

ZOCTRL_API void ZoTickListInit(ZoTickList& list);
// Frees the array; count and capacity 0.
ZOCTRL_API void ZoTickListClear(ZoTickList& list);
// Inserts `pos` in order. False when it is not strictly inside (rangeMin, rangeMax); true without
// change when it is already there. A full list grows to the next multiple of 32 above count.
ZOCTRL_API bool ZoTickListInsert(ZoTickList& list, int pos, int rangeMin, int rangeMax);
// Replaces the list by rangeMin + k x frequency (k = 1, 2, ...) below rangeMax; empty for a
// frequency below 1. Very long lists are cut at ZoMaxAutoTicks.
ZOCTRL_API void ZoTickListFill(ZoTickList& list, int rangeMin, int rangeMax, int frequency);
const UINT ZoMaxAutoTicks = 1u << 16;

// Gap between thumb and tick, and tick length, for a zoom factor: 1/4, 1/5, 2/6 on the three
// size classes.
ZOCTRL_API int ZoSliderTickGap(float zoom);
ZOCTRL_API int ZoSliderTickLength(float zoom);

// Pixel of tick value `tick` along a channel [channelStart, channelEnd) with a thumb
// `thumbLength` long: the channel start plus half a thumb plus the value's share of the travel.
// An empty range places every tick at the first end.
ZOCTRL_API int ZoSliderTickPixel(int tick, int rangeMin, int rangeMax, int channelStart, int channelEnd,
                                 int thumbLength);
// The two end ticks: half a thumb inside either end of the channel.
ZOCTRL_API int ZoSliderFirstTickPixel(int channelStart, int thumbLength);
ZOCTRL_API int ZoSliderLastTickPixel(int channelEnd, int thumbLength);

// Where a focused slider draws its focus rectangle: around channel and thumb with a little
// room, kept inside the client area so that all four sides show.
ZOCTRL_API CRect ZoSliderFocusRect(const CRect& client, const CRect& channel, const CRect& thumb);

// Offset of selection value `value` from the channel's left edge. The range minimum is not
// subtracted: the span is measured from value 0. 0 for an empty range or channel.
ZOCTRL_API int ZoSliderSelectionOffset(int value, int rangeMin, int rangeMax, int channelWidth);

// Values per pixel of the range slider; 0 for an empty range or a channel without width.
ZOCTRL_API float ZoRangeRatio(int rangeMin, int rangeMax, int channelWidth);
// Pixel offset from the channel's left edge to a value, and back. Both round with an extra
// 0.05 and measure from value 0, not from the range minimum. A zero ratio gives 0.
ZOCTRL_API int ZoRangeOffsetToValue(int offset, float ratio);
ZOCTRL_API int ZoRangeValueToOffset(int value, float ratio);

// Hit codes of the range slider.
enum E_ZoRangeHit
{
    ZoRangeHit_None = -1,
    ZoRangeHit_LeftBound = 0,
    ZoRangeHit_RightBound = 1,
    ZoRangeHit_ThumbArea = 2,
    ZoRangeHit_Thumb = 3,
    ZoRangeHit_Channel = 4
};

// Sensitive rectangle of a bound at `pt` for thumb width `size`; it reaches further outward.
ZOCTRL_API CRect ZoRangeBoundRect(CPoint pt, int size, bool left);
// The thumb grown by `size` left and right and by size / 2 up and down (the slider passes twice
// the thumb width).
ZOCTRL_API CRect ZoRangeThumbAreaRect(const CRect& thumb, int size);
// First match wins: thumb, left bound, right bound, channel (grown by a quarter of its height
// above and below), thumb area.
ZOCTRL_API int ZoRangeHitTest(CPoint pt, const CRect& thumb, const CRect& leftBound, const CRect& rightBound,
                              const CRect& channel, const CRect& thumbArea);
// New selection start when the left bound is dragged to `value`: never past `end`, never
// below rangeMin. New end for the right bound: never before `start`, never above rangeMax.
ZOCTRL_API int ZoRangeDragLeft(int value, int end, int rangeMin);
ZOCTRL_API int ZoRangeDragRight(int value, int start, int rangeMax);

} // namespace ZoControls
