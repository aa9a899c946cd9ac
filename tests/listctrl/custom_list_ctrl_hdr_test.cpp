// The header: its look, its place over the columns, and columns resized with the pointer.

#include "listctrl/list_for_tests.h"
#include "support/Canvas.h"

namespace {

// Notes what its header tells of a drag.
struct ListThatFollows : ListForTests
{
    std::vector<int> told; // item, button and width, again and again
    int begun = -1;        // the width with which the last drag began, and the one it ended with
    int ended = -1;
    bool refuses = false; // to begin one

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const auto* const header = reinterpret_cast<const NMHEADER*>(lParam);
        if (message == WM_NOTIFY && header->hdr.code == UINT(HDN_BEGINTRACKW))
        {
            begun = header->pitem->cxy;
            return refuses;
        }
        if (message == WM_NOTIFY && header->hdr.code == UINT(HDN_ENDTRACKW))
        {
            ended = header->pitem->cxy;
        }
        if (message == WM_NOTIFY && header->hdr.code == UINT(HDN_TRACKA))
        {
            EXPECT_EQ(header->hdr.hwndFrom, HWND(m_header));
            told.insert(told.end(), {header->iItem, header->iButton, header->pitem->cxy});
        }
        return ListForTests::WindowProc(message, wParam, lParam);
    }
};

} // namespace

TEST_F(ListCtrlOnBoard, TheHeaderIsAGradientAndAPressedItemTheReverse)
{
    auto& list = AddList(20);
    const int height = list.HeaderRect().Height();
    const Pixels picture = WindowPixels(list.m_header);
    EXPECT_EQ(picture.At(80, 0), RGB(150, 150, 150));
    EXPECT_NEAR(GetRValue(picture.At(80, height - 1)), 92, 2);
    EXPECT_EQ(picture.At(102, 3), RGB(0, 0, 0)) << "divider";
    EXPECT_GT(picture.Count(palette::HeaderText), 20);
    Press(ClientPoint(list, CPoint(50, 8)));
    const Pixels pressed = WindowPixels(list.m_header);
    EXPECT_EQ(pressed.At(80, 0), RGB(90, 90, 90));
    EXPECT_GT(GetRValue(pressed.At(80, height - 1)), 140);
    EXPECT_EQ(pressed.At(150, 0), RGB(150, 150, 150));
    Release();
    EXPECT_EQ(WindowPixels(list.m_header), picture);
    EXPECT_THAT(Host().CodesFrom(FirstId), testing::Contains(UINT(LVN_COLUMNCLICK)).Times(1));
}

TEST_F(ListCtrlOnBoard, AHeadingStandsInItsItemBesideItsArrow)
{
    auto& list = AddList(3, 3, ReportStyle, CRect(20, 20, 620, 220));
    list.SetFont(&CCustomListCtrl::GetOnBoardFont()); // room for the arrows
    constexpr int Item = 1;
    // The text's room within the item: from 4 pixels on, and clear of an arrow by 23. Its place
    // there is 0 at the left and 1 at the right.
    for (const auto& [format, place, reserved] :
         {std::tuple(HDF_LEFT, 0.0, 0),
          {HDF_CENTER, 0.5, 0},
          {HDF_RIGHT, 1.0, 0},
          {HDF_RIGHT | HDF_SORTUP | HDF_SORTDOWN, 1.0, 23}, // up
          {HDF_CENTER | HDF_SORTDOWN, 0.5, 23}})
    {
        char text[] = "HH";
        HDITEM data = {.mask = HDI_FORMAT | HDI_TEXT, .pszText = text, .fmt = HDF_STRING | format};
        list.m_header.SetItem(Item, &data);
        Repaint(list.m_header);
        const CRect item = list.ColumnRect(Item);
        const Pixels picture = WindowPixels(list.m_header);
        int first = item.right;
        int last = item.left;
        for (int x = item.left; x < item.right; ++x)
        {
            if (picture.Count(palette::HeaderText, CRect(x, 0, x + 1, item.bottom)) > 0)
            {
                first = std::min(first, x);
                last = x;
            }
        }
        const double free = item.Width() - 4 - reserved - (last + 1 - first);
        EXPECT_NEAR(first, item.left + 4 + place * free, 3) << format;
        for (const int x : {27, 18, 8}) // corners of the arrow, an outline
        {
            const bool apex = x == 18;
            const bool low = apex != ((format & HDF_SORTUP) != 0);
            const auto drawn = [&](int y) {
                return picture.At(item.right - x, y) == palette::SortArrow;
            };
            EXPECT_EQ(drawn(low ? 24 : 5), reserved != 0) << x;
            EXPECT_EQ(drawn(low ? 5 : 24), reserved != 0 && apex) << x << " on the other side";
            EXPECT_FALSE(drawn(15)) << x;
        }
    }
}

