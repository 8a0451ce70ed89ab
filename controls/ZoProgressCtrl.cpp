#include "controls/ZoProgressCtrl.h"

#include "controls/ZoControlColors.h"
#include "controls/ZoControlTheme.h"
#include "core/ZoThemeManager.h"
#include "images/ZoResourceImage.h"

namespace ZoControls {

namespace {

const COLORREF kTransparent = RGB(255, 0, 255);
const int kEnabledColumn = 0;
const int kDisabledColumn = 3;

int clampTo(int value, int low, int high) { return value < low ? low : (value > high ? high : value); }

} // namespace

float ZoProgressFraction(int lo, int hi, int pos)
{
    if (lo >= hi)
        return 0.0f;
    return (float)(pos - lo) / (float)(hi - lo);
}

int ZoProgressHorizontalEdge(int left, int right, float fraction)
{
    const int edge = (int)((right - left) * fraction + 0.5) + left;
    return clampTo(edge, left, right);
}

int ZoProgressVerticalEdge(int top, int bottom, float fraction)
{
    const int edge = bottom - (int)((bottom - top) * fraction + 0.5);
    return clampTo(edge, top, bottom);
}

int ZoProgressPercent(int lo, int hi, int pos)
{
    if (lo >= hi)
        return 0;
    return (int)((float)pos / (float)(hi - lo) * 100);
}

int ZoProgressHorizontalCells(int start, int edge, int unit)
{
    if (unit <= 0 || edge <= start)
        return 0;
    return (edge - start + unit - 1) / unit;
}

int ZoProgressVerticalCells(int bottom, int edge, int unit)
{
    if (unit <= 0 || edge >= bottom)
        return 0;
    // Cells go at bottom - u, bottom - 2u, ... until one starts at or above the edge.
    return (bottom - edge + unit - 1) / unit;
}

IMPLEMENT_DYNAMIC(CZoProgressCtrl, CProgressCtrl)

BEGIN_MESSAGE_MAP(CZoProgressCtrl, CProgressCtrl)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_MESSAGE(WM_SETFONT, &CZoProgressCtrl::OnSetFont)
    ON_MESSAGE(WM_GETFONT, &CZoProgressCtrl::OnGetFont)
    ZO_ON_MENUXP_MESSAGES()
END_MESSAGE_MAP()

ZO_IMPLEMENT_MENUXP_FORWARDING(CZoProgressCtrl, CProgressCtrl)

CZoProgressCtrl::CZoProgressCtrl()
    : m_pSkin(NULL), m_eTheme(ZoTheme_Default), m_eMonitorSize(ZoMonitorSize_Unknown), m_hTextFont(NULL)
{
}

CZoProgressCtrl::~CZoProgressCtrl() { delete m_pSkin; }

void CZoProgressCtrl::PreSubclassWindow()
{
    _init();
    CProgressCtrl::PreSubclassWindow();
}

int CZoProgressCtrl::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CProgressCtrl::OnCreate(lpCreateStruct) == -1)
        return -1;
    _init();
    return 0;
}

void CZoProgressCtrl::_init()
{
    ZoMenuOptIn(this);
    m_eTheme = ZoGetCurrentThemeIndex(this);
    m_eMonitorSize = ZoGetCurrentMonitorSize(this, false);
    // Creation through MFC runs both PreSubclassWindow and WM_CREATE: load once per style.
    delete m_pSkin;
    m_pSkin = new CZoResourceBMPImage();
    const bool vertical = (GetStyle() & PBS_VERTICAL) != 0;
    m_pSkin->LoadResourceImage(vertical ? L"BMP_ZO_PROGRVER" : L"BMP_ZO_PROGRHOR", m_eMonitorSize, 4, 1);
}

void CZoProgressCtrl::OnDestroy()
{
    CProgressCtrl::OnDestroy();
    delete m_pSkin;
    m_pSkin = NULL;
    m_hTextFont = NULL;
}

