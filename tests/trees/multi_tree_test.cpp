#include "trees/tree_for_tests.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

class MultiTreeTest : public TreeTest
{};

// What the states themselves say, by a walk that asks the platform.
std::string StatesSay(TreeForTests& tree, HTREEITEM item)
{
    std::string texts;
    for (; item != nullptr; item = tree.GetNextSiblingItem(item))
    {
        if (tree.CTreeCtrl::GetItemState(item, TVIS_SELECTED) != 0)
        {
            texts += tree.GetItemText(item)[0];
        }
        texts += StatesSay(tree, tree.GetChildItem(item));
    }
    return texts;
}

TEST_F(MultiTreeTest, IsMadeByNameAndOverATreeOfADialog)
{
    const std::unique_ptr<CObject> made(CRuntimeClass::CreateObject("MultiTree"));
    EXPECT_NE(DYNAMIC_DOWNCAST(MultiTree, made.get()), nullptr);

    auto& plain = Add<CTreeCtrl>(CRect(20, 20, 220, 220), TreeStyle);
    const auto items = AddItems(plain, "ab");
    plain.SetItemState(items[1], TVIS_SELECTED, TVIS_SELECTED);
    const UINT id = UINT(plain.GetDlgCtrlID());
    plain.UnsubclassWindow();
    TreeForTests tree;
    EXPECT_FALSE(tree.SubclassTreeCtrlId(id + 100, &Host()));
    EXPECT_FALSE(tree.SubclassTreeCtrlId(id, nullptr));
    ASSERT_TRUE(tree.SubclassTreeCtrlId(id, &Host()));
    EXPECT_EQ(SelectedTexts(tree), "b") << "what was selected before is known";
    tree.DestroyWindow();
    EXPECT_EQ(tree.GetSelectedCount(), 0U);
}

TEST_F(MultiTreeTest, TheKnownSelectionIsWhatTheStatesSay)
{
    auto& tree = AddTree();
    const auto expectInStep = [&](const char* selected) {
        EXPECT_EQ(SelectedTexts(tree), selected);
        EXPECT_EQ(StatesSay(tree, tree.GetRootItem()), selected);
        EXPECT_EQ(tree.GetSelectedCount(), UINT(std::string(selected).size()));
    };
    tree.CTreeCtrl::SetItemState(d, TVIS_SELECTED, TVIS_SELECTED);
    expectInStep("d");
    tree.CTreeCtrl::SelectItem(b); // past the class: the platform's own selection
    tree.CTreeCtrl::SelectItem(d);
    tree.CTreeCtrl::SelectItem(f);
    expectInStep("f");
    tree.SelectAll(true, false);
    expectInStep("abcdef");
    tree.DeleteItem(a);
    expectInStep("def");
    TVINSERTSTRUCT insert = {};
    insert.hParent = TVI_ROOT;
    insert.hInsertAfter = TVI_FIRST;
    insert.item.mask = TVIF_TEXT | TVIF_STATE;
    insert.item.pszText = const_cast<char*>("n");
    insert.item.state = insert.item.stateMask = TVIS_SELECTED;
    tree.InsertItem(&insert);
    expectInStep("ndef");
    tree.DeleteAllItems();
    expectInStep("");

    CTypedPtrList<CPtrList, HTREEITEM> list;
    const auto again = AddItems(tree, "xyz");
    tree.SetItemState(again[2], TVIS_SELECTED, TVIS_SELECTED);
    tree.SetItemState(again[0], TVIS_SELECTED, TVIS_SELECTED);
    tree.GetSelectedList(list);
    ASSERT_EQ(list.GetCount(), 2);
    EXPECT_EQ(list.GetHead(), again[0]);
    EXPECT_EQ(list.GetTail(), again[2]);
}

