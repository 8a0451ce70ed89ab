#include "lists/ZoListCtrl.h"

#include "controls/ZoControlTheme.h"
#include "controls/ZoEditInPlace.h"
#include "controls/ZoScrollBar.h"
#include "controls/ZoWindowHelpers.h"
#include "core/ZoThemeManager.h"
#include "lists/ZoListGeometry.h"
#include "lists/ZoListSort.h"
#include "lists/ZoNestingScope.h"

#include <algorithm>

namespace ZoControls {

namespace {

// Theme colour slots of the list.
enum
{
    kSlotBackground = 38,
    kSlotGrid = 39,
    kSlotSelectedRow = 40,
    kSlotNativeText = 41, // handed to the native list only
    kSlotCellText = 42,
    kSlotSelectedFocusRow = 43,
    kSlotFocusFrame = 44
};

const DWORD kReportExtendedStyle = LVS_EX_FULLROWSELECT | LVS_EX_LABELTIP | LVS_EX_BORDERSELECT | LVS_EX_DOUBLEBUFFER;
// The deliberate pause before a click on a selected row's editable cell opens the editor.
const DWORD kClickEditDelayMs = 400;
const int kSortMapHashSize = 17;
const int kSortMapBlockSize = 10;

// Posted to the list to delete editors retired while one of their handlers was running.
UINT deleteEditorsMessage()
{
    static const UINT message = ::RegisterWindowMessageW(L"ZoControls.CZoListCtrl.DeleteRetiredEditors");
    return message;
}

// One row while a sort runs on rows whose item data cannot tell them apart: where it was, its own
// item data, and its cell read and parsed once. The row's item data points at it during the sort.
struct SortSlot
{
    int index;
    DWORD_PTR data;
    ZoSortKey key;
};

struct SortContext
{
    int column;
    CZoListCtrl* pList;
    bool ascending;
    int method;
};

int CALLBACK compareSlots(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort)
{
    const SortSlot* pSlot1 = reinterpret_cast<const SortSlot*>(lParam1);
    const SortSlot* pSlot2 = reinterpret_cast<const SortSlot*>(lParam2);
    const SortContext* pContext = reinterpret_cast<const SortContext*>(lParamSort);
    return ZoDirected(ZoCompareSortKeys(pContext->method, pSlot1->key, pSlot2->key), pContext->ascending);
}

// Rows known by their item data, each with the rank of its cell: the platform's sort compares two
// ranks found by item data, and no row is written to (every write would notify the parent). Rows
// that share item data must share the rank too; the sort cannot tell them apart, nor need it.
class RankedRows
{
public:
    explicit RankedRows(bool ascending) : m_ascending(ascending), m_first(0), m_bits(0) {}

    // False when rows with the same item data differ in rank.
    bool Assign(const std::vector<DWORD_PTR>& data, const std::vector<int>& ranks)
    {
        if (data.empty())
            return true;
        const auto range = std::minmax_element(data.begin(), data.end());
        m_first = *range.first;
        // Item data within a few times the row count of each other (row numbers, ids) index the
        // ranks directly; any others (addresses) go through an open-addressed table.
        const bool direct = *range.second - m_first < (DWORD_PTR)data.size() * 4;
        if (direct)
            m_ranks.assign((size_t)(*range.second - m_first) + 1, kNone);
        else
        {
            m_bits = 4;
            while (((size_t)1 << m_bits) < data.size() * 2)
                ++m_bits;
            m_ranks.assign((size_t)1 << m_bits, kNone);
            m_keys.assign(m_ranks.size(), 0);
        }
        for (size_t i = 0; i < data.size(); ++i)
        {
            int& rank = direct ? m_ranks[(size_t)(data[i] - m_first)] : _place(data[i]);
            if (rank != kNone && rank != ranks[i])
                return false;
            rank = ranks[i];
        }
        return true;
    }

    int Compare(DWORD_PTR data1, DWORD_PTR data2) const
    {
        const int rank1 = _rankOf(data1), rank2 = _rankOf(data2);
        return ZoDirected(rank1 < rank2 ? -1 : rank1 > rank2 ? 1 : 0, m_ascending);
    }

private:
    static constexpr int kNone = -1;

    size_t _slotOf(DWORD_PTR data) const
    {
        // Fibonacci hashing: the top bits of the product spread neighbouring values apart.
        return (size_t)(((unsigned long long)data * 0x9E3779B97F4A7C15ull) >> (64 - m_bits));
    }

    int& _place(DWORD_PTR data)
    {
        size_t slot = _slotOf(data);
        while (m_ranks[slot] != kNone && m_keys[slot] != data)
            slot = (slot + 1) & (m_ranks.size() - 1);
        m_keys[slot] = data;
        return m_ranks[slot];
    }

    int _rankOf(DWORD_PTR data) const
    {
        if (m_keys.empty())
            return data - m_first < (DWORD_PTR)m_ranks.size() ? m_ranks[(size_t)(data - m_first)] : kNone;
        for (size_t slot = _slotOf(data); m_ranks[slot] != kNone; slot = (slot + 1) & (m_ranks.size() - 1))
            if (m_keys[slot] == data)
                return m_ranks[slot];
        return kNone;
    }

