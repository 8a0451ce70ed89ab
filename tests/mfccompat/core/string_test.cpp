// CString: construction, formatting, comparison, searching, editing, buffers.
#include <afx.h>
#include <gtest/gtest.h>
#include <zotest/resource_counter.h>
#include "throws.h"

TEST(StringFormat, CStringArgumentWithoutCastStillFormats)
{
    // GCC passes these as addresses of temporary copies; Format recognises them.
    CString name(L"tree.bin"), empty;
    CString s;
    s.Format(L"%s|%d|%s|%5.1f|%I64d|%s|%*d|%s", name, 7, empty, 2.5, (__int64)1 << 40, L"plain", 3, 4, name);
    EXPECT_STREQ(s, L"tree.bin|7||  2.5|1099511627776|plain|  4|tree.bin");
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
    EXPECT_EQ(CString(L"ab").ReverseFind(L'a'), 0); // the first character too
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
}

TEST(StringEdit, ReplaceRemoveInsert)
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

TEST(StringBuffer, ReleaseBufferWithoutTerminatorStopsAtTheAllocation)
{
    CString s;
    LPWSTR p = s.GetBuffer(4);
    int nAlloc = s.GetAllocLength();
    wmemset(p, L'q', nAlloc + 1); // overwrites the terminator slot too
    s.ReleaseBuffer();
    EXPECT_EQ(s.GetLength(), nAlloc);
}
