// Shared pieces of the list tests: a visible skinned report list in the test parent, filled from
// a table of rows, and the scroll states of the list and its skinned bars.
#pragma once
#include <afxcmn.h>
#include <afxwin.h>

#include <functional>
#include <memory>
#include <vector>

#include "../controls/controls_test_support.h"
#include "controls/ZoScrollBar.h"
#include "lists/ZoListCtrl.h"

namespace listtest {

const UINT kListId = 700;
// Inside the 400 x 300 parent, leaving room around for the sibling bars.
const RECT kListRect = {10, 10, 330, 250};

struct Row
{
    const wchar_t* cells[3];
};

// The test parent as an MFC window, as a list's parent always is: it reflects notifications to
// the list (custom draw, item changes) and notes the codes that reach its own handling.
class ParentSpy : public CWnd
{
public:
    std::vector<UINT> codes;
    std::function<void(const NMHDR&)> onNotify; // reacts to every notification first
    size_t Count(UINT code) const;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

class ListTest : public controltest::ControlTest
{
protected:
    void SetUp() override;
    void TearDown() override;

    // A visible report list with columns "Name", "Size", "Date" (100 px each) and `rows`.
    ZoControls::CZoListCtrl& MakeList(DWORD extraStyle = 0, const std::vector<Row>& rows = {},
                                      const RECT& rect = kListRect);
    // `count` rows named "Row <n>", inserted with redrawing off.
    void Fill(int count);
    // Column `column`'s texts from the top row down.
    std::vector<CString> Column(int column) const;
    HWND header() const;
    // A mouse click on the middle of header item `column`.
    void ClickHeader(int column);

    std::unique_ptr<ZoControls::CZoListCtrl> list_;
    ParentSpy spy_;
};

SCROLLINFO ScrollInfoOf(HWND window, int bar);
// The skinned bar shows what the list's own scroll bar of that direction holds.
testing::AssertionResult BarMirrorsList(ZoControls::CZoListCtrl& list, bool vertical);

} // namespace listtest
