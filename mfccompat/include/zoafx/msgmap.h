// Message maps: AFX_MSGMAP, AFX_MSGMAP_ENTRY, the AfxSig_ signature codes and the
// DECLARE_/BEGIN_/END_MESSAGE_MAP and ON_ macros of <afxwin.h>.
//
// Every ON_ macro converts the handler to a member-function pointer of the exact documented
// type first (static_cast), so a handler with a wrong signature does not compile; the entry
// then stores it under a uniform type together with the signature code that says how the
// message is cracked when it is called. Entries that take a handler take it as MFC does,
// as a qualified member pointer: ON_BN_CLICKED(IDC_OK, &CMyDialog::OnClickedOk).
#pragma once
#include <afx.h>
#include <commctrl.h>

class CCmdTarget;
class CWnd;
class CDC;
class CMenu;
class CScrollBar;
class CCmdUI;

#define afx_msg
#define AFX_MSG_CALL

typedef void (AFX_MSG_CALL CCmdTarget::*AFX_PMSG)(void);
typedef void (AFX_MSG_CALL CWnd::*AFX_PMSGW)(void);

struct AFX_MSGMAP_ENTRY
{
    UINT nMessage;   // window message, or WM_COMMAND / WM_NOTIFY (+ WM_REFLECT_BASE)
    UINT nCode;      // control notification code (command and notify entries)
    UINT nID;        // first control or command id
    UINT nLastID;    // last id of a range (nID otherwise)
    UINT_PTR nSig;   // AfxSig_ code; for registered messages the address of the message id
    AFX_PMSG pfn;
};

