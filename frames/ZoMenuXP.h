// Owner-drawn menus with a flat, themed look.
// Classes in this file:
//   CMenuXP                       static entry points: the popup-window hook, making menus
//                                 owner-drawn, measuring, drawing and mnemonics
//   ZoMenu_Internals::CBufferDC   double-buffers one rectangle of a DC
//   ZoMenu_Internals::CPenDC      selects a pen for its scope
//   ZoMenu_Internals::CBrushDC    selects a brush (or the hollow brush) for its scope
//   ZoMenu_Internals::CFontDC     selects a font for its scope
//   ZoMenu_Internals::CBoldDC     selects a bold copy of the current font for its scope
// plus the plain rules of item data, geometry and colours in ZoMenu_Internals. Themed windows
// reach CMenuXP through core/ZoMenuRouting.h, which it serves from the moment the library loads.
#pragma once
#include <afxwin.h>
#include <commctrl.h>

#include "core/ZoCtrlExport.h"
#include "core/ZoThemeTypes.h"

namespace ZoControls {

namespace ZoMenu_Internals {

// Theme colour slots of the menus.
enum E_MenuColorSlot
{
    MenuColor_Background = 68,
    MenuColor_FrameBorder = 69,
    MenuColor_Separator = 70,
    MenuColor_Highlight = 71,
    MenuColor_CheckedBack = 72,
    MenuColor_Text = 73
};

// Geometry of a popup item, in pixels from the item's left edge.
const int kIconColumnWidth = 21;   // divider drawn at this x
const int kColumnFillLeft = 22;    // highlight and checked fills start here
const int kTextLeft = 30;
const int kAccelRightMargin = 12;
const int kSeparatorWidth = 42;    // width added to every popup item (icon column and gaps)
const int kMenuBarExtraWidth = 4;
const int kShadowMargin = 4;       // drop shadow of popups on systems older than Windows XP
const int kOsClassWithShadows = 8; // from this class on the system draws the shadow itself

// Packed 32-bit item data: bits 0-7 height, 8-15 widest accelerator, 16-31 text width.
ZOCTRL_API DWORD PackItemData(int height, int accelWidth, int textWidth);
ZOCTRL_API int ItemDataHeight(ULONG_PTR data);
ZOCTRL_API int ItemDataAccelWidth(ULONG_PTR data);
ZOCTRL_API int ItemDataTextWidth(ULONG_PTR data);
// Menu-bar items carry no height.
ZOCTRL_API bool IsMenuBarItemData(ULONG_PTR data);

// Heights from the menu font's tmHeight.
ZOCTRL_API int PopupItemHeight(int tmHeight);
ZOCTRL_API int SeparatorHeight(int tmHeight);

// The size an item with `data` asks for in WM_MEASUREITEM.
ZOCTRL_API SIZE MeasuredItemSize(ULONG_PTR data);

// Whether `text` has the mnemonic `upperChar` ("&" before it, not part of "&&"); `text`
// is compared as given, so callers upper-case it first.
ZOCTRL_API bool TextHasMnemonic(const wchar_t* text, wchar_t upperChar);

// Operating-system class from GetVersionExW's answer (see CMenuXP::GetOsClass).
ZOCTRL_API int OsClassFromVersion(DWORD platformId, DWORD major, DWORD minor);

// Percentage (of 100) left of a colour channel in pixel row i of shadow column k of an open
// menu-bar item; 100 where the pixel is not darkened.
ZOCTRL_API int MenuBarShadowPercent(int column, int row, int itemHeight);

// The x range on a popup's top edge that joins it to the open menu-bar item it hangs from;
// false when the popup does not hang from `barScreen`.
ZOCTRL_API bool PopupJoinLine(const RECT& barScreen, const RECT& popupScreen, int& xFrom, int& xTo);

// Whether an item rectangle can be drawn: not empty, and its width and height within what GDI
// can address (an absurd rectangle would overflow inside GDI).
ZOCTRL_API bool IsDrawableItemRect(const RECT& rect);

// Colour mixing: towards white / black by `percent` (0..100, clamped).
ZOCTRL_API COLORREF LightenColor(COLORREF color, int percent);
ZOCTRL_API COLORREF DarkenColor(COLORREF color, int percent);
ZOCTRL_API COLORREF ScaleColor(COLORREF color, int percent);

// The system colours the menus mix.
ZOCTRL_API COLORREF OpenBarFillColor();      // lightened COLOR_3DFACE
ZOCTRL_API COLORREF DisabledGlyphColor();    // darkened COLOR_3DFACE
ZOCTRL_API COLORREF SelectedShadowColor();   // darkened COLOR_HIGHLIGHT

// A theme colour of the menus; system colours stand in while the theme manager is not running.
ZOCTRL_API COLORREF MenuColor(E_MenuColorSlot slot);

// Draws into a memory bitmap the size of `rect` with the target's coordinates; the result is
// copied to the target when the object ends.
class ZOCTRL_API CBufferDC : public CDC
{
public:
    CBufferDC(HDC hTarget, const RECT& rect);
    ~CBufferDC();

private:
    CBufferDC(const CBufferDC&);
    CBufferDC& operator=(const CBufferDC&);

