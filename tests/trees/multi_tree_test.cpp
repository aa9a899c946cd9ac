#include "trees/tree_for_tests.h"

using testing::ElementsAre;

namespace {

using MultiTreeTest = TreeTest;

TEST_F(MultiTreeTest, TakesOverOneTreeOfADialogAfterTheOther)
{
    TreeForTests tree;
    EXPECT_FALSE(tree.SubclassTreeCtrlId(FirstId, &Host()));
    for (const std::string names : {"ab", "xyz"})
    {
        auto& plain = Add<CTreeCtrl>(CRect(20, 20, 220, 220), TreeStyle);
        plain.SetItemState(AddItems(plain, names).back(), TVIS_SELECTED, TVIS_SELECTED);
        const UINT id = UINT(plain.GetDlgCtrlID());
        const HWND window = plain.UnsubclassWindow();
        EXPECT_FALSE(tree.SubclassTreeCtrlId(id, nullptr));
        ASSERT_TRUE(tree.SubclassTreeCtrlId(id, &Host()));
        EXPECT_EQ(SelectedTexts(tree), names.substr(names.size() - 1)) << "selected before";
        tree.SelectAll(true, false);
        EXPECT_EQ(SelectedTexts(tree), names);
        tree.UnsubclassWindow(); // and nothing is asked before the next one
        ::DestroyWindow(window);
    }
    EXPECT_EQ(tree.GetSelectedCount(), 0U) << "of no window";
}

TEST_F(MultiTreeTest, TheKnownSelectionIsWhatTheStatesSay)
{
    auto& tree = AddTree();
    const auto expectInStep = [&](const std::string& selected) {
        EXPECT_EQ(SelectedTexts(tree), selected);
        EXPECT_EQ(StatesSay(tree, tree.GetRootItem()), selected);
        EXPECT_EQ(tree.GetSelectedCount(), selected.size());
        CTypedPtrList<CPtrList, HTREEITEM> list;
        tree.GetSelectedList(list);
        EXPECT_EQ(size_t(list.GetCount()), selected.size());
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
    tree.InsertItem(TVIF_TEXT | TVIF_STATE, "n", 0, 0, TVIS_SELECTED, TVIS_SELECTED, 0, TVI_ROOT,
                    TVI_FIRST);
    expectInStep("ndef");
    tree.DeleteAllItems();
    expectInStep("");
}

TEST_F(MultiTreeTest, EachStateChangeAsksAndTellsTheParent)
{
    auto& tree = AddTree();
    tree.SetItemData(d, 77);
    std::vector<std::string> sides;
    Host().hook = [&](ToldMessage& told) {
        if (told.code == UINT(Changing) || told.code == UINT(Changed))
        {
            const auto& notify = About<NMTREEVIEW>(told);
            EXPECT_TRUE(tree.IsEmulatedNotify());
            EXPECT_EQ(ItemOf(told), d);
            EXPECT_EQ(notify.itemNew.lParam + notify.itemOld.lParam, 77);
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
    Host().hook = nullptr;
    Host().Forget();
    tree.SelectAll(false, false);
    EXPECT_EQ(CountOf(Changed), 0);
    tree.SelectAll(true, true);
    EXPECT_EQ(CountOf(Changed), 6);
}

TEST_F(MultiTreeTest, TheCaretMovesWithoutTheSelection)
{
    auto& tree = AddTree();
    EXPECT_TRUE(tree.SetItemState(b, Both, Both));
    tree.SetItemState(e, TVIS_SELECTED, TVIS_SELECTED);
    EXPECT_EQ(Shown(tree), "be:b");
    for (const auto& [caret, shown] : {std::pair(d, "be:d"), {e, "be:e"}, {nullptr, "be:-"}})
    {
        tree.FocusItem(caret);
        EXPECT_EQ(Shown(tree), shown);
    }
    for (const auto& [alone, shown] : {std::pair(c, "c:c"), {nullptr, ":-"}})
    {
        tree.SelectItem(alone);
        EXPECT_EQ(Shown(tree), shown);
    }
    tree.SelectAll(true, false);
    tree.FocusItem(d);
    tree.SetMultiSelect(false);
    EXPECT_EQ(SelectedTexts(tree), "d") << "a plain tree shows its caret alone";
}

TEST_F(MultiTreeTest, ARefusalLeavesEverythingAsItWasAndIsAskedForOnce)
{
    auto& tree = AddTree();
    tree.SelectItem(b);
    Host().Forget();
    std::string asked;
    std::vector<HTREEITEM> refused = {a, b, c, d, e, f};
    Host().OnCode(TVN_SELCHANGING, [&](ToldMessage& told) {
        asked += tree.GetItemText(ItemOf(told))[0];
        told.answer = std::ranges::count(refused, ItemOf(told)) > 0;
    });
    EXPECT_FALSE(tree.SetItemState(d, TVIS_SELECTED, TVIS_SELECTED));
    EXPECT_FALSE(tree.SetItemState(b, 0, TVIS_SELECTED));
    EXPECT_FALSE(tree.SetItemState(e, Both, Both));
    tree.SelectAll(true, true);
    EXPECT_FALSE(tree.SelectChildren(a, true, true));
    EXPECT_EQ(Shown(tree), "b:b");
    EXPECT_EQ(CountOf(Changed), 0);
    // Where only the caret is held back, the rest of the change is made.
    EXPECT_TRUE(tree.SetItemState(b, 0, TVIS_FOCUSED));
    EXPECT_TRUE(tree.SetItemState(b, TVIS_CUT, TVIS_FOCUSED | TVIS_CUT));
    EXPECT_EQ(tree.GetItemState(b, TVIS_CUT), UINT(TVIS_CUT));
    EXPECT_EQ(tree.GetFocusedItem(), b);

    refused.clear();
    tree.SetItemState(a, TVIS_SELECTED, TVIS_SELECTED);
    tree.SetItemState(f, TVIS_SELECTED, TVIS_SELECTED);
    refused = {a, f};
    asked.clear();
    tree.SelectRange(d, e, true);
    EXPECT_EQ(asked, "abdef");
    EXPECT_EQ(SelectedTexts(tree), "adef");
}

TEST_F(MultiTreeTest, ASecondWindowOfTheObjectBeginsAfresh)
{
    auto& tree = AddTree();
    const UINT ownHeight = tree.GetItemHeight();
    const auto makeAgain = [&] {
        tree.DestroyWindow();
        EXPECT_TRUE(tree.Create(TreeStyle | WS_CHILD | WS_VISIBLE, CRect(20, 20, 320, 320), &Host(),
                                FirstId));
        d = AddItems(tree, "def")[0];
        PumpAll();
    };
    for (const APPMODE mode : {ONBOARD, ONBOARD, STD})
    {
        SetMode(mode, tree);
        mode != STD ? makeAgain() : PumpAll(); // nothing of the host's to go back to
        EXPECT_EQ(tree.GetItemHeight() >= 40, mode != STD) << "rows for a finger";
    }
    EXPECT_EQ(tree.GetItemHeight(), ownHeight);

    // The window ends while a press, a band and a notification are on.
    const CPoint beside = EmptyBeside(tree, d);
    for (const CPoint press : {PointOf(tree, d), beside})
    {
        PressScript(press)
            .Move(beside + CPoint(20, 20))
            .Do([&] { tree.DestroyWindow(); })
            .Do([&] { makeAgain(); })
            .Release();
        ClickItem(tree, d);
        EXPECT_EQ(SelectedTexts(tree), "d");
    }
}

TEST_F(MultiTreeTest, RangesRunAsTheUserSeesTheItems)
{
    auto& tree = AddTree();
    // f is selected before
    const std::tuple<HTREEITEM, HTREEITEM, bool, const char*> cases[] = {
        {b, d, true, "bcd"},
        {d, b, true, "bcd"},
        {a, b, false, "abf"},
        // An end that is missing.
        {nullptr, d, true, "d"},
        {d, nullptr, true, "d"},
    };
    for (const auto& [first, last, only, selected] : cases)
    {
        tree.SelectAllIgnore(false, nullptr);
        tree.SetItemState(f, TVIS_SELECTED, TVIS_SELECTED, false);
        Host().Forget();
        tree.SelectRange(first, last, only);
        EXPECT_EQ(SelectedTexts(tree), selected);
        EXPECT_EQ(CountOf(Changed), 0) << selected;
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
    AddItems(tree, "x", b);
    EXPECT_TRUE(tree.SelectChildren(a, true, false));
    EXPECT_EQ(SelectedTexts(tree), "bc");
    EXPECT_TRUE(tree.SelectChildren(a, true, true));
    EXPECT_EQ(SelectedTexts(tree), "bxc");
    EXPECT_FALSE(tree.SelectChildren(a, true, true)) << "nothing left to change";
    EXPECT_TRUE(tree.SelectChildren(a, false, false));
    EXPECT_EQ(SelectedTexts(tree), "x");
    EXPECT_TRUE(tree.SelectChildren(nullptr, true, false));
    EXPECT_EQ(SelectedTexts(tree), "axdef");
    tree.SelectAllIgnore(false, d);
    EXPECT_EQ(SelectedTexts(tree), "d");
}

TEST_F(MultiTreeTest, AClosedBranchHidesNoSelection)
{
    auto& tree = AddTree();
    // Selected alone, then also; how it is closed; what stays selected and has the caret.
    const std::tuple<HTREEITEM, HTREEITEM, UINT, UINT, const char*> cases[] = {
        {b, e, TVIS_SELECTED, TVE_COLLAPSE, "e:-"},
        {a, b, TVIS_SELECTED, TVE_TOGGLE, "a:a"}, // a selected branch keeps the caret
        {b, e, Both, TVE_COLLAPSE, "e:-"},
        {b, e, TVIS_SELECTED, TVE_EXPAND, "be:b"},
        {e, b, TVIS_FOCUSED, TVE_COLLAPSE, "e:a"},      // a caret alone goes to the branch
        {b, b, TVIS_SELECTED, TVE_COLLAPSERESET, ":-"}, // alone it closes as well
    };
    for (const auto& [first, second, state, code, shown] : cases)
    {
        tree.Expand(a, TVE_EXPAND);
        tree.SelectItem(first);
        tree.SetItemState(second, state, state);
        tree.Expand(a, code);
        EXPECT_EQ(Shown(tree), shown) << code;
        EXPECT_EQ(StatesSay(tree, tree.GetRootItem()), SelectedTexts(tree)) << code;
    }
    for (const bool key : {false, true}) // by the user
    {
        tree.Expand(a, TVE_EXPAND);
        tree.SelectItem(key ? a : b);
        tree.SetItemState(b, TVIS_SELECTED, TVIS_SELECTED);
        tree.SetItemState(e, TVIS_SELECTED, TVIS_SELECTED);
        PumpAll();
        key ? TypeKey(VK_LEFT)
            : PressScript(PartOf(tree, a, TVHT_ONITEMBUTTON) + CSize(2, 0)).Release();
        EXPECT_EQ(tree.GetItemState(a, TVIS_EXPANDED), 0U);
        EXPECT_EQ(SelectedTexts(tree), key ? "ae" : "e");
    }
    tree.Expand(a, TVE_TOGGLE | TVE_COLLAPSERESET);
    EXPECT_NE(tree.GetItemState(a, TVIS_EXPANDED), 0U) << "a toggled branch that was closed opens";
    AddItems(tree, "0123456789", a);
    tree.MoveWindow(20, 20, 300, 60);
    tree.Select(c, TVGN_FIRSTVISIBLE);
    tree.Expand(a, TVE_COLLAPSE | TVE_COLLAPSERESET); // the first row in sight goes
    EXPECT_EQ(tree.GetFirstVisibleItem(), a);
    EXPECT_EQ(tree.GetCount(), 4U);
    const HTREEITEM below = AddItems(tree, "x", a)[0];
    tree.Expand(a, TVE_EXPAND);
    tree.SelectItem(e);
    tree.FocusItem(below);
    Host().hook = [this](ToldMessage& told) {
        told.answer = told.code == UINT(TVN_SELCHANGING) && ItemOf(told) == a;
    };
    tree.Expand(a, TVE_COLLAPSE);
    EXPECT_EQ(Shown(tree), "e:-") << "a branch that is refused has neither";
}

TEST_F(MultiTreeTest, ADeletedCaretLeavesWhatElseIsSelected)
{
    auto& tree = AddTree();
    // Selected, the first with the caret; which one is deleted, and what there is then.
    const std::tuple<std::vector<HTREEITEM>, HTREEITEM, const char*> cases[] = {
        {{b, f}, b, "f:c"},
        {{d, e, f}, d, "ef:e"}, // the neighbour was selected before
        {{f, e}, e, "f:f"},
        {{f}, f, "a:a"}, // alone, as in a plain tree
    };
    for (const auto& [selected, item, shown] : cases)
    {
        tree.SelectItem(selected[0]);
        for (const HTREEITEM more : selected)
        {
            tree.SetItemState(more, TVIS_SELECTED, TVIS_SELECTED);
        }
        HTREEITEM told = nullptr;
        Host().hook = [&](ToldMessage& message) {
            const auto& notify = *reinterpret_cast<NMTREEVIEW*>(message.lParam);
            told = message.code == UINT(TVN_SELCHANGED) ? notify.itemNew.hItem : told;
        };
        tree.DeleteItem(item);
        EXPECT_EQ(Shown(tree), shown);
        EXPECT_EQ(StatesSay(tree, tree.GetRootItem()), SelectedTexts(tree));
        EXPECT_TRUE(told == nullptr || tree.IsSelected(told)) << "the parent knows";
    }
    // Inside a notification of the platform's, for the end of which it waits.
    auto& other = AddTree();
    AddItems(other, "x", e);
    other.SelectItem(d);
    other.SetItemState(f, TVIS_SELECTED, TVIS_SELECTED);
    Host().OnCode(TVN_ITEMEXPANDED, [&](ToldMessage&) { other.DeleteItem(d); });
    other.Expand(e, TVE_EXPAND);
    EXPECT_EQ(Shown(other), "f:e");
}

TEST_F(MultiTreeTest, NothingIsDoneWithNoItemNoWindowAndNoParent)
{
    TreeForTests windowless, parentless;
    parentless.CWnd::CreateEx(0, WC_TREEVIEW, "", WS_POPUP | WS_VISIBLE | TreeStyle, 500, 300, 200,
                              200, nullptr, nullptr);
    for (TreeForTests& tree : {std::ref(windowless), std::ref(parentless)})
    {
        for (const HTREEITEM item : {HTREEITEM(nullptr), TVI_ROOT, TVI_LAST})
        {
            EXPECT_FALSE(tree.SetItemState(item, TVIS_SELECTED, TVIS_SELECTED));
            EXPECT_FALSE(tree.IsSelected(item) || tree.CanCtrlSelectItem(item));
            EXPECT_EQ(tree.GetItemState(item, TVIS_SELECTED), 0U);
            EXPECT_EQ(tree.GetNextSelectedItem(item), nullptr);
            EXPECT_FALSE(tree.SelectChildren(item, true, true));
            tree.InvalidateItem(item, true);
            tree.FocusItem(item);
            tree.SelectRange(item, item, true);
            tree.SelectAllIgnore(false, item);
        }
        EXPECT_EQ(tree.CreateDragImage(), nullptr);
        NMHDR header = {};
        EXPECT_EQ(tree._SendNotify(nullptr) + tree._SendNotify(&header), 0);
        EXPECT_EQ(tree.GetAutoScrollDirection(CPoint(0, 0)), 0);
    }
}

TEST_F(MultiTreeTest, LooksOnBoardAndGoesBack)
{
    auto& tree = AddTree();
    tree.ModifyStyle(0, TVS_FULLROWSELECT);
    tree.SelectItem(d);
    tree.SetItemState(f, TVIS_SELECTED, TVIS_SELECTED);
    {
        const ModeScope mode(ONBOARD);
        Repaint(tree);
        const auto ground = [&](HTREEITEM item) {
            const CRect text = TextRectOf(tree, item);
            return WindowPixels(tree).At(text.right - 1, text.top + 2);
        };
        constexpr COLORREF Highlight = RGB(50, 80, 110);
        EXPECT_EQ(ground(f), Highlight);
        EXPECT_EQ(ground(e), RGB(180, 180, 180));
        tree.SetFocus();
        tree.CTreeCtrl::SetItemState(e, TVIS_FOCUSED, TVIS_FOCUSED); // neither caret nor selected
        PumpAll();
        Host().SetFocus();
        EXPECT_TRUE(ShowsWhatAPaintWould(tree));
        EXPECT_EQ(ground(f), Highlight) << "selected without the focus, too";
        EXPECT_EQ(ground(d), Highlight);
        tree.EnableWindow(FALSE);
        EXPECT_TRUE(ShowsWhatAPaintWould(tree));
        EXPECT_EQ(WindowPixels(tree).At(230, TextRectOf(tree, d).top + 2), ground(d));
        tree.EnableWindow();
    }
    Repaint(tree);
    for (const APPMODE mode : {ONBOARD, STD})
    {
        const ModeScope with(mode);
        tree.MoveWindow(0, 0, 60, mode == STD ? 80 : 140); // with both bars
        EXPECT_EQ(tree.GetVisibleCount(), UINT(ClientRectOf(tree).Height() / tree.GetItemHeight()))
            << "a size that comes with the mode is that of the last one's frame";
    }
}

TEST_F(MultiTreeTest, AnOpenBranchShowsItsPictureOnBoard)
{
    CImageList pictures;
    pictures.Create(16, 16, ILC_COLOR24 | ILC_MASK, 2, 0);
    pictures.Add(::LoadIcon(nullptr, IDI_APPLICATION));
    pictures.Add(::LoadIcon(nullptr, IDI_ERROR));
    const ModeScope mode(ONBOARD);
    auto& tree = AddTree();
    tree.SetImageList(&pictures, TVSIL_NORMAL);
    TVITEMEX change = {.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE, .hItem = a};
    const auto shown = [&](int image, int selected) {
        change.iImage = image;
        change.iSelectedImage = selected;
        tree.SendMessage(TVM_SETITEM, 0, LPARAM(&change));
        return Settled(tree);
    };
    const Pixels first = shown(0, 0);
    const Pixels second = shown(1, 0);
    EXPECT_NE(first, second);
    change.mask |= TVIF_EXPANDEDIMAGE;
    change.iExpandedImage = 1;
    EXPECT_EQ(shown(0, 0), second);
    tree.SelectItem(a);
    EXPECT_NE(shown(0, 0), shown(0, 1)) << "that of a selected item comes first";
}

TEST_F(MultiTreeTest, BarsGoWithWhatTheyAreFor)
{
    const std::string wide(100, 'w');
    Host().hook = [](ToldMessage& told) {
        told.answer = told.code == UINT(TVN_ENDLABELEDIT) ? TRUE : told.answer;
    };
    const auto bands = [](const CWnd& tree) { // across and down, without the borders
        const CSize space = WindowRectOf(tree).Size() - ClientRectOf(tree).Size();
        return std::pair(space.cx >= 52, space.cy >= 52);
    };
    using Bands = std::pair<bool, bool>;
    const Act<MultiTree&> ways[] = {
        {"emptied", [](MultiTree& tree) { tree.DeleteAllItems(); }},
        {"closed", [](MultiTree& tree) { tree.Expand(tree.GetRootItem(), TVE_COLLAPSE); }},
        {"closed by a key", [](MultiTree& tree) {
             tree.SelectItem(tree.GetRootItem());
             tree.SetFocus();
             TypeKey(VK_LEFT);
         }}};
    for (const auto& [way, go] : ways)
    {
        for (const bool before : {false, true}) // in the standard mode
        {
            SCOPED_TRACE(way + std::string(before ? ", before" : ""));
            auto& tree = Add<MultiTree>(CRect(20, 20, 320, 220), TreeStyle | TVS_EDITLABELS);
            const HTREEITEM root = AddItems(tree, "r")[0];
            for (int item = 0; item < 20; ++item)
            {
                tree.InsertItem(wide.c_str(), root);
            }
            tree.Expand(root, TVE_EXPAND);
            if (before)
            {
                go(tree);
            }
            const ModeScope mode(ONBOARD);
            Repaint(tree);
            EXPECT_EQ(bands(tree), Bands(!before, !before));
            if (!before)
            {
                go(tree);
            }
            PumpAll();
            EXPECT_EQ(bands(tree), Bands(false, false));

            // Out of sight, and scrolled sideways.
            tree.DeleteAllItems();
            const auto items = AddItems(tree, "abcdefgh");
            PumpAll();
            EXPECT_EQ(bands(tree), Bands(true, false));
            const HTREEITEM last = tree.InsertItem(wide.c_str());
            PumpAll();
            EXPECT_EQ(bands(tree), Bands(true, true));
            const int left = TextRectOf(tree, items[0]).left;
            tree.SendMessage(WM_HSCROLL, SB_PAGERIGHT);
            EXPECT_LT(TextRectOf(tree, items[0]).left, left);
            tree.DeleteItem(last);
            PumpAll();
            EXPECT_EQ(bands(tree), Bands(true, false));
            EXPECT_EQ(TextRectOf(tree, items[0]).left, left);
            tree.SetItemText(items[0], wide.c_str());
            PumpAll();
            EXPECT_EQ(bands(tree), Bands(true, true));
            tree.SetFocus();
            CEdit* const edit = before ? tree.EditLabel(items[0]) : nullptr;
            before ? edit->SetWindowText("short") : void(tree.SetItemText(items[0], "short"));
            tree.SendMessage(TVM_ENDEDITLABELNOW);
            PumpAll();
            EXPECT_EQ(bands(tree), Bands(true, false));
            tree.DeleteAllItems();
            const HTREEITEM only = AddItems(tree, "a")[0];
            PumpAll();
            EXPECT_EQ(bands(tree), Bands(false, false));
            tree.EditLabel(only)->SetWindowText(wide.c_str());
            tree.SendMessage(TVM_ENDEDITLABELNOW);
            PumpAll();
            EXPECT_EQ(bands(tree), Bands(false, true));
            AddItems(tree, "bc");
            const std::tuple<int, int, Bands> sizes[] = {
                {300, 200, {true, true}}, {300, 300, {false, true}}, {2000, 190, {false, false}}};
            for (const auto& [width, height, shown] : sizes)
            {
                tree.SetWindowPos(nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
                PumpAll();
                EXPECT_EQ(bands(tree), shown) << width << ' ' << height;
            }
            tree.DeleteAllItems();
            PumpAll();
            SetMode(STD, tree);
            EXPECT_EQ(tree.GetStyle() & (WS_VSCROLL | WS_HSCROLL), 0U);
            Remove(tree);
        }
    }
}

TEST_F(MultiTreeTest, WhatAHostSetsOnBoardIsAsIfItHadBeenSetBefore)
{
    CImageList large;
    large.Create(64, 64, ILC_COLOR24, 1, 1);
    const Act<MultiTree&> settings[] = {
        {"large pictures", [&](MultiTree& tree) { tree.SetImageList(&large, TVSIL_NORMAL); }},
        {"and no more",
         [&](MultiTree& tree) {
             tree.SetImageList(&large, TVSIL_NORMAL);
             tree.SetImageList(nullptr, TVSIL_NORMAL);
         }},
        {"indent", [](MultiTree& tree) { tree.SetIndent(24); }},
        {"wide indent", [](MultiTree& tree) { tree.SetIndent(80); }},
        {"great height", [](MultiTree& tree) { tree.SetItemHeight(100); }},
        {"height", [](MultiTree& tree) { EXPECT_GE(tree.SetItemHeight(40), 16); }},
        {"and no more", [](MultiTree& tree) { tree.SetItemHeight(40), tree.SetItemHeight(-1); }}};
    for (const auto& setting : settings)
    {
        // Of rows and of a level: on-board, and in the standard mode after that.
        const auto sizes = [&](bool before) {
            TreeForTests& tree = AddTree();
            before ? setting.act(tree) : void();
            SetMode(ONBOARD, tree);
            before ? void() : setting.act(tree);
            EXPECT_GE(tree.GetItemHeight(), 52);
            std::vector<UINT> found = {UINT(tree.GetItemHeight()), tree.GetIndent()};
            EXPECT_GE(tree.GetIndent(), 52U);
            SetMode(STD, tree);
            found.insert(found.end(), {UINT(tree.GetItemHeight()), tree.GetIndent()});
            Remove(tree);
            return found;
        };
        EXPECT_EQ(sizes(false), sizes(true)) << setting.name;
    }
    TreeForTests& tree = AddTree();
    CFont font;
    font.CreatePointFont(240, "Arial");
    SetMode(ONBOARD, tree);
    tree.SetFont(&font);
    SetMode(STD, tree);
    EXPECT_EQ(HFONT(tree.SendMessage(WM_GETFONT)), HFONT(font));
}

} // namespace
