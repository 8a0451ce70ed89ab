// CZoButton: painting of the push, check-box, radio and group-box kinds.
#include <afxwin.h>
#include <afxcmn.h>
#include <commctrl.h>

#include "ZoButton.h"
#include "ZoControlColors.h"
#include "ZoControlTheme.h"
#include "ZoWindowHelpers.h"
#include "core/ZoThemeManager.h"
#include "images/ZoResourceImage.h"
#include "images/ZoResourcePNG.h"

namespace ZoControls {

namespace {

const COLORREF kMagenta = RGB(255, 0, 255);
// The line height every caption is placed by.
const wchar_t kSampleText[] = L"Hy";
// Between the check box and its caption.
const int kCheckTextGap = 3;

} // namespace

// ---------------------------------------------------------------------------------------------
// CZoButton: painting

E_ZoPaintMode CZoButton::GetPaintMode()
{
    const DWORD type = GetButtonType();
    if (type == BS_GROUPBOX)
        return ZoPaint_Direct;
    if (IsPushButton(type) || IsCheckbox(type) || IsRadioButton(type))
        return ZoPaint_Offscreen;
    return ZoPaint_Platform;
}

void CZoButton::DrawClient(CDC& dc)
{
    const DWORD style = GetStyle();
    const DWORD type = style & BS_TYPEMASK;
    if (type == BS_GROUPBOX)
        _drawGroupBox(dc);
    else if (!(IsCheckbox(type) || IsRadioButton(type)) || (style & BS_PUSHLIKE))
        DrawPushButton(dc, IsCheckbox(type) || IsRadioButton(type));
    else
        _drawCheckboxRadio(dc, IsCheckbox(type));
}

LRESULT CZoButton::_ask(UINT message, WPARAM wParam, LPARAM lParam)
{
    return DefWindowProc(message, wParam, lParam);
}

UINT CZoButton::_buttonState()
{
    return static_cast<UINT>(_ask(BM_GETSTATE));
}

CString CZoButton::_caption()
{
    return ZoQueryWindowText([this](UINT message, WPARAM wParam, LPARAM lParam) {
        return _ask(message, wParam, lParam);
    });
}

CRect CZoButton::_textMarginRect(const CRect& rect)
{
    RECT margin = {0, 0, 0, 0};
    _ask(BCM_GETTEXTMARGIN, 0, reinterpret_cast<LPARAM>(&margin));
    return CRect(rect.left + margin.left, rect.top + margin.top, rect.right - margin.right,
                 rect.bottom - margin.bottom);
}

int CZoButton::_lineHeight(CDC& dc)
{
    const HFONT hFont = static_cast<HFONT>(::GetCurrentObject(dc.GetSafeHdc(), OBJ_FONT));
    if (hFont == NULL || hFont != m_hLineHeightFont) {
        m_nLineHeight = dc.GetTextExtent(kSampleText, 2).cy;
        m_hLineHeightFont = hFont;
    }
    return m_nLineHeight;
}

void CZoButton::DrawPushButton(CDC& dc, bool /*pushLike*/)
{
    CRect client;
    GetClientRect(&client);
    const bool enabled = IsWindowEnabled() != FALSE;
    const UINT buttonState = _buttonState();

    CRect content;
    if (m_pBackground && m_pBackground->IsLoaded()) {
        content = client;
        content.DeflateRect(m_pBackground->GetUnitWidth(), m_pBackground->GetUnitHeight());
    } else {
        content = _textMarginRect(client);
    }
    const E_ZoButtonStates state = ZoPushButtonState(enabled, buttonState, m_bHovering);
    DrawPushButtonBackground(dc, client, state);
    DrawPushButtonTextAndImage(dc, client, state);
    if (buttonState & BST_FOCUS) {
        CRect focus = content;
        focus.bottom -= 1;
        if (buttonState & BST_PUSHED)
            focus.OffsetRect(1, 1);
        DrawPushButtonFocusRect(dc, focus);
    }
}

void CZoButton::DrawPushButtonBackground(CDC& dc, const CRect& rect, E_ZoButtonStates state)
{
    if (!ZoIsButtonState(state))
        return;
    dc.FillSolidRect(rect, m_aFaceColors[state]);
    const POINT ends[LINE_COUNT][2] = {
        {{rect.left, rect.top}, {rect.left, rect.bottom - 1}},
        {{rect.left, rect.bottom - 1}, {rect.right - 1, rect.bottom - 1}},
        {{rect.right - 1, rect.bottom - 1}, {rect.right - 1, rect.top}},
        {{rect.right - 1, rect.top}, {rect.left, rect.top}},
    };
    // Drawn left, bottom, right, top, each as the pixels a pen line would set, without making
    // a pen per line and paint.
    const E_ZoFlatButtonLines order[LINE_COUNT] = {LINE_LEFT, LINE_BOTTOM, LINE_RIGHT, LINE_TOP};
    for (int i = 0; i < LINE_COUNT; ++i) {
        const COLORREF color = m_aLineColors[state][order[i]];
        const CRect pixels = ZoAxisLinePixels(ends[i][0], ends[i][1]);
        if (color != ZO_LINE_NOT_DRAWN && !pixels.IsRectEmpty())
            dc.FillSolidRect(pixels, color);
    }
}

CSize CZoButton::_imageSize() const
{
    if (!m_pImage || !m_pImage->IsLoaded() || (m_nImageColumn == -1 && m_nImageRow == -1))
        return CSize(0, 0);
    return CSize(m_pImage->GetUnitWidth(), m_pImage->GetUnitHeight());
}

void CZoButton::_drawImage(CDC& dc, int x, int y, int state)
{
    if (_imageSize() == CSize(0, 0))
        return;
    const int column = ZoImageCellColumn(m_nImageColumn, state);
    const int row = ZoImageCellRow(m_nImageRow, state, m_bAllowRowThree);
    m_pImage->DrawUnitImage(dc, x, y, column, row, kMagenta);
}

// The system button's own image: its image list, else its bitmap, else its icon. Returns the
// size (0 x 0 for none) and draws it at (x, y) unless `measureOnly`.
CSize CZoButton::_drawSystemImage(CDC* pDC, int x, int y, int state, bool measureOnly)
{
    BUTTON_IMAGELIST list;
    ::ZeroMemory(&list, sizeof(list));
    if (_ask(BCM_GETIMAGELIST, 0, reinterpret_cast<LPARAM>(&list)) && list.himl &&
        ImageList_GetImageCount(list.himl) > 0) {
        int cx = 0;
        int cy = 0;
        ImageList_GetIconSize(list.himl, &cx, &cy);
        const int count = ImageList_GetImageCount(list.himl);
        const int index = state < count - 1 ? state : count - 1;
        if (!measureOnly)
            ImageList_DrawEx(list.himl, index, pDC->GetSafeHdc(), x, y, 0, 0, CLR_NONE, CLR_DEFAULT, ILD_NORMAL);
        return CSize(cx, cy);
    }
    const HBITMAP hBitmap = reinterpret_cast<HBITMAP>(_ask(BM_GETIMAGE, IMAGE_BITMAP, 0));
    BITMAP bm;
    if (hBitmap && ::GetObject(hBitmap, sizeof(bm), &bm)) {
        if (!measureOnly) {
            CZoResourceBMPImage picture(hBitmap, false);
            picture.DrawImage(*pDC, x, y, 0, 0, bm.bmWidth, bm.bmHeight, kMagenta);
        }
        return CSize(bm.bmWidth, bm.bmHeight);
    }
    const HICON hIcon = reinterpret_cast<HICON>(_ask(BM_GETIMAGE, IMAGE_ICON, 0));
    ICONINFO info;
    if (hIcon && ::GetIconInfo(hIcon, &info)) {
        CSize size(0, 0);
        BITMAP colour;
        if (info.hbmColor && ::GetObject(info.hbmColor, sizeof(colour), &colour))
            size = CSize(colour.bmWidth, colour.bmHeight);
        if (info.hbmColor)
            ::DeleteObject(info.hbmColor);
        if (info.hbmMask)
            ::DeleteObject(info.hbmMask);
        if (!measureOnly)
            pDC->DrawIcon(x, y, hIcon);
        return size;
    }
    return CSize(0, 0);
}

void CZoButton::DrawPushButtonTextAndImage(CDC& dc, const CRect& rect, E_ZoButtonStates state)
{
    if (!ZoIsButtonState(state))
        return;
    CZoTextScope scope(dc, ZoCachedFont(m_eFont, m_eMonitorSize), m_aTextColors[state], TRANSPARENT);
    const CRect textRect = _textMarginRect(rect);
    const CString text = _caption();

    const bool systemImage = m_strImageName.IsEmpty() && !m_bImageIsPNG;
    const CSize image = systemImage ? _drawSystemImage(&dc, 0, 0, state, true) : _imageSize();
    const bool hasImage = image.cx > 0 || image.cy > 0;
    const int textWidth = text.IsEmpty() ? 0 : dc.GetTextExtent(text).cx;
    const ZoImageTextLayout layout =
        ZoLayoutImageAndText(textRect, image, !text.IsEmpty(), textWidth, _lineHeight(dc), GetStyle(),
                             m_bCenterAlignedImage, m_nTextGap, state == BS_ZO_PRESSED);
    if (hasImage) {
        if (systemImage)
            _drawSystemImage(&dc, layout.image.x, layout.image.y, state, false);
        else
            _drawImage(dc, layout.image.x, layout.image.y, state);
    }
    if (!text.IsEmpty()) {
        CRect target = layout.text;
        dc.DrawText(text, -1, &target, ZoPushButtonTextFormat(GetStyle()));
    }
}

void CZoButton::DrawPushButtonFocusRect(CDC& /*dc*/, const CRect& /*rect*/)
{
    // The plain button shows no focus cue.
}

void CZoButton::DrawCheckBoxBackground(CDC& dc, const CRect& rect)
{
    dc.FillSolidRect(rect, ZoSlotColor(ZoColor_ControlBack, m_eTheme));
}

void CZoButton::DrawCheckBoxFocusRect(CDC& dc, const CRect& rect)
{
    dc.DrawFocusRect(rect);
}

void CZoButton::_drawCheckboxRadio(CDC& dc, bool isCheckbox)
{
    CRect client;
    GetClientRect(&client);
    const DWORD style = GetStyle();
    const bool boxLeft = !(style & BS_LEFTTEXT);
    const UINT buttonState = _buttonState();

    DrawCheckBoxBackground(dc, client);
    const int column = ZoCheckCellColumn(IsWindowEnabled() != FALSE, buttonState, m_bHovering);
    int unit = 0;
    if (m_pImage && m_pImage->IsLoaded()) {
        unit = m_pImage->GetUnitWidth();
        const CPoint at = ZoCheckCellOrigin(client, unit, style);
        m_pImage->DrawUnitImage(dc, at.x, at.y, column, ZoCheckCellRow(isCheckbox, buttonState), kMagenta);
    }
    CRect textRect = client;
    if (boxLeft)
        textRect.left = client.left + kCheckTextGap + unit;
    else
        textRect.right = client.right - kCheckTextGap - unit;
    textRect.bottom -= 2;
    const CString text = _caption();
    CRect drawn = _drawText(dc, textRect, text, ZoColor_CheckText + column, false);
    if (buttonState & BST_FOCUS) {
        drawn.InflateRect(1, 0);
        DrawCheckBoxFocusRect(dc, drawn);
    }
}

CRect CZoButton::_drawText(CDC& dc, const CRect& rect, const CString& text, int colorSlot, bool centreByDefault)
{
    CZoTextScope scope(dc, ZoCachedFont(m_eFont, m_eMonitorSize), ZoSlotColor(colorSlot, m_eTheme), TRANSPARENT);
    const UINT format = ZoCaptionTextFormat(GetStyle(), centreByDefault);
    CRect measured = rect;
    dc.DrawText(text, -1, &measured, (format & ~(DT_CENTER | DT_RIGHT | DT_VCENTER | DT_BOTTOM)) | DT_CALCRECT);
    CSize size = measured.Size();
    if (format & DT_SINGLELINE)
        size.cy = _lineHeight(dc);
    CRect box = ZoPlaceMeasuredText(rect, size, format);
    dc.DrawText(text, -1, &box, format);
    return box;
}

void CZoButton::_drawGroupBox(CDC& dc)
{
    CZoTextScope scope(dc, ZoCachedFont(m_eFont, m_eMonitorSize), ZoSlotColor(ZoColor_GroupText, m_eTheme), OPAQUE);
    const int lineHeight = _lineHeight(dc);
    CRect r;
    GetClientRect(&r);
    r.right -= 1;
    r.bottom -= 1;
    const COLORREF back = ZoSlotColor(ZoColor_GroupBack, m_eTheme);
    const COLORREF frameColor = ZoSlotColor(ZoColor_GroupFrame, m_eTheme);
    dc.FillSolidRect(r, back);
    const CRect f = ZoGroupBoxFrame(r, lineHeight);
    dc.Draw3dRect(f, frameColor, frameColor);
    {
        CPen pen(PS_SOLID, 1, frameColor);
        CPen* pOld = dc.SelectObject(&pen);
        dc.MoveTo(f.left + 1, f.top + 1);
        dc.LineTo(f.right - 2, f.top + 1);
        dc.MoveTo(f.right, f.top + 1);
        dc.LineTo(f.right, f.bottom);
        dc.MoveTo(f.left, f.bottom);
        dc.LineTo(f.right, f.bottom);
        dc.MoveTo(f.left + 1, f.top + 1);
        dc.LineTo(f.left + 1, f.bottom - 2);
        dc.SelectObject(pOld);
    }
    const CString text = _caption();
    if (text.IsEmpty())
        return;
    const int indent = ZoGroupBoxIndent(ZoCurrentZoom(m_eMonitorSize));
    const COLORREF oldBack = dc.SetBkColor(back);
    const UINT align = ZoGroupBoxCaptionAlign(GetStyle());
    int x = r.left + indent;
    if (align == TA_RIGHT)
        x = r.right - indent;
    else if (align == TA_CENTER)
        x = (r.left + r.right) / 2;
    const UINT oldAlign = dc.SetTextAlign(align);
    // The padded caption cuts the frame's top line.
    const CString caption = L"  " + text + L"  ";
    dc.TextOut(x, r.top + 1, caption);
    dc.SetTextAlign(oldAlign);
    dc.SetBkColor(oldBack);
}

} // namespace ZoControls
