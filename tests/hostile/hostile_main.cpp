// hostile_input: drives every window class of the library with hostile input and reports
//
//   hostile_input [--seed N] [--steps N]
//
// how many controls, messages and scenarios ran, and how many crashes, hangs, leaked GDI
// objects and heap blocks, and timers left firing for dead windows it saw; any of those makes
// the exit code non-zero. Each group runs in a child process of its own (the same program
// with --group), so a crash or a hang ends only that group and is counted; a group that grows
// runs again, and only growth both runs show counts. Groups that need a "Fonts.ini" or a
// size-class marker beside the executable run from a private copy of it.
#include "hostile.h"

#include <gdiplus.h>

#include <algorithm>
#include <climits>
#include <cstdio>
#include <memory>
#include <string>

#include <zotest/fresh_process.h>
#include <zotest/resource_counter.h>

#include "ZoLibrary.h"

namespace hostile {

namespace {

const RECT kControlRect = {12, 12, 252, 112};
const UINT kControlId = 1001;
const DWORD kGroupTimeout = 300000;

enum class GroupType { Kind, MissingSkins, OddResources };

struct Group
{
    std::string name;
    GroupType type;
    size_t kind; // for GroupType::Kind
};

std::vector<Group> Groups()
{
    std::vector<Group> groups;
    for (size_t i = 0; i < Kinds().size(); ++i)
        groups.push_back({Kinds()[i].name, GroupType::Kind, i});
    groups.push_back({"skins that cannot be loaded", GroupType::MissingSkins, 0});
    groups.push_back({"odd theme answers, garbage Fonts.ini, bad markers", GroupType::OddResources, 0});
    return groups;
}

// Menus opened by a context-menu message run a modal loop; this closes them as they open.
void CALLBACK CloseMenus(HWND, UINT, UINT_PTR, DWORD)
{
    EndMenu();
}

// Scenes started so far; a watchdog thread ends the process when it stops moving (a hang).
volatile LONG g_scenes = 0;
const DWORD kSceneTimeout = 20000;
const DWORD kHangExitCode = 4;

DWORD WINAPI Watchdog(void*)
{
    LONG seen = -1;
    DWORD since = GetTickCount();
    for (;;) {
        Sleep(500);
        const LONG now = g_scenes;
        if (now != seen) {
            seen = now;
            since = GetTickCount();
        } else if (GetTickCount() - since > kSceneTimeout) {
            printf("HOSTILE-HANG in scene %ld\n", now);
            fflush(stdout);
            TerminateProcess(GetCurrentProcess(), kHangExitCode);
        }
    }
}

// One scenario's parent and control, torn down in the right order whatever happened to them.
class CScene
{
public:
    CScene(const Kind& kind, DWORD style, Tally& tally, Random& random) : m_kind(kind), m_tally(tally)
    {
        m_host.kind = &kind;
        m_host.random = &random;
        m_host.tally = &tally;
        m_style = style;
        ++tally.scenarios;
        InterlockedIncrement(&g_scenes);
    }
    ~CScene()
    {
        if (::IsWindow(m_control))
            ::DestroyWindow(m_control);
        delete m_pControl;
        if (m_host.GetSafeHwnd())
            m_host.DestroyWindow();
        Pump(0, m_tally);
        // What an application's idle time does: temporary wrappers made by FromHandle go.
        CWnd::DeleteTempMap();
        CGdiObject::DeleteTempMap();
        CDC::DeleteTempMap();
        CMenu::DeleteTempMap();
    }

    CHost& host() { return m_host; }
    HWND control() const { return m_control; }

    bool Create()
    {
        if (g_trace)
            fprintf(stderr, "scene %ld: %s style 0x%lX\n", (long)g_scenes, m_kind.name, (unsigned long)m_style);
        // A class without a platform counterpart has nothing to compare with: creating ours in the
        // platform's run would cancel our own faults.
        if ((g_native && !m_kind.native) || !m_host.CreateHost())
            return false;
        m_pControl = (g_native && m_kind.native ? m_kind.native : m_kind.create)(m_host, m_style, kControlRect,
                                                                                    kControlId);
        ++m_tally.controls;
        m_control = m_pControl ? m_pControl->GetSafeHwnd() : NULL;
        m_host.control = m_control;
        return m_control != NULL;
    }

