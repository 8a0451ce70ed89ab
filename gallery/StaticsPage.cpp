#include <afxwin.h>

#include "StaticsPage.h"
#include "resources/resource.h"

using namespace ZoControls;

namespace {

enum StaticClass
{
    Class_Static,
    Class_Big,
    Class_Huge
};

struct TextSample
{
    const wchar_t* label;
    const wchar_t* text;
    StaticClass staticClass;
    DWORD style;
    DWORD exStyle;
    int height;
};

const wchar_t kLongPath[] = L"C:\\Program Files\\ZoCtrl\\Gallery\\Samples\\a rather long file name.txt";
const wchar_t kLongSentence[] = L"A sentence whose words cannot all fit on the single line it is given here";

const TextSample kTextSamples[] = {
    {L"SS_LEFT, word wrap", L"Left-aligned text long enough to wrap onto a second line.", Class_Static, SS_LEFT, 0,
     36},
    {L"SS_CENTER", L"Centred text that wraps when it is longer than one line.", Class_Static, SS_CENTER, 0, 36},
    {L"SS_RIGHT", L"Right-aligned text, wrapped as the left one is.", Class_Static, SS_RIGHT, 0, 36},
    {L"SS_SIMPLE", L"One line and never wrapped, however long it grows", Class_Static, SS_SIMPLE, 0, 36},
    {L"SS_LEFTNOWORDWRAP, tabs", L"Tab\texpanded\tand the line is clipped, not wrapped", Class_Static,
     SS_LEFTNOWORDWRAP, 0, 36},
    {L"SS_CENTERIMAGE: centred vertically", L"Left, middle", Class_Static, SS_LEFT | SS_CENTERIMAGE, 0, 36},
    {L"SS_CENTER | SS_CENTERIMAGE", L"Centred both ways", Class_Static, SS_CENTER | SS_CENTERIMAGE, 0, 36},
    // Ellipses shorten single lines: these samples do not wrap.
    {L"SS_ENDELLIPSIS", kLongPath, Class_Static, SS_LEFTNOWORDWRAP | SS_ENDELLIPSIS, 0, 18},
    {L"SS_PATHELLIPSIS", kLongPath, Class_Static, SS_LEFTNOWORDWRAP | SS_PATHELLIPSIS, 0, 18},
    {L"SS_WORDELLIPSIS", kLongSentence, Class_Static, SS_LEFTNOWORDWRAP | SS_WORDELLIPSIS, 0, 18},
    {L"Prefix: & underlines", L"&Mnemonic and a double && ampersand", Class_Static, SS_LEFT, 0, 18},
    {L"SS_NOPREFIX", L"&Mnemonic and a double && ampersand", Class_Static, SS_LEFT | SS_NOPREFIX, 0, 18},
    {L"CZoStatic (font role 1)", L"Regular label", Class_Static, SS_LEFT, 0, 36},
    {L"CZoStaticBig (font role 2)", L"Big label", Class_Big, SS_LEFT, 0, 36},
    {L"CZoStaticHuge (font role 4)", L"Huge label", Class_Huge, SS_LEFT, 0, 36},
    {L"Border: WS_BORDER", L"Outlined in the frame colour", Class_Static, SS_CENTER | SS_CENTERIMAGE | WS_BORDER, 0,
     36},
    {L"Border: WS_EX_STATICEDGE", L"Outlined in the edit colour", Class_Static, SS_CENTER | SS_CENTERIMAGE,
     WS_EX_STATICEDGE, 36},
    {L"Border: WS_EX_CLIENTEDGE", L"Outlined in the edit colour", Class_Static, SS_CENTER | SS_CENTERIMAGE,
     WS_EX_CLIENTEDGE, 36},
};
const int kTextSampleCount = static_cast<int>(sizeof(kTextSamples) / sizeof(kTextSamples[0]));

const DWORD kChild = WS_CHILD | WS_VISIBLE;

const UINT kDisableTextsId = 1200;
const UINT kChangeTextId = 1201;
const UINT kClickableId = 1202;

// Layout, in page pixels.
const int kMargin = 10;
const int kLabelHeight = 16;
const CRect kTextCell(kMargin, 46, kMargin + 220, 46);
const CSize kTextStep(230, 80);
const int kTextColumns = 3;
const int kLiveTop = 520;
const int kRightColumn = 720;
const int kPicturesTop = 8;
const CRect kPictureCell(kRightColumn, kPicturesTop + 42, kRightColumn + 72, kPicturesTop + 114);
const CSize kPictureStep(78, 0);
const int kIconsTop = 136;
const int kFramesTop = 212;
const int kLinesTop = 320;
const int kLineLabelWidth = 100;

CStatic* NewStatic(StaticClass staticClass)
{
    switch (staticClass) {
    case Class_Big:
        return new CZoStaticBig;
    case Class_Huge:
        return new CZoStaticHuge;
    default:
        return new CZoStatic;
    }
}

struct LineSample
{
    const wchar_t* label;
    CStaticLine::E_StaticLine_Style style;
};

const LineSample kLineSamples[] = {
    {L"Solid", CStaticLine::StaticLine_Single},
    {L"Dotted", CStaticLine::StaticLine_Dot},
    {L"Double: no line", CStaticLine::StaticLine_Double},
    {L"Dual dot: no line", CStaticLine::StaticLine_DualDot},
};
const int kLineSampleCount = static_cast<int>(sizeof(kLineSamples) / sizeof(kLineSamples[0]));

// Line, shadow and background of the samples in colours of their own.
void SetOwnLineColours(CStaticLine& line)
{
    line.SetStaticColors(RGB(230, 90, 60), RGB(30, 30, 30), RGB(90, 90, 90));
}

} // namespace

