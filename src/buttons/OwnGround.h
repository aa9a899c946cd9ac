#pragma once

#include "modes/WindowFacts.h"

// Has a control that paints no ground of its own painted anew: what it stands on takes away what it
// showed before. Nothing while it is hidden.
inline void InvalidateWithGround(CWnd& control)
{
    if (!control.IsWindowVisible())
    {
        return;
    }
    if (const HWND parent = ::GetParent(control); parent != nullptr)
    {
        const CRect place = PlaceIn(parent, control);
        ::InvalidateRect(parent, &place, TRUE);
    }
    control.Invalidate();
}
