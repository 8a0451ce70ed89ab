// Instance and resource handles, and the chain of modules searched for resources.
#include <afx.h>
#include <zoafx/modulechain.h>
#include <vector>

namespace {

struct ModuleState
{
    CRITICAL_SECTION lock;
    HINSTANCE hInstance = NULL;
    HINSTANCE hResource = NULL;
    std::vector<HINSTANCE> chain;
    ModuleState() { InitializeCriticalSection(&lock); }
};

ModuleState& State()
{
    static ModuleState* state = new ModuleState; // never freed: used until unload
    return *state;
}

class ModuleLock
{
public:
    ModuleLock() { EnterCriticalSection(&State().lock); }
    ~ModuleLock() { LeaveCriticalSection(&State().lock); }
};

bool HasResource(HINSTANCE hModule, LPCTSTR lpszName, LPCTSTR lpszType)
{
    return hModule != NULL && FindResourceW(hModule, lpszName, lpszType) != NULL;
}

} // namespace

HINSTANCE AFXAPI AfxGetInstanceHandle()
{
    ModuleLock lock;
    ModuleState& state = State();
    return state.hInstance ? state.hInstance : (HINSTANCE)GetModuleHandleW(NULL);
}

HINSTANCE AFXAPI AfxGetResourceHandle()
{
    {
        ModuleLock lock;
        if (State().hResource != NULL)
            return State().hResource;
    }
    return AfxGetInstanceHandle();
}

void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource)
{
    ModuleLock lock;
    State().hResource = hInstResource;
}

HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType)
{
    HINSTANCE hResource = AfxGetResourceHandle();
    if (lpszName == NULL || lpszType == NULL || HasResource(hResource, lpszName, lpszType))
        return hResource;
    std::vector<HINSTANCE> chain;
    {
        ModuleLock lock;
        chain = State().chain;
    }
    for (HINSTANCE hModule : chain)
        if (HasResource(hModule, lpszName, lpszType))
            return hModule;
    HINSTANCE hInstance = AfxGetInstanceHandle();
    if (HasResource(hInstance, lpszName, lpszType))
        return hInstance;
    return hResource;
}

namespace zoafx {

void AddResourceModule(HINSTANCE hModule)
{
    if (hModule == NULL)
        return;
    ModuleLock lock;
    std::vector<HINSTANCE>& chain = State().chain;
    for (HINSTANCE h : chain)
        if (h == hModule)
            return;
    chain.push_back(hModule);
}

void RemoveResourceModule(HINSTANCE hModule)
{
    ModuleLock lock;
    std::vector<HINSTANCE>& chain = State().chain;
    for (size_t i = 0; i < chain.size(); ++i)
    {
        if (chain[i] == hModule)
        {
            chain.erase(chain.begin() + (ptrdiff_t)i);
            return;
        }
    }
}

void SetInstanceHandle(HINSTANCE hInstance)
{
    ModuleLock lock;
    State().hInstance = hInstance;
}

int GetResourceModuleCount()
{
    ModuleLock lock;
    return (int)State().chain.size();
}

HINSTANCE GetResourceModule(int nIndex)
{
    ModuleLock lock;
    const std::vector<HINSTANCE>& chain = State().chain;
    return (nIndex >= 0 && nIndex < (int)chain.size()) ? chain[(size_t)nIndex] : NULL;
}

} // namespace zoafx
