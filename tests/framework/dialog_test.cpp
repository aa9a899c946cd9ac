#include "support/DialogTemplate.h"
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
    IdBroken, // no control has it
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

constexpr UINT RunScript = WM_APP + 3;

// A dialog on which a test acts once it is shown and its loop runs.
class Form : public CDialog
{
public:
    explicit Form(const DialogTemplate& form, CWnd* parent = nullptr)
    {
        InitModalIndirect(form, parent);
    }

    std::function<void()> inInit;
    std::function<void()> inLoop;
    BOOL focusByPlatform = TRUE;
    int initCount = 0;
    int goneCount = 0;
    bool shown = false;

    CString text = "some text";
    int number = 42;
    int check = 1;
    int radio = 1;
    int row = 2;
    int brokenId = 0;
    CListBox list;
    COLORREF background = CLR_INVALID;

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
        if (brokenId != 0)
        {
            DDX_Text(exchange, brokenId, text);
        }
    }
    BOOL OnInitDialog() override
    {
        ++initCount;
        CDialog::OnInitDialog();
        if (inInit)
        {
            inInit();
        }
        return focusByPlatform;
    }
    void PostNcDestroy() override
    {
        ++goneCount;
        CDialog::PostNcDestroy();
    }
    LRESULT OnScript(WPARAM, LPARAM)
    {
        inLoop();
        return 0;
    }
    void OnShowWindow(BOOL show, UINT status)
    {
        shown = shown || show;
        if (show && inLoop)
        {
            PostMessage(RunScript);
        }
        CDialog::OnShowWindow(show, status);
    }
    HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind)
    {
        return background != CLR_INVALID && kind == CTLCOLOR_DLG
                   ? static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH))
                   : CDialog::OnCtlColor(dc, control, kind);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Form, CDialog)
    ON_MESSAGE(RunScript, &Form::OnScript)
    ON_WM_SHOWWINDOW()
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

class DialogTest : public WindowTest
{
protected:
    const DialogTemplate form = FormTemplate();
};

// Modal -----------------------------------------------------------------------------------------

TEST_F(DialogTest, AModalDialogReturnsWhatEndedItAndDisablesItsOwnerMeanwhile)
{
    Form dialog(form, &Host());
    BOOL ownerEnabled = TRUE;
    HWND active = nullptr;
    HWND focused = nullptr;
    dialog.inLoop = [&] {
        ownerEnabled = Host().IsWindowEnabled();
        active = ::GetActiveWindow();
        focused = ::GetFocus();
        EXPECT_EQ(::GetDlgItem(dialog, IdEdit), focused) << "the first tab stop";
        EXPECT_EQ(active, dialog.m_hWnd);
        dialog.EndDialog(4711);
    };
    for (int round = 1; round <= 2; ++round) // an object can run more than once
    {
        EXPECT_EQ(dialog.DoModal(), 4711);
        EXPECT_FALSE(ownerEnabled);
        EXPECT_TRUE(Host().IsWindowEnabled());
        EXPECT_EQ(::GetActiveWindow(), Host().m_hWnd);
        EXPECT_EQ(dialog.GetSafeHwnd(), nullptr);
        EXPECT_EQ(dialog.list.GetSafeHwnd(), nullptr) << "its controls ended with it";
        EXPECT_EQ(dialog.goneCount, round);
    }
}

TEST_F(DialogTest, KeysAndButtonsEndIt)
{
    const struct
    {
        UINT key;
        INT_PTR expected;
    } cases[] = {{VK_RETURN, IDOK}, {VK_ESCAPE, IDCANCEL}};
    for (const auto& each : cases)
    {
        Form dialog(form, &Host());
        dialog.inLoop = [&] { TypeKey(each.key); };
        EXPECT_EQ(dialog.DoModal(), each.expected);
    }
    Form clicked(form, &Host());
    clicked.inLoop = [&] {
        CWnd* const cancel = clicked.GetDlgItem(IDCANCEL);
        Click(ClientPoint(*cancel, CPoint(10, 5)));
    };
    EXPECT_EQ(clicked.DoModal(), IDCANCEL);
    Form closed(form, &Host());
    closed.inLoop = [&] { closed.SendMessage(WM_CLOSE); };
    EXPECT_EQ(closed.DoModal(), IDCANCEL);
}

