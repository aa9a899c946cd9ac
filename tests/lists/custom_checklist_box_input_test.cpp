// Checks worked by the pointer and by the space key.

#include "lists/check_list_for_tests.h"

using testing::ElementsAre;

INSTANTIATE_TEST_SUITE_P(Modes, CheckListInMode, testing::Values(STD, EFBFS));

TEST_P(CheckListInMode, AClickOnTheCheckChangesItAndOneBesideItOnlySelects)
{
    // The style, the checks after each click, and how many are told.
    const std::tuple<UINT, std::vector<int>, int> table[] = {{BS_CHECKBOX, {0, 0, 0}, 0},
                                                             {BS_AUTOCHECKBOX, {1, 0, 1}, 3},
                                                             {BS_3STATE, {0, 0, 0}, 0},
                                                             {BS_AUTO3STATE, {1, 2, 0}, 3}};
    for (const auto& [style, checks, told] : table)
    {
        SCOPED_TRACE(style);
        auto& list = AddList(4, style);
        Host().Forget();
        for (const int check : checks)
        {
            Click(list.CheckPoint(1)); // fast: the second one is a double click
            EXPECT_EQ(list.GetCheck(1), check);
        }
        EXPECT_EQ(Told(list), told);
        EXPECT_EQ(list.GetCurSel(), 1);

        const std::vector<int> before = list.Checks();
        Click(list.TextPoint(2));
        Click(list.TextPoint(2));
        EXPECT_EQ(list.GetCurSel(), 2);
        EXPECT_THAT(Codes(list), testing::Contains(UINT(LBN_DBLCLK)).Times(testing::Ge(1)));
        list.Enable(3, FALSE);
        Click(list.CheckPoint(3));
        EXPECT_EQ(list.GetCurSel(), 3);
        // Below the last row there is nothing to be changed.
        Click(list.CheckPoint(3) + CPoint(0, list.GetItemHeight(0)));
        EXPECT_EQ(list.Checks(), before);
        EXPECT_EQ(Told(list), told);
        Remove(list);
    }
}

TEST_P(CheckListInMode, SpaceGoesRoundTheStatesOfTheCaretsRow)
{
    auto& list = AddList(2, BS_AUTO3STATE);
    list.AddString(" indented"); // not looked for by a space
    list.SetFocus();
    list.SetCurSel(1);
    EXPECT_TRUE(GetParam() == STD || ShowsWhatAPaintWould(list)) << "with the focus's rectangle";
    for (const int expected : {1, 2, 0})
    {
        TypeKey(VK_SPACE);
        EXPECT_EQ(list.GetCheck(1), expected);
        EXPECT_EQ(list.GetCurSel(), 1);
    }
    EXPECT_EQ(Told(list), 3);
    // A state that its style does not have counts as the last one that it has.
    list.SetCheck(1, 2);
    list.SetCheckStyle(BS_AUTOCHECKBOX);
    TypeKey(VK_SPACE);
    EXPECT_EQ(list.GetCheck(1), 0);
    TypeKey(VK_DOWN);
    EXPECT_EQ(list.GetCurSel(), 2) << "other keys are the list box's";

    Host().Forget();
    list.Enable(2, FALSE);
    EXPECT_TRUE(ShowsWhatAPaintWould(list));
    TypeKey(VK_SPACE);
    list.SetCheckStyle(BS_CHECKBOX);
    list.Enable(2);
    TypeKey(VK_SPACE);
    EXPECT_EQ(list.GetCheck(2), 0);
    EXPECT_EQ(Told(list), 0);
    Host().SetFocus();
    EXPECT_TRUE(ShowsWhatAPaintWould(list));
}

TEST_F(CheckListTest, AnExtendedSelectionIsCheckedTogether)
{
    auto& list = AddList(6, BS_AUTOCHECKBOX, CheckListStyle | LBS_EXTENDEDSEL);
    list.SetFocus();
    list.SelItemRange(TRUE, 1, 3);
    list.SetCaretIndex(2);
    list.SetCheck(1, 1);
    list.Enable(3, FALSE);
    Host().Forget();
    TypeKey(VK_SPACE);
    EXPECT_THAT(list.Checks(), ElementsAre(0, 1, 1, 1, 0, 0));
    EXPECT_EQ(Told(list), 1);
    EXPECT_EQ(list.GetSelCount(), 3);
    // A click on the check of a selected row leaves the rows selected ...
    Click(list.CheckPoint(1));
    EXPECT_THAT(list.Checks(), ElementsAre(0, 0, 0, 0, 0, 0));
    EXPECT_EQ(list.GetSelCount(), 3);
    // ... and one on another row's check is for that row.
    Click(list.CheckPoint(5));
    EXPECT_THAT(list.Checks(), ElementsAre(0, 0, 0, 0, 0, 1));
    EXPECT_EQ(list.GetSelCount(), 1);
    // The caret's row is changed also when it is not selected.
    list.SetSel(5, FALSE);
    list.SetSel(4, TRUE);
    list.SetCaretIndex(0);
    TypeKey(VK_SPACE);
    EXPECT_THAT(list.Checks(), ElementsAre(1, 0, 0, 0, 1, 1));
}

