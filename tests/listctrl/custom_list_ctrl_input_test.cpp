// Real input on a report list: what lists/own_bars_test.cpp does not say of every list with bars of
// its own.

#include "listctrl/list_for_tests.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

constexpr auto Second = CFauxScrollBar::PRESSED_SECOND;

} // namespace

TEST_F(ListCtrlOnBoard, TheWheelCountsUpToANotchAndAnArrowGoesATenthSideways)
{
    auto& list = AddList(500, 8);
    MoveTo(ClientPoint(list, list.RowPoint(3)));
    const struct
    {
        int turn;
        int top;
    } turns[] = {{-WHEEL_DELTA, 1}, {-60, 1}, {-60, 2}, {WHEEL_DELTA * 3, 1}};
    for (const auto& step : turns)
    {
        Wheel(step.turn);
        EXPECT_EQ(list.TopRow(), step.top) << step.turn;
    }
    Click(list.PartPoint(Second, SB_HORZ));
    EXPECT_EQ(list.m_drawOffset.x, -(ClientRectOf(list).Width() / 10));
    list.ExpectInStep("one to the right");
    list.PerformVScroll(SB_BOTTOM);
    EXPECT_LE(list.RowPoint(499).y, ClientRectOf(list).bottom) << "the last row is in sight";
    list.ExpectInStep("at the end");
}

TEST_F(ListCtrlOnBoard, WithoutABarNothingScrolls)
{
    auto& list = AddList(100, 8);
    list.PerformVScroll(SB_BOTTOM);
    list.PerformHScroll(SB_RIGHT);
    while (list.GetItemCount() > 3)
    {
        list.DeleteItem(0);
    }
    while (list.m_header.GetItemCount() > 2)
    {
        list.DeleteColumn(2);
    }
    ASSERT_FALSE(list.m_vBar.ShowScrollBar());
    ASSERT_FALSE(list.m_hBar.ShowScrollBar());
    MoveTo(ClientPoint(list, list.RowPoint(0)));
    Wheel(-WHEEL_DELTA);
    for (const WPARAM code : {SB_LINEDOWN, SB_PAGEDOWN, SB_BOTTOM})
    {
        list.SendMessage(WM_VSCROLL, code);
        list.SendMessage(WM_HSCROLL, code);
    }
    EXPECT_EQ(list.m_drawOffset, CPoint(0, 0));
    list.ExpectInStep("bars gone");
}

TEST_F(ListCtrlOnBoard, AnArrowLetGoElsewhereIsForgotten)
{
    // No message tells of the pointer's leaving, as it need not without having been asked for.
    struct Untold : ListForTests
    {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            return message == WM_NCMOUSELEAVE ? 0
                                              : ListForTests::WindowProc(message, wParam, lParam);
        }
    };
    auto& list = AddList<Untold>(100);
    MoveTo(list.PartPoint(Second));
    Press();
    EXPECT_TRUE(list.m_pressed);
    MoveTo(ClientPoint(Host(), CPoint(700, 500)));
    Release();
    EXPECT_TRUE(PumpUntil([&] { return !list.m_pressed; }));
    EXPECT_EQ(list.TopRow(), 1);
}

TEST_F(ListCtrlOnBoard, AnHeirDecidesWhatPressesAndHoldsDo)
{
    struct Heir : ListForTests
    {
        void PerformVScroll(int) override { ++steps; }
        int steps = 0;
    };
    auto& list = AddList<Heir>(100);
    MoveTo(list.PartPoint(Second));
    Press();
    EXPECT_EQ(list.steps, 1);
    EXPECT_TRUE(PumpUntil([&] { return list.steps > 1; })) << "held";
    Release();
    EXPECT_EQ(list.m_drawOffset.y, 0);
}

// Keys -------------------------------------------------------------------------------------------

