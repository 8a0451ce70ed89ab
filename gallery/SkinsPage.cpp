#include <afxwin.h>

#include <algorithm>

#include "SkinsPage.h"
#include "PageParts.h"

using namespace ZoControls;

namespace {

const int kMargin = 8;
const int kGap = 10;
const int kLabelHeight = 16;
const int kColumnNumbersHeight = 12;
const int kRowNumbersWidth = 16;
const int kMinTileWidth = 130;
const int kMaxScale = 4;
const UINT kCheckRadioPng = 808;
const COLORREF kKey = RGB(255, 0, 255);

// Every strip with the grid its control cuts it into; `variants` marks the strips that have
// "_3M" and "_5M" pictures of their own.
struct StripInfo
{
    const wchar_t* name;
    int columns;
    int rows;
    bool variants;
};

const StripInfo kStrips[] = {
    {L"BMP_ZO_BTNDEFPUSH_NORMAL", 12, 3, false},
    {L"BMP_ZO_CMBDROPDOWNLIST", 12, 9, false},
    {L"BMP_ZO_CMBDROPDOWNLISTBTN", 4, 2, false},
    {L"BMP_ZO_CMBDROPDOWNLISTBTNBACK", 12, 9, false},
    {L"BMP_ZO_DLGSYSBTNS", 4, 4, true},
    {L"BMP_ZO_EDIT", 12, 9, false},
    {L"BMP_ZO_HEADER", 12, 3, false},
    {L"BMP_ZO_HEADERSORT", 4, 2, false},
    {L"BMP_ZO_PROGRHOR", 4, 1, false},
    {L"BMP_ZO_PROGRVER", 4, 1, false},
    {L"BMP_ZO_SCROLLHOR_BACK", 4, 2, true},
    {L"BMP_ZO_SCROLLHOR_BTNS", 4, 4, true},
    {L"BMP_ZO_SCROLLHOR_THUMB", 12, 2, true},
    {L"BMP_ZO_SCROLLVER_BACK", 4, 2, true},
    {L"BMP_ZO_SCROLLVER_BTNS", 4, 4, true},
    {L"BMP_ZO_SCROLLVER_THUMB", 4, 6, true},
    {L"BMP_ZO_SKIN_FRAMEWNDBORDER", 3, 4, false},
    {L"BMP_ZO_SLIDERNORMAL_HOR_BOTH", 4, 1, false},
    {L"BMP_ZO_SLIDERNORMAL_HOR_LEFT", 4, 1, false},
    {L"BMP_ZO_SLIDERNORMAL_HOR_RIGHT", 4, 1, false},
    {L"BMP_ZO_SLIDERNORMAL_VER_BOTH", 4, 1, false},
    {L"BMP_ZO_SLIDERNORMAL_VER_LEFT", 4, 1, false},
    {L"BMP_ZO_SLIDERNORMAL_VER_RIGHT", 4, 1, false},
    {L"BMP_ZO_TABBTN_TOP", 12, 6, false},
    {L"BMP_ZO_TABBTN_BOTTOM", 12, 6, false},
    {L"BMP_ZO_TABBTN_LEFT", 4, 18, false},
    {L"BMP_ZO_TABBTN_RIGHT", 4, 18, false},
    {L"BMP_ZO_TABFRAME", 3, 9, false},
    {L"BMP_ZO_TREELISTICON", 8, 1, false},
};

const CZoThemeManager* Manager()
{
    return CZoThemeManager::GetInstance();
}

int TileWidth(const CSkinsPage::Tile& tile, int scale)
{
    return std::max(std::max(kRowNumbersWidth + tile.width * scale, kMinTileWidth), tile.labelWidth);
}

int TileHeight(const CSkinsPage::Tile& tile, int scale)
{
    return kLabelHeight + kColumnNumbersHeight + tile.height * scale;
}

} // namespace

CSkinsPage::CSkinsPage() : m_sizeClass(ZoMonitorSize_Normal)
{
}

