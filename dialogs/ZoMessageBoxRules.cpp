#include "dialogs/ZoMessageBoxRules.h"

#include "resources/resource.h"

namespace ZoControls {

namespace {

const int kTypeCount = MB_RETRYCANCEL + 1;

// Captions and results of the six known types, indexed by type.
const ZoMsgBoxTypeRule kTypeRules[kTypeCount] = {
    // MB_OK: the button and the time-out give IDOK, Escape IDCANCEL.
    {true, {IDS_ZO_OK, 0, 0}, {IDOK, 0, 0}, IDCANCEL},
    {true, {IDS_ZO_CANCEL, IDS_ZO_OK, 0}, {IDCANCEL, IDOK, 0}, IDCANCEL},
    {true, {IDS_ZO_IGNORE, IDS_ZO_RETRY, IDS_ZO_ABORT}, {IDIGNORE, IDRETRY, IDABORT}, IDIGNORE},
    {true, {IDS_ZO_CANCEL, IDS_ZO_NO, IDS_ZO_YES}, {IDCANCEL, IDNO, IDYES}, IDCANCEL},
    {true, {IDS_ZO_NO, IDS_ZO_YES, 0}, {IDNO, IDYES, 0}, IDNO},
    {true, {IDS_ZO_CANCEL, IDS_ZO_RETRY, 0}, {IDCANCEL, IDRETRY, 0}, IDCANCEL},
};

// Types 6 and 7 swallow Escape; their template buttons close the box as OK does.
const UINT kFirstSwallowingType = 6;
const UINT kLastSwallowingType = 7;

} // namespace

ZoMsgBoxTypeRule ZoMessageBoxTypeRule(UINT type)
{
    const UINT kind = type & MB_TYPEMASK;
    if (kind < static_cast<UINT>(kTypeCount))
        return kTypeRules[kind];
    const bool swallows = kind >= kFirstSwallowingType && kind <= kLastSwallowingType;
    const ZoMsgBoxTypeRule unknown = {false, {0, 0, 0}, {IDOK, IDOK, IDOK}, swallows ? ZO_MSGBOX_NO_RESULT : IDCANCEL};
    return unknown;
}

E_ZoMsgBoxButton ZoMessageBoxDefaultButton(UINT type)
{
    const UINT def = type & MB_DEFMASK;
    switch (type & MB_TYPEMASK)
    {
    case MB_OKCANCEL:
    case MB_YESNO:
    case MB_RETRYCANCEL:
        if (def == MB_DEFBUTTON1)
            return ZoMsgBoxButton_Middle;
        if (def == MB_DEFBUTTON2)
            return ZoMsgBoxButton_Right;
        return ZoMsgBoxButton_None;
    case MB_YESNOCANCEL:
    case MB_ABORTRETRYIGNORE:
        if (def == MB_DEFBUTTON1)
            return ZoMsgBoxButton_Left;
        if (def == MB_DEFBUTTON2)
            return ZoMsgBoxButton_Middle;
        if (def == MB_DEFBUTTON3)
            return ZoMsgBoxButton_Right;
        return ZoMsgBoxButton_None;
    default:
        return ZoMsgBoxButton_None;
    }
}

ZoMsgBoxIconRule ZoMessageBoxIconRule(UINT type)
{
    switch (type & MB_ICONMASK)
    {
    case MB_ICONHAND:
        return ZoMsgBoxIconRule{IDB_ZO_MSGBOX_ERROR, IDS_ZO_ERROR};
    case MB_ICONEXCLAMATION:
        return ZoMsgBoxIconRule{IDB_ZO_MSGBOX_WARNING, IDS_ZO_WARNING};
    case MB_ICONQUESTION:
        return ZoMsgBoxIconRule{IDB_ZO_MSGBOX_QUESTION, IDS_ZO_QUESTION};
    default:
        return ZoMsgBoxIconRule{IDB_ZO_MSGBOX_INFORMATION, IDS_ZO_INFO};
    }
}

ZoMsgBoxLayout ZoLayoutMessageBox(const CRect& icon, const CRect& button, const CRect& check, const CRect& client,
                                  const CSize& textSize)
{
    ZoMsgBoxLayout layout;
    const int textLeft = icon.left + icon.right;
    layout.text.SetRect(textLeft, icon.top, textLeft + textSize.cx, icon.top + textSize.cy);
    if (textSize.cy < icon.Height())
        layout.text.OffsetRect(0, (icon.Height() - textSize.cy) / 2);

    layout.width = layout.text.right + icon.left;
    if (layout.width < ZO_MSGBOX_MIN_WIDTH)
    {
        // A third of the shortfall, not half: the text sits nearer the icon.
        layout.text.OffsetRect((ZO_MSGBOX_MIN_WIDTH - layout.width) / 3, 0);
        layout.width = ZO_MSGBOX_MIN_WIDTH;
    }
    layout.height = client.bottom - button.top + layout.text.bottom + icon.top;
    if (layout.height < ZO_MSGBOX_MIN_HEIGHT)
        layout.height = ZO_MSGBOX_MIN_HEIGHT;

    const int bw = button.Width();
    const int bh = button.Height();
    int right = layout.width - bw / 8;
    for (int i = 0; i < ZoMsgBoxButton_Count; ++i)
    {
        layout.buttons[i].SetRect(right - bw, layout.height - 8 - bh, right, layout.height - 8);
        right = layout.buttons[i].left - 3;
    }

    const int cw = check.Width();
    const int ch = check.Height();
    const int checkLeft = textLeft + (client.right - cw - textLeft) / 2;
    const int checkTop = layout.buttons[0].top + (bh - ch) / 2;
    layout.check.SetRect(checkLeft, checkTop, checkLeft + cw, checkTop + ch);
    return layout;
}

} // namespace ZoControls
