#include "ViewPolygon.h"
#include "support/Canvas.h"

#include <GMSUtil.h>
#include <K3Chart.h>
#include <K3Grfx.h>

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <utility>

namespace {

constexpr K3Color Line(200, 30, 40);

// Shows what the outline is made of.
class Outline : public CViewPolygon
{
public:
    explicit Outline(int count, int thickness = 1)
        : CViewPolygon(count, thickness, Line)
    {}

    using CViewPolygon::PrepareToDraw;
    K3DevPt Point(int index) const { return m_points[size_t(index)]; }
    std::pair<double, double> Place(int index) const
    {
        return {m_firstCoords[size_t(index)], m_secondCoords[size_t(index)]};
    }
};

class ViewPolygonTest : public testing::Test
{
protected:
    K3Chart source{K3Chart::Mercator, 48, 11, 10, {50, 20}};
    K3Chart target{K3Chart::Orthographic, 45, 10, 4, {100, 75}};
    Canvas canvas{200, 150};
    K3Grfx graphics{canvas.DC()};
    CRect view{0, 0, 100, 40};
};

TEST_F(ViewPolygonTest, ClosesAtTheOriginWhateverTheRectangleAndTheCount)
{
    // Left counts at the lower left corner alone; steps are cut towards zero.
    Outline skewed(13);
    skewed.PrepareToDraw(&source, nullptr, CRect(-10, 7, 100, 40));
    const K3DevPt expected[] = {{0, 0},    {33, 0},   {66, 0},  {100, 0}, {100, 13},
                                {100, 26}, {100, 40}, {64, 40}, {27, 40}, {-10, 40},
                                {-7, 27},  {-4, 14},  {0, 0}};
    for (int index = 0; index < 13; ++index)
    {
        EXPECT_EQ(skewed.Point(index), expected[index]) << index;
        double latitude = 0, longitude = 0;
        EXPECT_TRUE(ZEPHYRIN_ChartDevice2LatLon(&source, expected[index].x, expected[index].y,
                                                nullptr, latitude, longitude));
        EXPECT_EQ(skewed.Place(index), std::pair(latitude, longitude)) << index;
    }

    Outline odd(18); // one more than the edges have
    odd.PrepareToDraw(&source, nullptr, view);
    EXPECT_EQ(odd.Point(17), K3DevPt()) << "never set";
    EXPECT_EQ(odd.Place(17), odd.Place(0));

    Outline huge(1001);
    huge.PrepareToDraw(&source, nullptr, CRect(INT_MIN, INT_MIN, INT_MAX, INT_MAX));
    EXPECT_EQ(huge.Point(750), (K3DevPt{INT_MIN, INT_MAX}));
}

TEST_F(ViewPolygonTest, DrawsTheViewOfTheOtherChartWhereTheFirstOneHasIt)
{
    Outline outline(401, 3);
    outline.Draw(&graphics, &target, view, &source);
    // Each corner and the middle of each edge are on the line, also where it is bent.
    for (const K3DevPt& point : {K3DevPt{0, 0}, {100, 0}, {100, 40}, {0, 40}, {50, 0}, {50, 40}})
    {
        double latitude = 0, longitude = 0, x = 0, y = 0;
        ASSERT_TRUE(source.ToPosition(point.x, point.y, latitude, longitude));
        ASSERT_TRUE(target.ToDevice(latitude, longitude, x, y));
        EXPECT_EQ(canvas.At(int(std::lround(x)), int(std::lround(y))), Line.ToColorRef());
    }
    EXPECT_EQ(canvas.At(100, 70), Canvas::Untouched) << "the outline is not filled";

    // The chart has moved since: so has the outline.
    const Pixels before = canvas.Picture();
    canvas.DC().FillSolidRect(0, 0, 200, 150, Canvas::Untouched);
    source = K3Chart(K3Chart::Mercator, 40, 20, 10, {50, 20});
    outline.LineColor(K3Color(1, 2, 3));
    outline.LineThickness(1);
    outline.Draw(&graphics, &target, view, &source);
    const Pixels after = canvas.Picture();
    EXPECT_EQ(after.Count(Line.ToColorRef()), 0);
    EXPECT_GT(after.Count(RGB(1, 2, 3)), 20);
    EXPECT_LT(after.Count(RGB(1, 2, 3)), before.Count(Line.ToColorRef()));
}

TEST_F(ViewPolygonTest, DrawsNothingForTooFewPointsOrWhenSomethingIsMissing)
{
    for (const int count : {INT_MIN, -17, -1, 0, 1, 4})
    {
        Outline outline(count);
        outline.Draw(&graphics, &target, view, &source);
        outline.PrepareToDraw(&source, &graphics, view);
    }
    Outline outline(17);
    outline.Draw(nullptr, &target, view, &source);
    outline.Draw(&graphics, nullptr, view, &source);
    outline.Draw(&graphics, &target, view, nullptr);
    outline.PrepareToDraw(nullptr, nullptr, view);
    EXPECT_EQ(outline.Place(8), std::pair(0.0, 0.0)) << "no chart, no position";
    EXPECT_TRUE(canvas.IsUntouched());
    Outline(5).Draw(&graphics, &target, view, &source);
    EXPECT_FALSE(canvas.IsUntouched()) << "five corners are enough";
}

} // namespace