TEST_F(MultiTreeTest, EachStateChangeAsksAndTellsTheParent)
{
    auto& tree = AddTree();
    tree.SetItemData(d, 77);
    std::vector<std::string> sides;
    Host().hook = [&](ToldMessage& told) {
        if (told.code == UINT(TVN_SELCHANGING) || told.code == UINT(TVN_SELCHANGED))
        {
            const auto& notify = *reinterpret_cast<NMTREEVIEW*>(told.lParam);
            EXPECT_TRUE(tree.IsEmulatedNotify());
            EXPECT_EQ(notify.hdr.hwndFrom, tree.GetSafeHwnd());
            const TVITEM& side = notify.itemNew.hItem != nullptr ? notify.itemNew : notify.itemOld;
            EXPECT_EQ(side.hItem, d);
            EXPECT_EQ(side.lParam, 77);
            sides.push_back(notify.itemNew.hItem != nullptr ? "new" : "old");
        }
    };
    EXPECT_TRUE(tree.SetItemState(d, TVIS_SELECTED, TVIS_SELECTED));
    EXPECT_TRUE(tree.SetItemState(d, 0, TVIS_SELECTED));
    EXPECT_TRUE(tree.SetItemState(d, TVIS_SELECTED, TVIS_SELECTED, false));
    EXPECT_THAT(Codes(), ElementsAre(Changing, Changed, Changing, Changed, Changing));
    EXPECT_THAT(sides, ElementsAre("new", "new", "old", "old", "new"));
    EXPECT_FALSE(tree.IsEmulatedNotify());
    EXPECT_TRUE(tree.SetItemState(d, TVIS_CUT, TVIS_CUT)) << "other bits change unasked";
    EXPECT_EQ(tree.GetItemState(d, TVIS_CUT | TVIS_SELECTED), UINT(TVIS_CUT | TVIS_SELECTED));
}

TEST_F(MultiTreeTest, TheCaretMovesWithoutTheSelection)
{
    auto& tree = AddTree();
    EXPECT_TRUE(tree.SetItemState(b, TVIS_FOCUSED | TVIS_SELECTED, TVIS_FOCUSED | TVIS_SELECTED));
    EXPECT_EQ(tree.GetFocusedItem(), b);
    tree.SetItemState(e, TVIS_SELECTED, TVIS_SELECTED);
    tree.FocusItem(d);
    EXPECT_EQ(tree.GetFocusedItem(), d);
    EXPECT_EQ(SelectedTexts(tree), "be") << "the caret left b and came to d";
    EXPECT_EQ(tree.GetItemState(d, TVIS_FOCUSED | TVIS_SELECTED), UINT(TVIS_FOCUSED));
    tree.FocusItem(e);
    EXPECT_EQ(SelectedTexts(tree), "be");
    tree.FocusItem(nullptr);
    EXPECT_EQ(tree.GetFocusedItem(), nullptr);
    EXPECT_EQ(SelectedTexts(tree), "be") << "e keeps its selection without the caret";
    EXPECT_TRUE(tree.SelectItem(c));
    EXPECT_EQ(SelectedTexts(tree), "c");
    EXPECT_EQ(tree.GetFocusedItem(), c);
    tree.SelectItem(nullptr);
    EXPECT_EQ(SelectedTexts(tree), "");
    EXPECT_EQ(tree.GetFocusedItem(), nullptr);
}

TEST_F(MultiTreeTest, ARefusalLeavesEverythingAsItWas)
{
    auto& tree = AddTree();
    tree.SelectItem(b);
    Host().Forget();
    Host().hook = [](ToldMessage& told) {
        if (told.code == UINT(TVN_SELCHANGING))
        {
            told.answer = TRUE;
        }
    };
    EXPECT_FALSE(tree.SetItemState(d, TVIS_SELECTED, TVIS_SELECTED));
    EXPECT_FALSE(tree.SetItemState(b, 0, TVIS_SELECTED));
    EXPECT_FALSE(tree.SetItemState(e, TVIS_FOCUSED | TVIS_SELECTED, TVIS_FOCUSED | TVIS_SELECTED));
    tree.SelectAll(true, true);
    tree.SelectRange(a, f, true);
    EXPECT_FALSE(tree.SelectChildren(a, true, true));
    EXPECT_EQ(SelectedTexts(tree), "b");
    EXPECT_EQ(tree.GetFocusedItem(), b);
    EXPECT_EQ(CountOf(Changed), 0);
}

