// What a parent may do where the platform asks and tells it by itself.

#include "trees/tree_for_tests.h"

namespace {

LRESULT Tell(HWND tree, UINT code, const TVITEM& change, UINT before)
{
    NMTVITEMCHANGE notify = {.hdr = {tree, UINT_PTR(::GetDlgCtrlID(tree)), code},
                             .uChanged = TVIF_STATE,
                             .hItem = change.hItem,
                             .uStateNew =
                                 (before & ~change.stateMask) | (change.state & change.stateMask),
                             .uStateOld = before};
    return ::SendMessage(::GetParent(tree), WM_NOTIFY, notify.hdr.idFrom, LPARAM(&notify));
}

WNDPROC platformTree = nullptr;

// The platform's tree as it is from Windows Vista on: the parent is asked of each change of a state
// and told of it. That of the tests' platform does neither.
LRESULT CALLBACK TellingTree(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != TVM_SETITEM)
    {
        return ::CallWindowProc(platformTree, window, message, wParam, lParam);
    }
    const TVITEM change = *reinterpret_cast<const TVITEM*>(lParam);
    const UINT before =
        UINT(::CallWindowProc(platformTree, window, TVM_GETITEMSTATE, WPARAM(change.hItem), 0xFF));
    if (Tell(window, TVN_ITEMCHANGING, change, before) != 0 || !::IsWindow(window))
    {
        return TRUE;
    }
    ::CallWindowProc(platformTree, window, message, wParam, lParam);
    Tell(window, TVN_ITEMCHANGED, change, before);
    return TRUE;
}

class ToldTree : public TreeForTests
{
public:
    BOOL Create(DWORD style, const RECT& place, CWnd* parent, UINT id) override
    {
        static const bool registered = [] {
            WNDCLASS windowClass = {};
            ::GetClassInfo(nullptr, WC_TREEVIEW, &windowClass);
            platformTree = windowClass.lpfnWndProc;
            windowClass.lpfnWndProc = &TellingTree;
            windowClass.lpszClassName = "TellingTree";
            windowClass.hInstance = ::GetModuleHandle(nullptr);
            return ::RegisterClass(&windowClass) != 0;
        }();
        EXPECT_TRUE(registered);
        return CWnd::CreateEx(0, "TellingTree", "", style, place, parent, id);
    }
};

class TreeToldTest : public TreeTest
{
protected:
    ToldTree& AddToldTree()
    {
        auto& tree = Add<ToldTree>(CRect(20, 20, 320, 320), TreeStyle);
        Fill(tree);
        return tree;
    }
};

TEST_F(TreeToldTest, ARefusalOfTheNewerKindCountsAsOne)
{
    auto& tree = AddToldTree();
    tree.SelectItem(b);
    HTREEITEM refused = d;
    Host().OnCode(TVN_ITEMCHANGING, [&](ToldMessage& told) {
        told.answer = About<NMTVITEMCHANGE>(told).hItem == refused;
    });
    Host().Forget();
    EXPECT_FALSE(tree.SetItemState(d, TVIS_SELECTED, TVIS_SELECTED));
    EXPECT_EQ(CountOf(Changed), 0);
    tree.SelectAll(true, true);
    EXPECT_EQ(tree.GetSelectedCount(), 5U);
    EXPECT_EQ(StatesSay(tree, a), "abcef");
    EXPECT_EQ(SelectedTexts(tree), "abcef");
    refused = e;
    tree.SelectAll(false, true);
    EXPECT_EQ(SelectedTexts(tree), "e");
    EXPECT_EQ(StatesSay(tree, a), "e");
}

TEST_F(TreeToldTest, SurvivesAParentThatIsToldOfStates)
{
    ToldTree* tree = nullptr;
    const Act<HTREEITEM> acts[] = {
        {"deletes the item", [&](HTREEITEM item) { tree->DeleteItem(item); }},
        {"deletes the next", [&](HTREEITEM item) { tree->DeleteItem(item == d ? e : d); }},
        {"clears the tree", [&](HTREEITEM) { tree->DeleteAllItems(); }},
        {"ends the tree", [&](HTREEITEM) { Remove(*tree); }},
        {"moves the caret", [&](HTREEITEM) { tree->FocusItem(f); }},
        {"makes it one of one selection", [&](HTREEITEM) { tree->SetMultiSelect(false); }},
    };
    const Act<> operations[] = {
        {"all", [&] { tree->SelectAll(true, true); }},
        {"none", [&] { tree->SelectAll(false, true); }},
        {"range", [&] { tree->SelectRange(b, f, true); }},
        {"state", [&] { tree->SetItemState(d, Both, Both); }},
        {"caret kept", [&] { tree->SetItemState(e, TVIS_SELECTED, Both); }},
        {"caret away", [&] { tree->FocusItem(nullptr); }},
        {"caret", [&] { tree->FocusItem(d); }},
        {"item", [&] { tree->SelectItem(d); }},
        {"one", [&] { tree->SetMultiSelect(false); }},
        {"collapse", [&] { tree->Expand(a, TVE_COLLAPSE); }},
        {"key", [&] { TypeKey(VK_DOWN, VK_CONTROL); }},
        {"click", [&] { ClickItem(*tree, c); }},
        {"beside",
         [&] {
             const CPoint at = EmptyBeside(*tree, e);
             tree->SelectItem(nullptr);
             Host().SetFocus();
             PressScript(at, {VK_CONTROL}).Release();
         }},
    };
    for (const auto& [act, acting] : acts)
    {
        for (const auto& [operation, operate] : operations)
        {
            bool came = true;
            for (int which = 0; came && which < 8; ++which)
            {
                SCOPED_TRACE(testing::Message() << act << " at " << which << " of " << operation);
                tree = &AddToldTree();
                const WindowAlive alive(*tree);
                tree->SetItemState(c, TVIS_SELECTED, TVIS_SELECTED);
                tree->SetItemState(e, Both, Both);
                int count = 0;
                Host().hook = [&, &acting = acting](ToldMessage& told) {
                    const int code = int(told.code);
                    const bool newer =
                        code == int(TVN_ITEMCHANGING) || code == int(TVN_ITEMCHANGED);
                    if ((newer || code == Changing || code == Changed) && count++ == which)
                    {
                        acting(newer ? About<NMTVITEMCHANGE>(told).hItem : ItemOf(told));
                    }
                };
                operate();
                Host().hook = nullptr;
                came = count > which;
                EXPECT_TRUE(came || which > 0) << "it tells nothing";
                PumpAll();
                if (alive)
                {
                    EXPECT_EQ(StatesSay(*tree, tree->GetRootItem()), SelectedTexts(*tree));
                    EXPECT_TRUE(tree->IsMultiSelect() || SelectedTexts(*tree).size() <= 1);
                    Remove(*tree);
                }
            }
        }
    }
}

} // namespace
