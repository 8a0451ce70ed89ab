// The tree-list view as a host and a user see it: rows built from the tree, children on demand
// and the WM_APP + 5 conversation with the parent, keyboard and mouse against the level limit,
// sorting, deleting, selections, bad input, large trees and leaks.
#include "list_test_support.h"

#include <zotest/zotest.h>

#include <algorithm>
#include <climits>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "frames/ZoMenuXP.h"
#include "lists/ZoTreeListCtrl.h"
#include "tree_test_support.h"

using namespace ZoControls;
using controltest::Slot;

namespace {

std::string Narrow(const CString& text)
{
    std::string narrow;
    for (int i = 0; i < text.GetLength(); ++i)
        narrow += static_cast<char>(text[i]);
    return narrow;
}

// The test parent, which answers the view's requests for children through `onNotify`.
class TreeParent : public listtest::ParentSpy
{
public:
    std::function<void(WPARAM, LPARAM)> onNotify;
    std::function<void(const NMHDR&)> onListNotify; // the list's own notifications

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == ZoTreeListNotify && onNotify)
            onNotify(wParam, lParam);
        if (message == WM_NOTIFY && onListNotify)
            onListNotify(*reinterpret_cast<const NMHDR*>(lParam));
        return listtest::ParentSpy::WindowProc(message, wParam, lParam);
    }
};

class TreeTest : public controltest::ControlTest
{
protected:
    void SetUp() override
    {
        controltest::ControlTest::SetUp();
        ASSERT_TRUE(parent_.SubclassWindow(parent()));
    }
    void TearDown() override
    {
        if (tree_ && tree_->GetSafeHwnd())
            tree_->DestroyWindow();
        tree_.reset();
        parent_.onNotify = nullptr;
        parent_.onListNotify = nullptr;
        if (parent_.GetSafeHwnd())
            parent_.UnsubclassWindow();
        controltest::ControlTest::TearDown();
    }

    // A tree with columns "Name", "Size", "Date" and `levels` levels, visible unless told.
    CZoTreeListCtrl& MakeTree(int levels = 3, DWORD visible = WS_VISIBLE)
    {
        tree_ = std::make_unique<CZoTreeListCtrl>();
        EXPECT_TRUE(tree_->Create(WS_CHILD | visible | LVS_REPORT | LVS_SHOWSELALWAYS, listtest::kListRect,
                                  parentWnd(), listtest::kListId));
        const wchar_t* names[] = {L"Name", L"Size", L"Date"};
        for (int c = 0; c < 3; ++c)
            tree_->InsertColumn(c, names[c], LVCFMT_LEFT, 100);
        tree_->Reset(levels);
        return *tree_;
    }
    DWORD_PTR Add(DWORD_PTR parent, const wchar_t* text) { return tree_->InsertNode(parent, text); }
    int RowOf(DWORD_PTR node) const { return tree_->LookforItemNumber(node, 0); }
    // The first column of every row, joined by spaces.
    std::string Rows() const
    {
        std::string rows;
        for (int row = 0; row < tree_->GetItemCount(); ++row)
        {
            if (!rows.empty())
                rows += " ";
            rows += Narrow(tree_->GetItemText(row, 0));
        }
        return rows;
    }
    BOOL Key(UINT key)
    {
        MSG msg = {};
        msg.hwnd = tree_->GetSafeHwnd();
        msg.message = WM_KEYDOWN;
        msg.wParam = key;
        msg.lParam = 1;
        return static_cast<CWnd&>(*tree_).PreTranslateMessage(&msg);
    }
    void ClickHeader(int column)
    {
        RECT item = {};
        const HWND header = tree_->GetZoHeaderCtrl().GetSafeHwnd();
        ::SendMessageW(header, HDM_GETITEMRECT, column, reinterpret_cast<LPARAM>(&item));
        zotest::SendClick(header, POINT{(item.left + item.right) / 2, (item.top + item.bottom) / 2});
    }
    POINT ExpanderOf(int row)
    {
        CRect icon;
        tree_->GetSubItemRect(row, 0, LVIR_ICON, icon);
        return POINT{icon.left + 8, (icon.top + icon.bottom) / 2};
    }
    // A on top with A1 (holding A11) and A2, then B with B1.
    void BuildSample()
    {
        a_ = Add(0, L"A");
        a1_ = Add(a_, L"A1");
        a11_ = Add(a1_, L"A11");
        a2_ = Add(a_, L"A2");
        b_ = Add(0, L"B");
        b1_ = Add(b_, L"B1");
    }
    // The view's rows agree with the native list's item data, row by row.
    testing::AssertionResult RowsInStep() const
    {
        for (int row = 0; row < tree_->GetItemCount(); ++row)
            if (tree_->GetItemNode(row) != tree_->CListCtrl::GetItemData(row))
                return testing::AssertionFailure() << "row " << row;
        return testing::AssertionSuccess();
    }

    std::unique_ptr<CZoTreeListCtrl> tree_;
    TreeParent parent_;
    DWORD_PTR a_ = 0, a1_ = 0, a11_ = 0, a2_ = 0, b_ = 0, b1_ = 0;
};

