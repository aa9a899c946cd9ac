#include "paint/BackBuffer.h"
#include "paint/GdiGuards.h"
#include "support/Canvas.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

constexpr COLORREF Ink = RGB(10, 20, 30);

TEST(BackBuffer, CopiesItsAreaAtTheEndAndNothingElse)
{
    Canvas canvas(40, 30);
    {
        BackBuffer buffer(canvas.DC(), CRect(10, 5, 20, 15));
        buffer.DC().FillSolidRect(0, 0, 40, 30, Ink); // beyond the area on every side
        buffer.DC().SetPixelV(10, 5, RGB(200, 0, 0));
        EXPECT_TRUE(canvas.IsUntouched());
    }
    EXPECT_EQ(canvas.At(10, 5), RGB(200, 0, 0)); // the area's own coordinates
    EXPECT_EQ(canvas.At(19, 14), Ink);
    EXPECT_EQ(canvas.At(9, 5), Canvas::Untouched);
    EXPECT_EQ(canvas.At(20, 14), Canvas::Untouched);
    EXPECT_EQ(canvas.At(10, 4), Canvas::Untouched);
    EXPECT_EQ(canvas.At(19, 15), Canvas::Untouched);
}

TEST(BackBuffer, AnEmptyOrNegativeAreaTakesDrawingAndCopiesNothing)
{
    Canvas canvas(40, 30);
    for (const CRect& area : {CRect(5, 5, 5, 20), CRect(5, 5, 20, 5), CRect(20, 20, 5, 5),
                              CRect(INT_MAX, 0, INT_MIN, 10)})
    {
        BackBuffer buffer(canvas.DC(), area);
        buffer.DC().FillSolidRect(0, 0, 40, 30, Ink);
    }
    EXPECT_TRUE(canvas.IsUntouched());
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
    const HGDIOBJ penBefore = ::GetCurrentObject(dc, OBJ_PEN);
    const COLORREF colorBefore = dc.GetTextColor();
    const int modeBefore = dc.GetBkMode();
    const CPen pen(PS_SOLID, 1, Ink);
    {
        const Selected outer(dc, pen);
        const Selected inner(dc, ::GetStockObject(NULL_PEN));
        const Selected none(dc, HGDIOBJ(nullptr));
        const TextColor color(dc, Ink);
        const BackgroundMode mode(dc, TRANSPARENT);
        EXPECT_EQ(::GetCurrentObject(dc, OBJ_PEN), ::GetStockObject(NULL_PEN));
        EXPECT_EQ(dc.GetTextColor(), Ink);
        EXPECT_EQ(dc.GetBkMode(), TRANSPARENT);
    }
    EXPECT_EQ(::GetCurrentObject(dc, OBJ_PEN), penBefore);
    EXPECT_EQ(dc.GetTextColor(), colorBefore);
    EXPECT_EQ(dc.GetBkMode(), modeBefore);
}

} // namespace
