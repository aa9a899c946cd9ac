// What hosts and derived classes know of the lists: the sizes of rows, the wait that a derived
// class may start, and the combo's window class.

#include "CustomDropListCombo.h"
#include "OnBoardUI.h"
#include "listctrl/list_for_tests.h"
#include "lists/check_list_for_tests.h"

namespace {

struct LargeTexts : CheckListForTests
{
    static void Scale(double factor) { CreateOnBoardFont(m_OBFont, factor, 0, 400); }
};

} // namespace

TEST_F(ListBoxOnBoard, RowsAreHalfAgainAsHighAsTheirTextAndThoseOfVariableChecksAsTheCheck)
{
    auto& list = AddList(1, WideListStyle | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS);
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    dc.SelectObject(&CCustomListBox::GetOnBoardFont());
    const CSize text = dc.GetTextExtent("Row 0", 5);
    EXPECT_EQ(list.GetEntryHeight("Row 0"), int(text.cy * 1.5));
    EXPECT_EQ(list.GetEntryWidth(0), text.cx);
    // By their own rows the platform's lists go: another font, another width.
    EXPECT_LT(AddList(1, WideListStyle).GetEntryWidth(0), text.cx);

    auto& checks = Add<LargeTexts>(CRect(20, 20, 320, 320), CheckListStyle);
    auto& variable = Add<LargeTexts>(CRect(20, 20, 320, 320), VariableCheckListStyle);
    const int check = variable.CalcMinimumItemHeight();
    LargeTexts::Scale(5);
    dc.SelectObject(&CCustomChecklistBox::GetOnBoardFont());
    EXPECT_EQ(checks.CalcMinimumItemHeight(), dc.GetTextExtent("Aj", 2).cy);
    EXPECT_EQ(variable.CalcMinimumItemHeight(), check) << "whatever its texts";
    dc.SelectStockObject(SYSTEM_FONT);
    LargeTexts::Scale(1.7);
}

// One line, and from then on the repeats.
TEST_F(ListBoxOnBoard, ADerivedClassMayStartTheInitialWait)
{
    auto& list = AddList(500);
    Press(list.PartPoint(parts::Second));
    list.KillTimer(CCustomListBox::m_timerid);
    const int top = list.GetTopIndex();
    list.SetTimer(CCustomListBox::m_timerInitialWaitID, 10, nullptr);
    MessageLog log(list, {WM_TIMER});
    ASSERT_TRUE(PumpUntil([&] { return log.Count(WM_TIMER) >= 3; }));
    Release();
    EXPECT_EQ(log.WParams(WM_TIMER), (std::vector<WPARAM>{104, 101, 101}));
    EXPECT_EQ(list.GetTopIndex(), top + 3);
    list.SendMessage(WM_TIMER, CCustomListBox::m_timerInitialWaitID);
    EXPECT_EQ(list.GetTopIndex(), top + 3) << "the button is up";
}

TEST_F(WindowTest, TheCombosWindowClassServesEveryModule)
{
    ASSERT_TRUE(CCustomDropListCombo::RegisterWndClass(nullptr));
    EXPECT_TRUE(CCustomDropListCombo::RegisterWndClass(nullptr)) << "again";
    WNDCLASS known = {};
    const HMODULE another = ::GetModuleHandle("user32.dll");
    EXPECT_TRUE(::GetClassInfo(another, "CCUSTOMDROPLISTCOMBO", &known));
}
