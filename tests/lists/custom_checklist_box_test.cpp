// The check list's checks, its items' data, and the look of its rows.

#include "lists/CheckListLayout.h"
#include "lists/check_list_for_tests.h"

#include <gmock/gmock.h>

#include <climits>

using testing::ElementsAre;

// Checks and data -------------------------------------------------------------------------------

TEST_F(CheckListTest, ChecksBelongToTheirItems)
{
    auto& list = AddList(3, BS_AUTO3STATE);
    EXPECT_THAT(list.Checks(), ElementsAre(0, 0, 0));
    EXPECT_TRUE(list.IsEnabled(1));
    EXPECT_EQ(list.Records(), 0U);
    list.SetCheck(0, 1);
    list.SetCheck(2, 2);
    list.Enable(1, FALSE);
    EXPECT_EQ(list.Records(), 3U);
    list.InsertString(0, "First");
    list.DeleteString(1);
    list.DeleteString(40);
    EXPECT_THAT(list.Checks(), ElementsAre(0, 0, 2));
    EXPECT_FALSE(list.IsEnabled(1));
    list.Enable(1);
    EXPECT_TRUE(list.IsEnabled(1));
    // A state that the style does not have stays where it was and is not given anew.
    list.SetCheckStyle(BS_AUTOCHECKBOX);
    list.SetCheck(0, 2);
    EXPECT_THAT(list.Checks(), ElementsAre(0, 0, 2));
    EXPECT_EQ(Told(list), 0) << "only the user's changes are told";
    // Records go with their items, all at once too, and with the window.
    EXPECT_EQ(list.Records(), 2U);
    list.ResetContent();
    EXPECT_EQ(list.Records(), 0U);
    list.Fill(2);
    list.SetCheck(1, 1);
    EXPECT_EQ(list.Records(), 1U);
    list.DestroyWindow();
    EXPECT_EQ(list.Records(), 0U);
}

TEST_F(CheckListTest, OddArgumentsHaveADefinedResult)
{
    auto& list = AddList(2, BS_3STATE);
    for (const int index : {-1, 2, 5000, INT_MAX, INT_MIN})
    {
        list.SetCheck(index, 1);
        list.Enable(index, FALSE);
        EXPECT_EQ(list.GetCheck(index), 0) << index;
        EXPECT_FALSE(list.IsEnabled(index)) << index;
        EXPECT_EQ(list.SetItemData(index, 7), LB_ERR) << index;
        EXPECT_EQ(list.GetItemData(index), DWORD_PTR(LB_ERR)) << index;
    }
    for (const UINT style : {0U, 4U, UINT(BS_OWNERDRAW), 999U})
    {
        list.SetCheckStyle(style);
        EXPECT_EQ(list.GetCheckStyle(), UINT(BS_3STATE));
    }
    EXPECT_EQ(list.Records(), 0U);
    // Any number is kept, looks like the state next to it and goes round from there.
    for (const int check : {-1, 3, INT_MAX, INT_MIN})
    {
        list.SetCheck(0, check);
        list.SetCheck(1, check < 0 ? 0 : 2);
        EXPECT_EQ(list.GetCheck(0), check);
        PumpAll();
        EXPECT_EQ(ScreenPixels(CRect(list.CheckPoint(0) - CSize(4, 4), CSize(9, 9))),
                  ScreenPixels(CRect(list.CheckPoint(1) - CSize(4, 4), CSize(9, 9))))
            << check;
        for (const UINT style : {BS_AUTOCHECKBOX, BS_AUTO3STATE})
        {
            const int next = lists::NextCheck(check, style);
            EXPECT_TRUE(next >= 0 && next < (style == BS_AUTO3STATE ? 3 : 2)) << check;
        }
    }
    list.SendMessage(WM_ERASEBKGND); // with nothing to erase on
    CCustomChecklistBox unborn;
    unborn.SetCheck(0, 1);
    EXPECT_EQ(unborn.GetCheck(0), 0);
}

