// Resource ids of the gallery's dialog template (GalleryDialogs.rc).
#pragma once

#define IDD_GALLERY_NINE_CLASSES    3000
#define IDC_GALLERY_FIRST_CONTROL   3001
