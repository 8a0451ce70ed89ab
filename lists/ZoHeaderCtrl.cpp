#include "lists/ZoHeaderCtrl.h"

#include "controls/ZoControlTheme.h"
#include "controls/ZoWindowHelpers.h"
#include "core/ZoThemeManager.h"
#include "images/ZoResourceImage.h"
#include "lists/ZoListGeometry.h"

namespace ZoControls {

namespace {

const COLORREF kTransparent = RGB(255, 0, 255);
// Header strip: 12 x 3 cells (four states of left, middle, right; top, middle, bottom).
const int kHeaderColumns = 12;
const int kHeaderRows = 3;
// Arrow strip: 4 states x 2 directions (row 0 descending, row 1 ascending).
const int kSortColumns = 4;
const int kSortRows = 2;
const int kTextSlot = 42; // list cell text
const int kTextBufferLength = 510;
const UINT kHeaderTextFormat = DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS;
const int kSortFlags = HDF_SORTUP | HDF_SORTDOWN;

bool isLoaded(const CZoResourceBMPImage* pImage) { return pImage && pImage->IsLoaded(); }

void drawPiece(CDC& dc, const CZoResourceBMPImage& image, const ZoHeaderPiece& piece)
{
    const int w = piece.dest.right - piece.dest.left;
    const int h = piece.dest.bottom - piece.dest.top;
    if (w > 0 && h > 0)
        image.DrawUnitImage(dc, piece.dest.left, piece.dest.top, w, h, piece.column, piece.row, kTransparent);
}

bool isListView(HWND hWnd)
{
    wchar_t className[64] = {0};
    return hWnd && ::GetClassNameW(hWnd, className, 64) > 0 && ::lstrcmpiW(className, WC_LISTVIEWW) == 0;
}

} // namespace

IMPLEMENT_DYNAMIC(CZoHeaderCtrl, CHeaderCtrl)

BEGIN_MESSAGE_MAP(CZoHeaderCtrl, CHeaderCtrl)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
    ON_WM_CANCELMODE()
    ON_NOTIFY_REFLECT(HDN_BEGINDRAG, &CZoHeaderCtrl::OnBeginDrag)
    ON_NOTIFY_REFLECT(HDN_ENDDRAG, &CZoHeaderCtrl::OnEndDrag)
    ZO_ON_MENUXP_MESSAGES()
END_MESSAGE_MAP()

ZO_IMPLEMENT_MENUXP_FORWARDING(CZoHeaderCtrl, CHeaderCtrl)

CZoHeaderCtrl::CZoHeaderCtrl()
    : m_eMonitorSize(ZoMonitorSize_Unknown), m_eFont(ZoThemeFont_9), m_pHeaderImage(NULL), m_pSortImage(NULL),
      m_nPressedItem(-1), m_nHotItem(-1), m_bDragging(false), m_bFirstColumnLocked(false), m_bNoSortHeader(false),
      m_bPressTracked(false)
{
}

CZoHeaderCtrl::~CZoHeaderCtrl() { _freeSkins(); }

void CZoHeaderCtrl::SetSortOption(int column, bool ascending)
{
    if (!::IsWindow(m_hWnd))
        return;
    const int count = GetItemCount();
    for (int i = 0; i < count; ++i)
    {
        HDITEMW item = {};
        item.mask = HDI_FORMAT;
        if (!GetItem(i, &item))
            continue;
        int format = item.fmt & ~kSortFlags;
        if (i == column)
            format |= ascending ? HDF_SORTUP : HDF_SORTDOWN;
        if (format != item.fmt)
        {
            item.fmt = format;
            SetItem(i, &item);
        }
    }
    Invalidate(FALSE);
    UpdateWindow();
}

bool CZoHeaderCtrl::GetSortOption(int& column, bool& ascending) const
{
    column = -1;
    ascending = false;
    if (!::IsWindow(m_hWnd))
        return false;
    const int count = GetItemCount();
    for (int i = 0; i < count; ++i)
    {
        HDITEMW item = {};
        item.mask = HDI_FORMAT;
        if (GetItem(i, &item) && (item.fmt & kSortFlags) != 0)
        {
            column = i;
            ascending = (item.fmt & HDF_SORTUP) != 0;
            return true;
        }
    }
    return false;
}

int CZoHeaderCtrl::HitTestItem(CPoint point)
{
    if (m_bNoSortHeader || !::IsWindow(m_hWnd))
        return -1;
    HDHITTESTINFO info = {};
    info.pt = point;
    const int item = HitTest(&info);
    return (info.flags & HHT_ONHEADER) ? item : -1;
}

void CZoHeaderCtrl::_loadSkins()
{
    ZoMenuOptIn(this);
    m_eMonitorSize = ZoGetCurrentMonitorSize(this, false);
    _freeSkins();
    m_pHeaderImage = new CZoResourceBMPImage();
    m_pHeaderImage->LoadResourceImage(L"BMP_ZO_HEADER", m_eMonitorSize, kHeaderColumns, kHeaderRows);
    m_pSortImage = new CZoResourceBMPImage();
    m_pSortImage->LoadResourceImage(L"BMP_ZO_HEADERSORT", m_eMonitorSize, kSortColumns, kSortRows);
}

void CZoHeaderCtrl::_freeSkins()
{
    delete m_pHeaderImage;
    m_pHeaderImage = NULL;
    delete m_pSortImage;
    m_pSortImage = NULL;
}

void CZoHeaderCtrl::PreSubclassWindow()
{
    _loadSkins();
    CZoPaintedWnd<CHeaderCtrl>::PreSubclassWindow();
}

int CZoHeaderCtrl::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CHeaderCtrl::OnCreate(lpCreateStruct) == -1)
        return -1;
    _loadSkins();
    return 0;
}

