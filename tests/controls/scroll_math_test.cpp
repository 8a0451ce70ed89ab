// Scroll bar geometry and arithmetic, called with plain numbers.
#include <afxwin.h>

#include <gtest/gtest.h>

#include "controls/ZoScrollBarMath.h"

using namespace ZoControls;

namespace {

const int kGap = 4;        // class 0 gap
const int kButtonUnit = 26; // class 0 vertical button unit height
const int kThumbUnit = 8;   // class 0 vertical thumb unit height

SCROLLINFO Info(int nMin, int nMax, UINT nPage, int nPos = 0)
{
    SCROLLINFO info = {sizeof(SCROLLINFO), SIF_ALL, nMin, nMax, nPage, nPos, nPos};
    return info;
}

bool SameRect(const RECT& a, int l, int t, int r, int b)
{
    return a.left == l && a.top == t && a.right == r && a.bottom == b;
}

ZoScrollLayout TallBar()
{
    const RECT client = {0, 0, 19, 200};
    return ZoScrollInitialLayout(client, true, kGap, kButtonUnit, kThumbUnit);
}

} // namespace

TEST(ScrollLayout, TallVerticalBarShortensButtonHitAreasByTheGap)
{
    ZoScrollLayout layout = TallBar();
    EXPECT_EQ(layout.thumbLength, (200 - 52) / 3);
    EXPECT_TRUE(SameRect(layout.part[ZoScrollPart_Prev], 0, 0, 19, 22));
    EXPECT_TRUE(SameRect(layout.part[ZoScrollPart_Next], 0, 178, 19, 200));
    EXPECT_TRUE(SameRect(layout.part[ZoScrollPart_Thumb], 0, 26, 19, 26 + 49));
    EXPECT_TRUE(::IsRectEmpty(&layout.part[ZoScrollPart_Before]));
    EXPECT_TRUE(SameRect(layout.part[ZoScrollPart_After], 0, 75, 19, 178));
    EXPECT_TRUE(::IsRectEmpty(&layout.part[ZoScrollPart_None]));
}

TEST(ScrollLayout, HorizontalBarUsesTheXAxis)
{
    const RECT client = {0, 0, 300, 19};
    ZoScrollLayout layout = ZoScrollInitialLayout(client, false, kGap, 26, 8);
    EXPECT_EQ(layout.thumbLength, (300 - 52) / 3);
    EXPECT_TRUE(SameRect(layout.part[ZoScrollPart_Prev], 0, 0, 22, 19));
    EXPECT_TRUE(SameRect(layout.part[ZoScrollPart_Next], 278, 0, 300, 19));
    EXPECT_EQ(ZoScrollChannelStart(layout, false), 22);
    EXPECT_EQ(ZoScrollChannelEnd(layout, false), 278);
}

TEST(ScrollLayout, ShortBarGetsTwoHalfButtonsAndNoThumb)
{
    // Not more than one thumb unit plus two button units: 8 + 52 = 60.
    const RECT client = {0, 0, 19, 60};
    ZoScrollLayout layout = ZoScrollInitialLayout(client, true, kGap, kButtonUnit, kThumbUnit);
    EXPECT_EQ(layout.thumbLength, 0);
    EXPECT_TRUE(SameRect(layout.part[ZoScrollPart_Prev], 0, 0, 19, 30));
    EXPECT_TRUE(SameRect(layout.part[ZoScrollPart_Next], 0, 30, 19, 60));
    EXPECT_TRUE(::IsRectEmpty(&layout.part[ZoScrollPart_Thumb]));
    EXPECT_TRUE(::IsRectEmpty(&layout.part[ZoScrollPart_Before]));
    EXPECT_TRUE(::IsRectEmpty(&layout.part[ZoScrollPart_After]));

    const RECT odd = {0, 0, 19, 41};
    layout = ZoScrollInitialLayout(odd, true, kGap, kButtonUnit, kThumbUnit);
    EXPECT_TRUE(SameRect(layout.part[ZoScrollPart_Prev], 0, 0, 19, 20));
    EXPECT_TRUE(SameRect(layout.part[ZoScrollPart_Next], 0, 21, 19, 41));
}

TEST(ScrollLayout, OnePixelLongerThanTheLimitHasAThumb)
{
    const RECT client = {0, 0, 19, 61};
    ZoScrollLayout layout = ZoScrollInitialLayout(client, true, kGap, kButtonUnit, kThumbUnit);
    EXPECT_EQ(layout.thumbLength, 3);
    EXPECT_FALSE(::IsRectEmpty(&layout.part[ZoScrollPart_Thumb]));
}

