// CString: construction, formatting, comparison, searching, editing, buffers.
#include <afx.h>
#include <gtest/gtest.h>
#include <zotest/resource_counter.h>
#include "throws.h"

TEST(StringConstruction, FromWideNarrowCharAndCount)
{
    EXPECT_STREQ(CString(L"abc"), L"abc");
    EXPECT_STREQ(CString("narrow"), L"narrow");
    EXPECT_STREQ(CString(L'x', 3), L"xxx");
    EXPECT_STREQ(CString(L"abcdef", 3), L"abc");
    EXPECT_STREQ(CString("abcdef", 2), L"ab");
    EXPECT_TRUE(CString((LPCWSTR)nullptr).IsEmpty());
    EXPECT_TRUE(CString(L'x', -4).IsEmpty());
    EXPECT_TRUE(CString(L"abc", -1).IsEmpty());
    CString empty;
    EXPECT_EQ(empty.GetLength(), 0);
    EXPECT_STREQ(empty.GetString(), L"");
}

TEST(StringConstruction, CopyAndAssignAreIndependent)
{
    CString a(L"one");
    CString b(a);
    b += L"two";
    EXPECT_STREQ(a, L"one");
    EXPECT_STREQ(b, L"onetwo");
    a = b;
    a.SetAt(0, L'O');
    EXPECT_STREQ(b, L"onetwo");
    EXPECT_STREQ(a, L"Onetwo");
    a = a; // self-assignment keeps the text
    EXPECT_STREQ(a, L"Onetwo");
    a = L'z';
    EXPECT_STREQ(a, L"z");
    a = "bytes";
    EXPECT_STREQ(a, L"bytes");
}

TEST(StringConstruction, IsOnePointerInSize)
{
    EXPECT_EQ(sizeof(CString), sizeof(void*));
}

TEST(StringFormat, CommonConversions)
{
    CString s;
    s.Format(L"%s=%d", L"width", 42);
    EXPECT_STREQ(s, L"width=42");
    s.Format(L"[%5.2f]", 3.14159);
    EXPECT_STREQ(s, L"[ 3.14]");
    s.Format(L"%d%%", 50);
    EXPECT_STREQ(s, L"50%");
    s.Format(L"%hs/%c/%x/%05d", "narrow", L'W', 255, 42);
    EXPECT_STREQ(s, L"narrow/W/ff/00042");
    CString name(L"tree.bin");
    s.Format(L"file %s", (LPCTSTR)name);
    EXPECT_STREQ(s, L"file tree.bin");
}

TEST(StringFormat, CStringArgumentWithoutCastStillFormats)
{
    // GCC passes these as addresses of temporary copies; Format recognises them.
    CString name(L"tree.bin"), empty;
    CString s;
    s.Format(L"%s|%d|%s|%5.1f|%I64d|%s|%*d|%s", name, 7, empty, 2.5, (__int64)1 << 40, L"plain", 3, 4, name);
    EXPECT_STREQ(s, L"tree.bin|7||  2.5|1099511627776|plain|  4|tree.bin");
    s.AppendFormat(L"+%s", s);
    EXPECT_STREQ(s, L"tree.bin|7||  2.5|1099511627776|plain|  4|tree.bin+tree.bin|7||  2.5|1099511627776|plain|  4|tree.bin");
}

TEST(StringFormat, LongResultsAndAppendFormat)
{
    CString big(L'a', 5000);
    CString s;
    s.Format(L"<%s>", (LPCTSTR)big);
    EXPECT_EQ(s.GetLength(), 5002);
    s.AppendFormat(L"%d", 7);
    EXPECT_EQ(s.Right(2), CString(L">7"));
    s.Format(L"%s", L"");
    EXPECT_TRUE(s.IsEmpty());
}

TEST(StringFormat, ArgumentMayBeTheStringItself)
{
    CString s(L"abc");
    s.Format(L"%s-%s", (LPCTSTR)s, (LPCTSTR)s);
    EXPECT_STREQ(s, L"abc-abc");
}

TEST(StringFormat, FormatMessageInsertsArguments)
{
    CString s;
    s.FormatMessage(L"%1 has %2!d! rows", L"list", 5);
    EXPECT_STREQ(s, L"list has 5 rows");
}

