// Windows for tests and platform facts.
//   RunningUnderWine          true under Wine (ntdll exports wine_get_version)
//   CreateSolidWindow         a window that paints itself in one colour (WM_PAINT, WM_PRINTCLIENT,
//                             WM_ERASEBKGND); a handy parent or a known render target
//   SolidWindowColor / SetSolidWindowColor
//   ScopedWindow              destroys its window at scope end (if it still exists)
//   FindOpenPopupMenu         the visible popup-menu window ("#32768") of this process, if any
//
// Test executables carry the common-controls 6 manifest (tests/support/common_controls6.manifest),
// as Visual Studio hosts do: BUTTON, EDIT, STATIC, COMBOBOX, LISTBOX and SCROLLBAR are comctl32's
// version 6 classes (themed; under Wine the button face is white and BCM_GETIDEALSIZE works).
#pragma once

#include <windows.h>

namespace zotest {

bool RunningUnderWine();

// The visible popup-menu window of this process (a menu that TrackPopupMenu shows); null for none.
HWND FindOpenPopupMenu();

// `parent` null: a visible WS_POPUP top-level window at `rect` (screen coordinates); otherwise a
// visible WS_CHILD at `rect` in the parent's client coordinates. `extraStyle` is or-ed in.
HWND CreateSolidWindow(const RECT& rect, COLORREF color, HWND parent = nullptr, DWORD extraStyle = 0,
                       DWORD exStyle = 0);
COLORREF SolidWindowColor(HWND window);
void SetSolidWindowColor(HWND window, COLORREF color);

class ScopedWindow {
public:
    ScopedWindow() = default;
    explicit ScopedWindow(HWND window) : window_(window) {}
    ~ScopedWindow() { Reset(); }
    ScopedWindow(const ScopedWindow&) = delete;
    ScopedWindow& operator=(const ScopedWindow&) = delete;
    ScopedWindow(ScopedWindow&& other) noexcept : window_(other.Release()) {}
    ScopedWindow& operator=(ScopedWindow&& other) noexcept
    {
        if (this != &other)
            Reset(other.Release());
        return *this;
    }

    HWND get() const { return window_; }
    operator HWND() const { return window_; }
    HWND Release()
    {
        HWND window = window_;
        window_ = nullptr;
        return window;
    }
    void Reset(HWND window = nullptr)
    {
        if (window_ && IsWindow(window_))
            DestroyWindow(window_);
        window_ = window;
    }

private:
    HWND window_ = nullptr;
};

} // namespace zotest
