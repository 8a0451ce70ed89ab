// Inventory of ZoCtrl.dll's resources, read from the DLL as a data file: every skin bitmap's
// name, size, depth, cell grid and language, the check-box/radio PNG, the message-box dialog
// template and the caption strings in their ten languages.
#include <gtest/gtest.h>

#include <windows.h>

#include <cstring>
#include <map>
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
    LANGID language;
};

const ExpectedBitmap kBitmaps[] = {
    {L"BMP_ZO_BTNDEFPUSH_NORMAL", 60, 15, 24, 12, 3, kNeutral},
    {L"BMP_ZO_CMBDROPDOWNLIST", 36, 27, 24, 12, 3, kNeutral},
    {L"BMP_ZO_CMBDROPDOWNLISTBTN", 68, 24, 24, 4, 2, kNeutral},
    {L"BMP_ZO_CMBDROPDOWNLISTBTNBACK", 36, 27, 24, 12, 3, kNeutral},
    {L"BMP_ZO_DLGSYSBTNS", 64, 64, 24, 4, 4, kNeutral},
    {L"BMP_ZO_DLGSYSBTNS_3M", 72, 72, 8, 4, 4, kNeutral},
    {L"BMP_ZO_DLGSYSBTNS_5M", 96, 96, 8, 4, 4, kNeutral},
    {L"BMP_ZO_EDIT", 36, 27, 24, 12, 9, kNeutral},
    {L"BMP_ZO_HEADER", 36, 18, 24, 12, 3, kNeutral},
    {L"BMP_ZO_HEADERSORT", 28, 12, 24, 4, 2, kNeutral},
    {L"BMP_ZO_PROGRHOR", 48, 18, 8, 4, 1, kNeutral},
    {L"BMP_ZO_PROGRVER", 72, 12, 8, 4, 1, kNeutral},
    {L"BMP_ZO_SCROLLHOR_BACK", 40, 38, 8, 4, 2, kNeutral},
    {L"BMP_ZO_SCROLLHOR_BACK_3M", 48, 46, 24, 4, 2, kNeutral},
    {L"BMP_ZO_SCROLLHOR_BACK_5M", 64, 58, 24, 4, 2, kNeutral},
    {L"BMP_ZO_SCROLLHOR_BTNS", 104, 76, 8, 4, 4, kNeutral},
    {L"BMP_ZO_SCROLLHOR_BTNS_3M", 124, 92, 24, 4, 4, kNeutral},
    {L"BMP_ZO_SCROLLHOR_BTNS_5M", 168, 116, 24, 4, 4, kNeutral},
    {L"BMP_ZO_SCROLLHOR_THUMB", 96, 38, 8, 12, 2, kNeutral},
    {L"BMP_ZO_SCROLLHOR_THUMB_3M", 120, 46, 24, 12, 2, kNeutral},
    {L"BMP_ZO_SCROLLHOR_THUMB_5M", 156, 58, 24, 12, 2, kNeutral},
    {L"BMP_ZO_SCROLLVER_BACK", 76, 20, 8, 4, 2, kNeutral},
    {L"BMP_ZO_SCROLLVER_BACK_3M", 92, 24, 24, 4, 2, kNeutral},
    {L"BMP_ZO_SCROLLVER_BACK_5M", 116, 32, 24, 4, 2, kNeutral},
    {L"BMP_ZO_SCROLLVER_BTNS", 76, 104, 8, 4, 4, kNeutral},
    {L"BMP_ZO_SCROLLVER_BTNS_3M", 92, 124, 24, 4, 4, kNeutral},
    {L"BMP_ZO_SCROLLVER_BTNS_5M", 116, 168, 24, 4, 4, kNeutral},
    {L"BMP_ZO_SCROLLVER_THUMB", 76, 48, 8, 4, 6, kNeutral},
    {L"BMP_ZO_SCROLLVER_THUMB_3M", 92, 60, 24, 4, 6, kNeutral},
    {L"BMP_ZO_SCROLLVER_THUMB_5M", 116, 78, 24, 4, 6, kNeutral},
    {L"BMP_ZO_SKIN_FRAMEWNDBORDER", 27, 36, 8, 3, 4, kNeutral},
    {L"BMP_ZO_SLIDERNORMAL_HOR_BOTH", 44, 21, 24, 4, 1, kNeutral},
    {L"BMP_ZO_SLIDERNORMAL_HOR_LEFT", 44, 21, 24, 4, 1, kNeutral},
    {L"BMP_ZO_SLIDERNORMAL_HOR_RIGHT", 44, 21, 24, 4, 1, kNeutral},
    {L"BMP_ZO_SLIDERNORMAL_VER_BOTH", 84, 11, 24, 4, 1, kNeutral},
    {L"BMP_ZO_SLIDERNORMAL_VER_LEFT", 84, 11, 24, 4, 1, kNeutral},
    {L"BMP_ZO_SLIDERNORMAL_VER_RIGHT", 84, 11, 24, 4, 1, kNeutral},
    {L"BMP_ZO_TABBTN_TOP", 84, 150, 8, 12, 6, kNeutral},
    {L"BMP_ZO_TABBTN_BOTTOM", 84, 150, 8, 12, 6, kNeutral},
    {L"BMP_ZO_TABBTN_LEFT", 100, 126, 8, 4, 18, kNeutral},
    {L"BMP_ZO_TABBTN_RIGHT", 100, 126, 8, 4, 18, kNeutral},
    {L"BMP_ZO_TABFRAME", 9, 27, 24, 3, 9, kNeutral},
    // The tree-list image list takes 36 x 18 images.
    {L"BMP_ZO_TREELISTICON", 144, 18, 8, 4, 1, kNeutral},
    {L"BMP_ZO_TREELISTICON_SRS", 108, 18, 8, 3, 1, kKorean},
    // Message-box icons: information, question, error, warning; drawn in true colour.
    {L"#800", 32, 32, 24, 1, 1, kNeutral},
    {L"#801", 32, 32, 24, 1, 1, kNeutral},
    {L"#802", 32, 32, 24, 1, 1, kNeutral},
    {L"#803", 32, 32, 24, 1, 1, kNeutral},
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

std::string ParamName(const testing::TestParamInfo<ExpectedBitmap>& info)
{
    return Narrow(info.param.name);
}

INSTANTIATE_TEST_SUITE_P(All, SkinBitmap, testing::ValuesIn(kBitmaps), ParamName);

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

// ---------------------------------------------------------------- dialog template 817

TEST(MessageBoxTemplate, ExistsInTheTenLanguages)
{
    EXPECT_EQ(kMessageBoxLanguages, Languages(RT_DIALOG, MAKEINTRESOURCEW(817)));
}

// ---------------------------------------------------------------- string table 800-811

// The 16 strings of the block holding ids 800..815; empty when the block is missing.
std::vector<std::wstring> StringBlock(LANGID language)
{
    std::vector<BYTE> bytes = ResourceBytes(RT_STRING, MAKEINTRESOURCEW(800 / 16 + 1), language);
    std::vector<std::wstring> strings;
    if (bytes.empty())
        return strings;
    // Each string: a WORD length, then that many UTF-16 units.
    size_t at = 0;
    auto word = [&] { const WORD w = at + 1 < bytes.size() ? WORD(bytes[at] | (bytes[at + 1] << 8)) : 0; at += 2; return w; };
    for (int i = 0; i < 16 && at < bytes.size(); ++i) {
        std::wstring text;
        for (WORD length = word(); length > 0; --length)
            text += static_cast<wchar_t>(word());
        strings.push_back(text);
    }
    return strings;
}

std::wstring StringOf(const std::vector<std::wstring>& block, int id)
{
    return block.size() == 16 ? block[id - 800] : std::wstring();
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

}  // namespace