    // What a user's hand does after the press that made the control notify, and the time given
    // to what it queues (the scene's end dispatches what is left).
    void FollowUp(DWORD pump = 40)
    {
        SendMessageW(m_control, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(40, 8));
        SendMessageW(m_control, WM_LBUTTONUP, 0, MAKELPARAM(40, 8));
        for (UINT_PTR id = 1; id <= 4; ++id)
            SendMessageW(m_control, WM_TIMER, id, 0);
        SendMessageW(m_control, WM_KEYUP, VK_RIGHT, 0xC0000001);
        m_tally.messages += 7;
        Pump(pump, m_tally);
    }

private:
    const Kind& m_kind;
    Tally& m_tally;
    DWORD m_style = 0;
    CHost m_host;
    CWnd* m_pControl = nullptr;
    HWND m_control = NULL;
};

struct Odd
{
    bool answer = false;
    int theme = 0;
    int size = 0;
};

// Every scenario for one style of one class.
void RunStyle(const Kind& kind, DWORD style, Random& random, int steps, Tally& tally, const Odd& odd)
{
    {
        CScene scene(kind, style, tally, random);
        scene.host().answerQueries = odd.answer;
        scene.host().themeAnswer = odd.theme;
        scene.host().sizeAnswer = odd.size;
        if (scene.Create()) {
            Storm(kind, scene.control(), random, steps, tally);
            if (kind.provoke && IsWindow(scene.control()))
                kind.provoke(scene.control());
            Storm(kind, scene.control(), random, steps / 4, tally);
        }
    }
    // A parent that sends the control more messages from inside its notifications.
    {
        CScene scene(kind, style, tally, random);
        if (scene.Create()) {
            scene.host().reaction = Reaction::Reenter;
            if (kind.provoke)
                kind.provoke(scene.control());
            Storm(kind, scene.control(), random, steps / 4, tally);
        }
    }

    // A parent that destroys the control, or itself, when notified, and the input that follows.
    for (Reaction reaction : {Reaction::DestroyControl, Reaction::DestroyHost}) {
        if (!kind.provoke)
            break;
        CScene scene(kind, style, tally, random);
        if (scene.Create()) {
            scene.host().reaction = reaction;
            kind.provoke(scene.control());
            Storm(kind, scene.control(), random, steps / 8, tally);
            scene.FollowUp();
        }
    }

    // The control destroyed in the middle of a press, a drag or an edit.
    {
        CScene scene(kind, style, tally, random);
        if (scene.Create()) {
            SendMessageW(scene.control(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
            SendMessageW(scene.control(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(30, 20));
            SendMessageW(scene.control(), LVM_EDITLABELW, 0, 0);
            tally.messages += 3;
            ::DestroyWindow(scene.control());
            scene.FollowUp();
        }
    }
}

void RunKinds(const std::vector<Kind>& kinds, Random& random, int steps, Tally& tally)
{
    for (const Kind& kind : kinds)
        for (DWORD style : kind.styles)
            RunStyle(kind, style, random, steps, tally, Odd());
}

// Every class in every style created, painted every way, used and resized under odd resources
// (the process's own: a garbage "Fonts.ini", size-class markers for classes that do not exist)
// and with the parent's answers to the theme and size-class queries taken in turn from: none
// (the control measures its monitor), too large, unknown, too small.
void RunUnderOddResources(Tally& tally)
{
    static const SIZE kSizes[] = {{240, 100}, {1, 1}, {0, 0}, {600, 30}, {30, 400}};
    static const Odd kAnswers[] = {Odd(), Odd{true, INT_MAX, 3}, Odd{true, -5, -1}, Odd{true, 130, INT_MIN}};
    Random unused(1);
    size_t turn = 0;
    for (const Kind& kind : Kinds())
        for (DWORD style : kind.styles) {
            const Odd& odd = kAnswers[turn++ % (sizeof kAnswers / sizeof kAnswers[0])];
            CScene scene(kind, style, tally, unused);
            scene.host().answerQueries = odd.answer;
            scene.host().themeAnswer = odd.theme;
            scene.host().sizeAnswer = odd.size;
            if (!scene.Create())
                continue;
            for (const SIZE& size : kSizes) {
                const SIZE usable = UsableSize(kind, size.cx, size.cy);
                SetWindowPos(scene.control(), NULL, 0, 0, usable.cx, usable.cy, SWP_NOMOVE | SWP_NOZORDER);
                RedrawWindow(scene.control(), NULL, NULL, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW);
                tally.messages += 2;
            }
            if (kind.provoke)
                kind.provoke(scene.control());
            scene.FollowUp(0);
        }
}

void RunGroup(const Group& group, unsigned long long seed, int steps, Tally& tally)
{
    Random random(seed);
    switch (group.type) {
    case GroupType::Kind:
        RunKinds({Kinds()[group.kind]}, random, steps, tally);
        break;
    case GroupType::MissingSkins:
        RunKinds(KindsWithMissingSkins(), random, steps, tally);
        break;
    case GroupType::OddResources:
        RunUnderOddResources(tally);
        break;
    }
}

// ---------------------------------------------------------------- the child: one group

int RunChild(size_t groupIndex, unsigned long long seed, int steps)
{
    const std::vector<Group> groups = Groups();
    if (groupIndex >= groups.size())
        return 2;
    Gdiplus::GdiplusStartupInput startup;
    ULONG_PTR gdiplus = 0;
    Gdiplus::GdiplusStartup(&gdiplus, &startup, NULL);
    InitializeZoCtrl();
    const UINT_PTR menuCloser = SetTimer(NULL, 0, 25, CloseMenus);
    CloseHandle(CreateThread(NULL, 0, Watchdog, NULL, 0, NULL));

    // The group runs three times with the same seed: once to let caches fill, then twice measured.
    // A leak grows the counts in both measured runs; the platform's own allocations under such
    // storms come and go (its native controls show the same), so only steady growth counts, less
    // what the platform's list keeps of insertions it refuses (see SendInsertion).
    Tally tally;
    zotest::ResourceCounts counts[3];
    zotest::GdiTypeCounts types[3];
    long platformHeap[3] = {};
    for (int run = 0; run < 3; ++run) {
        tally = Tally();
        g_platformHeapBlocks = 0;
        RunGroup(groups[groupIndex], seed, steps, tally);
        Pump(60, tally);
        counts[run] = zotest::CountResources();
        types[run] = zotest::CountWineGdiObjectsByType();
        platformHeap[run] = g_platformHeapBlocks;
    }
    const long gdi = std::min(counts[1].gdiObjects - counts[0].gdiObjects, counts[2].gdiObjects - counts[1].gdiObjects);
    const long heap = std::min(counts[1].heapBlocks - counts[0].heapBlocks - platformHeap[1],
                               counts[2].heapBlocks - counts[1].heapBlocks - platformHeap[2]);

    KillTimer(NULL, menuCloser);
    UninitializeZoCtrl();
    Gdiplus::GdiplusShutdown(gdiplus);
    printf("HOSTILE-RESULT controls=%ld messages=%ld scenarios=%ld gdi=%ld heap=%ld timers=%ld", tally.controls,
           tally.messages, tally.scenarios, gdi, heap, tally.orphanTimers);
    // Which kinds of GDI object grew in both measured runs (Wine's type numbers), to trace a growth.
    printf(" gdikinds=");
    const char* separator = "";
    for (int type = 0; type < 256; ++type) {
        const long growth = std::min(types[1].live[type] - types[0].live[type], types[2].live[type] - types[1].live[type]);
        if (growth > 0) {
            printf("%s0x%02X:+%ld", separator, type, growth);
            separator = ",";
        }
    }
    printf("\n");
    fflush(stdout);
    return 0;
}

// ---------------------------------------------------------------- the parent: every group

std::wstring Folder(const std::wstring& path)
{
    return path.substr(0, path.find_last_of(L"\\/") + 1);
}

// A private copy of this program and the DLLs beside it, with files that only its run sees.
class CPrivateCopy
{
public:
    explicit CPrivateCopy(const std::wstring& executable)
    {
        wchar_t temp[MAX_PATH];
        GetTempPathW(MAX_PATH, temp);
        m_folder = std::wstring(temp) + L"zo_hostile_" + std::to_wstring(GetCurrentProcessId()) + L"\\";
        CreateDirectoryW(m_folder.c_str(), NULL);
        const std::wstring source = Folder(executable);
        WIN32_FIND_DATAW found;
        HANDLE search = FindFirstFileW((source + L"*.dll").c_str(), &found);
        if (search != INVALID_HANDLE_VALUE) {
            do
                _copy(source + found.cFileName, found.cFileName);
            while (FindNextFileW(search, &found));
            FindClose(search);
        }
        m_executable = m_folder + executable.substr(source.size());
        _copy(executable, executable.substr(source.size()));
    }
    ~CPrivateCopy()
    {
        for (const std::wstring& file : m_files)
            DeleteFileW(file.c_str());
        RemoveDirectoryW(m_folder.c_str());
    }

    const std::wstring& executable() const { return m_executable; }

    void Write(const std::wstring& name, const std::string& content)
    {
        const std::wstring path = m_folder + name;
        HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, NULL, CREATE_ALWAYS, 0, NULL);
        if (file == INVALID_HANDLE_VALUE)
            return;
        DWORD written = 0;
        WriteFile(file, content.data(), (DWORD)content.size(), &written, NULL);
        CloseHandle(file);
        m_files.push_back(path);
    }

private:
    void _copy(const std::wstring& from, const std::wstring& name)
    {
        if (CopyFileW(from.c_str(), (m_folder + name).c_str(), FALSE))
            m_files.push_back(m_folder + name);
    }

    std::wstring m_folder;
    std::wstring m_executable;
    std::vector<std::wstring> m_files;
};

std::string GarbageFontsIni(unsigned long long seed)
{
    std::string text = "[en-US]\r\nZoThemeFont_0=,,,,\r\nZoThemeFont_1=Arial,-2147483648,true\r\n"
                       "ZoThemeFont_2=" + std::string(3000, 'W') + ",99999999999999999,TRUE,TRUE\r\n"
                       "ZoThemeFont_3=Arial,0x7FFFFFFF\r\nZoThemeFont_4==\r\nZoThemeFont_13=;,12\r\n"
                       "ZoThemeFont_-1=Arial,12\r\nZoThemeFont_99=Arial,12\r\n[en-US\r\n=\r\n";
    Random random(seed);
    for (int i = 0; i < 2000; ++i)
        text += (char)(random.Next() & 0xFF);
    return text;
}

// The value after " name=" in the child's result line; empty when it has none.
std::string FieldText(const std::string& output, const char* name)
{
    const std::string key = std::string(" ") + name + "=";
    const size_t at = output.find(key);
    if (at == std::string::npos)
        return std::string();
    const size_t from = at + key.size();
    return output.substr(from, output.find_first_of(" \r\n", from) - from);
}

long Field(const std::string& output, const char* name)
{
    return strtol(FieldText(output, name).c_str(), NULL, 10);
}

// The GDI object kinds that grew in the child, as " (kinds ...)", or nothing.
std::string GdiKinds(const std::string& output)
{
    const std::string kinds = FieldText(output, "gdikinds");
    return kinds.empty() ? std::string() : " (kinds " + kinds + ")";
}

// One group's child run, read back.
struct Outcome
{
    bool finished = false;
    bool hung = false;
    Tally tally;
    long gdi = 0;
    long heap = 0;
    zotest::ProcessRun run;
};

Outcome RunGroupProcess(const Group& group, size_t index, unsigned long long seed, int steps, bool native)
{
    const std::wstring self = zotest::OwnExecutable();
    std::unique_ptr<CPrivateCopy> copy;
    if (group.type == GroupType::OddResources) {
        copy.reset(new CPrivateCopy(self));
        const std::wstring exeName = copy->executable().substr(copy->executable().find_last_of(L'\\') + 1);
        copy->Write(L"Fonts.ini", GarbageFontsIni(seed));
        for (const wchar_t* mode : {L"0", L"4", L"-1", L"99"})
            copy->Write(exeName + L".ZoCtrl.FixedMode." + mode, "");
    }
    const std::wstring executable = copy ? copy->executable() : self;
    const std::wstring commandLine = L"\"" + executable + L"\" --group " + std::to_wstring(index) + L" --seed " +
                                     std::to_wstring(seed) + L" --steps " + std::to_wstring(steps) +
                                     (native ? L" --native 1" : L"");
    Outcome outcome;
    outcome.run = zotest::RunProcess(executable, commandLine, kGroupTimeout);
    const std::string& output = outcome.run.output;
    outcome.finished = outcome.run.started && !outcome.run.timedOut && outcome.run.exitCode == 0 &&
                       output.find("HOSTILE-RESULT") != std::string::npos;
    outcome.hung = !outcome.finished && (outcome.run.timedOut || outcome.run.exitCode == kHangExitCode);
    outcome.tally.controls = Field(output, "controls");
    outcome.tally.messages = Field(output, "messages");
    outcome.tally.scenarios = Field(output, "scenarios");
    outcome.tally.orphanTimers = Field(output, "timers");
    outcome.gdi = std::max(0L, Field(output, "gdi"));
    outcome.heap = std::max(0L, Field(output, "heap"));
    return outcome;
}

int RunParent(unsigned long long seed, int steps)
{
    const std::vector<Group> groups = Groups();
    Tally total;
    long crashes = 0, hangs = 0, gdi = 0, heap = 0, platformLimits = 0;
    printf("hostile_input: seed 0x%llX, %d steps per storm, %u groups\n", seed, steps, (unsigned)groups.size());
    for (size_t i = 0; i < groups.size(); ++i) {
        Outcome ours = RunGroupProcess(groups[i], i, seed, steps, false);
        // A leak of ours repeats with the same input; growth a second run does not repeat was the
        // platform's timing (seen once: two GDI objects in the in-place editor's group).
        std::string repeated;
        if (ours.finished && (ours.gdi || ours.heap)) {
            const Outcome again = RunGroupProcess(groups[i], i, seed, steps, false);
            if (!again.finished) {
                ours = again;
            } else if (again.gdi < ours.gdi || again.heap < ours.heap) {
                repeated = "  (first run grew gdi " + std::to_string(ours.gdi) + GdiKinds(ours.run.output) +
                           " heap " + std::to_string(ours.heap) + ", a repeat gdi " + std::to_string(again.gdi) +
                           " heap " + std::to_string(again.heap) + ": the smaller counts)";
                ours.gdi = std::min(ours.gdi, again.gdi);
                ours.heap = std::min(ours.heap, again.heap);
            }
        }
        // A group that fails or grows is run again on the platform's own controls with the same
        // input: what they do too is the platform's (Wine's) limit, not a fault of ours.
        bool platformLimit = false;
        // The resource group compares against every class's platform control in the same sequence.
        const bool hasNative = groups[i].type == GroupType::Kind ? Kinds()[groups[i].kind].native != nullptr
                                                                 : groups[i].type != GroupType::MissingSkins;
        if (hasNative && (!ours.finished || ours.gdi || ours.heap)) {
            const Outcome native = RunGroupProcess(groups[i], i, seed, steps, true);
            platformLimit = !ours.finished && !native.finished;
            if (ours.finished && native.finished) {
                ours.gdi = std::max(0L, ours.gdi - native.gdi);
                ours.heap = std::max(0L, ours.heap - native.heap);
            }
        }
        const bool hung = !ours.finished && !platformLimit && ours.hung;
        const bool crashed = !ours.finished && !platformLimit && !ours.hung;
        crashes += crashed;
        hangs += hung;
        platformLimits += platformLimit;
        gdi += ours.gdi;
        heap += ours.heap;
        total.controls += ours.tally.controls;
        total.messages += ours.tally.messages;
        total.scenarios += ours.tally.scenarios;
        total.orphanTimers += ours.tally.orphanTimers;
        printf("  %-52s %5ld controls %8ld messages %5ld scenarios%s%s", groups[i].name.c_str(),
               ours.tally.controls, ours.tally.messages, ours.tally.scenarios, crashed ? "  CRASHED" : "",
               hung ? "  HUNG" : "");
        if (platformLimit)
            printf("  (stopped early: the platform's own control fails the same way)");
        printf("%s", repeated.c_str());
        if (ours.gdi || ours.heap || ours.tally.orphanTimers)
            printf("  LEAKED gdi %ld heap %ld, timers firing for dead windows %ld%s", ours.gdi, ours.heap,
                   ours.tally.orphanTimers, GdiKinds(ours.run.output).c_str());
        printf("\n");
        if (crashed || hung)
            printf("    exit code 0x%lX; output:\n%s\n", ours.run.exitCode, ours.run.output.c_str());
        fflush(stdout);
    }
    printf("hostile_input: %ld controls, %ld messages, %ld scenarios; %ld crashes, %ld hangs, %ld leaked GDI "
           "objects, %ld leaked heap blocks, %ld orphan timers\n",
           total.controls, total.messages, total.scenarios, crashes, hangs, gdi, heap, total.orphanTimers);
    if (platformLimits)
        printf("hostile_input: %ld groups stopped early where the platform's own control fails too\n",
               platformLimits);
    return crashes || hangs || gdi || heap || total.orphanTimers ? 1 : 0;
}

} // namespace

} // namespace hostile

int wmain(int argc, wchar_t** argv)
{
    unsigned long long seed = 0x5EED;
    int steps = 80;
    long group = -1;
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::wstring option = argv[i];
        if (option == L"--seed")
            seed = wcstoull(argv[i + 1], NULL, 0);
        else if (option == L"--steps")
            steps = (int)wcstol(argv[i + 1], NULL, 0);
        else if (option == L"--trace")
            hostile::g_trace = argv[i + 1][0] == L'1';
        else if (option == L"--native")
            hostile::g_native = argv[i + 1][0] == L'1';
        else if (option == L"--group")
            group = wcstol(argv[i + 1], NULL, 0);
    }
    if (steps < 8)
        steps = 8;
    // A crash must end the child at once instead of waiting on a dialog.
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    return group >= 0 ? hostile::RunChild((size_t)group, seed, steps) : hostile::RunParent(seed, steps);
}
