// The skinned edit box.
// Classes in this file:
//   CZoEdit   a single- or multi-line edit that keeps the platform's editing, takes the theme's
//             font and colours (through the reflected WM_CTLCOLOR) and paints its thin border in
//             the non-client area from a nine-cell skin, in a state that follows enabled, focus
//             and read-only
// plus the rule that picks the border state, as a function of plain values.
#pragma once
#include <afxwin.h>

#include "controls/ZoButton.h"
#include "core/ZoCtrlExport.h"
#include "core/ZoMenuRouting.h"
#include "core/ZoThemeTypes.h"

namespace ZoControls {

class CZoResourceBMPImage;
class CZoComboBox;

// Border state: disabled wins, then focus (never for a read-only edit), else normal.
// The hot and pressed columns of the skin are not used by edits.
ZOCTRL_API E_ZoButtonStates ZoEditBorderState(bool enabled, bool readOnly, bool focused);

class ZOCTRL_API CZoEdit : public CEdit
{
    DECLARE_DYNAMIC(CZoEdit)

public:
    // Theme asked of the parent when the window is attached or created.
    explicit CZoEdit(E_ZoThemeFont font = ZoThemeFont_1);
    ~CZoEdit() override;

protected:
    // A theme fixed by the owner (the combo box's inner edit): the parent is not asked.
    CZoEdit(E_ZoTheme theme, E_ZoThemeFont font);
    friend class CZoComboBox;

    void PreSubclassWindow() override;

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // The border band: slot 0 under eight skin pieces of the current state.
    void _drawNcEdit(CDC& dc, const CRect& rect);
    // Draws the band into `dc`, whose origin is the window's top-left corner, leaving the inside.
    void _paintBorderInto(CDC& dc);
    void _init();
    void _loadResources();
    void _releaseResources();
    int _getResourceRowIndex(E_ZoTheme theme) const { return theme; }

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnNcPaint();
    afx_msg HBRUSH CtlColor(CDC* pDC, UINT nCtlColor);
    afx_msg BOOL OnEnKillfocus();
    afx_msg BOOL OnEnSetfocus();
    ZO_DECLARE_MENUXP_FORWARDING()
    DECLARE_MESSAGE_MAP()

    E_ZoTheme m_eTheme;
    E_ZoMonitorSize m_eMonitorSize;
    E_ZoThemeFont m_eFont;
    bool m_bThemeFixed;
    CZoResourceBMPImage* m_pBorderSkin;
    CBrush m_brNormalBack;
    CBrush m_brSecondBack; // kept for variants; the edit's own colouring does not use it
    CBrush m_brDisabledBack;
    COLORREF m_clrNormalBack;
    COLORREF m_clrSecondBack;
    COLORREF m_clrDisabledBack;
    COLORREF m_clrNormalText;
    COLORREF m_clrReadOnlyText; // read-only edits keep the normal text colour
    COLORREF m_clrDisabledText;

private:
    CZoEdit(const CZoEdit&);
    CZoEdit& operator=(const CZoEdit&);
};

} // namespace ZoControls