TEST_F(DialogTest, EndedInItsInitialisationItIsNeverShown)
{
    Form dialog(form, &Host());
    dialog.inInit = [&] { dialog.EndDialog(9); };
    EXPECT_EQ(dialog.DoModal(), 9);
    EXPECT_FALSE(dialog.shown);
    EXPECT_TRUE(Host().IsWindowEnabled());
}

TEST_F(DialogTest, AModalDialogSurvivesItsSuddenEnd)
{
    Form destroyed(form, &Host());
    destroyed.inLoop = [&] { destroyed.DestroyWindow(); };
    EXPECT_EQ(destroyed.DoModal(), -1);
    EXPECT_EQ(destroyed.goneCount, 1);
    EXPECT_TRUE(Host().IsWindowEnabled());

    Form inInit(form, &Host());
    inInit.inInit = [&] { inInit.DestroyWindow(); };
    EXPECT_EQ(inInit.DoModal(), -1);
    EXPECT_EQ(inInit.goneCount, 1);
    EXPECT_TRUE(Host().IsWindowEnabled());

    Form quits(form, &Host());
    quits.inLoop = [] { ::PostQuitMessage(5); };
    EXPECT_EQ(quits.DoModal(), -1);
    EXPECT_TRUE(TakeQuit()) << "the outer loop has to end too";
    EXPECT_EQ(quits.GetSafeHwnd(), nullptr);
    EXPECT_TRUE(Host().IsWindowEnabled());
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
    INT_PTR innerResult = 0;
    outer.inLoop = [&] {
        Form inner(form, &outer);
        inner.inLoop = [&] {
            EXPECT_FALSE(outer.IsWindowEnabled());
            inner.EndDialog(2);
        };
        innerResult = inner.DoModal();
        EXPECT_TRUE(outer.IsWindowEnabled());
        EXPECT_FALSE(Host().IsWindowEnabled());
        outer.EndDialog(1);
    };
    EXPECT_EQ(outer.DoModal(), 1);
    EXPECT_EQ(innerResult, 2);
}

// Modeless --------------------------------------------------------------------------------------

TEST_F(DialogTest, AModelessDialogIsWorkedByKeys)
{
    const DialogTemplate visible = FormTemplate(WS_POPUP | WS_CAPTION | WS_VISIBLE);
    Form dialog(visible);
    dialog.background = RGB(0, 0, 0);
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

    const CRect client = ClientRectOf(dialog);
    CPoint corner = client.BottomRight() - CPoint(3, 3);
    dialog.ClientToScreen(&corner);
    EXPECT_EQ(WindowPixels(dialog).At(corner - WindowRectOf(dialog).TopLeft()), RGB(0, 0, 0))
        << "its own background brush";

    dialog.DestroyWindow();
    EXPECT_EQ(dialog.goneCount, 1);
    EXPECT_EQ(dialog.list.GetSafeHwnd(), nullptr);
}

TEST_F(DialogTest, TheFocusStaysWhereTheInitialisationPutIt)
{
    const DialogTemplate visible = FormTemplate(WS_POPUP | WS_VISIBLE);
    Form dialog(visible);
    dialog.focusByPlatform = FALSE;
    dialog.inInit = [&] { ::SetFocus(::GetDlgItem(dialog, IdCheck)); };
    ASSERT_TRUE(dialog.CreateIndirect(visible, &Host()));
    EXPECT_EQ(::GetFocus(), ::GetDlgItem(dialog, IdCheck));
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
    EXPECT_EQ(dialog.IsDlgButtonChecked(IdFirstRadio), UINT(BST_UNCHECKED));
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

    dialog.brokenId = IdBroken;
    EXPECT_FALSE(dialog.UpdateData(TRUE));
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
