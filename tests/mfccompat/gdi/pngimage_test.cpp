// CPngImage: 32-bit pictures with straight alpha from resources, files and buffers.
#include <afxwin.h>
#include <afxcontrolbars.h>  // reaches CPngImage as MFC programs commonly do
#include <gtest/gtest.h>
#include <zotest/resource_counter.h>
#include "gdi_test_resources.h"

namespace {

struct Rgba {
    BYTE r, g, b, a;
};

// The pixels make_test_images.py writes into alpha4x2.png, rows top to bottom.
const Rgba kExpected[2][4] = {
    { { 255, 0, 0, 255 }, { 0, 255, 0, 128 }, { 0, 0, 255, 0 }, { 255, 255, 255, 64 } },
    { { 10, 20, 30, 255 }, { 200, 100, 50, 128 }, { 0, 0, 0, 0 }, { 128, 128, 128, 192 } },
};

void ExpectKnownPixels(CBitmap& image)
{
    BITMAP info;
    ASSERT_EQ((int)sizeof(BITMAP), image.GetBitmap(&info));
    EXPECT_EQ(4, info.bmWidth);
    EXPECT_EQ(2, info.bmHeight);
    EXPECT_EQ(32, info.bmBitsPixel);
    BYTE bits[2 * 4 * 4] = {};
    ASSERT_EQ(sizeof(bits), image.GetBitmapBits(sizeof(bits), bits));
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 4; ++x) {
            const BYTE* p = bits + (y * 4 + x) * 4;
            const Rgba& e = kExpected[y][x];
            EXPECT_EQ(e.b, p[0]) << "blue at " << x << "," << y;
            EXPECT_EQ(e.g, p[1]) << "green at " << x << "," << y;
            EXPECT_EQ(e.r, p[2]) << "red at " << x << "," << y;
            EXPECT_EQ(e.a, p[3]) << "alpha at " << x << "," << y;
        }
    }
}

std::vector<BYTE> ResourceBytes()
{
    HMODULE module = ::GetModuleHandleW(NULL);
    HRSRC resource = ::FindResourceW(module, MAKEINTRESOURCEW(IDP_ALPHA4X2), L"PNG");
    const BYTE* data = (const BYTE*)::LockResource(::LoadResource(module, resource));
    return std::vector<BYTE>(data, data + ::SizeofResource(module, resource));
}

TEST(PngImage, LoadsResourceByNumberWithStraightAlpha)
{
    CPngImage image;
    ASSERT_TRUE(image.Load(IDP_ALPHA4X2));
    ExpectKnownPixels(image);
}

TEST(PngImage, LoadsResourceByNameFromGivenModule)
{
    CPngImage image;
    ASSERT_TRUE(image.Load(_T("ALPHA_NAMED"), ::GetModuleHandleW(NULL)));
    ExpectKnownPixels(image);
}

TEST(PngImage, BitmapIsATopDownDibSection)
{
    CPngImage image;
    ASSERT_TRUE(image.Load(IDP_ALPHA4X2));
    DIBSECTION section;
    ASSERT_EQ((int)sizeof(DIBSECTION), image.GetObject(sizeof(section), &section));
    const BYTE* first = (const BYTE*)section.dsBm.bmBits;
    EXPECT_EQ(255, first[2]) << "row 0 of memory is the picture's top row";
    EXPECT_EQ(30, first[16]);
}

TEST(PngImage, MissingResourceFailsAndKeepsNothing)
{
    CPngImage image;
    EXPECT_FALSE(image.Load(4321));
    EXPECT_EQ(nullptr, image.m_hObject);
    EXPECT_FALSE(image.Load(IDB_STRIP3)) << "a bitmap resource is not of type PNG";
    EXPECT_FALSE(image.Load((LPCTSTR)NULL));
}

TEST(PngImage, LoadsFromBuffer)
{
    std::vector<BYTE> bytes = ResourceBytes();
    CPngImage image;
    ASSERT_TRUE(image.LoadFromBuffer(bytes.data(), (UINT)bytes.size()));
    ExpectKnownPixels(image);
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

TEST(PngImage, LoadsFromFile)
{
    wchar_t folder[MAX_PATH], path[MAX_PATH];
    ::GetTempPathW(MAX_PATH, folder);
    ::GetTempFileNameW(folder, L"zop", 0, path);
    std::vector<BYTE> bytes = ResourceBytes();
    HANDLE file = ::CreateFileW(path, GENERIC_WRITE, 0, NULL, CREATE_ALWAYS, 0, NULL);
    DWORD written = 0;
    ::WriteFile(file, bytes.data(), (DWORD)bytes.size(), &written, NULL);
    ::CloseHandle(file);

    CPngImage image;
    EXPECT_TRUE(image.LoadFromFile(path));
    ExpectKnownPixels(image);
    ::DeleteFileW(path);
    CPngImage missing;
    EXPECT_FALSE(missing.LoadFromFile(path));
    EXPECT_FALSE(missing.LoadFromFile(NULL));
}

TEST(PngImage, ReloadReplacesThePictureWithoutLeaking)
{
    CPngImage image;
    ASSERT_TRUE(image.Load(IDP_ALPHA4X2));
    ZOTEST_EXPECT_NO_LEAKS(10, [&image] { EXPECT_TRUE(image.Load(IDP_ALPHA4X2)); },
                           zotest::count_gdi);
    ExpectKnownPixels(image);
}

TEST(PngImage, DetachedBitmapOutlivesTheImage)
{
    HBITMAP bitmap;
    {
        CPngImage image;
        ASSERT_TRUE(image.Load(IDP_ALPHA4X2));
        bitmap = (HBITMAP)image.Detach();
    }
    EXPECT_EQ((DWORD)OBJ_BITMAP, ::GetObjectType(bitmap));
    ::DeleteObject(bitmap);
}

} // namespace
