// What a report list makes of its content: ranges, and following mode, rows and columns.

#include "listctrl/ListLayout.h"
#include "listctrl/list_for_tests.h"
#include "support/ChildModes.h"

#include <numeric>

TEST(ListLayout, FewAndManyRowsAndWideColumns)
{
    EXPECT_FALSE(listctrl::VerticalBar(0, 20, 206).needed);
    EXPECT_EQ(listctrl::VerticalBar(5, 20, 30).page, 1);
    EXPECT_EQ(listctrl::VerticalBar(INT_MAX, 20, -50).maximum, INT_MAX);
    EXPECT_EQ(listctrl::OnBoardWidth(INT_MAX), SHRT_MAX);
}

// Ranges -----------------------------------------------------------------------------------------

TEST_F(ListCtrlOnBoard, AColumnIsWiderOnBoardAndBackInTheStandardMode)
{
    auto& list = AddList(3, 0);
    list.InsertColumn(0, "A", LVCFMT_LEFT, 100);
    EXPECT_EQ(list.GetColumnWidth(0), 170);
    EXPECT_TRUE(ShowsWhatAPaintWould(list)) << "the rows were there before";
    LVCOLUMNW wide = {.mask = LVCF_WIDTH, .cx = 33};
    list.SendMessage(LVM_INSERTCOLUMNW, 1, reinterpret_cast<LPARAM>(&wide));
    EXPECT_EQ(list.GetColumnWidth(1), 56);
    EXPECT_EQ(wide.cx, 33) << "the caller's description is the caller's";
    list.InsertColumn(2, "C", LVCFMT_LEFT, 70);
    list.SetColumnWidth(1, 85);
    SetMode(STD, list);
    EXPECT_EQ(list.GetColumnWidth(0), 100);
    EXPECT_EQ(list.GetColumnWidth(1), 50);
    EXPECT_EQ(list.GetColumnWidth(2), 70);
    SetMode(ONBOARD, list);
    list.InsertColumn(3, "D", LVCFMT_LEFT, 50);
    list.SetColumnWidth(2, 136);
    list.DeleteColumn(3); // another one becomes the last
    // Whatever view it shows meanwhile, by its style or past it.
    for (const auto& [view, past] : {std::pair(DWORD{LVS_REPORT}, false),
                                     {LVS_ICON, false},
                                     {LVS_LIST, false},
                                     {LVS_ICON, true},
                                     {LVS_LIST, true}})
    {
        SCOPED_TRACE(testing::Message() << view << past);
        const auto show = [&, &past = past](DWORD which) {
            past ? void(list.SetView(int(which))) : void(list.ModifyStyle(LVS_TYPEMASK, which));
        };
        show(view);
        SetMode(STD, list);
        SetMode(ONBOARD, list);
        show(LVS_REPORT);
        list.ExpectInStep("a report again");
        SetMode(STD, list);
        EXPECT_EQ(list.GetColumnWidth(1), 50);
        EXPECT_EQ(list.GetColumnWidth(2), 80);
        SetMode(ONBOARD, list);
    }
    // A width that the user gives is kept, also of a column that is put last after an insertion.
    Drag(list.DividerPoint(0), list.DividerPoint(0, 200));
    list.InsertColumn(3, "D", LVCFMT_LEFT, 50);
    int order[] = {1, 2, 3, 0};
    list.SetColumnOrderArray(4, order);
    SetMode(STD, list);
    EXPECT_EQ(list.GetColumnWidth(0), 218);
    // A bar of the platform's that comes while they are scaled makes none narrower again.
    std::iota(order, order + 4, 0);
    list.SetColumnOrderArray(4, order);
    list.SetColumnWidth(0, 150);
    list.Fill(60);
    SetMode(ONBOARD, list);
    EXPECT_EQ(list.GetColumnWidth(0), 255);
    list.ExpectInStep("many rows");
}