struct RangeCase
{
    const char* description;
    int first;
    int last;
    bool only;
    const char* selected; // f is selected before
};

TEST_F(MultiTreeTest, ARangeAsksOnceForEachItem)
{
    auto& tree = AddTree();
    for (const HTREEITEM item : {a, b, f})
    {
        tree.SetItemState(item, TVIS_SELECTED, TVIS_SELECTED);
    }
    std::string asked;
    Host().hook = [&](ToldMessage& told) {
        if (told.code == UINT(TVN_SELCHANGING))
        {
            const auto& notify = *reinterpret_cast<NMTREEVIEW*>(told.lParam);
            const TVITEM& side = notify.itemNew.hItem != nullptr ? notify.itemNew : notify.itemOld;
            asked += tree.GetItemText(side.hItem)[0];
            told.answer = side.hItem == a || side.hItem == f;
        }
    };
    tree.SelectRange(d, e, true);
    EXPECT_EQ(asked, "abdef") << "a and f are refused, and not asked for again";
    EXPECT_EQ(SelectedTexts(tree), "adef");
}

TEST_F(MultiTreeTest, ASecondWindowOfTheObjectBeginsAfresh)
{
    const CRect place(20, 20, 320, 320);
    const DWORD style = TreeStyle | WS_CHILD | WS_VISIBLE;
    auto& tree = AddTree();
    const auto makeAgain = [&] {
        if (tree.GetSafeHwnd() != nullptr)
        {
            tree.DestroyWindow();
        }
        EXPECT_TRUE(tree.Create(style, place, &Host(), FirstId));
        d = AddItems(tree, "def")[0];
        PumpAll();
    };
    const UINT ownHeight = tree.GetItemHeight();
    COnBoardUIGeneral::SetAppMode(ONBOARD);
    for (int round = 0; round < 2; ++round)
    {
        makeAgain();
        EXPECT_GE(tree.GetItemHeight(), 40) << "window " << round;
        EXPECT_GE(tree.GetIndent(), 40U);
    }
    COnBoardUIGeneral::SetAppMode(STD);
    makeAgain();
    EXPECT_EQ(tree.GetItemHeight(), ownHeight);

    // The window ends while a press, a band and a notification are on.
    PressScript(PointOf(tree, d)).Do([&] { tree.DestroyWindow(); }).Release();
    makeAgain();
    ClickItem(tree, d);
    EXPECT_EQ(SelectedTexts(tree), "d") << "after a press";
    const CPoint beside = EmptyBeside(tree, d);
    PressScript(beside)
        .Move(beside + CPoint(20, 20))
        .Do([&] { tree.DestroyWindow(); })
        .Do([&] { makeAgain(); })
        .Release();
    ClickItem(tree, d);
    EXPECT_EQ(SelectedTexts(tree), "d") << "after a band";
    Host().hook = [&](ToldMessage& told) {
        if (told.code == UINT(TVN_SELCHANGED) && tree.IsEmulatedNotify())
        {
            Host().hook = nullptr;
            tree.DestroyWindow();
        }
    };
    tree.SelectAll(true, true);
    makeAgain();
    EXPECT_FALSE(tree.IsEmulatedNotify());
}

