#include "dialogs/ZoDialog.h"

#include "controls/ZoControlTheme.h"
#include "controls/ZoEdit.h"
#include "core/ZoThemeManager.h"
#include "images/ZoResourceImage.h"

namespace ZoControls {

namespace {

const INT_PTR kControlListBlockSize = 10;

// Undocumented messages by which the classic frame repaints its themed caption and frame.
const UINT kClassicCaptionPaint = 0x00AE;
const UINT kClassicFramePaint = 0x00AF;

bool isBorderHit(UINT hit)
{
    return hit >= HTLEFT && hit <= HTBOTTOMRIGHT;
}

// The sizing cursor of a border hit, or null.
LPCTSTR sizingCursorOf(UINT hit)
{
    switch (hit)
    {
    case HTLEFT:
    case HTRIGHT:
        return IDC_SIZEWE;
    case HTTOP:
    case HTBOTTOM:
        return IDC_SIZENS;
    case HTTOPLEFT:
    case HTBOTTOMRIGHT:
        return IDC_SIZENWSE;
    case HTTOPRIGHT:
    case HTBOTTOMLEFT:
        return IDC_SIZENESW;
    default:
        return NULL;
    }
}

bool detectClassicFrame()
{
    OSVERSIONINFOEXW info;
    ZeroMemory(&info, sizeof(info));
    info.dwOSVersionInfoSize = sizeof(info);
#ifdef _MSC_VER
#pragma warning(suppress : 4996) // the frame's look follows the version the system reports
#endif
    if (!::GetVersionExW(reinterpret_cast<OSVERSIONINFOW*>(&info)))
        return false;
    return ZoIsClassicFrameVersion(info.dwMajorVersion, info.dwMinorVersion, info.wProductType);
}

} // namespace

bool ZoIsClassicFrameVersion(DWORD major, DWORD minor, BYTE productType)
{
    if (major < 6 && minor < 2)
        return true;
    return major == 6 && minor == 1 && productType == VER_NT_SERVER;
}

IMPLEMENT_DYNAMIC(CZoDialog, CDialog)

BEGIN_MESSAGE_MAP(CZoDialog, CDialog)
    ON_WM_NCCREATE()
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_NCACTIVATE()
    ON_WM_NCCALCSIZE()
    ON_WM_NCPAINT()
    ON_WM_NCMOUSEMOVE()
    ON_WM_NCMOUSELEAVE()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_NCLBUTTONUP()
    ON_WM_NCHITTEST()
    ON_WM_ACTIVATE()
    ON_WM_SIZE()
    ON_WM_SHOWWINDOW()
    ON_WM_ERASEBKGND()
    ON_WM_SETCURSOR()
    ON_WM_CTLCOLOR()
    ON_MESSAGE(WM_SETTEXT, &CZoDialog::OnSetText)
    ON_MESSAGE(ZoMsg_GetCurrentTheme, &CZoDialog::OnMsgGetCurrentZoTheme)
    ON_MESSAGE(ZoMsg_GetCurrentMonitorSize, &CZoDialog::OnMsgGetCurrentMonitorSize)
    ZO_ON_MENUXP_MESSAGES()
END_MESSAGE_MAP()

ZO_IMPLEMENT_MENUXP_FORWARDING(CZoDialog, CDialog)

CZoDialog::CZoDialog(UINT templateId, CWnd* parent) : m_controls(kControlListBlockSize)
{
    m_lpszTemplateName = MAKEINTRESOURCEW(templateId);
    m_nIDHelp = templateId;
    m_pParentWnd = parent;
    _construct();
}

CZoDialog::CZoDialog(const wchar_t* templateName, CWnd* parent) : m_controls(kControlListBlockSize)
{
    m_lpszTemplateName = templateName;
    if (IS_INTRESOURCE(templateName))
        m_nIDHelp = static_cast<UINT>(reinterpret_cast<UINT_PTR>(templateName));
    m_pParentWnd = parent;
    _construct();
}

void CZoDialog::_construct()
{
    ZeroMemory(&m_border, sizeof(m_border));
    m_bResourcesLoaded = false;
    m_clrBackground = 0;
    m_pSysBtnSkin = NULL;
    m_dwFrameStyle = 0;
    for (int i = 0; i < ZoSysButton_Count; ++i)
    {
        m_aButtonStates[i] = ZoSysButtonState_Normal;
        m_aButtonRects[i].SetRectEmpty();
    }
    m_ePressedRow = ZoSysButton_None;
    m_bDimAdjusted = false;
    m_bClassicFrame = detectClassicFrame();
    m_bFrameRepainted = false;
}

CZoDialog::~CZoDialog()
{
    delete m_pSysBtnSkin;
    m_pSysBtnSkin = NULL;
    if (m_brBackground.GetSafeHandle())
        m_brBackground.DeleteObject();
    // A window destroyed without WM_DESTROY reaching us (never created, or detached) leaves
    // nothing owned behind either.
    _autoUnsubclassStatiscs();
}

CWnd* CZoDialog::GetZoParent()
{
    if (m_pParentWnd)
        return m_pParentWnd;
    return CWnd::FromHandle(::GetParent(m_hWnd));
}

BorderDim CZoDialog::GetBorderDim() const
{
    return m_border;
}

CRect CZoDialog::GetSysButtonRect(E_ZoSysButtonRow row) const
{
    if (row < 0 || row >= ZoSysButton_Count)
        return CRect(0, 0, 0, 0);
    return m_aButtonRects[row];
}

int CZoDialog::GetSysButtonState(E_ZoSysButtonRow row) const
{
    if (row < 0 || row >= ZoSysButton_Count)
        return ZoSysButtonState_Normal;
    return m_aButtonStates[row];
}

// --- Creation and destruction ------------------------------------------------------------------

BOOL CZoDialog::OnNcCreate(LPCREATESTRUCT lpCreateStruct)
{
    m_dwFrameStyle = GetStyle() & ZO_DIALOG_FRAME_STYLE_MASK;
    // The system draws no boxes; the dialog draws its own buttons.
    ModifyStyle(ZO_DIALOG_STYLE_REMOVED, ZO_DIALOG_STYLE_ADDED);
    ModifyStyleEx(0, WS_EX_TOOLWINDOW);
    _resetStates();
    m_aButtonStates[ZoSysButton_Restore] = ZoSysButtonState_Normal;
    return CDialog::OnNcCreate(lpCreateStruct);
}

int CZoDialog::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    // A size class chosen before creation (by a derived class) is kept.
    if (GetZoMonitorSize() == ZoMonitorSize_Unknown)
    {
        const E_ZoMonitorSize size = ZoGetCurrentMonitorSize(this, false);
        SetZoMonitorSize(size < ZoMonitorSize_Normal ? ZoMonitorSize_Normal : size);
    }
    ZoMenuOptIn(this);
    return CDialog::OnCreate(lpCreateStruct);
}

