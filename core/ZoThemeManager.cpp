#include <afxwin.h>
#include <gdiplus.h>

#include "ZoHostPath.h"
#include "ZoThemeManager.h"
#include "ZoThemeMath.h"
#include "ZoThemeTables.h"

namespace ZoControls {

namespace {

const DWORD kOpaqueBlack = 0xFF000000;
const int kProfileBufferLength = 2048;
const int kLocaleFieldLength = 9;
const wchar_t kDefaultLocale[] = L"en-US";
const wchar_t kFontsIniName[] = L"Fonts.ini";

// GDI+'s generic sans-serif family: fetched once, owned by GDI+ for the life of the process.
Gdiplus::GpFontFamily* g_pGenericSansSerif = NULL;

} // namespace

CZoThemeManager::InternalFontMap CZoThemeManager::s_aDefaultFontMap[ZoThemeFont_Count] = {
    {L"Segoe UI", 7, false, false, 0},  {L"Segoe UI", 8, false, false, 0},
    {L"Segoe UI", 9, false, false, 0},  {L"Segoe UI", 10, false, false, 0},
    {L"Segoe UI", 11, false, false, 0}, {L"Segoe UI", 12, false, false, 0},
    {L"Segoe UI", 13, false, false, 0}, {L"Segoe UI", 14, false, false, 0},
    {L"Segoe UI", 7, true, false, 0},   {L"Segoe UI", 8, true, false, 0},
    {L"Segoe UI", 9, true, false, 0},   {L"Segoe UI", 10, true, false, 0},
    {L"Segoe UI", 11, true, false, 0},  {L"Segoe UI", 7, false, false, 900},
};
CZoThemeManager::InternalFontMap* CZoThemeManager::s_paFontMap = NULL;
CZoThemeManager* CZoThemeManager::_pSelf = NULL;

CZoThemeManager::CZoThemeManager()
{
    for (int theme = 0; theme < ZoTheme_Count; ++theme)
        for (int slot = 0; slot < ZoThemeColor_Count; ++slot)
            m_aColorTable[theme][slot] = kOpaqueBlack;
    for (int size = 0; size < ZoMonitorSize_Count; ++size)
        for (int font = 0; font < ZoThemeFont_Count; ++font)
            m_apFontCache[size][font] = NULL;
    for (int i = 0; i < kZoPaletteSize; ++i)
        m_aPalette[i] = kOpaqueBlack;
    m_strFontName = L"Segoe UI";
    _checkValidFont(m_strFontName);
}

CZoThemeManager::~CZoThemeManager()
{
}

bool CZoThemeManager::InitInstance()
{
    if (!_pSelf)
        _pSelf = new CZoThemeManager();
    return _pSelf->Init();
}

void CZoThemeManager::FreeInstance()
{
    if (!_pSelf)
        return;
    _pSelf->_freeFonts();
    delete _pSelf;
    _pSelf = NULL;
}

const CZoThemeManager* CZoThemeManager::GetInstance()
{
    return _pSelf;
}

bool CZoThemeManager::Init()
{
    return _initializeColorMap() && _initializeColorTable() && _initializeFonts();
}

COLORREF CZoThemeManager::GetGDIColor(E_ZoThemeColors slot, E_ZoTheme /*theme*/) const
{
    if (slot < 0 || slot >= ZoThemeColor_Count)
        return ZoArgbToColorRef(kOpaqueBlack);
    return ZoArgbToColorRef(m_aColorTable[ZoTheme_Default][slot]);
}

Gdiplus::Color CZoThemeManager::GetGDIPlusColor(E_ZoThemeColors slot, E_ZoTheme /*theme*/) const
{
    if (slot < 0 || slot >= ZoThemeColor_Count)
        return Gdiplus::Color(kOpaqueBlack);
    return Gdiplus::Color(m_aColorTable[ZoTheme_Default][slot]);
}

const CFont* CZoThemeManager::GetCacheGDIFont(E_ZoThemeFont font, E_ZoMonitorSize size) const
{
    if (font < 0 || font >= ZoThemeFont_Count || size < 0 || size >= ZoMonitorSize_Count)
        return NULL;
    return m_apFontCache[size][font];
}

CString CZoThemeManager::GetFontName() const
{
    return m_strFontName;
}

float CZoThemeManager::GetZoomFactor(E_ZoMonitorSize size) const
{
    return ZoZoomFactorOf(size);
}

bool CZoThemeManager::_initializeColorMap()
{
    for (int i = 0; i < kZoPaletteSize; ++i)
        m_aPalette[i] = kZoPaletteArgb[i];
    return true;
}

bool CZoThemeManager::_initializeColorTable()
{
    for (int slot = 0; slot < ZoThemeColor_Count; ++slot) {
        const ZoColorSlotSource& source = kZoColorSlotSources[slot];
        m_aColorTable[ZoTheme_Default][slot] =
            source.paletteIndex < 0 ? source.literalArgb : m_aPalette[source.paletteIndex];
    }
    return true;
}

bool CZoThemeManager::_initializeFonts()
{
    const CString file = _getFontSettingFile();
    if (!file.IsEmpty())
        _resetLocaleFonts(file);

    for (int size = 0; size < ZoMonitorSize_Count; ++size) {
        const float zoom = ZoZoomFactorOf(size);
        for (int role = 0; role < ZoThemeFont_Count; ++role) {
            const InternalFontMap& entry = s_paFontMap ? s_paFontMap[role] : s_aDefaultFontMap[role];
            CFont* pFont = new CFont;
            CString face = entry.face;
            _checkValidFont(face);
            const int height = ZoFontPixelHeight(entry.size, zoom);
            HFONT hFont = ::CreateFontW(-height, 0, entry.escapement, 0, entry.bold ? FW_BOLD : FW_NORMAL,
                                        entry.italic, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                                        CLIP_DEFAULT_PRECIS, PROOF_QUALITY, DEFAULT_PITCH, face);
            if (!pFont->Attach(hFont)) {
                delete pFont;
                return false;
            }
            m_apFontCache[size][role] = pFont;
        }
    }
    return true;
}

void CZoThemeManager::_freeFonts()
{
    for (int size = 0; size < ZoMonitorSize_Count; ++size)
        for (int role = 0; role < ZoThemeFont_Count; ++role) {
            CFont* pFont = m_apFontCache[size][role];
            if (pFont) {
                pFont->DeleteObject();
                delete pFont;
                m_apFontCache[size][role] = NULL;
            }
        }
    delete[] s_paFontMap;
    s_paFontMap = NULL;
}

CString CZoThemeManager::_getFontSettingFile() const
{
    const CString exePath = ZoGetHostExecutablePath();
    CString directory;
    const int lastSlash = exePath.ReverseFind(L'\\');
    if (lastSlash >= 0) {
        directory = exePath.Left(lastSlash + 1);
    } else {
        wchar_t current[MAX_PATH + 1] = {0};
        ::GetCurrentDirectoryW(MAX_PATH, current);
        directory = current;
    }

    // The directory already ends in a backslash; the doubled one is harmless and kept.
    CString candidate;
    candidate.Format(L"%s\\%s", (LPCWSTR)directory, kFontsIniName);
    CFileFind besideExe;
    if (besideExe.FindFile(candidate))
        return candidate;

    directory += L"..\\Shared";
    candidate.Format(L"%s\\%s", (LPCWSTR)directory, kFontsIniName);
    CFileFind inShared;
    if (inShared.FindFile(candidate))
        return candidate;
    return CString();
}

void CZoThemeManager::_resetLocaleFonts(const wchar_t* file)
{
    CString section = _getLocaleInfo();
    if (section.IsEmpty())
        section = kDefaultLocale;
    section.MakeUpper();

    wchar_t value[kProfileBufferLength] = {0};
    ::GetPrivateProfileStringW(section, L"ZoThemeFont_0", L"", value, kProfileBufferLength, file);
    if (value[0] == L'\0')
        section = kDefaultLocale;

    s_paFontMap = new InternalFontMap[ZoThemeFont_Count];
    for (int role = 0; role < ZoThemeFont_Count; ++role) {
        CString key;
        key.Format(L"ZoThemeFont_%d", role);
        value[0] = L'\0';
        ::GetPrivateProfileStringW(section, key, L"", value, kProfileBufferLength, file);

        InternalFontMap parsed = {CString(), 0, false, false, 0};
        if (value[0] != L'\0')
            _parseFontInfo(value, parsed.face, parsed.size, parsed.bold, parsed.italic, parsed.escapement);
        InternalFontMap& entry = s_paFontMap[role];
        entry = (!parsed.face.IsEmpty() && parsed.size > 0) ? parsed : s_aDefaultFontMap[role];
        _checkValidFont(entry.face);
    }
    m_strFontName = s_paFontMap[0].face;
}

CString CZoThemeManager::_getLocaleInfo()
{
    const LANGID language = ZoDefaultSubLanguageId(::GetUserDefaultUILanguage());
    const LCID locale = MAKELCID(language, SORT_DEFAULT);
    wchar_t languageCode[kLocaleFieldLength] = {0};
    wchar_t countryCode[kLocaleFieldLength] = {0};
    ::GetLocaleInfoW(locale, LOCALE_SISO639LANGNAME, languageCode, kLocaleFieldLength);
    ::GetLocaleInfoW(locale, LOCALE_SISO3166CTRYNAME, countryCode, kLocaleFieldLength);
    if (languageCode[0] == L'\0' || countryCode[0] == L'\0')
        return CString();
    CString result;
    result.Format(L"%s-%s", languageCode, countryCode);
    return result;
}

void CZoThemeManager::_parseFontInfo(const wchar_t* value, CString& face, int& size, bool& bold, bool& italic,
                                     int& escapement)
{
    face.Empty();
    size = 0;
    bold = italic = false;
    escapement = 0;
    if (!value)
        return;
    CString field;
    if (AfxExtractSubString(field, value, 0, L','))
        face = field;
    if (AfxExtractSubString(field, value, 1, L','))
        size = _wtoi(field);
    if (AfxExtractSubString(field, value, 2, L','))
        bold = ZoParseProfileFlag(field);
    if (AfxExtractSubString(field, value, 3, L','))
        italic = ZoParseProfileFlag(field);
    if (AfxExtractSubString(field, value, 4, L','))
        escapement = _wtoi(field);
}

void CZoThemeManager::_checkValidFont(CString& face)
{
    Gdiplus::GpFontFamily* pFamily = NULL;
    const Gdiplus::GpStatus status =
        Gdiplus::DllExports::GdipCreateFontFamilyFromName(face, NULL, &pFamily);
    if (status != Gdiplus::Ok) {
        if (!g_pGenericSansSerif)
            Gdiplus::DllExports::GdipGetGenericFontFamilySansSerif(&g_pGenericSansSerif);
        WCHAR familyName[LF_FACESIZE] = {0};
        if (g_pGenericSansSerif &&
            Gdiplus::DllExports::GdipGetFamilyName(g_pGenericSansSerif, familyName, 0) == Gdiplus::Ok)
            face = familyName;
    }
    if (pFamily)
        Gdiplus::DllExports::GdipDeleteFontFamily(pFamily);
}

} // namespace ZoControls
