// A CWnd's bond with its window: creation reaching OnNcCreate/OnCreate, subclassing and
// its undoing, permanent and temporary objects, destruction, dynamic creation, leaks.
#include "wnd_test_support.h"

#include <zotest/resource_counter.h>

#include <vector>

namespace {

class CCreationWnd : public CWnd
{
public:
    std::vector<std::string> calls;
    HWND hWndSeenInNcCreate = NULL;
    int createResult = 0;
    int postNcDestroyCount = 0;

protected:
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct)
    {
        hWndSeenInNcCreate = m_hWnd;
        calls.push_back("OnNcCreate " + wndtest::Narrow(lpCreateStruct->lpszName));
        return CWnd::OnNcCreate(lpCreateStruct);
    }
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct)
    {
        calls.push_back("OnCreate " + std::to_string(lpCreateStruct->cx));
        if (CWnd::OnCreate(lpCreateStruct) == -1)
            return -1;
        return createResult;
    }
    afx_msg void OnDestroy()
    {
        calls.push_back("OnDestroy");
        CWnd::OnDestroy();
    }
    void PostNcDestroy() override { ++postNcDestroyCount; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CCreationWnd, CWnd)
    ON_WM_NCCREATE()
    ON_WM_CREATE()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

TEST(WindowCreation, NcCreateAndCreateReachTheObjectWithItsHandleAttached)
{
    CCreationWnd wnd;
    ASSERT_TRUE(wnd.CreateEx(0, AfxRegisterWndClass(0), L"created", WS_POPUP, 0, 0, 150, 60, NULL, NULL));
    EXPECT_EQ((std::vector<std::string>{ "OnNcCreate created", "OnCreate 150" }), wnd.calls);
    EXPECT_EQ(wnd.m_hWnd, wnd.hWndSeenInNcCreate);
    EXPECT_EQ(&wnd, CWnd::FromHandlePermanent(wnd.m_hWnd));
    EXPECT_EQ(reinterpret_cast<LONG_PTR>(AfxGetAfxWndProc()), ::GetWindowLongPtrW(wnd.m_hWnd, GWLP_WNDPROC));
    EXPECT_EQ(1, ::SendMessageW(wnd.m_hWnd, 0x0360 /* WM_QUERYAFXWNDPROC */, 0, 0));

    HWND hWnd = wnd.m_hWnd;
    EXPECT_TRUE(wnd.DestroyWindow());
    EXPECT_EQ(NULL, wnd.m_hWnd);
    EXPECT_FALSE(::IsWindow(hWnd));
    EXPECT_EQ(NULL, CWnd::FromHandlePermanent(hWnd));
    EXPECT_EQ("OnDestroy", wnd.calls.back());
    EXPECT_EQ(1, wnd.postNcDestroyCount);
}

TEST(WindowCreation, CreateFailsCleanlyWhenOnCreateRefuses)
{
    CCreationWnd wnd;
    wnd.createResult = -1;
    EXPECT_FALSE(wnd.CreateEx(0, AfxRegisterWndClass(0), L"refused", WS_POPUP, 0, 0, 10, 10, NULL, NULL));
    EXPECT_EQ(NULL, wnd.m_hWnd);
    EXPECT_EQ(1, wnd.postNcDestroyCount);
}

TEST(WindowCreation, UnknownClassFailsWithoutAWindow)
{
    CCreationWnd wnd;
    EXPECT_FALSE(wnd.CreateEx(0, L"NoSuchClass-ZoAfx", L"x", WS_POPUP, 0, 0, 10, 10, NULL, NULL));
    EXPECT_EQ(NULL, wnd.m_hWnd);
    EXPECT_TRUE(wnd.calls.empty());
}

