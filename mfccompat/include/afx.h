// MFC-compatible <afx.h>: the core of the layer. Run-time class information (CObject,
// CRuntimeClass and the DECLARE_/IMPLEMENT_ macros), diagnostics macros, CString (afxstr.h),
// CPoint/CSize/CRect (atltypes.h), exceptions and the TRY/CATCH macros, files (CFile,
// CMemFile, CFileFind) and the module/resource-handle functions.
//
// AfxGetInstanceHandle, AfxGetResourceHandle, AfxSetResourceHandle, AfxFindResourceHandle,
// AfxLockTempMaps and AfxUnlockTempMaps are declared here (MFC declares some of them in
// afxwin.h, which includes this header, so code written for MFC finds them either way).
#pragma once
#include <zoafx/config.h>
#include <windows.h>
#include <tchar.h>
#include <stdlib.h>
#include <string.h>
#include <stdio.h>
#include <stdarg.h>
#include <limits.h>
#include <new>

class CObject;
class CArchive;
struct CRuntimeClass;

typedef struct __POSITION { } * POSITION;
#define BEFORE_START_POSITION ((POSITION)-1L)

// ---------------------------------------------------------------------------------------
// Diagnostics. Active with _DEBUG, as in MFC; a failed assertion is reported through
// OutputDebugString and stderr and execution continues (no modal dialog in headless runs).

ZOAFX_API BOOL AFXAPI AfxAssertFailedLine(LPCSTR lpszFileName, int nLine);
ZOAFX_API void AFX_CDECL AfxTrace(LPCTSTR lpszFormat, ...);
ZOAFX_API void AFXAPI AfxAssertValidObject(const CObject* pOb, LPCSTR lpszFileName, int nLine);
ZOAFX_API BOOL AFXAPI AfxIsValidAddress(const void* lp, UINT_PTR nBytes, BOOL bReadWrite = TRUE);
ZOAFX_API BOOL AFXAPI AfxIsValidString(LPCWSTR lpsz, int nLength = -1);
ZOAFX_API BOOL AFXAPI AfxIsValidString(LPCSTR lpsz, int nLength = -1);

#ifdef _DEBUG
#define ASSERT(f) ((void)((f) || !AfxAssertFailedLine(__FILE__, __LINE__) || (AfxDebugBreak(), 0)))
#define VERIFY(f) ASSERT(f)
#define ASSERT_VALID(pOb) (AfxAssertValidObject((pOb), __FILE__, __LINE__))
#define DEBUG_ONLY(f) (f)
#define TRACE AfxTrace
#define TRACE0(sz) AfxTrace(_T("%s"), _T(sz))
#define TRACE1(sz, p1) AfxTrace(_T(sz), p1)
#define TRACE2(sz, p1, p2) AfxTrace(_T(sz), p1, p2)
#define TRACE3(sz, p1, p2, p3) AfxTrace(_T(sz), p1, p2, p3)
#define ASSERT_KINDOF(class_name, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(class_name)))
#define AfxDebugBreak() ((void)0)
#else
#define ASSERT(f) ((void)0)
#define VERIFY(f) ((void)(f))
#define ASSERT_VALID(pOb) ((void)0)
#define DEBUG_ONLY(f) ((void)0)
#define TRACE(...) ((void)0)
#define TRACE0(sz) ((void)0)
#define TRACE1(sz, p1) ((void)0)
#define TRACE2(sz, p1, p2) ((void)0)
#define TRACE3(sz, p1, p2, p3) ((void)0)
#define ASSERT_KINDOF(class_name, object) ((void)0)
#endif
#define ASSUME(cond) ASSERT(cond)
#define ENSURE(cond) do { if (!(cond)) AfxThrowInvalidArgException(); } while (0)
#define ENSURE_ARG(cond) ENSURE(cond)
#define ENSURE_VALID(pOb) ENSURE((pOb) != NULL)
#define DEBUG_NEW new
#define THIS_FILE __FILE__
#define UNUSED(x) ((void)(x))
#define UNUSED_ALWAYS(x) ((void)(x))

