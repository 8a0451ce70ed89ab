// "Buttons": every CZoButton kind side by side in every state (a row per kind, a column per
// state), live buttons to hover, press and click, images in every position and alignment and
// from every source, a tooltip, group boxes with their three caption alignments, and the flat,
// toggle and message-box variants.
#pragma once
#include "GalleryPage.h"

#include <vector>

#include "PageParts.h"

class CButtonsPage : public CGalleryPage
{
public:
    CButtonsPage();
    virtual ~CButtonsPage();

protected:
    virtual BOOL OnCreatePage();
    virtual void DrawPage(CDC& dc, const CRect& client);

    afx_msg void OnStateCellClicked(UINT nID);
    afx_msg void OnCounterClicked();
    DECLARE_MESSAGE_MAP()

private:
    void _createStateGrid();
    void _createLiveButtons();
    void _createImagePlacements();
    void _createImageSources();
    void _createColoursAndFonts();
    void _createGroupBoxes();
    // Creates `pButton` as a visible child and keeps it; the page deletes it.
    ZoControls::CZoButton* _add(ZoControls::CZoButton* pButton, const wchar_t* caption, DWORD style,
                                const CRect& rect, UINT nID = 0);

    std::vector<ZoControls::CZoButton*> m_buttons;
    CPageLabels m_labels;
    ZoControls::CZoButton* m_pCounter;
    int m_nClicks;
    // Given to a button with BM_SETIMAGE, which never owns it.
    HBITMAP m_hWarningBitmap;
    UINT m_nNextId;
};
