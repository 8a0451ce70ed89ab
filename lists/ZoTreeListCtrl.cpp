#include "lists/ZoTreeListCtrl.h"

#include <algorithm>
#include <unordered_set>
#include <utility>
#include <vector>

#include "controls/ZoControlTheme.h"
#include "lists/ZoNestingScope.h"
#include "lists/ZoRowRewrite.h"
#include "lists/ZoTreeSort.h"

namespace ZoControls {

namespace {

const int kDefaultLevels = 3;
const COLORREF kMaskColour = RGB(255, 0, 255);
// Expander images: 36 x 18 px, four in the first strip and three in the boxed one.
const int kImageWidth = 36;
const int kImageHeight = 18;
const int kInitialImages = 5;
const wchar_t* const kExpanderStrips[] = {L"BMP_ZO_TREELISTICON", L"BMP_ZO_TREELISTICON_SRS"};
const UINT kRowStates = LVIS_SELECTED | LVIS_FOCUSED;

CZoTreeListCtrlItem* nodeOf(DWORD_PTR handle) { return reinterpret_cast<CZoTreeListCtrlItem*>(handle); }
DWORD_PTR handleOf(const CZoTreeListCtrlItem* node) { return reinterpret_cast<DWORD_PTR>(node); }
// Whether `node` is `top` or lies below it.
bool isUnder(const CZoTreeListCtrlItem* node, const CZoTreeListCtrlItem* top)
{
    for (; node; node = node->GetParentItem())
        if (node == top)
            return true;
    return false;
}

// The model hands out its parents read-only; the view owns every node of its tree.
CZoTreeListCtrlItem* parentOf(const CZoTreeListCtrlItem* node)
{
    return const_cast<CZoTreeListCtrlItem*>(node->GetParentItem());
}

// One row while a sort runs: its node and the node's cell, read once.
struct SortRow
{
    const CZoTreeListCtrlItem* node;
    ZoTreeSortKey key;
};

struct TreeSortContext
{
    int levels;
    int method;
    bool ascending;
    int column;
    const std::vector<SortRow>* rows;
    std::vector<const CZoTreeListCtrlItem*> path1;
    std::vector<const CZoTreeListCtrlItem*> path2;
    // Keys of nodes without a row (an ancestor of a row that was itself never shown).
    ZoTreeSortKey scratch[2];
};

// A node's key: its row's during the sort (the temp item number holds that row), or made now.
const ZoTreeSortKey& keyOf(TreeSortContext& context, const CZoTreeListCtrlItem* node, int which)
{
    const int row = node->GetTempItemNumber();
    const std::vector<SortRow>& rows = *context.rows;
    if (row >= 0 && row < (int)rows.size() && rows[row].node == node)
        return rows[row].key;
    context.scratch[which] = ZoMakeTreeSortKey(context.method, node->GetSubItemText(context.column));
    return context.scratch[which];
}

int compareCells(const CZoTreeListCtrlItem* x, const CZoTreeListCtrlItem* y, void* pContext)
{
    TreeSortContext& context = *static_cast<TreeSortContext*>(pContext);
    return ZoCompareTreeKeys(context.method, keyOf(context, x, 0), keyOf(context, y, 1));
}

// Two rows by their nodes' whole paths.
int CALLBACK compareRowPaths(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort)
{
    TreeSortContext& context = *reinterpret_cast<TreeSortContext*>(lParamSort);
    return ZoCompareTreeNodes(nodeOf((DWORD_PTR)lParam1), nodeOf((DWORD_PTR)lParam2), context.levels,
                              context.ascending, context.path1.data(), context.path2.data(), &compareCells, &context);
}

// Two rows by the places worked out for their nodes.
int CALLBACK compareByPlace(LPARAM lParam1, LPARAM lParam2, LPARAM)
{
    return nodeOf((DWORD_PTR)lParam1)->GetTempItemNumber() - nodeOf((DWORD_PTR)lParam2)->GetTempItemNumber();
}

// Two rows of the same parent: bold first in either direction, then their cells in the sort's
// direction. Below the deepest level the view sorts, siblings keep their order.
int compareSiblingRows(int row1, int row2, void* pContext)
{
    const TreeSortContext& context = *static_cast<const TreeSortContext*>(pContext);
    const SortRow& first = (*context.rows)[row1];
    const SortRow& second = (*context.rows)[row2];
    if (first.node->GetDepthLevel() >= context.levels)
        return 0;
    if (first.node->GetBold() != second.node->GetBold())
        return first.node->GetBold() ? -1 : 1;
    return ZoDirected(ZoCompareTreeKeys(context.method, first.key, second.key), context.ascending);
}

} // namespace

IMPLEMENT_DYNAMIC(CZoTreeListCtrl, CZoListCtrl)

BEGIN_MESSAGE_MAP(CZoTreeListCtrl, CZoListCtrl)
    ON_WM_DESTROY()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_NOTIFY(HDN_ITEMCLICKA, 0, &CZoTreeListCtrl::OnHeaderItemClick)
    ON_NOTIFY(HDN_ITEMCLICKW, 0, &CZoTreeListCtrl::OnHeaderItemClick)
    ZO_ON_MENUXP_MESSAGES()
END_MESSAGE_MAP()

ZO_IMPLEMENT_MENUXP_FORWARDING(CZoTreeListCtrl, CZoListCtrl)

CZoTreeListCtrl::CZoTreeListCtrl()
    : m_nLevels(kDefaultLevels), m_pRoot(new CZoTreeListCtrlItem(NULL, -1)), m_bExpandAllEnabled(true),
      m_bKeepChildData(false), m_eBoldFont(ZoThemeFont_12), m_bImageListsShared(false), m_bHostSharesImageLists(false),
      m_nBusy(0), m_nRowEdits(0)
{
    m_pRoot->Expand(true);
}

CZoTreeListCtrl::~CZoTreeListCtrl()
{
    delete m_pRoot;
}

// --- Creation --------------------------------------------------------------------------------

// The list's own initialisation runs first (its creating flag keeps PreSubclassWindow from
// running either too early), then the tree's.
BOOL CZoTreeListCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    const BOOL created = CZoListCtrl::Create(dwStyle, rect, pParentWnd, nID);
    if (created)
        _initTree();
    return created;
}

