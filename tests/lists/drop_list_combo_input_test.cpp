// Real pointer and keyboard on a drop-list combo.

#include "lists/combo_for_tests.h"
#include "support/Scripted.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr UINT Told = CBN_SELCHANGE;

} // namespace

INSTANTIATE_TEST_SUITE_P(Modes, ComboInMode, testing::Values(STD, FULLSCREEN, ONBOARD, EFB, EFBFS),
                         [](const auto& info) { return std::string(APPMODE_NAMES[info.param]); });

TEST_P(ComboInMode, AClickOpensTheListTracksAndPicksOnRelease)
{
    auto& combo = AddCombo(20);
    const HWND active = ::GetActiveWindow();
    combo.Open();
    EXPECT_TRUE(combo.List().IsPopupVisible());
    EXPECT_EQ(::GetCapture(), combo.GetSafeHwnd());
    const CRect list = combo.ListRect();
    const int row = combo.List().GetItemHeight();
    EXPECT_EQ(ClientRectOf(combo.List()).Height(), CCustomComboLBox::DefaultMaxRows * row);

    for (const auto& [to, highlighted] :
         {std::pair(combo.RowPoint(3), 3), {combo.RowPoint(2), 2}, {Elsewhere, 2}})
    {
        MoveTo(to);
        EXPECT_EQ(combo.List().GetHighlightedRow(), highlighted);
        EXPECT_EQ(combo.GetCurSel(), 0);
    }
    Press(combo.RowPoint(2));
    EXPECT_TRUE(combo.IsExpanded());
    EXPECT_THAT(TakeCodes(combo), IsEmpty());
    Release();
    EXPECT_FALSE(combo.IsExpanded());
    EXPECT_STREQ(combo.GetSelString(), "Item 2");
    EXPECT_THAT(TakeCodes(combo), ElementsAre(Told));
    EXPECT_EQ(::GetFocus(), combo.GetSafeHwnd());
    EXPECT_EQ(::GetActiveWindow(), active);
    // The same in one movement, from the combo into the list.
    Drag(combo.Middle(), list.TopLeft() + CSize(20, 9 * row / 2));
    EXPECT_EQ(combo.GetCurSel(), 4);
    EXPECT_FALSE(combo.IsExpanded());
    Press(combo.Middle());
    combo.MoveWindow(50, 20, 200, 30); // its list comes to lie under the press
    Release();
    EXPECT_EQ(::GetCapture(), combo.GetSafeHwnd());
    combo.DoDropButton(); // by its host
    EXPECT_EQ(::GetCapture(), nullptr) << "the next click is another window's";
}

TEST_P(ComboInMode, TheListsBarScrollsAndAPressOnItPicksNothing)
{
    auto& combo = AddCombo(50);
    combo.Open();
    const CRect list = combo.ListRect();
    const int inBar = COnBoardUIGeneral::InOnBoardMode() ? 20 : 8;
    const CPoint down(list.right - inBar, list.bottom - inBar);
    for (int click = 1; click <= 2; ++click)
    {
        QueueClick(down); // the platform's bar runs a loop of its own
        EXPECT_EQ(combo.List().GetTopIndex(), click);
        ASSERT_TRUE(combo.IsExpanded());
        ASSERT_TRUE(PumpUntil([&] { return ::GetCapture() == combo.GetSafeHwnd(); }));
    }
    MoveTo(combo.RowPoint(5));
    const int top = combo.List().GetTopIndex();
    Wheel(-WHEEL_DELTA);
    EXPECT_GT(combo.List().GetTopIndex(), top);
    EXPECT_EQ(combo.List().GetHighlightedRow(), combo.List().GetTopIndex() + 3);
    EXPECT_THAT(TakeCodes(combo), IsEmpty());
    combo.ToggleDropList();
    // The wheel over a closed combo is not meant for it.
    MoveTo(combo.Middle());
    Wheel(-WHEEL_DELTA);
    EXPECT_EQ(combo.GetCurSel(), 0);
}

