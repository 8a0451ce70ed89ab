#include "list_test_support.h"

#include <zotest/zotest.h>

using ZoControls::CZoListCtrl;

namespace listtest {

size_t ParentSpy::Count(UINT code) const
{
    size_t count = 0;
    for (UINT seen : codes)
        count += seen == code;
    return count;
}

BOOL ParentSpy::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (onNotify && lParam)
        onNotify(*reinterpret_cast<const NMHDR*>(lParam));
    const BOOL handled = CWnd::OnNotify(wParam, lParam, pResult);
    if (!handled && lParam)
        codes.push_back(reinterpret_cast<const NMHDR*>(lParam)->code);
    return handled;
}

void ListTest::SetUp()
{
    controltest::ControlTest::SetUp();
    ASSERT_TRUE(spy_.SubclassWindow(parent()));
}

void ListTest::TearDown()
{
    spy_.onNotify = nullptr;
    if (list_ && list_->GetSafeHwnd())
        list_->DestroyWindow();
    list_.reset();
    if (spy_.GetSafeHwnd())
        spy_.UnsubclassWindow();
    controltest::ControlTest::TearDown();
}

CZoListCtrl& ListTest::MakeList(DWORD extraStyle, const std::vector<Row>& rows, const RECT& rect)
{
    list_ = std::make_unique<CZoListCtrl>();
    const BOOL created =
        list_->Create(WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SHOWSELALWAYS | extraStyle, rect, parentWnd(), kListId);
    EXPECT_TRUE(created);
    if (!created)
        return *list_;
    if ((extraStyle & LVS_TYPEMASK) == 0 || (extraStyle & LVS_TYPEMASK) == LVS_REPORT)
    {
        const wchar_t* names[] = {L"Name", L"Size", L"Date"};
        for (int c = 0; c < 3; ++c)
            list_->InsertColumn(c, names[c], LVCFMT_LEFT, 100);
    }
    for (size_t r = 0; r < rows.size(); ++r)
    {
        const int item = list_->InsertItem(static_cast<int>(r), rows[r].cells[0]);
        for (int c = 1; c < 3; ++c)
            list_->SetItemText(item, c, rows[r].cells[c]);
    }
    return *list_;
}

void ListTest::Fill(int count)
{
    // Row by row with redrawing on costs tens of milliseconds a row under Wine.
    list_->SetRedraw(FALSE);
    CString text;
    for (int i = 0; i < count; ++i)
    {
        text.Format(L"Row %d", i);
        list_->InsertItem(i, text);
    }
    list_->SetRedraw(TRUE);
}

std::vector<CString> ListTest::Column(int column) const
{
    std::vector<CString> texts;
    for (int i = 0; i < list_->GetItemCount(); ++i)
        texts.push_back(list_->GetItemText(i, column));
    return texts;
}

HWND ListTest::header() const { return list_->GetZoHeaderCtrl().GetSafeHwnd(); }

void ListTest::ClickHeader(int column)
{
    RECT item = {};
    ::SendMessageW(header(), HDM_GETITEMRECT, column, reinterpret_cast<LPARAM>(&item));
    zotest::SendClick(header(), POINT{(item.left + item.right) / 2, (item.top + item.bottom) / 2});
}

SCROLLINFO ScrollInfoOf(HWND window, int bar)
{
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    ::GetScrollInfo(window, bar, &info);
    return info;
}

testing::AssertionResult BarMirrorsList(CZoListCtrl& list, bool vertical)
{
    ZoControls::CZoScrollBar* bar = vertical ? list.GetVertScrollBar() : list.GetHorzScrollBar();
    const SCROLLINFO own = ScrollInfoOf(list.GetSafeHwnd(), vertical ? SB_VERT : SB_HORZ);
    const SCROLLINFO skinned = ScrollInfoOf(bar->GetSafeHwnd(), SB_CTL);
    if (own.nMin == skinned.nMin && own.nMax == skinned.nMax && own.nPage == skinned.nPage &&
        own.nPos == skinned.nPos)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "list " << own.nMin << ".." << own.nMax << " page " << own.nPage
                                       << " pos " << own.nPos << ", bar " << skinned.nMin << ".." << skinned.nMax
                                       << " page " << skinned.nPage << " pos " << skinned.nPos;
}

} // namespace listtest
