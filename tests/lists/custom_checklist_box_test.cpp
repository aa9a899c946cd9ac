// The check list's checks, its items' data, and the look of its rows.

#include "OnBoardUI.h"
#include "lists/check_list_for_tests.h"

using testing::ElementsAre;

// Checks and data -------------------------------------------------------------------------------

TEST_F(CheckListTest, ChecksBelongToTheirItems)
{
    auto& list = AddList(3, BS_AUTO3STATE);
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
    list.DestroyWindow();
    EXPECT_EQ(list.Records(), 0U);
}

TEST_F(CheckListTest, OddArgumentsHaveADefinedResult)
{
    auto& list = AddList(2, BS_3STATE);
    for (const int index : {-1, 2, INT_MAX})
    {
        list.SetCheck(index, 1);
        list.Enable(index, FALSE);
        EXPECT_EQ(list.GetCheck(index), 0) << index;
        EXPECT_FALSE(list.IsEnabled(index)) << index;
    }
    EXPECT_EQ(list.Records(), 0U);
    CCustomChecklistBox unborn;
    unborn.SetCheck(0, 1);
    EXPECT_EQ(unborn.GetCheck(0), 0);
    // A list that keeps no data has no checks and tells of none.
    auto& none = AddList(0, BS_AUTOCHECKBOX, LBS_NODATA | LBS_OWNERDRAWFIXED | LBS_NOTIFY);
    none.SendMessage(LB_SETCOUNT, 3);
    none.SetCheck(1, 1);
    Click(none.CheckPoint(1));
    TypeKey(VK_SPACE);
    EXPECT_THAT(none.Checks(), ElementsAre(0, 0, 0));
    EXPECT_EQ(Told(none), 0);
}

TEST_F(CheckListTest, AnOwnerMayUseTheListWhileItsItemsGo)
{
    auto& list = AddList(3);
    for (const int row : {0, 1, 2})
    {
        list.SetItemData(row, DWORD_PTR(row) + 1);
    }
    std::vector<ULONG_PTR> deleted;
    Host().OnMessage(WM_DELETEITEM, [&](ToldMessage& told) {
        const auto* item = reinterpret_cast<DELETEITEMSTRUCT*>(told.lParam);
        deleted.push_back(item->itemData);
        list.GetCheck(int(item->itemID));
        list.GetItemData(0);
        list.SetCheck(0, 1);
    });
    list.DeleteString(1);
    EXPECT_THAT(deleted, ElementsAre(2U));
    list.ResetContent();
    EXPECT_THAT(deleted, testing::UnorderedElementsAre(1U, 2U, 3U));
    list.Fill(1);
    EXPECT_EQ(list.GetItemData(0), 0U);
}

// As the vendor documents its list box; Wine's knows no data for every item.
class AsDocumented : public CheckListForTests
{
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != LB_SETITEMDATA || int(wParam) != -1)
        {
            return CheckListForTests::DefWindowProc(message, wParam, lParam);
        }
        for (int row = 0; row < GetCount(); ++row)
        {
            CheckListForTests::DefWindowProc(message, WPARAM(row), lParam);
        }
        return LB_OKAY;
    }
};

TEST_F(CheckListTest, DataForEveryItemTakesNoCheckAway)
{
    auto& list = Add<AsDocumented>(CRect(20, 20, 320, 320), CheckListStyle);
    list.Fill(3);
    list.SetCheck(1, 1);
    list.Enable(2, FALSE);
    list.SetItemData(-1, 8);
    EXPECT_THAT(list.Checks(), ElementsAre(0, 1, 0));
    EXPECT_FALSE(list.IsEnabled(2));
    for (const int row : {0, 1, 2})
    {
        EXPECT_EQ(list.GetItemData(row), 8U);
    }
}

// Rows ------------------------------------------------------------------------------------------

