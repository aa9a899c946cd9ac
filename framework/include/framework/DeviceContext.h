#pragma once

// Device contexts. Drawing goes to m_hDC, questions to m_hAttribDC; the two are the same unless
// they were set apart, and what changes the state of the context changes both.

#include "framework/Gdi.h"
#include "framework/Geometry.h"

#include <type_traits>

class CWnd;

class FRAMEWORK_API CDC : public CObject
{
    DECLARE_DYNAMIC(CDC)

public:
    CDC() = default;
    // Deletes a context that is still attached; one that must be released instead is detached.
    ~CDC() override { DeleteDC(); }

    HDC m_hDC = nullptr;
    HDC m_hAttribDC = nullptr;
    BOOL m_bPrinting = FALSE;

    operator HDC() const { return m_hDC; }
    HDC GetSafeHdc() const { return framework::SafeHandle(this, &CDC::m_hDC); }
    static CDC* PASCAL FromHandle(HDC handle);
    static void PASCAL DeleteTempMap();
    BOOL IsPrinting() const { return m_bPrinting; }
    // The window whose context this is, or null.
    CWnd* GetWindow() const;

    // Lifetime.
    BOOL Attach(HDC handle);
    HDC Detach();
    virtual void SetAttribDC(HDC handle) { m_hAttribDC = handle; }
    virtual void SetOutputDC(HDC handle);
    virtual void ReleaseAttribDC() { m_hAttribDC = nullptr; }
    virtual void ReleaseOutputDC();
    BOOL CreateDC(LPCTSTR driver, LPCTSTR device, LPCTSTR output, const void* initData)
    {
        return Attach(::CreateDC(driver, device, output, static_cast<const DEVMODE*>(initData)));
    }
    // A memory context like dc, or like the screen for null.
    BOOL CreateCompatibleDC(CDC* dc)
    {
        return Attach(::CreateCompatibleDC(dc == nullptr ? nullptr : dc->m_hDC));
    }
    BOOL DeleteDC() { return m_hDC != nullptr && ::DeleteDC(Detach()); }

    virtual int SaveDC() const { return OnBoth(::SaveDC); }
    virtual BOOL RestoreDC(int saved) { return OnBoth(::RestoreDC, saved); }
    int GetDeviceCaps(int index) const { return ::GetDeviceCaps(m_hAttribDC, index); }

    // Selection; the object selected before comes back, for a region the kind of region.
    CPen* SelectObject(CPen* pen) { return CPen::FromHandle(HPEN(Select(pen))); }
    CBrush* SelectObject(CBrush* brush) { return CBrush::FromHandle(HBRUSH(Select(brush))); }
    virtual CFont* SelectObject(CFont* font) { return CFont::FromHandle(HFONT(Select(font))); }
    CBitmap* SelectObject(CBitmap* bitmap) { return CBitmap::FromHandle(HBITMAP(Select(bitmap))); }
    int SelectObject(CRgn* region) { return SelectClipRgn(region); }
    CGdiObject* SelectObject(CGdiObject* object);
    virtual CGdiObject* SelectStockObject(int index);
    CPen* GetCurrentPen() const { return CPen::FromHandle(HPEN(Current(OBJ_PEN))); }
    CBrush* GetCurrentBrush() const { return CBrush::FromHandle(HBRUSH(Current(OBJ_BRUSH))); }
    CFont* GetCurrentFont() const { return CFont::FromHandle(HFONT(Current(OBJ_FONT))); }
    CBitmap* GetCurrentBitmap() const { return CBitmap::FromHandle(HBITMAP(Current(OBJ_BITMAP))); }

