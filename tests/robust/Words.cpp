#include "robust/Words.h"

#include "support/LiveObjects.h"
#include "support/Pumping.h"

#include <afxdlgs.h>

#include <algorithm>

namespace {

using enum Argument;

// A kind of window of the platform's: what it is sent and what it tells its parent.
struct Kind
{
    const char* windowClass;
    std::vector<Word> words;
    UINT drawn;                // how it calls itself when it has its parent draw; 0: it does not
    std::vector<UINT> colours; // the questions before it paints
    std::vector<UINT> told;    // by WM_NOTIFY or, if positive, by WM_COMMAND
};

// Not EM_REPLACESEL: an edit of the platform's on a page faulted in it, in its own code by the call
// stack, in a long soak. The edits of the library are sent it.
// clang-format off
const Kind Kinds[] = {
    {"Button",
     {{BM_SETCHECK, Three}, {BM_GETCHECK}, {BM_SETSTATE, Flag}, {BM_CLICK}, {WM_GETDLGCODE}},
     ODT_BUTTON, {WM_CTLCOLORBTN, WM_CTLCOLORSTATIC},
     {BN_CLICKED, BN_DOUBLECLICKED, BN_SETFOCUS, BN_KILLFOCUS, BN_HILITE, BN_UNHILITE}},
    {"Static",
     {{STM_GETICON}, {STM_SETICON}, {STM_GETIMAGE}, {WM_GETDLGCODE}},
     ODT_STATIC, {WM_CTLCOLORSTATIC}, {STN_CLICKED, STN_DBLCLK, STN_ENABLE, STN_DISABLE}},
    {"Edit",
     {{EM_SETSEL, Row, Row}, {EM_SETREADONLY, Flag}, {EM_SCROLLCARET}},
     0, {WM_CTLCOLOREDIT, WM_CTLCOLORSTATIC},
     {EN_SETFOCUS, EN_KILLFOCUS, EN_CHANGE, EN_UPDATE, EN_MAXTEXT, EN_HSCROLL, EN_VSCROLL}},
    {"ListBox",
     {{LB_ADDSTRING, None, Text}, {LB_DELETESTRING, Row}, {LB_SETCURSEL, Row},
      {LB_SETTOPINDEX, Row}, {LB_GETITEMRECT, Row, Place}},
     ODT_LISTBOX, {WM_CTLCOLORLISTBOX},
     {LBN_SELCHANGE, LBN_DBLCLK, LBN_SELCANCEL, LBN_SETFOCUS, LBN_KILLFOCUS}},
    {WC_HEADER,
     {{HDM_GETITEMCOUNT}, {HDM_SETITEM, Three, HeadItem}, {HDM_GETITEM, Three, HeadItem},
      {HDM_GETITEMRECT, Three, Place}, {HDM_HITTEST, None, Hit},
      {HDM_ORDERTOINDEX, Three}, {HDM_SETHOTDIVIDER, Flag, Three}},
     ODT_HEADER, {},
     {HDN_ITEMCLICKA, HDN_ITEMCLICKW, HDN_ITEMDBLCLICKW, HDN_BEGINTRACKW, HDN_DIVIDERDBLCLICKW}},
    {WC_LISTVIEW, {}, ODT_LISTVIEW, {WM_CTLCOLOREDIT},
     {LVN_ITEMCHANGING, LVN_ITEMCHANGED, LVN_INSERTITEM, LVN_COLUMNCLICK, LVN_ITEMACTIVATE,
      LVN_BEGINDRAG, LVN_BEGINRDRAG, NM_CLICK, NM_DBLCLK, NM_RCLICK, NM_RDBLCLK}},
    {WC_TREEVIEW, {}, 0, {WM_CTLCOLOREDIT},
     {TVN_SELCHANGINGW, TVN_SELCHANGEDW, TVN_ITEMEXPANDINGA, TVN_ITEMEXPANDINGW, TVN_ITEMEXPANDEDW,
      TVN_BEGINDRAGA, TVN_BEGINDRAGW, TVN_BEGINRDRAGW, NM_CLICK, NM_DBLCLK, NM_RCLICK}},
    {TOOLBARCLASSNAME, {}, 0, {}, {TBN_DROPDOWN, TBN_BEGINDRAG, TBN_ENDDRAG, NM_CLICK}},
    {WC_TABCONTROL,
     {{TCM_SETCURFOCUS, Flag}, {TCM_GETITEMRECT, Flag, Place}, {TCM_HITTEST, None, Hit},
      {TCM_GETCURSEL}, {TCM_ADJUSTRECT, Flag, Place}},
     ODT_TAB, {WM_CTLCOLORSTATIC}, {TCN_SELCHANGE, TCN_SELCHANGING, NM_CLICK}},
    {"#32770",
     {{WM_NEXTDLGCTL, Flag}, {WM_NEXTDLGCTL, Child, Fixed, TRUE}, {DM_GETDEFID},
      {DM_SETDEFID, Fixed, None, IDOK}, {WM_COMMAND, Fixed, None, IDOK},
      {WM_COMMAND, Fixed, None, IDCANCEL}, {WM_ACTIVATE, Three, Child},
      {WM_MOVING, Fixed, Place, 9}, {WM_SIZING, Fixed, Place, WMSZ_BOTTOMRIGHT},
      {WM_ENTERSIZEMOVE}, {WM_EXITSIZEMOVE}},
     0, {WM_CTLCOLORDLG}, {}},
};
// clang-format on
const Kind Other = {
    "",
    {},
    0,
    {WM_CTLCOLORSTATIC},
    {CBN_SELCHANGE, NM_SETFOCUS, NM_KILLFOCUS, NM_RETURN, NM_RELEASEDCAPTURE, NM_CLICK, NM_RCLICK}};

const Kind& KindOf(HWND window)
{
    char name[64] = "";
    ::GetClassName(window, name, sizeof(name));
    const auto found = std::find_if(std::begin(Kinds), std::end(Kinds), [&](const Kind& kind) {
        return ::lstrcmpi(kind.windowClass, name) == 0;
    });
    return found == std::end(Kinds) ? Other : *found;
}

} // namespace

