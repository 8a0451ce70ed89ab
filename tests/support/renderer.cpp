#include <zotest/renderer.h>

#include <algorithm>
#include <cstdlib>
#include <cstdio>
#include <vector>

namespace zotest {

namespace {

constexpr int kMaxSide = 16384;

BITMAPINFO TopDown32(int width, int height)
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

DWORD ToPixel(COLORREF color)
{
    return (static_cast<DWORD>(GetRValue(color)) << 16) | (static_cast<DWORD>(GetGValue(color)) << 8) |
           GetBValue(color);
}

COLORREF ToColor(DWORD pixel)
{
    return RGB((pixel >> 16) & 0xFF, (pixel >> 8) & 0xFF, pixel & 0xFF);
}

std::string PointText(int x, int y)
{
    return "(" + std::to_string(x) + "," + std::to_string(y) + ")";
}

std::string RectText(const RECT& r)
{
    return "{" + std::to_string(r.left) + "," + std::to_string(r.top) + "," + std::to_string(r.right) + "," +
           std::to_string(r.bottom) + "}";
}

// With ZOTEST_DUMP_DIR set, a failing pixel check saves the image it looked at and says where.
std::string DumpForFailure(const Dib& dib)
{
    wchar_t folder[MAX_PATH];
    const DWORD length = GetEnvironmentVariableW(L"ZOTEST_DUMP_DIR", folder, MAX_PATH);
    if (length == 0 || length >= MAX_PATH || dib.empty())
        return std::string();
    static int serial = 0;
    const ::testing::TestInfo* test = ::testing::UnitTest::GetInstance()->current_test_info();
    std::string name = test ? std::string(test->test_suite_name()) + "." + test->name() : "outside-a-test";
    for (char& c : name)
        if (c == '/' || c == '\\')
            c = '_';
    name += "-" + std::to_string(++serial) + ".bmp";
    const std::wstring path = std::wstring(folder) + L"\\" + std::wstring(name.begin(), name.end());
    if (!dib.SaveBmp(path.c_str()))
        return "; could not save the image into ZOTEST_DUMP_DIR";
    return "; image saved as " + name + " in ZOTEST_DUMP_DIR";
}

// Window rectangle of `window` in the client coordinates of its parent (or screen for top-level).
RECT WindowRectInParent(HWND window)
{
    RECT rect;
    GetWindowRect(window, &rect);
    if (HWND parentWindow = GetAncestor(window, GA_PARENT); parentWindow && parentWindow != GetDesktopWindow())
        MapWindowPoints(nullptr, parentWindow, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

// Client area of `window` relative to its window rectangle.
RECT ClientRectInWindow(HWND window)
{
    RECT windowRect, client;
    GetWindowRect(window, &windowRect);
    GetClientRect(window, &client);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&client), 2);
    OffsetRect(&client, -windowRect.left, -windowRect.top);
    return client;
}

Dib WholeWindowImage(HWND window, HDC under, const RECT& place);

// Paints the client area of `window` and its visible children into `dc`, whose origin is the
// client area's top-left corner.
void PaintClientTree(HWND window, HDC dc)
{
    const int saved = SaveDC(dc);
    SendMessageW(window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0);
    RestoreDC(dc, saved);
    const int savedAgain = SaveDC(dc);
    SendMessageW(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), PRF_CLIENT | PRF_ERASEBKGND);
    RestoreDC(dc, savedAgain);
    // Bottom of the z-order first so that upper siblings cover lower ones as on screen.
    for (HWND child = GetWindow(GetWindow(window, GW_CHILD), GW_HWNDLAST); child;
         child = GetWindow(child, GW_HWNDPREV)) {
        if (!(GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE))
            continue;
        const RECT place = WindowRectInParent(child);
        Dib image = WholeWindowImage(child, dc, place);
        if (!image.empty())
            BitBlt(dc, place.left, place.top, image.width(), image.height(), image.dc(), 0, 0, SRCCOPY);
    }
}

// Each window paints into a DIB of its own at origin 0,0: controls that clip by converting device
// to logical coordinates (Wine's buttons do) would clip wrongly under a moved viewport. The DIB
// starts as a copy of what lies beneath (`under` at `place`), so parts a window leaves unpainted
// show its parent as on screen.
Dib WholeWindowImage(HWND window, HDC under, const RECT& place)
{
    Dib image(place.right - place.left, place.bottom - place.top);
    if (image.empty())
        return image;
    if (under)
        BitBlt(image.dc(), 0, 0, image.width(), image.height(), under, place.left, place.top, SRCCOPY);
    // The frame; Wine 8 draws no frame through WM_PRINT, so there frames stay as they were.
    SendMessageW(window, WM_PRINT, reinterpret_cast<WPARAM>(image.dc()), PRF_NONCLIENT);
    const RECT client = ClientRectInWindow(window);
    Dib clientImage(client.right - client.left, client.bottom - client.top);
    if (!clientImage.empty()) {
        BitBlt(clientImage.dc(), 0, 0, clientImage.width(), clientImage.height(), image.dc(), client.left, client.top,
               SRCCOPY);
        PaintClientTree(window, clientImage.dc());
        BitBlt(image.dc(), client.left, client.top, clientImage.width(), clientImage.height(), clientImage.dc(), 0, 0,
               SRCCOPY);
    }
    return image;
}

Dib RenderWholeWindow(HWND window, RenderPath path)
{
    if (!IsWindow(window))
        return Dib();
    RECT windowRect;
    GetWindowRect(window, &windowRect);
    Dib dib(windowRect.right - windowRect.left, windowRect.bottom - windowRect.top);
    if (dib.empty())
        return dib;
    switch (path) {
    case RenderPath::PrintClient: {
        const RECT place = {0, 0, dib.width(), dib.height()};
        dib = WholeWindowImage(window, nullptr, place);
        break;
    }
    case RenderPath::Print:
        SendMessageW(window, WM_PRINT, reinterpret_cast<WPARAM>(dib.dc()),
                     PRF_NONCLIENT | PRF_CLIENT | PRF_ERASEBKGND | PRF_CHILDREN);
        break;
    case RenderPath::Screen: {
        RedrawWindow(window, nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW | RDW_ERASENOW);
        HDC windowDc = GetWindowDC(window);
        BitBlt(dib.dc(), 0, 0, dib.width(), dib.height(), windowDc, 0, 0, SRCCOPY);
        ReleaseDC(window, windowDc);
        break;
    }
    }
    GdiFlush();
    return dib;
}

::testing::AssertionResult CompareCell(const Dib& dib, POINT at, const Dib& source, const RECT& cell,
                                       COLORREF transparent)
{
    if (source.empty())
        return ::testing::AssertionFailure() << "source bitmap is missing or unreadable";
    RECT sourceBounds = {0, 0, source.width(), source.height()};
    RECT clipped;
    if (IsRectEmpty(&cell) || !IntersectRect(&clipped, &cell, &sourceBounds) || !EqualRect(&clipped, &cell))
        return ::testing::AssertionFailure() << "cell " << RectText(cell) << " is not inside the "
                                             << source.width() << "x" << source.height() << " source";
    long wrong = 0, compared = 0;
    std::string first;
    for (int y = cell.top; y < cell.bottom; ++y) {
        for (int x = cell.left; x < cell.right; ++x) {
            const COLORREF want = source.Pixel(x, y);
            if (transparent != CLR_NONE && want == (transparent & 0xFFFFFF))
                continue;
            ++compared;
            const int tx = at.x + x - cell.left, ty = at.y + y - cell.top;
            const COLORREF got = dib.Pixel(tx, ty);
            if (got != want) {
                if (wrong++ == 0)
                    first = "first at " + PointText(tx, ty) + " (cell pixel " + PointText(x - cell.left, y - cell.top) +
                            "): expected " + ColorText(want) + ", got " +
                            (got == CLR_INVALID ? std::string("outside the image") : ColorText(got));
            }
        }
    }
    if (wrong == 0)
        return ::testing::AssertionSuccess() << compared << " pixels equal";
    return ::testing::AssertionFailure() << wrong << " of " << compared << " pixels differ from cell "
                                         << RectText(cell) << " placed at " << PointText(at.x, at.y) << "; "
                                         << first << DumpForFailure(dib);
}

} // namespace

