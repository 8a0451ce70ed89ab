// The tree-list node: children, flags, depth, texts and the subtree walks.
#include <afx.h>

#include <gtest/gtest.h>
#include <zotest/resource_counter.h>

#include "lists/ZoTreeListCtrlItem.h"
#include "tree_test_support.h"

using namespace ZoControls;
using namespace treetest;

namespace {

// Raises CInvalidArgException?
template <class F>
bool RaisesInvalidArg(F operation)
{
    try
    {
        operation();
    }
    catch (CInvalidArgException* error)
    {
        error->Delete();
        return true;
    }
    return false;
}

// The last item flags of the children, in order, as "1" and "0".
CString LastFlags(const CZoTreeListCtrlItem& node)
{
    CString flags;
    for (POSITION pos = node.GetFirstChildPosition(); pos != NULL;)
        flags += node.GetNextChild(pos)->IsLastItem() ? L"1" : L"0";
    return flags;
}

// root -> a (a1, a2), b
struct SmallTree
{
    CZoTreeListCtrlItem root;
    CZoTreeListCtrlItem* a = AddChild(root, L"a", 1);
    CZoTreeListCtrlItem* b = AddChild(root, L"b", 2);
    CZoTreeListCtrlItem* a1 = AddChild(*a, L"a1");
    CZoTreeListCtrlItem* a2 = AddChild(*a, L"a2");
};

} // namespace

TEST(TreeItem, FreshNodesTakeTheirDepthFromTheParentChain)
{
    SmallTree tree;
    const struct
    {
        const CZoTreeListCtrlItem* node;
        int depth;
        bool topLevel;
    } rows[] = {{&tree.root, -1, false}, {tree.a, 0, true}, {tree.b, 0, true}, {tree.a1, 1, false}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(row.node->GetDepthLevel(), row.depth);
        EXPECT_EQ(row.node->CountDepthLevel(), row.depth);
        EXPECT_EQ(row.node->IsRootItem(), row.topLevel);
    }
    EXPECT_EQ(tree.a1->GetParentItem(), tree.a);
    EXPECT_EQ(tree.root.GetParentItem(), nullptr);

    const CZoTreeListCtrlItem plain;
    EXPECT_EQ(plain.GetImage(), -1);
    EXPECT_EQ(plain.GetTempItemNumber(), -1);
    EXPECT_EQ(plain.GetItemData(), 0u);
    EXPECT_TRUE(plain.IsCollapsed());
    EXPECT_FALSE(plain.GetBold());
    EXPECT_FALSE(plain.IsLastItem());
    EXPECT_EQ(tree.a->GetImage(), 1);
}

TEST(TreeItem, OnlyTheLastAppendedChildIsFlaggedLast)
{
    CZoTreeListCtrlItem root;
    root.InsertChildItem(nullptr);
    EXPECT_TRUE(root.HasNoChildren());
    CZoTreeListCtrlItem* a = AddChild(root, L"a");
    EXPECT_EQ(LastFlags(root), L"1");
    AddChild(root, L"b");
    a->SetLastItem(true); // set again by hand: the next append clears it too
    AddChild(root, L"c");
    EXPECT_EQ(LastFlags(root), L"001");
    EXPECT_EQ(ChildTexts(root), L"a b c");
    EXPECT_EQ(root.GetLastChild()->GetSubItemText(0), L"c");
    EXPECT_EQ(root.GetChildrenCount(), 3);
    EXPECT_EQ(root.GetNumberOfChildren(), 3);
    EXPECT_FALSE(root.HasNoChildren());
}

