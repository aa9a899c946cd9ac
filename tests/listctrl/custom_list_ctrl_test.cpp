// What a report list makes of its content: ranges, and following mode, rows and columns.

#include "listctrl/ListLayout.h"
#include "listctrl/list_for_tests.h"
#include "paint/Palette.h"

TEST(ListLayout, FewAndManyRowsAndWideColumns)
{
    EXPECT_FALSE(listctrl::VerticalBar(0, 20, 206).needed);
    EXPECT_EQ(listctrl::VerticalBar(5, 20, 30).page, 1);
    EXPECT_EQ(listctrl::VerticalBar(INT_MAX, 20, -50).maximum, INT_MAX);
    for (const int width : {0, 1, 7, 100, 123, 999})
    {
        EXPECT_EQ(listctrl::StandardWidth(listctrl::OnBoardWidth(width)), width);
    }
    EXPECT_EQ(listctrl::OnBoardWidth(INT_MAX), SHRT_MAX);
}

// The standard mode ------------------------------------------------------------------------------

TEST_F(ListCtrlTest, AScriptInTheStandardModeGivesWhatThePlatformsListGives)
{
    const auto run = [this](CListCtrl& list) {
        for (int column = 0; column < 3; ++column)
        {
            list.InsertColumn(column, "Column", LVCFMT_LEFT, 80);
        }
        for (int row = 0; row < 80; ++row)
        {
            list.InsertItem(row, "row");
        }
        PumpAll();
        list.SetFocus();
        Click(ClientPoint(list, CPoint(20, 60)));
        for (const UINT key : {VK_DOWN, VK_NEXT, VK_NEXT, VK_END, VK_PRIOR, VK_UP})
        {
            TypeKey(key);
        }
        TypeKey(VK_DOWN, VK_SHIFT);
        MoveTo(ClientPoint(list, CPoint(20, 100)));
        Wheel(-WHEEL_DELTA);
        Wheel(WHEEL_DELTA * 4);
        Click(ClientPoint(list, CPoint(40, 8)));
        Drag(ClientPoint(list, CPoint(80, 8)), ClientPoint(list, CPoint(130, 8)));
        list.DeleteItem(3);
        list.EnsureVisible(10, FALSE);
        const std::vector<int> state = {list.GetTopIndex(),     list.GetNextItem(-1, LVNI_FOCUSED),
                                        list.GetColumnWidth(0), int(list.GetSelectedCount()),
                                        list.GetColumnWidth(2), ClientRectOf(list).Width()};
        return std::pair(Host().CodesFrom(UINT(list.GetDlgCtrlID())), state);
    };
    auto& ours = Add<ListForTests>(CRect(10, 10, 390, 300), ReportStyle);
    const auto gave = run(ours);
    Remove(ours);
    Host().Forget();
    EXPECT_EQ(gave, run(Add<CListCtrl>(CRect(10, 10, 390, 300), ReportStyle)));
}

// Ranges -----------------------------------------------------------------------------------------

TEST_F(ListCtrlOnBoard, TheBarComesWithTheFirstRowThatDoesNotFit)
{
    auto& list = AddList(1);
    EXPECT_EQ(list.GetStyle() & (WS_VSCROLL | WS_HSCROLL), 0U);
    const int fit = list.VisibleRows();
    const int width = ClientRectOf(list).Width();
    list.Fill(fit - 2); // one row was there
    EXPECT_FALSE(list.m_vBar.ShowScrollBar());
    list.InsertItem(0, "one more");
    EXPECT_TRUE(list.m_vBar.ShowScrollBar());
    EXPECT_EQ(ClientRectOf(list).Width(), width - 52);
    list.InsertItem(0, "one more");
    EXPECT_EQ(list.m_vBar.GetPageSize(), fit - 1);
    list.ExpectInStep("one more");
    list.DeleteItem(0);
    list.DeleteItem(0);
    EXPECT_FALSE(list.m_vBar.ShowScrollBar());
    EXPECT_EQ(ClientRectOf(list).Width(), width);
}

