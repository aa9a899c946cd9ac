#pragma once

// Where the parts of a drop-list combo lie. No window, no context.

#include "paint/Metrics.h"

#include <afxwin.h>

#include <algorithm>
#include <span>

namespace lists {

struct ComboParts
{
    CRect text;
    CRect button;
};

// Text and button inside a client area. The button lies at the right, never more than half of the
// width; where both have a border of their own (buttonOverlap) it covers that of the combo.
inline ComboParts LayOutCombo(const CRect& client, int border, int buttonWidth, bool buttonOverlap)
{
    CRect inside = client;
    inside.DeflateRect(border, border);
    inside.right = std::max(inside.right, inside.left);
    inside.bottom = std::max(inside.bottom, inside.top);
    CRect button = buttonOverlap ? client : inside;
    const int width = std::clamp(buttonWidth, 0, std::max(0, button.Width() / 2));
    button.left = button.right - width;
    CRect text = inside;
    text.right = std::max(text.left, std::min(text.right, button.left));
    return {text, button};
}

// Rows of a list and what its window needs beyond them, in pixels.
struct ListSize
{
    int rows;
    int rowHeight;
    int frame;
};

// The place of a combo's list: as wide as the combo, below it if all rows have room there, else
// above it if they have room there, else on the side with more room with as many whole rows as go
// in, one at least. All in screen coordinates.
inline CRect PlaceList(const CRect& combo, const CRect& screen, const ListSize& size)
{
    const LONGLONG rowHeight = std::max(1, size.rowHeight);
    const LONGLONG wanted = rowHeight * std::max(1, size.rows) + size.frame;
    const LONGLONG below = LONGLONG{screen.bottom} - combo.bottom;
    const LONGLONG above = LONGLONG{combo.top} - screen.top;
    const bool down = wanted <= below || (wanted > above && below >= above);
    const LONGLONG room = down ? below : above;
    LONGLONG height = wanted;
    if (height > room)
    {
        height = std::max<LONGLONG>(1, (room - size.frame) / rowHeight) * rowHeight + size.frame;
    }
    return down ? CRect(combo.left, combo.bottom, combo.right, LONG(combo.bottom + height))
                : CRect(combo.left, LONG(combo.top - height), combo.right, combo.top);
}

// The height of a combo at a place: the wanted one, but no further down than the next of the other
// controls or the edge of one that it stands in, and the least in any case.
inline int HeightInRoom(const CRect& place, int least, int wanted, std::span<const CRect> others)
{
    const LONG leastBottom = place.top + least;
    LONG bottom = place.top + std::max(least, wanted);
    for (const CRect& other : others)
    {
        if (other.right <= place.left || other.left >= place.right || other.IsRectEmpty())
        {
            continue;
        }
        if (other.top >= leastBottom)
        {
            bottom = std::min(bottom, other.top - metrics::Border);
        }
        else if (other.top <= place.top && other.bottom >= leastBottom)
        {
            bottom = std::min(bottom, other.bottom - metrics::Border);
        }
    }
    return std::max<int>(least, bottom - place.top);
}

} // namespace lists
