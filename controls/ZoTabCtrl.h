// CZoTabCtrl: a tab control painted from skin strips. Each tab is a three-piece cell stretched
// over the tab, the page is framed by a nine-piece frame, captions are drawn in the theme's tab
// colours, rotated for tabs on the left or right. Items, selection and notifications stay the
// platform's; the page area belongs to the host's page windows and is never painted over.
// A TCS_BUTTONS control keeps the platform's painting (with the theme's font).
#pragma once
#include <afxcmn.h>
#include <afxwin.h>

#include "core/ZoCtrlExport.h"
#include "core/ZoMenuRouting.h"
#include "core/ZoPaintedWnd.h"
#include "core/ZoThemeTypes.h"

namespace ZoControls {

class CZoResourceBMPImage;

// The tab strip a tab-control style uses and how it is cut.
struct ZoTabStrip
{
    const wchar_t* name;
    int columns;
    int rows;
    bool vertical;
};
ZOCTRL_API ZoTabStrip ZoTabStripFor(DWORD style);

// Drawing state of a tab; its column group in the strips. Disabled lies beyond the strips' last
// column, so a disabled control draws no tab cells, only captions.
enum E_ZoTabState
{
    ZoTabState_Normal = 0,
    ZoTabState_Hover = 1,
    ZoTabState_Pressed = 2,
    ZoTabState_Disabled = 4
};
ZOCTRL_API E_ZoTabState ZoTabStateOf(bool enabled, int index, int pressedIndex, int hoverIndex);
// Colour slot of a caption.
ZOCTRL_API int ZoTabTextSlot(bool enabled, bool selected, bool hovered);

// Cell of piece `piece` (0 first cap, 1 middle, 2 last cap) of a tab.
ZOCTRL_API CPoint ZoTabCell(bool vertical, int state, int theme, bool selected, int piece);
// The tab's rectangle grown by one pixel towards the page.
ZOCTRL_API CRect ZoTabItemRect(const CRect& item, DWORD style);
// The focus rectangle of a focused tab control, inside its selected tab `tab` (as grown by
// ZoTabItemRect) around the caption; empty for a tab too small to hold one.
ZOCTRL_API CRect ZoTabFocusRect(const CRect& tab);
// The three pieces of a tab: caps `cap` long at both ends, the middle between them.
ZOCTRL_API void ZoTabPieces(const CRect& tab, int cap, bool vertical, CRect (&pieces)[3]);
// The nine frame pieces around page `page` with cells u x v, row by row (top, middle, bottom),
// left to right; the middle one is the page itself.
ZOCTRL_API void ZoTabFramePieces(const CRect& page, int u, int v, CRect (&pieces)[9]);
// Where a rotated caption `textHeight` high is written in text area `text`, aligned TA_CENTER.
ZOCTRL_API CPoint ZoTabRotatedTextOrigin(const CRect& text, int textHeight, bool right);

class ZOCTRL_API CZoTabCtrl : public CZoPaintedWnd<CTabCtrl>
{
    DECLARE_DYNAMIC(CZoTabCtrl)

public:
    CZoTabCtrl();
    ~CZoTabCtrl() override;

    E_ZoPaintMode GetPaintMode() override;
    bool GetKeptRect(CRect& rect) override;
    bool DrawsFocusCue() override;

    // A copy of `pFont` rotated for side tabs: text runs downward for tabs on the right
    // (escapement 2700), upward otherwise (900). The caller deletes it.
    static CFont* _createFontRotated(CFont* pFont, bool right);

protected:
    void PreSubclassWindow() override;
    void DrawClient(CDC& dc) override;

    void _init();
    void _free();
    bool _isButtons() const;
    // Asks the platform's procedure directly: painting asks it for every tab, and a sent
    // message passes every message hook of the thread, costing more than the drawing.
    LRESULT _askPlatform(UINT message, WPARAM wParam, LPARAM lParam) const;
    CRect _pageRect() const;
    void _drawTabControl(CDC& dc);
    void _drawFrameRect(CDC& dc);
    void _drawFocusCue(CDC& dc, int index, DWORD style);
    void _drawTabItem(CDC& dc, int index, DWORD style, bool enabled, bool selected);
    void _drawRotatedCaption(CDC& dc, const CRect& area, wchar_t* text, bool selected, bool right);
    void _invalidateNoFlickering();
    // The user's choice of `item`: asked of the parent, made, announced. Stops as soon as a
    // notification leaves the control destroyed.
    void _selectByUser(int item);
    // Sends the parent `header` (its code filled in) and returns the answer; `alive` tells
    // whether the control outlived it.
    LRESULT _notifyParent(NMHDR& header, UINT code, bool& alive);

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    ZO_DECLARE_MENUXP_FORWARDING()
    DECLARE_MESSAGE_MAP()

    E_ZoMonitorSize m_eMonitorSize;
    E_ZoTheme m_eTheme;
    CZoResourceBMPImage* m_pTabSkin;
    CZoResourceBMPImage* m_pFrameSkin;
    E_ZoThemeFont m_eSelectedFont;
    E_ZoThemeFont m_eNormalFont;
    CFont* m_pSelectedFont;
    CFont* m_pNormalFont;
    bool m_bOwnsFonts;
    int m_nHoverIndex;
    // Nothing sets it: pressed tab cells are never drawn.
    int m_nPressedIndex;

private:
    CZoTabCtrl(const CZoTabCtrl&);
    CZoTabCtrl& operator=(const CZoTabCtrl&);
};

} // namespace ZoControls
