#include "catalog/DialogTemplate.h"
#include "support/Scripted.h"
#include "support/WindowTest.h"

namespace {

enum : WORD
{
    IdEdit = 101,
    IdNumber,
    IdCheck,
    IdFirstRadio,
    IdSecondRadio,
    IdList,
    IdCombo,
    IdTypedCombo,
};

DialogTemplate FormTemplate(DWORD style = 0)
{
    DialogTemplate form(CRect(20, 20, 200, 140), WS_POPUP | WS_CAPTION | WS_SYSMENU | style,
                        "Form");
    form.Add("Edit", "", WS_BORDER | WS_TABSTOP, CRect(5, 5, 60, 17), IdEdit)
        .Add("Edit", "", WS_BORDER | WS_TABSTOP, CRect(5, 20, 60, 32), IdNumber)
        .Add("Button", "Check", BS_AUTOCHECKBOX | WS_TABSTOP, CRect(5, 35, 60, 47), IdCheck)
        .Add("Button", "A", BS_AUTORADIOBUTTON | WS_GROUP, CRect(5, 50, 60, 62), IdFirstRadio)
        .Add("Button", "B", BS_AUTORADIOBUTTON, CRect(5, 64, 60, 76), IdSecondRadio)
        .Add("ListBox", "", WS_GROUP, CRect(80, 5, 140, 60), IdList)
        .Add("ComboBox", "", CBS_DROPDOWNLIST, CRect(80, 65, 140, 120), IdCombo)
        .Add("ComboBox", "", CBS_DROPDOWN, CRect(80, 80, 140, 120), IdTypedCombo)
        .Add("Button", "OK", BS_DEFPUSHBUTTON | WS_TABSTOP, CRect(5, 90, 50, 104), IDOK)
        .Add("Button", "Cancel", WS_TABSTOP, CRect(60, 90, 105, 104), IDCANCEL);
    return form;
}

class Form : public Scripted<CDialog>
{
public:
    explicit Form(const DialogTemplate& form, CWnd* parent = nullptr)
    {
        InitModalIndirect(form, parent);
    }

    std::function<void()> inInit = [] {};

    CString text = "some text";
    int number = 42;
    int check = 1;
    int radio = 1;
    int row = 2;
    CListBox list;
    bool seen = false; // by the user

    using CDialog::CreateIndirect;
    using CDialog::OnOK;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        seen = seen || (message == WM_WINDOWPOSCHANGED &&
                        (reinterpret_cast<WINDOWPOS*>(lParam)->flags & SWP_SHOWWINDOW) != 0);
        return Scripted::WindowProc(message, wParam, lParam);
    }
    void DoDataExchange(CDataExchange* exchange) override
    {
        CDialog::DoDataExchange(exchange);
        if (list.GetSafeHwnd() == nullptr)
        {
            DDX_Control(exchange, IdList, list);
            for (const char* item : {"a", "b", "c"})
            {
                list.AddString(item);
            }
        }
        DDX_Text(exchange, IdEdit, text);
        DDV_MaxChars(exchange, text, 9);
        DDX_Text(exchange, IdNumber, number);
        DDV_MinMaxInt(exchange, number, -10, 42);
        DDX_Check(exchange, IdCheck, check);
        DDX_Radio(exchange, IdFirstRadio, radio);
        DDX_LBIndex(exchange, IdList, row);
    }
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        inInit();
        return TRUE;
    }
};

class DialogTest : public WindowTest
{
protected:
    const DialogTemplate form = FormTemplate();
};

