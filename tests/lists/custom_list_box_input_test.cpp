// Real input on a list box: what own_bars_test.cpp does not say of every list with bars of its own.

#include "CustomChecklistBox.h"
#include "lists/list_box_for_tests.h"
#include "support/ChildModes.h"

using namespace parts;

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
    MoveTo(ClientPoint(columns, CPoint(30, 100)));
    for (const int turn : {-WHEEL_DELTA * 3, WHEEL_DELTA})
    {
        Wheel(turn);
        EXPECT_EQ(columns.GetTopIndex(), turn < 0 ? 2 * rows : rows);
    }
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
        const CRect row = ItemRectOf(heights, heights.GetCaretIndex());
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
    for (const int top : {1, 2})
    {
        TypeKey(VK_DOWN);
        EXPECT_EQ(list.GetTopIndex(), top);
    }
    // Whatever was scrolled by other means, the row with the focus is in sight after a key.
    list.SetTopIndex(150);
    for (const UINT key : {VK_UP, VK_DOWN, VK_END, VK_UP, VK_HOME, VK_NEXT, VK_NEXT, VK_PRIOR})
    {
        TypeKey(key);
        EXPECT_GE(list.GetCaretIndex(), list.GetTopIndex()) << key;
        EXPECT_LT(ItemRectOf(list, list.GetCaretIndex()).top, ClientRectOf(list).bottom) << key;
        EXPECT_EQ(list.m_vBar.GetScrollPos(), list.GetTopIndex()) << key;
    }
    // A key that moves no selection leaves the rows: Ctrl may be held for a press on one.
    list.SetTopIndex(150);
    for (const UINT key : {VK_CONTROL, VK_SHIFT, VK_F5})
    {
        TypeKey(key);
        EXPECT_EQ(list.GetTopIndex(), 150) << key;
    }
}

// One line, and from then on the repeats.
TEST_F(ListBoxOnBoard, ADerivedClassMayStartTheInitialWait)
{
    auto& list = AddList(500);
    Press(list.PartPoint(Second));
    list.KillTimer(CCustomListBox::m_timerid);
    const int top = list.GetTopIndex();
    list.SetTimer(CCustomListBox::m_timerInitialWaitID, 10, nullptr);
    MessageLog log(list, {WM_TIMER});
    ASSERT_TRUE(PumpUntil([&] { return log.Count(WM_TIMER) >= 3; }));
    Release();
    EXPECT_EQ(log.WParams(WM_TIMER), (std::vector<WPARAM>{104, 101, 101}));
    EXPECT_EQ(list.GetTopIndex(), top + 3);
    list.SendMessage(WM_TIMER, CCustomListBox::m_timerInitialWaitID);
    EXPECT_EQ(list.GetTopIndex(), top + 3) << "the button is up";
}

TEST_F(ListBoxTest, ASelectionDraggedPastTheEdgeTakesTheBarAlongAndEndsWithTheMode)
{
    const auto expectEnds = [&](auto& list) {
        for (const APPMODE mode : {ONBOARD, STD})
        {
            Host().Forget();
            list.SetTopIndex(0);
            const CPoint edge = WindowRectOf(list).BottomRight() - CPoint(80, 0);
            Press(edge - CPoint(0, 20));
            MoveTo(edge + CPoint(0, 5));
            EXPECT_TRUE(PumpUntil([&] { return list.GetTopIndex() > 3; }));
            EXPECT_TRUE(mode == ONBOARD || list.m_vBar.GetScrollPos() == list.GetTopIndex());
            const int row = list.GetCurSel();
            SetModeOfChildren(mode, Host());
            DragTo(WindowRectOf(list).CenterPoint());
            Release();
            EXPECT_EQ(list.GetCurSel(), row) << "another one came to lie under the pointer";
            const std::vector<UINT> codes = Host().CodesFrom(UINT(list.GetDlgCtrlID()));
            EXPECT_EQ(std::ranges::count(codes, UINT(LBN_SELCHANGE)), 1);
        }
        Press(ClientPoint(list, CPoint(120, 20)));
        const OnceTold end(Host(), LBN_SELCHANGE, [&] { Remove(list); });
        SetModeOfChildren(ONBOARD, Host());
        EXPECT_TRUE(bool(end));
        Release();
        SetModeOfChildren(STD, Host());
    };
    expectEnds(AddList(100));
    expectEnds(AddList<BarsSeen<CCustomChecklistBox>>(100));
}

// Has messages for itself and passes them on in the framework's way.
class Heir : public ListBoxForTests
{
protected:
    afx_msg void OnSetFocus(CWnd* before) { CListBox::OnSetFocus(before); }
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags)
    {
        CCustomListBox::OnChar(character, repeat, flags);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Heir, ListBoxForTests)
    ON_WM_SETFOCUS()
    ON_WM_CHAR()
END_MESSAGE_MAP()

TEST_F(ListBoxTest, AnHeirMayHaveTheFocusAndTheLettersForItself)
{
    const ModeScope mode(ONBOARD);
    auto& list = AddList<Heir>(100);
    Click(ClientPoint(list, CPoint(30, 2)));
    EXPECT_EQ(list.GetCurSel(), 0);
    list.AddString("Z");
    TypeKey('Z');
    EXPECT_EQ(list.GetCurSel(), 100);
    list.ExpectInStep("a letter");
}

// The platform selects the row that was there before.
TEST_F(ListBoxTest, OnBoardAPressTakesTheFocusAndThenWhatIsUnderIt)
{
    for (const auto& [mode, selected] : {std::pair{STD, 0}, {ONBOARD, 40}})
    {
        const ModeScope scope(mode);
        auto& list = AddList(100);
        const OnceTold scroll(Host(), LBN_SETFOCUS, [&] { list.SetTopIndex(40); });
        Click(ClientPoint(list, CPoint(30, 2)));
        EXPECT_EQ(list.GetCurSel(), selected);
        list.ResetContent();
        list.AddString("suggested");
        auto& field = Add<CEdit>(CRect(600, 500, 700, 520));
        field.SetFocus();
        Host().OnCode(LBN_SETFOCUS, [&](ToldMessage&) { field.SetFocus(); });
        Click(ClientPoint(list, CPoint(90, 2))); // elsewhere: no double click
        EXPECT_EQ(list.GetCurSel(), 0) << "a parent hands the focus on";
        Host().hook = nullptr;
        Remove(field);
        Remove(list);
    }
}
