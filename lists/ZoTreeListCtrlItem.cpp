// CZoTreeListCtrlItem: the tree-list node, its subtree walks and its file records.
#include "lists/ZoTreeListCtrlItem.h"

#include "lists/ZoTreeFile.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace ZoControls {

namespace {

// Bytes collected before a subtree being written goes to the file.
const INT_PTR kFlushBytes = 64 * 1024;

// Orders children by their rows.
bool RowBefore(const CZoTreeListCtrlItem* a, const CZoTreeListCtrlItem* b)
{
    return a->GetTempItemNumber() < b->GetTempItemNumber();
}

// Calls visit(node) on `top` and every node below it, without recursion.
template <class Visit>
void VisitSubtree(CZoTreeListCtrlItem* top, Visit visit)
{
    std::vector<CZoTreeListCtrlItem*> pending(1, top);
    while (!pending.empty())
    {
        CZoTreeListCtrlItem* node = pending.back();
        pending.pop_back();
        visit(node);
        for (POSITION pos = node->GetFirstChildPosition(); pos != NULL;)
            pending.push_back(node->GetNextChild(pos));
    }
}

} // namespace

CZoTreeListCtrlItem::CZoTreeListCtrlItem() : CZoTreeListCtrlItem(NULL, -1)
{
}

CZoTreeListCtrlItem::CZoTreeListCtrlItem(const CZoTreeListCtrlItem* parent, int image)
    : m_listChildren(10), m_pParent(parent), m_dwItemData(0), m_bExpanded(false), m_nDepthLevel(-1),
      m_bLastItem(false), m_nImage(image), m_bBold(false), m_nTempItemNumber(-1),
      m_nAncestorDepth(parent != NULL ? parent->m_nAncestorDepth + 1 : -1), m_pOwner(NULL), m_posInOwner(NULL),
      m_nAppends(0), m_nLastItemStamp(0)
{
    m_nDepthLevel = m_nAncestorDepth;
}

CZoTreeListCtrlItem::~CZoTreeListCtrlItem()
{
    _deleteChildren();
    // A node deleted directly, not through its parent, leaves its parent's list.
    if (m_pOwner != NULL)
        m_pOwner->_detach(this);
}

// ---- children ----

void CZoTreeListCtrlItem::_deleteChildren()
{
    // Each node is emptied before it is deleted, so no destructor recurses.
    std::vector<CZoTreeListCtrlItem*> pending;
    CZoTreeListCtrlItem* node = this;
    for (;;)
    {
        for (POSITION pos = node->m_listChildren.GetHeadPosition(); pos != NULL;)
        {
            CZoTreeListCtrlItem* child = node->m_listChildren.GetNext(pos);
            child->m_pOwner = NULL;
            child->m_posInOwner = NULL;
            pending.push_back(child);
        }
        node->m_listChildren.RemoveAll();
        if (node != this)
            delete node;
        if (pending.empty())
            break;
        node = pending.back();
        pending.pop_back();
    }
}

void CZoTreeListCtrlItem::_detach(CZoTreeListCtrlItem* child)
{
    m_listChildren.RemoveAt(child->m_posInOwner);
    child->m_pOwner = NULL;
    child->m_posInOwner = NULL;
}

void CZoTreeListCtrlItem::_appendChild(CZoTreeListCtrlItem* child)
{
    ++m_nAppends;
    child->m_pOwner = this;
    child->m_posInOwner = m_listChildren.AddTail(child);
    child->m_bLastItem = true;
    child->m_nLastItemStamp = m_nAppends;
}

void CZoTreeListCtrlItem::InsertChildItem(CZoTreeListCtrlItem* child)
{
    if (child == NULL || child->m_pOwner != NULL)
        return; // a node is listed by one parent only
    // A node cannot hold itself or its own ancestor. Only a node with children can be an
    // ancestor, so appending a new leaf never walks up the tree.
    if (child == this)
        return;
    if (!child->m_listChildren.IsEmpty())
        for (const CZoTreeListCtrlItem* up = m_pOwner; up != NULL; up = up->m_pOwner)
            if (up == child)
                return;
    _appendChild(child);
}

int CZoTreeListCtrlItem::DeleteChildItem(CZoTreeListCtrlItem* child)
{
    if (child == NULL || child->m_pOwner != this)
        return 0;
    _detach(child);
    delete child;
    return 1;
}

void CZoTreeListCtrlItem::Clear()
{
    _deleteChildren();
    m_arrSubItemTexts.SetSize(0);
}

POSITION CZoTreeListCtrlItem::GetFirstChildPosition() const
{
    return m_listChildren.GetHeadPosition();
}

CZoTreeListCtrlItem* CZoTreeListCtrlItem::GetNextChild(POSITION& pos) const
{
    return m_listChildren.GetNext(pos);
}

