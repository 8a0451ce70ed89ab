// CToolBar loaded from a TOOLBAR resource inside a frame, the frame's control-bar list and
// layout, and the path by which menus find a command's button image; CToolBarCtrl alone.
#include <afxext.h>
#include <afxpriv.h>
#include <gtest/gtest.h>
#include <zotest/test_window.h>

#include "frame_test_ids.h"

namespace {

class ToolBarTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        frame = new CFrameWnd;
        ASSERT_TRUE(frame->Create(NULL, L"Bars", WS_OVERLAPPEDWINDOW, CRect(0, 0, 400, 300)));
        pane = ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 0, 0, 10, 10, frame->m_hWnd,
                                 (HMENU)(UINT_PTR)AFX_IDW_PANE_FIRST, NULL, NULL);
        ASSERT_NE(nullptr, pane);
    }

    void TearDown() override
    {
        if (frame != nullptr && ::IsWindow(frame->m_hWnd))
            frame->DestroyWindow();
    }

    CRect PlaceInFrame(HWND child) const
    {
        CRect rect;
        ::GetWindowRect(child, &rect);
        frame->ScreenToClient(&rect);
        return rect;
    }

    CFrameWnd* frame = nullptr;
    HWND pane = nullptr;
};

// What the owner-drawn menus do: look through the frame's child windows for a control bar of
// that frame which is a native toolbar holding the command, and take that button's image from
// the toolbar's image list.
bool FindCommandImage(CFrameWnd* frame, UINT command, HIMAGELIST& images, int& image)
{
    HWND child = ::GetWindow(frame->m_hWnd, GW_CHILD);
    for (; child != NULL; child = ::GetWindow(child, GW_HWNDNEXT)) {
        CControlBar* bar = DYNAMIC_DOWNCAST(CControlBar, CWnd::FromHandlePermanent(child));
        if (bar == NULL || bar->GetParentFrame() != frame)
            continue;
        wchar_t name[64] = L"";
        ::GetClassNameW(bar->GetSafeHwnd(), name, 64);
        if (_wcsicmp(name, L"ToolbarWindow32") != 0)
            continue;
        TBBUTTONINFOW info = {};
        info.cbSize = sizeof(info);
        info.dwMask = TBIF_IMAGE | TBIF_COMMAND;
        if (::SendMessageW(bar->m_hWnd, TB_GETBUTTONINFOW, command, (LPARAM)&info) < 0)
            continue;
        images = (HIMAGELIST)::SendMessageW(bar->m_hWnd, TB_GETIMAGELIST, 0, 0);
        image = info.iImage;
        return true;
    }
    return false;
}

