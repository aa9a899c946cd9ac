#include "dialogs/MessageIcon.h"

namespace dialogs {

namespace {

BYTE Mixed(int over, int under, int alpha)
{
    return BYTE((over * alpha + under * (255 - alpha) + 127) / 255);
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
        auto* const bits = static_cast<RGBQUAD*>(section.dsBm.bmBits);
        const int count = section.dsBm.bmWidth * section.dsBm.bmHeight;
        for (RGBQUAD* pixel = bits; pixel != bits + count; ++pixel)
        {
            const int alpha = pixel->rgbReserved;
            pixel->rgbRed = Mixed(pixel->rgbRed, GetRValue(ground), alpha);
            pixel->rgbGreen = Mixed(pixel->rgbGreen, GetGValue(ground), alpha);
            pixel->rgbBlue = Mixed(pixel->rgbBlue, GetBValue(ground), alpha);
            pixel->rgbReserved = 255;
        }
    }
    picture.DeleteObject();
    return picture.Attach(loaded) != FALSE;
}

} // namespace dialogs
