#include <zotest/recorder.h>

#include <commctrl.h>

#include <algorithm>
#include <cstdio>

namespace zotest {

namespace {

// Recorders alive on the test thread; the queue hook is shared by all of them.
std::vector<MessageRecorder*>& LiveRecorders()
{
    static std::vector<MessageRecorder*> recorders;
    return recorders;
}

HHOOK g_getMessageHook = nullptr;

const UINT kDefaultNoise[] = {
    WM_GETICON, WM_NCHITTEST, WM_SETCURSOR, WM_GETOBJECT, WM_IME_SETCONTEXT, WM_IME_NOTIFY,
    WM_DEVICECHANGE, WM_QUERYUISTATE,
    0x0090, 0x0091, 0x0092, 0x0093, 0x0094, 0x0095, // undocumented theme (UAH) messages on Windows
    0x00AE, 0x00AF,                                 // undocumented caption theme messages
    0x031F,                                         // WM_DWMNCRENDERINGCHANGED
};

UINT NotificationCode(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COMMAND)
        return HIWORD(wParam);
    if (message == WM_NOTIFY && lParam != 0)
        return reinterpret_cast<const NMHDR*>(lParam)->code;
    return 0;
}

WindowRole RoleOfFlags(unsigned flags)
{
    if (flags & parent)
        return WindowRole::Parent;
    if (flags & other)
        return WindowRole::Other;
    return WindowRole::Control;
}

const char* RoleName(WindowRole role)
{
    switch (role) {
    case WindowRole::Parent:
        return "parent ";
    case WindowRole::Other:
        return "other  ";
    default:
        return "control";
    }
}

bool Matches(const ExpectedMessage& expected, const RecordedMessage& actual)
{
    if (expected.message != actual.message || RoleOfFlags(expected.flags) != actual.role)
        return false;
    if ((expected.flags & sent) && actual.posted)
        return false;
    if ((expected.flags & posted) && !actual.posted)
        return false;
    if ((expected.flags & wparam) && expected.wParam != actual.wParam)
        return false;
    if ((expected.flags & lparam) && expected.lParam != actual.lParam)
        return false;
    if ((expected.flags & code) && expected.code != actual.code)
        return false;
    return true;
}

std::vector<RecordedMessage> RelevantMessages(const MessageRecorder& recorder, const ExpectedMessage* table,
                                              size_t count)
{
    std::set<UINT> listed;
    for (size_t i = 0; table && i < count; ++i)
        listed.insert(table[i].message);
    std::vector<RecordedMessage> relevant;
    for (const RecordedMessage& message : recorder.Messages()) {
        const bool isListed = listed.count(message.message) != 0;
        if (isListed || (!recorder.MatchesOnlyListed() && !recorder.IsIgnored(message.message)))
            relevant.push_back(message);
    }
    return relevant;
}

// The first row where the table and the messages part (both sizes when they match).
std::pair<size_t, size_t> FirstDifference(const std::vector<ExpectedMessage>& expected,
                                          const std::vector<RecordedMessage>& actual)
{
    size_t i = 0;
    while (i < expected.size() && i < actual.size() && Matches(expected[i], actual[i]))
        ++i;
    return {i, i};
}

std::string Hex(ULONG_PTR value)
{
    char text[32];
    std::snprintf(text, sizeof text, "0x%llx", static_cast<unsigned long long>(value));
    return text;
}

} // namespace

MessageRecorder::MessageRecorder()
    : ignored_(std::begin(kDefaultNoise), std::end(kDefaultNoise))
{
    LiveRecorders().push_back(this);
    if (!g_getMessageHook)
        g_getMessageHook = SetWindowsHookExW(WH_GETMESSAGE, GetMessageHook, nullptr, GetCurrentThreadId());
}

MessageRecorder::~MessageRecorder()
{
    UnwatchAll();
    auto& recorders = LiveRecorders();
    recorders.erase(std::remove(recorders.begin(), recorders.end(), this), recorders.end());
    if (recorders.empty() && g_getMessageHook) {
        UnhookWindowsHookEx(g_getMessageHook);
        g_getMessageHook = nullptr;
    }
}

bool MessageRecorder::Watch(HWND window, WindowRole role)
{
    if (!IsWindow(window))
        return false;
    for (Watched& entry : watched_) {
        if (entry.window == window) {
            entry.role = role;
            return true;
        }
    }
    if (!SetWindowSubclass(window, SubclassProc, reinterpret_cast<UINT_PTR>(this),
                           reinterpret_cast<DWORD_PTR>(this)))
        return false;
    watched_.push_back({window, role});
    return true;
}

bool MessageRecorder::WatchWithParent(HWND control)
{
    if (!Watch(control, WindowRole::Control))
        return false;
    HWND owner = GetParent(control);
    return !owner || Watch(owner, WindowRole::Parent);
}

void MessageRecorder::Unwatch(HWND window)
{
    if (!RoleOf(window))
        return;
    if (IsWindow(window))
        RemoveWindowSubclass(window, SubclassProc, reinterpret_cast<UINT_PTR>(this));
    Forget(window);
}

void MessageRecorder::UnwatchAll()
{
    while (!watched_.empty())
        Unwatch(watched_.back().window);
}

bool MessageRecorder::IsWatched(HWND window) const
{
    return RoleOf(window) != nullptr;
}

void MessageRecorder::Clear()
{
    messages_.clear();
}

