// The tree-list view's sort order as plain functions: the cell comparisons of the tree (its own
// date rules), the path of a node per level, and the comparison of two nodes that keeps every
// child under its parent and puts bold rows first in both directions.
// Comparisons return a negative number, 0 or a positive number; negative means that the first
// sorts before the second in ascending order.
#pragma once
#include <afxwin.h>

#include <vector>

#include "core/ZoCtrlExport.h"
#include "lists/ZoListSort.h"

namespace ZoControls {

class CZoTreeListCtrlItem;

// Days as a line: OLE dates before 1899-12-30 count their time of day forwards from the day's
// start, so a value at or below -0.5 seconds is mirrored around its integer part first (what a
// COleDateTime subtraction does).
ZOCTRL_API double ZoOleDateToLinear(double date);

// A date read by character positions: "YYYY?MM?DD?hh?mm?ss" (any separators, missing parts 0),
// converted with SystemTimeToVariantTime; invalid when that fails.
ZOCTRL_API ZoSortDate ZoTreePositionalDate(const wchar_t* text);

// A node's cell read once for the tree comparison; the dates are parsed when first needed,
// because which reading applies depends on the other operand.
struct ZoTreeSortKey
{
    CString text;
    double number;
    mutable bool varDateRead;
    mutable bool positionalDateRead;
    mutable ZoSortDate varDate;
    mutable ZoSortDate positionalDate;
};
ZOCTRL_API ZoTreeSortKey ZoMakeTreeSortKey(int method, const wchar_t* text);

// The tree's cell comparison by child sort method: 1 without regard to case, 3 by the sign of
// the numbers' difference, 2 dates, any other value case-sensitive text.
// Dates: a first text of exactly 10 characters makes both texts read as VarDateFromStr reads
// them (an invalid first text is -1 against a valid second, else 0; a valid first is 1 against an
// invalid second) and compares whole days (the difference truncated); otherwise both are read by
// positions and compared by the sign of their difference (0 when either is invalid or the
// difference lies beyond 3615897 days).
ZOCTRL_API int ZoCompareTreeKeys(int method, const ZoTreeSortKey& key1, const ZoTreeSortKey& key2);
ZOCTRL_API int ZoCompareTreeTexts(int method, const wchar_t* text1, const wchar_t* text2);

// path[L] for L = 0 .. levels - 1: the node itself at its depth, its ancestors at the levels
// above, null below it. A node deeper than the levels contributes its ancestors only.
ZOCTRL_API void ZoTreeNodePath(const CZoTreeListCtrlItem* node, int levels, const CZoTreeListCtrlItem** path);

// Compares the cells of two nodes at the same level.
typedef int (*ZoTreeCellCompare)(const CZoTreeListCtrlItem* x, const CZoTreeListCtrlItem* y, void* context);

// Two nodes in tree order, level by level from the top: a node before its descendants, nodes of
// different parents by their ancestors, bold before plain whatever the direction, otherwise by
// `compare` turned round for a descending sort. `path1` and `path2` hold `levels` entries each.
ZOCTRL_API int ZoCompareTreeNodes(const CZoTreeListCtrlItem* a, const CZoTreeListCtrlItem* b, int levels,
                                  bool ascending, const CZoTreeListCtrlItem** path1,
                                  const CZoTreeListCtrlItem** path2, ZoTreeCellCompare compare, void* context);

// Two rows (by index) compared for the sorts below: negative, 0 or positive.
typedef int (*ZoRowCompare)(int first, int second, void* context);

// A stable merge sort of `items` that asks its questions as the native list's own sort does: the
// range splits at its middle (the left half keeping the middle item), and a right-hand item goes
// before a left-hand one only when compare(left, right) > 0. Equal items keep their order, and
// even a comparison that is not a consistent order gives what the native list would give.
ZOCTRL_API void ZoStableSortRows(std::vector<int>& items, ZoRowCompare compare, void* context);

// The parent row of every row (-1 for a top-level row) when the rows show the tree as the view
// builds it: every node in one row, each followed directly by the rows of its shown descendants,
// depths from 0 at the top. False when they do not (a row without node, a node in two rows, a
// child away from its parent's row, a depth that does not fit its parent's).
ZOCTRL_API bool ZoTreeRowParents(const std::vector<const CZoTreeListCtrlItem*>& rows, std::vector<int>& parents);

// The rows in tree order after each group of siblings has been sorted on its own (`compare`
// only ever sees two rows of the same parent): result[i] is the row that moves to place i. The
// work grows with the number of rows times the logarithm of the largest group.
ZOCTRL_API std::vector<int> ZoTreeSortedRowOrder(const std::vector<int>& parents, ZoRowCompare compare,
                                                 void* context);

} // namespace ZoControls
