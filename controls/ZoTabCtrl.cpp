#include "controls/ZoTabCtrl.h"

#include "controls/ZoControlTheme.h"
#include "controls/ZoWindowHelpers.h"
#include "core/ZoThemeManager.h"
#include "images/ZoResourceImage.h"

namespace ZoControls {

namespace {

const COLORREF kTransparent = RGB(255, 0, 255);
const int kBackgroundSlot = 0;
const int kTextNormalSlot = 5;
const int kTextHoverSlot = 6;
const int kTextSelectedSlot = 7;
const int kTextDisabledSlot = 8;
const int kFrameColumns = 3;
const int kFrameRowsPerTheme = 3;
const int kFrameRows = 9;
const int kHorizontalRowsPerTheme = 2;
const int kVerticalRowsPerTheme = 6;
const int kVerticalNotSelectedRow = 3;
const int kPiecesPerTab = 3;
// Captions keep this far from the tab's edges.
const int kCaptionInset = 3;
const int kEscapementUp = 900;
const int kEscapementDown = 2700;
// Room for the captions the platform hands out, plus the ellipsis DT_MODIFYSTRING may add.
const int kCaptionChars = 512;
const int kEllipsisRoom = 4;

bool isLoaded(const CZoResourceBMPImage* pImage) { return pImage && pImage->IsLoaded(); }

CZoResourceBMPImage* loadStrip(const wchar_t* name, E_ZoMonitorSize size, int columns, int rows)
{
    CZoResourceBMPImage* pImage = new CZoResourceBMPImage();
    pImage->LoadResourceImage(name, size, columns, rows);
    return pImage;
}

// A cell outside the strip (the disabled state's column, a theme without rows) draws nothing.
void drawCell(const CZoResourceBMPImage& image, CDC& dc, const CRect& rect, CPoint cell)
{
    const bool inStrip = cell.x >= 0 && cell.y >= 0 && (cell.x + 1) * image.GetUnitWidth() <= image.GetWidth() &&
                         (cell.y + 1) * image.GetUnitHeight() <= image.GetHeight();
    if (inStrip && rect.Width() > 0 && rect.Height() > 0)
        image.DrawUnitImage(dc, rect.left, rect.top, rect.Width(), rect.Height(), cell.x, cell.y, kTransparent);
}

} // namespace

ZoTabStrip ZoTabStripFor(DWORD style)
{
    if (style & TCS_VERTICAL)
    {
        const ZoTabStrip side = {(style & TCS_RIGHT) ? L"BMP_ZO_TABBTN_RIGHT" : L"BMP_ZO_TABBTN_LEFT", 4, 18, true};
        return side;
    }
    const ZoTabStrip flat = {(style & TCS_BOTTOM) ? L"BMP_ZO_TABBTN_BOTTOM" : L"BMP_ZO_TABBTN_TOP", 12, 6, false};
    return flat;
}

E_ZoTabState ZoTabStateOf(bool enabled, int index, int pressedIndex, int hoverIndex)
{
    if (!enabled)
        return ZoTabState_Disabled;
    if (index == pressedIndex)
        return ZoTabState_Pressed;
    return index == hoverIndex ? ZoTabState_Hover : ZoTabState_Normal;
}

int ZoTabTextSlot(bool enabled, bool selected, bool hovered)
{
    if (!enabled)
        return kTextDisabledSlot;
    if (selected)
        return kTextSelectedSlot;
    return hovered ? kTextHoverSlot : kTextNormalSlot;
}

CPoint ZoTabCell(bool vertical, int state, int theme, bool selected, int piece)
{
    if (vertical)
        return CPoint(state, theme * kVerticalRowsPerTheme + (selected ? 0 : kVerticalNotSelectedRow) + piece);
    return CPoint(state * kPiecesPerTab + piece, theme * kHorizontalRowsPerTheme + (selected ? 0 : 1));
}

CRect ZoTabFocusRect(const CRect& tab)
{
    // One pixel outside the caption's area.
    CRect focus = tab;
    focus.DeflateRect(kCaptionInset - 1, kCaptionInset - 1);
    if (focus.IsRectEmpty())
        return CRect(0, 0, 0, 0);
    return focus;
}

CRect ZoTabItemRect(const CRect& item, DWORD style)
{
    CRect grown = item;
    if (style & TCS_VERTICAL)
    {
        if (style & TCS_RIGHT)
            grown.left -= 1;
        else
            grown.right += 1;
    }
    else if (style & TCS_BOTTOM)
    {
        grown.top -= 1;
    }
    else
    {
        grown.bottom += 1;
    }
    return grown;
}

void ZoTabPieces(const CRect& tab, int cap, bool vertical, CRect (&pieces)[3])
{
    if (vertical)
    {
        pieces[0] = CRect(tab.left, tab.top, tab.right, tab.top + cap);
        pieces[1] = CRect(tab.left, tab.top + cap, tab.right, tab.bottom - cap);
        pieces[2] = CRect(tab.left, tab.bottom - cap, tab.right, tab.bottom);
    }
    else
    {
        pieces[0] = CRect(tab.left, tab.top, tab.left + cap, tab.bottom);
        pieces[1] = CRect(tab.left + cap, tab.top, tab.right - cap, tab.bottom);
        pieces[2] = CRect(tab.right - cap, tab.top, tab.right, tab.bottom);
    }
}

void ZoTabFramePieces(const CRect& page, int u, int v, CRect (&pieces)[9])
{
    const int xs[4] = {page.left - u, page.left, page.right, page.right + u};
    const int ys[4] = {page.top - v, page.top, page.bottom, page.bottom + v};
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 3; ++column)
            pieces[row * 3 + column] = CRect(xs[column], ys[row], xs[column + 1], ys[row + 1]);
}

