#include "K3Grfx.h"

#include "K3Chart.h"

#include <algorithm>
#include <type_traits>

static_assert(sizeof(K3DevPt) == sizeof(POINT) && std::is_standard_layout_v<K3DevPt>,
              "points go to the device as they are");

K3Grfx::~K3Grfx()
{
    ForgetPen();
}

void K3Grfx::ForgetPen()
{
    if (m_pen != nullptr)
    {
        ::DeleteObject(m_pen);
        m_pen = nullptr;
    }
}

void K3Grfx::SetLineColor(const K3Color& color)
{
    m_color = color;
    ForgetPen();
}

void K3Grfx::SetLineThickness(int thickness)
{
    m_thickness = std::max(thickness, 1);
    ForgetPen();
}

void K3Grfx::Polyline(const K3DevPt* points, int count)
{
    if (points == nullptr || count < 2)
    {
        return;
    }
    if (m_pen == nullptr)
    {
        m_pen = ::CreatePen(PS_SOLID, m_thickness, m_color.ToColorRef());
    }
    const HGDIOBJ before = ::SelectObject(m_dc, m_pen);
    ::Polyline(m_dc, reinterpret_cast<const POINT*>(points), count);
    // The platform leaves the last point out.
    const K3DevPt last = points[count - 1];
    ::SetPixel(m_dc, last.x, last.y, m_color.ToColorRef());
    ::SelectObject(m_dc, before);
}

void K3Grfx::Polyline(const K3Chart& chart, const double* latitudes, const double* longitudes,
                      int count)
{
    for (const auto& line : chart.Trace(latitudes, longitudes, count))
    {
        Polyline(line.data(), int(line.size()));
    }
}
