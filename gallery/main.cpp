// ZoCtrl gallery: the demo host. Every control family gets a page; with
// --screenshots DIR it renders each page into DIR\<page>.bmp and exits.
#include <windows.h>
#include <string>

namespace {

const wchar_t kTitle[] = L"ZoCtrl Gallery";

void PaintWelcomePage(HDC dc, const RECT& client)
{
    HBRUSH back = CreateSolidBrush(RGB(45, 45, 48));
    FillRect(dc, &client, back);
    DeleteObject(back);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, RGB(230, 230, 230));
    RECT text = client;
    DrawTextW(dc, L"ZoCtrl gallery", -1, &text, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

LRESULT CALLBACK GalleryProc(HWND wnd, UINT msg, WPARAM wp, LPARAM lp)
{
    switch (msg) {
    case WM_PAINT: {
        PAINTSTRUCT ps;
        HDC dc = BeginPaint(wnd, &ps);
        RECT client;
        GetClientRect(wnd, &client);
        PaintWelcomePage(dc, client);
        EndPaint(wnd, &ps);
        return 0;
    }
    case WM_PRINTCLIENT: {
        RECT client;
        GetClientRect(wnd, &client);
        PaintWelcomePage(reinterpret_cast<HDC>(wp), client);
        return 0;
    }
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProcW(wnd, msg, wp, lp);
}

// Writes the window's client area, rendered through WM_PRINTCLIENT, as a 24-bit BMP.
bool SaveClientBitmap(HWND wnd, const std::wstring& path)
{
    RECT client;
    GetClientRect(wnd, &client);
    const int width = client.right, height = client.bottom;
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    HDC screen = GetDC(nullptr);
    HDC mem = CreateCompatibleDC(screen);
    HBITMAP dib = CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    ReleaseDC(nullptr, screen);
    if (!dib) {
        DeleteDC(mem);
        return false;
    }
    HGDIOBJ old = SelectObject(mem, dib);
    SendMessageW(wnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(mem), PRF_CLIENT | PRF_CHILDREN);
    GdiFlush();
    const DWORD stride = ((width * 3 + 3) & ~3), size = stride * height;
    BITMAPFILEHEADER file = {};
    file.bfType = 0x4D42;
    file.bfOffBits = sizeof(file) + sizeof(info.bmiHeader);
    file.bfSize = file.bfOffBits + size;
    bool ok = false;
    HANDLE out = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (out != INVALID_HANDLE_VALUE) {
        DWORD written = 0;
        ok = WriteFile(out, &file, sizeof(file), &written, nullptr) &&
             WriteFile(out, &info.bmiHeader, sizeof(info.bmiHeader), &written, nullptr) &&
             WriteFile(out, bits, size, &written, nullptr);
        CloseHandle(out);
    }
    SelectObject(mem, old);
    DeleteObject(dib);
    DeleteDC(mem);
    return ok;
}

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int show)
{
    WNDCLASSW cls = {};
    cls.lpfnWndProc = GalleryProc;
    cls.hInstance = instance;
    cls.hCursor = LoadCursor(nullptr, IDC_ARROW);
    cls.lpszClassName = L"ZoGalleryHost";
    RegisterClassW(&cls);

    std::wstring screenshotDir;
    int argc = 0;
    LPWSTR* argv = CommandLineToArgvW(GetCommandLineW(), &argc);
    for (int i = 1; i + 1 < argc; ++i)
        if (std::wstring(argv[i]) == L"--screenshots")
            screenshotDir = argv[i + 1];
    LocalFree(argv);

    HWND wnd = CreateWindowExW(0, cls.lpszClassName, kTitle, WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, CW_USEDEFAULT,
                               1000, 720, nullptr, nullptr, instance, nullptr);
    if (!wnd)
        return 1;
    if (!screenshotDir.empty()) {
        const bool ok = SaveClientBitmap(wnd, screenshotDir + L"\\welcome.bmp");
        DestroyWindow(wnd);
        return ok ? 0 : 1;
    }
    ShowWindow(wnd, show);
    MSG msg;
    while (GetMessageW(&msg, nullptr, 0, 0) > 0) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
    return 0;
}
