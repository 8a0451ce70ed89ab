// CDC: drawing lands on the DC with the right objects, temporary objects, clipping, saved
// states, text dispatch and the window DCs.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <zotest/renderer.h>
#include "dib_dc.h"
#include <zotest/resource_counter.h>
#include <zotest/test_window.h>

namespace {

const COLORREF kWhite = RGB(255, 255, 255);
const COLORREF kBlack = RGB(0, 0, 0);
const COLORREF kRed = RGB(255, 0, 0);
const COLORREF kGreen = RGB(0, 255, 0);
const COLORREF kBlue = RGB(0, 0, 255);

// ---- Selecting objects ------------------------------------------------------------------

TEST(DCSelect, RegionSelectionClipsAndReturnsRegionType)
{
    zotest::Dib dib(10, 10, kWhite);
    DibDC dc(dib);
    CRgn region;
    region.CreateRectRgn(2, 2, 5, 5);
    EXPECT_EQ(SIMPLEREGION, dc.SelectObject(&region));
    dc.FillSolidRect(0, 0, 10, 10, kBlue);
    ZOTEST_EXPECT_FILL(dib, CRect(2, 2, 5, 5), kBlue);
    ZOTEST_EXPECT_PIXEL(dib, 1, 1, kWhite);
    ZOTEST_EXPECT_PIXEL(dib, 5, 5, kWhite);
}

TEST(DCSelect, NullObjectSelectsNothing)
{
    zotest::Dib dib(4, 4);
    DibDC dc(dib);
    EXPECT_EQ(nullptr, dc.SelectObject((CPen*)NULL));
    EXPECT_EQ(::GetStockObject(BLACK_PEN), ::GetCurrentObject(dib.dc(), OBJ_PEN));
}

// ---- Handles and temporary objects ------------------------------------------------------

TEST(DCHandle, UnlockingTempMapsDeletesTemporaryDCObjects)
{
    HDC hDC = ::CreateCompatibleDC(NULL);
    ZOTEST_EXPECT_NO_LEAKS(10, [hDC] {
        AfxLockTempMaps();
        CDC::FromHandle(hDC)->SetBkColor(kRed);
        AfxUnlockTempMaps();
    }, zotest::count_heap | zotest::count_gdi);
    EXPECT_EQ(kRed, ::GetBkColor(hDC));
    ::DeleteDC(hDC);
}

TEST(DCHandle, EmptyDCIsSafe)
{
    CDC dc;
    EXPECT_EQ(nullptr, dc.GetSafeHdc());
    EXPECT_FALSE(dc.DeleteDC());
    EXPECT_EQ(nullptr, dc.Detach());
    CDC* none = NULL;
    EXPECT_EQ(nullptr, none->GetSafeHdc());
    CRect rect(0, 0, 5, 5);
    EXPECT_EQ(0, dc.DrawText(_T("x"), 1, NULL, 0));
    EXPECT_FALSE(dc.Polygon(NULL, 3));
    EXPECT_EQ(nullptr, dc.GetWindow());
}

// ---- Filling and frames -----------------------------------------------------------------

TEST(DCFill, FillSolidRectFillsExactlyAndLeavesBackgroundColour)
{
    zotest::Dib dib(10, 10, kWhite);
    DibDC dc(dib);
    dc.SetBkColor(kGreen);
    dc.FillSolidRect(CRect(2, 3, 6, 7), kRed);
    ZOTEST_EXPECT_FILL(dib, CRect(2, 3, 6, 7), kRed);
    ZOTEST_EXPECT_BOUNDS(dib, kWhite, CRect(2, 3, 6, 7));
    EXPECT_EQ(kRed, dc.GetBkColor()) << "MFC documents that the background colour becomes clr";
    dc.FillSolidRect(0, 0, 2, 1, kBlue);
    ZOTEST_EXPECT_FILL(dib, CRect(0, 0, 2, 1), kBlue);
}

// ---- Clipping ---------------------------------------------------------------------------

TEST(DCClip, IntersectAndExcludeLimitDrawing)
{
    zotest::Dib dib(10, 10, kWhite);
    DibDC dc(dib);
    EXPECT_EQ(SIMPLEREGION, dc.IntersectClipRect(CRect(2, 2, 8, 8)));
    EXPECT_EQ(COMPLEXREGION, dc.ExcludeClipRect(4, 4, 6, 6));
    CRect box;
    EXPECT_EQ(COMPLEXREGION, dc.GetClipBox(&box));
    EXPECT_EQ(CRect(2, 2, 8, 8), box);
    EXPECT_TRUE(dc.PtVisible(3, 3));
    EXPECT_FALSE(dc.PtVisible(CPoint(5, 5)));
    EXPECT_FALSE(dc.RectVisible(CRect(0, 0, 2, 2)));
    dc.FillSolidRect(0, 0, 10, 10, kRed);
    ZOTEST_EXPECT_PIXEL(dib, 2, 2, kRed);
    ZOTEST_EXPECT_PIXEL(dib, 5, 5, kWhite);
    ZOTEST_EXPECT_PIXEL(dib, 1, 1, kWhite);
    EXPECT_NE(ERROR, dc.SelectClipRgn(NULL));
    dc.FillSolidRect(0, 0, 1, 1, kBlue);
    ZOTEST_EXPECT_PIXEL(dib, 0, 0, kBlue);
}

// ---- State and mapping ------------------------------------------------------------------

TEST(DCState, SaveAndRestore)
{
    zotest::Dib dib(4, 4);
    DibDC dc(dib);
    dc.SetTextColor(kRed);
    int saved = dc.SaveDC();
    EXPECT_NE(0, saved);
    dc.SetTextColor(kBlue);
    EXPECT_TRUE(dc.RestoreDC(saved));
    EXPECT_EQ(kRed, dc.GetTextColor());
    CDC empty;
    EXPECT_FALSE(empty.RestoreDC(-1));
}

// ---- Text -------------------------------------------------------------------------------

// A DC that counts its TextOut calls, as library code derives DCs and overrides the
// text operations.
class CountingDC : public CDC
{
public:
    int calls = 0;
    BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount) override
    {
        ++calls;
        return CDC::TextOut(x, y, lpszString, nCount);
    }
    using CDC::TextOut;
};

