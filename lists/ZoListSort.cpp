#include "lists/ZoListSort.h"

#include <oleauto.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace ZoControls {

namespace {

// Half a second in days: dates closer than this are the same moment for sorting.
const double kHalfSecondInDays = 5.787037037037037e-6;

const wchar_t* orEmpty(const wchar_t* text) { return text ? text : L""; }

} // namespace

int ZoNormalizeSortMethod(int method)
{
    return (method >= ZoSortMethod_TextSensitive && method <= ZoSortMethod_Numeric) ? method
                                                                                   : ZoSortMethod_TextSensitive;
}

int ZoCompareTextSensitive(const wchar_t* text1, const wchar_t* text2)
{
    return CString(orEmpty(text1)).Compare(orEmpty(text2));
}

int ZoCompareTextInsensitive(const wchar_t* text1, const wchar_t* text2)
{
    return CString(orEmpty(text1)).CompareNoCase(orEmpty(text2));
}

double ZoSortNumberOf(const wchar_t* text) { return _wtof(orEmpty(text)); }

int ZoCompareNumbers(double a, double b)
{
    if (b > a)
        return -1;
    if (a == b)
        return 0;
    return 1;
}

int ZoCompareNumericText(const wchar_t* text1, const wchar_t* text2)
{
    return ZoCompareNumbers(ZoSortNumberOf(text1), ZoSortNumberOf(text2));
}

ZoSortDate ZoSortDateOf(const wchar_t* text)
{
    ZoSortDate date = {false, 0.0};
    DATE value = 0.0;
    // VarDateFromStr takes a non-const string; it does not write to it.
    const HRESULT hr = ::VarDateFromStr(const_cast<OLECHAR*>(orEmpty(text)), LOCALE_USER_DEFAULT, 0, &value);
    if (SUCCEEDED(hr))
    {
        date.valid = true;
        date.value = value;
    }
    return date;
}

int ZoCompareDates(const ZoSortDate& date1, const ZoSortDate& date2)
{
    if (!date1.valid && !date2.valid)
        return 0;
    if (!date1.valid)
        return -1;
    if (!date2.valid)
        return 1;
    if (date1.value < date2.value)
        return -1;
    if (std::fabs(date2.value - date1.value) < kHalfSecondInDays)
        return 0;
    return 1;
}

int ZoCompareDateText(const wchar_t* text1, const wchar_t* text2)
{
    return ZoCompareDates(ZoSortDateOf(text1), ZoSortDateOf(text2));
}

int ZoCompareCellTexts(int method, const wchar_t* text1, const wchar_t* text2)
{
    switch (ZoNormalizeSortMethod(method))
    {
    case ZoSortMethod_TextInsensitive:
        return ZoCompareTextInsensitive(text1, text2);
    case ZoSortMethod_DateTime:
        return ZoCompareDateText(text1, text2);
    case ZoSortMethod_Numeric:
        return ZoCompareNumericText(text1, text2);
    default:
        return ZoCompareTextSensitive(text1, text2);
    }
}

int ZoDirected(int r, bool ascending) { return ascending ? r : -r; }

ZoSortKey ZoMakeSortKey(int method, const wchar_t* text)
{
    ZoSortKey key;
    key.number = 0.0;
    key.date.valid = false;
    key.date.value = 0.0;
    switch (ZoNormalizeSortMethod(method))
    {
    case ZoSortMethod_DateTime:
        key.date = ZoSortDateOf(text);
        break;
    case ZoSortMethod_Numeric:
        key.number = ZoSortNumberOf(text);
        break;
    default:
        key.text = orEmpty(text);
        break;
    }
    return key;
}

int ZoCompareSortKeys(int method, const ZoSortKey& key1, const ZoSortKey& key2)
{
    switch (ZoNormalizeSortMethod(method))
    {
    case ZoSortMethod_TextInsensitive:
        return key1.text.CompareNoCase(key2.text);
    case ZoSortMethod_DateTime:
        return ZoCompareDates(key1.date, key2.date);
    case ZoSortMethod_Numeric:
        return ZoCompareNumbers(key1.number, key2.number);
    default:
        return key1.text.Compare(key2.text);
    }
}

bool ZoRankSortKeys(int method, const std::vector<ZoSortKey>& keys, std::vector<int>& ranks)
{
    ranks.clear();
    method = ZoNormalizeSortMethod(method);
    // A NaN is no order at all: sorting by it would not even be defined.
    if (method == ZoSortMethod_Numeric)
        for (const ZoSortKey& key : keys)
            if (std::isnan(key.number))
                return false;
    const auto compare = [&](int a, int b) { return ZoCompareSortKeys(method, keys[(size_t)a], keys[(size_t)b]); };
    std::vector<int> order(keys.size());
    for (size_t i = 0; i < order.size(); ++i)
        order[i] = (int)i;
    std::sort(order.begin(), order.end(), [&](int a, int b) { return compare(a, b) < 0; });
    ranks.assign(keys.size(), 0);
    int rank = 0;
    for (size_t place = 1; place < order.size(); ++place)
    {
        const int before = compare(order[place - 1], order[place]);
        // Neighbours equal one way round only (dates less than half a second apart): no ranks.
        if ((before < 0) != (compare(order[place], order[place - 1]) > 0))
        {
            ranks.clear();
            return false;
        }
        if (before != 0)
            ++rank;
        ranks[(size_t)order[place]] = rank;
    }
    return true;
}

} // namespace ZoControls
