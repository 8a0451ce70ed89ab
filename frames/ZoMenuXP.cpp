#include <afxwin.h>
#include <afxext.h>
#include <afxtempl.h>
#include <commctrl.h>

#include <algorithm>

#include "core/ZoMenuRouting.h"
#include "core/ZoThemeManager.h"
#include "frames/ZoMenuXP.h"

#ifndef OBM_CHECK
#define OBM_CHECK 32760
#endif
#ifndef DT_HIDEPREFIX
#define DT_HIDEPREFIX 0x00100000
#endif

namespace ZoControls {

namespace ZoMenu_Internals {

DWORD PackItemData(int height, int accelWidth, int textWidth)
{
    // Each field keeps only the bits of its width: a wider value wraps, as it always has.
    return (static_cast<DWORD>(height) & 0xFF) | ((static_cast<DWORD>(accelWidth) & 0xFF) << 8) |
           ((static_cast<DWORD>(textWidth) & 0xFFFF) << 16);
}

int ItemDataHeight(ULONG_PTR data)
{
    return static_cast<int>(data & 0xFF);
}

int ItemDataAccelWidth(ULONG_PTR data)
{
    return static_cast<int>((data >> 8) & 0xFF);
}

int ItemDataTextWidth(ULONG_PTR data)
{
    return static_cast<int>((data >> 16) & 0xFFFF);
}

bool IsMenuBarItemData(ULONG_PTR data)
{
    return ItemDataHeight(data) == 0;
}

int PopupItemHeight(int tmHeight)
{
    return (std::max)(tmHeight + 2, 16) + 4;
}

int SeparatorHeight(int tmHeight)
{
    return tmHeight / 2 + 2;
}

SIZE MeasuredItemSize(ULONG_PTR data)
{
    SIZE size;
    size.cy = ItemDataHeight(data);
    if (IsMenuBarItemData(data))
        size.cx = ItemDataTextWidth(data) + kMenuBarExtraWidth;
    else
        size.cx = ItemDataTextWidth(data) + kSeparatorWidth + ItemDataAccelWidth(data);
    return size;
}

bool TextHasMnemonic(const wchar_t* text, wchar_t upperChar)
{
    if (!text)
        return false;
    const int length = lstrlenW(text);
    for (int i = length - 2; i >= 0; --i) {
        if (text[i] != L'&' || text[i + 1] != upperChar)
            continue;
        // "&&" is a literal ampersand, never a mnemonic marker.
        if (i > 0 && text[i - 1] == L'&')
            continue;
        return true;
    }
    return false;
}

int OsClassFromVersion(DWORD platformId, DWORD major, DWORD minor)
{
    switch (platformId) {
    case VER_PLATFORM_WIN32s:
        return 1;
    case VER_PLATFORM_WIN32_WINDOWS:
        if (major == 4 && minor == 10)
            return 3;
        if (major == 4 && minor == 90)
            return 4;
        return 2;
    case VER_PLATFORM_WIN32_NT:
        if (major == 4)
            return 6;
        if (major == 5)
            return minor == 0 ? 7 : (minor == 1 ? 8 : 5);
        if (major == 6)
            return minor <= 1 ? 9 : (minor <= 3 ? 11 : 5);
        if (major >= 10)
            return 12;
        return 5;
    default:
        return 0;
    }
}

int MenuBarShadowPercent(int column, int row, int itemHeight)
{
    if (column < 0 || column > 3 || row < (std::max)(0, 2 - column))
        return 100;
    if (row >= itemHeight - (column == 0 ? 2 : 1) - column)
        return 100;
    int darkness = column;
    if (row == 0)
        darkness = 0;
    else if (row == 1)
        darkness = column >= 2 ? 1 : 0;
    else if (row == 2)
        darkness = (std::min)(column, 2);
    return 93 - 5 * darkness;
}

bool PopupJoinLine(const RECT& barScreen, const RECT& popupScreen, int& xFrom, int& xTo)
{
    if (IsRectEmpty(&barScreen) || barScreen.bottom != popupScreen.top + 1)
        return false;
    xFrom = barScreen.left - popupScreen.left - 3;
    xTo = barScreen.right - popupScreen.left - 5;
    return true;
}

namespace {
int ClampPercent(int percent)
{
    return percent < 0 ? 0 : (percent > 100 ? 100 : percent);
}
} // namespace

COLORREF ScaleColor(COLORREF color, int percent)
{
    percent = (std::max)(percent, 0);
    const int r = (std::min)(GetRValue(color) * percent / 100, 255);
    const int g = (std::min)(GetGValue(color) * percent / 100, 255);
    const int b = (std::min)(GetBValue(color) * percent / 100, 255);
    return RGB(r, g, b);
}

bool IsDrawableItemRect(const RECT& rect)
{
    // GDI's coordinate space on the NT family: 27 bits.
    const LONGLONG kLargest = 0x7FFFFFF;
    const LONGLONG width = static_cast<LONGLONG>(rect.right) - rect.left;
    const LONGLONG height = static_cast<LONGLONG>(rect.bottom) - rect.top;
    return width > 0 && height > 0 && width <= kLargest && height <= kLargest;
}

COLORREF LightenColor(COLORREF color, int percent)
{
    percent = ClampPercent(percent);
    const int r = GetRValue(color) + (255 - GetRValue(color)) * percent / 100;
    const int g = GetGValue(color) + (255 - GetGValue(color)) * percent / 100;
    const int b = GetBValue(color) + (255 - GetBValue(color)) * percent / 100;
    return RGB(r, g, b);
}

COLORREF DarkenColor(COLORREF color, int percent)
{
    return ScaleColor(color, 100 - ClampPercent(percent));
}

COLORREF OpenBarFillColor()
{
    return LightenColor(::GetSysColor(COLOR_3DFACE), 40);
}

COLORREF DisabledGlyphColor()
{
    return DarkenColor(::GetSysColor(COLOR_3DFACE), 30);
}

COLORREF SelectedShadowColor()
{
    return DarkenColor(::GetSysColor(COLOR_HIGHLIGHT), 40);
}

COLORREF MenuColor(E_MenuColorSlot slot)
{
    const CZoThemeManager* pTheme = CZoThemeManager::GetInstance();
    if (pTheme)
        return pTheme->GetGDIColor(static_cast<E_ZoThemeColors>(slot), ZoTheme_Default);
    switch (slot) {
    case MenuColor_Background:
        return ::GetSysColor(COLOR_MENU);
    case MenuColor_Highlight:
        return ::GetSysColor(COLOR_HIGHLIGHT);
    case MenuColor_CheckedBack:
        return ::GetSysColor(COLOR_3DLIGHT);
    case MenuColor_Text:
        return ::GetSysColor(COLOR_MENUTEXT);
    default:
        return ::GetSysColor(COLOR_3DSHADOW);
    }
}

CBufferDC::CBufferDC(HDC hTarget, const RECT& rect) : m_hTarget(hTarget), m_rect(rect), m_hOldBitmap(NULL)
{
    m_rect.NormalizeRect();
    Attach(::CreateCompatibleDC(hTarget));
    m_bitmap.Attach(::CreateCompatibleBitmap(hTarget ? hTarget : m_hDC, (std::max)(m_rect.Width(), 1), (std::max)(m_rect.Height(), 1)));
    m_hOldBitmap = ::SelectObject(m_hDC, m_bitmap.GetSafeHandle());
    ::SetWindowOrgEx(m_hDC, m_rect.left, m_rect.top, NULL);
    // Pixels nobody draws keep what the target showed.
    if (m_hTarget)
        ::BitBlt(m_hDC, m_rect.left, m_rect.top, m_rect.Width(), m_rect.Height(), m_hTarget, m_rect.left, m_rect.top, SRCCOPY);
}

CBufferDC::~CBufferDC()
{
    if (m_hTarget)
        ::BitBlt(m_hTarget, m_rect.left, m_rect.top, m_rect.Width(), m_rect.Height(), m_hDC, m_rect.left, m_rect.top, SRCCOPY);
    ::SelectObject(m_hDC, m_hOldBitmap);
    ::DeleteDC(Detach());
}

CPenDC::CPenDC(HDC hDC, COLORREF color, int width)
    : m_hDC(hDC), m_hPen(::CreatePen(PS_SOLID, width, color)), m_hOld(::SelectObject(hDC, m_hPen))
{
}

CPenDC::~CPenDC()
{
    ::SelectObject(m_hDC, m_hOld);
    ::DeleteObject(m_hPen);
}

CBrushDC::CBrushDC(HDC hDC, COLORREF color)
    : m_hDC(hDC), m_hBrush(::CreateSolidBrush(color)), m_hOld(::SelectObject(hDC, m_hBrush))
{
}

CBrushDC::CBrushDC(HDC hDC) : m_hDC(hDC), m_hBrush(NULL), m_hOld(::SelectObject(hDC, ::GetStockObject(HOLLOW_BRUSH)))
{
}

CBrushDC::~CBrushDC()
{
    ::SelectObject(m_hDC, m_hOld);
    if (m_hBrush)
        ::DeleteObject(m_hBrush);
}

CFontDC::CFontDC(HDC hDC, HFONT hFont) : m_hDC(hDC), m_hOld(hFont ? ::SelectObject(hDC, hFont) : NULL)
{
}

CFontDC::~CFontDC()
{
    if (m_hOld)
        ::SelectObject(m_hDC, m_hOld);
}

CBoldDC::CBoldDC(HDC hDC, bool bBold) : m_hDC(hDC), m_hBold(NULL), m_hOld(NULL)
{
    if (!bBold)
        return;
    LOGFONTW lf;
    if (::GetObjectW(::GetCurrentObject(hDC, OBJ_FONT), sizeof(lf), &lf) != sizeof(lf))
        return;
    lf.lfWeight = FW_BOLD;
    m_hBold = ::CreateFontIndirectW(&lf);
    if (m_hBold)
        m_hOld = ::SelectObject(hDC, m_hBold);
}

CBoldDC::~CBoldDC()
{
    if (m_hOld)
        ::SelectObject(m_hDC, m_hOld);
    if (m_hBold)
        ::DeleteObject(m_hBold);
}

} // namespace ZoMenu_Internals

using namespace ZoMenu_Internals;

namespace {

const wchar_t kPropMenuXP[] = L"XPWndProp_MenuXP";
const wchar_t kPropOldProc[] = L"XPWndProp_OldProc";
const wchar_t kPopupMenuClass[] = L"#32768";
// Sent to a popup menu window when the system sizes it (MN_SIZEWINDOW).
const UINT kMsgPopupSized = 0x01E2;
const int kMaxItemText = 255;

// The frame of one popup menu window, painted in its non-client area.
class CPopupFrameXP
{
public:
    CPopupFrameXP() : m_bPainted(false) {}

