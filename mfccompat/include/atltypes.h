// MFC-compatible <atltypes.h>: CSize, CPoint and CRect, thin value types over SIZE, POINT
// and RECT. Everything is inline; rectangle rules are Win32's own (IntersectRect etc.).
#pragma once
#include <windows.h>

class CSize;
class CPoint;
class CRect;

class CSize : public tagSIZE
{
public:
    CSize() throw() { cx = 0; cy = 0; }
    CSize(int initCX, int initCY) throw() { cx = initCX; cy = initCY; }
    CSize(SIZE initSize) throw() { cx = initSize.cx; cy = initSize.cy; }
    CSize(POINT initPt) throw() { cx = initPt.x; cy = initPt.y; }
    // Packed as in a message parameter: low word cx, high word cy, both signed.
    CSize(DWORD dwSize) throw() { cx = (short)LOWORD(dwSize); cy = (short)HIWORD(dwSize); }

    BOOL operator==(SIZE size) const throw() { return cx == size.cx && cy == size.cy; }
    BOOL operator!=(SIZE size) const throw() { return !(*this == size); }
    void operator+=(SIZE size) throw() { cx += size.cx; cy += size.cy; }
    void operator-=(SIZE size) throw() { cx -= size.cx; cy -= size.cy; }
    void SetSize(int CX, int CY) throw() { cx = CX; cy = CY; }

    CSize operator+(SIZE size) const throw() { return CSize(cx + size.cx, cy + size.cy); }
    CSize operator-(SIZE size) const throw() { return CSize(cx - size.cx, cy - size.cy); }
    CSize operator-() const throw() { return CSize(-cx, -cy); }
    CPoint operator+(POINT point) const throw();
    CPoint operator-(POINT point) const throw();
    CRect operator+(const RECT* lpRect) const throw();
    CRect operator-(const RECT* lpRect) const throw();
};

class CPoint : public tagPOINT
{
public:
    CPoint() throw() { x = 0; y = 0; }
    CPoint(int initX, int initY) throw() { x = initX; y = initY; }
    CPoint(POINT initPt) throw() { x = initPt.x; y = initPt.y; }
    CPoint(SIZE initSize) throw() { x = initSize.cx; y = initSize.cy; }
    // Packed as in a mouse message's lParam: signed low and high words.
    CPoint(LPARAM dwPoint) throw() { x = (short)LOWORD(dwPoint); y = (short)HIWORD(dwPoint); }

    void Offset(int xOffset, int yOffset) throw() { x += xOffset; y += yOffset; }
    void Offset(POINT point) throw() { Offset(point.x, point.y); }
    void Offset(SIZE size) throw() { Offset(size.cx, size.cy); }
    void SetPoint(int X, int Y) throw() { x = X; y = Y; }

    BOOL operator==(POINT point) const throw() { return x == point.x && y == point.y; }
    BOOL operator!=(POINT point) const throw() { return !(*this == point); }
    void operator+=(SIZE size) throw() { Offset(size); }
    void operator-=(SIZE size) throw() { Offset(-size.cx, -size.cy); }
    void operator+=(POINT point) throw() { Offset(point); }
    void operator-=(POINT point) throw() { Offset(-point.x, -point.y); }

    CPoint operator+(SIZE size) const throw() { return CPoint(x + size.cx, y + size.cy); }
    CPoint operator-(SIZE size) const throw() { return CPoint(x - size.cx, y - size.cy); }
    CPoint operator-() const throw() { return CPoint(-x, -y); }
    CPoint operator+(POINT point) const throw() { return CPoint(x + point.x, y + point.y); }
    CSize operator-(POINT point) const throw() { return CSize(x - point.x, y - point.y); }
    CRect operator+(const RECT* lpRect) const throw();
    CRect operator-(const RECT* lpRect) const throw();
};

