#pragma once

#include "MultiTree.h"
#include "modes/WindowAlive.h"
#include "support/WindowTest.h"

constexpr DWORD TreeStyle = TVS_HASBUTTONS | TVS_LINESATROOT | TVS_HASLINES;
constexpr UINT Both = TVIS_FOCUSED | TVIS_SELECTED;

// What a test sees of a tree beyond its interface.
class TreeForTests : public Fenced<MultiTree>
{
public:
    using MultiTree::GetAutoScrollDirection;

    bool CanCtrlSelectItem(HTREEITEM item) override
    {
        return MultiTree::CanCtrlSelectItem(item) && item != refused;
    }
    HTREEITEM refused = nullptr;
};

// The first letters of the selected items, in tree order.
template <class Tree> std::string SelectedTexts(const Tree& tree, const CTreeCtrl& items)
{
    std::string texts;
    for (HTREEITEM item = tree.GetFirstSelectedItem(); item != nullptr;
         item = tree.GetNextSelectedItem(item))
    {
        texts += items.GetItemText(item)[0];
    }
    return texts;
}

inline std::string SelectedTexts(const MultiTree& tree)
{
    return SelectedTexts(tree, tree);
}

// The same, and the first letter of the item with the caret after a colon.
inline std::string Shown(const MultiTree& tree)
{
    const HTREEITEM caret = tree.GetFocusedItem();
    return SelectedTexts(tree) + ':' + (caret != nullptr ? tree.GetItemText(caret)[0] : '-');
}

// What the states themselves say, by a walk from an item on that asks the platform.
inline std::string StatesSay(const CTreeCtrl& tree, HTREEITEM item)
{
    std::string texts;
    for (; item != nullptr; item = tree.GetNextSiblingItem(item))
    {
        if ((tree.CTreeCtrl::GetItemState(item, TVIS_SELECTED) & TVIS_SELECTED) != 0)
        {
            texts += tree.GetItemText(item)[0];
        }
        texts += StatesSay(tree, tree.GetChildItem(item));
    }
    return texts;
}

// Adds items whose texts begin with the letters of names below parent.
inline std::vector<HTREEITEM> AddItems(CTreeCtrl& tree, const std::string& names,
                                       HTREEITEM parent = TVI_ROOT)
{
    std::vector<HTREEITEM> items;
    for (const char name : names)
    {
        items.push_back(tree.InsertItem((name + std::string(" of the tree")).c_str(), parent));
    }
    return items;
}

inline CRect TextRectOf(const CTreeCtrl& tree, HTREEITEM item)
{
    CRect rect;
    tree.GetItemRect(item, &rect, TRUE);
    return rect;
}

// Screen point of the middle of an item's text.
inline CPoint PointOf(const CTreeCtrl& tree, HTREEITEM item)
{
    return ClientPoint(tree, TextRectOf(tree, item).CenterPoint());
}

// The item that a notification of the tree is about.
inline HTREEITEM ItemOf(const ToldMessage& told)
{
    const auto& notify = About<NMTREEVIEW>(told);
    return notify.itemNew.hItem != nullptr ? notify.itemNew.hItem : notify.itemOld.hItem;
}

// Screen point right of an item's text, where nothing is.
inline CPoint EmptyBeside(const CTreeCtrl& tree, HTREEITEM item, int away = 60)
{
    const CRect text = TextRectOf(tree, item);
    return ClientPoint(tree, CPoint(text.right + away, text.CenterPoint().y));
}

// Screen point of the first pixel in an item's row that is a part of it (TVHT_).
inline CPoint PartOf(const CTreeCtrl& tree, HTREEITEM item, UINT part)
{
    CPoint point(0, TextRectOf(tree, item).CenterPoint().y);
    UINT flags = 0;
    for (; (flags & part) == 0 && point.x < 100; ++point.x)
    {
        tree.HitTest(point, &flags);
    }
    return ClientPoint(tree, point);
}

