// The standard Windows controls of <afxwin.h>: CButton, CStatic, CEdit, CComboBox, CListBox
// and CScrollBar. Each wraps its window class and forwards to the control's messages.
#pragma once
#include <afx.h>
#include <zoafx/wnd.h>

class ZOAFX_API CStatic : public CWnd
{
    DECLARE_DYNAMIC(CStatic)
public:
    CStatic();
    virtual ~CStatic();
    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID = 0xffff);

    HICON SetIcon(HICON hIcon) { return (HICON)::SendMessageW(m_hWnd, STM_SETICON, (WPARAM)hIcon, 0); }
    HICON GetIcon() const { return (HICON)::SendMessageW(m_hWnd, STM_GETICON, 0, 0); }
    HBITMAP SetBitmap(HBITMAP hBitmap)
    { return (HBITMAP)::SendMessageW(m_hWnd, STM_SETIMAGE, IMAGE_BITMAP, (LPARAM)hBitmap); }
    HBITMAP GetBitmap() const { return (HBITMAP)::SendMessageW(m_hWnd, STM_GETIMAGE, IMAGE_BITMAP, 0); }
    HCURSOR SetCursor(HCURSOR hCursor)
    { return (HCURSOR)::SendMessageW(m_hWnd, STM_SETIMAGE, IMAGE_CURSOR, (LPARAM)hCursor); }
    HCURSOR GetCursor() { return (HCURSOR)::SendMessageW(m_hWnd, STM_GETIMAGE, IMAGE_CURSOR, 0); }
    HENHMETAFILE SetEnhMetaFile(HENHMETAFILE hMetaFile)
    { return (HENHMETAFILE)::SendMessageW(m_hWnd, STM_SETIMAGE, IMAGE_ENHMETAFILE, (LPARAM)hMetaFile); }
    HENHMETAFILE GetEnhMetaFile() const
    { return (HENHMETAFILE)::SendMessageW(m_hWnd, STM_GETIMAGE, IMAGE_ENHMETAFILE, 0); }

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
protected:
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
};

class ZOAFX_API CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)
public:
    CButton();
    virtual ~CButton();
    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    UINT GetState() const { return (UINT)::SendMessageW(m_hWnd, BM_GETSTATE, 0, 0); }
    void SetState(BOOL bHighlight) { ::SendMessageW(m_hWnd, BM_SETSTATE, bHighlight, 0); }
    int GetCheck() const { return (int)::SendMessageW(m_hWnd, BM_GETCHECK, 0, 0); }
    void SetCheck(int nCheck) { ::SendMessageW(m_hWnd, BM_SETCHECK, nCheck, 0); }
    // Only the BS_ part of the window style.
    UINT GetButtonStyle() const { return (UINT)::GetWindowLongW(m_hWnd, GWL_STYLE) & 0xFFFF; }
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE)
    { ::SendMessageW(m_hWnd, BM_SETSTYLE, nStyle, (LPARAM)bRedraw); }
    HICON SetIcon(HICON hIcon) { return (HICON)::SendMessageW(m_hWnd, BM_SETIMAGE, IMAGE_ICON, (LPARAM)hIcon); }
    HICON GetIcon() const { return (HICON)::SendMessageW(m_hWnd, BM_GETIMAGE, IMAGE_ICON, 0); }
    HBITMAP SetBitmap(HBITMAP hBitmap)
    { return (HBITMAP)::SendMessageW(m_hWnd, BM_SETIMAGE, IMAGE_BITMAP, (LPARAM)hBitmap); }
    HBITMAP GetBitmap() const { return (HBITMAP)::SendMessageW(m_hWnd, BM_GETIMAGE, IMAGE_BITMAP, 0); }
    HCURSOR SetCursor(HCURSOR hCursor)
    { return (HCURSOR)::SendMessageW(m_hWnd, BM_SETIMAGE, IMAGE_CURSOR, (LPARAM)hCursor); }
    HCURSOR GetCursor() { return (HCURSOR)::SendMessageW(m_hWnd, BM_GETIMAGE, IMAGE_CURSOR, 0); }
    BOOL GetIdealSize(SIZE* psize) { return (BOOL)::SendMessageW(m_hWnd, BCM_GETIDEALSIZE, 0, (LPARAM)psize); }
    BOOL SetImageList(PBUTTON_IMAGELIST pbuttonImagelist)
    { return (BOOL)::SendMessageW(m_hWnd, BCM_SETIMAGELIST, 0, (LPARAM)pbuttonImagelist); }
    BOOL GetImageList(PBUTTON_IMAGELIST pbuttonImagelist)
    { return (BOOL)::SendMessageW(m_hWnd, BCM_GETIMAGELIST, 0, (LPARAM)pbuttonImagelist); }
    BOOL SetTextMargin(RECT* pmargin) { return (BOOL)::SendMessageW(m_hWnd, BCM_SETTEXTMARGIN, 0, (LPARAM)pmargin); }
    BOOL GetTextMargin(RECT* pmargin)
    { return (BOOL)::SendMessageW(m_hWnd, BCM_GETTEXTMARGIN, 0, (LPARAM)pmargin); }

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
protected:
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
};

