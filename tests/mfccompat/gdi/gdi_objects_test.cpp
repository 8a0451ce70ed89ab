// GDI object wrappers: creation, handle ownership, temporary objects, typed accessors.
#define OEMRESOURCE  // OBM_ bitmap numbers
#include <afxwin.h>
#include <gtest/gtest.h>
#include <zotest/resource_counter.h>

namespace {

bool IsLiveGdiObject(HGDIOBJ handle)
{
    return ::GetObjectType(handle) != 0;
}

// ---- Ownership ----------------------------------------------------------------------

TEST(GdiObjectOwnership, DestructorDeletesTheHandle)
{
    HGDIOBJ handle;
    {
        CPen pen(PS_SOLID, 1, RGB(1, 2, 3));
        handle = pen.m_hObject;
        ASSERT_TRUE(IsLiveGdiObject(handle));
    }
    EXPECT_FALSE(IsLiveGdiObject(handle));
}

TEST(GdiObjectOwnership, DetachedHandleOutlivesTheWrapper)
{
    HGDIOBJ handle;
    {
        CBrush brush(RGB(4, 5, 6));
        handle = brush.Detach();
        EXPECT_EQ(nullptr, brush.m_hObject);
    }
    EXPECT_TRUE(IsLiveGdiObject(handle));
    ::DeleteObject(handle);
}

TEST(GdiObjectOwnership, AttachRefusesNullAndASecondHandle)
{
    CRgn region;
    EXPECT_FALSE(region.Attach(NULL));
    ASSERT_TRUE(region.CreateRectRgn(0, 0, 4, 4));
    HRGN other = ::CreateRectRgn(0, 0, 2, 2);
    EXPECT_FALSE(region.Attach(other));
    ::DeleteObject(other);
}

TEST(GdiObjectOwnership, CreatingTwiceKeepsTheFirstAndLeaksNothing)
{
    CBrush brush;
    ASSERT_TRUE(brush.CreateSolidBrush(RGB(1, 1, 1)));
    HGDIOBJ first = brush.m_hObject;
    ZOTEST_EXPECT_NO_LEAKS(5, [&] { EXPECT_FALSE(brush.CreateSolidBrush(RGB(2, 2, 2))); },
                           zotest::count_gdi);
    EXPECT_EQ(first, brush.m_hObject);
}

TEST(GdiObjectOwnership, DeleteObjectOnEmptyWrapperFails)
{
    CFont font;
    EXPECT_FALSE(font.DeleteObject());
    EXPECT_EQ(0u, font.GetObjectType());
}

TEST(GdiObjectOwnership, SafeHandleThroughNullPointer)
{
    CGdiObject* none = NULL;
    EXPECT_EQ(nullptr, none->GetSafeHandle());
}

TEST(GdiObjectOwnership, CreateAndDestroyCyclesLeakNoGdiObjects)
{
    ZOTEST_EXPECT_NO_LEAKS(20, [] {
        CPen pen(PS_DASH, 1, RGB(9, 9, 9));
        CBrush hatch(HS_CROSS, RGB(1, 2, 3));
        CFont font;
        font.CreatePointFont(90, _T("Tahoma"));
        CBitmap bitmap;
        bitmap.CreateBitmap(8, 8, 1, 32, NULL);
        CRgn region;
        region.CreateEllipticRgn(0, 0, 10, 10);
    }, zotest::count_gdi);
}

TEST(GdiObjectOwnership, ConstructorThatCannotCreateThrowsResourceException)
{
    CResourceException* thrown = NULL;
    try {
        CBrush pattern((CBitmap*)NULL);
    } catch (CResourceException* e) {
        thrown = e;
    }
    ASSERT_NE(nullptr, thrown);
    EXPECT_TRUE(thrown->IsKindOf(RUNTIME_CLASS(CSimpleException)));
    thrown->Delete();
}

TEST(GdiObjectOwnership, StockObjectIsWrappedWithoutBeingDestroyed)
{
    HGDIOBJ stock = ::GetStockObject(BLACK_BRUSH);
    {
        CGdiObject wrapper;
        ASSERT_TRUE(wrapper.CreateStockObject(BLACK_BRUSH));
        EXPECT_EQ(stock, wrapper.m_hObject);
        EXPECT_EQ((UINT)OBJ_BRUSH, wrapper.GetObjectType());
    }
    EXPECT_TRUE(IsLiveGdiObject(stock));
}

TEST(GdiObjectOwnership, EqualityComparesHandles)
{
    CGdiObject a, b;
    a.CreateStockObject(WHITE_PEN);
    b.CreateStockObject(WHITE_PEN);
    EXPECT_TRUE(a == b);
    b.Detach();
    b.CreateStockObject(BLACK_PEN);
    EXPECT_TRUE(a != b);
}

// ---- Temporary and permanent objects ---------------------------------------------------

TEST(GdiObjectMap, ForeignHandleGivesTemporaryObjectOfMatchingClass)
{
    HPEN pen = ::CreatePen(PS_SOLID, 2, RGB(1, 2, 3));
    CGdiObject* temp = CGdiObject::FromHandle(pen);
    ASSERT_NE(nullptr, temp);
    EXPECT_EQ(pen, temp->m_hObject);
    EXPECT_TRUE(temp->IsKindOf(RUNTIME_CLASS(CPen)));
    EXPECT_EQ(temp, CPen::FromHandle(pen)) << "repeated calls return the same temporary object";
    CGdiObject::DeleteTempMap();
    EXPECT_TRUE(IsLiveGdiObject(pen)) << "deleting temporary objects never deletes the handle";
    ::DeleteObject(pen);
}

TEST(GdiObjectMap, AttachedHandleGivesThePermanentObject)
{
    CBrush brush;
    brush.CreateSolidBrush(RGB(7, 7, 7));
    EXPECT_EQ(&brush, CBrush::FromHandle((HBRUSH)brush.m_hObject));
    HGDIOBJ handle = brush.Detach();
    CGdiObject* temp = CGdiObject::FromHandle(handle);
    EXPECT_NE(&brush, temp);
    CGdiObject::DeleteTempMap();
    ::DeleteObject(handle);
}

TEST(GdiObjectMap, NullHandleGivesNull)
{
    EXPECT_EQ(nullptr, CGdiObject::FromHandle(NULL));
    EXPECT_EQ(nullptr, CRgn::FromHandle(NULL));
}

TEST(GdiObjectMap, TemporaryGivesWayToAnObjectAttachedLater)
{
    HBRUSH handle = ::CreateSolidBrush(RGB(8, 8, 8));
    CBrush* temp = CBrush::FromHandle(handle);
    ASSERT_NE(nullptr, temp);
    CBrush brush;
    ASSERT_TRUE(brush.Attach(handle));
    EXPECT_EQ(&brush, CBrush::FromHandle(handle));
    EXPECT_EQ(&brush, CGdiObject::FromHandle(handle));
}

TEST(GdiObjectMap, UnlockingTempMapsDeletesTemporariesButNotHandles)
{
    HBRUSH brush = ::CreateSolidBrush(RGB(3, 3, 3));
    ZOTEST_EXPECT_NO_LEAKS(10, [brush] {
        AfxLockTempMaps();
        CBrush* temp = CBrush::FromHandle(brush);
        ASSERT_NE(nullptr, temp);
        LOGBRUSH logBrush;
        EXPECT_EQ((int)sizeof(logBrush), temp->GetLogBrush(&logBrush));
        AfxUnlockTempMaps();
    }, zotest::count_heap | zotest::count_gdi);
    EXPECT_TRUE(IsLiveGdiObject(brush));
    ::DeleteObject(brush);
}

// ---- Typed accessors ------------------------------------------------------------------

TEST(GdiObjectTyped, PenReportsItsLogicalPen)
{
    CPen pen;
    ASSERT_TRUE(pen.CreatePen(PS_DOT, 1, RGB(10, 20, 30)));
    LOGPEN logPen;
    EXPECT_EQ((int)sizeof(LOGPEN), pen.GetLogPen(&logPen));
    EXPECT_EQ((UINT)PS_DOT, logPen.lopnStyle);
    EXPECT_EQ(RGB(10, 20, 30), logPen.lopnColor);
}

TEST(GdiObjectTyped, GeometricPenFromLogBrush)
{
    LOGBRUSH logBrush = { BS_SOLID, RGB(5, 6, 7), 0 };
    CPen pen(PS_GEOMETRIC | PS_SOLID | PS_ENDCAP_FLAT, 3, &logBrush);
    EXPECT_EQ((UINT)OBJ_EXTPEN, pen.GetObjectType());
}

TEST(GdiObjectTyped, BrushReportsItsLogicalBrush)
{
    CBrush brush(HS_DIAGCROSS, RGB(1, 200, 3));
    LOGBRUSH logBrush;
    EXPECT_EQ((int)sizeof(LOGBRUSH), brush.GetLogBrush(&logBrush));
    EXPECT_EQ((UINT)BS_HATCHED, logBrush.lbStyle);
    EXPECT_EQ((ULONG_PTR)HS_DIAGCROSS, logBrush.lbHatch);
    EXPECT_EQ(RGB(1, 200, 3), logBrush.lbColor);
}

TEST(GdiObjectTyped, FontKeepsItsLogFont)
{
    CFont font;
    ASSERT_TRUE(font.CreateFont(-13, 0, 0, 0, FW_BOLD, TRUE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0, 0,
                                0, _T("Tahoma")));
    LOGFONT logFont;
    ASSERT_EQ((int)sizeof(LOGFONT), font.GetLogFont(&logFont));
    EXPECT_EQ(-13, logFont.lfHeight);
    EXPECT_EQ(FW_BOLD, logFont.lfWeight);
    EXPECT_EQ(TRUE, logFont.lfItalic);
    EXPECT_STREQ(L"Tahoma", logFont.lfFaceName);
}

TEST(GdiObjectTyped, PointFontHeightFollowsScreenResolution)
{
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(120, _T("Tahoma")));
    HDC screen = ::GetDC(NULL);
    int expected = -::MulDiv(::GetDeviceCaps(screen, LOGPIXELSY), 120, 720);
    ::ReleaseDC(NULL, screen);
    LOGFONT logFont;
    font.GetLogFont(&logFont);
    EXPECT_EQ(expected, logFont.lfHeight);
}

