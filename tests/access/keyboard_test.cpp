// Every control of the catalog, reached and worked by keys alone in every mode, and read as an
// assistive program reads it.

#include "ColorStatic.h"
#include "CustomDialog.h"
#include "CustomEdit.h"
#include "CustomListCtrl.h"
#include "CustomPropPage.h"
#include "CustomPropSheet.h"
#include "CustomStatic.h"
#include "CustomToolbar.h"
#include "EditWithPrompt.h"
#include "catalog/Controls.h"
#include "catalog/DialogTemplate.h"
#include "support/Accessible.h"
#include "support/Scripted.h"
#include "support/forms.h"

namespace {

constexpr UINT FirstButton = 101;
constexpr UINT LastButton = 102;
constexpr UINT FirstTool = 700;

// A host's dialog with a button, a label, the control and another button.
class Stage : public CCustomDialog
{
public:
    explicit Stage(APPMODE mode)
        : CCustomDialog(0U, nullptr)
    {
        DialogTemplate form(CRect(0, 0, 300, 200), WS_POPUP | WS_VISIBLE);
        form.Add("Button", "First", WS_TABSTOP, CRect(5, 5, 50, 19), FirstButton)
            .Add("Static", "Na&me", 0, CRect(60, 5, 100, 17), 103);
        CreateIndirect(form);
        COnBoardUIGeneral::SetAppMode(mode);
    }
    ~Stage() override { DestroyWindow(); }

    int clicks = 0; // of the control
    std::string answered;

    void AddLast()
    {
        m_last.Create("&Last", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(200, 5, 260, 30), this,
                      LastButton);
        PumpAll();
    }

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        clicks += wParam == MAKEWPARAM(ControlId, BN_CLICKED);
        answered += wParam >= FirstTool && HIWORD(wParam) == 0 ? std::to_string(wParam) + ' ' : "";
        return CCustomDialog::OnCommand(wParam, lParam);
    }
    void OnOK() override { answered += "OK "; }
    void OnCancel() override { answered += "Cancel "; }

private:
    CButton m_last;
};

std::string InWords(long state)
{
    std::string words;
    for (const auto& [bit, word] : {std::pair{STATE_SYSTEM_SELECTED, " selected"},
                                    {STATE_SYSTEM_CHECKED, " checked"},
                                    {STATE_SYSTEM_MIXED, " mixed"},
                                    {STATE_SYSTEM_EXPANDED, " open"},
                                    {STATE_SYSTEM_COLLAPSED, " closed"},
                                    {STATE_SYSTEM_READONLY, " read-only"}})
    {
        words += (state & bit) != 0 ? word : "";
    }
    return words;
}

// What is told of where the focus is: the row or the window, its value or else its name, its state.
std::string ToldOfFocus()
{
    const HWND focus = ::GetFocus();
    if (focus == nullptr)
    {
        return "no focus";
    }
    const Held<IAccessible> object = Reached(focus);
    const Read read(*object, std::max(FocusIn(*object), long(CHILDID_SELF)));
    const bool valued = read.role == ROLE_SYSTEM_TEXT || read.role == ROLE_SYSTEM_COMBOBOX;
    return (valued ? read.value : read.name) + InWords(read.state) +
           ((read.state & STATE_SYSTEM_FOCUSED) != 0 ? "" : " without focus");
}

struct Key
{
    UINT key;
    const char* told; // of where the focus is, when it has been typed; null: it does not matter
    UINT held = 0;
};

struct Worked
{
    const char* control;
    long role;
    const char* name;
    std::vector<Key> keys = {}; // none: Tab passes it by
    bool clicks = false;        // its parent is told of a click
};

const std::vector<Key> Types = {{'X', "x"}};
const std::vector<Key> GoesDown = {{VK_DOWN, nullptr}, {VK_DOWN, "Row 1 selected"}};
const std::vector<Key> Extends = {{VK_DOWN, "Row 1 selected"},
                                  {VK_DOWN, "Row 10 selected", VK_SHIFT}};
const std::vector<Key> Checks = {
    {VK_DOWN, nullptr}, {VK_DOWN, "Row 1 selected checked"}, {VK_SPACE, "Row 1 selected mixed"}};
const std::vector<Key> OpensAndChooses = {
    {VK_DOWN, "Row 0 open", VK_MENU},
    {VK_DOWN, nullptr},
    {VK_RETURN, "Row 1 closed"},
    {'L', "Row 1 closed"}}; // presses no button that has it for its mnemonic
