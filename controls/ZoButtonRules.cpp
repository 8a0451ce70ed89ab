// The plain rules of the skinned button: numbers in, numbers out.
#include <afxwin.h>

#include <cstdlib>

#include "ZoButtonRules.h"

namespace ZoControls {

namespace {

// The alignment bits of BS_LEFT, BS_RIGHT, BS_TOP and BS_BOTTOM, tested one by one.
const DWORD kLeftBit = 0x100;
const DWORD kRightBit = 0x200;
const DWORD kTopBit = 0x400;
const DWORD kBottomBit = 0x800;
const DWORD kHorzBits = kLeftBit | kRightBit;
const DWORD kVertBits = kTopBit | kBottomBit;

const wchar_t* const kPushResourceSuffix[ZoTheme_Count] = {L"_NORMAL", L"_NORMAL", L"_NORMAL"};

int CentredStart(int low, int high, int extent)
{
    return (low + high) / 2 - extent / 2;
}

// First pixel a line from `from` towards `to` (end excluded) sets on its axis.
int HalfOpenLow(int from, int to)
{
    return from < to ? from : to + 1;
}

} // namespace

bool ZoIsButtonState(int state)
{
    return state >= BS_ZO_NORMAL && state < BS_ZO_COUNT;
}

bool ZoIsButtonLine(int line)
{
    return line >= LINE_LEFT && line < LINE_COUNT;
}

E_ZoButtonStates ZoPushButtonState(bool enabled, UINT buttonState, bool hovering)
{
    if (!enabled)
        return BS_ZO_DISABLED;
    if (buttonState & BST_PUSHED)
        return BS_ZO_PRESSED;
    if ((buttonState & 3) == BST_CHECKED)
        return BS_ZO_PRESSED;
    return hovering ? BS_ZO_HOT : BS_ZO_NORMAL;
}

int ZoCheckCellRow(bool isCheckbox, UINT buttonState)
{
    // Rows 0-2: unchecked, checked, indeterminate box; rows 3-4: unchecked, checked radio.
    return (isCheckbox ? 0 : 3) + static_cast<int>(buttonState & 3);
}

int ZoCheckCellColumn(bool enabled, UINT buttonState, bool hovering)
{
    if (!enabled)
        return BS_ZO_DISABLED;
    if (buttonState & BST_PUSHED)
        return BS_ZO_PRESSED;
    return hovering ? BS_ZO_HOT : BS_ZO_NORMAL;
}

CPoint ZoCheckCellOrigin(const CRect& client, int unit, DWORD style)
{
    const int x = (style & BS_LEFTTEXT) ? client.right - unit : client.left;
    int y;
    switch (style & kVertBits) {
    case BS_BOTTOM:
        y = client.bottom - unit;
        break;
    case BS_TOP:
        y = client.top;
        break;
    default:
        y = client.top + (client.Height() - unit) / 2;
        break;
    }
    return CPoint(x, y);
}

UINT ZoPushButtonTextFormat(DWORD style)
{
    UINT format = DT_SINGLELINE | DT_END_ELLIPSIS;
    if (style & kLeftBit)
        format |= DT_LEFT;
    else if (style & kRightBit)
        format |= DT_RIGHT;
    else
        format |= DT_CENTER;
    if (style & kTopBit)
        format |= DT_TOP;
    else if (style & kBottomBit)
        format |= DT_BOTTOM;
    else
        format |= DT_VCENTER;
    return format;
}

UINT ZoCaptionTextFormat(DWORD style, bool centreByDefault)
{
    UINT format = (style & BS_MULTILINE) ? 0 : DT_SINGLELINE;
    switch (style & kHorzBits) {
    case kRightBit:
        format |= DT_RIGHT;
        break;
    case kLeftBit:
        format |= DT_LEFT;
        break;
    case kHorzBits:
        format |= DT_CENTER;
        break;
    default:
        format |= centreByDefault ? DT_CENTER : DT_LEFT;
        break;
    }
    switch (style & kVertBits) {
    case kBottomBit:
        format |= DT_BOTTOM;
        break;
    case kTopBit:
        format |= DT_TOP;
        break;
    default:
        format |= DT_VCENTER;
        break;
    }
    return format;
}

CRect ZoPlaceMeasuredText(const CRect& rect, const CSize& measured, UINT format)
{
    int left = rect.left;
    if (format & DT_CENTER)
        left = CentredStart(rect.left, rect.right, measured.cx);
    else if (format & DT_RIGHT)
        left = rect.right - measured.cx;
    int top = rect.top;
    if (format & DT_BOTTOM)
        top = rect.bottom - measured.cy;
    else if (format & DT_VCENTER)
        top = CentredStart(rect.top, rect.bottom, measured.cy);
    return CRect(left, top, left + measured.cx, top + measured.cy);
}

CRect ZoAxisLinePixels(const POINT& from, const POINT& to)
{
    if (from.y == to.y && from.x != to.x) {
        const int low = HalfOpenLow(from.x, to.x);
        return CRect(low, from.y, low + std::abs(to.x - from.x), from.y + 1);
    }
    if (from.x == to.x && from.y != to.y) {
        const int low = HalfOpenLow(from.y, to.y);
        return CRect(from.x, low, from.x + 1, low + std::abs(to.y - from.y));
    }
    return CRect(from.x, from.y, from.x, from.y);
}

int ZoImageCellColumn(int column, int state)
{
    return column == -1 ? state : column;
}

int ZoImageCellRow(int row, int state, bool rowThreeAllowed)
{
    const int cell = row == -1 ? state : row;
    // The five-row state strips keep row 3 for another use.
    return (cell == 3 && !rowThreeAllowed) ? 4 : cell;
}

ZoImageTextLayout ZoLayoutImageAndText(const CRect& textRect, const CSize& image, bool hasText, int textWidth,
                                       int lineHeight, DWORD style, bool centerAligned, int textGap, bool pressed)
{
    ZoImageTextLayout layout;
    CRect t = textRect;
    const int w = image.cx;
    const int h = image.cy;
    if (!hasText) {
        // A lone image sits in the middle and does not move when pressed.
        layout.image = CPoint(CentredStart(t.left, t.right, w), CentredStart(t.top, t.bottom, h));
        layout.text = t;
        return layout;
    }
    int x = t.left;
    int y = t.top;
    if (w > 0 || h > 0) {
        const int d = (t.Height() - lineHeight - h) / 3;
        t.top += d;
        t.bottom -= d;
        if (style & kTopBit) {
            x = CentredStart(t.left, t.right, w);
            y = t.bottom - h;
            t.bottom = y - textGap;
        } else if (style & kBottomBit) {
            x = CentredStart(t.left, t.right, w);
            y = t.top;
            t.top = t.top + h + textGap;
        } else {
            y = CentredStart(t.top, t.bottom, h);
            if (centerAligned) {
                int gap = static_cast<int>(textWidth * 0.05 + 0.5);
                if (gap < 1)
                    gap = 1;
                x = t.left + (t.Width() - textWidth - gap - w) / 2;
                t.left = x + w + gap + textGap;
            } else {
                x = t.left;
                t.left = x + w + textGap;
            }
        }
    }
    if (pressed) {
        x += 1;
        y += 1;
        t.OffsetRect(1, 1);
    }
    layout.image = CPoint(x, y);
    layout.text = t;
    return layout;
}

CRect ZoGroupBoxFrame(const CRect& client, int lineHeight)
{
    return CRect(client.left, client.top + lineHeight / 2 + 2, client.right, client.bottom);
}

int ZoGroupBoxIndent(float zoom)
{
    return static_cast<int>(zoom * 7 + 0.5);
}

CString ZoPushButtonResourceId(bool /*isDefault*/, E_ZoTheme theme)
{
    // Default and plain push buttons share one skin on purpose.
    const int index = (theme >= ZoTheme_Default && theme < ZoTheme_Count) ? theme : ZoTheme_Default;
    return CString(L"BMP_ZO_BTNDEFPUSH") + kPushResourceSuffix[index];
}

UINT ZoGroupBoxCaptionAlign(DWORD style)
{
    switch (style & kHorzBits) {
    case kRightBit:
        return TA_RIGHT;
    case kHorzBits:
        return TA_CENTER;
    default:
        return TA_LEFT;
    }
}

} // namespace ZoControls