TEST_F(ListCtrlOnBoard, WhateverChangesKeepsRangesOffsetAndHeaderInStep)
{
    auto& list = AddList(1);
    list.SetExtendedStyle(LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT);
    const int fit = list.VisibleRows();
    constexpr int Any = -1;
    // What changes, the bars then, and the top row.
    const std::tuple<const char*, std::function<void()>, const char*, int> changes[] = {
        {"all but full", [&] { list.Fill(fit - 2); }, "", 0}, // one row was there
        {"one more", [&] { list.InsertItem(0, "one more"); }, "v", 0},
        {"and gone", [&] { list.DeleteItem(0); }, "", 0},
        {"lower and narrower", [&] { list.MoveWindow(20, 20, 340, 200); }, "v", 0},
        {"another last column", [&] { list.InsertColumn(3, "D", LVCFMT_LEFT, 20); }, "vh", 0},
        {"what was fitted is no more",
         [&] { EXPECT_EQ((list.InsertItem(0, ""), list.GetColumnWidth(2)), 102); }, "vh", 0},
        {"and gone", [&] { list.DeleteColumn(3); }, "v", 0},
        {"many rows and columns", [&] { list.FillBothWays(300 - list.GetItemCount()); }, "vh", 0},
        {"row in sight", [&] { EXPECT_TRUE(list.EnsureVisible(200, FALSE)); }, "vh", Any},
        {"row that was", [&] { list.EnsureVisible(list.TopRow(), FALSE); }, "vh", Any},
        {"no row", [&] { EXPECT_FALSE(list.EnsureVisible(300, FALSE)); }, "vh", Any},
        {"by pixels home", [&] { list.Scroll(CSize(INT_MIN, INT_MIN)); }, "vh", 0},
        {"by pixels",
         [&] {
             list.Scroll(CSize(list.m_scrollUnit.cx, 2 * list.RowHeight()));
             EXPECT_EQ(list.m_hBar.GetScrollPos(), 1);
         },
         "vh", 2},
        {"a line",
         [&] {
             list.SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
             list.UpdateWindow();
             list.PerformVScroll(SB_LINEDOWN);
         },
         "vh", 3},
        {"sorted", [&] { list.SortItems([](LPARAM, LPARAM, LPARAM) { return 0; }, 0); }, "vh", Any},
        {"page", [&] { list.PerformVScroll(SB_PAGEDOWN); }, "vh", Any},
        {"to the end", [&] { list.PerformVScroll(SB_BOTTOM), list.PerformHScroll(SB_RIGHT); }, "vh",
         Any},
        {"last row deleted", [&] { list.DeleteItem(299); }, "vh", Any},
        {"row inserted", [&] { list.InsertItem(list.TopRow() + 2, "new"); }, "vh", Any},
        {"column of an odd width", [&] { list.InsertColumn(1, "", LVCFMT_LEFT, INT_MAX); }, "vh",
         Any},
        {"column resized", [&] { list.SetColumnWidth(1, -3); }, "vh", Any},
        {"column removed", [&] { list.DeleteColumn(2); }, "vh", Any},
        {"higher", [&] { list.MoveWindow(20, 20, 700, 500); }, "vh", Any},
        {"font", [&] { list.SetFont(&CCustomListCtrl::GetOnBoardFont()); }, "vh", Any},
        {"far beyond", [&] { list.PerformVScroll(INT_MAX, 0), list.PerformHScroll(INT_MAX, 0); },
         "vh", Any},
        {"emptied, and a first row",
         [&] {
             list.DeleteAllItems();
             EXPECT_FALSE(list.m_vBar.ShowScrollBar());
             EXPECT_EQ(list.m_drawOffset, CPoint(0, 0));
             EXPECT_EQ(HeaderAccess::Offset(list.m_header), CPoint(0, 0));
             list.ReCheckScrollBars();
             list.PerformHScroll(SB_LINERIGHT);
             ASSERT_LT(HeaderAccess::Offset(list.m_header).x, 0);
             list.DeleteAllItems();
             EXPECT_TRUE(ShowsWhatAPaintWould(list)) << "emptied once more";
             list.PerformHScroll(SB_LINERIGHT);
             list.InsertItem(0, "first");
             EXPECT_EQ(list.m_drawOffset.x, 0);
         },
         "h", 0},
    };
    for (const auto& [name, act, bars, top] : changes)
    {
        act();
        EXPECT_TRUE(ShowsWhatAPaintWould(list)) << name;
        list.ExpectInStep(name);
        const std::string shown(list.m_vBar.ShowScrollBar() ? "v" : "");
        EXPECT_EQ(shown + (list.m_hBar.ShowScrollBar() ? "h" : ""), bars) << name;
        EXPECT_TRUE(top == Any || list.TopRow() == top) << name;
    }
    while (list.DeleteColumn(list.m_header.GetItemCount() - 1) && list.m_header.GetItemCount() > 0)
    {
        list.ExpectInStep("columns removed one by one");
    }
    // Without a bar nothing scrolls.
    ASSERT_FALSE(list.m_hBar.ShowScrollBar());
    MoveTo(ClientPoint(list, list.RowPoint(0)));
    Wheel(-WHEEL_DELTA);
    for (const WPARAM code : {SB_LINEDOWN, SB_PAGEDOWN, SB_BOTTOM})
    {
        list.SendMessage(WM_VSCROLL, code);
        list.SendMessage(WM_HSCROLL, code);
    }
    EXPECT_EQ(list.m_drawOffset, CPoint(0, 0));
}

