#include <afxwin.h>

#include "GalleryPage.h"
#include "core/ZoMemDC.h"

BEGIN_MESSAGE_MAP(CGalleryPage, ZoControls::CZoWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_MESSAGE(WM_PRINTCLIENT, &CGalleryPage::OnPrintClient)
END_MESSAGE_MAP()

CGalleryPage::CGalleryPage()
{
}

CGalleryPage::~CGalleryPage()
{
}

BOOL CGalleryPage::CreatePage(CWnd* pParent, const CRect& rect, UINT nID)
{
    const LPCTSTR className = AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, ::LoadCursor(NULL, IDC_ARROW));
    if (!CreateEx(0, className, L"", WS_CHILD | WS_CLIPCHILDREN, rect.left, rect.top, rect.Width(),
                  rect.Height(), pParent->GetSafeHwnd(), reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID))))
        return FALSE;
    return OnCreatePage();
}

BOOL CGalleryPage::OnCreatePage()
{
    return TRUE;
}

void CGalleryPage::DrawPage(CDC& dc, const CRect& client)
{
    const ZoControls::CZoThemeManager* manager = ZoControls::CZoThemeManager::GetInstance();
    const COLORREF back = manager ? manager->GetGDIColor(static_cast<ZoControls::E_ZoThemeColors>(0), GetZoTheme())
                                  : ::GetSysColor(COLOR_WINDOW);
    dc.FillSolidRect(&client, back);
}

void CGalleryPage::_paintInto(CDC& dc)
{
    CRect client;
    GetClientRect(&client);
    ZoControls::CZoMemDC mem(&dc, client.Width(), client.Height());
    DrawPage(mem, client);
    mem.CopyToTarget();
}

void CGalleryPage::OnPaint()
{
    CPaintDC dc(this);
    _paintInto(dc);
}

BOOL CGalleryPage::OnEraseBkgnd(CDC* /*pDC*/)
{
    return TRUE;
}

LRESULT CGalleryPage::OnPrintClient(WPARAM wParam, LPARAM /*lParam*/)
{
    return PaintForPrintClient(wParam, [this](CDC& dc) { _paintInto(dc); });
}
