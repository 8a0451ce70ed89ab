// The skinned dialog's rules called with numbers: frame sizes, system-button places per size
// class, hit codes, button states, the client area inside the frame, the classic-frame versions.
#include <gtest/gtest.h>

#include "dialogs/ZoDialog.h"
#include "dialogs/ZoDialogGeometry.h"

using namespace ZoControls;

namespace {

const DWORD kBothBoxes = WS_SYSMENU | WS_MINIMIZEBOX | WS_MAXIMIZEBOX;

TEST(DialogBorders, SizeClassesAndStyles)
{
    EXPECT_EQ(2, ZoDialogBorderSize(0));
    EXPECT_EQ(5, ZoDialogBorderSize(1));
    EXPECT_EQ(7, ZoDialogBorderSize(2));
    EXPECT_EQ(0, ZoDialogBorderSize(-1));
    EXPECT_EQ(0, ZoDialogBorderSize(3));

    const BorderDim captioned = ZoDialogBorders(WS_CAPTION, 1);
    EXPECT_EQ(5, captioned.left);
    EXPECT_EQ(5, captioned.bottom);
    EXPECT_EQ(22, captioned.caption);
    // WS_DLGFRAME alone gives borders but no caption; WS_BORDER alone neither.
    const BorderDim framed = ZoDialogBorders(WS_DLGFRAME, 2);
    EXPECT_EQ(7, framed.top);
    EXPECT_EQ(0, framed.caption);
    const BorderDim bordered = ZoDialogBorders(WS_BORDER, 0);
    EXPECT_EQ(0, bordered.left);
    EXPECT_EQ(0, bordered.caption);
}

struct SizeClassCase
{
    int monitorSize;
    int cell; // the strip's cell edge
};

class SysButtonPlaces : public testing::TestWithParam<SizeClassCase>
{
};

// A 300-pixel window: close at the right border, centred in the caption; maximize and
// minimize one cell to the left each; restore instead of maximize when zoomed.
TEST_P(SysButtonPlaces, CloseMaximizeMinimizeFromTheRight)
{
    const int b = ZoDialogBorderSize(GetParam().monitorSize);
    const int c = GetParam().cell;
    const BorderDim border = ZoDialogBorders(WS_CAPTION, GetParam().monitorSize);
    CRect rects[ZoSysButton_Count];
    ZoDialogSysButtonRects(300, border, c, c, kBothBoxes, false, rects);
    const int top = (22 - c) / 2 + b;
    EXPECT_EQ(CRect(300 - b - c, top, 300 - b, top + c), rects[ZoSysButton_Close]);
    EXPECT_EQ(CRect(300 - b - 2 * c, top, 300 - b - c, top + c), rects[ZoSysButton_Maximize]);
    EXPECT_EQ(CRect(300 - b - 3 * c, top, 300 - b - 2 * c, top + c), rects[ZoSysButton_Minimize]);
    EXPECT_TRUE(rects[ZoSysButton_Restore].IsRectEmpty());

    ZoDialogSysButtonRects(300, border, c, c, kBothBoxes, true, rects);
    EXPECT_EQ(CRect(300 - b - 2 * c, top, 300 - b - c, top + c), rects[ZoSysButton_Restore]);
    EXPECT_TRUE(rects[ZoSysButton_Maximize].IsRectEmpty());

}

INSTANTIATE_TEST_SUITE_P(SizeClasses, SysButtonPlaces,
                         testing::Values(SizeClassCase{0, 16}, SizeClassCase{1, 18}, SizeClassCase{2, 24}));

TEST(SysButtonPlaces, WithoutBoxesOnlyClose)
{
    const BorderDim border = ZoDialogBorders(WS_CAPTION, 0);
    CRect rects[ZoSysButton_Count];
    ZoDialogSysButtonRects(200, border, 16, 16, WS_SYSMENU, false, rects);
    EXPECT_FALSE(rects[ZoSysButton_Close].IsRectEmpty());
    EXPECT_TRUE(rects[ZoSysButton_Maximize].IsRectEmpty());
    EXPECT_TRUE(rects[ZoSysButton_Minimize].IsRectEmpty());
    EXPECT_TRUE(rects[ZoSysButton_Restore].IsRectEmpty());
}

TEST(DialogHitTest, PlatformAnswersKeptOrReplaced)
{
    const BorderDim border = ZoDialogBorders(WS_CAPTION, 0);
    CRect rects[ZoSysButton_Count];
    ZoDialogSysButtonRects(300, border, 16, 16, kBothBoxes, false, rects);
    const CPoint inClose = rects[ZoSysButton_Close].CenterPoint();
    // Borders, client and the like stay the platform's, even over a button's place.
    EXPECT_EQ(HTTOPRIGHT, ZoDialogHitTest(HTTOPRIGHT, inClose, rects, kBothBoxes, 300, 22));
    EXPECT_EQ(HTCLIENT, ZoDialogHitTest(HTCLIENT, CPoint(5, 5), rects, kBothBoxes, 300, 22));
    // The platform's own buttons and caption become ours.
    EXPECT_EQ(HTMAXBUTTON, ZoDialogHitTest(HTCLOSE, inClose, rects, kBothBoxes, 300, 22));
    EXPECT_EQ(HTCAPTION, ZoDialogHitTest(HTSYSMENU, CPoint(5, 5), rects, kBothBoxes, 300, 22));
    EXPECT_EQ(HTNOWHERE, ZoDialogHitTest(HTCAPTION, CPoint(5, 30), rects, kBothBoxes, 300, 22));
    // Without any of the three style bits the buttons are not there.
    EXPECT_EQ(HTCAPTION, ZoDialogHitTest(HTCAPTION, inClose, rects, 0, 300, 22));
}

TEST(SysButtonStates, HoverPressAndRest)
{
    int states[ZoSysButton_Count] = {9, 9, 9, 9};
    ZoDialogStatesOnMove(WS_SYSMENU | WS_MAXIMIZEBOX, ZoSysButton_None, ZoSysButton_None, states);
    EXPECT_EQ(3, states[ZoSysButton_Minimize]); // no box: disabled
    EXPECT_EQ(0, states[ZoSysButton_Maximize]);
    EXPECT_EQ(0, states[ZoSysButton_Close]);
    EXPECT_EQ(9, states[ZoSysButton_Restore]); // never touched

    ZoDialogStatesOnMove(kBothBoxes, ZoSysButton_Close, ZoSysButton_None, states);
    EXPECT_EQ(1, states[ZoSysButton_Close]);
    ZoDialogStatesOnMove(kBothBoxes, ZoSysButton_Close, ZoSysButton_Close, states);
    EXPECT_EQ(2, states[ZoSysButton_Close]);
    // Over another button while one is held: nothing lights up.
    ZoDialogStatesOnMove(kBothBoxes, ZoSysButton_Maximize, ZoSysButton_Close, states);
    EXPECT_EQ(0, states[ZoSysButton_Maximize]);
    EXPECT_EQ(0, states[ZoSysButton_Close]);
}

TEST(DialogClientArea, KeptInsideThePaintedFrame)
{
    const BorderDim border = ZoDialogBorders(WS_CAPTION, 1); // 5-pixel borders, 22-pixel caption
    // A thinner platform frame moves in; a thicker one stays.
    EXPECT_EQ(CRect(5, 27, 295, 195), ZoDialogClientInsideFrame(CRect(3, 20, 297, 197), 300, 200, border));
    EXPECT_EQ(CRect(8, 30, 290, 190), ZoDialogClientInsideFrame(CRect(8, 30, 290, 190), 300, 200, border));
    // Too small a window: an empty client area at the frame's inner corner.
    const CRect tiny = ZoDialogClientInsideFrame(CRect(3, 20, 7, 21), 10, 20, border);
    EXPECT_TRUE(tiny.IsRectEmpty());
    EXPECT_GE(tiny.right, tiny.left);
    EXPECT_GE(tiny.bottom, tiny.top);
}

TEST(ClassicFrame, Versions)
{
    EXPECT_TRUE(ZoIsClassicFrameVersion(5, 1, VER_NT_WORKSTATION));  // XP
    EXPECT_FALSE(ZoIsClassicFrameVersion(5, 2, VER_NT_SERVER));      // 2003: minor 2
    EXPECT_FALSE(ZoIsClassicFrameVersion(6, 0, VER_NT_WORKSTATION)); // Vista
    EXPECT_FALSE(ZoIsClassicFrameVersion(6, 1, VER_NT_WORKSTATION)); // 7
    EXPECT_TRUE(ZoIsClassicFrameVersion(6, 1, VER_NT_SERVER));       // 2008 R2
    EXPECT_FALSE(ZoIsClassicFrameVersion(10, 0, VER_NT_SERVER));
}

} // namespace
