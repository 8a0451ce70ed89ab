// CZoDialog's automatic subclassing: every plain child control of nine window classes gets the
// library's skinned class, owned by the dialog until its WM_DESTROY.
#include "dialogs/ZoDialog.h"

#include <afxcmn.h>

#include "controls/ZoButton.h"
#include "controls/ZoComboBox.h"
#include "controls/ZoEdit.h"
#include "controls/ZoProgressCtrl.h"
#include "controls/ZoScrollBar.h"
#include "controls/ZoSliderCtrl.h"
#include "controls/ZoStatic.h"
#include "controls/ZoTabCtrl.h"
#include "lists/ZoListCtrl.h"

namespace ZoControls {

namespace {

CWnd* newStatic() { return new CZoStatic(ZoThemeFont_1); }
CWnd* newButton() { return new CZoButton(); }
CWnd* newProgress() { return new CZoProgressCtrl(); }
CWnd* newEdit() { return new CZoEdit(ZoThemeFont_1); }
CWnd* newSlider() { return new CZoSliderCtrl(); }
CWnd* newList() { return new CZoListCtrl(); }
CWnd* newCombo() { return new CZoComboBox(); }
CWnd* newTabs() { return new CZoTabCtrl(); }
CWnd* newScrollBar() { return new CZoScrollBar(CZoScrollBar::ScrollBarTheme_1); }

// The window classes in the order they are subclassed, with the skinned class of each.
struct SkinnedClass
{
    const wchar_t* windowClass;
    CWnd* (*create)();
};

const SkinnedClass kSkinnedClasses[] = {
    {L"Static", newStatic},
    {L"Button", newButton},
    {L"msctls_progress32", newProgress},
    {L"Edit", newEdit},
    {L"msctls_trackbar32", newSlider},
    {L"SysListView32", newList},
    {L"ComboBox", newCombo},
    {L"SysTabControl32", newTabs},
    {L"ScrollBar", newScrollBar},
};

} // namespace

void CZoDialog::_autoSubclassControls()
{
    for (const SkinnedClass& skinned : kSkinnedClasses)
    {
        for (HWND child = ::FindWindowExW(m_hWnd, NULL, skinned.windowClass, NULL); child;
             child = ::FindWindowExW(m_hWnd, child, skinned.windowClass, NULL))
        {
            // The host's own objects (attached through DDX, say) are left alone.
            if (CWnd::FromHandlePermanent(child))
                continue;
            CWnd* pControl = skinned.create();
            if (!pControl->SubclassWindow(child))
            {
                delete pControl;
                continue;
            }
            m_controls.AddTail(pControl);
        }
    }
}

void CZoDialog::_autoUnsubclassStatiscs()
{
    while (!m_controls.IsEmpty())
    {
        CWnd* pControl = m_controls.RemoveHead();
        if (pControl->GetSafeHwnd() && ::IsWindow(pControl->GetSafeHwnd()))
            pControl->UnsubclassWindow();
        delete pControl;
    }
}

} // namespace ZoControls