TEST_F(CheckListTest, APointFindsItsRowAndCheck)
{
    using Hit = std::pair<int, int>;
    const auto hit = [](CheckListForTests& list, CPoint point) {
        int onCheck = -1;
        const int row = list.CheckFromPoint(point, onCheck);
        return Hit(row, onCheck);
    };
    for (const DWORD style : {CheckListStyle, VariableCheckListStyle})
    {
        auto& list = AddList(30, BS_AUTOCHECKBOX, style);
        const int height = list.GetItemHeight(0);
        EXPECT_EQ(hit(list, CPoint(14, 2 * height)), Hit(2, 1)); // the check is 13 wide
        EXPECT_EQ(hit(list, CPoint(15, 2 * height - 1)), Hit(1, 0));
        EXPECT_EQ(hit(list, CPoint(5, -1)), Hit(-1, 0));
        // Scrolled to the end, a point below the last row is on no row either.
        list.MoveWindow(20, 20, 300, 5 * height + 7);
        list.SetTopIndex(29);
        EXPECT_EQ(hit(list, CPoint(5, height)), Hit(list.GetTopIndex() + 1, 1));
        EXPECT_EQ(hit(list, CPoint(5, 5 * height + 1)).first, -1);
        list.ResetContent();
        EXPECT_EQ(hit(list, CPoint(5, 5)), Hit(-1, 0));
        Remove(list);
    }
    auto& columns = AddList(60, BS_AUTOCHECKBOX, CheckListStyle | LBS_MULTICOLUMN | WS_HSCROLL);
    const CPoint second = columns.RowRect(30).TopLeft();
    EXPECT_EQ(hit(columns, second + CPoint(3, 3)), Hit(30, 1));
    EXPECT_EQ(hit(columns, second + CPoint(50, 3)), Hit(30, 0));
}

TEST_F(CheckListTest, RowsAreHighEnoughInEveryModeAndKeepTheirChecks)
{
    for (const DWORD style : {CheckListStyle, VariableCheckListStyle})
    {
        auto& list = AddList(10, BS_AUTOCHECKBOX, style);
        list.SetCheck(2, 1);
        list.SetItemData(3, 8);
        const int standard = list.GetItemHeight(0);
        EXPECT_GE(standard, 15);
        list.SetItemHeight(0, 3);
        EXPECT_EQ(list.GetItemHeight(0), standard) << "no lower than its check";
        for (const APPMODE mode : {ONBOARD, STD, EFBFS, STD})
        {
            SetMode(mode, list);
            EXPECT_EQ(list.GetItemHeight(0), list.CalcMinimumItemHeight());
            EXPECT_GE(list.GetItemHeight(9), mode == STD ? standard : 52);
            EXPECT_EQ(list.GetCheck(2), 1);
            EXPECT_EQ(list.GetItemData(3), 8U);
        }
        list.SetItemHeight(0, 40);
        list.SetFont(&CCustomListBox::GetOnBoardFont());
        EXPECT_EQ(list.GetItemHeight(0), 40);
        Remove(list);
    }
    // Born on-board, with a style that nobody draws.
    COnBoardUIGeneral::SetAppMode(EFB);
    auto& born = AddList(3, BS_AUTOCHECKBOX, LBS_NOINTEGRALHEIGHT);
    EXPECT_EQ(born.GetItemHeight(0), born.CalcMinimumItemHeight());
    EXPECT_NE(born.GetStyle() & LBS_HASSTRINGS, 0U);
    // One that was filled before: it gets its bar here and the platform's again.
    auto& plain = Add<CListBox>(CRect(20, 20, 220, 220), CheckListStyle);
    plain.AddString("one");
    plain.SetItemData(0, 4711);
    AddRows(plain, 60);
    CheckListForTests taker;
    ASSERT_TRUE(taker.SubclassWindow(plain.Detach()));
    taker.SetCheck(0, 1);
    Repaint(taker);
    EXPECT_EQ(taker.GetItemData(0), 4711U);
    EXPECT_GE(taker.GetItemHeight(0), taker.CalcMinimumItemHeight());
    EXPECT_TRUE(taker.m_vBarNeeded);
    EXPECT_EQ(taker.GetStyle() & WS_VSCROLL, 0U);
    SetMode(STD, taker);
    EXPECT_NE(taker.GetStyle() & WS_VSCROLL, 0U);
    taker.DestroyWindow();
}

