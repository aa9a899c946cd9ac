// What all buttons share: following a press, the steps of a click, and every way of losing either.

#include "buttons/buttons_for_tests.h"
#include "support/Acting.h"
#include "support/Acts.h"
#include "support/Fenced.h"

#include <gmock/gmock.h>

#include <tuple>

using testing::ElementsAre;
using Steps = std::vector<std::string>;

TEST_F(ButtonOnBoard, AClickRunsItsStepsInOrder)
{
    auto& push = Add<TestPush>(ButtonPlace, 0, "Push", ButtonId);
    Host().hook = [&](ToldMessage& told) {
        push.steps.push_back(push.m_tracking ? "told, tracking" : "told");
        EXPECT_EQ(told.lParam, LPARAM(LOWORD(reinterpret_cast<UINT_PTR>(push.m_hWnd))));
        EXPECT_EQ(told.wParam, WPARAM(MAKELONG(ButtonId, BN_CLICKED)));
    };
    MoveTo(push.Middle());
    Press();
    EXPECT_EQ(::GetFocus(), push.m_hWnd);
    EXPECT_EQ(::GetCapture(), push.m_hWnd);
    EXPECT_EQ(push.SendMessage(BM_GETSTATE), 1);
    Release();
    EXPECT_EQ(push.steps, Steps({"click, captured", "told, tracking", "group, free"}));
    EXPECT_EQ(push.SendMessage(BM_GETSTATE), 0) << "the focus is no part of the state";

    // Fast enough to be a double click: a press like any other.
    push.steps.clear();
    MessageLog log(push, {WM_LBUTTONDBLCLK});
    Click(push.Middle());
    Click(push.Middle());
    EXPECT_GE(log.Count(WM_LBUTTONDBLCLK), 1);
    EXPECT_EQ(push.steps.size(), 6U);
    for (const UINT key : {VK_SPACE, VK_SHIFT, int('A')})
    {
        TypeKey(key);
    }
    EXPECT_EQ(Host().Count(WM_COMMAND), 4) << "the space bar clicks, once";

    // Without a press the message clicks as well, and takes the focus before the parent is told.
    auto& other = Add<TestPush>(ButtonPlace + CPoint(0, 100), 0, "Other");
    Host().hook = [&](ToldMessage&) { EXPECT_TRUE(other.m_focused); };
    other.SendMessage(BM_CLICK);
    EXPECT_THAT(other.steps, ElementsAre("click"));
    EXPECT_FALSE(push.m_focused);
    EXPECT_EQ(Host().Count(WM_COMMAND), 5);
}

TEST_F(ButtonOnBoard, APressDraggedOffIsNoClick)
{
    auto& push = Add<TestPush>(ButtonPlace, 0, "Push");
    MoveTo(push.Middle());
    Press();
    const CRect window = WindowRectOf(push);
    MoveTo(CPoint(window.right - 1, window.bottom - 1));
    EXPECT_TRUE(push.m_pressed);
    const Pixels held = WindowPixels(push);
    MoveTo(CPoint(window.right, window.bottom - 1)); // the first pixel beyond
    EXPECT_FALSE(push.m_pressed);
    push.Invalidate(FALSE);
    PumpAll();
    EXPECT_EQ(WindowPixels(push), held) << "a held button looks pressed wherever the pointer is";
    Release();
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_TRUE(push.steps.empty());

    // Back on it in time, it is a click.
    MoveTo(push.Middle());
    Press();
    DragTo(CPoint(window.right + 30, window.bottom + 30));
    DragTo(push.Middle());
    Release();
    EXPECT_EQ(Host().Count(WM_COMMAND), 1);
}

TEST_F(ButtonOnBoard, APressThatIsCutOffLeavesNothingHeld)
{
    auto& other = Add<CEdit>(CRect(20, 300, 120, 320));
    const std::tuple<const char*, std::function<void(TestCheckBox&)>> cases[] = {
        {"capture released", [](auto&) { ::ReleaseCapture(); }},
        {"capture taken", [&](auto&) { other.SetCapture(); }},
        {"hidden", [](auto& button) { button.ShowWindow(SW_HIDE); }},
        {"hidden without a word",
         [](auto& button) {
             button.SetWindowPos(nullptr, 0, 0, 0, 0,
                                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_HIDEWINDOW);
         }},
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
        Host().Forget();
        auto& button = Add<TestCheckBox>(ButtonPlace, 0, "Cut off");
        const HWND window = button.m_hWnd;
        MoveTo(button.Middle());
        Press();
        ASSERT_TRUE(button.m_tracking);
        cut(button);
        MoveTo(CPoint(130, 110)); // still on it; the next message of any kind shows another mode
        EXPECT_NE(::GetCapture(), window);
        EXPECT_FALSE(button.m_tracking);
        EXPECT_EQ(button.GetState(), 0U);
        Release();
        ::ReleaseCapture();
        COnBoardUIGeneral::SetAppMode(ONBOARD);
        EXPECT_EQ(Host().Count(WM_COMMAND), int(Host().CodesFrom(FirstId).size()))
            << "only the edit may have told anything";
        EXPECT_EQ(button.m_check, BST_UNCHECKED);
        Host().EnableWindow(TRUE);
        Host().ShowWindow(SW_SHOW);
        Remove(button);
    }
}

