// Skinned combo boxes.
// Classes in this file:
//   CZoComboBox           drop-down and drop-list combos painted whole while closed: a
//                         nine-piece frame, an arrow cell centred in a square button, the text;
//                         the inner edit of a drop-down combo is a borderless CZoEdit; the inner
//                         edit and the dropped list take the theme's colours. Simple combos are
//                         left to the platform.
//   CZoComboBoxBtnFeel    the frame from the drop-list skin, a second arrow row for drop-list
//                         combos, no button background
//   CZoComboBoxTextDark   CZoComboBox with the drop-list text colours set to the theme's text
// plus the rules behind them (button rectangle, frame and arrow states) as plain functions.
#pragma once
#include <afxwin.h>

#include "controls/ZoButton.h"
#include "core/ZoCtrlExport.h"
#include "core/ZoMenuRouting.h"
#include "core/ZoPaintedWnd.h"
#include "core/ZoThemeTypes.h"

namespace ZoControls {

class CZoEdit;
class CZoResourceBMPImage;

// Margin around the skin's button and text for a zoom factor: 3 pixels scaled, rounded.
ZOCTRL_API int ZoComboMargin(float zoom);

// The skin's drop button in `client`: a square as tall as the client less two margins (plus
// one), its right edge one margin inside, centred vertically. Empty for a client too small.
ZOCTRL_API CRect ZoComboButtonRect(const CRect& client, float zoom);

// Frame state of a drop-down or drop-list combo. Disabled wins; otherwise pressed when the
// platform reports the button pressed or the list dropped, focused when it reports the button
// focused, else normal; and whenever the focus window is the inner edit the state becomes
// focused, overriding pressed. A drop-list combo has no inner edit, so its comparison is against
// no window: it also shows focused while no window has the focus. This is kept as it is.
ZOCTRL_API E_ZoButtonStates ZoComboFrameState(bool enabled, DWORD stateButton, bool dropped, HWND focus,
                                              HWND innerEdit);

// Arrow state: the frame's, raised to pressed while a drop-down combo's list is dropped.
ZOCTRL_API E_ZoButtonStates ZoComboArrowState(E_ZoButtonStates frameState, bool isDropDown, bool dropped);

// Whether a drop-list combo's text stays as it was after the combo handled `message`: paint
// and plain questions (text, selection, state) leave it; anything else may have changed it.
ZOCTRL_API bool ZoComboKeepsText(UINT message);

class ZOCTRL_API CZoComboBox : public CZoPaintedWnd<CComboBox>
{
    DECLARE_DYNAMIC(CZoComboBox)

public:
    CZoComboBox();
    ~CZoComboBox() override;

    // Simple combos are the platform's; the drop-down styles are drawn whole.
    E_ZoPaintMode GetPaintMode() override;

protected:
    // Kept for hosts and variants; the class's own drawing does not read them.
    void SetDropListTextColor(const COLORREF colors[BS_ZO_COUNT]);
    float GetZoZoomFactor() const;

    // Skins: a resource name and its row count (an empty name loads nothing).
    virtual void GetBackBitmapResourceId(CString& name, int& rows) const;
    virtual void GetButtonBitmapResourceId(CString& name, int& rows) const;
    virtual void GetButtonBackBitmapResourceId(CString& name, int& rows) const;
    virtual int GetBackBitmapRowIndex() const;
    virtual int GetButtonBitmapRowIndex() const;
    virtual int GetButtonBackBitmapRowIndex() const;

    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    // The closed control: surround, frame, arrow, text.
    void DrawClient(CDC& dc) override;

    void _init();
    void _loadSkins();
    void _attachInnerEdit();
    void _deleteSkins();
    CRect _getButtonRect() const;
    bool _isDropDown() const;
    void _drawButtonImage(CDC& dc, const CRect& button, int state);
    void _drawText(CDC& dc, const CRect& client, const CRect& button);
    // The text the closed control shows, kept between paints while nothing could change it.
    const CString& _text();

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnDestroy();
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg BOOL OnCbnSetfocus();
    afx_msg BOOL OnCbnKillfocus();
    ZO_DECLARE_MENUXP_FORWARDING()
    DECLARE_MESSAGE_MAP()

    E_ZoTheme m_eTheme;
    E_ZoMonitorSize m_eMonitorSize;
    E_ZoThemeFont m_eFont;
    CZoResourceBMPImage* m_pBackSkin;
    CZoResourceBMPImage* m_pButtonSkin;
    CZoResourceBMPImage* m_pButtonBackSkin; // null when the variant names none
    COLORREF m_aDropListTextColors[BS_ZO_COUNT];
    bool m_bDropListTextColorsSet;
    CBrush m_brBackground;
    COLORREF m_clrText;
    CZoEdit* m_pEdit; // the inner edit of a drop-down combo
    bool m_bInitialized;
    CString m_strText;
    bool m_bTextKept; // m_strText is the window text

private:
    CZoComboBox(const CZoComboBox&);
    CZoComboBox& operator=(const CZoComboBox&);
};

class ZOCTRL_API CZoComboBoxBtnFeel : public CZoComboBox
{
    DECLARE_DYNAMIC(CZoComboBoxBtnFeel)

public:
    CZoComboBoxBtnFeel();
    ~CZoComboBoxBtnFeel() override;

protected:
    void GetBackBitmapResourceId(CString& name, int& rows) const override;
    void GetButtonBackBitmapResourceId(CString& name, int& rows) const override;
    int GetBackBitmapRowIndex() const override;
    int GetButtonBitmapRowIndex() const override;
};

class ZOCTRL_API CZoComboBoxTextDark : public CZoComboBox
{
    DECLARE_DYNAMIC(CZoComboBoxTextDark)

public:
    CZoComboBoxTextDark();
    ~CZoComboBoxTextDark() override;
};

} // namespace ZoControls
