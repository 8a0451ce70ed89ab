#include <afxwin.h>
#include <afxcmn.h>
#include <commctrl.h>

#include "ZoButton.h"
#include "ZoControlTheme.h"
#include "ZoWindowHelpers.h"
#include "core/ZoThemeManager.h"
#include "images/ZoResourceImage.h"
#include "images/ZoResourcePNG.h"

namespace ZoControls {

namespace {

const UINT kCheckStripId = 808;
const int kCheckStripColumns = 4;
const int kCheckStripRows = 5;
const int kSkinColumns = 12;
const int kSkinRows = 3;
const int kCheckTextGap = 3;

const int kSlotCheckBack = 0;
const int kSlotCheckText = 9;
const int kSlotFirstFace = 13;
const int kSlotFirstDarkFace = 23;
const int kSlotPushText = 34;
const int kSlotGroupBack = 48;
const int kSlotGroupFrame = 49;
const int kSlotGroupText = 50;

// Colour slots of the states 0-3: faces skip the group's fourth slot.
const int kFaceSlots[BS_ZO_COUNT] = {13, 14, 15, 17};
const int kDarkFaceSlots[BS_ZO_COUNT] = {23, 24, 25, 27};
const int kLineSlots[BS_ZO_COUNT] = {18, 19, 20, 22};

const DWORD kLeftBit = 0x100;
const DWORD kRightBit = 0x200;
const DWORD kTopBit = 0x400;
const DWORD kBottomBit = 0x800;
const DWORD kHorzBits = kLeftBit | kRightBit;
const DWORD kVertBits = kTopBit | kBottomBit;

const COLORREF kMagenta = RGB(255, 0, 255);
const wchar_t kSampleText[] = L"Hy";
const int kFiveStateRows = 5;

const wchar_t* const kPushResourceSuffix[ZoTheme_Count] = {L"_NORMAL", L"_NORMAL", L"_NORMAL"};

bool IsValidState(int state)
{
    return state >= BS_ZO_NORMAL && state < BS_ZO_COUNT;
}

bool IsValidLine(int line)
{
    return line >= LINE_LEFT && line < LINE_COUNT;
}

int CentredStart(int low, int high, int extent)
{
    return (low + high) / 2 - extent / 2;
}

} // namespace

// ---------------------------------------------------------------------------------------------
// Rules

E_ZoButtonStates ZoPushButtonState(bool enabled, UINT buttonState, bool hovering)
{
    if (!enabled)
        return BS_ZO_DISABLED;
    if (buttonState & BST_PUSHED)
        return BS_ZO_PRESSED;
    if ((buttonState & 3) == BST_CHECKED)
        return BS_ZO_PRESSED;
    return hovering ? BS_ZO_HOT : BS_ZO_NORMAL;
}

int ZoCheckCellRow(bool isCheckbox, UINT buttonState)
{
    // Rows 0-2: unchecked, checked, indeterminate box; rows 3-4: unchecked, checked radio.
    return (isCheckbox ? 0 : 3) + static_cast<int>(buttonState & 3);
}

int ZoCheckCellColumn(bool enabled, UINT buttonState, bool hovering)
{
    if (!enabled)
        return BS_ZO_DISABLED;
    if (buttonState & BST_PUSHED)
        return BS_ZO_PRESSED;
    return hovering ? BS_ZO_HOT : BS_ZO_NORMAL;
}

CPoint ZoCheckCellOrigin(const CRect& client, int unit, DWORD style)
{
    const int x = (style & BS_LEFTTEXT) ? client.right - unit : client.left;
    int y;
    switch (style & kVertBits) {
    case BS_BOTTOM:
        y = client.bottom - unit;
        break;
    case BS_TOP:
        y = client.top;
        break;
    default:
        y = client.top + (client.Height() - unit) / 2;
        break;
    }
    return CPoint(x, y);
}

UINT ZoPushButtonTextFormat(DWORD style)
{
    UINT format = DT_SINGLELINE | DT_END_ELLIPSIS;
    if (style & kLeftBit)
        format |= DT_LEFT;
    else if (style & kRightBit)
        format |= DT_RIGHT;
    else
        format |= DT_CENTER;
    if (style & kTopBit)
        format |= DT_TOP;
    else if (style & kBottomBit)
        format |= DT_BOTTOM;
    else
        format |= DT_VCENTER;
    return format;
}

UINT ZoCaptionTextFormat(DWORD style, bool centreByDefault)
{
    UINT format = (style & BS_MULTILINE) ? 0 : DT_SINGLELINE;
    switch (style & kHorzBits) {
    case kRightBit:
        format |= DT_RIGHT;
        break;
    case kLeftBit:
        format |= DT_LEFT;
        break;
    case kHorzBits:
        format |= DT_CENTER;
        break;
    default:
        format |= centreByDefault ? DT_CENTER : DT_LEFT;
        break;
    }
    switch (style & kVertBits) {
    case kBottomBit:
        format |= DT_BOTTOM;
        break;
    case kTopBit:
        format |= DT_TOP;
        break;
    default:
        format |= DT_VCENTER;
        break;
    }
    return format;
}

CRect ZoPlaceMeasuredText(const CRect& rect, const CSize& measured, UINT format)
{
    int left = rect.left;
    if (format & DT_CENTER)
        left = CentredStart(rect.left, rect.right, measured.cx);
    else if (format & DT_RIGHT)
        left = rect.right - measured.cx;
    int top = rect.top;
    if (format & DT_BOTTOM)
        top = rect.bottom - measured.cy;
    else if (format & DT_VCENTER)
        top = CentredStart(rect.top, rect.bottom, measured.cy);
    return CRect(left, top, left + measured.cx, top + measured.cy);
}

int ZoImageCellColumn(int column, int state)
{
    return column == -1 ? state : column;
}

int ZoImageCellRow(int row, int state, bool rowThreeAllowed)
{
    const int cell = row == -1 ? state : row;
    // The five-row state strips keep row 3 for another use.
    return (cell == 3 && !rowThreeAllowed) ? 4 : cell;
}

ZoImageTextLayout ZoLayoutImageAndText(const CRect& textRect, const CSize& image, bool hasText, int textWidth,
                                       int lineHeight, DWORD style, bool centerAligned, int textGap, bool pressed)
{
    ZoImageTextLayout layout;
    CRect t = textRect;
    const int w = image.cx;
    const int h = image.cy;
    if (!hasText) {
        // A lone image sits in the middle and does not move when pressed.
        layout.image = CPoint(CentredStart(t.left, t.right, w), CentredStart(t.top, t.bottom, h));
        layout.text = t;
        return layout;
    }
    int x = t.left;
    int y = t.top;
    if (w > 0 || h > 0) {
        const int d = (t.Height() - lineHeight - h) / 3;
        t.top += d;
        t.bottom -= d;
        if (style & kTopBit) {
            x = CentredStart(t.left, t.right, w);
            y = t.bottom - h;
            t.bottom = y - textGap;
        } else if (style & kBottomBit) {
            x = CentredStart(t.left, t.right, w);
            y = t.top;
            t.top = t.top + h + textGap;
        } else {
            y = CentredStart(t.top, t.bottom, h);
            if (centerAligned) {
                int gap = static_cast<int>(textWidth * 0.05 + 0.5);
                if (gap < 1)
                    gap = 1;
                x = t.left + (t.Width() - textWidth - gap - w) / 2;
                t.left = x + w + gap + textGap;
            } else {
                x = t.left;
                t.left = x + w + textGap;
            }
        }
    }
    if (pressed) {
        x += 1;
        y += 1;
        t.OffsetRect(1, 1);
    }
    layout.image = CPoint(x, y);
    layout.text = t;
    return layout;
}

CRect ZoGroupBoxFrame(const CRect& client, int lineHeight)
{
    return CRect(client.left, client.top + lineHeight / 2 + 2, client.right, client.bottom);
}

int ZoGroupBoxIndent(float zoom)
{
    return static_cast<int>(zoom * 7 + 0.5);
}

CString ZoPushButtonResourceId(bool /*isDefault*/, E_ZoTheme theme)
{
    // Default and plain push buttons share one skin on purpose.
    const int index = (theme >= ZoTheme_Default && theme < ZoTheme_Count) ? theme : ZoTheme_Default;
    return CString(L"BMP_ZO_BTNDEFPUSH") + kPushResourceSuffix[index];
}

// ---------------------------------------------------------------------------------------------
// CZoButton: construction and setters

IMPLEMENT_DYNAMIC(CZoButton, CButton)

BEGIN_MESSAGE_MAP(CZoButton, CButton)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_MOUSEMOVE()
    ON_MESSAGE(WM_MOUSELEAVE, &CZoButton::OnMouseLeave)
    ON_WM_LBUTTONDOWN()
    ZO_ON_MENUXP_MESSAGES()
END_MESSAGE_MAP()

ZO_IMPLEMENT_MENUXP_FORWARDING(CZoButton, CButton)

CZoButton::CZoButton()
    : m_bAllowRowThree(false), m_eTheme(ZoTheme_Default), m_eFont(ZoThemeFont_1),
      m_eMonitorSize(ZoMonitorSize_Unknown), m_bHovering(false), m_bResourcesLoaded(false), m_pBackground(NULL),
      m_bCenterAlignedImage(false), m_bFontGiven(false), m_nTextGap(0), m_pImage(NULL), m_bImageIsPNG(false),
      m_nImageColumn(-1), m_nImageRow(-1), m_pToolTip(NULL)
{
    _clearColorTables();
}

CZoButton::CZoButton(E_ZoThemeFont font)
    : m_bAllowRowThree(false), m_eTheme(ZoTheme_Default), m_eFont(font), m_eMonitorSize(ZoMonitorSize_Unknown),
      m_bHovering(false), m_bResourcesLoaded(false), m_pBackground(NULL), m_bCenterAlignedImage(false),
      m_bFontGiven(true), m_nTextGap(0), m_pImage(NULL), m_bImageIsPNG(false), m_nImageColumn(-1),
      m_nImageRow(-1), m_pToolTip(NULL)
{
    _clearColorTables();
}

CZoButton::~CZoButton()
{
    delete m_pToolTip;
    m_pToolTip = NULL;
    _deleteImages();
}

void CZoButton::_clearColorTables()
{
    // Filled by Init; until then everything draws black without lines.
    for (int s = 0; s < BS_ZO_COUNT; ++s) {
        m_aTextColors[s] = RGB(0, 0, 0);
        m_aFaceColors[s] = RGB(0, 0, 0);
        for (int l = 0; l < LINE_COUNT; ++l)
            m_aLineColors[s][l] = ZO_LINE_NOT_DRAWN;
    }
}

void CZoButton::_redrawIf(bool redraw)
{
    if (redraw && ::IsWindow(m_hWnd))
        Invalidate(TRUE);
}

void CZoButton::_deleteImages()
{
    delete m_pImage;
    m_pImage = NULL;
    m_bImageIsPNG = false;
    delete m_pBackground;
    m_pBackground = NULL;
}

void CZoButton::_loadBitmapImage(const wchar_t* name, int cols, int rows, int col, int row)
{
    delete m_pImage;
    m_pImage = NULL;
    m_bImageIsPNG = false;
    m_strImageName = name ? name : L"";
    m_nImageColumn = -1;
    m_nImageRow = -1;
    if (m_strImageName.IsEmpty())
        return;
    CZoResourceBMPImage* pImage = new CZoResourceBMPImage();
    if (!pImage->LoadResourceImage(m_strImageName, m_eMonitorSize, cols, rows)) {
        delete pImage;
        return;
    }
    m_pImage = pImage;
    m_nImageColumn = col;
    m_nImageRow = row;
}

bool CZoButton::_loadPNGImage(UINT id, int cols, int rows, int col, int row)
{
    delete m_pImage;
    m_pImage = NULL;
    m_strImageName.Empty();
    CZoResourcePNGImage* pImage = new CZoResourcePNGImage();
    m_pImage = pImage;
    m_bImageIsPNG = true;
    if (!pImage->LoadResourceImage(id, cols, rows)) {
        m_nImageColumn = -1;
        m_nImageRow = -1;
        return false;
    }
    m_nImageColumn = col;
    m_nImageRow = row;
    return true;
}

void CZoButton::_setThemePNGBackgrounds(bool dark, int rows)
{
    if (rows != kFiveStateRows)
        return;
    COLORREF colors[kFiveStateRows];
    const int first = dark ? kSlotFirstDarkFace : kSlotFirstFace;
    for (int i = 0; i < kFiveStateRows; ++i)
        colors[i] = ZoSlotColor(first + i, m_eTheme);
    _setPNGBackgrounds(colors, kFiveStateRows);
}

void CZoButton::_setPNGBackgrounds(const COLORREF* colors, int count)
{
    if (m_bImageIsPNG && m_pImage && m_pImage->IsLoaded() && colors && count > 0)
        static_cast<CZoResourcePNGImage*>(m_pImage)->SetBackgroundColor(colors, count);
}

void CZoButton::SetZoBitmap(const wchar_t* name, bool redraw, int cols, int rows, int col, int row)
{
    _loadBitmapImage(name, cols, rows, col, row);
    _redrawIf(redraw);
}

void CZoButton::SetZoBitmaps(const wchar_t* name, bool redraw, bool statesAcross, int cols, int rows, int index)
{
    _loadBitmapImage(name, cols, rows, statesAcross ? -1 : index, statesAcross ? index : -1);
    _redrawIf(redraw);
}

void CZoButton::SetZoPNGImage(UINT id, bool dark, bool redraw, int cols, int rows, int col, int row)
{
    if (_loadPNGImage(id, cols, rows, col, row))
        _setThemePNGBackgrounds(dark, rows);
    _redrawIf(redraw);
}

void CZoButton::SetZoPNGImage(UINT id, COLORREF back, bool redraw, int cols, int rows, int col, int row)
{
    if (_loadPNGImage(id, cols, rows, col, row))
        SetZoPNGImageBackgroundColor(back);
    _redrawIf(redraw);
}

void CZoButton::SetZoPNGImages(UINT id, bool dark, bool redraw, bool statesAcross, int cols, int rows, int index)
{
    if (_loadPNGImage(id, cols, rows, statesAcross ? -1 : index, statesAcross ? index : -1))
        _setThemePNGBackgrounds(dark, rows);
    _redrawIf(redraw);
}

void CZoButton::SetZoPNGImages(UINT id, COLORREF back, bool redraw, bool statesAcross, int cols, int rows,
                               int index)
{
    if (_loadPNGImage(id, cols, rows, statesAcross ? -1 : index, statesAcross ? index : -1))
        SetZoPNGImageBackgroundColor(back);
    _redrawIf(redraw);
}

void CZoButton::SetZoPNGImages(UINT id, const COLORREF* backs, bool redraw, bool statesAcross, int cols, int rows,
                               int index)
{
    if (_loadPNGImage(id, cols, rows, statesAcross ? -1 : index, statesAcross ? index : -1))
        SetZoPNGImageBackgroundColor(backs, rows);
    _redrawIf(redraw);
}

void CZoButton::SetZoPNGImageBackgroundColor()
{
    SetZoPNGImageBackgroundColor(m_aFaceColors, BS_ZO_COUNT);
}

void CZoButton::SetZoPNGImageBackgroundColor(const COLORREF* colors, int count)
{
    _setPNGBackgrounds(colors, count);
}

void CZoButton::SetZoPNGImageBackgroundColor(COLORREF color)
{
    if (m_bImageIsPNG && m_pImage && m_pImage->IsLoaded())
        static_cast<CZoResourcePNGImage*>(m_pImage)->SetBackgroundColor(color);
}

void CZoButton::SetToolTipText(const wchar_t* text)
{
    m_strToolTip = text ? text : L"";
    if (!::IsWindow(m_hWnd))
        return;
    if (m_strToolTip.IsEmpty()) {
        if (m_pToolTip) {
            m_pToolTip->DestroyWindow();
            delete m_pToolTip;
            m_pToolTip = NULL;
        }
        return;
    }
    _createOrUpdateToolTip();
}

void CZoButton::_createOrUpdateToolTip()
{
    if (m_pToolTip) {
        m_pToolTip->UpdateTipText(m_strToolTip, this);
        return;
    }
    m_pToolTip = new CToolTipCtrl();
    if (!m_pToolTip->Create(this, WS_POPUP | TTS_ALWAYSTIP)) {
        delete m_pToolTip;
        m_pToolTip = NULL;
        return;
    }
    m_pToolTip->AddTool(this, m_strToolTip);
    m_pToolTip->Activate(TRUE);
}

CToolTipCtrl* CZoButton::GetToolTipCtrl() const
{
    return m_pToolTip;
}

void CZoButton::SetFontIndex(E_ZoThemeFont font, bool redraw)
{
    m_eFont = font;
    _redrawIf(redraw);
}

void CZoButton::SetCenterAlignedImage(bool centered, bool redraw)
{
    m_bCenterAlignedImage = centered;
    _redrawIf(redraw);
}

void CZoButton::SetStartTextPosFromImage(int gap)
{
    m_nTextGap = gap;
}

void CZoButton::SetFaceColor(COLORREF color, bool redraw)
{
    for (int s = 0; s < BS_ZO_COUNT; ++s)
        m_aFaceColors[s] = color;
    _redrawIf(redraw);
}

void CZoButton::SetFaceColor(E_ZoButtonStates state, COLORREF color, bool redraw)
{
    if (IsValidState(state))
        m_aFaceColors[state] = color;
    _redrawIf(redraw);
}

void CZoButton::SetFaceColors(const COLORREF colors[4], bool redraw)
{
    if (colors)
        for (int s = 0; s < BS_ZO_COUNT; ++s)
            m_aFaceColors[s] = colors[s];
    _redrawIf(redraw);
}

void CZoButton::SetTextColor(COLORREF color, bool redraw)
{
    for (int s = 0; s < BS_ZO_COUNT; ++s)
        m_aTextColors[s] = color;
    _redrawIf(redraw);
}

void CZoButton::SetTextColor(E_ZoButtonStates state, COLORREF color, bool redraw)
{
    if (IsValidState(state))
        m_aTextColors[state] = color;
    _redrawIf(redraw);
}

void CZoButton::SetTextColors(const COLORREF colors[4], bool redraw)
{
    if (colors)
        for (int s = 0; s < BS_ZO_COUNT; ++s)
            m_aTextColors[s] = colors[s];
    _redrawIf(redraw);
}

void CZoButton::Set4LineColors(COLORREF color, bool redraw)
{
    SetLTRBLineColors(color, color, redraw);
}

void CZoButton::Set4LineColors(E_ZoButtonStates state, COLORREF color, bool redraw)
{
    SetLTRBLineColors(state, color, color, redraw);
}

void CZoButton::Set4LineColors(const COLORREF colors[4], bool redraw)
{
    SetLTRBLineColors(colors, colors, redraw);
}

void CZoButton::SetLTRBLineColors(COLORREF lt, COLORREF rb, bool redraw)
{
    for (int s = 0; s < BS_ZO_COUNT; ++s)
        SetLTRBLineColors(static_cast<E_ZoButtonStates>(s), lt, rb, false);
    _redrawIf(redraw);
}

void CZoButton::SetLTRBLineColors(E_ZoButtonStates state, COLORREF lt, COLORREF rb, bool redraw)
{
    if (IsValidState(state)) {
        m_aLineColors[state][LINE_LEFT] = lt;
        m_aLineColors[state][LINE_TOP] = lt;
        m_aLineColors[state][LINE_RIGHT] = rb;
        m_aLineColors[state][LINE_BOTTOM] = rb;
    }
    _redrawIf(redraw);
}

void CZoButton::SetLTRBLineColors(const COLORREF lt[4], const COLORREF rb[4], bool redraw)
{
    if (lt && rb)
        for (int s = 0; s < BS_ZO_COUNT; ++s)
            SetLTRBLineColors(static_cast<E_ZoButtonStates>(s), lt[s], rb[s], false);
    _redrawIf(redraw);
}

void CZoButton::SetLineColor(E_ZoFlatButtonLines line, COLORREF color, bool redraw)
{
    for (int s = 0; s < BS_ZO_COUNT; ++s)
        SetLineColor(line, static_cast<E_ZoButtonStates>(s), color, false);
    _redrawIf(redraw);
}

void CZoButton::SetLineColor(E_ZoFlatButtonLines line, E_ZoButtonStates state, COLORREF color, bool redraw)
{
    if (IsValidLine(line) && IsValidState(state))
        m_aLineColors[state][line] = color;
    _redrawIf(redraw);
}

void CZoButton::SetLineColor(E_ZoFlatButtonLines line, const COLORREF colors[4], bool redraw)
{
    if (colors)
        for (int s = 0; s < BS_ZO_COUNT; ++s)
            SetLineColor(line, static_cast<E_ZoButtonStates>(s), colors[s], false);
    _redrawIf(redraw);
}

void CZoButton::SetDefaultBrightColor(bool faces, bool lines)
{
    COLORREF colors[BS_ZO_COUNT];
    if (faces) {
        for (int s = 0; s < BS_ZO_COUNT; ++s)
            colors[s] = ZoSlotColor(kFaceSlots[s], m_eTheme);
        SetFaceColors(colors, true);
    }
    if (lines) {
        for (int s = 0; s < BS_ZO_COUNT; ++s)
            colors[s] = ZoSlotColor(kLineSlots[s], m_eTheme);
        Set4LineColors(colors, true);
    }
}

void CZoButton::SetDefaultDarkColor(bool faces, bool lines)
{
    if (faces) {
        COLORREF colors[BS_ZO_COUNT];
        for (int s = 0; s < BS_ZO_COUNT; ++s)
            colors[s] = ZoSlotColor(kDarkFaceSlots[s], m_eTheme);
        SetFaceColors(colors, true);
    }
    // The lines are the bright ones on purpose.
    SetDefaultBrightColor(false, lines);
}

COLORREF CZoButton::GetFaceColor(E_ZoButtonStates state) const
{
    return IsValidState(state) ? m_aFaceColors[state] : CLR_INVALID;
}

COLORREF CZoButton::GetTextColor(E_ZoButtonStates state) const
{
    return IsValidState(state) ? m_aTextColors[state] : CLR_INVALID;
}

COLORREF CZoButton::GetLineColor(E_ZoFlatButtonLines line, E_ZoButtonStates state) const
{
    return (IsValidLine(line) && IsValidState(state)) ? m_aLineColors[state][line] : CLR_INVALID;
}

bool CZoButton::IsPushButton(DWORD type)
{
    return type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON;
}

bool CZoButton::IsCheckbox(DWORD type)
{
    return type == BS_CHECKBOX || type == BS_AUTOCHECKBOX || type == BS_3STATE || type == BS_AUTO3STATE;
}

bool CZoButton::IsRadioButton(DWORD type)
{
    return type == BS_RADIOBUTTON || type == BS_AUTORADIOBUTTON;
}

bool CZoButton::IsHoveringNow() const
{
    return m_bHovering;
}

E_ZoTheme CZoButton::GetTheme() const
{
    return m_eTheme;
}

E_ZoMonitorSize CZoButton::GetMonitorSize() const
{
    return m_eMonitorSize;
}

DWORD CZoButton::GetButtonType() const
{
    return ::IsWindow(m_hWnd) ? (GetStyle() & BS_TYPEMASK) : 0;
}

// ---------------------------------------------------------------------------------------------
// CZoButton: life cycle

void CZoButton::Init()
{
    m_eTheme = ZoGetCurrentThemeIndex(this);
    m_eMonitorSize = ZoGetCurrentMonitorSize(this, false);
    ZoMenuOptIn(this);
    LoadResource();

    const DWORD type = GetButtonType();
    if (IsPushButton(type) && !m_bFontGiven)
        m_eFont = ZoThemeFont_9;
    if (type == BS_GROUPBOX) {
        if (!m_bFontGiven)
            m_eFont = ZoThemeFont_9;
        ModifyStyle(0, WS_CLIPSIBLINGS);
    }
    EnableToolTips(!m_strToolTip.IsEmpty());

    int firstTextSlot = -1;
    if (IsCheckbox(type) || IsRadioButton(type))
        firstTextSlot = kSlotCheckText;
    else if (IsPushButton(type))
        firstTextSlot = kSlotPushText;
    for (int s = 0; s < BS_ZO_COUNT; ++s) {
        if (firstTextSlot >= 0)
            m_aTextColors[s] = ZoSlotColor(firstTextSlot + s, m_eTheme);
        else if (type == BS_GROUPBOX)
            m_aTextColors[s] = ZoSlotColor(kSlotGroupText, m_eTheme);
    }
    SetDefaultBrightColor(true, true);
}

void CZoButton::LoadResource()
{
    if (m_bResourcesLoaded)
        return;
    m_bResourcesLoaded = true;
    const DWORD style = GetStyle();
    const DWORD type = style & BS_TYPEMASK;
    if ((IsCheckbox(type) || IsRadioButton(type)) && !(style & BS_PUSHLIKE)) {
        // The same 15 x 15 cells on every monitor size.
        delete m_pImage;
        CZoResourcePNGImage* pStrip = new CZoResourcePNGImage();
        m_pImage = pStrip;
        m_bImageIsPNG = true;
        if (pStrip->LoadResourceImage(kCheckStripId, kCheckStripColumns, kCheckStripRows))
            pStrip->SetBackgroundColor(ZoSlotColor(kSlotCheckBack, m_eTheme));
        return;
    }
    delete m_pBackground;
    m_pBackground = new CZoResourceBMPImage();
    if (!m_pBackground->LoadResourceImage(GetBackgroundResourceId(), m_eMonitorSize, kSkinColumns, kSkinRows)) {
        delete m_pBackground;
        m_pBackground = NULL;
    }
}

CString CZoButton::GetBackgroundResourceId()
{
    return ZoPushButtonResourceId(GetButtonType() == BS_DEFPUSHBUTTON, m_eTheme);
}

void CZoButton::PreSubclassWindow()
{
    CButton::PreSubclassWindow();
    Init();
}

int CZoButton::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CButton::OnCreate(lpCreateStruct) == -1)
        return -1;
    Init();
    return 0;
}

