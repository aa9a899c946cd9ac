#pragma once

#include <afxwin.h>

#include <algorithm>
#include <span>

namespace windows {

// Lays a picture with an alpha channel over a ground. One whose fourth bytes are all 0 has none and
// stays as it is.
inline void LayOver(std::span<RGBQUAD> pixels, COLORREF ground)
{
    const auto alphaOf = [](const RGBQUAD& pixel) { return int(pixel.rgbReserved); };
    if (std::ranges::none_of(pixels, alphaOf))
    {
        return;
    }
    const auto mix = [](BYTE& over, int under, int alpha) {
        over = BYTE((over * alpha + under * (255 - alpha) + 127) / 255);
    };
    for (RGBQUAD& pixel : pixels)
    {
        const int alpha = alphaOf(pixel);
        mix(pixel.rgbRed, GetRValue(ground), alpha);
        mix(pixel.rgbGreen, GetGValue(ground), alpha);
        mix(pixel.rgbBlue, GetBValue(ground), alpha);
        // Of a picture with an alpha channel the platform's label would keep a copy of its own,
        // which nobody deletes.
        pixel.rgbReserved = 0;
    }
}

// Loads a bitmap resource from where the framework searches and lays it over a ground, if it is one
// of 32 bits with an alpha channel. False, and the picture left alone, when there is none.
bool LoadPictureOver(CBitmap& picture, UINT id, COLORREF ground);

} // namespace windows
