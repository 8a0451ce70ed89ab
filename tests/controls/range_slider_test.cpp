// CZoRangeSliderCtrl: bound markers, conversions on the control, dragging and clamping, channel
// clicks, the notifications matched on both parameters, losing the capture mid-drag, the reset
// menu.
#include "controls_test_support.h"

#include <afxcmn.h>

#include "controls/ZoRangeSliderCtrl.h"

using namespace ZoControls;
using controltest::ControlTest;
using controltest::Slot;

namespace {

const COLORREF kBound = RGB(0x14, 0xAF, 0xD7);
const COLORREF kBoundHover = RGB(0x7F, 0xF4, 0xFF);

class RangeSliderTest : public ControlTest
{
protected:
    // 0..100 on a wide slider, thumb at the right end, out of the bounds' way.
    void Create(int lo = 0, int hi = 100)
    {
        ASSERT_TRUE(slider_.Create(WS_CHILD | WS_VISIBLE | TBS_ENABLESELRANGE | TBS_BOTH | TBS_NOTICKS,
                                   CRect(0, 0, 320, 60), parentWnd(), 8));
        slider_.SetRange(lo, hi, TRUE);
        slider_.SetPos(hi);
        slider_.GetChannelRect(&channel_);
        slider_.GetThumbRect(&thumb_);
    }
    void Watch()
    {
        ASSERT_TRUE(recorder_.Watch(parent(), zotest::WindowRole::Parent));
        recorder_.MatchOnlyListed(true);
    }
    LPARAM At(CPoint pt) const { return MAKELPARAM(pt.x, pt.y); }
    // The client point at value `value` on the channel's middle row.
    CPoint OnChannel(int value) const
    {
        return CPoint(channel_.left + slider_.ConvertSliderPos2WindowX(value), channel_.CenterPoint().y);
    }
    // A point inside the left bound's marker, a little below the channel.
    CPoint OnLeftBound() const { return slider_.GetLeftBoundPt() + CPoint(-2, thumb_.Width() / 2); }
    void Drag(CPoint from, CPoint to)
    {
        slider_.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, At(from));
        slider_.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, At(to));
    }
    zotest::ExpectedMessage Scroll(UINT code, int pos) const
    {
        return {WM_HSCROLL, zotest::sent | zotest::parent | zotest::wparam | zotest::lparam,
                MAKEWPARAM(code, pos), reinterpret_cast<LPARAM>(slider_.m_hWnd)};
    }
    static zotest::ExpectedMessage RangeChanged(WPARAM how)
    {
        return {ZoMsg_RangeChanged, zotest::sent | zotest::parent | zotest::wparam | zotest::lparam, how, 0};
    }

    CZoRangeSliderCtrl slider_;
    CRect channel_;
    CRect thumb_;
    zotest::MessageRecorder recorder_;
};

} // namespace

TEST_F(RangeSliderTest, NoBoundsBeforeTheFirstSelection)
{
    Create();
    const zotest::Dib dib = zotest::RenderClient(slider_.m_hWnd);
    EXPECT_EQ(controltest::CountPixels(dib, kBound), 0);
    const CPoint start(channel_.left, channel_.bottom + 2);
    EXPECT_NE(slider_.HitTest(start), ZoRangeHit_LeftBound);
    EXPECT_NE(slider_.HitTest(start), ZoRangeHit_RightBound);
}

TEST_F(RangeSliderTest, MarkersPointOutwardBelowTheChannelAndLightUpOnHover)
{
    Create();
    slider_.SetSelection(20, 60);
    const int w = thumb_.Width();
    const CPoint l = slider_.GetLeftBoundPt();
    const CPoint r = slider_.GetRightBoundPt();
    // Only pixels well inside the triangles: Wine draws no anti-aliased edges.
    zotest::Dib dib = zotest::RenderClient(slider_.m_hWnd);
    ZOTEST_EXPECT_PIXEL(dib, l.x - 2, l.y + w - 2, kBound);
    ZOTEST_EXPECT_PIXEL(dib, r.x + 2, r.y + w - 2, kBound);
    ZOTEST_EXPECT_PIXEL(dib, l.x + 3, l.y + w - 2, Slot(0)); // nothing on the inner side
    slider_.SendMessage(WM_MOUSEMOVE, 0, At(OnLeftBound()));
    dib = zotest::RenderClient(slider_.m_hWnd);
    ZOTEST_EXPECT_PIXEL(dib, l.x - 2, l.y + w - 2, kBoundHover);
    ZOTEST_EXPECT_PIXEL(dib, r.x + 2, r.y + w - 2, kBound);
}

