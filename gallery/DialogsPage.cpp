#include <afxwin.h>
#include <afxcmn.h>

#include "DialogsPage.h"
#include "GalleryDialogs.h"

using namespace ZoControls;

namespace {

const DWORD kChild = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
const int kMargin = 10;
const CSize kButtonSize(150, 26);
const int kButtonStep = 160;

const UINT kOpenFirstId = 3100;  // one per size class
const UINT kTypeFirstId = 3110;  // one per message-box type
const UINT kIconFirstId = 3120;  // one per icon
const UINT kTimedId = 3130;
const UINT kDispensableId = 3131;
const UINT kLanguageId = 3132;
const UINT kResultId = 3133;
const UINT kFlagId = 3134;

const wchar_t* const kSizeNames[] = {L"Open at normal size", L"Open at 3M size", L"Open at 5M size"};

struct TypeButton
{
    const wchar_t* caption;
    UINT type;
};
const TypeButton kTypes[] = {
    {L"MB_OK", MB_OK},
    {L"MB_OKCANCEL", MB_OKCANCEL | MB_DEFBUTTON1},
    {L"MB_ABORTRETRYIGNORE", MB_ABORTRETRYIGNORE | MB_DEFBUTTON2},
    {L"MB_YESNOCANCEL", MB_YESNOCANCEL | MB_DEFBUTTON1},
    {L"MB_YESNO", MB_YESNO | MB_DEFBUTTON2},
    {L"MB_RETRYCANCEL", MB_RETRYCANCEL | MB_DEFBUTTON1},
};
const TypeButton kIcons[] = {
    {L"Information", MB_ICONINFORMATION},
    {L"Question", MB_ICONQUESTION},
    {L"Error", MB_ICONERROR},
    {L"Warning", MB_ICONWARNING},
};
const UINT kTimedSeconds = 5;

struct Language
{
    LANGID id;
    const wchar_t* name;
};
const Language kLanguages[] = {
    {1028, L"Chinese (Trad.)"}, {1033, L"English (US)"}, {1036, L"French"},   {1040, L"Italian"},
    {1041, L"Japanese"},        {1045, L"Polish"},       {1046, L"Portuguese (BR)"}, {1049, L"Russian"},
    {2052, L"Chinese (Simpl.)"}, {3082, L"Spanish"},
};
const int kLanguageCount = sizeof(kLanguages) / sizeof(kLanguages[0]);
// The message box's strings: button captions and title words.
const UINT kFirstString = 800;
const UINT kLastString = 810;

struct ResultName
{
    int result;
    const wchar_t* name;
};
const ResultName kResults[] = {{IDOK, L"IDOK"},         {IDCANCEL, L"IDCANCEL"}, {IDABORT, L"IDABORT"},
                               {IDRETRY, L"IDRETRY"},   {IDIGNORE, L"IDIGNORE"}, {IDYES, L"IDYES"},
                               {IDNO, L"IDNO"}};

// The gallery's nine-class dialog, opened at a chosen size class and filled with sample data.
class CNineClassesDialog : public CZoDialog
{
public:
    CNineClassesDialog(CWnd* pParent, E_ZoMonitorSize size)
        : CZoDialog(static_cast<UINT>(IDD_GALLERY_NINE_CLASSES), pParent), m_eSize(size)
    {
    }

protected:
    BOOL OnInitDialog() override
    {
        const BOOL result = CZoDialog::OnInitDialog();
        _fill();
        return result;
    }
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct)
    {
        SetZoMonitorSize(m_eSize);
        return CZoDialog::OnCreate(lpCreateStruct);
    }
    DECLARE_MESSAGE_MAP()

private:
    void _fill()
    {
        const UINT first = IDC_GALLERY_FIRST_CONTROL;
        SendDlgItemMessage(first + 5, PBM_SETPOS, 60, 0);
        SendDlgItemMessage(first + 7, TBM_SETRANGE, TRUE, MAKELPARAM(0, 10));
        SendDlgItemMessage(first + 7, TBM_SETPOS, TRUE, 4);
        CListCtrl* pList = static_cast<CListCtrl*>(GetDlgItem(first + 8));
        pList->InsertColumn(0, L"Name", LVCFMT_LEFT, 100);
        pList->InsertColumn(1, L"Size", LVCFMT_RIGHT, 60);
        for (int i = 0; i < 8; ++i) {
            CString name;
            name.Format(L"Item %d", i + 1);
            pList->InsertItem(i, name);
            CString size;
            size.Format(L"%d KB", (i + 1) * 12);
            pList->SetItemText(i, 1, size);
        }
        CComboBox* pCombo = static_cast<CComboBox*>(GetDlgItem(first + 9));
        pCombo->AddString(L"First choice");
        pCombo->AddString(L"Second choice");
        pCombo->SetCurSel(0);
        CTabCtrl* pTabs = static_cast<CTabCtrl*>(GetDlgItem(first + 10));
        pTabs->InsertItem(0, L"General");
        pTabs->InsertItem(1, L"Details");
        SCROLLINFO info = {sizeof(SCROLLINFO), SIF_ALL, 0, 100, 20, 30, 0};
        SendDlgItemMessage(first + 11, SBM_SETSCROLLINFO, TRUE, reinterpret_cast<LPARAM>(&info));
        SendDlgItemMessage(first + 12, SBM_SETSCROLLINFO, TRUE, reinterpret_cast<LPARAM>(&info));
        SetDlgItemText(first + 6, L"Edit me");
    }