TEST_F(DialogTest, AModalDialogReturnsWhatEndedItAndDisablesItsOwnerMeanwhile)
{
    Form dialog(form, &Host());
    int round = 1;
    CWnd held; // by a press that a timer's dialog comes into
    held.CreateEx(0, "STATIC", "", WS_POPUP | WS_VISIBLE, CRect(20, 20, 80, 80), nullptr, 0);
    dialog.inLoop = [&] {
        EXPECT_EQ(::GetCapture(), nullptr);
        EXPECT_FALSE(Host().IsWindowEnabled());
        EXPECT_EQ(::GetFocus(), ::GetDlgItem(dialog, IdEdit)) << "the first tab stop";
        EXPECT_EQ(dialog.DoModal(), -1) << "it has its window";
        EXPECT_FALSE(dialog.CreateIndirect(form, &Host()));
        EXPECT_FALSE(Host().IsWindowEnabled());
        EXPECT_EQ(dialog.gone, round - 1);
        Form inner(form, &dialog);
        inner.inLoop = [&] {
            EXPECT_FALSE(dialog.IsWindowEnabled());
            inner.EndDialog(2);
        };
        EXPECT_EQ(inner.DoModal(), 2);
        EXPECT_TRUE(dialog.IsWindowEnabled());
        EXPECT_FALSE(Host().IsWindowEnabled());
        dialog.EndDialog(4711);
    };
    for (; round <= 2; ++round) // an object can run more than once
    {
        held.SetCapture();
        EXPECT_EQ(dialog.DoModal(), 4711);
        EXPECT_TRUE(Host().IsWindowEnabled());
        EXPECT_EQ(::GetActiveWindow(), Host().m_hWnd);
        EXPECT_EQ(dialog.list.GetSafeHwnd(), nullptr) << "its controls ended with it";
        EXPECT_EQ(dialog.gone, round);
    }
}

// The program's main window, for as long as this lives.
class MainWindowScope
{
public:
    explicit MainWindowScope(CWnd& window) { AfxGetApp()->m_pMainWnd = &window; }
    MainWindowScope(const MainWindowScope&) = delete;
    MainWindowScope& operator=(const MainWindowScope&) = delete;
    ~MainWindowScope() { AfxGetApp()->m_pMainWnd = nullptr; }
};

TEST_F(DialogTest, OneWithoutAParentDisablesTheWindowInUseAndThoseItBelongsTo)
{
    const MainWindowScope main(Host());
    for (const bool overModal : {true, false})
    {
        SCOPED_TRACE(overModal);
        Form below(form, &Host());
        const std::function<void(CWnd&, CWnd&)> ask = [&](CWnd& inUse, CWnd& owner) {
            Form box(form);
            box.inLoop = [&] {
                EXPECT_EQ(::GetWindow(box, GW_OWNER), owner.m_hWnd);
                EXPECT_FALSE(inUse.IsWindowEnabled() || Host().IsWindowEnabled());
                EXPECT_FALSE(below.IsWindowEnabled()) << "its loop is the outer one";
                if (&inUse == &below && overModal)
                {
                    ask(box, box);
                }
                box.EndDialog(2);
            };
            EXPECT_EQ(box.DoModal(), 2);
            EXPECT_TRUE(inUse.IsWindowEnabled());
            EXPECT_EQ(::GetActiveWindow(), inUse.m_hWnd);
        };
        if (overModal)
        {
            below.inLoop = [&] {
                ask(below, below);
                Form tool(form);
                ASSERT_TRUE(tool.CreateIndirect(form, &Host()));
                tool.ShowWindow(SW_SHOW);
                ask(tool, Host());
                EXPECT_TRUE(below.IsWindowEnabled());
                EXPECT_FALSE(Host().IsWindowEnabled()) << "as the box found it";
                below.EndDialog(1);
            };
            EXPECT_EQ(below.DoModal(), 1);
        }
        else
        {
            ASSERT_TRUE(below.CreateIndirect(form, &Host()));
            below.ShowWindow(SW_SHOW);
            ask(below, Host());
            Form box(form);
            box.inLoop = [&] {
                below.ShowWindow(SW_HIDE);
                box.EndDialog(2);
            };
            EXPECT_EQ(box.DoModal(), 2);
            EXPECT_EQ(::GetActiveWindow(), Host().m_hWnd) << "keys go to what is to be seen";
        }
        EXPECT_TRUE(Host().IsWindowEnabled());
    }
}

