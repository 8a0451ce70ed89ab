// CString: storage, editing, searching and formatting.
#include "stringdata.h"
#include <wchar.h>
#include <wctype.h>

namespace zoafx {
EmptyString g_emptyString = { { CStringW::Data::kMagic, 0, 0, 0 }, 0 };
} // namespace zoafx

namespace {

zoafx::EmptyString& g_empty = zoafx::g_emptyString;

inline int SafeLength(LPCWSTR psz)
{
    return psz ? (int)wcslen(psz) : 0;
}

// Number of wide characters an ANSI string (of nLength bytes, -1 = terminated) converts to.
int WideLength(LPCSTR psz, int nLength)
{
    if (psz == NULL || nLength == 0)
        return 0;
    int n = MultiByteToWideChar(CP_ACP, 0, psz, nLength, NULL, 0);
    return (nLength < 0 && n > 0) ? n - 1 : n;
}

bool IsInSet(wchar_t ch, LPCWSTR pszSet)
{
    return pszSet != NULL && ch != 0 && wcschr(pszSet, ch) != NULL;
}

} // namespace

CStringW::Data* CStringW::GetData() const throw()
{
    return reinterpret_cast<Data*>(m_pszData) - 1;
}

// Makes the buffer private and able to hold nMinAlloc characters.
void CStringW::Reserve(int nMinAlloc, bool bKeepContents)
{
    if (nMinAlloc < 0)
        AfxThrowInvalidArgException();
    Data* pOld = GetData();
    if (pOld != &g_empty.data && pOld->nAllocLength >= nMinAlloc)
        return;
    int nAlloc = nMinAlloc;
    if (pOld != &g_empty.data && nAlloc < pOld->nAllocLength * 2)
        nAlloc = pOld->nAllocLength * 2; // geometric growth keeps appends linear
    if (nAlloc < 15)
        nAlloc = 15;
    if ((size_t)nAlloc > (INT_MAX - sizeof(Data)) / sizeof(wchar_t) - 1)
        AfxThrowMemoryException();
    Data* pNew = (Data*)malloc(sizeof(Data) + ((size_t)nAlloc + 1) * sizeof(wchar_t));
    if (pNew == NULL)
        AfxThrowMemoryException();
    pNew->nMagic = Data::kMagic;
    pNew->nAllocLength = nAlloc;
    pNew->nLocks = 0;
    pNew->nDataLength = bKeepContents ? pOld->nDataLength : 0;
    if (bKeepContents)
        wmemcpy(pNew->Chars(), pOld->Chars(), pOld->nDataLength);
    pNew->Chars()[pNew->nDataLength] = 0;
    Release();
    m_pszData = pNew->Chars();
}

void CStringW::SetLengthInternal(int nLength)
{
    Data* pData = GetData();
    if (pData == &g_empty.data)
        return;
    pData->nDataLength = nLength;
    m_pszData[nLength] = 0;
}

void CStringW::Release() throw()
{
    Data* pData = GetData();
    if (pData != &g_empty.data)
        free(pData);
    m_pszData = g_empty.data.Chars();
}

// ---- construction and assignment ----

CStringW::CStringW() throw() : m_pszData(g_empty.data.Chars()) { }

CStringW::CStringW(const CStringW& strSrc) : m_pszData(g_empty.data.Chars())
{
    SetString(strSrc.m_pszData, strSrc.GetLength());
}

CStringW::CStringW(CStringW&& strSrc) throw() : m_pszData(strSrc.m_pszData)
{
    strSrc.m_pszData = g_empty.data.Chars();
}

CStringW::CStringW(PCXSTR pszSrc) : m_pszData(g_empty.data.Chars())
{
    if (pszSrc != NULL && IS_INTRESOURCE(pszSrc))
        LoadString((UINT)(UINT_PTR)pszSrc);
    else
        SetString(pszSrc);
}

CStringW::CStringW(PCYSTR pszSrc) : m_pszData(g_empty.data.Chars())
{
    if (pszSrc != NULL && IS_INTRESOURCE(pszSrc))
        LoadString((UINT)(UINT_PTR)pszSrc);
    else
        *this = pszSrc;
}

CStringW::CStringW(const unsigned char* pszSrc) : m_pszData(g_empty.data.Chars())
{
    *this = reinterpret_cast<PCYSTR>(pszSrc);
}

