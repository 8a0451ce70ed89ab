// The gallery's pages, in the order they are listed, under their families. One line per page.
#include <afxwin.h>

#include "ButtonsPage.h"
#include "DialogsPage.h"
#include "EditsPage.h"
#include "GalleryPage.h"
#include "ListsPage.h"
#include "MenusPage.h"
#include "ScrollingPage.h"
#include "SkinsPage.h"
#include "SlidersPage.h"
#include "StaticsPage.h"
#include "TabsPage.h"
#include "ThemePage.h"
#include "TreeListPage.h"

namespace {
// The controls first, the theme and skin sheets last.
const GalleryPageEntry kPages[] = {
    {L"Controls", L"Buttons", &CreateGalleryPage<CButtonsPage>},
    {L"Controls", L"Statics", &CreateGalleryPage<CStaticsPage>},
    {L"Controls", L"Edits and combos", &CreateGalleryPage<CEditsPage>},
    {L"Controls", L"Scrolling", &CreateGalleryPage<CScrollingPage>},
    {L"Controls", L"Sliders", &CreateGalleryPage<CSlidersPage>},
    {L"Controls", L"Tabs", &CreateGalleryPage<CTabsPage>},
    {L"Lists", L"Lists", &CreateGalleryPage<CListsPage>},
    {L"Lists", L"Tree-list", &CreateGalleryPage<CTreeListPage>},
    {L"Windows", L"Dialogs", &CreateGalleryPage<CDialogsPage>},
    {L"Windows", L"Menus", &CreateGalleryPage<CMenusPage>},
    {L"Look", L"Theme", &CreateGalleryPage<CThemePage>},
    {L"Look", L"Skins", &CreateGalleryPage<CSkinsPage>},
    {L"Look", L"Skins 3M", &CreateGalleryPage<CSkins3MPage>},
    {L"Look", L"Skins 5M", &CreateGalleryPage<CSkins5MPage>},
};
} // namespace

const GalleryPageEntry* GetGalleryPages(int& count)
{
    count = static_cast<int>(sizeof(kPages) / sizeof(kPages[0]));
    return kPages;
}
