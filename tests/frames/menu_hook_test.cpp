// The thread hook: reference counting, subclassing real popup-menu windows opened with
// TrackPopupMenu (closed from a timer), painting their frame, and no resource growth.
#include "menu_test_support.h"

#include <zotest/renderer.h>
#include <zotest/resource_counter.h>
#include <zotest/test_window.h>

#include "ZoLibrary.h"

using namespace ZoControls;
using namespace ZoControls::ZoMenu_Internals;
using namespace menutest;

namespace {

// What the timer saw while the popup was open.
struct PopupProbe
{
    HWND popup = nullptr;
    bool subclassed = false;
    bool ownerDrawn = false;
    COLORREF printed[3] = {CLR_INVALID, CLR_INVALID, CLR_INVALID};
    COLORREF screen[3] = {CLR_INVALID, CLR_INVALID, CLR_INVALID};
    // Top edge at x = 30 and x = 80 when an open menu-bar item is made to sit right above it.
    COLORREF joined[2] = {CLR_INVALID, CLR_INVALID};
    int ticks = 0;
};

PopupProbe g_probe;
HMENU g_trackedMenu = nullptr;
const UINT_PTR kProbeTimer = 77;
const int kMaxTicks = 40;

// The frame's diagonal pixels (0,0), (1,1), (2,2) of a picture of the whole popup window.
void ReadDiagonal(const zotest::Dib& dib, COLORREF (&out)[3])
{
    for (int i = 0; i < 3; ++i)
        out[i] = dib.Pixel(i, i);
}

void CALLBACK ProbeTimer(HWND window, UINT, UINT_PTR id, DWORD)
{
    const HWND popup = zotest::FindOpenPopupMenu();
    if (!popup && ++g_probe.ticks < kMaxTicks)
        return;
    ::KillTimer(window, id);
    if (popup) {
        g_probe.popup = popup;
        g_probe.subclassed = ::GetPropW(popup, L"XPWndProp_OldProc") != nullptr;
        g_probe.ownerDrawn = CMenuXP::IsOwnerDrawn(g_trackedMenu);
        CRect rect;
        ::GetWindowRect(popup, &rect);
        rect.OffsetRect(-rect.left, -rect.top);
        zotest::Dib printed(rect.Width(), rect.Height());
        ::SendMessageW(popup, WM_PRINT, reinterpret_cast<WPARAM>(printed.dc()), PRF_NONCLIENT | PRF_CLIENT);
        ReadDiagonal(printed, g_probe.printed);
        HDC dc = ::GetWindowDC(popup);
        ReadDiagonal(zotest::Dib::FromDC(dc, rect), g_probe.screen);
        ::ReleaseDC(popup, dc);

        CRect screen;
        ::GetWindowRect(popup, &screen);
        RECT bar = {screen.left + 20, screen.top - 19, screen.left + 80, screen.top + 1};
        CMenuXP::SetMRUMenuBarItem(bar);
        zotest::Dib hanging(rect.Width(), rect.Height());
        ::SendMessageW(popup, WM_PRINT, reinterpret_cast<WPARAM>(hanging.dc()), PRF_NONCLIENT | PRF_CLIENT);
        g_probe.joined[0] = hanging.Pixel(30, 0);
        g_probe.joined[1] = hanging.Pixel(80, 0);
        RECT none = {0, 0, 0, 0};
        CMenuXP::SetMRUMenuBarItem(none);
    }
    ::EndMenu();
}

class MenuHookTest : public MenuHostTest
{
protected:
    void SetUp() override
    {
        MenuHostTest::SetUp();
        const ItemSpec items[] = {
            {L"&Open\tCtrl+O", 101, MF_STRING},
            {nullptr, 0, MF_SEPARATOR},
            {L"E&xit", 102, MF_STRING},
        };
        menu = BuildPopup(items);
    }

