#include <afxwin.h>

#include "GalleryCapture.h"
#include "GalleryMainWnd.h"

namespace {
const int kListWidth = 160;
const UINT kPageListId = 100;
const UINT kFirstPageId = 200;
} // namespace

BEGIN_MESSAGE_MAP(CGalleryMainWnd, ZoControls::CZoFrameWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_WM_PAINT()
    ON_MESSAGE(WM_PRINTCLIENT, &CGalleryMainWnd::OnPrintClient)
    ON_LBN_SELCHANGE(kPageListId, &CGalleryMainWnd::OnPageListSelChange)
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
    // The border's thickness depends on the size class the frame found: add it now.
    CRect client;
    GetClientRect(&client);
    SetWindowPos(NULL, 0, 0, 2 * clientWidth - client.Width(), 2 * clientHeight - client.Height(),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    return TRUE;
}

int CGalleryMainWnd::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (ZoControls::CZoFrameWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    CRect client;
    GetClientRect(&client);
    if (!m_pageList.Create(L"LISTBOX", NULL,
                           WS_CHILD | WS_VISIBLE | WS_BORDER | LBS_NOTIFY | WS_VSCROLL | LBS_NOINTEGRALHEIGHT,
                           CRect(0, 0, kListWidth, client.Height()), this, kPageListId))
        return -1;
    int count = 0;
    const GalleryPageEntry* entries = GetGalleryPages(count);
    for (int i = 0; i < count; ++i) {
        CGalleryPage* pPage = entries[i].create();
        if (!pPage->CreatePage(this, _pageRect(), kFirstPageId + i)) {
            delete pPage;
            continue;
        }
        m_pages.push_back(pPage);
        m_titles.push_back(entries[i].title);
        m_pageList.SendMessage(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entries[i].title));
    }
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
    ZoControls::CZoFrameWnd::OnDestroy();
    AfxPostQuitMessage(0);
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
    if (m_pageList.SendMessage(LB_GETCURSEL) != index)
        m_pageList.SendMessage(LB_SETCURSEL, index);
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

CRect CGalleryMainWnd::_pageRect() const
{
    CRect client;
    GetClientRect(&client);
    client.left += kListWidth;
    return client;
}

void CGalleryMainWnd::OnSize(UINT nType, int cx, int cy)
{
    ZoControls::CZoFrameWnd::OnSize(nType, cx, cy);
    if (cx <= 0 || cy <= 0 || !::IsWindow(m_pageList.GetSafeHwnd()))
        return;
    m_pageList.MoveWindow(0, 0, kListWidth, cy);
    const CRect page = _pageRect();
    for (size_t i = 0; i < m_pages.size(); ++i)
        m_pages[i]->MoveWindow(&page);
}

void CGalleryMainWnd::OnPageListSelChange()
{
    ShowPage(static_cast<int>(m_pageList.SendMessage(LB_GETCURSEL)));
}

void CGalleryMainWnd::_fillBackground(CDC& dc)
{
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, ::GetSysColor(COLOR_3DFACE));
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
