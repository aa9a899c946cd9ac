#include "robust/Words.h"

#include "support/LiveObjects.h"
#include "support/Pumping.h"

#include <afxdlgs.h>

#include <tpcshrd.h>

#include <algorithm>
#include <array>
#include <cstring>

namespace {

using enum Argument;

constexpr int MostHeadings = 64;

// A kind of window of the platform's: what it is sent and what it tells its parent.
struct Kind
{
    const char* windowClass;
    std::vector<Word> words;
    UINT drawn;                // how it calls itself when it has its parent draw; 0: it does not
    std::vector<UINT> colours; // the questions before it paints
    std::vector<UINT> told;    // by WM_NOTIFY or, if positive, by WM_COMMAND
};

// No button of a tool bar is deleted and no branch of a tree emptied by collapsing it: the
// platform's faulted in a press after the one and in the other, in its own code, in long soaks.
// Nothing closes a sheet.
// clang-format off
const Kind Kinds[] = {
    {"Button",
     {{BM_SETCHECK, Three}, {BM_GETCHECK}, {BM_SETSTATE, Flag}, {BM_GETSTATE}, {BM_CLICK},
      {WM_GETDLGCODE}},
     ODT_BUTTON, {WM_CTLCOLORBTN, WM_CTLCOLORSTATIC},
     {BN_CLICKED, BN_DOUBLECLICKED, BN_SETFOCUS, BN_KILLFOCUS, BN_HILITE, BN_UNHILITE}},
    {"Static",
     {{STM_GETICON}, {STM_SETICON}, {STM_GETIMAGE}, {WM_GETDLGCODE}},
     ODT_STATIC, {WM_CTLCOLORSTATIC}, {STN_CLICKED, STN_DBLCLK, STN_ENABLE, STN_DISABLE}},
    {"Edit",
     {{EM_SETSEL, Row, Row}, {EM_REPLACESEL, Flag, Text}, {EM_UNDO}, {EM_SETREADONLY, Flag},
      {EM_LINESCROLL, None, Small}, {EM_SCROLL, Small}, {EM_SCROLLCARET}, {EM_LIMITTEXT, Data},
      {EM_LIMITTEXT, Length}, {EM_GETLINE, Row, Buffer}, {EM_SETMARGINS, Flag, Flag},
      {EM_GETRECT, None, Place}, {EM_SETRECT, None, Place}, {EM_SETRECTNP, None, Place},
      {EM_SETTABSTOPS, Three, Edges}, {EM_SETPASSWORDCHAR}, {EM_SETPASSWORDCHAR, Fixed, None, '*'},
      {EM_GETPASSWORDCHAR}, {EM_CHARFROMPOS, None, Point}, {EM_LINEINDEX, Row},
      {EM_LINELENGTH, Row}, {EM_GETFIRSTVISIBLELINE}, {EM_GETTHUMB},
      {WM_COPY}, {WM_PASTE}, {WM_CUT}, {WM_CLEAR}, {WM_UNDO}, {WM_CHAR, Letter}},
     0, {WM_CTLCOLOREDIT, WM_CTLCOLORSTATIC},
     {EN_SETFOCUS, EN_KILLFOCUS, EN_CHANGE, EN_UPDATE, EN_MAXTEXT, EN_HSCROLL, EN_VSCROLL}},
    {"ListBox",
     {{LB_ADDSTRING, None, Text}, {LB_INSERTSTRING, Row, Text}, {LB_DELETESTRING, Row},
      {LB_RESETCONTENT}, {LB_SETCURSEL, Row}, {LB_GETCURSEL}, {LB_SETSEL, Flag, Row},
      {LB_SETTOPINDEX, Row}, {LB_GETTOPINDEX}, {LB_GETTEXT, Row, Buffer}, {LB_GETTEXTLEN, Row},
      {LB_FINDSTRING, Row, Text}, {LB_FINDSTRINGEXACT, Row, Text}, {LB_SELECTSTRING, Row, Text},
      {LB_SETITEMDATA, Row, Data}, {LB_GETITEMDATA, Row}, {LB_SETITEMHEIGHT, Row, Small},
      {LB_GETITEMHEIGHT, Row}, {LB_GETITEMRECT, Row, Place}, {LB_ITEMFROMPOINT, None, Point},
      {LB_SETCARETINDEX, Row}, {LB_SETHORIZONTALEXTENT, Length}, {LB_SETCOLUMNWIDTH, Length},
      {LB_SELITEMRANGE, Flag, Data}, {LB_SETCOUNT, Three}, {LB_INITSTORAGE, Three, Three},
      {LB_DIR, Flag, Text}, {LB_ADDFILE, None, Text}, {LB_GETHORIZONTALEXTENT}},
     ODT_LISTBOX, {WM_CTLCOLORLISTBOX, WM_VKEYTOITEM, WM_CHARTOITEM},
     {LBN_SELCHANGE, LBN_DBLCLK, LBN_SELCANCEL, LBN_SETFOCUS, LBN_KILLFOCUS}},
    {WC_HEADER,
     {{HDM_GETITEMCOUNT}, {HDM_SETITEM, Three, HeadItem}, {HDM_GETITEM, Three, HeadItem},
      {HDM_GETITEMRECT, Three, Place}, {HDM_HITTEST, None, Hit}, {HDM_ORDERTOINDEX, Three},
      {HDM_SETHOTDIVIDER, Flag, Three}, {HDM_SETORDERARRAY, Fixed, Places, MostHeadings}},
     ODT_HEADER, {},
     {HDN_ITEMCLICKA, HDN_ITEMCLICKW, HDN_ITEMDBLCLICKW, HDN_BEGINTRACKW, HDN_TRACKA, HDN_TRACKW,
      HDN_ENDTRACKA, HDN_ENDTRACKW, HDN_DIVIDERDBLCLICKW}},
    {WC_LISTVIEW,
     {{LVM_INSERTITEMA, None, ListItem}, {LVM_INSERTITEMW, None, ListItem},
      {LVM_SETITEMA, None, ListItem}, {LVM_SETITEMW, None, ListItem}, {LVM_DELETEITEM, Row},
      {LVM_GETITEMA, None, ListItem}, {LVM_GETITEMW, None, ListItem},
      {LVM_DELETEALLITEMS}, {LVM_SETITEMSTATE, Row, ListItem}, {LVM_ENSUREVISIBLE, Row, Flag},
      {LVM_SCROLL, Small, Small}, {LVM_SETCOLUMNWIDTH, Small, Length}, {LVM_DELETECOLUMN, Small},
      {LVM_SETITEMCOUNT, Three}, {LVM_SETITEMCOUNT, Fixed, None, 60}, {LVM_GETTOPINDEX},
      {LVM_GETCOUNTPERPAGE}, {LVM_REDRAWITEMS, Row, Row},
      {LVM_SETEXTENDEDLISTVIEWSTYLE, Fixed, Data, 0x21}, {LVM_SETCOLUMNA, Three, Heading},
      {LVM_SETCOLUMNW, Three, Heading}, {LVM_UPDATE, Row}, {LVM_INSERTCOLUMNA, Three, Heading},
      {LVM_INSERTCOLUMNW, Three, Heading}, {LVM_SETITEMTEXTA, Row, ListItem},
      {LVM_SETITEMTEXTW, Row, ListItem}, {LVM_SETIMAGELIST, Fixed, Pictures, LVSIL_SMALL},
      {LVM_GETITEMRECT, Row, Place}, {LVM_GETHEADER}, {LVM_GETITEMSTATE, Row, Three},
      {LVM_SORTITEMS, Data, Order}, {LVM_SORTITEMSEX, Data, Order}, {LVM_EDITLABELA, Row},
      {LVM_EDITLABELW, Row}, {LVM_CANCELEDITLABEL}, {LVM_SETVIEW, Fixed, None, LV_VIEW_LIST},
      {LVM_SETVIEW, Fixed, None, LV_VIEW_DETAILS}, {0x069A}, {0x069B}}, // the list posts to itself
     ODT_LISTVIEW, {WM_CTLCOLOREDIT},
     {LVN_ITEMCHANGING, LVN_ITEMCHANGED, LVN_INSERTITEM, LVN_COLUMNCLICK, LVN_ITEMACTIVATE,
      LVN_HOTTRACK, LVN_MARQUEEBEGIN, LVN_GETINFOTIPA, LVN_GETINFOTIPW, LVN_BEGINDRAG,
      LVN_BEGINRDRAG, NM_CLICK, NM_DBLCLK, NM_RCLICK, NM_RDBLCLK}},
    {WC_TREEVIEW,
     {{TVM_SELECTITEM, Fixed, TreeItem, TVGN_CARET},
      {TVM_SELECTITEM, Fixed, TreeItem, TVGN_FIRSTVISIBLE},
      {TVM_EXPAND, Fixed, TreeItem, TVE_EXPAND}, {TVM_EXPAND, Fixed, TreeItem, TVE_COLLAPSE},
      {TVM_EXPAND, Fixed, TreeItem, TVE_TOGGLE},
      {TVM_EXPAND, Fixed, TreeItem, TVE_COLLAPSE | TVE_COLLAPSERESET},
      {TVM_EXPAND, Fixed, TreeItem, TVE_TOGGLE | TVE_COLLAPSERESET},
      {TVM_ENSUREVISIBLE, None, TreeItem},
      {TVM_DELETEITEM, None, TreeItem}, {TVM_GETCOUNT}, {TVM_GETVISIBLECOUNT},
      {TVM_EDITLABELA, None, TreeItem}, {TVM_EDITLABELW, None, TreeItem},
      {TVM_ENDEDITLABELNOW, Flag}, {TVM_SETITEMA, None, Branch}, {TVM_SETITEMW, None, Branch},
      {TVM_SETIMAGELIST, Fixed, Pictures, TVSIL_NORMAL}, {TVM_SETITEMHEIGHT, Three},
      {TVM_SETITEMHEIGHT, Fixed, None, 33}, {TVM_SETITEMHEIGHT, Fixed, None, WPARAM(-1)},
      {TVM_SETINDENT, Three}, {TVM_SETINDENT, Fixed, None, 40},
      {WM_USER + 20, None, Flag}, {WM_USER + 21, Fixed, Buffer, 0x100}, // a view that is torn off
      // What goes between views while one drags; points are the screen's.
      {::RegisterWindowMessage("Kest Drag Track"), Hit},
      {::RegisterWindowMessage("Kest Drag Leave")},
      {::RegisterWindowMessage("Kest Drag Drop"), Hit},
      {::RegisterWindowMessage("Kest Drag Copy"), Hit}},
     0, {WM_CTLCOLOREDIT},
     {TVN_SELCHANGINGW, TVN_SELCHANGEDW, TVN_ITEMEXPANDINGA, TVN_ITEMEXPANDINGW, TVN_ITEMEXPANDEDW,
      TVN_SINGLEEXPAND, TVN_BEGINDRAGA, TVN_BEGINDRAGW, TVN_BEGINRDRAGW, NM_CLICK, NM_DBLCLK,
      NM_RCLICK}},
    {TOOLBARCLASSNAME,
     {{TB_ENABLEBUTTON, Small, Flag}, {TB_CHECKBUTTON, Small, Flag}, {TB_HIDEBUTTON, Small, Flag},
      {TB_BUTTONCOUNT}, {TB_SETBUTTONSIZE, None, Point}, {TB_PRESSBUTTON, Small, Flag},
      {TB_GETITEMRECT, Three, Place}, {TB_SETSTATE, Three, Three}, {TB_AUTOSIZE}},
     0, {}, {TBN_DROPDOWN, TBN_BEGINDRAG, TBN_ENDDRAG, NM_CLICK}},
    {STATUSCLASSNAME,
     {{SB_SETTEXTA, Three, Text}, {SB_SETTEXTW, Three, Text}, {SB_GETTEXT, Three, Buffer},
      {SB_GETTEXTLENGTH, Three}, {SB_SETPARTS, Fixed, Edges, 2}, {SB_SETPARTS, Fixed, Edges, 3},
      {SB_GETPARTS, Fixed, Edges, 3}, {SB_GETRECT, Three, Place}, {SB_SIMPLE, Flag},
      {SB_SETMINHEIGHT, Length}, {SB_SETBKCOLOR, None, Data}},
     0, {WM_CTLCOLORSTATIC}, {NM_CLICK, NM_RCLICK}},
    {WC_TABCONTROL,
     {{TCM_SETCURFOCUS, Flag}, {TCM_GETITEMRECT, Flag, Place}, {TCM_HITTEST, None, Hit},
      {TCM_GETCURSEL}, {TCM_SETITEMSIZE, None, Point}, {TCM_ADJUSTRECT, Flag, Place}},
     ODT_TAB, {WM_CTLCOLORSTATIC}, {TCN_SELCHANGE, TCN_SELCHANGING, NM_CLICK}},
    {"#32770",
     {{WM_NEXTDLGCTL, Flag}, {WM_NEXTDLGCTL, Child, Fixed, TRUE}, {DM_GETDEFID},
      {DM_SETDEFID, Fixed, None, IDOK}, {WM_COMMAND, Fixed, None, IDOK},
      {WM_COMMAND, Fixed, None, IDCANCEL}, {WM_ACTIVATE, Three, Child},
      {WM_MOVING, Fixed, Place, 9}, {WM_SIZING, Fixed, Place, WMSZ_BOTTOMRIGHT}, {WM_ENTERSIZEMOVE},
      {WM_EXITSIZEMOVE}, {PSM_SETCURSEL, Flag}, {PSM_SETTITLE, None, Text}, {PSM_CANCELTOCLOSE},
      {PSM_APPLY}, {PSM_QUERYSIBLINGS, Data, Data}, {PSM_GETCURRENTPAGEHWND},
      {PSM_PRESSBUTTON, Fixed, None, PSBTN_APPLYNOW}, {WM_SETICON, Flag},
      {WM_GETMINMAXINFO, None, Place}, {WM_SYSCOMMAND, Fixed, None, SC_RESTORE}},
     0, {WM_CTLCOLORDLG}, {}},
    {"", // any other
     {}, 0, {WM_CTLCOLORSTATIC},
     {CBN_SELCHANGE, NM_SETFOCUS, NM_KILLFOCUS, NM_RETURN, NM_RELEASEDCAPTURE, NM_CLICK,
      NM_RCLICK}},
};
// clang-format on

const Kind& KindOf(HWND window)
{
    return *std::find_if(std::begin(Kinds), std::end(Kinds) - 1,
                         [=](const Kind& kind) { return IsOfClass(window, kind.windowClass); });
}

} // namespace

