#include <afxwin.h>
#include <afxext.h>

#include "MenusPage.h"
#include "PageParts.h"

using namespace ZoControls;

namespace {

const UINT kOpenFrameButton = 300;
const int kMargin = 12;
const int kPreviewWidth = 230;
const int kButtonTop = 200; // below the previews

// Commands shared by the demo menus and the demo toolbar.
enum DemoCommand
{
    ID_DEMO_NEW = 0x8100,
    ID_DEMO_OPEN,
    ID_DEMO_SAVE,
    ID_DEMO_CUT,
    ID_DEMO_COPY,
    ID_DEMO_PASTE,
    ID_DEMO_WRAP,
    ID_DEMO_SMALL,
    ID_DEMO_LARGE,
    ID_DEMO_DETAILS,
    ID_DEMO_LOCKED,
    ID_DEMO_PROPERTIES,
    ID_DEMO_RECENT1,
    ID_DEMO_RECENT2,
    ID_DEMO_EXIT,
    ID_DEMO_LAST = ID_DEMO_EXIT
};

const UINT kToolBarButtons[] = {ID_DEMO_NEW, ID_DEMO_OPEN, ID_DEMO_SAVE, ID_SEPARATOR, ID_DEMO_CUT, ID_DEMO_COPY, ID_DEMO_PASTE};

HMENU BuildFileMenu()
{
    CMenu recent;
    recent.CreatePopupMenu();
    recent.AppendMenu(MF_STRING, ID_DEMO_RECENT1, L"&1 report.txt");
    recent.AppendMenu(MF_STRING, ID_DEMO_RECENT2, L"&2 R&&D notes.txt");
    CMenu file;
    file.CreatePopupMenu();
    file.AppendMenu(MF_STRING, ID_DEMO_NEW, L"&New\tCtrl+N");
    file.AppendMenu(MF_STRING, ID_DEMO_OPEN, L"&Open...\tCtrl+O");
    file.AppendMenu(MF_STRING, ID_DEMO_SAVE, L"&Save\tCtrl+S");
    file.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(recent.Detach()), L"&Recent files");
    file.AppendMenu(MF_SEPARATOR);
    file.AppendMenu(MF_STRING, ID_DEMO_EXIT, L"E&xit\tAlt+F4");
    return file.Detach();
}

HMENU BuildEditMenu()
{
    CMenu edit;
    edit.CreatePopupMenu();
    edit.AppendMenu(MF_STRING, ID_DEMO_CUT, L"Cu&t\tCtrl+X");
    edit.AppendMenu(MF_STRING, ID_DEMO_COPY, L"&Copy\tCtrl+C");
    edit.AppendMenu(MF_STRING | MF_GRAYED, ID_DEMO_PASTE, L"&Paste\tCtrl+V");
    edit.AppendMenu(MF_SEPARATOR);
    edit.AppendMenu(MF_STRING | MF_CHECKED, ID_DEMO_WRAP, L"&Word wrap");
    edit.AppendMenu(MF_STRING | MF_GRAYED, ID_DEMO_LOCKED, L"&Locked");
    edit.AppendMenu(MF_SEPARATOR);
    edit.AppendMenu(MF_STRING, ID_DEMO_PROPERTIES, L"P&roperties\tAlt+Enter");
    edit.SetDefaultItem(ID_DEMO_PROPERTIES);
    return edit.Detach();
}

HMENU BuildViewMenu()
{
    CMenu view;
    view.CreatePopupMenu();
    view.AppendMenu(MF_STRING, ID_DEMO_SMALL, L"&Small icons");
    view.AppendMenu(MF_STRING, ID_DEMO_LARGE, L"&Large icons");
    view.AppendMenu(MF_STRING, ID_DEMO_DETAILS, L"&Details");
    view.CheckMenuRadioItem(ID_DEMO_SMALL, ID_DEMO_DETAILS, ID_DEMO_LARGE, MF_BYCOMMAND);
    return view.Detach();
}