TEST_F(CheckListTest, InListsOfManySelectionsSpaceFlipsTheSelectionEachTime)
{
    for (const DWORD kind : {LBS_MULTIPLESEL, LBS_MULTIPLESEL | LBS_EXTENDEDSEL})
    {
        SCOPED_TRACE(kind);
        auto& list = AddList(3, BS_AUTOCHECKBOX, CheckListStyle | kind);
        list.SetFocus();
        list.SetCaretIndex(1);
        const std::vector<UINT> both = {LBN_SELCHANGE, CLBN_CHKCHANGE};
        for (const int step : {0, 1, 2, 3})
        {
            Host().Forget();
            TypeKey(VK_SPACE);
            EXPECT_EQ(list.GetCheck(1), step == 1 || step == 2);
            EXPECT_EQ(list.GetSel(1), step % 2 == 0);
            EXPECT_EQ(Codes(list), step % 2 == 0 ? std::vector<UINT>{LBN_SELCHANGE} : both);
        }
        list.Enable(1, FALSE);
        for (const int selected : {1, 0})
        {
            TypeKey(VK_SPACE);
            EXPECT_EQ(list.GetSel(1), selected) << "a fixed check leaves it to the key";
        }
        EXPECT_EQ(list.GetCheck(1), 0);
        Remove(list);
    }
}

TEST_F(CheckListTest, SidewaysTheWholeRowIsReachedAndItsCheckMovesAlong)
{
    const ModeScope mode(ONBOARD);
    auto& list = AddList(2, BS_AUTOCHECKBOX, CheckListStyle | WS_HSCROLL);
    const int narrow = list.GetEntryWidth(1);
    list.AddString("A row that is a good deal wider than its window");
    CClientDC dc(&list);
    CFont* const before = dc.SelectObject(&CCustomChecklistBox::GetOnBoardFont());
    EXPECT_EQ(narrow, 53 + dc.GetTextExtent("Row 1").cx);
    dc.SelectObject(before);
    ASSERT_TRUE(list.m_hBarNeeded);
    list.SendMessage(WM_HSCROLL, SB_RIGHT);
    PumpAll();
    Click(list.CheckPoint(1));
    EXPECT_EQ(list.GetCheck(1), 0) << "there is text where the check was";
    // A little from the left edge a part of each check is in sight, and is painted there.
    list.SendMessage(WM_HSCROLL, SB_LEFT);
    list.SendMessage(WM_HSCROLL, SB_LINERIGHT);
    list.SetCheck(0, 1);
    EXPECT_TRUE(ShowsWhatAPaintWould(list));
}

TEST_F(CheckListTest, RowsOfDifferingHeightsStayWhereTheyAreAndAHeightMeasuresNoText)
{
    struct Measured : CheckListForTests
    {
        int texts = 0;
        int GetEntryWidth(int index) override
        {
            ++texts;
            return CheckListForTests::GetEntryWidth(index);
        }
    };
    const ModeScope mode(ONBOARD);
    auto& list = AddList<Measured>(20, BS_AUTOCHECKBOX, VariableCheckListStyle | WS_HSCROLL);
    list.texts = 0;
    const int before = RangeOf(list.m_vBar).y;
    for (int row = 0; row < 20; ++row)
    {
        list.SetItemHeight(row, 100);
    }
    EXPECT_EQ(list.texts, 0);
    EXPECT_EQ(list.GetItemHeight(19), 100);
    EXPECT_GT(RangeOf(list.m_vBar).y, before) << "fewer rows in sight";
    list.SetTopIndex(19);
    const int top = list.GetTopIndex();
    list.AddString("One more");
    EXPECT_TRUE(ShowsWhatAPaintWould(list));
    EXPECT_EQ(list.GetTopIndex(), top);
    EXPECT_EQ(list.m_vBar.GetScrollPos(), top);
}

TEST_F(CheckListTest, AParentThatEndsThePressByABoxIsToldOfTheSelection)
{
    for (const APPMODE mode : {STD, ONBOARD})
    {
        const ModeScope scope(mode);
        auto& list = AddList(4, BS_AUTOCHECKBOX);
        Host().Forget();
        list.SetFocus();
        list.SetCurSel(0);
        Host().OnCode(CLBN_CHKCHANGE, [](ToldMessage&) { ::ReleaseCapture(); });
        Press(list.CheckPoint(2)); // the release would go to the box
        EXPECT_THAT(Codes(list), ElementsAre(LBN_SETFOCUS, CLBN_CHKCHANGE, LBN_SELCHANGE));
        Release();
        Host().hook = nullptr;
        Remove(list);
    }
}

TEST_F(CheckListTest, TheParentMayEmptyTheListWhenItIsTold)
{
    for (const UINT code : {UINT(CLBN_CHKCHANGE), UINT(LBN_SETFOCUS), UINT(LBN_SELCHANGE)})
    {
        for (const bool byKey : {false, true})
        {
            const DWORD kind = code == LBN_SELCHANGE ? LBS_MULTIPLESEL : 0;
            auto& list = AddList(4, BS_AUTOCHECKBOX, CheckListStyle | kind);
            const CPoint check = list.CheckPoint(1);
            list.SendMessage(kind != 0 ? LB_SETSEL : LB_SETCURSEL, 1, 1);
            list.SendMessage(LB_SETCARETINDEX, 1);
            const OnceTold acted(Host(), code, [&] { list.ResetContent(); });
            if (byKey)
            {
                list.SetFocus();
            }
            byKey ? TypeKey(VK_SPACE) : Click(check);
            EXPECT_TRUE(bool(acted)) << code << byKey;
            EXPECT_EQ(list.Records(), 0U);
            Remove(list);
            PumpFor(int(::GetDoubleClickTime()) + 30); // the next click is to be one of its own
        }
    }
}