zotest::ExpectedMessage Sent(WPARAM code, LPARAM node)
{
    return {ZoTreeListNotify, zotest::sent | zotest::parent | zotest::wparam | zotest::lparam, code, node};
}
zotest::ExpectedMessage Posted(WPARAM code, LPARAM lParam)
{
    return {ZoTreeListNotify, zotest::posted | zotest::parent | zotest::wparam | zotest::lparam, code, lParam};
}

// --- Building ------------------------------------------------------------------------------------

TEST_F(TreeTest, InsertedNodesFollowTheirParentsSubtreesWithExpandersForLevelAndState)
{
    MakeTree();
    BuildSample();
    int row = -1;
    const DWORD_PTR a3 = tree_->InsertNode(a_, L"A3", 7, &row);
    EXPECT_EQ(Rows(), "A A1 A11 A2 A3 B B1");
    EXPECT_EQ(row, 4);
    EXPECT_EQ(tree_->GetItemNode(4), a3);
    EXPECT_EQ(tree_->GetItemImageIndex(4), 7); // the image it was given
    EXPECT_EQ(tree_->GetParentNode(a3), a_);
    EXPECT_EQ(tree_->GetParentNode(a_), 0u);
    EXPECT_EQ(CZoTreeListCtrl::GetNodeLevel(a11_), 2);
    EXPECT_TRUE(tree_->IsRootItemOfTreeList(b_));
    EXPECT_FALSE(tree_->IsRootItemOfTreeList(b1_));
    EXPECT_TRUE(tree_->IsExpand(a_));
    EXPECT_TRUE(RowsInStep());
    // The expander images tell level and state.
    auto image = [this](DWORD_PTR node) {
        LVITEMW item = {};
        item.iItem = RowOf(node);
        return static_cast<const CZoListCtrl*>(tree_.get())->GetItemImageIndex(item);
    };
    EXPECT_EQ(image(a_), CZoTreeListCtrl::TLI_TopExpanded);
    EXPECT_EQ(image(a1_), CZoTreeListCtrl::TLI_ChildExpanded);
    EXPECT_EQ(image(a2_), CZoTreeListCtrl::TLI_ChildCollapsed); // no children
    tree_->Collapse(RowOf(b_));
    EXPECT_EQ(image(b_), CZoTreeListCtrl::TLI_TopCollapsed);
    EXPECT_EQ(ImageList_GetImageCount(tree_->GetImageList(LVSIL_SMALL)->GetSafeHandle()), 7);
}

TEST_F(TreeTest, AChildOfACollapsedParentLandsOnTheFirstRow)
{
    MakeTree();
    tree_->SetKeepChildData(true);
    BuildSample();
    tree_->Collapse(RowOf(a_));
    EXPECT_EQ(Rows(), "A B B1");
    Add(a_, L"A3"); // the parent's last descendant has no row
    EXPECT_EQ(Rows(), "A3 A B B1");
    EXPECT_TRUE(tree_->IsExpand(a_));
    EXPECT_TRUE(RowsInStep());
}

TEST_F(TreeTest, ASubclassedListBecomesATree)
{
    const HWND native = MakeNative(WC_LISTVIEWW, LVS_REPORT, RECT{10, 10, 200, 200});
    CZoTreeListCtrl tree;
    ASSERT_TRUE(tree.SubclassWindow(native));
    EXPECT_TRUE(tree.GetZoHeaderCtrl().IsFirstColumnLocked());
    ASSERT_NE(tree.GetImageList(LVSIL_SMALL), nullptr);
    EXPECT_NE(tree.GetStyle() & LVS_SHAREIMAGELISTS, 0u); // the view keeps its image list
    tree.InsertColumn(0, L"Name", LVCFMT_LEFT, 100);
    EXPECT_EQ(tree.LookforItemNumber(tree.InsertNode(0, L"x"), 0), 0);
    tree.DestroyWindow();
}

// --- Expanding and collapsing -------------------------------------------------------------------

TEST_F(TreeTest, ChildrenOnDemandAndWhatTheParentHears)
{
    MakeTree();
    const DWORD_PTR top = Add(0, L"T");
    Add(0, L"U");
    int asked = 0;
    parent_.onNotify = [&](WPARAM code, LPARAM node) {
        if (code != CZoTreeListCtrl::TLN_GetChildren)
            return;
        ++asked;
        Add(node, L"c1");
        Add(node, L"c2");
    };
    tree_->SetItemFocus(0);
    zotest::MessageRecorder recorder;
    recorder.Watch(parent(), zotest::WindowRole::Parent);
    recorder.MatchOnlyListed(true);

    EXPECT_EQ(tree_->Expand(0), 2);
    EXPECT_EQ(Rows(), "T c1 c2 U");
    ZOTEST_EXPECT_SEQUENCE(recorder, (std::vector<zotest::ExpectedMessage>{Sent(0, top), Sent(2, top)}));

    // Without keep child data a collapse forgets the children: the next expand asks again.
    tree_->Collapse(0);
    EXPECT_TRUE(tree_->HasNoChildren(top));
    EXPECT_EQ(tree_->Expand(0), 2);
    EXPECT_EQ(asked, 2);
    ZOTEST_EXPECT_SEQUENCE(recorder, (std::vector<zotest::ExpectedMessage>{Sent(2, top), Sent(0, top), Sent(2, top)}));

    // With it the children come back from the model.
    tree_->SetKeepChildData(true);
    tree_->Collapse(0);
    EXPECT_EQ(tree_->Expand(0), 2);
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(Rows(), "T c1 c2 U");
    ZOTEST_EXPECT_SEQUENCE(recorder, (std::vector<zotest::ExpectedMessage>{Sent(2, top), Sent(2, top)}));
}

