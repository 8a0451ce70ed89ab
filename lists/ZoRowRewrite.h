// Putting a report list's rows in a new order by rewriting them where they stand. Wine's own
// list sort shifts rows one place for every pair of rows that changes order, so reversing n rows
// costs n*n/2 shifts; rewriting a row in its new place costs the same however far it goes.
// Functions:
//   ZoCountInversions     how many pairs of rows a new order turns round
//   ZoRewritingPays       whether an order is worth rewriting rows for rather than sorting
//   ZoRewriteRowsInOrder  rewrites a list's rows in a new order without its parent hearing of it
#pragma once
#include <afxwin.h>

#include <functional>
#include <vector>

#include "core/ZoCtrlExport.h"

namespace ZoControls {

// The pairs of places i < j with order[i] > order[j].
ZOCTRL_API long long ZoCountInversions(const std::vector<int>& order);

// True when the list's sort would shift rows more often than a constant number of times per
// comparison it makes (about rows * log2(rows)): beyond that its shifting grows with the square of
// the rows, and rewriting them costs less as the list grows.
ZOCTRL_API bool ZoRewritingPays(int rows, long long inversions);

// Sends a message straight to the platform's list, past message maps and hooks.
typedef std::function<LRESULT(UINT, WPARAM, LPARAM)> ZoListCall;

// Rewrites the rows of `hList` so that the contents of row order[i] land in row i: the text of
// every column, image, indent, item data and the state bits a row carries (cells, images and
// indents the parent supplies stay supplied by it); focus and selection mark follow their rows and
// the view keeps its scroll position, as after the list's own sort. The parent hears of no item
// change meanwhile and is asked for nothing. False, with nothing changed, when `order` is no
// permutation of the rows, a cell is too long to carry, or the list's item changes do not go
// through its parent (a list moved to another parent keeps notifying its first one).
// `redrawing`: the list shows its changes at once; it is then repainted once at the end.
bool ZoRewriteRowsInOrder(HWND hList, const ZoListCall& native, const std::vector<int>& order, bool redrawing);

} // namespace ZoControls