    bool m_ascending;
    DWORD_PTR m_first;
    int m_bits;
    std::vector<int> m_ranks;       // by item data - m_first, or by slot of the table
    std::vector<DWORD_PTR> m_keys;  // the table's item data by slot (empty when indexed directly)
};

int CALLBACK compareRanks(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort)
{
    return reinterpret_cast<const RankedRows*>(lParamSort)->Compare((DWORD_PTR)lParam1, (DWORD_PTR)lParam2);
}

} // namespace

IMPLEMENT_DYNAMIC(CZoListCtrl, CListCtrl)

BEGIN_MESSAGE_MAP(CZoListCtrl, CListCtrl)
    ON_WM_LBUTTONDOWN()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_DESTROY()
    ON_WM_NCCALCSIZE()
    ON_WM_SIZE()
    ON_WM_NCPAINT()
    ON_WM_MOUSEWHEEL()
    ON_MESSAGE(LVM_EDITLABELW, &CZoListCtrl::OnEditLabel)
    ON_MESSAGE(LVM_GETEDITCONTROL, &CZoListCtrl::OnGetEditControl)
    ON_MESSAGE(LVM_CANCELEDITLABEL, &CZoListCtrl::OnCancelEditLabel)
    ON_MESSAGE(LVM_ENSUREVISIBLE, &CZoListCtrl::OnEnsureVisible)
    ON_NOTIFY(HDN_ITEMCLICKA, 0, &CZoListCtrl::OnHeaderItemClick)
    ON_NOTIFY(HDN_ITEMCLICKW, 0, &CZoListCtrl::OnHeaderItemClick)
    ON_NOTIFY_REFLECT(NM_CUSTOMDRAW, &CZoListCtrl::OnCustomDraw)
    ON_NOTIFY_REFLECT_EX(LVN_ITEMCHANGED, &CZoListCtrl::OnItemChanged)
    ZO_ON_MENUXP_MESSAGES()
END_MESSAGE_MAP()

ZO_IMPLEMENT_MENUXP_FORWARDING(CZoListCtrl, CListCtrl)

CZoListCtrl::CZoListCtrl()
    : m_bSortEnabled(true), m_bInitialized(false), m_bCreating(false), m_eMonitorSize(ZoMonitorSize_Unknown),
      m_eFont(ZoThemeFont_4), m_eTheme(ZoTheme_Default), m_nEditableColumn(-1), m_pEditor(NULL), m_crBackground(0),
      m_crGrid(0), m_crSelectedRow(0), m_crCellText(0), m_crSelectedFocusRow(0), m_crFocusFrame(0),
      m_bSortingFromHeader(false), m_sortMethods(kSortMapBlockSize), m_childSortMethods(kSortMapBlockSize),
      m_pHorzBar(new CZoScrollBar(CZoScrollBar::ScrollBarTheme_1)),
      m_pVertBar(new CZoScrollBar(CZoScrollBar::ScrollBarTheme_1)), m_bRedrawSuspended(false), m_bGoing(false), m_nDeletingRows(0),
      m_nPaintDepth(0), m_bPaintColumnsKnown(false), m_paintRow()
{
    m_paintRow.iItem = -1;
    m_sortMethods.InitHashTable(kSortMapHashSize);
    m_childSortMethods.InitHashTable(kSortMapHashSize);
}

CZoListCtrl::~CZoListCtrl()
{
    if (m_pEditor)
    {
        if (::IsWindow(m_pEditor->GetSafeHwnd()))
            m_pEditor->DestroyWindow();
        delete m_pEditor;
        m_pEditor = NULL;
    }
    _deleteRetiredEditors();
    delete m_pHorzBar;
    delete m_pVertBar;
}

// --- Creation and initialisation -------------------------------------------------------------

BOOL CZoListCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    m_bCreating = true;
    const BOOL created = CListCtrl::Create(dwStyle, rect, pParentWnd, nID);
    if (created)
        _init();
    m_bCreating = false;
    return created;
}

BOOL CZoListCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    m_bCreating = true;
    const BOOL created = CListCtrl::CreateEx(dwExStyle, dwStyle, rect, pParentWnd, nID);
    if (created)
        _init();
    m_bCreating = false;
    return created;
}

void CZoListCtrl::PreSubclassWindow()
{
    m_bGoing = false;
    if (!m_bCreating)
        _init();
    CListCtrl::PreSubclassWindow();
}

bool CZoListCtrl::_isReport() const
{
    return ::IsWindow(m_hWnd) && (GetStyle() & LVS_TYPEMASK) == LVS_REPORT;
}

void CZoListCtrl::_init()
{
    if (!::IsWindow(m_hWnd))
        return;
    m_eMonitorSize = ZoGetCurrentMonitorSize(this, false);
    m_eTheme = ZoGetCurrentThemeIndex(this);
    ZoMenuOptIn(this);
    if (m_bInitialized)
        return;

    if (_isReport())
        SetExtendedStyle(GetExtendedStyle() | kReportExtendedStyle);

    HWND hHeader = ::GetDlgItem(m_hWnd, 0);
    if (!hHeader)
        hHeader = (HWND)::SendMessageW(m_hWnd, LVM_GETHEADER, 0, 0);
    if (hHeader && !m_header.GetSafeHwnd())
        m_header.SubclassWindow(hHeader);
    if (GetStyle() & LVS_NOSORTHEADER)
        m_header.SetNoSortHeader(true);

    CFont* pFont = ZoCachedFont(m_eFont, m_eMonitorSize);
    if (pFont)
        SetFont(pFont, TRUE);

    m_crBackground = ZoSlotColor(kSlotBackground, m_eTheme);
    m_crGrid = ZoSlotColor(kSlotGrid, m_eTheme);
    m_crSelectedRow = ZoSlotColor(kSlotSelectedRow, m_eTheme);
    m_crCellText = ZoSlotColor(kSlotCellText, m_eTheme);
    m_crSelectedFocusRow = ZoSlotColor(kSlotSelectedFocusRow, m_eTheme);
    m_crFocusFrame = ZoSlotColor(kSlotFocusFrame, m_eTheme);
    SetBkColor(m_crBackground);
    SetTextBkColor(m_crBackground);
    SetTextColor(ZoSlotColor(kSlotNativeText, m_eTheme));

    // The native label editor never opens: the in-place editor takes its place.
    if (GetStyle() & LVS_EDITLABELS)
    {
        if (m_nEditableColumn < 0)
            m_nEditableColumn = 0;
        ModifyStyle(LVS_EDITLABELS, 0);
    }
    ModifyStyle(0, WS_CLIPSIBLINGS);
    _createScrollBars();
    m_bInitialized = true;
}

