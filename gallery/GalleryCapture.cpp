#include <afxwin.h>

#include "GalleryCapture.h"

namespace {

// Sends `message` with a scratch DC whose origin is the top-left corner of `area` (in `hdc`'s
// coordinates) and copies the result into `hdc`. The scratch starts as a copy of what lies
// there already, so windows that leave parts unpainted show their parent through. Each window
// gets a DC of its own because native controls under Wine expect one: the static and the
// button clip to their client rectangle read as device coordinates (so they vanish at any other
// origin), and the edit leaves its clip rectangle selected (hiding whatever comes after it).
void PrintThroughScratch(HWND hWnd, HDC hdc, const RECT& area, UINT message, LPARAM flags)
{
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    if (width <= 0 || height <= 0)
        return;
    HDC hScratch = ::CreateCompatibleDC(hdc);
    HBITMAP hBitmap = ::CreateCompatibleBitmap(hdc, width, height);
    if (hScratch && hBitmap) {
        HGDIOBJ hOld = ::SelectObject(hScratch, hBitmap);
        ::BitBlt(hScratch, 0, 0, width, height, hdc, area.left, area.top, SRCCOPY);
        ::SendMessage(hWnd, message, reinterpret_cast<WPARAM>(hScratch), flags);
        ::BitBlt(hdc, area.left, area.top, width, height, hScratch, 0, 0, SRCCOPY);
        ::SelectObject(hScratch, hOld);
    }
    if (hBitmap)
        ::DeleteObject(hBitmap);
    if (hScratch)
        ::DeleteDC(hScratch);
}

// Paints `hWnd`'s client area at `origin` of `hdc`, then its visible children, bottom of the
// z-order first, each with its frame.
void RenderClientTree(HWND hWnd, HDC hdc, POINT origin)
{
    RECT client;
    ::GetClientRect(hWnd, &client);
    ::OffsetRect(&client, origin.x, origin.y);
    PrintThroughScratch(hWnd, hdc, client, WM_PRINTCLIENT, PRF_CLIENT | PRF_ERASEBKGND);

    HWND hChild = ::GetWindow(hWnd, GW_CHILD);
    if (hChild)
        hChild = ::GetWindow(hChild, GW_HWNDLAST);
    for (; hChild; hChild = ::GetWindow(hChild, GW_HWNDPREV)) {
        // The style, not IsWindowVisible: the main window stays hidden while it is captured.
        if (!(::GetWindowLong(hChild, GWL_STYLE) & WS_VISIBLE))
            continue;
        RECT frame;
        ::GetWindowRect(hChild, &frame);
        ::MapWindowPoints(NULL, hWnd, reinterpret_cast<POINT*>(&frame), 2);
        ::OffsetRect(&frame, origin.x, origin.y);
        POINT clientOrigin = {0, 0};
        ::ClientToScreen(hChild, &clientOrigin);
        ::ScreenToClient(hWnd, &clientOrigin);
        PrintThroughScratch(hChild, hdc, frame, WM_PRINT, PRF_NONCLIENT);
        const POINT childOrigin = {origin.x + clientOrigin.x, origin.y + clientOrigin.y};
        RenderClientTree(hChild, hdc, childOrigin);
    }
}

bool WriteBitmapFile(const CString& path, const BITMAPINFOHEADER& header, const void* bits, DWORD size)
{
    BITMAPFILEHEADER file = {};
    file.bfType = 0x4D42; // "BM"
    file.bfOffBits = sizeof(file) + sizeof(header);
    file.bfSize = file.bfOffBits + size;
    HANDLE hFile = ::CreateFileW(path, GENERIC_WRITE, 0, NULL, CREATE_ALWAYS, 0, NULL);
    if (hFile == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    const bool ok = ::WriteFile(hFile, &file, sizeof(file), &written, NULL) &&
                    ::WriteFile(hFile, &header, sizeof(header), &written, NULL) &&
                    ::WriteFile(hFile, bits, size, &written, NULL);
    ::CloseHandle(hFile);
    return ok;
}

} // namespace

bool SaveWindowBitmap(HWND hWnd, const CString& path)
{
    // The whole window: its frame draws its border through WM_PRINT, the client area and the
    // children follow at the client area's place.
    RECT client, window;
    if (!::GetWindowRect(hWnd, &window) || !::GetClientRect(hWnd, &client) || client.right <= 0 ||
        client.bottom <= 0)
        return false;
    POINT origin = {0, 0};
    ::ClientToScreen(hWnd, &origin);
    origin.x -= window.left;
    origin.y -= window.top;
    client.right = window.right - window.left;
    client.bottom = window.bottom - window.top;
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = client.right;
    info.bmiHeader.biHeight = client.bottom;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    info.bmiHeader.biCompression = BI_RGB;
    void* pBits = NULL;
    HDC hScreen = ::GetDC(NULL);
    HDC hMem = ::CreateCompatibleDC(hScreen);
    HBITMAP hDib = ::CreateDIBSection(hScreen, &info, DIB_RGB_COLORS, &pBits, NULL, 0);
    ::ReleaseDC(NULL, hScreen);
    if (!hDib || !hMem) {
        if (hDib)
            ::DeleteObject(hDib);
        if (hMem)
            ::DeleteDC(hMem);
        return false;
    }
    HGDIOBJ hOld = ::SelectObject(hMem, hDib);
    ::SendMessage(hWnd, WM_PRINT, reinterpret_cast<WPARAM>(hMem), PRF_NONCLIENT);
    RenderClientTree(hWnd, hMem, origin);
    ::GdiFlush();
    const DWORD stride = (static_cast<DWORD>(client.right) * 3 + 3) & ~3u;
    const bool ok = WriteBitmapFile(path, info.bmiHeader, pBits, stride * client.bottom);
    ::SelectObject(hMem, hOld);
    ::DeleteObject(hDib);
    ::DeleteDC(hMem);
    return ok;
}
