// The off-screen surface: drawing lands in it, reaches the target only through CopyToTarget,
// and degenerate sizes neither crash nor touch the target.
#include <gtest/gtest.h>

#include <zotest/renderer.h>
#include <zotest/resource_counter.h>

#include "ZoMemDC.h"

using namespace ZoControls;

namespace {

const COLORREF kFill = RGB(0x20, 0x80, 0xC0);

// A test DIB with a CDC over it, the target a memory DC copies to.
struct Target
{
    Target(int width, int height) : dib(width, height) { dc.Attach(dib.dc()); }
    ~Target() { dc.Detach(); }
    zotest::Dib dib;
    CDC dc;
};

} // namespace

TEST(MemDC, NothingReachesTheTargetBeforeTheCopy)
{
    Target target(60, 40);
    {
        CZoMemDC mem(&target.dc, 60, 40);
        mem.FillSolidRect(0, 0, 60, 40, kFill);
        ZOTEST_EXPECT_FILL(target.dib, (RECT{0, 0, 60, 40}), zotest::kUnpainted);
    }
    // Destroyed without the copy: the target stays untouched.
    ZOTEST_EXPECT_FILL(target.dib, (RECT{0, 0, 60, 40}), zotest::kUnpainted);
}

TEST(MemDC, CopyToTargetCopiesTheWholeSurfaceAtTheOrigin)
{
    Target target(80, 50);
    CZoMemDC mem(&target.dc, 60, 40);
    mem.FillSolidRect(0, 0, 60, 40, kFill);
    mem.FillSolidRect(10, 10, 5, 5, RGB(255, 0, 0));
    mem.CopyToTarget();
    ZOTEST_EXPECT_FILL(target.dib, (RECT{0, 0, 60, 10}), kFill);
    ZOTEST_EXPECT_FILL(target.dib, (RECT{10, 10, 15, 15}), RGB(255, 0, 0));
    ZOTEST_EXPECT_FILL(target.dib, (RECT{60, 0, 80, 50}), zotest::kUnpainted);
    ZOTEST_EXPECT_FILL(target.dib, (RECT{0, 40, 60, 50}), zotest::kUnpainted);
}

TEST(MemDC, TextOperationsAllDrawIntoTheSurface)
{
    Target target(200, 145);
    CZoMemDC mem(&target.dc, 200, 145);
    mem.FillSolidRect(0, 0, 200, 145, RGB(255, 255, 255));
    mem.SetTextColor(RGB(0, 0, 0));
    CDC* dc = &mem;
    EXPECT_TRUE(dc->TextOut(5, 5, L"TextOut", 7));
    EXPECT_TRUE(dc->ExtTextOut(5, 30, 0, nullptr, L"ExtTextOut", 10, nullptr));
    // Tab stops count from the tab origin, which is the text start here.
    EXPECT_GT(dc->TabbedTextOut(5, 55, L"a\tb", 3, 0, nullptr, 5).cx, 0);
    wchar_t text[] = L"DrawTextEx";
    CRect area(5, 80, 200, 120);
    EXPECT_GT(dc->DrawTextEx(text, -1, &area, DT_SINGLELINE, nullptr), 0);
    CRect last(5, 105, 200, 145);
    EXPECT_GT(dc->DrawText(L"DrawText", -1, &last, DT_SINGLELINE), 0);
    ZOTEST_EXPECT_FILL(target.dib, (RECT{0, 0, 200, 145}), zotest::kUnpainted);
    mem.CopyToTarget();
    for (int band = 0; band < 5; ++band) {
        const zotest::Dib strip = target.dib.Crop(RECT{0, 5 + band * 25, 200, 25 + band * 25});
        const RECT inked = zotest::BoundsOfDifferences(strip, RGB(255, 255, 255));
        EXPECT_GT(inked.right, inked.left) << "band " << band;
    }
}

TEST(MemDC, VisibilityIsAskedOfTheSurface)
{
    Target target(30, 30);
    CZoMemDC mem(&target.dc, 30, 30);
    EXPECT_TRUE(mem.PtVisible(5, 5));
    CRect inside(0, 0, 10, 10);
    EXPECT_TRUE(mem.RectVisible(&inside));
    CRgn clip;
    clip.CreateRectRgn(0, 0, 10, 10);
    mem.SelectClipRgn(&clip);
    EXPECT_FALSE(mem.PtVisible(20, 20));
    CRect outside(15, 15, 25, 25);
    EXPECT_FALSE(mem.RectVisible(&outside));
}

