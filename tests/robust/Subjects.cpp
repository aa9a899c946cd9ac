#include "robust/Subjects.h"

#include "catalog/Makers.h"
#include "support/Acting.h"
#include "trees/TreeLook.h"
#include "trees/TreeSelection.h"

#include <set>

namespace {

using Catalog = Makers<Mortal>;

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

// What only a derived class may look at.
struct SeenEdit : CCustomEdit
{
    static std::string Fault(CCustomEdit& edit)
    {
        return edit.*&SeenEdit::m_scrolling ? "a press goes on" : FaultOf(edit.*&SeenEdit::m_bar);
    }
};

template <class List> struct Seen : List
{
    static std::string Fault(List& list)
    {
        return FaultOf(list.*&Seen::m_vBar) + FaultOf(list.*&Seen::m_hBar);
    }
};

struct SeenList : Seen<CCustomListBox>
{
    static std::string Fault(CCustomListBox& list)
    {
        return list.*&SeenList::m_tracking ? "a press goes on" : Seen<CCustomListBox>::Fault(list);
    }
};

struct SeenChecks : CCustomChecklistBox
{
    using CCustomChecklistBox::SetSelectionCheck;
};

struct SeenCombo : CCustomDropListCombo
{
    static CWnd* List(CCustomDropListCombo& combo) { return combo.*&SeenCombo::m_list; }
};

// The bars of a tree are private to its parts: only what is instantiated with them may look.
std::string FaultOf(MultiTree& tree);
std::string FaultOf(MultiTreeView& tree);
template <class Tree, auto Selection, auto Look, auto Bars, auto... Each> struct Opened
{
    friend std::string FaultOf(Tree& tree)
    {
        auto& bars = (*((*(tree.*Selection)).*Look)).*Bars;
        return (FaultOf((bars.*Each).bar) + ...);
    }
};
template struct Opened<MultiTree, &MultiTree::m_selection, &trees::TreeSelection::m_look,
                       &trees::TreeLook::m_bars, &trees::TreeBars::m_vertical,
                       &trees::TreeBars::m_horizontal>;
template struct Opened<MultiTreeView, &MultiTreeView::m_selection, &trees::TreeSelection::m_look,
                       &trees::TreeLook::m_bars, &trees::TreeBars::m_vertical,
                       &trees::TreeBars::m_horizontal>;

// Whether the window is such a control, which is then used.
template <class Control, class Use> bool On(CWnd& window, Use use)
{
    auto* const control = dynamic_cast<Control*>(&window);
    if (control != nullptr)
    {
        use(*control);
    }
    return control != nullptr;
}

struct ListOfValues : CCustomListBox
{
    int CompareItem(LPCOMPAREITEMSTRUCT compared) override
    {
        return compared->itemData1 < compared->itemData2 ? -1 : 1;
    }
};

// clang-format off
template <class Control> using Act = void (*)(Control& control, int row, const char* text);

constexpr Act<CCustomDropListCombo> ComboActs[] = {
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
};
constexpr Act<CCustomChecklistBox> CheckActs[] = {
    [](auto& list, int row, const char*) { list.SetCheck(row, row % 3); },
    [](auto& list, int row, const char*) { list.Enable(row, row % 2); },
    [](auto& list, int row, const char*) { list.SetCheckStyle(BS_CHECKBOX + UINT(row) % 5); },
    [](auto& list, int row, const char*) { (list.*&SeenChecks::SetSelectionCheck)(row % 3); },
    [](auto& list, int, const char*) { list.ReCheckScrollBars(); },
};
constexpr Act<CCustomListBox> ListActs[] = {
    [](auto& list, int, const char*) { list.ReCheckScrollBars(); },
};
constexpr Act<EditWithPrompt> PromptActs[] = {
    [](auto& edit, int, const char*) { edit.Reset(); },
    [](auto& edit, int, const char* text) { edit.SetPromptText(text); },
};
constexpr Act<CCustomEdit> EditActs[] = {
    [](auto& edit, int row, const char*) { if (row == 0) edit.SetFauxReadOnly(); },
};
constexpr Act<QuixEdit> FixedActs[] = {
    [](auto& edit, int row, const char*) { edit.SetFixedPlace(row, row, 4 * row); },
};
constexpr Act<CustomToolbar> ToolActs[] = {
    [](auto& bar, int row, const char*) {
        std::vector<std::string> faults;
        bar.OrderBtns({UINT(row % 6), 3, 1, UINT(row)}, faults);
    },
};
template <class Tree> constexpr Act<Tree> TreeActs[] = {
    [](auto& tree, int row, const char*) { tree.SetMultiSelect(row % 2 == 0); },
    [](auto& tree, int row, const char*) {
        const DWORD style = row & 1 ? TVS_EDITLABELS : TVS_SINGLEEXPAND;
        tree.ModifyStyle(style, row & 2 ? style : 0);
    },
};
// Not constexpr, which only one of the compilers takes.
void (CSearchStatusBar::*const SearchActs[])() = {
    &CSearchStatusBar::StartSearchProgress, &CSearchStatusBar::StartLoadingProgress,
    &CSearchStatusBar::StopSearchProgress, &CSearchStatusBar::StopLoadingProgress};
// clang-format on

void UseReport(CCustomListCtrl& list, Arguments& arguments)
{
    list.ReCheckScrollBars();
    list.ModifyStyle(LVS_EDITLABELS, arguments.Between(0, 1) != 0 ? LVS_EDITLABELS : 0);
    const int columns = list.GetHeaderCtrl()->GetItemCount();
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
    list.SetColumnOrderArray(columns, order.data());
    list.SetMinColWidth(arguments.Between(0, 60));
}

// The framework's window of a program, with its bars and a view.
struct Frame : Standing<CFrameWnd>
{
    Mortal<CToolBar> tools;
    Mortal<CStatusBar> status;
};
struct FramesView : Mortal<MultiTreeView>
{
    DECLARE_DYNCREATE(FramesView)
};
IMPLEMENT_DYNCREATE(FramesView, MultiTreeView)

std::unique_ptr<CWnd> MakeFrame(CWnd& owner, const Contents& contents)
{
    CRect place = contents.place;
    owner.ClientToScreen(&place);
    CCreateContext context;
    context.m_pNewViewClass = RUNTIME_CLASS(FramesView);
    auto frame = std::make_unique<Mortal<Frame>>();
    const UINT ids[] = {1, 2, 3};
    const bool made = frame->Create(nullptr, contents.text.c_str(), WS_POPUP | WS_CAPTION, place,
                                    &owner, nullptr, 0, &context) &&
                      frame->tools.Create(frame.get()) && frame->status.Create(frame.get()) &&
                      frame->tools.SetButtons(ids, 3);
    if (made)
    {
        frame->InitialUpdateFrame(nullptr, TRUE);
    }
    return made && frame->GetSafeHwnd() != nullptr ? std::move(frame) : nullptr;
}

std::vector<Subject> MakeSubjects()
{
    // The combo on its list's bar, in the standard mode.
    const std::set<std::string> loops = {
        "combo",          "list of a combo",       "report list", "report of rows elsewhere",
        "tree",           "tree of one selection", "tree view",   "form view",
        "property sheet", "property page",         "dialog",      "message box",
        "frame"};
    std::vector<Control> controls = Catalog::All();
    controls.push_back(
        {"list box of values", Catalog::MadeList<ListOfValues>(LBS_OWNERDRAWVARIABLE | LBS_SORT |
                                                               LBS_WANTKEYBOARDINPUT)});
    controls.push_back({"frame", &MakeFrame});
    controls.push_back({"report of rows elsewhere", &Catalog::MakeReport<LVS_OWNERDATA>});
    controls.push_back({"tree of one selection", [](CWnd& parent, const Contents& contents) {
                            auto tree = Catalog::MakeTree(parent, contents);
                            if (tree != nullptr)
                            {
                                static_cast<MultiTree&>(*tree).SetMultiSelect(false);
                            }
                            return tree;
                        }});
    std::vector<Subject> subjects;
    subjects.reserve(controls.size());
    for (const Control& control : controls)
    {
        subjects.push_back({control.name,
                            [make = control.make](CWnd& parent) {
                                return make(parent, {CRect(40, 30, 300, 230), "Row"});
                            },
                            loops.contains(control.name)});
    }
    return subjects;
}

} // namespace

