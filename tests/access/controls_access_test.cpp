// What each kind of control answers to assistive programs, in the standard and an on-board mode.

#include "BoldStatic.h"
#include "CustomCheckBox.h"
#include "CustomChecklistBox.h"
#include "CustomEdit.h"
#include "CustomListBox.h"
#include "CustomListCtrl.h"
#include "CustomPushbutton.h"
#include "CustomStatusBar.h"
#include "CustomToolbar.h"
#include "EditWithPrompt.h"
#include "MultiTree.h"
#include "QuixEdit.h"
#include "catalog/Makers.h"
#include "lists/combo_for_tests.h"
#include "support/Accessible.h"

#include <stdexcept>

INSTANTIATE_TEST_SUITE_P(Controls, AccessInModes, testing::Values(STD, ONBOARD));

TEST_P(AccessInModes, WhatOnlyShowsTellsItsKindAndText)
{
    const CRect place(10, 10, 110, 60);
    auto& bar = Add<CCustomStatusBar>(place);
    int edges[] = {60, 120, -1};
    bar.SetParts(3, edges);
    bar.SetText("Ready", 0, 0);
    bar.SetText("\tUTC 12:00", 2, 0);
    const std::tuple<const CWnd&, long, const char*> statics[] = {
        {Add<CCustomStatic>(place, 0, "&Fuel && oil"), ROLE_SYSTEM_STATICTEXT, "Fuel & oil"},
        {Add<CBoldStatic>(place, SS_NOPREFIX, "A&B"), ROLE_SYSTEM_STATICTEXT, "A&B"},
        {Add<CCustomStatic>(place, SS_ICON, "\xFF\x16\x27"), ROLE_SYSTEM_GRAPHIC, ""},
        {Add<CCustomStatic>(place, BS_GROUPBOX, "&Tanks"), ROLE_SYSTEM_GROUPING, "Tanks"},
        {bar, ROLE_SYSTEM_STATUSBAR, "Ready"},
    };
    for (const auto& [window, role, name] : statics)
    {
        const Read read(*Reached(window), CHILDID_SELF);
        EXPECT_EQ(read.role, role) << name;
        EXPECT_EQ(read.name, name);
        EXPECT_EQ(read.state, STATE_SYSTEM_READONLY) << name;
    }
    EXPECT_EQ(Read(*Reached(bar), CHILDID_SELF).value, "Ready; UTC 12:00");
}

