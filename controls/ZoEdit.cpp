#include "controls/ZoEdit.h"

#include "controls/ZoControlTheme.h"
#include "controls/ZoSkinFrame.h"
#include "core/ZoBorrowedDC.h"
#include "core/ZoMemDC.h"
#include "core/ZoThemeManager.h"
#include "images/ZoResourceImage.h"

namespace ZoControls {

namespace {

// Colour slots of the edit.
const int kSurroundSlot = 0;
const int kNormalBackSlot = 28;
const int kSecondBackSlot = 29;
const int kDisabledBackSlot = 30;
const int kNormalTextSlot = 31;
const int kDisabledTextSlot = 32;

// The border skin: four states of three columns, three themes of three rows.
const wchar_t kBorderSkin[] = L"BMP_ZO_EDIT";
const int kBorderColumns = 12;
const int kBorderRows = 9;

} // namespace

E_ZoButtonStates ZoEditBorderState(bool enabled, bool readOnly, bool focused)
{
    if (!enabled)
        return BS_ZO_DISABLED;
    if (!readOnly && focused)
        return BS_ZO_HOT;
    return BS_ZO_NORMAL;
}

IMPLEMENT_DYNAMIC(CZoEdit, CEdit)

BEGIN_MESSAGE_MAP(CZoEdit, CEdit)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_NCPAINT()
    ON_WM_CTLCOLOR_REFLECT()
    ON_CONTROL_REFLECT_EX(EN_KILLFOCUS, &CZoEdit::OnEnKillfocus)
    ON_CONTROL_REFLECT_EX(EN_SETFOCUS, &CZoEdit::OnEnSetfocus)
    ZO_ON_MENUXP_MESSAGES()
END_MESSAGE_MAP()

ZO_IMPLEMENT_MENUXP_FORWARDING(CZoEdit, CEdit)

CZoEdit::CZoEdit(E_ZoThemeFont font)
    : m_eTheme(ZoTheme_Default), m_eMonitorSize(ZoMonitorSize_Unknown), m_eFont(font), m_bThemeFixed(false),
      m_pBorderSkin(NULL), m_clrNormalBack(0), m_clrSecondBack(0), m_clrDisabledBack(0), m_clrNormalText(0),
      m_clrReadOnlyText(0), m_clrDisabledText(0)
{
}

CZoEdit::CZoEdit(E_ZoTheme theme, E_ZoThemeFont font)
    : m_eTheme(theme), m_eMonitorSize(ZoMonitorSize_Unknown), m_eFont(font), m_bThemeFixed(true),
      m_pBorderSkin(NULL), m_clrNormalBack(0), m_clrSecondBack(0), m_clrDisabledBack(0), m_clrNormalText(0),
      m_clrReadOnlyText(0), m_clrDisabledText(0)
{
}

CZoEdit::~CZoEdit() { _releaseResources(); }

void CZoEdit::PreSubclassWindow()
{
    _init();
    CEdit::PreSubclassWindow();
}

int CZoEdit::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CEdit::OnCreate(lpCreateStruct) == -1)
        return -1;
    _init();
    return 0;
}

void CZoEdit::_init()
{
    ZoMenuOptIn(this);
    if (!m_bThemeFixed)
        m_eTheme = ZoGetCurrentThemeIndex(this);
    m_eMonitorSize = ZoGetCurrentMonitorSize(this, false);
    // Creation through MFC runs both PreSubclassWindow and WM_CREATE: load once.
    if (!m_pBorderSkin)
        _loadResources();
    CFont* pFont = ZoCachedFont(m_eFont, m_eMonitorSize);
    if (pFont)
        SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(pFont->GetSafeHandle()), TRUE);
    // A thin frame of a known size whatever the dialog template asked for; the platform
    // recomputes the frame at once.
    ModifyStyle(0, WS_BORDER);
    ModifyStyleEx(WS_EX_DLGMODALFRAME | WS_EX_CLIENTEDGE, WS_EX_STATICEDGE, SWP_FRAMECHANGED);
}

