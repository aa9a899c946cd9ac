// The list box's layout, its looks, and its trips through the modes.

#include "lists/list_box_for_tests.h"

// Layout ----------------------------------------------------------------------------------------

TEST_F(ListBoxOnBoard, BandAppearsWithTheRowThatDoesNotFitAndGoesWithIt)
{
    auto& list = AddList(0);
    const int inset = ::GetSystemMetrics(SM_CXFRAME) - 3 + ::GetSystemMetrics(SM_CXEDGE);
    EXPECT_EQ(ClientRectOf(list).Width(), 300 - 2 * inset);

    const int visible = list.VisibleRows();
    list.Fill(visible);
    EXPECT_FALSE(list.m_vBar.ShowScrollBar());
    list.AddString("One more");
    EXPECT_TRUE(list.m_vBar.ShowScrollBar());
    EXPECT_EQ(ClientRectOf(list).Width(), 300 - 2 * inset - 52);
    EXPECT_EQ(RangeOf(list.m_vBar), CPoint(0, 2)); // rows - visible rows + 1
    EXPECT_EQ(list.m_vBar.GetPageSize(), visible - 1);

    // The bar lies beside the client rectangle and three pixels over its ends.
    const CRect area = list.m_vBar.GetArea();
    EXPECT_EQ(area.TopLeft(), CPoint(inset + ClientRectOf(list).Width(), inset - 3));
    EXPECT_EQ(area.Size(), CSize(55, ClientRectOf(list).Height() + 6));

    list.DeleteString(0);
    EXPECT_FALSE(list.m_vBar.ShowScrollBar());
    EXPECT_EQ(ClientRectOf(list).Width(), 300 - 2 * inset);
    list.Fill(100);
    list.SetTopIndex(50);
    list.ResetContent();
    EXPECT_FALSE(list.m_vBar.ShowScrollBar());
    EXPECT_EQ(list.m_vBar.GetScrollPos(), 0);
}

TEST_F(ListBoxOnBoard, BarFollowsEveryWayOfScrollingAndResizing)
{
    auto& list = AddList(200);
    list.MoveWindow(20, 20, 300, 200);
    EXPECT_EQ(list.m_vBar.GetArea().Height(), ClientRectOf(list).Height() + 6);
    EXPECT_EQ(list.m_vBar.GetPageSize(), list.VisibleRows() - 1);
    const int end = 200 - list.VisibleRows();
    const struct
    {
        const char* name;
        std::function<void()> act;
        int top;
    } ways[] = {
        {"top index", [&] { list.SetTopIndex(30); }, 30},
        {"search", [&] { list.SelectString(-1, "Row 7"); }, 7},
        {"position", [&] { EXPECT_EQ(list.ScrollTo(SB_VERT, 12), 7); }, 12},
        {"thumb", [&] { list.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 25)); }, 25},
        {"end", [&] { list.SetTopIndex(199); }, end},
        {"negative position", [&] { list.ScrollTo(SB_VERT, -5); }, 0},
        {"huge position", [&] { list.ScrollTo(SB_VERT, INT_MAX); }, end},
    };
    for (const auto& way : ways)
    {
        way.act();
        EXPECT_EQ(list.GetTopIndex(), way.top) << way.name;
        EXPECT_EQ(list.m_vBar.GetScrollPos(), way.top) << way.name;
    }
}

// Looks -----------------------------------------------------------------------------------------

TEST_F(ListBoxOnBoard, WhatIsShownIsWhatARepaintWouldShow)
{
    auto& list = AddList(5, WideListStyle | LBS_SORT);
    const Act<> steps[] = {
        {"between two rows in sight", [&] { list.AddString("Row 01"), list.UpdateWindow(); }},
        {"first, and painted at once by the platform",
         [&] { list.InsertString(0, "First"), list.SetCurSel(2); }},
        {"selected by its program while it has the focus",
         [&] { list.SetFocus(), list.SetCurSel(2), list.SetCurSel(1); }},
        {"filled", [&] { list.Fill(60); }},
        {"scrolled, and a row above what is in sight",
         [&] { list.SetTopIndex(20), list.AddString("Aardvark"); }},
        {"without redraw meanwhile",
         [&] {
             list.SetRedraw(FALSE);
             list.AddString("Zulu");
             list.DeleteString(0);
             list.SetRedraw(TRUE);
             list.Invalidate();
         }},
        {"both bars and the corner", [&] { list.AddString(WideText); }},
        {"one band wide", [&] { list.MoveWindow(20, 20, 229, 100); }},
        {"small", [&] { list.MoveWindow(20, 20, 100, 100); }},
        {"higher", [&] { list.MoveWindow(20, 20, 120, 300); }},
        {"emptied", [&] { list.ResetContent(); }},
    };
    for (const auto& step : steps)
    {
        step.act();
        EXPECT_TRUE(ShowsWhatAPaintWould(list)) << step.name;
    }
}

