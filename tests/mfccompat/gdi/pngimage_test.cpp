// CPngImage: 32-bit pictures with straight alpha from resources, files and buffers.
#include <afxwin.h>
#include <afxcontrolbars.h>  // reaches CPngImage as MFC programs commonly do
#include <gtest/gtest.h>
#include <zotest/resource_counter.h>
#include "gdi_test_resources.h"

namespace {

std::vector<BYTE> ResourceBytes()
{
    HMODULE module = ::GetModuleHandleW(NULL);
    HRSRC resource = ::FindResourceW(module, MAKEINTRESOURCEW(IDP_ALPHA4X2), L"PNG");
    const BYTE* data = (const BYTE*)::LockResource(::LoadResource(module, resource));
    return std::vector<BYTE>(data, data + ::SizeofResource(module, resource));
}

TEST(PngImage, MissingResourceFailsAndKeepsNothing)
{
    CPngImage image;
    EXPECT_FALSE(image.Load(4321));
    EXPECT_EQ(nullptr, image.m_hObject);
    EXPECT_FALSE(image.Load(IDB_STRIP3)) << "a bitmap resource is not of type PNG";
    EXPECT_FALSE(image.Load((LPCTSTR)NULL));
}

TEST(PngImage, GarbageAndEmptyBuffersFail)
{
    CPngImage image;
    BYTE garbage[64];
    memset(garbage, 0x5A, sizeof(garbage));
    EXPECT_FALSE(image.LoadFromBuffer(garbage, sizeof(garbage)));
    EXPECT_FALSE(image.LoadFromBuffer(NULL, 10));
    EXPECT_FALSE(image.LoadFromBuffer(garbage, 0));
    std::vector<BYTE> truncated = ResourceBytes();
    truncated.resize(20);
    EXPECT_FALSE(image.LoadFromBuffer(truncated.data(), (UINT)truncated.size()));
    EXPECT_EQ(nullptr, image.m_hObject);
}

} // namespace