// ---------------------------------------------------------------------------------------
// Run-time class information (shared-DLL shape: the base class is reached via a function).

struct AFX_CLASSINIT
{
    ZOAFX_API explicit AFX_CLASSINIT(CRuntimeClass* pNewClass);
};

struct ZOAFX_API CRuntimeClass
{
    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    UINT m_wSchema;                        // 0xFFFF for classes that are not serializable
    CObject* (PASCAL* m_pfnCreateObject)(); // NULL unless DYNCREATE
    CRuntimeClass* (PASCAL* m_pfnGetBaseClass)();
    CRuntimeClass* m_pNextClass;           // registered classes, for FromName
    const AFX_CLASSINIT* m_pClassInit;

    CObject* CreateObject();
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;

    static CRuntimeClass* PASCAL FromName(LPCSTR lpszClassName);
    static CRuntimeClass* PASCAL FromName(LPCWSTR lpszClassName);
    static CObject* PASCAL CreateObject(LPCSTR lpszClassName);
    static CObject* PASCAL CreateObject(LPCWSTR lpszClassName);
};

#define _RUNTIME_CLASS(class_name) ((CRuntimeClass*)(&class_name::class##class_name))
#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

#define DECLARE_DYNAMIC(class_name) \
protected: \
    static CRuntimeClass* PASCAL _GetBaseClass(); \
public: \
    static const CRuntimeClass class##class_name; \
    static CRuntimeClass* PASCAL GetThisClass(); \
    virtual CRuntimeClass* GetRuntimeClass() const;

#define DECLARE_DYNCREATE(class_name) \
    DECLARE_DYNAMIC(class_name) \
    static CObject* PASCAL CreateObject();

// Every implemented class is registered so that CRuntimeClass::FromName finds it.
#define IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, pfnNew) \
    CRuntimeClass* PASCAL class_name::_GetBaseClass() \
        { return RUNTIME_CLASS(base_class_name); } \
    AFX_COMDAT const CRuntimeClass class_name::class##class_name = { \
        #class_name, sizeof(class class_name), wSchema, pfnNew, \
        &class_name::_GetBaseClass, NULL, NULL }; \
    CRuntimeClass* PASCAL class_name::GetThisClass() \
        { return _RUNTIME_CLASS(class_name); } \
    CRuntimeClass* class_name::GetRuntimeClass() const \
        { return _RUNTIME_CLASS(class_name); } \
    static const AFX_CLASSINIT _init_##class_name(_RUNTIME_CLASS(class_name));

#define IMPLEMENT_DYNAMIC(class_name, base_class_name) \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, NULL)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name) \
    CObject* PASCAL class_name::CreateObject() \
        { return new class_name; } \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, class_name::CreateObject)

ZOAFX_API CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject);
ZOAFX_API CObject* AFXAPI AfxStaticDownCast(CRuntimeClass* pClass, CObject* pObject);
#define DYNAMIC_DOWNCAST(class_name, object) \
    ((class_name*)AfxDynamicDownCast(RUNTIME_CLASS(class_name), object))
#ifdef _DEBUG
#define STATIC_DOWNCAST(class_name, object) \
    ((class_name*)AfxStaticDownCast(RUNTIME_CLASS(class_name), object))
#else
#define STATIC_DOWNCAST(class_name, object) ((class_name*)(object))
#endif

class ZOAFX_API CObject
{
public:
    virtual CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject() = 0;

    BOOL IsSerializable() const;
    BOOL IsKindOf(const CRuntimeClass* pClass) const;
    virtual void Serialize(CArchive& ar);
    virtual void AssertValid() const;

    static const CRuntimeClass classCObject;
    static CRuntimeClass* PASCAL GetThisClass();
    static CRuntimeClass* PASCAL _GetBaseClass();

protected:
    CObject();

private:
    CObject(const CObject& objectSrc);
    void operator=(const CObject& objectSrc);
};

