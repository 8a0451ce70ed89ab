// CListCtrl, CHeaderCtrl and CTreeCtrl against the real list view, header and tree view.
#include <afxcmn.h>
#include <gtest/gtest.h>
#include <zotest/test_window.h>

#include "control_host.h"

namespace {

class ListTreeTest : public ControlHostTest
{
protected:
    // A report list with columns "Name" (100 px) and "Size" (60 px) and three rows.
    void FillReport(CListCtrl& list)
    {
        ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SHOWSELALWAYS, CRect(0, 0, 300, 200),
                                parent, 7));
        ASSERT_EQ(0, list.InsertColumn(0, L"Name", LVCFMT_LEFT, 100));
        ASSERT_EQ(1, list.InsertColumn(1, L"Size", LVCFMT_RIGHT, 60, 1));
        const wchar_t* names[] = { L"gamma", L"alpha", L"beta" };
        const wchar_t* sizes[] = { L"3", L"1", L"2" };
        for (int row = 0; row < 3; row++) {
            ASSERT_EQ(row, list.InsertItem(row, names[row]));
            ASSERT_TRUE(list.SetItemText(row, 1, sizes[row]));
            ASSERT_TRUE(list.SetItemData(row, 100 + row));
        }
    }
};

int CALLBACK CompareByData(LPARAM first, LPARAM second, LPARAM direction)
{
    return (int)(first - second) * (int)direction;
}

} // namespace

TEST_F(ListTreeTest, ListColumnsReadBack)
{
    CListCtrl list;
    FillReport(list);
    EXPECT_EQ(100, list.GetColumnWidth(0));
    EXPECT_TRUE(list.SetColumnWidth(0, 120));
    EXPECT_EQ(120, list.GetColumnWidth(0));
    wchar_t heading[16] = L"";
    LVCOLUMN column = {};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.pszText = heading;
    column.cchTextMax = 16;
    ASSERT_TRUE(list.GetColumn(1, &column));
    EXPECT_STREQ(L"Size", heading);
    EXPECT_EQ(LVCFMT_RIGHT, column.fmt & LVCFMT_JUSTIFYMASK);
    CHeaderCtrl* header = list.GetHeaderCtrl();
    ASSERT_NE(nullptr, header);
    EXPECT_EQ(2, header->GetItemCount());
    EXPECT_EQ(1, header->OrderToIndex(1));
    int order[2] = { -1, -1 };
    EXPECT_TRUE(list.GetColumnOrderArray(order));
    EXPECT_EQ(0, order[0]);
    EXPECT_EQ(1, order[1]);
    EXPECT_EQ(2, list.InsertColumn(2, L"Extra"));
    EXPECT_TRUE(list.DeleteColumn(2));
    EXPECT_EQ(2, header->GetItemCount());
}

TEST_F(ListTreeTest, ListItemsTextsDataAndStates)
{
    CListCtrl list;
    FillReport(list);
    EXPECT_EQ(3, list.GetItemCount());
    EXPECT_EQ(CString(L"alpha"), list.GetItemText(1, 0));
    EXPECT_EQ(CString(L"2"), list.GetItemText(2, 1));
    EXPECT_EQ(CString(L""), list.GetItemText(9, 0));
    wchar_t buffer[4];
    EXPECT_EQ(3, list.GetItemText(0, 0, buffer, 4));
    EXPECT_STREQ(L"gam", buffer);
    EXPECT_EQ((DWORD_PTR)101, list.GetItemData(1));
    EXPECT_EQ((DWORD_PTR)0, list.GetItemData(42));

    CString longText(L'x', 1000);
    ASSERT_TRUE(list.SetItemText(0, 1, longText));
    EXPECT_EQ(longText, list.GetItemText(0, 1));

    EXPECT_TRUE(list.SetItemState(2, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED));
    EXPECT_TRUE(list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED));
    EXPECT_EQ((UINT)(LVIS_SELECTED | LVIS_FOCUSED), list.GetItemState(2, LVIS_SELECTED | LVIS_FOCUSED));
    EXPECT_EQ(2u, list.GetSelectedCount());
    EXPECT_EQ(2, list.GetNextItem(-1, LVNI_FOCUSED));
    POSITION pos = list.GetFirstSelectedItemPosition();
    ASSERT_NE(nullptr, pos);
    EXPECT_EQ(0, list.GetNextSelectedItem(pos));
    ASSERT_NE(nullptr, pos);
    EXPECT_EQ(2, list.GetNextSelectedItem(pos));
    EXPECT_EQ(nullptr, pos);

    LVITEM item = {};
    item.mask = LVIF_PARAM | LVIF_STATE;
    item.iItem = 2;
    item.stateMask = LVIS_SELECTED;
    ASSERT_TRUE(list.GetItem(&item));
    EXPECT_EQ(102, item.lParam);
    EXPECT_EQ((UINT)LVIS_SELECTED, item.state);
    EXPECT_TRUE(list.DeleteItem(0));
    EXPECT_EQ(2, list.GetItemCount());
    EXPECT_TRUE(list.DeleteAllItems());
    EXPECT_EQ(0, list.GetItemCount());
    EXPECT_EQ(nullptr, list.GetFirstSelectedItemPosition());
}

