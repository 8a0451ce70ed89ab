// The gallery's main window: its page list holds the families with their pages, and choosing a
// row, by mouse or keyboard, shows that row's page.
#include <afxwin.h>
#include <commctrl.h>
#include <gdiplus.h>

#include <gtest/gtest.h>
#include <vector>
#include <zotest/zotest.h>

#include "GalleryMainWnd.h"
#include "gallery_test_support.h"
#include "ZoCtrl.h"

namespace {

const int kPageListId = 100;
const int kFirstPageId = 200;

CString RowText(HWND list, int row)
{
    wchar_t text[64] = {};
    ListView_GetItemText(list, row, 0, text, 64);
    return text;
}

// The index of the one shown page (the window itself stays hidden), or -1 when none or several are.
int ShownPage(const CGalleryMainWnd& main)
{
    int shown = -1;
    for (int i = 0; i < main.GetPageCount(); ++i)
        if (::GetWindowLongW(::GetDlgItem(main.m_hWnd, kFirstPageId + i), GWL_STYLE) & WS_VISIBLE) {
            if (shown >= 0)
                return -1;
            shown = i;
        }
    return shown;
}

TEST(GalleryMainWindow, PageListRowsShowTheirPages)
{
    ScopedGalleryLibrary library;
    ASSERT_TRUE(library.Started());
    CGalleryMainWnd* main = new CGalleryMainWnd; // deletes itself when destroyed
    ASSERT_TRUE(main->CreateMain(1200, 860));
    const HWND list = ::GetDlgItem(main->m_hWnd, kPageListId);
    ASSERT_TRUE(list);

    int count = 0;
    const GalleryPageEntry* entries = GetGalleryPages(count);
    // Families in the order of the page table, each followed by its pages.
    std::vector<CString> expected;
    std::vector<int> pageOfRow; // -1 on family rows
    for (int i = 0; i < count; ++i) {
        if (i == 0 || ::lstrcmpW(entries[i].family, entries[i - 1].family) != 0) {
            expected.push_back(entries[i].family);
            pageOfRow.push_back(-1);
        }
        expected.push_back(entries[i].title);
        pageOfRow.push_back(i);
    }
    ASSERT_EQ(ListView_GetItemCount(list), static_cast<int>(expected.size()));
    for (int row = 0; row < static_cast<int>(expected.size()); ++row)
        EXPECT_EQ(RowText(list, row), expected[row]) << row;
    EXPECT_EQ(ShownPage(*main), 0);

    // Row 2 is the first family's second page; the down arrow moves on to its third.
    ListView_SetItemState(list, 2, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    EXPECT_EQ(ShownPage(*main), 1);
    ::SendMessageW(list, WM_KEYDOWN, VK_DOWN, 0);
    ::SendMessageW(list, WM_KEYUP, VK_DOWN, 0);
    EXPECT_EQ(ShownPage(*main), 2);

    // Showing a page from code selects its row; a family row shows the family's first page.
    main->ShowPage(count - 1);
    EXPECT_EQ(RowText(list, ListView_GetNextItem(list, -1, LVNI_SELECTED)), entries[count - 1].title);
    int lastFamilyRow = static_cast<int>(pageOfRow.size()) - 1;
    while (lastFamilyRow > 0 && pageOfRow[lastFamilyRow] >= 0)
        --lastFamilyRow;
    ListView_SetItemState(list, lastFamilyRow, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    EXPECT_EQ(ShownPage(*main), pageOfRow[lastFamilyRow + 1]);

    main->DestroyWindow();
    zotest::PumpUntilIdle();
}

} // namespace
