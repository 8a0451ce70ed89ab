// Arrays, lists and maps: growth, removal, iteration order and bad indexes.
#include <afxtempl.h>
#include <gtest/gtest.h>
#include <zotest/resource_counter.h>
#include "throws.h"
#include <vector>

namespace {

std::vector<int> ListContents(const CList<int, int>& list)
{
    std::vector<int> values;
    for (POSITION pos = list.GetHeadPosition(); pos != NULL;)
        values.push_back(list.GetNext(pos));
    return values;
}

} // namespace

TEST(Array, GrowthKeepsContentsAndZeroFillsNewSlots)
{
    CArray<COLORREF, COLORREF> colours;
    EXPECT_TRUE(colours.IsEmpty());
    EXPECT_EQ(colours.GetUpperBound(), -1);
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(colours.Add(RGB(i, 0, 0)), i);
    EXPECT_EQ(colours.GetSize(), 100);
    EXPECT_EQ(colours.GetCount(), 100);
    EXPECT_EQ(colours[99], RGB(99, 0, 0));
    colours.SetSize(150, 10);
    EXPECT_EQ(colours.GetUpperBound(), 149);
    EXPECT_EQ(colours[120], 0u);
    EXPECT_EQ(colours[42], RGB(42, 0, 0));
    colours.SetAtGrow(200, 7);
    EXPECT_EQ(colours.GetSize(), 201);
    EXPECT_EQ(colours.GetData()[200], 7u);
    colours.SetSize(3);
    colours.FreeExtra();
    EXPECT_EQ(colours.GetSize(), 3);
    colours.RemoveAll();
    EXPECT_EQ(colours.GetSize(), 0);
    EXPECT_EQ(colours.GetData(), nullptr);
}

TEST(Array, InsertAndRemove)
{
    CArray<int> values;
    for (int i = 0; i < 5; ++i)
        values.Add(i);
    values.InsertAt(2, 99, 2);
    EXPECT_EQ(values.GetSize(), 7);
    EXPECT_EQ(values[1], 1);
    EXPECT_EQ(values[2], 99);
    EXPECT_EQ(values[3], 99);
    EXPECT_EQ(values[4], 2);
    values.RemoveAt(2, 2);
    EXPECT_EQ(values.GetSize(), 5);
    EXPECT_EQ(values[2], 2);
    values.InsertAt(8, 5); // past the end: grows, the gap is zero
    EXPECT_EQ(values.GetSize(), 9);
    EXPECT_EQ(values[6], 0);
    EXPECT_EQ(values[8], 5);
    values.RemoveAt(0);
    EXPECT_EQ(values[0], 1);
}

