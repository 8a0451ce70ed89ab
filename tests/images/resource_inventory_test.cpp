// Inventory of ZoCtrl.dll's resources, read from the DLL as a data file: every skin bitmap's
// name, size, depth, cell grid and language, the check-box/radio PNG, the message-box dialog
// template and the caption strings in their ten languages.
#include <gtest/gtest.h>

#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>

#include <cstring>
#include <cwctype>
#include <map>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#define ZO_WIDEN_LITERAL(text) L##text
#define ZO_WIDEN(text) ZO_WIDEN_LITERAL(text)

namespace {

const COLORREF kMagenta = RGB(255, 0, 255);
const LANGID kNeutral = MAKELANGID(LANG_NEUTRAL, SUBLANG_NEUTRAL);
const LANGID kKorean = 1042;
const std::set<LANGID> kMessageBoxLanguages = {1028, 1033, 1036, 1040, 1041, 1045, 1046, 1049, 2052, 3082};

struct ExpectedBitmap {
    const wchar_t* name;  // "#n" for numbered bitmaps
    int width;
    int height;
    int bits;
    int columns;  // cell grid as the controls cut the strip
    int rows;
    int distinctBlocks;       // equal-width vertical blocks (states or images) that must all differ; 0: none
    bool transparentCorners;  // the four outer corners of every block are magenta
    LANGID language;
};

const ExpectedBitmap kBitmaps[] = {
    {L"BMP_ZO_BTNDEFPUSH_NORMAL", 60, 15, 24, 12, 3, 4, true, kNeutral},
    {L"BMP_ZO_CMBDROPDOWNLIST", 36, 27, 24, 12, 3, 4, true, kNeutral},
    {L"BMP_ZO_CMBDROPDOWNLISTBTN", 68, 24, 24, 4, 2, 4, true, kNeutral},
    {L"BMP_ZO_CMBDROPDOWNLISTBTNBACK", 36, 27, 24, 12, 3, 4, false, kNeutral},
    {L"BMP_ZO_DLGSYSBTNS", 64, 64, 24, 4, 4, 4, true, kNeutral},
    {L"BMP_ZO_DLGSYSBTNS_3M", 72, 72, 8, 4, 4, 4, true, kNeutral},
    {L"BMP_ZO_DLGSYSBTNS_5M", 96, 96, 8, 4, 4, 4, true, kNeutral},
    {L"BMP_ZO_EDIT", 36, 27, 24, 12, 9, 4, false, kNeutral},
    {L"BMP_ZO_HEADER", 36, 18, 24, 12, 3, 4, false, kNeutral},
    {L"BMP_ZO_HEADERSORT", 28, 12, 24, 4, 2, 4, true, kNeutral},
    {L"BMP_ZO_PROGRHOR", 48, 18, 8, 4, 1, 4, false, kNeutral},
    {L"BMP_ZO_PROGRVER", 72, 12, 8, 4, 1, 4, false, kNeutral},
    {L"BMP_ZO_SCROLLHOR_BACK", 40, 38, 8, 4, 2, 4, true, kNeutral},
    {L"BMP_ZO_SCROLLHOR_BACK_3M", 48, 46, 24, 4, 2, 4, true, kNeutral},
    {L"BMP_ZO_SCROLLHOR_BACK_5M", 64, 58, 24, 4, 2, 4, true, kNeutral},
    {L"BMP_ZO_SCROLLHOR_BTNS", 104, 76, 8, 4, 4, 4, true, kNeutral},
    {L"BMP_ZO_SCROLLHOR_BTNS_3M", 124, 92, 24, 4, 4, 4, true, kNeutral},
    {L"BMP_ZO_SCROLLHOR_BTNS_5M", 168, 116, 24, 4, 4, 4, true, kNeutral},
    {L"BMP_ZO_SCROLLHOR_THUMB", 96, 38, 8, 12, 2, 4, true, kNeutral},
    {L"BMP_ZO_SCROLLHOR_THUMB_3M", 120, 46, 24, 12, 2, 4, true, kNeutral},
    {L"BMP_ZO_SCROLLHOR_THUMB_5M", 156, 58, 24, 12, 2, 4, true, kNeutral},
    {L"BMP_ZO_SCROLLVER_BACK", 76, 20, 8, 4, 2, 4, true, kNeutral},
    {L"BMP_ZO_SCROLLVER_BACK_3M", 92, 24, 24, 4, 2, 4, true, kNeutral},
    {L"BMP_ZO_SCROLLVER_BACK_5M", 116, 32, 24, 4, 2, 4, true, kNeutral},
    {L"BMP_ZO_SCROLLVER_BTNS", 76, 104, 8, 4, 4, 4, true, kNeutral},
    {L"BMP_ZO_SCROLLVER_BTNS_3M", 92, 124, 24, 4, 4, 4, true, kNeutral},
    {L"BMP_ZO_SCROLLVER_BTNS_5M", 116, 168, 24, 4, 4, 4, true, kNeutral},
    {L"BMP_ZO_SCROLLVER_THUMB", 76, 48, 8, 4, 6, 4, true, kNeutral},
    {L"BMP_ZO_SCROLLVER_THUMB_3M", 92, 60, 24, 4, 6, 4, true, kNeutral},
    {L"BMP_ZO_SCROLLVER_THUMB_5M", 116, 78, 24, 4, 6, 4, true, kNeutral},
    {L"BMP_ZO_SKIN_FRAMEWNDBORDER", 27, 36, 8, 3, 4, 0, false, kNeutral},
    {L"BMP_ZO_SLIDERNORMAL_HOR_BOTH", 44, 21, 24, 4, 1, 4, true, kNeutral},
    {L"BMP_ZO_SLIDERNORMAL_HOR_LEFT", 44, 21, 24, 4, 1, 4, true, kNeutral},
    {L"BMP_ZO_SLIDERNORMAL_HOR_RIGHT", 44, 21, 24, 4, 1, 4, true, kNeutral},
    {L"BMP_ZO_SLIDERNORMAL_VER_BOTH", 84, 11, 24, 4, 1, 4, true, kNeutral},
    {L"BMP_ZO_SLIDERNORMAL_VER_LEFT", 84, 11, 24, 4, 1, 4, true, kNeutral},
    {L"BMP_ZO_SLIDERNORMAL_VER_RIGHT", 84, 11, 24, 4, 1, 4, true, kNeutral},
    {L"BMP_ZO_TABBTN_TOP", 84, 150, 8, 12, 6, 4, false, kNeutral},
    {L"BMP_ZO_TABBTN_BOTTOM", 84, 150, 8, 12, 6, 4, false, kNeutral},
    {L"BMP_ZO_TABBTN_LEFT", 100, 126, 8, 4, 18, 4, false, kNeutral},
    {L"BMP_ZO_TABBTN_RIGHT", 100, 126, 8, 4, 18, 4, false, kNeutral},
    {L"BMP_ZO_TABFRAME", 9, 27, 24, 3, 9, 0, false, kNeutral},
    // The tree-list image list takes 36 x 18 images.
    {L"BMP_ZO_TREELISTICON", 144, 18, 8, 4, 1, 4, true, kNeutral},
    {L"BMP_ZO_TREELISTICON_SRS", 108, 18, 8, 3, 1, 3, true, kKorean},
    // Message-box icons: information, question, error, warning; drawn in true colour.
    {L"#800", 32, 32, 24, 1, 1, 0, false, kNeutral},
    {L"#801", 32, 32, 24, 1, 1, 0, false, kNeutral},
    {L"#802", 32, 32, 24, 1, 1, 0, false, kNeutral},
    {L"#803", 32, 32, 24, 1, 1, 0, false, kNeutral},
};

HMODULE Library()
{
    static HMODULE module = [] {
        wchar_t path[MAX_PATH] = {};
        std::wstring dir(path, GetModuleFileNameW(nullptr, path, MAX_PATH));
        dir.resize(dir.find_last_of(L"\\/") + 1);
        return LoadLibraryExW((dir + ZO_WIDEN(ZO_LIBRARY_FILE)).c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    }();
    return module;
}

// The bytes of one resource in one language; empty when it is absent.
std::vector<BYTE> ResourceBytes(LPCWSTR type, LPCWSTR name, LANGID language)
{
    HRSRC found = FindResourceExW(Library(), type, name, language);
    if (!found)
        return {};
    const BYTE* data = static_cast<const BYTE*>(LockResource(LoadResource(Library(), found)));
    return data ? std::vector<BYTE>(data, data + SizeofResource(Library(), found)) : std::vector<BYTE>();
}

BOOL CALLBACK CollectLanguage(HMODULE, LPCWSTR, LPCWSTR, WORD language, LONG_PTR param)
{
    reinterpret_cast<std::set<LANGID>*>(param)->insert(language);
    return TRUE;
}

std::set<LANGID> Languages(LPCWSTR type, LPCWSTR name)
{
    std::set<LANGID> languages;
    EnumResourceLanguagesW(Library(), type, name, CollectLanguage, reinterpret_cast<LONG_PTR>(&languages));
    return languages;
}

BOOL CALLBACK CollectName(HMODULE, LPCWSTR, LPWSTR name, LONG_PTR param)
{
    reinterpret_cast<std::set<std::wstring>*>(param)->insert(
        IS_INTRESOURCE(name) ? L"#" + std::to_wstring(reinterpret_cast<ULONG_PTR>(name)) : std::wstring(name));
    return TRUE;
}

struct Dib {
    BITMAPINFOHEADER header{};
    std::vector<COLORREF> pixels;  // top row first

    COLORREF At(int x, int y) const { return pixels[static_cast<size_t>(y) * header.biWidth + x]; }
};

// Decodes a packed 8- or 24-bit BI_RGB DIB; false for any other format or for truncated data.
bool DecodeDib(const std::vector<BYTE>& bytes, Dib& dib)
{
    if (bytes.size() < sizeof(BITMAPINFOHEADER))
        return false;
    std::memcpy(&dib.header, bytes.data(), sizeof(BITMAPINFOHEADER));
    const BITMAPINFOHEADER& h = dib.header;
    if (h.biSize != sizeof(BITMAPINFOHEADER) || h.biCompression != BI_RGB || h.biPlanes != 1 || h.biWidth <= 0 ||
        h.biHeight <= 0 || (h.biBitCount != 8 && h.biBitCount != 24) || h.biClrUsed > 256)
        return false;
    const size_t colours = h.biBitCount == 8 ? (h.biClrUsed ? h.biClrUsed : 256) : 0;
    const size_t stride = (static_cast<size_t>(h.biWidth) * h.biBitCount + 31) / 32 * 4;
    const size_t offset = h.biSize + colours * sizeof(RGBQUAD);
    if (bytes.size() < offset + stride * h.biHeight)
        return false;
    std::vector<RGBQUAD> palette(colours);
    if (colours)
        std::memcpy(palette.data(), bytes.data() + h.biSize, colours * sizeof(RGBQUAD));
    dib.pixels.assign(static_cast<size_t>(h.biWidth) * h.biHeight, 0);
    for (int y = 0; y < h.biHeight; ++y) {
        const BYTE* row = bytes.data() + offset + stride * (h.biHeight - 1 - y);  // bottom-up
        for (int x = 0; x < h.biWidth; ++x) {
            COLORREF& out = dib.pixels[static_cast<size_t>(y) * h.biWidth + x];
            if (h.biBitCount == 24) {
                out = RGB(row[3 * x + 2], row[3 * x + 1], row[3 * x]);
            } else {
                if (row[x] >= colours)
                    return false;
                out = RGB(palette[row[x]].rgbRed, palette[row[x]].rgbGreen, palette[row[x]].rgbBlue);
            }
        }
    }
    return true;
}

bool BlocksEqual(const Dib& dib, int blockWidth, int a, int b)
{
    for (int y = 0; y < dib.header.biHeight; ++y)
        for (int x = 0; x < blockWidth; ++x)
            if (dib.At(a * blockWidth + x, y) != dib.At(b * blockWidth + x, y))
                return false;
    return true;
}

// A colour that a blend with magenta would produce, but that is not magenta itself.
bool NearlyMagenta(COLORREF c)
{
    return c != kMagenta && GetRValue(c) >= 0xC0 && GetBValue(c) >= 0xC0 && GetGValue(c) <= 0x40;
}

std::string Narrow(const wchar_t* text)
{
    std::string out;
    for (; *text; ++text)
        out += *text == L'#' ? std::string("ID") : std::string(1, static_cast<char>(*text));
    return out;
}

void PrintTo(const ExpectedBitmap& bitmap, std::ostream* out)
{
    *out << Narrow(bitmap.name);
}

class SkinBitmap : public testing::TestWithParam<ExpectedBitmap> {
protected:
    Dib Load() const
    {
        Dib dib;
        std::vector<BYTE> bytes = ResourceBytes(RT_BITMAP, GetParam().name, GetParam().language);
        EXPECT_FALSE(bytes.empty()) << "missing";
        EXPECT_TRUE(bytes.empty() || DecodeDib(bytes, dib)) << "not an uncompressed 8- or 24-bit DIB";
        return dib;
    }
};

TEST_P(SkinBitmap, HasItsSizeDepthAndCellGrid)
{
    const ExpectedBitmap& e = GetParam();
    Dib dib = Load();
    ASSERT_FALSE(dib.pixels.empty());
    EXPECT_EQ(e.width, dib.header.biWidth);
    EXPECT_EQ(e.height, dib.header.biHeight);
    EXPECT_EQ(e.bits, dib.header.biBitCount);
    // Integer unit sizes: no remainder pixels outside the cells.
    EXPECT_EQ(0, dib.header.biWidth % e.columns);
    EXPECT_EQ(0, dib.header.biHeight % e.rows);
}

TEST_P(SkinBitmap, LoadsAsADibSectionTheWayTheLibraryLoadsIt)
{
    const ExpectedBitmap& e = GetParam();
    HANDLE loaded = LoadImageW(Library(), e.name, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION);
    ASSERT_NE(nullptr, loaded);
    DIBSECTION section{};
    EXPECT_EQ(static_cast<int>(sizeof(DIBSECTION)), GetObjectW(loaded, sizeof(DIBSECTION), &section));
    EXPECT_EQ(e.width, section.dsBm.bmWidth);
    EXPECT_EQ(e.height, section.dsBm.bmHeight);
    EXPECT_EQ(e.bits, section.dsBmih.biBitCount);
    DeleteObject(loaded);
}

TEST_P(SkinBitmap, ExistsInItsOneLanguage)
{
    EXPECT_EQ(std::set<LANGID>{GetParam().language}, Languages(RT_BITMAP, GetParam().name));
}

TEST_P(SkinBitmap, UsesExactMagentaForTransparency)
{
    Dib dib = Load();
    int strays = 0;
    for (COLORREF c : dib.pixels)
        strays += NearlyMagenta(c) ? 1 : 0;
    EXPECT_EQ(0, strays);
}

class StateStrip : public SkinBitmap {};

TEST_P(StateStrip, StatesOrImagesDiffer)
{
    const int blocks = GetParam().distinctBlocks;
    Dib dib = Load();
    ASSERT_FALSE(dib.pixels.empty());
    const int blockWidth = dib.header.biWidth / blocks;
    for (int a = 0; a < blocks; ++a)
        for (int b = a + 1; b < blocks; ++b)
            EXPECT_FALSE(BlocksEqual(dib, blockWidth, a, b)) << "blocks " << a << " and " << b;
}

class RoundedStrip : public SkinBitmap {};

TEST_P(RoundedStrip, BlocksHaveTransparentCorners)
{
    Dib dib = Load();
    ASSERT_FALSE(dib.pixels.empty());
    const int blocks = GetParam().distinctBlocks;
    const int blockWidth = dib.header.biWidth / blocks;
    const int bottom = dib.header.biHeight - 1;
    for (int b = 0; b < blocks; ++b) {
        const int left = b * blockWidth, right = left + blockWidth - 1;
        EXPECT_EQ(kMagenta, dib.At(left, 0)) << "block " << b;
        EXPECT_EQ(kMagenta, dib.At(right, 0)) << "block " << b;
        EXPECT_EQ(kMagenta, dib.At(left, bottom)) << "block " << b;
        EXPECT_EQ(kMagenta, dib.At(right, bottom)) << "block " << b;
    }
}

template <typename Keep>
std::vector<ExpectedBitmap> BitmapsWhere(Keep keep)
{
    std::vector<ExpectedBitmap> kept;
    for (const ExpectedBitmap& e : kBitmaps)
        if (keep(e))
            kept.push_back(e);
    return kept;
}

std::string ParamName(const testing::TestParamInfo<ExpectedBitmap>& info)
{
    return Narrow(info.param.name);
}

INSTANTIATE_TEST_SUITE_P(All, SkinBitmap, testing::ValuesIn(kBitmaps), ParamName);
INSTANTIATE_TEST_SUITE_P(All, StateStrip,
                         testing::ValuesIn(BitmapsWhere([](const ExpectedBitmap& e) { return e.distinctBlocks > 0; })),
                         ParamName);
INSTANTIATE_TEST_SUITE_P(All, RoundedStrip,
                         testing::ValuesIn(BitmapsWhere([](const ExpectedBitmap& e) { return e.transparentCorners; })),
                         ParamName);

TEST(SkinBitmaps, TheLibraryHoldsNoOtherBitmaps)
{
    ASSERT_NE(nullptr, Library());
    std::set<std::wstring> expected, found;
    for (const ExpectedBitmap& e : kBitmaps)
        expected.insert(e.name);
    EnumResourceNamesW(Library(), RT_BITMAP, CollectName, reinterpret_cast<LONG_PTR>(&found));
    EXPECT_EQ(expected, found);
}

// ---------------------------------------------------------------- the PNG check-box strip

unsigned BigEndian(const std::vector<BYTE>& bytes, size_t at)
{
    return (unsigned(bytes[at]) << 24) | (unsigned(bytes[at + 1]) << 16) | (unsigned(bytes[at + 2]) << 8) | bytes[at + 3];
}

TEST(CheckRadioPicture, IsALanguageNeutralRgbaPngOf60By75)
{
    std::vector<BYTE> bytes = ResourceBytes(L"PNG", MAKEINTRESOURCEW(808), kNeutral);
    ASSERT_GE(bytes.size(), 33u);
    EXPECT_EQ(0, std::memcmp(bytes.data(), "\x89PNG\r\n\x1a\n", 8));
    EXPECT_EQ(0, std::memcmp(bytes.data() + 12, "IHDR", 4));
    EXPECT_EQ(60u, BigEndian(bytes, 16));
    EXPECT_EQ(75u, BigEndian(bytes, 20));
    EXPECT_EQ(8, bytes[24]);  // bits per channel
    EXPECT_EQ(6, bytes[25]);  // colour type: RGB with alpha
    EXPECT_EQ(std::set<LANGID>{kNeutral}, Languages(L"PNG", MAKEINTRESOURCEW(808)));
}

// Pixels of the PNG as GDI+ decodes it (ARGB, alpha not premultiplied); empty on failure.
std::vector<Gdiplus::ARGB> DecodePng(const std::vector<BYTE>& bytes, UINT& width, UINT& height)
{
    std::vector<Gdiplus::ARGB> pixels;
    Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok)
        return pixels;
    IStream* stream = nullptr;
    if (SUCCEEDED(CreateStreamOnHGlobal(nullptr, TRUE, &stream))) {
        ULONG written = 0;
        LARGE_INTEGER start{};
        stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), &written);
        stream->Seek(start, STREAM_SEEK_SET, nullptr);
        Gdiplus::GpBitmap* bitmap = nullptr;
        if (Gdiplus::DllExports::GdipCreateBitmapFromStream(stream, &bitmap) == Gdiplus::Ok) {
            Gdiplus::DllExports::GdipGetImageWidth(bitmap, &width);
            Gdiplus::DllExports::GdipGetImageHeight(bitmap, &height);
            pixels.resize(static_cast<size_t>(width) * height);
            for (UINT y = 0; y < height; ++y)
                for (UINT x = 0; x < width; ++x)
                    Gdiplus::DllExports::GdipBitmapGetPixel(bitmap, x, y, &pixels[y * width + x]);
            Gdiplus::DllExports::GdipDisposeImage(bitmap);
        }
        stream->Release();
    }
    Gdiplus::GdiplusShutdown(token);
    return pixels;
}

