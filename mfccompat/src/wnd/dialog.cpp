// CDialog: dialogs created from templates (found through the resource chain), the modal
// loop around them, and dialog data exchange.
#include <afxwin.h>
#include "wndstate.h"

#include <errno.h>
#include <float.h>
#include <wchar.h>

namespace {

// The template resource of a dialog: its module and locked data, or NULL data.
struct FoundTemplate
{
    HINSTANCE hInst;
    LPCDLGTEMPLATE lpTemplate;
};

FoundTemplate FindDialogTemplate(LPCTSTR lpszTemplateName)
{
    FoundTemplate found = { AfxGetResourceHandle(), NULL };
    if (lpszTemplateName == NULL)
        return found;
    found.hInst = AfxFindResourceHandle(lpszTemplateName, RT_DIALOG);
    HRSRC hResource = ::FindResourceW(found.hInst, lpszTemplateName, RT_DIALOG);
    if (hResource == NULL)
        return found;
    HGLOBAL hTemplate = ::LoadResource(found.hInst, hResource);
    if (hTemplate != NULL)
        found.lpTemplate = static_cast<LPCDLGTEMPLATE>(::LockResource(hTemplate));
    return found;
}

// The top-level window a dialog without parent belongs to: the main window's.
HWND SafeOwner(CWnd* pParentWnd)
{
    HWND hWnd = pParentWnd->GetSafeHwnd();
    if (hWnd == NULL)
        hWnd = AfxGetMainWnd()->GetSafeHwnd();
    while (hWnd != NULL && (::GetWindowLongPtrW(hWnd, GWL_STYLE) & WS_CHILD))
        hWnd = ::GetParent(hWnd);
    return hWnd;
}

} // namespace

/////////////////////////////////////////////////////////////////////////////
// CWnd's dialog support

void CWnd::DoDataExchange(CDataExchange*)
{
}

BOOL CWnd::UpdateData(BOOL bSaveAndValidate)
{
    CDataExchange dx(this, bSaveAndValidate);
    try
    {
        DoDataExchange(&dx);
        return TRUE;
    }
    catch (CUserException* e)
    {
        // The user has been told already.
        e->Delete();
    }
    catch (CException* e)
    {
        e->ReportError(MB_ICONEXCLAMATION);
        e->Delete();
    }
    return FALSE;
}

BOOL CWnd::CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst)
{
    if (lpDialogTemplate == NULL || m_hWnd != NULL)
        return FALSE;
    if (hInst == NULL)
        hInst = AfxGetResourceHandle();
    AfxHookWindowCreate(this);
    HWND hWnd = ::CreateDialogIndirectParamW(hInst, lpDialogTemplate, pParentWnd->GetSafeHwnd(), &AfxDlgProc, 0);
    if (!AfxUnhookWindowCreate())
        PostNcDestroy();
    return hWnd != NULL;
}

INT_PTR CALLBACK AfxDlgProc(HWND hWnd, UINT message, WPARAM, LPARAM)
{
    if (message != WM_INITDIALOG)
        return FALSE;
    CDialog* pDialog = DYNAMIC_DOWNCAST(CDialog, CWnd::FromHandlePermanent(hWnd));
    if (pDialog == NULL)
        return TRUE;
    try
    {
        return pDialog->OnInitDialog();
    }
    catch (CException* e)
    {
        // Nothing may unwind through the dialog manager; the dialog ends instead.
        e->Delete();
        pDialog->EndDialog(-1);
        return FALSE;
    }
}

/////////////////////////////////////////////////////////////////////////////
// CDialog

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
    ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
    ON_MESSAGE(WM_SETFONT, &CDialog::HandleSetFont)
END_MESSAGE_MAP()

CDialog::CDialog()
    : m_nIDHelp(0), m_lpszTemplateName(NULL), m_hDialogTemplate(NULL), m_lpDialogTemplate(NULL),
      m_lpDialogInit(NULL), m_pParentWnd(NULL), m_hWndTop(NULL)
{
}

