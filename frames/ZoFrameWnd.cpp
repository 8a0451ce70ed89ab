#include "frames/ZoFrameWnd.h"

#include "core/ZoThemeManager.h"
#include "core/ZoThemeMath.h"
#include "images/ZoResourceImage.h"

namespace ZoControls {

namespace {

const wchar_t kBorderSkinName[] = L"BMP_ZO_SKIN_FRAMEWNDBORDER";
const COLORREF kTransparent = RGB(255, 0, 255);
const int kBorderPixels = 5; // at zoom 1

int atLeastZero(int value)
{
    return value < 0 ? 0 : value;
}

// The window GetParent will report for a window about to be made with `cs`: the parent of a
// child, the owner of a popup, none for an overlapped window.
HWND futureParentOf(const CREATESTRUCT& cs)
{
    return (cs.style & (WS_CHILD | WS_POPUP)) ? cs.hwndParent : NULL;
}

E_ZoMonitorSize knownSizeOr0(E_ZoMonitorSize size)
{
    return size < ZoMonitorSize_Normal ? ZoMonitorSize_Normal : size;
}

} // namespace

int ZoFrameBorderSize(float zoom, bool borderless)
{
    return ZoScaleByZoom(borderless ? 0 : kBorderPixels, zoom);
}

RECT ZoFrameClientRect(const RECT& window, int borderWidth, int borderHeight)
{
    RECT client;
    client.left = window.left + borderWidth;
    client.top = window.top + borderHeight;
    client.right = window.right - borderWidth;
    client.bottom = window.bottom - borderHeight;
    if (client.right < client.left)
        client.right = client.left;
    if (client.bottom < client.top)
        client.bottom = client.top;
    return client;
}

LRESULT ZoFrameHitTest(LRESULT platformHit, bool skinLoaded, int pointY, int windowTop, int borderHeight)
{
    if (platformHit != HTNOWHERE || !skinLoaded)
        return platformHit;
    return pointY < windowTop + borderHeight ? HTCAPTION : HTNOWHERE;
}

void ZoFrameBorderCells(int width, int height, int unit, ZoFrameCell (&cells)[kZoFrameCellCount])
{
    const int w = width;
    const int h = height;
    const int u = unit;
    const int across = atLeastZero(w - 2 * u);
    // The long side pieces end one pixel inside the bottom row.
    const int down = atLeastZero(h - 3 * u + 1);
    const ZoFrameCell table[kZoFrameCellCount] = {
        {0, 0, 0, 0, u, u},         {1, 0, u, 0, across, u},         {2, 0, w - u, 0, u, u},
        {0, 1, 0, u, u, u},         {2, 1, w - u, u, u, u},          {0, 2, 0, 2 * u, u, down},
        {2, 2, w - u, 2 * u, u, down}, {0, 3, 0, h - u, u, u},       {1, 3, u, h - u, across, u},
        {2, 3, w - u, h - u, u, u},
    };
    for (int i = 0; i < kZoFrameCellCount; ++i)
        cells[i] = table[i];
}

IMPLEMENT_DYNCREATE(CZoFrameWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CZoFrameWnd, CFrameWnd)
    ON_MESSAGE(ZoMsg_GetCurrentTheme, &CZoFrameWnd::OnMsgGetCurrentZoTheme)
    ON_MESSAGE(ZoMsg_GetCurrentMonitorSize, &CZoFrameWnd::OnMsgGetCurrentMonitorSize)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_NCCALCSIZE()
    ON_WM_NCPAINT()
    ON_MESSAGE(WM_PRINT, &CZoFrameWnd::OnPrint)
    ON_WM_NCHITTEST()
    ON_WM_NCLBUTTONDBLCLK()
    ON_WM_SIZE()
    ZO_ON_MENUXP_MESSAGES()
END_MESSAGE_MAP()

ZO_IMPLEMENT_MENUXP_FORWARDING(CZoFrameWnd, CFrameWnd)

CZoFrameWnd::CZoFrameWnd(bool borderless)
    : m_pBorderSkin(NULL), m_nBorderWidth(0), m_nBorderHeight(0), m_bBorderless(borderless)
{
}

CZoFrameWnd::~CZoFrameWnd()
{
    _deleteSkin();
}

CWnd* CZoFrameWnd::GetZoParent()
{
    return GetParent();
}

int CZoFrameWnd::GetBorderWidth() const
{
    return m_nBorderWidth;
}

int CZoFrameWnd::GetBorderHeight() const
{
    return m_nBorderHeight;
}

bool CZoFrameWnd::IsBorderless() const
{
    return m_bBorderless;
}

E_ZoPaintMode CZoFrameWnd::GetPaintMode()
{
    return ZoPaint_Platform;
}

void CZoFrameWnd::DrawClient(CDC& /*dc*/)
{
}

void CZoFrameWnd::_setBorderFor(E_ZoMonitorSize size)
{
    const CZoThemeManager* pTheme = CZoThemeManager::GetInstance();
    const float zoom = pTheme ? pTheme->GetZoomFactor(size) : ZoZoomFactorOf(size);
    m_nBorderWidth = m_nBorderHeight = ZoFrameBorderSize(zoom, m_bBorderless);
}

void CZoFrameWnd::_deleteSkin()
{
    delete m_pBorderSkin;
    m_pBorderSkin = NULL;
}

BOOL CZoFrameWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!CFrameWnd::PreCreateWindow(cs))
        return FALSE;
    cs.style |= WS_CLIPCHILDREN;
    // The frame never has a menu bar: the menu it was given is not shown and not kept.
    if (cs.hMenu && ::IsMenu(cs.hMenu))
        ::DestroyMenu(cs.hMenu);
    cs.hMenu = NULL;
    // The first WM_NCCALCSIZE comes before WM_CREATE, so the size class is asked the way
    // WM_CREATE will ask it, of the window that is going to be the parent.
    const E_ZoMonitorSize size = ZoGetCurrentMonitorSize(CWnd::FromHandle(futureParentOf(cs)), true);
    _setBorderFor(knownSizeOr0(size));
    return TRUE;
}