TEST_P(ComboInMode, KeysMoveTheSelectionAndTellEachTime)
{
    auto& combo = AddCombo(40, 5);
    combo.SetFocus();
    const int page = combo.List().GetActualListHeight() / combo.List().GetItemHeight();
    const std::pair<UINT, int> steps[] = {{VK_DOWN, 6}, {VK_RIGHT, 7},       {VK_UP, 6},
                                          {VK_LEFT, 5}, {VK_NEXT, 5 + page}, {VK_PRIOR, 5},
                                          {VK_END, 39}, {VK_NEXT, 39},       {VK_DOWN, 39},
                                          {VK_HOME, 0}, {VK_UP, 0},          {VK_PRIOR, 0}};
    for (const bool open : {false, true})
    {
        combo.SetCurSel(5);
        if (open)
        {
            TypeKey(VK_DOWN, VK_MENU);
            MoveTo(combo.RowPoint(8)); // the keys start from the selection all the same
        }
        for (const auto& [key, selected] : steps)
        {
            TypeKey(key);
            EXPECT_EQ(combo.GetCurSel(), selected) << key;
            EXPECT_THAT(TakeCodes(combo), ElementsAre(Told)) << key;
            EXPECT_EQ(combo.IsExpanded(), open);
            EXPECT_EQ(combo.List().GetHighlightedRow(), selected);
        }
    }
    TypeKey(VK_ESCAPE);
    TakeCodes(combo);
    combo.SetCurSel(-1);
    TypeKey(VK_DOWN);
    TypeKey(VK_END);
    TypeText("a");
    EXPECT_EQ(combo.GetCurSel(), -1);
    EXPECT_THAT(TakeCodes(combo), IsEmpty());
}

TEST_P(ComboInMode, AltDownOpensAndClosesEnterPicksEscapeDismisses)
{
    auto& combo = AddCombo(5, 1);
    combo.SetFocus();
    MoveTo(CPoint(combo.Middle().x, combo.Middle().y + 60)); // where rows will be
    const std::tuple<UINT, UINT, int> ends[] = {
        {VK_DOWN, VK_MENU, 1}, {VK_ESCAPE, 0, 1}, {VK_RETURN, 0, 3}};
    for (const auto& [key, held, selected] : ends)
    {
        TypeKey(VK_DOWN, VK_MENU);
        EXPECT_TRUE(combo.IsExpanded());
        EXPECT_THAT(TakeCodes(combo), IsEmpty());
        // The system repeats the pointer's place when a window appears under it.
        CPoint rest;
        ::GetCursorPos(&rest);
        combo.ScreenToClient(&rest);
        combo.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(rest.x, rest.y));
        EXPECT_EQ(combo.List().GetHighlightedRow(), 1) << "a pointer at rest means nothing";
        MoveTo(combo.RowPoint(2)); // where the pointer is not yet
        MoveTo(combo.RowPoint(3));
        TypeKey(key, held);
        EXPECT_FALSE(combo.IsExpanded());
        EXPECT_EQ(combo.GetCurSel(), selected);
        EXPECT_THAT(TakeCodes(combo), ElementsAre(Told));
    }
}

// Alt let go by itself is the menu's key, and a menu closes the list.
TEST_P(ComboInMode, AltDownOpensInWhicheverOrderTheKeysAreLetGo)
{
    CDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(ComboForm(), &Host()));
    auto* const combo = CCustomDropListCombo::FromWindow(::GetDlgItem(dialog, ComboId));
    combo->SetFocus();
    PumpAll();
    for (const UINT first : {VK_MENU, VK_DOWN})
    {
        const UINT second = first == VK_MENU ? VK_DOWN : VK_MENU;
        bool open = false;
        PlaySteps({[] { QueueKey(VK_MENU, true); }, [] { QueueKey(VK_DOWN, true); },
                   [] { QueueKey(VK_DOWN, true); }, // held
                   [first] { QueueKey(first, false); }, [second] { QueueKey(second, false); },
                   [&] {
                       open = combo->IsExpanded();
                       ::EndMenu();
                       TypeKey(VK_ESCAPE);
                   }});
        EXPECT_TRUE(open) << first;
        EXPECT_FALSE(combo->IsExpanded());
    }
    dialog.DestroyWindow();
}