#include <afxstr.h>
#include <atltypes.h>

// ---------------------------------------------------------------------------------------
// Module and resource handles. Resources are looked up in the resource handle, then in each
// registered extension module (zoafx/modulechain.h), then in the application instance.

ZOAFX_API HINSTANCE AFXAPI AfxGetInstanceHandle();
ZOAFX_API HINSTANCE AFXAPI AfxGetResourceHandle();
ZOAFX_API void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource);
ZOAFX_API HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);

// Temporary handle-map objects (FromHandle results) live until the lock count drops to zero.
ZOAFX_API void AFXAPI AfxLockTempMaps();
ZOAFX_API BOOL AFXAPI AfxUnlockTempMaps(BOOL bDeleteTemps = TRUE);

// ---------------------------------------------------------------------------------------
// Exceptions. MFC throws heap-allocated exception objects by pointer (CException*); the
// catcher releases them with Delete(). The TRY/CATCH macros do that automatically when the
// handler block ends, unless the handler rethrows with THROW_LAST().

class ZOAFX_API CException : public CObject
{
    DECLARE_DYNAMIC(CException)
public:
    CException();
    explicit CException(BOOL bAutoDelete);
    virtual ~CException() = 0;

    void Delete();
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = NULL) const;
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = NULL);
    // Shows GetErrorMessage's text (or nMessageID's string) with ::MessageBox.
    virtual int ReportError(UINT nType = MB_OK, UINT nMessageID = 0);

    BOOL m_bAutoDelete;
};

class ZOAFX_API CSimpleException : public CException
{
    DECLARE_DYNAMIC(CSimpleException)
public:
    CSimpleException();
    explicit CSimpleException(BOOL bAutoDelete);
    virtual ~CSimpleException();

    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = NULL) const;
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = NULL);

protected:
    // The fixed text of this exception kind, reported when no resource string is set.
    virtual LPCTSTR GetDefaultMessage() const;
    UINT m_nResourceID;
};

class ZOAFX_API CMemoryException : public CSimpleException
{
    DECLARE_DYNAMIC(CMemoryException)
public:
    CMemoryException();
    explicit CMemoryException(BOOL bAutoDelete);
    virtual ~CMemoryException();
protected:
    virtual LPCTSTR GetDefaultMessage() const;
};

class ZOAFX_API CNotSupportedException : public CSimpleException
{
    DECLARE_DYNAMIC(CNotSupportedException)
public:
    CNotSupportedException();
    explicit CNotSupportedException(BOOL bAutoDelete);
    virtual ~CNotSupportedException();
protected:
    virtual LPCTSTR GetDefaultMessage() const;
};

class ZOAFX_API CInvalidArgException : public CSimpleException
{
    DECLARE_DYNAMIC(CInvalidArgException)
public:
    CInvalidArgException();
    explicit CInvalidArgException(BOOL bAutoDelete);
    virtual ~CInvalidArgException();
protected:
    virtual LPCTSTR GetDefaultMessage() const;
};

class ZOAFX_API CFileException : public CException
{
    DECLARE_DYNAMIC(CFileException)
public:
    enum
    {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    CFileException(int cause = CFileException::none, LONG lOsError = -1, LPCTSTR lpszArchiveName = NULL);
    virtual ~CFileException();

    static void PASCAL ThrowOsError(LONG lOsError, LPCTSTR lpszFileName = NULL);
    static int PASCAL OsErrorToException(LONG lOsError);
    static void PASCAL ThrowErrno(int nErrno, LPCTSTR lpszFileName = NULL);
    static int PASCAL ErrnoToException(int nErrno);
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = NULL) const;
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = NULL);

    int m_cause;
    LONG m_lOsError;
    CString m_strFileName;
};