void CZoHeaderCtrl::OnDestroy()
{
    _endPress();
    _freeSkins();
    CHeaderCtrl::OnDestroy();
}

void CZoHeaderCtrl::DrawClient(CDC& dc)
{
    CRect client;
    GetClientRect(&client);
    CZoTextScope scope(dc, ZoCachedFont(m_eFont, m_eMonitorSize), dc.GetTextColor(), TRANSPARENT);

    // The area right of the last item; widened so that its side edges never show.
    CRect empty = client;
    empty.InflateRect(2, 0);
    DrawHeaderItem(dc, empty, CString(), 0, ZoHeaderState_Empty);

    // The items are read from the header's own procedure: a sent message would pass the
    // thread's message hooks, under Wine a round trip to the Wine server, twice an item.
    const int count = (int)ZoCallWindow(m_hWnd, HDM_GETITEMCOUNT, 0, 0);
    for (int i = 0; i < count; ++i)
    {
        wchar_t text[kTextBufferLength + 1] = {0};
        HDITEMW item = {};
        item.mask = HDI_TEXT | HDI_FORMAT;
        item.pszText = text;
        item.cchTextMax = kTextBufferLength;
        if (!ZoCallWindow(m_hWnd, HDM_GETITEMW, (WPARAM)i, (LPARAM)&item))
            continue;
        CRect rect;
        if (!ZoCallWindow(m_hWnd, HDM_GETITEMRECT, (WPARAM)i, (LPARAM)(RECT*)&rect))
            continue;
        DrawHeaderItem(dc, rect, CString(text), item.fmt, ZoHeaderItemState(i, m_nPressedItem, m_nHotItem));
    }
}

void CZoHeaderCtrl::DrawHeaderItem(CDC& dc, const CRect& rect, const CString& text, int format, int state)
{
    if (isLoaded(m_pHeaderImage))
    {
        ZoHeaderPiece pieces[ZoHeaderPieceCount];
        ZoHeaderNineSlice(rect, state, m_pHeaderImage->GetUnitWidth(), m_pHeaderImage->GetUnitHeight(), pieces);
        for (int i = 0; i < ZoHeaderPieceCount; ++i)
            drawPiece(dc, *m_pHeaderImage, pieces[i]);
    }
    CRect textRect = rect;
    if ((format & kSortFlags) != 0 && isLoaded(m_pSortImage))
    {
        const ZoHeaderArrow arrow = ZoHeaderArrowPlacement(rect, state, (format & HDF_SORTUP) != 0,
                                                           m_pSortImage->GetUnitWidth(),
                                                           m_pSortImage->GetUnitHeight());
        if (arrow.shown)
        {
            drawPiece(dc, *m_pSortImage, arrow.piece);
            textRect.right = arrow.textRight;
        }
    }
    if (text.IsEmpty())
        return;
    textRect.DeflateRect(2, 0);
    const COLORREF old = dc.SetTextColor(ZoSlotColor(kTextSlot, ZoTheme_Default));
    dc.DrawText(text, &textRect, kHeaderTextFormat);
    dc.SetTextColor(old);
}