TEST_F(ListCtrlOnBoard, AColumnIsWiderOnBoardAndBackInTheStandardMode)
{
    auto& list = Add<ListForTests>(CRect(20, 20, 420, 420), ReportStyle);
    list.InsertColumn(0, "A", LVCFMT_LEFT, 100);
    EXPECT_EQ(list.GetColumnWidth(0), 170);
    LVCOLUMNW wide = {};
    wide.mask = LVCF_WIDTH;
    wide.cx = 33;
    list.SendMessage(LVM_INSERTCOLUMNW, 1, reinterpret_cast<LPARAM>(&wide));
    EXPECT_EQ(list.GetColumnWidth(1), 56);
    EXPECT_EQ(wide.cx, 33) << "the caller's description is the caller's";
    list.InsertColumn(2, "C", LVCFMT_LEFT, 70);
    list.SetColumnWidth(1, 85);
    SetMode(STD, list);
    EXPECT_EQ(list.GetColumnWidth(0), 100);
    EXPECT_EQ(list.GetColumnWidth(1), 50);
    EXPECT_EQ(list.GetColumnWidth(2), 70);
    SetMode(EFB, list);
    EXPECT_EQ(list.GetColumnWidth(0), 170);
}

TEST_F(ListCtrlOnBoard, TheLastColumnFillsTheList)
{
    auto& list = AddList(5);
    EXPECT_EQ(list.ColumnRect(2).right, ClientRectOf(list).Width());
    list.SetWindowPos(nullptr, 0, 0, 360, 300, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(list.ColumnRect(2).right, ClientRectOf(list).Width());
    EXPECT_FALSE(list.m_hBar.ShowScrollBar());
    // A new last column takes over, and what filled the list has its own width again.
    list.InsertColumn(3, "D", LVCFMT_LEFT, 20);
    list.InsertItem(0, "row");
    EXPECT_EQ(list.GetColumnWidth(2), 102);
    EXPECT_GE(list.ColumnRect(3).right, ClientRectOf(list).Width());
    list.DeleteColumn(3);
    EXPECT_EQ(list.ColumnRect(2).right, ClientRectOf(list).Width());
    list.ExpectInStep("columns came and went");
}

TEST_F(ListCtrlOnBoard, WhateverChangesKeepsRangesOffsetAndHeaderInStep)
{
    auto& list = AddList(100, 8, ReportStyle, CRect(20, 20, 400, 400));
    ASSERT_TRUE(list.m_vBar.ShowScrollBar());
    ASSERT_TRUE(list.m_hBar.ShowScrollBar());
    const auto resize = [&](int width, int height) {
        list.SetWindowPos(nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
    };
    const Act<> changes[] = {
        {"made", [] {}},
        {"scrolled to the end",
         [&] { list.PerformVScroll(SB_BOTTOM), list.PerformHScroll(SB_RIGHT); }},
        {"last row deleted", [&] { list.DeleteItem(99); }},
        {"rows deleted",
         [&] {
             while (list.GetItemCount() > 39)
             {
                 list.DeleteItem(0);
             }
         }},
        {"row inserted", [&] { list.InsertItem(20, "new"); }},
        {"column resized", [&] { list.SetColumnWidth(3, 400); }},
        {"column removed", [&] { list.DeleteColumn(2); }},
        {"smaller", [&] { resize(250, 250); }},
        {"larger", [&] { resize(700, 500); }},
        {"font", [&] { list.SetFont(&CCustomListCtrl::GetOnBoardFont()); }},
    };
    for (const auto& change : changes)
    {
        change.act();
        list.ExpectInStep(change.name);
    }
    while (list.m_header.GetItemCount() > 1)
    {
        list.DeleteColumn(list.m_header.GetItemCount() - 1);
        list.ExpectInStep("columns removed one by one");
    }
    EXPECT_FALSE(list.m_hBar.ShowScrollBar());
    list.PerformVScroll(SB_BOTTOM);
    list.DeleteAllItems();
    EXPECT_FALSE(list.m_vBar.ShowScrollBar());
    EXPECT_EQ(list.m_drawOffset, CPoint(0, 0));
    EXPECT_EQ(list.m_vBar.GetScrollPos(), 0);
}

TEST_F(ListCtrlOnBoard, AnEmptiedListAndItsFirstRowBringTheColumnsHome)
{
    auto& list = AddList(20, 10);
    list.PerformHScroll(SB_LINERIGHT);
    list.DeleteAllItems();
    EXPECT_EQ(HeaderAccess::Offset(list.m_header), CPoint(0, 0));
    list.ReCheckScrollBars();
    list.PerformHScroll(SB_LINERIGHT);
    ASSERT_LT(HeaderAccess::Offset(list.m_header).x, 0);
    list.InsertItem(0, "first");
    EXPECT_EQ(list.m_drawOffset.x, 0);
    list.ExpectInStep("first row");
}

// Only what is in sight --------------------------------------------------------------------------

TEST_F(ListCtrlOnBoard, AMillionRowsOfAnOwnerAreReadOnlyInSight)
{
    auto& list = Add<ListForTests>(CRect(20, 20, 420, 420), ReportStyle | LVS_OWNERDATA);
    list.AddColumns(2);
    std::set<int> asked;
    Host().hook = [&](ToldMessage& told) {
        if (told.code == UINT(LVN_GETDISPINFOA) || told.code == UINT(LVN_GETDISPINFOW))
        {
            auto& item = reinterpret_cast<NMLVDISPINFO*>(told.lParam)->item;
            asked.insert(item.iItem);
            if ((item.mask & LVIF_TEXT) != 0 && told.code == UINT(LVN_GETDISPINFOA))
            {
                ::wsprintfA(item.pszText, "R%d", item.iItem);
            }
        }
    };
    list.SetItemCount(1'000'000);
    PumpAll();
    list.ExpectInStep("a million");
    asked.clear();
    list.SetFocus();
    TypeKey(VK_END);
    EXPECT_EQ(list.Focused(), 999'999);
    EXPECT_EQ(list.Selected(), std::set<int>{999'999});
    list.ExpectInStep("end");
    EXPECT_LE(asked.size(), size_t(3 * list.VisibleRows()));
    EXPECT_TRUE(asked.count(999'999));
    EXPECT_GT(WindowPixels(list).Count(palette::HighlightText), 5);
}

// Modes ------------------------------------------------------------------------------------------

TEST_F(ListCtrlTest, SwitchingModesKeepsTopRowAndSelectionInSight)
{
    auto& list = AddList(300, 3, ReportStyle, CRect(20, 20, 420, 320));
    list.EnsureVisible(299, FALSE);
    list.EnsureVisible(40, FALSE);
    ASSERT_EQ(list.GetTopIndex(), 40);
    list.SetItemState(44, 3, 3);
    for (const APPMODE mode : {ONBOARD, EFB, STD, FULLSCREEN, STD})
    {
        const auto top = [&] { return mode == STD ? list.GetTopIndex() : list.TopRow(); };
        SetMode(mode, list);
        EXPECT_EQ(top(), 40) << APPMODE_NAMES[mode];
        // As a dialog restyles it.
        list.SetFont(mode == STD ? &CCustomListCtrl::GetStdFont()
                                 : &CCustomListCtrl::GetOnBoardFont());
        const int height = mode == STD ? 300 : 510;
        list.SetWindowPos(nullptr, 0, 0, 400, height, SWP_NOMOVE | SWP_NOZORDER | SWP_FRAMECHANGED);
        PumpAll();
        EXPECT_EQ(top(), 40) << APPMODE_NAMES[mode];
        EXPECT_EQ(list.Selected(), std::set<int>{44});
        if (mode != STD)
        {
            list.ExpectInStep(APPMODE_NAMES[mode]);
        }
        else
        {
            EXPECT_NE(list.GetStyle() & WS_VSCROLL, 0U);
            EXPECT_EQ(list.m_drawOffset, CPoint(0, 0));
        }
    }
    // Too little room for both: the selection stays in sight.
    COnBoardUIGeneral::SetAppMode(ONBOARD);
    list.SetFont(&CCustomListCtrl::GetOnBoardFont());
    list.SetWindowPos(nullptr, 0, 0, 400, 130, SWP_NOMOVE | SWP_NOZORDER);
    PumpAll();
    EXPECT_LE(list.TopRow(), 44);
    EXPECT_LE(list.RowPoint(44).y, ClientRectOf(list).bottom);
    COnBoardUIGeneral::SetAppMode(STD);
}

TEST_F(ListCtrlTest, WidthsBeyondTheMessagesReachComeBackFromTheOnBoardModes)
{
    auto& list = AddList(3, 4);
    const int widths[] = {19276, 32767, 50000}; // the last column is fitted
    for (int column = 0; column < 3; ++column)
    {
        LVCOLUMN wide = {};
        wide.mask = LVCF_WIDTH;
        wide.cx = widths[column];
        list.SetColumn(column, &wide);
        ASSERT_EQ(list.GetColumnWidth(column), widths[column]);
    }
    for (int round = 0; round < 2; ++round)
    {
        for (const APPMODE mode : {ONBOARD, STD})
        {
            SetMode(mode, list);
            for (int column = 0; column < 3; ++column)
            {
                EXPECT_EQ(list.GetColumnWidth(column), mode == STD ? widths[column] : SHRT_MAX);
            }
        }
    }
}

TEST_F(ListCtrlOnBoard, OneObjectServesSeveralWindowsOneAfterTheOther)
{
    auto& list = AddList(0, 10);
    for (int window = 0; window < 2; ++window)
    {
        list.InsertItem(0, "row");
        list.PerformHScroll(SB_LINERIGHT);
        MoveTo(list.DividerPoint(1));
        Press();
        ASSERT_TRUE(list.m_header.IsHotTracking());
        list.DestroyWindow();
        Release();
        ASSERT_TRUE(list.Create(ReportStyle | WS_CHILD | WS_VISIBLE, CRect(20, 20, 420, 420),
                                &Host(), FirstId));
        EXPECT_FALSE(list.m_header.IsHotTracking());
        EXPECT_EQ(HeaderAccess::Offset(list.m_header), CPoint(0, 0));
        EXPECT_EQ(HeaderAccess::Pressed(list.m_header), -1);
        list.AddColumns(10);
    }
    list.DestroyWindow();

    // Windows that stay, left by the object.
    for (int window = 0; window < 2; ++window)
    {
        auto& plain = Add<CListCtrl>(CRect(20, 20, 420, 320), ReportStyle);
        plain.InsertColumn(0, "One", LVCFMT_LEFT, 100);
        ASSERT_TRUE(list.SubclassWindow(plain.Detach()));
        PumpAll();
        EXPECT_EQ(list.m_header.GetSafeHwnd(), ::GetDlgItem(list, 0));
        list.UnsubclassWindow();
    }
}

TEST_F(ListCtrlTest, ItIsMadeOfAnExistingListAndByName)
{
    for (const APPMODE mode : {STD, ONBOARD})
    {
        const ModeScope scope(mode);
        auto& plain = Add<CListCtrl>(CRect(20, 20, 420, 320), ReportStyle);
        plain.InsertColumn(0, "One", LVCFMT_LEFT, 100);
        for (int row = 0; row < 50; ++row)
        {
            plain.InsertItem(row, "row");
        }
        const HWND window = plain.Detach();
        {
            ListForTests list;
            ASSERT_TRUE(list.SubclassWindow(window));
            EXPECT_NE(list.m_header.GetSafeHwnd(), nullptr);
            PumpAll();
            EXPECT_EQ(list.m_vBar.ShowScrollBar() != 0, mode != STD);
            EXPECT_EQ(static_cast<void*>(list.GetScrollBarCtrl(SB_VERT)), &list.m_vBar);
            EXPECT_EQ(static_cast<void*>(list.GetScrollBarCtrl(SB_HORZ)), &list.m_hBar);
            EXPECT_EQ(list.GetScrollBarCtrl(SB_BOTH), nullptr);
            list.UnsubclassWindow();
            EXPECT_TRUE(::IsWindow(window));
        }
        EXPECT_TRUE(::IsWindow(::GetDlgItem(window, 0))) << "the header is the list's";
        ::DestroyWindow(window);
    }
}
