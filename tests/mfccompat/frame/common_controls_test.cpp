// The <afxcmn.h> value controls, tabs and tooltips against the real common controls.
#include <afxcmn.h>
#include <gtest/gtest.h>
#include <zotest/test_window.h>

#include "control_host.h"

namespace {

class CommonControlsTest : public ControlHostTest
{
};

} // namespace

TEST_F(CommonControlsTest, SliderRangePositionSelectionAndTicks)
{
    CSliderCtrl slider;
    ASSERT_TRUE(slider.Create(WS_CHILD | WS_VISIBLE | TBS_ENABLESELRANGE | TBS_AUTOTICKS, CRect(0, 0, 200, 30),
                              parent, 4));
    EXPECT_EQ(CString(TRACKBAR_CLASSW), WindowClassOf(slider.m_hWnd));
    slider.SetRange(-50, 150, TRUE);
    EXPECT_EQ(-50, slider.GetRangeMin());
    EXPECT_EQ(150, slider.GetRangeMax());
    int low = 0, high = 0;
    slider.GetRange(low, high);
    EXPECT_EQ(-50, low);
    EXPECT_EQ(150, high);
    slider.SetPos(400);
    EXPECT_EQ(150, slider.GetPos()); // the trackbar clamps
    slider.SetPos(20);
    EXPECT_EQ(20, slider.GetPos());
    slider.SetSelection(10, 60);
    slider.GetSelection(low, high);
    EXPECT_EQ(10, low);
    EXPECT_EQ(60, high);
    slider.ClearTics();
    EXPECT_EQ(2u, slider.GetNumTics());
    EXPECT_TRUE(slider.SetTic(50));
    EXPECT_EQ(3u, slider.GetNumTics());
    EXPECT_EQ(50, slider.GetTic(0));
    EXPECT_GT(slider.GetTicPos(0), 0);
    EXPECT_EQ(-1, slider.GetTicPos(5));
    CRect channel, thumb;
    slider.GetChannelRect(&channel);
    slider.GetThumbRect(&thumb);
    EXPECT_GT(channel.Width(), 0);
    EXPECT_GT(thumb.Height(), 0);
    slider.SetPageSize(25);
    EXPECT_EQ(25, slider.GetPageSize());
}

TEST_F(CommonControlsTest, ProgressRangeAndPosition)
{
    CProgressCtrl progress;
    ASSERT_TRUE(progress.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 20), parent, 1));
    EXPECT_EQ(CString(PROGRESS_CLASSW), WindowClassOf(progress.m_hWnd));
    progress.SetRange32(10, 110);
    int low = 0, high = 0;
    progress.GetRange(low, high);
    EXPECT_EQ(10, low);
    EXPECT_EQ(110, high);
    EXPECT_EQ(10, progress.SetPos(60));
    EXPECT_EQ(60, progress.GetPos());
    EXPECT_EQ(60, progress.OffsetPos(5));
    EXPECT_EQ(65, progress.GetPos());
    progress.SetRange(0, 1000);
    progress.GetRange(low, high);
    EXPECT_EQ(1000, high);
    EXPECT_EQ(10, progress.SetStep(7));
    EXPECT_EQ(7, progress.GetStep());
}

TEST_F(CommonControlsTest, SpinRangePositionAndBuddy)
{
    CEdit buddy;
    ASSERT_TRUE(buddy.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 60, 22), parent, 11));
    CSpinButtonCtrl spin;
    ASSERT_TRUE(spin.Create(WS_CHILD | WS_VISIBLE | UDS_SETBUDDYINT, CRect(60, 0, 78, 22), parent, 12));
    EXPECT_EQ(CString(UPDOWN_CLASSW), WindowClassOf(spin.m_hWnd));
    spin.SetRange32(-5, 500);
    int low = 0, high = 0;
    spin.GetRange32(low, high);
    EXPECT_EQ(-5, low);
    EXPECT_EQ(500, high);
    spin.SetRange(1, 9);
    spin.GetRange(low, high);
    EXPECT_EQ(1, low);
    EXPECT_EQ(9, high);
    EXPECT_EQ(MAKELONG(9, 1), (LONG)spin.GetRange());
    spin.SetPos32(4);
    EXPECT_EQ(4, spin.GetPos32());
    EXPECT_EQ(4, LOWORD(spin.GetPos()));
    EXPECT_EQ(nullptr, spin.GetBuddy());
    spin.SetBuddy(&buddy);
    EXPECT_EQ(&buddy, spin.GetBuddy());
    spin.SetPos(7);
    CString text;
    buddy.GetWindowText(text);
    EXPECT_EQ(CString(L"7"), text);
}

