#include <afxwin.h>

#include "PageParts.h"
#include "ZoCtrl.h"

using namespace ZoControls;

namespace {

const int kHeadingHeight = 20;
const int kLabelHeight = 16;
const int kHeadingWidth = 1000; // the page's width: headings are never clipped
// Theme slots of the captions: labels as group-box text, headings as dialog caption text.
const int kLabelSlot = 50;
const int kHeadingSlot = 2;
const int kOutlineSlot = 49;

} // namespace

void CPageLabels::AddHeading(int x, int y, const wchar_t* text)
{
    const Label label = {CRect(x, y, x + kHeadingWidth, y + kHeadingHeight), text, true};
    m_labels.push_back(label);
}

void CPageLabels::AddLabel(const CRect& rect, const wchar_t* text)
{
    const Label label = {rect, text, false};
    m_labels.push_back(label);
}

void CPageLabels::AddColumnLabels(int x, int y, int columnWidth, const wchar_t* const* texts, int count)
{
    for (int i = 0; i < count; ++i)
        AddLabel(CRect(x + i * columnWidth, y - kLabelHeight, x + (i + 1) * columnWidth, y), texts[i]);
}

void CPageLabels::AddOutline(const CRect& control)
{
    CRect outline = control;
    outline.InflateRect(1, 1);
    m_outlines.push_back(outline);
}

void CPageLabels::Draw(CDC& dc) const
{
    const CZoThemeManager* pTheme = CZoThemeManager::GetInstance();
    if (!pTheme)
        return;
    const COLORREF outlineColor = pTheme->GetGDIColor(static_cast<E_ZoThemeColors>(kOutlineSlot), ZoTheme_Default);
    for (size_t i = 0; i < m_outlines.size(); ++i)
        dc.Draw3dRect(&m_outlines[i], outlineColor, outlineColor);
    const CFont* pLabelFont = pTheme->GetCacheGDIFont(ZoThemeFont_1, ZoMonitorSize_Normal);
    const CFont* pHeadingFont = pTheme->GetCacheGDIFont(ZoThemeFont_9, ZoMonitorSize_Normal);
    CFont* pOldFont = dc.SelectObject(const_cast<CFont*>(pLabelFont));
    const int oldMode = dc.SetBkMode(TRANSPARENT);
    const COLORREF oldColor = dc.GetTextColor();
    for (size_t i = 0; i < m_labels.size(); ++i) {
        const Label& label = m_labels[i];
        dc.SelectObject(const_cast<CFont*>(label.heading ? pHeadingFont : pLabelFont));
        dc.SetTextColor(pTheme->GetGDIColor(static_cast<E_ZoThemeColors>(label.heading ? kHeadingSlot : kLabelSlot),
                                            ZoTheme_Default));
        CRect rect = label.rect;
        dc.DrawText(label.text, &rect, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
    }
    dc.SetTextColor(oldColor);
    dc.SetBkMode(oldMode);
    dc.SelectObject(pOldFont);
}

CRect GridCell(const CRect& first, const CSize& step, int column, int row)
{
    CRect cell = first;
    cell.OffsetRect(column * step.cx, row * step.cy);
    return cell;
}

HBITMAP LoadLibraryBitmap(LPCWSTR name)
{
    return static_cast<HBITMAP>(::LoadImageW(AfxFindResourceHandle(name, RT_BITMAP), name, IMAGE_BITMAP, 0, 0, 0));
}

void ShowNextCount(CWnd* pWnd, const wchar_t* what, int& count)
{
    if (!pWnd || !::IsWindow(pWnd->GetSafeHwnd()))
        return;
    ++count;
    CString text;
    text.Format(count == 1 ? L"%s %d time" : L"%s %d times", what, count);
    pWnd->SetWindowText(text);
}

COLORREF SlotColor(GallerySlot slot, COLORREF fallback)
{
    const CZoThemeManager* pTheme = CZoThemeManager::GetInstance();
    return pTheme ? pTheme->GetGDIColor(ThemeSlot(slot), ZoTheme_Default) : fallback;
}