class ZOAFX_API CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)
public:
    CEdit();
    virtual ~CEdit();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL CanUndo() const { return (BOOL)::SendMessageW(m_hWnd, EM_CANUNDO, 0, 0); }
    int GetLineCount() const { return (int)::SendMessageW(m_hWnd, EM_GETLINECOUNT, 0, 0); }
    BOOL GetModify() const { return (BOOL)::SendMessageW(m_hWnd, EM_GETMODIFY, 0, 0); }
    void SetModify(BOOL bModified = TRUE) { ::SendMessageW(m_hWnd, EM_SETMODIFY, bModified, 0); }
    void GetRect(LPRECT lpRect) const { ::SendMessageW(m_hWnd, EM_GETRECT, 0, (LPARAM)lpRect); }
    DWORD GetSel() const { return (DWORD)::SendMessageW(m_hWnd, EM_GETSEL, 0, 0); }
    void GetSel(int& nStartChar, int& nEndChar) const;
    HLOCAL GetHandle() const { return (HLOCAL)::SendMessageW(m_hWnd, EM_GETHANDLE, 0, 0); }
    void SetHandle(HLOCAL hBuffer) { ::SendMessageW(m_hWnd, EM_SETHANDLE, (WPARAM)hBuffer, 0); }
    void SetMargins(UINT nLeft, UINT nRight)
    { ::SendMessageW(m_hWnd, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELONG(nLeft, nRight)); }
    DWORD GetMargins() const { return (DWORD)::SendMessageW(m_hWnd, EM_GETMARGINS, 0, 0); }
    void SetLimitText(UINT nMax) { ::SendMessageW(m_hWnd, EM_SETLIMITTEXT, nMax, 0); }
    UINT GetLimitText() const { return (UINT)::SendMessageW(m_hWnd, EM_GETLIMITTEXT, 0, 0); }
    CPoint PosFromChar(UINT nChar) const { return CPoint((LPARAM)::SendMessageW(m_hWnd, EM_POSFROMCHAR, nChar, 0)); }
    int CharFromPos(CPoint pt) const
    { return (int)::SendMessageW(m_hWnd, EM_CHARFROMPOS, 0, MAKELPARAM(pt.x, pt.y)); }
    // The first WORD of lpszBuffer holds the buffer size in characters.
    int GetLine(int nIndex, LPTSTR lpszBuffer) const
    { return (int)::SendMessageW(m_hWnd, EM_GETLINE, nIndex, (LPARAM)lpszBuffer); }
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;
    int GetFirstVisibleLine() const { return (int)::SendMessageW(m_hWnd, EM_GETFIRSTVISIBLELINE, 0, 0); }
    TCHAR GetPasswordChar() const { return (TCHAR)::SendMessageW(m_hWnd, EM_GETPASSWORDCHAR, 0, 0); }

    void EmptyUndoBuffer() { ::SendMessageW(m_hWnd, EM_EMPTYUNDOBUFFER, 0, 0); }
    BOOL FmtLines(BOOL bAddEOL) { return (BOOL)::SendMessageW(m_hWnd, EM_FMTLINES, bAddEOL, 0); }
    void LimitText(int nChars = 0) { ::SendMessageW(m_hWnd, EM_LIMITTEXT, nChars, 0); }
    int LineFromChar(int nIndex = -1) const { return (int)::SendMessageW(m_hWnd, EM_LINEFROMCHAR, nIndex, 0); }
    int LineIndex(int nLine = -1) const { return (int)::SendMessageW(m_hWnd, EM_LINEINDEX, nLine, 0); }
    int LineLength(int nLine = -1) const { return (int)::SendMessageW(m_hWnd, EM_LINELENGTH, nLine, 0); }
    void LineScroll(int nLines, int nChars = 0) { ::SendMessageW(m_hWnd, EM_LINESCROLL, nChars, nLines); }
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE)
    { ::SendMessageW(m_hWnd, EM_REPLACESEL, bCanUndo, (LPARAM)lpszNewText); }
    void SetPasswordChar(TCHAR ch) { ::SendMessageW(m_hWnd, EM_SETPASSWORDCHAR, ch, 0); }
    void SetRect(LPCRECT lpRect) { ::SendMessageW(m_hWnd, EM_SETRECT, 0, (LPARAM)lpRect); }
    void SetRectNP(LPCRECT lpRect) { ::SendMessageW(m_hWnd, EM_SETRECTNP, 0, (LPARAM)lpRect); }
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE);
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops)
    { return (BOOL)::SendMessageW(m_hWnd, EM_SETTABSTOPS, nTabStops, (LPARAM)rgTabStops); }
    void SetTabStops() { ::SendMessageW(m_hWnd, EM_SETTABSTOPS, 0, 0); }
    BOOL SetTabStops(const int& cxEachStop)
    { return (BOOL)::SendMessageW(m_hWnd, EM_SETTABSTOPS, 1, (LPARAM)&cxEachStop); }
    BOOL Undo() { return (BOOL)::SendMessageW(m_hWnd, EM_UNDO, 0, 0); }
    void Clear() { ::SendMessageW(m_hWnd, WM_CLEAR, 0, 0); }
    void Copy() { ::SendMessageW(m_hWnd, WM_COPY, 0, 0); }
    void Cut() { ::SendMessageW(m_hWnd, WM_CUT, 0, 0); }
    void Paste() { ::SendMessageW(m_hWnd, WM_PASTE, 0, 0); }
    BOOL SetReadOnly(BOOL bReadOnly = TRUE) { return (BOOL)::SendMessageW(m_hWnd, EM_SETREADONLY, bReadOnly, 0); }
    BOOL SetCueBanner(LPCWSTR lpszText, BOOL fDrawIfFocused = FALSE)
    { return (BOOL)::SendMessageW(m_hWnd, EM_SETCUEBANNER, fDrawIfFocused, (LPARAM)lpszText); }
};