// A frame whose handlers decide the toolbar's button states: red is disabled and green
// checked by their update handlers, blue has neither an update nor a command handler.
class UpdatingFrame : public CFrameWnd
{
public:
    void OnRed() { }
    void OnGreen() { }
    void OnUpdateRed(CCmdUI* pCmdUI) { pCmdUI->Enable(FALSE); }
    void OnUpdateGreen(CCmdUI* pCmdUI) { pCmdUI->SetCheck(1); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(UpdatingFrame, CFrameWnd)
    ON_COMMAND(ID_TEST_RED, &UpdatingFrame::OnRed)
    ON_COMMAND(ID_TEST_GREEN, &UpdatingFrame::OnGreen)
    ON_UPDATE_COMMAND_UI(ID_TEST_RED, &UpdatingFrame::OnUpdateRed)
    ON_UPDATE_COMMAND_UI(ID_TEST_GREEN, &UpdatingFrame::OnUpdateGreen)
END_MESSAGE_MAP()

} // namespace

TEST(ToolBarUpdate, IdleUpdateAsksTheFrameForEachButtonsState)
{
    UpdatingFrame* frame = new UpdatingFrame;  // frames delete themselves when destroyed
    ASSERT_TRUE(frame->Create(NULL, L"Updates", WS_OVERLAPPEDWINDOW, CRect(0, 0, 400, 300)));
    CToolBar bar;
    ASSERT_TRUE(bar.CreateEx(frame));
    ASSERT_TRUE(bar.LoadToolBar(IDR_TEST_FRAME));
    auto enabled = [&](UINT id) { return bar.SendMessage(TB_ISBUTTONENABLED, id) != 0; };
    auto checked = [&](UINT id) { return bar.SendMessage(TB_ISBUTTONCHECKED, id) != 0; };

    // The idle pass without disabling: only what the update handlers say changes.
    bar.SendMessage(WM_IDLEUPDATECMDUI, FALSE);
    EXPECT_FALSE(enabled(ID_TEST_RED));
    EXPECT_TRUE(enabled(ID_TEST_GREEN));
    EXPECT_TRUE(checked(ID_TEST_GREEN));
    EXPECT_TRUE(enabled(ID_TEST_BLUE));

    // With disabling on, a button whose command nobody handles is greyed too.
    bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_FALSE(enabled(ID_TEST_RED));
    EXPECT_TRUE(enabled(ID_TEST_GREEN));
    EXPECT_FALSE(enabled(ID_TEST_BLUE));

    // A hidden bar is left alone.
    bar.SendMessage(TB_ENABLEBUTTON, ID_TEST_BLUE, MAKELPARAM(TRUE, 0));
    bar.ShowWindow(SW_HIDE);
    bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_TRUE(enabled(ID_TEST_BLUE));
    frame->DestroyWindow();
}

TEST_F(ToolBarTest, LoadToolBarReadsButtonsFromTheResource)
{
    CToolBar bar;
    ASSERT_TRUE(bar.CreateEx(frame, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP));
    wchar_t name[64] = L"";
    ::GetClassNameW(bar.m_hWnd, name, 64);
    EXPECT_STREQ(TOOLBARCLASSNAMEW, name);
    EXPECT_EQ(AFX_IDW_TOOLBAR, bar.GetDlgCtrlID());
    ASSERT_TRUE(bar.LoadToolBar(IDR_TEST_FRAME));
    EXPECT_EQ(4, bar.GetCount());
    EXPECT_EQ(4, bar.GetToolBarCtrl().GetButtonCount());
    EXPECT_EQ((UINT)ID_TEST_RED, bar.GetItemID(0));
    EXPECT_EQ((UINT)ID_SEPARATOR, bar.GetItemID(1));
    EXPECT_EQ((UINT)ID_TEST_BLUE, bar.GetItemID(3));
    EXPECT_EQ((UINT)ID_SEPARATOR, bar.GetItemID(42));
    EXPECT_EQ(3, bar.CommandToIndex(ID_TEST_BLUE));
    EXPECT_EQ(-1, bar.CommandToIndex(999));
    UINT id = 0, style = 0;
    int image = -1;
    bar.GetButtonInfo(3, id, style, image);
    EXPECT_EQ((UINT)ID_TEST_BLUE, id);
    EXPECT_EQ(2, image);
    EXPECT_TRUE(LOWORD(bar.GetButtonStyle(1)) & TBSTYLE_SEP);
    EXPECT_TRUE(HIWORD(bar.GetButtonStyle(0)) & TBSTATE_ENABLED);
    CRect first, missing(1, 1, 2, 2);
    bar.GetItemRect(0, &first);
    EXPECT_FALSE(first.IsRectEmpty());
    bar.GetItemRect(42, &missing);
    EXPECT_TRUE(missing.IsRectEmpty());
    EXPECT_TRUE(bar.IsKindOf(RUNTIME_CLASS(CControlBar)));
}

TEST_F(ToolBarTest, ButtonImagesComeFromTheBitmap)
{
    CToolBar bar;
    ASSERT_TRUE(bar.CreateEx(frame));
    ASSERT_TRUE(bar.LoadToolBar(IDR_TEST_FRAME));
    HIMAGELIST images = (HIMAGELIST)::SendMessageW(bar.m_hWnd, TB_GETIMAGELIST, 0, 0);
    ASSERT_NE(nullptr, images);
    EXPECT_EQ(3, ::ImageList_GetImageCount(images));
    int cx = 0, cy = 0;
    ::ImageList_GetIconSize(images, &cx, &cy);
    EXPECT_EQ(16, cx);
    EXPECT_EQ(15, cy);
    CImageList* wrapped = bar.GetToolBarCtrl().GetImageList();
    ASSERT_NE(nullptr, wrapped);
    EXPECT_EQ(images, wrapped->GetSafeHandle());

    // Image 2 is a blue square on the light grey that the mask makes transparent.
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = 16;
    info.bmiHeader.biHeight = -15;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    HBITMAP target = ::CreateDIBSection(NULL, &info, DIB_RGB_COLORS, &bits, NULL, 0);
    HDC dc = ::CreateCompatibleDC(NULL);
    HGDIOBJ previous = ::SelectObject(dc, target);
    RECT all = { 0, 0, 16, 15 };
    ::FillRect(dc, &all, (HBRUSH)::GetStockObject(WHITE_BRUSH));
    ASSERT_TRUE(::ImageList_Draw(images, 2, dc, 0, 0, ILD_TRANSPARENT));
    EXPECT_EQ(RGB(0, 0, 255), ::GetPixel(dc, 8, 7));
    EXPECT_EQ(RGB(255, 255, 255), ::GetPixel(dc, 0, 0));
    ::SelectObject(dc, previous);
    ::DeleteDC(dc);
    ::DeleteObject(target);
}

TEST_F(ToolBarTest, FrameListsTheBarAndMenusFindCommandImages)
{
    CToolBar bar;
    ASSERT_TRUE(bar.CreateEx(frame));
    ASSERT_TRUE(bar.LoadToolBar(IDR_TEST_FRAME));
    EXPECT_EQ(1, frame->m_listControlBars.GetCount());
    EXPECT_EQ(&bar, frame->m_listControlBars.GetHead());
    EXPECT_EQ(&bar, (CToolBar*)frame->GetControlBar(AFX_IDW_TOOLBAR));
    EXPECT_EQ(frame, bar.GetDockingFrame());
    HIMAGELIST images = NULL;
    int image = -1;
    ASSERT_TRUE(FindCommandImage(frame, ID_TEST_GREEN, images, image));
    EXPECT_EQ(1, image);
    EXPECT_EQ(3, ::ImageList_GetImageCount(images));
    EXPECT_FALSE(FindCommandImage(frame, ID_TEST_OPEN, images, image));
    bar.DestroyWindow();
    EXPECT_EQ(0, frame->m_listControlBars.GetCount());
}

TEST_F(ToolBarTest, RecalcLayoutPutsTheBarOnTop)
{
    CToolBar bar;
    ASSERT_TRUE(bar.CreateEx(frame));
    ASSERT_TRUE(bar.LoadToolBar(IDR_TEST_FRAME));
    frame->RecalcLayout(FALSE);
    CRect client;
    frame->GetClientRect(&client);
    CRect placed = PlaceInFrame(bar.m_hWnd);
    CSize wanted = bar.CalcFixedLayout(TRUE, TRUE);
    EXPECT_GT(wanted.cy, 15);
    EXPECT_EQ(CRect(0, 0, client.right, wanted.cy), placed);
    EXPECT_EQ(CRect(0, wanted.cy, client.right, client.bottom), PlaceInFrame(pane));
    CSize natural = bar.CalcFixedLayout(FALSE, TRUE);
    CRect last;
    bar.GetItemRect(3, &last);
    EXPECT_EQ(last.right, natural.cx);

    // Resizing the frame lays the bars out again.
    frame->SetWindowPos(NULL, 0, 0, 500, 350, SWP_NOMOVE | SWP_NOZORDER);
    frame->GetClientRect(&client);
    EXPECT_EQ(client.right, PlaceInFrame(bar.m_hWnd).right);

    frame->ShowControlBar(&bar, FALSE, FALSE);
    EXPECT_EQ(client, PlaceInFrame(pane));
}

TEST_F(ToolBarTest, BottomBarsStackFromTheBottom)
{
    CToolBar top, bottom;
    ASSERT_TRUE(top.CreateEx(frame, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP, CRect(0, 0, 0, 0), 0xE810));
    ASSERT_TRUE(bottom.CreateEx(frame, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_BOTTOM, CRect(0, 0, 0, 0), 0xE811));
    ASSERT_TRUE(top.LoadToolBar(IDR_TEST_FRAME));
    ASSERT_TRUE(bottom.LoadToolBar(IDR_TEST_FRAME));
    frame->RecalcLayout();
    CRect client;
    frame->GetClientRect(&client);
    CRect topPlace = PlaceInFrame(top.m_hWnd), bottomPlace = PlaceInFrame(bottom.m_hWnd);
    EXPECT_EQ(0, topPlace.top);
    EXPECT_EQ(client.bottom, bottomPlace.bottom);
    EXPECT_EQ(CRect(0, topPlace.bottom, client.right, bottomPlace.top), PlaceInFrame(pane));
    EXPECT_EQ(&bottom, (CToolBar*)frame->GetControlBar(0xE811));
    EXPECT_EQ(nullptr, frame->GetControlBar(0xE812));
}

TEST_F(ToolBarTest, ButtonsStylesAndTexts)
{
    CToolBar bar;
    ASSERT_TRUE(bar.CreateEx(frame));
    UINT ids[] = { 7, ID_SEPARATOR, 8 };
    ASSERT_TRUE(bar.SetButtons(ids, 3));
    EXPECT_EQ(3, bar.GetCount());
    EXPECT_EQ(2, bar.CommandToIndex(8));
    bar.SetButtonInfo(2, 9, TBSTYLE_CHECK, 5);
    UINT id = 0, style = 0;
    int image = 0;
    bar.GetButtonInfo(2, id, style, image);
    EXPECT_EQ(9u, id);
    EXPECT_TRUE(LOWORD(style) & TBSTYLE_CHECK);
    EXPECT_EQ(5, image);
    bar.SetButtonStyle(0, MAKELONG(TBSTYLE_BUTTON, TBSTATE_ENABLED | TBSTATE_CHECKED));
    EXPECT_TRUE(HIWORD(bar.GetButtonStyle(0)) & TBSTATE_CHECKED);
    EXPECT_TRUE(bar.SetButtonText(0, L"Go"));
    EXPECT_EQ(CString(L"Go"), bar.GetButtonText(0));
    EXPECT_EQ(CString(L""), bar.GetButtonText(1));
    ASSERT_TRUE(bar.SetButtons(NULL, 2));
    EXPECT_EQ(2, bar.GetCount());
    EXPECT_EQ((UINT)ID_SEPARATOR, bar.GetItemID(0));
}

TEST_F(ToolBarTest, BrokenOrMissingResourcesAreRefused)
{
    CToolBar notCreated;
    EXPECT_FALSE(notCreated.LoadToolBar(IDR_TEST_FRAME));
    EXPECT_EQ(-1, notCreated.CommandToIndex(ID_TEST_RED));
    EXPECT_EQ(0, notCreated.GetCount());
    CToolBar bar;
    ASSERT_TRUE(bar.CreateEx(frame));
    EXPECT_FALSE(bar.LoadToolBar(IDR_BROKEN_TOOLBAR));
    EXPECT_FALSE(bar.LoadToolBar(IDR_MISSING));
    EXPECT_FALSE(bar.LoadToolBar((LPCTSTR)NULL));
    EXPECT_FALSE(bar.LoadBitmap(IDR_MISSING));
    EXPECT_FALSE(bar.SetBitmap(NULL));
    EXPECT_FALSE(bar.SetButtons(NULL, -1));
    CToolBar second;
    EXPECT_FALSE(second.CreateEx(NULL));
}

TEST(ToolBarCtrl, ButtonsStatesAndBitmaps)
{
    zotest::ScopedWindow host(zotest::CreateSolidWindow(CRect(0, 0, 300, 100), RGB(255, 255, 255)));
    CToolBarCtrl toolbar;
    ASSERT_TRUE(toolbar.Create(WS_CHILD | WS_VISIBLE | CCS_NORESIZE, CRect(0, 0, 300, 30), CWnd::FromHandle(host), 3));
    EXPECT_EQ(0, toolbar.AddBitmap(3, IDR_TEST_FRAME)); // index of its first image
    TBBUTTON buttons[2] = {};
    buttons[0].iBitmap = 0;
    buttons[0].idCommand = 31;
    buttons[0].fsState = TBSTATE_ENABLED;
    buttons[0].fsStyle = TBSTYLE_CHECK;
    buttons[1].iBitmap = 2;
    buttons[1].idCommand = 32;
    buttons[1].fsState = TBSTATE_ENABLED;
    ASSERT_TRUE(toolbar.AddButtons(2, buttons));
    EXPECT_EQ(2, toolbar.GetButtonCount());
    EXPECT_EQ(1u, toolbar.CommandToIndex(32));
    TBBUTTON back = {};
    ASSERT_TRUE(toolbar.GetButton(1, &back));
    EXPECT_EQ(32, back.idCommand);
    EXPECT_EQ(2, back.iBitmap);
    EXPECT_TRUE(toolbar.CheckButton(31));
    EXPECT_TRUE(toolbar.IsButtonChecked(31));
    EXPECT_TRUE(toolbar.EnableButton(32, FALSE));
    EXPECT_FALSE(toolbar.IsButtonEnabled(32));
    TBBUTTONINFO info = {};
    info.cbSize = sizeof(info);
    info.dwMask = TBIF_IMAGE;
    EXPECT_EQ(1, toolbar.GetButtonInfo(32, &info));
    EXPECT_EQ(2, info.iImage);
    EXPECT_EQ(-1, toolbar.GetButtonInfo(32, NULL));
    CRect rect;
    EXPECT_TRUE(toolbar.GetItemRect(0, &rect));
    EXPECT_FALSE(rect.IsRectEmpty());
    EXPECT_TRUE(toolbar.DeleteButton(0));
    EXPECT_EQ(1, toolbar.GetButtonCount());
}
