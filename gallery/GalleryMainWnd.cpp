#include <afxwin.h>

#include "GalleryCapture.h"
#include "GalleryMainWnd.h"

namespace {
const int kListWidth = 170; // at zoom 1.0
const UINT kPageListId = 100;
const UINT kFirstPageId = 200;
const int kListLevels = 2; // families, their pages
} // namespace

int CGalleryPageList::GetItemImageIndex(const LVITEMW& item) const
{
    if (GetNodeLevel(GetItemNode(item.iItem)) > 0)
        return -1;
    return ZoControls::CZoTreeListCtrl::GetItemImageIndex(item);
}

BEGIN_MESSAGE_MAP(CGalleryMainWnd, ZoControls::CZoFrameWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_WM_PAINT()
    ON_WM_SETFOCUS()
    ON_MESSAGE(WM_PRINTCLIENT, &CGalleryMainWnd::OnPrintClient)
    ON_NOTIFY(LVN_ITEMCHANGED, kPageListId, &CGalleryMainWnd::OnPageListItemChanged)
END_MESSAGE_MAP()

CGalleryMainWnd::CGalleryMainWnd() : ZoControls::CZoFrameWnd(false), m_nCurrentPage(-1)
{
}

CGalleryMainWnd::~CGalleryMainWnd()
{
}

BOOL CGalleryMainWnd::CreateMain(int clientWidth, int clientHeight)
{
    // No caption: the skinned border's top edge is where the window is dragged.
    const DWORD style = WS_POPUP | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN;
    if (!CreateEx(0, NULL, L"ZoCtrl Gallery", style, 40, 40, clientWidth, clientHeight, NULL,
                  NULL))
        return FALSE;
    // The border's thickness and the zoom depend on the size class the frame found: the pages
    // and the list grow by the zoom, the border is added around them.
    CRect client;
    GetClientRect(&client);
    const float zoom = GetZoZoomFactor();
    const int width = static_cast<int>((clientWidth - kListWidth) * zoom + 0.5f) + _listWidth();
    const int height = static_cast<int>(clientHeight * zoom + 0.5f);
    SetWindowPos(NULL, 0, 0, width + clientWidth - client.Width(), height + clientHeight - client.Height(),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    return TRUE;
}

int CGalleryMainWnd::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (ZoControls::CZoFrameWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    CRect client;
    GetClientRect(&client);
    const DWORD listStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS |
                            LVS_NOCOLUMNHEADER | LVS_NOSORTHEADER;
    if (!m_pageList.Create(listStyle, CRect(0, 0, _listWidth(), client.Height()), this, kPageListId))
        return -1;
    m_pageList.InsertColumn(0, L"Pages", LVCFMT_LEFT, _listWidth());
    int count = 0;
    const GalleryPageEntry* entries = GetGalleryPages(count);
    std::vector<int> created; // the entries whose pages exist, in page order
    for (int i = 0; i < count; ++i) {
        CGalleryPage* pPage = entries[i].create();
        if (!pPage->CreatePage(this, _pageRect(), kFirstPageId + i)) {
            delete pPage;
            continue;
        }
        m_pages.push_back(pPage);
        m_titles.push_back(entries[i].title);
        created.push_back(i);
    }
    _fillPageList(entries, created);
    ShowPage(0);
    return 0;
}

void CGalleryMainWnd::OnDestroy()
{
    for (size_t i = 0; i < m_pages.size(); ++i) {
        m_pages[i]->DestroyWindow();
        delete m_pages[i];
    }
    m_pages.clear();
    ZoControls::CZoFrameWnd::OnDestroy(); // as the main window, the framework ends the application
}

// One top-level row per family, its pages below it, all open. A page row's item data is its
// page's index plus one; family rows keep 0.
void CGalleryMainWnd::_fillPageList(const GalleryPageEntry* entries, const std::vector<int>& created)
{
    m_pageList.Reset(kListLevels);
    DWORD_PTR family = 0;
    const wchar_t* familyName = NULL;
    for (size_t page = 0; page < created.size(); ++page) {
        const GalleryPageEntry& entry = entries[created[page]];
        if (!familyName || ::lstrcmpW(familyName, entry.family) != 0) {
            familyName = entry.family;
            int row = -1;
            family = m_pageList.InsertNode(0, familyName, &row);
            m_pageList.SetItemBold(row, TRUE);
        }
        const DWORD_PTR node = m_pageList.InsertNode(family, entry.title);
        m_pageList.SetItemData(node, static_cast<DWORD>(page + 1));
    }
}

int CGalleryMainWnd::GetPageCount() const
{
    return static_cast<int>(m_pages.size());
}

CString CGalleryMainWnd::GetPageTitle(int index) const
{
    if (index < 0 || index >= GetPageCount())
        return CString();
    return m_titles[index];
}

void CGalleryMainWnd::ShowPage(int index)
{
    if (index < 0 || index >= GetPageCount())
        return;
    for (int i = 0; i < GetPageCount(); ++i)
        m_pages[i]->ShowWindow(i == index ? SW_SHOW : SW_HIDE);
    m_nCurrentPage = index;
    int focused = -1;
    m_pageList.GetFocusedItem(&focused);
    if (focused >= 0 && static_cast<int>(m_pageList.GetItemData(focused)) == index + 1)
        return;
    for (int row = 0; row < m_pageList.GetItemCount(); ++row)
        if (static_cast<int>(m_pageList.GetItemData(row)) == index + 1) {
            m_pageList.SetItemFocus(row);
            break;
        }
}

bool CGalleryMainWnd::SaveScreenshots(const CString& folder)
{
    bool ok = GetPageCount() > 0;
    for (int i = 0; i < GetPageCount(); ++i) {
        ShowPage(i);
        CString name = GetPageTitle(i);
        name.MakeLower();
        name.Replace(L' ', L'_');
        ok = SaveWindowBitmap(m_hWnd, folder + L"\\" + name + L".bmp") && ok;
    }
    return ok;
}

int CGalleryMainWnd::_listWidth() const
{
    return static_cast<int>(kListWidth * GetZoZoomFactor() + 0.5f);
}

CRect CGalleryMainWnd::_pageRect() const
{
    CRect client;
    GetClientRect(&client);
    client.left += _listWidth();
    return client;
}

void CGalleryMainWnd::OnSize(UINT nType, int cx, int cy)
{
    ZoControls::CZoFrameWnd::OnSize(nType, cx, cy);
    if (cx <= 0 || cy <= 0 || !::IsWindow(m_pageList.GetSafeHwnd()))
        return;
    m_pageList.MoveWindow(0, 0, _listWidth(), cy);
    const CRect page = _pageRect();
    for (size_t i = 0; i < m_pages.size(); ++i)
        m_pages[i]->MoveWindow(&page);
}

// A page row shows its page; a family row shows the family's first page.
void CGalleryMainWnd::OnPageListItemChanged(NMHDR* pNMHDR, LRESULT* pResult)
{
    *pResult = 0;
    const NMLISTVIEW* pChange = reinterpret_cast<const NMLISTVIEW*>(pNMHDR);
    if (pChange->iItem < 0 || !(pChange->uNewState & LVIS_SELECTED) || (pChange->uOldState & LVIS_SELECTED))
        return;
    int page = static_cast<int>(m_pageList.GetItemData(pChange->iItem));
    if (page == 0 && pChange->iItem + 1 < m_pageList.GetItemCount())
        page = static_cast<int>(m_pageList.GetItemData(pChange->iItem + 1));
    if (page > 0 && page - 1 != m_nCurrentPage)
        ShowPage(page - 1);
}

// The frame itself takes no keys: the focus goes on to the page list.
void CGalleryMainWnd::OnSetFocus(CWnd* /*pOldWnd*/)
{
    if (::IsWindow(m_pageList.GetSafeHwnd()))
        m_pageList.SetFocus();
}

// Dialog-style keyboard: Tab and Shift+Tab walk the list and the shown page's controls (pages are
// control parents).
BOOL CGalleryMainWnd::PreTranslateMessage(MSG* pMsg)
{
    if (ZoControls::CZoFrameWnd::PreTranslateMessage(pMsg))
        return TRUE;
    if (pMsg->hwnd != m_hWnd && !::IsChild(m_hWnd, pMsg->hwnd))
        return FALSE;
    return ::IsDialogMessage(m_hWnd, pMsg);
}

void CGalleryMainWnd::_fillBackground(CDC& dc)
{
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, GalleryBackColor(GetZoTheme()));
}

void CGalleryMainWnd::OnPaint()
{
    CPaintDC dc(this);
    _fillBackground(dc);
}

LRESULT CGalleryMainWnd::OnPrintClient(WPARAM wParam, LPARAM /*lParam*/)
{
    return PaintForPrintClient(wParam, [this](CDC& dc) { _fillBackground(dc); });
}
