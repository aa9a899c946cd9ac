// What all buttons share: following a press, the steps of a click, and every way of losing either.

#include "buttons/buttons_for_tests.h"

using testing::IsEmpty;
using Steps = std::vector<std::string>;

TEST_F(ButtonOnBoard, AClickRunsItsStepsInOrder)
{
    auto& push = Add<TestPush>(ButtonPlace, 0, "Push", ButtonId);
    Host().hook = [&](ToldMessage& told) {
        push.steps.push_back(push.m_tracking ? "told, tracking" : "told");
        EXPECT_EQ(told.lParam, LPARAM(LOWORD(reinterpret_cast<UINT_PTR>(push.m_hWnd))));
        EXPECT_EQ(told.wParam, WPARAM(MAKELONG(ButtonId, BN_CLICKED)));
    };
    Press(push.Middle());
    EXPECT_EQ(::GetFocus(), push.m_hWnd);
    EXPECT_EQ(push.SendMessage(BM_GETSTATE), 1);
    Release();
    EXPECT_EQ(push.steps, Steps({"click, captured", "told, tracking", "group, free"}));
    EXPECT_EQ(push.SendMessage(BM_GETSTATE), 0) << "the focus is no part of the state";

    // Fast enough to be a double click: a press like any other.
    MessageLog log(push, {WM_LBUTTONDBLCLK});
    Click(push.Middle());
    Click(push.Middle());
    EXPECT_GE(log.Count(WM_LBUTTONDBLCLK), 1);
    for (const UINT key : {VK_SPACE, VK_SHIFT, int('A')})
    {
        TypeKey(key);
    }
    EXPECT_EQ(Host().Count(WM_COMMAND), 4) << "the space bar clicks, once";
    push.SendMessage(WM_KEYDOWN, VK_SPACE, 1);
    const MessageLog held(push, {WM_CAPTURECHANGED});
    push.SendMessage(WM_KEYDOWN, VK_SPACE, 0x40000001);
    EXPECT_EQ(held.Count(WM_CAPTURECHANGED), 0) << "held, it is not released";
    EXPECT_TRUE(push.m_pressed);
    push.SendMessage(WM_KEYUP, VK_SPACE, LPARAM(0xC0000001));

    // Without a press the message clicks as well, and takes the focus before the parent is told.
    auto& other = Add<TestPush>(ButtonPlace + CPoint(0, 100), 0, "Other");
    Host().hook = [&](ToldMessage&) { EXPECT_TRUE(other.m_focused); };
    other.SendMessage(BM_CLICK);
    EXPECT_EQ(Host().Count(WM_COMMAND), 6);
}

TEST_F(ButtonOnBoard, APressDraggedOffIsNoClick)
{
    auto& push = Add<TestPush>(ButtonPlace, 0, "Push");
    Press(push.Middle());
    const CRect window = WindowRectOf(push);
    MoveTo(CPoint(window.right - 1, window.bottom - 1));
    EXPECT_TRUE(push.m_pressed);
    const Pixels held = WindowPixels(push);
    MoveTo(CPoint(window.right, window.bottom - 1)); // the first pixel beyond
    EXPECT_FALSE(push.m_pressed);
    push.Invalidate(FALSE);
    EXPECT_EQ(Settled(push), held) << "a held button looks pressed wherever the pointer is";
    Release();
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_TRUE(push.steps.empty());

    // Back on it in time, it is a click.
    Press(push.Middle());
    DragTo(CPoint(window.right + 30, window.bottom + 30));
    DragTo(push.Middle());
    Release();
    EXPECT_EQ(Host().Count(WM_COMMAND), 1);

    // One that comes while another window has the capture takes nothing away.
    Host().SetFocus();
    Host().SetCapture();
    push.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_EQ(::GetFocus(), Host().GetSafeHwnd());
    ::ReleaseCapture();
    TestPush().StartTracking(); // without a window
    EXPECT_EQ(::GetFocus(), Host().GetSafeHwnd());
}