void CZoListCtrl::_createScrollBars()
{
    CWnd* pParent = GetParent();
    if (!pParent)
        return;
    const CRect horz(0, 0, 100, ::GetSystemMetrics(SM_CYHSCROLL));
    const CRect vert(0, 0, ::GetSystemMetrics(SM_CXVSCROLL), 100);
    if (!m_pHorzBar->GetSafeHwnd())
        m_pHorzBar->Create(WS_CHILD | SBS_HORZ, horz, pParent, HorzBarId);
    if (!m_pVertBar->GetSafeHwnd())
        m_pVertBar->Create(WS_CHILD | SBS_VERT, vert, pParent, VertBarId);
    CZoScrollBar* bars[] = {m_pHorzBar, m_pVertBar};
    for (int i = 0; i < 2; ++i)
    {
        if (!bars[i]->GetSafeHwnd())
            continue;
        bars[i]->SetBuddy(this);
        bars[i]->SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
    _placeScrollBars(true);
    _copyScrollInfo();
    _showScrollBars();
}

// --- Skinned scroll bars -------------------------------------------------------------------------

void CZoListCtrl::_placeScrollBars(bool move)
{
    if (!m_pHorzBar->GetSafeHwnd() || !m_pVertBar->GetSafeHwnd() || !GetParent())
        return;
    CRect list;
    GetWindowRect(&list);
    GetParent()->ScreenToClient(&list);
    CRect horz, vert;
    m_pHorzBar->GetWindowRect(&horz);
    m_pVertBar->GetWindowRect(&vert);
    const DWORD style = GetStyle();
    const ZoListBarPlacement placement =
        ZoPlaceListBars(list, (style & WS_HSCROLL) != 0, (style & WS_VSCROLL) != 0, horz.Height(), vert.Width());
    const UINT flags = SWP_NOZORDER | SWP_NOACTIVATE | (move ? 0 : SWP_NOMOVE);
    const CRect h(placement.horz), v(placement.vert);
    m_pHorzBar->SetWindowPos(NULL, h.left, h.top, h.Width(), h.Height(), flags);
    m_pVertBar->SetWindowPos(NULL, v.left, v.top, v.Width(), v.Height(), flags);
}

void CZoListCtrl::_showScrollBars()
{
    const DWORD style = GetStyle();
    if (m_pHorzBar->GetSafeHwnd())
        m_pHorzBar->ShowWindow((style & WS_HSCROLL) ? SW_SHOWNA : SW_HIDE);
    if (m_pVertBar->GetSafeHwnd())
        m_pVertBar->ShowWindow((style & WS_VSCROLL) ? SW_SHOWNA : SW_HIDE);
}

void CZoListCtrl::_copyScrollInfo()
{
    if (!::IsWindow(m_hWnd) || m_bRedrawSuspended)
        return;
    const DWORD style = GetStyle();
    const struct
    {
        DWORD styleBit;
        int bar;
        CZoScrollBar* pBar;
    } directions[] = {{WS_HSCROLL, SB_HORZ, m_pHorzBar}, {WS_VSCROLL, SB_VERT, m_pVertBar}};
    for (int i = 0; i < 2; ++i)
    {
        if ((style & directions[i].styleBit) == 0 || !directions[i].pBar->GetSafeHwnd())
            continue;
        SCROLLINFO info = {};
        info.cbSize = sizeof(info);
        info.fMask = SIF_ALL;
        if (!::GetScrollInfo(m_hWnd, directions[i].bar, &info))
            continue;
        SCROLLINFO shown = {};
        shown.cbSize = sizeof(shown);
        shown.fMask = SIF_ALL;
        directions[i].pBar->GetScrollInfo(&shown, SIF_ALL);
        if (shown.nMin != info.nMin || shown.nMax != info.nMax || shown.nPage != info.nPage || shown.nPos != info.nPos)
            directions[i].pBar->SetScrollInfo(&info, TRUE);
    }
}

int CZoListCtrl::_rowHeight() const
{
    // Asked at every thumb-drag step: straight from the list's procedure.
    CRect row(LVIR_BOUNDS, 0, 0, 0);
    if (_ask(LVM_GETITEMCOUNT, 0, 0) <= 0 || !_ask(LVM_GETITEMRECT, 0, (LPARAM)(RECT*)&row))
        return 0;
    return row.Height();
}

void CZoListCtrl::_scrollToPosition(bool vertical, int target)
{
    const int current = ::GetScrollPos(m_hWnd, vertical ? SB_VERT : SB_HORZ);
    const int pixels = ZoListScrollPixels(current, target, vertical, vertical ? _rowHeight() : 1);
    if (pixels != 0)
        _tell(LVM_SCROLL, vertical ? 0 : (WPARAM)pixels, vertical ? (LPARAM)pixels : 0);
}

void CZoListCtrl::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    _onScroll(false, nSBCode, nPos, pScrollBar);
}

void CZoListCtrl::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    _onScroll(true, nSBCode, nPos, pScrollBar);
}

void CZoListCtrl::_onScroll(bool vertical, UINT code, UINT pos, CScrollBar* pScrollBar)
{
    _cancelEdit();
    CZoScrollBar* pBar = vertical ? m_pVertBar : m_pHorzBar;
    // The thumb's place comes from the skinned bar in 32 bits; the platform's own handling of
    // SB_THUMBPOSITION is not relied upon (it does not move the list everywhere).
    if ((code == SB_THUMBTRACK || code == SB_THUMBPOSITION) && pScrollBar &&
        pScrollBar->GetSafeHwnd() == pBar->GetSafeHwnd())
    {
        _scrollToPosition(vertical, pBar->GetThumbTrackPosition());
        if (code == SB_THUMBPOSITION)
            _copyScrollInfo();
        return;
    }
    DefWindowProc(vertical ? WM_VSCROLL : WM_HSCROLL, MAKEWPARAM(code, pos), 0);
    _copyScrollInfo();
}

BOOL CZoListCtrl::OnMouseWheel(UINT nFlags, short zDelta, CPoint pt)
{
    const BOOL result = CListCtrl::OnMouseWheel(nFlags, zDelta, pt);
    _copyScrollInfo();
    _cancelEdit();
    return result;
}