TEST_F(CheckListTest, AParentThatMeasuresRowsMakesThemNoLowerAndTheyGetTheirBar)
{
    Host().OnMessage(WM_MEASUREITEM, [](ToldMessage& told) {
        About<MEASUREITEMSTRUCT>(told).itemHeight = 16;
        told.answer = TRUE;
    });
    for (const APPMODE born : {STD, ONBOARD})
    {
        COnBoardUIGeneral::SetAppMode(born);
        auto& list = Add<CheckListForTests>(CRect(20, 20, 320, 320), CheckListStyle);
        list.Fill(10);
        PumpAll();
        COnBoardUIGeneral::SetAppMode(ONBOARD);
        Repaint(list);
        EXPECT_GE(list.GetItemHeight(0), 52);
        EXPECT_TRUE(list.m_vBarNeeded);
        Remove(list);
    }
}

namespace {

struct LargeTexts : CheckListForTests
{
    static void Scale(double factor) { CreateOnBoardFont(m_OBFont, factor, 0, 400); }
};

} // namespace

TEST_F(CheckListTest, RowsAreAsHighAsTheirTextAndThoseOfVariableHeightAsTheCheck)
{
    COnBoardUIGeneral::SetAppMode(ONBOARD);
    auto& checks = Add<LargeTexts>(CRect(20, 20, 320, 320), CheckListStyle);
    auto& variable = Add<LargeTexts>(CRect(20, 20, 320, 320), VariableCheckListStyle);
    const int check = variable.CalcMinimumItemHeight();
    LargeTexts::Scale(5);
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    dc.SelectObject(&CCustomChecklistBox::GetOnBoardFont());
    EXPECT_EQ(checks.CalcMinimumItemHeight(), dc.GetTextExtent("Aj", 2).cy);
    EXPECT_EQ(variable.CalcMinimumItemHeight(), check) << "whatever its texts";
    dc.SelectStockObject(SYSTEM_FONT);
    LargeTexts::Scale(1.7);
}

namespace {

// Has its checks at the right, and draws next to nothing itself.
class DrawnList : public CheckListForTests
{
public:
    ULONG_PTR drawn = 0;

    CRect OnGetCheckPosition(CRect item, CRect check) override
    {
        return check + CPoint(item.Width() - check.Width() - 2, 0);
    }
    void DrawItem(LPDRAWITEMSTRUCT draw) override
    {
        drawn = draw->itemData;
        CDC::FromHandle(draw->hDC)->SetPixel(CRect(draw->rcItem).TopLeft(), RGB(1, 2, 3));
    }
};

} // namespace

TEST_P(CheckListInMode, EachStateHasItsPicture)
{
    auto& list = AddList(6, BS_AUTO3STATE);
    const int side = GetParam() == STD ? 13 : 50;
    const int middle = side / 2;
    const auto box = [&](int row) {
        const CRect rect = list.RowRect(row);
        const int top = rect.top + std::max(0, (rect.Height() - side - 1) / 2) + 1;
        return ScreenPixels(
            CRect(ClientPoint(list, CPoint(rect.left + 1, top)), CSize(side, side + 1)));
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
    EXPECT_EQ(empty.At(2, side), RGB(26, 26, 26)) << "of the ground, not of the picture";
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
    Remove(list);

    // What is left to an heir: the place of the check, and what lies beside it.
    auto& drawn = AddList<DrawnList>(1, BS_AUTO3STATE);
    drawn.SetItemData(0, 99);
    Repaint(drawn);
    EXPECT_EQ(drawn.drawn, 99U);
    const CRect row = drawn.RowRect(0);
    const Pixels seen = ScreenPixels(row + ClientPoint(drawn, CPoint(0, 0)));
    EXPECT_EQ(seen.At(side + 3, 0), RGB(1, 2, 3));
    EXPECT_EQ(seen.At(row.Width() - middle - 1, row.Height() / 2), RGB(180, 180, 180));
}