TEST(CheckRadioPicture, CellsHaveClearCornersSolidCentresSoftEdgesAndDistinctStates)
{
    UINT width = 0, height = 0;
    std::vector<Gdiplus::ARGB> argb = DecodePng(ResourceBytes(L"PNG", MAKEINTRESOURCEW(808), kNeutral), width, height);
    ASSERT_EQ(60u * 75u, argb.size());
    auto alpha = [&](UINT x, UINT y) { return argb[y * width + x] >> 24; };
    int soft = 0;
    for (Gdiplus::ARGB p : argb)
        soft += (p >> 24) > 0 && (p >> 24) < 255 ? 1 : 0;
    EXPECT_GT(soft, 60);  // anti-aliased outlines, not a hard mask
    const UINT cell = 15;
    for (UINT row = 0; row < 5; ++row) {
        for (UINT column = 0; column < 4; ++column) {
            const UINT x = column * cell, y = row * cell;
            EXPECT_EQ(0u, alpha(x, y)) << column << "," << row;
            EXPECT_EQ(0u, alpha(x + cell - 1, y + cell - 1)) << column << "," << row;
            EXPECT_EQ(255u, alpha(x + cell / 2, y + cell / 2)) << column << "," << row;
        }
        for (UINT a = 0; a < 4; ++a)
            for (UINT b = a + 1; b < 4; ++b) {
                bool same = true;
                for (UINT y = 0; y < cell; ++y)
                    for (UINT x = 0; x < cell; ++x)
                        same = same && argb[(row * cell + y) * width + a * cell + x] ==
                                           argb[(row * cell + y) * width + b * cell + x];
                EXPECT_FALSE(same) << "row " << row << " states " << a << " and " << b;
            }
    }
}