TEST_F(ListCtrlOnBoard, KeysMoveTheFocusAndTheFocusedRowIsInSight)
{
    auto& list = AddList(300);
    list.SetFocus();
    list.SetItemState(0, 3, 3);
    const auto expectFocus = [&](int row, UINT key) {
        EXPECT_EQ(list.Focused(), row) << key;
        EXPECT_GE(row, list.TopRow()) << key;
        EXPECT_LE(list.RowPoint(row).y + list.RowHeight() / 2, ClientRectOf(list).bottom) << key;
        list.ExpectInStep("key");
    };
    const int rows = (ClientRectOf(list).Height() - list.HeaderRect().bottom) / list.RowHeight();
    struct
    {
        UINT key;
        int focus;
    } const table[] = {{VK_DOWN, 1},
                       {VK_NEXT, rows - 1},
                       {VK_NEXT, 2 * rows - 2},
                       {VK_DOWN, 2 * rows - 1},
                       {VK_PRIOR, rows},
                       {VK_PRIOR, 1},
                       {VK_UP, 0},
                       {VK_END, 299},
                       {VK_NEXT, 299},
                       {VK_UP, 298},
                       {VK_HOME, 0},
                       {VK_PRIOR, 0}};
    for (const auto& step : table)
    {
        TypeKey(step.key);
        expectFocus(step.focus, step.key);
        EXPECT_EQ(list.Selected(), std::set<int>{step.focus}) << step.key;
    }
    // The first letter of a row.
    list.SetItemText(250, 0, "Zulu");
    TypeText("z");
    expectFocus(250, 'z');
    // Whatever was scrolled by other means.
    list.PerformVScroll(SB_TOP);
    TypeKey(VK_DOWN);
    expectFocus(251, VK_DOWN);
}

TEST_F(ListCtrlOnBoard, ShiftAndPagesSelectRanges)
{
    auto& list = AddList(300);
    list.SetFocus();
    list.SetItemState(0, 3, 3);
    list.SetSelectionMark(0);
    TypeKey(VK_NEXT, VK_SHIFT);
    const int page = list.Focused();
    EXPECT_GT(page, 5);
    EXPECT_EQ(int(list.GetSelectedCount()), page + 1);
    TypeKey(VK_NEXT, VK_SHIFT);
    EXPECT_EQ(int(list.GetSelectedCount()), list.Focused() + 1);
    TypeKey(VK_PRIOR, VK_SHIFT);
    TypeKey(VK_PRIOR, VK_SHIFT);
    EXPECT_EQ(list.Selected(), std::set<int>{0});
    TypeKey(VK_NEXT, VK_CONTROL);
    EXPECT_EQ(list.Selected(), std::set<int>{0}) << "with Ctrl only the focus moves";
    EXPECT_EQ(list.Focused(), page);
    // The parent hears of each key once.
    Host().Forget();
    TypeKey(VK_NEXT);
    EXPECT_THAT(Host().CodesFrom(FirstId), testing::Contains(UINT(LVN_KEYDOWN)).Times(1));
}

TEST_F(ListCtrlOnBoard, EnsureVisibleAndScrollMoveTheDrawing)
{
    auto& list = AddList(300, 8);
    EXPECT_TRUE(list.EnsureVisible(200, FALSE));
    list.ExpectInStep("row 200");
    EXPECT_LE(list.RowPoint(200).y, ClientRectOf(list).bottom);
    const int top = list.TopRow();
    EXPECT_TRUE(list.EnsureVisible(top, FALSE));
    EXPECT_EQ(list.TopRow(), top) << "it was in sight";
    EXPECT_FALSE(list.EnsureVisible(300, FALSE));
    EXPECT_FALSE(list.EnsureVisible(-1, FALSE));
    list.Scroll(CSize(list.m_scrollUnit.cx, -2 * list.RowHeight()));
    EXPECT_EQ(list.TopRow(), top - 2);
    EXPECT_EQ(list.m_hBar.GetScrollPos(), 1);
    list.Scroll(CSize(INT_MAX, INT_MAX));
    list.Scroll(CSize(INT_MIN, INT_MIN));
    EXPECT_EQ(list.m_drawOffset, CPoint(0, 0));
    list.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    list.SendMessage(WM_HSCROLL, SB_LINERIGHT);
    EXPECT_EQ(list.TopRow(), 1);
    list.ExpectInStep("messages");
}

// Clicks -----------------------------------------------------------------------------------------

