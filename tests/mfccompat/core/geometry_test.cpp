// CPoint, CSize and CRect: construction, arithmetic and the rectangle helpers.
#include <afx.h>
#include <gtest/gtest.h>

namespace {

::testing::AssertionResult RectIs(const CRect& r, int l, int t, int rt, int b)
{
    if (r.left == l && r.top == t && r.right == rt && r.bottom == b)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "rect is (" << r.left << "," << r.top << "," << r.right << ","
                                         << r.bottom << ")";
}

} // namespace

TEST(Point, ConstructionAndArithmetic)
{
    CPoint p(3, 4);
    EXPECT_EQ(CPoint(MAKELPARAM(-2, 7)), CPoint(-2, 7));
    p.Offset(1, 1);
    EXPECT_EQ(p, CPoint(4, 5));
    p += CSize(1, 2);
    EXPECT_EQ(p, CPoint(5, 7));
    p -= CPoint(5, 7);
    EXPECT_EQ(p, CPoint(0, 0));
    EXPECT_EQ(CPoint(1, 2) + CSize(3, 4), CPoint(4, 6));
    EXPECT_EQ(CPoint(5, 5) - CPoint(2, 1), CSize(3, 4));
    EXPECT_EQ(-CPoint(1, -2), CPoint(-1, 2));
    EXPECT_TRUE(CPoint(1, 2) != CPoint(2, 1));
    RECT r = {0, 0, 10, 10};
    EXPECT_TRUE(RectIs(CPoint(5, 5) + &r, 5, 5, 15, 15));
}

TEST(Size, ConstructionAndArithmetic)
{
    EXPECT_EQ(CSize(MAKELONG(-3, 4)), CSize(-3, 4));
    EXPECT_EQ(CSize(1, 2) + CSize(3, 4), CSize(4, 6));
    EXPECT_EQ(CSize(1, 2) - CSize(3, 4), CSize(-2, -2));
    EXPECT_EQ(-CSize(1, 2), CSize(-1, -2));
    EXPECT_EQ(CSize(1, 1) + CPoint(2, 2), CPoint(3, 3));
    CSize s(1, 1);
    s += CSize(2, 3);
    EXPECT_EQ(s, CSize(3, 4));
}

TEST(Rect, MeasuresAndCorners)
{
    CRect r(10, 20, 110, 70);
    EXPECT_EQ(r.Width(), 100);
    EXPECT_EQ(r.Height(), 50);
    EXPECT_EQ(r.Size(), CSize(100, 50));
    EXPECT_EQ(r.TopLeft(), CPoint(10, 20));
    EXPECT_EQ(r.BottomRight(), CPoint(110, 70));
    EXPECT_EQ(r.CenterPoint(), CPoint(60, 45));
    r.TopLeft() = CPoint(0, 0);
    EXPECT_TRUE(RectIs(r, 0, 0, 110, 70));
    EXPECT_TRUE(RectIs(CRect(CPoint(1, 2), CSize(3, 4)), 1, 2, 4, 6));
    EXPECT_TRUE(RectIs(CRect(CPoint(1, 2), CPoint(3, 4)), 1, 2, 3, 4));
}

TEST(Rect, EmptyNullAndHitTest)
{
    EXPECT_TRUE(CRect().IsRectNull());
    EXPECT_TRUE(CRect().IsRectEmpty());
    EXPECT_TRUE(CRect(5, 5, 5, 10).IsRectEmpty());
    EXPECT_TRUE(CRect(10, 0, 0, 10).IsRectEmpty()); // inverted
    EXPECT_FALSE(CRect(5, 5, 5, 10).IsRectNull());
    CRect r(0, 0, 10, 10);
    EXPECT_TRUE(r.PtInRect(CPoint(0, 0)));
    EXPECT_TRUE(r.PtInRect(CPoint(9, 9)));
    EXPECT_FALSE(r.PtInRect(CPoint(10, 5))); // right and bottom edges are outside
    EXPECT_FALSE(r.PtInRect(CPoint(5, 10)));
}

