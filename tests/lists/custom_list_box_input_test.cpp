// Real presses, holds, drags, turns and keys on a list box's own bars.

#include "lists/list_box_for_tests.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

constexpr auto First = CFauxScrollBar::PRESSED_FIRST;
constexpr auto Second = CFauxScrollBar::PRESSED_SECOND;
constexpr auto BeforeThumb = CFauxScrollBar::PRESSED_BEFORE_THUMB;
constexpr auto AfterThumb = CFauxScrollBar::PRESSED_AFTER_THUMB;
constexpr auto Thumb = CFauxScrollBar::PRESSED_THUMB;
constexpr auto None = CFauxScrollBar::PRESSED_NONE;

} // namespace

TEST_F(ListBoxTest, EveryOnBoardModeScrollsByPointerAndWheel)
{
    for (const APPMODE mode : {FULLSCREEN, ONBOARD, EFB, EFBFS})
    {
        const ModeScope scope(mode);
        auto& list = AddList(500);
        Click(list.PartPoint(Second));
        EXPECT_EQ(list.GetTopIndex(), 1) << APPMODE_NAMES[mode];
        Click(list.PartPoint(Second)); // fast enough to be a double click
        EXPECT_EQ(list.GetTopIndex(), 2);
        Click(list.PartPoint(First));
        EXPECT_EQ(list.GetTopIndex(), 1);
        Wheel(-WHEEL_DELTA * 5);
        EXPECT_EQ(list.GetTopIndex(), 2) << "a turn of any size is one line";
        Wheel(1);
        EXPECT_EQ(list.GetTopIndex(), 1);
        Click(list.PartPoint(AfterThumb));
        EXPECT_EQ(list.GetTopIndex(), list.VisibleRows());
        Click(list.PartPoint(BeforeThumb));
        EXPECT_EQ(list.GetTopIndex(), 1);
        Remove(list);
    }
}

TEST_F(ListBoxTest, InTheStandardModeThePointerWorksThePlatformsBar)
{
    auto& list = AddList(500);
    const CRect window = WindowRectOf(list);
    QueueClick(CPoint(window.right - 8, window.bottom - 8)); // its bar runs a loop of its own
    EXPECT_EQ(list.GetTopIndex(), 1);
    MoveTo(ClientPoint(list, CPoint(20, 20)));
    Wheel(-WHEEL_DELTA);
    EXPECT_GT(list.GetTopIndex(), 1);
}

TEST_F(ListBoxOnBoard, AHeldArrowRepeatsUntilItIsReleasedAnywhere)
{
    auto& list = AddList(500);
    MessageLog log(list, {WM_VSCROLL});
    MoveTo(list.PartPoint(Second));
    Press();
    EXPECT_THAT(log.WParams(WM_VSCROLL), ElementsAre(SB_LINEDOWN));
    EXPECT_EQ(list.m_vPressed, Second);
    // Not before its time, then again and again, also with the pointer elsewhere.
    PumpFor(80);
    EXPECT_EQ(log.Count(WM_VSCROLL), 1);
    ASSERT_TRUE(PumpUntil([&] { return log.Count(WM_VSCROLL) >= 3; }));
    MoveTo(ClientPoint(Host(), CPoint(600, 500)));
    const int away = log.Count(WM_VSCROLL);
    ASSERT_TRUE(PumpUntil([&] { return log.Count(WM_VSCROLL) >= away + 2; }));
    Release();
    PumpFor(160);
    const int released = log.Count(WM_VSCROLL);
    PumpFor(300);
    EXPECT_EQ(log.Count(WM_VSCROLL), released);
    EXPECT_FALSE(list.m_tracking);
    EXPECT_EQ(list.GetTopIndex(), released);
}

TEST_F(ListBoxOnBoard, AHeldTroughPagesOnce)
{
    auto& list = AddList(500);
    MessageLog log(list, {WM_VSCROLL});
    MoveTo(list.PartPoint(AfterThumb));
    Press();
    PumpFor(400);
    EXPECT_THAT(log.WParams(WM_VSCROLL), ElementsAre(SB_PAGEDOWN));
    Release();
}

