// What no host means to do: the result is defined and nothing is left, in every mode.

#include "dialogs/dialog_for_tests.h"

#include "BoldStatic.h"
#include "ColorEdit.h"
#include "ColorStatic.h"
#include "ColoredGroupBox.h"
#include "CustomEdit.h"
#include "EditWithPrompt.h"

namespace {

TEST_F(CustomDialogTest, DialogsTakeNoParentNoHostAndUnknownIds)
{
    const std::string endless(5000, 'W');
    for (const APPMODE mode : AllModes)
    {
        SCOPED_TRACE(mode);
        const ModeScope scope(mode);
        DialogForTests orphan(nullptr, nullptr);
        EXPECT_FALSE(orphan.Create(31999U, nullptr));
        ASSERT_TRUE(orphan.CreateIndirect(form, nullptr));
        orphan.SetWindowText(endless.c_str());
        for (const int id : {int(IdLabel), int(IdEdit), int(IdButton)})
        {
            orphan.SetDlgItemText(id, endless.c_str());
        }
        const UINT order[] = {9999, IdButton, 9998, IdEdit, IdEdit, 0};
        orphan.SetCtrlTabOrder(order);
        orphan.SetCtrlTabOrder(nullptr);
        EXPECT_EQ(::GetDlgCtrlID(::GetNextDlgTabItem(orphan, *orphan.GetDlgItem(IdButton), FALSE)),
                  IdEdit);
        CRect moved(-30000, -30000, 30000, 30000);
        orphan.SendMessage(WM_MOVING, 0, reinterpret_cast<LPARAM>(&moved));
        EXPECT_EQ(moved, CRect(-30000, -30000, 30000, 30000)) << "nobody holds it";
        orphan.MoveWindow(0, 0, 1, 1);
        PumpAll();
        EXPECT_GE(ClientRectOf(orphan).Width(), 0);
        EXPECT_GE(ClientRectOf(orphan).Height(), 0);
        COnBoardUIGeneral::SetAppMode(mode == STD ? EFB : STD);
        PumpAll();
        orphan.DestroyWindow();

        DialogForTests modal(nullptr, nullptr);
        modal.m_lpszTemplateName = MAKEINTRESOURCE(31999);
        EXPECT_EQ(modal.DoModal(), -1);
        EXPECT_FALSE(modal.m_inModalLoop);
        modal.m_lpszTemplateName = nullptr;
        modal.InitModalIndirect(form, nullptr);
        modal.inLoop = [&] { modal.EndDialog(7); };
        EXPECT_EQ(modal.DoModal(), 7);
    }
}

TEST_F(CustomDialogTest, LabelsAndEditsOfNoSizeTakeEndlessTexts)
{
    const std::string endless(5000, 'W');
    const auto check = [&]<class Control>(Control*, DWORD style = 0) {
        for (const CSize size : {CSize(0, 0), CSize(1, 40), CSize(3, 3), CSize(200, 1)})
        {
            auto& control = Add<Control>(CRect(CPoint(10, 10), size), style);
            control.ModifyStyleEx(0, WS_EX_CLIENTEDGE);
            control.SetWindowText(endless.c_str());
            for (const APPMODE mode : AllModes)
            {
                const ModeScope scope(mode);
                control.SetWindowPos(nullptr, 0, 0, 0, 0,
                                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_FRAMECHANGED);
                control.RedrawWindow(nullptr, nullptr,
                                     RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW);
                PumpAll();
                const CRect client = ClientRectOf(control);
                EXPECT_GE(client.Width(), 0) << typeid(Control).name() << ' ' << mode;
                EXPECT_GE(client.Height(), 0) << typeid(Control).name() << ' ' << mode;
            }
            Remove(control);
        }
    };
    check(static_cast<CCustomStatic*>(nullptr));
    check(static_cast<CCustomStatic*>(nullptr), BS_GROUPBOX);
    check(static_cast<CBoldStatic*>(nullptr));
    check(static_cast<CColorStatic*>(nullptr));
    check(static_cast<CColoredGroupBox*>(nullptr));
    check(static_cast<CCustomEdit*>(nullptr), ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL);
    check(static_cast<ColorEdit*>(nullptr), ES_AUTOHSCROLL);
    check(static_cast<EditWithPrompt*>(nullptr), ES_AUTOHSCROLL);
}

} // namespace