TEST_F(RangeSliderTest, ThumbWinsOverAnOverlappingBound)
{
    Create();
    slider_.SetPos(20);
    slider_.SetSelection(20, 60);
    slider_.GetThumbRect(&thumb_);
    EXPECT_EQ(slider_.HitTest(thumb_.CenterPoint()), ZoRangeHit_Thumb);
    // Left of the thumb, below the channel: the bound's area reaches further out than the thumb.
    const CPoint l = slider_.GetLeftBoundPt();
    EXPECT_EQ(slider_.HitTest(CPoint(l.x - 10, l.y + 2)), ZoRangeHit_LeftBound);
    EXPECT_EQ(slider_.HitTest(OnChannel(40)), ZoRangeHit_Channel);
}

TEST_F(RangeSliderTest, LeftBoundStopsAtTheRightBoundAndAtTheRangeStart)
{
    Create(10, 110);
    slider_.SetSelection(30, 60);
    Watch();
    Drag(OnLeftBound(), OnChannel(90));
    int start = 0, end = 0;
    slider_.GetSelection(start, end);
    EXPECT_EQ(start, 60);
    EXPECT_EQ(end, 60);
    slider_.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, At(CPoint(-50, channel_.bottom)));
    slider_.GetSelection(start, end);
    EXPECT_EQ(start, 10);
    slider_.SendMessage(WM_LBUTTONUP, 0, At(CPoint(-50, channel_.bottom)));
    const zotest::ExpectedMessage drag[] = {RangeChanged(ZoRangeChange_Dragged),
                                            RangeChanged(ZoRangeChange_Dragged), Scroll(TB_ENDTRACK, 110)};
    ZOTEST_EXPECT_SEQUENCE(recorder_, drag);
    EXPECT_NE(::GetCapture(), slider_.m_hWnd);
}

TEST_F(RangeSliderTest, RightBoundStopsAtTheLeftBoundAndAtTheRangeEnd)
{
    Create();
    slider_.SetSelection(30, 60);
    const CPoint grip = slider_.GetRightBoundPt() + CPoint(2, thumb_.Width() / 2);
    Drag(grip, OnChannel(10));
    int start = 0, end = 0;
    slider_.GetSelection(start, end);
    EXPECT_EQ(end, 30);
    slider_.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, At(CPoint(channel_.right + 80, channel_.bottom)));
    slider_.GetSelection(start, end);
    EXPECT_EQ(end, 100);
    slider_.SendMessage(WM_LBUTTONUP, 0, 0);
}

TEST_F(RangeSliderTest, ChannelClickJumpsTheThumbAndThumbDragTracks)
{
    Create();
    slider_.SetSelection(0, 100);
    Watch();
    // A quarter of the channel's height above it still counts as the channel.
    const CPoint click(OnChannel(40).x, channel_.top - channel_.Height() / 4);
    slider_.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, At(click));
    const int jumped = slider_.ConvertWindowX2SliderPos(click.x - channel_.left);
    EXPECT_EQ(slider_.GetPos(), jumped);
    slider_.SendMessage(WM_LBUTTONUP, 0, At(click));
    slider_.GetThumbRect(&thumb_);
    Drag(thumb_.CenterPoint(), OnChannel(70));
    const int tracked = slider_.GetPos();
    slider_.SendMessage(WM_LBUTTONUP, 0, At(OnChannel(70)));
    const zotest::ExpectedMessage clicks[] = {Scroll(TB_THUMBPOSITION, jumped), Scroll(TB_ENDTRACK, jumped),
                                              Scroll(TB_THUMBTRACK, tracked), Scroll(TB_ENDTRACK, tracked)};
    ZOTEST_EXPECT_SEQUENCE(recorder_, clicks);
    EXPECT_NEAR(tracked, 70, 1);
}

TEST_F(RangeSliderTest, LosingTheCaptureEndsTheDragSilently)
{
    const struct { const char* how; bool cancelMode; } cases[] = {{"capture", false}, {"cancel", true}};
    for (const auto& c : cases) {
        Create();
        slider_.SetSelection(30, 60);
        Watch();
        slider_.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, At(OnLeftBound()));
        EXPECT_EQ(::GetCapture(), slider_.m_hWnd) << c.how;
        zotest::ScopedWindow other(zotest::CreateSolidWindow(RECT{0, 0, 10, 10}, RGB(1, 1, 1), parent()));
        if (c.cancelMode)
            slider_.SendMessage(WM_CANCELMODE);
        else
            ::SetCapture(other);
        EXPECT_NE(::GetCapture(), slider_.m_hWnd) << c.how;
        slider_.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, At(OnChannel(10)));
        int start = 0, end = 0;
        slider_.GetSelection(start, end);
        EXPECT_EQ(start, 30) << c.how;
        EXPECT_EQ(recorder_.Count(WM_HSCROLL, zotest::WindowRole::Parent) +
                      recorder_.Count(ZoMsg_RangeChanged, zotest::WindowRole::Parent),
                  0u)
            << c.how;
        ::ReleaseCapture();
        recorder_.UnwatchAll();
        slider_.DestroyWindow();
    }
}

