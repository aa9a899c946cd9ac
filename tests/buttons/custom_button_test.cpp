// What all buttons share: following a press, the steps of a click, and every way of losing either.

#include "buttons/buttons_for_tests.h"
#include "support/Acting.h"
#include "support/Acts.h"
#include "support/Fenced.h"
#include "support/Repaint.h"

#include <gmock/gmock.h>

#include <tuple>
#include <utility>

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
    EXPECT_TRUE(push.m_mouseDown);
    Release();
    EXPECT_FALSE(push.m_mouseDown);
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

TEST_F(ButtonOnBoard, AButtonMayEndItselfWhenItIsAskedForItsTextInAPress)
{
    const AccessFaults faults;
    auto* const button = new Fenced<Acting<TestPush>>;
    button->Create("Push", WS_CHILD | WS_VISIBLE, ButtonPlace, &Host(), ButtonId);
    PumpAll();
    button->SetFocus();
    MoveTo(button->Middle());
    button->ActIn(WM_GETTEXT, [button] {
        button->DestroyWindow();
        delete button;
    });
    const HWND window = *button;
    Press();
    EXPECT_FALSE(::IsWindow(window));
    Release();
    EXPECT_EQ(faults.Count(), 0);
    EXPECT_EQ(Host().CodesFrom(ButtonId).size(), 0U);
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
    ours.SetState(TRUE);
    COnBoardUIGeneral::SetAppMode(STD);
    EXPECT_EQ(ours.GetCheck(), BST_UNCHECKED);
    EXPECT_EQ(ours.GetState(), 1U) << "the platform's button, which is not pushed, is not asked";
    EXPECT_EQ(ours.SendMessage(BM_GETSTATE) & BST_PUSHED, 0);
}

TEST_F(WindowTest, AnOnBoardModeBeginsWithTheFocusAsItIs)
{
    auto& first = Add<TestPush>(ButtonPlace, 0, "First");
    auto& second = Add<TestPush>(ButtonPlace + CPoint(0, 100), 0, "Second");
    RestPointer();
    const auto shown = [](TestPush& button) {
        Repaint(button);
        return button.m_focused;
    };
    first.SetFocus();
    EXPECT_FALSE(first.m_focused) << "not the standard mode's business";
    for (const APPMODE mode : {ONBOARD, EFB})
    {
        COnBoardUIGeneral::SetAppMode(mode);
        EXPECT_TRUE(shown(first)) << APPMODE_NAMES[mode];
        EXPECT_FALSE(shown(second));
        second.DrawOB();
        first.DrawOB();
        EXPECT_FALSE(WindowPixels(first) == WindowPixels(second));
    }
    // It goes elsewhere while nobody follows it.
    COnBoardUIGeneral::SetAppMode(STD);
    second.SetFocus();
    COnBoardUIGeneral::SetAppMode(FULLSCREEN);
    EXPECT_FALSE(shown(first));
    EXPECT_TRUE(shown(second));
}

TEST_F(ButtonOnBoard, TheNextWindowOfAnObjectBeginsAfresh)
{
    TestCheckBox box;
    box.SetCheck(BST_CHECKED);
    CButton platforms[2];
    for (CButton& platform : platforms)
    {
        platform.Create("Box", WS_CHILD | WS_VISIBLE | BS_CHECKBOX, ButtonPlace, &Host(), ButtonId);
    }
    HWND windows[] = {platforms[0].Detach(), platforms[1].Detach()};
    ASSERT_TRUE(box.SubclassWindow(windows[0]));
    EXPECT_EQ(box.GetCheck(), BST_CHECKED) << "set before the first window";
    const auto at = MAKELPARAM(5, 5);
    box.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, at);
    ASSERT_TRUE(box.m_tracking);
    box.UnsubclassWindow();
    ::ReleaseCapture();
    ::DestroyWindow(windows[0]);
    EXPECT_EQ(box.GetCheck(), BST_CHECKED) << "still to be asked";
    ASSERT_TRUE(box.SubclassWindow(windows[1]));
    EXPECT_EQ(box.GetCheck(), BST_UNCHECKED);
    EXPECT_FALSE(box.m_mouseDown || box.m_focused);
    box.SendMessage(WM_LBUTTONUP, 0, at);
    EXPECT_EQ(Host().Count(WM_COMMAND), 0) << "nothing was pressed";
    box.DestroyWindow();
}

