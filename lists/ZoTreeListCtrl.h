// CZoTreeListCtrl: a skinned report list whose first column is an expandable tree. The tree is a
// model of CZoTreeListCtrlItem nodes below one invisible root; a node's row is followed by the
// rows of its shown descendants, and each row's item data is the address of its node (a "node
// handle" in the operations below). Expanding, collapsing and sorting rebuild rows from the
// model; the parent window may supply children on demand.
//
// Notifications to the parent: WM_APP + 5 (ZoTreeListNotify) with a code in wParam:
//   0 TLN_GetChildren  sent    expanding a node without children: insert them now (lParam node)
//   1 TLN_Refresh      posted  F5 pressed
//   2 TLN_Expanded     sent    after every Expand and Collapse (lParam the focused node or 0)
//   3 TLN_Escape       posted  Escape pressed (lParam VK_ESCAPE)
//   4 TLN_SortStarting sent    a header click, before sorting
//   5 TLN_SortDone     sent    a header click, after sorting
#pragma once
#include <afxcmn.h>
#include <afxtempl.h>
#include <afxwin.h>

#include <vector>

#include "lists/ZoListCtrl.h"
#include "lists/ZoTreeListCtrlItem.h"
#include "lists/ZoTreeRowIndex.h"

namespace ZoControls {

const UINT ZoTreeListNotify = WM_APP + 5;

class ZOCTRL_API CZoTreeListCtrl : public CZoListCtrl
{
    DECLARE_DYNAMIC(CZoTreeListCtrl)

public:
    // wParam codes of ZoTreeListNotify.
    enum E_TreeListNotification
    {
        TLN_GetChildren = 0,
        TLN_Refresh = 1,
        TLN_Expanded = 2,
        TLN_Escape = 3,
        TLN_SortStarting = 4,
        TLN_SortDone = 5
    };
    // Expander images: collapsed and expanded, for top-level nodes and deeper ones. Images 4 to 6
    // (the boxed strip) are loaded but not chosen by the view.
    enum E_TreeListImage
    {
        TLI_TopCollapsed = 0,
        TLI_TopExpanded = 1,
        TLI_ChildCollapsed = 2,
        TLI_ChildExpanded = 3
    };

    CZoTreeListCtrl();
    ~CZoTreeListCtrl() override;

    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;
    BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;

    // A new node under `parentNode` (0: a top-level node at the end) with its row; `rowOut`
    // receives the row. Returns the new node.
    DWORD_PTR InsertNode(DWORD_PTR parentNode, const wchar_t* text, int image, int* rowOut = NULL);
    DWORD_PTR InsertNode(DWORD_PTR parentNode, const wchar_t* text, int* rowOut = NULL);
    // Deletes the row's node with its subtree and rows; then, with `deleteEmptyParents`, every
    // ancestor left without children.
    void DeleteNode(int row, bool deleteEmptyParents);
    void DeleteAllNodes();
    BOOL DeleteAllItems();
    // Empties the tree and sets the number of levels (at least 1).
    void Reset(int levels);
    int GetLevels() const { return m_nLevels; }

    // Shows the node's children (asking the parent for them when it has none); returns the number
    // of rows added.
    int Expand(int row);
    void Collapse(int row);

    BOOL SetItemText(int row, int column, const wchar_t* text);
    int SetItemBold(int row, int bold);
    int IsItemBold(int row) const;
    // The image the node was inserted with; -1 without node.
    int GetItemImageIndex(int row) const;
    // The expander image a row shows.
    int GetItemImageIndex(const LVITEMW& item) const override;
    // The node's user data word (0 without node).
    BOOL SetItemData(int row, DWORD data);
    BOOL SetItemData(DWORD_PTR node, DWORD data);
    DWORD GetItemData(int row) const;
    static DWORD GetItemData(DWORD_PTR node);

    DWORD_PTR GetItemNode(int row) const;
    // The first row at or after max(startRow, 0) showing `node`; -1 when none or node is 0.
    int LookforItemNumber(DWORD_PTR node, int startRow) const;
    // 0 for a top-level node (whose parent is the invisible root) and for 0.
    DWORD_PTR GetParentNode(DWORD_PTR node) const;
    POSITION GetFirstChildPosition(DWORD_PTR node) const;
    DWORD_PTR GetNextChild(DWORD_PTR node, POSITION& pos) const;
    BOOL HasNoChildren(DWORD_PTR node) const;
    bool IsExpand(DWORD_PTR node) const;
    // The depth: 0 for top-level nodes, -1 for 0.
    static int GetNodeLevel(DWORD_PTR node);
    int IsRootItemOfTreeList(DWORD_PTR node) const;

