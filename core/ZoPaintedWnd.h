// The one painting path of every self-drawn window.
// Classes in this file:
//   IZoPaintedWnd        what a self-drawn window tells the painting path: how it paints now and
//                        how it draws its client area
//   CZoPaintedWnd<Base>  an MFC window class that paints through that path: WM_PAINT (with or
//                        without a DC in wParam), WM_PRINTCLIENT and WM_ERASEBKGND, and
//                        RepaintNow for a state change that must show at once; a window that
//                        draws a focus cue is repainted when the focus or the UI state changes
//   ZoFocusCueShown, ZoDrawFocusCue   whether and how a focus cue is drawn
#pragma once
#include <afxwin.h>

#include "ZoCtrlExport.h"

namespace ZoControls {

// How a window paints in its present style.
enum E_ZoPaintMode
{
    ZoPaint_Platform,          // the platform paints (styles the library does not draw); no erasing
    ZoPaint_Offscreen,         // drawn whole into an off-screen surface, copied once; no erasing
    ZoPaint_Direct,            // drawn straight into the DC; no erasing
    ZoPaint_DirectAfterErase   // the platform erases the background first, then drawn straight
};

class ZOCTRL_API IZoPaintedWnd
{
public:
    virtual E_ZoPaintMode GetPaintMode() = 0;
    // Draws the client area into `dc`, whose origin is the client area's top-left corner.
    virtual void DrawClient(CDC& dc) = 0;
    // A part of the client area that painting leaves as it is (a tab control's page belongs to
    // the host's page windows); false when the whole client area is painted.
    virtual bool GetKeptRect(CRect& rect) = 0;
    // True when DrawClient draws a focus cue: focus and UI-state changes then repaint the window.
    virtual bool DrawsFocusCue() = 0;

protected:
    ~IZoPaintedWnd() {}
};

// Handles WM_PAINT, WM_PRINTCLIENT and WM_ERASEBKGND of `wnd` as `painted` asks; false leaves
// the message to the platform. A DC in wParam is painted into, as the native controls do.
ZOCTRL_API bool ZoRoutePaintMessage(CWnd& wnd, IZoPaintedWnd& painted, UINT message, WPARAM wParam,
                                    LRESULT& result);

// Invalidates the client area without erasing and paints it at once, also inside a capture
// loop or a modal loop that dispatches no paint messages. Nothing happens to a hidden window.
ZOCTRL_API void ZoRepaintNow(HWND hWnd);

// True while `hWnd` holds the focus and its UI state does not hide focus cues (a window shown
// by the mouse hides them until the keyboard is used). The state is asked of the default
// window procedure, which keeps it, rather than sent through the thread's message hooks.
ZOCTRL_API bool ZoFocusCueShown(HWND hWnd);
// The messages after which a focus cue may have appeared or gone.
ZOCTRL_API bool ZoChangesFocusCue(UINT message);
// The platform's dotted focus rectangle around `rect`. It inverts what lies beneath, so it is
// drawn last and in fixed DC colours (its pattern takes the text and background colours).
ZOCTRL_API void ZoDrawFocusCue(CDC& dc, const CRect& rect);

template <class TBase>
class CZoPaintedWnd : public TBase, public IZoPaintedWnd
{
public:
    // Shows a state change at once.
    void RepaintNow() { ZoRepaintNow(this->GetSafeHwnd()); }

    E_ZoPaintMode GetPaintMode() override { return ZoPaint_Offscreen; }
    bool GetKeptRect(CRect&) override { return false; }
    bool DrawsFocusCue() override { return false; }

    // True while this window shows its focus cue (see ZoFocusCueShown).
    bool ShowsFocusCue() const { return ZoFocusCueShown(this->GetSafeHwnd()); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        LRESULT result = 0;
        if (ZoRoutePaintMessage(*this, *this, message, wParam, result))
            return result;
        result = TBase::WindowProc(message, wParam, lParam);
        if (ZoChangesFocusCue(message) && DrawsFocusCue())
        {
            // While WM_KILLFOCUS runs the platform may still name this window as the focus:
            // that repaint waits for the next paint.
            if (message == WM_KILLFOCUS)
                ::InvalidateRect(this->GetSafeHwnd(), NULL, FALSE);
            else
                RepaintNow();
        }
        return result;
    }
};

} // namespace ZoControls