TEST_F(ListCtrlTest, TheApplicationsArrowsStandAtTheRightInTheStandardMode)
{
    auto& list = AddList(3);
    RestPointer();
    for (const int format : {HDF_SORTUP, HDF_SORTDOWN})
    {
        HDITEM data = {.mask = HDI_FORMAT, .fmt = HDF_STRING | HDF_LEFT | format};
        list.m_header.SetItem(1, &data);
        Repaint(list.m_header);
        // Each bitmap's picture fills one half, eight points wide.
        const CRect item = list.ColumnRect(1);
        const int top = item.CenterPoint().y - (format == HDF_SORTUP ? 8 : 0);
        const Pixels seen = WindowPixels(list.m_header);
        constexpr COLORREF Arrow = RGB(128, 0, 0);
        EXPECT_EQ(seen.Count(Arrow, CRect(CPoint(item.right - 15, top), CSize(8, 8))), 64);
        EXPECT_EQ(seen.Count(Arrow), 64) << format;
        Canvas canvas(ClientRectOf(list.m_header).Width(), item.Height());
        list.m_header.SendMessage(WM_PRINTCLIENT, WPARAM(canvas.DC().GetSafeHdc()), PRF_CLIENT);
        EXPECT_EQ(canvas.Picture().Count(Arrow), 64) << "printed, " << format;
    }
}

TEST_F(ListCtrlOnBoard, TheStripStandsOverTheShiftedColumnsAndTheGridIsDrawnByThem)
{
    auto& list = AddList(50, 8);
    list.SetExtendedStyle(LVS_EX_GRIDLINES);
    const int y = list.HeaderRect().bottom;
    const CPoint origin = ClientPoint(list, CPoint(0, 0)) - WindowRectOf(list).TopLeft();
    for (int step = 0; step < 4; ++step)
    {
        list.PerformHScroll(SB_LINERIGHT);
        const Pixels picture = Settled(list);
        list.GetVerticalDivides(8);
        EXPECT_FALSE(list.m_gridLines.Positions().empty());
        for (int row = 0; row < list.VisibleRows(); ++row)
        {
            const CSize line(150, ItemRectOf(list, 0).top + row * list.RowHeight());
            EXPECT_EQ(picture.At(origin + line), ::GetSysColor(COLOR_GRAYTEXT)) << row;
        }
        for (const int x : list.m_gridLines.Positions())
        {
            if (x > 0 && x < ClientRectOf(list).right - 1)
            {
                EXPECT_EQ(picture.At(origin + CSize(x, 2)), RGB(0, 0, 0)) << x;
                EXPECT_EQ(picture.At(origin + CSize(x, y + 3)), ::GetSysColor(COLOR_GRAYTEXT)) << x;
            }
        }
        list.ExpectInStep("scrolled sideways");
    }
}

TEST_F(ListCtrlOnBoard, ADividerIsTakenLessThanTenPixelsAway)
{
    auto& list = AddList(20, 6, ReportStyle, CRect(10, 10, 790, 300));
    int column = 0; // another one each time, or a second press would make a double click
    for (const int dx : {-10, -9, 0, 9, 10})
    {
        const bool taken = std::abs(dx) < 10;
        MoveTo(list.DividerPoint(column, dx));
        EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, taken ? IDC_SIZEWE : IDC_ARROW)) << dx;
        Press();
        EXPECT_EQ(list.m_header.IsHotTracking(), taken) << dx;
        Release();
        EXPECT_FALSE(list.m_header.IsHotTracking());
        EXPECT_EQ(list.GetColumnWidth(column), 102) << "a press alone resizes nothing";
        ++column;
    }
    list.SetColumnWidth(1, 0); // right of its divider a column of no width is opened again
    Drag(list.DividerPoint(1, 5), list.DividerPoint(1, 45));
    EXPECT_EQ(list.GetColumnWidth(0), 102);
    EXPECT_EQ(list.GetColumnWidth(1), 45);
}

