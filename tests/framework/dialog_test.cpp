#include "support/DialogTemplate.h"
#include "support/Scripted.h"
#include "support/WindowTest.h"

#include <functional>

namespace {

enum : WORD
{
    IdEdit = 101,
    IdNumber,
    IdCheck,
    IdFirstRadio,
    IdSecondRadio,
    IdList,
};

DialogTemplate FormTemplate(DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU)
{
    DialogTemplate form(CRect(20, 20, 200, 140), style, "Form");
    form.Add("Edit", "", WS_BORDER | WS_TABSTOP, CRect(5, 5, 60, 17), IdEdit)
        .Add("Edit", "", WS_BORDER | WS_TABSTOP, CRect(5, 20, 60, 32), IdNumber)
        .Add("Button", "Check", BS_AUTOCHECKBOX | WS_TABSTOP, CRect(5, 35, 60, 47), IdCheck)
        .Add("Button", "A", BS_AUTORADIOBUTTON | WS_GROUP, CRect(5, 50, 60, 62), IdFirstRadio)
        .Add("Button", "B", BS_AUTORADIOBUTTON, CRect(5, 64, 60, 76), IdSecondRadio)
        .Add("ListBox", "", WS_GROUP, CRect(80, 5, 140, 60), IdList)
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

    std::function<void()> inInit;

    CString text = "some text";
    int number = 42;
    int check = 1;
    int radio = 1;
    int row = 2;
    CListBox list;

    using CDialog::CreateIndirect;
    using CDialog::OnOK;

protected:
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
        DDX_Text(exchange, IdNumber, number);
        DDX_Check(exchange, IdCheck, check);
        DDX_Radio(exchange, IdFirstRadio, radio);
        DDX_LBIndex(exchange, IdList, row);
    }
    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        if (inInit)
        {
            inInit();
        }
        return TRUE;
    }
};

class DialogTest : public WindowTest
{
protected:
    const DialogTemplate form = FormTemplate();
};

// Modal -----------------------------------------------------------------------------------------

TEST_F(DialogTest, AModalDialogReturnsWhatEndedItAndDisablesItsOwnerMeanwhile)
{
    Form dialog(form, &Host());
    dialog.inLoop = [&] {
        EXPECT_FALSE(Host().IsWindowEnabled());
        EXPECT_EQ(::GetFocus(), ::GetDlgItem(dialog, IdEdit)) << "the first tab stop";
        EXPECT_EQ(::GetActiveWindow(), dialog.m_hWnd);
        dialog.EndDialog(4711);
    };
    for (int round = 1; round <= 2; ++round) // an object can run more than once
    {
        EXPECT_EQ(dialog.DoModal(), 4711);
        EXPECT_TRUE(Host().IsWindowEnabled());
        EXPECT_EQ(::GetActiveWindow(), Host().m_hWnd);
        EXPECT_EQ(dialog.list.GetSafeHwnd(), nullptr) << "its controls ended with it";
        EXPECT_EQ(dialog.gone, round);
    }
}

TEST_F(DialogTest, KeysAndButtonsEndIt)
{
    const struct
    {
        std::function<void(Form&)> act;
        INT_PTR expected;
    } cases[] = {
        {[](Form&) { TypeKey(VK_RETURN); }, IDOK},
        {[](Form&) { TypeKey(VK_ESCAPE); }, IDCANCEL},
        {[](Form& d) { Click(ClientPoint(*d.GetDlgItem(IDCANCEL), CPoint(10, 5))); }, IDCANCEL},
        {[](Form& d) { d.SendMessage(WM_CLOSE); }, IDCANCEL},
        {[](Form& d) { d.DestroyWindow(); }, -1},
        {[](Form&) { ::PostQuitMessage(5); }, -1},
    };
    for (const auto& each : cases)
    {
        Form dialog(form, &Host());
        dialog.inLoop = [&] { each.act(dialog); };
        EXPECT_EQ(dialog.DoModal(), each.expected);
        EXPECT_EQ(dialog.gone, 1);
        EXPECT_EQ(dialog.GetSafeHwnd(), nullptr);
        EXPECT_TRUE(Host().IsWindowEnabled());
    }
    EXPECT_TRUE(TakeQuit()) << "the outer loop has to end too";
}

TEST_F(DialogTest, EndedInItsInitialisationItIsNeverShown)
{
    for (const bool destroyed : {false, true})
    {
        Form dialog(form, &Host());
        dialog.inInit = [&] { destroyed ? dialog.DestroyWindow() : (dialog.EndDialog(9), TRUE); };
        EXPECT_EQ(dialog.DoModal(), destroyed ? -1 : 9);
        EXPECT_EQ(dialog.gone, 1);
        EXPECT_FALSE(dialog.shown);
        EXPECT_TRUE(Host().IsWindowEnabled());
    }
}

