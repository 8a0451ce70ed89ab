// CString formatting and string resources. The C runtime's Microsoft printf family is used
// (not MinGW's C99 one) so that %s in a wide format means a wide string, as in MFC.
#include "stringdata.h"
#include <wchar.h>

namespace {

// Languages tried for a string table block, best first; 0xFFFF marks "any language".
int StringLanguages(WORD languages[], int nMax)
{
    const LANGID thread = GetThreadUILanguage();
    const LANGID user = GetUserDefaultUILanguage();
    const WORD candidates[] = {
        thread,
        MAKELANGID(PRIMARYLANGID(thread), SUBLANG_NEUTRAL),
        user,
        MAKELANGID(PRIMARYLANGID(user), SUBLANG_NEUTRAL),
        MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL),
        0xFFFF,
    };
    int n = 0;
    for (WORD candidate : candidates)
    {
        bool seen = false;
        for (int i = 0; i < n; ++i)
            seen = seen || languages[i] == candidate;
        if (!seen && n < nMax)
            languages[n++] = candidate;
    }
    return n;
}

// The entry of string nID in a loaded string table block: length and characters.
bool FindStringInBlock(HINSTANCE hInstance, HRSRC hResource, UINT nID, LPCWSTR& pText, int& nLength)
{
    HGLOBAL hGlobal = LoadResource(hInstance, hResource);
    const WORD* p = hGlobal ? (const WORD*)LockResource(hGlobal) : NULL;
    DWORD nBytes = SizeofResource(hInstance, hResource);
    if (p == NULL)
        return false;
    const WORD* end = p + nBytes / sizeof(WORD);
    for (UINT i = 0; i < (nID & 15); ++i)
    {
        if (p >= end)
            return false;
        p += 1 + *p; // skip length word and characters
    }
    if (p >= end || p + 1 + *p > end)
        return false;
    nLength = *p;
    pText = (LPCWSTR)(p + 1);
    return true;
}

bool LoadStringFromBlock(CString& str, HINSTANCE hInstance, HRSRC hResource, UINT nID)
{
    LPCWSTR pText = NULL;
    int nLength = 0;
    if (hResource == NULL || !FindStringInBlock(hInstance, hResource, nID, pText, nLength) || nLength == 0)
        return false;
    str.SetString(pText, nLength);
    return true;
}

inline LPCWSTR StringBlockName(UINT nID)
{
    return MAKEINTRESOURCEW((nID >> 4) + 1);
}

// ---- CString objects passed through "..." ----
//
// GCC passes a class with a copy constructor to "..." as the address of a temporary copy,
// so a CString given for %s arrives as a pointer to the object, not to its characters.
// The object is one pointer to characters that follow a header with a magic number, which
// lets Format recognise such an argument and replace it in the argument area by the
// characters themselves. Every memory read is checked first; a real text pointer is never
// mistaken for an object unless its first bytes happen to address a string buffer.

static_assert(sizeof(va_list) == sizeof(char*), "argument walking needs a pointer-like va_list");

bool IsReadable(const void* p, size_t nBytes)
{
    const char* begin = static_cast<const char*>(p);
    const char* end = begin + nBytes;
    while (begin < end)
    {
        MEMORY_BASIC_INFORMATION info;
        if (VirtualQuery(begin, &info, sizeof(info)) == 0 || info.State != MEM_COMMIT
            || (info.Protect & (PAGE_NOACCESS | PAGE_GUARD)) != 0)
            return false;
        begin = static_cast<const char*>(info.BaseAddress) + info.RegionSize;
    }
    return true;
}