TEST_F(ListCtrlOnBoard, ADividerIsDraggedAlsoWithTheListScrolledSideways)
{
    auto& list = AddList<ListThatFollows>(40, 8);
    const CPoint origin = ClientPoint(list, CPoint(0, 0)) - WindowRectOf(list).TopLeft();
    for (const int column : {1, 2})
    {
        list.PerformHScroll(column == 1 ? 0 : 3, 0);
        PumpAll();
        list.told.clear();
        const CPoint from = list.DividerPoint(column);
        CPoint pointer = from + CPoint(25, 0);
        Press(from);
        DragTo(pointer, 3);
        EXPECT_TRUE(list.m_header.IsHotTracking());
        EXPECT_EQ(::GetCapture(), list.m_header.GetSafeHwnd());
        ASSERT_GE(list.told.size(), 9U) << "the list is told of each move";
        EXPECT_EQ(std::vector(list.told.end() - 3, list.told.end()), (std::vector{column, 0, 127}));
        EXPECT_EQ(list.GetColumnWidth(column), 102) << "not yet";
        // The line at the pointer, in list and header.
        PumpAll();
        list.ScreenToClient(&pointer);
        const Pixels picture = WindowPixels(list);
        EXPECT_EQ(picture.At(origin.x + pointer.x, origin.y + 200), RGB(0, 0, 0)) << column;
        EXPECT_EQ(picture.At(origin.x + pointer.x, origin.y + 2), RGB(0, 0, 0)) << column;
        Release();
        EXPECT_EQ(list.GetColumnWidth(column), 127);
        EXPECT_EQ(::GetCapture(), nullptr);
        EXPECT_EQ(std::pair(list.begun, list.ended), std::pair(102, 127));
        list.ExpectInStep("dragged");
    }
}

TEST_F(ListCtrlTest, AColumnThatItsHostHasFixedIsNotDraggedAndAHiddenOneStaysSo)
{
    const Act<ListThatFollows&> ways[] = {
        {"format",
         [](ListThatFollows& list) {
             list.DeleteColumn(0);
             list.InsertColumn(0, "Key", LVCFMT_LEFT | LVCFMT_FIXED_WIDTH, 0);
         }},
        {"style", [](ListThatFollows& list) { list.m_header.ModifyStyle(0, HDS_NOSIZING); }},
        {"answer", [](ListThatFollows& list) { list.refuses = true; }}};
    for (const auto& [name, fix] : ways)
    {
        SCOPED_TRACE(name);
        auto& list = AddList<ListThatFollows>(10);
        list.SetColumnWidth(0, 0);
        fix(list);
        SetMode(ONBOARD, list);
        const CPoint from = list.DividerPoint(0, 5);
        Click(from);
        EXPECT_THAT(Host().CodesFrom(FirstId), testing::Contains(UINT(LVN_COLUMNCLICK)).Times(1))
            << "on the next one";
        Drag(from - CPoint(4, 0), from + CPoint(20, 0));
        EXPECT_EQ(list.GetColumnWidth(0), 0);
        Host().Forget();
        Click(list.DividerPoint(1, 5));
        EXPECT_THAT(Host().CodesFrom(FirstId),
                    testing::Contains(UINT(LVN_COLUMNCLICK))
                        .Times(list.m_header.GetStyle() & HDS_NOSIZING ? 1 : 0))
            << "only where there is nothing to drag";
        for (const int x : {-2, 2}) // on both sides of the divider
        {
            list.SetColumnWidth(0, 100);
            Click(list.DividerPoint(0, x));
            Press();
            Release();
            EXPECT_TRUE(list.refuses || list.GetColumnWidth(0) == 100)
                << "nor by two clicks, " << x;
        }
        list.SetColumnWidth(0, 0);
        MoveTo(from);
        EXPECT_EQ(::GetCursor() == ::LoadCursor(nullptr, IDC_SIZEWE), list.refuses);
        Remove(list);
        Host().Forget();
        SetMode(STD, Host());
    }
}

TEST_F(ListCtrlTest, AHeadingThatCannotBeClickedIsReleasedWhereverThePressEnds)
{
    for (const APPMODE mode : {STD, ONBOARD})
    {
        const ModeScope scope(mode);
        auto& list = AddList(10, 3, ReportStyle | LVS_NOSORTHEADER);
        Press(ClientPoint(list, CPoint(30, 8)));
        EXPECT_EQ(HeaderAccess::Pressed(list.m_header), mode == STD ? -1 : 0);
        MoveTo(ClientPoint(list, CPoint(50, 150)));
        Release();
        EXPECT_EQ(HeaderAccess::Pressed(list.m_header), -1) << APPMODE_NAMES[mode];
        EXPECT_EQ(::GetCapture(), nullptr);
        EXPECT_THAT(Host().CodesFrom(FirstId),
                    testing::Not(testing::Contains(UINT(LVN_COLUMNCLICK))));
        Remove(list);
    }
}