class ZOAFX_API CListBox : public CWnd
{
    DECLARE_DYNAMIC(CListBox)
public:
    CListBox();
    virtual ~CListBox();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetCount() const { return (int)::SendMessageW(m_hWnd, LB_GETCOUNT, 0, 0); }
    int GetHorizontalExtent() const { return (int)::SendMessageW(m_hWnd, LB_GETHORIZONTALEXTENT, 0, 0); }
    void SetHorizontalExtent(int cxExtent) { ::SendMessageW(m_hWnd, LB_SETHORIZONTALEXTENT, cxExtent, 0); }
    int GetTopIndex() const { return (int)::SendMessageW(m_hWnd, LB_GETTOPINDEX, 0, 0); }
    int SetTopIndex(int nIndex) { return (int)::SendMessageW(m_hWnd, LB_SETTOPINDEX, nIndex, 0); }
    DWORD_PTR GetItemData(int nIndex) const { return (DWORD_PTR)::SendMessageW(m_hWnd, LB_GETITEMDATA, nIndex, 0); }
    int SetItemData(int nIndex, DWORD_PTR dwItemData)
    { return (int)::SendMessageW(m_hWnd, LB_SETITEMDATA, nIndex, (LPARAM)dwItemData); }
    void* GetItemDataPtr(int nIndex) const { return (void*)GetItemData(nIndex); }
    int SetItemDataPtr(int nIndex, void* pData) { return SetItemData(nIndex, (DWORD_PTR)pData); }
    int GetItemRect(int nIndex, LPRECT lpRect) const
    { return (int)::SendMessageW(m_hWnd, LB_GETITEMRECT, nIndex, (LPARAM)lpRect); }
    UINT ItemFromPoint(CPoint pt, BOOL& bOutside) const;
    int SetItemHeight(int nIndex, UINT cyItemHeight)
    { return (int)::SendMessageW(m_hWnd, LB_SETITEMHEIGHT, nIndex, MAKELPARAM(cyItemHeight, 0)); }
    int GetItemHeight(int nIndex) const { return (int)::SendMessageW(m_hWnd, LB_GETITEMHEIGHT, nIndex, 0); }
    int GetSel(int nIndex) const { return (int)::SendMessageW(m_hWnd, LB_GETSEL, nIndex, 0); }
    int GetText(int nIndex, LPTSTR lpszBuffer) const
    { return (int)::SendMessageW(m_hWnd, LB_GETTEXT, nIndex, (LPARAM)lpszBuffer); }
    void GetText(int nIndex, CString& rString) const;
    int GetTextLen(int nIndex) const { return (int)::SendMessageW(m_hWnd, LB_GETTEXTLEN, nIndex, 0); }
    void SetColumnWidth(int cxWidth) { ::SendMessageW(m_hWnd, LB_SETCOLUMNWIDTH, cxWidth, 0); }
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops)
    { return (BOOL)::SendMessageW(m_hWnd, LB_SETTABSTOPS, nTabStops, (LPARAM)rgTabStops); }
    int GetCurSel() const { return (int)::SendMessageW(m_hWnd, LB_GETCURSEL, 0, 0); }
    int SetCurSel(int nSelect) { return (int)::SendMessageW(m_hWnd, LB_SETCURSEL, nSelect, 0); }
    int SetSel(int nIndex, BOOL bSelect = TRUE) { return (int)::SendMessageW(m_hWnd, LB_SETSEL, bSelect, nIndex); }
    int GetSelCount() const { return (int)::SendMessageW(m_hWnd, LB_GETSELCOUNT, 0, 0); }
    int GetSelItems(int nMaxItems, LPINT rgIndex) const
    { return (int)::SendMessageW(m_hWnd, LB_GETSELITEMS, nMaxItems, (LPARAM)rgIndex); }
    void SetAnchorIndex(int nIndex) { ::SendMessageW(m_hWnd, LB_SETANCHORINDEX, nIndex, 0); }
    int GetAnchorIndex() const { return (int)::SendMessageW(m_hWnd, LB_GETANCHORINDEX, 0, 0); }
    int SetCaretIndex(int nIndex, BOOL bScroll = TRUE)
    { return (int)::SendMessageW(m_hWnd, LB_SETCARETINDEX, nIndex, MAKELPARAM(bScroll, 0)); }
    int GetCaretIndex() const { return (int)::SendMessageW(m_hWnd, LB_GETCARETINDEX, 0, 0); }
    int AddString(LPCTSTR lpszItem) { return (int)::SendMessageW(m_hWnd, LB_ADDSTRING, 0, (LPARAM)lpszItem); }
    int DeleteString(UINT nIndex) { return (int)::SendMessageW(m_hWnd, LB_DELETESTRING, nIndex, 0); }
    int InsertString(int nIndex, LPCTSTR lpszItem)
    { return (int)::SendMessageW(m_hWnd, LB_INSERTSTRING, nIndex, (LPARAM)lpszItem); }
    void ResetContent() { ::SendMessageW(m_hWnd, LB_RESETCONTENT, 0, 0); }
    int FindString(int nStartAfter, LPCTSTR lpszItem) const
    { return (int)::SendMessageW(m_hWnd, LB_FINDSTRING, nStartAfter, (LPARAM)lpszItem); }
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
    { return (int)::SendMessageW(m_hWnd, LB_FINDSTRINGEXACT, nIndexStart, (LPARAM)lpszFind); }
    int SelectString(int nStartAfter, LPCTSTR lpszItem)
    { return (int)::SendMessageW(m_hWnd, LB_SELECTSTRING, nStartAfter, (LPARAM)lpszItem); }
    int SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem);

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);
    virtual int VKeyToItem(UINT nKey, UINT nIndex);
    virtual int CharToItem(UINT nKey, UINT nIndex);