TEST_F(ButtonOnBoard, APressThatIsCutOffLeavesNothingHeld)
{
    auto& other = Add<CEdit>(CRect(20, 300, 120, 320));
    const Act<TestCheckBox&> cases[] = {
        {"capture released", [](auto&) { ::ReleaseCapture(); }},
        {"capture taken", [&](auto&) { other.SetCapture(); }},
        {"hidden", [](auto& button) { button.ShowWindow(SW_HIDE); }},
        {"hidden without a word", [](auto& button) { button.ModifyStyle(WS_VISIBLE, 0); }},
        {"disabled", [](auto& button) { button.EnableWindow(FALSE); }},
        {"parent hidden", [&](auto&) { Host().ShowWindow(SW_HIDE); }},
        {"parent disabled", [&](auto&) { Host().EnableWindow(FALSE); }},
        {"focus moved", [&](auto&) { other.SetFocus(); }},
        {"mode left", [](auto&) { COnBoardUIGeneral::SetAppMode(STD); }},
        {"another on-board mode", [](auto&) { COnBoardUIGeneral::SetAppMode(EFB); }},
        {"cancelled", [](auto& button) { button.SendMessage(WM_CANCELMODE); }},
        {"checked by message", [](auto& button) { button.SetCheck(BST_UNCHECKED); }},
        {"state set", [](auto& button) { button.SetState(FALSE); }},
        {"destroyed", [](auto& button) { button.DestroyWindow(); }},
    };
    for (const auto& [what, cut] : cases)
    {
        SCOPED_TRACE(what);
        auto& button = Add<TestCheckBox>(ButtonPlace, 0, "Cut off", ButtonId);
        const HWND window = button.m_hWnd;
        Press(button.Middle());
        ASSERT_TRUE(button.m_tracking);
        cut(button);
        MoveTo(CPoint(130, 110)); // still on it; the next message of any kind shows another mode
        EXPECT_NE(::GetCapture(), window);
        EXPECT_FALSE(button.m_tracking);
        EXPECT_EQ(button.GetState(), 0U);
        Release();
        ::ReleaseCapture();
        COnBoardUIGeneral::SetAppMode(ONBOARD);
        EXPECT_THAT(Host().CodesFrom(ButtonId), IsEmpty());
        EXPECT_EQ(button.m_check, BST_UNCHECKED);
        Host().EnableWindow(TRUE);
        Host().ShowWindow(SW_SHOW);
        Remove(button);
    }
}

TEST_F(ButtonOnBoard, AFormThatIsRedrawnInOneGoEndsNoPress)
{
    auto& box = Add<TestCheckBox>(ButtonPlace, 0, "Direct", ButtonId);
    Press(box.Middle());
    Host().SetRedraw(FALSE);
    box.SetWindowText("Direct TOBAK");
    EXPECT_EQ(Host().IsDlgButtonChecked(ButtonId), UINT(BST_UNCHECKED));
    Host().SetRedraw(TRUE);
    Repaint(Host());
    Release();
    EXPECT_EQ(box.GetCheck(), BST_CHECKED);

    Press(box.Middle());
    COnBoardUIGeneral::SetAppMode(STD);
    Release();
    EXPECT_FALSE(box.m_mouseDown) << "in whichever mode it comes up";
}