TEST_F(ListBoxOnBoard, ATroughReleasedElsewhereIsNotHeldForEver)
{
    auto& list = AddList(500);
    MoveTo(list.PartPoint(AfterThumb));
    Press();
    EXPECT_EQ(list.m_vPressed, AfterThumb);
    MoveTo(ClientPoint(Host(), CPoint(700, 400)));
    ASSERT_TRUE(PumpUntil([&] { return !list.m_tracking; }));
    Release();
    // The same when a derived list waits longer before the first repeat, and no press goes on.
    MessageLog log(list, {WM_TIMER});
    list.SetTimer(CCustomListBox::m_timerInitialWaitID, 20, nullptr);
    Press();
    ASSERT_TRUE(PumpUntil([&] { return log.Count(WM_TIMER) > 0; }));
    Release();
    log.Clear();
    PumpFor(300);
    EXPECT_EQ(log.Count(WM_TIMER), 0);
}

TEST_F(ListBoxOnBoard, WithoutABarTheRowsAreThePlatformsToScroll)
{
    auto& columns = AddList(200, LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | LBS_MULTICOLUMN | WS_HSCROLL);
    columns.SetColumnWidth(120);
    columns.ReCheckScrollBars();
    EXPECT_FALSE(columns.m_vBarNeeded);
    ASSERT_TRUE(columns.m_hBarNeeded);
    Click(columns.PartPoint(Second, SB_HORZ));
    const int rows = columns.GetTopIndex();
    EXPECT_GT(rows, 1); // a whole column
    EXPECT_EQ(columns.m_hBar.GetScrollPos(), 1);
    columns.SetCurSel(2 * rows + 1);
    columns.SetFocus();
    TypeKey(VK_DOWN);
    EXPECT_EQ(columns.GetCurSel(), 2 * rows + 2);
    EXPECT_EQ(columns.GetTopIndex(), rows);

    // Rows of different heights: the last of them is reached, and the row with the focus is seen.
    auto& heights = AddList(60, ListStyle | LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS);
    for (int row = 1; row < 60; ++row)
    {
        heights.SetItemHeight(row, 60);
    }
    heights.ReCheckScrollBars();
    heights.SetFocus();
    heights.SetCurSel(0);
    for (int turn = 0; turn < 59; ++turn)
    {
        TypeKey(VK_DOWN);
        CRect row;
        heights.GetItemRect(heights.GetCaretIndex(), &row);
        ASSERT_LE(row.bottom, ClientRectOf(heights).bottom) << turn;
        ASSERT_GE(row.top, 0) << turn;
    }
    EXPECT_EQ(heights.GetCaretIndex(), 59);
}

TEST_F(ListBoxOnBoard, ThumbDragIsRelativeAndReachesBothEnds)
{
    auto& list = AddList(500);
    const CPoint grip = list.PartPoint(Thumb) + CPoint(0, 9); // off its middle
    MoveTo(grip);
    Press();
    EXPECT_EQ(list.m_vPressed, Thumb);
    EXPECT_EQ(list.GetTopIndex(), 0) << "the press alone moves nothing";
    const int perRow = int(1000 * list.m_vBar.GetPixelsPerScroll());
    DragTo(grip + CPoint(0, 40));
    EXPECT_NEAR(list.GetTopIndex(), 40 * 1000 / perRow, 1);
    EXPECT_EQ(list.m_vBar.GetScrollPos(), list.GetTopIndex());
    DragTo(grip + CPoint(0, 1)); // a drag back goes back
    EXPECT_NEAR(list.GetTopIndex(), 1000 / perRow, 1);
    const CRect track = list.m_vBar.GetArea();
    DragTo(WindowPoint(list, CPoint(track.CenterPoint().x, track.bottom - 5)), 10);
    EXPECT_EQ(list.GetTopIndex(), 500 - list.VisibleRows());
    Release();
    EXPECT_FALSE(list.m_tracking);
    EXPECT_EQ(list.m_vPressed, None);
    const int end = list.GetTopIndex();
    DragTo(grip, 3); // no button: no drag
    EXPECT_EQ(list.GetTopIndex(), end);
}

