#include "edits/edit_for_tests.h"
#include "support/DialogTemplate.h"

#include "CustomDialog.h"
#include "edits/EditBorder.h"
#include "support/Canvas.h"

#include <gmock/gmock.h>

// Text and bar ----------------------------------------------------------------------------------

TEST_F(EditOnBoard, TextCaretAndBarAgreeAfterEveryChange)
{
    struct
    {
        const char* name;
        void (*change)(EditForTests&);
    } const table[] = {
        {"end key", [](EditForTests&) { TypeKey(VK_END, VK_CONTROL); }},
        {"typing", [](EditForTests&) { TypeText("abc"); }},
        {"new lines",
         [](EditForTests&) {
             TypeKey(VK_RETURN);
             TypeKey(VK_RETURN);
         }},
        {"page up", [](EditForTests&) { TypeKey(VK_PRIOR); }},
        {"home key", [](EditForTests&) { TypeKey(VK_HOME, VK_CONTROL); }},
        {"paste",
         [](EditForTests& edit) {
             edit.SetSel(0, 60);
             edit.Copy();
             TypeKey(VK_END, VK_CONTROL);
             edit.Paste();
         }},
        {"undo", [](EditForTests& edit) { edit.Undo(); }},
        {"line scroll", [](EditForTests& edit) { edit.LineScroll(-7); }},
        {"scroll message", [](EditForTests& edit) { edit.SendMessage(WM_VSCROLL, SB_PAGEUP); }},
        {"wheel",
         [](EditForTests& edit) {
             MoveTo(ClientPoint(edit, CPoint(20, 20)));
             Wheel(-WHEEL_DELTA);
         }},
        {"shorter", [](EditForTests& edit) { edit.MoveWindow(20, 20, 300, 140); }},
        {"narrower", [](EditForTests& edit) { edit.MoveWindow(20, 20, 120, 140); }},
        {"larger", [](EditForTests& edit) { edit.MoveWindow(20, 20, 300, 240); }},
        {"font", [](EditForTests& edit) { edit.SetFont(&CCustomEdit::GetStdFont()); }},
        {"other font", [](EditForTests& edit) { edit.SetFont(&CCustomEdit::GetOnBoardFont()); }},
        {"read-only", [](EditForTests& edit) { edit.SetReadOnly(TRUE); }},
        {"writable", [](EditForTests& edit) { edit.SetReadOnly(FALSE); }},
        {"replaced",
         [](EditForTests& edit) {
             edit.SetSel(0, 100);
             edit.ReplaceSel("x", TRUE);
         }},
        {"all but little gone",
         [](EditForTests& edit) {
             edit.SetSel(20, -1);
             edit.Clear();
         }},
        {"undone", [](EditForTests& edit) { edit.Undo(); }},
        {"one line", [](EditForTests& edit) { edit.SetWindowText("one"); }},
        {"many lines", [](EditForTests& edit) { edit.Fill(300); }},
        {"control and backspace", [](EditForTests& edit) { edit.SendMessage(WM_CHAR, 0x7F, 1); }},
    };
    auto& edit = AddEdit(60);
    edit.SetFocus();
    ExpectAgreement(edit, "set text");
    for (const auto& row : table)
    {
        row.change(edit);
        PumpAll();
        ExpectAgreement(edit, row.name);
    }
    EXPECT_EQ(edit.Text(), "");
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
    // Without the style there is never one.
    auto& plain = AddEdit(50, ManyLines & ~DWORD(WS_VSCROLL));
    EXPECT_FALSE(plain.m_barShown);
    EXPECT_EQ(ClientRectOf(plain).Width(), 294);
}

TEST_F(EditOnBoard, EditsOfAnySizeAndBorderKeepWithinTheirWindow)
{
    for (const CSize size : {CSize(0, 0), CSize(4, 4), CSize(30, 90), CSize(90, 9), CSize(300, 40)})
    {
        auto& edit = AddEdit(80);
        edit.MoveWindow(CRect(CPoint(20, 20), size));
        PumpAll();
        edit.SendMessage(WM_VSCROLL, SB_LINEDOWN);
        edit.SendMessage(WM_CHAR, 'x', 1);
        edit.Fill(1);
        edit.Fill(90);
        PumpAll();
        EXPECT_LE(ClientRectOf(edit).Width(), size.cx);
        edit.MoveWindow(CRect(20, 20, 320, 260));
        PumpAll();
        ExpectAgreement(edit, "grown again");
        Remove(edit);
    }
    // The band lies beside the client area whatever the border is.
    for (const DWORD border : {DWORD(0), DWORD(WS_BORDER)})
    {
        auto& edit = Add<EditForTests>(CRect(20, 20, 320, 260), ManyLines | border);
        edit.Fill(80);
        PumpAll();
        const int line = (300 - 52 - ClientRectOf(edit).Width()) / 2;
        EXPECT_LE(line, border != 0 ? 1 : 0);
        EXPECT_EQ(edit.m_bar.GetArea(), CRect(300 - line - 52, line, 300 - line, 240 - line));
    }
}

