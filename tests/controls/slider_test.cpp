// CZoSliderCtrl: its own tick list behind the trackbar's tick messages, ticks, channel,
// selection and thumb as painted, hover and pressed looks, and attaching to a platform trackbar.
#include "controls_test_support.h"

#include <afxcmn.h>

#include "controls/ZoSliderCtrl.h"
#include "core/ZoThemeManager.h"

using namespace ZoControls;
using controltest::ControlTest;
using controltest::Slot;

namespace {

const int kBackground = 0;
const int kChannel = 45;
const int kTick = 46;
const int kSelection = 47;

class SliderTest : public ControlTest
{
protected:
    void Create(DWORD style, const CRect& rect = CRect(0, 0, 220, 50), int lo = 0, int hi = 100)
    {
        ASSERT_TRUE(slider_.Create(WS_CHILD | WS_VISIBLE | style, rect, parentWnd(), 7));
        slider_.SetRange(lo, hi, TRUE);
    }
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        return slider_.SendMessage(message, wParam, lParam);
    }
    CRect Thumb() const
    {
        CRect thumb;
        slider_.GetThumbRect(&thumb);
        return thumb;
    }
    CRect Channel() const
    {
        CRect channel;
        slider_.GetChannelRect(&channel);
        return channel;
    }
    // The thumb as painted equals cell `column` of `strip` stretched over the thumb rectangle.
    testing::AssertionResult ThumbShows(HBITMAP strip, int column)
    {
        const zotest::Dib dib = zotest::RenderClient(slider_.m_hWnd);
        const CRect thumb = Thumb();
        const zotest::Dib cell = controltest::StretchedCell(strip, 4, 1, column, 0, thumb.Width(), thumb.Height(),
                                                            dib.Pixel(thumb.left, thumb.top));
        return controltest::AreaMatches(dib, thumb, cell);
    }

    CZoSliderCtrl slider_;
};

} // namespace

// --- Tick list ---------------------------------------------------------------------------------

TEST_F(SliderTest, TickMessagesAnswerFromTheOwnList)
{
    Create(TBS_AUTOTICKS);
    EXPECT_TRUE(Send(TBM_SETTIC, 0, 30));
    EXPECT_TRUE(Send(TBM_SETTIC, 0, 10));
    EXPECT_TRUE(Send(TBM_SETTIC, 0, 30));
    EXPECT_FALSE(Send(TBM_SETTIC, 0, 0));
    EXPECT_FALSE(Send(TBM_SETTIC, 0, 100));
    EXPECT_EQ(Send(TBM_GETNUMTICS), 4); // two interior ticks and the two ends
    const int* ticks = reinterpret_cast<const int*>(Send(TBM_GETPTICS));
    ASSERT_NE(ticks, nullptr);
    EXPECT_EQ(ticks[0], 10);
    EXPECT_EQ(ticks[1], 30);
    EXPECT_EQ(Send(TBM_GETTIC, 1), 30);
    EXPECT_EQ(Send(TBM_GETTIC, 2), -1);
    EXPECT_EQ(Send(TBM_GETTICPOS, 2), -1);

    Send(TBM_SETTICFREQ, 25);
    EXPECT_EQ(Send(TBM_GETNUMTICS), 5); // 25, 50, 75
    // A range change drops every tick, automatic ones included.
    slider_.SetRange(0, 200, TRUE);
    EXPECT_EQ(Send(TBM_GETNUMTICS), 2);
    EXPECT_EQ(Send(TBM_GETPTICS), 0);
    Send(TBM_SETTIC, 0, 40);
    Send(TBM_CLEARTICS, TRUE);
    EXPECT_EQ(Send(TBM_GETNUMTICS), 2);
}

TEST_F(SliderTest, NoTicksStyleRefusesTicksAndFrequencyNeedsAutoTicks)
{
    Create(TBS_NOTICKS | TBS_AUTOTICKS);
    EXPECT_FALSE(Send(TBM_SETTIC, 0, 50));
    Send(TBM_SETTICFREQ, 10);
    EXPECT_EQ(Send(TBM_GETNUMTICS), 0);
    slider_.DestroyWindow();
    Create(0);
    Send(TBM_SETTICFREQ, 10);
    EXPECT_EQ(Send(TBM_GETNUMTICS), 2);
}

// --- Painting ----------------------------------------------------------------------------------

namespace {

// Tick colour on the tick column `x` in rows [from, from + length), background around.
void ExpectTick(const zotest::Dib& dib, int x, int from, int length)
{
    ZOTEST_EXPECT_FILL(dib, CRect(x, from, x + 1, from + length), Slot(kTick));
    ZOTEST_EXPECT_PIXEL(dib, x, from - 1, Slot(kBackground));
    ZOTEST_EXPECT_PIXEL(dib, x, from + length, Slot(kBackground)); // the end point is left out
}

} // namespace

