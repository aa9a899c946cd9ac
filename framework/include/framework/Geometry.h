#pragma once

// Sizes, points and rectangles as values. Each is its platform structure with nothing added, so an
// array of them can be handed to the platform as it is.

#include "framework/Platform.h"

class CPoint;
class CRect;

class CSize : public tagSIZE
{
public:
    CSize()
        : CSize(0, 0)
    {}
    CSize(int width, int height)
    {
        cx = width;
        cy = height;
    }
    CSize(SIZE size)
        : tagSIZE(size)
    {}
    CSize(POINT point)
        : CSize(point.x, point.y)
    {}
    // Width in the low word, height in the high word, both signed.
    CSize(DWORD packed)
        : CSize(short(LOWORD(packed)), short(HIWORD(packed)))
    {}

    void SetSize(int width, int height) { *this = CSize(width, height); }

    void operator+=(SIZE size) { SetSize(cx + size.cx, cy + size.cy); }
    void operator-=(SIZE size) { SetSize(cx - size.cx, cy - size.cy); }
    CSize operator-() const { return CSize(-cx, -cy); }
    CSize operator+(SIZE size) const { return CSize(cx + size.cx, cy + size.cy); }
    CSize operator-(SIZE size) const { return CSize(cx - size.cx, cy - size.cy); }
    CPoint operator+(POINT point) const;
    CPoint operator-(POINT point) const;
    CRect operator+(const RECT* rect) const;
    CRect operator-(const RECT* rect) const;

    friend bool operator==(const CSize& a, const CSize& b) { return a.cx == b.cx && a.cy == b.cy; }
};

class CPoint : public tagPOINT
{
public:
    CPoint()
        : CPoint(0, 0)
    {}
    CPoint(int px, int py)
    {
        x = px;
        y = py;
    }
    CPoint(POINT point)
        : tagPOINT(point)
    {}
    CPoint(SIZE size)
        : CPoint(size.cx, size.cy)
    {}
    // The position of a mouse message: x in the low word, y in the high word, both signed.
    CPoint(LPARAM packed)
        : CPoint(short(LOWORD(packed)), short(HIWORD(packed)))
    {}

    void SetPoint(int px, int py) { *this = CPoint(px, py); }
    void Offset(int dx, int dy) { SetPoint(x + dx, y + dy); }
    void Offset(POINT point) { Offset(point.x, point.y); }
    void Offset(SIZE size) { Offset(size.cx, size.cy); }

    void operator+=(SIZE size) { Offset(size.cx, size.cy); }
    void operator-=(SIZE size) { Offset(-size.cx, -size.cy); }
    void operator+=(POINT point) { Offset(point.x, point.y); }
    void operator-=(POINT point) { Offset(-point.x, -point.y); }
    CPoint operator-() const { return CPoint(-x, -y); }
    CPoint operator+(SIZE size) const { return CPoint(x + size.cx, y + size.cy); }
    CPoint operator-(SIZE size) const { return CPoint(x - size.cx, y - size.cy); }
    CPoint operator+(POINT point) const { return CPoint(x + point.x, y + point.y); }
    CSize operator-(POINT point) const { return CSize(x - point.x, y - point.y); }
    CRect operator+(const RECT* rect) const;
    CRect operator-(const RECT* rect) const;

    friend bool operator==(const CPoint& a, const CPoint& b) { return a.x == b.x && a.y == b.y; }
};

