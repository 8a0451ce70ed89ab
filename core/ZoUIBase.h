// IZoUIBase: the theme-aware mixin of every themed container (theme, monitor size class,
// registry of child windows with design rectangles rescaled by the zoom factor), and
// CZoWnd, the plain themed window.
#pragma once
#include <afxwin.h>
#include <afxtempl.h>

#include "ZoCtrlExport.h"
#include "ZoThemeTypes.h"
#include "ZoMenuRouting.h"

namespace ZoControls {

// A registered child's rectangle at zoom 1.0 in the container's client coordinates.
struct ST_REGISTERCHILDWND_VALUE
{
    CRect rect;
    bool bScalePosition; // true: position and size scale; false: size scales about the centre
};

// Where a child designed at `design` goes at `zoom`; values round as trunc(x * zoom + 0.5).
ZOCTRL_API CRect ZoScaleDesignRect(const CRect& design, bool bScalePosition, float zoom);

class ZOCTRL_API IZoUIBase
{
public:
    IZoUIBase();
    ~IZoUIBase();

    // The window whose theme is inherited.
    virtual CWnd* GetZoParent() = 0;

    // Reaches only children created afterwards: nothing is repainted or pushed down.
    void SetZoTheme(E_ZoTheme theme);
    float GetZoZoomFactor() const;

    // Handlers of the theme and size-class queries; they write through a non-null LPARAM.
    LRESULT OnMsgGetCurrentZoTheme(WPARAM wParam, LPARAM lParam);
    LRESULT OnMsgGetCurrentMonitorSize(WPARAM wParam, LPARAM lParam);

    // Moves every live registered child to its design rectangle scaled for the size class.
    void ResizeRegisteredWindows();

protected:
    E_ZoTheme GetZoTheme() const;
    void SetZoMonitorSize(E_ZoMonitorSize size);
    E_ZoMonitorSize GetZoMonitorSize() const;

    bool RegisterChildWindow(CWnd* pWnd, const CRect& rect, bool bScalePosition);
    bool GetRegisteredWindowRect(CWnd* pWnd, CRect& rect) const;
    void ChangeRegisteredWindowRect(CWnd* pWnd, const CRect& rect, bool bScalePosition);
    bool RemoveRegisterdWindow(CWnd* pWnd);
    void RemoveAllRegistered();

private:
    E_ZoTheme m_eTheme;
    E_ZoMonitorSize m_eMonitorSize;
    CMap<CWnd*, CWnd*, ST_REGISTERCHILDWND_VALUE, ST_REGISTERCHILDWND_VALUE&> m_mapRegistered;
};

class ZOCTRL_API CZoWnd : public CWnd, public IZoUIBase
{
    DECLARE_DYNAMIC(CZoWnd)

public:
    CZoWnd();
    ~CZoWnd() override;

    CWnd* GetZoParent() override;

protected:
    afx_msg LRESULT OnMsgGetCurrentZoTheme(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnMsgGetCurrentMonitorSize(WPARAM wParam, LPARAM lParam);
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    ZO_DECLARE_MENUXP_FORWARDING()
    DECLARE_MESSAGE_MAP()

private:
    void _detectMonitorSize();
};

} // namespace ZoControls
