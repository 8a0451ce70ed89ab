#include <afxwin.h>

#include "ButtonsPage.h"
#include "resources/resource.h"

using namespace ZoControls;

namespace {

enum ButtonClass
{
    Class_Button,
    Class_Flat,
    Class_Toggle
};

// The columns of the state grid.
enum StateColumn
{
    Column_Normal,
    Column_Hot,
    Column_Pressed,
    Column_Disabled,
    Column_Count
};

struct StateRow
{
    const wchar_t* label;
    const wchar_t* caption;
    ButtonClass buttonClass;
    DWORD style;
    int check;
};

// Non-automatic kinds, so that clicking a cell leaves its check state as the row says.
const StateRow kStateRows[] = {
    {L"Push", L"Push", Class_Button, BS_PUSHBUTTON, BST_UNCHECKED},
    {L"Default push", L"Default", Class_Button, BS_DEFPUSHBUTTON, BST_UNCHECKED},
    {L"Check box", L"Check box", Class_Button, BS_3STATE, BST_UNCHECKED},
    {L"Check box, checked", L"Check box", Class_Button, BS_3STATE, BST_CHECKED},
    {L"Check box, indeterminate", L"Check box", Class_Button, BS_3STATE, BST_INDETERMINATE},
    {L"Check box, text left", L"Text left", Class_Button, BS_3STATE | BS_LEFTTEXT, BST_CHECKED},
    {L"Radio", L"Radio", Class_Button, BS_RADIOBUTTON, BST_UNCHECKED},
    {L"Radio, checked", L"Radio", Class_Button, BS_RADIOBUTTON, BST_CHECKED},
    {L"Push-like check", L"Push-like", Class_Button, BS_CHECKBOX | BS_PUSHLIKE, BST_UNCHECKED},
    {L"Push-like, checked", L"Push-like", Class_Button, BS_CHECKBOX | BS_PUSHLIKE, BST_CHECKED},
    {L"Flat push", L"Flat", Class_Flat, BS_PUSHBUTTON, BST_UNCHECKED},
    {L"Toggle", L"Toggle", Class_Toggle, BS_CHECKBOX, BST_UNCHECKED},
    {L"Toggle, checked", L"Toggle", Class_Toggle, BS_CHECKBOX, BST_CHECKED},
};
const int kStateRowCount = static_cast<int>(sizeof(kStateRows) / sizeof(kStateRows[0]));
const wchar_t* const kStateColumnLabels[Column_Count] = {L"Normal", L"Hot", L"Pressed", L"Disabled"};

const UINT kStateGridFirstId = 1000;
const UINT kStateGridLastId = kStateGridFirstId + kStateRowCount * Column_Count - 1;
const UINT kCounterId = 1100;
const UINT kFirstFreeId = 1101;

const DWORD kChild = WS_CHILD | WS_VISIBLE;

// Layout, in page pixels.
const int kMargin = 10;
const int kRowLabelWidth = 138;
const CRect kStateCell(kMargin + kRowLabelWidth + 2, 46, kMargin + kRowLabelWidth + 102, 68);
const CSize kStateStep(106, 26);
const int kLiveTop = 400;
const CRect kLiveCell(kMargin, kLiveTop + 26, kMargin + 128, kLiveTop + 50);
const CSize kLiveStep(134, 30);
const int kGroupTop = 560;
const int kRightColumn = 580;
const int kPlacementLabelWidth = 90;
const int kPlacementWidth = 84;
const int kPlacementStep = 88;
const int kSourcesTop = 220;
const CRect kSourceCell(kRightColumn, kSourcesTop + 26, kRightColumn + 104, kSourcesTop + 74);
const CSize kSourceStep(112, 56);
const int kColoursTop = 366;
const int kMsgBoxTop = 460;

// Stays hot once hovered: the leave notification is dropped, so the cell keeps its hot look
// while the mouse is elsewhere (the hovering flag can only be set by the mouse).
template <class TButton>
class CPinnedHotButton : public TButton
{
protected:
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_MOUSELEAVE)
            return 0;
        return TButton::WindowProc(message, wParam, lParam);
    }
};