// One press at a point and what follows it, with keys held from before the press to after it.
struct PressScript
{
    std::vector<std::function<void()>> steps;
    CPoint start;
    std::vector<UINT> held;
    bool right = false;

    PressScript(CPoint at, std::vector<UINT> keys = {}, bool rightButton = false)
        : start(at)
        , held(std::move(keys))
        , right(rightButton)
    {
        Move(at);
        // The display tells of the move a little later, and of no key being down then.
        Do([any = !held.empty()] { PumpFor(any ? 30 : 0); });
        for (const UINT key : held)
        {
            Do([key] { QueueKey(key, true); });
        }
        Do([button = right] { QueueButton(true, button); });
    }
    PressScript& Move(CPoint to)
    {
        return Do([to] { QueueMove(to); });
    }
    // A distance counts from the first move on.
    PressScript& Pull(CPoint by)
    {
        return Move(start + CPoint(1, 0)).Move(start + CPoint(1, 0) + by);
    }
    PressScript& Do(std::function<void()> what)
    {
        steps.push_back(std::move(what));
        return *this;
    }
    void Release()
    {
        Do([button = right] { QueueButton(false, button); });
        for (const UINT key : held)
        {
            Do([key] { QueueKey(key, false); });
        }
        PlaySteps(steps);
    }
};

inline void ClickItem(const CTreeCtrl& tree, HTREEITEM item, std::vector<UINT> held = {},
                      bool right = false)
{
    PressScript(PointOf(tree, item), std::move(held), right).Release();
}

constexpr int Changing = int(TVN_SELCHANGING);
constexpr int Changed = int(TVN_SELCHANGED);

class TreeTest : public WindowTest
{
protected:
    const DoubleClickTime m_none{1}; // clicks that follow each other at once are single clicks here

    // a (b c) d e f; the branch a is open.
    TreeForTests& AddTree()
    {
        auto& tree = Add<TreeForTests>(CRect(20, 20, 320, 320), TreeStyle);
        Fill(tree);
        return tree;
    }

    void Fill(MultiTree& tree)
    {
        a = AddItems(tree, "a")[0];
        const auto below = AddItems(tree, "bc", a);
        const auto more = AddItems(tree, "def");
        std::tie(b, c) = std::tie(below[0], below[1]);
        std::tie(d, e, f) = std::tie(more[0], more[1], more[2]);
        tree.Expand(a, TVE_EXPAND);
        Begin(tree);
    }

    // With the focus, without the caret that the platform has given the first item.
    void Begin(MultiTree& tree)
    {
        tree.SetFocus();
        tree.SelectItem(nullptr);
        PumpAll();
        Host().Forget();
    }

    // The selection notifications and those of the button, in order.
    std::vector<int> Codes(UINT id = FirstId)
    {
        const std::vector<UINT> all = Host().CodesFrom(id);
        std::vector<int> codes(all.begin(), all.end());
        std::erase_if(codes, [](int code) {
            return code != Changing && code != Changed && code != int(NM_CLICK) &&
                   code != int(NM_RCLICK) && code != int(TVN_BEGINDRAG) &&
                   code != int(TVN_BEGINRDRAG);
        });
        return codes;
    }
    int CountOf(int code) { return int(std::ranges::count(Codes(), code)); }

    // All that is told of a place from now on is told of an item and a point of the screen.
    void ExpectAllAt(const CTreeCtrl& tree, HTREEITEM item, CPoint point)
    {
        Host().hook = [&tree, item, point](ToldMessage& told) {
            const int code = int(told.code);
            if (code == int(NM_RCLICK) || code == int(TVN_BEGINDRAG) || code == int(TVN_BEGINRDRAG))
            {
                const auto& notify = About<NMTREEVIEW>(told);
                EXPECT_EQ(notify.itemNew.hItem, item);
                EXPECT_EQ(ClientPoint(tree, notify.ptDrag), point);
            }
        };
    }

    HTREEITEM a = nullptr, b = nullptr, c = nullptr, d = nullptr, e = nullptr, f = nullptr;
};
