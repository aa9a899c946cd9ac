#include "K3Chart.h"

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

namespace {

constexpr K3DevPt Middle = {100, 50};

TEST(K3ChartTest, HasTheScaleOfItsProjectionAndGivesEachPointBack)
{
    // A projection, a latitude and a longitude, and where they lie.
    const std::tuple<K3Chart::Projection, double, double, double, double> cases[] = {
        {K3Chart::Mercator, 60, 20, 40, -4 * 75.4561},    // as far as 75.4561 on the equator
        {K3Chart::Orthographic, 30, 10, 0, -4 * 28.6479}, // half the radius, 57.2958 degrees
    };
    for (const auto& [projection, north, along, across, down] : cases)
    {
        double latitude = 0, east = 0, x = 0, y = 0;
        const K3Chart plain(projection, 0, 10, 4, {0, 0});
        ASSERT_TRUE(plain.ToDevice(north, along, x, y));
        EXPECT_NEAR(x, across, 1e-9);
        EXPECT_NEAR(y, down, 1e-3);
        for (const double longitude : {0.0, 11.0, 179.0, -180.0, 725.0})
        {
            const K3Chart chart(projection, 48, longitude, 20, Middle);
            for (const K3DevPt point : {K3DevPt{-300, 50}, {100, -300}, {500, 400}})
            {
                ASSERT_TRUE(chart.ToPosition(point.x, point.y, latitude, east));
                ASSERT_TRUE(chart.ToDevice(latitude, east, x, y));
                EXPECT_NEAR(x, point.x, 1e-6);
                EXPECT_NEAR(y, point.y, 1e-6);
                EXPECT_LE(std::abs(east), 180);
            }
        }
    }
}

} // namespace
