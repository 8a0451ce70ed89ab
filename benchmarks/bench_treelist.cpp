// Tree-list timings at growing tree sizes, printed with the growth from one size to the next
// (linear work grows with the node count; the target is at most 2.2x per doubling):
//   building N nodes (top-level nodes of 100 children, parents expanded) through InsertNode,
//     against the native list inserting N rows with the same texts, in the same run
//   collapsing and expanding the first top-level node, which holds 10,000 children, with the
//     rest of the N nodes below it
//   deleting 50 top-level nodes with their children from the top of the tree
//   sorting all N rows on the first column, against the native list sorting its N rows by
//     their texts through a comparison callback
// Everything runs with redrawing off on hidden lists, as a host fills a large list. Figures are
// the CPU time of the thread (user and kernel), so that other work on a shared machine does not
// count; the native list's own calls to the Wine server are outside it for both alike.
#include <afxwin.h>
#include <afxcmn.h>
#include <commctrl.h>

#include <stdio.h>

#include <memory>
#include <vector>

#include "BenchHost.h"
#include "BenchTiming.h"
#include "ZoCtrl.h"

using namespace ZoControls;

namespace {

const int kSizes[] = {10000, 50000, 100000};
const int kSizeCount = sizeof(kSizes) / sizeof(kSizes[0]);
const int kChildren = 100;
const int kBigChildren = 10000;
const int kDeletedTops = 50;
const CRect kListRect(10, 10, 610, 410);
const UINT kTreeId = 100;
const UINT kNativeId = 101;

// Seconds of CPU time this thread has used so far.
double ThreadSeconds()
{
    FILETIME created, exited, kernel, user;
    if (!::GetThreadTimes(::GetCurrentThread(), &created, &exited, &kernel, &user))
        return zobench::Now();
    const auto seconds = [](const FILETIME& time) {
        return (double)(((ULONGLONG)time.dwHighDateTime << 32) | time.dwLowDateTime) * 1e-7;
    };
    return seconds(kernel) + seconds(user);
}

LRESULT CALLBACK HostProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::DefWindowProcW(hWnd, message, wParam, lParam);
}

struct Figures
{
    double build;
    double native;
    double collapse;
    double expand;
    double remove;
    double sort;
    double nativeSort;
};

// The native list's comparison: the texts its rows were made with, descending.
int CALLBACK CompareNativeRows(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort)
{
    const std::vector<CString>& texts = *reinterpret_cast<const std::vector<CString>*>(lParamSort);
    return -texts[(size_t)lParam1].Compare(texts[(size_t)lParam2]);
}

std::unique_ptr<CZoTreeListCtrl> MakeTree(HWND host)
{
    std::unique_ptr<CZoTreeListCtrl> tree(new CZoTreeListCtrl());
    if (!tree->Create(WS_CHILD | LVS_REPORT, kListRect, CWnd::FromHandle(host), kTreeId))
        return std::unique_ptr<CZoTreeListCtrl>();
    tree->InsertColumn(0, L"Name", LVCFMT_LEFT, 200);
    tree->InsertColumn(1, L"Size", LVCFMT_RIGHT, 100);
    tree->SetKeepChildData(true);
    return tree;
}

// `nodes` nodes: the first top-level node with `first` children, then top-level nodes of
// kChildren children each.
void Fill(CZoTreeListCtrl& tree, int nodes, int first)
{
    CString text;
    int made = 0;
    for (int top = 0; made < nodes; ++top)
    {
        text.Format(L"Node %06d", top);
        const DWORD_PTR parent = tree.InsertNode(0, text);
        ++made;
        const int children = top == 0 ? first : kChildren;
        for (int child = 0; child < children && made < nodes; ++child, ++made)
        {
            text.Format(L"Item %06d.%05d", top, (child * 7919) % children);
            int row = -1;
            tree.InsertNode(parent, text, &row);
            text.Format(L"%d", child);
            tree.SetItemText(row, 1, text);
        }
    }
}