BOOL CZoDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    _loadResource();
    OnSubclassingControls();
    _autoSubclassControls();
    CenterWindow(NULL);
    return TRUE;
}

void CZoDialog::OnSubclassingControls()
{
}

void CZoDialog::_loadResource()
{
    if (m_bResourcesLoaded)
        return;
    m_border = ZoDialogBorders(GetStyle(), GetZoMonitorSize());
    if (m_dwFrameStyle & WS_SYSMENU)
    {
        m_pSysBtnSkin = new CZoResourceBMPImage();
        m_pSysBtnSkin->LoadResourceImage(L"BMP_ZO_DLGSYSBTNS", GetZoMonitorSize(), 1, 1);
    }
    m_clrBackground = ZoSlotColor(ZoDialogColor_Back, GetZoTheme());
    m_brBackground.CreateSolidBrush(m_clrBackground);
    m_bResourcesLoaded = true;
    _realignSysBtns();
    SetWindowPos(NULL, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

void CZoDialog::OnDestroy()
{
    _autoUnsubclassStatiscs();
    CDialog::OnDestroy();
}

// --- System buttons --------------------------------------------------------------------------

void CZoDialog::_realignSysBtns()
{
    if (!(m_dwFrameStyle & WS_SYSMENU) || !m_pSysBtnSkin || !::IsWindow(m_hWnd))
        return;
    CRect window;
    GetWindowRect(&window);
    const int cellWidth = m_pSysBtnSkin->GetWidth() / ZO_DIALOG_SYSBTN_COLUMNS;
    const int cellHeight = m_pSysBtnSkin->GetHeight() / ZO_DIALOG_SYSBTN_ROWS;
    ZoDialogSysButtonRects(window.Width(), m_border, cellWidth, cellHeight, m_dwFrameStyle, IsZoomed() != FALSE,
                           m_aButtonRects);
}

void CZoDialog::_resetStates()
{
    ZoDialogRestingStates(m_dwFrameStyle, m_aButtonStates);
}

E_ZoSysButtonRow CZoDialog::_getSysButtonOn(CPoint screenPoint, UINT nHitTest) const
{
    CRect window;
    ::GetWindowRect(m_hWnd, &window);
    const CPoint point(screenPoint.x - window.left, screenPoint.y - window.top);
    return ZoDialogSysButtonAt(point, nHitTest, m_aButtonRects, m_dwFrameStyle);
}

LRESULT CZoDialog::OnNcHitTest(CPoint point)
{
    const LRESULT platformHit = CDialog::OnNcHitTest(point);
    CRect window;
    GetWindowRect(&window);
    const CPoint inWindow(point.x - window.left, point.y - window.top);
    return ZoDialogHitTest(platformHit, inWindow, m_aButtonRects, m_dwFrameStyle, window.Width(), m_border.caption);
}

void CZoDialog::OnNcLButtonDown(UINT nHitTest, CPoint point)
{
    m_ePressedRow = _getSysButtonOn(point, nHitTest);
    _resetStates();
    if (m_ePressedRow != ZoSysButton_None)
        m_aButtonStates[m_ePressedRow] = ZoSysButtonState_Pressed;
    _redrawCaptionBar();
    CDialog::OnNcLButtonDown(nHitTest, point);
    if (m_bClassicFrame)
        _classicAfterMouse(WM_NCLBUTTONDOWN);
}

void CZoDialog::OnNcMouseMove(UINT nHitTest, CPoint point)
{
    CDialog::OnNcMouseMove(nHitTest, point);
    if (!::IsWindow(m_hWnd))
        return;
    int before[ZoSysButton_Count];
    for (int i = 0; i < ZoSysButton_Count; ++i)
        before[i] = m_aButtonStates[i];
    const E_ZoSysButtonRow over = _getSysButtonOn(point, nHitTest);
    ZoDialogStatesOnMove(m_dwFrameStyle, over, m_ePressedRow, m_aButtonStates);
    // The classic frame sends no button-up for a press that began on a button: act now.
    if (m_bClassicFrame && over != ZoSysButton_None && over == m_ePressedRow)
    {
        _runReleaseAction(over);
        m_ePressedRow = ZoSysButton_None;
        if (!::IsWindow(m_hWnd))
            return;
    }
    if (before[ZoSysButton_Minimize] != m_aButtonStates[ZoSysButton_Minimize] ||
        before[ZoSysButton_Maximize] != m_aButtonStates[ZoSysButton_Maximize] ||
        before[ZoSysButton_Close] != m_aButtonStates[ZoSysButton_Close])
        _redrawCaptionBar();
    TRACKMOUSEEVENT track;
    track.cbSize = sizeof(track);
    track.dwFlags = TME_LEAVE | TME_NONCLIENT;
    track.hwndTrack = m_hWnd;
    track.dwHoverTime = HOVER_DEFAULT;
    ::_TrackMouseEvent(&track);
    if (m_bClassicFrame)
        _classicAfterMouse(WM_NCMOUSEMOVE);
}

void CZoDialog::OnNcMouseLeave()
{
    _resetStates();
    _redrawCaptionBar();
    CDialog::OnNcMouseLeave();
}

void CZoDialog::OnNcLButtonUp(UINT nHitTest, CPoint point)
{
    _resetStates();
    _redrawCaptionBar();
    const E_ZoSysButtonRow released = _getSysButtonOn(point, nHitTest);
    const E_ZoSysButtonRow pressed = m_ePressedRow;
    m_ePressedRow = ZoSysButton_None;
    if (pressed != ZoSysButton_None && pressed == released)
        _runReleaseAction(released);
    if (!::IsWindow(m_hWnd))
        return;
    CDialog::OnNcLButtonUp(nHitTest, point);
}

void CZoDialog::_runReleaseAction(E_ZoSysButtonRow released)
{
    switch (ZoDialogReleaseAction(released, released, IsZoomed() != FALSE, IsIconic() != FALSE))
    {
    case ZoSysAction_Close:
        PostMessage(WM_SYSCOMMAND, SC_CLOSE, 0);
        break;
    case ZoSysAction_Maximize:
        ShowWindow(SW_MAXIMIZE);
        break;
    case ZoSysAction_Restore:
        ShowWindow(SW_RESTORE);
        break;
    case ZoSysAction_Minimize:
        ShowWindow(SW_MINIMIZE);
        break;
    default:
        break;
    }
}

// --- Activation, size and monitor scaling -----------------------------------------------------

BOOL CZoDialog::OnNcActivate(BOOL /*bActive*/)
{
    // The system's active and inactive captions never show.
    PaintFrame();
    return TRUE;
}

void CZoDialog::OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized)
{
    CDialog::OnActivate(nState, pWndOther, bMinimized);
    if (!bMinimized)
        PaintFrame();
}

void CZoDialog::OnShowWindow(BOOL bShow, UINT nStatus)
{
    CDialog::OnShowWindow(bShow, nStatus);
    if (!m_bDimAdjusted)
        _adjustDimAccordingToMonitor();
}

void CZoDialog::OnSize(UINT nType, int cx, int cy)
{
    CDialog::OnSize(nType, cx, cy);
    if (m_bDimAdjusted)
    {
        _realignSysBtns();
        _redrawCaptionBar();
        return;
    }
    _realignSysBtns();
    if (IsWindowVisible() && cx > 0 && cy > 0)
    {
        _adjustDimAccordingToMonitor();
        _realignSysBtns();
        ResizeRegisteredWindows();
    }
}

void CZoDialog::_adjustDimAccordingToMonitor()
{
    if (m_bDimAdjusted || !::IsWindow(m_hWnd))
        return;
    // Marked first: the moves below come back here through WM_SIZE.
    m_bDimAdjusted = true;
    if (GetZoMonitorSize() <= ZoMonitorSize_Normal)
        return;
    const float zoom = GetZoZoomFactor();
    CRect window;
    GetWindowRect(&window);
    const CWnd* pParent = (GetStyle() & WS_CHILD) ? GetParent() : NULL;
    if (pParent)
        pParent->ScreenToClient(&window);
    const CRect scaled = IsZoomed() ? window : ZoScaleDesignRect(window, false, zoom);
    for (HWND child = ::FindWindowExW(m_hWnd, NULL, NULL, NULL); child;
         child = ::FindWindowExW(m_hWnd, child, NULL, NULL))
    {
        CRect rect;
        ::GetWindowRect(child, &rect);
        ScreenToClient(&rect);
        const CRect target = ZoScaleDesignRect(rect, true, zoom);
        ::MoveWindow(child, target.left, target.top, target.Width(), target.Height(), TRUE);
    }
    if (!(GetStyle() & WS_CHILD))
        MoveWindow(&scaled, TRUE);
}

void CZoDialog::OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp)
{
    const CRect window = lpncsp->rgrc[0];
    CDialog::OnNcCalcSize(bCalcValidRects, lpncsp);
    if (!m_bResourcesLoaded)
        return;
    // The platform's frame is kept where it leaves room for the painted one.
    CRect client = lpncsp->rgrc[0];
    client.OffsetRect(-window.left, -window.top);
    client = ZoDialogClientInsideFrame(client, window.Width(), window.Height(), m_border);
    client.OffsetRect(window.left, window.top);
    lpncsp->rgrc[0] = client;
}