// clang-format off
const std::vector<Word> CommonWords = {
    {WM_CANCELMODE}, {WM_SETTEXT, None, Text}, {WM_SETFONT, Font, Flag}, {WM_SETREDRAW, Flag},
    {WM_SYSCOLORCHANGE}, {WM_VSCROLL, Small}, {WM_HSCROLL, Small, None}, {WM_TIMER, Timer},
    {WM_NOTIFYFORMAT, None, Fixed, NF_REQUERY},
    {0x069C, Row}, // what assistive programs ask of the library's controls
};

const std::vector<Word> AnyWords = {
    {WM_CHAR, Letter}, {WM_SYSCHAR, Letter}, {WM_UNICHAR, Letter}, {WM_IME_CHAR, Letter},
    {WM_IME_STARTCOMPOSITION}, {WM_IME_COMPOSITION}, {WM_IME_ENDCOMPOSITION},
    {WM_SYSKEYUP, Fixed, None, VK_DOWN}, {WM_MOUSELEAVE}, {WM_MOUSEHOVER, None, Point},
    {WM_PRINTCLIENT, Context, Printed}, {WM_PRINT, Context, Printed}, {WM_ERASEBKGND, Context},
    {WM_UPDATEUISTATE, UiState}, {WM_CHANGEUISTATE, UiState}, {WM_QUERYUISTATE},
    {WM_ACTIVATE, Three}, {WM_NCACTIVATE, Flag}, {WM_ACTIVATEAPP, Flag},
    {WM_GETTEXT, Fixed, Buffer, 0x100}, {WM_GETTEXTLENGTH}, {WM_GETFONT}, {WM_GETDLGCODE},
    {WM_SETTINGCHANGE}, {WM_THEMECHANGED}, {WM_FONTCHANGE}, {WM_DISPLAYCHANGE, Fixed, None, 32},
    {WM_PARENTNOTIFY, Fixed, Point, WM_LBUTTONDOWN}, {WM_QUERYNEWPALETTE},
    {WM_TABLET_QUERYSYSTEMGESTURESTATUS, None, Point},
    {WM_DPICHANGED, Fixed, Place, MAKELONG(120, 120)},
    {WM_MOUSEACTIVATE, None, Fixed, MAKELONG(HTCLIENT, WM_LBUTTONDOWN)},
    {WM_SETCURSOR, None, Fixed, MAKELONG(HTCLIENT, WM_MOUSEMOVE)},
    {WM_MENUSELECT, Fixed, None, MAKEWPARAM(0, 0xFFFF)}, {WM_IDLEUPDATECMDUI, Flag},
    {WM_INITIALUPDATE},
};
// clang-format on

