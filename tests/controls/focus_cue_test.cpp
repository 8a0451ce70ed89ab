// Focus cues of the slider, the range slider and the tab control: the platform's dotted focus
// rectangle where the keyboard acts, shown at once when the control takes the focus, hidden
// while the window's UI state hides focus cues and when the focus is elsewhere.
#include "controls_test_support.h"

#include <afxcmn.h>

#include <algorithm>
#include <memory>

#include "controls/ZoRangeSliderCtrl.h"
#include "controls/ZoSliderCtrl.h"
#include "controls/ZoTabCtrl.h"

using namespace ZoControls;
using controltest::ControlTest;

namespace {

const CRect kPlace(10, 10, 250, 70);
const UINT kId = 7;

CRect ClientOf(HWND hWnd)
{
    CRect client;
    ::GetClientRect(hWnd, &client);
    return client;
}

// A slider (the range slider with a selection), or tabs with the second one selected.
template <class TSlider, DWORD style>
std::unique_ptr<CWnd> MakeSlider(CWnd* parent)
{
    std::unique_ptr<TSlider> slider(new TSlider);
    slider->Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | TBS_BOTH | style, kPlace, parent, kId);
    slider->SetRange(0, 100, TRUE);
    slider->SetPos(30);
    slider->SetSelection(20, 70);
    return std::unique_ptr<CWnd>(slider.release());
}

// Channel and thumb with two pixels of room.
CRect SliderCue(HWND hWnd)
{
    CRect channel, thumb;
    ::SendMessageW(hWnd, TBM_GETCHANNELRECT, 0, reinterpret_cast<LPARAM>(&channel));
    ::SendMessageW(hWnd, TBM_GETTHUMBRECT, 0, reinterpret_cast<LPARAM>(&thumb));
    CRect cue(std::min(channel.left, thumb.left) - 2, std::min(channel.top, thumb.top) - 2,
              std::max(channel.right, thumb.right) + 2, std::max(channel.bottom, thumb.bottom) + 2);
    cue.IntersectRect(&cue, ClientOf(hWnd));
    return cue;
}

std::unique_ptr<CWnd> MakeTabs(CWnd* parent)
{
    std::unique_ptr<CZoTabCtrl> tabs(new CZoTabCtrl);
    tabs->Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(10, 10, 250, 150), parent, kId);
    tabs->InsertItem(0, L"One");
    tabs->InsertItem(1, L"Two");
    tabs->SetCurSel(1);
    return std::unique_ptr<CWnd>(tabs.release());
}

// Inside the selected tab, which reaches one pixel further down to the page: two pixels in.
CRect TabCue(HWND hWnd)
{
    CRect item;
    ::SendMessageW(hWnd, TCM_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&item));
    return CRect(item.left + 2, item.top + 2, item.right - 2, item.bottom + 1 - 2);
}

struct FocusCase
{
    const char* name;
    std::unique_ptr<CWnd> (*make)(CWnd* parent);
    CRect (*cue)(HWND hWnd);
};

const FocusCase kCases[] = {
    {"slider", MakeSlider<CZoSliderCtrl, 0>, SliderCue},
    {"range slider", MakeSlider<CZoRangeSliderCtrl, TBS_ENABLESELRANGE>, ClientOf},
    {"tab control", MakeTabs, TabCue},
};

// `unfocused` with the platform's focus rectangle over `cue`, drawn in a fresh DC's colours.
zotest::Dib WithFocusRect(const zotest::Dib& unfocused, const CRect& cue)
{
    zotest::Dib expected = unfocused.Crop(CRect(0, 0, unfocused.width(), unfocused.height()));
    ::DrawFocusRect(expected.dc(), &cue);
    return expected;
}

// What the window shows on the screen now, without asking it to paint.
zotest::Dib OnScreen(HWND hWnd)
{
    HDC dc = ::GetDC(hWnd);
    zotest::Dib shown = zotest::Dib::FromDC(dc, ClientOf(hWnd));
    ::ReleaseDC(hWnd, dc);
    return shown;
}

void SetHideFocus(HWND hWnd, bool hide)
{
    ::SendMessageW(hWnd, WM_UPDATEUISTATE, MAKEWPARAM(hide ? UIS_SET : UIS_CLEAR, UISF_HIDEFOCUS), 0);
}

using FocusCueTest = ControlTest;

} // namespace

TEST_F(FocusCueTest, FocusRectangleShowsOnlyWithTheFocusAndVisibleCues)
{
    for (const FocusCase& row : kCases)
    {
        SCOPED_TRACE(row.name);
        ::SetForegroundWindow(parent());
        ::SetFocus(parent());
        std::unique_ptr<CWnd> control = row.make(parentWnd());
        const HWND hWnd = control->GetSafeHwnd();
        ASSERT_TRUE(hWnd);
        SetHideFocus(hWnd, false);
        const zotest::Dib unfocused = zotest::RenderClient(hWnd);
        const CRect cue = row.cue(hWnd);
        const zotest::Dib focused = WithFocusRect(unfocused, cue);
        // On the screen only the cue's surroundings are compared: a tab control's page shows
        // the parent there, which rendering the control alone leaves unpainted.
        CRect around = cue;
        around.InflateRect(1, 1);
        around.IntersectRect(&around, ClientOf(hWnd));

        control->SetFocus();
        ASSERT_EQ(::GetFocus(), hWnd);
        EXPECT_TRUE(controltest::AreaMatches(OnScreen(hWnd), around, focused.Crop(around)))
            << "repainted as the focus arrives";
        EXPECT_EQ(controltest::Differences(zotest::RenderClient(hWnd), focused), 0);

        SetHideFocus(hWnd, true);
        // Wine 8 keeps no UI state (WM_QUERYUISTATE answers 0 whatever was set), so the hidden
        // cue is checked only where the platform keeps the state.
        if (::DefWindowProcW(hWnd, WM_QUERYUISTATE, 0, 0) & UISF_HIDEFOCUS)
        {
            EXPECT_TRUE(controltest::AreaMatches(OnScreen(hWnd), around, unfocused.Crop(around)))
                << "repainted as cues are hidden";
            SetHideFocus(hWnd, false);
            EXPECT_TRUE(controltest::AreaMatches(OnScreen(hWnd), around, focused.Crop(around)))
                << "repainted as cues show again";
        }

        ::SetFocus(parent());
        EXPECT_EQ(controltest::Differences(zotest::RenderClient(hWnd), unfocused), 0);
        control->DestroyWindow();
    }
}