TEST_F(DialogTest, WhatItsCallersFoundOutlastsItAndWhatIsFoundInItDoesNot)
{
    // A context that was given another one to ask is that very object as long as it does.
    CDC other;
    ASSERT_TRUE(other.CreateCompatibleDC(nullptr));
    const HDC handles[] = {::GetWindowDC(Host()), ::GetWindowDC(nullptr)};
    const auto mark = [&](HDC handle) { CDC::FromHandle(handle)->SetAttribDC(other); };
    const auto isMarked = [&](HDC handle) {
        return CDC::FromHandle(handle)->m_hAttribDC == other.m_hDC;
    };
    const HWND desktop = ::GetDesktopWindow();
    mark(handles[0]);
    CWnd* const found = CWnd::FromHandle(desktop);
    Host().AlsoRecord({WM_ENTERIDLE});
    for (const bool marksInside : {true, false})
    {
        Form dialog(form, &Host());
        dialog.inLoop = [&] { // not for ever
            ::SetTimer(dialog, 1, 3000, [](HWND window, UINT, UINT_PTR, DWORD) {
                static_cast<CDialog*>(CWnd::FromHandlePermanent(window))->EndDialog(-9);
            });
        };
        std::optional<MessageLog> log;
        dialog.inInit = [&] { log.emplace(dialog, std::initializer_list<UINT>{WM_KICKIDLE}); };
        int idle = 0;
        Host().hook = [&](ToldMessage& told) {
            if (told.message != WM_ENTERIDLE || !dialog.shown)
            {
                return;
            }
            EXPECT_EQ(told.wParam, WPARAM(MSGF_DIALOGBOX));
            EXPECT_EQ(told.lParam, reinterpret_cast<LPARAM>(dialog.m_hWnd));
            EXPECT_TRUE(isMarked(handles[0]));
            EXPECT_EQ(CWnd::FromHandle(desktop), found);
            EXPECT_EQ(isMarked(handles[1]), !marksInside);
            if (++idle == 1 && marksInside)
            {
                mark(handles[1]);
                dialog.PostMessage(WM_NULL); // and once more
                return;
            }
            EXPECT_EQ(log->Count(WM_KICKIDLE), idle - 1) << "after its owner";
            dialog.EndDialog(3);
        };
        EXPECT_EQ(dialog.DoModal(), 3);
        mark(handles[1]); // found in there, and now by one who waits outside
    }
    Host().hook = nullptr;
    ::ReleaseDC(Host(), handles[0]);
    ::ReleaseDC(nullptr, handles[1]);
}

TEST_F(DialogTest, AModelessOneWithoutAParentBelongsToTheMainWindow)
{
    const MainWindowScope main(Host());
    Form dialog(form);
    dialog.inInit = &AfxThrowUserException;
    EXPECT_FALSE(dialog.CreateIndirect(form)) << "it was not initialised";
    EXPECT_EQ(dialog.GetSafeHwnd(), nullptr);
    dialog.inInit = [] {};
    ASSERT_TRUE(dialog.CreateIndirect(form));
    EXPECT_EQ(::GetWindow(dialog, GW_OWNER), Host().m_hWnd);
    CDialog child;
    ASSERT_TRUE(child.CreateIndirect(DialogTemplate(CRect(0, 0, 80, 40), WS_CHILD)));
    EXPECT_EQ(child.GetParent(), &Host());
    CDialog itself;
    const MainWindowScope other(itself);
    EXPECT_TRUE(itself.CreateIndirect(DialogTemplate(CRect(0, 0, 80, 40))));
    EXPECT_EQ(::GetWindow(itself, GW_OWNER), nullptr);
    EXPECT_EQ(AfxGetMainWnd(), &itself);
}

