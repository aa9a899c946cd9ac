#include "edits/edit_for_tests.h"
#include "catalog/DialogTemplate.h"

#include "CustomDialog.h"

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
        {"paste",
         [](EditForTests& edit) {
             edit.SetSel(0, 60);
             edit.Copy();
             TypeKey(VK_END, VK_CONTROL);
             edit.Paste();
         }},
        {"undo", [](EditForTests& edit) { edit.Undo(); }},
        {"line scroll", [](EditForTests& edit) { edit.LineScroll(-7); }},
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
        {"all but little gone",
         [](EditForTests& edit) {
             edit.SetSel(20, -1);
             edit.Clear();
         }},
        {"one line", [](EditForTests& edit) { edit.SetWindowText("one"); }},
        {"many lines", [](EditForTests& edit) { edit.Fill(300); }},
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
    struct
    {
        bool enabled, readOnly;
        COLORREF topLeft, bottomRight;
    } const table[] = {{true, false, RGB(93, 93, 93), RGB(220, 220, 220)},
                       {true, true, RGB(70, 70, 70), RGB(70, 70, 70)},
                       {false, true, RGB(90, 90, 90), RGB(130, 130, 130)},
                       {true, false, RGB(93, 93, 93), RGB(220, 220, 220)}};
    auto& edit = AddEdit(50);
    for (const auto& row : table)
    {
        SCOPED_TRACE(testing::Message() << row.enabled << row.readOnly);
        edit.EnableWindow(row.enabled);
        edit.SetReadOnly(row.readOnly);
        PumpAll();
        const Pixels seen = WindowPixels(edit);
        for (int line = 0; line < 3; ++line)
        {
            EXPECT_EQ(seen.At(100, line), row.topLeft);
            EXPECT_EQ(seen.At(line, 100), row.topLeft);
            EXPECT_EQ(seen.At(100, 239 - line), row.bottomRight);
            EXPECT_EQ(seen.At(299 - line, 100), row.bottomRight);
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

struct EditDialog : CCustomDialog
{
    explicit EditDialog(bool bindsInTime)
        : CCustomDialog(0U, nullptr)
        , early(bindsInTime)
    {}
    BOOL OnInitDialog() override
    {
        if (early)
        {
            edit.SubclassDlgItem(101, this);
        }
        return CCustomDialog::OnInitDialog();
    }

    const bool early;
    EditForTests edit;
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
        for (const APPMODE mode : {FULLSCREEN, ONBOARD, EFB, EFBFS, STD})
        {
            Enter(mode, edit);
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
                EXPECT_EQ(dialog.edit.m_barShown, mode != STD);
                EXPECT_EQ((dialog.edit.GetStyle() & WS_VSCROLL) == 0, mode != STD);
            }
            EXPECT_TRUE(PlatformBarWorks(dialog.edit));
            dialog.DestroyWindow();
        }
    }
}

TEST_F(EditTest, InTheStandardModeItIsThePlatformsEdit)
{
    const std::string text = EditForTests::Lines(40);
    const struct
    {
        UINT message;
        WPARAM wParam = 0;
        LPARAM lParam = 0;
    } script[] = {
        {WM_SETTEXT, 0, LPARAM(text.c_str())},
        {EM_GETLINECOUNT},
        {EM_LINESCROLL, 0, 9},
        {EM_GETFIRSTVISIBLELINE},
        {EM_SETSEL, 3, 9},
        {EM_SCROLLCARET},
        {EM_REPLACESEL, TRUE, LPARAM("a\r\nb\r\nc")},
        {EM_UNDO},
        {WM_KEYDOWN, VK_NEXT, 1},
        {WM_CHAR, 'q', 1},
        {EM_GETSEL},
        {EM_SETREADONLY, TRUE},
        {WM_VSCROLL, SB_PAGEDOWN},
        {WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 4)},
        {EM_GETFIRSTVISIBLELINE},
        {WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 20)},
        {WM_LBUTTONUP, 0, MAKELPARAM(10, 20)},
        {EM_GETSEL},
        {EM_SETREADONLY, FALSE},
        {WM_GETTEXTLENGTH},
    };
    const auto run = [&](CEdit& edit) {
        Host().Forget();
        std::vector<LRESULT> results;
        for (const auto& [message, wParam, lParam] : script)
        {
            const LRESULT result = edit.SendMessage(message, wParam, lParam);
            const bool key = message >= WM_KEYFIRST && message <= WM_KEYLAST;
            results.push_back(key ? 0 : result); // a handler of keys gives none
        }
        const std::vector<UINT> codes = Host().CodesFrom(UINT(edit.GetDlgCtrlID()));
        results.insert(results.end(), codes.begin(), codes.end());
        return results;
    };
    auto& ours = Add<EditForTests>(CRect(20, 20, 220, 110), ManyLines);
    const auto fresh = run(ours);
    EXPECT_EQ(fresh, run(Add<CEdit>(CRect(240, 20, 440, 110), ManyLines)));
    Enter(EFB, ours);
    Enter(STD, ours);
    EXPECT_EQ(fresh, run(ours)) << "after a trip through an on-board mode";
}

TEST_F(EditTest, AParentMayDestroyTheEditOrChangeTheModeInANotification)
{
    struct
    {
        UINT code;
        std::function<void(EditForTests&)> cause;
        bool destroys; // the platform's own edit goes on with its text after the others
    } const table[] = {
        {EN_UPDATE, [](EditForTests& edit) { edit.SendMessage(WM_CHAR, 'x', 1); }, false},
        {EN_CHANGE, [](EditForTests& edit) { edit.SendMessage(WM_CHAR, 0x7F, 1); }, false},
        {EN_VSCROLL, [](EditForTests& edit) { edit.SendMessage(WM_VSCROLL, SB_LINEDOWN); }, true},
        {EN_VSCROLL, [](EditForTests& edit) { edit.SetReadOnly(TRUE); }, true},
        {EN_SETFOCUS, [](EditForTests& edit) { Click(ClientPoint(edit, CPoint(20, 20))); }, true},
    };
    for (const auto& [code, cause, mayDestroy] : table)
    {
        for (const bool destroys : mayDestroy ? std::vector{false, true} : std::vector{false})
        {
            SCOPED_TRACE(testing::Message() << code << destroys);
            COnBoardUIGeneral::SetAppMode(ONBOARD);
            auto& edit = AddEdit(80);
            edit.LineScroll(10);
            bool told = false;
            Host().hook = [&](ToldMessage& message) {
                if (message.code == code && !std::exchange(told, true))
                {
                    destroys ? void(edit.DestroyWindow()) : COnBoardUIGeneral::SetAppMode(STD);
                }
            };
            cause(edit);
            PumpAll();
            Host().hook = nullptr;
            EXPECT_TRUE(told);
            EXPECT_EQ(edit.GetSafeHwnd() == nullptr, destroys);
            if (!destroys)
            {
                Enter(STD, edit);
                edit.Fill(80);
                EXPECT_TRUE(PlatformBarWorks(edit));
            }
            Remove(edit);
        }
    }
}
