// Lists whose mode, columns or window changes under their bars.

#include "CustomChecklistBox.h"
#include "lists/list_box_for_tests.h"
#include "support/ChildModes.h"

namespace {

// The pixels that both a list with bars and one without show of the first rows.
Pixels LeftOfRows(CListBox& list)
{
    PumpAll();
    Repaint(list);
    return ScreenPixels(CRect(WindowPoint(list, CPoint(20, 20)), CSize(60, 20)));
}

} // namespace

// Modes -----------------------------------------------------------------------------------------

TEST_F(ListBoxTest, RowsAndHorizontalBarAgreeAfterEveryModeChange)
{
    auto& list = AddList(3, WideListStyle);
    list.AddString("Some row");
    const Pixels standard = LeftOfRows(list);
    SetMode(ONBOARD, list);
    const Pixels onBoard = LeftOfRows(list);
    SetMode(STD, list);
    EXPECT_TRUE(LeftOfRows(list) == standard);

    // Scrolled in the standard mode, where more is to be seen than on-board.
    list.SetHorizontalExtent(600);
    list.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 100));
    SetMode(ONBOARD, list);
    ASSERT_TRUE(list.m_hBarNeeded);
    EXPECT_GT(list.m_hBar.GetScrollPos(), 0);
    EXPECT_FALSE(LeftOfRows(list) == onBoard);
    list.SetHorizontalExtent(0);
    EXPECT_FALSE(list.m_hBarNeeded);
    EXPECT_TRUE(LeftOfRows(list) == onBoard);

    // Scrolled on-board, and nothing to scroll in the standard mode.
    list.AddString(WideText);
    list.ScrollTo(SB_HORZ, 20);
    EXPECT_FALSE(LeftOfRows(list) == onBoard);
    SetMode(STD, list);
    EXPECT_TRUE(LeftOfRows(list) == standard);
    SetMode(EFB, list);
    EXPECT_TRUE(list.m_hBarNeeded);
    EXPECT_EQ(list.m_hBar.GetScrollPos(), 0);
    EXPECT_TRUE(LeftOfRows(list) == onBoard);
    SetMode(STD, list);
}

TEST_F(ListBoxTest, TheRowsInSightStayInSightWhereTheListFollowsTheMode)
{
    constexpr DWORD drawn = LBS_OWNERDRAWFIXED | LBS_HASSTRINGS;
    const auto expectStay = [&](auto& list) {
        list.SetCurSel(39);
        for (const APPMODE mode : {ONBOARD, STD})
        {
            SetModeOfChildren(mode, Host());
            EXPECT_LE(ItemRectOf(list, 39).bottom, ClientRectOf(list).bottom)
                << APPMODE_NAMES[mode];
        }
        list.SetCurSel(0);
        list.SetTopIndex(10);
        for (const APPMODE mode : {ONBOARD, STD})
        {
            SetModeOfChildren(mode, Host());
            EXPECT_EQ(list.GetTopIndex(), 10)
                << APPMODE_NAMES[mode] << ", with the caret elsewhere";
        }
        Remove(list);
    };
    const CRect place(5, 5, 155, 85);
    expectStay(AddList(40, ListStyle, place));
    expectStay(AddList(40, ListStyle | drawn, place));
    expectStay(AddList<BarsSeen<CCustomChecklistBox>>(40, ListStyle | drawn, place));
}