class CRect : public tagRECT
{
public:
    CRect() throw() { left = top = right = bottom = 0; }
    CRect(int l, int t, int r, int b) throw() { left = l; top = t; right = r; bottom = b; }
    CRect(const RECT& srcRect) throw() { ::CopyRect(this, &srcRect); }
    CRect(LPCRECT lpSrcRect) throw() { ::CopyRect(this, lpSrcRect); }
    CRect(POINT point, SIZE size) throw()
    { left = point.x; top = point.y; right = left + size.cx; bottom = top + size.cy; }
    CRect(POINT topLeft, POINT bottomRight) throw()
    { left = topLeft.x; top = topLeft.y; right = bottomRight.x; bottom = bottomRight.y; }

    int Width() const throw() { return right - left; }
    int Height() const throw() { return bottom - top; }
    CSize Size() const throw() { return CSize(Width(), Height()); }
    CPoint& TopLeft() throw() { return *reinterpret_cast<CPoint*>(this); }
    CPoint& BottomRight() throw() { return *(reinterpret_cast<CPoint*>(this) + 1); }
    const CPoint& TopLeft() const throw() { return *reinterpret_cast<const CPoint*>(this); }
    const CPoint& BottomRight() const throw() { return *(reinterpret_cast<const CPoint*>(this) + 1); }
    CPoint CenterPoint() const throw() { return CPoint((left + right) / 2, (top + bottom) / 2); }
    void SwapLeftRight() throw() { SwapLeftRight(this); }
    static void WINAPI SwapLeftRight(LPRECT lpRect) throw()
    { LONG temp = lpRect->left; lpRect->left = lpRect->right; lpRect->right = temp; }

    operator LPRECT() throw() { return this; }
    operator LPCRECT() const throw() { return this; }

    BOOL IsRectEmpty() const throw() { return ::IsRectEmpty(this); }
    BOOL IsRectNull() const throw() { return left == 0 && right == 0 && top == 0 && bottom == 0; }
    BOOL PtInRect(POINT point) const throw() { return ::PtInRect(this, point); }

    void SetRect(int x1, int y1, int x2, int y2) throw() { ::SetRect(this, x1, y1, x2, y2); }
    void SetRect(POINT topLeft, POINT bottomRight) throw()
    { ::SetRect(this, topLeft.x, topLeft.y, bottomRight.x, bottomRight.y); }
    void SetRectEmpty() throw() { ::SetRectEmpty(this); }
    void CopyRect(LPCRECT lpSrcRect) throw() { ::CopyRect(this, lpSrcRect); }
    BOOL EqualRect(LPCRECT lpRect) const throw() { return ::EqualRect(this, lpRect); }

    void InflateRect(int x, int y) throw() { ::InflateRect(this, x, y); }
    void InflateRect(SIZE size) throw() { ::InflateRect(this, size.cx, size.cy); }
    void InflateRect(LPCRECT lpRect) throw()
    { left -= lpRect->left; top -= lpRect->top; right += lpRect->right; bottom += lpRect->bottom; }
    void InflateRect(int l, int t, int r, int b) throw()
    { left -= l; top -= t; right += r; bottom += b; }
    void DeflateRect(int x, int y) throw() { ::InflateRect(this, -x, -y); }
    void DeflateRect(SIZE size) throw() { ::InflateRect(this, -size.cx, -size.cy); }
    void DeflateRect(LPCRECT lpRect) throw()
    { left += lpRect->left; top += lpRect->top; right -= lpRect->right; bottom -= lpRect->bottom; }
    void DeflateRect(int l, int t, int r, int b) throw()
    { left += l; top += t; right -= r; bottom -= b; }