TEST_F(MultiTreeTest, ASecondTreeIsTakenOverAfterTheFirst)
{
    const auto addPlain = [&](const char* names, size_t selected) {
        auto& plain = Add<CTreeCtrl>(CRect(20, 20, 220, 220), TreeStyle);
        const auto items = AddItems(plain, names);
        plain.SetItemState(items[selected], TVIS_SELECTED, TVIS_SELECTED);
        const UINT id = UINT(plain.GetDlgCtrlID());
        plain.UnsubclassWindow();
        return id;
    };
    const UINT first = addPlain("ab", 1);
    const UINT second = addPlain("xyz", 2);
    TreeForTests tree;
    ASSERT_TRUE(tree.SubclassTreeCtrlId(first, &Host()));
    tree.SelectAll(true, false);
    EXPECT_EQ(SelectedTexts(tree), "ab");
    const HWND formerWindow = tree.UnsubclassWindow();
    EXPECT_EQ(tree.GetSelectedCount(), 0U) << "of no window";
    ::DestroyWindow(formerWindow);
    ASSERT_TRUE(tree.SubclassTreeCtrlId(second, &Host()));
    EXPECT_EQ(tree.GetSelectedCount(), 1U);
    EXPECT_EQ(SelectedTexts(tree), "z");
    tree.SelectAll(true, false);
    EXPECT_EQ(SelectedTexts(tree), "xyz");
    tree.DestroyWindow();
}

TEST_F(MultiTreeTest, RangesRunAsTheUserSeesTheItems)
{
    constexpr int None = -1;
    const RangeCase cases[] = {
        {"downwards", 1, 3, true, "bcd"},
        {"upwards", 3, 1, true, "bcd"},
        {"one item", 2, 2, true, "c"},
        {"others stay", 0, 1, false, "abf"},
        {"no first end", None, 3, true, "d"},
        {"no last end", 3, None, true, "d"},
        {"no end at all", None, None, true, "f"},
    };
    auto& tree = AddTree();
    const HTREEITEM items[] = {a, b, c, d, e, f};
    const auto item = [&](int index) { return index == None ? nullptr : items[index]; };
    for (const RangeCase& range : cases)
    {
        tree.SelectAll(false, false);
        tree.SetItemState(f, TVIS_SELECTED, TVIS_SELECTED, false);
        Host().Forget();
        tree.SelectRange(item(range.first), item(range.last), range.only);
        EXPECT_EQ(SelectedTexts(tree), range.selected) << range.description;
        EXPECT_EQ(CountOf(Changed), 0) << range.description;
    }
    // An end in a closed branch stands for the branch; what the branch hides is not in the range.
    tree.Expand(a, TVE_COLLAPSE);
    tree.SetItemState(b, TVIS_SELECTED, TVIS_SELECTED, false);
    tree.SelectRange(c, d, true);
    EXPECT_EQ(SelectedTexts(tree), "ad");
}

TEST_F(MultiTreeTest, BranchesAreSelectedByTheirLevel)
{
    auto& tree = AddTree();
    const HTREEITEM deep = AddItems(tree, "x", b)[0];
    EXPECT_TRUE(tree.SelectChildren(a, true, false));
    EXPECT_EQ(SelectedTexts(tree), "bc");
    EXPECT_TRUE(tree.SelectChildren(a, true, true));
    EXPECT_EQ(SelectedTexts(tree), "bxc");
    EXPECT_FALSE(tree.SelectChildren(a, true, true)) << "nothing left to change";
    EXPECT_TRUE(tree.SelectChildren(a, false, false));
    EXPECT_TRUE(tree.IsSelected(deep));
    tree.SelectAll(true, false);
    tree.SelectAllIgnore(false, d);
    EXPECT_EQ(SelectedTexts(tree), "d");
    EXPECT_TRUE(tree.SelectChildren(nullptr, true, false));
    EXPECT_EQ(SelectedTexts(tree), "adef");
}

TEST_F(MultiTreeTest, AClosedBranchHidesNoSelection)
{
    auto& tree = AddTree();
    tree.SelectItem(b);
    tree.SetItemState(c, TVIS_SELECTED, TVIS_SELECTED);
    tree.SetItemState(e, TVIS_SELECTED, TVIS_SELECTED);
    tree.Expand(a, TVE_COLLAPSE);
    EXPECT_EQ(SelectedTexts(tree), "e");
    EXPECT_EQ(tree.GetFocusedItem(), nullptr);

    tree.Expand(a, TVE_EXPAND);
    tree.SelectItem(a);
    tree.SetItemState(b, TVIS_SELECTED, TVIS_SELECTED);
    tree.Expand(a, TVE_TOGGLE);
    EXPECT_EQ(SelectedTexts(tree), "a");
    EXPECT_EQ(tree.GetFocusedItem(), a) << "a selected branch keeps the caret";
}

