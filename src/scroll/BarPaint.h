#pragma once

#include "FauxScrollBar.h"

#include <optional>

namespace scroll {

// Everything that a painted bar shows, taken at one moment.
struct BarAppearance
{
    BarAppearance(const CFauxScrollBar& bar, CFauxScrollBar::ePRESSED pressed, bool enabled);

    bool operator==(const BarAppearance& other) const;

    CRect area;
    CRect first;
    CRect second;
    CRect thumb;
    int shown;
    int partsShown;
    CFauxScrollBar::ePRESSED pressed;
    bool enabled;
    APPMODE mode;
    unsigned colors;
};

// Paints one bar of a window, and only when it looks different from what is on the screen. A host
// keeps one beside each bar.
class BarPainter
{
public:
    // What is on the screen is gone or out of date: call it when a paint was asked for
    // (WM_NCPAINT), when the system colours change, and when something was drawn over the bar.
    void Invalidate() { m_last.reset(); }

    // Paints the bar through the window's device context and a back buffer, enabled as the window
    // is. Nothing when it is hidden or looks as last painted, unless force is set. True when it
    // was painted.
    bool Draw(CWnd& window, CFauxScrollBar& bar, CFauxScrollBar::ePRESSED pressed,
              bool force = false);
    // Paints the bar, unless it is hidden, through a context that somebody else has: what is on the
    // screen counts only if that is where it draws.
    void DrawTo(CDC& target, CWnd& window, CFauxScrollBar& bar, CFauxScrollBar::ePRESSED pressed);

private:
    bool Take(CWnd& window, CFauxScrollBar& bar, CFauxScrollBar::ePRESSED pressed, bool force);

    std::optional<BarAppearance> m_last;
};

} // namespace scroll
