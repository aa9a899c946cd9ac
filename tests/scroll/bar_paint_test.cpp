#include "FauxScrollBar.h"
#include "scroll/BarPaint.h"
#include "scroll/NcBands.h"
#include "support/Canvas.h"
#include "support/WindowTest.h"

#include <gtest/gtest.h>

namespace {

using Bar = CFauxScrollBar;

const CRect Area(10, 10, 65, 310); // trough of 55; buttons to 42 and from 278; thumb 42 to 83

TEST(BarPainting, TroughOutlineAndHeldPart)
{
    const ModeScope mode(EFBFS);
    Bar bar(SB_VERT);
    bar.SetArea(Area);
    Canvas canvas(80, 320);
    bar.ReDraw(canvas.DC(), Bar::PRESSED_NONE, TRUE);
    const int objects = GraphicsObjects();
    bar.ReDraw(canvas.DC(), Bar::PRESSED_NONE, TRUE);
    EXPECT_EQ(GraphicsObjects(), objects);
    EXPECT_EQ(canvas.At(37, 200), RGB(26, 26, 26));
    EXPECT_EQ(canvas.At(10, 200), RGB(70, 70, 70));
    EXPECT_EQ(canvas.At(12, 200), RGB(70, 70, 70));
    EXPECT_EQ(canvas.At(64, 200), RGB(70, 70, 70));
    EXPECT_EQ(canvas.At(9, 200), Canvas::Untouched);
    EXPECT_EQ(canvas.At(65, 200), Canvas::Untouched);
    EXPECT_EQ(canvas.At(37, 309), RGB(70, 70, 70)); // the second button's own outline

    bar.ReDraw(canvas.DC(), Bar::PRESSED_AFTER_THUMB, TRUE);
    EXPECT_EQ(canvas.At(37, 200), RGB(100, 100, 100));
    EXPECT_EQ(canvas.At(12, 200), RGB(70, 70, 70));
    bar.ReDraw(canvas.DC(), Bar::PRESSED_AFTER_THUMB, FALSE);
    EXPECT_EQ(canvas.At(37, 200), RGB(90, 90, 90));

    bar.SetColors(RGB(1, 0, 0), RGB(2, 0, 0), RGB(3, 0, 0), RGB(4, 0, 0), RGB(5, 0, 0),
                  RGB(6, 0, 0));
    bar.ReDraw(canvas.DC(), Bar::PRESSED_NONE, TRUE);
    EXPECT_EQ(canvas.At(37, 200), RGB(2, 0, 0));
    EXPECT_EQ(canvas.At(11, 200), RGB(1, 0, 0));
    EXPECT_EQ(canvas.At(11, 20), RGB(1, 0, 0)); // the parts are recoloured with it
    bar.ReDraw(canvas.DC(), Bar::PRESSED_NONE, FALSE);
    EXPECT_EQ(canvas.At(37, 200), RGB(4, 0, 0));
    const ModeScope standard(STD);
    bar.SetArea(Area);
    bar.ReDraw(canvas.DC(), Bar::PRESSED_NONE, TRUE);
    EXPECT_EQ(canvas.At(10, 200), RGB(3, 0, 0));
}

TEST(BarPainting, ExactlyThePressedPartLooksPressed)
{
    const ModeScope mode(ONBOARD);
    Bar bar(SB_VERT);
    bar.SetArea(Area);
    const auto looksPressed = [](Canvas& canvas, int y) {
        return GetRValue(canvas.At(20, y)) < 90;
    };
    for (const Bar::ePRESSED pressed : {Bar::PRESSED_NONE, Bar::PRESSED_FIRST, Bar::PRESSED_SECOND,
                                        Bar::PRESSED_BEFORE_THUMB, Bar::PRESSED_THUMB})
    {
        SCOPED_TRACE(pressed);
        Canvas canvas(80, 320);
        bar.ReDraw(canvas.DC(), pressed, TRUE);
        EXPECT_EQ(looksPressed(canvas, 16), pressed == Bar::PRESSED_FIRST);
        EXPECT_EQ(looksPressed(canvas, 304), pressed == Bar::PRESSED_SECOND);
        EXPECT_EQ(looksPressed(canvas, 60), pressed == Bar::PRESSED_THUMB);
    }
}

TEST(BarPainting, AHiddenOrUnplacedBarPaintsNothing)
{
    for (const APPMODE mode : {STD, ONBOARD})
    {
        const ModeScope scope(mode);
        Canvas canvas(80, 320);
        Bar bar(SB_VERT);
        bar.ReDraw(canvas.DC(), Bar::PRESSED_NONE, TRUE);
        bar.SetArea(Area);
        bar.SetScrollInfo(nullptr, FALSE);
        bar.ReDraw(canvas.DC(), Bar::PRESSED_NONE, TRUE);
        EXPECT_TRUE(canvas.IsUntouched());
        bar.SetScrollInfo(nullptr, TRUE);
        bar.ReDraw(canvas.DC(), Bar::PRESSED_NONE, TRUE);
        EXPECT_FALSE(canvas.IsUntouched());
    }
}

class BarHost : public WindowTest
{
protected:
    CWnd& AddWindow()
    {
        return Add<CStatic>(CRect(10, 10, 210, 340), WS_BORDER | WS_VSCROLL | WS_HSCROLL);
    }
};

TEST_F(BarHost, TheBarIsPaintedWhenItLooksDifferent)
{
    const ModeScope mode(ONBOARD);
    CWnd& window = AddWindow();
    Bar bar(SB_VERT);
    bar.SetArea(Area);
    bar.SetScrollRange(0, 20);
    scroll::BarPainter painter;
    const auto draw = [&](Bar::ePRESSED pressed = Bar::PRESSED_NONE, bool force = false) {
        return painter.Draw(window, bar, pressed, force);
    };

    EXPECT_TRUE(draw());
    const Pixels pixels = WindowPixels(window);
    EXPECT_EQ(pixels.At(37, 200), RGB(26, 26, 26));
    EXPECT_EQ(pixels.At(10, 200), RGB(70, 70, 70));
    EXPECT_FALSE(draw());
    bar.SetPageSize(9); // shows nowhere
    EXPECT_FALSE(draw());
    EXPECT_TRUE(draw(Bar::PRESSED_NONE, true));
    EXPECT_TRUE(draw(Bar::PRESSED_FIRST));
    EXPECT_TRUE(draw());
    bar.SetScrollPos(5);
    EXPECT_TRUE(draw());
    bar.SetColors(1, 2, 3, 4, 5, 6);
    EXPECT_TRUE(draw());
    window.EnableWindow(FALSE);
    EXPECT_TRUE(draw());
    const ModeScope otherMode(EFB);
    EXPECT_TRUE(draw());
    EXPECT_FALSE(draw());
    painter.Invalidate();
    EXPECT_TRUE(draw());

    bar.ShowScrollBar(FALSE);
    EXPECT_FALSE(draw());
    bar.ShowScrollBar(TRUE);
    EXPECT_TRUE(draw());
    // With redraw off nothing arrives, so afterwards nothing counts as painted.
    window.SetRedraw(FALSE);
    bar.SetScrollPos(6);
    EXPECT_FALSE(draw());
    window.SetRedraw(TRUE);
    EXPECT_TRUE(draw());
}

TEST_F(BarHost, ScrollStylesGoAndComeBackWithoutTouchingOthers)
{
    CWnd& window = AddWindow();
    const DWORD before = window.GetStyle();
    const CRect client = scroll::ClientRectInWindow(window);
    EXPECT_EQ(scroll::StripScrollStyles(window), DWORD(WS_VSCROLL | WS_HSCROLL));
    EXPECT_EQ(window.GetStyle(), before & ~DWORD(WS_VSCROLL | WS_HSCROLL));
    EXPECT_EQ(scroll::StripScrollStyles(window), 0u);
    EXPECT_EQ(scroll::ClientRectInWindow(window), client); // the frame stays until it is asked for
    scroll::RecalculateFrame(window);
    EXPECT_EQ(scroll::ClientRectInWindow(window), CRect(1, 1, 199, 329));
    EXPECT_EQ(scroll::ScreenToWindow(window, CPoint(115, 97)), CPoint(5, 7));
    scroll::RestoreScrollStyles(window, WS_VSCROLL | WS_DISABLED);
    EXPECT_EQ(window.GetStyle(), before & ~DWORD(WS_HSCROLL));
}

TEST_F(BarHost, AFrameChangeKeepsTheTabOrder)
{
    CWnd& first = AddWindow();
    CWnd& second = AddWindow();
    ASSERT_EQ(::GetWindow(Host(), GW_CHILD), first.GetSafeHwnd());
    scroll::RecalculateFrame(second, false);
    scroll::RecalculateFrame(first);
    EXPECT_EQ(::GetWindow(Host(), GW_CHILD), first.GetSafeHwnd());
    EXPECT_EQ(::GetWindow(first, GW_HWNDNEXT), second.GetSafeHwnd());
}

} // namespace