TEST_F(CheckListTest, AListThatKeepsNoDataHasNoChecksAndTellsOfNone)
{
    auto& list = AddList(0, BS_AUTOCHECKBOX, LBS_NODATA | LBS_OWNERDRAWFIXED | LBS_NOTIFY);
    list.SendMessage(LB_SETCOUNT, 3);
    list.SetCheck(1, 1);
    list.SetItemData(1, 3);
    list.SetFocus();
    list.SetCurSel(1);
    TypeKey(VK_SPACE);
    Click(list.CheckPoint(1));
    EXPECT_THAT(list.Checks(), ElementsAre(0, 0, 0));
    EXPECT_EQ(list.Records(), 0U);
    EXPECT_EQ(Told(list), 0);
}

namespace {

// A list whose owner keeps numbers with its items, and what that owner is told.
template <class Base> class OwnedList : public Base
{
public:
    std::vector<ULONG_PTR> told;

    void DeleteItem(LPDELETEITEMSTRUCT deleted) override { told.push_back(deleted->itemData); }
    void MeasureItem(LPMEASUREITEMSTRUCT measure) override
    {
        if ((this->GetStyle() & LBS_HASSTRINGS) == 0) // otherwise it is nothing yet
        {
            told.push_back(measure->itemData);
        }
    }
    int CompareItem(LPCOMPAREITEMSTRUCT compare) override
    {
        const auto a = compare->itemData1;
        const auto b = compare->itemData2;
        told.insert(told.end(), {a, b});
        return a < b ? -1 : int(a > b);
    }
};

} // namespace

TEST_F(CheckListTest, CallersFindTheirDataAsInAnyListBox)
{
    // The same script on the platform's list box. Every kind of list has checks on some items.
    const auto script = [this](CListBox& list, std::vector<ULONG_PTR>& told, auto check) {
        std::vector<LRESULT> results;
        Host().AlsoRecord({WM_DELETEITEM});
        Host().hook = [&](ToldMessage& message) {
            if (message.message == WM_DELETEITEM)
            {
                results.push_back(
                    LRESULT(reinterpret_cast<DELETEITEMSTRUCT*>(message.lParam)->itemData));
            }
        };
        const bool strings = (list.GetStyle() & LBS_HASSTRINGS) != 0;
        const char* const texts[] = {"pear", "apple", "fig", "quince", "date"};
        const auto value = [&](int which) {
            return strings ? reinterpret_cast<LPARAM>(texts[which])
                           : LPARAM(0x100000000) + 70 - 7 * which;
        };
        const auto send = [&](UINT message, WPARAM w, LPARAM l) {
            results.push_back(list.SendMessage(message, w, l));
        };
        for (int which = 0; which < 5; ++which)
        {
            send(LB_ADDSTRING, 0, value(which));
        }
        check(1);
        check(3);
        send(LB_INSERTSTRING, 2, value(1));
        send(LB_INSERTSTRING, 99, value(1));
        send(LB_SETITEMDATA, 4, 77);
        check(4);
        send(LB_SETITEMDATA, 0, 78);
        send(LB_SETITEMDATA, 50, 78);
        for (const int row : {0, 1, 2, 3, 4, 5, -1, 6})
        {
            send(LB_GETITEMDATA, WPARAM(row), 0);
            char text[64] = {};
            send(LB_GETTEXT, WPARAM(row), reinterpret_cast<LPARAM>(text));
            results.insert(results.end(), std::begin(text), std::begin(text) + 8);
        }
        for (const int start : {-1, 1, 4, 50})
        {
            send(LB_FINDSTRING, WPARAM(start), value(1));
            send(LB_FINDSTRINGEXACT, WPARAM(start), value(3));
            send(LB_FINDSTRING, WPARAM(start), strings ? reinterpret_cast<LPARAM>("zz") : 5);
            send(LB_SELECTSTRING, WPARAM(start), value(2));
            send(LB_GETCURSEL, 0, 0);
        }
        send(LB_DELETESTRING, 4, 0);
        send(LB_DELETESTRING, 0, 0);
        send(LB_GETITEMDATA, 2, 0);
        send(LB_RESETCONTENT, 0, 0);
        send(LB_ADDSTRING, 0, value(4));
        check(0);
        send(LB_SETITEMDATA, 0, 5);
        list.DestroyWindow();
        results.insert(results.end(), told.begin(), told.end());
        Host().hook = nullptr;
        return results;
    };
    for (const DWORD kind :
         std::initializer_list<DWORD>{LBS_HASSTRINGS, LBS_HASSTRINGS | LBS_SORT, 0, LBS_SORT})
    {
        for (const DWORD drawn : {LBS_OWNERDRAWFIXED, LBS_OWNERDRAWVARIABLE})
        {
            const DWORD style = WS_VSCROLL | LBS_NOINTEGRALHEIGHT | kind | drawn;
            const CRect place(20, 20, 220, 190);
            auto& platform = Add<OwnedList<CListBox>>(place, style);
            const auto expected = script(platform, platform.told, [](int) {});
            auto& ours = Add<OwnedList<CheckListForTests>>(place, style);
            const auto seen = script(ours, ours.told, [&](int row) { ours.SetCheck(row, 1); });
            EXPECT_EQ(seen, expected) << kind << " " << drawn;
            EXPECT_EQ(ours.Records(), 0U);
        }
    }
}