TEST_F(ListCtrlOnBoard, AClickSelectsTheRowThatIsDrawnThere)
{
    auto& list = AddList(100, 3, ReportStyle | LVS_SINGLESEL);
    list.SetExtendedStyle(LVS_EX_FULLROWSELECT);
    list.PerformVScroll(5, 0);
    std::vector<std::pair<int, bool>> told; // rows that were selected, and whether finally
    Host().hook = [&](ToldMessage& message) {
        if (message.code == UINT(LVN_ITEMCHANGED))
        {
            const auto& change = *reinterpret_cast<const NMLISTVIEW*>(message.lParam);
            if ((change.uNewState & LVIS_SELECTED) != 0)
            {
                told.push_back({change.iItem, list.IsSelChanging() == 0});
            }
        }
    };
    Click(ClientPoint(list, list.RowPoint(7)));
    EXPECT_EQ(list.Selected(), std::set<int>{7});
    EXPECT_EQ(list.Focused(), 7);
    EXPECT_THAT(told, ElementsAre(std::pair(2, false), std::pair(7, true)));
    told.clear();
    Click(ClientPoint(list, list.RowPoint(9)));
    EXPECT_EQ(list.Selected(), std::set<int>{9});
    Host().hook = nullptr;
    // The keyboard goes on from there.
    TypeKey(VK_DOWN);
    EXPECT_EQ(list.Selected(), std::set<int>{10});
    Press(); // on row 9 as a double click
    Release();
    list.ExpectInStep("clicks");
    // Below the last row nothing is selected, and the parent is told of a change all the same.
    list.PerformVScroll(SB_BOTTOM);
    Host().Forget();
    Click(ClientPoint(list, CPoint(20, ClientRectOf(list).bottom - 3)));
    EXPECT_EQ(list.GetSelectedCount(), 0U);
    EXPECT_THAT(Host().CodesFrom(FirstId),
                testing::Contains(UINT(LVN_ITEMCHANGED)).Times(testing::Ge(2)));
}

namespace {

// Notes the rows of the clicks that it has let through to its parent.
class ListThatNotes : public ListForTests
{
public:
    std::vector<int> clicked;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        const BOOL taken = ListForTests::OnChildNotify(message, wParam, lParam, result);
        const auto* header = reinterpret_cast<const NMHDR*>(lParam);
        if (!taken && message == WM_NOTIFY &&
            (header->code == UINT(NM_CLICK) || header->code == UINT(NM_DBLCLK) ||
             header->code == UINT(LVN_ITEMACTIVATE)))
        {
            clicked.push_back(reinterpret_cast<const NMITEMACTIVATE*>(header)->iItem);
        }
        return taken;
    }
};

} // namespace

TEST_F(ListCtrlOnBoard, AParentIsToldOfClicksOnTheRowThatIsDrawnThere)
{
    auto& list = AddList<ListThatNotes>(100, 2, ReportStyle | LVS_SINGLESEL);
    list.SetExtendedStyle(LVS_EX_FULLROWSELECT);
    list.PerformVScroll(30, 0);
    Click(ClientPoint(list, list.RowPoint(33)));
    Press();
    Release();
    EXPECT_GE(list.clicked.size(), 3U);
    EXPECT_THAT(list.clicked, testing::Each(33));
    EXPECT_EQ(list.Selected(), std::set<int>{33});
}

TEST_F(ListCtrlOnBoard, ClicksWithCtrlAndShiftKnowTheScrolledRows)
{
    auto& list = AddList(100);
    list.SetExtendedStyle(LVS_EX_FULLROWSELECT);
    list.PerformVScroll(20, 0);
    const struct
    {
        int row;
        UINT held;
        std::set<int> selected;
    } clicks[] = {{22, 0, {22}},
                  {25, MK_SHIFT, {22, 23, 24, 25}},
                  {24, MK_CONTROL, {22, 23, 25}},
                  {28, MK_CONTROL, {22, 23, 25, 28}},
                  {23, 0, {23}}};
    for (const auto& click : clicks)
    {
        const CPoint point = list.RowPoint(click.row);
        MoveTo(ClientPoint(list, point));
        list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON | click.held, MAKELPARAM(point.x, point.y));
        list.SendMessage(WM_LBUTTONUP, click.held, MAKELPARAM(point.x, point.y));
        PumpAll();
        EXPECT_EQ(list.Selected(), click.selected) << click.row;
    }
}

TEST_F(ListCtrlOnBoard, AListWithoutAHeaderScrollsAndIsClicked)
{
    auto& list = AddList(100, 2, ReportStyle | LVS_NOCOLUMNHEADER | LVS_SINGLESEL);
    list.SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES);
    EXPECT_EQ(list.m_header.GetStyle() & WS_VISIBLE, 0U);
    Click(list.PartPoint(Second));
    EXPECT_EQ(list.TopRow(), 1);
    Click(ClientPoint(list, CPoint(20, list.RowHeight() + 3)));
    EXPECT_EQ(list.Selected(), std::set<int>{2});
    list.SetFocus();
    TypeKey(VK_END);
    EXPECT_EQ(list.Focused(), 99);
    CRect client = ClientRectOf(list);
    EXPECT_LE((99 - list.TopRow() + 1) * list.RowHeight(), client.bottom);
    EXPECT_EQ(list.PlatformTop(), 0);
}