TEST_F(TreeTest, CollapsingMovesTheFocusFromADescendantToTheCollapsedRow)
{
    MakeTree();
    BuildSample();
    tree_->SetItemFocus(RowOf(a11_));
    tree_->Collapse(RowOf(a_));
    EXPECT_EQ(Rows(), "A B B1");
    int row = -1;
    EXPECT_EQ(tree_->GetFocusedItem(&row), a_);
    EXPECT_EQ(row, 0);
}

TEST_F(TreeTest, KeptChildrenTakeTheOrderTheirRowsHadWhenCollapsed)
{
    MakeTree();
    tree_->SetKeepChildData(true);
    BuildSample();
    tree_->SortOnColumn(0, false);
    tree_->SetItemText(RowOf(a2_), 1, L"two");
    EXPECT_EQ(Rows(), "B B1 A A2 A1 A11");
    tree_->Collapse(RowOf(a_));
    EXPECT_EQ(treetest::ChildTexts(*reinterpret_cast<CZoTreeListCtrlItem*>(a_)), L"A2 A1");
    // The expanded child comes back with its own subtree and the cells it had.
    EXPECT_EQ(tree_->Expand(RowOf(a_)), 3);
    EXPECT_EQ(Rows(), "B B1 A A2 A1 A11");
    EXPECT_EQ(tree_->GetItemText(RowOf(a2_), 1), L"two");
    EXPECT_EQ(tree_->Expand(RowOf(a_)), 0); // already expanded
    EXPECT_TRUE(RowsInStep());
}

// --- Keyboard and mouse against the level limit ----------------------------------------------

TEST_F(TreeTest, KeysExpandAndCollapseOnlyAboveTheLevelLimit)
{
    MakeTree(2); // depth 1 is the limit
    tree_->SetKeepChildData(true);
    BuildSample();
    tree_->Collapse(RowOf(a1_)); // at the limit, through the operation
    tree_->SetItemFocus(RowOf(a1_));
    EXPECT_EQ(Rows(), "A A1 A2 B B1");
    for (UINT key : {VK_SPACE, VK_RETURN, VK_ADD, VK_RIGHT, VK_MULTIPLY})
    {
        Key(key);
        EXPECT_EQ(Rows(), "A A1 A2 B B1") << key;
    }
    EXPECT_TRUE(Key(VK_LEFT)); // not expanded: to the parent
    EXPECT_EQ(tree_->GetFocusedItem(), a_);
    EXPECT_TRUE(Key(VK_SUBTRACT));
    EXPECT_EQ(Rows(), "A B B1");
    EXPECT_TRUE(Key(VK_RIGHT));
    EXPECT_EQ(Rows(), "A A1 A2 B B1");
    EXPECT_TRUE(Key(VK_RIGHT)); // expanded: to the next row
    EXPECT_EQ(tree_->GetFocusedItem(), a1_);
    Key(VK_UP);
    Key(VK_UP); // not above the first row
    EXPECT_EQ(tree_->GetFocusedItem(), a_);
    EXPECT_TRUE(Key(VK_SPACE));
    EXPECT_EQ(Rows(), "A B B1");
    Key(VK_DOWN);
    Key(VK_DOWN);
    Key(VK_DOWN);
    EXPECT_EQ(tree_->GetFocusedItem(), b1_);
    EXPECT_EQ(tree_->GetSelectedCount(), 1u);
}

TEST_F(TreeTest, ExpandAllStopsAtTheLevelLimit)
{
    MakeTree(3);
    tree_->SetKeepChildData(true);
    BuildSample();
    const DWORD_PTR deep = Add(a11_, L"A111");
    tree_->Collapse(RowOf(a11_));
    tree_->Collapse(RowOf(a_));
    tree_->SetItemFocus(0);
    Key(VK_MULTIPLY);
    EXPECT_EQ(Rows(), "A A1 A11 A2 B B1"); // A11 sits at the limit
    EXPECT_EQ(RowOf(deep), -1);
    tree_->EnableExpandAll(false);
    tree_->Collapse(0);
    Key(VK_MULTIPLY);
    EXPECT_EQ(Rows(), "A B B1");
}

TEST_F(TreeTest, FunctionKeysArePostedToTheParent)
{
    MakeTree();
    BuildSample();
    tree_->SetItemFocus(0);
    zotest::MessageRecorder recorder;
    recorder.Watch(parent(), zotest::WindowRole::Parent);
    recorder.MatchOnlyListed(true);
    EXPECT_TRUE(Key(VK_F5));
    EXPECT_TRUE(Key(VK_ESCAPE));
    zotest::PumpUntilIdle();
    const zotest::ExpectedMessage expected[] = {
        Posted(1, 0),
        Posted(3, VK_ESCAPE),
        {WM_KEYDOWN, zotest::posted | zotest::parent | zotest::wparam, VK_ESCAPE},
    };
    ZOTEST_EXPECT_SEQUENCE(recorder, expected);
}

