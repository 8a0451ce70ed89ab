// Theme arithmetic as plain functions of numbers: colour conversion, zoom factors,
// font heights, size-class thresholds. No window or device context is needed.
#pragma once
#include "ZoCtrlExport.h"
#include "ZoThemeTypes.h"

namespace ZoControls {

// 0xAARRGGBB to a GDI COLORREF 0x00BBGGRR; alpha is dropped.
ZOCTRL_API unsigned long ZoArgbToColorRef(unsigned long argb);

// 1.2 for ZoMonitorSize_3M, 1.6 for ZoMonitorSize_5M, 1.0 for anything else (also -1).
ZOCTRL_API float ZoZoomFactorOf(int monitorSize);

// A pixel value at the given zoom: trunc(value * zoom + 0.5) in single precision.
ZOCTRL_API int ZoScaleByZoom(int value, float zoom);

// Pixel height (positive) of a font of `points` at `zoom`, at 96 pixels per inch.
ZOCTRL_API int ZoFontPixelHeight(int points, float zoom);

// Size class of a monitor of `area` pixels: below 0x300000 normal, below 0x500000 3M, else 5M.
ZOCTRL_API E_ZoMonitorSize ZoMonitorSizeForArea(long long area);

// Size class forced by a fixed-mode marker number (1, 2, 3); Unknown for any other number.
ZOCTRL_API E_ZoMonitorSize ZoMonitorSizeForFixedMode(int mode);

// The language id of `langId`'s primary language with its default sub-language.
ZOCTRL_API unsigned short ZoDefaultSubLanguageId(unsigned short langId);

// "Fonts.ini" flag field: true exactly when it reads "true", in any letter case.
ZOCTRL_API bool ZoParseProfileFlag(const wchar_t* field);

} // namespace ZoControls
