#include "FauxDropButton.h"

#include "scroll/FauxScrollGeometry.h"
#include "scroll/LookOfPart.h"

CFauxDropButton::CFauxDropButton() = default;

CFauxDropButton::~CFauxDropButton() = default;

void CFauxDropButton::ReDraw(CDC& dc, int pressed, int enabled, APPMODE mode)
{
    scroll::DrawInMode(*this, dc, pressed, enabled, mode);
}

void CFauxDropButton::ReDrawOnBoard(CDC& dc, int pressed, int enabled)
{
    constexpr int ArrowDrop = 2; // the arrow sits this much lower than on a scroll button

    DrawOBFace(dc, pressed, enabled, GRADIENT_FILL_RECT_V);
    POINT points[6] = {};
    CalculateOBTriangle(points, 6, SB_VERT, false);
    for (POINT& point : points)
    {
        point.y = scroll::Saturated(LONGLONG{point.y} + ArrowDrop);
    }
    // Meant: the arrow takes the opposite face of the button, so that it stands out in both states.
    const CBrush& opposite = pressed ? m_normalBrush : m_pressedBrush;
    DrawOBArrow(dc, points, enabled ? opposite : m_disabledBrush);
}

void CFauxDropButton::ReDrawStd(CDC& dc, int pressed, int enabled)
{
    DrawStdPart(dc, DFC_SCROLL, DFCS_SCROLLCOMBOBOX, pressed, enabled);
}
