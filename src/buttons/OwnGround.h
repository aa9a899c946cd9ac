#pragma once

#include "modes/TakenOver.h"
#include "modes/WindowFacts.h"

// Has a control that paints no ground of its own painted anew: what it stands on takes away what it
// showed before. Also while it seems to be hidden: its painting may be held back, and nobody has
// what it stands on painted once that ends.
inline void InvalidateWithGround(CWnd& control)
{
    if (const HWND parent = ::GetParent(control); ::IsWindowVisible(parent))
    {
        const CRect place = PlaceIn(parent, control);
        ::InvalidateRect(parent, &place, TRUE);
    }
    control.Invalidate();
}

// The end of PreSubclassWindow of such a control.
inline void ShowTakenOverWithGround(CWnd& control)
{
    ShowTakenOver(control);
    if (control.IsWindowVisible())
    {
        InvalidateWithGround(control);
    }
}
