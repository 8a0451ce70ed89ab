// Shared enumerations of ZoControls: themes, monitor size classes, font roles and
// colour slots. Controls know colour slots and font roles by number.
#pragma once
#include "ZoCtrlExport.h"

namespace ZoControls {

// Theme index. Only theme 0 has colours; look-ups answer theme 0 for every theme.
enum E_ZoTheme
{
    ZoTheme_Default = 0,
    ZoTheme_1 = 1,
    ZoTheme_2 = 2,
    ZoTheme_Count = 3
};

// Monitor size class, chosen from the monitor's pixel area or forced by a marker file.
enum E_ZoMonitorSize
{
    ZoMonitorSize_Unknown = -1, // not yet determined / nobody answered
    ZoMonitorSize_Normal = 0,
    ZoMonitorSize_3M = 1,       // about 3 megapixels
    ZoMonitorSize_5M = 2,       // about 5 megapixels
    ZoMonitorSize_Count = 3
};

// Font roles; the number N of each is also its "Fonts.ini" key "ZoThemeFont_N".
enum E_ZoThemeFont
{
    ZoThemeFont_0 = 0,   // 7 pt
    ZoThemeFont_1,       // 8 pt
    ZoThemeFont_2,       // 9 pt
    ZoThemeFont_3,       // 10 pt
    ZoThemeFont_4,       // 11 pt
    ZoThemeFont_5,       // 12 pt
    ZoThemeFont_6,       // 13 pt
    ZoThemeFont_7,       // 14 pt
    ZoThemeFont_8,       // 7 pt bold
    ZoThemeFont_9,       // 8 pt bold
    ZoThemeFont_10,      // 9 pt bold
    ZoThemeFont_11,      // 10 pt bold
    ZoThemeFont_12,      // 11 pt bold
    ZoThemeFont_13,      // 7 pt rotated 90 degrees counter-clockwise
    ZoThemeFont_Count = 14
};

// Colour slots 0..129, referred to by number. ZoThemeColorName gives each a readable name.
enum E_ZoThemeColors
{
    ZoThemeColor_First = 0,
    ZoThemeColor_Last = 129,
    ZoThemeColor_Count = 130
};

// Readable name of a colour slot ("" outside 0..129), for tools that list the theme.
ZOCTRL_API const wchar_t* ZoThemeColorName(int slot);

} // namespace ZoControls