TEST_F(DialogTest, WithoutATemplateItDoesNotStart)
{
    CDialog missing(UINT(31999), &Host());
    EXPECT_EQ(missing.DoModal(), -1);
    DialogTemplate unknownClass(CRect(0, 0, 50, 50));
    unknownClass.Add("no such class", "", 0, CRect(1, 1, 9, 9), 1);
    CDialog broken;
    broken.InitModalIndirect(unknownClass, &Host());
    EXPECT_EQ(broken.DoModal(), -1);
    EXPECT_TRUE(Host().IsWindowEnabled());
}

TEST_F(DialogTest, DialogsNest)
{
    Form outer(form, &Host());
    outer.inLoop = [&] {
        Form inner(form, &outer);
        inner.inLoop = [&] {
            EXPECT_FALSE(outer.IsWindowEnabled());
            inner.EndDialog(2);
        };
        EXPECT_EQ(inner.DoModal(), 2);
        EXPECT_TRUE(outer.IsWindowEnabled());
        EXPECT_FALSE(Host().IsWindowEnabled());
        outer.EndDialog(1);
    };
    EXPECT_EQ(outer.DoModal(), 1);
}

// Modeless --------------------------------------------------------------------------------------

TEST_F(DialogTest, AModelessDialogIsWorkedByKeys)
{
    const DialogTemplate visible = FormTemplate(WS_POPUP | WS_CAPTION | WS_VISIBLE);
    Form dialog(visible);
    ASSERT_TRUE(dialog.CreateIndirect(visible, &Host()));
    PumpAll();
    EXPECT_TRUE(Host().IsWindowEnabled());
    EXPECT_EQ(::GetFocus(), ::GetDlgItem(dialog, IdEdit));
    TypeText("new");
    TypeKey(VK_TAB);
    TypeText("17");
    EXPECT_EQ(::GetFocus(), ::GetDlgItem(dialog, IdNumber));
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_STREQ(dialog.text, "new");
    EXPECT_EQ(dialog.number, 17);

    dialog.DestroyWindow();
    EXPECT_EQ(dialog.gone, 1);
    EXPECT_EQ(dialog.list.GetSafeHwnd(), nullptr);
}

// Exchange --------------------------------------------------------------------------------------

TEST_F(DialogTest, DataGoesBothWays)
{
    Form dialog(form);
    ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
    CString shown;
    dialog.GetDlgItemText(IdEdit, shown);
    EXPECT_STREQ(shown, "some text");
    EXPECT_EQ(::GetDlgItemInt(dialog, IdNumber, nullptr, TRUE), 42U);
    EXPECT_EQ(dialog.IsDlgButtonChecked(IdCheck), UINT(BST_CHECKED));
    EXPECT_EQ(dialog.IsDlgButtonChecked(IdSecondRadio), UINT(BST_CHECKED));
    EXPECT_EQ(dialog.list.GetCurSel(), 2);

    dialog.SetDlgItemText(IdEdit, "");
    dialog.SetDlgItemText(IdNumber, "-7");
    dialog.CheckDlgButton(IdCheck, BST_UNCHECKED);
    ::CheckRadioButton(dialog, IdFirstRadio, IdSecondRadio, IdFirstRadio);
    dialog.list.SetCurSel(-1);
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_STREQ(dialog.text, "");
    EXPECT_EQ(dialog.number, -7);
    EXPECT_EQ(dialog.check, 0);
    EXPECT_EQ(dialog.radio, 0);
    EXPECT_EQ(dialog.row, LB_ERR);

    ::CheckDlgButton(dialog, IdFirstRadio, BST_UNCHECKED);
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_EQ(dialog.radio, -1) << "none is checked";
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(dialog.IsDlgButtonChecked(IdSecondRadio), UINT(BST_UNCHECKED));
}

TEST_F(DialogTest, ARefusedValueKeepsTheDialogOpen)
{
    constexpr UINT AnswerBox = WM_APP + 4;
    for (const char* refused : {"seven", "", "7 or so", "99999999999"})
    {
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
        dialog.inLoop = [&] {
            dialog.SetDlgItemText(IdNumber, refused);
            Host().PostMessage(AnswerBox);
            dialog.OnOK();
            EXPECT_NE(dialog.GetSafeHwnd(), nullptr);
            EXPECT_EQ(::GetFocus(), ::GetDlgItem(dialog, IdNumber)) << "where the mistake is";
            dialog.EndDialog(3);
        };
        EXPECT_EQ(dialog.DoModal(), 3) << refused;
        EXPECT_EQ(boxes, 1) << refused << ": the user is told";
        EXPECT_EQ(dialog.number, 42);
    }
}

} // namespace