CDialog::CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
    : CDialog()
{
    m_lpszTemplateName = lpszTemplateName;
    m_pParentWnd = pParentWnd;
    if (IS_INTRESOURCE(lpszTemplateName))
        m_nIDHelp = static_cast<UINT>(reinterpret_cast<UINT_PTR>(lpszTemplateName));
}

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd)
    : CDialog()
{
    m_lpszTemplateName = MAKEINTRESOURCEW(nIDTemplate);
    m_pParentWnd = pParentWnd;
    m_nIDHelp = nIDTemplate;
}

CDialog::~CDialog()
{
    if (m_hWnd != NULL && CWnd::FromHandlePermanent(m_hWnd) == this)
        DestroyWindow();
}

BOOL CDialog::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
{
    m_lpszTemplateName = lpszTemplateName;
    if (IS_INTRESOURCE(lpszTemplateName) && m_nIDHelp == 0)
        m_nIDHelp = static_cast<UINT>(reinterpret_cast<UINT_PTR>(lpszTemplateName));
    FoundTemplate found = FindDialogTemplate(lpszTemplateName);
    if (found.lpTemplate == NULL)
        return FALSE;
    if (pParentWnd == NULL)
        pParentWnd = AfxGetMainWnd();
    m_lpDialogInit = NULL;
    return CreateDlgIndirect(found.lpTemplate, pParentWnd, found.hInst);
}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd)
{
    return Create(MAKEINTRESOURCEW(nIDTemplate), pParentWnd);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void* lpDialogInit)
{
    if (pParentWnd == NULL)
        pParentWnd = AfxGetMainWnd();
    m_lpDialogInit = lpDialogInit;
    return CreateDlgIndirect(lpDialogTemplate, pParentWnd, NULL);
}

BOOL CDialog::CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd)
{
    if (hDialogTemplate == NULL)
        return FALSE;
    LPCDLGTEMPLATE lpTemplate = static_cast<LPCDLGTEMPLATE>(::GlobalLock(hDialogTemplate));
    BOOL bResult = CreateIndirect(lpTemplate, pParentWnd, NULL);
    ::GlobalUnlock(hDialogTemplate);
    return bResult;
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void* lpDialogInit)
{
    if (lpDialogTemplate == NULL)
        return FALSE;
    m_lpDialogTemplate = lpDialogTemplate;
    m_pParentWnd = pParentWnd;
    m_lpDialogInit = lpDialogInit;
    return TRUE;
}

BOOL CDialog::InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd)
{
    if (hDialogTemplate == NULL)
        return FALSE;
    m_hDialogTemplate = hDialogTemplate;
    m_pParentWnd = pParentWnd;
    return TRUE;
}

HWND CDialog::PreModal()
{
    m_hWndTop = SafeOwner(m_pParentWnd);
    return m_hWndTop;
}

void CDialog::PostModal()
{
    m_hWndTop = NULL;
}

