// CZoProgressCtrl: fill arithmetic, tiled cells, the percentage, disabled and vertical looks.
#include "controls_test_support.h"

#include <afxcmn.h>

#include "controls/ZoProgressCtrl.h"

using namespace ZoControls;
using controltest::ControlTest;

TEST(ProgressMath, FractionAndEdges)
{
    EXPECT_FLOAT_EQ(ZoProgressFraction(10, 110, 60), 0.5f);
    EXPECT_FLOAT_EQ(ZoProgressFraction(5, 5, 5), 0.0f);
    EXPECT_EQ(ZoProgressPercent(7, 7, 7), 0); // empty range: no division
    EXPECT_EQ(ZoProgressHorizontalEdge(0, 120, 0.5f), 60);
    EXPECT_EQ(ZoProgressHorizontalEdge(10, 130, 2.0f), 130);  // clamped to the right
    EXPECT_EQ(ZoProgressHorizontalEdge(10, 130, -1.0f), 10);  // and to the left
    EXPECT_EQ(ZoProgressVerticalEdge(0, 100, 0.25f), 75);
    EXPECT_EQ(ZoProgressVerticalEdge(0, 100, 3.0f), 0);
}

TEST(ProgressMath, CellCounts)
{
    EXPECT_EQ(ZoProgressHorizontalCells(0, 60, 12), 5);
    EXPECT_EQ(ZoProgressHorizontalCells(0, 61, 12), 6); // the last cell may pass the edge
    EXPECT_EQ(ZoProgressHorizontalCells(0, 0, 12), 0);
    EXPECT_EQ(ZoProgressHorizontalCells(0, 60, 0), 0);  // no skin: no endless loop
    EXPECT_EQ(ZoProgressVerticalCells(100, 50, 12), 5); // 88, 76, 64, 52, 40
    EXPECT_EQ(ZoProgressVerticalCells(100, 100, 12), 0);
    EXPECT_EQ(ZoProgressVerticalCells(100, 40, 12), 5); // the fifth starts exactly at the edge
}

namespace {

class ProgressTest : public ControlTest
{
protected:
    void Create(DWORD style, const CRect& rect, int lo, int hi, int pos)
    {
        ASSERT_TRUE(bar_.Create(WS_CHILD | WS_VISIBLE | style, rect, parentWnd(), 5));
        bar_.SetRange32(lo, hi);
        bar_.SetPos(pos);
    }

    HBITMAP horizontal_ = Strip(L"BMP_ZO_PROGRHOR");
    HBITMAP vertical_ = Strip(L"BMP_ZO_PROGRVER");
    CZoProgressCtrl bar_;
};

} // namespace

TEST_F(ProgressTest, HalfFilledBarTilesCellsAndPrintsSixtyPercent)
{
    // 120 x 18: the cells (12 x 18) keep their natural size.
    Create(0, CRect(0, 0, 120, 18), 10, 110, 60);
    const zotest::Dib dib = zotest::RenderClient(bar_.GetSafeHwnd());
    const RECT cell = zotest::CellRect(horizontal_, 4, 1, 0, 0);
    ZOTEST_EXPECT_CELL(dib, CPoint(0, 0), horizontal_, cell, controltest::kMagenta);
    ZOTEST_EXPECT_CELL(dib, CPoint(12, 0), horizontal_, cell, controltest::kMagenta);
    // The flat part, away from the centred text.
    ZOTEST_EXPECT_FILL(dib, CRect(96, 0, 120, 18), controltest::Slot(66));
}

