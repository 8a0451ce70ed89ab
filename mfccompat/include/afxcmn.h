// MFC-compatible <afxcmn.h>: the common controls. Classes in this file:
//   CToolTipCtrl (and CToolInfo), CHeaderCtrl, CListCtrl, CSliderCtrl, CProgressCtrl,
//   CSpinButtonCtrl, CTabCtrl, CTreeCtrl, CToolBarCtrl; CImageList comes from zoafx/imagelist.h.
#pragma once
#include <afxwin.h>
#include <commctrl.h>
#include <zoafx/imagelist.h>

class CToolTipCtrl;

class CToolInfo : public tagTOOLINFOW
{
public:
    TCHAR szText[256];
};

class ZOAFX_API CToolTipCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolTipCtrl)
public:
    CToolTipCtrl();
    virtual ~CToolTipCtrl();
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwStyle = 0, DWORD dwStyleEx = 0);

    // A tool with nIDTool 0 is the whole window pWnd; any other id is an area of pWnd.
    BOOL AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool = NULL, UINT_PTR nIDTool = 0);
    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACK, LPCRECT lpRectTool = NULL,
                 UINT_PTR nIDTool = 0);
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    BOOL GetToolInfo(CToolInfo& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    void SetToolInfo(LPTOOLINFO lpToolInfo) { ::SendMessageW(m_hWnd, TTM_SETTOOLINFOW, 0, (LPARAM)lpToolInfo); }
    void SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect);
    BOOL HitTest(CWnd* pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const;
    int GetToolCount() const { return (int)::SendMessageW(m_hWnd, TTM_GETTOOLCOUNT, 0, 0); }

    void Activate(BOOL bActivate) { ::SendMessageW(m_hWnd, TTM_ACTIVATE, bActivate, 0); }
    void RelayEvent(LPMSG lpMsg) { ::SendMessageW(m_hWnd, TTM_RELAYEVENT, 0, (LPARAM)lpMsg); }
    void Pop() { ::SendMessageW(m_hWnd, TTM_POP, 0, 0); }
    void Popup() { ::SendMessageW(m_hWnd, TTM_POPUP, 0, 0); }
    void Update() { ::SendMessageW(m_hWnd, TTM_UPDATE, 0, 0); }
    int SetMaxTipWidth(int iWidth) { return (int)::SendMessageW(m_hWnd, TTM_SETMAXTIPWIDTH, 0, iWidth); }
    int GetMaxTipWidth() const { return (int)::SendMessageW(m_hWnd, TTM_GETMAXTIPWIDTH, 0, 0); }
    void SetDelayTime(UINT nDelay) { ::SendMessageW(m_hWnd, TTM_SETDELAYTIME, TTDT_AUTOMATIC, nDelay); }
    void SetDelayTime(DWORD dwDuration, int iTime)
    { ::SendMessageW(m_hWnd, TTM_SETDELAYTIME, dwDuration, MAKELPARAM(iTime, 0)); }
    int GetDelayTime(DWORD dwDuration) const { return (int)::SendMessageW(m_hWnd, TTM_GETDELAYTIME, dwDuration, 0); }
    void SetTipBkColor(COLORREF clr) { ::SendMessageW(m_hWnd, TTM_SETTIPBKCOLOR, clr, 0); }
    COLORREF GetTipBkColor() const { return (COLORREF)::SendMessageW(m_hWnd, TTM_GETTIPBKCOLOR, 0, 0); }
    void SetTipTextColor(COLORREF clr) { ::SendMessageW(m_hWnd, TTM_SETTIPTEXTCOLOR, clr, 0); }
    COLORREF GetTipTextColor() const { return (COLORREF)::SendMessageW(m_hWnd, TTM_GETTIPTEXTCOLOR, 0, 0); }
    void SetMargin(LPRECT lprc) { ::SendMessageW(m_hWnd, TTM_SETMARGIN, 0, (LPARAM)lprc); }
    void GetMargin(LPRECT lprc) const { ::SendMessageW(m_hWnd, TTM_GETMARGIN, 0, (LPARAM)lprc); }
    BOOL SetTitle(UINT uIcon, LPCTSTR lpstrTitle)
    { return (BOOL)::SendMessageW(m_hWnd, TTM_SETTITLEW, uIcon, (LPARAM)lpstrTitle); }

protected:
    void FillInToolInfo(TOOLINFO& ti, CWnd* pWnd, UINT_PTR nIDTool) const;
};

