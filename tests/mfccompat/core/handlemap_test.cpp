// Handle maps (permanent and temporary wrappers) and the resource module chain.
#include <afx.h>
#include <zoafx/handlemap.h>
#include <zoafx/modulechain.h>
#include <gtest/gtest.h>

namespace {

int g_nWrappersAlive = 0;
int g_nDestroyedWithHandle = 0; // deleted while still holding a handle

class CTestWrapper : public CObject
{
public:
    CTestWrapper() { ++g_nWrappersAlive; }
    ~CTestWrapper()
    {
        --g_nWrappersAlive;
        if (m_hThing != NULL)
            ++g_nDestroyedWithHandle;
    }
    HANDLE m_hThing = NULL;
};

CTestWrapper* NewTempWrapper(HANDLE h)
{
    CTestWrapper* p = new CTestWrapper;
    p->m_hThing = h;
    return p;
}

void DetachTempWrapper(CTestWrapper* p)
{
    p->m_hThing = NULL;
}

zoafx::CHandleMap<CTestWrapper, HANDLE>& TestMap()
{
    static zoafx::CHandleMap<CTestWrapper, HANDLE> map(&NewTempWrapper, &DetachTempWrapper);
    return map;
}

const HANDLE kFirst = (HANDLE)(UINT_PTR)0x1000;
const HANDLE kSecond = (HANDLE)(UINT_PTR)0x2000;

class HandleMapTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        TestMap().DeleteTemp();
        g_nDestroyedWithHandle = 0;
        m_nAliveBefore = g_nWrappersAlive;
    }
    void TearDown() override
    {
        TestMap().RemoveHandle(kFirst);
        TestMap().RemoveHandle(kSecond);
        TestMap().DeleteTemp();
    }
    int m_nAliveBefore = 0;
};

DWORD WINAPI LookUpFromAnotherThread(LPVOID pResult)
{
    CTestWrapper** ppFound = static_cast<CTestWrapper**>(pResult);
    ppFound[0] = TestMap().LookupPermanent(kFirst);
    ppFound[1] = TestMap().FromHandle(kFirst); // a temporary of this thread, freed at its end
    return 0;
}

} // namespace

TEST_F(HandleMapTest, FromHandleCreatesOneTemporaryPerHandle)
{
    CTestWrapper* p1 = TestMap().FromHandle(kFirst);
    ASSERT_NE(p1, nullptr);
    EXPECT_EQ(p1->m_hThing, kFirst);
    EXPECT_EQ(TestMap().FromHandle(kFirst), p1);
    EXPECT_NE(TestMap().FromHandle(kSecond), p1);
    EXPECT_EQ(TestMap().LookupTemporary(kFirst), p1);
    EXPECT_EQ(TestMap().LookupPermanent(kFirst), nullptr);
    EXPECT_EQ(TestMap().GetTemporaryCount(), 2);
    EXPECT_EQ(TestMap().FromHandle(NULL), nullptr);
}

TEST_F(HandleMapTest, TemporariesAreDeletedDetached)
{
    TestMap().FromHandle(kFirst);
    TestMap().FromHandle(kSecond);
    EXPECT_EQ(g_nWrappersAlive, m_nAliveBefore + 2);
    TestMap().DeleteTemp();
    EXPECT_EQ(g_nWrappersAlive, m_nAliveBefore);
    EXPECT_EQ(g_nDestroyedWithHandle, 0);
    EXPECT_EQ(TestMap().GetTemporaryCount(), 0);
}

TEST_F(HandleMapTest, PermanentObjectWinsAndReplacesATemporary)
{
    TestMap().FromHandle(kFirst);
    CTestWrapper permanent;
    permanent.m_hThing = kFirst;
    TestMap().SetPermanent(kFirst, &permanent);
    EXPECT_EQ(TestMap().GetTemporaryCount(), 0);
    EXPECT_EQ(g_nDestroyedWithHandle, 0);
    EXPECT_EQ(TestMap().FromHandle(kFirst), &permanent);
    EXPECT_EQ(TestMap().LookupPermanent(kFirst), &permanent);
    TestMap().RemoveHandle(kFirst);
    EXPECT_EQ(TestMap().LookupPermanent(kFirst), nullptr);
    TestMap().SetPermanent(NULL, &permanent); // ignored
    EXPECT_EQ(TestMap().GetPermanentCount(), 0);
    permanent.m_hThing = NULL;
}

