#include <afxwin.h>

#include "TreeListPage.h"

#include <algorithm>
#include <vector>

using namespace ZoControls;

namespace {

const DWORD kChild = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
const int kMargin = 10;
const CRect kTreeRect(kMargin, 30, kMargin + 720, 760);
const CRect kSaveRect(kMargin, 770, kMargin + 110, 796);
const CRect kLoadRect(kMargin + 120, 770, kMargin + 230, 796);
const CRect kBuildRect(kMargin + 240, 770, kMargin + 440, 796);
const CRect kStatusRect(kMargin, 806, kMargin + 720, 830);
const UINT kTreeId = 1500;
const UINT kSaveId = 1501;
const UINT kLoadId = 1502;
const UINT kBuildId = 1503;
const int kLevels = 3;
const int kProjects = 6;
const int kFolders = 4;
const int kFiles = 5;
const int kManyTops = 1000;
const int kManyChildren = 99; // with their parents: 100,000 nodes
const wchar_t* const kKinds[] = {L"Source", L"Image", L"Document"};

// The sizes, dates and kinds of a sample row, made up from its numbers.
void fillCells(CZoTreeListCtrl& tree, int row, int a, int b)
{
    CString text;
    text.Format(L"%d", (a * 7919 + b * 104729) % 100000);
    tree.SetItemText(row, 1, text);
    text.Format(L"%04d-%02d-%02d %02d:%02d:%02d", 2020 + (a + b) % 5, 1 + (a * 3 + b) % 12, 1 + (a + b * 5) % 28,
                (a * 5 + b) % 24, (a + b * 11) % 60, (a * 13 + b * 7) % 60);
    tree.SetItemText(row, 2, text);
    tree.SetItemText(row, 3, kKinds[(a + b) % 3]);
}

} // namespace

// --- The page's tree -------------------------------------------------------------------------------

bool CGalleryTreeList::SaveTree(const wchar_t* path)
{
    CFile file;
    if (!file.Open(path, CFile::modeCreate | CFile::modeWrite))
        return false;
    try
    {
        CZoTreeListCtrlItem::DumpChildNodes(&file, m_pRoot);
    }
    catch (CException* error)
    {
        error->Delete();
        return false;
    }
    return true;
}

bool CGalleryTreeList::LoadTree(const wchar_t* path)
{
    CFile file;
    if (!file.Open(path, CFile::modeRead))
        return false;
    DeleteAllNodes();
    try
    {
        CZoTreeListCtrlItem::LoadChildNodes(&file, m_pRoot);
    }
    catch (CException* error)
    {
        error->Delete();
        return false;
    }
    // The shown nodes (every ancestor expanded) get their rows' numbers, and the rows are made.
    m_pRoot->ResetTempItemNumber();
    std::vector<CZoTreeListCtrlItem*> pending(1, m_pRoot);
    std::vector<CZoTreeListCtrlItem*> shown;
    while (!pending.empty())
    {
        CZoTreeListCtrlItem* node = pending.back();
        pending.pop_back();
        if (node != m_pRoot)
        {
            node->SetTempItemNumber((int)shown.size());
            shown.push_back(node);
        }
        if (!node->IsExpanded())
            continue;
        const size_t at = pending.size();
        for (POSITION pos = node->GetFirstChildPosition(); pos != NULL;)
            pending.push_back(node->GetNextChild(pos));
        std::reverse(pending.begin() + at, pending.end());
    }
    std::vector<CZoTreeListCtrlItem*> rows(shown.size(), NULL);
    SetRedraw(FALSE);
    MakeListForAddTreeItems(m_pRoot, rows.data(), (int)rows.size());
    AddTreeItemsToListCtrl(rows.data(), (int)rows.size());
    SetRedraw(TRUE);
    Invalidate();
    return true;
}

// --- The page --------------------------------------------------------------------------------------

BEGIN_MESSAGE_MAP(CTreeListPage, CGalleryPage)
    ON_MESSAGE(ZoTreeListNotify, &CTreeListPage::OnTreeNotify)
    ON_BN_CLICKED(kSaveId, &CTreeListPage::OnSaveClicked)
    ON_BN_CLICKED(kLoadId, &CTreeListPage::OnLoadClicked)
    ON_BN_CLICKED(kBuildId, &CTreeListPage::OnBuildClicked)
END_MESSAGE_MAP()

CTreeListPage::CTreeListPage() {}

CTreeListPage::~CTreeListPage() {}