const std::vector<Key> GoesOnUnselected = {
    {VK_DOWN, nullptr}, {VK_DOWN, "Row 1 selected"}, {VK_DOWN, "Row 2", VK_CONTROL}};
const std::vector<Key> GoesRound = {{VK_RIGHT, "Cancel"}, {VK_RIGHT, "Yes"}, {VK_LEFT, "Cancel"}};
const std::vector<Key> GoesThroughAPage = {{VK_TAB, "Row selected"}, {VK_TAB, "Row"}, {'X', "x"}};

const std::vector<Worked> AllWorked = {
    {"push button", ROLE_SYSTEM_PUSHBUTTON, "Row", {{VK_SPACE, "Row"}}, true},
    {"check box", ROLE_SYSTEM_CHECKBUTTON, "Row", {{VK_SPACE, "Row checked"}}, true},
    {"radio button", ROLE_SYSTEM_RADIOBUTTON, "Row", {{VK_SPACE, "Row checked"}}},
    {"label", ROLE_SYSTEM_STATICTEXT, "Row"},
    {"group box", ROLE_SYSTEM_GROUPING, "Row"},
    {"bold label", ROLE_SYSTEM_STATICTEXT, "Row"},
    {"swatch", ROLE_SYSTEM_GRAPHIC, "Row"},
    {"outline", ROLE_SYSTEM_GROUPING, "Row"},
    {"edit of many lines", ROLE_SYSTEM_TEXT, "Name", Types},
    {"edit of one line", ROLE_SYSTEM_TEXT, "Name", {{'X', "x"}, {'Y', "xy"}}},
    {"coloured edit", ROLE_SYSTEM_TEXT, "Name", Types},
    {"edit with prompt", ROLE_SYSTEM_TEXT, "Name", Types},
    {"fixed edit", ROLE_SYSTEM_TEXT, "Name", Types},
    {"list box", ROLE_SYSTEM_LIST, "Name", GoesDown},
    {"drawn list box", ROLE_SYSTEM_LIST, "Name", GoesDown},
    {"list box of many selections", ROLE_SYSTEM_LIST, "Name", Extends},
    {"list box of columns", ROLE_SYSTEM_LIST, "Name", GoesDown},
    {"check list", ROLE_SYSTEM_LIST, "Name", Checks},
    {"combo", ROLE_SYSTEM_COMBOBOX, "Name", OpensAndChooses},
    {"list of a combo", ROLE_SYSTEM_LIST, "(none)"}, // named and worked by its combo
    {"report list", ROLE_SYSTEM_LIST, "Name", GoesOnUnselected},
    {"header", ROLE_SYSTEM_LIST, "Name"},
    {"tree", ROLE_SYSTEM_OUTLINE, "Name", {{VK_RIGHT, "Row selected open"}}},
    {"tree view", ROLE_SYSTEM_OUTLINE, "Name", {{VK_RIGHT, "Row selected open"}}},
    {"status bar", ROLE_SYSTEM_STATUSBAR, "Row"},
    {"search bar", ROLE_SYSTEM_STATUSBAR, "Row"},
    {"tool bar", ROLE_SYSTEM_TOOLBAR, "Row", {{VK_RIGHT, "Row"}}},
    {"form view", ROLE_SYSTEM_PANE, "Row", {{'X', "x"}, {VK_TAB, "Row"}}},
    {"property sheet", ROLE_SYSTEM_DIALOG, "Row", GoesThroughAPage},
    {"property page", ROLE_SYSTEM_PROPERTYPAGE, "Row", GoesThroughAPage},
    {"dialog", ROLE_SYSTEM_DIALOG, "Row", {{VK_TAB, "Row"}, {'X', "x"}}},
    {"message box", ROLE_SYSTEM_DIALOG, "Title", GoesRound},
};

} // namespace

class KeyboardAlone : public AccessInModes
{};

INSTANTIATE_TEST_SUITE_P(Controls, KeyboardAlone,
                         testing::Values(STD, FULLSCREEN, ONBOARD, EFB, EFBFS));