struct AFX_MSGMAP
{
    const AFX_MSGMAP* (PASCAL* pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

// Reflected messages travel back to the child as WM_REFLECT_BASE + message.
#define WM_REFLECT_BASE 0xBC00
// WM_CTLCOLOR stands for all WM_CTLCOLORxxx messages in a message map.
#ifndef WM_CTLCOLOR
#define WM_CTLCOLOR 0x0019
#endif

// Command notification codes passed to OnCmdMsg.
#define CN_COMMAND 0
#define CN_UPDATE_COMMAND_UI ((UINT)(-1))
#define CN_EVENT ((UINT)(-100))

// What a reflected WM_CTLCOLOR carries in lParam.
struct AFX_CTLCOLOR
{
    HWND hWnd;
    HDC hDC;
    UINT nCtlType;
};

// What OnCmdMsg receives in pExtra for WM_NOTIFY entries.
struct AFX_NOTIFY
{
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

// Filled by OnCmdMsg when asked only whether a handler exists.
struct AFX_CMDHANDLERINFO
{
    CCmdTarget* pTarget;
    void (AFX_MSG_CALL CCmdTarget::*pmf)(void);
};

// How a handler is called: return type, then the cracked arguments.
enum AfxSig
{
    AfxSig_end = 0,
    AfxSig_vv,        // void ()
    AfxSig_bv,        // BOOL ()
    AfxSig_wv,        // UINT ()
    AfxSig_lwl,       // LRESULT (WPARAM, LPARAM)
    AfxSig_bD,        // BOOL (CDC*)
    AfxSig_is,        // int (LPCREATESTRUCT)
    AfxSig_bs,        // BOOL (LPCREATESTRUCT)
    AfxSig_vwii,      // void (UINT, int, int)
    AfxSig_vii,       // void (int, int)
    AfxSig_vwp,       // void (UINT, CPoint)
    AfxSig_bwsp,      // BOOL (UINT, short, CPoint)
    AfxSig_vwsp,      // void (UINT, short, CPoint)
    AfxSig_bWww,      // BOOL (CWnd*, UINT, UINT)
    AfxSig_iWww,      // int (CWnd*, UINT, UINT)
    AfxSig_lp,        // LRESULT (CPoint)
    AfxSig_vbNC,      // void (BOOL, NCCALCSIZE_PARAMS*)
    AfxSig_bb,        // BOOL (BOOL)
    AfxSig_vwWb,      // void (UINT, CWnd*, BOOL)
    AfxSig_vbh,       // void (BOOL, DWORD)
    AfxSig_vwww,      // void (UINT, UINT, UINT)  key messages: wParam, LOWORD/HIWORD(lParam)
    AfxSig_vwl,       // void (UINT, LPARAM)
    AfxSig_vW,        // void (CWnd*)  window in wParam
    AfxSig_vW2,       // void (CWnd*)  window in lParam
    AfxSig_vt,        // void (UINT_PTR)
    AfxSig_vwwX,      // void (UINT, UINT, CScrollBar*)
    AfxSig_hDWw,      // HBRUSH (CDC*, CWnd*, UINT)
    AfxSig_vb,        // void (BOOL)
    AfxSig_vbw,       // void (BOOL, UINT)
    AfxSig_vPOS,      // void (WINDOWPOS*)
    AfxSig_vPMM,      // void (MINMAXINFO*)
    AfxSig_vwR,       // void (UINT, LPRECT)
    AfxSig_vWp,       // void (CWnd*, CPoint)
    AfxSig_vMwb,      // void (CMenu*, UINT, BOOL)
    AfxSig_viMIS,     // void (int, LPMEASUREITEMSTRUCT)
    AfxSig_viDIS,     // void (int, LPDRAWITEMSTRUCT)
    AfxSig_lwwM,      // LRESULT (UINT, UINT, CMenu*)
    AfxSig_vwwh,      // void (UINT, UINT, HMENU)
    AfxSig_vws,       // void (UINT, LPCTSTR)
    AfxSig_vh,        // void (HDROP)
    AfxSig_vww,       // void (UINT, UINT)  LOWORD/HIWORD(wParam)
    AfxSig_viSS,      // void (int, LPSTYLESTRUCT)
    // command and notification entries
    AfxSig_bw,        // BOOL (UINT)
    AfxSig_vw,        // void (UINT)
    AfxSig_vCmdUI,    // void (CCmdUI*)
    AfxSig_vNMHDRpl,  // void (NMHDR*, LRESULT*)
    AfxSig_vwNMHDRpl, // void (UINT, NMHDR*, LRESULT*)
    AfxSig_bNMHDRpl,  // BOOL (NMHDR*, LRESULT*)
    AfxSig_bwNMHDRpl, // BOOL (UINT, NMHDR*, LRESULT*)
    // reflected messages
    AfxSig_hDw,       // HBRUSH (CDC*, UINT)
    AfxSig_vDIS,      // void (LPDRAWITEMSTRUCT)
    AfxSig_vMIS,      // void (LPMEASUREITEMSTRUCT)
    AfxSig_vDELIS,    // void (LPDELETEITEMSTRUCT)
    AfxSig_iCIS,      // int (LPCOMPAREITEMSTRUCT)
    AfxSig_iww,       // int (UINT, UINT)  LOWORD/HIWORD(wParam)
};

namespace zoafx {
// Stores a typed handler pointer as AFX_PMSG (and back). Both are pointers to member
// functions of one single-inheritance hierarchy, so they have one representation.
template <class TTo, class TFrom>
inline TTo MsgFnCast(TFrom pfn)
{
    static_assert(sizeof(TTo) == sizeof(TFrom), "member function pointers differ in size");
    union { TFrom from; TTo to; } u;
    u.from = pfn;
    return u.to;
}
}

#define AFX_MSGFN(type, fn) (::zoafx::MsgFnCast<AFX_PMSG>(static_cast<type>(fn)))

// ---------------------------------------------------------------------------------------
// Declaring and defining a map

#define DECLARE_MESSAGE_MAP() \
protected: \
    static const AFX_MSGMAP* PASCAL GetThisMessageMap(); \
    virtual const AFX_MSGMAP* GetMessageMap() const;

#define BEGIN_MESSAGE_MAP(theClass, baseClass) \
    const AFX_MSGMAP* theClass::GetMessageMap() const { return GetThisMessageMap(); } \
    const AFX_MSGMAP* PASCAL theClass::GetThisMessageMap() \
    { \
        typedef theClass ThisClass; \
        typedef baseClass TheBaseClass; \
        static const AFX_MSGMAP_ENTRY _messageEntries[] = {

#define BEGIN_TEMPLATE_MESSAGE_MAP(theClass, type_name, baseClass) \
    template <typename type_name> \
    const AFX_MSGMAP* theClass<type_name>::GetMessageMap() const { return GetThisMessageMap(); } \
    template <typename type_name> \
    const AFX_MSGMAP* PASCAL theClass<type_name>::GetThisMessageMap() \
    { \
        typedef theClass<type_name> ThisClass; \
        typedef baseClass TheBaseClass; \
        static const AFX_MSGMAP_ENTRY _messageEntries[] = {

#define END_MESSAGE_MAP() \
            { 0, 0, 0, 0, AfxSig_end, (AFX_PMSG)0 } \
        }; \
        static_assert(sizeof(ThisClass) > 0, ""); \
        static const AFX_MSGMAP messageMap = { &TheBaseClass::GetThisMessageMap, &_messageEntries[0] }; \
        return &messageMap; \
    }

// ---------------------------------------------------------------------------------------
// Commands, control notifications, WM_NOTIFY

#define ON_COMMAND(id, memberFxn) \
    { WM_COMMAND, CN_COMMAND, (WORD)(id), (WORD)(id), AfxSigCmd_v, \
      static_cast<AFX_PMSG>(memberFxn) },
#define ON_COMMAND_EX(id, memberFxn) \
    { WM_COMMAND, CN_COMMAND, (WORD)(id), (WORD)(id), AfxSigCmd_EX, \
      AFX_MSGFN(BOOL (AFX_MSG_CALL CCmdTarget::*)(UINT), memberFxn) },
#define ON_COMMAND_RANGE(id, idLast, memberFxn) \
    { WM_COMMAND, CN_COMMAND, (WORD)(id), (WORD)(idLast), AfxSigCmd_RANGE, \
      AFX_MSGFN(void (AFX_MSG_CALL CCmdTarget::*)(UINT), memberFxn) },
#define ON_COMMAND_EX_RANGE(id, idLast, memberFxn) \
    { WM_COMMAND, CN_COMMAND, (WORD)(id), (WORD)(idLast), AfxSigCmd_EX, \
      AFX_MSGFN(BOOL (AFX_MSG_CALL CCmdTarget::*)(UINT), memberFxn) },

#define ON_UPDATE_COMMAND_UI(id, memberFxn) \
    { WM_COMMAND, CN_UPDATE_COMMAND_UI, (WORD)(id), (WORD)(id), AfxSigCmdUI, \
      AFX_MSGFN(void (AFX_MSG_CALL CCmdTarget::*)(CCmdUI*), memberFxn) },
#define ON_UPDATE_COMMAND_UI_RANGE(id, idLast, memberFxn) \
    { WM_COMMAND, CN_UPDATE_COMMAND_UI, (WORD)(id), (WORD)(idLast), AfxSigCmdUI, \
      AFX_MSGFN(void (AFX_MSG_CALL CCmdTarget::*)(CCmdUI*), memberFxn) },

#define ON_CONTROL(wNotifyCode, id, memberFxn) \
    { WM_COMMAND, (WORD)(wNotifyCode), (WORD)(id), (WORD)(id), AfxSigCmd_v, \
      static_cast<AFX_PMSG>(memberFxn) },
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn) \
    { WM_COMMAND, (WORD)(wNotifyCode), (WORD)(id), (WORD)(idLast), AfxSigCmd_RANGE, \
      AFX_MSGFN(void (AFX_MSG_CALL CCmdTarget::*)(UINT), memberFxn) },

#define ON_NOTIFY(wNotifyCode, id, memberFxn) \
    { WM_NOTIFY, (WORD)(int)(wNotifyCode), (WORD)(id), (WORD)(id), AfxSigNotify_v, \
      AFX_MSGFN(void (AFX_MSG_CALL CCmdTarget::*)(NMHDR*, LRESULT*), memberFxn) },
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn) \
    { WM_NOTIFY, (WORD)(int)(wNotifyCode), (WORD)(id), (WORD)(idLast), AfxSigNotify_RANGE, \
      AFX_MSGFN(void (AFX_MSG_CALL CCmdTarget::*)(UINT, NMHDR*, LRESULT*), memberFxn) },
#define ON_NOTIFY_EX(wNotifyCode, id, memberFxn) \
    { WM_NOTIFY, (WORD)(int)(wNotifyCode), (WORD)(id), (WORD)(id), AfxSigNotify_EX, \
      AFX_MSGFN(BOOL (AFX_MSG_CALL CCmdTarget::*)(UINT, NMHDR*, LRESULT*), memberFxn) },
#define ON_NOTIFY_EX_RANGE(wNotifyCode, id, idLast, memberFxn) \
    { WM_NOTIFY, (WORD)(int)(wNotifyCode), (WORD)(id), (WORD)(idLast), AfxSigNotify_EX, \
      AFX_MSGFN(BOOL (AFX_MSG_CALL CCmdTarget::*)(UINT, NMHDR*, LRESULT*), memberFxn) },

// Command-entry signature codes: the cracking of WM_COMMAND / WM_NOTIFY entries.
enum
{
    AfxSigCmd_v = AfxSig_vv,
    AfxSigCmd_EX = AfxSig_bw,
    AfxSigCmd_RANGE = AfxSig_vw,
    AfxSigCmdUI = AfxSig_vCmdUI,
    AfxSigNotify_v = AfxSig_vNMHDRpl,
    AfxSigNotify_RANGE = AfxSig_vwNMHDRpl,
    AfxSigNotify_EX = AfxSig_bwNMHDRpl,
};

// Button, edit, combo box and list box notifications.
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_BN_SETFOCUS(id, memberFxn) ON_CONTROL(BN_SETFOCUS, id, memberFxn)
#define ON_BN_KILLFOCUS(id, memberFxn) ON_CONTROL(BN_KILLFOCUS, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_MAXTEXT(id, memberFxn) ON_CONTROL(EN_MAXTEXT, id, memberFxn)
#define ON_EN_HSCROLL(id, memberFxn) ON_CONTROL(EN_HSCROLL, id, memberFxn)
#define ON_EN_VSCROLL(id, memberFxn) ON_CONTROL(EN_VSCROLL, id, memberFxn)
#define ON_EN_ERRSPACE(id, memberFxn) ON_CONTROL(EN_ERRSPACE, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_DBLCLK(id, memberFxn) ON_CONTROL(CBN_DBLCLK, id, memberFxn)
#define ON_CBN_SETFOCUS(id, memberFxn) ON_CONTROL(CBN_SETFOCUS, id, memberFxn)
#define ON_CBN_KILLFOCUS(id, memberFxn) ON_CONTROL(CBN_KILLFOCUS, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_EDITUPDATE(id, memberFxn) ON_CONTROL(CBN_EDITUPDATE, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)
#define ON_CBN_SELENDCANCEL(id, memberFxn) ON_CONTROL(CBN_SELENDCANCEL, id, memberFxn)
#define ON_CBN_ERRSPACE(id, memberFxn) ON_CONTROL(CBN_ERRSPACE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)
#define ON_LBN_SETFOCUS(id, memberFxn) ON_CONTROL(LBN_SETFOCUS, id, memberFxn)
#define ON_LBN_KILLFOCUS(id, memberFxn) ON_CONTROL(LBN_KILLFOCUS, id, memberFxn)
#define ON_LBN_SELCANCEL(id, memberFxn) ON_CONTROL(LBN_SELCANCEL, id, memberFxn)
#define ON_LBN_ERRSPACE(id, memberFxn) ON_CONTROL(LBN_ERRSPACE, id, memberFxn)
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_STN_DBLCLK(id, memberFxn) ON_CONTROL(STN_DBLCLK, id, memberFxn)

// ---------------------------------------------------------------------------------------
// User-defined and registered messages

#define ON_MESSAGE(message, memberFxn) \
    { (UINT)(message), 0, 0, 0, AfxSig_lwl, \
      AFX_MSGFN(LRESULT (AFX_MSG_CALL CWnd::*)(WPARAM, LPARAM), memberFxn) },
// nSig holds the address of the variable with the registered message id.
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn) \
    { 0xC000, 0, 0, 0, (UINT_PTR)(UINT*)(&nMessageVariable), \
      AFX_MSGFN(LRESULT (AFX_MSG_CALL CWnd::*)(WPARAM, LPARAM), memberFxn) },

// ---------------------------------------------------------------------------------------
// Reflected notifications, handled by the child that sent them

#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn) \
    { WM_COMMAND + WM_REFLECT_BASE, (WORD)(wNotifyCode), 0, 0, AfxSig_vv, \
      static_cast<AFX_PMSG>(memberFxn) },
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn) \
    { WM_COMMAND + WM_REFLECT_BASE, (WORD)(wNotifyCode), 0, 0, AfxSig_bv, \
      AFX_MSGFN(BOOL (AFX_MSG_CALL CCmdTarget::*)(void), memberFxn) },
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn) \
    { WM_NOTIFY + WM_REFLECT_BASE, (WORD)(int)(wNotifyCode), 0, 0, AfxSig_vNMHDRpl, \
      AFX_MSGFN(void (AFX_MSG_CALL CCmdTarget::*)(NMHDR*, LRESULT*), memberFxn) },
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn) \
    { WM_NOTIFY + WM_REFLECT_BASE, (WORD)(int)(wNotifyCode), 0, 0, AfxSig_bNMHDRpl, \
      AFX_MSGFN(BOOL (AFX_MSG_CALL CCmdTarget::*)(NMHDR*, LRESULT*), memberFxn) },