bool IsPlainEdit(HWND window)
{
    return CWnd::FromHandlePermanent(window) == nullptr && IsOfClass(window, "Edit");
}

// Of an edit of the platform's. One on a page faulted in EM_REPLACESEL, in its own code by the call
// stack, in a long soak; the edits of the library are sent it.
const std::vector<Word>& WordsOf(HWND window)
{
    static const std::vector<Word> ofPlainEdit = {
        {EM_SETSEL, Row, Row}, {EM_SETREADONLY, Flag}, {EM_SCROLLCARET}};
    return IsPlainEdit(window) ? ofPlainEdit : KindOf(window).words;
}

int Arguments::Between(int first, int last)
{
    // The same on every platform, unlike the library's distributions.
    return m_seed == 0 ? std::clamp(1, first, last)
                       : first + int(m_random() % (std::uint32_t(last - first) + 1));
}

template <class Record> LPARAM Arguments::InRoom(const Record& record)
{
    std::fill_n(m_room.data(), 256, char(0));
    std::memcpy(m_room.data(), &record, sizeof(record));
    return reinterpret_cast<LPARAM>(m_room.data());
}

LPARAM Arguments::Value(Argument argument, HWND window)
{
    constexpr int EveryPart =
        PRF_CHECKVISIBLE | PRF_NONCLIENT | PRF_CLIENT | PRF_ERASEBKGND | PRF_CHILDREN | PRF_OWNED;
    switch (argument)
    {
    case None:
    case Fixed:
        return 0;
    case Flag:
        return Between(0, 1);
    case Three:
        return Between(0, 2);
    case Row:
        return Between(0, 20) == 0 ? Between(-2, 5000) : Between(-1, 45);
    case Small:
        return Between(-3, 20);
    case Length:
        return Between(-20, 400);
    case Data:
        return m_seed == 0 ? 0 : LPARAM(m_random());
    case Letter:
        return Between(0, 9) == 0 ? VK_RETURN : Between(8, 126);
    case Text:
        return reinterpret_cast<LPARAM>(Words());
    case Buffer:
        return InRoom(WORD(m_room.size() - 1)); // as EM_GETLINE has it
    case Place:
        return InRoom(CRect(Between(-5, 50), Between(-5, 50), Between(40, 300), Between(40, 300)));
    case Point:
    {
        CRect client;
        ::GetClientRect(window, &client);
        return MAKELPARAM(Between(-20, client.right + 60), Between(-20, client.bottom + 20));
    }
    case UiState:
        return MAKELPARAM(Between(UIS_SET, UIS_INITIALIZE), Between(1, 7));
    case Printed:
        return Between(0, EveryPart);
    case Context:
        return reinterpret_cast<LPARAM>(m_canvas.DC().GetSafeHdc());
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
        return InRoom(HDITEM{.mask = HDI_WIDTH | HDI_FORMAT,
                             .cxy = Between(0, 200),
                             .fmt = HDF_STRING | (Between(0, 1) ? HDF_SORTUP : HDF_SORTDOWN)});
    case Hit:
        return InRoom(CPoint(Between(-20, 300), Between(-20, 200)));
    case Edges:
        return InRoom(std::array{Between(10, 100), Between(100, 200), -1});
    case Font:
        return LPARAM(::GetStockObject(Between(0, 1) ? DEFAULT_GUI_FONT : SYSTEM_FONT));
    case Timer:
        return LPARAM(OneOf(TimerIds));
    case ListItem:
    {
        const LPARAM item = InRoom(LVITEM{.mask = LVIF_TEXT | LVIF_STATE,
                                          .iItem = Between(-1, 60),
                                          .iSubItem = Between(0, 4) - 1,
                                          .state = UINT(Between(0, 3)),
                                          .stateMask = LVIS_SELECTED | LVIS_FOCUSED,
                                          .pszText = m_room.data() + 256,
                                          .cchTextMax = 300});
        std::ranges::copy(OneOf(m_texts), m_room.data() + 256);
        return item;
    }
    case Places:
    {
        std::vector<int> places;
        for (int place = 0; place < int(::SendMessage(window, HDM_GETITEMCOUNT, 0, 0)); ++place)
        {
            places.insert(places.begin() + Between(0, place), place);
        }
        places.resize(MostHeadings);
        std::memcpy(m_room.data(), places.data(), MostHeadings * sizeof(int));
        return reinterpret_cast<LPARAM>(m_room.data());
    }
    case Heading:
        return InRoom(LVCOLUMN{.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT,
                               .fmt = Between(LVCFMT_LEFT, LVCFMT_CENTER),
                               .cx = Between(0, 200),
                               .pszText = const_cast<char*>(Words())});
    case Branch:
        return InRoom(
            TVITEM{.mask = TVIF_HANDLE | TVIF_TEXT | TVIF_STATE,
                   .hItem = HTREEITEM(Value(TreeItem, window)),
                   .state = UINT(Between(0, 1)) * TVIS_SELECTED | UINT(Between(0, 1)) * TVIS_BOLD,
                   .stateMask = TVIS_SELECTED | TVIS_BOLD,
                   .pszText = const_cast<char*>(Words())});
    case Order:
        return reinterpret_cast<LPARAM>(PFNLVCOMPARE([](LPARAM first, LPARAM second, LPARAM) {
            return first < second ? -1 : int(first > second);
        }));
    case Pictures:
    {
        static const HIMAGELIST pictures = ::ImageList_Create(24, 24, ILC_COLOR32, 1, 1);
        return Between(0, 1) ? reinterpret_cast<LPARAM>(pictures) : 0;
    }
    case TreeItem:
    {
        const auto next = [=](UINT which, LRESULT of) {
            return ::SendMessage(window, TVM_GETNEXTITEM, which, of);
        };
        LRESULT item = Between(0, 15) != 0 ? next(TVGN_ROOT, 0) : 0;
        LRESULT on = item;
        for (int steps = Between(0, 20); steps > 0 && on != 0; --steps)
        {
            item = on;
            const LRESULT child = Between(0, 3) == 0 ? next(TVGN_CHILD, item) : 0;
            on = child != 0 ? child : next(TVGN_NEXT, item);
        }
        return item;
    }
    }
    return 0;
}

