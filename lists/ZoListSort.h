// The comparisons behind the list view's column sorting, as plain functions of cell texts, and
// the prepared sort keys that let a long list be sorted without reading a cell per comparison.
// Each comparison returns a negative number, 0 or a positive number; negative means that the
// first text sorts before the second in ascending order.
#pragma once
#include <afxwin.h>

#include <vector>

#include "core/ZoCtrlExport.h"

namespace ZoControls {

// Comparison methods by value (the list view names them in CZoListCtrl::E_SortColumnMethod).
enum
{
    ZoSortMethod_TextSensitive = 0,
    ZoSortMethod_TextInsensitive = 1,
    ZoSortMethod_DateTime = 2,
    ZoSortMethod_Numeric = 3
};

// Any value outside the four methods compares as case-sensitive text.
ZOCTRL_API int ZoNormalizeSortMethod(int method);

// Ordinal, case-sensitive (CString::Compare).
ZOCTRL_API int ZoCompareTextSensitive(const wchar_t* text1, const wchar_t* text2);
// Without regard to case (CString::CompareNoCase).
ZOCTRL_API int ZoCompareTextInsensitive(const wchar_t* text1, const wchar_t* text2);

// Numbers as _wtof reads them: text that is no number counts as 0.
ZOCTRL_API double ZoSortNumberOf(const wchar_t* text);
// -1 when b > a, 0 when equal, else 1 (also when either is NaN).
ZOCTRL_API int ZoCompareNumbers(double a, double b);
ZOCTRL_API int ZoCompareNumericText(const wchar_t* text1, const wchar_t* text2);

// A date as VarDateFromStr reads it in the user's locale; a text it cannot read is invalid.
struct ZoSortDate
{
    bool valid;
    double value; // days since 1899-12-30, only meaningful when valid
};
ZOCTRL_API ZoSortDate ZoSortDateOf(const wchar_t* text);
// Invalid dates come first; valid dates within half a second of each other are equal.
ZOCTRL_API int ZoCompareDates(const ZoSortDate& date1, const ZoSortDate& date2);
ZOCTRL_API int ZoCompareDateText(const wchar_t* text1, const wchar_t* text2);

// The comparison of `method` applied to two texts.
ZOCTRL_API int ZoCompareCellTexts(int method, const wchar_t* text1, const wchar_t* text2);

// r for an ascending sort, -r for a descending one.
ZOCTRL_API int ZoDirected(int r, bool ascending);

// A cell read once and parsed once for `method`: comparing two keys gives exactly what comparing
// the two texts would.
struct ZoSortKey
{
    CString text;
    double number;
    ZoSortDate date;
};
ZOCTRL_API ZoSortKey ZoMakeSortKey(int method, const wchar_t* text);
ZOCTRL_API int ZoCompareSortKeys(int method, const ZoSortKey& key1, const ZoSortKey& key2);

// Dense ranks of keys under `method`: equal keys share a rank, and a lower rank sorts first, so
// comparing two ranks gives the sign comparing the two keys gives. Only where that comparison is a
// consistent order: false for dates less than half a second apart (equal one way round only) and
// for numbers that are not numbers (NaN compares after everything, either way round).
ZOCTRL_API bool ZoRankSortKeys(int method, const std::vector<ZoSortKey>& keys, std::vector<int>& ranks);

} // namespace ZoControls