CSkinsPage::CSkinsPage(E_ZoMonitorSize sizeClass) : m_sizeClass(sizeClass)
{
}

int CSkinsPage::LayoutTiles(std::vector<Tile>& tiles, const CRect& area, int scale)
{
    std::stable_sort(tiles.begin(), tiles.end(), [](const Tile& a, const Tile& b) { return a.height > b.height; });
    int x = area.left;
    int y = area.top;
    int rowHeight = 0;
    for (Tile& tile : tiles) {
        const int width = TileWidth(tile, scale);
        if (x > area.left && x + width > area.right) {
            x = area.left;
            y += rowHeight + kGap;
            rowHeight = 0;
        }
        tile.place = CRect(x, y, x + width, y + TileHeight(tile, scale));
        rowHeight = std::max(rowHeight, tile.place.Height());
        x += width + kGap;
    }
    return y + rowHeight;
}

std::vector<CSkinsPage::Tile> CSkinsPage::_makeTiles() const
{
    std::vector<Tile> tiles;
    for (const StripInfo& strip : kStrips) {
        if (m_sizeClass != ZoMonitorSize_Normal && !strip.variants)
            continue;
        CZoResourceBMPImage image;
        if (!image.LoadResourceImage(strip.name, m_sizeClass, strip.columns, strip.rows))
            continue;
        tiles.push_back(Tile{strip.name, strip.columns, strip.rows, image.GetWidth(), image.GetHeight(), CRect()});
    }
    if (m_sizeClass == ZoMonitorSize_Normal) {
        CZoResourcePNGImage png;
        if (png.LoadResourceImage(kCheckRadioPng, 4, 5))
            tiles.push_back(Tile{NULL, 4, 5, png.GetWidth(), png.GetHeight(), CRect()});
    }
    return tiles;
}

void CSkinsPage::DrawPage(CDC& dc, const CRect& client)
{
    CGalleryPage::DrawPage(dc, client);
    if (!Manager())
        return;
    std::vector<Tile> tiles = _makeTiles();
    CFont* pOldFont = dc.SelectObject(const_cast<CFont*>(Manager()->GetCacheGDIFont(ZoThemeFont_0, ZoMonitorSize_Normal)));
    for (Tile& tile : tiles) {
        // An eighth more than measured: under Wine this small font's glyphs come out up to a
        // tenth wider than their measured extent.
        tile.labelWidth = dc.GetTextExtent(_label(tile)).cx * 9 / 8;
    }
    CRect area(client);
    area.DeflateRect(kMargin, kMargin);
    // The largest magnification that fits; at worst the natural size.
    int scale = kMaxScale;
    while (scale > 1 && LayoutTiles(tiles, area, scale) > area.bottom - kLabelHeight)
        --scale;
    const int bottom = LayoutTiles(tiles, area, scale);

    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(SlotColor(GallerySlot_CaptionText));
    const int oldMode = dc.SetStretchBltMode(COLORONCOLOR);
    for (const Tile& tile : tiles)
        _drawTile(dc, tile, scale);
    dc.SetStretchBltMode(oldMode);

    CString note;
    note.Format(L"Magnified %d times. ", scale);
    if (m_sizeClass != ZoMonitorSize_Normal)
        note += L"Every other strip falls back to its normal picture at this size class.";
    else
        note += L"The check-box PNG rows are composed over button face slots 13 to 17.";
    CRect noteRect(area.left, bottom + 4, area.right, bottom + 4 + kLabelHeight);
    dc.DrawText(note, &noteRect, DT_SINGLELINE | DT_NOPREFIX);
    dc.SelectObject(pOldFont);
}

// The tile's caption: the resource name at this size class and the strip's columns and rows.
CString CSkinsPage::_label(const Tile& tile) const
{
    CString label = tile.name ? ZoResourceNameForSize(tile.name, m_sizeClass) : CString(L"PNG 808");
    CString size;
    size.Format(L"  %dx%d", tile.columns, tile.rows);
    return label + size;
}

