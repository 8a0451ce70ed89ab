// Bitmap strips: resource names per size class and their fallbacks, cell arithmetic, which
// source rectangle each cell draw copies, lower stretching, adoption and reloading.
#include "image_test_support.h"

#include "images/ZoResourceImage.h"

#include <zotest/resource_counter.h>

using namespace ZoControls;
using imagetest::DibCanvas;
using imagetest::kMagenta;

namespace {

::testing::AssertionResult BlitIs(const ZoBlitRect& r, int x, int y, int w, int h)
{
    if (r.x == x && r.y == y && r.w == w && r.h == h)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "blit rectangle is x " << r.x << ", y " << r.y << ", w " << r.w << ", h "
                                         << r.h;
}

// Source pixels equal to the key colour must leave the destination as it was.
::testing::AssertionResult KeyPixelsLeftOut(const zotest::Dib& dib, POINT at, const zotest::Dib& source,
                                            const RECT& cell)
{
    int keyPixels = 0;
    for (int y = cell.top; y < cell.bottom; ++y)
        for (int x = cell.left; x < cell.right; ++x) {
            if (source.Pixel(x, y) != kMagenta)
                continue;
            ++keyPixels;
            const int dx = at.x + x - cell.left;
            const int dy = at.y + y - cell.top;
            if (dib.Pixel(dx, dy) != zotest::kUnpainted)
                return ::testing::AssertionFailure() << "key pixel of source (" << x << ", " << y << ") painted at ("
                                                     << dx << ", " << dy << ")";
        }
    return ::testing::AssertionSuccess() << keyPixels << " key pixels";
}

} // namespace

// ---- arithmetic ---------------------------------------------------------------------------

TEST(ResourceNames, SizeClassSuffixes)
{
    const struct {
        int size;
        const wchar_t* name;
    } cases[] = {{ZoMonitorSize_Normal, L"BMP_ZO_EDIT"}, {ZoMonitorSize_3M, L"BMP_ZO_EDIT_3M"},
                 {ZoMonitorSize_5M, L"BMP_ZO_EDIT_5M"}, {ZoMonitorSize_Unknown, L"BMP_ZO_EDIT"}, {7, L"BMP_ZO_EDIT"}};
    for (const auto& c : cases)
        EXPECT_EQ(ZoResourceNameForSize(L"BMP_ZO_EDIT", static_cast<E_ZoMonitorSize>(c.size)), CString(c.name)) << c.size;
    // Numeric and null names have no variants.
    EXPECT_TRUE(ZoResourceNameForSize(nullptr, ZoMonitorSize_3M).IsEmpty());
    EXPECT_TRUE(ZoResourceNameForSize(MAKEINTRESOURCEW(800), ZoMonitorSize_3M).IsEmpty());
}

TEST(CellArithmetic, CellsOfWholeUnitsAndUncutPictures)
{
    EXPECT_TRUE(BlitIs(ZoUnitCellRect(28, 12, 4, 2, 2, 1), 14, 6, 7, 6)); // header-sort strip
    // 75 rows in 2 units: 37-row cells, the last row is never drawn.
    EXPECT_TRUE(BlitIs(ZoUnitCellRect(60, 75, 4, 2, 3, 1), 45, 37, 15, 37));
    EXPECT_EQ(ZoUnitExtent(36, 0), 0);
    EXPECT_EQ(ZoUnitExtent(36, -3), 0);
    const ZoBlitRect uncut = ZoUnitCellRect(36, 27, 0, 0, 1, 1);
    EXPECT_EQ(uncut.w, 0);
    EXPECT_EQ(uncut.h, 0);
}

// ---- loading --------------------------------------------------------------------------------

class BmpImageTest : public ::testing::Test
{
protected:
    imagetest::ScopedZoCtrl zo_;
};

TEST_F(BmpImageTest, MissingResourceStaysUnloadedAndDrawsNothing)
{
    CZoResourceBMPImage image;
    EXPECT_FALSE(image.LoadResourceImage(L"BMP_ZO_NO_SUCH_STRIP", ZoMonitorSize_3M, 2, 2));
    EXPECT_FALSE(image.IsLoaded());
    EXPECT_FALSE(image.LoadResourceImage(static_cast<const wchar_t*>(nullptr), ZoMonitorSize_Normal, 2, 2));
    // Bitmaps load by name only.
    EXPECT_FALSE(image.LoadResourceImage(800u, 1, 1));
    EXPECT_FALSE(image.IsLoaded());

    DibCanvas canvas(40, 40);
    image.DrawUnitImage(canvas.dc(), 0, 0, 0, 0, kMagenta);
    image.DrawUnitImage(canvas.dc(), 0, 0, 30, 30, 0, 0, kMagenta);
    image.DrawImage(canvas.dc(), 0, 0, 10, 10, 0, 0, 5, 5, kMagenta);
    image.DrawImageLowerStretching(canvas.dc(), 0, 0, 10, 10, 0, 0, 5, 5, kMagenta);
    ZOTEST_EXPECT_FILL(canvas.dib(), (RECT{0, 0, 40, 40}), zotest::kUnpainted);
}