    // Colours and modes; setting one gives the one before.
    COLORREF GetTextColor() const { return ::GetTextColor(m_hAttribDC); }
    COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
    int GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
    int GetROP2() const { return ::GetROP2(m_hAttribDC); }
    int GetPolyFillMode() const { return ::GetPolyFillMode(m_hAttribDC); }
    int GetStretchBltMode() const { return ::GetStretchBltMode(m_hAttribDC); }
    int GetMapMode() const { return ::GetMapMode(m_hAttribDC); }
    UINT GetTextAlign() const { return ::GetTextAlign(m_hAttribDC); }
    int GetTextCharacterExtra() const { return ::GetTextCharacterExtra(m_hAttribDC); }
    DWORD GetLayout() const { return ::GetLayout(m_hAttribDC); }
    COLORREF GetDCBrushColor() const { return ::GetDCBrushColor(m_hDC); }
    COLORREF GetDCPenColor() const { return ::GetDCPenColor(m_hDC); }
    COLORREF GetNearestColor(COLORREF color) const { return ::GetNearestColor(m_hAttribDC, color); }
    virtual COLORREF SetTextColor(COLORREF color) { return OnBoth(::SetTextColor, color); }
    virtual COLORREF SetBkColor(COLORREF color) { return OnBoth(::SetBkColor, color); }
    int SetBkMode(int mode) { return OnBoth(::SetBkMode, mode); }
    int SetROP2(int mode) { return OnBoth(::SetROP2, mode); }
    int SetPolyFillMode(int mode) { return OnBoth(::SetPolyFillMode, mode); }
    int SetStretchBltMode(int mode) { return OnBoth(::SetStretchBltMode, mode); }
    virtual int SetMapMode(int mode) { return OnBoth(::SetMapMode, mode); }
    UINT SetTextAlign(UINT flags) { return OnBoth(::SetTextAlign, flags); }
    int SetTextCharacterExtra(int extra) { return OnBoth(::SetTextCharacterExtra, extra); }
    int SetTextJustification(int extra, int breaks)
    {
        return OnBoth(::SetTextJustification, extra, breaks);
    }
    DWORD SetLayout(DWORD layout) { return OnBoth(::SetLayout, layout); }
    COLORREF SetDCBrushColor(COLORREF color) { return ::SetDCBrushColor(m_hDC, color); }
    COLORREF SetDCPenColor(COLORREF color) { return ::SetDCPenColor(m_hDC, color); }

    // Coordinates; setting gives the origin or extent before.
    CPoint GetBrushOrg() const { return Point(::GetBrushOrgEx); }
    CPoint SetBrushOrg(int x, int y) { return PointBefore(::SetBrushOrgEx, x, y); }
    CPoint SetBrushOrg(POINT point) { return SetBrushOrg(point.x, point.y); }
    CPoint GetViewportOrg() const { return Point(::GetViewportOrgEx); }
    virtual CPoint SetViewportOrg(int x, int y) { return PointBefore(::SetViewportOrgEx, x, y); }
    CPoint SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
    virtual CPoint OffsetViewportOrg(int dx, int dy)
    {
        return PointBefore(::OffsetViewportOrgEx, dx, dy);
    }
    CSize GetViewportExt() const { return Size(::GetViewportExtEx); }
    virtual CSize SetViewportExt(int cx, int cy) { return SizeBefore(::SetViewportExtEx, cx, cy); }
    CSize SetViewportExt(SIZE size) { return SetViewportExt(size.cx, size.cy); }
    CPoint GetWindowOrg() const { return Point(::GetWindowOrgEx); }
    CPoint SetWindowOrg(int x, int y) { return PointBefore(::SetWindowOrgEx, x, y); }
    CPoint SetWindowOrg(POINT point) { return SetWindowOrg(point.x, point.y); }
    CPoint OffsetWindowOrg(int dx, int dy) { return PointBefore(::OffsetWindowOrgEx, dx, dy); }
    CSize GetWindowExt() const { return Size(::GetWindowExtEx); }
    virtual CSize SetWindowExt(int cx, int cy) { return SizeBefore(::SetWindowExtEx, cx, cy); }
    CSize SetWindowExt(SIZE size) { return SetWindowExt(size.cx, size.cy); }
    void DPtoLP(LPPOINT points, int count = 1) const { ::DPtoLP(m_hAttribDC, points, count); }
    void DPtoLP(LPRECT rect) const { DPtoLP(reinterpret_cast<LPPOINT>(rect), 2); }
    void DPtoLP(LPSIZE size) const;
    void LPtoDP(LPPOINT points, int count = 1) const { ::LPtoDP(m_hAttribDC, points, count); }
    void LPtoDP(LPRECT rect) const { LPtoDP(reinterpret_cast<LPPOINT>(rect), 2); }
    void LPtoDP(LPSIZE size) const;

