#pragma once

#include <afxwin.h>

// Height factors of the on-board fonts over the stock system font.
constexpr double SmallOnBoardFont = 1.3; // rows of list boxes, drop-list combos
constexpr double LargeOnBoardFont = 1.7; // edits, report lists, buttons, captions

// A control class's shared font, made on first use: the on-board one at a height factor and normal
// weight, the standard one at the standard control height (tenths of a point) in MS Sans Serif.
CFont& OnBoardControlFont(CFont& shared, double heightFactor);
CFont& StandardControlFont(CFont& shared);

// The same for a control class's outline pen, its focus pen and a brush.
void MakeControlPen(CPen& shared, COLORREF color);
void MakeControlFocusPen(CPen& shared, COLORREF color);
void MakeControlBrush(CBrush& shared, COLORREF color);
