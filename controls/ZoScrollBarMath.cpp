#include "controls/ZoScrollBarMath.h"

namespace ZoControls {

namespace {

// Along-axis accessors, so every rule is written once for both orientations.
LONG& lowEdge(RECT& r, bool vertical) { return vertical ? r.top : r.left; }
LONG& highEdge(RECT& r, bool vertical) { return vertical ? r.bottom : r.right; }
int lowEdge(const RECT& r, bool vertical) { return vertical ? r.top : r.left; }
int highEdge(const RECT& r, bool vertical) { return vertical ? r.bottom : r.right; }

// A rectangle spanning [from, to) along the axis and the cross extent of `cross`.
RECT axisRect(const RECT& cross, bool vertical, int from, int to)
{
    RECT r = cross;
    lowEdge(r, vertical) = from;
    highEdge(r, vertical) = to;
    return r;
}

int roundHalfUp(double value) { return (int)(value + 0.5); }

int largerOf(long long a, long long b) { return (int)(a > b ? a : b); }
int smallerOf(long long a, long long b) { return (int)(a < b ? a : b); }

} // namespace

int ZoScrollGapSize(bool buttonsLoaded, float zoom)
{
    if (!buttonsLoaded)
        return 0;
    return (int)(zoom * 4.0 + 0.5);
}

ZoScrollLayout ZoScrollInitialLayout(const RECT& client, bool vertical, int gap, int buttonUnit, int thumbUnit)
{
    ZoScrollLayout layout;
    ::ZeroMemory(&layout, sizeof(layout));
    const int low = lowEdge(client, vertical);
    const int high = highEdge(client, vertical);
    const int length = high - low;
    if (length > thumbUnit + 2 * buttonUnit)
    {
        layout.thumbLength = (length - 2 * buttonUnit) / 3;
        layout.part[ZoScrollPart_Prev] = axisRect(client, vertical, low, low + buttonUnit - gap);
        layout.part[ZoScrollPart_Next] = axisRect(client, vertical, high - buttonUnit + gap, high);
        const int thumbStart = low + buttonUnit;
        const int thumbEnd = thumbStart + layout.thumbLength;
        layout.part[ZoScrollPart_Thumb] = axisRect(client, vertical, thumbStart, thumbEnd);
        layout.part[ZoScrollPart_After] =
            axisRect(client, vertical, thumbEnd, lowEdge(layout.part[ZoScrollPart_Next], vertical));
    }
    else
    {
        layout.part[ZoScrollPart_Prev] = axisRect(client, vertical, low, low + length / 2);
        layout.part[ZoScrollPart_Next] = axisRect(client, vertical, high - length / 2, high);
    }
    return layout;
}

int ZoScrollChannelStart(const ZoScrollLayout& layout, bool vertical)
{
    return highEdge(layout.part[ZoScrollPart_Prev], vertical);
}

int ZoScrollChannelEnd(const ZoScrollLayout& layout, bool vertical)
{
    return lowEdge(layout.part[ZoScrollPart_Next], vertical);
}

int ZoScrollTrack(const ZoScrollLayout& layout, bool vertical, int gap)
{
    return ZoScrollChannelEnd(layout, vertical) - ZoScrollChannelStart(layout, vertical) - layout.thumbLength +
           2 * gap;
}

void ZoScrollUpdateRects(ZoScrollLayout& layout, bool vertical, int thumbPos, int thumbUnit)
{
    const int start = ZoScrollChannelStart(layout, vertical);
    const int end = ZoScrollChannelEnd(layout, vertical);
    if (end - start > 3 * thumbUnit)
    {
        const RECT& cross = layout.part[ZoScrollPart_Prev];
        const int thumbStart = start + thumbPos;
        const int thumbEnd = thumbStart + layout.thumbLength;
        layout.part[ZoScrollPart_Before] = axisRect(cross, vertical, start, thumbStart);
        layout.part[ZoScrollPart_Thumb] = axisRect(cross, vertical, thumbStart, thumbEnd);
        layout.part[ZoScrollPart_After] = axisRect(cross, vertical, thumbEnd, end);
    }
    else
    {
        ::SetRectEmpty(&layout.part[ZoScrollPart_Before]);
        ::SetRectEmpty(&layout.part[ZoScrollPart_Thumb]);
        ::SetRectEmpty(&layout.part[ZoScrollPart_After]);
    }
}

int ZoScrollThumbLength(const SCROLLINFO& info, int total, int thumbUnit)
{
    if (info.nPage == 0)
        return total / 3;
    if (info.nMax < info.nMin)
        return 0;
    const double range = (double)info.nMax - (double)info.nMin + 1.0;
    const int length = roundHalfUp((double)info.nPage / range * (double)total);
    return largerOf(length, 3 * thumbUnit);
}

int ZoScrollThumbPosFromScrollPos(const SCROLLINFO& info, int pos, int track)
{
    if (info.nMax < info.nMin)
        return 0;
    const double travel = (double)info.nMax - (double)info.nPage - (double)info.nMin + 1.0;
    if (travel <= 0.0)
        return 0;
    return roundHalfUp(((double)pos - (double)info.nMin) / travel * (double)track);
}

int ZoScrollScrollPosFromThumbPos(const SCROLLINFO& info, int thumbPos, int track)
{
    if (info.nMax < info.nMin)
        return 0;
    if (track <= 0)
        return info.nMin;
    const double travel = (double)info.nMax - (double)info.nPage - (double)info.nMin + 1.0;
    return roundHalfUp(travel * ((double)thumbPos / (double)track)) + info.nMin;
}

int ZoScrollThumbPosFromPoint(int coordinate, int channelStart, int channelEnd, int thumbLength, int gap,
                              int offset, bool noClamp)
{
    const int pos = coordinate - channelStart + offset;
    if (noClamp)
        return pos;
    const int upper = channelEnd - thumbLength + 2 * gap - channelStart;
    return largerOf(smallerOf(pos, upper), 0);
}

int ZoScrollHitTest(const ZoScrollLayout& layout, POINT pt)
{
    for (int part = ZoScrollPart_Prev; part < ZoScrollPart_Count; ++part)
    {
        if (::PtInRect(&layout.part[part], pt))
            return part;
    }
    return ZoScrollPart_None;
}

ZoScrollStep ZoScrollStepForPart(const SCROLLINFO& info, int part, int thumbScrollPos)
{
    // 64-bit sums: a position next to the int limits must not wrap around.
    const long long pos = info.nPos;
    const long long upper = largerOf(info.nMax, info.nMin);
    const long long page = info.nPage;
    ZoScrollStep step = {info.nPos, SB_LINEUP};
    switch (part)
    {
    case ZoScrollPart_Prev:
        step.pos = largerOf(pos - 1, info.nMin);
        step.code = SB_LINEUP;
        break;
    case ZoScrollPart_Next:
        step.pos = smallerOf(pos + 1, upper);
        step.code = SB_LINEDOWN;
        break;
    case ZoScrollPart_Before:
        step.pos = largerOf(pos - page, info.nMin);
        step.code = SB_PAGEUP;
        break;
    case ZoScrollPart_After:
        step.pos = smallerOf(pos + page, upper);
        step.code = SB_PAGEDOWN;
        break;
    case ZoScrollPart_Thumb:
        step.pos = thumbScrollPos;
        step.code = SB_THUMBTRACK;
        break;
    default:
        break;
    }
    return step;
}

} // namespace ZoControls
