#include "catalog/Pixels.h"

#include <algorithm>
#include <cstring>
#include <ostream>

HBITMAP MakeBitmap(int width, int height, void** bits)
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // from the top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* unused = nullptr;
    return ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, bits ? bits : &unused, nullptr, 0);
}

Pixels::Pixels(HDC source, const CRect& rect)
    : m_width(std::max<int>(0, rect.Width()))
    , m_height(std::max<int>(0, rect.Height()))
    , m_pixels(size_t(m_width) * size_t(m_height))
{
    if (m_pixels.empty())
    {
        return;
    }
    void* bits = nullptr;
    const HDC memory = ::CreateCompatibleDC(nullptr);
    const HBITMAP bitmap = MakeBitmap(m_width, m_height, &bits);
    const HGDIOBJ old = ::SelectObject(memory, bitmap);
    ::BitBlt(memory, 0, 0, m_width, m_height, source, rect.left, rect.top, SRCCOPY);
    ::GdiFlush();
    std::memcpy(m_pixels.data(), bits, m_pixels.size() * sizeof(DWORD));
    ::SelectObject(memory, old);
    ::DeleteObject(bitmap);
    ::DeleteDC(memory);
    for (DWORD& pixel : m_pixels)
    {
        pixel &= 0xFFFFFF; // the fourth byte is undefined
    }
}

COLORREF Pixels::At(int x, int y) const
{
    if (x < 0 || y < 0 || x >= m_width || y >= m_height)
    {
        return CLR_INVALID;
    }
    const DWORD pixel = m_pixels[size_t(y) * size_t(m_width) + size_t(x)];
    return RGB(pixel >> 16, pixel >> 8, pixel);
}

int Pixels::Count(COLORREF color, const CRect& within) const
{
    int count = 0;
    for (int y = within.top; y < within.bottom; ++y)
    {
        for (int x = within.left; x < within.right; ++x)
        {
            count += At(x, y) == color ? 1 : 0;
        }
    }
    return count;
}

void Pixels::Leave(const CRect& place)
{
    CRect within;
    within.IntersectRect(place, CRect(0, 0, m_width, m_height));
    for (int y = within.top; y < within.bottom; ++y)
    {
        const auto row = m_pixels.begin() + ptrdiff_t(y) * m_width;
        std::fill(row + within.left, row + within.right, 0);
    }
}

void PrintTo(const Pixels& pixels, std::ostream* out)
{
    *out << pixels.m_width << " x " << pixels.m_height << " pixels";
}

namespace {

CRect PlaceOnScreen(const CWnd& window)
{
    CRect place(0, 0, 0, 0);
    window.GetWindowRect(&place);
    return place;
}

} // namespace

Pixels WindowPixels(const CWnd& window)
{
    const HDC dc = ::GetWindowDC(window.GetSafeHwnd());
    Pixels pixels(dc, CRect(CPoint(0, 0), PlaceOnScreen(window).Size()));
    ::ReleaseDC(window.GetSafeHwnd(), dc);
    return pixels;
}

Pixels ScreenPixels(const CRect& rect)
{
    // What was drawn reaches the screen when the thread has nothing to do: let it be so.
    ::MsgWaitForMultipleObjectsEx(0, nullptr, 1, 0, 0);
    const HDC dc = ::GetDC(nullptr);
    Pixels pixels(dc, rect);
    ::ReleaseDC(nullptr, dc);
    return pixels;
}

Pixels ScreenPixels(const CWnd& window)
{
    return ScreenPixels(PlaceOnScreen(window));
}