TEST(MemDC, ZeroSizeNeitherCrashesNorTouchesTheTarget)
{
    Target target(20, 20);
    for (const SIZE size : {SIZE{0, 0}, SIZE{0, 10}, SIZE{10, 0}, SIZE{-5, -5}}) {
        CZoMemDC mem(&target.dc, size.cx, size.cy);
        mem.FillSolidRect(0, 0, 20, 20, kFill);
        CRect area(0, 0, 20, 20);
        mem.DrawText(L"x", -1, &area, DT_SINGLELINE);
        mem.CopyToTarget();
    }
    ZOTEST_EXPECT_FILL(target.dib, (RECT{0, 0, 20, 20}), zotest::kUnpainted);
}

TEST(MemDC, WithoutTargetTheSurfaceStillWorks)
{
    CZoMemDC mem(nullptr, 16, 16);
    ASSERT_NE(mem.GetSafeHdc(), nullptr);
    mem.FillSolidRect(0, 0, 16, 16, kFill);
    EXPECT_EQ(mem.GetPixel(3, 3), kFill);
    mem.CopyToTarget();
}

TEST(MemDC, CreatingAndDestroyingLeaksNoGdiObjects)
{
    Target target(64, 64);
    ZOTEST_EXPECT_NO_LEAKS(3, [&] {
        CZoMemDC mem(&target.dc, 64, 64);
        mem.FillSolidRect(0, 0, 64, 64, kFill);
        mem.CopyToTarget();
        CZoMemDC empty(&target.dc, 0, 0);
    }, zotest::count_gdi);
}

// ---- the surface kept between paints ------------------------------------------------------

TEST(MemDC, KeptSurfaceIsLentAgainBlackAndInAFreshState)
{
    Target target(90, 60);
    const COLORREF defaultText = [&] {
        CZoMemDC fresh(&target.dc, 10, 10);
        return fresh.GetTextColor();
    }();
    HDC lent = nullptr;
    {
        CZoMemDC mem(&target.dc, 90, 60, true);
        lent = mem.GetSafeHdc();
        mem.FillSolidRect(0, 0, 90, 60, kFill);
        mem.SetTextColor(RGB(1, 2, 3));
        mem.IntersectClipRect(0, 0, 5, 5);
        mem.SetViewportOrg(7, 7);
    }
    // Lent again, as large and smaller: nothing of the last paint shows.
    for (const SIZE size : {SIZE{90, 60}, SIZE{20, 20}}) {
        CZoMemDC mem(&target.dc, size.cx, size.cy, true);
        EXPECT_EQ(mem.GetSafeHdc(), lent);
        EXPECT_EQ(mem.GetTextColor(), defaultText);
        EXPECT_EQ(mem.GetViewportOrg(), CPoint(0, 0));
        EXPECT_TRUE(mem.PtVisible(size.cx - 1, size.cy - 1));
        mem.CopyToTarget();
        ZOTEST_EXPECT_FILL(target.dib, (RECT{0, 0, size.cx, size.cy}), RGB(0, 0, 0));
        mem.FillSolidRect(0, 0, size.cx, size.cy, kFill);
    }
}

TEST(MemDC, SurfaceAskedForWhileTheKeptOneIsLentIsItsOwn)
{
    Target target(30, 30);
    CZoMemDC outer(&target.dc, 30, 30, true);
    outer.FillSolidRect(0, 0, 30, 30, kFill);
    {
        CZoMemDC inner(&target.dc, 30, 30, true);
        ASSERT_TRUE(inner.HasSurface());
        EXPECT_NE(inner.GetSafeHdc(), outer.GetSafeHdc());
        inner.FillSolidRect(0, 0, 30, 30, RGB(255, 0, 0));
    }
    EXPECT_EQ(outer.GetPixel(3, 3), kFill);
}

TEST(MemDC, FreeingTheKeptSurfaceLeavesNoGdiObjects)
{
    Target target(64, 64);
    CZoMemDC::FreeKeptSurface();
    ZOTEST_EXPECT_NO_LEAKS(3, [&] {
        for (int side = 16; side <= 64; side += 16) {
            CZoMemDC mem(&target.dc, side, side, true);
            mem.FillSolidRect(0, 0, side, side, kFill);
        }
        CZoMemDC::FreeKeptSurface();
    }, zotest::count_gdi);
}
