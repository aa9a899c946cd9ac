// An end of a press that one control with faux bars has from the others.

#include "listctrl/list_for_tests.h"

using ListCtrlBarPress = ListCtrlOnBoard;

TEST_F(ListCtrlBarPress, AnotherOnBoardModeEndsAPress)
{
    auto& list = AddList(500);
    MoveTo(list.PartPoint(CFauxScrollBar::PRESSED_SECOND));
    Press();
    ASSERT_TRUE(list.m_pressed);
    COnBoardUIGeneral::SetAppMode(EFB);
    list.SendMessage(WM_NULL);
    EXPECT_FALSE(list.m_pressed);
    const CPoint offset = list.m_drawOffset;
    PumpFor(450);
    EXPECT_EQ(list.m_drawOffset, offset);
    Release();
}