TEST_P(KeyboardAlone, ReachesWorksAndReadsEveryControl)
{
    ASSERT_EQ(AllWorked.size(), Controls().size()) << "a control of the catalog is not here";
    for (size_t index = 0; index < AllWorked.size(); ++index)
    {
        const Worked& worked = AllWorked[index];
        SCOPED_TRACE(worked.control);
        ASSERT_STREQ(worked.control, Controls()[index].name);
        COnBoardUIGeneral::SetAppMode(STD);
        COnBoardUIGeneral::SetAppTitle("Title"); // of message boxes
        Stage stage(GetParam());
        const bool isEdit = worked.role == ROLE_SYSTEM_TEXT;
        const std::unique_ptr<CWnd> control =
            Controls()[index].make(stage, {CRect(20, 60, 220, 220), "Row", 40, !isEdit});
        ASSERT_TRUE(control);
        stage.AddLast();
        const bool onRow = std::string(worked.control) == "report list"; // as the platform's
        const bool isOnStage = ::GetAncestor(*control, GA_ROOT) == stage.GetSafeHwnd();
        const bool isForm = !isOnStage || worked.role == ROLE_SYSTEM_PANE;
        if (isOnStage || worked.keys.empty())
        {
            stage.GetDlgItem(FirstButton)->SetFocus();
        }

        const Pixels without = Settled(*control);
        TypeKey(VK_TAB);
        if (worked.keys.empty())
        {
            EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), int(LastButton));
        }
        else if (isForm)
        {
            EXPECT_TRUE(control->IsChild(CWnd::GetFocus()));
        }
        else
        {
            EXPECT_EQ(CWnd::GetFocus(), control.get());
            EXPECT_TRUE(onRow || WindowPixels(*control) != without) << "the focus is not seen";
        }
        const Read read(*Reached(*control), CHILDID_SELF);
        EXPECT_EQ(read.role, worked.role);
        EXPECT_EQ(read.name, worked.name);
        for (const Key& key : worked.keys)
        {
            TypeKey(key.key, key.held);
            if (key.told)
            {
                EXPECT_EQ(ToldOfFocus(), key.told);
            }
        }
        EXPECT_TRUE(stage.clicks > 0 || !worked.clicks);
        if (!isForm && !worked.keys.empty())
        {
            const Pixels with = WindowPixels(*control);
            TypeKey(VK_TAB);
            EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), int(LastButton));
            EXPECT_TRUE(!onRow || WindowPixels(*control) != with) << "the focus is not seen";
        }
        control->DestroyWindow();
    }
    COnBoardUIGeneral::SetAppTitle("");
}

// Its dialog goes on working, whatever it looks like.
TEST_P(KeyboardAlone, GetsOutOfAnEditThatTakesNoKey)
{
    Stage stage(GetParam());
    CCustomEdit edit;
    edit.CreateEx(WS_EX_CLIENTEDGE, "EDIT", "one\r\ntwo",
                  WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_MULTILINE | ES_WANTRETURN,
                  CRect(20, 60, 220, 120), &stage, ControlId);
    edit.SetFauxReadOnly();
    stage.AddLast();
    edit.SetFocus();
    TypeKey(VK_TAB);
    EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), int(LastButton));
    TypeKey(VK_TAB, VK_SHIFT);
    EXPECT_EQ(CWnd::GetFocus(), &edit);
    TypeKey(VK_RETURN);
    TypeKey(VK_ESCAPE);
    EXPECT_EQ(stage.answered, "OK Cancel ");
}

// Appends a button to a bar.
void AddTool(CustomToolbar& bar, const char* text, BYTE style, BYTE state = TBSTATE_ENABLED)
{
    TBBUTTON button = {.iBitmap = I_IMAGENONE,
                       .idCommand = style == TBSTYLE_SEP ? 0 : int(FirstTool) + bar.GetCount(),
                       .fsState = state,
                       .fsStyle = style,
                       .iString = INT_PTR(text)};
    bar.SendMessage(TB_ADDBUTTONS, 1, LPARAM(&button));
}

