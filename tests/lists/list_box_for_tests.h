#pragma once

#include "CustomListBox.h"
#include "support/WindowTest.h"

#include <string>

// A list box that lets a test see its bars.
class ListBoxForTests : public CCustomListBox
{
public:
    using CCustomListBox::m_hBar;
    using CCustomListBox::m_hBarNeeded;
    using CCustomListBox::m_tracking;
    using CCustomListBox::m_vBar;
    using CCustomListBox::m_vBarNeeded;
    using CCustomListBox::m_vPressed;

    CFauxScrollBar& Bar(int axis) { return axis == SB_VERT ? m_vBar : m_hBar; }

    void Fill(int rows)
    {
        for (int row = 0; row < rows; ++row)
        {
            AddString(("Row " + std::to_string(row)).c_str());
        }
    }

    int VisibleRows() const
    {
        CRect client;
        GetClientRect(&client);
        return client.Height() / GetItemHeight(0);
    }

    // Screen point in the middle of a part of a bar.
    CPoint PartPoint(CFauxScrollBar::ePRESSED part, int axis = SB_VERT)
    {
        const CRect first = Bar(axis).GetPartArea(CFauxScrollBar::PRESSED_FIRST);
        const CRect second = Bar(axis).GetPartArea(CFauxScrollBar::PRESSED_SECOND);
        const CRect thumb = Bar(axis).GetPartArea(CFauxScrollBar::PRESSED_THUMB);
        CRect area = Bar(axis).GetPartArea(part);
        if (part == CFauxScrollBar::PRESSED_BEFORE_THUMB)
        {
            area = axis == SB_VERT ? CRect(first.left, first.bottom, first.right, thumb.top)
                                   : CRect(first.right, first.top, thumb.left, first.bottom);
        }
        if (part == CFauxScrollBar::PRESSED_AFTER_THUMB)
        {
            area = axis == SB_VERT ? CRect(first.left, thumb.bottom, first.right, second.top)
                                   : CRect(thumb.right, first.top, second.left, first.bottom);
        }
        return WindowPoint(*this, area.CenterPoint());
    }
};

constexpr DWORD ListStyle = WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT;

inline CPoint RangeOf(const CFauxScrollBar& bar)
{
    int minimum = 0;
    int maximum = 0;
    bar.GetScrollRange(&minimum, &maximum);
    return CPoint(minimum, maximum);
}

// The list notices the mode at its next message.
inline void SetMode(APPMODE mode, CWnd& list)
{
    COnBoardUIGeneral::SetAppMode(mode);
    list.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
}

// Lists as hosts make them: in whichever mode is set, with the style that a host gives.
class ListBoxTest : public WindowTest
{
protected:
    ListBoxForTests& AddList(int rows, DWORD style = ListStyle,
                             const CRect& place = CRect(20, 20, 320, 320))
    {
        auto& list = Add<ListBoxForTests>(place, style);
        list.ModifyStyleEx(0, WS_EX_CLIENTEDGE, SWP_FRAMECHANGED);
        list.Fill(rows);
        PumpAll();
        return list;
    }
};

class ListBoxOnBoard : public ListBoxTest
{
protected:
    void SetUp() override
    {
        ListBoxTest::SetUp();
        COnBoardUIGeneral::SetAppMode(ONBOARD);
    }

    void TearDown() override
    {
        COnBoardUIGeneral::SetAppMode(STD);
        ListBoxTest::TearDown();
    }
};
