// CZoButton: construction, setters, life cycle and input. Painting is in ZoButtonPaint.cpp.
#include <afxwin.h>
#include <afxcmn.h>
#include <commctrl.h>

#include "ZoButton.h"
#include "ZoControlColors.h"
#include "ZoControlTheme.h"
#include "ZoWindowHelpers.h"
#include "core/ZoThemeManager.h"
#include "images/ZoResourceImage.h"
#include "images/ZoResourcePNG.h"

namespace ZoControls {

namespace {

// The check-box and radio strip: 4 state columns, 5 rows (three boxes, two radios).
const UINT kCheckStripId = 808;
const int kCheckStripColumns = 4;
const int kCheckStripRows = 5;
// The push skin: 12 columns, 3 rows.
const int kSkinColumns = 12;
const int kSkinRows = 3;
// A five-row picture follows the five-row colour groups.
const int kFiveStateRows = 5;

// Colour slots of the states 0-3: faces and lines skip the group's fifth-row slot.
const E_ZoControlColor kFaceSlots[BS_ZO_COUNT] = {ZoColor_ButtonFace, ZoColor_ButtonFaceHot,
                                                  ZoColor_ButtonFacePressed, ZoColor_ButtonFaceDisabled};
const E_ZoControlColor kDarkFaceSlots[BS_ZO_COUNT] = {ZoColor_DarkButtonFace, ZoColor_DarkButtonFaceHot,
                                                      ZoColor_DarkButtonFacePressed, ZoColor_DarkButtonFaceDisabled};
const E_ZoControlColor kLineSlots[BS_ZO_COUNT] = {ZoColor_ButtonLine, ZoColor_ButtonLineHot,
                                                  ZoColor_ButtonLinePressed, ZoColor_ButtonLineDisabled};

} // namespace

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
      m_nImageColumn(-1), m_nImageRow(-1), m_pToolTip(NULL), m_hLineHeightFont(NULL), m_nLineHeight(0)
{
    _clearColorTables();
}

CZoButton::CZoButton(E_ZoThemeFont font)
    : m_bAllowRowThree(false), m_eTheme(ZoTheme_Default), m_eFont(font), m_eMonitorSize(ZoMonitorSize_Unknown),
      m_bHovering(false), m_bResourcesLoaded(false), m_pBackground(NULL), m_bCenterAlignedImage(false),
      m_bFontGiven(true), m_nTextGap(0), m_pImage(NULL), m_bImageIsPNG(false), m_nImageColumn(-1),
      m_nImageRow(-1), m_pToolTip(NULL), m_hLineHeightFont(NULL), m_nLineHeight(0)
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
    const int first = dark ? ZoColor_DarkButtonFace : ZoColor_ButtonFace;
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
    SetZoBitmap(name, redraw, cols, rows, statesAcross ? -1 : index, statesAcross ? index : -1);
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
    SetZoPNGImage(id, dark, redraw, cols, rows, statesAcross ? -1 : index, statesAcross ? index : -1);
}

void CZoButton::SetZoPNGImages(UINT id, COLORREF back, bool redraw, bool statesAcross, int cols, int rows,
                               int index)
{
    SetZoPNGImage(id, back, redraw, cols, rows, statesAcross ? -1 : index, statesAcross ? index : -1);
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

// Every colour setter forwards to its per-state form without redrawing, then redraws once.

void CZoButton::SetFaceColor(COLORREF color, bool redraw)
{
    for (int s = 0; s < BS_ZO_COUNT; ++s)
        SetFaceColor(static_cast<E_ZoButtonStates>(s), color, false);
    _redrawIf(redraw);
}

void CZoButton::SetFaceColor(E_ZoButtonStates state, COLORREF color, bool redraw)
{
    if (ZoIsButtonState(state))
        m_aFaceColors[state] = color;
    _redrawIf(redraw);
}

void CZoButton::SetFaceColors(const COLORREF colors[4], bool redraw)
{
    if (colors)
        for (int s = 0; s < BS_ZO_COUNT; ++s)
            SetFaceColor(static_cast<E_ZoButtonStates>(s), colors[s], false);
    _redrawIf(redraw);
}

void CZoButton::SetTextColor(COLORREF color, bool redraw)
{
    for (int s = 0; s < BS_ZO_COUNT; ++s)
        SetTextColor(static_cast<E_ZoButtonStates>(s), color, false);
    _redrawIf(redraw);
}

void CZoButton::SetTextColor(E_ZoButtonStates state, COLORREF color, bool redraw)
{
    if (ZoIsButtonState(state))
        m_aTextColors[state] = color;
    _redrawIf(redraw);
}

void CZoButton::SetTextColors(const COLORREF colors[4], bool redraw)
{
    if (colors)
        for (int s = 0; s < BS_ZO_COUNT; ++s)
            SetTextColor(static_cast<E_ZoButtonStates>(s), colors[s], false);
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
    SetLineColor(LINE_LEFT, state, lt, false);
    SetLineColor(LINE_TOP, state, lt, false);
    SetLineColor(LINE_RIGHT, state, rb, false);
    SetLineColor(LINE_BOTTOM, state, rb, false);
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
    if (ZoIsButtonLine(line) && ZoIsButtonState(state))
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
        SetFaceColors(colors, false);
    }
    if (lines) {
        for (int s = 0; s < BS_ZO_COUNT; ++s)
            colors[s] = ZoSlotColor(kLineSlots[s], m_eTheme);
        Set4LineColors(colors, false);
    }
    _redrawIf(faces || lines);
}

void CZoButton::SetDefaultDarkColor(bool faces, bool lines)
{
    if (faces) {
        COLORREF colors[BS_ZO_COUNT];
        for (int s = 0; s < BS_ZO_COUNT; ++s)
            colors[s] = ZoSlotColor(kDarkFaceSlots[s], m_eTheme);
        SetFaceColors(colors, false);
    }
    // The lines are the bright ones on purpose.
    SetDefaultBrightColor(false, lines);
    _redrawIf(faces && !lines);
}

COLORREF CZoButton::GetFaceColor(E_ZoButtonStates state) const
{
    return ZoIsButtonState(state) ? m_aFaceColors[state] : CLR_INVALID;
}

COLORREF CZoButton::GetTextColor(E_ZoButtonStates state) const
{
    return ZoIsButtonState(state) ? m_aTextColors[state] : CLR_INVALID;
}

COLORREF CZoButton::GetLineColor(E_ZoFlatButtonLines line, E_ZoButtonStates state) const
{
    return (ZoIsButtonLine(line) && ZoIsButtonState(state)) ? m_aLineColors[state][line] : CLR_INVALID;
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
        firstTextSlot = ZoColor_CheckText;
    else if (IsPushButton(type))
        firstTextSlot = ZoColor_PushText;
    for (int s = 0; s < BS_ZO_COUNT; ++s) {
        if (firstTextSlot >= 0)
            m_aTextColors[s] = ZoSlotColor(firstTextSlot + s, m_eTheme);
        else if (type == BS_GROUPBOX)
            m_aTextColors[s] = ZoSlotColor(ZoColor_GroupText, m_eTheme);
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
            pStrip->SetBackgroundColor(ZoSlotColor(ZoColor_ControlBack, m_eTheme));
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

} // namespace ZoControls
