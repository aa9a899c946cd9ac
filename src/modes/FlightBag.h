#pragma once

#include "AppMode.h"

// Whether the mode is one of the two in which the host is an electronic flight bag, with a keyboard
// on the screen and a word in modal dialogs.
constexpr bool IsFlightBag(APPMODE mode)
{
    return mode == EFB || mode == EFBFS;
}