    E_ZoMonitorSize m_eSize;
};

BEGIN_MESSAGE_MAP(CNineClassesDialog, CZoDialog)
    ON_WM_CREATE()
END_MESSAGE_MAP()

} // namespace

BEGIN_MESSAGE_MAP(CDialogsPage, CGalleryPage)
    ON_COMMAND_RANGE(kOpenFirstId, kOpenFirstId + 2, &CDialogsPage::OnOpenDialog)
    ON_COMMAND_RANGE(kTypeFirstId, kTypeFirstId + 5, &CDialogsPage::OnMessageBoxType)
    ON_COMMAND_RANGE(kIconFirstId, kIconFirstId + 3, &CDialogsPage::OnMessageBoxIcon)
    ON_BN_CLICKED(kTimedId, &CDialogsPage::OnTimedBox)
    ON_BN_CLICKED(kDispensableId, &CDialogsPage::OnDispensableBox)
    ON_CBN_SELCHANGE(kLanguageId, &CDialogsPage::OnLanguagePicked)
END_MESSAGE_MAP()

CDialogsPage::CDialogsPage() : m_bDoNotShow(false) {}

CDialogsPage::~CDialogsPage()
{
    for (size_t i = 0; i < m_buttons.size(); ++i)
        delete m_buttons[i];
}

BOOL CDialogsPage::OnCreatePage()
{
    _createDialogButtons();
    _createMessageBoxButtons();
    _createLanguageTable();
    return TRUE;
}

CZoButton* CDialogsPage::_addButton(const wchar_t* caption, const CRect& rect, UINT nID)
{
    CZoButton* pButton = new CZoButton();
    pButton->Create(caption, kChild | BS_PUSHBUTTON, rect, this, nID);
    m_buttons.push_back(pButton);
    return pButton;
}

void CDialogsPage::_createDialogButtons()
{
    m_labels.AddHeading(kMargin, 8, L"Skinned dialog: nine control classes, system menu, minimize and maximize boxes");
    const CRect first(kMargin, 30, kMargin + kButtonSize.cx, 30 + kButtonSize.cy);
    for (int i = 0; i < 3; ++i)
        _addButton(kSizeNames[i], GridCell(first, CSize(kButtonStep, 0), i, 0), kOpenFirstId + i);
}

void CDialogsPage::_createMessageBoxButtons()
{
    m_labels.AddHeading(kMargin, 70, L"Message boxes: every type, every icon, a time-out, a do-not-show check box");
    const CRect first(kMargin, 92, kMargin + kButtonSize.cx, 92 + kButtonSize.cy);
    const CSize step(kButtonStep, 32);
    for (int i = 0; i < 6; ++i)
        _addButton(kTypes[i].caption, GridCell(first, step, i, 0), kTypeFirstId + i);
    for (int i = 0; i < 4; ++i)
        _addButton(kIcons[i].caption, GridCell(first, step, i, 1), kIconFirstId + i);
    CString timed;
    timed.Format(L"Timed box (%u s)", kTimedSeconds);
    _addButton(timed, GridCell(first, step, 0, 2), kTimedId);
    _addButton(L"Dispensable box", GridCell(first, step, 1, 2), kDispensableId);
    m_result.Create(L"Last result: none yet", WS_CHILD | WS_VISIBLE | SS_LEFT,
                    GridCell(first, step, 2, 2), this, kResultId);
    m_flag.Create(L"Do not show: false", WS_CHILD | WS_VISIBLE | SS_LEFT,
                  GridCell(first, step, 3, 2), this, kFlagId);
}

