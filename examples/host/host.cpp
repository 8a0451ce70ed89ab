// The smallest ZoCtrl host: an MFC application whose main window is a skinned frame holding a
// skinned button. With --check it builds its window, paints it once and reports through its
// exit code (0: every step worked) instead of running.
#include <afxwin.h>
#include <gdiplus.h>

#include "ZoCtrl.h"

namespace {

const UINT kButtonId = 100;

class CHostFrame : public ZoControls::CZoFrameWnd
{
public:
    CHostFrame() : ZoControls::CZoFrameWnd(false) {}

    ZoControls::CZoButton m_button;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct)
    {
        if (ZoControls::CZoFrameWnd::OnCreate(lpCreateStruct) == -1)
            return -1;
        return m_button.Create(L"Hello", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, CRect(20, 20, 140, 48), this,
                               kButtonId)
                   ? 0
                   : -1;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CHostFrame, ZoControls::CZoFrameWnd)
    ON_WM_CREATE()
END_MESSAGE_MAP()

class CHostApp : public CWinApp
{
public:
    BOOL InitInstance() override
    {
        CWinApp::InitInstance();
        Gdiplus::GdiplusStartupInput input;
        m_bGdiplus = Gdiplus::GdiplusStartup(&m_token, &input, NULL) == Gdiplus::Ok;
        m_bLibrary = InitializeZoCtrl();
        m_bCheck = wcsstr(::GetCommandLineW(), L"--check") != NULL;

        CHostFrame* pFrame = new CHostFrame;
        const BOOL created = pFrame->CreateEx(0, NULL, L"ZoCtrl host", WS_POPUP | WS_SYSMENU | WS_MINIMIZEBOX, 100,
                                              100, 320, 200, NULL, NULL);
        if (!created)
            return FALSE;
        m_pMainWnd = pFrame;
        if (!m_bCheck) {
            pFrame->ShowWindow(m_nCmdShow);
            pFrame->UpdateWindow();
            return TRUE;
        }
        // The check: the library started, the frame has its border and the button painted.
        CRect client;
        pFrame->GetClientRect(&client);
        CClientDC screen(pFrame);
        CDC dc;
        CBitmap bitmap;
        dc.CreateCompatibleDC(&screen);
        bitmap.CreateCompatibleBitmap(&screen, 120, 28);
        CBitmap* pOld = dc.SelectObject(&bitmap);
        dc.FillSolidRect(0, 0, 120, 28, RGB(1, 2, 3));
        pFrame->m_button.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.GetSafeHdc()), PRF_CLIENT);
        const bool painted = dc.GetPixel(60, 14) != RGB(1, 2, 3);
        dc.SelectObject(pOld);
        const int border = pFrame->GetBorderWidth();
        m_nCheckResult = (m_bLibrary && border > 0 && client.Width() == 320 - 2 * border && painted) ? 0 : 1;
        m_pMainWnd = NULL;
        pFrame->DestroyWindow();
        return FALSE;
    }

    int ExitInstance() override
    {
        const int code = CWinApp::ExitInstance();
        if (m_bLibrary)
            UninitializeZoCtrl();
        if (m_bGdiplus)
            Gdiplus::GdiplusShutdown(m_token);
        return m_bCheck ? m_nCheckResult : code;
    }

private:
    ULONG_PTR m_token = 0;
    bool m_bGdiplus = false;
    bool m_bLibrary = false;
    bool m_bCheck = false;
    int m_nCheckResult = 1;
};

CHostApp theApp;

} // namespace