TEST(GdiObjectTyped, BitmapBitsRoundTrip)
{
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(2, 2, 1, 32, NULL));
    const DWORD pixels[4] = { 0x00112233, 0x00445566, 0x00778899, 0x00AABBCC };
    EXPECT_EQ(sizeof(pixels), bitmap.SetBitmapBits(sizeof(pixels), pixels));
    DWORD read[4] = {};
    EXPECT_EQ(sizeof(read), bitmap.GetBitmapBits(sizeof(read), read));
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(pixels[i], read[i]) << i;
    BITMAP info;
    ASSERT_EQ((int)sizeof(BITMAP), bitmap.GetBitmap(&info));
    EXPECT_EQ(2, info.bmWidth);
    EXPECT_EQ(32, info.bmBitsPixel);
}

TEST(GdiObjectTyped, EmptyBitmapReadsNothing)
{
    CBitmap bitmap;
    DWORD read = 0;
    EXPECT_EQ(0u, bitmap.GetBitmapBits(sizeof(read), &read));
    EXPECT_EQ(0u, bitmap.SetBitmapBits(sizeof(read), &read));
    EXPECT_EQ(CSize(0, 0), bitmap.GetBitmapDimension());
}

TEST(GdiObjectTyped, BitmapDimensionIsStored)
{
    CBitmap bitmap;
    bitmap.CreateBitmap(4, 4, 1, 1, NULL);
    EXPECT_EQ(CSize(0, 0), bitmap.SetBitmapDimension(30, 40));
    EXPECT_EQ(CSize(30, 40), bitmap.GetBitmapDimension());
}

