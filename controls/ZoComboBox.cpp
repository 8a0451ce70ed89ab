#include "controls/ZoComboBox.h"

#include "controls/ZoControlTheme.h"
#include "controls/ZoEdit.h"
#include "controls/ZoSkinFrame.h"
#include "core/ZoThemeManager.h"
#include "images/ZoResourceImage.h"

namespace ZoControls {

namespace {

// Colour slots of the combo box.
const int kSurroundSlot = 0;
const int kBackgroundSlot = 28;
const int kTextSlot = 31;

const COLORREF kTransparent = RGB(255, 0, 255);
// Frame and button background: four states of three columns; the arrow: one column a state.
const int kFrameColumns = 12;
const int kArrowColumns = 4;
const float kMarginAtZoomOne = 3.0f;

} // namespace

int ZoComboMargin(float zoom) { return (int)(zoom * kMarginAtZoomOne + 0.5f); }

CRect ZoComboButtonRect(const CRect& client, float zoom)
{
    const int d = ZoComboMargin(zoom);
    const int side = client.bottom - client.top - 2 * d + 1;
    if (side <= 0)
        return CRect(client.right - d, client.top, client.right - d, client.top);
    const int left = client.right - side - d;
    const int top = (client.bottom - client.top - side) / 2;
    return CRect(left, top, left + side, top + side);
}

E_ZoButtonStates ZoComboFrameState(bool enabled, DWORD stateButton, bool dropped, HWND focus, HWND innerEdit)
{
    if (!enabled)
        return BS_ZO_DISABLED;
    if (focus == innerEdit)
        return BS_ZO_HOT;
    if (stateButton == STATE_SYSTEM_PRESSED || dropped)
        return BS_ZO_PRESSED;
    if (stateButton == STATE_SYSTEM_FOCUSED)
        return BS_ZO_HOT;
    return BS_ZO_NORMAL;
}

E_ZoButtonStates ZoComboArrowState(E_ZoButtonStates frameState, bool isDropDown, bool dropped)
{
    return isDropDown && dropped ? BS_ZO_PRESSED : frameState;
}

bool ZoComboKeepsText(UINT message)
{
    switch (message)
    {
    case WM_PAINT:
    case WM_PRINTCLIENT:
    case WM_ERASEBKGND:
    case WM_NCPAINT:
    case WM_PRINT:
    case WM_NCHITTEST:
    case WM_SETCURSOR:
    case WM_MOUSEMOVE:
    case WM_GETTEXT:
    case WM_GETTEXTLENGTH:
    case WM_GETFONT:
    case WM_GETDLGCODE:
    case WM_CTLCOLORLISTBOX:
    case CB_GETCURSEL:
    case CB_GETCOUNT:
    case CB_GETLBTEXT:
    case CB_GETLBTEXTLEN:
    case CB_GETITEMDATA:
    case CB_GETDROPPEDSTATE:
    case CB_GETCOMBOBOXINFO:
        return true;
    default:
        return false;
    }
}

// --- CZoComboBox ---------------------------------------------------------------------------

IMPLEMENT_DYNAMIC(CZoComboBox, CComboBox)

BEGIN_MESSAGE_MAP(CZoComboBox, CComboBox)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_DESTROY()
    ON_WM_CTLCOLOR()
    ON_CONTROL_REFLECT_EX(CBN_SETFOCUS, &CZoComboBox::OnCbnSetfocus)
    ON_CONTROL_REFLECT_EX(CBN_KILLFOCUS, &CZoComboBox::OnCbnKillfocus)
    ZO_ON_MENUXP_MESSAGES()
END_MESSAGE_MAP()

ZO_IMPLEMENT_MENUXP_FORWARDING(CZoComboBox, CComboBox)

CZoComboBox::CZoComboBox()
    : m_eTheme(ZoTheme_Default), m_eMonitorSize(ZoMonitorSize_Unknown), m_eFont(ZoThemeFont_1), m_pBackSkin(NULL),
      m_pButtonSkin(NULL), m_pButtonBackSkin(NULL), m_bDropListTextColorsSet(false), m_clrText(0), m_pEdit(NULL),
      m_bInitialized(false), m_bTextKept(false)
{
    for (int i = 0; i < BS_ZO_COUNT; ++i)
        m_aDropListTextColors[i] = 0;
}

CZoComboBox::~CZoComboBox()
{
    _deleteSkins();
    delete m_pEdit;
}

E_ZoPaintMode CZoComboBox::GetPaintMode()
{
    return (GetStyle() & 3) < CBS_DROPDOWN ? ZoPaint_Platform : ZoPaint_Offscreen;
}

void CZoComboBox::SetDropListTextColor(const COLORREF colors[BS_ZO_COUNT])
{
    for (int i = 0; i < BS_ZO_COUNT; ++i)
        m_aDropListTextColors[i] = colors[i];
    m_bDropListTextColorsSet = true;
}

float CZoComboBox::GetZoZoomFactor() const { return ZoCurrentZoom(m_eMonitorSize); }

void CZoComboBox::GetBackBitmapResourceId(CString& name, int& rows) const
{
    name = L"BMP_ZO_EDIT";
    rows = 3;
}

void CZoComboBox::GetButtonBitmapResourceId(CString& name, int& rows) const
{
    name = L"BMP_ZO_CMBDROPDOWNLISTBTN";
    rows = 2;
}

void CZoComboBox::GetButtonBackBitmapResourceId(CString& name, int& rows) const
{
    name = L"BMP_ZO_CMBDROPDOWNLISTBTNBACK";
    rows = 3;
}

int CZoComboBox::GetBackBitmapRowIndex() const { return m_eTheme; }

int CZoComboBox::GetButtonBitmapRowIndex() const { return 0; }

int CZoComboBox::GetButtonBackBitmapRowIndex() const { return m_eTheme; }

bool CZoComboBox::_isDropDown() const { return (GetStyle() & 3) == CBS_DROPDOWN; }

void CZoComboBox::PreSubclassWindow()
{
    _init();
    CZoPaintedWnd<CComboBox>::PreSubclassWindow();
}

int CZoComboBox::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CZoPaintedWnd<CComboBox>::OnCreate(lpCreateStruct) == -1)
        return -1;
    _init();
    return 0;
}