    // The node of the selected row with the focus, or 0; `rowOut` gets its row or -1.
    DWORD_PTR GetFocusedItem(int* rowOut = NULL) const;
    // Makes `row` the only selected row and the focus row, scrolled into view; 1 when that
    // changed anything.
    int SetItemFocus(int row);
    // The selected nodes without those below another selected node, shallowest first, in row
    // order within a depth. Returns their number.
    int GetSelectedItems(CList<DWORD_PTR, const DWORD_PTR&>& nodes) const;
    // Calls `callback(depth, user data)` for every node, children before their parent; returns
    // the number of nodes. The callback frees what the data refers to; the data is left as it is.
    int ClearAllUserData(void (*callback)(int depth, DWORD itemData));

    void EnableExpandAll(bool enable) { m_bExpandAllEnabled = enable; }
    void SetKeepChildData(bool keep) { m_bKeepChildData = keep; }
    bool GetKeepChildData() const { return m_bKeepChildData; }

    void DrawSubitemText(CDC& dc, int item, int subItem, bool selected, CRect rect, DWORD backColour) override;
    void SortOnColumn(int column, bool ascending) override;

protected:
    void PreSubclassWindow() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    DWORD_PTR InsertRootNode(const wchar_t* text, int image, int* rowOut = NULL);
    // Expands the row's subtree down to the level limit.
    void ExpandAll(int row);
    bool IsRootNode(DWORD_PTR node) const;

    // Rebuilding rows from the model: every node's temp item number becomes its row (-1 for nodes
    // without one); the children of `node` whose numbers lie in 0 .. count - 1 are gathered into
    // `nodes` at those places; `count` rows are added for them in that order.
    void AssignListCtrlIndexToTreeItem();
    void MakeListForAddTreeItems(CZoTreeListCtrlItem* node, CZoTreeListCtrlItem** nodes, int count);
    void AddTreeItemsToListCtrl(CZoTreeListCtrlItem** nodes, int count);

    afx_msg void OnDestroy();
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnHeaderItemClick(NMHDR* pNMHDR, LRESULT* pResult);
    ZO_DECLARE_MENUXP_FORWARDING()
    DECLARE_MESSAGE_MAP()

    int m_nLevels;
    CZoTreeListCtrlItem* m_pRoot;
    bool m_bExpandAllEnabled;
    bool m_bKeepChildData;
    CImageList m_imageList;
    E_ZoThemeFont m_eBoldFont;
    // Which node each row holds, in step with the native list.
    CZoTreeRowIndex m_rows;
    // The view has made the native list share its image lists; whether the host had.
    bool m_bImageListsShared;
    bool m_bHostSharesImageLists;

private:
    void _initTree();
    void _destroyForeignImageLists();
    CZoTreeListCtrlItem* _nodeOf(int row) const { return m_rows.GetAt(row); }
    bool _atLevelLimit(const CZoTreeListCtrlItem* node) const;
    // Inserts a row for `node` with its column 0 text (and `image` when >= 0).
    int _insertRow(int row, CZoTreeListCtrlItem* node, const wchar_t* text, int image);
    void _fillTexts(int row, const CZoTreeListCtrlItem* node);
    // False when the row stayed or the window went in a handler of the deletion.
    bool _deleteRow(int row);
    // Whether `row` shows a node deeper than `depth`.
    bool _isDescendantRow(int row, int depth) const;
    void _toggle(int row);
    int _expand(int row);
    void _moveFocus(int from, int to);
    void _notify(E_TreeListNotification code, LPARAM lParam, bool post);
    // Rows changed under the native list's own handling: the row index follows.
    void _trackRowMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT result);
    void _reloadRows();
    // Puts the rows in `order` (row order[i] to row i); false when the list refused.
    bool _placeRows(const std::vector<int>& order);
    // Deletes the rows still showing a node below `top` (and `top`'s own with `withTop`): rows a
    // parent's handler put back or left while the view took them down, before their nodes go.
    void _dropRowsUnder(const CZoTreeListCtrlItem* top, bool withTop);
    // Deletes the rows showing nodes below `top` that a parent's handler left while the view
    // deleted `deleted` rows since `editsBefore`; nothing when only the view's own edits happened.
    void _dropLeftRows(const CZoTreeListCtrlItem* top, bool withTop, unsigned editsBefore, unsigned deleted);

    // While the view adds or takes down rows for nodes it holds, while the native list deletes
    // rows, and once the window goes, a parent's handlers of the list's notifications cannot
    // change the tree (such calls do nothing): no node the view holds is freed under it.
    bool _isLocked() const { return m_nBusy > 0 || m_nDeletingRows > 0 || m_bGoing; }
    int m_nBusy;
    // Every change of the rows counts here, the view's own and those a parent makes meanwhile.
    unsigned m_nRowEdits;

    CZoTreeListCtrl(const CZoTreeListCtrl&);
    CZoTreeListCtrl& operator=(const CZoTreeListCtrl&);
};

} // namespace ZoControls
