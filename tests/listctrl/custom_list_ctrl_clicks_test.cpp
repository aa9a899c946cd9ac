// Clicks on the rows of a report list: which row they select and name, and when the parent is told.

#include "listctrl/list_for_tests.h"
#include "support/ChildModes.h"

using testing::ElementsAre;

namespace {

// Notes rows, columns and data of the clicks that it has let through to its parent.
class ListThatNotes : public ListForTests
{
public:
    std::vector<std::tuple<int, int, LPARAM>> clicked;
    std::function<void(int row)> onRightClick;
    std::function<void()> onActivation;
    CRect painted; // all that was, since it was emptied

    void SelectOnly(const std::set<int>& rows, int from = 0)
    {
        SetItemState(-1, 0, LVIS_SELECTED);
        for (const int row : rows)
        {
            SetItemState(from + row, LVIS_SELECTED, LVIS_SELECTED);
        }
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        CRect due;
        if (message == WM_PAINT && GetUpdateRect(due))
        {
            painted.UnionRect(painted, due);
        }
        return ListForTests::WindowProc(message, wParam, lParam);
    }
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        const BOOL taken = ListForTests::OnChildNotify(message, wParam, lParam, result);
        const auto& told = *reinterpret_cast<const NMITEMACTIVATE*>(lParam);
        const UINT code = message == WM_NOTIFY && !taken ? told.hdr.code : 0;
        if (code == UINT(NM_CLICK) || code == UINT(NM_DBLCLK) || code == UINT(LVN_ITEMACTIVATE) ||
            code == UINT(LVN_BEGINDRAG))
        {
            clicked.emplace_back(told.iItem, told.iSubItem, told.lParam);
            const bool activates = code == UINT(LVN_ITEMACTIVATE);
            activates&& onActivation ? onActivation() : void();
            EXPECT_EQ(told.uOldState, activates ? 3U : 0U);
        }
        if (code == UINT(NM_RCLICK))
        {
            onRightClick(told.iItem);
        }
        return taken;
    }
};

// Opens what is activated by the pointer itself.
class ListThatOpens : public ListForTests
{
public:
    int opened = -1;

protected:
    afx_msg void OnOpen(NMHDR* header, LRESULT*)
    {
        opened = reinterpret_cast<const NMITEMACTIVATE*>(header)->iItem;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ListThatOpens, ListForTests)
    ON_NOTIFY_REFLECT(NM_DBLCLK, &ListThatOpens::OnOpen)
END_MESSAGE_MAP()

// With keys held down.
void ClickWith(const std::vector<UINT>& held, CPoint point, bool right = false)
{
    MoveTo(point);
    PumpFor(30); // the display tells of the move late, and of no key being down
    std::ranges::for_each(held, [](UINT key) { QueueKey(key, true); });
    QueueButton(true, right);
    QueueButton(false, right);
    std::ranges::for_each(held, [](UINT key) { QueueKey(key, false); });
    PumpAll();
}

} // namespace