CStringW::CStringW(PCXSTR pch, int nLength) : m_pszData(g_empty.data.Chars())
{
    SetString(pch, nLength);
}

CStringW::CStringW(PCYSTR pch, int nLength) : m_pszData(g_empty.data.Chars())
{
    if (pch == NULL || nLength <= 0)
        return;
    int nWide = WideLength(pch, nLength);
    Reserve(nWide, false);
    MultiByteToWideChar(CP_ACP, 0, pch, nLength, m_pszData, nWide);
    SetLengthInternal(nWide);
}

CStringW::CStringW(XCHAR ch, int nRepeat) : m_pszData(g_empty.data.Chars())
{
    if (nRepeat <= 0)
        return;
    Reserve(nRepeat, false);
    wmemset(m_pszData, ch, nRepeat);
    SetLengthInternal(nRepeat);
}

CStringW::CStringW(YCHAR ch, int nRepeat) : m_pszData(g_empty.data.Chars())
{
    XCHAR wide = 0;
    MultiByteToWideChar(CP_ACP, 0, &ch, 1, &wide, 1);
    *this = CStringW(wide, nRepeat);
}

CStringW::~CStringW() throw()
{
    Release();
}

CStringW& CStringW::operator=(const CStringW& strSrc)
{
    if (this != &strSrc)
        SetString(strSrc.m_pszData, strSrc.GetLength());
    return *this;
}

CStringW& CStringW::operator=(CStringW&& strSrc) throw()
{
    if (this != &strSrc)
    {
        Release();
        m_pszData = strSrc.m_pszData;
        strSrc.m_pszData = g_empty.data.Chars();
    }
    return *this;
}

CStringW& CStringW::operator=(PCXSTR pszSrc)
{
    SetString(pszSrc);
    return *this;
}

CStringW& CStringW::operator=(PCYSTR pszSrc)
{
    int nWide = WideLength(pszSrc, -1);
    if (nWide == 0)
    {
        Empty();
        return *this;
    }
    CStringW converted;
    converted.Reserve(nWide, false);
    MultiByteToWideChar(CP_ACP, 0, pszSrc, -1, converted.m_pszData, nWide + 1);
    converted.SetLengthInternal(nWide);
    return *this = static_cast<CStringW&&>(converted);
}

CStringW& CStringW::operator=(const unsigned char* pszSrc)
{
    return *this = reinterpret_cast<PCYSTR>(pszSrc);
}

CStringW& CStringW::operator=(XCHAR ch)
{
    SetString(&ch, 1);
    return *this;
}

CStringW& CStringW::operator=(YCHAR ch)
{
    return *this = CStringW(ch);
}

CStringW& CStringW::operator+=(const CStringW& str)
{
    Append(str);
    return *this;
}

CStringW& CStringW::operator+=(PCXSTR pszSrc)
{
    Append(pszSrc);
    return *this;
}

CStringW& CStringW::operator+=(PCYSTR pszSrc)
{
    Append(CStringW(pszSrc));
    return *this;
}

CStringW& CStringW::operator+=(XCHAR ch)
{
    AppendChar(ch);
    return *this;
}

CStringW& CStringW::operator+=(YCHAR ch)
{
    Append(CStringW(ch));
    return *this;
}

// ---- access ----

int CStringW::GetLength() const throw() { return GetData()->nDataLength; }
int CStringW::GetAllocLength() const throw() { return GetData()->nAllocLength; }
bool CStringW::IsEmpty() const throw() { return GetLength() == 0; }

void CStringW::Empty() throw()
{
    if (GetData()->nLocks > 0)
        SetLengthInternal(0); // a locked buffer stays in place
    else
        Release();
}

CStringW::XCHAR CStringW::GetAt(int iChar) const
{
    if (iChar < 0 || iChar > GetLength())
        AfxThrowInvalidArgException();
    return m_pszData[iChar];
}

void CStringW::SetAt(int iChar, XCHAR ch)
{
    if (iChar < 0 || iChar >= GetLength())
        AfxThrowInvalidArgException();
    m_pszData[iChar] = ch;
}

CStringW::XCHAR CStringW::operator[](int iChar) const
{
    return GetAt(iChar);
}

void CStringW::SetString(PCXSTR pszSrc)
{
    SetString(pszSrc, SafeLength(pszSrc));
}