TEST(ScrollRects, ChannelOfThreeThumbUnitsHidesThumbAndPageAreas)
{
    // Channel 68 - 2 x 26 + 2 x 4 = 24, exactly three thumb units.
    const RECT client = {0, 0, 19, 68};
    ZoScrollLayout layout = ZoScrollInitialLayout(client, true, kGap, kButtonUnit, kThumbUnit);
    ASSERT_EQ(ZoScrollChannelEnd(layout, true) - ZoScrollChannelStart(layout, true), 24);
    ZoScrollUpdateRects(layout, true, 0, kThumbUnit);
    EXPECT_TRUE(::IsRectEmpty(&layout.part[ZoScrollPart_Thumb]));
    EXPECT_TRUE(::IsRectEmpty(&layout.part[ZoScrollPart_Before]));
    EXPECT_TRUE(::IsRectEmpty(&layout.part[ZoScrollPart_After]));

    const RECT longer = {0, 0, 19, client.bottom + 1};
    layout = ZoScrollInitialLayout(longer, true, kGap, kButtonUnit, kThumbUnit);
    ZoScrollUpdateRects(layout, true, 0, kThumbUnit);
    EXPECT_FALSE(::IsRectEmpty(&layout.part[ZoScrollPart_Thumb]));
}

TEST(ScrollThumbLength, PageShareOfTheChannel)
{
    const struct
    {
        SCROLLINFO info;
        int total;
        int expected;
    } cases[] = {
        {Info(0, 99, 10), 164, 24},  // 16.4: never below three thumb units
        {Info(0, 99, 50), 164, 82},
        {Info(1, 8, 3), 165, 62},    // 61.875 rounds up
        {Info(0, 99, 100), 164, 164}, // a full page fills the channel
        {Info(0, 99, 0), 164, 54},    // no page: a third
        {Info(10, 5, 3), 164, 0},     // inverted range: nothing
        {Info(10, 5, 0), 164, 54},    // no page is tested first
    };
    for (const auto& c : cases) {
        SCROLLINFO info = c.info;
        SCOPED_TRACE(testing::Message() << info.nMin << ".." << info.nMax << " page " << info.nPage);
        EXPECT_EQ(ZoScrollThumbLength(info, c.total, kThumbUnit), c.expected);
    }
}

TEST(ScrollConversion, PositionToThumbAndBack)
{
    // Range, position, track and the thumb position that matches; thumb back to position too.
    const struct
    {
        SCROLLINFO info;
        int pos;
        int track;
        int thumb;
    } cases[] = {
        {Info(0, 109, 10), 0, 140, 0},     {Info(0, 109, 10), 50, 140, 70}, {Info(0, 109, 10), 100, 140, 140},
        {Info(-20, 79, 0), 30, 100, 50},   // the minimum is added back
        {Info(5, 104, 100, 5), 5, 120, 0}, // a page covering the range: nothing to travel
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << "pos " << c.pos << " thumb " << c.thumb);
        EXPECT_EQ(ZoScrollThumbPosFromScrollPos(c.info, c.pos, c.track), c.thumb);
        EXPECT_EQ(ZoScrollScrollPosFromThumbPos(c.info, c.thumb, c.track), c.pos);
    }
    EXPECT_EQ(ZoScrollScrollPosFromThumbPos(Info(0, 109, 10), 1, 140), 1); // 0.714 rounds to 1
}

TEST(ScrollConversion, DegenerateRangesAreSafe)
{
    // Inverted range: 0 both ways.
    EXPECT_EQ(ZoScrollThumbPosFromScrollPos(Info(50, 10, 5, 30), 30, 100), 0);
    EXPECT_EQ(ZoScrollScrollPosFromThumbPos(Info(50, 10, 5, 30), 77, 100), 0);
    // A page covering the range, or a thumb that cannot travel: the minimum.
    EXPECT_EQ(ZoScrollThumbPosFromScrollPos(Info(5, 104, 100, 5), 60, 120), 0);
    EXPECT_EQ(ZoScrollScrollPosFromThumbPos(Info(5, 104, 100, 5), 60, 120), 5);
    EXPECT_EQ(ZoScrollScrollPosFromThumbPos(Info(7, 100, 10), 0, 0), 7);
    EXPECT_EQ(ZoScrollScrollPosFromThumbPos(Info(7, 100, 10), 12, -3), 7);
}