void CSkinsPage::_drawTile(CDC& dc, const Tile& tile, int scale) const
{
    CRect labelRect(tile.place.left, tile.place.top, tile.place.right, tile.place.top + kLabelHeight);
    dc.DrawText(_label(tile), &labelRect, DT_SINGLELINE | DT_END_ELLIPSIS | DT_NOPREFIX);

    const int left = tile.place.left + kRowNumbersWidth;
    const int top = labelRect.bottom + kColumnNumbersHeight;
    const CRect picture(left, top, left + tile.width * scale, top + tile.height * scale);
    dc.FillSolidRect(&picture, SlotColor(GallerySlot_ControlBack));
    _drawPicture(dc, tile, picture, scale);
    _drawGrid(dc, tile, picture, scale);
}

void CSkinsPage::_drawPicture(CDC& dc, const Tile& tile, const CRect& picture, int scale) const
{
    CZoResourceBMPImage bitmap;
    CZoResourcePNGImage png;
    CZoResourceImage* image = &bitmap;
    if (tile.name) {
        bitmap.LoadResourceImage(tile.name, m_sizeClass, tile.columns, tile.rows);
    } else {
        png.LoadResourceImage(kCheckRadioPng, tile.columns, tile.rows);
        png.SetControlDefaultThema(ThemeSlot(GallerySlot_ButtonFace));
        image = &png;
    }
    const int uw = image->GetUnitWidth();
    const int uh = image->GetUnitHeight();
    for (int row = 0; row < tile.rows; ++row)
        for (int column = 0; column < tile.columns; ++column)
            image->DrawUnitImage(dc, picture.left + column * uw * scale, picture.top + row * uh * scale, uw * scale,
                                 uh * scale, column, row, kKey);
}

void CSkinsPage::_drawGrid(CDC& dc, const Tile& tile, const CRect& picture, int scale) const
{
    const int cellWidth = tile.width / tile.columns * scale;
    const int cellHeight = tile.height / tile.rows * scale;
    CPen pen(PS_SOLID, 1, SlotColor(GallerySlot_Unassigned));
    CPen* pOldPen = dc.SelectObject(&pen);
    for (int column = 0; column <= tile.columns; ++column) {
        dc.MoveTo(picture.left + column * cellWidth, picture.top);
        dc.LineTo(picture.left + column * cellWidth, picture.top + tile.rows * cellHeight + 1);
    }
    for (int row = 0; row <= tile.rows; ++row) {
        dc.MoveTo(picture.left, picture.top + row * cellHeight);
        dc.LineTo(picture.left + tile.columns * cellWidth + 1, picture.top + row * cellHeight);
    }
    dc.SelectObject(pOldPen);

    // Numbers every few cells where the cells are narrower than a number.
    const int columnStep = std::max(1, (14 + cellWidth - 1) / std::max(1, cellWidth));
    for (int column = 0; column < tile.columns; column += columnStep) {
        CString number;
        number.Format(L"%d", column);
        CRect rect(picture.left + column * cellWidth, picture.top - kColumnNumbersHeight,
                   picture.left + (column + columnStep) * cellWidth, picture.top);
        dc.DrawText(number, &rect, DT_SINGLELINE | DT_CENTER | DT_BOTTOM | DT_NOPREFIX | DT_NOCLIP);
    }
    const int rowStep = std::max(1, (10 + cellHeight - 1) / std::max(1, cellHeight));
    for (int row = 0; row < tile.rows; row += rowStep) {
        CString number;
        number.Format(L"%d", row);
        CRect rect(picture.left - kRowNumbersWidth, picture.top + row * cellHeight, picture.left - 2,
                   picture.top + (row + rowStep) * cellHeight);
        dc.DrawText(number, &rect, DT_SINGLELINE | DT_RIGHT | DT_VCENTER | DT_NOPREFIX | DT_NOCLIP);
    }
}