LRESULT CZoFrameWnd::OnMsgGetCurrentZoTheme(WPARAM wParam, LPARAM lParam)
{
    return IZoUIBase::OnMsgGetCurrentZoTheme(wParam, lParam);
}

LRESULT CZoFrameWnd::OnMsgGetCurrentMonitorSize(WPARAM wParam, LPARAM lParam)
{
    return IZoUIBase::OnMsgGetCurrentMonitorSize(wParam, lParam);
}

int CZoFrameWnd::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    SetZoMonitorSize(knownSizeOr0(ZoGetCurrentMonitorSize(this, false)));
    _setBorderFor(GetZoMonitorSize());
    ZoMenuOptIn(this);
    if (CFrameWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    _deleteSkin();
    m_pBorderSkin = new CZoResourceBMPImage;
    if (!m_pBorderSkin->LoadResourceImage(kBorderSkinName, GetZoMonitorSize(), kZoFrameSkinColumns,
                                          kZoFrameSkinRows))
        _deleteSkin();
    // The first WM_NCCALCSIZE came before the skin existed and kept the platform's frame: the
    // frame is measured again now, and the control bars laid out in the client area it leaves.
    // (ModifyStyle moves nothing when the style had no border, hence SetWindowPos of its own.)
    ModifyStyle(WS_BORDER, 0);
    SetWindowPos(NULL, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    RecalcLayout(FALSE);
    return 0;
}

void CZoFrameWnd::OnDestroy()
{
    CFrameWnd::OnDestroy();
    _deleteSkin();
}

void CZoFrameWnd::OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp)
{
    // rgrc[0] is the proposed window rectangle on the way in (also when lParam is a bare RECT).
    const RECT proposed = lpncsp->rgrc[0];
    CFrameWnd::OnNcCalcSize(bCalcValidRects, lpncsp);
    if (m_pBorderSkin)
        lpncsp->rgrc[0] = ZoFrameClientRect(proposed, m_nBorderWidth, m_nBorderHeight);
}

void CZoFrameWnd::OnNcPaint()
{
    if (!m_pBorderSkin)
        return;
    CWindowDC dc(this);
    _drawBorder(dc);
}

LRESULT CZoFrameWnd::OnPrint(WPARAM wParam, LPARAM lParam)
{
    if (!m_pBorderSkin || !wParam || !(lParam & PRF_NONCLIENT))
        return Default();
    CDC* pDC = CDC::FromHandle(reinterpret_cast<HDC>(wParam));
    const int saved = pDC->SaveDC();
    _drawBorder(*pDC);
    pDC->RestoreDC(saved);
    // The client part stays the platform's.
    return DefWindowProc(WM_PRINT, wParam, lParam & ~PRF_NONCLIENT);
}

void CZoFrameWnd::_drawBorder(CDC& dc)
{
    CRect window;
    GetWindowRect(&window);
    CRect client;
    GetClientRect(&client);
    ClientToScreen(&client);
    client.OffsetRect(-window.left, -window.top);
    window.OffsetRect(-window.left, -window.top);

    dc.ExcludeClipRect(&client);
    const int unit = m_pBorderSkin->GetWidth() / kZoFrameSkinColumns;
    ZoFrameCell cells[kZoFrameCellCount];
    ZoFrameBorderCells(window.Width(), window.Height(), unit, cells);
    for (int i = 0; i < kZoFrameCellCount; ++i) {
        const ZoFrameCell& cell = cells[i];
        if (cell.w > 0 && cell.h > 0)
            m_pBorderSkin->DrawUnitImage(dc, cell.x, cell.y, cell.w, cell.h, cell.column, cell.row, kTransparent);
    }
}

LRESULT CZoFrameWnd::OnNcHitTest(CPoint point)
{
    const LRESULT platformHit = CFrameWnd::OnNcHitTest(point);
    CRect window;
    GetWindowRect(&window);
    return ZoFrameHitTest(platformHit, m_pBorderSkin != NULL, point.y, window.top, m_nBorderHeight);
}

void CZoFrameWnd::OnNcLButtonDblClk(UINT nHitTest, CPoint point)
{
    // A double click on the drag area does not maximize.
    if (nHitTest == HTCAPTION)
        return;
    CFrameWnd::OnNcLButtonDblClk(nHitTest, point);
}

void CZoFrameWnd::OnSize(UINT nType, int cx, int cy)
{
    CFrameWnd::OnSize(nType, cx, cy);
    if (::IsWindow(m_hWnd) && cx > 0 && cy > 0)
        ResizeRegisteredWindows();
}

} // namespace ZoControls
