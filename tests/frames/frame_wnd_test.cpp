// The skinned frame window: border per size class, client area, drag area, the refused menu,
// the painted border, resized registered windows, no resources left behind.
#include <afxwin.h>

#include <commctrl.h>

#include <gtest/gtest.h>
#include <zotest/zotest.h>

#include "ZoLibrary.h"
#include "core/ZoThemeManager.h"
#include "frames/ZoFrameWnd.h"

using namespace ZoControls;

namespace {

const CRect kPlace(60, 50, 380, 270);

class TestFrame : public CZoFrameWnd
{
public:
    explicit TestFrame(bool borderless = false) : CZoFrameWnd(borderless) {}
    using IZoUIBase::RegisterChildWindow;

protected:
    // A pane, as a view would be, that the frame lays out over its client area.
    BOOL OnCreateClient(LPCREATESTRUCT, CCreateContext*) override
    {
        return ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 0, 0, 10, 10, m_hWnd,
                                 reinterpret_cast<HMENU>(static_cast<UINT_PTR>(AFX_IDW_PANE_FIRST)), nullptr,
                                 nullptr) != nullptr;
    }
};

LRESULT CALLBACK AnswerSizeClass(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR size)
{
    if (message != ZoMsg_GetCurrentMonitorSize)
        return ::DefSubclassProc(window, message, wParam, lParam);
    *reinterpret_cast<int*>(lParam) = static_cast<int>(size);
    return 0;
}

class FrameTest : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(InitializeZoCtrl()); }
    void TearDown() override
    {
        frame_.Reset();
        owner_.Reset();
        UninitializeZoCtrl();
    }

    // `frame` (it deletes itself with its window) owned by a window of size class `size`, or
    // unowned for -1.
    template <class T = TestFrame>
    T* Make(T* frame, DWORD style, int size = -1, HMENU menu = nullptr)
    {
        if (size >= 0) {
            owner_.Reset(zotest::CreateSolidWindow(RECT{0, 0, 50, 50}, RGB(0, 0, 0)));
            ::SetWindowSubclass(owner_, AnswerSizeClass, 1, size);
        }
        const BOOL created = frame->CreateEx(0, nullptr, L"Frame", style, kPlace.left, kPlace.top, kPlace.Width(),
                                             kPlace.Height(), size >= 0 ? owner_.get() : nullptr, menu, nullptr);
        frame_.Reset(created ? frame->m_hWnd : nullptr);
        return created ? frame : nullptr;
    }

    zotest::ScopedWindow owner_;
    zotest::ScopedWindow frame_;
};

// The non-client thickness of each side: left, top, right, bottom.
CRect NonClient(HWND window)
{
    CRect outer, inner;
    ::GetWindowRect(window, &outer);
    ::GetClientRect(window, &inner);
    ::MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&inner), 2);
    return CRect(inner.left - outer.left, inner.top - outer.top, outer.right - inner.right, outer.bottom - inner.bottom);
}

} // namespace

TEST(FrameGeometry, BorderClientRectHitCodesAndCells)
{
    EXPECT_EQ(ZoFrameBorderSize(1.2f, false), 6);
    EXPECT_EQ(ZoFrameBorderSize(1.6f, true), 0);
    // A window smaller than its border: an empty client area at the border's inner edge.
    EXPECT_EQ(CRect(ZoFrameClientRect(RECT{0, 0, 6, 4}, 5, 5)), CRect(5, 5, 5, 5));
    EXPECT_EQ(ZoFrameHitTest(HTNOWHERE, false, 101, 100, 5), HTNOWHERE); // no skin: the platform's
    EXPECT_EQ(ZoFrameHitTest(HTLEFT, true, 101, 100, 5), HTLEFT);       // the platform's stands

    ZoFrameCell cells[kZoFrameCellCount];
    ZoFrameBorderCells(100, 60, 9, cells);
    // The long side pieces (cells 5 and 6) reach one pixel into the bottom row at y = 51.
    EXPECT_EQ(cells[5].y + cells[5].h, 52);
    EXPECT_EQ(cells[6].x, 91);
    EXPECT_EQ(cells[8].w, 82);
    ZoFrameBorderCells(10, 10, 9, cells);
    for (const ZoFrameCell& c : cells)
        EXPECT_TRUE(c.w >= 0 && c.h >= 0);
}