// ---------------------------------------------------------------- dialog template 817

class TemplateReader {
public:
    explicit TemplateReader(const std::vector<BYTE>& bytes) : bytes_(bytes) {}

    BYTE Byte() { return pos_ < bytes_.size() ? bytes_[pos_++] : (pos_++, 0); }
    WORD Word()
    {
        WORD low = Byte();
        return static_cast<WORD>(low | (Byte() << 8));
    }
    DWORD Dword()
    {
        DWORD low = Word();
        return low | (static_cast<DWORD>(Word()) << 16);
    }
    short Short() { return static_cast<short>(Word()); }
    // A string, or "#n" for an ordinal.
    std::wstring StringOrOrdinal()
    {
        WORD first = Word();
        if (first == 0xFFFF)
            return L"#" + std::to_wstring(Word());
        std::wstring text;
        for (WORD c = first; c != 0 && !Overrun(); c = Word())
            text += static_cast<wchar_t>(c);
        return text;
    }
    void AlignToDword() { pos_ = (pos_ + 3) & ~static_cast<size_t>(3); }
    void Skip(size_t count) { pos_ += count; }
    bool Overrun() const { return pos_ > bytes_.size(); }

private:
    const std::vector<BYTE>& bytes_;
    size_t pos_ = 0;
};