BOOL CZoTreeListCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    const BOOL created = CZoListCtrl::CreateEx(dwExStyle, dwStyle, rect, pParentWnd, nID);
    if (created)
        _initTree();
    return created;
}

void CZoTreeListCtrl::PreSubclassWindow()
{
    CZoListCtrl::PreSubclassWindow();
    if (!m_bCreating)
        _initTree();
}

void CZoTreeListCtrl::_initTree()
{
    if (!::IsWindow(m_hWnd))
        return;
    // The tree column stays first.
    m_header.SetFirstColumnLocked(true);
    if (!m_imageList.GetSafeHandle() &&
        m_imageList.Create(kImageWidth, kImageHeight, ILC_MASK | ILC_COLOR24, kInitialImages, 0))
    {
        for (const wchar_t* name : kExpanderStrips)
        {
            const HINSTANCE hModule = AfxFindResourceHandle(name, RT_BITMAP);
            const HBITMAP hStrip =
                hModule ? (HBITMAP)::LoadImageW(hModule, name, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION) : NULL;
            if (!hStrip)
                continue;
            CBitmap strip;
            strip.Attach(hStrip);
            m_imageList.Add(&strip, kMaskColour);
        }
    }
    // The view owns its image list: the native list must not destroy it. What the host asked
    // for is kept, for the other lists the native one holds when it goes.
    if (!m_bImageListsShared)
        m_bHostSharesImageLists = (GetStyle() & LVS_SHAREIMAGELISTS) != 0;
    m_bImageListsShared = true;
    ModifyStyle(0, LVS_SHAREIMAGELISTS);
    SetImageList(&m_imageList, LVSIL_SMALL);
    ZoMenuOptIn(this);
}

void CZoTreeListCtrl::OnDestroy()
{
    if (!m_bHostSharesImageLists)
        _destroyForeignImageLists();
    CZoListCtrl::OnDestroy();
    // The native list lets its rows go with the window, without a message per row.
    m_rows.RemoveAll();
}

// The shared style that protects the view's own list would also keep the native list from
// destroying the others it holds: the state images it makes itself for check boxes, and lists the
// host handed it. They go here, as they would from a list without that style.
void CZoTreeListCtrl::_destroyForeignImageLists()
{
    const int kinds[] = {LVSIL_NORMAL, LVSIL_SMALL, LVSIL_STATE};
    std::vector<HIMAGELIST> destroyed;
    for (int kind : kinds)
    {
        // Handles only: wrappers of lists about to go would outlive them in the temporary map.
        const HIMAGELIST hList = ListView_GetImageList(m_hWnd, kind);
        if (!hList || hList == m_imageList.GetSafeHandle())
            continue;
        ListView_SetImageList(m_hWnd, NULL, kind);
        // One list may serve several kinds.
        if (std::find(destroyed.begin(), destroyed.end(), hList) != destroyed.end())
            continue;
        destroyed.push_back(hList);
        ::ImageList_Destroy(hList);
    }
}

// --- Rows kept in step ---------------------------------------------------------------------------

LRESULT CZoTreeListCtrl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    // The row being deleted is known only before the list forgets it.
    const LRESULT result = CZoListCtrl::WindowProc(message, wParam, lParam);
    const int rowsBefore = m_rows.GetCount();
    _trackRowMessage(message, wParam, lParam, result);
    if (m_rows.GetCount() != rowsBefore || ((message == LVM_SORTITEMS || message == LVM_SORTITEMSEX) && result))
        ++m_nRowEdits;
    return result;
}