TEST(StringCompare, OrdinalAndCaseInsensitive)
{
    CString s(L"Apple");
    EXPECT_EQ(s.Compare(L"Apple"), 0);
    EXPECT_LT(s.Compare(L"apple"), 0); // 'A' < 'a' ordinally
    EXPECT_EQ(s.CompareNoCase(L"APPLE"), 0);
    EXPECT_GT(s.CompareNoCase(L"apfel"), 0);
    EXPECT_LT(s.Compare(L"Apples"), 0);
    EXPECT_GT(s.Compare(nullptr), 0);
    EXPECT_EQ(s.Collate(L"Apple"), 0);
}

TEST(StringCompare, Operators)
{
    CString a(L"abc"), b(L"abd");
    EXPECT_TRUE(a == L"abc");
    EXPECT_TRUE(L"abc" == a);
    EXPECT_TRUE(a != b);
    EXPECT_TRUE(a < b);
    EXPECT_TRUE(b > a);
    EXPECT_TRUE(a <= CString(L"abc"));
    EXPECT_TRUE(b >= L"abd");
    EXPECT_FALSE(a == L"ABC");
    EXPECT_TRUE(CString(L"x") == L'x');
    EXPECT_TRUE(a == "abc");
}

TEST(StringSearch, FindCharAndSubstring)
{
    CString s(L"one two one");
    EXPECT_EQ(s.Find(L'o'), 0);
    EXPECT_EQ(s.Find(L'o', 1), 6);
    EXPECT_EQ(s.Find(L"one"), 0);
    EXPECT_EQ(s.Find(L"one", 1), 8);
    EXPECT_EQ(s.Find(L"three"), -1);
    EXPECT_EQ(s.Find(L'o', 100), -1);
    EXPECT_EQ(s.Find(L'o', -3), -1);
    EXPECT_EQ(s.Find((LPCWSTR)nullptr), -1);
    EXPECT_EQ(s.ReverseFind(L'o'), 8);
    EXPECT_EQ(s.ReverseFind(L'z'), -1);
    EXPECT_EQ(s.FindOneOf(L"wt"), 4);
    EXPECT_EQ(s.FindOneOf(L"xyz"), -1);
}

TEST(StringExtract, LeftMidRightClampToTheString)
{
    CString s(L"abcdef");
    EXPECT_STREQ(s.Left(2), L"ab");
    EXPECT_STREQ(s.Left(100), L"abcdef");
    EXPECT_STREQ(s.Left(-1), L"");
    EXPECT_STREQ(s.Right(2), L"ef");
    EXPECT_STREQ(s.Right(100), L"abcdef");
    EXPECT_STREQ(s.Mid(2), L"cdef");
    EXPECT_STREQ(s.Mid(2, 2), L"cd");
    EXPECT_STREQ(s.Mid(4, 100), L"ef");
    EXPECT_STREQ(s.Mid(100), L"");
    EXPECT_STREQ(s.Mid(-5, 2), L"ab");
    EXPECT_STREQ(s.Mid(1, -3), L"");
    EXPECT_STREQ(s.SpanIncluding(L"cba"), L"abc");
    EXPECT_STREQ(s.SpanExcluding(L"dx"), L"abc");
}

TEST(StringEdit, ReplaceRemoveInsertDelete)
{
    CString s(L"a/b/c");
    EXPECT_EQ(s.Replace(L'/', L'\\'), 2);
    EXPECT_STREQ(s, L"a\\b\\c");
    EXPECT_EQ(s.Replace(L"\\", L"::"), 2);
    EXPECT_STREQ(s, L"a::b::c");
    EXPECT_EQ(s.Replace(L"::", nullptr), 2);
    EXPECT_STREQ(s, L"abc");
    EXPECT_EQ(s.Replace(L"", L"x"), 0);
    EXPECT_EQ(s.Replace(L"zz", L"x"), 0);
    EXPECT_EQ(s.Remove(L'b'), 1);
    EXPECT_STREQ(s, L"ac");
    EXPECT_EQ(s.Insert(1, L'b'), 3);
    EXPECT_STREQ(s, L"abc");
    EXPECT_EQ(s.Insert(100, L"de"), 5);
    EXPECT_STREQ(s, L"abcde");
    EXPECT_EQ(s.Insert(-2, L">"), 6);
    EXPECT_STREQ(s, L">abcde");
    EXPECT_EQ(s.Delete(0), 5);
    EXPECT_EQ(s.Delete(3, 100), 3);
    EXPECT_STREQ(s, L"abc");
    EXPECT_EQ(s.Delete(10, 1), 3);
}