TEST_F(ListCtrlOnBoard, AClickSelectsTheRowThatIsDrawnThereAndIsToldOfIt)
{
    auto& list = AddList<ListThatNotes>(100, 8, ReportStyle | LVS_SINGLESEL);
    list.SetExtendedStyle(LVS_EX_FULLROWSELECT);
    list.PerformVScroll(5, 0);
    list.PerformHScroll(3, 0);
    list.SetItemData(2, 200);
    list.SetItemData(7, 700);
    std::vector<std::pair<int, bool>> told; // rows that were selected, and whether finally
    Host().OnCode(LVN_ITEMCHANGED, [&](ToldMessage& message) {
        const auto& change = About<NMLISTVIEW>(message);
        if ((change.uNewState & LVIS_SELECTED) != 0)
        {
            told.push_back({change.iItem, list.IsSelChanging() == 0});
        }
    });
    Click(ClientPoint(list, list.RowPoint(7)));
    EXPECT_EQ(list.Selected(), std::set<int>{7});
    EXPECT_EQ(list.Focused(), 7);
    EXPECT_THAT(told, ElementsAre(std::pair(2, false), std::pair(7, true)));
    Press(); // a double click
    Release();
    EXPECT_GE(list.clicked.size(), 3U);
    EXPECT_THAT(list.clicked, testing::Each(std::tuple(7, 1, 700)));
    NMLISTVIEW hot = {{list, FirstId, UINT(LVN_HOTTRACK)}, 2, 0, 0, 0, 0, list.RowPoint(7), 0};
    Host().SendMessage(WM_NOTIFY, FirstId, LPARAM(&hot)); // as some platforms tell it
    EXPECT_EQ(std::pair(hot.iItem, hot.iSubItem), std::pair(7, 1));
    WCHAR cut[20] = L"Row 2";
    NMLVGETINFOTIPW tip = {{list, FirstId, UINT(LVN_GETINFOTIPW)}, 0, cut, 20, 2, 0, 0};
    Host().SendMessage(WM_NOTIFY, FirstId, LPARAM(&tip)); // likewise
    EXPECT_EQ(std::pair(tip.iItem, CString(cut)), std::pair(7, list.GetItemText(7, 0)));
    // The bar across goes past the last column; so does the bar of a selected row.
    list.PerformHScroll(SB_RIGHT);
    Click(ClientPoint(list, list.RowPoint(8, ClientRectOf(list).right - 10)));
    EXPECT_EQ(list.Selected(), std::set<int>{8});
    list.PerformHScroll(3, list.m_hBar.GetScrollPos());
    list.PerformVScroll(SB_BOTTOM);
    const CPoint below = ClientPoint(list, CPoint(20, ClientRectOf(list).bottom - 3));
    for (const UINT held : {VK_CONTROL, VK_SHIFT})
    {
        ClickWith({held}, below);
        EXPECT_EQ(list.Selected(), std::set<int>{8}) << "as it was";
        EXPECT_EQ(list.GetSelectionMark(), 8);
    }
    // Without them nothing is selected, and the parent is told of a change all the same.
    Host().Forget();
    list.clicked.clear();
    Click(below + CPoint(9, 0)); // no double click
    EXPECT_EQ(list.GetSelectedCount(), 0U);
    EXPECT_THAT(Host().CodesFrom(FirstId),
                testing::Contains(UINT(LVN_ITEMCHANGED)).Times(testing::Ge(2)));
    Press(); // twice: nothing is activated
    Release();
    EXPECT_THAT(list.clicked, testing::SizeIs(2));
    EXPECT_THAT(list.clicked, testing::Each(std::tuple(-1, 1, 0)));
}

TEST_F(ListCtrlOnBoard, AnHeirIsToldOfTheDrawnRowAsTheParentIs)
{
    auto& list = AddList<ListThatOpens>(100);
    list.PerformVScroll(5, 0);
    Click(ClientPoint(list, list.RowPoint(7)));
    Press();
    Release();
    EXPECT_EQ(list.opened, 7);
}

TEST_F(ListCtrlTest, AFingerThatIsDownWhileTheModeChangesClicksNothingThatComesToLieUnderIt)
{
    const DoubleClickTime time(200); // how long an edit of a label waits
    for (const auto& [from, to] : {std::pair(STD, ONBOARD), {ONBOARD, STD}, {ONBOARD, EFB}})
    {
        const ModeScope mode(from);
        auto& list = AddList<ListThatNotes>(100);
        list.ModifyStyle(0, LVS_EDITLABELS);
        list.SetFocus();
        list.SelectOnly({3});
        Press(ClientPoint(list, list.RowPoint(3)));
        SetMode(to, list);
        Release();
        EXPECT_THAT(list.clicked, testing::IsEmpty()) << from;
        EXPECT_EQ(list.Selected(), std::set<int>{3});
        const bool edits = PumpUntil([&] { return list.GetEditControl() != nullptr; }, 400);
        EXPECT_TRUE(!edits || to == STD) << "there the platform waits for it by itself";
        Click(ClientPoint(list, list.RowPoint(1)));
        EXPECT_THAT(list.clicked, testing::SizeIs(1)) << from;
        Remove(list);
    }
}