    void OffsetRect(int x, int y) throw() { ::OffsetRect(this, x, y); }
    void OffsetRect(SIZE size) throw() { ::OffsetRect(this, size.cx, size.cy); }
    void OffsetRect(POINT point) throw() { ::OffsetRect(this, point.x, point.y); }
    void MoveToY(int y) throw() { bottom = Height() + y; top = y; }
    void MoveToX(int x) throw() { right = Width() + x; left = x; }
    void MoveToXY(int x, int y) throw() { MoveToX(x); MoveToY(y); }
    void MoveToXY(POINT point) throw() { MoveToXY(point.x, point.y); }
    void NormalizeRect() throw()
    {
        if (left > right) SwapLeftRight();
        if (top > bottom) { LONG temp = top; top = bottom; bottom = temp; }
    }

    BOOL IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) throw()
    { return ::IntersectRect(this, lpRect1, lpRect2); }
    BOOL UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) throw()
    { return ::UnionRect(this, lpRect1, lpRect2); }
    BOOL SubtractRect(LPCRECT lpRectSrc1, LPCRECT lpRectSrc2) throw()
    { return ::SubtractRect(this, lpRectSrc1, lpRectSrc2); }

    void operator=(const RECT& srcRect) throw() { ::CopyRect(this, &srcRect); }
    BOOL operator==(const RECT& rect) const throw() { return ::EqualRect(this, &rect); }
    BOOL operator!=(const RECT& rect) const throw() { return !::EqualRect(this, &rect); }
    void operator+=(POINT point) throw() { OffsetRect(point); }
    void operator+=(SIZE size) throw() { OffsetRect(size); }
    void operator+=(LPCRECT lpRect) throw() { InflateRect(lpRect); }
    void operator-=(POINT point) throw() { OffsetRect(-point.x, -point.y); }
    void operator-=(SIZE size) throw() { OffsetRect(-size.cx, -size.cy); }
    void operator-=(LPCRECT lpRect) throw() { DeflateRect(lpRect); }
    void operator&=(const RECT& rect) throw() { ::IntersectRect(this, this, &rect); }
    void operator|=(const RECT& rect) throw() { ::UnionRect(this, this, &rect); }

    CRect operator+(POINT pt) const throw() { CRect r(*this); r.OffsetRect(pt); return r; }
    CRect operator-(POINT pt) const throw() { CRect r(*this); r.OffsetRect(-pt.x, -pt.y); return r; }
    CRect operator+(LPCRECT lpRect) const throw() { CRect r(this); r.InflateRect(lpRect); return r; }
    CRect operator+(SIZE size) const throw() { CRect r(*this); r.OffsetRect(size); return r; }
    CRect operator-(SIZE size) const throw() { CRect r(*this); r.OffsetRect(-size.cx, -size.cy); return r; }
    CRect operator-(LPCRECT lpRect) const throw() { CRect r(this); r.DeflateRect(lpRect); return r; }
    CRect operator&(const RECT& rect2) const throw() { CRect r; ::IntersectRect(&r, this, &rect2); return r; }
    CRect operator|(const RECT& rect2) const throw() { CRect r; ::UnionRect(&r, this, &rect2); return r; }
    CRect MulDiv(int nMultiplier, int nDivisor) const throw()
    {
        return CRect(::MulDiv(left, nMultiplier, nDivisor), ::MulDiv(top, nMultiplier, nDivisor),
                     ::MulDiv(right, nMultiplier, nDivisor), ::MulDiv(bottom, nMultiplier, nDivisor));
    }
};

inline CPoint CSize::operator+(POINT point) const throw() { return CPoint(cx + point.x, cy + point.y); }
inline CPoint CSize::operator-(POINT point) const throw() { return CPoint(cx - point.x, cy - point.y); }
inline CRect CSize::operator+(const RECT* lpRect) const throw() { return CRect(lpRect) + *this; }
inline CRect CSize::operator-(const RECT* lpRect) const throw() { return CRect(lpRect) - *this; }
inline CRect CPoint::operator+(const RECT* lpRect) const throw() { return CRect(lpRect) + *this; }
inline CRect CPoint::operator-(const RECT* lpRect) const throw() { return CRect(lpRect) - *this; }
