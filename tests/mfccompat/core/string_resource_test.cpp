// CString::LoadString: the thread's UI language first, then the fallbacks.
//
// Wine 8 keeps GetThreadUILanguage() at the user default whatever SetThreadUILanguage()
// asks for, so the language-switch test checks what the thread language reports and only
// asserts the German text where the platform really switched.
#include <afx.h>
#include <gtest/gtest.h>
#include "core_test_ids.h"

namespace {

const LANGID kEnglishUS = MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US);
const LANGID kGerman = MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN);

// Restores the thread's UI language when a test ends.
class UILanguageScope
{
public:
    UILanguageScope() : m_original(GetThreadUILanguage()) { }
    ~UILanguageScope() { SetThreadUILanguage(m_original); }
private:
    LANGID m_original;
};

} // namespace

TEST(StringResource, ThreadUILanguageDecides)
{
    UILanguageScope scope;
    CString s;
    SetThreadUILanguage(kEnglishUS);
    if (GetThreadUILanguage() == kEnglishUS)
    {
        EXPECT_TRUE(s.LoadString(IDS_CORE_GREETING));
        EXPECT_STREQ(s, L"Hello");
    }
    SetThreadUILanguage(kGerman);
    if (GetThreadUILanguage() == kGerman) // not on Wine 8, see the top of the file
    {
        EXPECT_TRUE(s.LoadString(IDS_CORE_GREETING));
        EXPECT_STREQ(s, L"Hallo");
        EXPECT_TRUE(s.LoadString(IDS_CORE_ENGLISH_ONLY)); // German block missing: falls back
        EXPECT_STREQ(s, L"English only");
    }
    // Whatever the platform reports, the loaded text is the table of that language.
    EXPECT_TRUE(s.LoadString(IDS_CORE_GREETING));
    CString expected;
    expected.LoadString(AfxGetResourceHandle(), IDS_CORE_GREETING,
                        PRIMARYLANGID(GetThreadUILanguage()) == LANG_GERMAN ? kGerman : kEnglishUS);
    EXPECT_STREQ(s, expected);
}

TEST(StringResource, MissingStringsFailAndLeaveEmpty)
{
    CString s(L"old");
    EXPECT_FALSE(s.LoadString(IDS_CORE_MISSING));
    EXPECT_FALSE(s.LoadString(0x12345));
    EXPECT_FALSE(s.LoadString(nullptr, IDS_CORE_GREETING));
    EXPECT_TRUE(s.LoadString(IDS_CORE_ENGLISH_ONLY));
    EXPECT_STREQ(s, L"English only");
}

TEST(StringResource, ResourceIdConstructorAndFormatById)
{
    CString s(MAKEINTRESOURCE(IDS_CORE_ENGLISH_ONLY));
    EXPECT_STREQ(s, L"English only");
    CString items;
    items.Format(IDS_CORE_ITEMS, 3);
    CString format;
    format.LoadString(IDS_CORE_ITEMS);
    CString expected;
    expected.Format(format, 3);
    EXPECT_STREQ(items, expected);
    EXPECT_EQ(items.Left(2), CString(L"3 "));
}