TEST(StringEdit, ReplaceGrowsAndShrinks)
{
    CString s(L"xx");
    EXPECT_EQ(s.Replace(L"x", L"yyyy"), 2);
    EXPECT_STREQ(s, L"yyyyyyyy");
    EXPECT_EQ(s.Replace(L"yy", L"z"), 4);
    EXPECT_STREQ(s, L"zzzz");
}

TEST(StringEdit, TrimVariants)
{
    CString s(L" \t text \r\n");
    EXPECT_STREQ(CString(s).Trim(), L"text");
    EXPECT_STREQ(CString(s).TrimLeft(), L"text \r\n");
    EXPECT_STREQ(CString(s).TrimRight(), L" \t text");
    EXPECT_STREQ(CString(L"xxaxx").Trim(L'x'), L"a");
    EXPECT_STREQ(CString(L"xxaxx").TrimLeft(L'x'), L"axx");
    EXPECT_STREQ(CString(L"-+a+-").Trim(L"+-"), L"a");
    EXPECT_STREQ(CString(L"-+a+-").TrimRight(L"+-"), L"-+a");
    EXPECT_STREQ(CString(L"    ").Trim(), L"");
    EXPECT_STREQ(CString(L"abc").Trim((LPCWSTR)nullptr), L"abc");
}

TEST(StringEdit, CaseAndReverse)
{
    CString s(L"MiXeD");
    EXPECT_STREQ(s.MakeLower(), L"mixed");
    EXPECT_STREQ(s.MakeUpper(), L"MIXED");
    EXPECT_STREQ(s.MakeReverse(), L"DEXIM");
}

TEST(StringTokenize, SkipsEmptyTokensAndEndsWithMinusOne)
{
    CString s(L",a,,bb,c,");
    int iPos = 0;
    EXPECT_STREQ(s.Tokenize(L",", iPos), L"a");
    EXPECT_STREQ(s.Tokenize(L",", iPos), L"bb");
    EXPECT_STREQ(s.Tokenize(L",", iPos), L"c");
    EXPECT_STREQ(s.Tokenize(L",", iPos), L"");
    EXPECT_EQ(iPos, -1);
    iPos = 100;
    EXPECT_STREQ(s.Tokenize(L",", iPos), L"");
    EXPECT_EQ(iPos, -1);
}

TEST(StringAccess, GetAtSetAtAndBadIndexes)
{
    CString s(L"abc");
    EXPECT_EQ(s.GetAt(1), L'b');
    EXPECT_EQ(s[2], L'c');
    s.SetAt(0, L'A');
    EXPECT_STREQ(s, L"Abc");
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { s.SetAt(3, L'x'); })) << "out-of-range SetAt accepted";
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { (void)s.GetAt(-1); })) << "negative GetAt accepted";
}

TEST(StringBuffer, GetBufferReleaseBufferMinusOne)
{
    CString s(L"ab");
    LPWSTR p = s.GetBuffer(10);
    wcscpy(p, L"written");
    s.ReleaseBuffer();
    EXPECT_STREQ(s, L"written");
    EXPECT_EQ(s.GetLength(), 7);
    p = s.GetBuffer(0);
    p[3] = 0;
    s.ReleaseBuffer(-1);
    EXPECT_STREQ(s, L"wri");
    p = s.GetBufferSetLength(5);
    wmemcpy(p, L"12345", 5);
    s.ReleaseBuffer(4);
    EXPECT_STREQ(s, L"1234");
    s.Truncate(2);
    EXPECT_STREQ(s, L"12");
}

