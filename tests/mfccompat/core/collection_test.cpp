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
