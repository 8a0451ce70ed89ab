// PNG pictures and their store: composition of transparent, opaque and half-transparent pixels
// over several colours, states without a queued colour, the two-row state mapping, theme colour
// groups, release and recomposition, composing over the screen, and the library's lifetime.
#include "image_test_support.h"

#include <afxcontrolbars.h>

#include "ZoLibrary.h"
#include "core/ZoThemeManager.h"
#include "images/ZoResourcePNG.h"

#include <zotest/resource_counter.h>

using namespace ZoControls;
using imagetest::BufferPixel;
using imagetest::DibCanvas;

namespace {

const UINT kCheckRadioPng = 808;

// Transparent, opaque and half-transparent pixels (0xAARRGGBB).
const DWORD kClear = 0x000A141E;
const DWORD kOpaque = 0xFFC86432;
const DWORD kHalf = 0x80640AC8; // A 128, R 100, G 10, B 200

DWORD Opaque(COLORREF color)
{
    return 0xFF000000u | GetRValue(color) << 16 | GetGValue(color) << 8 | GetBValue(color);
}

COLORREF ToColorRef(DWORD argb)
{
    return RGB((argb >> 16) & 0xFF, (argb >> 8) & 0xFF, argb & 0xFF);
}

// The raw pixels of PNG 808 as the platform decodes them (B, G, R, A).
std::vector<DWORD> CheckRadioPixels(int& width, int& height)
{
    std::vector<DWORD> pixels;
    CPngImage png;
    if (!png.Load(kCheckRadioPng))
        return pixels;
    BITMAP bm;
    png.GetBitmap(&bm);
    width = bm.bmWidth;
    height = bm.bmHeight;
    pixels.resize(static_cast<size_t>(width * height));
    GetBitmapBits(static_cast<HBITMAP>(png.GetSafeHandle()), width * height * 4, pixels.data());
    return pixels;
}

// Checks the 15-pixel-wide cell drawn at `at` in `dib` against the picture's pixels from
// (sourceX, sourceY): fully transparent ones must show `back`, fully opaque ones themselves.
::testing::AssertionResult CellShowsPicture(const zotest::Dib& dib, POINT at, const std::vector<DWORD>& raw,
                                            int sourceX, int sourceY, int rows, COLORREF back)
{
    int checked = 0;
    for (int y = 0; y < rows; ++y)
        for (int x = 0; x < 15; ++x) {
            const DWORD src = raw[(sourceY + y) * 60 + sourceX + x];
            const BYTE alpha = static_cast<BYTE>(src >> 24);
            if (alpha != 0 && alpha != 255)
                continue;
            ++checked;
            const ::testing::AssertionResult pixel =
                zotest::PixelIs(dib, at.x + x, at.y + y, alpha == 0 ? back : ToColorRef(src));
            if (!pixel)
                return pixel;
        }
    if (checked == 0)
        return ::testing::AssertionFailure() << "no fully transparent or opaque pixel in the cell";
    return ::testing::AssertionSuccess();
}

// A picture handed to the store, released and deleted at the end of the scope.
class StoredPicture
{
public:
    explicit StoredPicture(HBITMAP picture) : picture_(picture) {}
    ~StoredPicture()
    {
        CZoResourcePNGData::GetInstance()->ReleaseImageData(picture_);
        DeleteObject(picture_);
    }
    operator HBITMAP() const { return picture_; }

private:
    HBITMAP picture_;
};

class PngTest : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_NE(CZoResourcePNGData::GetInstance(), nullptr); }
    CZoResourcePNGData& store() { return *CZoResourcePNGData::GetInstance(); }

    imagetest::ScopedZoCtrl zo_;
};

} // namespace

// ---- the store ------------------------------------------------------------------------------