void CStringW::SetString(PCXSTR pszSrc, int nLength)
{
    if (pszSrc == NULL || nLength <= 0)
    {
        Empty();
        return;
    }
    // The source may live inside this string's own buffer.
    CStringW copy;
    copy.Reserve(nLength, false);
    wmemcpy(copy.m_pszData, pszSrc, nLength);
    copy.SetLengthInternal(nLength);
    if (GetData()->nLocks > 0 && GetAllocLength() >= nLength)
    {
        wmemcpy(m_pszData, copy.m_pszData, nLength);
        SetLengthInternal(nLength);
        return;
    }
    *this = static_cast<CStringW&&>(copy);
}

void CStringW::Append(PCXSTR pszSrc)
{
    Append(pszSrc, SafeLength(pszSrc));
}

void CStringW::Append(PCXSTR pszSrc, int nLength)
{
    if (pszSrc == NULL || nLength <= 0)
        return;
    int nOld = GetLength();
    if (nLength > INT_MAX - nOld - 1)
        AfxThrowMemoryException();
    if (pszSrc >= m_pszData && pszSrc <= m_pszData + nOld)
    {
        CStringW copy(pszSrc, nLength); // appending a part of itself
        Append(copy.m_pszData, nLength);
        return;
    }
    Reserve(nOld + nLength, true);
    wmemcpy(m_pszData + nOld, pszSrc, nLength);
    SetLengthInternal(nOld + nLength);
}

void CStringW::Append(const CStringW& strSrc)
{
    Append(strSrc.m_pszData, strSrc.GetLength());
}

void CStringW::AppendChar(XCHAR ch)
{
    Append(&ch, 1);
}

// ---- buffer ----

CStringW::PXSTR CStringW::GetBuffer()
{
    Reserve(GetLength(), true);
    return m_pszData;
}

CStringW::PXSTR CStringW::GetBuffer(int nMinBufferLength)
{
    if (nMinBufferLength < 0)
        AfxThrowInvalidArgException();
    Reserve(nMinBufferLength > GetLength() ? nMinBufferLength : GetLength(), true);
    return m_pszData;
}

CStringW::PXSTR CStringW::GetBufferSetLength(int nLength)
{
    if (nLength < 0)
        AfxThrowInvalidArgException();
    if (nLength == 0 && GetData() == &g_empty.data)
        Reserve(0, false);
    GetBuffer(nLength);
    SetLengthInternal(nLength);
    return m_pszData;
}

void CStringW::ReleaseBuffer(int nNewLength)
{
    Data* pData = GetData();
    if (pData == &g_empty.data)
        return;
    if (nNewLength < 0)
    {
        // The caller wrote a terminated string; never read past the allocation.
        const wchar_t* end = wmemchr(m_pszData, 0, pData->nAllocLength + 1);
        nNewLength = end ? (int)(end - m_pszData) : pData->nAllocLength;
    }
    if (nNewLength > pData->nAllocLength)
        nNewLength = pData->nAllocLength;
    SetLengthInternal(nNewLength);
}

void CStringW::ReleaseBufferSetLength(int nNewLength)
{
    if (nNewLength < 0)
        AfxThrowInvalidArgException();
    ReleaseBuffer(nNewLength);
}

CStringW::PXSTR CStringW::LockBuffer()
{
    Reserve(GetLength(), true);
    GetData()->nLocks++;
    return m_pszData;
}

void CStringW::UnlockBuffer() throw()
{
    Data* pData = GetData();
    if (pData != &g_empty.data && pData->nLocks > 0)
        pData->nLocks--;
}

void CStringW::Preallocate(int nLength)
{
    if (nLength > GetAllocLength())
        Reserve(nLength, true);
}

void CStringW::FreeExtra()
{
    int nLength = GetLength();
    if (GetData() == &g_empty.data || GetData()->nLocks > 0 || GetAllocLength() == nLength)
        return;
    if (nLength == 0)
    {
        Release();
        return;
    }
    CStringW copy(m_pszData, nLength); // allocates only what it needs
    *this = static_cast<CStringW&&>(copy);
}

void CStringW::Truncate(int nNewLength)
{
    if (nNewLength < 0 || nNewLength > GetLength())
        AfxThrowInvalidArgException();
    if (nNewLength < GetLength())
        SetLengthInternal(nNewLength);
}

