// What a report list paints of its cells.

#include "listctrl/list_for_tests.h"

namespace {

bool HasText(const Pixels& picture, const CRect& cell, COLORREF color)
{
    return picture.Count(color, cell) > 5;
}

// The cells of a list as it is.
Pixels CellsOf(ListForTests& list, bool fullRow, const CRect& rect)
{
    const CRect client = ClientRectOf(list);
    const int columns = list.m_header.GetItemCount();
    Canvas canvas(client.Width() + 50, client.Height());
    list.GetVerticalDivides(columns);
    canvas.DC().SetBkMode(TRANSPARENT);
    list.DrawCells(canvas.DC(), list.GetItemCount(), columns, fullRow, rect);
    return canvas.Picture();
}

} // namespace

TEST_F(ListCtrlOnBoard, CellsShowTextSelectionAndEndAtTheDivider)
{
    auto& list = AddList(30, 3, ReportStyle | LVS_SINGLESEL);
    list.SetItemText(6, 1, "WWW");
    list.SetItemState(6, 3, 3);
    list.PerformVScroll(5, 0);
    EXPECT_EQ(WindowPixels(list).At(200, 300), palette::Field);
    const int top = list.HeaderRect().bottom;
    const int height = list.RowHeight();
    const int y = top + height + 1; // row 6 is the second one drawn
    const int bottom = ClientRectOf(list).bottom;
    const int divider = 102;
    for (const bool fullRow : {false, true})
    {
        const COLORREF beyond = fullRow ? palette::Highlight : Canvas::Untouched;
        const Pixels picture = CellsOf(list, fullRow, CRect(0, 0, 300, bottom));
        EXPECT_EQ(picture.At(0, y), palette::Highlight);
        EXPECT_EQ(picture.At(divider - 1, y), palette::Highlight);
        EXPECT_EQ(picture.At(divider, y), beyond);
        EXPECT_EQ(picture.At(299, y), beyond);
        EXPECT_EQ(picture.At(300, y), Canvas::Untouched);
        EXPECT_EQ(picture.At(0, y - height), Canvas::Untouched) << "row 5 is not selected";
        EXPECT_TRUE(HasText(picture, CRect(0, top, divider, top + height), palette::FieldText));
        const CRect cell(0, y, divider, y + height - 1);
        EXPECT_TRUE(HasText(picture, cell, palette::HighlightText));
        EXPECT_TRUE(HasText(picture, cell + CPoint(divider, 0), palette::HighlightText));
        // As many rows as the rectangle is high, from the first on.
        const CRect below(0, top + bottom / height * height, 300, bottom);
        EXPECT_EQ(picture.Count(palette::FieldText, below), 0);
    }
}
