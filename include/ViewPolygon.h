#pragma once

#include "OnBoardUIExport.h"

#include <K3Color.h>
#include <K3DevPt.h>
#include <afxwin.h>

#include <memory>

class K3Chart;
class K3Grfx;

// The outline of one chart view on another chart. The view's edges are followed in so many points
// that they come out bent where the other chart bends them.
class ONBOARDUI_API CViewPolygon
{
public:
    // The number of points includes the five corners, the first of which comes again as the last;
    // with fewer nothing is ever drawn. The line's thickness is in device points.
    CViewPolygon(int pointCount, int thickness, const K3Color& color);
    CViewPolygon(const CViewPolygon&) = delete;
    CViewPolygon& operator=(const CViewPolygon&) = delete;
    virtual ~CViewPolygon();

    // Draws on chart, through grfx, the outline of rect in the device points of otherChart. rect is
    // a view's client rectangle. Nothing is drawn when something is missing.
    void Draw(K3Grfx* grfx, K3Chart* chart, const CRect& rect, K3Chart* otherChart);

    // @{
    // Colour and thickness, in device points, of the line of the next drawings.
    void LineColor(const K3Color& color) { m_lineColor = color; }
    const K3Color& LineColor() const { return m_lineColor; }
    void LineThickness(int thickness) { m_lineThickness = thickness; }
    int LineThickness() const { return m_lineThickness; }
    // @}

protected:
    // Makes the arrays, all zeros; without memory, or for no points, they stay null. A derived
    // class's own is not called during construction.
    virtual void Allocate();
    // Gives the arrays back. A derived class's own is not called during destruction.
    virtual void Cleanup();

    // Takes the outline of rect on a chart: its points, then where they are. Called for each
    // drawing, so that the outline is never older than the chart.
    virtual void PrepareToDraw(K3Chart* chart, K3Grfx* grfx, const CRect& rect);
    // The corners, clockwise. The first and the last are the origin itself.
    virtual void InitializePoints(const CRect& rect);
    // The points between the corners, evenly spread.
    virtual void InterpolateMidPoints();
    // The position of each point, in the order in which the chart's conversion gives its values.
    virtual void CalcLatLons(K3Chart* chart, K3Grfx* grfx);

    int m_pointCount;
    int m_pointsPerEdge; // from one corner to the next
    std::unique_ptr<K3DevPt[]> m_points;
    std::unique_ptr<double[]> m_firstCoords;
    std::unique_ptr<double[]> m_secondCoords;
    K3Color m_lineColor;
    int m_lineThickness;

private:
    bool HasArrays() const { return m_points && m_firstCoords && m_secondCoords; }
};
