#include "FauxScrollBar.h"
#include "support/Canvas.h"
#include "support/ModeScope.h"

#include <gtest/gtest.h>

#include <climits>
#include <tuple>

namespace {

using Bar = CFauxScrollBar;

const CRect VertArea(100, 20, 155, 420); // buttons 32 long, thumb 41, free track 295 from 52
const CRect HorzArea(20, 100, 420, 155);

class FauxScrollBarTest : public testing::Test
{
protected:
    FauxScrollBarTest()
        : vert(SB_VERT)
        , horz(SB_HORZ)
    {
        vert.SetArea(VertArea);
        horz.SetArea(HorzArea);
    }

    static int ThumbStart(const Bar& bar)
    {
        const CRect thumb = bar.GetPartArea(Bar::PRESSED_THUMB);
        return bar.GetOrientation() == SB_HORZ ? thumb.left : thumb.top;
    }

    ModeScope mode{ONBOARD};
    Bar vert;
    Bar horz;
};

TEST_F(FauxScrollBarTest, PositionsStayWithinTheRange)
{
    vert.SetScrollRange(2, 20);
    EXPECT_EQ(vert.SetPageSize(6), 1);
    const std::tuple<int, UINT, int> cases[] = {
        {5, SB_LINEUP, 4},    {2, SB_LINEUP, 2},  {5, SB_LINEDOWN, 6},      {20, SB_LINEDOWN, 20},
        {10, SB_PAGEUP, 4},   {5, SB_PAGEUP, 2},  {10, SB_PAGEDOWN, 16},    {18, SB_PAGEDOWN, 20},
        {9, SB_TOP, 2},       {9, SB_BOTTOM, 20}, {9, SB_THUMBPOSITION, 9}, {9, SB_THUMBTRACK, 9},
        {9, SB_ENDSCROLL, 9}, {9, 77, 9},
    };
    for (const auto& [from, code, to] : cases)
    {
        vert.SetScrollPos(from);
        vert.HandleScroll(code, 17, nullptr);
        EXPECT_EQ(vert.GetScrollPos(), to) << "code " << code << " from " << from;
    }
    EXPECT_EQ(vert.SetPageSize(INT_MAX), 6);
    vert.HandleScroll(SB_PAGEDOWN);
    EXPECT_EQ(vert.IncrementScrollPos(-8), 20);
    EXPECT_EQ(vert.SetScrollPos(99), 12);
    vert.SetScrollRange(0, 10); // a shrinking range takes the position with it
    EXPECT_EQ(vert.IncrementScrollPos(INT_MIN), 10);
    EXPECT_EQ(vert.GetScrollPos(), 0);
}

TEST_F(FauxScrollBarTest, ScrollInfoIsAppliedInItsFixedOrder)
{
    SCROLLINFO info = {sizeof(info), SIF_PAGE | SIF_POS | SIF_RANGE, 0, 50, 8, 30, 55};
    // The position comes before the range that would hold it.
    EXPECT_EQ(vert.SetScrollInfo(&info), 0);
    EXPECT_EQ(vert.SetScrollInfo(&info), 30);
    info.fMask = SIF_ALL;
    info.nMax = 60;
    EXPECT_EQ(vert.SetScrollInfo(&info), 55); // after range and position

    SCROLLINFO out = {};
    EXPECT_NE(vert.GetScrollInfo(&out, SIF_POS | SIF_PAGE), 0);
    EXPECT_TRUE(out.nPos == 55 && out.nPage == 8 && out.nMax == 0) << "what was asked for";
    EXPECT_EQ(vert.GetScrollInfo(nullptr, SIF_ALL), 0);

    EXPECT_EQ(vert.SetScrollInfo(nullptr, FALSE), 55);
    int end = -1;
    vert.GetScrollRange(nullptr, &end);
    vert.GetScrollRange(&end, nullptr);
    EXPECT_EQ(end, -1) << "both ends or none";
}

TEST_F(FauxScrollBarTest, TheThumbFollowsPositionRangeAndArea)
{
    vert.SetScrollRange(0, 11);
    horz.SetScrollRange(0, 10);
    EXPECT_DOUBLE_EQ(horz.GetPixelsPerScroll(), 29.5);
    vert.SetScrollPos(3);
    EXPECT_EQ(vert.GetPartArea(Bar::PRESSED_THUMB), CRect(104, 140, 151, 181)); // 88.5 truncated
    vert.SetScrollPos(11);
    EXPECT_EQ(ThumbStart(vert), 347); // 324 reaches past the last place
    horz.SetScrollPos(10);
    EXPECT_EQ(horz.GetPartArea(Bar::PRESSED_THUMB), CRect(347, 104, 388, 151));

    vert.SetScrollPos(4);
    vert.SetScrollRange(0, 60); // a longer range moves the thumb back at once
    EXPECT_EQ(ThumbStart(vert), 72);
    // The raw position counts, not its distance to the minimum.
    vert.SetScrollRange(5, 16);
    vert.SetScrollPos(5);
    EXPECT_EQ(ThumbStart(vert), 52 + 147);

    EXPECT_EQ(vert.SetHeight(200, true), 400);
    EXPECT_EQ(vert.GetArea(), CRect(100, 20, 155, 220));
    EXPECT_EQ(vert.SetHeight(300, false), 200);
    EXPECT_EQ(vert.GetArea(), CRect(100, -80, 155, 220));
    EXPECT_EQ(vert.GetPartArea(Bar::PRESSED_SECOND), CRect(100, 188, 155, 220));

    // The look follows the mode when the area is set.
    const ModeScope standard(STD);
    vert.SetArea(VertArea);
    EXPECT_EQ(vert.GetPartArea(Bar::PRESSED_SECOND), CRect(100, 365, 154, 420));
    horz.SetScrollPos(0);
    horz.SetArea(CRect(10, 5, 210, 22));
    EXPECT_EQ(horz.GetPartArea(Bar::PRESSED_FIRST), CRect(10, 5, 27, 21));
    EXPECT_EQ(horz.GetPartArea(Bar::PRESSED_THUMB), CRect(27, 5, 44, 21));
}

TEST_F(FauxScrollBarTest, HitTestsFindEachPart)
{
    vert.SetScrollRange(0, 11);
    vert.SetScrollPos(3); // thumb from 140 to 181
    horz.SetScrollRange(0, 10);
    const std::tuple<int, int, Bar::ePRESSED> cases[] = {
        {20, 100, Bar::PRESSED_FIRST},        {51, 154, Bar::PRESSED_FIRST},
        {388, 100, Bar::PRESSED_SECOND},      {419, 154, Bar::PRESSED_SECOND},
        {140, 104, Bar::PRESSED_THUMB},       {180, 150, Bar::PRESSED_THUMB},
        {52, 103, Bar::PRESSED_BEFORE_THUMB}, {139, 151, Bar::PRESSED_BEFORE_THUMB},
        {181, 103, Bar::PRESSED_AFTER_THUMB}, {387, 151, Bar::PRESSED_AFTER_THUMB},
        {100, 102, Bar::PRESSED_NONE},        {300, 152, Bar::PRESSED_NONE}, // margins
        {160, 103, Bar::PRESSED_NONE},                                       // beside the thumb
        {19, 120, Bar::PRESSED_NONE},         {420, 120, Bar::PRESSED_NONE},
        {200, 99, Bar::PRESSED_NONE},         {200, 155, Bar::PRESSED_NONE},
    };
    horz.SetScrollPos(3); // the same place along the bar
    for (const auto& [along, across, part] : cases)
    {
        SCOPED_TRACE(testing::Message() << along << ", " << across);
        const bool hit = part != Bar::PRESSED_NONE;
        EXPECT_EQ(vert.GetHitTest(CPoint(across, along)), hit ? UINT(HTVSCROLL) : 0u);
        EXPECT_EQ(vert.GetLastHit(), part);
        EXPECT_EQ(horz.GetHitTest(CPoint(along, across)), hit ? UINT(HTHSCROLL) : 0u);
        EXPECT_EQ(horz.GetLastHit(), part);
    }
}

TEST_F(FauxScrollBarTest, ADragFollowsThePixels)
{
    EXPECT_EQ(vert.IncrementScrollByPixels(50), 0) << "it has no steps";
    vert.SetScrollRange(0, 11); // 29.5 a step; band 1 starts 14.75 below the top place
    EXPECT_EQ(vert.IncrementScrollByPixels(14), 14);
    EXPECT_EQ(vert.GetScrollPos(), 0);
    // What a host does between two moves leaves the thumb where the pointer has it.
    vert.HandleScroll(SB_THUMBPOSITION);
    vert.SetScrollRange(0, 11);
    EXPECT_EQ(vert.IncrementScrollByPixels(1), 1);
    EXPECT_EQ(vert.GetScrollPos(), 1);
    EXPECT_EQ(ThumbStart(vert), 67);
    EXPECT_EQ(vert.IncrementScrollByPixels(10000), 280);
    EXPECT_EQ(vert.GetScrollPos(), 10); // the last band
    EXPECT_EQ(vert.IncrementScrollByPixels(INT_MIN), -295);
    EXPECT_EQ(vert.GetScrollPos(), 0);

    // A range that grows during the drag takes its own steps at once.
    vert.SetScrollRange(0, 101);
    EXPECT_EQ(vert.IncrementScrollByPixels(30), 30);
    EXPECT_EQ(vert.GetScrollPos(), 10); // 2.95 a step
    // With many positions to a pixel, no distance must not become another one.
    vert.SetScrollRange(0, 5000);
    vert.SetScrollPos(7);
    EXPECT_EQ(vert.IncrementScrollByPixels(0), 0);
    EXPECT_EQ(vert.GetScrollPos(), 7);
}

TEST_F(FauxScrollBarTest, AHorizontalDragHasOneBandLessThanPlaces)
{
    horz.SetScrollRange(0, 10); // 29.5 a step, bands up to 280.25
    horz.IncrementScrollByPixels(280);
    EXPECT_EQ(horz.GetScrollPos(), 9);
    horz.IncrementScrollByPixels(15);
    EXPECT_EQ(horz.GetScrollPos(), 9); // beyond the last band the position stays
    horz.SetScrollPos(10);
    horz.IncrementScrollByPixels(-10);
    EXPECT_EQ(horz.GetScrollPos(), 10);
    horz.IncrementScrollByPixels(-5);
    EXPECT_EQ(horz.GetScrollPos(), 9);

    horz.SetScrollRange(0, 1); // no step length and so no bands, but the near end is the first
    horz.SetScrollPos(1);
    horz.IncrementScrollByPixels(40);
    EXPECT_EQ(horz.GetScrollPos(), 1);
    horz.IncrementScrollByPixels(-100);
    EXPECT_EQ(horz.GetScrollPos(), 0);
}

TEST_F(FauxScrollBarTest, WithstandsAnyRange)
{
    for (Bar* bar : {&vert, &horz})
    {
        bar->SetScrollRange(INT_MIN, INT_MAX); // as cheap as any other
        bar->SetScrollPos(INT_MAX);
        EXPECT_EQ(ThumbStart(*bar), 199); // half of all positions are above 0
        bar->SetScrollPos(INT_MIN);
        bar->HandleScroll(SB_LINEUP);
        EXPECT_EQ(bar->GetScrollPos(), INT_MIN);
        bar->SetScrollRange(30, 10); // no steps: the minimum is all there is
        bar->HandleScroll(SB_BOTTOM);
        EXPECT_EQ(bar->GetScrollPos(), 30);
    }
}

TEST(FauxScrollBar, TroughOutlineAndHeldPartArePainted)
{
    // Trough of 55; buttons to 42 and from 278; thumb 42 to 83.
    const CRect area(10, 10, 65, 310);
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
        bar.SetArea(area);
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
    bar.SetArea(area);
    draw(Bar::PRESSED_NONE, TRUE);
    EXPECT_EQ(canvas.At(10, 200), 3U) << "the standard trough has no outline";
}

} // namespace
