// List-view timings, each as a ratio against the native "SysListView32" of the same size, style
// and content measured in the same run. The host is an MFC window, as a list's parent always is:
// it reflects custom draw and item notifications to CZoListCtrl.
//   page paint of a report list showing 30 rows x 5 columns     vs  the native list, same rows
//   insertion of N rows of 5 cells (redrawing off, as hosts fill) vs  the same messages natively
//   sort of the N rows on a numeric column                       vs  the native sort with a direct
//                                                                    comparison of the same numbers
//   one thumb-drag step: the skinned bar's thumb dragged by one  vs  the native list scrolled by
//   page, the list following and painting                            one page (LVM_SCROLL), painted
// N is 100,000 by default; under Wine every message a list handles costs a round trip to the
// Wine server, so a smaller N (the first argument) gives the same ratios in less time.
#include <afxcmn.h>
#include <afxwin.h>
#include <commctrl.h>

#include <stdio.h>
#include <stdlib.h>

#include <vector>

#include "BenchHost.h"
#include "BenchPaint.h"
#include "BenchTiming.h"
#include "ZoCtrl.h"

using namespace ZoControls;
using zobench::Now;
using zobench::Pair;
using zobench::Report;
using zobench::Twins;

namespace {

const int kColumns = 5;
const int kColumnWidth = 70;
const int kPageRows = 30;
const int kPageListRows = 200;
const int kDefaultRows = 100000;
// Paints of a whole page are slow enough for fewer of them per run.
const int kPagePaintsPerRun = 4;
const int kDragSteps = 10;
const CPoint kNativeOffset(400, 0);

LRESULT CALLBACK HostProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::DefWindowProcW(hWnd, message, wParam, lParam);
}

// The number shown in row `row`'s numeric column: a scrambled order, so that sorting has work to do.
int RowNumber(int row)
{
    return (int)(((unsigned)row * 7919u) % 1000003u);
}

const int kNumericColumn = 1;

// Row `row`'s text in `column`; the first column's texts are scrambled too.
void CellText(int row, int column, wchar_t* text, size_t size)
{
    if (column == 0)
        _snwprintf(text, size, L"Item %07u", (unsigned)RowNumber(row));
    else if (column == kNumericColumn)
        _snwprintf(text, size, L"%d", RowNumber(row));
    else
        _snwprintf(text, size, L"Cell %d.%d", row, column);
    text[size - 1] = L'\0';
}

void AddColumns(HWND list)
{
    for (int c = 0; c < kColumns; ++c) {
        wchar_t title[16];
        _snwprintf(title, 16, L"Col %d", c);
        LVCOLUMNW column = {};
        column.mask = LVCF_TEXT | LVCF_WIDTH;
        column.cx = kColumnWidth;
        column.pszText = title;
        ::SendMessageW(list, LVM_INSERTCOLUMNW, c, reinterpret_cast<LPARAM>(&column));
    }
}

// Appends rows `first` .. `first + count - 1` as a host does: one item, then its other cells,
// each a message.
void InsertRows(HWND list, int first, int count)
{
    for (int row = first; row < first + count; ++row) {
        wchar_t text[32];
        CellText(row, 0, text, 32);
        LVITEMW item = {};
        item.mask = LVIF_TEXT | LVIF_PARAM;
        item.iItem = row;
        item.pszText = text;
        item.lParam = row;
        const int at = (int)::SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        for (int c = 1; c < kColumns; ++c) {
            CellText(row, c, text, 32);
            LVITEMW cell = {};
            cell.iSubItem = c;
            cell.pszText = text;
            ::SendMessageW(list, LVM_SETITEMTEXTW, at, reinterpret_cast<LPARAM>(&cell));
        }
    }
}

// Seconds to insert `rows` rows into each list with redrawing off around them, the lists
// taking turns in blocks so that load from elsewhere on the machine falls on both alike.
Pair FillTimes(HWND zo, HWND native, int rows)
{
    const int kBlock = 250;
    Pair total = {0, 0};
    const HWND lists[2] = {native, zo};
    for (HWND list : lists)
        ::SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    for (int first = 0; first < rows; first += kBlock) {
        const int count = rows - first < kBlock ? rows - first : kBlock;
        double start = Now();
        InsertRows(native, first, count);
        total.native += Now() - start;
        start = Now();
        InsertRows(zo, first, count);
        total.zo += Now() - start;
    }
    for (HWND list : lists) {
        const double start = Now();
        ::SendMessageW(list, WM_SETREDRAW, TRUE, 0);
        (list == zo ? total.zo : total.native) += Now() - start;
    }
    return total;
}

