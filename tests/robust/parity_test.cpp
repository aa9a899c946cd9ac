// Parity of buttons, labels, edits, bars and the combo's items.

#include "BoldStatic.h"
#include "ColorEdit.h"
#include "ColorStatic.h"
#include "ColoredGroupBox.h"
#include "CustomCheckBox.h"
#include "CustomDropListCombo.h"
#include "CustomEdit.h"
#include "CustomPushbutton.h"
#include "CustomRadiobutton.h"
#include "CustomStatic.h"
#include "CustomToolbar.h"
#include "EditWithPrompt.h"
#include "QuixEdit.h"
#include "SearchStatusBar.h"
#include "robust/Parity.h"

namespace {

void PressAndCheck(CButton& button, Journal& journal)
{
    for (const int check : {0, 1})
    {
        ASK((button.SetCheck(check), 0), button.GetCheck(), (button.SetState(check), 0),
            button.GetState() & BST_PUSHED);
    }
    ASK((button.SetState(FALSE), 0), TextOf(button), (button.SetWindowText("Direct &to"), 0),
        button.GetWindowTextLength(), button.SendMessage(WM_GETDLGCODE), journal.Press(10, 10),
        button.GetCheck(), journal.Middle(), button.GetCheck(), (button.SendMessage(BM_CLICK), 0),
        button.GetCheck(), journal.Key(VK_SPACE), journal.Key(VK_RETURN), button.GetCheck(),
        TextOf(button), (button.EnableWindow(FALSE), 0), journal.Press(10, 10), button.GetCheck(),
        button.GetButtonStyle());
}

void Label(CStatic& label, Journal& journal)
{
    ASK(TextOf(label), (label.SetWindowText("Two\r\nlines"), 0), journal.Press(10, 10),
        journal.Press(10, 10), journal.Middle(), TextOf(label), label.SendMessage(WM_GETDLGCODE),
        label.SetIcon(::LoadIcon(nullptr, IDI_WARNING)) == nullptr, label.GetIcon() == nullptr);
}

// A group of three, the head of the next one and a box around them, which alone is told of the
// clicks on our buttons in it. The arrow keys are the dialog's.
template <class Radio, class Frame> void Group(Radio& first, Journal& journal)
{
    constexpr DWORD Child = WS_CHILD | WS_VISIBLE;
    HostWindow& host = journal.Host();
    Radio others[3];
    for (int index = 0; index < 3; ++index)
    {
        others[index].CreateEx(
            0, "BUTTON", "Other",
            Child | BS_AUTORADIOBUTTON | BS_NOTIFY | (index == 2 ? WS_GROUP | WS_TABSTOP : 0),
            CRect(320, 40 * index, 420, 40 * index + 30), &host, UINT(80 + index));
    }
    Frame frame;
    frame.CreateEx(0, "BUTTON", "Frame", Child | BS_GROUPBOX, CRect(300, 0, 500, 300), &host, 90U);
    const auto step = [&](UINT key) {
        MSG message = {::GetFocus(), WM_KEYDOWN, key, 1, 0, {}};
        ::IsDialogMessage(host, &message);
        PumpAll();
        return ::GetDlgCtrlID(::GetFocus());
    };
    const auto checks = [&] {
        return first.GetCheck() * 1000 + others[0].GetCheck() * 100 + others[1].GetCheck() * 10 +
               others[2].GetCheck();
    };
    ASK(journal.Press(10, 10), checks(), step(VK_DOWN), checks(), step(VK_DOWN), checks(),
        journal.Middle(), step(VK_DOWN), checks(), step(VK_LEFT), checks(), step(VK_RIGHT),
        checks(), journal.Press(290, -20), checks(), (others[0].SetFocus(), 0), step(VK_UP),
        checks(), (others[1].EnableWindow(FALSE), 0), step(VK_UP), checks(), step(VK_TAB), checks(),
        (first.SetCheck(0), 0), (others[2].SendMessage(BM_CLICK), 0), checks(),
        first.SendMessage(WM_GETDLGCODE), others[0].SendMessage(WM_GETDLGCODE),
        frame.SendMessage(WM_GETDLGCODE), TextOf(frame));
}

void Write(CEdit& edit, Journal& journal)
{
    ASK((edit.SetWindowText("One\r\nTwo\r\nThree\r\nFour\r\nFive\r\nSix\r\nSeven\r\nEight"), 0),
        edit.GetLineCount(), edit.LineIndex(2), edit.LineLength(10), (edit.SetSel(2, 7), 0),
        edit.GetSel(), (edit.ReplaceSel("for", TRUE), 0), TextOf(edit), edit.CanUndo(), edit.Undo(),
        journal.Middle(), edit.GetSel(), TextOf(edit), edit.GetModify(), (edit.SetSel(4, 4), 0),
        journal.Key('W'), journal.Key(VK_BACK), journal.Key(VK_END, VK_SHIFT), edit.GetSel(),
        journal.Key(VK_DELETE), journal.Key(VK_DOWN), edit.GetSel(), TextOf(edit),
        (edit.LineScroll(3), 0), journal.Middle(), edit.GetFirstVisibleLine(),
        edit.SendMessage(EM_SCROLL, SB_LINEUP), edit.GetFirstVisibleLine(),
        (edit.SendMessage(EM_SCROLLCARET), 0), journal.Press(20, 12), edit.GetSel(),
        edit.CharFromPos(CPoint(30, 6)), Filled([&](CRect* rect) { edit.GetRect(rect); }),
        edit.GetMargins(), (edit.SetLimitText(6), 0), (edit.SetSel(0, -1), 0),
        (edit.ReplaceSel("Longer than six"), 0), TextOf(edit), (edit.SetSel(1, 3), 0),
        (edit.Cut(), 0), (edit.Paste(), 0), TextOf(edit), (edit.SetSel(0, 2), 0),
        journal.Key('X', VK_CONTROL), TextOf(edit), journal.Key('V', VK_CONTROL), TextOf(edit),
        journal.Key('Z', VK_CONTROL), TextOf(edit), edit.SetReadOnly(), journal.Key('X'),
        TextOf(edit), edit.SendMessage(WM_GETDLGCODE));
}

void Order(CToolBar& bar, Journal& journal)
{
    ASK(bar.SendMessage(TB_ADDSTRING, 0, LPARAM("Chart\0Plate\0")));
    for (int id = 1; id <= 4; ++id)
    {
        TBBUTTON button = {.idCommand = id,
                           .fsState = TBSTATE_ENABLED,
                           .fsStyle = BYTE(id == 3 ? BTNS_CHECK : BTNS_BUTTON),
                           .iString = id % 2};
        ASK(bar.SendMessage(TB_ADDBUTTONS, 1, LPARAM(&button)));
    }
    TBBUTTON inserted = {.idCommand = 9, .fsState = TBSTATE_ENABLED, .iString = INT_PTR("Own")};
    ASK(bar.SendMessage(TB_BUTTONCOUNT), bar.CommandToIndex(3),
        bar.SendMessage(TB_CHECKBUTTON, 3, TRUE), bar.SendMessage(TB_ENABLEBUTTON, 2, FALSE),
        bar.SendMessage(TB_HIDEBUTTON, 99, TRUE),
        bar.SendMessage(TB_INSERTBUTTON, 1, LPARAM(&inserted)), bar.SetButtonText(0, "Changed"),
        bar.SendMessage(TB_MOVEBUTTON, 4, 2), bar.SendMessage(TB_SETCMDID, 3, 7), journal.Middle());
    for (int index = 0; index < 5; ++index)
    {
        ASK(bar.GetItemID(index), bar.GetButtonText(index),
            Filled([&](CRect* rect) { bar.GetItemRect(index, rect); }),
            bar.SendMessage(TB_GETSTATE, bar.GetItemID(index)), bar.GetButtonStyle(index));
    }
    ASK(bar.SendMessage(TB_ISBUTTONCHECKED, 3), bar.SendMessage(TB_ISBUTTONENABLED, 2),
        journal.Press(10, 12), journal.Press(70, 12), bar.SendMessage(TB_GETBUTTONSIZE),
        bar.SendMessage(TB_DELETEBUTTON, 1), bar.SendMessage(TB_BUTTONCOUNT));
}

void Panes(CStatusBarCtrl& bar, Journal& journal)
{
    int edges[] = {60, 140, -1};
    ASK(bar.SetParts(3, edges), bar.SetText("Ready", 0, 0), bar.SetText("Second", 1, SBT_POPOUT),
        bar.SetText("none", 9, 0), journal.Middle());
    for (const int pane : {0, 1, 2})
    {
        CRect place;
        ASK(bar.GetText(pane), bar.GetRect(pane, &place), place);
    }
    ASK(journal.Press(20, 8), journal.Press(20, 8), bar.SetSimple(), bar.IsSimple(),
        bar.GetParts(3, edges));
}

// The tests -------------------------------------------------------------------------------------

TEST_F(Parity, Buttons)
{
    Compare<CCustomPushbutton, CButton>("BUTTON", {BS_PUSHBUTTON | BS_NOTIFY, BS_DEFPUSHBUTTON},
                                        &PressAndCheck);
    Compare<CCustomCheckBox, CButton>(
        "BUTTON", {BS_AUTOCHECKBOX | BS_NOTIFY, BS_CHECKBOX, BS_AUTO3STATE}, &PressAndCheck);
    Compare<CCustomRadiobutton, CButton>("BUTTON", {BS_AUTORADIOBUTTON | WS_GROUP}, &PressAndCheck);
}

TEST_F(Parity, RadioGroups)
{
    const auto script = []<class Radio>(Radio& first, Journal& journal) {
        constexpr bool Ours = std::is_same_v<Radio, CCustomRadiobutton>;
        Group<Radio, std::conditional_t<Ours, CCustomStatic, CStatic>>(first, journal);
    };
    constexpr DWORD Plain = BS_AUTORADIOBUTTON | BS_NOTIFY;
    Compare<CCustomRadiobutton, CButton>("BUTTON", {Plain | WS_GROUP, Plain}, script);
}

struct Swatch : CColorStatic
{
    Swatch() { Set(RGB(20, 40, 60)); }
};

TEST_F(Parity, Labels)
{
    Compare<CCustomStatic, CStatic>("STATIC", {SS_NOTIFY, SS_NOTIFY | SS_ICON}, &Label);
    Compare<CCustomStatic, CStatic>("BUTTON", {BS_GROUPBOX | BS_NOTIFY}, &Label);
    Compare<CBoldStatic, CStatic>("STATIC", {SS_NOTIFY}, &Label);
    Compare<Swatch, CStatic>("STATIC", {SS_NOTIFY}, &Label);
    Compare<CColoredGroupBox, CStatic>("STATIC", {SS_NOTIFY}, &Label);
}

struct Fixed : QuixEdit
{
    Fixed() { SetFixedPlace(Room.left, Room.top, Room.Width()); }
};

TEST_F(Parity, Edits)
{
    Compare<CCustomEdit, CEdit>(
        "EDIT", {ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL, ES_MULTILINE, ES_AUTOHSCROLL}, &Write);
    Compare<ColorEdit, CEdit>("EDIT", {ES_AUTOHSCROLL}, &Write);
    // Its prompt, of which the platform knows nothing, goes with the script's first text.
    Compare<EditWithPrompt, CEdit>("EDIT", {ES_AUTOHSCROLL}, &Write);
    Compare<Fixed, CEdit>("EDIT", {ES_AUTOHSCROLL}, &Write);
}

TEST_F(Parity, Bars)
{
    constexpr DWORD Still = CCS_NOPARENTALIGN | CCS_NORESIZE | CCS_NODIVIDER;
    Compare<CCustomStatusBar, CStatusBarCtrl>(STATUSCLASSNAME, {Still}, &Panes);
    Compare<CSearchStatusBar, CStatusBarCtrl>(STATUSCLASSNAME, {Still}, &Panes);
    Compare<CustomToolbar, CToolBar>(TOOLBARCLASSNAME, {Still | TBSTYLE_FLAT}, &Order);
}

// The combo is a window of the library's own; its items answer as the platform's do.
TEST_F(Parity, ItemsOfACombo)
{
    CComboBox platforms;
    platforms.Create(CBS_DROPDOWNLIST | WS_CHILD | WS_VISIBLE, Room, &Host(), Id);
    CCustomDropListCombo ours;
    ours.Create(WS_CHILD | WS_VISIBLE, Room, &Host(), Id + 1);
    const auto play = [this](auto& combo, auto remove) {
        Journal journal(Host(), combo, [this] { ThroughAllModes(); });
        // What the combo tells is its own affair: on its closing, whether or not anything changed.
        Host().hook = nullptr;
        for (const char* const text : {"Gamma", "Alpha", "Delta", "Alphabet"})
        {
            ASK(combo.AddString(text));
        }
        ASK(combo.InsertString(1, "Inserted"), combo.InsertString(99, "Nowhere"),
            combo.InsertString(-1, "Last"), combo.FindString(-1, "alp"), combo.FindString(2, "alp"),
            combo.FindStringExact(-1, "ALPHA"), combo.GetCurSel(), combo.SetCurSel(2),
            combo.SetCurSel(99), combo.GetCurSel(), combo.SelectString(-1, "Del"),
            combo.SelectString(-1, "none"), combo.SetItemDataPtr(1, &combo) < 0,
            combo.SetItemDataPtr(99, &combo) < 0, journal.Middle(), combo.GetCurSel(),
            combo.GetItemDataPtr(1) == &combo, remove(1), remove(99), combo.GetCurSel(),
            combo.GetCount(), journal.Key(VK_DOWN), combo.GetCurSel(), (combo.ResetContent(), 0),
            combo.GetCount(), combo.GetCurSel());
        return journal.Text();
    };
    EXPECT_EQ(play(ours, [&](int index) { return ours.RemoveString(index); }),
              play(platforms, [&](int index) { return platforms.DeleteString(UINT(index)); }));
}

} // namespace
