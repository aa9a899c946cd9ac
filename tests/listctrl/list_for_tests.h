#pragma once

#include "CustomListCtrl.h"
#include "paint/Palette.h"
#include "support/Acts.h"
#include "support/Bars.h"
#include "support/Canvas.h"
#include "support/OnBoard.h"
#include "support/Repaint.h"
#include "support/WindowTest.h"

#include <string>

// A header that lets a test see its state.
struct HeaderAccess : CCustomListCtrlHdr
{
    static CPoint Offset(const CCustomListCtrlHdr& header)
    {
        return header.*(&HeaderAccess::m_offset);
    }
    static int Pressed(const CCustomListCtrlHdr& header)
    {
        return header.*(&HeaderAccess::m_pressedItem);
    }
};

constexpr DWORD ReportStyle = LVS_REPORT | LVS_SHOWSELALWAYS;

// A report list that lets a test see its bars and paint by parts.
class ListForTests : public CCustomListCtrl
{
public:
    using CCustomListCtrl::DrawCells;
    using CCustomListCtrl::DrawGrid;
    using CCustomListCtrl::GetVerticalDivides;
    using CCustomListCtrl::m_drawOffset;
    using CCustomListCtrl::m_gridLines;
    using CCustomListCtrl::m_hBar;
    using CCustomListCtrl::m_header;
    using CCustomListCtrl::m_pressed;
    using CCustomListCtrl::m_scrollUnit;
    using CCustomListCtrl::m_vBar;
    using CCustomListCtrl::PerformHScroll;
    using CCustomListCtrl::PerformVScroll;

    void AddColumns(int count, int width = 60)
    {
        for (int column = 0; column < count; ++column)
        {
            InsertColumn(column, ("Col " + std::to_string(column)).c_str(), LVCFMT_LEFT, width);
        }
    }

    void Fill(int rows)
    {
        SetRedraw(FALSE);
        for (int row = 0; row < rows; ++row)
        {
            InsertItem(row, ("Row " + std::to_string(row)).c_str());
        }
        SetRedraw(TRUE);
    }

    int RowHeight() const
    {
        CRect row;
        GetItemRect(0, &row, LVIR_BOUNDS);
        return row.Height();
    }

    int TopRow() const { return -int(m_drawOffset.y) / RowHeight(); }
    int VisibleRows() const { return (ClientRectOf(*this).Height() - 6) / RowHeight(); }

    CRect HeaderRect() const
    {
        CRect rect = WindowRectOf(m_header);
        ScreenToClient(&rect);
        return rect;
    }

    // Of the list as drawn, in client coordinates.
    CPoint RowPoint(int row, int x = 20) const
    {
        return CPoint(x, HeaderRect().bottom + (row - TopRow()) * RowHeight() + RowHeight() / 2);
    }

    // Screen point of a column's divider as drawn, in the header.
    CPoint DividerPoint(int column, int dx = 0) const
    {
        return ClientPoint(*this, CPoint(ColumnRect(column).right + m_drawOffset.x + dx, 8));
    }

    CPoint PartPoint(CFauxScrollBar::ePRESSED part, int axis = SB_VERT)
    {
        return ::PartPoint(*this, Bar(axis), part);
    }

    CRect ColumnRect(int column) const
    {
        CRect rect;
        m_header.GetItemRect(column, &rect);
        return rect;
    }

    // What the tests of all controls with bars of their own ask for.
    static constexpr DWORD BothBarsStyle = ReportStyle;
    static constexpr COLORREF Corner = palette::ListCorner;
    static constexpr int SureWait = 200;          // milliseconds without a repeat of a held arrow
    static constexpr bool HoldsElsewhere = false; // with the pointer away
    CFauxScrollBar& Bar(int axis) { return axis == SB_VERT ? m_vBar : m_hBar; }
    bool IsBarPressed() const { return m_pressed; }
    int LastTopRow() { return RangeOf(m_vBar).y; }
    void FillBothWays(int rows)
    {
        AddColumns(8);
        Fill(rows);
    }

    std::set<int> Selected() const
    {
        std::set<int> rows;
        GetSelectedRows(rows);
        return rows;
    }
    int Focused() const { return GetNextItem(-1, LVNI_FOCUSED); }

    // Whether ranges, offset and header tell of the same place.
    void ExpectInStep(const char* when)
    {
        EXPECT_EQ(GetTopIndex(), 0) << when;
        EXPECT_EQ(m_drawOffset.y, -m_vBar.GetScrollPos() * RowHeight()) << when;
        EXPECT_EQ(m_drawOffset.x, -m_hBar.GetScrollPos() * m_scrollUnit.cx) << when;
        EXPECT_EQ(HeaderAccess::Offset(m_header).x, m_drawOffset.x) << when;
        EXPECT_GE(HeaderRect().right, ClientRectOf(*this).right) << when;
        const int visible = VisibleRows();
        EXPECT_EQ(m_vBar.ShowScrollBar() != 0, GetItemCount() > 0 && visible <= GetItemCount())
            << when;
        if (m_vBar.ShowScrollBar())
        {
            EXPECT_EQ(LastTopRow(), GetItemCount() - visible + 2) << when;
        }
        const CRect last = ColumnRect(m_header.GetItemCount() - 1);
        const int width = ClientRectOf(*this).Width();
        EXPECT_EQ(m_hBar.ShowScrollBar() != 0, last.right > width) << when;
        if (m_hBar.ShowScrollBar())
        {
            EXPECT_EQ(RangeOf(m_hBar).y, (last.right - width) / (width / 10) + 2) << when;
        }
    }
};

class ListCtrlTest : public WindowTest
{
protected:
    template <class List = ListForTests>
    List& AddList(int rows, int columns = 3, DWORD style = ReportStyle,
                  const CRect& place = CRect(20, 20, 420, 420))
    {
        auto& list = Add<List>(place, style);
        list.ModifyStyleEx(0, WS_EX_CLIENTEDGE, SWP_FRAMECHANGED);
        list.AddColumns(columns);
        list.Fill(rows);
        PumpAll();
        return list;
    }
};

using ListCtrlOnBoard = OnBoard<ListCtrlTest>;