void CZoButton::OnDestroy()
{
    _deleteImages();
    m_bResourcesLoaded = false;
    CButton::OnDestroy();
}

BOOL CZoButton::PreTranslateMessage(MSG* pMsg)
{
    if (m_pToolTip && m_pToolTip->GetSafeHwnd() &&
        (pMsg->message == WM_LBUTTONDOWN || pMsg->message == WM_LBUTTONUP || pMsg->message == WM_MOUSEMOVE))
        m_pToolTip->RelayEvent(pMsg);
    return CButton::PreTranslateMessage(pMsg);
}

LRESULT CZoButton::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    // The system's focus-cue drawing would flash over the skin: hold redrawing around it.
    const bool holdRedraw = message == WM_UPDATEUISTATE && ::IsWindow(m_hWnd) && ::IsWindowVisible(m_hWnd);
    if (holdRedraw)
        ::SendMessage(m_hWnd, WM_SETREDRAW, FALSE, 0);
    const LRESULT result = CZoPaintedWnd<CButton>::WindowProc(message, wParam, lParam);
    if (message == WM_SETTEXT || message == WM_ENABLE || message == WM_UPDATEUISTATE)
        RepaintNow();
    if (holdRedraw && ::IsWindow(m_hWnd))
        ::SendMessage(m_hWnd, WM_SETREDRAW, TRUE, 0);
    return result;
}