    // Clipping; the functions that change the region return the kind of the new one.
    virtual int GetClipBox(LPRECT rect) const { return ::GetClipBox(m_hAttribDC, rect); }
    int SelectClipRgn(CRgn* region)
    {
        return OnBoth(::SelectClipRgn, region == nullptr ? HRGN() : HRGN(*region));
    }
    int SelectClipRgn(CRgn* region, int mode)
    {
        return OnBoth(::ExtSelectClipRgn, region == nullptr ? HRGN() : HRGN(*region), mode);
    }
    int ExcludeClipRect(int l, int t, int r, int b)
    {
        return OnBoth(::ExcludeClipRect, l, t, r, b);
    }
    int ExcludeClipRect(LPCRECT r) { return ExcludeClipRect(r->left, r->top, r->right, r->bottom); }
    int ExcludeUpdateRgn(CWnd* window);
    int IntersectClipRect(int l, int t, int r, int b)
    {
        return OnBoth(::IntersectClipRect, l, t, r, b);
    }
    int IntersectClipRect(LPCRECT r)
    {
        return IntersectClipRect(r->left, r->top, r->right, r->bottom);
    }
    int OffsetClipRgn(int dx, int dy) { return OnBoth(::OffsetClipRgn, dx, dy); }
    int OffsetClipRgn(SIZE by) { return OffsetClipRgn(by.cx, by.cy); }
    virtual BOOL PtVisible(int x, int y) const { return ::PtVisible(m_hDC, x, y); }
    BOOL PtVisible(POINT point) const { return PtVisible(point.x, point.y); }
    virtual BOOL RectVisible(LPCRECT rect) const { return ::RectVisible(m_hDC, rect); }