BOOL CTreeListPage::OnCreatePage()
{
    m_labels.AddHeading(kMargin, 8,
                        L"Tree-list: children on demand; Space, +, -, arrows, * and a click on the expander; "
                        L"click a header to sort");
    if (!m_tree.Create(kChild | WS_BORDER | LVS_REPORT | LVS_SHOWSELALWAYS, kTreeRect, this, kTreeId))
        return FALSE;
    m_tree.InsertColumn(0, L"Name", LVCFMT_LEFT, Scaled(240));
    m_tree.InsertColumn(1, L"Size", LVCFMT_RIGHT, Scaled(90));
    m_tree.InsertColumn(2, L"Modified", LVCFMT_LEFT, Scaled(170));
    m_tree.InsertColumn(3, L"Kind", LVCFMT_CENTER, Scaled(100));
    m_tree.SetColumnSortMethod(0, CZoListCtrl::SCM_TextInsensitive);
    m_tree.SetColumnSortMethod(1, CZoListCtrl::SCM_Numeric);
    m_tree.SetColumnSortMethod(2, CZoListCtrl::SCM_DateTime);
    m_tree.SetKeepChildData(true);
    m_tree.Reset(kLevels);
    _fillSample();
    if (!m_save.Create(L"Save to file", kChild | BS_PUSHBUTTON, kSaveRect, this, kSaveId) ||
        !m_load.Create(L"Load from file", kChild | BS_PUSHBUTTON, kLoadRect, this, kLoadId) ||
        !m_build.Create(L"Build 100,000 nodes", kChild | BS_PUSHBUTTON, kBuildRect, this, kBuildId) ||
        !m_status.Create(L"", WS_CHILD | WS_VISIBLE | SS_LEFT | SS_CENTERIMAGE, kStatusRect, this))
        return FALSE;
    return TRUE;
}

void CTreeListPage::_fillSample()
{
    m_tree.Reset(kLevels);
    CString text;
    for (int project = 0; project < kProjects; ++project)
    {
        text.Format(L"Project %c", L'A' + project);
        int row = -1;
        m_tree.InsertNode(0, text, &row);
        fillCells(m_tree, row, project, 0);
        m_tree.SetItemBold(row, project % 3 == 0);
    }
    // The first project open, its first folder too.
    m_tree.Expand(0);
    m_tree.Expand(1);
    m_tree.SetItemFocus(0);
}

void CTreeListPage::_addChildren(DWORD_PTR node)
{
    const int depth = CZoTreeListCtrl::GetNodeLevel(node);
    if (depth < 0 || depth >= kLevels - 1)
        return;
    const int count = depth == 0 ? kFolders : kFiles;
    CString text;
    for (int i = 0; i < count; ++i)
    {
        if (depth == 0)
            text.Format(L"Folder %d", i + 1);
        else
            text.Format(L"file_%02d.%s", i + 1, i % 2 ? L"png" : L"cpp");
        int row = -1;
        m_tree.InsertNode(node, text, &row);
        fillCells(m_tree, row, depth * 10 + i, (int)(node % 97));
        if (depth == 0 && i == 0)
            m_tree.SetItemBold(row, TRUE);
    }
}

LRESULT CTreeListPage::OnTreeNotify(WPARAM wParam, LPARAM lParam)
{
    switch (wParam)
    {
    case CZoTreeListCtrl::TLN_GetChildren:
        _addChildren((DWORD_PTR)lParam);
        break;
    case CZoTreeListCtrl::TLN_Refresh:
        _fillSample();
        _show(L"F5: the sample tree again");
        break;
    default:
        break;
    }
    return 0;
}

CString CTreeListPage::_filePath() const
{
    wchar_t folder[MAX_PATH] = {};
    ::GetTempPathW(MAX_PATH, folder);
    return CString(folder) + L"ZoGallery.tree";
}

void CTreeListPage::_show(const wchar_t* text) { m_status.SetWindowText(text); }

void CTreeListPage::OnSaveClicked()
{
    const CString path = _filePath();
    _show(m_tree.SaveTree(path) ? CString(L"Saved to ") + path : CString(L"Could not save to ") + path);
}

void CTreeListPage::OnLoadClicked()
{
    const CString path = _filePath();
    _show(m_tree.LoadTree(path) ? CString(L"Loaded from ") + path : CString(L"Could not load ") + path);
}

void CTreeListPage::OnBuildClicked()
{
    CWaitCursor wait;
    const DWORD start = ::GetTickCount();
    m_tree.SetRedraw(FALSE);
    m_tree.Reset(kLevels);
    CString text;
    for (int top = 0; top < kManyTops; ++top)
    {
        text.Format(L"Group %04d", top);
        const DWORD_PTR parent = m_tree.InsertNode(0, text);
        for (int child = 0; child < kManyChildren; ++child)
        {
            text.Format(L"Item %04d.%02d", top, child);
            int row = -1;
            m_tree.InsertNode(parent, text, &row);
            text.Format(L"%d", (top * 131 + child * 17) % 10000);
            m_tree.SetItemText(row, 1, text);
        }
    }
    m_tree.SetRedraw(TRUE);
    m_tree.Invalidate();
    text.Format(L"Built %d nodes in %lu ms", kManyTops * (kManyChildren + 1), ::GetTickCount() - start);
    _show(text);
}

void CTreeListPage::DrawPage(CDC& dc, const CRect& client)
{
    CGalleryPage::DrawPage(dc, client);
    m_labels.Draw(dc);
}
