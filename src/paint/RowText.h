#pragma once

#include "paint/GdiGuards.h"

// Draws a row's text, half way down, on its ground; indent is from the row's left. Both come in one
// call, so that no row is ever seen empty.
inline void DrawTextOnGround(CDC& dc, const CRect& row, int indent, const CString& text,
                             COLORREF color, COLORREF ground)
{
    const TextColor textColor(dc, color);
    const BackgroundColor backgroundColor(dc, ground);
    const int top = row.top + (row.Height() - dc.GetTextExtent("X", 1).cy) / 2;
    dc.ExtTextOut(row.left + indent, top, ETO_OPAQUE | ETO_CLIPPED, row, text, nullptr);
}