Dib::Dib(int width, int height, COLORREF fill)
{
    if (width <= 0 || height <= 0 || width > kMaxSide || height > kMaxSide)
        return;
    BITMAPINFO info = TopDown32(width, height);
    void* bits = nullptr;
    HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    HDC dc = bitmap ? CreateCompatibleDC(nullptr) : nullptr;
    if (!bitmap || !dc || !bits) {
        if (dc)
            DeleteDC(dc);
        if (bitmap)
            DeleteObject(bitmap);
        return;
    }
    width_ = width;
    height_ = height;
    bits_ = static_cast<DWORD*>(bits);
    bitmap_ = bitmap;
    dc_ = dc;
    previous_ = static_cast<HBITMAP>(SelectObject(dc_, bitmap_));
    std::fill(bits_, bits_ + static_cast<size_t>(width_) * height_, ToPixel(fill));
}

Dib::~Dib()
{
    Release();
}

Dib::Dib(Dib&& other) noexcept
{
    *this = std::move(other);
}

Dib& Dib::operator=(Dib&& other) noexcept
{
    if (this != &other) {
        Release();
        width_ = other.width_;
        height_ = other.height_;
        bits_ = other.bits_;
        bitmap_ = other.bitmap_;
        previous_ = other.previous_;
        dc_ = other.dc_;
        other.width_ = other.height_ = 0;
        other.bits_ = nullptr;
        other.bitmap_ = other.previous_ = nullptr;
        other.dc_ = nullptr;
    }
    return *this;
}

