#pragma once

// The border of an on-board edit: what it looks like in each state, and its one drawing body.

#include "paint/Metrics.h"
#include "paint/Palette.h"

#include <afxwin.h>

struct EditBorder
{
    COLORREF topLeft;
    COLORREF bottomRight;
};

constexpr EditBorder EditBorderOf(bool enabled, bool readOnly)
{
    if (!enabled)
    {
        return {palette::EditEdgeLitDisabled, palette::EditEdgeShadeDisabled};
    }
    if (readOnly)
    {
        return {palette::EditEdgeReadOnly, palette::EditEdgeReadOnly};
    }
    return {palette::EditEdgeLit, palette::EditEdgeShade};
}

// Rectangles inside one another, from the window's edge inwards.
inline void DrawEditBorder(CDC& dc, CRect window, const EditBorder& border)
{
    for (int line = 0; line < metrics::Border && !window.IsRectEmpty(); ++line)
    {
        dc.Draw3dRect(&window, border.topLeft, border.bottomRight);
        window.DeflateRect(1, 1);
    }
}