TEST_F(ListCtrlTest, TheLeastWidthHoldsInADrag)
{
    for (const APPMODE mode : {STD, ONBOARD})
    {
        const ModeScope scope(mode);
        auto& list = AddList(10);
        list.SetMinColWidth(40);
        list.SetMinColWidth(-5); // no width
        const CPoint from = list.DividerPoint(0);
        Drag(from, from - CPoint(list.GetColumnWidth(0) - 10, 0));
        EXPECT_EQ(list.GetColumnWidth(0), mode == STD ? 40 : 68);
        const CPoint again = list.DividerPoint(0);
        Drag(again, again - CPoint(400, 0)); // out of the list
        EXPECT_EQ(list.GetColumnWidth(0), mode == STD ? 40 : 68);
        // A double click gives the heading's width.
        list.SetColumnWidth(1, LVSCW_AUTOSIZE_USEHEADER);
        const int heading = list.GetColumnWidth(1);
        list.SetColumnWidth(1, 150);
        Click(list.DividerPoint(1, -2));
        Press();
        Release();
        EXPECT_EQ(list.GetColumnWidth(1), heading) << APPMODE_NAMES[mode];
        Remove(list);
    }
}

TEST_F(ListCtrlTest, AListMadeHiddenTakesTheHeaderThatItGetsLater)
{
    auto& list = AddList(0, 0);
    list.DestroyWindow();
    const CRect place(20, 20, 420, 420);
    ASSERT_TRUE(list.Create(ReportStyle | WS_CHILD, place, &Host(), FirstId));
    PumpAll();
    list.AddColumns(1);
    list.ShowWindow(SW_SHOW);
    EXPECT_EQ(list.m_header.GetSafeHwnd(), HWND(list.SendMessage(LVM_GETHEADER)));
}

TEST_F(ListCtrlOnBoard, TwoClicksOnADividerPressNoBarThatThePointerCameFrom)
{
    auto& list = AddList(100, 8);
    const CPoint thumb = list.PartPoint(parts::Thumb, SB_HORZ);
    const auto look = [&] { return Settled(list).At(thumb - WindowRectOf(list).TopLeft()); };
    const COLORREF released = look();
    Click(list.DividerPoint(1));
    list.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(thumb.x, thumb.y)); // the last that it was asked
    Press();
    EXPECT_EQ(look(), released);
    Release();
}

TEST_F(ListCtrlOnBoard, ADragThatIsCutOffEndsWithoutAWidth)
{
    const Act<ListForTests&> cuts[] = {
        {"capture", [](ListForTests&) { ::ReleaseCapture(); }},
        {"mode", [](ListForTests& list) { SetMode(STD, list); }},
        {"capture before the list has followed the mode",
         [](ListForTests&) { COnBoardUIGeneral::SetAppMode(STD), ::ReleaseCapture(); }},
        {"columns", [](ListForTests& list) { list.DeleteColumn(2), list.DeleteColumn(1); }}};
    for (const auto& row : cuts)
    {
        SCOPED_TRACE(row.name);
        auto& list = AddList(10);
        const int column = row.name == std::string("columns") ? 1 : 0;
        const CPoint from = list.DividerPoint(column);
        Press(from);
        DragTo(from + CPoint(30, 0));
        ASSERT_TRUE(list.m_header.IsHotTracking());
        row.act(list);
        DragTo(from + CPoint(20, 0));
        Release();
        EXPECT_EQ(::GetCapture(), nullptr);
        COnBoardUIGeneral::SetAppMode(ONBOARD);
        Repaint(list);
        EXPECT_FALSE(list.m_header.IsHotTracking());
        EXPECT_TRUE(column == 1 || list.GetColumnWidth(0) == 102);
        Remove(list);
    }
}

TEST_F(ListCtrlTest, ADragOfThePlatformsEndsWithoutAWidthWhenTheModeLeadsOnBoard)
{
    auto& list = AddList(10);
    list.SetColumnWidth(0, 0); // dividers behind it are for opening, too
    const CPoint from = list.DividerPoint(1, 2);
    Press(from);
    DragTo(from + CPoint(30, 0));
    const ModeScope scope(ONBOARD);
    DragTo(from + CPoint(20, 0));
    Release();
    Repaint(list);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(list.GetColumnWidth(1), 102);
}

