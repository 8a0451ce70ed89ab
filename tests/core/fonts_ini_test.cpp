// "Fonts.ini" beside the executable or in "..\Shared" overrides the font roles. The font
// map is read when the library starts, so every case writes its files first and then
// starts the library.
#include <gtest/gtest.h>

#include <string>

#include "core_test_support.h"

using namespace ZoControls;
using coretest::CachedLogFont;
using coretest::ExpectedFace;
using coretest::ScopedZoCtrl;

namespace {

// A "Fonts.ini" that exists for the life of the object.
class ScopedFontsIni
{
public:
    ScopedFontsIni(const std::wstring& path, const std::string& content, bool ownFolder = false)
        : path_(path), ownFolder_(ownFolder)
    {
        written_ = coretest::WriteTextFile(path_, content);
    }
    ~ScopedFontsIni() { coretest::RemoveTestFile(path_, ownFolder_); }
    bool written() const { return written_; }

private:
    std::wstring path_;
    bool ownFolder_;
    bool written_ = false;
};

std::wstring BesideExe()
{
    return coretest::ExeDirectory() + L"Fonts.ini";
}

std::wstring InShared()
{
    return coretest::ExeDirectory() + L"..\\Shared\\Fonts.ini";
}

int PixelHeight(int points)
{
    return MulDiv(points, 96, 72);
}

} // namespace

TEST(FontsIni, FileBesideTheExecutableOverridesRoles)
{
    ScopedFontsIni ini(BesideExe(), "[en-US]\r\nZoThemeFont_0=Arial,12,TRUE,yes\r\n");
    ASSERT_TRUE(ini.written());
    ScopedZoCtrl library;
    const LOGFONTW font = CachedLogFont(0, 0);
    EXPECT_EQ(font.lfHeight, -PixelHeight(12));
    EXPECT_EQ(font.lfWeight, FW_BOLD);
    EXPECT_EQ(font.lfItalic, 0); // "yes" is not "true"
    EXPECT_EQ(std::wstring(font.lfFaceName), ExpectedFace(L"Arial"));
    EXPECT_EQ(CachedLogFont(0, 1).lfHeight, -MulDiv(14, 96, 72)); // 12 pt at 1.2 is 14 pt
    EXPECT_EQ(CachedLogFont(0, 2).lfHeight, -MulDiv(19, 96, 72)); // 12 pt at 1.6 is 19 pt
    EXPECT_EQ(std::wstring(CZoThemeManager::GetInstance()->GetFontName()), ExpectedFace(L"Arial"));
}

// Only the first file found is read: beside the executable, else in the shared folder.
TEST(FontsIni, FileBesideTheExecutableWinsOverTheSharedOne)
{
    ScopedFontsIni shared(InShared(), "[en-US]\r\nZoThemeFont_0=Arial,20\r\nZoThemeFont_1=Arial,21\r\n", true);
    ASSERT_TRUE(shared.written());
    {
        ScopedZoCtrl library;
        EXPECT_EQ(CachedLogFont(0, 0).lfHeight, -PixelHeight(20));
    }
    ScopedFontsIni beside(BesideExe(), "[en-US]\r\nZoThemeFont_0=Arial,10\r\n");
    ASSERT_TRUE(beside.written());
    ScopedZoCtrl library;
    EXPECT_EQ(CachedLogFont(0, 0).lfHeight, -PixelHeight(10));
    EXPECT_EQ(CachedLogFont(1, 0).lfHeight, -11);
}

TEST(FontsIni, MissingLocaleSectionFallsBackToEnUs)
{
    ScopedFontsIni ini(BesideExe(), "[zz-ZZ]\r\nZoThemeFont_0=Arial,30\r\n[en-US]\r\nZoThemeFont_0=Arial,13\r\n");
    ASSERT_TRUE(ini.written());
    ScopedZoCtrl library;
    EXPECT_EQ(CachedLogFont(0, 0).lfHeight, -PixelHeight(13));
}

TEST(FontsIni, NonPositiveSizesAndEmptyFacesKeepTheDefault)
{
    ScopedFontsIni ini(BesideExe(), "[en-US]\r\n"
                                    "ZoThemeFont_0=Arial,9\r\n"
                                    "ZoThemeFont_1=Arial,0,true\r\n"
                                    "ZoThemeFont_2=Arial,-4,true\r\n"
                                    "ZoThemeFont_3=,12,true\r\n"
                                    "ZoThemeFont_4=Arial\r\n");
    ASSERT_TRUE(ini.written());
    ScopedZoCtrl library;
    EXPECT_EQ(CachedLogFont(1, 0).lfHeight, -11);
    EXPECT_EQ(CachedLogFont(1, 0).lfWeight, FW_NORMAL);
    EXPECT_EQ(CachedLogFont(2, 0).lfHeight, -12);
    EXPECT_EQ(CachedLogFont(3, 0).lfHeight, -13);
    EXPECT_EQ(CachedLogFont(3, 0).lfWeight, FW_NORMAL);
    EXPECT_EQ(CachedLogFont(4, 0).lfHeight, -15);
    EXPECT_EQ(std::wstring(CachedLogFont(4, 0).lfFaceName), ExpectedFace(L"Segoe UI"));
}

TEST(FontsIni, UnknownFaceIsReplacedByTheGenericSansSerif)
{
    ScopedFontsIni ini(BesideExe(), "[en-US]\r\nZoThemeFont_0=NoSuchFaceZo,10\r\n");
    ASSERT_TRUE(ini.written());
    ScopedZoCtrl library;
    EXPECT_EQ(std::wstring(CachedLogFont(0, 0).lfFaceName), coretest::GenericSansSerifName());
    EXPECT_EQ(std::wstring(CZoThemeManager::GetInstance()->GetFontName()), coretest::GenericSansSerifName());
    EXPECT_EQ(CachedLogFont(0, 0).lfHeight, -13);
}

TEST(FontsIni, GarbageGivesDefinedFonts)
{
    std::string garbage = "\xEF\xBB\xBF[en-US\r\n=\r\n[en-US]\r\nZoThemeFont_0=,,,,,,,,,\r\n"
                          "ZoThemeFont_1=Arial,abc,maybe\r\nZoThemeFont_2=\x01\x02\x03,9\r\n"
                          "ZoThemeFont_3=Arial,99999999999999999999\r\nZoThemeFont_4=";
    garbage += std::string(5000, 'x') + ",11\r\nZoThemeFont_9\r\n\x00\xFF\xFE garbage";
    ScopedFontsIni ini(BesideExe(), garbage);
    ASSERT_TRUE(ini.written());
    ScopedZoCtrl library;
    const CZoThemeManager* manager = CZoThemeManager::GetInstance();
    ASSERT_NE(manager, nullptr);
    // Empty fields and unreadable sizes leave the defaults.
    EXPECT_EQ(CachedLogFont(0, 0).lfHeight, -9);
    EXPECT_EQ(CachedLogFont(1, 0).lfHeight, -11);
    EXPECT_EQ(CachedLogFont(9, 0).lfHeight, -11);
    EXPECT_EQ(CachedLogFont(4, 0).lfHeight, -15); // cut at the buffer: a face without size, so the default
    // Every slot still holds a font.
    for (int size = 0; size < 3; ++size)
        for (int role = 0; role < 14; ++role)
            EXPECT_NE(manager->GetCacheGDIFont(static_cast<E_ZoThemeFont>(role), static_cast<E_ZoMonitorSize>(size)),
                      nullptr);
}
