#include "dialogs/ZoDialogGeometry.h"

#include <algorithm>

namespace ZoControls {

namespace {

bool hasBox(DWORD frameStyle)
{
    return (frameStyle & (WS_MINIMIZEBOX | WS_MAXIMIZEBOX)) != 0;
}

bool isValidRow(E_ZoSysButtonRow row)
{
    return row >= ZoSysButton_Minimize && row < ZoSysButton_Count;
}

} // namespace

int ZoDialogBorderSize(int monitorSize)
{
    switch (monitorSize)
    {
    case ZoMonitorSize_Normal:
        return 2;
    case ZoMonitorSize_3M:
        return 5;
    case ZoMonitorSize_5M:
        return 7;
    default:
        return 0;
    }
}

BorderDim ZoDialogBorders(DWORD style, int monitorSize)
{
    BorderDim border = {0, 0, 0, 0, 0};
    if (style & WS_DLGFRAME)
    {
        const int size = ZoDialogBorderSize(monitorSize);
        border.left = border.right = border.top = border.bottom = size;
    }
    if ((style & WS_CAPTION) == WS_CAPTION)
        border.caption = ZO_DIALOG_CAPTION_HEIGHT;
    return border;
}

void ZoDialogRestingStates(DWORD frameStyle, int states[ZoSysButton_Count])
{
    states[ZoSysButton_Close] = ZoSysButtonState_Normal;
    states[ZoSysButton_Maximize] = (frameStyle & WS_MAXIMIZEBOX) ? ZoSysButtonState_Normal : ZoSysButtonState_Disabled;
    states[ZoSysButton_Minimize] = (frameStyle & WS_MINIMIZEBOX) ? ZoSysButtonState_Normal : ZoSysButtonState_Disabled;
}

void ZoDialogSysButtonRects(int windowWidth, const BorderDim& border, int cellWidth, int cellHeight,
                            DWORD frameStyle, bool zoomed, CRect rects[ZoSysButton_Count])
{
    for (int i = 0; i < ZoSysButton_Count; ++i)
        rects[i].SetRectEmpty();
    CRect close(0, 0, cellWidth, cellHeight);
    close.OffsetRect(windowWidth - border.right - cellWidth, (border.caption - cellHeight) / 2 + border.top);
    rects[ZoSysButton_Close] = close;
    if (!hasBox(frameStyle))
        return;
    CRect next = close;
    next.OffsetRect(-cellWidth, 0);
    rects[zoomed ? ZoSysButton_Restore : ZoSysButton_Maximize] = next;
    next.OffsetRect(-cellWidth, 0);
    rects[ZoSysButton_Minimize] = next;
}

LRESULT ZoDialogHitTest(LRESULT platformHit, const CPoint& point, const CRect rects[ZoSysButton_Count],
                        DWORD frameStyle, int windowWidth, int captionHeight)
{
    switch (platformHit)
    {
    case HTNOWHERE:
    case HTCAPTION:
    case HTMAXBUTTON:
    case HTMINBUTTON:
    case HTSYSMENU:
    case HTCLOSE:
        break;
    default:
        return platformHit;
    }
    if (frameStyle & ZO_DIALOG_FRAME_STYLE_MASK)
    {
        if (rects[ZoSysButton_Maximize].PtInRect(point) || rects[ZoSysButton_Restore].PtInRect(point))
            return HTMAXBUTTON;
        if (rects[ZoSysButton_Minimize].PtInRect(point))
            return HTMINBUTTON;
        if (rects[ZoSysButton_Close].PtInRect(point))
            return HTMAXBUTTON;
    }
    const CRect caption(0, 0, windowWidth, captionHeight);
    return caption.PtInRect(point) ? HTCAPTION : HTNOWHERE;
}

E_ZoSysButtonRow ZoDialogSysButtonAt(const CPoint& point, UINT hit, const CRect rects[ZoSysButton_Count],
                                     DWORD frameStyle)
{
    if (hit == HTMAXBUTTON)
    {
        if (rects[ZoSysButton_Close].PtInRect(point))
            return ZoSysButton_Close;
        if (frameStyle & WS_MAXIMIZEBOX)
            return ZoSysButton_Maximize;
        return ZoSysButton_None;
    }
    if (hit == HTMINBUTTON && (frameStyle & WS_MINIMIZEBOX))
        return ZoSysButton_Minimize;
    return ZoSysButton_None;
}

void ZoDialogStatesOnMove(DWORD frameStyle, E_ZoSysButtonRow over, E_ZoSysButtonRow pressed,
                          int states[ZoSysButton_Count])
{
    ZoDialogRestingStates(frameStyle, states);
    if (!isValidRow(over))
        return;
    if (pressed == ZoSysButton_None)
        states[over] = ZoSysButtonState_Hot;
    else if (over == pressed)
        states[over] = ZoSysButtonState_Pressed;
}

E_ZoSysButtonAction ZoDialogReleaseAction(E_ZoSysButtonRow pressed, E_ZoSysButtonRow released, bool zoomed,
                                          bool iconic)
{
    if (pressed != released)
        return ZoSysAction_None;
    switch (released)
    {
    case ZoSysButton_Close:
        return ZoSysAction_Close;
    case ZoSysButton_Maximize:
        return zoomed ? ZoSysAction_Restore : ZoSysAction_Maximize;
    case ZoSysButton_Minimize:
        return iconic ? ZoSysAction_Restore : ZoSysAction_Minimize;
    default:
        return ZoSysAction_None;
    }
}

CRect ZoDialogClientInsideFrame(const CRect& proposed, int windowWidth, int windowHeight, const BorderDim& border)
{
    CRect client = proposed;
    client.left = std::max<int>(client.left, border.left);
    client.top = std::max<int>(client.top, border.top + border.caption);
    client.right = std::min<int>(client.right, windowWidth - border.right);
    client.bottom = std::min<int>(client.bottom, windowHeight - border.bottom);
    // A window too small for its frame gets an empty client area, never an inverted one.
    client.right = std::max<int>(client.right, client.left);
    client.bottom = std::max<int>(client.bottom, client.top);
    return client;
}

} // namespace ZoControls
