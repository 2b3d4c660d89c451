// CPoint, CSize and CRect: MFC's value types over POINT, SIZE and RECT.
#pragma once
#include <windows.h>

class CSize : public tagSIZE {
public:
    CSize() { cx = cy = 0; }
    CSize(int initCX, int initCY) { cx = initCX; cy = initCY; }
    CSize(SIZE initSize) { cx = initSize.cx; cy = initSize.cy; }
    bool operator==(SIZE s) const { return cx == s.cx && cy == s.cy; }
    bool operator!=(SIZE s) const { return !(*this == s); }
};

class CPoint : public tagPOINT {
public:
    CPoint() { x = y = 0; }
    CPoint(int initX, int initY) { x = initX; y = initY; }
    CPoint(POINT initPt) { x = initPt.x; y = initPt.y; }
    void Offset(int xOffset, int yOffset) { x += xOffset; y += yOffset; }
    bool operator==(POINT p) const { return x == p.x && y == p.y; }
    bool operator!=(POINT p) const { return !(*this == p); }
    CPoint operator+(SIZE s) const { return CPoint(x + s.cx, y + s.cy); }
    CPoint operator-(SIZE s) const { return CPoint(x - s.cx, y - s.cy); }
    CSize operator-(POINT p) const { return CSize(x - p.x, y - p.y); }
};

class CRect : public tagRECT {
public:
    CRect() { left = top = right = bottom = 0; }
    CRect(int l, int t, int r, int b) { SetRect(l, t, r, b); }
    CRect(const RECT& src) { CopyRect(&src); }
    CRect(const RECT* src) { CopyRect(src); }
    CRect(POINT topLeft, SIZE size) { SetRect(topLeft.x, topLeft.y, topLeft.x + size.cx, topLeft.y + size.cy); }
    CRect(POINT topLeft, POINT bottomRight) { SetRect(topLeft.x, topLeft.y, bottomRight.x, bottomRight.y); }

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const { return CSize(Width(), Height()); }
    CPoint& TopLeft() { return *reinterpret_cast<CPoint*>(this); }
    CPoint& BottomRight() { return *(reinterpret_cast<CPoint*>(this) + 1); }
    const CPoint& TopLeft() const { return *reinterpret_cast<const CPoint*>(this); }
    const CPoint& BottomRight() const { return *(reinterpret_cast<const CPoint*>(this) + 1); }
    CPoint CenterPoint() const { return CPoint((left + right) / 2, (top + bottom) / 2); }
    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }

    BOOL IsRectEmpty() const { return ::IsRectEmpty(this); }
    BOOL IsRectNull() const { return left == 0 && right == 0 && top == 0 && bottom == 0; }
    BOOL PtInRect(POINT pt) const { return ::PtInRect(this, pt); }
    void SetRect(int l, int t, int r, int b) { left = l; top = t; right = r; bottom = b; }
    void SetRectEmpty() { SetRect(0, 0, 0, 0); }
    void CopyRect(LPCRECT src) { ::CopyRect(this, src); }
    BOOL EqualRect(LPCRECT r) const { return ::EqualRect(this, r); }
    void InflateRect(int x, int y) { ::InflateRect(this, x, y); }
    void InflateRect(int l, int t, int r, int b) { left -= l; top -= t; right += r; bottom += b; }
    void DeflateRect(int x, int y) { ::InflateRect(this, -x, -y); }
    void DeflateRect(int l, int t, int r, int b) { left += l; top += t; right -= r; bottom -= b; }
    void OffsetRect(int x, int y) { ::OffsetRect(this, x, y); }
    void OffsetRect(POINT pt) { ::OffsetRect(this, pt.x, pt.y); }
    void NormalizeRect()
    {
        if (left > right) { LONG t = left; left = right; right = t; }
        if (top > bottom) { LONG t = top; top = bottom; bottom = t; }
    }
    BOOL IntersectRect(LPCRECT a, LPCRECT b) { return ::IntersectRect(this, a, b); }
    BOOL UnionRect(LPCRECT a, LPCRECT b) { return ::UnionRect(this, a, b); }

    void operator=(const RECT& src) { CopyRect(&src); }
    bool operator==(const RECT& r) const { return ::EqualRect(this, &r) != 0; }
    bool operator!=(const RECT& r) const { return !(*this == r); }
};
