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
    if (!OnCreatePage())
        return FALSE;
    _registerChildren();
    return TRUE;
}

// Pages are laid out for the normal size class. At a larger one every control keeps its place
// and size in those units, scaled by the zoom each time the page is sized, so that the larger
// fonts find room.
void CGalleryPage::_registerChildren()
{
    if (GetZoZoomFactor() == 1.0f)
        return;
    for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        CWnd* pChild = CWnd::FromHandlePermanent(child);
        if (!pChild)
            continue;
        CRect rect;
        pChild->GetWindowRect(&rect);
        ScreenToClient(&rect);
        RegisterChildWindow(pChild, rect, true);
    }
    ResizeRegisteredWindows();
}

int CGalleryPage::Scaled(int designPixels) const
{
    const float zoom = GetZoZoomFactor();
    if (zoom <= 0.0f)
        return designPixels;
    return static_cast<int>(designPixels * zoom + 0.5f);
}

CFont* CGalleryPage::PageFont(ZoControls::E_ZoThemeFont role) const
{
    const ZoControls::CZoThemeManager* manager = ZoControls::CZoThemeManager::GetInstance();
    return manager ? const_cast<CFont*>(manager->GetCacheGDIFont(role, GetZoMonitorSize())) : NULL;
}

CPageUnscaledScope::CPageUnscaledScope(CDC& dc) : m_dc(dc), m_bTransformed(false)
{
    const XFORM identity = {1.0f, 0.0f, 0.0f, 1.0f, 0.0f, 0.0f};
    m_saved = identity;
    if (::GetGraphicsMode(dc.GetSafeHdc()) == GM_ADVANCED && ::GetWorldTransform(dc.GetSafeHdc(), &m_saved)) {
        m_bTransformed = true;
        ::ModifyWorldTransform(dc.GetSafeHdc(), NULL, MWT_IDENTITY);
    }
}

CPageUnscaledScope::~CPageUnscaledScope()
{
    if (m_bTransformed)
        ::SetWorldTransform(m_dc.GetSafeHdc(), &m_saved);
}

CPoint CPageUnscaledScope::ToDevice(const CPoint& point) const
{
    return CPoint(static_cast<int>(point.x * m_saved.eM11 + point.y * m_saved.eM21 + m_saved.eDx + 0.5f),
                  static_cast<int>(point.x * m_saved.eM12 + point.y * m_saved.eM22 + m_saved.eDy + 0.5f));
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
    // Drawn in the normal size class's units, magnified like the controls.
    const float zoom = GetZoZoomFactor();
    if (zoom == 1.0f || zoom <= 0.0f) {
        DrawPage(mem, client);
    } else {
        const int oldMode = ::SetGraphicsMode(mem.GetSafeHdc(), GM_ADVANCED);
        const XFORM scale = {zoom, 0.0f, 0.0f, zoom, 0.0f, 0.0f};
        ::SetWorldTransform(mem.GetSafeHdc(), &scale);
        DrawPage(mem, CRect(0, 0, static_cast<int>(client.Width() / zoom), static_cast<int>(client.Height() / zoom)));
        ::ModifyWorldTransform(mem.GetSafeHdc(), NULL, MWT_IDENTITY);
        ::SetGraphicsMode(mem.GetSafeHdc(), oldMode);
    }
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
