// CSeparatorWnd: its two-pixel line, the XOR rubber band on the parent, the boundary and the
// notification on release.
#include "controls_test_support.h"

#include "controls/SeparatorWnd.h"

using namespace ZoControls;
using controltest::ControlTest;

namespace {

const UINT kId = 77;

class SeparatorTest : public ControlTest
{
protected:
    void SetUp() override
    {
        ControlTest::SetUp();
        className_ = AfxRegisterWndClass(0);
    }
    void TearDown() override
    {
        recorder_.UnwatchAll();
        if (sep_ && sep_->GetSafeHwnd())
            sep_->DestroyWindow();
        delete sep_;
        ControlTest::TearDown();
    }

    // Horizontal bars lie at (50, 100)-(250, 102), vertical ones at (100, 50)-(102, 250).
    void Create(CSeparatorWnd::E_SeparatorDirection direction, bool movable = true)
    {
        sep_ = new CSeparatorWnd(kId, direction, parentWnd(), movable);
        const CRect rect = direction == CSeparatorWnd::SeparatorDirection_Horizontal ? CRect(50, 100, 250, 102)
                                                                                    : CRect(100, 50, 102, 250);
        ASSERT_TRUE(sep_->Create(className_, L"", WS_CHILD | WS_VISIBLE, rect, parentWnd(), kId));
        zotest::PumpUntilIdle();
    }

    void Send(UINT message, int x, int y) { sep_->SendMessage(message, 0, MAKELPARAM(x, y)); }

    // `boundary` in the parent's client coordinates.
    bool SetBoundary(CRect boundary)
    {
        ::MapWindowPoints(parent(), nullptr, reinterpret_cast<POINT*>(&boundary), 2);
        return sep_->SetBoundaryOnScreen(&boundary);
    }

    COLORREF ParentPixel(int x, int y)
    {
        HDC dc = ::GetDC(parent());
        const COLORREF color = ::GetPixel(dc, x, y);
        ::ReleaseDC(parent(), dc);
        return color;
    }

    COLORREF XorColor() const { return (controltest::kParentColor ^ ::GetSysColor(COLOR_WINDOW)) & 0x00FFFFFF; }

    CString className_;
    CSeparatorWnd* sep_ = nullptr;
    zotest::MessageRecorder recorder_;
};

} // namespace

TEST(SeparatorMath, ClampAppliesTheUpperBoundFirst)
{
    EXPECT_EQ(ZoSeparatorClamp(5, 0, 10), 5);
    EXPECT_EQ(ZoSeparatorClamp(-5, 0, 10), 0);
    EXPECT_EQ(ZoSeparatorClamp(50, 0, 10), 10);
    EXPECT_EQ(ZoSeparatorClamp(5, 10, 0), 10); // inverted bounds: the lower one wins
}

TEST_F(SeparatorTest, PaintsTwoLinesInTheSlotColourWithRedAndBlueExchanged)
{
    Create(CSeparatorWnd::SeparatorDirection_Horizontal);
    const COLORREF slot = controltest::Slot(64);
    const COLORREF expected = RGB(GetBValue(slot), GetGValue(slot), GetRValue(slot));
    const zotest::Dib dib = zotest::RenderClient(sep_->GetSafeHwnd());
    ZOTEST_EXPECT_FILL(dib, CRect(0, 0, 200, 2), expected);
}


TEST_F(SeparatorTest, HorizontalBarTogglesItsLineWhenTheMouseDoesNotMoveVertically)
{
    Create(CSeparatorWnd::SeparatorDirection_Horizontal);
    Send(WM_LBUTTONDOWN, 10, 1);
    Send(WM_MOUSEMOVE, 10, 21); // line at parent y 121, x 53..247
    EXPECT_EQ(ParentPixel(150, 121), XorColor());
    EXPECT_EQ(ParentPixel(50, 121), controltest::kParentColor); // inset by three pixels
    // The same row again: nothing is erased and the line drawn once more, so XOR takes it off.
    Send(WM_MOUSEMOVE, 60, 21);
    EXPECT_EQ(ParentPixel(150, 121), controltest::kParentColor);
    Send(WM_MOUSEMOVE, 90, 21);
    EXPECT_EQ(ParentPixel(150, 121), XorColor());
    // A new row erases the old line.
    Send(WM_MOUSEMOVE, 90, 41);
    EXPECT_EQ(ParentPixel(150, 141), XorColor());
    EXPECT_EQ(ParentPixel(150, 121), controltest::kParentColor);
    // Released on the same row: the last step takes the line off too.
    Send(WM_LBUTTONUP, 90, 41);
    EXPECT_EQ(ParentPixel(150, 141), controltest::kParentColor);
}