INT_PTR CDialog::DoModal()
{
    if (m_hWnd != NULL)
        return -1;

    FoundTemplate found = { AfxGetResourceHandle(), m_lpDialogTemplate };
    if (m_lpszTemplateName != NULL)
        found = FindDialogTemplate(m_lpszTemplateName);
    else if (m_hDialogTemplate != NULL)
        found.lpTemplate = static_cast<LPCDLGTEMPLATE>(::GlobalLock(m_hDialogTemplate));
    if (found.lpTemplate == NULL)
        return -1;

    HWND hWndParent = PreModal();
    BOOL bEnableParent = FALSE;
    if (hWndParent != NULL && hWndParent != ::GetDesktopWindow() && ::IsWindowEnabled(hWndParent))
    {
        ::EnableWindow(hWndParent, FALSE);
        bEnableParent = TRUE;
    }

    m_nModalResult = -1;
    m_nFlags |= WF_CONTINUEMODAL;
    if (CreateDlgIndirect(found.lpTemplate, CWnd::FromHandle(hWndParent), found.hInst))
    {
        if (m_nFlags & WF_CONTINUEMODAL)
        {
            DWORD dwFlags = MLF_SHOWONIDLE;
            if (GetStyle() & DS_NOIDLEMSG)
                dwFlags |= MLF_NOIDLEMSG;
            RunModalLoop(dwFlags);
        }
        if (m_hWnd != NULL)
            SetWindowPos(NULL, 0, 0, 0, 0, SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
    }
    m_nFlags &= ~WF_CONTINUEMODAL;

    if (bEnableParent)
        ::EnableWindow(hWndParent, TRUE);
    if (hWndParent != NULL && m_hWnd != NULL && ::GetActiveWindow() == m_hWnd)
        ::SetActiveWindow(hWndParent);

    DestroyWindow();
    PostModal();
    if (m_hDialogTemplate != NULL && m_lpszTemplateName == NULL)
        ::GlobalUnlock(m_hDialogTemplate);
    return m_nModalResult;
}

void CDialog::EndDialog(int nResult)
{
    if (m_nFlags & (WF_MODALLOOP | WF_CONTINUEMODAL))
        EndModalLoop(nResult);
    if (m_hWnd != NULL)
        ::EndDialog(m_hWnd, nResult);
}

void CDialog::MapDialogRect(LPRECT lpRect) const
{
    ::MapDialogRect(m_hWnd, lpRect);
}

void CDialog::SetHelpID(UINT nIDR)
{
    m_nIDHelp = nIDR;
}

void CDialog::NextDlgCtrl() const
{
    ::SendMessageW(m_hWnd, WM_NEXTDLGCTL, 0, 0);
}

void CDialog::PrevDlgCtrl() const
{
    ::SendMessageW(m_hWnd, WM_NEXTDLGCTL, 1, 0);
}

void CDialog::GotoDlgCtrl(CWnd* pWndCtrl)
{
    HWND hWndCtrl = pWndCtrl->GetSafeHwnd();
    if (hWndCtrl != NULL)
        ::SendMessageW(m_hWnd, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(hWndCtrl), TRUE);
}

void CDialog::SetDefID(UINT nID)
{
    ::SendMessageW(m_hWnd, DM_SETDEFID, nID, 0);
}

DWORD CDialog::GetDefID() const
{
    return static_cast<DWORD>(::SendMessageW(m_hWnd, DM_GETDEFID, 0, 0));
}

BOOL CDialog::OnInitDialog()
{
    // Controls take their values from the member variables.
    UpdateData(FALSE);
    return TRUE;
}

void CDialog::OnSetFont(CFont*)
{
}

void CDialog::PreInitDialog()
{
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg)
{
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    // Tab, arrows, Enter and Escape move through the dialog as the dialog manager does.
    return PreTranslateInput(pMsg);
}

void CDialog::OnOK()
{
    if (!UpdateData(TRUE))
        return;
    EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM)
{
    PreInitDialog();
    return Default();
}

LRESULT CDialog::HandleSetFont(WPARAM wParam, LPARAM)
{
    OnSetFont(CFont::FromHandle(reinterpret_cast<HFONT>(wParam)));
    return Default();
}

/////////////////////////////////////////////////////////////////////////////
// CDataExchange

CDataExchange::CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
    : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd), m_idLastControl(0), m_bEditLastControl(FALSE)
{
}

HWND CDataExchange::PrepareCtrl(int nIDC)
{
    HWND hWndCtrl = ::GetDlgItem(m_pDlgWnd->GetSafeHwnd(), nIDC);
    if (hWndCtrl == NULL)
        AfxThrowNotSupportedException();
    m_idLastControl = static_cast<UINT>(nIDC);
    m_bEditLastControl = FALSE;
    return hWndCtrl;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC)
{
    HWND hWndCtrl = PrepareCtrl(nIDC);
    m_bEditLastControl = TRUE;
    return hWndCtrl;
}

