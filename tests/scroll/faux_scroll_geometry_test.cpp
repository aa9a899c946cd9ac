#include "scroll/FauxScrollGeometry.h"
#include "scroll/NcBands.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

using scroll::BarLayout;
using scroll::Span;

TEST(ScrollGeometry, PartsFollowTheThicknessInBothLooks)
{
    struct Case
    {
        bool onBoard;
        int axis;
        CRect area, first, second, thumb;
    };
    const Case cases[] = {
        {true, SB_HORZ, CRect(7, 30, 408, 82), CRect(7, 30, 38, 82), CRect(377, 30, 408, 82),
         CRect(188, 34, 227, 78)},
        {false, SB_HORZ, CRect(10, 5, 210, 22), CRect(10, 5, 27, 21), CRect(193, 5, 210, 21),
         CRect(102, 5, 119, 21)},
        {true, SB_VERT, CRect(50, 60, 40, 20), CRect(50, 60, 40, 60), CRect(50, 20, 40, 20),
         CRect(50, 60, 50, 60)},
    };
    for (const Case& c : cases)
    {
        const BarLayout layout = c.onBoard ? scroll::OnBoardLayout(c.axis, c.area)
                                           : scroll::StandardLayout(c.axis, c.area);
        EXPECT_EQ(layout.first, c.first);
        EXPECT_EQ(layout.second, c.second);
        EXPECT_EQ(layout.thumb, c.thumb);
    }
    // Thinner than both insets: nothing is turned inside out.
    EXPECT_EQ(scroll::OnBoardLayout(SB_VERT, CRect(0, 0, 6, 50)).thumb, CRect(3, 23, 3, 27));
}

TEST(ScrollGeometry, TheThumbStaysBetweenTheButtons)
{
    constexpr Span thumb = {70, 90};
    constexpr Span track = {50, 200};
    EXPECT_EQ(scroll::LimitedShift(thumb, {80, 85}, 0), 10); // does not fit: the near end wins

    EXPECT_EQ(scroll::ThumbAt(thumb, track, 10, -3, 7.9), (Span{50, 70}));
    EXPECT_EQ(scroll::ThumbAt(thumb, track, 10, INT_MAX, 1e6), (Span{180, 200}));
    EXPECT_EQ(scroll::ThumbAt(thumb, {50, 60}, 0, 0, 0.0), (Span{50, 60})); // no room: shorter
    EXPECT_EQ(scroll::ThumbAt(thumb, {50, 40}, 9, 4, 0.0), (Span{50, 50}));
}

// The bands as they are defined, one after the other: the first with start <= centre < end.
int Search(const std::vector<double>& edges, int centre)
{
    for (size_t n = 0; n + 1 < edges.size(); ++n)
    {
        if (edges[n] <= centre && centre < edges[n + 1])
        {
            return static_cast<int>(n);
        }
    }
    return -1;
}

void ExpectBands(int firstCentre, int free, int count, int divisor)
{
    const double pixels = divisor > 0 ? static_cast<double>(free) / divisor : 0.0;
    std::vector<double> multiples = {firstCentre - pixels / 2};
    std::vector<double> sums = multiples;
    for (int n = 1; n <= count; ++n)
    {
        multiples.push_back(multiples.front() + n * pixels);
        sums.push_back(sums.back() + pixels);
    }
    const scroll::StepBands bands(firstCentre, pixels, count);
    for (int centre = firstCentre - 3; centre <= firstCentre + free + 3; ++centre)
    {
        const LONGLONG found = bands.Find(centre);
        ASSERT_EQ(found, Search(multiples, centre)) << "centre " << centre;
        // Adding up drifts by less than this, so it can differ only where a pixel lies on an edge.
        const auto onCentre = [centre](double edge) { return std::abs(edge - centre) < 1e-9; };
        ASSERT_TRUE(found == Search(sums, centre) ||
                    std::any_of(multiples.begin(), multiples.end(), onCentre))
            << "centre " << centre;
    }
}

TEST(StepBands, FindTheBandThatASearchFinds)
{
    for (const int firstCentre : {52, 72}) // with 52 the quotient rounds up across an edge
    {
        for (const int free : {1, 7, 64, 100, 295, 1013})
        {
            for (const int count : {1, 2, 3, 10, 63, 100, 178, 722, 3000})
            {
                SCOPED_TRACE(testing::Message()
                             << "from " << firstCentre << " free " << free << " count " << count);
                ExpectBands(firstCentre, free, count, count);
                ExpectBands(firstCentre, free, count, count - 1);
            }
        }
    }
}

TEST(NcBands, BandAndBarMeetAtTheBorder)
{
    CRect both(10, 20, 200, 290);
    scroll::TakeBands(both, CSize(1, 2), true, true);
    EXPECT_EQ(both, CRect(11, 22, 147, 236));
    CRect none(10, 20, 200, 290);
    scroll::TakeBands(none, CSize(1, 2), false, false);
    EXPECT_EQ(none, CRect(11, 22, 199, 288));
    CRect tiny(10, 20, 40, 50);
    scroll::TakeBands(tiny, CSize(1, 1), true, true);
    EXPECT_EQ(tiny, CRect(11, 21, 11, 21));

    EXPECT_EQ(scroll::BarArea(SB_VERT, CRect(3, 3, 147, 236)), CRect(147, 0, 202, 239));
    EXPECT_EQ(scroll::BarArea(SB_HORZ, CRect(3, 3, 147, 236)), CRect(0, 236, 150, 291));
}

} // namespace
