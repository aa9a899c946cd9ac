#include "scroll/FauxScrollGeometry.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

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
                const double pixels = double(free) / std::max(count - 1, 1);
                const scroll::StepBands bands(first, pixels, count);
                for (int centre = first - 3; centre <= first + free + 3; ++centre)
                {
                    ASSERT_EQ(bands.Find(centre), Search(first - pixels / 2, pixels, count, centre))
                        << "centre " << centre << " from " << first << " free " << free << " count "
                        << count;
                }
            }
        }
    }
}

TEST(ScrollGeometry, AThumbWithoutRoomStaysBetweenTheButtons)
{
    const scroll::Span thumb = {70, 90};
    EXPECT_EQ(scroll::LimitedShift(thumb, {80, 85}, 0), 10) << "the near end wins";
    EXPECT_EQ(scroll::ThumbAt(thumb, {50, 60}, 0, 0, 0.0), (scroll::Span{50, 60})) << "shorter";
}

} // namespace
