#include <afxwin.h>

#include "TabsPage.h"

using namespace ZoControls;

namespace {

const UINT kFirstTabId = 100;
const UINT kFirstPageId = 120;
const CRect kFirstCell(12, 32, 312, 272);
const CSize kCellStep(336, 280);
const int kColumns = 3;
const int kFixedTabWidth = 70;

struct TabSpec
{
    DWORD style;
    const wchar_t* heading;
    const wchar_t* captions[3];
};

const TabSpec kTabs[] = {
    {0, L"Tabs on top, the second hovered", {L"General", L"Details", L"Notes"}},
    {TCS_BOTTOM, L"Tabs at the bottom", {L"General", L"Details", L"Notes"}},
    {WS_DISABLED, L"Disabled: captions only", {L"General", L"Details", L"Notes"}},
    {TCS_VERTICAL | TCS_MULTILINE, L"Left, captions run upward", {L"General", L"A caption far longer than this tab could ever hold", L"Notes"}},
    {TCS_VERTICAL | TCS_RIGHT | TCS_MULTILINE, L"Right, captions run downward",
     {L"General", L"A caption far longer than this tab could ever hold", L"Notes"}},
    {TCS_FIXEDWIDTH, L"Fixed width, long captions shortened",
     {L"Configuration", L"Advanced settings", L"Notes"}},
    {TCS_BUTTONS, L"TCS_BUTTONS: the platform's look", {L"General", L"Details", L"Notes"}},
};

} // namespace

CTabsPage::CTabsPage() {}

CTabsPage::~CTabsPage() {}

BOOL CTabsPage::OnCreatePage()
{
    for (int i = 0; i < TabCount; ++i)
    {
        const CRect cell = GridCell(kFirstCell, kCellStep, i % kColumns, i / kColumns);
        m_labels.AddHeading(cell.left, cell.top - 24, kTabs[i].heading);
        CZoTabCtrl& tabs = m_aTabs[i];
        if (!tabs.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_CLIPCHILDREN | kTabs[i].style, cell, this, kFirstTabId + i))
            return FALSE;
        for (int item = 0; item < 3; ++item)
            tabs.InsertItem(item, kTabs[i].captions[item]);
        if (kTabs[i].style & TCS_FIXEDWIDTH)
            tabs.SetItemSize(CSize(kFixedTabWidth, 25));
        // The page window belongs to the page, not to the tab control's painting.
        CRect page = cell;
        tabs.AdjustRect(FALSE, &page);
        page.DeflateRect(8, 8);
        if (!m_aPages[i].Create(L"Page area: the host's own window", WS_CHILD | WS_VISIBLE | SS_CENTER, page, this,
                                kFirstPageId + i))
            return FALSE;
    }
    // Show a hovered tab without a mouse.
    CRect second;
    m_aTabs[0].GetItemRect(1, &second);
    m_aTabs[0].SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(second.CenterPoint().x, second.CenterPoint().y));
    return TRUE;
}

void CTabsPage::DrawPage(CDC& dc, const CRect& client)
{
    CGalleryPage::DrawPage(dc, client);
    m_labels.Draw(dc);
}
