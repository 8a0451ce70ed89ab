#include "lists/ZoRowRewrite.h"

#include <commctrl.h>

#include <algorithm>
#include <cmath>

#include "core/ZoMenuRouting.h"

namespace ZoControls {

namespace {

// What a row carries to its new place; the focus follows once, at the end.
const UINT kCarriedStates = LVIS_SELECTED | LVIS_CUT | LVIS_DROPHILITED | LVIS_OVERLAYMASK | LVIS_STATEIMAGEMASK;
// Longer cells are not copied: the list keeps its own sort for them rather than cut them short.
const size_t kLongestCell = 1u << 24;

long long countInversions(int* items, int* scratch, int count)
{
    if (count < 2)
        return 0;
    const int half = count / 2;
    long long inversions = countInversions(items, scratch, half) + countInversions(items + half, scratch, count - half);
    int left = 0, right = half, out = 0;
    while (left < half && right < count)
    {
        if (items[right] < items[left])
        {
            inversions += half - left;
            scratch[out++] = items[right++];
        }
        else
        {
            scratch[out++] = items[left++];
        }
    }
    while (left < half)
        scratch[out++] = items[left++];
    while (right < count)
        scratch[out++] = items[right++];
    std::copy(scratch, scratch + count, items);
    return inversions;
}

// While it lives, the list's item-change notifications stop at its parent's window procedure,
// which stands in for the parent's own for that time; so do its requests for the cells, images
// and indents the parent supplies (LPSTR_TEXTCALLBACK and the like), which it notes instead, so
// that such cells move as what they are.
class QuietParent
{
public:
    QuietParent(HWND hList, const ZoListCall& native);
    ~QuietParent();
    // The list's item changes reach the window filtered here.
    bool Works() const { return m_bWorks; }
    // What the list has asked the parent for since the last call (LVIF_TEXT, LVIF_IMAGE, ...).
    UINT TakeAsked()
    {
        const UINT asked = m_filter.asked;
        m_filter.asked = 0;
        return asked;
    }

private:
    static LRESULT CALLBACK filterProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

    struct Filter
    {
        HWND hList;
        WNDPROC previous;
        bool unicode;
        unsigned changes;
        UINT asked;
    };
    static thread_local Filter* s_pFilter;

    Filter m_filter;
    HWND m_hParent;
    bool m_bWorks;
    QuietParent(const QuietParent&);
    QuietParent& operator=(const QuietParent&);
};

thread_local QuietParent::Filter* QuietParent::s_pFilter = NULL;

QuietParent::QuietParent(HWND hList, const ZoListCall& native) : m_filter(), m_hParent(::GetParent(hList)), m_bWorks(false)
{
    m_filter.hList = hList;
    if (s_pFilter || !m_hParent || ::GetWindowThreadProcessId(m_hParent, NULL) != ::GetCurrentThreadId())
    {
        m_hParent = NULL;
        return;
    }
    m_filter.unicode = ::IsWindowUnicode(m_hParent) != FALSE;
    const LONG_PTR filter = reinterpret_cast<LONG_PTR>(&filterProc);
    m_filter.previous = reinterpret_cast<WNDPROC>(m_filter.unicode ? ::SetWindowLongPtrW(m_hParent, GWLP_WNDPROC, filter)
                                                                   : ::SetWindowLongPtrA(m_hParent, GWLP_WNDPROC, filter));
    if (!m_filter.previous)
    {
        m_hParent = NULL;
        return;
    }
    s_pFilter = &m_filter;
    // A change that changes nothing, to see where the list reports it.
    LVITEMW probe = {};
    probe.mask = LVIF_STATE;
    native(LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&probe));
    m_bWorks = m_filter.changes > 0;
}

QuietParent::~QuietParent()
{
    if (!m_hParent)
        return;
    const LONG_PTR previous = reinterpret_cast<LONG_PTR>(m_filter.previous);
    if (m_filter.unicode)
        ::SetWindowLongPtrW(m_hParent, GWLP_WNDPROC, previous);
    else
        ::SetWindowLongPtrA(m_hParent, GWLP_WNDPROC, previous);
    s_pFilter = NULL;
}

LRESULT CALLBACK QuietParent::filterProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    Filter& filter = *s_pFilter;
    if (message == WM_NOTIFY && lParam && reinterpret_cast<const NMHDR*>(lParam)->hwndFrom == filter.hList)
    {
        const NMHDR& header = *reinterpret_cast<const NMHDR*>(lParam);
        switch (header.code)
        {
        case LVN_ITEMCHANGING:
        case LVN_ITEMCHANGED:
            ++filter.changes;
            return 0;
        case LVN_GETDISPINFOW:
        case LVN_GETDISPINFOA:
            // The mask sits at the same place in the wide and the narrow structure.
            filter.asked |= reinterpret_cast<const NMLVDISPINFOW*>(lParam)->item.mask;
            return 0;
        }
    }
    return filter.unicode ? ::CallWindowProcW(filter.previous, hWnd, message, wParam, lParam)
                          : ::CallWindowProcA(filter.previous, hWnd, message, wParam, lParam);
}

// One row's contents while rows change places; its texts sit end to end in a shared pool, a cell
// the parent supplies as LPSTR_TEXTCALLBACK's place.
struct CarriedRow
{
    LVITEMW item;
    size_t firstText;
};
const size_t kCallbackText = (size_t)-1;