TEST(StringBuffer, ReleaseBufferWithoutTerminatorStopsAtTheAllocation)
{
    CString s;
    LPWSTR p = s.GetBuffer(4);
    int nAlloc = s.GetAllocLength();
    wmemset(p, L'q', nAlloc + 1); // overwrites the terminator slot too
    s.ReleaseBuffer();
    EXPECT_EQ(s.GetLength(), nAlloc);
}

TEST(StringBuffer, LockBufferSurvivesEmpty)
{
    CString s(L"locked");
    LPWSTR p = s.LockBuffer();
    s.Empty();
    EXPECT_EQ(s.GetString(), p);
    s.UnlockBuffer();
    s.Preallocate(100);
    EXPECT_GE(s.GetAllocLength(), 100);
    s = L"x";
    s.FreeExtra();
    EXPECT_STREQ(s, L"x");
}

TEST(StringConcatenation, AllOperandKinds)
{
    CString a(L"ab");
    EXPECT_STREQ(a + L"cd", L"abcd");
    EXPECT_STREQ(L"<" + a, L"<ab");
    EXPECT_STREQ(a + L'!', L"ab!");
    EXPECT_STREQ(L'!' + a, L"!ab");
    EXPECT_STREQ(a + a, L"abab");
    a += a;
    EXPECT_STREQ(a, L"abab");
    a += L'c';
    a += "d";
    EXPECT_STREQ(a, L"ababcd");
    a.Append(a.GetString() + 4); // a tail of itself
    EXPECT_STREQ(a, L"ababcdcd");
}

TEST(StringSystem, AllocSysStringKeepsEmbeddedLength)
{
    CString s(L"bstr");
    BSTR b = s.AllocSysString();
    ASSERT_NE(b, nullptr);
    EXPECT_EQ(SysStringLen(b), 4u);
    EXPECT_STREQ(b, L"bstr");
    CString longer(L"longer text");
    longer.SetSysString(&b);
    EXPECT_STREQ(b, L"longer text");
    SysFreeString(b);
}

TEST(StringSystem, EnvironmentVariable)
{
    SetEnvironmentVariableW(L"ZO_CORE_TEST_VAR", L"value-1");
    CString s;
    EXPECT_TRUE(s.GetEnvironmentVariable(L"ZO_CORE_TEST_VAR"));
    EXPECT_STREQ(s, L"value-1");
    EXPECT_FALSE(s.GetEnvironmentVariable(L"ZO_CORE_TEST_UNSET_VAR"));
    EXPECT_TRUE(s.IsEmpty());
}

TEST(ExtractSubString, FieldsEmptyAndMissing)
{
    CString s;
    EXPECT_TRUE(AfxExtractSubString(s, L"a\nbb\n\nd", 1));
    EXPECT_STREQ(s, L"bb");
    EXPECT_TRUE(AfxExtractSubString(s, L"a\nbb\n\nd", 2));
    EXPECT_STREQ(s, L"");
    EXPECT_TRUE(AfxExtractSubString(s, L"a\nbb\n\nd", 3));
    EXPECT_STREQ(s, L"d");
    EXPECT_FALSE(AfxExtractSubString(s, L"a\nbb\n\nd", 4));
    EXPECT_STREQ(s, L"");
    EXPECT_TRUE(AfxExtractSubString(s, L"x,y", 0, L','));
    EXPECT_STREQ(s, L"x");
    EXPECT_TRUE(AfxExtractSubString(s, L"x,y,", 2, L','));
    EXPECT_STREQ(s, L"");
    EXPECT_TRUE(AfxExtractSubString(s, L"", 0));
    EXPECT_FALSE(AfxExtractSubString(s, nullptr, 0));
    EXPECT_FALSE(AfxExtractSubString(s, L"x", -1));
}

TEST(StringMemory, NoHeapGrowthAcrossCycles)
{
    ZOTEST_EXPECT_NO_LEAKS(5, [] {
        CString s;
        for (int i = 0; i < 200; ++i)
            s.AppendFormat(L"%d,", i);
        s.Replace(L",", L";;");
        s.MakeUpper();
        CString t = s.Mid(10, 50) + L"tail";
        t.Trim(L';');
        int iPos = 0;
        while (iPos >= 0)
            (void)s.Tokenize(L";", iPos);
    }, zotest::count_heap);
}
