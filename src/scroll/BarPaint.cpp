#include "scroll/BarPaint.h"

#include "OnBoardUIGeneral.h"
#include "paint/BackBuffer.h"

namespace scroll {

BarAppearance::BarAppearance(const CFauxScrollBar& bar, CFauxScrollBar::ePRESSED pressedPart,
                             bool windowEnabled)
    : area(bar.GetArea())
    , first(bar.GetPartArea(CFauxScrollBar::PRESSED_FIRST))
    , second(bar.GetPartArea(CFauxScrollBar::PRESSED_SECOND))
    , thumb(bar.GetPartArea(CFauxScrollBar::PRESSED_THUMB))
    , shown(bar.ShowScrollBar())
    , partsShown(bar.GetPartsShown())
    , pressed(pressedPart)
    , enabled(windowEnabled)
    , mode(COnBoardUIGeneral::GetAppMode())
    , colors(bar.GetColorsVersion())
{}

bool BarAppearance::operator==(const BarAppearance& other) const
{
    return area == other.area && first == other.first && second == other.second &&
           thumb == other.thumb && shown == other.shown && partsShown == other.partsShown &&
           pressed == other.pressed && enabled == other.enabled && mode == other.mode &&
           colors == other.colors;
}

bool BarPainter::Draw(CWnd& window, CFauxScrollBar& bar, CFauxScrollBar::ePRESSED pressed,
                      bool force)
{
    // Nothing reaches the screen while the window is hidden or its redraw is off, and a paint need
    // not be asked for afterwards: what was drawn before says nothing then.
    if (!::IsWindowVisible(window.GetSafeHwnd()))
    {
        Invalidate();
        return false;
    }
    const BarAppearance now(bar, pressed, window.IsWindowEnabled() != FALSE);
    if (!force && m_last.has_value() && *m_last == now)
    {
        return false;
    }
    m_last = now;
    if (now.shown == 0 || now.area.IsRectEmpty())
    {
        return false;
    }
    CWindowDC dc(&window);
    BackBuffer buffer(dc, now.area);
    bar.ReDraw(buffer, pressed, now.enabled);
    return true;
}

} // namespace scroll
