// Lists given arguments that go far, and lists whose parents and heirs do.

#include "lists/list_box_for_tests.h"

#include <gmock/gmock.h>

#include <climits>

TEST_F(ListBoxOnBoard, AHugeExtentScrollsAsFarAsThePlatformGoes)
{
    auto& list = AddList(3, WideListStyle);
    for (const int extent : {INT_MAX, 400000})
    {
        list.SetHorizontalExtent(extent);
        list.SendMessage(WM_HSCROLL, SB_RIGHT);
        EXPECT_EQ(list.m_hBar.GetScrollPos(), RangeOf(list.m_hBar).y);
        EXPECT_GT(list.m_hBar.GetScrollPos(), 1000);
    }
    // The last step moves the rows like every other.
    const int end = ::GetScrollPos(list, SB_HORZ);
    list.ScrollTo(SB_HORZ, list.m_hBar.GetScrollPos() - 1);
    EXPECT_LT(::GetScrollPos(list, SB_HORZ), end);
}

TEST_F(ListBoxOnBoard, OddArgumentsHaveADefinedResult)
{
    auto& list = AddList(0, WideListStyle);
    EXPECT_EQ(list.GetEntryHeight(nullptr), list.GetEntryHeight("x"));
    EXPECT_EQ(list.GetEntryWidth(0), 0);
    EXPECT_EQ(list.GetEntryWidth(-7), 0);
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
            asked.push_back(reinterpret_cast<MEASUREITEMSTRUCT*>(told.lParam)->itemID);
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
