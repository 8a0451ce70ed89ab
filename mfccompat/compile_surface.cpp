// Every MFC class, member, macro and global function that ZoCtrl relies on, named once in
// one translation unit. It is compiled against the real MFC and against our layer, so a
// name or signature that one of them lacks or spells differently breaks the build here
// rather than in a control. Nothing in this file is ever executed.
//
// Signatures are pinned three ways: member-function pointers of the exact documented
// type (Pin<type>(&Class::Member)), virtual overrides marked `override`, and message
// maps whose ON_ macros check each handler's type. Everything else is called with
// plausible arguments so that parameter types and default arguments are exercised.
//
// A block inside `#if 0` names what the layer does not offer yet.

#include <stdarg.h>

#include <afxwin.h>
#include <afxcmn.h>
#include <afxext.h>
#include <afxtempl.h>
#include <afxcontrolbars.h>

namespace zo_compile_surface {

// Keeps a value of exactly type T; a mismatching member pointer does not convert.
template <class T> inline void Pin(T) {}

// ---------------------------------------------------------------------------------------
// core types: CObject, run-time classes, CString, geometry

inline void UseCoreTypes(CObject* object, CString& text)
{
    Pin<int (CString::*)(wchar_t, int) const>(&CString::Find);
    Pin<int (CString::*)(wchar_t) const>(&CString::ReverseFind);
    Pin<CString (CString::*)(int) const>(&CString::Left);
    Pin<CString (CString::*)(int) const>(&CString::Mid);
    Pin<void (CString::*)()>(&CString::Empty);

    (void)object->IsKindOf(RUNTIME_CLASS(CWnd));
    (void)object->GetRuntimeClass();
    (void)DYNAMIC_DOWNCAST(CWnd, object);
    text.Format(L"%d%%", 5);
    text.LoadString(811);
    (void)text.Compare(L"a");
    (void)text.CompareNoCase(L"a");
    (void)text.Find(L"a");
    int at = text.Find(L'.', 0);
    at = text.ReverseFind(L'\\');
    CString left = text.Left(at);
    CString rest = text.Mid(at + 1);
    text.Empty();
    text += L"x";
    CString copy(left);
    copy = rest;
    copy = L"y";
    (void)text.GetLength();
    (void)text.IsEmpty();
    text.MakeLower();
    text.MakeUpper();
    text.Replace(L'/', L'\\');
    LPWSTR buffer = text.GetBuffer(260);
    buffer[0] = 0;
    text.ReleaseBuffer();
    (void)text.GetBuffer(4);
    Pin<LPWSTR (CString::*)(int)>(&CString::GetBufferSetLength);
    (void)text.GetBufferSetLength(8);
    text.ReleaseBuffer();
    text.ReleaseBuffer(0);
    LPCWSTR raw = text;
    (void)raw;
    CString joined = text + L"  " + CString(L"x");
    joined = L"(" + joined;
    CString piece;
    (void)AfxExtractSubString(piece, joined, 1, L',');

    Pin<int (CRect::*)() const>(&CRect::Width);
    Pin<int (CRect::*)() const>(&CRect::Height);
    Pin<CSize (CRect::*)() const>(&CRect::Size);
    Pin<CPoint& (CRect::*)()>(&CRect::TopLeft);
    Pin<const CPoint& (CRect::*)() const>(&CRect::TopLeft);
    Pin<BOOL (CRect::*)() const>(&CRect::IsRectEmpty);
    Pin<BOOL (CRect::*)(POINT) const>(&CRect::PtInRect);
    Pin<void (CRect::*)()>(&CRect::NormalizeRect);
    Pin<void (CRect::*)()>(&CRect::SetRectEmpty);
    Pin<void (CRect::*)()>(&CRect::SwapLeftRight);
    Pin<void (CRect::*)(int, int)>(&CRect::DeflateRect);
    Pin<void (CRect::*)(int, int)>(&CRect::InflateRect);
    Pin<void (CRect::*)(int, int)>(&CRect::OffsetRect);
    Pin<void (CRect::*)(POINT)>(&CRect::OffsetRect);
    Pin<void (CRect::*)(SIZE)>(&CRect::OffsetRect);
    Pin<void (CRect::*)(const RECT&)>(&CRect::operator=);
    Pin<BOOL (CRect::*)(const RECT&) const>(&CRect::operator==);
    Pin<CSize (CPoint::*)(POINT) const>(&CPoint::operator-);
    Pin<CRect (CRect::*)(SIZE) const>(&CRect::operator+);
    Pin<void (CRect::*)(int, int, int, int)>(&CRect::SetRect);
    Pin<BOOL (CRect::*)(LPCRECT, LPCRECT)>(&CRect::IntersectRect);
    Pin<BOOL (CRect::*)(LPCRECT, LPCRECT)>(&CRect::UnionRect);
    Pin<BOOL (CSize::*)(SIZE) const>(&CSize::operator==);

    CRect rect(0, 0, 10, 10);
    rect.DeflateRect(1, 1);
    rect.InflateRect(1, 0);
    rect.OffsetRect(1, 1);
    (void)rect.Width();
    (void)rect.Height();
    (void)rect.IsRectEmpty();
    (void)rect.PtInRect(CPoint(1, 1));
    (void)rect.CenterPoint();
    CSize size(1, 2);
    CPoint point(3, 4);
    (void)(point + size);
    CPoint origin;
    CSize offset = point - origin;
    (void)(offset == size);
    CRect placed(point, size);
    placed.OffsetRect(point);
    placed.OffsetRect(size);
    placed.NormalizeRect();
    placed.SwapLeftRight();
    placed.TopLeft() = origin;
    (void)rect.TopLeft();
    (void)rect.Size();
    RECT plain = { 0, 0, 1, 1 };
    CRect fromPlain(plain);
    fromPlain = plain;
    (void)(fromPlain == plain);
    fromPlain.SetRectEmpty();
    LPRECT writable = fromPlain;
    LPCRECT readable = static_cast<const CRect&>(fromPlain);
    (void)writable;
    (void)readable;
}

// ---------------------------------------------------------------------------------------
// files, exceptions and collections (tree file, theme configuration, registries)

struct SurfaceValue { CRect rect; bool flag; };

inline void UseFilesAndCollections(CFile* file, CList<CWnd*, CWnd*>& windows)
{
    BYTE bytes[4] = {};
    file->Write(bytes, 4);
    (void)file->Read(bytes, 4);
    (void)file->GetFilePath();
    try {
        AfxThrowFileException(CFileException::endOfFile, -1, L"tree.bin");
    } catch (CFileException* error) {
        (void)(error->m_cause == CFileException::genericException);
        error->Delete();
    } catch (CException* error) {
        error->Delete();
    }
    try {
        AfxThrowInvalidArgException();
    } catch (CInvalidArgException* error) {
        error->Delete();
    }

    CFileFind finder;
    (void)finder.FindFile(L"Fonts.ini");
    finder.Close();

    CMap<CWnd*, CWnd*, SurfaceValue, SurfaceValue&> registry(10);
    registry.InitHashTable(17);
    SurfaceValue value;
    registry.SetAt(nullptr, value);
    (void)registry.Lookup(nullptr, value);
    (void)registry.RemoveKey(nullptr);
    POSITION pos = registry.GetStartPosition();
    while (pos) {
        CWnd* key;
        registry.GetNextAssoc(pos, key, value);
    }
    (void)registry.GetCount();
    registry.RemoveAll();

    // The PNG store's decoded pictures by resource id.
    CMap<UINT, UINT, HBITMAP, HBITMAP> pictures;
    HBITMAP picture = nullptr;
    pictures.SetAt(808u, picture);
    (void)pictures.Lookup(808u, picture);
    pos = pictures.GetStartPosition();
    while (pos) {
        UINT id;
        pictures.GetNextAssoc(pos, id, picture);
    }
    pictures.RemoveAll();

    windows.AddTail(static_cast<CWnd*>(nullptr));
    pos = windows.GetHeadPosition();
    while (pos) {
        POSITION at = pos;
        (void)windows.GetNext(pos);
        windows.RemoveAt(at);
    }
    (void)windows.GetTail();
    (void)windows.GetCount();
    (void)windows.IsEmpty();
    (void)windows.Find(nullptr);
    windows.RemoveAll();

    CList<CWnd*> controls(10);
    controls.AddTail(static_cast<CWnd*>(nullptr));
    CList<DWORD, const DWORD&> nodes;
    nodes.AddTail(DWORD(1));

    CArray<COLORREF, COLORREF> colours;
    (void)colours.Add(RGB(1, 2, 3));
    (void)colours.GetSize();
    (void)colours.GetData();
    colours.SetSize(0);
    colours.RemoveAll();

    // Arrays and maps of plain values and handles (menu items, popup frames, PNG pictures).
    CArray<int, int> positions;
    (void)positions.Add(1);
    int& position = positions[0];
    (void)position;
    CArray<bool, bool> flags;
    (void)flags.Add(true);
    const bool flag = flags[0];
    (void)flag;
    CArray<UINT_PTR, UINT_PTR> keys;
    (void)keys.Add(UINT_PTR(1));
    for (INT_PTR i = 0; i < keys.GetSize(); ++i)
        (void)keys[i];
    keys.RemoveAll();
    CArray<HWND, HWND> handles;
    (void)handles.Add(HWND(NULL));
    (void)handles.GetSize();

    CMap<HWND, HWND, SurfaceValue*, SurfaceValue*> byWindow;
    SurfaceValue* found = NULL;
    byWindow.SetAt(HWND(NULL), &value);
    (void)byWindow.Lookup(HWND(NULL), found);
    (void)byWindow.RemoveKey(HWND(NULL));
    pos = byWindow.GetStartPosition();
    while (pos) {
        HWND key;
        byWindow.GetNextAssoc(pos, key, found);
    }
    byWindow.RemoveAll();
    CMap<HBITMAP, HBITMAP, SurfaceValue, SurfaceValue&> byBitmap;
    byBitmap.InitHashTable(17);
    byBitmap.SetAt(HBITMAP(NULL), value);
    (void)byBitmap.Lookup(HBITMAP(NULL), value);
    (void)byBitmap.RemoveKey(HBITMAP(NULL));
    pos = byBitmap.GetStartPosition();
    while (pos) {
        HBITMAP key;
        byBitmap.GetNextAssoc(pos, key, value);
    }
    byBitmap.RemoveAll();
    CMap<UINT_PTR, UINT_PTR, SurfaceValue, const SurfaceValue&> byItem;
    byItem.SetAt(UINT_PTR(1), value);
    (void)byItem.Lookup(UINT_PTR(1), value);
    (void)byItem.RemoveKey(UINT_PTR(1));
    pos = byItem.GetStartPosition();
    while (pos) {
        UINT_PTR key;
        byItem.GetNextAssoc(pos, key, value);
    }

    CStringArray texts;
    texts.SetAtGrow(3, L"x");
    (void)texts.GetSize();
    (void)texts.GetAt(0);
    texts.SetSize(0);
}

// The tree file: records built in byte arrays, read back through any CFile, memory files in tests.
inline void UseTreeFiles(CFile* file, CList<CWnd*, CWnd*>& children)
{
    Pin<ULONGLONG (CFile::*)() const>(&CFile::GetLength);
    Pin<ULONGLONG (CFile::*)() const>(&CFile::GetPosition);
    Pin<UINT (CFile::*)(void*, UINT)>(&CFile::Read);
    Pin<void (CFile::*)(const void*, UINT)>(&CFile::Write);
    Pin<CString (CFile::*)() const>(&CFile::GetFilePath);
    Pin<void (CMemFile::*)(BYTE*, UINT, UINT)>(&CMemFile::Attach);
    Pin<BYTE* (CMemFile::*)()>(&CMemFile::Detach);
    CMemFile growing(1024);
    growing.Write("tree", 4);
    (void)growing.GetLength();
    growing.SeekToBegin();
    BYTE buffer[8] = {};
    CMemFile fixed(buffer, sizeof(buffer));
    (void)fixed.Read(buffer, 4);
    (void)fixed.Seek(0, CFile::begin);
    CMemFile attached;
    attached.Attach(buffer, sizeof(buffer), 0);
    (void)attached.Detach();
    (void)file;

    CByteArray bytes;
    bytes.SetSize(16);
    (void)bytes.Add(BYTE(0xFF));
    (void)bytes.GetData();
    (void)bytes.GetSize();

    POSITION pos = children.AddTail(static_cast<CWnd*>(nullptr));
    children.SetAt(pos, nullptr);
    (void)children.GetHeadPosition();
    const CList<CWnd*, CWnd*>& readOnly = children;
    POSITION next = readOnly.GetHeadPosition();
    (void)readOnly.GetNext(next);
    (void)readOnly.GetTail();
    children.RemoveAt(pos);

    CString text;
    LPWSTR chars = text.GetBuffer(4);
    chars[0] = 0;
    text.ReleaseBuffer(0);
    CString narrow("abc", 3);
    (void)narrow;
    try {
        AfxThrowFileException(CFileException::genericException, -1, file->GetFilePath());
    } catch (CException* error) {
        error->Delete();
    }
}

// ---------------------------------------------------------------------------------------
// application, resources and extension-library start-up

inline void UseApplication()
{
    CWinApp* app = AfxGetApp();
    (void)app->m_pszAppName;
    (void)app->m_pMainWnd;
    (void)AfxGetMainWnd();
    (void)AfxGetInstanceHandle();
    (void)AfxGetResourceHandle();
    (void)AfxFindResourceHandle(L"BMP_ZO_EDIT", RT_BITMAP);
    (void)AfxGetThread();
    CWaitCursor wait;

    static AFX_EXTENSION_MODULE module = {};
    (void)AfxInitExtensionModule(module, nullptr);
    new CDynLinkLibrary(module);
    AfxTermExtensionModule(module);
}

// ---------------------------------------------------------------------------------------
// device contexts and GDI objects (memory drawing context, skins, painting)

class SurfaceMemDC : public CDC
{
public:
    BOOL PtVisible(int x, int y) const override { return CDC::PtVisible(x, y); }
    BOOL RectVisible(LPCRECT lpRect) const override { return CDC::RectVisible(lpRect); }
    BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount) override
    { return CDC::TextOut(x, y, lpszString, nCount); }
    BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                    LPINT lpDxWidths) override
    { return CDC::ExtTextOut(x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths); }
    CSize TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                        LPINT lpnTabStopPositions, int nTabOrigin) override
    { return CDC::TabbedTextOut(x, y, lpszString, nCount, nTabPositions, lpnTabStopPositions, nTabOrigin); }
    int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat) override
    { return CDC::DrawText(lpszString, nCount, lpRect, nFormat); }
    int DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat,
                   LPDRAWTEXTPARAMS lpDTParams) override
    { return CDC::DrawTextEx(lpszString, nCount, lpRect, nFormat, lpDTParams); }
    BOOL GrayString(CBrush* pBrush, BOOL (CALLBACK* lpfnOutput)(HDC, LPARAM, int), LPARAM lpData,
                    int nCount, int x, int y, int nWidth, int nHeight) override
    { return CDC::GrayString(pBrush, lpfnOutput, lpData, nCount, x, y, nWidth, nHeight); }
    int Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData) override
    { return CDC::Escape(nEscape, nCount, lpszInData, lpOutData); }
};

