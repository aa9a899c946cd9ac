#include "FauxDropButton.h"
#include "FauxNcButton.h"
#include "FauxScrollButton.h"
#include "FauxScrollThumb.h"
#include "support/Canvas.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

namespace {

constexpr int Pressed = TRUE;
constexpr int Enabled = TRUE;
const CRect VertArea(10, 10, 65, 42); // a button of a vertical bar

Pixels Painted(CFauxButton& part, int pressed, int enabled, APPMODE mode)
{
    Canvas canvas(80, 80);
    part.ReDraw(canvas.DC(), pressed, enabled, mode);
    return canvas.Picture();
}

TEST(FauxButton, TheStandardLookIsThePlatforms)
{
    CFauxScrollButton up(true, SB_VERT), down(false, SB_VERT), left(true, SB_HORZ),
        right(false, SB_HORZ);
    CFauxDropButton drop;
    CFauxScrollThumb thumb(SB_HORZ);
    const std::tuple<CFauxButton&, UINT, UINT> cases[] = {
        {up, DFC_SCROLL, DFCS_SCROLLUP},         {down, DFC_SCROLL, DFCS_SCROLLDOWN},
        {left, DFC_SCROLL, DFCS_SCROLLLEFT},     {right, DFC_SCROLL, DFCS_SCROLLRIGHT},
        {drop, DFC_SCROLL, DFCS_SCROLLCOMBOBOX}, {thumb, DFC_BUTTON, DFCS_BUTTONPUSH},
    };
    for (const auto& [part, type, state] : cases)
    {
        part.SetArea(VertArea);
        for (const auto& [pressed, enabled, extra] : {std::tuple(!Pressed, Enabled, 0),
                                                      {Pressed, Enabled, DFCS_FLAT},
                                                      {Pressed, !Enabled, DFCS_INACTIVE}})
        {
            Canvas platform(80, 80);
            CRect area = VertArea;
            platform.DC().DrawFrameControl(&area, type, state | UINT(extra));
            EXPECT_EQ(Painted(part, pressed, enabled, STD), platform.Picture()) << extra;
        }
        part.SetShow(0);
        for (const APPMODE mode : {STD, ONBOARD})
        {
            EXPECT_EQ(Painted(part, Pressed, Enabled, mode), Canvas(80, 80).Picture()) << "hidden";
        }
    }
}

TEST(FauxButton, TheOnBoardFaceRunsAlongItsGradient)
{
    // 3 and 46 of 50 pixels along the gradient
    const std::tuple<int, int, int, int> cases[] = {{!Pressed, Enabled, 146, 95},
                                                    {Pressed, Enabled, 44, 95},
                                                    {!Pressed, !Enabled, 90, 90},
                                                    {Pressed, !Enabled, 90, 90}};
    for (const auto& [pressed, enabled, nearGrey, farGrey] : cases)
    {
        for (const int axis : {SB_VERT, SB_HORZ})
        {
            CFauxScrollThumb thumb(axis);
            thumb.SetArea(CRect(10, 10, 60, 60));
            const Pixels seen = Painted(thumb, pressed, enabled, EFB);
            const auto at = [&](int along, int across) {
                return axis == SB_VERT ? seen.At(along, across) : seen.At(across, along);
            };
            EXPECT_NEAR(GetGValue(at(13, 35)), nearGrey, 2) << pressed << enabled;
            EXPECT_NEAR(GetGValue(at(56, 35)), farGrey, 2) << pressed << enabled;
            EXPECT_EQ(at(13, 15), at(13, 55));
        }
    }
}

TEST(FauxButton, ArrowsTakeTheirColourFromTheState)
{
    // Colours that no default has: 1 lines, 3 normal, 4 disabled, 6 pressed face.
    CFauxScrollButton up(true, SB_VERT), down(false, SB_VERT), left(true, SB_HORZ),
        right(false, SB_HORZ);
    CFauxDropButton drop;
    const CRect horzArea(10, 10, 42, 65);
    const COLORREF grey = RGB(100, 100, 100);
    // Part, area, corners with the apex first, a point inside and its colour, as it is and pressed.
    const std::tuple<CFauxButton&, CRect, std::vector<CPoint>, CPoint, COLORREF, COLORREF> cases[] =
        {
            {up, VertArea, {{36, 20}, {20, 36}, {52, 36}}, {36, 32}, grey, grey},
            {down, VertArea, {{36, 31}, {20, 15}, {52, 15}}, {36, 20}, grey, grey},
            {left, horzArea, {{18, 36}, {34, 20}, {34, 52}}, {30, 36}, grey, grey},
            {right, horzArea, {{32, 36}, {16, 20}, {16, 52}}, {22, 36}, grey, grey},
            {drop, VertArea, {{36, 33}, {20, 17}, {52, 17}}, {36, 22}, 6, 3}, // the opposite face
        };
    for (const auto& [part, area, corners, inside, normalColor, pressedColor] : cases)
    {
        part.SetArea(area);
        part.SetColors(1, 2, 3, 4, 5, 6);
        const Pixels normal = Painted(part, !Pressed, Enabled, ONBOARD);
        for (const CPoint corner : corners)
        {
            EXPECT_EQ(normal.At(corner), 1U) << corner.x << ", " << corner.y;
        }
        EXPECT_EQ(normal.At(inside), normalColor);
        EXPECT_EQ(Painted(part, Pressed, Enabled, ONBOARD).At(inside), pressedColor);
        const Pixels disabled = Painted(part, !Pressed, !Enabled, ONBOARD);
        EXPECT_EQ(disabled.At(inside), 4U);
        EXPECT_EQ(Painted(part, Pressed, !Enabled, ONBOARD), disabled);
    }
}

TEST(FauxNcButton, PaintsGlyphAndBorderInTheStandardModeOnly)
{
    CFauxNcButton button;
    button.SetArea(CRect(10, 10, 30, 30));
    button.SetBorder(true);
    Canvas canvas(80, 80);
    button.ReDraw(canvas.DC(), !Pressed, Enabled, ONBOARD);
    EXPECT_TRUE(canvas.IsUntouched());

    const Pixels raised = Painted(button, !Pressed, Enabled, STD);
    const Pixels sunk = Painted(button, Pressed, Enabled, STD);
    // Along the left and along the lower edge, from outside.
    for (const auto& [at, lit, shadowed] :
         {std::tuple(10, COLOR_3DHILIGHT, COLOR_3DDKSHADOW), {11, COLOR_3DLIGHT, COLOR_3DSHADOW}})
    {
        EXPECT_EQ(raised.At(at, 15), ::GetSysColor(lit));
        EXPECT_EQ(sunk.At(at, 15), ::GetSysColor(shadowed));
        EXPECT_EQ(raised.At(15, 39 - at), ::GetSysColor(shadowed));
        EXPECT_EQ(sunk.At(15, 39 - at), ::GetSysColor(lit));
    }
    EXPECT_EQ(raised.At(20, 20), Canvas::Untouched) << "no glyph, transparent";
    button.SetShow(0);
    EXPECT_EQ(Painted(button, !Pressed, Enabled, STD), Canvas(80, 80).Picture()) << "hidden";
    button.SetShow(1);

    CSize plain, bordered;
    button.SetButtonType(CFauxNcButton::BUTTON_CLOSE);
    button.GetMinVisibleSize(&canvas.DC(), bordered);
    button.SetBorder(false);
    button.GetMinVisibleSize(&canvas.DC(), plain);
    EXPECT_EQ(bordered - plain, CSize(4, 4));
    for (const int enabled : {TRUE, FALSE})
    {
        const Pixels glyph = Painted(button, !Pressed, enabled, STD);
        EXPECT_EQ(glyph.Count(::GetSysColor(COLOR_BTNTEXT)) > 5, enabled);
        EXPECT_EQ(glyph.Count(::GetSysColor(COLOR_GRAYTEXT)) > 5, !enabled);
    }
    EXPECT_EQ(button.HitTest(CPoint(10, 29)), 1);
    EXPECT_EQ(button.HitTest(CPoint(10, 30)), 0);
}

} // namespace
