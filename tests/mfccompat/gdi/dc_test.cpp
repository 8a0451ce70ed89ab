// CDC: drawing lands on the output DC with the right objects, queries read the attribute DC,
// temporary objects, and the window DCs.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <zotest/renderer.h>
#include "dib_dc.h"
#include <zotest/resource_counter.h>
#include <zotest/test_window.h>

namespace {

const COLORREF kWhite = RGB(255, 255, 255);
const COLORREF kBlack = RGB(0, 0, 0);
const COLORREF kRed = RGB(255, 0, 0);
const COLORREF kGreen = RGB(0, 255, 0);
const COLORREF kBlue = RGB(0, 0, 255);
const COLORREF kMagenta = RGB(255, 0, 255);

BLENDFUNCTION Blend(BYTE constantAlpha, BYTE format)
{
    BLENDFUNCTION blend = { AC_SRC_OVER, 0, constantAlpha, format };
    return blend;
}

::testing::AssertionResult ChannelsNear(COLORREF actual, COLORREF expected, int tolerance)
{
    int dr = abs(GetRValue(actual) - GetRValue(expected));
    int dg = abs(GetGValue(actual) - GetGValue(expected));
    int db = abs(GetBValue(actual) - GetBValue(expected));
    if (dr <= tolerance && dg <= tolerance && db <= tolerance)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << zotest::ColorText(actual) << " is not within " << tolerance
                                         << " of " << zotest::ColorText(expected);
}

// ---- Selecting objects ------------------------------------------------------------------

TEST(DCSelect, PenRoundTripReturnsTypedPreviousObjects)
{
    zotest::Dib dib(8, 8);
    DibDC dc(dib);
    CPen pen(PS_SOLID, 1, kRed);
    CPen* original = dc.SelectObject(&pen);
    ASSERT_NE(nullptr, original);
    EXPECT_EQ(::GetStockObject(BLACK_PEN), original->m_hObject);
    EXPECT_TRUE(original->IsKindOf(RUNTIME_CLASS(CPen)));
    EXPECT_EQ(&pen, dc.GetCurrentPen());
    EXPECT_EQ(&pen, dc.SelectObject(original));
    EXPECT_EQ(original->m_hObject, ::GetCurrentObject(dib.dc(), OBJ_PEN));
}

TEST(DCSelect, BrushFontAndBitmapRoundTrips)
{
    zotest::Dib dib(8, 8);
    DibDC dc(dib);
    CBrush brush(kGreen);
    CBrush* oldBrush = dc.SelectObject(&brush);
    EXPECT_EQ(::GetStockObject(WHITE_BRUSH), oldBrush->m_hObject);
    EXPECT_EQ(&brush, dc.SelectObject(oldBrush));

    CFont font;
    font.CreatePointFont(100, _T("Tahoma"));
    CFont* oldFont = dc.SelectObject(&font);
    ASSERT_NE(nullptr, oldFont);
    EXPECT_EQ(&font, dc.GetCurrentFont());
    EXPECT_EQ(&font, dc.SelectObject(oldFont));

    CDC memory;
    ASSERT_TRUE(memory.CreateCompatibleDC(&dc));
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&dc, 4, 4);
    CBitmap* oldBitmap = memory.SelectObject(&bitmap);
    ASSERT_NE(nullptr, oldBitmap);
    EXPECT_EQ(&bitmap, memory.GetCurrentBitmap());
    EXPECT_EQ(&bitmap, memory.SelectObject(oldBitmap));
}

TEST(DCSelect, RegionSelectionClipsAndReturnsRegionType)
{
    zotest::Dib dib(10, 10, kWhite);
    DibDC dc(dib);
    CRgn region;
    region.CreateRectRgn(2, 2, 5, 5);
    EXPECT_EQ(SIMPLEREGION, dc.SelectObject(&region));
    dc.FillSolidRect(0, 0, 10, 10, kBlue);
    ZOTEST_EXPECT_FILL(dib, CRect(2, 2, 5, 5), kBlue);
    ZOTEST_EXPECT_PIXEL(dib, 1, 1, kWhite);
    ZOTEST_EXPECT_PIXEL(dib, 5, 5, kWhite);
}

TEST(DCSelect, GenericOverloadAndStockObjects)
{
    zotest::Dib dib(4, 4);
    DibDC dc(dib);
    CGdiObject* previous = dc.SelectStockObject(NULL_BRUSH);
    ASSERT_NE(nullptr, previous);
    EXPECT_EQ(::GetStockObject(WHITE_BRUSH), previous->m_hObject);
    CGdiObject* nullBrush = dc.SelectObject(previous);
    EXPECT_EQ(::GetStockObject(NULL_BRUSH), nullBrush->m_hObject);
}

TEST(DCSelect, NullObjectSelectsNothing)
{
    zotest::Dib dib(4, 4);
    DibDC dc(dib);
    EXPECT_EQ(nullptr, dc.SelectObject((CPen*)NULL));
    EXPECT_EQ(::GetStockObject(BLACK_PEN), ::GetCurrentObject(dib.dc(), OBJ_PEN));
}

