#include "controls/ZoSkinFrame.h"

#include "images/ZoResourceImage.h"

namespace ZoControls {

namespace {

const COLORREF kTransparent = RGB(255, 0, 255);

ZoFramePiece piece(int left, int top, int right, int bottom, int column, int row)
{
    ZoFramePiece result;
    result.dest.SetRect(left, top, right, bottom);
    result.column = column;
    result.row = row;
    return result;
}

} // namespace

void ZoFramePieces(const CRect& rect, int cellWidth, int cellHeight, ZoFramePiece pieces[ZoFramePieceCount])
{
    const int w = cellWidth;
    const int h = cellHeight;
    const int l = rect.left;
    const int t = rect.top;
    const int r = rect.right;
    const int b = rect.bottom;
    pieces[0] = piece(l, t, l + w, t + h, 0, 0);
    pieces[1] = piece(r - w, t, r, t + h, 2, 0);
    pieces[2] = piece(l, b - h, l + w, b, 0, 2);
    pieces[3] = piece(r - w, b - h, r, b, 2, 2);
    pieces[4] = piece(l + w, t, r - w, t + h, 1, 0);
    pieces[5] = piece(l + w, b - h, r - w, b, 1, 2);
    pieces[6] = piece(l, t + h, l + w, b - h, 0, 1);
    pieces[7] = piece(r - w, t + h, r, b - h, 2, 1);
    pieces[ZoFrameCentrePiece] = piece(l + w, t + h, r - w, b - h, 1, 1);
}

void ZoDrawSkinFrame(CDC& dc, const CZoResourceBMPImage* skin, const CRect& rect, int firstColumn, int firstRow,
                     bool withCentre)
{
    if (!skin || !skin->IsLoaded())
        return;
    ZoFramePiece pieces[ZoFramePieceCount];
    ZoFramePieces(rect, skin->GetUnitWidth(), skin->GetUnitHeight(), pieces);
    const int count = withCentre ? ZoFramePieceCount : ZoFrameCentrePiece;
    for (int i = 0; i < count; ++i)
    {
        const CRect& dest = pieces[i].dest;
        if (dest.Width() <= 0 || dest.Height() <= 0)
            continue;
        skin->DrawUnitImage(dc, dest.left, dest.top, dest.Width(), dest.Height(), firstColumn + pieces[i].column,
                            firstRow + pieces[i].row, kTransparent);
    }
}

} // namespace ZoControls
