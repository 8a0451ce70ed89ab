#include <afxwin.h>

#include "GalleryPage.h"
#include "core/ZoMemDC.h"

namespace {
// Colour slot 0 is the themed windows' background.
const ZoControls::E_ZoThemeColors kBackSlot = ZoControls::ZoThemeColor_First;
} // namespace

COLORREF GalleryBackColor(ZoControls::E_ZoTheme theme)
{
    const ZoControls::CZoThemeManager* manager = ZoControls::CZoThemeManager::GetInstance();
    return manager ? manager->GetGDIColor(kBackSlot, theme) : ::GetSysColor(COLOR_WINDOW);
}

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
    // A control parent, so that Tab walks into the page's controls.
    if (!CreateEx(WS_EX_CONTROLPARENT, className, L"", WS_CHILD | WS_CLIPCHILDREN, rect.left, rect.top, rect.Width(),
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
    dc.FillSolidRect(&client, GalleryBackColor(GetZoTheme()));
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
