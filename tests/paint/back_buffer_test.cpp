#include "paint/BackBuffer.h"
#include "paint/GdiGuards.h"
#include "support/Canvas.h"
#include "support/WindowTest.h"

namespace {

constexpr COLORREF Ink = RGB(10, 20, 30);

auto StateOf(const CDC& dc)
{
    return std::tuple(::GetCurrentObject(dc, OBJ_PEN), dc.GetTextColor(), dc.GetBkMode());
}

TEST(BackBuffer, CopiesItsAreaAtTheEndAndNothingElse)
{
    const std::pair<CRect, int> cases[] = {{CRect(10, 5, 20, 15), 10 * 10},
                                           {CRect(5, 5, 5, 20), 0},
                                           {CRect(INT_MAX, 0, INT_MIN, 10), 0}};
    for (const auto& [area, copied] : cases)
    {
        Canvas canvas(40, 30);
        {
            BackBuffer buffer(canvas.DC(), area);
            buffer.DC().FillSolidRect(0, 0, 40, 30, Ink); // beyond the area on every side
            EXPECT_TRUE(canvas.IsUntouched());
        }
        EXPECT_EQ(canvas.Picture().Count(Ink), copied);
        EXPECT_EQ(canvas.Picture().Count(Ink, area), copied);
    }
    // Without the memory for it, what is drawn goes straight to the target.
    for (const CRect& area : {CRect(0, 0, 1 << 30, 1 << 30), CRect(INT_MIN, 0, INT_MAX, 10)})
    {
        Canvas canvas(40, 30);
        BackBuffer(canvas.DC(), area).DC().FillSolidRect(3, 4, 1, 1, Ink);
        EXPECT_EQ(canvas.At(3, 4), Ink);
        EXPECT_EQ(canvas.At(4, 4), Canvas::Untouched);
    }
}

using BackBufferOnScreen = WindowTest;

TEST_F(BackBufferOnScreen, TwoAtATimeKeepApartAndEachBeginsFresh)
{
    constexpr COLORREF Inner = RGB(200, 100, 50);
    CClientDC dc(&Host());
    const CPen pen(PS_SOLID, 1, Ink);
    for (const int size : {30, 700, 30}) // grown in between, and smaller than what is kept
    {
        BackBuffer outer(dc, CRect(10, 10, 10 + size, 20));
        EXPECT_EQ(StateOf(outer.DC()),
                  std::tuple(::GetStockObject(BLACK_PEN), COLORREF(0), int(OPAQUE)));
        CRect clip;
        outer.DC().GetClipBox(&clip);
        EXPECT_EQ(clip, CRect(10, 10, 10 + size, 20)) << "whatever the kept bitmap's size";
        outer.DC().FillSolidRect(0, 0, 800, 800, Ink);
        {
            BackBuffer inner(dc, CRect(0, 40, size, 50));
            inner.DC().FillSolidRect(0, 0, 800, 800, Inner);
        }
        // Left behind without care; the next one must not see it.
        ::SelectObject(outer.DC(), pen.GetSafeHandle());
        outer.DC().SetTextColor(Ink);
        outer.DC().SetBkMode(TRANSPARENT);
    }
    const Pixels screen = WindowPixels(Host());
    EXPECT_EQ(screen.Count(Ink), 700 * 10);
    EXPECT_EQ(screen.Count(Inner), 700 * 10);
}

TEST(GdiGuards, PutBackWhatTheyFound)
{
    Canvas canvas(10, 10);
    CDC& dc = canvas.DC();
    const auto before = StateOf(dc);
    {
        const Selected outer(dc, ::GetStockObject(WHITE_PEN));
        const Selected inner(dc, ::GetStockObject(NULL_PEN));
        const Selected none(dc, HGDIOBJ(nullptr));
        const TextColor color(dc, Ink);
        const BackgroundMode mode(dc, TRANSPARENT);
        EXPECT_EQ(StateOf(dc), std::tuple(::GetStockObject(NULL_PEN), Ink, TRANSPARENT));
    }
    EXPECT_EQ(StateOf(dc), before);
}

} // namespace
