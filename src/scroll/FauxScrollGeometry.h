#pragma once

// The bar's arithmetic, free of windows and device contexts. An axis is SB_HORZ or SB_VERT; lengths
// run along it, thickness across it. Differences are taken in 64 bits or doubles and results
// saturate, so no range, position or rectangle overflows.

#include "modes/Rounding.h"
#include "paint/Metrics.h"

#include <afxwin.h>

#include <algorithm>
#include <climits>
#include <cmath>

namespace scroll {

constexpr int Saturated(LONGLONG value)
{
    return static_cast<int>(std::clamp<LONGLONG>(value, INT_MIN, INT_MAX));
}

int Saturated(double value) = delete; // Truncated

// A stretch of pixels; empty when it ends before it starts.
struct Span
{
    int start = 0;
    int end = 0;

    constexpr int Length() const { return std::max(0, Saturated(LONGLONG{end} - start)); }
    constexpr bool Holds(int value) const { return start <= value && value < end; }
    constexpr bool operator==(const Span&) const = default;
};

// A span from its start and length.
constexpr Span SpanAt(int start, int length)
{
    return {start, Saturated(LONGLONG{start} + length)};
}

// A span without margin at either end; one too short for it becomes empty in its middle.
constexpr Span Narrowed(Span span, int margin)
{
    if (span.Length() < 2 * margin)
    {
        return SpanAt(span.start + span.Length() / 2, 0);
    }
    return {span.start + margin, span.end - margin};
}

inline Span SpanAlong(int axis, const RECT& rect)
{
    return axis == SB_HORZ ? Span{static_cast<int>(rect.left), static_cast<int>(rect.right)}
                           : Span{static_cast<int>(rect.top), static_cast<int>(rect.bottom)};
}

inline Span SpanAcross(int axis, const RECT& rect)
{
    return SpanAlong(axis == SB_HORZ ? SB_VERT : SB_HORZ, rect);
}

inline CRect RectOf(int axis, Span along, Span across)
{
    return axis == SB_HORZ ? CRect(along.start, across.start, along.end, across.end)
                           : CRect(across.start, along.start, across.end, along.end);
}

// Buttons and thumb of a bar, the thumb in the middle until a position moves it.
struct BarLayout
{
    CRect first;
    CRect second;
    CRect thumb;
};

inline BarLayout LayoutOf(int axis, const RECT& area, int buttonLength, int thumbLength,
                          int thumbOffset, Span buttonAcross, Span thumbAcross)
{
    const Span along = SpanAlong(axis, area);
    const Span first = SpanAt(along.start, buttonLength);
    const Span second = SpanAt(Saturated(LONGLONG{along.end} - buttonLength), buttonLength);
    const Span thumb = SpanAt(Saturated(LONGLONG{along.start} + thumbOffset), thumbLength);
    return {RectOf(axis, first, buttonAcross), RectOf(axis, second, buttonAcross),
            RectOf(axis, thumb, thumbAcross)};
}

// Sizes follow the thickness: buttons span it, the thumb is inset from the long edges.
inline BarLayout OnBoardLayout(int axis, const RECT& area)
{
    const Span across = SpanAcross(axis, area);
    const int thickness = across.Length();
    const int buttonLength = static_cast<int>(thickness * metrics::BarButtonShare);
    const int thumbLength = static_cast<int>(thickness * metrics::BarThumbShare);
    const int thumbOffset =
        SpanAlong(axis, area).Length() / 2 - static_cast<int>(thumbLength / 2.0);
    return LayoutOf(axis, area, buttonLength, thumbLength, thumbOffset, across,
                    Narrowed(across, metrics::BarThumbInset));
}

// Square parts, one pixel short of the far long edge.
inline BarLayout StandardLayout(int axis, const RECT& area)
{
    const Span across = SpanAcross(axis, area);
    const int side = across.Length();
    const Span part = {across.start, side > 0 ? across.end - 1 : across.end};
    const int thumbOffset = SpanAlong(axis, area).Length() / 2 - side / 2;
    return LayoutOf(axis, area, side, side, thumbOffset, part, part);
}

// Pixels of one step. The free track belongs to all steps of a horizontal bar, but to one less on a
// vertical bar: the two differ on purpose, since a vertical host's last position but one shows its
// last rows. 0 with at most one step, and where the thumb does not fit.
constexpr double PixelsPerStep(int axis, LONGLONG steps, LONGLONG freeTrack)
{
    if (steps <= 1 || freeTrack <= 0)
    {
        return 0.0;
    }
    return static_cast<double>(freeTrack) /
           static_cast<double>(axis == SB_HORZ ? steps : steps - 1);
}

// How far a thumb can move along the track when asked to move by distance: the near end wins where
// it does not fit.
constexpr int LimitedShift(Span thumb, Span track, LONGLONG distance)
{
    const LONGLONG down = LONGLONG{track.start} - thumb.start;
    const LONGLONG up = LONGLONG{track.end} - thumb.end;
    return Saturated(std::max(std::min(distance, up), down));
}

// Where the thumb belongs for a position. It keeps its length where the track has room for it.
constexpr Span ThumbAt(Span thumb, Span track, LONGLONG steps, int position, double pixelsPerStep)
{
    const int length = std::min(thumb.Length(), track.Length());
    // The raw position counts, whatever the minimum of the range.
    const double offset = steps > 0 ? position * pixelsPerStep : 0.0;
    const LONGLONG wanted = LONGLONG{track.start} + Truncated(offset);
    const LONGLONG last = LONGLONG{track.end} - length;
    const int start = Saturated(std::max<LONGLONG>(std::min(wanted, last), track.start));
    return SpanAt(start, length);
}

// The pixels that belong to each position when the thumb is dragged: as many bands as steps, each a
// step long, the first around the place of the thumb's centre at the near end. Band n + 1 starts
// where band n ends, so no pixel between them is lost. Edges are multiples of the step length
// rather than sums of it, which neither drift nor cost by the position.
class StepBands
{
public:
    StepBands(int firstCentre, double pixelsPerStep, LONGLONG count)
        : m_firstStart(firstCentre - pixelsPerStep / 2)
        , m_pixels(pixelsPerStep)
        , m_count(count)
    {}

    double Start(LONGLONG band) const
    {
        return m_firstStart + static_cast<double>(band) * m_pixels;
    }
    double End(LONGLONG band) const { return Start(band + 1); }

    // The band with start <= centre < end, or -1.
    LONGLONG Find(int centre) const
    {
        if (m_count <= 0 || !(m_pixels > 0.0) || centre < Start(0) || centre >= End(m_count - 1))
        {
            return -1;
        }
        // The quotient may round across an edge by one; the edges themselves decide.
        LONGLONG band = static_cast<LONGLONG>(std::floor((centre - m_firstStart) / m_pixels));
        band = std::clamp<LONGLONG>(band, 0, m_count - 1);
        while (band > 0 && centre < Start(band))
        {
            --band;
        }
        while (band < m_count - 1 && centre >= End(band))
        {
            ++band;
        }
        return band;
    }

private:
    double m_firstStart;
    double m_pixels;
    LONGLONG m_count;
};

} // namespace scroll
