#include "dialogs/ZoMessageBoxDialog.h"

#include "controls/ZoControlTheme.h"
#include "resources/resource.h"

namespace ZoControls {
namespace _internal {

namespace {

const UINT kNoTimeout = static_cast<UINT>(-1);
// SetTimer's longest period.
const UINT kLongestSeconds = 0x7FFFFFFF / 1000;

// Controls of the three buttons, right to left.
const UINT kButtonIds[ZoMsgBoxButton_Count] = {IDC_ZO_MSGBOX_BUTTON_RIGHT, IDC_ZO_MSGBOX_BUTTON_MIDDLE,
                                               IDC_ZO_MSGBOX_BUTTON_LEFT};

CRect childRectIn(CWnd& dialog, UINT id)
{
    CRect rect(0, 0, 0, 0);
    CWnd* pChild = dialog.GetDlgItem(id);
    if (!pChild)
        return rect;
    pChild->GetWindowRect(&rect);
    dialog.ScreenToClient(&rect);
    return rect;
}

CString loadText(UINT id)
{
    CString text;
    text.LoadString(id);
    return text;
}

} // namespace

BEGIN_MESSAGE_MAP(CDq3MMessageBox, CZoDialog)
    ON_BN_CLICKED(IDC_ZO_MSGBOX_BUTTON_RIGHT, &CDq3MMessageBox::OnRightButton)
    ON_BN_CLICKED(IDC_ZO_MSGBOX_BUTTON_MIDDLE, &CDq3MMessageBox::OnMiddleButton)
    ON_BN_CLICKED(IDC_ZO_MSGBOX_BUTTON_LEFT, &CDq3MMessageBox::OnLeftButton)
    ON_BN_CLICKED(IDC_ZO_MSGBOX_DONTSHOW, &CDq3MMessageBox::OnDoNotShowClicked)
    ON_WM_TIMER()
END_MESSAGE_MAP()

CDq3MMessageBox::CDq3MMessageBox(UINT type, UINT seconds, bool* doNotShow, CWnd* parent)
    : CZoDialog(IDD_ZO_MESSAGEBOX, parent), m_message(ZoThemeFont_1), m_rcText(0, 0, 0, 0), m_nType(type),
      m_nTimeout(seconds), m_pParent(parent), m_nTimer(0), m_clrText(0), m_pDoNotShow(doNotShow)
{
}

CDq3MMessageBox::~CDq3MMessageBox()
{
}

void CDq3MMessageBox::SetMessage(const CString& message)
{
    m_strMessage = message;
}

void CDq3MMessageBox::DoDataExchange(CDataExchange* pDX)
{
    CZoDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_ZO_MSGBOX_TEXT, m_message);
}

CZoButton4MsgBox* CDq3MMessageBox::_button(E_ZoMsgBoxButton button)
{
    switch (button)
    {
    case ZoMsgBoxButton_Right:
        return &m_btnRight;
    case ZoMsgBoxButton_Middle:
        return &m_btnMiddle;
    case ZoMsgBoxButton_Left:
        return &m_btnLeft;
    default:
        return NULL;
    }
}

BOOL CDq3MMessageBox::OnInitDialog()
{
    const E_ZoMsgBoxButton defaultButton = ZoMessageBoxDefaultButton(m_nType);
    for (int i = 0; i < ZoMsgBoxButton_Count; ++i)
        _button(static_cast<E_ZoMsgBoxButton>(i))->SetAsDefault(i == defaultButton);

    for (int i = 0; i < ZoMsgBoxButton_Count; ++i)
        _button(static_cast<E_ZoMsgBoxButton>(i))->SubclassDlgItem(kButtonIds[i], this);
    m_chkDoNotShow.SubclassDlgItem(IDC_ZO_MSGBOX_DONTSHOW, this);
    if (!m_pDoNotShow && m_chkDoNotShow.GetSafeHwnd())
    {
        m_chkDoNotShow.EnableWindow(FALSE);
        m_chkDoNotShow.ShowWindow(SW_HIDE);
    }

    CZoDialog::OnInitDialog();
    m_clrText = ZoSlotColor(ZoDialogColor_CaptionText, GetZoTheme());

    _setIconAndTitle();
    if (!m_strMessage.IsEmpty())
        m_strMessage += L"\n";
    _layout();
    ::MessageBeep(m_nType & MB_ICONMASK);

    if (m_nTimeout != 0 && m_nTimeout != kNoTimeout)
    {
        const UINT seconds = m_nTimeout > kLongestSeconds ? kLongestSeconds : m_nTimeout;
        m_nTimer = SetTimer(ZO_MSGBOX_TIMER_ID, seconds * 1000, NULL);
    }

    CZoButton4MsgBox* pDefault = _button(defaultButton);
    if (pDefault && pDefault->GetSafeHwnd())
    {
        pDefault->SetFocus();
        return FALSE;
    }
    return TRUE;
}

void CDq3MMessageBox::_setIconAndTitle()
{
    const ZoMsgBoxIconRule rule = ZoMessageBoxIconRule(m_nType);
    const LPCWSTR name = MAKEINTRESOURCEW(rule.bitmap);
    const HINSTANCE hInst = AfxFindResourceHandle(name, RT_BITMAP);
    HBITMAP hBitmap = static_cast<HBITMAP>(::LoadImageW(hInst, name, IMAGE_BITMAP, 0, 0, LR_DEFAULTCOLOR));
    CWnd* pIcon = GetDlgItem(IDC_ZO_MSGBOX_ICON);
    if (hBitmap && pIcon)
    {
        m_icon.Attach(hBitmap);
        const HBITMAP hOld = reinterpret_cast<HBITMAP>(
            pIcon->SendMessage(STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(hBitmap)));
        // The template's picture was loaded by the static for itself; nothing else holds it.
        if (hOld && hOld != hBitmap)
            ::DeleteObject(hOld);
    }
    else if (hBitmap)
    {
        ::DeleteObject(hBitmap);
    }
    m_strTitle = AfxGetAppName();
    m_strTitle += L" ";
    m_strTitle += loadText(rule.titleWord);
    SetWindowText(m_strTitle);
}

void CDq3MMessageBox::_layout()
{
    const CRect icon = childRectIn(*this, IDC_ZO_MSGBOX_ICON);
    const CRect button = childRectIn(*this, IDC_ZO_MSGBOX_BUTTON_RIGHT);
    const CRect check = childRectIn(*this, IDC_ZO_MSGBOX_DONTSHOW);
    CRect client;
    GetClientRect(&client);

    // The message measured with the dialog's font, lines as wide as they are.
    CRect measured(icon.left + icon.right, icon.top, icon.left + icon.right + 100, icon.bottom);
    {
        CClientDC dc(this);
        CFont* pOld = dc.SelectObject(GetFont());
        dc.DrawText(m_strMessage, &measured, DT_CALCRECT | DT_NOCLIP | DT_EXPANDTABS);
        if (pOld)
            dc.SelectObject(pOld);
    }
    const ZoMsgBoxLayout layout = ZoLayoutMessageBox(icon, button, check, client, measured.Size());
    m_rcText = layout.text;

    const ZoMsgBoxTypeRule rule = ZoMessageBoxTypeRule(m_nType);
    for (int i = 0; i < ZoMsgBoxButton_Count; ++i)
    {
        CZoButton4MsgBox* pButton = _button(static_cast<E_ZoMsgBoxButton>(i));
        if (!pButton->GetSafeHwnd())
            continue;
        if (rule.known && rule.captions[i] == 0)
        {
            pButton->DestroyWindow();
            continue;
        }
        if (rule.known)
            pButton->SetWindowText(loadText(rule.captions[i]));
        pButton->MoveWindow(&layout.buttons[i]);
    }

    if (m_message.GetSafeHwnd())
    {
        m_message.SetWindowText(m_strMessage);
        m_message.MoveWindow(&m_rcText);
    }
    if (m_pDoNotShow && m_chkDoNotShow.GetSafeHwnd())
    {
        m_chkDoNotShow.MoveWindow(&layout.check);
        // Level with the buttons, the check box may run under them on a short message: the
        // buttons stay on top, seen and clickable.
        m_chkDoNotShow.ModifyStyle(0, WS_CLIPSIBLINGS);
        m_chkDoNotShow.SetWindowPos(&wndBottom, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }

    // The client area becomes width x height; the frame keeps its size.
    CRect window;
    GetWindowRect(&window);
    const int frameWidth = window.Width() - client.Width();
    const int frameHeight = window.Height() - client.Height();
    SetWindowPos(NULL, 0, 0, layout.width + frameWidth, layout.height + frameHeight,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    CenterWindow(m_pParent);
    SetWindowPos(&wndTopMost, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_FRAMECHANGED);
}

BOOL CDq3MMessageBox::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg->message == WM_KEYDOWN && (pMsg->hwnd == m_hWnd || ::IsChild(m_hWnd, pMsg->hwnd)))
    {
        if (pMsg->wParam == VK_ESCAPE)
        {
            _endWithEscape();
            return TRUE;
        }
        if (pMsg->wParam == VK_RETURN)
        {
            const HWND focus = ::GetFocus();
            for (int i = 0; i < ZoMsgBoxButton_Count; ++i)
            {
                CZoButton4MsgBox* pButton = _button(static_cast<E_ZoMsgBoxButton>(i));
                if (focus && pButton->GetSafeHwnd() == focus)
                {
                    _endWith(static_cast<E_ZoMsgBoxButton>(i));
                    return TRUE;
                }
            }
        }
    }
    return CZoDialog::PreTranslateMessage(pMsg);
}

void CDq3MMessageBox::_endWith(E_ZoMsgBoxButton button)
{
    if (button < 0 || button >= ZoMsgBoxButton_Count)
        return;
    if (m_nTimer)
    {
        KillTimer(m_nTimer);
        m_nTimer = 0;
    }
    const int result = ZoMessageBoxTypeRule(m_nType).results[button];
    if (result != ZO_MSGBOX_NO_RESULT)
        EndDialog(result);
}

void CDq3MMessageBox::_endWithEscape()
{
    const int result = ZoMessageBoxTypeRule(m_nType).escape;
    if (result == ZO_MSGBOX_NO_RESULT)
        return;
    if (m_nTimer)
    {
        KillTimer(m_nTimer);
        m_nTimer = 0;
    }
    EndDialog(result);
}

void CDq3MMessageBox::OnRightButton()
{
    _endWith(ZoMsgBoxButton_Right);
}

void CDq3MMessageBox::OnMiddleButton()
{
    _endWith(ZoMsgBoxButton_Middle);
}

void CDq3MMessageBox::OnLeftButton()
{
    _endWith(ZoMsgBoxButton_Left);
}

// Enter with the focus on no button: the dialog manager's IDOK, answered as the default button.
void CDq3MMessageBox::OnOK()
{
    const E_ZoMsgBoxButton defaultButton = ZoMessageBoxDefaultButton(m_nType);
    _endWith(defaultButton == ZoMsgBoxButton_None ? ZoMsgBoxButton_Right : defaultButton);
}

// The caption's close button and the system menu's Close: as Escape.
void CDq3MMessageBox::OnCancel()
{
    _endWithEscape();
}

void CDq3MMessageBox::OnDoNotShowClicked()
{
    if (m_pDoNotShow && m_chkDoNotShow.GetSafeHwnd())
        *m_pDoNotShow = m_chkDoNotShow.GetCheck() == BST_CHECKED;
}

void CDq3MMessageBox::OnTimer(UINT_PTR nIDEvent)
{
    if (nIDEvent != ZO_MSGBOX_TIMER_ID)
    {
        CZoDialog::OnTimer(nIDEvent);
        return;
    }
    KillTimer(nIDEvent);
    m_nTimer = 0;
    _endWith(ZoMsgBoxButton_Right);
}

} // namespace _internal
} // namespace ZoControls
