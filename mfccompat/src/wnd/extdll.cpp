// Extension DLLs: AfxInitExtensionModule and CDynLinkLibrary, which joins the DLL's resources
// to the chain AfxFindResourceHandle searches.
#include <afxwin.h>
#include <zoafx/modulechain.h>

namespace {

// Library objects are made and deleted in DllMain, which the loader serialises.
CDynLinkLibrary* g_pFirstLibrary = NULL;

void Unlink(CDynLinkLibrary* pLibrary)
{
    for (CDynLinkLibrary** ppLink = &g_pFirstLibrary; *ppLink != NULL; ppLink = &(*ppLink)->m_pNextDLL)
    {
        if (*ppLink == pLibrary)
        {
            *ppLink = pLibrary->m_pNextDLL;
            return;
        }
    }
}

} // namespace

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CCmdTarget)

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem)
    : CDynLinkLibrary(state.hModule, state.hResource)
{
    m_bSystem = bSystem;
}

CDynLinkLibrary::CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource)
    : m_hModule(hModule), m_hResource(hResource), m_bSystem(FALSE), m_pNextDLL(g_pFirstLibrary)
{
    g_pFirstLibrary = this;
    zoafx::AddResourceModule(m_hResource);
}

CDynLinkLibrary::~CDynLinkLibrary()
{
    Unlink(this);
    // Another library object may still stand for the same resources.
    for (CDynLinkLibrary* pLibrary = g_pFirstLibrary; pLibrary != NULL; pLibrary = pLibrary->m_pNextDLL)
    {
        if (pLibrary->m_hResource == m_hResource)
            return;
    }
    zoafx::RemoveResourceModule(m_hResource);
}

BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule)
{
    if (hModule == NULL)
        return FALSE;
    if (state.bInitialized)
        return TRUE;
    state.hModule = hModule;
    state.hResource = hModule;
    // Run-time classes register themselves process-wide when they are constructed, so the
    // module keeps no class list of its own.
    state.pFirstSharedClass = NULL;
    state.pFirstSharedFactory = NULL;
    state.bInitialized = TRUE;
    return TRUE;
}

void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll)
{
    CDynLinkLibrary* pLibrary = g_pFirstLibrary;
    while (pLibrary != NULL)
    {
        CDynLinkLibrary* pNext = pLibrary->m_pNextDLL;
        if (bAll || (state.hModule != NULL && pLibrary->m_hModule == state.hModule))
            delete pLibrary;
        pLibrary = pNext;
    }
    state.bInitialized = FALSE;
}