void CZoTreeListCtrl::_trackRowMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT result)
{
    switch (message)
    {
    case LVM_INSERTITEMA:
    case LVM_INSERTITEMW:
        // LVITEMA and LVITEMW agree up to the text pointer's type.
        if ((int)result >= 0 && lParam)
        {
            const LVITEMW* pItem = reinterpret_cast<const LVITEMW*>(lParam);
            m_rows.Insert((int)result, (pItem->mask & LVIF_PARAM) ? nodeOf((DWORD_PTR)pItem->lParam) : NULL);
        }
        break;
    case LVM_DELETEITEM:
        if (result)
            m_rows.Remove((int)wParam);
        break;
    case LVM_DELETEALLITEMS:
        // Rows a parent inserted from its handlers of the deletions may have stayed.
        if (result && CListCtrl::GetItemCount() > 0)
            _reloadRows();
        else if (result)
            m_rows.RemoveAll();
        break;
    case LVM_SETITEMA:
    case LVM_SETITEMW:
        if (result && lParam)
        {
            const LVITEMW* pItem = reinterpret_cast<const LVITEMW*>(lParam);
            if ((pItem->mask & LVIF_PARAM) && pItem->iSubItem == 0 && pItem->iItem >= 0 &&
                pItem->iItem < m_rows.GetCount())
            {
                m_rows.Remove(pItem->iItem);
                m_rows.Insert(pItem->iItem, nodeOf((DWORD_PTR)pItem->lParam));
            }
        }
        break;
    case LVM_SORTITEMS:
    case LVM_SORTITEMSEX:
        _reloadRows();
        break;
    default:
        break;
    }
}

void CZoTreeListCtrl::_reloadRows()
{
    const int count = ::IsWindow(m_hWnd) ? CListCtrl::GetItemCount() : 0;
    std::vector<CZoTreeListCtrlItem*> rows((size_t)std::max(count, 0));
    for (int row = 0; row < count; ++row)
        rows[row] = nodeOf(_itemData(row));
    m_rows.Assign(rows);
}

int CZoTreeListCtrl::_insertRow(int row, CZoTreeListCtrlItem* node, const wchar_t* text, int image)
{
    if (!::IsWindow(m_hWnd))
        return -1;
    LVITEMW item = {};
    item.mask = LVIF_TEXT | LVIF_PARAM;
    item.iItem = std::max(row, 0);
    item.pszText = const_cast<LPWSTR>(text ? text : L"");
    item.lParam = (LPARAM)handleOf(node);
    if (image != I_IMAGENONE)
    {
        item.mask |= LVIF_IMAGE;
        item.iImage = image;
    }
    return CListCtrl::InsertItem(&item);
}

void CZoTreeListCtrl::_fillTexts(int row, const CZoTreeListCtrlItem* node)
{
    const int columns = GetColumnCount();
    for (int column = 1; column < columns; ++column)
        CListCtrl::SetItemText(row, column, node->GetSubItemText(column));
}

bool CZoTreeListCtrl::_deleteRow(int row) { return CListCtrl::DeleteItem(row) && ::IsWindow(m_hWnd); }

void CZoTreeListCtrl::_dropRowsUnder(const CZoTreeListCtrlItem* top, bool withTop)
{
    // A handler inserting rows meanwhile moves those not visited yet: a few sweeps, each from the end.
    const int kSweeps = 3;
    for (int sweep = 0, dropped = 1; sweep < kSweeps && dropped; ++sweep)
    {
        dropped = 0;
        for (int row = m_rows.GetCount() - 1; row >= 0; row = std::min(row - 1, m_rows.GetCount() - 1))
        {
            const CZoTreeListCtrlItem* node = _nodeOf(row);
            if (!node || (node == top && !withTop) || !isUnder(node, top))
                continue;
            if (!_deleteRow(row))
                return;
            ++dropped;
        }
    }
}

void CZoTreeListCtrl::_dropLeftRows(const CZoTreeListCtrlItem* top, bool withTop, unsigned editsBefore, unsigned deleted)
{
    if (m_nRowEdits - editsBefore != deleted && ::IsWindow(m_hWnd))
        _dropRowsUnder(top, withTop);
}

void CZoTreeListCtrl::_notify(E_TreeListNotification code, LPARAM lParam, bool post)
{
    const HWND hParent = ::IsWindow(m_hWnd) ? ::GetParent(m_hWnd) : NULL;
    if (!hParent)
        return;
    if (post)
        ::PostMessageW(hParent, ZoTreeListNotify, (WPARAM)code, lParam);
    else
        ::SendMessageW(hParent, ZoTreeListNotify, (WPARAM)code, lParam);
}

bool CZoTreeListCtrl::_isDescendantRow(int row, int depth) const
{
    const CZoTreeListCtrlItem* node = _nodeOf(row);
    return node && node->GetDepthLevel() > depth;
}

bool CZoTreeListCtrl::_atLevelLimit(const CZoTreeListCtrlItem* node) const
{
    return node->GetDepthLevel() >= m_nLevels - 1;
}

// --- Building the tree -----------------------------------------------------------------------

DWORD_PTR CZoTreeListCtrl::InsertRootNode(const wchar_t* text, int image, int* rowOut)
{
    if (rowOut)
        *rowOut = -1;
    if (_isLocked())
        return 0;
    CZoTreeListCtrlItem* node = new CZoTreeListCtrlItem(m_pRoot, image);
    node->SetSubItemText(0, text);
    const int row = _insertRow(m_rows.GetCount(), node, text, image);
    m_pRoot->InsertChildItem(node);
    if (rowOut)
        *rowOut = row;
    return handleOf(node);
}

DWORD_PTR CZoTreeListCtrl::InsertNode(DWORD_PTR parentNode, const wchar_t* text, int* rowOut)
{
    return InsertNode(parentNode, text, -1, rowOut);
}