    HDC m_hTarget;
    CRect m_rect;
    CBitmap m_bitmap;
    HGDIOBJ m_hOldBitmap;
};

class ZOCTRL_API CPenDC
{
public:
    CPenDC(HDC hDC, COLORREF color, int width = 1);
    ~CPenDC();

private:
    CPenDC(const CPenDC&);
    CPenDC& operator=(const CPenDC&);

    HDC m_hDC;
    HPEN m_hPen;
    HGDIOBJ m_hOld;
};

class ZOCTRL_API CBrushDC
{
public:
    CBrushDC(HDC hDC, COLORREF color);
    // The hollow brush.
    explicit CBrushDC(HDC hDC);
    ~CBrushDC();

private:
    CBrushDC(const CBrushDC&);
    CBrushDC& operator=(const CBrushDC&);

    HDC m_hDC;
    HBRUSH m_hBrush; // null for the stock hollow brush
    HGDIOBJ m_hOld;
};

class ZOCTRL_API CFontDC
{
public:
    // A null font leaves the DC's font as it is.
    CFontDC(HDC hDC, HFONT hFont);
    ~CFontDC();

private:
    CFontDC(const CFontDC&);
    CFontDC& operator=(const CFontDC&);

    HDC m_hDC;
    HGDIOBJ m_hOld;
};

class ZOCTRL_API CBoldDC
{
public:
    // Does nothing when bBold is false.
    CBoldDC(HDC hDC, bool bBold);
    ~CBoldDC();

private:
    CBoldDC(const CBoldDC&);
    CBoldDC& operator=(const CBoldDC&);

    HDC m_hDC;
    HFONT m_hBold;
    HGDIOBJ m_hOld;
};

} // namespace ZoMenu_Internals

class ZOCTRL_API CMenuXP
{
public:
    // Reference counted; the first call hooks the calling thread's window procedures.
    static void InitializeHook();
    static void UninitializeHook();
    // Whether the hook is installed (for hosts and tests).
    static bool IsHookInstalled();
    // Takes the hook off the calling thread until as many calls with false have followed, the
    // popups it knows kept: for work that sends the thread's windows many messages while no menu
    // can open, where a hook makes every message dearer (a round trip to the server under Wine).
    // Nothing on any other thread than the hook's.
    static void PauseHook(bool bPause);

    static void SetXPLookNFeel(CWnd* pWnd, bool bEnable = true);
    static bool GetXPLookNFeel(const CWnd* pWnd);
    static void SetXPLookNFeel(CWnd* pWnd, HMENU hMenu, bool bEnable = true, bool bMenuBar = false);
    static void UpdateMenuBar(CWnd* pWnd);
    static bool IsOwnerDrawn(HMENU hMenu);
    static void SetMRUMenuBarItem(RECT& rc);
    static void SetMenuItemImage(UINT nID, HIMAGELIST hImgList, int nIndex);

    static void OnMeasureItem(MEASUREITEMSTRUCT* pMeasureItemStruct);
    static bool OnDrawItem(DRAWITEMSTRUCT* pDrawItemStruct, HWND hWnd);
    static LRESULT OnMenuChar(HMENU hMenu, UINT nChar, UINT nFlags);

    // The forwarding every themed window does (see core/ZoMenuRouting.h).
    static void ForwardInitMenuPopup(CWnd* pWnd, CMenu* pPopupMenu, BOOL bSysMenu);
    static bool ForwardMenuChar(CMenu* pMenu, UINT nChar, UINT nFlags, LRESULT& lResult);

    // Operating-system class (0 unknown, 1 Win32s, 2-4 Windows 9x, 5-12 NT family), cached.
    static int GetOsClass();
    // How many items have been drawn since the process started.
    static int GetDrawCount();
    static RECT GetMRUMenuBarItem();

private:
    CMenuXP();
    static LRESULT CALLBACK _hookProc(int nCode, WPARAM wParam, LPARAM lParam);
    static HHOOK _installHook();
    static LRESULT CALLBACK _popupWndProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam);
    static void _subclassPopup(HWND hWnd);
    static void _dropStaleEntries();
    static CWnd* _findToolBarFrame(CWnd* pWnd);
    static void _registerImage(CWnd* pFrame, UINT_PTR key, bool bSubMenu, UINT nCommand);
    static void _drawBackground(CDC& dc, const DRAWITEMSTRUCT& dis, bool bChecked, bool bMenuBar);
    static void _drawOpenMenuBarItem(CDC& dc, const CRect& rc, COLORREF back);
    static void _drawMenuBarShadow(CDC& dc, const CRect& rc, COLORREF back);
    static void _drawPopupText(CDC& dc, const CRect& rc, const CString& text, UINT textFlags);
    static void _drawImage(CDC& dc, const CRect& rc, HIMAGELIST hImageList, int nIndex, bool bDisabled, bool bLifted);
    static void _drawCheckMark(CDC& dc, const CRect& rc, bool bRadio, bool bDisabled);
    static void _recordMenuBarItem(const RECT& rcItem, HWND hOwner);
};

} // namespace ZoControls
