#include <afxext.h>
#include <afxpriv.h>
#include "cmnctrls_internal.h"

// The TOOLBAR resource: a header of four WORDs followed by one WORD per button.
struct ToolBarResource
{
    WORD wVersion;
    WORD wWidth;
    WORD wHeight;
    WORD wItemCount;
};

// Toolbar bitmaps paint their background in light grey, which shows the button face.
static const COLORREF kToolBarMaskColour = RGB(192, 192, 192);

// ---------------------------------------------------------------------------------------
// CControlBar

IMPLEMENT_DYNAMIC(CControlBar, CWnd)

BEGIN_MESSAGE_MAP(CControlBar, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CControlBar::OnIdleUpdateCmdUI)
END_MESSAGE_MAP()

CControlBar::CControlBar()
    : m_bAutoDelete(FALSE), m_dwStyle(0), m_pDockSite(NULL), m_nCount(0), m_cxLeftBorder(0), m_cxRightBorder(0),
      m_cyTopBorder(0), m_cyBottomBorder(0)
{
}

CControlBar::~CControlBar()
{
    if (m_pDockSite != NULL)
        m_pDockSite->RemoveControlBar(this);
    DestroyWindow();
}

void CControlBar::SetBorders(int cxLeft, int cyTop, int cxRight, int cyBottom)
{
    m_cxLeftBorder = cxLeft;
    m_cyTopBorder = cyTop;
    m_cxRightBorder = cxRight;
    m_cyBottomBorder = cyBottom;
}

void CControlBar::SetBorders(LPCRECT lpRect)
{
    if (lpRect != NULL)
        SetBorders(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

CRect CControlBar::GetBorders() const
{
    return CRect(m_cxLeftBorder, m_cyTopBorder, m_cxRightBorder, m_cyBottomBorder);
}

// The idle loop's update pass: the bar's commands go to the frame that owns the bar.
LRESULT CControlBar::OnIdleUpdateCmdUI(WPARAM wParam, LPARAM)
{
    if (!IsVisible())
        return 0;
    CWnd* pOwner = GetOwner();
    CFrameWnd* pTarget = (pOwner != NULL && pOwner->IsKindOf(RUNTIME_CLASS(CFrameWnd))) ? (CFrameWnd*)pOwner
                                                                                     : GetParentFrame();
    if (pTarget != NULL)
        OnUpdateCmdUI(pTarget, (BOOL)wParam);
    return 0;
}

BOOL CControlBar::IsVisible() const
{
    return m_hWnd != NULL && (::GetWindowLongW(m_hWnd, GWL_STYLE) & WS_VISIBLE) != 0;
}

CSize CControlBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz)
{
    CSize size(m_cxLeftBorder + m_cxRightBorder, m_cyTopBorder + m_cyBottomBorder);
    if (bStretch) {
        if (bHorz)
            size.cx = 32767;
        else
            size.cy = 32767;
    }
    return size;
}

CSize CControlBar::CalcDynamicLayout(int, DWORD nMode)
{
    return CalcFixedLayout((nMode & LM_STRETCH) != 0, (nMode & LM_HORZ) != 0);
}

int CControlBar::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    // A bar created directly inside a frame joins that frame's layout.
    CWnd* parent = CWnd::FromHandlePermanent(::GetParent(m_hWnd));
    if (parent != NULL && parent->IsKindOf(RUNTIME_CLASS(CFrameWnd))) {
        m_pDockSite = (CFrameWnd*)parent;
        m_pDockSite->AddControlBar(this);
    }
    return 0;
}

void CControlBar::OnDestroy()
{
    if (m_pDockSite != NULL) {
        m_pDockSite->RemoveControlBar(this);
        m_pDockSite = NULL;
    }
    CWnd::OnDestroy();
}

void CControlBar::PostNcDestroy()
{
    if (m_bAutoDelete)
        delete this;
}

// ---------------------------------------------------------------------------------------
// CToolBar

IMPLEMENT_DYNAMIC(CToolBar, CControlBar)

CToolBar::CToolBar()
    : m_sizeButton(23, 22), m_sizeImage(16, 15), m_hbmImageWell(NULL), m_hImageWell(NULL), m_cyHeight(-1)
{
}

CToolBar::~CToolBar()
{
    DestroyWindow();
    ReleaseImageWell();
}

void CToolBar::ReleaseImageWell()
{
    if (m_hImageWell != NULL) {
        ::ImageList_Destroy(m_hImageWell);
        m_hImageWell = NULL;
    }
    if (m_hbmImageWell != NULL) {
        ::DeleteObject(m_hbmImageWell);
        m_hbmImageWell = NULL;
    }
}

