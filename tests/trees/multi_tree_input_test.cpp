#include "trees/tree_for_tests.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class MultiTreeInputTest : public TreeTest
{
protected:
    // A tree of many single-letter items and a few long ones, which scrolls both ways.
    TreeForTests& AddLongTree()
    {
        auto& tree = Add<TreeForTests>(CRect(20, 20, 220, 220), TreeStyle);
        m_items = AddItems(tree, "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ");
        for (int letter = 0; letter < 3; ++letter)
        {
            const std::string wide(60, char('0' + letter));
            tree.InsertItem(wide.c_str());
        }
        tree.SetFocus();
        tree.SelectItem(nullptr);
        PumpAll();
        Host().Forget();
        return tree;
    }

    std::vector<HTREEITEM> m_items;
};

TEST_F(MultiTreeInputTest, ClicksSelectAsTheKeysSay)
{
    auto& tree = AddTree();
    ClickItem(tree, b);
    EXPECT_EQ(SelectedTexts(tree), "b");
    ClickItem(tree, d, {VK_CONTROL});
    ClickItem(tree, f, {VK_CONTROL});
    EXPECT_EQ(SelectedTexts(tree), "bdf");
    ClickItem(tree, d, {VK_CONTROL});
    EXPECT_EQ(SelectedTexts(tree), "bf") << "a second click with Ctrl takes it out";
    EXPECT_EQ(tree.GetFocusedItem(), d) << "and leaves it the caret";
    ClickItem(tree, f, {VK_SHIFT});
    EXPECT_EQ(SelectedTexts(tree), "def") << "from the caret";
    ClickItem(tree, b, {VK_SHIFT});
    EXPECT_EQ(SelectedTexts(tree), "bcd") << "the other way from the same anchor";
    ClickItem(tree, f);
    ClickItem(tree, b, {VK_CONTROL});
    ClickItem(tree, c, {VK_SHIFT, VK_CONTROL});
    EXPECT_EQ(SelectedTexts(tree), "bcf") << "with both keys the others stay";
    ClickItem(tree, e);
    EXPECT_EQ(SelectedTexts(tree), "e");
    tree.refused = f;
    ClickItem(tree, f, {VK_CONTROL});
    EXPECT_EQ(SelectedTexts(tree), "e");
    EXPECT_EQ(tree.GetFocusedItem(), f);

    tree.SelectItem(nullptr);
    ClickItem(tree, d, {VK_SHIFT});
    EXPECT_EQ(SelectedTexts(tree), "d") << "neither anchor nor caret";
}

TEST_F(MultiTreeInputTest, AClickTellsTheParentInOrder)
{
    auto& tree = AddTree();
    ClickItem(tree, b);
    // The platform's own pair as the caret comes, ours for the click, then the click itself.
    EXPECT_THAT(Codes(), ElementsAre(Changing, Changed, Changing, Changed, int(NM_CLICK)));
    Host().Forget();
    ClickItem(tree, b, {VK_CONTROL});
    EXPECT_THAT(Codes(), ElementsAre(Changing, Changed, int(NM_CLICK)));
    Host().Forget();
    ClickItem(tree, d, {VK_SHIFT});
    const std::vector<int> codes = Codes();
    EXPECT_EQ(std::count(codes.begin(), codes.end(), Changing) -
                  std::count(codes.begin(), codes.end(), Changed),
              3)
        << "a range of three is asked for and not told";
    EXPECT_EQ(codes.back(), int(NM_CLICK));
}

