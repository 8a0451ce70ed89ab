// The theme colour slots the controls paint with, by name, declared once for every control.
// A group of per-state slots lists its states in E_ZoButtonStates order where it has them
// (normal, hot, pressed, then a fifth row or disabled).
#pragma once

#include "core/ZoThemeTypes.h"

namespace ZoControls {

enum E_ZoControlColor
{
    ZoColor_ControlBack = 0,          // behind check boxes, radios and pictures
    ZoColor_CheckBack = 5,            // check-box back, four states
    ZoColor_CheckText = 9,            // check-box caption, four states
    ZoColor_ButtonFace = 13,          // push-button face: normal, hot, pressed, fifth row, disabled
    ZoColor_ButtonFaceHot = 14,
    ZoColor_ButtonFacePressed = 15,
    ZoColor_ButtonFaceDisabled = 17,
    ZoColor_ButtonLine = 18,          // push-button border lines, same five rows
    ZoColor_ButtonLineHot = 19,
    ZoColor_ButtonLinePressed = 20,
    ZoColor_ButtonLineDisabled = 22,
    ZoColor_DarkButtonFace = 23,      // the darker faces, same five rows
    ZoColor_DarkButtonFaceHot = 24,
    ZoColor_DarkButtonFacePressed = 25,
    ZoColor_DarkButtonFaceDisabled = 27,
    ZoColor_EditBack = 28,
    ZoColor_EditDisabledText = 32,
    ZoColor_PushText = 34,            // push-button caption, four states
    ZoColor_GroupBack = 48,
    ZoColor_GroupFrame = 49,
    ZoColor_GroupText = 50,
    ZoColor_Separator = 64,
    ZoColor_ProgressBack = 66,
    ZoColor_ProgressText = 67,
    ZoColor_SpinFace = 92,
    ZoColor_SpinArrow = 93,
    ZoColor_SpinOutline = 94
};

// The slot as the theme manager's type, for calls that take one.
inline E_ZoThemeColors ZoThemeSlot(E_ZoControlColor color)
{
    return static_cast<E_ZoThemeColors>(color);
}

} // namespace ZoControls