// ---- which source rectangle each cell draw copies ---------------------------------------------

struct StripCase
{
    const wchar_t* name;
    const wchar_t* resource; // the variant the size class must pick
    E_ZoMonitorSize size;
    int columns;
    int rows;
};

class CellCopyTest : public ::testing::TestWithParam<StripCase>
{
protected:
    imagetest::ScopedZoCtrl zo_;
};

TEST_P(CellCopyTest, EveryCellCopiesItsSourceRectangle)
{
    const StripCase& strip = GetParam();
    CZoResourceBMPImage image;
    ASSERT_TRUE(image.LoadResourceImage(strip.name, strip.size, strip.columns, strip.rows));
    HBITMAP copy = imagetest::LoadDllBitmap(strip.resource);
    ASSERT_NE(copy, nullptr);
    const zotest::Dib source = zotest::Dib::FromBitmap(copy);
    DeleteObject(copy);
    ASSERT_EQ(image.GetWidth(), source.width());
    ASSERT_EQ(image.GetHeight(), source.height());

    const int uw = image.GetUnitWidth();
    const int uh = image.GetUnitHeight();
    // Each cell twice: made from the strip, then drawn again from the cell the image keeps.
    for (int row = 0; row < strip.rows; ++row)
        for (int draw = 0; draw < strip.columns * 2; ++draw) {
            const int column = draw / 2;
            DibCanvas canvas(uw + 6, uh + 6);
            const POINT at = {3, 2};
            image.DrawUnitImage(canvas.dc(), at.x, at.y, column, row, kMagenta);
            const RECT cell = zotest::CellRect(source.width(), source.height(), strip.columns, strip.rows, column, row);
            EXPECT_TRUE(zotest::MatchesCell(canvas.dib(), at, source, cell, kMagenta)) << "cell " << column << ", " << row;
            EXPECT_TRUE(KeyPixelsLeftOut(canvas.dib(), at, source, cell)) << "cell " << column << ", " << row;
            // Nothing outside the cell's destination.
            const RECT bounds = zotest::BoundsOfDifferences(canvas.dib(), zotest::kUnpainted);
            EXPECT_GE(bounds.left, at.x);
            EXPECT_GE(bounds.top, at.y);
            EXPECT_LE(bounds.right, at.x + uw);
            EXPECT_LE(bounds.bottom, at.y + uh);
        }
}

INSTANTIATE_TEST_SUITE_P(
    Strips, CellCopyTest,
    ::testing::Values(StripCase{L"BMP_ZO_HEADERSORT", L"BMP_ZO_HEADERSORT", ZoMonitorSize_Normal, 4, 2},
                      StripCase{L"BMP_ZO_EDIT", L"BMP_ZO_EDIT", ZoMonitorSize_3M, 12, 9},
                      StripCase{L"BMP_ZO_EDIT", L"BMP_ZO_EDIT", ZoMonitorSize_5M, 12, 9},
                      StripCase{L"BMP_ZO_TABBTN_TOP", L"BMP_ZO_TABBTN_TOP", ZoMonitorSize_Normal, 12, 6},
                      StripCase{L"BMP_ZO_DLGSYSBTNS", L"BMP_ZO_DLGSYSBTNS", ZoMonitorSize_Normal, 4, 4},
                      StripCase{L"BMP_ZO_DLGSYSBTNS", L"BMP_ZO_DLGSYSBTNS_3M", ZoMonitorSize_3M, 4, 4},
                      StripCase{L"BMP_ZO_DLGSYSBTNS", L"BMP_ZO_DLGSYSBTNS_5M", ZoMonitorSize_5M, 4, 4},
                      StripCase{L"BMP_ZO_SCROLLVER_BTNS", L"BMP_ZO_SCROLLVER_BTNS_3M", ZoMonitorSize_3M, 4, 4},
                      StripCase{L"BMP_ZO_SKIN_FRAMEWNDBORDER", L"BMP_ZO_SKIN_FRAMEWNDBORDER", ZoMonitorSize_3M, 3,
                                4}));

TEST_F(BmpImageTest, DrawImageTakesPositionThenSourceOriginThenSize)
{
    HBITMAP bitmap = imagetest::MakeStripedBitmap(6, {RGB(10, 0, 0), RGB(20, 0, 0), RGB(30, 0, 0), RGB(40, 0, 0)});
    CZoResourceBMPImage image(bitmap, true);
    DibCanvas canvas(20, 20);
    image.DrawImage(canvas.dc(), 4, 5, 1, 2, 3, 2, kMagenta);
    ZOTEST_EXPECT_FILL(canvas.dib(), (RECT{4, 5, 7, 6}), RGB(30, 0, 0));
    ZOTEST_EXPECT_FILL(canvas.dib(), (RECT{4, 6, 7, 7}), RGB(40, 0, 0));
    ZOTEST_EXPECT_BOUNDS(canvas.dib(), zotest::kUnpainted, (RECT{4, 5, 7, 7}));
}