TEST_F(MultiTreeInputTest, TheRightButtonKeepsASelectionAndOpensOneMenu)
{
    auto& tree = AddTree();
    ClickItem(tree, b);
    ClickItem(tree, d, {VK_CONTROL});
    MessageLog log(tree, {WM_CONTEXTMENU});
    Host().Forget();
    ClickItem(tree, b, {}, true);
    EXPECT_EQ(SelectedTexts(tree), "bd") << "a selected item keeps the others";
    EXPECT_EQ(log.Count(WM_CONTEXTMENU), 1);
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
        if (selected != nullptr)
        {
            tree.SetItemState(selected, TVIS_SELECTED, TVIS_SELECTED);
        }
        ASSERT_EQ(tree.GetFocusedItem(), nullptr);
    };
    for (const UINT key : {VK_CONTROL, VK_SHIFT})
    {
        rest(nullptr);
        ClickItem(tree, d, {key}, true);
        EXPECT_EQ(::GetFocus(), tree.GetSafeHwnd());
        EXPECT_EQ(SelectedTexts(tree), "") << key;
    }
    rest(a);
    const CPoint beside = EmptyBeside(tree, e);
    PressScript(beside, {VK_CONTROL}).Move(beside + CPoint(10, 5)).Release();
    EXPECT_EQ(SelectedTexts(tree), "a") << "what was selected stays so";
}

TEST_F(MultiTreeInputTest, APressIsADragOnceItMovesFarEnough)
{
    struct Case
    {
        int pixels; // from the first move on
        int last;   // notification
    };
    const int threshold = ::GetSystemMetrics(SM_CXDRAG);
    const Case cases[] = {{threshold - 1, int(NM_CLICK)}, {threshold + 1, int(TVN_BEGINDRAG)}};
    auto& tree = AddTree();
    for (const Case& press : cases)
    {
        tree.SelectItem(nullptr);
        Host().Forget();
        CPoint start;
        Host().hook = [&](ToldMessage& told) {
            if (told.code == UINT(TVN_BEGINDRAG))
            {
                const auto& notify = *reinterpret_cast<NMTREEVIEW*>(told.lParam);
                EXPECT_EQ(notify.itemNew.hItem, d);
                EXPECT_EQ(ClientPoint(tree, notify.ptDrag), start);
            }
        };
        start = PointOf(tree, d);
        PressScript(start)
            .Move(start + CPoint(1, 0))
            .Move(start + CPoint(1 + press.pixels, 0))
            .Release();
        ASSERT_FALSE(Codes().empty());
        EXPECT_EQ(Codes().back(), press.last) << press.pixels << " pixels";
        EXPECT_EQ(SelectedTexts(tree), "d");
    }
    tree.ModifyStyle(0, TVS_DISABLEDRAGDROP);
    Host().Forget();
    const CPoint start = PointOf(tree, e);
    PressScript(start).Move(start + CPoint(1, 0)).Move(start + CPoint(20, 0)).Release();
    EXPECT_EQ(CountOf(int(TVN_BEGINDRAG)), 0);
    EXPECT_EQ(SelectedTexts(tree), "e");
}

TEST_F(MultiTreeInputTest, APressEndsWithWhatItWaitsFor)
{
    auto& tree = AddTree();
    // Escape and a capture that somebody takes make it neither a click nor a drag.
    PressScript(PointOf(tree, d)).Do([] { TypeKey(VK_ESCAPE); }).Release();
    EXPECT_EQ(CountOf(int(NM_CLICK)), 0);
    PressScript(PointOf(tree, e)).Do([&] { Host().SetCapture(); }).Release();
    ::ReleaseCapture();
    EXPECT_EQ(CountOf(int(NM_CLICK)), 0);

    // The item goes between press and release; the click is told without it.
    Host().Forget();
    Host().hook = [&](ToldMessage& told) {
        if (told.code == UINT(NM_CLICK))
        {
            EXPECT_EQ(reinterpret_cast<NMTREEVIEW*>(told.lParam)->itemNew.hItem, nullptr);
        }
    };
    PressScript(PointOf(tree, d)).Do([&] { tree.DeleteItem(d); }).Release();
    EXPECT_EQ(CountOf(int(NM_CLICK)), 1);
    Host().hook = nullptr;

    // WM_QUIT is not for this loop.
    PressScript(PointOf(tree, e)).Do([] { ::PostQuitMessage(7); }).Release();
    EXPECT_TRUE(TakeQuit());
    PumpAll();

    PressScript(PointOf(tree, e)).Do([] { COnBoardUIGeneral::SetAppMode(ONBOARD); }).Release();
    EXPECT_EQ(COnBoardUIGeneral::GetAppMode(), ONBOARD);
    COnBoardUIGeneral::SetAppMode(STD);
    PumpAll();

    PressScript(PointOf(tree, e)).Do([&] { Remove(tree); }).Release();
}