CZoButton* NewButton(ButtonClass buttonClass, bool pinnedHot)
{
    switch (buttonClass) {
    case Class_Flat:
        return pinnedHot ? new CPinnedHotButton<CZoFlatButton> : new CZoFlatButton;
    case Class_Toggle:
        return pinnedHot ? new CPinnedHotButton<CZoToggleButton> : new CZoToggleButton;
    default:
        return pinnedHot ? new CPinnedHotButton<CZoButton> : new CZoButton;
    }
}

struct PlacementRow
{
    const wchar_t* label;
    DWORD style;
    int height;
};

// The image goes where the vertical bit puts it: BS_TOP draws the text above the image,
// BS_BOTTOM below it.
const PlacementRow kPlacementRows[] = {
    {L"Image left", 0, 30},
    {L"Image above", BS_BOTTOM, 56},
    {L"Image below", BS_TOP, 56},
};

struct PlacementColumn
{
    const wchar_t* label;
    DWORD style;
    bool centredBlock;
};

const PlacementColumn kPlacementColumns[] = {
    {L"Text left", BS_LEFT, false},
    {L"Centred", 0, false},
    {L"Text right", BS_RIGHT, false},
    {L"Centred block", 0, true},
};

} // namespace

BEGIN_MESSAGE_MAP(CButtonsPage, CGalleryPage)
    ON_CONTROL_RANGE(BN_CLICKED, kStateGridFirstId, kStateGridLastId, &CButtonsPage::OnStateCellClicked)
    ON_BN_CLICKED(kCounterId, &CButtonsPage::OnCounterClicked)
END_MESSAGE_MAP()

CButtonsPage::CButtonsPage() : m_pCounter(NULL), m_nClicks(0), m_hWarningBitmap(NULL), m_nNextId(kFirstFreeId)
{
}

CButtonsPage::~CButtonsPage()
{
    for (size_t i = 0; i < m_buttons.size(); ++i)
        delete m_buttons[i];
    if (m_hWarningBitmap)
        ::DeleteObject(m_hWarningBitmap);
}

CZoButton* CButtonsPage::_add(CZoButton* pButton, const wchar_t* caption, DWORD style, const CRect& rect, UINT nID)
{
    m_buttons.push_back(pButton);
    pButton->Create(caption, kChild | style, rect, this, nID ? nID : m_nNextId++);
    return pButton;
}

BOOL CButtonsPage::OnCreatePage()
{
    // Frames, group boxes and thick edges leave pixels unpainted: the page paints beneath its
    // children so that nothing from an earlier page shows there.
    ModifyStyle(WS_CLIPCHILDREN, 0);
    _createStateGrid();
    _createLiveButtons();
    _createGroupBoxes();
    _createImagePlacements();
    _createImageSources();
    _createColoursAndFonts();
    return TRUE;
}

void CButtonsPage::_createStateGrid()
{
    m_labels.AddHeading(kMargin, 8, L"Every kind in every state");
    m_labels.AddColumnLabels(kStateCell.left, kStateCell.top, kStateStep.cx, kStateColumnLabels, Column_Count);
    for (int row = 0; row < kStateRowCount; ++row) {
        const StateRow& kind = kStateRows[row];
        const CRect first = GridCell(kStateCell, kStateStep, 0, row);
        m_labels.AddLabel(CRect(kMargin, first.top, kMargin + kRowLabelWidth, first.bottom), kind.label);
        for (int column = 0; column < Column_Count; ++column) {
            const UINT nID = kStateGridFirstId + row * Column_Count + column;
            CZoButton* pButton = _add(NewButton(kind.buttonClass, column == Column_Hot), kind.caption,
                                      WS_TABSTOP | kind.style, GridCell(kStateCell, kStateStep, column, row), nID);
            pButton->SetCheck(kind.check);
            if (column == Column_Hot)
                pButton->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(1, 1));
            else if (column == Column_Pressed)
                pButton->SetState(TRUE);
            else if (column == Column_Disabled)
                pButton->EnableWindow(FALSE);
        }
    }
}

