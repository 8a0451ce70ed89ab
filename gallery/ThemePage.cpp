#include <afxwin.h>

#include "ThemePage.h"
#include "PageParts.h"

using namespace ZoControls;

namespace {

const int kSwatchColumns = 7;
const int kSwatchRowHeight = 18;
const int kSwatchSize = 14;
const int kMargin = 8;
const int kFontRowHeight = 31;
const int kFontLabelWidth = 170;

const CZoThemeManager* Manager()
{
    return CZoThemeManager::GetInstance();
}

} // namespace

void CThemePage::DrawPage(CDC& dc, const CRect& client)
{
    CGalleryPage::DrawPage(dc, client);
    if (!Manager())
        return;
    const int rows = (ZoThemeColor_Count + kSwatchColumns - 1) / kSwatchColumns;
    CRect colors(client.left + kMargin, client.top + kMargin, client.right - kMargin,
                 client.top + kMargin + rows * kSwatchRowHeight);
    _drawColorSlots(dc, colors);
    CRect fonts(colors.left, colors.bottom + kMargin, colors.right, client.bottom - kMargin);
    _drawFontRoles(dc, fonts);
}

void CThemePage::_drawColorSlots(CDC& dc, const CRect& area)
{
    const int rows = (ZoThemeColor_Count + kSwatchColumns - 1) / kSwatchColumns;
    const int columnWidth = area.Width() / kSwatchColumns;
    CFont* pOldFont = dc.SelectObject(const_cast<CFont*>(Manager()->GetCacheGDIFont(ZoThemeFont_0, ZoMonitorSize_Normal)));
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(SlotColor(GallerySlot_CaptionText));
    for (int slot = 0; slot < ZoThemeColor_Count; ++slot) {
        // Column-major, so neighbouring slot numbers stay together.
        const int x = area.left + (slot / rows) * columnWidth;
        const int y = area.top + (slot % rows) * kSwatchRowHeight;
        CRect swatch(x, y + 1, x + kSwatchSize, y + 1 + kSwatchSize);
        dc.FillSolidRect(&swatch, Manager()->GetGDIColor(static_cast<E_ZoThemeColors>(slot), ZoTheme_Default));
        dc.Draw3dRect(&swatch, RGB(128, 128, 128), RGB(128, 128, 128));
        CString label;
        label.Format(L"%d %s", slot, ZoThemeColorName(slot));
        CRect text(swatch.right + 4, y, x + columnWidth - 2, y + kSwatchRowHeight);
        dc.DrawText(label, &text, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
    }
    dc.SelectObject(pOldFont);
}

void CThemePage::_drawFontRoles(CDC& dc, const CRect& area)
{
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(SlotColor(GallerySlot_CaptionText));
    const int sampleWidth = (area.Width() - kFontLabelWidth) / ZoMonitorSize_Count;
    int y = area.top;
    for (int role = 0; role < ZoThemeFont_Count; ++role) {
        // The rotated role needs room to rise.
        const int rowHeight = role == ZoThemeFont_13 ? 2 * kFontRowHeight : kFontRowHeight;
        const CFont* pLabelFont = Manager()->GetCacheGDIFont(ZoThemeFont_1, ZoMonitorSize_Normal);
        CFont* pOldFont = dc.SelectObject(const_cast<CFont*>(pLabelFont));
        LOGFONT info = {};
        const CFont* pNormal = Manager()->GetCacheGDIFont(static_cast<E_ZoThemeFont>(role), ZoMonitorSize_Normal);
        if (pNormal)
            ::GetObject(pNormal->GetSafeHandle(), sizeof(info), &info);
        CString label;
        label.Format(L"Font %d: %s%s", role, info.lfWeight >= FW_BOLD ? L"bold " : L"",
                     info.lfEscapement ? L"vertical" : L"");
        CRect labelRect(area.left, y, area.left + kFontLabelWidth, y + rowHeight);
        dc.DrawText(label, &labelRect, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
        for (int size = 0; size < ZoMonitorSize_Count; ++size) {
            const CFont* pFont = Manager()->GetCacheGDIFont(static_cast<E_ZoThemeFont>(role),
                                                            static_cast<E_ZoMonitorSize>(size));
            if (!pFont)
                continue;
            LOGFONT sample = {};
            ::GetObject(pFont->GetSafeHandle(), sizeof(sample), &sample);
            dc.SelectObject(const_cast<CFont*>(pFont));
            CString text;
            if (sample.lfEscapement)
                text.Format(L"%dpx", -sample.lfHeight);
            else
                text.Format(L"%s %dpx", sample.lfFaceName, -sample.lfHeight);
            const int x = area.left + kFontLabelWidth + size * sampleWidth;
            if (sample.lfEscapement) {
                // Rotated text grows upward from its origin.
                dc.TextOut(x, y + rowHeight - 2, text);
            } else {
                CRect sampleRect(x, y, x + sampleWidth - 4, y + rowHeight);
                dc.DrawText(text, &sampleRect, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
            }
        }
        dc.SelectObject(pOldFont);
        y += rowHeight;
    }
}
