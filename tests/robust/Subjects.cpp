#include "robust/Subjects.h"

#include "BoldStatic.h"
#include "ColorEdit.h"
#include "ColorStatic.h"
#include "ColoredGroupBox.h"
#include "CustomCheckBox.h"
#include "CustomChecklistBox.h"
#include "CustomDialog.h"
#include "CustomDropListCombo.h"
#include "CustomEdit.h"
#include "CustomListBox.h"
#include "CustomListCtrl.h"
#include "CustomPushbutton.h"
#include "CustomRadiobutton.h"
#include "CustomToolbar.h"
#include "EditWithPrompt.h"
#include "MultiTree.h"
#include "MultiTreeView.h"
#include "QuixEdit.h"
#include "SearchStatusBar.h"
#include "ZepMsgBoxDlg.h"
#include "support/DialogTemplate.h"
#include "windows/freed_at_once.h"

namespace {

constexpr DWORD Child = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
const CRect Room(40, 30, 300, 230);
using enum Argument;

// A control whose Create takes (text, style, place, parent, id).
template <class Control> auto Titled(DWORD style)
{
    return [style](CWnd& parent) -> std::unique_ptr<CWnd> {
        auto control = std::make_unique<FreedAtOnce<Control>>();
        const bool made = control->Create("Direct to", Child | style, Room, &parent, SubjectId);
        return made ? std::move(control) : nullptr;
    };
}

template <class Edit> auto MadeEdit(DWORD style)
{
    return [style](CWnd& parent) -> std::unique_ptr<CWnd> {
        auto edit = std::make_unique<FreedAtOnce<Edit>>();
        if constexpr (std::is_same_v<Edit, QuixEdit>)
        {
            edit->SetFixedPlace(Room.left, Room.top, Room.Width());
        }
        if (!edit->CreateEx(WS_EX_CLIENTEDGE, "EDIT", "", Child | style, Room, &parent, SubjectId))
        {
            return nullptr;
        }
        std::string text;
        for (int line = 0; line < 60; ++line)
        {
            text += "Line " + std::to_string(line) + "\r\n";
        }
        edit->CWnd::SetWindowText(text.c_str());
        return edit;
    };
}

template <class Base> class SeenBar : public Base
{
public:
    using Base::Base;
    static std::string Check(const CFauxScrollBar& bar)
    {
        int first = 0;
        int last = 0;
        bar.GetScrollRange(&first, &last);
        const int at = bar.GetScrollPos();
        return first <= at && at <= last && bar.GetPageSize() >= 0
                   ? std::string()
                   : "bar at " + std::to_string(at) + " of " + std::to_string(first) + " to " +
                         std::to_string(last) + ", page " + std::to_string(bar.GetPageSize());
    }
};

class SeenEdit : public SeenBar<CCustomEdit>
{
public:
    static std::string Fault(CWnd& window)
    {
        auto& edit = static_cast<SeenEdit&>(window);
        return edit.m_scrolling ? "a press goes on" : Check(edit.m_bar);
    }
};

class SeenList : public SeenBar<CCustomListBox>
{
public:
    int CompareItem(LPCOMPAREITEMSTRUCT compared) override
    {
        return compared->itemData1 < compared->itemData2 ? -1 : 1;
    }
    static std::string Fault(CWnd& window)
    {
        auto& list = static_cast<SeenList&>(window);
        return list.m_tracking ? "a press goes on" : Check(list.m_vBar) + Check(list.m_hBar);
    }
};

std::unique_ptr<CWnd> MakeList(CWnd& parent, DWORD style)
{
    auto list = std::make_unique<FreedAtOnce<SeenList>>();
    if (!list->CreateEx(WS_EX_CLIENTEDGE, "LISTBOX", "",
                        Child | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | style, Room,
                        &parent, SubjectId))
    {
        return nullptr;
    }
    for (int row = 0; row < 40; ++row)
    {
        list->AddString(("Row " + std::to_string(row)).c_str());
    }
    return list;
}

const std::vector<Word> ButtonWords = {
    {BM_SETCHECK, Small},      {BM_GETCHECK},   {BM_SETSTATE, Flag}, {BM_GETSTATE}, {BM_CLICK},
    {WM_UPDATEUISTATE, Small}, {WM_GETDLGCODE},
};

const std::vector<Word> EditWords = {
    {EM_SETSEL, Row, Row},
    {EM_REPLACESEL, Flag, Text},
    {EM_UNDO},
    {EM_SETREADONLY, Flag},
    {EM_LINESCROLL, None, Small},
    {EM_SCROLL, Small},
    {EM_SCROLLCARET},
    {EM_LIMITTEXT, Data},
    {EM_GETLINE, Row, Buffer},
    {EM_SETMARGINS, Flag, Flag},
    {EM_GETRECT, None, Place},
    {EM_SETRECT, None, Place},
    {EM_CHARFROMPOS, None, Point},
    {EM_LINEINDEX, Row},
    {EM_GETFIRSTVISIBLELINE},
    {WM_COPY},
    {WM_PASTE},
    {WM_CUT},
    {WM_CLEAR},
    {WM_UNDO},
    {WM_CHAR, Letter},
};

const std::vector<Word> ListWords = {
    {LB_ADDSTRING, None, Text},
    {LB_INSERTSTRING, Row, Text},
    {LB_DELETESTRING, Row},
    {LB_RESETCONTENT},
    {LB_SETCURSEL, Row},
    {LB_GETCURSEL},
    {LB_SETSEL, Flag, Row},
    {LB_SETTOPINDEX, Row},
    {LB_GETTOPINDEX},
    {LB_GETTEXT, Row, Buffer},
    {LB_GETTEXTLEN, Row},
    {LB_FINDSTRING, Row, Text},
    {LB_FINDSTRINGEXACT, Row, Text},
    {LB_SELECTSTRING, Row, Text},
    {LB_SETITEMDATA, Row, Data},
    {LB_GETITEMDATA, Row},
    {LB_SETITEMHEIGHT, Row, Small},
    {LB_GETITEMHEIGHT, Row},
    {LB_GETITEMRECT, Row, Place},
    {LB_ITEMFROMPOINT, None, Point},
    {LB_SETCARETINDEX, Row},
    {LB_SETHORIZONTALEXTENT, Pixels},
    {LB_SETCOLUMNWIDTH, Pixels},
    {LB_SELITEMRANGE, Flag, Data},
};

std::unique_ptr<CWnd> MakeCheckList(CWnd& parent)
{
    auto list = std::make_unique<FreedAtOnce<CCustomChecklistBox>>();
    if (!list->Create(Child | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | LBS_HASSTRINGS |
                          LBS_OWNERDRAWFIXED,
                      Room, &parent, SubjectId))
    {
        return nullptr;
    }
    list->SetCheckStyle(BS_AUTO3STATE);
    for (int row = 0; row < 40; ++row)
    {
        list->AddString(("Row " + std::to_string(row)).c_str());
        list->SetCheck(row, row % 3);
        list->Enable(row, row % 5 != 0);
    }
    return list;
}

std::unique_ptr<CWnd> MakeCombo(CWnd& parent)
{
    auto combo = std::make_unique<FreedAtOnce<CCustomDropListCombo>>();
    if (!combo->Create(Child, Room, &parent, SubjectId))
    {
        return nullptr;
    }
    for (int row = 0; row < 40; ++row)
    {
        combo->AddString(("Row " + std::to_string(row)).c_str());
    }
    combo->SetCurSel(3);
    return combo;
}

const std::vector<Word> ReportWords = {
    {LVM_INSERTITEM, None, ListItem},
    {LVM_SETITEM, None, ListItem},
    {LVM_DELETEITEM, Row},
    {LVM_DELETEALLITEMS},
    {LVM_SETITEMSTATE, Row, ListItem},
    {LVM_ENSUREVISIBLE, Row, Flag},
    {LVM_SCROLL, Small, Small},
    {LVM_SETCOLUMNWIDTH, Small, Pixels},
    {LVM_DELETECOLUMN, Small},
    {LVM_SETITEMCOUNT, Row},
    {LVM_GETTOPINDEX},
    {LVM_GETCOUNTPERPAGE},
    {LVM_REDRAWITEMS, Row, Row},
    {LVM_SETEXTENDEDLISTVIEWSTYLE, Fixed, Data, 0x21},
};

std::unique_ptr<CWnd> MakeReport(CWnd& parent)
{
    auto list = std::make_unique<FreedAtOnce<CCustomListCtrl>>();
    if (!list->Create(Child | LVS_REPORT | LVS_SHOWSELALWAYS, Room, &parent, SubjectId))
    {
        return nullptr;
    }
    for (int column = 0; column < 4; ++column)
    {
        list->InsertColumn(column, "Column", LVCFMT_LEFT, 90);
    }
    for (int row = 0; row < 40; ++row)
    {
        list->InsertItem(row, ("Row " + std::to_string(row)).c_str());
        list->SetItemText(row, 1, "EDDF");
    }
    return list;
}

const std::vector<Word> ToolBarWords = {
    {TB_ENABLEBUTTON, Small, Flag},
    {TB_CHECKBUTTON, Small, Flag},
    {TB_HIDEBUTTON, Small, Flag},
    {TB_DELETEBUTTON, Row},
    {TB_BUTTONCOUNT},
    {TB_SETBUTTONSIZE, None, Point},
};

const std::vector<Word> TreeWords = {
    {TVM_SELECTITEM, Fixed, TreeItem, TVGN_CARET},
    {TVM_SELECTITEM, Fixed, TreeItem, TVGN_FIRSTVISIBLE},
    {TVM_EXPAND, Fixed, TreeItem, TVE_EXPAND},
    {TVM_EXPAND, Fixed, TreeItem, TVE_COLLAPSE},
    {TVM_EXPAND, Fixed, TreeItem, TVE_COLLAPSE | TVE_COLLAPSERESET},
    {TVM_ENSUREVISIBLE, None, TreeItem},
    {TVM_DELETEITEM, None, TreeItem},
    {TVM_GETCOUNT},
    {TVM_GETVISIBLECOUNT},
};

template <class Tree> std::unique_ptr<CWnd> Filled(std::unique_ptr<Tree> tree, bool made)
{
    if (!made)
    {
        return nullptr;
    }
    for (int branch = 0; branch < 20; ++branch)
    {
        TVINSERTSTRUCT insert = {};
        insert.hInsertAfter = TVI_LAST;
        insert.item.mask = TVIF_TEXT;
        insert.item.pszText = const_cast<char*>("Branch");
        insert.hParent = HTREEITEM(tree->SendMessage(TVM_INSERTITEM, 0, LPARAM(&insert)));
        for (int leaf = 0; leaf < 5; ++leaf)
        {
            tree->SendMessage(TVM_INSERTITEM, 0, LPARAM(&insert));
        }
    }
    return tree;
}

constexpr DWORD TreeLook = TVS_HASBUTTONS | TVS_LINESATROOT | TVS_HASLINES;

std::unique_ptr<CWnd> MakeTree(CWnd& parent)
{
    auto tree = std::make_unique<FreedAtOnce<MultiTree>>();
    const bool made = tree->Create(Child | TreeLook, Room, &parent, SubjectId) != FALSE;
    if (made)
    {
        tree->SetMultiSelect(true);
    }
    return Filled(std::move(tree), made);
}

std::unique_ptr<CWnd> MakeTreeView(CWnd& parent)
{
    struct View : MultiTreeView
    {
        void PostNcDestroy() override {} // the test owns it
    };
    auto tree = std::make_unique<FreedAtOnce<View>>();
    const bool made =
        tree->Create(nullptr, nullptr, Child | TreeLook, Room, &parent, SubjectId) != FALSE;
    return Filled(std::move(tree), made);
}

std::unique_ptr<CWnd> MakeSearchBar(CWnd& parent)
{
    auto bar = std::make_unique<FreedAtOnce<CSearchStatusBar>>();
    return bar->Create(Child, Room, &parent, SubjectId) ? std::move(bar) : nullptr;
}

std::unique_ptr<CWnd> MakeToolBar(CWnd& parent)
{
    auto bar = std::make_unique<FreedAtOnce<CustomToolbar>>();
    if (!bar->CreateEx(&parent, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE))
    {
        return nullptr;
    }
    bar->SetDlgCtrlID(SubjectId);
    for (int id = 1; id <= 5; ++id)
    {
        TBBUTTON button = {};
        button.idCommand = id;
        button.fsState = TBSTATE_ENABLED;
        bar->SendMessage(TB_ADDBUTTONS, 1, LPARAM(&button));
    }
    bar->SetWindowPos(nullptr, Room.left, Room.top, Room.Width(), 40, SWP_NOZORDER);
    return bar;
}

std::unique_ptr<CWnd> MakeMessageBox(CWnd& parent)
{
    struct Stays : CZepMsgBoxDlg
    {
        Stays()
            : CZepMsgBoxDlg("A message of a line", MB_YESNOCANCEL, CSize(800, 600), nullptr)
        {}
        void OnOK() override {}
        void OnCancel() override {}
    };
    auto box = std::make_unique<FreedAtOnce<Stays>>();
    return box->Create(CZepMsgBoxDlg::IDD, &parent) ? std::move(box) : nullptr;
}

std::unique_ptr<CWnd> MakeDialog(CWnd& parent)
{
    DialogTemplate form(CRect(10, 10, 160, 110),
                        WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE | DS_MODALFRAME);
    form.Add("Static", "Label", 0, CRect(5, 5, 60, 17), 101)
        .Add("Edit", "text", WS_TABSTOP, CRect(5, 20, 60, 32), 102)
        .Add("ListBox", "", LBS_NOINTEGRALHEIGHT, CRect(80, 5, 140, 60), 103)
        .Add("Button", "OK", WS_TABSTOP, CRect(5, 70, 50, 84), 104);
    struct Stays : CCustomDialog
    {
        explicit Stays(CWnd* owner)
            : CCustomDialog(0U, owner)
        {}
        void OnOK() override {}
        void OnCancel() override {}
    };
    auto dialog = std::make_unique<FreedAtOnce<Stays>>(&parent);
    return dialog->CreateIndirect(form, &parent) ? std::move(dialog) : nullptr;
}

std::vector<Subject> MakeSubjects()
{
    std::vector<Subject> subjects = {
        {"push button", Titled<CCustomPushbutton>(BS_PUSHBUTTON), ButtonWords},
        {"check box", Titled<CCustomCheckBox>(BS_AUTOCHECKBOX | BS_MULTILINE), ButtonWords},
        {"radio button", Titled<CCustomRadiobutton>(BS_AUTORADIOBUTTON | WS_GROUP), ButtonWords},
        {"label", Titled<CCustomStatic>(0)},
        {"group box", Titled<CCustomStatic>(BS_GROUPBOX)},
        {"bold label", Titled<CBoldStatic>(0)},
        {"swatch", Titled<CColorStatic>(0)},
        {"outline", Titled<CColoredGroupBox>(0)},
        {"edit of many lines", MadeEdit<SeenEdit>(ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL),
         EditWords, &SeenEdit::Fault},
        {"edit of one line", MadeEdit<SeenEdit>(ES_AUTOHSCROLL), EditWords, &SeenEdit::Fault},
        {"coloured edit", MadeEdit<ColorEdit>(ES_AUTOHSCROLL), EditWords},
        {"edit with prompt", MadeEdit<EditWithPrompt>(ES_AUTOHSCROLL), EditWords},
        {"fixed edit", MadeEdit<QuixEdit>(ES_AUTOHSCROLL), EditWords},
        {"dialog", &MakeDialog, {}, {}, true},
    };
    const struct
    {
        const char* name;
        DWORD style;
    } lists[] = {
        {"list box", WS_HSCROLL},
        {"drawn list box", LBS_OWNERDRAWFIXED | LBS_HASSTRINGS},
        {"list box of many selections", LBS_EXTENDEDSEL | LBS_SORT},
        {"list box of columns", LBS_MULTICOLUMN | WS_HSCROLL},
        {"list box of values", LBS_OWNERDRAWVARIABLE | LBS_SORT | LBS_WANTKEYBOARDINPUT},
    };
    subjects.push_back({"check list", &MakeCheckList, ListWords});
    subjects.push_back({"combo", &MakeCombo});
    subjects.push_back({"report list", &MakeReport, ReportWords, {}, true});
    subjects.push_back({"tree", &MakeTree, TreeWords, {}, true});
    subjects.push_back({"tree view", &MakeTreeView, TreeWords, {}, true});
    subjects.push_back({"search bar", &MakeSearchBar});
    subjects.push_back({"tool bar", &MakeToolBar, ToolBarWords});
    subjects.push_back({"message box", &MakeMessageBox, {}, {}, true});
    for (const auto& [name, style] : lists)
    {
        subjects.push_back({name, [style = style](CWnd& parent) { return MakeList(parent, style); },
                            ListWords, &SeenList::Fault});
    }
    return subjects;
}

} // namespace

const std::vector<Subject>& Subjects()
{
    static const std::vector<Subject> subjects = MakeSubjects();
    return subjects;
}

void ForgetClipboard()
{
    if (::OpenClipboard(nullptr))
    {
        ::EmptyClipboard();
        ::CloseClipboard();
    }
}