TEST_F(MultiTreeTest, WithoutMultipleSelectionItIsThePlatformsTree)
{
    auto& tree = AddTree();
    auto& plain = Add<CTreeCtrl>(CRect(340, 20, 640, 320), TreeStyle | TVS_SHOWSELALWAYS);
    const HTREEITEM plainA = AddItems(plain, "a")[0];
    AddItems(plain, "bc", plainA);
    const auto plainMore = AddItems(plain, "def");
    plain.Expand(plainA, TVE_EXPAND);
    tree.SelectAll(true, false);
    tree.FocusItem(d);
    tree.SetMultiSelect(false);
    EXPECT_EQ(SelectedTexts(tree), "d") << "a plain tree shows its caret alone";
    plain.SelectItem(plainMore[0]);

    // The same input gives the same notifications.
    const auto script = [&](CTreeCtrl& used, HTREEITEM clicked) {
        Host().Forget();
        QueueClick(PointOf(used, clicked));
        TypeKey(VK_DOWN);
        TypeKey(VK_UP, VK_SHIFT);
        return Codes(UINT(used.GetDlgCtrlID()));
    };
    EXPECT_EQ(script(tree, e), script(plain, plainMore[1]));
    EXPECT_EQ(SelectedTexts(tree), "e");
    EXPECT_EQ(plain.GetSelectedItem(), plainMore[1]);
}

TEST_F(MultiTreeTest, NothingIsDoneWithNoItemNoWindowAndNoParent)
{
    for (const bool withWindow : {false, true})
    {
        TreeForTests tree;
        if (withWindow)
        {
            tree.CWnd::CreateEx(0, WC_TREEVIEW, "", WS_POPUP | TreeStyle, 0, 0, 100, 100, nullptr,
                                nullptr);
        }
        for (const HTREEITEM item : {HTREEITEM(nullptr), TVI_ROOT, TVI_LAST})
        {
            EXPECT_FALSE(tree.SetItemState(item, TVIS_SELECTED, TVIS_SELECTED));
            EXPECT_FALSE(tree.IsSelected(item));
            EXPECT_EQ(tree.GetItemState(item, TVIS_SELECTED), 0U);
            EXPECT_EQ(tree.GetNextSelectedItem(item), nullptr);
            EXPECT_FALSE(tree.CanCtrlSelectItem(item));
            tree.InvalidateItem(item, true);
            tree.FocusItem(item);
            tree.SelectRange(item, item, true);
            tree.SelectAllIgnore(false, item);
            EXPECT_FALSE(tree.SelectChildren(item, true, true));
        }
        tree.SelectAll(true, true);
        EXPECT_EQ(tree.CreateDragImage(), nullptr);
        EXPECT_EQ(tree._SendNotify(nullptr), 0);
        NMHDR header = {};
        EXPECT_EQ(tree._SendNotify(&header), 0) << "there is no parent to answer";
        EXPECT_EQ(tree.GetAutoScrollDirection(CPoint(0, 0)), 0);
        if (withWindow)
        {
            const auto items = AddItems(tree, "ab");
            EXPECT_TRUE(tree.SetItemState(items[1], 3, 3)) << "nobody is there to refuse";
            EXPECT_EQ(SelectedTexts(tree), "b");
        }
    }
}