void Dib::Release()
{
    if (dc_) {
        SelectObject(dc_, previous_);
        DeleteDC(dc_);
    }
    if (bitmap_)
        DeleteObject(bitmap_);
    width_ = height_ = 0;
    bits_ = nullptr;
    bitmap_ = previous_ = nullptr;
    dc_ = nullptr;
}

Dib Dib::FromBitmap(HBITMAP bitmap)
{
    BITMAP header{};
    if (!bitmap || GetObjectW(bitmap, sizeof header, &header) == 0)
        return Dib();
    Dib dib(header.bmWidth, std::abs(header.bmHeight));
    if (dib.empty())
        return dib;
    BITMAPINFO info = TopDown32(dib.width(), dib.height());
    HDC screen = GetDC(nullptr);
    const int lines = GetDIBits(screen, bitmap, 0, static_cast<UINT>(dib.height()), dib.bits_, &info, DIB_RGB_COLORS);
    ReleaseDC(nullptr, screen);
    if (lines != dib.height()) {
        // GetDIBits refuses a bitmap selected into a DC on some systems: copy through a DC instead.
        HDC source = CreateCompatibleDC(nullptr);
        HGDIOBJ old = SelectObject(source, bitmap);
        const bool copied = old && BitBlt(dib.dc(), 0, 0, dib.width(), dib.height(), source, 0, 0, SRCCOPY);
        if (old)
            SelectObject(source, old);
        DeleteDC(source);
        if (!copied)
            return Dib();
    }
    GdiFlush();
    return dib;
}

Dib Dib::FromDC(HDC dc, const RECT& area)
{
    Dib dib(area.right - area.left, area.bottom - area.top);
    if (dib.empty() || !dc)
        return Dib();
    if (!BitBlt(dib.dc(), 0, 0, dib.width(), dib.height(), dc, area.left, area.top, SRCCOPY))
        return Dib();
    GdiFlush();
    return dib;
}

COLORREF Dib::Pixel(int x, int y) const
{
    if (!bits_ || x < 0 || y < 0 || x >= width_ || y >= height_)
        return CLR_INVALID;
    GdiFlush();
    return ToColor(bits_[static_cast<size_t>(y) * width_ + x]);
}

void Dib::SetPixel(int x, int y, COLORREF color)
{
    if (!bits_ || x < 0 || y < 0 || x >= width_ || y >= height_)
        return;
    GdiFlush();
    bits_[static_cast<size_t>(y) * width_ + x] = ToPixel(color);
}

Dib Dib::Crop(const RECT& area) const
{
    RECT bounds = {0, 0, width_, height_}, part;
    if (empty() || !IntersectRect(&part, &area, &bounds))
        return Dib();
    Dib dib(part.right - part.left, part.bottom - part.top);
    for (int y = part.top; y < part.bottom; ++y)
        for (int x = part.left; x < part.right; ++x)
            dib.bits_[static_cast<size_t>(y - part.top) * dib.width_ + (x - part.left)] =
                bits_[static_cast<size_t>(y) * width_ + x];
    return dib;
}

bool Dib::SaveBmp(const wchar_t* path) const
{
    if (empty() || !path)
        return false;
    GdiFlush();
    const DWORD imageBytes = static_cast<DWORD>(width_) * height_ * 4;
    // Bottom-up rows, the layout every reader accepts (Wine's LoadImage reads top-down files blank).
    BITMAPINFO info = TopDown32(width_, height_);
    info.bmiHeader.biHeight = height_;
    BITMAPFILEHEADER file{};
    file.bfType = 0x4D42; // "BM"
    file.bfOffBits = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);
    file.bfSize = file.bfOffBits + imageBytes;
    HANDLE handle = CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return false;
    // Themed drawing leaves alpha bytes behind; viewers would take them as transparency.
    std::vector<DWORD> rows;
    rows.reserve(static_cast<size_t>(width_) * height_);
    for (int y = height_; y-- > 0;)
        for (int x = 0; x < width_; ++x)
            rows.push_back(bits_[static_cast<size_t>(y) * width_ + x] | 0xFF000000);
    DWORD written = 0;
    bool ok = WriteFile(handle, &file, sizeof file, &written, nullptr) &&
              WriteFile(handle, &info.bmiHeader, sizeof info.bmiHeader, &written, nullptr) &&
              WriteFile(handle, rows.data(), imageBytes, &written, nullptr);
    CloseHandle(handle);
    return ok;
}

Dib RenderWindow(HWND window, RenderPath path)
{
    return RenderWholeWindow(window, path);
}

