// The tree file's byte layout in one place: one node's record, the child counts between records
// and the string encoding of MFC's CArchive applied to a CFile directly. Everything is little-endian
// without padding.
//
//   record:  version 0x10000001 (4) | item data as 64-bit (8) | expanded (1) | depth level (4) |
//            last item (1) | image (4) | bold (1) | temp item number (4) | text count n (4) |
//            n strings
//   string:  [0xFF, 0xFFFE when wide] then the length: one byte when < 0xFF; else 0xFF and 16 bits
//            when < 0xFFFE; else 0xFF, 0xFFFF and 32 bits when < 0xFFFFFFFF; else 0xFF, 0xFFFF,
//            0xFFFFFFFF and 64 bits; then the characters (two bytes each when wide), no terminator
//   subtree: child count (4), then per child its record followed by the child's own subtree
//
// Writing builds bytes in a CByteArray; reading goes through CZoTreeFileReader, which knows how
// many bytes the file still holds and refuses any count or length that those bytes cannot hold,
// so a damaged file never makes it allocate more than the file's own size.
#pragma once
#include <afx.h>
#include <afxcoll.h>

#include "core/ZoCtrlExport.h"

namespace ZoControls {

// Version of the record layout this library writes; older records are refused when read.
const DWORD ZoTreeRecordVersion = 0x10000001;
// Bytes of a record without texts, and the least one child of a subtree can take: that record
// plus the child's own child count.
const UINT ZoTreeRecordFixedBytes = 31;
const UINT ZoTreeChildMinBytes = ZoTreeRecordFixedBytes + 4;

// One node's fields as the record stores them (its texts travel beside it).
struct ZoTreeRecord
{
    DWORD itemData;
    bool expanded;
    int depthLevel;
    bool lastItem;
    int image;
    bool bold;
    int tempItemNumber;
};

// Appends a 32-bit little-endian value (a child count).
ZOCTRL_API void ZoTreeAppendDword(CByteArray& out, DWORD value);
// Appends the wide marker and the length prefix of a string of `length` characters.
ZOCTRL_API void ZoTreeAppendStringPrefix(CByteArray& out, ULONGLONG length);
// Appends a whole string: its prefix and its UTF-16 characters.
ZOCTRL_API void ZoTreeAppendString(CByteArray& out, const CString& text);
// Appends one record with its texts.
ZOCTRL_API void ZoTreeAppendRecord(CByteArray& out, const ZoTreeRecord& record, const CStringArray& texts);

// Writes the collected bytes to the file and empties the array.
ZOCTRL_API void ZoTreeFlushBytes(CFile* file, CByteArray& bytes);

// Whether `count` items of at least `unitBytes` bytes each can fit into `remaining` bytes.
ZOCTRL_API bool ZoTreeFits(ULONGLONG count, ULONGLONG unitBytes, ULONGLONG remaining);

// Reads the tree file's values from the file's current position. Every failure raises
// CFileException with the file's path: endOfFile for a short read or for a count or length that
// the remaining bytes cannot hold, genericException for a length prefix that no string can have.
class ZOCTRL_API CZoTreeFileReader
{
public:
    // Takes the bytes from the current position to the end of the file as the budget.
    explicit CZoTreeFileReader(CFile* file);

    BYTE ReadByte();
    WORD ReadWord();
    DWORD ReadDword();
    ULONGLONG ReadQword();
    // A string with or without the wide marker; narrow characters are widened.
    CString ReadString();
    // A subtree's child count; below 1 means none (0 is returned).
    int ReadChildCount();
    // One record: false, with only the version read, when the record is older than this layout.
    bool ReadRecord(ZoTreeRecord& record, CStringArray& texts);

    ULONGLONG GetRemaining() const { return m_nRemaining; }

private:
    void _read(void* buffer, UINT count);
    // Throws CFileException with `cause` and the file's path.
    void _fail(int cause) const;
    // Fails with endOfFile unless `count` units of `unitBytes` are left.
    void _need(ULONGLONG count, ULONGLONG unitBytes) const;

    CFile* m_pFile;
    ULONGLONG m_nRemaining;
};

} // namespace ZoControls