BOOL CToolBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID)
{
    return CreateEx(pParentWnd, 0, dwStyle, CRect(0, 0, 0, 0), nID);
}

BOOL CToolBar::CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, CRect rcBorders, UINT nID)
{
    if (pParentWnd == NULL || m_hWnd != NULL)
        return FALSE;
    SetBorders(rcBorders);
    m_dwStyle = dwStyle & CBRS_ALL;
    // The frame places the bar; the native control must neither move nor size itself.
    DWORD windowStyle = (dwStyle & ~CBRS_ALL) | dwCtrlStyle | CCS_NOPARENTALIGN | CCS_NOMOVEY | CCS_NODIVIDER |
                        CCS_NORESIZE;
    if (m_dwStyle & CBRS_TOOLTIPS)
        windowStyle |= TBSTYLE_TOOLTIPS;
    if (!zoafx::CreateControl(this, 0, TOOLBARCLASSNAMEW, windowStyle, CRect(0, 0, 0, 0), pParentWnd, nID))
        return FALSE;
    ::SendMessageW(m_hWnd, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    SetSizes(m_sizeButton, m_sizeImage);
    return TRUE;
}

void CToolBar::SetSizes(SIZE sizeButton, SIZE sizeImage)
{
    if (sizeImage.cx <= 0 || sizeImage.cy <= 0 || sizeButton.cx <= 0 || sizeButton.cy <= 0)
        return;
    m_sizeButton = sizeButton;
    m_sizeImage = sizeImage;
    if (m_hWnd == NULL)
        return;
    ::SendMessageW(m_hWnd, TB_SETBITMAPSIZE, 0, MAKELPARAM(sizeImage.cx, sizeImage.cy));
    ::SendMessageW(m_hWnd, TB_SETBUTTONSIZE, 0, MAKELPARAM(sizeButton.cx, sizeButton.cy));
}

void CToolBar::SetHeight(int cyHeight)
{
    m_cyHeight = cyHeight;
}

BOOL CToolBar::LoadToolBar(UINT nIDResource)
{
    return LoadToolBar(MAKEINTRESOURCE(nIDResource));
}

BOOL CToolBar::LoadToolBar(LPCTSTR lpszResourceName)
{
    if (lpszResourceName == NULL || m_hWnd == NULL)
        return FALSE;
    HINSTANCE module = AfxFindResourceHandle(lpszResourceName, RT_TOOLBAR);
    HRSRC found = ::FindResourceW(module, lpszResourceName, RT_TOOLBAR);
    if (found == NULL)
        return FALSE;
    DWORD bytes = ::SizeofResource(module, found);
    HGLOBAL loaded = ::LoadResource(module, found);
    const ToolBarResource* data = loaded != NULL ? (const ToolBarResource*)::LockResource(loaded) : NULL;
    if (data == NULL || bytes < sizeof(ToolBarResource) || data->wVersion != 1 || data->wWidth == 0 ||
        data->wHeight == 0 || bytes < sizeof(ToolBarResource) + data->wItemCount * sizeof(WORD))
        return FALSE;

    const WORD* items = (const WORD*)(data + 1);
    UINT* ids = new UINT[data->wItemCount + 1];
    for (int index = 0; index < data->wItemCount; index++)
        ids[index] = items[index];
    // Buttons are the image plus a 7-pixel frame, as the resource editor lays them out.
    SetSizes(CSize(data->wWidth + 7, data->wHeight + 7), CSize(data->wWidth, data->wHeight));
    BOOL ok = SetButtons(ids, data->wItemCount) && LoadBitmap(lpszResourceName);
    delete[] ids;
    return ok;
}

BOOL CToolBar::LoadBitmap(UINT nIDResource)
{
    return LoadBitmap(MAKEINTRESOURCE(nIDResource));
}

BOOL CToolBar::LoadBitmap(LPCTSTR lpszResourceName)
{
    if (lpszResourceName == NULL)
        return FALSE;
    HINSTANCE module = AfxFindResourceHandle(lpszResourceName, RT_BITMAP);
    HBITMAP bitmap = (HBITMAP)::LoadImageW(module, lpszResourceName, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION);
    if (bitmap == NULL)
        return FALSE;
    if (!SetBitmap(bitmap)) {
        ::DeleteObject(bitmap);
        return FALSE;
    }
    return TRUE;
}

// The toolbar owns the bitmap from here on and keeps an image list cut from it, which is
// what TB_GETIMAGELIST hands to those who draw the buttons' pictures elsewhere.
BOOL CToolBar::SetBitmap(HBITMAP hbmImageWell)
{
    if (hbmImageWell == NULL || m_hWnd == NULL)
        return FALSE;
    BITMAP info;
    if (::GetObjectW(hbmImageWell, sizeof(info), &info) == 0 || info.bmWidth < m_sizeImage.cx)
        return FALSE;
    int count = info.bmWidth / m_sizeImage.cx;
    HIMAGELIST images = ::ImageList_Create(m_sizeImage.cx, m_sizeImage.cy, ILC_COLOR24 | ILC_MASK, count, 4);
    if (images == NULL)
        return FALSE;
    if (::ImageList_AddMasked(images, hbmImageWell, kToolBarMaskColour) < 0) {
        ::ImageList_Destroy(images);
        return FALSE;
    }
    ::SendMessageW(m_hWnd, TB_SETIMAGELIST, 0, (LPARAM)images);
    ReleaseImageWell();
    m_hImageWell = images;
    m_hbmImageWell = hbmImageWell;
    ::InvalidateRect(m_hWnd, NULL, TRUE);
    return TRUE;
}

BOOL CToolBar::SetButtons(const UINT* lpIDArray, int nIDCount)
{
    if (m_hWnd == NULL || nIDCount < 0)
        return FALSE;
    while (::SendMessageW(m_hWnd, TB_DELETEBUTTON, 0, 0))
        ;
    m_nCount = 0;
    if (nIDCount == 0)
        return TRUE;

    TBBUTTON* buttons = new TBBUTTON[nIDCount];
    memset(buttons, 0, sizeof(TBBUTTON) * nIDCount);
    int image = 0;
    for (int index = 0; index < nIDCount; index++) {
        TBBUTTON& button = buttons[index];
        UINT id = lpIDArray != NULL ? lpIDArray[index] : ID_SEPARATOR;
        if (id == ID_SEPARATOR) {
            button.fsStyle = TBSTYLE_SEP;
            button.iBitmap = 8;
        } else {
            button.idCommand = (int)id;
            button.fsStyle = TBSTYLE_BUTTON;
            button.fsState = TBSTATE_ENABLED;
            button.iBitmap = image++;
        }
    }
    BOOL ok = (BOOL)::SendMessageW(m_hWnd, TB_ADDBUTTONSW, nIDCount, (LPARAM)buttons);
    delete[] buttons;
    if (ok)
        m_nCount = nIDCount;
    return ok;
}

namespace {

// Carries update handlers' answers to one toolbar button.
class CToolCmdUI : public CCmdUI
{
public:
    void Enable(BOOL bOn = TRUE) override
    {
        m_bEnableChanged = TRUE;
        m_pOther->SendMessage(TB_ENABLEBUTTON, m_nID, MAKELPARAM(bOn ? TRUE : FALSE, 0));
    }
    void SetCheck(int nCheck = 1) override
    {
        m_pOther->SendMessage(TB_CHECKBUTTON, m_nID, MAKELPARAM(nCheck == 1, 0));
        m_pOther->SendMessage(TB_INDETERMINATE, m_nID, MAKELPARAM(nCheck == 2, 0));
    }
    void SetText(LPCTSTR) override { }  // buttons keep their captions
};

} // namespace

void CToolBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler)
{
    CToolCmdUI state;
    state.m_pOther = this;
    state.m_nIndexMax = (UINT)GetCount();
    for (state.m_nIndex = 0; state.m_nIndex < state.m_nIndexMax; state.m_nIndex++) {
        TBBUTTON button;
        if (!GetButtonByIndex((int)state.m_nIndex, button) || (button.fsStyle & TBSTYLE_SEP))
            continue;
        state.m_nID = (UINT)button.idCommand;
        state.DoUpdate(pTarget, bDisableIfNoHndler);
    }
}