// ---- Output and attribute DCs -----------------------------------------------------------

TEST(DCAttribute, QueriesReadTheAttributeDCAndChangesReachBoth)
{
    zotest::Dib output(8, 8, kWhite), attributes(8, 8, kWhite);
    DibDC dc(output);
    dc.SetAttribDC(attributes.dc());
    dc.SetTextColor(kRed);
    EXPECT_EQ(kRed, ::GetTextColor(output.dc()));
    EXPECT_EQ(kRed, ::GetTextColor(attributes.dc()));
    ::SetTextColor(attributes.dc(), kGreen);
    EXPECT_EQ(kGreen, dc.GetTextColor());
    EXPECT_EQ(kGreen, dc.SetTextColor(kBlue)) << "the previous value comes from the attribute DC";
    dc.ReleaseAttribDC();
    EXPECT_EQ(nullptr, dc.m_hAttribDC);
}

TEST(DCAttribute, DrawingGoesToTheOutputDCOnly)
{
    zotest::Dib output(8, 8, kWhite), attributes(8, 8, kWhite);
    DibDC dc(output);
    dc.SetAttribDC(attributes.dc());
    CBrush brush(kBlue);
    dc.FillRect(CRect(0, 0, 8, 8), &brush);
    ZOTEST_EXPECT_FILL(output, CRect(0, 0, 8, 8), kBlue);
    ZOTEST_EXPECT_FILL(attributes, CRect(0, 0, 8, 8), kWhite);
}

TEST(DCAttribute, TextExtentMeasuresOnAttributeDCOutputExtentOnOutputDC)
{
    zotest::Dib output(8, 8), attributes(8, 8);
    DibDC dc(output);
    dc.SetAttribDC(attributes.dc());
    CFont small, large;
    small.CreatePointFont(80, _T("Tahoma"));
    large.CreatePointFont(240, _T("Tahoma"));
    HGDIOBJ oldOutput = ::SelectObject(output.dc(), small.m_hObject);
    HGDIOBJ oldAttributes = ::SelectObject(attributes.dc(), large.m_hObject);
    CSize attributeExtent = dc.GetTextExtent(CString(_T("Hy")));
    CSize outputExtent = dc.GetOutputTextExtent(CString(_T("Hy")));
    EXPECT_GT(attributeExtent.cy, outputExtent.cy);
    TEXTMETRIC attributeMetrics, outputMetrics;
    ASSERT_TRUE(dc.GetTextMetrics(&attributeMetrics));
    ASSERT_TRUE(dc.GetOutputTextMetrics(&outputMetrics));
    EXPECT_GT(attributeMetrics.tmHeight, outputMetrics.tmHeight);
    ::SelectObject(output.dc(), oldOutput);
    ::SelectObject(attributes.dc(), oldAttributes);
}

TEST(DCAttribute, EmptyTextHasNoExtent)
{
    zotest::Dib dib(4, 4);
    DibDC dc(dib);
    EXPECT_EQ(CSize(0, 0), dc.GetTextExtent(_T(""), 0));
    EXPECT_EQ(CSize(0, 0), dc.GetTextExtent(NULL, 5));
}

// ---- Handles and temporary objects ------------------------------------------------------

TEST(DCHandle, ForeignHandleGivesTemporaryObject)
{
    HDC hDC = ::CreateCompatibleDC(NULL);
    CDC* temp = CDC::FromHandle(hDC);
    ASSERT_NE(nullptr, temp);
    EXPECT_EQ(hDC, temp->m_hDC);
    EXPECT_EQ(hDC, temp->m_hAttribDC);
    EXPECT_EQ(temp, CDC::FromHandle(hDC));
    CDC::DeleteTempMap();
    EXPECT_EQ((DWORD)OBJ_MEMDC, ::GetObjectType(hDC)) << "deleting the temporary keeps the DC";
    ::DeleteDC(hDC);
}

TEST(DCHandle, AttachedHandleGivesThePermanentObject)
{
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(NULL));
    EXPECT_EQ(&dc, CDC::FromHandle(dc.m_hDC));
    EXPECT_EQ(dc.m_hDC, dc.m_hAttribDC);
    EXPECT_EQ(dc.m_hDC, dc.GetSafeHdc());
    EXPECT_EQ(dc.m_hDC, (HDC)dc);
}

TEST(DCHandle, UnlockingTempMapsDeletesTemporaryDCObjects)
{
    HDC hDC = ::CreateCompatibleDC(NULL);
    ZOTEST_EXPECT_NO_LEAKS(10, [hDC] {
        AfxLockTempMaps();
        CDC::FromHandle(hDC)->SetBkColor(kRed);
        AfxUnlockTempMaps();
    }, zotest::count_heap | zotest::count_gdi);
    EXPECT_EQ(kRed, ::GetBkColor(hDC));
    ::DeleteDC(hDC);
}