// Border ----------------------------------------------------------------------------------------

TEST_F(EditOnBoard, TheBorderTellsTheState)
{
    struct
    {
        const char* name;
        void (*change)(EditForTests&);
        COLORREF topLeft;
        COLORREF bottomRight;
    } const table[] = {{"enabled", [](EditForTests&) {}, RGB(93, 93, 93), RGB(220, 220, 220)},
                       {"read-only", [](EditForTests& edit) { edit.SetReadOnly(TRUE); },
                        RGB(70, 70, 70), RGB(70, 70, 70)},
                       {"disabled", [](EditForTests& edit) { edit.EnableWindow(FALSE); },
                        RGB(90, 90, 90), RGB(130, 130, 130)},
                       {"enabled again",
                        [](EditForTests& edit) {
                            edit.EnableWindow(TRUE);
                            edit.SetReadOnly(FALSE);
                        },
                        RGB(93, 93, 93), RGB(220, 220, 220)}};
    auto& edit = AddEdit(50);
    for (const auto& row : table)
    {
        row.change(edit);
        PumpAll();
        const Pixels seen = WindowPixels(edit);
        for (int line = 0; line < 3; ++line)
        {
            EXPECT_EQ(seen.At(100, line), row.topLeft) << row.name << line;
            EXPECT_EQ(seen.At(line, 100), row.topLeft) << row.name << line;
            EXPECT_EQ(seen.At(100, 239 - line), row.bottomRight) << row.name << line;
            EXPECT_EQ(seen.At(299 - line, 100), row.bottomRight) << row.name << line;
        }
        EXPECT_EQ(seen.At(245, 120), RGB(70, 70, 70)) << row.name; // the bar's outline
    }
    Canvas canvas(8, 8);
    DrawEditBorder(canvas.DC(), CRect(1, 1, 5, 5), EditBorderOf(true, false));
    EXPECT_EQ(canvas.At(2, 2), RGB(93, 93, 93)) << "smaller than twice the border";
    EXPECT_EQ(canvas.At(5, 5), Canvas::Untouched);
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

class EditDialog : public CCustomDialog
{
public:
    explicit EditDialog(bool early)
        : CCustomDialog(0U, nullptr)
        , m_early(early)
    {}

    EditForTests edit;

protected:
    BOOL OnInitDialog() override
    {
        if (m_early)
        {
            edit.SubclassDlgItem(101, this);
        }
        return CCustomDialog::OnInitDialog();
    }

private:
    bool m_early;
};

} // namespace

TEST_F(EditOnBoard, AnotherWindowOfTheObjectIsLaidOutAnew)
{
    const CRect place(20, 20, 320, 160);
    auto& edit = Add<EdgedEdit>(place, ManyLines);
    edit.Fill(50);
    const CRect client = ClientRectOf(edit);
    ASSERT_TRUE(edit.m_barShown);
    edit.DestroyWindow();
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE | ManyLines, place, &Host(), 5));
    edit.Fill(50);
    EXPECT_TRUE(edit.m_barShown);
    EXPECT_EQ(ClientRectOf(edit), client);
}

TEST_F(EditTest, DirectEditsGoThroughAllModesAndBack)
{
    for (const APPMODE born : {STD, EFB})
    {
        COnBoardUIGeneral::SetAppMode(born);
        auto& edit = AddEdit(100);
        edit.LineScroll(12);
        for (const APPMODE mode : {FULLSCREEN, ONBOARD, EFB, EFBFS})
        {
            COnBoardUIGeneral::SetAppMode(mode);
            edit.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
            ExpectAgreement(edit, APPMODE_NAMES[mode]);
            EXPECT_EQ(edit.GetFirstVisibleLine(), 12) << "a change of mode scrolls nothing";
        }
        COnBoardUIGeneral::SetAppMode(STD);
        edit.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
        EXPECT_EQ(edit.GetFirstVisibleLine(), 12);
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
            COnBoardUIGeneral::SetAppMode(born);
            EditDialog dialog(early);
            ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
            if (!early)
            {
                PumpAll();
                ASSERT_TRUE(dialog.edit.SubclassDlgItem(101, &dialog));
            }
            dialog.edit.Fill(80);
            PumpAll();
            for (const APPMODE mode : {ONBOARD, STD, EFBFS, STD})
            {
                COnBoardUIGeneral::SetAppMode(mode);
                PumpAll();
                EXPECT_EQ(dialog.edit.m_barShown, mode != STD) << early << APPMODE_NAMES[born];
                EXPECT_EQ((dialog.edit.GetStyle() & WS_VSCROLL) == 0, mode != STD);
            }
            EXPECT_TRUE(PlatformBarWorks(dialog.edit)) << early << APPMODE_NAMES[born];
            dialog.DestroyWindow();
        }
    }
}