void CZoProgressCtrl::DrawClient(CDC& dc)
{
    CRect client;
    GetClientRect(&client);
    DrawBar(dc, client);
    DrawPercentage(dc, client);
}

void CZoProgressCtrl::_readRange(int& lo, int& hi, int& pos)
{
    lo = static_cast<int>(DefWindowProc(PBM_GETRANGE, TRUE, 0));
    hi = static_cast<int>(DefWindowProc(PBM_GETRANGE, FALSE, 0));
    pos = static_cast<int>(DefWindowProc(PBM_GETPOS, 0, 0));
}

void CZoProgressCtrl::DrawBar(CDC& dc, const CRect& rect)
{
    int lo = 0;
    int hi = 0;
    int pos = 0;
    _readRange(lo, hi, pos);
    if (lo >= hi)
        return;
    const COLORREF background = ZoSlotColor(ZoColor_ProgressBack, m_eTheme);
    const float fraction = ZoProgressFraction(lo, hi, pos);
    const int column = IsWindowEnabled() ? kEnabledColumn : kDisabledColumn;
    const bool loaded = m_pSkin && m_pSkin->IsLoaded();
    if ((GetStyle() & PBS_VERTICAL) == 0)
    {
        const int edge = ZoProgressHorizontalEdge(rect.left, rect.right, fraction);
        const int unit = loaded ? m_pSkin->GetUnitWidth() : 0;
        const int cells = ZoProgressHorizontalCells(rect.left, edge, unit);
        for (int i = 0; i < cells; ++i)
            m_pSkin->DrawUnitImage(dc, rect.left + i * unit, rect.top, unit, rect.Height(), column, 0, kTransparent);
        dc.FillSolidRect(edge, rect.top, rect.right - edge, rect.Height(), background);
    }
    else
    {
        const int edge = ZoProgressVerticalEdge(rect.top, rect.bottom, fraction);
        const int unit = loaded ? m_pSkin->GetUnitHeight() : 0;
        const int cells = ZoProgressVerticalCells(rect.bottom, edge, unit);
        for (int i = 1; i <= cells; ++i)
            m_pSkin->DrawUnitImage(dc, rect.left, rect.bottom - i * unit, rect.Width(), unit, column, 0,
                                   kTransparent);
        // The top pixel row keeps what was there.
        const int height = edge - rect.top - 1;
        if (height > 0)
            dc.FillSolidRect(rect.left, rect.top + 1, rect.Width(), height, background);
    }
}

void CZoProgressCtrl::DrawPercentage(CDC& dc, const CRect& rect)
{
    int lo = 0;
    int hi = 0;
    int pos = 0;
    _readRange(lo, hi, pos);
    if (lo >= hi)
        return;
    CString text;
    text.Format(L"%d%%", ZoProgressPercent(lo, hi, pos));
    const int oldMode = dc.SetBkMode(TRANSPARENT);
    const COLORREF oldColor = dc.SetTextColor(ZoSlotColor(ZoColor_ProgressText, m_eTheme));
    const HGDIOBJ oldFont = m_hTextFont ? ::SelectObject(dc.GetSafeHdc(), m_hTextFont) : NULL;
    CRect area = rect;
    dc.DrawText(text, &area, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    if (oldFont)
        ::SelectObject(dc.GetSafeHdc(), oldFont);
    dc.SetTextColor(oldColor);
    dc.SetBkMode(oldMode);
}

LRESULT CZoProgressCtrl::OnSetFont(WPARAM wParam, LPARAM lParam)
{
    m_hTextFont = reinterpret_cast<HFONT>(wParam);
    if (LOWORD(lParam))
        Invalidate(FALSE);
    return 0;
}

LRESULT CZoProgressCtrl::OnGetFont(WPARAM, LPARAM) { return reinterpret_cast<LRESULT>(m_hTextFont); }

} // namespace ZoControls
