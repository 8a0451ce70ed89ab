// Colour tables behind the theme manager; internal to the library.
#pragma once
#include "ZoCtrlExport.h"

namespace ZoControls {

const int kZoPaletteSize = 28;
const int kZoColorSlotCount = 130;

// Where a colour slot takes its ARGB value from: a palette entry, or a literal when the
// palette index is negative.
struct ZoColorSlotSource
{
    int paletteIndex;
    unsigned long literalArgb;
};

extern const unsigned long kZoPaletteArgb[kZoPaletteSize];
extern const ZoColorSlotSource kZoColorSlotSources[kZoColorSlotCount];

} // namespace ZoControls