TEST(DCHandle, DestructorDeletesOwnedDC)
{
    HDC hDC;
    {
        CDC dc;
        ASSERT_TRUE(dc.CreateCompatibleDC(NULL));
        hDC = dc.m_hDC;
        EXPECT_FALSE(dc.CreateCompatibleDC(NULL)) << "a CDC wraps one DC at a time";
    }
    EXPECT_EQ(0u, ::GetObjectType(hDC));
}

TEST(DCHandle, CreateDCForTheDisplay)
{
    CDC dc;
    ASSERT_TRUE(dc.CreateDC(_T("DISPLAY"), NULL, NULL, NULL));
    EXPECT_EQ(::GetSystemMetrics(SM_CXSCREEN), dc.GetDeviceCaps(HORZRES));
    EXPECT_TRUE(dc.DeleteDC());
    EXPECT_EQ(nullptr, dc.m_hDC);
}

TEST(DCHandle, EmptyDCIsSafe)
{
    CDC dc;
    EXPECT_EQ(nullptr, dc.GetSafeHdc());
    EXPECT_FALSE(dc.DeleteDC());
    EXPECT_EQ(nullptr, dc.Detach());
    CDC* none = NULL;
    EXPECT_EQ(nullptr, none->GetSafeHdc());
    CRect rect(0, 0, 5, 5);
    EXPECT_EQ(0, dc.DrawText(_T("x"), 1, NULL, 0));
    EXPECT_FALSE(dc.Polygon(NULL, 3));
    EXPECT_EQ(nullptr, dc.GetWindow());
}

// ---- Filling and frames -----------------------------------------------------------------

TEST(DCFill, FillSolidRectFillsExactlyAndLeavesBackgroundColour)
{
    zotest::Dib dib(10, 10, kWhite);
    DibDC dc(dib);
    dc.SetBkColor(kGreen);
    dc.FillSolidRect(CRect(2, 3, 6, 7), kRed);
    ZOTEST_EXPECT_FILL(dib, CRect(2, 3, 6, 7), kRed);
    ZOTEST_EXPECT_BOUNDS(dib, kWhite, CRect(2, 3, 6, 7));
    EXPECT_EQ(kRed, dc.GetBkColor()) << "MFC documents that the background colour becomes clr";
    dc.FillSolidRect(0, 0, 2, 1, kBlue);
    ZOTEST_EXPECT_FILL(dib, CRect(0, 0, 2, 1), kBlue);
}

TEST(DCFill, Draw3dRectColoursEachEdge)
{
    zotest::Dib dib(12, 12, kWhite);
    DibDC dc(dib);
    dc.Draw3dRect(CRect(2, 2, 8, 7), kRed, kBlue);
    ZOTEST_EXPECT_FILL(dib, CRect(2, 2, 7, 3), kRed);   // top, without the top-right corner
    ZOTEST_EXPECT_FILL(dib, CRect(2, 2, 3, 6), kRed);   // left, without the bottom-left corner
    ZOTEST_EXPECT_FILL(dib, CRect(7, 2, 8, 7), kBlue);  // right, full height
    ZOTEST_EXPECT_FILL(dib, CRect(2, 6, 8, 7), kBlue);  // bottom, full width
    ZOTEST_EXPECT_FILL(dib, CRect(3, 3, 7, 6), kWhite); // inside untouched
    ZOTEST_EXPECT_BOUNDS(dib, kWhite, CRect(2, 2, 8, 7));
}

TEST(DCFill, Draw3dRectCoordinateOverload)
{
    zotest::Dib dib(6, 6, kWhite);
    DibDC dc(dib);
    dc.Draw3dRect(1, 1, 3, 3, kGreen, kMagenta);
    ZOTEST_EXPECT_PIXEL(dib, 1, 1, kGreen);
    ZOTEST_EXPECT_PIXEL(dib, 3, 1, kMagenta);
    ZOTEST_EXPECT_PIXEL(dib, 1, 3, kMagenta);
    ZOTEST_EXPECT_PIXEL(dib, 2, 2, kWhite);
}

TEST(DCFill, FrameRectAndInvertRect)
{
    zotest::Dib dib(8, 8, kWhite);
    DibDC dc(dib);
    CBrush brush(kRed);
    dc.FrameRect(CRect(1, 1, 6, 6), &brush);
    ZOTEST_EXPECT_PIXEL(dib, 1, 1, kRed);
    ZOTEST_EXPECT_PIXEL(dib, 5, 5, kRed);
    ZOTEST_EXPECT_PIXEL(dib, 3, 3, kWhite);
    dc.InvertRect(CRect(3, 3, 4, 4));
    ZOTEST_EXPECT_PIXEL(dib, 3, 3, kBlack);
}

TEST(DCFill, RectangleUsesSelectedPenAndBrush)
{
    zotest::Dib dib(10, 10, kWhite);
    DibDC dc(dib);
    CPen pen(PS_SOLID, 1, kBlue);
    CBrush brush(kGreen);
    CPen* oldPen = dc.SelectObject(&pen);
    CBrush* oldBrush = dc.SelectObject(&brush);
    EXPECT_TRUE(dc.Rectangle(CRect(1, 1, 7, 6)));
    dc.SelectObject(oldPen);
    dc.SelectObject(oldBrush);
    ZOTEST_EXPECT_PIXEL(dib, 1, 1, kBlue);
    ZOTEST_EXPECT_PIXEL(dib, 6, 5, kBlue);
    ZOTEST_EXPECT_FILL(dib, CRect(2, 2, 6, 5), kGreen);
    ZOTEST_EXPECT_PIXEL(dib, 7, 6, kWhite);
}

