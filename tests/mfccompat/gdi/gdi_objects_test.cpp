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

// ---- Temporary and permanent objects ---------------------------------------------------

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

TEST(GdiObjectTyped, EmptyBitmapReadsNothing)
{
    CBitmap bitmap;
    DWORD read = 0;
    EXPECT_EQ(0u, bitmap.GetBitmapBits(sizeof(read), &read));
    EXPECT_EQ(0u, bitmap.SetBitmapBits(sizeof(read), &read));
    EXPECT_EQ(CSize(0, 0), bitmap.GetBitmapDimension());
}

// ---- Regions --------------------------------------------------------------------------

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