    // bForce paints even when the window has not changed since the last time (WM_PRINT).
    void Paint(HWND hWnd, HDC hDC, bool bForce);
    // The window was exposed or hidden: its frame has to be painted anew.
    void Forget() { m_bPainted = false; }

private:
    void _paintShadow(HDC hDC, const CRect& rc);

    bool m_bPainted;
    CRect m_rcPainted;
};

struct MenuTextEntry
{
    CString text;
    bool bSubMenu;
};

struct MenuImageEntry
{
    HIMAGELIST hImageList;
    int nIndex;
    bool bSubMenu;
};

typedef CMap<HWND, HWND, CPopupFrameXP*, CPopupFrameXP*> PopupFrameMap;
typedef CMap<UINT_PTR, UINT_PTR, MenuTextEntry, const MenuTextEntry&> MenuTextMap;
typedef CMap<UINT_PTR, UINT_PTR, MenuImageEntry, const MenuImageEntry&> MenuImageMap;

struct MenuXPState
{
    MenuXPState() : nHookRefs(0), hHook(NULL), dwHookThread(0), nPauses(0), rcMenuBar(0, 0, 0, 0), nDrawCount(0) {}
    int nHookRefs;
    HHOOK hHook;
    DWORD dwHookThread;
    int nPauses; // taken off the thread for a moment while this is above 0
    PopupFrameMap frames;
    MenuTextMap texts;
    MenuImageMap images;
    CRect rcMenuBar;
    int nDrawCount;
};

MenuXPState& State()
{
    static MenuXPState state;
    return state;
}

bool IsPopupMenuWindow(HWND hWnd)
{
    wchar_t name[8] = {0};
    return ::GetClassNameW(hWnd, name, 8) == 6 && lstrcmpW(name, kPopupMenuClass) == 0;
}

CPopupFrameXP* FindPopupFrame(HWND hWnd)
{
    CPopupFrameXP* pFrame = NULL;
    return State().frames.Lookup(hWnd, pFrame) ? pFrame : NULL;
}

E_ZoMonitorSize MonitorSizeOf(HWND hWnd)
{
    if (!hWnd || !::IsWindow(hWnd))
        return ZoMonitorSize_Normal;
    const E_ZoMonitorSize size = ZoGetCurrentMonitorSize(CWnd::FromHandle(hWnd), true);
    return size == ZoMonitorSize_Unknown ? ZoMonitorSize_Normal : size;
}

// The theme's menu font for the window's size class; null while the theme manager is not running.
HFONT MenuFontFor(HWND hWnd)
{
    const CZoThemeManager* pTheme = CZoThemeManager::GetInstance();
    if (!pTheme)
        return NULL;
    const CFont* pFont = pTheme->GetCacheGDIFont(ZoThemeFont_3, MonitorSizeOf(hWnd));
    return pFont ? static_cast<HFONT>(pFont->GetSafeHandle()) : NULL;
}

UINT_PTR ItemKey(const MENUITEMINFOW& info)
{
    return info.hSubMenu ? reinterpret_cast<UINT_PTR>(info.hSubMenu) : info.wID;
}

// The item of hMenu that WM_DRAWITEM / WM_MEASUREITEM name by itemID, and its position.
bool FindItemById(HMENU hMenu, UINT itemID, MENUITEMINFOW& info, int& position)
{
    if (!hMenu || !::IsMenu(hMenu))
        return false;
    const int count = ::GetMenuItemCount(hMenu);
    for (int i = 0; i < count; ++i) {
        ZeroMemory(&info, sizeof(info));
        info.cbSize = sizeof(info);
        info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_SUBMENU;
        if (::GetMenuItemInfoW(hMenu, i, TRUE, &info) && info.wID == itemID) {
            position = i;
            return true;
        }
    }
    return false;
}

// An item's text as it was before it became owner-drawn.
CString ItemText(HMENU hMenu, int position, const MENUITEMINFOW& info)
{
    MenuTextEntry entry;
    if (State().texts.Lookup(ItemKey(info), entry))
        return entry.text;
    CString text;
    wchar_t buffer[kMaxItemText + 1] = {0};
    if (::GetMenuStringW(hMenu, position, buffer, kMaxItemText + 1, MF_BYPOSITION) > 0)
        text = buffer;
    return text;
}

bool KeyboardCuesHidden(UINT itemState)
{
    if (!(itemState & ODS_NOACCEL))
        return false;
    BOOL bCues = TRUE;
    return ::SystemParametersInfoW(SPI_GETKEYBOARDCUES, 0, &bCues, 0) && !bCues;
}

// Width of `text` as DrawTextW lays it out on one line (a mnemonic "&" takes no room).
int SingleLineWidth(HDC hDC, const CString& text)
{
    if (text.IsEmpty())
        return 0;
    RECT rc = {0, 0, 1000, 0};
    ::DrawTextW(hDC, text, text.GetLength(), &rc, DT_CALCRECT | DT_SINGLELINE);
    return rc.right - rc.left;
}

void SplitAtTab(const CString& text, CString& label, CString& accel)
{
    const int tab = text.Find(L'\t');
    label = tab < 0 ? text : text.Left(tab);
    accel = tab < 0 ? CString() : text.Mid(tab + 1);
}

void CPopupFrameXP::Paint(HWND hWnd, HDC hDC, bool bForce)
{
    CRect rcScreen;
    if (!hDC || !::GetWindowRect(hWnd, &rcScreen))
        return;
    CRect rc(0, 0, rcScreen.Width(), rcScreen.Height());
    if (!bForce && m_bPainted && rc == m_rcPainted)
        return;
    m_bPainted = true;
    m_rcPainted = rc;

    const bool bOwnShadow = CMenuXP::GetOsClass() < kOsClassWithShadows;
    CRect rcOuter = rc;
    if (bOwnShadow) {
        rcOuter.right -= kShadowMargin;
        rcOuter.bottom -= kShadowMargin;
    }
    CBrushDC hollow(hDC);
    {
        CPenDC border(hDC, MenuColor(MenuColor_FrameBorder));
        ::Rectangle(hDC, rcOuter.left, rcOuter.top, rcOuter.right, rcOuter.bottom);
    }
    {
        CPenDC inner(hDC, MenuColor(MenuColor_Background));
        for (int inset = 1; inset <= 2; ++inset)
            ::Rectangle(hDC, rcOuter.left + inset, rcOuter.top + inset, rcOuter.right - inset, rcOuter.bottom - inset);
    }
    int xFrom = 0;
    int xTo = 0;
    const RECT rcBar = CMenuXP::GetMRUMenuBarItem();
    if (PopupJoinLine(rcBar, rcScreen, xFrom, xTo)) {
        CPenDC join(hDC, OpenBarFillColor());
        ::MoveToEx(hDC, xFrom, 0, NULL);
        ::LineTo(hDC, xTo, 0);
    }
    if (bOwnShadow)
        _paintShadow(hDC, rc);
}

void CPopupFrameXP::_paintShadow(HDC hDC, const CRect& rc)
{
    // Darkest next to the menu, fading outwards, across the 4 px margin right and below.
    for (int d = 0; d < kShadowMargin; ++d) {
        const int percent = 60 + 10 * d;
        const int x = rc.right - kShadowMargin + d;
        for (int y = rc.top + kShadowMargin; y < rc.bottom - kShadowMargin + d + 1; ++y)
            ::SetPixel(hDC, x, y, ScaleColor(::GetPixel(hDC, x, y), percent));
        const int y = rc.bottom - kShadowMargin + d;
        for (int x2 = rc.left + kShadowMargin; x2 < rc.right - kShadowMargin + d; ++x2)
            ::SetPixel(hDC, x2, y, ScaleColor(::GetPixel(hDC, x2, y), percent));
    }
}

// The control bars of one frame, found through its windows: a docked bar sits among the frame's
// descendants (directly or inside a dock bar), a floating one inside a small frame window that
// the frame owns. A bar counts when its nearest frame is that frame or is owned by it, so the
// bars of MDI children and of nested frames stay out.
struct ControlBarSearch
{
    HWND hFrame;
    CArray<HWND, HWND>* pBars;
};

BOOL CALLBACK CollectControlBar(HWND hWnd, LPARAM lParam)
{
    ControlBarSearch& search = *reinterpret_cast<ControlBarSearch*>(lParam);
    CControlBar* pBar = DYNAMIC_DOWNCAST(CControlBar, CWnd::FromHandlePermanent(hWnd));
    CFrameWnd* pBarFrame = pBar ? pBar->GetParentFrame() : NULL;
    const HWND hBarFrame = pBarFrame ? pBarFrame->GetSafeHwnd() : NULL;
    if (hBarFrame && (hBarFrame == search.hFrame || ::GetWindow(hBarFrame, GW_OWNER) == search.hFrame))
        search.pBars->Add(hWnd);
    return TRUE;
}

BOOL CALLBACK CollectFloatingControlBars(HWND hWnd, LPARAM lParam)
{
    if (::GetWindow(hWnd, GW_OWNER) == reinterpret_cast<ControlBarSearch*>(lParam)->hFrame)
        ::EnumChildWindows(hWnd, CollectControlBar, lParam);
    return TRUE;
}

void CollectControlBars(CFrameWnd* pFrame, CArray<HWND, HWND>& bars)
{
    const HWND hFrame = pFrame ? pFrame->GetSafeHwnd() : NULL;
    if (!hFrame)
        return;
    ControlBarSearch search = {hFrame, &bars};
    ::EnumChildWindows(hFrame, CollectControlBar, reinterpret_cast<LPARAM>(&search));
    ::EnumThreadWindows(::GetWindowThreadProcessId(hFrame, NULL), CollectFloatingControlBars,
                        reinterpret_cast<LPARAM>(&search));
}

} // namespace

void CMenuXP::InitializeHook()
{
    MenuXPState& state = State();
    if (state.nHookRefs++ > 0)
        return;
    state.dwHookThread = ::GetCurrentThreadId();
    state.hHook = _installHook();
}

HHOOK CMenuXP::_installHook()
{
    // The module that holds the hook procedure: this library, not the host.
    HMODULE hModule = NULL;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         reinterpret_cast<LPCWSTR>(&CMenuXP::_hookProc), &hModule);
    return ::SetWindowsHookExW(WH_CALLWNDPROC, &CMenuXP::_hookProc, hModule, ::GetCurrentThreadId());
}