TEST(TreeItem, DeletingAChildLeavesTheOthersFlagsAsTheyWereAndWhatIsNoChildStays)
{
    SmallTree tree;
    CZoTreeListCtrlItem stray(&tree.root, -1); // names the root as parent but was never inserted
    for (CZoTreeListCtrlItem* node : {static_cast<CZoTreeListCtrlItem*>(nullptr), tree.a1, &stray})
        EXPECT_EQ(tree.root.DeleteChildItem(node), 0);
    EXPECT_EQ(ChildTexts(*tree.a), L"a1 a2");
    EXPECT_EQ(tree.root.DeleteChildItem(tree.b), 1);
    EXPECT_EQ(ChildTexts(tree.root), L"a");
    EXPECT_EQ(LastFlags(tree.root), L"0");
    EXPECT_EQ(tree.a->DeleteChildItem(tree.a1), 1);
    EXPECT_EQ(LastFlags(*tree.a), L"1");
    // A node deleted directly leaves its parent's list.
    delete tree.a2;
    EXPECT_TRUE(tree.a->HasNoChildren());
}

TEST(TreeItem, ANodeJoinsOneListOnlyAndNeverBelowItself)
{
    SmallTree tree;
    tree.b->InsertChildItem(tree.a1);      // already a's child
    tree.a1->InsertChildItem(tree.a);      // its own ancestor
    tree.a->InsertChildItem(tree.a);       // itself
    tree.a1->InsertChildItem(&tree.root);  // the root above it
    EXPECT_TRUE(tree.b->HasNoChildren());
    EXPECT_TRUE(tree.a1->HasNoChildren());
    EXPECT_EQ(ChildTexts(*tree.a), L"a1 a2");
}

TEST(TreeItem, ClearDeletesTheChildrenAndForgetsTheNodesTexts)
{
    SmallTree tree;
    tree.a->SetSubItemText(2, L"x");
    tree.a->Clear();
    EXPECT_TRUE(tree.a->HasNoChildren());
    EXPECT_EQ(tree.a->GetSubItemText(0), L"");
    EXPECT_EQ(tree.a->GetSubItemText(2), L"");
    AddChild(*tree.a, L"again");
    EXPECT_EQ(ChildTexts(*tree.a), L"again");
}

TEST(TreeItem, AnEmptyChildListAndANegativeColumnRaiseInvalidArgument)
{
    CZoTreeListCtrlItem node;
    EXPECT_TRUE(RaisesInvalidArg([&] { node.GetLastChild(); }));
    EXPECT_TRUE(RaisesInvalidArg([&] { node.GetSubItemText(-1); }));
    EXPECT_FALSE(RaisesInvalidArg([&] { node.SetSubItemText(-1, L"ignored"); }));
}

TEST(TreeItem, TextsGrowToTheColumnSetAndAreEmptyBeyond)
{
    CZoTreeListCtrlItem node;
    node.SetSubItemText(3, L"three");
    node.SetSubItemText(0, nullptr);
    const struct
    {
        int column;
        const wchar_t* text;
    } rows[] = {{0, L""}, {1, L""}, {3, L"three"}, {4, L""}, {1000, L""}};
    for (const auto& row : rows)
        EXPECT_EQ(node.GetSubItemText(row.column), row.text) << row.column;
}

TEST(TreeItem, IsLeafOfLooksAboveTheNodeOnly)
{
    SmallTree tree;
    const struct
    {
        const CZoTreeListCtrlItem* ancestor;
        bool leaf;
    } rows[] = {{tree.a, true}, {&tree.root, true}, {tree.a1, false}, {tree.b, false}, {nullptr, false}};
    for (const auto& row : rows)
        EXPECT_EQ(tree.a1->IsLeafOf(row.ancestor), row.leaf);
    EXPECT_FALSE(tree.root.IsLeafOf(nullptr));
}

TEST(TreeItem, ExpandAllSetsTheWholeSubtreeAndTheNodeItself)
{
    SmallTree tree;
    tree.root.ExpandAll(true);
    for (const CZoTreeListCtrlItem* node : {&tree.root, tree.a, tree.b, tree.a1, tree.a2})
        EXPECT_TRUE(node->IsExpanded());
    tree.a->ExpandAll(false);
    EXPECT_TRUE(tree.a->IsCollapsed() && tree.a2->IsCollapsed());
    EXPECT_TRUE(tree.root.IsExpanded() && tree.b->IsExpanded());
    tree.root.ExpandAll(false);
    EXPECT_TRUE(tree.root.IsCollapsed());
}