namespace {

const UINT_PTR kMenuTimer = 91;
const int kMaxMenuTicks = 40;
int g_menuTicks = 0;
CString g_menuText;

// Reads the open menu's item and chooses it with the keyboard.
void CALLBACK ChooseFirstItem(HWND window, UINT, UINT_PTR id, DWORD)
{
    const HWND popup = zotest::FindOpenPopupMenu();
    if (!popup && ++g_menuTicks < kMaxMenuTicks)
        return;
    ::KillTimer(window, id);
    if (!popup) {
        ::EndMenu();
        return;
    }
    const HMENU menu = reinterpret_cast<HMENU>(::SendMessageW(popup, MN_GETHMENU, 0, 0));
    wchar_t text[64] = {};
    ::GetMenuStringW(menu, CZoRangeSliderCtrl::ResetCommand, text, 64, MF_BYCOMMAND);
    g_menuText = text;
    ::PostMessageW(popup, WM_KEYDOWN, VK_DOWN, 0);
    ::PostMessageW(popup, WM_KEYDOWN, VK_RETURN, 0);
}

} // namespace

TEST_F(RangeSliderTest, ResetMenuSelectsTheWholeRangeAndTellsTheParent)
{
    Create(10, 110);
    slider_.SetSelection(30, 60);
    Watch();
    g_menuTicks = 0;
    g_menuText.Empty();
    ::SetForegroundWindow(parent());
    ::SetTimer(parent(), kMenuTimer, 30, &ChooseFirstItem);
    slider_.PopUpMenuToReset(CPoint(100, 20));
    ::KillTimer(parent(), kMenuTimer);
    EXPECT_EQ(g_menuText, CString(L"Reset range"));
    int start = 0, end = 0;
    slider_.GetSelection(start, end);
    EXPECT_EQ(start, 10);
    EXPECT_EQ(end, 110);
    const zotest::ExpectedMessage reset[] = {RangeChanged(ZoRangeChange_Reset)};
    ZOTEST_EXPECT_SEQUENCE(recorder_, reset);
}

TEST_F(RangeSliderTest, EmptyRangeOrNoChannelConvertsToZero)
{
    Create(50, 50);
    EXPECT_EQ(slider_.ConvertSliderPos2WindowX(50), 0);
    EXPECT_EQ(slider_.ConvertWindowX2SliderPos(100), 0);
    slider_.SetRange(0, 100, TRUE);
    slider_.MoveWindow(0, 0, 0, 0);
    slider_.GetChannelRect(&channel_);
    if (channel_.Width() <= 0) {
        EXPECT_EQ(slider_.ConvertSliderPos2WindowX(50), 0);
        EXPECT_EQ(slider_.ConvertWindowX2SliderPos(100), 0);
    }
    slider_.SetSelection(20, 60);
    EXPECT_EQ(slider_.GetLeftBoundPt().x, channel_.left + slider_.ConvertSliderPos2WindowX(20));
}

TEST_F(RangeSliderTest, AttachedPlatformTrackbarGetsThumbAndBounds)
{
    HWND native = MakeNative(TRACKBAR_CLASSW, TBS_ENABLESELRANGE | TBS_BOTH | TBS_NOTICKS, RECT{0, 0, 320, 60});
    ASSERT_TRUE(slider_.SubclassWindow(native));
    slider_.SetRange(0, 100, TRUE);
    slider_.SetSelection(20, 60);
    slider_.GetThumbRect(&thumb_);
    const zotest::Dib dib = zotest::RenderClient(native);
    const CPoint l = slider_.GetLeftBoundPt();
    ZOTEST_EXPECT_PIXEL(dib, l.x - 2, l.y + thumb_.Width() - 2, kBound);
    HBITMAP strip = Strip(L"BMP_ZO_SLIDERNORMAL_HOR_BOTH");
    const zotest::Dib cell = controltest::StretchedCell(strip, 4, 1, 0, 0, thumb_.Width(), thumb_.Height(),
                                                        dib.Pixel(thumb_.left, thumb_.top));
    EXPECT_TRUE(controltest::AreaMatches(dib, thumb_, cell));
}