TEST_F(TreeTest, TheExpanderClickTogglesAtAnyLevelAndADoubleClickAboveTheLimit)
{
    MakeTree(2);
    tree_->SetKeepChildData(true);
    BuildSample();
    zotest::SendClick(tree_->GetSafeHwnd(), ExpanderOf(RowOf(a1_))); // at the limit
    EXPECT_EQ(Rows(), "A A1 A2 B B1");
    zotest::SendClick(tree_->GetSafeHwnd(), ExpanderOf(RowOf(a1_)));
    EXPECT_EQ(Rows(), "A A1 A11 A2 B B1");

    const HWND list = tree_->GetSafeHwnd();
    const POINT a1Text = {ExpanderOf(RowOf(a1_)).x + 60, ExpanderOf(RowOf(a1_)).y};
    ::SendMessageW(list, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(a1Text.x, a1Text.y));
    EXPECT_EQ(Rows(), "A A1 A11 A2 B B1"); // at the limit: nothing
    const POINT bText = {ExpanderOf(RowOf(b_)).x + 60, ExpanderOf(RowOf(b_)).y};
    ::SendMessageW(list, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(bText.x, bText.y));
    EXPECT_EQ(Rows(), "A A1 A11 A2 B");
}

// --- Sorting -------------------------------------------------------------------------------------

TEST_F(TreeTest, HeaderSortKeepsChildrenUnderParentsAndBoldSiblingsFirst)
{
    MakeTree();
    BuildSample();
    tree_->SetItemBold(RowOf(a1_), TRUE);
    EXPECT_TRUE(tree_->IsItemBold(RowOf(a1_)));
    zotest::MessageRecorder recorder;
    recorder.Watch(parent(), zotest::WindowRole::Parent);
    recorder.MatchOnlyListed(true);

    ClickHeader(0); // descending first
    EXPECT_EQ(Rows(), "B B1 A A1 A11 A2");
    ClickHeader(0);
    EXPECT_EQ(Rows(), "A A1 A11 A2 B B1");
    tree_->SetItemBold(RowOf(a1_), FALSE);
    ClickHeader(0);
    EXPECT_EQ(Rows(), "B B1 A A2 A1 A11");
    ZOTEST_EXPECT_SEQUENCE(recorder, (std::vector<zotest::ExpectedMessage>{Sent(4, 0), Sent(5, 0), Sent(4, 0),
                                                                            Sent(5, 0), Sent(4, 0), Sent(5, 0)}));
    EXPECT_TRUE(RowsInStep());

    tree_->EnableSort(false);
    ClickHeader(0);
    EXPECT_EQ(Rows(), "B B1 A A2 A1 A11");
}

// The rows change places with everything they carry: cells of every column (those the parent
// supplies stay supplied), selection, focus and the selection mark; the parent hears of no item
// changes, and the view stays where it was. Few rows turned round go through the list's own sort,
// many are rewritten in their new places: both ways alike, and the menu hook survives either.
TEST_F(TreeTest, SortedRowsKeepTheirCellsSelectionAndFocus)
{
    for (int fillers : {0, 600})
    {
        SCOPED_TRACE(fillers);
        MakeTree();
        BuildSample();
        CString name;
        tree_->SetRedraw(FALSE);
        for (int i = 0; i < fillers; ++i)
        {
            name.Format(L"%04d", i); // after "B1", sorting below "A"
            Add(0, name);
        }
        tree_->SetRedraw(TRUE);
        const DWORD_PTR nodes[] = {a_, a1_, a11_, a2_, b_, b1_};
        for (DWORD_PTR node : nodes)
            tree_->SetItemText(RowOf(node), 1, CString(L"size of ") + tree_->GetItemText(RowOf(node), 0));
        tree_->CListCtrl::SetItemText(RowOf(b1_), 2, L"row only"); // in the row, not in the node
        tree_->CListCtrl::SetItemText(RowOf(a1_), 2, LPSTR_TEXTCALLBACKW);
        parent_.onListNotify = [this](const NMHDR& header) {
            auto& info = const_cast<NMLVDISPINFOW&>(reinterpret_cast<const NMLVDISPINFOW&>(header));
            if (header.code == LVN_GETDISPINFOW && info.item.lParam == (LPARAM)a1_ && info.item.iSubItem == 2 &&
                (info.item.mask & LVIF_TEXT))
                lstrcpynW(info.item.pszText, L"supplied", info.item.cchTextMax);
        };
        tree_->SetItemFocus(RowOf(b1_));
        tree_->SetItemState(RowOf(a2_), LVIS_SELECTED, LVIS_SELECTED);
        tree_->SetSelectionMark(RowOf(b1_));
        parent_.codes.clear();

        ClickHeader(0);
        EXPECT_EQ(Rows().substr(0, 16), "B B1 A A2 A1 A11");
        if (fillers)
        {
            EXPECT_EQ(tree_->GetItemText(6, 0), L"0599");
        }
        EXPECT_EQ(parent_.Count(LVN_ITEMCHANGING), 0u);
        EXPECT_EQ(parent_.Count(LVN_ITEMCHANGED), 0u);
        EXPECT_EQ(parent_.Count(LVN_GETDISPINFOW), 0u);
        for (DWORD_PTR node : nodes)
            EXPECT_EQ(tree_->GetItemText(RowOf(node), 1), CString(L"size of ") + tree_->GetItemText(RowOf(node), 0));
        EXPECT_EQ(tree_->GetItemText(RowOf(b1_), 2), L"row only");
        EXPECT_EQ(tree_->GetItemText(RowOf(a1_), 2), L"supplied");
        int focusRow = -1;
        EXPECT_EQ(tree_->GetFocusedItem(&focusRow), b1_);
        EXPECT_EQ(focusRow, 1);
        EXPECT_EQ(tree_->GetSelectedCount(), 2u);
        EXPECT_EQ(tree_->GetItemState(RowOf(a2_), LVIS_SELECTED), (UINT)LVIS_SELECTED);
        EXPECT_EQ(tree_->GetSelectionMark(), 1);
        EXPECT_EQ(tree_->GetTopIndex(), 0);
        EXPECT_TRUE(RowsInStep());
        EXPECT_TRUE(CMenuXP::IsHookInstalled());
        // Item changes outside a sort still reach the parent.
        tree_->SetItemState(RowOf(a_), LVIS_SELECTED, LVIS_SELECTED);
        EXPECT_EQ(parent_.Count(LVN_ITEMCHANGED), 1u);
        parent_.onListNotify = nullptr;
    }
}

