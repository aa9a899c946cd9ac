#include "dialogs/dialog_for_tests.h"

#include "CustomCheckBox.h"
#include "CustomRadiobutton.h"

namespace {

// A form with a radio group and a check box, as a host makes it.
TEST_F(CustomDialogTest, AFormIsWorkedByPointerAndByKeyboardInItsModalLoop)
{
    constexpr WORD FirstRadio = 201;
    constexpr WORD Check = 204;
    DialogTemplate bytes({.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE});
    bytes
        .Add("Button", "One", BS_AUTORADIOBUTTON | WS_GROUP | WS_TABSTOP, CRect(5, 5, 60, 17),
             FirstRadio)
        .Add("Button", "Two", BS_AUTORADIOBUTTON, CRect(5, 20, 60, 32), FirstRadio + 1)
        .Add("Button", "Three", BS_AUTORADIOBUTTON, CRect(5, 35, 60, 47), FirstRadio + 2)
        .Add("Button", "Check", BS_AUTOCHECKBOX | WS_GROUP | WS_TABSTOP, CRect(5, 50, 60, 62),
             Check)
        .Add("Button", "OK", BS_DEFPUSHBUTTON | WS_GROUP | WS_TABSTOP, CRect(5, 70, 60, 84), IDOK);
    for (const APPMODE mode : AllModes)
    {
        SCOPED_TRACE(mode);
        const ModeScope scope(mode);
        DialogForTests form(&Host());
        form.InitModalIndirect(bytes, &Host());
        CCustomRadiobutton radios[3];
        CCustomCheckBox check;
        form.beforeInit = [&] {
            for (UINT index = 0; index < 3; ++index)
            {
                radios[index].SubclassDlgItem(FirstRadio + index, &form);
            }
            check.SubclassDlgItem(Check, &form);
        };
        // "x" for each that is chosen.
        const auto chosen = [&] {
            std::string marks;
            for (const CButton* button : {&radios[0], &radios[1], &radios[2]})
            {
                marks += button->GetCheck() == BST_CHECKED ? 'x' : '-';
            }
            return marks + (check.GetCheck() == BST_CHECKED ? " x" : " -");
        };
        const auto click = [](const CWnd& at) { Click(WindowRectOf(at).CenterPoint()); };
        const auto key = [&](UINT pressed, UINT held = 0) {
            TypeKey(pressed, held);
            return chosen();
        };
        form.inLoop = [&] {
            click(radios[1]);
            EXPECT_EQ(chosen(), "-x- -");
            click(radios[2]);
            EXPECT_EQ(chosen(), "--x -");
            EXPECT_EQ(key(VK_UP), "-x- -") << "an arrow key chooses";
            EXPECT_EQ(key(VK_DOWN), "--x -");
            EXPECT_EQ(key(VK_DOWN), "x-- -") << "round the group";
            EXPECT_EQ(key(VK_TAB), "x-- -");
            EXPECT_EQ(key(VK_SPACE), "x-- x");
            click(check);
            EXPECT_EQ(chosen(), "x-- -");
            TypeKey(VK_TAB, VK_SHIFT);
            EXPECT_EQ(CWnd::GetFocus(), &radios[0]) << "the chosen one";
            TypeKey(VK_RETURN);
        };
        EXPECT_EQ(form.DoModal(), IDOK);
    }
}

} // namespace