CZoTreeListCtrlItem* CZoTreeListCtrlItem::GetLastChild() const
{
    if (m_listChildren.IsEmpty())
        AfxThrowInvalidArgException();
    return m_listChildren.GetTail();
}

int CZoTreeListCtrlItem::GetChildrenCount()
{
    return GetNumberOfChildren();
}

int CZoTreeListCtrlItem::GetNumberOfChildren() const
{
    return (int)m_listChildren.GetCount();
}

BOOL CZoTreeListCtrlItem::HasNoChildren() const
{
    return m_listChildren.IsEmpty();
}

// ---- position in the tree ----

const CZoTreeListCtrlItem* CZoTreeListCtrlItem::GetParentItem() const
{
    return m_pParent;
}

bool CZoTreeListCtrlItem::IsRootItem() const
{
    return m_pParent != NULL && m_pParent->m_pParent == NULL;
}

bool CZoTreeListCtrlItem::IsLeafOf(const CZoTreeListCtrlItem* ancestor) const
{
    if (ancestor == NULL)
        return false;
    for (const CZoTreeListCtrlItem* up = m_pParent; up != NULL; up = up->m_pParent)
        if (up == ancestor)
            return true;
    return false;
}

int CZoTreeListCtrlItem::GetDepthLevel() const
{
    return m_nDepthLevel;
}

int CZoTreeListCtrlItem::CountDepthLevel() const
{
    int depth = -1;
    for (const CZoTreeListCtrlItem* up = m_pParent; up != NULL; up = up->m_pParent)
        ++depth;
    return depth;
}

// ---- flags and values ----

void CZoTreeListCtrlItem::Expand(bool expand)
{
    m_bExpanded = expand;
}

bool CZoTreeListCtrlItem::IsExpanded() const
{
    return m_bExpanded;
}

bool CZoTreeListCtrlItem::IsCollapsed() const
{
    return !m_bExpanded;
}

void CZoTreeListCtrlItem::ExpandAll(bool expand)
{
    VisitSubtree(this, [expand](CZoTreeListCtrlItem* node) { node->Expand(expand); });
}

CString CZoTreeListCtrlItem::GetSubItemText(int column) const
{
    if (column < 0)
        AfxThrowInvalidArgException();
    if (column >= m_arrSubItemTexts.GetSize())
        return CString();
    return m_arrSubItemTexts.GetAt(column);
}

void CZoTreeListCtrlItem::SetSubItemText(int column, const wchar_t* text)
{
    if (column < 0)
        return;
    m_arrSubItemTexts.SetAtGrow(column, text != NULL ? text : L"");
}

void CZoTreeListCtrlItem::SetImage(int image)
{
    m_nImage = image;
}

int CZoTreeListCtrlItem::GetImage() const
{
    return m_nImage;
}

void CZoTreeListCtrlItem::SetBold(bool bold)
{
    m_bBold = bold;
}

bool CZoTreeListCtrlItem::GetBold() const
{
    return m_bBold;
}

void CZoTreeListCtrlItem::SetItemData(DWORD data)
{
    m_dwItemData = data;
}

DWORD CZoTreeListCtrlItem::GetItemData() const
{
    return m_dwItemData;
}

void CZoTreeListCtrlItem::SetLastItem(bool last)
{
    m_bLastItem = last;
    m_nLastItemStamp = m_pOwner != NULL ? m_pOwner->m_nAppends : 0;
}

bool CZoTreeListCtrlItem::IsLastItem() const
{
    // A later append to the list this node is in has cleared the flag.
    return m_bLastItem && (m_pOwner == NULL || m_nLastItemStamp == m_pOwner->m_nAppends);
}

void CZoTreeListCtrlItem::SetTempItemNumber(int number)
{
    m_nTempItemNumber = number;
}

int CZoTreeListCtrlItem::GetTempItemNumber() const
{
    return m_nTempItemNumber;
}

void CZoTreeListCtrlItem::ResetTempItemNumber()
{
    VisitSubtree(this, [](CZoTreeListCtrlItem* node) { node->SetTempItemNumber(-1); });
}

void CZoTreeListCtrlItem::SortChildren()
{
    // Every expanded node with children is sorted on its own; the order in which they are
    // visited does not matter, as each compares only its own children's rows.
    std::vector<CZoTreeListCtrlItem*> pending(1, this);
    std::vector<CZoTreeListCtrlItem*> children;
    while (!pending.empty())
    {
        CZoTreeListCtrlItem* node = pending.back();
        pending.pop_back();
        if (!node->m_bExpanded || node->m_listChildren.IsEmpty())
            continue;
        children.clear();
        for (POSITION pos = node->GetFirstChildPosition(); pos != NULL;)
        {
            CZoTreeListCtrlItem* child = node->GetNextChild(pos);
            children.push_back(child);
            pending.push_back(child);
        }
        std::stable_sort(children.begin(), children.end(), RowBefore);
        // The list keeps its links; each position takes the child of its rank.
        size_t rank = 0;
        for (POSITION pos = node->GetFirstChildPosition(); pos != NULL; ++rank)
        {
            children[rank]->m_posInOwner = pos;
            node->m_listChildren.SetAt(pos, children[rank]);
            node->m_listChildren.GetNext(pos);
        }
    }
}