TEST_F(ListBoxOnBoard, ADragThatLeavesTheNonClientAreaEnds)
{
    auto& list = AddList(500);
    const CPoint grip = list.PartPoint(Thumb);
    MoveTo(grip);
    Press();
    DragTo(grip + CPoint(0, 30));
    const int reached = list.GetTopIndex();
    EXPECT_GT(reached, 0);
    MoveTo(ClientPoint(Host(), CPoint(700, 400)));
    ASSERT_TRUE(PumpUntil([&] { return !list.m_tracking; }));
    DragTo(grip + CPoint(0, 60));
    EXPECT_EQ(list.GetTopIndex(), reached);
    Release();
}

TEST_F(ListBoxOnBoard, ASidewaysDragReachesTheLastPixel)
{
    auto& list = AddList(3, ListStyle | WS_HSCROLL);
    list.AddString("A row that is a good deal wider than the window that is to show it, by far");
    PumpAll();
    const CPoint grip = list.PartPoint(Thumb, SB_HORZ);
    const CRect area = list.m_hBar.GetArea();
    for (const int steps : {20, 1})
    {
        Drag(list.PartPoint(Thumb, SB_HORZ),
             WindowPoint(list, CPoint(area.right - 3, area.CenterPoint().y)), steps);
        int minimum = 0;
        int maximum = 0;
        list.m_hBar.GetScrollRange(&minimum, &maximum);
        EXPECT_EQ(list.m_hBar.GetScrollPos(), maximum) << steps;
        EXPECT_EQ(list.m_hBar.GetPartArea(Thumb).right, list.m_hBar.GetPartArea(Second).left);
        Drag(list.PartPoint(Thumb, SB_HORZ), WindowPoint(list, CPoint(3, area.CenterPoint().y)), 5);
        EXPECT_EQ(list.m_hBar.GetScrollPos(), 0);
    }
    Click(list.PartPoint(Second, SB_HORZ));
    EXPECT_EQ(list.m_hBar.GetScrollPos(), 1);
    EXPECT_NE(list.PartPoint(Thumb, SB_HORZ), grip);
}

TEST_F(ListBoxOnBoard, KeysMoveSelectionRowsAndBarTogether)
{
    auto& list = AddList(200);
    list.SetFocus();
    list.SetCurSel(0);
    const int page = list.VisibleRows() - 1;
    struct
    {
        UINT key;
        int top;
    } const table[] = {{VK_DOWN, 1}, {VK_DOWN, 2}, {VK_UP, 0}};
    for (const auto& step : table)
    {
        TypeKey(step.key);
        EXPECT_EQ(list.GetTopIndex(), step.top) << step.key;
        EXPECT_EQ(list.m_vBar.GetScrollPos(), step.top) << step.key;
    }
    TypeKey(VK_NEXT);
    EXPECT_GE(list.GetTopIndex(), page);
    // Whatever was scrolled by other means, the row with the focus is in sight after a key.
    list.SetTopIndex(150);
    for (const UINT key : {VK_DOWN, VK_END, VK_UP, VK_HOME, VK_NEXT, VK_NEXT, VK_PRIOR})
    {
        TypeKey(key);
        CRect row;
        list.GetItemRect(list.GetCaretIndex(), &row);
        EXPECT_GE(list.GetCaretIndex(), list.GetTopIndex()) << key;
        EXPECT_LT(row.top, ClientRectOf(list).bottom) << key;
        EXPECT_EQ(list.m_vBar.GetScrollPos(), list.GetTopIndex()) << key;
    }
}