#define ON_WM_CTLCOLOR_REFLECT() \
    { WM_CTLCOLOR + WM_REFLECT_BASE, 0, 0, 0, AfxSig_hDw, \
      AFX_MSGFN(HBRUSH (AFX_MSG_CALL CWnd::*)(CDC*, UINT), &ThisClass::CtlColor) },
#define ON_WM_HSCROLL_REFLECT() \
    { WM_HSCROLL + WM_REFLECT_BASE, 0, 0, 0, AfxSig_vww, \
      AFX_MSGFN(void (AFX_MSG_CALL CWnd::*)(UINT, UINT), &ThisClass::HScroll) },
#define ON_WM_VSCROLL_REFLECT() \
    { WM_VSCROLL + WM_REFLECT_BASE, 0, 0, 0, AfxSig_vww, \
      AFX_MSGFN(void (AFX_MSG_CALL CWnd::*)(UINT, UINT), &ThisClass::VScroll) },
#define ON_WM_DRAWITEM_REFLECT() \
    { WM_DRAWITEM + WM_REFLECT_BASE, 0, 0, 0, AfxSig_vDIS, \
      AFX_MSGFN(void (AFX_MSG_CALL CWnd::*)(LPDRAWITEMSTRUCT), &ThisClass::DrawItem) },
