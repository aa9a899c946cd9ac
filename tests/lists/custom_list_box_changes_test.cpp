// Lists whose size, content, mode or window changes under their bars.

#include "lists/list_box_for_tests.h"

namespace {

// The pixels that both a list with bars and one without show of the first rows.
Pixels LeftOfRows(CListBox& list)
{
    PumpAll();
    list.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    return ScreenPixels(CRect(WindowPoint(list, CPoint(20, 20)), CSize(60, 20)));
}

} // namespace

// Modes -----------------------------------------------------------------------------------------

TEST_F(ListBoxTest, RowsAndHorizontalBarAgreeAfterEveryModeChange)
{
    auto& list = AddList(3, WideListStyle);
    list.AddString("Some row");
    const Pixels standard = LeftOfRows(list);
    SetMode(ONBOARD, list);
    const Pixels onBoard = LeftOfRows(list);
    SetMode(STD, list);
    EXPECT_TRUE(LeftOfRows(list) == standard);

    // Scrolled in the standard mode, where more is to be seen than on-board.
    list.SetHorizontalExtent(600);
    list.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 100));
    const Pixels scrolled = LeftOfRows(list);
    EXPECT_FALSE(scrolled == standard);
    SetMode(ONBOARD, list);
    ASSERT_TRUE(list.m_hBarNeeded);
    EXPECT_GT(list.m_hBar.GetScrollPos(), 0);
    EXPECT_FALSE(LeftOfRows(list) == onBoard);
    list.SetHorizontalExtent(0);
    EXPECT_FALSE(list.m_hBarNeeded);
    EXPECT_TRUE(LeftOfRows(list) == onBoard);

    // Scrolled on-board, and nothing to scroll in the standard mode.
    list.AddString(WideText);
    ASSERT_TRUE(list.m_hBarNeeded);
    list.ScrollTo(SB_HORZ, 20);
    EXPECT_FALSE(LeftOfRows(list) == onBoard);
    SetMode(STD, list);
    EXPECT_TRUE(LeftOfRows(list) == standard);
    SetMode(EFB, list);
    EXPECT_EQ(list.m_hBar.GetScrollPos(), 0);
    EXPECT_TRUE(LeftOfRows(list) == onBoard);
    // The bar goes with the row that was too wide.
    EXPECT_TRUE(list.m_hBarNeeded);
    list.DeleteString(4);
    EXPECT_FALSE(list.m_hBarNeeded);
    SetMode(STD, list);
}

TEST_F(ListBoxTest, ColumnsStayWhereTheyAreAndAreCountedAnew)
{
    auto& list = AddList(400, ColumnsStyle);
    list.SetColumnWidth(80);
    list.SendMessage(WM_HSCROLL, SB_PAGERIGHT);
    ASSERT_GT(list.GetTopIndex(), 0);
    SetMode(ONBOARD, list);
    EXPECT_GT(list.GetTopIndex(), 0);
    EXPECT_GT(list.m_hBar.GetScrollPos(), 0);
    const CPoint wide = RangeOf(list.m_hBar);
    list.SetColumnWidth(45);
    const CPoint slim = RangeOf(list.m_hBar);
    EXPECT_LT(slim.y, wide.y);
    list.ReCheckScrollBars();
    EXPECT_EQ(RangeOf(list.m_hBar), slim);
    SetMode(STD, list);
    EXPECT_GT(list.GetTopIndex(), 0);
}

namespace {

// One object for several windows, one after the other.
class ListBoxInTurn : public ListBoxTest
{
protected:
    ListBoxForTests list;

    void Create(DWORD style, bool fill = true)
    {
        ASSERT_TRUE(
            list.Create(WS_CHILD | WS_VISIBLE | style, CRect(20, 20, 320, 320), &Host(), 77));
        if (fill)
        {
            list.Fill(100);
            list.AddString(WideText);
        }
        PumpAll();
    }

    // Of the window as it shows a selection.
    int HighlightedPixels()
    {
        PumpAll();
        ::SendMessage(list, LB_SETCURSEL, 1, 0);
        ::UpdateWindow(list);
        return WindowPixels(list).Count(::GetSysColor(COLOR_HIGHLIGHT));
    }

    void TearDown() override
    {
        list.DestroyWindow();
        COnBoardUIGeneral::SetAppMode(STD);
        ListBoxTest::TearDown();
    }
};

} // namespace

