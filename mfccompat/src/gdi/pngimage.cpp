// CPngImage: pictures decoded by GDI+ into 32-bit DIB sections with alpha.
//
// GDI+ is the decoder MFC itself relies on, so colours and alpha come out the same. Hosts
// usually start GDI+ themselves, but a load must also work without that: every decode holds
// its own GdiplusStartup token, which GDI+ counts alongside the host's.
#include <afxcontrolbars.h>
#include <objidl.h>
#include <gdiplus.h>

namespace {

class GdiplusSession
{
public:
    GdiplusSession() : m_token(0)
    {
        Gdiplus::GdiplusStartupInput input;
        m_started = Gdiplus::GdiplusStartup(&m_token, &input, NULL) == Gdiplus::Ok;
    }
    ~GdiplusSession()
    {
        if (m_started)
            Gdiplus::GdiplusShutdown(m_token);
    }
    bool IsStarted() const { return m_started; }

private:
    ULONG_PTR m_token;
    bool m_started;
};

IStream* NewMemoryStream(const BYTE* data, UINT size)
{
    HGLOBAL hCopy = ::GlobalAlloc(GMEM_MOVEABLE, size);
    if (hCopy == NULL)
        return NULL;
    void* copy = ::GlobalLock(hCopy);
    if (copy == NULL) {
        ::GlobalFree(hCopy);
        return NULL;
    }
    memcpy(copy, data, size);
    ::GlobalUnlock(hCopy);
    IStream* pStream = NULL;
    if (FAILED(::CreateStreamOnHGlobal(hCopy, TRUE, &pStream))) {
        ::GlobalFree(hCopy);
        return NULL;
    }
    return pStream;
}

// Copies the decoded picture into a new top-down 32-bit DIB section.
HBITMAP CopyToDibSection(Gdiplus::GpBitmap* pBitmap)
{
    using namespace Gdiplus;
    UINT width = 0, height = 0;
    if (DllExports::GdipGetImageWidth(pBitmap, &width) != Ok
        || DllExports::GdipGetImageHeight(pBitmap, &height) != Ok || width == 0 || height == 0
        || width > 0x7FFF || height > 0x7FFF)
        return NULL;

    BITMAPINFO info;
    memset(&info, 0, sizeof(info));
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = (LONG)width;
    info.bmiHeader.biHeight = -(LONG)height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = NULL;
    HBITMAP hBitmap = ::CreateDIBSection(NULL, &info, DIB_RGB_COLORS, &bits, NULL, 0);
    if (hBitmap == NULL)
        return NULL;

    Rect area(0, 0, (INT)width, (INT)height);
    BitmapData data;
    if (DllExports::GdipBitmapLockBits(pBitmap, &area, ImageLockModeRead, PixelFormat32bppARGB,
                                       &data) != Ok) {
        ::DeleteObject(hBitmap);
        return NULL;
    }
    const UINT rowBytes = width * 4;
    for (UINT row = 0; row < height; ++row)
        memcpy((BYTE*)bits + row * rowBytes, (const BYTE*)data.Scan0 + (INT_PTR)row * data.Stride,
               rowBytes);
    DllExports::GdipBitmapUnlockBits(pBitmap, &data);
    return hBitmap;
}

HBITMAP DecodePicture(const BYTE* data, UINT size)
{
    if (data == NULL || size == 0)
        return NULL;
    GdiplusSession session;
    if (!session.IsStarted())
        return NULL;
    IStream* pStream = NewMemoryStream(data, size);
    if (pStream == NULL)
        return NULL;
    HBITMAP hBitmap = NULL;
    Gdiplus::GpBitmap* pBitmap = NULL;
    if (Gdiplus::DllExports::GdipCreateBitmapFromStream(pStream, &pBitmap) == Gdiplus::Ok) {
        hBitmap = CopyToDibSection(pBitmap);
        Gdiplus::DllExports::GdipDisposeImage(pBitmap);
    }
    pStream->Release();
    return hBitmap;
}

} // namespace

CPngImage::CPngImage()
{
}

CPngImage::~CPngImage()
{
}

BOOL CPngImage::Load(UINT uiResID, HINSTANCE hinstRes)
{
    return Load(MAKEINTRESOURCE(uiResID), hinstRes);
}

BOOL CPngImage::Load(LPCTSTR lpszResourceName, HINSTANCE hinstRes)
{
    static const TCHAR pngType[] = _T("PNG");
    if (lpszResourceName == NULL)
        return FALSE;
    if (hinstRes == NULL)
        hinstRes = AfxFindResourceHandle(lpszResourceName, pngType);
    HRSRC hResource = ::FindResourceW(hinstRes, lpszResourceName, pngType);
    if (hResource == NULL)
        return FALSE;
    HGLOBAL hData = ::LoadResource(hinstRes, hResource);
    DWORD size = ::SizeofResource(hinstRes, hResource);
    LPBYTE data = hData != NULL ? (LPBYTE)::LockResource(hData) : NULL;
    return data != NULL && LoadFromBuffer(data, size);
}

BOOL CPngImage::LoadFromFile(LPCTSTR lpszPath)
{
    if (lpszPath == NULL)
        return FALSE;
    HANDLE hFile = ::CreateFileW(lpszPath, GENERIC_READ, FILE_SHARE_READ, NULL, OPEN_EXISTING,
                                 FILE_ATTRIBUTE_NORMAL, NULL);
    if (hFile == INVALID_HANDLE_VALUE)
        return FALSE;
    BOOL loaded = FALSE;
    LARGE_INTEGER size;
    // Pictures beyond a few hundred megabytes are not skin images; refuse rather than try.
    if (::GetFileSizeEx(hFile, &size) && size.QuadPart > 0 && size.QuadPart < 0x10000000) {
        DWORD length = (DWORD)size.QuadPart;
        BYTE* buffer = new (std::nothrow) BYTE[length];
        DWORD read = 0;
        if (buffer != NULL && ::ReadFile(hFile, buffer, length, &read, NULL) && read == length)
            loaded = LoadFromBuffer(buffer, length);
        delete[] buffer;
    }
    ::CloseHandle(hFile);
    return loaded;
}

BOOL CPngImage::LoadFromBuffer(LPBYTE lpBuffer, UINT uiSize)
{
    HBITMAP hBitmap = DecodePicture(lpBuffer, uiSize);
    if (hBitmap == NULL)
        return FALSE;
    // A successful load replaces the picture held before.
    DeleteObject();
    return Attach(hBitmap);
}
