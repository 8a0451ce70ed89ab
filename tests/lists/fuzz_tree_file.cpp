// fuzz_tree_file: loads mutated tree files from memory and checks that every load either
// succeeds or fails with a file exception that leaves the target node as it was, without
// crashing or leaking. A fixed seed and count keep runs repeatable:
//
//   fuzz_tree_file [count [seed]]        (defaults: 12000 files, seed 0x5EED)
//
// Mutations: bit flips, truncations, 32-bit fields overwritten with huge or negative counts and
// lengths, length escapes planted in strings, chunks repeated elsewhere, and files that
// nest thousands of levels, whole or cut off. A file that loads is written again and must read
// back to the same bytes.
#include <afx.h>

#include <stdio.h>

#include <vector>

#include <zotest/random.h>
#include <zotest/resource_counter.h>

#include "lists/ZoTreeFile.h"
#include "lists/ZoTreeListCtrlItem.h"

using ZoControls::CZoTreeListCtrlItem;

namespace {

using Bytes = std::vector<BYTE>;

using zotest::Random;

Bytes Dump(CZoTreeListCtrlItem& root)
{
    CMemFile file(64 * 1024); // grows in steps of this size
    CZoTreeListCtrlItem::DumpChildNodes(&file, &root);
    Bytes bytes((size_t)file.GetLength());
    file.SeekToBegin();
    if (!bytes.empty())
        file.Read(bytes.data(), (UINT)bytes.size());
    return bytes;
}

CZoTreeListCtrlItem* Add(CZoTreeListCtrlItem& parent, const CString& text)
{
    CZoTreeListCtrlItem* child = new CZoTreeListCtrlItem(&parent, (int)parent.GetNumberOfChildren());
    child->SetSubItemText(0, text);
    parent.InsertChildItem(child);
    return child;
}

// Valid files to start from: a small mixed tree, a wide one, one with long texts and a chain.
std::vector<Bytes> Seeds()
{
    std::vector<Bytes> seeds;
    {
        CZoTreeListCtrlItem root;
        CZoTreeListCtrlItem* a = Add(root, L"alpha");
        a->SetSubItemText(2, L"third column");
        a->SetBold(true);
        a->Expand(true);
        a->SetItemData(0xBEEF);
        Add(*a, L"a1");
        Add(*Add(*a, L"a2"), L"a21");
        Add(root, L"");
        seeds.push_back(Dump(root));
    }
    {
        CZoTreeListCtrlItem root;
        for (int i = 0; i < 40; ++i)
            Add(root, L"w")->SetTempItemNumber(i);
        seeds.push_back(Dump(root));
    }
    {
        CZoTreeListCtrlItem root;
        Add(root, CString(L'x', 254));
        Add(root, CString(L'y', 255));
        Add(*Add(root, CString(L'z', 300)), L"leaf");
        seeds.push_back(Dump(root));
    }
    {
        CZoTreeListCtrlItem root;
        CZoTreeListCtrlItem* node = &root;
        for (int i = 0; i < 60; ++i)
            node = Add(*node, L"c");
        seeds.push_back(Dump(root));
    }
    return seeds;
}

void PutDword(Bytes& bytes, size_t at, DWORD value)
{
    for (int i = 0; i < 4 && at + i < bytes.size(); ++i)
        bytes[at + i] = (BYTE)(value >> (8 * i));
}

// A chain of `levels` minimal records, each announcing one child.
Bytes DeepChain(size_t levels)
{
    const size_t step = ZoControls::ZoTreeChildMinBytes;
    Bytes bytes(4 + levels * step, 0);
    bytes[0] = 1;
    for (size_t i = 0; i < levels; ++i)
    {
        BYTE* record = bytes.data() + 4 + i * step;
        record[0] = 0x01;
        record[3] = 0x10;
        record[step - 4] = i + 1 < levels ? 1 : 0;
    }
    return bytes;
}

const DWORD kHugeValues[] = {0x7FFFFFFF, 0xFFFFFFFF, 0x80000000, 0x0000FFFF, 0x00FFFFFF, 0x10000000, 0xFFFEFFFF,
                             0x00000100, 0xFFFFFFFE};

Bytes Mutate(Random& random, const std::vector<Bytes>& seeds)
{
    Bytes bytes;
    if (random.Below(16) == 0)
    {
        // Deep nesting, whole or cut off, now and then thousands of levels.
        bytes = DeepChain(1 + random.Below(random.Below(40) == 0 ? 20000 : 400));
        if (random.Below(2))
            bytes.resize(random.Below(bytes.size() + 1));
        return bytes;
    }
    bytes = seeds[random.Below(seeds.size())];
    const int rounds = 1 + (int)random.Below(3);
    for (int round = 0; round < rounds; ++round)
    {
        switch (random.Below(6))
        {
        case 0: // bit flips
            for (size_t n = 1 + random.Below(8); n > 0 && !bytes.empty(); --n)
                bytes[random.Below(bytes.size())] ^= (BYTE)(1u << random.Below(8));
            break;
        case 1: // truncation
            bytes.resize(random.Below(bytes.size() + 1));
            break;
        case 2: // a count, length or version replaced by a huge or negative value
            PutDword(bytes, random.Below(bytes.size() + 1), kHugeValues[random.Below(_countof(kHugeValues))]);
            break;
        case 3: // a length escape planted where a string may start
        {
            static const BYTE escapes[][7] = {{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF},
                                              {0xFF, 0xFE, 0xFF, 0xFF, 0xFE, 0xFF, 0x00},
                                              {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x7F},
                                              {0xFF, 0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0x00}};
            const BYTE* escape = escapes[random.Below(_countof(escapes))];
            const size_t at = random.Below(bytes.size() + 1);
            bytes.insert(bytes.begin() + (ptrdiff_t)at, escape, escape + 7);
            break;
        }
        case 4: // a chunk of the file repeated elsewhere
            if (bytes.size() > 8)
            {
                const size_t from = random.Below(bytes.size());
                const size_t length = 1 + random.Below(bytes.size() - from);
                const Bytes chunk(bytes.begin() + (ptrdiff_t)from, bytes.begin() + (ptrdiff_t)(from + length));
                const size_t to = random.Below(bytes.size());
                bytes.insert(bytes.begin() + (ptrdiff_t)to, chunk.begin(), chunk.end());
            }
            break;
        default: // random bytes
            for (size_t n = 1 + random.Below(16); n > 0 && !bytes.empty(); --n)
                bytes[random.Below(bytes.size())] = (BYTE)random.Next();
            break;
        }
    }
    return bytes;
}

// The file being loaded, for the report of a crash.
long g_currentFile = -1;

struct Tally
{
    long tried = 0;
    long loaded = 0;
    long refused = 0;
    long crashes = 0;     // anything other than a file exception escaped, or a failed load changed the node
    long unstable = 0;    // a loaded tree did not write back to bytes that read the same
};

// Loads `bytes` below a node that already holds one child.
void LoadOne(Bytes bytes, Tally& tally)
{
    g_currentFile = tally.tried++;
    CMemFile file(bytes.empty() ? NULL : bytes.data(), (UINT)bytes.size());
    CZoTreeListCtrlItem root;
    Add(root, L"kept");
    try
    {
        CZoTreeListCtrlItem::LoadChildNodes(&file, &root);
    }
    catch (CFileException* error)
    {
        error->Delete();
        ++tally.refused;
        if (root.GetNumberOfChildren() != 1 || !root.GetLastChild()->IsLastItem())
            ++tally.crashes;
        return;
    }
    catch (...)
    {
        ++tally.crashes;
        return;
    }
    ++tally.loaded;
    Bytes written = Dump(root);
    CMemFile again(written.empty() ? NULL : written.data(), (UINT)written.size());
    CZoTreeListCtrlItem copy;
    try
    {
        CZoTreeListCtrlItem::LoadChildNodes(&again, &copy);
        if (Dump(copy) != written)
            ++tally.unstable;
    }
    catch (CFileException* error)
    {
        error->Delete();
        ++tally.unstable;
    }
}

// A crash (an access violation, a stack overflow) ends the run with the file that caused it.
LONG WINAPI ReportCrash(EXCEPTION_POINTERS* info)
{
    printf("fuzz_tree_file: 1 crash, exception 0x%08lX at file %ld\n",
           (unsigned long)info->ExceptionRecord->ExceptionCode, g_currentFile);
    fflush(stdout);
    return EXCEPTION_EXECUTE_HANDLER;
}

} // namespace

