// CZoHeaderCtrl: the list view's column header painted from two skin strips, an item frame in
// four states and a sort arrow. The sort state lives in the native items' HDF_SORTUP /
// HDF_SORTDOWN format flags, at most one item carrying either.
#pragma once
#include <afxcmn.h>
#include <afxwin.h>

#include "core/ZoCtrlExport.h"
#include "core/ZoMenuRouting.h"
#include "core/ZoPaintedWnd.h"
#include "core/ZoThemeTypes.h"

namespace ZoControls {

class CZoResourceBMPImage;

class ZOCTRL_API CZoHeaderCtrl : public CZoPaintedWnd<CHeaderCtrl>
{
    DECLARE_DYNAMIC(CZoHeaderCtrl)

public:
    CZoHeaderCtrl();
    ~CZoHeaderCtrl() override;

    // The arrow on `column` (none for a column out of range); no sorting.
    void SetSortOption(int column, bool ascending);
    // The first item carrying an arrow; false and column -1 when none does.
    bool GetSortOption(int& column, bool& ascending) const;

    // The tree-list's first column can neither be dragged nor have a column dropped before it.
    void SetFirstColumnLocked(bool locked) { m_bFirstColumnLocked = locked; }
    bool IsFirstColumnLocked() const { return m_bFirstColumnLocked; }
    // A list without sort header shows no hot or pressed items.
    void SetNoSortHeader(bool noSortHeader) { m_bNoSortHeader = noSortHeader; }

    int GetHotItem() const { return m_nHotItem; }
    int GetPressedItem() const { return m_nPressedItem; }
    bool IsDragging() const { return m_bDragging; }

    // The item under `point` (client coordinates); -1 off the items or without sort header.
    int HitTestItem(CPoint point);

protected:
    void PreSubclassWindow() override;
    void DrawClient(CDC& dc) override;

    // One item in `state` (E_ZoHeaderItemState) with its text and format.
    virtual void DrawHeaderItem(CDC& dc, const CRect& rect, const CString& text, int format, int state);

    void _loadSkins();
    void _freeSkins();
    // Ends a press or drag: looks reset.
    void _endPress();

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnCancelMode();
    afx_msg void OnBeginDrag(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnEndDrag(NMHDR* pNMHDR, LRESULT* pResult);
    ZO_DECLARE_MENUXP_FORWARDING()
    DECLARE_MESSAGE_MAP()

    E_ZoMonitorSize m_eMonitorSize;
    E_ZoThemeFont m_eFont;
    CZoResourceBMPImage* m_pHeaderImage;
    CZoResourceBMPImage* m_pSortImage;
    int m_nPressedItem;
    int m_nHotItem;
    bool m_bDragging;
    bool m_bFirstColumnLocked;
    bool m_bNoSortHeader;
    // Between a button press and its release, unless the mouse was lost in between: a release
    // after the loss belongs to no click.
    bool m_bPressTracked;

private:
    CZoHeaderCtrl(const CZoHeaderCtrl&);
    CZoHeaderCtrl& operator=(const CZoHeaderCtrl&);
};

} // namespace ZoControls
