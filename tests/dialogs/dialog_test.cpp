// The skinned dialog as a host sees it: its style at creation, its system buttons answering the
// mouse, its controls skinned by class (and attached ones left alone), scaling once on large
// monitors, its backgrounds, its theme answers, and nothing left behind.
#include "dialogs_test_support.h"

#include <afxcmn.h>

#include <memory>
#include <vector>

#include "controls/ZoButton.h"
#include "controls/ZoComboBox.h"
#include "controls/ZoEdit.h"
#include "controls/ZoProgressCtrl.h"
#include "controls/ZoScrollBar.h"
#include "controls/ZoSliderCtrl.h"
#include "controls/ZoStatic.h"
#include "controls/ZoTabCtrl.h"
#include "core/ZoThemeManager.h"
#include "dialogs_test_resource.h"
#include "lists/ZoListCtrl.h"

using namespace ZoControls;
using controltest::Slot;
using dialogtest::TestDialog;

namespace {

class DialogTest : public controltest::ControlTest
{
protected:
    void TearDown() override
    {
        for (const auto& dialog : dialogs_)
            if (dialog->GetSafeHwnd())
                dialog->DestroyWindow();
        dialogs_.clear();
        ControlTest::TearDown();
    }
    // A modeless dialog on `templateId` at size class `size`, shown; destroyed after the test.
    TestDialog& Open(UINT templateId, E_ZoMonitorSize size = ZoMonitorSize_Unknown)
    {
        dialogs_.push_back(std::make_unique<TestDialog>(templateId, parentWnd(), size));
        EXPECT_TRUE(dialogs_.back()->Create(templateId, parentWnd()));
        dialogs_.back()->ShowWindow(SW_SHOW);
        zotest::PumpUntilIdle(200);
        return *dialogs_.back();
    }

