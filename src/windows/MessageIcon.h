#pragma once

#include <afxwin.h>

namespace windows {

// Loads a bitmap resource from where the framework searches and lays it over a ground, if it is one
// of 32 bits with an alpha channel. False, and the picture left alone, when there is none.
bool LoadPictureOver(CBitmap& picture, UINT id, COLORREF ground);

} // namespace windows
