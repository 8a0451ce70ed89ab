// Message-map dispatch: handlers get the arguments cracked from wParam/lParam as documented.
// (Messages whose handlers in the library's own windows show what they were given, such as the
// non-client mouse, WM_NCCALCSIZE, WM_ERASEBKGND and the owner-draw pair, are checked through
// those windows' tests.)
#include "wnd_test_support.h"

#include <initializer_list>
#include <sstream>
#include <vector>

namespace {

enum
{
    ID_FIRST_COMMAND = 100,
    ID_RANGE_FIRST = 200,
    ID_RANGE_LAST = 210,
};

std::string Name(const CWnd* wnd, const CWnd* self)
{
    if (wnd == NULL)
        return "null";
    if (wnd->m_hWnd == self->m_hWnd)
        return "self";
    return "other";
}

class CRecordWnd : public CWnd
{
public:
    std::vector<std::string> calls;
    HWND otherWindow = NULL;
    HBRUSH brush = reinterpret_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH));
    HDC paintDC = NULL;

    std::string Last() const { return calls.empty() ? std::string("<none>") : calls.back(); }

    template <class... T>
    void Record(const char* name, T... args)
    {
        std::ostringstream text;
        text << name;
        ((text << ' ' << args), ...);
        calls.push_back(text.str());
    }

protected:
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt)
    {
        Record("OnMouseWheel", nFlags, zDelta, pt.x, pt.y);
        return TRUE;
    }
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message)
    {
        Record("OnSetCursor", Name(pWnd, this), nHitTest, message);
        return TRUE;
    }
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized)
    {
        Record("OnActivate", nState, Name(pWndOther, this), bMinimized);
    }
    afx_msg void OnSetFocus(CWnd* pOldWnd) { Record("OnSetFocus", Name(pOldWnd, this)); }
    afx_msg void OnKillFocus(CWnd* pNewWnd) { Record("OnKillFocus", Name(pNewWnd, this)); }
    afx_msg void OnCaptureChanged(CWnd* pWnd) { Record("OnCaptureChanged", Name(pWnd, this)); }
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
    {
        Record("OnCtlColor", pDC != NULL && pDC->m_hDC == paintDC ? "dc" : "wrong-dc",
               pWnd != NULL && pWnd->m_hWnd == otherWindow ? "other" : "wrong", nCtlColor);
        return brush;
    }
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus) { Record("OnShowWindow", bShow, nStatus); }
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
    {
        Record("OnHScroll", nSBCode, nPos, pScrollBar == NULL ? "null" : "bar");
    }
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos) { Record("OnContextMenu", Name(pWnd, this), pos.x, pos.y); }
    afx_msg void OnFirstCommand() { Record("OnFirstCommand"); }
    afx_msg void OnRangeCommand(UINT nID) { Record("OnRangeCommand", nID); }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CRecordWnd, CWnd)
    ON_WM_MOUSEWHEEL()
    ON_WM_SETCURSOR()
    ON_WM_ACTIVATE()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_CAPTURECHANGED()
    ON_WM_CTLCOLOR()
    ON_WM_SHOWWINDOW()
    ON_WM_HSCROLL()
    ON_WM_CONTEXTMENU()
    ON_COMMAND(ID_FIRST_COMMAND, &CRecordWnd::OnFirstCommand)
    ON_COMMAND_RANGE(ID_RANGE_FIRST, ID_RANGE_LAST, &CRecordWnd::OnRangeCommand)
END_MESSAGE_MAP()

class MessageMapTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(wnd.CreateEx(0, AfxRegisterWndClass(0), L"record", WS_POPUP, 0, 0, 200, 100, NULL, NULL));
        other = wndtest::CreatePlainWindow(L"STATIC", WS_POPUP);
        wnd.otherWindow = other;
        wnd.paintDC = ::CreateCompatibleDC(NULL);
        wnd.calls.clear();
    }
    void TearDown() override
    {
        ::DeleteDC(wnd.paintDC);
        ::DestroyWindow(other);
        wnd.DestroyWindow();
    }
    LRESULT Send(UINT message, WPARAM wParam, LPARAM lParam)
    {
        return ::SendMessageW(wnd.m_hWnd, message, wParam, lParam);
    }

    CRecordWnd wnd;
    HWND other = NULL;
};