const std::vector<Subject>& Subjects()
{
    static const std::vector<Subject> subjects = MakeSubjects();
    return subjects;
}

std::optional<std::string> FaultOf(CWnd& window)
{
    std::optional<std::string> fault;
    On<CCustomEdit>(window, [&](auto& edit) { fault = SeenEdit::Fault(edit); });
    On<CCustomListBox>(window, [&](auto& list) { fault = SeenList::Fault(list); });
    On<CCustomListCtrl>(window, [&](auto& list) { fault = Seen<CCustomListCtrl>::Fault(list); });
    On<MultiTree>(window, [&](auto& tree) { fault = FaultOf(tree); });
    On<MultiTreeView>(window, [&](auto& tree) { fault = FaultOf(tree); });
    On<CCustomDropListCombo>(window, [&](auto& combo) {
        fault = combo.IsExpanded()         ? "still open"
                : PartOf(combo) == nullptr ? std::string()
                                           : FaultOf(*SeenCombo::List(combo));
    });
    return fault;
}

HWND PartOf(CWnd& window)
{
    auto* const combo = dynamic_cast<CCustomDropListCombo*>(&window);
    CWnd* const list = combo == nullptr ? nullptr : SeenCombo::List(*combo);
    return list == nullptr ? nullptr : list->GetSafeHwnd();
}