void CMenuXP::PauseHook(bool bPause)
{
    MenuXPState& state = State();
    if (::GetCurrentThreadId() != state.dwHookThread)
        return;
    if (bPause)
    {
        if (state.nPauses++ == 0 && state.hHook)
        {
            ::UnhookWindowsHookEx(state.hHook);
            state.hHook = NULL;
        }
    }
    else if (state.nPauses > 0 && --state.nPauses == 0 && state.nHookRefs > 0 && !state.hHook)
    {
        state.hHook = _installHook();
    }
}

void CMenuXP::UninitializeHook()
{
    MenuXPState& state = State();
    if (state.nHookRefs <= 0 || --state.nHookRefs > 0)
        return;
    POSITION pos = state.frames.GetStartPosition();
    while (pos) {
        HWND hWnd = NULL;
        CPopupFrameXP* pFrame = NULL;
        state.frames.GetNextAssoc(pos, hWnd, pFrame);
        delete pFrame;
    }
    state.frames.RemoveAll();
    if (state.hHook)
        ::UnhookWindowsHookEx(state.hHook);
    state.hHook = NULL;
    state.nPauses = 0;
}

bool CMenuXP::IsHookInstalled()
{
    return State().hHook != NULL;
}

void CMenuXP::SetXPLookNFeel(CWnd* pWnd, bool bEnable)
{
    const HWND hWnd = pWnd ? pWnd->GetSafeHwnd() : NULL;
    if (!hWnd || !::IsWindow(hWnd))
        return;
    if (bEnable)
        ::SetPropW(hWnd, kPropMenuXP, reinterpret_cast<HANDLE>(1));
    else
        ::RemovePropW(hWnd, kPropMenuXP);
}

