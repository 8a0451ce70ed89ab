// The application's run, and a CWnd's bond with its window: creation reaching OnNcCreate and
// OnCreate, subclassing and its undoing, permanent and temporary objects, destruction, leaks.
#include "wnd_test_support.h"

#include <zotest/resource_counter.h>

#include <vector>

namespace {

class CCreationWnd : public CWnd
{
public:
    std::vector<std::string> calls;
    int createResult = 0;
    int postNcDestroyCount = 0;

protected:
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct)
    {
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
    void PostNcDestroy() override { ++postNcDestroyCount; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CCreationWnd, CWnd)
    ON_WM_NCCREATE()
    ON_WM_CREATE()
END_MESSAGE_MAP()

TEST(Application, AfxWinMainWithoutMainWindowEndsAtOnce)
{
    EXPECT_EQ(0, AfxWinMain(::GetModuleHandleW(NULL), NULL, ::GetCommandLineW(), SW_SHOWNORMAL));
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

TEST(Subclassing, BadHandlesAreRefused)
{
    CWnd wnd;
    EXPECT_FALSE(wnd.SubclassWindow(NULL));
    EXPECT_FALSE(wnd.SubclassWindow(reinterpret_cast<HWND>(0x1234)));
    EXPECT_EQ(NULL, wnd.UnsubclassWindow());
    EXPECT_FALSE(wnd.SubclassDlgItem(1, NULL));
    EXPECT_FALSE(wnd.Attach(NULL));
    EXPECT_EQ(NULL, wnd.Detach());
    EXPECT_FALSE(wnd.DestroyWindow());
}

// ---- permanent and temporary objects ----

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

} // namespace