inline void UseDrawing(CWnd* wnd, CDC& dc, HBITMAP bitmap)
{
    Pin<BOOL (CDC::*)(int, int, int, int, CDC*, int, int, int, int, BLENDFUNCTION)>(&CDC::AlphaBlend);
    Pin<BOOL (CDC::*)(int, int, int, int, CDC*, int, int, int, int, UINT)>(&CDC::TransparentBlt);
    Pin<BOOL (CDC::*)(int, int, int, int, CDC*, int, int, DWORD)>(&CDC::BitBlt);
    Pin<int (CDC::*)() const>(&CDC::GetBkMode);
    Pin<int (CDC::*)(int)>(&CDC::SetBkMode);
    Pin<CSize (CDC::*)(LPCTSTR, int) const>(&CDC::GetTextExtent);
    Pin<CSize (CDC::*)(const CString&) const>(&CDC::GetTextExtent);
    Pin<CPoint (CDC::*)(int, int)>(&CDC::MoveTo);
    Pin<CPoint (CDC::*)(POINT)>(&CDC::MoveTo);
    Pin<BOOL (CDC::*)(int, int)>(&CDC::LineTo);
    Pin<BOOL (CDC::*)(POINT)>(&CDC::LineTo);
    Pin<COLORREF (CDC::*)(int, int) const>(&CDC::GetPixel);
    Pin<COLORREF (CDC::*)(int, int, COLORREF)>(&CDC::SetPixel);
    Pin<BOOL (CDC::*)(int, int, int, int)>(&CDC::Rectangle);
    Pin<BOOL (CDC::*)(int, int, int, int)>(&CDC::Ellipse);
    Pin<BOOL (CDC::*)(CRgn*, CBrush*)>(&CDC::FillRgn);
    Pin<void (CDC::*)(LPCRECT, COLORREF)>(&CDC::FillSolidRect);
    Pin<void (CDC::*)(int, int, int, int, COLORREF)>(&CDC::FillSolidRect);
    Pin<void (CDC::*)(LPCRECT, COLORREF, COLORREF)>(&CDC::Draw3dRect);
    Pin<int (CDC::*)(const CString&, LPRECT, UINT)>(&CDC::DrawText);
    Pin<BOOL (CDC::*)(int, int, const CString&)>(&CDC::TextOut);
    Pin<int (CDC::*)(LPRECT) const>(&CDC::GetClipBox);
    Pin<CPen* (CDC::*)(CPen*)>(&CDC::SelectObject);
    Pin<CFont* (CDC::*)(CFont*)>(&CDC::SelectObject);
    Pin<int (CFont::*)(LOGFONT*)>(&CFont::GetLogFont);
    Pin<BOOL (CGdiObject::*)(HGDIOBJ)>(&CGdiObject::Attach);
    Pin<HGDIOBJ (CGdiObject::*)()>(&CGdiObject::Detach);
    Pin<BOOL (CRgn::*)(LPPOINT, int, int)>(&CRgn::CreatePolygonRgn);
    Pin<int (CRgn::*)(CRgn*, CRgn*, int)>(&CRgn::CombineRgn);
    Pin<int (CRgn::*)(CRgn*)>(&CRgn::CopyRgn);
    Pin<BOOL (CRgn::*)(CRgn*) const>(&CRgn::EqualRgn);

    CDC memory;
    (void)memory.CreateCompatibleDC(&dc);
    (void)memory.Attach(::CreateCompatibleDC(dc.GetSafeHdc()));
    (void)memory.m_hDC;
    HGDIOBJ previous = ::SelectObject(memory.GetSafeHdc(), bitmap);
    (void)dc.BitBlt(0, 0, 10, 10, &memory, 0, 0, SRCCOPY);
    ::SelectObject(memory.GetSafeHdc(), previous);
    (void)memory.DeleteDC();
    (void)memory.Detach();
    (void)CDC::FromHandle(dc.GetSafeHdc());

    CRect rect(0, 0, 10, 10);
    dc.FillSolidRect(&rect, RGB(1, 2, 3));
    dc.FillSolidRect(0, 0, 1, 1, RGB(1, 2, 3));
    CBrush brush;
    (void)brush.CreateSolidBrush(RGB(1, 2, 3));
    dc.FillRect(&rect, &brush);
    dc.Draw3dRect(&rect, RGB(1, 1, 1), RGB(2, 2, 2));
    dc.DrawFocusRect(&rect);
    CString caption(L"Hy");
    (void)dc.DrawText(caption, &rect, DT_CALCRECT | DT_SINGLELINE);
    (void)dc.DrawText(L"Hy", -1, &rect, DT_SINGLELINE);
    (void)dc.TextOut(0, 0, caption);
    (void)dc.GetTextExtent(caption);
    TEXTMETRIC metrics;
    (void)dc.GetTextMetrics(&metrics);
    (void)dc.SetTextColor(RGB(1, 2, 3));
    (void)dc.SetBkColor(RGB(1, 2, 3));
    (void)dc.SetBkMode(TRANSPARENT);
    (void)dc.SetTextAlign(TA_CENTER);
    (void)dc.SetROP2(R2_XORPEN);
    (void)dc.SetStretchBltMode(COLORONCOLOR);
    (void)dc.MoveTo(0, 0);
    (void)dc.LineTo(1, 1);
    (void)dc.MoveTo(CPoint(0, 0));
    (void)dc.LineTo(CPoint(1, 1));
    (void)dc.Rectangle(&rect);
    (void)dc.Rectangle(0, 0, 4, 4);
    (void)dc.GetBkMode();
    (void)dc.GetTextExtent(L"Hy", 2);
    BLENDFUNCTION blend = { AC_SRC_OVER, 0, 255, AC_SRC_ALPHA };
    (void)dc.AlphaBlend(0, 0, 10, 10, &memory, 0, 0, 10, 10, blend);
    (void)dc.TransparentBlt(0, 0, 10, 10, &memory, 0, 0, 10, 10, RGB(255, 0, 255));
    (void)dc.Ellipse(0, 0, 4, 4);
    (void)dc.GetPixel(0, 0);
    (void)dc.SetPixel(0, 0, RGB(1, 2, 3));
    (void)dc.ExcludeClipRect(&rect);
    const int saved = dc.SaveDC();
    (void)dc.RestoreDC(saved);
    (void)dc.GetTextColor();
    (void)dc.IntersectClipRect(&rect);
    Pin<int (CDC::*)()>(&CDC::SaveDC);
    Pin<BOOL (CDC::*)(int)>(&CDC::RestoreDC);
    (void)dc.RestoreDC(dc.SaveDC());
    (void)dc.GetClipBox(&rect);
    (void)dc.DrawIcon(0, 0, ::LoadIcon(nullptr, IDI_APPLICATION));
    (void)dc.DrawFrameControl(&rect, DFC_BUTTON, DFCS_BUTTONCHECK);
    (void)dc.SelectStockObject(NULL_BRUSH);

    CPen pen(PS_SOLID, 1, RGB(1, 2, 3));
    CPen* oldPen = dc.SelectObject(&pen);
    dc.SelectObject(oldPen);
    CFont font;
    (void)font.CreateFont(-12, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                          OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, PROOF_QUALITY, DEFAULT_PITCH,
                          L"Segoe UI");
    LOGFONT logFont;
    (void)font.GetLogFont(&logFont);
    CFont rotated;
    (void)rotated.CreateFontIndirect(&logFont);
    CFont* oldFont = dc.SelectObject(&font);
    dc.SelectObject(oldFont);
    (void)font.Attach(::CreateFontIndirect(&logFont));
    HFONT handle = font;
    (void)handle;
    (void)font.DeleteObject();
    (void)CFont::FromHandle(handle);

    CRgn region, other;
    (void)region.CreateRectRgn(0, 0, 10, 10);
    (void)other.CreateRectRgnIndirect(&rect);
    (void)region.CombineRgn(&region, &other, RGN_DIFF);
    POINT triangle[3] = { { 0, 0 }, { 4, 4 }, { 0, 4 } };
    CRgn arrow;
    (void)arrow.CreatePolygonRgn(triangle, 3, ALTERNATE);
    (void)dc.FillRgn(&arrow, &brush);
    CBrush solid(RGB(1, 2, 3));
    (void)dc.FillRgn(&arrow, &solid);
    (void)region.CopyRgn(&other);
    (void)region.EqualRgn(&other);
    (void)dc.SelectClipRgn(&region);
    (void)region.GetSafeHandle();

    CPaintDC paint(wnd);
    CClientDC client(wnd);
    CWindowDC window(wnd);
    (void)paint.m_ps;
}

