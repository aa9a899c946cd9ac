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
    Press(list.PartPoint(Second, SB_HORZ));
    EXPECT_EQ(list.m_drawOffset.x, -(ClientRectOf(list).Width() / 10));
    EXPECT_FALSE(list.m_pressed) << "only this one does not count as held";
    Release();
    Press(list.PartPoint(First, SB_HORZ));
    EXPECT_TRUE(list.m_pressed);
    Release();
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
        list.SetItemState(-1, 0, LVIS_SELECTED);
        list.SetItemState(list.TopRow() + 2, LVIS_SELECTED, LVIS_SELECTED);
        list.UpdateWindow();
        ASSERT_NE(list.EditLabel(row), nullptr);
        list.SendMessage(LVM_CANCELEDITLABEL);
        EXPECT_TRUE(ShowsWhatAPaintWould(list)) << row;
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
    // With a keyboard on the screen the list is lower, and a wider one has wider steps.
    ASSERT_NE(list.EditLabel(40), nullptr);
    list.MoveWindow(20, 20, 400, 200);
    EXPECT_TRUE(list.HasEditOver(40));
    std::rotate(order, order + 1, order + 3);
    list.SetColumnOrderArray(8, order);
    list.PerformHScroll(2, list.m_hBar.GetScrollPos());
    ASSERT_NE(list.EditLabel(40), nullptr);
    list.MoveWindow(20, 20, 500, 200);
    EXPECT_TRUE(list.HasEditOver(40));
    list.SendMessage(LVM_CANCELEDITLABEL);
    SetMode(STD, list); // what the mode before had in sight is not asked for any more
    list.MoveWindow(20, 20, 400, 400);
    list.EnsureVisible(0, FALSE);
    list.SetItemState(-1, 0, 3);
    SetMode(ONBOARD, list);
    ASSERT_NE(list.EditLabel(7), nullptr);
    list.MoveWindow(20, 20, 400, 200);
    EXPECT_TRUE(list.HasEditOver(7));
    list.SetFont(&CCustomListCtrl::GetOnBoardFont());
    EXPECT_TRUE(list.HasEditOver(7));
    list.SendMessage(LVM_CANCELEDITLABEL);
    // A list that becomes higher steps back, and ends it. Who is told may choose what is in sight.
    SetMode(STD, list);
    list.EnsureVisible(99, FALSE);
    SetMode(ONBOARD, list);
    const int top = list.TopRow();
    ASSERT_NE(list.EditLabel(top + 1), nullptr);
    Host().OnCode(LVN_ENDLABELEDIT, [&](ToldMessage&) { list.EnsureVisible(0, FALSE); });
    list.MoveWindow(20, 20, 400, 500);
    EXPECT_EQ(list.TopRow(), 0) << top;
}

TEST_F(ListCtrlOnBoard, AClickOnASelectedRowEditsItsLabelInAScrolledListToo)
{
    const DoubleClickTime time(200);
    auto& list = AddList(100, 8, ReportStyle | LVS_EDITLABELS);
    bool over = false; // the row, as it is drawn
    Host().OnCode(LVN_ENDLABELEDIT, [](ToldMessage& told) {
        EXPECT_EQ(About<NMLVDISPINFO>(told).item.pszText, nullptr) << "nobody typed";
    });
    const auto edits = [&](int row) {
        const bool begun = PumpUntil([&] { return list.GetEditControl() != nullptr; }, 400);
        over = list.HasEditOver(row);
        list.SendMessage(LVM_CANCELEDITLABEL);
        return begun;
    };
    using Rows = std::set<int>;
    const std::tuple<const char*, int, Rows, std::function<void()>> others[] = {
        // What the platform keeps of such a press may come out at the next ones.
        {"scrolled from the top", 3, {3}, [&] { list.PerformVScroll(SB_LINEDOWN); }},
        {"gone to the end", 3, {99}, [&] { TypeKey(VK_END); }},
        {"key", 33, {33}, [&] { TypeKey(VK_F9); }},
        {"second click", 33, {33}, [&] { Click(ClientPoint(list, list.RowPoint(33))); }},
        {"scrolled", 33, {33}, [&] { list.PerformVScroll(SB_LINEDOWN); }},
        {"row gone", 33, {32}, [&] { list.DeleteItem(0); }},
        {"focus", 33, {33}, [&] { Host().SetFocus(); }}};
    for (const auto& [name, row, selected, act] : others)
    {
        list.PerformVScroll(row - 3, list.m_vBar.GetScrollPos());
        list.SetFocus();
        list.SetItemState(-1, 0, 3);
        list.SetItemState(row, 3, 3);
        Click(ClientPoint(list, list.RowPoint(row)));
        act();
        EXPECT_FALSE(edits(row)) << name;
        EXPECT_EQ(list.Selected(), selected) << name;
    }
    for (const auto& [top, across] : {std::pair(0, 0), {0, 1}, {30, 0}, {30, 1}})
    {
        list.PerformVScroll(top, list.m_vBar.GetScrollPos());
        list.PerformHScroll(across, list.m_hBar.GetScrollPos());
        list.SetFocus();
        list.SetItemState(-1, 0, 3);
        const Rows row = {top + 3};
        Click(ClientPoint(list, list.RowPoint(top + 3)));
        EXPECT_FALSE(edits(top + 3)) << "it was not selected";
        EXPECT_EQ(list.Selected(), row);
        Click(ClientPoint(list, list.RowPoint(top + 3)));
        EXPECT_TRUE(edits(top + 3) && over) << top << across;
        Click(ClientPoint(list, list.RowPoint(top + 3, list.GetColumnWidth(0) + 20)));
        EXPECT_FALSE(edits(top + 3)) << "not on its label";
    }
    list.SetItemState(33, 3, 3);
    const CPoint label = list.RowPoint(33);
    Press(ClientPoint(list, label));
    list.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(label.x, label.y)); // released somewhere else
    Release();
    EXPECT_FALSE(edits(33));
}

