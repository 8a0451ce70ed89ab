// CZoListCtrl: the skinned report list. The native list view keeps items, columns, selection
// and scrolling; this class draws every cell through custom draw in the theme's colours, skins
// the header (CZoHeaderCtrl), sorts on header clicks with a comparison method per column, edits
// one column in place (CZoEditInPlace) and lays two skinned scroll bars (CZoScrollBar, sibling
// windows) over the native ones, keeping them in step.
#pragma once
#include <afxcmn.h>
#include <afxtempl.h>
#include <afxwin.h>

#include <vector>

#include "core/ZoCtrlExport.h"
#include "core/ZoMenuRouting.h"
#include "core/ZoThemeTypes.h"
#include "lists/ZoHeaderCtrl.h"

namespace ZoControls {

class CZoEditInPlace;
class CZoScrollBar;

class ZOCTRL_API CZoListCtrl : public CListCtrl
{
    DECLARE_DYNAMIC(CZoListCtrl)

public:
    // How a column's cells compare when sorting; any other value compares as SCM_TextSensitive.
    enum E_SortColumnMethod
    {
        SCM_AsMethod = -1, // as a child method: the same as the column's method
        SCM_TextSensitive = 0,
        SCM_TextInsensitive = 1,
        SCM_DateTime = 2,
        SCM_Numeric = 3
    };

    // Ids of the in-place editor and of the two skinned bars (children of the list's parent).
    enum
    {
        EditorId = 4745,
        HorzBarId = 4746,
        VertBarId = 4747
    };

    CZoListCtrl();
    ~CZoListCtrl() override;

    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;
    BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;

    // When false, header clicks never sort and SortOnColumn does nothing.
    void EnableSort(bool enable) { m_bSortEnabled = enable; }
    bool IsSortEnabled() const { return m_bSortEnabled; }
    // `childMethod` SCM_AsMethod stores `method` for the children too.
    void SetColumnSortMethod(int column, E_SortColumnMethod method, E_SortColumnMethod childMethod = SCM_AsMethod);
    // SCM_TextSensitive for a column without a method.
    E_SortColumnMethod GetColumnSortMethod(int column) const;
    E_SortColumnMethod GetColumnSortChildMethod(int column) const;
    // The header's arrow only; nothing is sorted.
    void SetSortOption(int column, bool ascending);
    bool GetSortOption(int& column, bool& ascending) const;
    // Sorts again by the column and direction the header shows.
    void DoSortNow();

    // The column that F2, a click and LVM_EDITLABEL edit; -1 for none.
    void SetEditableColumn(int column) { m_nEditableColumn = column; }
    int GetEditableColumn() const { return m_nEditableColumn; }
    // Opens the editor over (item, column); null when it cannot.
    CZoEditInPlace* EditSubLabel(int item, int column);
    CZoEditInPlace* GetInPlaceEditor() const { return m_pEditor; }

    // The first row from `startItem` on (forward) or back whose cells contain `text`; -1 for none.
    int SearchString(int startItem, const wchar_t* text, bool forward, bool caseSensitive) const;
    // Header items in report view, else 0.
    int GetColumnCount() const;
    // The row with the focus; -1 for none.
    int GetFocusedItemIndex() const;

    CZoHeaderCtrl& GetZoHeaderCtrl() { return m_header; }
    CZoScrollBar* GetHorzScrollBar() const { return m_pHorzBar; }
    CZoScrollBar* GetVertScrollBar() const { return m_pVertBar; }