TEST_F(ListCtrlOnBoard, AClickEndsOnTheDrawnRowAloneWhateverWasSelectedInItsPlace)
{
    auto& list = AddList<ListThatNotes>(100);
    list.SetExtendedStyle(LVS_EX_FULLROWSELECT);
    list.PerformVScroll(5, 0);
    int row = 7; // another one each time: two clicks on one would be a double click
    for (const std::set<int>& before : {std::set{-5}, {-5, 2}, {0, 2}, {0}})
    {
        list.SelectOnly(before, row);
        Click(ClientPoint(list, list.RowPoint(row)));
        EXPECT_EQ(list.Selected(), std::set<int>{row});
        EXPECT_EQ(list.Focused(), row++);
    }
    // Those that are selected together are dragged together.
    const std::set<int> together = {row, row + 1, row + 3};
    list.SelectOnly(together);
    Press(ClientPoint(list, list.RowPoint(row + 1)));
    EXPECT_EQ(list.Focused(), row + 1);
    DragTo(ClientPoint(list, CPoint(90, 90)));
    EXPECT_EQ(list.Selected(), together);
    EXPECT_EQ(list.clicked.back(), std::tuple(row + 1, 0, 0));
    Release();
    EXPECT_EQ(list.Selected(), together);
    // Beside the rows the mark stays for a press with Shift.
    list.PerformVScroll(SB_BOTTOM);
    Click(ClientPoint(list, CPoint(20, ClientRectOf(list).bottom - 3)));
    EXPECT_EQ(list.Selected(), std::set<int>());
    EXPECT_EQ(list.GetSelectionMark(), row - 1);
    // Nor is anything dragged or, without full rows, selected by a band from beside them.
    list.clicked.clear();
    Drag(ClientPoint(list, CPoint(60, ClientRectOf(list).bottom - 3)),
         ClientPoint(list, CPoint(20, 90)));
    EXPECT_THAT(list.clicked, testing::Each(testing::FieldsAre(testing::Ge(0), 0, 0)));
    list.SetExtendedStyle(0);
    list.PerformVScroll(20, list.TopRow());
    Drag(ClientPoint(list, CPoint(250, 300)), ClientPoint(list, CPoint(20, 90)), 8);
    EXPECT_EQ(list.Selected(), std::set<int>());
}

TEST_F(ListCtrlOnBoard, ClicksWithCtrlAndShiftKnowTheRowsAsDrawnAndEndWithTheFinalStep)
{
    // The row, from the top one, the keys held, and what is selected where several rows can be.
    const std::tuple<int, std::vector<UINT>, std::set<int>> clicks[] = {
        {2, {}, {2}},
        {5, {VK_SHIFT}, {2, 3, 4, 5}},
        {3, {VK_SHIFT}, {2, 3}},
        {6, {VK_SHIFT}, {2, 3, 4, 5, 6}},
        {4, {VK_CONTROL}, {2, 3, 5, 6}},
        {9, {VK_CONTROL}, {2, 3, 5, 6, 9}},
        {7, {VK_CONTROL, VK_SHIFT}, {2, 3, 5, 6, 7, 8, 9}},
        {3, {}, {3}}};
    for (const DWORD single : {0, LVS_SINGLESEL})
    {
        for (const int top : {0, 20})
        {
            SCOPED_TRACE(testing::Message() << single << ' ' << top);
            auto& list = AddList<ListThatNotes>(100, 3, ReportStyle | single);
            list.SetExtendedStyle(LVS_EX_FULLROWSELECT);
            list.PerformVScroll(top, 0);
            bool final = false; // the last change of the selection that was told
            Host().hook = [&](ToldMessage& message) {
                const auto& change = About<NMLISTVIEW>(message);
                if (message.code == UINT(LVN_ITEMCHANGED) &&
                    ((change.uNewState ^ change.uOldState) & LVIS_SELECTED) != 0)
                {
                    final = list.IsSelChanging() == 0;
                }
            };
            for (const auto& [row, held, selected] : clicks)
            {
                final = false;
                ClickWith(held, ClientPoint(list, list.RowPoint(top + row)));
                std::set<int> expected;
                for (const int each : single != 0 ? std::set<int>{row} : selected)
                {
                    expected.insert(top + each);
                }
                EXPECT_EQ(list.Selected(), expected) << row;
                EXPECT_EQ(list.Focused(), top + row);
                EXPECT_TRUE(final) << row;
                EXPECT_THAT(std::exchange(list.clicked, {}),
                            ElementsAre(std::tuple(top + row, 0, 0)));
                EXPECT_TRUE(ShowsWhatAPaintWould(list)) << row;
            }
            Host().hook = nullptr;
            list.SelectOnly({1, 2}, top);
            list.onRightClick = [](int) {};
            ClickWith({}, ClientPoint(list, list.RowPoint(top + 5)), true);
            EXPECT_TRUE(ShowsWhatAPaintWould(list)) << "right";
            QueueKey(VK_CONTROL, true);
            Press();
            DragTo(ClientPoint(list, CPoint(90, 90)));
            Release();
            QueueKey(VK_CONTROL, false);
            ASSERT_FALSE(list.clicked.empty());
            EXPECT_EQ(std::get<0>(list.clicked.front()), top + 5) << "dragged";
            list.DestroyWindow();
        }
    }
}

