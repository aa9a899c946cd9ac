#include "GMSUtil.h"
#include "K3Chart.h"
#include "K3Grfx.h"
#include "support/Canvas.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>

namespace {

constexpr K3DevPt Middle = {100, 50};

TEST(K3ChartTest, HasTheScaleOfItsProjectionAndGivesEachPointBack)
{
    const struct
    {
        K3Chart::Projection projection;
        double latitude;
        double longitude;
        double x;
        double y;
    } cases[] = {
        {K3Chart::Mercator, 60, 20, 40, -4 * 75.4561},    // as far as 75.4561 on the equator
        {K3Chart::Orthographic, 30, 10, 0, -4 * 28.6479}, // half the radius, 57.2958 degrees
    };
    for (const auto& each : cases)
    {
        double latitude = 0, east = 0, x = 0, y = 0;
        const K3Chart plain(each.projection, 0, 10, 4, {0, 0});
        ASSERT_TRUE(plain.ToDevice(each.latitude, each.longitude, x, y));
        EXPECT_NEAR(x, each.x, 1e-9);
        EXPECT_NEAR(y, each.y, 1e-3);
        for (const double longitude : {0.0, 11.0, 179.0, -180.0, 725.0})
        {
            const K3Chart chart(each.projection, 48, longitude, 20, Middle);
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

TEST(K3ChartTest, GivesTheNearestPositionOutsideAndShowsNothingThere)
{
    const K3Chart globe(K3Chart::Orthographic, 0, 10, 1, Middle);
    const K3Chart flat(K3Chart::Mercator, 95, 10, -3, Middle); // as far as there is, at its least
    double latitude = 0, longitude = 0, x = 7, y = 7;
    EXPECT_FALSE(globe.ToPosition(160, 50, latitude, longitude));
    EXPECT_NEAR(latitude, 0, 1e-9);
    EXPECT_NEAR(longitude, 100, 1e-9);
    EXPECT_FALSE(flat.ToPosition(281, 49, latitude, longitude));
    EXPECT_NEAR(latitude, 85, 1e-9);
    EXPECT_NEAR(longitude, -170, 1e-9);
    EXPECT_FALSE(globe.ToPosition(INT_MIN, INT_MIN, latitude, longitude));
    EXPECT_FALSE(globe.ToDevice(0, -171, x, y)) << "the far side";
    EXPECT_FALSE(flat.ToDevice(86, 10, x, y));
    EXPECT_EQ(x, 7);
    EXPECT_FALSE(ZEPHYRIN_ChartDevice2LatLon(nullptr, 1, 2, nullptr, latitude, longitude));
    EXPECT_EQ(latitude, 0);
}

TEST(K3ChartTest, CutsLinesAtItsEdges)
{
    const double onEquator[] = {0, 0, 0};
    const double eastward[] = {170, -170, -160};
    const K3Chart flat(K3Chart::Mercator, 0, 0, 1, {0, 0});
    EXPECT_EQ(flat.Trace(onEquator, eastward, 3),
              (K3Chart::Lines{{{170, 0}, {180, 0}}, {{-180, 0}, {-170, 0}, {-160, 0}}}));
    const double polar[] = {80, 90, 80};
    const double meridian[] = {0, 0, 0};
    const K3Chart::Lines overPole = flat.Trace(polar, meridian, 3);
    ASSERT_EQ(overPole.size(), 1u);
    EXPECT_EQ(overPole[0][1].y, flat.Trace(std::data({85.0, 85.0}), meridian, 2)[0][0].y);

    const K3Chart globe(K3Chart::Orthographic, 0, 0, 1, {0, 0});
    const double through[] = {60, 120, 60}; // out over the horizon at 90 and back
    const K3Chart::Lines seen = globe.Trace(onEquator, through, 3);
    ASSERT_EQ(seen.size(), 1u) << "in again where it went out";
    EXPECT_EQ(seen[0], (std::vector<K3DevPt>{{50, 0}, {57, 0}, {50, 0}}));

    EXPECT_EQ(flat.Trace(onEquator, eastward, -5), K3Chart::Lines());
    EXPECT_EQ(flat.Trace(nullptr, eastward, 3), K3Chart::Lines());
    EXPECT_EQ(globe.Trace(onEquator, nullptr, 3), K3Chart::Lines());
}

TEST(K3GrfxTest, DrawsInItsColourAndThicknessAndLeavesTheContextAsItWas)
{
    Canvas canvas(40, 30);
    const HGDIOBJ penBefore = ::GetCurrentObject(canvas.DC(), OBJ_PEN);
    const K3DevPt line[] = {{5, 10}, {14, 10}};
    K3Grfx graphics(canvas.DC());
    graphics.Polyline(line, 2);
    EXPECT_EQ(canvas.Picture().Count(RGB(0, 0, 0)), 10) << "both ends";
    graphics.SetLineColor(K3Color(1, 2, 3));
    graphics.SetLineThickness(3);
    graphics.Polyline(line, 2);
    graphics.Polyline(line + 1, 1);
    graphics.Polyline(nullptr, 2);
    EXPECT_EQ(canvas.At(9, 9), RGB(1, 2, 3));
    EXPECT_EQ(canvas.At(9, 11), RGB(1, 2, 3));
    EXPECT_EQ(canvas.At(9, 12), Canvas::Untouched);
    EXPECT_EQ(::GetCurrentObject(canvas.DC(), OBJ_PEN), penBefore);
    K3Grfx(nullptr).Polyline(line, 2);
}

} // namespace