TEST_F(FrameTest, NonClientAreaIsTheBorderOfTheSizeClassAndNoneWhenFactoryMade)
{
    const int borders[] = {5, 6, 8};
    for (int size = 0; size < 3; ++size) {
        const int b = borders[size];
        CZoFrameWnd* frame = Make(new TestFrame, WS_POPUP | WS_CAPTION | WS_THICKFRAME, size);
        ASSERT_TRUE(frame);
        EXPECT_EQ(NonClient(frame->m_hWnd), CRect(b, b, b, b)) << "size class " << size;
        EXPECT_EQ(frame->GetStyle() & WS_BORDER, 0u);
    }
    CObject* object = RUNTIME_CLASS(CZoFrameWnd)->CreateObject();
    ASSERT_TRUE(Make(static_cast<CZoFrameWnd*>(object), WS_OVERLAPPEDWINDOW));
    EXPECT_EQ(NonClient(frame_), CRect(0, 0, 0, 0));
}

TEST_F(FrameTest, ClientAreaAfterNcCalcSizeHoldsThePaneAndNoMenu)
{
    HMENU menu = ::CreateMenu();
    ::AppendMenuW(menu, MF_STRING, 1, L"File");
    TestFrame* frame = Make(new TestFrame, WS_OVERLAPPEDWINDOW, -1, menu);
    ASSERT_TRUE(frame);
    EXPECT_FALSE(::IsMenu(menu));
    EXPECT_EQ(::GetMenu(frame_), nullptr);

    RECT proposed = {100, 200, 400, 300};
    frame->SendMessage(WM_NCCALCSIZE, FALSE, reinterpret_cast<LPARAM>(&proposed));
    EXPECT_EQ(CRect(proposed), CRect(105, 205, 395, 295));
    // The pane was laid out again once the skin's border replaced the platform's frame.
    CRect client, pane;
    frame->GetClientRect(&client);
    ::GetWindowRect(::GetDlgItem(frame_, AFX_IDW_PANE_FIRST), &pane);
    frame->ScreenToClient(&pane);
    EXPECT_EQ(pane, client);
    EXPECT_EQ(client.Size(), CSize(kPlace.Width() - 10, kPlace.Height() - 10));
}

TEST_F(FrameTest, TopBorderDragsAndItsDoubleClickDoesNotMaximize)
{
    CZoFrameWnd* frame = Make(new TestFrame, WS_POPUP | WS_SYSMENU | WS_MAXIMIZEBOX | WS_VISIBLE);
    ASSERT_TRUE(frame);
    const int x = kPlace.CenterPoint().x;
    auto hit = [frame](int px, int py) { return frame->SendMessage(WM_NCHITTEST, 0, MAKELPARAM(px, py)); };
    EXPECT_EQ(hit(x, kPlace.top), HTCAPTION);
    EXPECT_EQ(hit(x, kPlace.top + 4), HTCAPTION);
    EXPECT_EQ(hit(x, kPlace.top + 5), HTCLIENT);
    EXPECT_EQ(hit(x, kPlace.bottom - 1), HTNOWHERE);

    frame->SendMessage(WM_NCLBUTTONDBLCLK, HTCAPTION, MAKELPARAM(x, kPlace.top + 1));
    zotest::PumpUntilIdle();
    EXPECT_FALSE(frame->IsZoomed());
}