// ---------------------------------------------------------------------------------------
// image lists and PNG pictures (button images, tree-list expanders, menu icons)

inline void UseImages(CImageList& images, CDC& dc)
{
    (void)images.Create(36, 18, ILC_MASK | ILC_COLOR24, 5, 0);
    CBitmap bitmap;
    (void)bitmap.LoadBitmap(L"BMP_ZO_TREELISTICON");
    (void)images.Add(&bitmap, RGB(255, 0, 255));
    (void)images.GetImageCount();
    (void)images.Draw(&dc, 0, CPoint(0, 0), ILD_NORMAL);
    HIMAGELIST handle = images;
    (void)handle;
    (void)images.GetSafeHandle();
    (void)images.m_hImageList;
    (void)images.DeleteImageList();
    (void)CImageList::FromHandle(handle);
}

inline void UsePngImage()
{
    CPngImage png;
    (void)png.Load(808, nullptr);
    HBITMAP bitmap = static_cast<HBITMAP>(png.Detach());
    ::DeleteObject(bitmap);
}

// ---------------------------------------------------------------------------------------
// generic themed window: message routing, styles, sub-classing, menu forwarding

class SurfaceWnd : public CWnd
{
    DECLARE_DYNAMIC(SurfaceWnd)
public:
    BOOL PreTranslateMessage(MSG* pMsg) override { return CWnd::PreTranslateMessage(pMsg); }
    BOOL DestroyWindow() override { return CWnd::DestroyWindow(); }
    BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                CWnd* pParentWnd, UINT nID, CCreateContext* pContext = NULL) override
    { return CWnd::Create(lpszClassName, lpszWindowName, dwStyle, rect, pParentWnd, nID, pContext); }
    BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                  const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam = NULL) override
    { return CWnd::CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect, pParentWnd, nID, lpParam); }
