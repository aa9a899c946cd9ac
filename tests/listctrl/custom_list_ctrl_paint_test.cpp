// What a report list paints: cells, grid lines, frame, and the same after every change as afresh.

#include "listctrl/list_for_tests.h"
#include "paint/Palette.h"

namespace {

bool HasText(const Pixels& picture, const CRect& cell, COLORREF color)
{
    return picture.Count(color, cell) > 5;
}

} // namespace

TEST_F(ListCtrlOnBoard, CellsShowTextSelectionAndEndAtTheDivider)
{
    for (const bool fullRow : {false, true})
    {
        auto& list = AddList(30, 3, ReportStyle | LVS_SINGLESEL);
        list.SetItemText(6, 1, "WWW");
        list.SetItemState(6, 3, 3);
        list.PerformVScroll(5, 0);
        const CRect client = ClientRectOf(list);
        Canvas canvas(client.Width(), client.Height());
        list.GetVerticalDivides(3);
        canvas.DC().SetBkMode(TRANSPARENT);
        const CRect drawn(0, 0, 300, client.bottom);
        list.DrawCells(canvas.DC(), 30, 3, fullRow, drawn);
        const Pixels picture = canvas.Picture();
        const int top = list.HeaderRect().bottom;
        const int height = list.RowHeight();
        const int y = top + height + 1; // row 6 is the second one drawn
        const int divider = list.m_gridLines.firstgrid();
        EXPECT_EQ(divider, 102);
        EXPECT_EQ(picture.At(0, y), palette::Highlight);
        EXPECT_EQ(picture.At(divider - 1, y), palette::Highlight);
        EXPECT_EQ(picture.At(divider, y), fullRow ? palette::Highlight : Canvas::Untouched);
        EXPECT_EQ(picture.At(299, y), fullRow ? palette::Highlight : Canvas::Untouched);
        EXPECT_EQ(picture.At(300, y), Canvas::Untouched);
        EXPECT_EQ(picture.At(0, y - height), Canvas::Untouched) << "row 5 is not selected";
        EXPECT_TRUE(HasText(picture, CRect(0, top, divider, top + height), palette::FieldText));
        EXPECT_TRUE(HasText(picture, CRect(0, y, divider, y + height - 1), palette::HighlightText));
        EXPECT_TRUE(
            HasText(picture, CRect(divider, y, 204, y + height - 1), palette::HighlightText));
        // As many rows as the rectangle is high, from the first on.
        const int end = client.bottom / height;
        EXPECT_EQ(
            picture.Count(palette::FieldText, CRect(0, top + end * height, 300, client.bottom)), 0);
        Remove(list);
    }
    auto& single = AddList(3, 1);
    single.SetItemState(1, 3, 3);
    Canvas canvas(500, 400);
    single.GetVerticalDivides(1);
    single.DrawCells(canvas.DC(), 3, 1, false, CRect(0, 0, 500, 400));
    CRect row;
    single.GetItemRect(1, &row, LVIR_BOUNDS);
    EXPECT_EQ(canvas.At(row.right - 1, row.top), palette::Highlight);
    EXPECT_EQ(canvas.At(row.right, row.top), Canvas::Untouched);
}

TEST_F(ListCtrlOnBoard, GridLinesStandAtRowsAndDividers)
{
    const COLORREF gray = ::GetSysColor(COLOR_GRAYTEXT);
    auto& list = AddList(30, 3);
    const CRect client = ClientRectOf(list);
    const int top = list.HeaderRect().bottom;
    const int height = list.RowHeight();
    list.PerformVScroll(4, 0);
    list.GetVerticalDivides(3);
    {
        Canvas canvas(client.Width(), client.Height());
        list.DrawGrid(canvas.DC(), 30, client);
        for (int y = top; y < client.bottom; y += height)
        {
            EXPECT_EQ(canvas.At(50, y), gray);
            EXPECT_EQ(canvas.At(50, y + 1), Canvas::Untouched);
        }
        EXPECT_EQ(canvas.At(102, top + 3), gray);
        EXPECT_EQ(canvas.At(204, client.bottom - 1), gray);
        EXPECT_EQ(canvas.At(list.m_gridLines.lastgrid() - 1, top + 3), Canvas::Untouched);
    }
    auto& empty = AddList(0, 2);
    {
        Canvas canvas(300, 300);
        empty.GetVerticalDivides(2);
        empty.DrawGrid(canvas.DC(), 0, CRect(0, 0, 300, 300));
        const int first = empty.HeaderRect().bottom + ::GetSystemMetrics(SM_CXFRAME) / 2;
        const int step = int(canvas.DC().GetTextExtent("Aj", 2).cy) + 1;
        EXPECT_EQ(canvas.At(5, first), gray);
        EXPECT_EQ(canvas.At(5, first + step), gray);
        EXPECT_EQ(canvas.At(5, first + 5 * step), gray);
        EXPECT_EQ(canvas.At(5, first + 1), Canvas::Untouched);
    }
}

