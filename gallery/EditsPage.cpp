#include <afxwin.h>

#include "EditsPage.h"

using namespace ZoControls;

namespace {

const DWORD kChild = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
const int kMargin = 10;

// Edits: one row of single-line, one of multi-line, a column each.
const CRect kSingleCell(kMargin, 46, kMargin + 170, 70);
const CRect kMultiCell(kMargin, 130, kMargin + 170, 194);
const CSize kEditStep(190, 0);
const wchar_t* const kSingleLabels[] = {L"normal", L"focused", L"disabled", L"read-only"};
const wchar_t* const kMultiLabels[] = {L"normal", L"disabled", L"read-only"};

// Combos: a row per class, a column per style; the rectangles include the dropped list.
const int kComboLeft = 200;
const int kCombosTop = 260;
const CRect kComboCell(kComboLeft, kCombosTop, kComboLeft + 170, kCombosTop + 160);
const CSize kComboStep(190, 96);
const int kSimpleHeight = 80;
const DWORD kStyles[] = {CBS_DROPDOWN, CBS_DROPDOWNLIST, CBS_SIMPLE};
const wchar_t* const kStyleLabels[] = {L"CBS_DROPDOWN", L"CBS_DROPDOWNLIST", L"CBS_SIMPLE"};
const wchar_t* const kRowLabels[] = {L"CZoComboBox", L"CZoComboBoxBtnFeel", L"CZoComboBoxTextDark", L"disabled"};
const wchar_t* const kItems[] = {L"Amsterdam", L"Berlin", L"Copenhagen", L"Dublin", L"Edinburgh"};

const UINT kFirstEditId = 1300;
const UINT kFirstComboId = 1320;

} // namespace

CEditsPage::CEditsPage() {}

CEditsPage::~CEditsPage() {}

BOOL CEditsPage::OnCreatePage() { return _createEdits() && _createCombos(); }

BOOL CEditsPage::_createEdits()
{
    m_labels.AddHeading(kMargin, 8, L"Single-line edits");
    m_labels.AddColumnLabels(kSingleCell.left, kSingleCell.top - 2, kEditStep.cx, kSingleLabels, SingleCount);
    for (int i = 0; i < SingleCount; ++i)
    {
        const DWORD readOnly = i == 3 ? ES_READONLY : 0;
        if (!m_aSingle[i].Create(kChild | ES_AUTOHSCROLL | readOnly, GridCell(kSingleCell, kEditStep, i, 0), this,
                                 kFirstEditId + i))
            return FALSE;
        m_aSingle[i].SetWindowText(L"Edit me: 12,345.67");
    }
    m_aSingle[2].EnableWindow(FALSE);

    m_labels.AddHeading(kMargin, 92, L"Multi-line edits");
    m_labels.AddColumnLabels(kMultiCell.left, kMultiCell.top - 2, kEditStep.cx, kMultiLabels, MultiCount);
    for (int i = 0; i < MultiCount; ++i)
    {
        const DWORD readOnly = i == 2 ? ES_READONLY : 0;
        if (!m_aMulti[i].Create(kChild | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN | WS_VSCROLL | readOnly,
                                GridCell(kMultiCell, kEditStep, i, 0), this, kFirstEditId + SingleCount + i))
            return FALSE;
        m_aMulti[i].SetWindowText(L"First line\r\nSecond line\r\nThird line\r\nFourth line");
    }
    m_aMulti[1].EnableWindow(FALSE);
    m_aSingle[1].SetFocus();
    return TRUE;
}

BOOL CEditsPage::_fillCombo(CZoComboBox& combo, DWORD style, const CRect& rect, UINT nID)
{
    CRect area = rect;
    if (style == CBS_SIMPLE)
        area.bottom = area.top + kSimpleHeight;
    if (!combo.Create(kChild | WS_VSCROLL | style, area, this, nID))
        return FALSE;
    for (const wchar_t* item : kItems)
        combo.AddString(item);
    combo.SetCurSel(1);
    return TRUE;
}

BOOL CEditsPage::_createCombos()
{
    m_labels.AddHeading(kMargin, kCombosTop - 44, L"Combo boxes in each style");
    m_labels.AddColumnLabels(kComboCell.left, kComboCell.top - 2, kComboStep.cx, kStyleLabels, StyleCount);
    CZoComboBox* rows[] = {m_aBase, m_aBtnFeel, m_aTextDark};
    UINT nID = kFirstComboId;
    for (int row = 0; row < 3; ++row)
    {
        m_labels.AddLabel(GridCell(CRect(kMargin, kCombosTop, kComboLeft - 10, kCombosTop + 24), kComboStep, 0, row),
                          kRowLabels[row]);
        for (int column = 0; column < StyleCount; ++column)
            if (!_fillCombo(rows[row][column], kStyles[column], GridCell(kComboCell, kComboStep, column, row), nID++))
                return FALSE;
    }
    m_labels.AddLabel(GridCell(CRect(kMargin, kCombosTop, kComboLeft - 10, kCombosTop + 24), kComboStep, 0, 3),
                      kRowLabels[3]);
    for (int column = 0; column < DisabledCount; ++column)
    {
        if (!_fillCombo(m_aDisabled[column], kStyles[column], GridCell(kComboCell, kComboStep, column, 3), nID++))
            return FALSE;
        m_aDisabled[column].EnableWindow(FALSE);
    }
    // An empty drop-list selection shows no text.
    m_aBtnFeel[1].SetCurSel(-1);
    return TRUE;
}

void CEditsPage::DrawPage(CDC& dc, const CRect& client)
{
    CGalleryPage::DrawPage(dc, client);
    m_labels.Draw(dc);
}