void CZoEdit::_loadResources()
{
    m_pBorderSkin = new CZoResourceBMPImage();
    m_pBorderSkin->LoadResourceImage(kBorderSkin, m_eMonitorSize, kBorderColumns, kBorderRows);
    m_clrNormalBack = ZoSlotColor(kNormalBackSlot, m_eTheme);
    m_clrSecondBack = ZoSlotColor(kSecondBackSlot, m_eTheme);
    m_clrDisabledBack = ZoSlotColor(kDisabledBackSlot, m_eTheme);
    m_clrNormalText = ZoSlotColor(kNormalTextSlot, m_eTheme);
    m_clrReadOnlyText = m_clrNormalText;
    m_clrDisabledText = ZoSlotColor(kDisabledTextSlot, m_eTheme);
    m_brNormalBack.CreateSolidBrush(m_clrNormalBack);
    m_brSecondBack.CreateSolidBrush(m_clrSecondBack);
    m_brDisabledBack.CreateSolidBrush(m_clrDisabledBack);
}

void CZoEdit::_releaseResources()
{
    delete m_pBorderSkin;
    m_pBorderSkin = NULL;
    m_brNormalBack.DeleteObject();
    m_brSecondBack.DeleteObject();
    m_brDisabledBack.DeleteObject();
}

void CZoEdit::OnDestroy()
{
    CEdit::OnDestroy();
    _releaseResources();
}

HBRUSH CZoEdit::CtlColor(CDC* pDC, UINT /*nCtlColor*/)
{
    if (!IsWindowEnabled())
    {
        pDC->SetTextColor(m_clrDisabledText);
        pDC->SetBkColor(m_clrDisabledBack);
        return static_cast<HBRUSH>(m_brDisabledBack.GetSafeHandle());
    }
    const bool readOnly = (GetStyle() & ES_READONLY) != 0;
    pDC->SetTextColor(readOnly ? m_clrReadOnlyText : m_clrNormalText);
    pDC->SetBkColor(m_clrNormalBack);
    return static_cast<HBRUSH>(m_brNormalBack.GetSafeHandle());
}

BOOL CZoEdit::OnEnKillfocus()
{
    // The border leaves its focused state; the parent still gets the notification.
    RedrawWindow(NULL, NULL, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW);
    return FALSE;
}

BOOL CZoEdit::OnEnSetfocus()
{
    RedrawWindow(NULL, NULL, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
    return FALSE;
}

void CZoEdit::OnNcPaint()
{
    CEdit::OnNcPaint();
    CWindowDC dc(this);
    _paintBorderInto(dc);
}

LRESULT CZoEdit::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = CEdit::WindowProc(message, wParam, lParam);
    // Printing the frame (screenshots, previews) shows the same band as the screen.
    if (message == WM_PRINT && wParam && (lParam & PRF_NONCLIENT))
    {
        CZoBorrowedDC dc(wParam);
        _paintBorderInto(dc);
    }
    return result;
}

void CZoEdit::_paintBorderInto(CDC& dc)
{
    CRect window;
    GetWindowRect(&window);
    window.OffsetRect(-window.left, -window.top);
    CRect client;
    GetClientRect(&client);
    // Without a frame (the combo box's inner edit) there is no band to paint.
    if (window.IsRectEmpty() || client.Size() == window.Size())
        return;
    const int saved = dc.SaveDC();
    CZoMemDC memDC(&dc, window.Width(), window.Height());
    _drawNcEdit(memDC, window);
    // Only the band of one cell along the edges is overwritten; the client area and the scroll
    // bars inside the band keep what the platform drew. Without a skin nothing is overwritten.
    CRect inner = window;
    if (m_pBorderSkin && m_pBorderSkin->IsLoaded())
        inner.DeflateRect(m_pBorderSkin->GetUnitWidth(), m_pBorderSkin->GetUnitHeight());
    if (!inner.IsRectEmpty())
        dc.ExcludeClipRect(&inner);
    memDC.CopyToTarget();
    dc.RestoreDC(saved);
}

void CZoEdit::_drawNcEdit(CDC& dc, const CRect& rect)
{
    const bool readOnly = (GetStyle() & ES_READONLY) != 0;
    const E_ZoButtonStates state = ZoEditBorderState(IsWindowEnabled() != FALSE, readOnly, ::GetFocus() == m_hWnd);
    dc.FillSolidRect(&rect, ZoSlotColor(kSurroundSlot, m_eTheme));
    ZoDrawSkinFrame(dc, m_pBorderSkin, rect, state * 3, _getResourceRowIndex(m_eTheme) * 3, false);
}

} // namespace ZoControls