TEST_P(AccessInModes, DefaultActionsWorkAsTheUserDoes)
{
    auto& box = Add<CCustomCheckBox>(CRect(10, 10, 200, 60), BS_AUTO3STATE, "Auto");
    const Held<IAccessible> check = Reached(box);
    std::string told;
    for (const int state : {BST_UNCHECKED, BST_CHECKED, BST_INDETERMINATE})
    {
        box.SetCheck(state);
        EXPECT_EQ(check->accDoDefaultAction(Child(CHILDID_SELF)), S_OK);
        told += Read(*check, CHILDID_SELF).action; // posted
        PumpAll();
        told += std::to_string(box.GetCheck()) + " ";
    }
    // On-board a click never leads to the third state.
    EXPECT_EQ(told, GetParam() == STD ? "Check1 Toggle2 Uncheck0 " : "Check1 Uncheck0 Check1 ");
    box.SetCheck(BST_CHECKED);
    EXPECT_EQ(Read(*check, CHILDID_SELF).state, STATE_SYSTEM_CHECKED | STATE_SYSTEM_FOCUSED);
    box.SetState(TRUE);
    EXPECT_NE(Read(*check, CHILDID_SELF).state & STATE_SYSTEM_PRESSED, 0);
    box.SetState(FALSE);
    box.EnableWindow(FALSE);
    EXPECT_EQ(check->accDoDefaultAction(Child(CHILDID_SELF)), DISP_E_MEMBERNOTFOUND);

    Add<CCustomStatic>(CRect(10, 70, 110, 90), 0, "&Runway");
    auto& combo = Add<ComboForTests>(CRect(10, 90, 200, 120));
    combo.AddString("07L");
    combo.AddString("25R");
    combo.AddString("34");
    combo.SetCurSel(0);
    const Held<IAccessible> object = Reached(combo);
    const auto open = [&] { return Read(*object, CHILDID_SELF).state & ~STATE_SYSTEM_FOCUSED; };
    EXPECT_EQ(open(), STATE_SYSTEM_COLLAPSED);
    Host().Forget();
    for (const long state : {STATE_SYSTEM_EXPANDED, STATE_SYSTEM_COLLAPSED, STATE_SYSTEM_EXPANDED})
    {
        EXPECT_EQ(object->accDoDefaultAction(Child(CHILDID_SELF)), S_OK);
        EXPECT_NE(open(), state) << "posted";
        PumpAll();
        EXPECT_EQ(open(), state);
    }
    EXPECT_THAT(Host().CodesFrom(UINT(combo.GetDlgCtrlID())),
                testing::Contains(UINT(CBN_SELCHANGE)))
        << "as when the user closes it";
    // The open list: highlighting chooses nothing yet, the default action does and closes.
    const Held<IAccessible> list = Reached(combo.List());
    EXPECT_EQ(Read(*list, CHILDID_SELF).name, "Runway") << "as its combo";
    EXPECT_EQ(list->accSelect(SELFLAG_NONE, Child(2)), S_OK);
    EXPECT_EQ(Read(*list, 2).state, 0) << "nothing was asked for";
    EXPECT_EQ(list->accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, Child(2)), S_OK);
    EXPECT_EQ(Read(*list, 2).state, STATE_SYSTEM_SELECTED);
    EXPECT_EQ(CWnd::GetFocus(), &combo);
    EXPECT_EQ(Read(*object, CHILDID_SELF).value, "07L");
    EXPECT_EQ(list->accDoDefaultAction(Child(3)), S_OK);
    combo.RemoveString(2);
    PumpAll();
    EXPECT_EQ(open(), STATE_SYSTEM_EXPANDED) << "the row has gone meanwhile";
    EXPECT_EQ(list->accDoDefaultAction(Child(2)), S_OK);
    EXPECT_EQ(Read(*object, CHILDID_SELF).value, "07L") << "posted";
    PumpAll();
    EXPECT_EQ(open(), STATE_SYSTEM_COLLAPSED);
    EXPECT_EQ(Read(*object, CHILDID_SELF).value, "25R");
    EXPECT_EQ(Read(*object, CHILDID_SELF).name, "Runway");
    EXPECT_EQ(list->accDoDefaultAction(Child(1)), DISP_E_MEMBERNOTFOUND);
    combo.EnableWindow(FALSE);
    EXPECT_EQ(open(), STATE_SYSTEM_COLLAPSED | STATE_SYSTEM_UNAVAILABLE);
}

TEST_P(AccessInModes, RowsAreToldWhereTheyStand)
{
    auto& box = Add<CCustomListBox>(CRect(10, 10, 200, 160), LBS_NOTIFY | LBS_NOINTEGRALHEIGHT);
    auto& report = Add<CCustomListCtrl>(CRect(210, 10, 460, 210), LVS_REPORT | LVS_SHOWSELALWAYS);
    report.InsertColumn(0, "Name", LVCFMT_LEFT, 60);
    report.InsertColumn(1, "Fuel", LVCFMT_LEFT, 40);
    report.InsertColumn(2, "Load", LVCFMT_LEFT, 40);
    for (int row = 0; row < 60; ++row)
    {
        const std::string text = "Row " + std::to_string(row);
        box.AddString(text.c_str());
        report.InsertItem(row, text.c_str());
        report.SetItemText(row, 1, "12 t");
        report.SetItemText(row, 2, "9 t");
    }
    for (CWnd* const window : {static_cast<CWnd*>(&box), static_cast<CWnd*>(&report)})
    {
        SCOPED_TRACE(window == &box ? "list box" : "report list");
        const Held<IAccessible> object = Reached(*window);
        EXPECT_EQ(Read(*object, CHILDID_SELF).role, ROLE_SYSTEM_LIST);
        const Read hidden(*object, 41);
        EXPECT_EQ(hidden.role, ROLE_SYSTEM_LISTITEM);
        EXPECT_EQ(hidden.name, "Row 40");
        EXPECT_EQ(hidden.state, STATE_SYSTEM_OFFSCREEN);
        Host().Forget();
        EXPECT_EQ(object->accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, Child(41)), S_OK);
        PumpAll();
        EXPECT_FALSE(Host().CodesFrom(UINT(window->GetDlgCtrlID())).empty());
        EXPECT_EQ(Read(*object, 41).state, STATE_SYSTEM_SELECTED | STATE_SYSTEM_FOCUSED);
        EXPECT_EQ(Read(*object, 1).state, STATE_SYSTEM_OFFSCREEN);
        // What is told of a place is what a click on it finds.
        const CRect row = PlaceOf(*object, 40);
        ASSERT_TRUE(WindowRectOf(*window).PtInRect(row.CenterPoint())) << row.top;
        EXPECT_EQ(ChildAt(*object, row.TopLeft() + CSize(9, 2)), 40);
        Click(row.TopLeft() + CSize(9, row.Height() / 2));
        EXPECT_EQ(FocusIn(*object), 40);
        EXPECT_EQ(SelectionIn(*object), 40);
        EXPECT_EQ(object->accDoDefaultAction(Child(40)), S_OK);
        PumpAll();
        EXPECT_THAT(Host().CodesFrom(UINT(window->GetDlgCtrlID())),
                    testing::Contains(window == &box ? UINT(LBN_DBLCLK) : UINT(LVN_ITEMACTIVATE)));
    }
    EXPECT_EQ(Read(*Reached(report), 3).description, "12 t; 9 t");
    EXPECT_EQ(Read(*Reached(report), 62).role, -1); // the header is an object
}

