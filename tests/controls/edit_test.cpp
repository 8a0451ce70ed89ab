// CZoEdit: the border band painted from the skin's own cells in each state (read-only never
// focused), the theme colours through the reflected WM_CTLCOLOR, the thin frame made whatever the
// template said, and zero-size edits.
#include "controls_test_support.h"

#include "controls/ZoEdit.h"
#include "core/ZoThemeManager.h"

using namespace ZoControls;
using controltest::Slot;

namespace {

const int kCell = 3; // BMP_ZO_EDIT is 36 x 27 cut into 12 x 9

class EditTest : public controltest::ReflectingParentTest
{
protected:
    void Create(DWORD style, const CRect& rect = CRect(10, 10, 130, 34))
    {
        ASSERT_TRUE(edit_.Create(WS_CHILD | WS_VISIBLE | style, rect, host(), 7));
        edit_.SetWindowText(L"MMMM");
    }

    // Slot 0 under the eight pieces of `state`, as wide and high as the edit's window.
    zotest::Dib ExpectedBorder(int state) const
    {
        CRect window;
        edit_.GetWindowRect(&window);
        const int w = window.Width(), h = window.Height(), c = kCell;
        zotest::Dib expected(w, h, Slot(0));
        const struct
        {
            int x, y, cx, cy, column, row;
        } pieces[] = {
            {0, 0, c, c, 0, 0},         {w - c, 0, c, c, 2, 0},         {0, h - c, c, c, 0, 2},
            {w - c, h - c, c, c, 2, 2}, {c, 0, w - 2 * c, c, 1, 0},     {c, h - c, w - 2 * c, c, 1, 2},
            {0, c, c, h - 2 * c, 0, 1}, {w - c, c, c, h - 2 * c, 2, 1},
        };
        for (const auto& p : pieces) {
            const zotest::Dib cell =
                controltest::StretchedCell(skin_, 12, 9, state * 3 + p.column, p.row, p.cx, p.cy, Slot(0));
            ::BitBlt(expected.dc(), p.x, p.y, p.cx, p.cy, cell.dc(), 0, 0, SRCCOPY);
        }
        return expected;
    }

    // The frame band (window less client) as shown on screen matches `state`'s pieces.
    testing::AssertionResult BorderShows(int state, zotest::RenderPath path = zotest::RenderPath::Screen)
    {
        const zotest::Dib shown = zotest::RenderWindow(edit_.GetSafeHwnd(), path);
        const zotest::Dib expected = ExpectedBorder(state);
        CRect window, client;
        edit_.GetWindowRect(&window);
        edit_.GetClientRect(&client);
        edit_.ClientToScreen(&client);
        client.OffsetRect(-window.left, -window.top);
        const int w = window.Width(), h = window.Height();
        if (client.left < 1 || client.top < 1)
            return testing::AssertionFailure() << "no frame";
        const CRect bands[] = {CRect(0, 0, w, client.top), CRect(0, client.bottom, w, h),
                               CRect(0, client.top, client.left, client.bottom),
                               CRect(client.right, client.top, w, client.bottom)};
        for (const CRect& band : bands) {
            testing::AssertionResult result = controltest::AreaMatches(shown, band, expected.Crop(band));
            if (!result)
                return result;
        }
        return testing::AssertionSuccess();
    }

    CZoEdit edit_;
    HBITMAP skin_ = Strip(L"BMP_ZO_EDIT");
};

} // namespace

TEST_F(EditTest, BorderFollowsEnabledFocusAndReadOnly)
{
    Create(0);
    EXPECT_TRUE(BorderShows(BS_ZO_NORMAL));
    // Printing the frame shows the same band.
    EXPECT_TRUE(BorderShows(BS_ZO_NORMAL, zotest::RenderPath::PrintClient));
    edit_.SetFocus();
    EXPECT_TRUE(BorderShows(BS_ZO_HOT));
    edit_.EnableWindow(FALSE);
    EXPECT_TRUE(BorderShows(BS_ZO_DISABLED));
}