TEST(GdiObjectTyped, BitmapLoadsFromResourceChain)
{
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.LoadBitmap(102));
    BITMAP info;
    bitmap.GetBitmap(&info);
    EXPECT_EQ(12, info.bmWidth);
    EXPECT_EQ(4, info.bmHeight);
    CBitmap missing;
    EXPECT_FALSE(missing.LoadBitmap(9999));
}

TEST(GdiObjectTyped, MappedBitmapLoadsFromResourceChain)
{
    // Colour maps act on colour tables; the 24-bit strip has none, so its colours stay.
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.LoadMappedBitmap(102));
    CDC memory;
    memory.CreateCompatibleDC(NULL);
    CBitmap* old = memory.SelectObject(&bitmap);
    EXPECT_EQ(RGB(255, 0, 0), memory.GetPixel(1, 1));
    EXPECT_EQ(RGB(0, 0, 255), memory.GetPixel(9, 1));
    memory.SelectObject(old);
    CBitmap missing;
    EXPECT_FALSE(missing.LoadMappedBitmap(9999));
}

TEST(GdiObjectTyped, SystemColourBrush)
{
    CBrush brush;
    ASSERT_TRUE(brush.CreateSysColorBrush(COLOR_BTNFACE));
    LOGBRUSH logBrush;
    brush.GetLogBrush(&logBrush);
    EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), logBrush.lbColor);
}