void CZoListCtrl::OnSize(UINT nType, int cx, int cy)
{
    CListCtrl::OnSize(nType, cx, cy);
    _placeScrollBars(true);
    _copyScrollInfo();
}

void CZoListCtrl::OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp)
{
    CListCtrl::OnNcCalcSize(bCalcValidRects, lpncsp);
    if (!m_pHorzBar->GetSafeHwnd() || !m_pVertBar->GetSafeHwnd())
        return;
    _placeScrollBars(false);
    _copyScrollInfo();
    _showScrollBars();
}

void CZoListCtrl::OnNcPaint()
{
    CListCtrl::OnNcPaint();
    if (!m_pHorzBar->GetSafeHwnd() || !m_pVertBar->GetSafeHwnd() || !m_pHorzBar->IsWindowVisible() ||
        !m_pVertBar->IsWindowVisible())
        return;
    CRect window, horz, vert;
    GetWindowRect(&window);
    m_pHorzBar->GetWindowRect(&horz);
    m_pVertBar->GetWindowRect(&vert);
    window.OffsetRect(-window.left, -window.top);
    const CRect corner(ZoPlaceListBars(window, true, true, horz.Height(), vert.Width()).corner);
    CWindowDC dc(this);
    dc.FillSolidRect(&corner, m_crBackground);
}

LRESULT CZoListCtrl::OnEnsureVisible(WPARAM wParam, LPARAM)
{
    if (!_isReport())
        return Default();
    const int item = (int)wParam;
    if (item < 0 || item >= GetItemCount())
        return FALSE;
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    if (!::GetScrollInfo(m_hWnd, SB_VERT, &info))
    {
        info.nPage = (UINT)GetCountPerPage();
        info.nPos = GetTopIndex();
    }
    // The item always ends up as the last visible row, even when it was visible already.
    _scrollToPosition(true, ZoEnsureVisibleTop(item, (int)info.nPage));
    _copyScrollInfo();
    return TRUE;
}

LRESULT CZoListCtrl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == deleteEditorsMessage())
    {
        _deleteRetiredEditors();
        return 0;
    }
    if (message == WM_DESTROY)
        m_bGoing = true;
    // Once the list goes, it deletes its rows with a notification each; a row a parent inserts
    // from one of those handlers would never be freed, so none is.
    if (m_bGoing && (message == LVM_INSERTITEMA || message == LVM_INSERTITEMW))
        return -1;
    // Rows deleted from a parent's handler of another row's deletion, or while the list goes,
    // go from under the platform's deletion loop, which then loses rows or faults (Wine's own
    // list does both on that input): such deletions are refused.
    const bool deletion = message == LVM_DELETEITEM || message == LVM_DELETEALLITEMS;
    if (deletion && (m_bGoing || m_nDeletingRows > 0))
        return FALSE;
    const CZoNestingScope deleting(m_nDeletingRows, deletion);
    UINT headerCode = 0;
    if (message == WM_NOTIFY && lParam && m_header.GetSafeHwnd())
    {
        const NMHDR* pHeader = reinterpret_cast<const NMHDR*>(lParam);
        if (pHeader->hwndFrom == m_header.GetSafeHwnd())
            headerCode = pHeader->code;
    }
    if (message == WM_SETREDRAW)
        m_bRedrawSuspended = wParam == FALSE;
    // Column formats read during a paint hold for that paint only.
    const bool painting = message == WM_PAINT || message == WM_PRINTCLIENT;
    if (painting && m_nPaintDepth++ == 0)
    {
        m_bPaintColumnsKnown = false;
        m_paintRow.iItem = -1;
    }
    const bool columnsChange = ZoListMessageChangesColumns(message);
    if (columnsChange)
        m_columnAnswers.clear();
    const LRESULT result = CListCtrl::WindowProc(message, wParam, lParam);
    if (columnsChange)
        m_columnAnswers.clear();
    if (painting)
        --m_nPaintDepth;
    if (ZoListMessageChangesScrollState(message, wParam, headerCode) || (message == WM_SETREDRAW && wParam))
        _copyScrollInfo();
    return result;
}

void CZoListCtrl::OnDestroy()
{
    _cancelEdit();
    if (m_pHorzBar->GetSafeHwnd())
        m_pHorzBar->DestroyWindow();
    if (m_pVertBar->GetSafeHwnd())
        m_pVertBar->DestroyWindow();
    CListCtrl::OnDestroy();
}

// --- Sorting -------------------------------------------------------------------------------------

void CZoListCtrl::SetColumnSortMethod(int column, E_SortColumnMethod method, E_SortColumnMethod childMethod)
{
    m_sortMethods.SetAt(column, method);
    m_childSortMethods.SetAt(column, childMethod == SCM_AsMethod ? method : childMethod);
}

CZoListCtrl::E_SortColumnMethod CZoListCtrl::GetColumnSortMethod(int column) const
{
    E_SortColumnMethod method = SCM_TextSensitive;
    return m_sortMethods.Lookup(column, method) ? method : SCM_TextSensitive;
}

CZoListCtrl::E_SortColumnMethod CZoListCtrl::GetColumnSortChildMethod(int column) const
{
    E_SortColumnMethod method = SCM_TextSensitive;
    return m_childSortMethods.Lookup(column, method) ? method : SCM_TextSensitive;
}

void CZoListCtrl::SetSortOption(int column, bool ascending) { m_header.SetSortOption(column, ascending); }

bool CZoListCtrl::GetSortOption(int& column, bool& ascending) const
{
    return m_header.GetSortOption(column, ascending);
}

void CZoListCtrl::DoSortNow()
{
    int column = -1;
    bool ascending = false;
    if (::IsWindow(m_hWnd) && GetSortOption(column, ascending))
        SortOnColumn(column, ascending);
}

