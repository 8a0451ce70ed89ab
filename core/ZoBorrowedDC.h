// CZoBorrowedDC: a device context handed in by a message (WM_PAINT or WM_PRINTCLIENT with a DC
// in wParam), wrapped for the duration of one handler. A temporary CDC from CDC::FromHandle
// would live until the next idle time.
#pragma once
#include <afxwin.h>

namespace ZoControls {

class CZoBorrowedDC : public CDC
{
public:
    explicit CZoBorrowedDC(WPARAM wParam)
    {
        if (wParam)
            Attach((HDC)wParam);
    }
    ~CZoBorrowedDC() override { Detach(); }

private:
    CZoBorrowedDC(const CZoBorrowedDC&);
    CZoBorrowedDC& operator=(const CZoBorrowedDC&);
};

// Runs `paint(CDC&)` on the DC of a WM_PRINTCLIENT. False without a DC or when `paint` declines,
// so that the caller can leave the message to the platform.
template <class TPaint>
bool ZoPaintPrintClient(WPARAM wParam, TPaint paint)
{
    CZoBorrowedDC dc(wParam);
    return dc.GetSafeHdc() != NULL && paint(dc);
}

} // namespace ZoControls
