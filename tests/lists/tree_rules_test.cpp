// The tree-list view's rules with plain values: the row index against a plain vector through
// thousands of inserts and removals, the tree's date and number comparisons, node paths, and the
// sibling-by-sibling sort against the comparison of whole node paths.
#include <afx.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <vector>

#include "lists/ZoRowRewrite.h"
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

// Rows changing places as a sort moves them, over several blocks; an order that is no
// permutation of the rows changes nothing.
TEST(TreeRowIndex, ReorderMovesEveryRowToItsPlace)
{
    std::vector<std::unique_ptr<CZoTreeListCtrlItem>> nodes;
    std::vector<CZoTreeListCtrlItem*> rows;
    for (int i = 0; i < 1500; ++i)
    {
        nodes.emplace_back(new CZoTreeListCtrlItem());
        rows.push_back(nodes.back().get());
    }
    CZoTreeRowIndex index;
    index.Assign(rows);
    std::vector<int> order(rows.size());
    for (size_t i = 0; i < order.size(); ++i)
        order[i] = (int)(order.size() - 1 - i);
    std::mt19937 random(3);
    std::shuffle(order.begin(), order.begin() + order.size() / 2, random);
    std::vector<CZoTreeListCtrlItem*> placed;
    for (int row : order)
        placed.push_back(rows[(size_t)row]);
    index.Reorder(order);
    order[0] = order[1];
    index.Reorder(order);
    index.Reorder(std::vector<int>(3, 0));
    index.Remove(0); // the blocks still move their rows
    placed.erase(placed.begin());
    for (int row = 0; row < (int)placed.size(); ++row)
    {
        ASSERT_EQ(index.GetAt(row), placed[row]) << row;
        ASSERT_EQ(index.Find(placed[row], 0), row);
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
    // A node in two rows is found from the start row on.
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

// --- Sorting rows ------------------------------------------------------------------------------

// Rows compare by a key table; ties keep their order.
int CompareKeys(int first, int second, void* context)
{
    const std::vector<int>& keys = *static_cast<const std::vector<int>*>(context);
    return keys[(size_t)first] - keys[(size_t)second];
}

TEST(TreeRowSort, IsStableAndMovesARightItemOnlyWhenTheLeftOneIsGreater)
{
    std::vector<int> keys = {3, 1, 2, 1, 3, 0};
    std::vector<int> rows = {0, 1, 2, 3, 4, 5};
    ZoStableSortRows(rows, &CompareKeys, &keys);
    EXPECT_EQ(rows, (std::vector<int>{5, 1, 3, 2, 0, 4}));
    // Everything equal: nothing moves.
    std::vector<int> same(6, 7);
    ZoStableSortRows(rows, &CompareKeys, &same);
    EXPECT_EQ(rows, (std::vector<int>{5, 1, 3, 2, 0, 4}));
    std::vector<int> none;
    ZoStableSortRows(none, &CompareKeys, &keys);
    EXPECT_TRUE(none.empty());
    ZoStableSortRows(rows, nullptr, &keys); // no comparison: left as it is
    EXPECT_EQ(rows, (std::vector<int>{5, 1, 3, 2, 0, 4}));
}

TEST(TreeRowSort, RowParentsOnlyForRowsThatShowTheTree)
{
    CZoTreeListCtrlItem root;
    root.Expand(true);
    CZoTreeListCtrlItem* a = AddChild(root, L"a");
    CZoTreeListCtrlItem* a1 = AddChild(*a, L"a1");
    CZoTreeListCtrlItem* a11 = AddChild(*a1, L"a11");
    CZoTreeListCtrlItem* a2 = AddChild(*a, L"a2");
    CZoTreeListCtrlItem* b = AddChild(root, L"b");
    std::vector<int> parents;
    ASSERT_TRUE(ZoTreeRowParents({a, a1, a11, a2, b}, parents));
    EXPECT_EQ(parents, (std::vector<int>{-1, 0, 1, 0, -1}));
    ASSERT_TRUE(ZoTreeRowParents({a, b}, parents)); // a collapsed
    EXPECT_EQ(parents, (std::vector<int>{-1, -1}));
    ASSERT_TRUE(ZoTreeRowParents({}, parents));
    EXPECT_FALSE(ZoTreeRowParents({a, a1, nullptr}, parents));   // a row without node
    EXPECT_FALSE(ZoTreeRowParents({a, a1, a2, a1}, parents));    // a node twice
    EXPECT_FALSE(ZoTreeRowParents({a, b, a1}, parents));         // a child away from its parent
    EXPECT_FALSE(ZoTreeRowParents({a1, a}, parents));            // a child before its parent
    EXPECT_FALSE(ZoTreeRowParents({a, a11}, parents));           // a level left out
}

// A random tree (texts all different, some rows bold) sorted sibling by sibling gives the rows
// that sorting all of them by whole node paths gives, in both directions and with a level limit.
struct PathContext
{
    std::vector<const CZoTreeListCtrlItem*> rows;
    int levels;
    bool ascending;
    std::vector<const CZoTreeListCtrlItem*> path1, path2;
};

int CompareTexts(const CZoTreeListCtrlItem* x, const CZoTreeListCtrlItem* y, void*)
{
    return x->GetSubItemText(0).Compare(y->GetSubItemText(0));
}

int ComparePaths(int first, int second, void* context)
{
    PathContext& c = *static_cast<PathContext*>(context);
    return ZoCompareTreeNodes(c.rows[(size_t)first], c.rows[(size_t)second], c.levels, c.ascending, c.path1.data(),
                              c.path2.data(), &CompareTexts, nullptr);
}

int CompareSiblings(int first, int second, void* context)
{
    const PathContext& c = *static_cast<const PathContext*>(context);
    const CZoTreeListCtrlItem* x = c.rows[(size_t)first];
    const CZoTreeListCtrlItem* y = c.rows[(size_t)second];
    if (x->GetDepthLevel() >= c.levels)
        return 0;
    if (x->GetBold() != y->GetBold())
        return x->GetBold() ? -1 : 1;
    return ZoDirected(CompareTexts(x, y, nullptr), c.ascending);
}

TEST(TreeRowSort, SiblingBySiblingEqualsWholePaths)
{
    std::mt19937 random(11);
    for (int round = 0; round < 12; ++round)
    {
        CZoTreeListCtrlItem root;
        root.Expand(true);
        std::vector<int> names(400);
        for (size_t i = 0; i < names.size(); ++i)
            names[i] = (int)i;
        std::shuffle(names.begin(), names.end(), random);
        // Rows in tree order: each new node goes below a node of the current line.
        PathContext context;
        std::vector<CZoTreeListCtrlItem*> line;
        for (int name : names)
        {
            const size_t depth = random() % (line.size() + 1);
            line.resize(std::min<size_t>(depth, 4));
            CString text;
            text.Format(L"%04d", name);
            CZoTreeListCtrlItem* node = AddChild(line.empty() ? root : *line.back(), text);
            node->SetBold(random() % 5 == 0);
            context.rows.push_back(node);
            line.push_back(node);
        }
        context.levels = 2 + round % 3;
        context.ascending = round % 2 == 0;
        context.path1.assign((size_t)context.levels, nullptr);
        context.path2.assign((size_t)context.levels, nullptr);
        std::vector<int> parents;
        ASSERT_TRUE(ZoTreeRowParents(context.rows, parents));
        std::vector<int> whole(context.rows.size());
        for (size_t i = 0; i < whole.size(); ++i)
            whole[i] = (int)i;
        ZoStableSortRows(whole, &ComparePaths, &context);
        EXPECT_EQ(ZoTreeSortedRowOrder(parents, &CompareSiblings, &context), whole) << "round " << round;
    }
}

TEST(TreeRowSort, ParentsThatAreNoEarlierRowsLeaveTheirRowsInOrderAtTheEnd)
{
    std::vector<int> keys = {0, 0, 0};
    EXPECT_EQ(ZoTreeSortedRowOrder({-1, 2, 1}, &CompareKeys, &keys), (std::vector<int>{0, 1, 2}));
    EXPECT_EQ(ZoTreeSortedRowOrder({7, -5}, &CompareKeys, &keys), (std::vector<int>{0, 1}));
    EXPECT_TRUE(ZoTreeSortedRowOrder({}, &CompareKeys, &keys).empty());
}

// How many pairs an order turns round decides whether rows are rewritten rather than sorted:
// only past a constant number per comparison of the sort, so a reversed order of a few rows still
// goes through the sort and one of hundreds is rewritten.
TEST(TreeRowSort, RowsAreRewrittenOnlyForOrdersThatTurnManyPairsRound)
{
    const struct
    {
        std::vector<int> order;
        long long inversions;
    } counts[] = {{{}, 0}, {{0}, 0}, {{0, 1, 2}, 0}, {{2, 1, 0}, 3}, {{1, 0, 3, 2}, 2}, {{3, 0, 1, 2}, 3}, {{1, 2, 3, 0}, 3}};
    for (const auto& count : counts)
        EXPECT_EQ(ZoCountInversions(count.order), count.inversions);
    std::vector<int> reversed(606);
    for (size_t i = 0; i < reversed.size(); ++i)
        reversed[i] = (int)(reversed.size() - 1 - i);
    EXPECT_EQ(ZoCountInversions(reversed), 606LL * 605 / 2);
    EXPECT_TRUE(ZoRewritingPays(606, ZoCountInversions(reversed)));
    EXPECT_FALSE(ZoRewritingPays(6, 15));
    EXPECT_FALSE(ZoRewritingPays(1, 1000));
}

} // namespace
