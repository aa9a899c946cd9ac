// Real presses, holds, drags and turns on the bars that controls draw themselves: what the list
// box, the report list and the edit have in common.

#include "edits/edit_for_tests.h"
#include "listctrl/list_for_tests.h"
#include "lists/list_box_for_tests.h"

using namespace parts;

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
};

using Controls = testing::Types<ListBoxForTests, ListForTests, EditForTests>;
TYPED_TEST_SUITE(OwnBars, Controls);

// Those with a bar each way.
template <class List> class TwoOwnBars : public OwnBars<List>
{};

using Lists = testing::Types<ListBoxForTests, ListForTests>;
TYPED_TEST_SUITE(TwoOwnBars, Lists);

TYPED_TEST(TwoOwnBars, FrameBandsAndCornerArePainted)
{
    auto& list = this->AddList();
    const Pixels seen = WindowPixels(list);
    for (const CPoint point : {CPoint(0, 0), CPoint(1, 150), CPoint(150, 399), CPoint(397, 380)})
    {
        EXPECT_EQ(seen.At(point), palette::Outline) << point.x;
    }
    EXPECT_EQ(seen.At(380, 380), TypeParam::Corner);
    // The troughs beside the thumbs, and no pixel of the platform's bar.
    for (const int axis : {SB_VERT, SB_HORZ})
    {
        const CRect area = list.Bar(axis).GetArea();
        EXPECT_EQ(axis == SB_VERT ? area.Width() : area.Height(), 55);
        EXPECT_GT(seen.Count(palette::Trough, area), 1000);
        EXPECT_EQ(seen.Count(::GetSysColor(COLOR_SCROLLBAR), area), 0);
    }
    list.EnableWindow(FALSE);
    EXPECT_LT(Settled(list).Count(palette::Trough, list.Bar(SB_VERT).GetArea()), 1000);
    // A frame that changes together with a platform's bar is calculated.
    const CRect before = ClientRectOf(list);
    list.ModifyStyle(0, WS_VSCROLL, SWP_FRAMECHANGED);
    EXPECT_EQ(ClientRectOf(list), before);
    list.ModifyStyleEx(WS_EX_CLIENTEDGE, 0);
    list.ModifyStyle(0, WS_VSCROLL, SWP_FRAMECHANGED);
    EXPECT_GT(ClientRectOf(list).Width(), before.Width());
    EXPECT_EQ(list.GetStyle() & WS_VSCROLL, 0U);
}

// What a thumb across, its arrows and the wheel do.
TYPED_TEST(TwoOwnBars, ScrollSidewaysAndByTheWheel)
{
    auto& list = this->AddList();
    const CFauxScrollBar& across = list.Bar(SB_HORZ);
    Click(list.PartPoint(Second, SB_HORZ));
    EXPECT_EQ(across.GetScrollPos(), 1);
    Wheel(-WHEEL_DELTA * 5);
    EXPECT_EQ(list.TopRow(), 1) << "a turn of any size is one row";
    Wheel(WHEEL_DELTA);
    EXPECT_EQ(list.TopRow(), 0);
    Click(list.PartPoint(First, SB_HORZ));
    EXPECT_EQ(across.GetScrollPos(), 0);
    Click(list.PartPoint(AfterThumb, SB_HORZ));
    EXPECT_EQ(across.GetScrollPos(), std::min(across.GetPageSize(), int(RangeOf(across).y)));
    Click(list.PartPoint(BeforeThumb, SB_HORZ));
    EXPECT_EQ(across.GetScrollPos(), 0);
    const CRect area = across.GetArea();
    Drag(list.PartPoint(Thumb, SB_HORZ),
         WindowPoint(list, CPoint(area.right - 3, area.CenterPoint().y)), 1);
    EXPECT_EQ(across.GetScrollPos(), RangeOf(across).y);
    Drag(list.PartPoint(Thumb, SB_HORZ), WindowPoint(list, CPoint(3, area.CenterPoint().y)));
    EXPECT_EQ(across.GetScrollPos(), 0);
    Press(list.PartPoint(Second, SB_HORZ));
    EXPECT_TRUE(PumpUntil([&] { return across.GetScrollPos() >= 3; })) << "held";
    Release();
}