TEST_F(DialogTest, KeysButtonsAndItsOwnHandlersEndIt)
{
    // Whether at its initialisation, and so it is never shown; the act; what the dialog returns.
    const std::tuple<bool, std::function<void(Form&)>, INT_PTR> cases[] = {
        {false, [](Form&) { TypeKey(VK_RETURN); }, IDOK},
        {false, [](Form&) { TypeKey(VK_ESCAPE); }, IDCANCEL},
        {false, [](Form& d) { Click(ClientPoint(*d.GetDlgItem(IDCANCEL), CPoint(10, 5))); },
         IDCANCEL},
        {false, [](Form& d) { d.SendMessage(WM_CLOSE); }, IDCANCEL},
        {false, [](Form& d) { d.DestroyWindow(); }, -1},
        {true, [](Form& d) { d.DestroyWindow(); }, -1},
        {true, [](Form& d) { d.EndDialog(9); }, 9},
        {true, [](Form&) { AfxThrowUserException(); }, -1},
        {false, [](Form&) { ::PostQuitMessage(5); }, -1},
    };
    const DialogTemplate visible = FormTemplate(WS_VISIBLE);
    for (const auto& [inInit, act, result] : cases)
    {
        SCOPED_TRACE(testing::Message() << inInit << result);
        Form dialog(inInit ? visible : form, &Host());
        (inInit ? dialog.inInit : dialog.inLoop) = [&, &act = act] { act(dialog); };
        EXPECT_EQ(dialog.DoModal(), result);
        EXPECT_EQ(dialog.gone, 1);
        EXPECT_EQ(dialog.seen, !inInit);
        EXPECT_EQ(dialog.GetSafeHwnd(), nullptr);
        EXPECT_TRUE(Host().IsWindowEnabled());
    }
    EXPECT_TRUE(TakeQuit()) << "the outer loop has to end too";
}

// Exchange --------------------------------------------------------------------------------------

TEST_F(DialogTest, DataGoesBothWays)
{
    Form dialog(form);
    ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
    dialog.ShowWindow(SW_SHOW);
    EXPECT_TRUE(Host().IsWindowEnabled()) << "a modeless one";
    CString shown;
    dialog.GetDlgItemText(IdEdit, shown);
    EXPECT_STREQ(shown, "some text");
    EXPECT_EQ(::GetDlgItemInt(dialog, IdNumber, nullptr, TRUE), 42U);
    EXPECT_TRUE(dialog.IsDlgButtonChecked(IdCheck) && dialog.IsDlgButtonChecked(IdSecondRadio));
    EXPECT_EQ(dialog.list.GetCurSel(), 2);

    dialog.GetDlgItem(IdEdit)->SetFocus();
    TypeText("new");
    TypeKey(VK_TAB); // selects what it comes to
    TypeText("-7");
    TypeKey(VK_TAB);
    TypeKey(VK_SPACE);
    ::CheckRadioButton(dialog, IdFirstRadio, IdSecondRadio, IdFirstRadio);
    dialog.list.SetCurSel(-1);
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_STREQ(dialog.text.Left(3), "new");
    EXPECT_EQ(std::tuple(dialog.number, dialog.check, dialog.radio, dialog.row),
              std::tuple(-7, 0, 0, LB_ERR));

    ::CheckDlgButton(dialog, IdFirstRadio, BST_UNCHECKED);
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(dialog.radio, -1) << "none is checked";
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(dialog.IsDlgButtonChecked(IdSecondRadio), UINT(BST_UNCHECKED));
}