// A host's button that fails when it is asked its name, which it has given by then.
class FailingButton : public CCustomCheckBox
{
public:
    std::function<void()> fail;

    HRESULT get_accName(VARIANT child, BSTR* name) override
    {
        const HRESULT result = CCustomCheckBox::get_accName(child, name);
        fail();
        return result;
    }
};

TEST_F(WindowTest, WhatAHostThrowsReachesNoAssistiveProgram)
{
    auto& button = Add<FailingButton>(CRect(10, 10, 100, 50), 0, "Direct");
    const Held<IAccessible> object = Reached(button);
    const std::function<void()> ways[] = {
        &AfxThrowNotSupportedException,
        [] { throw std::out_of_range("No such leg."); },
        [] { throw 1; },
        [&] {
            button.DestroyWindow();
            throw 1;
        },
    };
    for (const auto& way : ways)
    {
        button.fail = way;
        BSTR name = nullptr;
        EXPECT_TRUE(FAILED(object->get_accName(Child(CHILDID_SELF), &name)));
        EXPECT_EQ(name, nullptr);
    }
}

TEST_P(AccessInModes, WhatTheUserCannotReachIsReadAndNotWorkedNorSelected)
{
    constexpr long Wish = SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION;
    auto& report = Add<CCustomListCtrl>(CRect(210, 10, 460, 210), LVS_REPORT);
    report.InsertColumn(0, "Name", LVCFMT_LEFT, 160);
    report.InsertItem(0, "Fuel");
    auto& box = Add<CCustomListBox>(CRect(10, 10, 200, 160), LBS_NOTIFY);
    box.AddString("Fuel");
    auto& checks =
        Add<CCustomChecklistBox>(CRect(10, 170, 200, 320), LBS_OWNERDRAWFIXED | LBS_HASSTRINGS);
    checks.AddString("Fuel");
    auto& tree = Add<MultiTree>(CRect(210, 220, 460, 320), TVS_HASBUTTONS);
    tree.InsertItem("KJFK", tree.InsertItem("Fuel"));
    auto& combo = Add<ComboForTests>(CRect(10, 330, 200, 360));
    combo.AddString("Fuel");
    auto& dropped = Add<ComboForTests>(CRect(470, 370, 600, 400));
    dropped.AddString("Fuel");
    dropped.DoDropButton();
    const Contents fuel = {CRect(0, 0, 300, 200), "Fuel"};
    const std::unique_ptr<CWnd> sheet = Makers<Fenced>::MakeSheet(Host(), fuel);
    const HWND tabs = ::FindWindowEx(*sheet, nullptr, WC_TABCONTROL, nullptr);
    auto& button = Add<CCustomPushbutton>(CRect(210, 330, 460, 360), 0, "Fuel");
    auto& edit = Add<QuixEdit>(CRect(470, 330, 600, 360));
    CustomToolbar bar;
    bar.CreateEx(&Host(), TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE);
    TBBUTTON tool = {.iBitmap = I_IMAGENONE, .idCommand = 8, .fsState = TBSTATE_ENABLED};
    bar.SendMessage(TB_ADDBUTTONS, 1, LPARAM(&tool));
    bar.MoveWindow(470, 10, 200, 60);
    const auto tells = [this](int id, UINT code) {
        return [=, this] { return std::ranges::count(Host().CodesFrom(UINT(id)), code) > 0; };
    };
    // The window, its child and whether its action is done; that of the others is not posted.
    const std::tuple<HWND, long, std::function<bool()>> all[] = {
        {report, 1, tells(report.GetDlgCtrlID(), UINT(LVN_ITEMACTIVATE))},
        {*report.GetHeaderCtrl(), 1, tells(report.GetDlgCtrlID(), UINT(LVN_COLUMNCLICK))},
        {box, 1, tells(box.GetDlgCtrlID(), LBN_DBLCLK)},
        {checks, 1, {}},
        {tree, 1, {}},
        {button, CHILDID_SELF, tells(button.GetDlgCtrlID(), BN_CLICKED)},
        {bar, 1, tells(tool.idCommand, BN_CLICKED)},
        {combo, CHILDID_SELF, [&] { return combo.IsExpanded(); }},
        {dropped.List(), 1, [&] { return dropped.GetCurSel() == 0; }},
        {tabs, 2, [&] { return ::SendMessage(tabs, TCM_GETCURSEL, 0, 0) == 1; }}};
    for (const auto& [window, child, isDone] : all)
    {
        CWnd& form = window == tabs ? *sheet : Host();
        const Held<IAccessible> object = Reached(window);
        const Read before(*object, child);
        SCOPED_TRACE(before.role);
        EXPECT_EQ(before.state & STATE_SYSTEM_UNAVAILABLE, 0);
        form.EnableWindow(FALSE); // as that of a modal dialog is
        const Read read(*object, child);
        EXPECT_EQ(read.state, before.state | STATE_SYSTEM_UNAVAILABLE);
        EXPECT_EQ(read.name, before.name);
        EXPECT_EQ(object->accDoDefaultAction(Child(child)), DISP_E_MEMBERNOTFOUND);
        form.EnableWindow();
        form.ShowWindow(SW_HIDE);
        EXPECT_EQ(object->accDoDefaultAction(Child(child)), DISP_E_MEMBERNOTFOUND);
        form.ShowWindow(SW_SHOWNA);
        PumpAll();
        EXPECT_EQ(Read(*object, child).state, before.state);
        for (const bool reachable : isDone ? std::vector{false, true} : std::vector<bool>())
        {
            Host().Forget();
            EXPECT_EQ(object->accDoDefaultAction(Child(child)), S_OK);
            form.EnableWindow(reachable);
            PumpAll();
            EXPECT_EQ(isDone(), reachable);
            form.EnableWindow();
        }
    }
    combo.ListClosed(0);
    auto& fixed = Add<CCustomListBox>(CRect(470, 10, 600, 160), LBS_NOTIFY | LBS_NOSEL);
    fixed.AddString("Fuel");
    const Held<IAccessible> rows = Reached(fixed);
    EXPECT_EQ(Read(*rows, 1).action, "(none)");
    EXPECT_EQ(rows->accDoDefaultAction(Child(1)), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(rows->accSelect(Wish, Child(1)), E_INVALIDARG);
    EXPECT_EQ(fixed.GetCurSel(), -1);
    EXPECT_EQ(rows->accSelect(SELFLAG_TAKEFOCUS, Child(1)), S_OK);
    // Its heading is a window of its own, and not disabled.
    report.EnableWindow(FALSE);
    EXPECT_EQ(Reached(*report.GetHeaderCtrl())->accDoDefaultAction(Child(1)),
              DISP_E_MEMBERNOTFOUND);
    Host().EnableWindow(FALSE);
    PumpAll();
    EXPECT_EQ(Read(*Reached(edit), CHILDID_SELF).state, STATE_SYSTEM_UNAVAILABLE);
    EXPECT_EQ(Reached(tree)->accSelect(SELFLAG_TAKESELECTION, Child(1)), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(SelectionIn(*Reached(tree)), -1);
    Host().EnableWindow();
}

TEST_P(AccessInModes, APasswordIsToldAsOneAndNotTold)
{
    auto& prompted = Add<EditWithPrompt>(CRect(10, 10, 200, 40), ES_PASSWORD);
    prompted.SetPromptText("PIN");
    const auto expectHidden = [](CWnd& edit, const char* when) {
        const Read read(*Reached(edit), CHILDID_SELF);
        EXPECT_NE(read.state & STATE_SYSTEM_PROTECTED, 0) << when;
        EXPECT_NE(read.value, "secret") << when;
    };
    prompted.Reset();
    EXPECT_EQ(prompted.GetWindowTextLength(), 0);
    expectHidden(prompted, "its prompt shows");
    prompted.SetWindowText("secret");
    expectHidden(prompted, "its text shows");
    auto& custom = Add<CCustomEdit>(CRect(10, 50, 200, 80), ES_PASSWORD);
    custom.SetWindowText("secret");
    expectHidden(custom, "custom edit");
    prompted.SetPasswordChar(0);
    EXPECT_EQ(Read(*Reached(prompted), CHILDID_SELF).state & STATE_SYSTEM_PROTECTED, 0);
}