BOOL CToolBar::GetButtonByIndex(int nIndex, TBBUTTON& button) const
{
    memset(&button, 0, sizeof(button));
    if (m_hWnd == NULL || nIndex < 0)
        return FALSE;
    return (BOOL)::SendMessageW(m_hWnd, TB_GETBUTTON, nIndex, (LPARAM)&button);
}

int CToolBar::CommandToIndex(UINT nIDFind) const
{
    if (m_hWnd == NULL)
        return -1;
    return (int)::SendMessageW(m_hWnd, TB_COMMANDTOINDEX, nIDFind, 0);
}

UINT CToolBar::GetItemID(int nIndex) const
{
    TBBUTTON button;
    if (!GetButtonByIndex(nIndex, button) || (button.fsStyle & TBSTYLE_SEP))
        return ID_SEPARATOR;
    return (UINT)button.idCommand;
}

void CToolBar::GetItemRect(int nIndex, LPRECT lpRect) const
{
    if (lpRect == NULL)
        return;
    if (m_hWnd == NULL || !::SendMessageW(m_hWnd, TB_GETITEMRECT, nIndex, (LPARAM)lpRect))
        ::SetRectEmpty(lpRect);
}

UINT CToolBar::GetButtonStyle(int nIndex) const
{
    TBBUTTON button;
    if (!GetButtonByIndex(nIndex, button))
        return 0;
    return MAKELONG(button.fsStyle, button.fsState);
}

