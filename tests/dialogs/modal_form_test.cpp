#include "dialogs/dialog_for_tests.h"

#include "CustomCheckBox.h"
#include "CustomRadiobutton.h"

namespace {

// A form with a radio group and a check box, as a host makes it.
TEST_F(CustomDialogTest, AFormIsWorkedByPointerAndByKeyboardInItsModalLoop)
{
    DialogTemplate bytes({.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE});
    constexpr DWORD First = WS_GROUP | WS_TABSTOP;
    bytes.Add("Button", "One", BS_AUTORADIOBUTTON | First, CRect(5, 5, 60, 17), 201)
        .Add("Button", "Two", BS_AUTORADIOBUTTON, CRect(5, 20, 60, 32), 202)
        .Add("Button", "Three", BS_AUTORADIOBUTTON, CRect(5, 35, 60, 47), 203)
        .Add("Button", "Check", BS_AUTOCHECKBOX | First, CRect(5, 50, 60, 62), 204)
        .Add("Button", "OK", BS_DEFPUSHBUTTON | First, CRect(5, 70, 60, 84), IDOK);
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
                radios[index].SubclassDlgItem(201 + index, &form);
            }
            check.SubclassDlgItem(204, &form);
        };
        // "x" for each that is chosen.
        const auto chosen = [&] {
            std::string marks;
            for (const int id : {201, 202, 203, 204})
            {
                marks += form.IsDlgButtonChecked(id) == BST_CHECKED ? 'x' : '-';
            }
            return marks;
        };
        const auto click = [&](const CWnd& at) {
            Click(WindowRectOf(at).CenterPoint());
            return chosen();
        };
        const auto key = [&](UINT pressed, UINT held = 0) {
            TypeKey(pressed, held);
            return chosen();
        };
        form.inLoop = [&] {
            // Also in a group of which none was chosen.
            for (CCustomRadiobutton& radio : radios)
            {
                radio.SetCheck(BST_UNCHECKED);
            }
            EXPECT_EQ(click(radios[1]), "-x--");
            TypeKey(VK_TAB);
            TypeKey(VK_TAB, VK_SHIFT);
            EXPECT_EQ(CWnd::GetFocus(), &radios[1]) << "the chosen one";
            EXPECT_EQ(click(radios[2]), "--x-");
            EXPECT_EQ(key(VK_UP), "-x--") << "an arrow key chooses";
            EXPECT_EQ(key(VK_DOWN), "--x-");
            EXPECT_EQ(key(VK_DOWN), "x---") << "round the group";
            EXPECT_EQ(key(VK_TAB), "x---");
            EXPECT_EQ(key(VK_SPACE), "x--x");
            EXPECT_EQ(click(check), "x---");
            key(VK_TAB, VK_SHIFT);
            EXPECT_EQ(CWnd::GetFocus(), &radios[0]) << "the chosen one";
            TypeKey(VK_RETURN);
        };
        EXPECT_EQ(form.DoModal(), IDOK);
    }
}

} // namespace
