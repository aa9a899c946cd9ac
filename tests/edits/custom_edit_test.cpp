#include "edits/edit_for_tests.h"
#include "support/ChildModes.h"

TEST_F(EditOnBoard, TextCaretAndBarAgreeAfterEveryChange)
{
    const std::tuple<const char*, void (*)(EditForTests&)> table[] = {
        {"end key", [](EditForTests&) { TypeKey(VK_END, VK_CONTROL); }},
        {"new line", [](EditForTests&) { TypeKey(VK_RETURN); }},
        {"paste",
         [](EditForTests& edit) {
             edit.SetSel(0, 60);
             edit.Copy();
             TypeKey(VK_END, VK_CONTROL);
             edit.Paste();
         }},
        {"wheel",
         [](EditForTests& edit) {
             MoveTo(ClientPoint(edit, CPoint(20, 20)));
             Wheel(-WHEEL_DELTA);
         }},
        {"no size and back",
         [](EditForTests& edit) {
             for (const int height : {0, 9, 240})
             {
                 edit.MoveWindow(20, 20, height * 300 / 240, height);
                 edit.SendMessage(WM_VSCROLL, SB_LINEDOWN);
             }
         }},
        {"read-only", [](EditForTests& edit) { edit.SetReadOnly(TRUE); }},
        {"the host's styles",
         [](EditForTests& edit) {
             edit.LineScroll(9);
             edit.ModifyStyle(0, WS_VSCROLL);
             EXPECT_EQ(edit.GetFirstVisibleLine(), 0);
         }},
        {"a style that it has",
         [](EditForTests& edit) {
             edit.LineScroll(9);
             edit.SetReadOnly(TRUE);
             EXPECT_EQ(edit.GetFirstVisibleLine(), 9);
         }},
        {"all but little gone",
         [](EditForTests& edit) {
             edit.SetSel(20, -1);
             edit.Clear();
         }},
        {"one line", [](EditForTests& edit) { edit.SetWindowText("one"); }},
        {"many lines", [](EditForTests& edit) { edit.Fill(300); }},
        {"another window",
         [](EditForTests& edit) {
             CWnd* const parent = edit.GetParent();
             edit.DestroyWindow();
             edit.Create(WS_CHILD | WS_VISIBLE | ManyLines, CRect(20, 20, 320, 160), parent, 5);
             edit.Fill(50);
         }},
    };
    auto& edit = AddEdit(60);
    edit.SetFocus();
    ExpectAgreement(edit, "set text");
    for (const auto& [name, change] : table)
    {
        change(edit);
        PumpAll();
        ExpectAgreement(edit, name);
    }
}

TEST_F(EditOnBoard, ATextThatFitsHasNoBarAndTheWholeWidth)
{
    auto& edit = AddEdit(3);
    ExpectAgreement(edit, "few lines");
    edit.SetFocus();
    TypeKey(VK_END, VK_CONTROL);
    for (int line = 3; line < 40 && !edit.m_barShown; ++line)
    {
        EXPECT_EQ(line, edit.GetLineCount());
        TypeKey(VK_RETURN);
    }
    EXPECT_EQ(edit.GetLineCount(), edit.VisibleLines() + 1);
    ExpectAgreement(edit, "one too many");
    TypeKey(VK_BACK);
    EXPECT_FALSE(edit.m_barShown) << "at line " << edit.GetFirstVisibleLine();
    for (const DWORD border : {DWORD(0), DWORD(WS_BORDER)})
    {
        auto& other = Add<EditForTests>(CRect(20, 20, 320, 260), ManyLines | border);
        other.Fill(80);
        ExpectAgreement(other, "another border");
    }
    // Without the style there is never one.
    auto& plain = AddEdit(50, ManyLines & ~DWORD(WS_VSCROLL));
    EXPECT_FALSE(plain.m_barShown);
    EXPECT_EQ(ClientRectOf(plain).Width(), 294);
}

