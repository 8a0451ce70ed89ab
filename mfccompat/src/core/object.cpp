// CObject, CRuntimeClass and the diagnostics helpers.
#include <afx.h>
#include <vector>

// ---- diagnostics ----

BOOL AFXAPI AfxAssertFailedLine(LPCSTR lpszFileName, int nLine)
{
    char message[512];
    _snprintf(message, sizeof(message) - 1, "Assertion failed: %s(%d)\n",
              lpszFileName ? lpszFileName : "?", nLine);
    message[sizeof(message) - 1] = '\0';
    OutputDebugStringA(message);
    fputs(message, stderr);
    return FALSE; // continue: tests and headless runs must not stop on a dialog
}

void AFX_CDECL AfxTrace(LPCTSTR lpszFormat, ...)
{
    if (lpszFormat == NULL)
        return;
    va_list args;
    va_start(args, lpszFormat);
    CString text;
    text.FormatV(lpszFormat, args);
    va_end(args);
    OutputDebugStringW(text);
}

void AFXAPI AfxAssertValidObject(const CObject* pOb, LPCSTR lpszFileName, int nLine)
{
    if (pOb == NULL)
    {
        AfxAssertFailedLine(lpszFileName, nLine);
        return;
    }
    pOb->AssertValid();
}

BOOL AFXAPI AfxIsValidAddress(const void* lp, UINT_PTR nBytes, BOOL bReadWrite)
{
    UNUSED_ALWAYS(bReadWrite);
    return lp != NULL || nBytes == 0;
}

BOOL AFXAPI AfxIsValidString(LPCWSTR lpsz, int nLength)
{
    UNUSED_ALWAYS(nLength);
    return lpsz != NULL;
}

BOOL AFXAPI AfxIsValidString(LPCSTR lpsz, int nLength)
{
    UNUSED_ALWAYS(nLength);
    return lpsz != NULL;
}

// ---- CRuntimeClass ----

namespace {

// Registered classes. The CRuntimeClass objects themselves are const data, so the list is
// kept aside instead of being threaded through m_pNextClass.
struct ClassRegistry
{
    CRITICAL_SECTION lock;
    std::vector<const CRuntimeClass*> classes;
    ClassRegistry() { InitializeCriticalSection(&lock); }
};

ClassRegistry& Registry()
{
    static ClassRegistry* registry = new ClassRegistry; // never freed: used until unload
    return *registry;
}

} // namespace

AFX_CLASSINIT::AFX_CLASSINIT(CRuntimeClass* pNewClass)
{
    if (pNewClass == NULL)
        return;
    ClassRegistry& registry = Registry();
    EnterCriticalSection(&registry.lock);
    registry.classes.push_back(pNewClass);
    LeaveCriticalSection(&registry.lock);
}

CObject* CRuntimeClass::CreateObject()
{
    if (m_pfnCreateObject == NULL)
        return NULL;
    return (*m_pfnCreateObject)();
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const
{
    if (pBaseClass == NULL)
        return FALSE;
    for (const CRuntimeClass* pClass = this; pClass != NULL;)
    {
        if (pClass == pBaseClass)
            return TRUE;
        pClass = pClass->m_pfnGetBaseClass ? (*pClass->m_pfnGetBaseClass)() : NULL;
    }
    return FALSE;
}

CRuntimeClass* PASCAL CRuntimeClass::FromName(LPCSTR lpszClassName)
{
    if (lpszClassName == NULL)
        return NULL;
    CRuntimeClass* pFound = NULL;
    ClassRegistry& registry = Registry();
    EnterCriticalSection(&registry.lock);
    for (size_t i = registry.classes.size(); i-- > 0;) // newest registration wins
    {
        if (lstrcmpA(registry.classes[i]->m_lpszClassName, lpszClassName) == 0)
        {
            pFound = const_cast<CRuntimeClass*>(registry.classes[i]);
            break;
        }
    }
    LeaveCriticalSection(&registry.lock);
    if (pFound == NULL && lstrcmpA(lpszClassName, "CObject") == 0)
        pFound = RUNTIME_CLASS(CObject);
    return pFound;
}

CRuntimeClass* PASCAL CRuntimeClass::FromName(LPCWSTR lpszClassName)
{
    if (lpszClassName == NULL)
        return NULL;
    char name[256];
    if (WideCharToMultiByte(CP_ACP, 0, lpszClassName, -1, name, sizeof(name), NULL, NULL) == 0)
        return NULL;
    return FromName(name);
}

CObject* PASCAL CRuntimeClass::CreateObject(LPCSTR lpszClassName)
{
    CRuntimeClass* pClass = FromName(lpszClassName);
    return pClass ? pClass->CreateObject() : NULL;
}

CObject* PASCAL CRuntimeClass::CreateObject(LPCWSTR lpszClassName)
{
    CRuntimeClass* pClass = FromName(lpszClassName);
    return pClass ? pClass->CreateObject() : NULL;
}

// ---- CObject ----

const CRuntimeClass CObject::classCObject = {
    "CObject", sizeof(CObject), 0xFFFF, NULL, &CObject::_GetBaseClass, NULL, NULL };

CObject::CObject() { }
CObject::~CObject() { }

CRuntimeClass* PASCAL CObject::_GetBaseClass() { return NULL; }
CRuntimeClass* PASCAL CObject::GetThisClass() { return _RUNTIME_CLASS(CObject); }
CRuntimeClass* CObject::GetRuntimeClass() const { return _RUNTIME_CLASS(CObject); }

BOOL CObject::IsSerializable() const
{
    return GetRuntimeClass()->m_wSchema != 0xFFFF;
}

BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const
{
    return GetRuntimeClass()->IsDerivedFrom(pClass);
}

void CObject::Serialize(CArchive& ar)
{
    UNUSED_ALWAYS(ar); // nothing to store at this level
}

void CObject::AssertValid() const
{
    // Nothing to check at this level; derived classes verify their own members.
}

CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject)
{
    if (pObject != NULL && pObject->IsKindOf(pClass))
        return pObject;
    return NULL;
}

CObject* AFXAPI AfxStaticDownCast(CRuntimeClass* pClass, CObject* pObject)
{
    ASSERT(pObject == NULL || pObject->IsKindOf(pClass));
    UNUSED_ALWAYS(pClass);
    return pObject;
}
