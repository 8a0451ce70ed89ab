// The skinned scroll bars: siblings of the list, placed and shown by its scroll style bits, in
// step with the list after every change that moves its scroll state, driving it as buddies (a
// long list's thumb drag too), and the list's own answer to LVM_ENSUREVISIBLE.
#include "list_test_support.h"

#include <zotest/zotest.h>

#include <functional>

using namespace ZoControls;
using controltest::Slot;
using listtest::BarMirrorsList;
using listtest::ListTest;

namespace {

using ListScrollTest = ListTest;

CRect InParent(CWnd& wnd)
{
    CRect rect;
    wnd.GetWindowRect(&rect);
    wnd.GetParent()->ScreenToClient(&rect);
    return rect;
}

TEST_F(ListScrollTest, BarsAreSiblingsShownByTheStyleBitsAlongTheEdges)
{
    CZoListCtrl& list = MakeList();
    CZoScrollBar* vert = list.GetVertScrollBar();
    CZoScrollBar* horz = list.GetHorzScrollBar();
    ASSERT_TRUE(::IsWindow(vert->GetSafeHwnd()));
    EXPECT_EQ(::GetParent(vert->GetSafeHwnd()), parent());
    EXPECT_FALSE(vert->IsWindowVisible());
    EXPECT_FALSE(horz->IsWindowVisible());

    Fill(100);
    ASSERT_TRUE(list.GetStyle() & WS_VSCROLL);
    EXPECT_TRUE(vert->IsWindowVisible());
    EXPECT_FALSE(horz->IsWindowVisible());
    const CRect listRect = InParent(list);
    EXPECT_EQ(InParent(*vert).BottomRight(), listRect.BottomRight());

    list.SetColumnWidth(2, 400);
    ASSERT_TRUE(list.GetStyle() & WS_HSCROLL);
    EXPECT_TRUE(horz->IsWindowVisible());
    const CRect horzRect = InParent(*horz), shortVert = InParent(*vert);
    EXPECT_EQ(horzRect.left, listRect.left);
    EXPECT_EQ(shortVert.bottom, horzRect.top);

    // The corner square between the two bars takes the list's background.
    const zotest::Dib screen = zotest::RenderClient(parent(), zotest::RenderPath::Screen);
    ZOTEST_EXPECT_PIXEL(screen, listRect.right - 2, listRect.bottom - 2, Slot(38));

    list.DeleteAllItems();
    list.SetColumnWidth(2, 50);
    EXPECT_FALSE(vert->IsWindowVisible());
    EXPECT_FALSE(horz->IsWindowVisible());
}

TEST_F(ListScrollTest, BarsFollowEveryChangeOfTheScrollState)
{
    CZoListCtrl& list = MakeList();
    const struct
    {
        const char* name;
        std::function<void()> change;
    } changes[] = {
        {"insert rows", [&] {
             for (int i = 0; i < 25; ++i)
                 list.InsertItem(i, L"row");
         }},
        {"key End", [&] { zotest::SendKey(list.GetSafeHwnd(), VK_END); }},
        {"key Home", [&] { zotest::SendKey(list.GetSafeHwnd(), VK_HOME); }},
        {"key Page Down", [&] { zotest::SendKey(list.GetSafeHwnd(), VK_NEXT); }},
        {"delete row", [&] { list.DeleteItem(0); }},
        {"wider column", [&] { list.SetColumnWidth(1, 300); }},
        {"insert column", [&] { list.InsertColumn(3, L"More", LVCFMT_LEFT, 150); }},
        {"scroll right", [&] { list.SendMessage(WM_HSCROLL, SB_PAGERIGHT, 0); }},
        {"delete column", [&] { list.DeleteColumn(3); }},
        {"wheel", [&] { list.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), MAKELPARAM(100, 100)); }},
        {"header resize", [&] { ::SendMessageW(header(), HDM_SETITEMW, 0, [] {
                                    static HDITEMW item;
                                    item.mask = HDI_WIDTH;
                                    item.cxy = 250;
                                    return reinterpret_cast<LPARAM>(&item);
                                }()); }},
        {"delete all", [&] { list.DeleteAllItems(); }},
    };
    for (const auto& c : changes)
    {
        c.change();
        if (list.GetStyle() & WS_VSCROLL)
        {
            EXPECT_TRUE(BarMirrorsList(list, true)) << c.name;
        }
        if (list.GetStyle() & WS_HSCROLL)
        {
            EXPECT_TRUE(BarMirrorsList(list, false)) << c.name;
        }
    }
}

