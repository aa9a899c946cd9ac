#include "FauxScrollBar.h"
#include "scroll/BarPaint.h"
#include "scroll/NcBands.h"
#include "support/Canvas.h"
#include "support/WindowTest.h"

#include <functional>
#include <tuple>

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
    EXPECT_EQ(WindowPixels(window).At(37, 200), RGB(26, 26, 26));
    EXPECT_TRUE(draw(Bar::PRESSED_NONE, true));
    EXPECT_TRUE(draw(Bar::PRESSED_FIRST));
    EXPECT_TRUE(draw());
    const std::tuple<const char*, std::function<void()>, bool> changes[] = {
        {"nothing", [] {}, false},
        {"page size", [&] { bar.SetPageSize(9); }, false},
        {"position", [&] { bar.SetScrollPos(5); }, true},
        {"colours", [&] { bar.SetColors(1, 2, 3, 4, 5, 6); }, true},
        {"disabled", [&] { window.EnableWindow(FALSE); }, true},
        {"mode", [&] { COnBoardUIGeneral::SetAppMode(EFB); }, true},
        {"invalid", [&] { painter.Invalidate(); }, true},
        {"hidden", [&] { bar.ShowScrollBar(FALSE); }, false},
        {"shown again", [&] { bar.ShowScrollBar(TRUE); }, true},
        // With redraw off nothing arrives, so afterwards nothing counts as painted.
        {"redraw off", [&] { window.SetRedraw(FALSE); }, false},
        {"redraw on", [&] { window.SetRedraw(TRUE); }, true},
    };
    for (const auto& [name, change, shows] : changes)
    {
        change();
        EXPECT_EQ(draw(), shows) << name;
    }
    EXPECT_FALSE(draw());
}

TEST_F(BarHost, AFrameLaidOutAnewKeepsTheTabOrder)
{
    CWnd& window = AddWindow();
    CWnd& second = AddWindow();
    scroll::RecalculateFrame(second, false);
    EXPECT_EQ(::GetWindow(Host(), GW_CHILD), window.GetSafeHwnd());
}

} // namespace
