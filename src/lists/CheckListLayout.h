#pragma once

// Where the parts of a check list's row lie and how a check goes round, free of windows.

#include "paint/Metrics.h"

#include <afxwin.h>

#include <algorithm>

namespace lists {

// The check box of a row: a little from the left edge, in the middle of its height. check is the
// size of the box.
inline CRect CheckPlace(const CRect& row, const CSize& check)
{
    const int offset = std::max(0, (row.Height() - int(check.cy)) / 2);
    return CRect(
        CPoint(row.left + metrics::RowCheckInset, row.top + offset + metrics::RowCheckInset),
        check);
}

// From a row's left edge to its text.
constexpr int TextIndent(int checkWidth)
{
    return checkWidth + metrics::RowCheckText;
}

// Whether a point so far right of a row's left edge is on its check.
constexpr bool IsOnCheck(int fromLeft, int checkWidth)
{
    return fromLeft >= 0 && fromLeft < checkWidth + metrics::RowCheckReach;
}

constexpr bool IsCheckStyle(UINT style)
{
    return style == BS_CHECKBOX || style == BS_AUTOCHECKBOX || style == BS_3STATE ||
           style == BS_AUTO3STATE;
}

// The list changes the check itself when the user works it.
constexpr bool ChangesItself(UINT style)
{
    return style == BS_AUTOCHECKBOX || style == BS_AUTO3STATE;
}

constexpr bool HasThreeStates(UINT style)
{
    return style == BS_3STATE || style == BS_AUTO3STATE;
}

// The check that follows when the user works it, always one of the style's. The first number that
// the style does not have counts as its last one.
constexpr int NextCheck(int check, UINT style)
{
    const int cycle = HasThreeStates(style) ? 3 : 2;
    if (check == cycle)
    {
        return 0;
    }
    const int rest = check % cycle; // no number overflows, and one below 0 comes round too
    return (rest + cycle + 1) % cycle;
}

} // namespace lists
