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

const char kCommonControls6Manifest[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
    "<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">\n"
    "<dependency><dependentAssembly><assemblyIdentity type=\"win32\" name=\"Microsoft.Windows.Common-Controls\" "
    "version=\"6.0.0.0\" processorArchitecture=\"*\" publicKeyToken=\"6595b64144ccf1df\" language=\"*\"/>"
    "</dependentAssembly></dependency>\n</assembly>\n";

// The manifest as a file: CreateActCtx reads manifests from files or from resources, and test
// executables have no resource of their own to point at.
std::wstring WriteCommonControls6Manifest()
{
    wchar_t folder[MAX_PATH];
    const DWORD length = GetTempPathW(MAX_PATH, folder);
    if (length == 0 || length >= MAX_PATH)
        return std::wstring();
    const std::wstring path = std::wstring(folder) + L"zotest-comctl6-" + std::to_wstring(GetCurrentProcessId()) +
                              L".manifest";
    HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_TEMPORARY, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return std::wstring();
    DWORD written = 0;
    const bool ok = WriteFile(file, kCommonControls6Manifest, sizeof kCommonControls6Manifest - 1, &written, nullptr);
    CloseHandle(file);
    return ok ? path : std::wstring();
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

ScopedCommonControls6::ScopedCommonControls6()
{
    const std::wstring manifest = WriteCommonControls6Manifest();
    if (manifest.empty())
        return;
    ACTCTXW description{};
    description.cbSize = sizeof description;
    description.lpSource = manifest.c_str();
    context_ = CreateActCtxW(&description);
    DeleteFileW(manifest.c_str());
    if (context_ == INVALID_HANDLE_VALUE)
        return;
    if (!ActivateActCtx(context_, &cookie_)) {
        cookie_ = 0;
        return;
    }
    // Registers the version 6 classes inside the context.
    INITCOMMONCONTROLSEX controls{sizeof(INITCOMMONCONTROLSEX), ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&controls);
}

ScopedCommonControls6::~ScopedCommonControls6()
{
    if (cookie_ != 0)
        DeactivateActCtx(0, cookie_);
    if (context_ != INVALID_HANDLE_VALUE)
        ReleaseActCtx(context_);
}

} // namespace zotest
