#pragma once

// What a change of the mode does to the edit of a label, in report lists and in trees.

#include "modes/WindowFacts.h"

#include <algorithm>

// Brings it over its label, in the font of the rows: the platform leaves it where it was opened.
// All in the client pixels of its parent. False where the label is not in area.
inline bool PlaceLabelEdit(HWND edit, const CRect& label, const CRect& area, LRESULT font)
{
    constexpr int Frame = 2; // of the edit, around the label
    if (label.IsRectEmpty() || label.top < area.top || label.bottom > area.bottom)
    {
        return false;
    }
    CRect place(label);
    place.InflateRect(Frame, 1);
    if (PlaceIn(::GetParent(edit), edit).TopLeft() == place.TopLeft() &&
        ::SendMessage(edit, WM_GETFONT, 0, 0) == font)
    {
        return true;
    }
    ::SendMessage(edit, WM_SETFONT, WPARAM(font), TRUE);
    place.right = place.left + std::max(place.Width(), PlaceIn(::GetParent(edit), edit).Width());
    ::SetWindowPos(edit, nullptr, place.left, place.top, place.Width(), place.Height(),
                   SWP_NOZORDER | SWP_NOACTIVATE);
    return true;
}