TEST_F(ButtonOnBoard, APressWhileAnotherWindowHasTheCaptureIsIgnored)
{
    auto& push = Add<TestPush>(ButtonPlace, 0, "Push");
    Host().SetCapture();
    push.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    push.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(::GetCapture(), Host().m_hWnd);
    EXPECT_EQ(Host().Count(WM_COMMAND), 0);
    ::ReleaseCapture();
}

TEST_F(ButtonOnBoard, WhoLosesTheFocusMayDestroyTheButton)
{
    Add<CEdit>(CRect(20, 300, 120, 320)).SetFocus();
    auto& push = Add<TestPush>(ButtonPlace, 0, "Push", ButtonId);
    const OnceTold told(Host(), EN_KILLFOCUS, [&] { Remove(push); });
    Click(push.Middle());
    EXPECT_TRUE(told);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(Host().CodesFrom(ButtonId).size(), 0U);
}

TEST_F(ButtonOnBoard, AButtonMayEndItselfWhenItsPressIsCutOff)
{
    const auto send = [](UINT message, WPARAM wParam) {
        return [=](HWND button) { ::SendMessage(button, message, wParam, 0); };
    };
    const Act<HWND> cuts[] = {{"disabled", send(WM_ENABLE, FALSE)},
                              {"hidden", send(WM_SHOWWINDOW, FALSE)},
                              {"checked", send(BM_SETCHECK, BST_CHECKED)},
                              {"its state set", send(BM_SETSTATE, FALSE)},
                              {"without the focus", send(WM_KILLFOCUS, 0)},
                              {"cancelled", send(WM_CANCELMODE, 0)},
                              {"asked in another mode", [](HWND button) {
                                   COnBoardUIGeneral::SetAppMode(STD);
                                   ::SendMessage(button, BM_GETCHECK, 0, 0);
                                   COnBoardUIGeneral::SetAppMode(ONBOARD);
                               }}};
    const AccessFaults faults;
    for (const auto& row : cuts)
    {
        SCOPED_TRACE(row.name);
        auto* const button = new Fenced<Acting<TestPush>>;
        button->Create("", WS_CHILD | WS_VISIBLE, ButtonPlace, &Host(), ButtonId);
        button->StartTracking();
        ASSERT_TRUE(button->m_tracking);
        button->ActIn(WM_CAPTURECHANGED, [button] {
            button->DestroyWindow();
            delete button;
        });
        const HWND window = *button;
        row.act(window);
        EXPECT_FALSE(::IsWindow(window));
        EXPECT_EQ(faults.Count(), 0);
    }
}

TEST_F(WindowTest, InTheStandardModeThePlatformsButtonDraws)
{
    auto& ours = Add<TestCheckBox>(ButtonPlace, BS_AUTOCHECKBOX, "Box");
    auto& plain = Add<CButton>(ButtonPlace + CPoint(0, 60), BS_AUTOCHECKBOX, "Box");
    for (CButton* const button : std::initializer_list<CButton*>{&ours, &plain})
    {
        Click(ClientPoint(*button, CPoint(5, 5)));
        Host().SetFocus();
    }
    RestPointer();
    PumpAll();
    EXPECT_TRUE(WindowPixels(ours) == WindowPixels(plain));
    EXPECT_EQ(ours.steps, Steps{"group, free"});
    ours.SetCheck(BST_UNCHECKED);

    // Each kind of mode has its own check state; a new mode shows with the next paint.
    COnBoardUIGeneral::SetAppMode(EFB);
    ours.SetCheck(BST_CHECKED);
    ours.SetWindowText("Other");
    EXPECT_EQ(WindowPixels(ours).At(219, 23), RGB(50, 50, 50))
        << "a new caption must not bring the old look back";
    PumpAll();
    EXPECT_TRUE(WindowPixels(ours) == ours.Drawn());
    COnBoardUIGeneral::SetAppMode(STD);
    EXPECT_EQ(ours.GetCheck(), BST_UNCHECKED);
}
