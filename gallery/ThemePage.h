// "Theme": the 130 colour slots as swatches with number and name, and the 14 font roles
// at the three size classes.
#pragma once
#include "GalleryPage.h"

class CThemePage : public CGalleryPage
{
protected:
    virtual void DrawPage(CDC& dc, const CRect& client);

private:
    void _drawColorSlots(CDC& dc, const CRect& area);
    void _drawFontRoles(CDC& dc, const CRect& area);
};
