// Parents that take rows or columns away in the middle of things.

#include "listctrl/list_for_tests.h"

TEST_F(ListCtrlOnBoard, AParentMayEmptyTheListOrChangeTheModeInANotification)
{
    const Act<ListForTests&> acts[] = {
        {"rows gone", [](ListForTests& list) { list.DeleteAllItems(); }},
        {"columns gone",
         [](ListForTests& list) {
             while (list.DeleteColumn(0))
             {}
         }},
        {"other mode", [](ListForTests&) { COnBoardUIGeneral::SetAppMode(STD); }}};
    const auto clickRow = [](ListForTests& list) {
        Click(ClientPoint(list, list.RowPoint(list.TopRow() + 2)));
    };
    const std::pair<UINT, std::function<void(ListForTests&)>> notifications[] = {
        {UINT(LVN_ITEMCHANGED), clickRow},
        {UINT(LVN_ITEMCHANGED),
         [](ListForTests& list) { list.SetFocus(), TypeKey(VK_NEXT, VK_SHIFT); }},
        {UINT(NM_CLICK), clickRow},
        {UINT(NM_SETFOCUS), clickRow},
        {UINT(LVN_KEYDOWN), [](ListForTests& list) { list.SetFocus(), TypeKey(VK_NEXT); }},
        {UINT(LVN_INSERTITEM), [](ListForTests& list) { list.InsertItem(0, ""); }},
        {UINT(LVN_COLUMNCLICK),
         [](ListForTests& list) { Click(ClientPoint(list, CPoint(40, 8))); }}};
    for (const auto& act : acts)
    {
        for (const auto& [code, bring] : notifications)
        {
            SCOPED_TRACE(testing::Message() << act.name << " in " << int(code));
            auto& list = AddList(100, 5);
            list.SetItemState(3, 3, 3); // no range begins here
            list.PerformVScroll(SB_PAGEDOWN);
            const OnceTold done(Host(), code, [&] { act.act(list); });
            bring(list);
            PumpAll();
            EXPECT_TRUE(bool(done));
            EXPECT_LE(list.m_vBar.GetScrollPos(), list.GetItemCount());
            for (int column = COnBoardUIGeneral::InOnBoardMode() ? 5 : 0; column < 5; ++column)
            {
                EXPECT_EQ(list.GetColumnWidth(column), 60) << column;
            }
            Remove(list);
            COnBoardUIGeneral::SetAppMode(ONBOARD);
            Host().SetFocus();
        }
    }
}