// ---------------------------------------------------------------------------------------------
// CZoButton: input

void CZoButton::OnMouseMove(UINT /*nFlags*/, CPoint /*point*/)
{
    if (IsWindowEnabled() && GetButtonType() != BS_GROUPBOX) {
        const bool wasHovering = m_bHovering;
        m_bHovering = true;
        if (!wasHovering)
            RepaintNow();
        ZoTrackMouseLeave(m_hWnd);
    }
    Default();
}

LRESULT CZoButton::OnMouseLeave(WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    const bool wasHovering = m_bHovering;
    m_bHovering = false;
    if (wasHovering)
        RepaintNow();
    return 0;
}

void CZoButton::OnLButtonDown(UINT /*nFlags*/, CPoint /*point*/)
{
    Default();
    if (::IsWindow(m_hWnd))
        UpdateWindow();
}

// ---------------------------------------------------------------------------------------------
// CZoButton: painting

E_ZoPaintMode CZoButton::GetPaintMode()
{
    const DWORD type = GetButtonType();
    if (type == BS_GROUPBOX)
        return ZoPaint_Direct;
    if (IsPushButton(type) || IsCheckbox(type) || IsRadioButton(type))
        return ZoPaint_Offscreen;
    return ZoPaint_Platform;
}

void CZoButton::DrawClient(CDC& dc)
{
    const DWORD style = GetStyle();
    const DWORD type = style & BS_TYPEMASK;
    if (type == BS_GROUPBOX)
        _drawGroupBox(dc);
    else if (!(IsCheckbox(type) || IsRadioButton(type)) || (style & BS_PUSHLIKE))
        DrawPushButton(dc, IsCheckbox(type) || IsRadioButton(type));
    else
        _drawCheckboxRadio(dc, IsCheckbox(type));
}

