// The list box's layout, its looks, and its trips through the modes.

#include "CustomChecklistBox.h"
#include "lists/list_box_for_tests.h"

// Layout ----------------------------------------------------------------------------------------

TEST_F(ListBoxOnBoard, RowsBarsAndFrameAgreeAfterEveryChange)
{
    auto& list = AddList(0, WideListStyle);
    const int width = ClientRectOf(list).Width();
    const int visible = list.VisibleRows();
    constexpr int End = -1;   // as far as the bar goes
    constexpr int Stays = -2; // where it is
    // What changes, the bars then, the top row and the place across.
    const std::tuple<const char*, std::function<void()>, const char*, int, int> changes[] = {
        {"empty", [] {}, "", 0, 0},
        {"full", [&] { list.Fill(visible); }, "", 0, 0},
        {"one more", [&] { list.AddString("One more"); }, "v", 0, 0},
        {"as wide as without a bar", [&] { list.SetHorizontalExtent(width - 9); }, "vh", 0, 0},
        {"neither way too large", [&] { list.DeleteString(0); }, "", 0, 0},
        {"filled", [&] { list.Fill(200 - visible), list.SetHorizontalExtent(0); }, "v", 0, 0},
        {"lower", [&] { list.MoveWindow(20, 20, 300, 200); }, "v", 0, 0},
        {"top index", [&] { list.SetTopIndex(30); }, "v", 30, 0},
        {"search", [&] { list.SelectString(-1, "Row 7"); }, "v", 6, 0},
        {"position", [&] { EXPECT_EQ(list.ScrollTo(SB_VERT, 12), 6); }, "v", 12, 0},
        {"end", [&] { list.SetTopIndex(199); }, "v", End, 0},
        {"negative position", [&] { list.ScrollTo(SB_VERT, -5); }, "v", 0, 0},
        {"huge position", [&] { list.ScrollTo(SB_VERT, INT_MAX); }, "v", End, 0},
        {"wide row", [&] { list.AddString(WideText); }, "vh", Stays, 0},
        {"to the right", [&] { list.SendMessage(WM_HSCROLL, SB_RIGHT); }, "vh", Stays, End},
        {"wide row gone", [&] { list.DeleteString(200); }, "v", End, 0},
        {"wide again", [&] { list.SetHorizontalExtent(1000); }, "vh", Stays, 0},
        {"a little to the right", [&] { list.ScrollTo(SB_HORZ, 20); }, "vh", Stays, 20},
        {"font", [&] { list.SetFont(&CCustomListBox::GetOnBoardFont()); }, "vh", Stays, 20},
        {"wider, to its end",
         [&] { list.ScrollTo(SB_HORZ, 999), list.MoveWindow(20, 20, 700, 200); }, "vh", Stays, End},
        {"other rows", [&] { list.ResetContent(), list.Fill(20); }, "vh", 0, 0},
        {"as wide as its rows", [&] { list.SetHorizontalExtent(400); }, "v", 0, 0},
        {"between two rows", [&] { list.InsertString(2, "new"), list.UpdateWindow(); }, "v", 0, 0},
        {"first, and painted at once by the platform",
         [&] { list.InsertString(0, "First"), list.SetCurSel(2); }, "v", 0, 0},
        {"selected by its program while it has the focus",
         [&] { list.SetFocus(), list.SetCurSel(2), list.SetCurSel(1); }, "v", 0, 0},
        {"above what is in sight", [&] { list.SetTopIndex(5), list.InsertString(0, "Aardvark"); },
         "v", 5, 0},
        {"gone above what is in sight", [&] { list.DeleteString(0); }, "v", 5, 0},
        {"without redraw meanwhile",
         [&] {
             list.SetRedraw(FALSE);
             list.AddString("Zulu");
             list.AddString("Yankee");
             list.DeleteString(0);
             list.SetRedraw(TRUE);
             list.Invalidate();
         },
         "v", 5, 0},
        {"one band wide", [&] { list.MoveWindow(20, 20, 229, 100); }, "vh", 5, 0},
        {"small", [&] { list.MoveWindow(20, 20, 100, 100); }, "vh", 5, 0},
        {"higher, from its end", [&] { list.SetTopIndex(19), list.MoveWindow(20, 20, 700, 560); },
         "", 0, 0},
    };
    for (const auto& [name, act, bars, top, across] : changes)
    {
        const int before = list.GetTopIndex();
        act();
        EXPECT_TRUE(ShowsWhatAPaintWould(list)) << name;
        list.ExpectInStep(name);
        const std::string shown(list.m_vBarNeeded ? "v" : "");
        EXPECT_EQ(shown + (list.m_hBarNeeded ? "h" : ""), bars) << name;
        EXPECT_EQ(list.GetTopIndex(), top == End     ? list.GetCount() - list.VisibleRows()
                                      : top == Stays ? before
                                                     : top)
            << name;
        EXPECT_EQ(list.m_hBar.GetScrollPos(), across == End ? RangeOf(list.m_hBar).y : across)
            << name;
    }
    auto& drawn = AddList(20, ListStyle | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS);
    drawn.InsertString(3, "New");
    EXPECT_TRUE(ShowsWhatAPaintWould(drawn)) << "the rows above it, too";
}

TEST_F(ListBoxOnBoard, RowsAreHalfAgainAsHighAsTheirText)
{
    auto& list = AddList(1, WideListStyle | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS);
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    dc.SelectObject(&CCustomListBox::GetOnBoardFont());
    const CSize text = dc.GetTextExtent("Row 0", 5);
    EXPECT_EQ(list.GetEntryHeight("Row 0"), int(text.cy * 1.5));
    EXPECT_EQ(list.GetEntryWidth(0), text.cx);
    // By their own rows the platform's lists go: another font, another width.
    EXPECT_LT(AddList(1, WideListStyle).GetEntryWidth(0), text.cx);
}

// Looks and modes -------------------------------------------------------------------------------

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
        EXPECT_GT(Settled(list).Count(RGB(70, 70, 70), CRect(5, 5, 203, 200)), 50);
        SetMode(STD, list);
        EXPECT_EQ(list.GetItemHeight(0), standard);
        Remove(list);
    }
}

TEST_F(ListBoxTest, RowsThatTheFocusComesToAndLeavesHaveTheColorsOfTheirParent)
{
    Host().OnMessage(WM_CTLCOLORLISTBOX, [](ToldMessage& told) {
        ::SetBkColor(HDC(told.wParam), RGB(128, 128, 128));
        ::SetTextColor(HDC(told.wParam), RGB(0, 0, 128));
        told.answer = LRESULT(::GetStockObject(GRAY_BRUSH));
    });
    class RedRows : public ListBoxForTests
    {
        void DrawItem(LPDRAWITEMSTRUCT draw) override
        {
            ::SetTextColor(draw->hDC, RGB(255, 0, 0));
            CCustomListBox::DrawItem(draw);
        }
    };
    constexpr DWORD style = ListStyle | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_MULTIPLESEL;
    const auto expectColors = [this](auto& list) {
        list.SetFocus();
        PumpAll();
        TypeKey(VK_DOWN); // selects nothing
        EXPECT_TRUE(ShowsWhatAPaintWould(list));
        Remove(list);
    };
    for (const APPMODE mode : {STD, ONBOARD})
    {
        SCOPED_TRACE(APPMODE_NAMES[mode]);
        const ModeScope scope(mode);
        expectColors(AddList(3, style));
        expectColors(AddList<RedRows>(3, style));
        expectColors(AddList<BarsSeen<CCustomChecklistBox>>(3, style));
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
    EXPECT_EQ(Settled(still), before);
}