BEGIN_MESSAGE_MAP(CStaticsPage, CGalleryPage)
    ON_BN_CLICKED(kDisableTextsId, &CStaticsPage::OnDisableTexts)
    ON_BN_CLICKED(kChangeTextId, &CStaticsPage::OnChangeText)
    ON_STN_CLICKED(kClickableId, &CStaticsPage::OnStaticClicked)
END_MESSAGE_MAP()

CStaticsPage::CStaticsPage() : m_pChangingText(NULL), m_pClickable(NULL), m_nTextChanges(0), m_nStaticClicks(0)
{
}

CStaticsPage::~CStaticsPage()
{
    for (size_t i = 0; i < m_controls.size(); ++i)
        delete m_controls[i];
    for (size_t i = 0; i < m_bitmaps.size(); ++i)
        ::DeleteObject(m_bitmaps[i]);
}

CStatic* CStaticsPage::_add(CStatic* pStatic, const wchar_t* text, DWORD style, const CRect& rect, DWORD exStyle,
                            UINT nID)
{
    m_controls.push_back(pStatic);
    pStatic->CreateEx(exStyle, L"STATIC", text, kChild | style, rect, this, nID);
    return pStatic;
}

HBITMAP CStaticsPage::_loadLibraryBitmap(LPCWSTR name)
{
    HBITMAP hBitmap = LoadLibraryBitmap(name);
    if (hBitmap)
        m_bitmaps.push_back(hBitmap);
    return hBitmap;
}

BOOL CStaticsPage::OnCreatePage()
{
    // Frames, group boxes and thick edges leave pixels unpainted: the page paints beneath its
    // children so that nothing from an earlier page shows there.
    ModifyStyle(WS_CLIPCHILDREN, 0);
    _createTexts();
    _createLive();
    _createPictures();
    _createIcons();
    _createFrames();
    _createLines();
    return TRUE;
}

void CStaticsPage::_createTexts()
{
    m_labels.AddHeading(kMargin, 8, L"Text styles");
    for (int i = 0; i < kTextSampleCount; ++i) {
        const TextSample& sample = kTextSamples[i];
        CRect cell = GridCell(kTextCell, kTextStep, i % kTextColumns, i / kTextColumns);
        m_labels.AddLabel(CRect(cell.left, cell.top - kLabelHeight - 2, cell.right, cell.top - 2), sample.label);
        cell.bottom = cell.top + sample.height;
        m_labels.AddOutline(cell);
        m_texts.push_back(_add(NewStatic(sample.staticClass), sample.text, sample.style, cell, sample.exStyle));
    }
}