Dib RenderClient(HWND window, RenderPath path)
{
    if (!IsWindow(window))
        return Dib();
    if (path == RenderPath::PrintClient) {
        RECT client;
        GetClientRect(window, &client);
        Dib dib(client.right, client.bottom);
        if (!dib.empty()) {
            PaintClientTree(window, dib.dc());
            GdiFlush();
        }
        return dib;
    }
    return RenderWholeWindow(window, path).Crop(ClientRectInWindow(window));
}

std::string ColorText(COLORREF color)
{
    if (color == CLR_INVALID)
        return "CLR_INVALID";
    char text[40];
    std::snprintf(text, sizeof text, "RGB(%u,%u,%u)", GetRValue(color), GetGValue(color), GetBValue(color));
    return text;
}

::testing::AssertionResult PixelIs(const Dib& dib, int x, int y, COLORREF expected)
{
    const COLORREF got = dib.Pixel(x, y);
    if (got == CLR_INVALID)
        return ::testing::AssertionFailure() << "pixel " << PointText(x, y) << " is outside the " << dib.width()
                                             << "x" << dib.height() << " image";
    if (got != (expected & 0xFFFFFF))
        return ::testing::AssertionFailure() << "pixel " << PointText(x, y) << " is " << ColorText(got)
                                             << ", expected " << ColorText(expected) << DumpForFailure(dib);
    return ::testing::AssertionSuccess();
}

::testing::AssertionResult RectFilled(const Dib& dib, const RECT& area, COLORREF expected)
{
    if (IsRectEmpty(&area))
        return ::testing::AssertionFailure() << "rectangle " << RectText(area) << " is empty";
    if (area.left < 0 || area.top < 0 || area.right > dib.width() || area.bottom > dib.height())
        return ::testing::AssertionFailure() << "rectangle " << RectText(area) << " is not inside the "
                                             << dib.width() << "x" << dib.height() << " image";
    long wrong = 0;
    std::string first;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            const COLORREF got = dib.Pixel(x, y);
            if (got != (expected & 0xFFFFFF) && wrong++ == 0)
                first = PointText(x, y) + " is " + ColorText(got);
        }
    }
    if (wrong == 0)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "rectangle " << RectText(area) << " should be " << ColorText(expected)
                                         << " but " << wrong << " pixels differ; first " << first
                                         << DumpForFailure(dib);
}

::testing::AssertionResult MatchesCell(const Dib& dib, POINT at, HBITMAP source, const RECT& cell,
                                       COLORREF transparent)
{
    return CompareCell(dib, at, Dib::FromBitmap(source), cell, transparent);
}

::testing::AssertionResult MatchesCell(const Dib& dib, POINT at, const Dib& source, const RECT& cell,
                                       COLORREF transparent)
{
    return CompareCell(dib, at, source, cell, transparent);
}

RECT BoundsOfDifferences(const Dib& dib, COLORREF background)
{
    RECT bounds = {dib.width(), dib.height(), 0, 0};
    const COLORREF plain = background & 0xFFFFFF;
    for (int y = 0; y < dib.height(); ++y) {
        for (int x = 0; x < dib.width(); ++x) {
            if (dib.Pixel(x, y) == plain)
                continue;
            bounds.left = std::min<LONG>(bounds.left, x);
            bounds.top = std::min<LONG>(bounds.top, y);
            bounds.right = std::max<LONG>(bounds.right, x + 1);
            bounds.bottom = std::max<LONG>(bounds.bottom, y + 1);
        }
    }
    if (bounds.right == 0)
        return RECT{0, 0, 0, 0};
    return bounds;
}

::testing::AssertionResult BoundsAre(const Dib& dib, COLORREF background, const RECT& expected)
{
    const RECT got = BoundsOfDifferences(dib, background);
    if (EqualRect(&got, &expected))
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "pixels differing from " << ColorText(background) << " lie in "
                                         << RectText(got) << ", expected " << RectText(expected)
                                         << DumpForFailure(dib);
}

RECT CellRect(int width, int height, int columns, int rows, int column, int row)
{
    if (width <= 0 || height <= 0 || columns < 1 || rows < 1 || column < 0 || row < 0 || column >= columns ||
        row >= rows)
        return RECT{0, 0, 0, 0};
    const int cellWidth = width / columns, cellHeight = height / rows;
    return RECT{column * cellWidth, row * cellHeight, (column + 1) * cellWidth, (row + 1) * cellHeight};
}

RECT CellRect(HBITMAP strip, int columns, int rows, int column, int row)
{
    BITMAP header{};
    if (!strip || GetObjectW(strip, sizeof header, &header) == 0)
        return RECT{0, 0, 0, 0};
    return CellRect(header.bmWidth, std::abs(header.bmHeight), columns, rows, column, row);
}

} // namespace zotest