protected:
    void PreSubclassWindow() override { CWnd::PreSubclassWindow(); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    { return CWnd::WindowProc(message, wParam, lParam); }
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override
    { return CWnd::OnWndMsg(message, wParam, lParam, pResult); }
    BOOL PreCreateWindow(CREATESTRUCT& cs) override { return CWnd::PreCreateWindow(cs); }
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    { return CWnd::DefWindowProc(message, wParam, lParam); }

    afx_msg LRESULT OnMsgGetCurrentZoTheme(WPARAM, LPARAM) { return -1; }
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct) { return CWnd::OnCreate(lpCreateStruct); }
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct) { return CWnd::OnNcCreate(lpCreateStruct); }
    afx_msg void OnDestroy() { CWnd::OnDestroy(); }
    afx_msg void OnSize(UINT nType, int cx, int cy) { CWnd::OnSize(nType, cx, cy); }
    afx_msg void OnPaint() { CWnd::OnPaint(); }
    afx_msg BOOL OnEraseBkgnd(CDC* pDC) { return CWnd::OnEraseBkgnd(pDC); }
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu)
    { CWnd::OnInitMenuPopup(pPopupMenu, nIndex, bSysMenu); }
    afx_msg LRESULT OnMenuChar(UINT nChar, UINT nFlags, CMenu* pMenu)
    { return CWnd::OnMenuChar(nChar, nFlags, pMenu); }
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct)
    { CWnd::OnMeasureItem(nIDCtl, lpMeasureItemStruct); }
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct)
    { CWnd::OnDrawItem(nIDCtl, lpDrawItemStruct); }
    afx_msg void OnMouseMove(UINT nFlags, CPoint point) { CWnd::OnMouseMove(nFlags, point); }
    afx_msg void OnMouseLeave() { CWnd::OnMouseLeave(); }
    afx_msg void OnCaptureChanged(CWnd* pWnd) { CWnd::OnCaptureChanged(pWnd); }
    afx_msg void OnCancelMode() { CWnd::OnCancelMode(); }
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt) { return CWnd::OnMouseWheel(nFlags, zDelta, pt); }
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point) { CWnd::OnLButtonDown(nFlags, point); }
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point) { CWnd::OnLButtonUp(nFlags, point); }
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point) { CWnd::OnLButtonDblClk(nFlags, point); }
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point) { CWnd::OnRButtonDown(nFlags, point); }
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point) { CWnd::OnRButtonUp(nFlags, point); }
    afx_msg void OnTimer(UINT_PTR nIDEvent) { CWnd::OnTimer(nIDEvent); }
    afx_msg void OnKillFocus(CWnd* pNewWnd) { CWnd::OnKillFocus(pNewWnd); }
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags) { CWnd::OnChar(nChar, nRepCnt, nFlags); }
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) { CWnd::OnHScroll(nSBCode, nPos, pScrollBar); }
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) { CWnd::OnVScroll(nSBCode, nPos, pScrollBar); }
    afx_msg void OnNcPaint() { CWnd::OnNcPaint(); }
    afx_msg BOOL OnNcActivate(BOOL bActive) { return CWnd::OnNcActivate(bActive); }
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp) { CWnd::OnNcCalcSize(bCalcValidRects, lpncsp); }
    afx_msg LRESULT OnNcHitTest(CPoint point) { return CWnd::OnNcHitTest(point); }
    afx_msg void OnNcMouseMove(UINT nHitTest, CPoint point) { CWnd::OnNcMouseMove(nHitTest, point); }
    afx_msg void OnNcMouseLeave() { CWnd::OnNcMouseLeave(); }
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point) { CWnd::OnNcLButtonDown(nHitTest, point); }
    afx_msg void OnNcLButtonUp(UINT nHitTest, CPoint point) { CWnd::OnNcLButtonUp(nHitTest, point); }
    afx_msg void OnNcLButtonDblClk(UINT nHitTest, CPoint point) { CWnd::OnNcLButtonDblClk(nHitTest, point); }
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized) { CWnd::OnActivate(nState, pWndOther, bMinimized); }
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus) { CWnd::OnShowWindow(bShow, nStatus); }
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message) { return CWnd::OnSetCursor(pWnd, nHitTest, message); }
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor) { return CWnd::OnCtlColor(pDC, pWnd, nCtlColor); }
    afx_msg void OnHeaderItemClick(NMHDR*, LRESULT* pResult) { *pResult = 0; }
    afx_msg void OnCheckClicked() { (void)Default(); }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNAMIC(SurfaceWnd, CWnd)

BEGIN_MESSAGE_MAP(SurfaceWnd, CWnd)
    ON_MESSAGE(WM_APP + 2, &SurfaceWnd::OnMsgGetCurrentZoTheme)
    ON_WM_CREATE()
    ON_WM_NCCREATE()
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_INITMENUPOPUP()
    ON_WM_MENUCHAR()
    ON_WM_MEASUREITEM()
    ON_WM_DRAWITEM()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_CAPTURECHANGED()
    ON_WM_CANCELMODE()
    ON_WM_MOUSEWHEEL()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONDOWN()
    ON_WM_RBUTTONUP()
    ON_WM_TIMER()
    ON_WM_KILLFOCUS()
    ON_WM_CHAR()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_NCPAINT()
    ON_WM_NCACTIVATE()
    ON_WM_NCCALCSIZE()
    ON_WM_NCHITTEST()
    ON_WM_NCMOUSEMOVE()
    ON_WM_NCMOUSELEAVE()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_NCLBUTTONUP()
    ON_WM_NCLBUTTONDBLCLK()
    ON_WM_ACTIVATE()
    ON_WM_SHOWWINDOW()
    ON_WM_SETCURSOR()
    ON_WM_CTLCOLOR()
    ON_NOTIFY(HDN_ITEMCLICKW, 0, &SurfaceWnd::OnHeaderItemClick)
    ON_BN_CLICKED(805, &SurfaceWnd::OnCheckClicked)
END_MESSAGE_MAP()

