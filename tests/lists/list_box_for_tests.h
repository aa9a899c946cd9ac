#pragma once

#include "CustomListBox.h"
#include "paint/Palette.h"
#include "support/Bars.h"
#include "support/OnBoard.h"
#include "support/WindowTest.h"

constexpr DWORD ListStyle = WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT;
constexpr DWORD WideListStyle = ListStyle | WS_HSCROLL;
constexpr DWORD ColumnsStyle = LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | LBS_MULTICOLUMN | WS_HSCROLL;

constexpr const char* WideText =
    "A row that is a good deal wider than the window that is to show it, by far";

// A list that lets a test see its bars.
template <class Base> class BarsSeen : public Base
{
public:
    using Base::m_hBar;
    using Base::m_hBarNeeded;
    using Base::m_tracking;
    using Base::m_vBar;
    using Base::m_vBarNeeded;

    void Fill(int rows) { AddRows(*this, rows); }
};

class ListBoxForTests : public BarsSeen<CCustomListBox>
{
public:
    int VisibleRows() const { return ClientRectOf(*this).Height() / GetItemHeight(0); }

    // Of the base class, whose names the platform's list box hides.
    int ScrollTo(int axis, int position) { return CCustomListBox::SetScrollPos(axis, position); }

    CPoint PartPoint(CFauxScrollBar::ePRESSED part, int axis = SB_VERT)
    {
        return ::PartPoint(*this, Bar(axis), part);
    }

    // Whether rows, bars and frame tell of the same place.
    void ExpectInStep(const char* when)
    {
        SCOPED_TRACE(when);
        const int inset = ::GetSystemMetrics(SM_CXFRAME) - 3 + ::GetSystemMetrics(SM_CXEDGE);
        const CRect client = ClientRectOf(*this);
        EXPECT_EQ(client.Width(),
                  WindowRectOf(*this).Width() - 2 * inset - (m_vBarNeeded ? 52 : 0));
        EXPECT_EQ(m_vBar.ShowScrollBar() != 0, m_vBarNeeded);
        EXPECT_EQ(m_hBar.ShowScrollBar() != 0, m_hBarNeeded);
        const int visible = VisibleRows();
        EXPECT_EQ(m_vBarNeeded, GetCount() > visible);
        EXPECT_EQ(m_vBar.GetScrollPos(), GetTopIndex());
        EXPECT_LE(GetTopIndex(), std::max(0, GetCount() - visible)) << "rows left out of sight";
        if (m_vBarNeeded)
        {
            EXPECT_EQ(RangeOf(m_vBar), CPoint(0, GetCount() - visible + 1));
            EXPECT_EQ(m_vBar.GetPageSize(), std::max(1, visible - 1));
            // Beside the client rectangle and three pixels over its ends.
            EXPECT_EQ(m_vBar.GetArea(), CRect(CPoint(inset + client.Width(), inset - 3),
                                              CSize(55, client.Height() + 6)));
        }
        const int across = ::GetScrollPos(*this, SB_HORZ);
        ScrollTo(SB_HORZ, m_hBar.GetScrollPos());
        EXPECT_EQ(::GetScrollPos(*this, SB_HORZ), across) << "not where the bar says";
    }

    // What the tests of all controls with bars of their own ask for.
    static constexpr DWORD BothBarsStyle = WideListStyle;
    static constexpr COLORREF Corner = palette::Panel;
    static constexpr int SureWait = 80;          // milliseconds without a repeat of a held arrow
    static constexpr bool HoldsElsewhere = true; // with the pointer away
    CFauxScrollBar& Bar(int axis) { return axis == SB_VERT ? m_vBar : m_hBar; }
    bool IsBarPressed() const { return m_tracking; }
    int TopRow() const { return GetTopIndex(); }
    int LastTopRow() const { return GetCount() - VisibleRows(); }
    void FillBothWays(int rows)
    {
        Fill(rows - 1);
        AddString(WideText);
    }
};

// Lists as hosts make them: in whichever mode is set, with the style that a host gives.
class ListBoxTest : public WindowTest
{
protected:
    template <class List = ListBoxForTests>
    List& AddList(int rows, DWORD style = ListStyle, const CRect& place = CRect(20, 20, 320, 320))
    {
        auto& list = Add<List>(place, style);
        list.ModifyStyleEx(0, WS_EX_CLIENTEDGE, SWP_FRAMECHANGED);
        list.Fill(rows);
        PumpAll();
        return list;
    }
};

using ListBoxOnBoard = OnBoard<ListBoxTest>;
