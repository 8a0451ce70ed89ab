// CFile and CFileFind over the Win32 file API.
#include <afx.h>
#include <commdlg.h>

namespace {

// Part of a path after the last separator (the whole text when there is none).
CString NameOfPath(const CString& path)
{
    int i = path.GetLength();
    while (i > 0 && path[i - 1] != '\\' && path[i - 1] != '/' && path[i - 1] != ':')
        --i;
    return path.Mid(i);
}

CString FullPathOf(LPCTSTR lpszFileName)
{
    CString full;
    DWORD n = GetFullPathNameW(lpszFileName, MAX_PATH, full.GetBuffer(MAX_PATH), NULL);
    if (n >= MAX_PATH)
        n = GetFullPathNameW(lpszFileName, n, full.GetBuffer((int)n), NULL);
    full.ReleaseBuffer(n > 0 ? -1 : 0);
    return n > 0 ? full : CString(lpszFileName);
}

DWORD AccessOf(UINT nOpenFlags)
{
    switch (nOpenFlags & 3)
    {
    case CFile::modeWrite:
        return GENERIC_WRITE;
    case CFile::modeReadWrite:
        return GENERIC_READ | GENERIC_WRITE;
    default:
        return GENERIC_READ;
    }
}

DWORD ShareOf(UINT nOpenFlags)
{
    switch (nOpenFlags & 0x70)
    {
    case CFile::shareDenyWrite:
        return FILE_SHARE_READ;
    case CFile::shareDenyRead:
        return FILE_SHARE_WRITE;
    case CFile::shareDenyNone:
        return FILE_SHARE_READ | FILE_SHARE_WRITE;
    default: // shareCompat behaves as shareExclusive
        return 0;
    }
}

DWORD CreationOf(UINT nOpenFlags)
{
    if (nOpenFlags & CFile::modeCreate)
        return (nOpenFlags & CFile::modeNoTruncate) ? OPEN_ALWAYS : CREATE_ALWAYS;
    return OPEN_EXISTING;
}

DWORD FlagsOf(UINT nOpenFlags)
{
    DWORD flags = FILE_ATTRIBUTE_NORMAL;
    if (nOpenFlags & CFile::osNoBuffer)
        flags |= FILE_FLAG_NO_BUFFERING;
    if (nOpenFlags & CFile::osWriteThrough)
        flags |= FILE_FLAG_WRITE_THROUGH;
    if (nOpenFlags & CFile::osRandomAccess)
        flags |= FILE_FLAG_RANDOM_ACCESS;
    if (nOpenFlags & CFile::osSequentialScan)
        flags |= FILE_FLAG_SEQUENTIAL_SCAN;
    return flags;
}

} // namespace

// ---- CFile ----

IMPLEMENT_DYNAMIC(CFile, CObject)

const HANDLE CFile::hFileNull = INVALID_HANDLE_VALUE;

CFile::CFile() : m_hFile(hFileNull), m_bCloseOnDelete(FALSE) { }

CFile::CFile(HANDLE hFile) : m_hFile(hFile), m_bCloseOnDelete(FALSE) { }