TEST(DCFill, RegionsFillFrameAndPaint)
{
    zotest::Dib dib(12, 12, kWhite);
    DibDC dc(dib);
    CRgn region;
    region.CreateRectRgn(1, 1, 5, 5);
    CBrush red(kRed), blue(kBlue);
    EXPECT_TRUE(dc.FillRgn(&region, &red));
    ZOTEST_EXPECT_FILL(dib, CRect(1, 1, 5, 5), kRed);
    EXPECT_TRUE(dc.FrameRgn(&region, &blue, 1, 1));
    ZOTEST_EXPECT_PIXEL(dib, 1, 1, kBlue);
    ZOTEST_EXPECT_PIXEL(dib, 2, 2, kRed);
    region.OffsetRgn(6, 6);
    CBrush* old = dc.SelectObject(&blue);
    EXPECT_TRUE(dc.PaintRgn(&region));
    dc.SelectObject(old);
    ZOTEST_EXPECT_FILL(dib, CRect(7, 7, 11, 11), kBlue);
    EXPECT_FALSE(dc.FillRgn(NULL, &red));
}

TEST(DCFill, PatBltWithSelectedBrush)
{
    zotest::Dib dib(6, 6, kWhite);
    DibDC dc(dib);
    CBrush brush(kMagenta);
    CBrush* old = dc.SelectObject(&brush);
    EXPECT_TRUE(dc.PatBlt(1, 1, 3, 2, PATCOPY));
    dc.SelectObject(old);
    ZOTEST_EXPECT_FILL(dib, CRect(1, 1, 4, 3), kMagenta);
    ZOTEST_EXPECT_BOUNDS(dib, kWhite, CRect(1, 1, 4, 3));
}

// ---- Lines and pixels -------------------------------------------------------------------

TEST(DCLines, MoveToReturnsPreviousPositionAndLineToDraws)
{
    zotest::Dib dib(10, 10, kWhite);
    DibDC dc(dib);
    CPen pen(PS_SOLID, 1, kRed);
    CPen* old = dc.SelectObject(&pen);
    EXPECT_EQ(CPoint(0, 0), dc.MoveTo(1, 2));
    EXPECT_EQ(CPoint(1, 2), dc.MoveTo(CPoint(1, 4)));
    EXPECT_TRUE(dc.LineTo(6, 4));
    EXPECT_EQ(CPoint(6, 4), dc.GetCurrentPosition());
    dc.SelectObject(old);
    ZOTEST_EXPECT_FILL(dib, CRect(1, 4, 6, 5), kRed);
    ZOTEST_EXPECT_PIXEL(dib, 6, 4, kWhite) << "the end point is not drawn";
}

TEST(DCLines, LineToKeepsAttributeDCPositionInStep)
{
    zotest::Dib output(8, 8, kWhite), attributes(8, 8, kWhite);
    DibDC dc(output);
    dc.SetAttribDC(attributes.dc());
    dc.MoveTo(0, 0);
    dc.LineTo(5, 3);
    EXPECT_EQ(CPoint(5, 3), dc.GetCurrentPosition());
    ZOTEST_EXPECT_FILL(attributes, CRect(0, 0, 8, 8), kWhite);
}

TEST(DCLines, PolylineAndPolygon)
{
    zotest::Dib dib(10, 10, kWhite);
    DibDC dc(dib);
    POINT line[3] = { { 0, 0 }, { 5, 0 }, { 5, 5 } };
    EXPECT_TRUE(dc.Polyline(line, 3));
    ZOTEST_EXPECT_PIXEL(dib, 3, 0, kBlack);
    ZOTEST_EXPECT_PIXEL(dib, 5, 3, kBlack);
    EXPECT_FALSE(dc.Polyline(line, 0));
    CBrush brush(kGreen);
    CBrush* old = dc.SelectObject(&brush);
    POINT square[4] = { { 6, 6 }, { 9, 6 }, { 9, 9 }, { 6, 9 } };
    EXPECT_TRUE(dc.Polygon(square, 4));
    dc.SelectObject(old);
    ZOTEST_EXPECT_PIXEL(dib, 7, 7, kGreen);
}

TEST(DCLines, PixelsByCoordinatesAndPoints)
{
    zotest::Dib dib(4, 4, kWhite);
    DibDC dc(dib);
    EXPECT_EQ(kRed, dc.SetPixel(1, 1, kRed));
    EXPECT_TRUE(dc.SetPixelV(CPoint(2, 2), kBlue));
    dc.SetPixel(CPoint(3, 3), kGreen);
    EXPECT_EQ(kRed, dc.GetPixel(1, 1));
    EXPECT_EQ(kBlue, dc.GetPixel(CPoint(2, 2)));
    ZOTEST_EXPECT_PIXEL(dib, 3, 3, kGreen);
}

