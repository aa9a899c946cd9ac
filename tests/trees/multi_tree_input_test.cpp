#include "trees/tree_for_tests.h"

using testing::ElementsAre;

namespace {

class MultiTreeInputTest : public TreeTest
{
protected:
    // A tree of many single-letter items and a few long ones, which scrolls both ways.
    TreeForTests& AddLongTree()
    {
        auto& tree = Add<TreeForTests>(CRect(20, 20, 220, 220), TreeStyle);
        m_items = AddItems(tree, "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ");
        for (const char letter : {'0', '1', '2'})
        {
            tree.InsertItem(std::string(60, letter).c_str());
        }
        Begin(tree);
        return tree;
    }

    // A press in empty space that has begun to stretch its band over the item beside it.
    PressScript Band(const CTreeCtrl& tree, HTREEITEM beside, std::vector<UINT> held = {})
    {
        PressScript script(EmptyBeside(tree, beside), std::move(held));
        script.Move(script.start - CPoint(30, -5));
        return script;
    }

    std::vector<HTREEITEM> m_items;
};

TEST_F(MultiTreeInputTest, ClicksSelectAsTheKeysSay)
{
    auto& tree = AddTree();
    const std::tuple<HTREEITEM, std::vector<UINT>, const char*, const char*> clicks[] = {
        {d, {VK_SHIFT}, "d", "neither anchor nor caret"},
        {b, {}, "b", "alone"},
        {d, {VK_CONTROL}, "bd", "added"},
        {f, {VK_CONTROL}, "bdf", "added"},
        {d, {VK_CONTROL}, "bf", "taken out, but for the caret"},
        {f, {VK_SHIFT}, "def", "from the caret"},
        {b, {VK_SHIFT}, "bcd", "the other way from the same anchor"},
        {f, {}, "f", "alone"},
        {b, {VK_CONTROL}, "bf", "added"},
        {c, {VK_SHIFT, VK_CONTROL}, "bcf", "with both keys the others stay"},
        {e, {}, "e", "alone"},
    };
    for (const auto& [item, keys, selected, what] : clicks)
    {
        Host().Forget();
        ClickItem(tree, item, keys);
        EXPECT_EQ(SelectedTexts(tree), selected) << what;
        EXPECT_EQ(Codes().back(), int(NM_CLICK));
    }
    tree.SelectItem(nullptr);
    Host().Forget();
    ClickItem(tree, e);
    // The platform's own pair as the caret comes, ours for the click, then the click itself.
    EXPECT_THAT(Codes(), ElementsAre(Changing, Changed, Changing, Changed, int(NM_CLICK)));
    tree.refused = f;
    ClickItem(tree, f, {VK_CONTROL});
    EXPECT_EQ(Shown(tree), "e:f");
}

TEST_F(MultiTreeInputTest, TheRightButtonKeepsASelectionAndOpensOneMenu)
{
    auto& tree = AddTree();
    ClickItem(tree, b);
    ClickItem(tree, d, {VK_CONTROL});
    MessageLog log(tree, {WM_CONTEXTMENU});
    Host().Forget();
    const CPoint at = PointOf(tree, b);
    ExpectAllAt(tree, b, at);
    ClickItem(tree, b, {}, true);
    Host().hook = nullptr;
    EXPECT_EQ(log.All(), std::vector<Received>({{WM_CONTEXTMENU, WPARAM(tree.GetSafeHwnd()),
                                                 MAKELPARAM(at.x, at.y)}}));
    EXPECT_EQ(SelectedTexts(tree), "bd") << "a selected item keeps the others";
    EXPECT_THAT(Codes(), ElementsAre(int(NM_RCLICK)));
    ClickItem(tree, f, {}, true);
    EXPECT_EQ(SelectedTexts(tree), "f");
    ClickItem(tree, b, {VK_CONTROL}, true);
    EXPECT_EQ(SelectedTexts(tree), "f") << "with Ctrl it is the anchor alone";
    ClickItem(tree, d, {VK_SHIFT});
    EXPECT_EQ(SelectedTexts(tree), "bcd");
}

TEST_F(MultiTreeInputTest, TheKeyboardFocusSelectsNothing)
{
    // Without focus and caret: the platform selects the first item with its caret.
    auto& tree = AddTree();
    const auto rest = [&](HTREEITEM selected) {
        tree.SelectItem(nullptr);
        Host().SetFocus();
        tree.CTreeCtrl::SelectItem(nullptr);
        tree.SetItemState(selected, TVIS_SELECTED, TVIS_SELECTED);
        ASSERT_EQ(tree.GetFocusedItem(), nullptr);
    };
    bool selectedAsTold = false;
    Host().hook = [&](ToldMessage& message) {
        if (message.code == UINT(TVN_SELCHANGED) && ItemOf(message) == a)
        {
            selectedAsTold = About<NMTREEVIEW>(message).itemNew.hItem == a;
        }
    };
    for (const UINT key : {VK_CONTROL, VK_SHIFT})
    {
        rest(nullptr);
        ClickItem(tree, d, {key}, true);
        EXPECT_EQ(::GetFocus(), tree.GetSafeHwnd());
        EXPECT_EQ(SelectedTexts(tree), "") << key;
        EXPECT_FALSE(selectedAsTold) << key;
    }
    Host().hook = nullptr;
    for (const HTREEITEM selected : {HTREEITEM(nullptr), a})
    {
        rest(selected);
        PressScript(EmptyBeside(tree, e), {VK_CONTROL}).Release();
        EXPECT_EQ(tree.IsSelected(a), selected != nullptr) << "what was selected stays so";
        EXPECT_LE(tree.GetSelectedCount(), 1U);
    }
    // It may come by other ways than a press.
    for (const auto& [selected, shown] : {std::pair(d, "d:a"), {HTREEITEM(nullptr), "a:a"}})
    {
        rest(selected);
        tree.SetFocus();
        EXPECT_EQ(Shown(tree), shown) << "with nothing selected it is as in a plain tree";
    }
    rest(d);
    const OnceTold once(Host(), UINT(NM_SETFOCUS), [&] { tree.SelectItem(a); });
    tree.SetFocus();
    EXPECT_EQ(Shown(tree), "a:a") << "what the parent selects then stays so";
}

TEST_F(MultiTreeInputTest, APressIsADragOnceItMovesFarEnough)
{
    auto& tree = AddTree();
    ExpectAllAt(tree, d, PointOf(tree, d));
    // What was told last of a press on an item.
    const auto pull = [&](HTREEITEM item, CPoint by, std::vector<UINT> held = {},
                          bool right = false) {
        Host().Forget();
        PressScript(PointOf(tree, item), std::move(held), right).Pull(by).Release();
        return Codes().empty() ? 0 : Codes().back();
    };
    const CPoint threshold(::GetSystemMetrics(SM_CXDRAG), ::GetSystemMetrics(SM_CYDRAG));
    for (const CPoint way : {CPoint(1, 0), CPoint(0, 1)})
    {
        tree.SelectItem(nullptr);
        const auto along = [&](int more) {
            return CPoint(way.x * (threshold.x + more), way.y * (threshold.y + more));
        };
        EXPECT_EQ(pull(d, along(-1)), int(NM_CLICK)) << way.x;
        EXPECT_EQ(pull(d, along(1)), int(TVN_BEGINDRAG)) << way.x;
        EXPECT_EQ(SelectedTexts(tree), "d");
    }
    const CPoint away(20, 0);
    EXPECT_EQ(pull(d, away, {}, true), int(TVN_BEGINRDRAG));
    // Neither dragged nor added, with either button.
    tree.SelectItem(b);
    tree.refused = d;
    EXPECT_NE(pull(d, away, {VK_CONTROL}), int(TVN_BEGINDRAG));
    EXPECT_EQ(SelectedTexts(tree), "b");
    EXPECT_NE(pull(d, away, {}, true), int(TVN_BEGINRDRAG));
    tree.ModifyStyle(0, TVS_DISABLEDRAGDROP);
    EXPECT_NE(pull(e, away), int(TVN_BEGINDRAG));
}

TEST_F(MultiTreeInputTest, APressEndsWithWhatItWaitsFor)
{
    auto& tree = AddTree();
    // Escape and a capture that somebody takes make it neither a click nor a drag.
    PressScript(PointOf(tree, d)).Do([] { TypeKey(VK_ESCAPE); }).Release();
    PressScript(PointOf(tree, e)).Do([&] { Host().SetCapture(); }).Release();
    ::ReleaseCapture();
    for (const CPoint press : {PointOf(tree, d), EmptyBeside(tree, b)}) // not of many any more
    {
        PressScript(press).Do([&] { tree.SetMultiSelect(false); }).Pull(CPoint(20, 20)).Release();
        EXPECT_EQ(::GetCapture(), nullptr);
        tree.SetMultiSelect(true);
    }
    EXPECT_EQ(CountOf(int(NM_CLICK)) + CountOf(int(TVN_BEGINDRAG)), 0);

    // The item goes between press and release; the click is told without it.
    Host().OnCode(NM_CLICK, [&](ToldMessage& told) { EXPECT_EQ(ItemOf(told), nullptr); });
    const auto refill = [&] {
        tree.DeleteItem(d);
        tree.SetItemState(e, TVIS_SELECTED, TVIS_SELECTED);
    };
    PressScript(PointOf(tree, d)).Do(refill).Release();
    EXPECT_EQ(CountOf(int(NM_CLICK)), 1);
    EXPECT_EQ(SelectedTexts(tree).substr(0, 1), "e") << "what the program selects stays";
    Host().hook = nullptr;

    // WM_QUIT is not for this loop.
    PressScript(PointOf(tree, e)).Do([] { ::PostQuitMessage(7); }).Release();
    EXPECT_TRUE(TakeQuit());
    PumpAll();

    PressScript(PointOf(tree, e)).Do([&] { Remove(tree); }).Release();
}

TEST_F(MultiTreeInputTest, KeysMoveExtendOrPassTheSelection)
{
    auto& tree = AddTree();
    TypeKey(VK_SPACE, VK_CONTROL); // without a caret
    EXPECT_EQ(SelectedTexts(tree), "");
    ClickItem(tree, b);
    tree.refused = e;
    const std::tuple<UINT, UINT, const char*> keys[] = {
        {VK_DOWN, 0, "c:c"},
        {VK_DOWN, VK_SHIFT, "cd:d"},
        {VK_DOWN, VK_SHIFT, "cde:e"},
        {VK_UP, VK_SHIFT, "cd:d"}, // back towards the anchor
        {VK_DOWN, VK_CONTROL, "cd:e"},
        {VK_SPACE, VK_CONTROL, "cd:e"},
        {VK_UP, VK_CONTROL, "cd:d"},
        {VK_SPACE, VK_CONTROL, "c:d"},
        {VK_SPACE, VK_CONTROL, "cd:d"},
        {VK_UP, VK_SHIFT, "cd:c"}, // from the toggled item
        {VK_UP, 0, "b:b"},
    };
    for (const auto& [key, held, shown] : keys)
    {
        Host().Forget();
        HTREEITEM last = nullptr;
        Host().hook = [&](ToldMessage& told) {
            last = told.code == UINT(TVN_SELCHANGED) ? ItemOf(told) : last;
        };
        TypeKey(key, held);
        EXPECT_EQ(Shown(tree), shown) << key << ' ' << held;
        const bool space = key == VK_SPACE; // of which the platform would tell
        EXPECT_TRUE(space || (last == nullptr) == (held != 0)) << "of none in particular";
        EXPECT_EQ(Codes().back(), Changed);
        EXPECT_TRUE(!space || Host().CodesFrom(FirstId).front() == UINT(TVN_KEYDOWN));
    }
}

TEST_F(MultiTreeInputTest, APressOnACheckSelectsNothingAndChecksForEveryMode)
{
    for (const APPMODE made : {STD, ONBOARD})
    {
        SetMode(made, Host());
        auto& tree = Add<TreeForTests>(CRect(20, 20, 320, 420), TreeStyle | TVS_CHECKBOXES);
        Fill(tree);
        tree.SelectItem(b);
        PressScript(PartOf(tree, e, TVHT_ONITEMSTATEICON) + CSize(4, 0)).Release();
        EXPECT_EQ(SelectedTexts(tree), "b") << made;
        for (const APPMODE mode : {ONBOARD, STD})
        {
            SetMode(mode, tree);
            EXPECT_EQ(tree.GetCheck(e) - tree.GetCheck(d), 1) << made << ' ' << mode;
        }
        Remove(tree);
    }
}

TEST_F(MultiTreeInputTest, ABandSelectsWhatItMeetsAndLeavesNoTrace)
{
    auto& tree = AddTree();
    ClickItem(tree, f);
    tree.SelectItem(nullptr);
    const Pixels before = Settled(tree);
    Band(tree, b)
        .Move(PointOf(tree, d))
        .Do([&] {
            EXPECT_EQ(SelectedTexts(tree), "bcd");
            EXPECT_NE(WindowPixels(tree), before) << "the band is to be seen";
            EXPECT_EQ(::GetCapture(), tree.GetSafeHwnd());
        })
        .Move(PointOf(tree, c))
        .Release();
    EXPECT_EQ(SelectedTexts(tree), "bc") << "released as the band leaves it";
    tree.SelectItem(nullptr);
    EXPECT_EQ(Settled(tree), before) << "without a trace";

    // Items that go meanwhile leave none, either.
    PressScript(EmptyBeside(tree, b))
        .Do([&] { tree.DeleteItem(f); })
        .Do([&] { EXPECT_TRUE(ShowsWhatAPaintWould(tree)); })
        .Release();
    f = AddItems(tree, "f")[0];
    PumpAll();

    ClickItem(tree, b);
    Band(tree, d, {VK_CONTROL}).Move(PointOf(tree, e)).Release();
    EXPECT_EQ(SelectedTexts(tree), "bde") << "with Ctrl it adds";
    Band(tree, d).Move(PointOf(tree, e)).Release();
    EXPECT_EQ(SelectedTexts(tree), "de");
    PressScript(EmptyBeside(tree, f)).Release();
    EXPECT_EQ(SelectedTexts(tree), "") << "a press alone clears";
    EXPECT_EQ(Codes().back(), int(NM_CLICK));
}

TEST_F(MultiTreeInputTest, AnInterruptedBandGivesTheSelectionBack)
{
    auto& tree = AddTree();
    const std::function<void()> interruptions[] = {
        [] { TypeKey(VK_ESCAPE); },
        [] { ::ReleaseCapture(); },
        [&] { tree.SendMessage(WM_CANCELMODE); },
    };
    for (const auto& interrupt : interruptions)
    {
        tree.SelectItem(b);
        tree.SetItemState(f, TVIS_SELECTED, TVIS_SELECTED);
        const Pixels before = Settled(tree);
        Band(tree, d)
            .Move(PointOf(tree, e))
            .Do([&] { EXPECT_EQ(SelectedTexts(tree), "de"); })
            .Do(interrupt)
            .Release();
        EXPECT_EQ(SelectedTexts(tree), "bf");
        EXPECT_EQ(::GetCapture(), nullptr);
        EXPECT_EQ(WindowPixels(tree), before);
    }
    Band(tree, d).Do([&] { tree.DeleteAllItems(); }).Release();
}

TEST_F(MultiTreeInputTest, ABandScrollsBothWays)
{
    auto& tree = AddLongTree();
    tree.SetBandingHit(true); // rows, which reach as far as the band does
    const CRect client = ClientRectOf(tree);
    const CPoint start = EmptyBeside(tree, m_items[3], 30);
    PressScript(start)
        .Move(start + CPoint(-10, 10))
        .Move(ClientPoint(tree, client.BottomRight() - CPoint(4, 4)))
        .Do([&] {
            // The lower edge scrolls down and the right edge to the right; items out of sight
            // belong to the band.
            EXPECT_TRUE(PumpUntil([&] {
                return tree.GetFirstVisibleItem() != m_items[0] && tree.GetScrollPos(SB_HORZ) > 0 &&
                       tree.GetSelectedCount() > 10U;
            }));
        })
        .Move(ClientPoint(tree, CPoint(4, 4)))
        .Do([&] {
            EXPECT_TRUE(PumpUntil([&] {
                return tree.GetFirstVisibleItem() == m_items[0] && tree.GetScrollPos(SB_HORZ) == 0;
            })) << "and back again";
        })
        .Release();
    EXPECT_EQ(SelectedTexts(tree), "abcd") << "from the press up to the first item";
    EXPECT_EQ(tree.GetAutoScrollDirection(CPoint(10, 5)), 0) << "there is no more above";
}

TEST_F(MultiTreeInputTest, WideBarsScrollOnBoard)
{
    auto& tree = AddLongTree();
    const CSize standard = ClientRectOf(tree).Size();
    const auto top = [&] { return tree.GetFirstVisibleItem(); };
    constexpr int Band = 52;
    const auto onBar = [&](int y) { return WindowPoint(tree, CPoint(200 - Band / 2, y)); };
    {
        const ModeScope mode(ONBOARD);
        tree.Invalidate(); // the rows, and the frame goes with them
        EXPECT_TRUE(ShowsWhatAPaintWould(tree));
        EXPECT_EQ(ClientRectOf(tree).Size(), CSize(200 - Band, 200 - Band));
        Click(onBar(200 - Band - 10));
        EXPECT_EQ(top(), m_items[1]);
        Press();
        EXPECT_TRUE(PumpUntil([&] { return top() == m_items[4]; })) << "held, it repeats";
        Release();
        const HTREEITEM released = top();
        PumpFor(300);
        EXPECT_EQ(top(), released);
        Click(WindowPoint(tree, CPoint(200 - Band - 10, 200 - Band / 2)));
        EXPECT_GT(tree.GetScrollPos(SB_HORZ), 0);
        // One quick pull of the thumb onto either arrow reaches that end.
        const auto pull = [&](int from, int to) {
            constexpr int Row = 200 - Band / 2;
            Drag(WindowPoint(tree, CPoint(from, Row)), WindowPoint(tree, CPoint(to, Row)), 1);
        };
        SCROLLINFO across = {};
        tree.GetScrollInfo(SB_HORZ, &across);
        pull(60, 140);
        EXPECT_EQ(tree.GetScrollPos(SB_HORZ), across.nMax - int(across.nPage) + 1);
        pull(92, 5);
        EXPECT_EQ(tree.GetScrollPos(SB_HORZ), 0);
        // By the thumb, which stays where it is let go, and back to the upper end.
        Drag(onBar(52), onBar(62));
        EXPECT_NE(top(), released);
        EXPECT_EQ(top(), m_items[size_t(tree.GetScrollPos(SB_VERT))]);
        Drag(onBar(62), onBar(5));
        EXPECT_EQ(top(), m_items[0]);
        EXPECT_EQ(tree.GetSelectedCount(), 0U);
        // The thumb also goes along where the program scrolls.
        tree.SetItemText(m_items[0], std::string(60, 'a').c_str());
        PumpAll();
        tree.EnsureVisible(m_items[0]);
        EXPECT_GT(tree.GetScrollPos(SB_HORZ), 0);
        EXPECT_TRUE(ShowsWhatAPaintWould(tree));
        tree.SetItemText(m_items.back(), std::string(90, 'a').c_str()); // out of sight
        EXPECT_TRUE(ShowsWhatAPaintWould(tree));
        tree.EnableWindow(FALSE);
        EXPECT_EQ(Settled(tree).At(195, 195), RGB(90, 90, 90)) << "the corner as the bars";
    }
    Repaint(tree);
    EXPECT_EQ(tree.GetStyle() & (WS_VSCROLL | WS_HSCROLL), DWORD(WS_VSCROLL | WS_HSCROLL));
    EXPECT_EQ(ClientRectOf(tree).Size(), standard);
}

TEST_F(MultiTreeInputTest, AnEditOfALabelEndsWhenAWideBarIsPressedAndFollowsTheMode)
{
    auto& tree = AddLongTree();
    tree.ModifyStyle(0, TVS_EDITLABELS);
    tree.SetItemState(m_items[1], TVIS_BOLD, TVIS_BOLD);
    const ModeScope mode(ONBOARD);
    Repaint(tree);
    ASSERT_NE(tree.EditLabel(m_items[1]), nullptr);
    Click(WindowPoint(tree, CPoint(200 - 26, 200 - 52 - 10)));
    EXPECT_EQ(tree.GetEditControl(), nullptr);
    EXPECT_EQ(tree.GetFirstVisibleItem(), m_items[1]);
    // It goes with its item, or ends out of sight.
    const auto expectOverItsItem = [&](HTREEITEM item, const std::string& what) {
        EXPECT_TRUE(ShowsWhatAPaintWould(tree)) << what;
        const CWnd* const edit = tree.GetEditControl();
        if (edit != nullptr)
        {
            const CRect place = PlaceIn(tree, *edit);
            EXPECT_TRUE(TextRectOf(tree, item).PtInRect(place.CenterPoint())) << what;
            EXPECT_GT(place.Height(), tree.GetItemHeight()) << what;
            LOGFONT font = {};
            edit->GetFont()->GetLogFont(&font);
            EXPECT_EQ(font.lfWeight == FW_BOLD, item == m_items[1]) << what;
        }
        return edit != nullptr;
    };
    const std::tuple<const char*, bool, std::function<void()>> moves[] = {
        {"a new item above", true, [&] { tree.InsertItem("new", TVI_ROOT, m_items[0]); }},
        {"higher rows", true, [&] { tree.SetItemHeight(90); }},
        {"scrolled", true, [&] { tree.SendMessage(WM_VSCROLL, SB_LINEDOWN); }},
        {"the wheel", false, [] { Wheel(-WHEEL_DELTA); }}};
    for (const auto& [what, stays, move] : moves)
    {
        tree.SendMessage(WM_VSCROLL, SB_TOP);
        ASSERT_NE(tree.EditLabel(m_items[1]), nullptr);
        MoveTo(ClientPoint(tree, CPoint(5, 5)));
        move();
        EXPECT_EQ(expectOverItsItem(m_items[1], what), stays) << what;
        tree.SendMessage(TVM_ENDEDITLABELNOW, TRUE);
        tree.SetItemHeight(-1);
    }
    tree.SendMessage(WM_VSCROLL, SB_TOP);
    tree.SetMultiSelect(false);
    tree.SetFocus();
    tree.SelectItem(m_items[1]);
    QueueClick(ClientPoint(tree, TextRectOf(tree, m_items[1]).CenterPoint())); // which edits it
    EXPECT_TRUE(PumpUntil([&] { return tree.GetEditControl() != nullptr; }, 2000));
    tree.SelectItem(m_items[2]);
    EXPECT_TRUE(expectOverItsItem(m_items[1], "another item selected"));
    tree.SendMessage(TVM_ENDEDITLABELNOW, TRUE);
    tree.SetMultiSelect(true);
    for (const APPMODE other : {STD, ONBOARD})
    {
        SetMode(other == STD ? ONBOARD : STD, tree);
        for (const size_t item : {size_t(1), size_t(tree.GetVisibleCount()) - 1})
        {
            ASSERT_NE(tree.EditLabel(m_items[item]), nullptr);
            COnBoardUIGeneral::SetAppMode(other);
            tree.Invalidate();
            const bool stays = expectOverItsItem(m_items[item], std::to_string(item));
            EXPECT_TRUE(other == STD || stays == (item == 1)) << item;
            if (other == STD && stays)
            {
                tree.SetFont(tree.GetFont()); // as hosts do that follow the mode
                expectOverItsItem(m_items[item], "a font in the standard mode");
            }
            tree.SendMessage(TVM_ENDEDITLABELNOW, TRUE);
            SetMode(other == STD ? ONBOARD : STD, tree);
        }
    }
}

TEST_F(MultiTreeInputTest, TheEditOfALabelIsCancelledWhereItsItemIsDeleted)
{
    using Act = std::function<void(MultiTree&)>;
    const auto reset = [&](MultiTree& tree) { tree.Expand(a, TVE_COLLAPSE | TVE_COLLAPSERESET); };
    // And what is left then; null is what the parent leaves.
    const std::tuple<const char*, const char*, Act> ends[] = {
        {"it is deleted", nullptr, [&](MultiTree& tree) { tree.DeleteItem(b); }},
        {"its branch", "def", [&](MultiTree& tree) { tree.DeleteItem(a); }},
        {"all", "", [](MultiTree& tree) { tree.DeleteAllItems(); }},
        {"with all below", "adef", reset},
        {"as it ends by a key", nullptr, [](MultiTree&) { TypeKey(VK_RETURN); }},
        {"by the focus", nullptr, [&](MultiTree&) { Host().SetFocus(); }}};
    // What the parent does as it is told of the end.
    const std::tuple<APPMODE, std::string, Act> hooks[] = {
        {STD, "acdef", [&](MultiTree& tree) { tree.DeleteItem(b); }},
        {ONBOARD, "adef", reset},
        {ONBOARD, "axyzdef", [&](MultiTree& tree) { reset(tree), tree.Expand(a, TVE_EXPAND); }}};
    for (const auto& [mode, leaves, act] : hooks)
    {
        for (const auto& [way, ownLeft, end] : ends)
        {
            SCOPED_TRACE(testing::Message() << way << " for " << leaves);
            SetMode(mode, Host());
            auto& tree = Add<TreeForTests>(CRect(20, 20, 320, 420), TreeStyle | TVS_EDITLABELS);
            Fill(tree);
            int told = 0;
            Host().hook = [&, &deletes = act](ToldMessage& message) {
                if (message.code == UINT(TVN_ITEMEXPANDING))
                {
                    AddItems(tree, "xyz", a); // in the memory of b, were it gone
                }
                if (message.code == UINT(TVN_ENDLABELEDIT))
                {
                    EXPECT_EQ(About<NMTVDISPINFO>(message).item.hItem, b);
                    ++told;
                    message.answer = TRUE;
                    deletes(tree);
                }
            };
            ASSERT_NE(tree.EditLabel(b), nullptr);
            TypeText("typed");
            end(tree);
            PumpAll();
            EXPECT_EQ(tree.GetEditControl(), nullptr);
            EXPECT_EQ(told, 1);
            const std::string left = ownLeft != nullptr ? ownLeft : leaves;
            EXPECT_TRUE(left[0] != 'a' || tree.ItemHasChildren(a)); // what is left can be opened
            Host().hook = nullptr;
            tree.SelectAll(true, false);
            EXPECT_EQ(SelectedTexts(tree), left);
            Remove(tree);
        }
    }
}

} // namespace
