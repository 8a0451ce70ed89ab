// Sorting: the four comparisons as tables, prepared keys agreeing with them, and the list's
// header-click sorting as a user and a host see it.
#include "list_test_support.h"

#include <zotest/zotest.h>

#include "lists/ZoListSort.h"

using namespace ZoControls;
using listtest::ListTest;
using listtest::Row;

namespace {

int Sign(int value) { return value < 0 ? -1 : (value > 0 ? 1 : 0); }

struct Comparison
{
    int method;
    const wchar_t* text1;
    const wchar_t* text2;
    int sign;
};

const Comparison kComparisons[] = {
    {ZoSortMethod_TextSensitive, L"abc", L"abd", -1},
    {ZoSortMethod_TextSensitive, L"B", L"a", -1}, // ordinal: capitals first
    {ZoSortMethod_TextSensitive, L"a", L"a", 0},
    {7, L"B", L"a", -1},                           // unknown methods compare as case-sensitive text
    {ZoSortMethod_TextInsensitive, L"B", L"a", 1},
    {ZoSortMethod_TextInsensitive, L"ABC", L"abc", 0},
    {ZoSortMethod_Numeric, L"10", L"9", 1},
    {ZoSortMethod_Numeric, L"9", L"10", -1},
    {ZoSortMethod_Numeric, L"abc", L"0", 0}, // not a number: 0
    {ZoSortMethod_Numeric, L"-1.5", L"abc", -1},
    {ZoSortMethod_Numeric, L"2.50", L"2.5", 0},
    {ZoSortMethod_DateTime, L"2024-01-02", L"2024-01-03", -1},
    {ZoSortMethod_DateTime, L"2024-01-03 10:00:00", L"2024-01-03 09:00:00", 1},
    {ZoSortMethod_DateTime, L"2024-01-03", L"2024-01-03", 0},
    {ZoSortMethod_DateTime, L"garbage", L"2024-01-03", -1}, // unreadable dates come first
    {ZoSortMethod_DateTime, L"2024-01-03", L"", 1},
    {ZoSortMethod_DateTime, L"", L"garbage", 0},
};

TEST(SortComparisons, AsWrittenForEachMethod)
{
    for (const Comparison& c : kComparisons)
    {
        EXPECT_EQ(Sign(ZoCompareCellTexts(c.method, c.text1, c.text2)), c.sign)
            << c.method << " '" << c.text1 << "' '" << c.text2 << "'";
        // A prepared key compares exactly as the text it was made from.
        EXPECT_EQ(Sign(ZoCompareSortKeys(c.method, ZoMakeSortKey(c.method, c.text1), ZoMakeSortKey(c.method, c.text2))),
                  c.sign);
    }
}

TEST(SortComparisons, DatesWithinHalfASecondAreEqualOnlyFromAbove)
{
    const double halfSecond = 0.5 / 86400.0;
    const ZoSortDate base = {true, 45000.0};
    const ZoSortDate slightlyLater = {true, 45000.0 + halfSecond * 0.9};
    const ZoSortDate later = {true, 45000.0 + halfSecond * 1.1};
    EXPECT_EQ(ZoCompareDates(slightlyLater, base), 0);
    EXPECT_EQ(ZoCompareDates(later, base), 1);
    // An earlier first date is always before, however close.
    EXPECT_EQ(ZoCompareDates(base, slightlyLater), -1);
}

TEST(SortComparisons, NumbersAsWrittenIncludingNaN)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(ZoCompareNumbers(1.0, 2.0), -1);
    EXPECT_EQ(ZoCompareNumbers(2.0, 2.0), 0);
    EXPECT_EQ(ZoCompareNumbers(nan, 2.0), 1);
    EXPECT_EQ(ZoCompareNumbers(2.0, nan), 1);
    EXPECT_EQ(ZoDirected(-3, true), -3);
    EXPECT_EQ(ZoDirected(-3, false), 3);
}

