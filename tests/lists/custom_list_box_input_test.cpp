// Real input on a list box: what own_bars_test.cpp does not say of every list with bars of its own.

#include "lists/list_box_for_tests.h"

namespace {

constexpr auto Second = CFauxScrollBar::PRESSED_SECOND;
constexpr auto AfterThumb = CFauxScrollBar::PRESSED_AFTER_THUMB;
constexpr auto Thumb = CFauxScrollBar::PRESSED_THUMB;

} // namespace

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

TEST_F(ListBoxOnBoard, AHeldArrowRepeatsAlsoWithThePointerElsewhere)
{
    auto& list = AddList(500);
    MoveTo(list.PartPoint(Second));
    Press();
    MoveTo(ClientPoint(Host(), CPoint(600, 500)));
    ASSERT_TRUE(PumpUntil([&] { return list.GetTopIndex() >= 3; }));
    Release();
    PumpFor(160);
    const int released = list.GetTopIndex();
    PumpFor(300);
    EXPECT_EQ(list.GetTopIndex(), released);
    EXPECT_FALSE(list.m_tracking);
    // The least turn of a wheel is a row.
    MoveTo(ClientPoint(list, CPoint(20, 20)));
    Wheel(1);
    EXPECT_EQ(list.GetTopIndex(), released - 1);
}

TEST_F(ListBoxOnBoard, AnotherOnBoardModeEndsAPress)
{
    auto& list = AddList(500);
    MoveTo(list.PartPoint(Second));
    Press();
    SetMode(EFB, list);
    EXPECT_FALSE(list.m_tracking);
    PumpFor(200);
    EXPECT_EQ(list.GetTopIndex(), 1);
    Release();
}

TEST_F(ListBoxOnBoard, WithoutABarTheRowsAreThePlatformsToScroll)
{
    auto& columns = AddList(200, ColumnsStyle);
    columns.SetColumnWidth(120);
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

TEST_F(ListBoxOnBoard, KeysMoveSelectionRowsAndBarTogether)
{
    auto& list = AddList(200);
    list.SetFocus();
    list.SetCurSel(0);
    const struct
    {
        UINT key;
        int top;
    } table[] = {{VK_DOWN, 1}, {VK_DOWN, 2}, {VK_UP, 0}};
    for (const auto& step : table)
    {
        TypeKey(step.key);
        EXPECT_EQ(list.GetTopIndex(), step.top) << step.key;
        EXPECT_EQ(list.m_vBar.GetScrollPos(), step.top) << step.key;
    }
    TypeKey(VK_NEXT);
    EXPECT_GE(list.GetTopIndex(), list.VisibleRows() - 1);
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

// Lists that end --------------------------------------------------------------------------------

namespace {

// Does something on its next scroll message, as a host's own list might.
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
            auto& list = AddList<ListThatActs>(300);
            list.act = [&] { destroy ? void(list.DestroyWindow()) : list.ResetContent(); };
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
    for (const bool byKey : {true, false})
    {
        auto& list = AddList(300);
        list.SetFocus();
        const OnceTold end(Host(), LBN_SELCHANGE, [&] { list.DestroyWindow(); });
        byKey ? TypeKey(VK_DOWN) : Click(ClientPoint(list, CPoint(30, 30)));
        EXPECT_EQ(list.GetSafeHwnd(), nullptr) << byKey;
    }
}