    // Lines and shapes.
    CPoint GetCurrentPosition() const { return Point(::GetCurrentPositionEx); }
    CPoint MoveTo(int x, int y) { return PointBefore(::MoveToEx, x, y); }
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y) { return OnBoth(::LineTo, x, y); }
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL Polyline(const POINT* points, int count) { return ::Polyline(m_hDC, points, count); }
    BOOL PolyBezier(const POINT* points, int count)
    {
        return ::PolyBezier(m_hDC, points, DWORD(count));
    }
    BOOL PolyDraw(const POINT* points, const BYTE* kinds, int count)
    {
        return ::PolyDraw(m_hDC, points, kinds, count);
    }
    BOOL Polygon(const POINT* points, int count) { return ::Polygon(m_hDC, points, count); }
    BOOL PolyPolygon(const POINT* points, const INT* counts, int polygons)
    {
        return ::PolyPolygon(m_hDC, points, counts, polygons);
    }
    BOOL Arc(LPCRECT r, POINT start, POINT end)
    {
        return ::Arc(m_hDC, r->left, r->top, r->right, r->bottom, start.x, start.y, end.x, end.y);
    }
    BOOL Pie(LPCRECT r, POINT start, POINT end)
    {
        return ::Pie(m_hDC, r->left, r->top, r->right, r->bottom, start.x, start.y, end.x, end.y);
    }
    BOOL Rectangle(int l, int t, int r, int b) { return ::Rectangle(m_hDC, l, t, r, b); }
    BOOL Rectangle(LPCRECT r) { return Rectangle(r->left, r->top, r->right, r->bottom); }
    BOOL RoundRect(int l, int t, int r, int b, int roundX, int roundY)
    {
        return ::RoundRect(m_hDC, l, t, r, b, roundX, roundY);
    }
    BOOL RoundRect(LPCRECT r, POINT round)
    {
        return RoundRect(r->left, r->top, r->right, r->bottom, round.x, round.y);
    }
    BOOL Ellipse(int l, int t, int r, int b) { return ::Ellipse(m_hDC, l, t, r, b); }
    BOOL Ellipse(LPCRECT r) { return Ellipse(r->left, r->top, r->right, r->bottom); }

    // Areas.
    void FillRect(LPCRECT rect, CBrush* brush) { ::FillRect(m_hDC, rect, *brush); }
    void FrameRect(LPCRECT rect, CBrush* brush) { ::FrameRect(m_hDC, rect, *brush); }
    void InvertRect(LPCRECT rect) { ::InvertRect(m_hDC, rect); }
    void FillSolidRect(LPCRECT rect, COLORREF color);
    void FillSolidRect(int x, int y, int width, int height, COLORREF color);
    void Draw3dRect(LPCRECT rect, COLORREF topLeft, COLORREF bottomRight);
    void Draw3dRect(int x, int y, int width, int height, COLORREF topLeft, COLORREF bottomRight);
    BOOL FillRgn(CRgn* region, CBrush* brush) { return ::FillRgn(m_hDC, *region, *brush); }
    BOOL FrameRgn(CRgn* region, CBrush* brush, int width, int height)
    {
        return ::FrameRgn(m_hDC, *region, *brush, width, height);
    }
    BOOL InvertRgn(CRgn* region) { return ::InvertRgn(m_hDC, *region); }
    BOOL PaintRgn(CRgn* region) { return ::PaintRgn(m_hDC, *region); }
    BOOL GradientFill(TRIVERTEX* vertices, ULONG vertexCount, void* mesh, ULONG meshCount,
                      DWORD mode)
    {
        return ::GradientFill(m_hDC, vertices, vertexCount, mesh, meshCount, mode);
    }

    // What the platform's own controls are made of.
    BOOL DrawFrameControl(LPRECT rect, UINT type, UINT state)
    {
        return ::DrawFrameControl(m_hDC, rect, type, state);
    }
    BOOL DrawEdge(LPRECT rect, UINT edge, UINT flags)
    {
        return ::DrawEdge(m_hDC, rect, edge, flags);
    }
    void DrawFocusRect(LPCRECT rect) { ::DrawFocusRect(m_hDC, rect); }
    BOOL DrawIcon(int x, int y, HICON icon) { return ::DrawIcon(m_hDC, x, y, icon); }
    BOOL DrawIcon(POINT point, HICON icon) { return DrawIcon(point.x, point.y, icon); }
    BOOL DrawState(CPoint point, CSize size, HBITMAP bitmap, UINT flags, HBRUSH brush = nullptr)
    {
        return ::DrawState(m_hDC, brush, nullptr, LPARAM(bitmap), 0, point.x, point.y, size.cx,
                           size.cy, flags | DST_BITMAP);
    }
    BOOL DrawState(CPoint point, CSize size, HICON icon, UINT flags, HBRUSH brush = nullptr)
    {
        return ::DrawState(m_hDC, brush, nullptr, LPARAM(icon), 0, point.x, point.y, size.cx,
                           size.cy, flags | DST_ICON);
    }

    // Pixels.
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    COLORREF GetPixel(POINT point) const { return GetPixel(point.x, point.y); }
    COLORREF SetPixel(int x, int y, COLORREF color) { return ::SetPixel(m_hDC, x, y, color); }
    COLORREF SetPixel(POINT point, COLORREF color) { return SetPixel(point.x, point.y, color); }
    BOOL SetPixelV(int x, int y, COLORREF color) { return ::SetPixelV(m_hDC, x, y, color); }
    BOOL SetPixelV(POINT point, COLORREF color) { return SetPixelV(point.x, point.y, color); }
    BOOL PatBlt(int x, int y, int width, int height, DWORD rop)
    {
        return ::PatBlt(m_hDC, x, y, width, height, rop);
    }
    BOOL BitBlt(int x, int y, int width, int height, CDC* source, int sourceX, int sourceY,
                DWORD rop)
    {
        return ::BitBlt(m_hDC, x, y, width, height, source == nullptr ? nullptr : source->m_hDC,
                        sourceX, sourceY, rop);
    }
    BOOL StretchBlt(int x, int y, int width, int height, CDC* source, int sourceX, int sourceY,
                    int sourceWidth, int sourceHeight, DWORD rop)
    {
        return ::StretchBlt(m_hDC, x, y, width, height, source == nullptr ? nullptr : source->m_hDC,
                            sourceX, sourceY, sourceWidth, sourceHeight, rop);
    }
    BOOL TransparentBlt(int x, int y, int width, int height, CDC* source, int sourceX, int sourceY,
                        int sourceWidth, int sourceHeight, UINT transparent)
    {
        return ::TransparentBlt(m_hDC, x, y, width, height, source->m_hDC, sourceX, sourceY,
                                sourceWidth, sourceHeight, transparent);
    }
    BOOL AlphaBlend(int x, int y, int width, int height, CDC* source, int sourceX, int sourceY,
                    int sourceWidth, int sourceHeight, BLENDFUNCTION blend)
    {
        return ::AlphaBlend(m_hDC, x, y, width, height, source->m_hDC, sourceX, sourceY,
                            sourceWidth, sourceHeight, blend);
    }
    BOOL ScrollDC(int dx, int dy, LPCRECT scrolled, LPCRECT clip, CRgn* update, LPRECT updateRect)
    {
        return ::ScrollDC(m_hDC, dx, dy, scrolled, clip, update == nullptr ? HRGN() : HRGN(*update),
                          updateRect);
    }

    // Text.
    virtual BOOL TextOut(int x, int y, LPCTSTR text, int count)
    {
        return ::TextOut(m_hDC, x, y, text, count);
    }
    BOOL TextOut(int x, int y, const CString& text)
    {
        return TextOut(x, y, text, text.GetLength());
    }
    virtual BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rect, LPCTSTR text, UINT count,
                            LPINT distances)
    {
        return ::ExtTextOut(m_hDC, x, y, options, rect, text, count, distances);
    }
    BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rect, const CString& text, LPINT distances)
    {
        return ExtTextOut(x, y, options, rect, text, UINT(text.GetLength()), distances);
    }
    // Returns the height of the text.
    virtual int DrawText(LPCTSTR text, int count, LPRECT rect, UINT format)
    {
        return ::DrawText(m_hDC, text, count, rect, format);
    }
    int DrawText(const CString& text, LPRECT rect, UINT format)
    {
        return DrawText(text, text.GetLength(), rect, format);
    }
    virtual int DrawTextEx(LPTSTR text, int count, LPRECT rect, UINT format, LPDRAWTEXTPARAMS tabs)
    {
        return ::DrawTextEx(m_hDC, text, count, rect, format, tabs);
    }
    CSize GetTextExtent(LPCTSTR text, int count) const { return Extent(m_hAttribDC, text, count); }
    CSize GetTextExtent(const CString& text) const { return GetTextExtent(text, text.GetLength()); }
    CSize GetOutputTextExtent(LPCTSTR text, int count) const { return Extent(m_hDC, text, count); }
    CSize GetOutputTextExtent(const CString& text) const
    {
        return GetOutputTextExtent(text, text.GetLength());
    }
    CSize TabbedTextOut(int x, int y, LPCTSTR text, int count, int tabCount, LPINT tabs, int origin)
    {
        return CSize(DWORD(::TabbedTextOut(m_hDC, x, y, text, count, tabCount, tabs, origin)));
    }
    CSize GetTabbedTextExtent(LPCTSTR text, int count, int tabCount, LPINT tabs) const
    {
        return CSize(::GetTabbedTextExtent(m_hAttribDC, text, count, tabCount, tabs));
    }
    BOOL GetTextMetrics(LPTEXTMETRIC metrics) const
    {
        return ::GetTextMetrics(m_hAttribDC, metrics);
    }
    int GetTextFace(int count, LPTSTR name) const
    {
        return ::GetTextFace(m_hAttribDC, count, name);
    }
    int GetTextFace(CString& name) const;
    BOOL GetCharWidth(UINT first, UINT last, LPINT widths) const
    {
        return ::GetCharWidth32(m_hAttribDC, first, last, widths);
    }
    BOOL GetCharABCWidths(UINT first, UINT last, LPABC widths) const
    {
        return ::GetCharABCWidths(m_hAttribDC, first, last, widths);
    }