void CStaticsPage::_createLive()
{
    m_labels.AddHeading(kMargin, kLiveTop, L"Live: repainted as their text and enabled state change");
    const CRect first(kMargin, kLiveTop + 26, kMargin + 160, kLiveTop + 50);
    const CSize step(170, 34);

    m_disableTexts.Create(L"Disable the texts", kChild | WS_TABSTOP | BS_AUTOCHECKBOX, GridCell(first, step, 0, 0),
                          this, kDisableTextsId);
    m_changeText.Create(L"Change the text", kChild | WS_TABSTOP | BS_PUSHBUTTON, GridCell(first, step, 1, 0), this,
                        kChangeTextId);
    m_pChangingText = _add(new CZoStatic, L"Not changed yet", SS_LEFT | SS_CENTERIMAGE, GridCell(first, step, 2, 0));

    CZoStatic* pClickable = new CZoStatic;
    m_pClickable = _add(pClickable, L"Click this static (SS_NOTIFY)", SS_CENTER | SS_CENTERIMAGE | SS_NOTIFY | WS_BORDER,
                        GridCell(first, step, 0, 1), 0, kClickableId);

    CZoStatic* pOwnColours = new CZoStatic;
    pOwnColours->SetTextTheme(ThemeSlot(GallerySlot_CaptionText));
    pOwnColours->SetBackGroundColor(RGB(50, 80, 120));
    _add(pOwnColours, L"Own text slot and background", SS_CENTER | SS_CENTERIMAGE, GridCell(first, step, 1, 1));
    m_texts.push_back(pOwnColours);
}

void CStaticsPage::OnDisableTexts()
{
    const BOOL enable = m_disableTexts.GetCheck() != BST_CHECKED;
    for (size_t i = 0; i < m_texts.size(); ++i)
        m_texts[i]->EnableWindow(enable);
}

void CStaticsPage::OnChangeText()
{
    ShowNextCount(m_pChangingText, L"Changed", m_nTextChanges);
}

void CStaticsPage::OnStaticClicked()
{
    ShowNextCount(m_pClickable, L"Clicked", m_nStaticClicks);
}

// The system resizes a picture static to its picture unless it centres it or keeps its size
// (SS_REALSIZECONTROL); the stretched sample keeps its size that way.
void CStaticsPage::_createPictures()
{
    m_labels.AddHeading(kRightColumn, kPicturesTop, L"Pictures (SS_BITMAP)");
    struct PictureSample
    {
        const wchar_t* label;
        LPCWSTR bitmap;
        DWORD style;
    };
    const PictureSample samples[] = {
        {L"Stretched", MAKEINTRESOURCEW(IDB_ZO_MSGBOX_INFORMATION), SS_REALSIZECONTROL},
        {L"Real size", MAKEINTRESOURCEW(IDB_ZO_MSGBOX_QUESTION), SS_REALSIZEIMAGE},
        {L"Centred", MAKEINTRESOURCEW(IDB_ZO_MSGBOX_ERROR), SS_REALSIZEIMAGE | SS_CENTERIMAGE},
        {L"Magenta key", L"BMP_ZO_DLGSYSBTNS", SS_REALSIZEIMAGE | SS_CENTERIMAGE},
    };
    for (int i = 0; i < 4; ++i) {
        const CRect cell = GridCell(kPictureCell, kPictureStep, i, 0);
        m_labels.AddLabel(CRect(cell.left, cell.top - kLabelHeight - 2, cell.right + 4, cell.top - 2),
                          samples[i].label);
        CStatic* pPicture = _add(new CZoStatic, L"", SS_BITMAP | samples[i].style, cell);
        const HBITMAP hBitmap = _loadLibraryBitmap(samples[i].bitmap);
        if (hBitmap)
            pPicture->SetBitmap(hBitmap);
    }
}