TEST_F(SliderTest, TicksStandAboveBelowOrBothSidesOfTheThumb)
{
    const struct { DWORD style; bool above, below; } cases[] = {
        {0, false, true}, {TBS_TOP, true, false}, {TBS_BOTH, true, true}};
    for (const auto& c : cases) {
        Create(c.style | TBS_AUTOTICKS, CRect(0, 0, 220, 60));
        Send(TBM_SETTIC, 0, 50);
        const zotest::Dib dib = zotest::RenderClient(slider_.m_hWnd);
        const CRect thumb = Thumb();
        const CRect channel = Channel();
        // Gap 1 and length 4 on a normal screen.
        const int xs[] = {channel.left + thumb.Width() / 2, static_cast<int>(Send(TBM_GETTICPOS, 0)),
                          channel.right - thumb.Width() / 2};
        const struct { bool drawn; int from; } sides[] = {{c.below, thumb.bottom + 1}, {c.above, thumb.top - 5}};
        for (const auto& side : sides) {
            // Exactly the three ticks on a row across the side, or none where the side has none.
            const int row = side.from + 1;
            if (row < 0 || row >= 60)
                continue;
            EXPECT_EQ(controltest::CountPixels(dib, CRect(0, row, 220, row + 1), Slot(kTick)), side.drawn ? 3 : 0)
                << c.style << " row " << row;
            if (side.drawn)
                for (int x : xs)
                    ExpectTick(dib, x, side.from, 4);
        }
        slider_.DestroyWindow();
    }
}

TEST_F(SliderTest, VerticalTicksAndChannelInScreenOrientation)
{
    Create(TBS_VERT | TBS_BOTH, CRect(0, 0, 60, 220));
    const CRect channel = Channel();
    EXPECT_GT(channel.Height(), channel.Width());
    const zotest::Dib dib = zotest::RenderClient(slider_.m_hWnd);
    const CRect thumb = Thumb();
    const int y = channel.top + thumb.Height() / 2;
    ZOTEST_EXPECT_FILL(dib, CRect(thumb.right + 1, y, thumb.right + 5, y + 1), Slot(kTick));
    ZOTEST_EXPECT_FILL(dib, CRect(thumb.left - 5, y, thumb.left - 1, y + 1), Slot(kTick));
    ZOTEST_EXPECT_FILL(dib, CRect(channel.left, thumb.bottom, channel.right, channel.bottom), Slot(kChannel));
    // Either answer of the platform ends up in screen orientation.
    EXPECT_EQ(ZoSliderChannelInScreenOrientation(CRect(8, 20, 200, 24), true), CRect(20, 8, 24, 200));
    EXPECT_EQ(ZoSliderChannelInScreenOrientation(CRect(20, 8, 24, 200), true), CRect(20, 8, 24, 200));
    EXPECT_EQ(ZoSliderChannelInScreenOrientation(CRect(8, 20, 200, 24), false), CRect(8, 20, 200, 24));
}

TEST_F(SliderTest, NoTicksStyleDrawsNoTicks)
{
    Create(TBS_NOTICKS | TBS_BOTH, CRect(0, 0, 220, 60));
    const zotest::Dib dib = zotest::RenderClient(slider_.m_hWnd);
    const CRect thumb = Thumb();
    ZOTEST_EXPECT_FILL(dib, CRect(0, thumb.bottom, 220, 60), Slot(kBackground));
    ZOTEST_EXPECT_FILL(dib, CRect(0, 0, 220, thumb.top), Slot(kBackground));
}

TEST_F(SliderTest, SelectionCountsFromZeroAndOnlyHorizontalSlidersShowIt)
{
    Create(TBS_ENABLESELRANGE | TBS_NOTICKS, CRect(0, 0, 220, 50), 50, 150);
    const CRect channel = Channel();
    ASSERT_GT(channel.Height(), 6);
    slider_.SetPos(150); // thumb out of the way, at the right end
    slider_.SetSelection(60, 100);
    const int start = channel.left + ZoSliderSelectionOffset(60, 50, 150, channel.Width());
    const zotest::Dib dib = zotest::RenderClient(slider_.m_hWnd);
    const int middle = (channel.top + channel.bottom) / 2;
    ZOTEST_EXPECT_PIXEL(dib, start, middle, Slot(kSelection));
    ZOTEST_EXPECT_PIXEL(dib, start - 1, middle, Slot(kChannel));
    ZOTEST_EXPECT_PIXEL(dib, start, channel.top + 2, Slot(kChannel));
    slider_.DestroyWindow();

    Create(TBS_VERT | TBS_BOTH | TBS_ENABLESELRANGE, CRect(0, 0, 60, 220));
    slider_.SetSelection(10, 60);
    EXPECT_EQ(controltest::CountPixels(zotest::RenderClient(slider_.m_hWnd), Slot(kSelection)), 0);
}