TEST_F(HandleMapTest, LockedTempMapsSurviveUntilTheLastUnlock)
{
    AfxLockTempMaps();
    AfxLockTempMaps();
    TestMap().FromHandle(kFirst);
    EXPECT_FALSE(AfxUnlockTempMaps());
    EXPECT_EQ(TestMap().GetTemporaryCount(), 1);
    EXPECT_TRUE(AfxUnlockTempMaps());
    EXPECT_EQ(TestMap().GetTemporaryCount(), 0);
    EXPECT_EQ(g_nDestroyedWithHandle, 0);
    EXPECT_FALSE(AfxUnlockTempMaps()); // unbalanced unlock does nothing

    AfxLockTempMaps();
    TestMap().FromHandle(kSecond);
    EXPECT_TRUE(AfxUnlockTempMaps(FALSE)); // unlocked but asked to keep the temporaries
    EXPECT_EQ(TestMap().GetTemporaryCount(), 1);
}

TEST_F(HandleMapTest, MapsBelongToTheirThread)
{
    CTestWrapper permanent;
    TestMap().SetPermanent(kFirst, &permanent);
    int nAlive = g_nWrappersAlive;
    CTestWrapper* found[2] = {&permanent, nullptr};
    HANDLE hThread = CreateThread(NULL, 0, &LookUpFromAnotherThread, found, 0, NULL);
    ASSERT_NE(hThread, nullptr);
    WaitForSingleObject(hThread, INFINITE);
    CloseHandle(hThread);
    EXPECT_EQ(found[0], nullptr);
    EXPECT_NE(found[1], &permanent);
    EXPECT_EQ(g_nWrappersAlive, nAlive); // the other thread's temporary died with it
    EXPECT_EQ(g_nDestroyedWithHandle, 0);
    EXPECT_EQ(TestMap().FromHandle(kFirst), &permanent);
}

TEST(ModuleChain, DefaultsAreTheExecutable)
{
    EXPECT_EQ(AfxGetInstanceHandle(), GetModuleHandleW(NULL));
    EXPECT_EQ(AfxGetResourceHandle(), AfxGetInstanceHandle());
}

TEST(ModuleChain, FindResourceHandleSearchesRegisteredModules)
{
    // comctl32's toolbar bitmap 120 exists there but not in this executable.
    HMODULE hComctl = GetModuleHandleW(L"comctl32.dll");
    ASSERT_NE(hComctl, nullptr);
    ASSERT_NE(FindResourceW(hComctl, MAKEINTRESOURCEW(120), RT_BITMAP), nullptr);
    LPCWSTR name = MAKEINTRESOURCEW(120);

    EXPECT_EQ(AfxFindResourceHandle(name, RT_BITMAP), AfxGetResourceHandle()); // not found
    zoafx::AddResourceModule(hComctl);
    zoafx::AddResourceModule(hComctl); // kept once
    zoafx::AddResourceModule(NULL);
    EXPECT_EQ(zoafx::GetResourceModuleCount(), 1);
    EXPECT_EQ(zoafx::GetResourceModule(0), (HINSTANCE)hComctl);
    EXPECT_EQ(zoafx::GetResourceModule(5), nullptr);
    EXPECT_EQ(AfxFindResourceHandle(name, RT_BITMAP), (HINSTANCE)hComctl);
    // The executable's own resources are still found in the executable.
    EXPECT_EQ(AfxFindResourceHandle(L"ZOCORE_MARKER", RT_RCDATA), AfxGetInstanceHandle());
    zoafx::RemoveResourceModule(hComctl);
    EXPECT_EQ(zoafx::GetResourceModuleCount(), 0);
    EXPECT_EQ(AfxFindResourceHandle(name, RT_BITMAP), AfxGetResourceHandle());
}

TEST(ModuleChain, ResourceHandleIsSearchedFirst)
{
    HMODULE hComctl = GetModuleHandleW(L"comctl32.dll");
    HINSTANCE hOriginal = AfxGetResourceHandle();
    AfxSetResourceHandle(hComctl);
    EXPECT_EQ(AfxGetResourceHandle(), (HINSTANCE)hComctl);
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW(120), RT_BITMAP), (HINSTANCE)hComctl);
    // Not in comctl32 but in the executable: the instance is the last resort.
    EXPECT_EQ(AfxFindResourceHandle(L"ZOCORE_MARKER", RT_RCDATA), AfxGetInstanceHandle());
    AfxSetResourceHandle(hOriginal);
    EXPECT_EQ(AfxGetResourceHandle(), hOriginal);
}

TEST(ModuleChain, SetInstanceHandle)
{
    HMODULE hComctl = GetModuleHandleW(L"comctl32.dll");
    zoafx::SetInstanceHandle(hComctl);
    EXPECT_EQ(AfxGetInstanceHandle(), (HINSTANCE)hComctl);
    zoafx::SetInstanceHandle(NULL);
    EXPECT_EQ(AfxGetInstanceHandle(), GetModuleHandleW(NULL));
}