struct DialogItem {
    DWORD style = 0;
    DWORD exStyle = 0;
    short x = 0, y = 0, cx = 0, cy = 0;
    DWORD id = 0;
    std::wstring windowClass;
    std::wstring text;
};

struct DialogTemplate {
    WORD version = 0, signature = 0;
    DWORD style = 0, exStyle = 0;
    short cx = 0, cy = 0;
    std::wstring menu, windowClass, caption, face;
    WORD points = 0, weight = 0;
    BYTE italic = 0;
    std::vector<DialogItem> items;
};

DialogTemplate ParseDialogEx(const std::vector<BYTE>& bytes)
{
    DialogTemplate t;
    TemplateReader r(bytes);
    t.version = r.Word();
    t.signature = r.Word();
    r.Dword();  // help id
    t.exStyle = r.Dword();
    t.style = r.Dword();
    const WORD count = r.Word();
    r.Short();
    r.Short();
    t.cx = r.Short();
    t.cy = r.Short();
    t.menu = r.StringOrOrdinal();
    t.windowClass = r.StringOrOrdinal();
    t.caption = r.StringOrOrdinal();
    if (t.style & (DS_SETFONT | DS_SHELLFONT)) {
        t.points = r.Word();
        t.weight = r.Word();
        t.italic = r.Byte();
        r.Byte();  // character set
        t.face = r.StringOrOrdinal();
    }
    for (WORD i = 0; i < count && !r.Overrun(); ++i) {
        DialogItem item;
        r.AlignToDword();
        r.Dword();  // help id
        item.exStyle = r.Dword();
        item.style = r.Dword();
        item.x = r.Short();
        item.y = r.Short();
        item.cx = r.Short();
        item.cy = r.Short();
        item.id = r.Dword();
        item.windowClass = r.StringOrOrdinal();
        item.text = r.StringOrOrdinal();
        r.Skip(r.Word());  // creation data
        t.items.push_back(item);
    }
    return t;
}