// Keys -------------------------------------------------------------------------------------------

TEST_F(ListCtrlOnBoard, KeysDoWhatThePlatformsDoAndTheRowWithTheFocusIsInSight)
{
    // The selected rows, the one with the focus first, and the row at the top.
    const std::pair<std::vector<int>, int> states[] = {
        {{0, 2}, 0}, {{59, 57}, 40}, {{3}, 30}, {{50, 51}, 10}, {{}, 30}};
    for (const DWORD style : {0, LVS_SINGLESEL})
    {
        auto& list = AddList(60, 1, ReportStyle | style);
        auto& plain = Add<CListCtrl>(CRect(430, 20, 760, 420), ReportStyle | style);
        plain.InsertColumn(0, "", LVCFMT_LEFT, 100);
        AddRows(plain, 60);
        const int height = ClientRectOf(list).Height() - list.HeaderRect().bottom;
        const int more = height / list.RowHeight() - plain.GetCountPerPage();
        plain.SetWindowPos(nullptr, 0, 0, 330, 400 + more * list.RowHeight(), SWP_NOMOVE);
        const auto play = [&](CListCtrl& each, const std::vector<int>& selected, int top, UINT key,
                              UINT held) {
            each.SetFocus();
            each.SetItemState(-1, 0, 3);
            for (auto row = selected.rbegin(); row != selected.rend(); ++row)
            {
                each.SetItemState(*row, 3, 3);
            }
            each.SetSelectionMark(selected.empty() ? -1 : selected.front());
            each.EnsureVisible(59, FALSE);
            each.EnsureVisible(top, FALSE);
            Host().Forget();
            TypeKey(key, held);
            TypeKey(key, held);
            const auto told = Host().CodesFrom(UINT(each.GetDlgCtrlID()));
            std::string end = std::to_string(std::ranges::count(told, UINT(LVN_KEYDOWN)));
            end += " keys, focus " + std::to_string(each.GetNextItem(-1, LVNI_FOCUSED)) + ' ';
            for (int row = 0; row < 60; ++row)
            {
                end += each.GetItemState(row, LVIS_SELECTED) != 0 ? '+' : '.';
            }
            return end;
        };
        for (const auto& [selected, top] : states)
        {
            for (const UINT held : {0, VK_CONTROL, VK_SHIFT})
            {
                for (const int key : {VK_PRIOR, VK_NEXT, VK_HOME, VK_END, VK_UP, VK_DOWN, int('R')})
                {
                    if (key > VK_NEXT && top != 10)
                    {
                        continue; // alike in all of them
                    }
                    SCOPED_TRACE(testing::PrintToString(std::tuple(style, selected, held, key)));
                    EXPECT_EQ(play(list, selected, top, UINT(key), held),
                              play(plain, selected, top, UINT(key), held));
                    const int under = list.RowPoint(list.Focused() + 1).y - list.RowHeight() / 2;
                    EXPECT_TRUE(
                        (key == 'R' && held != 0) || // which looks for no row
                        (list.Focused() >= list.TopRow() && under <= ClientRectOf(list).bottom));
                    list.ExpectInStep("key");
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
