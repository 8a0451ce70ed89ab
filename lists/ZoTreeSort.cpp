#include "lists/ZoTreeSort.h"

#include <oleauto.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <utility>

#include "lists/ZoTreeListCtrlItem.h"

namespace ZoControls {

namespace {

const double kHalfSecondInDays = 5.787037037037037e-6;
// The widest span between two dates that still counts as a span.
const double kMaxSpanDays = 3615897.0;
// A date text of exactly this many characters is a plain date for the platform's reader.
const int kPlainDateLength = 10;

enum
{
    kMethodTextInsensitive = 1,
    kMethodDateTime = 2,
    kMethodNumeric = 3
};

const wchar_t* orEmpty(const wchar_t* text) { return text ? text : L""; }

int signOf(double value) { return value > 0 ? 1 : (value < 0 ? -1 : 0); }

// Characters [start, start + count) of `text` as _wtoi reads them; 0 beyond the text.
int numberAt(const CString& text, int start, int count)
{
    return start < text.GetLength() ? _wtoi(text.Mid(start, count)) : 0;
}

const ZoSortDate& varDateOf(const ZoTreeSortKey& key)
{
    if (!key.varDateRead)
    {
        key.varDate = ZoSortDateOf(key.text);
        key.varDateRead = true;
    }
    return key.varDate;
}

const ZoSortDate& positionalDateOf(const ZoTreeSortKey& key)
{
    if (!key.positionalDateRead)
    {
        key.positionalDate = ZoTreePositionalDate(key.text);
        key.positionalDateRead = true;
    }
    return key.positionalDate;
}

int compareDates(const ZoTreeSortKey& key1, const ZoTreeSortKey& key2)
{
    if (key1.text.GetLength() == kPlainDateLength)
    {
        const ZoSortDate& date1 = varDateOf(key1);
        const ZoSortDate& date2 = varDateOf(key2);
        if (!date1.valid)
            return date2.valid ? -1 : 0;
        if (!date2.valid)
            return 1;
        return (int)(ZoOleDateToLinear(date1.value) - ZoOleDateToLinear(date2.value));
    }
    const ZoSortDate& date1 = positionalDateOf(key1);
    const ZoSortDate& date2 = positionalDateOf(key2);
    if (!date1.valid || !date2.valid)
        return 0;
    const double difference = ZoOleDateToLinear(date1.value) - ZoOleDateToLinear(date2.value);
    return std::fabs(difference) > kMaxSpanDays ? 0 : signOf(difference);
}

// Sorts items[first .. last] (inclusive), with `scratch` as room for merging.
void mergeSort(int* items, int first, int last, ZoRowCompare compare, void* context, std::vector<int>& scratch)
{
    if (first >= last)
        return;
    const int middle = (first + last) / 2;
    mergeSort(items, first, middle, compare, context, scratch);
    mergeSort(items, middle + 1, last, compare, context, scratch);
    scratch.assign(items + first, items + middle + 1);
    size_t left = 0;
    int right = middle + 1;
    int out = first;
    while (left < scratch.size() && right <= last)
        items[out++] = compare(scratch[left], items[right], context) > 0 ? items[right++] : scratch[left++];
    while (left < scratch.size())
        items[out++] = scratch[left++];
}

} // namespace

double ZoOleDateToLinear(double date)
{
    if (date > -kHalfSecondInDays)
        return date;
    const double day = std::ceil(date);
    return day - (date - day);
}

ZoSortDate ZoTreePositionalDate(const wchar_t* text)
{
    const CString source(orEmpty(text));
    SYSTEMTIME time = {};
    time.wYear = (WORD)numberAt(source, 0, 4);
    time.wMonth = (WORD)numberAt(source, 5, 2);
    time.wDay = (WORD)numberAt(source, 8, 2);
    time.wHour = (WORD)numberAt(source, 12, 2);
    time.wMinute = (WORD)numberAt(source, 15, 2);
    time.wSecond = (WORD)numberAt(source, 18, 2);
    ZoSortDate date = {false, 0.0};
    double value = 0.0;
    if (::SystemTimeToVariantTime(&time, &value))
    {
        date.valid = true;
        date.value = value;
    }
    return date;
}

ZoTreeSortKey ZoMakeTreeSortKey(int method, const wchar_t* text)
{
    ZoTreeSortKey key;
    key.text = orEmpty(text);
    key.number = method == kMethodNumeric ? _wtof(key.text) : 0.0;
    key.varDateRead = false;
    key.positionalDateRead = false;
    key.varDate.valid = key.positionalDate.valid = false;
    key.varDate.value = key.positionalDate.value = 0.0;
    return key;
}

int ZoCompareTreeKeys(int method, const ZoTreeSortKey& key1, const ZoTreeSortKey& key2)
{
    switch (method)
    {
    case kMethodTextInsensitive:
        return key1.text.CompareNoCase(key2.text);
    case kMethodNumeric:
        return signOf(key1.number - key2.number);
    case kMethodDateTime:
        return compareDates(key1, key2);
    default:
        return key1.text.Compare(key2.text);
    }
}

int ZoCompareTreeTexts(int method, const wchar_t* text1, const wchar_t* text2)
{
    return ZoCompareTreeKeys(method, ZoMakeTreeSortKey(method, text1), ZoMakeTreeSortKey(method, text2));
}

void ZoStableSortRows(std::vector<int>& items, ZoRowCompare compare, void* context)
{
    if (items.size() < 2 || !compare)
        return;
    std::vector<int> scratch;
    scratch.reserve(items.size() / 2 + 1);
    mergeSort(items.data(), 0, (int)items.size() - 1, compare, context, scratch);
}

bool ZoTreeRowParents(const std::vector<const CZoTreeListCtrlItem*>& rows, std::vector<int>& parents)
{
    parents.assign(rows.size(), -1);
    // A node in two rows: found side by side once the rows are in address order (sorting a copy
    // costs less than a hash set's allocation per row).
    std::vector<const CZoTreeListCtrlItem*> byAddress(rows);
    std::sort(byAddress.begin(), byAddress.end(), std::less<const CZoTreeListCtrlItem*>());
    if (std::adjacent_find(byAddress.begin(), byAddress.end()) != byAddress.end())
        return false;
    // The rows of the current node's ancestors, the top-level one first.
    std::vector<int> line;
    for (size_t row = 0; row < rows.size(); ++row)
    {
        const CZoTreeListCtrlItem* node = rows[row];
        if (!node)
            return false;
        const CZoTreeListCtrlItem* parent = node->GetParentItem();
        while (!line.empty() && rows[line.back()] != parent)
            line.pop_back();
        // A top-level node hangs below the invisible root, which has no parent and no row.
        const bool topLevel = line.empty();
        if (topLevel && (!parent || parent->GetParentItem()))
            return false;
        if (node->GetDepthLevel() != (int)line.size())
            return false;
        parents[row] = topLevel ? -1 : line.back();
        line.push_back((int)row);
    }
    return true;
}

std::vector<int> ZoTreeSortedRowOrder(const std::vector<int>& parents, ZoRowCompare compare, void* context)
{
    const int count = (int)parents.size();
    // The children of each row, in row order, in one array: group g (0 for the top level, row + 1
    // for a row's children) holds members[start[g] .. start[g + 1] - 1].
    std::vector<int> start((size_t)count + 2, 0);
    for (int row = 0; row < count; ++row)
    {
        const int parent = parents[row] >= 0 && parents[row] < count ? parents[row] : -1;
        ++start[(size_t)parent + 2];
    }
    for (size_t group = 1; group < start.size(); ++group)
        start[group] += start[group - 1];
    std::vector<int> members((size_t)count);
    std::vector<int> filled(start.begin(), start.end() - 1);
    for (int row = 0; row < count; ++row)
    {
        const int parent = parents[row] >= 0 && parents[row] < count ? parents[row] : -1;
        members[(size_t)filled[(size_t)parent + 1]++] = row;
    }
    std::vector<int> group;
    for (size_t g = 0; g + 1 < start.size(); ++g)
    {
        if (start[g + 1] - start[g] < 2)
            continue;
        group.assign(members.begin() + start[g], members.begin() + start[g + 1]);
        ZoStableSortRows(group, compare, context);
        std::copy(group.begin(), group.end(), members.begin() + start[g]);
    }
    // Depth first: each row followed by its sorted children.
    std::vector<int> order;
    order.reserve((size_t)count);
    std::vector<std::pair<int, int>> pending(1, std::make_pair(start[0], start[1]));
    while (!pending.empty())
    {
        std::pair<int, int>& next = pending.back();
        if (next.first >= next.second)
        {
            pending.pop_back();
            continue;
        }
        const int row = members[(size_t)next.first++];
        order.push_back(row);
        if (start[(size_t)row + 2] > start[(size_t)row + 1])
            pending.push_back(std::make_pair(start[(size_t)row + 1], start[(size_t)row + 2]));
    }
    // Parents that are no rows before their children (a loop) leave rows unreached: they follow
    // in their old order.
    if ((int)order.size() < count)
    {
        std::vector<bool> placed((size_t)count, false);
        for (int row : order)
            placed[(size_t)row] = true;
        for (int row = 0; row < count; ++row)
            if (!placed[(size_t)row])
                order.push_back(row);
    }
    return order;
}

void ZoTreeNodePath(const CZoTreeListCtrlItem* node, int levels, const CZoTreeListCtrlItem** path)
{
    for (int level = 0; level < levels; ++level)
        path[level] = NULL;
    if (!node)
        return;
    // Up to the deepest level the path holds, then one ancestor per level above.
    int depth = node->GetDepthLevel();
    while (node && depth >= levels)
    {
        node = node->GetParentItem();
        --depth;
    }
    for (; node && depth >= 0; --depth)
    {
        path[depth] = node;
        node = node->GetParentItem();
    }
}

int ZoCompareTreeNodes(const CZoTreeListCtrlItem* a, const CZoTreeListCtrlItem* b, int levels, bool ascending,
                       const CZoTreeListCtrlItem** path1, const CZoTreeListCtrlItem** path2,
                       ZoTreeCellCompare compare, void* context)
{
    ZoTreeNodePath(a, levels, path1);
    ZoTreeNodePath(b, levels, path2);
    int r = 0;
    for (int level = 0; level < levels && r == 0; ++level)
    {
        const CZoTreeListCtrlItem* x = path1[level];
        const CZoTreeListCtrlItem* y = path2[level];
        // One line ends here: the shorter comes first when both hang under the same top-level
        // node, whatever the direction.
        if (!x && y)
            return y->IsLeafOf(path1[0]) ? -1 : 0;
        if (x && !y)
            return x->IsLeafOf(path2[0]) ? 1 : 0;
        if (!x && !y)
            return 0;
        if (level > 0 && !(y->IsLeafOf(path1[0]) && x->IsLeafOf(path2[0])))
            return 0;
        if (x->GetBold() != y->GetBold())
            return x->GetBold() ? -1 : 1;
        r = compare(x, y, context);
    }
    return ZoDirected(r, ascending);
}

} // namespace ZoControls