private:
    // Changes the state of both contexts; the result is that of the attribute one.
    template <class Result, class... Args>
    Result OnBoth(Result(WINAPI* call)(HDC, Args...), std::type_identity_t<Args>... args) const
    {
        const Result result = call(m_hDC, args...);
        return m_hAttribDC == m_hDC ? result : call(m_hAttribDC, args...);
    }
    HGDIOBJ Select(CGdiObject* object)
    {
        return OnBoth(::SelectObject, object == nullptr ? nullptr : object->m_hObject);
    }
    HGDIOBJ Current(UINT type) const { return ::GetCurrentObject(m_hAttribDC, type); }
    CPoint Point(BOOL(WINAPI* get)(HDC, LPPOINT)) const
    {
        CPoint point;
        get(m_hAttribDC, &point);
        return point;
    }
    CSize Size(BOOL(WINAPI* get)(HDC, LPSIZE)) const
    {
        CSize size;
        get(m_hAttribDC, &size);
        return size;
    }
    CPoint PointBefore(BOOL(WINAPI* set)(HDC, int, int, LPPOINT), int x, int y) const
    {
        CPoint before;
        OnBoth(set, x, y, &before);
        return before;
    }
    CSize SizeBefore(BOOL(WINAPI* set)(HDC, int, int, LPSIZE), int cx, int cy) const
    {
        CSize before;
        OnBoth(set, cx, cy, &before);
        return before;
    }
    static CSize Extent(HDC dc, LPCTSTR text, int count)
    {
        CSize size;
        ::GetTextExtentPoint32(dc, text, count, &size);
        return size;
    }
};

// The client area of a window, or the screen for null, until the object goes.
class FRAMEWORK_API CClientDC : public CDC
{
    DECLARE_DYNAMIC(CClientDC)

public:
    explicit CClientDC(CWnd* window);
    ~CClientDC() override;

protected:
    HWND m_hWnd;
};

// A whole window, or the screen for null, until the object goes.
class FRAMEWORK_API CWindowDC : public CDC
{
    DECLARE_DYNAMIC(CWindowDC)

public:
    explicit CWindowDC(CWnd* window);
    ~CWindowDC() override;

protected:
    HWND m_hWnd;
};

// Painting in answer to WM_PAINT and only there; the window is valid once the object goes. A window
// that has ended before it comes to painting gives no context: drawing does nothing then.
class FRAMEWORK_API CPaintDC : public CDC
{
    DECLARE_DYNAMIC(CPaintDC)

public:
    explicit CPaintDC(CWnd* window);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps = {};

protected:
    HWND m_hWnd;
};