void CDialogsPage::_createLanguageTable()
{
    const int top = 210;
    m_labels.AddHeading(kMargin, top, L"Texts in the ten languages (boxes follow the thread's):");
    m_language.Create(kChild | CBS_DROPDOWNLIST | WS_VSCROLL, CRect(kMargin + 560, top - 4, kMargin + 760, top + 300),
                      this, kLanguageId);
    for (int i = 0; i < kLanguageCount; ++i)
        m_language.AddString(kLanguages[i].name);
    const LANGID current = ::GetThreadUILanguage();
    for (int i = 0; i < kLanguageCount; ++i)
        if (kLanguages[i].id == current)
            m_language.SetCurSel(i);

    const HINSTANCE library = ::GetModuleHandleW(L"ZoCtrl.dll");
    const int columnWidth = 100;
    const int rowHeight = 18;
    const int tableTop = top + 30;
    for (int column = 0; column < kLanguageCount; ++column) {
        const int x = kMargin + column * columnWidth;
        m_labels.AddLabel(CRect(x, tableTop, x + columnWidth - 4, tableTop + rowHeight), kLanguages[column].name);
        for (UINT id = kFirstString; id <= kLastString; ++id) {
            CString text;
            if (library)
                text.LoadString(library, id, kLanguages[column].id);
            const int y = tableTop + static_cast<int>(id - kFirstString + 1) * rowHeight;
            m_labels.AddLabel(CRect(x, y, x + columnWidth - 4, y + rowHeight), text);
        }
    }
}

void CDialogsPage::DrawPage(CDC& dc, const CRect& client)
{
    CGalleryPage::DrawPage(dc, client);
    m_labels.Draw(dc);
}

void CDialogsPage::_showResult(int result)
{
    CString text = L"Last result: ";
    CString name;
    name.Format(L"%d", result);
    for (size_t i = 0; i < sizeof(kResults) / sizeof(kResults[0]); ++i)
        if (kResults[i].result == result)
            name = kResults[i].name;
    m_result.SetWindowText(text + name);
}

void CDialogsPage::OnOpenDialog(UINT nID)
{
    CNineClassesDialog dialog(this, static_cast<E_ZoMonitorSize>(nID - kOpenFirstId));
    dialog.DoModal();
}

void CDialogsPage::OnMessageBoxType(UINT nID)
{
    const TypeButton& type = kTypes[nID - kTypeFirstId];
    _showResult(ZoMessageBox(this, type.type | MB_ICONQUESTION, L"This is a %s box.\nIts second line is longer "
                                                                L"than the first.",
                             type.caption));
}

void CDialogsPage::OnMessageBoxIcon(UINT nID)
{
    const TypeButton& icon = kIcons[nID - kIconFirstId];
    _showResult(ZoMessageBox(this, MB_OKCANCEL | icon.type, L"A box with the %s icon.", icon.caption));
}

void CDialogsPage::OnTimedBox()
{
    _showResult(TimedMessageBox(this, kTimedSeconds, MB_YESNO | MB_ICONWARNING,
                                L"This box closes itself after %u seconds with No.", kTimedSeconds));
}

void CDialogsPage::OnDispensableBox()
{
    _showResult(ZoMessageBoxDispensable(this, MB_OK | MB_ICONINFORMATION, &m_bDoNotShow,
                                        L"Tick the box below and close: the flag shows beside."));
    m_flag.SetWindowText(m_bDoNotShow ? L"Do not show: true" : L"Do not show: false");
}

void CDialogsPage::OnLanguagePicked()
{
    const int picked = m_language.GetCurSel();
    if (picked >= 0 && picked < kLanguageCount)
        ::SetThreadUILanguage(kLanguages[picked].id);
}