// ---- file records ----

void CZoTreeListCtrlItem::_appendRecord(CByteArray& out) const
{
    const ZoTreeRecord record = {m_dwItemData, m_bExpanded, m_nDepthLevel, IsLastItem(),
                                 m_nImage,     m_bBold,     m_nTempItemNumber};
    ZoTreeAppendRecord(out, record, m_arrSubItemTexts);
}

bool CZoTreeListCtrlItem::_readRecord(CZoTreeFileReader& reader)
{
    ZoTreeRecord record;
    CStringArray texts;
    if (!reader.ReadRecord(record, texts))
        return false;
    m_dwItemData = record.itemData;
    m_bExpanded = record.expanded;
    m_nDepthLevel = record.depthLevel;
    SetLastItem(record.lastItem);
    m_nImage = record.image;
    m_bBold = record.bold;
    m_nTempItemNumber = record.tempItemNumber;
    for (INT_PTR i = 0; i < texts.GetSize(); ++i)
        m_arrSubItemTexts.SetAtGrow(i, texts.GetAt(i));
    return true;
}

bool CZoTreeListCtrlItem::DumpToDisk(CFile* file) const
{
    if (file == NULL)
        return false;
    try
    {
        CByteArray bytes;
        _appendRecord(bytes);
        ZoTreeFlushBytes(file, bytes);
        return true;
    }
    catch (CException* error)
    {
        error->Delete();
        return false;
    }
}

bool CZoTreeListCtrlItem::LoadFromDisk(CFile* file)
{
    if (file == NULL)
        return false;
    try
    {
        CZoTreeFileReader reader(file);
        return _readRecord(reader);
    }
    catch (CException* error)
    {
        error->Delete();
        return false;
    }
}

void CZoTreeListCtrlItem::DumpChildNodes(CFile* file, CZoTreeListCtrlItem* node)
{
    if (file == NULL || node == NULL)
        return;
    struct Frame
    {
        const CZoTreeListCtrlItem* node;
        POSITION next;
    };
    CByteArray bytes;
    bytes.SetSize(0, kFlushBytes); // one block per flush, not a reallocation per record
    ZoTreeAppendDword(bytes, (DWORD)node->GetNumberOfChildren());
    std::vector<Frame> path(1, Frame{node, node->GetFirstChildPosition()});
    while (!path.empty())
    {
        Frame& top = path.back();
        if (top.next == NULL)
        {
            path.pop_back();
            continue;
        }
        const CZoTreeListCtrlItem* child = top.node->GetNextChild(top.next);
        child->_appendRecord(bytes);
        ZoTreeAppendDword(bytes, (DWORD)child->GetNumberOfChildren());
        if (bytes.GetSize() >= kFlushBytes)
            ZoTreeFlushBytes(file, bytes);
        path.push_back(Frame{child, child->GetFirstChildPosition()});
    }
    ZoTreeFlushBytes(file, bytes);
}

void CZoTreeListCtrlItem::LoadChildNodes(CFile* file, CZoTreeListCtrlItem* node)
{
    if (file == NULL || node == NULL)
        return;
    struct Frame
    {
        CZoTreeListCtrlItem* node;
        int left;
    };
    const INT_PTR childrenBefore = node->m_listChildren.GetCount();
    const ULONGLONG appendsBefore = node->m_nAppends;
    try
    {
        CZoTreeFileReader reader(file);
        std::vector<Frame> path(1, Frame{node, reader.ReadChildCount()});
        while (!path.empty())
        {
            Frame& top = path.back();
            if (top.left == 0)
            {
                path.pop_back();
                continue;
            }
            --top.left;
            CZoTreeListCtrlItem* parent = top.node;
            std::unique_ptr<CZoTreeListCtrlItem> child(new CZoTreeListCtrlItem(parent, -1));
            if (!child->_readRecord(reader))
                AfxThrowFileException(CFileException::genericException, -1, file->GetFilePath());
            parent->_appendChild(child.get());
            CZoTreeListCtrlItem* loaded = child.release();
            path.push_back(Frame{loaded, reader.ReadChildCount()});
        }
    }
    catch (...)
    {
        // Take back what this load added; the last item flags of the earlier children return
        // with the append count.
        while (node->m_listChildren.GetCount() > childrenBefore)
            node->DeleteChildItem(node->m_listChildren.GetTail());
        node->m_nAppends = appendsBefore;
        throw;
    }
}

} // namespace ZoControls