#define ON_WM_MEASUREITEM_REFLECT() \
    { WM_MEASUREITEM + WM_REFLECT_BASE, 0, 0, 0, AfxSig_vMIS, \
      AFX_MSGFN(void (AFX_MSG_CALL CWnd::*)(LPMEASUREITEMSTRUCT), &ThisClass::MeasureItem) },
#define ON_WM_DELETEITEM_REFLECT() \
    { WM_DELETEITEM + WM_REFLECT_BASE, 0, 0, 0, AfxSig_vDELIS, \
      AFX_MSGFN(void (AFX_MSG_CALL CWnd::*)(LPDELETEITEMSTRUCT), &ThisClass::DeleteItem) },
#define ON_WM_COMPAREITEM_REFLECT() \
    { WM_COMPAREITEM + WM_REFLECT_BASE, 0, 0, 0, AfxSig_iCIS, \
      AFX_MSGFN(int (AFX_MSG_CALL CWnd::*)(LPCOMPAREITEMSTRUCT), &ThisClass::CompareItem) },
#define ON_WM_CHARTOITEM_REFLECT() \
    { WM_CHARTOITEM + WM_REFLECT_BASE, 0, 0, 0, AfxSig_iww, \
      AFX_MSGFN(int (AFX_MSG_CALL CWnd::*)(UINT, UINT), &ThisClass::CharToItem) },