inline void UseWindow(CWnd* wnd, CWnd* parent)
{
    Pin<CWnd* (PASCAL*)(HWND)>(&CWnd::FromHandle);
    Pin<CWnd* (PASCAL*)(HWND)>(&CWnd::FromHandlePermanent);
    Pin<DWORD (CWnd::*)() const>(&CWnd::GetStyle);
    Pin<DWORD (CWnd::*)() const>(&CWnd::GetExStyle);
    Pin<BOOL (CWnd::*)(DWORD, DWORD, UINT)>(&CWnd::ModifyStyle);
    Pin<BOOL (CWnd::*)(DWORD, DWORD, UINT)>(&CWnd::ModifyStyleEx);
    Pin<HWND (CWnd::*)() const>(&CWnd::GetSafeHwnd);
    Pin<BOOL (CWnd::*)(HWND)>(&CWnd::SubclassWindow);
    Pin<HWND (CWnd::*)()>(&CWnd::UnsubclassWindow);
    Pin<BOOL (CWnd::*)(UINT, CWnd*)>(&CWnd::SubclassDlgItem);
    Pin<int (CWnd::*)() const>(&CWnd::GetDlgCtrlID);
    Pin<LRESULT (CWnd::*)(UINT, WPARAM, LPARAM)>(&CWnd::SendMessage);
    Pin<BOOL (CWnd::*)(UINT, WPARAM, LPARAM)>(&CWnd::PostMessage);
    Pin<CWnd* (CWnd::*)()>(&CWnd::SetCapture);
    Pin<CWnd* (PASCAL*)()>(&CWnd::GetCapture);
    Pin<void (CWnd::*)(CWnd*, LPPOINT, UINT) const>(&CWnd::MapWindowPoints);
    Pin<void (CWnd::*)(CWnd*, LPRECT) const>(&CWnd::MapWindowPoints);
    Pin<void (CWnd::*)(LPRECT) const>(&CWnd::GetClientRect);
    Pin<void (CWnd::*)(LPRECT) const>(&CWnd::GetWindowRect);
    Pin<void (CWnd::*)(LPPOINT) const>(&CWnd::ClientToScreen);
    Pin<void (CWnd::*)(LPRECT) const>(&CWnd::ClientToScreen);
    Pin<void (CWnd::*)(LPPOINT) const>(&CWnd::ScreenToClient);
    Pin<void (CWnd::*)(LPRECT) const>(&CWnd::ScreenToClient);
    Pin<void (CWnd::*)(CString&) const>(&CWnd::GetWindowText);
    Pin<CWnd* (CWnd::*)() const>(&CWnd::GetParent);
    Pin<CFrameWnd* (CWnd::*)() const>(&CWnd::GetParentFrame);
    Pin<CFont* (CWnd::*)() const>(&CWnd::GetFont);
    Pin<CMenu* (CWnd::*)(BOOL) const>(&CWnd::GetSystemMenu);
    Pin<BOOL (CWnd::*)() const>(&CWnd::IsWindowEnabled);
    Pin<void (CWnd::*)(BOOL)>(&CWnd::Invalidate);
    Pin<BOOL (CWnd::*)(LPCRECT, CRgn*, UINT)>(&CWnd::RedrawWindow);
    Pin<UINT_PTR (CWnd::*)(UINT_PTR, UINT, void (CALLBACK*)(HWND, UINT, UINT_PTR, DWORD))>(&CWnd::SetTimer);
    Pin<BOOL (CWnd::*)(UINT_PTR)>(&CWnd::KillTimer);

    HWND hwnd = wnd->m_hWnd;
    (void)CWnd::FromHandle(::GetParent(hwnd));
    (void)wnd->GetParent();
    (void)wnd->SendMessage(WM_APP + 2, 0, 0);
    (void)wnd->SendMessage(WM_SETREDRAW);
    (void)wnd->PostMessage(WM_KEYDOWN, VK_ESCAPE);
    (void)wnd->ModifyStyle(WS_BORDER, 0);
    (void)wnd->ModifyStyleEx(0, WS_EX_TOOLWINDOW);
    wnd->Invalidate();
    wnd->Invalidate(FALSE);
    CRect rect;
    wnd->InvalidateRect(&rect, FALSE);
    CRgn region;
    wnd->InvalidateRgn(&region, FALSE);
    wnd->UpdateWindow();
    wnd->GetClientRect(&rect);
    wnd->GetWindowRect(&rect);
    wnd->ScreenToClient(&rect);
    CPoint point;
    wnd->ScreenToClient(&point);
    wnd->ClientToScreen(&rect);
    wnd->ClientToScreen(&point);
    wnd->MoveWindow(0, 0, 10, 10, FALSE);
    wnd->MoveWindow(&rect);
    (void)wnd->SetWindowPos(&CWnd::wndTopMost, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_FRAMECHANGED);
    (void)wnd->SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOZORDER);
    (void)wnd->IsWindowEnabled();
    (void)wnd->IsWindowVisible();
    (void)wnd->EnableWindow(FALSE);
    CString text;
    wnd->GetWindowText(text);
    (void)wnd->GetWindowTextLength();
    wnd->MapWindowPoints(parent, &rect);
    wnd->MapWindowPoints(parent, &point, 1);
    (void)wnd->SetCapture();
    (void)CWnd::GetCapture();
    wnd->SetWindowText(L"Dialog");
    (void)wnd->SetFocus();
    (void)wnd->SetCapture();
    (void)CWnd::GetCapture();
    (void)CWnd::GetFocus();
    CDC* dc = wnd->GetDC();
    wnd->ReleaseDC(dc);
    (void)wnd->EnableToolTips(TRUE);
    (void)wnd->GetDlgItem(801);
    (void)wnd->SetTimer(0x8018, 1000, nullptr);
    (void)wnd->KillTimer(0x8018);
    wnd->CenterWindow();
    (void)wnd->ShowWindow(SW_RESTORE);
    (void)wnd->IsZoomed();
    (void)wnd->IsIconic();
    (void)wnd->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    (void)wnd->LockWindowUpdate();
    wnd->UnlockWindowUpdate();
    (void)wnd->GetMenu();
    (void)wnd->GetSystemMenu(FALSE);
    (void)wnd->GetParentFrame();
    (void)wnd->GetFont();
    wnd->SetFont(wnd->GetFont(), TRUE);
    wnd->SetRedraw(FALSE);
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    (void)wnd->GetScrollInfo(SB_VERT, &info, SIF_ALL);
    (void)wnd->SetScrollInfo(SB_CTL, &info, FALSE);
    (void)wnd->GetScrollPos(SB_CTL);
    (void)wnd->SubclassWindow(hwnd);
    (void)wnd->UnsubclassWindow();
    (void)wnd->SubclassDlgItem(805, parent);
    (void)wnd->IsKindOf(RUNTIME_CLASS(CWnd));
    (void)wnd->DestroyWindow();
}

// ---------------------------------------------------------------------------------------
// self-drawn windows: classes with a second, abstract base beside their MFC base, and a
// template over the MFC class that adds no message map, so that the message maps of the
// classes derived from it name the MFC class (or the themed window) as their base

class SurfaceUIMixin
{
public:
    virtual int GetTheme() const = 0;
protected:
    ~SurfaceUIMixin() {}
};

class SurfacePaintMixin
{
public:
    virtual void DrawClient(CDC& dc) = 0;
protected:
    ~SurfacePaintMixin() {}
};

template <class TBase>
class SurfacePainted : public TBase, public SurfacePaintMixin
{
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_PRINTCLIENT) {
            CDC* dc = CDC::FromHandle(reinterpret_cast<HDC>(wParam));
            DrawClient(*dc);
            return 0;
        }
        return TBase::WindowProc(message, wParam, lParam);
    }
};

