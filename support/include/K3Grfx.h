#pragma once

#include "K3Color.h"
#include "K3DevPt.h"
#include "SupportExport.h"

#include <windows.h>

class K3Chart;

// Draws lines on a device context, which it does not own and which has to outlive it. Starts with a
// black line one point thick; between two calls the context is as it was found.
class SUPPORT_API K3Grfx
{
public:
    explicit K3Grfx(HDC dc)
        : m_dc(dc)
    {}
    K3Grfx(const K3Grfx&) = delete;
    K3Grfx& operator=(const K3Grfx&) = delete;
    ~K3Grfx();

    void SetLineColor(const K3Color& color);
    const K3Color& GetLineColor() const { return m_color; }
    // In device points; below 1 counts as 1.
    void SetLineThickness(int thickness);
    int GetLineThickness() const { return m_thickness; }

    // An open line through device points, the last one included. Nothing for fewer than two.
    void Polyline(const K3DevPt* points, int count);
    // An open line through positions, as the chart shows them.
    void Polyline(const K3Chart& chart, const double* latitudes, const double* longitudes,
                  int count);

private:
    void ForgetPen();

    HDC m_dc;
    K3Color m_color;
    int m_thickness = 1;
    HPEN m_pen = nullptr; // for colour and thickness; made when first drawn with
};
