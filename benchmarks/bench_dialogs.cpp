// Dialog timing as a ratio against the platform's own dialog measured in the same run:
//   opening (create, show, paint) and closing a dialog of 30 controls of the nine window classes
//   the skinned dialog subclasses, as CZoDialog  vs  the same template as a plain CDialog.
// The template is built in memory, so the benchmark needs no resource script.
#include <afxwin.h>
#include <afxcmn.h>
#include <commctrl.h>

#include <stdio.h>

#include <vector>

#include "BenchHost.h"
#include "BenchPaint.h"
#include "BenchTiming.h"
#include "ZoCtrl.h"

using namespace ZoControls;

namespace {

const int kRounds = 10;
const int kControlCount = 30;

LRESULT CALLBACK HostProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::DefWindowProcW(hWnd, message, wParam, lParam);
}

// A DLGTEMPLATE and its items, written word by word.
class TemplateWriter
{
public:
    void Word(WORD value) { m_words.push_back(value); }
    void Dword(DWORD value)
    {
        Word(LOWORD(value));
        Word(HIWORD(value));
    }
    void Text(const wchar_t* text)
    {
        for (; *text; ++text)
            Word(*text);
        Word(0);
    }
    void AlignDword()
    {
        if (m_words.size() % 2)
            Word(0);
    }
    void Header(DWORD style, int count, short cx, short cy, const wchar_t* caption)
    {
        Dword(style);
        Dword(0);
        Word(static_cast<WORD>(count));
        Word(0);
        Word(0);
        Word(cx);
        Word(cy);
        Word(0); // no menu
        Word(0); // the dialog class
        Text(caption);
        Word(8);
        Text(L"Tahoma");
    }
    void Item(const wchar_t* windowClass, const wchar_t* text, DWORD style, short x, short y, short cx, short cy,
              WORD id)
    {
        AlignDword();
        Dword(WS_CHILD | WS_VISIBLE | style);
        Dword(0);
        Word(x);
        Word(y);
        Word(cx);
        Word(cy);
        Word(id);
        Text(windowClass);
        Text(text);
        Word(0); // no creation data
    }
    LPCDLGTEMPLATE Get() const { return reinterpret_cast<LPCDLGTEMPLATE>(m_words.data()); }

private:
    std::vector<WORD> m_words;
};

struct ControlKind
{
    const wchar_t* windowClass;
    const wchar_t* text;
    DWORD style;
    short cy;
};

// The nine classes, each used in turn until 30 controls are placed in three columns.
const ControlKind kKinds[] = {
    {L"Static", L"Label", SS_LEFT, 10},
    {L"Button", L"Push", BS_PUSHBUTTON | WS_TABSTOP, 14},
    {L"msctls_progress32", L"", 0, 10},
    {L"Edit", L"Text", ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP, 14},
    {L"msctls_trackbar32", L"", TBS_BOTH, 15},
    {L"SysListView32", L"", LVS_REPORT | WS_BORDER, 30},
    {L"ComboBox", L"", CBS_DROPDOWNLIST | WS_VSCROLL, 60},
    {L"SysTabControl32", L"", 0, 30},
    {L"ScrollBar", L"", SBS_HORZ, 10},
};

void BuildTemplate(TemplateWriter& writer)
{
    writer.Header(DS_SETFONT | WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_MAXIMIZEBOX, kControlCount,
                  330, 260, L"Thirty controls");
    const int kindCount = static_cast<int>(sizeof(kKinds) / sizeof(kKinds[0]));
    for (int i = 0; i < kControlCount; ++i) {
        const ControlKind& kind = kKinds[i % kindCount];
        const short x = static_cast<short>(7 + (i % 3) * 108);
        const short y = static_cast<short>(7 + (i / 3) * 25);
        writer.Item(kind.windowClass, kind.text, kind.style, x, y, 100, kind.cy < 20 ? kind.cy : 20,
                    static_cast<WORD>(1000 + i));
    }
}

// Seconds per open (create, show, paint) and close of dialogs of class TDialog.
template <class TDialog>
double OpenCloseTime(const TemplateWriter& writer, CWnd* parent)
{
    return zobench::TimePerCall(kRounds, [&writer, parent] {
        TDialog dialog;
        if (!dialog.CreateIndirect(writer.Get(), parent))
            return;
        dialog.ShowWindow(SW_SHOW);
        dialog.UpdateWindow();
        zobench::PumpPending();
        dialog.DestroyWindow();
        zobench::PumpPending();
    });
}

class PlainDialog : public CDialog
{
};

class SkinnedDialog : public CZoDialog
{
public:
    SkinnedDialog() : CZoDialog(static_cast<UINT>(0), NULL) {}
};

} // namespace

int wmain()
{
    return zobench::RunWithHost(L"bench_dialogs", HostProc, [](HWND host) {
        printf("bench_dialogs\n");
        TemplateWriter writer;
        BuildTemplate(writer);
        CWnd* parent = CWnd::FromHandle(host);
        const zobench::Pair times = zobench::CompareInTurns(
            3, [&writer, parent] { return OpenCloseTime<SkinnedDialog>(writer, parent); },
            [&writer, parent] { return OpenCloseTime<PlainDialog>(writer, parent); });
        printf("Dialog of %d controls of the nine classes, opened and closed:\n", kControlCount);
        zobench::Report("CZoDialog open and close", times.zo, times.native, zobench::kNoNativeTime);
    });
}
