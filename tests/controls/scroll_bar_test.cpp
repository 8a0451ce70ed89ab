// CZoScrollBar as a window: rectangles, scroll-state messages, clicks, auto-repeat, dragging,
// swallowed input, pixels of each part's state and resource cycles.
#include "controls_test_support.h"

#include "controls/ZoScrollBar.h"

using namespace ZoControls;
using controltest::ControlTest;

namespace {

// Class 0 units: vertical buttons 19 x 26, thumb 19 x 8; gap 4.
const int kWidth = 19;
const int kHeight = 200;
// A notification sent to the parent, matched on both parameters.
const unsigned kToParent = zotest::sent | zotest::parent | zotest::wparam | zotest::lparam;

class ScrollBarTest : public ControlTest
{
protected:
    void Create(DWORD style = SBS_VERT, CRect rect = CRect(10, 10, 10 + kWidth, 10 + kHeight))
    {
        ASSERT_TRUE(bar_.Create(WS_CHILD | WS_VISIBLE | style, rect, parentWnd(), 100));
    }

    // Range 0..109 with a page of 10 at 50: thumb 24 long (three units), track 140, at 70.
    void SetStandardState(int pos = 50)
    {
        SCROLLINFO info = {sizeof(SCROLLINFO), SIF_ALL, 0, 109, 10, pos, 0};
        bar_.SetScrollInfo(&info, TRUE);
    }

    void WatchParent()
    {
        recorder_.Watch(parent(), zotest::WindowRole::Parent);
        recorder_.MatchOnlyListed(true);
    }

    WPARAM Code(UINT code, int pos = 0) const { return MAKEWPARAM(code, (WORD)pos); }
    LPARAM Self() const { return (LPARAM)bar_.GetSafeHwnd(); }

    void Press(int x, int y) { bar_.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y)); }
    void Release(int x, int y) { bar_.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(x, y)); }
    void Move(int x, int y, WPARAM keys = MK_LBUTTON) { bar_.SendMessage(WM_MOUSEMOVE, keys, MAKELPARAM(x, y)); }

    CZoScrollBar bar_;
    zotest::MessageRecorder recorder_;
};

bool Same(const CRect& r, int l, int t, int right, int b) { return r == CRect(l, t, right, b); }

} // namespace


TEST_F(ScrollBarTest, ScrollInfoOrAResizeSetsThumbLengthAndPosition)
{
    Create();
    SetStandardState();
    EXPECT_EQ(bar_.GetThumbLength(), 24);
    EXPECT_EQ(bar_.GetThumbPos(), 70);
    EXPECT_TRUE(Same(bar_.GetPartRect(CZoScrollBar::SBHit_Thumb), 0, 92, kWidth, 116));
    EXPECT_TRUE(Same(bar_.GetPartRect(CZoScrollBar::SBHit_PageBefore), 0, 22, kWidth, 92));

    bar_.SetScrollPos(100);
    EXPECT_EQ(bar_.GetThumbPos(), 140);
    bar_.SetScrollRange(0, 209);
    EXPECT_EQ(bar_.GetThumbLength(), 24); // only SBM_SETSCROLLINFO changes the length
    EXPECT_EQ(bar_.GetThumbPos(), 70);    // 100 of 200
    // A resize sets the length anew and keeps the position.
    bar_.MoveWindow(10, 10, kWidth, 300);
    EXPECT_EQ(bar_.GetThumbLength(), (300 - 52) / 3);
    EXPECT_EQ(bar_.GetThumbPos(), 70);
    EXPECT_TRUE(Same(bar_.GetPartRect(CZoScrollBar::SBHit_Thumb), 0, 92, kWidth, 92 + 82));
}

TEST_F(ScrollBarTest, EachClickWritesItsStepThenNotifiesTheParent)
{
    Create();
    SetStandardState();
    WatchParent();
    const struct
    {
        int y;
        UINT code;
        int pos;
    } clicks[] = {{5, SB_LINEUP, 49}, {190, SB_LINEDOWN, 50}, {190, SB_LINEDOWN, 51}, {50, SB_PAGEUP, 41},
                  {150, SB_PAGEDOWN, 51}};
    for (const auto& click : clicks) {
        SCOPED_TRACE(testing::Message() << "click at y " << click.y);
        recorder_.Clear();
        Press(9, click.y);
        Release(9, click.y);
        const zotest::ExpectedMessage expected[] = {
            {WM_VSCROLL, kToParent, Code(click.code), Self()},
        };
        ZOTEST_EXPECT_SEQUENCE(recorder_, expected);
        EXPECT_EQ(bar_.GetScrollPos(), click.pos);
    }
}


