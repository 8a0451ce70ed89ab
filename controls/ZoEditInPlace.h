// The transient cell editor of the list views.
// Classes in this file:
//   CZoEditInPlace   a CZoEdit created over one list cell with all its text selected; Enter,
//                    Escape, focus loss and the up and down arrows end the edit, which is
//                    reported to the notify window with LVN_ENDLABELEDITW before the list is told
//                    to cancel its label edit or to edit the row above or below
// plus the rules behind it (which keys end the edit, how a key-down is routed, how far the
// editor widens, which row comes next) as functions of plain values.
// The editor never deletes itself: its creator owns it and deletes it after destroying it.
#pragma once
#include <afxwin.h>

#include "controls/ZoEdit.h"

namespace ZoControls {

// Why the edit ended.
enum E_ZoEditEndReason
{
    ZoEditEnd_None = 0,
    ZoEditEnd_Enter = 1,
    ZoEditEnd_Escape = 2,
    ZoEditEnd_MoveUp = 3,
    ZoEditEnd_MoveDown = 4
};

// What the editor does with a character. Codes 38 and 40 typed without Shift move up and down:
// they are the character codes of "&" and "(", which some layouts type without Shift, and the
// editor treats them as the arrow keys of the same numbers. That is deliberate.
ZOCTRL_API E_ZoEditEndReason ZoInPlaceEndReasonForChar(UINT ch, bool ctrlHeld, bool shiftHeld);

// How the editor routes a key-down before the dialog manager sees it.
enum E_ZoInPlaceKeyRoute
{
    ZoInPlaceKey_DispatchNow, // translated and dispatched at once, reported handled
    ZoInPlaceKey_MoveUp,      // ends the edit towards the row above
    ZoInPlaceKey_MoveDown,    // ends the edit towards the row below
    ZoInPlaceKey_Base,        // left to the usual pre-translation
    ZoInPlaceKey_TranslateOnly // only the character it makes reaches the editor
};
ZOCTRL_API E_ZoInPlaceKeyRoute ZoInPlaceKeyRouteOf(UINT virtualKey);

// Right edge of an editor spanning [left, right) whose client is `clientWidth` wide, for text
// `textWidth` wide inside a parent whose client ends at `parentRight`: text + 5 pixels, never
// beyond the parent's edge and never narrower than now.
ZOCTRL_API int ZoInPlaceWidenedRight(int left, int right, int clientWidth, int textWidth, int parentRight);

// The row edited next after `reason` from `item` in a list of `count` rows; -1 for none.
ZOCTRL_API int ZoInPlaceNextRow(E_ZoEditEndReason reason, int item, int count);

class ZOCTRL_API CZoEditInPlace : public CZoEdit
{
    DECLARE_DYNAMIC(CZoEditInPlace)

public:
    // `hNotify` receives LVN_ENDLABELEDITW for (item, subItem); `text` is the cell's text.
    CZoEditInPlace(HWND hNotify, int item, int subItem, LPCTSTR text);
    ~CZoEditInPlace() override;

    // Destruction through here reports nothing: the focus loss it causes is not an end of edit.
    BOOL DestroyWindow() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    void _endTowards(E_ZoEditEndReason reason);
    void _widenForText();
    void _reportEnd(const CString& text);

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    DECLARE_MESSAGE_MAP()

    HWND m_hNotify;
    int m_nItem;
    int m_nSubItem;
    CString m_strInitText;
    E_ZoEditEndReason m_eEndReason;
    bool m_bBeingDestroyed;

private:
    CZoEditInPlace(const CZoEditInPlace&);
    CZoEditInPlace& operator=(const CZoEditInPlace&);
};

} // namespace ZoControls