// One message sent to the recorder and the handler call it must produce.
struct Cracked
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    const char* call;
};

void ExpectCalls(CRecordWnd& wnd, std::initializer_list<Cracked> cases)
{
    for (const Cracked& c : cases)
    {
        SCOPED_TRACE(c.call);
        ::SendMessageW(wnd.m_hWnd, c.message, c.wParam, c.lParam);
        EXPECT_EQ(c.call, wnd.Last());
    }
}

TEST_F(MessageMapTest, MouseWheelSplitsFlagsAndDeltaAndReturnsTheHandlersAnswer)
{
    EXPECT_EQ(TRUE, Send(WM_MOUSEWHEEL, MAKEWPARAM(MK_SHIFT, static_cast<WORD>(-120)), MAKELPARAM(10, 20)));
    EXPECT_EQ("OnMouseWheel 4 -120 10 20", wnd.Last());
}

TEST_F(MessageMapTest, WindowArgumentsArriveAsCWndObjectsAndFlagsAsPassed)
{
    const LPARAM otherL = reinterpret_cast<LPARAM>(other);
    const WPARAM self = reinterpret_cast<WPARAM>(wnd.m_hWnd);
    ExpectCalls(wnd, {
        { WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1), otherL, "OnActivate 2 other 1" },
        { WM_SETFOCUS, reinterpret_cast<WPARAM>(other), 0, "OnSetFocus other" },
        { WM_KILLFOCUS, 0, 0, "OnKillFocus null" },
        { WM_CAPTURECHANGED, 0, otherL, "OnCaptureChanged other" },
        { WM_CONTEXTMENU, self, MAKELPARAM(0xFFFF, 0xFFFF), "OnContextMenu self -1 -1" },
        { WM_SHOWWINDOW, TRUE, SW_PARENTOPENING, "OnShowWindow 1 3" },
        { WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 55), 0, "OnHScroll 5 55 null" }, // no control: null
    });
    EXPECT_EQ(TRUE, Send(WM_SETCURSOR, self, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)));
    EXPECT_EQ("OnSetCursor self 1 512", wnd.Last());
}

TEST_F(MessageMapTest, EveryControlColorMessageReachesOnCtlColorWithItsType)
{
    const struct { UINT message; UINT type; } cases[] = {
        { WM_CTLCOLORMSGBOX, CTLCOLOR_MSGBOX }, { WM_CTLCOLOREDIT, CTLCOLOR_EDIT },
        { WM_CTLCOLORLISTBOX, CTLCOLOR_LISTBOX }, { WM_CTLCOLORBTN, CTLCOLOR_BTN },
        { WM_CTLCOLORDLG, CTLCOLOR_DLG }, { WM_CTLCOLORSCROLLBAR, CTLCOLOR_SCROLLBAR },
        { WM_CTLCOLORSTATIC, CTLCOLOR_STATIC },
    };
    for (const auto& c : cases)
    {
        LRESULT result = Send(c.message, reinterpret_cast<WPARAM>(wnd.paintDC), reinterpret_cast<LPARAM>(other));
        EXPECT_EQ(reinterpret_cast<LRESULT>(wnd.brush), result);
        EXPECT_EQ("OnCtlColor dc other " + std::to_string(c.type), wnd.Last());
    }
}

// ---- commands and notifications ----

TEST_F(MessageMapTest, CommandEntriesByIdAndRange)
{
    EXPECT_EQ(1, Send(WM_COMMAND, MAKEWPARAM(ID_FIRST_COMMAND, 0), 0));
    EXPECT_EQ("OnFirstCommand", wnd.Last());
    Send(WM_COMMAND, MAKEWPARAM(205, 1), 0);   // an accelerator
    EXPECT_EQ("OnRangeCommand 205", wnd.Last());
    wnd.calls.clear();
    EXPECT_EQ(0, Send(WM_COMMAND, MAKEWPARAM(ID_RANGE_LAST + 1, 0), 0));
    EXPECT_TRUE(wnd.calls.empty());
}

} // namespace