// clang-format off
const std::vector<Word> AnyWords = {
    {WM_CHAR, Letter}, {WM_SYSKEYUP, Fixed, None, VK_DOWN}, {WM_MOUSELEAVE},
    {WM_MOUSEHOVER, None, Point}, {WM_PRINTCLIENT, Canvas, Printed}, {WM_PRINT, Canvas, Printed},
    {WM_ERASEBKGND, Canvas}, {WM_UPDATEUISTATE, UiState}, {WM_CHANGEUISTATE, UiState},
    {WM_QUERYUISTATE}, {WM_ACTIVATE, Three}, {WM_NCACTIVATE, Flag}, {WM_ACTIVATEAPP, Flag},
    {WM_GETTEXT, Fixed, Buffer, 0x100}, {WM_GETTEXTLENGTH}, {WM_GETFONT}, {WM_GETDLGCODE},
    {WM_SETTINGCHANGE}, {WM_THEMECHANGED}, {WM_FONTCHANGE}, {WM_DISPLAYCHANGE, Fixed, None, 32},
    {WM_PARENTNOTIFY, Fixed, Point, WM_LBUTTONDOWN}, {WM_QUERYNEWPALETTE},
};
// clang-format on

const std::vector<Word>& WordsOf(HWND window)
{
    return KindOf(window).words;
}

ToParent::Told ToParent::Drawn(HWND control, UINT kind)
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
                   reinterpret_cast<HDC>(m_arguments.Value(Canvas, control)),
                   *reinterpret_cast<const RECT*>(m_arguments.Value(Place, control)),
                   data};
    return {WM_DRAWITEM, id, LPARAM(&m_said)};
}

ToParent::Told ToParent::Notified(HWND control, UINT code)
{
    const UINT id = UINT(::GetDlgCtrlID(control));
    m_said = {};
    m_said.header = {control, id, code};
    const std::string name = KindOf(control).windowClass;
    if (name == WC_HEADER)
    {
        m_headItem = *reinterpret_cast<const HDITEM*>(m_arguments.Value(HeadItem, control));
        m_said.heading.pitem = &m_headItem;
        m_said.heading.iItem = m_arguments.Between(
            0, std::max(0, int(::SendMessage(control, HDM_GETITEMCOUNT, 0, 0)) - 1));
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

ToParent::Told ToParent::Next(HWND control)
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
    const UINT code =
        of.empty() ? NM_CLICK : of[size_t(m_arguments.Between(0, int(of.size()) - 1))];
    return &of == &kind.colours && !of.empty()
               ? Told{code, WPARAM(m_arguments.Value(Canvas, control)), self}
           : int(code) >= 0 ? Told{WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(control), code), self}
                            : Notified(control, code);
}

int EndTimers()
{
    int ended = 0;
    const auto end = [](HWND window, LPARAM count) -> BOOL {
        for (const UINT id : TimerIds)
        {
            *reinterpret_cast<int*>(count) += ::KillTimer(window, id) != FALSE;
        }
        return TRUE;
    };
    for (const HWND window : TopLevelWindows())
    {
        end(window, LPARAM(&ended));
        ::EnumChildWindows(window, end, LPARAM(&ended));
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