TEST_P(KeyboardAlone, ReachesAndPressesWhatCanBePressedOfAToolBar)
{
    Stage stage(GetParam());
    CustomToolbar bar;
    ASSERT_TRUE(bar.CreateEx(&stage, TBSTYLE_LIST, WS_CHILD | WS_VISIBLE | WS_TABSTOP));
    AddTool(bar, "Disabled", TBSTYLE_BUTTON, 0);
    AddTool(bar, "Plan", TBSTYLE_BUTTON);
    AddTool(bar, "", TBSTYLE_SEP);
    AddTool(bar, "Hidden", TBSTYLE_BUTTON, TBSTATE_ENABLED | TBSTATE_HIDDEN);
    AddTool(bar, "Chart", TBSTYLE_CHECK);
    AddTool(bar, "Last", TBSTYLE_BUTTON);
    bar.SetWindowPos(nullptr, 0, 60, 600, 60, SWP_NOZORDER);
    stage.AddLast();
    stage.GetDlgItem(FirstButton)->SetFocus();
    const Key keys[] = {
        {VK_TAB, "Plan"},   {VK_LEFT, "Plan"},  {VK_RETURN, "Plan"},         {VK_END, "Last"},
        {VK_RIGHT, "Last"}, {VK_LEFT, "Chart"}, {VK_SPACE, "Chart checked"}, {VK_HOME, "Plan"},
        {VK_SPACE, "Plan"}};
    for (const Key& key : keys)
    {
        RestPointer();
        const Pixels before = WindowPixels(bar);
        const std::string was = ToldOfFocus();
        TypeKey(key.key);
        EXPECT_EQ(ToldOfFocus(), key.told);
        EXPECT_EQ(Settled(bar) != before, was != key.told) << "the focus is not seen";
    }
    EXPECT_EQ(stage.answered, "701 704 701 ");
    bar.ModifyStyle(0, TBSTYLE_FLAT); // whose buttons fill no ground
    Repaint(bar);
    const Pixels whole = Settled(bar);
    CRect part;
    bar.GetItemRect(1, &part);
    part.right -= 20;
    for (const BOOL erase : {TRUE, FALSE})
    {
        bar.InvalidateRect(&part, erase);
        EXPECT_EQ(Settled(bar), whole) << "what shows the focus is painted once, " << erase;
    }
    bar.SendMessage(TB_ENABLEBUTTON, FirstTool + 1, FALSE);
    TypeKey(VK_SPACE);
    TypeKey(VK_ESCAPE);
    EXPECT_EQ(stage.answered, "701 704 701 Cancel ");
    TypeKey(VK_RIGHT);
    const auto toldAfterReturn = [] {
        TypeKey(VK_TAB, VK_SHIFT);
        TypeKey(VK_TAB);
        return ToldOfFocus();
    };
    EXPECT_EQ(toldAfterReturn(), "Chart checked") << "where it was";
    bar.SendMessage(TB_HIDEBUTTON, FirstTool + 4, TRUE);
    TypeKey(VK_RETURN); // no button's, so it is the dialog's
    EXPECT_EQ(toldAfterReturn(), "Last");
    bar.SendMessage(TB_HIDEBUTTON, FirstTool + 5, TRUE);
    bar.SendMessage(TB_HIDEBUTTON, FirstTool + 4, FALSE);
    EXPECT_EQ(toldAfterReturn(), "Chart checked");
    bar.SendMessage(TB_ENABLEBUTTON, FirstTool + 1, TRUE);
    bar.SubclassWindow(bar.UnsubclassWindow());
    EXPECT_EQ(toldAfterReturn(), "Plan") << "the first of the object's next bar";
    while (bar.GetCount() > 0)
    {
        bar.SendMessage(TB_DELETEBUTTON, 0);
    }
    TypeKey(VK_RIGHT);
    TypeKey(VK_RETURN);
    EXPECT_EQ(stage.answered, "701 704 701 Cancel OK OK ") << "nothing to press";
}

TEST_P(KeyboardAlone, HasTheFocusInSightOnAFormLargerThanItsPlace)
{
    Stage stage(GetParam());
    const auto form = std::ranges::find(Controls(), std::string("form view"), &Control::name);
    ASSERT_NE(form, Controls().end());
    const std::unique_ptr<CWnd> view = form->make(stage, {CRect(20, 60, 120, 110), "Row"});
    view->SendMessage(WM_VSCROLL, SB_BOTTOM);
    view->GetWindow(GW_CHILD)->GetNextWindow()->SetFocus();
    for (const UINT held : {0, VK_SHIFT, 0})
    {
        TypeKey(VK_TAB, held);
        const CRect place = PlaceIn(*view, ::GetFocus());
        const CRect client = ClientRectOf(*view);
        EXPECT_TRUE(view->IsChild(CWnd::GetFocus()));
        EXPECT_TRUE(place.top == 0 || (place.top > 0 && place.bottom <= client.bottom)) << held;
        EXPECT_GE(place.left, 0);
    }
    view->DestroyWindow();
}

// A window and its parts from the first on. The second is found where it says that it is, and its
// default action is done.
void ReadAndWork(const CWnd& window, const std::vector<std::pair<long, const char*>>& parts)
{
    const Held<IAccessible> object = Reached(window);
    for (size_t child = CHILDID_SELF; child < parts.size(); ++child)
    {
        const Read read(*object, long(child));
        EXPECT_EQ(read.role, parts[child].first) << child;
        EXPECT_EQ(read.name, parts[child].second);
    }
    EXPECT_EQ(ChildAt(*object, PlaceOf(*object, 2).CenterPoint()), 2);
    EXPECT_EQ(object->accDoDefaultAction(Child(2)), S_OK);
    PumpAll();
}