TEST_F(ListTreeTest, ListRectanglesAndHitTesting)
{
    CListCtrl list;
    FillReport(list);
    CRect row0, row1, cell;
    ASSERT_TRUE(list.GetItemRect(0, &row0, LVIR_BOUNDS));
    ASSERT_TRUE(list.GetItemRect(1, &row1, LVIR_BOUNDS));
    EXPECT_EQ(row0.bottom, row1.top);
    ASSERT_TRUE(list.GetSubItemRect(1, 1, LVIR_BOUNDS, cell));
    EXPECT_EQ(100, cell.left);
    EXPECT_EQ(160, cell.right);
    EXPECT_EQ(row1.top, cell.top);
    EXPECT_FALSE(list.GetItemRect(0, NULL, LVIR_BOUNDS));

    UINT flags = 0;
    EXPECT_EQ(1, list.HitTest(CPoint(20, row1.CenterPoint().y), &flags));
    EXPECT_TRUE(flags & LVHT_ONITEM);
    EXPECT_EQ(-1, list.HitTest(CPoint(20, 190)));
    LVHITTESTINFO hit = {};
    hit.pt = cell.CenterPoint();
    EXPECT_EQ(1, list.SubItemHitTest(&hit));
    EXPECT_EQ(1, hit.iSubItem);
    EXPECT_EQ(0, list.GetTopIndex());
    EXPECT_GT(list.GetCountPerPage(), 3);
    EXPECT_TRUE(list.EnsureVisible(2, FALSE));
}

TEST_F(ListTreeTest, ListSortingFindingAndStyles)
{
    CListCtrl list;
    FillReport(list);
    ASSERT_TRUE(list.SortItems(&CompareByData, (DWORD_PTR)-1));
    EXPECT_EQ(CString(L"beta"), list.GetItemText(0, 0));
    EXPECT_EQ(CString(L"gamma"), list.GetItemText(2, 0));
    LVFINDINFO find = {};
    find.flags = LVFI_STRING;
    find.psz = L"alpha";
    EXPECT_EQ(1, list.FindItem(&find));
    find.psz = L"delta";
    EXPECT_EQ(-1, list.FindItem(&find));

    list.SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_CHECKBOXES);
    EXPECT_EQ((DWORD)(LVS_EX_FULLROWSELECT | LVS_EX_CHECKBOXES),
              list.GetExtendedStyle() & (LVS_EX_FULLROWSELECT | LVS_EX_CHECKBOXES));
    EXPECT_FALSE(list.GetCheck(0));
    EXPECT_TRUE(list.SetCheck(0));
    EXPECT_TRUE(list.GetCheck(0));
    EXPECT_TRUE(list.SetBkColor(RGB(1, 2, 3)));
    EXPECT_EQ(RGB(1, 2, 3), list.GetBkColor());
    EXPECT_TRUE(list.SetTextColor(RGB(4, 5, 6)));
    EXPECT_EQ(RGB(4, 5, 6), list.GetTextColor());
    EXPECT_TRUE(list.SetTextBkColor(RGB(7, 8, 9)));
    EXPECT_EQ(RGB(7, 8, 9), list.GetTextBkColor());
    EXPECT_TRUE(list.Update(0));
    EXPECT_TRUE(list.RedrawItems(0, 2));
}

TEST_F(ListTreeTest, ListImageLists)
{
    CListCtrl list;
    FillReport(list);
    EXPECT_EQ(nullptr, list.GetImageList(LVSIL_SMALL));
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR24 | ILC_MASK, 2, 0));
    EXPECT_EQ(nullptr, list.SetImageList(&images, LVSIL_SMALL));
    CImageList* back = list.GetImageList(LVSIL_SMALL);
    ASSERT_NE(nullptr, back);
    EXPECT_EQ(images.GetSafeHandle(), back->GetSafeHandle());
    list.SetImageList(NULL, LVSIL_SMALL);
}