void CZoHeaderCtrl::OnMouseMove(UINT nFlags, CPoint point)
{
    if (m_nPressedItem < 0 && !m_bDragging)
    {
        const int hot = HitTestItem(point);
        if (hot != m_nHotItem)
        {
            m_nHotItem = hot;
            Invalidate(FALSE);
        }
        TRACKMOUSEEVENT track = {};
        track.cbSize = sizeof(track);
        track.dwFlags = TME_LEAVE;
        track.hwndTrack = m_hWnd;
        ::_TrackMouseEvent(&track);
    }
    CHeaderCtrl::OnMouseMove(nFlags, point);
}

void CZoHeaderCtrl::OnMouseLeave()
{
    if (m_nHotItem >= 0)
    {
        m_nHotItem = -1;
        Invalidate(FALSE);
    }
    CHeaderCtrl::OnMouseLeave();
}

void CZoHeaderCtrl::OnLButtonDown(UINT nFlags, CPoint point)
{
    const HWND hParent = ::GetParent(m_hWnd);
    if (isListView(hParent))
    {
        const DWORD extended = (DWORD)::SendMessageW(hParent, LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0);
        if (extended & LVS_EX_HEADERDRAGDROP)
            ModifyStyle(0, HDS_DRAGDROP);
        else
            ModifyStyle(HDS_DRAGDROP, 0);
    }
    m_nPressedItem = HitTestItem(point);
    if (m_nPressedItem >= 0)
        Invalidate(FALSE);
    m_bPressTracked = true;
    CHeaderCtrl::OnLButtonDown(nFlags, point);
}

void CZoHeaderCtrl::OnLButtonUp(UINT nFlags, CPoint point)
{
    // A press that lost the mouse has ended: its release clicks nothing (not every platform
    // header forgets its press when the capture goes).
    const bool tracked = m_bPressTracked;
    m_bPressTracked = false;
    if (tracked)
        CHeaderCtrl::OnLButtonUp(nFlags, point);
    m_nPressedItem = -1;
    if (::IsWindow(m_hWnd))
        Invalidate(FALSE);
}

void CZoHeaderCtrl::_endPress()
{
    m_bPressTracked = false;
    if (m_nPressedItem < 0 && !m_bDragging)
        return;
    m_nPressedItem = -1;
    m_bDragging = false;
    if (::IsWindow(m_hWnd))
        Invalidate(FALSE);
}

void CZoHeaderCtrl::OnCaptureChanged(CWnd* pWnd)
{
    if (pWnd == NULL || pWnd->GetSafeHwnd() != m_hWnd)
        _endPress();
    CHeaderCtrl::OnCaptureChanged(pWnd);
}

void CZoHeaderCtrl::OnCancelMode()
{
    _endPress();
    CHeaderCtrl::OnCancelMode();
}

void CZoHeaderCtrl::OnBeginDrag(NMHDR*, LRESULT* pResult)
{
    const bool refuse = (GetStyle() & HDS_DRAGDROP) == 0 || (m_nPressedItem == 0 && m_bFirstColumnLocked);
    if (!refuse)
        m_bDragging = true;
    *pResult = refuse ? 1 : 0;
}

void CZoHeaderCtrl::OnEndDrag(NMHDR*, LRESULT* pResult)
{
    *pResult = 0;
    m_nPressedItem = -1;
    if (!m_bDragging)
        return;
    m_bDragging = false;
    Invalidate(FALSE);
    if (!m_bFirstColumnLocked)
        return;
    CRect client;
    GetClientRect(&client);
    CPoint cursor;
    ::GetCursorPos(&cursor);
    ScreenToClient(&cursor);
    HDHITTESTINFO info = {};
    info.pt = CPoint(cursor.x > client.left ? cursor.x : client.left, (client.top + client.bottom) / 2);
    if (HitTest(&info) == 0)
        *pResult = 1;
}

} // namespace ZoControls