// ---- comparison ----

int CStringW::Compare(PCXSTR psz) const
{
    return wcscmp(m_pszData, psz ? psz : L"");
}

int CStringW::CompareNoCase(PCXSTR psz) const
{
    return _wcsicmp(m_pszData, psz ? psz : L"");
}

int CStringW::Collate(PCXSTR psz) const
{
    return wcscoll(m_pszData, psz ? psz : L"");
}

int CStringW::CollateNoCase(PCXSTR psz) const
{
    return _wcsicoll(m_pszData, psz ? psz : L"");
}

// ---- search ----

int CStringW::Find(XCHAR ch, int iStart) const throw()
{
    int nLength = GetLength();
    if (iStart < 0 || iStart >= nLength)
        return -1;
    const wchar_t* p = wmemchr(m_pszData + iStart, ch, nLength - iStart);
    return p ? (int)(p - m_pszData) : -1;
}

int CStringW::Find(PCXSTR pszSub, int iStart) const throw()
{
    int nLength = GetLength();
    if (pszSub == NULL || iStart < 0 || iStart > nLength)
        return -1;
    const wchar_t* p = wcsstr(m_pszData + iStart, pszSub);
    return p ? (int)(p - m_pszData) : -1;
}

int CStringW::FindOneOf(PCXSTR pszCharSet) const throw()
{
    if (pszCharSet == NULL)
        return -1;
    int n = (int)wcscspn(m_pszData, pszCharSet);
    return n < GetLength() ? n : -1;
}

int CStringW::ReverseFind(XCHAR ch) const throw()
{
    for (int i = GetLength() - 1; i >= 0; --i)
        if (m_pszData[i] == ch)
            return i;
    return -1;
}

// ---- case and order ----

CStringW& CStringW::MakeLower()
{
    if (!IsEmpty())
    {
        GetBuffer();
        CharLowerBuffW(m_pszData, GetLength());
    }
    return *this;
}

CStringW& CStringW::MakeUpper()
{
    if (!IsEmpty())
    {
        GetBuffer();
        CharUpperBuffW(m_pszData, GetLength());
    }
    return *this;
}

CStringW& CStringW::MakeReverse()
{
    if (!IsEmpty())
    {
        GetBuffer();
        for (int i = 0, j = GetLength() - 1; i < j; ++i, --j)
        {
            wchar_t t = m_pszData[i];
            m_pszData[i] = m_pszData[j];
            m_pszData[j] = t;
        }
    }
    return *this;
}

// ---- extraction ----

CStringW CStringW::Left(int nCount) const
{
    if (nCount < 0)
        nCount = 0;
    if (nCount >= GetLength())
        return *this;
    return CStringW(m_pszData, nCount);
}

CStringW CStringW::Right(int nCount) const
{
    if (nCount < 0)
        nCount = 0;
    int nLength = GetLength();
    if (nCount >= nLength)
        return *this;
    return CStringW(m_pszData + nLength - nCount, nCount);
}

CStringW CStringW::Mid(int iFirst) const
{
    return Mid(iFirst, GetLength() - (iFirst < 0 ? 0 : iFirst));
}

CStringW CStringW::Mid(int iFirst, int nCount) const
{
    int nLength = GetLength();
    if (iFirst < 0)
        iFirst = 0;
    if (nCount < 0)
        nCount = 0;
    if (iFirst > nLength)
        iFirst = nLength;
    if (nCount > nLength - iFirst)
        nCount = nLength - iFirst;
    if (iFirst == 0 && nCount == nLength)
        return *this;
    return CStringW(m_pszData + iFirst, nCount);
}

CStringW CStringW::SpanIncluding(PCXSTR pszCharSet) const
{
    if (pszCharSet == NULL)
        return CStringW();
    return Left((int)wcsspn(m_pszData, pszCharSet));
}

CStringW CStringW::SpanExcluding(PCXSTR pszCharSet) const
{
    if (pszCharSet == NULL)
        return *this;
    return Left((int)wcscspn(m_pszData, pszCharSet));
}

