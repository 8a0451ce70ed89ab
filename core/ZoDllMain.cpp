// ZoCtrl.dll is an MFC extension library: it joins MFC's resource chain so that its skin
// resources are found through MFC's resource search.
#include <afxwin.h>
#include <afxdllx.h>

namespace {
AFX_EXTENSION_MODULE g_zoCtrlModule = {};
} // namespace

extern "C" int APIENTRY DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID /*lpReserved*/)
{
    if (dwReason == DLL_PROCESS_ATTACH) {
        if (!AfxInitExtensionModule(g_zoCtrlModule, hInstance))
            return 0;
        new CDynLinkLibrary(g_zoCtrlModule);
    } else if (dwReason == DLL_PROCESS_DETACH) {
        AfxTermExtensionModule(g_zoCtrlModule);
    }
    return 1;
}
