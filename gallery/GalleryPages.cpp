// The gallery's pages, in the order they are listed. One line per page.
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
const GalleryPageEntry kPages[] = {
    {L"Theme", &CreateGalleryPage<CThemePage>},
    {L"Skins", &CreateGalleryPage<CSkinsPage>},
    {L"Skins 3M", &CreateGalleryPage<CSkins3MPage>},
    {L"Skins 5M", &CreateGalleryPage<CSkins5MPage>},
    {L"Menus", &CreateGalleryPage<CMenusPage>},
    {L"Scrolling", &CreateGalleryPage<CScrollingPage>},
    {L"Buttons", &CreateGalleryPage<CButtonsPage>},
    {L"Statics", &CreateGalleryPage<CStaticsPage>},
    {L"Edits and combos", &CreateGalleryPage<CEditsPage>},
    {L"Sliders", &CreateGalleryPage<CSlidersPage>},
    {L"Tabs", &CreateGalleryPage<CTabsPage>},
    {L"Lists", &CreateGalleryPage<CListsPage>},
    {L"Tree-list", &CreateGalleryPage<CTreeListPage>},
    {L"Dialogs", &CreateGalleryPage<CDialogsPage>},
};
} // namespace

const GalleryPageEntry* GetGalleryPages(int& count)
{
    count = static_cast<int>(sizeof(kPages) / sizeof(kPages[0]));
    return kPages;
}
