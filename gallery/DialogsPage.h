// "Dialogs": a real resource dialog holding a control of each of the nine window classes the
// skinned dialog subclasses (system menu, minimize and maximize boxes), opened at each monitor
// size class; a button for every message-box type and icon, a timed box with its seconds and a
// dispensable box whose flag shows after it closes; and the message box's captions in the ten
// languages side by side, with a picker for the thread's language.
#pragma once
#include "GalleryPage.h"
#include "PageParts.h"

#include <vector>

class CDialogsPage : public CGalleryPage
{
public:
    CDialogsPage();
    virtual ~CDialogsPage();

protected:
    virtual BOOL OnCreatePage();
    virtual void DrawPage(CDC& dc, const CRect& client);

    afx_msg void OnOpenDialog(UINT nID);
    afx_msg void OnMessageBoxType(UINT nID);
    afx_msg void OnMessageBoxIcon(UINT nID);
    afx_msg void OnTimedBox();
    afx_msg void OnDispensableBox();
    afx_msg void OnLanguagePicked();
    DECLARE_MESSAGE_MAP()

private:
    void _createDialogButtons();
    void _createMessageBoxButtons();
    void _createLanguageTable();
    void _showResult(int result);
    ZoControls::CZoButton* _addButton(const wchar_t* caption, const CRect& rect, UINT nID);

    std::vector<ZoControls::CZoButton*> m_buttons;
    ZoControls::CZoStatic m_result;
    ZoControls::CZoStatic m_flag;
    ZoControls::CZoComboBox m_language;
    CPageLabels m_labels;
    bool m_bDoNotShow;
};
