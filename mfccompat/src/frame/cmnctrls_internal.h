// Helpers shared by the control wrappers of zoafx.dll.
#pragma once
#include <afxcmn.h>

namespace zoafx {

// Registers the common-control window classes once per process.
void EnsureCommonControls();
// Creates a child control of the given window class on behalf of a wrapper's Create/CreateEx.
BOOL CreateControl(CWnd* control, DWORD dwExStyle, LPCTSTR lpszClassName, DWORD dwStyle, const RECT& rect,
                   CWnd* pParentWnd, UINT nID);
// True for a reflected WM_DRAWITEM, which the caller then hands to its DrawItem.
bool ClaimDrawItem(UINT message, LRESULT* pResult);
// Wrap a handle returned by a control message (temporary objects for unknown handles).
CImageList* ImageListFromResult(LRESULT result);
CWnd* WndFromResult(LRESULT result);

// The owner-draw messages a parent reflects to a list or combo box, handed to its virtuals.
template <class TControl>
bool ReflectItemMessage(TControl* control, UINT message, LPARAM lParam, LRESULT* pResult)
{
    LRESULT result = TRUE;
    switch (message) {
    case WM_DRAWITEM:
        control->DrawItem((LPDRAWITEMSTRUCT)lParam);
        break;
    case WM_MEASUREITEM:
        control->MeasureItem((LPMEASUREITEMSTRUCT)lParam);
        break;
    case WM_COMPAREITEM:
        result = control->CompareItem((LPCOMPAREITEMSTRUCT)lParam);
        break;
    case WM_DELETEITEM:
        control->DeleteItem((LPDELETEITEMSTRUCT)lParam);
        break;
    default:
        return false;
    }
    if (pResult != NULL)
        *pResult = result;
    return true;
}

} // namespace zoafx

// Owner-drawn controls: the parent reflects WM_DRAWITEM back, and the base draws nothing.
#define ZOAFX_IMPLEMENT_OWNER_DRAW(theClass)                                                       \
    void theClass::DrawItem(LPDRAWITEMSTRUCT) {}                                                   \
    BOOL theClass::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)     \
    {                                                                                              \
        if (!zoafx::ClaimDrawItem(message, pResult))                                               \
            return CWnd::OnChildNotify(message, wParam, lParam, pResult);                          \
        DrawItem((LPDRAWITEMSTRUCT)lParam);                                                        \
        return TRUE;                                                                               \
    }
