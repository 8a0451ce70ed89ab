// CZoTreeListCtrlItem: one node of the tree a tree-list view shows. A node holds its row's texts
// per column, an image, a bold flag, a user data word, an expanded flag and its children in
// display order, which it owns. The view owns one invisible root (no parent); the nodes below it
// are the rows. A node writes itself and its subtree to a CFile and reads them back in the layout
// of lists/ZoTreeFile.h.
//
// Trees can be deep and wide (a file from outside may nest thousands of levels; a view may hang
// tens of thousands of children below one node), so every walk over a subtree is iterative, and
// appending or deleting a child does not visit its siblings.
#pragma once
#include <afx.h>
#include <afxcoll.h>
#include <afxtempl.h>

#include "core/ZoCtrlExport.h"

namespace ZoControls {

class CZoTreeFileReader;

class ZOCTRL_API CZoTreeListCtrlItem
{
public:
    CZoTreeListCtrlItem();
    CZoTreeListCtrlItem(const CZoTreeListCtrlItem* parent, int image);
    // Deletes the whole subtree.
    virtual ~CZoTreeListCtrlItem();

    // Children. InsertChildItem appends (null is ignored) and makes the new child the only one
    // flagged as last item; DeleteChildItem deletes a child and its subtree and returns 1, or 0
    // when the node is not a child of this one. The remaining children keep their last item
    // flags: the view marks the new last row itself.
    void InsertChildItem(CZoTreeListCtrlItem* child);
    int DeleteChildItem(CZoTreeListCtrlItem* child);
    // Deletes every child and forgets this node's own texts.
    void Clear();

    POSITION GetFirstChildPosition() const;
    CZoTreeListCtrlItem* GetNextChild(POSITION& pos) const;
    // The tail child; a node without children raises CInvalidArgException.
    CZoTreeListCtrlItem* GetLastChild() const;
    int GetChildrenCount();
    int GetNumberOfChildren() const;
    BOOL HasNoChildren() const;

    const CZoTreeListCtrlItem* GetParentItem() const;
    // True for a top-level node, a child of the invisible root (not for the root itself).
    bool IsRootItem() const;
    // True when `ancestor` is found walking up from this node's parent.
    bool IsLeafOf(const CZoTreeListCtrlItem* ancestor) const;
    // -1 for the root, 0 for its children, and so on; the stored value, which a loaded record
    // replaces, and the value counted from the parent chain.
    int GetDepthLevel() const;
    int CountDepthLevel() const;

    void Expand(bool expand);
    bool IsExpanded() const;
    bool IsCollapsed() const;
    // Sets the flag on the whole subtree, this node included.
    void ExpandAll(bool expand);

    // The text of a column; empty for a column never set. A negative column raises
    // CInvalidArgException; setting one is ignored.
    CString GetSubItemText(int column) const;
    void SetSubItemText(int column, const wchar_t* text);

    void SetImage(int image);
    int GetImage() const;
    void SetBold(bool bold);
    bool GetBold() const;
    void SetItemData(DWORD data);
    DWORD GetItemData() const;
    void SetLastItem(bool last);
    bool IsLastItem() const;
    // The node's row while the view sorts; -1 when it has none.
    void SetTempItemNumber(int number);
    int GetTempItemNumber() const;
    // -1 on this node and every descendant.
    void ResetTempItemNumber();

    // Orders the children of every expanded node of the subtree by temp item number, so that the
    // model follows rows the view has sorted. Children of collapsed nodes keep their order.
    void SortChildren();

    // This node's record alone; false on failure (a record older than the layout included).
    bool DumpToDisk(CFile* file) const;
    bool LoadFromDisk(CFile* file);
    // The subtree below `node` (not the node itself), pre-order. File errors raise
    // CFileException; loading also raises it for a record it cannot read, and then takes back
    // every child it had added, so that `node` is left as it was.
    static void DumpChildNodes(CFile* file, CZoTreeListCtrlItem* node);
    static void LoadChildNodes(CFile* file, CZoTreeListCtrlItem* node);

private:
    // Deletes every child without recursion.
    void _deleteChildren();
    void _detach(CZoTreeListCtrlItem* child);
    void _appendChild(CZoTreeListCtrlItem* child);
    // Throwing versions of the record I/O, shared with the subtree operations.
    void _appendRecord(CByteArray& out) const;
    bool _readRecord(CZoTreeFileReader& reader);

    CZoTreeListCtrlItem(const CZoTreeListCtrlItem&);
    CZoTreeListCtrlItem& operator=(const CZoTreeListCtrlItem&);

    CList<CZoTreeListCtrlItem*, CZoTreeListCtrlItem*> m_listChildren;
    const CZoTreeListCtrlItem* m_pParent;
    DWORD m_dwItemData;
    bool m_bExpanded;
    int m_nDepthLevel;
    bool m_bLastItem;
    int m_nImage;
    bool m_bBold;
    CStringArray m_arrSubItemTexts;
    int m_nTempItemNumber;

    // The number of ancestors - 1, fixed with the parent: a new node takes its parent's plus one
    // instead of walking the chain, which would make building a deep chain quadratic.
    int m_nAncestorDepth;
    // Bookkeeping that keeps appending and deleting independent of the number of siblings: the
    // node whose list holds this one and where, the number of appends to this node's list, and
    // that number at the time this node's last item flag was set (an append to the list clears
    // the flag of every child before it).
    CZoTreeListCtrlItem* m_pOwner;
    POSITION m_posInOwner;
    ULONGLONG m_nAppends;
    ULONGLONG m_nLastItemStamp;
};

} // namespace ZoControls