CPoint ZoTabRotatedTextOrigin(const CRect& text, int textHeight, bool right)
{
    const int margin = (text.Width() - textHeight) / 2;
    return CPoint(right ? text.right - margin : text.left + margin, (text.top + text.bottom) / 2);
}

IMPLEMENT_DYNAMIC(CZoTabCtrl, CTabCtrl)

BEGIN_MESSAGE_MAP(CZoTabCtrl, CTabCtrl)
    ON_WM_CREATE()
    ON_WM_LBUTTONDOWN()
    ON_WM_KEYDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ZO_ON_MENUXP_MESSAGES()
END_MESSAGE_MAP()

ZO_IMPLEMENT_MENUXP_FORWARDING(CZoTabCtrl, CTabCtrl)

CZoTabCtrl::CZoTabCtrl()
    : m_eMonitorSize(ZoMonitorSize_Unknown), m_eTheme(ZoTheme_Default), m_pTabSkin(NULL), m_pFrameSkin(NULL),
      m_eSelectedFont(ZoThemeFont_9), m_eNormalFont(ZoThemeFont_1), m_pSelectedFont(NULL), m_pNormalFont(NULL),
      m_bOwnsFonts(false), m_nHoverIndex(-1), m_nPressedIndex(-1)
{
}

CZoTabCtrl::~CZoTabCtrl() { _free(); }

E_ZoPaintMode CZoTabCtrl::GetPaintMode() { return _isButtons() ? ZoPaint_Platform : ZoPaint_Offscreen; }

// The platform paints TCS_BUTTONS controls, focus cue included.
bool CZoTabCtrl::DrawsFocusCue() { return !_isButtons(); }

bool CZoTabCtrl::GetKeptRect(CRect& rect)
{
    if (_isButtons())
        return false;
    rect = _pageRect();
    return true;
}

CFont* CZoTabCtrl::_createFontRotated(CFont* pFont, bool right)
{
    LOGFONTW logFont;
    ::ZeroMemory(&logFont, sizeof(logFont));
    if (pFont && pFont->GetSafeHandle())
        ::GetObjectW(pFont->GetSafeHandle(), sizeof(logFont), &logFont);
    logFont.lfEscapement = logFont.lfOrientation = right ? kEscapementDown : kEscapementUp;
    CFont* pRotated = new CFont();
    pRotated->CreateFontIndirect(&logFont);
    return pRotated;
}

