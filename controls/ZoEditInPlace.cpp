#include "controls/ZoEditInPlace.h"

#include <commctrl.h>

namespace ZoControls {

namespace {

const UINT kEscapeChar = 27;
const UINT kEnterChar = 13;
const UINT kUpChar = 38;   // VK_UP's number, the character "&"
const UINT kDownChar = 40; // VK_DOWN's number, the character "("
// Room after the measured text.
const int kWidenSlack = 5;

bool keyHeld(int virtualKey) { return ::GetKeyState(virtualKey) < 0; }

} // namespace

E_ZoEditEndReason ZoInPlaceEndReasonForChar(UINT ch, bool ctrlHeld, bool shiftHeld)
{
    if (ch == kEscapeChar && !ctrlHeld)
        return ZoEditEnd_Escape;
    if (ch == kEnterChar && !ctrlHeld)
        return ZoEditEnd_Enter;
    if (ch == kUpChar && !shiftHeld)
        return ZoEditEnd_MoveUp;
    if (ch == kDownChar && !shiftHeld)
        return ZoEditEnd_MoveDown;
    return ZoEditEnd_None;
}

E_ZoInPlaceKeyRoute ZoInPlaceKeyRouteOf(UINT virtualKey)
{
    switch (virtualKey)
    {
    case VK_RETURN:
    case VK_DELETE:
    case VK_ESCAPE:
    case VK_LEFT:
    case VK_RIGHT:
        return ZoInPlaceKey_DispatchNow;
    case VK_UP:
        return ZoInPlaceKey_MoveUp;
    case VK_DOWN:
        return ZoInPlaceKey_MoveDown;
    case VK_HOME:
    case VK_END:
        return ZoInPlaceKey_Base;
    default:
        return ZoInPlaceKey_TranslateOnly;
    }
}

int ZoInPlaceWidenedRight(int left, int right, int clientWidth, int textWidth, int parentRight)
{
    const int needed = textWidth + kWidenSlack;
    if (needed <= clientWidth)
        return right;
    const int widened = left + needed < parentRight ? left + needed : parentRight;
    return widened > right ? widened : right;
}

int ZoInPlaceNextRow(E_ZoEditEndReason reason, int item, int count)
{
    int row = -1;
    if (reason == ZoEditEnd_MoveUp)
        row = item - 1;
    else if (reason == ZoEditEnd_MoveDown)
        row = item + 1;
    else
        return -1;
    return row >= 0 && row < count ? row : -1;
}

IMPLEMENT_DYNAMIC(CZoEditInPlace, CZoEdit)

BEGIN_MESSAGE_MAP(CZoEditInPlace, CZoEdit)
    ON_WM_CREATE()
    ON_WM_CHAR()
    ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

CZoEditInPlace::CZoEditInPlace(HWND hNotify, int item, int subItem, LPCTSTR text)
    : CZoEdit(ZoThemeFont_1), m_hNotify(hNotify), m_nItem(item), m_nSubItem(subItem),
      m_strInitText(text ? text : L""), m_eEndReason(ZoEditEnd_None), m_bBeingDestroyed(false)
{
}

CZoEditInPlace::~CZoEditInPlace() {}

BOOL CZoEditInPlace::DestroyWindow()
{
    m_bBeingDestroyed = true;
    return CZoEdit::DestroyWindow();
}

BOOL CZoEditInPlace::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg->message != WM_KEYDOWN)
        return CZoEdit::PreTranslateMessage(pMsg);
    switch (ZoInPlaceKeyRouteOf(static_cast<UINT>(pMsg->wParam)))
    {
    case ZoInPlaceKey_DispatchNow:
        // Keys the dialog manager would take (default button, cancel, navigation) stay here.
        ::TranslateMessage(pMsg);
        ::DispatchMessageW(pMsg);
        return TRUE;
    case ZoInPlaceKey_MoveUp:
        _endTowards(ZoEditEnd_MoveUp);
        return TRUE;
    case ZoInPlaceKey_MoveDown:
        _endTowards(ZoEditEnd_MoveDown);
        return TRUE;
    case ZoInPlaceKey_Base:
        return CWnd::PreTranslateMessage(pMsg);
    default:
        // The key-down itself is not dispatched; only the character it makes reaches the editor.
        return ::TranslateMessage(pMsg);
    }
}

int CZoEditInPlace::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CZoEdit::OnCreate(lpCreateStruct) == -1)
        return -1;
    SetWindowText(m_strInitText);
    SetFocus();
    SetSel(0, -1);
    SendMessage(EM_SCROLLCARET, 0, 0);
    return 0;
}