CFile::CFile(LPCTSTR lpszFileName, UINT nOpenFlags) : m_hFile(hFileNull), m_bCloseOnDelete(FALSE)
{
    CFileException error;
    if (!Open(lpszFileName, nOpenFlags, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
}

CFile::~CFile()
{
    if (m_hFile != hFileNull && m_bCloseOnDelete)
        Abort(); // a destructor must not throw
}

CFile::operator HANDLE() const
{
    return m_hFile;
}

BOOL CFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError)
{
    if (m_hFile != hFileNull)
        Abort();
    if (pError != NULL)
    {
        pError->m_cause = CFileException::none;
        pError->m_lOsError = 0;
        pError->m_strFileName = lpszFileName ? lpszFileName : _T("");
    }
    if (lpszFileName == NULL || *lpszFileName == 0)
    {
        if (pError != NULL)
        {
            pError->m_cause = CFileException::badPath;
            pError->m_lOsError = ERROR_INVALID_NAME;
        }
        return FALSE;
    }
    SECURITY_ATTRIBUTES security = { sizeof(security), NULL, (nOpenFlags & modeNoInherit) ? FALSE : TRUE };
    HANDLE hFile = CreateFileW(lpszFileName, AccessOf(nOpenFlags), ShareOf(nOpenFlags), &security,
                               CreationOf(nOpenFlags), FlagsOf(nOpenFlags), NULL);
    if (hFile == INVALID_HANDLE_VALUE)
    {
        if (pError != NULL)
        {
            pError->m_lOsError = (LONG)GetLastError();
            pError->m_cause = CFileException::OsErrorToException(pError->m_lOsError);
        }
        return FALSE;
    }
    m_hFile = hFile;
    m_bCloseOnDelete = TRUE;
    m_strFileName = FullPathOf(lpszFileName);
    return TRUE;
}

CString CFile::GetFilePath() const
{
    return m_strFileName;
}

CString CFile::GetFileName() const
{
    return NameOfPath(m_strFileName);
}

CString CFile::GetFileTitle() const
{
    CString title;
    if (!m_strFileName.IsEmpty()
        && ::GetFileTitleW(m_strFileName, title.GetBuffer(MAX_PATH), MAX_PATH) == 0)
    {
        title.ReleaseBuffer();
        return title;
    }
    title.ReleaseBuffer(0);
    return GetFileName();
}

void CFile::SetFilePath(LPCTSTR lpszNewName)
{
    m_strFileName = lpszNewName;
}

void PASCAL CFile::Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName)
{
    if (!::MoveFileW(lpszOldName, lpszNewName))
        CFileException::ThrowOsError((LONG)GetLastError(), lpszOldName);
}

void PASCAL CFile::Remove(LPCTSTR lpszFileName)
{
    if (!::DeleteFileW(lpszFileName))
        CFileException::ThrowOsError((LONG)GetLastError(), lpszFileName);
}

ULONGLONG CFile::Seek(LONGLONG lOff, UINT nFrom)
{
    if (nFrom > end)
        AfxThrowFileException(CFileException::badSeek, ERROR_INVALID_PARAMETER, m_strFileName);
    LARGE_INTEGER distance, position;
    distance.QuadPart = lOff;
    if (!SetFilePointerEx(m_hFile, distance, &position, nFrom))
        CFileException::ThrowOsError((LONG)GetLastError(), m_strFileName);
    return (ULONGLONG)position.QuadPart;
}

ULONGLONG CFile::SeekToEnd()
{
    return Seek(0, end);
}

void CFile::SeekToBegin()
{
    Seek(0, begin);
}

ULONGLONG CFile::GetPosition() const
{
    LARGE_INTEGER zero, position;
    zero.QuadPart = 0;
    if (!SetFilePointerEx(m_hFile, zero, &position, FILE_CURRENT))
        CFileException::ThrowOsError((LONG)GetLastError(), m_strFileName);
    return (ULONGLONG)position.QuadPart;
}

ULONGLONG CFile::GetLength() const
{
    LARGE_INTEGER size;
    if (!GetFileSizeEx(m_hFile, &size))
        CFileException::ThrowOsError((LONG)GetLastError(), m_strFileName);
    return (ULONGLONG)size.QuadPart;
}

void CFile::SetLength(ULONGLONG dwNewLen)
{
    Seek((LONGLONG)dwNewLen, begin);
    if (!SetEndOfFile(m_hFile))
        CFileException::ThrowOsError((LONG)GetLastError(), m_strFileName);
}

UINT CFile::Read(void* lpBuf, UINT nCount)
{
    if (nCount == 0)
        return 0;
    if (lpBuf == NULL)
        AfxThrowInvalidArgException();
    DWORD nRead = 0;
    if (!ReadFile(m_hFile, lpBuf, nCount, &nRead, NULL))
        CFileException::ThrowOsError((LONG)GetLastError(), m_strFileName);
    return (UINT)nRead;
}