TEST(WindowCreation, CreateMakesChildWindowsWithTheirId)
{
    CWnd parent;
    ASSERT_TRUE(parent.CreateEx(0, AfxRegisterWndClass(0), L"parent", WS_POPUP, 0, 0, 100, 100, NULL, NULL));
    CWnd child;
    ASSERT_TRUE(child.Create(NULL, L"child", WS_VISIBLE, CRect(1, 2, 31, 22), &parent, 321));
    EXPECT_TRUE(child.GetStyle() & WS_CHILD);
    EXPECT_EQ(321, child.GetDlgCtrlID());
    EXPECT_EQ(&child, parent.GetDlgItem(321));
    EXPECT_EQ(&parent, child.GetParent());
    CRect rect;
    child.GetClientRect(&rect);
    EXPECT_EQ(CRect(0, 0, 30, 20), rect);
    EXPECT_FALSE(child.Create(NULL, L"twice", 0, CRect(0, 0, 1, 1), &parent, 1));
    parent.DestroyWindow();
    // Destroying the parent destroyed the child and detached its object.
    EXPECT_EQ(NULL, child.m_hWnd);
}

TEST(WindowCreation, ObjectDestructorDestroysItsWindow)
{
    HWND hWnd = NULL;
    {
        CWnd wnd;
        ASSERT_TRUE(wnd.CreateEx(0, AfxRegisterWndClass(0), L"scoped", WS_POPUP, 0, 0, 10, 10, NULL, NULL));
        hWnd = wnd.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(hWnd));
}

class CSelfDeletingWnd : public CWnd
{
public:
    static int deleted;
    ~CSelfDeletingWnd() override { ++deleted; }
protected:
    void PostNcDestroy() override { delete this; }
};
int CSelfDeletingWnd::deleted = 0;

TEST(WindowCreation, PostNcDestroyMayDeleteTheObject)
{
    CSelfDeletingWnd::deleted = 0;
    CSelfDeletingWnd* wnd = new CSelfDeletingWnd;
    ASSERT_TRUE(wnd->CreateEx(0, AfxRegisterWndClass(0), L"self", WS_POPUP, 0, 0, 10, 10, NULL, NULL));
    HWND hWnd = wnd->m_hWnd;
    ::DestroyWindow(hWnd);
    EXPECT_EQ(1, CSelfDeletingWnd::deleted);
    EXPECT_EQ(NULL, CWnd::FromHandlePermanent(hWnd));
}

// ---- subclassing ----

class CSubclassWnd : public CWnd
{
public:
    int preSubclassCount = 0;
    int keyDowns = 0;
protected:
    void PreSubclassWindow() override { ++preSubclassCount; }
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
    {
        ++keyDowns;
        CWnd::OnKeyDown(nChar, nRepCnt, nFlags);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CSubclassWnd, CWnd)
    ON_WM_KEYDOWN()
END_MESSAGE_MAP()

TEST(Subclassing, SubclassThenUnsubclassRestoresTheOriginalProcedure)
{
    HWND hEdit = wndtest::CreatePlainWindow(L"EDIT", WS_POPUP);
    const LONG_PTR original = ::GetWindowLongPtrW(hEdit, GWLP_WNDPROC);

    CSubclassWnd wnd;
    ASSERT_TRUE(wnd.SubclassWindow(hEdit));
    EXPECT_EQ(1, wnd.preSubclassCount);
    EXPECT_EQ(hEdit, wnd.m_hWnd);
    EXPECT_EQ(&wnd, CWnd::FromHandlePermanent(hEdit));
    EXPECT_EQ(reinterpret_cast<LONG_PTR>(AfxGetAfxWndProc()), ::GetWindowLongPtrW(hEdit, GWLP_WNDPROC));

    // Handled messages still reach the control's own procedure through Default().
    ::SendMessageW(hEdit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"abc"));
    ::SendMessageW(hEdit, WM_KEYDOWN, VK_END, 0);
    EXPECT_EQ(1, wnd.keyDowns);
    CString text;
    wnd.GetWindowText(text);
    EXPECT_STREQ(L"abc", text);