TEST_F(ListCtrlOnBoard, WhatIsOnTheScreenIsWhatAFullPaintGives)
{
    auto& list = AddList(200, 8, ReportStyle, CRect(20, 20, 400, 400));
    list.SetExtendedStyle(LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT);
    list.SetItemState(4, 3, 3);
    PumpAll();
    const Act<> steps[] = {
        {"two lines", [&] { list.PerformVScroll(SB_LINEDOWN), list.PerformVScroll(SB_LINEDOWN); }},
        {"line up", [&] { list.PerformVScroll(SB_LINEUP); }},
        {"text", [&] { list.SetItemText(3, 0, "changed"); }},
        {"state", [&] { list.SetItemState(6, 3, 3); }},
        {"page down", [&] { list.PerformVScroll(SB_PAGEDOWN); }},
        {"sideways", [&] { list.PerformHScroll(SB_LINERIGHT); }},
        {"inserted", [&] { list.InsertItem(list.TopRow() + 2, "inserted"); }},
        {"deleted", [&] { list.DeleteItem(list.TopRow()); }},
        {"sorted", [&] { list.SortItems([](LPARAM, LPARAM, LPARAM) { return 0; }, 0); }},
        {"to the end", [&] { list.PerformVScroll(SB_BOTTOM); }},
        {"line up from there", [&] { list.PerformVScroll(SB_LINEUP); }},
    };
    for (const auto& step : steps)
    {
        step.act();
        EXPECT_TRUE(ShowsWhatAPaintWould(list)) << step.name;
    }
}

TEST_F(ListCtrlOnBoard, TheFirstColumnsTextsFollowItWhereverItStands)
{
    auto& list = AddList(5, 3);
    int order[] = {1, 0, 2};
    list.SetColumnOrderArray(3, order);
    PumpAll();
    const CRect client = ClientRectOf(list);
    Canvas canvas(client.Width(), client.Height());
    list.GetVerticalDivides(3);
    canvas.DC().SetBkMode(TRANSPARENT);
    list.DrawCells(canvas.DC(), 5, 3, false, client);
    const CRect column = list.ColumnRect(0);
    ASSERT_EQ(column.left, 102);
    const int top = list.HeaderRect().bottom;
    const int bottom = top + list.RowHeight();
    const Pixels picture = canvas.Picture();
    EXPECT_TRUE(
        HasText(picture, CRect(column.left, top, column.right, bottom), palette::FieldText));
    EXPECT_FALSE(HasText(picture, CRect(0, top, column.left, bottom), palette::FieldText));
}

TEST_F(ListCtrlOnBoard, FrameBandAndCornerArePainted)
{
    auto& list = AddList(200, 8, ReportStyle, CRect(20, 20, 400, 400));
    const Pixels picture = WindowPixels(list);
    EXPECT_EQ(picture.At(0, 0), palette::Outline);
    EXPECT_EQ(picture.At(1, 200), palette::Outline);
    const CRect vertical = list.m_vBar.GetArea();
    const CRect horizontal = list.m_hBar.GetArea();
    EXPECT_EQ(vertical.Width(), 55);
    EXPECT_EQ(horizontal.Height(), 55);
    EXPECT_EQ(vertical.right, picture.Width());
    EXPECT_EQ(picture.At(picture.Width() - 20, picture.Height() - 20), palette::ListCorner);
    EXPECT_EQ(picture.At(picture.Width() - 3, picture.Height() - 20), palette::Outline);
    EXPECT_GT(picture.Count(palette::Trough, vertical), 1000);
    EXPECT_GT(picture.Count(palette::Trough, horizontal), 1000);
    EXPECT_EQ(picture.At(200, 300), palette::Field);
}