CRect CZoButton::_textMarginRect(const CRect& rect)
{
    RECT margin = {0, 0, 0, 0};
    SendMessage(BCM_GETTEXTMARGIN, 0, reinterpret_cast<LPARAM>(&margin));
    return CRect(rect.left + margin.left, rect.top + margin.top, rect.right - margin.right,
                 rect.bottom - margin.bottom);
}

int CZoButton::_lineHeight(CDC& dc)
{
    return dc.GetTextExtent(kSampleText, 2).cy;
}

void CZoButton::DrawPushButton(CDC& dc, bool /*pushLike*/)
{
    CRect client;
    GetClientRect(&client);
    const bool enabled = IsWindowEnabled() != FALSE;
    const UINT buttonState = GetState();

    CRect content;
    if (m_pBackground && m_pBackground->IsLoaded()) {
        content = client;
        content.DeflateRect(m_pBackground->GetUnitWidth(), m_pBackground->GetUnitHeight());
    } else {
        content = _textMarginRect(client);
    }
    const E_ZoButtonStates state = ZoPushButtonState(enabled, buttonState, m_bHovering);
    DrawPushButtonBackground(dc, client, state);
    DrawPushButtonTextAndImage(dc, client, state);
    if (buttonState & BST_FOCUS) {
        CRect focus = content;
        focus.bottom -= 1;
        if (buttonState & BST_PUSHED)
            focus.OffsetRect(1, 1);
        DrawPushButtonFocusRect(dc, focus);
    }
}