void CZoListCtrl::SortOnColumn(int column, bool ascending)
{
    // A virtual list's rows are the host's: it orders them itself.
    if (!m_bSortEnabled || !::IsWindow(m_hWnd) || (GetStyle() & LVS_OWNERDATA))
        return;
    CWaitCursor wait;
    const int count = (int)_ask(LVM_GETITEMCOUNT, 0, 0);
    if (count <= 0)
        return;
    const int method = ZoNormalizeSortMethod(GetColumnSortMethod(column));
    // Each row's cell is read and parsed once; the comparisons then touch no window.
    std::vector<DWORD_PTR> data((size_t)count);
    std::vector<ZoSortKey> keys((size_t)count);
    CString cell;
    for (int i = 0; i < count; ++i)
    {
        data[(size_t)i] = _itemData(i);
        _readItemText(i, column, cell);
        keys[(size_t)i] = ZoMakeSortKey(method, cell);
    }
    std::vector<int> ranks;
    RankedRows ranked(ascending);
    if (ZoRankSortKeys(method, keys, ranks) && ranked.Assign(data, ranks))
    {
        SortItems(&compareRanks, reinterpret_cast<DWORD_PTR>(&ranked));
        return;
    }
    std::vector<SortSlot> slots((size_t)count);
    for (int i = 0; i < count; ++i)
    {
        SortSlot& slot = slots[(size_t)i];
        slot.index = i;
        slot.data = data[(size_t)i];
        slot.key = keys[(size_t)i];
        _setItemData(i, reinterpret_cast<DWORD_PTR>(&slot));
    }
    SortContext context = {column, this, ascending, method};
    SortItems(&compareSlots, reinterpret_cast<DWORD_PTR>(&context));
    for (int i = 0; i < count; ++i)
    {
        const SortSlot* pSlot = reinterpret_cast<const SortSlot*>(_itemData(i));
        if (pSlot)
            _setItemData(i, pSlot->data);
    }
}

LRESULT CZoListCtrl::_ask(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return const_cast<CZoListCtrl*>(this)->DefWindowProc(message, wParam, lParam);
}

LRESULT CZoListCtrl::_tell(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ZoCallWindow(m_hWnd, message, wParam, lParam);
}

CString CZoListCtrl::_itemText(int item, int subItem) const
{
    CString text;
    _readItemText(item, subItem, text);
    return text;
}

void CZoListCtrl::_readItemText(int item, int subItem, CString& text) const
{
    // Grown until the text fits, as CListCtrl::GetItemText does; a string kept between calls
    // keeps its buffer, which saves reading a long list's cells one allocation each.
    LVITEMW lvItem = {};
    lvItem.iSubItem = subItem;
    int length = 128;
    int got = 0;
    do
    {
        length *= 2;
        lvItem.cchTextMax = length;
        lvItem.pszText = text.GetBufferSetLength(length);
        lvItem.pszText[0] = L'\0';
        got = (int)_ask(LVM_GETITEMTEXTW, (WPARAM)item, (LPARAM)&lvItem);
    } while (got >= length - 1);
    text.ReleaseBuffer();
}

DWORD_PTR CZoListCtrl::_itemData(int item) const
{
    LVITEMW lvItem = {};
    lvItem.mask = LVIF_PARAM;
    lvItem.iItem = item;
    return _ask(LVM_GETITEMW, 0, (LPARAM)&lvItem) ? (DWORD_PTR)lvItem.lParam : 0;
}

void CZoListCtrl::_subItemRects(int item, int subItem, CRect& label, CRect& icon)
{
    // The list asks its header for a column's place with a sent message, twice a cell. During a
    // paint the cells of a column beyond the first (whose label depends on the row's indent
    // and images) lie where that column's cell lay when first asked, moved as far as their row is.
    CPoint at(0, 0);
    const bool painting = m_nPaintDepth > 0 && subItem > 0 && subItem < _paintColumns().count &&
                          _ask(LVM_GETITEMPOSITION, (WPARAM)item, (LPARAM)(POINT*)&at) != FALSE;
    if (painting && m_columnAnswers[subItem].placed)
    {
        const ColumnAnswers& known = m_columnAnswers[subItem];
        label = known.label + (at - known.at);
        icon = known.icon + (at - known.at);
        return;
    }
    label.SetRect(LVIR_LABEL, subItem, 0, 0);
    icon.SetRect(LVIR_ICON, subItem, 0, 0);
    const bool gotLabel = _ask(LVM_GETSUBITEMRECT, (WPARAM)item, (LPARAM)(RECT*)&label) != FALSE;
    const bool gotIcon = _ask(LVM_GETSUBITEMRECT, (WPARAM)item, (LPARAM)(RECT*)&icon) != FALSE;
    if (!painting || !gotLabel || !gotIcon)
        return;
    ColumnAnswers& known = m_columnAnswers[subItem];
    known.placed = true;
    known.at = at;
    known.label = label;
    known.icon = icon;
}

bool CZoListCtrl::_columnFormat(int column, int& format)
{
    // The list asks its header for a column's format with a sent message; a paint would ask
    // once for every cell.
    const bool painting = m_nPaintDepth > 0 && column >= 0 && column < _paintColumns().count;
    if (painting && m_columnAnswers[column].format != kFormatUnread)
    {
        format = m_columnAnswers[column].format;
        return format != kFormatMissing;
    }
    LVCOLUMNW info = {};
    info.mask = LVCF_FMT;
    const bool got = _ask(LVM_GETCOLUMNW, (WPARAM)column, (LPARAM)&info) != FALSE;
    format = info.fmt;
    if (painting)
        m_columnAnswers[column].format = got ? info.fmt : kFormatMissing;
    return got;
}

void CZoListCtrl::_checkColumnAnswers(HWND header, int count)
{
    m_columnAnswers.resize(count > 0 ? count : 0);
    for (int column = 0; column < count; ++column)
    {
        // Asked of the header's own procedure, which passes no hooks.
        CRect rect(0, 0, 0, 0);
        HDITEMW item = {};
        item.mask = HDI_FORMAT;
        ZoCallWindow(header, HDM_GETITEMRECT, (WPARAM)column, (LPARAM)(RECT*)&rect);
        ZoCallWindow(header, HDM_GETITEMW, (WPARAM)column, (LPARAM)&item);
        ColumnAnswers& known = m_columnAnswers[column];
        if (known.headerRect != rect || known.headerFormat != item.fmt)
        {
            known = ColumnAnswers();
            known.headerRect = rect;
            known.headerFormat = item.fmt;
        }
    }
}

