// MFC-compatible <afxstr.h>: CString, a Unicode string with MFC's CStringT member set.
//
// Layout: one pointer to the characters, which follow a small header on the heap (the same
// shape MFC uses), so a CString object is exactly pointer-sized.
//
// Passing a CString through "..." (Format, TRACE): MSVC copies the object, which is the
// character pointer, so %s works. GCC passes the address of a temporary copy instead;
// Format and AppendFormat recognise such an argument for a wide %s and use its characters.
// Other variadic functions (swprintf, ...) do not: pass (LPCTSTR)str or str.GetString().
#pragma once
#include <zoafx/config.h>
#include <windows.h>
#include <oleauto.h>
#include <stdarg.h>

ZOAFX_API void AFXAPI AfxThrowMemoryException();
ZOAFX_API void AFXAPI AfxThrowInvalidArgException();

class ZOAFX_API CStringW
{
public:
    typedef wchar_t XCHAR;
    typedef LPWSTR PXSTR;
    typedef LPCWSTR PCXSTR;
    typedef char YCHAR;
    typedef LPSTR PYSTR;
    typedef LPCSTR PCYSTR;

    CStringW() throw();
    CStringW(const CStringW& strSrc);
    CStringW(CStringW&& strSrc) throw();
    // A MAKEINTRESOURCE value loads that string resource instead.
    CStringW(PCXSTR pszSrc);
    CStringW(PCYSTR pszSrc);
    CStringW(const unsigned char* pszSrc);
    CStringW(PCXSTR pch, int nLength);
    CStringW(PCYSTR pch, int nLength);
    explicit CStringW(XCHAR ch, int nRepeat = 1);
    explicit CStringW(YCHAR ch, int nRepeat = 1);
    ~CStringW() throw();

    CStringW& operator=(const CStringW& strSrc);
    CStringW& operator=(CStringW&& strSrc) throw();
    CStringW& operator=(PCXSTR pszSrc);
    CStringW& operator=(PCYSTR pszSrc);
    CStringW& operator=(const unsigned char* pszSrc);
    CStringW& operator=(XCHAR ch);
    CStringW& operator=(YCHAR ch);

    CStringW& operator+=(const CStringW& str);
    CStringW& operator+=(PCXSTR pszSrc);
    CStringW& operator+=(PCYSTR pszSrc);
    CStringW& operator+=(XCHAR ch);
    CStringW& operator+=(YCHAR ch);

    // Access.
    int GetLength() const throw();
    int GetAllocLength() const throw();
    bool IsEmpty() const throw();
    void Empty() throw();
    XCHAR GetAt(int iChar) const;
    void SetAt(int iChar, XCHAR ch);
    XCHAR operator[](int iChar) const;
    PCXSTR GetString() const throw() { return m_pszData; }
    operator PCXSTR() const throw() { return m_pszData; }
    void SetString(PCXSTR pszSrc);
    void SetString(PCXSTR pszSrc, int nLength);
    void Append(PCXSTR pszSrc);
    void Append(PCXSTR pszSrc, int nLength);
    void Append(const CStringW& strSrc);
    void AppendChar(XCHAR ch);

    // Buffer.
    PXSTR GetBuffer();
    PXSTR GetBuffer(int nMinBufferLength);
    PXSTR GetBufferSetLength(int nLength);
    void ReleaseBuffer(int nNewLength = -1);
    void ReleaseBufferSetLength(int nNewLength);
    PXSTR LockBuffer();
    void UnlockBuffer() throw();
    void Preallocate(int nLength);
    void FreeExtra();
    void Truncate(int nNewLength);

    // Comparison.
    int Compare(PCXSTR psz) const;
    int CompareNoCase(PCXSTR psz) const;
    int Collate(PCXSTR psz) const;
    int CollateNoCase(PCXSTR psz) const;

    // Search.
    int Find(XCHAR ch, int iStart = 0) const throw();
    int Find(PCXSTR pszSub, int iStart = 0) const throw();
    int FindOneOf(PCXSTR pszCharSet) const throw();
    int ReverseFind(XCHAR ch) const throw();

    // Case and order.
    CStringW& MakeLower();
    CStringW& MakeUpper();
    CStringW& MakeReverse();

    // Extraction.
    CStringW Left(int nCount) const;
    CStringW Right(int nCount) const;
    CStringW Mid(int iFirst) const;
    CStringW Mid(int iFirst, int nCount) const;
    CStringW SpanIncluding(PCXSTR pszCharSet) const;
    CStringW SpanExcluding(PCXSTR pszCharSet) const;
    CStringW Tokenize(PCXSTR pszTokens, int& iStart) const;

    // Editing; each returns what MFC returns (count of changes or the new length).
    int Replace(XCHAR chOld, XCHAR chNew);
    int Replace(PCXSTR pszOld, PCXSTR pszNew);
    int Remove(XCHAR chRemove);
    int Insert(int iIndex, XCHAR ch);
    int Insert(int iIndex, PCXSTR psz);
    int Delete(int iIndex, int nCount = 1);

    CStringW& Trim();
    CStringW& Trim(XCHAR chTarget);
    CStringW& Trim(PCXSTR pszTargets);
    CStringW& TrimLeft();
    CStringW& TrimLeft(XCHAR chTarget);
    CStringW& TrimLeft(PCXSTR pszTargets);
    CStringW& TrimRight();
    CStringW& TrimRight(XCHAR chTarget);
    CStringW& TrimRight(PCXSTR pszTargets);

