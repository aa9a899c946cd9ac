#pragma once

#include "MultiTree.h"
#include "modes/WindowAlive.h"
#include "support/WindowTest.h"

#include <algorithm>
#include <string>

constexpr DWORD TreeStyle = TVS_HASBUTTONS | TVS_LINESATROOT | TVS_HASLINES;

// What a test sees of a tree beyond its interface.
class TreeForTests : public MultiTree
{
public:
    using MultiTree::GetAutoScrollDirection;
    using MultiTree::UpdateSelectionForRect;

    bool CanCtrlSelectItem(HTREEITEM item) override
    {
        return MultiTree::CanCtrlSelectItem(item) && item != refused;
    }
    HTREEITEM refused = nullptr;
};

// The first letters of the selected items, in tree order.
template <class Tree> std::string SelectedTexts(Tree& tree)
{
    std::string texts;
    for (HTREEITEM item = tree.GetFirstSelectedItem(); item != nullptr;
         item = tree.GetNextSelectedItem(item))
    {
        char text[16] = "";
        TVITEM data = {};
        data.mask = TVIF_HANDLE | TVIF_TEXT;
        data.hItem = item;
        data.pszText = text;
        data.cchTextMax = int(sizeof(text));
        tree.SendMessage(TVM_GETITEM, 0, reinterpret_cast<LPARAM>(&data));
        texts += text[0];
    }
    return texts;
}

// Adds items whose texts begin with the letters of names below parent.
inline std::vector<HTREEITEM> AddItems(const CWnd& tree, const std::string& names,
                                       HTREEITEM parent = TVI_ROOT)
{
    std::vector<HTREEITEM> items;
    for (const char name : names)
    {
        const std::string text = std::string(1, name) + " of the tree";
        TVINSERTSTRUCT insert = {};
        insert.hParent = parent;
        insert.hInsertAfter = TVI_LAST;
        insert.item.mask = TVIF_TEXT;
        insert.item.pszText = const_cast<char*>(text.c_str());
        items.push_back(
            HTREEITEM(tree.SendMessage(TVM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&insert))));
    }
    return items;
}

inline CRect TextRectOf(const CWnd& tree, HTREEITEM item)
{
    CRect rect(0, 0, 0, 0);
    ::CopyMemory(&rect, &item, sizeof(item));
    tree.SendMessage(TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&rect));
    return rect;
}

// Screen point of the middle of an item's text.
inline CPoint PointOf(const CWnd& tree, HTREEITEM item)
{
    return ClientPoint(tree, TextRectOf(tree, item).CenterPoint());
}

// Screen point right of an item's text, where nothing is.
inline CPoint EmptyBeside(const CWnd& tree, HTREEITEM item, int away = 60)
{
    const CRect text = TextRectOf(tree, item);
    return ClientPoint(tree, CPoint(text.right + away, text.CenterPoint().y));
}

using Steps = std::vector<std::function<void()>>;

// One press at a point and what follows it, with keys held from before the press to after it.
struct PressScript
{
    Steps steps;
    std::vector<UINT> held;
    bool right = false;

    PressScript(CPoint at, std::vector<UINT> keys = {}, bool rightButton = false)
        : held(std::move(keys))
        , right(rightButton)
    {
        steps.push_back([at] { QueueMove(at); });
        // The display tells of the move a little later, and of no key being down then.
        steps.push_back([any = !held.empty()] { PumpFor(any ? 30 : 0); });
        for (const UINT key : held)
        {
            steps.push_back([key] { QueueKey(key, true); });
        }
        steps.push_back([button = right] { QueueButton(true, button); });
    }
    PressScript& Move(CPoint to)
    {
        steps.push_back([to] { QueueMove(to); });
        return *this;
    }
    PressScript& Do(std::function<void()> what)
    {
        steps.push_back(std::move(what));
        return *this;
    }
    void Release()
    {
        steps.push_back([button = right] { QueueButton(false, button); });
        for (const UINT key : held)
        {
            steps.push_back([key] { QueueKey(key, false); });
        }
        PlaySteps(steps);
    }
};

inline void ClickItem(const CWnd& tree, HTREEITEM item, std::vector<UINT> held = {},
                      bool right = false)
{
    PressScript(PointOf(tree, item), std::move(held), right).Release();
}

constexpr int Changing = int(TVN_SELCHANGING);
constexpr int Changed = int(TVN_SELCHANGED);

class TreeTest : public WindowTest
{
protected:
    // Clicks that follow each other at once are single clicks here.
    void SetUp() override
    {
        WindowTest::SetUp();
        m_doubleClickTime = ::GetDoubleClickTime();
        ::SetDoubleClickTime(1);
    }
    void TearDown() override
    {
        ::SetDoubleClickTime(m_doubleClickTime);
        WindowTest::TearDown();
    }

    // a (b c) d e f; the branch a is open.
    TreeForTests& AddTree(APPMODE = STD)
    {
        auto& tree = Add<TreeForTests>(CRect(20, 20, 320, 320), TreeStyle);
        a = AddItems(tree, "a")[0];
        const auto below = AddItems(tree, "bc", a);
        b = below[0];
        c = below[1];
        const auto more = AddItems(tree, "def");
        d = more[0];
        e = more[1];
        f = more[2];
        tree.Expand(a, TVE_EXPAND);
        tree.SetFocus();
        tree.SelectItem(nullptr); // the platform has given the first one the caret
        PumpAll();
        Host().Forget();
        return tree;
    }

    // The selection notifications and those of the button, in order.
    std::vector<int> Codes(UINT id = FirstId)
    {
        std::vector<int> codes;
        for (const UINT code : Host().CodesFrom(id))
        {
            if (code == UINT(TVN_SELCHANGING) || code == UINT(TVN_SELCHANGED) ||
                code == UINT(NM_CLICK) || code == UINT(NM_RCLICK) || code == UINT(TVN_BEGINDRAG) ||
                code == UINT(TVN_BEGINRDRAG))
            {
                codes.push_back(int(code));
            }
        }
        return codes;
    }

    int CountOf(int code)
    {
        const std::vector<int> codes = Codes();
        return int(std::count(codes.begin(), codes.end(), code));
    }

    UINT m_doubleClickTime = 0;
    HTREEITEM a = nullptr, b = nullptr, c = nullptr, d = nullptr, e = nullptr, f = nullptr;
};
