// The process-wide theme manager: colour slots, the shared font cache with its
// "Fonts.ini" overrides, and the functions by which a control learns its theme and
// monitor size class from its parent.
#pragma once
#include <afxwin.h>
#include <gdiplus.h>

#include "ZoCtrlExport.h"
#include "ZoThemeTypes.h"

namespace ZoControls {

// Messages a control sends to its parent; LPARAM points to an int the container fills in.
const UINT ZoMsg_GetCurrentTheme = WM_APP + 2;
const UINT ZoMsg_GetCurrentMonitorSize = WM_APP + 3;

class ZOCTRL_API CZoThemeManager
{
public:
    // One font role's description.
    struct InternalFontMap
    {
        CString face;
        int size;       // points at zoom 1.0
        bool bold;
        bool italic;
        int escapement; // tenths of a degree
    };

    CZoThemeManager(const CZoThemeManager& other) = default;
    CZoThemeManager& operator=(const CZoThemeManager& other) = default;

    static bool InitInstance();
    static void FreeInstance();
    static const CZoThemeManager* GetInstance();

    // The theme argument is accepted and ignored: every theme draws with theme 0's colours.
    COLORREF GetGDIColor(E_ZoThemeColors slot, E_ZoTheme theme) const;
    Gdiplus::Color GetGDIPlusColor(E_ZoThemeColors slot, E_ZoTheme theme) const;
    // Owned by the manager: select it, never delete it.
    const CFont* GetCacheGDIFont(E_ZoThemeFont font, E_ZoMonitorSize size) const;
    CString GetFontName() const;
    float GetZoomFactor(E_ZoMonitorSize size) const;

protected:
    bool Init();

private:
    CZoThemeManager();
    ~CZoThemeManager();

    bool _initializeColorMap();
    bool _initializeColorTable();
    bool _initializeFonts();
    void _freeFonts();
    CString _getFontSettingFile() const;
    void _resetLocaleFonts(const wchar_t* file);
    static CString _getLocaleInfo();
    static void _parseFontInfo(const wchar_t* value, CString& face, int& size, bool& bold, bool& italic,
                               int& escapement);
    static void _checkValidFont(CString& face);

    static InternalFontMap s_aDefaultFontMap[ZoThemeFont_Count];
    static InternalFontMap* s_paFontMap; // from "Fonts.ini"; null when none was found
    static CZoThemeManager* _pSelf;

    DWORD m_aColorTable[ZoTheme_Count][ZoThemeColor_Count]; // ARGB, [theme][slot]
    CFont* m_apFontCache[ZoMonitorSize_Count][ZoThemeFont_Count];
    DWORD m_aPalette[28]; // ARGB
    CString m_strFontName;
};

// Theme of the container that `pWnd` lives in (0 when its parent doesn't answer).
ZOCTRL_API E_ZoTheme ZoGetCurrentThemeIndex(CWnd* pWnd);

// Size class for `pWnd`: forced by a fixed-mode marker file, else the answer of `pWnd`
// (bAskSelf) or its parent, else measured from the nearest monitor; -1 when all fail.
ZOCTRL_API E_ZoMonitorSize ZoGetCurrentMonitorSize(CWnd* pWnd, bool bAskSelf);

} // namespace ZoControls
