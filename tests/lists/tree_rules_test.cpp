// The tree-list view's rules with plain values: the row index against a plain vector through
// thousands of inserts and removals, the tree's date and number comparisons, and node paths.
#include <afx.h>

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <vector>

#include "lists/ZoTreeRowIndex.h"
#include "lists/ZoTreeSort.h"
#include "tree_test_support.h"

using namespace ZoControls;
using treetest::AddChild;

namespace {

int Sign(int value) { return value < 0 ? -1 : (value > 0 ? 1 : 0); }

// --- Row index ---------------------------------------------------------------------------------

// Random inserts and removals over several blocks' worth of rows, checked against a vector.
TEST(TreeRowIndex, FollowsAVectorThroughInsertsAndRemovals)
{
    std::vector<std::unique_ptr<CZoTreeListCtrlItem>> nodes;
    for (int i = 0; i < 3000; ++i)
        nodes.emplace_back(new CZoTreeListCtrlItem());
    CZoTreeRowIndex index;
    std::vector<CZoTreeListCtrlItem*> rows;
    std::mt19937 random(7);
    size_t nextNode = 0;
    for (int step = 0; step < 6000; ++step)
    {
        const bool insert = rows.empty() || (nextNode < nodes.size() && random() % 3 != 0);
        if (insert)
        {
            const int row = (int)(random() % (rows.size() + 1));
            index.Insert(row, nodes[nextNode].get());
            rows.insert(rows.begin() + row, nodes[nextNode++].get());
        }
        else
        {
            const int row = (int)(random() % rows.size());
            index.Remove(row);
            rows.erase(rows.begin() + row);
        }
    }
    ASSERT_EQ(index.GetCount(), (int)rows.size());
    for (int row = 0; row < (int)rows.size(); ++row)
    {
        ASSERT_EQ(index.GetAt(row), rows[row]) << row;
        ASSERT_EQ(index.Find(rows[row], 0), row);
        ASSERT_EQ(index.Find(rows[row], row + 1), -1);
    }
}

TEST(TreeRowIndex, OutOfRangeAndUnknownNodesGiveNothing)
{
    CZoTreeListCtrlItem a, b;
    CZoTreeRowIndex index;
    EXPECT_EQ(index.GetAt(0), nullptr);
    index.Remove(0);
    index.Insert(5, &a); // clamped: the first row
    EXPECT_EQ(index.GetAt(0), &a);
    EXPECT_EQ(index.GetAt(-1), nullptr);
    EXPECT_EQ(index.Find(&b, 0), -1);
    EXPECT_EQ(index.Find(nullptr, 0), -1);
    EXPECT_EQ(index.Find(&a, -3), 0);
}

TEST(TreeRowIndex, ANodeInTwoRowsIsFoundFromTheStartRowOn)
{
    CZoTreeListCtrlItem a, b;
    CZoTreeRowIndex index;
    index.Assign({&a, &b, &a});
    EXPECT_EQ(index.Find(&a, 0), 0);
    EXPECT_EQ(index.Find(&a, 1), 2);
    index.Remove(0);
    EXPECT_EQ(index.Find(&a, 0), 1);
}

// --- Comparisons -------------------------------------------------------------------------------

struct TreeComparison
{
    int method;
    const wchar_t* text1;
    const wchar_t* text2;
    int sign;
};

const TreeComparison kTreeComparisons[] = {
    {0, L"B", L"a", -1},
    {1, L"B", L"a", 1},
    {3, L"10", L"9", 1},
    {3, L"abc", L"0", 0},
    // 10 characters: whole days by the platform's reader.
    {2, L"2024-03-05", L"2024-03-05", 0},
    {2, L"2024-03-05", L"2024-03-06", -1},
    {2, L"2024-03-05", L"2024-03-05 23:00:00", 0}, // the same day
    {2, L"not a date", L"2024-03-05", -1},
    {2, L"2024-03-05", L"garbage", 1},
    {2, L"not a date", L"garbage!", 0},
    // Other lengths: by character positions, to the second.
    {2, L"2024-03-05 10:00:01", L"2024-03-05 10:00:00", 1},
    {2, L"2024-03-05 10:00:00", L"2024-03-05 10:00:00", 0},
    {2, L"2024-03-04 23:59:59", L"2024-03-05", -1},
    {2, L"2024-13-05 10:00:00", L"2024-03-05 10:00:00", 0}, // an invalid operand
};

TEST(TreeSortComparisons, AsWrittenForEachChildMethod)
{
    for (const TreeComparison& c : kTreeComparisons)
        EXPECT_EQ(Sign(ZoCompareTreeTexts(c.method, c.text1, c.text2)), c.sign)
            << c.method << " '" << c.text1 << "' '" << c.text2 << "'";
}

TEST(TreeSortComparisons, DatesBeforeTheEpochCountTheirTimeForwards)
{
    EXPECT_DOUBLE_EQ(ZoOleDateToLinear(1.25), 1.25);
    EXPECT_DOUBLE_EQ(ZoOleDateToLinear(-1.25), -0.75); // 1899-12-29 06:00
    EXPECT_DOUBLE_EQ(ZoOleDateToLinear(-2.0), -2.0);
    // 1899-12-29 18:00 comes after 1899-12-29 06:00.
    EXPECT_EQ(Sign(ZoCompareTreeTexts(2, L"1899-12-29 18:00:00", L"1899-12-29 06:00:00")), 1);
}

// --- Node paths (the tree order itself is checked through the view's sorting) -----------------

TEST(TreeNodePath, HoldsAncestorsPerLevel)
{
    CZoTreeListCtrlItem root;
    CZoTreeListCtrlItem* a = AddChild(root, L"a");
    CZoTreeListCtrlItem* a1 = AddChild(*a, L"1");
    CZoTreeListCtrlItem* a11 = AddChild(*a1, L"x");
    const CZoTreeListCtrlItem* path[3];
    ZoTreeNodePath(a11, 3, path);
    EXPECT_EQ(path[0], a);
    EXPECT_EQ(path[1], a1);
    EXPECT_EQ(path[2], a11);
    ZoTreeNodePath(a1, 3, path);
    EXPECT_EQ(path[2], nullptr);
    // Deeper than the levels: its ancestors only.
    ZoTreeNodePath(a11, 2, path);
    EXPECT_EQ(path[0], a);
    EXPECT_EQ(path[1], a1);
}

} // namespace
