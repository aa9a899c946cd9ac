#include "windows/MessageIcon.h"

#include <algorithm>
#include <span>

namespace windows {

namespace {

// Lays a picture with an alpha channel over a ground. One whose fourth bytes are all 0 has none and
// stays as it is.
void LayOver(std::span<RGBQUAD> pixels, COLORREF ground)
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

} // namespace

bool LoadPictureOver(CBitmap& picture, UINT id, COLORREF ground)
{
    const LPCTSTR name = MAKEINTRESOURCE(id);
    const auto loaded = static_cast<HBITMAP>(::LoadImage(
        AfxFindResourceHandle(name, RT_BITMAP), name, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
    if (loaded == nullptr)
    {
        return false;
    }
    DIBSECTION section = {};
    if (::GetObject(loaded, sizeof(section), &section) == sizeof(section) &&
        section.dsBm.bmBitsPixel == 32 && section.dsBm.bmBits != nullptr)
    {
        const std::span pixels(static_cast<RGBQUAD*>(section.dsBm.bmBits),
                               size_t(section.dsBm.bmWidth) * size_t(section.dsBm.bmHeight));
        LayOver(pixels, ground);
    }
    picture.DeleteObject();
    return picture.Attach(loaded) != FALSE;
}

} // namespace windows