CStringW CStringW::Tokenize(PCXSTR pszTokens, int& iStart) const
{
    int nLength = GetLength();
    if (iStart < 0 || iStart >= nLength)
    {
        iStart = -1;
        return CStringW();
    }
    if (pszTokens == NULL || *pszTokens == 0)
    {
        CStringW rest(m_pszData + iStart, nLength - iStart);
        iStart = nLength;
        return rest;
    }
    const wchar_t* pStart = m_pszData + iStart;
    pStart += wcsspn(pStart, pszTokens);
    if (pStart >= m_pszData + nLength)
    {
        iStart = -1;
        return CStringW();
    }
    int nToken = (int)wcscspn(pStart, pszTokens);
    int iToken = (int)(pStart - m_pszData);
    iStart = iToken + nToken + 1; // past the delimiter that ended the token
    return CStringW(pStart, nToken);
}

// ---- editing ----

int CStringW::Replace(XCHAR chOld, XCHAR chNew)
{
    int nCount = 0;
    int nLength = GetLength();
    for (int i = 0; i < nLength; ++i)
    {
        if (m_pszData[i] == chOld)
        {
            if (nCount++ == 0)
                GetBuffer();
            m_pszData[i] = chNew;
        }
    }
    return nCount;
}

int CStringW::Replace(PCXSTR pszOld, PCXSTR pszNew)
{
    int nOld = SafeLength(pszOld);
    if (nOld == 0)
        return 0;
    int nNew = SafeLength(pszNew);
    CStringW result;
    int nCount = 0;
    const wchar_t* p = m_pszData;
    for (const wchar_t* hit; (hit = wcsstr(p, pszOld)) != NULL; p = hit + nOld)
    {
        result.Append(p, (int)(hit - p));
        result.Append(pszNew, nNew);
        ++nCount;
    }
    if (nCount == 0)
        return 0;
    result.Append(p, GetLength() - (int)(p - m_pszData));
    *this = static_cast<CStringW&&>(result);
    return nCount;
}

int CStringW::Remove(XCHAR chRemove)
{
    int nLength = GetLength();
    if (Find(chRemove) < 0)
        return 0;
    GetBuffer();
    int nKept = 0;
    for (int i = 0; i < nLength; ++i)
        if (m_pszData[i] != chRemove)
            m_pszData[nKept++] = m_pszData[i];
    SetLengthInternal(nKept);
    return nLength - nKept;
}

int CStringW::Insert(int iIndex, XCHAR ch)
{
    XCHAR text[2] = { ch, 0 };
    return Insert(iIndex, text);
}

int CStringW::Insert(int iIndex, PCXSTR psz)
{
    int nLength = GetLength();
    if (iIndex < 0)
        iIndex = 0;
    if (iIndex > nLength)
        iIndex = nLength;
    int nInsert = SafeLength(psz);
    if (nInsert > 0)
    {
        CStringW result(m_pszData, iIndex);
        result.Append(psz, nInsert);
        result.Append(m_pszData + iIndex, nLength - iIndex);
        *this = static_cast<CStringW&&>(result);
    }
    return GetLength();
}

int CStringW::Delete(int iIndex, int nCount)
{
    int nLength = GetLength();
    if (iIndex < 0)
        iIndex = 0;
    if (nCount > 0 && iIndex < nLength)
    {
        if (nCount > nLength - iIndex)
            nCount = nLength - iIndex;
        GetBuffer();
        wmemmove(m_pszData + iIndex, m_pszData + iIndex + nCount, nLength - iIndex - nCount);
        SetLengthInternal(nLength - nCount);
    }
    return GetLength();
}

namespace {

// Rules for what Trim removes: white space, one character, or any of a set.
struct TrimWhiteSpace { bool operator()(wchar_t ch) const { return iswspace(ch) != 0; } };
struct TrimChar { wchar_t target; bool operator()(wchar_t ch) const { return ch == target; } };
struct TrimSet { LPCWSTR set; bool operator()(wchar_t ch) const { return IsInSet(ch, set); } };

template <class Rule>
void TrimBounds(LPCWSTR psz, int nLength, bool bLeft, bool bRight, Rule rule, int& iFirst, int& iEnd)
{
    iFirst = 0;
    iEnd = nLength;
    if (bLeft)
        while (iFirst < iEnd && rule(psz[iFirst]))
            ++iFirst;
    if (bRight)
        while (iEnd > iFirst && rule(psz[iEnd - 1]))
            --iEnd;
}

} // namespace