void CZoListCtrl::_setItemData(int item, DWORD_PTR data)
{
    LVITEMW lvItem = {};
    lvItem.mask = LVIF_PARAM;
    lvItem.iItem = item;
    lvItem.lParam = (LPARAM)data;
    _ask(LVM_SETITEMW, 0, (LPARAM)&lvItem); // only ever a sort's own temporary value
}

void CZoListCtrl::OnHeaderItemClick(NMHDR* pNMHDR, LRESULT* pResult)
{
    *pResult = 0;
    if (!_isReport())
        return;
    const NMHEADERW* pHeader = reinterpret_cast<const NMHEADERW*>(pNMHDR);
    _cancelEdit();
    const int column = pHeader->iItem;
    const bool virtualList = (GetStyle() & LVS_OWNERDATA) != 0;
    if (!m_bSortEnabled)
    {
        *pResult = 1;
        if (virtualList)
            Default();
        return;
    }
    // The first click on a column sorts descending; a further click turns the direction round.
    int shown = -1;
    bool shownAscending = false;
    bool ascending = false;
    if (GetSortOption(shown, shownAscending) && shown == column)
        ascending = !shownAscending;
    SetSortOption(column, ascending);
    if (virtualList)
    {
        // The host orders a virtual list when the platform tells it of the column click.
        *pResult = Default();
        return;
    }
    m_bSortingFromHeader = true;
    SortOnColumn(column, ascending);
    m_bSortingFromHeader = false;
}

BOOL CZoListCtrl::OnItemChanged(NMHDR*, LRESULT* pResult)
{
    *pResult = 0;
    // Changes a header sort makes to the rows are no news to the parent.
    return m_bSortingFromHeader ? TRUE : FALSE;
}

// --- Cell drawing --------------------------------------------------------------------------------

void CZoListCtrl::OnCustomDraw(NMHDR* pNMHDR, LRESULT* pResult)
{
    NMLVCUSTOMDRAW* pDraw = reinterpret_cast<NMLVCUSTOMDRAW*>(pNMHDR);
    switch (pDraw->nmcd.dwDrawStage)
    {
    case CDDS_PREPAINT:
    {
        if (!_isReport())
        {
            *pResult = CDRF_DODEFAULT;
            break;
        }
        // An owner-drawn list draws its rows through WM_DRAWITEM, which must still come.
        if (GetStyle() & LVS_OWNERDRAWFIXED)
        {
            *pResult = CDRF_NOTIFYITEMDRAW;
            break;
        }
        // Every row at once, cell by cell as the list would ask for them: a notification per row
        // costs more than drawing the row (under Wine every sent message passes the thread's
        // hooks). Without columns the rows are asked for one by one.
        CDC dc;
        dc.Attach(pDraw->nmcd.hdc);
        const bool drawn = _drawRows(dc);
        dc.Detach();
        *pResult = drawn ? CDRF_SKIPDEFAULT : CDRF_NOTIFYITEMDRAW;
        break;
    }
    case CDDS_ITEMPREPAINT:
    {
        // The whole row at once.
        const int columns = _paintColumns().count;
        if (columns <= 0)
        {
            *pResult = CDRF_NOTIFYSUBITEMDRAW;
            break;
        }
        CDC dc;
        dc.Attach(pDraw->nmcd.hdc);
        for (int column = 0; column < columns; ++column)
            DrawSubItem(dc, (int)pDraw->nmcd.dwItemSpec, column);
        dc.Detach();
        *pResult = CDRF_SKIPDEFAULT;
        break;
    }
    case CDDS_ITEMPREPAINT | CDDS_SUBITEM:
    {
        CDC dc;
        dc.Attach(pDraw->nmcd.hdc);
        DrawSubItem(dc, (int)pDraw->nmcd.dwItemSpec, pDraw->iSubItem);
        dc.Detach();
        *pResult = CDRF_SKIPDEFAULT;
        break;
    }
    default:
        *pResult = CDRF_DODEFAULT;
        break;
    }
}

int CZoListCtrl::GetItemImageIndex(const LVITEMW& item) const { return item.iImage; }

CZoListCtrl::PaintColumns CZoListCtrl::_paintColumns()
{
    if (m_nPaintDepth > 0 && m_bPaintColumnsKnown)
        return m_paintColumnsRead;
    PaintColumns columns;
    columns.header = (HWND)_ask(LVM_GETHEADER, 0, 0);
    if (columns.header)
    {
        columns.count = (int)ZoCallWindow(columns.header, HDM_GETITEMCOUNT, 0, 0);
        columns.firstShown = (int)ZoCallWindow(columns.header, HDM_ORDERTOINDEX, 0, 0);
        if (columns.count > 0)
            columns.lastShown = (int)ZoCallWindow(columns.header, HDM_ORDERTOINDEX, columns.count - 1, 0);
    }
    columns.images = (HIMAGELIST)_ask(LVM_GETIMAGELIST, LVSIL_SMALL, 0);
    columns.extendedStyle = (DWORD)_ask(LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0);
    if (m_nPaintDepth > 0)
    {
        _checkColumnAnswers(columns.header, columns.header ? columns.count : 0);
        m_paintColumnsRead = columns;
        m_bPaintColumnsKnown = true;
    }
    return columns;
}

LVITEMW CZoListCtrl::_rowState(int item)
{
    // A row's cells are drawn one after the other: its state is read once for all of them.
    if (m_nPaintDepth > 0 && m_paintRow.iItem == item && item >= 0)
        return m_paintRow;
    LVITEMW lvItem = {};
    lvItem.mask = LVIF_IMAGE | LVIF_STATE;
    lvItem.iItem = item;
    lvItem.stateMask = LVIS_FOCUSED | LVIS_SELECTED;
    _ask(LVM_GETITEMW, 0, (LPARAM)&lvItem);
    if (m_nPaintDepth > 0)
        m_paintRow = lvItem;
    return lvItem;
}

