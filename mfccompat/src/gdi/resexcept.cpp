// CResourceException: thrown when a wrapper cannot create its Windows resource.
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)

CResourceException::CResourceException()
{
}

CResourceException::~CResourceException()
{
}

LPCTSTR CResourceException::GetDefaultMessage() const
{
    return _T("A required resource was unavailable.");
}

void AFXAPI AfxThrowResourceException()
{
    throw new CResourceException;
}
