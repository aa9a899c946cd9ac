#include "FauxButton.h"

#include "paint/GdiGuards.h"
#include "paint/Metrics.h"
#include "paint/Palette.h"
#include "scroll/FauxScrollGeometry.h"
#include "scroll/PartObjects.h"

#include <utility>

CFauxButton::CFauxButton()
    : m_show(TRUE)
{
    CreateOnBoardOutlinePen(m_outlinePen, palette::Outline);
    CreateOnBoardOutlinePen(m_secondOutlinePen, palette::PressedOutline);
    CreateOnBoardOutlinePen(m_thirdOutlinePen, palette::Outline);
    RemakeBrush(m_firstBrush, palette::FaceDark);
    RemakeBrush(m_secondBrush, palette::PressedOutline);
    RemakeBrush(m_disabledBrush, palette::FaceDisabled);
    RemakeBrush(m_normalBrush, palette::Face);
    RemakeBrush(m_pressedBrush, palette::FacePressed);
    RemakeLinePen(m_linePen, palette::Outline);
}

CFauxButton::~CFauxButton() = default;

void CFauxButton::SetArea(const CRect& area)
{
    m_area = area;
}

void CFauxButton::SetTopBottom(int top, int bottom)
{
    m_area.top = top;
    m_area.bottom = bottom;
}

void CFauxButton::SetLeftRight(int left, int right)
{
    m_area.left = left;
    m_area.right = right;
}

void CFauxButton::ShiftArea(int dx, int dy)
{
    const auto moved = [](LONGLONG edge, int by) { return scroll::Saturated(edge + by); };
    m_area.SetRect(moved(m_area.left, dx), moved(m_area.top, dy), moved(m_area.right, dx),
                   moved(m_area.bottom, dy));
}

int CFauxButton::GetVCenter() const
{
    return static_cast<int>(m_area.top + (LONGLONG{m_area.bottom} - m_area.top) / 2);
}

int CFauxButton::GetHCenter() const
{
    return static_cast<int>(m_area.left + (LONGLONG{m_area.right} - m_area.left) / 2);
}

void CFauxButton::SetColors(COLORREF c1, COLORREF c2, COLORREF c3, COLORREF c4, COLORREF c5,
                            COLORREF c6)
{
    CreateOnBoardOutlinePen(m_outlinePen, c1);
    CreateOnBoardOutlinePen(m_secondOutlinePen, c5);
    CreateOnBoardOutlinePen(m_thirdOutlinePen, c4);
    RemakeBrush(m_firstBrush, c2);
    RemakeBrush(m_secondBrush, c5);
    RemakeBrush(m_disabledBrush, c4);
    RemakeBrush(m_normalBrush, c3);
    RemakeBrush(m_pressedBrush, c6);
    RemakeLinePen(m_linePen, c1);
}

void CFauxButton::CalculateOBTriangle(POINT* points, int count, int orientation, bool first) const
{
    constexpr int PointCount = 6;
    constexpr int HorzEnds = 25; // what the arrow and its rims leave of the width
    constexpr int VertEnds = 23; // the same of the height
    constexpr int Rim = 3;

    const bool horizontal = orientation == SB_HORZ;
    if (points == nullptr || count < PointCount || (!horizontal && orientation != SB_VERT))
    {
        return;
    }
    const LONGLONG alongStart = horizontal ? m_area.left : m_area.top;
    const LONGLONG acrossStart = horizontal ? m_area.top : m_area.left;
    const LONGLONG width = LONGLONG{m_area.right} - m_area.left;
    const LONGLONG height = LONGLONG{m_area.bottom} - m_area.top;

    // A part smaller than its arrow gets a negative margin: the arrow keeps its size.
    const int span = scroll::Saturated(horizontal ? width - HorzEnds : height - VertEnds);
    const LONGLONG margin = ::MulDiv(span, 6, 8);
    LONGLONG shift = span - 2 * margin;
    if (horizontal)
    {
        ++shift; // meant: only the right arrow sits a pixel further on
    }

    LONGLONG outerApex = alongStart + margin + Rim;
    LONGLONG outerBase = outerApex + metrics::ArrowDepth;
    LONGLONG innerApex = outerApex + 1;
    LONGLONG innerBase = outerBase - 1;
    if (!first)
    {
        std::swap(outerApex, outerBase);
        std::swap(innerApex, innerBase);
        outerApex += shift;
        outerBase += shift;
        innerApex += shift;
        innerBase += shift;
    }
    const LONGLONG middle = acrossStart + (horizontal ? height : width) / 2 - 1;
    const LONGLONG low = middle - metrics::ArrowLength / 2;
    const LONGLONG high = low + metrics::ArrowLength;

    const auto point = [horizontal](LONGLONG along, LONGLONG across) {
        const int a = scroll::Saturated(along);
        const int b = scroll::Saturated(across);
        return horizontal ? POINT{a, b} : POINT{b, a};
    };
    points[0] = point(outerApex, middle);
    points[1] = point(outerBase, low);
    points[2] = point(outerBase, high);
    points[3] = point(innerApex, middle);
    points[4] = point(innerBase, low + 2);
    points[5] = point(innerBase, high - 2);
}

void CFauxButton::DrawStdPart(CDC& dc, UINT type, UINT state, int pressed, int enabled) const
{
    CRect area = m_area;
    if (!enabled)
    {
        state |= DFCS_INACTIVE;
    }
    else if (pressed)
    {
        state |= DFCS_FLAT; // meant: a pressed part lies flat, it is not pushed in
    }
    dc.DrawFrameControl(&area, type, state);
}

void CFauxButton::DrawOBFace(CDC& dc, int pressed, int enabled, unsigned long gradient)
{
    CBrush* face = &m_normalBrush;
    palette::Gradient colors = palette::FaceGradient;
    if (!enabled)
    {
        face = &m_disabledBrush;
        colors = palette::FaceDisabledGradient;
    }
    else if (pressed)
    {
        face = &m_pressedBrush;
        colors = palette::FacePressedGradient;
    }

    CRect area = m_area;
    if (!GradientFill(&dc, area, colors.from, colors.to, gradient))
    {
        dc.FillRect(&area, face);
    }
    const Selected pen(dc, m_outlinePen);
    const Selected brush(dc, ::GetStockObject(NULL_BRUSH));
    dc.Rectangle(&area);
}

void CFauxButton::DrawOBArrow(CDC& dc, const POINT* points, const CBrush& fill) const
{
    const Selected brush(dc, fill);
    {
        const Selected pen(dc, ::GetStockObject(NULL_PEN));
        dc.Polygon(points + 3, 3);
    }
    const Selected pen(dc, m_linePen);
    for (const POINT* triangle : {points, points + 3})
    {
        dc.MoveTo(triangle[0]);
        dc.LineTo(triangle[1]);
        dc.LineTo(triangle[2]);
        dc.LineTo(triangle[0]);
    }
}