#define ON_WM_VKEYTOITEM_REFLECT() \
    { WM_VKEYTOITEM + WM_REFLECT_BASE, 0, 0, 0, AfxSig_iww, \
      AFX_MSGFN(int (AFX_MSG_CALL CWnd::*)(UINT, UINT), &ThisClass::VKeyToItem) },
#define ON_WM_PARENTNOTIFY_REFLECT() \
    { WM_PARENTNOTIFY + WM_REFLECT_BASE, 0, 0, 0, AfxSig_vwl, \
      AFX_MSGFN(void (AFX_MSG_CALL CWnd::*)(UINT, LPARAM), &ThisClass::ParentNotify) },

// ---------------------------------------------------------------------------------------
// Window messages with cracked arguments

#define ZOAFX_ON_WM(message, sig, type, memberFxn) \
    { message, 0, 0, 0, sig, AFX_MSGFN(type, &ThisClass::memberFxn) },

// creation, destruction, painting
#define ON_WM_CREATE() ZOAFX_ON_WM(WM_CREATE, AfxSig_is, int (AFX_MSG_CALL CWnd::*)(LPCREATESTRUCT), OnCreate)
#define ON_WM_NCCREATE() ZOAFX_ON_WM(WM_NCCREATE, AfxSig_bs, BOOL (AFX_MSG_CALL CWnd::*)(LPCREATESTRUCT), OnNcCreate)
#define ON_WM_DESTROY() ZOAFX_ON_WM(WM_DESTROY, AfxSig_vv, void (AFX_MSG_CALL CWnd::*)(void), OnDestroy)
#define ON_WM_NCDESTROY() ZOAFX_ON_WM(WM_NCDESTROY, AfxSig_vv, void (AFX_MSG_CALL CWnd::*)(void), OnNcDestroy)
#define ON_WM_CLOSE() ZOAFX_ON_WM(WM_CLOSE, AfxSig_vv, void (AFX_MSG_CALL CWnd::*)(void), OnClose)
#define ON_WM_PAINT() ZOAFX_ON_WM(WM_PAINT, AfxSig_vv, void (AFX_MSG_CALL CWnd::*)(void), OnPaint)
#define ON_WM_NCPAINT() ZOAFX_ON_WM(WM_NCPAINT, AfxSig_vv, void (AFX_MSG_CALL CWnd::*)(void), OnNcPaint)
#define ON_WM_ERASEBKGND() ZOAFX_ON_WM(WM_ERASEBKGND, AfxSig_bD, BOOL (AFX_MSG_CALL CWnd::*)(CDC*), OnEraseBkgnd)
#define ON_WM_CTLCOLOR() ZOAFX_ON_WM(WM_CTLCOLOR, AfxSig_hDWw, HBRUSH (AFX_MSG_CALL CWnd::*)(CDC*, CWnd*, UINT), OnCtlColor)
#define ON_WM_SYSCOLORCHANGE() ZOAFX_ON_WM(WM_SYSCOLORCHANGE, AfxSig_vv, void (AFX_MSG_CALL CWnd::*)(void), OnSysColorChange)
#define ON_WM_SETTINGCHANGE() ZOAFX_ON_WM(WM_SETTINGCHANGE, AfxSig_vws, void (AFX_MSG_CALL CWnd::*)(UINT, LPCTSTR), OnSettingChange)
#define ON_WM_DRAWITEM() ZOAFX_ON_WM(WM_DRAWITEM, AfxSig_viDIS, void (AFX_MSG_CALL CWnd::*)(int, LPDRAWITEMSTRUCT), OnDrawItem)
#define ON_WM_MEASUREITEM() ZOAFX_ON_WM(WM_MEASUREITEM, AfxSig_viMIS, void (AFX_MSG_CALL CWnd::*)(int, LPMEASUREITEMSTRUCT), OnMeasureItem)
#define ON_WM_PARENTNOTIFY() ZOAFX_ON_WM(WM_PARENTNOTIFY, AfxSig_vwl, void (AFX_MSG_CALL CWnd::*)(UINT, LPARAM), OnParentNotify)