// The characters of the CString object at pArg, or NULL when pArg is not one.
LPCWSTR CharsOfStringObject(const void* pArg)
{
    if (pArg == NULL || ((UINT_PTR)pArg % sizeof(void*)) != 0 || !IsReadable(pArg, sizeof(void*)))
        return NULL;
    wchar_t* pChars = *static_cast<wchar_t* const*>(pArg);
    if (pChars == zoafx::g_emptyString.data.Chars())
        return pChars;
    if (pChars == NULL || ((UINT_PTR)pChars % sizeof(int)) != 0)
        return NULL;
    const CStringW::Data* pData = reinterpret_cast<const CStringW::Data*>(pChars) - 1;
    if (!IsReadable(pData, sizeof(CStringW::Data)) || pData->nMagic != CStringW::Data::kMagic
        || pData->nDataLength < 0 || pData->nDataLength > pData->nAllocLength)
        return NULL;
    if (!IsReadable(pChars, ((size_t)pData->nDataLength + 1) * sizeof(wchar_t)) || pChars[pData->nDataLength] != 0)
        return NULL;
    return pChars;
}

// Bytes one argument of the given conversion occupies in the argument area (0: unknown).
size_t ArgumentSize(wchar_t conversion, bool b64)
{
    const size_t nSlot = sizeof(void*);
    switch (conversion)
    {
    case 'd': case 'i': case 'u': case 'o': case 'x': case 'X': case 'c': case 'C':
        return b64 ? (8 > nSlot ? 8 : nSlot) : nSlot;
    case 'e': case 'E': case 'f': case 'F': case 'g': case 'G': case 'a': case 'A':
        return 8 > nSlot ? 8 : nSlot;
    case 's': case 'S': case 'Z': case 'p': case 'n':
        return nSlot;
    default:
        return 0;
    }
}

// Walks the arguments of pszFormat and turns each CString object given for a wide %s into
// its characters. Stops at anything it cannot size.
void RepairStringArguments(LPCWSTR pszFormat, va_list args)
{
    char* pCursor = (char*)args;
    for (const wchar_t* p = pszFormat; *p != 0; ++p)
    {
        if (*p != '%')
            continue;
        if (*++p == '%')
            continue;
        while (*p == '-' || *p == '+' || *p == ' ' || *p == '#' || *p == '0')
            ++p;
        if (*p == '*')
        {
            pCursor += sizeof(void*);
            ++p;
        }
        while (*p >= '0' && *p <= '9')
            ++p;
        if (*p == '.')
        {
            if (*++p == '*')
            {
                pCursor += sizeof(void*);
                ++p;
            }
            while (*p >= '0' && *p <= '9')
                ++p;
        }
        bool b64 = false, bNarrow = false;
        if (p[0] == 'I' && p[1] == '6' && p[2] == '4')
            b64 = true, p += 3;
        else if (p[0] == 'I' && p[1] == '3' && p[2] == '2')
            p += 3;
        else if (p[0] == 'l' && p[1] == 'l')
            b64 = true, p += 2;
        else if (*p == 'I' || *p == 'z' || *p == 't')
            b64 = sizeof(void*) == 8, ++p;
        else if (*p == 'j')
            b64 = true, ++p;
        else if (*p == 'h')
            bNarrow = true, p += (p[1] == 'h') ? 2 : 1;
        else if (*p == 'l' || *p == 'w' || *p == 'L')
            ++p;
        size_t nSize = ArgumentSize(*p, b64);
        if (nSize == 0)
            return;
        if (*p == 's' && !bNarrow)
        {
            void** pSlot = reinterpret_cast<void**>(pCursor);
            if (LPCWSTR pChars = CharsOfStringObject(*pSlot))
                *pSlot = const_cast<LPWSTR>(pChars);
        }
        pCursor += nSize;
    }
}

} // namespace

// ---- formatting ----

void CStringW::FormatV(PCXSTR pszFormat, va_list args)
{
    if (pszFormat == NULL)
        AfxThrowInvalidArgException();
    CStringW result; // the arguments may point into this string
    result.AppendFormatV(pszFormat, args);
    *this = static_cast<CStringW&&>(result);
}