    std::vector<std::unique_ptr<TestDialog>> dialogs_;
};

TEST_F(DialogTest, StyleChangedAtCreation)
{
    TestDialog& dialog = Open(IDD_TEST_NINE_CLASSES);
    // The boxes are the dialog's own: the system is told of none.
    EXPECT_EQ(0u, dialog.GetStyle() & (WS_MINIMIZEBOX | WS_MAXIMIZEBOX));
    EXPECT_NE(0u, dialog.GetStyle() & WS_SYSMENU);
    EXPECT_NE(0u, dialog.GetExStyle() & WS_EX_TOOLWINDOW);
    const BorderDim border = dialog.GetBorderDim();
    EXPECT_EQ(2, border.left);
    EXPECT_EQ(22, border.caption);
}

TEST_F(DialogTest, CloseAnswersAsMaximizeAndAClickPostsClose)
{
    TestDialog& dialog = Open(IDD_TEST_NINE_CLASSES);
    const HWND hWnd = dialog.GetSafeHwnd();
    const CRect close = dialog.GetSysButtonRect(ZoSysButton_Close);
    ASSERT_EQ(CSize(16, 16), close.Size());
    const LPARAM at = dialogtest::ScreenPointOf(hWnd, close);
    EXPECT_EQ(HTMAXBUTTON, ::SendMessageW(hWnd, WM_NCHITTEST, 0, at));

    zotest::MessageRecorder recorder;
    recorder.Watch(hWnd);
    ::SendMessageW(hWnd, WM_NCLBUTTONDOWN, HTMAXBUTTON, at);
    EXPECT_EQ(ZoSysButtonState_Pressed, dialog.GetSysButtonState(ZoSysButton_Close));
    ::SendMessageW(hWnd, WM_NCLBUTTONUP, HTMAXBUTTON, at);
    EXPECT_EQ(ZoSysButtonState_Normal, dialog.GetSysButtonState(ZoSysButton_Close));
    ASSERT_TRUE(zotest::PumpUntilReceived(recorder, WM_SYSCOMMAND));
    EXPECT_EQ(WPARAM(SC_CLOSE), recorder.MessagesOf(WM_SYSCOMMAND).front().wParam & 0xFFF0);
    // The platform turns it into IDCANCEL, which ends the dialog.
    zotest::PumpUntilIdle(200);
    EXPECT_FALSE(::IsWindowVisible(hWnd));
}

TEST_F(DialogTest, MaximizeShowsRestoreInItsNormalState)
{
    TestDialog& dialog = Open(IDD_TEST_NINE_CLASSES);
    const HWND hWnd = dialog.GetSafeHwnd();
    const CRect maximize = dialog.GetSysButtonRect(ZoSysButton_Maximize);
    ASSERT_FALSE(maximize.IsRectEmpty());
    LPARAM at = dialogtest::ScreenPointOf(hWnd, maximize);
    ::SendMessageW(hWnd, WM_NCLBUTTONDOWN, HTMAXBUTTON, at);
    ::SendMessageW(hWnd, WM_NCLBUTTONUP, HTMAXBUTTON, at);
    EXPECT_TRUE(dialog.IsZoomed());
    EXPECT_TRUE(dialog.GetSysButtonRect(ZoSysButton_Maximize).IsRectEmpty());
    const CRect restore = dialog.GetSysButtonRect(ZoSysButton_Restore);
    ASSERT_FALSE(restore.IsRectEmpty());

    // Pressing restore lights the maximize state, which is not shown; restore stays normal.
    at = dialogtest::ScreenPointOf(hWnd, restore);
    ::SendMessageW(hWnd, WM_NCLBUTTONDOWN, HTMAXBUTTON, at);
    EXPECT_EQ(ZoSysButtonState_Normal, dialog.GetSysButtonState(ZoSysButton_Restore));
    ::SendMessageW(hWnd, WM_NCLBUTTONUP, HTMAXBUTTON, at);
    EXPECT_FALSE(dialog.IsZoomed());
    EXPECT_FALSE(dialog.GetSysButtonRect(ZoSysButton_Maximize).IsRectEmpty());

    const CRect minimize = dialog.GetSysButtonRect(ZoSysButton_Minimize);
    at = dialogtest::ScreenPointOf(hWnd, minimize);
    EXPECT_EQ(HTMINBUTTON, ::SendMessageW(hWnd, WM_NCHITTEST, 0, at));
    ::SendMessageW(hWnd, WM_NCLBUTTONDOWN, HTMINBUTTON, at);
    ::SendMessageW(hWnd, WM_NCLBUTTONUP, HTMINBUTTON, at);
    EXPECT_TRUE(dialog.IsIconic());
}

TEST_F(DialogTest, HoverLightsAButtonAndLeavingResetsIt)
{
    TestDialog& dialog = Open(IDD_TEST_NINE_CLASSES);
    const HWND hWnd = dialog.GetSafeHwnd();
    const LPARAM at = dialogtest::ScreenPointOf(hWnd, dialog.GetSysButtonRect(ZoSysButton_Minimize));
    ::SendMessageW(hWnd, WM_NCMOUSEMOVE, HTMINBUTTON, at);
    EXPECT_EQ(ZoSysButtonState_Hot, dialog.GetSysButtonState(ZoSysButton_Minimize));
    ::SendMessageW(hWnd, WM_NCMOUSELEAVE, 0, 0);
    EXPECT_EQ(ZoSysButtonState_Normal, dialog.GetSysButtonState(ZoSysButton_Minimize));
    // Pressed on close, released elsewhere: nothing happens.
    const LPARAM onClose = dialogtest::ScreenPointOf(hWnd, dialog.GetSysButtonRect(ZoSysButton_Close));
    ::SendMessageW(hWnd, WM_NCLBUTTONDOWN, HTMAXBUTTON, onClose);
    ::SendMessageW(hWnd, WM_NCLBUTTONUP, HTMINBUTTON, at);
    zotest::PumpUntilIdle(200);
    EXPECT_TRUE(::IsWindow(hWnd));
    EXPECT_FALSE(dialog.IsIconic());
}

TEST_F(DialogTest, SystemButtonsFollowTheTemplate)
{
    TestDialog& closeOnly = Open(IDD_TEST_CLOSE_ONLY);
    EXPECT_FALSE(closeOnly.GetSysButtonRect(ZoSysButton_Close).IsRectEmpty());
    EXPECT_TRUE(closeOnly.GetSysButtonRect(ZoSysButton_Maximize).IsRectEmpty());
    EXPECT_TRUE(closeOnly.GetSysButtonRect(ZoSysButton_Minimize).IsRectEmpty());
    EXPECT_EQ(ZoSysButtonState_Disabled, closeOnly.GetSysButtonState(ZoSysButton_Minimize));
    closeOnly.DestroyWindow();

    // No system menu: no buttons, the caption's right end is caption.
    TestDialog& plain = Open(IDD_TEST_NO_SYSMENU);
    CRect window;
    plain.GetWindowRect(&window);
    EXPECT_TRUE(plain.GetSysButtonRect(ZoSysButton_Close).IsRectEmpty());
    const LPARAM right = MAKELPARAM(window.right - 6, window.top + 10);
    EXPECT_EQ(HTCAPTION, ::SendMessageW(plain.GetSafeHwnd(), WM_NCHITTEST, 0, right));
    plain.DestroyWindow();

    // Neither caption nor system menu: no caption is painted or hit.
    TestDialog& bare = Open(IDD_TEST_BARE);
    EXPECT_EQ(0, bare.GetBorderDim().caption);
    EXPECT_TRUE(bare.GetSysButtonRect(ZoSysButton_Close).IsRectEmpty());
    bare.RedrawWindow(NULL, NULL, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
}

// Window classes, in the order they are skinned, with the class each becomes.
struct SkinnedCase
{
    int id;
    CRuntimeClass* expected;
};

TEST_F(DialogTest, EveryClassIsSkinned)
{
    TestDialog& dialog = Open(IDD_TEST_NINE_CLASSES);
    const SkinnedCase cases[] = {
        {IDC_TEST_STATIC, RUNTIME_CLASS(CZoStatic)},    {IDC_TEST_BUTTON, RUNTIME_CLASS(CZoButton)},
        {IDC_TEST_CHECK, RUNTIME_CLASS(CZoButton)},     {IDC_TEST_PROGRESS, RUNTIME_CLASS(CZoProgressCtrl)},
        {IDC_TEST_EDIT, RUNTIME_CLASS(CZoEdit)},        {IDC_TEST_SLIDER, RUNTIME_CLASS(CZoSliderCtrl)},
        {IDC_TEST_LIST, RUNTIME_CLASS(CZoListCtrl)},    {IDC_TEST_COMBO, RUNTIME_CLASS(CZoComboBox)},
        {IDC_TEST_TABS, RUNTIME_CLASS(CZoTabCtrl)},     {IDC_TEST_SCROLLBAR, RUNTIME_CLASS(CZoScrollBar)},
    };
    for (const SkinnedCase& c : cases) {
        CWnd* control = CWnd::FromHandlePermanent(::GetDlgItem(dialog.GetSafeHwnd(), c.id));
        ASSERT_NE(nullptr, control) << c.id;
        EXPECT_TRUE(control->IsKindOf(c.expected)) << c.id << " is " << control->GetRuntimeClass()->m_lpszClassName;
    }
    // The skinned controls asked the dialog for its size class.
    EXPECT_EQ(ZoMonitorSize_Normal, ZoGetCurrentMonitorSize(dialog.GetDlgItem(IDC_TEST_EDIT), false));
    // Released at WM_DESTROY: the windows keep no object once the dialog is gone.
    const HWND edit = ::GetDlgItem(dialog.GetSafeHwnd(), IDC_TEST_EDIT);
    dialog.SendMessage(WM_DESTROY);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(edit));
}

// A host that attaches two controls itself, one through data exchange.
class AttachingDialog : public TestDialog
{
public:
    explicit AttachingDialog(CWnd* parent) : TestDialog(IDD_TEST_ATTACHED, parent) {}
    CEdit m_edit;
    CButton m_button;

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        TestDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_TEST_EDIT, m_edit);
    }
    void OnSubclassingControls() override { m_button.SubclassDlgItem(IDC_TEST_BUTTON, this); }
};