DWORD_PTR CZoTreeListCtrl::InsertNode(DWORD_PTR parentNode, const wchar_t* text, int image, int* rowOut)
{
    CZoTreeListCtrlItem* parent = nodeOf(parentNode);
    if (!parent || parent == m_pRoot || _isLocked())
        return InsertRootNode(text, image, rowOut);
    CZoTreeListCtrlItem* node = new CZoTreeListCtrlItem(parent, image);
    parent->Expand(true);
    const int parentRow = m_rows.Find(parent, 0);
    // The new row goes after the parent's deepest last descendant. When that one has no row (a
    // collapsed node on the way down), the row lands at the top: callers expand first.
    const CZoTreeListCtrlItem* last = parent;
    while (!last->HasNoChildren())
        last = last->GetLastChild();
    const int row = m_rows.Find(last, parentRow) + 1;
    node->SetSubItemText(0, text);
    const int newRow = _insertRow(row, node, text, image);
    parent->InsertChildItem(node);
    if (parentRow >= 0)
        Update(parentRow); // its expander
    if (rowOut)
        *rowOut = newRow;
    return handleOf(node);
}

void CZoTreeListCtrl::DeleteNode(int row, bool deleteEmptyParents)
{
    if (_isLocked())
        return;
    const CZoNestingScope busy(m_nBusy);
    int parentRow = -1;
    int deletedDepth = -1;
    for (int pass = 0;; ++pass)
    {
        CZoTreeListCtrlItem* node = _nodeOf(row);
        if (!node)
            break;
        deletedDepth = node->GetDepthLevel();
        const unsigned editsBefore = m_nRowEdits;
        unsigned deleted = 0;
        // At most the rows there were: a parent adding rows from its handler of each deletion, or
        // one that refuses or ends it, must not keep the loop going.
        for (int left = m_rows.GetCount() - row - 1; left > 0 && _isDescendantRow(row + 1, deletedDepth); --left, ++deleted)
            if (!_deleteRow(row + 1))
                break;
        if (!_deleteRow(row))
            break;
        _dropLeftRows(node, true, editsBefore, deleted + 1);

        CZoTreeListCtrlItem* parent = parentOf(node);
        if (!parent)
            break;
        const int childrenBefore = parent->GetNumberOfChildren();
        parent->DeleteChildItem(node);
        // Searched from as far back as the parent's children reach, not from the top.
        parentRow = m_rows.Find(parent, std::max(row - childrenBefore, 0));
        if (!parent->HasNoChildren())
            break;
        const bool deleteParents = deleteEmptyParents || pass > 0;
        if (!deleteParents || IsRootNode(handleOf(parent)) || parentRow < 0)
            break;
        row = parentRow;
    }
    if (parentRow < 0 || !::IsWindow(m_hWnd))
        return;
    // The last remaining row at the deleted node's depth under the parent is the last item now.
    CZoTreeListCtrlItem* lastAtDepth = NULL;
    for (int r = parentRow + 1; r < m_rows.GetCount(); ++r)
    {
        CZoTreeListCtrlItem* node = _nodeOf(r);
        if (!node || node->GetDepthLevel() < deletedDepth)
            break;
        if (node->GetDepthLevel() == deletedDepth)
            lastAtDepth = node;
    }
    if (lastAtDepth)
        lastAtDepth->SetLastItem(true);
    RedrawWindow(NULL, NULL, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

void CZoTreeListCtrl::DeleteAllNodes()
{
    if (_isLocked())
        return;
    const CZoNestingScope busy(m_nBusy);
    // The rows go before the nodes they show: the list notifies the parent of every row it
    // deletes and may repaint meanwhile, and whatever reaches a node from there finds it alive.
    if (::IsWindow(m_hWnd))
    {
        CListCtrl::DeleteAllItems();
        _dropRowsUnder(m_pRoot, false);
    }
    m_pRoot->Clear();
}

BOOL CZoTreeListCtrl::DeleteAllItems()
{
    if (_isLocked())
        return FALSE;
    DeleteAllNodes();
    return TRUE;
}

void CZoTreeListCtrl::Reset(int levels)
{
    if (_isLocked())
        return;
    m_nLevels = std::max(levels, 1);
    DeleteAllNodes();
    if (::IsWindow(m_hWnd))
        UpdateWindow();
}

// --- Expanding and collapsing ----------------------------------------------------------------

int CZoTreeListCtrl::Expand(int row) { return _isLocked() ? 0 : _expand(row); }

int CZoTreeListCtrl::_expand(int row)
{
    CZoTreeListCtrlItem* node = _nodeOf(row);
    if (!node)
        return 0;
    int added = 0;
    if (node->HasNoChildren())
    {
        _notify(TLN_GetChildren, (LPARAM)handleOf(node), false);
        // The parent may have deleted the node instead of filling it.
        if (m_rows.Find(node, 0) < 0)
            return 0;
        added = node->GetNumberOfChildren();
    }
    else if (node->IsCollapsed())
    {
        // The children are walked while their rows go in, each insertion notifying the parent.
        const CZoNestingScope busy(m_nBusy);
        LockWindowUpdate();
        int next = row + 1;
        for (POSITION pos = node->GetFirstChildPosition(); pos != NULL;)
        {
            CZoTreeListCtrlItem* child = node->GetNextChild(pos);
            const int childRow = _insertRow(next, child, child->GetSubItemText(0), I_IMAGENONE);
            if (childRow < 0)
                break;
            _fillTexts(childRow, child);
            ++added;
            next = childRow + 1;
            // An expanded child shows its own subtree again, as it was when it was collapsed.
            if (child->IsExpanded() && !child->HasNoChildren())
            {
                child->Expand(false);
                const int subtree = _expand(childRow);
                added += subtree;
                next += subtree;
            }
        }
        SendMessage(LVM_ENSUREVISIBLE, (WPARAM)(row + 1), FALSE);
        node->Expand(true);
        UnlockWindowUpdate();
        Update(row);
    }
    _notify(TLN_Expanded, (LPARAM)GetFocusedItem(), false);
    return added;
}

void CZoTreeListCtrl::Collapse(int row)
{
    CZoTreeListCtrlItem* node = _nodeOf(row);
    if (!node || _isLocked())
        return;
    const CZoNestingScope busy(m_nBusy);
    LockWindowUpdate();
    const int depth = node->GetDepthLevel();
    const unsigned editsBefore = m_nRowEdits;
    unsigned deleted = 0;
    if (row < m_rows.GetCount() - 1)
    {
        int number = 0;
        UINT collected = 0;
        bool focusGiven = false;
        // At most the rows there were, whatever the parent does in its handlers of the deletions.
        for (int left = m_rows.GetCount() - row - 1; left > 0 && row + 1 < m_rows.GetCount(); --left)
        {
            CZoTreeListCtrlItem* next = _nodeOf(row + 1);
            // The first row after the subtree is numbered too before the walk stops at it.
            if (next)
                next->SetTempItemNumber(number++);
            if (!next || next->GetDepthLevel() <= depth)
                break;
            collected |= GetItemState(row + 1, kRowStates);
            if (!focusGiven && (collected & LVIS_FOCUSED))
            {
                SetItemState(row, collected, collected);
                focusGiven = true;
            }
            if (!_deleteRow(row + 1))
                break;
            ++deleted;
        }
    }
    // Kept children take the order their rows had; otherwise they go, and the next Expand asks
    // the parent for them again.
    if (m_bKeepChildData)
        node->SortChildren();
    else
    {
        _dropLeftRows(node, false, editsBefore, deleted);
        node->Clear();
    }
    node->Expand(false);
    UnlockWindowUpdate();
    Update(row);
    _notify(TLN_Expanded, (LPARAM)GetFocusedItem(), false);
}

void CZoTreeListCtrl::ExpandAll(int row)
{
    CZoTreeListCtrlItem* node = _nodeOf(row);
    if (!node || _atLevelLimit(node))
        return;
    if (node->IsCollapsed())
        Expand(row);
    for (POSITION pos = node->GetFirstChildPosition(); pos != NULL;)
        ExpandAll(m_rows.Find(node->GetNextChild(pos), row));
}

void CZoTreeListCtrl::_toggle(int row)
{
    CZoTreeListCtrlItem* node = _nodeOf(row);
    if (!node)
        return;
    if (node->IsCollapsed())
        Expand(row);
    else
        Collapse(row);
}

// --- Row and node accessors ------------------------------------------------------------------

BOOL CZoTreeListCtrl::SetItemText(int row, int column, const wchar_t* text)
{
    CZoTreeListCtrlItem* node = _nodeOf(row);
    if (!node || column < 0)
        return FALSE;
    node->SetSubItemText(column, text);
    return CListCtrl::SetItemText(row, column, text ? text : L"");
}

int CZoTreeListCtrl::SetItemBold(int row, int bold)
{
    CZoTreeListCtrlItem* node = _nodeOf(row);
    if (!node)
        return 0;
    node->SetBold(bold != 0);
    Update(row);
    return 1;
}

int CZoTreeListCtrl::IsItemBold(int row) const
{
    const CZoTreeListCtrlItem* node = _nodeOf(row);
    return node && node->GetBold() ? 1 : 0;
}

int CZoTreeListCtrl::GetItemImageIndex(int row) const
{
    const CZoTreeListCtrlItem* node = _nodeOf(row);
    return node ? node->GetImage() : -1;
}

int CZoTreeListCtrl::GetItemImageIndex(const LVITEMW& item) const
{
    const CZoTreeListCtrlItem* node = _nodeOf(item.iItem);
    if (!node)
        return -1;
    // A node without children looks collapsed whatever its flag says.
    const bool expanded = node->IsExpanded() && !node->HasNoChildren();
    if (node->GetParentItem() == m_pRoot)
        return expanded ? TLI_TopExpanded : TLI_TopCollapsed;
    return expanded ? TLI_ChildExpanded : TLI_ChildCollapsed;
}

BOOL CZoTreeListCtrl::SetItemData(int row, DWORD data) { return SetItemData(handleOf(_nodeOf(row)), data); }

BOOL CZoTreeListCtrl::SetItemData(DWORD_PTR node, DWORD data)
{
    if (!node)
        return FALSE;
    nodeOf(node)->SetItemData(data);
    return TRUE;
}

DWORD CZoTreeListCtrl::GetItemData(int row) const { return GetItemData(handleOf(_nodeOf(row))); }

DWORD CZoTreeListCtrl::GetItemData(DWORD_PTR node) { return node ? nodeOf(node)->GetItemData() : 0; }

DWORD_PTR CZoTreeListCtrl::GetItemNode(int row) const { return handleOf(_nodeOf(row)); }

int CZoTreeListCtrl::LookforItemNumber(DWORD_PTR node, int startRow) const { return m_rows.Find(nodeOf(node), startRow); }

DWORD_PTR CZoTreeListCtrl::GetParentNode(DWORD_PTR node) const
{
    if (!node)
        return 0;
    const CZoTreeListCtrlItem* parent = nodeOf(node)->GetParentItem();
    return parent && parent->GetParentItem() ? handleOf(parent) : 0;
}

POSITION CZoTreeListCtrl::GetFirstChildPosition(DWORD_PTR node) const
{
    return node ? nodeOf(node)->GetFirstChildPosition() : NULL;
}

DWORD_PTR CZoTreeListCtrl::GetNextChild(DWORD_PTR node, POSITION& pos) const
{
    return node && pos ? handleOf(nodeOf(node)->GetNextChild(pos)) : 0;
}

BOOL CZoTreeListCtrl::HasNoChildren(DWORD_PTR node) const { return node ? nodeOf(node)->HasNoChildren() : TRUE; }

bool CZoTreeListCtrl::IsExpand(DWORD_PTR node) const { return node && nodeOf(node)->IsExpanded(); }

int CZoTreeListCtrl::GetNodeLevel(DWORD_PTR node) { return node ? nodeOf(node)->GetDepthLevel() : -1; }

int CZoTreeListCtrl::IsRootItemOfTreeList(DWORD_PTR node) const
{
    return node && nodeOf(node)->GetParentItem() && nodeOf(node)->IsRootItem() ? 1 : 0;
}

bool CZoTreeListCtrl::IsRootNode(DWORD_PTR node) const { return nodeOf(node) == m_pRoot; }

DWORD_PTR CZoTreeListCtrl::GetFocusedItem(int* rowOut) const
{
    const int row = GetFocusedItemIndex();
    const bool selected = row >= 0 && (GetItemState(row, LVIS_SELECTED) & LVIS_SELECTED);
    if (rowOut)
        *rowOut = selected ? row : -1;
    return selected ? handleOf(_nodeOf(row)) : 0;
}

int CZoTreeListCtrl::SetItemFocus(int row)
{
    if (!::IsWindow(m_hWnd) || row < 0 || row >= m_rows.GetCount())
        return 0;
    if (GetSelectedCount() == 1 && (GetItemState(row, kRowStates) & kRowStates) == kRowStates)
        return 0;
    SetItemState(-1, 0, kRowStates);
    SetItemState(row, kRowStates, kRowStates);
    SendMessage(LVM_ENSUREVISIBLE, (WPARAM)row, FALSE);
    return 1;
}

int CZoTreeListCtrl::GetSelectedItems(CList<DWORD_PTR, const DWORD_PTR&>& nodes) const
{
    nodes.RemoveAll();
    if (!::IsWindow(m_hWnd))
        return 0;
    std::vector<const CZoTreeListCtrlItem*> selected;
    std::unordered_set<const CZoTreeListCtrlItem*> chosen;
    for (int row = GetNextItem(-1, LVNI_SELECTED); row >= 0; row = GetNextItem(row, LVNI_SELECTED))
    {
        const CZoTreeListCtrlItem* node = _nodeOf(row);
        if (node && chosen.insert(node).second)
            selected.push_back(node);
    }
    std::vector<const CZoTreeListCtrlItem*> kept;
    for (const CZoTreeListCtrlItem* node : selected)
    {
        bool covered = false;
        for (const CZoTreeListCtrlItem* up = node->GetParentItem(); up && !covered; up = up->GetParentItem())
            covered = chosen.count(up) != 0;
        if (!covered)
            kept.push_back(node);
    }
    std::stable_sort(kept.begin(), kept.end(), [](const CZoTreeListCtrlItem* a, const CZoTreeListCtrlItem* b) {
        return a->GetDepthLevel() < b->GetDepthLevel();
    });
    for (const CZoTreeListCtrlItem* node : kept)
        nodes.AddTail(handleOf(node));
    return (int)kept.size();
}

int CZoTreeListCtrl::ClearAllUserData(void (*callback)(int depth, DWORD itemData))
{
    int visited = 0;
    // Post-order without recursion: a node is reported once every child of it has been.
    std::vector<std::pair<CZoTreeListCtrlItem*, POSITION>> stack;
    for (POSITION top = m_pRoot->GetFirstChildPosition(); top != NULL;)
    {
        CZoTreeListCtrlItem* first = m_pRoot->GetNextChild(top);
        stack.push_back(std::make_pair(first, first->GetFirstChildPosition()));
        while (!stack.empty())
        {
            std::pair<CZoTreeListCtrlItem*, POSITION>& entry = stack.back();
            if (entry.second != NULL)
            {
                CZoTreeListCtrlItem* child = entry.first->GetNextChild(entry.second);
                stack.push_back(std::make_pair(child, child->GetFirstChildPosition()));
                continue;
            }
            if (callback)
                callback(entry.first->GetDepthLevel(), entry.first->GetItemData());
            ++visited;
            stack.pop_back();
        }
    }
    return visited;
}

// --- Rebuilding rows from the model ----------------------------------------------------------

void CZoTreeListCtrl::AssignListCtrlIndexToTreeItem()
{
    m_pRoot->ResetTempItemNumber();
    for (int row = 0; row < m_rows.GetCount(); ++row)
        if (CZoTreeListCtrlItem* node = _nodeOf(row))
            node->SetTempItemNumber(row);
}

void CZoTreeListCtrl::MakeListForAddTreeItems(CZoTreeListCtrlItem* node, CZoTreeListCtrlItem** nodes, int count)
{
    if (!node || !nodes)
        return;
    std::vector<CZoTreeListCtrlItem*> pending;
    // Children are taken in list order: pushed in reverse onto the stack.
    auto pushChildren = [&pending](CZoTreeListCtrlItem* parent) {
        const size_t at = pending.size();
        for (POSITION pos = parent->GetFirstChildPosition(); pos != NULL;)
            pending.push_back(parent->GetNextChild(pos));
        std::reverse(pending.begin() + at, pending.end());
    };
    pushChildren(node);
    while (!pending.empty())
    {
        CZoTreeListCtrlItem* child = pending.back();
        pending.pop_back();
        const int number = child->GetTempItemNumber();
        if (number < 0 || number >= count)
            continue;
        nodes[number] = child;
        pushChildren(child);
    }
}

void CZoTreeListCtrl::AddTreeItemsToListCtrl(CZoTreeListCtrlItem** nodes, int count)
{
    if (!nodes || !::IsWindow(m_hWnd))
        return;
    for (int i = 0; i < count; ++i)
    {
        CZoTreeListCtrlItem* node = nodes[i];
        if (!node)
            continue;
        const int row = _insertRow(i, node, node->GetSubItemText(0), node->GetImage());
        if (row >= 0)
            _fillTexts(row, node);
    }
}

// --- Drawing ---------------------------------------------------------------------------------

void CZoTreeListCtrl::DrawSubitemText(CDC& dc, int item, int subItem, bool selected, CRect rect, DWORD)
{
    const CZoTreeListCtrlItem* node = _nodeOf(item);
    CFont* pBold = subItem == 0 && node && node->GetBold() ? ZoCachedFont(m_eBoldFont, m_eMonitorSize) : NULL;
    CFont* pOld = pBold ? dc.SelectObject(pBold) : NULL;
    // Texts stand on the list's background colour in every row state.
    CZoListCtrl::DrawSubitemText(dc, item, subItem, selected, rect, m_crBackground);
    if (pOld)
        dc.SelectObject(pOld);
}

// --- Sorting ---------------------------------------------------------------------------------

// The order is worked out here, sibling group by sibling group on the rows' prepared cells; the
// native list then only puts its rows in that order, each comparison a look-up of two places.
void CZoTreeListCtrl::SortOnColumn(int column, bool ascending)
{
    if (!m_bSortEnabled || !::IsWindow(m_hWnd) || column < 0 || _isLocked())
        return;
    CWaitCursor wait;
    const int count = m_rows.GetCount();
    if (count <= 0)
        return;
    TreeSortContext context;
    context.levels = m_nLevels;
    context.method = GetColumnSortChildMethod(column);
    context.ascending = ascending;
    context.column = column;
    context.path1.assign((size_t)m_nLevels, NULL);
    context.path2.assign((size_t)m_nLevels, NULL);
    // Each row's cell is read once. A sort on a later column leaves every node its row before the
    // sort as temp item number; the first column's sort leaves the numbers as they were.
    std::vector<SortRow> rows((size_t)count);
    std::vector<const CZoTreeListCtrlItem*> nodes((size_t)count);
    std::vector<int> previous((size_t)count, -1);
    for (int row = 0; row < count; ++row)
    {
        CZoTreeListCtrlItem* node = _nodeOf(row);
        rows[row].node = nodes[row] = node;
        if (!node)
            continue;
        previous[row] = column == 0 ? node->GetTempItemNumber() : row;
        node->SetTempItemNumber(row);
        rows[row].key = ZoMakeTreeSortKey(context.method, node->GetSubItemText(column));
    }
    context.rows = &rows;
    std::vector<int> parents;
    if (ZoTreeRowParents(nodes, parents))
    {
        // Every node takes its place after the sort as temp item number while the list sorts.
        const std::vector<int> order = ZoTreeSortedRowOrder(parents, &compareSiblingRows, &context);
        for (size_t place = 0; place < order.size(); ++place)
            const_cast<CZoTreeListCtrlItem*>(rows[(size_t)order[place]].node)->SetTempItemNumber((int)place);
        // The rows' new order is known, so the row index follows it at once instead of asking the
        // list for every row afterwards.
        if (_placeRows(order))
            m_rows.Reorder(order);
        else
            _reloadRows();
    }
    else
    {
        // Rows a host has added or changed itself: every pair compared by whole node paths.
        SortItems(&compareRowPaths, reinterpret_cast<DWORD_PTR>(&context));
    }
    for (int row = count - 1; row >= 0; --row)
        if (rows[row].node)
            const_cast<CZoTreeListCtrlItem*>(rows[row].node)->SetTempItemNumber(previous[row]);
}

// Straight to the platform's list. An order that turns many pairs of rows round is rewritten
// row by row in place, which stays linear where the list's own sort grows with the square of
// the rows (Wine's); the sort then only compares the places worked out for the nodes.
bool CZoTreeListCtrl::_placeRows(const std::vector<int>& order)
{
    const ZoListCall native = [this](UINT message, WPARAM wParam, LPARAM lParam) {
        return DefWindowProc(message, wParam, lParam);
    };
    if (ZoRewritingPays((int)order.size(), ZoCountInversions(order)) &&
        ZoRewriteRowsInOrder(m_hWnd, native, order, !m_bRedrawSuspended && (GetStyle() & WS_VISIBLE) != 0))
        return true;
    return DefWindowProc(LVM_SORTITEMS, 0, reinterpret_cast<LPARAM>(&compareByPlace)) != 0;
}

void CZoTreeListCtrl::OnHeaderItemClick(NMHDR* pNMHDR, LRESULT* pResult)
{
    *pResult = 0;
    _cancelEdit();
    if (!m_bSortEnabled)
    {
        *pResult = 1;
        return;
    }
    const int column = reinterpret_cast<const NMHEADERW*>(pNMHDR)->iItem;
    // As in the plain list: descending first, then turning round on the same column.
    int shown = -1;
    bool shownAscending = false;
    const bool ascending = GetSortOption(shown, shownAscending) && shown == column ? !shownAscending : false;
    SetSortOption(column, ascending);
    _notify(TLN_SortStarting, 0, false);
    SortOnColumn(column, ascending);
    _notify(TLN_SortDone, 0, false);
}

// --- Keyboard and mouse ----------------------------------------------------------------------

void CZoTreeListCtrl::_moveFocus(int from, int to)
{
    SetItemState(from, 0, kRowStates);
    SetItemState(to, kRowStates, kRowStates);
    SendMessage(LVM_ENSUREVISIBLE, (WPARAM)to, FALSE);
}

BOOL CZoTreeListCtrl::PreTranslateMessage(MSG* pMsg)
{
    // Keys typed into a child (the cell editor) are not the tree's.
    if (pMsg->message != WM_KEYDOWN || pMsg->hwnd != m_hWnd)
        return CZoListCtrl::PreTranslateMessage(pMsg);
    const int row = GetFocusedItemIndex();
    CZoTreeListCtrlItem* node = _nodeOf(row);
    if (!node)
        return CZoListCtrl::PreTranslateMessage(pMsg);
    const bool limit = _atLevelLimit(node);
    const bool expanded = node->IsExpanded();
    const int last = m_rows.GetCount() - 1;
    switch (pMsg->wParam)
    {
    case VK_SPACE:
    case VK_RETURN:
        if (!limit)
        {
            if (expanded)
                Collapse(row);
            else
                Expand(row);
        }
        return TRUE;
    case VK_ADD:
        if (!limit && !expanded)
            Expand(row);
        return TRUE;
    case VK_SUBTRACT:
        if (!limit && expanded)
            Collapse(row);
        return TRUE;
    case VK_UP:
        _moveFocus(row, std::max(row - 1, 0));
        return TRUE;
    case VK_DOWN:
        _moveFocus(row, std::min(row + 1, last));
        return TRUE;
    case VK_RIGHT:
        if (!limit)
        {
            if (!expanded)
                Expand(row);
            else
                _moveFocus(row, std::min(row + 1, last));
        }
        return TRUE;
    case VK_LEFT:
        if (expanded && !limit)
            Collapse(row);
        else
        {
            const CZoTreeListCtrlItem* parent = node->GetParentItem();
            const int parentRow =
                parent && parent != m_pRoot ? m_rows.Find(parent, std::max(row - parent->GetNumberOfChildren(), 0)) : -1;
            if (parentRow >= 0)
                _moveFocus(row, parentRow);
        }
        return TRUE;
    case VK_MULTIPLY:
        if (m_bExpandAllEnabled)
            ExpandAll(row);
        return CZoListCtrl::PreTranslateMessage(pMsg);
    case VK_F5:
        _notify(TLN_Refresh, 0, true);
        return TRUE;
    case VK_ESCAPE:
        _notify(TLN_Escape, VK_ESCAPE, true);
        CZoListCtrl::PreTranslateMessage(pMsg);
        return TRUE;
    default:
        return CZoListCtrl::PreTranslateMessage(pMsg);
    }
}

void CZoTreeListCtrl::OnLButtonDown(UINT nFlags, CPoint point)
{
    LVHITTESTINFO hit = {};
    hit.pt = point;
    SubItemHitTest(&hit);
    CHeaderCtrl* pHeader = GetHeaderCtrl();
    const int firstShown = pHeader ? pHeader->OrderToIndex(0) : 0;
    // A click on the expander toggles, whatever the level.
    if (hit.iItem >= 0 && hit.iSubItem == firstShown && (hit.flags & LVHT_ONITEMICON) && _nodeOf(hit.iItem))
    {
        _cancelEdit();
        _toggle(hit.iItem);
        return;
    }
    CZoListCtrl::OnLButtonDown(nFlags, point);
}

void CZoTreeListCtrl::OnLButtonDblClk(UINT nFlags, CPoint point)
{
    const int row = HitTest(point);
    const CZoTreeListCtrlItem* node = _nodeOf(row);
    if (node && !_atLevelLimit(node))
    {
        _toggle(row);
        return;
    }
    CZoListCtrl::OnLButtonDblClk(nFlags, point);
}

} // namespace ZoControls
