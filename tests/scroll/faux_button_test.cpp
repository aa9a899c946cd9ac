#include "FauxDropButton.h"
#include "FauxNcButton.h"
#include "FauxScrollButton.h"
#include "FauxScrollThumb.h"
#include "support/Canvas.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

namespace {

constexpr int Pressed = TRUE;
constexpr int Enabled = TRUE;
const CRect VertArea(10, 10, 65, 42); // a button of a vertical bar
const CRect HorzArea(10, 10, 42, 65);

std::vector<DWORD> Painted(CFauxButton& part, int pressed, int enabled, APPMODE mode)
{
    Canvas canvas(80, 80);
    part.ReDraw(canvas.DC(), pressed, enabled, mode);
    return canvas.Pixels();
}

TEST(FauxButton, ArrowPointsFollowTheArea)
{
    const CRect vert(0, 0, 55, 32), horz(0, 0, 32, 55), small(10, 10, 30, 30);
    struct Case
    {
        CRect area;
        int orientation;
        bool first;
        std::vector<CPoint> points;
    };
    using Points = std::vector<CPoint>;
    const Case cases[] = {
        {vert, SB_VERT, true, {{26, 10}, {10, 26}, {42, 26}, {26, 11}, {12, 25}, {40, 25}}},
        {vert, SB_VERT, false, {{26, 21}, {10, 5}, {42, 5}, {26, 20}, {12, 6}, {40, 6}}},
        {horz, SB_HORZ, true, {{8, 26}, {24, 10}, {24, 42}, {9, 26}, {23, 12}, {23, 40}}},
        {horz, SB_HORZ, false, {{22, 26}, {6, 10}, {6, 42}, {21, 26}, {7, 12}, {7, 40}}},
        {small, SB_VERT, true, {{19, 11}, {3, 27}, {35, 27}, {19, 12}, {5, 26}, {33, 26}}},
    };
    CFauxDropButton part;
    for (const Case& c : cases)
    {
        part.SetArea(c.area);
        Points points(6);
        part.CalculateOBTriangle(points.data(), 6, c.orientation, c.first);
        EXPECT_EQ(points, c.points) << "orientation " << c.orientation << " first " << c.first;
    }
    Points untouched(6, CPoint(-9, -9));
    part.CalculateOBTriangle(untouched.data(), 5, SB_VERT, true);
    part.CalculateOBTriangle(untouched.data(), 6, 2, true);
    part.CalculateOBTriangle(nullptr, 6, SB_VERT, true);
    EXPECT_EQ(untouched, Points(6, CPoint(-9, -9)));
}

TEST(FauxButton, EdgesAndCentres)
{
    CFauxScrollThumb thumb(SB_VERT);
    thumb.SetTopBottom(10, 51);
    thumb.SetLeftRight(-7, 0);
    EXPECT_EQ(thumb.GetVCenter(), 30);
    EXPECT_EQ(thumb.GetHCenter(), -4); // halves from the near edge, not towards zero
    thumb.ShiftArea(7, -10);
    EXPECT_EQ(thumb.GetArea(), CRect(0, 0, 7, 41));
}

TEST(FauxButton, TheStandardLookIsThePlatforms)
{
    CFauxScrollButton up(true, SB_VERT), down(false, SB_VERT), left(true, SB_HORZ),
        right(false, SB_HORZ);
    CFauxDropButton drop;
    CFauxScrollThumb thumb(SB_HORZ);
    struct Case
    {
        CFauxButton& part;
        UINT type, state;
    };
    const Case cases[] = {
        {up, DFC_SCROLL, DFCS_SCROLLUP},         {down, DFC_SCROLL, DFCS_SCROLLDOWN},
        {left, DFC_SCROLL, DFCS_SCROLLLEFT},     {right, DFC_SCROLL, DFCS_SCROLLRIGHT},
        {drop, DFC_SCROLL, DFCS_SCROLLCOMBOBOX}, {thumb, DFC_BUTTON, DFCS_BUTTONPUSH},
    };
    const auto platform = [](UINT type, UINT state) {
        Canvas canvas(80, 80);
        CRect area = VertArea;
        canvas.DC().DrawFrameControl(&area, type, state);
        return canvas.Pixels();
    };
    for (const Case& c : cases)
    {
        c.part.SetArea(VertArea);
        EXPECT_EQ(Painted(c.part, !Pressed, Enabled, STD), platform(c.type, c.state));
        EXPECT_EQ(Painted(c.part, Pressed, Enabled, STD), platform(c.type, c.state | DFCS_FLAT));
        EXPECT_EQ(Painted(c.part, Pressed, !Enabled, STD),
                  platform(c.type, c.state | DFCS_INACTIVE));
    }
}

TEST(FauxButton, TheOnBoardFaceRunsAlongItsGradient)
{
    CFauxScrollThumb ofVertical(SB_VERT);
    CFauxScrollThumb ofHorizontal(SB_HORZ);
    struct Case
    {
        int pressed, enabled, nearGrey, farGrey; // 3 and 46 of 50 pixels along the gradient
    };
    for (const Case& c : {Case{!Pressed, Enabled, 146, 95}, Case{Pressed, Enabled, 44, 95},
                          Case{!Pressed, !Enabled, 90, 90}, Case{Pressed, !Enabled, 90, 90}})
    {
        SCOPED_TRACE(testing::Message() << "pressed " << c.pressed << " enabled " << c.enabled);
        for (const bool vertical : {true, false})
        {
            CFauxScrollThumb& thumb = vertical ? ofVertical : ofHorizontal;
            thumb.SetArea(CRect(10, 10, 60, 60));
            Canvas canvas(80, 80);
            thumb.ReDraw(canvas.DC(), c.pressed, c.enabled, vertical ? EFB : FULLSCREEN);
            const auto at = [&](int along, int across) {
                return vertical ? canvas.At(along, across) : canvas.At(across, along);
            };
            EXPECT_NEAR(GetGValue(at(13, 35)), c.nearGrey, 2);
            EXPECT_NEAR(GetGValue(at(56, 35)), c.farGrey, 2);
            EXPECT_EQ(at(13, 15), at(13, 55));
            EXPECT_EQ(at(10, 35), RGB(70, 70, 70)); // the outline lies inside
            EXPECT_EQ(at(12, 35), RGB(70, 70, 70));
            EXPECT_EQ(at(35, 59), RGB(70, 70, 70));
            EXPECT_EQ(at(9, 35), Canvas::Untouched);
            EXPECT_EQ(at(60, 35), Canvas::Untouched);
        }
    }
}

TEST(FauxButton, ArrowsTakeTheirColourFromTheState)
{
    // Six colours that no default has: c3 normal, c4 disabled, c6 pressed face; c1 lines.
    const COLORREF c1 = RGB(1, 0, 0), c3 = RGB(3, 0, 0), c4 = RGB(4, 0, 0), c6 = RGB(6, 0, 0);
    CFauxScrollButton up(true, SB_VERT);
    CFauxScrollButton left(true, SB_HORZ);
    CFauxDropButton drop;
    up.SetArea(VertArea);
    left.SetArea(HorzArea);
    drop.SetArea(VertArea);
    for (CFauxButton* part : std::initializer_list<CFauxButton*>{&up, &left, &drop})
    {
        part->SetColors(c1, RGB(2, 0, 0), c3, c4, RGB(5, 0, 0), c6);
    }
    const COLORREF grey = RGB(100, 100, 100);
    struct Case
    {
        const char* name;
        CFauxButton& part;
        CPoint inside, apex;
        COLORREF normal, pressed;
    };
    const Case cases[] = {
        {"up", up, CPoint(36, 32), CPoint(36, 20), grey, grey},
        {"left", left, CPoint(30, 36), CPoint(18, 36), grey, grey},
        {"drop", drop, CPoint(36, 22), CPoint(36, 33), c6, c3}, // the opposite face
    };
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.name);
        Canvas canvas(80, 80);
        c.part.ReDraw(canvas.DC(), !Pressed, Enabled, ONBOARD);
        EXPECT_EQ(canvas.At(c.inside.x, c.inside.y), c.normal);
        EXPECT_EQ(canvas.At(c.apex.x, c.apex.y), c1);
        EXPECT_EQ(canvas.At(11, 36), c1); // outline
        c.part.ReDraw(canvas.DC(), Pressed, Enabled, ONBOARD);
        EXPECT_EQ(canvas.At(c.inside.x, c.inside.y), c.pressed);
        c.part.ReDraw(canvas.DC(), !Pressed, !Enabled, ONBOARD);
        EXPECT_EQ(canvas.At(c.inside.x, c.inside.y), c4);
        EXPECT_EQ(Painted(c.part, Pressed, !Enabled, ONBOARD),
                  Painted(c.part, !Pressed, !Enabled, ONBOARD));
    }
    // Not clipped: an arrow larger than its button.
    up.SetArea(CRect(30, 30, 50, 50));
    Canvas canvas(80, 80);
    up.ReDraw(canvas.DC(), !Pressed, Enabled, ONBOARD);
    EXPECT_EQ(canvas.At(23, 47), c1);
    EXPECT_EQ(canvas.At(55, 47), c1);
}