TEST(Rect, InflateDeflateAllOverloads)
{
    CRect r(10, 10, 20, 20);
    r.InflateRect(1, 2);
    EXPECT_TRUE(RectIs(r, 9, 8, 21, 22));
    r.DeflateRect(1, 2);
    EXPECT_TRUE(RectIs(r, 10, 10, 20, 20));
    r.InflateRect(CSize(2, 2));
    r.DeflateRect(CSize(2, 2));
    EXPECT_TRUE(RectIs(r, 10, 10, 20, 20));
    r.InflateRect(1, 2, 3, 4);
    EXPECT_TRUE(RectIs(r, 9, 8, 23, 24));
    r.DeflateRect(1, 2, 3, 4);
    CRect margins(1, 2, 3, 4);
    r.InflateRect(&margins);
    EXPECT_TRUE(RectIs(r, 9, 8, 23, 24));
    r.DeflateRect(&margins);
    EXPECT_TRUE(RectIs(r, 10, 10, 20, 20));
    r += &margins;
    EXPECT_TRUE(RectIs(r, 9, 8, 23, 24));
    r -= &margins;
    EXPECT_TRUE(RectIs(r, 10, 10, 20, 20));
    EXPECT_TRUE(RectIs(r + &margins, 9, 8, 23, 24));
    EXPECT_TRUE(RectIs(r.operator-(&margins), 11, 12, 17, 16)); // plain "r - &margins" also matches pointer subtraction
}

TEST(Rect, OffsetAndMove)
{
    CRect r(0, 0, 10, 5);
    r.OffsetRect(2, 3);
    EXPECT_TRUE(RectIs(r, 2, 3, 12, 8));
    r.OffsetRect(CPoint(-2, -3));
    r.OffsetRect(CSize(1, 1));
    EXPECT_TRUE(RectIs(r, 1, 1, 11, 6));
    r.MoveToX(100);
    EXPECT_TRUE(RectIs(r, 100, 1, 110, 6));
    r.MoveToY(50);
    EXPECT_TRUE(RectIs(r, 100, 50, 110, 55));
    r.MoveToXY(CPoint(0, 0));
    EXPECT_TRUE(RectIs(r, 0, 0, 10, 5));
    r += CPoint(1, 1);
    r -= CSize(1, 1);
    EXPECT_TRUE(RectIs(r, 0, 0, 10, 5));
    EXPECT_TRUE(RectIs(r + CPoint(3, 3), 3, 3, 13, 8));
    EXPECT_TRUE(RectIs(r - CSize(3, 3), -3, -3, 7, 2));
}

TEST(Rect, NormalizeAndSwap)
{
    CRect r(10, 20, 0, 5);
    r.NormalizeRect();
    EXPECT_TRUE(RectIs(r, 0, 5, 10, 20));
    r.SwapLeftRight();
    EXPECT_TRUE(RectIs(r, 10, 5, 0, 20));
}

TEST(Rect, IntersectUnionSubtract)
{
    CRect a(0, 0, 10, 10), b(5, 5, 15, 15), c;
    EXPECT_TRUE(c.IntersectRect(a, b));
    EXPECT_TRUE(RectIs(c, 5, 5, 10, 10));
    EXPECT_FALSE(c.IntersectRect(a, CRect(20, 20, 30, 30)));
    EXPECT_TRUE(c.IsRectNull());
    EXPECT_TRUE(c.UnionRect(a, b));
    EXPECT_TRUE(RectIs(c, 0, 0, 15, 15));
    EXPECT_TRUE(RectIs(a & b, 5, 5, 10, 10));
    EXPECT_TRUE(RectIs(a | b, 0, 0, 15, 15));
    CRect d(a);
    d &= b;
    EXPECT_TRUE(RectIs(d, 5, 5, 10, 10));
    d |= a;
    EXPECT_TRUE(RectIs(d, 0, 0, 10, 10));
    EXPECT_TRUE(c.SubtractRect(CRect(0, 0, 10, 10), CRect(0, 0, 10, 4)));
    EXPECT_TRUE(RectIs(c, 0, 4, 10, 10));
}

TEST(Rect, EqualityCopyAndSet)
{
    CRect r;
    r.SetRect(1, 2, 3, 4);
    EXPECT_TRUE(r == CRect(1, 2, 3, 4));
    EXPECT_TRUE(r != CRect(1, 2, 3, 5));
    EXPECT_TRUE(r.EqualRect(CRect(1, 2, 3, 4)));
    CRect copy;
    copy.CopyRect(r);
    EXPECT_TRUE(RectIs(copy, 1, 2, 3, 4));
    copy.SetRectEmpty();
    EXPECT_TRUE(copy.IsRectNull());
    RECT raw = {5, 6, 7, 8};
    copy = raw;
    EXPECT_TRUE(RectIs(copy, 5, 6, 7, 8));
    LPRECT pRect = copy;
    LPCRECT pConstRect = r;
    EXPECT_EQ(pRect->left, 5);
    EXPECT_EQ(pConstRect->left, 1);
}

TEST(Rect, MulDivScalesEverySide)
{
    CRect r(10, 20, 30, 40);
    EXPECT_TRUE(RectIs(r.MulDiv(3, 2), 15, 30, 45, 60));
    EXPECT_TRUE(RectIs(r.MulDiv(1, 0), -1, -1, -1, -1)); // ::MulDiv's answer to a zero divisor
}