// --- Painting ------------------------------------------------------------------------------------

// Bold rows draw their first column with the bold font: the same text covers more pixels. Every
// text stands on the background colour, selected rows included.
TEST_F(TreeTest, BoldRowsAndTextBackgrounds)
{
    MakeTree();
    Add(0, L"Same text");
    Add(0, L"Same text");
    tree_->SetItemBold(0, TRUE);
    tree_->SetItemFocus(1);
    const zotest::Dib dib = zotest::RenderClient(tree_->GetSafeHwnd());
    CRect first, second;
    tree_->GetSubItemRect(0, 0, LVIR_LABEL, first);
    tree_->GetSubItemRect(1, 0, LVIR_LABEL, second);
    const int bold = controltest::CountPixels(dib, first, Slot(42));
    const int plain = controltest::CountPixels(dib, second, Slot(42));
    EXPECT_GT(plain, 0);
    EXPECT_GT(bold, plain);
    EXPECT_GT(controltest::CountPixels(dib, second, Slot(38)), 0); // behind the selected row's text
}

// --- Deleting ------------------------------------------------------------------------------------

TEST_F(TreeTest, DeletingTheLastChildCanTakeEmptyParentsAlong)
{
    MakeTree();
    BuildSample();
    const DWORD_PTR b2 = Add(b_, L"B2");
    tree_->DeleteNode(RowOf(b2), false);
    EXPECT_EQ(Rows(), "A A1 A11 A2 B B1");
    EXPECT_TRUE(reinterpret_cast<CZoTreeListCtrlItem*>(b1_)->IsLastItem()); // the last row left
    // The parent's row is searched from as many rows back as it had children: A1's own child
    // puts A out of reach, and A1 keeps its flag.
    tree_->DeleteNode(RowOf(a2_), false);
    EXPECT_EQ(Rows(), "A A1 A11 B B1");
    EXPECT_FALSE(reinterpret_cast<CZoTreeListCtrlItem*>(a1_)->IsLastItem());
    tree_->DeleteNode(RowOf(b1_), true);
    EXPECT_EQ(Rows(), "A A1 A11");
    tree_->DeleteNode(RowOf(a1_), false);
    EXPECT_EQ(Rows(), "A"); // A stays, empty
    EXPECT_EQ(tree_->GetItemNode(0), a_);
    EXPECT_TRUE(RowsInStep());
    tree_->DeleteAllItems();
    EXPECT_EQ(tree_->GetItemCount(), 0);
    EXPECT_EQ(tree_->ClearAllUserData(nullptr), 0);
}

// --- Selections and user data --------------------------------------------------------------------

TEST_F(TreeTest, SelectedNodesComeShallowestFirstWithoutThoseUnderASelectedNode)
{
    MakeTree();
    BuildSample();
    for (DWORD_PTR node : {a11_, b_, b1_, a2_})
        tree_->SetItemState(RowOf(node), LVIS_SELECTED, LVIS_SELECTED);
    CList<DWORD_PTR, const DWORD_PTR&> selected;
    EXPECT_EQ(tree_->GetSelectedItems(selected), 3);
    std::vector<DWORD_PTR> order;
    for (POSITION pos = selected.GetHeadPosition(); pos;)
        order.push_back(selected.GetNext(pos));
    EXPECT_EQ(order, (std::vector<DWORD_PTR>{b_, a2_, a11_}));
}

