#include "robust/Subjects.h"

#include "CustomToolbar.h"
#include "catalog/Makers.h"
#include "support/Fenced.h"

#include <map>

namespace {

using Catalog = Makers<Fenced>;
using enum Argument;

const CRect Room(40, 30, 300, 230);

std::string Check(const CFauxScrollBar& bar)
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

// What only a derived class may look at.
struct SeenEdit : CCustomEdit
{
    static std::string Fault(CWnd& window)
    {
        auto& edit = static_cast<CCustomEdit&>(window);
        return edit.*&SeenEdit::m_scrolling ? "a press goes on" : Check(edit.*&SeenEdit::m_bar);
    }
};

struct SeenList : CCustomListBox
{
    static std::string Fault(CWnd& window)
    {
        auto& list = static_cast<CCustomListBox&>(window);
        return list.*&SeenList::m_tracking
                   ? "a press goes on"
                   : Check(list.*&SeenList::m_vBar) + Check(list.*&SeenList::m_hBar);
    }
};

struct ListOfValues : CCustomListBox
{
    int CompareItem(LPCOMPAREITEMSTRUCT compared) override
    {
        return compared->itemData1 < compared->itemData2 ? -1 : 1;
    }
};

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

std::unique_ptr<CWnd> MakeToolBar(CWnd& parent, const Contents&)
{
    auto bar = std::make_unique<Fenced<CustomToolbar>>();
    if (!bar->CreateEx(&parent, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE))
    {
        return nullptr;
    }
    bar->SetDlgCtrlID(ControlId);
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

struct Manner
{
    std::vector<Word> words = {};
    std::function<std::string(CWnd&)> fault = {};
    bool pressesLoop = false;
};

// Of the controls that have any.
const std::map<std::string, Manner> Manners = {
    {"push button", {ButtonWords}},
    {"check box", {ButtonWords}},
    {"radio button", {ButtonWords}},
    {"edit of many lines", {EditWords, &SeenEdit::Fault}},
    {"edit of one line", {EditWords, &SeenEdit::Fault}},
    {"coloured edit", {EditWords}},
    {"edit with prompt", {EditWords}},
    {"fixed edit", {EditWords}},
    {"list box", {ListWords, &SeenList::Fault}},
    {"drawn list box", {ListWords, &SeenList::Fault}},
    {"list box of many selections", {ListWords, &SeenList::Fault}},
    {"list box of columns", {ListWords, &SeenList::Fault}},
    {"list box of values", {ListWords, &SeenList::Fault}},
    {"check list", {ListWords}},
    {"combo", {{}, {}, true}}, // on its list's bar, in the standard mode
    {"report list", {ReportWords, {}, true}},
    {"tool bar", {ToolBarWords}},
    {"tree", {TreeWords, {}, true}},
    {"tree view", {TreeWords, {}, true}},
    {"dialog", {{}, {}, true}},
    {"message box", {{}, {}, true}},
};

std::vector<Subject> MakeSubjects()
{
    std::vector<Control> controls = Catalog::All();
    controls.push_back({"tool bar", &MakeToolBar});
    controls.push_back(
        {"list box of values", Catalog::MadeList<ListOfValues>(LBS_OWNERDRAWVARIABLE | LBS_SORT |
                                                               LBS_WANTKEYBOARDINPUT)});
    std::vector<Subject> subjects;
    for (const Control& control : controls)
    {
        const auto manner = Manners.find(control.name);
        const auto& [words, fault, pressesLoop] =
            manner == Manners.end() ? Manner() : manner->second;
        subjects.push_back({control.name,
                            [make = control.make](CWnd& parent) {
                                return make(parent, {Room, "Row"});
                            },
                            words, fault, pressesLoop});
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
