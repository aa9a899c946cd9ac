#pragma once

#include "FauxScrollBar.h"
#include "support/Input.h"

// The bars that controls draw themselves.

inline CPoint RangeOf(const CFauxScrollBar& bar)
{
    int minimum = 0;
    int maximum = 0;
    bar.GetScrollRange(&minimum, &maximum);
    return CPoint(minimum, maximum);
}

// Screen point in the middle of a part, the trough on either side of the thumb included.
inline CPoint PartPoint(const CWnd& window, const CFauxScrollBar& bar,
                        CFauxScrollBar::ePRESSED part)
{
    const CRect thumb = bar.GetPartArea(CFauxScrollBar::PRESSED_THUMB);
    CRect area = bar.GetPartArea(part);
    if (part == CFauxScrollBar::PRESSED_BEFORE_THUMB)
    {
        const CRect first = bar.GetPartArea(CFauxScrollBar::PRESSED_FIRST);
        area = CRect(first.BottomRight(), thumb.TopLeft());
    }
    if (part == CFauxScrollBar::PRESSED_AFTER_THUMB)
    {
        const CRect second = bar.GetPartArea(CFauxScrollBar::PRESSED_SECOND);
        area = CRect(thumb.BottomRight(), second.TopLeft());
    }
    return WindowPoint(window, area.CenterPoint());
}
