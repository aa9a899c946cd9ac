#pragma once

#include <AppMode.h>

#include <afxwin.h>

#include <iterator>
#include <optional>

// The display mode of that name, whatever the case of its letters.
inline std::optional<APPMODE> ModeNamed(LPCSTR name)
{
    for (size_t mode = 0; mode < std::size(APPMODE_NAMES); ++mode)
    {
        if (::lstrcmpi(APPMODE_NAMES[mode], name) == 0)
        {
            return APPMODE(mode);
        }
    }
    return std::nullopt;
}

// The modes of an electronic flight bag.
inline bool IsFlightBag(APPMODE mode)
{
    return mode == EFB || mode == EFBFS;
}

// The modes whose window is the screen.
inline bool CoversScreen(APPMODE mode)
{
    return mode == FULLSCREEN || mode == EFBFS;
}
