// CImageList: creation, adding with masks, drawing, the handle map.
#include <afxwin.h>
#include <zoafx/imagelist.h>
#include <gtest/gtest.h>
#include <zotest/renderer.h>
#include "dib_dc.h"
#include "gdi_test_resources.h"

namespace {

const COLORREF kWhite = RGB(255, 255, 255);
const COLORREF kRed = RGB(255, 0, 0);
const COLORREF kGreen = RGB(0, 255, 0);
const COLORREF kBlue = RGB(0, 0, 255);
const COLORREF kMagenta = RGB(255, 0, 255);

// A 4x4 screen-compatible bitmap of one colour with a magenta top-left pixel.
void MakeCell(CBitmap& bitmap, COLORREF colour)
{
    CDC memory;
    memory.CreateCompatibleDC(NULL);
    HDC screen = ::GetDC(NULL);
    bitmap.Attach(::CreateCompatibleBitmap(screen, 4, 4));
    ::ReleaseDC(NULL, screen);
    CBitmap* old = memory.SelectObject(&bitmap);
    memory.FillSolidRect(0, 0, 4, 4, colour);
    memory.SetPixel(0, 0, kMagenta);
    memory.SelectObject(old);
}

TEST(ImageList, AddWithMaskColourDrawsTransparently)
{
    CImageList list;
    ASSERT_TRUE(list.Create(4, 4, ILC_COLOR24 | ILC_MASK, 2, 2));
    CBitmap red, green;
    MakeCell(red, kRed);
    MakeCell(green, kGreen);
    EXPECT_EQ(0, list.Add(&red, kMagenta));
    EXPECT_EQ(1, list.Add(&green, kMagenta));
    EXPECT_EQ(2, list.GetImageCount());

    zotest::Dib dib(10, 6, kBlue);
    DibDC dc(dib);
    EXPECT_TRUE(list.Draw(&dc, 1, CPoint(5, 1), ILD_TRANSPARENT));
    ZOTEST_EXPECT_PIXEL(dib, 5, 1, kBlue) << "the mask colour is not drawn";
    ZOTEST_EXPECT_PIXEL(dib, 6, 1, kGreen);
    ZOTEST_EXPECT_FILL(dib, CRect(5, 2, 9, 5), kGreen);
    ZOTEST_EXPECT_PIXEL(dib, 4, 1, kBlue);
}

TEST(ImageList, AddWithMaskBitmapAndImageInfo)
{
    CImageList list;
    ASSERT_TRUE(list.Create(4, 4, ILC_COLOR24 | ILC_MASK, 1, 1));
    CBitmap image, mask;
    MakeCell(image, kRed);
    mask.CreateBitmap(4, 4, 1, 1, NULL);
    EXPECT_EQ(0, list.Add(&image, &mask));
    IMAGEINFO info;
    ASSERT_TRUE(list.GetImageInfo(0, &info));
    EXPECT_EQ(CRect(0, 0, 4, 4), CRect(info.rcImage));
    EXPECT_NE(nullptr, info.hbmImage);
    EXPECT_FALSE(list.GetImageInfo(0, NULL));
}

TEST(ImageList, CreateFromBitmapResourceCutsCells)
{
    CImageList list;
    ASSERT_TRUE(list.Create(IDB_STRIP3, 4, 1, kMagenta));
    EXPECT_EQ(3, list.GetImageCount());
    zotest::Dib dib(4, 4, kWhite);
    DibDC dc(dib);
    list.Draw(&dc, 2, CPoint(0, 0), ILD_NORMAL);
    ZOTEST_EXPECT_FILL(dib, CRect(0, 0, 4, 4), kBlue);
    CImageList missing;
    EXPECT_FALSE(missing.Create(9999, 4, 1, kMagenta));
}

TEST(ImageList, ReplaceRemoveAndIcons)
{
    CImageList list;
    list.Create(16, 16, ILC_COLOR32 | ILC_MASK, 1, 1);
    HICON icon = ::LoadIcon(NULL, IDI_APPLICATION);
    EXPECT_EQ(0, list.Add(icon));
    EXPECT_EQ(1, list.Add(icon));
    EXPECT_EQ(1, list.Replace(1, icon));
    HICON extracted = list.ExtractIcon(0);
    EXPECT_NE(nullptr, extracted);
    ::DestroyIcon(extracted);
    EXPECT_TRUE(list.Remove(0));
    EXPECT_EQ(1, list.GetImageCount());
    EXPECT_EQ(-1, list.Add((HICON)NULL));
    EXPECT_TRUE(list.Remove(-1)) << "-1 removes every image";
    EXPECT_EQ(0, list.GetImageCount());
}

TEST(ImageList, BackgroundColour)
{
    CImageList list;
    list.Create(4, 4, ILC_COLOR24, 1, 1);
    list.SetBkColor(kGreen);
    EXPECT_EQ(kGreen, list.GetBkColor());
}

TEST(ImageList, HandleMapAndOwnership)
{
    HIMAGELIST handle = ::ImageList_Create(4, 4, ILC_COLOR24, 1, 1);
    CImageList* temp = CImageList::FromHandle(handle);
    ASSERT_NE(nullptr, temp);
    EXPECT_EQ(handle, temp->m_hImageList);
    EXPECT_EQ(nullptr, CImageList::FromHandlePermanent(handle));
    CImageList::DeleteTempMap();
    EXPECT_EQ(0, ::ImageList_GetImageCount(handle)) << "the handle survives its temporary wrapper";

    {
        CImageList list;
        ASSERT_TRUE(list.Attach(handle));
        EXPECT_EQ(&list, CImageList::FromHandle(handle));
        EXPECT_EQ(&list, CImageList::FromHandlePermanent(handle));
        EXPECT_FALSE(list.Attach(handle));
        EXPECT_EQ(handle, list.Detach());
        EXPECT_EQ(nullptr, CImageList::FromHandlePermanent(handle));
    }
    EXPECT_TRUE(::ImageList_Destroy(handle));
}

TEST(ImageList, EmptyListIsSafe)
{
    CImageList list;
    CImageList* none = NULL;
    EXPECT_EQ(nullptr, none->GetSafeHandle());
    EXPECT_EQ(0, list.GetImageCount());
    EXPECT_FALSE(list.DeleteImageList());
    EXPECT_FALSE(list.Draw(NULL, 0, CPoint(0, 0), ILD_NORMAL));
    CBitmap bitmap;
    EXPECT_EQ(-1, list.Add(&bitmap, kMagenta));
    EXPECT_EQ(nullptr, list.ExtractIcon(0));
}

TEST(ImageList, DuplicateAndDrawIndirect)
{
    CImageList source;
    source.Create(4, 4, ILC_COLOR24, 1, 1);
    CBitmap red;
    MakeCell(red, kRed);
    source.Add(&red, (CBitmap*)NULL);
    CImageList copy;
    ASSERT_TRUE(copy.Create(&source));
    EXPECT_EQ(1, copy.GetImageCount());
    EXPECT_NE(source.m_hImageList, copy.m_hImageList);

    zotest::Dib dib(8, 8, kWhite);
    DibDC dc(dib);
    EXPECT_TRUE(copy.DrawIndirect(&dc, 0, CPoint(2, 2), CSize(2, 2), CPoint(2, 2)));
    ZOTEST_EXPECT_FILL(dib, CRect(2, 2, 4, 4), kRed);
    ZOTEST_EXPECT_BOUNDS(dib, kWhite, CRect(2, 2, 4, 4));
}

} // namespace