TEST_F(MultiTreeInputTest, ArrowsMoveExtendOrPassTheSelection)
{
    auto& tree = AddTree();
    ClickItem(tree, b);
    TypeKey(VK_DOWN);
    EXPECT_EQ(SelectedTexts(tree), "c");
    TypeKey(VK_DOWN, VK_SHIFT);
    TypeKey(VK_DOWN, VK_SHIFT);
    EXPECT_EQ(SelectedTexts(tree), "cde");
    TypeKey(VK_UP, VK_SHIFT);
    EXPECT_EQ(SelectedTexts(tree), "cd") << "back towards the anchor";
    Host().Forget();
    TypeKey(VK_DOWN, VK_CONTROL);
    EXPECT_EQ(SelectedTexts(tree), "cd") << "Ctrl moves the caret alone";
    EXPECT_EQ(tree.GetFocusedItem(), e);
    EXPECT_EQ(Codes().back(), Changed);
    TypeKey(VK_UP);
    EXPECT_EQ(SelectedTexts(tree), "d");
    EXPECT_EQ(tree.GetFocusedItem(), d);
}

TEST_F(MultiTreeInputTest, ATreeWithoutAParentIsClickedAsWell)
{
    TreeForTests tree;
    ASSERT_TRUE(tree.CWnd::CreateEx(0, WC_TREEVIEW, "", WS_POPUP | WS_VISIBLE | TreeStyle, 500, 300,
                                    200, 200, nullptr, nullptr));
    const auto items = AddItems(tree, "abc");
    PumpAll();
    ClickItem(tree, items[0]);
    ClickItem(tree, items[2], {VK_CONTROL});
    EXPECT_EQ(SelectedTexts(tree), "ac");
    const CPoint start = PointOf(tree, items[0]);
    PressScript(start).Move(start + CPoint(1, 0)).Move(start + CPoint(20, 0)).Release();
    EXPECT_EQ(SelectedTexts(tree), "ac") << "a drag that nobody is told of";
    tree.DestroyWindow();
}

TEST_F(MultiTreeInputTest, ABandSelectsWhatItMeetsAndLeavesNoTrace)
{
    auto& tree = AddTree();
    ClickItem(tree, f);
    tree.SelectItem(nullptr);
    PumpAll();
    const Pixels before = WindowPixels(tree);
    const CPoint start = EmptyBeside(tree, b);
    std::string during;
    PressScript(start)
        .Move(start - CPoint(30, -5))
        .Move(PointOf(tree, d))
        .Do([&] {
            during = SelectedTexts(tree);
            EXPECT_NE(WindowPixels(tree), before) << "the band is to be seen";
            EXPECT_EQ(::GetCapture(), tree.GetSafeHwnd());
        })
        .Move(PointOf(tree, c))
        .Release();
    EXPECT_EQ(during, "bcd");
    EXPECT_EQ(SelectedTexts(tree), "bc") << "released as the band leaves it";
    tree.SelectItem(nullptr);
    PumpAll();
    EXPECT_EQ(WindowPixels(tree), before) << "without a trace";
}

TEST_F(MultiTreeInputTest, WhatGoesDuringAPressInEmptySpaceLeavesNoTrace)
{
    auto& tree = AddTree();
    CRect below = ClientRectOf(tree);
    below.top = TextRectOf(tree, d).top;
    below.OffsetRect(ClientPoint(tree, CPoint(0, 0)));
    const Pixels before = ScreenPixels(below);
    Pixels during;
    PressScript(EmptyBeside(tree, b))
        .Do([&] {
            for (const HTREEITEM item : {d, e, f})
            {
                tree.DeleteItem(item);
            }
        })
        .Do([&] { during = ScreenPixels(below); })
        .Release();
    Host().RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    PumpAll();
    EXPECT_NE(during, before);
    EXPECT_EQ(during, ScreenPixels(below));
}

