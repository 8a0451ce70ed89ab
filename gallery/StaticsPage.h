// "Statics": CZoStatic texts in every style (alignment, word wrap, tabs, ellipses, vertical
// centring, prefixes, disabled, own colours, the larger-font classes), borders, pictures and
// icons, frames, CStaticLine in its styles and orientations, and live statics that repaint when
// their text or enabled state changes.
#pragma once
#include "GalleryPage.h"

#include <vector>

#include "PageParts.h"

class CStaticsPage : public CGalleryPage
{
public:
    CStaticsPage();
    virtual ~CStaticsPage();

protected:
    virtual BOOL OnCreatePage();
    virtual void DrawPage(CDC& dc, const CRect& client);

    afx_msg void OnDisableTexts();
    afx_msg void OnChangeText();
    afx_msg void OnStaticClicked();
    DECLARE_MESSAGE_MAP()

private:
    void _createTexts();
    void _createPictures();
    void _createIcons();
    void _createFrames();
    void _createLines();
    void _createLive();
    // Creates `pStatic` as a visible child and keeps it; the page deletes it.
    CStatic* _add(CStatic* pStatic, const wchar_t* text, DWORD style, const CRect& rect, DWORD exStyle = 0,
                  UINT nID = 0xFFFF);
    HBITMAP _loadLibraryBitmap(LPCWSTR name);

    std::vector<CWnd*> m_controls;
    // The text statics the live check box disables.
    std::vector<CStatic*> m_texts;
    // Bitmaps given with STM_SETIMAGE, which the statics never own.
    std::vector<HBITMAP> m_bitmaps;
    CPageLabels m_labels;
    ZoControls::CZoButton m_disableTexts;
    ZoControls::CZoButton m_changeText;
    CStatic* m_pChangingText;
    CStatic* m_pClickable;
    int m_nTextChanges;
    int m_nStaticClicks;
};
