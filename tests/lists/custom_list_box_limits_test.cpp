// Lists given arguments that go far, and lists whose parents and heirs do.

#include "lists/list_box_for_tests.h"
#include "support/Acting.h"
#include "support/Fenced.h"

#include <gmock/gmock.h>

#include <climits>

TEST_F(ListBoxOnBoard, AHugeExtentScrollsAsFarAsThePlatformGoes)
{
    auto& list = AddList(3, WideListStyle);
    for (const int extent : {INT_MAX, INT_MAX - 1, 400000})
    {
        list.SetHorizontalExtent(extent);
        EXPECT_TRUE(list.m_hBarNeeded) << extent;
        list.SendMessage(WM_HSCROLL, SB_RIGHT);
        EXPECT_EQ(list.m_hBar.GetScrollPos(), RangeOf(list.m_hBar).y);
        EXPECT_GT(list.m_hBar.GetScrollPos(), 1000);
    }
    // The last step moves the rows like every other.
    const int step = list.m_hBar.GetScrollPos();
    const auto ends = [&](int position) {
        list.ScrollTo(SB_HORZ, position);
        return ::GetScrollPos(list, SB_HORZ);
    };
    EXPECT_LT(ends(step - 1), ends(step));
}

TEST_F(ListBoxOnBoard, OddArgumentsHaveADefinedResult)
{
    auto& list = AddList(0, WideListStyle);
    EXPECT_EQ(list.GetEntryHeight(nullptr), list.GetEntryHeight("x"));
    EXPECT_EQ(list.GetEntryWidth(0), 0);
    EXPECT_EQ(list.GetEntryWidth(-7), 0);
    list.Fill(50);
    for (const WPARAM odd :
         {WPARAM(INT_MAX), WPARAM(UINT(INT_MIN)), WPARAM(-1), ~WPARAM(0) / 2, WPARAM(1) << 32})
    {
        list.SendMessage(LB_SETCURSEL, odd);
        list.SendMessage(LB_SETTOPINDEX, odd);
        EXPECT_EQ(list.m_vBar.GetScrollPos(), list.GetTopIndex()) << odd;
        list.SendMessage(LB_DELETESTRING, odd);
        EXPECT_GE(list.GetCount(), 49);
    }
    auto& flat = AddList(0, ListStyle | LBS_OWNERDRAWFIXED | LBS_NODATA, CRect(340, 20, 640, 25));
    flat.SendMessage(LB_SETCOUNT, INT_MAX);
    if (flat.GetCount() != INT_MAX)
    {
        GTEST_SKIP() << "the platform's list does not take as many rows";
    }
    EXPECT_EQ(RangeOf(flat.m_vBar).y, INT_MAX);
}

TEST_F(ListBoxTest, AParentMayDeleteRowsWhileItIsAsked)
{
    auto& list = AddList(30, ListStyle | LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS);
    std::vector<UINT> asked;
    Host().AlsoRecord({WM_MEASUREITEM});
    Host().hook = [&](ToldMessage& told) {
        if (told.message == WM_MEASUREITEM)
        {
            const auto& measure = *reinterpret_cast<MEASUREITEMSTRUCT*>(told.lParam);
            asked.push_back(measure.itemID);
            EXPECT_NE(measure.itemData, ULONG_PTR(-1));
            while (list.GetCount() > 4)
            {
                list.DeleteString(list.GetCount() - 1);
            }
        }
    };
    SetMode(ONBOARD, list);
    EXPECT_THAT(asked, testing::ElementsAre(0, 1, 2, 3));
    SetMode(STD, list);
}

TEST_F(ListBoxTest, AListMayEndWhenItsStyleChanges)
{
    const struct
    {
        const char* name;
        APPMODE before;
        APPMODE after;
    } table[] = {{"on board", STD, ONBOARD}, {"standard", ONBOARD, STD}, {"frame", EFB, EFB}};
    for (const auto& row : table)
    {
        COnBoardUIGeneral::SetAppMode(row.before);
        auto* const list = new Acting<Fenced<ListBoxForTests>>;
        ASSERT_TRUE(
            list->Create(WS_CHILD | WS_VISIBLE | ListStyle, CRect(20, 20, 320, 320), &Host(), 77));
        list->Fill(50);
        PumpAll();
        const HWND window = *list;
        const bool changes = row.before != row.after;
        list->ModifyStyle(0, changes ? 0 : WS_VSCROLL); // as if the platform wanted its bar
        list->ActIn(WM_STYLECHANGED, [list] { delete list; });
        COnBoardUIGeneral::SetAppMode(row.after);
        constexpr UINT Stays = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER;
        ::SetWindowPos(window, nullptr, 0, 0, 0, 0, Stays | SWP_FRAMECHANGED);
        ::RedrawWindow(window, nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
        EXPECT_FALSE(::IsWindow(window)) << row.name;
    }
    COnBoardUIGeneral::SetAppMode(STD);
}