bool IsClass(const std::wstring& windowClass, WORD atom, const wchar_t* name)
{
    return windowClass == L"#" + std::to_wstring(atom) || lstrcmpiW(windowClass.c_str(), name) == 0;
}

TEST(MessageBoxTemplate, ExistsInTheTenLanguages)
{
    EXPECT_EQ(kMessageBoxLanguages, Languages(RT_DIALOG, MAKEINTRESOURCEW(817)));
}

TEST(MessageBoxTemplate, HasTheFrameAndControlsInEveryLanguage)
{
    struct ExpectedItem {
        DWORD id;
        bool button;
        DWORD style;
        short x, y, cx, cy;
    };
    const ExpectedItem expected[] = {
        {802, true, BS_DEFPUSHBUTTON | WS_TABSTOP, 161, 84, 45, 14},
        {801, false, SS_BITMAP, 12, 11, 21, 20},
        {803, true, BS_PUSHBUTTON | WS_TABSTOP, 115, 84, 45, 14},
        {804, true, BS_PUSHBUTTON | WS_TABSTOP, 67, 84, 45, 14},
        {800, false, SS_LEFT | WS_GROUP, 38, 7, 168, 69},
        {805, true, BS_AUTOCHECKBOX | WS_TABSTOP, 41, 68, 128, 10},
    };
    for (LANGID language : kMessageBoxLanguages) {
        SCOPED_TRACE(language);
        DialogTemplate t = ParseDialogEx(ResourceBytes(RT_DIALOG, MAKEINTRESOURCEW(817), language));
        EXPECT_EQ(1, t.version);
        EXPECT_EQ(0xFFFF, t.signature);
        EXPECT_EQ(static_cast<DWORD>(WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_SETFONT |
                                     DS_SETFOREGROUND | DS_SYSMODAL),
                  t.style);
        EXPECT_EQ(static_cast<DWORD>(WS_EX_TOPMOST), t.exStyle);
        EXPECT_EQ(213, t.cx);
        EXPECT_EQ(100, t.cy);
        EXPECT_EQ(L"", t.menu);
        EXPECT_EQ(L"", t.windowClass);
        EXPECT_FALSE(t.caption.empty());
        EXPECT_EQ(8, t.points);
        EXPECT_EQ(400, t.weight);
        EXPECT_EQ(0, t.italic);
        EXPECT_EQ(L"Segoe UI", t.face);
        ASSERT_EQ(6u, t.items.size());
        for (size_t i = 0; i < t.items.size(); ++i) {
            const DialogItem& item = t.items[i];
            const ExpectedItem& e = expected[i];
            SCOPED_TRACE(e.id);
            EXPECT_EQ(e.id, item.id);
            EXPECT_TRUE(e.button ? IsClass(item.windowClass, 0x80, L"Button") : IsClass(item.windowClass, 0x82, L"Static"));
            EXPECT_EQ(WS_CHILD | WS_VISIBLE | e.style, item.style);
            EXPECT_EQ(0u, item.exStyle);
            EXPECT_EQ(e.x, item.x);
            EXPECT_EQ(e.y, item.y);
            EXPECT_EQ(e.cx, item.cx);
            EXPECT_EQ(e.cy, item.cy);
            EXPECT_FALSE(item.text.empty());
        }
        EXPECT_EQ(L"#801", t.items[1].text);  // the icon static names bitmap 801
    }
}