TEST_F(EditTest, InTheStandardModeItIsThePlatformsEdit)
{
    auto script = [this](CEdit& edit) {
        Host().Forget();
        std::vector<LRESULT> results;
        const auto send = [&](UINT message, WPARAM w = 0, LPARAM l = 0) {
            results.push_back(edit.SendMessage(message, w, l));
        };
        std::string text;
        for (int line = 0; line < 40; ++line)
        {
            text += "Line\r\n";
        }
        send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
        send(EM_GETLINECOUNT);
        send(EM_LINESCROLL, 0, 9);
        send(EM_GETFIRSTVISIBLELINE);
        send(EM_SETSEL, 3, 9);
        send(EM_SCROLLCARET);
        send(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>("a\r\nb\r\nc"));
        send(EM_UNDO);
        edit.SendMessage(WM_KEYDOWN, VK_NEXT, 1); // a handler of keys gives no result
        edit.SendMessage(WM_CHAR, 'q', 1);
        send(EM_GETSEL);
        send(EM_SETREADONLY, TRUE);
        send(EM_GETFIRSTVISIBLELINE);
        send(WM_VSCROLL, SB_PAGEDOWN);
        send(WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 4));
        send(EM_GETFIRSTVISIBLELINE);
        send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 20));
        send(WM_LBUTTONUP, 0, MAKELPARAM(10, 20));
        send(EM_GETSEL);
        send(EM_SETREADONLY, FALSE);
        send(WM_GETTEXTLENGTH);
        const std::vector<UINT> codes = Host().CodesFrom(UINT(edit.GetDlgCtrlID()));
        results.insert(results.end(), codes.begin(), codes.end());
        return results;
    };
    const CRect place(20, 20, 220, 110);
    auto& ours = Add<EditForTests>(place, ManyLines);
    const auto fresh = script(ours);
    auto& platform = Add<CEdit>(CRect(240, 20, 440, 110), ManyLines);
    EXPECT_EQ(fresh, script(platform));
    {
        const ModeScope onBoard(EFB);
        ours.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
    }
    ours.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(fresh, script(ours)) << "after a trip through an on-board mode";
}

// What notifications may do ---------------------------------------------------------------------

TEST_F(EditTest, AParentMayDestroyTheEditOrChangeTheModeInANotification)
{
    struct
    {
        UINT code;
        void (*cause)(EditForTests&);
        bool destroys; // the platform's own edit goes on with its text after the others
    } const table[] = {
        {EN_UPDATE, [](EditForTests& edit) { edit.SendMessage(WM_CHAR, 'x', 1); }, false},
        {EN_CHANGE, [](EditForTests& edit) { edit.SendMessage(WM_CHAR, 0x7F, 1); }, false},
        {EN_VSCROLL, [](EditForTests& edit) { edit.SendMessage(WM_VSCROLL, SB_LINEDOWN); }, true},
        {EN_VSCROLL, [](EditForTests& edit) { edit.SetReadOnly(TRUE); }, true},
        {EN_SETFOCUS, [](EditForTests& edit) { Click(ClientPoint(edit, CPoint(20, 20))); }, true},
    };
    for (const auto& row : table)
    {
        for (const bool destroys : {false, true})
        {
            if (destroys && !row.destroys)
            {
                continue;
            }
            COnBoardUIGeneral::SetAppMode(ONBOARD);
            auto& edit = AddEdit(80);
            edit.LineScroll(10);
            bool told = false;
            Host().hook = [&](ToldMessage& message) {
                if (message.code == row.code && !told)
                {
                    told = true;
                    if (destroys)
                    {
                        edit.DestroyWindow();
                    }
                    else
                    {
                        COnBoardUIGeneral::SetAppMode(STD);
                    }
                }
            };
            row.cause(edit);
            PumpAll();
            Host().hook = nullptr;
            EXPECT_TRUE(told) << row.code;
            EXPECT_EQ(edit.GetSafeHwnd() == nullptr, destroys) << row.code;
            if (!destroys)
            {
                edit.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
                edit.Fill(80);
                EXPECT_TRUE(PlatformBarWorks(edit)) << row.code;
            }
            Remove(edit);
        }
    }
}

TEST_F(EditOnBoard, EditsLeaveNoGraphicsObjectsBehind)
{
    const auto live = [this] {
        auto& edit = AddEdit(200);
        edit.LineScroll(30);
        edit.EnableWindow(FALSE);
        PumpAll();
        Remove(edit);
    };
    for (int turn = 0; turn < 5; ++turn)
    {
        live(); // the system keeps a few device contexts for good
    }
    const int before = GraphicsObjects();
    for (int turn = 0; turn < 10; ++turn)
    {
        live();
    }
    EXPECT_EQ(GraphicsObjects(), before);
}
