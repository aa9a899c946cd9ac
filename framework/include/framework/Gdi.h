#pragma once

// Graphics objects. An object owns the handle it created or attached and deletes it with itself.
// FromHandle gives the owner of a handle, or a temporary that owns nothing and lives until the
// thread is next idle.

#include "framework/Object.h"
#include "framework/String.h"

class CBitmap;
class CDC;

class FRAMEWORK_API CGdiObject : public CObject
{
    DECLARE_DYNAMIC(CGdiObject)

public:
    CGdiObject() = default;
    ~CGdiObject() override { DeleteObject(); }

    HGDIOBJ m_hObject = nullptr;

    operator HGDIOBJ() const { return m_hObject; }
    HGDIOBJ GetSafeHandle() const { return framework::SafeHandle(this, &CGdiObject::m_hObject); }
    // An object of the class that suits the handle.
    static CGdiObject* PASCAL FromHandle(HGDIOBJ handle);
    static void PASCAL DeleteTempMap();

    // FALSE for a null handle.
    BOOL Attach(HGDIOBJ handle);
    HGDIOBJ Detach();
    BOOL DeleteObject();
    BOOL CreateStockObject(int index) { return Attach(::GetStockObject(index)); }
    BOOL UnrealizeObject() { return ::UnrealizeObject(m_hObject); }

    // Returns the bytes written, or 0.
    int GetObject(int size, LPVOID data) const { return ::GetObject(m_hObject, size, data); }
    UINT GetObjectType() const { return ::GetObjectType(m_hObject); }

    friend bool operator==(const CGdiObject& a, const CGdiObject& b)
    {
        return a.m_hObject == b.m_hObject;
    }
};

class FRAMEWORK_API CPen : public CGdiObject
{
    DECLARE_DYNAMIC(CPen)

public:
    CPen() = default;
    CPen(int style, int width, COLORREF color) { VERIFY(CreatePen(style, width, color)); }
    CPen(int style, int width, const LOGBRUSH* brush, int dashCount = 0,
         const DWORD* dashes = nullptr)
    {
        VERIFY(CreatePen(style, width, brush, dashCount, dashes));
    }

    operator HPEN() const { return HPEN(m_hObject); }
    static CPen* PASCAL FromHandle(HPEN handle);

    BOOL CreatePen(int style, int width, COLORREF color)
    {
        return Attach(::CreatePen(style, width, color));
    }
    BOOL CreatePen(int style, int width, const LOGBRUSH* brush, int dashCount = 0,
                   const DWORD* dashes = nullptr)
    {
        return Attach(::ExtCreatePen(style, width, brush, dashCount, dashes));
    }
    BOOL CreatePenIndirect(LPLOGPEN pen) { return Attach(::CreatePenIndirect(pen)); }

    int GetLogPen(LOGPEN* pen) { return GetObject(sizeof(LOGPEN), pen); }
    int GetExtLogPen(EXTLOGPEN* pen) { return GetObject(sizeof(EXTLOGPEN), pen); }
};

class FRAMEWORK_API CBrush : public CGdiObject
{
    DECLARE_DYNAMIC(CBrush)

public:
    CBrush() = default;
    CBrush(COLORREF color) { VERIFY(CreateSolidBrush(color)); }
    CBrush(int hatch, COLORREF color) { VERIFY(CreateHatchBrush(hatch, color)); }
    explicit CBrush(CBitmap* pattern) { VERIFY(CreatePatternBrush(pattern)); }

    operator HBRUSH() const { return HBRUSH(m_hObject); }
    static CBrush* PASCAL FromHandle(HBRUSH handle);

    BOOL CreateSolidBrush(COLORREF color) { return Attach(::CreateSolidBrush(color)); }
    BOOL CreateHatchBrush(int hatch, COLORREF color)
    {
        return Attach(::CreateHatchBrush(hatch, color));
    }
    BOOL CreateBrushIndirect(const LOGBRUSH* brush) { return Attach(::CreateBrushIndirect(brush)); }
    // The pattern stays the caller's and is not needed afterwards.
    BOOL CreatePatternBrush(CBitmap* pattern);
    BOOL CreateSysColorBrush(int index) { return Attach(::GetSysColorBrush(index)); }

    int GetLogBrush(LOGBRUSH* brush) { return GetObject(sizeof(LOGBRUSH), brush); }
};

class FRAMEWORK_API CFont : public CGdiObject
{
    DECLARE_DYNAMIC(CFont)

public:
    CFont() = default;

    operator HFONT() const { return HFONT(m_hObject); }
    static CFont* PASCAL FromHandle(HFONT handle);