TEST(GdiObjectTyped, OemBitmapLoads)
{
    CBitmap bitmap;
    EXPECT_TRUE(bitmap.LoadOEMBitmap(OBM_CHECK));
}

// ---- Regions --------------------------------------------------------------------------

TEST(Region, CombineAndQuery)
{
    CRgn a, b, both;
    a.CreateRectRgn(0, 0, 10, 10);
    b.CreateRectRgn(5, 5, 20, 20);
    both.CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(COMPLEXREGION, both.CombineRgn(&a, &b, RGN_OR));
    CRect box;
    EXPECT_EQ(COMPLEXREGION, both.GetRgnBox(&box));
    EXPECT_EQ(CRect(0, 0, 20, 20), box);
    EXPECT_TRUE(both.PtInRegion(15, 15));
    EXPECT_FALSE(both.PtInRegion(CPoint(15, 2)));
    CRect inside(1, 1, 3, 3);
    EXPECT_TRUE(both.RectInRegion(&inside));
}

TEST(Region, CopyOffsetAndEqual)
{
    CRgn source, copy;
    source.CreateRoundRectRgn(0, 0, 10, 10, 4, 4);
    copy.CreateRectRgn(0, 0, 1, 1);
    EXPECT_NE(ERROR, copy.CopyRgn(&source));
    EXPECT_TRUE(copy.EqualRgn(&source));
    EXPECT_NE(ERROR, copy.OffsetRgn(CPoint(5, 0)));
    EXPECT_FALSE(copy.EqualRgn(&source));
    CRect box;
    copy.GetRgnBox(&box);
    EXPECT_EQ(5, box.left);
}

TEST(Region, SetRectAndPolygon)
{
    CRgn region;
    POINT triangle[3] = { { 0, 0 }, { 10, 0 }, { 0, 10 } };
    ASSERT_TRUE(region.CreatePolygonRgn(triangle, 3, ALTERNATE));
    EXPECT_TRUE(region.PtInRegion(2, 2));
    EXPECT_FALSE(region.PtInRegion(8, 8));
    region.SetRectRgn(CRect(20, 20, 30, 30));
    EXPECT_TRUE(region.PtInRegion(25, 25));
}

TEST(Region, EmptyWrapperAndBadInputGiveErrors)
{
    CRgn empty, other;
    other.CreateRectRgn(0, 0, 1, 1);
    EXPECT_EQ(ERROR, empty.CombineRgn(&other, &other, RGN_OR));
    EXPECT_EQ(ERROR, empty.CopyRgn(&other));
    EXPECT_EQ(ERROR, empty.OffsetRgn(1, 1));
    EXPECT_FALSE(empty.PtInRegion(0, 0));
    EXPECT_FALSE(other.EqualRgn(NULL));
    EXPECT_FALSE(empty.CreatePolygonRgn(NULL, 3, ALTERNATE));
    CRect box;
    EXPECT_EQ(ERROR, empty.GetRgnBox(&box));
}

} // namespace