bool CZoListCtrl::_drawRows(CDC& dc)
{
    const int columns = _paintColumns().count;
    if (columns <= 0)
        return false;
    const int count = (int)_ask(LVM_GETITEMCOUNT, 0, 0);
    CRect client;
    GetClientRect(&client);
    CRect area;
    if (dc.GetClipBox(&area) == ERROR || !area.IntersectRect(&area, &client))
        area = client;
    // From the row above the top one, in case it still shows a sliver, down to the first row
    // below the area.
    const int top = (int)_ask(LVM_GETTOPINDEX, 0, 0);
    for (int item = top > 0 ? top - 1 : 0; item < count; ++item)
    {
        CRect bounds(LVIR_BOUNDS, 0, 0, 0);
        if (!_ask(LVM_GETITEMRECT, (WPARAM)item, (LPARAM)(RECT*)&bounds))
            break;
        const E_ZoRowPlace place = ZoRowPlace(bounds.top, bounds.bottom, area.top, area.bottom);
        if (place == ZoRow_Below)
            break;
        if (place == ZoRow_Above)
            continue;
        for (int column = 0; column < columns; ++column)
            DrawSubItem(dc, item, column);
    }
    return true;
}

void CZoListCtrl::DrawSubItem(CDC& dc, int item, int subItem)
{
    // Every question goes straight to the list's and the header's procedures: a paint asks
    // them for every cell, and sent messages would pass the thread's message hooks each time.
    CRect label, icon;
    _subItemRects(item, subItem, label, icon);
    const CRect cell(ZoCellRect(label, icon));

    const LVITEMW lvItem = _rowState(item);
    const bool selected = (lvItem.state & LVIS_SELECTED) != 0;
    const bool focused = (lvItem.state & LVIS_FOCUSED) != 0;

    const PaintColumns columns = _paintColumns();
    const bool firstShown = columns.header && columns.firstShown == subItem;
    const bool lastShown = columns.header && columns.count > 0 && columns.lastShown == subItem;

    COLORREF back = m_crBackground;
    CRect fill = cell;
    if (selected)
    {
        back = focused ? m_crSelectedFocusRow : m_crSelectedRow;
        if (focused && firstShown)
            fill.left -= 1;
    }
    dc.FillSolidRect(&fill, back);
    if (!selected)
        dc.FillSolidRect(cell.left, cell.bottom - 1, cell.Width(), 1, m_crGrid);

    CRect text(ZoCellTextRect(cell, -1));
    HIMAGELIST hImages = subItem == 0 ? columns.images : NULL;
    const int image = hImages ? GetItemImageIndex(lvItem) : -1;
    if (hImages && image >= 0)
    {
        int imageWidth = 0, imageHeight = 0;
        ::ImageList_GetIconSize(hImages, &imageWidth, &imageHeight);
        ::ImageList_DrawEx(hImages, image, dc.GetSafeHdc(), cell.left - 1, cell.top + (cell.Height() - imageHeight) / 2,
                           0, 0, CLR_NONE, CLR_DEFAULT, ILD_NORMAL);
        text = ZoCellTextRect(cell, imageWidth);
    }

    if (subItem == 0 && (columns.extendedStyle & LVS_EX_CHECKBOXES))
    {
        const int side = label.Height();
        CRect box(2, label.top, 2 + side, label.top + side);
        UINT state = DFCS_BUTTONCHECK | DFCS_FLAT | DFCS_TRANSPARENT;
        // The state image's index, 1 unchecked and 2 checked, as GetCheck reads it.
        const UINT stateImage = (UINT)_ask(LVM_GETITEMSTATE, (WPARAM)item, LVIS_STATEIMAGEMASK) >> 12;
        if ((int)stateImage - 1 > 0)
            state |= DFCS_CHECKED;
        dc.DrawFrameControl(&box, DFC_BUTTON, state);
    }

    DrawSubitemText(dc, item, subItem, selected, text, back);

    // Grid lines left and right of the label.
    const int gridHeight = label.bottom - (label.top - 1);
    dc.FillSolidRect(label.left - 1, label.top - 1, 1, gridHeight, m_crGrid);
    dc.FillSolidRect(label.right - 1, label.top - 1, 1, gridHeight, m_crGrid);

    // The focus frame runs round the whole row: top and bottom in every cell, the sides in the
    // first and last column on screen.
    if (focused)
    {
        const int frameHeight = cell.Height() - 1;
        dc.FillSolidRect(cell.left, cell.top, cell.Width(), 1, m_crFocusFrame);
        dc.FillSolidRect(cell.left, cell.bottom - 2, cell.Width(), 1, m_crFocusFrame);
        if (firstShown)
            dc.FillSolidRect(cell.left, cell.top, 1, frameHeight, m_crFocusFrame);
        if (lastShown)
            dc.FillSolidRect(cell.right - 1, cell.top, 1, frameHeight, m_crFocusFrame);
    }
}

void CZoListCtrl::DrawSubitemText(CDC& dc, int item, int subItem, bool, CRect rect, DWORD backColour)
{
    const CString text = _itemText(item, subItem);
    if (text.IsEmpty())
        return;
    UINT format = DT_VCENTER | DT_SINGLELINE;
    int columnFormat = 0;
    if (_columnFormat(subItem, columnFormat))
    {
        const int justify = columnFormat & LVCFMT_JUSTIFYMASK;
        if (justify == LVCFMT_CENTER)
            format |= DT_CENTER;
        else if (justify == LVCFMT_RIGHT)
            format |= DT_RIGHT;
    }
    const COLORREF oldText = dc.SetTextColor(m_crCellText);
    const COLORREF oldBack = dc.SetBkColor(backColour);
    dc.DrawText(text, &rect, format);
    dc.SetBkColor(oldBack);
    dc.SetTextColor(oldText);
}

// --- In-place editing ----------------------------------------------------------------------------

