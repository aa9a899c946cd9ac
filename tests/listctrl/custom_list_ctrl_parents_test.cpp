// Bad input, and parents that take rows, columns or the list away in the middle of things.

#include "listctrl/list_for_tests.h"
#include "support/Fenced.h"

#include <utility>

TEST_F(ListCtrlOnBoard, ValuesOutOfRangeAreAnsweredAndHarmless)
{
    auto& list = AddList(50, 4);
    list.SetMinColWidth(40);
    list.SetMinColWidth(-5);
    EXPECT_EQ(list.GetMinColWidth(), 40);
    for (const int column : {-1, 4, INT_MAX, INT_MIN})
    {
        EXPECT_FALSE(list.DeleteColumn(column));
        list.SetColumnWidth(column, 100);
    }
    for (const int width : {-30000, -3, 0, 32767})
    {
        list.SetColumnWidth(1, width);
        PumpAll();
        list.ExpectInStep("width");
    }
    LVCOLUMN column = {};
    column.mask = LVCF_WIDTH;
    for (const int width : {INT_MIN, -2, INT_MAX})
    {
        column.cx = width;
        list.InsertColumn(1, &column);
        list.DeleteColumn(1);
    }
    list.SendMessage(LVM_INSERTCOLUMN, 0, 0);
    for (const int row : {-1, 50, INT_MAX, INT_MIN})
    {
        EXPECT_FALSE(list.DeleteItem(row));
        list.SetItemText(row, 0, "x");
        list.RedrawItems(row, row);
    }
    list.SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ(list.GetSelectedCount(), 50U);
    for (const int position : {INT_MAX, INT_MIN})
    {
        list.PerformVScroll(position, 0);
        list.PerformHScroll(position, 0);
        PumpAll();
    }
    for (const CSize size : {CSize(3, 3), CSize(0, 0), CSize(400, 300)})
    {
        list.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
    }
    PumpAll();
    list.ExpectInStep("small and large again");
}

TEST_F(ListCtrlOnBoard, AParentMayEmptyOrEndTheListInANotification)
{
    const Act<ListForTests&> acts[] = {
        {"destroyed", [](ListForTests& list) { list.DestroyWindow(); }},
        {"deleted", [this](ListForTests& list) { Remove(list); }},
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
    const struct
    {
        const char* name;
        UINT code;
        std::function<void(ListForTests&)> bring;
    } notifications[] = {
        {"row changed", UINT(LVN_ITEMCHANGED), clickRow},
        {"click", UINT(NM_CLICK), clickRow},
        {"focus", UINT(NM_SETFOCUS), clickRow},
        {"key", UINT(LVN_KEYDOWN), [](ListForTests&) { TypeKey(VK_NEXT); }},
        {"row inserted", UINT(LVN_INSERTITEM), [](ListForTests& list) { list.InsertItem(0, ""); }},
        {"heading", UINT(LVN_COLUMNCLICK),
         [](ListForTests& list) { Click(ClientPoint(list, CPoint(40, 8))); }}};
    for (const auto& act : acts)
    {
        for (const auto& notification : notifications)
        {
            SCOPED_TRACE(testing::Message() << act.name << " in " << notification.name);
            auto& list = AddList(100, 8);
            const HWND window = list;
            if (notification.code != UINT(NM_SETFOCUS))
            {
                list.SetFocus();
            }
            list.SetItemState(0, 3, 3);
            list.PerformVScroll(SB_PAGEDOWN);
            const OnceTold done(Host(), notification.code, [&] { act.act(list); });
            notification.bring(list);
            PumpAll();
            EXPECT_TRUE(bool(done));
            if (::IsWindow(window))
            {
                if (list.GetItemCount() > 0 && list.m_header.GetItemCount() > 0 &&
                    COnBoardUIGeneral::InOnBoardMode())
                {
                    list.ExpectInStep("afterwards");
                }
                ::DestroyWindow(window);
            }
            COnBoardUIGeneral::SetAppMode(ONBOARD);
            Host().SetFocus();
        }
    }
}

TEST_F(ListCtrlOnBoard, AParentMayDeleteTheListObjectWhileARangeIsSelected)
{
    auto& list = AddList<Fenced<ListForTests>>(100);
    list.SetFocus();
    list.SetItemState(3, 3, 3); // not the range that began at 0
    list.SetSelectionMark(0);
    const OnceTold gone(Host(), UINT(LVN_ITEMCHANGED), [&] { Remove(list); });
    TypeKey(VK_NEXT, VK_SHIFT);
    EXPECT_TRUE(bool(gone));
}

TEST_F(ListCtrlOnBoard, ARangeEndsAtTheLastRowWhereverItsMarkIs)
{
    // As on a platform that keeps the mark as a host has set it.
    struct WildMark : ListForTests
    {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            return message == LVM_GETSELECTIONMARK
                       ? INT_MAX
                       : ListForTests::WindowProc(message, wParam, lParam);
        }
    };
    auto& list = AddList<WildMark>(50);
    list.SetFocus();
    list.SetItemState(5, 3, 3);
    TypeKey(VK_PRIOR, VK_SHIFT);
    EXPECT_EQ(list.Focused(), 0);
    EXPECT_EQ(list.GetSelectedCount(), 50U);
}

TEST_F(ListCtrlOnBoard, AParentMayEndTheListWhileItIsPainted)
{
    auto& list = Add<ListForTests>(CRect(20, 20, 420, 420), ReportStyle | LVS_OWNERDATA);
    list.AddColumns(2);
    int asked = 0;
    Host().hook = [&](ToldMessage& told) {
        if ((told.code == UINT(LVN_GETDISPINFOA) || told.code == UINT(LVN_GETDISPINFOW)) &&
            ++asked == 5)
        {
            list.DestroyWindow();
        }
    };
    list.SetItemCount(100);
    PumpAll();
    EXPECT_EQ(list.GetSafeHwnd(), nullptr);
}
