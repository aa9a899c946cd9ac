#pragma once

// The grid that the pages are laid out on, in pixels of the standard mode at 96 dots per inch.
// On-board it grows with the mode's scale, so that what is 31 high here is 52 pixels there: a
// finger's.

#include <afxwin.h>

namespace grid {

constexpr int Width = 396; // of every page
constexpr int Height = 392;
constexpr int Gap = 12; // between columns, and between what stands apart

// Heights.
constexpr int Caption = 15; // a label of one line
constexpr int CaptionStep = 17;
constexpr int Line = 31;   // an edit of one line
constexpr int Drop = 31;   // a combo
constexpr int Choice = 31; // a radio button
constexpr int Check = 14; // on-board, a check box's square is as high as it, and whole only in this
constexpr int Push = 31;
constexpr int PushStep = Push + 9;

// A page is divided into so many equal columns.
constexpr int Left(int columns, int column, int gap = Gap)
{
    return (Width + gap) * column / columns;
}

// A rectangle over so many of the columns.
inline CRect Cell(int columns, int column, int top, int height, int span = 1, int gap = Gap)
{
    return CRect(Left(columns, column, gap), top, Left(columns, column + span, gap) - gap,
                 top + height);
}

// Over all of them.
inline CRect Across(int top, int height)
{
    return CRect(0, top, Width, top + height);
}

} // namespace grid