CZoEditInPlace* CZoListCtrl::EditSubLabel(int item, int column)
{
    if (!_isReport())
        return NULL;
    _cancelEdit();
    if (column < 0 || column >= GetColumnCount())
        return NULL;
    if (!SendMessage(LVM_ENSUREVISIBLE, item, FALSE))
        return NULL;
    CRect rect;
    if (!GetSubItemRect(item, column, LVIR_LABEL, rect))
        return NULL;
    rect.right = rect.left + GetColumnWidth(column);

    DWORD style = WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL;
    LVCOLUMNW info = {};
    info.mask = LVCF_FMT;
    if (GetColumn(column, &info))
    {
        const int justify = info.fmt & LVCFMT_JUSTIFYMASK;
        if (justify == LVCFMT_RIGHT)
            style |= ES_RIGHT;
        else if (justify == LVCFMT_CENTER)
            style |= ES_CENTER;
    }
    const HWND hNotify = ::GetParent(m_hWnd);
    CZoEditInPlace* pEditor = new CZoEditInPlace(hNotify, item, column, GetItemText(item, column));
    // Kept before the window exists: its creation takes the focus, which may already report.
    m_pEditor = pEditor;
    if (!pEditor->Create(style, rect, this, EditorId))
    {
        // An editor whose creation ended the edit (a parent starting another from its handler
        // of the focus change) is retired already and goes with the retired ones.
        if (m_pEditor == pEditor)
        {
            m_pEditor = NULL;
            delete pEditor;
        }
        return NULL;
    }
    return m_pEditor == pEditor ? pEditor : NULL;
}

void CZoListCtrl::_cancelEdit()
{
    CZoEditInPlace* pEditor = m_pEditor;
    if (!pEditor)
        return;
    // Cleared first: destroying the editor takes its focus, and its report of that comes back here.
    m_pEditor = NULL;
    if (::IsWindow(pEditor->GetSafeHwnd()))
        pEditor->DestroyWindow();
    // The editor may be the one asking (it ends its edit from its own handlers): it is deleted
    // once the message loop runs again, never under its own feet.
    m_retiredEditors.push_back(pEditor);
    if (::IsWindow(m_hWnd))
        PostMessage(deleteEditorsMessage());
}

void CZoListCtrl::_deleteRetiredEditors()
{
    std::vector<CZoEditInPlace*> editors;
    editors.swap(m_retiredEditors);
    for (size_t i = 0; i < editors.size(); ++i)
        delete editors[i];
}

LRESULT CZoListCtrl::OnEditLabel(WPARAM wParam, LPARAM)
{
    const int column = m_nEditableColumn >= 0 ? m_nEditableColumn : 0;
    CZoEditInPlace* pEditor = EditSubLabel((int)wParam, column);
    return (LRESULT)(pEditor ? pEditor->GetSafeHwnd() : NULL);
}

LRESULT CZoListCtrl::OnGetEditControl(WPARAM, LPARAM)
{
    return (LRESULT)(m_pEditor ? m_pEditor->GetSafeHwnd() : NULL);
}

LRESULT CZoListCtrl::OnCancelEditLabel(WPARAM, LPARAM)
{
    _cancelEdit();
    return 0;
}

void CZoListCtrl::OnLButtonDown(UINT nFlags, CPoint point)
{
    if (_isReport() && m_nEditableColumn >= 0 && GetSelectedCount() == 1)
    {
        LVHITTESTINFO hit = {};
        hit.pt = point;
        SubItemHitTest(&hit);
        if (hit.iItem >= 0 && hit.iSubItem == m_nEditableColumn &&
            (GetItemState(hit.iItem, LVIS_SELECTED) & LVIS_SELECTED))
        {
            ::Sleep(kClickEditDelayMs);
            EditSubLabel(hit.iItem, m_nEditableColumn);
            return;
        }
    }
    CListCtrl::OnLButtonDown(nFlags, point);
}

BOOL CZoListCtrl::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg->message == WM_KEYDOWN)
    {
        if (pMsg->wParam == VK_F2 && m_nEditableColumn >= 0)
        {
            const int focused = GetFocusedItemIndex();
            if (focused >= 0)
            {
                EditSubLabel(focused, m_nEditableColumn);
                return TRUE;
            }
        }
        // Dialog keys go to the dialog.
        if ((pMsg->wParam == VK_ESCAPE || pMsg->wParam == VK_RETURN) && GetParent())
        {
            GetParent()->PostMessage(WM_KEYDOWN, pMsg->wParam, pMsg->lParam);
            return TRUE;
        }
    }
    return CListCtrl::PreTranslateMessage(pMsg);
}

// --- Queries -------------------------------------------------------------------------------------

int CZoListCtrl::SearchString(int startItem, const wchar_t* text, bool forward, bool caseSensitive) const
{
    const int count = ::IsWindow(m_hWnd) ? GetItemCount() : 0;
    if (!text || startItem < 0 || startItem >= count)
        return -1;
    const int columns = GetColumnCount();
    CString needle(text);
    if (!caseSensitive)
        needle.MakeLower();
    const int step = forward ? 1 : -1;
    for (int row = startItem; row >= 0 && row < count; row += step)
    {
        for (int column = 0; column < columns; ++column)
        {
            CString cell = GetItemText(row, column);
            if (!caseSensitive)
                cell.MakeLower();
            if (cell.Find(needle) >= 0)
                return row;
        }
    }
    return -1;
}

int CZoListCtrl::GetColumnCount() const
{
    if (!_isReport())
        return 0;
    const HWND hHeader = (HWND)::SendMessageW(m_hWnd, LVM_GETHEADER, 0, 0);
    return hHeader ? (int)::SendMessageW(hHeader, HDM_GETITEMCOUNT, 0, 0) : 0;
}

int CZoListCtrl::GetFocusedItemIndex() const
{
    // At most one row has the focus: the platform finds it without visiting every row.
    return ::IsWindow(m_hWnd) ? GetNextItem(-1, LVNI_FOCUSED) : -1;
}

} // namespace ZoControls
