// CMemFile: a CFile over a block of memory that grows in steps of m_nGrowBytes.
#include <afx.h>

IMPLEMENT_DYNAMIC(CMemFile, CFile)

CMemFile::CMemFile(UINT nGrowBytes)
    : m_nGrowBytes(nGrowBytes), m_nPosition(0), m_nBufferSize(0), m_nFileSize(0), m_lpBuffer(NULL),
      m_bAutoDelete(TRUE)
{
}

CMemFile::CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes)
    : m_nGrowBytes(0), m_nPosition(0), m_nBufferSize(0), m_nFileSize(0), m_lpBuffer(NULL),
      m_bAutoDelete(FALSE)
{
    Attach(lpBuffer, nBufferSize, nGrowBytes);
}

CMemFile::~CMemFile()
{
    if (m_lpBuffer != NULL && m_bAutoDelete)
        free(m_lpBuffer); // not through the virtual Free: a derived class is already gone
    m_lpBuffer = NULL;
}

void CMemFile::Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes)
{
    if (lpBuffer == NULL && nBufferSize != 0)
        AfxThrowInvalidArgException();
    if (m_lpBuffer != NULL && m_bAutoDelete)
        Free(m_lpBuffer);
    m_lpBuffer = lpBuffer;
    m_nBufferSize = nBufferSize;
    m_nGrowBytes = nGrowBytes;
    // A fixed buffer is the file's contents; a growable one is written from scratch.
    m_nFileSize = nGrowBytes == 0 ? nBufferSize : 0;
    m_nPosition = 0;
    m_bAutoDelete = FALSE;
}

BYTE* CMemFile::Detach()
{
    BYTE* lpBuffer = m_lpBuffer;
    m_lpBuffer = NULL;
    m_nFileSize = 0;
    m_nBufferSize = 0;
    m_nPosition = 0;
    return lpBuffer;
}

ULONGLONG CMemFile::GetPosition() const
{
    return m_nPosition;
}

ULONGLONG CMemFile::GetLength() const
{
    return m_nFileSize;
}

ULONGLONG CMemFile::Seek(LONGLONG lOff, UINT nFrom)
{
    LONGLONG base;
    switch (nFrom)
    {
    case begin:
        base = 0;
        break;
    case current:
        base = (LONGLONG)m_nPosition;
        break;
    case end:
        base = (LONGLONG)m_nFileSize;
        break;
    default:
        AfxThrowFileException(CFileException::badSeek, ERROR_INVALID_PARAMETER);
        return m_nPosition;
    }
    const LONGLONG position = base + lOff;
    if (position < 0 || (ULONGLONG)position > (ULONGLONG)(SIZE_T)-1)
        AfxThrowFileException(CFileException::badSeek);
    m_nPosition = (SIZE_T)position;
    return m_nPosition;
}

void CMemFile::SetLength(ULONGLONG dwNewLen)
{
    if (dwNewLen > (ULONGLONG)(SIZE_T)-1)
        AfxThrowMemoryException();
    if ((SIZE_T)dwNewLen > m_nBufferSize)
        GrowFile((SIZE_T)dwNewLen);
    if ((SIZE_T)dwNewLen < m_nPosition)
        m_nPosition = (SIZE_T)dwNewLen;
    m_nFileSize = (SIZE_T)dwNewLen;
}

UINT CMemFile::Read(void* lpBuf, UINT nCount)
{
    if (nCount == 0 || m_nPosition >= m_nFileSize)
        return 0;
    if (lpBuf == NULL)
        AfxThrowInvalidArgException();
    SIZE_T nRead = m_nFileSize - m_nPosition;
    if (nRead > nCount)
        nRead = nCount;
    Memcpy((BYTE*)lpBuf, m_lpBuffer + m_nPosition, nRead);
    m_nPosition += nRead;
    return (UINT)nRead;
}

void CMemFile::Write(const void* lpBuf, UINT nCount)
{
    if (nCount == 0)
        return;
    if (lpBuf == NULL)
        AfxThrowInvalidArgException();
    if (nCount > (SIZE_T)-1 - m_nPosition)
        AfxThrowFileException(CFileException::badSeek);
    const SIZE_T nEnd = m_nPosition + nCount;
    if (nEnd > m_nBufferSize)
        GrowFile(nEnd);
    Memcpy(m_lpBuffer + m_nPosition, (const BYTE*)lpBuf, nCount);
    m_nPosition = nEnd;
    if (nEnd > m_nFileSize)
        m_nFileSize = nEnd;
}

CFile* CMemFile::Duplicate() const
{
    AfxThrowNotSupportedException();
    return NULL;
}

void CMemFile::LockRange(ULONGLONG, ULONGLONG)
{
    AfxThrowNotSupportedException();
}

void CMemFile::UnlockRange(ULONGLONG, ULONGLONG)
{
    AfxThrowNotSupportedException();
}

void CMemFile::Abort()
{
    Close();
}

void CMemFile::Flush()
{
}

void CMemFile::Close()
{
    if (m_lpBuffer != NULL && m_bAutoDelete)
        Free(m_lpBuffer);
    m_lpBuffer = NULL;
    m_nGrowBytes = 0;
    m_nPosition = 0;
    m_nBufferSize = 0;
    m_nFileSize = 0;
}

BYTE* CMemFile::Alloc(SIZE_T nBytes)
{
    return (BYTE*)malloc(nBytes);
}

BYTE* CMemFile::Realloc(BYTE* lpMem, SIZE_T nBytes)
{
    return (BYTE*)realloc(lpMem, nBytes);
}

BYTE* CMemFile::Memcpy(BYTE* lpMemTarget, const BYTE* lpMemSource, SIZE_T nBytes)
{
    return (BYTE*)memcpy(lpMemTarget, lpMemSource, nBytes);
}

void CMemFile::Free(BYTE* lpMem)
{
    free(lpMem);
}

// Grows the buffer to hold dwNewLen bytes, rounded up to a multiple of the grow step.
void CMemFile::GrowFile(SIZE_T dwNewLen)
{
    if (dwNewLen <= m_nBufferSize)
        return;
    if (m_nGrowBytes == 0)
        AfxThrowMemoryException();
    SIZE_T nNewSize = m_nBufferSize;
    while (nNewSize < dwNewLen)
    {
        if (nNewSize > (SIZE_T)-1 - m_nGrowBytes)
            AfxThrowMemoryException();
        nNewSize += m_nGrowBytes;
    }
    BYTE* lpNew = m_lpBuffer == NULL ? Alloc(nNewSize) : Realloc(m_lpBuffer, nNewSize);
    if (lpNew == NULL)
        AfxThrowMemoryException();
    m_lpBuffer = lpNew;
    m_nBufferSize = nNewSize;
}
