// CException and its derivatives, and the AfxThrow... functions.
#include <afx.h>
#include <errno.h>

namespace {

// Copies text (with %1 replaced by fileName) into the caller's buffer, truncating.
BOOL CopyMessage(LPCTSTR text, LPCTSTR fileName, LPTSTR lpszError, UINT nMaxError)
{
    if (lpszError == NULL || nMaxError == 0)
        return FALSE;
    CString message(text);
    message.Replace(_T("%1"), fileName ? fileName : _T(""));
    lstrcpyn(lpszError, message, (int)nMaxError);
    return TRUE;
}

} // namespace

// ---- CException ----

IMPLEMENT_DYNAMIC(CException, CObject)

CException::CException() : m_bAutoDelete(TRUE) { }
CException::CException(BOOL bAutoDelete) : m_bAutoDelete(bAutoDelete) { }
CException::~CException() { }

void CException::Delete()
{
    // Only heap objects created with auto-delete are freed; static ones stay.
    if (m_bAutoDelete > 0)
        delete this;
}

BOOL CException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    if (pnHelpContext != NULL)
        *pnHelpContext = 0;
    if (lpszError != NULL && nMaxError > 0)
        *lpszError = '\0';
    return FALSE;
}

BOOL CException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext)
{
    return const_cast<const CException*>(this)->GetErrorMessage(lpszError, nMaxError, pnHelpContext);
}

int CException::ReportError(UINT nType, UINT nMessageID)
{
    TCHAR text[512];
    CString message;
    if (GetErrorMessage(text, _countof(text), NULL))
        message = text;
    else if (nMessageID == 0 || !message.LoadString(nMessageID))
        message = _T("No error message is available.");
    return ::MessageBox(::GetActiveWindow(), message, NULL, nType);
}

// ---- CSimpleException and the fixed-text exceptions ----

IMPLEMENT_DYNAMIC(CSimpleException, CException)

CSimpleException::CSimpleException() : m_nResourceID(0) { }
CSimpleException::CSimpleException(BOOL bAutoDelete) : CException(bAutoDelete), m_nResourceID(0) { }
CSimpleException::~CSimpleException() { }

LPCTSTR CSimpleException::GetDefaultMessage() const
{
    return NULL;
}

BOOL CSimpleException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    if (pnHelpContext != NULL)
        *pnHelpContext = 0;
    CString message;
    if (m_nResourceID != 0 && message.LoadString(m_nResourceID))
        return CopyMessage(message, NULL, lpszError, nMaxError);
    LPCTSTR text = GetDefaultMessage();
    if (text == NULL)
        return CException::GetErrorMessage(lpszError, nMaxError, NULL);
    return CopyMessage(text, NULL, lpszError, nMaxError);
}

BOOL CSimpleException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext)
{
    return const_cast<const CSimpleException*>(this)->GetErrorMessage(lpszError, nMaxError, pnHelpContext);
}

#define ZOAFX_SIMPLE_EXCEPTION(class_name, text) \
    IMPLEMENT_DYNAMIC(class_name, CSimpleException) \
    class_name::class_name() { } \
    class_name::class_name(BOOL bAutoDelete) : CSimpleException(bAutoDelete) { } \
    class_name::~class_name() { } \
    LPCTSTR class_name::GetDefaultMessage() const { return _T(text); }

ZOAFX_SIMPLE_EXCEPTION(CMemoryException, "Out of memory.")
ZOAFX_SIMPLE_EXCEPTION(CNotSupportedException, "An unsupported operation was attempted.")
ZOAFX_SIMPLE_EXCEPTION(CInvalidArgException, "Encountered an improper argument.")

// ---- CFileException ----

IMPLEMENT_DYNAMIC(CFileException, CException)

CFileException::CFileException(int cause, LONG lOsError, LPCTSTR lpszArchiveName)
    : m_cause(cause), m_lOsError(lOsError), m_strFileName(lpszArchiveName ? lpszArchiveName : _T(""))
{
}

CFileException::~CFileException() { }