TEST_F(ListCtrlOnBoard, TheColumnThatStandsLastFillsTheListAndAllOthersAreReached)
{
    for (const int width : {250, 600}) // too narrow for all columns, and wide enough
    {
        auto& list = AddList(3, 3, ReportStyle, CRect(20, 20, 20 + width, 220));
        list.SetExtendedStyle(LVS_EX_HEADERDRAGDROP | LVS_EX_GRIDLINES);
        const auto put = [&](int column, int place) {
            LVCOLUMN moved = {.mask = LVCF_ORDER, .iOrder = place};
            list.SetColumn(column, &moved);
        };
        int order[] = {2, 0, 1};
        int back[] = {1, 2, 0};
        // What changes, and the order then.
        const std::tuple<const char*, std::function<void()>, std::vector<int>> changes[] = {
            {"order", [&] { list.SetColumnOrderArray(3, order); }, {2, 0, 1}},
            {"column", [&] { put(1, 0); }, {1, 2, 0}},
            {"drag",
             [&] {
                 list.PerformHScroll(SB_LEFT);
                 const CPoint heading = list.DividerPoint(1, -50);
                 Drag(heading, heading + CPoint(140, 0));
             },
             {2, 1, 0}},
            {"fitted to the front", [&] { put(0, 0); }, {0, 2, 1}},
            {"one more",
             [&] { list.InsertColumn(3, "D", LVCFMT_LEFT, 60), list.ReCheckScrollBars(); },
             {0, 2, 1, 3}},
            {"between", [&] { put(3, 1); }, {0, 3, 2, 1}},
            {"last deleted", [&] { list.DeleteColumn(1); }, {0, 2, 1}},
            {"order of the header",
             [&] { list.m_header.SendMessage(HDM_SETORDERARRAY, 3, LPARAM(back)); },
             {1, 2, 0}}};
        for (const auto& [name, act, expected] : changes)
        {
            act();
            PumpAll();
            SCOPED_TRACE(testing::Message() << name << ' ' << width);
            EXPECT_TRUE(ShowsWhatAPaintWould(list));
            std::vector<int> now(expected.size());
            list.GetColumnOrderArray(now.data(), int(now.size()));
            EXPECT_EQ(now, expected);
            for (size_t place = 0; place + 1 < now.size(); ++place)
            {
                EXPECT_EQ(list.GetColumnWidth(now[place]), 102) << now[place];
            }
            list.PerformHScroll(SB_RIGHT);
            list.ExpectInStep(name);
            EXPECT_LE(list.ColumnRect(now.back()).right + list.m_drawOffset.x,
                      ClientRectOf(list).right)
                << "its right edge comes into sight";
        }
        SetModeOfChildren(STD, Host());
        for (const int column : {0, 1, 2})
        {
            EXPECT_EQ(list.GetColumnWidth(column), 60);
        }
        SetModeOfChildren(ONBOARD, Host());
        list.ExpectInStep("on-board at once");
        Remove(list);
    }
}

