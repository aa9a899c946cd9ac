#pragma once

#include "CustomListCtrl.h"
#include "paint/Palette.h"
#include "support/Bars.h"
#include "support/Canvas.h"
#include "support/OnBoard.h"
#include "support/WindowTest.h"

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

// A report list that lets a test see its bars and dividers.
class ListForTests : public CCustomListCtrl
{
public:
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
        AddRows(*this, rows);
        SetRedraw(TRUE);
    }

    // Whether the edit of a row's label lies over it as it is drawn.
    bool HasEditOver(int row)
    {
        CRect label;
        const CWnd* const edit = GetEditControl();
        GetItemRect(row, &label, LVIR_LABEL);
        return edit != nullptr &&
               PlaceIn(*this, *edit).TopLeft() == label.TopLeft() + m_drawOffset - CSize(2, 1);
    }

    int RowHeight() const { return ItemRectOf(*this, 0).Height(); }

    int TopRow() const { return -int(m_drawOffset.y) / RowHeight(); }
    int VisibleRows() const { return (ClientRectOf(*this).Height() - 6) / RowHeight(); }

    CRect HeaderRect() const { return PlaceIn(*this, m_header); }

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

    CRect ColumnRect(int column) const { return ItemRectOf(m_header, column); }

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

    // Whether ranges, offset, header and frame tell of the same place.
    void ExpectInStep(const char* when)
    {
        SCOPED_TRACE(when);
        EXPECT_EQ(static_cast<void*>(GetScrollBarCtrl(SB_VERT)), &m_vBar);
        EXPECT_EQ(static_cast<void*>(GetScrollBarCtrl(SB_HORZ)), &m_hBar);
        EXPECT_EQ(GetScrollBarCtrl(SB_CTL), nullptr);
        EXPECT_EQ(GetTopIndex(), 0);
        EXPECT_EQ(m_drawOffset, CPoint(-m_hBar.GetScrollPos() * m_scrollUnit.cx,
                                       -m_vBar.GetScrollPos() * RowHeight()));
        EXPECT_EQ(HeaderAccess::Offset(m_header), CPoint(m_drawOffset.x, 0));
        const CRect client = ClientRectOf(*this);
        EXPECT_GE(HeaderRect().right, client.right - m_drawOffset.x) << "what is shifted is hit";
        const int visible = VisibleRows();
        EXPECT_EQ(m_vBar.ShowScrollBar() != 0, GetItemCount() > 0 && visible <= GetItemCount());
        if (m_vBar.ShowScrollBar())
        {
            EXPECT_EQ(LastTopRow(), GetItemCount() - visible + 2);
            EXPECT_EQ(m_vBar.GetPageSize(), std::max(1, visible - 1));
        }
        const CRect last = ColumnRect(m_header.OrderToIndex(m_header.GetItemCount() - 1));
        EXPECT_GE(last.right, client.right) << "the last column fills the list";
        EXPECT_EQ(m_hBar.ShowScrollBar() != 0, last.right > client.right);
        if (m_hBar.ShowScrollBar())
        {
            EXPECT_EQ(RangeOf(m_hBar).y, (last.right - client.right) / (client.right / 10) + 2);
            EXPECT_EQ(m_hBar.GetPageSize(), client.right * RangeOf(m_hBar).y / last.right);
        }
        // The frame is three pixels less wide than that of a sizeable window, by the metrics of the
        // other direction; the edge lies within it.
        const int edge = (GetExStyle() & WS_EX_CLIENTEDGE) != 0 ? ::GetSystemMetrics(SM_CXEDGE) : 0;
        const CSize frame(::GetSystemMetrics(SM_CYFRAME) - 3 + edge,
                          ::GetSystemMetrics(SM_CXFRAME) - 3 + edge);
        EXPECT_EQ(ClientPoint(*this, CPoint(0, 0)) - WindowRectOf(*this).TopLeft(), frame);
        EXPECT_EQ(WindowRectOf(*this).Width() - client.right,
                  2 * frame.cx + (m_vBar.ShowScrollBar() ? 52 : 0));
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