TEST_F(CheckListTest, AListThatWasFilledBeforeKeepsItsData)
{
    auto& plain = Add<CListBox>(CRect(20, 20, 220, 220), CheckListStyle);
    plain.AddString("one");
    plain.SetItemData(0, 4711);
    CheckListForTests list;
    ASSERT_TRUE(list.SubclassWindow(plain.Detach()));
    EXPECT_EQ(list.GetItemData(0), 4711U);
    list.SetCheck(0, 1);
    EXPECT_EQ(list.GetItemData(0), 4711U);
    PumpAll();
    EXPECT_GE(list.GetItemHeight(0), list.CalcMinimumItemHeight());
    list.DestroyWindow();
    EXPECT_EQ(list.Records(), 0U);
}

TEST_F(CheckListTest, AnOwnerMayUseTheListWhileItsItemsGo)
{
    auto& list = AddList(5);
    for (int row = 0; row < 5; ++row)
    {
        list.SetItemData(row, DWORD_PTR(row) + 1);
    }
    std::vector<ULONG_PTR> deleted;
    Host().AlsoRecord({WM_DELETEITEM});
    Host().hook = [&](ToldMessage& told) {
        if (told.message == WM_DELETEITEM)
        {
            const auto* item = reinterpret_cast<DELETEITEMSTRUCT*>(told.lParam);
            deleted.push_back(item->itemData);
            list.GetCheck(int(item->itemID));
            list.GetItemData(0);
            list.SetCheck(0, 1);
        }
    };
    list.DeleteString(2);
    EXPECT_THAT(deleted, ElementsAre(3U));
    deleted.clear();
    list.ResetContent();
    EXPECT_THAT(deleted, testing::UnorderedElementsAre(1U, 2U, 4U, 5U));
    list.Fill(1);
    list.SetCheck(0, 1);
    EXPECT_EQ(list.GetItemData(0), 0U);
}

// Rows ------------------------------------------------------------------------------------------