TEST_F(ListBoxInTurn, TheNextWindowBeginsAfresh)
{
    COnBoardUIGeneral::SetAppMode(ONBOARD);
    Create(WideListStyle);
    ASSERT_TRUE(list.m_hBarNeeded && list.m_vBarNeeded);
    list.ScrollTo(SB_HORZ, 5);
    list.SetRedraw(FALSE);
    list.DestroyWindow();

    // A window made without bars is not given those of the one before.
    COnBoardUIGeneral::SetAppMode(STD);
    Create(LBS_NOTIFY | LBS_NOINTEGRALHEIGHT);
    EXPECT_EQ(list.GetStyle() & (WS_VSCROLL | WS_HSCROLL), 0U);
    EXPECT_EQ(ClientRectOf(list).Width(), 300);
    SetMode(ONBOARD, list);
    EXPECT_FALSE(list.m_hBarNeeded);
    EXPECT_TRUE(list.m_vBarNeeded);
    list.AddString("One more"); // a filling whose end is still on its way
    list.DestroyWindow();

    // Rows are added at once again, and the frame is that of an empty list.
    Create(WideListStyle, false);
    EXPECT_FALSE(list.m_vBar.ShowScrollBar());
    EXPECT_FALSE(list.m_hBar.ShowScrollBar());
    MessageLog log(list, {WM_SETREDRAW});
    list.AddString(WideText);
    PumpAll();
    EXPECT_EQ(log.Count(WM_SETREDRAW), 1) << "the end of the filling";
    EXPECT_EQ(list.m_hBar.GetScrollPos(), 0);
}

TEST_F(ListBoxInTurn, AWindowLetGoOfInTheMiddleOfSomethingLeavesNothing)
{
    COnBoardUIGeneral::SetAppMode(ONBOARD);
    Create(ListStyle);
    MoveTo(list.PartPoint(CFauxScrollBar::PRESSED_THUMB));
    Press();
    ASSERT_TRUE(list.m_tracking);
    ::DestroyWindow(list.UnsubclassWindow());
    Create(ListStyle);
    MoveTo(WindowPoint(list, CPoint(270, 150)));
    DragTo(WindowPoint(list, CPoint(270, 200)), 5);
    EXPECT_EQ(list.GetTopIndex(), 0) << "the next window is not dragged";
    Release();

    // Of a filling: the next one keeps its redraw off.
    list.AddString("One more");
    const HWND first = list.UnsubclassWindow();
    auto& plain = Add<CListBox>(CRect(340, 20, 640, 320), ListStyle);
    plain.SetRedraw(FALSE);
    ASSERT_TRUE(list.SubclassWindow(plain.Detach()));
    list.Fill(5);
    EXPECT_EQ(HighlightedPixels(), 0);
    ::DestroyWindow(list.UnsubclassWindow());
    // Taken over again before its filling has ended, a list paints afterwards.
    ASSERT_TRUE(list.SubclassWindow(first));
    list.SetRedraw(TRUE);
    list.AddString("One more");
    ASSERT_EQ(list.UnsubclassWindow(), first);
    ASSERT_TRUE(list.SubclassWindow(first));
    EXPECT_GT(HighlightedPixels(), 100);
}

// Size and content ------------------------------------------------------------------------------