// A click releases the pushed state: the pressed column takes it back.
void CButtonsPage::OnStateCellClicked(UINT nID)
{
    if ((nID - kStateGridFirstId) % Column_Count != Column_Pressed)
        return;
    CButton* pButton = static_cast<CButton*>(GetDlgItem(static_cast<int>(nID)));
    if (pButton)
        pButton->SetState(TRUE);
}

void CButtonsPage::_createLiveButtons()
{
    m_labels.AddHeading(kMargin, kLiveTop, L"Live: hover, press and click");
    m_pCounter = _add(new CZoButton, L"Clicked 0 times", WS_TABSTOP | BS_PUSHBUTTON,
                      GridCell(kLiveCell, kLiveStep, 0, 0), kCounterId);
    _add(new CZoButton, L"Default push", WS_TABSTOP | BS_DEFPUSHBUTTON, GridCell(kLiveCell, kLiveStep, 1, 0));
    _add(new CZoFlatButton, L"Flat push", WS_TABSTOP | BS_PUSHBUTTON, GridCell(kLiveCell, kLiveStep, 2, 0));
    CZoButton* pTip = _add(new CZoButton, L"Hover for a tooltip", WS_TABSTOP | BS_PUSHBUTTON,
                           GridCell(kLiveCell, kLiveStep, 3, 0));
    pTip->SetToolTipText(L"CZoButton's tooltip, relayed from its own mouse messages");

    _add(new CZoButton, L"Auto check box", WS_TABSTOP | BS_AUTOCHECKBOX, GridCell(kLiveCell, kLiveStep, 0, 1));
    _add(new CZoButton, L"Auto three-state", WS_TABSTOP | BS_AUTO3STATE, GridCell(kLiveCell, kLiveStep, 1, 1))
        ->SetCheck(BST_INDETERMINATE);
    _add(new CZoButton, L"Push-like check", WS_TABSTOP | BS_AUTOCHECKBOX | BS_PUSHLIKE,
         GridCell(kLiveCell, kLiveStep, 2, 1));
    _add(new CZoToggleButton, L"Toggle", WS_TABSTOP | BS_AUTOCHECKBOX, GridCell(kLiveCell, kLiveStep, 3, 1))
        ->SetCheck(BST_CHECKED);

    const wchar_t* const radios[] = {L"Radio one", L"Radio two", L"Radio three"};
    for (int i = 0; i < 3; ++i) {
        CZoButton* pRadio = _add(new CZoButton, radios[i], BS_AUTORADIOBUTTON | (i == 0 ? WS_GROUP | WS_TABSTOP : 0),
                                 GridCell(kLiveCell, kLiveStep, i, 2));
        pRadio->SetCheck(i == 0 ? BST_CHECKED : BST_UNCHECKED);
    }
    _add(new CZoToggleButton, L"Toggle radio", WS_GROUP | WS_TABSTOP | BS_AUTORADIOBUTTON,
         GridCell(kLiveCell, kLiveStep, 3, 2));

    CRect multiline = GridCell(kLiveCell, kLiveStep, 0, 3);
    multiline.right = GridCell(kLiveCell, kLiveStep, 1, 3).right;
    multiline.bottom += 6;
    // Multi-line captions break at line feeds only.
    _add(new CZoButton, L"A multi-line check box\nwith its second line",
         WS_GROUP | WS_TABSTOP | BS_AUTOCHECKBOX | BS_MULTILINE, multiline);
}

void CButtonsPage::OnCounterClicked()
{
    ShowNextCount(m_pCounter, L"Clicked", m_nClicks);
}