TEST_F(ScrollBarTest, HorizontalBarSendsHScroll)
{
    Create(0, CRect(10, 10, 310, 10 + kWidth));
    SetStandardState();
    WatchParent();
    Press(290, 9);
    Release(290, 9);
    const zotest::ExpectedMessage expected[] = {
        {WM_HSCROLL, kToParent, Code(SB_LINEDOWN), Self()},
    };
    ZOTEST_EXPECT_SEQUENCE(recorder_, expected);
}

TEST_F(ScrollBarTest, BuddyReceivesTheNotificationsInsteadOfTheParent)
{
    Create();
    SetStandardState();
    zotest::ScopedWindow buddy(zotest::CreateSolidWindow(CRect(200, 10, 260, 60), RGB(1, 2, 3), parent()));
    bar_.SetBuddy(CWnd::FromHandle(buddy));
    recorder_.Watch(parent(), zotest::WindowRole::Parent);
    recorder_.Watch(buddy, zotest::WindowRole::Other);
    recorder_.MatchOnlyListed(true);
    Press(9, 190);
    Release(9, 190);
    const zotest::ExpectedMessage expected[] = {
        {WM_VSCROLL, zotest::sent | zotest::other | zotest::wparam | zotest::lparam, Code(SB_LINEDOWN), Self()},
    };
    ZOTEST_EXPECT_SEQUENCE(recorder_, expected);
    EXPECT_EQ(recorder_.Count(WM_VSCROLL, zotest::WindowRole::Parent), 0u);
    recorder_.Unwatch(buddy);
}

TEST_F(ScrollBarTest, ArrowPressArmsTheFirstDelayThenTheRepeat)
{
    Create();
    SetStandardState();
    ASSERT_TRUE(zotest::MoveCursorTo(bar_.GetSafeHwnd(), CPoint(9, 190)));
    WatchParent();
    Press(9, 190);
    // The first delay is armed; the repetition is not yet. (KillTimer answers whether a timer
    // was armed; the test then plays the timer's part itself.)
    EXPECT_FALSE(::KillTimer(bar_.GetSafeHwnd(), CZoScrollBar::TimerRepeat));
    EXPECT_TRUE(::KillTimer(bar_.GetSafeHwnd(), CZoScrollBar::TimerFirstDelay));
    bar_.SendMessage(WM_TIMER, CZoScrollBar::TimerFirstDelay);
    // The first delay hands over to the repetition.
    EXPECT_FALSE(::KillTimer(bar_.GetSafeHwnd(), CZoScrollBar::TimerFirstDelay));
    EXPECT_TRUE(::KillTimer(bar_.GetSafeHwnd(), CZoScrollBar::TimerRepeat));
    ::SetTimer(bar_.GetSafeHwnd(), CZoScrollBar::TimerRepeat, 60000, nullptr);
    bar_.SendMessage(WM_TIMER, CZoScrollBar::TimerRepeat);
    bar_.SendMessage(WM_TIMER, CZoScrollBar::TimerRepeat);
    const zotest::ExpectedMessage expected[] = {
        {WM_VSCROLL, kToParent, Code(SB_LINEDOWN), Self()},
        {WM_VSCROLL, kToParent, Code(SB_LINEDOWN), Self()},
        {WM_VSCROLL, kToParent, Code(SB_LINEDOWN), Self()},
        {WM_VSCROLL, kToParent, Code(SB_LINEDOWN), Self()},
    };
    ZOTEST_EXPECT_SEQUENCE(recorder_, expected);
    EXPECT_EQ(bar_.GetScrollPos(), 54);
    // The release stops the repetition.
    Release(9, 190);
    EXPECT_FALSE(::KillTimer(bar_.GetSafeHwnd(), CZoScrollBar::TimerRepeat));
}

TEST_F(ScrollBarTest, RepeatPausesWhileTheCursorIsOffThePressedPart)
{
    Create();
    SetStandardState();
    ASSERT_TRUE(zotest::MoveCursorTo(bar_.GetSafeHwnd(), CPoint(9, 150)));
    Press(9, 150); // page after: 60
    bar_.SendMessage(WM_TIMER, CZoScrollBar::TimerFirstDelay);
    EXPECT_EQ(bar_.GetScrollPos(), 70);
    // Sideways drift is ignored: the cursor column is replaced by the bar's centre.
    ASSERT_TRUE(zotest::MoveCursorTo(parent(), CPoint(10 + kWidth + 30, 10 + 170)));
    bar_.SendMessage(WM_TIMER, CZoScrollBar::TimerRepeat);
    EXPECT_EQ(bar_.GetScrollPos(), 80);
    // Over the next arrow: not the pressed part, nothing happens, the timer keeps running.
    ASSERT_TRUE(zotest::MoveCursorTo(bar_.GetSafeHwnd(), CPoint(9, 195)));
    bar_.SendMessage(WM_TIMER, CZoScrollBar::TimerRepeat);
    EXPECT_EQ(bar_.GetScrollPos(), 80);
    ASSERT_TRUE(zotest::MoveCursorTo(bar_.GetSafeHwnd(), CPoint(9, 170)));
    bar_.SendMessage(WM_TIMER, CZoScrollBar::TimerRepeat);
    EXPECT_EQ(bar_.GetScrollPos(), 90);
    Release(9, 170);
}

