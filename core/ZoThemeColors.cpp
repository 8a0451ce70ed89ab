// The theme's base palette and the colour-slot table of theme 0, plus readable slot
// names for tools such as the gallery.
#include "ZoThemeTables.h"
#include "ZoThemeTypes.h"

namespace ZoControls {

const unsigned long kZoPaletteArgb[kZoPaletteSize] = {
    0xFF000000, // P0
    0xFF1E1E1E, // P1
    0xFF2B2B2B, // P2
    0xFF2F2F2F, // P3
    0xFF393939, // P4
    0xFF404040, // P5
    0xFF474747, // P6
    0xFF585858, // P7
    0xFF656565, // P8
    0xFF7E7E7E, // P9
    0xFFC8C8C8, // P10
    0xFF29455F, // P11
    0xFF466183, // P12
    0xFF4A7AA7, // P13
    0xFF5F93CD, // P14
    0xFF7ED9FF, // P15
    0xFF2656A0, // P16
    0xFFFFFFFF, // P17
    0xFFE7E7E7, // P18
    0xFFC8C8C8, // P19
    0xFFACACAC, // P20
    0xFF919191, // P21
    0xFF7E7E7E, // P22
    0xFF76ABD7, // P23
    0xFF3EB2F5, // P24
    0xFF35BFFF, // P25
    0xFF4A7AA7, // P26
    0xFFFF0000, // P27
};

// Each slot copies a palette entry; four check-box backgrounds use literal colours.
const ZoColorSlotSource kZoColorSlotSources[kZoColorSlotCount] = {
    {6, 0}, // 0
    {9, 0}, // 1
    {17, 0}, // 2
    {0, 0}, // 3
    {2, 0}, // 4
    {-1, 0xFFD1D3E7}, // 5
    {-1, 0xFFE8E9F3}, // 6
    {-1, 0xFFD1D3E7}, // 7
    {-1, 0xFFAEB0C5}, // 8
    {18, 0}, // 9
    {18, 0}, // 10
    {18, 0}, // 11
    {22, 0}, // 12
    {8, 0}, // 13
    {9, 0}, // 14
    {12, 0}, // 15
    {7, 0}, // 16
    {7, 0}, // 17
    {4, 0}, // 18
    {4, 0}, // 19
    {4, 0}, // 20
    {4, 0}, // 21
    {5, 0}, // 22
    {6, 0}, // 23
    {12, 0}, // 24
    {16, 0}, // 25
    {16, 0}, // 26
    {6, 0}, // 27
    {3, 0}, // 28
    {3, 0}, // 29
    {4, 0}, // 30
    {17, 0}, // 31
    {22, 0}, // 32
    {20, 0}, // 33
    {17, 0}, // 34
    {17, 0}, // 35
    {17, 0}, // 36
    {21, 0}, // 37
    {1, 0}, // 38
    {4, 0}, // 39
    {11, 0}, // 40
    {18, 0}, // 41
    {18, 0}, // 42
    {11, 0}, // 43
    {20, 0}, // 44
    {1, 0}, // 45
    {1, 0}, // 46
    {13, 0}, // 47
    {6, 0}, // 48
    {3, 0}, // 49
    {18, 0}, // 50
    {6, 0}, // 51
    {2, 0}, // 52
    {6, 0}, // 53
    {17, 0}, // 54
    {6, 0}, // 55
    {17, 0}, // 56
    {8, 0}, // 57
    {10, 0}, // 58
    {2, 0}, // 59
    {1, 0}, // 60
    {3, 0}, // 61
    {13, 0}, // 62
    {6, 0}, // 63
    {0, 0}, // 64
    {7, 0}, // 65
    {2, 0}, // 66
    {17, 0}, // 67
    {6, 0}, // 68
    {0, 0}, // 69
    {3, 0}, // 70
    {8, 0}, // 71
    {12, 0}, // 72
    {10, 0}, // 73
    {6, 0}, // 74
    {18, 0}, // 75
    {6, 0}, // 76
    {6, 0}, // 77
    {1, 0}, // 78
    {6, 0}, // 79
    {1, 0}, // 80
    {6, 0}, // 81
    {0, 0}, // 82
    {0, 0}, // 83
    {20, 0}, // 84
    {19, 0}, // 85
    {26, 0}, // 86
    {18, 0}, // 87
    {22, 0}, // 88
    {20, 0}, // 89
    {3, 0}, // 90
    {3, 0}, // 91
    {3, 0}, // 92
    {10, 0}, // 93
    {8, 0}, // 94
    {8, 0}, // 95
    {9, 0}, // 96
    {12, 0}, // 97
    {10, 0}, // 98
    {8, 0}, // 99
    {8, 0}, // 100
    {15, 0}, // 101
    {6, 0}, // 102
    {4, 0}, // 103
    {3, 0}, // 104
    {6, 0}, // 105
    {6, 0}, // 106
    {7, 0}, // 107
    {13, 0}, // 108
    {4, 0}, // 109
    {8, 0}, // 110
    {8, 0}, // 111
    {13, 0}, // 112
    {6, 0}, // 113
    {2, 0}, // 114
    {12, 0}, // 115
    {11, 0}, // 116
    {2, 0}, // 117
    {9, 0}, // 118
    {17, 0}, // 119
    {26, 0}, // 120
    {4, 0}, // 121
    {7, 0}, // 122
    {13, 0}, // 123
    {13, 0}, // 124
    {8, 0}, // 125
    {20, 0}, // 126
    {0, 0}, // 127
    {7, 0}, // 128
    {27, 0}, // 129
};

namespace {
const wchar_t* const kSlotNames[kZoColorSlotCount] = {
    L"Control background", // 0
    L"Dialog caption background", // 1
    L"Dialog caption text", // 2
    L"Dialog border fill", // 3
    L"Dialog border outline", // 4
    L"Check box back, normal", // 5
    L"Check box back, hot", // 6
    L"Check box back, pressed", // 7
    L"Check box back, disabled", // 8
    L"Check box text, normal", // 9
    L"Check box text, hot", // 10
    L"Check box text, pressed", // 11
    L"Check box text, disabled", // 12
    L"Button face, normal", // 13
    L"Button face, hot", // 14
    L"Button face, pressed", // 15
    L"Button face, fifth row", // 16
    L"Button face, disabled", // 17
    L"Button line, normal", // 18
    L"Button line, hot", // 19
    L"Button line, pressed", // 20
    L"Button line, fifth row", // 21
    L"Button line, disabled", // 22
    L"Dark button face, normal", // 23
    L"Dark button face, hot", // 24
    L"Dark button face, pressed", // 25
    L"Dark button face, fifth row", // 26
    L"Dark button face, disabled", // 27
    L"Edit background", // 28
    L"Edit second background", // 29
    L"Edit disabled background", // 30
    L"Edit text", // 31
    L"Edit disabled text", // 32
    L"Edit text, third state", // 33
    L"Push button text, normal", // 34
    L"Push button text, hot", // 35
    L"Push button text, pressed", // 36
    L"Push button text, disabled", // 37
    L"List background", // 38
    L"List grid", // 39
    L"List selected row", // 40
    L"List native text", // 41
    L"List cell text", // 42
    L"List selected focus row", // 43
    L"List focus frame", // 44
    L"Slider channel", // 45
    L"Slider ticks", // 46
    L"Slider selection", // 47
    L"Group box background", // 48
    L"Group box frame", // 49
    L"Group box text", // 50
    L"Unassigned", // 51
    L"Unassigned", // 52
    L"Unassigned", // 53
    L"Unassigned", // 54
    L"Unassigned", // 55
    L"Unassigned", // 56
    L"Unassigned", // 57
    L"Unassigned", // 58
    L"Unassigned", // 59
    L"Unassigned", // 60
    L"Unassigned", // 61
    L"Unassigned", // 62
    L"Unassigned", // 63
    L"Separator", // 64
    L"Unassigned", // 65
    L"Progress background", // 66
    L"Progress text", // 67
    L"Menu background", // 68
    L"Menu popup border", // 69
    L"Menu separator", // 70
    L"Menu highlighted item", // 71
    L"Menu checked item", // 72
    L"Menu item text", // 73
    L"Unassigned", // 74
    L"Unassigned", // 75
    L"Unassigned", // 76
    L"Unassigned", // 77
    L"Unassigned", // 78
    L"Unassigned", // 79
    L"Unassigned", // 80
    L"Unassigned", // 81
    L"Unassigned", // 82
    L"Unassigned", // 83
    L"Unassigned", // 84
    L"Unassigned", // 85
    L"Unassigned", // 86
    L"Unassigned", // 87
    L"Unassigned", // 88
    L"Unassigned", // 89
    L"Unassigned", // 90
    L"Unassigned", // 91
    L"Spin button face", // 92
    L"Spin button arrow", // 93
    L"Spin button outline", // 94
    L"Unassigned", // 95
    L"Unassigned", // 96
    L"Unassigned", // 97
    L"Unassigned", // 98
    L"Unassigned", // 99
    L"Unassigned", // 100
    L"Unassigned", // 101
    L"Unassigned", // 102
    L"Unassigned", // 103
    L"Unassigned", // 104
    L"Unassigned", // 105
    L"Unassigned", // 106
    L"Unassigned", // 107
    L"Unassigned", // 108
    L"Unassigned", // 109
    L"Unassigned", // 110
    L"Unassigned", // 111
    L"Unassigned", // 112
    L"Unassigned", // 113
    L"Unassigned", // 114
    L"Unassigned", // 115
    L"Unassigned", // 116
    L"Unassigned", // 117
    L"Unassigned", // 118
    L"Unassigned", // 119
    L"Unassigned", // 120
    L"Unassigned", // 121
    L"Unassigned", // 122
    L"Unassigned", // 123
    L"Unassigned", // 124
    L"Unassigned", // 125
    L"Unassigned", // 126
    L"Unassigned", // 127
    L"Unassigned", // 128
    L"Unassigned", // 129
};
} // namespace

const wchar_t* ZoThemeColorName(int slot)
{
    if (slot < 0 || slot >= kZoColorSlotCount)
        return L"";
    return kSlotNames[slot];
}

} // namespace ZoControls
