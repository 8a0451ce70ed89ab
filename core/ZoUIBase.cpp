#include <afxwin.h>
#include <afxtempl.h>

#include "ZoThemeManager.h"
#include "ZoThemeMath.h"
#include "ZoUIBase.h"

namespace ZoControls {

namespace {
const UINT kRegistryHashSize = 17;
const INT_PTR kRegistryBlockSize = 10;
} // namespace

CRect ZoScaleDesignRect(const CRect& design, bool bScalePosition, float zoom)
{
    if (bScalePosition)
        return CRect(ZoScaleByZoom(design.left, zoom), ZoScaleByZoom(design.top, zoom),
                     ZoScaleByZoom(design.right, zoom), ZoScaleByZoom(design.bottom, zoom));
    const int width = design.Width();
    const int height = design.Height();
    const int scaledWidth = ZoScaleByZoom(width, zoom);
    const int scaledHeight = ZoScaleByZoom(height, zoom);
    const int left = design.left + (width - scaledWidth) / 2;
    const int top = design.top + (height - scaledHeight) / 2;
    return CRect(left, top, left + scaledWidth, top + scaledHeight);
}

IZoUIBase::IZoUIBase()
    : m_eTheme(ZoTheme_Default), m_eMonitorSize(ZoMonitorSize_Unknown), m_mapRegistered(kRegistryBlockSize)
{
    m_mapRegistered.InitHashTable(kRegistryHashSize);
}

IZoUIBase::~IZoUIBase()
{
    m_mapRegistered.RemoveAll();
}

void IZoUIBase::SetZoTheme(E_ZoTheme theme)
{
    m_eTheme = theme;
}

E_ZoTheme IZoUIBase::GetZoTheme() const
{
    return m_eTheme;
}

void IZoUIBase::SetZoMonitorSize(E_ZoMonitorSize size)
{
    m_eMonitorSize = size;
}

E_ZoMonitorSize IZoUIBase::GetZoMonitorSize() const
{
    return m_eMonitorSize;
}

float IZoUIBase::GetZoZoomFactor() const
{
    return ZoZoomFactorOf(m_eMonitorSize);
}

LRESULT IZoUIBase::OnMsgGetCurrentZoTheme(WPARAM /*wParam*/, LPARAM lParam)
{
    if (lParam)
        *reinterpret_cast<int*>(lParam) = m_eTheme;
    return -1;
}

LRESULT IZoUIBase::OnMsgGetCurrentMonitorSize(WPARAM /*wParam*/, LPARAM lParam)
{
    if (lParam)
        *reinterpret_cast<int*>(lParam) = m_eMonitorSize;
    return -1;
}

bool IZoUIBase::RegisterChildWindow(CWnd* pWnd, const CRect& rect, bool bScalePosition)
{
    ST_REGISTERCHILDWND_VALUE existing;
    if (m_mapRegistered.Lookup(pWnd, existing))
        return false;
    ChangeRegisteredWindowRect(pWnd, rect, bScalePosition);
    return true;
}

bool IZoUIBase::GetRegisteredWindowRect(CWnd* pWnd, CRect& rect) const
{
    ST_REGISTERCHILDWND_VALUE value;
    if (!m_mapRegistered.Lookup(pWnd, value))
        return false;
    rect = value.rect;
    return true;
}

void IZoUIBase::ChangeRegisteredWindowRect(CWnd* pWnd, const CRect& rect, bool bScalePosition)
{
    ST_REGISTERCHILDWND_VALUE value;
    value.rect = rect;
    value.bScalePosition = bScalePosition;
    m_mapRegistered.SetAt(pWnd, value);
}

bool IZoUIBase::RemoveRegisterdWindow(CWnd* pWnd)
{
    return m_mapRegistered.RemoveKey(pWnd) != FALSE;
}

void IZoUIBase::RemoveAllRegistered()
{
    m_mapRegistered.RemoveAll();
}

void IZoUIBase::ResizeRegisteredWindows()
{
    const float zoom = GetZoZoomFactor();
    POSITION pos = m_mapRegistered.GetStartPosition();
    while (pos) {
        CWnd* pWnd = NULL;
        ST_REGISTERCHILDWND_VALUE value;
        m_mapRegistered.GetNextAssoc(pos, pWnd, value);
        // Destroyed children stay registered and are skipped.
        if (!pWnd || !::IsWindow(pWnd->GetSafeHwnd()) || value.rect.IsRectEmpty())
            continue;
        const CRect target = ZoScaleDesignRect(value.rect, value.bScalePosition, zoom);
        pWnd->MoveWindow(target.left, target.top, target.Width(), target.Height(), FALSE);
    }
}

IMPLEMENT_DYNAMIC(CZoWnd, CWnd)

BEGIN_MESSAGE_MAP(CZoWnd, CWnd)
    ON_MESSAGE(WM_APP + 2, &CZoWnd::OnMsgGetCurrentZoTheme)
    ON_MESSAGE(WM_APP + 3, &CZoWnd::OnMsgGetCurrentMonitorSize)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ZO_ON_MENUXP_MESSAGES()
END_MESSAGE_MAP()

ZO_IMPLEMENT_MENUXP_FORWARDING(CZoWnd, CWnd)

CZoWnd::CZoWnd()
{
}

CZoWnd::~CZoWnd()
{
}

CWnd* CZoWnd::GetZoParent()
{
    return CWnd::FromHandle(::GetParent(m_hWnd));
}

LRESULT CZoWnd::OnMsgGetCurrentZoTheme(WPARAM wParam, LPARAM lParam)
{
    return IZoUIBase::OnMsgGetCurrentZoTheme(wParam, lParam);
}

LRESULT CZoWnd::OnMsgGetCurrentMonitorSize(WPARAM wParam, LPARAM lParam)
{
    return IZoUIBase::OnMsgGetCurrentMonitorSize(wParam, lParam);
}

int CZoWnd::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    _detectMonitorSize();
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    ZoMenuOptIn(this);
    return 0;
}

void CZoWnd::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    // A minimised container (zero client size) leaves its children where they are.
    if (::IsWindow(m_hWnd) && cx > 0 && cy > 0)
        ResizeRegisteredWindows();
}

void CZoWnd::_detectMonitorSize()
{
    const E_ZoMonitorSize size = ZoGetCurrentMonitorSize(this, false);
    SetZoMonitorSize(size == ZoMonitorSize_Unknown ? ZoMonitorSize_Normal : size);
}

} // namespace ZoControls