TEST_F(MultiTreeInputTest, ABandKeepsOrReplacesTheSelection)
{
    auto& tree = AddTree();
    const auto band = [&](std::vector<UINT> keys) {
        const CPoint start = EmptyBeside(tree, d);
        PressScript(start, keys).Move(start - CPoint(30, -5)).Move(PointOf(tree, e)).Release();
    };
    ClickItem(tree, b);
    band({VK_CONTROL});
    EXPECT_EQ(SelectedTexts(tree), "bde");
    ClickItem(tree, b);
    band({});
    EXPECT_EQ(SelectedTexts(tree), "de");

    const CPoint empty = EmptyBeside(tree, f);
    tree.SelectItem(nullptr);
    Host().SetFocus();
    PressScript(empty, {VK_CONTROL}).Release();
    EXPECT_EQ(SelectedTexts(tree), "") << "the focus that comes with it selects nothing";
    band({});
    PressScript(empty, {VK_CONTROL}).Release();
    EXPECT_EQ(SelectedTexts(tree), "de");
    PressScript(empty).Release();
    EXPECT_EQ(SelectedTexts(tree), "") << "a press alone clears";
    EXPECT_EQ(Codes().back(), int(NM_CLICK));
}

TEST_F(MultiTreeInputTest, AnInterruptedBandGivesTheSelectionBack)
{
    auto& tree = AddTree();
    const std::function<void()> interruptions[] = {
        [] { TypeKey(VK_ESCAPE); },
        [&] {
            Host().SetCapture();
            ::ReleaseCapture();
        },
        [&] { tree.SendMessage(WM_CANCELMODE); },
    };
    for (const auto& interrupt : interruptions)
    {
        tree.SelectItem(b);
        tree.SetItemState(f, TVIS_SELECTED, TVIS_SELECTED);
        PumpAll();
        const Pixels before = WindowPixels(tree);
        const CPoint start = EmptyBeside(tree, d);
        PressScript(start)
            .Move(start - CPoint(30, -5))
            .Move(PointOf(tree, e))
            .Do([&] { EXPECT_EQ(SelectedTexts(tree), "de"); })
            .Do(interrupt)
            .Release();
        EXPECT_EQ(SelectedTexts(tree), "bf");
        EXPECT_EQ(::GetCapture(), nullptr);
        EXPECT_EQ(WindowPixels(tree), before);
    }
    const CPoint start = EmptyBeside(tree, d);
    PressScript(start).Move(start - CPoint(30, -5)).Do([] { ::PostQuitMessage(3); }).Release();
    EXPECT_TRUE(TakeQuit());
    PumpAll();
    PressScript(start).Move(start - CPoint(30, -5)).Do([&] { tree.DeleteAllItems(); }).Release();
    AddItems(tree, "xyz");
    const CPoint again = ClientPoint(tree, CPoint(200, 200));
    PressScript(again).Move(again - CPoint(150, 195)).Do([&] { Remove(tree); }).Release();
}

TEST_F(MultiTreeInputTest, ABandScrollsBothWays)
{
    auto& tree = AddLongTree();
    tree.SetBandingHit(true); // rows, which reach as far as the band does
    const CRect client = ClientRectOf(tree);
    const CPoint start = EmptyBeside(tree, m_items[3], 30);
    const auto top = [&] { return tree.GetFirstVisibleItem(); };
    size_t grown = 0;
    PressScript(start)
        .Move(start + CPoint(-10, 10))
        .Move(ClientPoint(tree, CPoint(client.right - 4, client.bottom - 4)))
        .Do([&] {
            const HTREEITEM first = top();
            PumpFor(400);
            EXPECT_NE(top(), first) << "the lower edge scrolls down";
            EXPECT_GT(tree.GetScrollPos(SB_HORZ), 0) << "and the right edge to the right";
            grown = tree.GetSelectedCount();
        })
        .Move(ClientPoint(tree, CPoint(4, 4)))
        .Do([&] {
            PumpFor(1200);
            EXPECT_EQ(top(), m_items[0]) << "the upper edge scrolls up again";
            EXPECT_EQ(tree.GetScrollPos(SB_HORZ), 0);
        })
        .Release();
    EXPECT_GT(grown, 10U) << "items out of sight belong to the band";
    EXPECT_EQ(SelectedTexts(tree), "abcd") << "from the press up to the first item";
    EXPECT_EQ(tree.GetAutoScrollDirection(CPoint(10, 5)), 0) << "there is no more above";
    EXPECT_EQ(tree.GetAutoScrollDirection(CPoint(10, client.bottom - 5)), 1);
    EXPECT_EQ(tree.GetAutoScrollDirection(CPoint(10, client.CenterPoint().y)), 0);
}