bool CMenuXP::GetXPLookNFeel(const CWnd* pWnd)
{
    const HWND hWnd = pWnd ? pWnd->GetSafeHwnd() : NULL;
    return hWnd && ::GetPropW(hWnd, kPropMenuXP) != NULL;
}

void CMenuXP::_dropStaleEntries()
{
    MenuXPState& state = State();
    CArray<UINT_PTR, UINT_PTR> stale;
    POSITION pos = state.texts.GetStartPosition();
    while (pos) {
        UINT_PTR key = 0;
        MenuTextEntry entry;
        state.texts.GetNextAssoc(pos, key, entry);
        if (entry.bSubMenu && !::IsMenu(reinterpret_cast<HMENU>(key)))
            stale.Add(key);
    }
    for (INT_PTR i = 0; i < stale.GetSize(); ++i)
        state.texts.RemoveKey(stale[i]);
    stale.RemoveAll();
    pos = state.images.GetStartPosition();
    while (pos) {
        UINT_PTR key = 0;
        MenuImageEntry entry;
        state.images.GetNextAssoc(pos, key, entry);
        if (entry.bSubMenu && !::IsMenu(reinterpret_cast<HMENU>(key)))
            stale.Add(key);
    }
    for (INT_PTR i = 0; i < stale.GetSize(); ++i)
        state.images.RemoveKey(stale[i]);
}

CWnd* CMenuXP::_findToolBarFrame(CWnd* pWnd)
{
    if (!pWnd || !pWnd->GetSafeHwnd())
        return NULL;
    CFrameWnd* pFrame = DYNAMIC_DOWNCAST(CFrameWnd, pWnd);
    CArray<HWND, HWND> bars;
    CollectControlBars(pFrame, bars);
    if (bars.GetSize() == 0)
        pFrame = pWnd->GetParentFrame();
    // The toolbars of an MDI application belong to the main frame, not to its children.
    while (pFrame && pFrame->IsKindOf(RUNTIME_CLASS(CMDIChildWnd)))
        pFrame = pFrame->GetParentFrame();
    return pFrame;
}