TEST(DCLines, ROP2AndStretchModesRoundTrip)
{
    zotest::Dib dib(4, 4);
    DibDC dc(dib);
    EXPECT_EQ(R2_COPYPEN, dc.SetROP2(R2_XORPEN));
    EXPECT_EQ(R2_XORPEN, dc.GetROP2());
    dc.SetStretchBltMode(HALFTONE);
    EXPECT_EQ(HALFTONE, dc.GetStretchBltMode());
    EXPECT_EQ(OPAQUE, dc.SetBkMode(TRANSPARENT));
    EXPECT_EQ(TRANSPARENT, dc.GetBkMode());
    dc.SetTextAlign(TA_RIGHT | TA_BOTTOM);
    EXPECT_EQ((UINT)(TA_RIGHT | TA_BOTTOM), dc.GetTextAlign());
}

// ---- Blits ------------------------------------------------------------------------------

TEST(DCBlit, BitBltAndStretchBltCopyFromSourceDC)
{
    zotest::Dib source(2, 2, kRed), target(8, 8, kWhite);
    source.SetPixel(1, 1, kBlue);
    DibDC src(source);
    DibDC dst(target);
    EXPECT_TRUE(dst.BitBlt(1, 1, 2, 2, &src, 0, 0, SRCCOPY));
    ZOTEST_EXPECT_PIXEL(target, 1, 1, kRed);
    ZOTEST_EXPECT_PIXEL(target, 2, 2, kBlue);
    EXPECT_TRUE(dst.StretchBlt(4, 4, 4, 4, &src, 0, 0, 2, 2, SRCCOPY));
    ZOTEST_EXPECT_FILL(target, CRect(4, 4, 6, 6), kRed);
    ZOTEST_EXPECT_FILL(target, CRect(6, 6, 8, 8), kBlue);
}

TEST(DCBlit, TransparentBltSkipsTheKeyColour)
{
    zotest::Dib source(3, 1, kMagenta), target(3, 1, kBlue);
    source.SetPixel(1, 0, kRed);
    DibDC src(source);
    DibDC dst(target);
    EXPECT_TRUE(dst.TransparentBlt(0, 0, 3, 1, &src, 0, 0, 3, 1, kMagenta));
    ZOTEST_EXPECT_PIXEL(target, 0, 0, kBlue);
    ZOTEST_EXPECT_PIXEL(target, 1, 0, kRed);
    ZOTEST_EXPECT_PIXEL(target, 2, 0, kBlue);
    EXPECT_FALSE(dst.TransparentBlt(0, 0, 3, 1, NULL, 0, 0, 3, 1, kMagenta));
}

TEST(DCBlit, AlphaBlendWithConstantAlpha)
{
    zotest::Dib source(2, 2, kWhite), target(2, 2, kBlack);
    DibDC src(source);
    DibDC dst(target);
    EXPECT_TRUE(dst.AlphaBlend(0, 0, 2, 2, &src, 0, 0, 2, 2, Blend(128, 0)));
    EXPECT_TRUE(ChannelsNear(target.Pixel(0, 0), RGB(128, 128, 128), 1));
}

TEST(DCBlit, AlphaBlendWithPerPixelAlpha)
{
    // A premultiplied source: half-transparent red (A 128, R 128) and a fully transparent pixel.
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = 2;
    info.bmiHeader.biHeight = -1;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = NULL;
    CBitmap bitmap;
    bitmap.Attach(::CreateDIBSection(NULL, &info, DIB_RGB_COLORS, &bits, NULL, 0));
    ASSERT_NE(nullptr, bits);
    DWORD* pixels = (DWORD*)bits;
    pixels[0] = 0x80800000;
    pixels[1] = 0x00000000;
    CDC src;
    src.CreateCompatibleDC(NULL);
    CBitmap* old = src.SelectObject(&bitmap);
    zotest::Dib target(2, 1, kGreen);
    DibDC dst(target);
    EXPECT_TRUE(dst.AlphaBlend(0, 0, 2, 1, &src, 0, 0, 2, 1, Blend(255, AC_SRC_ALPHA)));
    src.SelectObject(old);
    EXPECT_TRUE(ChannelsNear(target.Pixel(0, 0), RGB(128, 127, 0), 1));
    ZOTEST_EXPECT_PIXEL(target, 1, 0, kGreen);
}

// ---- Clipping ---------------------------------------------------------------------------