// --- Cursor and the classic frame ------------------------------------------------------------------

BOOL CZoDialog::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    if (m_bClassicFrame && (message == kClassicCaptionPaint || message == kClassicFramePaint))
    {
        if (message == kClassicCaptionPaint)
            _redrawCaptionBar();
        else
            PaintFrame();
        if (pResult)
            *pResult = TRUE;
        return TRUE;
    }
    return CDialog::OnWndMsg(message, wParam, lParam, pResult);
}

BOOL CZoDialog::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message)
{
    if (m_bClassicFrame && !m_bFrameRepainted)
    {
        const bool press = message == WM_LBUTTONDOWN || message == WM_NCLBUTTONDOWN;
        if (message == WM_MOUSEMOVE || message == WM_NCMOUSEMOVE)
        {
            const LPCTSTR cursor = sizingCursorOf(nHitTest);
            if (cursor)
            {
                ::SetCursor(::LoadCursor(NULL, cursor));
                return TRUE;
            }
        }
        else if (press && (isBorderHit(nHitTest) || nHitTest == HTCAPTION))
        {
            Invalidate();
            m_bFrameRepainted = true;
        }
    }
    return CDialog::OnSetCursor(pWnd, nHitTest, message);
}

void CZoDialog::_classicAfterMouse(UINT /*message*/)
{
    if (!::IsWindow(m_hWnd))
        return;
    _redrawCaptionBar();
    const CRect window = _windowAtOrigin();
    CRgn frame;
    CRgn client;
    frame.CreateRectRgnIndirect(&window);
    const CRect inside = _clientInWindow();
    client.CreateRectRgnIndirect(&inside);
    frame.CombineRgn(&frame, &client, RGN_DIFF);
    RedrawWindow(NULL, &frame, RDW_FRAME | RDW_INVALIDATE);
}

