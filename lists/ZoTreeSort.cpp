#include "lists/ZoTreeSort.h"

#include <oleauto.h>

#include <cmath>
#include <cstdlib>

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