TEST_F(ListCtrlOnBoard, RowsThatAMessageDoesNotNameArePaintedWhereTheyAreDrawn)
{
    // Made by somebody else, so that it paints while it is filled.
    auto& plain =
        Add<CListCtrl>(CRect(20, 20, 420, 320), ReportStyle | LVS_SINGLESEL | LVS_SORTASCENDING);
    plain.InsertColumn(0, "", LVCFMT_LEFT, 100);
    plain.InsertColumn(1, "B", LVCFMT_LEFT, 100);
    plain.InsertColumn(2, "C", LVCFMT_LEFT, 100);
    AddRows(plain, 30);
    CImageList tall;
    tall.Create(1, 52, ILC_COLOR24, 1, 1);
    ListForTests list;
    ASSERT_TRUE(list.SubclassWindow(plain.Detach()));
    list.PerformVScroll(10, 0);
    list.SetItemState(12, 3, 3);
    const Act<> acts[] = {
        {"selected in its place", [&] { list.SetItemState(13, 3, 3); }},
        {"by its description", [&] { list.SetItem(14, 0, LVIF_STATE, nullptr, 0, 2, 2, 0); }},
        {"focused so",
         [&] {
             list.SetFocus();
             PumpAll();
             list.SetItem(15, 0, LVIF_STATE, nullptr, 0, LVIS_FOCUSED, LVIS_FOCUSED, 0);
         }},
        {"sorted in", [&] { list.InsertItem(30, "Row 20 and more"); }},
        {"and selected so",
         [&] { list.InsertItem(LVIF_TEXT | LVIF_STATE, 0, "Row 23", 2, 2, 0, 0); }},
        {"a column put elsewhere",
         [&] {
             LVCOLUMN first = {.mask = LVCF_ORDER};
             list.SetColumn(1, &first);
         }},
        {"rows for a finger", [&] { list.SetImageList(&tall, LVSIL_SMALL); }},
        {"without headings", [&] { list.ModifyStyle(0, LVS_NOCOLUMNHEADER); }},
        {"and with them", [&] { list.ModifyStyle(LVS_NOCOLUMNHEADER, 0); }}};
    for (const auto& each : acts)
    {
        PumpAll();
        each.act();
        EXPECT_TRUE(ShowsWhatAPaintWould(list)) << each.name;
    }
    list.DestroyWindow();
}

TEST_F(ListCtrlOnBoard, CellsShowTextAndSelectionUpToTheDividerOrAcrossTheRow)
{
    auto& list = AddList(30, 3, ReportStyle | LVS_SINGLESEL);
    list.SetItemText(6, 1, "WWW");
    list.SetItemState(6, 3, 3);
    list.PerformVScroll(5, 0);
    constexpr int Divider = 102;
    const int right = int(ClientRectOf(list).right);
    const CPoint origin = ClientPoint(list, CPoint(0, 0)) - WindowRectOf(list).TopLeft();
    // Row 6, the second one drawn.
    const CRect cell(origin + CSize(0, list.HeaderRect().bottom + list.RowHeight() + 1),
                     CSize(Divider, list.RowHeight() - 1));
    for (const DWORD full : {0, LVS_EX_FULLROWSELECT})
    {
        list.SetExtendedStyle(full);
        const COLORREF beyond = full != 0 ? palette::Highlight : palette::Field;
        const Pixels picture = Settled(list);
        for (const auto& [x, color] : {std::pair(0, palette::Highlight),
                                       {Divider - 1, palette::Highlight},
                                       {Divider, beyond},
                                       {right - 1, beyond}})
        {
            EXPECT_EQ(picture.At(cell.TopLeft() + CSize(x, 0)), color) << x;
        }
        const CPoint before = cell.TopLeft() - CSize(0, list.RowHeight());
        EXPECT_EQ(picture.At(before), palette::Field);
        EXPECT_GT(picture.Count(palette::FieldText, CRect(before, cell.Size())), 5);
        EXPECT_GT(picture.Count(palette::HighlightText, cell), 5);
        EXPECT_GT(picture.Count(palette::HighlightText, cell + CPoint(Divider, 0)), 5);
    }
}

