// Real presses, holds, drags and turns on the bars that lists draw themselves: what the list box
// and the report list have in common.

#include "listctrl/list_for_tests.h"
#include "lists/list_box_for_tests.h"

namespace {

constexpr auto First = CFauxScrollBar::PRESSED_FIRST;
constexpr auto Second = CFauxScrollBar::PRESSED_SECOND;
constexpr auto BeforeThumb = CFauxScrollBar::PRESSED_BEFORE_THUMB;
constexpr auto AfterThumb = CFauxScrollBar::PRESSED_AFTER_THUMB;
constexpr auto Thumb = CFauxScrollBar::PRESSED_THUMB;

struct Names
{
    template <class List> static std::string GetName(int)
    {
        return std::is_same_v<List, ListForTests> ? "ReportList" : "ListBox";
    }
};

} // namespace

template <class List> class OwnBars : public OnBoard<WindowTest>
{
protected:
    const CPoint Away{700, 580}; // on the host, in screen coordinates

    List& AddList(int rows = 500)
    {
        auto& list = Add<List>(CRect(20, 20, 420, 420), List::BothBarsStyle);
        list.ModifyStyleEx(0, WS_EX_CLIENTEDGE, SWP_FRAMECHANGED);
        list.FillBothWays(rows);
        PumpAll();
        return list;
    }

    static void PressOn(List& list, CFauxScrollBar::ePRESSED part)
    {
        MoveTo(list.PartPoint(part));
        Press();
    }
};

using Lists = testing::Types<ListBoxForTests, ListForTests>;
TYPED_TEST_SUITE(OwnBars, Lists, Names);

TYPED_TEST(OwnBars, ArrowsTroughsAndWheelScrollInEveryOnBoardMode)
{
    for (const APPMODE mode : {FULLSCREEN, ONBOARD, EFB, EFBFS})
    {
        SCOPED_TRACE(APPMODE_NAMES[mode]);
        const ModeScope scope(mode);
        auto& list = this->AddList();
        const int page = list.Bar(SB_VERT).GetPageSize();
        EXPECT_GT(page, 3);
        const struct
        {
            CFauxScrollBar::ePRESSED part;
            int top;
        } clicks[] = {{Second, 1}, // the next one is fast enough to be a double click
                      {Second, 2},
                      {First, 1},
                      {AfterThumb, 1 + page},
                      {BeforeThumb, 1}};
        for (const auto& click : clicks)
        {
            Click(list.PartPoint(click.part));
            EXPECT_EQ(list.TopRow(), click.top) << click.part;
        }
        Wheel(-WHEEL_DELTA * 5);
        EXPECT_EQ(list.TopRow(), 2) << "a turn of any size is one row";
        Wheel(WHEEL_DELTA);
        EXPECT_EQ(list.TopRow(), 1);
        Click(list.PartPoint(Second, SB_HORZ));
        EXPECT_EQ(list.Bar(SB_HORZ).GetScrollPos(), 1);
        Click(list.PartPoint(First, SB_HORZ));
        EXPECT_EQ(list.Bar(SB_HORZ).GetScrollPos(), 0);
        this->Remove(list);
    }
}

TYPED_TEST(OwnBars, AHeldArrowWaitsThenRepeatsToTheEndAndATroughDoesNot)
{
    auto& list = this->AddList(40);
    this->PressOn(list, Second);
    EXPECT_EQ(list.TopRow(), 1);
    PumpFor(TypeParam::SureWait);
    EXPECT_EQ(list.TopRow(), 1) << "not before its time";
    const int end = list.LastTopRow();
    ASSERT_TRUE(PumpUntil([&] { return list.TopRow() == end; }, 6000));
    PumpFor(300);
    EXPECT_EQ(list.TopRow(), end);
    Release();
    PumpFor(200);
    EXPECT_FALSE(list.IsBarPressed());
    MessageLog log(list, {WM_TIMER});
    PumpFor(300);
    EXPECT_EQ(log.Count(WM_TIMER), 0);
    // Sideways too; and a held trough pages once.
    MoveTo(list.PartPoint(Second, SB_HORZ));
    Press();
    EXPECT_TRUE(PumpUntil([&] { return list.Bar(SB_HORZ).GetScrollPos() >= 3; }));
    Release();
    list.SendMessage(WM_VSCROLL, SB_TOP);
    this->PressOn(list, AfterThumb);
    PumpFor(450);
    EXPECT_EQ(list.TopRow(), std::min(end, list.Bar(SB_VERT).GetPageSize()));
    Release();
}

