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

} // namespace ZoControls
