#include "windows/MessageIcon.h"

namespace windows {

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