TYPED_TEST(OwnBars, AThumbIsDraggedRelativelyAndFromEndToEnd)
{
    auto& list = this->AddList();
    const CFauxScrollBar& down = list.Bar(SB_VERT);
    const CPoint grip = list.PartPoint(Thumb) + CPoint(0, 9); // off its middle
    MoveTo(grip);
    Press();
    EXPECT_EQ(list.TopRow(), 0) << "the press alone moves nothing";
    DragTo(grip + CPoint(0, 40));
    EXPECT_NEAR(list.TopRow(), 40 / down.GetPixelsPerScroll(), 2);
    DragTo(grip + CPoint(0, 1)); // a drag back goes back
    EXPECT_NEAR(list.TopRow(), 1 / down.GetPixelsPerScroll(), 2);
    const CRect track = down.GetArea();
    DragTo(WindowPoint(list, CPoint(track.CenterPoint().x, track.bottom - 5)), 10);
    const int end = list.TopRow();
    EXPECT_NEAR(end, list.LastTopRow(), 1);
    Release();
    EXPECT_FALSE(list.IsBarPressed());
    DragTo(grip, 3); // no button: no drag
    EXPECT_EQ(list.TopRow(), end);
    Drag(list.PartPoint(Thumb), WindowPoint(list, CPoint(track.CenterPoint().x, track.top + 2)));
    EXPECT_EQ(list.TopRow(), 0);

    const CFauxScrollBar& across = list.Bar(SB_HORZ);
    const CRect area = across.GetArea();
    for (const int steps : {20, 1})
    {
        Drag(list.PartPoint(Thumb, SB_HORZ),
             WindowPoint(list, CPoint(area.right - 3, area.CenterPoint().y)), steps);
        EXPECT_EQ(across.GetScrollPos(), RangeOf(across).y) << steps;
        EXPECT_EQ(across.GetPartArea(Thumb).right, across.GetPartArea(Second).left);
        Drag(list.PartPoint(Thumb, SB_HORZ), WindowPoint(list, CPoint(3, area.CenterPoint().y)));
        EXPECT_EQ(across.GetScrollPos(), 0) << steps;
    }
}

TYPED_TEST(OwnBars, APressThatLeavesTheBandEnds)
{
    auto& list = this->AddList();
    for (const auto part : {Thumb, AfterThumb})
    {
        SCOPED_TRACE(part);
        this->PressOn(list, part);
        ASSERT_TRUE(list.IsBarPressed());
        DragTo(list.PartPoint(Thumb) + CPoint(0, 30));
        const int reached = list.TopRow();
        EXPECT_GT(reached, 0);
        MoveTo(this->Away);
        ASSERT_TRUE(PumpUntil([&] { return !list.IsBarPressed(); }));
        DragTo(list.PartPoint(Thumb) + CPoint(0, 60));
        EXPECT_EQ(list.TopRow(), reached);
        Release();
    }
}

TYPED_TEST(OwnBars, WhateverCutsAPressOffEndsIt)
{
    const Act<TypeParam&> cuts[] = {
        {"disabled", [](TypeParam& list) { list.EnableWindow(FALSE); }},
        {"hidden", [](TypeParam& list) { list.ShowWindow(SW_HIDE); }},
        {"cancelled", [](TypeParam& list) { list.SendMessage(WM_CANCELMODE); }},
        {"standard mode", [](TypeParam& list) { SetMode(STD, list); }}};
    for (const auto part : {Second, Thumb})
    {
        for (const auto& row : cuts)
        {
            SCOPED_TRACE(row.name);
            auto& list = this->AddList();
            this->PressOn(list, part);
            ASSERT_TRUE(list.IsBarPressed());
            row.act(list);
            EXPECT_FALSE(list.IsBarPressed());
            const int top = list.TopRow();
            MessageLog log(list, {WM_TIMER});
            MoveTo(list.PartPoint(part) + CPoint(0, 25));
            PumpFor(350);
            EXPECT_EQ(log.Count(WM_TIMER), 0);
            EXPECT_EQ(list.TopRow(), top);
            Release();
            COnBoardUIGeneral::SetAppMode(ONBOARD);
            this->Remove(list);
        }
    }
}