// Group boxes come after their contents, so they lie below them in the z-order.
void CButtonsPage::_createGroupBoxes()
{
    m_labels.AddHeading(kMargin, kGroupTop, L"Group boxes: caption left, centred, right");
    const DWORD alignments[] = {BS_LEFT, BS_CENTER, BS_RIGHT};
    const wchar_t* const captions[] = {L"Left caption", L"Centred caption", L"Right caption"};
    const CRect firstBox(kMargin, kGroupTop + 26, kMargin + 170, kGroupTop + 126);
    const CSize boxStep(180, 0);
    for (int i = 0; i < 3; ++i) {
        const CRect box = GridCell(firstBox, boxStep, i, 0);
        const CRect option(box.left + 12, box.top + 26, box.right - 12, box.top + 48);
        _add(new CZoButton, L"First option", WS_GROUP | WS_TABSTOP | BS_AUTORADIOBUTTON, option)->SetCheck(BST_CHECKED);
        _add(new CZoButton, L"Second option", BS_AUTORADIOBUTTON, GridCell(option, CSize(0, 28), 0, 1));
        _add(new CZoButton, captions[i], WS_GROUP | BS_GROUPBOX | alignments[i], box);
    }
}

void CButtonsPage::_createImagePlacements()
{
    m_labels.AddHeading(kRightColumn, 8, L"Image position and text alignment");
    const int firstX = kRightColumn + kPlacementLabelWidth + 2;
    const int columnCount = static_cast<int>(sizeof(kPlacementColumns) / sizeof(kPlacementColumns[0]));
    int y = 46;
    for (size_t row = 0; row < sizeof(kPlacementRows) / sizeof(kPlacementRows[0]); ++row) {
        const PlacementRow& placement = kPlacementRows[row];
        m_labels.AddLabel(CRect(kRightColumn, y, firstX - 2, y + placement.height), placement.label);
        for (int column = 0; column < columnCount; ++column) {
            const PlacementColumn& alignment = kPlacementColumns[column];
            if (row == 0)
                m_labels.AddLabel(CRect(firstX + column * kPlacementStep, y - 16,
                                        firstX + (column + 1) * kPlacementStep, y),
                                  alignment.label);
            const CRect rect(firstX + column * kPlacementStep, y, firstX + column * kPlacementStep + kPlacementWidth,
                             y + placement.height);
            CZoButton* pButton =
                _add(new CZoButton, L"Caption", WS_TABSTOP | BS_PUSHBUTTON | placement.style | alignment.style, rect);
            // The maximise cell of the caption-button strip, its column following the state.
            pButton->SetZoBitmaps(L"BMP_ZO_DLGSYSBTNS", false, true, 4, 4, 1);
            pButton->SetCenterAlignedImage(alignment.centredBlock, false);
        }
        y += placement.height + 6;
    }
}

