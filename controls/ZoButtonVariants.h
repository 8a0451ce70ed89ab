// Buttons that change a few drawing steps of CZoButton.
// Classes in this file:
//   CZoFlatButton     push button drawn from colours only: no skin, no focus rectangle, 3-pixel margins
//   CZoToggleButton   flat button whose check box paints a push-button face behind the box
//   CZoButton4MsgBox  the message box's button, made a default or plain push button before creation
#pragma once
#include <afxwin.h>

#include "ZoButton.h"

namespace ZoControls {

// Text margin of a flat button on every side.
const int ZO_FLAT_BUTTON_TEXT_MARGIN = 3;

class ZOCTRL_API CZoFlatButton : public CZoButton
{
    DECLARE_DYNAMIC(CZoFlatButton)

public:
    CZoFlatButton();
    explicit CZoFlatButton(E_ZoThemeFont font);
    ~CZoFlatButton() override;

protected:
    void Init() override;
    void DrawPushButtonFocusRect(CDC& dc, const CRect& rect) override;
    void LoadResource() override;

    DECLARE_MESSAGE_MAP()
};

class ZOCTRL_API CZoToggleButton : public CZoFlatButton
{
    DECLARE_DYNAMIC(CZoToggleButton)

public:
    CZoToggleButton();
    ~CZoToggleButton() override;

protected:
    void Init() override;
    void DrawCheckBoxBackground(CDC& dc, const CRect& rect) override;
    void DrawCheckBoxFocusRect(CDC& dc, const CRect& rect) override;
};

class ZOCTRL_API CZoButton4MsgBox : public CZoButton
{
public:
    CZoButton4MsgBox();
    ~CZoButton4MsgBox() override;

    // Only before the window exists: records the push kind Init applies; false afterwards.
    bool SetAsDefault(bool isDefault);

protected:
    void Init() override;

private:
    bool m_bPushKindRequested;
    bool m_bDefault;
};

// The push kind style Init gives a message-box button: bits 8-15 of `style` kept, the type
// replaced by a plain or default push button.
ZOCTRL_API DWORD ZoMsgBoxButtonStyle(DWORD style, bool isDefault);

} // namespace ZoControls
