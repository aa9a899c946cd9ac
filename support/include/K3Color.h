#pragma once

#include <windows.h>

// A colour of the maker's graphics.
class K3Color
{
public:
    constexpr K3Color() = default;
    constexpr K3Color(BYTE red, BYTE green, BYTE blue)
        : m_color(RGB(red, green, blue))
    {}

    constexpr COLORREF ToColorRef() const { return m_color; }

    friend constexpr bool operator==(const K3Color&, const K3Color&) = default;

private:
    COLORREF m_color = RGB(0, 0, 0);
};