TEST(TreeItem, ResetTempItemNumberClearsTheWholeSubtree)
{
    SmallTree tree;
    for (CZoTreeListCtrlItem* node : {&tree.root, tree.a, tree.b, tree.a1, tree.a2})
        node->SetTempItemNumber(7);
    tree.a->ResetTempItemNumber();
    EXPECT_EQ(tree.a->GetTempItemNumber(), -1);
    EXPECT_EQ(tree.a2->GetTempItemNumber(), -1);
    EXPECT_EQ(tree.b->GetTempItemNumber(), 7);
}

TEST(TreeItem, SortChildrenFollowsTheRowsOfExpandedNodesOnly)
{
    // root (expanded) -> p (expanded: rows 3 1 2), q (collapsed: rows 2 1), r
    CZoTreeListCtrlItem root;
    CZoTreeListCtrlItem* p = AddChild(root, L"p");
    CZoTreeListCtrlItem* q = AddChild(root, L"q");
    CZoTreeListCtrlItem* r = AddChild(root, L"r");
    const struct
    {
        CZoTreeListCtrlItem* parent;
        const wchar_t* text;
        int row;
    } children[] = {{p, L"p3", 3}, {p, L"p1", 1}, {p, L"p2", 2}, {q, L"q2", 2}, {q, L"q1", 1}};
    for (const auto& child : children)
        AddChild(*child.parent, child.text)->SetTempItemNumber(child.row);
    root.Expand(true);
    p->Expand(true);
    r->SetTempItemNumber(0);
    p->SetTempItemNumber(5);
    q->SetTempItemNumber(9);

    root.SortChildren();
    EXPECT_EQ(ChildTexts(root), L"r p q");
    EXPECT_EQ(ChildTexts(*p), L"p1 p2 p3");
    EXPECT_EQ(ChildTexts(*q), L"q2 q1");
    EXPECT_EQ(LastFlags(*p), L"010"); // the flags travel with their nodes
    EXPECT_EQ(p->GetLastChild()->GetSubItemText(0), L"p3");
    // Sorted children are still deleted and appended in O(1) at their new places.
    EXPECT_EQ(p->DeleteChildItem(p->GetLastChild()), 1);
    AddChild(*p, L"p4");
    EXPECT_EQ(ChildTexts(*p), L"p1 p2 p4");

    root.Expand(false);
    r->SetTempItemNumber(10);
    root.SortChildren();
    EXPECT_EQ(ChildTexts(root), L"r p q");
}

TEST(TreeItem, AChainOfAHundredThousandLevelsIsWalkedAndDeletedWithoutRecursion)
{
    CZoTreeListCtrlItem* root = new CZoTreeListCtrlItem;
    CZoTreeListCtrlItem* node = root;
    for (int i = 0; i < 100000; ++i)
    {
        CZoTreeListCtrlItem* child = new CZoTreeListCtrlItem(node, -1);
        node->InsertChildItem(child);
        node = child;
    }
    root->ExpandAll(true);
    root->ResetTempItemNumber();
    root->SortChildren();
    EXPECT_TRUE(node->IsExpanded());
    EXPECT_EQ(node->GetDepthLevel(), 99999);
    delete root;
}

TEST(TreeItem, BuildingAndDeletingTreesLeavesNoHeapBlocks)
{
    ZOTEST_EXPECT_NO_LEAKS(1000, [] {
        CZoTreeListCtrlItem root;
        for (int i = 0; i < 5; ++i)
        {
            CZoTreeListCtrlItem* top = AddChild(root, L"top");
            for (int j = 0; j < 5; ++j)
                AddChild(*top, L"child")->SetSubItemText(3, L"more");
        }
        root.DeleteChildItem(root.GetLastChild());
        root.GetLastChild()->Clear();
    }, zotest::count_heap);
}
