// A minimal MFC extension DLL: it registers itself so that its dialog and string are found
// from the executable that loads it.
#include <afxwin.h>
#include <afxdllx.h>

namespace {
AFX_EXTENSION_MODULE g_extensionModule = { FALSE, NULL, NULL, NULL, NULL };
}

extern "C" int APIENTRY DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID)
{
    if (dwReason == DLL_PROCESS_ATTACH)
    {
        if (!AfxInitExtensionModule(g_extensionModule, hInstance))
            return 0;
        new CDynLinkLibrary(g_extensionModule);
    }
    else if (dwReason == DLL_PROCESS_DETACH)
    {
        AfxTermExtensionModule(g_extensionModule);
    }
    return 1;
}
