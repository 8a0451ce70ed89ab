// The skinned button.
// Classes in this file:
//   CZoButton   push, default push, check box, radio, push-like and group-box buttons painted
//               with per-state colour tables, skins, images, a tooltip and hover tracking
// The plain rules behind its painting are in ZoButtonRules.h; the window's life cycle, setters
// and input are in ZoButton.cpp, its painting in ZoButtonPaint.cpp.
#pragma once
#include <afxwin.h>
#include <afxcmn.h>

#include "core/ZoCtrlExport.h"
#include "core/ZoPaintedWnd.h"
#include "core/ZoThemeTypes.h"
#include "core/ZoMenuRouting.h"
#include "ZoButtonRules.h"

namespace ZoControls {

class CZoResourceImage;
class CZoResourceBMPImage;

#ifdef _MSC_VER
#pragma warning(push)
#pragma warning(disable : 4251) // CString members are private, never used by the host
#endif

class ZOCTRL_API CZoButton : public CZoPaintedWnd<CButton>
{
    DECLARE_DYNAMIC(CZoButton)

public:
    CZoButton();
    explicit CZoButton(E_ZoThemeFont font);
    ~CZoButton() override;

    // Images. A bitmap strip by name, a PNG resource by id; one cell fixed, or one axis
    // following the state (statesAcross: the column is the state).
    void SetZoBitmap(const wchar_t* name, bool redraw = true, int cols = 1, int rows = 1, int col = 0, int row = 0);
    void SetZoBitmaps(const wchar_t* name, bool redraw, bool statesAcross, int cols, int rows, int index);
    void SetZoPNGImage(UINT id, bool dark, bool redraw = true, int cols = 1, int rows = 1, int col = 0, int row = 0);
    void SetZoPNGImage(UINT id, COLORREF back, bool redraw = true, int cols = 1, int rows = 1, int col = 0,
                       int row = 0);
    void SetZoPNGImages(UINT id, bool dark, bool redraw, bool statesAcross, int cols, int rows, int index);
    void SetZoPNGImages(UINT id, COLORREF back, bool redraw, bool statesAcross, int cols, int rows, int index);
    void SetZoPNGImages(UINT id, const COLORREF* backs, bool redraw, bool statesAcross, int cols, int rows,
                        int index);
    virtual void SetZoPNGImageBackgroundColor();
    virtual void SetZoPNGImageBackgroundColor(const COLORREF* colors, int count);
    virtual void SetZoPNGImageBackgroundColor(COLORREF color);

    void SetToolTipText(const wchar_t* text);
    CToolTipCtrl* GetToolTipCtrl() const;

    void SetFontIndex(E_ZoThemeFont font, bool redraw = true);
    void SetCenterAlignedImage(bool centered, bool redraw = true);
    void SetStartTextPosFromImage(int gap);

    void SetFaceColor(COLORREF color, bool redraw = true);
    void SetFaceColor(E_ZoButtonStates state, COLORREF color, bool redraw = true);
    void SetFaceColors(const COLORREF colors[4], bool redraw = true);
    void SetTextColor(COLORREF color, bool redraw = true);
    void SetTextColor(E_ZoButtonStates state, COLORREF color, bool redraw = true);
    void SetTextColors(const COLORREF colors[4], bool redraw = true);
    void Set4LineColors(COLORREF color, bool redraw = true);
    void Set4LineColors(E_ZoButtonStates state, COLORREF color, bool redraw = true);
    void Set4LineColors(const COLORREF colors[4], bool redraw = true);
    void SetLTRBLineColors(COLORREF lt, COLORREF rb, bool redraw = true);
    void SetLTRBLineColors(E_ZoButtonStates state, COLORREF lt, COLORREF rb, bool redraw = true);
    void SetLTRBLineColors(const COLORREF lt[4], const COLORREF rb[4], bool redraw = true);
    void SetLineColor(E_ZoFlatButtonLines line, COLORREF color, bool redraw = true);
    void SetLineColor(E_ZoFlatButtonLines line, E_ZoButtonStates state, COLORREF color, bool redraw = true);
    void SetLineColor(E_ZoFlatButtonLines line, const COLORREF colors[4], bool redraw = true);
    void SetDefaultBrightColor(bool faces, bool lines);
    // Lines as SetDefaultBrightColor: only the faces are darker.
    void SetDefaultDarkColor(bool faces, bool lines);