Received ToParent::Drawn(HWND control, UINT kind)
{
    const int count = kind == ODT_LISTBOX    ? int(::SendMessage(control, LB_GETCOUNT, 0, 0))
                      : kind == ODT_LISTVIEW ? int(::SendMessage(control, LVM_GETITEMCOUNT, 0, 0))
                                             : 1;
    const UINT id = UINT(::GetDlgCtrlID(control));
    const int row = count > 0 ? m_arguments.Between(0, count - 1) : -1;
    const ULONG_PTR data = row >= 0 && kind == ODT_LISTBOX
                               ? ULONG_PTR(::SendMessage(control, LB_GETITEMDATA, WPARAM(row), 0))
                               : 0;
    if (row >= 0 && (kind == ODT_LISTBOX || kind == ODT_LISTVIEW) && m_arguments.Between(0, 2) == 0)
    {
        m_said.measure = {kind, id, UINT(row), 100, 20, data};
        return {WM_MEASUREITEM, id, LPARAM(&m_said)};
    }
    constexpr UINT states = ODS_SELECTED | ODS_DISABLED | ODS_CHECKED | ODS_FOCUS | ODS_NOACCEL;
    m_said.draw = {kind,
                   id,
                   UINT(row),
                   UINT(1 << m_arguments.Between(0, 2)), // all, the selection, the focus
                   UINT(m_arguments.Between(0, 0x3FF)) & states,
                   control,
                   reinterpret_cast<HDC>(m_arguments.Value(Context, control)),
                   *reinterpret_cast<const RECT*>(m_arguments.Value(Place, control)),
                   data};
    return {WM_DRAWITEM, id, LPARAM(&m_said)};
}

