// Geometry and small rules of the list view and its header as plain functions: the header
// item's nine slices and sort arrow, the item state, cell and text rectangles, where the two
// skinned scroll bars go, the row that ensure-visible scrolls to, and which messages change the
// list's scroll state.
#pragma once
#include <afxwin.h>

#include "core/ZoCtrlExport.h"

namespace ZoControls {

// Header item states: also the column group in the header strip and the arrow column.
enum E_ZoHeaderItemState
{
    ZoHeaderState_Normal = 0,
    ZoHeaderState_Hot = 1,
    ZoHeaderState_Empty = 2, // the area right of the last item
    ZoHeaderState_Pressed = 3
};

// Pressed wins over hot.
ZOCTRL_API E_ZoHeaderItemState ZoHeaderItemState(int index, int pressedItem, int hotItem);

// One piece of a skinned header item: a strip cell stretched into `dest`.
struct ZoHeaderPiece
{
    RECT dest;
    int column;
    int row;
};

// The nine slices of an item in `rect` for `state` with cells cw x ch: four corners, top and
// bottom edges, left and right edges, centre.
enum { ZoHeaderPieceCount = 9 };
ZOCTRL_API void ZoHeaderNineSlice(const RECT& rect, int state, int cw, int ch, ZoHeaderPiece pieces[ZoHeaderPieceCount]);

// The sort arrow of an item with an arrow cell aw x ah: shown only when four arrows fit into the
// item's width; the text area then ends (3 aw)/2 + aw further left.
struct ZoHeaderArrow
{
    bool shown;
    ZoHeaderPiece piece;
    int textRight;
};
ZOCTRL_API ZoHeaderArrow ZoHeaderArrowPlacement(const RECT& item, int state, bool ascending, int aw, int ah);

// The cell of a sub-item: the label rectangle widened left to the icon's left edge.
ZOCTRL_API RECT ZoCellRect(const RECT& label, const RECT& icon);
// Where the text of a cell goes: after an image `imageWidth` wide drawn at cell left - 1 (its right
// edge 2 px in), or the cell shrunk by 2 px on both sides when there is no image (imageWidth < 0).
ZOCTRL_API RECT ZoCellTextRect(const RECT& cell, int imageWidth);

// Top row after ensure-visible: the item becomes the last visible row of a page of `page` rows.
ZOCTRL_API int ZoEnsureVisibleTop(int item, int page);

// Where the skinned bars go over a list whose window occupies `list` (parent client coordinates):
// the horizontal bar along the bottom, the vertical one along the right edge, each shortened by
// the other's thickness when the other is shown; the corner square between them.
struct ZoListBarPlacement
{
    RECT horz;
    RECT vert;
    RECT corner;
};
ZOCTRL_API ZoListBarPlacement ZoPlaceListBars(const RECT& list, bool hasHorz, bool hasVert, int horzHeight,
                                              int vertWidth);

// Messages after whose default handling the list's scroll state may have changed and the
// skinned bars are brought in step. `headerCode` is the notification code of a WM_NOTIFY from
// the header (0 otherwise).
ZOCTRL_API bool ZoListMessageChangesScrollState(UINT message, WPARAM wParam, UINT headerCode);

// Messages that may change a list's columns (their formats, places, order) or the height of its
// rows, so that what a paint learnt about the columns no longer holds.
ZOCTRL_API bool ZoListMessageChangesColumns(UINT message);

// Pixels to scroll a list for moving its scroll position from `current` to `target`: columns of
// pixels horizontally, rows of `rowHeight` vertically.
ZOCTRL_API int ZoListScrollPixels(int current, int target, bool vertical, int rowHeight);

// Where a row from `rowTop` to `rowBottom` lies against the band from `areaTop` to `areaBottom`
// that a paint covers: wholly above it, wholly below it, or showing in it.
enum E_ZoRowPlace
{
    ZoRow_Above,
    ZoRow_Shows,
    ZoRow_Below
};
ZOCTRL_API E_ZoRowPlace ZoRowPlace(int rowTop, int rowBottom, int areaTop, int areaBottom);

} // namespace ZoControls
