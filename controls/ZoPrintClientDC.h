// CZoPrintClientDC: the device context of a WM_PRINTCLIENT wrapped for the duration of one
// handler. A temporary CDC from CDC::FromHandle would live until the next idle time.
#pragma once
#include <afxwin.h>

namespace ZoControls {

class CZoPrintClientDC : public CDC
{
public:
    explicit CZoPrintClientDC(WPARAM wParam)
    {
        if (wParam)
            Attach((HDC)wParam);
    }
    virtual ~CZoPrintClientDC() { Detach(); }

private:
    CZoPrintClientDC(const CZoPrintClientDC&);
    CZoPrintClientDC& operator=(const CZoPrintClientDC&);
};

// Runs `paint(CDC&)` on the DC of a WM_PRINTCLIENT. False without a DC or when `paint` declines,
// so that the caller can leave the message to the platform.
template <class TPaint>
bool ZoPaintPrintClient(WPARAM wParam, TPaint paint)
{
    CZoPrintClientDC dc(wParam);
    return dc.GetSafeHdc() != NULL && paint(dc);
}

} // namespace ZoControls
