// Shared pieces of the core tests: the library's lifetime around a test, font read-back,
// files written beside the test executable.
#pragma once
#include <afxwin.h>

#include <string>

#include "ZoLibrary.h"
#include "ZoThemeManager.h"

namespace coretest {

// InitializeZoCtrl for the life of the object (GDI+ is running for the whole test program).
class ScopedZoCtrl
{
public:
    ScopedZoCtrl() : initialized_(InitializeZoCtrl()) {}
    ~ScopedZoCtrl() { UninitializeZoCtrl(); }
    ScopedZoCtrl(const ScopedZoCtrl&) = delete;
    ScopedZoCtrl& operator=(const ScopedZoCtrl&) = delete;
    bool initialized() const { return initialized_; }

private:
    bool initialized_;
};

// The LOGFONT behind a cached font; lfHeight 0 and an empty face when there is no font.
LOGFONTW LogFontOf(const CFont* font);
LOGFONTW CachedLogFont(int role, int size);

// Folder of the test executable, ending in a backslash.
std::wstring ExeDirectory();
std::wstring ExePath();

// Writes `content` (ASCII) to `path`, creating the folder; false when it can't.
bool WriteTextFile(const std::wstring& path, const std::string& content);
// Removes a file written by a test (and its folder when `removeFolder` and it is empty).
void RemoveTestFile(const std::wstring& path, bool removeFolder = false);

// The face a missing font is replaced with: GDI+'s generic sans-serif family.
std::wstring GenericSansSerifName();
// `face` if GDI+ knows it, else the generic sans-serif family.
std::wstring ExpectedFace(const std::wstring& face);

} // namespace coretest
