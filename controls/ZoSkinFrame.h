// Frames cut from a 3 x 3 block of equal skin cells, as the edit's border and the combo box's
// frame draw them: corners at the cells' natural size, edges stretched between the corners, the
// centre stretched over the rest.
#pragma once
#include <afxwin.h>

#include "core/ZoCtrlExport.h"

namespace ZoControls {

class CZoResourceBMPImage;

// One piece of such a frame: where it goes and which cell of the 3 x 3 block it shows.
struct ZoFramePiece
{
    CRect dest;
    int column; // 0 left, 1 middle, 2 right
    int row;    // 0 top, 1 middle, 2 bottom
};

enum
{
    ZoFramePieceCount = 9,
    ZoFrameCentrePiece = 8 // the last piece is the centre
};

// The nine pieces of `rect` for cells of cellWidth x cellHeight: four corners, top and bottom
// edges, left and right edges, centre. Pieces of a rectangle smaller than two cells come out
// empty or inverted; drawing skips them.
ZOCTRL_API void ZoFramePieces(const CRect& rect, int cellWidth, int cellHeight, ZoFramePiece pieces[ZoFramePieceCount]);

// Draws the frame of `rect` from the block whose top-left cell is (firstColumn, firstRow) of
// `skin`, magenta left out; the centre only when `withCentre`. Nothing when the skin is not
// loaded.
ZOCTRL_API void ZoDrawSkinFrame(CDC& dc, const CZoResourceBMPImage* skin, const CRect& rect, int firstColumn,
                                int firstRow, bool withCentre);

} // namespace ZoControls
