// CZoTreeRowIndex: rows in blocks, nodes mapped to their blocks.
#include "lists/ZoTreeRowIndex.h"

#include <algorithm>

namespace ZoControls {

namespace {

// A block splits in two when it grows past this many rows; Assign fills blocks half full.
const size_t kMaxBlockRows = 512;
const size_t kFillBlockRows = kMaxBlockRows / 2;

} // namespace

CZoTreeRowIndex::CZoTreeRowIndex() : m_nCount(0), m_nStartsValid(0), m_bDuplicates(false) { }

CZoTreeRowIndex::~CZoTreeRowIndex() { }

void CZoTreeRowIndex::_updateStarts() const
{
    int first = 0;
    if (m_nStartsValid > 0)
    {
        const Block& previous = *m_blocks[m_nStartsValid - 1];
        first = previous.first + (int)previous.rows.size();
    }
    for (size_t i = (size_t)m_nStartsValid; i < m_blocks.size(); ++i)
    {
        m_blocks[i]->first = first;
        first += (int)m_blocks[i]->rows.size();
    }
    m_nStartsValid = (int)m_blocks.size();
}

int CZoTreeRowIndex::_blockOf(int row) const
{
    _updateStarts();
    // The last block whose first row is at or before `row`.
    int low = 0, high = (int)m_blocks.size() - 1;
    while (low < high)
    {
        const int middle = (low + high + 1) / 2;
        if (m_blocks[middle]->first <= row)
            low = middle;
        else
            high = middle - 1;
    }
    return low;
}

CZoTreeListCtrlItem* CZoTreeRowIndex::GetAt(int row) const
{
    if (row < 0 || row >= m_nCount)
        return NULL;
    const Block& block = *m_blocks[_blockOf(row)];
    return block.rows[row - block.first];
}

void CZoTreeRowIndex::_note(CZoTreeListCtrlItem* node, Block* block)
{
    if (!node)
        return;
    auto inserted = m_blockOfNode.insert(std::make_pair(node, block));
    if (!inserted.second)
        m_bDuplicates = true;
}

void CZoTreeRowIndex::Insert(int row, CZoTreeListCtrlItem* node)
{
    row = std::max(0, std::min(row, m_nCount));
    if (m_blocks.empty())
    {
        m_blocks.emplace_back(new Block());
        m_blocks[0]->first = 0;
        m_nStartsValid = 1;
    }
    // A row after the last goes to the last block.
    const int index = row == m_nCount ? (int)m_blocks.size() - 1 : _blockOf(row);
    _updateStarts();
    Block& block = *m_blocks[index];
    block.rows.insert(block.rows.begin() + (row - block.first), node);
    ++m_nCount;
    _note(node, &block);
    m_nStartsValid = std::min(m_nStartsValid, index + 1);
    if (block.rows.size() > kMaxBlockRows)
        _split(index);
}

void CZoTreeRowIndex::_split(int blockIndex)
{
    Block& block = *m_blocks[blockIndex];
    std::unique_ptr<Block> second(new Block());
    const size_t half = block.rows.size() / 2;
    second->rows.assign(block.rows.begin() + half, block.rows.end());
    block.rows.resize(half);
    if (!m_bDuplicates)
        for (CZoTreeListCtrlItem* node : second->rows)
            if (node)
                m_blockOfNode[node] = second.get();
    m_blocks.insert(m_blocks.begin() + blockIndex + 1, std::move(second));
    m_nStartsValid = std::min(m_nStartsValid, blockIndex + 1);
}

void CZoTreeRowIndex::Remove(int row)
{
    if (row < 0 || row >= m_nCount)
        return;
    const int index = _blockOf(row);
    Block& block = *m_blocks[index];
    const auto at = block.rows.begin() + (row - block.first);
    CZoTreeListCtrlItem* node = *at;
    block.rows.erase(at);
    --m_nCount;
    if (node && !m_bDuplicates)
        m_blockOfNode.erase(node);
    // An emptied block goes; the blocks after the change have stale first rows.
    const bool emptied = block.rows.empty();
    if (emptied)
        m_blocks.erase(m_blocks.begin() + index);
    m_nStartsValid = std::min(m_nStartsValid, emptied ? index : index + 1);
}

void CZoTreeRowIndex::RemoveAll()
{
    m_blocks.clear();
    m_blockOfNode.clear();
    m_nCount = 0;
    m_nStartsValid = 0;
    m_bDuplicates = false;
}

void CZoTreeRowIndex::Assign(const std::vector<CZoTreeListCtrlItem*>& rows)
{
    RemoveAll();
    m_blockOfNode.reserve(rows.size());
    _fillBlocks(rows, false);
    m_nCount = (int)rows.size();
}

void CZoTreeRowIndex::_fillBlocks(const std::vector<CZoTreeListCtrlItem*>& rows, bool nodesKnown)
{
    m_blocks.clear();
    for (size_t i = 0; i < rows.size(); i += kFillBlockRows)
    {
        std::unique_ptr<Block> block(new Block());
        block->rows.assign(rows.begin() + i, rows.begin() + std::min(rows.size(), i + kFillBlockRows));
        for (CZoTreeListCtrlItem* node : block->rows)
        {
            if (!nodesKnown)
            {
                _note(node, block.get());
                continue;
            }
            const auto entry = m_blockOfNode.find(node);
            if (entry != m_blockOfNode.end())
                entry->second = block.get();
        }
        m_blocks.push_back(std::move(block));
    }
    m_nStartsValid = 0;
}

void CZoTreeRowIndex::Reorder(const std::vector<int>& order)
{
    if ((int)order.size() != m_nCount)
        return;
    std::vector<bool> taken(order.size(), false);
    for (int row : order)
    {
        if (row < 0 || row >= m_nCount || taken[(size_t)row])
            return;
        taken[(size_t)row] = true;
    }
    std::vector<CZoTreeListCtrlItem*> rows;
    rows.reserve(order.size());
    for (const std::unique_ptr<Block>& block : m_blocks)
        rows.insert(rows.end(), block->rows.begin(), block->rows.end());
    std::vector<CZoTreeListCtrlItem*> placed(order.size());
    for (size_t place = 0; place < order.size(); ++place)
        placed[place] = rows[(size_t)order[place]];
    // With a node in two rows the map holds one block per node only: built afresh.
    if (m_bDuplicates)
    {
        Assign(placed);
        return;
    }
    _fillBlocks(placed, true);
}

int CZoTreeRowIndex::Find(const CZoTreeListCtrlItem* node, int startRow) const
{
    if (!node)
        return -1;
    startRow = std::max(startRow, 0);
    if (m_bDuplicates)
    {
        for (int row = startRow; row < m_nCount; ++row)
            if (GetAt(row) == node)
                return row;
        return -1;
    }
    const auto found = m_blockOfNode.find(node);
    if (found == m_blockOfNode.end())
        return -1;
    _updateStarts();
    const Block& block = *found->second;
    const auto at = std::find(block.rows.begin(), block.rows.end(), node);
    if (at == block.rows.end())
        return -1;
    const int row = block.first + (int)(at - block.rows.begin());
    return row >= startRow ? row : -1;
}

} // namespace ZoControls