protected:
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
};

class ZOAFX_API CComboBox : public CWnd
{
    DECLARE_DYNAMIC(CComboBox)
public:
    CComboBox();
    virtual ~CComboBox();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetCount() const { return (int)::SendMessageW(m_hWnd, CB_GETCOUNT, 0, 0); }
    int GetCurSel() const { return (int)::SendMessageW(m_hWnd, CB_GETCURSEL, 0, 0); }
    int SetCurSel(int nSelect) { return (int)::SendMessageW(m_hWnd, CB_SETCURSEL, nSelect, 0); }
    int GetTopIndex() const { return (int)::SendMessageW(m_hWnd, CB_GETTOPINDEX, 0, 0); }
    int SetTopIndex(int nIndex) { return (int)::SendMessageW(m_hWnd, CB_SETTOPINDEX, nIndex, 0); }
    UINT GetHorizontalExtent() const { return (UINT)::SendMessageW(m_hWnd, CB_GETHORIZONTALEXTENT, 0, 0); }
    void SetHorizontalExtent(UINT nExtent) { ::SendMessageW(m_hWnd, CB_SETHORIZONTALEXTENT, nExtent, 0); }
    int SetDroppedWidth(UINT nWidth) { return (int)::SendMessageW(m_hWnd, CB_SETDROPPEDWIDTH, nWidth, 0); }
    int GetDroppedWidth() const { return (int)::SendMessageW(m_hWnd, CB_GETDROPPEDWIDTH, 0, 0); }
    DWORD GetEditSel() const { return (DWORD)::SendMessageW(m_hWnd, CB_GETEDITSEL, 0, 0); }
    BOOL LimitText(int nMaxChars) { return (BOOL)::SendMessageW(m_hWnd, CB_LIMITTEXT, nMaxChars, 0); }
    BOOL SetEditSel(int nStartChar, int nEndChar)
    { return (BOOL)::SendMessageW(m_hWnd, CB_SETEDITSEL, 0, MAKELONG(nStartChar, nEndChar)); }
    DWORD_PTR GetItemData(int nIndex) const { return (DWORD_PTR)::SendMessageW(m_hWnd, CB_GETITEMDATA, nIndex, 0); }
    int SetItemData(int nIndex, DWORD_PTR dwItemData)
    { return (int)::SendMessageW(m_hWnd, CB_SETITEMDATA, nIndex, (LPARAM)dwItemData); }
    void* GetItemDataPtr(int nIndex) const { return (void*)GetItemData(nIndex); }
    int SetItemDataPtr(int nIndex, void* pData) { return SetItemData(nIndex, (DWORD_PTR)pData); }
    int GetLBText(int nIndex, LPTSTR lpszText) const
    { return (int)::SendMessageW(m_hWnd, CB_GETLBTEXT, nIndex, (LPARAM)lpszText); }
    void GetLBText(int nIndex, CString& rString) const;
    int GetLBTextLen(int nIndex) const { return (int)::SendMessageW(m_hWnd, CB_GETLBTEXTLEN, nIndex, 0); }
    int SetItemHeight(int nIndex, UINT cyItemHeight)
    { return (int)::SendMessageW(m_hWnd, CB_SETITEMHEIGHT, nIndex, MAKELONG(cyItemHeight, 0)); }
    int GetItemHeight(int nIndex) const { return (int)::SendMessageW(m_hWnd, CB_GETITEMHEIGHT, nIndex, 0); }
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
    { return (int)::SendMessageW(m_hWnd, CB_FINDSTRINGEXACT, nIndexStart, (LPARAM)lpszFind); }
    int SetExtendedUI(BOOL bExtended = TRUE) { return (int)::SendMessageW(m_hWnd, CB_SETEXTENDEDUI, bExtended, 0); }
    BOOL GetExtendedUI() const { return (BOOL)::SendMessageW(m_hWnd, CB_GETEXTENDEDUI, 0, 0); }
    void GetDroppedControlRect(LPRECT lprect) const
    { ::SendMessageW(m_hWnd, CB_GETDROPPEDCONTROLRECT, 0, (LPARAM)lprect); }
    BOOL GetDroppedState() const { return (BOOL)::SendMessageW(m_hWnd, CB_GETDROPPEDSTATE, 0, 0); }
    BOOL GetComboBoxInfo(PCOMBOBOXINFO pcbi) const
    { return (BOOL)::SendMessageW(m_hWnd, CB_GETCOMBOBOXINFO, 0, (LPARAM)pcbi); }
    BOOL SetMinVisibleItems(int iMinVisible)
    { return (BOOL)::SendMessageW(m_hWnd, CB_SETMINVISIBLE, iMinVisible, 0); }
    int GetMinVisible() const { return (int)::SendMessageW(m_hWnd, CB_GETMINVISIBLE, 0, 0); }
    BOOL SetCueBanner(LPCTSTR lpszText) { return (BOOL)::SendMessageW(m_hWnd, CB_SETCUEBANNER, 0, (LPARAM)lpszText); }