void CDataExchange::Fail()
{
    if (m_bSaveAndValidate && m_idLastControl != 0)
    {
        HWND hWndLast = ::GetDlgItem(m_pDlgWnd->GetSafeHwnd(), static_cast<int>(m_idLastControl));
        if (hWndLast != NULL)
        {
            ::SetFocus(hWndLast);
            if (m_bEditLastControl)
                ::SendMessageW(hWndLast, EM_SETSEL, 0, -1);
        }
    }
    AfxThrowUserException();
}

/////////////////////////////////////////////////////////////////////////////
// DDX / DDV

namespace {

CString ControlText(HWND hWndCtrl)
{
    CString text;
    CWnd::FromHandle(hWndCtrl)->GetWindowText(text);
    return text;
}

// Tells the user and stops the exchange.
void FailWith(CDataExchange* pDX, LPCTSTR lpszMessage)
{
    AfxMessageBox(lpszMessage, MB_ICONEXCLAMATION);
    pDX->Fail();
}

bool IsBlankTail(const wchar_t* text)
{
    while (*text == L' ' || *text == L'\t')
        ++text;
    return *text == 0;
}

// Whole-text parses: leading/trailing blanks allowed, nothing else.
bool ParseSigned(const CString& text, long long minValue, long long maxValue, long long& value)
{
    const wchar_t* begin = text;
    wchar_t* end = NULL;
    errno = 0;
    long long parsed = wcstoll(begin, &end, 10);
    if (end == begin || errno == ERANGE || !IsBlankTail(end) || parsed < minValue || parsed > maxValue)
        return false;
    value = parsed;
    return true;
}

bool ParseUnsigned(const CString& text, unsigned long long maxValue, unsigned long long& value)
{
    const wchar_t* begin = text;
    while (*begin == L' ' || *begin == L'\t')
        ++begin;
    if (*begin == L'-')
        return false;
    wchar_t* end = NULL;
    errno = 0;
    unsigned long long parsed = wcstoull(begin, &end, 10);
    if (end == begin || errno == ERANGE || !IsBlankTail(end) || parsed > maxValue)
        return false;
    value = parsed;
    return true;
}

bool ParseReal(const CString& text, double maxMagnitude, double& value)
{
    const wchar_t* begin = text;
    wchar_t* end = NULL;
    errno = 0;
    double parsed = wcstod(begin, &end);
    if (end == begin || errno == ERANGE || !IsBlankTail(end) || parsed > maxMagnitude || parsed < -maxMagnitude)
        return false;
    value = parsed;
    return true;
}

template <class T>
void ExchangeSigned(CDataExchange* pDX, int nIDC, T& value, long long minValue, long long maxValue)
{
    HWND hWndCtrl = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
    {
        long long parsed = 0;
        if (!ParseSigned(ControlText(hWndCtrl), minValue, maxValue, parsed))
            FailWith(pDX, L"Please enter an integer.");
        value = static_cast<T>(parsed);
    }
    else
    {
        CString text;
        text.Format(L"%lld", static_cast<long long>(value));
        ::SetWindowTextW(hWndCtrl, text);
    }
}

template <class T>
void ExchangeUnsigned(CDataExchange* pDX, int nIDC, T& value, unsigned long long maxValue)
{
    HWND hWndCtrl = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
    {
        unsigned long long parsed = 0;
        if (!ParseUnsigned(ControlText(hWndCtrl), maxValue, parsed))
            FailWith(pDX, L"Please enter a positive integer.");
        value = static_cast<T>(parsed);
    }
    else
    {
        CString text;
        text.Format(L"%llu", static_cast<unsigned long long>(value));
        ::SetWindowTextW(hWndCtrl, text);
    }
}

template <class T>
void ExchangeReal(CDataExchange* pDX, int nIDC, T& value, double maxMagnitude, int nDigits)
{
    HWND hWndCtrl = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
    {
        double parsed = 0;
        if (!ParseReal(ControlText(hWndCtrl), maxMagnitude, parsed))
            FailWith(pDX, L"Please enter a number.");
        value = static_cast<T>(parsed);
    }
    else
    {
        CString text;
        text.Format(L"%.*g", nDigits, static_cast<double>(value));
        ::SetWindowTextW(hWndCtrl, text);
    }
}

} // namespace