TEST_F(PngTest, CompositionOverSeveralColours)
{
    const StoredPicture picture(imagetest::MakePicture(3, 1, {kClear, kOpaque, kHalf}));
    const COLORREF backs[3] = {RGB(255, 255, 255), RGB(0, 0, 0), RGB(64, 128, 192)};
    store().SetBackGroundColor(backs, 3);
    store().SetImageData(picture, 3);

    const DWORD expectedHalf[3] = {0xFFB184E3, 0xFF320564, 0xFF5244C4};
    for (int state = 0; state < 3; ++state) {
        const BYTE* buffer = store().GetImageData(picture, static_cast<E_ToolButtonStates>(state));
        ASSERT_NE(buffer, nullptr) << state;
        EXPECT_EQ(BufferPixel(buffer, 0), Opaque(backs[state])) << "transparent pixel, state " << state;
        EXPECT_EQ(BufferPixel(buffer, 1), kOpaque) << "opaque pixel, state " << state;
        EXPECT_EQ(BufferPixel(buffer, 2), expectedHalf[state]) << "half pixel, state " << state;
    }
}

TEST_F(PngTest, ThirdStateWithTwoColoursComposesOverBlack)
{
    const StoredPicture picture(imagetest::MakePicture(2, 1, {kClear, kHalf}));
    store().SetBackGroundColor(RGB(10, 20, 30), 1);
    store().SetBackGroundColor(RGB(40, 50, 60), 1);
    store().SetImageData(picture, 3);

    const BYTE* third = store().GetImageData(picture, ToolButton_Pressed);
    ASSERT_NE(third, nullptr);
    EXPECT_EQ(BufferPixel(third, 0), 0xFF000000u);
    EXPECT_EQ(BufferPixel(third, 1), 0xFF320564u);
    EXPECT_EQ(BufferPixel(store().GetImageData(picture, ToolButton_Hot), 0), Opaque(RGB(40, 50, 60)));
    // Beyond the composed states there is no buffer.
    EXPECT_EQ(store().GetImageData(picture, ToolButton_Extra), nullptr);
    EXPECT_EQ(store().GetImageData(picture, static_cast<E_ToolButtonStates>(-1)), nullptr);
}

// A composition empties the colour queue, and counts below one queue nothing: the next
// composition has no colour and goes over black.
TEST_F(PngTest, ColourQueueIsEmptiedByEachCompositionAndNonPositiveCountsQueueNothing)
{
    const StoredPicture picture(imagetest::MakePicture(1, 1, {kClear}));
    store().SetBackGroundColor(RGB(1, 2, 3), 2);
    store().SetImageData(picture, 1);
    const COLORREF white = RGB(255, 255, 255);
    store().SetBackGroundColor(white, 0);
    store().SetBackGroundColor(white, -4);
    store().SetBackGroundColor(&white, 0);
    store().SetBackGroundColor(static_cast<const COLORREF*>(nullptr), 3);
    store().SetImageData(picture, 1);
    EXPECT_EQ(BufferPixel(store().GetImageData(picture, ToolButton_Normal), 0), 0xFF000000u);
}

// ---- PNG images -----------------------------------------------------------------------------

TEST_F(PngTest, LoadsCheckRadioStrip)
{
    CZoResourcePNGImage image;
    ASSERT_TRUE(image.LoadResourceImage(kCheckRadioPng, 4, 5));
    EXPECT_TRUE(image.IsLoaded());
    EXPECT_EQ(image.GetWidth(), 60);
    EXPECT_EQ(image.GetHeight(), 75);
    EXPECT_EQ(image.GetUnitWidth(), 15);
    EXPECT_EQ(image.GetUnitHeight(), 15);
    DWORD width = 1, height = 1;
    image.GetIOISize(width, height);
    EXPECT_EQ(width, 60u);
    EXPECT_EQ(height, 75u);
    // PNGs load by number only.
    EXPECT_FALSE(image.LoadResourceImage(L"BMP_ZO_EDIT", ZoMonitorSize_Normal, 1, 1));
}

TEST_F(PngTest, MissingPngStaysUnloaded)
{
    CZoResourcePNGImage image;
    EXPECT_FALSE(image.LoadResourceImage(9999u, 4, 5));
    EXPECT_FALSE(image.IsLoaded());
    DWORD width = 1, height = 1;
    image.GetIOISize(width, height);
    EXPECT_EQ(width, 0u);
    EXPECT_EQ(height, 0u);
    DibCanvas canvas(20, 20);
    image.DrawUnitImage(canvas.dc(), 0, 0, 0, 0, imagetest::kMagenta);
    image.DrawImageOnImage(canvas.dc(), 0, 0);
    image.SetBackgroundColor(RGB(1, 2, 3));
    ZOTEST_EXPECT_FILL(canvas.dib(), (RECT{0, 0, 20, 20}), zotest::kUnpainted);
}

