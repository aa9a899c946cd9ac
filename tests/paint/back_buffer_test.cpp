#include "paint/BackBuffer.h"
#include "paint/GdiGuards.h"
#include "support/Canvas.h"

#include <gtest/gtest.h>

#include <climits>
#include <tuple>

namespace {

constexpr COLORREF Ink = RGB(10, 20, 30);

TEST(BackBuffer, CopiesItsAreaAtTheEndAndNothingElse)
{
    const struct
    {
        CRect area;
        int copied;
    } cases[] = {{CRect(10, 5, 20, 15), 10 * 10},
                 {CRect(5, 5, 5, 20), 0},
                 {CRect(20, 20, 5, 5), 0},
                 {CRect(INT_MAX, 0, INT_MIN, 10), 0}};
    for (const auto& each : cases)
    {
        Canvas canvas(40, 30);
        {
            BackBuffer buffer(canvas.DC(), each.area);
            buffer.DC().FillSolidRect(0, 0, 40, 30, Ink); // beyond the area on every side
            EXPECT_TRUE(canvas.IsUntouched());
        }
        EXPECT_EQ(canvas.Picture().Count(Ink), each.copied);
        EXPECT_EQ(canvas.Picture().Count(Ink, each.area), each.copied);
    }
}

TEST(BackBuffer, DrawsStraightToTheTargetWhenThereIsNoMemoryForIt)
{
    for (const CRect& area : {CRect(0, 0, 1 << 30, 1 << 30), CRect(INT_MIN, 0, INT_MAX, 10)})
    {
        Canvas canvas(40, 30);
        {
            BackBuffer buffer(canvas.DC(), area);
            buffer.DC().FillSolidRect(3, 4, 1, 1, Ink);
        }
        EXPECT_EQ(canvas.At(3, 4), Ink);
        EXPECT_EQ(canvas.At(4, 4), Canvas::Untouched);
    }
}

TEST(GdiGuards, PutBackWhatTheyFound)
{
    Canvas canvas(10, 10);
    CDC& dc = canvas.DC();
    const auto state = [&] {
        return std::tuple(::GetCurrentObject(dc, OBJ_PEN), dc.GetTextColor(), dc.GetBkMode());
    };
    const auto before = state();
    const CPen pen(PS_SOLID, 1, Ink);
    {
        const Selected outer(dc, pen);
        const Selected inner(dc, ::GetStockObject(NULL_PEN));
        const Selected none(dc, HGDIOBJ(nullptr));
        const TextColor color(dc, Ink);
        const BackgroundMode mode(dc, TRANSPARENT);
        EXPECT_EQ(state(), std::tuple(::GetStockObject(NULL_PEN), Ink, TRANSPARENT));
    }
    EXPECT_EQ(state(), before);
}

} // namespace