int wmain(int argc, wchar_t** argv)
{
    const long count = argc > 1 ? wcstol(argv[1], NULL, 0) : 12000;
    const ULONGLONG seed = argc > 2 ? wcstoull(argv[2], NULL, 0) : 0x5EED;
    SetUnhandledExceptionFilter(ReportCrash);
    const std::vector<Bytes> seeds = Seeds();

    // Warm-up: the first exceptions and strings allocate run-time data that stays.
    Tally warmUp;
    Random warmRandom(seed ^ 0xFFFF);
    for (int i = 0; i < 200; ++i)
        LoadOne(Mutate(warmRandom, seeds), warmUp);

    const long blocksBefore = zotest::CountHeapBlocks();
    Tally tally;
    Random random(seed);
    for (const Bytes& file : seeds)
        LoadOne(file, tally);
    LoadOne(DeepChain(50000), tally);
    while (tally.tried < count)
        LoadOne(Mutate(random, seeds), tally);
    const long blocksAfter = zotest::CountHeapBlocks();
    const long leaked = blocksAfter > blocksBefore ? blocksAfter - blocksBefore : 0;

    printf("fuzz_tree_file: seed 0x%llX, %ld files tried, %ld loaded, %ld refused, %ld crashes, "
           "%ld unstable, %ld leaked objects (heap blocks %ld before, %ld after)\n",
           seed, tally.tried, tally.loaded, tally.refused, tally.crashes, tally.unstable, leaked, blocksBefore,
           blocksAfter);
    const bool passed = tally.crashes == 0 && tally.unstable == 0 && leaked == 0 &&
                        tally.loaded > 0 && tally.refused > 0;
    return passed ? 0 : 1;
}