std::vector<RecordedMessage> MessageRecorder::MessagesOf(UINT message) const
{
    std::vector<RecordedMessage> found;
    for (const RecordedMessage& m : messages_)
        if (m.message == message)
            found.push_back(m);
    return found;
}

size_t MessageRecorder::Count(UINT message, WindowRole role) const
{
    return static_cast<size_t>(std::count_if(messages_.begin(), messages_.end(), [&](const RecordedMessage& m) {
        return m.message == message && m.role == role;
    }));
}

bool MessageRecorder::IsIgnored(UINT message) const
{
    return message >= 0xC000 || ignored_.count(message) != 0;
}

const WindowRole* MessageRecorder::RoleOf(HWND window) const
{
    for (const Watched& entry : watched_)
        if (entry.window == window)
            return &entry.role;
    return nullptr;
}

void MessageRecorder::Forget(HWND window)
{
    watched_.erase(std::remove_if(watched_.begin(), watched_.end(),
                                  [window](const Watched& entry) { return entry.window == window; }),
                   watched_.end());
}

void MessageRecorder::Record(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const bool fromQueue = queuedPending_ && queued_.hwnd == window && queued_.message == message &&
                           queued_.wParam == wParam && queued_.lParam == lParam;
    if (fromQueue)
        queuedPending_ = false;
    const WindowRole* role = RoleOf(window);
    if (!role)
        return;
    RecordedMessage entry;
    entry.window = window;
    entry.role = *role;
    entry.message = message;
    entry.wParam = wParam;
    entry.lParam = lParam;
    entry.code = NotificationCode(message, wParam, lParam);
    entry.posted = fromQueue;
    messages_.push_back(entry);
}

LRESULT CALLBACK MessageRecorder::SubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                               UINT_PTR id, DWORD_PTR data)
{
    auto* self = reinterpret_cast<MessageRecorder*>(data);
    self->Record(window, message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(window, SubclassProc, id);
        self->Forget(window);
    }
    return DefSubclassProc(window, message, wParam, lParam);
}

LRESULT CALLBACK MessageRecorder::GetMessageHook(int hookCode, WPARAM removal, LPARAM lParam)
{
    if (hookCode == HC_ACTION && removal == PM_REMOVE && lParam != 0) {
        const MSG& taken = *reinterpret_cast<const MSG*>(lParam);
        for (MessageRecorder* recorder : LiveRecorders()) {
            recorder->queuedPending_ = recorder->IsWatched(taken.hwnd);
            recorder->queued_ = taken;
        }
    }
    return CallNextHookEx(nullptr, hookCode, removal, lParam);
}

SequenceCheck CompareSequence(const MessageRecorder& recorder, const ExpectedMessage* table, size_t count)
{
    const std::vector<ExpectedMessage> expected(table, table + (table ? count : 0));
    const std::vector<RecordedMessage> actual = RelevantMessages(recorder, table, count);
    SequenceCheck check;
    const auto difference = FirstDifference(expected, actual);
    check.matches = difference.first == expected.size() && difference.second == actual.size();
    if (check.matches)
        return check;

    std::string text = "first difference at expected row " + std::to_string(difference.first) +
                       ", actual message " + std::to_string(difference.second) + "\n  expected:\n";
    for (size_t i = 0; i < expected.size(); ++i)
        text += std::string(i == difference.first ? "  > " : "    ") + std::to_string(i) + ": " +
                DescribeExpected(expected[i]) + "\n";
    if (expected.empty())
        text += "    (none)\n";
    text += "  actual (compared messages only):\n";
    for (size_t j = 0; j < actual.size(); ++j)
        text += std::string(j == difference.second ? "  > " : "    ") + std::to_string(j) + ": " +
                DescribeMessage(actual[j]) + "\n";
    if (actual.empty())
        text += "    (none)\n";
    const size_t leftOut = recorder.Messages().size() - actual.size();
    if (leftOut > 0)
        text += "  (" + std::to_string(leftOut) + " recorded messages left out as noise or unlisted)\n";
    check.report = text;
    return check;
}

void ExpectSequence(MessageRecorder& recorder, const ExpectedMessage* table, size_t count, const char* tableName,
                    const char* file, int line)
{
    const SequenceCheck check = CompareSequence(recorder, table, count);
    if (!check.matches)
        ADD_FAILURE_AT(file, line) << "message sequence " << (tableName ? tableName : "") << " does not match: "
                                   << check.report;
    recorder.Clear();
}

std::string DescribeMessage(const RecordedMessage& message)
{
    std::string text = std::string(RoleName(message.role)) + (message.posted ? " posted " : " sent   ") +
                       MessageName(message.message) + " wParam=" + Hex(message.wParam) +
                       " lParam=" + Hex(static_cast<ULONG_PTR>(message.lParam));
    if (message.message == WM_COMMAND || message.message == WM_NOTIFY)
        text += " code=" + std::to_string(static_cast<int>(message.code));
    return text;
}

std::string DescribeExpected(const ExpectedMessage& message)
{
    const unsigned flags = message.flags;
    std::string text = std::string(RoleName(RoleOfFlags(flags))) +
                       ((flags & sent) ? " sent   " : (flags & posted) ? " posted " : " any    ") +
                       MessageName(message.message);
    if (flags & wparam)
        text += " wParam=" + Hex(message.wParam);
    if (flags & lparam)
        text += " lParam=" + Hex(static_cast<ULONG_PTR>(message.lParam));
    if (flags & code)
        text += " code=" + std::to_string(static_cast<int>(message.code));
    return text;
}

} // namespace zotest