// What a parent may do inside a notification: n of them pass before it acts.
TEST_F(MultiTreeTest, SurvivesItsParent)
{
    enum Act
    {
        DeleteTheItem,
        DeleteTheNext,
        ClearTheTree,
        DestroyTheTree,
        EndTheObject,
        ActCount
    };
    for (int act = 0; act < ActCount; ++act)
    {
        for (const UINT when : {UINT(TVN_SELCHANGING), UINT(TVN_SELCHANGED)})
        {
            for (int operation = 0; operation < 5; ++operation)
            {
                auto& tree = AddTree();
                const WindowAlive alive(tree);
                tree.SetItemState(c, TVIS_SELECTED, TVIS_SELECTED);
                tree.FocusItem(e);
                bool done = false;
                Host().hook = [&](ToldMessage& told) {
                    if (told.code != when || done)
                    {
                        return;
                    }
                    done = true;
                    const auto& notify = *reinterpret_cast<NMTREEVIEW*>(told.lParam);
                    const HTREEITEM item = notify.itemNew.hItem != nullptr ? notify.itemNew.hItem
                                                                           : notify.itemOld.hItem;
                    switch (act)
                    {
                    case DeleteTheItem:
                        tree.DeleteItem(item);
                        break;
                    case DeleteTheNext:
                        tree.DeleteItem(item == d ? e : d);
                        break;
                    case ClearTheTree:
                        tree.DeleteAllItems();
                        break;
                    case DestroyTheTree:
                        tree.DestroyWindow();
                        break;
                    default:
                        Remove(tree);
                        break;
                    }
                };
                switch (operation)
                {
                case 0:
                    tree.SelectAll(true, true);
                    break;
                case 1:
                    tree.SelectRange(b, f, true);
                    break;
                case 2:
                    tree.SetItemState(d, 3, 3);
                    break;
                case 3:
                    tree.SelectItem(d);
                    break;
                default:
                    tree.Expand(a, TVE_COLLAPSE);
                    break;
                }
                Host().hook = nullptr;
                if (alive)
                {
                    EXPECT_EQ(StatesSay(tree, tree.GetRootItem()), SelectedTexts(tree))
                        << act << ' ' << operation;
                    Remove(tree);
                }
            }
        }
    }
}

TEST_F(MultiTreeTest, LooksOnBoardAndGoesBack)
{
    auto& tree = AddTree();
    const CSize before = TextRectOf(tree, a).Size();
    const HFONT font = HFONT(tree.SendMessage(WM_GETFONT));
    tree.SelectItem(d);
    tree.SetItemState(f, TVIS_SELECTED, TVIS_SELECTED);
    {
        const ModeScope mode(ONBOARD);
        tree.Invalidate();
        PumpAll();
        EXPECT_GE(tree.GetItemHeight(), 40) << "a row for a finger";
        const Pixels focused = WindowPixels(tree);
        const auto ground = [&](HTREEITEM item, const Pixels& pixels) {
            const CRect text = TextRectOf(tree, item);
            return pixels.At(text.right - 1, text.top + 2);
        };
        constexpr COLORREF Highlight = RGB(50, 80, 110);
        constexpr COLORREF Field = RGB(180, 180, 180);
        EXPECT_EQ(ground(f, focused), Highlight);
        EXPECT_EQ(ground(e, focused), Field);
        Host().SetFocus();
        PumpAll();
        EXPECT_EQ(ground(f, WindowPixels(tree)), Highlight) << "selected without the focus, too";
        EXPECT_EQ(ground(d, WindowPixels(tree)), Highlight);
    }
    tree.Invalidate();
    PumpAll();
    EXPECT_EQ(TextRectOf(tree, a).Size(), before);
    EXPECT_EQ(HFONT(tree.SendMessage(WM_GETFONT)), font);

    // One that begins on-board has nothing of the host's to go back to.
    int row = 0;
    {
        const ModeScope mode(EFB);
        auto& begun = Add<TreeForTests>(CRect(340, 20, 640, 320), TreeStyle);
        AddItems(begun, "ab");
        PumpAll();
        row = begun.GetItemHeight();
        COnBoardUIGeneral::SetAppMode(STD);
        begun.Invalidate();
        PumpAll();
        EXPECT_GE(row, 40);
        EXPECT_LT(begun.GetItemHeight(), 30);
    }
}

} // namespace
