// CZoTreeRowIndex: the tree-list view's copy of which node each row of its list holds, kept in
// step with the native list, answering "the node of row r" and "the row of node n" without
// asking the window row by row.
//
// Rows live in blocks of a few hundred; each node knows its block through a hash map and each
// block its first row, so finding a node's row costs a scan of one block, and inserting or
// removing a row moves at most one block's entries. Large trees (100,000 rows) thus stay linear
// to build, expand, collapse and sort.
#pragma once
#include <afx.h>

#include <memory>
#include <unordered_map>
#include <vector>

#include "core/ZoCtrlExport.h"

namespace ZoControls {

class CZoTreeListCtrlItem;

class ZOCTRL_API CZoTreeRowIndex
{
public:
    CZoTreeRowIndex();
    ~CZoTreeRowIndex();

    int GetCount() const { return m_nCount; }
    // The node of `row`; null outside the rows (and for a row without node).
    CZoTreeListCtrlItem* GetAt(int row) const;
    // A row for `node` at `row` (clamped into 0..count): rows from there on move down by one.
    void Insert(int row, CZoTreeListCtrlItem* node);
    // Removes `row` (nothing outside the rows): the rows after it move up by one.
    void Remove(int row);
    void RemoveAll();
    // Every row at once, top to bottom.
    void Assign(const std::vector<CZoTreeListCtrlItem*>& rows);
    // The rows change places: row order[i] moves to row i. The nodes keep their entries, so a
    // sort costs no allocation per row; an order that is no permutation of the rows leaves them.
    void Reorder(const std::vector<int>& order);
    // The first row at or after max(startRow, 0) that holds `node`; -1 when none or node is null.
    int Find(const CZoTreeListCtrlItem* node, int startRow) const;

private:
    struct Block
    {
        std::vector<CZoTreeListCtrlItem*> rows;
        int first; // the first row of the block, valid below m_nStartsValid
    };

    // Brings the first rows of the blocks up to date and returns the block holding `row`.
    int _blockOf(int row) const;
    void _updateStarts() const;
    void _note(CZoTreeListCtrlItem* node, Block* block);
    // The blocks made afresh from `rows`; nodes already in the map keep their entries, pointed
    // at their new blocks, when `nodesKnown`.
    void _fillBlocks(const std::vector<CZoTreeListCtrlItem*>& rows, bool nodesKnown);
    void _split(int blockIndex);

    std::vector<std::unique_ptr<Block>> m_blocks;
    std::unordered_map<const CZoTreeListCtrlItem*, Block*> m_blockOfNode;
    int m_nCount;
    // Blocks from this index on may have a stale first row.
    mutable int m_nStartsValid;
    // A node shown in two rows (only a host writing item data itself does that): the map then
    // cannot tell the rows apart, and finding a row scans until the rows are replaced.
    bool m_bDuplicates;

    CZoTreeRowIndex(const CZoTreeRowIndex&);
    CZoTreeRowIndex& operator=(const CZoTreeRowIndex&);
};

} // namespace ZoControls
