#pragma once

#include <afxwin.h>

#include <iosfwd>
#include <vector>

// A picture of what is on the screen.
class Pixels
{
public:
    Pixels() = default;
    // Copies rect out of a device context.
    Pixels(HDC source, const CRect& rect);

    int Width() const { return m_width; }
    int Height() const { return m_height; }
    COLORREF At(int x, int y) const; // CLR_INVALID outside
    COLORREF At(CPoint point) const { return At(point.x, point.y); }
    int Count(COLORREF color, const CRect& within) const;
    int Count(COLORREF color) const { return Count(color, CRect(0, 0, m_width, m_height)); }

    void Leave(const CRect& place); // out of it: black

    friend bool operator==(const Pixels&, const Pixels&) = default;
    friend void PrintTo(const Pixels& pixels, std::ostream* out);

private:
    int m_width = 0;
    int m_height = 0;
    std::vector<DWORD> m_pixels; // 0x00RRGGBB, from the top
};

// A window with its non-client area, from its top left corner. Paints nothing first: PumpAll()
// before it to see the window settled, or not, to see what was drawn at once.
Pixels WindowPixels(const CWnd& window);

// A new bitmap of 32 bits a pixel, the first row at the top; bits gets its memory.
HBITMAP MakeBitmap(int width, int height, void** bits = nullptr);

// @{
// A part of the screen, in screen coordinates, or all that it shows where a window is.
Pixels ScreenPixels(const CRect& rect);
Pixels ScreenPixels(const CWnd& window);
// @}