TEST_F(WindowTest, TheStandardModeHasItsOwnCheckAndLook)
{
    auto& ours = Add<TestCheckBox>(ButtonPlace, BS_AUTOCHECKBOX, "Box");
    Click(ours.Middle());
    EXPECT_EQ(ours.steps, Steps{"group, free"});

    // Each kind of mode has its own check state; a new mode shows with the next paint.
    COnBoardUIGeneral::SetAppMode(EFB);
    EXPECT_EQ(ours.GetCheck(), BST_UNCHECKED);
    Host().AlsoRecord({WM_CTLCOLORBTN, WM_CTLCOLORSTATIC});
    Host().Forget();
    ours.SetWindowText("Other");
    EXPECT_TRUE(Host().Told().empty()) << "the platform's button does not show it";
    EXPECT_EQ(WindowPixels(ours).At(219, 23), RGB(50, 50, 50))
        << "a new caption must not bring the old look back";
    EXPECT_TRUE(Settled(ours) == ours.Drawn());
    ours.SetState(TRUE);
    COnBoardUIGeneral::SetAppMode(STD);
    EXPECT_EQ(ours.GetCheck(), BST_CHECKED);
    EXPECT_EQ(ours.GetState(), 1U) << "the platform's button, which is not pushed, is not asked";
    EXPECT_EQ(ours.SendMessage(BM_GETSTATE) & BST_PUSHED, 0);
}

TEST_F(WindowTest, EachModeBeginsWithTheFocusAsItIs)
{
    for (const DWORD kind : {BS_PUSHBUTTON, BS_AUTOCHECKBOX, BS_AUTORADIOBUTTON, BS_OWNERDRAW})
    {
        SCOPED_TRACE(kind);
        auto& first = Add<TestPush>(ButtonPlace, kind | BS_NOTIFY, "Button");
        auto& second = Add<TestPush>(ButtonPlace + CPoint(0, 100), kind | BS_NOTIFY, "Button");
        RestPointer();
        first.SetFocus();
        const Pixels with = Settled(first);
        const Pixels without = Settled(second);
        SetMode(ONBOARD, Host());
        EXPECT_TRUE(first.m_focused && !second.m_focused);
        EXPECT_FALSE(WindowPixels(first) == WindowPixels(second));
        second.SetFocus();
        Host().Forget();
        SetMode(STD, Host());
        EXPECT_TRUE(Settled(first) == without && WindowPixels(second) == with);
        EXPECT_EQ(first.SendMessage(BM_GETSTATE) & BST_FOCUS, 0);
        EXPECT_NE(second.SendMessage(BM_GETSTATE) & BST_FOCUS, 0);
        EXPECT_EQ(Host().Count(WM_COMMAND), 0);
        EXPECT_EQ(second.GetButtonStyle(), kind | BS_NOTIFY);
        first.SetFocus(); // while nobody follows it
        SetMode(EFB, Host());
        EXPECT_TRUE(first.m_focused && !second.m_focused);
        COnBoardUIGeneral::SetAppMode(STD);
        Remove(first);
        Remove(second);
    }
}

TEST_F(ButtonOnBoard, TheNextWindowOfAnObjectBeginsAfresh)
{
    TestCheckBox box;
    box.SetCheck(BST_CHECKED);
    for (const int check : {BST_CHECKED, BST_UNCHECKED}) // set before the first window
    {
        CButton platform;
        platform.Create("Box", WS_CHILD | WS_VISIBLE, ButtonPlace, &Host(), ButtonId);
        ASSERT_TRUE(box.SubclassWindow(platform.Detach()));
        EXPECT_EQ(box.GetCheck(), check);
        EXPECT_FALSE(box.m_mouseDown || box.m_focused);
        box.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
        EXPECT_EQ(Host().Count(WM_COMMAND), 0) << "nothing was pressed";
        box.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        const HWND window = box.UnsubclassWindow();
        ::ReleaseCapture();
        ::DestroyWindow(window);
        EXPECT_EQ(box.GetCheck(), check) << "still to be asked";
    }
}

TEST_F(ButtonOnBoard, AHostThatLetsGoOfAButtonInItsClickHasTheNextPress)
{
    auto& push = Add<TestPush>(ButtonPlace, 0, "Push");
    HWND window = nullptr;
    const OnceTold told(Host(), BN_CLICKED, [&] { window = push.UnsubclassWindow(); });
    Click(push.Middle());
    EXPECT_TRUE(told);
    EXPECT_EQ(::GetCapture(), nullptr);
    ::DestroyWindow(window);
}