TEST(DCClip, IntersectAndExcludeLimitDrawing)
{
    zotest::Dib dib(10, 10, kWhite);
    DibDC dc(dib);
    EXPECT_EQ(SIMPLEREGION, dc.IntersectClipRect(CRect(2, 2, 8, 8)));
    EXPECT_EQ(COMPLEXREGION, dc.ExcludeClipRect(4, 4, 6, 6));
    CRect box;
    EXPECT_EQ(COMPLEXREGION, dc.GetClipBox(&box));
    EXPECT_EQ(CRect(2, 2, 8, 8), box);
    EXPECT_TRUE(dc.PtVisible(3, 3));
    EXPECT_FALSE(dc.PtVisible(CPoint(5, 5)));
    EXPECT_FALSE(dc.RectVisible(CRect(0, 0, 2, 2)));
    dc.FillSolidRect(0, 0, 10, 10, kRed);
    ZOTEST_EXPECT_PIXEL(dib, 2, 2, kRed);
    ZOTEST_EXPECT_PIXEL(dib, 5, 5, kWhite);
    ZOTEST_EXPECT_PIXEL(dib, 1, 1, kWhite);
    EXPECT_NE(ERROR, dc.SelectClipRgn(NULL));
    dc.FillSolidRect(0, 0, 1, 1, kBlue);
    ZOTEST_EXPECT_PIXEL(dib, 0, 0, kBlue);
}

TEST(DCClip, OffsetClipRgnAndCombineMode)
{
    zotest::Dib dib(10, 10, kWhite);
    DibDC dc(dib);
    CRgn region;
    region.CreateRectRgn(0, 0, 2, 2);
    dc.SelectClipRgn(&region);
    EXPECT_EQ(SIMPLEREGION, dc.OffsetClipRgn(CSize(3, 3)));
    CRgn more;
    more.CreateRectRgn(8, 8, 10, 10);
    EXPECT_EQ(COMPLEXREGION, dc.SelectClipRgn(&more, RGN_OR));
    dc.FillSolidRect(0, 0, 10, 10, kGreen);
    ZOTEST_EXPECT_FILL(dib, CRect(3, 3, 5, 5), kGreen);
    ZOTEST_EXPECT_FILL(dib, CRect(8, 8, 10, 10), kGreen);
    ZOTEST_EXPECT_PIXEL(dib, 0, 0, kWhite);
}

// ---- State and mapping ------------------------------------------------------------------

TEST(DCState, SaveAndRestore)
{
    zotest::Dib dib(4, 4);
    DibDC dc(dib);
    dc.SetTextColor(kRed);
    int saved = dc.SaveDC();
    EXPECT_NE(0, saved);
    dc.SetTextColor(kBlue);
    EXPECT_TRUE(dc.RestoreDC(saved));
    EXPECT_EQ(kRed, dc.GetTextColor());
    CDC empty;
    EXPECT_FALSE(empty.RestoreDC(-1));
}

TEST(DCState, ViewportOriginMovesDrawingAndConversions)
{
    zotest::Dib dib(10, 10, kWhite);
    DibDC dc(dib);
    EXPECT_EQ(CPoint(0, 0), dc.SetViewportOrg(3, 2));
    EXPECT_EQ(CPoint(3, 2), dc.OffsetViewportOrg(1, 1));
    EXPECT_EQ(CPoint(4, 3), dc.GetViewportOrg());
    dc.FillSolidRect(0, 0, 1, 1, kRed);
    ZOTEST_EXPECT_PIXEL(dib, 4, 3, kRed);
    CPoint point(1, 1);
    dc.LPtoDP(&point);
    EXPECT_EQ(CPoint(5, 4), point);
    CRect rect(0, 0, 2, 2);
    dc.LPtoDP(&rect);
    EXPECT_EQ(CRect(4, 3, 6, 5), rect);
    dc.DPtoLP(&rect);
    EXPECT_EQ(CRect(0, 0, 2, 2), rect);
    CSize size(2, 3);
    dc.LPtoDP(&size);
    EXPECT_EQ(CSize(2, 3), size) << "sizes do not move with the origin";
}

TEST(DCState, AnisotropicScaling)
{
    zotest::Dib dib(4, 4);
    DibDC dc(dib);
    EXPECT_EQ(MM_TEXT, dc.SetMapMode(MM_ANISOTROPIC));
    dc.SetWindowExt(1, 1);
    dc.SetViewportExt(CSize(2, 3));
    EXPECT_EQ(CSize(1, 1), dc.GetWindowExt());
    EXPECT_EQ(CSize(2, 3), dc.GetViewportExt());
    CSize size(5, 5);
    dc.LPtoDP(&size);
    EXPECT_EQ(CSize(10, 15), size);
    EXPECT_EQ(CSize(2, 3), dc.ScaleViewportExt(2, 1, 1, 1));
    EXPECT_EQ(CSize(4, 3), dc.GetViewportExt());
    EXPECT_EQ(CPoint(0, 0), dc.SetWindowOrg(CPoint(1, 1)));
    EXPECT_EQ(CPoint(1, 1), dc.GetWindowOrg());
    EXPECT_EQ(MM_ANISOTROPIC, dc.GetMapMode());
}

