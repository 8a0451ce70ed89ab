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

} // namespace

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