// Reads the rows that move; false when a cell is too long to carry.
bool readRows(const ZoListCall& native, QuietParent& quiet, const std::vector<int>& order, int columns,
              std::vector<CarriedRow>& rows, std::vector<size_t>& textAt, std::vector<wchar_t>& pool)
{
    std::vector<wchar_t> buffer(256);
    for (size_t place = 0; place < order.size(); ++place)
    {
        const int row = order[place];
        if (row == (int)place)
            continue;
        CarriedRow carried = {};
        carried.item.mask = LVIF_IMAGE | LVIF_PARAM | LVIF_STATE | LVIF_INDENT;
        carried.item.iItem = row;
        carried.item.stateMask = kCarriedStates;
        quiet.TakeAsked();
        native(LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&carried.item));
        const UINT asked = quiet.TakeAsked();
        if (asked & LVIF_IMAGE)
            carried.item.iImage = I_IMAGECALLBACK;
        if (asked & LVIF_INDENT)
            carried.item.iIndent = I_INDENTCALLBACK;
        carried.item.iItem = (int)place;
        carried.item.state &= kCarriedStates;
        carried.firstText = textAt.size();
        for (int column = 0; column < columns; ++column)
        {
            LVITEMW cell = {};
            cell.iSubItem = column;
            int length = 0;
            for (;;)
            {
                cell.pszText = buffer.data();
                cell.cchTextMax = (int)buffer.size();
                length = std::max((int)native(LVM_GETITEMTEXTW, (WPARAM)row, reinterpret_cast<LPARAM>(&cell)), 0);
                if (length < (int)buffer.size() - 1)
                    break;
                if (buffer.size() >= kLongestCell)
                    return false;
                buffer.resize(buffer.size() * 2);
            }
            if (quiet.TakeAsked() & LVIF_TEXT)
            {
                textAt.push_back(kCallbackText);
                continue;
            }
            textAt.push_back(pool.size());
            pool.insert(pool.end(), buffer.data(), buffer.data() + length);
            pool.push_back(L'\0');
        }
        rows.push_back(carried);
    }
    return true;
}

} // namespace

long long ZoCountInversions(const std::vector<int>& order)
{
    std::vector<int> items(order);
    std::vector<int> scratch(order.size());
    return countInversions(items.data(), scratch.data(), (int)items.size());
}

bool ZoRewritingPays(int rows, long long inversions)
{
    if (rows < 2)
        return false;
    const long long shiftsPerComparison = 16;
    return inversions > shiftsPerComparison * rows * (long long)std::ceil(std::log2((double)rows));
}

bool ZoRewriteRowsInOrder(HWND hList, const ZoListCall& native, const std::vector<int>& order, bool redrawing)
{
    const int count = (int)order.size();
    if (!::IsWindow(hList) || (int)native(LVM_GETITEMCOUNT, 0, 0) != count)
        return false;
    std::vector<int> placeOf((size_t)count, -1);
    for (int place = 0; place < count; ++place)
    {
        const int row = order[(size_t)place];
        if (row < 0 || row >= count || placeOf[(size_t)row] >= 0)
            return false;
        placeOf[(size_t)row] = place;
    }
    const HWND hHeader = reinterpret_cast<HWND>(native(LVM_GETHEADER, 0, 0));
    const int columns = std::max(hHeader ? (int)::SendMessageW(hHeader, HDM_GETITEMCOUNT, 0, 0) : 0, 1);
    const CZoMenuHookPause quickMessages;
    QuietParent quiet(hList, native);
    if (!quiet.Works())
        return false;
    std::vector<CarriedRow> rows;
    std::vector<size_t> textAt;
    std::vector<wchar_t> pool;
    if (!readRows(native, quiet, order, columns, rows, textAt, pool))
        return false;
    const auto textOf = [&](const CarriedRow& row, int column) {
        const size_t at = textAt[row.firstText + (size_t)column];
        return at == kCallbackText ? LPSTR_TEXTCALLBACKW : &pool[at];
    };
    const int focused = (int)native(LVM_GETNEXTITEM, (WPARAM)-1, LVNI_FOCUSED);
    const int mark = (int)native(LVM_GETSELECTIONMARK, 0, 0);
    RECT before = {LVIR_BOUNDS, 0, 0, 0};
    native(LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&before));
    if (redrawing)
        native(WM_SETREDRAW, FALSE, 0);
    for (const CarriedRow& row : rows)
    {
        LVITEMW item = row.item;
        item.mask |= LVIF_TEXT;
        item.pszText = textOf(row, 0);
        native(LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        for (int column = 1; column < columns; ++column)
        {
            LVITEMW cell = {};
            cell.iSubItem = column;
            cell.pszText = textOf(row, column);
            native(LVM_SETITEMTEXTW, (WPARAM)item.iItem, reinterpret_cast<LPARAM>(&cell));
        }
    }
    if (focused >= 0 && focused < count && placeOf[(size_t)focused] != focused)
    {
        LVITEMW focus = {};
        focus.stateMask = focus.state = LVIS_FOCUSED;
        native(LVM_SETITEMSTATE, (WPARAM)placeOf[(size_t)focused], reinterpret_cast<LPARAM>(&focus));
    }
    native(LVM_SETSELECTIONMARK, 0, mark >= 0 && mark < count ? placeOf[(size_t)mark] : mark);
    // Focusing a row scrolls it into view; a sort leaves the view where it was.
    RECT after = {LVIR_BOUNDS, 0, 0, 0};
    native(LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&after));
    if (after.left != before.left || after.top != before.top)
        native(LVM_SCROLL, (WPARAM)(INT_PTR)(after.left - before.left), after.top - before.top);
    if (redrawing)
    {
        native(WM_SETREDRAW, TRUE, 0);
        ::InvalidateRect(hList, NULL, TRUE);
    }
    return true;
}

} // namespace ZoControls