TEST_F(CheckListTest, APointFindsItsRowAndCheck)
{
    const auto hit = [](CheckListForTests& list, int x, int y) {
        int onCheck = -1;
        const int row = list.CheckFromPoint(CPoint(x, y), onCheck);
        return std::pair(row, onCheck);
    };
    using Hit = std::pair<int, int>;
    for (const DWORD style : {CheckListStyle, VariableCheckListStyle})
    {
        auto& list = AddList(30, BS_AUTOCHECKBOX, style);
        const int height = list.GetItemHeight(0);
        EXPECT_EQ(hit(list, 0, 0), Hit(0, 1));
        EXPECT_EQ(hit(list, 14, 2 * height), Hit(2, 1)); // the check is 13 wide
        EXPECT_EQ(hit(list, 15, 2 * height - 1), Hit(1, 0));
        EXPECT_EQ(hit(list, -1, 5).second, 0);
        EXPECT_EQ(hit(list, 5, -1), Hit(-1, 0));
        // Scrolled to the end, a point below the last row is on no row either.
        list.MoveWindow(20, 20, 300, 5 * height + 7);
        list.SetTopIndex(29);
        EXPECT_EQ(hit(list, 5, height), Hit(list.GetTopIndex() + 1, 1));
        EXPECT_EQ(hit(list, 5, 5 * height + 1).first, -1);
        list.ResetContent();
        EXPECT_EQ(hit(list, 5, 5), Hit(-1, 0));
        Remove(list);
    }
    auto& columns = AddList(60, BS_AUTOCHECKBOX, CheckListStyle | LBS_MULTICOLUMN | WS_HSCROLL);
    columns.SetColumnWidth(100);
    const CRect second = columns.RowRect(30);
    ASSERT_GE(second.left, 100);
    EXPECT_EQ(hit(columns, second.left + 3, second.top + 3), Hit(30, 1));
    EXPECT_EQ(hit(columns, second.left + 50, second.top + 3), Hit(30, 0));
}

TEST_F(CheckListTest, RowsAreHighEnoughInEveryModeAndKeepTheirChecks)
{
    for (const DWORD style : {CheckListStyle, VariableCheckListStyle})
    {
        auto& list = AddList(10, BS_AUTOCHECKBOX, style);
        list.SetCheck(2, 1);
        list.SetItemData(3, 8);
        const int standard = list.GetItemHeight(0);
        EXPECT_EQ(standard, list.CalcMinimumItemHeight());
        EXPECT_GE(standard, 15);
        list.SetItemHeight(0, 3);
        EXPECT_EQ(list.GetItemHeight(0), standard) << "no lower than its check";
        for (const APPMODE mode : {ONBOARD, STD, EFBFS, STD})
        {
            SetMode(mode, list);
            EXPECT_EQ(list.GetItemHeight(0), list.CalcMinimumItemHeight());
            EXPECT_GE(list.GetItemHeight(9), mode == STD ? standard : 34);
            EXPECT_EQ(list.GetCheck(2), 1);
            EXPECT_EQ(list.GetItemData(3), 8U);
        }
        EXPECT_EQ(list.GetItemHeight(0), standard);
        list.SetItemHeight(0, 40);
        list.SetFont(&CCustomListBox::GetOnBoardFont());
        EXPECT_EQ(list.GetItemHeight(0), 40);
        Remove(list);
    }
    // Born on-board, with a style that nobody draws.
    COnBoardUIGeneral::SetAppMode(EFB);
    auto& born = AddList(3, BS_AUTOCHECKBOX, LBS_NOINTEGRALHEIGHT);
    EXPECT_EQ(born.GetItemHeight(0), born.CalcMinimumItemHeight());
    CString text;
    born.GetText(2, text);
    EXPECT_STREQ(text, "Row 2");
    SetMode(STD, born);
    EXPECT_EQ(born.GetItemHeight(0), born.CalcMinimumItemHeight());
}

namespace {

class DrawnList : public CheckListForTests
{
public:
    bool moves = false;
    std::vector<ULONG_PTR> drawn;
    CRect textArea;

    CRect OnGetCheckPosition(CRect item, CRect check) override
    {
        return moves ? check + CPoint(item.Width() - check.Width() - 2, 0) : check;
    }
    void DrawItem(LPDRAWITEMSTRUCT draw) override
    {
        drawn.push_back(draw->itemData);
        textArea = draw->rcItem;
        CDC::FromHandle(draw->hDC)->SetPixel(draw->rcItem.right - 1, draw->rcItem.top,
                                             RGB(1, 2, 3));
    }
};

} // namespace

