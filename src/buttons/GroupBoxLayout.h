#pragma once

// Where the parts of an on-board group box and of a static's border lie, free of windows and device
// contexts.

#include "paint/Metrics.h"
#include "scroll/FauxScrollGeometry.h"

#include <afxwin.h>

#include <algorithm>

namespace buttons {

constexpr int GroupCaptionInset = 10; // from the left edge, and at least as much to the right one

// The frame runs through the lower half of a caption line of that height.
inline CRect GroupFrame(const CRect& client, int lineHeight)
{
    return CRect(client.left, client.top + 3 * lineHeight / 4, client.right, client.bottom);
}

// Whether a caption of that width is drawn at all.
inline bool GroupCaptionFits(const CRect& client, int width)
{
    return width <= client.Width() - 2 * GroupCaptionInset;
}

// The client rectangle that the platform leaves inside its edges of that size, with a border of the
// library's width instead.
inline CRect InsideBorder(const CRect& client, CSize edge)
{
    const LONGLONG across = metrics::Border - edge.cx;
    const LONGLONG down = metrics::Border - edge.cy;
    CRect inside(scroll::Saturated(client.left + across), scroll::Saturated(client.top + down),
                 scroll::Saturated(client.right - across),
                 scroll::Saturated(client.bottom - down));
    // A window of no more than its border has an empty client area, not a reversed one.
    inside.right = std::max(inside.left, inside.right);
    inside.bottom = std::max(inside.top, inside.bottom);
    return inside;
}

} // namespace buttons
