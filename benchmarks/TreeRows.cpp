// The tree of many selected items: what a change of all or of a range costs against the bare loop
// of item-state messages on the platform's tree, and what a click costs in a large tree against the
// same click in a small one.

#include "MultiTree.h"
#include "Row.h"
#include "Stage.h"
#include "paint/Metrics.h"

#include <string>

namespace {

constexpr int AllItems = 10'000;
constexpr int RangeItems = 5'000;
constexpr int FewItems = 10;
constexpr int Clicks = 50;
constexpr DWORD Style =
    WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS;

// The items of a tree, all visible without a branch to be opened.
template <class Tree> struct Filled
{
    Tree tree;
    std::vector<HTREEITEM> items;

    Filled(int count, int height, APPMODE mode = STD)
    {
        EnterMode(mode);
        tree.Create(Style, CRect(20, 20, 320, 20 + height), &Stage(), 1);
        tree.SetRedraw(FALSE);
        for (int item = 0; item < count; ++item)
        {
            items.push_back(tree.InsertItem(("Waypoint " + std::to_string(item)).c_str()));
        }
        tree.SetRedraw(TRUE);
        PaintNow(tree);
        Settle();
    }
};

void SetStates(CTreeCtrl& tree, UINT state)
{
    for (HTREEITEM item = tree.GetRootItem(); item != nullptr; item = tree.GetNextVisibleItem(item))
    {
        tree.SetItemState(item, state, TVIS_SELECTED);
    }
}

// A click as the pointer makes it, with its painting. The release waits in the queue, for the loop
// in which a press is handled.
void Click(CTreeCtrl& tree, HTREEITEM item, WPARAM keys)
{
    CRect text;
    tree.GetItemRect(item, &text, TRUE);
    const LPARAM point = MAKELPARAM(text.left + 8, text.CenterPoint().y);
    tree.PostMessage(WM_LBUTTONUP, keys, point);
    tree.SendMessage(WM_LBUTTONDOWN, keys | MK_LBUTTON, point);
    tree.UpdateWindow();
}

Side SelectAndDeselectAll()
{
    auto filled = std::make_shared<std::unique_ptr<Filled<MultiTree>>>();
    return {[filled] { *filled = std::make_unique<Filled<MultiTree>>(AllItems, 500); },
            [filled] {
                MultiTree& tree = (*filled)->tree;
                tree.SelectAll(true, false);
                tree.SelectAll(false, false);
                PaintNow(tree);
            },
            [filled] { filled->reset(); }};
}

Side LoopOverAll()
{
    auto filled = std::make_shared<std::unique_ptr<Filled<CTreeCtrl>>>();
    return {[filled] { *filled = std::make_unique<Filled<CTreeCtrl>>(AllItems, 500); },
            [filled] {
                CTreeCtrl& tree = (*filled)->tree;
                SetStates(tree, TVIS_SELECTED);
                SetStates(tree, 0);
                PaintNow(tree);
            },
            [filled] { filled->reset(); }};
}

Side ShiftClick()
{
    auto filled = std::make_shared<std::unique_ptr<Filled<MultiTree>>>();
    return {[filled] {
                *filled = std::make_unique<Filled<MultiTree>>(RangeItems, 500);
                MultiTree& tree = (*filled)->tree;
                tree.SetFocus();
                tree.SelectItem((*filled)->items.front());
                tree.EnsureVisible((*filled)->items.back());
                PaintNow(tree);
            },
            [filled] { Click((*filled)->tree, (*filled)->items.back(), MK_SHIFT); },
            [filled] { filled->reset(); }};
}

Side LoopOverRange()
{
    auto filled = std::make_shared<std::unique_ptr<Filled<CTreeCtrl>>>();
    return {[filled] {
                *filled = std::make_unique<Filled<CTreeCtrl>>(RangeItems, 500);
                CTreeCtrl& tree = (*filled)->tree;
                tree.SetFocus();
                tree.EnsureVisible((*filled)->items.back());
                PaintNow(tree);
            },
            [filled] {
                SetStates((*filled)->tree, TVIS_SELECTED);
                PaintNow((*filled)->tree);
            },
            [filled] { filled->reset(); }};
}

// On-board, where the library does the painting too, and with the same ten rows in sight in both
// trees, so that as much is painted.
template <int count> Side ClickOneByOne()
{
    auto filled = std::make_shared<std::unique_ptr<Filled<MultiTree>>>();
    return {[filled] {
                *filled = std::make_unique<Filled<MultiTree>>(count, FewItems * metrics::FingerRow,
                                                              ONBOARD);
                (*filled)->tree.SetFocus();
                (*filled)->tree.SelectItem((*filled)->items.front());
                PaintNow((*filled)->tree);
            },
            [filled] {
                for (int click = 1; click <= Clicks; ++click)
                {
                    Click((*filled)->tree, (*filled)->items[size_t(click % (FewItems - 1))], 0);
                }
            },
            [filled] { filled->reset(); }};
}

} // namespace

std::vector<Row> TreeRows()
{
    return {{"tree.selectall", 1.3, 3, &SelectAndDeselectAll, &LoopOverAll},
            {"tree.range", 1.5, 3, &ShiftClick, &LoopOverRange},
            {"tree.click", 1.5, 9, &ClickOneByOne<AllItems>, &ClickOneByOne<FewItems>}};
}