TEST_F(ListBoxOnBoard, TheBarFollowsASelectionDraggedPastTheEdge)
{
    auto& list = AddList(200);
    MoveTo(ClientPoint(list, CPoint(30, 100)));
    Press();
    MoveTo(ClientPoint(list, CPoint(30, 330)));
    EXPECT_TRUE(PumpUntil([&] { return list.GetTopIndex() > 3; }));
    PumpAll();
    EXPECT_EQ(list.m_vBar.GetScrollPos(), list.GetTopIndex());
    Release();
}

// What cuts a press off ---------------------------------------------------------------------------

TEST_F(ListBoxOnBoard, WhateverCutsAPressOffEndsIt)
{
    struct
    {
        const char* name;
        void (*cut)(ListBoxForTests&);
    } const table[] = {
        {"disabled", [](ListBoxForTests& list) { list.EnableWindow(FALSE); }},
        {"hidden", [](ListBoxForTests& list) { list.ShowWindow(SW_HIDE); }},
        {"cancelled", [](ListBoxForTests& list) { list.SendMessage(WM_CANCELMODE); }},
        {"mode", [](ListBoxForTests& list) { SetMode(STD, list); }},
        {"another on-board mode", [](ListBoxForTests& list) { SetMode(EFB, list); }}};
    for (const auto part : {Second, Thumb})
    {
        for (const auto& row : table)
        {
            auto& list = AddList(500);
            MoveTo(list.PartPoint(part));
            Press();
            ASSERT_TRUE(list.m_tracking) << row.name;
            row.cut(list);
            EXPECT_FALSE(list.m_tracking) << row.name;
            MessageLog log(list, {WM_VSCROLL, WM_TIMER});
            MoveTo(list.PartPoint(part) + CPoint(0, 25));
            PumpFor(200);
            EXPECT_EQ(log.All().size(), 0U) << row.name;
            Release();
            COnBoardUIGeneral::SetAppMode(ONBOARD);
            Remove(list);
        }
    }
}

namespace {

// Does something on its nth scroll message, as a host's own list might.
class ListThatActs : public ListBoxForTests
{
public:
    std::function<void()> act;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT result = ListBoxForTests::WindowProc(message, wParam, lParam);
        if (message == WM_VSCROLL && act)
        {
            std::exchange(act, nullptr)();
        }
        return result;
    }
};

} // namespace

TEST_F(ListBoxOnBoard, AListMayBeEmptiedOrDestroyedWhileItIsWorked)
{
    for (const auto part : {Second, AfterThumb, Thumb})
    {
        for (const bool destroy : {true, false})
        {
            auto& list = Add<ListThatActs>(CRect(20, 20, 320, 320), ListStyle);
            list.Fill(300);
            PumpAll();
            list.act = [&] {
                if (destroy)
                {
                    list.DestroyWindow();
                }
                else
                {
                    list.ResetContent();
                }
            };
            MoveTo(list.PartPoint(part));
            Press();
            MoveTo(ClientPoint(Host(), CPoint(300 - 6, 120)));
            PumpUntil([&] { return !list.act; }, 500);
            EXPECT_FALSE(list.act) << part;
            PumpFor(150);
            Release();
            EXPECT_EQ(list.GetSafeHwnd() == nullptr, destroy);
            Remove(list);
        }
    }
}

TEST_F(ListBoxOnBoard, AParentMayDestroyTheListInItsNotification)
{
    auto& list = AddList(300);
    list.SetFocus();
    Host().hook = [&](ToldMessage& told) {
        if (told.code == LBN_SELCHANGE)
        {
            list.DestroyWindow();
        }
    };
    TypeKey(VK_DOWN);
    EXPECT_EQ(list.GetSafeHwnd(), nullptr);

    auto& second = AddList(300);
    Host().hook = [&](ToldMessage& told) {
        if (told.code == LBN_SELCHANGE)
        {
            second.DestroyWindow();
        }
    };
    Click(ClientPoint(second, CPoint(30, 30)));
    EXPECT_EQ(second.GetSafeHwnd(), nullptr);
    Host().hook = nullptr;
}
