// CPngImage: resources that are missing or of another type.
#include <afxwin.h>
#include <afxcontrolbars.h>  // reaches CPngImage as MFC programs commonly do
#include <gtest/gtest.h>
#include <zotest/resource_counter.h>
#include "gdi_test_resources.h"

namespace {

TEST(PngImage, MissingResourceFailsAndKeepsNothing)
{
    CPngImage image;
    EXPECT_FALSE(image.Load(4321));
    EXPECT_EQ(nullptr, image.m_hObject);
    EXPECT_FALSE(image.Load(IDB_STRIP3)) << "a bitmap resource is not of type PNG";
    EXPECT_FALSE(image.Load((LPCTSTR)NULL));
}

} // namespace
