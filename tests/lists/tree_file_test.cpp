// The tree file: exact bytes written, strings and records read, damaged files refused cleanly.
#include <afx.h>

#include <gtest/gtest.h>

#include "lists/ZoTreeFile.h"
#include "lists/ZoTreeListCtrlItem.h"
#include "tree_test_support.h"

using namespace ZoControls;
using namespace treetest;

namespace {

const int kEndOfFile = CFileException::endOfFile;
const int kGeneric = CFileException::genericException;

Bytes Prefix(ULONGLONG length)
{
    CByteArray out;
    ZoTreeAppendStringPrefix(out, length);
    return Bytes(out.GetData(), out.GetData() + out.GetSize());
}

// Reads one string from `bytes`; the string read, or the file exception's cause in `cause`.
CString ReadStringFrom(Bytes bytes, int* cause)
{
    FileOver file(bytes);
    CString text;
    *cause = FileCause([&] {
        CZoTreeFileReader reader(&file);
        text = reader.ReadString();
    });
    return text;
}

// root -> a (a1), b with values in every field
struct FileTree
{
    CZoTreeListCtrlItem root;
    CZoTreeListCtrlItem* a = AddChild(root, L"a", 4);
    CZoTreeListCtrlItem* b = AddChild(root, L"b", 5);
    CZoTreeListCtrlItem* a1 = AddChild(*a, L"a1", 6);
    FileTree()
    {
        a->SetSubItemText(2, L"column two");
        a->SetItemData(0xCAFE);
        a->SetBold(true);
        a->Expand(true);
        a1->SetItemData(7);
        b->SetTempItemNumber(3);
    }
};

Bytes Dumped(CZoTreeListCtrlItem& node)
{
    CMemFile file(64 * 1024); // grows in steps of this size
    CZoTreeListCtrlItem::DumpChildNodes(&file, &node);
    return ContentOf(file);
}

} // namespace

TEST(TreeFileWrite, AnEmptySubtreeIsItsZeroCount)
{
    CZoTreeListCtrlItem root;
    EXPECT_EQ(Dumped(root), (Bytes{0, 0, 0, 0}));
}

TEST(TreeFileWrite, ARecordIsItsFieldsThenItsWideTexts)
{
    CZoTreeListCtrlItem root;
    CZoTreeListCtrlItem* node = AddChild(root, L"A", 3);
    node->SetSubItemText(1, L"");
    node->SetItemData(0x12345678);
    node->Expand(true);
    node->SetBold(true);
    CMemFile file;
    ASSERT_TRUE(node->DumpToDisk(&file));
    const Bytes expected = {
        0x01, 0x00, 0x00, 0x10,                         // version
        0x78, 0x56, 0x34, 0x12, 0x00, 0x00, 0x00, 0x00, // item data, 64 bits
        0x01,                                           // expanded
        0x00, 0x00, 0x00, 0x00,                         // depth level 0
        0x01,                                           // last item
        0x03, 0x00, 0x00, 0x00,                         // image
        0x01,                                           // bold
        0xFF, 0xFF, 0xFF, 0xFF,                         // temp item number -1
        0x02, 0x00, 0x00, 0x00,                         // two texts
        0xFF, 0xFE, 0xFF, 0x01, 0x41, 0x00,             // wide marker, length 1, "A"
        0xFF, 0xFE, 0xFF, 0x00,                         // wide marker, length 0
    };
    EXPECT_EQ(ContentOf(file), expected);
}

TEST(TreeFileWrite, ASubtreeIsWrittenPreOrderWithEachNodesChildCount)
{
    CZoTreeListCtrlItem root;
    CZoTreeListCtrlItem* a = new CZoTreeListCtrlItem(&root, -1);
    CZoTreeListCtrlItem* a1 = new CZoTreeListCtrlItem(a, -1);
    CZoTreeListCtrlItem* b = new CZoTreeListCtrlItem(&root, -1);
    root.InsertChildItem(a);
    a->InsertChildItem(a1);
    root.InsertChildItem(b);
    a->SetItemData(1);
    a1->SetItemData(2);
    b->SetItemData(3);

    Bytes expected;
    Put(expected, 2, 4);
    PutRecord(expected, 1, false, 0, false, -1, false, -1);
    Put(expected, 1, 4);
    PutRecord(expected, 2, false, 1, true, -1, false, -1);
    Put(expected, 0, 4);
    PutRecord(expected, 3, false, 0, true, -1, false, -1);
    Put(expected, 0, 4);
    EXPECT_EQ(Dumped(root), expected);
}