    // Cell drawing steps, called for every sub-item through custom draw.
    virtual void DrawSubItem(CDC& dc, int item, int subItem);
    virtual void DrawSubitemText(CDC& dc, int item, int subItem, bool selected, CRect rect, DWORD backColour);
    virtual int GetItemImageIndex(const LVITEMW& item) const;
    virtual void SortOnColumn(int column, bool ascending);

protected:
    void PreSubclassWindow() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    void _init();
    void _createScrollBars();
    // Both bars along the list's edges, in its parent's client coordinates.
    void _placeScrollBars(bool move);
    void _showScrollBars();
    // The list's scroll state into the skinned bar of every direction it scrolls in.
    void _copyScrollInfo();
    void _scrollToPosition(bool vertical, int target);
    // A scroll notification from a skinned bar (or any other sender).
    void _onScroll(bool vertical, UINT code, UINT pos, CScrollBar* pScrollBar);
    int _rowHeight() const;
    // The list's own answers, asked of the native list's procedure: a question needs none of
    // this class's handling, and passes no message hooks (painting and sorting ask for every cell).
    LRESULT _ask(UINT message, WPARAM wParam, LPARAM lParam) const;
    // A change, through the window's present procedure (so subclasses see it) but without
    // passing the thread's message hooks (ZoCallWindow).
    LRESULT _tell(UINT message, WPARAM wParam, LPARAM lParam);
    CString _itemText(int item, int subItem) const;
    void _readItemText(int item, int subItem, CString& text) const;
    DWORD_PTR _itemData(int item) const;
    void _setItemData(int item, DWORD_PTR data);
    // LVM_GETSUBITEMRECT's LVIR_LABEL and LVIR_ICON rectangles of a cell.
    void _subItemRects(int item, int subItem, CRect& label, CRect& icon);
    // LVM_GETCOLUMN's format of `column`; false when there is no such column.
    bool _columnFormat(int column, int& format);
    // What every cell of a paint asks alike: the header's columns and their display order, the
    // small image list, the extended style.
    struct PaintColumns
    {
        HWND header = NULL;
        int count = 0;
        int firstShown = -1;
        int lastShown = -1;
        HIMAGELIST images = NULL;
        DWORD extendedStyle = 0;
    };
    PaintColumns _paintColumns();
    // The image and the focus and selection state of `item`.
    LVITEMW _rowState(int item);
    // Every row that shows in `dc`'s clip box, cell by cell; false when there are no columns.
    bool _drawRows(CDC& dc);
    bool _isReport() const;
    void _cancelEdit();
    void _deleteRetiredEditors();

    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnDestroy();
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnNcPaint();
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg LRESULT OnEditLabel(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetEditControl(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnCancelEditLabel(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnEnsureVisible(WPARAM wParam, LPARAM lParam);
    afx_msg void OnHeaderItemClick(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnCustomDraw(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg BOOL OnItemChanged(NMHDR* pNMHDR, LRESULT* pResult);
    ZO_DECLARE_MENUXP_FORWARDING()
    DECLARE_MESSAGE_MAP()

    bool m_bSortEnabled;
    bool m_bInitialized;
    bool m_bCreating;
    E_ZoMonitorSize m_eMonitorSize;
    E_ZoThemeFont m_eFont;
    E_ZoTheme m_eTheme;
    CZoHeaderCtrl m_header;
    int m_nEditableColumn;
    CZoEditInPlace* m_pEditor;
    COLORREF m_crBackground;
    COLORREF m_crGrid;
    COLORREF m_crSelectedRow;
    COLORREF m_crCellText;
    COLORREF m_crSelectedFocusRow;
    COLORREF m_crFocusFrame;
    bool m_bSortingFromHeader;
    CMap<int, int, E_SortColumnMethod, E_SortColumnMethod> m_sortMethods;
    CMap<int, int, E_SortColumnMethod, E_SortColumnMethod> m_childSortMethods;
    CZoScrollBar* m_pHorzBar;
    CZoScrollBar* m_pVertBar;
    // While the host has switched redrawing off (filling many rows), the bars wait for it to
    // come back on rather than follow every row.
    bool m_bRedrawSuspended;
    // Editors whose windows are gone, deleted once no handler of theirs can still be running.
    std::vector<CZoEditInPlace*> m_retiredEditors;
    // From WM_DESTROY on: rows inserted or deleted then are refused.
    bool m_bGoing;
    // Row deletions of the native list under way (its notification of each row runs inside).
    int m_nDeletingRows;
    int m_nPaintDepth;
    // The list's answers about a column that a paint needs for every cell, kept from paint to
    // paint: its format, and where its cells lie against their row's position. They hold while
    // the header item they were read with keeps its place and format, and until a message
    // that changes the columns or the rows' height.
    enum
    {
        kFormatUnread = -1,
        kFormatMissing = -2
    };
    struct ColumnAnswers
    {
        CRect headerRect;
        int headerFormat = 0;
        int format = kFormatUnread;
        bool placed = false;
        CPoint at;
        CRect label;
        CRect icon;
    };
    std::vector<ColumnAnswers> m_columnAnswers;
    // Drops the answers of columns whose header item moved or changed its format.
    void _checkColumnAnswers(HWND header, int count);
    // While WM_PAINT or WM_PRINTCLIENT runs: the columns once read, and the last row's state.
    bool m_bPaintColumnsKnown;
    PaintColumns m_paintColumnsRead;
    LVITEMW m_paintRow;

private:
    CZoListCtrl(const CZoListCtrl&);
    CZoListCtrl& operator=(const CZoListCtrl&);
};

} // namespace ZoControls
