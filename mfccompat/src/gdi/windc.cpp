// The device-context members that involve windows: window DCs and CDC's window queries.
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CPaintDC, CDC)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)

CWnd* CDC::GetWindow() const
{
    if (m_hDC == NULL)
        return NULL;
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

int CDC::ExcludeUpdateRgn(CWnd* pWnd)
{
    HWND hWnd = pWnd->GetSafeHwnd();
    if (m_hDC == NULL || hWnd == NULL)
        return ERROR;
    return ::ExcludeUpdateRgn(m_hDC, hWnd);
}

CPaintDC::CPaintDC(CWnd* pWnd) : m_hWnd(pWnd->GetSafeHwnd())
{
    memset(&m_ps, 0, sizeof(m_ps));
    if (!Attach(::BeginPaint(m_hWnd, &m_ps)))
        AfxThrowResourceException();
}

CPaintDC::~CPaintDC()
{
    ::EndPaint(m_hWnd, &m_ps);
    Detach();
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(pWnd->GetSafeHwnd())
{
    if (!Attach(::GetDC(m_hWnd)))
        AfxThrowResourceException();
}

CClientDC::~CClientDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(pWnd->GetSafeHwnd())
{
    if (!Attach(::GetWindowDC(m_hWnd)))
        AfxThrowResourceException();
}

CWindowDC::~CWindowDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}
