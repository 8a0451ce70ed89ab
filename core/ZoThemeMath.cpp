#include <windows.h>
#include <limits.h>
#include <wctype.h>

#include "ZoThemeMath.h"

namespace ZoControls {

namespace {
const long long kArea3M = 0x300000; // 3,145,728 pixels
const long long kArea5M = 0x500000; // 5,242,880 pixels
} // namespace

unsigned long ZoArgbToColorRef(unsigned long argb)
{
    return ((argb & 0xFF) << 16) | (((argb >> 8) & 0xFF) << 8) | ((argb >> 16) & 0xFF);
}

float ZoZoomFactorOf(int monitorSize)
{
    switch (monitorSize) {
    case ZoMonitorSize_3M:
        return 1.2f;
    case ZoMonitorSize_5M:
        return 1.6f;
    default:
        return 1.0f;
    }
}

int ZoScaleByZoom(int value, float zoom)
{
    const float scaled = static_cast<float>(value) * zoom + 0.5f;
    // Absurd values saturate instead of overflowing the conversion.
    if (!(scaled > -2147483648.0f))
        return scaled != scaled ? 0 : INT_MIN;
    if (scaled >= 2147483648.0f)
        return INT_MAX;
    return static_cast<int>(scaled);
}

int ZoFontPixelHeight(int points, float zoom)
{
    return MulDiv(ZoScaleByZoom(points, zoom), 96, 72);
}

E_ZoMonitorSize ZoMonitorSizeForArea(long long area)
{
    if (area < kArea3M)
        return ZoMonitorSize_Normal;
    if (area < kArea5M)
        return ZoMonitorSize_3M;
    return ZoMonitorSize_5M;
}

E_ZoMonitorSize ZoMonitorSizeForFixedMode(int mode)
{
    if (mode < 1 || mode > 3)
        return ZoMonitorSize_Unknown;
    return static_cast<E_ZoMonitorSize>(mode - 1);
}

unsigned short ZoDefaultSubLanguageId(unsigned short langId)
{
    return static_cast<unsigned short>((langId & 0x3FF) | 0x400);
}

bool ZoParseProfileFlag(const wchar_t* field)
{
    if (!field)
        return false;
    const wchar_t expected[] = L"true";
    for (int i = 0; expected[i]; ++i)
        if (towlower(field[i]) != expected[i])
            return false;
    return field[4] == L'\0';
}

} // namespace ZoControls
