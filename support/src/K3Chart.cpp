#include "K3Chart.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double Pi = std::numbers::pi;
constexpr double RadiansPerDegree = Pi / 180;
constexpr double HighestMercator = 85; // degrees; the poles lie infinitely far away
constexpr double HighestLatitude = 90;

// What a device still draws. A line that ends farther away keeps about its direction.
constexpr double FarthestPoint = 1 << 24;

double HeightAbove(double latitude)
{
    return std::asinh(std::tan(latitude * RadiansPerDegree));
}

// From -180 up to, but without, 180.
double Around(double longitude)
{
    if (longitude >= -180 && longitude < 180)
    {
        return longitude;
    }
    const double rest = std::fmod(longitude + 180, 360);
    return (rest < 0 ? rest + 360 : rest) - 180;
}

K3DevPt PointAt(double x, double y)
{
    const auto whole = [](double value) {
        return int(std::lround(std::clamp(value, -FarthestPoint, FarthestPoint)));
    };
    return {whole(x), whole(y)};
}

} // namespace

struct K3Chart::Flat
{
    double across; // from the centre, in radians
    double up;
};

struct K3Chart::Globe
{
    double across;
    double up;
    double depth; // towards the viewer; negative on the far side
};

K3Chart::K3Chart(Projection projection, double latitude, double longitude, double scale,
                 K3DevPt center)
    : m_projection(projection)
    , m_latitude(latitude)
    , m_longitude(Around(longitude))
    , m_scale(scale > 0 ? scale : 1)
    , m_center(center)
    , m_radius(m_scale / RadiansPerDegree)
{
    const double highest = projection == Mercator ? HighestMercator : HighestLatitude;
    m_latitude = std::clamp(m_latitude, -highest, highest);
    m_sin = std::sin(m_latitude * RadiansPerDegree);
    m_cos = std::cos(m_latitude * RadiansPerDegree);
    m_up = projection == Mercator ? HeightAbove(m_latitude) : 0;
}

K3Chart::Flat K3Chart::ToFlat(double latitude, double longitude) const
{
    return {Around(longitude - m_longitude) * RadiansPerDegree, HeightAbove(latitude) - m_up};
}

K3Chart::Globe K3Chart::ToGlobe(double latitude, double longitude) const
{
    const double phi = latitude * RadiansPerDegree;
    const double lambda = (longitude - m_longitude) * RadiansPerDegree;
    const double toAxis = std::cos(phi) * std::cos(lambda);
    return {std::cos(phi) * std::sin(lambda), m_cos * std::sin(phi) - m_sin * toAxis,
            m_sin * std::sin(phi) + m_cos * toAxis};
}

bool K3Chart::ToDevice(double latitude, double longitude, double& x, double& y) const
{
    if (m_projection == Mercator)
    {
        if (!(std::abs(latitude) <= HighestMercator))
        {
            return false;
        }
        const Flat place = ToFlat(latitude, longitude);
        x = X(place.across);
        y = Y(place.up);
        return true;
    }
    const Globe place = ToGlobe(latitude, longitude);
    if (!(place.depth >= 0))
    {
        return false;
    }
    x = X(place.across);
    y = Y(place.up);
    return true;
}

bool K3Chart::ToPosition(double x, double y, double& latitude, double& longitude) const
{
    double across = (x - m_center.x) / m_radius;
    double up = (m_center.y - y) / m_radius;
    if (m_projection == Mercator)
    {
        static const double highest = HeightAbove(HighestMercator);
        const double askedAcross = across;
        const double askedUp = up += m_up;
        across = std::clamp(across, -Pi, Pi);
        up = std::clamp(up, -highest, highest);
        latitude = std::atan(std::sinh(up)) / RadiansPerDegree;
        longitude = Around(m_longitude + across / RadiansPerDegree);
        return across == askedAcross && up == askedUp;
    }
    const double distance = std::hypot(across, up);
    const bool inside = distance <= 1;
    if (!inside)
    {
        across /= distance;
        up /= distance;
    }
    const double depth = std::sqrt(std::max(0.0, 1 - across * across - up * up));
    latitude = std::asin(std::clamp(depth * m_sin + up * m_cos, -1.0, 1.0)) / RadiansPerDegree;
    longitude =
        Around(m_longitude + std::atan2(across, depth * m_cos - up * m_sin) / RadiansPerDegree);
    return inside;
}

// Goes on with the last line where that ends at the point from; otherwise begins a new one.
void K3Chart::Join(Lines& lines, double fromX, double fromY, double toX, double toY) const
{
    const K3DevPt from = PointAt(fromX, fromY);
    if (lines.empty() || lines.back().back() != from)
    {
        lines.push_back({from});
    }
    lines.back().push_back(PointAt(toX, toY));
}

void K3Chart::TraceFlat(Lines& lines, const Flat& from, const Flat& to) const
{
    const double step = to.across - from.across;
    if (std::abs(step) <= Pi)
    {
        Join(lines, X(from.across), Y(from.up), X(to.across), Y(to.up));
        return;
    }
    // The shorter way goes over the edge: out at one side, in again at the other.
    const double edge = step < 0 ? Pi : -Pi;
    const double wholeStep = step + 2 * edge;
    const double share = wholeStep == 0 ? 0 : (edge - from.across) / wholeStep;
    const double up = from.up + share * (to.up - from.up);
    Join(lines, X(from.across), Y(from.up), X(edge), Y(up));
    Join(lines, X(-edge), Y(up), X(to.across), Y(to.up));
}

void K3Chart::TraceGlobe(Lines& lines, const Globe& from, const Globe& to) const
{
    if (from.depth < 0 && to.depth < 0)
    {
        return;
    }
    const auto horizon = [&] {
        const double share = from.depth / (from.depth - to.depth);
        const double across = from.across + share * (to.across - from.across);
        const double up = from.up + share * (to.up - from.up);
        const double length = std::hypot(across, up);
        return length > 0 ? Globe{across / length, up / length, 0} : Globe{0, 0, 0};
    };
    const Globe first = from.depth < 0 ? horizon() : from;
    const Globe last = to.depth < 0 ? horizon() : to;
    Join(lines, X(first.across), Y(first.up), X(last.across), Y(last.up));
}

K3Chart::Lines K3Chart::Trace(const double* latitudes, const double* longitudes, int count) const
{
    Lines lines;
    if (latitudes == nullptr || longitudes == nullptr)
    {
        return lines;
    }
    if (m_projection == Mercator)
    {
        // What lies beyond the highest latitudes runs along the edge of the chart.
        const auto at = [&](int index) {
            return ToFlat(std::clamp(latitudes[index], -HighestMercator, HighestMercator),
                          longitudes[index]);
        };
        for (int index = 1; index < count; ++index)
        {
            TraceFlat(lines, at(index - 1), at(index));
        }
        return lines;
    }
    for (int index = 1; index < count; ++index)
    {
        TraceGlobe(lines, ToGlobe(latitudes[index - 1], longitudes[index - 1]),
                   ToGlobe(latitudes[index], longitudes[index]));
    }
    return lines;
}