TEST_F(MultiTreeInputTest, TheDragImageShowsTheSelectionInSight)
{
    auto& tree = AddLongTree();
    EXPECT_EQ(tree.CreateDragImage(), nullptr) << "nothing is selected";
    tree.SetItemState(m_items.back(), TVIS_SELECTED, TVIS_SELECTED);
    EXPECT_EQ(tree.CreateDragImage(), nullptr) << "nothing selected is in sight";
    tree.SelectAll(true, false);
    const std::unique_ptr<CImageList> all(tree.CreateDragImage());
    ASSERT_NE(all, nullptr);
    IMAGEINFO info = {};
    ASSERT_TRUE(all->GetImageInfo(0, &info));
    EXPECT_LE(info.rcImage.bottom - info.rcImage.top, ClientRectOf(tree).Height());
    tree.SelectAll(false, false);
    tree.SetItemState(m_items[1], TVIS_SELECTED, TVIS_SELECTED);
    const std::unique_ptr<CImageList> one(tree.CreateDragImage());
    ASSERT_TRUE(one != nullptr && one->GetImageInfo(0, &info));
    EXPECT_EQ(CRect(info.rcImage).Size(), TextRectOf(tree, m_items[1]).Size());
}

TEST_F(MultiTreeInputTest, WideBarsScrollOnBoard)
{
    auto& tree = AddLongTree();
    const CSize standard = ClientRectOf(tree).Size();
    {
        const ModeScope mode(ONBOARD);
        tree.Invalidate();
        PumpAll();
        EXPECT_EQ(tree.GetStyle() & (WS_VSCROLL | WS_HSCROLL), 0U);
        constexpr int Band = 52;
        EXPECT_EQ(ClientRectOf(tree).Size(), CSize(200 - Band, 200 - Band));
        const auto top = [&] { return tree.GetFirstVisibleItem(); };
        const CPoint downArrow = WindowPoint(tree, CPoint(200 - Band / 2, 200 - Band - 10));
        Click(downArrow);
        EXPECT_EQ(top(), m_items[1]);
        MoveTo(downArrow);
        Press();
        EXPECT_TRUE(PumpUntil([&] { return top() == m_items[4]; })) << "held, it repeats";
        Release();
        const HTREEITEM released = top();
        PumpFor(300);
        EXPECT_EQ(top(), released);
        Click(WindowPoint(tree, CPoint(200 - Band - 10, 200 - Band / 2)));
        EXPECT_GT(tree.GetScrollPos(SB_HORZ), 0);
        // Back by the thumb, to the upper end.
        Click(WindowPoint(tree, CPoint(200 - Band / 2, 10)));
        Drag(WindowPoint(tree, CPoint(200 - Band / 2, 52)),
             WindowPoint(tree, CPoint(200 - Band / 2, 5)));
        EXPECT_EQ(top(), m_items[0]);
        EXPECT_EQ(tree.GetSelectedCount(), 0U);
    }
    tree.Invalidate();
    PumpAll();
    EXPECT_EQ(tree.GetStyle() & (WS_VSCROLL | WS_HSCROLL), DWORD(WS_VSCROLL | WS_HSCROLL));
    EXPECT_EQ(ClientRectOf(tree).Size(), standard);
}

} // namespace
