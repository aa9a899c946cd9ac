// The check list as an assistive program sees it: through the platform's accessibility interface.

#include "lists/check_list_for_tests.h"
#include "support/Accessible.h"

using testing::ElementsAre;

using CheckListAccess = CheckListTest;

TEST_F(CheckListAccess, FixedAndAbsentRowsAreToldAsSuch)
{
    auto& list = AddList(3, BS_AUTO3STATE);
    const Held<IAccessible> object = Reached(list);
    list.SetCheck(1, 2);
    list.Enable(2, FALSE);
    EXPECT_EQ(Read(*object, 2).role, ROLE_SYSTEM_CHECKBUTTON);
    EXPECT_EQ(Read(*object, 2).state, STATE_SYSTEM_MIXED);
    EXPECT_EQ(Read(*object, 3).state, STATE_SYSTEM_UNAVAILABLE | STATE_SYSTEM_FOCUSABLE)
        << "it can be selected all the same";
    list.EnableWindow(FALSE);
    EXPECT_EQ(Read(*object, 1).state, STATE_SYSTEM_UNAVAILABLE);
    for (const long child : {-1L, 4L, LONG_MAX})
    {
        const Read absent(*object, child);
        EXPECT_EQ(absent.role, -1) << child;
        EXPECT_EQ(absent.state, -1) << child;
        EXPECT_EQ(absent.name, "(error)") << child;
        EXPECT_EQ(object->accDoDefaultAction(Child(child)), E_INVALIDARG) << child;
    }
}

TEST_F(CheckListAccess, TheDefaultActionChangesTheCheck)
{
    auto& list = AddList(3, BS_AUTO3STATE);
    const Held<IAccessible> object = Reached(list);
    std::vector<std::string> actions;
    std::vector<int> checks;
    for (int turn = 0; turn < 3; ++turn)
    {
        actions.push_back(Read(*object, 2).action);
        EXPECT_EQ(object->accDoDefaultAction(Child(2)), S_OK);
        checks.push_back(list.GetCheck(1));
    }
    EXPECT_THAT(actions, ElementsAre("Check", "Toggle", "Uncheck"));
    EXPECT_THAT(checks, ElementsAre(1, 2, 0));
    list.SetCheckStyle(BS_AUTOCHECKBOX);
    list.SetCheck(1, 1);
    EXPECT_EQ(Read(*object, 2).action, "Uncheck");
    // Where the user can change nothing, nor can an assistive program.
    list.Enable(0, FALSE);
    EXPECT_EQ(Read(*object, 1).action, "(none)");
    EXPECT_EQ(object->accDoDefaultAction(Child(1)), DISP_E_MEMBERNOTFOUND);
    list.SetCheckStyle(BS_CHECKBOX);
    EXPECT_EQ(Read(*object, 2).action, "(none)");
    EXPECT_EQ(object->accDoDefaultAction(Child(2)), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(list.GetCheck(1), 1);
    EXPECT_EQ(Told(list), 0) << "posted";
    PumpAll();
    EXPECT_EQ(Told(list), 3);
}

TEST_F(CheckListAccess, WaysAndSelection)
{
    auto& list = AddList(8, BS_AUTOCHECKBOX, CheckListStyle | LBS_EXTENDEDSEL);
    const Held<IAccessible> object = Reached(list);
    VARIANT answer = {};
    for (const auto& [way, from, to] :
         {std::tuple(NAVDIR_NEXT, 3, 4), {NAVDIR_LASTCHILD, CHILDID_SELF, 8}})
    {
        EXPECT_EQ(object->accNavigate(way, Child(from), &answer), S_OK);
        EXPECT_EQ(answer.lVal, to);
    }
    EXPECT_EQ(object->accNavigate(NAVDIR_NEXT, Child(8), &answer), S_FALSE);
    EXPECT_EQ(object->get_accSelection(&answer), S_FALSE);
    EXPECT_EQ(object->accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, Child(5)), S_OK);
    EXPECT_EQ(object->accSelect(SELFLAG_ADDSELECTION, Child(7)), S_OK);
    ASSERT_EQ(object->get_accSelection(&answer), S_OK);
    ASSERT_EQ(answer.vt, VT_UNKNOWN);
    const Held<IUnknown> told(answer.punkVal);
    IEnumVARIANT* found = nullptr;
    ASSERT_EQ(told->QueryInterface(IID_IEnumVARIANT, reinterpret_cast<void**>(&found)), S_OK);
    const Held<IEnumVARIANT> rows(found);
    VARIANT ids[3] = {};
    ULONG given = 0;
    EXPECT_EQ(rows->Next(3, ids, &given), S_FALSE);
    ASSERT_EQ(given, 2U);
    EXPECT_EQ(ids[0].lVal, 5);
    EXPECT_EQ(ids[1].lVal, 7);
    // What cannot be done is said; the parent is told what came of the rest.
    for (const long flags : {long(SELFLAG_EXTENDSELECTION), 0x20L, -1L,
                             long(SELFLAG_ADDSELECTION | SELFLAG_REMOVESELECTION)})
    {
        EXPECT_EQ(object->accSelect(flags, Child(2)), E_INVALIDARG) << flags;
    }
    EXPECT_THAT(Codes(list), ElementsAre(LBN_SETFOCUS)) << "posted";
    PumpAll();
    EXPECT_THAT(Codes(list), ElementsAre(LBN_SETFOCUS, LBN_SELCHANGE, LBN_SELCHANGE));
    EXPECT_EQ(Reached(AddList(3))->accSelect(SELFLAG_ADDSELECTION, Child(2)), E_INVALIDARG);
}

TEST_F(CheckListAccess, ChangesOfStateAreAnnounced)
{
    auto& list = AddList(4);
    const Events events(list);
    list.SetCheck(2, 1);
    list.SetCheck(1, 2); // refused, and announced all the same
    list.SetCheck(9, 1);
    list.SetCheck(9, 2); // refused before the row is looked for
    Click(list.CheckPoint(0));
    list.Enable(3, FALSE);
    list.Enable(3, FALSE);
    PumpAll();
    EXPECT_THAT(events.States(), ElementsAre(3, 2, 10, 1, 4));
    EXPECT_EQ(list.GetCheck(1), 0);
}