// size, position, state
#define ON_WM_SIZE() ZOAFX_ON_WM(WM_SIZE, AfxSig_vwii, void (AFX_MSG_CALL CWnd::*)(UINT, int, int), OnSize)
#define ON_WM_MOVE() ZOAFX_ON_WM(WM_MOVE, AfxSig_vii, void (AFX_MSG_CALL CWnd::*)(int, int), OnMove)
#define ON_WM_SIZING() ZOAFX_ON_WM(WM_SIZING, AfxSig_vwR, void (AFX_MSG_CALL CWnd::*)(UINT, LPRECT), OnSizing)
#define ON_WM_MOVING() ZOAFX_ON_WM(WM_MOVING, AfxSig_vwR, void (AFX_MSG_CALL CWnd::*)(UINT, LPRECT), OnMoving)
#define ON_WM_GETMINMAXINFO() ZOAFX_ON_WM(WM_GETMINMAXINFO, AfxSig_vPMM, void (AFX_MSG_CALL CWnd::*)(MINMAXINFO*), OnGetMinMaxInfo)
#define ON_WM_WINDOWPOSCHANGING() ZOAFX_ON_WM(WM_WINDOWPOSCHANGING, AfxSig_vPOS, void (AFX_MSG_CALL CWnd::*)(WINDOWPOS*), OnWindowPosChanging)
#define ON_WM_WINDOWPOSCHANGED() ZOAFX_ON_WM(WM_WINDOWPOSCHANGED, AfxSig_vPOS, void (AFX_MSG_CALL CWnd::*)(WINDOWPOS*), OnWindowPosChanged)
#define ON_WM_SHOWWINDOW() ZOAFX_ON_WM(WM_SHOWWINDOW, AfxSig_vbw, void (AFX_MSG_CALL CWnd::*)(BOOL, UINT), OnShowWindow)
#define ON_WM_ENABLE() ZOAFX_ON_WM(WM_ENABLE, AfxSig_vb, void (AFX_MSG_CALL CWnd::*)(BOOL), OnEnable)
#define ON_WM_STYLECHANGING() ZOAFX_ON_WM(WM_STYLECHANGING, AfxSig_viSS, void (AFX_MSG_CALL CWnd::*)(int, LPSTYLESTRUCT), OnStyleChanging)
#define ON_WM_STYLECHANGED() ZOAFX_ON_WM(WM_STYLECHANGED, AfxSig_viSS, void (AFX_MSG_CALL CWnd::*)(int, LPSTYLESTRUCT), OnStyleChanged)
#define ON_WM_ACTIVATE() ZOAFX_ON_WM(WM_ACTIVATE, AfxSig_vwWb, void (AFX_MSG_CALL CWnd::*)(UINT, CWnd*, BOOL), OnActivate)
#define ON_WM_ACTIVATEAPP() ZOAFX_ON_WM(WM_ACTIVATEAPP, AfxSig_vbh, void (AFX_MSG_CALL CWnd::*)(BOOL, DWORD), OnActivateApp)
#define ON_WM_MOUSEACTIVATE() ZOAFX_ON_WM(WM_MOUSEACTIVATE, AfxSig_iWww, int (AFX_MSG_CALL CWnd::*)(CWnd*, UINT, UINT), OnMouseActivate)
#define ON_WM_CANCELMODE() ZOAFX_ON_WM(WM_CANCELMODE, AfxSig_vv, void (AFX_MSG_CALL CWnd::*)(void), OnCancelMode)
#define ON_WM_CAPTURECHANGED() ZOAFX_ON_WM(WM_CAPTURECHANGED, AfxSig_vW2, void (AFX_MSG_CALL CWnd::*)(CWnd*), OnCaptureChanged)
#define ON_WM_SETFOCUS() ZOAFX_ON_WM(WM_SETFOCUS, AfxSig_vW, void (AFX_MSG_CALL CWnd::*)(CWnd*), OnSetFocus)
#define ON_WM_KILLFOCUS() ZOAFX_ON_WM(WM_KILLFOCUS, AfxSig_vW, void (AFX_MSG_CALL CWnd::*)(CWnd*), OnKillFocus)
#define ON_WM_TIMER() ZOAFX_ON_WM(WM_TIMER, AfxSig_vt, void (AFX_MSG_CALL CWnd::*)(UINT_PTR), OnTimer)
#define ON_WM_HSCROLL() ZOAFX_ON_WM(WM_HSCROLL, AfxSig_vwwX, void (AFX_MSG_CALL CWnd::*)(UINT, UINT, CScrollBar*), OnHScroll)
#define ON_WM_VSCROLL() ZOAFX_ON_WM(WM_VSCROLL, AfxSig_vwwX, void (AFX_MSG_CALL CWnd::*)(UINT, UINT, CScrollBar*), OnVScroll)
#define ON_WM_DROPFILES() ZOAFX_ON_WM(WM_DROPFILES, AfxSig_vh, void (AFX_MSG_CALL CWnd::*)(HDROP), OnDropFiles)
#define ON_WM_UPDATEUISTATE() ZOAFX_ON_WM(WM_UPDATEUISTATE, AfxSig_vww, void (AFX_MSG_CALL CWnd::*)(UINT, UINT), OnUpdateUIState)
#define ON_WM_CONTEXTMENU() ZOAFX_ON_WM(WM_CONTEXTMENU, AfxSig_vWp, void (AFX_MSG_CALL CWnd::*)(CWnd*, CPoint), OnContextMenu)

