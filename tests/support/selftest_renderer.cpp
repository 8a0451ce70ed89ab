#include <zotest/zotest.h>

using namespace zotest;

namespace {

constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGrey = RGB(128, 128, 128);
constexpr COLORREF kMagenta = RGB(255, 0, 255);

// A 40x10 strip of four 10x10 cells: red, green, blue and yellow, each with a magenta
// 4x4 square at its centre.
HBITMAP MakeStrip()
{
    Dib source(40, 10);
    const COLORREF cells[] = {kRed, RGB(0, 255, 0), kBlue, RGB(255, 255, 0)};
    for (int cell = 0; cell < 4; ++cell)
        for (int y = 0; y < 10; ++y)
            for (int x = 0; x < 10; ++x)
                source.SetPixel(cell * 10 + x, y, (x >= 3 && x < 7 && y >= 3 && y < 7) ? kMagenta : cells[cell]);
    // A device-dependent copy, as skins loaded from resources are.
    HDC screen = GetDC(nullptr);
    HBITMAP strip = CreateCompatibleBitmap(screen, 40, 10);
    ReleaseDC(nullptr, screen);
    HDC dc = CreateCompatibleDC(nullptr);
    HGDIOBJ old = SelectObject(dc, strip);
    BitBlt(dc, 0, 0, 40, 10, source.dc(), 0, 0, SRCCOPY);
    SelectObject(dc, old);
    DeleteDC(dc);
    return strip;
}

} // namespace

TEST(RendererWindows, SolidWindowFillsItsClientArea)
{
    ScopedWindow window(CreateSolidWindow({20, 20, 120, 80}, kBlue));
    const Dib image = RenderClient(window);
    ASSERT_EQ(image.width(), 100);
    ASSERT_EQ(image.height(), 60);
    ZOTEST_EXPECT_FILL(image, (RECT{0, 0, 100, 60}), kBlue);
}

TEST(RendererWindows, ChildIsDrawnAtItsPlaceOverItsParentOnBothPaths)
{
    ScopedWindow window(CreateSolidWindow({20, 20, 120, 80}, kBlue));
    CreateSolidWindow({10, 5, 40, 25}, kRed, window);
    PumpUntilIdle();
    for (RenderPath path : {RenderPath::PrintClient, RenderPath::Screen}) {
        SCOPED_TRACE(path == RenderPath::Screen ? "screen" : "print client");
        const Dib image = RenderClient(window, path);
        ZOTEST_EXPECT_FILL(image, (RECT{10, 5, 40, 25}), kRed);
        ZOTEST_EXPECT_BOUNDS(image, kBlue, (RECT{10, 5, 40, 25}));
    }
}

