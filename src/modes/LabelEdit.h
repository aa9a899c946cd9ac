#pragma once

// Where the edit of a label goes, and its end, in report lists and in trees.

#include "modes/WindowFacts.h"

#include <algorithm>

// Brings it over its label, in the font of the rows or, without one, its own: the platform leaves
// it where it was opened. All in the client pixels of its parent; by frame it is larger than the
// label. False where the label is not in area.
inline bool PlaceLabelEdit(HWND edit, const CRect& label, const CRect& area, LRESULT font,
                           const CRect& frame = CRect(2, 1, 2, 1))
{
    if (label.IsRectEmpty() || label.top < area.top || label.bottom > area.bottom)
    {
        return false;
    }
    CRect place(label);
    place.InflateRect(frame);
    const CRect now = PlaceIn(::GetParent(edit), edit);
    const bool inFont = font == 0 || ::SendMessage(edit, WM_GETFONT, 0, 0) == font;
    if (inFont && now.TopLeft() == place.TopLeft() && now.Height() >= place.Height())
    {
        return true;
    }
    if (!inFont)
    {
        ::SendMessage(edit, WM_SETFONT, WPARAM(font), TRUE);
    }
    place.right = std::max(std::min(place.right, area.right), place.left + now.Width());
    // Where it was the pixels have been scrolled already.
    ::SetWindowPos(edit, nullptr, place.left, place.top, place.Width(), place.Height(),
                   SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
    return true;
}

// Ends the edit of a label, if there is one: it would stay while its row or item goes.
inline void EndLabelEdit(CWnd& parent, LRESULT edit)
{
    if (edit != 0)
    {
        parent.SetFocus();
    }
}