TEST_F(FrameTest, BorderShowsTheSkinsCellsOnScreenAndInWmPrint)
{
    ASSERT_TRUE(Make(new TestFrame, WS_POPUP | WS_VISIBLE));
    HBITMAP hSkin = static_cast<HBITMAP>(::LoadImageW(::GetModuleHandleW(L"ZoCtrl.dll"), L"BMP_ZO_SKIN_FRAMEWNDBORDER",
                                                      IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
    const zotest::Dib skin = zotest::Dib::FromBitmap(hSkin);
    ::DeleteObject(hSkin);
    ASSERT_EQ(skin.width(), 27); // 3 x 4 cells of 9
    const zotest::Dib dib = zotest::RenderWindow(frame_, zotest::RenderPath::Screen);
    const int w = kPlace.Width(), h = kPlace.Height(), sw = 27, sh = 36, mid = 13;
    // The outer 5 pixels of each cell show: corners pixel for pixel, the stretched pieces
    // against the middle of their cell (the skin's pieces repeat along their length).
    for (int d = 0; d < 5; ++d) {
        for (int e = 0; e < 5; ++e) {
            ZOTEST_EXPECT_PIXEL(dib, d, e, skin.Pixel(d, e));
            ZOTEST_EXPECT_PIXEL(dib, w - 1 - d, h - 1 - e, skin.Pixel(sw - 1 - d, sh - 1 - e));
        }
        ZOTEST_EXPECT_PIXEL(dib, w / 2, d, skin.Pixel(mid, d));
        ZOTEST_EXPECT_PIXEL(dib, w / 2, h - 1 - d, skin.Pixel(mid, sh - 1 - d));
        ZOTEST_EXPECT_PIXEL(dib, w - 1 - d, 13, skin.Pixel(sw - 1 - d, 13)); // upper side piece
        ZOTEST_EXPECT_PIXEL(dib, d, h / 2, skin.Pixel(d, 22));                 // long side piece
    }
    const zotest::Dib printed = zotest::RenderWindow(frame_, zotest::RenderPath::Print);
    int different = 0;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            different += (x < 5 || y < 5 || x >= w - 5 || y >= h - 5) && printed.Pixel(x, y) != dib.Pixel(x, y);
    EXPECT_EQ(different, 0);
}

TEST_F(FrameTest, RegisteredWindowsFollowTheFrameAndItsMenusAreOwnerDrawn)
{
    TestFrame* frame = Make(new TestFrame, WS_POPUP | WS_THICKFRAME, 1);
    ASSERT_TRUE(frame);
    CWnd* child = CWnd::FromHandle(zotest::CreateSolidWindow(RECT{0, 0, 5, 5}, RGB(1, 2, 3), frame_));
    ASSERT_TRUE(frame->RegisterChildWindow(child, CRect(10, 10, 110, 60), true));
    frame->SetWindowPos(nullptr, 0, 0, 400, 300, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    CRect placed;
    child->GetWindowRect(&placed);
    frame->ScreenToClient(&placed);
    EXPECT_EQ(placed, CRect(12, 12, 132, 72)); // size class 1: zoom 1.2

    HMENU popup = ::CreatePopupMenu();
    ::AppendMenuW(popup, MF_STRING, 1, L"&Open");
    frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup), 0);
    MENUITEMINFOW info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE;
    ::GetMenuItemInfoW(popup, 0, TRUE, &info);
    EXPECT_TRUE(info.fType & MFT_OWNERDRAW);
    ::DestroyMenu(popup);
}

// The frames are children of one window: a top-level frame per cycle would cost the platform a
// window of its own each time and prove nothing more about the frame's resources.
TEST_F(FrameTest, NoGrowthOverCreatePaintDestroyCycles)
{
    owner_.Reset(zotest::CreateSolidWindow(RECT{0, 0, 400, 300}, RGB(0, 0, 0)));
    auto cycle = [this]() {
        TestFrame* frame = new TestFrame; // deletes itself with its window
        if (!frame->CreateEx(0, nullptr, L"Frame", WS_CHILD, 0, 0, 320, 220, owner_, nullptr, nullptr)) {
            ADD_FAILURE() << "not created";
            return;
        }
        ::SendMessageW(frame->m_hWnd, WM_NCPAINT, 1, 0);
        ::DestroyWindow(frame->m_hWnd);
    };
    ZOTEST_EXPECT_NO_LEAKS(1000, cycle, zotest::count_gdi | zotest::count_user);
}
