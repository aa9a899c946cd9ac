#pragma once

#include "K3DevPt.h"
#include "SupportExport.h"

#include <vector>

// A chart: where each position of the world lies on a device, and the other way round. Latitudes
// and longitudes are degrees, north and east positive.
class SUPPORT_API K3Chart
{
public:
    enum Projection
    {
        Mercator,    // the whole world between 85 degrees south and north
        Orthographic // the half of the globe that is seen from far above the centre
    };

    // The centre's position lies on the centre's point. scale is in device points per degree, along
    // the equator (Mercator) or at the centre; what is not positive counts as 1. A centre beyond
    // the projection is moved into it.
    K3Chart(Projection projection, double latitude, double longitude, double scale, K3DevPt center);

    double Latitude() const { return m_latitude; }
    double Longitude() const { return m_longitude; }
    double Scale() const { return m_scale; }
    K3DevPt Center() const { return m_center; }

    // False for a position that the projection does not show; the point then stays as it was.
    bool ToDevice(double latitude, double longitude, double& x, double& y) const;

    // False for a point outside the projection; the position is then that of the nearest point
    // inside. The longitude is from -180 to 180.
    bool ToPosition(double x, double y, double& latitude, double& longitude) const;

    // A line through positions, as the device points of its parts: it is cut where it leaves the
    // projection, and where it goes around the far side of a Mercator chart.
    using Lines = std::vector<std::vector<K3DevPt>>;
    Lines Trace(const double* latitudes, const double* longitudes, int count) const;

private:
    struct Flat;  // on the Mercator chart, in its own units
    struct Globe; // on the globe, seen from the centre

    Flat ToFlat(double latitude, double longitude) const;
    Globe ToGlobe(double latitude, double longitude) const;
    void TraceFlat(Lines& lines, const Flat& from, const Flat& to) const;
    void TraceGlobe(Lines& lines, const Globe& from, const Globe& to) const;
    void Join(Lines& lines, double fromX, double fromY, double toX, double toY) const;
    double X(double across) const { return m_center.x + across * m_radius; }
    double Y(double up) const { return m_center.y - up * m_radius; }

    Projection m_projection;
    double m_latitude;
    double m_longitude;
    double m_scale;
    K3DevPt m_center;
    double m_radius; // of the globe, in device points
    double m_sin;    // of the centre's latitude
    double m_cos;
    double m_up; // the centre's height above the equator of a Mercator chart, in radii
};
