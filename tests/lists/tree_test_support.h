// Helpers of the tree model tests: byte tables in and out of memory files, little-endian byte
// building by hand, the cause of a file exception, and small trees.
#pragma once
#include <afx.h>

#include <gtest/gtest.h>

#include <vector>

#include "lists/ZoTreeListCtrlItem.h"

namespace treetest {

using Bytes = std::vector<BYTE>;
using ZoControls::CZoTreeListCtrlItem;

// Everything written to a memory file.
inline Bytes ContentOf(CMemFile& file)
{
    Bytes bytes((size_t)file.GetLength());
    file.SeekToBegin();
    if (!bytes.empty())
        file.Read(bytes.data(), (UINT)bytes.size());
    return bytes;
}

// A fixed memory file over `bytes` (which must outlive it), positioned at its start.
class FileOver : public CMemFile
{
public:
    explicit FileOver(Bytes& bytes) : CMemFile(bytes.empty() ? NULL : bytes.data(), (UINT)bytes.size()) { }
};

// Appends little-endian values, as the expected side of byte tables.
inline void Put(Bytes& out, ULONGLONG value, int size)
{
    for (int i = 0; i < size; ++i)
        out.push_back((BYTE)(value >> (8 * i)));
}

// The record of a node without texts, written out field by field.
inline void PutRecord(Bytes& out, DWORD data, bool expanded, int depth, bool last, int image, bool bold,
                      int temp, DWORD version = 0x10000001)
{
    Put(out, version, 4);
    Put(out, data, 8);
    Put(out, expanded, 1);
    Put(out, (DWORD)depth, 4);
    Put(out, last, 1);
    Put(out, (DWORD)image, 4);
    Put(out, bold, 1);
    Put(out, (DWORD)temp, 4);
    Put(out, 0, 4);
}

// The cause of the CFileException that `operation` raises, or -1 when it raises none.
template <class F>
int FileCause(F operation)
{
    try
    {
        operation();
    }
    catch (CFileException* error)
    {
        const int cause = error->m_cause;
        error->Delete();
        return cause;
    }
    return -1;
}

// Appends a new child with a text in column 0.
inline CZoTreeListCtrlItem* AddChild(CZoTreeListCtrlItem& parent, const wchar_t* text, int image = -1)
{
    CZoTreeListCtrlItem* child = new CZoTreeListCtrlItem(&parent, image);
    child->SetSubItemText(0, text);
    parent.InsertChildItem(child);
    return child;
}

// The column-0 texts of the children, in list order, joined by spaces.
inline CString ChildTexts(const CZoTreeListCtrlItem& node)
{
    CString texts;
    for (POSITION pos = node.GetFirstChildPosition(); pos != NULL;)
    {
        if (!texts.IsEmpty())
            texts += L" ";
        texts += node.GetNextChild(pos)->GetSubItemText(0);
    }
    return texts;
}

} // namespace treetest
