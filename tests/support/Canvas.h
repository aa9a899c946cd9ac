#pragma once

#include <afxwin.h>

#include <cstring>
#include <vector>

// A memory bitmap to paint on, filled with a colour that no painter uses.
class Canvas
{
public:
    static constexpr COLORREF Untouched = RGB(255, 0, 255);

    Canvas(int width, int height)
        : m_width(width)
        , m_height(height)
    {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof(info.bmiHeader);
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        m_dc.CreateCompatibleDC(nullptr);
        m_bitmap = ::CreateDIBSection(m_dc, &info, DIB_RGB_COLORS, &m_bits, nullptr, 0);
        m_old = ::SelectObject(m_dc, m_bitmap);
        Clear();
    }

    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    ~Canvas()
    {
        ::SelectObject(m_dc, m_old);
        ::DeleteObject(m_bitmap);
    }

    CDC& DC() { return m_dc; }
    void Clear() { m_dc.FillSolidRect(0, 0, m_width, m_height, Untouched); }
    COLORREF At(int x, int y) { return m_dc.GetPixel(x, y); }

    // All pixels; the undefined fourth byte of each is masked out.
    std::vector<DWORD> Pixels() const
    {
        ::GdiFlush();
        std::vector<DWORD> pixels(static_cast<size_t>(m_width) * static_cast<size_t>(m_height));
        std::memcpy(pixels.data(), m_bits, pixels.size() * sizeof(DWORD));
        for (DWORD& pixel : pixels)
        {
            pixel &= 0xFFFFFF;
        }
        return pixels;
    }

    bool IsUntouched() const
    {
        for (const DWORD pixel : Pixels())
        {
            if (pixel != Untouched) // the same bytes in either order
            {
                return false;
            }
        }
        return true;
    }

private:
    int m_width;
    int m_height;
    CDC m_dc;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_old = nullptr;
    void* m_bits = nullptr;
};
