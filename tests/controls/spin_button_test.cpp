// CZoSpinButtonCtrl: halves, hit-testing, arrow shapes, range-end states, the pressed look and
// the outline in both drawing orders.
#include "controls_test_support.h"

#include <afxcmn.h>

#include "controls/ZoSpinButtonCtrl.h"

using namespace ZoControls;
using controltest::ControlTest;

TEST(SpinMath, HalvesShareTheMiddleRow)
{
    const RECT client = {0, 0, 20, 30};
    RECT first;
    RECT second;
    ZoSpinHalves(client, false, first, second);
    EXPECT_TRUE(CRect(first) == CRect(0, 0, 20, 16));
    EXPECT_TRUE(CRect(second) == CRect(0, 15, 20, 30));
    ZoSpinHalves(client, true, first, second);
    EXPECT_TRUE(CRect(first) == CRect(0, 0, 11, 30));
    EXPECT_TRUE(CRect(second) == CRect(10, 0, 20, 30));
}

TEST(SpinMath, HitTestSplitsAtTheMiddle)
{
    const RECT client = {0, 0, 20, 30};
    EXPECT_EQ(ZoSpinHitTest(client, false, CPoint(5, 14)), 1);
    EXPECT_EQ(ZoSpinHitTest(client, false, CPoint(5, 15)), 2);
    EXPECT_EQ(ZoSpinHitTest(client, false, CPoint(5, 30)), 0);
    EXPECT_EQ(ZoSpinHitTest(client, true, CPoint(9, 3)), 1);
    EXPECT_EQ(ZoSpinHitTest(client, true, CPoint(10, 3)), 2);
    EXPECT_EQ(ZoSpinHitTest(client, true, CPoint(-1, 3)), 0);
}

namespace {

class SpinTest : public ControlTest
{
protected:
    void Create(int pos, DWORD style = 0)
    {
        ASSERT_TRUE(spin_.Create(WS_CHILD | WS_VISIBLE | style, CRect(0, 0, 20, 30), parentWnd(), 9));
        spin_.SetRange32(0, 10);
        spin_.SetPos32(pos);
        // Wine gives an up-down without buddy a fixed width of 16; positions follow the client.
        spin_.GetClientRect(&client_);
        ASSERT_GE(client_.Width(), 12);
        ASSERT_GE(client_.Height(), 12);
    }
    int Right() const { return client_.right - 1; }
    int Bottom() const { return client_.bottom - 1; }
    int MidX() const { return client_.right / 2; }
    int MidY() const { return client_.bottom / 2; }

    zotest::Dib Render() { return zotest::RenderClient(spin_.GetSafeHwnd()); }
    void Send(UINT message, int x, int y, WPARAM keys = 0)
    {
        spin_.SendMessage(message, keys, MAKELPARAM(x, y));
    }

    CZoSpinButtonCtrl spin_;
    CRect client_;
};

const COLORREF kWhite = RGB(255, 255, 255);

} // namespace

TEST_F(SpinTest, PressedHalfIsWhiteWithItsArrowUnchanged)
{
    Create(5);
    Send(WM_LBUTTONDOWN, 10, 25, MK_LBUTTON);
    const zotest::Dib dib = Render();
    EXPECT_EQ(dib.Pixel(3, 26), kWhite);
    // Inside the down arrow of the second half: centre (MidX, (MidY + Bottom + 1) / 2).
    EXPECT_EQ(dib.Pixel(MidX(), (MidY() + client_.bottom) / 2), controltest::Slot(93));
    EXPECT_EQ(dib.Pixel(3, 5), controltest::Slot(92));   // the other half stays
    Send(WM_LBUTTONUP, 10, 25);
    EXPECT_EQ(Render().Pixel(3, 26), controltest::Slot(92));
}

TEST_F(SpinTest, LosingTheMouseDropsThePressedLook)
{
    for (controltest::CaptureLoss loss : controltest::kCaptureLosses) {
        SCOPED_TRACE(static_cast<int>(loss));
        Create(5);
        Send(WM_LBUTTONDOWN, 10, 25, MK_LBUTTON);
        ASSERT_EQ(Render().Pixel(3, 26), kWhite);
        controltest::LoseCapture(spin_.GetSafeHwnd(), loss, parent());
        EXPECT_EQ(Render().Pixel(3, 26), controltest::Slot(92));
        ::ReleaseCapture();
        spin_.DestroyWindow();
    }
}

TEST_F(SpinTest, HalfAtItsRangeEndShowsNoPress)
{
    // The platform moves the value on the press; put it back at the end before painting.
    Create(0);
    Send(WM_LBUTTONDOWN, 10, 5, MK_LBUTTON);
    spin_.SetPos32(0);
    EXPECT_EQ(Render().Pixel(3, 3), controltest::Slot(92)); // first half disabled at the low end
    spin_.SetPos32(5);
    EXPECT_EQ(Render().Pixel(3, 3), kWhite); // the same press away from the end
    Send(WM_LBUTTONUP, 10, 5);

    Send(WM_LBUTTONDOWN, 10, 25, MK_LBUTTON);
    spin_.SetPos32(10);
    EXPECT_EQ(Render().Pixel(3, 26), controltest::Slot(92)); // second half at the high end
    spin_.SetPos32(5);
    EXPECT_EQ(Render().Pixel(3, 26), kWhite);
    Send(WM_LBUTTONUP, 10, 25);
}

TEST_F(SpinTest, OutlineRoundTheWholeControlOrOnlyTheMiddleLineUnderTheHotSecondHalf)
{
    Create(5);
    const zotest::Dib dib = Render();
    const COLORREF border = controltest::Slot(94);
    EXPECT_EQ(dib.Pixel(0, 0), border);
    EXPECT_EQ(dib.Pixel(0, 20), border);
    EXPECT_EQ(dib.Pixel(Right(), Bottom()), border);
    EXPECT_EQ(dib.Pixel(3, MidY()), controltest::Slot(92)); // no line across the middle
    // Over the second half: only the middle line.
    Send(WM_MOUSEMOVE, 10, 25);
    const zotest::Dib hot = Render();
    EXPECT_EQ(hot.Pixel(3, MidY()), border);
    EXPECT_EQ(hot.Pixel(Right() - 2, MidY()), border);
    EXPECT_EQ(hot.Pixel(0, 0), controltest::Slot(92));
    EXPECT_EQ(hot.Pixel(0, 20), controltest::Slot(92));
    EXPECT_EQ(hot.Pixel(Right(), Bottom()), controltest::Slot(92));
    // Leaving restores the full outline.
    spin_.SendMessage(WM_MOUSELEAVE);
    EXPECT_EQ(Render().Pixel(0, 0), border);
}

TEST_F(SpinTest, HorizontalOutlineIsTheLeftOrTheRightHalf)
{
    Create(5, UDS_HORZ);
    const COLORREF border = controltest::Slot(94);
    zotest::Dib dib = Render();
    const int y = MidY();
    EXPECT_EQ(dib.Pixel(0, y), border);      // first half's left edge
    EXPECT_EQ(dib.Pixel(MidX(), y), border); // its right edge, the shared column
    EXPECT_EQ(dib.Pixel(Right(), y), controltest::Slot(92));
    Send(WM_MOUSEMOVE, Right() - 1, y);
    dib = Render();
    EXPECT_EQ(dib.Pixel(Right(), y), border);
    EXPECT_EQ(dib.Pixel(0, y), controltest::Slot(92));
}
