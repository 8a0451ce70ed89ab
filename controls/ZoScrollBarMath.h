// Geometry and arithmetic of CZoScrollBar as plain functions: part rectangles from the client
// rectangle, thumb length and position conversions, hit-testing and the next scroll position of
// a click. Coordinates "along the axis" are y for a vertical bar and x for a horizontal one.
#pragma once
#include <afxwin.h>

#include "core/ZoCtrlExport.h"

namespace ZoControls {

// Part indexes; the numbers equal the hit codes of CZoScrollBar (0 is the spare rectangle).
enum
{
    ZoScrollPart_None = 0,
    ZoScrollPart_Prev = 1,
    ZoScrollPart_Next = 2,
    ZoScrollPart_Thumb = 3,
    ZoScrollPart_Before = 4,
    ZoScrollPart_After = 5,
    ZoScrollPart_Count = 6
};

// The bar's rectangles indexed by part, and the thumb length in pixels.
struct ZoScrollLayout
{
    RECT part[ZoScrollPart_Count];
    int thumbLength;
};

// Gap between an arrow button's drawn cell and its hit area: 0 without buttons, else 4 x zoom.
ZOCTRL_API int ZoScrollGapSize(bool buttonsLoaded, float zoom);

// Button and thumb rectangles of a freshly sized bar; `buttonUnit` and `thumbUnit` are the unit
// lengths along the axis. A bar too short for a thumb gets two half-length buttons.
ZOCTRL_API ZoScrollLayout ZoScrollInitialLayout(const RECT& client, bool vertical, int gap, int buttonUnit,
                                                int thumbUnit);

// Start and end of the channel: the inner edges of the previous and next button.
ZOCTRL_API int ZoScrollChannelStart(const ZoScrollLayout& layout, bool vertical);
ZOCTRL_API int ZoScrollChannelEnd(const ZoScrollLayout& layout, bool vertical);

// How far the thumb can travel.
ZOCTRL_API int ZoScrollTrack(const ZoScrollLayout& layout, bool vertical, int gap);

// Places thumb and page areas for `thumbPos`; a channel of three thumb units or less has none.
ZOCTRL_API void ZoScrollUpdateRects(ZoScrollLayout& layout, bool vertical, int thumbPos, int thumbUnit);

// Thumb length for the scroll state over `total` pixels (channel plus twice the gap), never below
// three thumb units; a third of `total` without a page, 0 for an inverted range.
ZOCTRL_API int ZoScrollThumbLength(const SCROLLINFO& info, int total, int thumbUnit);

// Scroll position -> thumb offset; 0 for an inverted range or a page covering the whole range.
ZOCTRL_API int ZoScrollThumbPosFromScrollPos(const SCROLLINFO& info, int pos, int track);

// Thumb offset -> scroll position; nMin when the thumb cannot travel, 0 for an inverted range.
ZOCTRL_API int ZoScrollScrollPosFromThumbPos(const SCROLLINFO& info, int thumbPos, int track);

// Thumb offset for a cursor coordinate along the axis plus the drag offset, clamped into the
// channel unless `noClamp`.
ZOCTRL_API int ZoScrollThumbPosFromPoint(int coordinate, int channelStart, int channelEnd, int thumbLength,
                                         int gap, int offset, bool noClamp);

// First part of previous, next, thumb, before, after that contains `pt`; 0 for none.
ZOCTRL_API int ZoScrollHitTest(const ZoScrollLayout& layout, POINT pt);

// Position and scroll code that a press on `part` produces from the current state. The upper
// bound is nMax, not the last page start: the platform then limits the stored position.
struct ZoScrollStep
{
    int pos;
    UINT code;
};
ZOCTRL_API ZoScrollStep ZoScrollStepForPart(const SCROLLINFO& info, int part, int thumbScrollPos);

} // namespace ZoControls