TEST(FauxButton, HiddenPartsPaintNothing)
{
    CFauxScrollButton button(false, SB_HORZ);
    CFauxScrollThumb thumb(SB_VERT);
    CFauxDropButton drop;
    CFauxNcButton nonClient;
    nonClient.SetBorder(true);
    Canvas canvas(80, 80);
    for (CFauxButton* part :
         std::initializer_list<CFauxButton*>{&button, &thumb, &drop, &nonClient})
    {
        part->SetArea(VertArea);
        part->SetShow(0);
        part->ReDraw(canvas.DC(), !Pressed, Enabled, STD);
        part->ReDraw(canvas.DC(), !Pressed, Enabled, ONBOARD);
    }
    EXPECT_TRUE(canvas.IsUntouched());
}

TEST(FauxNcButton, PaintsGlyphAndBorderInTheStandardModeOnly)
{
    CFauxNcButton button;
    button.SetArea(CRect(10, 10, 30, 30));
    button.SetBorder(true);
    Canvas canvas(80, 80);
    for (const APPMODE mode : {FULLSCREEN, ONBOARD, EFB, EFBFS})
    {
        button.ReDraw(canvas.DC(), !Pressed, Enabled, mode);
    }
    EXPECT_TRUE(canvas.IsUntouched());

    struct Frame
    {
        int nearEdge, farEdge, topLeft, bottomRight;
    };
    for (const Frame& f : {Frame{10, 29, COLOR_3DHILIGHT, COLOR_3DDKSHADOW},
                           Frame{11, 28, COLOR_3DLIGHT, COLOR_3DSHADOW}})
    {
        button.ReDraw(canvas.DC(), !Pressed, Enabled, STD);
        EXPECT_EQ(canvas.At(f.nearEdge, 15), ::GetSysColor(f.topLeft));
        EXPECT_EQ(canvas.At(15, f.farEdge), ::GetSysColor(f.bottomRight));
        button.ReDraw(canvas.DC(), Pressed, Enabled, STD);
        EXPECT_EQ(canvas.At(f.nearEdge, 15), ::GetSysColor(f.bottomRight));
        EXPECT_EQ(canvas.At(15, f.farEdge), ::GetSysColor(f.topLeft));
    }
    EXPECT_EQ(canvas.At(20, 20), Canvas::Untouched); // no glyph, transparent

    button.SetBorder(false);
    button.SetButtonType(CFauxNcButton::BUTTON_CLOSE);
    EXPECT_NE(Painted(button, !Pressed, Enabled, STD), Painted(button, !Pressed, !Enabled, STD));
    CSize bare, framed;
    button.GetMinVisibleSize(&canvas.DC(), bare);
    button.SetBorder(true);
    button.GetMinVisibleSize(&canvas.DC(), framed);
    EXPECT_GT(bare.cx, 0);
    EXPECT_EQ(framed, bare + CSize(4, 4));
    button.GetMinVisibleSize(nullptr, framed);
    EXPECT_EQ(framed, bare + CSize(4, 4));

    EXPECT_EQ(button.HitTest(CPoint(10, 29)), 1);
    EXPECT_EQ(button.HitTest(CPoint(30, 29)), 0);
}

} // namespace