ZOAFX_API void AFXAPI AfxThrowNotSupportedException();
ZOAFX_API void AFXAPI AfxThrowFileException(int cause, LONG lOsError = -1, LPCTSTR lpszFileName = NULL);

// Deletes the caught exception when a TRY/CATCH handler is left normally.
struct ZOAFX_API AFX_EXCEPTION_LINK
{
    AFX_EXCEPTION_LINK() : m_pException(NULL) { }
    ~AFX_EXCEPTION_LINK();
    CException* m_pException;
};

#define TRY { AFX_EXCEPTION_LINK _afxExceptionLink; try {
#define CATCH(class_name, e) } catch (class_name* e) { \
    ASSERT_KINDOF(class_name, e); _afxExceptionLink.m_pException = e;
#define AND_CATCH(class_name, e) } catch (class_name* e) { \
    ASSERT_KINDOF(class_name, e); _afxExceptionLink.m_pException = e;
#define END_CATCH } }
#define CATCH_ALL(e) } catch (CException* e) { { \
    ASSERT_KINDOF(CException, e); _afxExceptionLink.m_pException = e;
#define AND_CATCH_ALL(e) } catch (CException* e) { { \
    ASSERT_KINDOF(CException, e); _afxExceptionLink.m_pException = e;
#define END_CATCH_ALL } } }
#define THROW(e) throw e
#define THROW_LAST() (_afxExceptionLink.m_pException = NULL, throw)

// ---------------------------------------------------------------------------------------
// Files. CFile wraps a Win32 file handle; failures throw CFileException (Open reports them
// through its optional CFileException instead). Read returns fewer bytes at the end of the
// file without throwing; a short Write throws with cause diskFull.

class ZOAFX_API CFile : public CObject
{
    DECLARE_DYNAMIC(CFile)
public:
    enum OpenFlags
    {
        modeRead = 0x00000,
        modeWrite = 0x00001,
        modeReadWrite = 0x00002,
        shareCompat = 0x00000,
        shareExclusive = 0x00010,
        shareDenyWrite = 0x00020,
        shareDenyRead = 0x00030,
        shareDenyNone = 0x00040,
        modeNoInherit = 0x00080,
        typeUnicode = 0x00400,
        modeCreate = 0x01000,
        modeNoTruncate = 0x02000,
        typeText = 0x04000,
        typeBinary = 0x08000,
        osNoBuffer = 0x10000,
        osWriteThrough = 0x20000,
        osRandomAccess = 0x40000,
        osSequentialScan = 0x80000,
    };

    enum Attribute
    {
        normal = 0x00,
        readOnly = 0x01,
        hidden = 0x02,
        system = 0x04,
        volume = 0x08,
        directory = 0x10,
        archive = 0x20
    };

    enum SeekPosition { begin = 0x0, current = 0x1, end = 0x2 };

    static const HANDLE hFileNull;

    CFile();
    CFile(HANDLE hFile);
    CFile(LPCTSTR lpszFileName, UINT nOpenFlags);
    virtual ~CFile();

    operator HANDLE() const;

    virtual ULONGLONG GetPosition() const;
    virtual CString GetFileName() const;
    virtual CString GetFileTitle() const;
    virtual CString GetFilePath() const;
    virtual void SetFilePath(LPCTSTR lpszNewName);

    virtual BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = NULL);
    static void PASCAL Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName);
    static void PASCAL Remove(LPCTSTR lpszFileName);

    ULONGLONG SeekToEnd();
    void SeekToBegin();

    virtual CFile* Duplicate() const;
    virtual ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    virtual void SetLength(ULONGLONG dwNewLen);
    virtual ULONGLONG GetLength() const;
    virtual UINT Read(void* lpBuf, UINT nCount);
    virtual void Write(const void* lpBuf, UINT nCount);
    virtual void LockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    virtual void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    virtual void Abort();
    virtual void Flush();
    virtual void Close();

    HANDLE m_hFile;

protected:
    BOOL m_bCloseOnDelete;
    CString m_strFileName;
};

