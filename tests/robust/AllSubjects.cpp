#include "robust/Subjects.h"

#include "ColorStatic.h"
#include "ColoredGroupBox.h"
#include "CustomComboLBox.h"
#include "CustomDropListCombo.h"
#include "CustomFormView.h"
#include "CustomListCtrl.h"
#include "CustomPropPage.h"
#include "CustomPropSheet.h"
#include "MultiTree.h"
#include "MultiTreeView.h"
#include "SearchStatusBar.h"
#include "support/Fenced.h"
#include "support/forms.h"
#include "trees/TreeSelection.h"

#include "trees/TreeLook.h"

#include <algorithm>

namespace {

using enum Argument;

// What is private and yet to be looked at: the bars of the trees.
template <class Tag, auto Member> struct Opened
{
    friend auto Open(Tag) { return Member; }
};
struct OfTree
{
    friend auto Open(OfTree);
};
struct OfView
{
    friend auto Open(OfView);
};
struct OfSelection
{
    friend auto Open(OfSelection);
};
struct OfLook
{
    friend auto Open(OfLook);
};
struct Upright
{
    friend auto Open(Upright);
};
struct Level
{
    friend auto Open(Level);
};
template struct Opened<OfTree, &MultiTree::m_selection>;
template struct Opened<OfView, &MultiTreeView::m_selection>;
template struct Opened<OfSelection, &trees::TreeSelection::m_look>;
template struct Opened<OfLook, &trees::TreeLook::m_bars>;
template struct Opened<Upright, &trees::TreeBars::m_vertical>;
template struct Opened<Level, &trees::TreeBars::m_horizontal>;

template <class Tree, class Tag> std::string FaultOfTree(CWnd& window)
{
    auto& selection = *(static_cast<Tree&>(window).*Open(Tag()));
    auto& bars = (*(selection.*Open(OfSelection()))).*Open(OfLook());
    return FaultOf((bars.*Open(Upright())).bar) + FaultOf((bars.*Open(Level())).bar);
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

void UseCombo(CWnd& window, Arguments& arguments)
{
    auto& combo = static_cast<CCustomDropListCombo&>(window);
    const int row = int(arguments.Value(Row, window));
    switch (arguments.Between(0, 18))
    {
    case 0:
        combo.AddString(arguments.Words());
        break;
    case 1:
        combo.InsertString(row, arguments.Words());
        break;
    case 2:
        combo.RemoveString(row);
        break;
    case 3:
        combo.ResetContent();
        break;
    case 4:
        combo.SetCurSel(row);
        break;
    case 5:
        combo.SelectString(row, arguments.Words());
        break;
    case 6:
        combo.Sort(row % 2 == 0);
        break;
    case 7:
        combo.SetItemDataPtr(row, &combo);
        combo.RemoveItemDataPtr(row);
        break;
    case 8:
        combo.DoDropButton();
        break;
    case 9:
        combo.ListClosed(row);
        break;
    case 10:
        combo.FindStringExact(row, arguments.Words());
        combo.GetSelString();
        break;
    case 11:
        for (int more = 0; more < 40; ++more)
        {
            combo.AddString(arguments.Words());
        }
        break;
    case 12:
    case 13:
        window.SendMessage(WM_SYSKEYDOWN, VK_DOWN, 0x20000001);
        break;
    default:
        combo.ToggleDropList();
        break;
    }
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
    constexpr void (CSearchStatusBar::*acts[])() = {
        &CSearchStatusBar::StartSearchProgress, &CSearchStatusBar::StartLoadingProgress,
        &CSearchStatusBar::StopSearchProgress, &CSearchStatusBar::StopLoadingProgress};
    (bar.*acts[arguments.Between(0, 3)])();
}

void RestSearchBar(CWnd& window)
{
    static_cast<CSearchStatusBar&>(window).StopSearchProgress();
    static_cast<CSearchStatusBar&>(window).StopLoadingProgress();
}

void UseReport(CWnd& window, Arguments& arguments)
{
    auto& list = static_cast<CCustomListCtrl&>(window);
    const int columns =
        int(::SendMessage(list.GetHeaderCtrl()->GetSafeHwnd(), HDM_GETITEMCOUNT, 0, 0));
    if (columns < 6 && arguments.Between(0, 2) != 0)
    {
        window.SendMessage(LVM_INSERTCOLUMN, WPARAM(arguments.Between(0, columns)),
                           arguments.Value(Column, window));
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

const std::vector<Word> StatusWords = {
    {SB_SETTEXT, Three, Text},
    {SB_GETTEXT, Three, Buffer},
    {SB_GETTEXTLENGTH, Three},
    {SB_SETPARTS, Fixed, Edges, 2},
    {SB_SETPARTS, Fixed, Edges, 3},
    {SB_GETRECT, Three, Place},
    {SB_SIMPLE, Flag},
    {SB_SETMINHEIGHT, Pixels},
    {SB_SETBKCOLOR, None, Data},
    {SB_GETPARTS, Fixed, Edges, 3},
};

// Nothing closes the sheet.
const std::vector<Word> SheetWords = {
    {PSM_SETCURSEL, Flag},
    {PSM_SETTITLE, None, Text},
    {PSM_CANCELTOCLOSE},
    {PSM_QUERYSIBLINGS, Data, Data},
    {PSM_APPLY},
    {PSM_GETCURRENTPAGEHWND},
    {PSM_PRESSBUTTON, Fixed, None, PSBTN_APPLYNOW},
    {WM_ACTIVATE, Three, Child},
    {WM_MOVING, Fixed, Place, 9},
    {WM_SIZING, Fixed, Place, WMSZ_BOTTOMRIGHT},
};

class Sheet : public Fenced<CCustomPropSheet>
{
public:
    explicit Sheet(CWnd* owner, CPropertyPage* first = nullptr)
        : Fenced<CCustomPropSheet>("Sheet", nullptr, owner)
    {
        AddPage(first != nullptr ? first : &m_first);
        AddPage(&m_second);
        Create(owner, WS_POPUP | WS_CAPTION | WS_VISIBLE);
    }
    ~Sheet() override { DestroyWindow(); }

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        return LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL ||
               Fenced<CCustomPropSheet>::OnCommand(wParam, lParam);
    }

private:
    CCustomPropPage m_first{UINT(IDD_TEST_PAGE_1)};
    CCustomPropPage m_second{UINT(IDD_TEST_PAGE_2)};
};

// The first one of its sheet.
class Page : public Fenced<CCustomPropPage>
{
public:
    explicit Page(CWnd* owner)
        : Fenced<CCustomPropPage>(UINT(IDD_TEST_PAGE_1))
        , m_sheet(std::make_unique<Sheet>(owner, this))
    {}
    ~Page() override { m_sheet.reset(); }

private:
    std::unique_ptr<Sheet> m_sheet;
};

struct FormView : Fenced<CCustomFormView>
{
    FormView()
        : Fenced<CCustomFormView>(UINT(IDD_TEST_FORM))
    {}
    void PostNcDestroy() override {}
};

std::unique_ptr<CWnd> MakeFormView(CWnd& host)
{
    auto view = std::make_unique<FormView>();
    view->CWnd::Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &host,
                       ControlId, nullptr);
    view->OnInitialUpdate();
    return view;
}

std::vector<Subject> MakeAll()
{
    std::vector<Subject> all = Subjects();
    const auto change = [&](const std::string& name) -> Subject& {
        return *std::find_if(all.begin(), all.end(), [&](auto& each) { return each.name == name; });
    };
    change("check list").fault = Known("list box").fault;
    change("tree").fault = &FaultOfTree<MultiTree, OfTree>;
    change("tree view").fault = &FaultOfTree<MultiTreeView, OfView>;
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
    change("search bar").rest = &RestSearchBar;
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

    Subject one = change("tree");
    one.name = "tree of one selection";
    one.make = [make = one.make](CWnd& parent) {
        auto tree = make(parent);
        static_cast<MultiTree&>(*tree).SetMultiSelect(false);
        return tree;
    };
    all.push_back(one);
    all.push_back({.name = "form view", .make = &MakeFormView, .pressesLoop = true});
    all.push_back({.name = "property sheet",
                   .make = [](CWnd& host) { return std::make_unique<Sheet>(&host); },
                   .words = SheetWords,
                   .pressesLoop = true});
    all.push_back({.name = "property page",
                   .make = [](CWnd& host) { return std::make_unique<Page>(&host); },
                   .pressesLoop = true});
    return all;
}

} // namespace

const std::vector<Subject>& AllSubjects()
{
    static const std::vector<Subject> subjects = MakeAll();
    return subjects;
}