class ZOAFX_API CHeaderCtrl : public CWnd
{
    DECLARE_DYNAMIC(CHeaderCtrl)
public:
    CHeaderCtrl();
    virtual ~CHeaderCtrl();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetItemCount() const { return (int)::SendMessageW(m_hWnd, HDM_GETITEMCOUNT, 0, 0); }
    BOOL GetItem(int nPos, HDITEM* pHeaderItem) const
    { return (BOOL)::SendMessageW(m_hWnd, HDM_GETITEMW, nPos, (LPARAM)pHeaderItem); }
    BOOL SetItem(int nPos, HDITEM* pHeaderItem)
    { return (BOOL)::SendMessageW(m_hWnd, HDM_SETITEMW, nPos, (LPARAM)pHeaderItem); }
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const
    { return (BOOL)::SendMessageW(m_hWnd, HDM_GETITEMRECT, nIndex, (LPARAM)lpRect); }
    int OrderToIndex(int nOrder) const { return (int)::SendMessageW(m_hWnd, HDM_ORDERTOINDEX, nOrder, 0); }
    BOOL GetOrderArray(LPINT piArray, int iCount)
    { return (BOOL)::SendMessageW(m_hWnd, HDM_GETORDERARRAY, iCount, (LPARAM)piArray); }
    BOOL SetOrderArray(int iCount, LPINT piArray)
    { return (BOOL)::SendMessageW(m_hWnd, HDM_SETORDERARRAY, iCount, (LPARAM)piArray); }
    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* pImageList);
    int GetBitmapMargin() const { return (int)::SendMessageW(m_hWnd, HDM_GETBITMAPMARGIN, 0, 0); }
    int SetBitmapMargin(int nWidth) { return (int)::SendMessageW(m_hWnd, HDM_SETBITMAPMARGIN, nWidth, 0); }

    int InsertItem(int nPos, HDITEM* phdi) { return (int)::SendMessageW(m_hWnd, HDM_INSERTITEMW, nPos, (LPARAM)phdi); }
    BOOL DeleteItem(int nPos) { return (BOOL)::SendMessageW(m_hWnd, HDM_DELETEITEM, nPos, 0); }
    BOOL Layout(HDLAYOUT* pHeaderLayout) { return (BOOL)::SendMessageW(m_hWnd, HDM_LAYOUT, 0, (LPARAM)pHeaderLayout); }
    int HitTest(LPHDHITTESTINFO pHeaderHitTestInfo)
    { return (int)::SendMessageW(m_hWnd, HDM_HITTEST, 0, (LPARAM)pHeaderHitTestInfo); }
    int SetHotDivider(CPoint pt) { return (int)::SendMessageW(m_hWnd, HDM_SETHOTDIVIDER, TRUE, MAKELPARAM(pt.x, pt.y)); }
    int SetHotDivider(int nIndex) { return (int)::SendMessageW(m_hWnd, HDM_SETHOTDIVIDER, FALSE, nIndex); }

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
};

class ZOAFX_API CListCtrl : public CWnd
{
    DECLARE_DYNAMIC(CListCtrl)
public:
    CListCtrl();
    virtual ~CListCtrl();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // Colours
    COLORREF GetBkColor() const { return (COLORREF)::SendMessageW(m_hWnd, LVM_GETBKCOLOR, 0, 0); }
    BOOL SetBkColor(COLORREF cr) { return (BOOL)::SendMessageW(m_hWnd, LVM_SETBKCOLOR, 0, cr); }
    COLORREF GetTextColor() const { return (COLORREF)::SendMessageW(m_hWnd, LVM_GETTEXTCOLOR, 0, 0); }
    BOOL SetTextColor(COLORREF cr) { return (BOOL)::SendMessageW(m_hWnd, LVM_SETTEXTCOLOR, 0, cr); }
    COLORREF GetTextBkColor() const { return (COLORREF)::SendMessageW(m_hWnd, LVM_GETTEXTBKCOLOR, 0, 0); }
    BOOL SetTextBkColor(COLORREF cr) { return (BOOL)::SendMessageW(m_hWnd, LVM_SETTEXTBKCOLOR, 0, cr); }