class CRect : public tagRECT
{
public:
    CRect()
        : CRect(0, 0, 0, 0)
    {}
    CRect(int l, int t, int r, int b) { SetRect(l, t, r, b); }
    CRect(const RECT& source)
        : tagRECT(source)
    {}
    CRect(LPCRECT source)
        : tagRECT(*source)
    {}
    CRect(POINT corner, SIZE size)
        : CRect(corner.x, corner.y, corner.x + size.cx, corner.y + size.cy)
    {}
    CRect(POINT topLeft, POINT bottomRight)
        : CRect(topLeft.x, topLeft.y, bottomRight.x, bottomRight.y)
    {}

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const { return CSize(Width(), Height()); }
    CPoint& TopLeft() { return *reinterpret_cast<CPoint*>(&left); }
    CPoint& BottomRight() { return *reinterpret_cast<CPoint*>(&right); }
    const CPoint& TopLeft() const { return *reinterpret_cast<const CPoint*>(&left); }
    const CPoint& BottomRight() const { return *reinterpret_cast<const CPoint*>(&right); }
    CPoint CenterPoint() const { return CPoint((left + right) / 2, (top + bottom) / 2); }

    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }

    BOOL IsRectEmpty() const { return ::IsRectEmpty(this); }
    BOOL IsRectNull() const { return left == 0 && top == 0 && right == 0 && bottom == 0; }
    BOOL PtInRect(POINT point) const { return ::PtInRect(this, point); }
    BOOL EqualRect(LPCRECT rect) const { return ::EqualRect(this, rect); }

    void SetRect(int l, int t, int r, int b)
    {
        left = l;
        top = t;
        right = r;
        bottom = b;
    }
    void SetRect(POINT topLeft, POINT bottomRight) { *this = CRect(topLeft, bottomRight); }
    void SetRectEmpty() { SetRect(0, 0, 0, 0); }
    void CopyRect(LPCRECT source) { static_cast<RECT&>(*this) = *source; }

    void InflateRect(int x, int y) { InflateRect(x, y, x, y); }
    void InflateRect(SIZE size) { InflateRect(size.cx, size.cy); }
    void InflateRect(LPCRECT by) { InflateRect(by->left, by->top, by->right, by->bottom); }
    void InflateRect(int l, int t, int r, int b)
    {
        SetRect(left - l, top - t, right + r, bottom + b);
    }
    void DeflateRect(int x, int y) { InflateRect(-x, -y); }
    void DeflateRect(SIZE size) { InflateRect(-size.cx, -size.cy); }
    void DeflateRect(LPCRECT by) { DeflateRect(by->left, by->top, by->right, by->bottom); }
    void DeflateRect(int l, int t, int r, int b) { InflateRect(-l, -t, -r, -b); }

    void OffsetRect(int dx, int dy) { SetRect(left + dx, top + dy, right + dx, bottom + dy); }
    void OffsetRect(POINT by) { OffsetRect(by.x, by.y); }
    void OffsetRect(SIZE by) { OffsetRect(by.cx, by.cy); }
    void MoveToX(int x) { OffsetRect(x - left, 0); }
    void MoveToY(int y) { OffsetRect(0, y - top); }
    void MoveToXY(int x, int y) { OffsetRect(x - left, y - top); }
    void MoveToXY(POINT point) { MoveToXY(point.x, point.y); }

    void NormalizeRect()
    {
        SetRect(left < right ? left : right, top < bottom ? top : bottom,
                left < right ? right : left, top < bottom ? bottom : top);
    }
    BOOL IntersectRect(LPCRECT a, LPCRECT b) { return ::IntersectRect(this, a, b); }
    BOOL UnionRect(LPCRECT a, LPCRECT b) { return ::UnionRect(this, a, b); }
    BOOL SubtractRect(LPCRECT a, LPCRECT b) { return ::SubtractRect(this, a, b); }

    void operator=(const RECT& source) { CopyRect(&source); }
    // A point or a size moves the rectangle; a rectangle widens or narrows each side by its own.
    void operator+=(POINT by) { OffsetRect(by); }
    void operator+=(SIZE by) { OffsetRect(by); }
    void operator+=(LPCRECT by) { InflateRect(by); }
    void operator-=(POINT by) { OffsetRect(-by.x, -by.y); }
    void operator-=(SIZE by) { OffsetRect(-by.cx, -by.cy); }
    void operator-=(LPCRECT by) { DeflateRect(by); }
    void operator&=(const RECT& rect) { IntersectRect(this, &rect); }
    void operator|=(const RECT& rect) { UnionRect(this, &rect); }

    CRect operator+(POINT by) const { return Plus(by); }
    CRect operator+(SIZE by) const { return Plus(by); }
    CRect operator+(LPCRECT by) const { return Plus(by); }
    CRect operator-(POINT by) const { return Minus(by); }
    CRect operator-(SIZE by) const { return Minus(by); }
    CRect operator-(LPCRECT by) const { return Minus(by); }
    CRect operator&(const RECT& rect) const
    {
        CRect result(*this);
        result &= rect;
        return result;
    }
    CRect operator|(const RECT& rect) const
    {
        CRect result(*this);
        result |= rect;
        return result;
    }

    friend bool operator==(const CRect& a, const CRect& b)
    {
        return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
    }

private:
    template <class By> CRect Plus(By by) const
    {
        CRect result(*this);
        result += by;
        return result;
    }
    template <class By> CRect Minus(By by) const
    {
        CRect result(*this);
        result -= by;
        return result;
    }
};

inline CPoint CSize::operator+(POINT point) const
{
    return CPoint(cx + point.x, cy + point.y);
}
inline CPoint CSize::operator-(POINT point) const
{
    return CPoint(cx - point.x, cy - point.y);
}
inline CRect CSize::operator+(const RECT* rect) const
{
    return CRect(rect) + *this;
}
inline CRect CSize::operator-(const RECT* rect) const
{
    return CRect(rect) - *this;
}
inline CRect CPoint::operator+(const RECT* rect) const
{
    return CRect(rect) + *this;
}
inline CRect CPoint::operator-(const RECT* rect) const
{
    return CRect(rect) - *this;
}
