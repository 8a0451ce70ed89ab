// Static controls painted in the theme's colours and fonts.
// Classes in this file:
//   CZoStatic       text labels, pictures, icons and frames, double-buffered
//   CZoStaticBig    CZoStatic with font role 2
//   CZoStaticHuge   CZoStatic with font role 4
//   CStaticLine     a solid or dotted separator line with a one-pixel shadow
// plus the plain rules behind them (text format, picture target, frame shift, border colour,
// line geometry) as functions of numbers.
#pragma once
#include <afxwin.h>

#include "core/ZoCtrlExport.h"
#include "core/ZoPaintedWnd.h"
#include "core/ZoThemeTypes.h"
#include "core/ZoMenuRouting.h"

namespace ZoControls {

// How CZoStatic paints a given style.
enum E_ZoStaticPaintKind
{
    ZoStaticPaint_Text,
    ZoStaticPaint_Picture,
    ZoStaticPaint_Icon,
    ZoStaticPaint_Frame,
    ZoStaticPaint_System // left to the standard static
};

ZOCTRL_API E_ZoStaticPaintKind ZoStaticPaintKindOf(DWORD style);

// DrawText flags of a text static of `style` (0 for styles that are not text).
ZOCTRL_API UINT ZoStaticTextFormat(DWORD style);

// Where vertically centred text of `textHeight` goes in `client`.
ZOCTRL_API CRect ZoStaticCenteredTextRect(const CRect& client, int textHeight);

// Where a picture of `picture` size is drawn in `client` for `style` (real size, centred, or
// stretched over the client).
ZOCTRL_API CRect ZoStaticPictureTarget(const CRect& client, const CSize& picture, DWORD style);

// How far the frame's top edge moves down for a window font of `lfHeight`.
ZOCTRL_API int ZoStaticFrameTopShift(LONG lfHeight);

// Colour slot of the border drawn for these styles; -1 when no border is drawn.
ZOCTRL_API int ZoStaticBorderSlot(DWORD style, DWORD exStyle);

class ZOCTRL_API CZoStatic : public CZoPaintedWnd<CStatic>
{
    DECLARE_DYNAMIC(CZoStatic)

public:
    CZoStatic(E_ZoThemeFont font = ZoThemeFont_1);
    ~CZoStatic() override;

    // Both take effect at the next paint.
    void SetBackGroundColor(COLORREF color);
    void SetTextTheme(E_ZoThemeColors slot);

protected:
    E_ZoTheme GetTheme() const;
    E_ZoMonitorSize GetMonitorSize() const;

    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    E_ZoPaintMode GetPaintMode() override;
    void DrawClient(CDC& dc) override;

    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg LRESULT OnMouseLeave(WPARAM wParam, LPARAM lParam);
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnNcPaint();
    ZO_DECLARE_MENUXP_FORWARDING()
    DECLARE_MESSAGE_MAP()

private:
    void _readTheme();
    void _drawStaticText(CDC& dc);
    void _drawBitmap(CDC& dc);
    void _drawIcon(CDC& dc);
    void _drawFrame(CDC& dc);
    void _fillClient(CDC& dc, COLORREF color);

    E_ZoTheme m_eTheme;
    E_ZoMonitorSize m_eMonitorSize;
    E_ZoThemeFont m_eFont;
    E_ZoThemeColors m_eTextColor;
    COLORREF m_clrBackground;
};

class ZOCTRL_API CZoStaticBig : public CZoStatic
{
    DECLARE_DYNAMIC(CZoStaticBig)

public:
    CZoStaticBig();
    ~CZoStaticBig() override;
};

class ZOCTRL_API CZoStaticHuge : public CZoStatic
{
    DECLARE_DYNAMIC(CZoStaticHuge)

public:
    CZoStaticHuge();
    ~CZoStaticHuge() override;
};

// A straight run of equal squares: square i has its top-left corner at (x + i*dx, y + i*dy).
struct ZoDotRun
{
    int x;
    int y;
    int dx;
    int dy;
    int count;
};

// The line of `client` at `offset` (0 line, 1 shadow): vertical through the middle when the
// client is narrower than tall, else horizontal. The end point is not drawn.
ZOCTRL_API void ZoStaticLineSegment(const CRect& client, int offset, CPoint& from, CPoint& to);
// The 2 x 2 squares of the dotted line, every 4 pixels. The horizontal run lies at y = left +
// offset, the row of the client's left edge, not its middle.
ZOCTRL_API ZoDotRun ZoStaticLineDots(const CRect& client, int offset);

class ZOCTRL_API CStaticLine : public CZoPaintedWnd<CStatic>
{
public:
    enum E_StaticLine_Style
    {
        StaticLine_Single = 0,
        StaticLine_Dot = 1,
        StaticLine_Double = 2,
        StaticLine_DualDot = 3
    };

    static const int kDotSize = 2;
    static const int kDotPitch = 4;

    CStaticLine();
    ~CStaticLine() override;

    // The background layer covers what the platform erased.
    E_ZoPaintMode GetPaintMode() override { return ZoPaint_DirectAfterErase; }

    // Both take effect at the next paint.
    void SetLineStyle(E_StaticLine_Style style);
    void SetStaticColors(COLORREF line, COLORREF shadow, COLORREF background);

    // The three layers, painted in this order: background, shadow, line.
    virtual void DrawBackground(CDC* pDC, E_StaticLine_Style style, COLORREF color);
    virtual void DrawLine(CDC* pDC, E_StaticLine_Style style, COLORREF color);
    virtual void DrawLineShadow(CDC* pDC, E_StaticLine_Style style, COLORREF color);

protected:
    // All three layers.
    void DrawClient(CDC& dc) override;

    afx_msg void OnNcPaint();
    DECLARE_MESSAGE_MAP()

private:
    void _drawStyledLine(CDC* pDC, E_StaticLine_Style style, COLORREF color, int offset);
    void drawSingleLine(CDC* pDC, COLORREF color, int offset);
    void drawDotLine(CDC* pDC, COLORREF color, int offset);
    // Kept empty: these styles paint the background only.
    void drawDoubleLine(CDC* pDC, COLORREF color, int offset);
    void drawDualDotLine(CDC* pDC, COLORREF color, int offset);

    E_StaticLine_Style m_eStyle;
    COLORREF m_clrLine;
    COLORREF m_clrShadow;
    COLORREF m_clrBackground;
};

} // namespace ZoControls
