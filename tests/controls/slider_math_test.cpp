// The slider family's plain arithmetic: thumb strips by style, the tick list, tick pixels,
// selection spans, the range slider's conversions, sensitive areas, hit order and drag clamps.
#include <gtest/gtest.h>

#include <afxcmn.h>

#include "controls/ZoSliderMath.h"

using namespace ZoControls;

TEST(SliderMath, ThumbStripByStyle)
{
    const struct { DWORD style; const wchar_t* suffix; } cases[] = {
        {TBS_HORZ, L"HOR_RIGHT"},
        {TBS_TOP, L"HOR_LEFT"},
        {TBS_TOP | TBS_BOTH, L"HOR_LEFT"},
        {TBS_BOTH, L"HOR_BOTH"},
        {TBS_DOWNISLEFT | TBS_BOTH, L"HOR_BOTH"},
        {TBS_VERT | TBS_BOTH, L"VER_BOTH"},
        // No resource carries these names: such sliders draw no thumb.
        {TBS_VERT, L"VER_DOWN"},
        {TBS_VERT | TBS_LEFT, L"VER_UP"},
        {TBS_VERT | TBS_DOWNISLEFT, L"VER_UP"},
        {TBS_VERT | TBS_LEFT | TBS_DOWNISLEFT, L"VER_DOWN"},
        {TBS_ENABLESELRANGE, L"HOR_RIGHT"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ZoSliderThumbStripName(c.style), CString(L"BMP_ZO_SLIDERNORMAL_") + c.suffix) << c.style;
    EXPECT_TRUE(ZoSliderThumbStripName(TBS_NOTHUMB | TBS_BOTH).IsEmpty());
}

TEST(SliderMath, TickListKeepsInteriorTicksSortedAndUnique)
{
    ZoTickList list;
    ZoTickListInit(list);
    EXPECT_TRUE(ZoTickListInsert(list, 30, 0, 100));
    EXPECT_TRUE(ZoTickListInsert(list, 10, 0, 100));
    EXPECT_TRUE(ZoTickListInsert(list, 20, 0, 100));
    EXPECT_TRUE(ZoTickListInsert(list, 20, 0, 100)); // already there: no duplicate
    EXPECT_FALSE(ZoTickListInsert(list, 0, 0, 100)); // the ends are not interior
    EXPECT_FALSE(ZoTickListInsert(list, 100, 0, 100));
    ASSERT_EQ(list.count, 3u);
    EXPECT_EQ(list.capacity, 32u);
    EXPECT_EQ(list.pTicks[0], 10);
    EXPECT_EQ(list.pTicks[1], 20);
    EXPECT_EQ(list.pTicks[2], 30);
    for (int t = 31; t < 60; ++t)
        ZoTickListInsert(list, t, 0, 100);
    EXPECT_EQ(list.count, 32u);
    EXPECT_EQ(list.capacity, 32u);
    ZoTickListInsert(list, 99, 0, 100); // full: grows to the next multiple of 32
    EXPECT_EQ(list.capacity, 64u);
    ZoTickListClear(list);
    EXPECT_EQ(list.pTicks, nullptr);
    EXPECT_EQ(list.count + list.capacity, 0u);
}

TEST(SliderMath, AutomaticTicks)
{
    const struct { int lo, hi, freq; UINT count, capacity; int first, last; } cases[] = {
        {0, 100, 10, 9, 32, 10, 90},
        {5, 16, 5, 2, 32, 10, 15},
        {0, 100, 3, 33, 64, 3, 99},
        {0, 1, 1, 0, 32, 0, 0},
        {10, 0, 1, 0, 32, 0, 0}, // inverted range
    };
    for (const auto& c : cases) {
        ZoTickList list;
        ZoTickListInit(list);
        ZoTickListFill(list, c.lo, c.hi, c.freq);
        EXPECT_EQ(list.count, c.count) << c.lo << ".." << c.hi << " every " << c.freq;
        EXPECT_EQ(list.capacity, c.capacity);
        if (list.count) {
            EXPECT_EQ(list.pTicks[0], c.first);
            EXPECT_EQ(list.pTicks[list.count - 1], c.last);
        }
        ZoTickListClear(list);
    }
    ZoTickList none;
    ZoTickListInit(none);
    ZoTickListFill(none, 0, 100, 0);
    EXPECT_EQ(none.count, 0u);
    ZoTickListFill(none, INT_MIN, INT_MAX, 1); // huge: cut, no overflow
    EXPECT_EQ(none.count, ZoMaxAutoTicks);
    ZoTickListClear(none);
}

TEST(SliderMath, TickGapAndLengthPerSizeClass)
{
    const struct { float zoom; int gap, length; } cases[] = {{1.0f, 1, 4}, {1.2f, 1, 5}, {1.6f, 2, 6}};
    for (const auto& c : cases) {
        EXPECT_EQ(ZoSliderTickGap(c.zoom), c.gap);
        EXPECT_EQ(ZoSliderTickLength(c.zoom), c.length);
    }
}

TEST(SliderMath, TickPixels)
{
    // Channel 8..208, thumb 11: travel 189 from 13.
    const struct { int tick, lo, hi, expected; } cases[] = {
        {0, 0, 100, 13}, {100, 0, 100, 202}, {50, 0, 100, 108}, {25, 0, 100, 60},
        {60, 10, 110, 108}, {7, 7, 7, 13}, // empty range: at the first end
    };
    for (const auto& c : cases)
        EXPECT_EQ(ZoSliderTickPixel(c.tick, c.lo, c.hi, 8, 208, 11), c.expected) << c.tick;
    EXPECT_EQ(ZoSliderFirstTickPixel(8, 11), 13);
    EXPECT_EQ(ZoSliderLastTickPixel(208, 11), 203);
}

TEST(SliderMath, SelectionIsMeasuredFromValueZero)
{
    EXPECT_EQ(ZoSliderSelectionOffset(50, 0, 100, 200), 100);
    // 50..150 over 200 pixels: 60 lands 100 pixels (50 / 0.5) further right than its place.
    EXPECT_EQ(ZoSliderSelectionOffset(60, 50, 150, 200), 120);
    EXPECT_EQ(ZoSliderSelectionOffset(33, 0, 100, 200), 66);
    EXPECT_EQ(ZoSliderSelectionOffset(50, 7, 7, 200), 0); // empty range
    EXPECT_EQ(ZoSliderSelectionOffset(50, 0, 100, 0), 0); // no channel
}

TEST(SliderMath, RangeConversionsRoundWithTheExtraFiveHundredths)
{
    // 2.46875 would round down; the extra 0.05 takes it up.
    EXPECT_EQ(ZoRangeOffsetToValue(1, 2.46875f), 3);
    EXPECT_EQ(ZoRangeValueToOffset(79, 32.0f), 3);
    EXPECT_EQ(ZoRangeOffsetToValue(10, 0.5f), 5);
    EXPECT_EQ(ZoRangeValueToOffset(5, 0.5f), 10);
    EXPECT_FLOAT_EQ(ZoRangeRatio(0, 100, 200), 0.5f);
    EXPECT_FLOAT_EQ(ZoRangeRatio(50, 150, 200), 0.5f); // same ratio: values count from 0
    EXPECT_EQ(ZoRangeRatio(0, 100, 0), 0.0f);
    EXPECT_EQ(ZoRangeOffsetToValue(10, 0.0f), 0);
    EXPECT_EQ(ZoRangeValueToOffset(10, 0.0f), 0);
}

TEST(SliderMath, SensitiveAreasReachOutward)
{
    EXPECT_EQ(ZoRangeBoundRect(CPoint(100, 50), 11, true), CRect(84, 28, 108, 61));
    EXPECT_EQ(ZoRangeBoundRect(CPoint(100, 50), 11, false), CRect(92, 28, 116, 61));
    EXPECT_EQ(ZoRangeThumbAreaRect(CRect(10, 20, 21, 41), 22), CRect(-12, 9, 43, 52));
}

TEST(SliderMath, HitTestOrder)
{
    const CRect thumb(50, 10, 60, 30);
    const CRect left(40, 0, 70, 40);   // overlaps the thumb
    const CRect right(65, 0, 90, 40);  // overlaps the left bound
    const CRect channel(10, 18, 200, 26); // height 8: extended by 2 above and below
    const CRect area(30, 5, 80, 35);
    const struct { CPoint pt; int hit; } cases[] = {
        {CPoint(55, 20), ZoRangeHit_Thumb},     {CPoint(45, 20), ZoRangeHit_LeftBound},
        {CPoint(67, 20), ZoRangeHit_LeftBound}, {CPoint(75, 20), ZoRangeHit_RightBound},
        {CPoint(150, 16), ZoRangeHit_Channel},  {CPoint(150, 27), ZoRangeHit_Channel},
        {CPoint(150, 15), ZoRangeHit_None},     {CPoint(150, 28), ZoRangeHit_None},
        {CPoint(35, 30), ZoRangeHit_ThumbArea}, {CPoint(5, 5), ZoRangeHit_None},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ZoRangeHitTest(c.pt, thumb, left, right, channel, area), c.hit) << c.pt.x << "," << c.pt.y;
}

TEST(SliderMath, BoundsMeetButNeverCrossAndStayInTheRange)
{
    EXPECT_EQ(ZoRangeDragLeft(40, 60, 0), 40);
    EXPECT_EQ(ZoRangeDragLeft(80, 60, 0), 60);
    EXPECT_EQ(ZoRangeDragLeft(-5, 60, 0), 0);
    EXPECT_EQ(ZoRangeDragRight(70, 20, 100), 70);
    EXPECT_EQ(ZoRangeDragRight(10, 20, 100), 20);
    EXPECT_EQ(ZoRangeDragRight(130, 20, 100), 100);
}
