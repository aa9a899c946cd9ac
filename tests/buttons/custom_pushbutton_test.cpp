#include "buttons/buttons_for_tests.h"

namespace {

constexpr COLORREF Outline = RGB(70, 70, 70);

// A column of the face beside caption and outline, from below the outline to above it.
void ExpectFace(const Pixels& seen, int top, int bottom)
{
    for (const auto& [y, grey] : {std::pair(3, top), {seen.Height() - 4, bottom}})
    {
        const COLORREF color = seen.At(4, y);
        EXPECT_NEAR(GetRValue(color), grey, 2);
        EXPECT_EQ(color, RGB(GetRValue(color), GetRValue(color), GetRValue(color)));
    }
}

} // namespace

TEST_F(ButtonOnBoard, EachStateOfAPushButtonHasItsFace)
{
    auto& push = Add<TestPush>(CRect(20, 20, 220, 120), 0, "H");
    const Pixels idle = push.Drawn();
    for (const CPoint edge :
         {CPoint(0, 50), CPoint(2, 50), CPoint(199, 50), CPoint(100, 0), CPoint(100, 97)})
    {
        EXPECT_EQ(idle.At(edge), Outline) << edge.x << ", " << edge.y;
    }
    EXPECT_NE(idle.At(3, 50), Outline);
    ExpectFace(idle, 148, 92);

    Press(push.Middle());
    const Pixels held = WindowPixels(push);
    ExpectFace(held, 42, 98);
    EXPECT_EQ(Extent(held, RGB(106, 104, 118), CRect(4, 4, 196, 96)), CRect(7, 7, 193, 93));
    Release();
    const Pixels focused = WindowPixels(push);
    ExpectFace(focused, 148, 92);
    EXPECT_GT(focused.Count(Outline, CRect(7, 7, 193, 8)), 80);
    EXPECT_LT(focused.Count(Outline, CRect(7, 7, 193, 8)), 110) << "dotted";
    EXPECT_EQ(focused.Count(Outline, CRect(8, 8, 192, 92)), 0);

    push.EnableWindow(FALSE);
    const Pixels disabled = Settled(push);
    ExpectFace(disabled, 90, 90);
    EXPECT_EQ(disabled.Count(RGB(230, 230, 230)), 0);
    EXPECT_GT(disabled.Count(RGB(70, 70, 70), CRect(8, 8, 192, 92)), 20);
}

TEST_F(ButtonOnBoard, TheStylePlacesACaption)
{
    constexpr COLORREF Text = RGB(230, 230, 230);
    // Style, place across and down: -1 left or top, 0 in the middle, 1 right or bottom.
    const std::tuple<DWORD, int, int> cases[] = {
        {0, 0, 0},
        {BS_CENTER | BS_VCENTER, 0, 0},
        {BS_RIGHT, 1, 0},
        {BS_TOP, 0, -1},
        {BS_LEFT | BS_BOTTOM, -1, 1},
        {BS_MULTILINE | BS_RIGHT, 1, -1}, // lines begin at the top
    };
    for (const auto& [style, across, down] : cases)
    {
        SCOPED_TRACE(style);
        auto& push = Add<TestPush>(CRect(20, 20, 220, 120), style, "HH");
        const int edge = (style & BS_MULTILINE) != 0 ? 10 : 8;
        const CRect room(edge, edge, 200 - edge, 100 - edge);
        const CRect letters = Extent(push.Drawn(), Text, CRect(3, 3, 197, 97));
        EXPECT_EQ(letters & room, letters);
        // But for what the font leaves round its letters.
        const auto expectAt = [](int place, int before, int after) {
            EXPECT_NEAR(place == 0 ? before - after : place < 0 ? before : after, 0, 8);
        };
        expectAt(across, letters.left - room.left, room.right - letters.right);
        expectAt(down, letters.top - room.top, room.bottom - letters.bottom);
        Remove(push);
    }
}