class SurfaceThemedWnd : public CWnd, public SurfaceUIMixin
{
    DECLARE_DYNAMIC(SurfaceThemedWnd)
public:
    int GetTheme() const override { return 0; }
protected:
    afx_msg LRESULT OnMsgGetCurrentZoTheme(WPARAM, LPARAM) { return GetTheme(); }
    afx_msg void OnSize(UINT nType, int cx, int cy) { CWnd::OnSize(nType, cx, cy); }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNAMIC(SurfaceThemedWnd, CWnd)

BEGIN_MESSAGE_MAP(SurfaceThemedWnd, CWnd)
    ON_MESSAGE(WM_APP + 2, &SurfaceThemedWnd::OnMsgGetCurrentZoTheme)
    ON_WM_SIZE()
END_MESSAGE_MAP()

class SurfaceSeparator : public SurfacePainted<SurfaceThemedWnd>
{
    DECLARE_DYNAMIC(SurfaceSeparator)
public:
    void DrawClient(CDC&) override {}
protected:
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point) { SurfaceThemedWnd::OnLButtonDown(nFlags, point); }
    afx_msg void OnCaptureChanged(CWnd* pWnd) { SurfaceThemedWnd::OnCaptureChanged(pWnd); }
    afx_msg void OnCancelMode() { SurfaceThemedWnd::OnCancelMode(); }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNAMIC(SurfaceSeparator, SurfaceThemedWnd)

BEGIN_MESSAGE_MAP(SurfaceSeparator, SurfaceThemedWnd)
    ON_WM_LBUTTONDOWN()
    ON_WM_CAPTURECHANGED()
    ON_WM_CANCELMODE()
END_MESSAGE_MAP()

class SurfacePaintedButton : public SurfacePainted<CButton>
{
    DECLARE_DYNAMIC(SurfacePaintedButton)
public:
    void DrawClient(CDC&) override {}
protected:
    afx_msg void OnMouseMove(UINT nFlags, CPoint point) { CButton::OnMouseMove(nFlags, point); }
    afx_msg void OnMouseLeave() { CButton::OnMouseLeave(); }
    afx_msg void OnCaptureChanged(CWnd* pWnd) { CButton::OnCaptureChanged(pWnd); }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNAMIC(SurfacePaintedButton, CButton)

BEGIN_MESSAGE_MAP(SurfacePaintedButton, CButton)
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_CAPTURECHANGED()
END_MESSAGE_MAP()

class SurfacePaintedSpin : public SurfacePainted<CSpinButtonCtrl>
{
    DECLARE_DYNAMIC(SurfacePaintedSpin)
public:
    void DrawClient(CDC&) override {}
protected:
    afx_msg void OnCaptureChanged(CWnd* pWnd) { CSpinButtonCtrl::OnCaptureChanged(pWnd); }
    afx_msg void OnCancelMode() { CSpinButtonCtrl::OnCancelMode(); }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNAMIC(SurfacePaintedSpin, CSpinButtonCtrl)

BEGIN_MESSAGE_MAP(SurfacePaintedSpin, CSpinButtonCtrl)
    ON_WM_CAPTURECHANGED()
    ON_WM_CANCELMODE()
END_MESSAGE_MAP()

// ---------------------------------------------------------------------------------------
// menus (owner-drawn menus, range-slider reset menu)

class SurfaceMenu : public CMenu
{
public:
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override { CMenu::DrawItem(lpDrawItemStruct); }
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override { CMenu::MeasureItem(lpMeasureItemStruct); }
};

inline void UseMenus(CMenu& menu, CWnd* owner)
{
    Pin<CMenu* (PASCAL*)(HMENU)>(&CMenu::FromHandle);
    Pin<UINT (CMenu::*)() const>(&CMenu::GetMenuItemCount);
    Pin<UINT (CMenu::*)(int) const>(&CMenu::GetMenuItemID);
    Pin<UINT (CMenu::*)(UINT, UINT) const>(&CMenu::GetMenuState);
    Pin<int (CMenu::*)(UINT, LPTSTR, int, UINT) const>(&CMenu::GetMenuString);
    Pin<int (CMenu::*)(UINT, CString&, UINT) const>(&CMenu::GetMenuString);
    Pin<BOOL (CMenu::*)(UINT, LPMENUITEMINFO, BOOL)>(&CMenu::GetMenuItemInfo);
    Pin<BOOL (CMenu::*)(UINT, LPMENUITEMINFO, BOOL)>(&CMenu::SetMenuItemInfo);
    Pin<CMenu* (CMenu::*)(int) const>(&CMenu::GetSubMenu);
    Pin<BOOL (CMenu::*)(UINT, UINT_PTR, LPCTSTR)>(&CMenu::AppendMenu);
    Pin<BOOL (CMenu::*)(UINT, UINT, UINT_PTR, LPCTSTR)>(&CMenu::ModifyMenu);
    Pin<BOOL (CMenu::*)(UINT, int, int, CWnd*, LPCRECT)>(&CMenu::TrackPopupMenu);
    Pin<HMENU (CMenu::*)() const>(&CMenu::GetSafeHmenu);

    HMENU handle = menu.m_hMenu;
    (void)CMenu::FromHandle(handle);
    (void)menu.CreatePopupMenu();
    (void)menu.AppendMenu(MF_STRING, 1, L"Reset range");
    (void)menu.AppendMenu(MF_SEPARATOR);
    (void)menu.TrackPopupMenu(TPM_RETURNCMD | TPM_BOTTOMALIGN | TPM_CENTERALIGN, 0, 0, owner);
    (void)menu.GetMenuItemCount();
    MENUITEMINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE | MIIM_DATA;
    (void)menu.GetMenuItemInfo(0, &info, TRUE);
    (void)menu.SetMenuItemInfo(0, &info, TRUE);
    CString text;
    (void)menu.GetMenuString(0, text, MF_BYPOSITION);
    (void)menu.GetMenuItemID(0);
    (void)menu.GetMenuState(0, MF_BYPOSITION);
    (void)menu.GetSubMenu(0);
    (void)menu.GetDefaultItem(GMDI_USEDISABLED, TRUE);
    (void)menu.ModifyMenu(0, MF_BYPOSITION | MF_OWNERDRAW, 1);
    (void)menu.DestroyMenu();
    (void)menu.GetSafeHmenu();
    (void)(HMENU)menu;
}

// ---------------------------------------------------------------------------------------
// buttons (skinned button, variants, message-box buttons, tooltips)

class SurfaceButton : public CButton
{
public:
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override { CButton::DrawItem(lpDrawItemStruct); }
};

inline void UseButtons(CButton& button, CToolTipCtrl& tip, CWnd* parent)
{
    Pin<UINT (CButton::*)() const>(&CButton::GetState);
    Pin<int (CButton::*)() const>(&CButton::GetCheck);
    Pin<void (CButton::*)(int)>(&CButton::SetCheck);
    Pin<UINT (CButton::*)() const>(&CButton::GetButtonStyle);
    Pin<void (CButton::*)(UINT, BOOL)>(&CButton::SetButtonStyle);
    Pin<HBITMAP (CButton::*)() const>(&CButton::GetBitmap);
    Pin<HICON (CButton::*)() const>(&CButton::GetIcon);
    Pin<BOOL (CButton::*)(SIZE*)>(&CButton::GetIdealSize);
    Pin<BOOL (CButton::*)(PBUTTON_IMAGELIST)>(&CButton::GetImageList);
    Pin<BOOL (CButton::*)(RECT*)>(&CButton::GetTextMargin);

    (void)button.Create(L"OK", WS_CHILD | BS_PUSHBUTTON, CRect(0, 0, 10, 10), parent, 802);
    (void)button.GetState();
    button.SetState(TRUE);
    (void)button.GetCheck();
    button.SetCheck(BST_CHECKED);
    (void)button.GetButtonStyle();
    button.SetButtonStyle(BS_DEFPUSHBUTTON, FALSE);
    (void)button.GetBitmap();
    (void)button.SetBitmap(nullptr);
    (void)button.GetIcon();
    (void)button.SetIcon(nullptr);

    (void)tip.Create(&button, WS_POPUP | TTS_ALWAYSTIP);
    (void)tip.AddTool(&button, L"tip");
    tip.UpdateTipText(L"tip", &button);
    tip.Activate(TRUE);
    MSG message = {};
    tip.RelayEvent(&message);
    (void)tip.SetMaxTipWidth(300);
    tip.SetDelayTime(TTDT_AUTOPOP, 5000);
    tip.DelTool(&button);
    (void)tip.GetToolCount();
}

// ---------------------------------------------------------------------------------------
// statics, separator, progress bar, spin button

inline void UseStaticsAndIndicators(CStatic& label, CProgressCtrl& progress, CSpinButtonCtrl& spin, CWnd* parent)
{
    (void)label.Create(L"Static", WS_CHILD | SS_LEFT, CRect(0, 0, 10, 10), parent, 800);
    (void)label.GetBitmap();
    (void)label.SetBitmap(nullptr);
    (void)label.GetIcon();
    (void)label.SetIcon(nullptr);

    Pin<int (CProgressCtrl::*)()>(&CProgressCtrl::GetPos);
    Pin<void (CProgressCtrl::*)(int&, int&)>(&CProgressCtrl::GetRange);
    Pin<int (CSpinButtonCtrl::*)() const>(&CSpinButtonCtrl::GetPos);
    Pin<void (CSpinButtonCtrl::*)(int&, int&) const>(&CSpinButtonCtrl::GetRange);
    Pin<void (CSpinButtonCtrl::*)(int&, int&) const>(&CSpinButtonCtrl::GetRange32);

    (void)progress.Create(WS_CHILD | PBS_VERTICAL, CRect(0, 0, 10, 10), parent, 1);
    int low = 0, high = 0;
    progress.GetRange(low, high);
    progress.SetRange32(10, 110);
    (void)progress.GetPos();
    (void)progress.SetPos(60);

    (void)spin.Create(WS_CHILD | UDS_HORZ, CRect(0, 0, 10, 10), parent, 2);
    spin.GetRange32(low, high);
    spin.GetRange(low, high);
    spin.SetRange32(0, 10);
    (void)spin.GetPos();
    (void)spin.GetPos32();
    (void)spin.SetPos(3);
    (void)spin.SetPos32(3);
    (void)spin.SetBuddy(parent);
    (void)spin.GetBuddy();
}

// ---------------------------------------------------------------------------------------
// skinned dialog and message boxes

class SurfaceDialog : public CDialog
{
public:
    SurfaceDialog(UINT id, CWnd* parent) : CDialog(id, parent) {}
    SurfaceDialog(LPCTSTR name, CWnd* parent) : CDialog(name, parent) {}
    BOOL OnInitDialog() override { return CDialog::OnInitDialog(); }
    BOOL PreTranslateMessage(MSG* pMsg) override { return CDialog::PreTranslateMessage(pMsg); }
protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CDialog::DoDataExchange(pDX);
        DDX_Control(pDX, 800, m_message);
    }
    void OnOK() override { CDialog::OnOK(); }
    void OnCancel() override { CDialog::OnCancel(); }
    CStatic m_message;
};

// A dialog built on CDialog's default constructor, filling in the template and owner itself, as
// a class between CDialog and the host's dialogs does.
class SurfaceSkinnedDialog : public CDialog
{
public:
    SurfaceSkinnedDialog(UINT id, CWnd* parent) : CDialog()
    {
        m_lpszTemplateName = MAKEINTRESOURCEW(id);
        m_nIDHelp = id;
        m_pParentWnd = parent;
    }
protected:
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override
    { return CDialog::OnWndMsg(message, wParam, lParam, pResult); }
    afx_msg LRESULT OnSetText(WPARAM, LPARAM) { return Default(); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(SurfaceSkinnedDialog, CDialog)
    ON_MESSAGE(WM_SETTEXT, &SurfaceSkinnedDialog::OnSetText)
END_MESSAGE_MAP()

inline void UseDialog(SurfaceDialog& dialog, CWnd* wnd, CList<CWnd*>& controls, va_list args)
{
    (void)dialog.DoModal();
    dialog.EndDialog(IDOK);
    (void)wnd->SetWindowPos(&CWnd::wndBottom, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    CWindowDC windowDC(wnd);
    (void)windowDC.ExcludeClipRect(0, 0, 5, 5);
    (void)windowDC.IntersectClipRect(0, 0, 5, 5);
    CRect rect(0, 0, 5, 5);
    windowDC.Draw3dRect(&rect, RGB(1, 2, 3), RGB(1, 2, 3));
    (void)windowDC.SetTextAlign(TA_LEFT | TA_TOP);
    CString text;
    (void)windowDC.GetTextExtent(text);
    (void)windowDC.TextOut(0, 0, text);
    CRgn region;
    (void)region.CreateRectRgnIndirect(&rect);
    CBitmap bitmap;
    (void)bitmap.Attach(static_cast<HBITMAP>(NULL));
    controls.AddTail(wnd);
    (void)controls.RemoveHead();
    (void)controls.IsEmpty();
    text.FormatV(L"%d", args);
    text = AfxGetAppName();
    (void)AfxFindResourceHandle(MAKEINTRESOURCEW(801), RT_BITMAP);
    (void)AfxGetMainWnd();
}

// ---------------------------------------------------------------------------------------
// scroll bar

inline void UseScrollBar(CScrollBar& bar, CWnd* parent)
{
    (void)bar.Create(WS_CHILD | SBS_VERT, CRect(0, 0, 10, 10), parent, 3);
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    (void)bar.GetScrollInfo(&info, SIF_ALL);
    (void)bar.SetScrollInfo(&info, FALSE);
    (void)bar.GetScrollPos();
    (void)bar.SetScrollPos(3, TRUE);
    int low = 0, high = 0;
    bar.GetScrollRange(&low, &high);
    bar.SetScrollRange(0, 10, TRUE);
    (void)bar.GetScrollLimit();
    (void)bar.EnableScrollBar(ESB_ENABLE_BOTH);
    bar.ShowScrollBar(TRUE);
}

// ---------------------------------------------------------------------------------------
// slider and range slider

inline void UseSlider(CSliderCtrl& slider, CWnd* parent)
{
    (void)slider.Create(WS_CHILD | TBS_ENABLESELRANGE, CRect(0, 0, 10, 10), parent, 4);
    slider.SetSelection(1, 5);
    int start = 0, end = 0;
    slider.GetSelection(start, end);
    slider.SetRange(0, 100, TRUE);
    (void)slider.GetRangeMin();
    (void)slider.GetRangeMax();
    slider.GetRange(start, end);
    CRect rect;
    slider.GetChannelRect(&rect);
    slider.GetThumbRect(&rect);
    (void)slider.GetPos();
    slider.SetPos(5);
    (void)slider.GetNumTics();
    (void)slider.GetTicPos(0);
    (void)slider.SetTic(5);
    slider.SetTicFreq(10);
    slider.ClearTics(TRUE);
}

// ---------------------------------------------------------------------------------------
// edit box and in-place editor

class SurfaceEdit : public CEdit
{
public:
    BOOL DestroyWindow() override { return CEdit::DestroyWindow(); }
protected:
    afx_msg HBRUSH CtlColor(CDC*, UINT) { return nullptr; }
    afx_msg BOOL OnEnKillfocus() { return FALSE; }
    afx_msg BOOL OnEnSetfocus() { return FALSE; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(SurfaceEdit, CEdit)
    ON_WM_CTLCOLOR_REFLECT()
    ON_CONTROL_REFLECT_EX(EN_KILLFOCUS, &SurfaceEdit::OnEnKillfocus)
    ON_CONTROL_REFLECT_EX(EN_SETFOCUS, &SurfaceEdit::OnEnSetfocus)
END_MESSAGE_MAP()

inline void UseEdit(CEdit& edit, CWnd* parent)
{
    (void)edit.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, CRect(0, 0, 10, 10), parent, 4745);
    int start = 0, end = 0;
    edit.GetSel(start, end);
    (void)edit.GetSel();
    edit.SetSel(0, -1);
    edit.ReplaceSel(L"x");
    edit.LimitText(5);
    edit.SetLimitText(5);
    (void)edit.GetLimitText();
    (void)edit.SetReadOnly(TRUE);
    (void)edit.GetLineCount();
    wchar_t line[16];
    (void)edit.GetLine(0, line, 16);
    (void)edit.Undo();
    edit.Cut();
    edit.Copy();
    edit.Paste();
    edit.Clear();
    edit.SetMargins(3, 3);
    CRect rect;
    edit.GetRect(&rect);
    edit.SetPasswordChar(L'*');
    (void)edit.CanUndo();
    edit.EmptyUndoBuffer();
    (void)edit.GetModify();
    edit.SetModify(FALSE);
    (void)edit.LineLength(0);
    (void)edit.LineIndex(0);
}

// ---------------------------------------------------------------------------------------
// combo box

class SurfaceCombo : public CComboBox
{
public:
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override { CComboBox::DrawItem(lpDrawItemStruct); }
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override { CComboBox::MeasureItem(lpMeasureItemStruct); }
    int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct) override { return CComboBox::CompareItem(lpCompareItemStruct); }
    void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct) override { CComboBox::DeleteItem(lpDeleteItemStruct); }
protected:
    afx_msg void OnCbnSetfocus() {}
    afx_msg BOOL OnCbnKillfocus() { return FALSE; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(SurfaceCombo, CComboBox)
    ON_CONTROL_REFLECT(CBN_SETFOCUS, &SurfaceCombo::OnCbnSetfocus)
    ON_CONTROL_REFLECT_EX(CBN_KILLFOCUS, &SurfaceCombo::OnCbnKillfocus)
END_MESSAGE_MAP()

inline void UseCombo(CComboBox& combo, CWnd* parent)
{
    Pin<BOOL (CComboBox::*)(PCOMBOBOXINFO) const>(&CComboBox::GetComboBoxInfo);

    (void)combo.Create(WS_CHILD | CBS_DROPDOWN, CRect(0, 0, 10, 100), parent, 5);
    COMBOBOXINFO info = {};
    info.cbSize = sizeof(info);
    (void)combo.GetComboBoxInfo(&info);
    (void)combo.GetDroppedState();
    (void)combo.AddString(L"x");
    (void)combo.InsertString(0, L"y");
    (void)combo.DeleteString(0);
    (void)combo.GetCount();
    (void)combo.GetCurSel();
    (void)combo.SetCurSel(0);
    CString text;
    combo.GetLBText(0, text);
    (void)combo.GetLBTextLen(0);
    (void)combo.FindString(-1, L"x");
    (void)combo.FindStringExact(-1, L"x");
    (void)combo.SelectString(-1, L"x");
    (void)combo.SetItemData(0, 1);
    (void)combo.GetItemData(0);
    (void)combo.SetItemHeight(0, 12);
    (void)combo.GetItemHeight(0);
    combo.ShowDropDown(FALSE);
    CRect rect;
    combo.GetDroppedControlRect(&rect);
    (void)combo.SetDroppedWidth(100);
    (void)combo.GetEditSel();
    (void)combo.SetEditSel(0, -1);
    (void)combo.LimitText(5);
    combo.ResetContent();
}

// ---------------------------------------------------------------------------------------
// tab control

inline void UseTabs(CTabCtrl& tabs, CWnd* parent)
{
    (void)tabs.Create(WS_CHILD | TCS_VERTICAL, CRect(0, 0, 100, 100), parent, 6);
    (void)tabs.InsertItem(0, L"Page");
    (void)tabs.GetItemCount();
    CRect rect;
    (void)tabs.GetItemRect(0, &rect);
    (void)tabs.GetCurSel();
    (void)tabs.SetCurSel(0);
    TCITEM item = {};
    item.mask = TCIF_TEXT;
    (void)tabs.GetItem(0, &item);
    TCHITTESTINFO hit = {};
    (void)tabs.HitTest(&hit);
    (void)tabs.GetCurFocus();
    tabs.AdjustRect(FALSE, &rect);
    (void)tabs.SetItemSize(CSize(25, 25));
    (void)tabs.DeleteAllItems();
}

// ---------------------------------------------------------------------------------------
// list view, header, tree-list view, plain tree

class SurfaceList : public CListCtrl
{
public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override
    { return CListCtrl::Create(dwStyle, rect, pParentWnd, nID); }
    BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override
    { return CListCtrl::CreateEx(dwExStyle, dwStyle, rect, pParentWnd, nID); }
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override { CListCtrl::DrawItem(lpDrawItemStruct); }
protected:
    afx_msg void OnCustomDraw(NMHDR*, LRESULT* pResult) { *pResult = CDRF_DODEFAULT; }
    afx_msg BOOL OnItemChanged(NMHDR*, LRESULT* pResult) { *pResult = 0; return FALSE; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(SurfaceList, CListCtrl)
    ON_NOTIFY_REFLECT(NM_CUSTOMDRAW, &SurfaceList::OnCustomDraw)
    ON_NOTIFY_REFLECT_EX(LVN_ITEMCHANGED, &SurfaceList::OnItemChanged)
END_MESSAGE_MAP()

class SurfaceHeader : public CHeaderCtrl
{
public:
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override { CHeaderCtrl::DrawItem(lpDrawItemStruct); }
};

inline int CALLBACK SurfaceCompare(LPARAM, LPARAM, LPARAM) { return 0; }

inline void UseLists(CListCtrl& list, CHeaderCtrl& header, CTreeCtrl& tree, CWnd* parent)
{
    Pin<CString (CListCtrl::*)(int, int) const>(&CListCtrl::GetItemText);
    Pin<DWORD_PTR (CListCtrl::*)(int) const>(&CListCtrl::GetItemData);
    Pin<BOOL (CListCtrl::*)(int, DWORD_PTR)>(&CListCtrl::SetItemData);
    Pin<int (CListCtrl::*)() const>(&CListCtrl::GetItemCount);
    Pin<BOOL (CListCtrl::*)(int, int, int, CRect&)>(&CListCtrl::GetSubItemRect);

    (void)list.Create(WS_CHILD | LVS_REPORT, CRect(0, 0, 100, 100), parent, 7);
    (void)list.InsertColumn(0, L"Name", LVCFMT_LEFT, 80);
    LVCOLUMN column = {};
    column.mask = LVCF_WIDTH;
    (void)list.InsertColumn(1, &column);
    (void)list.GetColumn(0, &column);
    (void)list.SetColumn(0, &column);
    (void)list.GetColumnWidth(0);
    (void)list.SetColumnWidth(0, 90);
    (void)list.DeleteColumn(1);
    (void)list.InsertItem(0, L"x");
    (void)list.InsertItem(0, L"x", 0);
    LVITEM item = {};
    item.mask = LVIF_TEXT;
    (void)list.InsertItem(&item);
    (void)list.GetItem(&item);
    (void)list.SetItem(&item);
    (void)list.GetItemText(0, 0);
    wchar_t buffer[16];
    (void)list.GetItemText(0, 0, buffer, 16);
    (void)list.SetItemText(0, 0, L"y");
    (void)list.SetItemData(0, 1);
    (void)list.GetItemData(0);
    (void)list.GetItemState(0, LVIS_SELECTED | LVIS_FOCUSED);
    (void)list.SetItemState(0, 0, LVIS_SELECTED | LVIS_FOCUSED);
    (void)list.GetNextItem(-1, LVNI_SELECTED);
    POSITION pos = list.GetFirstSelectedItemPosition();
    (void)list.GetNextSelectedItem(pos);
    (void)list.GetSelectedCount();
    CRect rect;
    (void)list.GetItemRect(0, &rect, LVIR_BOUNDS);
    (void)list.GetSubItemRect(0, 1, LVIR_LABEL, rect);
    LVHITTESTINFO hit = {};
    (void)list.HitTest(&hit);
    UINT flags = 0;
    (void)list.HitTest(CPoint(1, 1), &flags);
    (void)list.SubItemHitTest(&hit);
    (void)list.EnsureVisible(0, FALSE);
    (void)list.GetTopIndex();
    (void)list.GetCountPerPage();
    (void)list.Scroll(CSize(0, 10));
    (void)list.GetHeaderCtrl();
    (void)list.SetExtendedStyle(LVS_EX_FULLROWSELECT);
    (void)list.GetExtendedStyle();
    (void)list.GetImageList(LVSIL_SMALL);
    (void)list.SetImageList(nullptr, LVSIL_SMALL);
    (void)list.SortItems(&SurfaceCompare, 0);
    (void)list.SortItemsEx(&SurfaceCompare, 0);
    (void)list.SetBkColor(RGB(1, 2, 3));
    (void)list.SetTextColor(RGB(1, 2, 3));
    (void)list.SetTextBkColor(RGB(1, 2, 3));
    (void)list.RedrawItems(0, 1);
    (void)list.Update(0);
    LVFINDINFO find = {};
    find.flags = LVFI_STRING;
    find.psz = L"x";
    (void)list.FindItem(&find);
    (void)list.GetCheck(0);
    (void)list.DeleteItem(0);
    (void)list.DeleteAllItems();
    (void)list.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);

    (void)header.GetItemCount();
    HDITEM headerItem = {};
    headerItem.mask = HDI_FORMAT;
    (void)header.GetItem(0, &headerItem);
    (void)header.SetItem(0, &headerItem);
    (void)header.GetItemRect(0, &rect);
    (void)header.InsertItem(0, &headerItem);
    (void)header.DeleteItem(0);
    HDHITTESTINFO headerHit = {};
    (void)header.HitTest(&headerHit);
    (void)header.OrderToIndex(0);
    int order[4];
    (void)header.GetOrderArray(order, 4);

    (void)tree.Create(WS_CHILD | TVS_HASBUTTONS, CRect(0, 0, 100, 100), parent, 8);
    HTREEITEM root = tree.InsertItem(L"root");
    (void)tree.InsertItem(L"child", root);
    (void)tree.GetRootItem();
    (void)tree.GetChildItem(root);
    (void)tree.GetNextSiblingItem(root);
    (void)tree.GetParentItem(root);
    (void)tree.GetItemText(root);
    (void)tree.SetItemText(root, L"x");
    (void)tree.Expand(root, TVE_EXPAND);
    (void)tree.SelectItem(root);
    (void)tree.GetSelectedItem();
    (void)tree.DeleteAllItems();
}

// ---------------------------------------------------------------------------------------
// frames, control bars and toolbars (owner-drawn menu icons, skinned frame window)

class SurfaceFrame : public CFrameWnd
{
    DECLARE_DYNCREATE(SurfaceFrame)
protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override { return CFrameWnd::PreCreateWindow(cs); }
    void RecalcLayout(BOOL bNotify = TRUE) override { CFrameWnd::RecalcLayout(bNotify); }
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct) { return CFrameWnd::OnCreate(lpCreateStruct); }
    afx_msg void OnDestroy() { CFrameWnd::OnDestroy(); }
    afx_msg void OnSize(UINT nType, int cx, int cy) { CFrameWnd::OnSize(nType, cx, cy); }
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu)
    { CFrameWnd::OnInitMenuPopup(pPopupMenu, nIndex, bSysMenu); }
    afx_msg LRESULT OnMenuChar(UINT nChar, UINT nFlags, CMenu* pMenu)
    { return CFrameWnd::OnMenuChar(nChar, nFlags, pMenu); }
    // The skinned frame replaces the non-client area through the frame class's inherited handlers.
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp)
    { CFrameWnd::OnNcCalcSize(bCalcValidRects, lpncsp); }
    afx_msg void OnNcPaint() { CFrameWnd::OnNcPaint(); }
    afx_msg LRESULT OnNcHitTest(CPoint point) { return CFrameWnd::OnNcHitTest(point); }
    afx_msg void OnNcLButtonDblClk(UINT nHitTest, CPoint point) { CFrameWnd::OnNcLButtonDblClk(nHitTest, point); }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(SurfaceFrame, CFrameWnd)

BEGIN_MESSAGE_MAP(SurfaceFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_WM_INITMENUPOPUP()
    ON_WM_MENUCHAR()
    ON_WM_NCCALCSIZE()
    ON_WM_NCPAINT()
    ON_WM_NCHITTEST()
    ON_WM_NCLBUTTONDBLCLK()
END_MESSAGE_MAP()

inline void UseFrames(CWnd* wnd)
{
    CFrameWnd* frame = wnd->GetParentFrame();
    (void)frame->IsKindOf(RUNTIME_CLASS(CMDIChildWnd));
    (void)frame->GetActiveFrame();
    // A frame's control bars are found through its windows (the bar list is not documented).
    CWnd* child = CWnd::FromHandlePermanent(::GetWindow(frame->GetSafeHwnd(), GW_CHILD));
    CControlBar* bar = DYNAMIC_DOWNCAST(CControlBar, child);
    if (bar != NULL && bar->GetParentFrame() == frame)
        (void)bar->GetSafeHwnd();
    (void)frame->LoadFrame(1, WS_OVERLAPPEDWINDOW, nullptr, nullptr);
    (void)frame->Create(nullptr, L"Frame");
    frame->RecalcLayout(FALSE);
    frame->ActivateFrame();

    if (wnd->IsKindOf(RUNTIME_CLASS(CMDIFrameWnd))) {
        BOOL maximised = FALSE;
        CMDIChildWnd* child = static_cast<CMDIFrameWnd*>(wnd)->MDIGetActive(&maximised);
        (void)child->GetSystemMenu(FALSE);
        (void)child->GetMDIFrame();
    }
    CObject* created = RUNTIME_CLASS(SurfaceFrame)->CreateObject();
    delete created;
}

} // namespace zo_compile_surface
