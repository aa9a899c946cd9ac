#include "support/Pixels.h"

#include "support/Input.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <ostream>

namespace {

constexpr DWORD ColorMask = 0xFFFFFF; // the fourth byte is undefined

BITMAPINFOHEADER HeaderFor(int width, int height)
{
    BITMAPINFOHEADER header = {};
    header.biSize = sizeof(header);
    header.biWidth = width;
    header.biHeight = -height; // from the top
    header.biPlanes = 1;
    header.biBitCount = 32;
    return header;
}

} // namespace

Pixels::Pixels(HDC source, const CRect& rect)
    : m_width(std::max<int>(0, rect.Width()))
    , m_height(std::max<int>(0, rect.Height()))
    , m_pixels(size_t(m_width) * size_t(m_height))
{
    if (m_pixels.empty())
    {
        return;
    }
    BITMAPINFO info = {};
    info.bmiHeader = HeaderFor(m_width, m_height);
    void* bits = nullptr;
    const HDC memory = ::CreateCompatibleDC(nullptr);
    const HBITMAP bitmap = ::CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ old = ::SelectObject(memory, bitmap);
    ::BitBlt(memory, 0, 0, m_width, m_height, source, rect.left, rect.top, SRCCOPY);
    ::GdiFlush();
    std::memcpy(m_pixels.data(), bits, m_pixels.size() * sizeof(DWORD));
    ::SelectObject(memory, old);
    ::DeleteObject(bitmap);
    ::DeleteDC(memory);
    for (DWORD& pixel : m_pixels)
    {
        pixel &= ColorMask;
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

CRect Pixels::Difference(const Pixels& other) const
{
    if (m_width != other.m_width || m_height != other.m_height)
    {
        return CRect(0, 0, std::max(m_width, other.m_width), std::max(m_height, other.m_height));
    }
    CRect all;
    for (int y = 0; y < m_height; ++y)
    {
        for (int x = 0; x < m_width; ++x)
        {
            if (At(x, y) != other.At(x, y))
            {
                const CRect one(x, y, x + 1, y + 1);
                ::UnionRect(&all, &all, &one);
            }
        }
    }
    return all;
}

bool Pixels::SaveBmp(const std::string& path) const
{
    const BITMAPINFOHEADER info = HeaderFor(m_width, m_height);
    BITMAPFILEHEADER file = {};
    file.bfType = 0x4D42; // "BM"
    file.bfOffBits = sizeof(file) + sizeof(info);
    file.bfSize = DWORD(file.bfOffBits + m_pixels.size() * sizeof(DWORD));
    std::ofstream out(path, std::ios::binary);
    out.write(reinterpret_cast<const char*>(&file), sizeof(file));
    out.write(reinterpret_cast<const char*>(&info), sizeof(info));
    out.write(reinterpret_cast<const char*>(m_pixels.data()),
              std::streamsize(m_pixels.size() * sizeof(DWORD)));
    return out.good();
}

void PrintTo(const Pixels& pixels, std::ostream* out)
{
    *out << pixels.m_width << " x " << pixels.m_height << " pixels";
}

Pixels WindowPixels(const CWnd& window)
{
    const HDC dc = ::GetWindowDC(window.GetSafeHwnd());
    const Pixels pixels(dc, CRect(CPoint(0, 0), WindowRectOf(window).Size()));
    ::ReleaseDC(window.GetSafeHwnd(), dc);
    return pixels;
}

Pixels ScreenPixels(const CRect& rect)
{
    // What was drawn reaches the screen when the thread has nothing to do: let it be so.
    ::MsgWaitForMultipleObjectsEx(0, nullptr, 1, 0, 0);
    const HDC dc = ::GetDC(nullptr);
    const Pixels pixels(dc, rect);
    ::ReleaseDC(nullptr, dc);
    return pixels;
}