TEST(RendererWindows, UpperSiblingCoversLowerOne)
{
    ScopedWindow window(CreateSolidWindow({20, 20, 120, 80}, kBlue));
    HWND lower = CreateSolidWindow({0, 0, 30, 30}, kRed, window);
    HWND upper = CreateSolidWindow({20, 20, 50, 50}, kGrey, window);
    SetWindowPos(upper, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    SetWindowPos(lower, upper, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    const Dib image = RenderClient(window);
    ZOTEST_EXPECT_PIXEL(image, 25, 25, kGrey);
    ZOTEST_EXPECT_PIXEL(image, 5, 5, kRed);
}

TEST(RendererWindows, HiddenChildIsLeftOut)
{
    ScopedWindow window(CreateSolidWindow({20, 20, 120, 80}, kBlue));
    HWND child = CreateSolidWindow({10, 5, 40, 25}, kRed, window);
    ShowWindow(child, SW_HIDE);
    ZOTEST_EXPECT_FILL(RenderClient(window), (RECT{0, 0, 100, 60}), kBlue);
}

TEST(RendererWindows, HiddenWindowRendersThroughPrintClient)
{
    ScopedWindow window(CreateSolidWindow({20, 20, 60, 60}, kRed));
    ShowWindow(window, SW_HIDE);
    ZOTEST_EXPECT_FILL(RenderClient(window), (RECT{0, 0, 40, 40}), kRed);
}

namespace {
// Leaves the solid window only its WM_PAINT path, like a control without a print path.
LRESULT CALLBACK PaintOnly(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR)
{
    if (message == WM_PRINTCLIENT || message == WM_ERASEBKGND)
        return 0;
    return DefSubclassProc(window, message, wParam, lParam);
}
} // namespace

TEST(RendererWindows, WindowWithoutPrintPathRendersOnlyFromTheScreen)
{
    ScopedWindow window(CreateSolidWindow({20, 20, 60, 60}, kRed));
    ASSERT_TRUE(SetWindowSubclass(window, PaintOnly, 1, 0));
    PumpUntilIdle();
    ZOTEST_EXPECT_FILL(RenderClient(window), (RECT{0, 0, 40, 40}), kUnpainted);
    ZOTEST_EXPECT_FILL(RenderClient(window, RenderPath::Screen), (RECT{0, 0, 40, 40}), kRed);
    RemoveWindowSubclass(window, PaintOnly, 1);
}

TEST(RendererWindows, ScreenPathCopiesAChildControl)
{
    ScopedWindow window(CreateSolidWindow({20, 20, 120, 80}, kBlue));
    HWND child = CreateSolidWindow({10, 5, 40, 25}, kRed, window);
    PumpUntilIdle();
    const Dib image = RenderClient(child, RenderPath::Screen);
    ASSERT_EQ(image.width(), 30);
    ASSERT_EQ(image.height(), 20);
    ZOTEST_EXPECT_FILL(image, (RECT{0, 0, 30, 20}), kRed);
}

TEST(RendererWindows, ScreenPathIncludesTheFrame)
{
    ScopedWindow window(CreateSolidWindow({20, 20, 220, 120}, kBlue, nullptr, WS_CAPTION | WS_THICKFRAME));
    PumpUntilIdle();
    RECT windowRect, client;
    GetWindowRect(window, &windowRect);
    GetClientRect(window, &client);
    const Dib whole = RenderWindow(window, RenderPath::Screen);
    ASSERT_EQ(whole.width(), windowRect.right - windowRect.left);
    // Everything outside the client area is frame, so the blue fill is only inside it.
    POINT origin = {0, 0};
    ClientToScreen(window, &origin);
    const RECT clientInWindow = {origin.x - windowRect.left, origin.y - windowRect.top,
                                 origin.x - windowRect.left + client.right, origin.y - windowRect.top + client.bottom};
    ZOTEST_EXPECT_FILL(whole, clientInWindow, kBlue);
    EXPECT_NE(whole.Pixel(1, 1), kBlue);
    EXPECT_NE(whole.Pixel(1, 1), kUnpainted);
}

TEST(RendererWindows, RenderClientIntoExistingDc)
{
    ScopedWindow window(CreateSolidWindow({0, 0, 20, 10}, kRed));
    Dib target(50, 50, kGrey);
    SetViewportOrgEx(target.dc(), 5, 5, nullptr);
    RenderClientInto(window, target.dc());
    ZOTEST_EXPECT_BOUNDS(target, kGrey, (RECT{5, 5, 25, 15}));
    ZOTEST_EXPECT_FILL(target, (RECT{5, 5, 25, 15}), kRed);
}

TEST(RendererWindows, DestroyedWindowGivesAnEmptyImage)
{
    HWND window = CreateSolidWindow({0, 0, 20, 10}, kRed);
    DestroyWindow(window);
    EXPECT_TRUE(RenderClient(window).empty());
    EXPECT_TRUE(RenderWindow(window, RenderPath::Screen).empty());
    RenderClientInto(window, nullptr);
}

TEST(RendererDib, DrawnLineLandsOnItsPixels)
{
    Dib image(50, 30, RGB(255, 255, 255));
    HPEN pen = CreatePen(PS_SOLID, 1, RGB(0, 0, 0));
    HGDIOBJ old = SelectObject(image.dc(), pen);
    MoveToEx(image.dc(), 5, 10, nullptr);
    LineTo(image.dc(), 40, 10);
    SelectObject(image.dc(), old);
    DeleteObject(pen);
    ZOTEST_EXPECT_FILL(image, (RECT{5, 10, 40, 11}), RGB(0, 0, 0));
    ZOTEST_EXPECT_PIXEL(image, 40, 10, RGB(255, 255, 255));
    ZOTEST_EXPECT_BOUNDS(image, RGB(255, 255, 255), (RECT{5, 10, 40, 11}));
}

TEST(RendererDib, AlphaBytesAreKeptButIgnoredByColourChecks)
{
    Dib image(4, 4, kBlue);
    image.SetArgb(1, 2, 0x80402010);
    EXPECT_EQ(image.Argb(1, 2), 0x80402010u);
    ZOTEST_EXPECT_PIXEL(image, 1, 2, RGB(0x40, 0x20, 0x10));
    EXPECT_EQ(image.bits()[2 * 4 + 1], 0x80402010u);
    EXPECT_EQ(image.Argb(4, 0), 0u);
    // A per-pixel alpha blend of half-transparent white over blue.
    Dib source(1, 1);
    source.SetArgb(0, 0, 0x80808080);
    BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    ASSERT_TRUE(AlphaBlend(image.dc(), 0, 0, 1, 1, source.dc(), 0, 0, 1, 1, blend));
    ZOTEST_EXPECT_PIXEL(image, 0, 0, RGB(0x80, 0x80, 0xFF));
}

TEST(RendererDib, FailuresNameTheirPixelsAndColours)
{
    Dib image(10, 10, kBlue);
    image.SetPixel(3, 4, kRed);
    const ::testing::AssertionResult pixel = PixelIs(image, 3, 4, kBlue);
    EXPECT_FALSE(pixel);
    EXPECT_STREQ(pixel.message(), "pixel (3,4) is RGB(255,0,0), expected RGB(0,0,255)");
    const ::testing::AssertionResult fill = RectFilled(image, RECT{0, 0, 10, 10}, kBlue);
    EXPECT_FALSE(fill);
    EXPECT_NE(std::string(fill.message()).find("1 pixels differ; first (3,4) is RGB(255,0,0)"), std::string::npos)
        << fill.message();
    EXPECT_FALSE(BoundsAre(image, kBlue, RECT{0, 0, 1, 1}));
    ZOTEST_EXPECT_BOUNDS(image, kBlue, (RECT{3, 4, 4, 5}));
}

TEST(RendererDib, FailingCheckSavesItsImageWhenAskedTo)
{
    wchar_t folder[MAX_PATH];
    ASSERT_NE(GetTempPathW(MAX_PATH, folder), 0u);
    SetEnvironmentVariableW(L"ZOTEST_DUMP_DIR", folder);
    Dib image(6, 6, kBlue);
    const ::testing::AssertionResult result = PixelIs(image, 1, 1, kRed);
    SetEnvironmentVariableW(L"ZOTEST_DUMP_DIR", nullptr);
    EXPECT_FALSE(result);
    const std::string message = result.message();
    const size_t at = message.find("image saved as ");
    ASSERT_NE(at, std::string::npos) << message;
    const std::string name = message.substr(at + 15, message.find(" in ZOTEST_DUMP_DIR") - at - 15);
    const std::wstring path = std::wstring(folder) + L"\\" + std::wstring(name.begin(), name.end());
    HBITMAP saved = static_cast<HBITMAP>(LoadImageW(nullptr, path.c_str(), IMAGE_BITMAP, 0, 0,
                                                    LR_LOADFROMFILE | LR_CREATEDIBSECTION));
    ASSERT_TRUE(saved != nullptr) << "no readable file " << name;
    const Dib reread = Dib::FromBitmap(saved);
    DeleteObject(saved);
    DeleteFileW(path.c_str());
    ASSERT_EQ(reread.width(), 6);
    ZOTEST_EXPECT_FILL(reread, (RECT{0, 0, 6, 6}), kBlue);
    EXPECT_EQ(std::string(PixelIs(image, 1, 1, kRed).message()).find("saved"), std::string::npos)
        << "nothing is saved without the variable";
}

TEST(RendererDib, BadInputGivesDefinedResults)
{
    EXPECT_TRUE(Dib(0, 5).empty());
    EXPECT_TRUE(Dib(-3, 5).empty());
    EXPECT_TRUE(Dib(100000, 5).empty());
    const Dib image(4, 4, kBlue);
    EXPECT_EQ(image.Pixel(-1, 0), CLR_INVALID);
    EXPECT_EQ(image.Pixel(4, 0), CLR_INVALID);
    EXPECT_FALSE(PixelIs(image, 9, 9, kBlue));
    EXPECT_FALSE(RectFilled(image, RECT{0, 0, 5, 5}, kBlue)) << "a rectangle reaching outside fails";
    EXPECT_FALSE(RectFilled(image, RECT{3, 3, 1, 1}, kBlue)) << "an inverted rectangle fails";
    EXPECT_TRUE(image.Crop(RECT{10, 10, 20, 20}).empty());
    const RECT none = BoundsOfDifferences(image, kBlue);
    EXPECT_TRUE(IsRectEmpty(&none));
    EXPECT_TRUE(Dib::FromBitmap(nullptr).empty());
    EXPECT_TRUE(Dib::FromDC(nullptr, RECT{0, 0, 4, 4}).empty());
    EXPECT_FALSE(MatchesCell(image, POINT{0, 0}, static_cast<HBITMAP>(nullptr), RECT{0, 0, 1, 1}));
}

TEST(RendererDib, CropKeepsThePixelsOfTheArea)
{
    Dib image(10, 10, kBlue);
    image.SetPixel(6, 7, kRed);
    const Dib part = image.Crop(RECT{5, 5, 20, 20});
    ASSERT_EQ(part.width(), 5);
    ASSERT_EQ(part.height(), 5);
    ZOTEST_EXPECT_PIXEL(part, 1, 2, kRed);
    ZOTEST_EXPECT_BOUNDS(part, kBlue, (RECT{1, 2, 2, 3}));
}

TEST(RendererCells, CellRectCutsEqualCells)
{
    const RECT third = CellRect(40, 20, 4, 2, 2, 1);
    const RECT expected = {20, 10, 30, 20};
    EXPECT_TRUE(EqualRect(&third, &expected));
    const RECT zeroColumns = CellRect(40, 20, 0, 2, 0, 0);
    EXPECT_TRUE(IsRectEmpty(&zeroColumns));
    const RECT outside = CellRect(40, 20, 4, 2, 4, 0);
    EXPECT_TRUE(IsRectEmpty(&outside));
}

TEST(RendererCells, TransparentCellMatchesWithMagentaSkipped)
{
    HBITMAP strip = MakeStrip();
    const RECT cell = CellRect(strip, 4, 1, 2, 0);
    Dib image(30, 30, kGrey);
    HDC dc = CreateCompatibleDC(nullptr);
    HGDIOBJ old = SelectObject(dc, strip);
    TransparentBlt(image.dc(), 5, 5, 10, 10, dc, cell.left, cell.top, 10, 10, kMagenta);
    SelectObject(dc, old);
    DeleteDC(dc);

    ZOTEST_EXPECT_CELL(image, (POINT{5, 5}), strip, cell, kMagenta);
    ZOTEST_EXPECT_PIXEL(image, 10, 10, kGrey); // the background shows through the key colour
    EXPECT_FALSE(MatchesCell(image, POINT{5, 5}, strip, cell, CLR_NONE)) << "key pixels are compared without a key";
    const ::testing::AssertionResult wrongCell = MatchesCell(image, POINT{5, 5}, strip, CellRect(strip, 4, 1, 1, 0), kMagenta);
    EXPECT_FALSE(wrongCell);
    EXPECT_NE(std::string(wrongCell.message()).find("84 of 84 pixels differ"), std::string::npos)
        << wrongCell.message();
    EXPECT_FALSE(MatchesCell(image, POINT{25, 25}, strip, cell, kMagenta)) << "a cell reaching outside fails";
    EXPECT_FALSE(MatchesCell(image, POINT{5, 5}, strip, RECT{35, 0, 45, 10}, kMagenta))
        << "a cell outside the strip fails";
    DeleteObject(strip);
}

TEST(RendererCells, DibCopyOfABitmapKeepsItsPixels)
{
    HBITMAP strip = MakeStrip();
    const Dib copy = Dib::FromBitmap(strip);
    ASSERT_EQ(copy.width(), 40);
    ASSERT_EQ(copy.height(), 10);
    ZOTEST_EXPECT_PIXEL(copy, 0, 0, kRed);
    ZOTEST_EXPECT_PIXEL(copy, 25, 5, kMagenta);
    ZOTEST_EXPECT_CELL(copy, (POINT{0, 0}), strip, (RECT{0, 0, 40, 10}), CLR_NONE);
    DeleteObject(strip);
}
