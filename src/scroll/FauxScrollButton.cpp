#include "FauxScrollButton.h"

#include "paint/Palette.h"
#include "scroll/LookOfPart.h"

CFauxScrollButton::CFauxScrollButton(bool first, int orientation)
    : m_first(first)
    , m_orientation(orientation)
{}

CFauxScrollButton::~CFauxScrollButton() = default;

void CFauxScrollButton::ReDraw(CDC& dc, int pressed, int enabled, APPMODE mode)
{
    scroll::DrawInMode(*this, dc, pressed, enabled, mode);
}

void CFauxScrollButton::ReDrawOnBoard(CDC& dc, int pressed, int enabled)
{
    const bool horizontal = m_orientation == SB_HORZ;
    DrawOBFace(dc, pressed, enabled, horizontal ? GRADIENT_FILL_RECT_V : GRADIENT_FILL_RECT_H);

    POINT points[6] = {};
    CalculateOBTriangle(points, 6, horizontal ? SB_HORZ : SB_VERT, m_first);
    if (!enabled)
    {
        DrawOBArrow(dc, points, m_disabledBrush);
        return;
    }
    // The arrow keeps its grey whether pressed or not, and whatever the colours of the face.
    static const CBrush arrow(palette::Arrow);
    DrawOBArrow(dc, points, arrow);
}

void CFauxScrollButton::ReDrawStd(CDC& dc, int pressed, int enabled)
{
    const UINT state = m_orientation == SB_HORZ ? (m_first ? DFCS_SCROLLLEFT : DFCS_SCROLLRIGHT)
                                                : (m_first ? DFCS_SCROLLUP : DFCS_SCROLLDOWN);
    DrawStdPart(dc, DFC_SCROLL, state, pressed, enabled);
}
