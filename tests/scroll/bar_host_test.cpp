// Ends of a press that one control with faux bars has from the others.

#include "edits/edit_for_tests.h"
#include "listctrl/list_for_tests.h"

namespace {

constexpr auto Second = CFauxScrollBar::PRESSED_SECOND;
constexpr auto Thumb = CFauxScrollBar::PRESSED_THUMB;

using EditBarPress = EditOnBoard;
using ListCtrlBarPress = ListCtrlOnBoard;

} // namespace

TEST_F(EditBarPress, ATroughReleasedElsewhereIsNotHeldForEver)
{
    auto& edit = AddEdit(500);
    const CRect thumb = edit.m_bar.GetPartArea(Thumb);
    MoveTo(WindowPoint(edit, CPoint(thumb.CenterPoint().x,
                                    (thumb.bottom + edit.m_bar.GetPartArea(Second).top) / 2)));
    Press();
    EXPECT_EQ(edit.m_lastHit, CFauxScrollBar::PRESSED_AFTER_THUMB);
    MoveTo(ClientPoint(Host(), CPoint(700, 400)));
    EXPECT_TRUE(PumpUntil([&] { return !edit.m_scrolling; }));
    Release();
}

TEST_F(ListCtrlBarPress, AnotherOnBoardModeEndsAPress)
{
    auto& list = AddList(500);
    MoveTo(list.PartPoint(Second));
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