TEST_F(DialogTest, ControlsTheHostAttachedAreLeftAlone)
{
    AttachingDialog dialog(parentWnd());
    ASSERT_TRUE(dialog.Create(IDD_TEST_ATTACHED, parentWnd()));
    EXPECT_EQ(&dialog.m_edit, CWnd::FromHandlePermanent(::GetDlgItem(dialog.GetSafeHwnd(), IDC_TEST_EDIT)));
    EXPECT_EQ(&dialog.m_button, CWnd::FromHandlePermanent(::GetDlgItem(dialog.GetSafeHwnd(), IDC_TEST_BUTTON)));
    CWnd* other = CWnd::FromHandlePermanent(::GetDlgItem(dialog.GetSafeHwnd(), IDC_TEST_EDIT + 100));
    ASSERT_NE(nullptr, other);
    EXPECT_TRUE(other->IsKindOf(RUNTIME_CLASS(CZoEdit)));
    dialog.DestroyWindow();
}

struct ScalingCase
{
    E_ZoMonitorSize size;
    float zoom;
};

class DialogScaling : public DialogTest, public testing::WithParamInterface<ScalingCase>
{
};

TEST_P(DialogScaling, ScalesOnceAboutTheCentre)
{
    // The same template at the normal size class gives the design sizes.
    TestDialog& design = Open(IDD_TEST_NINE_CLASSES, ZoMonitorSize_Normal);
    CRect designWindow;
    design.GetWindowRect(&designWindow);
    const CRect designEdit = dialogtest::ChildRect(design.GetSafeHwnd(), IDC_TEST_EDIT);
    design.DestroyWindow();

    TestDialog& dialog = Open(IDD_TEST_NINE_CLASSES, GetParam().size);
    const float z = GetParam().zoom;
    CRect window;
    dialog.GetWindowRect(&window);
    EXPECT_EQ(int(designWindow.Width() * z + 0.5f), window.Width());
    EXPECT_EQ(int(designWindow.Height() * z + 0.5f), window.Height());
    EXPECT_EQ(designEdit.left == 0 ? 0 : int(designEdit.left * z + 0.5f),
              dialogtest::ChildRect(dialog.GetSafeHwnd(), IDC_TEST_EDIT).left);
    EXPECT_EQ(int(designEdit.bottom * z + 0.5f), dialogtest::ChildRect(dialog.GetSafeHwnd(), IDC_TEST_EDIT).bottom);
    // The system buttons come from the size class's strip.
    const int cell = GetParam().size == ZoMonitorSize_Normal ? 16 : (GetParam().size == ZoMonitorSize_3M ? 18 : 24);
    EXPECT_EQ(CSize(cell, cell), dialog.GetSysButtonRect(ZoSysButton_Close).Size());

    // Shown again: no second scaling.
    dialog.ShowWindow(SW_HIDE);
    dialog.ShowWindow(SW_SHOW);
    zotest::PumpUntilIdle(200);
    CRect again;
    dialog.GetWindowRect(&again);
    EXPECT_EQ(window, again);
}