std::vector<std::pair<int, DWORD>> g_cleared;
void NoteCleared(int depth, DWORD data) { g_cleared.push_back({depth, data}); }

TEST_F(TreeTest, UserDataIsClearedChildrenBeforeParents)
{
    MakeTree();
    BuildSample();
    DWORD data = 1;
    for (DWORD_PTR node : {a_, a1_, a11_, a2_, b_, b1_})
        tree_->SetItemData(node, data++);
    EXPECT_EQ(tree_->GetItemData(RowOf(a2_)), 4u);
    g_cleared.clear();
    EXPECT_EQ(tree_->ClearAllUserData(&NoteCleared), 6);
    const std::vector<std::pair<int, DWORD>> expected = {{2, 3}, {1, 2}, {1, 4}, {0, 1}, {1, 6}, {0, 5}};
    EXPECT_EQ(g_cleared, expected);
    EXPECT_EQ(CZoTreeListCtrl::GetItemData(a11_), 3u); // left as it was
}

// --- Bad input -----------------------------------------------------------------------------------

TEST_F(TreeTest, RowsWithoutNodesAndOtherBadInputHaveDefinedResults)
{
    // Before the window exists the model still grows.
    CZoTreeListCtrl unborn;
    int row = 5;
    const DWORD_PTR lone = unborn.InsertNode(0, L"lone", &row);
    EXPECT_EQ(row, -1);
    EXPECT_EQ(unborn.ClearAllUserData(nullptr), 1);
    EXPECT_EQ(unborn.Expand(0), 0);
    unborn.SortOnColumn(0, true);
    EXPECT_EQ(unborn.GetParentNode(lone), 0u);

    MakeTree();
    BuildSample();
    tree_->CListCtrl::InsertItem(6, L"foreign"); // a row without node
    EXPECT_EQ(tree_->GetItemNode(6), 0u);
    EXPECT_EQ(tree_->SetItemText(6, 1, L"x"), FALSE);
    EXPECT_EQ(tree_->SetItemBold(6, TRUE), 0);
    EXPECT_EQ(tree_->GetItemImageIndex(6), -1);
    EXPECT_EQ(tree_->GetItemData(99), 0u);
    EXPECT_EQ(tree_->Expand(6), 0);
    tree_->Collapse(99);
    tree_->DeleteNode(-1, true);
    EXPECT_EQ(tree_->SetItemFocus(99), 0);
    EXPECT_EQ(tree_->LookforItemNumber(0, 0), -1);
    EXPECT_EQ(CZoTreeListCtrl::GetNodeLevel(0), -1);
    tree_->SortOnColumn(-1, true);
    tree_->SortOnColumn(7, true); // a column no node has
    EXPECT_EQ(tree_->GetItemCount(), 7);
    EXPECT_TRUE(RowsInStep());
    tree_->Reset(0);
    EXPECT_EQ(tree_->GetLevels(), 1);
    EXPECT_EQ(tree_->GetItemCount(), 0);
}

// --- Scale and leaks -----------------------------------------------------------------------------

// Builds `tops` top-level nodes with `children` each, names "T<i>" and "T<i>.<j>", then
// collapses, expands, deletes and sorts; returns the rows of the first two top-level nodes.
std::string Exercise(CZoTreeListCtrl& tree, int tops, int children)
{
    tree.SetRedraw(FALSE);
    std::vector<DWORD_PTR> top;
    CString text;
    for (int i = 0; i < tops; ++i)
    {
        text.Format(L"T%05d", i);
        top.push_back(tree.InsertNode(0, text));
        for (int j = 0; j < children; ++j)
        {
            text.Format(L"T%05d.%05d", i, j);
            int row = -1;
            tree.InsertNode(top.back(), text, &row);
            tree.SetItemBold(row, j == children - 1);
        }
    }
    tree.Collapse(tree.LookforItemNumber(top[1], 0));
    tree.Expand(tree.LookforItemNumber(top[1], 0));
    tree.DeleteNode(tree.LookforItemNumber(top[0], 0) + 2, false);
    tree.SortOnColumn(0, false);
    tree.SetRedraw(TRUE);
    std::string rows;
    for (int row = 0; row < tree.GetItemCount(); ++row)
    {
        const CString name = tree.GetItemText(row, 0);
        if (name.Left(6) == L"T00000" || name.Left(6) == L"T00001")
            rows += Narrow(name.Mid(0, 6) + name.Right(name.GetLength() > 6 ? 2 : 0)) + " ";
    }
    return rows;
}

// A parent that adds a row each time one goes would keep a collapse or a delete deleting for as
// long as it likes: both stop after the rows they started with.
TEST_F(TreeTest, AParentAddingRowsWhileRowsGoCannotKeepACollapseOrDeleteGoing)
{
    for (const bool collapse : {true, false}) {
        CZoTreeListCtrl& tree = MakeTree();
        const DWORD_PTR top = Add(0, L"top");
        Add(top, L"a");
        Add(top, L"b");
        int added = 0;
        parent_.onListNotify = [&](const NMHDR& header) {
            if (header.code == LVN_DELETEITEM && added < 50) {
                ++added;
                tree.InsertNode(top, L"more");
            }
        };
        if (collapse)
            tree.Collapse(0);
        else
            tree.DeleteNode(0, false);
        parent_.onListNotify = nullptr;
        EXPECT_LE(added, 3) << (collapse ? "collapse" : "delete");
    }
}

