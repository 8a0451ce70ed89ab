// "Edits and combos": CZoEdit single- and multi-line in the normal, focused, disabled and
// read-only states; CZoComboBox, CZoComboBoxBtnFeel and CZoComboBoxTextDark in each combo style,
// and disabled combos.
#pragma once
#include "GalleryPage.h"
#include "PageParts.h"

class CEditsPage : public CGalleryPage
{
public:
    CEditsPage();
    virtual ~CEditsPage();

protected:
    virtual BOOL OnCreatePage();
    virtual void DrawPage(CDC& dc, const CRect& client);

private:
    enum { SingleCount = 4, MultiCount = 3, StyleCount = 3, DisabledCount = 2 };

    BOOL _createEdits();
    BOOL _createCombos();
    BOOL _fillCombo(ZoControls::CZoComboBox& combo, DWORD style, const CRect& rect, UINT nID);

    ZoControls::CZoEdit m_aSingle[SingleCount]; // normal, focused, disabled, read-only
    ZoControls::CZoEdit m_aMulti[MultiCount];   // normal, disabled, read-only
    ZoControls::CZoComboBox m_aBase[StyleCount]; // drop-down, drop-list, simple
    ZoControls::CZoComboBoxBtnFeel m_aBtnFeel[StyleCount];
    ZoControls::CZoComboBoxTextDark m_aTextDark[StyleCount];
    ZoControls::CZoComboBox m_aDisabled[DisabledCount]; // drop-down, drop-list
    CPageLabels m_labels;
};