void CToolBar::SetButtonStyle(int nIndex, UINT nStyle)
{
    TBBUTTONINFOW info;
    memset(&info, 0, sizeof(info));
    info.cbSize = sizeof(info);
    info.dwMask = TBIF_BYINDEX | TBIF_STYLE | TBIF_STATE;
    info.fsStyle = (BYTE)LOWORD(nStyle);
    info.fsState = (BYTE)HIWORD(nStyle);
    ::SendMessageW(m_hWnd, TB_SETBUTTONINFOW, nIndex, (LPARAM)&info);
}

void CToolBar::GetButtonInfo(int nIndex, UINT& nID, UINT& nStyle, int& iImage) const
{
    TBBUTTON button;
    if (!GetButtonByIndex(nIndex, button)) {
        nID = ID_SEPARATOR;
        nStyle = 0;
        iImage = 0;
        return;
    }
    nID = (UINT)button.idCommand;
    nStyle = MAKELONG(button.fsStyle, button.fsState);
    iImage = button.iBitmap;
}

void CToolBar::SetButtonInfo(int nIndex, UINT nID, UINT nStyle, int iImage)
{
    TBBUTTONINFOW info;
    memset(&info, 0, sizeof(info));
    info.cbSize = sizeof(info);
    info.dwMask = TBIF_BYINDEX | TBIF_COMMAND | TBIF_STYLE | TBIF_STATE | TBIF_IMAGE;
    info.idCommand = (int)nID;
    info.fsStyle = (BYTE)LOWORD(nStyle);
    info.fsState = (BYTE)HIWORD(nStyle);
    info.iImage = iImage;
    ::SendMessageW(m_hWnd, TB_SETBUTTONINFOW, nIndex, (LPARAM)&info);
}

BOOL CToolBar::SetButtonText(int nIndex, LPCTSTR lpszText)
{
    TBBUTTONINFOW info;
    memset(&info, 0, sizeof(info));
    info.cbSize = sizeof(info);
    info.dwMask = TBIF_BYINDEX | TBIF_TEXT;
    info.pszText = (LPWSTR)lpszText;
    return m_hWnd != NULL && ::SendMessageW(m_hWnd, TB_SETBUTTONINFOW, nIndex, (LPARAM)&info);
}

CString CToolBar::GetButtonText(int nIndex) const
{
    CString text;
    GetButtonText(nIndex, text);
    return text;
}

void CToolBar::GetButtonText(int nIndex, CString& rString) const
{
    rString.Empty();
    TBBUTTON button;
    if (!GetButtonByIndex(nIndex, button) || (button.fsStyle & TBSTYLE_SEP))
        return;
    int length = (int)::SendMessageW(m_hWnd, TB_GETBUTTONTEXTW, button.idCommand, 0);
    if (length <= 0)
        return;
    int copied = (int)::SendMessageW(m_hWnd, TB_GETBUTTONTEXTW, button.idCommand, (LPARAM)rString.GetBuffer(length + 1));
    rString.ReleaseBuffer(copied < 0 ? 0 : copied);
}

CSize CToolBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz)
{
    CSize size = CControlBar::CalcFixedLayout(FALSE, bHorz);
    int extent = 0;
    int thickness = m_cyHeight > 0 ? m_cyHeight : m_sizeButton.cy;
    if (m_hWnd != NULL) {
        DWORD buttonSize = (DWORD)::SendMessageW(m_hWnd, TB_GETBUTTONSIZE, 0, 0);
        if (m_cyHeight <= 0 && HIWORD(buttonSize) > 0)
            thickness = HIWORD(buttonSize);
        int count = (int)::SendMessageW(m_hWnd, TB_BUTTONCOUNT, 0, 0);
        RECT last;
        if (count > 0 && ::SendMessageW(m_hWnd, TB_GETITEMRECT, count - 1, (LPARAM)&last))
            extent = bHorz ? last.right : last.bottom;
    }
    if (bHorz) {
        size.cx = bStretch ? 32767 : size.cx + extent;
        size.cy += thickness;
    } else {
        size.cx += thickness;
        size.cy = bStretch ? 32767 : size.cy + extent;
    }
    return size;
}

CSize CToolBar::CalcDynamicLayout(int, DWORD nMode)
{
    return CalcFixedLayout((nMode & LM_STRETCH) != 0, (nMode & LM_HORZ) != 0);
}