TEST_F(ListBoxTest, ColumnsStayWhereTheyAreAndAreCountedAnew)
{
    auto& list = AddList(400, ColumnsStyle);
    list.SetColumnWidth(80);
    list.SendMessage(WM_HSCROLL, SB_PAGERIGHT);
    for (const APPMODE mode : {STD, ONBOARD, STD, ONBOARD})
    {
        SetMode(mode, list);
        EXPECT_GT(list.GetTopIndex(), 0);
        list.SetColumnWidth(0); // keeps the width that it has
        EXPECT_EQ(ItemRectOf(list, 0).Width(), 80);
    }
    EXPECT_GT(list.m_hBar.GetScrollPos(), 0);
    const CPoint wide = RangeOf(list.m_hBar);
    list.SetColumnWidth(45);
    EXPECT_LT(RangeOf(list.m_hBar).y, wide.y);
    list.SendMessage(WM_HSCROLL, SB_RIGHT);
    list.MoveWindow(20, 20, 1400, 560);
    EXPECT_FALSE(list.m_hBarNeeded);
    EXPECT_EQ(list.GetTopIndex(), 0) << "columns left out of sight";
    SetMode(STD, list);
    for (const int rows : {3, 400}) // also where a dialog gives every list box a bar downwards
    {
        auto& other = AddList(rows, ColumnsStyle);
        const DWORD style = other.GetStyle();
        SetModeOfChildren(ONBOARD, Host());
        SetModeOfChildren(STD, Host());
        EXPECT_EQ(other.GetStyle(), style) << rows;
    }
}

TEST_F(ListBoxOnBoard, ColumnsThatFitWithoutTheBarLoseIt)
{
    auto& list = AddList(0, ColumnsStyle);
    list.SetColumnWidth(80);
    list.Fill(1);
    list.Fill(ClientRectOf(list).Width() / 80 * list.VisibleRows() - 1);
    EXPECT_FALSE(list.m_hBarNeeded);
    list.AddString("One more");
    EXPECT_TRUE(list.m_hBarNeeded);
    list.SendMessage(WM_HSCROLL, SB_RIGHT);
    list.DeleteString(0);
    EXPECT_FALSE(list.m_hBarNeeded);
    EXPECT_EQ(list.GetTopIndex(), 0);
    EXPECT_TRUE(ShowsWhatAPaintWould(list));
    for (const auto& [width, bar] : {std::pair{200, true}, {300, false}})
    {
        list.MoveWindow(20, 20, width, 300);
        EXPECT_EQ(list.m_hBarNeeded, bar) << width;
    }
}

TEST_F(ListBoxOnBoard, TheNextWindowOfAnObjectBeginsAfresh)
{
    ListBoxForTests list;
    const auto create = [&](DWORD style, int rows) {
        const CRect place(20, 20, 320, 320);
        ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | style, place, &Host(), 77));
        list.Fill(rows);
        PumpAll();
    };
    create(WideListStyle, 100);
    list.AddString(WideText);
    ASSERT_TRUE(list.m_hBarNeeded && list.m_vBarNeeded);
    list.ScrollTo(SB_HORZ, 5);
    list.SetRedraw(FALSE);
    list.DestroyWindow();

    // A window made without bars is not given those of the one before.
    COnBoardUIGeneral::SetAppMode(STD);
    create(LBS_NOTIFY | LBS_NOINTEGRALHEIGHT, 100);
    list.AddString(WideText);
    EXPECT_EQ(list.GetStyle() & (WS_VSCROLL | WS_HSCROLL), 0U);
    SetMode(ONBOARD, list);
    EXPECT_FALSE(list.m_hBarNeeded);
    EXPECT_TRUE(list.m_vBarNeeded);
    list.AddString("One more"); // a filling whose end is still on its way
    list.DestroyWindow();

    // Rows are filled in at once again, and the frame is that of an empty list.
    create(WideListStyle, 0);
    EXPECT_FALSE(list.m_vBar.ShowScrollBar() || list.m_hBar.ShowScrollBar());
    MessageLog log(list, {WM_SETREDRAW});
    list.Fill(100);
    PumpAll();
    EXPECT_EQ(log.Count(WM_SETREDRAW), 1) << "the end of the filling";

    // Let go of in the middle of a drag: the next window is not dragged.
    Press(list.PartPoint(parts::Thumb));
    ASSERT_TRUE(list.m_tracking);
    ::DestroyWindow(list.UnsubclassWindow());
    create(ListStyle, 100);
    MoveTo(WindowPoint(list, CPoint(270, 150)));
    DragTo(WindowPoint(list, CPoint(270, 200)), 5);
    EXPECT_EQ(list.GetTopIndex(), 0);
    Release();
}