TEST_F(EditOnBoard, TheBorderTellsTheState)
{
    const std::tuple<bool, bool, COLORREF, COLORREF> table[] = {
        {true, false, RGB(93, 93, 93), RGB(220, 220, 220)},
        {true, true, RGB(70, 70, 70), RGB(70, 70, 70)},
        {false, true, RGB(90, 90, 90), RGB(130, 130, 130)},
        {true, false, RGB(93, 93, 93), RGB(220, 220, 220)}};
    auto& edit = AddEdit(50);
    for (const auto& [enabled, readOnly, topLeft, bottomRight] : table)
    {
        SCOPED_TRACE(testing::Message() << enabled << readOnly);
        edit.EnableWindow(enabled);
        edit.SetReadOnly(readOnly);
        const Pixels seen = Settled(edit);
        for (int line = 0; line < 3; ++line)
        {
            EXPECT_EQ(seen.At(100, line), topLeft);
            EXPECT_EQ(seen.At(line, 100), topLeft);
            EXPECT_EQ(seen.At(100, 239 - line), bottomRight);
            EXPECT_EQ(seen.At(299 - line, 100), bottomRight);
        }
        EXPECT_EQ(seen.At(245, 120), RGB(70, 70, 70)) << "the bar's outline";
    }
}

// Modes -----------------------------------------------------------------------------------------

TEST_F(EditTest, DirectEditsGoThroughAllModesAndBack)
{
    for (const APPMODE born : {STD, EFB})
    {
        COnBoardUIGeneral::SetAppMode(born);
        auto& edit = AddEdit(100);
        edit.LineScroll(12);
        for (const APPMODE mode : {FULLSCREEN, ONBOARD, EFB, EFBFS, STD})
        {
            SetMode(mode, edit);
            EXPECT_EQ(edit.GetFirstVisibleLine(), 12) << "a change of mode scrolls nothing";
            if (mode != STD)
            {
                ExpectAgreement(edit, APPMODE_NAMES[mode]);
            }
        }
        EXPECT_EQ(ClientRectOf(edit).Width(), 300 - 4 - ::GetSystemMetrics(SM_CXVSCROLL));
        edit.LineScroll(1);
        EXPECT_EQ(::GetScrollPos(edit, SB_VERT), 13) << APPMODE_NAMES[born];
        Remove(edit);
    }
}

TEST_F(EditTest, LinesStayInSightWhereTheEditFollowsTheMode)
{
    for (const DWORD style : {ManyLines, ManyLines | ES_AUTOHSCROLL, ManyLines | WS_HSCROLL})
    {
        auto& edit = AddEdit(30, style);
        edit.SetFont(&CCustomEdit::GetStdFont());
        edit.LineScroll(30);
        const int first = edit.GetFirstVisibleLine();
        for (const APPMODE mode : {ONBOARD, STD})
        {
            SetModeOfChildren(mode, Host());
        }
        EXPECT_EQ(edit.GetFirstVisibleLine(), first) << std::hex << style;
        // The caret in the last line in sight, of which there are fewer on-board.
        const int caret = edit.LineIndex(first + edit.VisibleLines() - 1);
        edit.SetSel(caret, caret, TRUE);
        SetModeOfChildren(ONBOARD, Host());
        const int top = edit.GetFirstVisibleLine();
        EXPECT_EQ(edit.LineFromChar(caret), top + edit.VisibleLines() - 1) << std::hex << style;
        EXPECT_GT(top, first);
        SetModeOfChildren(STD, Host());
        Remove(edit);
    }
}

// Whatever the style was when the edit was made.
TEST_F(EditTest, AnOnBoardTripLeavesThePlatformsBarAsTheHostHadIt)
{
    const std::tuple<const char*, DWORD, void (*)(CCustomEdit&), bool> cases[] = {
        {"given", 0, [](CCustomEdit& edit) { edit.ModifyStyle(0, WS_VSCROLL, SWP_FRAMECHANGED); },
         true},
        {"shown", 0, [](CCustomEdit& edit) { edit.ShowScrollBar(SB_VERT, TRUE); }, true},
        {"taken away", WS_VSCROLL,
         [](CCustomEdit& edit) {
             edit.LineScroll(9);
             edit.RemoveVScrollBar();
             EXPECT_EQ(edit.SendMessage(EM_GETTHUMB), 9);
         },
         false},
        {"taken away and given back", WS_VSCROLL,
         [](CCustomEdit& edit) {
             edit.RemoveVScrollBar();
             edit.IncludeVScrollBar();
         },
         true},
        {"never there", 0, [](CCustomEdit& edit) { edit.IncludeVScrollBar(); }, false},
    };
    for (const auto& [name, style, act, bar] : cases)
    {
        SCOPED_TRACE(name);
        auto& edit = AddEdit(100, (ManyLines & ~DWORD(WS_VSCROLL)) | style);
        act(edit);
        const int width = ClientRectOf(edit).Width();
        for (int trip = 0; trip < 2; ++trip)
        {
            SetMode(EFB, edit);
            EXPECT_EQ(edit.GetStyle() & WS_VSCROLL, 0U);
            SetMode(STD, edit);
            EXPECT_EQ((edit.GetStyle() & WS_VSCROLL) != 0, bar);
            EXPECT_EQ(ClientRectOf(edit).Width(), width);
        }
        Remove(edit);
    }
}

