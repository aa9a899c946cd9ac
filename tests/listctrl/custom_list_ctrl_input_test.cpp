// Real input on a report list: what lists/own_bars_test.cpp does not say of every list with bars of
// its own.

#include "listctrl/list_for_tests.h"
#include "support/ChildModes.h"

using namespace parts;

TEST_F(ListCtrlOnBoard, TheWheelCountsUpToANotchAndAnArrowGoesATenthSideways)
{
    auto& list = AddList(500, 8);
    MoveTo(ClientPoint(list, list.RowPoint(3)));
    for (const auto& [turn, top] :
         {std::pair(-WHEEL_DELTA, 1), {-60, 1}, {-60, 2}, {WHEEL_DELTA * 3, 1}})
    {
        Wheel(turn);
        EXPECT_EQ(list.TopRow(), top) << turn;
    }
    Click(list.PartPoint(Second, SB_HORZ));
    EXPECT_EQ(list.m_drawOffset.x, -(ClientRectOf(list).Width() / 10));
    list.PerformVScroll(SB_BOTTOM);
    EXPECT_LE(list.RowPoint(499).y, ClientRectOf(list).bottom) << "the last row is in sight";
    list.EnsureVisible(100, FALSE);
    list.EnsureVisible(200, FALSE);
    EXPECT_LE(list.RowPoint(200).y, ClientRectOf(list).bottom);
}

TEST_F(ListCtrlOnBoard, AnHeirDecidesWhatPressesAndHoldsDo)
{
    struct Heir : ListForTests
    {
        void PerformVScroll(int) override { ++steps; }
        int steps = 0;
    };
    auto& list = AddList<Heir>(100);
    Press(list.PartPoint(Second));
    EXPECT_EQ(list.steps, 1);
    EXPECT_TRUE(PumpUntil([&] { return list.steps > 1; })) << "held";
    Release();
    EXPECT_EQ(list.m_drawOffset.y, 0);
}

TEST_F(ListCtrlOnBoard, AnEditOfALabelEndsWhenItsRowIsScrolledAndFollowsTheMode)
{
    auto& list = AddList(100, 8, ReportStyle | LVS_EDITLABELS);
    list.SetFocus();
    Host().OnCode(LVN_ENDLABELEDIT, [](ToldMessage& told) {
        told.answer = TRUE; // the new text is accepted
    });
    for (const auto& [axis, text] : {std::pair(SB_VERT, "down"), {SB_HORZ, "across"}})
    {
        ASSERT_NE(list.EditLabel(1), nullptr);
        list.EnsureVisible(3, FALSE);
        ASSERT_NE(list.GetEditControl(), nullptr) << "it has not moved";
        list.GetEditControl()->SetWindowText(text);
        Click(list.PartPoint(Second, axis));
        EXPECT_EQ(list.GetEditControl(), nullptr) << text;
        EXPECT_EQ(list.GetItemText(1, 0), text);
        EXPECT_TRUE(ShowsWhatAPaintWould(list)) << text;
        list.PerformVScroll(SB_TOP);
    }
    EXPECT_NE(list.m_drawOffset.x, 0);
    list.PerformVScroll(30, 0);
    for (const int row : {6, 35, 90}) // in a scrolled list it is shown over its row
    {
        ASSERT_NE(list.EditLabel(row), nullptr);
        ASSERT_NE(list.GetEditControl(), nullptr) << row;
        EXPECT_TRUE(PlaceIn(list, *list.GetEditControl()).PtInRect(list.RowPoint(row))) << row;
        list.GetEditControl()->SetWindowText("scrolled");
        list.ExpectInStep("edited");
        PumpAll();
        list.PerformVScroll(SB_LINEUP);
        EXPECT_TRUE(ShowsWhatAPaintWould(list)) << row;
        EXPECT_EQ(list.GetItemText(row, 0), "scrolled");
    }
    list.PerformVScroll(SB_TOP);
    list.PerformHScroll(SB_LEFT);
    int order[] = {1, 2, 3, 4, 5, 6, 7, 0};
    list.SetColumnOrderArray(8, order);
    ASSERT_NE(list.EditLabel(3), nullptr);
    EXPECT_TRUE(ClientRectOf(list).PtInRect(PlaceIn(list, *list.GetEditControl()).TopLeft()));
    std::sort(std::begin(order), std::end(order));
    list.SetColumnOrderArray(8, order);
    list.PerformHScroll(SB_LEFT);
    for (const APPMODE mode : {STD, ONBOARD}) // it goes with its row, or ends out of sight
    {
        SetMode(mode, list);
        for (const int row : {3, list.GetCountPerPage() - 1})
        {
            ASSERT_NE(list.EditLabel(row), nullptr);
            SetMode(mode == STD ? ONBOARD : STD, list);
            list.SetFont(mode == STD ? &CCustomListCtrl::GetOnBoardFont()
                                     : &CCustomListCtrl::GetStdFont());
            const CWnd* const edit = list.GetEditControl();
            EXPECT_TRUE(mode != STD || (edit != nullptr) == (row == 3)) << row;
            const CRect label = ItemRectOf(list, row);
            EXPECT_TRUE(edit == nullptr || label.PtInRect(PlaceIn(list, *edit).CenterPoint()))
                << row;
            list.SendMessage(LVM_CANCELEDITLABEL);
            SetMode(mode, list);
        }
    }
    list.PerformVScroll(SB_TOP);
    for (const APPMODE mode : {STD, ONBOARD}) // as on a dialog, with another place
    {
        const HWND edit = list.EditLabel(3)->GetSafeHwnd();
        SetModeOfChildren(mode, Host());
        ASSERT_EQ(list.GetEditControl()->GetSafeHwnd(), edit);
        EXPECT_TRUE(ItemRectOf(list, 3).PtInRect(PlaceIn(list, edit).CenterPoint())) << mode;
    }
}

