// The skinned dialog.
// Classes in this file:
//   CZoDialog   a CDialog that paints its own frame, caption bar and system buttons, fills its
//               background with the theme, scales itself once on large monitors, answers its
//               controls' theme and size-class queries, and at initialisation replaces every
//               plain child control of nine window classes by the library's skinned class
// The rules behind it (sizes, button places, hit codes, button states) are in
// ZoDialogGeometry.h; the window's life cycle and mouse handling are in ZoDialog.cpp, its frame
// painting in ZoDialogPaint.cpp and the automatic subclassing in ZoDialogControls.cpp.
#pragma once
#include <afxwin.h>
#include <afxtempl.h>

#include "core/ZoCtrlExport.h"
#include "core/ZoMenuRouting.h"
#include "core/ZoPaintedWnd.h"
#include "core/ZoThemeTypes.h"
#include "core/ZoUIBase.h"
#include "dialogs/ZoDialogGeometry.h"

namespace ZoControls {

class CZoResourceBMPImage;

// The theme colour slots a dialog paints with.
enum E_ZoDialogColor
{
    ZoDialogColor_Back = 0,        // client area, static controls, the frame outside the client
    ZoDialogColor_Caption = 1,     // caption bar
    ZoDialogColor_CaptionText = 2, // caption text
    ZoDialogColor_Frame = 3,       // frame band
    ZoDialogColor_FrameLine = 4    // the frame's outer line
};

// The font role of the caption text.
const E_ZoThemeFont ZO_DIALOG_CAPTION_FONT = ZoThemeFont_11;

// True when the frame needs the work-arounds of the classic (pre-Vista, or 2008 R2 server)
// frame: versions below 6 with a minor version below 2, or 6.1 on a server product.
ZOCTRL_API bool ZoIsClassicFrameVersion(DWORD major, DWORD minor, BYTE productType);

#ifdef _MSC_VER
#pragma warning(push)
#pragma warning(disable : 4251) // CList and CBrush members are private, never used by the host
#endif

class ZOCTRL_API CZoDialog : public CZoPaintedWnd<CDialog>, public IZoUIBase
{
    DECLARE_DYNAMIC(CZoDialog)

public:
    CZoDialog(UINT templateId, CWnd* parent = NULL);
    CZoDialog(const wchar_t* templateName, CWnd* parent = NULL);
    ~CZoDialog() override;

    // The owner given at construction, else the window's parent.
    CWnd* GetZoParent() override;

protected:
    BOOL OnInitDialog() override;
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    // Called after the resources are loaded and before the automatic subclassing, for derived
    // classes that subclass controls themselves.
    virtual void OnSubclassingControls();

    // The platform erases (WM_ERASEBKGND below) and the client is then filled once more, so
    // that WM_PRINTCLIENT shows the background too.
    E_ZoPaintMode GetPaintMode() override;
    void DrawClient(CDC& dc) override;

    BorderDim GetBorderDim() const;
    // Repaints frame and caption bar.
    void PaintFrame();

    // Rectangle (window coordinates) and state of a system button, for derived classes.
    CRect GetSysButtonRect(E_ZoSysButtonRow row) const;
    int GetSysButtonState(E_ZoSysButtonRow row) const;
    // Size class the dialog answers its controls with; until WM_CREATE, a derived class may
    // choose it itself.
    using IZoUIBase::GetZoMonitorSize;
    using IZoUIBase::SetZoMonitorSize;

    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg BOOL OnNcActivate(BOOL bActive);
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp);
    afx_msg void OnNcPaint();
    afx_msg void OnNcMouseMove(UINT nHitTest, CPoint point);
    afx_msg void OnNcMouseLeave();
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonUp(UINT nHitTest, CPoint point);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnMsgGetCurrentZoTheme(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnMsgGetCurrentMonitorSize(WPARAM wParam, LPARAM lParam);
    ZO_DECLARE_MENUXP_FORWARDING()
    DECLARE_MESSAGE_MAP()

private:
    void _construct();
    void _loadResource();
    void _realignSysBtns();
    void _adjustDimAccordingToMonitor();
    void _autoSubclassControls();
    void _autoUnsubclassStatiscs();

    // Painting (ZoDialogPaint.cpp). The caption bar into a DC whose origin is the window's
    // top-left corner.
    void _drawCaptionBar(CDC& dc);
    // The caption bar straight to the window.
    void _redrawCaptionBar();
    void _fillBackground(CDC& dc, const CRect& rect);
    // The window rectangle moved to the origin.
    CRect _windowAtOrigin() const;
    // The client rectangle in window coordinates, as the platform placed it.
    CRect _clientInWindow() const;

    // The button under a non-client point (screen coordinates) for a hit code.
    E_ZoSysButtonRow _getSysButtonOn(CPoint screenPoint, UINT nHitTest) const;
    void _runReleaseAction(E_ZoSysButtonRow released);
    void _resetStates();
    void _classicAfterMouse(UINT message);

    BorderDim m_border;
    bool m_bResourcesLoaded;
    CBrush m_brBackground;
    COLORREF m_clrBackground;
    CZoResourceBMPImage* m_pSysBtnSkin;
    DWORD m_dwFrameStyle;
    int m_aButtonStates[ZoSysButton_Count];
    CRect m_aButtonRects[ZoSysButton_Count];
    E_ZoSysButtonRow m_ePressedRow;
    bool m_bDimAdjusted;
    bool m_bClassicFrame;
    bool m_bFrameRepainted;
    CList<CWnd*> m_controls;

    CZoDialog(const CZoDialog&);
    CZoDialog& operator=(const CZoDialog&);
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif

} // namespace ZoControls