TEST_P(ComboInMode, AListOpenedWithoutTheCaptureIsPickedFromAllTheSame)
{
    auto& combo = AddCombo(5);
    combo.DoDropButton();
    ASSERT_TRUE(combo.IsExpanded());
    EXPECT_EQ(::GetCapture(), nullptr);
    Press(combo.RowPoint(3));
    combo.AddString("below"); // the list grows, and not under the press
    EXPECT_THAT(TakeCodes(combo), IsEmpty());
    // The combo may end in what is told then, which ends the list in the middle of its click.
    const OnceTold end(Host(), Told, [&] {
        EXPECT_FALSE(combo.IsExpanded());
        EXPECT_EQ(combo.GetCurSel(), 3);
        Remove(combo);
    });
    Release();
    EXPECT_THAT(Host().CodesFrom(FirstId), ElementsAre(Told));
}

TEST_F(ComboTest, APressOnTheListsBarThatEndsElsewherePicksNothing)
{
    const ModeScope mode(ONBOARD);
    auto& combo = AddCombo(200);
    combo.Open();
    const CRect list = combo.ListRect();
    for (const bool rests : {false, true}) // among the rows, until the bar is told
    {
        Press(CPoint(list.right - 26, list.top + 60)); // the thumb stands at the top
        DragTo(CPoint(list.right - 26, list.top + 120));
        EXPECT_GT(combo.List().GetTopIndex(), 20);
        DragTo(CPoint(list.left + 20, list.top + 120));
        const auto back = [&] { return ::GetCapture() == combo.GetSafeHwnd(); };
        ASSERT_TRUE(!rests || PumpUntil(back));
        Release();
        EXPECT_TRUE(back());
        EXPECT_TRUE(combo.IsExpanded()) << "the thumb was dragged into the rows";
        combo.List().SetTopIndex(0);
    }

    Press(CPoint(list.right - 20, list.bottom - 20));
    ASSERT_TRUE(combo.List().IsBarHeld());
    COnBoardUIGeneral::SetAppMode(EFB);
    Release();
    EXPECT_EQ(::GetCapture(), combo.GetSafeHwnd()) << "the mode changed under the press";
    Click(Elsewhere);
    EXPECT_FALSE(combo.IsExpanded());
    EXPECT_EQ(combo.GetCurSel(), 0);
}

TEST_F(ComboTest, AnOpenListKeepsEnterAndEscapeFromTheDialog)
{
    DialogTemplate form = ComboForm();
    form.Add("BUTTON", "OK", WS_TABSTOP | BS_DEFPUSHBUTTON, CRect(5, 40, 60, 54), IDOK);
    for (const UINT key : {UINT(VK_RETURN), UINT(VK_ESCAPE)})
    {
        Scripted<CDialog> dialog;
        dialog.InitModalIndirect(form);
        const WPARAM command = key == VK_RETURN ? IDOK : IDCANCEL;
        bool kept = false;
        dialog.inLoop = [&] {
            auto* const combo = CCustomDropListCombo::FromWindow(::GetDlgItem(dialog, ComboId));
            const MessageLog log(dialog, {WM_COMMAND});
            combo->AddString("one");
            combo->SetFocus();
            // Also in a loop that asks only the platform.
            combo->ToggleDropList();
            MSG message = {combo->GetSafeHwnd(), WM_KEYDOWN, key, 1, 0, {}};
            EXPECT_TRUE(::IsDialogMessage(dialog, &message));
            EXPECT_FALSE(combo->IsExpanded());
            combo->SendMessage(WM_KEYUP, key, LPARAM(0xC0000001));
            TypeKey(VK_DOWN, VK_MENU);
            // Held down: the repeats are not for the dialog either.
            combo->PostMessage(WM_KEYDOWN, key, 1);
            combo->PostMessage(WM_KEYDOWN, key, 0x40000001);
            combo->PostMessage(WM_KEYUP, key, LPARAM(0xC0000001));
            PumpAll();
            kept = std::ranges::count(log.WParams(WM_COMMAND), command) == 0;
            EXPECT_FALSE(combo->IsExpanded());
            TypeKey(key); // closed, it leaves them to the dialog
        };
        EXPECT_EQ(dialog.DoModal(), int(command));
        EXPECT_TRUE(kept);
    }
}