TEST(DCState, BrushOriginShiftsPatterns)
{
    CBitmap pattern;
    const WORD rows[8] = { 0x55, 0x55, 0x55, 0x55, 0x55, 0x55, 0x55, 0x55 }; // 0 1 0 1 ...
    pattern.CreateBitmap(8, 8, 1, 1, rows);
    CBrush brush(&pattern);
    // Paints one row of the pattern with the brush origin at (originX, 0).
    auto paint = [&brush](zotest::Dib& dib, int originX) {
        DibDC dc(dib);
        dc.SetTextColor(kBlack);
        dc.SetBkColor(kWhite);
        CBrush* old = dc.SelectObject(&brush);
        EXPECT_EQ(CPoint(0, 0), dc.SetBrushOrg(originX, 0));
        EXPECT_EQ(CPoint(originX, 0), dc.GetBrushOrg());
        dc.PatBlt(0, 0, 4, 1, PATCOPY);
        dc.SelectObject(old);
    };
    zotest::Dib shifted(4, 1, kWhite), unshifted(4, 1, kWhite);
    paint(shifted, 1);
    paint(unshifted, 0);
    EXPECT_NE(shifted.Pixel(0, 0), shifted.Pixel(1, 0));
    EXPECT_EQ(shifted.Pixel(1, 0), unshifted.Pixel(0, 0)) << "the origin moves the pattern by one pixel";
}

TEST(DCState, DeviceCapsReadAttributeDC)
{
    zotest::Dib dib(4, 4);
    DibDC dc(dib);
    EXPECT_EQ(::GetDeviceCaps(dib.dc(), BITSPIXEL), dc.GetDeviceCaps(BITSPIXEL));
}

// ---- Text -------------------------------------------------------------------------------

// A DC that counts its TextOut calls, as library code derives DCs and overrides the
// text operations.
class CountingDC : public CDC
{
public:
    int calls = 0;
    BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount) override
    {
        ++calls;
        return CDC::TextOut(x, y, lpszString, nCount);
    }
    using CDC::TextOut;
};

TEST(DCText, StringOverloadsDispatchToVirtualOperations)
{
    zotest::Dib dib(40, 20, kWhite);
    CountingDC dc;
    dc.Attach(dib.dc());
    CDC* base = &dc;
    EXPECT_TRUE(base->TextOut(0, 0, CString(_T("ab"))));
    EXPECT_EQ(1, dc.calls);
    dc.Detach();
}

TEST(DCText, DrawTextLandsInsideItsRectangle)
{
    zotest::Dib dib(60, 30, kWhite);
    DibDC dc(dib);
    dc.SetTextColor(kBlack);
    dc.SetBkMode(TRANSPARENT);
    CRect rect(10, 5, 50, 25);
    EXPECT_GT(dc.DrawText(CString(_T("Hi")), &rect, DT_SINGLELINE | DT_CENTER | DT_VCENTER), 0);
    RECT painted = zotest::BoundsOfDifferences(dib, kWhite);
    EXPECT_FALSE(::IsRectEmpty(&painted));
    EXPECT_GE(painted.left, rect.left);
    EXPECT_LE(painted.right, rect.right);
    EXPECT_GE(painted.top, rect.top);
    EXPECT_LE(painted.bottom, rect.bottom);
}

TEST(DCText, DrawTextExLeavesCallerStringIntact)
{
    zotest::Dib dib(20, 20, kWhite);
    DibDC dc(dib);
    CString text(_T("a long text that cannot fit"));
    CRect rect(0, 0, 20, 20);
    dc.DrawTextEx(text, &rect, DT_SINGLELINE | DT_END_ELLIPSIS | DT_MODIFYSTRING, NULL);
    EXPECT_EQ(CString(_T("a long text that cannot fit")), text);
}

TEST(DCText, TextExtentMatchesPlatformMeasure)
{
    zotest::Dib dib(4, 4);
    DibDC dc(dib);
    SIZE expected;
    ::GetTextExtentPoint32W(dib.dc(), L"Extent", 6, &expected);
    EXPECT_EQ(CSize(expected), dc.GetTextExtent(_T("Extent"), 6));
    CString face;
    EXPECT_GT(dc.GetTextFace(face), 0);
    EXPECT_FALSE(face.IsEmpty());
}

TEST(DCText, TabbedTextOutReturnsExtent)
{
    zotest::Dib dib(80, 20, kWhite);
    DibDC dc(dib);
    CSize extent = dc.TabbedTextOut(0, 0, CString(_T("a\tb")), 0, NULL, 0);
    EXPECT_GT(extent.cx, 0);
    EXPECT_GT(extent.cy, 0);
    EXPECT_EQ(extent, dc.GetTabbedTextExtent(CString(_T("a\tb")), 0, NULL));
}

TEST(DCText, ExtTextOutOpaqueFillsItsRectangle)
{
    zotest::Dib dib(10, 10, kWhite);
    DibDC dc(dib);
    dc.SetBkColor(kBlue);
    CRect rect(1, 1, 4, 4);
    EXPECT_TRUE(dc.ExtTextOut(0, 0, ETO_OPAQUE, &rect, CString(), NULL));
    ZOTEST_EXPECT_FILL(dib, rect, kBlue);
    ZOTEST_EXPECT_BOUNDS(dib, kWhite, rect);
}

// ---- Edges, icons and states ------------------------------------------------------------