void CStaticsPage::_createIcons()
{
    m_labels.AddHeading(kRightColumn, kIconsTop, L"Icons (SS_ICON), system icons");
    const LPCWSTR icons[] = {IDI_INFORMATION, IDI_WARNING, IDI_ERROR, IDI_QUESTION, IDI_APPLICATION};
    const CRect first(kRightColumn, kIconsTop + 26, kRightColumn + 32, kIconsTop + 58);
    for (int i = 0; i < 5; ++i) {
        CStatic* pIcon = _add(new CZoStatic, L"", SS_ICON, GridCell(first, CSize(50, 0), i, 0));
        pIcon->SetIcon(::LoadIcon(NULL, icons[i]));
    }
}

// A frame's top edge sits half the window font's height down, under its caption.
void CStaticsPage::_createFrames()
{
    m_labels.AddHeading(kRightColumn, kFramesTop, L"Frames");
    const DWORD styles[] = {SS_BLACKFRAME, SS_GRAYFRAME, SS_WHITEFRAME};
    const wchar_t* const captions[] = {L"Black frame", L"Grey frame", L"White frame"};
    const CRect first(kRightColumn, kFramesTop + 26, kRightColumn + 96, kFramesTop + 90);
    const CZoThemeManager* pTheme = CZoThemeManager::GetInstance();
    const CFont* pFont = pTheme ? pTheme->GetCacheGDIFont(ZoThemeFont_1, ZoMonitorSize_Normal) : NULL;
    for (int i = 0; i < 3; ++i) {
        CStatic* pFrame = _add(new CZoStatic, captions[i], styles[i], GridCell(first, CSize(104, 0), i, 0));
        if (pFont)
            pFrame->SetFont(const_cast<CFont*>(pFont), FALSE);
    }
}

void CStaticsPage::_createLines()
{
    m_labels.AddHeading(kRightColumn, kLinesTop, L"Lines (CStaticLine)");
    const int lineLeft = kRightColumn + kLineLabelWidth;
    const CRect firstLine(lineLeft, kLinesTop + 28, lineLeft + 200, kLinesTop + 38);
    const CSize lineStep(0, 22);
    for (int i = 0; i < kLineSampleCount; ++i) {
        const CRect line = GridCell(firstLine, lineStep, 0, i);
        m_labels.AddLabel(CRect(kRightColumn, line.top - 3, lineLeft - 4, line.bottom + 3), kLineSamples[i].label);
        CStaticLine* pLine = new CStaticLine;
        pLine->SetLineStyle(kLineSamples[i].style);
        _add(pLine, L"", 0, line);
    }
    const CRect ownColours = GridCell(firstLine, lineStep, 0, kLineSampleCount);
    m_labels.AddLabel(CRect(kRightColumn, ownColours.top - 3, lineLeft - 4, ownColours.bottom + 3), L"Own colours");
    CStaticLine* pOwnColours = new CStaticLine;
    pOwnColours->SetLineStyle(CStaticLine::StaticLine_Single);
    SetOwnLineColours(*pOwnColours);
    _add(pOwnColours, L"", 0, ownColours);

    // Narrower than tall: the same styles run vertically.
    const int verticalTop = ownColours.bottom + 34;
    m_labels.AddLabel(CRect(kRightColumn, verticalTop - 20, kRightColumn + 300, verticalTop - 4),
                      L"Vertical: solid, dotted, own colours");
    const CRect firstVertical(kRightColumn + 10, verticalTop, kRightColumn + 20, verticalTop + 100);
    const CStaticLine::E_StaticLine_Style verticalStyles[] = {CStaticLine::StaticLine_Single,
                                                              CStaticLine::StaticLine_Dot,
                                                              CStaticLine::StaticLine_Single};
    for (int i = 0; i < 3; ++i) {
        CStaticLine* pLine = new CStaticLine;
        pLine->SetLineStyle(verticalStyles[i]);
        if (i == 2)
            SetOwnLineColours(*pLine);
        _add(pLine, L"", 0, GridCell(firstVertical, CSize(40, 0), i, 0));
    }
}

void CStaticsPage::DrawPage(CDC& dc, const CRect& client)
{
    CGalleryPage::DrawPage(dc, client);
    m_labels.Draw(dc);
}