TEST_F(CommonControlsTest, TabItemsSelectionAndGeometry)
{
    CTabCtrl tabs;
    ASSERT_TRUE(tabs.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), parent, 6));
    EXPECT_EQ(CString(WC_TABCONTROLW), WindowClassOf(tabs.m_hWnd));
    EXPECT_EQ(0, tabs.InsertItem(0, L"First"));
    EXPECT_EQ(1, tabs.InsertItem(1, L"Second"));
    EXPECT_EQ(2, tabs.InsertItem(TCIF_TEXT | TCIF_PARAM, 2, L"Third", 0, 77));
    EXPECT_EQ(3, tabs.GetItemCount());
    EXPECT_EQ(0, tabs.SetCurSel(2));
    EXPECT_EQ(2, tabs.GetCurSel());
    wchar_t buffer[32] = L"";
    TCITEM item = {};
    item.mask = TCIF_TEXT | TCIF_PARAM;
    item.pszText = buffer;
    item.cchTextMax = 32;
    ASSERT_TRUE(tabs.GetItem(2, &item));
    EXPECT_STREQ(L"Third", buffer);
    EXPECT_EQ(77, item.lParam);

    CRect first, second;
    ASSERT_TRUE(tabs.GetItemRect(0, &first));
    ASSERT_TRUE(tabs.GetItemRect(1, &second));
    EXPECT_LE(first.right, second.left + 2);
    TCHITTESTINFO hit = {};
    hit.pt = second.CenterPoint();
    EXPECT_EQ(1, tabs.HitTest(&hit));
    CRect page(0, 0, 300, 200);
    tabs.AdjustRect(FALSE, &page);
    EXPECT_GT(page.top, first.top);
    EXPECT_TRUE(tabs.DeleteItem(0));
    EXPECT_EQ(2, tabs.GetItemCount());
    EXPECT_TRUE(tabs.DeleteAllItems());
    EXPECT_EQ(0, tabs.GetItemCount());
}

TEST_F(CommonControlsTest, TabFixedItemSize)
{
    CTabCtrl tabs;
    ASSERT_TRUE(tabs.Create(WS_CHILD | WS_VISIBLE | TCS_FIXEDWIDTH, CRect(0, 0, 300, 200), parent, 6));
    tabs.InsertItem(0, L"A");
    tabs.SetItemSize(CSize(60, 25));
    CRect rect;
    ASSERT_TRUE(tabs.GetItemRect(0, &rect));
    EXPECT_EQ(25, rect.Height());
}

TEST_F(CommonControlsTest, ToolTipToolsAndTexts)
{
    CButton button;
    ASSERT_TRUE(button.Create(L"OK", WS_CHILD | WS_VISIBLE, CRect(0, 0, 60, 24), parent, 1));
    CToolTipCtrl tip;
    ASSERT_TRUE(tip.Create(&button, WS_POPUP | TTS_ALWAYSTIP));
    EXPECT_EQ(CString(TOOLTIPS_CLASSW), WindowClassOf(tip.m_hWnd));
    EXPECT_EQ(0, tip.GetToolCount());
    ASSERT_TRUE(tip.AddTool(&button, L"Press me"));
    CRect area(0, 0, 10, 10);
    ASSERT_TRUE(tip.AddTool(parent, L"Corner", &area, 7));
    EXPECT_EQ(2, tip.GetToolCount());
    CString text;
    tip.GetText(text, &button);
    EXPECT_EQ(CString(L"Press me"), text);
    tip.UpdateTipText(L"Changed", &button);
    tip.GetText(text, &button);
    EXPECT_EQ(CString(L"Changed"), text);
    CToolInfo info;
    ASSERT_TRUE(tip.GetToolInfo(info, parent, 7));
    EXPECT_EQ(10, info.rect.right);
    EXPECT_STREQ(L"Corner", info.lpszText);
    tip.DelTool(parent, 7);
    EXPECT_EQ(1, tip.GetToolCount());
    EXPECT_FALSE(tip.AddTool(NULL, L"nobody"));
    EXPECT_FALSE(tip.AddTool(parent, L"area without id", &area, 0));
    tip.SetMaxTipWidth(300);
    EXPECT_EQ(300, tip.GetMaxTipWidth());
    tip.SetDelayTime(TTDT_AUTOPOP, 4000);
    EXPECT_EQ(4000, tip.GetDelayTime(TTDT_AUTOPOP));
    tip.Activate(FALSE);
    MSG message = {};
    message.hwnd = button.m_hWnd;
    message.message = WM_MOUSEMOVE;
    tip.RelayEvent(&message);
    tip.Pop();
}