TEST_F(ProgressTest, PercentTextSaysSixtyNotFiftyInTheFontGiven)
{
    // Render the text alone on a flat bar the width of the client and compare with "60%" drawn
    // the same way: over the background colour, in the default font of a memory DC, or in the
    // font the host gave with WM_SETFONT.
    const HFONT large = ::CreateFontW(-22, 0, 0, 0, FW_BOLD, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, L"Tahoma");
    for (HFONT font : {HFONT(NULL), large}) {
        Create(0, CRect(0, 0, 120, 30), 10, 110, 60);
        if (font)
            bar_.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
        EXPECT_EQ(reinterpret_cast<HFONT>(bar_.SendMessage(WM_GETFONT)), font);
        const zotest::Dib dib = zotest::RenderClient(bar_.GetSafeHwnd());
        zotest::Dib expected(120, 30, controltest::Slot(66));
        if (font)
            ::SelectObject(expected.dc(), font);
        ::SetBkMode(expected.dc(), TRANSPARENT);
        ::SetTextColor(expected.dc(), controltest::Slot(67));
        RECT all = {0, 0, 120, 30};
        ::DrawTextW(expected.dc(), L"60%", -1, &all, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
        const CRect flat(60, 0, 120, 30);
        EXPECT_TRUE(controltest::AreaMatches(dib, flat, expected.Crop(flat))) << (font ? "given font" : "default");
        ::SelectObject(expected.dc(), ::GetStockObject(SYSTEM_FONT));
        bar_.DestroyWindow();
    }
    ::DeleteObject(large);
}

TEST_F(ProgressTest, EmptyRangePaintsNothing)
{
    Create(0, CRect(0, 0, 120, 18), 40, 40, 40);
    const zotest::Dib dib = zotest::RenderClient(bar_.GetSafeHwnd());
    // Whatever the fresh memory surface held stays, uniformly.
    ZOTEST_EXPECT_FILL(dib, CRect(0, 0, 120, 18), dib.Pixel(0, 0));
    EXPECT_NE(dib.Pixel(0, 0), controltest::Slot(66));
}

// No off-screen surface can be made this large: the paint draws nothing instead of tiling
// thousands of cells into nowhere.
TEST_F(ProgressTest, EnormousBarPaintsNothing)
{
    Create(0, CRect(0, 0, 30000, 30000), 0, 100, 100);
    zotest::Dib dib(120, 18);
    bar_.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dib.dc()), PRF_CLIENT);
    ZOTEST_EXPECT_FILL(dib, CRect(0, 0, 120, 18), zotest::kUnpainted);
}

TEST_F(ProgressTest, DisabledBarTilesTheDisabledColumn)
{
    Create(0, CRect(0, 0, 120, 18), 0, 100, 100);
    bar_.EnableWindow(FALSE);
    const zotest::Dib dib = zotest::RenderClient(bar_.GetSafeHwnd());
    ZOTEST_EXPECT_CELL(dib, CPoint(0, 0), horizontal_, zotest::CellRect(horizontal_, 4, 1, 3, 0),
                       controltest::kMagenta);
    ZOTEST_EXPECT_CELL(dib, CPoint(108, 0), horizontal_, zotest::CellRect(horizontal_, 4, 1, 3, 0),
                       controltest::kMagenta);
}

TEST_F(ProgressTest, VerticalBarFillsFromTheBottomAndLeavesTheTopRow)
{
    // 18 x 120 with 18 x 12 cells: a quarter filled puts the edge at 90; cells at 108, 96 and
    // 84, the last one partly covered by the flat part drawn after it.
    Create(PBS_VERTICAL, CRect(0, 0, 18, 120), 0, 100, 25);
    const zotest::Dib dib = zotest::RenderClient(bar_.GetSafeHwnd());
    const RECT cell = zotest::CellRect(vertical_, 4, 1, 0, 0);
    ZOTEST_EXPECT_CELL(dib, CPoint(0, 108), vertical_, cell, controltest::kMagenta);
    ZOTEST_EXPECT_CELL(dib, CPoint(0, 96), vertical_, cell, controltest::kMagenta);
    ZOTEST_EXPECT_FILL(dib, CRect(0, 1, 18, 50), controltest::Slot(66));
    ZOTEST_EXPECT_FILL(dib, CRect(0, 80, 18, 90), controltest::Slot(66));
    // The top row keeps the memory surface's first contents.
    EXPECT_NE(dib.Pixel(5, 0), controltest::Slot(66));
}