TEST_F(ListBoxTest, DrawnRowsFollowTheMode)
{
    for (const DWORD kind : {LBS_OWNERDRAWFIXED, LBS_OWNERDRAWVARIABLE})
    {
        auto& list = AddList(0, ListStyle | kind | LBS_HASSTRINGS);
        list.SetFont(&CCustomListBox::GetStdFont());
        list.Fill(40);
        list.SetCurSel(1);
        PumpAll();
        const int standard = list.GetItemHeight(0);
        EXPECT_EQ(WindowPixels(list).At(100, 2 + standard + 2), ::GetSysColor(COLOR_HIGHLIGHT));
        SetMode(ONBOARD, list);
        const int onBoard = list.GetItemHeight(0);
        EXPECT_EQ(onBoard, list.GetEntryHeight("Row"));
        EXPECT_GT(onBoard, 3 * standard / 2);
        const Pixels seen = WindowPixels(list);
        EXPECT_EQ(seen.At(200, 3 + onBoard + 2), RGB(50, 80, 110));
        EXPECT_GT(seen.Count(RGB(230, 230, 230), CRect(3, 3 + onBoard, 203, 3 + 2 * onBoard)), 20);
        list.EnableWindow(FALSE);
        PumpAll();
        EXPECT_GT(WindowPixels(list).Count(RGB(70, 70, 70), CRect(5, 5, 203, 200)), 50);
        SetMode(STD, list);
        EXPECT_EQ(list.GetItemHeight(0), standard);
        Remove(list);
    }
}

// Modes -----------------------------------------------------------------------------------------

TEST_F(ListBoxTest, ListsThatWereThereGoThroughAllModesAndBack)
{
    for (const APPMODE born : {STD, ONBOARD})
    {
        for (const bool wide : {true, false})
        {
            SCOPED_TRACE(testing::Message() << born << (wide ? " wide" : ""));
            COnBoardUIGeneral::SetAppMode(born);
            auto& plain = Add<CListBox>(CRect(20, 20, 320, 320), wide ? WideListStyle : ListStyle);
            for (int row = 0; row < 60; ++row)
            {
                plain.AddString(row == 3 ? WideText : "Some row");
            }
            ListBoxForTests list;
            ASSERT_TRUE(list.SubclassWindow(plain.Detach()));
            for (const APPMODE mode : {STD, FULLSCREEN, ONBOARD, EFB, STD, EFBFS, STD})
            {
                SetMode(mode, list);
                PumpAll();
                const bool onBoard = mode != STD;
                EXPECT_EQ(list.m_vBarNeeded, onBoard) << mode;
                EXPECT_EQ(list.m_hBarNeeded, onBoard && wide) << mode;
                // No extent was set, so the platform's list shows no horizontal bar.
                EXPECT_EQ(list.GetStyle() & (WS_VSCROLL | WS_HSCROLL), onBoard ? 0U : WS_VSCROLL);
            }
            list.SetTopIndex(5);
            EXPECT_EQ(::GetScrollPos(list, SB_VERT), 5);
            list.DestroyWindow();
        }
    }
}

TEST_F(ListBoxTest, WhatTheHostSetInTheStandardModeStays)
{
    auto& drawn = AddList(5, WideListStyle | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS);
    drawn.SetHorizontalExtent(70);
    drawn.SetItemHeight(0, 40);
    drawn.SetFont(&CCustomListBox::GetStdFont());
    auto& whole = Add<ListBoxForTests>(CRect(340, 20, 640, 320), WS_VSCROLL | LBS_NOTIFY);
    const CSize size = WindowRectOf(whole).Size();
    for (const APPMODE mode : {STD, ONBOARD, STD})
    {
        SetMode(mode, Host());
        if (mode == STD)
        {
            EXPECT_EQ(drawn.GetItemHeight(0), 40);
            EXPECT_EQ(drawn.GetHorizontalExtent(), 70);
            EXPECT_EQ(WindowRectOf(whole).Size(), size);
        }
    }
    // A list made not to paint stays so.
    const ModeScope scope(ONBOARD);
    auto& still = Add<ListBoxForTests>(CRect(20, 340, 220, 440), ListStyle | LBS_NOREDRAW);
    const Pixels before = WindowPixels(still);
    still.Fill(3);
    PumpAll();
    EXPECT_EQ(WindowPixels(still).Count(0), before.Count(0));
}