void CZoComboBox::_init()
{
    m_eMonitorSize = ZoGetCurrentMonitorSize(this, false);
    m_eTheme = ZoGetCurrentThemeIndex(this);
    ZoMenuOptIn(this);
    CFont* pFont = ZoCachedFont(m_eFont, m_eMonitorSize);
    if (pFont)
        SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(pFont->GetSafeHandle()), TRUE);
    // Creation through MFC runs both PreSubclassWindow and WM_CREATE: skins and colours once;
    // the inner edit as soon as the platform has made it.
    if (!m_bInitialized)
    {
        _loadSkins();
        m_brBackground.CreateSolidBrush(ZoSlotColor(kBackgroundSlot, m_eTheme));
        m_clrText = ZoSlotColor(kTextSlot, m_eTheme);
        m_bInitialized = true;
    }
    if (_isDropDown() && !m_pEdit)
        _attachInnerEdit();
}

void CZoComboBox::_loadSkins()
{
    CString name;
    int rows = 0;
    GetBackBitmapResourceId(name, rows);
    m_pBackSkin = new CZoResourceBMPImage();
    m_pBackSkin->LoadResourceImage(name, m_eMonitorSize, kFrameColumns, rows);
    GetButtonBitmapResourceId(name, rows);
    m_pButtonSkin = new CZoResourceBMPImage();
    m_pButtonSkin->LoadResourceImage(name, m_eMonitorSize, kArrowColumns, rows);
    GetButtonBackBitmapResourceId(name, rows);
    if (!name.IsEmpty())
    {
        m_pButtonBackSkin = new CZoResourceBMPImage();
        m_pButtonBackSkin->LoadResourceImage(name, m_eMonitorSize, kFrameColumns, rows);
    }
}