TEST_F(ListScrollTest, BarArrowsPagesAndEnsureVisibleScrollTheList)
{
    CZoListCtrl& list = MakeList();
    Fill(100);
    CZoScrollBar* vert = list.GetVertScrollBar();
    zotest::SendClick(vert->GetSafeHwnd(), vert->GetPartRect(CZoScrollBar::SBHit_NextButton).CenterPoint());
    EXPECT_EQ(list.GetTopIndex(), 1);
    EXPECT_TRUE(BarMirrorsList(list, true));
    zotest::SendClick(vert->GetSafeHwnd(), vert->GetPartRect(CZoScrollBar::SBHit_PageAfter).CenterPoint());
    EXPECT_EQ(list.GetTopIndex(), 1 + list.GetCountPerPage());
    EXPECT_TRUE(BarMirrorsList(list, true));

    // LVM_ENSUREVISIBLE makes even a row already in view the last visible row.
    const int top = list.GetTopIndex();
    EXPECT_TRUE(list.EnsureVisible(top + 1, FALSE));
    EXPECT_EQ(list.GetTopIndex(), top + 1 - list.GetCountPerPage() + 1);
    EXPECT_TRUE(BarMirrorsList(list, true));
    EXPECT_FALSE(list.EnsureVisible(100, FALSE));
    EXPECT_FALSE(list.EnsureVisible(-1, FALSE));
}

// 100,000 rows: a scroll notification's 16-bit position cannot name the rows past 65,535; the
// list follows the skinned bar's own track position. (The rows come from the host, a virtual
// list, only because filling 100,000 rows one by one takes minutes under Wine.)
TEST_F(ListScrollTest, LongListThumbDragReachesRowsPast65535)
{
    CZoListCtrl& list = MakeList(LVS_OWNERDATA);
    list.SetItemCountEx(100000);
    CZoScrollBar* vert = list.GetVertScrollBar();
    ASSERT_TRUE(BarMirrorsList(list, true));
    const HWND bar = vert->GetSafeHwnd();
    const CPoint thumb = vert->GetPartRect(CZoScrollBar::SBHit_Thumb).CenterPoint();
    const int end = vert->GetPartRect(CZoScrollBar::SBHit_NextButton).top;
    ::SendMessageW(bar, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(thumb.x, thumb.y));
    const int y = thumb.y + (end - thumb.y) * 9 / 10;
    ::SendMessageW(bar, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(thumb.x, y));
    const int tracked = vert->GetThumbTrackPosition();
    EXPECT_GT(tracked, 65535);
    EXPECT_EQ(list.GetTopIndex(), tracked);
    ::SendMessageW(bar, WM_LBUTTONUP, 0, MAKELPARAM(thumb.x, y));
    EXPECT_EQ(list.GetTopIndex(), tracked);
    EXPECT_TRUE(BarMirrorsList(list, true));
}

TEST_F(ListScrollTest, VirtualListOfAMillionRowsScrollsAndPaints)
{
    CZoListCtrl& list = MakeList(LVS_OWNERDATA);
    list.SetItemCountEx(1000000);
    EXPECT_TRUE(list.GetVertScrollBar()->IsWindowVisible());
    EXPECT_TRUE(BarMirrorsList(list, true));
    EXPECT_TRUE(list.EnsureVisible(999999, FALSE));
    EXPECT_EQ(list.GetTopIndex(), 1000000 - list.GetCountPerPage());
    EXPECT_TRUE(BarMirrorsList(list, true));
    list.SetItemState(999999, LVIS_SELECTED, LVIS_SELECTED);
    const zotest::Dib dib = zotest::RenderClient(list.GetSafeHwnd());
    CRect last;
    list.GetSubItemRect(999999, 1, LVIR_LABEL, last);
    ZOTEST_EXPECT_PIXEL(dib, last.CenterPoint().x, last.CenterPoint().y, Slot(40));
}

} // namespace