TEST_F(ScrollBarTest, DraggingTracksOnlyOnChangeAndEndsWithThumbPosition)
{
    Create();
    SetStandardState();
    WatchParent();
    Press(9, 100); // thumb 92..116, offset -8
    Move(9, 115);  // thumb 85 -> 60.7 -> 61
    Move(9, 116);  // thumb 86 -> 61.4 -> 61: unchanged, nothing sent
    Move(9, 400);  // clamped to the track end: 100
    Release(9, 400);
    const LPARAM self = Self();
    const zotest::ExpectedMessage expected[] = {
        {WM_VSCROLL, kToParent, Code(SB_THUMBTRACK, 50), self},
        {WM_VSCROLL, kToParent, Code(SB_THUMBTRACK, 61), self},
        {WM_VSCROLL, kToParent, Code(SB_THUMBTRACK, 100), self},
        {WM_VSCROLL, kToParent, Code(SB_THUMBPOSITION, 100), self},
    };
    ZOTEST_EXPECT_SEQUENCE(recorder_, expected);
    EXPECT_EQ(bar_.GetThumbPos(), 140);
    // Dragging does not write the scroll state; the host does on the notification.
    EXPECT_EQ(bar_.GetScrollPos(), 50);
    EXPECT_FALSE(::KillTimer(bar_.GetSafeHwnd(), CZoScrollBar::TimerFirstDelay));
}

TEST_F(ScrollBarTest, LosingTheMouseEndsAPressWithoutAWord)
{
    const int thumbY = 100;
    const int arrowY = 190;
    for (controltest::CaptureLoss loss : controltest::kCaptureLosses) {
        for (int y : {thumbY, arrowY}) {
            SCOPED_TRACE(testing::Message() << "loss " << static_cast<int>(loss) << " at y " << y);
            Create();
            SetStandardState();
            const zotest::Dib atRest = zotest::RenderClient(bar_.GetSafeHwnd());
            Press(9, y);
            if (y == thumbY)
                Move(9, 130);
            WatchParent();
            controltest::LoseCapture(bar_.GetSafeHwnd(), loss, parent());
            EXPECT_NE(::GetCapture(), bar_.GetSafeHwnd());
            EXPECT_FALSE(::KillTimer(bar_.GetSafeHwnd(), CZoScrollBar::TimerFirstDelay));
            EXPECT_FALSE(::KillTimer(bar_.GetSafeHwnd(), CZoScrollBar::TimerRepeat));
            Release(9, y);
            EXPECT_EQ(recorder_.Count(WM_VSCROLL, zotest::WindowRole::Parent), 0u);
            // The dragged thumb is back where the position is, in its normal look.
            if (y == thumbY) {
                EXPECT_EQ(controltest::Differences(atRest, zotest::RenderClient(bar_.GetSafeHwnd())), 0);
            }
            ::ReleaseCapture();
            recorder_.UnwatchAll();
            bar_.DestroyWindow();
        }
    }
}

// An owner that destroys the bar when told about the press: nothing of the bar may live on.
TEST_F(ScrollBarTest, BarDestroyedByItsOwnerInTheNotificationArmsNoTimer)
{
    class DestroyingBuddy : public CWnd
    {
    public:
        CWnd* victim = nullptr;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_VSCROLL && victim && victim->GetSafeHwnd())
                victim->DestroyWindow();
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    DestroyingBuddy buddy;
    ASSERT_TRUE(buddy.CreateEx(0, L"STATIC", L"", WS_CHILD, CRect(0, 0, 5, 5), parentWnd(), 7));
    for (int y : {190, 150}) { // an arrow, a page
        Create();
        SetStandardState();
        buddy.victim = &bar_;
        bar_.SetBuddy(&buddy);
        Press(9, y);
        EXPECT_EQ(bar_.GetSafeHwnd(), (HWND)NULL);
        EXPECT_EQ(::GetCapture(), (HWND)NULL);
        // A timer set for a window that is gone becomes a thread timer (no window) that fires for ever.
        ::Sleep(350);
        MSG msg;
        bool threadTimer = false;
        while (::PeekMessageW(&msg, NULL, WM_TIMER, WM_TIMER, PM_REMOVE))
            threadTimer = threadTimer || msg.hwnd == NULL;
        EXPECT_FALSE(threadTimer);
    }
    buddy.DestroyWindow();
}