TEST_F(ListCtrlOnBoard, AClickOnASelectedRowEditsItsLabelInAScrolledListToo)
{
    const DoubleClickTime time(200);
    auto& list = AddList(100, 3, ReportStyle | LVS_EDITLABELS);
    const auto edits = [&](int row) {
        PumpUntil([&] { return list.GetEditControl() != nullptr; }, 400);
        const CWnd* const edit = list.GetEditControl();
        const bool here = edit != nullptr && PlaceIn(list, *edit).PtInRect(list.RowPoint(row));
        list.SendMessage(LVM_CANCELEDITLABEL);
        return edit != nullptr && here;
    };
    const Act<> others[] = {{"key", [&] { TypeKey(VK_F9); }},
                            {"second click", [&] { Click(ClientPoint(list, list.RowPoint(33))); }},
                            {"scrolled", [&] { list.PerformVScroll(SB_LINEDOWN); }},
                            {"row gone", [&] { list.DeleteItem(0); }},
                            {"focus", [&] { Host().SetFocus(); }}};
    for (const int top : {0, 30})
    {
        list.PerformVScroll(top, list.m_vBar.GetScrollPos());
        list.SetFocus();
        list.SetItemState(-1, 0, 3);
        list.SetItemState(top + 3, 3, 3);
        Click(ClientPoint(list, list.RowPoint(top + 3)));
        EXPECT_TRUE(edits(top + 3)) << top;
        Click(ClientPoint(list, list.RowPoint(top + 4)));
        EXPECT_FALSE(edits(top + 4)) << "it was not selected";
        Click(ClientPoint(list, list.RowPoint(top + 4, list.GetColumnWidth(0) + 20)));
        EXPECT_FALSE(edits(top + 4)) << "not on its label";
    }
    for (const auto& [name, act] : others)
    {
        list.SetFocus();
        list.SetItemState(-1, 0, 3);
        list.SetItemState(33, 3, 3);
        Click(ClientPoint(list, list.RowPoint(33)));
        act();
        EXPECT_FALSE(edits(33)) << name;
    }
}

// Keys -------------------------------------------------------------------------------------------

TEST_F(ListCtrlOnBoard, KeysMoveTheFocusAndTheFocusedRowIsInSight)
{
    auto& list = AddList(300);
    list.SetFocus();
    const int rows = (ClientRectOf(list).Height() - list.HeaderRect().bottom) / list.RowHeight();
    list.SetItemState(-1, 0, 3); // no row has the focus
    list.PerformVScroll(20, 0);
    TypeKey(VK_NEXT);
    EXPECT_EQ(list.Focused(), 20 + rows - 1);
    list.PerformVScroll(SB_TOP);
    list.SetItemState(0, 3, 3);
    list.SetItemText(250, 0, "Zulu"); // the only row that begins so
    const std::pair<UINT, int> table[] = {{VK_DOWN, 1},
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
                                          {VK_PRIOR, 0},
                                          {'Z', 250},
                                          {VK_DOWN, 251}};
    for (const auto& [key, row] : table)
    {
        if (row == 251) // whatever was scrolled by other means
        {
            list.PerformVScroll(SB_TOP);
        }
        TypeKey(key);
        EXPECT_EQ(list.Focused(), row) << key;
        EXPECT_EQ(list.Selected(), std::set<int>{row}) << key;
        EXPECT_GE(row, list.TopRow()) << key;
        EXPECT_LE(list.RowPoint(row).y + list.RowHeight() / 2, ClientRectOf(list).bottom) << key;
        list.ExpectInStep("key");
    }
}