TEST(DCText, StringOverloadsDispatchToVirtualOperations)
{
    zotest::Dib dib(40, 20, kWhite);
    CountingDC dc;
    dc.Attach(dib.dc());
    CDC* base = &dc;
    EXPECT_TRUE(base->TextOut(0, 0, CString(_T("ab"))));
    EXPECT_EQ(1, dc.calls);
    dc.Detach();
}

// ---- Window DCs -------------------------------------------------------------------------

// A CWnd that wraps a test window only for the length of one test.
class BorrowedWnd : public CWnd
{
public:
    explicit BorrowedWnd(HWND hWnd) { m_hWnd = hWnd; }
    ~BorrowedWnd() { m_hWnd = NULL; }
};

TEST(WindowDC, PaintDCValidatesTheUpdateRegion)
{
    zotest::ScopedWindow window(zotest::CreateSolidWindow(CRect(0, 0, 40, 30), kRed));
    BorrowedWnd wnd(window);
    ::InvalidateRect(window, NULL, FALSE);
    {
        CPaintDC dc(&wnd);
        EXPECT_NE(nullptr, dc.m_hDC);
        EXPECT_EQ(dc.m_hDC, dc.m_ps.hdc);
        EXPECT_EQ(CRect(0, 0, 40, 30), CRect(dc.m_ps.rcPaint));
    }
    RECT update;
    EXPECT_FALSE(::GetUpdateRect(window, &update, FALSE));
}

} // namespace
