#include <zotest/test_window.h>

#include <commctrl.h>

#include <string>

namespace zotest {

namespace {

const wchar_t kSolidClass[] = L"ZoTestSolidWindow";
const wchar_t kColorProperty[] = L"ZoTestSolidColor";

void FillWithColor(HWND window, HDC dc)
{
    RECT client;
    GetClientRect(window, &client);
    HBRUSH brush = CreateSolidBrush(SolidWindowColor(window));
    FillRect(dc, &client, brush);
    DeleteObject(brush);
}

LRESULT CALLBACK SolidWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_ERASEBKGND:
        FillWithColor(window, reinterpret_cast<HDC>(wParam));
        return 1;
    case WM_PRINTCLIENT:
        FillWithColor(window, reinterpret_cast<HDC>(wParam));
        return 0;
    case WM_PAINT: {
        PAINTSTRUCT paint;
        HDC dc = BeginPaint(window, &paint);
        FillWithColor(window, dc);
        EndPaint(window, &paint);
        return 0;
    }
    case WM_NCDESTROY:
        RemovePropW(window, kColorProperty);
        break;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

ATOM RegisterSolidClass()
{
    static const ATOM atom = [] {
        WNDCLASSEXW windowClass{};
        windowClass.cbSize = sizeof windowClass;
        windowClass.lpfnWndProc = SolidWindowProc;
        windowClass.hInstance = GetModuleHandleW(nullptr);
        windowClass.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
        windowClass.lpszClassName = kSolidClass;
        return RegisterClassExW(&windowClass);
    }();
    return atom;
}

} // namespace

bool RunningUnderWine()
{
    static const bool wine = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
    return wine;
}

HWND FindOpenPopupMenu()
{
    HWND window = nullptr;
    while ((window = ::FindWindowExW(nullptr, window, L"#32768", nullptr)) != nullptr) {
        DWORD process = 0;
        ::GetWindowThreadProcessId(window, &process);
        if (process == ::GetCurrentProcessId() && ::IsWindowVisible(window))
            return window;
    }
    return nullptr;
}

HWND CreateSolidWindow(const RECT& rect, COLORREF color, HWND parent, DWORD extraStyle, DWORD exStyle)
{
    if (!RegisterSolidClass())
        return nullptr;
    const DWORD style = (parent ? WS_CHILD | WS_CLIPSIBLINGS : WS_POPUP) | WS_VISIBLE | extraStyle;
    HWND window = CreateWindowExW(exStyle, kSolidClass, L"", style, rect.left, rect.top, rect.right - rect.left,
                                  rect.bottom - rect.top, parent, nullptr, GetModuleHandleW(nullptr), nullptr);
    if (window)
        SetSolidWindowColor(window, color);
    return window;
}

COLORREF SolidWindowColor(HWND window)
{
    // The colour travels in a window property so no per-window allocation needs freeing.
    return static_cast<COLORREF>(reinterpret_cast<UINT_PTR>(GetPropW(window, kColorProperty)));
}

void SetSolidWindowColor(HWND window, COLORREF color)
{
    if (!IsWindow(window))
        return;
    SetPropW(window, kColorProperty, reinterpret_cast<HANDLE>(static_cast<UINT_PTR>(color)));
    InvalidateRect(window, nullptr, TRUE);
}

} // namespace zotest