#define ZOAFX_TRIM(method, bLeft, bRight, param, rule) \
    CStringW& CStringW::method(param) \
    { \
        int iFirst, iEnd; \
        TrimBounds(m_pszData, GetLength(), bLeft, bRight, rule, iFirst, iEnd); \
        if (iFirst > 0 || iEnd < GetLength()) \
            *this = Mid(iFirst, iEnd - iFirst); \
        return *this; \
    }

ZOAFX_TRIM(Trim, true, true, , TrimWhiteSpace())
ZOAFX_TRIM(Trim, true, true, XCHAR chTarget, TrimChar{chTarget})
ZOAFX_TRIM(Trim, true, true, PCXSTR pszTargets, TrimSet{pszTargets})
ZOAFX_TRIM(TrimLeft, true, false, , TrimWhiteSpace())
ZOAFX_TRIM(TrimLeft, true, false, XCHAR chTarget, TrimChar{chTarget})
ZOAFX_TRIM(TrimLeft, true, false, PCXSTR pszTargets, TrimSet{pszTargets})
ZOAFX_TRIM(TrimRight, false, true, , TrimWhiteSpace())
ZOAFX_TRIM(TrimRight, false, true, XCHAR chTarget, TrimChar{chTarget})
ZOAFX_TRIM(TrimRight, false, true, PCXSTR pszTargets, TrimSet{pszTargets})

// ---- concatenation ----

CStringW operator+(const CStringW& str1, const CStringW& str2)
{
    CStringW result(str1);
    result.Append(str2);
    return result;
}

CStringW operator+(const CStringW& str1, CStringW::PCXSTR psz2)
{
    CStringW result(str1);
    result.Append(psz2);
    return result;
}

CStringW operator+(CStringW::PCXSTR psz1, const CStringW& str2)
{
    CStringW result;
    result.SetString(psz1);
    result.Append(str2);
    return result;
}

CStringW operator+(const CStringW& str1, CStringW::XCHAR ch2)
{
    CStringW result(str1);
    result.AppendChar(ch2);
    return result;
}

CStringW operator+(CStringW::XCHAR ch1, const CStringW& str2)
{
    CStringW result(ch1);
    result.Append(str2);
    return result;
}

CStringW operator+(const CStringW& str1, CStringW::YCHAR ch2)
{
    return str1 + CStringW(ch2);
}

CStringW operator+(CStringW::YCHAR ch1, const CStringW& str2)
{
    return CStringW(ch1) + str2;
}

// ---- system strings and environment ----

BSTR CStringW::AllocSysString() const
{
    BSTR bstr = ::SysAllocStringLen(m_pszData, (UINT)GetLength());
    if (bstr == NULL)
        AfxThrowMemoryException();
    return bstr;
}

BSTR CStringW::SetSysString(BSTR* pbstr) const
{
    if (pbstr == NULL)
        AfxThrowInvalidArgException();
    if (!::SysReAllocStringLen(pbstr, m_pszData, (UINT)GetLength()))
        AfxThrowMemoryException();
    return *pbstr;
}

BOOL CStringW::GetEnvironmentVariable(PCXSTR pszVar)
{
    Empty();
    if (pszVar == NULL)
        return FALSE;
    DWORD nSize = ::GetEnvironmentVariableW(pszVar, NULL, 0);
    if (nSize == 0)
        return FALSE;
    DWORD nCopied = ::GetEnvironmentVariableW(pszVar, GetBuffer((int)nSize), nSize);
    ReleaseBuffer(nCopied < nSize ? (int)nCopied : 0);
    return nCopied > 0 && nCopied < nSize;
}

BOOL AFXAPI AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString, TCHAR chSep)
{
    rString.Empty();
    if (lpszFullString == NULL || iSubString < 0)
        return FALSE;
    for (; iSubString > 0; --iSubString)
    {
        lpszFullString = wcschr(lpszFullString, chSep);
        if (lpszFullString == NULL || chSep == 0)
            return FALSE;
        ++lpszFullString; // past the separator
    }
    const wchar_t* end = chSep ? wcschr(lpszFullString, chSep) : NULL;
    int nLength = end ? (int)(end - lpszFullString) : (int)wcslen(lpszFullString);
    rString.SetString(lpszFullString, nLength);
    return TRUE;
}
