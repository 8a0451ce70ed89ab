// The message box's dialog, internal to the library: the skinned dialog on template 817 with
// translated buttons, an icon, a measured layout, an optional time-out and an optional
// "Do not show this message again" check box. ZoMessageBox.h declares the functions that show it.
#pragma once
#include <afxwin.h>

#include "controls/ZoButton.h"
#include "controls/ZoButtonVariants.h"
#include "controls/ZoStatic.h"
#include "dialogs/ZoDialog.h"
#include "dialogs/ZoMessageBoxRules.h"

namespace ZoControls {
namespace _internal {

class CDq3MMessageBox : public CZoDialog
{
public:
    // `seconds` of 0 or (UINT)-1 mean no time-out; a null `doNotShow` hides the check box.
    CDq3MMessageBox(UINT type, UINT seconds, bool* doNotShow, CWnd* parent);
    ~CDq3MMessageBox() override;

    void SetMessage(const CString& message);

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    void OnOK() override;
    void OnCancel() override;

    afx_msg void OnRightButton();
    afx_msg void OnMiddleButton();
    afx_msg void OnLeftButton();
    afx_msg void OnDoNotShowClicked();
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    DECLARE_MESSAGE_MAP()

private:
    void _setIconAndTitle();
    void _layout();
    // Ends the box with button `button`'s result for the type.
    void _endWith(E_ZoMsgBoxButton button);
    void _endWithEscape();
    CZoButton4MsgBox* _button(E_ZoMsgBoxButton button);

    CString m_strMessage;
    CString m_strTitle;
    CZoStatic m_message;
    CZoButton4MsgBox m_btnRight;
    CZoButton4MsgBox m_btnMiddle;
    CZoButton4MsgBox m_btnLeft;
    CRect m_rcText;
    CZoButton m_chkDoNotShow;
    UINT m_nType;
    UINT m_nTimeout;
    CWnd* m_pParent;
    UINT_PTR m_nTimer;
    COLORREF m_clrText;
    bool* m_pDoNotShow;
    CBitmap m_icon;
};

} // namespace _internal
} // namespace ZoControls