void CZoEditInPlace::_endTowards(E_ZoEditEndReason reason)
{
    m_eEndReason = reason;
    // The focus loss that follows reports the end.
    ::SetFocus(::GetParent(m_hWnd));
}

void CZoEditInPlace::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    const E_ZoEditEndReason reason = ZoInPlaceEndReasonForChar(nChar, keyHeld(VK_CONTROL), keyHeld(VK_SHIFT));
    if (reason != ZoEditEnd_None)
    {
        _endTowards(reason);
        return;
    }
    CZoEdit::OnChar(nChar, nRepCnt, nFlags);
    _widenForText();
}

void CZoEditInPlace::_widenForText()
{
    HWND hList = ::GetParent(m_hWnd);
    if (!hList)
        return;
    CString text;
    GetWindowText(text);
    CClientDC dc(this);
    HFONT hFont = reinterpret_cast<HFONT>(::SendMessageW(hList, WM_GETFONT, 0, 0));
    HGDIOBJ hOldFont = hFont ? ::SelectObject(dc.GetSafeHdc(), hFont) : NULL;
    SIZE extent = {0, 0};
    ::GetTextExtentPoint32W(dc.GetSafeHdc(), text, text.GetLength(), &extent);
    if (hOldFont)
        ::SelectObject(dc.GetSafeHdc(), hOldFont);

    CRect client;
    GetClientRect(&client);
    CRect window;
    GetWindowRect(&window);
    ::MapWindowPoints(NULL, hList, reinterpret_cast<LPPOINT>(&window), 2);
    CRect parentClient;
    ::GetClientRect(hList, &parentClient);
    const int right = ZoInPlaceWidenedRight(window.left, window.right, client.Width(), extent.cx, parentClient.right);
    if (right != window.right)
        MoveWindow(window.left, window.top, right - window.left, window.Height(), TRUE);
}

void CZoEditInPlace::OnKillFocus(CWnd* pNewWnd)
{
    CZoEdit::OnKillFocus(pNewWnd);
    CString text;
    GetWindowText(text);
    // The notify window may end this editor's life while it handles the report: only locals
    // are used after it.
    HWND hList = ::GetParent(m_hWnd);
    const E_ZoEditEndReason reason = m_eEndReason;
    const int item = m_nItem;
    if (!m_bBeingDestroyed)
    {
        _reportEnd(text);
        const int count = hList ? static_cast<int>(::SendMessageW(hList, LVM_GETITEMCOUNT, 0, 0)) : 0;
        const int row = ZoInPlaceNextRow(reason, item, count);
        if (row >= 0)
        {
            LVITEMW state = {};
            state.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
            state.state = 0;
            ::SendMessageW(hList, LVM_SETITEMSTATE, item, reinterpret_cast<LPARAM>(&state));
            state.state = LVIS_SELECTED | LVIS_FOCUSED;
            ::SendMessageW(hList, LVM_SETITEMSTATE, row, reinterpret_cast<LPARAM>(&state));
            ::SendMessageW(hList, LVM_EDITLABELW, row, 0);
            return;
        }
    }
    if (hList && ::IsWindow(hList))
        ::SendMessageW(hList, LVM_CANCELEDITLABEL, 0, 0);
}

void CZoEditInPlace::_reportEnd(const CString& text)
{
    if (!m_hNotify || !::IsWindow(m_hNotify))
        return;
    HWND hList = ::GetParent(m_hWnd);
    // The receiver gets the old text on Escape: it decides what to keep.
    CString reported = m_eEndReason == ZoEditEnd_Escape ? m_strInitText : text;
    NMLVDISPINFOW info = {};
    info.hdr.hwndFrom = hList;
    info.hdr.idFrom = static_cast<UINT_PTR>(GetDlgCtrlID());
    info.hdr.code = LVN_ENDLABELEDITW;
    info.item.mask = LVIF_TEXT;
    info.item.iItem = m_nItem;
    info.item.iSubItem = m_nSubItem;
    info.item.pszText = reported.GetBuffer();
    info.item.cchTextMax = text.GetLength();
    const WPARAM listId = hList ? static_cast<WPARAM>(::GetDlgCtrlID(hList)) : 0;
    ::SendMessageW(m_hNotify, WM_NOTIFY, listId, reinterpret_cast<LPARAM>(&info));
    reported.ReleaseBuffer();
}

} // namespace ZoControls
