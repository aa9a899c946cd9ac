#include "lists/CheckListLayout.h"
#include "lists/check_list_for_tests.h"
#include "support/DialogTemplate.h"

#include "CustomDialog.h"

#include <gmock/gmock.h>

#include <climits>

using testing::ElementsAre;

// Checks and records ----------------------------------------------------------------------------

TEST_F(CheckListTest, ChecksBelongToTheirItems)
{
    auto& list = AddList(3, BS_AUTO3STATE);
    EXPECT_THAT(list.Checks(), ElementsAre(0, 0, 0));
    EXPECT_TRUE(list.IsEnabled(1));
    EXPECT_EQ(list.Records(), 0U);
    list.SetCheck(0, 1);
    list.SetCheck(2, 2);
    list.Enable(1, FALSE);
    list.InsertString(0, "First");
    list.DeleteString(1);
    EXPECT_THAT(list.Checks(), ElementsAre(0, 0, 2));
    EXPECT_FALSE(list.IsEnabled(1));
    list.Enable(1);
    EXPECT_TRUE(list.IsEnabled(1));
    // A state that the style does not have stays where it was and goes on from its last one.
    list.SetCheckStyle(BS_AUTOCHECKBOX);
    list.SetCheck(0, 2);
    EXPECT_THAT(list.Checks(), ElementsAre(0, 0, 2));
    EXPECT_EQ(Told(list), 0) << "only the user's changes are told";
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
    unborn.SetCheck(0, 2);
    EXPECT_EQ(unborn.GetCheck(0), 0);

    auto& noData = AddList(0, BS_AUTOCHECKBOX, LBS_NODATA | LBS_OWNERDRAWFIXED);
    noData.SendMessage(LB_SETCOUNT, 5);
    noData.SetCheck(1, 1);
    noData.SetItemData(1, 3);
    EXPECT_EQ(noData.Records(), 0U);
}

TEST_F(CheckListTest, RecordsGoWithTheirItems)
{
    auto& list = AddList(10);
    const auto checkAll = [&] {
        for (int row = 0; row < list.GetCount(); ++row)
        {
            list.SetCheck(row, 1);
        }
    };
    checkAll();
    EXPECT_EQ(list.Records(), 10U);
    list.DeleteString(4);
    list.DeleteString(0);
    list.DeleteString(40);
    EXPECT_EQ(list.Records(), 8U);
    list.ResetContent();
    EXPECT_EQ(list.Records(), 0U);
    list.Fill(5);
    checkAll();
    EXPECT_EQ(list.Records(), 5U);
    list.DestroyWindow();
    EXPECT_EQ(list.Records(), 0U);
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
        told.push_back(compare->itemData1);
        told.push_back(compare->itemData2);
        const auto a = compare->itemData1;
        const auto b = compare->itemData2;
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
        send(LB_GETITEMDATA, 1, 0);
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
        send(LB_DELETESTRING, 9, 0);
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
         {DWORD(LBS_HASSTRINGS), DWORD(LBS_HASSTRINGS | LBS_SORT), DWORD(0), DWORD(LBS_SORT)})
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
    auto& window = Add<CWnd>(CRect(0, 0, 10, 10)); // the list's object comes later
    const HWND plain = ::CreateWindow("ListBox", "", CheckListStyle | WS_CHILD | WS_VISIBLE, 20, 20,
                                      200, 200, Host(), nullptr, nullptr, nullptr);
    ::SendMessage(plain, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("one"));
    ::SendMessage(plain, LB_SETITEMDATA, 0, 4711);
    CheckListForTests list;
    ASSERT_TRUE(list.SubclassWindow(plain));
    EXPECT_EQ(list.GetItemData(0), 4711U);
    list.SetCheck(0, 1);
    EXPECT_EQ(list.GetItemData(0), 4711U);
    PumpAll();
    EXPECT_GE(list.GetItemHeight(0), list.CalcMinimumItemHeight());
    ::DestroyWindow(plain);
    EXPECT_EQ(list.Records(), 0U);
    Remove(window);
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
    for (const DWORD kind : {LBS_OWNERDRAWFIXED, LBS_OWNERDRAWVARIABLE})
    {
        auto& list =
            AddList(30, BS_AUTOCHECKBOX, WS_VSCROLL | LBS_NOINTEGRALHEIGHT | LBS_HASSTRINGS | kind);
        const int height = list.GetItemHeight(0);
        EXPECT_EQ(hit(list, 0, 0), Hit(0, 1));
        EXPECT_EQ(hit(list, 14, 2 * height), Hit(2, 1)); // the check is 13 wide
        EXPECT_EQ(hit(list, 15, 2 * height - 1), Hit(1, 0));
        EXPECT_EQ(hit(list, -1, 5).second, 0);
        EXPECT_EQ(hit(list, 5, -1), Hit(-1, 0));
        list.SetTopIndex(10);
        EXPECT_EQ(hit(list, 5, height), Hit(11, 1));
        while (list.GetCount() > 3)
        {
            list.DeleteString(3);
        }
        EXPECT_EQ(hit(list, 5, 3 * height - 1), Hit(2, 1));
        EXPECT_EQ(hit(list, 5, 3 * height), Hit(-1, 0));
        list.ResetContent();
        EXPECT_EQ(hit(list, 5, 5), Hit(-1, 0));
        Remove(list);
    }
    // Scrolled to the end, a point below the last row is on no row either.
    auto& list = AddList(30);
    list.MoveWindow(20, 20, 300, 5 * list.GetItemHeight(0) + 7);
    list.SetTopIndex(29);
    EXPECT_EQ(hit(list, 5, 5 * list.GetItemHeight(0) + 1).first, -1);
    auto& columns = AddList(60, BS_AUTOCHECKBOX, CheckListStyle | LBS_MULTICOLUMN | WS_HSCROLL);
    columns.SetColumnWidth(100);
    const CRect second = columns.RowRect(columns.GetCount() / 2);
    ASSERT_GE(second.left, 100);
    EXPECT_EQ(hit(columns, second.left + 3, second.top + 3), Hit(30, 1));
    EXPECT_EQ(hit(columns, second.left + 50, second.top + 3), Hit(30, 0));
}