TEST(ScrollPoint, ClampedIntoTheChannelUnlessAskedNotTo)
{
    // Channel 22..178, thumb 49, gap 4: upper bound 178 - 49 + 8 - 22 = 115.
    EXPECT_EQ(ZoScrollThumbPosFromPoint(60, 22, 178, 49, kGap, 5, false), 43);
    EXPECT_EQ(ZoScrollThumbPosFromPoint(300, 22, 178, 49, kGap, 0, false), 115);
    EXPECT_EQ(ZoScrollThumbPosFromPoint(-40, 22, 178, 49, kGap, 0, false), 0);
    EXPECT_EQ(ZoScrollThumbPosFromPoint(300, 22, 178, 49, kGap, 0, true), 278);
    EXPECT_EQ(ZoScrollThumbPosFromPoint(-40, 22, 178, 49, kGap, 0, true), -62);
}

TEST(ScrollHitTest, EachPartAndNothingOutside)
{
    ZoScrollLayout layout = TallBar();
    ZoScrollUpdateRects(layout, true, 30, kThumbUnit);
    EXPECT_EQ(ZoScrollHitTest(layout, CPoint(5, 3)), ZoScrollPart_Prev);
    EXPECT_EQ(ZoScrollHitTest(layout, CPoint(5, 190)), ZoScrollPart_Next);
    EXPECT_EQ(ZoScrollHitTest(layout, CPoint(5, 60)), ZoScrollPart_Thumb);
    EXPECT_EQ(ZoScrollHitTest(layout, CPoint(5, 30)), ZoScrollPart_Before);
    EXPECT_EQ(ZoScrollHitTest(layout, CPoint(5, 120)), ZoScrollPart_After);
    EXPECT_EQ(ZoScrollHitTest(layout, CPoint(25, 60)), ZoScrollPart_None);
    EXPECT_EQ(ZoScrollHitTest(layout, CPoint(5, 200)), ZoScrollPart_None);
}

TEST(ScrollHitTest, ButtonsWinOverAThumbRunningIntoThem)
{
    ZoScrollLayout layout = TallBar();
    // At the end of its travel the thumb reaches into the next button's hit area.
    ZoScrollUpdateRects(layout, true, 115, kThumbUnit);
    ASSERT_GT(layout.part[ZoScrollPart_Thumb].bottom, layout.part[ZoScrollPart_Next].top);
    EXPECT_EQ(ZoScrollHitTest(layout, CPoint(5, 180)), ZoScrollPart_Next);
    EXPECT_EQ(ZoScrollHitTest(layout, CPoint(5, 170)), ZoScrollPart_Thumb);
}

TEST(ScrollStep, EachPartMovesAndNamesItsStep)
{
    const struct
    {
        SCROLLINFO info;
        int part;
        int pos;
        UINT code;
    } cases[] = {
        {Info(0, 100, 10, 50), ZoScrollPart_Prev, 49, SB_LINEUP},
        {Info(0, 100, 10, 50), ZoScrollPart_Next, 51, SB_LINEDOWN},
        {Info(0, 100, 10, 50), ZoScrollPart_Before, 40, SB_PAGEUP},
        {Info(0, 100, 10, 50), ZoScrollPart_After, 60, SB_PAGEDOWN},
        {Info(0, 100, 10, 50), ZoScrollPart_Thumb, 77, SB_THUMBTRACK}, // the thumb's position
        {Info(0, 100, 10, 50), ZoScrollPart_None, 50, SB_LINEUP},
        // The upper clamp is the maximum, not the last page.
        {Info(0, 100, 10, 95), ZoScrollPart_After, 100, SB_PAGEDOWN},
        {Info(0, 100, 10, 100), ZoScrollPart_Next, 100, SB_LINEDOWN},
        {Info(0, 100, 10, 0), ZoScrollPart_Prev, 0, SB_LINEUP},
        {Info(0, 100, 10, 3), ZoScrollPart_Before, 0, SB_PAGEUP},
        // Inverted range: the larger end is the upper bound.
        {Info(20, 10, 0, 20), ZoScrollPart_Next, 20, SB_LINEDOWN},
        // No wrapping at the int limits.
        {Info(INT_MIN, INT_MAX, 0x7FFFFFFF, INT_MAX), ZoScrollPart_After, INT_MAX, SB_PAGEDOWN},
        {Info(INT_MIN, INT_MAX, 0x7FFFFFFF, INT_MIN), ZoScrollPart_Before, INT_MIN, SB_PAGEUP},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << "part " << c.part << " from " << c.info.nPos);
        const ZoScrollStep step = ZoScrollStepForPart(c.info, c.part, 77);
        EXPECT_EQ(step.pos, c.pos);
        EXPECT_EQ(step.code, c.code);
    }
}
