// Internal: the chain of modules searched for resources.
//
// AfxFindResourceHandle(name, type) looks in AfxGetResourceHandle() first, then in every
// module registered here (in order of registration), then in AfxGetInstanceHandle(). If none
// has the resource it returns AfxGetResourceHandle().
//
//   CDynLinkLibrary's constructor  -> zoafx::AddResourceModule(hModule)
//   CDynLinkLibrary's destructor   -> zoafx::RemoveResourceModule(hModule)
//   AfxWinInit / CWinApp start-up  -> zoafx::SetInstanceHandle(hInstance)
//
// Until SetInstanceHandle is called the instance is the executable (GetModuleHandle(NULL));
// until AfxSetResourceHandle is called the resource handle is the instance. The chain is
// shared by all threads and guarded by a lock.
#pragma once
#include <afx.h>

namespace zoafx {

// Adding a module twice keeps one entry; NULL is ignored.
ZOAFX_API void AddResourceModule(HINSTANCE hModule);
ZOAFX_API void RemoveResourceModule(HINSTANCE hModule);
ZOAFX_API void SetInstanceHandle(HINSTANCE hInstance);
// The registered modules in search order (for tests and diagnostics).
ZOAFX_API int GetResourceModuleCount();
ZOAFX_API HINSTANCE GetResourceModule(int nIndex);

} // namespace zoafx
