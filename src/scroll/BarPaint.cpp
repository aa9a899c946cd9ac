#include "scroll/BarPaint.h"

#include "OnBoardUIGeneral.h"
#include "paint/BackBuffer.h"
#include "paint/GdiGuards.h"
#include "scroll/NcBands.h"

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

// Notes what the bar shows now; whether it is to be painted.
bool BarPainter::Take(CWnd& window, CFauxScrollBar& bar, CFauxScrollBar::ePRESSED pressed,
                      bool force)
{
    // Nothing reaches the screen while the window is hidden or its redraw is off, and a paint need
    // not be asked for afterwards: what was drawn before says nothing then.
    if (!IsFrameSeen(window))
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
    return now.shown != 0 && !now.area.IsRectEmpty();
}

namespace {

void Paint(CDC& target, CFauxScrollBar& bar, const BarAppearance& now)
{
    BackBuffer buffer(target, now.area);
    bar.ReDraw(buffer, now.pressed, now.enabled);
}

} // namespace

bool BarPainter::Draw(CWnd& window, CFauxScrollBar& bar, CFauxScrollBar::ePRESSED pressed,
                      bool force)
{
    if (!Take(window, bar, pressed, force))
    {
        return false;
    }
    OwnContext dc(window, OwnContext::Whole);
    if (!dc)
    {
        Invalidate();
        return false;
    }
    Paint(dc, bar, *m_last);
    return true;
}

void BarPainter::DrawTo(CDC& target, CWnd& window, CFauxScrollBar& bar,
                        CFauxScrollBar::ePRESSED pressed)
{
    if (::WindowFromDC(target) == window.GetSafeHwnd())
    {
        if (Take(window, bar, pressed, true))
        {
            Paint(target, bar, *m_last);
        }
        return;
    }
    const BarAppearance now(bar, pressed, window.IsWindowEnabled() != FALSE);
    if (now.shown != 0 && !now.area.IsRectEmpty())
    {
        Paint(target, bar, now);
    }
}

} // namespace scroll
