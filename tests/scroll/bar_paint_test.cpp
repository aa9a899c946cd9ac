#include "FauxScrollBar.h"
#include "support/Canvas.h"
#include "support/ModeScope.h"

#include <gtest/gtest.h>

namespace {

using Bar = CFauxScrollBar;

const CRect Area(10, 10, 65, 310); // trough of 55; buttons to 42 and from 278; thumb 42 to 83

TEST(BarPainting, TroughOutlineAndHeldPart)
{
    Bar bar(SB_VERT);
    Canvas canvas(80, 320);
    const auto draw = [&](Bar::ePRESSED pressed, BOOL enabled) {
        bar.ReDraw(canvas.DC(), pressed, enabled);
        return canvas.At(37, 200); // behind the thumb
    };
    {
        const ModeScope mode(EFBFS);
        draw(Bar::PRESSED_NONE, TRUE);
        EXPECT_TRUE(canvas.IsUntouched()) << "not placed";
        bar.SetArea(Area);
        bar.SetScrollInfo(nullptr, FALSE);
        draw(Bar::PRESSED_NONE, TRUE);
        EXPECT_TRUE(canvas.IsUntouched()) << "hidden";
        bar.ShowScrollBar(TRUE);
        EXPECT_EQ(draw(Bar::PRESSED_NONE, TRUE), RGB(26, 26, 26));
        EXPECT_EQ(draw(Bar::PRESSED_AFTER_THUMB, TRUE), RGB(100, 100, 100));
        EXPECT_EQ(draw(Bar::PRESSED_AFTER_THUMB, FALSE), RGB(90, 90, 90));
        // The outline of trough and second button, all of it inside.
        for (const CPoint edge :
             {CPoint(10, 200), CPoint(12, 200), CPoint(64, 200), CPoint(37, 309)})
        {
            EXPECT_EQ(canvas.At(edge), RGB(70, 70, 70));
        }
        EXPECT_EQ(canvas.At(9, 200), Canvas::Untouched);
        EXPECT_EQ(canvas.At(65, 200), Canvas::Untouched);
        // Exactly the pressed part looks pressed.
        for (const Bar::ePRESSED pressed :
             {Bar::PRESSED_NONE, Bar::PRESSED_FIRST, Bar::PRESSED_SECOND, Bar::PRESSED_THUMB})
        {
            draw(pressed, TRUE);
            const auto looksPressed = [&](int y) { return GetRValue(canvas.At(20, y)) < 90; };
            EXPECT_EQ(looksPressed(16), pressed == Bar::PRESSED_FIRST) << pressed;
            EXPECT_EQ(looksPressed(304), pressed == Bar::PRESSED_SECOND) << pressed;
            EXPECT_EQ(looksPressed(60), pressed == Bar::PRESSED_THUMB) << pressed;
        }

        bar.SetColors(1, 2, 3, 4, 5, 6);
        EXPECT_EQ(draw(Bar::PRESSED_NONE, TRUE), 2U);
        EXPECT_EQ(canvas.At(11, 200), 1U);
        EXPECT_EQ(canvas.At(11, 20), 1U) << "the parts are recoloured with it";
        EXPECT_EQ(draw(Bar::PRESSED_NONE, FALSE), 4U);
    }
    bar.SetArea(Area);
    draw(Bar::PRESSED_NONE, TRUE);
    EXPECT_EQ(canvas.At(10, 200), 3U) << "the standard trough has no outline";
}

} // namespace