    void ShowDropDown(BOOL bShowIt = TRUE) { ::SendMessageW(m_hWnd, CB_SHOWDROPDOWN, bShowIt, 0); }
    int AddString(LPCTSTR lpszString) { return (int)::SendMessageW(m_hWnd, CB_ADDSTRING, 0, (LPARAM)lpszString); }
    int DeleteString(UINT nIndex) { return (int)::SendMessageW(m_hWnd, CB_DELETESTRING, nIndex, 0); }
    int InsertString(int nIndex, LPCTSTR lpszString)
    { return (int)::SendMessageW(m_hWnd, CB_INSERTSTRING, nIndex, (LPARAM)lpszString); }
    void ResetContent() { ::SendMessageW(m_hWnd, CB_RESETCONTENT, 0, 0); }
    int FindString(int nStartAfter, LPCTSTR lpszString) const
    { return (int)::SendMessageW(m_hWnd, CB_FINDSTRING, nStartAfter, (LPARAM)lpszString); }
    int SelectString(int nStartAfter, LPCTSTR lpszString)
    { return (int)::SendMessageW(m_hWnd, CB_SELECTSTRING, nStartAfter, (LPARAM)lpszString); }
    void Clear() { ::SendMessageW(m_hWnd, WM_CLEAR, 0, 0); }
    void Copy() { ::SendMessageW(m_hWnd, WM_COPY, 0, 0); }
    void Cut() { ::SendMessageW(m_hWnd, WM_CUT, 0, 0); }
    void Paste() { ::SendMessageW(m_hWnd, WM_PASTE, 0, 0); }

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);
protected:
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
};

class ZOAFX_API CScrollBar : public CWnd
{
    DECLARE_DYNAMIC(CScrollBar)
public:
    CScrollBar();
    virtual ~CScrollBar();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE) { return ::SetScrollPos(m_hWnd, SB_CTL, nPos, bRedraw); }
    void GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const;
    void SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw = TRUE)
    { ::SetScrollRange(m_hWnd, SB_CTL, nMinPos, nMaxPos, bRedraw); }
    void ShowScrollBar(BOOL bShow = TRUE) { ::ShowScrollBar(m_hWnd, SB_CTL, bShow); }
    BOOL EnableScrollBar(UINT nArrowFlags = ESB_ENABLE_BOTH) { return ::EnableScrollBar(m_hWnd, SB_CTL, nArrowFlags); }
    BOOL SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    // The largest position the thumb can reach: nMax less the page plus one.
    int GetScrollLimit();
    BOOL GetScrollBarInfo(PSCROLLBARINFO pScrollInfo) const
    { return (BOOL)::SendMessageW(m_hWnd, SBM_GETSCROLLBARINFO, 0, (LPARAM)pScrollInfo); }
};
