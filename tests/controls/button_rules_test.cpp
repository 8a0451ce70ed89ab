// CZoButton's painting rules as numbers: states, strip cells, text flags, image and text
// placement, group-box geometry, kinds and skin names.
#include <afxwin.h>

#include <gtest/gtest.h>

#include "controls/ZoButton.h"

using namespace ZoControls;

namespace {

TEST(ButtonRules, PushStateFromEnableStateAndHover)
{
    EXPECT_EQ(ZoPushButtonState(false, BST_PUSHED | BST_CHECKED, true), BS_ZO_DISABLED);
    EXPECT_EQ(ZoPushButtonState(true, BST_PUSHED, false), BS_ZO_PRESSED);
    EXPECT_EQ(ZoPushButtonState(true, BST_CHECKED, true), BS_ZO_PRESSED);
    EXPECT_EQ(ZoPushButtonState(true, BST_INDETERMINATE, true), BS_ZO_HOT);
    EXPECT_EQ(ZoPushButtonState(true, BST_FOCUS, true), BS_ZO_HOT);
    EXPECT_EQ(ZoPushButtonState(true, BST_FOCUS, false), BS_ZO_NORMAL);
}

TEST(ButtonRules, CheckStripCells)
{
    EXPECT_EQ(ZoCheckCellRow(true, BST_UNCHECKED), 0);
    EXPECT_EQ(ZoCheckCellRow(true, BST_CHECKED | BST_FOCUS), 1);
    EXPECT_EQ(ZoCheckCellRow(true, BST_INDETERMINATE), 2);
    EXPECT_EQ(ZoCheckCellRow(false, BST_UNCHECKED), 3);
    EXPECT_EQ(ZoCheckCellRow(false, BST_CHECKED), 4);
    EXPECT_EQ(ZoCheckCellColumn(false, BST_PUSHED, true), 3);
    EXPECT_EQ(ZoCheckCellColumn(true, BST_PUSHED, true), 2);
    // A checked box is not "pressed": the column follows only the mouse.
    EXPECT_EQ(ZoCheckCellColumn(true, BST_CHECKED, true), 1);
    EXPECT_EQ(ZoCheckCellColumn(true, BST_CHECKED, false), 0);
}

TEST(ButtonRules, CaptionTextFlags)
{
    EXPECT_EQ(ZoCaptionTextFormat(0, false), static_cast<UINT>(DT_SINGLELINE | DT_LEFT | DT_VCENTER));
    EXPECT_EQ(ZoCaptionTextFormat(0, true), static_cast<UINT>(DT_SINGLELINE | DT_CENTER | DT_VCENTER));
    EXPECT_EQ(ZoCaptionTextFormat(BS_CENTER, false), static_cast<UINT>(DT_SINGLELINE | DT_CENTER | DT_VCENTER));
    EXPECT_EQ(ZoCaptionTextFormat(BS_LEFT, true), static_cast<UINT>(DT_SINGLELINE | DT_LEFT | DT_VCENTER));
    EXPECT_EQ(ZoCaptionTextFormat(BS_RIGHT | BS_TOP, true), static_cast<UINT>(DT_SINGLELINE | DT_RIGHT | DT_TOP));
    EXPECT_EQ(ZoCaptionTextFormat(BS_MULTILINE | BS_VCENTER, false), static_cast<UINT>(DT_LEFT | DT_VCENTER));
    EXPECT_EQ(ZoCaptionTextFormat(BS_BOTTOM, false), static_cast<UINT>(DT_SINGLELINE | DT_LEFT | DT_BOTTOM));
}

TEST(ButtonRules, MeasuredTextPlacement)
{
    const CRect rect(10, 0, 110, 30);
    const CSize size(20, 10);
    EXPECT_EQ(ZoPlaceMeasuredText(rect, size, DT_LEFT | DT_TOP), CRect(10, 0, 30, 10));
    EXPECT_EQ(ZoPlaceMeasuredText(rect, size, DT_CENTER | DT_VCENTER), CRect(50, 10, 70, 20));
    EXPECT_EQ(ZoPlaceMeasuredText(rect, size, DT_RIGHT | DT_BOTTOM), CRect(90, 20, 110, 30));
}

TEST(ButtonRules, ImageCells)
{
    EXPECT_EQ(ZoImageCellColumn(-1, 2), 2);
    EXPECT_EQ(ZoImageCellColumn(5, 2), 5);
    EXPECT_EQ(ZoImageCellRow(-1, BS_ZO_DISABLED, false), 4);
    EXPECT_EQ(ZoImageCellRow(-1, BS_ZO_DISABLED, true), 3);
    EXPECT_EQ(ZoImageCellRow(3, BS_ZO_NORMAL, false), 4);
    EXPECT_EQ(ZoImageCellRow(-1, BS_ZO_PRESSED, false), 2);
    EXPECT_EQ(ZoImageCellRow(1, BS_ZO_DISABLED, false), 1);
}


TEST(ButtonRules, ImageLeftOfText)
{
    const CRect t(0, 0, 100, 40);
    // d = (40 - 14 - 10) / 3 = 5: the rectangle becomes 5..35.
    const ZoImageTextLayout l = ZoLayoutImageAndText(t, CSize(16, 10), true, 30, 14, 0, false, 4, false);
    EXPECT_EQ(l.image, CPoint(0, 15));
    EXPECT_EQ(l.text, CRect(20, 5, 100, 35));
    const ZoImageTextLayout pressed = ZoLayoutImageAndText(t, CSize(16, 10), true, 30, 14, 0, false, 4, true);
    EXPECT_EQ(pressed.image, CPoint(1, 16));
    EXPECT_EQ(pressed.text, CRect(21, 6, 101, 36));
}

TEST(ButtonRules, ImageAndTextCentredAsABlock)
{
    const CRect t(0, 0, 100, 40);
    // e = max(1, trunc(30 * 0.05 + 0.5)) = 2; x = (100 - 30 - 2 - 16) / 2 = 26.
    const ZoImageTextLayout l = ZoLayoutImageAndText(t, CSize(16, 10), true, 30, 14, 0, true, 0, false);
    EXPECT_EQ(l.image, CPoint(26, 15));
    EXPECT_EQ(l.text.left, 44);
    // Short text: the gap is at least one pixel.
    const ZoImageTextLayout s = ZoLayoutImageAndText(t, CSize(16, 10), true, 4, 14, 0, true, 0, false);
    EXPECT_EQ(s.image.x, (100 - 4 - 1 - 16) / 2);
    EXPECT_EQ(s.text.left, s.image.x + 16 + 1);
}

TEST(ButtonRules, ImageBelowOrAboveText)
{
    const CRect t(0, 0, 100, 40);
    const ZoImageTextLayout below = ZoLayoutImageAndText(t, CSize(16, 10), true, 30, 14, BS_TOP, false, 2, false);
    EXPECT_EQ(below.image, CPoint(42, 25));
    EXPECT_EQ(below.text, CRect(0, 5, 100, 23));
    // BS_VCENTER has the top bit too.
    EXPECT_EQ(ZoLayoutImageAndText(t, CSize(16, 10), true, 30, 14, BS_VCENTER, false, 2, false).image,
              CPoint(42, 25));
    const ZoImageTextLayout above = ZoLayoutImageAndText(t, CSize(16, 10), true, 30, 14, BS_BOTTOM, false, 2, false);
    EXPECT_EQ(above.image, CPoint(42, 5));
    EXPECT_EQ(above.text, CRect(0, 17, 100, 35));
}

TEST(ButtonRules, GroupBoxGeometry)
{
    EXPECT_EQ(ZoGroupBoxFrame(CRect(0, 0, 99, 59), 13), CRect(0, 8, 99, 59));
    EXPECT_EQ(ZoGroupBoxIndent(1.0f), 7);
    EXPECT_EQ(ZoGroupBoxIndent(1.2f), 8);
    EXPECT_EQ(ZoGroupBoxIndent(1.6f), 11);
    EXPECT_EQ(ZoGroupBoxCaptionAlign(0), static_cast<UINT>(TA_LEFT));
    EXPECT_EQ(ZoGroupBoxCaptionAlign(BS_LEFT), static_cast<UINT>(TA_LEFT));
    EXPECT_EQ(ZoGroupBoxCaptionAlign(BS_RIGHT), static_cast<UINT>(TA_RIGHT));
    EXPECT_EQ(ZoGroupBoxCaptionAlign(BS_CENTER), static_cast<UINT>(TA_CENTER));
}

// A one-pixel pen line sets every pixel from its start up to, not including, its end.
TEST(ButtonRules, BorderLinePixels)
{
    const struct
    {
        POINT from, to;
        CRect pixels;
    } rows[] = {
        {{2, 3}, {2, 9}, CRect(2, 3, 3, 9)},  // down
        {{2, 9}, {2, 3}, CRect(2, 4, 3, 10)}, // up
        {{1, 5}, {7, 5}, CRect(1, 5, 7, 6)},  // right
        {{7, 5}, {1, 5}, CRect(2, 5, 8, 6)},  // left
    };
    for (const auto& row : rows)
        EXPECT_EQ(ZoAxisLinePixels(row.from, row.to), row.pixels) << row.from.x << "," << row.from.y;
    EXPECT_TRUE(ZoAxisLinePixels(POINT{4, 4}, POINT{4, 4}).IsRectEmpty());
}

} // namespace
