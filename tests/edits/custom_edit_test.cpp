#include "catalog/DialogTemplate.h"
#include "edits/edit_for_tests.h"
#include "support/Acting.h"

#include "CustomDialog.h"

#include <tuple>

TEST_F(EditOnBoard, TextCaretAndBarAgreeAfterEveryChange)
{
    const std::tuple<const char*, void (*)(EditForTests&)> table[] = {
        {"end key", [](EditForTests&) { TypeKey(VK_END, VK_CONTROL); }},
        {"typing", [](EditForTests&) { TypeText("abc"); }},
        {"new lines",
         [](EditForTests&) {
             TypeKey(VK_RETURN);
             TypeKey(VK_RETURN);
         }},
        {"paste",
         [](EditForTests& edit) {
             edit.SetSel(0, 60);
             edit.Copy();
             TypeKey(VK_END, VK_CONTROL);
             edit.Paste();
         }},
        {"undo", [](EditForTests& edit) { edit.Undo(); }},
        {"wheel",
         [](EditForTests& edit) {
             MoveTo(ClientPoint(edit, CPoint(20, 20)));
             Wheel(-WHEEL_DELTA);
         }},
        {"shorter", [](EditForTests& edit) { edit.MoveWindow(20, 20, 300, 140); }},
        {"no size and back",
         [](EditForTests& edit) {
             for (const int height : {0, 9, 240})
             {
                 edit.MoveWindow(20, 20, height * 300 / 240, height);
                 edit.SendMessage(WM_VSCROLL, SB_LINEDOWN);
             }
         }},
        {"font", [](EditForTests& edit) { edit.SetFont(&CCustomEdit::GetStdFont()); }},
        {"read-only", [](EditForTests& edit) { edit.SetReadOnly(TRUE); }},
        {"the host's styles",
         [](EditForTests& edit) {
             edit.LineScroll(9);
             edit.ModifyStyle(0, WS_VSCROLL);
             EXPECT_EQ(edit.GetFirstVisibleLine(), 0);
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
    EXPECT_FALSE(edit.m_barShown);
    EXPECT_EQ(ClientRectOf(edit).Width(), 294);
    edit.SetFocus();
    TypeKey(VK_END, VK_CONTROL);
    for (int line = 3; line < 40 && !edit.m_barShown; ++line)
    {
        EXPECT_EQ(line, edit.GetLineCount());
        TypeKey(VK_RETURN);
    }
    EXPECT_EQ(edit.GetLineCount(), edit.VisibleLines() + 1);
    EXPECT_EQ(ClientRectOf(edit).Width(), 294 - 52);
    EXPECT_EQ(edit.m_bar.GetArea(), CRect(300 - 55, 3, 300 - 3, 240 - 3));
    TypeKey(VK_BACK);
    EXPECT_FALSE(edit.m_barShown) << "at line " << edit.GetFirstVisibleLine();
    // The band lies beside the client area whatever the border is.
    for (const DWORD border : {DWORD(0), DWORD(WS_BORDER)})
    {
        auto& other = Add<EditForTests>(CRect(20, 20, 320, 260), ManyLines | border);
        other.Fill(80);
        PumpAll();
        const int line = (300 - 52 - ClientRectOf(other).Width()) / 2;
        EXPECT_LE(line, border != 0 ? 1 : 0);
        EXPECT_EQ(other.m_bar.GetArea(), CRect(300 - line - 52, line, 300 - line, 240 - line));
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
        PumpAll();
        const Pixels seen = WindowPixels(edit);
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

namespace {

bool PlatformBarWorks(CEdit& edit)
{
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    edit.SetSel(0, 0);
    edit.LineScroll(5 - edit.GetFirstVisibleLine());
    const BOOL told = ::GetScrollInfo(edit, SB_VERT, &info);
    const bool shows = (edit.GetStyle() & WS_VSCROLL) != 0 && told && info.nPos == 5 &&
                       info.nMax == edit.GetLineCount() - 1;
    edit.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    return shows && edit.GetFirstVisibleLine() == 6;
}

} // namespace

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
        EXPECT_TRUE(PlatformBarWorks(edit)) << APPMODE_NAMES[born];
        Remove(edit);
    }
}

TEST_F(EditTest, TemplateAndSubclassedEditsFollowTheirDialog)
{
    DialogTemplate form(CRect(0, 0, 200, 160), WS_POPUP | WS_CAPTION | WS_VISIBLE);
    form.Add("Edit", "", ManyLines | WS_BORDER, CRect(10, 10, 110, 100), 101);
    for (const bool early : {true, false})
    {
        for (const APPMODE born : {STD, EFB})
        {
            SCOPED_TRACE(testing::Message() << early << APPMODE_NAMES[born]);
            COnBoardUIGeneral::SetAppMode(born);
            Acting<CCustomDialog> dialog(0U, nullptr);
            EditForTests edit;
            const auto bind = [&] { ASSERT_TRUE(edit.SubclassDlgItem(101, &dialog)); };
            dialog.ActIn(early ? UINT(WM_INITDIALOG) : 0, bind);
            ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
            if (!early)
            {
                PumpAll();
                bind();
            }
            edit.Fill(80);
            PumpAll();
            for (const APPMODE mode : {ONBOARD, STD, EFBFS, STD})
            {
                COnBoardUIGeneral::SetAppMode(mode);
                PumpAll();
                EXPECT_EQ(edit.m_barShown, mode != STD);
                EXPECT_EQ((edit.GetStyle() & WS_VSCROLL) == 0, mode != STD);
            }
            EXPECT_TRUE(PlatformBarWorks(edit));
            dialog.DestroyWindow();
        }
    }
}