TEST(Array, BadIndexesThrowInvalidArg)
{
    CArray<int> values;
    values.Add(1);
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { (void)values.GetAt(1); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { values.SetAt(-1, 0); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { values.RemoveAt(0, 2); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { values.SetSize(-1); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { values.InsertAt(-1, 0); }));
    EXPECT_EQ(values.GetSize(), 1);
}

TEST(Array, ObjectsAppendCopyAndSelfReference)
{
    CArray<CString, const CString&> a, b;
    a.Add(L"one");
    a.Add(L"two");
    for (int i = 0; i < 50; ++i)
        a.Add(a[0]); // the argument lives in the storage being regrown
    EXPECT_STREQ(a[51], L"one");
    b.Add(L"zero");
    EXPECT_EQ(b.Append(a), 1);
    EXPECT_EQ(b.GetSize(), 53);
    EXPECT_STREQ(b[2], L"two");
    b.Copy(a);
    EXPECT_EQ(b.GetSize(), 52);
    b.InsertAt(1, &a);
    EXPECT_EQ(b.GetSize(), 104);
    EXPECT_STREQ(b[2], L"two");
    a.Append(a); // appending itself doubles it
    EXPECT_EQ(a.GetSize(), 104);
}

TEST(Array, NonTemplateArrays)
{
    CStringArray texts;
    texts.SetAtGrow(3, L"x");
    EXPECT_EQ(texts.GetSize(), 4);
    EXPECT_TRUE(texts.GetAt(0).IsEmpty());
    EXPECT_STREQ(texts.GetAt(3), L"x");
    texts.Add(CString(L"y"));
    EXPECT_STREQ(texts[4], L"y");
    texts.SetSize(0);
    EXPECT_EQ(texts.GetSize(), 0);

    CDWordArray dwords;
    dwords.Add(0xFFFFFFFF);
    CByteArray bytes;
    bytes.SetSize(3);
    bytes[1] = 9;
    CPtrArray pointers;
    pointers.Add(&dwords);
    EXPECT_EQ(dwords[0], 0xFFFFFFFFu);
    EXPECT_EQ(bytes[1], 9);
    EXPECT_EQ(pointers[0], &dwords);
    EXPECT_TRUE(texts.IsKindOf(RUNTIME_CLASS(CStringArray)));
}

TEST(List, OrderInsertFindAndRemove)
{
    CList<int, int> list;
    list.AddTail(2);
    list.AddTail(3);
    list.AddHead(1);
    EXPECT_EQ(ListContents(list), (std::vector<int>{1, 2, 3}));
    POSITION pos2 = list.Find(2);
    ASSERT_NE(pos2, nullptr);
    list.InsertBefore(pos2, 10);
    list.InsertAfter(pos2, 20);
    EXPECT_EQ(ListContents(list), (std::vector<int>{1, 10, 2, 20, 3}));
    EXPECT_EQ(list.Find(2, pos2), nullptr);
    EXPECT_EQ(list.Find(99), nullptr);
    EXPECT_EQ(list.GetAt(list.FindIndex(3)), 20);
    EXPECT_EQ(list.FindIndex(5), nullptr);
    EXPECT_EQ(list.FindIndex(-1), nullptr);
    list.InsertBefore(NULL, 0);
    list.InsertAfter(NULL, 4);
    EXPECT_EQ(list.GetHead(), 0);
    EXPECT_EQ(list.GetTail(), 4);
    EXPECT_EQ(list.RemoveHead(), 0);
    EXPECT_EQ(list.RemoveTail(), 4);
    list.SetAt(list.GetHeadPosition(), 100);
    EXPECT_EQ(list.GetCount(), 5);
    EXPECT_EQ(ListContents(list), (std::vector<int>{100, 10, 2, 20, 3}));
}

TEST(List, RemoveWhileIteratingAndBackwards)
{
    CList<int, int> list;
    for (int i = 0; i < 10; ++i)
        list.AddTail(i);
    for (POSITION pos = list.GetHeadPosition(); pos != NULL;)
    {
        POSITION at = pos;
        if (list.GetNext(pos) % 2 == 1)
            list.RemoveAt(at);
    }
    EXPECT_EQ(ListContents(list), (std::vector<int>{0, 2, 4, 6, 8}));
    std::vector<int> backwards;
    for (POSITION pos = list.GetTailPosition(); pos != NULL;)
        backwards.push_back(list.GetPrev(pos));
    EXPECT_EQ(backwards, (std::vector<int>{8, 6, 4, 2, 0}));
    CList<int, int> other;
    other.AddTail(-1);
    list.AddHead(&other);
    list.AddTail(&list); // a list appended to itself doubles
    EXPECT_EQ(list.GetCount(), 12);
    list.RemoveAll();
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { (void)list.RemoveHead(); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { POSITION none = NULL; (void)list.GetNext(none); }));
}

TEST(List, NonTemplateAndTypedLists)
{
    CStringList names;
    names.AddTail(L"b");
    names.AddHead(CString(L"a"));
    EXPECT_STREQ(names.GetHead(), L"a");
    EXPECT_NE(names.Find(L"b"), nullptr);

    CObList objects;
    CStringArray owner;
    objects.AddTail(&owner);
    EXPECT_EQ(objects.GetHead(), &owner);

    CTypedPtrList<CObList, CStringArray*> typed;
    typed.AddTail(&owner);
    CStringArray* pFirst = typed.GetHead();
    EXPECT_EQ(pFirst, &owner);
    CTypedPtrList<CPtrList, int*> ints;
    int value = 5;
    ints.AddTail(&value);
    POSITION pos = ints.GetHeadPosition();
    EXPECT_EQ(*ints.GetNext(pos), 5);
}

TEST(Map, IterationFollowsHashOrder)
{
    // Default hash: key >> 4, bucket = hash % 17; inside a bucket the newest key comes first.
    CMap<int, int, int, int> map(10);
    map.InitHashTable(17);
    for (int key = 0; key <= 40; ++key)
        map.SetAt(key, key * 10);
    EXPECT_EQ(map.GetCount(), 41);
    EXPECT_EQ(map.GetHashTableSize(), 17u);
    std::vector<int> order;
    for (POSITION pos = map.GetStartPosition(); pos != NULL;)
    {
        int key, value;
        map.GetNextAssoc(pos, key, value);
        EXPECT_EQ(value, key * 10);
        order.push_back(key);
    }
    std::vector<int> expected;
    for (int key = 15; key >= 0; --key)
        expected.push_back(key);
    for (int key = 31; key >= 16; --key)
        expected.push_back(key);
    for (int key = 40; key >= 32; --key)
        expected.push_back(key);
    EXPECT_EQ(order, expected);
}

TEST(Map, LookupSetRemoveAndIndexOperator)
{
    CMap<CString, LPCTSTR, int, int> map;
    map[L"one"] = 1;
    map.SetAt(L"two", 2);
    map.SetAt(L"two", 22);
    int value = 0;
    EXPECT_TRUE(map.Lookup(L"two", value));
    EXPECT_EQ(value, 22);
    EXPECT_FALSE(map.Lookup(L"three", value));
    EXPECT_EQ(map[L"new"], 0); // inserted with a zero value
    EXPECT_EQ(map.GetCount(), 3);
    EXPECT_TRUE(map.RemoveKey(L"one"));
    EXPECT_FALSE(map.RemoveKey(L"one"));
    EXPECT_EQ(map.GetCount(), 2);
    auto* pPair = map.PLookup(L"two");
    ASSERT_NE(pPair, nullptr);
    EXPECT_STREQ(pPair->key, L"two");
    pPair->value = 5;
    EXPECT_EQ(map[L"two"], 5);
    int nPairs = 0;
    for (auto* p = map.PGetFirstAssoc(); p != NULL; p = map.PGetNextAssoc(p))
        ++nPairs;
    EXPECT_EQ(nPairs, 2);
    map.RemoveAll();
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_EQ(map.GetStartPosition(), nullptr);
    EXPECT_EQ(map.PGetFirstAssoc(), nullptr);
}

TEST(Map, RehashKeepsEntriesAndZeroSizeIsGuarded)
{
    CMap<void*, void*, int, int> map;
    int anchors[100];
    for (int i = 0; i < 100; ++i)
        map[&anchors[i]] = i;
    map.InitHashTable(0);
    EXPECT_EQ(map.GetHashTableSize(), 1u);
    map.InitHashTable(101);
    for (int i = 0; i < 100; ++i)
    {
        int value = -1;
        EXPECT_TRUE(map.Lookup(&anchors[i], value));
        EXPECT_EQ(value, i);
    }
}

TEST(Map, NonTemplateAndTypedMaps)
{
    CMapStringToString strings;
    strings.SetAt(L"k", L"v");
    CString value;
    EXPECT_TRUE(strings.Lookup(L"k", value));
    EXPECT_STREQ(value, L"v");
    POSITION pos = strings.GetStartPosition();
    CString key;
    strings.GetNextAssoc(pos, key, value);
    EXPECT_STREQ(key, L"k");
    EXPECT_EQ(pos, nullptr);

    CMapWordToPtr words;
    words[7] = &words;
    void* p = NULL;
    EXPECT_TRUE(words.Lookup(7, p));
    EXPECT_EQ(p, &words);

    CTypedPtrMap<CMapStringToPtr, CString, CStringArray*> typed;
    CStringArray array;
    typed.SetAt(L"array", &array);
    CStringArray* pFound = NULL;
    EXPECT_TRUE(typed.Lookup(L"array", pFound));
    EXPECT_EQ(pFound, &array);
    EXPECT_FALSE(typed.Lookup(L"missing", pFound));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { POSITION none = NULL; typed.GetNextAssoc(none, key, pFound); }));
}

TEST(CollectionMemory, NoHeapGrowthAcrossCycles)
{
    ZOTEST_EXPECT_NO_LEAKS(5, [] {
        CArray<CString, const CString&> strings;
        CList<int, int> list;
        CMap<int, int, CString, const CString&> map;
        map.InitHashTable(17);
        for (int i = 0; i < 300; ++i)
        {
            CString text;
            text.Format(L"%d", i);
            strings.Add(text);
            list.AddTail(i);
            map.SetAt(i, text);
        }
        strings.RemoveAt(10, 100);
        list.RemoveHead();
        map.RemoveKey(5);
    }, zotest::count_heap);
}