namespace {

// Opens what a derived class is given to draw with.
struct Drawing : TestCheckBox
{
    using CCustomButton::m_FocusPen;
    using CCustomButton::m_Font;
    using CCustomButton::m_OutlinePen;
    using CCustomButton::m_PressedFocusPen;
    using CCustomButton::m_PressedOutlinePen;

    int drawn = 0;
    void DrawOB(CDC& dc) override
    {
        ++drawn;
        TestCheckBox::DrawOB(dc);
    }
    using TestCheckBox::DrawOB;
};

} // namespace

TEST_F(ButtonOnBoard, DerivedClassesDrawWithSharedObjectsThatAreMadeOnce)
{
    auto& box = Add<Drawing>(ButtonPlace, 0, "Caption");
    const std::vector<HGDIOBJ> made = {Drawing::m_OutlinePen, Drawing::m_PressedOutlinePen,
                                       Drawing::m_FocusPen, Drawing::m_PressedFocusPen,
                                       Drawing::m_Font};
    const struct
    {
        CPen& pen;
        LOGPEN look;
    } pens[] = {{Drawing::m_OutlinePen, {PS_INSIDEFRAME, {3, 0}, RGB(70, 70, 70)}},
                {Drawing::m_PressedOutlinePen, {PS_INSIDEFRAME, {3, 0}, RGB(106, 104, 118)}},
                {Drawing::m_FocusPen, {PS_DOT, {1, 0}, RGB(70, 70, 70)}},
                {Drawing::m_PressedFocusPen, {PS_DOT, {1, 0}, RGB(106, 104, 118)}}};
    for (const auto& each : pens)
    {
        LOGPEN look = {};
        each.pen.GetLogPen(&look);
        EXPECT_EQ(look.lopnStyle, each.look.lopnStyle);
        EXPECT_EQ(look.lopnWidth.x, each.look.lopnWidth.x);
        EXPECT_EQ(look.lopnColor, each.look.lopnColor);
    }
    const Drawing another;
    EXPECT_EQ(
        (std::vector<HGDIOBJ>{Drawing::m_OutlinePen, Drawing::m_PressedOutlinePen,
                              Drawing::m_FocusPen, Drawing::m_PressedFocusPen, Drawing::m_Font}),
        made);

    // The focus is a frame round a caption, whatever brush the caller has selected.
    Canvas canvas(200, 60);
    box.m_focused = true;
    canvas.DC().SelectStockObject(WHITE_BRUSH);
    canvas.DC().SetBkMode(TRANSPARENT);
    box.DrawRCText(canvas.DC(), CRect(0, 0, 200, 60), CRect(0, 0, 20, 20));
    EXPECT_EQ(canvas.Picture().Count(RGB(255, 255, 255)), 0);
    EXPECT_GT(canvas.Picture().Count(RGB(70, 70, 70)), 20);

    // Without a context to be had nothing is drawn.
    const int before = box.drawn;
    const HWND window = std::exchange(box.m_hWnd, reinterpret_cast<HWND>(UINT_PTR{1}));
    box.DrawOB();
    box.m_hWnd = window;
    EXPECT_EQ(box.drawn, before);
}

TEST_F(WindowTest, SiblingsComeInTheirOrderAndWithTheButtonItself)
{
    auto& first = Add<CStatic>(ButtonPlace, WS_GROUP);
    auto& button = Add<TestPush>(ButtonPlace, WS_TABSTOP | WS_GROUP);
    Add<CStatic>(ButtonPlace);
    auto& last = Add<CStatic>(ButtonPlace, WS_TABSTOP | WS_GROUP);
    std::vector<HWND> orders[2];
    const DWORD masks[] = {WS_GROUP, WS_GROUP | WS_TABSTOP};
    for (const int each : {0, 1})
    {
        std::vector<CWnd*> found = {&Host()}; // what is there stays
        button.GetSiblingControls(found, masks[each]);
        for (const CWnd* const window : found)
        {
            orders[each].push_back(window->GetSafeHwnd());
        }
    }
    EXPECT_THAT(orders[0], ElementsAre(HWND(Host()), HWND(first), HWND(button), HWND(last)));
    EXPECT_THAT(orders[1], ElementsAre(HWND(Host()), HWND(button), HWND(last)));
}