void CMenuXP::_registerImage(CWnd* pFrameWnd, UINT_PTR key, bool bSubMenu, UINT nCommand)
{
    CFrameWnd* pFrame = DYNAMIC_DOWNCAST(CFrameWnd, pFrameWnd);
    if (!pFrame || nCommand == 0)
        return;
    CArray<HWND, HWND> bars;
    CollectControlBars(pFrame, bars);
    for (INT_PTR i = 0; i < bars.GetSize(); ++i) {
        const HWND hBar = bars[i];
        wchar_t name[32] = {0};
        if (!::GetClassNameW(hBar, name, 32) || lstrcmpiW(name, TOOLBARCLASSNAMEW) != 0)
            continue;
        TBBUTTONINFOW button;
        ZeroMemory(&button, sizeof(button));
        button.cbSize = sizeof(button);
        button.dwMask = TBIF_IMAGE | TBIF_COMMAND;
        if (::SendMessageW(hBar, TB_GETBUTTONINFOW, nCommand, reinterpret_cast<LPARAM>(&button)) == -1)
            continue;
        MenuImageEntry entry;
        entry.hImageList = reinterpret_cast<HIMAGELIST>(::SendMessageW(hBar, TB_GETIMAGELIST, 0, 0));
        entry.nIndex = button.iImage;
        entry.bSubMenu = bSubMenu;
        State().images.SetAt(key, entry);
        return;
    }
}

void CMenuXP::SetXPLookNFeel(CWnd* pWnd, HMENU hMenu, bool bEnable, bool bMenuBar)
{
    if (!bEnable || !hMenu || !::IsMenu(hMenu))
        return;
    _dropStaleEntries();

    // The maximised MDI child's system menu keeps its system look; no bar item is open then.
    CMDIFrameWnd* pMDIFrame = DYNAMIC_DOWNCAST(CMDIFrameWnd, pWnd);
    if (pMDIFrame && pMDIFrame->GetSafeHwnd()) {
        CMDIChildWnd* pChild = pMDIFrame->MDIGetActive();
        CMenu* pSysMenu = pChild ? pChild->GetSystemMenu(FALSE) : NULL;
        if (pSysMenu && pSysMenu->GetSafeHmenu() == hMenu) {
            State().rcMenuBar.SetRectEmpty();
            return;
        }
    }
    CWnd* pToolBarFrame = _findToolBarFrame(pWnd);

    const HWND hOwner = pWnd ? pWnd->GetSafeHwnd() : NULL;
    CWnd* pMain = AfxGetMainWnd();
    HWND hMeasure = pMain && ::IsWindow(pMain->GetSafeHwnd()) ? pMain->GetSafeHwnd() : hOwner;
    const HDC hDC = ::GetDC(hMeasure);
    if (!hDC)
        return;
    {
        CFontDC font(hDC, MenuFontFor(hOwner ? hOwner : hMeasure));
        TEXTMETRICW tm;
        ZeroMemory(&tm, sizeof(tm));
        ::GetTextMetricsW(hDC, &tm);

        MenuXPState& state = State();
        CArray<int, int> converted;
        CArray<bool, bool> separators;
        int maxText = 0;
        int maxAccel = 0;
        const int count = ::GetMenuItemCount(hMenu);
        for (int i = 0; i < count; ++i) {
            wchar_t buffer[kMaxItemText + 1] = {0};
            MENUITEMINFOW info;
            ZeroMemory(&info, sizeof(info));
            info.cbSize = sizeof(info);
            info.fMask = MIIM_FTYPE | MIIM_ID | MIIM_SUBMENU | MIIM_STRING;
            info.dwTypeData = buffer;
            info.cch = kMaxItemText;
            if (!::GetMenuItemInfoW(hMenu, i, TRUE, &info))
                continue;
            if ((info.fType & MFT_OWNERDRAW) || (bMenuBar && (info.fType & MFT_BITMAP)))
                continue;
            const CString text(buffer);
            MENUITEMINFOW update;
            ZeroMemory(&update, sizeof(update));
            update.cbSize = sizeof(update);
            update.fMask = MIIM_FTYPE;
            update.fType = info.fType | MFT_OWNERDRAW;
            if (bMenuBar) {
                update.fMask |= MIIM_DATA;
                update.dwItemData = PackItemData(0, 0, SingleLineWidth(hDC, text));
            }
            ::SetMenuItemInfoW(hMenu, i, TRUE, &update);

            const bool bSeparator = (info.fType & MFT_SEPARATOR) != 0;
            converted.Add(i);
            separators.Add(bSeparator);
            if (bSeparator)
                continue;
            MenuTextEntry entry;
            entry.text = text;
            entry.bSubMenu = info.hSubMenu != NULL;
            state.texts.SetAt(ItemKey(info), entry);
            _registerImage(pToolBarFrame, ItemKey(info), entry.bSubMenu, info.wID);
            if (!bMenuBar) {
                CString label;
                CString accel;
                SplitAtTab(text, label, accel);
                maxText = (std::max)(maxText, SingleLineWidth(hDC, label));
                maxAccel = (std::max)(maxAccel, SingleLineWidth(hDC, accel));
            }
        }
        if (!bMenuBar) {
            const DWORD itemData = PackItemData(PopupItemHeight(tm.tmHeight), maxAccel, maxText);
            const DWORD separatorData = PackItemData(SeparatorHeight(tm.tmHeight), 0, 0);
            for (INT_PTR k = 0; k < converted.GetSize(); ++k) {
                MENUITEMINFOW update;
                ZeroMemory(&update, sizeof(update));
                update.cbSize = sizeof(update);
                update.fMask = MIIM_DATA;
                update.dwItemData = separators[k] ? separatorData : itemData;
                ::SetMenuItemInfoW(hMenu, converted[k], TRUE, &update);
            }
        }
    }
    ::ReleaseDC(hMeasure, hDC);
}

void CMenuXP::UpdateMenuBar(CWnd* pWnd)
{
    const HWND hWnd = pWnd ? pWnd->GetSafeHwnd() : NULL;
    // A child window's "menu" is its control id.
    if (!hWnd || !GetXPLookNFeel(pWnd) || (::GetWindowLongW(hWnd, GWL_STYLE) & WS_CHILD))
        return;
    const HMENU hMenu = ::GetMenu(hWnd);
    if (!hMenu || !::IsMenu(hMenu))
        return;
    SetXPLookNFeel(pWnd, hMenu, true, true);
    ::DrawMenuBar(hWnd);
}

