#include "scroll/FauxScrollGeometry.h"
#include "scroll/NcBands.h"

#include <gtest/gtest.h>

namespace {

using scroll::BarLayout;
using scroll::Span;

TEST(ScrollGeometry, PartsFollowTheThicknessInBothLooks)
{
    const struct
    {
        bool onBoard;
        int axis;
        CRect area, first, second, thumb;
    } cases[] = {
        {true, SB_HORZ, CRect(7, 30, 408, 82), CRect(7, 30, 38, 82), CRect(377, 30, 408, 82),
         CRect(188, 34, 227, 78)},
        {false, SB_HORZ, CRect(10, 5, 210, 22), CRect(10, 5, 27, 21), CRect(193, 5, 210, 21),
         CRect(102, 5, 119, 21)},
        {true, SB_VERT, CRect(50, 60, 40, 20), CRect(50, 60, 40, 60), CRect(50, 20, 40, 20),
         CRect(50, 60, 50, 60)},
    };
    for (const auto& c : cases)
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
int Search(double start, double pixels, int count, int centre)
{
    for (int n = 0; n < count; ++n)
    {
        if (start + n * pixels <= centre && centre < start + (n + 1) * pixels)
        {
            return n;
        }
    }
    return -1;
}

TEST(StepBands, FindTheBandThatASearchFinds)
{
    for (const int firstCentre : {52, 72}) // with 52 the quotient rounds up across an edge
    {
        for (const int free : {1, 7, 64, 100, 295, 1013})
        {
            for (const int count : {1, 2, 3, 10, 63, 100, 178, 722, 3000})
            {
                for (const int divisor : {count, count - 1})
                {
                    const double pixels = divisor > 0 ? double(free) / divisor : 0.0;
                    const scroll::StepBands bands(firstCentre, pixels, count);
                    for (int centre = firstCentre - 3; centre <= firstCentre + free + 3; ++centre)
                    {
                        ASSERT_EQ(bands.Find(centre),
                                  Search(firstCentre - pixels / 2, pixels, count, centre))
                            << "centre " << centre << " from " << firstCentre << " free " << free
                            << " count " << count;
                    }
                }
            }
        }
    }
}

TEST(NcBands, BandAndBarMeetAtTheBorder)
{
    const struct
    {
        CRect window;
        CSize border;
        bool bands;
        CRect client;
    } cases[] = {{CRect(10, 20, 200, 290), CSize(1, 2), true, CRect(11, 22, 147, 236)},
                 {CRect(10, 20, 200, 290), CSize(1, 2), false, CRect(11, 22, 199, 288)},
                 {CRect(10, 20, 40, 50), CSize(1, 1), true, CRect(11, 21, 11, 21)}};
    for (const auto& c : cases)
    {
        CRect rect = c.window;
        scroll::TakeBands(rect, c.border, c.bands, c.bands);
        EXPECT_EQ(rect, c.client);
    }
    EXPECT_EQ(scroll::BarArea(SB_VERT, CRect(3, 3, 147, 236)), CRect(147, 0, 202, 239));
    EXPECT_EQ(scroll::BarArea(SB_HORZ, CRect(3, 3, 147, 236)), CRect(0, 236, 150, 291));
}

} // namespace
