// Bad input, and parents that take rows, columns or the list away in the middle of things.

#include "listctrl/list_for_tests.h"

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
        PumpAll();
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
    list.SetWindowPos(nullptr, 0, 0, 3, 3, SWP_NOMOVE | SWP_NOZORDER);
    list.SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOZORDER);
    list.SetWindowPos(nullptr, 0, 0, 400, 300, SWP_NOMOVE | SWP_NOZORDER);
    PumpAll();
    list.ExpectInStep("small and large again");
}

TEST_F(ListCtrlOnBoard, AParentMayEmptyOrEndTheListInANotification)
{
    struct
    {
        const char* name;
        void (*act)(ListForTests&);
    } const acts[] = {{"destroyed", [](ListForTests& list) { list.DestroyWindow(); }},
                      {"rows gone", [](ListForTests& list) { list.DeleteAllItems(); }},
                      {"columns gone",
                       [](ListForTests& list) {
                           while (list.DeleteColumn(0))
                           {}
                       }},
                      {"other mode", [](ListForTests&) { COnBoardUIGeneral::SetAppMode(STD); }}};
    for (const auto& act : acts)
    {
        for (const UINT code : {UINT(LVN_ITEMCHANGED), UINT(LVN_KEYDOWN), UINT(LVN_INSERTITEM),
                                UINT(LVN_COLUMNCLICK), UINT(NM_CLICK), UINT(NM_SETFOCUS)})
        {
            auto& list = AddList(100, 8);
            if (code != UINT(NM_SETFOCUS))
            {
                list.SetFocus();
            }
            list.SetItemState(0, 3, 3);
            list.PerformVScroll(SB_PAGEDOWN);
            bool done = false;
            Host().hook = [&](ToldMessage& told) {
                if (told.code == code && !done)
                {
                    done = true;
                    act.act(list);
                }
            };
            if (code == UINT(LVN_INSERTITEM))
            {
                list.InsertItem(0, "new");
            }
            else if (code == UINT(LVN_COLUMNCLICK))
            {
                Click(ClientPoint(list, CPoint(40, 8)));
            }
            else if (code == UINT(LVN_KEYDOWN))
            {
                TypeKey(VK_NEXT);
            }
            else
            {
                Click(ClientPoint(list, list.RowPoint(list.TopRow() + 2)));
            }
            PumpAll();
            EXPECT_TRUE(done) << act.name << " " << int(code);
            Host().hook = nullptr;
            if (list.GetSafeHwnd() != nullptr && COnBoardUIGeneral::InOnBoardMode() &&
                list.GetItemCount() > 0 && list.m_header.GetItemCount() > 0)
            {
                list.ExpectInStep(act.name);
            }
            Remove(list);
            COnBoardUIGeneral::SetAppMode(ONBOARD);
        }
    }
}

TEST_F(ListCtrlOnBoard, AParentMayDeleteTheListObjectInANotification)
{
    for (const UINT code : {UINT(LVN_ITEMCHANGED), UINT(LVN_KEYDOWN), UINT(LVN_INSERTITEM),
                            UINT(LVN_COLUMNCLICK), UINT(HDN_TRACKA)})
    {
        auto* list = &AddList(100, 8);
        list->SetFocus();
        list->SetItemState(0, 3, 3);
        const CPoint row = ClientPoint(*list, list->RowPoint(2));
        const CPoint heading = ClientPoint(*list, CPoint(40, 8));
        Host().hook = [&](ToldMessage& told) {
            if (told.code == code && list != nullptr)
            {
                Remove(*std::exchange(list, nullptr));
            }
        };
        if (code == UINT(LVN_INSERTITEM))
        {
            list->InsertItem(0, "new");
        }
        else if (code == UINT(LVN_COLUMNCLICK))
        {
            Click(heading);
        }
        else if (code == UINT(LVN_KEYDOWN))
        {
            TypeKey(VK_NEXT);
        }
        else if (code == UINT(LVN_ITEMCHANGED))
        {
            Click(row);
        }
        else
        {
            // What the header tells its list stays there; the list goes in the middle of a drag.
            MoveTo(list->DividerPoint(0));
            Press();
            Remove(*std::exchange(list, nullptr));
            DragTo(heading);
            Release();
        }
        EXPECT_EQ(list, nullptr) << int(code);
        Host().hook = nullptr;
    }
}

namespace {

// A list whose memory cannot be touched any more once it is deleted.
struct FencedList : ListForTests
{
    static void* operator new(size_t size)
    {
        return ::VirtualAlloc(nullptr, size, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
    }
    static void operator delete(void* memory) { ::VirtualFree(memory, 0, MEM_RELEASE); }
};

} // namespace

TEST_F(ListCtrlOnBoard, AParentMayDeleteTheListObjectWhileARangeIsSelected)
{
    auto* list = &Add<FencedList>(CRect(20, 20, 420, 420), ReportStyle);
    list->AddColumns(3);
    list->Fill(100);
    list->SetFocus();
    list->SetItemState(3, 3, 3); // not the range that began at 0
    list->SetSelectionMark(0);
    Host().hook = [&](ToldMessage& told) {
        if (told.code == UINT(LVN_ITEMCHANGED) && list != nullptr)
        {
            Remove(*std::exchange(list, nullptr));
        }
    };
    TypeKey(VK_NEXT, VK_SHIFT);
    EXPECT_EQ(list, nullptr);
    Host().hook = nullptr;
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
    auto& list = Add<WildMark>(CRect(20, 20, 420, 420), ReportStyle);
    list.AddColumns(1);
    list.Fill(50);
    PumpAll();
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
    Host().hook = nullptr;
}
