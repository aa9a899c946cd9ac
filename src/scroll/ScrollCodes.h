#pragma once

// What a press on a faux bar means to its host. An axis is SB_HORZ or SB_VERT.

#include "FauxScrollBar.h"

namespace scroll {

// No scroll code belongs to the part.
constexpr int NoCode = -1;

// Scroll code of a pressed part; the horizontal codes have the same values.
constexpr int CodeOf(CFauxScrollBar::ePRESSED part)
{
    switch (part)
    {
    case CFauxScrollBar::PRESSED_FIRST:
        return SB_LINEUP;
    case CFauxScrollBar::PRESSED_SECOND:
        return SB_LINEDOWN;
    case CFauxScrollBar::PRESSED_BEFORE_THUMB:
        return SB_PAGEUP;
    case CFauxScrollBar::PRESSED_AFTER_THUMB:
        return SB_PAGEDOWN;
    case CFauxScrollBar::PRESSED_THUMB:
        return SB_THUMBTRACK;
    case CFauxScrollBar::PRESSED_NONE:
        break;
    }
    return NoCode;
}

// Arrow buttons go on scrolling while they are held.
constexpr bool Repeats(CFauxScrollBar::ePRESSED part)
{
    return part == CFauxScrollBar::PRESSED_FIRST || part == CFauxScrollBar::PRESSED_SECOND;
}

constexpr UINT MessageOf(int axis)
{
    return axis == SB_VERT ? WM_VSCROLL : WM_HSCROLL;
}

constexpr UINT HitCodeOf(int axis)
{
    return axis == SB_VERT ? HTVSCROLL : HTHSCROLL;
}

constexpr DWORD StyleOf(int axis)
{
    return axis == SB_VERT ? WS_VSCROLL : WS_HSCROLL;
}

// The coordinate of a point that runs along a bar.
constexpr int Along(int axis, const POINT& point)
{
    return static_cast<int>(axis == SB_VERT ? point.y : point.x);
}

// Moves the thumb by pixels along the bar; the position that it stands for afterwards.
inline int DragThumb(CFauxScrollBar& bar, int pixels)
{
    bar.IncrementScrollByPixels(pixels);
    if (bar.GetOrientation() == SB_HORZ && pixels > 0 &&
        bar.GetPartArea(CFauxScrollBar::PRESSED_THUMB).right >=
            bar.GetPartArea(CFauxScrollBar::PRESSED_SECOND).left)
    {
        // Past its last band a horizontal bar tells no position; at the end of the track a drag
        // has reached the end of the content all the same.
        bar.HandleScroll(SB_RIGHT);
    }
    return bar.GetScrollPos();
}

} // namespace scroll