TEST(MessageBoxTemplate, EnglishTextsAndTranslatedCheckBox)
{
    DialogTemplate english = ParseDialogEx(ResourceBytes(RT_DIALOG, MAKEINTRESOURCEW(817), 1033));
    ASSERT_EQ(6u, english.items.size());
    EXPECT_EQ(L"Dialog", english.caption);
    EXPECT_EQ(L"OK", english.items[0].text);
    EXPECT_EQ(L"OK", english.items[2].text);
    EXPECT_EQ(L"OK", english.items[3].text);
    EXPECT_EQ(L"Static", english.items[4].text);
    EXPECT_EQ(L"Do not show this message again", english.items[5].text);
    for (LANGID language : kMessageBoxLanguages) {
        if (language == 1033)
            continue;
        DialogTemplate t = ParseDialogEx(ResourceBytes(RT_DIALOG, MAKEINTRESOURCEW(817), language));
        ASSERT_EQ(6u, t.items.size()) << language;
        EXPECT_NE(english.items[5].text, t.items[5].text) << language;
        EXPECT_NE(english.caption, t.caption) << language;
    }
}

// ---------------------------------------------------------------- string table 800-811

// The 16 strings of the block holding ids 800..815; empty when the block is missing.
std::vector<std::wstring> StringBlock(LANGID language)
{
    std::vector<BYTE> bytes = ResourceBytes(RT_STRING, MAKEINTRESOURCEW(800 / 16 + 1), language);
    std::vector<std::wstring> strings;
    if (bytes.empty())
        return strings;
    TemplateReader r(bytes);
    for (int i = 0; i < 16 && !r.Overrun(); ++i) {
        std::wstring text;
        for (WORD length = r.Word(); length > 0; --length)
            text += static_cast<wchar_t>(r.Word());
        strings.push_back(text);
    }
    return strings;
}