    EXPECT_EQ(hEdit, wnd.UnsubclassWindow());
    EXPECT_EQ(NULL, wnd.m_hWnd);
    EXPECT_EQ(original, ::GetWindowLongPtrW(hEdit, GWLP_WNDPROC));
    EXPECT_EQ(NULL, CWnd::FromHandlePermanent(hEdit));
    ::SendMessageW(hEdit, WM_KEYDOWN, VK_END, 0);
    EXPECT_EQ(1, wnd.keyDowns);
    ::DestroyWindow(hEdit);
}

TEST(Subclassing, AWindowHasOnlyOnePermanentObject)
{
    HWND hWnd = wndtest::CreatePlainWindow(L"STATIC", WS_POPUP);
    CSubclassWnd first;
    CSubclassWnd second;
    ASSERT_TRUE(first.SubclassWindow(hWnd));
    EXPECT_FALSE(second.SubclassWindow(hWnd));
    EXPECT_FALSE(first.SubclassWindow(hWnd));
    EXPECT_EQ(NULL, second.m_hWnd);
    first.UnsubclassWindow();
    ::DestroyWindow(hWnd);
}

TEST(Subclassing, BadHandlesAreRefused)
{
    CSubclassWnd wnd;
    EXPECT_FALSE(wnd.SubclassWindow(NULL));
    EXPECT_FALSE(wnd.SubclassWindow(reinterpret_cast<HWND>(0x1234)));
    EXPECT_EQ(NULL, wnd.UnsubclassWindow());
    EXPECT_FALSE(wnd.SubclassDlgItem(1, NULL));
    EXPECT_FALSE(wnd.Attach(NULL));
    EXPECT_EQ(NULL, wnd.Detach());
    EXPECT_FALSE(wnd.DestroyWindow());
}

TEST(Subclassing, SubclassDlgItemFindsTheChildById)
{
    CWnd parent;
    ASSERT_TRUE(parent.CreateEx(0, AfxRegisterWndClass(0), L"parent", WS_POPUP, 0, 0, 100, 100, NULL, NULL));
    HWND hChild = wndtest::CreatePlainWindow(L"BUTTON", WS_CHILD, parent.m_hWnd, 77);
    CSubclassWnd wnd;
    EXPECT_FALSE(wnd.SubclassDlgItem(78, &parent));
    ASSERT_TRUE(wnd.SubclassDlgItem(77, &parent));
    EXPECT_EQ(hChild, wnd.m_hWnd);
    parent.DestroyWindow();
    EXPECT_EQ(NULL, wnd.m_hWnd) << "the destroyed child left its object";
}

// ---- permanent and temporary objects ----

TEST(HandleMap, FromHandleGivesOneTemporaryObjectPerWindowUntilIdle)
{
    HWND hWnd = wndtest::CreatePlainWindow(L"STATIC", WS_POPUP);
    CWnd* temp = CWnd::FromHandle(hWnd);
    ASSERT_NE(nullptr, temp);
    EXPECT_EQ(hWnd, temp->m_hWnd);
    EXPECT_EQ(temp, CWnd::FromHandle(hWnd));
    EXPECT_EQ(NULL, CWnd::FromHandlePermanent(hWnd));
    EXPECT_EQ(NULL, CWnd::FromHandle(NULL));
    ::DestroyWindow(hWnd);
    wndtest::RunIdle();
}

TEST(HandleMap, AttachReplacesTheTemporaryObject)
{
    HWND hWnd = wndtest::CreatePlainWindow(L"STATIC", WS_POPUP);
    CWnd::FromHandle(hWnd);
    CWnd wnd;
    ASSERT_TRUE(wnd.Attach(hWnd));
    EXPECT_EQ(&wnd, CWnd::FromHandle(hWnd));
    EXPECT_EQ(&wnd, CWnd::FromHandlePermanent(hWnd));
    EXPECT_EQ(hWnd, wnd.Detach());
    EXPECT_EQ(NULL, CWnd::FromHandlePermanent(hWnd));
    EXPECT_TRUE(::IsWindow(hWnd)) << "Detach leaves the window alone";
    ::DestroyWindow(hWnd);
}