bool CMenuXP::IsOwnerDrawn(HMENU hMenu)
{
    if (!hMenu || !::IsMenu(hMenu))
        return false;
    MENUITEMINFOW info;
    ZeroMemory(&info, sizeof(info));
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE;
    return ::GetMenuItemInfoW(hMenu, 0, TRUE, &info) && (info.fType & MFT_OWNERDRAW);
}

void CMenuXP::SetMRUMenuBarItem(RECT& rc)
{
    State().rcMenuBar = rc;
}

RECT CMenuXP::GetMRUMenuBarItem()
{
    return State().rcMenuBar;
}

void CMenuXP::SetMenuItemImage(UINT nID, HIMAGELIST hImgList, int nIndex)
{
    MenuImageEntry entry;
    entry.hImageList = hImgList;
    entry.nIndex = nIndex;
    entry.bSubMenu = false;
    State().images.SetAt(nID, entry);
}

int CMenuXP::GetDrawCount()
{
    return State().nDrawCount;
}

int CMenuXP::GetOsClass()
{
    static int s_nOsClass = -1;
    if (s_nOsClass < 0) {
        OSVERSIONINFOW version;
        ZeroMemory(&version, sizeof(version));
        version.dwOSVersionInfoSize = sizeof(version);
#ifdef _MSC_VER
#pragma warning(suppress : 4996)
#endif
        const BOOL bKnown = ::GetVersionExW(&version);
        s_nOsClass = bKnown ? OsClassFromVersion(version.dwPlatformId, version.dwMajorVersion, version.dwMinorVersion) : 0;
    }
    return s_nOsClass;
}

void CMenuXP::OnMeasureItem(MEASUREITEMSTRUCT* pMeasureItemStruct)
{
    if (!pMeasureItemStruct || pMeasureItemStruct->CtlType != ODT_MENU)
        return;
    const SIZE size = MeasuredItemSize(pMeasureItemStruct->itemData);
    pMeasureItemStruct->itemWidth = size.cx;
    pMeasureItemStruct->itemHeight = size.cy;
}

void CMenuXP::_drawOpenMenuBarItem(CDC& dc, const CRect& rc, COLORREF back)
{
    {
        CPenDC pen(dc.m_hDC, ::GetSysColor(COLOR_3DDKSHADOW));
        CBrushDC brush(dc.m_hDC, OpenBarFillColor());
        dc.Rectangle(rc.left, rc.top, rc.right - kShadowMargin, rc.bottom);
    }
    _drawMenuBarShadow(dc, rc, back);
}

void CMenuXP::_drawMenuBarShadow(CDC& dc, const CRect& rc, COLORREF back)
{
    dc.FillSolidRect(rc.right - kShadowMargin, rc.top, kShadowMargin, rc.Height(), back);
    for (int column = 0; column < kShadowMargin; ++column) {
        const int x = rc.right - 1 - column;
        for (int row = 0; rc.top + kShadowMargin + row < rc.bottom; ++row) {
            const int percent = MenuBarShadowPercent(column, row, rc.Height());
            if (percent == 100)
                continue;
            const int y = rc.top + kShadowMargin + row;
            dc.SetPixel(x, y, ScaleColor(dc.GetPixel(x, y), percent));
        }
    }
}

void CMenuXP::_drawBackground(CDC& dc, const DRAWITEMSTRUCT& dis, bool bChecked, bool bMenuBar)
{
    const CRect rc(dis.rcItem);
    const bool bSelected = (dis.itemState & ODS_SELECTED) != 0;
    const bool bHot = (dis.itemState & ODS_HOTLIGHT) != 0;
    const bool bInactive = (dis.itemState & ODS_INACTIVE) != 0;
    const COLORREF back = MenuColor(MenuColor_Background);
    dc.FillSolidRect(rc, back);
    if (bChecked)
        dc.FillSolidRect(rc.left + kColumnFillLeft, rc.top, rc.right - rc.left - kColumnFillLeft, rc.Height(), MenuColor(MenuColor_CheckedBack));
    if (bMenuBar && bSelected)
        _drawOpenMenuBarItem(dc, rc, back);
    else if (!bSelected && (!bHot || bInactive))
        dc.FillSolidRect(rc.left + kIconColumnWidth, rc.top, 1, rc.Height(), MenuColor(MenuColor_Separator));
    else
        dc.FillSolidRect(rc.left + kColumnFillLeft, rc.top, rc.right - rc.left - kColumnFillLeft, rc.Height(), MenuColor(MenuColor_Highlight));
}

void CMenuXP::_drawPopupText(CDC& dc, const CRect& rc, const CString& text, UINT textFlags)
{
    CString label;
    CString accel;
    SplitAtTab(text, label, accel);
    CRect rcText(rc.left + kTextLeft, rc.top, rc.right, rc.bottom);
    dc.DrawText(label, rcText, DT_LEFT | DT_VCENTER | DT_SINGLELINE | textFlags);
    if (!accel.IsEmpty()) {
        CRect rcAccel(rc.left, rc.top, rc.right - kAccelRightMargin, rc.bottom);
        dc.DrawText(accel, rcAccel, DT_RIGHT | DT_VCENTER | DT_SINGLELINE | textFlags);
    }
}

void CMenuXP::_drawCheckMark(CDC& dc, const CRect& rc, bool bRadio, bool bDisabled)
{
    if (bRadio) {
        const COLORREF color = bDisabled ? DisabledGlyphColor() : ::GetSysColor(COLOR_MENUTEXT);
        CPenDC pen(dc.m_hDC, color);
        CBrushDC brush(dc.m_hDC, color);
        const int cx = rc.left + 12;
        const int cy = rc.top + rc.Height() / 2;
        dc.Ellipse(cx - 4, cy - 3, cx + 3, cy + 4);
        return;
    }
    const HBITMAP hCheck = ::LoadBitmapW(NULL, MAKEINTRESOURCEW(OBM_CHECK));
    if (!hCheck)
        return;
    BITMAP info;
    ZeroMemory(&info, sizeof(info));
    ::GetObjectW(hCheck, sizeof(info), &info);
    const COLORREF color = bDisabled ? DisabledGlyphColor() : MenuColor(MenuColor_Text);
    CBrush brush(color);
    // DSS_MONO paints the mark in the brush's colour and leaves the rest of the box untouched.
    ::DrawStateW(dc.m_hDC, static_cast<HBRUSH>(brush.GetSafeHandle()), NULL, reinterpret_cast<LPARAM>(hCheck), 0,
                 rc.left + 5, rc.top + 3, 15, (std::min)(static_cast<int>(info.bmHeight), rc.Height() - 3), DST_BITMAP | DSS_MONO);
    ::DeleteObject(hCheck);
}