// Seconds to insert `rows` rows into a native list; `sortSeconds` gets the time it takes to sort
// them.
double NativeInsertTime(HWND host, int rows, double& sortSeconds)
{
    const HWND list = ::CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | LVS_REPORT, kListRect.left,
                                        kListRect.top, kListRect.Width(), kListRect.Height(), host,
                                        (HMENU)(UINT_PTR)kNativeId, ::GetModuleHandleW(NULL), NULL);
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.cx = 200;
    column.pszText = const_cast<LPWSTR>(L"Name");
    ::SendMessageW(list, LVM_INSERTCOLUMNW, 0, (LPARAM)&column);
    column.pszText = const_cast<LPWSTR>(L"Size");
    ::SendMessageW(list, LVM_INSERTCOLUMNW, 1, (LPARAM)&column);
    ::SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    CString text;
    std::vector<CString> texts;
    texts.reserve((size_t)rows);
    const double start = ThreadSeconds();
    for (int row = 0; row < rows; ++row)
    {
        text.Format(L"Item %06d.%05d", row / kChildren, (row % kChildren * 7919) % kChildren);
        texts.push_back(text);
        LVITEMW item = {};
        item.mask = LVIF_TEXT | LVIF_PARAM;
        item.iItem = row;
        item.pszText = text.GetBuffer();
        item.lParam = row;
        const int at = (int)::SendMessageW(list, LVM_INSERTITEMW, 0, (LPARAM)&item);
        text.ReleaseBuffer();
        text.Format(L"%d", row % kChildren);
        item.iSubItem = 1;
        item.pszText = text.GetBuffer();
        ::SendMessageW(list, LVM_SETITEMTEXTW, at, (LPARAM)&item);
        text.ReleaseBuffer();
    }
    const double seconds = ThreadSeconds() - start;
    const double sortStart = ThreadSeconds();
    ::SendMessageW(list, LVM_SORTITEMS, (WPARAM)&texts, (LPARAM)&CompareNativeRows);
    sortSeconds = ThreadSeconds() - sortStart;
    ::DestroyWindow(list);
    return seconds;
}

Figures Measure(HWND host, int nodes)
{
    Figures figures = {};
    figures.native = NativeInsertTime(host, nodes, figures.nativeSort);
    {
        std::unique_ptr<CZoTreeListCtrl> tree = MakeTree(host);
        tree->SetRedraw(FALSE);
        const double start = ThreadSeconds();
        Fill(*tree, nodes, kChildren);
        figures.build = ThreadSeconds() - start;

        double at = ThreadSeconds();
        tree->SortOnColumn(0, false);
        figures.sort = ThreadSeconds() - at;

        // The first top-level nodes after the sort, each with its children.
        at = ThreadSeconds();
        for (int i = 0; i < kDeletedTops; ++i)
            tree->DeleteNode(0, false);
        figures.remove = ThreadSeconds() - at;
        tree->DestroyWindow();
    }
    {
        std::unique_ptr<CZoTreeListCtrl> tree = MakeTree(host);
        tree->SetRedraw(FALSE);
        Fill(*tree, nodes, kBigChildren);
        double at = ThreadSeconds();
        tree->Collapse(0);
        figures.collapse = ThreadSeconds() - at;
        at = ThreadSeconds();
        tree->Expand(0);
        figures.expand = ThreadSeconds() - at;
        tree->DestroyWindow();
    }
    zobench::PumpPending();
    return figures;
}

void Print(const char* what, const Figures* figures, double Figures::*field)
{
    printf("  %-34s", what);
    for (int i = 0; i < kSizeCount; ++i)
        printf(" %9.1f ms", (figures[i].*field) * 1e3);
    for (int i = 1; i < kSizeCount; ++i)
    {
        const double before = figures[i - 1].*field;
        printf("   x%.2f", before > 0 ? (figures[i].*field) / before : 0.0);
    }
    printf("\n");
}

} // namespace

int wmain()
{
    return zobench::RunWithHost(L"bench_treelist", HostProc, [](HWND host) {
        printf("bench_treelist\n");
        std::vector<Figures> figures;
        for (int i = 0; i < kSizeCount; ++i)
            figures.push_back(Measure(host, kSizes[i]));
        printf("  %-34s", "nodes");
        for (int i = 0; i < kSizeCount; ++i)
            printf(" %12d", kSizes[i]);
        printf("   growth (nodes x%.1f, x%.1f)\n", (double)kSizes[1] / kSizes[0], (double)kSizes[2] / kSizes[1]);
        Print("build via InsertNode", figures.data(), &Figures::build);
        Print("native list, same rows", figures.data(), &Figures::native);
        Print("collapse 10,000 children", figures.data(), &Figures::collapse);
        Print("expand 10,000 children", figures.data(), &Figures::expand);
        Print("delete 50 top-level nodes", figures.data(), &Figures::remove);
        Print("sort all rows (column 0)", figures.data(), &Figures::sort);
        Print("native list sort, same rows", figures.data(), &Figures::nativeSort);
        for (int i = 0; i < kSizeCount; ++i)
            printf("  build ratio at %6d nodes: %.2f x native\n", kSizes[i],
                   figures[i].native > 0 ? figures[i].build / figures[i].native : 0.0);
    });
}