Received ToParent::Notified(HWND control, UINT code)
{
    const UINT id = UINT(::GetDlgCtrlID(control));
    m_said = {};
    m_said.header = {control, id, code};
    const std::string name = KindOf(control).windowClass;
    if (name == WC_HEADER)
    {
        m_said.heading.pitem = reinterpret_cast<HDITEM*>(m_arguments.Value(HeadItem, control));
        m_said.heading.iItem = m_arguments.Between(
            0, std::max(0, int(::SendMessage(control, HDM_GETITEMCOUNT, 0, 0)) - 1));
    }
    else if (code == LVN_GETINFOTIPA || code == LVN_GETINFOTIPW)
    {
        m_said.tip.pszText = reinterpret_cast<char*>(m_arguments.Value(Buffer, control));
        m_said.tip.cchTextMax = INFOTIPSIZE;
        m_said.tip.iItem = m_arguments.Between(0, 5);
    }
    else if (name == WC_LISTVIEW)
    {
        const int rows = int(::SendMessage(control, LVM_GETITEMCOUNT, 0, 0));
        m_said.list.iItem = code == LVN_COLUMNCLICK ? -1 : m_arguments.Between(-1, rows - 1);
        m_said.list.uNewState = UINT(m_arguments.Between(0, 3));
    }
    else if (name == WC_TREEVIEW)
    {
        m_said.tree.itemNew.mask = TVIF_HANDLE | TVIF_STATE;
        m_said.tree.itemNew.hItem = HTREEITEM(m_arguments.Value(TreeItem, control));
        m_said.tree.action = UINT(m_arguments.Between(TVE_COLLAPSE, TVE_EXPAND));
        m_said.tree.ptDrag = {m_arguments.Between(0, 200), m_arguments.Between(0, 200)};
    }
    else if (name == TOOLBARCLASSNAME)
    {
        m_said.button.iItem = m_arguments.Between(1, 5);
    }
    return {WM_NOTIFY, id, LPARAM(&m_said)};
}