// Only what is in sight --------------------------------------------------------------------------

TEST_F(ListCtrlOnBoard, AMillionRowsOfAnOwnerAreReadOnlyInSight)
{
    auto& list = Add<ListForTests>(CRect(20, 20, 420, 420), ReportStyle | LVS_OWNERDATA);
    list.AddColumns(2);
    std::set<int> asked;
    std::pair<int, int> hint; // the rows that are about to be asked for
    int count = 1'000'000;    // as the owner has it by then
    Host().hook = [&](ToldMessage& told) {
        if (told.code == UINT(LVN_ODCACHEHINT))
        {
            const auto& rows = About<NMLVCACHEHINT>(told);
            hint = {rows.iFrom, rows.iTo};
            if (list.GetItemCount() > count)
            {
                list.SetItemCountEx(count, LVSICF_NOINVALIDATEALL);
            }
        }
        if (told.code == UINT(LVN_GETDISPINFOA))
        {
            auto& item = About<NMLVDISPINFO>(told).item;
            asked.insert(item.iItem);
            if ((item.mask & LVIF_TEXT) != 0)
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
    EXPECT_EQ(hint, std::pair(list.TopRow(), 999'999));
    EXPECT_GT(WindowPixels(list).Count(palette::HighlightText), 5);
    for (const int fewer : {5'000, 3})
    {
        count = fewer;
        Repaint(list);
        EXPECT_TRUE(asked.count(count - 1)) << count;
        EXPECT_TRUE(ShowsWhatAPaintWould(list)) << count;
        list.ExpectInStep("fewer");
    }
    list.AddColumns(4);
    list.SetItemCount(count = 100);
    PumpAll();
    list.SetItemCount(count = 3);
    list.ExpectInStep("fewer, set");
    // Its owner may say how many there are whenever it is told.
    const auto hook = Host().hook;
    int hints = 0;
    Host().hook = [&](ToldMessage& told) {
        if (told.code == UINT(LVN_ODCACHEHINT))
        {
            ++hints;
            list.SetItemCount(3);
        }
        hook(told);
    };
    list.Invalidate();
    list.UpdateWindow();
    EXPECT_EQ(hints, 1);
    EXPECT_FALSE(list.GetUpdateRect(nullptr)) << "and again and again";
    Host().hook = hook;
    // Nor are rows asked for that it was not told of, wherever it scrolls to in its answer.
    list.SetItemCount(count = 1000);
    Host().hook = [&](ToldMessage& told) {
        hook(told);
        told.code == UINT(LVN_ODCACHEHINT) ? list.EnsureVisible(500, FALSE) : FALSE;
    };
    Repaint(list);
    EXPECT_TRUE(asked.count(500));
    EXPECT_EQ(hint.first, list.TopRow());
    // Its owner may end the list while it is painted, and its object.
    const HWND window = list;
    Host().OnCode(LVN_GETDISPINFOA, [&](ToldMessage& told) {
        (About<NMLVDISPINFO>(told).item.mask & LVIF_TEXT) != 0 ? Remove(list) : void();
    });
    Repaint(window);
    EXPECT_FALSE(::IsWindow(window));
}

// Modes ------------------------------------------------------------------------------------------

TEST_F(ListCtrlTest, SwitchingModesKeepsTheTopRowOrTheSelectionInSight)
{
    auto& list = AddList(300, 3, ReportStyle, CRect(20, 20, 420, 320));
    list.Scroll(CSize(0, 40 * list.RowHeight()));
    list.SetItemState(44, 3, 3);
    // As a dialog restyles it; in the end there is too little room for both.
    for (const auto& [mode, height] :
         {std::pair(ONBOARD, 510), {EFB, 510}, {STD, 300}, {FULLSCREEN, 510}, {ONBOARD, 130}})
    {
        SCOPED_TRACE(APPMODE_NAMES[mode]);
        SetMode(mode, list);
        list.SetFont(mode == STD ? &CCustomListCtrl::GetStdFont()
                                 : &CCustomListCtrl::GetOnBoardFont());
        list.MoveWindow(20, 20, 400, height);
        PumpAll();
        const int top = mode == STD ? list.GetTopIndex() : list.TopRow();
        EXPECT_TRUE(height == 130 ? top <= 44 : top == 40) << top;
        EXPECT_EQ(list.Selected(), std::set<int>{44});
        EXPECT_EQ((list.GetStyle() & WS_VSCROLL) != 0, mode == STD);
        if (mode != STD)
        {
            EXPECT_LE(list.RowPoint(44).y, ClientRectOf(list).bottom);
            list.ExpectInStep("in this mode");
        }
    }
    list.PerformVScroll(SB_PAGEDOWN); // by an heir
    const int top = list.TopRow();
    list.MoveWindow(20, 20, 400, 300);
    EXPECT_EQ(list.TopRow(), top);
    COnBoardUIGeneral::SetAppMode(STD);
}

TEST_F(ListCtrlOnBoard, OneObjectServesSeveralWindowsOneAfterTheOther)
{
    auto& list = AddList(1, 10);
    list.PerformHScroll(SB_LINERIGHT);
    Press(list.DividerPoint(1));
    ASSERT_TRUE(list.m_header.IsHotTracking());
    list.DestroyWindow();
    Release();
    ASSERT_TRUE(list.Create(ReportStyle | WS_CHILD | WS_VISIBLE, CRect(20, 20, 420, 420), &Host(),
                            FirstId));
    EXPECT_FALSE(list.m_header.IsHotTracking());
    EXPECT_EQ(HeaderAccess::Offset(list.m_header), CPoint(0, 0));
    EXPECT_EQ(HeaderAccess::Pressed(list.m_header), -1);
    list.DestroyWindow();
    // Windows that were there, and that stay with their headers when the object leaves them.
    std::vector<HWND> left;
    for (const APPMODE mode : {STD, ONBOARD, STD})
    {
        const ModeScope scope(mode);
        auto& plain = Add<CListCtrl>(CRect(20, 20, 420, 320), ReportStyle | LVS_EDITLABELS);
        plain.InsertColumn(0, "One", LVCFMT_LEFT, 100);
        AddRows(plain, 50);
        ASSERT_TRUE(list.SubclassWindow(plain.Detach()));
        PumpAll();
        EXPECT_EQ(list.m_vBar.ShowScrollBar() != 0, mode != STD);
        const HWND header = list.m_header;
        left.push_back(list.UnsubclassWindow());
        EXPECT_TRUE(::IsWindow(header));
    }
    for (const HWND window : left)
    {
        EXPECT_NE(::SendMessage(window, LVM_EDITLABEL, 0, 0), 0) << "as the platform's does";
        ::DestroyWindow(window);
    }
    // Widths that one object has scaled are known to the next.
    for (const APPMODE mode : {ONBOARD, STD})
    {
        auto& first = AddList(3);
        const HWND window = first.UnsubclassWindow();
        Remove(first);
        const ModeScope scope(mode);
        ListForTests next;
        ASSERT_TRUE(next.SubclassWindow(window));
        PumpAll();
        EXPECT_EQ(next.GetColumnWidth(0), mode == STD ? 60 : 102);
        SetMode(STD, next);
        EXPECT_EQ(next.GetColumnWidth(0), 60);
        next.DestroyWindow();
    }
}
