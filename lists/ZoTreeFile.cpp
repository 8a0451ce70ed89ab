// The tree file's byte layout: writing into byte arrays, reading through a bounded reader.
#include "lists/ZoTreeFile.h"

#include <string.h>

namespace ZoControls {

namespace {

// Length prefix values of the string encoding.
const BYTE kByteEscape = 0xFF;
const WORD kWideMarker = 0xFFFE;
const WORD kWordEscape = 0xFFFF;
const DWORD kDwordEscape = 0xFFFFFFFF;
// A 64-bit length must stay below this: no string holds more characters.
const ULONGLONG kLongestString = 0x80000000;

void AppendBytes(CByteArray& out, const void* bytes, INT_PTR count)
{
    const INT_PTR at = out.GetSize();
    out.SetSize(at + count);
    memcpy(out.GetData() + at, bytes, (size_t)count);
}

// Stores `size` bytes of `value`, lowest first, and returns the byte after them.
BYTE* PutLittleEndian(BYTE* at, ULONGLONG value, int size)
{
    for (int i = 0; i < size; ++i)
        *at++ = (BYTE)(value >> (8 * i));
    return at;
}

} // namespace

void ZoTreeAppendDword(CByteArray& out, DWORD value)
{
    BYTE bytes[4];
    AppendBytes(out, bytes, PutLittleEndian(bytes, value, 4) - bytes);
}

void ZoTreeAppendStringPrefix(CByteArray& out, ULONGLONG length)
{
    // Marker (3) + escapes (1 + 2 + 4) + the widest length (8).
    BYTE bytes[18];
    BYTE* at = PutLittleEndian(bytes, kByteEscape, 1);
    at = PutLittleEndian(at, kWideMarker, 2);
    if (length < kByteEscape)
        at = PutLittleEndian(at, length, 1);
    else
    {
        at = PutLittleEndian(at, kByteEscape, 1);
        if (length < kWideMarker)
            at = PutLittleEndian(at, length, 2);
        else
        {
            at = PutLittleEndian(at, kWordEscape, 2);
            if (length < kDwordEscape)
                at = PutLittleEndian(at, length, 4);
            else
            {
                at = PutLittleEndian(at, kDwordEscape, 4);
                at = PutLittleEndian(at, length, 8);
            }
        }
    }
    AppendBytes(out, bytes, at - bytes);
}

void ZoTreeAppendString(CByteArray& out, const CString& text)
{
    const int length = text.GetLength();
    ZoTreeAppendStringPrefix(out, (ULONGLONG)length);
    const INT_PTR at = out.GetSize();
    out.SetSize(at + (INT_PTR)length * 2);
    BYTE* bytes = out.GetData() + at;
    for (int i = 0; i < length; ++i)
        bytes = PutLittleEndian(bytes, text[i], 2);
}

void ZoTreeAppendRecord(CByteArray& out, const ZoTreeRecord& record, const CStringArray& texts)
{
    BYTE bytes[ZoTreeRecordFixedBytes];
    BYTE* at = PutLittleEndian(bytes, ZoTreeRecordVersion, 4);
    at = PutLittleEndian(at, record.itemData, 8);
    at = PutLittleEndian(at, record.expanded ? 1 : 0, 1);
    at = PutLittleEndian(at, (DWORD)record.depthLevel, 4);
    at = PutLittleEndian(at, record.lastItem ? 1 : 0, 1);
    at = PutLittleEndian(at, (DWORD)record.image, 4);
    at = PutLittleEndian(at, record.bold ? 1 : 0, 1);
    at = PutLittleEndian(at, (DWORD)record.tempItemNumber, 4);
    at = PutLittleEndian(at, (DWORD)texts.GetSize(), 4);
    AppendBytes(out, bytes, at - bytes);
    for (INT_PTR i = 0; i < texts.GetSize(); ++i)
        ZoTreeAppendString(out, texts.GetAt(i));
}

void ZoTreeFlushBytes(CFile* file, CByteArray& bytes)
{
    if (bytes.GetSize() > 0)
        file->Write(bytes.GetData(), (UINT)bytes.GetSize());
    bytes.SetSize(0);
}

bool ZoTreeFits(ULONGLONG count, ULONGLONG unitBytes, ULONGLONG remaining)
{
    return unitBytes == 0 || count <= remaining / unitBytes;
}

// ---- reading ----

CZoTreeFileReader::CZoTreeFileReader(CFile* file) : m_pFile(file), m_nRemaining(0)
{
    const ULONGLONG length = file->GetLength();
    const ULONGLONG position = file->GetPosition();
    m_nRemaining = position < length ? length - position : 0;
}

void CZoTreeFileReader::_fail(int cause) const
{
    AfxThrowFileException(cause, -1, m_pFile->GetFilePath());
}

void CZoTreeFileReader::_need(ULONGLONG count, ULONGLONG unitBytes) const
{
    if (!ZoTreeFits(count, unitBytes, m_nRemaining))
        _fail(CFileException::endOfFile);
}

void CZoTreeFileReader::_read(void* buffer, UINT count)
{
    _need(count, 1);
    if (count == 0)
        return;
    const UINT got = m_pFile->Read(buffer, count);
    m_nRemaining -= got < count ? got : count;
    if (got != count)
        _fail(CFileException::endOfFile);
}

BYTE CZoTreeFileReader::ReadByte()
{
    BYTE value = 0;
    _read(&value, 1);
    return value;
}

WORD CZoTreeFileReader::ReadWord()
{
    BYTE bytes[2];
    _read(bytes, 2);
    return (WORD)(bytes[0] | (bytes[1] << 8));
}

DWORD CZoTreeFileReader::ReadDword()
{
    const DWORD low = ReadWord();
    return low | ((DWORD)ReadWord() << 16);
}

ULONGLONG CZoTreeFileReader::ReadQword()
{
    const ULONGLONG low = ReadDword();
    return low | ((ULONGLONG)ReadDword() << 32);
}

CString CZoTreeFileReader::ReadString()
{
    // The length prefix; the wide marker may come first, once, and the prefix then starts over.
    const auto longLength = [this](WORD word) -> ULONGLONG {
        if (word != kWordEscape)
            return word;
        const DWORD dword = ReadDword();
        if (dword != kDwordEscape)
            return dword;
        const ULONGLONG qword = ReadQword();
        if (qword >= kLongestString)
            _fail(CFileException::genericException);
        return qword;
    };
    bool wide = false;
    ULONGLONG length = ReadByte();
    if (length == kByteEscape)
    {
        WORD word = ReadWord();
        if (word == kWideMarker)
        {
            wide = true;
            length = ReadByte();
            if (length == kByteEscape)
                word = ReadWord();
        }
        if (length == kByteEscape)
            length = longLength(word);
    }
    if (length == 0)
        return CString();
    _need(length, wide ? 2 : 1);
    if (length >= kLongestString)
        _fail(CFileException::genericException);

    const int count = (int)length;
    if (wide)
    {
        CString text;
        wchar_t* chars = text.GetBuffer(count);
        BYTE* bytes = reinterpret_cast<BYTE*>(chars);
        _read(bytes, (UINT)count * 2);
        for (int i = 0; i < count; ++i)
            chars[i] = (wchar_t)(bytes[2 * i] | (bytes[2 * i + 1] << 8));
        text.ReleaseBuffer(count);
        return text;
    }
    CByteArray narrow;
    narrow.SetSize(count);
    _read(narrow.GetData(), (UINT)count);
    return CString(reinterpret_cast<const char*>(narrow.GetData()), count);
}

int CZoTreeFileReader::ReadChildCount()
{
    const int count = (int)ReadDword();
    if (count < 1)
        return 0;
    _need((ULONGLONG)count, ZoTreeChildMinBytes);
    return count;
}

bool CZoTreeFileReader::ReadRecord(ZoTreeRecord& record, CStringArray& texts)
{
    if (ReadDword() < ZoTreeRecordVersion)
        return false;
    record.itemData = (DWORD)ReadQword();
    record.expanded = ReadByte() != 0;
    record.depthLevel = (int)ReadDword();
    record.lastItem = ReadByte() != 0;
    record.image = (int)ReadDword();
    record.bold = ReadByte() != 0;
    record.tempItemNumber = (int)ReadDword();
    const DWORD count = ReadDword();
    _need(count, 1); // every text takes at least its one-byte length
    for (DWORD i = 0; i < count; ++i)
        texts.SetAtGrow((INT_PTR)i, ReadString());
    return true;
}

} // namespace ZoControls