TEST_F(BmpImageTest, StretchedCellFillsItsDestination)
{
    HBITMAP bitmap = imagetest::MakeStripedBitmap(8, {RGB(10, 0, 0), RGB(20, 0, 0), RGB(30, 0, 0), RGB(40, 0, 0)});
    CZoResourceBMPImage image(bitmap, true);
    // Re-cut the adopted picture as 2 x 2 cells through a drawing of the cell (1, 1) stretched.
    DibCanvas canvas(30, 30);
    image.DrawImage(canvas.dc(), 2, 2, 12, 6, 4, 2, 4, 2, kMagenta);
    ZOTEST_EXPECT_FILL(canvas.dib(), (RECT{2, 2, 14, 5}), RGB(30, 0, 0));
    ZOTEST_EXPECT_FILL(canvas.dib(), (RECT{2, 5, 14, 8}), RGB(40, 0, 0));
    ZOTEST_EXPECT_BOUNDS(canvas.dib(), zotest::kUnpainted, (RECT{2, 2, 14, 8}));
}

// ---- lower stretching -----------------------------------------------------------------------

TEST_F(BmpImageTest, LowerStretchingKeepsTheUpperRowsAndRunsTheLastEightRowsBelow)
{
    // Four rows in four colours.
    CZoResourceBMPImage image(
        imagetest::MakeStripedBitmap(4, {RGB(200, 0, 0), RGB(0, 200, 0), RGB(0, 0, 200), RGB(90, 90, 0)}), true);
    DibCanvas canvas(30, 50);
    image.DrawImageLowerStretching(canvas.dc(), 10, 10, 8, 12, 0, 0, 4, 4, kMagenta);
    ZOTEST_EXPECT_FILL(canvas.dib(), (RECT{10, 10, 18, 11}), RGB(200, 0, 0));
    ZOTEST_EXPECT_FILL(canvas.dib(), (RECT{10, 11, 18, 12}), RGB(0, 200, 0));
    ZOTEST_EXPECT_FILL(canvas.dib(), (RECT{10, 12, 18, 13}), RGB(0, 0, 200));
    // The last source row from y + srcH - 1 for h - srcH + 8 rows: 13 .. 28.
    ZOTEST_EXPECT_FILL(canvas.dib(), (RECT{10, 13, 18, 29}), RGB(90, 90, 0));
    ZOTEST_EXPECT_BOUNDS(canvas.dib(), zotest::kUnpainted, (RECT{10, 10, 18, 29}));
}

TEST_F(BmpImageTest, LowerStretchingLeavesTheKeyColourOutAndRestoresTheStretchMode)
{
    HBITMAP bitmap = imagetest::MakeStripedBitmap(3, {RGB(10, 10, 10), kMagenta});
    CZoResourceBMPImage image(bitmap, true);
    DibCanvas canvas(20, 30);
    canvas.dc().SetStretchBltMode(HALFTONE);
    image.DrawImageLowerStretching(canvas.dc(), 1, 1, 3, 6, 0, 0, 3, 2, kMagenta);
    EXPECT_EQ(canvas.dc().GetStretchBltMode(), HALFTONE);
    ZOTEST_EXPECT_FILL(canvas.dib(), (RECT{1, 1, 4, 2}), RGB(10, 10, 10));
    ZOTEST_EXPECT_BOUNDS(canvas.dib(), zotest::kUnpainted, (RECT{1, 1, 4, 2}));
}

// ---- resources ------------------------------------------------------------------------------

TEST_F(BmpImageTest, LoadDrawFreeCyclesKeepGdiCount)
{
    DibCanvas canvas(120, 120);
    ZOTEST_EXPECT_NO_LEAKS(
        20,
        [&canvas] {
            CZoResourceBMPImage image;
            image.LoadResourceImage(L"BMP_ZO_SCROLLHOR_BTNS", ZoMonitorSize_5M, 4, 4);
            image.DrawUnitImage(canvas.dc(), 0, 0, 1, 1, kMagenta);
            image.DrawImageLowerStretching(canvas.dc(), 0, 0, 40, 60, 0, 0, 20, 20, kMagenta);
            image.LoadResourceImage(L"BMP_ZO_EDIT", ZoMonitorSize_Normal, 12, 9);
            image.DrawUnitImage(canvas.dc(), 0, 0, 50, 50, 2, 2, kMagenta);
        },
        zotest::count_gdi | zotest::count_heap);
}