TEST_F(EditTest, TheThumbOfAnEditThatNeverHadABarIsThePlatformsInEveryMode)
{
    auto& edit = AddEdit(60, ManyLines & ~DWORD(WS_VSCROLL));
    for (const APPMODE mode : {STD, ONBOARD})
    {
        SetMode(mode, edit);
        edit.Fill(60);
        edit.LineScroll(7);
        const int hidden = edit.GetLineCount() - edit.VisibleLines();
        EXPECT_EQ(edit.SendMessage(EM_GETTHUMB), 7 * 100 / hidden) << mode;
        edit.Fill(edit.VisibleLines());
        EXPECT_EQ(edit.SendMessage(EM_GETTHUMB), 0) << "for which it would divide by zero";
    }
    auto& wide = AddEdit(1, (ManyLines | ES_AUTOHSCROLL) & ~DWORD(WS_VSCROLL | WS_HSCROLL));
    for (const APPMODE mode : {STD, ONBOARD})
    {
        SetMode(mode, wide);
        wide.SetWindowText(std::string(500, 'w').c_str());
        wide.SetSel(500, 500);
        EXPECT_EQ(wide.SendMessage(EM_GETTHUMB), MAKELRESULT(0, 100)) << mode;
    }
}

TEST_F(EditTest, EnteringAModeBringsTextAndBarTogetherOnce)
{
    auto& edit = AddEdit(100);
    MessageLog log(edit, {WM_USER + 96});
    SetMode(EFB, edit);
    EXPECT_EQ(log.WParams(0x460), (std::vector<WPARAM>{TRUE, FALSE}));
    EXPECT_TRUE(edit.m_overflowing);
    edit.SetWindowText("one line");
    EXPECT_FALSE(edit.m_overflowing);

    // One that is taken over on-board begins at its text's begin; afterwards the selection stays.
    auto& plain = Add<CEdit>(CRect(20, 20, 320, 260), ManyLines);
    plain.SetWindowText(EditForTests::Lines(50).c_str());
    plain.SetSel(40, 60);
    EditForTests taker;
    ASSERT_TRUE(taker.SubclassWindow(plain.UnsubclassWindow()));
    Repaint(taker);
    EXPECT_EQ(taker.GetSel(), 0U);
    EXPECT_TRUE(taker.m_barShown);
    taker.SetSel(40, 60);
    SetMode(STD, taker);
    EXPECT_NE(taker.GetStyle() & WS_VSCROLL, 0U);
    SetMode(ONBOARD, taker);
    EXPECT_EQ(taker.GetSel(), DWORD(MAKELONG(40, 60)));
    taker.DestroyWindow();

    // Also before it has been seen: what a host does first is not undone.
    const auto takeOver = [&](const char* text) {
        auto& other = Add<CEdit>(CRect(20, 20, 320, 260), ManyLines);
        other.SetWindowText(text);
        ASSERT_TRUE(taker.SubclassWindow(other.UnsubclassWindow()));
    };
    takeOver("");
    taker.ReplaceSel("first ");
    taker.ReplaceSel("second");
    EXPECT_EQ(taker.Text(), "first second");
    taker.DestroyWindow();
    takeOver(EditForTests::Lines(50).c_str());
    taker.SetSel(0, -1, TRUE);
    EXPECT_EQ(taker.GetSel(), DWORD(MAKELONG(0, taker.GetWindowTextLength())));
    EXPECT_TRUE(taker.m_barShown);
    taker.DestroyWindow();
    takeOver(EditForTests::Lines(50).c_str());
    taker.LineScroll(7);
    EXPECT_EQ(taker.GetFirstVisibleLine(), 7);
    taker.DestroyWindow();
}