std::wstring StringOf(const std::vector<std::wstring>& block, int id)
{
    return block.size() == 16 ? block[id - 800] : std::wstring();
}

// The access key of a caption: the character after its single '&', upper-cased; 0 when the
// caption has none or more than one.
wchar_t AccessKey(const std::wstring& caption)
{
    size_t at = caption.find(L'&');
    if (at == std::wstring::npos || at + 1 >= caption.size() || caption.find(L'&', at + 1) != std::wstring::npos ||
        std::iswspace(caption[at + 1]))
        return 0;
    wchar_t key = caption[at + 1];
    CharUpperBuffW(&key, 1);
    return key;
}

TEST(CaptionStrings, ExistInTheTenLanguages)
{
    EXPECT_EQ(kMessageBoxLanguages, Languages(RT_STRING, MAKEINTRESOURCEW(800 / 16 + 1)));
}

TEST(CaptionStrings, EnglishTexts)
{
    const std::map<int, std::wstring> english = {
        {800, L"&Abort"}, {801, L"&Cancel"},   {802, L"Error"}, {803, L"&Ignore"},
        {804, L"Info"},   {805, L"&No"},       {806, L"&OK"},   {807, L"Question"},
        {808, L"&Retry"}, {809, L"Warning"},   {810, L"&Yes"},  {811, L"Reset range"},
    };
    std::vector<std::wstring> block = StringBlock(1033);
    ASSERT_EQ(16u, block.size());
    for (const auto& entry : english)
        EXPECT_EQ(entry.second, StringOf(block, entry.first)) << entry.first;
    for (int id = 812; id < 816; ++id)
        EXPECT_EQ(L"", StringOf(block, id)) << id;
}