// A parent that answers a row's deletion by deleting, collapsing or inserting itself, while the
// view deletes or collapses: no node is used after it is freed (run under WINEDEBUG=warn+heap,
// which fills freed blocks), the rows stay in step and the view goes on working.
TEST_F(TreeTest, AParentChangingTheTreeWhileRowsGoLeavesNoRowOnAFreedNode)
{
    using Change = std::function<void(CZoTreeListCtrl&)>;
    const std::pair<const char*, Change> reactions[] = {
        {"LVM_DELETEALLITEMS", [](CZoTreeListCtrl& tree) { tree.SendMessage(LVM_DELETEALLITEMS); }},
        {"DeleteAllNodes", [](CZoTreeListCtrl& tree) { tree.DeleteAllNodes(); }},
        {"DeleteNode", [](CZoTreeListCtrl& tree) { tree.DeleteNode(0, true); }},
        {"Collapse", [](CZoTreeListCtrl& tree) { tree.Collapse(0); }},
        {"Reset", [](CZoTreeListCtrl& tree) { tree.Reset(3); }},
        {"LVM_INSERTITEMW", [](CZoTreeListCtrl& tree) {
             LVITEMW item = {};
             item.iItem = 1;
             tree.SendMessage(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
         }},
    };
    const std::pair<const char*, Change> operations[] = {
        {"DeleteAllNodes", [](CZoTreeListCtrl& tree) { tree.DeleteAllNodes(); }},
        {"DeleteNode", [](CZoTreeListCtrl& tree) { tree.DeleteNode(0, false); }},
        {"Collapse", [](CZoTreeListCtrl& tree) { tree.Collapse(0); }},
    };
    for (const auto& operation : operations)
        for (const auto& reaction : reactions) {
            SCOPED_TRACE(std::string(operation.first) + " meets " + reaction.first);
            CZoTreeListCtrl& tree = MakeTree();
            BuildSample();
            int reactions = 0;
            parent_.onListNotify = [&](const NMHDR& header) {
                if (header.code == LVN_DELETEITEM && reactions++ < 2)
                    reaction.second(tree);
            };
            operation.second(tree);
            parent_.onListNotify = nullptr;
            tree.RedrawWindow(NULL, NULL, RDW_INVALIDATE | RDW_UPDATENOW);
            EXPECT_TRUE(RowsInStep());
            const int rows = tree.GetItemCount();
            Add(0, L"after");
            EXPECT_EQ(tree.GetItemCount(), rows + 1);
            for (int row = 0; row < tree.GetItemCount(); ++row)
                tree.Expand(row);
        }
}

// Rows a parent deletes from its handler of a row's deletion go from under the platform's
// deletion loop (Wine's own list then loses rows or faults), and rows it inserts while the view
// goes would never be freed: both are refused, and nothing is left behind.
TEST_F(TreeTest, RowsAParentDeletesWhileRowsGoOrInsertsWhileTheViewGoesAreRefused)
{
    for (const bool going : {false, true}) {
        std::vector<LRESULT> answers;
        const auto cycle = [&]() {
            MakeTree(3, 0);
            BuildSample();
            parent_.onListNotify = [&](const NMHDR& header) {
                if (header.code != LVN_DELETEITEM)
                    return;
                LVITEMW item = {};
                item.iItem = 1000;
                if (going)
                    answers.push_back(::SendMessageW(header.hwndFrom, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item)) + 1);
                answers.push_back(::SendMessageW(header.hwndFrom, LVM_DELETEITEM, 0, 0));
                answers.push_back(::SendMessageW(header.hwndFrom, LVM_DELETEALLITEMS, 0, 0));
            };
            if (going)
                tree_->DestroyWindow();
            else
                tree_->SendMessage(LVM_DELETEALLITEMS);
            parent_.onListNotify = nullptr;
            tree_.reset();
        };
        cycle();
        ASSERT_FALSE(answers.empty());
        EXPECT_EQ(std::count(answers.begin(), answers.end(), 0), (long)answers.size()) << going;
        ZOTEST_EXPECT_NO_LEAKS(5, cycle, zotest::count_heap);
    }
}