TEST_P(KeyboardAlone, ReadsWindowsOfParts)
{
    Add<CCustomStatic>(CRect(10, 70, 110, 90), 0, "&Runways");
    auto& report = Add<CCustomListCtrl>(CRect(10, 90, 260, 200), LVS_REPORT);
    report.InsertColumn(0, "Name", LVCFMT_LEFT, 80);
    report.InsertColumn(1, "Length", LVCFMT_LEFT, 80);
    PumpAll();
    ReadAndWork(*report.GetHeaderCtrl(), {{ROLE_SYSTEM_LIST, "Runways"},
                                          {ROLE_SYSTEM_COLUMNHEADER, "Name"},
                                          {ROLE_SYSTEM_COLUMNHEADER, "Length"}});
    EXPECT_THAT(Host().CodesFrom(UINT(report.GetDlgCtrlID())),
                testing::Contains(UINT(LVN_COLUMNCLICK)));

    Add<CColorStatic>(CRect(280, 90, 300, 110), 0, ""); // no label: it has no text
    auto& prompt = Add<EditWithPrompt>(CRect(300, 90, 400, 110));
    EXPECT_EQ(Read(*Reached(prompt), CHILDID_SELF).name, "<Enter text here>") << "without a label";
    EXPECT_EQ(Read(*Reached(prompt), CHILDID_SELF).value, "");
    auto& edit = Add<CCustomEdit>(CRect(300, 120, 400, 150));
    EXPECT_EQ(Read(*Reached(edit), CHILDID_SELF).state, 0);
    edit.SetFauxReadOnly();
    EXPECT_EQ(Read(*Reached(edit), CHILDID_SELF).state, STATE_SYSTEM_READONLY);
    Add<CCustomStatic>(CRect(280, 160, 300, 180), SS_ICON, "\xFF\x16\x27"); // none, too
    EXPECT_EQ(Read(*Reached(Add<CCustomEdit>(CRect(300, 160, 400, 180))), CHILDID_SELF).name,
              "(none)");

    CustomToolbar bar;
    ASSERT_TRUE(bar.CreateEx(&Host(), TBSTYLE_FLAT | TBSTYLE_LIST, WS_CHILD | WS_VISIBLE));
    for (const BYTE style : {TBSTYLE_BUTTON, TBSTYLE_CHECK, TBSTYLE_SEP})
    {
        AddTool(bar, "Tool", style);
    }
    bar.SetWindowPos(nullptr, 0, 0, 300, 40, SWP_NOZORDER);
    PumpAll();
    ReadAndWork(bar, {{ROLE_SYSTEM_TOOLBAR, "(none)"},
                      {ROLE_SYSTEM_PUSHBUTTON, "Tool"},
                      {ROLE_SYSTEM_CHECKBUTTON, "Tool"},
                      {ROLE_SYSTEM_SEPARATOR, ""}});
    EXPECT_EQ(Read(*Reached(bar), 2).state, STATE_SYSTEM_CHECKED);

    CCustomPropPage page(IDD_TEST_PAGE_1), second(IDD_TEST_PAGE_2);
    Scripted<CCustomPropSheet> sheet("Sheet", nullptr, &Host());
    sheet.AddPage(&page);
    sheet.AddPage(&second);
    sheet.inLoop = [&] {
        CWnd& tabs = *sheet.GetTabControl();
        ReadAndWork(tabs, {{ROLE_SYSTEM_PAGETABLIST, "Sheet"},
                           {ROLE_SYSTEM_PAGETAB, "First"},
                           {ROLE_SYSTEM_PAGETAB, "Second"}});
        EXPECT_EQ(sheet.GetActiveIndex(), 1);
        const Pixels without = WindowPixels(tabs);
        tabs.SetFocus();
        EXPECT_NE(Settled(tabs), without) << "the focus is not seen";
        EXPECT_EQ(ToldOfFocus(), "Second selected");
        TypeKey(VK_LEFT);
        EXPECT_EQ(ToldOfFocus(), "First selected");
        TypeKey(VK_ESCAPE);
        tabs.EnableWindow(FALSE);
        EXPECT_EQ(Read(*Reached(tabs), 2).state, STATE_SYSTEM_UNAVAILABLE);
    };
    EXPECT_EQ(sheet.DoModal(), IDCANCEL);
}