    BOOL CreateFont(int height, int width, int escapement, int orientation, int weight, BYTE italic,
                    BYTE underline, BYTE strikeOut, BYTE charSet, BYTE outPrecision,
                    BYTE clipPrecision, BYTE quality, BYTE pitchAndFamily, LPCTSTR faceName)
    {
        return Attach(::CreateFont(height, width, escapement, orientation, weight, italic,
                                   underline, strikeOut, charSet, outPrecision, clipPrecision,
                                   quality, pitchAndFamily, faceName));
    }
    BOOL CreateFontIndirect(const LOGFONT* font) { return Attach(::CreateFontIndirect(font)); }
    // The height is in tenths of a point, for dc or, without one, for the screen.
    BOOL CreatePointFont(int tenths, LPCTSTR faceName, CDC* dc = nullptr);
    BOOL CreatePointFontIndirect(const LOGFONT* font, CDC* dc = nullptr);

    int GetLogFont(LOGFONT* font) { return GetObject(sizeof(LOGFONT), font); }
};

class FRAMEWORK_API CBitmap : public CGdiObject
{
    DECLARE_DYNAMIC(CBitmap)

public:
    CBitmap() = default;

    operator HBITMAP() const { return HBITMAP(m_hObject); }
    static CBitmap* PASCAL FromHandle(HBITMAP handle);

    BOOL CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, const void* bits)
    {
        return Attach(::CreateBitmap(width, height, planes, bitsPerPixel, bits));
    }
    BOOL CreateBitmapIndirect(LPBITMAP bitmap) { return Attach(::CreateBitmapIndirect(bitmap)); }
    BOOL CreateCompatibleBitmap(CDC* dc, int width, int height);
    BOOL LoadBitmap(LPCTSTR name)
    {
        return Attach(::LoadBitmap(AfxFindResourceHandle(name, RT_BITMAP), name));
    }
    BOOL LoadBitmap(UINT id) { return LoadBitmap(MAKEINTRESOURCE(id)); }
    BOOL LoadOEMBitmap(UINT id) { return Attach(::LoadBitmap(nullptr, MAKEINTRESOURCE(id))); }
    BOOL LoadMappedBitmap(UINT id, UINT flags = 0, LPCOLORMAP map = nullptr, int mapSize = 0)
    {
        return Attach(::CreateMappedBitmap(AfxFindResourceHandle(MAKEINTRESOURCE(id), RT_BITMAP),
                                           id, flags, map, mapSize));
    }

    int GetBitmap(BITMAP* bitmap) { return GetObject(sizeof(BITMAP), bitmap); }
    DWORD GetBitmapBits(DWORD size, LPVOID bits) const
    {
        return DWORD(::GetBitmapBits(*this, LONG(size), bits));
    }
    DWORD SetBitmapBits(DWORD size, const void* bits)
    {
        return DWORD(::SetBitmapBits(*this, size, bits));
    }
};

class FRAMEWORK_API CRgn : public CGdiObject
{
    DECLARE_DYNAMIC(CRgn)

public:
    CRgn() = default;

    operator HRGN() const { return HRGN(m_hObject); }
    static CRgn* PASCAL FromHandle(HRGN handle);

    BOOL CreateRectRgn(int l, int t, int r, int b) { return Attach(::CreateRectRgn(l, t, r, b)); }
    BOOL CreateRectRgnIndirect(LPCRECT rect) { return Attach(::CreateRectRgnIndirect(rect)); }
    BOOL CreateEllipticRgn(int l, int t, int r, int b)
    {
        return Attach(::CreateEllipticRgn(l, t, r, b));
    }
    BOOL CreateEllipticRgnIndirect(LPCRECT rect)
    {
        return Attach(::CreateEllipticRgnIndirect(rect));
    }
    BOOL CreateRoundRectRgn(int l, int t, int r, int b, int roundX, int roundY)
    {
        return Attach(::CreateRoundRectRgn(l, t, r, b, roundX, roundY));
    }
    BOOL CreatePolygonRgn(const POINT* points, int count, int fillMode)
    {
        return Attach(::CreatePolygonRgn(points, count, fillMode));
    }

    // The region must exist already and takes the result. These return the kind of region.
    int CombineRgn(CRgn* a, CRgn* b, int mode) { return ::CombineRgn(*this, *a, *b, mode); }
    int CopyRgn(CRgn* source) { return ::CombineRgn(*this, *source, nullptr, RGN_COPY); }
    int OffsetRgn(int dx, int dy) { return ::OffsetRgn(*this, dx, dy); }
    int OffsetRgn(POINT by) { return ::OffsetRgn(*this, by.x, by.y); }
    int GetRgnBox(LPRECT rect) const { return ::GetRgnBox(*this, rect); }

    void SetRectRgn(int l, int t, int r, int b) { ::SetRectRgn(*this, l, t, r, b); }
    void SetRectRgn(LPCRECT rect) { SetRectRgn(rect->left, rect->top, rect->right, rect->bottom); }
    BOOL EqualRgn(CRgn* other) const { return ::EqualRgn(*this, *other); }
    BOOL PtInRegion(int x, int y) const { return ::PtInRegion(*this, x, y); }
    BOOL PtInRegion(POINT point) const { return ::PtInRegion(*this, point.x, point.y); }
    BOOL RectInRegion(LPCRECT rect) const { return ::RectInRegion(*this, rect); }
};