void CFile::Write(const void* lpBuf, UINT nCount)
{
    if (nCount == 0)
        return;
    if (lpBuf == NULL)
        AfxThrowInvalidArgException();
    DWORD nWritten = 0;
    if (!WriteFile(m_hFile, lpBuf, nCount, &nWritten, NULL))
        CFileException::ThrowOsError((LONG)GetLastError(), m_strFileName);
    if (nWritten != nCount)
        AfxThrowFileException(CFileException::diskFull, -1, m_strFileName);
}

void CFile::LockRange(ULONGLONG dwPos, ULONGLONG dwCount)
{
    if (!::LockFile(m_hFile, (DWORD)dwPos, (DWORD)(dwPos >> 32), (DWORD)dwCount, (DWORD)(dwCount >> 32)))
        CFileException::ThrowOsError((LONG)GetLastError(), m_strFileName);
}

void CFile::UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount)
{
    if (!::UnlockFile(m_hFile, (DWORD)dwPos, (DWORD)(dwPos >> 32), (DWORD)dwCount, (DWORD)(dwCount >> 32)))
        CFileException::ThrowOsError((LONG)GetLastError(), m_strFileName);
}

CFile* CFile::Duplicate() const
{
    if (m_hFile == hFileNull)
        AfxThrowFileException(CFileException::invalidFile, ERROR_INVALID_HANDLE, m_strFileName);
    HANDLE hDuplicate = NULL;
    if (!DuplicateHandle(GetCurrentProcess(), m_hFile, GetCurrentProcess(), &hDuplicate, 0, FALSE,
                         DUPLICATE_SAME_ACCESS))
        CFileException::ThrowOsError((LONG)GetLastError(), m_strFileName);
    CFile* pFile = new CFile(hDuplicate);
    pFile->m_bCloseOnDelete = m_bCloseOnDelete;
    pFile->m_strFileName = m_strFileName;
    return pFile;
}

void CFile::Flush()
{
    if (m_hFile == hFileNull)
        return;
    if (!FlushFileBuffers(m_hFile))
        CFileException::ThrowOsError((LONG)GetLastError(), m_strFileName);
}

void CFile::Close()
{
    BOOL bClosed = TRUE;
    DWORD error = 0;
    if (m_hFile != hFileNull)
    {
        bClosed = CloseHandle(m_hFile);
        error = GetLastError();
    }
    CString name = m_strFileName;
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
    if (!bClosed)
        CFileException::ThrowOsError((LONG)error, name);
}

void CFile::Abort()
{
    if (m_hFile != hFileNull)
        CloseHandle(m_hFile);
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
}

// ---- CFileFind ----

IMPLEMENT_DYNAMIC(CFileFind, CObject)

CFileFind::CFileFind()
    : m_pFoundInfo(NULL), m_pNextInfo(NULL), m_hContext(NULL), m_chDirSeparator('\\')
{
}

CFileFind::~CFileFind()
{
    Close();
}

void CFileFind::Close()
{
    delete m_pFoundInfo;
    delete m_pNextInfo;
    m_pFoundInfo = NULL;
    m_pNextInfo = NULL;
    if (m_hContext != NULL)
    {
        CloseContext();
        m_hContext = NULL;
    }
    m_strRoot.Empty();
}

void CFileFind::CloseContext()
{
    if (m_hContext != NULL && m_hContext != INVALID_HANDLE_VALUE)
        ::FindClose(m_hContext);
}

