#include "Picture.h"

#include <algorithm>
#include <cstring>

Picture::Picture(const CWnd& window)
{
    CRect place;
    window.GetWindowRect(&place);
    m_width = place.Width();
    m_height = place.Height();
    if (m_width <= 0 || m_height <= 0)
    {
        m_width = m_height = 0;
        return;
    }
    m_pixels.resize(size_t(m_width) * size_t(m_height));

    CClientDC screen(nullptr);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, m_width, m_height);
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    CBitmap* const before = memory.SelectObject(&bitmap);
    memory.BitBlt(0, 0, m_width, m_height, &screen, place.left, place.top, SRCCOPY);
    memory.SelectObject(before);

    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = m_width;
    info.bmiHeader.biHeight = -m_height; // from the top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    ::GetDIBits(memory, HBITMAP(bitmap.GetSafeHandle()), 0, UINT(m_height), m_pixels.data(), &info,
                DIB_RGB_COLORS);
}

COLORREF Picture::At(int x, int y) const
{
    const RGBQUAD& pixel = m_pixels[size_t(y) * size_t(m_width) + size_t(x)];
    return RGB(pixel.rgbRed, pixel.rgbGreen, pixel.rgbBlue);
}

void Picture::Leave(const CRect& place)
{
    CRect within;
    within.IntersectRect(place, CRect(0, 0, m_width, m_height));
    for (int y = within.top; y < within.bottom; ++y)
    {
        const auto row = m_pixels.begin() + ptrdiff_t(y) * m_width;
        std::fill(row + within.left, row + within.right, RGBQUAD());
    }
}

bool Picture::operator==(const Picture& other) const
{
    return m_width == other.m_width && m_height == other.m_height &&
           std::memcmp(m_pixels.data(), other.m_pixels.data(), m_pixels.size() * sizeof(RGBQUAD)) ==
               0;
}