// Every state's cell shows the picture over that state's colour: fully transparent pixels take
// exactly the colour, fully opaque ones keep their own.
TEST_F(PngTest, EachStateDrawsItsCellOverItsColour)
{
    int width = 0, height = 0;
    const std::vector<DWORD> raw = CheckRadioPixels(width, height);
    ASSERT_EQ(width, 60);
    ASSERT_EQ(height, 75);

    CZoResourcePNGImage image;
    ASSERT_TRUE(image.LoadResourceImage(kCheckRadioPng, 4, 5));
    const COLORREF backs[5] = {RGB(250, 0, 0), RGB(0, 250, 0), RGB(0, 0, 250), RGB(9, 99, 199), RGB(123, 45, 67)};
    image.SetBackgroundColor(backs, 5);

    for (int state = 0; state < 5; ++state)
        for (int column = 0; column < 4; ++column) {
            DibCanvas canvas(20, 20);
            image.DrawUnitImage(canvas.dc(), 2, 3, column, state, RGB(0, 0, 0));
            EXPECT_TRUE(CellShowsPicture(canvas.dib(), POINT{2, 3}, raw, column * 15, state * 15, 15, backs[state]))
                << "state " << state << ", column " << column;
            ZOTEST_EXPECT_BOUNDS(canvas.dib(), zotest::kUnpainted, (RECT{2, 3, 17, 18}));
        }
}

TEST_F(PngTest, TwoRowPictureDrawsRowOneForStateFour)
{
    int width = 0, height = 0;
    const std::vector<DWORD> raw = CheckRadioPixels(width, height);
    ASSERT_EQ(height, 75);

    CZoResourcePNGImage image;
    ASSERT_TRUE(image.LoadResourceImage(kCheckRadioPng, 4, 2));
    ASSERT_EQ(image.GetUnitHeight(), 37);
    const COLORREF back = RGB(77, 66, 55);
    const COLORREF backs[5] = {back, back, back, back, back};
    image.SetBackgroundColor(backs, 5);

    for (int state = 0; state < 5; ++state) {
        const int row = state == 4 ? 1 : 0;
        DibCanvas canvas(20, 40);
        image.DrawUnitImage(canvas.dc(), 0, 0, 1, state, 0);
        EXPECT_TRUE(CellShowsPicture(canvas.dib(), POINT{0, 0}, raw, 15, row * 37, 37, back)) << "state " << state;
    }
}

TEST_F(PngTest, ThemeGroupColoursPerState)
{
    const CZoThemeManager* theme = CZoThemeManager::GetInstance();
    ASSERT_NE(theme, nullptr);
    CZoResourcePNGImage image;
    ASSERT_TRUE(image.LoadResourceImage(kCheckRadioPng, 4, 5));
    image.SetControlDefaultThema(static_cast<E_ZoThemeColors>(13));
    for (int state = 0; state < 5; ++state) {
        DibCanvas canvas(20, 20);
        image.DrawUnitImage(canvas.dc(), 0, 0, 0, state, 0);
        ZOTEST_EXPECT_PIXEL(canvas.dib(), 0, 0,
                            theme->GetGDIColor(static_cast<E_ZoThemeColors>(13 + state), ZoTheme_Default));
    }
}

// Destroying an image or loading another picture into it releases the old picture's entry; a
// reload deletes the old picture whatever the flag said.
TEST_F(PngTest, DestroyingOrReloadingTheImageReleasesItsEntry)
{
    HBITMAP picture = imagetest::MakePicture(1, 1, {kHalf});
    {
        CZoResourcePNGImage image(picture, false);
        image.SetBackgroundColor(RGB(0, 0, 0));
        ASSERT_NE(store().GetImageData(picture, ToolButton_Normal), nullptr);
    }
    EXPECT_EQ(store().GetImageData(picture, ToolButton_Normal), nullptr);
    EXPECT_EQ(GetObjectType(picture), static_cast<DWORD>(OBJ_BITMAP));
    CZoResourcePNGImage image(picture, false);
    image.SetBackgroundColor(RGB(0, 0, 0));
    ASSERT_NE(store().GetImageData(picture, ToolButton_Normal), nullptr);
    ASSERT_TRUE(image.LoadResourceImage(kCheckRadioPng, 4, 5));
    EXPECT_EQ(GetObjectType(picture), 0u);
}