// The native baseline compares the rows' numbers directly: each row's item data is its row
// number at insertion, which indexes the numbers. (LVM_SORTITEMSEX would hand over row indices
// instead, but under Wine it finds each row by a linear search and the indices move during the
// sort, so it is neither a fair baseline nor a correct one there.)
int CALLBACK CompareNativeNumbers(LPARAM first, LPARAM second, LPARAM)
{
    const int a = RowNumber((int)first);
    const int b = RowNumber((int)second);
    return a < b ? -1 : (a > b ? 1 : 0);
}

// The numeric column's values from the top row down are in ascending order.
bool SortedOnNumbers(HWND list)
{
    const int count = (int)::SendMessageW(list, LVM_GETITEMCOUNT, 0, 0);
    int previous = -1;
    for (int row = 0; row < count; ++row) {
        wchar_t text[32];
        LVITEMW item = {};
        item.iSubItem = kNumericColumn;
        item.cchTextMax = 32;
        item.pszText = text;
        ::SendMessageW(list, LVM_GETITEMTEXTW, row, reinterpret_cast<LPARAM>(&item));
        const int value = _wtoi(text);
        if (value < previous)
            return false;
        previous = value;
    }
    return true;
}

// Native twins get the skinned list's font and report styles, so rows are equally high.
void MatchNative(HWND zo, HWND native)
{
    ::SendMessageW(native, WM_SETFONT, ::SendMessageW(zo, WM_GETFONT, 0, 0), TRUE);
    const LPARAM extended = ::SendMessageW(zo, LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0);
    ::SendMessageW(native, LVM_SETEXTENDEDLISTVIEWSTYLE, extended, extended);
}

int RowHeight(HWND list)
{
    RECT row = {};
    row.left = LVIR_BOUNDS;
    if (!::SendMessageW(list, LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&row)))
        return 0;
    return row.bottom - row.top;
}

// Resizes `list` so that exactly `rows` whole rows fit below its header.
void FitRows(HWND list, int rows)
{
    const int rowHeight = RowHeight(list);
    if (rowHeight <= 0)
        return;
    RECT window;
    RECT client;
    ::GetWindowRect(list, &window);
    ::GetClientRect(list, &client);
    RECT header = {};
    ::GetWindowRect((HWND)::SendMessageW(list, LVM_GETHEADER, 0, 0), &header);
    const int frame = (window.bottom - window.top) - client.bottom;
    const int height = frame + (header.bottom - header.top) + rows * rowHeight;
    ::SetWindowPos(list, NULL, 0, 0, window.right - window.left, height, SWP_NOMOVE | SWP_NOZORDER);
}