    // Formatting with the C runtime's wide printf rules (%s is a wide string, %hs narrow).
    void AFX_CDECL Format(PCXSTR pszFormat, ...);
    void AFX_CDECL Format(UINT nFormatID, ...);
    void FormatV(PCXSTR pszFormat, va_list args);
    void AFX_CDECL AppendFormat(PCXSTR pszFormat, ...);
    void AFX_CDECL AppendFormat(UINT nFormatID, ...);
    void AppendFormatV(PCXSTR pszFormat, va_list args);
    void AFX_CDECL FormatMessage(PCXSTR pszFormat, ...);
    void AFX_CDECL FormatMessage(UINT nFormatID, ...);
    void FormatMessageV(PCXSTR pszFormat, va_list* pArgList);

    // Resources: the string table block is searched with AfxFindResourceHandle, in the
    // thread's UI language, then its neutral sublanguage, then any language.
    BOOL LoadString(UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID);

    BSTR AllocSysString() const;
    BSTR SetSysString(BSTR* pbstr) const;
    BOOL GetEnvironmentVariable(PCXSTR pszVar);

    friend ZOAFX_API CStringW operator+(const CStringW& str1, const CStringW& str2);
    friend ZOAFX_API CStringW operator+(const CStringW& str1, PCXSTR psz2);
    friend ZOAFX_API CStringW operator+(PCXSTR psz1, const CStringW& str2);
    friend ZOAFX_API CStringW operator+(const CStringW& str1, XCHAR ch2);
    friend ZOAFX_API CStringW operator+(XCHAR ch1, const CStringW& str2);
    friend ZOAFX_API CStringW operator+(const CStringW& str1, YCHAR ch2);
    friend ZOAFX_API CStringW operator+(YCHAR ch1, const CStringW& str2);

    friend bool operator==(const CStringW& str1, const CStringW& str2) throw() { return str1.Compare(str2) == 0; }
    friend bool operator==(const CStringW& str1, PCXSTR psz2) throw() { return str1.Compare(psz2) == 0; }
    friend bool operator==(PCXSTR psz1, const CStringW& str2) throw() { return str2.Compare(psz1) == 0; }
    friend bool operator==(const CStringW& str1, PCYSTR psz2) { return str1.Compare(CStringW(psz2)) == 0; }
    friend bool operator==(PCYSTR psz1, const CStringW& str2) { return str2.Compare(CStringW(psz1)) == 0; }
    friend bool operator==(const CStringW& str1, XCHAR ch2) throw() { return str1.GetLength() == 1 && str1.m_pszData[0] == ch2; }
    friend bool operator==(XCHAR ch1, const CStringW& str2) throw() { return str2 == ch1; }
    friend bool operator!=(const CStringW& str1, const CStringW& str2) throw() { return !(str1 == str2); }
    friend bool operator!=(const CStringW& str1, PCXSTR psz2) throw() { return !(str1 == psz2); }
    friend bool operator!=(PCXSTR psz1, const CStringW& str2) throw() { return !(psz1 == str2); }
    friend bool operator!=(const CStringW& str1, PCYSTR psz2) { return !(str1 == psz2); }
    friend bool operator!=(PCYSTR psz1, const CStringW& str2) { return !(psz1 == str2); }
    friend bool operator!=(const CStringW& str1, XCHAR ch2) throw() { return !(str1 == ch2); }
    friend bool operator!=(XCHAR ch1, const CStringW& str2) throw() { return !(ch1 == str2); }
    friend bool operator<(const CStringW& str1, const CStringW& str2) throw() { return str1.Compare(str2) < 0; }
    friend bool operator<(const CStringW& str1, PCXSTR psz2) throw() { return str1.Compare(psz2) < 0; }
    friend bool operator<(PCXSTR psz1, const CStringW& str2) throw() { return str2.Compare(psz1) > 0; }
    friend bool operator>(const CStringW& str1, const CStringW& str2) throw() { return str1.Compare(str2) > 0; }
    friend bool operator>(const CStringW& str1, PCXSTR psz2) throw() { return str1.Compare(psz2) > 0; }
    friend bool operator>(PCXSTR psz1, const CStringW& str2) throw() { return str2.Compare(psz1) < 0; }
    friend bool operator<=(const CStringW& str1, const CStringW& str2) throw() { return str1.Compare(str2) <= 0; }
    friend bool operator<=(const CStringW& str1, PCXSTR psz2) throw() { return str1.Compare(psz2) <= 0; }
    friend bool operator<=(PCXSTR psz1, const CStringW& str2) throw() { return str2.Compare(psz1) >= 0; }
    friend bool operator>=(const CStringW& str1, const CStringW& str2) throw() { return str1.Compare(str2) >= 0; }
    friend bool operator>=(const CStringW& str1, PCXSTR psz2) throw() { return str1.Compare(psz2) >= 0; }
    friend bool operator>=(PCXSTR psz1, const CStringW& str2) throw() { return str2.Compare(psz1) <= 0; }

    struct Data; // header in front of the characters (internal)

private:
    Data* GetData() const throw();
    void Reserve(int nMinAlloc, bool bKeepContents);
    void SetLengthInternal(int nLength);
    void Release() throw();

    PXSTR m_pszData;
};

typedef CStringW CString;

// Copies field iSubString of lpszFullString (fields separated by chSep) to rString;
// FALSE and an empty string when there are fewer fields.
ZOAFX_API BOOL AFXAPI AfxExtractSubString(CString& rString, LPCTSTR lpszFullString,
                                          int iSubString, TCHAR chSep = '\n');