Received ToParent::Next(HWND control)
{
    const Kind& kind = KindOf(control);
    const LPARAM self = reinterpret_cast<LPARAM>(control);
    const int what = m_arguments.Between(0, 4);
    if (what == 0 && kind.drawn != 0)
    {
        return Drawn(control, kind.drawn);
    }
    if (what == 1)
    {
        return {WM_PARENTNOTIFY, WM_RBUTTONDOWN, m_arguments.Value(Point, control)};
    }
    const auto& of =
        (what <= 2 && !kind.colours.empty()) || kind.told.empty() ? kind.colours : kind.told;
    const UINT code = of.empty() ? NM_CLICK : m_arguments.OneOf(of);
    return &of == &kind.colours && !of.empty()
               ? Received{code,
                          WPARAM(m_arguments.Value(code < WM_CTLCOLORMSGBOX ? Letter : Context,
                                                   control)),
                          self}
           : int(code) >= 0 ? Received{WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(control), code), self}
                            : Notified(control, code);
}

int EndTimers()
{
    int ended = 0;
    for (const HWND window : AllWindows())
    {
        for (const UINT id : TimerIds)
        {
            ended = ::KillTimer(window, id) ? int(id) : ended;
        }
    }
    return ended;
}

int TicksWithin(int milliseconds)
{
    static int s_count;
    s_count = 0;
    const HHOOK hook = ::SetWindowsHookEx(
        WH_GETMESSAGE,
        [](int code, WPARAM removed, LPARAM data) -> LRESULT {
            s_count += code == HC_ACTION && removed == PM_REMOVE &&
                       reinterpret_cast<const MSG*>(data)->message == WM_TIMER;
            return ::CallNextHookEx(nullptr, code, removed, data);
        },
        nullptr, ::GetCurrentThreadId());
    PumpFor(milliseconds);
    ::UnhookWindowsHookEx(hook);
    return s_count;
}
