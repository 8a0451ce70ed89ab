// The skinned dialog's rules as plain functions of plain values: frame and caption sizes, the
// style changes made at creation, where the system buttons go, what the mouse is over, which
// button state follows which mouse event, and how monitor scaling moves rectangles. CZoDialog
// calls them with what it reads from its window; tests call them with numbers.
#pragma once
#include <afxwin.h>

#include "core/ZoCtrlExport.h"
#include "core/ZoThemeTypes.h"

namespace ZoControls {

// Frame and caption sizes the dialog paints, in pixels; all 0 until its resources are loaded.
struct BorderDim
{
    int left;
    int right;
    int top;
    int bottom;
    int caption;
};

// Row of the system-button strip, and index of the button state and rectangle arrays.
enum E_ZoSysButtonRow
{
    ZoSysButton_None = -1,
    ZoSysButton_Minimize = 0,
    ZoSysButton_Maximize = 1,
    ZoSysButton_Close = 2,
    ZoSysButton_Restore = 3,
    ZoSysButton_Count = 4
};

// A system button's look: the column of its strip cell.
enum E_ZoSysButtonState
{
    ZoSysButtonState_Normal = 0,
    ZoSysButtonState_Hot = 1,
    ZoSysButtonState_Pressed = 2,
    ZoSysButtonState_Disabled = 3
};

// The style bits the dialog keeps for itself when it is created: the system menu and the two
// boxes it then draws on its own.
const DWORD ZO_DIALOG_FRAME_STYLE_MASK = WS_SYSMENU | WS_MINIMIZEBOX | WS_MAXIMIZEBOX;
// Taken away at creation, so that the system draws no boxes of its own.
const DWORD ZO_DIALOG_STYLE_REMOVED = WS_MINIMIZEBOX | WS_MAXIMIZEBOX | DS_SETFONT;
// Added at creation.
const DWORD ZO_DIALOG_STYLE_ADDED = DS_SETFONT | DS_FIXEDSYS;
// The caption bar is as high on every monitor size class.
const int ZO_DIALOG_CAPTION_HEIGHT = 22;
// Cells across and down the system-button strip: states by rows.
const int ZO_DIALOG_SYSBTN_COLUMNS = 4;
const int ZO_DIALOG_SYSBTN_ROWS = 4;
// The caption text starts this far right of the left border.
const int ZO_DIALOG_CAPTION_TEXT_INDENT = 5;

// Border width the dialog paints for a size class: 2, 5 or 7; 0 for anything else.
ZOCTRL_API int ZoDialogBorderSize(int monitorSize);

// The borders and caption of a dialog of window style `style` on size class `monitorSize`:
// borders only with WS_DLGFRAME, a caption only with the whole of WS_CAPTION.
ZOCTRL_API BorderDim ZoDialogBorders(DWORD style, int monitorSize);

// The states of the four buttons at rest: close normal, minimize and maximize normal when the
// frame style has their box, else disabled; restore normal.
ZOCTRL_API void ZoDialogRestingStates(DWORD frameStyle, int states[ZoSysButton_Count]);

// Where the four buttons go in a window `windowWidth` wide (window coordinates, origin at its
// top-left corner) for `cellWidth` x `cellHeight` cells: close at the right of the caption,
// maximize (or restore when `zoomed`) and minimize to its left when the frame style has either
// box. A button not shown gets an empty rectangle.
ZOCTRL_API void ZoDialogSysButtonRects(int windowWidth, const BorderDim& border, int cellWidth, int cellHeight,
                                       DWORD frameStyle, bool zoomed, CRect rects[ZoSysButton_Count]);

// The answer to WM_NCHITTEST for `point` (window coordinates), given the platform's answer.
// Close answers HTMAXBUTTON as maximize does: the platform is never told about a close button.
ZOCTRL_API LRESULT ZoDialogHitTest(LRESULT platformHit, const CPoint& point, const CRect rects[ZoSysButton_Count],
                                   DWORD frameStyle, int windowWidth, int captionHeight);

// The button under `point` for a non-client hit code, or ZoSysButton_None.
ZOCTRL_API E_ZoSysButtonRow ZoDialogSysButtonAt(const CPoint& point, UINT hit, const CRect rects[ZoSysButton_Count],
                                                DWORD frameStyle);

// States after the mouse moved over `over` while `pressed` is held (ZoSysButton_None for either
// when nothing): resting states, the hovered button hot when nothing is pressed, the pressed
// button pressed while the mouse is over it. The restore state is never changed.
ZOCTRL_API void ZoDialogStatesOnMove(DWORD frameStyle, E_ZoSysButtonRow over, E_ZoSysButtonRow pressed,
                                     int states[ZoSysButton_Count]);

// What a click released over a button does.
enum E_ZoSysButtonAction
{
    ZoSysAction_None,
    ZoSysAction_Close,     // post WM_SYSCOMMAND SC_CLOSE
    ZoSysAction_Maximize,
    ZoSysAction_Restore,
    ZoSysAction_Minimize
};

// The action of releasing the mouse over `released` after pressing `pressed`; nothing unless
// they are the same button.
ZOCTRL_API E_ZoSysButtonAction ZoDialogReleaseAction(E_ZoSysButtonRow pressed, E_ZoSysButtonRow released,
                                                     bool zoomed, bool iconic);

// The client rectangle (window coordinates) the platform proposes, kept inside the frame and
// caption the dialog paints: where the platform's own frame is thinner than the painted one (a
// smaller tool-window caption), the client edges move in, else they stay.
ZOCTRL_API CRect ZoDialogClientInsideFrame(const CRect& proposed, int windowWidth, int windowHeight,
                                           const BorderDim& border);

} // namespace ZoControls
