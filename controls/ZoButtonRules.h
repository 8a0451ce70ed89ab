// The plain rules of the skinned button, as functions of numbers: the drawing state, the cell of
// the check-box strip, caption formats and placement, image and caption layout, group-box
// geometry and the skin's resource name. CZoButton (ZoButton.h) paints by them; tests call them
// with numbers.
#pragma once
#include <afxwin.h>

#include "core/ZoCtrlExport.h"
#include "core/ZoThemeTypes.h"

namespace ZoControls {

// The state every colour table and state-following image cell is indexed by.
enum E_ZoButtonStates
{
    BS_ZO_NORMAL = 0,
    BS_ZO_HOT = 1,
    BS_ZO_PRESSED = 2,
    BS_ZO_DISABLED = 3,
    BS_ZO_COUNT = 4
};

// The four border lines of a push button.
enum E_ZoFlatButtonLines
{
    LINE_LEFT = 0,
    LINE_TOP = 1,
    LINE_RIGHT = 2,
    LINE_BOTTOM = 3,
    LINE_COUNT = 4
};

// A line colour that means "this line is not drawn".
const COLORREF ZO_LINE_NOT_DRAWN = 0x00FF00FF;

// True for the four drawing states and the four border lines; the setters ignore anything else.
ZOCTRL_API bool ZoIsButtonState(int state);
ZOCTRL_API bool ZoIsButtonLine(int line);

// State of a push button from IsWindowEnabled, BM_GETSTATE and the hovering flag.
ZOCTRL_API E_ZoButtonStates ZoPushButtonState(bool enabled, UINT buttonState, bool hovering);

// Cell of the check-box/radio strip: the row is the box kind and check state, the column the state.
ZOCTRL_API int ZoCheckCellRow(bool isCheckbox, UINT buttonState);
ZOCTRL_API int ZoCheckCellColumn(bool enabled, UINT buttonState, bool hovering);
// Top-left corner of the box cell of size `unit` in `client`.
ZOCTRL_API CPoint ZoCheckCellOrigin(const CRect& client, int unit, DWORD style);

// DrawText flags of a push button's caption. Each alignment bit is tested alone, so BS_CENTER
// aligns left and BS_VCENTER aligns top; only the absence of both bits centres.
ZOCTRL_API UINT ZoPushButtonTextFormat(DWORD style);
// DrawText flags of a check box, radio or plain caption; `centreByDefault` decides what no
// horizontal bit means.
ZOCTRL_API UINT ZoCaptionTextFormat(DWORD style, bool centreByDefault);
// Where text measured as `measured` goes in `rect` for `format`.
ZOCTRL_API CRect ZoPlaceMeasuredText(const CRect& rect, const CSize& measured, UINT format);

// The pixels a one-pixel pen draws from `from` to `to` on a row or a column: every pixel from
// `from` up to, not including, `to`; empty for a zero-length line.
ZOCTRL_API CRect ZoAxisLinePixels(const POINT& from, const POINT& to);

// Cell index of an image axis: the fixed index, or the state when the axis follows it.
ZOCTRL_API int ZoImageCellColumn(int column, int state);
// As above for rows; while row 3 is not allowed it is drawn as row 4.
ZOCTRL_API int ZoImageCellRow(int row, int state, bool rowThreeAllowed);

// Where an image and a push button's caption go.
struct ZoImageTextLayout
{
    CPoint image;  // top-left corner of the image
    CRect text;    // rectangle the caption is drawn in (pressed offset included)
};

// `textRect` is the button less its text margins, `image` the image or cell size (0 x 0 for no
// image), `textWidth` and `lineHeight` the caption's width and the height of "Hy".
ZOCTRL_API ZoImageTextLayout ZoLayoutImageAndText(const CRect& textRect, const CSize& image, bool hasText,
                                                  int textWidth, int lineHeight, DWORD style, bool centerAligned,
                                                  int textGap, bool pressed);

// Group box: the frame below half the caption height, and the caption's indent at `zoom`.
ZOCTRL_API CRect ZoGroupBoxFrame(const CRect& client, int lineHeight);
ZOCTRL_API int ZoGroupBoxIndent(float zoom);
// Text alignment of a group box's caption: TA_RIGHT for BS_RIGHT alone, TA_CENTER for BS_CENTER,
// else TA_LEFT.
ZOCTRL_API UINT ZoGroupBoxCaptionAlign(DWORD style);

// The background skin of every push kind and theme: "BMP_ZO_BTNDEFPUSH_NORMAL".
ZOCTRL_API CString ZoPushButtonResourceId(bool isDefault, E_ZoTheme theme);

} // namespace ZoControls
