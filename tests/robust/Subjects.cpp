#include "robust/Subjects.h"

#include "catalog/Makers.h"

#include <algorithm>
#include <map>

namespace {

using Catalog = Makers<Mortal>;
using enum Argument;

const CRect Room(40, 30, 300, 230);

// What only a derived class may look at.
struct SeenEdit : CCustomEdit
{
    static std::string Fault(CWnd& window)
    {
        auto& edit = static_cast<CCustomEdit&>(window);
        return edit.*&SeenEdit::m_scrolling ? "a press goes on" : FaultOf(edit.*&SeenEdit::m_bar);
    }
};

struct SeenList : CCustomListBox
{
    static std::string Fault(CWnd& window)
    {
        auto& list = static_cast<CCustomListBox&>(window);
        return list.*&SeenList::m_tracking
                   ? "a press goes on"
                   : FaultOf(list.*&SeenList::m_vBar) + FaultOf(list.*&SeenList::m_hBar);
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

// No button is deleted: the platform's tool bar faulted in a press after that, in its own code, in
// a long soak.
const std::vector<Word> ToolBarWords = {
    {TB_ENABLEBUTTON, Small, Flag},  {TB_CHECKBUTTON, Small, Flag},
    {TB_HIDEBUTTON, Small, Flag},    {TB_BUTTONCOUNT},
    {TB_SETBUTTONSIZE, None, Point},
};

// No branch is emptied by collapsing it: the platform's tree faulted in that, in its own code, in a
// long soak.
const std::vector<Word> TreeWords = {
    {TVM_SELECTITEM, Fixed, TreeItem, TVGN_CARET},
    {TVM_SELECTITEM, Fixed, TreeItem, TVGN_FIRSTVISIBLE},
    {TVM_EXPAND, Fixed, TreeItem, TVE_EXPAND},
    {TVM_EXPAND, Fixed, TreeItem, TVE_COLLAPSE},
    {TVM_ENSUREVISIBLE, None, TreeItem},
    {TVM_DELETEITEM, None, TreeItem},
    {TVM_GETCOUNT},
    {TVM_GETVISIBLECOUNT},
};

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
    {"list of a combo", {ListWords, &SeenList::Fault, true}},
    {"form view", {{}, {}, true}},
    {"property sheet", {{}, {}, true}},
    {"property page", {{}, {}, true}},
    {"dialog", {{}, {}, true}},
    {"message box", {{}, {}, true}},
};

std::vector<Subject> MakeSubjects()
{
    std::vector<Control> controls = Catalog::All();
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

std::string FaultOf(const CFauxScrollBar& bar)
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

const std::vector<Subject>& Subjects()
{
    static const std::vector<Subject> subjects = MakeSubjects();
    return subjects;
}

std::string TestName(std::string words)
{
    std::replace(words.begin(), words.end(), ' ', '_');
    return words;
}

const std::vector<Word> CommonWords = {
    {WM_CANCELMODE},     {WM_SETTEXT, None, Text}, {WM_SETFONT, Font, Flag},  {WM_SETREDRAW, Flag},
    {WM_SYSCOLORCHANGE}, {WM_VSCROLL, Small},      {WM_HSCROLL, Small, None}, {WM_TIMER, Timer},
};

int Arguments::Between(int first, int last)
{
    // The same on every platform, unlike the library's distributions.
    return m_seed == 0 ? std::clamp(1, first, last)
                       : first + int(m_random() % (std::uint32_t(last - first) + 1));
}

LPARAM Arguments::Value(Argument argument, HWND window)
{
    switch (argument)
    {
    case None:
    case Fixed:
        return 0;
    case Flag:
        return Between(0, 1);
    case Row:
        return Between(0, 20) == 0 ? Between(-2, 5000) : Between(-1, 45);
    case Small:
        return Between(-3, 20);
    case Pixels:
        return Between(-20, 400);
    case Data:
        return m_seed == 0 ? 0 : LPARAM(m_random());
    case Letter:
        return Between(0, 9) == 0 ? VK_RETURN : Between(8, 126);
    case Text:
        return reinterpret_cast<LPARAM>(m_texts[Between(0, 3)].c_str());
    case Buffer:
        *reinterpret_cast<WORD*>(m_room.data()) = WORD(m_room.size() - 1); // as EM_GETLINE has it
        return reinterpret_cast<LPARAM>(m_room.data());
    case Place:
        m_place.SetRect(Between(-5, 50), Between(-5, 50), Between(40, 300), Between(40, 300));
        return reinterpret_cast<LPARAM>(&m_place);
    case Point:
    {
        CRect client;
        ::GetClientRect(window, &client);
        return MAKELPARAM(Between(-20, client.right + 60), Between(-20, client.bottom + 20));
    }
    case Three:
        return Between(0, 2);
    case UiState:
        return MAKELPARAM(Between(UIS_SET, UIS_INITIALIZE), Between(1, 7));
    case Printed:
        return Between(0, PRF_CHECKVISIBLE | PRF_NONCLIENT | PRF_CLIENT | PRF_ERASEBKGND |
                              PRF_CHILDREN | PRF_OWNED);
    case Canvas:
        if (m_canvas.GetSafeHdc() == nullptr)
        {
            CClientDC screen(nullptr);
            m_canvas.CreateCompatibleDC(&screen);
            m_bitmap.CreateCompatibleBitmap(&screen, 300, 200);
            m_canvas.SelectObject(&m_bitmap);
        }
        return reinterpret_cast<LPARAM>(m_canvas.GetSafeHdc());
    case Child:
    {
        HWND child = ::GetWindow(window, GW_CHILD);
        for (int steps = Between(0, 5); steps > 0 && child != nullptr; --steps)
        {
            child = ::GetWindow(child, GW_HWNDNEXT);
        }
        return reinterpret_cast<LPARAM>(child);
    }
    case HeadItem:
        m_headItem.mask = HDI_WIDTH | HDI_FORMAT;
        m_headItem.cxy = Between(0, 200);
        m_headItem.fmt = HDF_STRING | (Between(0, 1) ? HDF_SORTUP : HDF_SORTDOWN);
        return reinterpret_cast<LPARAM>(&m_headItem);
    case Hit:
        std::fill_n(m_room.data(), 256, char(0));
        *reinterpret_cast<POINT*>(m_room.data()) = {Between(-20, 300), Between(-20, 200)};
        return reinterpret_cast<LPARAM>(m_room.data());
    case Edges:
        m_edges[0] = Between(10, 100);
        m_edges[1] = m_edges[0] + Between(0, 100);
        m_edges[2] = -1;
        return reinterpret_cast<LPARAM>(m_edges);
    case Font:
        return reinterpret_cast<LPARAM>(
            ::GetStockObject(Between(0, 1) ? DEFAULT_GUI_FONT : SYSTEM_FONT));
    case Timer:
        return LPARAM(TimerIds[Between(0, int(std::size(TimerIds)) - 1)]);
    case ListItem:
        m_item.mask = LVIF_TEXT | LVIF_STATE;
        m_item.iItem = Between(-1, 60);
        m_item.iSubItem = Between(0, 4) - 1;
        m_item.pszText = m_texts[Between(0, 3)].data();
        m_item.state = UINT(Between(0, 3));
        m_item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
        return reinterpret_cast<LPARAM>(&m_item);
    case TreeItem:
    {
        LRESULT item = ::SendMessage(window, TVM_GETNEXTITEM, TVGN_ROOT, 0);
        for (int steps = Between(0, 30) - 1; steps > 0 && item != 0; --steps)
        {
            const LRESULT child = ::SendMessage(window, TVM_GETNEXTITEM, TVGN_CHILD, item);
            const LRESULT next = ::SendMessage(window, TVM_GETNEXTITEM, TVGN_NEXT, item);
            item = child != 0 && Between(0, 1) ? child : next;
        }
        return item;
    }
    }
    return 0;
}

void ForgetClipboard()
{
    if (::OpenClipboard(nullptr))
    {
        ::EmptyClipboard();
        ::CloseClipboard();
    }
}
