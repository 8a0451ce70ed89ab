#include "lists/ZoListGeometry.h"

#include <commctrl.h>

namespace ZoControls {

namespace {

ZoHeaderPiece piece(int left, int top, int right, int bottom, int column, int row)
{
    ZoHeaderPiece p;
    p.dest.left = left;
    p.dest.top = top;
    p.dest.right = right;
    p.dest.bottom = bottom;
    p.column = column;
    p.row = row;
    return p;
}

} // namespace

E_ZoHeaderItemState ZoHeaderItemState(int index, int pressedItem, int hotItem)
{
    if (index == pressedItem)
        return ZoHeaderState_Pressed;
    if (index == hotItem)
        return ZoHeaderState_Hot;
    return ZoHeaderState_Normal;
}

void ZoHeaderNineSlice(const RECT& r, int state, int cw, int ch, ZoHeaderPiece pieces[ZoHeaderPieceCount])
{
    const int left = 3 * state;
    const int middle = left + 1;
    const int right = left + 2;
    pieces[0] = piece(r.left, r.top, r.left + cw, r.top + ch, left, 0);
    pieces[1] = piece(r.right - cw, r.top, r.right, r.top + ch, right, 0);
    pieces[2] = piece(r.left, r.bottom - ch, r.left + cw, r.bottom, left, 2);
    pieces[3] = piece(r.right - cw, r.bottom - ch, r.right, r.bottom, right, 2);
    pieces[4] = piece(r.left + cw, r.top, r.right - cw, r.top + ch, middle, 0);
    pieces[5] = piece(r.left + cw, r.bottom - ch, r.right - cw, r.bottom, middle, 2);
    pieces[6] = piece(r.left, r.top + ch, r.left + cw, r.bottom - ch, left, 1);
    pieces[7] = piece(r.right - cw, r.top + ch, r.right, r.bottom - ch, right, 1);
    pieces[8] = piece(r.left + cw, r.top + ch, r.right - cw, r.bottom - ch, middle, 1);
}

ZoHeaderArrow ZoHeaderArrowPlacement(const RECT& item, int state, bool ascending, int aw, int ah)
{
    ZoHeaderArrow arrow;
    arrow.shown = 4 * aw < item.right - item.left;
    arrow.textRight = item.right;
    arrow.piece = piece(0, 0, 0, 0, state, ascending ? 1 : 0);
    if (!arrow.shown)
        return arrow;
    const int x = item.right - (3 * aw) / 2;
    const int y = item.top + (item.bottom - item.top - ah) / 2;
    arrow.piece.dest.left = x;
    arrow.piece.dest.top = y;
    arrow.piece.dest.right = x + aw;
    arrow.piece.dest.bottom = y + ah;
    arrow.textRight = item.right - ((3 * aw) / 2 + aw);
    return arrow;
}

RECT ZoCellRect(const RECT& label, const RECT& icon)
{
    RECT cell = label;
    if (icon.left < cell.left)
        cell.left = icon.left;
    return cell;
}

RECT ZoCellTextRect(const RECT& cell, int imageWidth)
{
    RECT text = cell;
    if (imageWidth >= 0)
    {
        text.left = cell.left - 1 + imageWidth + 1;
        text.right = cell.right - 2;
    }
    else
    {
        text.left = cell.left + 2;
        text.right = cell.right - 2;
    }
    return text;
}

int ZoEnsureVisibleTop(int item, int page)
{
    const int top = item - page + 1;
    return top > 0 ? top : 0;
}

ZoListBarPlacement ZoPlaceListBars(const RECT& list, bool hasHorz, bool hasVert, int horzHeight, int vertWidth)
{
    ZoListBarPlacement placement;
    placement.horz.left = list.left;
    placement.horz.top = list.bottom - horzHeight;
    placement.horz.right = list.right - (hasVert ? vertWidth : 0);
    placement.horz.bottom = list.bottom;
    placement.vert.left = list.right - vertWidth;
    placement.vert.top = list.top;
    placement.vert.right = list.right;
    placement.vert.bottom = list.bottom - (hasHorz ? horzHeight : 0);
    placement.corner.left = list.right - vertWidth;
    placement.corner.top = list.bottom - horzHeight;
    placement.corner.right = list.right;
    placement.corner.bottom = list.bottom;
    return placement;
}

bool ZoListMessageChangesScrollState(UINT message, WPARAM wParam, UINT headerCode)
{
    switch (message)
    {
    case WM_KEYDOWN:
        return wParam == VK_UP || wParam == VK_DOWN || wParam == VK_PRIOR || wParam == VK_NEXT ||
               wParam == VK_HOME || wParam == VK_END;
    case WM_NOTIFY:
        return headerCode == HDN_ITEMCHANGINGA || headerCode == HDN_ITEMCHANGINGW ||
               headerCode == HDN_ITEMCHANGEDA || headerCode == HDN_ITEMCHANGEDW;
    case LVM_INSERTITEMW:
    case LVM_DELETEITEM:
    case LVM_DELETEALLITEMS:
    case LVM_INSERTCOLUMNA:
    case LVM_INSERTCOLUMNW:
    case LVM_DELETECOLUMN:
    case LVM_SETCOLUMNWIDTH:
    case LVM_SETITEMCOUNT: // a virtual list changes its length only this way
        return true;
    default:
        return false;
    }
}

bool ZoListMessageChangesColumns(UINT message)
{
    switch (message)
    {
    case LVM_SETCOLUMNA:
    case LVM_SETCOLUMNW:
    case LVM_INSERTCOLUMNA:
    case LVM_INSERTCOLUMNW:
    case LVM_DELETECOLUMN:
    case LVM_SETCOLUMNWIDTH:
    case LVM_SETCOLUMNORDERARRAY:
    case LVM_SETIMAGELIST:
    case LVM_SETEXTENDEDLISTVIEWSTYLE:
    case LVM_SETVIEW:
    case WM_SETFONT:
    case WM_STYLECHANGED:
    case WM_SETTINGCHANGE:
    case WM_THEMECHANGED:
        return true;
    default:
        return false;
    }
}

int ZoListScrollPixels(int current, int target, bool vertical, int rowHeight)
{
    const int delta = target - current;
    return vertical ? delta * rowHeight : delta;
}

E_ZoRowPlace ZoRowPlace(int rowTop, int rowBottom, int areaTop, int areaBottom)
{
    if (rowBottom <= areaTop)
        return ZoRow_Above;
    if (rowTop >= areaBottom)
        return ZoRow_Below;
    return ZoRow_Shows;
}

} // namespace ZoControls
