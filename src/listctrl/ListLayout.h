#pragma once

// The report list's arithmetic, free of windows and device contexts. Differences are taken in 64
// bits and results saturate, so no number of rows, position or width overflows.

#include "modes/Rounding.h"
#include "paint/Metrics.h"
#include "scroll/FauxScrollGeometry.h"

#include <algorithm>
#include <climits>

namespace listctrl {

// What a bar is to show.
struct BarData
{
    bool needed;
    int lastPosition; // without a step: the position from which on one line too much is scrolled
    int maximum;
    int page;

    constexpr int Limit() const { return needed ? lastPosition : 0; }
};

// Two steps more than it takes: the last rows, or columns, come free of the lower, or right, edge.
constexpr int StepsPastEnd = 2;

// Part of the client height that no row gets.
constexpr int HeightMargin = 6;

constexpr BarData VerticalBar(int items, int rowHeight, int clientHeight)
{
    const int visible = std::max(0, (clientHeight - HeightMargin) / std::max(1, rowHeight));
    const int hidden = items - visible;
    return {items > 0 && hidden >= 0, hidden, scroll::Saturated(LONGLONG{hidden} + StepsPastEnd),
            std::max(1, visible - 1)};
}

// The client width in steps.
constexpr int StepsAcross = 10;

constexpr BarData HorizontalBar(int total, int step, int clientWidth)
{
    const int steps = (total - clientWidth) / std::max(1, step);
    const int maximum = steps + StepsPastEnd;
    const int page =
        total <= 0 ? 1 : scroll::Saturated(LONGLONG{clientWidth} * maximum / LONGLONG{total});
    return {total > clientWidth, steps, maximum, page};
}

// An offset is never above 0, and so far from the limits of an int that coordinates of columns can
// be added to it; down, rows are placed in 64 bits.
constexpr int FarthestAcross = -(1 << 30);

constexpr int OffsetAcross(LONGLONG offset)
{
    return static_cast<int>(std::clamp<LONGLONG>(offset, FarthestAcross, 0));
}

constexpr int OffsetDown(LONGLONG offset)
{
    return static_cast<int>(std::clamp<LONGLONG>(offset, -INT_MAX, 0));
}

// The rows that are drawn into a height, from the first one on.
constexpr int FirstDrawnRow(int offset, int rowHeight)
{
    return rowHeight <= 0 ? 0 : -offset / rowHeight;
}

constexpr int EndOfDrawnRows(int offset, int rowHeight, int bottom, int items)
{
    const LONGLONG first = FirstDrawnRow(offset, rowHeight);
    return rowHeight <= 0
               ? 0
               : scroll::Saturated(std::clamp<LONGLONG>(first + bottom / rowHeight, 0, items));
}

// The message that sets a column's width has no room for more.
constexpr int WidestColumn = SHRT_MAX;

// A column's width in the on-board modes, and back.
inline int OnBoardWidth(int width)
{
    return width < 0 ? width : std::min(Truncated(width * metrics::OnBoardScale), WidestColumn);
}

inline int StandardWidth(int width)
{
    // The least width that is scaled to this one, so that there and back changes nothing.
    const int scaled = Truncated(width / metrics::OnBoardScale);
    return OnBoardWidth(scaled) < width ? scaled + 1 : scaled;
}

// Where a page key takes the focus: to the edge of what is in sight, also from a row out of sight,
// and from there on by a page.
constexpr int PageTarget(bool down, int focus, int top, int rowsInSight, int items)
{
    const int rows = std::max(1, rowsInSight);
    const int page = std::max(1, rows - 1);
    const int edge = down ? std::min<int>(items - 1, top + rows - 1) : top;
    const int target = focus != edge ? edge : down ? focus + page : focus - page;
    return std::clamp(target, 0, std::max(0, items - 1));
}

// The first row in sight so that a row is, moved as little as possible.
constexpr int TopToShow(int row, int top, int rowsInSight)
{
    const int rows = std::max(1, rowsInSight);
    return row < top ? row : row >= top + rows ? row - rows + 1 : top;
}

} // namespace listctrl