// Small flat pictures for the toolbar: one colour and a white mark per button.
BOOL BuildToolBarImages(CImageList& images)
{
    if (!images.Create(16, 16, ILC_COLOR24 | ILC_MASK, 6, 0))
        return FALSE;
    const COLORREF colors[] = {RGB(70, 130, 180), RGB(218, 165, 32), RGB(60, 160, 90),
                               RGB(200, 70, 70), RGB(120, 90, 170), RGB(90, 90, 90)};
    CClientDC screen(NULL);
    for (int i = 0; i < 6; ++i) {
        CBitmap bitmap;
        bitmap.CreateCompatibleBitmap(&screen, 16, 16);
        CDC dc;
        dc.CreateCompatibleDC(&screen);
        CBitmap* pOld = dc.SelectObject(&bitmap);
        dc.FillSolidRect(0, 0, 16, 16, RGB(255, 0, 255));
        dc.FillSolidRect(1, 1, 14, 14, colors[i]);
        dc.FillSolidRect(4, 4 + i, 8, 2, RGB(255, 255, 255));
        dc.SelectObject(pOld);
        images.Add(&bitmap, RGB(255, 0, 255));
    }
    return TRUE;
}

} // namespace

BEGIN_MESSAGE_MAP(CMenusDemoFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_COMMAND_RANGE(ID_DEMO_NEW, ID_DEMO_LAST, &CMenusDemoFrame::OnDemoCommand)
    ZO_ON_MENUXP_MESSAGES()
END_MESSAGE_MAP()

ZO_IMPLEMENT_MENUXP_FORWARDING(CMenusDemoFrame, CFrameWnd)

BOOL CMenusDemoFrame::CreateDemo(CWnd* pOwner)
{
    CMenu bar;
    bar.CreateMenu();
    bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(BuildFileMenu()), L"&File");
    bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(BuildEditMenu()), L"&Edit");
    bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(BuildViewMenu()), L"&View");
    if (!Create(NULL, L"Menus", WS_OVERLAPPEDWINDOW, CRect(120, 120, 620, 420), pOwner))
        return FALSE;
    SetMenu(&bar);
    bar.Detach(); // the window owns it now
    CMenuXP::UpdateMenuBar(this);
    ShowWindow(SW_SHOW);
    return TRUE;
}

int CMenusDemoFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CFrameWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    CMenuXP::SetXPLookNFeel(this, true);
    if (m_toolBar.CreateEx(this, TBSTYLE_FLAT) && BuildToolBarImages(m_images)) {
        m_toolBar.SendMessage(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(m_images.GetSafeHandle()));
        m_toolBar.SetButtons(kToolBarButtons, sizeof(kToolBarButtons) / sizeof(kToolBarButtons[0]));
        RecalcLayout();
    }
    return 0;
}

void CMenusDemoFrame::OnDemoCommand(UINT nID)
{
    CMenu* pMenu = GetMenu();
    // The radio group and the check mark follow the user's choice.
    if (pMenu && nID >= ID_DEMO_SMALL && nID <= ID_DEMO_DETAILS)
        pMenu->CheckMenuRadioItem(ID_DEMO_SMALL, ID_DEMO_DETAILS, nID, MF_BYCOMMAND);
    else if (pMenu && nID == ID_DEMO_WRAP)
        pMenu->CheckMenuItem(nID, (pMenu->GetMenuState(nID, MF_BYCOMMAND) & MF_CHECKED) ? MF_UNCHECKED : MF_CHECKED);
    else if (nID == ID_DEMO_EXIT)
        DestroyWindow();
}

BEGIN_MESSAGE_MAP(CMenusPage, CGalleryPage)
    ON_WM_DESTROY()
    ON_WM_CONTEXTMENU()
    ON_BN_CLICKED(kOpenFrameButton, &CMenusPage::OnOpenFrame)
END_MESSAGE_MAP()

CMenusPage::CMenusPage()
{
}

CMenusPage::~CMenusPage()
{
}

BOOL CMenusPage::OnCreatePage()
{
    m_previews[0].Attach(BuildFileMenu());
    m_previews[1].Attach(BuildEditMenu());
    m_previews[2].Attach(BuildViewMenu());
    for (CMenu& preview : m_previews)
        CMenuXP::SetXPLookNFeel(this, preview.GetSafeHmenu(), true, false);
    return m_openButton.Create(L"Open a frame with menu bar and toolbar", WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON,
                               CRect(kMargin, kButtonTop, kMargin + 280, kButtonTop + 28),
                               this, kOpenFrameButton);
}

void CMenusPage::OnDestroy()
{
    for (CMenu& preview : m_previews)
        preview.DestroyMenu();
    CGalleryPage::OnDestroy();
}

