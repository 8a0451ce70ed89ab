// CString formatting and string resources. The C runtime's Microsoft printf family is used
// (not MinGW's C99 one) so that %s in a wide format means a wide string, as in MFC.
#include <afx.h>
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