TEST(DCDecorations, DrawEdgeAndFocusRectPaintTheFrame)
{
    // The edge colours are system colours, white among them: start from a colour none uses.
    zotest::Dib dib(12, 12, zotest::kUnpainted);
    DibDC dc(dib);
    CRect edge(0, 0, 6, 6);
    EXPECT_TRUE(dc.DrawEdge(&edge, EDGE_SUNKEN, BF_RECT));
    ZOTEST_EXPECT_BOUNDS(dib, zotest::kUnpainted, CRect(0, 0, 6, 6));
    ZOTEST_EXPECT_PIXEL(dib, 0, 0, ::GetSysColor(COLOR_3DSHADOW));
    zotest::Dib focus(8, 8, kWhite);
    DibDC focusDC(focus);
    focusDC.DrawFocusRect(CRect(1, 1, 7, 7));
    RECT painted = zotest::BoundsOfDifferences(focus, kWhite);
    EXPECT_EQ(CRect(1, 1, 7, 7), CRect(painted));
    ZOTEST_EXPECT_PIXEL(focus, 3, 3, kWhite);
}

TEST(DCDecorations, DrawIconAndDrawStateLandAtTheirPoint)
{
    zotest::Dib dib(80, 80, kWhite);
    DibDC dc(dib);
    HICON icon = ::LoadIcon(NULL, IDI_APPLICATION);
    EXPECT_TRUE(dc.DrawIcon(CPoint(40, 40), icon));
    RECT painted = zotest::BoundsOfDifferences(dib, kWhite);
    EXPECT_GE(painted.left, 40);
    EXPECT_GE(painted.top, 40);
    EXPECT_FALSE(dc.DrawIcon(0, 0, NULL));

    zotest::Dib state(20, 20, kWhite);
    DibDC stateDC(state);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&stateDC, 4, 4);
    CDC memory;
    memory.CreateCompatibleDC(&stateDC);
    CBitmap* old = memory.SelectObject(&bitmap);
    memory.FillSolidRect(0, 0, 4, 4, kRed);
    memory.SelectObject(old);
    EXPECT_TRUE(stateDC.DrawState(CPoint(5, 6), CSize(4, 4), &bitmap, DSS_NORMAL));
    ZOTEST_EXPECT_FILL(state, CRect(5, 6, 9, 10), kRed);
    ZOTEST_EXPECT_BOUNDS(state, kWhite, CRect(5, 6, 9, 10));
}

// ---- Window DCs -------------------------------------------------------------------------

// A CWnd that wraps a test window only for the length of one test.
class BorrowedWnd : public CWnd
{
public:
    explicit BorrowedWnd(HWND hWnd) { m_hWnd = hWnd; }
    ~BorrowedWnd() { m_hWnd = NULL; }
};

TEST(WindowDC, PaintDCValidatesTheUpdateRegion)
{
    zotest::ScopedWindow window(zotest::CreateSolidWindow(CRect(0, 0, 40, 30), kRed));
    BorrowedWnd wnd(window);
    ::InvalidateRect(window, NULL, FALSE);
    {
        CPaintDC dc(&wnd);
        EXPECT_NE(nullptr, dc.m_hDC);
        EXPECT_EQ(dc.m_hDC, dc.m_ps.hdc);
        EXPECT_EQ(CRect(0, 0, 40, 30), CRect(dc.m_ps.rcPaint));
    }
    RECT update;
    EXPECT_FALSE(::GetUpdateRect(window, &update, FALSE));
}

TEST(WindowDC, ClientAndWindowDCsBelongToTheWindow)
{
    zotest::ScopedWindow window(zotest::CreateSolidWindow(CRect(0, 0, 40, 30), kRed));
    BorrowedWnd wnd(window);
    {
        CClientDC dc(&wnd);
        ASSERT_NE(nullptr, dc.m_hDC);
        EXPECT_EQ((HWND)window, ::WindowFromDC(dc.m_hDC));
        CWnd* owner = dc.GetWindow();
        ASSERT_NE(nullptr, owner);
        EXPECT_EQ((HWND)window, owner->m_hWnd);
    }
    {
        CWindowDC dc(&wnd);
        ASSERT_NE(nullptr, dc.m_hDC);
        EXPECT_EQ((HWND)window, ::WindowFromDC(dc.m_hDC));
    }
    CWnd::DeleteTempMap();
}

TEST(WindowDC, ScreenDCForNullWindow)
{
    CClientDC dc(NULL);
    EXPECT_NE(nullptr, dc.m_hDC);
    EXPECT_GT(dc.GetDeviceCaps(HORZRES), 0);
}

TEST(WindowDC, WindowDCsLeakNothing)
{
    zotest::ScopedWindow window(zotest::CreateSolidWindow(CRect(0, 0, 20, 20), kRed));
    BorrowedWnd wnd(window);
    ZOTEST_EXPECT_NO_LEAKS(10, [&wnd] {
        CClientDC client(&wnd);
        CWindowDC whole(&wnd);
        client.FillSolidRect(0, 0, 2, 2, kBlue);
    }, zotest::count_gdi | zotest::count_heap);
}

} // namespace
