// Message reflection: notifications a control sends to its parent come back to the control's
// own _REFLECT entries; the _EX variants that decline let the parent handle them too. (Reflected
// control colours and custom draw are seen through the skinned edit's and list's own tests.)
#include "wnd_test_support.h"

#include <vector>

namespace {

enum { IDC_CHILD = 40 };

class CReflectingChild : public CWnd
{
public:
    std::vector<std::string> calls;
    HBRUSH brush = reinterpret_cast<HBRUSH>(::GetStockObject(DKGRAY_BRUSH));
    BOOL exResult = FALSE;

protected:
    afx_msg HBRUSH CtlColor(CDC* pDC, UINT nCtlColor)
    {
        calls.push_back("CtlColor " + std::to_string(nCtlColor) + (pDC != NULL ? " dc" : " null"));
        return brush;
    }
    afx_msg void OnClickedReflect() { calls.push_back("OnClickedReflect"); }
    afx_msg BOOL OnDoubleClickedReflect()
    {
        calls.push_back("OnDoubleClickedReflect");
        return exResult;
    }
    afx_msg BOOL OnNotifyDblClk(NMHDR*, LRESULT* pResult)
    {
        calls.push_back("OnNotifyDblClk");
        *pResult = 8;
        return exResult;
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CReflectingChild, CWnd)
    ON_WM_CTLCOLOR_REFLECT()
    ON_CONTROL_REFLECT(BN_CLICKED, &CReflectingChild::OnClickedReflect)
    ON_CONTROL_REFLECT_EX(BN_DOUBLECLICKED, &CReflectingChild::OnDoubleClickedReflect)
    ON_NOTIFY_REFLECT_EX(NM_DBLCLK, &CReflectingChild::OnNotifyDblClk)
END_MESSAGE_MAP()

class CParentWnd : public CWnd
{
public:
    std::vector<std::string> calls;

protected:
    afx_msg void OnChildClicked() { calls.push_back("Parent OnChildClicked"); }
    afx_msg void OnChildDoubleClicked() { calls.push_back("Parent OnChildDoubleClicked"); }
    afx_msg void OnChildDblClk(NMHDR*, LRESULT* pResult)
    {
        calls.push_back("Parent OnChildDblClk");
        *pResult = 9;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CParentWnd, CWnd)
    ON_BN_CLICKED(IDC_CHILD, &CParentWnd::OnChildClicked)
    ON_BN_DOUBLECLICKED(IDC_CHILD, &CParentWnd::OnChildDoubleClicked)
    ON_NOTIFY(NM_DBLCLK, IDC_CHILD, &CParentWnd::OnChildDblClk)
END_MESSAGE_MAP()

class ReflectionTest : public testing::Test
{
protected:
    void Build(CParentWnd& parentWnd)
    {
        parent = &parentWnd;
        ASSERT_TRUE(parent->CreateEx(0, AfxRegisterWndClass(0), L"parent", WS_POPUP, 0, 0, 200, 100, NULL, NULL));
        HWND hChild = wndtest::CreatePlainWindow(L"BUTTON", WS_CHILD | BS_OWNERDRAW, parent->m_hWnd, IDC_CHILD);
        ASSERT_TRUE(child.SubclassWindow(hChild));
        dc = ::CreateCompatibleDC(NULL);
    }
    void TearDown() override
    {
        // The test's parent object destroyed its window (and the child's) on leaving the test.
        ::DeleteDC(dc);
    }
    LRESULT Send(UINT message, WPARAM wParam, LPARAM lParam)
    {
        return ::SendMessageW(parent->m_hWnd, message, wParam, lParam);
    }
    LRESULT Command(UINT code)
    {
        return Send(WM_COMMAND, MAKEWPARAM(IDC_CHILD, code), reinterpret_cast<LPARAM>(child.m_hWnd));
    }
    LRESULT Notify(UINT code)
    {
        NMHDR header = { child.m_hWnd, IDC_CHILD, code };
        return Send(WM_NOTIFY, IDC_CHILD, reinterpret_cast<LPARAM>(&header));
    }

    CParentWnd* parent = NULL;
    CReflectingChild child;
    HDC dc = NULL;
};

// The child under a parent that handles nothing of its own.
class ReflectionToPlainParent : public ReflectionTest
{
protected:
    void SetUp() override { Build(parentWnd); }
    CParentWnd parentWnd;
};

TEST_F(ReflectionToPlainParent, ReflectedCommandIsTakenByTheChildFirst)
{
    EXPECT_EQ(1, Command(BN_CLICKED));
    EXPECT_EQ((std::vector<std::string>{ "OnClickedReflect" }), child.calls);
    EXPECT_TRUE(parentWnd.calls.empty());
}

TEST_F(ReflectionToPlainParent, ReflectedCommandExDecidesWhetherTheParentSeesIt)
{
    child.exResult = FALSE;
    Command(BN_DOUBLECLICKED);
    EXPECT_EQ((std::vector<std::string>{ "OnDoubleClickedReflect" }), child.calls);
    EXPECT_EQ((std::vector<std::string>{ "Parent OnChildDoubleClicked" }), parentWnd.calls);

    child.calls.clear();
    parentWnd.calls.clear();
    child.exResult = TRUE;
    Command(BN_DOUBLECLICKED);
    EXPECT_EQ((std::vector<std::string>{ "OnDoubleClickedReflect" }), child.calls);
    EXPECT_TRUE(parentWnd.calls.empty());
}

TEST_F(ReflectionToPlainParent, ReflectedNotifyExDecidesWhetherTheParentSeesIt)
{
    child.exResult = FALSE;
    EXPECT_EQ(9, Notify(NM_DBLCLK));
    EXPECT_EQ((std::vector<std::string>{ "OnNotifyDblClk" }), child.calls);
    EXPECT_EQ((std::vector<std::string>{ "Parent OnChildDblClk" }), parentWnd.calls);

    child.calls.clear();
    parentWnd.calls.clear();
    child.exResult = TRUE;
    EXPECT_EQ(8, Notify(NM_DBLCLK));
    EXPECT_TRUE(parentWnd.calls.empty());
}

TEST_F(ReflectionToPlainParent, NotificationsFromControlsWithoutObjectsStayWithTheParent)
{
    HWND plain = wndtest::CreatePlainWindow(L"BUTTON", WS_CHILD, parentWnd.m_hWnd, IDC_CHILD + 1);
    LRESULT result = Send(WM_CTLCOLORBTN, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(plain));
    EXPECT_NE(reinterpret_cast<LRESULT>(child.brush), result);
    EXPECT_TRUE(child.calls.empty());
}

} // namespace