TEST_F(CheckListTest, EachStateHasItsPicture)
{
    for (const APPMODE mode : {STD, ONBOARD})
    {
        SCOPED_TRACE(APPMODE_NAMES[mode]);
        const ModeScope scope(mode);
        auto& list = AddList<DrawnList>(8, BS_AUTO3STATE);
        const int side = mode == STD ? 13 : 32;
        const int middle = side / 2;
        const auto box = [&](int row) {
            const CRect rect = list.RowRect(row);
            const int top = rect.top + std::max(0, (rect.Height() - side - 1) / 2) + 1;
            return ScreenPixels(
                CRect(ClientPoint(list, CPoint(rect.left + 1, top)), CSize(side, side + 1)));
        };
        const auto pixel = [&](int x, int y) {
            return ScreenPixels(CRect(ClientPoint(list, CPoint(x, y)), CSize(1, 1))).At(0, 0);
        };
        list.SetCheck(1, 1);
        list.SetCheck(2, 2);
        list.Enable(3, FALSE);
        list.SetCheck(5, 1);
        list.Enable(5, FALSE);
        PumpAll();
        const Pixels empty = box(0);
        EXPECT_EQ(empty.At(0, 0), RGB(93, 93, 93));
        EXPECT_EQ(empty.At(middle, middle), RGB(180, 180, 180));
        EXPECT_EQ(empty.At(side - 1, middle), RGB(220, 220, 220));
        EXPECT_EQ(empty.At(2, side), RGB(26, 26, 26)) << "of the ground, not of the picture";
        EXPECT_FALSE(empty == box(1));
        EXPECT_EQ(box(1).At(middle, middle), RGB(26, 26, 26));
        EXPECT_FALSE(box(1) == box(2));
        EXPECT_EQ(box(3).At(middle, middle), RGB(100, 100, 100));
        EXPECT_EQ(box(5).At(middle, middle), RGB(70, 70, 70));
        list.SetCurSel(0);
        EXPECT_EQ(box(0).At(2, side), ::GetSysColor(COLOR_HIGHLIGHT));
        list.SetCurSel(3);
        EXPECT_EQ(box(3).At(2, side), RGB(26, 26, 26)) << "its check cannot be changed";
        list.EnableWindow(FALSE);
        PumpAll();
        EXPECT_EQ(box(0).At(middle, middle), RGB(100, 100, 100));

        // What is left to an heir: the place of the check, and what lies beside it.
        EXPECT_EQ(list.textArea.left, side + 3);
        EXPECT_EQ(pixel(list.textArea.right - 1, list.textArea.top), RGB(1, 2, 3));
        list.SetItemData(6, 99);
        PumpAll();
        list.drawn.clear();
        list.moves = true;
        const CRect row = list.RowRect(6);
        list.RedrawWindow(row, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        EXPECT_THAT(list.drawn, ElementsAre(99U));
        EXPECT_EQ(pixel(row.right - middle - 1, row.CenterPoint().y), RGB(100, 100, 100));
        Remove(list);
    }
}

TEST_F(CheckListTest, WhatIsShownIsWhatARepaintWouldShow)
{
    for (const APPMODE mode : {STD, EFBFS})
    {
        const ModeScope scope(mode);
        auto& list = AddList(12);
        const Act<> steps[] = {
            {"checked", [&] { list.SetCheck(3, 1); }},
            {"disabled under the focus",
             [&] { list.SetFocus(), list.SetCurSel(2), list.Enable(2, FALSE); }},
            {"the focus went", [&] { Host().SetFocus(); }},
            {"shorter", [&] { list.DeleteString(0), list.DeleteString(5); }},
            {"scrolled", [&] { list.Fill(40), list.SetCheck(45, 1), list.SetTopIndex(20); }},
            {"empty", [&] { list.ResetContent(); }},
        };
        for (const auto& step : steps)
        {
            step.act();
            EXPECT_TRUE(ShowsWhatAPaintWould(list)) << step.name << " " << APPMODE_NAMES[mode];
        }
        Remove(list);
    }
}