// --- Backgrounds and queries -----------------------------------------------------------------

BOOL CZoDialog::OnEraseBkgnd(CDC* pDC)
{
    CRect client;
    GetClientRect(&client);
    if (pDC)
        _fillBackground(*pDC, client);
    return TRUE;
}

E_ZoPaintMode CZoDialog::GetPaintMode()
{
    return ZoPaint_DirectAfterErase;
}

void CZoDialog::DrawClient(CDC& dc)
{
    CRect client;
    GetClientRect(&client);
    _fillBackground(dc, client);
}

HBRUSH CZoDialog::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    if (m_brBackground.GetSafeHandle())
    {
        if (nCtlColor == CTLCOLOR_STATIC && !(pWnd && pWnd->IsKindOf(RUNTIME_CLASS(CZoEdit))))
        {
            pDC->SetBkColor(m_clrBackground);
            return static_cast<HBRUSH>(m_brBackground.GetSafeHandle());
        }
        if (nCtlColor == CTLCOLOR_DLG)
            return static_cast<HBRUSH>(m_brBackground.GetSafeHandle());
    }
    return CDialog::OnCtlColor(pDC, pWnd, nCtlColor);
}

LRESULT CZoDialog::OnSetText(WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    // The platform draws its own caption when the text changes: ours goes back on top.
    const LRESULT result = Default();
    if (IsWindowVisible())
        PaintFrame();
    return result;
}

LRESULT CZoDialog::OnMsgGetCurrentZoTheme(WPARAM wParam, LPARAM lParam)
{
    return IZoUIBase::OnMsgGetCurrentZoTheme(wParam, lParam);
}

LRESULT CZoDialog::OnMsgGetCurrentMonitorSize(WPARAM wParam, LPARAM lParam)
{
    return IZoUIBase::OnMsgGetCurrentMonitorSize(wParam, lParam);
}

} // namespace ZoControls
