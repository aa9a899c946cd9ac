#include "GMSUtil.h"
#include "K3Chart.h"

bool ZEPHYRIN_ChartDevice2LatLon(K3Chart* chart, int x, int y, K3Grfx*, double& latitude,
                                 double& longitude)
{
    if (chart == nullptr)
    {
        latitude = 0;
        longitude = 0;
        return false;
    }
    return chart->ToPosition(x, y, latitude, longitude);
}