void RunPage(HWND host)
{
    const CRect rect(0, 0, kColumns * kColumnWidth + 30, 580);
    Twins<CZoListCtrl> lists(host, WC_LISTVIEWW, LVS_REPORT | WS_BORDER, rect, 1, kNativeOffset);
    const HWND controls[2] = {lists.Zo(), lists.Native()};
    MatchNative(lists.Zo(), lists.Native());
    for (HWND list : controls) {
        AddColumns(list);
        InsertRows(list, 0, kPageListRows);
        FitRows(list, kPageRows);
    }
    zobench::PumpPending();

    const int zoPage = (int)::SendMessageW(lists.Zo(), LVM_GETCOUNTPERPAGE, 0, 0);
    const int nativePage = (int)::SendMessageW(lists.Native(), LVM_GETCOUNTPERPAGE, 0, 0);
    printf("Report lists, %d x %d cells a page (native %d rows):\n", zoPage, kColumns, nativePage);
    const Pair paints = zobench::ComparePaints(lists.Zo(), lists.Native(), kPagePaintsPerRun);
    Report("CZoListCtrl page paint", paints.zo, paints.native, zobench::kNoNativePaint);

    // One thumb-drag step: the skinned bar's thumb moves by one page (down, then back up), the
    // list follows and paints at once; natively the list scrolls by one page and paints.
    CZoScrollBar* bar = lists.ZoControl().GetVertScrollBar();
    if (!bar || !bar->GetSafeHwnd())
        return;
    const HWND barWnd = bar->GetSafeHwnd();
    const HWND zo = lists.Zo();
    const HWND native = lists.Native();
    const CRect thumb = bar->GetPartRect(CZoScrollBar::SBHit_Thumb);
    const int track = bar->GetPartRect(CZoScrollBar::SBHit_NextButton).top -
                      bar->GetPartRect(CZoScrollBar::SBHit_PrevButton).bottom;
    // The thumb travels (track - thumb) pixels over (rows - page) rows.
    const int travel = track - thumb.Height();
    const int pageStep = travel * kPageRows / (kPageListRows - kPageRows);
    const int x = thumb.CenterPoint().x;
    const int y = thumb.CenterPoint().y;
    const int pagePixels = kPageRows * RowHeight(native);
    ::SendMessageW(barWnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    int step = 0;
    const Pair drags = zobench::CompareInTurns(
        zobench::kRuns,
        [barWnd, zo, x, y, pageStep, &step] {
            return zobench::TimePerCall(kDragSteps, [barWnd, zo, x, y, pageStep, &step] {
                const int at = y + ((step++ & 1) ? 0 : pageStep);
                ::SendMessageW(barWnd, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(x, at));
                ::UpdateWindow(zo);
            });
        },
        [native, pagePixels] {
            int nativeStep = 0;
            return zobench::TimePerCall(kDragSteps, [native, pagePixels, &nativeStep] {
                const int dy = (nativeStep++ & 1) ? -pagePixels : pagePixels;
                ::SendMessageW(native, LVM_SCROLL, 0, dy);
                ::UpdateWindow(native);
            });
        });
    const int top = (int)::SendMessageW(zo, LVM_GETTOPINDEX, 0, 0);
    ::SendMessageW(barWnd, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    Report("CZoListCtrl thumb-drag step of a page", drags.zo, drags.native, zobench::kNoNativeTime);
    printf("  (the drag step moved the top row to %d and back)\n", top == 0 ? -1 : top);
}

void RunRows(HWND host, int rows)
{
    printf("Report lists of %d rows x %d columns:\n", rows, kColumns);
    const CRect rect(0, 0, kColumns * kColumnWidth + 30, 300);
    Twins<CZoListCtrl> lists(host, WC_LISTVIEWW, LVS_REPORT | WS_BORDER, rect, 2, kNativeOffset);
    MatchNative(lists.Zo(), lists.Native());
    AddColumns(lists.Zo());
    AddColumns(lists.Native());
    zobench::PumpPending();

    // Once: a second fill of the same size would measure another list.
    const Pair fills = FillTimes(lists.Zo(), lists.Native(), rows);
    zobench::PumpPending();
    Report("CZoListCtrl insertion of all rows", fills.zo, fills.native, zobench::kNoNativeTime);

    double start = Now();
    ::SendMessageW(lists.Native(), LVM_SORTITEMS, 0, reinterpret_cast<LPARAM>(&CompareNativeNumbers));
    const double nativeSort = Now() - start;
    lists.ZoControl().SetColumnSortMethod(kNumericColumn, CZoListCtrl::SCM_Numeric);
    start = Now();
    lists.ZoControl().SortOnColumn(kNumericColumn, true);
    const double zoSort = Now() - start;
    Report("CZoListCtrl sort on a numeric column", zoSort, nativeSort, zobench::kNoNativeTime);
    if (!SortedOnNumbers(lists.Zo()))
        printf("  (CZoListCtrl came out unsorted)\n");
    if (!SortedOnNumbers(lists.Native()))
        printf("  (the native list came out unsorted)\n");
}

} // namespace

int wmain(int argc, wchar_t** argv)
{
    const int rows = argc > 1 && _wtoi(argv[1]) > 0 ? _wtoi(argv[1]) : kDefaultRows;
    return zobench::RunWithHost(L"bench_lists", HostProc, [rows](HWND host) {
        // The host as an MFC window, so that notifications come back to the list as reflections.
        CWnd mfcHost;
        if (!mfcHost.SubclassWindow(host)) {
            printf("bench_lists: the host could not become an MFC window\n");
            return;
        }
        printf("bench_lists\n");
        RunPage(host);
        RunRows(host, rows);
        mfcHost.UnsubclassWindow();
    });
}