TEST_F(ListBoxOnBoard, RowsAreNotLeftOutOfSightWhenTheirBarGoes)
{
    auto& list = AddList(3, WideListStyle);
    const Pixels unscrolled = LeftOfRows(list);
    list.SetHorizontalExtent(400);
    list.SendMessage(WM_HSCROLL, SB_RIGHT);
    ASSERT_GT(list.m_hBar.GetScrollPos(), 0);
    EXPECT_FALSE(LeftOfRows(list) == unscrolled);
    list.SetWindowPos(nullptr, 0, 0, 500, 300, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_FALSE(list.m_hBarNeeded);
    EXPECT_TRUE(LeftOfRows(list) == unscrolled);
    // Nor are rows above the first in sight, or columns before it.
    list.Fill(27);
    list.SetTopIndex(29);
    ASSERT_GT(list.GetTopIndex(), 0);
    list.SetWindowPos(nullptr, 0, 0, 500, 560, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_FALSE(list.m_vBarNeeded);
    EXPECT_EQ(list.GetTopIndex(), 0);
    auto& columns = AddList(60, ColumnsStyle);
    columns.SetColumnWidth(140);
    columns.SendMessage(WM_HSCROLL, SB_RIGHT);
    ASSERT_GT(columns.GetTopIndex(), 0);
    columns.SetWindowPos(nullptr, 0, 0, 780, 500, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_FALSE(columns.m_hBarNeeded);
    EXPECT_EQ(columns.GetTopIndex(), 0);
    Remove(columns);
    list.SetWindowPos(nullptr, 0, 0, 500, 300, SWP_NOMOVE | SWP_NOZORDER);
    // Wider, but not as wide as the rows: the bar goes back, and the rows with it.
    list.SetHorizontalExtent(1000);
    list.SendMessage(WM_HSCROLL, SB_RIGHT);
    list.SetWindowPos(nullptr, 0, 0, 700, 300, SWP_NOMOVE | SWP_NOZORDER);
    const CPoint range = RangeOf(list.m_hBar);
    EXPECT_EQ(list.m_hBar.GetScrollPos(), range.y);
    const Pixels end = LeftOfRows(list);
    list.ScrollTo(SB_HORZ, range.y);
    EXPECT_TRUE(LeftOfRows(list) == end);
}

TEST_F(ListBoxOnBoard, RowsAndHorizontalBarAgreeAfterAResetAndAnotherFont)
{
    auto& list = AddList(3, WideListStyle);
    list.SetHorizontalExtent(2000);
    const Pixels unscrolled = LeftOfRows(list);
    list.ScrollTo(SB_HORZ, 30);
    EXPECT_FALSE(LeftOfRows(list) == unscrolled);
    list.ResetContent();
    list.Fill(3);
    EXPECT_EQ(list.m_hBar.GetScrollPos(), 0);
    EXPECT_TRUE(LeftOfRows(list) == unscrolled);
    list.ScrollTo(SB_HORZ, 20);
    list.SetFont(&CCustomListBox::GetOnBoardFont());
    const Pixels scrolled = LeftOfRows(list);
    list.ScrollTo(SB_HORZ, 20);
    EXPECT_TRUE(LeftOfRows(list) == scrolled);
}

TEST_F(ListBoxOnBoard, BothBarsGoWhenTheContentFitsWithoutThem)
{
    auto& list = AddList(0, WideListStyle);
    const int width = ClientRectOf(list).Width();
    list.Fill(list.VisibleRows() + 1);
    list.SetHorizontalExtent(width + 20);
    ASSERT_TRUE(list.m_vBarNeeded && list.m_hBarNeeded);
    // Fits without the bars, but neither way beside one of them.
    list.SetHorizontalExtent(width - 10);
    EXPECT_TRUE(list.m_vBarNeeded && list.m_hBarNeeded) << "one row too many";
    list.DeleteString(0);
    EXPECT_FALSE(list.m_vBarNeeded || list.m_hBarNeeded);
    EXPECT_EQ(ClientRectOf(list).Width(), width);
    // A list so small that its bands do not fit either comes to an end.
    list.Fill(20);
    for (const CSize size : {CSize(40, 40), CSize(80, 40), CSize(40, 80), CSize(5, 5)})
    {
        list.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        EXPECT_TRUE(list.m_vBarNeeded);
    }
}

TEST_F(ListBoxOnBoard, DrawnRowsAreMeasuredInTheFontTheyAreDrawnIn)
{
    auto& list = AddList(1, WideListStyle | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS);
    CClientDC dc(&list);
    const HGDIOBJ old = ::SelectObject(dc, CCustomListBox::GetOnBoardFont());
    const int row = dc.GetTextExtent("Row 0").cx;
    CString text = "x";
    while (dc.GetTextExtent(text).cx <= ClientRectOf(list).Width())
    {
        text += "x";
    }
    ::SelectObject(dc, old);
    EXPECT_EQ(list.GetEntryWidth(0), row);
    list.AddString(text);
    EXPECT_TRUE(list.m_hBarNeeded);
    // By their own rows the platform's lists go: another font, another width.
    auto& own = AddList(1, WideListStyle);
    EXPECT_LT(own.GetEntryWidth(0), row);
}

namespace {

class ListThatCounts : public ListBoxForTests
{
public:
    int measured = 0;

    int GetEntryWidth(int index) override
    {
        ++measured;
        return ListBoxForTests::GetEntryWidth(index);
    }
};

} // namespace

TEST_F(ListBoxOnBoard, WidthsAreMeasuredOncePerRow)
{
    auto& list =
        AddList<ListThatCounts>(60, WideListStyle | LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS);
    EXPECT_EQ(list.measured, 60);
    const CPoint before = RangeOf(list.m_vBar);
    for (int row = 0; row < 60; ++row)
    {
        list.SetItemHeight(row, 50);
    }
    EXPECT_EQ(list.measured, 60);
    EXPECT_GT(RangeOf(list.m_vBar).y, before.y) << "fewer rows in sight";
    list.SetFont(&CCustomListBox::GetOnBoardFont());
    EXPECT_EQ(list.measured, 120);
    char self[MAX_PATH] = "";
    ::GetModuleFileName(nullptr, self, MAX_PATH);
    EXPECT_GE(list.SendMessage(LB_ADDFILE, 0, reinterpret_cast<LPARAM>(self)), 0);
    EXPECT_EQ(list.measured, 121);

    auto& count = AddList<ListThatCounts>(0, WideListStyle | LBS_OWNERDRAWFIXED | LBS_NODATA);
    count.SendMessage(LB_SETCOUNT, 100000);
    EXPECT_EQ(count.GetCount(), 100000);
    EXPECT_EQ(count.measured, 0);
}
