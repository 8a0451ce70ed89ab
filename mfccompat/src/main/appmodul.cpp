// The entry point of an MFC host executable: the application object, defined by the host
// as a global CWinApp, is run by AfxWinMain.
#include <afxwin.h>

extern "C" int WINAPI wWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPWSTR lpCmdLine, int nCmdShow)
{
    return AfxWinMain(hInstance, hPrevInstance, lpCmdLine, nCmdShow);
}
