// ZoCtrl gallery: the demo host. Every control family has a page; with --screenshots DIR it
// writes DIR\<page>.bmp for every page and exits.
#include <afxwin.h>
#include <gdiplus.h>
#include <shellapi.h>

#include "GalleryMainWnd.h"

namespace {
const int kClientWidth = 1200;
const int kClientHeight = 860;
} // namespace

class CGalleryApp : public CWinApp
{
public:
    CGalleryApp();

    virtual BOOL InitInstance();
    virtual int ExitInstance();

private:
    static CString _screenshotFolder();

    ULONG_PTR m_gdiplusToken;
    bool m_bGdiplusStarted;
    bool m_bScreenshotMode;
    int m_nScreenshotExitCode;
};

CGalleryApp theApp;

CGalleryApp::CGalleryApp()
    : m_gdiplusToken(0), m_bGdiplusStarted(false), m_bScreenshotMode(false), m_nScreenshotExitCode(1)
{
}

CString CGalleryApp::_screenshotFolder()
{
    CString folder;
    int argc = 0;
    LPWSTR* argv = ::CommandLineToArgvW(::GetCommandLineW(), &argc);
    if (!argv)
        return folder;
    for (int i = 1; i + 1 < argc; ++i)
        if (::lstrcmpW(argv[i], L"--screenshots") == 0)
            folder = argv[i + 1];
    ::LocalFree(argv);
    return folder;
}

BOOL CGalleryApp::InitInstance()
{
    CWinApp::InitInstance();
    // The library draws with GDI+ but leaves starting it to the host.
    Gdiplus::GdiplusStartupInput input;
    m_bGdiplusStarted = Gdiplus::GdiplusStartup(&m_gdiplusToken, &input, NULL) == Gdiplus::Ok;
    InitializeZoCtrl();

    const CString folder = _screenshotFolder();
    m_bScreenshotMode = !folder.IsEmpty();

    CGalleryMainWnd* pMain = new CGalleryMainWnd;
    if (!pMain->CreateMain(kClientWidth, kClientHeight)) {
        delete pMain;
        return FALSE;
    }
    m_pMainWnd = pMain;
    if (m_bScreenshotMode) {
        m_nScreenshotExitCode = pMain->SaveScreenshots(folder) ? 0 : 1;
        m_pMainWnd = NULL;
        pMain->DestroyWindow();
        return FALSE;
    }
    pMain->ShowWindow(m_nCmdShow);
    pMain->UpdateWindow();
    return TRUE;
}

int CGalleryApp::ExitInstance()
{
    const int code = CWinApp::ExitInstance();
    UninitializeZoCtrl();
    if (m_bGdiplusStarted)
        Gdiplus::GdiplusShutdown(m_gdiplusToken);
    m_bGdiplusStarted = false;
    return m_bScreenshotMode ? m_nScreenshotExitCode : code;
}