// Draws one image of an image list as a flat silhouette in `color`.
static void DrawImageSilhouette(CDC& dc, HIMAGELIST hImageList, int nIndex, int x, int y, COLORREF color)
{
    const HICON hIcon = ::ImageList_GetIcon(hImageList, nIndex, ILD_NORMAL);
    if (!hIcon)
        return;
    CBrush brush(color);
    ::DrawStateW(dc.m_hDC, static_cast<HBRUSH>(brush.GetSafeHandle()), NULL, reinterpret_cast<LPARAM>(hIcon), 0, x, y, 0, 0,
                 DST_ICON | DSS_MONO);
    ::DestroyIcon(hIcon);
}

void CMenuXP::_drawImage(CDC& dc, const CRect& rc, HIMAGELIST hImageList, int nIndex, bool bDisabled, bool bLifted)
{
    if (bDisabled) {
        DrawImageSilhouette(dc, hImageList, nIndex, rc.left + 3, rc.top + 3, DisabledGlyphColor());
        return;
    }
    // A selected item's icon is lifted above its own shadow.
    int offset = 3;
    if (bLifted) {
        DrawImageSilhouette(dc, hImageList, nIndex, rc.left + 4, rc.top + 4, SelectedShadowColor());
        offset = 2;
    }
    ::ImageList_Draw(hImageList, nIndex, dc.m_hDC, rc.left + offset, rc.top + offset, ILD_TRANSPARENT);
}

void CMenuXP::_recordMenuBarItem(const RECT& rcItem, HWND hOwner)
{
    CRect rcWindow;
    if (!hOwner || !::GetWindowRect(hOwner, &rcWindow))
        return;
    CRect rc(rcItem);
    rc.OffsetRect(rcWindow.TopLeft());
    CWnd* pOwner = CWnd::FromHandlePermanent(hOwner);
    if (pOwner && pOwner->IsKindOf(RUNTIME_CLASS(CDialog)))
        rc.OffsetRect(1, 0);
    SetMRUMenuBarItem(rc);
}

bool CMenuXP::OnDrawItem(DRAWITEMSTRUCT* pDrawItemStruct, HWND hWnd)
{
    if (!pDrawItemStruct || pDrawItemStruct->CtlType != ODT_MENU)
        return false;
    const DRAWITEMSTRUCT& dis = *pDrawItemStruct;
    const CRect rc(dis.rcItem);
    if (!dis.hDC || !IsDrawableItemRect(rc)) {
        ++State().nDrawCount;
        return true;
    }
    const HMENU hMenu = reinterpret_cast<HMENU>(dis.hwndItem);
    MENUITEMINFOW info;
    ZeroMemory(&info, sizeof(info));
    int position = -1;
    const bool bFound = FindItemById(hMenu, dis.itemID, info, position);
    const bool bMenuBar = IsMenuBarItemData(dis.itemData);
    const bool bSelected = (dis.itemState & ODS_SELECTED) != 0;
    const bool bChecked = (info.fState & MFS_CHECKED) || (dis.itemState & ODS_CHECKED);
    const bool bDisabled = (info.fState & MFS_GRAYED) || (dis.itemState & (ODS_GRAYED | ODS_DISABLED));
    const bool bDefault = (info.fState & MFS_DEFAULT) || (dis.itemState & ODS_DEFAULT);
    const HFONT hFont = MenuFontFor(hWnd);
    {
        CBufferDC dc(dis.hDC, rc);
        CFontDC font(dc.m_hDC, hFont ? hFont : static_cast<HFONT>(::GetCurrentObject(dis.hDC, OBJ_FONT)));
        _drawBackground(dc, dis, bChecked, bMenuBar);
        dc.SetBkMode(TRANSPARENT);
        dc.SetTextColor(MenuColor(MenuColor_Text));
        const UINT prefix = KeyboardCuesHidden(dis.itemState) ? DT_HIDEPREFIX : 0;
        const CString text = bFound ? ItemText(hMenu, position, info) : CString();
        if (bMenuBar) {
            CRect rcText(rc.left, rc.top, rc.right - kMenuBarExtraWidth, rc.bottom);
            dc.DrawText(text, rcText, DT_CENTER | DT_VCENTER | DT_SINGLELINE | prefix);
        } else if (bFound && (info.fType & MFT_SEPARATOR)) {
            dc.FillSolidRect(rc.left + kColumnFillLeft, rc.top + rc.Height() / 2, rc.right - rc.left - kColumnFillLeft, 1,
                             MenuColor(MenuColor_Separator));
        } else {
            if (!text.IsEmpty()) {
                CBoldDC bold(dc.m_hDC, bDefault);
                _drawPopupText(dc, rc, text, prefix);
            }
            MenuImageEntry image = {NULL, -1, false};
            const bool bImage = bFound && State().images.Lookup(ItemKey(info), image) && image.hImageList && image.nIndex >= 0;
            if (bImage)
                _drawImage(dc, rc, image.hImageList, image.nIndex, bDisabled, bSelected && !bChecked);
            else if (bChecked)
                _drawCheckMark(dc, rc, (info.fType & MFT_RADIOCHECK) != 0, bDisabled);
        }
    }
    if (bMenuBar && bSelected)
        _recordMenuBarItem(dis.rcItem, hWnd);
    ++State().nDrawCount;
    return true;
}