bool ActOn(CWnd& window, Arguments& arguments)
{
    const auto color = [&] { return COLORREF(arguments.Value(Argument::Data, window)); };
    const auto one = [&](auto& control, const auto& acts) {
        const int row = int(arguments.Value(Argument::Row, window));
        const char* const text = arguments.Words();
        arguments.OneOf(acts)(control, row, text);
    };
    const auto grow = [&]<class Tree>(Tree& tree) {
        if (arguments.Between(0, 2) == 0)
        {
            one(tree, TreeActs<Tree>);
            return;
        }
        TVINSERTSTRUCT branch = {};
        branch.hParent = HTREEITEM(arguments.Value(Argument::TreeItem, tree));
        branch.item.mask = TVIF_TEXT;
        branch.item.pszText = const_cast<char*>(arguments.Words());
        tree.SendMessage(TVM_INSERTITEM, 0, LPARAM(&branch));
    };
    return On<CCustomDropListCombo>(window, [&](auto& combo) { one(combo, ComboActs); }) ||
           On<CCustomChecklistBox>(window, [&](auto& list) { one(list, CheckActs); }) ||
           On<CCustomListBox>(window, [&](auto& list) { one(list, ListActs); }) ||
           On<EditWithPrompt>(window, [&](auto& edit) { one(edit, PromptActs); }) ||
           On<CCustomEdit>(window, [&](auto& edit) { one(edit, EditActs); }) ||
           On<QuixEdit>(window, [&](auto& edit) { one(edit, FixedActs); }) ||
           On<CustomToolbar>(window, [&](auto& bar) { one(bar, ToolActs); }) ||
           On<CSearchStatusBar>(window, [&](auto& bar) { (bar.*arguments.OneOf(SearchActs))(); }) ||
           On<CCustomListCtrl>(window, [&](auto& list) { UseReport(list, arguments); }) ||
           On<MultiTree>(window, grow) || On<MultiTreeView>(window, grow) ||
           On<CColorStatic>(window, [&](auto& swatch) { swatch.Set(color()); }) ||
           On<CColoredGroupBox>(window, [&](auto& outline) { outline.SetColor(color()); });
}

void Rest(CWnd& window)
{
    On<CSearchStatusBar>(window, [](auto& bar) { bar.StopSearchProgress(); });
    On<CCustomListCtrl>(window, [](auto& list) { list.SendMessage(LVM_CANCELEDITLABEL); });
    On<MultiTree>(window, [](auto& tree) { tree.SendMessage(TVM_ENDEDITLABELNOW, TRUE); });
    On<MultiTreeView>(window, [](auto& tree) {
        tree.SendMessage(TVM_ENDEDITLABELNOW, TRUE);
        tree.SendMessage(::RegisterWindowMessage("Kest Drag Leave"));
    });
    On<CCustomDropListCombo>(window, [](auto& combo) {
        if (combo.IsExpanded())
        {
            combo.SendMessage(WM_KEYDOWN, VK_ESCAPE, 1);
            combo.SendMessage(WM_KEYUP, VK_ESCAPE, LPARAM(0xC0000001));
        }
    });
}

std::string TestName(std::string words)
{
    std::replace(words.begin(), words.end(), ' ', '_');
    return words;
}