TEST_F(ListCtrlOnBoard, ARightClickIsToldOfWithTheDrawnRowSelectedOrAsItWas)
{
    auto& list = AddList<ListThatNotes>(100, 8);
    int order[] = {1, 0, 2, 3, 4, 5, 6, 7}; // the first column is drawn where the other one was
    list.SetColumnOrderArray(8, order);
    list.PerformHScroll(3, 0);
    list.PerformVScroll(5, 0);
    Host().AlsoRecord({WM_CONTEXTMENU});
    int told = 0;
    int x = 20;
    std::set<int> expected;
    list.onRightClick = [&](int row) {
        ++told;
        EXPECT_EQ(row, 7);
        EXPECT_EQ(list.Selected(), expected);
        EXPECT_EQ(list.Focused(), 7);
        EXPECT_FALSE(list.IsSelChanging());
    };
    const std::tuple<std::set<int>, std::vector<UINT>, std::set<int>> clicks[] = {
        {{}, {}, {7}},         {{2, 9}, {}, {7}},    {{2, 7, 9}, {}, {2, 7, 9}},
        {{8}, {}, {7}},        {{7, 8}, {}, {7, 8}}, {{2, 9}, {VK_CONTROL}, {2, 9}},
        {{9}, {VK_SHIFT}, {9}}};
    for (const DWORD full : {0, LVS_EX_FULLROWSELECT})
    {
        list.SetExtendedStyle(full);
        for (const auto& [before, held, after] : clicks)
        {
            SCOPED_TRACE(testing::Message()
                         << full << testing::PrintToString(std::pair(before, held)));
            list.SelectOnly(before);
            told = 0;
            expected = after;
            Host().Forget();
            x = 70 - x; // two clicks on one place would be a double click
            ClickWith(held, ClientPoint(list, list.RowPoint(7, x)), true);
            EXPECT_EQ(told, 1);
            EXPECT_EQ(Host().Count(WM_CONTEXTMENU), 1);
            EXPECT_EQ(list.Selected(), after);
        }
    }
}