BOOL CFileFind::FindFile(LPCTSTR pstrName, DWORD dwUnused)
{
    UNUSED_ALWAYS(dwUnused);
    Close();
    if (pstrName == NULL)
        pstrName = _T("*.*");
    else if (*pstrName == 0 || lstrlenW(pstrName) >= MAX_PATH)
    {
        SetLastError(ERROR_BAD_ARGUMENTS);
        return FALSE;
    }
    m_pNextInfo = new WIN32_FIND_DATAW;
    HANDLE hFind = ::FindFirstFileW(pstrName, m_pNextInfo);
    if (hFind == INVALID_HANDLE_VALUE)
    {
        DWORD error = GetLastError();
        Close();
        SetLastError(error);
        return FALSE;
    }
    m_hContext = hFind;
    // The folder part of the full pattern; the found names are relative to it.
    CString full = FullPathOf(pstrName);
    int iName = full.GetLength() - NameOfPath(full).GetLength();
    m_strRoot = full.Left(iName);
    if (m_strRoot.GetLength() > 1 && m_strRoot.Right(1) == _T("\\") && m_strRoot.Right(2) != _T(":\\"))
        m_strRoot.Truncate(m_strRoot.GetLength() - 1);
    return TRUE;
}

BOOL CFileFind::FindNextFile()
{
    if (m_hContext == NULL || m_pNextInfo == NULL)
        return FALSE;
    if (m_pFoundInfo == NULL)
        m_pFoundInfo = new WIN32_FIND_DATAW;
    WIN32_FIND_DATAW* pSwap = m_pFoundInfo;
    m_pFoundInfo = m_pNextInfo;
    m_pNextInfo = pSwap;
    return ::FindNextFileW(m_hContext, m_pNextInfo);
}

ULONGLONG CFileFind::GetLength() const
{
    if (m_pFoundInfo == NULL)
        return 0;
    return ((ULONGLONG)m_pFoundInfo->nFileSizeHigh << 32) | m_pFoundInfo->nFileSizeLow;
}

CString CFileFind::GetFileName() const
{
    return m_pFoundInfo ? CString(m_pFoundInfo->cFileName) : CString();
}

CString CFileFind::GetFilePath() const
{
    if (m_pFoundInfo == NULL)
        return CString();
    CString path = m_strRoot;
    if (!path.IsEmpty() && path.Right(1) != _T("\\") && path.Right(1) != _T("/"))
        path += m_chDirSeparator;
    return path + m_pFoundInfo->cFileName;
}

CString CFileFind::GetFileTitle() const
{
    CString name = GetFileName();
    int iDot = name.ReverseFind('.');
    return iDot > 0 ? name.Left(iDot) : name;
}

CString CFileFind::GetFileURL() const
{
    return m_pFoundInfo ? _T("file://") + GetFilePath() : CString();
}

CString CFileFind::GetRoot() const
{
    return m_pFoundInfo ? m_strRoot : CString();
}

BOOL CFileFind::GetLastWriteTime(FILETIME* pTimeStamp) const
{
    if (m_pFoundInfo == NULL || pTimeStamp == NULL)
        return FALSE;
    *pTimeStamp = m_pFoundInfo->ftLastWriteTime;
    return TRUE;
}

BOOL CFileFind::GetLastAccessTime(FILETIME* pTimeStamp) const
{
    if (m_pFoundInfo == NULL || pTimeStamp == NULL)
        return FALSE;
    *pTimeStamp = m_pFoundInfo->ftLastAccessTime;
    return TRUE;
}

BOOL CFileFind::GetCreationTime(FILETIME* pTimeStamp) const
{
    if (m_pFoundInfo == NULL || pTimeStamp == NULL)
        return FALSE;
    *pTimeStamp = m_pFoundInfo->ftCreationTime;
    return TRUE;
}

BOOL CFileFind::MatchesMask(DWORD dwMask) const
{
    return m_pFoundInfo != NULL && (m_pFoundInfo->dwFileAttributes & dwMask) != 0;
}

BOOL CFileFind::IsDots() const
{
    if (m_pFoundInfo == NULL || !IsDirectory())
        return FALSE;
    LPCWSTR name = m_pFoundInfo->cFileName;
    return name[0] == '.' && (name[1] == 0 || (name[1] == '.' && name[2] == 0));
}