TEST_F(ScrollBarTest, DoubleClickAndRightButtonAreSwallowed)
{
    Create();
    SetStandardState();
    recorder_.Watch(parent(), zotest::WindowRole::Parent);
    bar_.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(9, 190));
    zotest::SendRightClick(bar_.GetSafeHwnd(), CPoint(9, 100));
    zotest::PumpUntilIdle();
    EXPECT_EQ(recorder_.Count(WM_VSCROLL, zotest::WindowRole::Parent), 0u);
    EXPECT_EQ(recorder_.Count(WM_CONTEXTMENU, zotest::WindowRole::Parent), 0u);
    EXPECT_EQ(bar_.GetScrollPos(), 50);
}

// Pixels: each part drawn from its strip cell in its state.
class ScrollBarPixelTest : public ScrollBarTest
{
protected:
    // The previous button's area as painted now shows `state`.
    testing::AssertionResult PrevButtonIs(int state)
    {
        const CRect prev = bar_.GetPartRect(CZoScrollBar::SBHit_PrevButton);
        const zotest::Dib expected =
            controltest::StretchedCell(buttons_, 4, 4, state, 0, prev.Width(), prev.Height(), kBackground);
        return controltest::AreaMatches(zotest::RenderClient(bar_.GetSafeHwnd()), prev, expected);
    }

    const COLORREF kBackground = RGB(0x47, 0x47, 0x47);
    HBITMAP buttons_ = Strip(L"BMP_ZO_SCROLLVER_BTNS");
    HBITMAP thumb_ = Strip(L"BMP_ZO_SCROLLVER_THUMB");
    HBITMAP back_ = Strip(L"BMP_ZO_SCROLLVER_BACK");
};

TEST_F(ScrollBarPixelTest, PreviousButtonInEachState)
{
    Create();
    SetStandardState();
    EXPECT_TRUE(PrevButtonIs(CZoScrollBar::CurState_Normal));
    Move(9, 5, 0);
    EXPECT_TRUE(PrevButtonIs(CZoScrollBar::CurState_Hover));
    Press(9, 5);
    EXPECT_TRUE(PrevButtonIs(CZoScrollBar::CurState_Pressed));
    Release(9, 5);
    EXPECT_TRUE(PrevButtonIs(CZoScrollBar::CurState_Hover));
    bar_.SendMessage(WM_MOUSELEAVE);
    EXPECT_TRUE(PrevButtonIs(CZoScrollBar::CurState_Normal));
    bar_.EnableWindow(FALSE);
    EXPECT_TRUE(PrevButtonIs(CZoScrollBar::CurState_Disabled));
}

TEST_F(ScrollBarPixelTest, PageAreasAndThumbInTheirStates)
{
    Create();
    SetStandardState();
    Move(9, 50, 0); // hover over the page before the thumb
    const zotest::Dib dib = zotest::RenderClient(bar_.GetSafeHwnd());
    const CRect before = bar_.GetPartRect(CZoScrollBar::SBHit_PageBefore);
    // Its last rows lie under the thumb, which is drawn back by the gap.
    const CRect visible(before.left, before.top, before.right, before.bottom - 4);
    EXPECT_TRUE(controltest::AreaMatches(dib, visible,
                                        controltest::StretchedCell(back_, 4, 2, CZoScrollBar::CurState_Hover, 0,
                                                                  before.Width(), before.Height(), kBackground)));
    // The thumb is drawn moved back by the gap; its middle piece in the normal state.
    const CRect thumb = bar_.GetPartRect(CZoScrollBar::SBHit_Thumb);
    const CRect middle(thumb.left, thumb.top - 4 + 8, thumb.right, thumb.bottom - 4 - 8);
    EXPECT_TRUE(controltest::AreaMatches(
        dib, middle, controltest::StretchedCell(thumb_, 4, 6, 0, 1, middle.Width(), middle.Height(), kBackground)));
}

TEST_F(ScrollBarPixelTest, ShortBarDrawsThePlaceholderCapsAtTheCentre)
{
    Create(SBS_VERT, CRect(10, 10, 10 + kWidth, 10 + 50));
    const zotest::Dib dib = zotest::RenderClient(bar_.GetSafeHwnd());
    // Centre (9, 25); caps 19 x 8 from x = 0: top cap above the centre, bottom cap below.
    const RECT topCap = zotest::CellRect(thumb_, 4, 6, 3, 0);
    const RECT bottomCap = zotest::CellRect(thumb_, 4, 6, 3, 2);
    ZOTEST_EXPECT_CELL(dib, CPoint(0, 17), thumb_, topCap, controltest::kMagenta);
    ZOTEST_EXPECT_CELL(dib, CPoint(0, 25), thumb_, bottomCap, controltest::kMagenta);
}