TEST(TreeFileWrite, LengthPrefixesGrowAtTheirBoundaries)
{
    const struct
    {
        ULONGLONG length;
        Bytes prefix;
    } rows[] = {
        {0, {0xFF, 0xFE, 0xFF, 0x00}},
        {254, {0xFF, 0xFE, 0xFF, 0xFE}},
        {255, {0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0x00}},
        {0xFFFD, {0xFF, 0xFE, 0xFF, 0xFF, 0xFD, 0xFF}},
        {0xFFFE, {0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFE, 0xFF, 0x00, 0x00}},
        {0xFFFFFFFE, {0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFE, 0xFF, 0xFF, 0xFF}},
        {0xFFFFFFFF,
         {0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Prefix(row.length), row.prefix) << row.length;
}

TEST(TreeFileWrite, AFullFileMakesDumpToDiskFalse)
{
    CZoTreeListCtrlItem node;
    Bytes small(10);
    FileOver file(small); // cannot grow
    EXPECT_FALSE(node.DumpToDisk(&file));
    EXPECT_FALSE(node.DumpToDisk(nullptr));
}

TEST(TreeFileRead, StringsNarrowAndWideWithEveryPrefix)
{
    // A length of 0xFFFE after the wide marker is a length, not a second marker.
    const auto padded = [](Bytes b, size_t count, BYTE fill) {
        b.insert(b.end(), count, fill);
        return b;
    };
    const Bytes narrow255 = padded({0xFF, 0xFF, 0x00}, 255, 'n');
    const Bytes wideFFFE = padded({0xFF, 0xFE, 0xFF, 0xFF, 0xFE, 0xFF}, 2 * 0xFFFE, 'z');
    const struct
    {
        Bytes bytes;
        CString text;
    } rows[] = {
        {{0x00}, L""},
        {{0x03, 'a', 'b', 'c'}, L"abc"},
        {{0xFF, 0xFE, 0xFF, 0x02, 'h', 0, 'i', 0}, L"hi"},
        {{0xFF, 0xFE, 0xFF, 0x01, 0xAC, 0x20}, L"\x20AC"},
        {narrow255, CString(L'n', 255)},
        {{0xFF, 0xFF, 0xFF, 0x02, 0x00, 0x00, 0x00, 'o', 'k'}, L"ok"},
        {{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x02, 0, 0, 0, 0, 0, 0, 0, 'q', 'w'}, L"qw"},
        {{0xFF, 0xFE, 0xFF, 0xFF, 0x01, 0x00, 'w', 0}, L"w"},
        {wideFFFE, CString((wchar_t)0x7A7A, 0xFFFE)},
    };
    for (const auto& row : rows)
    {
        int cause = 0;
        EXPECT_EQ(ReadStringFrom(row.bytes, &cause), row.text);
        EXPECT_EQ(cause, -1);
    }
}

TEST(TreeFileRead, BrokenStringsRaiseTheirCause)
{
    const struct
    {
        Bytes bytes;
        int cause;
    } rows[] = {
        {{}, kEndOfFile},
        {{0x03, 'a', 'b'}, kEndOfFile},
        {{0xFF, 0xFE}, kEndOfFile},
        {{0xFF, 0xFE, 0xFF, 0x02, 'h', 0, 'i'}, kEndOfFile},
        {{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x7F}, kEndOfFile},                   // 2^31 - 1 bytes announced
        {{0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x00, 0x00, 0x40}, kEndOfFile}, // 2^30 wide characters
        {{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0x80, 0, 0, 0, 0}, kGeneric},
        {{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}, kGeneric},
    };
    for (const auto& row : rows)
    {
        int cause = 0;
        ReadStringFrom(row.bytes, &cause);
        EXPECT_EQ(cause, row.cause) << row.bytes.size();
    }
}

TEST(TreeFileRead, OlderRecordsAreRefusedAfterTheVersionAndNewerOnesRead)
{
    const struct
    {
        DWORD version;
        bool loads;
    } rows[] = {{0, false}, {0x10000000, false}, {0x10000001, true}, {0x10000002, true}, {0xFFFFFFFF, true}};
    for (const auto& row : rows)
    {
        Bytes bytes;
        PutRecord(bytes, 99, true, 4, true, 8, true, 12, row.version);
        FileOver file(bytes);
        CZoTreeListCtrlItem node;
        node.SetItemData(1);
        EXPECT_EQ(node.LoadFromDisk(&file), row.loads) << row.version;
        EXPECT_EQ(file.GetPosition(), row.loads ? bytes.size() : 4u);
        EXPECT_EQ(node.GetItemData(), row.loads ? 99u : 1u);
        EXPECT_EQ(node.GetDepthLevel(), row.loads ? 4 : -1);
        EXPECT_EQ(node.GetImage(), row.loads ? 8 : -1);
        EXPECT_EQ(node.GetTempItemNumber(), row.loads ? 12 : -1);
        EXPECT_EQ(node.IsExpanded() && node.GetBold() && node.IsLastItem(), row.loads);
    }
    EXPECT_FALSE(CZoTreeListCtrlItem().LoadFromDisk(nullptr));
}

TEST(TreeFileRead, ALoadedSubtreeEqualsTheDumpedOneWithOnlyLastChildrenFlagged)
{
    FileTree tree;
    tree.a->SetLastItem(true); // a stale flag in the middle of the list is not kept
    Bytes bytes = Dumped(tree.root);
    FileOver file(bytes);
    CZoTreeListCtrlItem copy;
    CZoTreeListCtrlItem::LoadChildNodes(&file, &copy);
    tree.a->SetLastItem(false);
    EXPECT_EQ(Dumped(copy), Dumped(tree.root));

    ASSERT_EQ(ChildTexts(copy), L"a b");
    POSITION pos = copy.GetFirstChildPosition();
    const CZoTreeListCtrlItem* a = copy.GetNextChild(pos);
    EXPECT_EQ(a->GetSubItemText(2), L"column two");
    EXPECT_EQ(a->GetItemData(), 0xCAFEu);
    EXPECT_TRUE(a->GetBold() && a->IsExpanded() && !a->IsLastItem());
    EXPECT_EQ(a->GetImage(), 4);
    EXPECT_EQ(ChildTexts(*a), L"a1");
    EXPECT_EQ(a->GetLastChild()->GetItemData(), 7u);
    EXPECT_EQ(a->GetLastChild()->GetDepthLevel(), 1);
    EXPECT_TRUE(a->GetLastChild()->IsLastItem());
    EXPECT_TRUE(copy.GetLastChild()->IsLastItem());
    EXPECT_EQ(copy.GetLastChild()->GetTempItemNumber(), 3);
}

TEST(TreeFileRead, EveryTruncationFailsAtTheEndOfFileAndTakesTheLoadBack)
{
    FileTree tree;
    const Bytes bytes = Dumped(tree.root);
    for (size_t size = 0; size < bytes.size(); ++size)
    {
        Bytes cut(bytes.begin(), bytes.begin() + size);
        FileOver file(cut);
        CZoTreeListCtrlItem target;
        CZoTreeListCtrlItem* kept = AddChild(target, L"kept");
        EXPECT_EQ(FileCause([&] { CZoTreeListCtrlItem::LoadChildNodes(&file, &target); }), kEndOfFile) << size;
        EXPECT_EQ(ChildTexts(target), L"kept");
        EXPECT_TRUE(kept->IsLastItem());
    }
}

TEST(TreeFileRead, CountsTheFileCannotHoldFailBeforeAnyNodeIsMade)
{
    const struct
    {
        Bytes bytes;
        int cause;
        int children;
    } rows[] = {
        {{0xFF, 0xFF, 0xFF, 0x7F}, kEndOfFile, 0},  // 2^31 - 1 children in no bytes
        {{0x02, 0, 0, 0, 1, 0, 0, 0x10}, kEndOfFile, 0},
        {{0xFF, 0xFF, 0xFF, 0xFF}, -1, 0},          // below 1: none
        {{0x00, 0x00, 0x00, 0x80}, -1, 0},
    };
    for (const auto& row : rows)
    {
        Bytes bytes = row.bytes;
        FileOver file(bytes);
        CZoTreeListCtrlItem target;
        EXPECT_EQ(FileCause([&] { CZoTreeListCtrlItem::LoadChildNodes(&file, &target); }), row.cause);
        EXPECT_EQ(target.GetNumberOfChildren(), row.children);
    }

    // A record announcing more texts than bytes are left.
    Bytes texts;
    PutRecord(texts, 0, false, 0, false, -1, false, -1);
    texts[27] = 0xFF;
    FileOver file(texts);
    CZoTreeListCtrlItem node;
    EXPECT_FALSE(node.LoadFromDisk(&file));
    EXPECT_EQ(file.GetPosition(), 31u);
}

TEST(TreeFileRead, AnOlderRecordInsideASubtreeFailsTheWholeLoad)
{
    Bytes bytes;
    Put(bytes, 2, 4);
    PutRecord(bytes, 1, false, 0, false, -1, false, -1);
    Put(bytes, 0, 4);
    PutRecord(bytes, 2, false, 0, false, -1, false, -1, 0x10000000);
    Put(bytes, 0, 4);
    FileOver file(bytes);
    CZoTreeListCtrlItem target;
    EXPECT_EQ(FileCause([&] { CZoTreeListCtrlItem::LoadChildNodes(&file, &target); }), kGeneric);
    EXPECT_TRUE(target.HasNoChildren());
}

TEST(TreeFileRead, ADiskFileRoundTripsAndNamesItselfInErrors)
{
    WCHAR folder[MAX_PATH], path[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    GetTempFileNameW(folder, L"zot", 0, path);
    FileTree tree;
    {
        CFile file(path, CFile::modeCreate | CFile::modeWrite);
        CZoTreeListCtrlItem::DumpChildNodes(&file, &tree.root);
    }
    {
        CFile file(path, CFile::modeRead);
        CZoTreeListCtrlItem copy;
        CZoTreeListCtrlItem::LoadChildNodes(&file, &copy);
        EXPECT_EQ(Dumped(copy), Dumped(tree.root));
    }
    {
        CFile file(path, CFile::modeReadWrite);
        file.SetLength(20);
        file.SeekToBegin();
        CZoTreeListCtrlItem copy;
        CString name;
        try
        {
            CZoTreeListCtrlItem::LoadChildNodes(&file, &copy);
        }
        catch (CFileException* error)
        {
            name = error->m_strFileName;
            error->Delete();
        }
        EXPECT_EQ(name, file.GetFilePath());
    }
    DeleteFileW(path);
}

TEST(TreeFileRead, DeepNestingLoadsWithoutRecursion)
{
    const int levels = 50000;
    CZoTreeListCtrlItem root;
    CZoTreeListCtrlItem* node = &root;
    for (int i = 0; i < levels; ++i)
        node = AddChild(*node, nullptr);
    Bytes bytes = Dumped(root);
    EXPECT_EQ(bytes.size(), 4u + levels * (ZoTreeChildMinBytes + 4)); // one empty text each
    FileOver file(bytes);
    CZoTreeListCtrlItem copy;
    CZoTreeListCtrlItem::LoadChildNodes(&file, &copy);
    const CZoTreeListCtrlItem* deepest = &copy;
    while (!deepest->HasNoChildren())
        deepest = deepest->GetLastChild();
    EXPECT_EQ(deepest->GetDepthLevel(), levels - 1);
}
