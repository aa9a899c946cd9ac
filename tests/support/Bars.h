#pragma once

#include "FauxScrollBar.h"
#include "support/Input.h"

// The bars that controls draw themselves.

namespace parts {

constexpr auto First = CFauxScrollBar::PRESSED_FIRST;
constexpr auto Second = CFauxScrollBar::PRESSED_SECOND;
constexpr auto BeforeThumb = CFauxScrollBar::PRESSED_BEFORE_THUMB;
constexpr auto AfterThumb = CFauxScrollBar::PRESSED_AFTER_THUMB;
constexpr auto Thumb = CFauxScrollBar::PRESSED_THUMB;

} // namespace parts

inline CPoint RangeOf(const CFauxScrollBar& bar)
{
    int minimum = 0;
    int maximum = 0;
    bar.GetScrollRange(&minimum, &maximum);
    return CPoint(minimum, maximum);
}

// Screen point in the middle of a part.
inline CPoint PartPoint(const CWnd& window, const CFauxScrollBar& bar,
                        CFauxScrollBar::ePRESSED part)
{
    return WindowPoint(window, bar.GetPartArea(part).CenterPoint());
}