TEST_F(EditTest, ReadOnlyEditNeverShowsTheFocusedBorder)
{
    Create(ES_READONLY);
    edit_.SetFocus();
    ASSERT_EQ(::GetFocus(), edit_.GetSafeHwnd());
    EXPECT_TRUE(BorderShows(BS_ZO_NORMAL));
}

TEST_F(EditTest, TextAndBackgroundColoursPerState)
{
    struct Row
    {
        DWORD style;
        bool enabled;
        int back, text;
    };
    const Row rows[] = {{0, true, 28, 31}, {0, false, 30, 32}, {ES_READONLY, true, 28, 31}};
    for (const Row& row : rows) {
        Create(row.style);
        edit_.EnableWindow(row.enabled);
        // The answer to the colour question the edit asks its parent.
        zotest::Dib scratch(4, 4);
        const HBRUSH brush = reinterpret_cast<HBRUSH>(host()->SendMessage(
            WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(scratch.dc()), reinterpret_cast<LPARAM>(edit_.GetSafeHwnd())));
        LOGBRUSH logBrush = {};
        ASSERT_TRUE(::GetObjectW(brush, sizeof(logBrush), &logBrush));
        EXPECT_EQ(logBrush.lbColor, Slot(row.back));
        EXPECT_EQ(::GetTextColor(scratch.dc()), Slot(row.text));
        EXPECT_EQ(::GetBkColor(scratch.dc()), Slot(row.back));

        // What the platform paints with it. The text sits at the left; the right end is
        // background only. The platform draws disabled text in its own grey, whatever the
        // answer said (Windows and Wine alike), so the text colour is checked enabled only.
        const zotest::Dib dib = zotest::RenderClient(edit_.GetSafeHwnd());
        CRect client;
        edit_.GetClientRect(&client);
        ZOTEST_EXPECT_FILL(dib, CRect(client.right - 10, 0, client.right, client.bottom), Slot(row.back));
        if (row.enabled) {
            EXPECT_GT(controltest::CountPixels(dib, Slot(row.text)), 10) << row.style;
        }
        edit_.DestroyWindow();
    }
}

TEST_F(EditTest, AttachingThinsTheFrameAndSetsTheThemeFont)
{
    HWND native = ::CreateWindowExW(WS_EX_CLIENTEDGE | WS_EX_DLGMODALFRAME, L"EDIT", L"x", WS_CHILD | WS_VISIBLE,
                                    10, 10, 120, 24, parent(), reinterpret_cast<HMENU>(8), nullptr, nullptr);
    ASSERT_TRUE(edit_.SubclassDlgItem(8, host()));
    EXPECT_EQ(edit_.GetSafeHwnd(), native);
    EXPECT_TRUE(edit_.GetStyle() & WS_BORDER);
    EXPECT_EQ(edit_.GetExStyle() & (WS_EX_CLIENTEDGE | WS_EX_DLGMODALFRAME | WS_EX_STATICEDGE), DWORD(WS_EX_STATICEDGE));
    CRect window, client;
    edit_.GetWindowRect(&window);
    edit_.GetClientRect(&client);
    EXPECT_LE(window.Width() - client.Width(), 2 * kCell);
    EXPECT_EQ(reinterpret_cast<HFONT>(edit_.SendMessage(WM_GETFONT)),
              static_cast<HFONT>(CZoThemeManager::GetInstance()->GetCacheGDIFont(ZoThemeFont_1, ZoMonitorSize_Normal)->GetSafeHandle()));
    EXPECT_TRUE(BorderShows(BS_ZO_NORMAL));
}

TEST_F(EditTest, ZeroSizeEditPaintsWithoutHarm)
{
    Create(0, CRect(10, 10, 10, 10));
    edit_.SendMessage(WM_NCPAINT, 1);
    const zotest::Dib dib = zotest::RenderClient(edit_.GetSafeHwnd());
    EXPECT_TRUE(dib.empty() || dib.width() <= 1);
    EXPECT_TRUE(::IsWindow(edit_.GetSafeHwnd()));
}
