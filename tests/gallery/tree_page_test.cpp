// The gallery's tree-list page: what it saves to its file comes back with the same rows.
#include <afxwin.h>
#include <gdiplus.h>

#include <gtest/gtest.h>
#include <zotest/zotest.h>

#include "GalleryPage.h"
#include "gallery_test_support.h"
#include "TreeListPage.h"
#include "ZoCtrl.h"

namespace {

CString RowsOf(CListCtrl& list)
{
    CString rows;
    for (int row = 0; row < list.GetItemCount(); ++row)
        rows += list.GetItemText(row, 0) + L"|" + list.GetItemText(row, 2) + L"\n";
    return rows;
}

TEST(TreeListPage, SavedTreeLoadsBackWithTheSameRows)
{
    ScopedGalleryLibrary library;
    ASSERT_TRUE(library.Started());
    {
        zotest::ScopedWindow parent(zotest::CreateSolidWindow(RECT{0, 0, 1040, 860}, RGB(10, 200, 30)));
        CTreeListPage page;
        ASSERT_TRUE(page.CreatePage(CWnd::FromHandle(parent.get()), CRect(0, 0, 1040, 860), 200));
        CListCtrl* tree = static_cast<CListCtrl*>(CWnd::FromHandlePermanent(::GetDlgItem(page.m_hWnd, 1500)));
        ASSERT_NE(tree, nullptr);
        const CString before = RowsOf(*tree);
        EXPECT_GT(tree->GetItemCount(), 10); // the sample opens its first project and folder
        page.SendMessage(WM_COMMAND, MAKEWPARAM(1501, BN_CLICKED), 0);
        tree->DeleteAllItems();
        page.SendMessage(WM_COMMAND, MAKEWPARAM(1502, BN_CLICKED), 0);
        EXPECT_EQ(RowsOf(*tree), before);
        page.DestroyWindow();
    }
}

} // namespace