TEST_F(SeparatorTest, BoundaryLimitsTheRubberBand)
{
    Create(CSeparatorWnd::SeparatorDirection_Horizontal);
    ASSERT_TRUE(SetBoundary(CRect(0, 80, 300, 130)));
    Send(WM_LBUTTONDOWN, 10, 1);
    Send(WM_MOUSEMOVE, 10, 100); // parent y 200, limited to 130
    EXPECT_EQ(ParentPixel(150, 130), XorColor());
    EXPECT_EQ(ParentPixel(150, 200), controltest::kParentColor);
    Send(WM_LBUTTONUP, 10, 100);
}

TEST_F(SeparatorTest, ReleaseNotifiesOnceWithTheClampedScreenPosition)
{
    Create(CSeparatorWnd::SeparatorDirection_Vertical);
    ASSERT_TRUE(SetBoundary(CRect(60, 0, 200, 300)));
    recorder_.Watch(parent(), zotest::WindowRole::Parent);
    recorder_.MatchOnlyListed(true);
    Send(WM_LBUTTONDOWN, 1, 10);
    Send(WM_MOUSEMOVE, 150, 10);
    Send(WM_LBUTTONUP, 150, 10); // parent x 250, beyond the boundary's 200
    POINT expected = {200, 60};
    ::ClientToScreen(parent(), &expected);
    const zotest::ExpectedMessage sequence[] = {
        {ZoMsg_SeparatorMoved, zotest::sent | zotest::parent | zotest::wparam | zotest::lparam,
         MAKEWPARAM(kId, 1), MAKELPARAM(expected.x, expected.y)},
    };
    ZOTEST_EXPECT_SEQUENCE(recorder_, sequence);
    EXPECT_EQ(::GetCapture(), (HWND)NULL);
}

TEST_F(SeparatorTest, LosingTheMouseTakesTheRubberBandAwayAndNotifiesNobody)
{
    for (controltest::CaptureLoss loss : controltest::kCaptureLosses) {
        SCOPED_TRACE(static_cast<int>(loss));
        Create(CSeparatorWnd::SeparatorDirection_Horizontal);
        recorder_.Watch(parent(), zotest::WindowRole::Parent);
        recorder_.MatchOnlyListed(true);
        Send(WM_LBUTTONDOWN, 10, 1);
        Send(WM_MOUSEMOVE, 10, 21);
        ASSERT_EQ(ParentPixel(150, 121), XorColor());
        controltest::LoseCapture(sep_->GetSafeHwnd(), loss, parent());
        EXPECT_EQ(ParentPixel(150, 121), controltest::kParentColor);
        Send(WM_MOUSEMOVE, 10, 41);
        Send(WM_LBUTTONUP, 10, 41);
        EXPECT_EQ(ParentPixel(150, 141), controltest::kParentColor);
        EXPECT_EQ(recorder_.Count(ZoMsg_SeparatorMoved, zotest::WindowRole::Parent), 0u);
        ::ReleaseCapture();
        recorder_.UnwatchAll();
        sep_->DestroyWindow();
        delete sep_;
        sep_ = nullptr;
    }
}

TEST_F(SeparatorTest, EmptyBoundaryIsRefusedAndRemovesTheLimit)
{
    Create(CSeparatorWnd::SeparatorDirection_Vertical);
    ASSERT_TRUE(SetBoundary(CRect(60, 0, 200, 300)));
    const CRect empty(0, 0, 0, 0);
    EXPECT_FALSE(sep_->SetBoundaryOnScreen(&empty));
    EXPECT_FALSE(sep_->SetBoundaryOnScreen(NULL));
    recorder_.Watch(parent(), zotest::WindowRole::Parent);
    Send(WM_LBUTTONDOWN, 1, 10);
    Send(WM_LBUTTONUP, 150, 10);
    POINT unclamped = {250, 60};
    ::ClientToScreen(parent(), &unclamped);
    const std::vector<zotest::RecordedMessage> sent = recorder_.MessagesOf(ZoMsg_SeparatorMoved);
    ASSERT_EQ(sent.size(), 1u);
    EXPECT_EQ(sent[0].lParam, MAKELPARAM(unclamped.x, unclamped.y));
}

TEST_F(SeparatorTest, FixedSeparatorOnlyPaints)
{
    Create(CSeparatorWnd::SeparatorDirection_Horizontal, false);
    recorder_.Watch(parent(), zotest::WindowRole::Parent);
    Send(WM_LBUTTONDOWN, 10, 1);
    EXPECT_NE(::GetCapture(), sep_->GetSafeHwnd());
    Send(WM_MOUSEMOVE, 10, 21);
    EXPECT_EQ(ParentPixel(150, 121), controltest::kParentColor);
    Send(WM_LBUTTONUP, 10, 21);
    EXPECT_EQ(recorder_.Count(ZoMsg_SeparatorMoved, zotest::WindowRole::Parent), 0u);
}