TEST(CaptionStrings, EveryLanguageHasButtonKeysThatDoNotClashWithinOneBox)
{
    const int buttons[] = {800, 801, 803, 805, 806, 808, 810};
    const int titles[] = {802, 804, 807, 809, 811};
    // The button captions that share one message box (OK-Cancel, Abort-Retry-Ignore,
    // Yes-No-Cancel, Yes-No, Retry-Cancel).
    const std::vector<std::vector<int>> boxes = {
        {806, 801}, {800, 808, 803}, {810, 805, 801}, {810, 805}, {808, 801}};
    for (LANGID language : kMessageBoxLanguages) {
        SCOPED_TRACE(language);
        std::vector<std::wstring> block = StringBlock(language);
        ASSERT_EQ(16u, block.size());
        for (int id : buttons)
            EXPECT_NE(0, AccessKey(StringOf(block, id))) << id;
        for (int id : titles) {
            EXPECT_FALSE(StringOf(block, id).empty()) << id;
            EXPECT_EQ(std::wstring::npos, StringOf(block, id).find(L'&')) << id;
        }
        for (const std::vector<int>& box : boxes) {
            std::set<wchar_t> keys;
            for (int id : box)
                keys.insert(AccessKey(StringOf(block, id)));
            EXPECT_EQ(box.size(), keys.size()) << "box starting with " << box[0];
        }
    }
}

}  // namespace
