// Lists given arguments that go far, and lists whose parents and heirs do.

#include "lists/list_box_for_tests.h"
#include "support/Fenced.h"

#include <gmock/gmock.h>

#include <climits>

TEST_F(ListBoxTest, ColumnsOfNoWidthKeepTheWidthThatTheyHave)
{
    for (const APPMODE mode : {STD, ONBOARD})
    {
        const ModeScope scope(mode);
        auto& columns = AddList(60, ColumnsStyle);
        columns.SetColumnWidth(90);
        CRect before;
        columns.GetItemRect(0, &before);
        for (const int width : {0, -1, INT_MIN})
        {
            columns.SetColumnWidth(width);
            CRect now;
            columns.GetItemRect(0, &now);
            EXPECT_EQ(now.Width(), before.Width()) << width;
        }
        Remove(columns);
    }
}

TEST_F(ListBoxOnBoard, AHugeExtentScrollsAsFarAsThePlatformGoes)
{
    auto& list = AddList(3, WideListStyle);
    for (const CSize size : {CSize(300, 300), CSize(5, 5), CSize(300, 300)})
    {
        list.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        for (const int extent : {INT_MAX, INT_MAX - 1, 400000})
        {
            list.SetHorizontalExtent(extent);
            EXPECT_TRUE(list.m_hBarNeeded) << extent;
            list.SendMessage(WM_HSCROLL, SB_RIGHT);
            const CPoint range = RangeOf(list.m_hBar);
            EXPECT_EQ(list.m_hBar.GetScrollPos(), range.y);
            EXPECT_GT(range.y, 1000);
        }
    }
    // The last step moves the rows like every other.
    const int step = list.m_hBar.GetScrollPos();
    const auto ends = [&](int position) {
        list.ScrollTo(SB_HORZ, position);
        SCROLLINFO info = {};
        info.cbSize = sizeof(info);
        info.fMask = SIF_POS;
        return ::GetScrollInfo(list, SB_HORZ, &info) ? info.nPos : -1;
    };
    EXPECT_LT(ends(step - 1), ends(step));
    EXPECT_EQ(list.GetHorizontalExtent(), 400000);
}

TEST_F(ListBoxOnBoard, OddArgumentsHaveADefinedResult)
{
    auto& list = AddList(0, WideListStyle);
    EXPECT_EQ(list.GetEntryHeight(nullptr), list.GetEntryHeight("x"));
    EXPECT_EQ(list.GetEntryWidth(0), 0);
    EXPECT_EQ(list.GetEntryWidth(-7), 0);
    list.Fill(50);
    for (const WPARAM odd :
         {WPARAM(INT_MAX), WPARAM(UINT(INT_MIN)), WPARAM(-1), ~WPARAM(0) / 2, WPARAM(1) << 32})
    {
        list.SendMessage(LB_SETCURSEL, odd);
        list.SendMessage(LB_SETTOPINDEX, odd);
        EXPECT_EQ(list.m_vBar.GetScrollPos(), list.GetTopIndex()) << odd;
        list.SendMessage(LB_DELETESTRING, odd);
        EXPECT_GE(list.GetCount(), 49);
    }
    for (const CSize size : {CSize(0, 0), CSize(5, 5), CSize(60, 300), CSize(300, 40)})
    {
        list.MoveWindow(10, 10, size.cx, size.cy);
        Repaint(list);
        list.SendMessage(WM_VSCROLL, SB_PAGEDOWN);
        EXPECT_EQ(list.m_vBar.GetScrollPos(), list.GetTopIndex()) << size.cx;
    }
    const DWORD noText = ListStyle | LBS_OWNERDRAWFIXED | LBS_NODATA;
    auto& flat = AddList(0, noText, CRect(340, 20, 640, 25));
    if (flat.SendMessage(LB_SETCOUNT, INT_MAX) >= 0 && flat.GetCount() == INT_MAX)
    {
        EXPECT_TRUE(flat.m_vBarNeeded);
        EXPECT_EQ(RangeOf(flat.m_vBar).y, INT_MAX);
    }
    else
    {
        GTEST_SKIP() << "the platform's list does not take as many rows";
    }
}