void CZoComboBox::_attachInnerEdit()
{
    COMBOBOXINFO info = {};
    info.cbSize = sizeof(info);
    if (!GetComboBoxInfo(&info) || !info.hwndItem)
        return;
    m_pEdit = new CZoEdit(m_eTheme, m_eFont);
    if (!m_pEdit->SubclassWindow(info.hwndItem))
    {
        delete m_pEdit;
        m_pEdit = NULL;
        return;
    }
    // The combo's frame is the border: the edit's own comes off again.
    m_pEdit->ModifyStyle(WS_BORDER, 0);
    m_pEdit->ModifyStyleEx(WS_EX_CLIENTEDGE | WS_EX_STATICEDGE, 0, SWP_FRAMECHANGED);
}

void CZoComboBox::_deleteSkins()
{
    delete m_pBackSkin;
    delete m_pButtonSkin;
    delete m_pButtonBackSkin;
    m_pBackSkin = NULL;
    m_pButtonSkin = NULL;
    m_pButtonBackSkin = NULL;
}

void CZoComboBox::OnDestroy()
{
    if (m_pEdit)
    {
        if (m_pEdit->GetSafeHwnd())
            m_pEdit->DestroyWindow();
        delete m_pEdit;
        m_pEdit = NULL;
    }
    CZoPaintedWnd<CComboBox>::OnDestroy();
    _deleteSkins();
    m_brBackground.DeleteObject();
    m_bInitialized = false;
}

CRect CZoComboBox::_getButtonRect() const
{
    CRect client;
    GetClientRect(&client);
    return ZoComboButtonRect(client, GetZoZoomFactor());
}

LRESULT CZoComboBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    // Forgotten before (a paint while the message is handled reads afresh) and after (one
    // read while it was handled may have seen the text before it changed).
    const bool keepsText = ZoComboKeepsText(message);
    if (!keepsText)
        m_bTextKept = false;
    const LRESULT result = CZoPaintedWnd<CComboBox>::WindowProc(message, wParam, lParam);
    if (!keepsText)
        m_bTextKept = false;
    if (message == CB_SETCURSEL)
    {
        RepaintNow();
    }
    else if (message == CB_GETCOMBOBOXINFO && result && lParam && GetPaintMode() != ZoPaint_Platform)
    {
        // Every caller, this class included, sees the skin's button rather than the platform's.
        reinterpret_cast<COMBOBOXINFO*>(lParam)->rcButton = _getButtonRect();
    }
    return result;
}

void CZoComboBox::OnSize(UINT nType, int cx, int cy)
{
    // The platform places its edit while it handles the new size; the edit is then kept off
    // the skin's button.
    CZoPaintedWnd<CComboBox>::OnSize(nType, cx, cy);
    if (!m_pEdit || !m_pEdit->GetSafeHwnd())
        return;
    COMBOBOXINFO info = {};
    info.cbSize = sizeof(info);
    if (!GetComboBoxInfo(&info))
        return;
    CRect item = info.rcItem;
    const CRect button = _getButtonRect();
    if (item.right >= button.left)
        item.right = button.left - ZoComboMargin(GetZoZoomFactor());
    if (item.right < item.left)
        item.right = item.left;
    m_pEdit->SetWindowPos(NULL, item.left, item.top, item.Width(), item.Height(), SWP_NOZORDER | SWP_NOREDRAW);
}

HBRUSH CZoComboBox::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    HBRUSH hBrush = CZoPaintedWnd<CComboBox>::OnCtlColor(pDC, pWnd, nCtlColor);
    // A simple combo keeps the platform's look, children included.
    if ((nCtlColor != CTLCOLOR_EDIT && nCtlColor != CTLCOLOR_LISTBOX) || GetPaintMode() == ZoPaint_Platform)
        return hBrush;
    pDC->SetTextColor(m_clrText);
    pDC->SetBkColor(ZoSlotColor(kBackgroundSlot, m_eTheme));
    return static_cast<HBRUSH>(m_brBackground.GetSafeHandle());
}

BOOL CZoComboBox::OnCbnSetfocus()
{
    RepaintNow();
    return FALSE;
}

BOOL CZoComboBox::OnCbnKillfocus()
{
    RepaintNow();
    return FALSE;
}

