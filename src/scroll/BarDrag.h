#pragma once

// A drag of a faux bar's thumb, as every host of one does it.

#include "FauxScrollBar.h"

namespace scroll {

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