TEST_F(SliderTest, ThumbCellFollowsHoverPressAndDisabling)
{
    Create(TBS_BOTH | TBS_NOTICKS);
    HBITMAP strip = Strip(L"BMP_ZO_SLIDERNORMAL_HOR_BOTH");
    ASSERT_TRUE(strip);
    EXPECT_TRUE(ThumbShows(strip, CZoSliderCtrl::ThumbState_Normal));
    const CPoint centre = Thumb().CenterPoint();
    Send(WM_MOUSEMOVE, 0, MAKELPARAM(centre.x, centre.y));
    EXPECT_TRUE(ThumbShows(strip, CZoSliderCtrl::ThumbState_Hover));
    Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(centre.x, centre.y));
    EXPECT_TRUE(ThumbShows(strip, CZoSliderCtrl::ThumbState_Pressed));
    // Another window takes the mouse: the press is over.
    zotest::ScopedWindow other(zotest::CreateSolidWindow(RECT{0, 0, 10, 10}, RGB(1, 1, 1), parent()));
    ::SetCapture(other);
    EXPECT_TRUE(ThumbShows(strip, CZoSliderCtrl::ThumbState_Hover));
    ::ReleaseCapture();
    Send(WM_MOUSELEAVE);
    EXPECT_TRUE(ThumbShows(strip, CZoSliderCtrl::ThumbState_Normal));
    slider_.EnableWindow(FALSE);
    EXPECT_TRUE(ThumbShows(strip, CZoSliderCtrl::ThumbState_Disabled));
    // Cancelled modes end a press too.
    slider_.EnableWindow(TRUE);
    Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(centre.x, centre.y));
    EXPECT_TRUE(ThumbShows(strip, CZoSliderCtrl::ThumbState_Pressed));
    Send(WM_CANCELMODE);
    EXPECT_TRUE(ThumbShows(strip, CZoSliderCtrl::ThumbState_Normal));
    EXPECT_NE(::GetCapture(), slider_.m_hWnd);
}

TEST_F(SliderTest, VerticalSliderWithoutBothSidesDrawsNoThumb)
{
    for (DWORD side : {DWORD(0), DWORD(TBS_LEFT)}) {
        Create(TBS_VERT | TBS_NOTICKS | side, CRect(0, 0, 60, 220));
        const zotest::Dib dib = zotest::RenderClient(slider_.m_hWnd);
        const CRect thumb = Thumb();
        const CRect all(0, 0, 60, 220);
        EXPECT_EQ(controltest::CountPixels(dib, all, Slot(kBackground)) +
                      controltest::CountPixels(dib, all, Slot(kChannel)),
                  60 * 220)
            << "thumb " << thumb.left << "," << thumb.top;
        slider_.DestroyWindow();
    }
    Create(TBS_VERT | TBS_BOTH | TBS_NOTICKS, CRect(0, 0, 60, 220));
    EXPECT_TRUE(ThumbShows(Strip(L"BMP_ZO_SLIDERNORMAL_VER_BOTH"), 0));
}

TEST_F(SliderTest, EmptyRangeAndZeroSizeDrawWithoutDividing)
{
    Create(TBS_ENABLESELRANGE | TBS_AUTOTICKS, CRect(0, 0, 220, 50), 5, 5);
    Send(TBM_SETTICFREQ, 1);
    slider_.SetSelection(5, 5);
    const zotest::Dib dib = zotest::RenderClient(slider_.m_hWnd);
    EXPECT_EQ(controltest::CountPixels(dib, Slot(kSelection)), 0);
    EXPECT_GT(controltest::CountPixels(dib, Slot(kBackground)), 0);
    // No client area at all: a selection and a tick position still come out defined.
    slider_.MoveWindow(0, 0, 0, 0);
    slider_.SetRange(0, 10, TRUE);
    Send(TBM_SETTIC, 0, 5);
    const CRect channel = Channel();
    EXPECT_EQ(Send(TBM_GETTICPOS, 0), ZoSliderTickPixel(5, 0, 10, channel.left, channel.right, Thumb().Width()));
    slider_.SetSelection(2, 8);
    zotest::Dib canvas(10, 10);
    Send(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.dc()), PRF_CLIENT);
    ZOTEST_EXPECT_PIXEL(canvas, 0, 0, zotest::kUnpainted);
}

TEST_F(SliderTest, AttachedPlatformTrackbarIsSkinned)
{
    HWND native = MakeNative(TRACKBAR_CLASSW, TBS_BOTH | TBS_NOTICKS, RECT{0, 0, 220, 50});
    ASSERT_TRUE(slider_.SubclassWindow(native));
    EXPECT_TRUE(ThumbShows(Strip(L"BMP_ZO_SLIDERNORMAL_HOR_BOTH"), 0));
    EXPECT_FALSE(Send(TBM_SETTIC, 0, 0)); // answered from the own list
}
