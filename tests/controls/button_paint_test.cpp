// CZoButton pixels: face and border lines per state, check and radio cells from the strip,
// caption colours, image rows, group boxes, focus cues.
#include "controls_test_support.h"

#include "controls/ZoButton.h"
#include "core/ZoThemeManager.h"
#include "images/ZoResourcePNG.h"

using namespace ZoControls;
using controltest::Slot;

namespace {

const UINT kCheckStrip = 808;

class ButtonPaintTest : public controltest::ControlTest
{
protected:
    // The strip's cell (column, row) composed over `backs` (one colour per row), drawn alone.
    zotest::Dib StripCell(int column, int row, const COLORREF* backs, int count)
    {
        CZoResourcePNGImage strip;
        EXPECT_TRUE(strip.LoadResourceImage(kCheckStrip, 4, 5));
        strip.SetBackgroundColor(backs, count);
        zotest::Dib cell(15, 15, RGB(9, 9, 9));
        CDC dc;
        dc.Attach(cell.dc());
        strip.DrawUnitImage(dc, 0, 0, column, row, controltest::kMagenta);
        dc.Detach();
        return cell;
    }

    zotest::Dib StripCell(int column, int row, COLORREF back)
    {
        const COLORREF backs[5] = {back, back, back, back, back};
        return StripCell(column, row, backs, 5);
    }

    static ::testing::AssertionResult SameArea(const zotest::Dib& dib, POINT at, const zotest::Dib& cell)
    {
        const RECT all = {0, 0, cell.width(), cell.height()};
        return zotest::MatchesCell(dib, at, cell, all);
    }
};

// --- Push buttons ------------------------------------------------------------------------------

void ExpectFaceAndLines(const zotest::Dib& dib, COLORREF face, COLORREF line)
{
    const int w = dib.width();
    const int h = dib.height();
    ZOTEST_EXPECT_FILL(dib, (RECT{1, 1, w - 1, h - 1}), face);
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 0, 1, h}), line);
    ZOTEST_EXPECT_FILL(dib, (RECT{w - 1, 0, w, h}), line);
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 0, w, 1}), line);
    ZOTEST_EXPECT_FILL(dib, (RECT{0, h - 1, w, h}), line);
}

TEST_F(ButtonPaintTest, PushFaceAndLinesPerState)
{
    CZoButton button;
    MakeButton(button, L"", BS_PUSHBUTTON);
    ExpectFaceAndLines(zotest::RenderClient(button.m_hWnd), Slot(13), Slot(18));

    SendMessage(button.m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    ASSERT_TRUE(button.IsHoveringNow());
    ExpectFaceAndLines(zotest::RenderClient(button.m_hWnd), Slot(14), Slot(19));

    button.SetState(TRUE);
    ExpectFaceAndLines(zotest::RenderClient(button.m_hWnd), Slot(15), Slot(20));
    button.SetState(FALSE);

    SendMessage(button.m_hWnd, WM_MOUSELEAVE, 0, 0);
    EXPECT_FALSE(button.IsHoveringNow());
    button.EnableWindow(FALSE);
    ExpectFaceAndLines(zotest::RenderClient(button.m_hWnd), Slot(17), Slot(22));
}

// The client area as it stands on screen once pending paints are done, without asking for a
// repaint (the renderer's Screen path invalidates first, which would hide drawing done outside
// WM_PAINT).
zotest::Dib ScreenAsPainted(HWND window)
{
    zotest::PumpUntilIdle();
    RECT client;
    ::GetClientRect(window, &client);
    zotest::Dib dib(client.right, client.bottom, RGB(9, 9, 9));
    const HDC screen = ::GetDC(window);
    ::BitBlt(dib.dc(), 0, 0, client.right, client.bottom, screen, 0, 0, SRCCOPY);
    ::ReleaseDC(window, screen);
    return dib;
}

// Pressing goes through the platform button (common controls 6, as in every Visual Studio host),
// which invalidates rather than drawing itself, so the screen shows the pressed skin.
TEST_F(ButtonPaintTest, PressedSkinReachesTheScreen)
{
    CZoButton button;
    MakeButton(button, L"", BS_PUSHBUTTON);
    zotest::PumpUntilIdle();

    button.SendMessage(BM_SETSTATE, TRUE, 0);
    ExpectFaceAndLines(ScreenAsPainted(button.m_hWnd), Slot(15), Slot(20));
    button.SendMessage(BM_SETSTATE, FALSE, 0);
    ExpectFaceAndLines(ScreenAsPainted(button.m_hWnd), Slot(13), Slot(18));
}

TEST_F(ButtonPaintTest, LinesInMagentaAreNotDrawn)
{
    CZoButton button;
    MakeButton(button, L"", BS_PUSHBUTTON);
    button.SetLineColor(LINE_TOP, ZO_LINE_NOT_DRAWN);
    button.SetLineColor(LINE_RIGHT, RGB(0, 0, 200));
    const zotest::Dib dib = zotest::RenderClient(button.m_hWnd);
    ZOTEST_EXPECT_FILL(dib, (RECT{1, 0, 79, 1}), Slot(13));
    // The right line runs bottom to top and LineTo leaves out its end point.
    ZOTEST_EXPECT_FILL(dib, (RECT{79, 1, 80, 24}), RGB(0, 0, 200));
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 0, 1, 24}), Slot(18));
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 23, 79, 24}), Slot(18));
}

