// PreTranslateMessage routing in the application's pump: the target window first, then its
// parents up to the main window, then the main window for windows outside its tree.
#include "wnd_test_support.h"

#include <vector>

namespace {

class CFilterWnd : public CWnd
{
public:
    explicit CFilterWnd(std::vector<std::string>& log, const char* name, UINT eatKey = 0)
        : m_log(log), m_name(name), m_eatKey(eatKey) { }

    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        if (pMsg->message != WM_KEYDOWN)
            return FALSE;
        m_log.push_back(m_name + " saw " + std::to_string(pMsg->wParam));
        return pMsg->wParam == m_eatKey;
    }

    int keyDowns = 0;

protected:
    afx_msg void OnKeyDown(UINT, UINT, UINT) { ++keyDowns; }
    DECLARE_MESSAGE_MAP()

private:
    std::vector<std::string>& m_log;
    std::string m_name;
    UINT m_eatKey;
};

BEGIN_MESSAGE_MAP(CFilterWnd, CWnd)
    ON_WM_KEYDOWN()
END_MESSAGE_MAP()

class PreTranslateTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(parent.CreateEx(0, AfxRegisterWndClass(0), L"parent", WS_POPUP, 0, 0, 100, 100, NULL, NULL));
        ASSERT_TRUE(child.Create(NULL, L"child", WS_VISIBLE, CRect(0, 0, 50, 50), &parent, 1));
        ASSERT_TRUE(outsider.CreateEx(0, AfxRegisterWndClass(0), L"outsider", WS_POPUP, 0, 0, 10, 10, NULL, NULL));
        wndtest::RunIdle();
    }
    void TearDown() override
    {
        AfxGetThread()->m_pMainWnd = NULL;
        outsider.DestroyWindow();
        parent.DestroyWindow();
    }
    // Posts a key to `target` and lets the application's pump take exactly that message.
    void PostKeyAndPump(CWnd& target, UINT key)
    {
        MSG msg;
        while (::PeekMessageW(&msg, NULL, 0, 0, PM_REMOVE))
            ::DispatchMessageW(&msg);
        ASSERT_TRUE(target.PostMessage(WM_KEYDOWN, key, 1));
        ASSERT_TRUE(AfxGetThread()->PumpMessage());
    }

    std::vector<std::string> log;
    CFilterWnd parent{ log, "parent", 'P' };
    CFilterWnd child{ log, "child", 'C' };
    CFilterWnd outsider{ log, "outsider" };
};

TEST_F(PreTranslateTest, KeysWalkUpFromTheControlUntilAWindowFiltersThem)
{
    const struct {
        UINT key;
        std::vector<std::string> seen;
        int handled; // key-down handlers the child ran
    } cases[] = {
        { 'C', { "child saw 67" }, 0 },                  // the control filters it itself
        { 'X', { "child saw 88", "parent saw 88" }, 1 }, // nobody filters: dispatched
        { 'P', { "child saw 80", "parent saw 80" }, 0 }, // the parent filters its child's key
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(static_cast<char>(c.key));
        log.clear();
        child.keyDowns = 0;
        PostKeyAndPump(child, c.key);
        EXPECT_EQ(c.seen, log);
        EXPECT_EQ(c.handled, child.keyDowns);
    }
}

TEST_F(PreTranslateTest, MainWindowSeesKeysOfWindowsOutsideItsTree)
{
    AfxGetThread()->m_pMainWnd = &parent;
    PostKeyAndPump(outsider, 'O');
    EXPECT_EQ((std::vector<std::string>{ "outsider saw 79", "parent saw 79" }), log);
    EXPECT_EQ(1, outsider.keyDowns);
}

} // namespace