// mouse, client area
#define ON_WM_MOUSEMOVE() ZOAFX_ON_WM(WM_MOUSEMOVE, AfxSig_vwp, void (AFX_MSG_CALL CWnd::*)(UINT, CPoint), OnMouseMove)
#define ON_WM_LBUTTONDOWN() ZOAFX_ON_WM(WM_LBUTTONDOWN, AfxSig_vwp, void (AFX_MSG_CALL CWnd::*)(UINT, CPoint), OnLButtonDown)
#define ON_WM_LBUTTONUP() ZOAFX_ON_WM(WM_LBUTTONUP, AfxSig_vwp, void (AFX_MSG_CALL CWnd::*)(UINT, CPoint), OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() ZOAFX_ON_WM(WM_LBUTTONDBLCLK, AfxSig_vwp, void (AFX_MSG_CALL CWnd::*)(UINT, CPoint), OnLButtonDblClk)
#define ON_WM_RBUTTONDOWN() ZOAFX_ON_WM(WM_RBUTTONDOWN, AfxSig_vwp, void (AFX_MSG_CALL CWnd::*)(UINT, CPoint), OnRButtonDown)
#define ON_WM_RBUTTONUP() ZOAFX_ON_WM(WM_RBUTTONUP, AfxSig_vwp, void (AFX_MSG_CALL CWnd::*)(UINT, CPoint), OnRButtonUp)
#define ON_WM_RBUTTONDBLCLK() ZOAFX_ON_WM(WM_RBUTTONDBLCLK, AfxSig_vwp, void (AFX_MSG_CALL CWnd::*)(UINT, CPoint), OnRButtonDblClk)
#define ON_WM_MBUTTONDOWN() ZOAFX_ON_WM(WM_MBUTTONDOWN, AfxSig_vwp, void (AFX_MSG_CALL CWnd::*)(UINT, CPoint), OnMButtonDown)
#define ON_WM_MBUTTONUP() ZOAFX_ON_WM(WM_MBUTTONUP, AfxSig_vwp, void (AFX_MSG_CALL CWnd::*)(UINT, CPoint), OnMButtonUp)
#define ON_WM_MBUTTONDBLCLK() ZOAFX_ON_WM(WM_MBUTTONDBLCLK, AfxSig_vwp, void (AFX_MSG_CALL CWnd::*)(UINT, CPoint), OnMButtonDblClk)
#define ON_WM_MOUSEHOVER() ZOAFX_ON_WM(WM_MOUSEHOVER, AfxSig_vwp, void (AFX_MSG_CALL CWnd::*)(UINT, CPoint), OnMouseHover)
#define ON_WM_MOUSELEAVE() ZOAFX_ON_WM(WM_MOUSELEAVE, AfxSig_vv, void (AFX_MSG_CALL CWnd::*)(void), OnMouseLeave)
#define ON_WM_MOUSEWHEEL() ZOAFX_ON_WM(WM_MOUSEWHEEL, AfxSig_bwsp, BOOL (AFX_MSG_CALL CWnd::*)(UINT, short, CPoint), OnMouseWheel)
#define ON_WM_MOUSEHWHEEL() ZOAFX_ON_WM(WM_MOUSEHWHEEL, AfxSig_vwsp, void (AFX_MSG_CALL CWnd::*)(UINT, short, CPoint), OnMouseHWheel)
#define ON_WM_SETCURSOR() ZOAFX_ON_WM(WM_SETCURSOR, AfxSig_bWww, BOOL (AFX_MSG_CALL CWnd::*)(CWnd*, UINT, UINT), OnSetCursor)