void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl)
{
    if (rControl.m_hWnd != NULL)
        return;   // bound by an earlier exchange
    HWND hWndCtrl = pDX->PrepareCtrl(nIDC);
    if (!rControl.SubclassWindow(hWndCtrl))
        AfxThrowNotSupportedException();
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value)
{
    HWND hWndCtrl = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = ControlText(hWndCtrl);
    else
        ::SetWindowTextW(hWndCtrl, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value)
{
    ExchangeSigned(pDX, nIDC, value, INT_MIN, INT_MAX);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value)
{
    ExchangeSigned(pDX, nIDC, value, LONG_MIN, LONG_MAX);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value)
{
    ExchangeUnsigned(pDX, nIDC, value, UINT_MAX);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value)
{
    ExchangeUnsigned(pDX, nIDC, value, ULONG_MAX);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value)
{
    ExchangeReal(pDX, nIDC, value, DBL_MAX, DBL_DIG);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value)
{
    ExchangeReal(pDX, nIDC, value, FLT_MAX, FLT_DIG);
}

void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value)
{
    HWND hWndCtrl = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
    {
        value = static_cast<int>(::SendMessageW(hWndCtrl, BM_GETCHECK, 0, 0));
    }
    else
    {
        if (value < BST_UNCHECKED || value > BST_INDETERMINATE)
            value = BST_UNCHECKED;   // only the three button states exist
        ::SendMessageW(hWndCtrl, BM_SETCHECK, static_cast<WPARAM>(value), 0);
    }
}

void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value)
{
    // nIDC is the first button of a group that runs to the next WS_GROUP control.
    HWND hWndCtrl = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = -1;
    int iButton = 0;
    do
    {
        if (::SendMessageW(hWndCtrl, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON)
        {
            if (pDX->m_bSaveAndValidate)
            {
                if (::SendMessageW(hWndCtrl, BM_GETCHECK, 0, 0) != BST_UNCHECKED)
                    value = iButton;
            }
            else
            {
                ::SendMessageW(hWndCtrl, BM_SETCHECK, iButton == value ? BST_CHECKED : BST_UNCHECKED, 0);
            }
            ++iButton;
        }
        hWndCtrl = ::GetWindow(hWndCtrl, GW_HWNDNEXT);
    } while (hWndCtrl != NULL && !(::GetWindowLongPtrW(hWndCtrl, GWL_STYLE) & WS_GROUP));
}

void AFXAPI DDV_MaxChars(CDataExchange* pDX, CString const& value, int nChars)
{
    if (pDX->m_bSaveAndValidate)
    {
        if (value.GetLength() > nChars)
        {
            CString message;
            message.Format(L"Enter no more than %d characters.", nChars);
            FailWith(pDX, message);
        }
    }
    else if (pDX->m_idLastControl != 0 && pDX->m_bEditLastControl)
    {
        HWND hWndLast = ::GetDlgItem(pDX->m_pDlgWnd->GetSafeHwnd(), static_cast<int>(pDX->m_idLastControl));
        ::SendMessageW(hWndLast, EM_LIMITTEXT, nChars > 0 ? static_cast<WPARAM>(nChars) : 0, 0);
    }
}

void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal)
{
    if (!pDX->m_bSaveAndValidate || (value >= minVal && value <= maxVal))
        return;
    CString message;
    message.Format(L"Enter an integer between %d and %d.", minVal, maxVal);
    FailWith(pDX, message);
}