void CZoComboBox::DrawClient(CDC& dc)
{
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, ZoSlotColor(kSurroundSlot, m_eTheme));

    // Asked of the platform's procedure directly: a message sent here would pass every
    // message hook of the thread on its way, several times the cost of the whole paint.
    COMBOBOXINFO info = {};
    info.cbSize = sizeof(info);
    DefWindowProc(CB_GETCOMBOBOXINFO, 0, reinterpret_cast<LPARAM>(&info));
    const bool dropped = DefWindowProc(CB_GETDROPPEDSTATE, 0, 0) != FALSE;
    const E_ZoButtonStates state =
        ZoComboFrameState(IsWindowEnabled() != FALSE, info.stateButton, dropped, ::GetFocus(),
                          m_pEdit ? m_pEdit->GetSafeHwnd() : NULL);
    ZoDrawSkinFrame(dc, m_pBackSkin, client, state * 3, GetBackBitmapRowIndex() * 3, true);

    const CRect button = _getButtonRect();
    _drawButtonImage(dc, button, ZoComboArrowState(state, _isDropDown(), dropped));
    _drawText(dc, client, button);
}

void CZoComboBox::_drawButtonImage(CDC& dc, const CRect& button, int state)
{
    if (!m_pButtonSkin || !m_pButtonSkin->IsLoaded())
        return;
    const int w = m_pButtonSkin->GetUnitWidth();
    const int h = m_pButtonSkin->GetUnitHeight();
    const int x = button.left + (button.Width() - w) / 2;
    const int y = button.top + (button.Height() - h) / 2;
    m_pButtonSkin->DrawUnitImage(dc, x, y, state, GetButtonBitmapRowIndex(), kTransparent);
}

void CZoComboBox::_drawText(CDC& dc, const CRect& client, const CRect& button)
{
    const CString& text = _text();
    if (text.IsEmpty())
        return;
    const int d = ZoComboMargin(GetZoZoomFactor());
    CRect area(2 * d, client.top, button.left - 2 * d, client.bottom);
    CZoTextScope scope(dc, ZoCachedFont(m_eFont, m_eMonitorSize), m_clrText, TRANSPARENT);
    dc.DrawText(text, &area, DT_VCENTER | DT_SINGLELINE);
}

const CString& CZoComboBox::_text()
{
    // A drop-down combo's text changes in its inner edit, unseen here: it is read every time.
    if (m_bTextKept && !m_pEdit)
        return m_strText;
    // Reading a drop-list combo's text costs the platform several messages to its list.
    GetWindowText(m_strText);
    m_bTextKept = true;
    return m_strText;
}

// --- CZoComboBoxBtnFeel --------------------------------------------------------------------

IMPLEMENT_DYNAMIC(CZoComboBoxBtnFeel, CZoComboBox)

CZoComboBoxBtnFeel::CZoComboBoxBtnFeel() {}

CZoComboBoxBtnFeel::~CZoComboBoxBtnFeel() {}

void CZoComboBoxBtnFeel::GetBackBitmapResourceId(CString& name, int& rows) const
{
    name = L"BMP_ZO_CMBDROPDOWNLIST";
    rows = 3;
}

void CZoComboBoxBtnFeel::GetButtonBackBitmapResourceId(CString& name, int& rows) const
{
    name.Empty();
    rows = 0;
}

int CZoComboBoxBtnFeel::GetBackBitmapRowIndex() const { return m_eTheme; }

int CZoComboBoxBtnFeel::GetButtonBitmapRowIndex() const { return (GetStyle() & 3) == CBS_DROPDOWNLIST ? 1 : 0; }

// --- CZoComboBoxTextDark -------------------------------------------------------------------

IMPLEMENT_DYNAMIC(CZoComboBoxTextDark, CZoComboBox)

CZoComboBoxTextDark::CZoComboBoxTextDark()
{
    const COLORREF text = ZoSlotColor(kTextSlot, ZoTheme_Default);
    const COLORREF colors[BS_ZO_COUNT] = {text, text, text, text};
    SetDropListTextColor(colors);
}

CZoComboBoxTextDark::~CZoComboBoxTextDark() {}

} // namespace ZoControls