    // Image lists, styles, view
    CImageList* GetImageList(int nImageList) const;
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);
    DWORD GetExtendedStyle() const { return (DWORD)::SendMessageW(m_hWnd, LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0); }
    DWORD SetExtendedStyle(DWORD dwNewStyle)
    { return (DWORD)::SendMessageW(m_hWnd, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, dwNewStyle); }
    DWORD GetView() const { return (DWORD)::SendMessageW(m_hWnd, LVM_GETVIEW, 0, 0); }
    int SetView(int iView) { return (int)::SendMessageW(m_hWnd, LVM_SETVIEW, iView, 0); }
    CHeaderCtrl* GetHeaderCtrl() const;
    CEdit* GetEditControl() const;

    // Columns
    int InsertColumn(int nCol, const LVCOLUMN* pColumn)
    { return (int)::SendMessageW(m_hWnd, LVM_INSERTCOLUMNW, nCol, (LPARAM)pColumn); }
    int InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat = LVCFMT_LEFT, int nWidth = -1,
                     int nSubItem = -1);
    BOOL DeleteColumn(int nCol) { return (BOOL)::SendMessageW(m_hWnd, LVM_DELETECOLUMN, nCol, 0); }
    BOOL GetColumn(int nCol, LVCOLUMN* pColumn) const
    { return (BOOL)::SendMessageW(m_hWnd, LVM_GETCOLUMNW, nCol, (LPARAM)pColumn); }
    BOOL SetColumn(int nCol, const LVCOLUMN* pColumn)
    { return (BOOL)::SendMessageW(m_hWnd, LVM_SETCOLUMNW, nCol, (LPARAM)pColumn); }
    int GetColumnWidth(int nCol) const { return (int)::SendMessageW(m_hWnd, LVM_GETCOLUMNWIDTH, nCol, 0); }
    BOOL SetColumnWidth(int nCol, int cx)
    { return (BOOL)::SendMessageW(m_hWnd, LVM_SETCOLUMNWIDTH, nCol, MAKELPARAM(cx, 0)); }
    BOOL GetColumnOrderArray(LPINT piArray, int iCount = -1);
    BOOL SetColumnOrderArray(int iCount, LPINT piArray)
    { return (BOOL)::SendMessageW(m_hWnd, LVM_SETCOLUMNORDERARRAY, iCount, (LPARAM)piArray); }

    // Items
    int GetItemCount() const { return (int)::SendMessageW(m_hWnd, LVM_GETITEMCOUNT, 0, 0); }
    void SetItemCount(int nItems) { ::SendMessageW(m_hWnd, LVM_SETITEMCOUNT, nItems, 0); }
    BOOL SetItemCountEx(int iCount, DWORD dwFlags = LVSICF_NOINVALIDATEALL)
    { return (BOOL)::SendMessageW(m_hWnd, LVM_SETITEMCOUNT, iCount, dwFlags); }
    int InsertItem(const LVITEM* pItem) { return (int)::SendMessageW(m_hWnd, LVM_INSERTITEMW, 0, (LPARAM)pItem); }
    int InsertItem(int nItem, LPCTSTR lpszItem);
    int InsertItem(int nItem, LPCTSTR lpszItem, int nImage);
    int InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask, int nImage,
                   LPARAM lParam);
    BOOL DeleteItem(int nItem) { return (BOOL)::SendMessageW(m_hWnd, LVM_DELETEITEM, nItem, 0); }
    BOOL DeleteAllItems() { return (BOOL)::SendMessageW(m_hWnd, LVM_DELETEALLITEMS, 0, 0); }
    BOOL GetItem(LVITEM* pItem) const { return (BOOL)::SendMessageW(m_hWnd, LVM_GETITEMW, 0, (LPARAM)pItem); }
    BOOL SetItem(const LVITEM* pItem) { return (BOOL)::SendMessageW(m_hWnd, LVM_SETITEMW, 0, (LPARAM)pItem); }
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                 UINT nStateMask, LPARAM lParam);
    CString GetItemText(int nItem, int nSubItem) const;
    int GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const;
    BOOL SetItemText(int nItem, int nSubItem, LPCTSTR lpszText);
    DWORD_PTR GetItemData(int nItem) const;
    BOOL SetItemData(int nItem, DWORD_PTR dwData);
    UINT GetItemState(int nItem, UINT nMask) const
    { return (UINT)::SendMessageW(m_hWnd, LVM_GETITEMSTATE, nItem, nMask); }
    BOOL SetItemState(int nItem, LVITEM* pItem)
    { return (BOOL)::SendMessageW(m_hWnd, LVM_SETITEMSTATE, nItem, (LPARAM)pItem); }
    BOOL SetItemState(int nItem, UINT nState, UINT nMask);
    UINT GetCallbackMask() const { return (UINT)::SendMessageW(m_hWnd, LVM_GETCALLBACKMASK, 0, 0); }
    BOOL SetCallbackMask(UINT nMask) { return (BOOL)::SendMessageW(m_hWnd, LVM_SETCALLBACKMASK, nMask, 0); }
    BOOL GetCheck(int nItem) const;
    BOOL SetCheck(int nItem, BOOL fCheck = TRUE);

    // Selection and navigation
    int GetNextItem(int nItem, int nFlags) const
    { return (int)::SendMessageW(m_hWnd, LVM_GETNEXTITEM, nItem, MAKELPARAM(nFlags, 0)); }
    POSITION GetFirstSelectedItemPosition() const;
    int GetNextSelectedItem(POSITION& pos) const;
    UINT GetSelectedCount() const { return (UINT)::SendMessageW(m_hWnd, LVM_GETSELECTEDCOUNT, 0, 0); }
    int GetSelectionMark() const { return (int)::SendMessageW(m_hWnd, LVM_GETSELECTIONMARK, 0, 0); }
    int SetSelectionMark(int iIndex) { return (int)::SendMessageW(m_hWnd, LVM_SETSELECTIONMARK, 0, iIndex); }
    int GetHotItem() const { return (int)::SendMessageW(m_hWnd, LVM_GETHOTITEM, 0, 0); }
    int SetHotItem(int iIndex) { return (int)::SendMessageW(m_hWnd, LVM_SETHOTITEM, iIndex, 0); }
    int GetTopIndex() const { return (int)::SendMessageW(m_hWnd, LVM_GETTOPINDEX, 0, 0); }
    int GetCountPerPage() const { return (int)::SendMessageW(m_hWnd, LVM_GETCOUNTPERPAGE, 0, 0); }
    int FindItem(LVFINDINFO* pFindInfo, int nStart = -1) const
    { return (int)::SendMessageW(m_hWnd, LVM_FINDITEMW, nStart, (LPARAM)pFindInfo); }

    // Geometry and hit-testing
    BOOL GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const;
    BOOL GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref);
    BOOL GetItemPosition(int nItem, LPPOINT lpPoint) const
    { return (BOOL)::SendMessageW(m_hWnd, LVM_GETITEMPOSITION, nItem, (LPARAM)lpPoint); }
    BOOL SetItemPosition(int nItem, POINT pt)
    { return (BOOL)::SendMessageW(m_hWnd, LVM_SETITEMPOSITION32, nItem, (LPARAM)&pt); }
    BOOL GetViewRect(LPRECT lpRect) const { return (BOOL)::SendMessageW(m_hWnd, LVM_GETVIEWRECT, 0, (LPARAM)lpRect); }
    BOOL GetOrigin(LPPOINT lpPoint) const { return (BOOL)::SendMessageW(m_hWnd, LVM_GETORIGIN, 0, (LPARAM)lpPoint); }
    int GetStringWidth(LPCTSTR lpsz) const
    { return (int)::SendMessageW(m_hWnd, LVM_GETSTRINGWIDTHW, 0, (LPARAM)lpsz); }
    int HitTest(LVHITTESTINFO* pHitTestInfo) const
    { return (int)::SendMessageW(m_hWnd, LVM_HITTEST, 0, (LPARAM)pHitTestInfo); }
    int HitTest(CPoint pt, UINT* pFlags = NULL) const;
    int SubItemHitTest(LPLVHITTESTINFO pInfo)
    { return (int)::SendMessageW(m_hWnd, LVM_SUBITEMHITTEST, 0, (LPARAM)pInfo); }

    // Operations
    BOOL EnsureVisible(int nItem, BOOL bPartialOK)
    { return (BOOL)::SendMessageW(m_hWnd, LVM_ENSUREVISIBLE, nItem, MAKELPARAM(bPartialOK, 0)); }
    BOOL Scroll(CSize size) { return (BOOL)::SendMessageW(m_hWnd, LVM_SCROLL, size.cx, size.cy); }
    BOOL RedrawItems(int nFirst, int nLast) { return (BOOL)::SendMessageW(m_hWnd, LVM_REDRAWITEMS, nFirst, nLast); }
    BOOL Update(int nItem) { return (BOOL)::SendMessageW(m_hWnd, LVM_UPDATE, nItem, 0); }
    BOOL Arrange(UINT nCode) { return (BOOL)::SendMessageW(m_hWnd, LVM_ARRANGE, nCode, 0); }
    CEdit* EditLabel(int nItem);
    void CancelEditLabel() { ::SendMessageW(m_hWnd, LVM_CANCELEDITLABEL, 0, 0); }
    BOOL SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData)
    { return (BOOL)::SendMessageW(m_hWnd, LVM_SORTITEMS, dwData, (LPARAM)pfnCompare); }
    BOOL SortItemsEx(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData)
    { return (BOOL)::SendMessageW(m_hWnd, LVM_SORTITEMSEX, dwData, (LPARAM)pfnCompare); }

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
};