TEST_F(ListBoxTest, AParentMayChangeModeAndRowsWhileItIsAsked)
{
    auto& list = AddList(30, ListStyle | LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS);
    const CRect client = ClientRectOf(list);
    Host().AlsoRecord({WM_MEASUREITEM});
    Host().hook = [&](ToldMessage& told) {
        if (told.message == WM_MEASUREITEM && COnBoardUIGeneral::InOnBoardMode())
        {
            COnBoardUIGeneral::SetAppMode(STD);
        }
    };
    // Back in the standard mode before the on-board frame was there.
    SetMode(ONBOARD, list);
    EXPECT_FALSE(COnBoardUIGeneral::InOnBoardMode());
    EXPECT_EQ(ClientRectOf(list), client);
    EXPECT_EQ(WindowPixels(list).Count(RGB(70, 70, 70), CRect(0, 0, 300, 3)), 0);
    EXPECT_FALSE(list.m_vBar.ShowScrollBar());

    std::vector<UINT> asked;
    Host().hook = [&](ToldMessage& told) {
        if (told.message == WM_MEASUREITEM)
        {
            const auto& measure = *reinterpret_cast<MEASUREITEMSTRUCT*>(told.lParam);
            asked.push_back(measure.itemID);
            EXPECT_NE(measure.itemData, ULONG_PTR(-1));
            while (list.GetCount() > 4)
            {
                list.DeleteString(list.GetCount() - 1);
            }
        }
    };
    SetMode(ONBOARD, list);
    EXPECT_THAT(asked, testing::ElementsAre(0, 1, 2, 3));
    Host().hook = nullptr;
    SetMode(STD, list);
}

namespace {

// Deletes itself in the middle of a change of its style, as an heir might.
class ListThatEnds : public ListBoxForTests
{
public:
    bool ends = false;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != WM_STYLECHANGED || !ends)
        {
            return ListBoxForTests::WindowProc(message, wParam, lParam);
        }
        delete this;
        return 0;
    }
};

void Paint(HWND window)
{
    ::RedrawWindow(window, nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
}

void RenewFrame(HWND window)
{
    ::SetWindowPos(window, nullptr, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_FRAMECHANGED);
}

} // namespace

TEST_F(ListBoxTest, AListMayEndWhenItsStyleChanges)
{
    const struct
    {
        const char* name;
        APPMODE before;
        APPMODE after;
        bool asked; // the platform has asked for its bar
        void (*act)(HWND);
    } table[] = {{"on board", STD, ONBOARD, false, &Paint},
                 {"standard", ONBOARD, STD, false, &Paint},
                 {"position", ONBOARD, ONBOARD, true, &RenewFrame},
                 {"frame", ONBOARD, ONBOARD, true, [](HWND window) {
                      NCCALCSIZE_PARAMS params = {};
                      ::SendMessage(window, WM_NCCALCSIZE, TRUE, reinterpret_cast<LPARAM>(&params));
                  }}};
    for (const auto& row : table)
    {
        COnBoardUIGeneral::SetAppMode(row.before);
        auto* const list = new Fenced<ListThatEnds>;
        ASSERT_TRUE(
            list->Create(WS_CHILD | WS_VISIBLE | ListStyle, CRect(20, 20, 320, 320), &Host(), 77));
        list->Fill(50);
        PumpAll();
        const HWND window = *list;
        list->ModifyStyle(0, row.asked ? WS_VSCROLL : 0);
        list->ends = true;
        COnBoardUIGeneral::SetAppMode(row.after);
        row.act(window);
        EXPECT_FALSE(::IsWindow(window)) << row.name;
    }
    COnBoardUIGeneral::SetAppMode(STD);
}