void CZoButton::DrawPushButtonBackground(CDC& dc, const CRect& rect, E_ZoButtonStates state)
{
    if (!IsValidState(state))
        return;
    dc.FillSolidRect(rect, m_aFaceColors[state]);
    const POINT ends[LINE_COUNT][2] = {
        {{rect.left, rect.top}, {rect.left, rect.bottom - 1}},
        {{rect.left, rect.bottom - 1}, {rect.right - 1, rect.bottom - 1}},
        {{rect.right - 1, rect.bottom - 1}, {rect.right - 1, rect.top}},
        {{rect.right - 1, rect.top}, {rect.left, rect.top}},
    };
    // Drawn left, bottom, right, top.
    const E_ZoFlatButtonLines order[LINE_COUNT] = {LINE_LEFT, LINE_BOTTOM, LINE_RIGHT, LINE_TOP};
    for (int i = 0; i < LINE_COUNT; ++i) {
        const COLORREF color = m_aLineColors[state][order[i]];
        if (color == ZO_LINE_NOT_DRAWN)
            continue;
        CPen pen(PS_SOLID, 1, color);
        CPen* pOld = dc.SelectObject(&pen);
        dc.MoveTo(ends[i][0]);
        dc.LineTo(ends[i][1]);
        dc.SelectObject(pOld);
    }
}