    // Opens `popup` at the host and lets the probe timer look at it and close it.
    void Track(HMENU popup)
    {
        g_probe = PopupProbe();
        g_trackedMenu = popup;
        host.SetForegroundWindow();
        host.SetTimer(kProbeTimer, 30, &ProbeTimer);
        ::TrackPopupMenu(popup, TPM_LEFTALIGN | TPM_RETURNCMD, 150, 150, 0, host.m_hWnd, nullptr);
        host.KillTimer(kProbeTimer);
    }

};

// The hook installed for the life of a scope.
class ScopedHook
{
public:
    ScopedHook() { CMenuXP::InitializeHook(); }
    ~ScopedHook() { CMenuXP::UninitializeHook(); }
};

} // namespace

TEST(MenuHookCount, InstalledOnceAndRemovedWithTheLastRelease)
{
    ASSERT_FALSE(CMenuXP::IsHookInstalled());
    CMenuXP::InitializeHook();
    EXPECT_TRUE(CMenuXP::IsHookInstalled());
    CMenuXP::InitializeHook();
    CMenuXP::UninitializeHook();
    EXPECT_TRUE(CMenuXP::IsHookInstalled());
    CMenuXP::UninitializeHook();
    EXPECT_FALSE(CMenuXP::IsHookInstalled());
    // One release too many is harmless and does not leave the count negative.
    CMenuXP::UninitializeHook();
    CMenuXP::InitializeHook();
    EXPECT_TRUE(CMenuXP::IsHookInstalled());
    CMenuXP::UninitializeHook();
    EXPECT_FALSE(CMenuXP::IsHookInstalled());
}

TEST(MenuHookCount, LibraryStartAndEndInstallAndRemoveIt)
{
    ASSERT_FALSE(CMenuXP::IsHookInstalled());
    InitializeZoCtrl();
    EXPECT_TRUE(CMenuXP::IsHookInstalled());
    InitializeZoCtrl();
    UninitializeZoCtrl();
    EXPECT_TRUE(CMenuXP::IsHookInstalled());
    UninitializeZoCtrl();
    EXPECT_FALSE(CMenuXP::IsHookInstalled());
}

TEST_F(MenuHookTest, PopupWindowIsSubclassedAndItsFrameThemed)
{
    ScopedHook hook;
    const int drawn = CMenuXP::GetDrawCount();
    Track(menu);
    ASSERT_NE(g_probe.popup, nullptr) << "no popup menu window appeared";
    EXPECT_TRUE(g_probe.subclassed);
    EXPECT_TRUE(g_probe.ownerDrawn);
    EXPECT_GT(CMenuXP::GetDrawCount(), drawn);
    // Outer border in slot 69, two rings in the menu background inside it.
    EXPECT_EQ(g_probe.printed[0], Slot(69));
    EXPECT_EQ(g_probe.printed[1], Slot(68));
    EXPECT_EQ(g_probe.printed[2], Slot(68));
    // Wine's popup menus have no non-client area and draw their border in WM_PAINT over the
    // whole window, so only Windows shows the frame on screen as WM_NCPAINT painted it.
    if (!zotest::RunningUnderWine()) {
        EXPECT_EQ(g_probe.screen[0], Slot(69));
        EXPECT_EQ(g_probe.screen[1], Slot(68));
        EXPECT_EQ(g_probe.screen[2], Slot(68));
    }
    // Hanging from an open menu-bar item, the top edge under it takes the item's fill colour.
    EXPECT_EQ(g_probe.joined[0], OpenBarFillColor());
    EXPECT_EQ(g_probe.joined[1], Slot(69));
    // Once closed, the popup window is gone and so is its subclassing.
    EXPECT_FALSE(::IsWindow(g_probe.popup) && ::GetPropW(g_probe.popup, L"XPWndProp_OldProc"));
}

TEST_F(MenuHookTest, RepeatedOpeningLeavesNothingBehind)
{
    ScopedHook hook;
    ZOTEST_EXPECT_NO_LEAKS(4, [&] { Track(menu); });
}
