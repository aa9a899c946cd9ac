#pragma once

#include "AppMode.h"

#include <afxwin.h>

namespace scroll {

// Draws a part that is shown in its look for a mode: the platform's in the standard one.
template <class Part> void DrawInMode(Part& part, CDC& dc, int pressed, int enabled, APPMODE mode)
{
    if (part.GetShow() == 0)
    {
        return;
    }
    if (mode == STD)
    {
        part.ReDrawStd(dc, pressed, enabled);
    }
    else
    {
        part.ReDrawOnBoard(dc, pressed, enabled);
    }
}

} // namespace scroll