// A file in memory. It grows by nGrowBytes as it is written past its end; a file over an
// attached buffer with nGrowBytes 0 cannot grow (writing past its end throws CMemoryException).
// Reads at the end return fewer bytes without throwing, as CFile's do.
class ZOAFX_API CMemFile : public CFile
{
    DECLARE_DYNAMIC(CMemFile)
public:
    CMemFile(UINT nGrowBytes = 1024);
    CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    virtual ~CMemFile();

    void Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    BYTE* Detach();

    virtual ULONGLONG GetPosition() const;
    virtual ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    virtual void SetLength(ULONGLONG dwNewLen);
    virtual ULONGLONG GetLength() const;
    virtual UINT Read(void* lpBuf, UINT nCount);
    virtual void Write(const void* lpBuf, UINT nCount);
    virtual CFile* Duplicate() const;
    virtual void LockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    virtual void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    virtual void Abort();
    virtual void Flush();
    virtual void Close();

protected:
    virtual BYTE* Alloc(SIZE_T nBytes);
    virtual BYTE* Realloc(BYTE* lpMem, SIZE_T nBytes);
    virtual BYTE* Memcpy(BYTE* lpMemTarget, const BYTE* lpMemSource, SIZE_T nBytes);
    virtual void Free(BYTE* lpMem);
    virtual void GrowFile(SIZE_T dwNewLen);

    SIZE_T m_nGrowBytes;
    SIZE_T m_nPosition;
    SIZE_T m_nBufferSize;
    SIZE_T m_nFileSize;
    BYTE* m_lpBuffer;
    BOOL m_bAutoDelete;
};

class ZOAFX_API CFileFind : public CObject
{
    DECLARE_DYNAMIC(CFileFind)
public:
    CFileFind();
    virtual ~CFileFind();

    ULONGLONG GetLength() const;
    virtual CString GetFileName() const;
    virtual CString GetFilePath() const;
    virtual CString GetFileTitle() const;
    virtual CString GetFileURL() const;
    virtual CString GetRoot() const;

    virtual BOOL GetLastWriteTime(FILETIME* pTimeStamp) const;
    virtual BOOL GetLastAccessTime(FILETIME* pTimeStamp) const;
    virtual BOOL GetCreationTime(FILETIME* pTimeStamp) const;

    virtual BOOL MatchesMask(DWORD dwMask) const;
    virtual BOOL IsDots() const;
    BOOL IsReadOnly() const { return MatchesMask(FILE_ATTRIBUTE_READONLY); }
    BOOL IsDirectory() const { return MatchesMask(FILE_ATTRIBUTE_DIRECTORY); }
    BOOL IsCompressed() const { return MatchesMask(FILE_ATTRIBUTE_COMPRESSED); }
    BOOL IsSystem() const { return MatchesMask(FILE_ATTRIBUTE_SYSTEM); }
    BOOL IsHidden() const { return MatchesMask(FILE_ATTRIBUTE_HIDDEN); }
    BOOL IsTemporary() const { return MatchesMask(FILE_ATTRIBUTE_TEMPORARY); }
    BOOL IsNormal() const { return MatchesMask(FILE_ATTRIBUTE_NORMAL); }
    BOOL IsArchived() const { return MatchesMask(FILE_ATTRIBUTE_ARCHIVE); }

    void Close();
    // Starts a search (NULL means "*.*"); the first match becomes current only after the
    // first FindNextFile, which returns FALSE when the match it made current is the last.
    virtual BOOL FindFile(LPCTSTR pstrName = NULL, DWORD dwUnused = 0);
    virtual BOOL FindNextFile();

protected:
    virtual void CloseContext();

    WIN32_FIND_DATAW* m_pFoundInfo;
    WIN32_FIND_DATAW* m_pNextInfo;
    HANDLE m_hContext;
    CString m_strRoot;
    TCHAR m_chDirSeparator;
};
