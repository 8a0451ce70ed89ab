#include <zotest/zotest.h>

using namespace zotest;

namespace {
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kRed = RGB(255, 0, 0);
} // namespace

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