INSTANTIATE_TEST_SUITE_P(SizeClasses, DialogScaling,
                         testing::Values(ScalingCase{ZoMonitorSize_3M, 1.2f}, ScalingCase{ZoMonitorSize_5M, 1.6f}));

TEST_F(DialogTest, BackgroundsAndStaticColours)
{
    TestDialog& dialog = Open(IDD_TEST_NINE_CLASSES);
    const HWND hWnd = dialog.GetSafeHwnd();
    zotest::Dib dib(400, 400);
    EXPECT_TRUE(::SendMessageW(hWnd, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dib.dc()), 0));
    CRect client;
    dialog.GetClientRect(&client);
    ZOTEST_EXPECT_FILL(dib, client, Slot(ZoDialogColor_Back));

    // A static's colour request gets the dialog's brush and background; a read-only skinned edit
    // answers for itself.
    const HWND label = ::GetDlgItem(hWnd, IDC_TEST_STATIC);
    const LRESULT brush = ::SendMessageW(hWnd, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dib.dc()),
                                         reinterpret_cast<LPARAM>(label));
    EXPECT_NE(0, brush);
    EXPECT_EQ(Slot(ZoDialogColor_Back), ::GetBkColor(dib.dc()));
    const HWND edit = ::GetDlgItem(hWnd, IDC_TEST_EDIT);
    const LRESULT editBrush = ::SendMessageW(hWnd, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dib.dc()),
                                             reinterpret_cast<LPARAM>(edit));
    EXPECT_NE(brush, editBrush);
    EXPECT_EQ(brush, ::SendMessageW(hWnd, WM_CTLCOLORDLG, reinterpret_cast<WPARAM>(dib.dc()),
                                    reinterpret_cast<LPARAM>(hWnd)));
}