class ZOAFX_API CSliderCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSliderCtrl)
public:
    CSliderCtrl();
    virtual ~CSliderCtrl();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetLineSize() const { return (int)::SendMessageW(m_hWnd, TBM_GETLINESIZE, 0, 0); }
    int SetLineSize(int nSize) { return (int)::SendMessageW(m_hWnd, TBM_SETLINESIZE, 0, nSize); }
    int GetPageSize() const { return (int)::SendMessageW(m_hWnd, TBM_GETPAGESIZE, 0, 0); }
    int SetPageSize(int nSize) { return (int)::SendMessageW(m_hWnd, TBM_SETPAGESIZE, 0, nSize); }
    int GetRangeMax() const { return (int)::SendMessageW(m_hWnd, TBM_GETRANGEMAX, 0, 0); }
    int GetRangeMin() const { return (int)::SendMessageW(m_hWnd, TBM_GETRANGEMIN, 0, 0); }
    void GetRange(int& nMin, int& nMax) const { nMin = GetRangeMin(); nMax = GetRangeMax(); }
    void SetRangeMin(int nMin, BOOL bRedraw = FALSE) { ::SendMessageW(m_hWnd, TBM_SETRANGEMIN, bRedraw, nMin); }
    void SetRangeMax(int nMax, BOOL bRedraw = FALSE) { ::SendMessageW(m_hWnd, TBM_SETRANGEMAX, bRedraw, nMax); }
    void SetRange(int nMin, int nMax, BOOL bRedraw = FALSE) { SetRangeMin(nMin, FALSE); SetRangeMax(nMax, bRedraw); }
    void GetSelection(int& nMin, int& nMax) const;
    void SetSelection(int nMin, int nMax);
    void ClearSel(BOOL bRedraw = FALSE) { ::SendMessageW(m_hWnd, TBM_CLEARSEL, bRedraw, 0); }
    void GetChannelRect(LPRECT lprc) const { ::SendMessageW(m_hWnd, TBM_GETCHANNELRECT, 0, (LPARAM)lprc); }
    void GetThumbRect(LPRECT lprc) const { ::SendMessageW(m_hWnd, TBM_GETTHUMBRECT, 0, (LPARAM)lprc); }
    int GetThumbLength() const { return (int)::SendMessageW(m_hWnd, TBM_GETTHUMBLENGTH, 0, 0); }
    void SetThumbLength(int nLength) { ::SendMessageW(m_hWnd, TBM_SETTHUMBLENGTH, nLength, 0); }
    int GetPos() const { return (int)::SendMessageW(m_hWnd, TBM_GETPOS, 0, 0); }
    void SetPos(int nPos) { ::SendMessageW(m_hWnd, TBM_SETPOS, TRUE, nPos); }
    void VerifyPos();
    UINT GetNumTics() const { return (UINT)::SendMessageW(m_hWnd, TBM_GETNUMTICS, 0, 0); }
    DWORD* GetTicArray() const { return (DWORD*)::SendMessageW(m_hWnd, TBM_GETPTICS, 0, 0); }
    int GetTic(int nTic) const { return (int)::SendMessageW(m_hWnd, TBM_GETTIC, nTic, 0); }
    int GetTicPos(int nTic) const { return (int)::SendMessageW(m_hWnd, TBM_GETTICPOS, nTic, 0); }
    BOOL SetTic(int nTic) { return (BOOL)::SendMessageW(m_hWnd, TBM_SETTIC, 0, nTic); }
    void SetTicFreq(int nFreq) { ::SendMessageW(m_hWnd, TBM_SETTICFREQ, nFreq, 0); }
    void ClearTics(BOOL bRedraw = FALSE) { ::SendMessageW(m_hWnd, TBM_CLEARTICS, bRedraw, 0); }
    CWnd* GetBuddy(BOOL fLocation = TRUE) const;
    CWnd* SetBuddy(CWnd* pWndBuddy, BOOL fLocation = TRUE);
    int SetTipSide(int nLocation) { return (int)::SendMessageW(m_hWnd, TBM_SETTIPSIDE, nLocation, 0); }
};

