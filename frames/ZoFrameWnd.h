// CZoFrameWnd: a frame window whose whole non-client area is a thin skinned border. The system
// caption, border and menu bar are gone; the top border is where the window is dragged, and the
// windows registered with the frame's IZoUIBase follow its size.
// Also here, as plain functions of numbers: the border's thickness per size class, the client
// rectangle inside the border, the hit code of a point, and where the ten skin cells go.
#pragma once
#include <afxwin.h>

#include "core/ZoCtrlExport.h"
#include "core/ZoMenuRouting.h"
#include "core/ZoPaintedWnd.h"
#include "core/ZoThemeTypes.h"
#include "core/ZoUIBase.h"

namespace ZoControls {

class CZoResourceBMPImage;

// Thickness of every side of the border at `zoom`: 5 pixels scaled, 0 for a borderless frame.
ZOCTRL_API int ZoFrameBorderSize(float zoom, bool borderless);

// The client rectangle inside `window` (both in the same coordinates): shrunk by borderWidth on
// the left and right, borderHeight on the top and bottom. A window smaller than its border gets
// an empty client rectangle at the border's inner edge, never an inverted one.
ZOCTRL_API RECT ZoFrameClientRect(const RECT& window, int borderWidth, int borderHeight);

// The hit code of a point at screen height `pointY`: the platform's answer when it has one
// (non-zero) or when the skin is not loaded; else the top border (above windowTop +
// borderHeight) is HTCAPTION, the window is dragged there, and everything else HTNOWHERE.
ZOCTRL_API LRESULT ZoFrameHitTest(LRESULT platformHit, bool skinLoaded, int pointY, int windowTop,
                                  int borderHeight);

// One piece of the border: skin cell (column, row) stretched over (x, y, w, h) of the window.
struct ZoFrameCell
{
    int column;
    int row;
    int x;
    int y;
    int w;
    int h;
};

const int kZoFrameCellCount = 10;
const int kZoFrameSkinColumns = 3;
const int kZoFrameSkinRows = 4;

// The ten pieces of a window `width` x `height` drawn with cells `unit` pixels square, in drawing
// order: the top row, the upper side pieces, the long side pieces, the bottom row. The long side
// pieces reach one pixel into the bottom row (the bottom corners are drawn over them). The
// middle cells (1, 1) and (1, 2) are never drawn.
ZOCTRL_API void ZoFrameBorderCells(int width, int height, int unit, ZoFrameCell (&cells)[kZoFrameCellCount]);

class ZOCTRL_API CZoFrameWnd : public CZoPaintedWnd<CFrameWnd>, public IZoUIBase
{
    DECLARE_DYNCREATE(CZoFrameWnd)

public:
    ~CZoFrameWnd() override;

    CWnd* GetZoParent() override;

    // Thickness of the left and right, and of the top and bottom border, in pixels.
    int GetBorderWidth() const;
    int GetBorderHeight() const;
    bool IsBorderless() const;

    // The frame paints no client area: its views and bars cover it.
    E_ZoPaintMode GetPaintMode() override;
    void DrawClient(CDC& dc) override;

protected:
    // The dynamic-creation factory (document templates) makes a borderless frame.
    explicit CZoFrameWnd(bool borderless = true);

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

    afx_msg LRESULT OnMsgGetCurrentZoTheme(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnMsgGetCurrentMonitorSize(WPARAM wParam, LPARAM lParam);
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp);
    afx_msg void OnNcPaint();
    // WM_PRINT with PRF_NONCLIENT draws the border into the given DC too (screenshots, printing).
    afx_msg LRESULT OnPrint(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnNcLButtonDblClk(UINT nHitTest, CPoint point);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    ZO_DECLARE_MENUXP_FORWARDING()
    DECLARE_MESSAGE_MAP()

    CZoResourceBMPImage* m_pBorderSkin;
    int m_nBorderWidth;
    int m_nBorderHeight;
    bool m_bBorderless;

private:
    void _setBorderFor(E_ZoMonitorSize size);
    // The ten border cells into `dc`, whose origin is the window's top-left corner.
    void _drawBorder(CDC& dc);
    void _deleteSkin();

    CZoFrameWnd(const CZoFrameWnd&);
    CZoFrameWnd& operator=(const CZoFrameWnd&);
};

} // namespace ZoControls
