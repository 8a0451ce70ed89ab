// Shared pieces of the dialog tests: the library and a parent around each test, a dialog class
// that opens any test template at a chosen size class, and a driver that acts on a modal box
// from a timer while DoModal runs.
#pragma once
#include <afxwin.h>

#include <functional>

#include "../controls/controls_test_support.h"
#include "dialogs/ZoDialog.h"
#include "dialogs/ZoMessageBoxRules.h"

namespace dialogtest {

// A CZoDialog on a test template, opened at size class `size` (unknown: as the parent answers),
// its protected state readable.
class TestDialog : public ZoControls::CZoDialog
{
public:
    TestDialog(UINT templateId, CWnd* parent, ZoControls::E_ZoMonitorSize size = ZoControls::ZoMonitorSize_Unknown);

    using CZoDialog::GetBorderDim;
    using CZoDialog::GetSysButtonRect;
    using CZoDialog::GetSysButtonState;
    using CZoDialog::GetZoMonitorSize;

protected:
    int OnCreate(LPCREATESTRUCT lpCreateStruct);
    DECLARE_MESSAGE_MAP()

private:
    ZoControls::E_ZoMonitorSize m_size;
};

// `action(box)` runs once the thread's modal dialog shows (from a timer inside its modal loop).
// A box still open five seconds later is closed (its time-out, then Cancel), so a failing test
// never hangs.
void DriveModal(std::function<void(HWND box)> action);

// `action(box)` runs as soon as the thread's next dialog has handled WM_INITDIALOG, before its
// modal loop first shows it: a box closed from there never reaches the screen, which keeps
// open/close cycles cheap. Stop with StopDrivingBeforeShown.
void DriveModalBeforeShown(std::function<void(HWND box)> action);
void StopDrivingBeforeShown();

// Paints a hidden box, frame, client and children, into a scratch bitmap.
void PaintHidden(HWND box);

// What a host's idle time does between two boxes: MFC's temporary objects are freed.
void HostIdleTime();

// `cycles` runs of `cycle` leave no more GDI objects, windows and heap blocks behind than as many
// runs of `platformCycle`, the same dialog as the platform's own (Wine's static control keeps a
// heap block per window it ever made, which no library code can return).
void ExpectNoMoreGrowthThanPlatform(int cycles, const std::function<void()>& platformCycle,
                                    const std::function<void()>& cycle);

// A point of a window-coordinate rectangle's centre, in screen coordinates, as LPARAM.
LPARAM ScreenPointOf(HWND window, const RECT& inWindow);

// Text of child `id` of `box`.
CString ChildText(HWND box, int id);

// Child `id`'s rectangle in `box`'s client coordinates (empty when there is no such child).
CRect ChildRect(HWND box, int id);

} // namespace dialogtest