TEST(SortComparisons, RanksShareEqualKeysWhereTheOrderIsConsistent)
{
    const struct
    {
        int method;
        std::vector<const wchar_t*> texts;
        bool ranked;
        std::vector<int> ranks;
    } cases[] = {
        {ZoSortMethod_TextSensitive, {L"b", L"B", L"a", L"b"}, true, {2, 0, 1, 2}},
        {ZoSortMethod_TextInsensitive, {L"b", L"B", L"a", L"b"}, true, {1, 1, 0, 1}},
        {ZoSortMethod_Numeric, {L"10", L"abc", L"9", L"0", L"-1"}, true, {3, 1, 2, 1, 0}},
        {ZoSortMethod_Numeric, {}, true, {}},
        {ZoSortMethod_DateTime, {L"2024-01-02", L"garbage", L"2024-01-01", L""}, true, {2, 0, 1, 0}},
    };
    for (const auto& c : cases)
    {
        std::vector<ZoSortKey> keys;
        for (const wchar_t* text : c.texts)
            keys.push_back(ZoMakeSortKey(c.method, text));
        std::vector<int> ranks = {42};
        const bool ranked = ZoRankSortKeys(c.method, keys, ranks);
        EXPECT_EQ(ranked, c.ranked) << c.method;
        EXPECT_EQ(ranks, c.ranks) << c.method;
    }
    // A runtime whose _wtof reads "nan" makes a number that is not ordered; dates a quarter of a
    // second apart are equal one way round only. No ranks for either.
    std::vector<ZoSortKey> keys = {ZoMakeSortKey(ZoSortMethod_Numeric, L"1"), ZoMakeSortKey(ZoSortMethod_Numeric, L"2")};
    keys[1].number = std::numeric_limits<double>::quiet_NaN();
    std::vector<int> ranks;
    EXPECT_FALSE(ZoRankSortKeys(ZoSortMethod_Numeric, keys, ranks));
    keys = {ZoMakeSortKey(ZoSortMethod_DateTime, L"2024-01-01 10:00:00"), ZoMakeSortKey(ZoSortMethod_DateTime, L"x")};
    keys[1].date = {true, keys[0].date.value + 0.25 / 86400.0};
    EXPECT_FALSE(ZoRankSortKeys(ZoSortMethod_DateTime, keys, ranks));
}

// --- The list ----------------------------------------------------------------------------------

const std::vector<Row> kRows = {
    {{L"pear", L"10", L"2024-03-01"}},
    {{L"Apple", L"9", L"garbage"}},
    {{L"fig", L"abc", L"2023-12-31"}},
    {{L"banana", L"-2", L"2024-01-15"}},
};

using ListSortTest = ListTest;