void CMenusPage::DrawPage(CDC& dc, const CRect& client)
{
    CGalleryPage::DrawPage(dc, client);
    // Each popup as it looks when open, its second item under the mouse.
    for (int i = 0; i < PreviewCount; ++i)
        _drawPopupPreview(dc, m_previews[i], CPoint(client.left + kMargin + i * (kPreviewWidth + kMargin), client.top + kMargin),
                          1);
    const CZoThemeManager* pTheme = CZoThemeManager::GetInstance();
    if (!pTheme)
        return;
    CFont* pOld = dc.SelectObject(const_cast<CFont*>(pTheme->GetCacheGDIFont(ZoThemeFont_2, ZoMonitorSize_Normal)));
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(SlotColor(GallerySlot_CaptionText));
    CRect hint(client.left + kMargin * 2 + 280, client.top + kButtonTop, client.right - kMargin, client.top + kButtonTop + 28);
    dc.DrawText(L"Right-click anywhere on this page for a context menu.", &hint,
                DT_LEFT | DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    dc.SelectObject(pOld);
}

// A popup as it looks when open, with item `highlighted` highlighted.
void CMenusPage::_drawPopupPreview(CDC& dc, const CMenu& menu, const CPoint& origin, int highlighted)
{
    const HMENU hMenu = menu.GetSafeHmenu();
    if (!hMenu)
        return;
    // The menu sizes its items for the size class itself: drawn in the device's pixels, as an
    // open popup is, at the magnified place and width.
    CPageUnscaledScope unscaled(dc);
    const CPoint at = unscaled.ToDevice(origin);
    const int width = Scaled(kPreviewWidth);
    int y = at.y + 3;
    const int count = ::GetMenuItemCount(hMenu);
    for (int i = 0; i < count; ++i) {
        MENUITEMINFOW info = {};
        info.cbSize = sizeof(info);
        info.fMask = MIIM_ID | MIIM_DATA;
        ::GetMenuItemInfoW(hMenu, i, TRUE, &info);
        MEASUREITEMSTRUCT measure = {};
        measure.CtlType = ODT_MENU;
        measure.itemData = info.dwItemData;
        CMenuXP::OnMeasureItem(&measure);
        DRAWITEMSTRUCT dis = {};
        dis.CtlType = ODT_MENU;
        dis.itemID = info.wID;
        dis.itemAction = ODA_DRAWENTIRE;
        dis.itemState = i == highlighted ? ODS_SELECTED : 0;
        dis.hwndItem = reinterpret_cast<HWND>(hMenu);
        dis.hDC = dc.GetSafeHdc();
        dis.rcItem = CRect(at.x + 3, y, at.x + width - 3, y + static_cast<int>(measure.itemHeight));
        dis.itemData = info.dwItemData;
        CMenuXP::OnDrawItem(&dis, m_hWnd);
        y += measure.itemHeight;
    }
    // The popup's frame: border and two rings of the menu background.
    const COLORREF border = SlotColor(GallerySlot_MenuBorder);
    const COLORREF back = SlotColor(GallerySlot_MenuBack);
    CRect frame(at.x, at.y, at.x + width, y + 3);
    dc.Draw3dRect(&frame, border, border);
    frame.DeflateRect(1, 1);
    dc.Draw3dRect(&frame, back, back);
    frame.DeflateRect(1, 1);
    dc.Draw3dRect(&frame, back, back);
}

void CMenusPage::OnContextMenu(CWnd* /*pWnd*/, CPoint point)
{
    if (point.x == -1 && point.y == -1) {
        // From the keyboard: open at the page's top-left corner.
        point = CPoint(kMargin, kMargin);
        ClientToScreen(&point);
    }
    CMenu context;
    context.CreatePopupMenu();
    context.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(BuildViewMenu()), L"&View");
    context.AppendMenu(MF_SEPARATOR);
    context.AppendMenu(MF_STRING, ID_DEMO_COPY, L"&Copy\tCtrl+C");
    context.AppendMenu(MF_STRING | MF_GRAYED, ID_DEMO_PASTE, L"&Paste\tCtrl+V");
    context.AppendMenu(MF_STRING, ID_DEMO_PROPERTIES, L"P&roperties");
    context.SetDefaultItem(ID_DEMO_PROPERTIES);
    context.TrackPopupMenu(TPM_LEFTALIGN | TPM_RIGHTBUTTON, point.x, point.y, this);
}

void CMenusPage::OnOpenFrame()
{
    CMenusDemoFrame* pFrame = new CMenusDemoFrame;
    if (!pFrame->CreateDemo(this))
        delete pFrame;
}
