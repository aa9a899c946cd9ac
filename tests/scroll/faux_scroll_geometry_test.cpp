#include "scroll/FauxScrollGeometry.h"
#include "scroll/NcBands.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using scroll::BarLayout;

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
    for (const int first : {52, 72}) // with 52 the quotient rounds up across an edge
    {
        for (const int free : {1, 7, 64, 295, 1013})
        {
            for (const int count : {1, 2, 3, 10, 100, 178, 722, 3000})
            {
                for (const double steps : {count, std::max(count - 1, 1)})
                {
                    const double pixels = free / steps;
                    const scroll::StepBands bands(first, pixels, count);
                    for (int centre = first - 3; centre <= first + free + 3; ++centre)
                    {
                        ASSERT_EQ(bands.Find(centre),
                                  Search(first - pixels / 2, pixels, count, centre))
                            << "centre " << centre << " from " << first << " free " << free
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