void CZoTabCtrl::PreSubclassWindow()
{
    _init();
    CTabCtrl::PreSubclassWindow();
}

int CZoTabCtrl::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CTabCtrl::OnCreate(lpCreateStruct) == -1)
        return -1;
    _init();
    return 0;
}

bool CZoTabCtrl::_isButtons() const { return (GetStyle() & TCS_BUTTONS) != 0; }

void CZoTabCtrl::_init()
{
    // Releasing first makes a second initialisation (MFC's Create runs two) safe.
    _free();
    ZoMenuOptIn(this);
    m_eMonitorSize = ZoGetCurrentMonitorSize(this, false);
    m_eTheme = ZoGetCurrentThemeIndex(this);
    const DWORD style = GetStyle();
    if ((style & TCS_BUTTONS) == 0)
    {
        const ZoTabStrip strip = ZoTabStripFor(style);
        m_pTabSkin = loadStrip(strip.name, m_eMonitorSize, strip.columns, strip.rows);
        // A strip that did not load leaves the platform's tab size.
        const int thickness = strip.vertical ? m_pTabSkin->GetUnitWidth() : m_pTabSkin->GetUnitHeight();
        if (thickness > 0)
            SendMessage(TCM_SETITEMSIZE, 0, MAKELPARAM(thickness, thickness));
        m_pFrameSkin = loadStrip(L"BMP_ZO_TABFRAME", m_eMonitorSize, kFrameColumns, kFrameRows);
    }
    CFont* pSelected = ZoCachedFont(m_eSelectedFont, m_eMonitorSize);
    CFont* pNormal = ZoCachedFont(m_eNormalFont, m_eMonitorSize);
    if (style & TCS_VERTICAL)
    {
        const bool right = (style & TCS_RIGHT) != 0;
        m_pSelectedFont = _createFontRotated(pSelected, right);
        m_pNormalFont = _createFontRotated(pNormal, right);
        m_bOwnsFonts = true;
    }
    else
    {
        m_pSelectedFont = pSelected;
        m_pNormalFont = pNormal;
    }
    if (m_pSelectedFont && m_pSelectedFont->GetSafeHandle())
        SendMessage(WM_SETFONT, (WPARAM)m_pSelectedFont->GetSafeHandle(), TRUE);
    // The control tracks hover itself.
    ModifyStyle(TCS_HOTTRACK, 0);
}

void CZoTabCtrl::_free()
{
    delete m_pTabSkin;
    m_pTabSkin = NULL;
    delete m_pFrameSkin;
    m_pFrameSkin = NULL;
    if (m_bOwnsFonts)
    {
        delete m_pSelectedFont;
        delete m_pNormalFont;
        m_bOwnsFonts = false;
    }
    m_pSelectedFont = NULL;
    m_pNormalFont = NULL;
}

LRESULT CZoTabCtrl::_askPlatform(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return const_cast<CZoTabCtrl*>(this)->DefWindowProc(message, wParam, lParam);
}

CRect CZoTabCtrl::_pageRect() const
{
    CRect page;
    GetClientRect(&page);
    _askPlatform(TCM_ADJUSTRECT, FALSE, (LPARAM)(RECT*)&page);
    return page;
}

void CZoTabCtrl::DrawClient(CDC& dc) { _drawTabControl(dc); }

void CZoTabCtrl::_drawTabControl(CDC& dc)
{
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, ZoSlotColor(kBackgroundSlot, m_eTheme));
    _drawFrameRect(dc);
    const DWORD style = GetStyle();
    const bool enabled = IsWindowEnabled() != FALSE;
    const int selected = (int)_askPlatform(TCM_GETCURSEL, 0, 0);
    const int count = (int)_askPlatform(TCM_GETITEMCOUNT, 0, 0);
    // In index order: the selected tab is not drawn last.
    for (int i = 0; i < count; ++i)
        _drawTabItem(dc, i, style, enabled, i == selected);
    if (selected >= 0 && selected < count && ShowsFocusCue())
        _drawFocusCue(dc, selected, style);
}

