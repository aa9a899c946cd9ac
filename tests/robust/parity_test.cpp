// In the standard mode a control of the library is the platform's: one script gives the same
// answers and tells the parent the same, in the same order, on both; also when the display has
// been through all other modes, before the script or in the middle of it.

#include "ColorEdit.h"
#include "CustomCheckBox.h"
#include "CustomChecklistBox.h"
#include "CustomDropListCombo.h"
#include "CustomEdit.h"
#include "CustomListBox.h"
#include "CustomListCtrl.h"
#include "CustomPushbutton.h"
#include "CustomRadiobutton.h"
#include "CustomStatic.h"
#include "CustomStatusBar.h"
#include "CustomToolbar.h"
#include "MultiTree.h"
#include "robust/Journal.h"

#include <algorithm>

namespace {

const CRect Room(40, 30, 300, 230);
constexpr UINT Id = 77;

// Scripts ---------------------------------------------------------------------------------------

CString TextOf(const CWnd& window)
{
    CString text;
    window.GetWindowText(text);
    return text;
}

template <class Fill> CRect Filled(Fill fill)
{
    CRect rect;
    fill(&rect);
    return rect;
}

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

CString LineOf(const CEdit& edit, int line)
{
    char text[80] = "";
    const int length = edit.GetLine(line, text, sizeof(text) - 1);
    return CString(text, length);
}

void Write(CEdit& edit, Journal& journal)
{
    ASK((edit.SetWindowText("One\r\nTwo\r\nThree\r\nFour\r\nFive\r\nSix\r\nSeven\r\nEight"), 0),
        edit.GetLineCount(), edit.LineIndex(2), edit.LineFromChar(12), edit.LineLength(10),
        LineOf(edit, 3), LineOf(edit, 99), (edit.SetSel(2, 7), 0), edit.GetSel(),
        (edit.ReplaceSel("for", TRUE), 0), TextOf(edit), edit.CanUndo(), edit.Undo(),
        edit.GetModify(), journal.Middle(), edit.GetSel(), TextOf(edit), edit.GetModify(),
        (edit.SetModify(FALSE), 0), (edit.SetSel(-1, -1), 0), (edit.SetSel(4, 4), 0),
        journal.Key('W'), journal.Key(VK_BACK), journal.Key(VK_END, VK_SHIFT), edit.GetSel(),
        journal.Key(VK_DELETE), journal.Key(VK_DOWN), edit.GetSel(), TextOf(edit),
        (edit.LineScroll(3), 0), edit.GetFirstVisibleLine(), edit.SendMessage(EM_SCROLL, SB_LINEUP),
        edit.GetFirstVisibleLine(), (edit.SendMessage(EM_SCROLLCARET), 0), journal.Press(20, 12),
        edit.GetSel(), edit.CharFromPos(CPoint(30, 6)), edit.PosFromChar(1),
        Filled([&](CRect* rect) { edit.GetRect(rect); }), edit.GetMargins(),
        (edit.SetLimitText(6), 0), edit.GetLimitText(), (edit.SetSel(0, -1), 0),
        (edit.ReplaceSel("Longer than six"), 0), TextOf(edit), (edit.SetSel(1, 3), 0),
        (edit.Cut(), 0), (edit.Paste(), 0), TextOf(edit), edit.SetReadOnly(), journal.Key('X'),
        TextOf(edit), edit.SendMessage(WM_GETDLGCODE));
}

CString RowText(const CListBox& list, int row)
{
    char text[80] = ""; // of a list without strings, its data
    ::SendMessage(list, LB_GETTEXT, WPARAM(row), reinterpret_cast<LPARAM>(text));
    return text;
}

void Pick(CListBox& list, Journal& journal)
{
    const char* const texts[] = {"Gamma", "Alpha", "Delta", "Beta", "Alphabet"};
    for (const char* const text : texts)
    {
        ASK(list.AddString(text));
    }
    ASK(list.FindStringExact(-1, texts[3]), list.FindString(2, texts[1]),
        list.SelectString(1, texts[2]), list.InsertString(1, "Inserted"),
        list.InsertString(99, "Nowhere"), list.InsertString(-1, "Last"), list.GetCount());
    for (int row = -1; row < 8; ++row)
    {
        ASK(RowText(list, row), list.SetItemData(row, DWORD_PTR(row) * 3));
    }
    ASK(list.FindString(-1, "alp"), list.FindString(3, "alp"), list.FindStringExact(-1, "ALPHA"),
        list.FindStringExact(-1, "Alp"), list.SelectString(-1, "Del"), list.SetCurSel(2),
        list.SetCurSel(99), list.GetCurSel(), list.SetCurSel(3), list.SetSel(4),
        list.SelItemRange(TRUE, 1, 2), list.GetSelCount(), list.GetSel(4), journal.Middle());
    for (int row = -1; row < 8; ++row)
    {
        ASK(list.GetItemData(row), list.GetSel(row));
    }
    ASK(list.GetCurSel(), list.GetCaretIndex(), list.GetAnchorIndex(), journal.Key(VK_DOWN),
        journal.Key(VK_END, VK_SHIFT), list.GetCurSel(), list.GetSelCount(), journal.Press(30, 20),
        list.GetCurSel(), journal.Press(30, 20), journal.Key('D'), list.GetCurSel(),
        journal.Key(VK_SPACE));
    for (int row = 0; row < 40; ++row)
    {
        list.AddString("Row");
    }
    ASK(list.GetTopIndex(), list.SetTopIndex(20), list.GetTopIndex(),
        (list.SendMessage(WM_VSCROLL, SB_LINEDOWN), 0), list.GetTopIndex(),
        (list.SendMessage(WM_VSCROLL, SB_PAGEUP), 0), list.GetTopIndex(),
        journal.Press(Room.Width() - 8, Room.Height() - 8), list.GetTopIndex(),
        (Wheel(-WHEEL_DELTA), 0), list.GetTopIndex(), (list.SendMessage(WM_VSCROLL, SB_BOTTOM), 0),
        list.GetTopIndex(), journal.Key(VK_PRIOR), list.GetTopIndex(), list.GetScrollPos(SB_VERT),
        list.GetItemHeight(0), Filled([&](CRect* rect) { list.GetItemRect(30, rect); }),
        list.SendMessage(LB_ITEMFROMPOINT, 0, MAKELPARAM(20, 40)), list.DeleteString(3),
        list.DeleteString(99), list.GetCount(), list.GetCurSel(), (list.ResetContent(), 0),
        list.GetCount(), list.GetTopIndex(), list.GetCurSel(), list.SendMessage(WM_GETDLGCODE));
}

CString Heading(CListCtrl& list, int column)
{
    char text[40] = "";
    HDITEM item = {};
    item.mask = HDI_TEXT | HDI_WIDTH;
    item.pszText = text;
    item.cchTextMax = sizeof(text);
    const BOOL there = list.GetHeaderCtrl()->GetItem(column, &item);
    CString line;
    line.Format("%d %s %d", there, text, item.cxy);
    return line;
}

void Report(CListCtrl& list, Journal& journal)
{
    for (const char* const column : {"Name", "Kind", "Course"})
    {
        LVCOLUMN inserted = {};
        inserted.mask = LVCF_TEXT | LVCF_WIDTH;
        inserted.pszText = const_cast<char*>(column);
        inserted.cx = 70;
        ASK(list.InsertColumn(9, &inserted));
    }
    for (const char* const text : {"EDDF", "LSZH", "KJFK", "EGLL"})
    {
        ASK(list.InsertItem(0, text));
    }
    ASK(list.InsertItem(-5, "none"), list.SetItemText(1, 1, "Airport"), list.GetItemText(1, 1),
        list.SetItemText(77, 1, "none"), list.SetItemData(2, 42), list.GetItemData(2),
        list.GetItemCount());
    LVFINDINFO find = {};
    find.flags = LVFI_STRING;
    find.psz = "LSZH";
    ASK(list.FindItem(&find), list.FindItem(&find, 3),
        list.SetItemState(1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED),
        list.GetSelectedCount(), journal.Middle(), list.GetNextItem(-1, LVNI_SELECTED),
        list.GetNextItem(-1, LVNI_FOCUSED), list.GetItemText(1, 1), journal.Key(VK_DOWN),
        journal.Key(VK_DOWN, VK_SHIFT), list.GetSelectedCount(), journal.Press(30, 50),
        list.GetNextItem(-1, LVNI_SELECTED), list.GetSelectionMark(), journal.Key('K'),
        list.GetNextItem(-1, LVNI_FOCUSED), journal.Press(30, 8));
    for (int column = 0; column < 4; ++column)
    {
        ASK(Heading(list, column));
    }
    ASK(list.GetHeaderCtrl()->GetItemCount(), list.SetColumnWidth(1, 90), list.GetColumnWidth(1));
    for (int row = 0; row < 40; ++row)
    {
        list.InsertItem(4 + row, "Row");
    }
    Drag(WindowPoint(list, CPoint(72, 10)), WindowPoint(list, CPoint(102, 10)));
    ASK(list.GetCountPerPage(), list.EnsureVisible(30, FALSE), list.GetTopIndex(),
        list.GetColumnWidth(0), (Wheel(WHEEL_DELTA), 0), list.GetTopIndex(),
        list.Scroll(CSize(0, -100)), list.GetTopIndex(),
        Filled([&](CRect* rect) { list.GetItemRect(5, rect, LVIR_BOUNDS); }),
        (list.SendMessage(WM_VSCROLL, SB_PAGEDOWN), 0), list.GetTopIndex(),
        list.HitTest(CPoint(20, 60)), list.DeleteItem(1), list.DeleteItem(99), list.DeleteColumn(2),
        list.DeleteAllItems(), list.GetItemCount(), list.SendMessage(WM_GETDLGCODE));
}

// Items by their texts: handles differ.
CString Named(CTreeCtrl& tree, HTREEITEM item)
{
    return item != nullptr ? tree.GetItemText(item) : CString("none");
}

void Branch(CTreeCtrl& tree, Journal& journal)
{
    const HTREEITEM first = tree.InsertItem("First");
    const HTREEITEM second = tree.InsertItem("Second");
    const HTREEITEM leaf = tree.InsertItem("Leaf", first);
    tree.InsertItem("Blade", first, TVI_SORT);
    for (int row = 0; row < 30; ++row)
    {
        tree.InsertItem("Row");
    }
    ASK(tree.GetCount(), Named(tree, tree.GetChildItem(first)),
        Named(tree, tree.GetParentItem(leaf)), Named(tree, tree.GetNextSiblingItem(first)),
        tree.SetItemData(second, 42), tree.SetItemText(leaf, "Renamed"),
        tree.Expand(first, TVE_EXPAND), tree.ItemHasChildren(first), tree.SelectItem(leaf),
        Named(tree, tree.GetSelectedItem()), journal.Middle(), Named(tree, tree.GetSelectedItem()),
        tree.GetItemData(second), tree.GetItemState(first, TVIS_EXPANDED), journal.Key(VK_DOWN),
        Named(tree, tree.GetSelectedItem()), journal.Key(VK_HOME), journal.Key(VK_LEFT),
        tree.GetItemState(first, TVIS_EXPANDED), journal.Key('S'),
        Named(tree, tree.GetSelectedItem()), journal.Press(60, 10),
        Named(tree, tree.GetSelectedItem()), tree.GetVisibleCount(),
        tree.SelectSetFirstVisible(second), Named(tree, tree.GetFirstVisibleItem()),
        tree.EnsureVisible(leaf), Named(tree, tree.GetFirstVisibleItem()), tree.GetItemHeight(),
        tree.GetIndent(), Named(tree, tree.HitTest(CPoint(60, 30))), tree.SortChildren(TVI_ROOT),
        Named(tree, tree.GetRootItem()), tree.DeleteItem(second), tree.GetCount(),
        tree.DeleteAllItems(), tree.GetCount(), tree.SendMessage(WM_GETDLGCODE));
}

void Order(CWnd& bar, Journal& journal)
{
    for (int id = 1; id <= 4; ++id)
    {
        TBBUTTON button = {};
        button.idCommand = id;
        button.fsState = TBSTATE_ENABLED;
        button.fsStyle = id == 3 ? BTNS_CHECK : BTNS_BUTTON;
        ASK(bar.SendMessage(TB_ADDBUTTONS, 1, LPARAM(&button)));
    }
    ASK(bar.SendMessage(TB_BUTTONCOUNT), bar.SendMessage(TB_COMMANDTOINDEX, 3),
        bar.SendMessage(TB_CHECKBUTTON, 3, TRUE), bar.SendMessage(TB_ENABLEBUTTON, 2, FALSE),
        bar.SendMessage(TB_HIDEBUTTON, 99, TRUE), journal.Middle(),
        bar.SendMessage(TB_ISBUTTONCHECKED, 3), bar.SendMessage(TB_ISBUTTONENABLED, 2),
        journal.Press(10, 12), bar.SendMessage(TB_GETBUTTONSIZE),
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

class Parity : public WindowTest
{
protected:
    using Lines = std::vector<std::string>;

    static void ThroughAllModes()
    {
        for (const APPMODE mode : {APPMODE(1), APPMODE(2), APPMODE(3), APPMODE(4), STD})
        {
            COnBoardUIGeneral::SetAppMode(mode);
            PumpAll();
        }
    }

    // What the script gives on one control.
    template <class Control, class Script>
    Lines Played(const char* windowClass, DWORD style, Script script, bool before, bool within)
    {
        Control control;
        control.CWnd::CreateEx(WS_EX_CLIENTEDGE, windowClass, "Text",
                               style | WS_CHILD | WS_VISIBLE | WS_TABSTOP, Room, &Host(), Id);
        PumpAll();
        if (before)
        {
            ThroughAllModes();
        }
        Journal journal(Host(), control,
                        within ? std::function<void()>(&Parity::ThroughAllModes) : nullptr);
        script(control, journal);
        Lines lines = journal.Lines();
        control.DestroyWindow();
        return lines;
    }

    template <class Ours, class Platforms, class Script>
    void Compare(const char* windowClass, DWORD style, Script script)
    {
        const Lines wanted = Played<Platforms>(windowClass, style, script, false, false);
        EXPECT_GT(wanted.size(), 2U);
        for (const auto& [before, within] : {std::pair{false, false}, {true, false}, {false, true}})
        {
            const Lines given = Played<Ours>(windowClass, style, script, before, within);
            const auto [left, right] = std::ranges::mismatch(wanted, given);
            if (left == wanted.end() && right == given.end())
            {
                continue;
            }
            std::string last;
            for (auto back = left - std::min<ptrdiff_t>(4, left - wanted.begin()); back != left;
                 ++back)
            {
                last += "\n  " + *back;
            }
            ADD_FAILURE() << windowClass << " of style " << style << ", modes before " << before
                          << ", within " << within << last
                          << "\nplatform: " << (left != wanted.end() ? *left : "(end)")
                          << "\nours:     " << (right != given.end() ? *right : "(end)");
        }
    }
};

TEST_F(Parity, Buttons)
{
    Compare<CCustomPushbutton, CButton>("BUTTON", BS_PUSHBUTTON | BS_NOTIFY, &PressAndCheck);
    Compare<CCustomPushbutton, CButton>("BUTTON", BS_DEFPUSHBUTTON, &PressAndCheck);
    Compare<CCustomCheckBox, CButton>("BUTTON", BS_AUTOCHECKBOX | BS_NOTIFY, &PressAndCheck);
    Compare<CCustomCheckBox, CButton>("BUTTON", BS_CHECKBOX, &PressAndCheck);
    Compare<CCustomRadiobutton, CButton>("BUTTON", BS_AUTORADIOBUTTON | WS_GROUP, &PressAndCheck);
}

TEST_F(Parity, Labels)
{
    Compare<CCustomStatic, CStatic>("STATIC", SS_NOTIFY, &Label);
    Compare<CCustomStatic, CStatic>("STATIC", SS_NOTIFY | SS_ICON, &Label);
}

TEST_F(Parity, Edits)
{
    for (const DWORD style : {DWORD(ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL),
                              DWORD(ES_MULTILINE), DWORD(ES_AUTOHSCROLL)})
    {
        Compare<CCustomEdit, CEdit>("EDIT", style, &Write);
    }
    Compare<ColorEdit, CEdit>("EDIT", ES_AUTOHSCROLL, &Write);
}

TEST_F(Parity, ListBoxes)
{
    constexpr DWORD Common = LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL;
    for (const DWORD style :
         {DWORD(0), DWORD(LBS_SORT), DWORD(LBS_MULTIPLESEL), DWORD(LBS_EXTENDEDSEL),
          DWORD(LBS_MULTICOLUMN | WS_HSCROLL), DWORD(LBS_WANTKEYBOARDINPUT)})
    {
        Compare<CCustomListBox, CListBox>("LISTBOX", Common | style, &Pick);
    }
}

int InOrder(const COMPAREITEMSTRUCT& compare)
{
    return compare.itemData1 < compare.itemData2 ? -1 : int(compare.itemData1 > compare.itemData2);
}

// Rows as high as those of the check list.
class DrawnRows : public CListBox
{
    void MeasureItem(LPMEASUREITEMSTRUCT measure) override
    {
        measure->itemHeight = (GetStyle() & LBS_HASSTRINGS) != 0 ? 16 : 15;
    }
    int CompareItem(LPCOMPAREITEMSTRUCT compare) override { return InOrder(*compare); }
};

// Each row has a check, beside which the list keeps the caller's data. In the automatic styles the
// space key checks, instead of being looked up.
class Checked : public CCustomChecklistBox
{
public:
    Checked() { SetCheckStyle(BS_CHECKBOX); }

private:
    int CompareItem(LPCOMPAREITEMSTRUCT compare) override { return InOrder(*compare); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT result = CCustomChecklistBox::WindowProc(message, wParam, lParam);
        if (message == LB_ADDSTRING || message == LB_INSERTSTRING)
        {
            SetCheck(int(result), 1);
        }
        return result;
    }
};

TEST_F(Parity, CheckLists)
{
    constexpr DWORD Style = LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | LBS_OWNERDRAWFIXED;
    for (const DWORD style : {LBS_HASSTRINGS, LBS_HASSTRINGS | LBS_SORT,
                              LBS_HASSTRINGS | LBS_EXTENDEDSEL, 0L, LBS_SORT})
    {
        Compare<Checked, DrawnRows>("LISTBOX", Style | style, &Pick);
    }
}

TEST_F(Parity, Reports)
{
    for (const DWORD style : {DWORD(LVS_SHOWSELALWAYS), DWORD(LVS_SINGLESEL | LVS_SORTASCENDING)})
    {
        Compare<CCustomListCtrl, CListCtrl>(WC_LISTVIEW, LVS_REPORT | style, &Report);
    }
}

// A tree of many selections has keys and presses of its own.
class SingleTree : public MultiTree
{
public:
    SingleTree() { SetMultiSelect(false); }
};

TEST_F(Parity, Trees)
{
    Compare<SingleTree, CTreeCtrl>(WC_TREEVIEW, TVS_HASBUTTONS | TVS_LINESATROOT | TVS_HASLINES,
                                   &Branch);
}

TEST_F(Parity, Bars)
{
    constexpr DWORD Still = CCS_NOPARENTALIGN | CCS_NORESIZE | CCS_NODIVIDER;
    Compare<CCustomStatusBar, CStatusBarCtrl>(STATUSCLASSNAME, Still, &Panes);
    Compare<CustomToolbar, CToolBar>(TOOLBARCLASSNAME, Still | TBSTYLE_FLAT, &Order);
}

// The combo is a window of the library's own; its items answer as the platform's do.
TEST_F(Parity, ItemsOfACombo)
{
    CComboBox platforms;
    platforms.Create(CBS_DROPDOWNLIST | WS_CHILD | WS_VISIBLE, Room, &Host(), Id);
    CCustomDropListCombo ours;
    ours.Create(WS_CHILD | WS_VISIBLE, Room, &Host(), Id + 1);
    const auto play = [this](auto& combo, auto remove) {
        Journal journal(Host(), combo, [] { ThroughAllModes(); });
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
        // What the combo tells is its own affair: on its closing, whether or not anything changed.
        Lines lines = journal.Lines();
        std::erase_if(lines, [](const std::string& line) { return line.starts_with("    told"); });
        return lines;
    };
    EXPECT_EQ(play(ours, [&](int index) { return ours.RemoveString(index); }),
              play(platforms, [&](int index) { return platforms.DeleteString(UINT(index)); }));
}

} // namespace
