// CZoStatic, CZoStaticBig, CZoStaticHuge: what each style paints, repainting on text and
// enable changes, borders, and both ways of attaching the control.
#include "controls_test_support.h"

#include "controls/ZoStatic.h"

using namespace ZoControls;
using controltest::Slot;

namespace {

const RECT kStaticRect = {10, 10, 130, 40};

class StaticTest : public controltest::ControlTest
{
protected:
    // Creates `stat` in the parent with the given style and text.
    void Make(CZoStatic& stat, const wchar_t* text, DWORD style, DWORD exStyle = 0, const RECT& rect = kStaticRect)
    {
        ASSERT_TRUE(stat.CreateEx(exStyle, L"STATIC", text, WS_CHILD | WS_VISIBLE | style, rect, parentWnd(), 100));
    }
};

// --- Rules as numbers --------------------------------------------------------------------------

TEST(StaticRules, PaintKindByStyleType)
{
    const struct
    {
        std::initializer_list<DWORD> styles;
        E_ZoStaticPaintKind kind;
    } rows[] = {
        {{SS_LEFT, SS_CENTER | SS_NOTIFY, SS_RIGHT, SS_SIMPLE, SS_LEFTNOWORDWRAP}, ZoStaticPaint_Text},
        {{SS_BITMAP | SS_CENTERIMAGE}, ZoStaticPaint_Picture},
        {{SS_ICON}, ZoStaticPaint_Icon},
        {{SS_BLACKFRAME, SS_GRAYFRAME, SS_WHITEFRAME}, ZoStaticPaint_Frame},
        {{SS_ETCHEDHORZ, SS_OWNERDRAW, SS_BLACKRECT}, ZoStaticPaint_System},
    };
    for (const auto& row : rows)
        for (DWORD style : row.styles)
            EXPECT_EQ(ZoStaticPaintKindOf(style), row.kind) << style;
}

TEST(StaticRules, TextFormatByType)
{
    const UINT wrap = DT_WORDBREAK | DT_EXPANDTABS | DT_MODIFYSTRING;
    EXPECT_EQ(ZoStaticTextFormat(SS_LEFT), wrap);
    EXPECT_EQ(ZoStaticTextFormat(SS_CENTER), wrap | DT_CENTER);
    EXPECT_EQ(ZoStaticTextFormat(SS_RIGHT), wrap | DT_RIGHT);
    EXPECT_EQ(ZoStaticTextFormat(SS_SIMPLE), static_cast<UINT>(DT_SINGLELINE));
    EXPECT_EQ(ZoStaticTextFormat(SS_LEFTNOWORDWRAP), static_cast<UINT>(DT_EXPANDTABS));
    EXPECT_EQ(ZoStaticTextFormat(SS_BITMAP), 0u);
}

TEST(StaticRules, TextFormatModifiers)
{
    EXPECT_EQ(ZoStaticTextFormat(SS_SIMPLE | SS_CENTERIMAGE), static_cast<UINT>(DT_SINGLELINE | DT_VCENTER));
    EXPECT_EQ(ZoStaticTextFormat(SS_SIMPLE | SS_NOPREFIX), static_cast<UINT>(DT_SINGLELINE | DT_NOPREFIX));
    EXPECT_EQ(ZoStaticTextFormat(SS_SIMPLE | SS_ENDELLIPSIS),
              static_cast<UINT>(DT_SINGLELINE | DT_WORD_ELLIPSIS | DT_END_ELLIPSIS));
    EXPECT_EQ(ZoStaticTextFormat(SS_SIMPLE | SS_PATHELLIPSIS),
              static_cast<UINT>(DT_SINGLELINE | DT_WORD_ELLIPSIS | DT_PATH_ELLIPSIS));
    // Both bits: every ellipsis flag at once.
    EXPECT_EQ(ZoStaticTextFormat(SS_SIMPLE | SS_WORDELLIPSIS),
              static_cast<UINT>(DT_SINGLELINE | DT_WORD_ELLIPSIS | DT_END_ELLIPSIS | DT_PATH_ELLIPSIS));
}

TEST(StaticRules, CenteredTextRectRoundsTowardZero)
{
    EXPECT_EQ(ZoStaticCenteredTextRect(CRect(0, 0, 50, 31), 10), CRect(0, 10, 50, 31));
    EXPECT_EQ(ZoStaticCenteredTextRect(CRect(5, 4, 50, 14), 20), CRect(5, -1, 50, 14));
}

TEST(StaticRules, PictureTarget)
{
    const CRect client(0, 0, 40, 30);
    EXPECT_EQ(ZoStaticPictureTarget(client, CSize(10, 6), 0), client);
    EXPECT_EQ(ZoStaticPictureTarget(client, CSize(10, 6), SS_REALSIZEIMAGE), CRect(0, 0, 10, 6));
    EXPECT_EQ(ZoStaticPictureTarget(client, CSize(10, 6), SS_REALSIZEIMAGE | SS_CENTERIMAGE), CRect(15, 12, 25, 18));
    EXPECT_EQ(ZoStaticPictureTarget(client, CSize(10, 6), SS_CENTERIMAGE), client);
}

TEST(StaticRules, FrameShiftAndBorderSlot)
{
    EXPECT_EQ(ZoStaticFrameTopShift(-13), 6);
    EXPECT_EQ(ZoStaticFrameTopShift(0), 0);
    EXPECT_EQ(ZoStaticFrameTopShift(12), -6);
    EXPECT_EQ(ZoStaticBorderSlot(WS_BORDER, WS_EX_CLIENTEDGE), 28); // the edge wins over the border
    EXPECT_EQ(ZoStaticBorderSlot(0, 0), -1);
}

// --- Text statics --------------------------------------------------------------------------------

TEST_F(StaticTest, EmptyTextPaintsOnlyTheBackground)
{
    CZoStatic stat;
    Make(stat, L"", SS_LEFT);
    ZOTEST_EXPECT_FILL(zotest::RenderClient(stat.m_hWnd), (RECT{0, 0, 120, 30}), Slot(48));
    // The background setter takes effect at the next paint.
    stat.SetBackGroundColor(RGB(10, 100, 30));
    ZOTEST_EXPECT_FILL(zotest::RenderClient(stat.m_hWnd), (RECT{0, 0, 120, 30}), RGB(10, 100, 30));
}


TEST_F(StaticTest, EnabledTextUsesItsSlotAndDisabledTextIsGrey)
{
    CZoStatic stat;
    Make(stat, L"MMMM HHHH", SS_LEFT);
    stat.SetTextTheme(static_cast<E_ZoThemeColors>(0));
    stat.SetBackGroundColor(RGB(255, 255, 255));
    zotest::Dib enabled = zotest::RenderClient(stat.m_hWnd);
    EXPECT_GT(controltest::CountPixels(enabled, Slot(0)), 0);
    EXPECT_EQ(controltest::CountPixels(enabled, RGB(0x7E, 0x7E, 0x7E)), 0);

    stat.EnableWindow(FALSE);
    zotest::Dib disabled = zotest::RenderClient(stat.m_hWnd);
    EXPECT_GT(controltest::CountPixels(disabled, RGB(0x7E, 0x7E, 0x7E)), 0);
    EXPECT_EQ(controltest::CountPixels(disabled, Slot(0)), 0);
}


// --- Pictures, icons, frames --------------------------------------------------------------------

TEST_F(StaticTest, RealSizePictureCentredOverSlotZero)
{
    CZoStatic stat;
    Make(stat, L"", SS_BITMAP | SS_REALSIZEIMAGE | SS_CENTERIMAGE, 0, RECT{10, 10, 50, 40});
    HBITMAP bitmap = controltest::MakeBitmap(10, 6, RGB(200, 0, 0), controltest::kMagenta);
    stat.SetBitmap(bitmap);
    stat.MoveWindow(10, 10, 40, 30);
    const zotest::Dib dib = zotest::RenderClient(stat.m_hWnd);
    ZOTEST_EXPECT_PIXEL(dib, 0, 0, Slot(0));
    ZOTEST_EXPECT_FILL(dib, (RECT{16, 12, 25, 18}), RGB(200, 0, 0));
    // The magenta corner is transparent.
    ZOTEST_EXPECT_PIXEL(dib, 15, 12, Slot(0));
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 0, 40, 12}), Slot(0));
    stat.DestroyWindow();
    DeleteObject(bitmap);
}