void CZoTabCtrl::_drawFocusCue(CDC& dc, int index, DWORD style)
{
    CRect item(0, 0, 0, 0);
    _askPlatform(TCM_GETITEMRECT, index, (LPARAM)(RECT*)&item);
    ZoDrawFocusCue(dc, ZoTabFocusRect(ZoTabItemRect(item, style)));
}

void CZoTabCtrl::_drawFrameRect(CDC& dc)
{
    if (!isLoaded(m_pFrameSkin))
        return;
    CRect pieces[9];
    ZoTabFramePieces(_pageRect(), m_pFrameSkin->GetUnitWidth(), m_pFrameSkin->GetUnitHeight(), pieces);
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 3; ++column)
            drawCell(*m_pFrameSkin, dc, pieces[row * 3 + column], CPoint(column, m_eTheme * kFrameRowsPerTheme + row));
}

void CZoTabCtrl::_drawTabItem(CDC& dc, int index, DWORD style, bool enabled, bool selected)
{
    CRect item(0, 0, 0, 0);
    _askPlatform(TCM_GETITEMRECT, index, (LPARAM)(RECT*)&item);
    const CRect tab = ZoTabItemRect(item, style);

    wchar_t text[kCaptionChars + kEllipsisRoom];
    ::ZeroMemory(text, sizeof(text));
    TCITEMW info;
    ::ZeroMemory(&info, sizeof(info));
    info.mask = TCIF_TEXT | TCIF_IMAGE | TCIF_STATE;
    info.pszText = text;
    info.cchTextMax = kCaptionChars;
    _askPlatform(TCM_GETITEMW, index, (LPARAM)&info);
    text[kCaptionChars - 1] = L'\0';

    const COLORREF color = ZoSlotColor(ZoTabTextSlot(enabled, selected, index == m_nHoverIndex), m_eTheme);
    CZoTextScope scope(dc, selected ? m_pSelectedFont : m_pNormalFont, color, TRANSPARENT);
    const E_ZoTabState state = ZoTabStateOf(enabled, index, m_nPressedIndex, m_nHoverIndex);
    const bool vertical = (style & TCS_VERTICAL) != 0;
    if (isLoaded(m_pTabSkin))
    {
        CRect pieces[3];
        const int cap = vertical ? m_pTabSkin->GetUnitHeight() : m_pTabSkin->GetUnitWidth();
        ZoTabPieces(tab, cap, vertical, pieces);
        for (int piece = 0; piece < kPiecesPerTab; ++piece)
            drawCell(*m_pTabSkin, dc, pieces[piece], ZoTabCell(vertical, state, m_eTheme, selected, piece));
    }
    CRect area = tab;
    area.DeflateRect(kCaptionInset, kCaptionInset);
    if (!vertical)
    {
        dc.DrawText(text, -1, &area, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
        return;
    }
    _drawRotatedCaption(dc, area, text, selected, (style & TCS_RIGHT) != 0);
}

void CZoTabCtrl::_drawRotatedCaption(CDC& dc, const CRect& area, wchar_t* text, bool selected, bool right)
{
    // Measured unrotated along the tab, so that the ellipsis shortens it to the tab's length;
    // `text` has room for the ellipsis.
    CRect measure(0, 0, area.Height(), area.Width());
    {
        CZoTextScope unrotated(dc, ZoCachedFont(selected ? m_eSelectedFont : m_eNormalFont, m_eMonitorSize),
                               dc.GetTextColor(), TRANSPARENT);
        dc.DrawTextEx(text, -1, &measure,
                      DT_CALCRECT | DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_END_ELLIPSIS | DT_MODIFYSTRING,
                      NULL);
    }
    const CPoint at = ZoTabRotatedTextOrigin(area, measure.Height(), right);
    const UINT oldAlign = dc.SetTextAlign(TA_CENTER);
    dc.TextOut(at.x, at.y, text, lstrlenW(text));
    dc.SetTextAlign(oldAlign);
}

void CZoTabCtrl::_invalidateNoFlickering()
{
    if (_isButtons())
    {
        Invalidate(FALSE);
        return;
    }
    CRect client;
    GetClientRect(&client);
    const CRect page = _pageRect();
    CRgn outside;
    CRgn pageRegion;
    outside.CreateRectRgnIndirect(&client);
    pageRegion.CreateRectRgnIndirect(&page);
    outside.CombineRgn(&outside, &pageRegion, RGN_DIFF);
    InvalidateRgn(&outside, FALSE);
}

// The platform's control goes on with its own data after telling the parent of a click or a
// key, and a parent that destroyed it meanwhile leaves it reading freed memory (Wine's asserts
// or faults). Choices by the user are therefore made here, and nothing follows a notification
// that destroyed the control.
void CZoTabCtrl::OnLButtonDown(UINT nFlags, CPoint point)
{
    const DWORD style = GetStyle();
    TCHITTESTINFO hit = {{point.x, point.y}, 0};
    const int item = HitTest(&hit);
    const bool multiSelecting =
        (style & (TCS_BUTTONS | TCS_MULTISELECT)) == (TCS_BUTTONS | TCS_MULTISELECT) && (nFlags & MK_CONTROL);
    if (item < 0 || item == GetCurSel() || multiSelecting)
    {
        CTabCtrl::OnLButtonDown(nFlags, point);
        return;
    }
    const HWND self = m_hWnd;
    // A tip showing goes away on the press, as the platform's handler would tell it.
    if (const HWND tips = reinterpret_cast<HWND>(::SendMessageW(self, TCM_GETTOOLTIPS, 0, 0)))
    {
        MSG press = {self, WM_LBUTTONDOWN, nFlags, MAKELPARAM(point.x, point.y), 0, {0, 0}};
        ::SendMessageW(tips, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&press));
    }
    if (!(style & TCS_FOCUSNEVER))
        ::SetFocus(self);
    if (::IsWindow(self))
        _selectByUser(item);
}

