#include <afxwin.h>
#include <commctrl.h>

#include "ZoButtonVariants.h"
#include "ZoControlColors.h"
#include "ZoControlTheme.h"

namespace ZoControls {

// ---------------------------------------------------------------------------------------------
// CZoFlatButton

IMPLEMENT_DYNAMIC(CZoFlatButton, CZoButton)

BEGIN_MESSAGE_MAP(CZoFlatButton, CZoButton)
END_MESSAGE_MAP()

CZoFlatButton::CZoFlatButton() : CZoButton()
{
    // Init sets the lines again from the theme; these only show before it runs.
    Set4LineColors(ZoSlotColor(ZoColor_ButtonLine, ZoTheme_Default), false);
    const COLORREF hot = ZoSlotColor(ZoColor_ButtonLineHot, ZoTheme_Default);
    const COLORREF pressed = ZoSlotColor(ZoColor_ButtonLinePressed, ZoTheme_Default);
    SetLTRBLineColors(BS_ZO_HOT, hot, hot, true);
    SetLTRBLineColors(BS_ZO_PRESSED, pressed, pressed, true);
}

CZoFlatButton::CZoFlatButton(E_ZoThemeFont font) : CZoButton(font)
{
}

CZoFlatButton::~CZoFlatButton()
{
}

void CZoFlatButton::Init()
{
    CZoButton::Init();
    RECT margin = {ZO_FLAT_BUTTON_TEXT_MARGIN, ZO_FLAT_BUTTON_TEXT_MARGIN, ZO_FLAT_BUTTON_TEXT_MARGIN,
                   ZO_FLAT_BUTTON_TEXT_MARGIN};
    SendMessage(BCM_SETTEXTMARGIN, 0, reinterpret_cast<LPARAM>(&margin));
}

void CZoFlatButton::DrawPushButtonFocusRect(CDC& /*dc*/, const CRect& /*rect*/)
{
}

void CZoFlatButton::LoadResource()
{
    // A flat push button has no skin: its content is the client less the text margins.
    if (IsPushButton(GetButtonType()))
        return;
    CZoButton::LoadResource();
}

// ---------------------------------------------------------------------------------------------
// CZoToggleButton

IMPLEMENT_DYNAMIC(CZoToggleButton, CZoFlatButton)

CZoToggleButton::CZoToggleButton() : CZoFlatButton()
{
}

CZoToggleButton::~CZoToggleButton()
{
}

void CZoToggleButton::Init()
{
    // Skips CZoFlatButton::Init on purpose: a toggle button keeps the system's text margins.
    CZoButton::Init();
}

void CZoToggleButton::DrawCheckBoxBackground(CDC& dc, const CRect& rect)
{
    // A checked toggle looks pressed.
    DrawPushButtonBackground(dc, rect, ZoPushButtonState(IsWindowEnabled() != FALSE, GetState(), IsHoveringNow()));
}

void CZoToggleButton::DrawCheckBoxFocusRect(CDC& /*dc*/, const CRect& /*rect*/)
{
}

// ---------------------------------------------------------------------------------------------
// CZoButton4MsgBox

DWORD ZoMsgBoxButtonStyle(DWORD style, bool isDefault)
{
    return (style & 0xFF00) | (isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON);
}

CZoButton4MsgBox::CZoButton4MsgBox() : CZoButton(), m_bPushKindRequested(false), m_bDefault(false)
{
}

CZoButton4MsgBox::~CZoButton4MsgBox()
{
}

bool CZoButton4MsgBox::SetAsDefault(bool isDefault)
{
    if (::IsWindow(m_hWnd))
        return false;
    m_bPushKindRequested = true;
    m_bDefault = isDefault;
    return true;
}

void CZoButton4MsgBox::Init()
{
    if (m_bPushKindRequested)
        SendMessage(BM_SETSTYLE, ZoMsgBoxButtonStyle(GetStyle(), m_bDefault), FALSE);
    CZoButton::Init();
}

} // namespace ZoControls