class ZOAFX_API CProgressCtrl : public CWnd
{
    DECLARE_DYNAMIC(CProgressCtrl)
public:
    CProgressCtrl();
    virtual ~CProgressCtrl();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    void SetRange(short nLower, short nUpper) { ::SendMessageW(m_hWnd, PBM_SETRANGE, 0, MAKELPARAM(nLower, nUpper)); }
    void SetRange32(int nLower, int nUpper) { ::SendMessageW(m_hWnd, PBM_SETRANGE32, nLower, nUpper); }
    void GetRange(int& nLower, int& nUpper);
    int GetPos() { return (int)::SendMessageW(m_hWnd, PBM_GETPOS, 0, 0); }
    int SetPos(int nPos) { return (int)::SendMessageW(m_hWnd, PBM_SETPOS, nPos, 0); }
    int OffsetPos(int nPos) { return (int)::SendMessageW(m_hWnd, PBM_DELTAPOS, nPos, 0); }
    int SetStep(int nStep) { return (int)::SendMessageW(m_hWnd, PBM_SETSTEP, nStep, 0); }
    int GetStep() const { return (int)::SendMessageW(m_hWnd, PBM_GETSTEP, 0, 0); }
    int StepIt() { return (int)::SendMessageW(m_hWnd, PBM_STEPIT, 0, 0); }
    COLORREF SetBkColor(COLORREF clrNew) { return (COLORREF)::SendMessageW(m_hWnd, PBM_SETBKCOLOR, 0, clrNew); }
    COLORREF GetBkColor() const { return (COLORREF)::SendMessageW(m_hWnd, PBM_GETBKCOLOR, 0, 0); }
    COLORREF SetBarColor(COLORREF clrBar) { return (COLORREF)::SendMessageW(m_hWnd, PBM_SETBARCOLOR, 0, clrBar); }
    COLORREF GetBarColor() const { return (COLORREF)::SendMessageW(m_hWnd, PBM_GETBARCOLOR, 0, 0); }
    BOOL SetMarquee(BOOL fMarqueeMode, int nInterval)
    { return (BOOL)::SendMessageW(m_hWnd, PBM_SETMARQUEE, fMarqueeMode, nInterval); }
    int SetState(int iState) { return (int)::SendMessageW(m_hWnd, PBM_SETSTATE, iState, 0); }
    int GetState() const { return (int)::SendMessageW(m_hWnd, PBM_GETSTATE, 0, 0); }
};

class ZOAFX_API CSpinButtonCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSpinButtonCtrl)
public:
    CSpinButtonCtrl();
    virtual ~CSpinButtonCtrl();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL SetAccel(int nAccel, UDACCEL* pAccel) { return (BOOL)::SendMessageW(m_hWnd, UDM_SETACCEL, nAccel, (LPARAM)pAccel); }
    UINT GetAccel(int nAccel, UDACCEL* pAccel) const
    { return (UINT)::SendMessageW(m_hWnd, UDM_GETACCEL, nAccel, (LPARAM)pAccel); }
    int SetBase(int nBase) { return (int)::SendMessageW(m_hWnd, UDM_SETBASE, nBase, 0); }
    UINT GetBase() const { return (UINT)::SendMessageW(m_hWnd, UDM_GETBASE, 0, 0); }
    CWnd* SetBuddy(CWnd* pWndBuddy);
    CWnd* GetBuddy() const;
    // Low word: the position; high word non-zero when the buddy's text is not a valid number.
    int GetPos() const { return (int)::SendMessageW(m_hWnd, UDM_GETPOS, 0, 0); }
    int SetPos(int nPos) { return (int)(short)::SendMessageW(m_hWnd, UDM_SETPOS, 0, MAKELPARAM(nPos, 0)); }
    int GetPos32(LPBOOL lpbError = NULL) const { return (int)::SendMessageW(m_hWnd, UDM_GETPOS32, 0, (LPARAM)lpbError); }
    int SetPos32(int nPos) { return (int)::SendMessageW(m_hWnd, UDM_SETPOS32, 0, nPos); }
    DWORD GetRange() const { return (DWORD)::SendMessageW(m_hWnd, UDM_GETRANGE, 0, 0); }
    void GetRange(int& lower, int& upper) const;
    void SetRange(short nLower, short nUpper) { ::SendMessageW(m_hWnd, UDM_SETRANGE, 0, MAKELPARAM(nUpper, nLower)); }
    void GetRange32(int& lower, int& upper) const
    { ::SendMessageW(m_hWnd, UDM_GETRANGE32, (WPARAM)&lower, (LPARAM)&upper); }
    void SetRange32(int nLower, int nUpper) { ::SendMessageW(m_hWnd, UDM_SETRANGE32, nLower, nUpper); }
};

