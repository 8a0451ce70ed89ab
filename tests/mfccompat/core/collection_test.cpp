// Arrays and maps: bad indexes and rehashing. (Lists are seen through the tree-list node's tests.)
#include <afxtempl.h>
#include <gtest/gtest.h>
#include <zotest/resource_counter.h>
#include "throws.h"

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