TEST_F(DialogTest, CaptionBarAndCloseCellPainted)
{
    TestDialog& dialog = Open(IDD_TEST_CLOSE_ONLY);
    dialog.SetWindowText(L"");
    dialog.RedrawWindow(NULL, NULL, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
    CWindowDC windowDC(&dialog);
    CRect window;
    dialog.GetWindowRect(&window);
    const zotest::Dib shown = zotest::Dib::FromDC(windowDC.GetSafeHdc(), CRect(0, 0, window.Width(), window.Height()));
    const CRect close = dialog.GetSysButtonRect(ZoSysButton_Close);
    const BorderDim border = dialog.GetBorderDim();
    // Caption bar in slot 1 left of the close button; the frame's outer line in slot 4.
    ZOTEST_EXPECT_PIXEL(shown, border.left + 3, border.top + 3, Slot(ZoDialogColor_Caption));
    ZOTEST_EXPECT_PIXEL(shown, 0, 0, Slot(ZoDialogColor_FrameLine));
    // The close cell's pixels are the strip's cell (column 0, row 2).
    const zotest::Dib cell =
        controltest::StretchedCell(Strip(L"BMP_ZO_DLGSYSBTNS"), 4, 4, 0, 2, 16, 16, Slot(ZoDialogColor_Caption));
    EXPECT_TRUE(controltest::AreaMatches(shown, close, cell));
    // The client area starts below the painted caption bar.
    CRect client;
    dialog.GetClientRect(&client);
    dialog.MapWindowPoints(NULL, &client);
    EXPECT_GE(client.top - window.top, border.top + border.caption);
}

TEST_F(DialogTest, NoGrowthOverOpenCloseCycles)
{
    // The parent's MFC object is a temporary one, freed at each idle time: asked afresh. Each box
    // is painted off screen and closed before its modal loop would show it.
    const HWND owner = parent();
    const auto close = [](HWND box) {
        dialogtest::PaintHidden(box);
        ::PostMessageW(box, WM_COMMAND, IDCANCEL, 0);
    };
    const auto plain = [owner, close]() {
        dialogtest::DriveModalBeforeShown(close);
        CDialog dialog(IDD_TEST_NINE_CLASSES, CWnd::FromHandle(owner));
        EXPECT_EQ(IDCANCEL, dialog.DoModal());
        dialogtest::HostIdleTime();
    };
    const auto skinned = [owner, close]() {
        dialogtest::DriveModalBeforeShown(close);
        TestDialog dialog(IDD_TEST_NINE_CLASSES, CWnd::FromHandle(owner));
        EXPECT_EQ(IDCANCEL, dialog.DoModal());
        dialogtest::HostIdleTime();
    };
    dialogtest::ExpectNoMoreGrowthThanPlatform(100, plain, skinned);
    dialogtest::StopDrivingBeforeShown();
}

} // namespace