TEST_F(DialogTest, ARefusedValueKeepsTheDialogOpen)
{
    constexpr UINT AnswerBox = WM_APP + 4;
    // The control, what is typed into it, and the number that the dialog has then.
    const std::tuple<int, const char*, int> cases[] = {
        {IdNumber, "seven", 42},       {IdNumber, "", 42},   {IdNumber, "7 or so", 42},
        {IdNumber, "99999999999", 42}, {IdNumber, "43", 43}, {IdEdit, "more than 9", 42},
    };
    for (const auto& [control, refused, number] : cases)
    {
        SCOPED_TRACE(refused);
        Form dialog(form, &Host());
        int boxes = 0;
        Host().AlsoRecord({AnswerBox});
        Host().hook = [&](ToldMessage& told) {
            const HWND box = ::GetLastActivePopup(dialog);
            if (told.message == AnswerBox && box != dialog.m_hWnd)
            {
                ++boxes;
                ::SendMessage(box, WM_COMMAND, IDOK, 0);
            }
        };
        dialog.inLoop = [&, &control = control, &refused = refused] {
            dialog.SetDlgItemText(control, refused);
            Host().PostMessage(AnswerBox);
            dialog.OnOK();
            EXPECT_NE(dialog.GetSafeHwnd(), nullptr);
            EXPECT_EQ(::GetFocus(), ::GetDlgItem(dialog, control)) << "where the mistake is";
            dialog.EndDialog(3);
        };
        EXPECT_EQ(dialog.DoModal(), 3);
        EXPECT_EQ(boxes, 1) << "the user is told";
        EXPECT_EQ(dialog.number, number);
    }
}

// What a member reads after another one was written.
template <class Value, class Exchange>
Value AfterWriting(Form& dialog, int id, Value written, Exchange exchange)
{
    CDataExchange toControl(&dialog, FALSE);
    exchange(&toControl, id, written);
    CDataExchange toMember(&dialog, TRUE);
    Value read = {};
    exchange(&toMember, id, read);
    return read;
}

TEST_F(DialogTest, ItemsAreExchangedByTheirTextsAndNumbersAsTheirTypes)
{
    Form dialog(form);
    ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
    dialog.list.ResetContent();
    for (const char* item : {"alphabet", "Alpha", "beta"})
    {
        dialog.list.AddString(item);
        dialog.SendDlgItemMessage(IdCombo, CB_ADDSTRING, 0, LPARAM(item));
        dialog.SendDlgItemMessage(IdTypedCombo, CB_ADDSTRING, 0, LPARAM(item));
    }
    using ExchangeText = void(AFXAPI*)(CDataExchange*, int, CString&);
    const std::tuple<int, ExchangeText, const char*, const char*> texts[] = {
        {IdList, &DDX_LBString, "ALPHA", "alphabet"},
        {IdList, &DDX_LBStringExact, "ALPHA", "Alpha"},
        {IdList, &DDX_LBString, "gamma", ""},
        {IdList, &DDX_LBString, "", ""},
        {IdCombo, &DDX_CBString, "ALPHA", "alphabet"},
        {IdCombo, &DDX_CBStringExact, "ALPHA", "Alpha"},
        {IdCombo, &DDX_CBString, "gamma", ""},
        {IdTypedCombo, &DDX_CBString, "bet", "beta"},
        {IdTypedCombo, &DDX_CBStringExact, "bet", "bet"},
    };
    for (const auto& [id, exchange, written, read] : texts)
    {
        EXPECT_STREQ(AfterWriting(dialog, id, CString(written), exchange), read) << written;
    }
    EXPECT_EQ(AfterWriting(dialog, IdCombo, 2, &DDX_CBIndex), 2);
    EXPECT_EQ(AfterWriting(dialog, IdCombo, -1, &DDX_CBIndex), 0);

    const auto number = [&](auto value) {
        using Number = decltype(value);
        void(AFXAPI * exchange)(CDataExchange*, int, Number&) = &DDX_Text;
        EXPECT_EQ(AfterWriting(dialog, IdNumber, value, exchange), value);
    };
    number(BYTE(255));
    number(short(-32768));
    number(4294967295U);
    number(-2147483647L);
    number(DWORD(4294967295));
    number(2.5F);
    number(-1.25e-7);
}

} // namespace