// Wine's list (8.0) checks an insertion's index only after allocating the item, its sub-item
// array and its id, and keeps those four blocks when it then refuses a negative index. A host
// sending such an insertion, directly or from its handler of the view's notice of a collapse,
// costs the view what it costs the platform's own list, and the view tracks no row for it.
TEST_F(TreeTest, AnInsertionRefusedForANegativeIndexCostsWhatItCostsThePlatformsList)
{
    const int kTimes = 3;
    LVITEMW refused = {};
    refused.mask = LVIF_TEXT;
    refused.iItem = INT_MIN + 1;
    refused.pszText = const_cast<wchar_t*>(L"refused");
    // The heap blocks kTimes insertions leave, after one to warm up; each is refused.
    const auto lost = [](const std::function<LRESULT()>& insert) {
        EXPECT_EQ(insert(), -1);
        const long before = zotest::CountHeapBlocks();
        for (int i = 0; i < kTimes; ++i)
            EXPECT_EQ(insert(), -1);
        return zotest::CountHeapBlocks() - before;
    };
    const auto send = [&refused](HWND list) { return ::SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&refused)); };

    CListCtrl plain;
    ASSERT_TRUE(plain.Create(WS_CHILD | LVS_REPORT, listtest::kListRect, parentWnd(), listtest::kListId + 1));
    plain.InsertColumn(0, L"Name", LVCFMT_LEFT, 100);
    const long platform = lost([&] { return send(plain.GetSafeHwnd()); });
    plain.DestroyWindow();

    CZoTreeListCtrl& tree = MakeTree(3, 0);
    tree.SetKeepChildData(true);
    BuildSample();
    const std::string rows = Rows();
    EXPECT_EQ(lost([&] { return send(tree.GetSafeHwnd()); }), platform) << "sent directly";
    bool armed = false;
    LRESULT answer = 0;
    parent_.onNotify = [&](WPARAM code, LPARAM) {
        if (armed && code == CZoTreeListCtrl::TLN_Expanded) {
            armed = false;
            answer = send(tree.GetSafeHwnd());
        }
    };
    EXPECT_EQ(lost([&] {
                  armed = true;
                  tree.Collapse(0);
                  tree.Expand(0);
                  return answer;
              }),
              platform)
        << "sent from the parent's handler";
    EXPECT_EQ(Rows(), rows);
    EXPECT_TRUE(RowsInStep());
}

TEST_F(TreeTest, LargeTreesGiveTheSameRowsAsSmallOnes)
{
    tree_ = std::make_unique<CZoTreeListCtrl>();
    ASSERT_TRUE(tree_->Create(WS_CHILD | LVS_REPORT, listtest::kListRect, parentWnd(), listtest::kListId));
    tree_->SetKeepChildData(true);
    const std::string small = Exercise(*tree_, 3, 4);
    tree_->DestroyWindow();
    tree_ = std::make_unique<CZoTreeListCtrl>();
    ASSERT_TRUE(tree_->Create(WS_CHILD | LVS_REPORT, listtest::kListRect, parentWnd(), listtest::kListId));
    tree_->SetKeepChildData(true);
    // Past the size of one row block many times over, with four children at the front as in
    // the small tree.
    const std::string large = Exercise(*tree_, 2000, 4);
    EXPECT_EQ(large, small);
    EXPECT_EQ(small, "T00001 T0000103 T0000102 T0000101 T0000100 T00000 T0000003 T0000002 T0000000 ");
    EXPECT_EQ(tree_->GetItemCount(), 2000 * 5 - 1);
    EXPECT_TRUE(RowsInStep());
}

TEST_F(TreeTest, ImageListsOtherThanTheExpandersGoWithTheViewUnlessTheHostSharesThem)
{
    // Check boxes make the native list build state images of its own; a host hands it a list.
    ZOTEST_EXPECT_NO_LEAKS(10, [this]() {
        CZoTreeListCtrl& tree = MakeTree(3, 0);
        tree.SetExtendedStyle(LVS_EX_CHECKBOXES);
        ListView_SetImageList(tree.GetSafeHwnd(), ImageList_Create(16, 16, ILC_COLOR24, 1, 0), LVSIL_NORMAL);
        tree.DestroyWindow();
        tree_.reset();
    });
    // A host that asked for shared lists keeps its own.
    tree_ = std::make_unique<CZoTreeListCtrl>();
    ASSERT_TRUE(tree_->Create(WS_CHILD | LVS_REPORT | LVS_SHAREIMAGELISTS, listtest::kListRect, parentWnd(),
                              listtest::kListId));
    const HIMAGELIST own = ImageList_Create(16, 16, ILC_COLOR24, 1, 0);
    const HBITMAP image = ::CreateBitmap(16, 16, 1, 32, NULL);
    ASSERT_EQ(ImageList_Add(own, image, NULL), 0);
    ::DeleteObject(image);
    ListView_SetImageList(tree_->GetSafeHwnd(), own, LVSIL_NORMAL);
    tree_->DestroyWindow();
    EXPECT_EQ(ImageList_GetImageCount(own), 1);
    EXPECT_TRUE(ImageList_Destroy(own));
}

TEST_F(TreeTest, NoGrowthOverCreateFillDestroyCycles)
{
    zotest::Dib canvas(330, 250);
    ZOTEST_EXPECT_NO_LEAKS(1000, [this, &canvas]() {
        CZoTreeListCtrl& tree = MakeTree(3, 0); // hidden: no screen painting per cycle
        BuildSample();
        tree.SetItemBold(0, TRUE);
        tree.SetItemFocus(1);
        tree.SortOnColumn(0, true);
        tree.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.dc()), PRF_CLIENT);
        tree.DestroyWindow();
        tree_.reset();
    });
    // The cycles did paint the rows.
    EXPECT_GT(controltest::CountPixels(canvas, Slot(43)), 0);
}

} // namespace
