#include "dialogs/dialog_for_tests.h"

#include "CustomCheckBox.h"
#include "CustomRadiobutton.h"

namespace {

enum : WORD
{
    IdFirst = 201,
    IdSecond,
    IdThird,
    IdCheck,
};

// A form with a radio group and a check box, as a host makes it.
class ChoiceForm : public DialogForTests
{
public:
    using DialogForTests::DialogForTests;

    CCustomRadiobutton radios[3];
    CCustomCheckBox check;

    BOOL OnInitDialog() override
    {
        for (int index = 0; index < 3; ++index)
        {
            radios[index].SubclassDlgItem(UINT(IdFirst + index), this);
        }
        check.SubclassDlgItem(IdCheck, this);
        return DialogForTests::OnInitDialog();
    }

    // "x" for each that is chosen.
    std::string Chosen() const
    {
        std::string chosen;
        for (const CCustomRadiobutton& radio : radios)
        {
            chosen += radio.GetCheck() == BST_CHECKED ? 'x' : '-';
        }
        return chosen + (check.GetCheck() == BST_CHECKED ? " x" : " -");
    }
};

CPoint Middle(const CWnd& window)
{
    return ClientPoint(window, ClientRectOf(window).CenterPoint());
}

TEST_F(CustomDialogTest, AFormIsWorkedByPointerAndByKeyboardInItsModalLoop)
{
    TemplateBytes bytes({.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE});
    bytes
        .Add(u"Button", u"One", BS_AUTORADIOBUTTON | WS_GROUP | WS_TABSTOP, CRect(5, 5, 60, 17),
             IdFirst)
        .Add(u"Button", u"Two", BS_AUTORADIOBUTTON, CRect(5, 20, 60, 32), IdSecond)
        .Add(u"Button", u"Three", BS_AUTORADIOBUTTON, CRect(5, 35, 60, 47), IdThird)
        .Add(u"Button", u"Check", BS_AUTOCHECKBOX | WS_GROUP | WS_TABSTOP, CRect(5, 50, 60, 62),
             IdCheck)
        .Add(u"Button", u"OK", BS_DEFPUSHBUTTON | WS_GROUP | WS_TABSTOP, CRect(5, 70, 60, 84),
             IDOK);
    for (const APPMODE mode : {STD, FULLSCREEN, ONBOARD, EFB, EFBFS})
    {
        SCOPED_TRACE(mode);
        const ModeScope scope(mode);
        ChoiceForm form(&Host());
        form.InitModalIndirect(bytes, &Host());
        form.inLoop = [&] {
            Click(Middle(form.radios[1]));
            EXPECT_EQ(form.Chosen(), "-x- -");
            Click(Middle(form.radios[2]));
            EXPECT_EQ(form.Chosen(), "--x -");
            TypeKey(VK_UP);
            EXPECT_EQ(form.Chosen(), "-x- -") << "an arrow key chooses";
            EXPECT_EQ(CWnd::GetFocus(), &form.radios[1]);
            TypeKey(VK_DOWN);
            TypeKey(VK_DOWN);
            EXPECT_EQ(form.Chosen(), "x-- -") << "round the group";
            TypeKey(VK_TAB);
            EXPECT_EQ(CWnd::GetFocus(), &form.check);
            TypeKey(VK_SPACE);
            EXPECT_EQ(form.Chosen(), "x-- x");
            Click(Middle(form.check));
            EXPECT_EQ(form.Chosen(), "x-- -");
            TypeKey(VK_TAB, VK_SHIFT);
            EXPECT_EQ(CWnd::GetFocus(), &form.radios[0]) << "the chosen one";
            TypeKey(VK_RETURN);
        };
        EXPECT_EQ(form.DoModal(), IDOK);
    }
}

} // namespace