TEST_F(StaticTest, FrameWithoutFontOutlinesTheClient)
{
    CZoStatic stat;
    Make(stat, L"", SS_BLACKFRAME, 0, RECT{10, 10, 70, 50});
    const zotest::Dib dib = zotest::RenderClient(stat.m_hWnd);
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 0, 60, 1}), Slot(49));
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 39, 60, 40}), Slot(49));
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 0, 1, 40}), Slot(49));
    ZOTEST_EXPECT_FILL(dib, (RECT{59, 0, 60, 40}), Slot(49));
    // The inside is not painted.
    ZOTEST_EXPECT_FILL(dib, (RECT{1, 1, 59, 39}), zotest::kUnpainted);
}

// --- Non-client border --------------------------------------------------------------------------

TEST_F(StaticTest, BorderByExtendedStyle)
{
    CZoStatic edged, bordered;
    Make(edged, L"", SS_LEFT, WS_EX_STATICEDGE, RECT{10, 10, 70, 50});
    Make(bordered, L"", SS_LEFT | WS_BORDER, 0, RECT{100, 10, 160, 50});
    edged.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
    bordered.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
    const zotest::Dib edge = zotest::RenderWindow(edged.m_hWnd, zotest::RenderPath::Screen);
    const zotest::Dib border = zotest::RenderWindow(bordered.m_hWnd, zotest::RenderPath::Screen);
    ZOTEST_EXPECT_FILL(edge, (RECT{0, 0, 60, 1}), Slot(28));
    ZOTEST_EXPECT_FILL(edge, (RECT{0, 0, 1, 40}), Slot(28));
    ZOTEST_EXPECT_FILL(border, (RECT{0, 39, 60, 40}), Slot(49));
    ZOTEST_EXPECT_FILL(border, (RECT{59, 0, 60, 40}), Slot(49));
}

// --- Attaching, classes ------------------------------------------------------------------------

TEST_F(StaticTest, SubclassedStaticPaintsTheSkin)
{
    HWND raw = MakeNative(L"STATIC", SS_LEFT, RECT{10, 10, 60, 30});
    CZoStatic stat;
    ASSERT_TRUE(stat.SubclassDlgItem(kNativeId, parentWnd()));
    const zotest::Dib dib = zotest::RenderClient(raw);
    ZOTEST_EXPECT_FILL(dib, (RECT{0, 0, 50, 20}), Slot(48));
    stat.DestroyWindow();
}

TEST_F(StaticTest, StylesItDoesNotKnowAreLeftToTheSystem)
{
    CZoStatic stat;
    Make(stat, L"", SS_BLACKRECT, 0, RECT{10, 10, 40, 30});
    const zotest::Dib dib = zotest::RenderClient(stat.m_hWnd);
    // The standard black rectangle, not the skin's background.
    EXPECT_EQ(controltest::CountPixels(dib, Slot(48)), 0);
}

} // namespace