TEST(CheckListLayout, TheCheckLiesInTheMiddleOfItsRow)
{
    using lists::CheckPlace;
    EXPECT_EQ(CheckPlace(CRect(0, 0, 100, 34), CSize(32, 33)), CRect(1, 1, 33, 34));
    EXPECT_EQ(CheckPlace(CRect(10, 40, 100, 80), CSize(13, 14)), CRect(11, 54, 24, 68));
    EXPECT_EQ(CheckPlace(CRect(0, 20, 100, 26), CSize(13, 14)), CRect(1, 21, 14, 35));
    EXPECT_EQ(lists::NextCheck(3, BS_AUTO3STATE), 0);
    EXPECT_EQ(lists::NextCheck(2, BS_AUTOCHECKBOX), 0);
}

TEST_F(CheckListTest, RowsAreHighEnoughForCheckAndTextInEveryMode)
{
    for (const DWORD kind : {LBS_OWNERDRAWFIXED, LBS_OWNERDRAWVARIABLE})
    {
        auto& list =
            AddList(10, BS_AUTOCHECKBOX, WS_VSCROLL | LBS_NOINTEGRALHEIGHT | LBS_HASSTRINGS | kind);
        const int standard = list.GetItemHeight(0);
        EXPECT_EQ(standard, list.CalcMinimumItemHeight());
        EXPECT_GE(standard, 15);
        list.SetItemHeight(0, 3);
        EXPECT_EQ(list.GetItemHeight(0), standard) << "no lower than its check";
        {
            const ModeScope scope(ONBOARD);
            list.RedrawWindow(); // its first paint in the mode
            EXPECT_EQ(list.GetItemHeight(0), list.CalcMinimumItemHeight());
            EXPECT_GE(list.GetItemHeight(9), 34);
        }
        list.RedrawWindow();
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
    COnBoardUIGeneral::SetAppMode(STD);
    born.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
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
        const ModeScope scope(mode);
        auto& list = AddList<DrawnList>(8, BS_AUTO3STATE);
        const int side = mode == STD ? 13 : 32;
        const auto box = [&](int row) {
            const CRect rect = list.RowRect(row);
            const int top = rect.top + std::max(0, (rect.Height() - side - 1) / 2) + 1;
            return ScreenPixels(
                CRect(ClientPoint(list, CPoint(rect.left + 1, top)), CSize(side, side + 1)));
        };
        list.SetCheck(1, 1);
        list.SetCheck(2, 2);
        list.Enable(3, FALSE);
        list.SetCheck(4, 1);
        list.SetCheck(5, 1);
        list.Enable(5, FALSE);
        PumpAll();
        const Pixels empty = box(0);
        EXPECT_EQ(empty.At(0, 0), RGB(93, 93, 93));
        EXPECT_EQ(empty.At(side / 2, side / 2), RGB(180, 180, 180));
        EXPECT_EQ(empty.At(side - 1, side / 2), RGB(220, 220, 220));
        EXPECT_EQ(empty.At(2, side), RGB(26, 26, 26)) << "of the ground, not of the picture";
        EXPECT_EQ(empty, box(7));
        EXPECT_FALSE(empty == box(1));
        EXPECT_EQ(box(1).At(side / 2, side / 2), RGB(26, 26, 26));
        EXPECT_FALSE(box(1) == box(2));
        EXPECT_EQ(box(1), box(4));
        EXPECT_EQ(box(3).At(side / 2, side / 2), RGB(100, 100, 100));
        EXPECT_EQ(box(5).At(side / 2, side / 2), RGB(70, 70, 70));
        list.SetCurSel(0);
        EXPECT_EQ(box(0).At(2, side), ::GetSysColor(COLOR_HIGHLIGHT));
        list.SetCurSel(3);
        EXPECT_EQ(box(3).At(2, side), RGB(26, 26, 26)) << "its check cannot be changed";
        list.EnableWindow(FALSE);
        PumpAll();
        EXPECT_EQ(box(0).At(side / 2, side / 2), RGB(100, 100, 100));

        // What is left to an heir: the place of the check, and what lies beside it.
        EXPECT_EQ(list.textArea.left, side + 3);
        EXPECT_EQ(ScreenPixels(
                      CRect(ClientPoint(list, CPoint(list.textArea.right - 1, list.textArea.top)),
                            CSize(1, 1)))
                      .At(0, 0),
                  RGB(1, 2, 3));
        list.SetItemData(6, 99);
        PumpAll();
        list.drawn.clear();
        list.moves = true;
        list.RedrawWindow(list.RowRect(6), nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        EXPECT_THAT(list.drawn, ElementsAre(99U));
        const CRect row = list.RowRect(6);
        EXPECT_EQ(ScreenPixels(CRect(ClientPoint(list, CPoint(row.right - side / 2 - 1,
                                                              row.CenterPoint().y)),
                                     CSize(1, 1)))
                      .At(0, 0),
                  RGB(100, 100, 100));
        Remove(list);
    }
}

TEST_F(CheckListTest, WhatIsShownIsWhatARepaintWouldShow)
{
    for (const APPMODE mode : {STD, EFBFS})
    {
        const ModeScope scope(mode);
        auto& list = AddList(12);
        const auto settled = [&](const char* when) {
            PumpAll();
            const Pixels seen = WindowPixels(list);
            list.RedrawWindow(nullptr, nullptr,
                              RDW_FRAME | RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
            EXPECT_TRUE(seen == WindowPixels(list)) << when << " " << APPMODE_NAMES[mode];
        };
        list.SetCheck(3, 1);
        settled("checked");
        list.SetFocus();
        list.SetCurSel(2);
        list.Enable(2, FALSE);
        settled("disabled under the focus");
        Host().SetFocus();
        settled("the focus went");
        list.DeleteString(0);
        list.DeleteString(5);
        settled("shorter");
        list.Fill(40);
        list.SetCheck(45, 1);
        list.SetTopIndex(20);
        settled("scrolled");
        list.ResetContent();
        settled("empty");
        Remove(list);
    }
}

TEST_F(CheckListTest, TemplateListsFollowTheirDialog)
{
    class ChecksDialog : public CCustomDialog
    {
    public:
        ChecksDialog()
            : CCustomDialog(0U, nullptr)
        {}
        CheckListForTests list;

    protected:
        BOOL OnInitDialog() override
        {
            list.SubclassDlgItem(101, this);
            return CCustomDialog::OnInitDialog();
        }
    };
    DialogTemplate form(CRect(0, 0, 200, 160), WS_POPUP | WS_CAPTION | WS_VISIBLE);
    form.Add("ListBox", "", CheckListStyle | WS_BORDER, CRect(10, 10, 110, 100), 101);
    for (const APPMODE born : {STD, ONBOARD})
    {
        COnBoardUIGeneral::SetAppMode(born);
        ChecksDialog dialog;
        ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
        dialog.list.Fill(30);
        dialog.list.SetCheck(2, 1);
        dialog.list.SetItemData(3, 8);
        for (const APPMODE mode : {ONBOARD, STD, EFBFS, STD})
        {
            COnBoardUIGeneral::SetAppMode(mode);
            PumpAll();
            const int least = dialog.list.CalcMinimumItemHeight();
            EXPECT_GE(dialog.list.GetItemHeight(0), least) << APPMODE_NAMES[mode];
            EXPECT_LE(dialog.list.GetItemHeight(0), least + 2) << APPMODE_NAMES[mode];
            EXPECT_EQ(dialog.list.GetCheck(2), 1);
            EXPECT_EQ(dialog.list.GetItemData(3), 8U);
        }
        dialog.DestroyWindow();
    }
    COnBoardUIGeneral::SetAppMode(STD);
}

TEST_F(CheckListOnBoard, ListsLeaveNoGraphicsObjectsBehind)
{
    const auto live = [this] {
        auto& list = AddList(40);
        list.SetCheck(1, 1);
        list.Enable(2, FALSE);
        PumpAll();
        Remove(list);
    };
    for (int turn = 0; turn < 5; ++turn)
    {
        live();
    }
    const int before = GraphicsObjects();
    for (int turn = 0; turn < 20; ++turn)
    {
        live();
    }
    EXPECT_EQ(GraphicsObjects(), before);
}