TEST_F(ListTreeTest, HeaderItemsRectsAndOrder)
{
    CHeaderCtrl header;
    ASSERT_TRUE(header.Create(WS_CHILD | WS_VISIBLE | HDS_BUTTONS, CRect(0, 0, 300, 24), parent, 20));
    HDITEM item = {};
    item.mask = HDI_TEXT | HDI_WIDTH | HDI_FORMAT;
    item.pszText = (LPWSTR)L"One";
    item.cxy = 80;
    item.fmt = HDF_LEFT | HDF_STRING;
    EXPECT_EQ(0, header.InsertItem(0, &item));
    item.pszText = (LPWSTR)L"Two";
    EXPECT_EQ(1, header.InsertItem(1, &item));
    EXPECT_EQ(2, header.GetItemCount());
    CRect second;
    ASSERT_TRUE(header.GetItemRect(1, &second));
    EXPECT_EQ(80, second.left);
    EXPECT_EQ(160, second.right);
    HDITEM format = {};
    format.mask = HDI_FORMAT;
    ASSERT_TRUE(header.GetItem(1, &format));
    format.fmt |= HDF_SORTUP;
    ASSERT_TRUE(header.SetItem(1, &format));
    HDITEM back = {};
    back.mask = HDI_FORMAT;
    ASSERT_TRUE(header.GetItem(1, &back));
    EXPECT_TRUE(back.fmt & HDF_SORTUP);
    HDHITTESTINFO hit = {};
    hit.pt = second.CenterPoint();
    EXPECT_EQ(1, header.HitTest(&hit));
    EXPECT_TRUE(hit.flags & HHT_ONHEADER);
    int order[2] = { 1, 0 };
    EXPECT_TRUE(header.SetOrderArray(2, order));
    EXPECT_EQ(1, header.OrderToIndex(0));
    int read[2] = {};
    EXPECT_TRUE(header.GetOrderArray(read, 2));
    EXPECT_EQ(1, read[0]);
    EXPECT_TRUE(header.DeleteItem(0));
    EXPECT_EQ(1, header.GetItemCount());
}

TEST_F(ListTreeTest, TreeItemsNavigationAndData)
{
    CTreeCtrl tree;
    ASSERT_TRUE(tree.Create(WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES, CRect(0, 0, 200, 200), parent, 8));
    HTREEITEM root = tree.InsertItem(L"root");
    ASSERT_NE(nullptr, root);
    HTREEITEM first = tree.InsertItem(L"first", root);
    HTREEITEM second = tree.InsertItem(L"second", 1, 2, root);
    EXPECT_EQ(3u, tree.GetCount());
    EXPECT_EQ(root, tree.GetRootItem());
    EXPECT_EQ(first, tree.GetChildItem(root));
    EXPECT_EQ(second, tree.GetNextSiblingItem(first));
    EXPECT_EQ(root, tree.GetParentItem(second));
    EXPECT_TRUE(tree.ItemHasChildren(root));
    EXPECT_FALSE(tree.ItemHasChildren(first));
    EXPECT_EQ(CString(L"second"), tree.GetItemText(second));
    EXPECT_TRUE(tree.SetItemText(second, L"renamed"));
    EXPECT_EQ(CString(L"renamed"), tree.GetItemText(second));
    int image = -1, selected = -1;
    ASSERT_TRUE(tree.GetItemImage(second, image, selected));
    EXPECT_EQ(1, image);
    EXPECT_EQ(2, selected);
    EXPECT_TRUE(tree.SetItemData(first, 0x55));
    EXPECT_EQ((DWORD_PTR)0x55, tree.GetItemData(first));
    EXPECT_TRUE(tree.Expand(root, TVE_EXPAND));
    EXPECT_TRUE(tree.GetItemState(root, TVIS_EXPANDED) & TVIS_EXPANDED);
    EXPECT_TRUE(tree.SelectItem(second));
    EXPECT_EQ(second, tree.GetSelectedItem());
    CRect rect;
    ASSERT_TRUE(tree.GetItemRect(first, &rect, TRUE));
    UINT flags = 0;
    EXPECT_EQ(first, tree.HitTest(rect.CenterPoint(), &flags));
    EXPECT_TRUE(flags & TVHT_ONITEMLABEL);
    EXPECT_TRUE(tree.DeleteItem(first));
    EXPECT_EQ(2u, tree.GetCount());
    EXPECT_TRUE(tree.DeleteAllItems());
    EXPECT_EQ(0u, tree.GetCount());
    EXPECT_EQ(CString(L""), tree.GetItemText(NULL));
}