void CButtonsPage::_createImageSources()
{
    m_labels.AddHeading(kRightColumn, kSourcesTop, L"Image sources");
    const DWORD push = WS_TABSTOP | BS_PUSHBUTTON;

    _add(new CZoButton, L"Bitmap cell", push, GridCell(kSourceCell, kSourceStep, 0, 0))
        ->SetZoBitmap(L"BMP_ZO_TREELISTICON", false, 8, 1, 2, 0);
    _add(new CZoButton, L"Cell by state", push, GridCell(kSourceCell, kSourceStep, 1, 0))
        ->SetZoBitmaps(L"BMP_ZO_DLGSYSBTNS", false, true, 4, 4, 2);
    // Rows of five: the PNG's rows are composed over the theme's button faces.
    _add(new CZoButton, L"PNG by state", push, GridCell(kSourceCell, kSourceStep, 2, 0))
        ->SetZoPNGImages(IDR_ZO_PNG_CHECKRADIO, false, false, true, 4, 5, 1);
    _add(new CZoButton, L"PNG on colour", push, GridCell(kSourceCell, kSourceStep, 3, 0))
        ->SetZoPNGImage(IDR_ZO_PNG_CHECKRADIO, RGB(70, 110, 160), false, 4, 5, 0, 4);

    CZoButton* pIcon = _add(new CZoButton, L"System icon", push | BS_ICON, GridCell(kSourceCell, kSourceStep, 0, 1));
    pIcon->SetIcon(::LoadIcon(NULL, IDI_INFORMATION));

    m_hWarningBitmap = LoadLibraryBitmap(MAKEINTRESOURCEW(IDB_ZO_MSGBOX_WARNING));
    CZoButton* pBitmap =
        _add(new CZoButton, L"Library BMP", push | BS_BITMAP, GridCell(kSourceCell, kSourceStep, 1, 1));
    if (m_hWarningBitmap)
        pBitmap->SetBitmap(m_hWarningBitmap);

    // Row 3 of the strip would be drawn as row 4: the image-only sample shows row 0.
    _add(new CZoButton, L"", push, GridCell(kSourceCell, kSourceStep, 2, 1))
        ->SetZoBitmaps(L"BMP_ZO_DLGSYSBTNS", false, true, 4, 4, 0);
    CZoButton* pGap = _add(new CZoButton, L"Text gap 12", push | BS_LEFT, GridCell(kSourceCell, kSourceStep, 3, 1));
    pGap->SetZoBitmaps(L"BMP_ZO_DLGSYSBTNS", false, true, 4, 4, 1);
    pGap->SetStartTextPosFromImage(12);
}

void CButtonsPage::_createColoursAndFonts()
{
    m_labels.AddHeading(kRightColumn, kColoursTop, L"Colours, fonts and the message-box button");
    const DWORD push = WS_TABSTOP | BS_PUSHBUTTON;
    const CRect first(kRightColumn, kColoursTop + 26, kRightColumn + 104, kColoursTop + 56);

    _add(new CZoButton, L"Dark faces", push, GridCell(first, kSourceStep, 0, 0))->SetDefaultDarkColor(true, true);

    CZoButton* pCustom = _add(new CZoButton, L"Own colours", push, GridCell(first, kSourceStep, 1, 0));
    const COLORREF faces[BS_ZO_COUNT] = {RGB(40, 90, 60), RGB(50, 120, 80), RGB(30, 70, 45), RGB(70, 80, 75)};
    pCustom->SetFaceColors(faces, false);
    pCustom->SetTextColor(RGB(230, 250, 235), false);
    pCustom->SetTextColor(BS_ZO_DISABLED, RGB(150, 160, 150), false);
    pCustom->SetLTRBLineColors(RGB(120, 200, 150), RGB(10, 40, 20), false);
    pCustom->SetLineColor(LINE_TOP, BS_ZO_PRESSED, ZO_LINE_NOT_DRAWN, true);

    _add(new CZoButton(ZoThemeFont_4), L"Larger font", push, GridCell(first, kSourceStep, 2, 0));
    _add(new CZoButton(ZoThemeFont_10), L"Bold font", push, GridCell(first, kSourceStep, 3, 0));

    // Both made from a check-box style: the message-box button turns them into push kinds.
    const CRect msgBox(kRightColumn, kMsgBoxTop, kRightColumn + 80, kMsgBoxTop + 24);
    CZoButton4MsgBox* pOk = new CZoButton4MsgBox;
    pOk->SetAsDefault(true);
    _add(pOk, L"OK", WS_TABSTOP | BS_AUTOCHECKBOX, msgBox);
    CZoButton4MsgBox* pCancel = new CZoButton4MsgBox;
    pCancel->SetAsDefault(false);
    _add(pCancel, L"Cancel", WS_TABSTOP | BS_AUTOCHECKBOX, GridCell(msgBox, CSize(88, 0), 1, 0));
}

void CButtonsPage::DrawPage(CDC& dc, const CRect& client)
{
    CGalleryPage::DrawPage(dc, client);
    m_labels.Draw(dc);
}