class ZOAFX_API CTabCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTabCtrl)
public:
    CTabCtrl();
    virtual ~CTabCtrl();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* pImageList);
    int GetItemCount() const { return (int)::SendMessageW(m_hWnd, TCM_GETITEMCOUNT, 0, 0); }
    BOOL GetItem(int nItem, TCITEM* pTabCtrlItem) const
    { return (BOOL)::SendMessageW(m_hWnd, TCM_GETITEMW, nItem, (LPARAM)pTabCtrlItem); }
    BOOL SetItem(int nItem, TCITEM* pTabCtrlItem)
    { return (BOOL)::SendMessageW(m_hWnd, TCM_SETITEMW, nItem, (LPARAM)pTabCtrlItem); }
    BOOL SetItemExtra(int nBytes) { return (BOOL)::SendMessageW(m_hWnd, TCM_SETITEMEXTRA, nBytes, 0); }
    BOOL GetItemRect(int nItem, LPRECT lpRect) const
    { return (BOOL)::SendMessageW(m_hWnd, TCM_GETITEMRECT, nItem, (LPARAM)lpRect); }
    int GetCurSel() const { return (int)::SendMessageW(m_hWnd, TCM_GETCURSEL, 0, 0); }
    int SetCurSel(int nItem) { return (int)::SendMessageW(m_hWnd, TCM_SETCURSEL, nItem, 0); }
    void SetCurFocus(int nItem) { ::SendMessageW(m_hWnd, TCM_SETCURFOCUS, nItem, 0); }
    int GetCurFocus() const { return (int)::SendMessageW(m_hWnd, TCM_GETCURFOCUS, 0, 0); }
    CSize SetItemSize(CSize size);
    void SetPadding(CSize size) { ::SendMessageW(m_hWnd, TCM_SETPADDING, 0, MAKELPARAM(size.cx, size.cy)); }
    int GetRowCount() const { return (int)::SendMessageW(m_hWnd, TCM_GETROWCOUNT, 0, 0); }
    int SetMinTabWidth(int cx) { return (int)::SendMessageW(m_hWnd, TCM_SETMINTABWIDTH, 0, cx); }
    DWORD GetExtendedStyle() { return (DWORD)::SendMessageW(m_hWnd, TCM_GETEXTENDEDSTYLE, 0, 0); }
    DWORD SetExtendedStyle(DWORD dwNewStyle, DWORD dwExMask = 0)
    { return (DWORD)::SendMessageW(m_hWnd, TCM_SETEXTENDEDSTYLE, dwExMask, dwNewStyle); }
    DWORD GetItemState(int nItem, DWORD dwMask) const;
    BOOL SetItemState(int nItem, DWORD dwMask, DWORD dwState);

    LONG InsertItem(int nItem, TCITEM* pTabCtrlItem)
    { return (LONG)::SendMessageW(m_hWnd, TCM_INSERTITEMW, nItem, (LPARAM)pTabCtrlItem); }
    LONG InsertItem(int nItem, LPCTSTR lpszItem);
    LONG InsertItem(int nItem, LPCTSTR lpszItem, int nImage);
    LONG InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam);
    LONG InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam, DWORD dwState,
                    DWORD dwStateMask);
    BOOL DeleteItem(int nItem) { return (BOOL)::SendMessageW(m_hWnd, TCM_DELETEITEM, nItem, 0); }
    BOOL DeleteAllItems() { return (BOOL)::SendMessageW(m_hWnd, TCM_DELETEALLITEMS, 0, 0); }
    void AdjustRect(BOOL bLarger, LPRECT lpRect) { ::SendMessageW(m_hWnd, TCM_ADJUSTRECT, bLarger, (LPARAM)lpRect); }
    void RemoveImage(int nImage) { ::SendMessageW(m_hWnd, TCM_REMOVEIMAGE, nImage, 0); }
    int HitTest(TCHITTESTINFO* pHitTestInfo) const
    { return (int)::SendMessageW(m_hWnd, TCM_HITTEST, 0, (LPARAM)pHitTestInfo); }
    void DeselectAll(BOOL fExcludeFocus) { ::SendMessageW(m_hWnd, TCM_DESELECTALL, fExcludeFocus, 0); }
    BOOL HighlightItem(int idItem, BOOL fHighlight = TRUE)
    { return (BOOL)::SendMessageW(m_hWnd, TCM_HIGHLIGHTITEM, idItem, MAKELPARAM(fHighlight, 0)); }

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
};

