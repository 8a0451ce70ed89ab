// The message box's rules as plain functions and tables: which buttons a type shows with which
// captions, which one is the default, what each button, the Escape key and the time-out return,
// the icon and title word of each icon type, and where everything goes.
#pragma once
#include <afxwin.h>

#include "core/ZoCtrlExport.h"

namespace ZoControls {

// The three buttons, right to left (controls 802, 803, 804).
enum E_ZoMsgBoxButton
{
    ZoMsgBoxButton_None = -1,
    ZoMsgBoxButton_Right = 0,
    ZoMsgBoxButton_Middle = 1,
    ZoMsgBoxButton_Left = 2,
    ZoMsgBoxButton_Count = 3
};

// Nothing closes the box: the key or button is swallowed.
const int ZO_MSGBOX_NO_RESULT = 0;
// The time-out's timer.
const UINT_PTR ZO_MSGBOX_TIMER_ID = 0x8018;

// What one type (type & MB_TYPEMASK) shows and returns. A caption of 0 removes the button; a
// known flag of false leaves every button as the template has it.
struct ZoMsgBoxTypeRule
{
    bool known;
    UINT captions[ZoMsgBoxButton_Count]; // string ids, right to left
    int results[ZoMsgBoxButton_Count];   // ID... codes, right to left
    int escape;                          // ID... code of Escape, or ZO_MSGBOX_NO_RESULT
};

ZOCTRL_API ZoMsgBoxTypeRule ZoMessageBoxTypeRule(UINT type);

// The default button of a type: two-button types count from the left (button 1 is the middle
// one), three-button types from the left too; MB_OK and unknown types have none.
ZOCTRL_API E_ZoMsgBoxButton ZoMessageBoxDefaultButton(UINT type);

// Bitmap id and title word (string id) for type & MB_ICONMASK.
struct ZoMsgBoxIconRule
{
    UINT bitmap;
    UINT titleWord;
};
ZOCTRL_API ZoMsgBoxIconRule ZoMessageBoxIconRule(UINT type);

// The box is never narrower than this, in pixels.
const int ZO_MSGBOX_MIN_WIDTH = 300;
// Nor lower than this.
const int ZO_MSGBOX_MIN_HEIGHT = 120;

// Where the parts of a message box go, in client pixels.
struct ZoMsgBoxLayout
{
    CRect text;                          // the message
    int width;                           // client width
    int height;                          // client height
    CRect buttons[ZoMsgBoxButton_Count]; // right to left
    CRect check;                         // the "do not show" check box
};

// The layout for a message measuring `textSize` (DrawText's calculated extent) in a template
// whose icon, first button, check box and client area are `icon`, `button`, `check`, `client`.
// The text starts right of the icon and is centred on it when lower; a box narrower than the
// minimum widens to it and the text moves right by a third of the shortfall.
ZOCTRL_API ZoMsgBoxLayout ZoLayoutMessageBox(const CRect& icon, const CRect& button, const CRect& check,
                                             const CRect& client, const CSize& textSize);

} // namespace ZoControls