void CStringW::AppendFormatV(PCXSTR pszFormat, va_list args)
{
    if (pszFormat == NULL)
        AfxThrowInvalidArgException();
    RepairStringArguments(pszFormat, args);
    va_list measure;
    va_copy(measure, args);
    int nAdded = _vscwprintf(pszFormat, measure);
    va_end(measure);
    if (nAdded <= 0)
        return; // nothing to add, or a format the runtime rejects
    // Formatting into a temporary lets arguments refer to this string itself.
    CStringW added;
    PXSTR buffer = added.GetBuffer(nAdded);
    _vsnwprintf(buffer, (size_t)nAdded + 1, pszFormat, args);
    buffer[nAdded] = 0;
    added.ReleaseBuffer(nAdded);
    Append(added);
}

void AFX_CDECL CStringW::Format(PCXSTR pszFormat, ...)
{
    va_list args;
    va_start(args, pszFormat);
    FormatV(pszFormat, args);
    va_end(args);
}

void AFX_CDECL CStringW::Format(UINT nFormatID, ...)
{
    CStringW format;
    format.LoadString(nFormatID);
    va_list args;
    va_start(args, nFormatID);
    FormatV(format, args);
    va_end(args);
}

void AFX_CDECL CStringW::AppendFormat(PCXSTR pszFormat, ...)
{
    va_list args;
    va_start(args, pszFormat);
    AppendFormatV(pszFormat, args);
    va_end(args);
}

void AFX_CDECL CStringW::AppendFormat(UINT nFormatID, ...)
{
    CStringW format;
    format.LoadString(nFormatID);
    va_list args;
    va_start(args, nFormatID);
    AppendFormatV(format, args);
    va_end(args);
}

void CStringW::FormatMessageV(PCXSTR pszFormat, va_list* pArgList)
{
    if (pszFormat == NULL)
        AfxThrowInvalidArgException();
    LPWSTR pszResult = NULL;
    DWORD n = ::FormatMessageW(FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER, pszFormat, 0, 0,
                               (LPWSTR)&pszResult, 0, pArgList);
    if (n == 0 && *pszFormat != 0)
    {
        if (pszResult != NULL)
            LocalFree(pszResult);
        AfxThrowMemoryException();
    }
    SetString(pszResult, (int)n);
    if (pszResult != NULL)
        LocalFree(pszResult);
}

void AFX_CDECL CStringW::FormatMessage(PCXSTR pszFormat, ...)
{
    va_list args;
    va_start(args, pszFormat);
    FormatMessageV(pszFormat, &args);
    va_end(args);
}

void AFX_CDECL CStringW::FormatMessage(UINT nFormatID, ...)
{
    CStringW format;
    format.LoadString(nFormatID);
    va_list args;
    va_start(args, nFormatID);
    FormatMessageV(format, &args);
    va_end(args);
}

// ---- string resources ----

BOOL CStringW::LoadString(UINT nID)
{
    if (nID > 0xFFFF)
        return FALSE;
    return LoadString(AfxFindResourceHandle(StringBlockName(nID), RT_STRING), nID);
}

BOOL CStringW::LoadString(HINSTANCE hInstance, UINT nID)
{
    if (nID > 0xFFFF || hInstance == NULL)
        return FALSE;
    WORD languages[8];
    int nLanguages = StringLanguages(languages, _countof(languages));
    for (int i = 0; i < nLanguages; ++i)
    {
        HRSRC hResource = languages[i] == 0xFFFF
            ? FindResourceW(hInstance, StringBlockName(nID), RT_STRING)
            : FindResourceExW(hInstance, RT_STRING, StringBlockName(nID), languages[i]);
        if (hResource != NULL)
            return LoadStringFromBlock(*this, hInstance, hResource, nID);
    }
    return FALSE;
}

BOOL CStringW::LoadString(HINSTANCE hInstance, UINT nID, WORD wLanguageID)
{
    if (nID > 0xFFFF || hInstance == NULL)
        return FALSE;
    HRSRC hResource = FindResourceExW(hInstance, RT_STRING, StringBlockName(nID), wLanguageID);
    return LoadStringFromBlock(*this, hInstance, hResource, nID);
}