TEST_F(ButtonPaintTest, CaptionInStateTextColour)
{
    CZoButton button;
    MakeButton(button, L"MMMM", BS_PUSHBUTTON);
    const zotest::Dib dib = zotest::RenderClient(button.m_hWnd);
    EXPECT_GT(controltest::CountPixels(dib, Slot(34)), 0);
    button.EnableWindow(FALSE);
    EXPECT_GT(controltest::CountPixels(zotest::RenderClient(button.m_hWnd), Slot(37)), 0);
}

TEST_F(ButtonPaintTest, DisabledStateFollowingRowDrawsRowFour)
{
    CZoButton button;
    MakeButton(button, L"", BS_PUSHBUTTON, RECT{10, 10, 55, 45});
    button.SetZoPNGImages(kCheckStrip, false, true, false, 4, 5, 1);
    button.EnableWindow(FALSE);
    const zotest::Dib dib = zotest::RenderClient(button.m_hWnd);
    COLORREF backs[5];
    for (int i = 0; i < 5; ++i)
        backs[i] = Slot(13 + i);
    // Centred: ((0 + 45) / 2 - 7, (0 + 35) / 2 - 7).
    EXPECT_TRUE(SameArea(dib, POINT{15, 10}, StripCell(1, 4, backs, 5)));
    EXPECT_FALSE(SameArea(dib, POINT{15, 10}, StripCell(1, 3, backs, 5)));
}

// --- Check boxes and radios --------------------------------------------------------------------