TEST_F(ListCtrlOnBoard, AHeadingIsClickedHoweverFarToTheRight)
{
    // The platform's pointer messages reach 32767 pixels; each column is 1700 wide on-board.
    auto& list = AddList(3, 24, ReportStyle, CRect(0, 20, 780, 200));
    std::vector<int> clicked;
    Host().OnCode(LVN_COLUMNCLICK,
                  [&](ToldMessage& told) { clicked.push_back(About<NMLISTVIEW>(told).iSubItem); });
    for (int column = 0; column < 24; ++column)
    {
        list.SetColumnWidth(column, 1700);
    }
    // A point of a heading, with some of the one before it in sight.
    const auto heading = [&](int column, int dx) {
        const int left = int(list.ColumnRect(column).left);
        list.PerformHScroll(left / int(list.m_scrollUnit.cx) - 1, list.m_hBar.GetScrollPos());
        // A new height, for which the platform makes its header as wide as the list.
        list.SetWindowPos(nullptr, 0, 0, 780, 180 + column, SWP_NOMOVE | SWP_NOZORDER);
        PumpAll();
        return ClientPoint(list, CPoint(left + int(list.m_drawOffset.x) + dx, 8));
    };
    for (const int column : {2, 19, 20, 22}) // 32767 lies within 19
    {
        Click(heading(column, column == 19 ? 520 : 50));
        EXPECT_EQ(HeaderAccess::Pressed(list.m_header), -1);
        EXPECT_EQ(::GetCapture(), nullptr) << column;
    }
    EXPECT_THAT(clicked, testing::ElementsAre(2, 19, 20, 22));
    // Let go of on another it is no click.
    const CPoint on = heading(20, 60); // not where it was clicked, which would be a double click
    const CPoint off = on - CPoint(120, 0);
    Drag(on, off);
    EXPECT_EQ(clicked.size(), 4U);
    // Nor when the capture is lost, nor is the divider that is pressed next.
    Press(heading(21, 60));
    ::ReleaseCapture();
    DragTo(ClientPoint(list, CPoint(50, 400))); // the header does not see the button go up
    Release();
    Click(list.DividerPoint(20, -5));
    EXPECT_EQ(clicked.size(), 4U);
    Press(heading(22, 90));
    ASSERT_EQ(::GetCapture(), list.m_header.GetSafeHwnd());
    SetMode(STD, list);
    EXPECT_EQ(::GetCapture(), nullptr);
    Release();
    EXPECT_EQ(clicked.size(), 4U);
}

TEST_F(ListCtrlOnBoard, AHeadingIsDraggedToTheDividerThatIsShown)
{
    for (const int steps : {0, 2}) // sideways
    {
        auto& list = AddList(10, 6);
        list.SetExtendedStyle(LVS_EX_HEADERDRAGDROP);
        list.PerformHScroll(steps, 0);
        const int x = int(list.ColumnRect(1).right + list.m_drawOffset.x);
        const auto look = [&] { return WindowPixels(list.m_header).At(x, 3); };
        for (const bool released : {false, true})
        {
            Press(list.DividerPoint(3, released ? -30 : -50)); // no double click
            const CPoint pointer = list.DividerPoint(1, -40);
            DragTo(pointer);
            CPoint picture;
            ::ImageList_GetDragImage(&picture, nullptr);
            EXPECT_EQ(picture, CPoint(pointer.x, WindowRectOf(list.m_header).top));
            EXPECT_EQ(look(), palette::Highlight) << steps;
            released ? void() : void(::ReleaseCapture());
            DragTo(list.DividerPoint(1, -5));
            EXPECT_EQ(::ImageList_GetDragImage(nullptr, nullptr) != nullptr, released);
            Release();
            EXPECT_NE(look(), palette::Highlight);
            EXPECT_EQ(list.m_header.OrderToIndex(2), released ? 3 : 2) << steps;
            EXPECT_TRUE(ShowsWhatAPaintWould(list));
            list.ExpectInStep("dragged");
        }
        Drag(list.DividerPoint(0, -11), list.DividerPoint(0, -8)); // a finger that trembles
        EXPECT_THAT(Host().CodesFrom(FirstId), testing::Contains(UINT(LVN_COLUMNCLICK)).Times(1));
        Press(list.DividerPoint(2, -50));
        DragTo(list.DividerPoint(1, -40));
        SetMode(STD, list);
        SetMode(ONBOARD, list);
        EXPECT_NE(look(), palette::Highlight) << "until the next step";
        ::ReleaseCapture();
        DragTo(ClientPoint(list, CPoint(50, 300))); // the header does not see the button go up
        Release();
        Drag(list.DividerPoint(0), list.DividerPoint(0, 20));
        EXPECT_EQ(list.m_header.OrderToIndex(2), 3) << steps;
        Remove(list);
        Host().Forget();
    }
}
