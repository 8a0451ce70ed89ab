// CStaticLine: line and dotted geometry, the three layers and their colours, styles that draw
// no line, and no border.
#include "controls_test_support.h"

#include "controls/ZoStatic.h"

using namespace ZoControls;

namespace {

const COLORREF kLine = RGB(66, 68, 81);
const COLORREF kShadow = RGB(161, 165, 185);
const COLORREF kBack = RGB(132, 137, 163);

class StaticLineTest : public controltest::ControlTest
{
protected:
    zotest::Dib Render(CStaticLine& line, int width, int height)
    {
        EXPECT_TRUE(line.Create(L"", WS_CHILD | WS_VISIBLE, CRect(10, 10, 10 + width, 10 + height), parentWnd(), 200));
        return zotest::RenderClient(line.m_hWnd);
    }
};

bool RunIs(const ZoDotRun& run, int x, int y, int dx, int dy, int count)
{
    return run.x == x && run.y == y && run.dx == dx && run.dy == dy && run.count == count;
}

TEST(StaticLineRules, DotRuns)
{
    // Horizontal runs lie on the row of the rectangle's left edge, not at mid-height.
    EXPECT_TRUE(RunIs(ZoStaticLineDots(CRect(0, 0, 100, 10), 0), 0, 0, 4, 0, 25));
    EXPECT_TRUE(RunIs(ZoStaticLineDots(CRect(0, 0, 100, 10), 1), 1, 1, 4, 0, 25));
    EXPECT_TRUE(RunIs(ZoStaticLineDots(CRect(3, 20, 13, 22), 0), 3, 3, 4, 0, 3));
    // Vertical runs go down the middle.
    EXPECT_TRUE(RunIs(ZoStaticLineDots(CRect(0, 0, 9, 30), 1), 5, 1, 0, 4, 8));
    // Empty or inverted rectangles have none.
    EXPECT_EQ(ZoStaticLineDots(CRect(0, 0, 0, 0), 0).count, 0);
    EXPECT_EQ(ZoStaticLineDots(CRect(10, 5, 0, 0), 0).count, 0);
}

TEST_F(StaticLineTest, DottedHorizontalLineAtTheTopRows)
{
    CStaticLine line;
    const zotest::Dib dib = Render(line, 100, 10);
    for (int x = 0; x <= 96; x += 4) {
        // Line squares at x, x+1 on rows 0 and 1; the shadow's at x+1, x+2 on rows 1 and 2, beneath.
        ZOTEST_EXPECT_FILL(dib, (RECT{x, 0, x + 2, 2}), kLine);
        ZOTEST_EXPECT_PIXEL(dib, x + 2, 1, kShadow);
        ZOTEST_EXPECT_PIXEL(dib, x + 2, 2, kShadow);
        ZOTEST_EXPECT_PIXEL(dib, x + 1, 2, kShadow);
        ZOTEST_EXPECT_PIXEL(dib, x + 3, 0, kBack);
        ZOTEST_EXPECT_PIXEL(dib, x + 3, 1, kBack);
    }
    // Nothing at mid-height.
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 3, 100, 10}), kBack);
    EXPECT_EQ(controltest::CountPixels(dib, kLine), 25 * 4);
    EXPECT_EQ(controltest::CountPixels(dib, kShadow), 25 * 3);
}

TEST_F(StaticLineTest, SolidLineWithShadowBelow)
{
    CStaticLine line;
    line.SetLineStyle(CStaticLine::StaticLine_Single);
    const zotest::Dib dib = Render(line, 60, 11);
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 5, 60, 6}), kLine);
    ZOTEST_EXPECT_FILL(dib, (RECT{1, 6, 60, 7}), kShadow);
    ZOTEST_EXPECT_PIXEL(dib, 0, 6, kBack);
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 0, 60, 5}), kBack);
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 7, 60, 11}), kBack);
}

TEST_F(StaticLineTest, SquareDrawsHorizontalAndUnknownStylesAreSolid)
{
    CStaticLine line;
    line.SetLineStyle(static_cast<CStaticLine::E_StaticLine_Style>(7));
    const zotest::Dib dib = Render(line, 20, 20);
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 10, 20, 11}), kLine);
    ZOTEST_EXPECT_FILL(dib, (RECT{1, 11, 20, 12}), kShadow);
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 0, 20, 10}), kBack);
}

TEST_F(StaticLineTest, DoubleAndDualDotStylesPaintOnlyTheBackground)
{
    CStaticLine doubled, dual;
    doubled.SetLineStyle(CStaticLine::StaticLine_Double);
    dual.SetLineStyle(CStaticLine::StaticLine_DualDot);
    ZOTEST_EXPECT_FILL(Render(doubled, 50, 8), (RECT{0, 0, 50, 8}), kBack);
    ZOTEST_EXPECT_FILL(Render(dual, 8, 50), (RECT{0, 0, 8, 50}), kBack);
}

TEST_F(StaticLineTest, ColoursInArgumentOrder)
{
    CStaticLine line;
    line.SetLineStyle(CStaticLine::StaticLine_Single);
    line.SetStaticColors(RGB(1, 0, 0), RGB(0, 2, 0), RGB(0, 0, 3));
    const zotest::Dib dib = Render(line, 30, 4);
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 2, 30, 3}), RGB(1, 0, 0));
    ZOTEST_EXPECT_FILL(dib, (RECT{1, 3, 30, 4}), RGB(0, 2, 0));
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 0, 30, 2}), RGB(0, 0, 3));
}

} // namespace