TEST_F(ListCtrlOnBoard, WhileARightButtonIsHeldTheRowsShowWhatTheyWillHave)
{
    auto& list = AddList<ListThatNotes>(100);
    list.SetExtendedStyle(LVS_EX_FULLROWSELECT);
    int told = -1;
    list.onRightClick = [&](int row) { told = row; };
    int x = 20;
    // What happens meanwhile, the row that is told, and the one that has selection and focus then.
    const std::tuple<const char*, std::function<void()>, int, int> acts[] = {
        {"nothing", [] {}, 25, 25},
        {"scrolled", [&] { list.EnsureVisible(0, FALSE); }, 25, 25},
        {"filled anew", [&] { list.DeleteAllItems(), list.Fill(60); }, 5, -1}};
    for (const auto& [name, act, row, selected] : acts)
    {
        SCOPED_TRACE(name);
        list.PerformVScroll(20, list.TopRow());
        x = 70 - x; // two clicks on one place would be a double click
        MoveTo(ClientPoint(list, list.RowPoint(25, x)));
        PlaySteps({[] { QueueButton(true, true); },
                   [&, &meanwhile = act] {
                       EXPECT_EQ(list.Selected(), std::set<int>{25});
                       EXPECT_EQ(list.Focused(), 25);
                       EXPECT_TRUE(ShowsWhatAPaintWould(list));
                       meanwhile();
                   },
                   [] { QueueButton(false, true); }});
        EXPECT_EQ(told, row);
        EXPECT_EQ(list.Selected(), selected < 0 ? std::set<int>() : std::set{selected});
        EXPECT_EQ(list.Focused(), selected);
    }
    // Nor is a row selected alone by its index when the button goes up that is another one by then.
    list.PerformVScroll(20, 0);
    list.SelectOnly({25, 27});
    Press(ClientPoint(list, list.RowPoint(25)));
    list.InsertItem(0, "new");
    Release();
    EXPECT_EQ(list.Selected(), (std::set{26, 28}));
}

TEST_F(ListCtrlOnBoard, AButtonHasNoOthersPaintedThanTheRowsThatItChanges)
{
    auto& list = AddList<ListThatNotes>(100);
    list.onRightClick = [](int) {};
    list.SetFocus();
    // Scrolled, the platform brings the row of a right press into its own sight first.
    for (const auto& [top, right] : {std::pair(0, false), {50, false}, {0, true}})
    {
        list.PerformVScroll(top, list.TopRow());
        list.SelectOnly({2, 4}, top);
        MoveTo(ClientPoint(list, list.RowPoint(top + (right ? 6 : 4), right ? 60 : 20 + top)));
        right ? PumpAll() : Press();
        list.painted.SetRectEmpty();
        right ? QueueButton(true, true) : void();
        QueueButton(false, right);
        PumpAll();
        EXPECT_LE(list.painted.Height(), 5 * list.RowHeight()) << top << right;
        EXPECT_TRUE(ShowsWhatAPaintWould(list)) << top << right;
    }
}

TEST_F(ListCtrlOnBoard, WithoutFullRowsTheFirstColumnIsHitWhereItIsDrawn)
{
    auto& list = AddList(100, 8);
    // Whether the first column comes second, and the row at the top.
    for (const auto& [second, top] : {std::pair(false, 0), {false, 5}, {true, 0}, {true, 5}})
    {
        SCOPED_TRACE(testing::Message() << second << top);
        int order[] = {second ? 1 : 0, second ? 0 : 1, 2, 3, 4, 5, 6, 7};
        list.SetColumnOrderArray(8, order);
        list.PerformVScroll(top, list.TopRow());
        list.PerformHScroll(second ? 3 : 1, list.m_hBar.GetScrollPos());
        bool final = false;
        Host().hook = [&](ToldMessage& message) {
            final = message.code == UINT(LVN_ITEMCHANGED) ? list.IsSelChanging() == 0 : final;
        };
        Click(ClientPoint(list, list.RowPoint(7, second ? 90 : 60)));
        EXPECT_EQ(list.Selected(), std::set<int>{7});
        EXPECT_TRUE(final);
        final = false;
        Click(ClientPoint(list, list.RowPoint(8, second ? 110 : 90)));
        EXPECT_EQ(list.Selected(), std::set<int>());
        EXPECT_TRUE(final);
    }
}