class ZOAFX_API CTreeCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTreeCtrl)
public:
    CTreeCtrl();
    virtual ~CTreeCtrl();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    UINT GetCount() const { return (UINT)::SendMessageW(m_hWnd, TVM_GETCOUNT, 0, 0); }
    UINT GetIndent() const { return (UINT)::SendMessageW(m_hWnd, TVM_GETINDENT, 0, 0); }
    void SetIndent(UINT nIndent) { ::SendMessageW(m_hWnd, TVM_SETINDENT, nIndent, 0); }
    CImageList* GetImageList(int nImageList) const;
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);
    UINT GetVisibleCount() const { return (UINT)::SendMessageW(m_hWnd, TVM_GETVISIBLECOUNT, 0, 0); }
    SHORT GetItemHeight() const { return (SHORT)::SendMessageW(m_hWnd, TVM_GETITEMHEIGHT, 0, 0); }
    SHORT SetItemHeight(SHORT cyHeight) { return (SHORT)::SendMessageW(m_hWnd, TVM_SETITEMHEIGHT, cyHeight, 0); }
    COLORREF GetBkColor() const { return (COLORREF)::SendMessageW(m_hWnd, TVM_GETBKCOLOR, 0, 0); }
    COLORREF SetBkColor(COLORREF clr) { return (COLORREF)::SendMessageW(m_hWnd, TVM_SETBKCOLOR, 0, clr); }
    COLORREF GetTextColor() const { return (COLORREF)::SendMessageW(m_hWnd, TVM_GETTEXTCOLOR, 0, 0); }
    COLORREF SetTextColor(COLORREF clr) { return (COLORREF)::SendMessageW(m_hWnd, TVM_SETTEXTCOLOR, 0, clr); }
    CEdit* GetEditControl() const;

    // Navigation
    HTREEITEM GetNextItem(HTREEITEM hItem, UINT nCode) const
    { return (HTREEITEM)::SendMessageW(m_hWnd, TVM_GETNEXTITEM, nCode, (LPARAM)hItem); }
    HTREEITEM GetChildItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_CHILD); }
    HTREEITEM GetNextSiblingItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_NEXT); }
    HTREEITEM GetPrevSiblingItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PREVIOUS); }
    HTREEITEM GetParentItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PARENT); }
    HTREEITEM GetFirstVisibleItem() const { return GetNextItem(NULL, TVGN_FIRSTVISIBLE); }
    HTREEITEM GetNextVisibleItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_NEXTVISIBLE); }
    HTREEITEM GetPrevVisibleItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PREVIOUSVISIBLE); }
    HTREEITEM GetSelectedItem() const { return GetNextItem(NULL, TVGN_CARET); }
    HTREEITEM GetDropHilightItem() const { return GetNextItem(NULL, TVGN_DROPHILITE); }
    HTREEITEM GetRootItem() const { return GetNextItem(NULL, TVGN_ROOT); }
    BOOL ItemHasChildren(HTREEITEM hItem) const;

    // Items
    BOOL GetItem(TVITEM* pItem) const { return (BOOL)::SendMessageW(m_hWnd, TVM_GETITEMW, 0, (LPARAM)pItem); }
    BOOL SetItem(TVITEM* pItem) { return (BOOL)::SendMessageW(m_hWnd, TVM_SETITEMW, 0, (LPARAM)pItem); }
    CString GetItemText(HTREEITEM hItem) const;
    BOOL SetItemText(HTREEITEM hItem, LPCTSTR lpszItem);
    BOOL GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const;
    BOOL SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage);
    UINT GetItemState(HTREEITEM hItem, UINT nStateMask) const
    { return (UINT)::SendMessageW(m_hWnd, TVM_GETITEMSTATE, (WPARAM)hItem, nStateMask); }
    BOOL SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask);
    DWORD_PTR GetItemData(HTREEITEM hItem) const;
    BOOL SetItemData(HTREEITEM hItem, DWORD_PTR dwData);
    BOOL GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const;
    BOOL GetCheck(HTREEITEM hItem) const;
    BOOL SetCheck(HTREEITEM hItem, BOOL fCheck = TRUE);
    HTREEITEM InsertItem(LPTVINSERTSTRUCT lpInsertStruct)
    { return (HTREEITEM)::SendMessageW(m_hWnd, TVM_INSERTITEMW, 0, (LPARAM)lpInsertStruct); }
    HTREEITEM InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                         UINT nStateMask, LPARAM lParam, HTREEITEM hParent, HTREEITEM hInsertAfter);
    HTREEITEM InsertItem(LPCTSTR lpszItem, HTREEITEM hParent = TVI_ROOT, HTREEITEM hInsertAfter = TVI_LAST);
    HTREEITEM InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent = TVI_ROOT,
                         HTREEITEM hInsertAfter = TVI_LAST);
    BOOL DeleteItem(HTREEITEM hItem) { return (BOOL)::SendMessageW(m_hWnd, TVM_DELETEITEM, 0, (LPARAM)hItem); }
    BOOL DeleteAllItems() { return (BOOL)::SendMessageW(m_hWnd, TVM_DELETEITEM, 0, (LPARAM)TVI_ROOT); }

    // Operations
    BOOL Expand(HTREEITEM hItem, UINT nCode) { return (BOOL)::SendMessageW(m_hWnd, TVM_EXPAND, nCode, (LPARAM)hItem); }
    BOOL Select(HTREEITEM hItem, UINT nCode) { return (BOOL)::SendMessageW(m_hWnd, TVM_SELECTITEM, nCode, (LPARAM)hItem); }
    BOOL SelectItem(HTREEITEM hItem) { return Select(hItem, TVGN_CARET); }
    BOOL SelectDropTarget(HTREEITEM hItem) { return Select(hItem, TVGN_DROPHILITE); }
    BOOL SelectSetFirstVisible(HTREEITEM hItem) { return Select(hItem, TVGN_FIRSTVISIBLE); }
    BOOL EnsureVisible(HTREEITEM hItem) { return (BOOL)::SendMessageW(m_hWnd, TVM_ENSUREVISIBLE, 0, (LPARAM)hItem); }
    BOOL SortChildren(HTREEITEM hItem) { return (BOOL)::SendMessageW(m_hWnd, TVM_SORTCHILDREN, 0, (LPARAM)hItem); }
    BOOL SortChildrenCB(LPTVSORTCB pSort) { return (BOOL)::SendMessageW(m_hWnd, TVM_SORTCHILDRENCB, 0, (LPARAM)pSort); }
    CEdit* EditLabel(HTREEITEM hItem);
    HTREEITEM HitTest(CPoint pt, UINT* pFlags = NULL) const;
    HTREEITEM HitTest(TVHITTESTINFO* pHitTestInfo) const
    { return (HTREEITEM)::SendMessageW(m_hWnd, TVM_HITTEST, 0, (LPARAM)pHitTestInfo); }
};