CSize CZoButton::_imageSize() const
{
    if (!m_pImage || !m_pImage->IsLoaded() || (m_nImageColumn == -1 && m_nImageRow == -1))
        return CSize(0, 0);
    return CSize(m_pImage->GetUnitWidth(), m_pImage->GetUnitHeight());
}

void CZoButton::_drawImage(CDC& dc, int x, int y, int state)
{
    if (_imageSize() == CSize(0, 0))
        return;
    const int column = ZoImageCellColumn(m_nImageColumn, state);
    const int row = ZoImageCellRow(m_nImageRow, state, m_bAllowRowThree);
    m_pImage->DrawUnitImage(dc, x, y, column, row, kMagenta);
}

// The system button's own image: its image list, else its bitmap, else its icon. Returns the
// size (0 x 0 for none) and draws it at (x, y) unless `measureOnly`.
CSize CZoButton::_drawSystemImage(CDC* pDC, int x, int y, int state, bool measureOnly)
{
    BUTTON_IMAGELIST list;
    ::ZeroMemory(&list, sizeof(list));
    if (SendMessage(BCM_GETIMAGELIST, 0, reinterpret_cast<LPARAM>(&list)) && list.himl &&
        ImageList_GetImageCount(list.himl) > 0) {
        int cx = 0;
        int cy = 0;
        ImageList_GetIconSize(list.himl, &cx, &cy);
        const int count = ImageList_GetImageCount(list.himl);
        const int index = state < count - 1 ? state : count - 1;
        if (!measureOnly)
            ImageList_DrawEx(list.himl, index, pDC->GetSafeHdc(), x, y, 0, 0, CLR_NONE, CLR_DEFAULT, ILD_NORMAL);
        return CSize(cx, cy);
    }
    const HBITMAP hBitmap = reinterpret_cast<HBITMAP>(SendMessage(BM_GETIMAGE, IMAGE_BITMAP, 0));
    BITMAP bm;
    if (hBitmap && ::GetObject(hBitmap, sizeof(bm), &bm)) {
        if (!measureOnly) {
            CZoResourceBMPImage picture(hBitmap, false);
            picture.DrawImage(*pDC, x, y, 0, 0, bm.bmWidth, bm.bmHeight, kMagenta);
        }
        return CSize(bm.bmWidth, bm.bmHeight);
    }
    const HICON hIcon = reinterpret_cast<HICON>(SendMessage(BM_GETIMAGE, IMAGE_ICON, 0));
    ICONINFO info;
    if (hIcon && ::GetIconInfo(hIcon, &info)) {
        CSize size(0, 0);
        BITMAP colour;
        if (info.hbmColor && ::GetObject(info.hbmColor, sizeof(colour), &colour))
            size = CSize(colour.bmWidth, colour.bmHeight);
        if (info.hbmColor)
            ::DeleteObject(info.hbmColor);
        if (info.hbmMask)
            ::DeleteObject(info.hbmMask);
        if (!measureOnly)
            pDC->DrawIcon(x, y, hIcon);
        return size;
    }
    return CSize(0, 0);
}