int PASCAL CFileException::OsErrorToException(LONG lOsError)
{
    switch (lOsError)
    {
    case NO_ERROR:
        return none;
    case ERROR_FILE_NOT_FOUND:
        return fileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_FILENAME_EXCED_RANGE:
    case ERROR_DIRECTORY:
        return badPath;
    case ERROR_TOO_MANY_OPEN_FILES:
        return tooManyOpenFiles;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
    case ERROR_NETWORK_ACCESS_DENIED:
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
    case ERROR_DIR_NOT_EMPTY:
        return accessDenied;
    case ERROR_INVALID_HANDLE:
    case ERROR_INVALID_ACCESS:
        return invalidFile;
    case ERROR_CURRENT_DIRECTORY:
        return removeCurrentDir;
    case ERROR_CANNOT_MAKE:
        return directoryFull;
    case ERROR_SEEK:
    case ERROR_NEGATIVE_SEEK:
        return badSeek;
    case ERROR_NOT_READY:
    case ERROR_CRC:
    case ERROR_SECTOR_NOT_FOUND:
    case ERROR_WRITE_FAULT:
    case ERROR_READ_FAULT:
    case ERROR_GEN_FAILURE:
    case ERROR_BAD_UNIT:
    case ERROR_NOT_DOS_DISK:
    case ERROR_IO_DEVICE:
        return hardIO;
    case ERROR_SHARING_VIOLATION:
    case ERROR_SHARING_BUFFER_EXCEEDED:
        return sharingViolation;
    case ERROR_LOCK_VIOLATION:
    case ERROR_LOCK_FAILED:
        return lockViolation;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return diskFull;
    case ERROR_HANDLE_EOF:
        return endOfFile;
    default:
        return genericException;
    }
}

void PASCAL CFileException::ThrowOsError(LONG lOsError, LPCTSTR lpszFileName)
{
    if (lOsError != 0)
        AfxThrowFileException(OsErrorToException(lOsError), lOsError, lpszFileName);
}

int PASCAL CFileException::ErrnoToException(int nErrno)
{
    switch (nErrno)
    {
    case ENOENT:
        return fileNotFound;
    case EPERM:
    case EACCES:
    case EEXIST:
        return accessDenied;
    case EMFILE:
        return tooManyOpenFiles;
    case EBADF:
        return invalidFile;
    case ENOSPC:
        return diskFull;
    case EDEADLOCK:
        return sharingViolation;
    case EINVAL:
        return badSeek;
    default:
        return genericException;
    }
}

void PASCAL CFileException::ThrowErrno(int nErrno, LPCTSTR lpszFileName)
{
    if (nErrno != 0)
        AfxThrowFileException(ErrnoToException(nErrno), nErrno, lpszFileName);
}

BOOL CFileException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const
{
    static const LPCTSTR causeTexts[] = {
        _T("No error occurred."),
        _T("An unexpected error occurred while accessing %1."),
        _T("%1 was not found."),
        _T("%1 contains an incorrect path."),
        _T("%1 could not be opened because there are too many open files."),
        _T("Access to %1 was denied."),
        _T("An incorrect file handle was associated with %1."),
        _T("%1 could not be removed because it is the current directory."),
        _T("%1 could not be created because the directory is full."),
        _T("Seek failed on %1."),
        _T("A hardware I/O error was reported while accessing %1."),
        _T("A sharing violation occurred while accessing %1."),
        _T("A locking violation occurred while accessing %1."),
        _T("Disk full while accessing %1."),
        _T("An attempt was made to access %1 past its end."),
    };
    if (pnHelpContext != NULL)
        *pnHelpContext = 0;
    int cause = (m_cause >= 0 && m_cause < (int)_countof(causeTexts)) ? m_cause : (int)genericException;
    LPCTSTR fileName = m_strFileName.IsEmpty() ? _T("an unnamed file") : (LPCTSTR)m_strFileName;
    return CopyMessage(causeTexts[cause], fileName, lpszError, nMaxError);
}

BOOL CFileException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext)
{
    return const_cast<const CFileException*>(this)->GetErrorMessage(lpszError, nMaxError, pnHelpContext);
}

// ---- throwing ----

AFX_EXCEPTION_LINK::~AFX_EXCEPTION_LINK()
{
    if (m_pException != NULL)
        m_pException->Delete();
}

void AFXAPI AfxThrowMemoryException()
{
    // Allocation may be what failed: fall back to a static object that Delete() keeps.
    static CMemoryException s_outOfMemory(FALSE);
    CMemoryException* pException = new (std::nothrow) CMemoryException;
    throw pException ? pException : &s_outOfMemory;
}

void AFXAPI AfxThrowNotSupportedException()
{
    throw new CNotSupportedException;
}

void AFXAPI AfxThrowInvalidArgException()
{
    throw new CInvalidArgException;
}

void AFXAPI AfxThrowFileException(int cause, LONG lOsError, LPCTSTR lpszFileName)
{
    throw new CFileException(cause, lOsError, lpszFileName);
}
