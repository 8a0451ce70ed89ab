// Message recording and expected-sequence checks.
//   ExpectedMessage / flags    one row of a static expected-sequence table
//   RecordedMessage            one message a watched window received
//   MessageRecorder            subclasses windows (control, parent, other children) and records
//   CompareSequence            non-asserting comparison, returns a readable report
//   ZOTEST_EXPECT_SEQUENCE     gtest failure at the caller's file/line, then flushes the recorder
//   MessageName                "WM_COMMAND" style names of common messages
//
// Table rows read like Wine's tests:
//   static const zotest::ExpectedMessage click[] = {
//       { WM_LBUTTONDOWN, zotest::sent | zotest::wparam, MK_LBUTTON },
//       { WM_LBUTTONUP, zotest::sent },
//       { WM_COMMAND, zotest::sent | zotest::parent | zotest::code, 0, 0, BN_CLICKED },
//   };
//   ZOTEST_EXPECT_SEQUENCE(recorder, click);
//
// Posted messages: a WH_GETMESSAGE hook notes each message taken from the queue (GetMessage or
// PeekMessage with PM_REMOVE, in any loop of the thread, modal ones included); when that message
// then reaches the window procedure it is recorded as posted. Everything else is recorded as sent.
// Queue-made messages (input, WM_PAINT, WM_TIMER) count as posted when a loop dispatches them.
//
// Watch a window after its MFC object (if any) has subclassed it: the recorder then sits outermost
// and sees every message, including those a handler answers without calling the default.
//
// Noise: messages in the fixed ignore set (WM_GETICON, WM_NCHITTEST, WM_SETCURSOR, WM_GETOBJECT, IME and
// undocumented theme messages, registered messages >= 0xC000) are left out of the comparison unless
// the table lists that message number. MatchOnlyListed(true) leaves out every unlisted message.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <set>
#include <string>
#include <vector>

namespace zotest {

enum MessageFlags : unsigned {
    sent = 0x0001,         // reached the window procedure directly (SendMessage, nested calls)
    posted = 0x0002,       // came through the thread's message queue; neither flag: either way
    wparam = 0x0004,       // compare wParam
    lparam = 0x0008,       // compare lParam
    code = 0x0010,         // compare the notification code (WM_COMMAND high word, NMHDR::code)
    parent = 0x0100,       // received by a window watched as WindowRole::Parent
    other = 0x0200,        // received by a window watched as WindowRole::Other
};

enum class WindowRole { Control, Parent, Other };

struct ExpectedMessage {
    UINT message = 0;
    unsigned flags = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    UINT code = 0;
};

struct RecordedMessage {
    HWND window = nullptr;
    WindowRole role = WindowRole::Control;
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    UINT code = 0; // notification code of WM_COMMAND / WM_NOTIFY, else 0
    bool posted = false;
};

struct SequenceCheck {
    bool matches = false;
    std::string report; // empty when it matches
};

class MessageRecorder {
public:
    MessageRecorder();
    ~MessageRecorder();
    MessageRecorder(const MessageRecorder&) = delete;
    MessageRecorder& operator=(const MessageRecorder&) = delete;

    // Starts recording what `window` receives; false for a window that does not exist.
    bool Watch(HWND window, WindowRole role = WindowRole::Control);
    // Watches `control` and its parent (when it has one) as WindowRole::Parent.
    bool WatchWithParent(HWND control);
    void Unwatch(HWND window);
    void UnwatchAll();
    bool IsWatched(HWND window) const;

    void Clear();
    const std::vector<RecordedMessage>& Messages() const { return messages_; }
    // Recorded messages with number `message` (any role).
    std::vector<RecordedMessage> MessagesOf(UINT message) const;
    size_t Count(UINT message, WindowRole role = WindowRole::Control) const;

    bool IsIgnored(UINT message) const;
    void MatchOnlyListed(bool only) { matchOnlyListed_ = only; }
    bool MatchesOnlyListed() const { return matchOnlyListed_; }

private:
    static LRESULT CALLBACK SubclassProc(HWND, UINT, WPARAM, LPARAM, UINT_PTR, DWORD_PTR);
    static LRESULT CALLBACK GetMessageHook(int, WPARAM, LPARAM);
    void Record(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    const WindowRole* RoleOf(HWND window) const;
    void Forget(HWND window);

    struct Watched {
        HWND window;
        WindowRole role;
    };
    std::vector<Watched> watched_;
    std::vector<RecordedMessage> messages_;
    std::set<UINT> ignored_;
    bool matchOnlyListed_ = false;
    bool queuedPending_ = false;
    MSG queued_{};
};

// Compares what `recorder` holds with the table.
SequenceCheck CompareSequence(const MessageRecorder& recorder, const ExpectedMessage* table, size_t count);

// Reports a mismatch as a non-fatal gtest failure at file/line and clears the recorder.
void ExpectSequence(MessageRecorder& recorder, const ExpectedMessage* table, size_t count,
                    const char* tableName, const char* file, int line);

template <size_t N>
void ExpectSequence(MessageRecorder& recorder, const ExpectedMessage (&table)[N], const char* tableName,
                    const char* file, int line)
{
    ExpectSequence(recorder, table, N, tableName, file, line);
}

inline void ExpectSequence(MessageRecorder& recorder, const std::vector<ExpectedMessage>& table,
                           const char* tableName, const char* file, int line)
{
    ExpectSequence(recorder, table.data(), table.size(), tableName, file, line);
}

// "WM_COMMAND", "BM_SETSTATE", ... or "0x1234" for messages without a known name.
std::string MessageName(UINT message);
std::string DescribeMessage(const RecordedMessage& message);
std::string DescribeExpected(const ExpectedMessage& message);

} // namespace zotest

#define ZOTEST_EXPECT_SEQUENCE(recorder, table) \
    ::zotest::ExpectSequence((recorder), (table), #table, __FILE__, __LINE__)