    // Read back by tests, variants and hosts that draw around the button.
    COLORREF GetFaceColor(E_ZoButtonStates state) const;
    COLORREF GetTextColor(E_ZoButtonStates state) const;
    COLORREF GetLineColor(E_ZoFlatButtonLines line, E_ZoButtonStates state) const;

    static bool IsPushButton(DWORD type);
    static bool IsCheckbox(DWORD type);
    static bool IsRadioButton(DWORD type);

    bool IsHoveringNow() const;

protected:
    void PreSubclassWindow() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    // Kinds the library does not draw (owner-drawn and the like) are left to the platform.
    E_ZoPaintMode GetPaintMode() override;
    void DrawClient(CDC& dc) override;

    virtual void Init();
    virtual void DrawPushButtonBackground(CDC& dc, const CRect& rect, E_ZoButtonStates state);
    virtual void DrawPushButtonTextAndImage(CDC& dc, const CRect& rect, E_ZoButtonStates state);
    virtual void DrawPushButtonFocusRect(CDC& dc, const CRect& rect);
    virtual void LoadResource();
    virtual CString GetBackgroundResourceId();
    virtual void DrawCheckBoxBackground(CDC& dc, const CRect& rect);
    virtual void DrawCheckBoxFocusRect(CDC& dc, const CRect& rect);

    void DrawPushButton(CDC& dc, bool pushLike);

    E_ZoTheme GetTheme() const;
    E_ZoMonitorSize GetMonitorSize() const;
    DWORD GetButtonType() const;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg LRESULT OnMouseLeave(WPARAM wParam, LPARAM lParam);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    ZO_DECLARE_MENUXP_FORWARDING()
    DECLARE_MESSAGE_MAP()

    // Row 3 of a state-following image is drawn as row 4 while this is false.
    bool m_bAllowRowThree;

private:
    void _clearColorTables();
    void _redrawIf(bool redraw);
    void _deleteImages();
    void _loadBitmapImage(const wchar_t* name, int cols, int rows, int col, int row);
    bool _loadPNGImage(UINT id, int cols, int rows, int col, int row);
    void _setThemePNGBackgrounds(bool dark, int rows);
    void _setPNGBackgrounds(const COLORREF* colors, int count);
    void _createOrUpdateToolTip();
    void _drawCheckboxRadio(CDC& dc, bool isCheckbox);
    CRect _drawText(CDC& dc, const CRect& rect, const CString& text, int colorSlot, bool centreByDefault);
    void _drawGroupBox(CDC& dc);
    CSize _drawSystemImage(CDC* pDC, int x, int y, int state, bool measureOnly);
    CSize _imageSize() const;
    void _drawImage(CDC& dc, int x, int y, int state);
    CRect _textMarginRect(const CRect& rect);
    int _lineHeight(CDC& dc);
    // The platform button's answers asked of its own window procedure, not sent: a paint asks
    // several of them, and each sent message costs a trip through hooks and message maps.
    LRESULT _ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    UINT _buttonState();
    CString _caption();

    E_ZoTheme m_eTheme;
    E_ZoThemeFont m_eFont;
    E_ZoMonitorSize m_eMonitorSize;
    COLORREF m_aTextColors[BS_ZO_COUNT];
    COLORREF m_aFaceColors[BS_ZO_COUNT];
    COLORREF m_aLineColors[BS_ZO_COUNT][LINE_COUNT];
    bool m_bHovering;
    bool m_bResourcesLoaded;
    CZoResourceBMPImage* m_pBackground;
    bool m_bCenterAlignedImage;
    bool m_bFontGiven;
    int m_nTextGap;
    CString m_strToolTip;
    CString m_strImageName;
    CZoResourceImage* m_pImage;
    bool m_bImageIsPNG;
    int m_nImageColumn;
    int m_nImageRow;
    CToolTipCtrl* m_pToolTip;
    // The height of "Hy" in the font it was last measured with.
    HFONT m_hLineHeightFont;
    int m_nLineHeight;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif

} // namespace ZoControls
