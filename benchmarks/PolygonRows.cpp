// The outline of a view against the bare conversion of as many points.

#include "Row.h"
#include "ViewPolygon.h"

#include <GMSUtil.h>
#include <K3Chart.h>

namespace {

constexpr int Points = 100001;

class Outline : public CViewPolygon
{
public:
    Outline()
        : CViewPolygon(Points, 1, K3Color())
    {}

    using CViewPolygon::PrepareToDraw;
};

K3Chart MakeChart()
{
    return K3Chart(K3Chart::Mercator, 48, 11, 20, {400, 300});
}

void Nothing() {}

Side Prepare()
{
    auto chart = std::make_shared<K3Chart>(MakeChart());
    auto outline = std::make_shared<Outline>();
    return {&Nothing, [=] { outline->PrepareToDraw(chart.get(), nullptr, CRect(0, 0, 800, 600)); },
            &Nothing};
}

Side ConvertOnly()
{
    auto chart = std::make_shared<K3Chart>(MakeChart());
    auto latitudes = std::make_shared<std::vector<double>>(Points);
    auto longitudes = std::make_shared<std::vector<double>>(Points);
    return {&Nothing,
            [=] {
                for (int index = 0; index < Points; ++index)
                {
                    ZEPHYRIN_ChartDevice2LatLon(chart.get(), index % 800, index % 600, nullptr,
                                                (*latitudes)[size_t(index)],
                                                (*longitudes)[size_t(index)]);
                }
            },
            &Nothing};
}

} // namespace

std::vector<Row> PolygonRows()
{
    return {{"polygon.prepare", 1.2, 25, &Prepare, &ConvertOnly}};
}