// Plain windows with a temporary object each; the heap count before the objects were made.
class TemporaryObjects : public testing::Test
{
protected:
    static constexpr int count = 40;

    void SetUp() override
    {
        for (int i = 0; i < count; ++i)
            windows.push_back(wndtest::CreatePlainWindow(L"STATIC", WS_POPUP));
        wndtest::RunIdle();
        before = zotest::CountHeapBlocks();
        for (HWND hWnd : windows)
            CWnd::FromHandle(hWnd);
        withTemporaries = zotest::CountHeapBlocks();
    }
    void TearDown() override
    {
        for (HWND hWnd : windows)
            ::DestroyWindow(hWnd);
    }

    std::vector<HWND> windows;
    long before = 0;
    long withTemporaries = 0;
};

TEST_F(TemporaryObjects, IdleTimeDeletesThem)
{
    EXPECT_GE(withTemporaries - before, count);
    wndtest::RunIdle();
    EXPECT_LE(zotest::CountHeapBlocks(), withTemporaries - count);
}

void CALLBACK QuitWithFive(HWND, UINT, UINT_PTR, DWORD)
{
    ::PostQuitMessage(5);
}

TEST_F(TemporaryObjects, TheApplicationLoopDeletesThemWhenItGoesIdle)
{
    EXPECT_GE(withTemporaries - before, count);
    // The loop goes idle first; a timer ends it afterwards.
    ::SetTimer(windows[0], 1, 30, &QuitWithFive);
    CWinThread* thread = AfxGetThread();
    EXPECT_EQ(5, thread->CWinThread::Run());
    ::KillTimer(windows[0], 1);
    EXPECT_LT(zotest::CountHeapBlocks() - before, count);
}

// ---- dynamic creation ----

class CDynamicWnd : public CWnd
{
    DECLARE_DYNCREATE(CDynamicWnd)
public:
    int created = 0;
protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct)
    {
        ++created;
        return CWnd::OnCreate(lpCreateStruct);
    }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(CDynamicWnd, CWnd)

BEGIN_MESSAGE_MAP(CDynamicWnd, CWnd)
    ON_WM_CREATE()
END_MESSAGE_MAP()

TEST(DynamicCreation, RuntimeClassCreatesAWorkingWindowObject)
{
    CObject* object = RUNTIME_CLASS(CDynamicWnd)->CreateObject();
    ASSERT_NE(nullptr, object);
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CWnd)));
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CCmdTarget)));
    CDynamicWnd* wnd = DYNAMIC_DOWNCAST(CDynamicWnd, object);
    ASSERT_NE(nullptr, wnd);
    ASSERT_TRUE(wnd->CreateEx(0, NULL, L"dynamic", WS_POPUP, 0, 0, 10, 10, NULL, NULL));
    EXPECT_EQ(1, wnd->created);
    wnd->DestroyWindow();
    delete wnd;

    CObject* byName = CRuntimeClass::CreateObject("CDynamicWnd");
    ASSERT_NE(nullptr, byName);
    EXPECT_TRUE(byName->IsKindOf(RUNTIME_CLASS(CDynamicWnd)));
    delete byName;
}

// ---- leaks ----

TEST(WindowLeaks, CreateAndDestroyCyclesLeaveNothingBehind)
{
    ZOTEST_EXPECT_NO_LEAKS(20, [] {
        CCreationWnd wnd;
        wnd.CreateEx(0, AfxRegisterWndClass(CS_DBLCLKS), L"cycle", WS_POPUP, 0, 0, 50, 50, NULL, NULL);
        CWnd child;
        child.Create(NULL, L"child", WS_VISIBLE, CRect(0, 0, 10, 10), &wnd, 5);
        CDC* dc = wnd.GetDC();
        wnd.ReleaseDC(dc);
        wnd.GetParent();
        wnd.DestroyWindow();
        wndtest::RunIdle();
    });
}

} // namespace