TEST_F(ListSortTest, FirstClickSortsDescendingThenTheDirectionTurns)
{
    CZoListCtrl& list = MakeList(0, kRows);
    list.SetColumnSortMethod(1, CZoListCtrl::SCM_Numeric);
    int column = -1;
    bool ascending = true;
    EXPECT_FALSE(list.GetSortOption(column, ascending));
    EXPECT_EQ(column, -1);

    ClickHeader(1);
    ASSERT_TRUE(list.GetSortOption(column, ascending));
    EXPECT_EQ(column, 1);
    EXPECT_FALSE(ascending);
    EXPECT_EQ(Column(1), (std::vector<CString>{L"10", L"9", L"abc", L"-2"}));
    EXPECT_EQ(spy_.Count(LVN_ITEMCHANGED), 0u); // a header sort moves no item the parent must hear of

    ClickHeader(1);
    ASSERT_TRUE(list.GetSortOption(column, ascending));
    EXPECT_TRUE(ascending);
    EXPECT_EQ(Column(1), (std::vector<CString>{L"-2", L"abc", L"9", L"10"}));

    // Another column starts descending again, and only it carries the arrow.
    ClickHeader(0);
    ASSERT_TRUE(list.GetSortOption(column, ascending));
    EXPECT_EQ(column, 0);
    EXPECT_FALSE(ascending);
    EXPECT_EQ(Column(0), (std::vector<CString>{L"pear", L"fig", L"banana", L"Apple"}));
    HDITEMW item = {};
    item.mask = HDI_FORMAT;
    ::SendMessageW(header(), HDM_GETITEMW, 1, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(item.fmt & (HDF_SORTUP | HDF_SORTDOWN), 0);
}

TEST_F(ListSortTest, EachMethodOrdersAscending)
{
    const struct
    {
        int column;
        CZoListCtrl::E_SortColumnMethod method;
        std::vector<CString> order;
    } cases[] = {
        {0, CZoListCtrl::SCM_TextInsensitive, {L"Apple", L"banana", L"fig", L"pear"}},
        {2, CZoListCtrl::SCM_DateTime, {L"garbage", L"2023-12-31", L"2024-01-15", L"2024-03-01"}},
        {1, CZoListCtrl::SCM_Numeric, {L"-2", L"abc", L"9", L"10"}},
    };
    CZoListCtrl& list = MakeList(0, kRows);
    for (const auto& c : cases)
    {
        list.SetColumnSortMethod(c.column, c.method);
        list.SortOnColumn(c.column, true);
        EXPECT_EQ(Column(c.column), c.order) << "method " << c.method;
    }
}

TEST_F(ListSortTest, ItemDataSurvivesTheSort)
{
    CZoListCtrl& list = MakeList(0, kRows);
    for (int i = 0; i < list.GetItemCount(); ++i)
        list.SetItemData(i, 1000 + i); // pear 1000, Apple 1001, fig 1002, banana 1003
    list.SortOnColumn(0, true);
    const DWORD_PTR expected[] = {1001, 1003, 1002, 1000};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(list.GetItemData(i), expected[i]) << i;
}

// Rows with their own item data are sorted without touching a row (item data near each other
// index a table, others are hashed); rows sharing item data take the pairwise route. All must give
// one order, ties included, in both directions.
TEST_F(ListSortTest, TiesLandAlikeWhetherOrNotItemDataTellsRowsApart)
{
    const std::vector<Row> rows = {
        {{L"a", L"2.5", L"x"}},  {{L"b", L"1", L"X"}},  {{L"c", L"2.50", L"y"}},
        {{L"d", L"abc", L"x"}},  {{L"e", L"0", L"Y"}},  {{L"f", L"1", L"x"}},
    };
    const std::vector<Row> dated = {
        {{L"a", L"", L"2024-01-02"}}, {{L"b", L"", L"garbage"}}, {{L"c", L"", L"2024-01-01 10:00:00"}},
        {{L"d", L"", L"2024-01-02"}}, {{L"e", L"", L""}},        {{L"f", L"", L"2024-01-01 10:00:01"}},
    };
    const struct
    {
        CZoListCtrl::E_SortColumnMethod method;
        int column;
        const std::vector<Row>& rows;
    } cases[] = {{CZoListCtrl::SCM_Numeric, 1, rows},
                 {CZoListCtrl::SCM_TextInsensitive, 2, rows},
                 {CZoListCtrl::SCM_TextSensitive, 2, rows},
                 {CZoListCtrl::SCM_DateTime, 2, dated}};
    const DWORD_PTR kSpreads[] = {0, 1, 0x9E3779B1}; // shared, near, far apart
    for (const auto& c : cases)
        for (const bool ascending : {true, false})
        {
            std::vector<CString> orders[3];
            for (int kind = 0; kind < 3; ++kind)
            {
                CZoListCtrl& list = MakeList(0, c.rows);
                for (int i = 0; i < list.GetItemCount(); ++i)
                    list.SetItemData(i, 0x100 + i * kSpreads[kind]);
                list.SetColumnSortMethod(c.column, c.method);
                spy_.codes.clear();
                list.SortOnColumn(c.column, ascending);
                orders[kind] = Column(0);
                if (kind > 0)
                {
                    EXPECT_EQ(spy_.Count(LVN_ITEMCHANGING), 0u);
                    EXPECT_EQ(orders[kind], orders[0]) << c.method << (ascending ? " ascending, " : " descending, ") << kind;
                }
            }
        }
}

TEST_F(ListSortTest, DisabledSortingIgnoresClicksButKeepsTheArrowForDoSortNow)
{
    CZoListCtrl& list = MakeList(0, kRows);
    list.EnableSort(false);
    ClickHeader(0);
    int column = -1;
    bool ascending = false;
    EXPECT_FALSE(list.GetSortOption(column, ascending));
    EXPECT_EQ(Column(0).front(), CString(L"pear"));

    list.SetSortOption(0, true);
    list.DoSortNow(); // sorting is off: nothing moves
    EXPECT_EQ(Column(0).front(), CString(L"pear"));
    list.EnableSort(true);
    list.DoSortNow();
    EXPECT_EQ(Column(0), (std::vector<CString>{L"Apple", L"banana", L"fig", L"pear"}));
    // A sort the host asks for is the host's business: it hears of every change.
    EXPECT_GT(spy_.Count(LVN_ITEMCHANGED), 0u);
}

TEST_F(ListSortTest, MethodsAndChildMethods)
{
    CZoListCtrl& list = MakeList();
    EXPECT_EQ(list.GetColumnSortMethod(2), CZoListCtrl::SCM_TextSensitive);
    EXPECT_EQ(list.GetColumnSortChildMethod(2), CZoListCtrl::SCM_TextSensitive);
    list.SetColumnSortMethod(1, CZoListCtrl::SCM_Numeric, CZoListCtrl::SCM_AsMethod);
    EXPECT_EQ(list.GetColumnSortChildMethod(1), CZoListCtrl::SCM_Numeric);
    list.SetColumnSortMethod(1, CZoListCtrl::SCM_DateTime, CZoListCtrl::SCM_TextInsensitive);
    EXPECT_EQ(list.GetColumnSortMethod(1), CZoListCtrl::SCM_DateTime);
    EXPECT_EQ(list.GetColumnSortChildMethod(1), CZoListCtrl::SCM_TextInsensitive);
}

TEST_F(ListSortTest, VirtualListShowsTheArrowAndLeavesTheOrderToTheHost)
{
    CZoListCtrl& list = MakeList(LVS_OWNERDATA);
    list.SetItemCountEx(1000000);
    ClickHeader(2);
    int column = -1;
    bool ascending = true;
    ASSERT_TRUE(list.GetSortOption(column, ascending));
    EXPECT_EQ(column, 2);
    EXPECT_FALSE(ascending);
    EXPECT_EQ(spy_.Count(LVN_COLUMNCLICK), 1u);
    EXPECT_EQ(list.GetItemCount(), 1000000);
}

// --- Queries -----------------------------------------------------------------------------------

TEST_F(ListSortTest, SearchStringVisitsRowsInTheAskedDirection)
{
    CZoListCtrl& list = MakeList(0, kRows);
    const struct
    {
        int start;
        const wchar_t* text;
        bool forward;
        bool caseSensitive;
        int row;
    } cases[] = {
        {0, L"apple", true, false, 1}, {0, L"apple", true, true, -1}, {2, L"ear", true, false, -1},
        {3, L"ear", false, false, 0},  {0, L"2024-01", true, true, 3}, {0, L"garb", true, true, 1},
        {4, L"pear", false, false, -1}, {-1, L"pear", true, false, -1}, {0, L"", true, true, 0},
    };
    for (const auto& c : cases)
        EXPECT_EQ(list.SearchString(c.start, c.text, c.forward, c.caseSensitive), c.row)
            << c.start << " " << c.text;
}

TEST_F(ListSortTest, ColumnsAndFocusedRow)
{
    CZoListCtrl& list = MakeList(0, kRows);
    EXPECT_EQ(list.GetColumnCount(), 3);
    EXPECT_EQ(list.GetFocusedItemIndex(), -1);
    list.SetItemState(2, LVIS_FOCUSED, LVIS_FOCUSED);
    EXPECT_EQ(list.GetFocusedItemIndex(), 2);
    list.ModifyStyle(LVS_TYPEMASK, LVS_LIST);
    EXPECT_EQ(list.GetColumnCount(), 0);
    EXPECT_EQ(list.SearchString(0, L"pear", true, false), -1);
}

} // namespace