class ZOAFX_API CToolBarCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolBarCtrl)
public:
    CToolBarCtrl();
    virtual ~CToolBarCtrl();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetButtonCount() const { return (int)::SendMessageW(m_hWnd, TB_BUTTONCOUNT, 0, 0); }
    BOOL GetButton(int nIndex, LPTBBUTTON lpButton) const
    { return (BOOL)::SendMessageW(m_hWnd, TB_GETBUTTON, nIndex, (LPARAM)lpButton); }
    UINT CommandToIndex(UINT nID) const { return (UINT)::SendMessageW(m_hWnd, TB_COMMANDTOINDEX, nID, 0); }
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const
    { return (BOOL)::SendMessageW(m_hWnd, TB_GETITEMRECT, nIndex, (LPARAM)lpRect); }
    int GetButtonInfo(int nID, TBBUTTONINFO* ptbbi) const;
    BOOL SetButtonInfo(int nID, TBBUTTONINFO* ptbbi);
    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* pImageList);
    DWORD GetButtonSize() const { return (DWORD)::SendMessageW(m_hWnd, TB_GETBUTTONSIZE, 0, 0); }
    BOOL SetButtonSize(CSize size) { return (BOOL)::SendMessageW(m_hWnd, TB_SETBUTTONSIZE, 0, MAKELPARAM(size.cx, size.cy)); }
    BOOL SetBitmapSize(CSize size) { return (BOOL)::SendMessageW(m_hWnd, TB_SETBITMAPSIZE, 0, MAKELPARAM(size.cx, size.cy)); }
    void SetButtonStructSize(int nSize) { ::SendMessageW(m_hWnd, TB_BUTTONSTRUCTSIZE, nSize, 0); }
    int GetState(int nID) const { return (int)::SendMessageW(m_hWnd, TB_GETSTATE, nID, 0); }
    BOOL SetState(int nID, UINT nState) { return (BOOL)::SendMessageW(m_hWnd, TB_SETSTATE, nID, MAKELPARAM(nState, 0)); }
    BOOL IsButtonEnabled(int nID) const { return (BOOL)::SendMessageW(m_hWnd, TB_ISBUTTONENABLED, nID, 0); }
    BOOL IsButtonChecked(int nID) const { return (BOOL)::SendMessageW(m_hWnd, TB_ISBUTTONCHECKED, nID, 0); }
    BOOL EnableButton(int nID, BOOL bEnable = TRUE)
    { return (BOOL)::SendMessageW(m_hWnd, TB_ENABLEBUTTON, nID, MAKELPARAM(bEnable, 0)); }
    BOOL CheckButton(int nID, BOOL bCheck = TRUE)
    { return (BOOL)::SendMessageW(m_hWnd, TB_CHECKBUTTON, nID, MAKELPARAM(bCheck, 0)); }
    int AddBitmap(int nNumButtons, UINT nBitmapID);
    int AddBitmap(int nNumButtons, CBitmap* pBitmap);
    BOOL AddButtons(int nNumButtons, LPTBBUTTON lpButtons)
    { return (BOOL)::SendMessageW(m_hWnd, TB_ADDBUTTONSW, nNumButtons, (LPARAM)lpButtons); }
    BOOL DeleteButton(int nIndex) { return (BOOL)::SendMessageW(m_hWnd, TB_DELETEBUTTON, nIndex, 0); }
    void AutoSize() { ::SendMessageW(m_hWnd, TB_AUTOSIZE, 0, 0); }
    int HitTest(LPPOINT ppt) const { return (int)::SendMessageW(m_hWnd, TB_HITTEST, 0, (LPARAM)ppt); }
};
