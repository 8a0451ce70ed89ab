#include "core_test_support.h"

#include <gdiplus.h>
#include <gtest/gtest.h>

namespace coretest {

namespace {

// Every host starts GDI+ before InitializeZoCtrl; so does this test program.
class GdiplusEnvironment : public testing::Environment
{
public:
    void SetUp() override
    {
        Gdiplus::GdiplusStartupInput input;
        ASSERT_EQ(Gdiplus::GdiplusStartup(&token_, &input, nullptr), Gdiplus::Ok);
    }
    void TearDown() override { Gdiplus::GdiplusShutdown(token_); }

private:
    ULONG_PTR token_ = 0;
};

testing::Environment* const g_gdiplus = testing::AddGlobalTestEnvironment(new GdiplusEnvironment);

} // namespace

LOGFONTW LogFontOf(const CFont* font)
{
    LOGFONTW logFont = {};
    if (font && font->GetSafeHandle())
        ::GetObjectW(font->GetSafeHandle(), sizeof(logFont), &logFont);
    return logFont;
}

LOGFONTW CachedLogFont(int role, int size)
{
    const ZoControls::CZoThemeManager* manager = ZoControls::CZoThemeManager::GetInstance();
    if (!manager)
        return LOGFONTW{};
    return LogFontOf(manager->GetCacheGDIFont(static_cast<ZoControls::E_ZoThemeFont>(role),
                                              static_cast<ZoControls::E_ZoMonitorSize>(size)));
}

std::wstring ExePath()
{
    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    return path;
}

std::wstring ExeDirectory()
{
    const std::wstring path = ExePath();
    return path.substr(0, path.find_last_of(L"\\/") + 1);
}

bool WriteTextFile(const std::wstring& path, const std::string& content)
{
    const std::wstring folder = path.substr(0, path.find_last_of(L"\\/"));
    ::CreateDirectoryW(folder.c_str(), nullptr);
    HANDLE file = ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    const BOOL ok = ::WriteFile(file, content.data(), static_cast<DWORD>(content.size()), &written, nullptr);
    ::CloseHandle(file);
    return ok && written == content.size();
}

void RemoveTestFile(const std::wstring& path, bool removeFolder)
{
    ::DeleteFileW(path.c_str());
    if (removeFolder)
        ::RemoveDirectoryW(path.substr(0, path.find_last_of(L"\\/")).c_str());
}

std::wstring GenericSansSerifName()
{
    Gdiplus::GpFontFamily* family = nullptr;
    WCHAR name[LF_FACESIZE] = {};
    if (Gdiplus::DllExports::GdipGetGenericFontFamilySansSerif(&family) == Gdiplus::Ok)
        Gdiplus::DllExports::GdipGetFamilyName(family, name, 0);
    return name;
}

std::wstring ExpectedFace(const std::wstring& face)
{
    Gdiplus::GpFontFamily* family = nullptr;
    if (Gdiplus::DllExports::GdipCreateFontFamilyFromName(face.c_str(), nullptr, &family) == Gdiplus::Ok) {
        Gdiplus::DllExports::GdipDeleteFontFamily(family);
        return face;
    }
    return GenericSansSerifName();
}

} // namespace coretest