LRESULT CMenuXP::OnMenuChar(HMENU hMenu, UINT nChar, UINT nFlags)
{
    const bool bPlainPopup = (nFlags & MF_POPUP) && !(nFlags & MF_SYSMENU);
    if ((nFlags != 0 && !bPlainPopup) || !hMenu || !::IsMenu(hMenu))
        return 0;
    const wchar_t wanted = static_cast<wchar_t>(reinterpret_cast<UINT_PTR>(
        ::CharUpperW(reinterpret_cast<LPWSTR>(static_cast<UINT_PTR>(static_cast<wchar_t>(nChar))))));
    const int count = ::GetMenuItemCount(hMenu);
    for (int i = 0; i < count; ++i) {
        MENUITEMINFOW info;
        ZeroMemory(&info, sizeof(info));
        info.cbSize = sizeof(info);
        info.fMask = MIIM_ID | MIIM_SUBMENU;
        if (!::GetMenuItemInfoW(hMenu, i, TRUE, &info))
            continue;
        CString text = ItemText(hMenu, i, info);
        text.MakeUpper();
        if (TextHasMnemonic(text, wanted))
            return MAKELRESULT(i, MNC_EXECUTE);
    }
    return 0;
}

void CMenuXP::ForwardInitMenuPopup(CWnd* pWnd, CMenu* pPopupMenu, BOOL bSysMenu)
{
    if (pPopupMenu)
        SetXPLookNFeel(pWnd, pPopupMenu->GetSafeHmenu(), !bSysMenu, false);
}

bool CMenuXP::ForwardMenuChar(CMenu* pMenu, UINT nChar, UINT nFlags, LRESULT& lResult)
{
    const HMENU hMenu = pMenu ? pMenu->GetSafeHmenu() : NULL;
    if (!IsOwnerDrawn(hMenu))
        return false;
    lResult = OnMenuChar(hMenu, nChar, nFlags);
    return true;
}

void CMenuXP::_subclassPopup(HWND hWnd)
{
    MenuXPState& state = State();
    if (!FindPopupFrame(hWnd))
        state.frames.SetAt(hWnd, new CPopupFrameXP);
    if (::GetPropW(hWnd, kPropOldProc))
        return;
    const LONG_PTR oldProc = ::GetWindowLongPtrW(hWnd, GWLP_WNDPROC);
    ::SetPropW(hWnd, kPropOldProc, reinterpret_cast<HANDLE>(oldProc));
    ::SetLastError(0);
    if (!::SetWindowLongPtrW(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&CMenuXP::_popupWndProc)) && ::GetLastError() != 0)
        ::RemovePropW(hWnd, kPropOldProc);
}

LRESULT CALLBACK CMenuXP::_hookProc(int nCode, WPARAM wParam, LPARAM lParam)
{
    if (nCode == HC_ACTION && lParam) {
        const CWPSTRUCT* pMsg = reinterpret_cast<const CWPSTRUCT*>(lParam);
        if ((pMsg->message == WM_CREATE || pMsg->message == kMsgPopupSized) && IsPopupMenuWindow(pMsg->hwnd))
            _subclassPopup(pMsg->hwnd);
    }
    return ::CallNextHookEx(State().hHook, nCode, wParam, lParam);
}

LRESULT CALLBACK CMenuXP::_popupWndProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam)
{
    const WNDPROC oldProc = reinterpret_cast<WNDPROC>(::GetPropW(hWnd, kPropOldProc));
    if (!oldProc)
        return ::DefWindowProcW(hWnd, uMsg, wParam, lParam);
    CPopupFrameXP* pFrame = FindPopupFrame(hWnd);
    switch (uMsg) {
    case WM_NCCALCSIZE: {
        const LRESULT result = ::CallWindowProcW(oldProc, hWnd, uMsg, wParam, lParam);
        if (GetOsClass() < kOsClassWithShadows && lParam) {
            RECT* pRect = reinterpret_cast<RECT*>(lParam); // first member of NCCALCSIZE_PARAMS too
            pRect->right -= kShadowMargin;
            pRect->bottom -= kShadowMargin;
        }
        return result;
    }
    case WM_NCPAINT:
        if (pFrame) {
            const HDC hDC = ::GetWindowDC(hWnd);
            pFrame->Paint(hWnd, hDC, false);
            ::ReleaseDC(hWnd, hDC);
            return 0;
        }
        break;
    case WM_PRINT: {
        const LRESULT result = ::CallWindowProcW(oldProc, hWnd, uMsg, wParam, lParam);
        if (pFrame)
            pFrame->Paint(hWnd, reinterpret_cast<HDC>(wParam), true);
        return result;
    }
    case WM_ERASEBKGND:
    case WM_SHOWWINDOW:
        if (pFrame)
            pFrame->Forget();
        break;
    case WM_NCDESTROY:
        ::SetWindowLongPtrW(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(oldProc));
        ::RemovePropW(hWnd, kPropOldProc);
        if (pFrame) {
            State().frames.RemoveKey(hWnd);
            delete pFrame;
        }
        break;
    default:
        break;
    }
    return ::CallWindowProcW(oldProc, hWnd, uMsg, wParam, lParam);
}

namespace {

// Serves the menu messages that themed windows forward through the core.
class CMenuXPSupport : public IZoMenuSupport
{
public:
    CMenuXPSupport() { ZoSetMenuSupport(this); }
    ~CMenuXPSupport() { ZoSetMenuSupport(NULL); }

    void SetLookNFeel(CWnd* pWnd, bool bEnable) override { CMenuXP::SetXPLookNFeel(pWnd, bEnable); }
    void InitMenuPopup(CWnd* pWnd, CMenu* pPopupMenu, BOOL bSysMenu) override
    {
        CMenuXP::ForwardInitMenuPopup(pWnd, pPopupMenu, bSysMenu);
    }
    void MeasureItem(MEASUREITEMSTRUCT* pMeasureItemStruct) override { CMenuXP::OnMeasureItem(pMeasureItemStruct); }
    bool DrawItem(DRAWITEMSTRUCT* pDrawItemStruct, HWND hWnd) override
    {
        return CMenuXP::OnDrawItem(pDrawItemStruct, hWnd);
    }
    bool MenuChar(CMenu* pMenu, UINT nChar, UINT nFlags, LRESULT& lResult) override
    {
        return CMenuXP::ForwardMenuChar(pMenu, nChar, nFlags, lResult);
    }
    void PauseHook(bool bPause) override { CMenuXP::PauseHook(bPause); }
};

CMenuXPSupport g_menuXPSupport;

} // namespace

} // namespace ZoControls