TYPED_TEST(OwnBars, ArrowsAndTroughsScrollInEveryOnBoardMode)
{
    for (const APPMODE mode : {FULLSCREEN, ONBOARD, EFB, EFBFS})
    {
        SCOPED_TRACE(APPMODE_NAMES[mode]);
        const ModeScope scope(mode);
        auto& list = this->AddList();
        const int page = list.Bar(SB_VERT).GetPageSize();
        // The second click is fast enough to be a double click.
        for (const auto& [part, top] : {std::pair(Second, 1),
                                        {Second, 2},
                                        {First, 1},
                                        {AfterThumb, 1 + page},
                                        {BeforeThumb, 1}})
        {
            Click(list.PartPoint(part));
            EXPECT_EQ(list.TopRow(), top) << part;
        }
        this->Remove(list);
    }
}

TYPED_TEST(OwnBars, AHeldArrowWaitsThenRepeatsToTheEndAndATroughDoesNot)
{
    auto& list = this->AddList(40);
    const ULONGLONG start = ::GetTickCount64();
    Press(list.PartPoint(Second));
    if (TypeParam::HoldsElsewhere)
    {
        MoveTo(this->Away);
    }
    ASSERT_TRUE(PumpUntil([&] { return list.TopRow() > 1; }));
    EXPECT_GE(::GetTickCount64() - start, ULONGLONG(TypeParam::SureWait)) << "not before its time";
    const int end = list.LastTopRow();
    ASSERT_TRUE(PumpUntil([&] { return list.TopRow() == end; }));
    PumpFor(300);
    EXPECT_EQ(list.TopRow(), end);
    Release();
    PumpFor(200);
    EXPECT_FALSE(list.IsBarPressed());
    list.SendMessage(WM_VSCROLL, SB_TOP);
    Press(list.PartPoint(AfterThumb));
    PumpFor(450);
    EXPECT_EQ(list.TopRow(), std::min(end, list.Bar(SB_VERT).GetPageSize()));
    Release();
}

TYPED_TEST(OwnBars, AThumbIsDraggedRelativelyAndFromEndToEnd)
{
    auto& list = this->AddList();
    const CFauxScrollBar& down = list.Bar(SB_VERT);
    const CPoint grip = list.PartPoint(Thumb) + CPoint(0, 9); // off its middle
    Press(grip);
    EXPECT_EQ(list.TopRow(), 0) << "the press alone moves nothing";
    DragTo(grip + CPoint(0, 40));
    EXPECT_NEAR(list.TopRow(), 40 / down.GetPixelsPerScroll(), 2);
    DragTo(grip + CPoint(0, 1)); // a drag back goes back
    EXPECT_NEAR(list.TopRow(), 1 / down.GetPixelsPerScroll(), 2);
    const CRect track = down.GetArea();
    DragTo(WindowPoint(list, CPoint(track.CenterPoint().x, track.bottom - 5)), 10);
    EXPECT_NEAR(list.TopRow(), list.LastTopRow(), 1);
    Release();
    EXPECT_FALSE(list.IsBarPressed());
    Drag(list.PartPoint(Thumb), WindowPoint(list, CPoint(track.CenterPoint().x, track.top + 2)));
    EXPECT_EQ(list.TopRow(), 0);
}

TYPED_TEST(OwnBars, WhateverCutsAPressOffEndsIt)
{
    const Act<TypeParam&> cuts[] = {
        {"disabled", [](TypeParam& list) { list.EnableWindow(FALSE); }},
        {"hidden", [](TypeParam& list) { list.ShowWindow(SW_HIDE); }},
        {"cancelled", [](TypeParam& list) { list.SendMessage(WM_CANCELMODE); }},
        {"standard mode", [](TypeParam& list) { SetMode(STD, list); }},
        {"another mode", [](TypeParam& list) { SetMode(EFB, list); }},
        {"pointer away", [this](TypeParam& list) {
             MoveTo(this->Away);
             PumpUntil([&] { return !list.IsBarPressed(); });
         }}};
    for (const auto part : {Second, AfterThumb, Thumb})
    {
        for (const auto& row : cuts)
        {
            if (part == Second && row.name == std::string("pointer away"))
            {
                continue; // the arrows of some go on
            }
            SCOPED_TRACE(row.name);
            auto& list = this->AddList();
            Press(list.PartPoint(part));
            DragTo(list.PartPoint(part) + CPoint(0, 5));
            ASSERT_TRUE(list.IsBarPressed());
            row.act(list);
            EXPECT_FALSE(list.IsBarPressed());
            const int top = list.TopRow();
            MessageLog log(list, {WM_TIMER});
            MoveTo(list.PartPoint(part) + CPoint(0, 25));
            PumpFor(200);
            EXPECT_EQ(log.Count(WM_TIMER), 0);
            EXPECT_EQ(list.TopRow(), top);
            Release();
            COnBoardUIGeneral::SetAppMode(ONBOARD);
            this->Remove(list);
        }
    }
}
