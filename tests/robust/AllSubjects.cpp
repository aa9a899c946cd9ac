#include "robust/Subjects.h"

#include "ColorStatic.h"
#include "ColoredGroupBox.h"
#include "CustomComboLBox.h"
#include "CustomDropListCombo.h"
#include "CustomListCtrl.h"
#include "MultiTree.h"
#include "MultiTreeView.h"
#include "SearchStatusBar.h"
#include "trees/TreeLook.h"
#include "trees/TreeSelection.h"

#include <algorithm>

namespace {

using enum Argument;

// What is private and yet to be looked at: the bars of the trees.
template <int> struct Way
{};
template <int Step, auto Member> struct Opened
{
    friend auto Open(Way<Step>) { return Member; }
};
auto Open(Way<0>);
auto Open(Way<1>);
auto Open(Way<2>);
auto Open(Way<3>);
auto Open(Way<4>);
auto Open(Way<5>);
template struct Opened<0, &MultiTree::m_selection>;
template struct Opened<1, &MultiTreeView::m_selection>;
template struct Opened<2, &trees::TreeSelection::m_look>;
template struct Opened<3, &trees::TreeLook::m_bars>;
template struct Opened<4, &trees::TreeBars::m_vertical>;
template struct Opened<5, &trees::TreeBars::m_horizontal>;

template <class Tree, int First> std::string FaultOfTree(CWnd& window)
{
    auto& selection = *(static_cast<Tree&>(window).*Open(Way<First>()));
    auto& bars = (*(selection.*Open(Way<2>()))).*Open(Way<3>());
    return FaultOf((bars.*Open(Way<4>())).bar) + FaultOf((bars.*Open(Way<5>())).bar);
}

struct SeenReport : CCustomListCtrl
{
    static std::string Fault(CWnd& window)
    {
        auto& list = static_cast<CCustomListCtrl&>(window);
        return FaultOf(list.*&SeenReport::m_vBar) + FaultOf(list.*&SeenReport::m_hBar);
    }
};

struct SeenCombo : CCustomDropListCombo
{
    static HWND List(CWnd& window)
    {
        CWnd* const list = static_cast<CCustomDropListCombo&>(window).*&SeenCombo::m_list;
        return list == nullptr ? nullptr : list->GetSafeHwnd();
    }
    static std::string Fault(CWnd& window);
};

const Subject& Known(const std::string& name)
{
    return *std::find_if(Subjects().begin(), Subjects().end(),
                         [&](const Subject& subject) { return subject.name == name; });
}

std::string SeenCombo::Fault(CWnd& window)
{
    const auto& combo = static_cast<CCustomDropListCombo&>(window);
    CWnd* const list = combo.*&SeenCombo::m_list;
    return combo.IsExpanded()        ? "still open"
           : List(window) == nullptr ? std::string()
                                     : Known("list box").fault(*list);
}

// clang-format off
constexpr void (*ComboActs[])(CCustomDropListCombo& combo, int row, const char* text) = {
    [](auto& combo, int, const char* text) { combo.AddString(text); },
    [](auto& combo, int row, const char* text) { combo.InsertString(row, text); },
    [](auto& combo, int row, const char*) { combo.RemoveString(row); },
    [](auto& combo, int, const char*) { combo.ResetContent(); },
    [](auto& combo, int row, const char*) { combo.SetCurSel(row); },
    [](auto& combo, int row, const char* text) { combo.SelectString(row, text); },
    [](auto& combo, int row, const char*) { combo.Sort(row % 2 == 0); },
    [](auto& combo, int row, const char*) { combo.SetItemDataPtr(row, &combo); },
    [](auto& combo, int row, const char*) { combo.RemoveItemDataPtr(row); },
    [](auto& combo, int, const char*) { combo.DoDropButton(); },
    [](auto& combo, int row, const char*) { combo.ListClosed(row); },
    [](auto& combo, int, const char*) { combo.GetSelString(); },
    [](auto& combo, int, const char* text) { for (int row = 0; row < 40; ++row) combo.AddString(text); },
    [](auto& combo, int, const char*) { combo.ToggleDropList(); },
    [](auto& combo, int, const char*) { combo.SendMessage(WM_SYSKEYDOWN, VK_DOWN, 0x20000001); },
    [](auto& combo, int, const char*) { combo.ToggleDropList(); },
};
// clang-format on

void UseCombo(CWnd& window, Arguments& arguments)
{
    const int row = int(arguments.Value(Row, window));
    const char* const text = arguments.Words();
    ComboActs[arguments.Between(0, int(std::size(ComboActs)) - 1)](
        static_cast<CCustomDropListCombo&>(window), row, text);
}

void RestCombo(CWnd& window)
{
    if (static_cast<CCustomDropListCombo&>(window).IsExpanded())
    {
        window.SendMessage(WM_KEYDOWN, VK_ESCAPE, 1);
        window.SendMessage(WM_KEYUP, VK_ESCAPE, LPARAM(0xC0000001));
    }
}

void UseSearchBar(CWnd& window, Arguments& arguments)
{
    auto& bar = static_cast<CSearchStatusBar&>(window);
    void (CSearchStatusBar::*const acts[])() = {
        &CSearchStatusBar::StartSearchProgress, &CSearchStatusBar::StartLoadingProgress,
        &CSearchStatusBar::StopSearchProgress, &CSearchStatusBar::StopLoadingProgress};
    (bar.*acts[arguments.Between(0, 3)])();
}

void UseReport(CWnd& window, Arguments& arguments)
{
    auto& list = static_cast<CCustomListCtrl&>(window);
    const int columns =
        int(::SendMessage(list.GetHeaderCtrl()->GetSafeHwnd(), HDM_GETITEMCOUNT, 0, 0));
    if (columns < 6 && arguments.Between(0, 2) != 0)
    {
        list.InsertColumn(arguments.Between(0, columns), arguments.Words(), LVCFMT_LEFT,
                          arguments.Between(0, 200));
        return;
    }
    std::vector<int> order;
    for (int column = 0; column < columns; ++column)
    {
        order.insert(order.begin() + arguments.Between(0, column), column);
    }
    window.SendMessage(LVM_SETCOLUMNORDERARRAY, WPARAM(columns), LPARAM(order.data()));
    list.SetMinColWidth(arguments.Between(0, 60));
}

// clang-format off
const std::vector<Word> StatusWords = {
    {SB_SETTEXT, Three, Text}, {SB_GETTEXT, Three, Buffer}, {SB_GETTEXTLENGTH, Three},
    {SB_SETPARTS, Fixed, Edges, 2}, {SB_SETPARTS, Fixed, Edges, 3}, {SB_GETPARTS, Fixed, Edges, 3},
    {SB_GETRECT, Three, Place}, {SB_SIMPLE, Flag}, {SB_SETMINHEIGHT, Pixels},
    {SB_SETBKCOLOR, None, Data},
};

// Nothing closes the sheet.
const std::vector<Word> SheetWords = {
    {PSM_SETCURSEL, Flag}, {PSM_SETTITLE, None, Text}, {PSM_CANCELTOCLOSE}, {PSM_APPLY},
    {PSM_QUERYSIBLINGS, Data, Data}, {PSM_GETCURRENTPAGEHWND}, {WM_ACTIVATE, Three, Child},
    {PSM_PRESSBUTTON, Fixed, None, PSBTN_APPLYNOW}, {WM_MOVING, Fixed, Place, 9},
    {WM_SIZING, Fixed, Place, WMSZ_BOTTOMRIGHT},
};
// clang-format on

std::vector<Subject> MakeAll()
{
    std::vector<Subject> all = Subjects();
    const auto change = [&](const std::string& name) -> Subject& {
        return *std::find_if(all.begin(), all.end(), [&](auto& each) { return each.name == name; });
    };
    change("check list").fault = Known("list box").fault;
    change("tree").fault = &FaultOfTree<MultiTree, 0>;
    change("tree view").fault = &FaultOfTree<MultiTreeView, 1>;
    change("report list").fault = &SeenReport::Fault;
    change("report list").act = &UseReport;
    Subject& combo = change("combo");
    combo.fault = &SeenCombo::Fault;
    combo.act = &UseCombo;
    combo.rest = &RestCombo;
    combo.part = &SeenCombo::List;
    change("status bar").words = StatusWords;
    change("search bar").words = StatusWords;
    change("search bar").act = &UseSearchBar;
    change("search bar").rest = [](CWnd& window) {
        static_cast<CSearchStatusBar&>(window).StopSearchProgress();
    };
    change("swatch").act = [](CWnd& window, Arguments& arguments) {
        static_cast<CColorStatic&>(window).Set(COLORREF(arguments.Value(Data, window)));
    };
    change("outline").act = [](CWnd& window, Arguments& arguments) {
        static_cast<CColoredGroupBox&>(window).SetColor(COLORREF(arguments.Value(Data, window)));
    };
    for (auto& word : {Word{TB_PRESSBUTTON, Small, Flag}, Word{TB_GETITEMRECT, Three, Place},
                       Word{TB_SETSTATE, Three, Three}, Word{TB_AUTOSIZE}})
    {
        change("tool bar").words.push_back(word);
    }

    change("property sheet").words = SheetWords;

    Subject one = change("tree");
    one.name = "tree of one selection";
    one.make = [make = one.make](CWnd& parent) {
        auto tree = make(parent);
        static_cast<MultiTree&>(*tree).SetMultiSelect(false);
        return tree;
    };
    all.push_back(one);
    return all;
}

} // namespace

const std::vector<Subject>& AllSubjects()
{
    static const std::vector<Subject> subjects = MakeAll();
    return subjects;
}
