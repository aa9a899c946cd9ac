#pragma once

// Making and remaking the pens and brushes of painted parts, beside CreateOnBoardOutlinePen.

#include "OnBoardUI.h"

inline void RemakeLinePen(CPen& pen, COLORREF color)
{
    pen.DeleteObject();
    pen.CreatePen(PS_SOLID, 1, color);
}

inline void RemakeBrush(CBrush& brush, COLORREF color)
{
    brush.DeleteObject();
    brush.CreateSolidBrush(color);
}