TEST_F(ButtonPaintTest, CheckBoxCellsFromTheStrip)
{
    CZoButton box;
    MakeButton(box, L"", BS_AUTO3STATE, RECT{10, 10, 110, 35});
    const POINT at = {0, 5};
    EXPECT_TRUE(SameArea(zotest::RenderClient(box.m_hWnd), at, StripCell(0, 0, Slot(0))));
    box.SetCheck(BST_CHECKED);
    EXPECT_TRUE(SameArea(zotest::RenderClient(box.m_hWnd), at, StripCell(0, 1, Slot(0))));
    box.SetCheck(BST_INDETERMINATE);
    EXPECT_TRUE(SameArea(zotest::RenderClient(box.m_hWnd), at, StripCell(0, 2, Slot(0))));
    SendMessage(box.m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
    EXPECT_TRUE(SameArea(zotest::RenderClient(box.m_hWnd), at, StripCell(1, 2, Slot(0))));
    box.SetState(TRUE);
    EXPECT_TRUE(SameArea(zotest::RenderClient(box.m_hWnd), at, StripCell(2, 2, Slot(0))));
    box.SetState(FALSE);
    box.EnableWindow(FALSE);
    EXPECT_TRUE(SameArea(zotest::RenderClient(box.m_hWnd), at, StripCell(3, 2, Slot(0))));
}

TEST_F(ButtonPaintTest, RadioCellsAndBoxOnTheRight)
{
    CZoButton radio;
    MakeButton(radio, L"", BS_AUTORADIOBUTTON | BS_LEFTTEXT | BS_TOP, RECT{10, 10, 110, 35});
    EXPECT_TRUE(SameArea(zotest::RenderClient(radio.m_hWnd), POINT{85, 0}, StripCell(0, 3, Slot(0))));
    radio.SetCheck(BST_CHECKED);
    EXPECT_TRUE(SameArea(zotest::RenderClient(radio.m_hWnd), POINT{85, 0}, StripCell(0, 4, Slot(0))));
}

TEST_F(ButtonPaintTest, FocusRectangleOnCheckBoxNotOnPushButton)
{
    CZoButton box, push;
    MakeButton(box, L"Focus", BS_AUTOCHECKBOX, RECT{10, 10, 160, 35});
    MakeButton(push, L"Focus", BS_PUSHBUTTON, RECT{10, 50, 160, 75});
    const zotest::Dib boxBefore = zotest::RenderClient(box.m_hWnd);
    const zotest::Dib pushBefore = zotest::RenderClient(push.m_hWnd);
    box.SendMessage(BM_SETSTATE, FALSE, 0);
    SetForegroundWindow(parent());
    box.SetFocus();
    ASSERT_TRUE(box.GetState() & BST_FOCUS);
    const zotest::Dib boxAfter = zotest::RenderClient(box.m_hWnd);
    push.SetFocus();
    ASSERT_TRUE(push.GetState() & BST_FOCUS);
    EXPECT_GT(controltest::Differences(boxBefore, boxAfter), 10);
    EXPECT_EQ(controltest::Differences(pushBefore, zotest::RenderClient(push.m_hWnd)), 0);
}

// --- Group boxes ----------------------------------------------------------------------------

int GroupLineHeight()
{
    CFont* font = const_cast<CFont*>(
        CZoThemeManager::GetInstance()->GetCacheGDIFont(ZoThemeFont_9, ZoMonitorSize_Normal));
    HDC dc = CreateCompatibleDC(nullptr);
    HGDIOBJ old = SelectObject(dc, font->GetSafeHandle());
    SIZE size = {};
    GetTextExtentPoint32W(dc, L"Hy", 2, &size);
    SelectObject(dc, old);
    DeleteDC(dc);
    return size.cy;
}

TEST_F(ButtonPaintTest, GroupBoxFrameAndCaptionCut)
{
    CZoButton group;
    MakeButton(group, L"Group", BS_GROUPBOX, RECT{10, 10, 170, 90});
    const zotest::Dib dib = zotest::RenderClient(group.m_hWnd);
    const int top = GroupLineHeight() / 2 + 2;
    // Outline (client less one pixel right and bottom) and the inner second line.
    ZOTEST_EXPECT_FILL(dib, (RECT{0, top, 1, 79}), Slot(49));
    ZOTEST_EXPECT_FILL(dib, (RECT{1, top + 1, 2, 77}), Slot(49));
    ZOTEST_EXPECT_FILL(dib, (RECT{158, top + 1, 160, 79}), Slot(49));
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 78, 159, 80}), Slot(49));
    ZOTEST_EXPECT_FILL(dib, (RECT{100, top, 157, top + 2}), Slot(49));
    // The caption starts at the indent with two blanks that cut the top line.
    ZOTEST_EXPECT_FILL(dib, (RECT{7, top, 9, top + 2}), Slot(48));
    ZOTEST_EXPECT_FILL(dib, (RECT{2, GroupLineHeight() + 2, 157, 77}), Slot(48));
}

TEST_F(ButtonPaintTest, UnknownKindsAreLeftToTheSystem)
{
    CZoButton owner;
    MakeButton(owner, L"", BS_OWNERDRAW);
    zotest::MessageRecorder recorder;
    ASSERT_TRUE(recorder.Watch(parent(), zotest::WindowRole::Parent));
    zotest::RenderClient(owner.m_hWnd);
    EXPECT_GE(recorder.Count(WM_DRAWITEM, zotest::WindowRole::Parent), 1u);
    recorder.UnwatchAll();
}

} // namespace