void CZoButton::DrawPushButtonTextAndImage(CDC& dc, const CRect& rect, E_ZoButtonStates state)
{
    if (!IsValidState(state))
        return;
    CZoTextScope scope(dc, ZoCachedFont(m_eFont, m_eMonitorSize), m_aTextColors[state], TRANSPARENT);
    const CRect textRect = _textMarginRect(rect);
    CString text;
    GetWindowText(text);

    const bool systemImage = m_strImageName.IsEmpty() && !m_bImageIsPNG;
    const CSize image = systemImage ? _drawSystemImage(&dc, 0, 0, state, true) : _imageSize();
    const bool hasImage = image.cx > 0 || image.cy > 0;
    const int textWidth = text.IsEmpty() ? 0 : dc.GetTextExtent(text).cx;
    const ZoImageTextLayout layout =
        ZoLayoutImageAndText(textRect, image, !text.IsEmpty(), textWidth, _lineHeight(dc), GetStyle(),
                             m_bCenterAlignedImage, m_nTextGap, state == BS_ZO_PRESSED);
    if (hasImage) {
        if (systemImage)
            _drawSystemImage(&dc, layout.image.x, layout.image.y, state, false);
        else
            _drawImage(dc, layout.image.x, layout.image.y, state);
    }
    if (!text.IsEmpty()) {
        CRect target = layout.text;
        dc.DrawText(text, -1, &target, ZoPushButtonTextFormat(GetStyle()));
    }
}

