#include "ViewPolygon.h"

#include <GMSUtil.h>
#include <K3Grfx.h>

#include <cstdint>
#include <new>

namespace {

constexpr int Edges = 4;

// Part of the way from one coordinate to another, cut to whole points before it is added. Wide
// enough for edges as long as the whole range of coordinates.
int Between(int from, int to, double share)
{
    return int(from + std::int64_t((double(to) - from) * share));
}

} // namespace

CViewPolygon::CViewPolygon(int pointCount, int thickness, const K3Color& color)
    : m_pointCount(pointCount)
    , m_pointsPerEdge(int((std::int64_t(pointCount) - 1) / Edges))
    , m_lineColor(color)
    , m_lineThickness(thickness)
{
    CViewPolygon::Allocate();
}

CViewPolygon::~CViewPolygon()
{
    CViewPolygon::Cleanup();
}

void CViewPolygon::Cleanup()
{
    m_points.reset();
    m_firstCoords.reset();
    m_secondCoords.reset();
}

void CViewPolygon::Allocate()
{
    if (m_pointCount <= 0)
    {
        return;
    }
    // Zeros, because where the points do not spread evenly over the edges the last ones are never
    // set: they are then the origin, where the outline closes anyway.
    const auto count = size_t(m_pointCount);
    m_points.reset(new (std::nothrow) K3DevPt[count]());
    m_firstCoords.reset(new (std::nothrow) double[count]());
    m_secondCoords.reset(new (std::nothrow) double[count]());
}

void CViewPolygon::PrepareToDraw(K3Chart* chart, K3Grfx* grfx, const CRect& rect)
{
    InitializePoints(rect);
    InterpolateMidPoints();
    CalcLatLons(chart, grfx);
}

void CViewPolygon::InitializePoints(const CRect& rect)
{
    if (!HasArrays())
    {
        return;
    }
    // A view's client rectangle begins at the origin, so the first corner, and the last with it, is
    // the origin itself, whatever left and top say; only the bottom left corner goes by left. Hosts
    // count on an outline that closes at the origin.
    const size_t edge = size_t(m_pointsPerEdge);
    m_points[0] = {0, 0};
    m_points[edge] = {rect.right, 0};
    m_points[2 * edge] = {rect.right, rect.bottom};
    m_points[3 * edge] = {rect.left, rect.bottom};
    m_points[4 * edge] = {0, 0};
}

void CViewPolygon::InterpolateMidPoints()
{
    if (!HasArrays() || m_pointsPerEdge <= 0)
    {
        return;
    }
    const double step = 1.0 / m_pointsPerEdge;
    for (int edge = 0; edge < Edges; ++edge)
    {
        K3DevPt* const points = &m_points[size_t(edge) * size_t(m_pointsPerEdge)];
        const K3DevPt from = points[0];
        const K3DevPt to = points[m_pointsPerEdge];
        for (int index = 1; index < m_pointsPerEdge; ++index)
        {
            const double share = index * step;
            points[index] = {Between(from.x, to.x, share), Between(from.y, to.y, share)};
        }
    }
}

void CViewPolygon::CalcLatLons(K3Chart* chart, K3Grfx* grfx)
{
    if (!HasArrays())
    {
        return;
    }
    for (int index = 0; index < m_pointCount; ++index)
    {
        const K3DevPt point = m_points[size_t(index)];
        ZEPHYRIN_ChartDevice2LatLon(chart, point.x, point.y, grfx, m_firstCoords[size_t(index)],
                                    m_secondCoords[size_t(index)]);
    }
}

void CViewPolygon::Draw(K3Grfx* grfx, K3Chart* chart, const CRect& rect, K3Chart* otherChart)
{
    if (m_pointsPerEdge <= 0 || !HasArrays() || grfx == nullptr || chart == nullptr ||
        otherChart == nullptr)
    {
        return;
    }
    PrepareToDraw(otherChart, grfx, rect);
    // What a derived class prepares may also be nothing.
    if (!HasArrays())
    {
        return;
    }
    grfx->SetLineThickness(m_lineThickness);
    grfx->SetLineColor(m_lineColor);
    grfx->Polyline(*chart, m_firstCoords.get(), m_secondCoords.get(), m_pointCount);
}