// ---- lifetime -------------------------------------------------------------------------------

TEST(PngLifetime, LibraryStartAndEndCreateAndFreeTheStore)
{
    ASSERT_EQ(CZoResourcePNGData::GetInstance(), nullptr);
    EXPECT_TRUE(InitializeZoCtrl());
    EXPECT_NE(CZoResourcePNGData::GetInstance(), nullptr);
    UninitializeZoCtrl();
    EXPECT_EQ(CZoResourcePNGData::GetInstance(), nullptr);
}

TEST_F(PngTest, LoadDrawFreeCyclesKeepGdiCount)
{
    DibCanvas canvas(80, 80);
    ZOTEST_EXPECT_NO_LEAKS(
        20,
        [&canvas] {
            CZoResourcePNGImage image;
            image.LoadResourceImage(kCheckRadioPng, 4, 5);
            image.SetControlDefaultThema(static_cast<E_ZoThemeColors>(13));
            image.DrawUnitImage(canvas.dc(), 0, 0, 1, 2, 0);
            image.DrawUnitImage(canvas.dc(), 0, 0, 40, 40, 3, 4, 0);
            image.DrawImageOnImage(canvas.dc(), 5, 5);
            image.LoadResourceImage(kCheckRadioPng, 4, 2);
            image.SetBackgroundColor(RGB(1, 2, 3));
            image.DrawUnitImage(canvas.dc(), 0, 0, 0, 4, 0);
        },
        zotest::count_gdi | zotest::count_heap);
}

// The store decodes a picture once and hands every caller a bitmap of its own with its pixels.
TEST_F(PngTest, DecodedPictureIsHandedOutAsCopies)
{
    int width = 0, height = 0;
    const std::vector<DWORD> raw = CheckRadioPixels(width, height);
    ASSERT_EQ(raw.size(), 60u * 75u);
    const HBITMAP first = store().CopyDecodedPicture(kCheckRadioPng);
    const HBITMAP second = store().CopyDecodedPicture(kCheckRadioPng);
    ASSERT_NE(first, nullptr);
    ASSERT_NE(second, nullptr);
    EXPECT_NE(first, second);
    DeleteObject(first);
    std::vector<DWORD> pixels(raw.size());
    ASSERT_EQ(GetBitmapBits(second, 60 * 75 * 4, pixels.data()), 60 * 75 * 4);
    EXPECT_EQ(pixels, raw);
    DeleteObject(second);
    EXPECT_EQ(store().CopyDecodedPicture(9999u), nullptr);
}

// Two images of one picture composed over different colours each draw their own.
TEST_F(PngTest, ImagesOfOnePictureKeepTheirOwnCompositions)
{
    int width = 0, height = 0;
    const std::vector<DWORD> raw = CheckRadioPixels(width, height);
    ASSERT_EQ(raw.size(), 60u * 75u);
    CZoResourcePNGImage red, green;
    ASSERT_TRUE(red.LoadResourceImage(kCheckRadioPng, 4, 5));
    ASSERT_TRUE(green.LoadResourceImage(kCheckRadioPng, 4, 5));
    red.SetBackgroundColor(RGB(250, 0, 0));
    green.SetBackgroundColor(RGB(0, 250, 0));
    for (int pass = 0; pass < 2; ++pass) {
        DibCanvas canvas(40, 20);
        red.DrawUnitImage(canvas.dc(), 0, 0, 1, 1, 0);
        green.DrawUnitImage(canvas.dc(), 20, 0, 1, 1, 0);
        EXPECT_TRUE(CellShowsPicture(canvas.dib(), POINT{0, 0}, raw, 15, 15, 15, RGB(250, 0, 0))) << pass;
        EXPECT_TRUE(CellShowsPicture(canvas.dib(), POINT{20, 0}, raw, 15, 15, 15, RGB(0, 250, 0))) << pass;
        // Recomposing one of them leaves the other as it was.
        red.SetBackgroundColor(RGB(250, 0, 0));
    }
}