TEST_F(ListCtrlOnBoard, PageKeysDoWhatThePlatformsDo)
{
    // The selected rows, the one with the focus first, and the row at the top.
    const std::pair<std::vector<int>, int> states[] = {
        {{0}, 0}, {{0, 2}, 0},    {{59, 57}, 40}, {{3}, 30},
        {{}, 30}, {{50, 51}, 10}, {{20, 22}, 20}, {{25}, 20}};
    for (const DWORD style : {0, LVS_SINGLESEL})
    {
        auto& list = AddList(60, 1, ReportStyle | style);
        auto& plain = Add<CListCtrl>(CRect(430, 20, 760, 420), ReportStyle | style);
        plain.InsertColumn(0, "", LVCFMT_LEFT, 100);
        AddRows(plain, 60);
        const int rows = (ClientRectOf(list).Height() - list.HeaderRect().bottom) / list.RowHeight();
        const int more = (rows - plain.GetCountPerPage()) * list.RowHeight();
        plain.SetWindowPos(nullptr, 0, 0, 330, 400 + more, SWP_NOMOVE | SWP_NOZORDER);
        ASSERT_EQ(plain.GetCountPerPage(), rows);
        for (const auto& [selected, top] : states)
        {
            for (const UINT held : {0, VK_CONTROL, VK_SHIFT})
            {
                for (const UINT key : {VK_PRIOR, VK_NEXT})
                {
                    std::vector<std::string> ends;
                    for (CListCtrl* const each : {static_cast<CListCtrl*>(&list), &plain})
                    {
                        const int focus = selected.empty() ? -1 : selected.front();
                        each->SetFocus();
                        each->SetItemState(-1, 0, 3);
                        for (const int row : selected)
                        {
                            each->SetItemState(row, row == focus ? 3 : 2, 3);
                        }
                        each->SetSelectionMark(focus);
                        each->EnsureVisible(59, FALSE);
                        each->EnsureVisible(top, FALSE);
                        Host().Forget();
                        TypeKey(key, held);
                        TypeKey(key, held);
                        const auto told = Host().CodesFrom(UINT(each->GetDlgCtrlID()));
                        std::string& end = ends.emplace_back();
                        end += std::to_string(std::ranges::count(told, UINT(LVN_KEYDOWN)));
                        end += " keys, focus " + std::to_string(each->GetNextItem(-1, LVNI_FOCUSED));
                        for (int row = 0; row < 60; ++row)
                        {
                            end += each->GetItemState(row, LVIS_SELECTED) != 0 ? '+' : '.';
                        }
                    }
                    EXPECT_EQ(ends[0], ends[1])
                        << style << ' ' << testing::PrintToString(selected) << top << ' ' << held
                        << ' ' << key;
                }
            }
        }
        Remove(plain);
        Remove(list);
    }
}

TEST_F(ListCtrlOnBoard, AKeyThatLeavesTheModeLeavesTheRowsWhereTheyWere)
{
    for (const auto& [key, code] : {std::pair(VK_F11, UINT(LVN_KEYDOWN)),
                                    {VK_NEXT, UINT(LVN_KEYDOWN)},
                                    {VK_DOWN, UINT(LVN_ITEMCHANGED)}})
    {
        SCOPED_TRACE(key);
        const ModeScope scope(ONBOARD);
        auto& list = AddList(100);
        list.PerformVScroll(20, 0);
        list.SetItemState(22, 3, 3);
        Host().hook = [&, code = code](ToldMessage& told) {
            if (told.code == code && COnBoardUIGeneral::InOnBoardMode())
            {
                SetMode(STD, list);
            }
        };
        list.SendMessage(WM_KEYDOWN, WPARAM(key));
        EXPECT_EQ(list.GetTopIndex(), 20);
        list.SetFont(&CCustomListCtrl::GetStdFont()); // as a dialog restyles it
        EXPECT_EQ(list.GetTopIndex(), 20);
        Host().hook = nullptr;
        Remove(list);
    }
}

TEST_F(ListCtrlOnBoard, APointerThatOnlyRestsOnTheThumbIsNoDrag)
{
    auto& list = AddList(300, 8);
    MoveTo(list.PartPoint(Thumb));
    list.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(list.TopRow(), 1);
    MoveTo(list.PartPoint(Thumb, SB_HORZ));
    list.SendMessage(WM_HSCROLL, SB_LINERIGHT);
    EXPECT_EQ(list.m_hBar.GetScrollPos(), 1);
    list.ExpectInStep("messages");
    Press(list.PartPoint(Thumb));
    list.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(list.TopRow(), 1) << "a held one is where the user has it";
    CPoint away = list.PartPoint(Thumb) + CPoint(0, 60);
    list.ScreenToClient(&away);
    for (const UINT held : {MK_LBUTTON | MK_SHIFT, MK_LBUTTON | MK_CONTROL, MK_LBUTTON})
    {
        list.SendMessage(WM_MOUSEMOVE, held, MAKELPARAM(away.x, away.y));
        EXPECT_EQ(list.TopRow() == 1, held != MK_LBUTTON) << held;
    }
    Release();
}

TEST_F(ListCtrlOnBoard, ThePressOnTheRightArrowDoesNotCountAsHeld)
{
    auto& list = AddList(100, 8);
    for (const auto& [part, axis] :
         {std::pair(First, SB_VERT), {Second, SB_VERT}, {Second, SB_HORZ}, {First, SB_HORZ}})
    {
        Press(list.PartPoint(part, axis));
        EXPECT_EQ(list.m_pressed, axis == SB_VERT || part == First) << axis << part;
        Release();
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
    TypeKey(VK_END);
    EXPECT_EQ(list.Focused(), 99);
    EXPECT_LE((99 - list.TopRow() + 1) * list.RowHeight(), ClientRectOf(list).bottom);
}