// non-client area
#define ON_WM_NCHITTEST() ZOAFX_ON_WM(WM_NCHITTEST, AfxSig_lp, LRESULT (AFX_MSG_CALL CWnd::*)(CPoint), OnNcHitTest)
#define ON_WM_NCCALCSIZE() ZOAFX_ON_WM(WM_NCCALCSIZE, AfxSig_vbNC, void (AFX_MSG_CALL CWnd::*)(BOOL, NCCALCSIZE_PARAMS*), OnNcCalcSize)
#define ON_WM_NCACTIVATE() ZOAFX_ON_WM(WM_NCACTIVATE, AfxSig_bb, BOOL (AFX_MSG_CALL CWnd::*)(BOOL), OnNcActivate)
#define ON_WM_NCMOUSEMOVE() ZOAFX_ON_WM(WM_NCMOUSEMOVE, AfxSig_vwp, void (AFX_MSG_CALL CWnd::*)(UINT, CPoint), OnNcMouseMove)
#define ON_WM_NCMOUSEHOVER() ZOAFX_ON_WM(WM_NCMOUSEHOVER, AfxSig_vwp, void (AFX_MSG_CALL CWnd::*)(UINT, CPoint), OnNcMouseHover)
#define ON_WM_NCMOUSELEAVE() ZOAFX_ON_WM(WM_NCMOUSELEAVE, AfxSig_vv, void (AFX_MSG_CALL CWnd::*)(void), OnNcMouseLeave)
#define ON_WM_NCLBUTTONDOWN() ZOAFX_ON_WM(WM_NCLBUTTONDOWN, AfxSig_vwp, void (AFX_MSG_CALL CWnd::*)(UINT, CPoint), OnNcLButtonDown)
#define ON_WM_NCLBUTTONUP() ZOAFX_ON_WM(WM_NCLBUTTONUP, AfxSig_vwp, void (AFX_MSG_CALL CWnd::*)(UINT, CPoint), OnNcLButtonUp)
#define ON_WM_NCLBUTTONDBLCLK() ZOAFX_ON_WM(WM_NCLBUTTONDBLCLK, AfxSig_vwp, void (AFX_MSG_CALL CWnd::*)(UINT, CPoint), OnNcLButtonDblClk)
#define ON_WM_NCRBUTTONDOWN() ZOAFX_ON_WM(WM_NCRBUTTONDOWN, AfxSig_vwp, void (AFX_MSG_CALL CWnd::*)(UINT, CPoint), OnNcRButtonDown)
#define ON_WM_NCRBUTTONUP() ZOAFX_ON_WM(WM_NCRBUTTONUP, AfxSig_vwp, void (AFX_MSG_CALL CWnd::*)(UINT, CPoint), OnNcRButtonUp)

// keyboard
#define ON_WM_KEYDOWN() ZOAFX_ON_WM(WM_KEYDOWN, AfxSig_vwww, void (AFX_MSG_CALL CWnd::*)(UINT, UINT, UINT), OnKeyDown)
#define ON_WM_KEYUP() ZOAFX_ON_WM(WM_KEYUP, AfxSig_vwww, void (AFX_MSG_CALL CWnd::*)(UINT, UINT, UINT), OnKeyUp)
#define ON_WM_CHAR() ZOAFX_ON_WM(WM_CHAR, AfxSig_vwww, void (AFX_MSG_CALL CWnd::*)(UINT, UINT, UINT), OnChar)
#define ON_WM_SYSKEYDOWN() ZOAFX_ON_WM(WM_SYSKEYDOWN, AfxSig_vwww, void (AFX_MSG_CALL CWnd::*)(UINT, UINT, UINT), OnSysKeyDown)
#define ON_WM_SYSKEYUP() ZOAFX_ON_WM(WM_SYSKEYUP, AfxSig_vwww, void (AFX_MSG_CALL CWnd::*)(UINT, UINT, UINT), OnSysKeyUp)
#define ON_WM_SYSCHAR() ZOAFX_ON_WM(WM_SYSCHAR, AfxSig_vwww, void (AFX_MSG_CALL CWnd::*)(UINT, UINT, UINT), OnSysChar)
#define ON_WM_SYSCOMMAND() ZOAFX_ON_WM(WM_SYSCOMMAND, AfxSig_vwl, void (AFX_MSG_CALL CWnd::*)(UINT, LPARAM), OnSysCommand)
#define ON_WM_GETDLGCODE() ZOAFX_ON_WM(WM_GETDLGCODE, AfxSig_wv, UINT (AFX_MSG_CALL CWnd::*)(void), OnGetDlgCode)

// menus
#define ON_WM_INITMENUPOPUP() ZOAFX_ON_WM(WM_INITMENUPOPUP, AfxSig_vMwb, void (AFX_MSG_CALL CWnd::*)(CMenu*, UINT, BOOL), OnInitMenuPopup)
#define ON_WM_MENUCHAR() ZOAFX_ON_WM(WM_MENUCHAR, AfxSig_lwwM, LRESULT (AFX_MSG_CALL CWnd::*)(UINT, UINT, CMenu*), OnMenuChar)
#define ON_WM_MENUSELECT() ZOAFX_ON_WM(WM_MENUSELECT, AfxSig_vwwh, void (AFX_MSG_CALL CWnd::*)(UINT, UINT, HMENU), OnMenuSelect)