void CZoTabCtrl::OnKeyDown(UINT nChar, UINT /*nRepCnt*/, UINT nFlags)
{
    NMTCKEYDOWN key = {};
    key.wVKey = static_cast<WORD>(nChar);
    key.flags = MAKELONG(1, nFlags); // the key message's lParam: a repeat of one and its flags
    bool alive = true;
    _notifyParent(key.hdr, TCN_KEYDOWN, alive);
    if (!alive || (nChar != VK_LEFT && nChar != VK_RIGHT))
        return;
    const int item = GetCurFocus() + (nChar == VK_LEFT ? -1 : 1);
    if (item >= 0 && item < GetItemCount())
        _selectByUser(item);
}

void CZoTabCtrl::_selectByUser(int item)
{
    NMHDR header = {};
    bool alive = true;
    if (_notifyParent(header, TCN_SELCHANGING, alive) || !alive)
        return;
    SetCurSel(item);
    _notifyParent(header, TCN_SELCHANGE, alive);
}

LRESULT CZoTabCtrl::_notifyParent(NMHDR& header, UINT code, bool& alive)
{
    const HWND self = m_hWnd;
    header.hwndFrom = self;
    header.idFrom = static_cast<UINT_PTR>(::GetDlgCtrlID(self));
    header.code = code;
    const LRESULT answer = ::SendMessageW(::GetParent(self), WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
    alive = ::IsWindow(self) != FALSE;
    return answer;
}

void CZoTabCtrl::OnMouseMove(UINT nFlags, CPoint point)
{
    TCHITTESTINFO hit;
    hit.pt = point;
    hit.flags = 0;
    const int hover = HitTest(&hit);
    if (hover != m_nHoverIndex)
    {
        m_nHoverIndex = hover;
        _invalidateNoFlickering();
    }
    if (hover >= 0)
        ZoTrackMouseLeave(m_hWnd);
    CTabCtrl::OnMouseMove(nFlags, point);
}

void CZoTabCtrl::OnMouseLeave()
{
    if (m_nHoverIndex < 0)
        return;
    m_nHoverIndex = -1;
    _invalidateNoFlickering();
}

} // namespace ZoControls
