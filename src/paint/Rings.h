#pragma once

#include "paint/Metrics.h"

#include <afxwin.h>

// Draws a border of as many rectangles inside one another as a border has pixels, and gives what
// they enclose, which may be less than nothing.
inline CRect DrawRings(CDC& dc, const CRect& outer, COLORREF topLeft, COLORREF bottomRight)
{
    CRect ring(outer);
    for (int line = 0; line < metrics::Border; ++line)
    {
        if (!ring.IsRectEmpty())
        {
            dc.Draw3dRect(&ring, topLeft, bottomRight);
        }
        ring.DeflateRect(1, 1);
    }
    return ring;
}