TEST_F(ListCtrlOnBoard, APressOnACheckBoxChangesThatOfTheDrawnRow)
{
    auto& list = AddList<ListThatNotes>(100, 8);
    list.SetExtendedStyle(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
    for (const auto& [down, across] : {std::pair(5, 0), {0, 1}, {5, 1}, {5, 0}})
    {
        SCOPED_TRACE(testing::Message() << down << ' ' << across);
        list.PerformVScroll(down, list.m_vBar.GetScrollPos());
        list.PerformHScroll(across, list.m_hBar.GetScrollPos());
        const int row = list.TopRow() + 2;
        list.SetItemData(row, 700);
        list.SelectOnly({row, row + 2});
        Press(ClientPoint(list, list.RowPoint(row, 7)));
        DragTo(ClientPoint(list, list.RowPoint(row, 9))); // not far enough for a drag
        Release();
        EXPECT_THAT(std::exchange(list.clicked, {}), ElementsAre(std::tuple(row, 0, 700)));
        EXPECT_EQ(list.Selected(), across == 0 ? std::set({row, row + 2}) : std::set{row});
        list.SelectOnly({});
        Click(ClientPoint(list, list.RowPoint(row + 1, 40)));
        EXPECT_EQ(list.Selected(), std::set<int>{row + 1});
        for (int each = 0; each < 12; ++each)
        {
            EXPECT_EQ(list.GetCheck(each), across == 0 && each == row) << each;
            list.SetCheck(each, FALSE);
        }
        list.clicked.clear();
    }
    list.SetItemState(8, 0, LVIS_STATEIMAGEMASK); // a row without a box gets none
    Click(ClientPoint(list, list.RowPoint(8, 7)));
    EXPECT_EQ(list.GetItemState(8, LVIS_STATEIMAGEMASK), 0U);
    list.PerformVScroll(SB_BOTTOM);
    list.SelectOnly({3, 5});
    ClickWith({VK_CONTROL}, ClientPoint(list, list.RowPoint(100, 7)));
    EXPECT_EQ(list.Selected(), (std::set{3, 5})) << "beside all rows";
}

TEST_F(ListCtrlOnBoard, OneClickActivatesTheDrawnRowOnceItIsSelected)
{
    auto& list = AddList<ListThatNotes>(100);
    list.SetExtendedStyle(LVS_EX_ONECLICKACTIVATE | LVS_EX_FULLROWSELECT);
    for (const int top : {0, 5})
    {
        list.PerformVScroll(top, 0);
        int activated = 0;
        list.onActivation = [&] {
            ++activated;
            EXPECT_EQ(list.Selected(), std::set<int>{top + 2});
            EXPECT_FALSE(list.IsSelChanging());
        };
        Click(ClientPoint(list, list.RowPoint(top + 2, 20 + 8 * top))); // no double click
        EXPECT_EQ(activated, 1);
        EXPECT_THAT(std::exchange(list.clicked, {}), testing::Each(std::tuple(top + 2, 0, 0)));
    }
    // As some platforms tell it: of the row that stands there unscrolled.
    list.onActivation = nullptr;
    list.SetExtendedStyle(LVS_EX_FULLROWSELECT);
    Host().OnCode(NM_CLICK, [&](ToldMessage&) {
        NMITEMACTIVATE activation = {
            .hdr = {list, FirstId, UINT(LVN_ITEMACTIVATE)}, .iItem = 3, .uOldState = 3};
        Host().SendMessage(WM_NOTIFY, FirstId, reinterpret_cast<LPARAM>(&activation));
    });
    Click(ClientPoint(list, list.RowPoint(8)));
    EXPECT_THAT(list.clicked, ElementsAre(std::tuple(8, 0, 0), std::tuple(8, 0, 0)));
}

TEST_F(ListCtrlOnBoard, ARestingPointerSelectsTheDrawnRowUnlessTheParentObjects)
{
    auto& list = AddList(100);
    list.SetExtendedStyle(LVS_EX_TRACKSELECT | LVS_EX_FULLROWSELECT);
    list.SendMessage(LVM_SETHOVERTIME, 0, 20);
    list.PerformVScroll(5, 0);
    int told = 0;
    Host().OnCode(NM_HOVER, [&](ToldMessage& message) { message.answer = told++; });
    for (const int row : {7, 8})
    {
        MoveTo(ClientPoint(list, list.RowPoint(row)));
        MoveTo(ClientPoint(list, list.RowPoint(row, 24)));
        EXPECT_TRUE(PumpUntil([&] { return told == row - 6; }));
        PumpAll();
        EXPECT_EQ(list.Selected(), std::set<int>{7}) << row;
    }
}