void CZoButton::DrawPushButtonFocusRect(CDC& /*dc*/, const CRect& /*rect*/)
{
    // The plain button shows no focus cue.
}

void CZoButton::DrawCheckBoxBackground(CDC& dc, const CRect& rect)
{
    dc.FillSolidRect(rect, ZoSlotColor(kSlotCheckBack, m_eTheme));
}

void CZoButton::DrawCheckBoxFocusRect(CDC& dc, const CRect& rect)
{
    dc.DrawFocusRect(rect);
}

void CZoButton::_drawCheckboxRadio(CDC& dc, bool isCheckbox)
{
    CRect client;
    GetClientRect(&client);
    const DWORD style = GetStyle();
    const bool boxLeft = !(style & BS_LEFTTEXT);
    const UINT buttonState = GetState();

    DrawCheckBoxBackground(dc, client);
    const int column = ZoCheckCellColumn(IsWindowEnabled() != FALSE, buttonState, m_bHovering);
    int unit = 0;
    if (m_pImage && m_pImage->IsLoaded()) {
        unit = m_pImage->GetUnitWidth();
        const CPoint at = ZoCheckCellOrigin(client, unit, style);
        m_pImage->DrawUnitImage(dc, at.x, at.y, column, ZoCheckCellRow(isCheckbox, buttonState), kMagenta);
    }
    CRect textRect = client;
    if (boxLeft)
        textRect.left = client.left + kCheckTextGap + unit;
    else
        textRect.right = client.right - kCheckTextGap - unit;
    textRect.bottom -= 2;
    CString text;
    GetWindowText(text);
    CRect drawn = _drawText(dc, textRect, text, kSlotCheckText + column, false);
    if (buttonState & BST_FOCUS) {
        drawn.InflateRect(1, 0);
        DrawCheckBoxFocusRect(dc, drawn);
    }
}

CRect CZoButton::_drawText(CDC& dc, const CRect& rect, const CString& text, int colorSlot, bool centreByDefault)
{
    CZoTextScope scope(dc, ZoCachedFont(m_eFont, m_eMonitorSize), ZoSlotColor(colorSlot, m_eTheme), TRANSPARENT);
    const UINT format = ZoCaptionTextFormat(GetStyle(), centreByDefault);
    CRect measured = rect;
    dc.DrawText(text, -1, &measured, (format & ~(DT_CENTER | DT_RIGHT | DT_VCENTER | DT_BOTTOM)) | DT_CALCRECT);
    CSize size = measured.Size();
    if (format & DT_SINGLELINE)
        size.cy = _lineHeight(dc);
    CRect box = ZoPlaceMeasuredText(rect, size, format);
    dc.DrawText(text, -1, &box, format);
    return box;
}

void CZoButton::_drawGroupBox(CDC& dc)
{
    CZoTextScope scope(dc, ZoCachedFont(m_eFont, m_eMonitorSize), ZoSlotColor(kSlotGroupText, m_eTheme), OPAQUE);
    const int lineHeight = _lineHeight(dc);
    CRect r;
    GetClientRect(&r);
    r.right -= 1;
    r.bottom -= 1;
    const COLORREF back = ZoSlotColor(kSlotGroupBack, m_eTheme);
    const COLORREF frameColor = ZoSlotColor(kSlotGroupFrame, m_eTheme);
    dc.FillSolidRect(r, back);
    const CRect f = ZoGroupBoxFrame(r, lineHeight);
    dc.Draw3dRect(f, frameColor, frameColor);
    {
        CPen pen(PS_SOLID, 1, frameColor);
        CPen* pOld = dc.SelectObject(&pen);
        dc.MoveTo(f.left + 1, f.top + 1);
        dc.LineTo(f.right - 2, f.top + 1);
        dc.MoveTo(f.right, f.top + 1);
        dc.LineTo(f.right, f.bottom);
        dc.MoveTo(f.left, f.bottom);
        dc.LineTo(f.right, f.bottom);
        dc.MoveTo(f.left + 1, f.top + 1);
        dc.LineTo(f.left + 1, f.bottom - 2);
        dc.SelectObject(pOld);
    }
    CString text;
    GetWindowText(text);
    if (text.IsEmpty())
        return;
    const int indent = ZoGroupBoxIndent(ZoCurrentZoom(m_eMonitorSize));
    const COLORREF oldBack = dc.SetBkColor(back);
    UINT align = TA_LEFT;
    int x = r.left + indent;
    switch (GetStyle() & kHorzBits) {
    case kRightBit:
        align = TA_RIGHT;
        x = r.right - indent;
        break;
    case kHorzBits:
        align = TA_CENTER;
        x = (r.left + r.right) / 2;
        break;
    default:
        break;
    }
    const UINT oldAlign = dc.SetTextAlign(align);
    // The padded caption cuts the frame's top line.
    const CString caption = L"  " + text + L"  ";
    dc.TextOut(x, r.top + 1, caption);
    dc.SetTextAlign(oldAlign);
    dc.SetBkColor(oldBack);
}

} // namespace ZoControls
